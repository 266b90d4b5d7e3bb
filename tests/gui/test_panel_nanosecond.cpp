// The nanosecond driver panels (types 23, 29, 19, 31) and the SNS panel (type 36): rows that run a
// script of reports and operator actions and check what is sent and shown (see check_script() and
// run_script()).
#include "test_panel_support.h"

using namespace panel_test;

namespace {

// Every configuration row, with raw values by code that make sense for every type here: current
// 0.5 to 50 A (voltage 5 to 500 V), temperature 15 to 40 °C.
const QMap<int, long> raw_rows{{81, 5},    {37, 5000}, {38, 50}, {55, 400}, {54, 150}, {22, 10000},
                               {21, 3950}, {56, 250},  {68, 10}, {69, 100}, {70, 50},  {36, 3950},
                               {32, 250},  {24, 1200}, {23, 50}, {25, 150}};

const char master_question[] =
    "Make sure your slave device is set to SLAVE mode, otherwise it may cause the slave device to "
    "be halted until hardware reboot. Continue?";
const char slave_question[] =
    "Slave mode could cause device halt until MASTER device clock signal be applied. Continue?";
const char save_question[] = "Store SYNC parameters with all config data to FLASH?";

}  // namespace

class test_panel_nanosecond : public boxed_test {
    Q_OBJECT

private slots:
    void behaviour_data() {
        script_columns();
        const auto row = script_row;
        // With one configuration row unknown the cycle is ten ticks long, the tenth reads the row.
        row("one row unknown", 23, "rows 209=-1",
            "sent=(160,0) (152,0) (146,0) (153,0) (163,0) (180,0) (181,0) (164,0) (161,0) (209,0) "
            "(160,0)");
        // Set-points by Enter and Yes, after picking the rate range.
        row("current, truncated", 23, "type:dsb_curr=12.349 yes ret:dsb_curr", "sent=(24,1234)");
        row("temperature", 23, "type:dsb_temp=20.5 yes ret:dsb_temp", "sent=(18,205)");
        row("rate in Hz", 23, "type:dsb_freq=500 yes ret:dsb_freq", "sent=(25,500)");
        row("rate in kHz", 23, "cb_freq_range=1 type:dsb_freq=12 yes ret:dsb_freq",
            "sent=(25,12000)");
        row("rate in MHz", 23, "cb_freq_range=2 type:dsb_freq=2.5 yes ret:dsb_freq",
            "sent=(25,2500000)");
        row("duration", 23, "type:dsb_dura=10.4 yes ret:dsb_dura", "sent=(35,104)");
        row("mode combo asks, sends nothing", 23, "yes ret:cb_mode", "");
        row("bias in 0.1 mA", 19, "type:dsb_bias=12.34 yes ret:dsb_bias", "sent=(57,123)");
        row("sync delay", 29, "type:dsb_sync_delay=-1.2 yes ret:dsb_sync_delay", "sent=(72,-12)");
        row("pulse delay", 29, "type:dsb_pulse_delay=2.4 yes ret:dsb_pulse_delay", "sent=(71,24)");
        row("pulse voltage", 31, "type:dsb_volt=12.34 yes ret:dsb_volt", "sent=(24,123)");
        row("triangle bias", 31, "type:dsb_bias=1.5 yes ret:dsb_bias", "sent=(56,15)");
        row("rise factor", 31, "type:dsb_triangle_rise=3.25 yes ret:dsb_triangle_rise",
            "sent=(71,325)");
        row("triangle delay", 31, "type:dsb_pulse_delay=2.5 yes ret:dsb_pulse_delay",
            "sent=(72,25)");
        row("SNS voltage", 36, "type:dsb_volt=1.23 yes ret:dsb_volt", "sent=(32,123)");
        row("bias voltage", 36, "type:dsb_volt_bias=0.0125 yes ret:dsb_volt_bias", "sent=(24,12)");
        row("bias width", 36, "type:dsb_width_bias=5.3 yes ret:dsb_width_bias", "sent=(23,53)");
        row("bias delay", 36, "type:dsb_delay_bias=2.1 yes ret:dsb_delay_bias", "sent=(21,21)");
        row("SNS width", 36, "type:dsb_pulse_width=1.57 yes ret:dsb_pulse_width", "sent=(25,157)");
        row("SNS rate in Hz", 36, "type:dsb_freq=12.5 yes ret:dsb_freq", "sent=(19,12500)");
        row("SNS rate in kHz", 36, "cb_freq_range=1 type:dsb_freq=2 yes ret:dsb_freq",
            "sent=(19,2000000)");
        row("SNS temperature", 36, "type:dsb_temp=30.5 yes ret:dsb_temp", "sent=(18,305)");
        // The modes send their pairs.
        row("modes send their pairs", 23, "cb_mode=0 cb_mode=1 cb_mode=2 cb_mode=3 cb_mode=4",
            "sent=(36,0) (53,0) (36,0) (53,1) (36,2) (53,0) (36,2) (53,1) (36,1) (53,0) (52,1)");
        // The duration's maximum follows the rate (2 % duty, 100 ns under an external trigger); the
        // rate's range and maximum follow the duration, up to each type's cap. Reports: rate 153
        // (Hz), duration 163 (0.1 ns), trigger source 164. The first sync picks the range by the
        // rate; the limits follow on the next report.
        row("1 kHz, the kHz cap", 23,
            "rows 152=100 146=200 180=1 181=0 161=0 201=0 200=0 199=0 185=0 184=0 153=1000 163=100 "
            "164=0 153=1000 163=100 164=0",
            "dsb_dura.maximum=20000;cb_freq_range.currentIndex=1;dsb_freq.maximum=1e+06");
        row("external", 23,
            "rows 152=100 146=200 180=1 181=0 161=0 201=0 200=0 199=0 185=0 184=0 153=1000 163=100 "
            "164=2 153=1000 163=100 164=2",
            "dsb_dura.maximum=100;cb_freq_range.currentIndex=1;dsb_freq.maximum=1e+06");
        row("on demand", 23,
            "rows 152=100 146=200 180=1 181=0 161=0 201=0 200=0 199=0 185=0 184=0 153=1000 163=100 "
            "164=1 153=1000 163=100 164=1",
            "dsb_dura.maximum=20000;cb_freq_range.currentIndex=1;dsb_freq.maximum=1e+06");
        row("truncated", 23,
            "rows 152=100 146=200 180=1 181=0 161=0 201=0 200=0 199=0 185=0 184=0 153=3000 163=100 "
            "164=0 153=3000 163=100 164=0",
            "dsb_dura.maximum=6666.6;cb_freq_range.currentIndex=1;dsb_freq.maximum=1e+06");
        row("1 ns, 10 MHz cap", 23,
            "rows 152=100 146=200 180=1 181=0 161=0 201=0 200=0 199=0 185=0 184=0 153=5000000 "
            "163=10 164=0 153=5000000 163=10 164=0",
            "dsb_dura.maximum=4;cb_freq_range.currentIndex=2;dsb_freq.maximum=10");
        row("1 ns, 5 MHz cap", 29,
            "rows 152=100 146=200 180=1 181=0 161=0 201=0 200=0 199=0 185=0 184=0 153=5000000 "
            "163=10 164=0 153=5000000 163=10 164=0",
            "dsb_dura.maximum=4;cb_freq_range.currentIndex=2;dsb_freq.maximum=5");
        row("10 ns, 2 MHz cap", 31,
            "rows 152=100 146=200 180=1 181=0 161=0 201=0 200=0 199=0 185=0 184=0 153=5000000 "
            "163=100 164=0 153=5000000 163=100 164=0",
            "dsb_dura.maximum=4;cb_freq_range.currentIndex=2;dsb_freq.maximum=2");
        row("5 ns, 2 MHz cap", 31,
            "rows 152=100 146=200 180=1 181=0 161=0 201=0 200=0 199=0 185=0 184=0 153=5000000 "
            "163=50 164=0 153=5000000 163=50 164=0",
            "dsb_dura.maximum=4;cb_freq_range.currentIndex=2;dsb_freq.maximum=2");
        row("kHz", 23,
            "rows 152=100 146=200 180=1 181=0 161=0 201=0 200=0 199=0 185=0 184=0 153=50000 "
            "163=1000 164=0 153=50000 163=1000 164=0",
            "dsb_dura.maximum=400;cb_freq_range.currentIndex=1;dsb_freq.maximum=200");
        row("MHz falls to kHz", 23,
            "rows 152=100 146=200 180=1 181=0 161=0 201=0 200=0 199=0 185=0 184=0 153=2000000 "
            "163=1000 164=0 153=2000000 163=1000 164=0",
            "dsb_dura.maximum=10;cb_freq_range.currentIndex=1;dsb_freq.maximum=200");
        row("kHz falls to Hz", 23,
            "rows 152=100 146=200 180=1 181=0 161=0 201=0 200=0 199=0 185=0 184=0 153=50000 "
            "163=1000000 164=0 153=50000 163=1000000 164=0",
            "dsb_dura.maximum=400;cb_freq_range.currentIndex=0;dsb_freq.maximum=200");
        // What the rows and the reports show: texts, bars, enabled controls and combo items, the
        // alarm and its details box, and the rate set-point with its range loaded by the first
        // sync.
        row("current", 23, "rows 152=1234", "l_curr.text=12.34 A");
        row("Hz", 23, "rows 153=999", "l_freq.text=999 Hz");
        row("kHz", 23, "rows 153=12000", "l_freq.text=12 kHz");
        row("MHz", 23, "rows 153=2500000", "l_freq.text=2.5 MHz");
        row("1500 Hz, whole kHz", 23, "rows 153=1500", "l_freq.text=1 kHz");
        row("999999 Hz, whole kHz", 29, "rows 153=999999", "l_freq.text=999 kHz");
        row("duration", 23, "rows 163=105", "l_dura.text=10.5 ns");
        row("Ext: Burst", 23, "rows 164=2 181=3", "l_mode.text=Ext: Burst");
        row("Int: Normal", 23, "rows 181=0 164=0", "l_mode.text=Int: Normal");
        row("cut count not reported is burst", 23, "rows 164=0",
            "l_mode.text=Int: Burst;dsb_gated_count.enabled=true;dsb_cutted_count.enabled=true");
        row("sync mode, cut count not reported", 29, "rows 164=0", "cb_sync_mode.enabled=false");
        row("on demand", 19, "rows 181=1 164=1", "l_mode.text=Pulse on Demand");
        row("bias", 19, "rows 185=500", "l_bias.text=50.0 mA");
        row("sync delay", 29, "rows 200=-12", "l_sync_delay.text=-1.2 ns");
        row("sync mode", 29, "rows 201=2", "l_sync_mode.text=SLAVE");
        row("pulse voltage", 31, "rows 152=125", "l_volt.text=12.5 V");
        row("triangle bias", 31, "rows 184=300", "l_bias.text=30.0 mA");
        row("rise factor, volt sign", 31, "rows 199=410", "l_triangle_rise.text=4.10 V");
        row("SNS voltage", 36, "rows 160=250", "l_volt.text=2.50 V");
        row("bias voltage", 36, "rows 152=1200", "l_volt_bias.text=1.200 V");
        row("SNS rate", 36, "rows 147=1000000", "l_freq.text=1000 Hz");
        row("SNS width", 36, "rows 153=150", "l_width_sns.text=1.50 t");
        row("bias width", 36, "rows 151=50", "l_width_bias.text=5.0 t");
        row("bias delay", 36, "rows 149=20", "l_delay_bias.text=2.0 t");
        row("SNS TEC", 36, "rows 161=1", "l_tec_state.text=ON");
        row("SNS without alarm", 36, "rows 176=0", "l_alarm.hidden=true;pb_alarm.hidden=true");
        row("SNS alarm 257", 36, "rows 176=256 176=257 ok click:pb_alarm",
            "l_alarm.hidden=false;box=flag_Rebooted\nOutput voltage is higher than 80% of input "
            "voltage, \nSOLUTION: increase the input voltage\n");
        row("SNS alarm bits without a name", 36, "rows 176=4100 ok click:pb_alarm",
            "l_alarm.hidden=false;box=flag_Overtemp\n");
        row("current bar", 23, "rows 152=2525", "i_current.value=50");
        row("temperature bar", 23, "rows 146=275", "i_temp.value=50");
        row("bias bar spans its labels", 19, "rows 185=500", "i_bias.value=33");
        row("pulse voltage bar", 31, "rows 152=2525", "i_volt.value=50");
        row("SNS voltage bar", 36, "rows 160=250", "i_voltage.value=50");
        row("bias voltage bar", 36, "rows 152=1250", "i_volt_bias.value=25");
        row("SNS 50 °C", 36, "rows 146=500", "i_temp.value=100");
        row("SNS 15 °C", 36, "rows 146=150", "i_temp.value=0");
        row("mode, emission on", 23, "rows 160=1", "cb_mode.enabled=false");
        row("mode, emission off", 23, "rows 160=0", "cb_mode.enabled=true");
        row("counts in burst", 19, "rows 181=2", "dsb_gated_count.enabled=true");
        row("counts otherwise", 19, "rows 181=0", "dsb_cutted_count.enabled=false");
        row("rate on demand", 23, "rows 164=1", "dsb_freq.enabled=false");
        row("range on demand", 31, "rows 164=1", "cb_freq_range.enabled=false");
        row("rate, internal", 23, "rows 164=0", "dsb_freq.enabled=true");
        row("SLAVE: burst item", 29, "rows 201=2", "cb_mode.item1=false");
        row("MASTER: external item", 29, "rows 201=1", "cb_mode.item3=false");
        row("MASTER: on demand item", 29, "rows 201=1", "cb_mode.item4=true");
        row("NORMAL: every item", 29, "rows 201=2 201=0", "cb_mode.item2=true");
        row("MASTER: sync delay", 29, "rows 201=1", "dsb_sync_delay.enabled=false");
        row("SLAVE: sync delay", 29, "rows 201=2", "dsb_sync_delay.enabled=true");
        row("SLAVE: pulse delay", 29, "rows 201=2", "dsb_pulse_delay.enabled=true");
        row("NORMAL: pulse delay", 29, "rows 201=0", "dsb_pulse_delay.enabled=false");
        row("sync in Int: Burst", 29, "rows 164=0 181=1", "cb_sync_mode.enabled=false");
        row("sync in Ext: Normal", 29, "rows 164=2 181=0", "cb_sync_mode.enabled=false");
        row("sync on demand", 29, "rows 164=1 181=0", "cb_sync_mode.enabled=true");
        row("sync, emission on", 29, "rows 164=0 181=0 160=1", "cb_sync_mode.enabled=false");
        row("first sync leaves the duration", 23, "rows 163=105", "dsb_dura.value=1");
        row("first sync with a source without a mode", 23,
            "rows 152=100 146=200 153=1000 180=1 181=0 164=5 type:dsb_curr=2 152=300 yes "
            "ret:dsb_curr",
            "sent=(24,200)");
        row("first sync, Hz", 23, "rows 153=500",
            "dsb_freq.value=500;cb_freq_range.currentIndex=0");
        row("first sync, kHz", 29, "rows 153=12000",
            "dsb_freq.value=12;cb_freq_range.currentIndex=1");
        row("first sync, MHz", 19, "rows 153=2500000",
            "dsb_freq.value=2.5;cb_freq_range.currentIndex=2");
        row("first sync, SNS Hz", 36, "rows 147=12500",
            "dsb_freq.value=12.5;cb_freq_range.currentIndex=0");
        row("first sync, SNS kHz", 36, "rows 147=2000000",
            "dsb_freq.value=2;cb_freq_range.currentIndex=1");
        // A value with an odd tenth moves on by 0.1 in the direction it came from.
        row("grid up", 23, "dsb_dura=10.0 dsb_dura=10.3", "dsb_dura.value=10.4");
        row("grid down", 23, "dsb_dura=10.6 dsb_dura=10.3", "dsb_dura.value=10.2");
        row("grid even stays", 31, "dsb_dura=10.6 dsb_dura=12.0", "dsb_dura.value=12");
        row("grid negative", 29, "dsb_sync_delay=0.0 dsb_sync_delay=-0.3",
            "dsb_sync_delay.value=-0.4");
        row("grid pulse delay", 29, "dsb_pulse_delay=1.0 dsb_pulse_delay=1.5",
            "dsb_pulse_delay.value=1.6");
        // A sync mode chosen (or SAVE) and the question answered; a refused mode goes back to what
        // the device reports.
        row("sync MASTER, Yes", 29, "201=0 yes cb_sync_mode=1",
            "sent=(73,1);cb_sync_mode.currentIndex=1;box=" + QString(master_question) + "");
        row("sync MASTER, No", 29, "201=0 no cb_sync_mode=1",
            "cb_sync_mode.currentIndex=0;box=" + QString(master_question) + "");
        row("sync SLAVE, Yes", 29, "201=0 yes cb_sync_mode=2",
            "sent=(73,2);cb_sync_mode.currentIndex=2;box=" + QString(slave_question) + "");
        row("sync SLAVE, No", 29, "201=0 no cb_sync_mode=2",
            "cb_sync_mode.currentIndex=0;box=" + QString(slave_question) + "");
        row("sync NORMAL never asks", 29, "201=0 cb_sync_mode=0",
            "sent=(73,0);cb_sync_mode.currentIndex=0");
        row("sync SAVE, Yes", 29, "201=0 yes click:pb_save",
            "sent=(82,0);cb_sync_mode.currentIndex=0;box=" + QString(save_question) + "");
        row("sync SAVE, No", 29, "201=0 no click:pb_save",
            "cb_sync_mode.currentIndex=0;box=" + QString(save_question) + "");
        // Drive 12, temperature 20 and rate 12 kHz sent, then the panel collapsed.
        row("header 23", 23,
            "152=1234 146=251 153=12000 164=2 181=1 cb_freq_range=1 dsb_curr.maximum=1000 "
            "dsb_curr=12 yes ret:dsb_curr dsb_temp.maximum=1000 dsb_temp=20 yes ret:dsb_temp "
            "dsb_freq.maximum=1000 dsb_freq=12 yes ret:dsb_freq click:laser_tab_button",
            "sent=(24,1200) (18,200) (25,12000);laser_tab_button.text=Seed (12.00/12.34 A "
            "20.0/25.1 °C 12kHz/12 kHz Ext: Burst)");
        row("header 31", 31,
            "152=125 146=251 153=12000 164=0 181=0 cb_freq_range=1 dsb_volt.maximum=1000 "
            "dsb_volt=12 yes ret:dsb_volt dsb_temp.maximum=1000 dsb_temp=20 yes ret:dsb_temp "
            "dsb_freq.maximum=1000 dsb_freq=12 yes ret:dsb_freq click:laser_tab_button",
            "sent=(24,120) (18,200) (25,12000);laser_tab_button.text=Seed (12.0/12.5 V 20.0/25.1 "
            "°C 12kHz/12 kHz Int: Normal)");
        row("header 36", 36,
            "160=250 146=251 147=12000000 cb_freq_range=1 dsb_volt.maximum=1000 dsb_volt=12 yes "
            "ret:dsb_volt dsb_temp.maximum=1000 dsb_temp=20 yes ret:dsb_temp dsb_freq.maximum=1000 "
            "dsb_freq=12 yes ret:dsb_freq click:laser_tab_button",
            "sent=(32,1200) (18,200) (19,12000000);laser_tab_button.text=Seed (12.00/2.50 V "
            "20.0/25.1 °C 12kHz/12000 Hz)");
    }
    void behaviour() { check_script(*boxes, raw_rows); }
};

QTEST_MAIN(test_panel_nanosecond)
#include "test_panel_nanosecond.moc"
