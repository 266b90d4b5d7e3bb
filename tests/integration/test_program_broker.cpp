// The `lumivox` program publishing to a real Mosquitto broker that the test starts on a free
// loopback port with its own configuration, while the program polls simulated devices over a
// pseudo-terminal. A mosquitto_sub process is the subscriber.
#include "free_port.h"
#include "sim_device.h"
#include "sim_session.h"

#include <QDateTime>
#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonArray>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

#include <csignal>
#include <memory>

namespace {

constexpr int device_id = 7;
constexpr int device_type = 14;
constexpr int wait_ms = 15000;

bool run(const QString &program, const QStringList &arguments) {
    QProcess p;
    p.start(program, arguments);
    return p.waitForFinished(20000) && p.exitStatus() == QProcess::NormalExit && p.exitCode() == 0;
}

// A process whose output the test reads as it comes.
struct watched_process {
    QProcess process;
    QByteArray output;

    watched_process() { process.setProcessChannelMode(QProcess::MergedChannels); }
    ~watched_process() { stop(SIGKILL); }
    const QByteArray &text() {
        output += process.readAll();
        return output;
    }
    bool has(const QByteArray &wanted) { return text().contains(wanted); }
    void stop(int signal_number) {
        if (process.state() != QProcess::NotRunning) {
            ::kill(static_cast<pid_t>(process.processId()), signal_number);
            process.waitForFinished(10000);
        }
        output += process.readAll();
    }
};

}  // namespace

class test_program_broker : public QObject {
    Q_OBJECT

    QTemporaryDir dir;
    sim_bus bus;
    sim_pty *line = nullptr;
    QTimer clock;
    int port = 0;
    std::unique_ptr<watched_process> broker;

    QString path(const QString &name) const { return dir.filePath(name); }

    // The broker (Debian's mosquitto) on `port`, as `extra` configures it (anonymous and plain
    // unless it says else); false if it does not start.
    bool start_broker(const QByteArray &extra = "listener PORT 127.0.0.1\nallow_anonymous true\n") {
        QFile conf(path("broker.conf"));
        if (!conf.open(QIODevice::WriteOnly)) {
            return false;
        }
        // As root, the broker stays root to read the test's files.
        conf.write(QByteArray(extra).replace("PORT", QByteArray::number(port)) +
                   "persistence false\nlog_dest stderr\nlog_type all\nuser root\n");
        conf.close();
        broker = std::make_unique<watched_process>();
        broker->process.start(QStringLiteral("mosquitto"), {"-c", conf.fileName()});
        return broker->process.waitForStarted() &&
               QTest::qWaitFor([this] { return broker->has(" running"); }, wait_ms);
    }

    // A subscriber to everything the station publishes; `options` adds to the command line.
    std::unique_ptr<watched_process> subscribe(const QStringList &options = {}) {
        auto sub = std::make_unique<watched_process>();
        sub->process.start(QStringLiteral("mosquitto_sub"),
                           QStringList{"-h", "127.0.0.1", "-p", QString::number(port), "-t",
                                       "lumivox/test/#", "-v", "-V", "mqttv311"} +
                               options);
        sub->process.waitForStarted();
        return sub;
    }

    // The program with its own HOME, its settings file holding `settings`, and `environment`.
    std::unique_ptr<watched_process> start_program(const QStringList &arguments,
                                                   const QVariantMap &settings = {},
                                                   const QStringList &environment = {}) {
        const QString home = path("home");
        QDir(home).removeRecursively();
        QDir().mkpath(home + "/.config/lumivox");
        {
            QSettings ini(home + "/.config/lumivox/lumivox.ini", QSettings::IniFormat);
            for (auto s = settings.cbegin(); s != settings.cend(); ++s) {
                ini.setValue(s.key(), s.value());
            }
        }
        auto program = std::make_unique<watched_process>();
        program->process.setWorkingDirectory(dir.path());
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("QT_QPA_PLATFORM", "offscreen");
        env.insert("HOME", home);
        env.insert("XDG_CONFIG_HOME", home + "/.config");
        env.remove("LUMIVOX_MQTT_USER");
        env.remove("LUMIVOX_MQTT_PASSWORD");
        for (const QString &variable : environment) {
            env.insert(variable.section('=', 0, 0), variable.section('=', 1));
        }
        program->process.setProcessEnvironment(env);
        program->process.start(QStringLiteral(LUMIVOX_EXE), arguments);
        program->process.waitForStarted();
        return program;
    }

    // Polling goes on: the simulated bus keeps taking frames.
    void polling_goes_on() {
        const int frames = bus.frames();
        QTRY_VERIFY_WITH_TIMEOUT(bus.frames() > frames + 50, wait_ms);
    }

    // The payload of the first line for `topic` after `from` in `output`.
    static QByteArray payload(const QByteArray &output, const QByteArray &topic, int from = 0) {
        const int at = output.indexOf(topic + ' ', from);
        if (at < 0) {
            return {};
        }
        const int end = output.indexOf('\n', at);
        return output.mid(at + topic.size() + 1, end < 0 ? -1 : end - at - topic.size() - 1);
    }

private slots:
    void initTestCase() {
        QVERIFY(dir.isValid());
        QVERIFY(bus.add_device(device_id, device_type));
        line = start_sim_line(bus, clock, this);
        QVERIFY(line);
        write_device_table(dir.path(), line->slave_path(), {device_id}, true,
                           {QStringLiteral("Bench \"A\"")});
    }

    void init() {
        port = free_port();
        QVERIFY(port > 0);
    }

    void cleanup() {
        broker.reset();
        bus.find(device_id)->clear_alarm();
    }

    // Readings with units, retained status, bus, identity and alarms; the broker restarted and
    // publishing resumed with everything retained said again; the last will after SIGKILL.
    void publishes_resumes_and_leaves_a_will() {
        QVERIFY(start_broker());
        auto sub = subscribe();
        auto program =
            start_program({"--mqtt", QStringLiteral("mqtt://127.0.0.1:%1").arg(port), "--station",
                           "test"});
        const QByteArray root = "lumivox/test/";
        const QByteArray reading = root + "device/7/reading/current";
        QTRY_VERIFY_WITH_TIMEOUT(sub->has(reading + ' '), wait_ms);
        QVERIFY(sub->has(root + "status online"));
        QTRY_VERIFY_WITH_TIMEOUT(sub->has(root + "bus CONNECTED"), wait_ms);

        const QJsonObject sample = QJsonDocument::fromJson(payload(sub->output, reading)).object();
        QVERIFY2(sample.value("v").isDouble(), sub->output.constData());
        QVERIFY(!sample.value("unit").toString().isEmpty());
        const QDateTime t = QDateTime::fromString(sample.value("t").toString(), Qt::ISODateWithMs);
        QVERIFY(t.isValid() && qAbs(t.msecsTo(QDateTime::currentDateTime())) < 60000);
        const QJsonObject info =
            QJsonDocument::fromJson(payload(sub->output, root + "device/7/info")).object();
        QCOMPARE(info.value("name").toString(), QStringLiteral("Bench \"A\""));
        QCOMPARE(info.value("type").toInt(), device_type);
        QCOMPARE(info.value("state").toString(), QStringLiteral("found"));
        QVERIFY(!info.value("model").toString().isEmpty());

        QVERIFY(bus.find(device_id)->raise_alarm(1));
        QTRY_VERIFY_WITH_TIMEOUT(
            QJsonDocument::fromJson(payload(sub->text(), root + "device/7/alarm",
                                            sub->text().lastIndexOf(root + "device/7/alarm")))
                    .array()
                    .size() == 1,
            wait_ms);

        // A late subscriber is told only what is retained.
        auto late = subscribe({"--retained-only"});
        QTRY_VERIFY_WITH_TIMEOUT(late->has(root + "device/7/alarm [\""), wait_ms);
        QVERIFY(late->has(root + "status online"));
        QVERIFY(late->has(root + "bus CONNECTED"));
        QVERIFY(late->has(root + "device/7/info {"));
        QVERIFY(!late->has(root + "device/7/reading/"));

        // The broker goes away (forgetting everything) and comes back on the same port.
        broker->stop(SIGTERM);
        QTRY_VERIFY_WITH_TIMEOUT(program->has("broker: lost the connection"), wait_ms);
        QVERIFY(start_broker());
        auto after = subscribe();
        QTRY_VERIFY_WITH_TIMEOUT(after->has(reading + ' '), wait_ms);
        QTRY_VERIFY_WITH_TIMEOUT(after->has(root + "device/7/alarm [\""), wait_ms);
        QVERIFY(after->has(root + "device/7/info {"));
        QVERIFY(after->has(root + "bus CONNECTED"));

        program->stop(SIGKILL);
        QTRY_VERIFY_WITH_TIMEOUT(after->has(root + "status offline"), wait_ms);
    }

    // A URL that cannot be read, a broker that is not there, and a refused login: the program
    // says so and keeps polling.
    void problems_are_said_and_polling_goes_on_data() {
        QTest::addColumn<QString>("url");
        QTest::addColumn<bool>("broker_up");
        QTest::addColumn<QByteArray>("message");
        QTest::addColumn<bool>("remembered");
        QTest::newRow("wrong URL") << "http://127.0.0.1:PORT" << false
                                   << QByteArray("broker: Not publishing") << false;
        QTest::newRow("broker down") << "mqtt://127.0.0.1:PORT" << false
                                     << QByteArray("broker: cannot reach the broker") << true;
        QTest::newRow("refused login") << "mqtt://127.0.0.1:PORT" << true
                                       << QByteArray("broker: the broker at") << true;
    }

    void problems_are_said_and_polling_goes_on() {
        QFETCH(QString, url);
        QFETCH(bool, broker_up);
        QFETCH(QByteArray, message);
        QFETCH(bool, remembered);
        if (broker_up) {
            QVERIFY(run("mosquitto_passwd", {"-b", "-c", path("passwords"), "station", "right"}));
            QVERIFY(start_broker("listener PORT 127.0.0.1\nallow_anonymous false\npassword_file " +
                         QFile::encodeName(path("passwords")) + '\n'));
        }
        url.replace("PORT", QString::number(port));
        auto program = start_program({"--mqtt", url}, {{"mqtt/user", "station"}},
                                     {"LUMIVOX_MQTT_PASSWORD=wrong"});
        QTRY_VERIFY_WITH_TIMEOUT(program->has(message), wait_ms);
        QTRY_VERIFY_WITH_TIMEOUT(bus.frames() > 0, wait_ms);
        polling_goes_on();
        QCOMPARE(program->process.state(), QProcess::Running);
        QSettings ini(path("home/.config/lumivox/lumivox.ini"), QSettings::IniFormat);
        QCOMPARE(ini.value("mqtt/url").toString(), remembered ? url : QString());
        program->stop(SIGTERM);
        QCOMPARE(program->process.exitCode(), 0);
    }

    // TLS with a certificate the test makes, a login from the settings file, and "offline" said
    // by the program itself on a clean exit.
    void tls_and_a_clean_exit() {
        QVERIFY2(run("openssl", {"req", "-x509", "-newkey", "rsa:2048", "-nodes", "-days", "2",
                                 "-subj", "/CN=localhost", "-addext", "subjectAltName=DNS:localhost",
                                 "-keyout", path("key.pem"), "-out", path("cert.pem")}),
                 "openssl cannot make a certificate");
        QVERIFY(run("mosquitto_passwd", {"-b", "-c", path("passwords"), "station", "right"}));
        const QByteArray tls_port = QByteArray::number(free_port());
        QVERIFY(start_broker("per_listener_settings false\nallow_anonymous false\npassword_file " +
                     QFile::encodeName(path("passwords")) + "\nlistener PORT 127.0.0.1\nlistener " +
                     tls_port + " 127.0.0.1\ncertfile " + QFile::encodeName(path("cert.pem")) +
                     "\nkeyfile " + QFile::encodeName(path("key.pem")) + '\n'));
        // The subscriber listens on the plain port; the program goes through TLS.
        auto sub = subscribe({"-u", "station", "-P", "right"});
        auto program =
            start_program({"--mqtt", "mqtts://localhost:" + tls_port, "--station", "test"},
                          {{"mqtt/ca_file", path("cert.pem")},
                           {"mqtt/user", "station"},
                           {"mqtt/password", "right"}});
        QTRY_VERIFY_WITH_TIMEOUT(sub->has("lumivox/test/device/7/reading/"), wait_ms);
        program->stop(SIGTERM);
        QCOMPARE(program->process.exitCode(), 0);
        QTRY_VERIFY_WITH_TIMEOUT(sub->has("lumivox/test/status offline"), wait_ms);
        // Said by the program before its goodbye, not by the broker's will.
        QTRY_VERIFY2_WITH_TIMEOUT(broker->has("Received DISCONNECT from lumivox-test"),
                                  broker->output.constData(), wait_ms);
    }
};

QTEST_GUILESS_MAIN(test_program_broker)
#include "test_program_broker.moc"
