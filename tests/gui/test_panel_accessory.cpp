// The accessory and comb panels: `heater` (type 4), `pulse_picker` (type 5) and `comb_laser`
// (type 17). Each row runs a script of reports and operator actions, then checks what is sent and
// shown (see check_script() and run_script()).
#include "test_panel_support.h"

using namespace panel_test;

namespace {

// Configuration rows as the devices report them (raw wire values by code): the comb's current
// 10 to 500 mA, its temperature 15 to 35 °C.
const QMap<int, long> raw_rows{{81, 7}, {37, 5000}, {38, 100}, {55, 350}, {54, 150}, {22, 7},
                               {21, 7}, {51, 7},    {23, 7},   {68, 7},   {69, 7},   {70, 7}};

}  // namespace

class test_panel_accessory : public boxed_test {
    Q_OBJECT

private slots:
    void behaviour_data() {
        script_columns();
        const auto row = script_row;
        row("heater cycle, idle tick, then the CAN ID", 4, "",
            "sent=(161,0) (146,0) - (209,0) (161,0);laser_name_label.text=Heater;"
            "alt_but_widget.hidden=false");
        row("heater cycle with the CAN ID known", 4, "rows", "sent=(161,0) (146,0) - (161,0)");
        row("heater off: two clicks ask twice for on", 4,
            "161=0 click:on_off_button click:on_off_button", "sent=(33,1) (33,1)");
        row("heater on: the header switch asks for off, checked or not", 4,
            "161=1 click:start_stop_button_alt click:start_stop_button_alt",
            "sent=(33,0) (33,0);l_onoff.text=ON;on_off_button.checked=true");
        row("heater on may be configured; Write stores nothing", 4, "rows 161=1 write",
            "toolButton.enabled=true;sent=(81,7) (209,0) (161,0)");
        row("heater dialog sends on Write only", 4, "rows up:0 write",
            "sent=(81,8) (209,0) (161,0)");
        row("heater set-point", 4, "type:dsb_temp=87.4 yes ret:dsb_temp", "sent=(18,874)");
        row("heater negative temperature", 4, "146=-15", "l_temp.text=-1.5 °C");
        row("heater header", 4, "161=1 146=874 click:laser_tab_button",
            "laser_tab_button.text=Seed (ON 87.4 °C)");

        row("picker cycle", 5, "",
            "sent=(149,0) (145,0) (146,0) (147,0) (148,0) (144,0) (150,0) (209,0) (149,0);"
            "laser_name_label.text=Pulse Picker;toolButton.hidden=true;alt_but_widget.hidden=true");
        row("picker Close", 5, "mode=0", "sent=(18,0) (19,0) (20,0) (16,1)");
        row("picker Open", 5, "mode=1", "sent=(18,0) (19,0) (20,0) (16,0)");
        row("picker Divide", 5, "mode=2", "sent=(19,0) (20,0) (16,2)");
        row("picker Burst", 5, "mode=3", "sent=(19,1) (20,1) (16,3)");
        row("picker 50 %", 5, "type:dsb_ampl=50 yes ret:dsb_ampl", "sent=(17,4096)");
        row("picker 100 %", 5, "type:dsb_ampl=100 yes ret:dsb_ampl", "sent=(17,0)");
        row("picker 0.7 % truncated, not rounded", 5, "type:dsb_ampl=0.7 yes ret:dsb_ampl",
            "sent=(17,8134)");
        row("picker divider", 5, "type:dsb_divider=7 yes ret:dsb_divider", "sent=(18,7)");
        row("picker reported 0 is Open", 5, "rows 144=0", "l_mode.text=Open;mode.currentText=Open");
        row("picker Divide: no burst sizes", 5, "144=2 ret:dsb_gate ret:dsb_cut",
            "l_mode.text=Divide;dsb_gate.enabled=false;dsb_cut.enabled=false");
        row("picker Burst: burst sizes", 5,
            "144=3 type:dsb_gate=5 yes ret:dsb_gate type:dsb_cut=9 yes ret:dsb_cut",
            "sent=(19,5) (20,9);l_mode.text=Burst");
        row("picker level 8192 - 2049 is 74.98 %", 5, "145=2049",
            "l_amp.text=75.0 %;i_level.value=74");
        row("picker full level", 5, "145=0", "l_amp.text=100.0 %;i_level.value=100");
        row("picker counts, share of 65000", 5, "146=6500 148=650",
            "l_div.text=6500;i_divider.value=10;l_cut.text=650;i_cut.value=1");
        row("picker mode without an item: typed divider kept", 5,
            "rows 144=7 145=0 146=5 147=0 148=0 type:dsb_divider=9 146=6 yes ret:dsb_divider",
            "sent=(18,9);l_mode.text=7");
        row("picker rate", 5, "149=1234567", "l_freq.text=1234.567 kHz");

        row("comb cycle", 17, "rows",
            "sent=(144,0) (145,0) (146,0) (148,0) (164,0) (161,0) (153,0) (160,0) (152,0) (180,0) "
            "(144,0);laser_name_label.text=COMB driver");
        row("comb bias 2.5 V goes negative", 17, "type:dsb_bias=2.5 yes ret:dsb_bias",
            "sent=(24,-250)");
        row("comb bias switch", 17, "click:pb_on_off_bias", "sent=(32,1)");
        row("comb has no power mode", 17, "164=3 type:spin=12.39 yes ret:spin",
            "sent=(17,123);spin_label.text=Drive current");
        row("comb negative readings", 17, "152=-250 153=-42 146=-50 160=1",
            "l_bias_voltage.text=2.50 V;l_bias_current.text=-4.2 mA;temp_label.text=-5.0 °C;"
            "l_bias_state.text=On;pb_on_off_bias.checked=true");
        row("comb dialog sends on Write only", 17, "rows up:0", "sent=(144,0)");
        row("comb mode without an item: typed current kept", 17,
            "rows 164=3 145=1234 146=251 152=-250 type:spin=200 145=1240 146=252 yes ret:spin",
            "sent=(17,2000);mode_label.text=3");
        row("comb TEC current -2.5 A", 17, "180=0", "l_tec_current.text=-2.50 A");
        row("comb limits by its own positions, first sync with the bias", 17,
            "rows 164=3 145=1234 146=251 152=-250",
            "curr_max_label.text=500.0;curr_min_label.text=10.0;temp_max_label.text=35.0;"
            "temp_min_label.text=15.0;spin.text=123.4 mA;spin_temp.text=25.1°C;"
            "dsb_bias.text=2.50 V;tem_indicator.value=50");
    }
    void behaviour() { check_script(*boxes, raw_rows); }
};

QTEST_MAIN(test_panel_accessory)
#include "test_panel_accessory.moc"
