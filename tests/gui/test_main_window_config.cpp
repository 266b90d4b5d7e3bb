// The configuration file and the device table: loading, first run, saving on close, Apply, row
// numbering and mini USB mode.
#include "test_app_support.h"

class test_main_window_config : public QObject {
    Q_OBJECT

private slots:
    // What a stored file (or none) turns into: devices, table rows, mode and port; closing saves.
    // A file that cannot be used as written is kept beside it (once: loading it again reuses the
    // copy, saving never touches it) and one warning names the file, the problems and the copy;
    // a device whose CAN ID no frame carries is named in a warning of its own.
    void loading_data() {
        QTest::addColumn<QByteArray>("ini");
        QTest::addColumn<QList<int>>("device_ids");
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<QList<int>>("table_ids");
        QTest::addColumn<bool>("mini");
        QTest::addColumn<QString>("port");
        QTest::addColumn<QString>("problems");      // pattern; empty: no copy, no file warning
        QTest::addColumn<QList<int>>("mute_rows");  // rows named as sending nothing
        QTest::newRow("first run: no file")
            << QByteArray() << QList<int>{1} << QStringList{"name"} << QList<int>{1} << true
            << QString() << QString() << QList<int>{};
        QTest::newRow("as saved") << QByteArray(
                                         "[General]\nprev_port=ttyUSB3\nmini_usb_mode=false\n"
                                         "autoconnection_mode=false\ndevice_count=2\ndevice_0=5\n"
                                         "name_device_0=Seed\ndevice_1=200\nname_device_1=Heater\n")
                                  << QList<int>{5, 200} << QStringList{"Seed", "Heater"}
                                  << QList<int>{5, 200} << false << QStringLiteral("ttyUSB3")
                                  << QString() << QList<int>{};
        QTest::newRow("key of device 1 missing: CAN ID 0, the box shows 1")
            << QByteArray(
                   "[General]\nprev_port=ttyUSB3\nmini_usb_mode=false\ndevice_count=3\n"
                   "device_0=5\nname_device_0=Seed\nname_device_1=Amplifier\n"
                   "device_2=200\nname_device_2=Heater\n")
            << QList<int>{5, 0, 200} << QStringList{"Seed", "Amplifier", "Heater"}
            << QList<int>{5, 1, 200} << false << QStringLiteral("ttyUSB3")
            << QString(R"("device_count" reads as 3, yet no CAN ID is stored for devices: 1)")
            << QList<int>{};
        QTest::newRow("count not a number: defaults")
            << QByteArray(
                   "[General]\nmini_usb_mode=false\ndevice_count=3x\ndevice_0=5\ndevice_1=6\n"
                   "device_2=7\n")
            << QList<int>{1} << QStringList{"name"} << QList<int>{1} << true << QString()
            << QString(R"("device_count" is "3x", not a number; "device_count" reads as 0, yet )"
                       R"(the file holds keys of devices beyond it: 0, 1, 2)")
            << QList<int>{};
        QTest::newRow("keys under a section: defaults")
            << QByteArray("[Devices]\ndevice_count=2\ndevice_0=5\ndevice_1=6\n") << QList<int>{1}
            << QStringList{"name"} << QList<int>{1} << true << QString()
            << QString(R"(keys under \[Devices\] are outside the top level and not read)")
            << QList<int>{};
        QTest::newRow("count below the stored devices")
            << QByteArray("mini_usb_mode=false\ndevice_count=1\ndevice_0=5\ndevice_1=6\n")
            << QList<int>{5} << QStringList{""} << QList<int>{5} << false << QString()
            << QString(R"("device_count" reads as 1, yet the file holds keys of devices beyond )"
                       R"(it: 1)")
            << QList<int>{};
        QTest::newRow("count beyond the table: capped")
            << QByteArray("[General]\nmini_usb_mode=false\ndevice_count=100000\ndevice_0=3\n")
            << QList<int>{3} + QVector<int>(254, 0).toList() << QStringList{""} << QList<int>{3}
            << false << QString()
            << QString(R"("device_count" is 100000, more than the device table holds: the first )"
                       R"(255 devices are used; "device_count" reads as 255, yet no CAN ID is )"
                       R"(stored for devices: 1, 2, 3, 4, 5 \.\.\. \(254 in all\))")
            << QList<int>{};
        QTest::newRow("CAN IDs no frame carries: kept, silent")
            << QByteArray(
                   "[General]\nmini_usb_mode=false\ndevice_count=5\ndevice_0=4096\n"
                   "name_device_0=A\ndevice_1=-1\ndevice_2=2147483647\ndevice_3=abc\n"
                   "device_4=2047\n")
            << QList<int>{4096, -1, 2147483647, 0, 2047} << QStringList{"A", "", "", "", ""}
            << QList<int>{255, 1, 255, 1, 255} << false << QString()
            << QString(R"("device_0" is 4096, a CAN ID no frame can carry \(0 to 0x7ff\); )"
                       R"("device_1" is -1, a CAN ID no frame can carry \(0 to 0x7ff\); )"
                       R"("device_2" is 2147483647, a CAN ID no frame can carry \(0 to 0x7ff\); )"
                       R"("device_3" is "abc", not a number)")
            << QList<int>{1, 2, 3};
    }
    void loading() {
        QFETCH(QByteArray, ini);
        QFETCH(QList<int>, device_ids);
        QFETCH(QStringList, names);
        QFETCH(QList<int>, table_ids);
        QFETCH(bool, mini);
        QFETCH(QString, port);
        QFETCH(QString, problems);
        QFETCH(QList<int>, mute_rows);
        scratch_dir dir(ini);
        const QString file =
            QRegularExpression::escape(QFileInfo("configs/config.ini").absoluteFilePath());
        QStringList expected_warnings;
        for (int row : mute_rows) {
            expected_warnings << QStringLiteral(R"(device ".*" \(table row %1\) has CAN ID -?\d+, )"
                                                R"(which no frame can carry \(0 to 0x7ff\): )"
                                                R"(it sends nothing)")
                                     .arg(row);
        }
        if (!problems.isEmpty()) {
            expected_warnings << QStringLiteral(R"(configuration file "%1" cannot be used as )"
                                                R"(written: %2; it is kept as it was in )"
                                                R"("%1\.unreadable-\d{8}-\d{6}")")
                                     .arg(file, problems);
        }
        const auto copies = [] {
            return QDir("configs").entryList({"config.ini.unreadable-*"}, QDir::Files);
        };
        const auto copy_bytes = [&copies] {
            QFile copy("configs/" + copies().value(0));
            return copy.open(QIODevice::ReadOnly) ? copy.readAll() : QByteArray();
        };

        // Loaded twice from the same bytes: the second load reuses the first copy.
        for (int pass = 0; pass < 2; ++pass) {
            warning_log warnings;
            auto window = loaded_window();
            const QString differ = warnings.differences(expected_warnings);
            QVERIFY2(differ.isEmpty(), qPrintable(differ));
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
            QCOMPARE(copies().size(), problems.isEmpty() ? 0 : 1);
            if (!problems.isEmpty()) {
                QCOMPARE(copy_bytes(), ini);
            }
            window->close();  // creates the folder and the file when there were none
            QVERIFY(QFile::exists("configs/config.ini"));
            // The file holds the devices as they stand, stored CAN IDs no frame carries included.
            QSettings saved("configs/config.ini", QSettings::IniFormat);
            QCOMPARE(saved.value("device_count").toInt(), device_ids.size());
            for (int i = 0; i < device_ids.size(); ++i) {
                QCOMPARE(saved.value(QStringLiteral("device_%1").arg(i)).toInt(), device_ids.at(i));
            }
            QCOMPARE(copies().size(), problems.isEmpty() ? 0 : 1);
            if (problems.isEmpty()) {
                break;
            }
            QCOMPARE(copy_bytes(), ini);
            QVERIFY(QFile::remove("configs/config.ini"));
            scratch_dir::write_config(ini);
        }
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

    // A save that fails names the file and the reason. A file that can be neither read nor
    // copied is left as it is.
    void failed_save_is_reported_data() {
        QTest::addColumn<bool>("folder");  // what is in the way: a folder at the file's path, or
                                           // a plain file at the folder's
        QTest::addColumn<QString>("load_warning");
        QTest::addColumn<QString>("save_warning");
        QTest::newRow("a file where the folder goes")
            << false << QString()
            << QString(R"(configuration file "(.*)/configs/config\.ini" could not be saved: )"
                       R"("\1/configs" is a file, not a folder)");
        QTest::newRow("a folder where the file goes")
            << true
            << QString(R"(configuration file "(.*)/configs/config\.ini" cannot be used as )"
                       R"(written: it could not be read; no copy could be made \(.+\), so )"
                       R"(closing will not overwrite it)")
            << QString(R"(configuration file "(.*)/configs/config\.ini" not saved: it could )"
                       R"(not be read as written and no copy of it could be made)");
    }
    void failed_save_is_reported() {
        QFETCH(bool, folder);
        QFETCH(QString, load_warning);
        QFETCH(QString, save_warning);
        scratch_dir dir;
        if (folder) {
            QVERIFY(QDir().mkpath("configs/config.ini"));
        } else {
            QFile in_the_way("configs");
            QVERIFY(in_the_way.open(QIODevice::WriteOnly));
        }
        warning_log warnings;
        auto window = loaded_window();
        QCOMPARE(device_can_ids(*window), QList<int>{1});
        window->close();
        const QString differ = warnings.differences(
            QStringList{load_warning, save_warning}.filter(QRegularExpression(".")));
        QVERIFY2(differ.isEmpty(), qPrintable(differ));
    }

    // A save that fails part-way (a full disk) leaves the file as it was, and nothing beside it.
    void failed_save_keeps_the_previous_file() {
        const QByteArray before = "mini_usb_mode=false\ndevice_count=1\ndevice_0=5\n";
        scratch_dir dir(before);
        auto window = loaded_window();
        for (int i = 0; i < 20; ++i) {
            widget<QPushButton>(*window, "add_pb")->click();
        }
        widget<QPushButton>(*window, "apply_pb")->click();
        warning_log warnings;
        {
            const file_size_limit full_disk(rlim_t(before.size()));
            window->close();
        }
        const QString differ = warnings.differences(
            {R"(configuration file ".*/configs/config\.ini" could not be saved: the file could )"
             R"(not be written in full \(is the disk full\?\))"});
        QVERIFY2(differ.isEmpty(), qPrintable(differ));
        QFile file("configs/config.ini");
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), before);
        QCOMPARE(QDir("configs").entryList(QDir::Files | QDir::Hidden), QStringList{"config.ini"});
    }

    // The copy of an unusable file never replaces a copy made earlier in the same second (another
    // file, then): it takes the next free name.
    void unusable_file_copy_takes_a_free_name() {
        const QByteArray ini = "device_count=3x\n";
        scratch_dir dir(ini);
        QMap<QString, QByteArray> earlier;  // under the names of this second and the next two
        const QDateTime now = QDateTime::currentDateTime();
        for (int s = 0; s < 3; ++s) {
            const QString name =
                "config.ini.unreadable-" + now.addSecs(s).toString("yyyyMMdd-HHmmss");
            earlier.insert(name, "earlier copy " + QByteArray::number(s));
            QFile copy("configs/" + name);
            QVERIFY(copy.open(QIODevice::WriteOnly) && copy.write(earlier[name]) > 0);
        }
        warning_log warnings;
        auto window = loaded_window();
        QStringList made = QDir("configs").entryList({"config.ini.unreadable-*"}, QDir::Files);
        for (auto it = earlier.cbegin(); it != earlier.cend(); ++it) {
            QFile copy("configs/" + it.key());
            QVERIFY(copy.open(QIODevice::ReadOnly));
            QCOMPARE(copy.readAll(), it.value());
            made.removeOne(it.key());
        }
        QCOMPARE(made.size(), 1);
        QVERIFY2(made.first().endsWith("-2") && earlier.contains(made.first().chopped(2)),
                 qPrintable(made.first()));
        QFile copy("configs/" + made.first());
        QVERIFY(copy.open(QIODevice::ReadOnly));
        QCOMPARE(copy.readAll(), ini);
        QVERIFY(warnings.lines().join('\n').contains(made.first()));
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
