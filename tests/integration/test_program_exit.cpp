// The `lumivox` program itself, started as an operator starts it, ends on SIGTERM, SIGINT and
// SIGHUP as it does when its window is closed: configuration saved, recording finished, every
// thread stopped, exit code 0. Checked with the serial link open (on the simulator) and with
// automatic connection retrying a missing adapter. The program runs with a home of its own.
#include "device_profiles.h"
#include "record_format.h"
#include "sim_session.h"

#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

#include <csignal>

class test_program_exit : public QObject {
    Q_OBJECT

private slots:
    void ends_cleanly_on_signal_data() {
        QTest::addColumn<int>("signal_number");
        QTest::addColumn<bool>("adapter_present");
        QTest::addColumn<bool>("from_menu");  // --user-dir: the per-user working directory
        QTest::newRow("SIGTERM, connected") << int(SIGTERM) << true << false;
        QTest::newRow("SIGINT, connected") << int(SIGINT) << true << false;
        QTest::newRow("SIGHUP (terminal closed), connected") << int(SIGHUP) << true << false;
        QTest::newRow("SIGTERM, adapter missing") << int(SIGTERM) << false << false;
        QTest::newRow("SIGTERM, started from the menu") << int(SIGTERM) << true << true;
    }

    void ends_cleanly_on_signal() {
        QFETCH(int, signal_number);
        QFETCH(bool, adapter_present);
        QFETCH(bool, from_menu);

        QTemporaryDir top;
        QVERIFY(top.isValid());
        // Started from the menu, the program works in the per-user directory, whatever the
        // directory it was started in (here: the start directory, which must stay untouched).
        QDir(top.path()).mkpath("start");
        const QDir dir(top.filePath(from_menu ? "config/lumivox/work" : "start"));
        sim_bus bus;
        QVERIFY(bus.add_device(7, 14));
        sim_pty line(bus);
        QVERIFY(line.open());
        QTimer clock;
        connect(&clock, &QTimer::timeout, this, [&bus] { bus.advance(10); });
        clock.start(10);

        const QString port = adapter_present ? line.slave_path() : dir.filePath("no-adapter");
        write_device_table(dir.path(), port, {7, 9}, true, {"Bench A", "Bench B"});

        QProcess program;
        program.setWorkingDirectory(top.filePath("start"));
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("QT_QPA_PLATFORM", "offscreen");
        env.insert("HOME", top.filePath("home"));
        env.insert("XDG_CONFIG_HOME", top.filePath("config"));
        program.setProcessEnvironment(env);
        const QString records = top.filePath("rec");
        QStringList arguments{"--record", records};
        if (from_menu) {
            arguments.append("--user-dir");
        }
        program.start(QStringLiteral(LUMIVOX_EXE), arguments);
        QVERIFY(program.waitForStarted());

        // The window is up (and the signal watch installed) once the recording's file is made,
        // after the configuration has been read.
        QFile recording;
        QTRY_VERIFY_WITH_TIMEOUT(!QDir(records).entryList({"lumivox-*.csv"}, QDir::Files).isEmpty(),
                                 10000);
        recording.setFileName(QDir(records).entryInfoList({"*.csv"}).first().filePath());
        QVERIFY(recording.open(QIODevice::ReadOnly));
        if (adapter_present) {
            // The device reports, the recorder has handed over to its file, and reports go on.
            QByteArray written;
            QTRY_VERIFY_WITH_TIMEOUT((written += recording.readAll()).contains(",reading,Current,"),
                                     10000);
            const int frames = bus.frames();
            QTRY_VERIFY_WITH_TIMEOUT(bus.frames() > frames + 50, 10000);
        }
        // Remove the file so that only the close can have written it again.
        QVERIFY(QFile::remove(dir.filePath("configs/config.ini")));

        QCOMPARE(::kill(static_cast<pid_t>(program.processId()), signal_number), 0);
        // The loop keeps the simulator answering while the program closes.
        QTRY_VERIFY_WITH_TIMEOUT(program.state() == QProcess::NotRunning, 10000);
        const QByteArray errors = program.readAllStandardError();

        QCOMPARE(program.exitStatus(), QProcess::NormalExit);
        QCOMPARE(program.exitCode(), 0);
        QVERIFY2(!errors.contains("QThread: Destroyed"), errors.constData());
        QVERIFY(QFile::exists(top.filePath("config/lumivox/lumivox.ini")));

        // The recording is complete: whole lines of samples under the header, and each reading
        // that stayed the same since it was last written is written once more at the end.
        QVERIFY(recording.seek(0));
        const QByteArray recorded = recording.readAll();
        QVERIFY(recorded.endsWith('\n'));
        QMap<QString, int> lines;  // per reading
        record_format::read_records(recorded, [&](const QList<QByteArray> &fields, int at) {
            device_sample sample;
            if (at == 1 ? fields.join(',') != record_format::header()
                        : !record_format::read_sample(fields, &sample)) {
                QTest::qFail(fields.join(',').constData(), __FILE__, __LINE__);
            } else if (at > 1 && sample.kind == panel_observation::reading) {
                ++lines[sample.quantity];
            }
            return true;
        });
        QCOMPARE(lines.isEmpty(), !adapter_present);
        for (auto it = lines.cbegin(); it != lines.cend(); ++it) {
            QVERIFY2(it.value() >= 2, qPrintable(it.key()));
        }
        QSettings saved(dir.filePath("configs/config.ini"), QSettings::IniFormat);
        QCOMPARE(saved.value("prev_port").toString(), port);
        QCOMPARE(saved.value("device_count").toInt(), 2);
        QCOMPARE(saved.value("device_1").toInt(), 9);
        QCOMPARE(saved.value("name_device_0").toString(), QStringLiteral("Bench A"));
        if (from_menu) {
            QCOMPARE(QDir(top.filePath("start")).entryList(QDir::NoDotAndDotDot | QDir::AllEntries),
                     QStringList());
        }
    }

    // --demo starts the simulator beside the program, connects to it in a scratch directory and
    // builds a panel for every modelled device; at the end both go.
    void demo_runs_on_its_own_simulator() {
        QTemporaryDir top;
        QVERIFY(top.isValid());
        QProcess program;
        program.setWorkingDirectory(top.path());
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("QT_QPA_PLATFORM", "offscreen");
        env.insert("HOME", top.filePath("home"));
        env.insert("XDG_CONFIG_HOME", top.filePath("config"));
        // The test waits on the lines the program writes as it places each panel.
        env.insert("QT_LOGGING_RULES", "default.debug=true");
        program.setProcessEnvironment(env);
        program.start(QStringLiteral(LUMIVOX_EXE), {"--demo"});
        QVERIFY(program.waitForStarted());

        // Each panel placed writes "popped <CAN ID>".
        const int devices = static_cast<int>(sim::modelled_types().size());
        QByteArray errors;
        QTRY_VERIFY2_WITH_TIMEOUT(
            (errors += program.readAllStandardError()).count("popped ") == devices,
            errors.constData(), 20000);
        const QRegularExpressionMatch where =
            QRegularExpression("working in (\\S+)").match(QString::fromLocal8Bit(errors));
        QVERIFY2(where.hasMatch(), errors.constData());
        const QString scratch = where.captured(1);
        QVERIFY(QFileInfo::exists(scratch + "/configs/config.ini"));

        QCOMPARE(::kill(static_cast<pid_t>(program.processId()), SIGTERM), 0);
        QVERIFY(program.waitForFinished(10000));
        QCOMPARE(program.exitCode(), 0);
        QVERIFY(!QFileInfo::exists(scratch));
        // Nothing was written where it was started.
        QCOMPARE(QDir(top.path()).entryList(QDir::NoDotAndDotDot | QDir::AllEntries),
                 QStringList());
    }
};

QTEST_GUILESS_MAIN(test_program_exit)
#include "test_program_exit.moc"
