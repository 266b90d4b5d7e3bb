// The configuration file and the device table: loading, first run, saving on close, Apply, row
// editing and mini USB mode.
#include "main_window.h"
#include "serial_connector.h"
#include "test_app_support.h"

#include <QCheckBox>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QThread>
#include <QtTest>

#include <memory>

namespace {

std::unique_ptr<main_window> loaded_window() {
    auto window = std::make_unique<main_window>(QStringLiteral("Veltrano"));
    window->set_port_lister(fixed_ports({}));
    window->initialise_from_config();
    return window;
}

QCheckBox *mini_usb(const main_window &w) {
    return widget<QCheckBox>(w, "mini_usb_mode_checkbox");
}
QCheckBox *auto_connection(const main_window &w) {
    return widget<QCheckBox>(w, "autoconnection_checkbox");
}

}  // namespace

class test_main_window_config : public QObject {
    Q_OBJECT

private slots:
    void first_run_without_a_file() {
        scratch_dir dir;
        QVERIFY(dir.ok());
        auto window = std::make_unique<main_window>(QStringLiteral("Veltrano"));
        window->set_port_lister(fixed_ports({}));
        QSignalSpy connects(window.get(), &main_window::sig_init_connection);
        window->initialise_from_config();

        QCOMPARE(device_can_ids(*window), QList<int>{1});
        QCOMPARE(device_names(*window), QStringList{"name"});
        QVERIFY(window->devices().first()->accept_any_sender());
        QCOMPARE(table_can_ids(*window), QList<int>{1});
        QCOMPARE(table_names(*window), QStringList{"name"});
        QVERIFY(mini_usb(*window)->isChecked());
        QVERIFY(!auto_connection(*window)->isChecked());
        QCOMPARE(connects.count(), 0);
        QCOMPARE(window->serial_link()->port_name(), QString());
        // Loading alone writes nothing.
        QVERIFY(!scratch_dir::config_exists());

        QTableWidget *table = device_table(*window);
        QCOMPARE(table->columnCount(), 2);
        QCOMPARE(table->horizontalHeaderItem(0)->text(), QStringLiteral("CAN ID"));
        QCOMPARE(table->horizontalHeaderItem(1)->text(), QStringLiteral("Device name"));

        // Closing creates the folder and the file with the defaults.
        window->close();
        QVERIFY(scratch_dir::config_exists());
        QSettings saved(QStringLiteral("configs/config.ini"), QSettings::IniFormat);
        QCOMPARE(saved.value("device_count").toInt(), 1);
        QCOMPARE(saved.value("device_0").toInt(), 1);
        QCOMPARE(saved.value("name_device_0").toString(), QStringLiteral("name"));
        QCOMPARE(saved.value("mini_usb_mode").toBool(), true);
        QCOMPARE(saved.value("autoconnection_mode").toBool(), false);
    }

    void loading_a_stored_file_data() {
        QTest::addColumn<QByteArray>("ini");
        QTest::addColumn<QList<int>>("device_ids");
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<QList<int>>("table_ids");
        QTest::addColumn<bool>("mini");
        QTest::addColumn<QString>("port");

        QTest::newRow("three devices, key of device 1 missing")
            << QByteArray("[General]\nprev_port=ttyUSB3\nmini_usb_mode=false\n"
                          "autoconnection_mode=false\ndevice_count=3\n"
                          "device_0=5\nname_device_0=Seed\nname_device_1=Amplifier\n"
                          "device_2=200\nname_device_2=Heater\n")
            << QList<int>{5, 0, 200} << QStringList{"Seed", "Amplifier", "Heater"}
            << QList<int>{5, 1, 200} << false << QStringLiteral("ttyUSB3");
        QTest::newRow("mini USB mode stored with two devices")
            << QByteArray("[General]\nmini_usb_mode=true\ndevice_count=2\n"
                          "device_0=7\nname_device_0=A\ndevice_1=8\nname_device_1=B\n")
            << QList<int>{7, 8} << QStringList{"A", "B"} << QList<int>{7, 8} << true << QString();
        QTest::newRow("device count not a number: first-run defaults")
            << QByteArray("[General]\nprev_port=COM4\ndevice_count=many\ndevice_0=9\n")
            << QList<int>{1} << QStringList{"name"} << QList<int>{1} << true
            << QStringLiteral("COM4");
        QTest::newRow("device count 0 ignores the stored mode")
            << QByteArray("[General]\nmini_usb_mode=false\ndevice_count=0\n") << QList<int>{1}
            << QStringList{"name"} << QList<int>{1} << true << QString();
        QTest::newRow("CAN ID not a number reads as 0")
            << QByteArray("[General]\ndevice_count=1\ndevice_0=abc\nname_device_0=X\n")
            << QList<int>{0} << QStringList{"X"} << QList<int>{1} << false << QString();
    }
    void loading_a_stored_file() {
        QFETCH(QByteArray, ini);
        QFETCH(QList<int>, device_ids);
        QFETCH(QStringList, names);
        QFETCH(QList<int>, table_ids);
        QFETCH(bool, mini);
        QFETCH(QString, port);

        scratch_dir dir;
        dir.write_config(ini);
        auto window = loaded_window();
        QCOMPARE(device_can_ids(*window), device_ids);
        QCOMPARE(device_names(*window), names);
        QCOMPARE(table_can_ids(*window), table_ids);
        QCOMPARE(table_names(*window), names);
        QCOMPARE(mini_usb(*window)->isChecked(), mini);
        QCOMPARE(window->serial_link()->port_name(), port);
        for (int i = 0; i < window->devices().size(); ++i) {
            const device *dev = window->devices().at(i);
            QCOMPARE(dev->slot(), i);
            QCOMPARE(dev->accept_any_sender(), mini);
        }
        QCOMPARE(window->containers().size(), window->devices().size());
        // The mode was set before the rows existed: every row shows and row 0 stays editable.
        QTableWidget *table = device_table(*window);
        for (int row = 0; row < table->rowCount(); ++row) {
            QVERIFY(!table->isRowHidden(row));
        }
        QVERIFY(can_id_spin(*window, 0)->isEnabled());
        QCOMPARE(widget<QPushButton>(*window, "add_pb")->isEnabled(), !mini);
    }

    void save_then_load_round_trip() {
        scratch_dir dir;
        // A stale key and a longer device list than what will be saved.
        dir.write_config("[General]\njunk=1\nprev_port=ttyACM0\nmini_usb_mode=false\n"
                         "device_count=4\ndevice_0=1\ndevice_1=2\ndevice_2=3\ndevice_3=4\n");
        {
            auto window = loaded_window();
            QTableWidget *table = device_table(*window);
            table->item(0, 1)->setText(QStringLiteral("Seed laser"));
            can_id_spin(*window, 1)->setValue(42);
            table->removeRow(3);
            table->removeRow(2);
            widget<QPushButton>(*window, "apply_pb")->click();
            window->serial_link()->set_port_name(QStringLiteral("ttyUSB9"));
            // Unapplied edits are not saved.
            widget<QPushButton>(*window, "add_pb")->click();
            window->close();
        }
        QSettings saved(QStringLiteral("configs/config.ini"), QSettings::IniFormat);
        QCOMPARE(saved.allKeys().size(), 8);
        QVERIFY(!saved.contains("junk"));
        QVERIFY(!saved.contains("device_2"));
        QCOMPARE(saved.value("prev_port").toString(), QStringLiteral("ttyUSB9"));

        auto again = loaded_window();
        QCOMPARE(device_can_ids(*again), (QList<int>{1, 42}));
        QCOMPARE(device_names(*again), (QStringList{"Seed laser", ""}));
        QCOMPARE(table_can_ids(*again), (QList<int>{1, 42}));
        QVERIFY(!mini_usb(*again)->isChecked());
        QVERIFY(!auto_connection(*again)->isChecked());
        QCOMPARE(again->serial_link()->port_name(), QStringLiteral("ttyUSB9"));
    }

    void apply_builds_devices_from_the_table_data() {
        QTest::addColumn<bool>("mini");
        QTest::addColumn<QList<int>>("expected");
        QTest::newRow("mini USB mode: the first row only") << true << QList<int>{10};
        QTest::newRow("normal: every row") << false << QList<int>{10, 11, 12};
    }
    void apply_builds_devices_from_the_table() {
        QFETCH(bool, mini);
        QFETCH(QList<int>, expected);
        scratch_dir dir;
        dir.write_config("[General]\nmini_usb_mode=false\ndevice_count=1\ndevice_0=10\n"
                         "name_device_0=Laser 10\n");
        auto window = loaded_window();
        widget<QPushButton>(*window, "add_pb")->click();
        widget<QPushButton>(*window, "add_pb")->click();
        QCOMPARE(table_can_ids(*window), (QList<int>{10, 11, 12}));

        // The old device objects go, and their threads end with them.
        QPointer<device> old = window->devices().first();
        QSignalSpy old_thread_finished(old->thread(), &QThread::finished);

        mini_usb(*window)->setChecked(mini);
        widget<QPushButton>(*window, "apply_pb")->click();
        QVERIFY(old.isNull());
        QCOMPARE(old_thread_finished.count(), 1);
        QCOMPARE(device_can_ids(*window), expected);
        QCOMPARE(window->containers().size(), expected.size());
        for (int i = 0; i < window->devices().size(); ++i) {
            const device *dev = window->devices().at(i);
            QCOMPARE(dev->slot(), i);
            QCOMPARE(dev->name(), QStringLiteral("Laser %1").arg(expected.at(i)));
            QCOMPARE(dev->accept_any_sender(), mini);
            QVERIFY(dev->thread()->isRunning());
        }
    }

    void add_row_numbering_data() {
        QTest::addColumn<QList<int>>("start");
        QTest::addColumn<int>("expected");
        QTest::newRow("empty table") << QList<int>{} << 1;
        QTest::newRow("after 1") << QList<int>{1} << 2;
        QTest::newRow("follows the last row, not the largest") << QList<int>{90, 7} << 8;
        QTest::newRow("after 254") << QList<int>{254} << 255;
        QTest::newRow("after 255 stays 255") << QList<int>{255} << 255;
    }
    void add_row_numbering() {
        QFETCH(QList<int>, start);
        QFETCH(int, expected);
        scratch_dir dir;
        dir.write_config("[General]\nmini_usb_mode=false\ndevice_count=1\ndevice_0=1\n");
        auto window = loaded_window();
        QTableWidget *table = device_table(*window);
        table->setRowCount(0);
        QPushButton *add = widget<QPushButton>(*window, "add_pb");
        for (int value : start) {
            add->click();
            can_id_spin(*window, table->rowCount() - 1)->setValue(value);
        }
        add->click();
        const int row = table->rowCount() - 1;
        QCOMPARE(row, start.size());
        QSpinBox *spin = can_id_spin(*window, row);
        QCOMPARE(spin->value(), expected);
        QCOMPARE(spin->minimum(), 1);
        QCOMPARE(spin->maximum(), 255);
        QCOMPARE(table->item(row, 1)->text(), QStringLiteral("Laser %1").arg(expected));
    }

    void deleting_selected_rows_data() {
        QTest::addColumn<bool>("with_key");
        QTest::newRow("button") << false;
        QTest::newRow("Delete key on the table") << true;
    }
    void deleting_selected_rows() {
        QFETCH(bool, with_key);
        scratch_dir dir;
        dir.write_config("[General]\nmini_usb_mode=false\ndevice_count=4\n"
                         "device_0=1\ndevice_1=2\ndevice_2=3\ndevice_3=4\n");
        auto window = loaded_window();
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
        QTableWidget *table = device_table(*window);
        table->setSelectionMode(QAbstractItemView::MultiSelection);
        table->selectRow(0);
        table->selectRow(2);
        if (with_key) {
            table->setFocus();
            QTest::keyClick(table, Qt::Key_Delete);
        } else {
            widget<QPushButton>(*window, "delete_row_pb")->click();
        }
        QCOMPARE(table_can_ids(*window), (QList<int>{2, 4}));
        // Device objects wait for Apply.
        QCOMPARE(device_can_ids(*window), (QList<int>{1, 2, 3, 4}));
    }

    void mini_usb_mode_locks_the_table() {
        scratch_dir dir;
        dir.write_config("[General]\nmini_usb_mode=false\ndevice_count=3\n"
                         "device_0=1\ndevice_1=2\ndevice_2=3\n");
        auto window = loaded_window();
        QTableWidget *table = device_table(*window);
        QPushButton *add = widget<QPushButton>(*window, "add_pb");
        QPushButton *del = widget<QPushButton>(*window, "delete_row_pb");
        for (bool on : {true, false, true}) {
            mini_usb(*window)->setChecked(on);
            QCOMPARE(can_id_spin(*window, 0)->isEnabled(), !on);
            QVERIFY(!table->isRowHidden(0));
            QCOMPARE(table->isRowHidden(1), on);
            QCOMPARE(table->isRowHidden(2), on);
            QCOMPARE(add->isEnabled(), !on);
            QCOMPARE(del->isEnabled(), !on);
        }
        // Existing devices keep the mode they were created with.
        for (const device *dev : window->devices()) {
            QVERIFY(!dev->accept_any_sender());
        }
    }
};

QTEST_MAIN(test_main_window_config)
#include "test_main_window_config.moc"
