// The settings file: what is written reads back the same, every kind of bad file is refused with a
// reason an operator can act on, and the comparison names exactly the rows that differ.
#include "device_settings.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace device_settings;

namespace {

snapshot sample() {
    snapshot s;
    s.program = QStringLiteral("lumivox v5.abcdef");
    s.saved = QDateTime(QDate(2025, 3, 14), QTime(9, 26, 53), Qt::OffsetFromUTC, 3600);
    s.type_id = 26;
    s.model = QStringLiteral("VTR-PS-BOX");
    s.can_id = 12;
    s.name = QStringLiteral("Line \"A\" \\ Kühler");
    s.rows = {{81, QStringLiteral("CAN ID"), 0, 12},
              {37, QStringLiteral("Max voltage, V"), 1, 300},
              {57, QStringLiteral("poly. a2"), 6, -20000},
              {22, QStringLiteral("Resistance at 25°C, Ohm"), 0, 10000}};
    return s;
}

QByteArray replaced(QByteArray text, const QByteArray &from, const QByteArray &to) {
    if (!text.contains(from)) {
        qFatal("the sample has no %s", from.constData());
    }
    return text.replace(from, to);
}

}  // namespace

class test_device_settings : public QObject {
    Q_OBJECT

private slots:
    void written_file_reads_back_the_same() {
        const snapshot s = sample();
        QTemporaryDir dir;
        const QString path = dir.filePath(file_name(s));
        QString error;
        QVERIFY2(write_file(path, s, &error), qPrintable(error));
        QCOMPARE(QFileInfo(path).fileName(), QStringLiteral("can012-VTR-PS-BOX-20250314-092653.json"));
        const read_result back = read_file(path);
        QVERIFY2(back.settings, qPrintable(back.error));
        QCOMPARE(back.settings->program, s.program);
        QCOMPARE(back.settings->saved, s.saved);
        QCOMPARE(back.settings->type_id, s.type_id);
        QCOMPARE(back.settings->model, s.model);
        QCOMPARE(back.settings->can_id, s.can_id);
        QCOMPARE(back.settings->name, s.name);
        QCOMPARE(back.settings->rows.size(), s.rows.size());
        for (int i = 0; i < s.rows.size(); ++i) {
            QCOMPARE(back.settings->rows[i].code, s.rows[i].code);
            QCOMPARE(back.settings->rows[i].label, s.rows[i].label);
            QCOMPARE(back.settings->rows[i].decimals, s.rows[i].decimals);
            QCOMPARE(back.settings->rows[i].wire, s.rows[i].wire);
        }
        // One row per line, so that a changed row is a changed line.
        const QList<QByteArray> lines = to_text(s).split('\n');
        for (int i = 0; i < s.rows.size(); ++i) {
            QVERIFY(lines[7 + i].startsWith("    {\"code\": " + QByteArray::number(s.rows[i].code)));
        }
        QVERIFY(lines[9].contains("\"wire\": -20000, \"value\": \"-0.020000\""));
    }

    void shown_value_is_exact_data() {
        QTest::addColumn<qint64>("wire");
        QTest::addColumn<int>("decimals");
        QTest::addColumn<QString>("shown");
        QTest::newRow("tenths") << qint64(18000) << 1 << "1800.0";
        QTest::newRow("negative, six decimals") << qint64(-20000) << 6 << "-0.020000";
        QTest::newRow("below one") << qint64(5) << 4 << "0.0005";
        QTest::newRow("zero") << qint64(0) << 2 << "0.00";
        QTest::newRow("minus one, no decimals") << qint64(-1) << 0 << "-1";
        QTest::newRow("lowest 32-bit") << qint64(-2147483648LL) << 9 << "-2.147483648";
    }
    void shown_value_is_exact() {
        QFETCH(qint64, wire);
        QFETCH(int, decimals);
        QFETCH(QString, shown);
        QCOMPARE(shown_value(wire, decimals), shown);
    }

    void bad_files_are_refused_data() {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("reason");
        const QByteArray good = to_text(sample());
        QTest::newRow("empty") << QByteArray("\n") << "empty";
        QTest::newRow("plain text") << QByteArray("CAN ID = 12\n") << "not a settings file";
        QTest::newRow("other JSON") << QByteArray(R"({"rows": []})") << "not a settings file";
        QTest::newRow("cut inside a row") << good.left(good.indexOf("poly.")) << "ends early";
        QTest::newRow("cut after a row") << good.left(good.lastIndexOf("},") + 2) << "ends early";
        QTest::newRow("damaged") << replaced(good, "\"wire\": 300,", "\"wire\"# 300,")
                                 << "damaged at byte";
        QTest::newRow("newer format") << replaced(good, "\"format_version\": 1", "\"format_version\": 2")
                                      << "newer program";
        QTest::newRow("value edited without wire")
            << replaced(good, "\"value\": \"30.0\"", "\"value\": \"31.5\"") << "does not agree";
        QTest::newRow("wire beyond 32 bits")
            << replaced(good, "\"wire\": 300, \"value\": \"30.0\"",
                        "\"wire\": 4294967296, \"value\": \"429496729.6\"")
            << "32-bit";
        QTest::newRow("wire with a fraction")
            << replaced(good, "\"wire\": 300,", "\"wire\": 300.5,") << "32-bit";
        QTest::newRow("repeated code") << replaced(good, "\"code\": 37,", "\"code\": 81,")
                                       << "repeats code 81";
        QTest::newRow("repeated key")
            << replaced(good, "\"wire\": 300,", "\"wire\": [300], \"w\\u0069re\": 300,")
            << "key \"wire\" appears twice";
        QTest::newRow("nested too deep") << "{\"format\": " + QByteArray(40, '[') << "deeper";
        QTest::newRow("no rows") << good.left(good.indexOf("\"rows\"")) + "\"rows\": []}"
                                 << "no rows";
        QTest::newRow("device without type")
            << replaced(good, "\"type_id\": 26,", "\"type\": 26,") << "type_id";
        QTest::newRow("too large") << good + QByteArray(int(max_file_bytes), ' ') << "larger than";
    }
    void bad_files_are_refused() {
        QFETCH(QByteArray, text);
        QFETCH(QString, reason);
        const read_result read = from_text(text);
        QVERIFY(!read.settings);
        QVERIFY2(read.error.contains(reason), qPrintable(read.error));
    }

    void comparison_names_the_rows_that_differ() {
        const snapshot file = sample();
        QVector<row> device = file.rows;
        device[0].wire = 5;      // another device's address
        device[2].wire = -25000;  // a2 changed
        device.append({61, QStringLiteral("max energy"), 1, 100});  // a row the file lacks
        snapshot fuller = file;
        fuller.rows.append({99, QStringLiteral("from elsewhere"), 0, 1});

        const comparison compared = compare(device, fuller);
        QCOMPARE(compared.rows.size(), device.size());
        QStringList differing;
        for (const compared_row &r : compared.rows) {
            if (r.differs()) {
                differing << r.label;
            }
        }
        QCOMPARE(differing, (QStringList{"CAN ID", "poly. a2"}));
        QCOMPARE(compared.missing_from_file(), QStringList{"max energy"});
        QCOMPARE(compared.only_in_file, QStringList{"from elsewhere"});
        // The CAN ID row is written and checked only when asked for.
        QCOMPARE(compared.to_write(false).size(), 1);
        QCOMPARE(compared.to_write(false).first().code, 57);
        QCOMPARE(compared.to_write(true).size(), 2);
        QCOMPARE(compared.to_check(false).size(), 3);
        QCOMPARE(compared.to_check(true).size(), 4);

        QVERIFY(refusal(26, QStringLiteral("VTR-PS-BOX"), file).isEmpty());
        QVERIFY(refusal(14, QStringLiteral("VTR-CW-1800"), file).contains("VTR-PS-BOX"));
    }
};

QTEST_GUILESS_MAIN(test_device_settings)
#include "test_device_settings.moc"
