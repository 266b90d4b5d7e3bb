// The accessory and comb panels: `heater` (type 4), `pulse_picker` (type 5) and `comb_laser`
// (type 17), driven through their public contract. Each row runs a short operator and device
// script, then checks what the panel sends and what it shows.
#include "config_dialog.h"
#include "test_panel_support.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

using namespace panel_test;

namespace {

// What a widget shows, as one word or text: "hidden"; a label's text; a bar's value; a spin
// box's text or "disabled"; a combo box's item; a switch "on"/"off"; a button's text; otherwise
// "enabled" or "disabled".
QString shown(QWidget *w) {
    if (w->isHidden()) {
        return QStringLiteral("hidden");
    }
    if (auto *label = qobject_cast<QLabel *>(w)) {
        return label->text();
    }
    if (auto *bar = qobject_cast<QProgressBar *>(w)) {
        return QString::number(bar->value());
    }
    if (auto *spin = qobject_cast<QAbstractSpinBox *>(w)) {
        return spin->isEnabled() ? spin->text() : QStringLiteral("disabled");
    }
    if (auto *combo = qobject_cast<QComboBox *>(w)) {
        return combo->currentText();
    }
    if (auto *button = qobject_cast<QAbstractButton *>(w)) {
        if (button->isCheckable()) {
            return QLatin1String(button->isChecked() ? "on" : "off");
        }
        if (!button->text().isEmpty()) {
            return button->text();
        }
    }
    return QLatin1String(w->isEnabled() ? "enabled" : "disabled");
}

// Steps separated by ';': "report CODE VALUE", "rows CODE:RAW ..." (every parameter reported,
// 7 where not given), "click NAME", "choose ITEM" (of `mode`), "enter NAME TEXT" (typed, Enter,
// Yes), "press NAME" (Enter, no box expected), "write" (the configuration dialog's "Write").
void run(panel_base &panel, box_answerer &boxes, const QString &script) {
    for (const QString &step : script.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
        const QStringList w = step.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        if (w[0] == "report") {
            panel.sl_parsed_data_received(w[1].toInt(), w[2].toLong());
        } else if (w[0] == "rows") {
            QMap<int, long> raw;
            for (const QString &pair : w.mid(1)) {
                raw.insert(pair.section(':', 0, 0).toInt(), pair.section(':', 1).toLong());
            }
            for (const parameter_record &record : panel.parameters()) {
                panel.sl_parsed_data_received(record.code + 128, raw.value(record.code, 7));
            }
        } else if (w[0] == "click") {
            child<QAbstractButton>(panel, w[1])->click();
        } else if (w[0] == "choose") {
            emit child<QComboBox>(panel, "mode")->activated(w[1].toInt());
        } else if (w[0] == "enter" || w[0] == "press") {
            auto *spin = child<QAbstractSpinBox>(panel, w[1]);
            if (w[0] == "enter") {
                spin->clear();
                QTest::keyClicks(spin, w[2]);
                boxes.expect(QStringLiteral("Conformation"), QMessageBox::Yes);
            }
            QTest::keyClick(spin, Qt::Key_Return);
        } else if (w[0] == "write") {
            panel.on_toolButton_clicked();
            panel.configuration_dialog()->write_button()->click();
        } else {
            qFatal("unknown step %s", qPrintable(step));
        }
    }
}

}  // namespace

class test_panel_accessory : public boxed_test {
    Q_OBJECT

private slots:
    void script_data() {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("script");
        QTest::addColumn<QString>("sent");    // the next ticks; empty: nothing queued
        QTest::addColumn<QString>("checks");  // NAME=shown|...; "emissions": send_emission() count
        const auto row = [](const char *name, int type, const char *script, const char *sent,
                            const char *checks = "") {
            QTest::newRow(name) << type << script << sent << checks;
        };
        row("heater cycle, idle tick, then the CAN ID", 4, "", "(161,0) (146,0) - (209,0) (161,0)",
            "laser_name_label=Heater|alt_but_widget=enabled");
        row("heater cycle with the CAN ID known", 4, "rows", "(161,0) (146,0) - (161,0)");
        row("heater off: two clicks ask twice for on", 4,
            "report 161 0; click on_off_button; click on_off_button", "(33,1) (33,1)");
        row("heater on: the header switch asks for off, checked or not", 4,
            "report 161 1; click start_stop_button_alt; click start_stop_button_alt",
            "(33,0) (33,0)", "l_onoff=ON|on_off_button=on");
        row("heater state is not emission; Write stores nothing", 4, "rows; report 161 1; write",
            "(81,7) (209,0) (161,0)", "toolButton=enabled|emissions=0");
        row("heater set-point", 4, "enter dsb_temp 87.4", "(18,874)");
        row("heater negative temperature", 4, "report 146 -15", "", "l_temp=-1.5 °C");
        row("heater header", 4, "report 161 1; report 146 874; click laser_tab_button", "",
            "laser_tab_button=Seed (ON 87.4 °C)");

        row("picker cycle", 5, "",
            "(149,0) (145,0) (146,0) (147,0) (148,0) (144,0) (150,0) (209,0) (149,0)",
            "laser_name_label=Pulse Picker|toolButton=hidden|alt_but_widget=hidden");
        row("picker Close", 5, "choose 0", "(18,0) (19,0) (20,0) (16,1)");
        row("picker Open", 5, "choose 1", "(18,0) (19,0) (20,0) (16,0)");
        row("picker Divide", 5, "choose 2", "(19,0) (20,0) (16,2)");
        row("picker Burst", 5, "choose 3", "(19,1) (20,1) (16,3)");
        row("picker 50 %", 5, "enter dsb_ampl 50", "(17,4096)");
        row("picker 100 %", 5, "enter dsb_ampl 100", "(17,0)");
        row("picker 33.3 % truncated", 5, "enter dsb_ampl 33.3", "(17,5464)");
        row("picker divider", 5, "enter dsb_divider 7", "(18,7)");
        row("picker reported 0 is Open", 5, "rows; report 144 0", "", "l_mode=Open|mode=Open");
        row("picker Divide: no burst sizes", 5, "report 144 2; press dsb_gate; press dsb_cut", "",
            "l_mode=Divide|dsb_gate=disabled|dsb_cut=disabled");
        row("picker Burst: burst sizes", 5, "report 144 3; enter dsb_gate 5; enter dsb_cut 9",
            "(19,5) (20,9)", "l_mode=Burst");
        row("picker level 8192 - 2049 is 74.98 %", 5, "report 145 2049", "",
            "l_amp=75.0 %|i_level=74");
        row("picker full level", 5, "report 145 0", "", "l_amp=100.0 %|i_level=100");
        row("picker counts, share of 65000", 5, "report 146 6500; report 148 650", "",
            "l_div=6500|i_divider=10|l_cut=650|i_cut=1");
        row("picker rate", 5, "report 149 1234567", "", "l_freq=1234.567 kHz");

        row("comb cycle", 17, "rows",
            "(144,0) (145,0) (146,0) (148,0) (164,0) (161,0) (153,0) (160,0) (152,0) (180,0) "
            "(144,0)",
            "laser_name_label=COMB driver");
        row("comb bias 2.5 V goes negative", 17, "enter dsb_bias 2.5", "(24,-250)");
        row("comb bias switch", 17, "click pb_on_off_bias", "(32,1)");
        row("comb has no power mode", 17, "report 164 3; enter spin 12.39", "(17,123)",
            "spin_label=Drive current");
        row("comb negative readings", 17,
            "report 152 -250; report 153 -42; report 146 -50; report 160 1", "",
            "l_bias_voltage=2.50 V|l_bias_current=-4.2 mA|temp_label=-5.0 °C|l_bias_state=On|"
            "pb_on_off_bias=on");
        row("comb TEC current -2.5 A", 17, "report 180 0", "", "l_tec_current=-2.50 A");
        row("comb limits by its own positions, first sync with the bias", 17,
            "rows 37:5000 38:100 55:350 54:150; report 164 3; report 145 1234; report 146 251; "
            "report 152 -250",
            "",
            "curr_max_label=500.0|curr_min_label=10.0|temp_max_label=35.0|temp_min_label=15.0|"
            "spin=123.4 mA|spin_temp=25.1°C|dsb_bias=2.50 V|tem_indicator=50");
    }
    void script() {
        QFETCH(int, type);
        QFETCH(QString, script);
        QFETCH(QString, sent);
        QFETCH(QString, checks);
        auto panel = make_panel(type);
        QSignalSpy emissions(panel.get(), &device_panel::send_emission);
        run(*panel, *boxes, script);
        if (sent.isEmpty()) {
            QCOMPARE(panel->queued_commands(), 0);
        } else {
            QCOMPARE(text_of(run_ticks(*panel, sent.count(' ') + 1)), sent);
        }
        for (const QString &check : checks.split('|', Qt::SkipEmptyParts)) {
            const QString name = check.section('=', 0, 0);
            const QString value = name == "emissions" ? QString::number(emissions.count())
                                                      : shown(child<QWidget>(*panel, name));
            QCOMPARE(name + '=' + value, check);
        }
    }
};

QTEST_MAIN(test_panel_accessory)
#include "test_panel_accessory.moc"
