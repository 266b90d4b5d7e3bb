// The `lumivox` program itself, started as an operator starts it, ends on SIGTERM, SIGINT and
// SIGHUP as it does when its window is closed: configuration saved, recording finished, every
// thread stopped, exit code 0. Checked with the serial link open (on the simulator) and with
// automatic connection retrying a missing adapter. The program runs with a home of its own.
#include "record_format.h"
#include "sim_bus.h"
#include "sim_pty.h"

#include <QDir>
#include <QProcess>
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
        QTest::newRow("SIGTERM, connected") << int(SIGTERM) << true;
        QTest::newRow("SIGINT, connected") << int(SIGINT) << true;
        QTest::newRow("SIGHUP (terminal closed), connected") << int(SIGHUP) << true;
        QTest::newRow("SIGTERM, adapter missing") << int(SIGTERM) << false;
    }

    void ends_cleanly_on_signal() {
        QFETCH(int, signal_number);
        QFETCH(bool, adapter_present);

        QTemporaryDir dir;
        QVERIFY(dir.isValid());
        sim_bus bus;
        QVERIFY(bus.add_device(7, 14));
        sim_pty line(bus);
        QVERIFY(line.open());
        QTimer clock;
        connect(&clock, &QTimer::timeout, this, [&bus] { bus.advance(10); });
        clock.start(10);

        const QString port = adapter_present ? line.slave_path() : dir.filePath("no-adapter");
        QDir(dir.path()).mkpath("configs");
        {
            QSettings ini(dir.filePath("configs/config.ini"), QSettings::IniFormat);
            ini.setValue("prev_port", port);
            ini.setValue("mini_usb_mode", false);
            ini.setValue("autoconnection_mode", true);
            ini.setValue("device_count", 2);
            ini.setValue("device_0", 7);
            ini.setValue("name_device_0", "Bench A");
            ini.setValue("device_1", 9);
            ini.setValue("name_device_1", "Bench B");
        }

        QProcess program;
        program.setWorkingDirectory(dir.path());
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("QT_QPA_PLATFORM", "offscreen");
        env.insert("HOME", dir.filePath("home"));
        env.insert("XDG_CONFIG_HOME", dir.filePath("home/config"));
        program.setProcessEnvironment(env);
        program.start(QStringLiteral(LUMIVOX_EXE), {"--record", "rec"});
        QVERIFY(program.waitForStarted());

        // The window is up (and the signal watch installed) once the recording's file is made,
        // after the configuration has been read.
        QFile recording;
        QTRY_VERIFY_WITH_TIMEOUT(
            !QDir(dir.filePath("rec")).entryList({"lumivox-*.csv"}, QDir::Files).isEmpty(), 10000);
        recording.setFileName(
            QDir(dir.filePath("rec")).entryInfoList({"*.csv"}).first().filePath());
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
        QVERIFY(QFile::exists(dir.filePath("home/config/lumivox/lumivox.ini")));

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
    }
};

QTEST_GUILESS_MAIN(test_program_exit)
#include "test_program_exit.moc"
