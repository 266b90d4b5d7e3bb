// The picosecond panels (types 20, 26, 28, 35): each row runs a script of reports and operator
// actions, then checks what is sent and shown (see check_script() and run_script()).
#include "test_panel_support.h"

using namespace panel_test;

namespace {

// Configuration rows as the devices report them (raw wire values by code): voltage 10 to 30 V,
// temperature 20 to 40 °C, max energy 50.0.
const QMap<int, long> raw_rows{{81, 5},     {37, 300},   {38, 100},    {55, 400}, {54, 200},
                               {22, 10000}, {21, 3950},  {68, 1000},   {69, 200}, {70, 0},
                               {56, 1000},  {57, -2000}, {58, 150000}, {59, 0},   {61, 500}};

const QString ps_rows =
    "81/0/1 37/1/0.1 38/1/0.1 55/1/0.1 54/1/0.1 22/0/1 21/0/0.1 68/4/0.1 "
    "69/4/0.1 70/4/0.1";
const QString ps_fixed = "(160,0) (152,0) (146,0) (153,0) - (180,0) (181,0) (164,0) (161,0)";
const QString alarm_80 =
    "Output voltage is higher than 80% of input voltage, \nSOLUTION: "
    "increase the input voltage\n";

}  // namespace

class test_panel_picosecond : public boxed_test {
    Q_OBJECT

private slots:
    void behaviour_data() {
        script_columns();
        const auto row = script_row;
        // Poll cycles once every row is known, and the rows.
        row("20 cycle, silent tick 4", 20, "rows", "sent=" + ps_fixed + " (160,0);rows=" + ps_rows);
        row("26 cycle; a row reported as -1 is known", 26, "rows 209=-1",
            "sent=" + ps_fixed +
                " (188,0) (160,0);rows=" + QString(ps_rows).replace("21/0/0.1", "21/0/1") +
                " 56/6/0.1 57/6/0.1 58/6/0.1 59/6/0.1 61/1/0.1");
        row("28 cycle of twelve", 28, "rows",
            "sent=" + ps_fixed + " (201,0) (200,0) (199,0) (160,0);rows=" + ps_rows);
        row("35 cycle without silent tick", 35, "rows",
            "sent=(162,0) (152,0) (146,0) (153,0) (164,0) (161,0) (176,0) (160,0) (162,0);rows=" +
                ps_rows);
        // Modes: the pairs sent, and the name shown for a source and cut count.
        row("20 pulse on demand, int burst", 20, "cb_mode=4 cb_mode=1",
            "sent=(36,1) (53,0) (36,0) (53,1)");
        row("35 external, internal", 35, "cb_mode=1 cb_mode=0", "sent=(36,1) (36,0)");
        row("20 ext burst", 20, "181=3 164=2",
            "l_mode.text=Ext: Burst;dsb_gated_count.enabled=true;dsb_freq.enabled=true");
        row("20 pulse on demand stops the rate", 20, "181=2 164=1",
            "l_mode.text=Pulse on Demand;dsb_freq.enabled=false;cb_freq_range.enabled=false");
        row("20 normal; unknown source keeps the name", 20, "181=0 164=0 164=7",
            "l_mode.text=Int: Normal;dsb_cutted_count.enabled=false");
        row("35 external stops the rate", 35, "164=1",
            "l_mode.text=External;dsb_freq.enabled=false");
        // Emission.
        row("35 switch sends its pair twice", 35, "click:start_stop_button_alt",
            "sent=(34,1) (32,1) (34,1) (32,1)");
        row("35 reports under 162, not 160", 35, "162=1 160=0",
            "l_emission_state.text=ON;pb_on_off.checked=true;cb_mode.enabled=false");
        row("combo boxes ask nothing on Return", 20, "ret:cb_mode ret:cb_freq_range", "");
        // Frequency: the code and scale of each range, and how a rate is shown.
        row("Hz as is, kHz", 28, "dsb_freq=999 yes ret:dsb_freq cb_freq_range=1 yes ret:dsb_freq",
            "sent=(25,999) (25,999000)");
        row("MHz in single precision", 20, "cb_freq_range=2 dsb_freq=16.7 yes ret:dsb_freq",
            "sent=(25,16700001);dsb_freq.maximum=30;dsb_freq.minimum=0.1;l_freq_max.text=30.0");
        row("35 MHz up to 40", 35, "cb_freq_range=2 dsb_freq=45 yes ret:dsb_freq",
            "sent=(25,40000000);l_freq_max.text=40.0");
        row("999 Hz", 20, "153=999", "l_freq.text=999 Hz");
        row("1999 Hz", 35, "153=1999", "l_freq.text=1 kHz");
        row("2.5 MHz", 20, "153=2500000", "l_freq.text=2.5 MHz");
        // First fill: the "MHz" spin box is loaded with the rate over 100 000.
        row("fill 2.5 MHz as 25.0", 20, "153=2500000 152=150 146=300 164=2 181=1 180=4 fill",
            "cb_freq_range.currentText=MHz;dsb_freq.value=25;dsb_volt.value=15;dsb_temp.value=30;"
            "cb_mode.currentText=Ext: Burst;dsb_gated_count.value=4;dsb_cutted_count.value=1");
        row("fill 35: 3.9 MHz as 39.0", 35, "153=3900000 164=1 fill",
            "dsb_freq.value=39;cb_mode.currentText=External");
        row("fill kHz", 28, "153=100000 200=13 201=1 fill",
            "cb_freq_range.currentText=kHz;dsb_freq.value=100;dsb_sync_delay.value=1.3;"
            "cb_sync_mode.currentText=MASTER");
        row("fill energy", 26, "188=57 fill", "dsb_energy.value=5.7");
        // Limits, bars, configuration access.
        row("20 limits; voltage bar without minimum", 20, "152=200 146=300 rows",
            "dsb_volt.maximum=30;dsb_volt.minimum=10;l_volt_min.text=10.0;l_temp_max.text=40.00;"
            "dsb_volt.value=20;dsb_temp.value=30;i_voltage.value=100;i_temp.value=50");
        row("35 both bars from the minimum", 35, "rows 152=200 146=300",
            "i_voltage.value=50;i_temp.value=50");
        row("26 neither bar from the minimum; energy", 26, "rows 152=200 146=300 188=250",
            "i_voltage.value=100;i_temp.value=100;i_energy.value=50;dsb_energy.maximum=50;"
            "l_energy_max.text=50.0;volt_widget.hidden=true;energy_widget.hidden=false");
        row("26 zero max energy", 26, "rows 189=0 188=10",
            "i_energy.value=-1;dsb_energy.maximum=0");
        // Set-points of the family and the collapsed header.
        row("set-points and header", 20,
            "152=150 146=300 153=2000 164=0 181=0 dsb_volt=12.5 yes ret:dsb_volt dsb_temp=25 yes "
            "ret:dsb_temp cb_freq_range=1 dsb_freq=100 yes ret:dsb_freq click:laser_tab_button",
            "sent=(24,125) (18,250) (25,100000);"
            "laser_tab_button.text=Seed (12.5/15.0 V 25.0/30.0 °C 100kHz/2 kHz Int: Normal)");
        row("switch, counts, energy, TEC", 26,
            "click:pb_on_off dsb_gated_count=7 yes ret:dsb_gated_count dsb_cutted_count=3 yes "
            "ret:dsb_cutted_count dsb_energy=5.5 yes ret:dsb_energy click:chb_tec",
            "sent=(32,1) (34,1) (52,7) (53,3) (60,55) (33,1)");
        // Synchronisation.
        row("master refused", 28, "no cb_sync_mode=1",
            "box=Make sure your slave device is set to SLAVE mode, otherwise it may cause the "
            "slave device to be halted until hardware reboot. Continue?");
        row("normal asks nothing, slave asks", 28, "cb_sync_mode=0 yes cb_sync_mode=2",
            "sent=(73,0) (73,2);box=Slave mode could cause device halt until MASTER device clock "
            "signal be applied. Continue?");
        row("save", 28, "yes click:pb_save",
            "sent=(82,0);box=Store SYNC parameters with all config data to FLASH?");
        row("delays on a 0.2 grid", 28,
            "dsb_sync_delay=1.0 dsb_sync_delay=1.3 dsb_pulse_delay=1.6 dsb_pulse_delay=1.3",
            "dsb_sync_delay.value=1.4;dsb_pulse_delay.value=1.2");
        row("delays sent", 28,
            "dsb_sync_delay=2.4 yes ret:dsb_sync_delay dsb_pulse_delay=-1.2 yes "
            "ret:dsb_pulse_delay",
            "sent=(72,24) (71,-12)");
        row("slave takes external modes only", 28, "201=2 200=12 199=-35",
            "l_sync_mode.text=SLAVE;l_sync_delay.text=1.2;l_pulse_delay.text=-3.5;"
            "cb_mode.item0=false;cb_mode.item4=false;cb_mode.item2=true;cb_mode.item3=true");
        row("back to normal", 28, "201=2 201=0", "l_sync_mode.text=NORMAL;cb_mode.item0=true");
        // The module's alarm word.
        row("alarm shown until the first word", 35, "", "l_alarm.hidden=false");
        row("alarm word 0 hides it", 35, "176=0", "l_alarm.hidden=true;pb_alarm.hidden=true");
        row("alarm 257", 35, "176=257 ok click:pb_alarm",
            "box=flag_Rebooted\n" + alarm_80 + ";pb_alarm.hidden=false");
        row("alarm bits without a name", 35, "176=4608 ok click:pb_alarm",
            "box=Output power is close to MAX\n");
    }
    void behaviour() { check_script(*boxes, raw_rows); }
};

QTEST_MAIN(test_panel_picosecond)
#include "test_panel_picosecond.moc"
