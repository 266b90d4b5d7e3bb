// The command language as a table: lines sent to one session over an instrument with fixed
// contents, the answers, the error queue afterwards and what reached the instrument.
#include "command_session.h"
#include "listen_address.h"

#include <QtTest>

namespace {

// Device 1 is found, 2 lost, 5 never found. Writes are recorded as text.
class fake_instrument : public instrument {
public:
    bool allowed = false;
    bool emission = false;
    QStringList calls;

    QString identity() const override { return QStringLiteral("Lumivox,Test,bench,v5.0"); }
    bool writes_allowed() const override { return allowed; }
    bool bus_connected() const override { return true; }
    QVector<int> device_ids() const override { return {1, 2, 5}; }
    std::optional<device_info> device(int id) const override {
        switch (id) {
            case 1: return device_info{"Bench A", "CW", 14, presence::found};
            case 2: return device_info{"Bench \"B\"", "PS", 20, presence::lost};
            case 5: return device_info{"Ghost", "", -1, presence::unknown};
            default: return std::nullopt;
        }
    }
    QVector<quantity> readings(int) const override {
        return {{"current", "mA"}, {"temperature", QString::fromUtf8("°C")}};
    }
    std::optional<sample> reading(int, const QString &key) const override {
        if (key == QLatin1String("current")) {
            return sample{12.5, 0.25};
        }
        return std::nullopt;
    }
    QVector<setpoint_info> setpoints(int) const override {
        return {{"current", "mA", 0, 1500},
                {"temperature", QString::fromUtf8("°C"), 15, 35},
                {"frequency", "kHz", 1, 1000}};
    }
    std::optional<double> setpoint_value(int, const QString &key) const override {
        return key == QLatin1String("current") ? std::optional<double>(250) : std::nullopt;
    }
    outcome write_setpoint(int id, const QString &key, double value) override {
        if (key == QLatin1String("frequency")) {
            return outcome::not_allowed;  // a disabled widget
        }
        for (const setpoint_info &s : setpoints(id)) {
            if (s.key == key && (value < s.minimum || value > s.maximum)) {
                return outcome::out_of_range;
            }
        }
        calls << QStringLiteral("setpoint %1 %2 %3").arg(id).arg(key).arg(value);
        return outcome::queued;
    }
    std::optional<bool> output(int) const override { return emission; }
    bool set_output(int id, bool on) override {
        emission = on;
        calls << QStringLiteral("output %1 %2").arg(id).arg(on ? "on" : "off");
        return true;
    }
    QVector<parameter_info> parameters(int) const override {
        return {{81, "CAN ID", 1.0}, {37, "Max current, mA", std::nullopt}};
    }
    outcome write_parameter(int id, int code, double value) override {
        if (code != 81 && code != 37) {
            return outcome::unknown_key;
        }
        if (value < 0) {
            return outcome::out_of_range;
        }
        calls << QStringLiteral("parameter %1 %2 %3").arg(id).arg(code).arg(value);
        return outcome::queued;
    }
    bool store_parameters(int id) override {
        calls << QStringLiteral("store %1").arg(id);
        return true;
    }
};

}  // namespace

class test_remote_commands : public QObject {
    Q_OBJECT

private slots:
    void lines_data() {
        QTest::addColumn<bool>("allowed");
        QTest::addColumn<QByteArrayList>("lines");
        QTest::addColumn<QByteArray>("answers");
        QTest::addColumn<QList<int>>("errors");
        QTest::addColumn<QStringList>("calls");
        using L = QByteArrayList;
        using E = QList<int>;
        const QStringList none;

        QTest::newRow("identity, operation complete")
            << false << L{"*idn?;*OPC?"} << QByteArray("Lumivox,Test,bench,v5.0;1\n") << E{}
            << none;
        QTest::newRow("long and short forms in any case, leading colon")
            << false << L{"DEVICE:LIST?;dev:list?;:DeV:LiSt?"}
            << QByteArray("1,2,5;1,2,5;1,2,5\n") << E{} << none;
        QTest::newRow("neither form of the mnemonic")
            << false << L{"DEVI:LIST?", "DEVICES:LIST?"} << QByteArray() << E{-113, -113}
            << none;
        QTest::newRow("bus, remote, optional node")
            << false << L{"BUS:STAT?;SYSTEM:REMOTE?", "SYST:ERR:NEXT?"}
            << QByteArray("CONNECTED;0\n0,\"No error\"\n") << E{} << none;
        QTest::newRow("device identities, quotes doubled")
            << false << L{"DEV1:IDN?;DEV2:IDN?;DEV5:IDN?"}
            << QByteArray("\"Bench A\",\"CW\",14,FOUND;\"Bench \"\"B\"\"\",\"PS\",20,LOST;"
                          "\"Ghost\",\"\",-1,UNKNOWN\n")
            << E{} << none;
        QTest::newRow("no such device, device not on the bus")
            << false << L{"DEV7:IDN?", "DEV2:READ:LIST?", "DEV5:SETP? current"} << QByteArray()
            << E{-241, -241, -241} << none;
        QTest::newRow("reading list, values, ages, not yet reported")
            << false
            << L{"DEV1:READ:LIST?",
                 "DEV1:READ? current;READ:AGE? CURRENT;READ? temperature;READ:AGE? "
                 "\"temperature\""}
            << QByteArray("\"current\",\"mA\",\"temperature\",\"°C\"\n12.5;0.25;NAN;NAN\n")
            << E{} << none;
        QTest::newRow("continuing from the previous header's nodes")
            << false << L{"DEV1:READ:LIST?;SETP? current;:DEV:LIST?;BUS:STAT?"}
            << QByteArray("\"current\",\"mA\",\"temperature\",\"°C\";250;1,2,5;CONNECTED\n")
            << E{} << none;
        QTest::newRow("set-point list and value")
            << false << L{"DEV1:SETP:LIST?;SETP? 'current'"}
            << QByteArray("\"current\",\"mA\",0,1500,\"temperature\",\"°C\",15,35,"
                          "\"frequency\",\"kHz\",1,1000;250\n")
            << E{} << none;
        QTest::newRow("set-points in every number form")
            << true
            << L{"DEV1:SETP current,1.5E2", "DEV1:SETPOINT current,#H64", "dev1:setp current,+.5",
                 "DEV1:SETP current,#b11", "DEV1:SETP current,#Q17", "DEV1:SETP current , 7 ",
                 "DEV1:SETP CURRENT,MAX", "DEV1:SETP temperature,minimum"}
            << QByteArray() << E{}
            << QStringList{"setpoint 1 current 150",  "setpoint 1 current 100",
                           "setpoint 1 current 0.5",  "setpoint 1 current 3",
                           "setpoint 1 current 15",   "setpoint 1 current 7",
                           "setpoint 1 current 1500", "setpoint 1 temperature 15"};
        QTest::newRow("set-point out of range, disabled, unknown")
            << true
            << L{"DEV1:SETP current,1500.1", "DEV1:SETP current,INF", "DEV1:SETP frequency,5",
                 "DEV1:SETP voltage,1", "DEV1:READ? voltage"}
            << QByteArray() << E{-222, -222, -221, -224, -224} << none;
        QTest::newRow("writes refused until allowed")
            << false
            << L{"DEV1:SETP current,5", "DEV1:OUTP ON", "DEV1:PAR 81,2", "DEV1:PAR:STOR",
                 "DEV1:OUTP?"}
            << QByteArray("0\n") << E{-221, -221, -221, -221} << none;
        QTest::newRow("output as the switch")
            << true << L{"DEV1:OUTP ON;OUTP?;:DEV1:OUTP:STAT 0;OUTPUT:STATE?", "DEV1:OUTP 1.0"}
            << QByteArray("1;0\n") << E{}
            << QStringList{"output 1 on", "output 1 off", "output 1 on"};
        QTest::newRow("output neither on nor off")
            << true << L{"DEV1:OUTP 2", "DEV1:OUTP maybe"} << QByteArray() << E{-222, -104}
            << none;
        QTest::newRow("parameters")
            << true
            << L{"DEV1:PAR:LIST?;PAR? 81;PAR? 37", "DEV1:PAR 37,1500;PAR:STOR",
                 "DEV1:PAR 99,1", "DEV1:PAR 37,-1", "DEV1:PAR 37.5,1", "DEV1:PAR? 12"}
            << QByteArray("81,\"CAN ID\",1,37,\"Max current, mA\",NAN;1;NAN\n")
            << E{-224, -222, -104, -224}
            << QStringList{"parameter 1 37 1500", "store 1"};
        QTest::newRow("missing and surplus parameters")
            << true << L{"DEV1:SETP current", "DEV1:READ?", "*IDN? 1", "DEV1:SETP current,1,2"}
            << QByteArray() << E{-109, -109, -108, -108} << none;
        QTest::newRow("data type: not a number, a number as a string")
            << true << L{"DEV1:SETP current,abc", "DEV1:SETP current,\"5\"", "DEV1:SETP current,1e"}
            << QByteArray() << E{-104, -104, -104} << none;
        QTest::newRow("syntax")
            << true
            << L{"DEV1:SETP current,\"open", "DEV1::READ? current", "DEV1:SETP current,,1",
                 "DEV1:SETP current 5", "*I-N?"}
            << QByteArray() << E{-100, -100, -100, -100, -100} << none;
        QTest::newRow("undefined headers")
            << false << L{"DEV:IDN?", "DEV1:LIST?", "FOO?", "DEV1:SETP:LIST", "DEV1234567:IDN?"}
            << QByteArray() << E{-113, -113, -113, -113, -100} << none;
        QTest::newRow("bytes that are not printable ASCII: nothing runs")
            << true << L{"DEV1:SETP current,1\x01", QByteArray("DEV1:SETP current,2\0", 20),
                         "DEV1:SETP current,3\xc2\xb0"}
            << QByteArray() << E{-101, -101, -101} << none;
        QTest::newRow("a failed command ends its line, answers before it stay")
            << true << L{"DEV:LIST?;DEV1:SETP current,9999;OUTP ON;BUS:STAT?"}
            << QByteArray("1,2,5\n") << E{-222} << none;
        QTest::newRow("blank units and lines")
            << false << L{"", "  ", ";;*OPC?;"} << QByteArray("1\n") << E{} << none;
        QTest::newRow("clear status") << false << L{"FOO", "BAR;*CLS", "*CLS"} << QByteArray()
                                      << E{} << none;
        L overflow;
        E kept;
        for (int i = 0; i < 20; ++i) {
            overflow << "FOO";
            kept << (i < 15 ? -113 : -350);
        }
        kept.erase(kept.begin() + 16, kept.end());
        QTest::newRow("queue overflow keeps the oldest, the newest becomes -350")
            << false << overflow << QByteArray() << kept << none;
    }

    void lines() {
        QFETCH(bool, allowed);
        QFETCH(QByteArrayList, lines);
        QFETCH(QByteArray, answers);
        QFETCH(QList<int>, errors);
        QFETCH(QStringList, calls);

        fake_instrument target;
        target.allowed = allowed;
        command_session session(target);
        QByteArray answered;
        for (const QByteArray &line : qAsConst(lines)) {
            answered += session.run(line);
        }
        QCOMPARE(QString::fromUtf8(answered), QString::fromUtf8(answers));
        QCOMPARE(target.calls, calls);

        QList<int> queued;
        for (int i = 0; i <= command_session::error_queue_size; ++i) {
            const QByteArray entry = session.run("SYST:ERR?");
            const int code = entry.left(entry.indexOf(',')).toInt();
            QVERIFY2(entry.endsWith("\"\n"), entry.constData());
            if (code == 0) {
                QCOMPARE(entry, QByteArray("0,\"No error\"\n"));
                break;
            }
            queued << code;
        }
        QCOMPARE(queued, errors);
    }

    void error_texts() {
        fake_instrument target;
        command_session session(target);
        session.run("DEV1:SETP current,5;FOO");
        session.run("FOO");
        QCOMPARE(session.run("SYST:ERR?"),
                 QByteArray("-221,\"Settings conflict;remote writes are not allowed\"\n"));
        QCOMPARE(session.run("SYST:ERR?"), QByteArray("-113,\"Undefined header;FOO\"\n"));
        target.allowed = true;
        session.run("DEV1:SETP temperature,40");
        QCOMPARE(session.run("SYST:ERR?"),
                 QByteArray("-222,\"Data out of range;temperature from 15 to 35 °C\"\n"));
    }

    void listen_addresses_data() {
        QTest::addColumn<QString>("given");
        QTest::addColumn<QString>("bound");  // empty: refused
        QTest::addColumn<bool>("loopback");
        QTest::newRow("port alone: loopback") << "5025" << "127.0.0.1:5025" << true;
        QTest::newRow("any free port") << "0" << "127.0.0.1:0" << true;
        QTest::newRow("every IPv4 address") << "0.0.0.0:5025" << "0.0.0.0:5025" << false;
        QTest::newRow("one interface") << "192.168.4.20:80" << "192.168.4.20:80" << false;
        QTest::newRow("IPv6 loopback") << "[::1]:5025" << "[::1]:5025" << true;
        QTest::newRow("IPv6 without brackets") << "::1:5025" << QString() << false;
        QTest::newRow("IPv4 in brackets") << "[127.0.0.1]:5025" << QString() << false;
        QTest::newRow("host name") << "localhost:5025" << QString() << false;
        QTest::newRow("three numbers") << "1.2.3:5025" << QString() << false;
        QTest::newRow("a number too large") << "1.2.3.256:5025" << QString() << false;
        QTest::newRow("port too large") << "65536" << QString() << false;
        QTest::newRow("not a port") << "50x" << QString() << false;
        QTest::newRow("signed port") << "+5025" << QString() << false;
        QTest::newRow("empty address") << ":5025" << QString() << false;
    }

    void listen_addresses() {
        QFETCH(QString, given);
        QFETCH(QString, bound);
        QFETCH(bool, loopback);
        QString error;
        const std::optional<listen_address> where = listen_address::parse(given, &error);
        QCOMPARE(where.has_value(), !bound.isEmpty());
        if (where) {
            QCOMPARE(where->text(), bound);
            QCOMPARE(where->loopback(), loopback);
        } else {
            QVERIFY(!error.isEmpty());
        }
    }
};

QTEST_GUILESS_MAIN(test_remote_commands)
#include "test_remote_commands.moc"
