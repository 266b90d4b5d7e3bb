// `lumivox --backup` and `lumivox --restore` started as a service script starts them, against
// simulated devices over a pseudo-terminal: their exit codes with every device present and with
// one missing, and what they leave on the devices and on disk.
#include "device_settings.h"
#include "sim_session.h"

#include <QDir>
#include <QProcess>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

namespace {

constexpr int cw_id = 1;       // a CW driver (type 14)
constexpr int box_id = 2;      // a picosecond box (type 26)
constexpr int missing_id = 9;  // in the device table, not on the bus

}  // namespace

class test_device_service : public QObject {
    Q_OBJECT

    QTemporaryDir dir;
    sim_bus bus;
    sim_pty *line = nullptr;
    QTimer clock;
    QString cw_file;  // the CW driver's rows as --backup saved them
    QByteArray out;
    QByteArray err;

    void configure(const QList<int> &ids) {
        QStringList names;
        for (int n = 0; n < ids.size(); ++n) {
            names << QStringLiteral("Line %1").arg(n);
        }
        // Without automatic connection: the run connects all the same.
        write_device_table(dir.path(), line->slave_path(), ids, false, names);
    }

    // Runs the program in the test's directory (its own HOME, no display, no platform chosen)
    // while the simulator answers; the exit code, or -1 when it did not end.
    int run(const QStringList &arguments) {
        QProcess program;
        program.setWorkingDirectory(dir.path());
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        for (const char *name : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"}) {
            env.remove(QString::fromLatin1(name));
        }
        env.insert("HOME", dir.path());
        env.insert("XDG_CONFIG_HOME", dir.filePath(QStringLiteral("config-home")));
        program.setProcessEnvironment(env);
        QSignalSpy finished(&program, qOverload<int, QProcess::ExitStatus>(&QProcess::finished));
        program.start(QStringLiteral(LUMIVOX_EXE), arguments);
        if (!program.waitForStarted() || !finished.wait(30000)) {
            program.kill();
            program.waitForFinished();
            return -1;
        }
        out = program.readAllStandardOutput();
        err = program.readAllStandardError();
        return program.exitStatus() == QProcess::NormalExit ? program.exitCode() : -1;
    }

private slots:
    void initTestCase() {
        qRegisterMetaType<QProcess::ExitStatus>();
        QVERIFY(dir.isValid());
        QVERIFY(bus.add_device(cw_id, 14));
        QVERIFY(bus.add_device(box_id, 26));
        line = start_sim_line(bus, clock, this);
        QVERIFY(line);

        configure({cw_id});
        QCOMPARE(run({"--backup", "first"}), 0);
        const QStringList saved = QDir(dir.filePath("first")).entryList({"*.json"});
        QCOMPARE(saved.size(), 1);
        cw_file = dir.filePath("first/" + saved.first());
    }

    void backup_exit_codes_data() {
        QTest::addColumn<QList<int>>("ids");
        QTest::addColumn<int>("code");
        QTest::addColumn<int>("files");
        QTest::newRow("all present") << QList<int>{cw_id, box_id} << 0 << 2;
        QTest::newRow("a device missing") << QList<int>{cw_id, missing_id, box_id} << 5 << 2;
    }
    void backup_exit_codes() {
        QFETCH(QList<int>, ids);
        QFETCH(int, code);
        QFETCH(int, files);
        configure(ids);
        const QString target = QStringLiteral("backup-%1").arg(QTest::currentDataTag());
        QCOMPARE(run({"--backup", target, "--timeout", "4"}), code);

        // One file per device found, named after its CAN id, holding the simulator's integers.
        const QStringList saved = QDir(dir.filePath(target)).entryList({"*.json"});
        QCOMPARE(saved.size(), files);
        for (const QString &name : saved) {
            const auto read = device_settings::read_file(dir.filePath(target + "/" + name));
            QVERIFY2(read.settings, qPrintable(read.error));
            QVERIFY(name.startsWith(QStringLiteral("can%1-").arg(read.settings->can_id, 3, 10,
                                                                 QLatin1Char('0'))));
            QVERIFY(out.contains(name.toUtf8()));
            for (const device_settings::row &row : read.settings->rows) {
                QCOMPARE(row.wire, qint64(bus.find(read.settings->can_id)->value(row.code)));
            }
        }
        QCOMPARE(err.contains("CAN ID 9"), code != 0);
    }

    // The CW driver's maximum current is changed on the device before each run (unless the row
    // says otherwise); the file holds 1800.0 mA.
    void restore_exit_codes_data() {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<bool>("change_first");
        QTest::addColumn<int>("code");
        QTest::addColumn<int>("max_current_after");
        const QStringList cw = {"--restore", cw_file, "--can-id", QString::number(cw_id)};
        QTest::newRow("rows differ, no --yes") << cw << true << 4 << 12000;
        QTest::newRow("--yes") << cw + QStringList{"--yes"} << true << 0 << 18000;
        QTest::newRow("nothing differs") << cw << false << 0 << 18000;
        QTest::newRow("device missing")
            << QStringList{"--restore", cw_file, "--can-id", QString::number(missing_id), "--yes",
                           "--timeout", "2"}
            << true << 5 << 12000;
        QTest::newRow("another type's file")
            << QStringList{"--restore", cw_file, "--can-id", QString::number(box_id), "--yes"}
            << true << 3 << 12000;
        QTest::newRow("no --can-id") << QStringList{"--restore", cw_file} << true << 2 << 12000;
        QFile good(cw_file);
        QVERIFY(good.open(QIODevice::ReadOnly));
        QFile damaged(dir.filePath("damaged.json"));
        QVERIFY(damaged.open(QIODevice::WriteOnly));
        damaged.write(good.readAll().replace("\"wire\": 18000,", "\"wire\": 18000;"));
        damaged.close();
        QTest::newRow("damaged file")
            << QStringList{"--restore", damaged.fileName(), "--can-id", "1", "--yes"} << true << 3
            << 12000;
    }
    void restore_exit_codes() {
        QFETCH(QStringList, arguments);
        QFETCH(bool, change_first);
        QFETCH(int, code);
        QFETCH(int, max_current_after);
        configure({cw_id, box_id, missing_id});
        sim_device *cw = bus.find(cw_id);
        if (change_first) {
            cw->handle(37, 12000);
        }
        QCOMPARE(run(arguments), code);
        QCOMPARE(cw->value(37), max_current_after);
        if (code == 0 && change_first) {
            QCOMPARE(cw->stored(37), max_current_after);  // stored, not only written
        }
        if (code == 4) {
            QVERIFY(out.contains("* Max current, mA"));
        }
    }
};

QTEST_GUILESS_MAIN(test_device_service)
#include "test_device_service.moc"
