// The frame text in both directions and its checksum.
#include "can_command_factory.h"
#include "frame_codec.h"

#include <QtTest>

namespace {

// CRC-16/MODBUS computed bit by bit, independent of the table.
quint16 crc_bitwise(const QByteArray &bytes) {
    quint16 crc = 0xFFFF;
    for (char c : bytes) {
        crc ^= static_cast<quint8>(c);
        for (int i = 0; i < 8; ++i) {
            crc = (crc & 1) ? static_cast<quint16>((crc >> 1) ^ 0xA001)
                            : static_cast<quint16>(crc >> 1);
        }
    }
    return crc;
}

// A device answer as a device would put it on the line (its own address as sender).
QString answer(int sender, int code, const QString &twelve_digits) {
    return QStringLiteral("t0228%1%2%3abcd")
        .arg(code, 2, 16, QLatin1Char('0'))
        .arg(sender, 2, 16, QLatin1Char('0'))
        .arg(twelve_digits);
}

}  // namespace

class test_frame_codec : public QObject {
    Q_OBJECT
private slots:
    void crc_table_matches_bitwise_crc() {
        // Every one-byte message exercises one table entry.
        for (int b = 0; b < 256; ++b) {
            const char c = static_cast<char>(b);
            QCOMPARE(frame_codec::crc16_modbus(&c, 1), crc_bitwise(QByteArray(1, c)));
        }
        QCOMPARE(frame_codec::crc_table()[1], quint16(0xC0C1));
        QCOMPARE(frame_codec::crc16_modbus("123456789", 9), quint16(0x4B37));  // check value
    }

    void compose_data() {
        QTest::addColumn<int>("can_id");
        QTest::addColumn<int>("code");
        QTest::addColumn<long>("value");
        QTest::addColumn<QString>("text");
        QTest::newRow("type request to 0xFA") << 0x0FA << 0xD0 << 0L << "t0fa8d0220000000000000a43";
        QTest::newRow("emission on") << 0x005 << 0x21 << 1L << "t00582122000000000001f0f5";
        QTest::newRow("negative value") << 0x005 << 0x12 << -5L << "t005812220000fffffffb2c8f";
        QTest::newRow("250 to 0x010") << 0x010 << 0x12 << 250L << "t010812220000000000faade4";
    }
    void compose() {
        QFETCH(int, can_id);
        QFETCH(int, code);
        QFETCH(long, value);
        QFETCH(QString, text);
        const QString frame = frame_codec::compose(can_id, code, frame_codec::to_wire(value));
        QCOMPARE(frame, text + QStringLiteral("\r\n"));
    }

    void factory_read_request_is_write_of_code_plus_0x80() {
        can_command_factory factory;
        QCOMPARE(factory.compose_read_request(0x0FA, 0x50),
                 QStringLiteral("t0fa8d0220000000000000a43\r\n"));
        QCOMPARE(factory.compose_read_request(7, 0x11), factory.compose_write_frame(7, 0x91, 0));
    }

    void parse_data() {
        QTest::addColumn<QString>("line");
        QTest::addColumn<bool>("is_frame");
        QTest::addColumn<int>("sender");
        QTest::addColumn<int>("code");
        QTest::addColumn<long>("value");
        QTest::newRow("plain answer")
            << answer(5, 0x91, "0000000000fa") << true << 5 << 0x91 << 250L;
        QTest::newRow("negative -250")
            << answer(5, 0x92, "0000ffffff06") << true << 5 << 0x92 << -250L;
        QTest::newRow("all ones is -1")
            << answer(5, 0x92, "0000ffffffff") << true << 5 << 0x92 << -1L;
        QTest::newRow("most negative")
            << answer(5, 0x92, "000080000000") << true << 5 << 0x92 << long(INT32_MIN);
        QTest::newRow("reserved bytes not zero")
            << answer(5, 0x91, "0001000000fa") << true << 5 << 0x91 << 0L;
        QTest::newRow("value not hex")
            << answer(5, 0x91, "0000zz0000fa") << true << 5 << 0x91 << 0L;
        QTest::newRow("type 0") << answer(9, 0xD0, "000000000000") << true << 9 << 0xD0 << 0L;
        QTest::newRow("wrong checksum still read")
            << QStringLiteral("t00a891090000000000120000") << true << 9 << 0x91 << 0x12L;
        QTest::newRow("upper case hex")
            << QStringLiteral("t0058910A0000000000FF1234") << true << 10 << 0x91 << 255L;
        QTest::newRow("leftover line feed")
            << QStringLiteral("\nt0058910500000000000a1234") << false << 0 << 0 << 0L;
        QTest::newRow("adapter OK") << QString() << false << 0 << 0 << 0L;
        QTest::newRow("bell") << QStringLiteral("\a") << false << 0 << 0 << 0L;
        QTest::newRow("extended frame")
            << QStringLiteral("T0000005891050000000000000000") << false << 0 << 0 << 0L;
        QTest::newRow("short line") << QStringLiteral("t0058") << true << 0 << 0 << 0L;
        QTest::newRow("sender not hex")
            << answer(0, 0x91, "000000000001").replace(7, 2, "zz") << true << 0 << 0x91 << 1L;
    }
    void parse() {
        QFETCH(QString, line);
        const frame_codec::parsed_line p = frame_codec::parse(line);
        QTEST(p.is_frame, "is_frame");
        if (p.is_frame) {
            QTEST(p.sender, "sender");
            QTEST(p.code, "code");
            QTEST(long(p.value), "value");
        }
    }

    void accepts_data() {
        QTest::addColumn<int>("sender");
        QTest::addColumn<int>("own_id");
        QTest::addColumn<bool>("accept_any");
        QTest::addColumn<bool>("accepted");
        QTest::newRow("own answer") << 5 << 5 << false << true;
        QTest::newRow("foreign sender dropped") << 6 << 5 << false << false;
        QTest::newRow("accept any takes foreign") << 6 << 5 << true << true;
        QTest::newRow("0xFA takes foreign") << 6 << 0xFA << false << true;
        QTest::newRow("0xFA takes sender 0") << 0 << 0xFA << false << true;
    }
    void accepts() {
        QFETCH(int, sender);
        QFETCH(int, own_id);
        QFETCH(bool, accept_any);
        QTEST(frame_codec::accepts(sender, own_id, accept_any), "accepted");
    }

    void wire_round_trip_data() {
        QTest::addColumn<long>("value");
        for (long v : {0L, 1L, -1L, -250L, 2147483647L, long(INT32_MIN), 4000000L}) {
            QTest::newRow(qPrintable(QString::number(v))) << v;
        }
    }
    void wire_round_trip() {
        QFETCH(long, value);
        const QString frame = frame_codec::compose(0x22, 0x91, frame_codec::to_wire(value));
        // Answer with the sender byte of the composed frame: the text is read back as sent.
        const frame_codec::parsed_line p = frame_codec::parse(frame.left(25));
        QCOMPARE(long(p.value), value);
    }
};

QTEST_GUILESS_MAIN(test_frame_codec)
#include "test_frame_codec.moc"
