// The configuration file and the device table: loading, first run, saving on close, Apply, row
// numbering and mini USB mode.
#include "test_app_support.h"

class test_main_window_config : public QObject {
    Q_OBJECT

private slots:
    // What a stored file (or none) turns into: devices, table rows, mode and port; closing saves.
    void loading_data() {
        QTest::addColumn<QByteArray>("ini");
        QTest::addColumn<QList<int>>("device_ids");
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<QList<int>>("table_ids");
        QTest::addColumn<bool>("mini");
        QTest::addColumn<QString>("port");
        QTest::newRow("first run: no file") << QByteArray() << QList<int>{1} << QStringList{"name"}
                                            << QList<int>{1} << true << QString();
        QTest::newRow("three devices, key of device 1 missing")
            << QByteArray(
                   "[General]\nprev_port=ttyUSB3\nmini_usb_mode=false\ndevice_count=3\n"
                   "device_0=5\nname_device_0=Seed\nname_device_1=Amplifier\n"
                   "device_2=200\nname_device_2=Heater\n")
            << QList<int>{5, 0, 200} << QStringList{"Seed", "Amplifier", "Heater"}
            << QList<int>{5, 1, 200} << false << QStringLiteral("ttyUSB3");
    }
    void loading() {
        QFETCH(QByteArray, ini);
        QFETCH(QList<int>, device_ids);
        QFETCH(QStringList, names);
        QFETCH(QList<int>, table_ids);
        QFETCH(bool, mini);
        QFETCH(QString, port);
        scratch_dir dir(ini);
        auto window = loaded_window();
        QCOMPARE(device_can_ids(*window), device_ids);
        for (int i = 0; i < names.size(); ++i) {
            const device *dev = window->devices().at(i);
            QCOMPARE(dev->name(), names.at(i));
            QCOMPARE(widget<QTableWidget>(*window, "device_table")->item(i, 1)->text(),
                     names.at(i));
            QCOMPARE(can_id_spin(*window, i)->value(), table_ids.at(i));
            QCOMPARE(dev->slot(), i);
            QCOMPARE(dev->accept_any_sender(), mini);
        }
        QCOMPARE(window->containers().size(), device_ids.size());
        QCOMPARE(widget<QCheckBox>(*window, "mini_usb_mode_checkbox")->isChecked(), mini);
        QCOMPARE(window->serial_link()->port_name(), port);
        QCOMPARE(QFile::exists("configs/config.ini"), !ini.isNull());  // loading writes nothing
        window->close();  // creates the folder and the file when there were none
        QVERIFY(QFile::exists("configs/config.ini"));
    }

    void save_then_load_round_trip() {
        // A stale key and a longer device list than what will be saved.
        scratch_dir dir(
            "[General]\njunk=1\nprev_port=ttyACM0\nmini_usb_mode=false\ndevice_count=4\n"
            "device_0=1\ndevice_1=2\ndevice_2=3\ndevice_3=4\n");
        {
            auto window = loaded_window();
            QTableWidget *table = widget<QTableWidget>(*window, "device_table");
            table->item(0, 1)->setText(QStringLiteral("Seed laser"));
            can_id_spin(*window, 1)->setValue(42);
            table->setRowCount(2);
            widget<QPushButton>(*window, "apply_pb")->click();
            window->serial_link()->set_port_name(QStringLiteral("ttyUSB9"));
            widget<QPushButton>(*window, "add_pb")->click();  // not applied, so not saved
            window->close();
        }
        // Rewritten whole: the four settings and two keys per device, no stale ones.
        QCOMPARE(QSettings("configs/config.ini", QSettings::IniFormat).allKeys().size(), 8);
        auto again = loaded_window();
        QCOMPARE(device_can_ids(*again), (QList<int>{1, 42}));
        QCOMPARE(again->devices().first()->name(), QStringLiteral("Seed laser"));
        QVERIFY(!widget<QCheckBox>(*again, "mini_usb_mode_checkbox")->isChecked());
        QCOMPARE(again->serial_link()->port_name(), QStringLiteral("ttyUSB9"));
    }

    // Apply replaces the devices (their threads end); mini USB mode locks the table to row 0.
    void apply_builds_devices_from_the_table_data() {
        QTest::addColumn<bool>("mini");
        QTest::addColumn<QList<int>>("expected");
        QTest::newRow("mini USB mode: one device") << true << QList<int>{10};
        QTest::newRow("normal: every row") << false << QList<int>{10, 11, 12};
    }
    void apply_builds_devices_from_the_table() {
        QFETCH(bool, mini);
        QFETCH(QList<int>, expected);
        scratch_dir dir(
            "[General]\nmini_usb_mode=false\ndevice_count=1\ndevice_0=10\n"
            "name_device_0=Laser 10\n");
        auto window = loaded_window();
        widget<QPushButton>(*window, "add_pb")->click();
        widget<QPushButton>(*window, "add_pb")->click();
        QPointer<device> old = window->devices().first();
        QSignalSpy old_thread_finished(old->thread(), &QThread::finished);
        widget<QCheckBox>(*window, "mini_usb_mode_checkbox")->setChecked(mini);
        QCOMPARE(can_id_spin(*window, 0)->isEnabled(), !mini);
        widget<QPushButton>(*window, "apply_pb")->click();
        QVERIFY(old.isNull());
        QCOMPARE(old_thread_finished.count(), 1);
        QCOMPARE(device_can_ids(*window), expected);
        for (int i = 0; i < expected.size(); ++i) {
            const device *dev = window->devices().at(i);
            QCOMPARE(dev->name(), QStringLiteral("Laser %1").arg(expected.at(i)));
            QCOMPARE(dev->accept_any_sender(), mini);
            QVERIFY(dev->thread()->isRunning());
        }
    }

    // Add numbers the new row one past the last row's CAN ID, never beyond 255.
    void add_row_numbering_data() {
        QTest::addColumn<QList<int>>("start");
        QTest::addColumn<int>("expected");
        QTest::newRow("empty table") << QList<int>{} << 1;
        QTest::newRow("follows the last row, not the largest") << QList<int>{90, 7} << 8;
        QTest::newRow("after 255 stays 255") << QList<int>{255} << 255;
    }
    void add_row_numbering() {
        QFETCH(QList<int>, start);
        QFETCH(int, expected);
        scratch_dir dir("[General]\nmini_usb_mode=false\ndevice_count=1\ndevice_0=1\n");
        auto window = loaded_window();
        QTableWidget *table = widget<QTableWidget>(*window, "device_table");
        table->setRowCount(0);
        for (int value : start + QList<int>{-1}) {
            widget<QPushButton>(*window, "add_pb")->click();
            if (value > 0) {
                can_id_spin(*window, table->rowCount() - 1)->setValue(value);
            }
        }
        QCOMPARE(table->rowCount(), start.size() + 1);
        QCOMPARE(can_id_spin(*window, start.size())->value(), expected);
        QCOMPARE(table->item(start.size(), 1)->text(), QStringLiteral("Laser %1").arg(expected));
    }
};

QTEST_MAIN(test_main_window_config)
#include "test_main_window_config.moc"
