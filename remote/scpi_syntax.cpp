#include "scpi_syntax.h"

#include <QList>

#include <cmath>
#include <limits>

namespace scpi {

namespace {

bool is_space(char c) {
    return c == ' ' || c == '\t';
}
bool is_letter(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}
bool is_digit(char c) {
    return c >= '0' && c <= '9';
}
char upper(char c) {
    return (c >= 'a' && c <= 'z') ? static_cast<char>(c - 'a' + 'A') : c;
}

// Longest numeric suffix taken: more digits than this are not a CAN id or any other number here.
constexpr int max_suffix_digits = 6;
// Longest based integer ("#B" with 64 digits): beyond it the value is no longer exact anyway.
constexpr int max_based_digits = 64;

// Shortens text from outside for an error message.
QByteArray excerpt(const QByteArray &text) {
    constexpr int longest = 40;
    return text.size() <= longest ? text : text.left(longest) + "...";
}

bool parse_node(const QByteArray &text, node *out) {
    if (text.isEmpty() || !is_letter(text.at(0))) {
        return false;
    }
    int end = text.size();
    while (end > 0 && is_digit(text.at(end - 1))) {
        --end;
    }
    for (int i = 0; i < end; ++i) {
        const char c = text.at(i);
        if (!is_letter(c) && !is_digit(c) && c != '_') {
            return false;
        }
    }
    out->mnemonic = text.left(end);
    out->suffix = -1;
    if (end < text.size()) {
        if (text.size() - end > max_suffix_digits) {
            return false;
        }
        out->suffix = text.mid(end).toInt();
    }
    return true;
}

// Reads the arguments after the header: comma-separated, each a quoted string or a token.
bool parse_arguments(const QByteArray &text, int pos, QVector<argument> *out,
                     syntax_error *error) {
    const int size = text.size();
    while (true) {
        while (pos < size && is_space(text.at(pos))) {
            ++pos;
        }
        argument arg;
        if (pos < size && (text.at(pos) == '"' || text.at(pos) == '\'')) {
            const char quote = text.at(pos++);
            arg.quoted = true;
            bool closed = false;
            while (pos < size) {
                const char c = text.at(pos++);
                if (c == quote) {
                    if (pos < size && text.at(pos) == quote) {
                        arg.text.append(quote);
                        ++pos;
                        continue;
                    }
                    closed = true;
                    break;
                }
                arg.text.append(c);
            }
            if (!closed) {
                *error = {command_error, "string not closed"};
                return false;
            }
            while (pos < size && is_space(text.at(pos))) {
                ++pos;
            }
        } else {
            const int start = pos;
            while (pos < size && text.at(pos) != ',') {
                ++pos;
            }
            arg.text = text.mid(start, pos - start).trimmed();
            if (arg.text.isEmpty()) {
                *error = {command_error, "empty parameter"};
                return false;
            }
            for (const char c : qAsConst(arg.text)) {
                if (is_space(c) || c == '"' || c == '\'') {
                    *error = {command_error, "parameter " + excerpt(arg.text)};
                    return false;
                }
            }
        }
        out->append(arg);
        if (pos >= size) {
            return true;
        }
        if (text.at(pos) != ',') {
            *error = {command_error, "expected ',' after parameter"};
            return false;
        }
        ++pos;
    }
}

}  // namespace

const char *error_text(int code) {
    switch (code) {
        case no_error: return "No error";
        case command_error: return "Command error";
        case invalid_character: return "Invalid character";
        case data_type_error: return "Data type error";
        case parameter_not_allowed: return "Parameter not allowed";
        case missing_parameter: return "Missing parameter";
        case undefined_header: return "Undefined header";
        case settings_conflict: return "Settings conflict";
        case data_out_of_range: return "Data out of range";
        case too_much_data: return "Too much data";
        case illegal_parameter_value: return "Illegal parameter value";
        case hardware_missing: return "Hardware missing";
        case queue_overflow: return "Queue overflow";
        default: return "Error";
    }
}

QVector<QByteArray> split_units(const QByteArray &line) {
    QVector<QByteArray> units;
    char quote = 0;
    int start = 0;
    const auto take = [&](int end) {
        const QByteArray part = line.mid(start, end - start);
        if (!part.trimmed().isEmpty()) {
            units.append(part);
        }
    };
    for (int i = 0; i < line.size(); ++i) {
        const char c = line.at(i);
        if (quote) {
            if (c == quote) {
                quote = 0;  // a doubled quote closes and opens again: the same result
            }
        } else if (c == '"' || c == '\'') {
            quote = c;
        } else if (c == ';') {
            take(i);
            start = i + 1;
        }
    }
    take(line.size());
    return units;
}

bool parse_unit(const QByteArray &text, unit *out, syntax_error *error) {
    *out = unit{};
    const int size = text.size();
    int pos = 0;
    while (pos < size && is_space(text.at(pos))) {
        ++pos;
    }
    int header_end = pos;
    while (header_end < size && !is_space(text.at(header_end))) {
        ++header_end;
    }
    QByteArray header = text.mid(pos, header_end - pos);
    if (header.endsWith('?')) {
        out->query = true;
        header.chop(1);
    }
    if (header.startsWith('*')) {
        out->common = true;
        node n;
        if (!parse_node(header.mid(1), &n) || n.suffix >= 0) {
            *error = {command_error, "header " + excerpt(text.mid(pos, header_end - pos))};
            return false;
        }
        out->path.append(n);
    } else {
        if (header.startsWith(':')) {
            out->absolute = true;
            header.remove(0, 1);
        }
        for (const QByteArray &part : header.split(':')) {
            node n;
            if (!parse_node(part, &n)) {
                *error = {command_error, "header " + excerpt(text.mid(pos, header_end - pos))};
                return false;
            }
            out->path.append(n);
        }
    }
    pos = header_end;
    while (pos < size && is_space(text.at(pos))) {
        ++pos;
    }
    if (pos >= size) {
        return true;
    }
    return parse_arguments(text, pos, &out->arguments, error);
}

bool names(const QByteArray &typed, const char *pattern) {
    const QByteArray full(pattern);
    int short_length = 0;
    while (short_length < full.size() && !(full.at(short_length) >= 'a' &&
                                           full.at(short_length) <= 'z')) {
        ++short_length;
    }
    const auto same = [&typed](const QByteArray &form) {
        if (typed.size() != form.size()) {
            return false;
        }
        for (int i = 0; i < form.size(); ++i) {
            if (upper(typed.at(i)) != upper(form.at(i))) {
                return false;
            }
        }
        return true;
    };
    return same(full) || same(full.left(short_length));
}

std::optional<double> parse_number(const QByteArray &text) {
    if (text.isEmpty()) {
        return std::nullopt;
    }
    const QByteArray word = text.toUpper();
    if (word == "INF" || word == "+INF") {
        return std::numeric_limits<double>::infinity();
    }
    if (word == "NINF" || word == "-INF") {
        return -std::numeric_limits<double>::infinity();
    }
    if (word == "NAN") {
        return std::numeric_limits<double>::quiet_NaN();
    }
    if (word.size() >= 3 && word.at(0) == '#') {
        int base = 0;
        switch (word.at(1)) {
            case 'H': base = 16; break;
            case 'Q': base = 8; break;
            case 'B': base = 2; break;
            default: return std::nullopt;
        }
        if (word.size() - 2 > max_based_digits) {
            return std::nullopt;
        }
        double value = 0;
        for (int i = 2; i < word.size(); ++i) {
            const char c = word.at(i);
            int digit = -1;
            if (is_digit(c)) {
                digit = c - '0';
            } else if (c >= 'A' && c <= 'F') {
                digit = c - 'A' + 10;
            }
            if (digit < 0 || digit >= base) {
                return std::nullopt;
            }
            value = value * base + digit;
        }
        return value;
    }
    // Decimal: [sign] digits [. digits] [E [sign] digits], at least one mantissa digit.
    int pos = 0;
    const int size = word.size();
    if (word.at(pos) == '+' || word.at(pos) == '-') {
        ++pos;
    }
    int digits = 0;
    while (pos < size && is_digit(word.at(pos))) {
        ++pos;
        ++digits;
    }
    if (pos < size && word.at(pos) == '.') {
        ++pos;
        while (pos < size && is_digit(word.at(pos))) {
            ++pos;
            ++digits;
        }
    }
    if (digits == 0) {
        return std::nullopt;
    }
    if (pos < size && word.at(pos) == 'E') {
        ++pos;
        if (pos < size && (word.at(pos) == '+' || word.at(pos) == '-')) {
            ++pos;
        }
        int exponent_digits = 0;
        while (pos < size && is_digit(word.at(pos))) {
            ++pos;
            ++exponent_digits;
        }
        if (exponent_digits == 0) {
            return std::nullopt;
        }
    }
    if (pos != size) {
        return std::nullopt;
    }
    // QByteArray reads decimals the same whatever the locale; a magnitude too large for a double
    // reads as an infinity (out of every range), one too small as zero.
    return word.toDouble();
}

std::optional<bool> parse_boolean(const QByteArray &text, bool *not_a_boolean) {
    *not_a_boolean = false;
    const QByteArray word = text.toUpper();
    if (word == "ON") {
        return true;
    }
    if (word == "OFF") {
        return false;
    }
    const std::optional<double> number = parse_number(text);
    if (!number || std::isnan(*number)) {
        *not_a_boolean = true;
        return std::nullopt;
    }
    const double rounded = std::round(*number);
    if (rounded == 0 || rounded == 1) {
        return rounded == 1;
    }
    return std::nullopt;
}

QByteArray format_number(double value) {
    if (std::isnan(value)) {
        return "NAN";
    }
    if (std::isinf(value)) {
        return value > 0 ? "INF" : "NINF";
    }
    QByteArray text = QByteArray::number(value, 'f', 9);
    if (text.contains('.')) {
        while (text.endsWith('0')) {
            text.chop(1);
        }
        if (text.endsWith('.')) {
            text.chop(1);
        }
    }
    if (text == "-0") {
        text = "0";
    }
    return text;
}

QByteArray quoted(const QByteArray &text) {
    QByteArray out = "\"";
    for (const char c : text) {
        out.append(c);
        if (c == '"') {
            out.append('"');
        }
    }
    out.append('"');
    return out;
}

}  // namespace scpi
