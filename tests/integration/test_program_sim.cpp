// The whole program against the device simulator: the real main window with its configuration
// file, serial link, devices and panels, talking to simulated devices over a pseudo-terminal.
#include "cross_thread.h"
#include "device.h"
#include "serial_connector.h"
#include "sim_window.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDir>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

namespace {

constexpr int cw_id = 1;          // type 14, the CW driver panel
constexpr int precision_id = 2;   // type 15, the precision CW panel
constexpr int picosecond_id = 3;  // type 20, the picosecond driver panel
constexpr int heater_id = 4;      // type 4, the heater accessory

}  // namespace

class test_program_sim : public QObject, sim_window_fixture {
    Q_OBJECT

    QString port;  // a link to the line, as a udev rule names an adapter
    QList<QString> boxes;

    device_panel *panel_of(int slot) const {
        device *dev = window->devices().value(slot);
        return dev ? dev->current_panel() : nullptr;
    }
    // The widget called `name` in the panel of `slot`; null while the device has no panel.
    template <class W>
    W *in_panel(int slot, const char *name) const {
        device_panel *panel = panel_of(slot);
        return panel ? panel->findChild<W *>(QString::fromLatin1(name)) : nullptr;
    }
    QString status() const {
        auto *label = window->findChild<QLabel *>(QStringLiteral("connection_status_label"));
        return label ? label->text() : QString();
    }

private slots:
    void initTestCase() {
        QVERIFY(enter_scratch_dir());
        QVERIFY(bus.add_device(cw_id, 14));
        QVERIFY(bus.add_device(precision_id, 15));
        QVERIFY(bus.add_device(picosecond_id, 20));
        QVERIFY(bus.add_device(heater_id, 4));
        // The simulated devices move in real time, as hardware does.
        line = start_sim_line(bus, clock, this);
        QVERIFY(line);
        port = dir.filePath(QStringLiteral("adapter"));
        QString error;
        QVERIFY2(sim_pty::point_link(port, line->slave_path(), &error), qPrintable(error));

        // A configuration as the operator would have saved it: automatic connection to the line.
        write_device_table(dir.path(), port, {cw_id, precision_id, picosecond_id, heater_id});

        set_message_answerer([this](const message_request &request) {
            boxes << request.title + QLatin1Char('|') + request.text;
            return QMessageBox::Yes;
        });
        window = new main_window(QStringLiteral("Veltrano"), &registry);
        window->initialise_from_config();
        window->show();
    }

    void cleanupTestCase() { leave_scratch_dir(); }

    void devices_are_found_and_panels_built() {
        QTRY_VERIFY_WITH_TIMEOUT(panel_of(0) && panel_of(1) && panel_of(2) && panel_of(3), 10000);
        QCOMPARE(panel_of(0)->type_name(), QStringLiteral("VTR-CW-1800"));
        QCOMPARE(panel_of(1)->type_name(), QStringLiteral("VTR-CW-1800H precision"));
        QCOMPARE(panel_of(2)->type_name(), QStringLiteral("VTR-PS"));
        QCOMPARE(panel_of(3)->type_name(), QStringLiteral("Heater"));
        QCOMPARE(panel_of(0)->display_name(), QStringLiteral("Bench 0"));
        // The panels sit in their containers on the Main page.
        QCOMPARE(panel_of(0)->parentWidget(), window->containers().at(0));
        QCOMPARE(panel_of(1)->parentWidget(), window->containers().at(1));
    }

    void poll_cycles_settle() {
        // Once every configuration row is known (emission and TEC off), the configuration
        // button is enabled; the rows come from the simulated device's own table.
        for (int slot : {0, 1, 2, 3}) {
            auto *configure = in_panel<QAbstractButton>(slot, "toolButton");
            QVERIFY(configure);
            QTRY_VERIFY_WITH_TIMEOUT(configure->isEnabled(), 15000);
        }
        auto *model = in_panel<QLabel>(0, "laser_name_label");
        QVERIFY(model);
        QCOMPARE(model->text(), QStringLiteral("VTR-CW-1800"));
        // The picosecond driver's 100 kHz fills its rate in the "kHz" range.
        auto *rate = in_panel<QDoubleSpinBox>(2, "dsb_freq");
        auto *range = in_panel<QComboBox>(2, "cb_freq_range");
        QVERIFY(rate && range);
        QTRY_COMPARE_WITH_TIMEOUT(rate->value(), 100.0, 5000);
        QCOMPARE(range->currentText(), "kHz");
    }

    void confirmed_set_point_reaches_the_device() {
        auto *temperature = in_panel<QDoubleSpinBox>(0, "spin_temp");
        QVERIFY(temperature);
        temperature->setFocus();
        temperature->setValue(21.5);
        boxes.clear();
        QTest::keyClick(temperature, Qt::Key_Return);
        QCOMPARE(boxes, QStringList{"Conformation|Send command on Bench 0?"});
        QTRY_COMPARE_WITH_TIMEOUT(bus.find(cw_id)->set_point(18), 215, 5000);
    }

    void emission_round_trip() {
        auto *emission_switch = in_panel<QAbstractButton>(0, "on_off_button");
        auto *state = in_panel<QLabel>(0, "power_state_label");
        auto *summary = window->findChild<QLabel *>("emission_label");
        QVERIFY(emission_switch && state && summary);
        QCOMPARE(summary->text(), QStringLiteral("Emission: OFF"));
        emission_switch->click();
        // Written, reported back by the device, shown by the panel and summed by the window.
        QTRY_COMPARE_WITH_TIMEOUT(state->text(), QStringLiteral("ON"), 5000);
        QTRY_COMPARE_WITH_TIMEOUT(summary->text(), QStringLiteral("Emission: ON"), 5000);
        QCOMPARE(bus.find(cw_id)->value(16), 1);
        emission_switch->click();
        QTRY_COMPARE_WITH_TIMEOUT(summary->text(), QStringLiteral("Emission: OFF"), 5000);
    }

    // The heater takes its set-point and its switch, then warms; its switch is not emission, so
    // the window's emission summary stays off.
    void heater_round_trip() {
        auto *heater_switch = in_panel<QAbstractButton>(3, "on_off_button");
        auto *state = in_panel<QLabel>(3, "l_onoff");
        auto *temperature = in_panel<QLabel>(3, "l_temp");
        auto *set_point = in_panel<QDoubleSpinBox>(3, "dsb_temp");
        QVERIFY(heater_switch && state && temperature && set_point);
        QTRY_COMPARE_WITH_TIMEOUT(temperature->text(), QStringLiteral("22.0 °C"), 5000);
        set_point->setFocus();
        set_point->setValue(60.0);
        QTest::keyClick(set_point, Qt::Key_Return);
        QTRY_COMPARE_WITH_TIMEOUT(bus.find(heater_id)->set_point(18), 600, 5000);
        heater_switch->click();
        QTRY_COMPARE_WITH_TIMEOUT(state->text(), QStringLiteral("ON"), 5000);
        QCOMPARE(bus.find(heater_id)->value(33), 1);
        QTRY_VERIFY_WITH_TIMEOUT(temperature->text() != QStringLiteral("22.0 °C"), 5000);
        QCOMPARE(window->findChild<QLabel *>("emission_label")->text(),
                 QStringLiteral("Emission: OFF"));
        heater_switch->click();
        QTRY_COMPARE_WITH_TIMEOUT(state->text(), QStringLiteral("OFF"), 5000);
    }

    void silent_device_is_lost_and_comes_back() {
        QPointer<device_panel> before = panel_of(1);
        QVERIFY(before);
        bus.find(precision_id)->set_silent(true);
        QTRY_VERIFY_WITH_TIMEOUT(before.isNull(), 10000);
        QCOMPARE(window->devices().at(1)->type_id(), -1);
        QVERIFY(panel_of(0));  // the others keep going
        bus.find(precision_id)->set_silent(false);
        QTRY_VERIFY_WITH_TIMEOUT(panel_of(1) != nullptr, 10000);
        QCOMPARE(panel_of(1)->type_name(), QStringLiteral("VTR-CW-1800H precision"));
    }

    // A read error on a line that is still up is no disconnection; the adapter unplugged is: the
    // window says so, retries the port until the adapter is back, starts its CAN channel again
    // and polls the same panels on.
    void adapter_comes_back_after_a_hang_up() {
        QList<QPointer<device_panel>> panels;
        for (int slot : {0, 1, 2, 3}) {
            panels << panel_of(slot);
            QVERIFY(panels.last());
        }
        QCOMPARE(status(), QStringLiteral("Connection status: CONNECTED"));
        QSignalSpy attempts(window, &main_window::sig_init_connection);
        serial_connector *link = window->serial_link();
        run_in(link, [link] { link->sl_serial_handle_error(QSerialPort::ReadError); });
        QCoreApplication::processEvents();
        QCOMPARE(status(), QStringLiteral("Connection status: CONNECTED"));
        QCOMPARE(attempts.count(), 0);

        line->hang_up();
        QTRY_COMPARE_WITH_TIMEOUT(status(), QStringLiteral("Connection status: DISCONNECTED"),
                                  5000);
        QTRY_VERIFY_WITH_TIMEOUT(attempts.count() >= 2, 5000);  // in vain while it is away
        auto *replugged = new sim_pty(bus, this);
        QVERIFY(replugged->open());
        QString error;
        QVERIFY2(sim_pty::point_link(port, replugged->slave_path(), &error), qPrintable(error));
        line = replugged;
        QTRY_COMPARE_WITH_TIMEOUT(status(), QStringLiteral("Connection status: CONNECTED"), 5000);
        // The start commands follow the port's opening: wait for them, not only for the status.
        QTRY_VERIFY_WITH_TIMEOUT(line->adapter().channel_open(), 5000);
        QTRY_COMPARE_WITH_TIMEOUT(line->adapter().bit_rate_code(), 6, 5000);
        QList<int> requests;
        for (const auto &simulated : bus.devices()) {
            requests << simulated->requests();
        }
        for (int i = 0; i < requests.size(); ++i) {
            QTRY_VERIFY(bus.devices().at(std::size_t(i))->requests() > requests.at(i));
        }
        for (int slot : {0, 1, 2, 3}) {
            QCOMPARE(panel_of(slot), panels.at(slot).data());
        }
    }

    void closing_saves_the_configuration() {
        window->close();
        QSettings ini(QStringLiteral("configs/config.ini"), QSettings::IniFormat);
        QCOMPARE(ini.value("prev_port").toString(), port);
        QCOMPARE(ini.value("device_count").toInt(), 4);
        QCOMPARE(ini.value("device_2").toInt(), picosecond_id);
    }
};

QTEST_MAIN(test_program_sim)
#include "test_program_sim.moc"
