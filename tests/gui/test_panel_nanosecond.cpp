// The nanosecond driver panels (types 23, 29, 19, 31) and the SNS panel (type 36), driven through
// their public contract: reports in, ticks out. Each table row is one case.
#include "test_panel_support.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QStandardItemModel>

using namespace panel_test;

namespace {

// Reports "code:value code:value ..." in order.
void report(panel_base &panel, const QString &reports) {
    for (const QString &pair : reports.split(' ', Qt::SkipEmptyParts)) {
        panel.sl_parsed_data_received(pair.section(':', 0, 0).toInt(),
                                      pair.section(':', 1, 1).toLong());
    }
}

// Every configuration row, with raw values by code that make sense for every type here: current
// 0.5 to 50 A (voltage 5 to 500 V), temperature 15 to 40 °C.
void report_rows(panel_base &panel) {
    const QMap<int, long> raw{{81, 5},    {37, 5000}, {38, 50}, {55, 400}, {54, 150}, {22, 10000},
                              {21, 3950}, {56, 250},  {68, 10}, {69, 100}, {70, 50},  {36, 3950},
                              {32, 250},  {24, 1200}, {23, 50}, {25, 150}};
    report_parameters(panel, [&](int i) { return raw.value(panel.parameters()[i].code); });
}

QString sent_by(panel_base &panel) {
    return text_of(run_ticks(panel, panel.queued_commands()));
}

// One data row per entry of `table`, named by its first member.
template <class Row, std::size_t n>
void add_rows(const Row (&table)[n]) {
    QTest::addColumn<int>("row");
    for (std::size_t i = 0; i < n; ++i) {
        QTest::newRow(table[i].name) << int(i);
    }
}

const struct {
    const char *name;
    int type;
    const char *polled;
    const char *rows;  // code/decimals
} descriptions[] = {
    {"23", 23, "", "81/0 37/2 38/2 55/1 54/1 22/0 21/0 56/2 68/4 69/4 70/4"},
    {"29", 29, " 201 200 199", "81/0 37/2 38/2 55/1 54/1 22/0 21/0 56/2 68/4 69/4 70/4"},
    {"19", 19, " 185", "81/0 37/2 38/2 55/1 54/1 22/0 21/0 56/2 68/4 69/4 70/4"},
    {"31", 31, " 184 199 200", "81/0 37/1 38/1 55/1 54/1 22/0 21/0"},
    {"36", 36, "144 146 147 149 151 161 152 153 162 160",
     "81/0 37/0 36/0 32/2 24/3 23/1 21/1 25/2"},
};

// Enter and Yes on a set-point after `range` Down presses on the range combo.
const struct {
    const char *name;
    int type;
    const char *widget;
    int range;
    const char *typed;
    const char *sent;
} setpoints[] = {
    {"current, truncated", 23, "dsb_curr", 0, "12.349", "(24,1234)"},
    {"temperature", 23, "dsb_temp", 0, "20.5", "(18,205)"},
    {"rate in Hz", 23, "dsb_freq", 0, "500", "(25,500)"},
    {"rate in kHz", 23, "dsb_freq", 1, "12", "(25,12000)"},
    {"rate in MHz", 23, "dsb_freq", 2, "2.5", "(25,2500000)"},
    {"duration", 23, "dsb_dura", 0, "10.4", "(35,104)"},
    {"mode combo asks, sends nothing", 23, "cb_mode", 0, "", ""},
    {"bias in 0.1 mA", 19, "dsb_bias", 0, "12.34", "(57,123)"},
    {"sync delay", 29, "dsb_sync_delay", 0, "-1.2", "(72,-12)"},
    {"pulse delay", 29, "dsb_pulse_delay", 0, "2.4", "(71,24)"},
    {"pulse voltage", 31, "dsb_volt", 0, "12.34", "(24,123)"},
    {"triangle bias", 31, "dsb_bias", 0, "1.5", "(56,15)"},
    {"rise factor", 31, "dsb_triangle_rise", 0, "3.25", "(71,325)"},
    {"triangle delay", 31, "dsb_pulse_delay", 0, "2.5", "(72,25)"},
    {"SNS voltage", 36, "dsb_volt", 0, "1.23", "(32,123)"},
    {"bias voltage", 36, "dsb_volt_bias", 0, "0.0125", "(24,12)"},
    {"bias width", 36, "dsb_width_bias", 0, "5.3", "(23,53)"},
    {"bias delay", 36, "dsb_delay_bias", 0, "2.1", "(21,21)"},
    {"SNS width", 36, "dsb_pulse_width", 0, "1.57", "(25,157)"},
    {"SNS rate in Hz", 36, "dsb_freq", 0, "12.5", "(19,12500)"},
    {"SNS rate in kHz", 36, "dsb_freq", 1, "2", "(19,2000000)"},
    {"SNS temperature", 36, "dsb_temp", 0, "30.5", "(18,305)"},
};

// The duration's maximum follows the rate (2 % duty, 100 ns under an external trigger); the
// rate's range and maximum follow the duration, up to each type's cap. Reports: rate 153 (Hz),
// duration 163 (0.1 ns), trigger source 164.
const struct {
    const char *name;
    int type;
    const char *reports;
    double duration_max;
    int range;
    double rate_max;
} duty_cases[] = {
    {"1 kHz, the kHz cap", 23, "153:1000 163:100 164:0", 20000, 1, 1000000},
    {"external", 23, "153:1000 163:100 164:2", 100, 1, 1000000},
    {"on demand", 23, "153:1000 163:100 164:1", 20000, 1, 1000000},
    {"truncated", 23, "153:3000 163:100 164:0", 6666.6, 1, 1000000},
    {"1 ns, 10 MHz cap", 23, "153:5000000 163:10 164:0", 4, 2, 10},
    {"1 ns, 5 MHz cap", 29, "153:5000000 163:10 164:0", 4, 2, 5},
    {"10 ns, 2 MHz cap", 31, "153:5000000 163:100 164:0", 4, 2, 2},
    {"5 ns, 2 MHz cap", 31, "153:5000000 163:50 164:0", 4, 2, 2},
    {"kHz", 23, "153:50000 163:1000 164:0", 400, 1, 200},
    {"MHz falls to kHz", 23, "153:2000000 163:1000 164:0", 10, 1, 200},
    {"kHz falls to Hz", 23, "153:50000 163:1000000 164:0", 400, 0, 200},
};

// What a widget shows after the configuration rows and `reports`: a label's text, a bar's value,
// whether a widget (or item "combo:index") is enabled ("on"/"off"), or the rate set-point with its
// range ("rate"), loaded by the first sync.
const struct {
    const char *name;
    int type;
    const char *reports;
    const char *widget;
    const char *shown;
} shown_cases[] = {
    {"current", 23, "152:1234", "l_curr", "12.34 A"},
    {"Hz", 23, "153:999", "l_freq", "999 Hz"},
    {"kHz", 23, "153:12000", "l_freq", "12 kHz"},
    {"MHz", 23, "153:2500000", "l_freq", "2.5 MHz"},
    {"duration", 23, "163:105", "l_dura", "10.5 ns"},
    {"Ext: Burst", 23, "164:2 181:3", "l_mode", "Ext: Burst"},
    {"Int: Normal", 23, "181:0 164:0", "l_mode", "Int: Normal"},
    {"on demand", 19, "181:1 164:1", "l_mode", "Pulse on Demand"},
    {"bias", 19, "185:500", "l_bias", "50.0 mA"},
    {"sync delay", 29, "200:-12", "l_sync_delay", "-1.2 ns"},
    {"sync mode", 29, "201:2", "l_sync_mode", "SLAVE"},
    {"pulse voltage", 31, "152:125", "l_volt", "12.5 V"},
    {"triangle bias", 31, "184:300", "l_bias", "30.0 mA"},
    {"rise factor, volt sign", 31, "199:410", "l_triangle_rise", "4.10 V"},
    {"SNS voltage", 36, "160:250", "l_volt", "2.50 V"},
    {"bias voltage", 36, "152:1200", "l_volt_bias", "1.200 V"},
    {"SNS rate", 36, "147:1000000", "l_freq", "1000 Hz"},
    {"SNS width", 36, "153:150", "l_width_sns", "1.50 t"},
    {"bias width", 36, "151:50", "l_width_bias", "5.0 t"},
    {"bias delay", 36, "149:20", "l_delay_bias", "2.0 t"},
    {"SNS TEC", 36, "161:1", "l_tec_state", "ON"},
    {"SNS without alarm", 36, "176:0", "alarm", "hidden"},
    {"SNS alarm 257", 36, "176:256 176:257", "alarm",
     "flag_Rebooted\nOutput voltage is higher than 80% of input voltage, \nSOLUTION: increase the "
     "input voltage\n"},
    {"SNS alarm bits without a name", 36, "176:4100", "alarm", "flag_Overtemp\n"},
    {"current bar", 23, "152:2525", "i_current", "50"},
    {"temperature bar", 23, "146:275", "i_temp", "50"},
    {"bias bar spans its labels", 19, "185:500", "i_bias", "33"},
    {"pulse voltage bar", 31, "152:2525", "i_volt", "50"},
    {"SNS voltage bar", 36, "160:250", "i_voltage", "50"},
    {"bias voltage bar", 36, "152:1250", "i_volt_bias", "25"},
    {"SNS 50 °C", 36, "146:500", "i_temp", "100"},
    {"SNS 15 °C", 36, "146:150", "i_temp", "0"},
    {"mode, emission on", 23, "160:1", "cb_mode", "off"},
    {"mode, emission off", 23, "160:0", "cb_mode", "on"},
    {"counts in burst", 19, "181:2", "dsb_gated_count", "on"},
    {"counts otherwise", 19, "181:0", "dsb_cutted_count", "off"},
    {"rate on demand", 23, "164:1", "dsb_freq", "off"},
    {"range on demand", 31, "164:1", "cb_freq_range", "off"},
    {"rate, internal", 23, "164:0", "dsb_freq", "on"},
    {"SLAVE: burst item", 29, "201:2", "cb_mode:1", "off"},
    {"MASTER: external item", 29, "201:1", "cb_mode:3", "off"},
    {"MASTER: on demand item", 29, "201:1", "cb_mode:4", "on"},
    {"NORMAL: every item", 29, "201:2 201:0", "cb_mode:2", "on"},
    {"MASTER: sync delay", 29, "201:1", "dsb_sync_delay", "off"},
    {"SLAVE: sync delay", 29, "201:2", "dsb_sync_delay", "on"},
    {"SLAVE: pulse delay", 29, "201:2", "dsb_pulse_delay", "on"},
    {"NORMAL: pulse delay", 29, "201:0", "dsb_pulse_delay", "off"},
    {"sync in Int: Burst", 29, "164:0 181:1", "cb_sync_mode", "off"},
    {"sync in Ext: Normal", 29, "164:2 181:0", "cb_sync_mode", "off"},
    {"sync on demand", 29, "164:1 181:0", "cb_sync_mode", "on"},
    {"sync, emission on", 29, "164:0 181:0 160:1", "cb_sync_mode", "off"},
    {"first sync, Hz", 23, "153:500", "rate", "500 in 0"},
    {"first sync, kHz", 29, "153:12000", "rate", "12 in 1"},
    {"first sync, MHz", 19, "153:2500000", "rate", "2.5 in 2"},
    {"first sync, SNS Hz", 36, "147:12500", "rate", "12.5 in 0"},
    {"first sync, SNS kHz", 36, "147:2000000", "rate", "2 in 1"},
};

// A value with an odd tenth moves on by 0.1 in the direction it came from.
const struct {
    const char *name;
    int type;
    const char *widget;
    double before, typed, kept;
} grid_cases[] = {
    {"up", 23, "dsb_dura", 10.0, 10.3, 10.4},
    {"down", 23, "dsb_dura", 10.6, 10.3, 10.2},
    {"even stays", 31, "dsb_dura", 10.6, 12.0, 12.0},
    {"negative", 29, "dsb_sync_delay", 0.0, -0.3, -0.4},
    {"pulse delay", 29, "dsb_pulse_delay", 1.0, 1.5, 1.6},
};

const char master_question[] =
    "Make sure your slave device is set to SLAVE mode, otherwise it may cause the slave device to "
    "be halted until hardware reboot. Continue?";
const char slave_question[] =
    "Slave mode could cause device halt until MASTER device clock signal be applied. Continue?";
const char save_question[] = "Store SYNC parameters with all config data to FLASH?";

// A sync mode chosen (index -1: the SAVE button) and the question answered.
const struct {
    const char *name;
    int index;
    QMessageBox::StandardButton answer;
    const char *question;
    const char *sent;
} sync_cases[] = {
    {"MASTER, Yes", 1, QMessageBox::Yes, master_question, "(73,1)"},
    {"MASTER, No", 1, QMessageBox::No, master_question, ""},
    {"SLAVE, Yes", 2, QMessageBox::Yes, slave_question, "(73,2)"},
    {"SLAVE, No", 2, QMessageBox::No, slave_question, ""},
    {"NORMAL never asks", 0, QMessageBox::NoButton, "", "(73,0)"},
    {"SAVE, Yes", -1, QMessageBox::Yes, save_question, "(82,0)"},
    {"SAVE, No", -1, QMessageBox::No, save_question, ""},
};

// Drive 12, temperature 20 and rate 12 kHz sent, then the panel collapsed.
const struct {
    const char *name;
    int type;
    const char *reports;
    const char *header;
} header_cases[] = {
    {"23", 23, "152:1234 146:251 153:12000 164:2 181:1",
     "Seed (12.00/12.34 A 20.0/25.1 °C 12kHz/12 kHz Ext: Burst)"},
    {"31", 31, "152:125 146:251 153:12000 164:0 181:0",
     "Seed (12.0/12.5 V 20.0/25.1 °C 12kHz/12 kHz Int: Normal)"},
    {"36", 36, "160:250 146:251 147:12000000", "Seed (12.00/2.50 V 20.0/25.1 °C 12kHz/12000 Hz)"},
};

QString shown_by(panel_base &panel, const QString &name, box_answerer &boxes) {
    if (name == "alarm") {  // the alarm display, and the details box it opens
        if (child<QWidget>(panel, "l_alarm")->isHidden()) {
            return child<QWidget>(panel, "pb_alarm")->isHidden() ? "hidden" : "half shown";
        }
        boxes.expect(QStringLiteral("WARNING"), QMessageBox::Ok);
        child<QPushButton>(panel, "pb_alarm")->click();
        return boxes.shown.last().text;
    }
    if (name.contains(':')) {
        auto *combo = child<QComboBox>(panel, name.section(':', 0, 0));
        auto *model = qobject_cast<QStandardItemModel *>(combo->model());
        return model->item(name.section(':', 1).toInt())->isEnabled() ? "on" : "off";
    }
    if (name == "rate") {  // the rate set-point and its range
        return QString::number(child<QDoubleSpinBox>(panel, "dsb_freq")->value()) + " in " +
               QString::number(child<QComboBox>(panel, "cb_freq_range")->currentIndex());
    }
    QWidget *widget = child<QWidget>(panel, name);
    if (auto *label = qobject_cast<QLabel *>(widget)) {
        return label->text();
    }
    if (auto *bar = qobject_cast<QProgressBar *>(widget)) {
        return QString::number(bar->value());
    }
    return widget->isEnabled() ? "on" : "off";
}

}  // namespace

class test_panel_nanosecond : public boxed_test {
    Q_OBJECT

private slots:
    void poll_list_and_rows_data() { add_rows(descriptions); }
    void poll_list_and_rows() {
        QFETCH(int, row);
        const auto &c = descriptions[row];
        auto panel = make_panel(c.type);
        QStringList codes;
        for (int code : panel->plan().read_codes) {
            codes << QString::number(code);
        }
        const QString ns_polled = QStringLiteral("160 152 146 153 163 180 181 164 161");
        QCOMPARE(codes.join(' '), c.type == 36 ? QString(c.polled) : ns_polled + c.polled);
        QStringList rows;
        for (const parameter_record &record : panel->parameters()) {
            rows << QStringLiteral("%1/%2").arg(record.code).arg(record.decimals);
        }
        QCOMPARE(rows.join(' '), QString(c.rows));
    }

    void setpoints_send_data() { add_rows(setpoints); }
    void setpoints_send() {
        QFETCH(int, row);
        const auto &c = setpoints[row];
        auto panel = make_panel(c.type);
        for (int i = 0; i < c.range; ++i) {
            QTest::keyClick(child<QComboBox>(*panel, "cb_freq_range"), Qt::Key_Down);
        }
        auto *target = child<QWidget>(*panel, c.widget);
        if (auto *spin = qobject_cast<QDoubleSpinBox *>(target)) {
            spin->clear();
            QTest::keyClicks(spin, c.typed);
        }
        boxes->expect(QStringLiteral("Conformation"), QMessageBox::Yes);
        QTest::keyClick(target, Qt::Key_Return);
        QCOMPARE(sent_by(*panel), QString(c.sent));
    }

    void modes_send_their_pairs() {
        auto panel = make_panel(23);
        for (int index = 0; index < 5; ++index) {
            emit child<QComboBox>(*panel, "cb_mode")->activated(index);
        }
        QCOMPARE(sent_by(*panel),
                 QStringLiteral("(36,0) (53,0) (36,0) (53,1) (36,2) (53,0) (36,2) (53,1) "
                                "(36,1) (53,0) (52,1)"));
    }

    void duty_cycle_limits_data() { add_rows(duty_cases); }
    void duty_cycle_limits() {
        QFETCH(int, row);
        const auto &c = duty_cases[row];
        auto panel = make_panel(c.type);
        report_rows(*panel);
        // First sync picks the range by the rate; the limits follow on the next report.
        report(*panel, "152:100 146:200 180:1 181:0 161:0 201:0 200:0 199:0 185:0 184:0 " +
                           QString(c.reports));
        report(*panel, c.reports);
        QCOMPARE(child<QDoubleSpinBox>(*panel, "dsb_dura")->maximum(), c.duration_max);
        QCOMPARE(child<QComboBox>(*panel, "cb_freq_range")->currentIndex(), c.range);
        QCOMPARE(child<QDoubleSpinBox>(*panel, "dsb_freq")->maximum(), c.rate_max);
    }

    void shown_data() { add_rows(shown_cases); }
    void shown() {
        QFETCH(int, row);
        const auto &c = shown_cases[row];
        auto panel = make_panel(c.type);
        report_rows(*panel);
        report(*panel, c.reports);
        QCOMPARE(shown_by(*panel, c.widget, *boxes), QString(c.shown));
    }

    void values_on_a_grid_data() { add_rows(grid_cases); }
    void values_on_a_grid() {
        QFETCH(int, row);
        const auto &c = grid_cases[row];
        auto panel = make_panel(c.type);
        auto *spin = child<QDoubleSpinBox>(*panel, c.widget);
        spin->setValue(c.before);
        spin->setValue(c.typed);
        QCOMPARE(spin->value(), c.kept);
        QCOMPARE(panel->queued_commands(), 0);
    }

    void sync_confirmations_data() { add_rows(sync_cases); }
    void sync_confirmations() {
        QFETCH(int, row);
        const auto &c = sync_cases[row];
        auto panel = make_panel(29);
        report(*panel, "201:0");
        if (*c.question) {
            boxes->expect(QStringLiteral("Conformation"), c.answer);
        }
        auto *sync = child<QComboBox>(*panel, "cb_sync_mode");
        if (c.index < 0) {
            child<QPushButton>(*panel, "pb_save")->click();
        } else {
            sync->setCurrentIndex(c.index);
            emit sync->activated(c.index);
        }
        QCOMPARE(boxes->shown.isEmpty() ? QString() : boxes->shown.first().text,
                 QString(c.question));
        QCOMPARE(sent_by(*panel), QString(c.sent));
        // A refused mode goes back to what the device reports.
        QCOMPARE(sync->currentIndex(), *c.sent ? qMax(c.index, 0) : 0);
    }

    void collapsed_header_data() { add_rows(header_cases); }
    void collapsed_header() {
        QFETCH(int, row);
        const auto &c = header_cases[row];
        const int type = c.type;
        auto panel = make_panel(type);
        report(*panel, c.reports);
        QMetaObject::invokeMethod(panel.get(), "on_cb_freq_range_activated", Q_ARG(int, 1));
        const QString drive = type == 23 ? "dsb_curr" : "dsb_volt";
        for (const QString &name :
             {drive, QStringLiteral("dsb_temp"), QStringLiteral("dsb_freq")}) {
            auto *spin = child<QDoubleSpinBox>(*panel, name);
            spin->setMaximum(1000);
            spin->setValue(name == "dsb_temp" ? 20 : 12);
            boxes->expect(QStringLiteral("Conformation"), QMessageBox::Yes);
            QTest::keyClick(spin, Qt::Key_Return);
        }
        child<QPushButton>(*panel, "laser_tab_button")->click();
        QCOMPARE(child<QPushButton>(*panel, "laser_tab_button")->text(), QString(c.header));
    }
};

QTEST_MAIN(test_panel_nanosecond)
#include "test_panel_nanosecond.moc"
