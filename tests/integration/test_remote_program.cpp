// The command server in the whole program against the device simulator: the main window with its
// configuration file, serial link, devices and panels, served as the program serves them, and
// clients on plain sockets at 127.0.0.1 on a free port.
#include "command_server.h"
#include "device.h"
#include "panel_base.h"
#include "program.h"
#include "remote_status.h"
#include "sim_window.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QDir>
#include <QDoubleSpinBox>
#include <QSettings>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

#include <memory>

namespace {

constexpr int cw_id = 1;          // type 14
constexpr int picosecond_id = 2;  // type 20
constexpr int heater_id = 4;      // type 4: no emission switch
constexpr int absent_id = 9;      // configured, never on the bus

}  // namespace

class test_remote_program : public QObject, sim_window_fixture {
    Q_OBJECT

    std::unique_ptr<QSettings> remembered;
    std::unique_ptr<remote_service> service;

    panel_base *panel_of(int slot) const {
        return qobject_cast<panel_base *>(window->devices().at(slot)->current_panel());
    }
    remote_status *status() const { return window->findChild<remote_status *>(); }

    std::unique_ptr<QTcpSocket> connect_client() {
        auto socket = std::make_unique<QTcpSocket>();
        socket->connectToHost(QHostAddress::LocalHost, service->server->address().port);
        if (!socket->waitForConnected(5000)) {
            return nullptr;
        }
        return socket;
    }
    // Sends `text` with a line end and waits for one answer line (empty on none).
    static QByteArray ask(QTcpSocket &socket, const QByteArray &text) {
        socket.write(text + '\n');
        if (!QTest::qWaitFor([&socket] { return socket.canReadLine(); }, 5000)) {
            return {};
        }
        return socket.readLine().trimmed();
    }
    static int next_error(QTcpSocket &socket) {
        const QByteArray entry = ask(socket, "SYST:ERR?");
        return entry.isEmpty() ? 1 : entry.left(entry.indexOf(',')).toInt();
    }

private slots:
    void initTestCase() {
        QVERIFY(enter_scratch_dir());
        QVERIFY(bus.add_device(cw_id, 14));
        QVERIFY(bus.add_device(picosecond_id, 20));
        QVERIFY(bus.add_device(heater_id, 4));
        line = start_sim_line(bus, clock, this);
        QVERIFY(line);
        write_device_table(dir.path(), line->slave_path(),
                           {cw_id, picosecond_id, heater_id, absent_id});
        // A box nobody answers would stop the test: the server must never ask one.
        set_message_answerer([](const message_request &request) {
            qWarning("unexpected box: %s", qPrintable(request.text));
            return QMessageBox::No;
        });

        window = new main_window(QStringLiteral("Veltrano"), &registry);
        window->initialise_from_config();
        remembered = std::make_unique<QSettings>(dir.filePath("lumivox.ini"), QSettings::IniFormat);
        program_options options;
        options.listen = QStringLiteral("127.0.0.1:0");
        service = serve_window(*window, options, *remembered);
        QVERIFY(service);
        window->show();
        for (int slot : {0, 1, 2}) {
            QTRY_VERIFY_WITH_TIMEOUT(panel_of(slot) && panel_of(slot)->all_parameters_known(),
                                     15000);
        }
        QVERIFY(status());
        QVERIFY(status()->text().contains(service->server->address().text()));
    }

    void cleanupTestCase() {
        service.reset();
        leave_scratch_dir();
    }

    void lists_and_identifies() {
        auto client = connect_client();
        QVERIFY(client);
        QCOMPARE(ask(*client, "DEV:LIST?"), QByteArray("1,2,4,9"));
        QCOMPARE(ask(*client, "BUS:STATE?"), QByteArray("CONNECTED"));
        QVERIFY(ask(*client, "*IDN?").startsWith("Lumivox,Veltrano,"));
        for (int slot : {0, 1, 2}) {
            const device *dev = window->devices().at(slot);
            const QByteArray expected = QStringLiteral("\"%1\",\"%2\",%3,FOUND")
                                            .arg(dev->name(), panel_of(slot)->type_name())
                                            .arg(bus.find(dev->can_id())->type_id())
                                            .toUtf8();
            QCOMPARE(ask(*client, "DEV" + QByteArray::number(dev->can_id()) + ":IDN?"), expected);
        }
        QCOMPARE(ask(*client, "DEV9:IDN?"), QByteArray("\"Bench 3\",\"\",-1,UNKNOWN"));
        // Every reading the panel describes, with its unit.
        QByteArrayList keys;
        for (const reading_spec &r : panel_of(1)->readings()) {
            keys << '"' + r.key.toUtf8() + '"' << '"' + r.unit.toUtf8() + '"';
        }
        QCOMPARE(ask(*client, "DEV2:READ:LIST?"), keys.join(','));
    }

    // With the devices standing still, a reading is what the panel decodes from the device's
    // register.
    void reads_what_the_device_reports_data() {
        QTest::addColumn<int>("slot");
        QTest::addColumn<QString>("key");
        QTest::newRow("CW driver temperature") << 0 << "temperature";
        QTest::newRow("picosecond driver temperature") << 1 << "temperature";
        QTest::newRow("heater temperature") << 2 << "temperature";
    }
    void reads_what_the_device_reports() {
        QFETCH(int, slot);
        QFETCH(QString, key);
        clock.stop();
        const int id = window->devices().at(slot)->can_id();
        reading_spec described;
        for (const reading_spec &r : panel_of(slot)->readings()) {
            if (r.key == key) {
                described = r;
            }
        }
        const double reported = described.value(bus.find(id)->value(described.code - 128));
        auto client = connect_client();
        QVERIFY(client);
        const QByteArray ask_value = "DEV" + QByteArray::number(id) + ":READ? " + key.toUtf8();
        // Until a poll after the stop has come back.
        QTRY_COMPARE_WITH_TIMEOUT(ask(*client, ask_value).toDouble(), reported, 5000);
        const double age =
            ask(*client, "DEV" + QByteArray::number(id) + ":READ:AGE? " + key.toUtf8()).toDouble();
        QVERIFY2(age >= 0 && age < 5, qPrintable(QString::number(age)));
        clock.start(10);
    }

    void errors_data() {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("repeat");
        QTest::addColumn<QList<int>>("errors");
        using E = QList<int>;
        QTest::newRow("undefined header") << QByteArray("DEV1:FOO?") << 1 << E{-113};
        QTest::newRow("writes not allowed")
            << QByteArray("DEV1:SETP temperature,20") << 1 << E{-221};
        QTest::newRow("no such device") << QByteArray("DEV77:IDN?") << 1 << E{-241};
        QTest::newRow("no emission switch") << QByteArray("DEV4:OUTP?") << 1 << E{-221};
        QTest::newRow("unknown key") << QByteArray("DEV1:READ? nothing") << 1 << E{-224};
        QTest::newRow("missing parameter") << QByteArray("DEV1:READ?") << 1 << E{-109};
        QTest::newRow("syntax") << QByteArray("DEV1:READ? 'temp") << 1 << E{-100};
        QTest::newRow("binary bytes") << QByteArray("\x00\xff*IDN?", 7) << 1 << E{-101};
        QTest::newRow("line of 4096 bytes runs")
            << QByteArray("*CLS") + QByteArray(4092, ' ') << 1 << E{};
        QTest::newRow("line of 4096 bytes and a carriage return runs")
            << QByteArray("*CLS") + QByteArray(4092, ' ') + '\r' << 1 << E{};
        QTest::newRow("line of 4097 bytes")
            << QByteArray("*IDN?") + QByteArray(4092, ' ') << 1 << E{-223};
        QTest::newRow("line of 4097 bytes and a carriage return")
            << QByteArray("*IDN?") + QByteArray(4092, ' ') + '\r' << 1 << E{-223};
        QTest::newRow("line of 100000 bytes, one error") << QByteArray(100000, 'A') << 1 << E{-223};
        E overflow;
        for (int i = 0; i < 16; ++i) {
            overflow << (i < 15 ? -113 : -350);
        }
        QTest::newRow("queue overflow") << QByteArray("FOO") << 17 << overflow;
    }
    void errors() {
        QFETCH(QByteArray, text);
        QFETCH(int, repeat);
        QFETCH(QList<int>, errors);
        auto client = connect_client();
        QVERIFY(client);
        const int frames = bus.frames();
        for (int i = 0; i < repeat; ++i) {
            client->write(text + '\n');
        }
        QList<int> queued;
        for (int code = next_error(*client); code != 0 && queued.size() < 20;
             code = next_error(*client)) {
            queued << code;
        }
        QCOMPARE(queued, errors);
        // The client is served on, and polling went on meanwhile.
        QCOMPARE(ask(*client, "DEV:LIST?"), QByteArray("1,2,4,9"));
        QTRY_VERIFY(bus.frames() > frames + 10);
        QCOMPARE(panel_of(0)->queued_commands(), 0);
    }

    void writes_refused_until_allowed() {
        auto client = connect_client();
        QVERIFY(client);
        QCOMPARE(ask(*client, "SYST:REM?"), QByteArray("0"));
        client->write("DEV1:OUTP ON\n");
        QCOMPARE(next_error(*client), -221);
        QCOMPARE(panel_of(0)->queued_commands(), 0);
        // The operator's switch in the status bar, remembered for the next runs.
        auto *box = status()->findChild<QCheckBox *>("remote_writes_box");
        QVERIFY(box);
        box->click();
        QCOMPARE(ask(*client, "SYST:REM?"), QByteArray("1"));
        QVERIFY(status()->text().contains("WRITES ALLOWED"));
        QCOMPARE(remembered->value("remote/writes_allowed").toBool(), true);
    }

    // Written as the operator's Enter and Yes write it: the device takes the wire value, the
    // panel's set-point widget shows the value.
    void setpoint_reaches_device_and_panel_data() {
        QTest::addColumn<int>("slot");
        QTest::addColumn<QByteArray>("key");
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<int>("code");
        QTest::addColumn<int>("wire");
        QTest::newRow("CW temperature")
            << 0 << QByteArray("temperature") << QByteArray("21.5") << 18 << 215;
        QTest::newRow("heater temperature, exponent form")
            << 2 << QByteArray("temperature") << QByteArray("6.0E1") << 18 << 600;
    }
    void setpoint_reaches_device_and_panel() {
        QFETCH(int, slot);
        QFETCH(QByteArray, key);
        QFETCH(QByteArray, value);
        QFETCH(int, code);
        QFETCH(int, wire);
        auto client = connect_client();
        QVERIFY(client);
        const QByteArray device = "DEV" + QByteArray::number(window->devices().at(slot)->can_id());
        QCOMPARE(ask(*client, device + ":SETP " + key + ',' + value + ";*OPC?"), QByteArray("1"));
        QTRY_COMPARE_WITH_TIMEOUT(bus.find(window->devices().at(slot)->can_id())->set_point(code),
                                  wire, 5000);
        QString widget;
        for (const panel_base::setpoint_entry &s : panel_of(slot)->setpoints()) {
            widget = s.key == QString::fromUtf8(key) ? s.widget : widget;
        }
        auto *spin = panel_of(slot)->findChild<QDoubleSpinBox *>(widget);
        QVERIFY(spin);
        QCOMPARE(spin->value(), value.toDouble());
        QCOMPARE(ask(*client, device + ":SETP? " + key).toDouble(), value.toDouble());
        QCOMPARE(next_error(*client), 0);
    }

    void emission_as_the_switch() {
        auto client = connect_client();
        QVERIFY(client);
        client->write("DEV1:OUTP ON\n");
        QTRY_COMPARE_WITH_TIMEOUT(bus.find(cw_id)->value(16), 1, 5000);
        QTRY_COMPARE_WITH_TIMEOUT(ask(*client, "DEV1:OUTP?"), QByteArray("1"), 5000);
        // The configuration cannot be written while emission is on, as in the window.
        client->write("DEV1:PAR 67,5\n");
        QCOMPARE(next_error(*client), -221);
        client->write("DEV1:OUTPUT:STATE OFF\n");
        QTRY_COMPARE_WITH_TIMEOUT(bus.find(cw_id)->value(16), 0, 5000);
        QTRY_COMPARE_WITH_TIMEOUT(ask(*client, "DEV1:OUTP?"), QByteArray("0"), 5000);
    }

    void parameter_written_read_back_and_stored() {
        auto client = connect_client();
        QVERIFY(client);
        QTRY_VERIFY_WITH_TIMEOUT(panel_of(0)->parameters_writable(), 5000);
        const qint32 before = bus.find(cw_id)->value(67);
        client->write("DEV1:PAR 67,5\n");
        QTRY_COMPARE_WITH_TIMEOUT(ask(*client, "DEV1:PAR? 67"), QByteArray("5"), 5000);
        QVERIFY(bus.find(cw_id)->value(67) != before);
        client->write("DEV1:PAR:STOR\n");
        QTRY_COMPARE_WITH_TIMEOUT(bus.find(cw_id)->stored(67), bus.find(cw_id)->value(67), 5000);
        QCOMPARE(next_error(*client), 0);
    }

    void two_clients_at_once() {
        auto first = connect_client();
        auto second = connect_client();
        QVERIFY(first && second);
        QTRY_COMPARE(status()->text(), QStringLiteral("Remote: 2 clients, WRITES ALLOWED"));
        // Each has its own error queue.
        first->write("FOO\n");
        QCOMPARE(next_error(*second), 0);
        QCOMPARE(next_error(*first), -113);
        // Queries sent in a row come back in order while the other client is answered.
        QByteArray burst;
        for (int i = 0; i < 200; ++i) {
            burst += "DEV1:READ:AGE? temperature;*OPC?;DEV:LIST?\n";
        }
        first->write(burst);
        QCOMPARE(ask(*second, "BUS:STAT?"), QByteArray("CONNECTED"));
        for (int i = 0; i < 200; ++i) {
            QVERIFY(QTest::qWaitFor([&first] { return first->canReadLine(); }, 5000));
            QVERIFY(first->readLine().trimmed().endsWith(";1;1,2,4,9"));
        }
    }

    void client_vanishing_mid_line() {
        auto watcher = connect_client();
        QVERIFY(watcher);
        const QByteArray before = ask(*watcher, "DEV1:SETP? temperature");
        const qint32 wire_before = bus.find(cw_id)->set_point(18);
        auto leaving = connect_client();
        QVERIFY(leaving);
        QTRY_COMPARE(status()->text(), QStringLiteral("Remote: 2 clients, WRITES ALLOWED"));
        leaving->write("DEV1:SETP temperature,30");
        leaving->flush();
        leaving->abort();
        QTRY_COMPARE(status()->text(), QStringLiteral("Remote: 1 client, WRITES ALLOWED"));
        QCOMPARE(ask(*watcher, "DEV1:SETP? temperature"), before);
        QCOMPARE(panel_of(0)->queued_commands(), 0);
        QCOMPARE(bus.find(cw_id)->set_point(18), wire_before);
    }

    // A device gone silent answers as lost, with the model and type it had; back, as found.
    void lost_device_keeps_its_model() {
        auto client = connect_client();
        QVERIFY(client);
        const QByteArray found = ask(*client, "DEV4:IDN?");
        QVERIFY(found.endsWith(",4,FOUND"));
        QByteArray lost = found;
        lost.replace("FOUND", "LOST");
        bus.find(heater_id)->set_silent(true);
        QTRY_COMPARE_WITH_TIMEOUT(ask(*client, "DEV4:IDN?"), lost, 15000);
        client->write("DEV4:READ:LIST?\n");
        QCOMPARE(next_error(*client), -241);
        bus.find(heater_id)->set_silent(false);
        QTRY_COMPARE_WITH_TIMEOUT(ask(*client, "DEV4:IDN?"), found, 15000);
    }

    void ninth_client_is_closed() {
        QTRY_COMPARE(service->server->clients(), 0);  // the earlier tests' clients have gone
        std::vector<std::unique_ptr<QTcpSocket>> clients;
        for (int i = 0; i < command_server::max_clients; ++i) {
            clients.push_back(connect_client());
            QVERIFY(clients.back());
        }
        QTRY_COMPARE(service->server->clients(), command_server::max_clients);
        auto extra = connect_client();
        if (extra) {  // accepted by the system, then closed by the server
            QTRY_COMPARE(extra->state(), QAbstractSocket::UnconnectedState);
        }
        QCOMPARE(service->server->clients(), command_server::max_clients);
        for (const auto &c : clients) {
            QCOMPARE(ask(*c, "*OPC?"), QByteArray("1"));
        }
    }
};

QTEST_MAIN(test_remote_program)
#include "test_remote_program.moc"
