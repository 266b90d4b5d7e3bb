#include "device_settings.h"

#include "build_info.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonParseError>
#include <QSaveFile>

#include <cmath>
#include <limits>
#include <set>
#include <vector>

namespace device_settings {

namespace {

QString tr(const char *text) {
    return QCoreApplication::translate("device_settings", text);
}

// A JSON string literal with its quotes, escaped by Qt's own writer.
QByteArray quoted(const QString &text) {
    QByteArray array = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    return array.mid(1, array.size() - 2);  // drop the brackets
}

// An integer of a JSON value within [low, high], or none (not a number, a fraction, out of range).
std::optional<qint64> integer(const QJsonValue &value, qint64 low, qint64 high) {
    if (!value.isDouble()) {
        return std::nullopt;
    }
    const double number = value.toDouble();
    if (!std::isfinite(number) || std::trunc(number) != number || number < double(low) ||
        number > double(high)) {
        return std::nullopt;
    }
    return static_cast<qint64>(number);
}

// A string of at most max_text_length characters, or none.
std::optional<QString> text(const QJsonValue &value) {
    if (!value.isString() || value.toString().size() > max_text_length) {
        return std::nullopt;
    }
    return value.toString();
}

QString row_name(int index, const QString &label) {
    return label.isEmpty() ? tr("row %1").arg(index + 1)
                           : tr("row %1 (\"%2\")").arg(index + 1).arg(label);
}

read_result refused(const QString &why) {
    return read_result{std::nullopt, why};
}

// Objects and arrays nested deeper than this are not a settings file (it nests three deep).
constexpr int max_depth = 32;

// The first key that one object of the JSON text repeats, found on the raw text before it is
// parsed, or none; `too_deep` is set when objects and arrays nest beyond max_depth. Qt's parser
// keeps only one of two values under the same key and does not free the one it drops, and a
// settings file never repeats a key, so such text is refused before it reaches the parser. The
// text need not be valid JSON: whatever else is wrong with it, the parser says.
std::optional<QString> repeated_key(const QByteArray &text, bool *too_deep) {
    struct level {
        bool object = false;
        bool expect_key = false;
        std::set<QString> keys;
    };
    std::vector<level> open;
    *too_deep = false;
    for (int i = 0; i < text.size(); ++i) {
        const char c = text.at(i);
        if (c == '{' || c == '[') {
            if (open.size() >= max_depth) {
                *too_deep = true;
                return std::nullopt;
            }
            open.push_back(level{c == '{', c == '{', {}});
        } else if (c == '}' || c == ']') {
            if (!open.empty()) {
                open.pop_back();
            }
        } else if (c == ',' && !open.empty() && open.back().object) {
            open.back().expect_key = true;
        } else if (c == '"') {
            const int start = i;
            for (++i; i < text.size() && text.at(i) != '"'; ++i) {
                if (text.at(i) == '\\') {
                    ++i;  // the escaped character, a quote included
                }
            }
            if (i >= text.size()) {
                return std::nullopt;  // an unterminated string: the parser says so
            }
            if (open.empty() || !open.back().expect_key) {
                continue;
            }
            open.back().expect_key = false;
            const QByteArray raw = text.mid(start, i - start + 1);
            QString key = QString::fromUtf8(raw.mid(1, raw.size() - 2));
            if (raw.contains('\\')) {
                // Escapes are decoded by the parser, on an array that holds nothing but the key.
                key = QJsonDocument::fromJson("[" + raw + "]").array().at(0).toString();
            }
            if (!open.back().keys.insert(key).second) {
                return key;
            }
        }
    }
    return std::nullopt;
}

}  // namespace

QString shown_value(qint64 wire, int decimals) {
    const bool negative = wire < 0;
    // The magnitude of the lowest 64-bit number does not fit; wire values are 32-bit anyway.
    quint64 magnitude = negative ? quint64(0) - quint64(wire) : quint64(wire);
    QString digits = QString::number(magnitude);
    if (decimals > 0) {
        if (digits.size() <= decimals) {
            digits = QString(decimals + 1 - digits.size(), QLatin1Char('0')) + digits;
        }
        digits.insert(digits.size() - decimals, QLatin1Char('.'));
    }
    return negative ? QLatin1Char('-') + digits : digits;
}

QString row_count(int rows) {
    return rows == 1 ? tr("1 row") : tr("%1 rows").arg(rows);
}

QString program_version() {
    return QStringLiteral("lumivox v5.") + QString::fromLatin1(build_info::commit).left(6);
}

QByteArray to_text(const snapshot &settings) {
    const QDateTime saved = settings.saved.toOffsetFromUtc(settings.saved.offsetFromUtc());
    QByteArray out;
    out += "{\n";
    out += "  \"format\": " + quoted(QString::fromLatin1(format_name)) + ",\n";
    out += "  \"format_version\": " + QByteArray::number(format_version) + ",\n";
    out += "  \"program\": " + quoted(settings.program) + ",\n";
    out += "  \"saved\": " + quoted(saved.toString(Qt::ISODate)) + ",\n";
    out += "  \"device\": {\"type_id\": " + QByteArray::number(settings.type_id) +
           ", \"model\": " + quoted(settings.model) +
           ", \"can_id\": " + QByteArray::number(settings.can_id) +
           ", \"name\": " + quoted(settings.name) + "},\n";
    out += "  \"rows\": [\n";
    for (int i = 0; i < settings.rows.size(); ++i) {
        const row &r = settings.rows[i];
        out += "    {\"code\": " + QByteArray::number(r.code) + ", \"label\": " + quoted(r.label) +
               ", \"decimals\": " + QByteArray::number(r.decimals) +
               ", \"wire\": " + QByteArray::number(r.wire) +
               ", \"value\": " + quoted(shown_value(r.wire, r.decimals)) + "}";
        out += i + 1 < settings.rows.size() ? ",\n" : "\n";
    }
    out += "  ]\n}\n";
    return out;
}

read_result from_text(const QByteArray &bytes) {
    if (bytes.size() > max_file_bytes) {
        return refused(tr("the file is larger than %1 KiB: not a settings file")
                           .arg(max_file_bytes / 1024));
    }
    if (bytes.trimmed().isEmpty()) {
        return refused(tr("the file is empty"));
    }
    bool too_deep = false;
    if (const std::optional<QString> key = repeated_key(bytes, &too_deep)) {
        return refused(tr("the file is damaged: the key \"%1\" appears twice in one entry")
                           .arg(key->left(max_text_length)));
    }
    if (too_deep) {
        return refused(tr("not a settings file (it nests deeper than %1 levels)").arg(max_depth));
    }
    QJsonParseError parse{};
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &parse);
    if (parse.error != QJsonParseError::NoError) {
        if (!bytes.trimmed().startsWith('{')) {
            return refused(tr("not a settings file (it is not JSON text)"));
        }
        // An error at the end of the text (or an opening left unclosed) is a file cut short;
        // anything else is text that is damaged or was never a settings file.
        int content_end = bytes.size();
        while (content_end > 0 && QChar::isSpace(uchar(bytes.at(content_end - 1)))) {
            --content_end;
        }
        if (parse.offset >= content_end || parse.error == QJsonParseError::UnterminatedObject ||
            parse.error == QJsonParseError::UnterminatedArray ||
            parse.error == QJsonParseError::UnterminatedString) {
            return refused(tr("the file ends early, after %1 bytes (cut short?)").arg(bytes.size()));
        }
        return refused(tr("the file is damaged at byte %1: %2")
                           .arg(parse.offset)
                           .arg(parse.errorString()));
    }
    const QJsonObject root = document.object();
    if (!document.isObject() || root.value(QStringLiteral("format")) !=
                                    QJsonValue(QString::fromLatin1(format_name))) {
        return refused(tr("not a settings file (it does not say \"format\": \"%1\")")
                           .arg(QString::fromLatin1(format_name)));
    }
    const std::optional<qint64> version =
        integer(root.value(QStringLiteral("format_version")), 1, std::numeric_limits<int>::max());
    if (!version) {
        return refused(tr("the file is damaged: \"format_version\" is not a positive whole number"));
    }
    if (*version > format_version) {
        return refused(tr("the file was written by a newer program (format %1; this program reads "
                          "format %2)")
                           .arg(*version)
                           .arg(format_version));
    }

    snapshot settings;
    const auto program = text(root.value(QStringLiteral("program")));
    const auto saved = text(root.value(QStringLiteral("saved")));
    if (!program || !saved) {
        return refused(tr("the file is damaged: \"program\" or \"saved\" is missing"));
    }
    settings.program = *program;
    settings.saved = QDateTime::fromString(*saved, Qt::ISODate);
    if (!settings.saved.isValid()) {
        return refused(tr("the file is damaged: \"saved\" is not a date (%1)").arg(*saved));
    }

    const QJsonValue device_value = root.value(QStringLiteral("device"));
    const QJsonObject device = device_value.toObject();
    const auto type_id = integer(device.value(QStringLiteral("type_id")), 0, 0xFFFF);
    const auto model = text(device.value(QStringLiteral("model")));
    const auto can_id = integer(device.value(QStringLiteral("can_id")), 0, 0x7FF);
    const auto name = text(device.value(QStringLiteral("name")));
    if (!device_value.isObject() || !type_id || !model || !can_id || !name) {
        return refused(tr("the file is damaged: the \"device\" entry needs a type_id, model, "
                          "can_id (0 to 2047) and name"));
    }
    settings.type_id = static_cast<int>(*type_id);
    settings.model = *model;
    settings.can_id = static_cast<int>(*can_id);
    settings.name = *name;

    const QJsonValue rows_value = root.value(QStringLiteral("rows"));
    const QJsonArray rows = rows_value.toArray();
    if (!rows_value.isArray() || rows.isEmpty()) {
        return refused(tr("the file is damaged: it holds no rows"));
    }
    if (rows.size() > max_rows) {
        return refused(tr("the file is damaged: %1 rows, more than any device keeps (%2)")
                           .arg(rows.size())
                           .arg(max_rows));
    }
    std::set<int> codes;
    for (int i = 0; i < rows.size(); ++i) {
        const QJsonObject entry = rows.at(i).toObject();
        const auto label = text(entry.value(QStringLiteral("label")));
        const QString where = row_name(i, label.value_or(QString()));
        const auto code = integer(entry.value(QStringLiteral("code")), 0, 127);
        const auto decimals = integer(entry.value(QStringLiteral("decimals")), 0, max_decimals);
        const auto wire = integer(entry.value(QStringLiteral("wire")),
                                  std::numeric_limits<qint32>::min(),
                                  std::numeric_limits<qint32>::max());
        const auto shown = text(entry.value(QStringLiteral("value")));
        if (!rows.at(i).isObject() || !label || !code || !decimals || !wire || !shown) {
            return refused(tr("the file is damaged: %1 needs a code (0 to 127), label, decimals "
                              "(0 to %2), wire (a 32-bit whole number) and value")
                               .arg(where)
                               .arg(max_decimals));
        }
        if (!codes.insert(static_cast<int>(*code)).second) {
            return refused(tr("the file is damaged: %1 repeats code %2").arg(where).arg(*code));
        }
        const QString expected = shown_value(*wire, static_cast<int>(*decimals));
        if (*shown != expected) {
            return refused(tr("%1: \"value\" %2 does not agree with \"wire\" %3 (which is %4); "
                              "edit both or neither")
                               .arg(where, *shown)
                               .arg(*wire)
                               .arg(expected));
        }
        settings.rows.append(
            row{static_cast<int>(*code), *label, static_cast<int>(*decimals), *wire});
    }
    return read_result{settings, {}};
}

read_result read_file(const QString &path) {
    const QFileInfo info(path);
    if (!info.exists()) {
        return refused(tr("there is no file \"%1\"").arg(path));
    }
    if (!info.isFile()) {
        return refused(tr("\"%1\" is not a file").arg(path));
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return refused(tr("\"%1\" cannot be read: %2").arg(path, file.errorString()));
    }
    // One byte more than allowed tells an oversized file from one exactly at the bound.
    return from_text(file.read(max_file_bytes + 1));
}

bool write_file(const QString &path, const snapshot &settings, QString *error) {
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        *error = file.errorString();
        return false;
    }
    file.write(to_text(settings));
    if (!file.commit()) {
        *error = file.errorString();
        return false;
    }
    return true;
}

QString file_name(const snapshot &settings) {
    QString model = settings.model;
    for (QChar &c : model) {
        const bool plain = (c >= QLatin1Char('a') && c <= QLatin1Char('z')) ||
                           (c >= QLatin1Char('A') && c <= QLatin1Char('Z')) ||
                           (c >= QLatin1Char('0') && c <= QLatin1Char('9')) ||
                           c == QLatin1Char('-') || c == QLatin1Char('.');
        if (!plain) {
            c = QLatin1Char('_');
        }
    }
    return QStringLiteral("can%1-%2-%3.json")
        .arg(settings.can_id, 3, 10, QLatin1Char('0'))
        .arg(model, settings.saved.toString(QStringLiteral("yyyyMMdd-HHmmss")));
}

// --- Comparison -----------------------------------------------------------------------------------

QVector<compared_row> comparison::to_write(bool with_can_id) const {
    QVector<compared_row> chosen;
    for (const compared_row &r : rows) {
        if (r.differs() && (with_can_id || !r.is_can_id())) {
            chosen.append(r);
        }
    }
    return chosen;
}

QVector<compared_row> comparison::to_check(bool with_can_id) const {
    QVector<compared_row> chosen;
    for (const compared_row &r : rows) {
        if (r.in_file() && (with_can_id || !r.is_can_id())) {
            chosen.append(r);
        }
    }
    return chosen;
}

QStringList comparison::missing_from_file() const {
    QStringList labels;
    for (const compared_row &r : rows) {
        if (!r.in_file()) {
            labels.append(r.label);
        }
    }
    return labels;
}

QString refusal(int device_type, const QString &device_model, const snapshot &file) {
    if (device_type != file.type_id) {
        return tr("the file holds the rows of a %1 (device type %2); this device is a %3 (type "
                  "%4)")
            .arg(file.model)
            .arg(file.type_id)
            .arg(device_model)
            .arg(device_type);
    }
    return {};
}

comparison compare(const QVector<row> &device_rows, const snapshot &file) {
    comparison result;
    std::set<int> device_codes;
    for (const row &d : device_rows) {
        device_codes.insert(d.code);
        compared_row r{d.code, d.label, d.decimals, d.wire, std::nullopt};
        for (const row &f : file.rows) {
            if (f.code == d.code) {
                r.file_wire = f.wire;
                break;
            }
        }
        result.rows.append(r);
    }
    for (const row &f : file.rows) {
        if (device_codes.count(f.code) == 0) {
            result.only_in_file.append(f.label);
        }
    }
    return result;
}

}  // namespace device_settings
