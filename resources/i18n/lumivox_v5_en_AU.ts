<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_AU">
<context>
    <name>comb_laser</name>
    <message>
        <location filename="../../panels/comb_laser.ui" line="+20"/>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <location line="+86"/>
        <source>LASER1</source>
        <translation>LASER1</translation>
    </message>
    <message>
        <location line="+37"/>
        <location line="+77"/>
        <source>Emission</source>
        <translation>Emission</translation>
    </message>
    <message>
        <location line="-64"/>
        <source>type name</source>
        <translation>type name</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Device parameters</source>
        <translation>Device parameters</translation>
    </message>
    <message>
        <location line="+82"/>
        <location line="+559"/>
        <source>CW</source>
        <translation>CW</translation>
    </message>
    <message>
        <location line="-554"/>
        <source>External Analog</source>
        <translation>External Analog</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>External TTL</source>
        <translation>External TTL</translation>
    </message>
    <message>
        <location line="+8"/>
        <location filename="../../panels/comb_laser.cpp" line="+46"/>
        <location line="+1"/>
        <source>Bias</source>
        <translation>Bias</translation>
    </message>
    <message>
        <location line="+69"/>
        <source>Drive current</source>
        <translation>Drive current</translation>
    </message>
    <message>
        <location line="+23"/>
        <location line="+118"/>
        <source> mA</source>
        <translation> mA</translation>
    </message>
    <message>
        <location line="-99"/>
        <source>Step size</source>
        <translation>Step size</translation>
    </message>
    <message>
        <location line="+45"/>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <location line="+41"/>
        <source>25</source>
        <translation>25</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Temperature</source>
        <translation>Temperature</translation>
    </message>
    <message>
        <location line="+23"/>
        <location line="+85"/>
        <source>°C</source>
        <translation>°C</translation>
    </message>
    <message>
        <location line="-66"/>
        <source>TEC</source>
        <translation>TEC</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>10</source>
        <translation>10</translation>
    </message>
    <message>
        <location line="+41"/>
        <source>50</source>
        <translation>50</translation>
    </message>
    <message>
        <location line="+22"/>
        <location filename="../../panels/comb_laser.cpp" line="-9"/>
        <source>Bias voltage</source>
        <translation>Bias voltage</translation>
    </message>
    <message>
        <location line="+23"/>
        <location line="+40"/>
        <source> V</source>
        <translation> V</translation>
    </message>
    <message>
        <location line="-16"/>
        <source>-5</source>
        <translation>-5</translation>
    </message>
    <message>
        <location line="+45"/>
        <source>State values:</source>
        <translation>State values:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Emission:</source>
        <translation>Emission:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>OFF</source>
        <translation>OFF</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Current:</source>
        <translation>Current:</translation>
    </message>
    <message>
        <location line="+7"/>
        <location line="+138"/>
        <source>0.0 mA</source>
        <translation>0.0 mA</translation>
    </message>
    <message>
        <location line="-122"/>
        <source>Power:</source>
        <translation>Power:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>0.0 mW</source>
        <translation>0.0 mW</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Temperature:</source>
        <translation>Temperature:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>0.0 C</source>
        <translation>0.0 C</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Mode:</source>
        <translation>Mode:</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>Bias state:</source>
        <translation>Bias state:</translation>
    </message>
    <message>
        <location line="+7"/>
        <location filename="../../panels/comb_laser.cpp" line="+8"/>
        <source>Off</source>
        <translation>Off</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Bias voltage:</source>
        <translation>Bias voltage:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>0.0 V</source>
        <translation>0.0 V</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Bias current:</source>
        <translation>Bias current:</translation>
    </message>
    <message>
        <location line="+23"/>
        <location filename="../../panels/comb_laser.cpp" line="-3"/>
        <source>TEC current</source>
        <translation>TEC current</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>0.0 A</source>
        <translation>0.0 A</translation>
    </message>
    <message>
        <location filename="../../panels/comb_laser.cpp" line="-5"/>
        <source>V</source>
        <translation>V</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Bias current</source>
        <translation>Bias current</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>mA</source>
        <translation>mA</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>A</source>
        <translation>A</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>On</source>
        <translation>On</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>CAN ID</source>
        <translation>CAN ID</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Max current, mA</source>
        <translation>Max current, mA</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Min current, mA</source>
        <translation>Min current, mA</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Max temperature, °C</source>
        <translation>Max temperature, °C</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Min temperature, °C</source>
        <translation>Min temperature, °C</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Resistance at 25°C, Ohm</source>
        <translation>Resistance at 25°C, Ohm</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Thermistor beta</source>
        <translation>Thermistor beta</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Max tec current, A</source>
        <translation>Max tec current, A</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Monitor responsivity, uA/mW</source>
        <translation>Monitor responsivity, uA/mW</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>coef. P</source>
        <translation>coef. P</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>coef. I</source>
        <translation>coef. I</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>coef. D</source>
        <translation>coef. D</translation>
    </message>
</context>
<context>
    <name>config_dialog</name>
    <message>
        <location filename="../../panels/framework/config_dialog.cpp" line="+16"/>
        <source> configuration</source>
        <translation> configuration</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Device reset is nessesary after CAN ID change</source>
        <translation>Device reset is nessesary after CAN ID change</translation>
    </message>
    <message>
        <location line="+45"/>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Write</source>
        <translation>Write</translation>
    </message>
</context>
<context>
    <name>cw_driver_base</name>
    <message>
        <location filename="../../panels/cw_driver_base.cpp" line="+30"/>
        <location line="+8"/>
        <source>Current</source>
        <translation>Current</translation>
    </message>
    <message>
        <location line="-8"/>
        <location line="+8"/>
        <source>mA</source>
        <translation>mA</translation>
    </message>
    <message>
        <location line="-5"/>
        <source>Temperature</source>
        <translation>Temperature</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>°C</source>
        <translation>°C</translation>
    </message>
    <message>
        <location line="+2"/>
        <location line="+4"/>
        <source>Power</source>
        <translation>Power</translation>
    </message>
    <message>
        <location line="-4"/>
        <location line="+4"/>
        <source>mW</source>
        <translation>mW</translation>
    </message>
    <message>
        <location line="-2"/>
        <location line="+3"/>
        <source>Mode</source>
        <translation>Mode</translation>
    </message>
    <message>
        <location line="+42"/>
        <source>Optical Power</source>
        <translation>Optical Power</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Drive Current</source>
        <translation>Drive Current</translation>
    </message>
</context>
<context>
    <name>cw_panel</name>
    <message>
        <location filename="../../panels/cw_panel.ui" line="+20"/>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <location line="+86"/>
        <source>LASER1</source>
        <translation>LASER1</translation>
    </message>
    <message>
        <location line="+37"/>
        <location line="+77"/>
        <source>Emission</source>
        <translation>Emission</translation>
    </message>
    <message>
        <location line="-64"/>
        <source>type name</source>
        <translation>type name</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Device parameters</source>
        <translation>Device parameters</translation>
    </message>
    <message>
        <location line="+75"/>
        <source>Mode</source>
        <translation>Mode</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Const. Current</source>
        <translation>Const. Current</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>External Analog</source>
        <translation>External Analogue</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>External TTL</source>
        <translation>External TTL</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Const. Power</source>
        <translation>Const. Power</translation>
    </message>
    <message>
        <location line="+44"/>
        <source>Drive current</source>
        <translation>Drive current</translation>
    </message>
    <message>
        <location line="+23"/>
        <source> mA</source>
        <translation> mA</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>Step size</source>
        <translation>Step size</translation>
    </message>
    <message>
        <location line="+45"/>
        <source>0.0</source>
        <translation>0.0</translation>
    </message>
    <message>
        <location line="+41"/>
        <source>1200.0</source>
        <translation>1200.0</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Temperature</source>
        <translation>Temperature</translation>
    </message>
    <message>
        <location line="+23"/>
        <source> °C</source>
        <translation> °C</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>TEC</source>
        <translation>TEC</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>10.0</source>
        <translation>10.0</translation>
    </message>
    <message>
        <location line="+41"/>
        <source>25.0</source>
        <translation>25.0</translation>
    </message>
    <message>
        <location line="+35"/>
        <source>State values:</source>
        <translation>State values:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Current:</source>
        <translation>Current:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>0.0 mA</source>
        <translation>0.0 mA</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Temperature:</source>
        <translation>Temperature:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>0.0 C</source>
        <translation>0.0 C</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Power:</source>
        <translation>Power:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>0.0 V</source>
        <translation>0.0 V</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Mode:</source>
        <translation>Mode:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Emission:</source>
        <translation>Emission:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>OFF</source>
        <translation>OFF</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>Alarm!!!</source>
        <translation>Alarm!!!</translation>
    </message>
    <message>
        <location line="+32"/>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <location filename="../../panels/cw_panel.cpp" line="+24"/>
        <source>CAN ID</source>
        <translation>CAN ID</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Max current, mA</source>
        <translation>Max current, mA</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Min current, mA</source>
        <translation>Min current, mA</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Max power, mW</source>
        <translation>Max power, mW</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Min power, mW</source>
        <translation>Min power, mW</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Max temperature, °C</source>
        <translation>Max temperature, °C</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Min temperature, °C</source>
        <translation>Min temperature, °C</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Resistance at 25°C, Ohm</source>
        <translation>Resistance at 25°C, Ohm</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Thermistor beta</source>
        <translation>Thermistor beta</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Max tec current, A</source>
        <translation>Max tec current, A</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Monitor responsivity, uA/mW</source>
        <translation>Monitor responsivity, uA/mW</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>coef. P</source>
        <translation>coef. P</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>coef. I</source>
        <translation>coef. I</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>coef. D</source>
        <translation>coef. D</translation>
    </message>
</context>
<context>
    <name>heater</name>
    <message>
        <location filename="../../panels/heater.ui" line="+20"/>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <location line="+86"/>
        <source>LASER1</source>
        <translation>LASER1</translation>
    </message>
    <message>
        <location line="+37"/>
        <source>Emission</source>
        <translation>Emission</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>type name</source>
        <translation>type name</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Device parameters</source>
        <translation>Device parameters</translation>
    </message>
    <message>
        <location line="+42"/>
        <source>State</source>
        <translation>State</translation>
    </message>
    <message>
        <location line="+69"/>
        <location filename="../../panels/heater.cpp" line="+28"/>
        <source>Temperature</source>
        <translation>Temperature</translation>
    </message>
    <message>
        <location line="+23"/>
        <source> °C</source>
        <translation> °C</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>15°C</source>
        <translation>15°C</translation>
    </message>
    <message>
        <location line="+41"/>
        <source>100°C</source>
        <translation>100°C</translation>
    </message>
    <message>
        <location line="+51"/>
        <source>State values:</source>
        <translation>State values:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>State:</source>
        <translation>State:</translation>
    </message>
    <message>
        <location line="+7"/>
        <location filename="../../panels/heater.cpp" line="-2"/>
        <source>OFF</source>
        <translation>OFF</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Temperature:</source>
        <translation>Temperature:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>0.0 °C</source>
        <translation>0.0 °C</translation>
    </message>
    <message>
        <location filename="../../panels/heater.cpp" line="-3"/>
        <source>CAN ID</source>
        <translation>CAN ID</translation>
    </message>
    <message>
        <location line="+3"/>
        <location line="+1"/>
        <source>Heater</source>
        <translation>Heater</translation>
    </message>
    <message>
        <location line="-1"/>
        <source>ON</source>
        <translation>ON</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>°C</source>
        <translation>°C</translation>
    </message>
</context>
<context>
    <name>kso_ps_640_panel</name>
    <message>
        <location filename="../../panels/kso_ps_640_panel.ui" line="+20"/>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <location line="+86"/>
        <source>LASER1</source>
        <translation>LASER1</translation>
    </message>
    <message>
        <location line="+37"/>
        <location line="+96"/>
        <source>Power state</source>
        <translation>Power state</translation>
    </message>
    <message>
        <location line="-83"/>
        <source>type name</source>
        <translation>type name</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Device parameters</source>
        <translation>Device parameters</translation>
    </message>
    <message>
        <location line="+85"/>
        <source>Off</source>
        <translation>Off</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>On</source>
        <translation>On</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Mode</source>
        <translation>Mode</translation>
    </message>
    <message>
        <location line="+34"/>
        <source>Alarm!!!</source>
        <translation>Alarm!!!</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <location line="+100"/>
        <source>Min</source>
        <translation>Min</translation>
    </message>
    <message>
        <location line="+38"/>
        <source>Max</source>
        <translation>Max</translation>
    </message>
    <message>
        <location line="+63"/>
        <source>Drive voltage</source>
        <translation>Drive voltage</translation>
    </message>
    <message>
        <location line="+22"/>
        <source> V</source>
        <translation> V</translation>
    </message>
    <message>
        <location line="+31"/>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <location line="+47"/>
        <source>50</source>
        <translation>50</translation>
    </message>
    <message>
        <location line="+66"/>
        <source>Temperature</source>
        <translation>Temperature</translation>
    </message>
    <message>
        <location line="+22"/>
        <source> °C</source>
        <translation> °C</translation>
    </message>
    <message>
        <location line="+31"/>
        <source>10</source>
        <translation>10</translation>
    </message>
    <message>
        <location line="+47"/>
        <source>25</source>
        <translation>25</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>TEC</source>
        <translation>TEC</translation>
    </message>
    <message>
        <location line="+47"/>
        <source>Repetition rate,</source>
        <translation>Repetition rate,</translation>
    </message>
    <message>
        <location line="+50"/>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <location line="+47"/>
        <source>1000</source>
        <translation>1000</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Hz</source>
        <translation>Hz</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>kHz</source>
        <translation>kHz</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>MHz</source>
        <translation>MHz</translation>
    </message>
    <message>
        <location line="+66"/>
        <source>Read values:</source>
        <translation>Read values:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Power state:</source>
        <translation>Power state:</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>OFF</source>
        <translation>OFF</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Voltage:</source>
        <translation>Voltage:</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>0 A</source>
        <translation>0 A</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Temperature:</source>
        <translation>Temperature:</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>0.0 C</source>
        <translation>0.0 C</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Frequency:</source>
        <translation>Frequency:</translation>
    </message>
    <message>
        <location line="+13"/>
        <location line="+23"/>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <location line="-13"/>
        <source>Mode:</source>
        <translation>Mode:</translation>
    </message>
    <message>
        <location filename="../../panels/kso_ps_640_panel.cpp" line="+17"/>
        <source>Internal</source>
        <translation>Internal</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>External</source>
        <translation>External</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Please check all parameters before saving</source>
        <translation>Please check all parameters before saving</translation>
    </message>
</context>
<context>
    <name>main_window</name>
    <message>
        <location filename="../../app/main_window.ui" line="+14"/>
        <source>lumivox v5</source>
        <translation>lumivox v5</translation>
    </message>
    <message>
        <location line="+94"/>
        <source>Main</source>
        <translation>Main</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <location line="+42"/>
        <source>TTL</source>
        <translation>TTL</translation>
    </message>
    <message>
        <location line="+31"/>
        <source>Set Frequency</source>
        <translation>Set Frequency</translation>
    </message>
    <message>
        <location line="+48"/>
        <source>Set Pulse Width</source>
        <translation>Set Pulse Width</translation>
    </message>
    <message>
        <location line="+29"/>
        <location filename="../../app/main_window.cpp" line="+533"/>
        <source>START</source>
        <translation>START</translation>
    </message>
    <message>
        <location line="+96"/>
        <source>COM settings</source>
        <translation>COM settings</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>To be able to configure device CAN ID in the device parameters window please make sure that your PC is connected directly to driver board via mini-USB cable, and &quot;mini USB mode&quot; is set below.</source>
        <translation>To be able to configure device CAN ID in the device parameters window please make sure that your PC is connected directly to driver board via mini-USB cable, and &quot;mini USB mode&quot; is set below.</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>mini USB mode</source>
        <translation>mini USB mode</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Auto connection</source>
        <translation>Auto connection</translation>
    </message>
    <message>
        <location line="+13"/>
        <location filename="../../app/main_window.cpp" line="-127"/>
        <location line="+21"/>
        <location line="+23"/>
        <source>Connect</source>
        <translation>Connect</translation>
    </message>
    <message>
        <location line="+35"/>
        <source>Add</source>
        <translation>Add</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Delete selected rows</source>
        <translation>Delete selected rows</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>Apply</source>
        <translation>Apply</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Lumivox v5
</source>
        <translation>Lumivox v5
</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Software version:</source>
        <translation>Software version:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Software version </source>
        <translation>Software version </translation>
    </message>
    <message>
        <location line="+54"/>
        <location filename="../../app/main_window.cpp" line="-21"/>
        <source>Connection status: DISCONNECTED</source>
        <translation>Connection status: DISCONNECTED</translation>
    </message>
    <message>
        <location line="+64"/>
        <location filename="../../app/main_window.cpp" line="+57"/>
        <source>Emission: OFF</source>
        <translation>Emission: OFF</translation>
    </message>
    <message>
        <location filename="../../app/main_window.cpp" line="-308"/>
        <source>CAN ID</source>
        <translation>CAN ID</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Device name</source>
        <translation>Device name</translation>
    </message>
    <message>
        <location line="+240"/>
        <source>Disconnect</source>
        <translation>Disconnect</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Connection status: CONNECTED</source>
        <translation>Connection status: CONNECTED</translation>
    </message>
    <message>
        <location line="+66"/>
        <source>Emission: ON</source>
        <translation>Emission: ON</translation>
    </message>
    <message>
        <location line="+44"/>
        <source>STOP</source>
        <translation>STOP</translation>
    </message>
</context>
<context>
    <name>ns23_panel</name>
    <message>
        <location filename="../../panels/ns23_panel.ui" line="+20"/>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <location line="+86"/>
        <source>LASER1</source>
        <translation>LASER1</translation>
    </message>
    <message>
        <location line="+37"/>
        <source>Emission</source>
        <translation>Emission</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>type name</source>
        <translation>type name</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Device parameters</source>
        <translation>Device parameters</translation>
    </message>
    <message>
        <location line="+42"/>
        <source>Power state</source>
        <translation>Power state</translation>
    </message>
    <message>
        <location line="+33"/>
        <location line="+910"/>
        <source>Mode:</source>
        <translation>Mode:</translation>
    </message>
    <message>
        <location line="-889"/>
        <source>Int: Normal</source>
        <translation>Int: Normal</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Int: Burst</source>
        <translation>Int: Burst</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Ext: Normal</source>
        <translation>Ext: Normal</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Ext: Burst</source>
        <translation>Ext: Burst</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Pulse on Demand</source>
        <translation>Pulse on Demand</translation>
    </message>
    <message>
        <location line="+16"/>
        <location line="+819"/>
        <source>N:</source>
        <translation>N:</translation>
    </message>
    <message>
        <location line="-780"/>
        <location line="+797"/>
        <source>M:</source>
        <translation>M:</translation>
    </message>
    <message>
        <location line="-699"/>
        <source>Drive current</source>
        <translation>Drive current</translation>
    </message>
    <message>
        <location line="+130"/>
        <source>Repetition rate,</source>
        <translation>Repetition rate,</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>Hz</source>
        <translation>Hz</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>kHz</source>
        <translation>kHz</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>MHz</source>
        <translation>MHz</translation>
    </message>
    <message>
        <location line="+119"/>
        <source>Temperature</source>
        <translation>Temperature</translation>
    </message>
    <message>
        <location line="+44"/>
        <source>TEC</source>
        <translation>TEC</translation>
    </message>
    <message>
        <location line="+90"/>
        <source>Electrical pulse duration,ns</source>
        <translation>Electrical pulse duration,ns</translation>
    </message>
    <message>
        <location line="+164"/>
        <source>State values:</source>
        <translation>State values:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Power state:</source>
        <translation>Power state:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>OFF</source>
        <translation>OFF</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Current</source>
        <translation>Current</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>0 A</source>
        <translation>0 A</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Temperature:</source>
        <translation>Temperature:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>0.0 C</source>
        <translation>0.0 C</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Frequency:</source>
        <translation>Frequency:</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Duration:</source>
        <translation>Duration:</translation>
    </message>
</context>
<context>
    <name>ns29_panel</name>
    <message>
        <location filename="../../panels/ns29_panel.ui" line="+20"/>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <location line="+86"/>
        <source>LASER1</source>
        <translation>LASER1</translation>
    </message>
    <message>
        <location line="+37"/>
        <source>Emission</source>
        <translation>Emission</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>type name</source>
        <translation>type name</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Device parameters</source>
        <translation>Device parameters</translation>
    </message>
    <message>
        <location line="+42"/>
        <source>Power state</source>
        <translation>Power state</translation>
    </message>
    <message>
        <location line="+33"/>
        <location line="+1134"/>
        <source>Mode:</source>
        <translation>Mode:</translation>
    </message>
    <message>
        <location line="-1113"/>
        <source>Int: Normal</source>
        <translation>Int: Normal</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Int: Burst</source>
        <translation>Int: Burst</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Ext: Normal</source>
        <translation>Ext: Normal</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Ext: Burst</source>
        <translation>Ext: Burst</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Pulse on Demand</source>
        <translation>Pulse on Demand</translation>
    </message>
    <message>
        <location line="+16"/>
        <location line="+1043"/>
        <source>N:</source>
        <translation>N:</translation>
    </message>
    <message>
        <location line="-1004"/>
        <location line="+1021"/>
        <source>M:</source>
        <translation>M:</translation>
    </message>
    <message>
        <location line="-923"/>
        <source>Drive current</source>
        <translation>Drive current</translation>
    </message>
    <message>
        <location line="+130"/>
        <source>Repetition rate,</source>
        <translation>Repetition rate,</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>Hz</source>
        <translation>Hz</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>kHz</source>
        <translation>kHz</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>MHz</source>
        <translation>MHz</translation>
    </message>
    <message>
        <location line="+119"/>
        <source>Temperature</source>
        <translation>Temperature</translation>
    </message>
    <message>
        <location line="+44"/>
        <source>TEC</source>
        <translation>TEC</translation>
    </message>
    <message>
        <location line="+90"/>
        <source>Electrical pulse duration,ns</source>
        <translation>Electrical pulse duration,ns</translation>
    </message>
    <message>
        <location line="+133"/>
        <location filename="../../panels/ns29_panel.cpp" line="+18"/>
        <location line="+2"/>
        <source>Sync mode</source>
        <translation>Sync mode</translation>
    </message>
    <message>
        <location line="+23"/>
        <location filename="../../panels/ns29_panel.cpp" line="+10"/>
        <source>NORMAL</source>
        <translation>NORMAL</translation>
    </message>
    <message>
        <location line="+5"/>
        <location filename="../../panels/ns29_panel.cpp" line="+0"/>
        <source>MASTER</source>
        <translation>MASTER</translation>
    </message>
    <message>
        <location line="+5"/>
        <location filename="../../panels/ns29_panel.cpp" line="+0"/>
        <source>SLAVE</source>
        <translation>SLAVE</translation>
    </message>
    <message>
        <location line="+31"/>
        <source>Save to config</source>
        <translation>Save to config</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>SAVE</source>
        <translation>SAVE</translation>
    </message>
    <message>
        <location line="+37"/>
        <location filename="../../panels/ns29_panel.cpp" line="-16"/>
        <source>Sync delay</source>
        <translation>Sync delay</translation>
    </message>
    <message>
        <location line="+49"/>
        <location filename="../../panels/ns29_panel.cpp" line="+2"/>
        <source>Pulse delay</source>
        <translation>Pulse delay</translation>
    </message>
    <message>
        <location line="+98"/>
        <source>State values:</source>
        <translation>State values:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Power state:</source>
        <translation>Power state:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>OFF</source>
        <translation>OFF</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Current</source>
        <translation>Current</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>0 A</source>
        <translation>0 A</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Temperature:</source>
        <translation>Temperature:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>0.0 C</source>
        <translation>0.0 C</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Frequency:</source>
        <translation>Frequency:</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Duration:</source>
        <translation>Duration:</translation>
    </message>
    <message>
        <location line="+68"/>
        <source>Sync mode:</source>
        <translation>Sync mode:</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Sync delay:</source>
        <translation>Sync delay:</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Pulse delay:</source>
        <translation>Pulse delay:</translation>
    </message>
    <message>
        <location filename="../../panels/ns29_panel.cpp" line="-2"/>
        <location line="+2"/>
        <source>ns</source>
        <translation>ns</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Make sure your slave device is set to SLAVE mode, otherwise it may cause the slave device to be halted until hardware reboot. Continue?</source>
        <translation>Make sure your slave device is set to SLAVE mode, otherwise it may cause the slave device to be halted until hardware reboot. Continue?</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Slave mode could cause device halt until MASTER device clock signal be applied. Continue?</source>
        <translation>Slave mode could cause device halt until MASTER device clock signal be applied. Continue?</translation>
    </message>
    <message>
        <location line="+5"/>
        <location line="+11"/>
        <source>Conformation</source>
        <translation>Conformation</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Store SYNC parameters with all config data to FLASH?</source>
        <translation>Store SYNC parameters with all config data to FLASH?</translation>
    </message>
</context>
<context>
    <name>ns_driver_base</name>
    <message>
        <location filename="../../panels/ns_driver_base.cpp" line="+38"/>
        <source>Current</source>
        <translation>Current</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>A</source>
        <translation>A</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Int: Normal</source>
        <translation>Int: Normal</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Int: Burst</source>
        <translation>Int: Burst</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Ext: Normal</source>
        <translation>Ext: Normal</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Ext: Burst</source>
        <translation>Ext: Burst</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+56"/>
        <source>Pulse on Demand</source>
        <translation>Pulse on Demand</translation>
    </message>
    <message>
        <location line="-51"/>
        <source>CAN ID</source>
        <translation>CAN ID</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Max current, A</source>
        <translation>Max current, A</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Min current, A</source>
        <translation>Min current, A</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Max temperature, °C</source>
        <translation>Max temperature, °C</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Min temperature, °C</source>
        <translation>Min temperature, °C</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Resistance at 25°C, Ohm</source>
        <translation>Resistance at 25°C, Ohm</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Thermistor beta</source>
        <translation>Thermistor beta</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Nominal diode voltage, V</source>
        <translation>Nominal diode voltage, V</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>coef. P</source>
        <translation>coef. P</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>coef. I</source>
        <translation>coef. I</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>coef. D</source>
        <translation>coef. D</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Temperature</source>
        <translation>Temperature</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>°C</source>
        <translation>°C</translation>
    </message>
    <message>
        <location line="+2"/>
        <location line="+25"/>
        <source>Frequency</source>
        <translation>Frequency</translation>
    </message>
    <message>
        <location line="-25"/>
        <location line="+25"/>
        <source>Hz</source>
        <translation>Hz</translation>
    </message>
    <message>
        <location line="-17"/>
        <source>Pulse duration</source>
        <translation>Pulse duration</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>ns</source>
        <translation>ns</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Gated count</source>
        <translation>Gated count</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cut count</source>
        <translation>Cut count</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+12"/>
        <source>Trigger source</source>
        <translation>Trigger source</translation>
    </message>
    <message>
        <location line="-9"/>
        <source>Internal</source>
        <translation>Internal</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>External</source>
        <translation>External</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Bias</source>
        <translation>Bias</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>mA</source>
        <translation>mA</translation>
    </message>
    <message>
        <location line="+73"/>
        <source>kHz</source>
        <translation>kHz</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>MHz</source>
        <translation>MHz</translation>
    </message>
    <message>
        <location line="+12"/>
        <source> Hz</source>
        <translation> Hz</translation>
    </message>
    <message>
        <location line="+3"/>
        <source> kHz</source>
        <translation> kHz</translation>
    </message>
    <message>
        <location line="+2"/>
        <source> MHz</source>
        <translation> MHz</translation>
    </message>
    <message>
        <location filename="../../panels/ns_gss_triangle_panel.cpp" line="+12"/>
        <source>Voltage</source>
        <translation>Voltage</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>V</source>
        <translation>V</translation>
    </message>
</context>
<context>
    <name>ns_gss_id19</name>
    <message>
        <location filename="../../panels/ns_gss_id19.ui" line="+20"/>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <location line="+86"/>
        <source>LASER1</source>
        <translation>LASER1</translation>
    </message>
    <message>
        <location line="+37"/>
        <source>Emission</source>
        <translation>Emission</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>type name</source>
        <translation>type name</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Device parameters</source>
        <translation>Device parameters</translation>
    </message>
    <message>
        <location line="+42"/>
        <source>Power state</source>
        <translation>Power state</translation>
    </message>
    <message>
        <location line="+33"/>
        <location line="+1043"/>
        <source>Mode:</source>
        <translation>Mode:</translation>
    </message>
    <message>
        <location line="-1022"/>
        <source>Int: Normal</source>
        <translation>Int: Normal</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Int: Burst</source>
        <translation>Int: Burst</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Ext: Normal</source>
        <translation>Ext: Normal</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Ext: Burst</source>
        <translation>Ext: Burst</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Pulse on Demand</source>
        <translation>Pulse on Demand</translation>
    </message>
    <message>
        <location line="+16"/>
        <location line="+952"/>
        <source>N:</source>
        <translation>N:</translation>
    </message>
    <message>
        <location line="-913"/>
        <location line="+930"/>
        <source>M:</source>
        <translation>M:</translation>
    </message>
    <message>
        <location line="-832"/>
        <source>Drive current</source>
        <translation>Drive current</translation>
    </message>
    <message>
        <location line="+130"/>
        <source>Repetition rate,</source>
        <translation>Repetition rate,</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>Hz</source>
        <translation>Hz</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>kHz</source>
        <translation>kHz</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>MHz</source>
        <translation>MHz</translation>
    </message>
    <message>
        <location line="+119"/>
        <source>Temperature</source>
        <translation>Temperature</translation>
    </message>
    <message>
        <location line="+47"/>
        <source>TEC</source>
        <translation>TEC</translation>
    </message>
    <message>
        <location line="+90"/>
        <source>Electrical pulse duration,ns</source>
        <translation>Electrical pulse duration,ns</translation>
    </message>
    <message>
        <location line="+133"/>
        <source>Bias</source>
        <translation>Bias</translation>
    </message>
    <message>
        <location line="+161"/>
        <source>State values:</source>
        <translation>State values:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Power state:</source>
        <translation>Power state:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>OFF</source>
        <translation>OFF</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Current</source>
        <translation>Current</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>0 A</source>
        <translation>0 A</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Temperature:</source>
        <translation>Temperature:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>0.0 C</source>
        <translation>0.0 C</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Frequency:</source>
        <translation>Frequency:</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Duration:</source>
        <translation>Duration:</translation>
    </message>
    <message>
        <location line="+68"/>
        <source>Bias:</source>
        <translation>Bias:</translation>
    </message>
</context>
<context>
    <name>ns_gss_triangle_panel</name>
    <message>
        <location filename="../../panels/ns_gss_triangle_panel.ui" line="+20"/>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <location line="+86"/>
        <source>LASER1</source>
        <translation>LASER1</translation>
    </message>
    <message>
        <location line="+37"/>
        <source>Emission</source>
        <translation>Emission</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>type name</source>
        <translation>type name</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Device parameters</source>
        <translation>Device parameters</translation>
    </message>
    <message>
        <location line="+42"/>
        <source>Power state</source>
        <translation>Power state</translation>
    </message>
    <message>
        <location line="+33"/>
        <location line="+1158"/>
        <source>Mode:</source>
        <translation>Mode:</translation>
    </message>
    <message>
        <location line="-1137"/>
        <source>Int: Normal</source>
        <translation>Int: Normal</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Int: Burst</source>
        <translation>Int: Burst</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Ext: Normal</source>
        <translation>Ext: Normal</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Ext: Burst</source>
        <translation>Ext: Burst</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Pulse on Demand</source>
        <translation>Pulse on Demand</translation>
    </message>
    <message>
        <location line="+16"/>
        <location line="+1067"/>
        <source>N:</source>
        <translation>N:</translation>
    </message>
    <message>
        <location line="-1028"/>
        <location line="+1045"/>
        <source>M:</source>
        <translation>M:</translation>
    </message>
    <message>
        <location line="-947"/>
        <source>Voltage</source>
        <translation>Voltage</translation>
    </message>
    <message>
        <location line="+130"/>
        <source>Repetition rate,</source>
        <translation>Repetition rate,</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>Hz</source>
        <translation>Hz</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>kHz</source>
        <translation>kHz</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>MHz</source>
        <translation>MHz</translation>
    </message>
    <message>
        <location line="+119"/>
        <source>Temperature</source>
        <translation>Temperature</translation>
    </message>
    <message>
        <location line="+47"/>
        <source>TEC</source>
        <translation>TEC</translation>
    </message>
    <message>
        <location line="+90"/>
        <source>Electrical pulse duration,ns</source>
        <translation>Electrical pulse duration,ns</translation>
    </message>
    <message>
        <location line="+133"/>
        <source>Bias</source>
        <translation>Bias</translation>
    </message>
    <message>
        <location line="+135"/>
        <location filename="../../panels/ns_gss_triangle_panel.cpp" line="+18"/>
        <source>Triangle rise factor</source>
        <translation>Triangle rise factor</translation>
    </message>
    <message>
        <location line="+46"/>
        <location filename="../../panels/ns_gss_triangle_panel.cpp" line="+2"/>
        <source>Pulse delay</source>
        <translation>Pulse delay</translation>
    </message>
    <message>
        <location line="+95"/>
        <source>State values:</source>
        <translation>State values:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Power state:</source>
        <translation>Power state:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>OFF</source>
        <translation>OFF</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Voltage:</source>
        <translation>Voltage:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>0.0 V</source>
        <translation>0.0 V</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Temperature:</source>
        <translation>Temperature:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>0.0 C</source>
        <translation>0.0 C</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Frequency:</source>
        <translation>Frequency:</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Duration:</source>
        <translation>Duration:</translation>
    </message>
    <message>
        <location line="+68"/>
        <source>Bias:</source>
        <translation>Bias:</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Tr. rise factor:</source>
        <translation>Tr. rise factor:</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Pulse delay:</source>
        <translation>Pulse delay:</translation>
    </message>
    <message>
        <location filename="../../panels/ns_gss_triangle_panel.cpp" line="+0"/>
        <source>ns</source>
        <translation>ns</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>CAN ID</source>
        <translation>CAN ID</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Max voltage, V</source>
        <translation>Max voltage, V</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Min voltage, V</source>
        <translation>Min voltage, V</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Max temperature, °C</source>
        <translation>Max temperature, °C</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Min temperature, °C</source>
        <translation>Min temperature, °C</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Resistance at 25°C, Ohm</source>
        <translation>Resistance at 25°C, Ohm</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Thermistor beta</source>
        <translation>Thermistor beta</translation>
    </message>
    <message>
        <location line="+7"/>
        <source> V</source>
        <translation> V</translation>
    </message>
</context>
<context>
    <name>panel_base</name>
    <message>
        <location filename="../../panels/framework/panel_base.cpp" line="+45"/>
        <source>To be able to configure device CAN ID in the device parameters window please make sure, that your PC is connected directly to driver board via mini-USB cable, and &quot;mini USB mode&quot; is set in Settings tab.</source>
        <translation>To be able to configure device CAN ID in the device parameters window please make sure, that your PC is connected directly to driver board via mini-USB cable, and &quot;mini USB mode&quot; is set in Settings tab.</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Output voltage is higher than 80% of input voltage, 
SOLUTION: increase the input voltage</source>
        <translation>Output voltage is higher than 80% of input voltage, 
SOLUTION: increase the input voltage</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Output power is close to MAX</source>
        <translation>Output power is close to MAX</translation>
    </message>
    <message>
        <location line="+145"/>
        <location line="+4"/>
        <source>Emission</source>
        <translation>Emission</translation>
    </message>
    <message>
        <location line="-3"/>
        <location line="+14"/>
        <source>ON</source>
        <translation>ON</translation>
    </message>
    <message>
        <location line="-14"/>
        <location line="+14"/>
        <source>OFF</source>
        <translation>OFF</translation>
    </message>
    <message>
        <location line="-1"/>
        <location line="+3"/>
        <source>TEC</source>
        <translation>TEC</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Alarm</source>
        <translation>Alarm</translation>
    </message>
    <message>
        <location line="+59"/>
        <source>Command %1</source>
        <translation>Command %1</translation>
    </message>
    <message>
        <location line="+131"/>
        <source>WARNING</source>
        <translation>WARNING</translation>
    </message>
    <message>
        <location line="+53"/>
        <source>Conformation</source>
        <translation>Conformation</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Send command on </source>
        <translation>Send command on </translation>
    </message>
</context>
<context>
    <name>program</name>
    <message>
        <location filename="../../app/program.cpp" line="+77"/>
        <source>Controls laser-diode drivers, laser modules and accessories on a CAN bus.</source>
        <translation>Controls laser-diode drivers, laser modules and accessories on a CAN bus.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Record what the devices report into CSV files in &lt;dir&gt;; remembered for the next runs until &quot;--record off&quot;.</source>
        <translation>Record what the devices report into CSV files in &lt;dir&gt;; remembered for the next runs until &quot;--record off&quot;.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Open the trend window with the main window; with &lt;file&gt;, show that recording alone.</source>
        <translation>Open the trend window with the main window; with &lt;file&gt;, show that recording alone.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Write every frame sent and every line received to the debug log.</source>
        <translation>Write every frame sent and every line received to the debug log.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>A recording for --trends.</source>
        <translation>A recording for --trends.</translation>
    </message>
    <message>
        <location line="+18"/>
        <source>Unexpected argument: %1 (a recording goes after --trends).</source>
        <translation>Unexpected argument: %1 (a recording goes after --trends).</translation>
    </message>
    <message>
        <location line="+49"/>
        <source>Recording</source>
        <translation>Recording</translation>
    </message>
</context>
<context>
    <name>ps20_panel</name>
    <message>
        <location filename="../../panels/ps20_panel.ui" line="+20"/>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <location line="+86"/>
        <source>LASER1</source>
        <translation>LASER1</translation>
    </message>
    <message>
        <location line="+37"/>
        <location line="+96"/>
        <source>Power state</source>
        <translation>Power state</translation>
    </message>
    <message>
        <location line="-83"/>
        <source>type name</source>
        <translation>type name</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Device parameters</source>
        <translation>Device parameters</translation>
    </message>
    <message>
        <location line="+85"/>
        <source>Off</source>
        <translation>Off</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>On</source>
        <translation>On</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Mode</source>
        <translation>Mode</translation>
    </message>
    <message>
        <location line="+98"/>
        <source>Min</source>
        <translation>Min</translation>
    </message>
    <message>
        <location line="+38"/>
        <source>Max</source>
        <translation>Max</translation>
    </message>
    <message>
        <location line="+63"/>
        <source>Drive voltage</source>
        <translation>Drive voltage</translation>
    </message>
    <message>
        <location line="+22"/>
        <source> V</source>
        <translation> V</translation>
    </message>
    <message>
        <location line="+31"/>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <location line="+47"/>
        <source>50</source>
        <translation>50</translation>
    </message>
    <message>
        <location line="+66"/>
        <source>Temperature</source>
        <translation>Temperature</translation>
    </message>
    <message>
        <location line="+22"/>
        <source> °C</source>
        <translation> °C</translation>
    </message>
    <message>
        <location line="+31"/>
        <source>10</source>
        <translation>10</translation>
    </message>
    <message>
        <location line="+47"/>
        <source>25</source>
        <translation>25</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>TEC</source>
        <translation>TEC</translation>
    </message>
    <message>
        <location line="+47"/>
        <source>Repetition rate,</source>
        <translation>Repetition rate,</translation>
    </message>
    <message>
        <location line="+50"/>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <location line="+47"/>
        <source>1000</source>
        <translation>1000</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Hz</source>
        <translation>Hz</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>kHz</source>
        <translation>kHz</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>MHz</source>
        <translation>MHz</translation>
    </message>
    <message>
        <location line="+48"/>
        <location line="+277"/>
        <source>N:</source>
        <translation>N:</translation>
    </message>
    <message>
        <location line="-258"/>
        <source>N</source>
        <translation>N</translation>
    </message>
    <message>
        <location line="+41"/>
        <location line="+240"/>
        <source>M:</source>
        <translation>M:</translation>
    </message>
    <message>
        <location line="-218"/>
        <source>M</source>
        <translation>M</translation>
    </message>
    <message>
        <location line="+96"/>
        <source>Read values:</source>
        <translation>Read values:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Power state:</source>
        <translation>Power state:</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>OFF</source>
        <translation>OFF</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Voltage:</source>
        <translation>Voltage:</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>0 A</source>
        <translation>0 A</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Temperature:</source>
        <translation>Temperature:</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>0.0 C</source>
        <translation>0.0 C</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Frequency:</source>
        <translation>Frequency:</translation>
    </message>
    <message>
        <location line="+13"/>
        <location line="+23"/>
        <location line="+23"/>
        <location line="+23"/>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <location line="-13"/>
        <source>Mode:</source>
        <translation>Mode:</translation>
    </message>
</context>
<context>
    <name>ps26_panel</name>
    <message>
        <location filename="../../panels/ps26_panel.ui" line="+20"/>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <location line="+86"/>
        <source>LASER1</source>
        <translation>LASER1</translation>
    </message>
    <message>
        <location line="+37"/>
        <location line="+96"/>
        <source>Power state</source>
        <translation>Power state</translation>
    </message>
    <message>
        <location line="-83"/>
        <source>type name</source>
        <translation>type name</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Device parameters</source>
        <translation>Device parameters</translation>
    </message>
    <message>
        <location line="+85"/>
        <source>Off</source>
        <translation>Off</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>On</source>
        <translation>On</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Mode</source>
        <translation>Mode</translation>
    </message>
    <message>
        <location line="+98"/>
        <source>Min</source>
        <translation>Min</translation>
    </message>
    <message>
        <location line="+38"/>
        <source>Max</source>
        <translation>Max</translation>
    </message>
    <message>
        <location line="+63"/>
        <location filename="../../panels/ps26_panel.cpp" line="+13"/>
        <source>Pulse energy</source>
        <translation>Pulse energy</translation>
    </message>
    <message>
        <location line="+50"/>
        <source>0.0</source>
        <translation>0.0</translation>
    </message>
    <message>
        <location line="+47"/>
        <source>100.0</source>
        <translation>100.0</translation>
    </message>
    <message>
        <location line="+66"/>
        <source>Drive voltage</source>
        <translation>Drive voltage</translation>
    </message>
    <message>
        <location line="+22"/>
        <source> V</source>
        <translation> V</translation>
    </message>
    <message>
        <location line="+31"/>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <location line="+47"/>
        <source>50</source>
        <translation>50</translation>
    </message>
    <message>
        <location line="+66"/>
        <source>Temperature</source>
        <translation>Temperature</translation>
    </message>
    <message>
        <location line="+22"/>
        <source> °C</source>
        <translation> °C</translation>
    </message>
    <message>
        <location line="+31"/>
        <source>10</source>
        <translation>10</translation>
    </message>
    <message>
        <location line="+47"/>
        <source>25</source>
        <translation>25</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>TEC</source>
        <translation>TEC</translation>
    </message>
    <message>
        <location line="+47"/>
        <source>Repetition rate,</source>
        <translation>Repetition rate,</translation>
    </message>
    <message>
        <location line="+50"/>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <location line="+47"/>
        <source>1000</source>
        <translation>1000</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Hz</source>
        <translation>Hz</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>kHz</source>
        <translation>kHz</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>MHz</source>
        <translation>MHz</translation>
    </message>
    <message>
        <location line="+48"/>
        <location line="+300"/>
        <source>N:</source>
        <translation>N:</translation>
    </message>
    <message>
        <location line="-281"/>
        <source>N</source>
        <translation>N</translation>
    </message>
    <message>
        <location line="+41"/>
        <location line="+263"/>
        <source>M:</source>
        <translation>M:</translation>
    </message>
    <message>
        <location line="-241"/>
        <source>M</source>
        <translation>M</translation>
    </message>
    <message>
        <location line="+96"/>
        <source>Read values:</source>
        <translation>Read values:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Power state:</source>
        <translation>Power state:</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>OFF</source>
        <translation>OFF</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Voltage:</source>
        <translation>Voltage:</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>0 A</source>
        <translation>0 A</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Pulse energy:</source>
        <translation>Pulse energy:</translation>
    </message>
    <message>
        <location line="+13"/>
        <location line="+46"/>
        <location line="+23"/>
        <location line="+23"/>
        <location line="+23"/>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <location line="-105"/>
        <source>Temperature:</source>
        <translation>Temperature:</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>0.0 C</source>
        <translation>0.0 C</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Frequency:</source>
        <translation>Frequency:</translation>
    </message>
    <message>
        <location line="+69"/>
        <source>Mode:</source>
        <translation>Mode:</translation>
    </message>
    <message>
        <location filename="../../panels/ps26_panel.cpp" line="+19"/>
        <source>poly. a3</source>
        <translation>poly. a3</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>poly. a2</source>
        <translation>poly. a2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>poly. a1</source>
        <translation>poly. a1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>poly. a0</source>
        <translation>poly. a0</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>max energy</source>
        <translation>max energy</translation>
    </message>
</context>
<context>
    <name>ps28_panel</name>
    <message>
        <location filename="../../panels/ps28_panel.ui" line="+20"/>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <location line="+86"/>
        <source>LASER1</source>
        <translation>LASER1</translation>
    </message>
    <message>
        <location line="+37"/>
        <location line="+96"/>
        <source>Power state</source>
        <translation>Power state</translation>
    </message>
    <message>
        <location line="-83"/>
        <source>type name</source>
        <translation>type name</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Device parameters</source>
        <translation>Device parameters</translation>
    </message>
    <message>
        <location line="+85"/>
        <source>Off</source>
        <translation>Off</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>On</source>
        <translation>On</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Mode</source>
        <translation>Mode</translation>
    </message>
    <message>
        <location line="+98"/>
        <source>Min</source>
        <translation>Min</translation>
    </message>
    <message>
        <location line="+38"/>
        <source>Max</source>
        <translation>Max</translation>
    </message>
    <message>
        <location line="+63"/>
        <source>Drive voltage</source>
        <translation>Drive voltage</translation>
    </message>
    <message>
        <location line="+22"/>
        <source> V</source>
        <translation> V</translation>
    </message>
    <message>
        <location line="+31"/>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <location line="+47"/>
        <source>50</source>
        <translation>50</translation>
    </message>
    <message>
        <location line="+66"/>
        <source>Temperature</source>
        <translation>Temperature</translation>
    </message>
    <message>
        <location line="+22"/>
        <source> °C</source>
        <translation> °C</translation>
    </message>
    <message>
        <location line="+31"/>
        <source>10</source>
        <translation>10</translation>
    </message>
    <message>
        <location line="+47"/>
        <source>25</source>
        <translation>25</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>TEC</source>
        <translation>TEC</translation>
    </message>
    <message>
        <location line="+47"/>
        <source>Repetition rate,</source>
        <translation>Repetition rate,</translation>
    </message>
    <message>
        <location line="+50"/>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <location line="+47"/>
        <source>1000</source>
        <translation>1000</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Hz</source>
        <translation>Hz</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>kHz</source>
        <translation>kHz</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>MHz</source>
        <translation>MHz</translation>
    </message>
    <message>
        <location line="+48"/>
        <location line="+530"/>
        <source>N:</source>
        <translation>N:</translation>
    </message>
    <message>
        <location line="-511"/>
        <source>N</source>
        <translation>N</translation>
    </message>
    <message>
        <location line="+41"/>
        <location line="+493"/>
        <source>M:</source>
        <translation>M:</translation>
    </message>
    <message>
        <location line="-471"/>
        <source>M</source>
        <translation>M</translation>
    </message>
    <message>
        <location line="+78"/>
        <location filename="../../panels/ps28_panel.cpp" line="+28"/>
        <location line="+2"/>
        <source>Sync mode</source>
        <translation>Sync mode</translation>
    </message>
    <message>
        <location line="+39"/>
        <source>Save to config</source>
        <translation>Save to config</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>SAVE</source>
        <translation>SAVE</translation>
    </message>
    <message>
        <location line="+47"/>
        <location filename="../../panels/ps28_panel.cpp" line="+1"/>
        <source>Sync delay</source>
        <translation>Sync delay</translation>
    </message>
    <message>
        <location line="+51"/>
        <location filename="../../panels/ps28_panel.cpp" line="+2"/>
        <source>Pulse delay</source>
        <translation>Pulse delay</translation>
    </message>
    <message>
        <location line="+115"/>
        <source>Read values:</source>
        <translation>Read values:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Power state:</source>
        <translation>Power state:</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>OFF</source>
        <translation>OFF</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Voltage:</source>
        <translation>Voltage:</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>0 A</source>
        <translation>0 A</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Temperature:</source>
        <translation>Temperature:</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>0.0 C</source>
        <translation>0.0 C</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Frequency:</source>
        <translation>Frequency:</translation>
    </message>
    <message>
        <location line="+13"/>
        <location line="+23"/>
        <location line="+23"/>
        <location line="+23"/>
        <location line="+23"/>
        <location line="+23"/>
        <location line="+23"/>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <location line="-82"/>
        <source>Mode:</source>
        <translation>Mode:</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>Sync mode:</source>
        <translation>Sync mode:</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>Sync delay:</source>
        <translation>Sync delay:</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>Pulse delay:</source>
        <translation>Pulse delay:</translation>
    </message>
    <message>
        <location filename="../../panels/ps28_panel.cpp" line="+24"/>
        <source>Make sure your slave device is set to SLAVE mode, otherwise it may cause the slave device to be halted until hardware reboot. Continue?</source>
        <translation>Make sure your slave device is set to SLAVE mode, otherwise it may cause the slave device to be halted until hardware reboot. Continue?</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Slave mode could cause device halt until MASTER device clock signal be applied. Continue?</source>
        <translation>Slave mode could cause device halt until MASTER device clock signal be applied. Continue?</translation>
    </message>
    <message>
        <location line="+3"/>
        <location line="+7"/>
        <source>Conformation</source>
        <translation>Conformation</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Store SYNC parameters with all config data to FLASH?</source>
        <translation>Store SYNC parameters with all config data to FLASH?</translation>
    </message>
</context>
<context>
    <name>ps_driver_base</name>
    <message>
        <location filename="../../panels/ps_driver_base.cpp" line="+19"/>
        <source>Int: Normal</source>
        <translation>Int: Normal</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Int: Burst</source>
        <translation>Int: Burst</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Ext: Normal</source>
        <translation>Ext: Normal</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Ext: Burst</source>
        <translation>Ext: Burst</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Pulse on Demand</source>
        <translation>Pulse on Demand</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>CAN ID</source>
        <translation>CAN ID</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Max voltage, V</source>
        <translation>Max voltage, V</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Min voltage, V</source>
        <translation>Min voltage, V</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Max temperature, °C</source>
        <translation>Max temperature, °C</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Min temperature, °C</source>
        <translation>Min temperature, °C</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Resistance at 25°C, Ohm</source>
        <translation>Resistance at 25°C, Ohm</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Thermistor beta</source>
        <translation>Thermistor beta</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>coef. P</source>
        <translation>coef. P</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>coef. I</source>
        <translation>coef. I</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>coef. D</source>
        <translation>coef. D</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>n/a</source>
        <translation>n/a</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Voltage</source>
        <translation>Voltage</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>V</source>
        <translation>V</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Temperature</source>
        <translation>Temperature</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>°C</source>
        <translation>°C</translation>
    </message>
    <message>
        <location line="+3"/>
        <location line="+4"/>
        <source>Frequency</source>
        <translation>Frequency</translation>
    </message>
    <message>
        <location line="-4"/>
        <location line="+4"/>
        <source>Hz</source>
        <translation>Hz</translation>
    </message>
    <message>
        <location line="-2"/>
        <location line="+1"/>
        <source>Mode</source>
        <translation>Mode</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Burst pulses</source>
        <translation>Burst pulses</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Burst cut</source>
        <translation>Burst cut</translation>
    </message>
</context>
<context>
    <name>pulse_picker</name>
    <message>
        <location filename="../../panels/pulse_picker.ui" line="+20"/>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <location line="+86"/>
        <source>LASER1</source>
        <translation>LASER1</translation>
    </message>
    <message>
        <location line="+37"/>
        <source>Emission</source>
        <translation>Emission</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>type name</source>
        <translation>type name</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Device parameters</source>
        <translation>Device parameters</translation>
    </message>
    <message>
        <location line="+42"/>
        <location line="+380"/>
        <location filename="../../panels/pulse_picker.cpp" line="+43"/>
        <location line="+1"/>
        <source>Mode</source>
        <translation>Mode</translation>
    </message>
    <message>
        <location line="-359"/>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Divide</source>
        <translation>Divide</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Burst</source>
        <translation>Burst</translation>
    </message>
    <message>
        <location line="+44"/>
        <location filename="../../panels/pulse_picker.cpp" line="-6"/>
        <location line="+7"/>
        <source>Output level</source>
        <translation>Output level</translation>
    </message>
    <message>
        <location line="+23"/>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <location line="+44"/>
        <source>100%</source>
        <translation>100%</translation>
    </message>
    <message>
        <location line="+7"/>
        <location line="+295"/>
        <location filename="../../panels/pulse_picker.cpp" line="-5"/>
        <source>Divider</source>
        <translation>Divider</translation>
    </message>
    <message>
        <location line="-231"/>
        <location filename="../../panels/pulse_picker.cpp" line="+1"/>
        <source>Output pulses</source>
        <translation>Output pulses</translation>
    </message>
    <message>
        <location line="+64"/>
        <location line="+213"/>
        <location filename="../../panels/pulse_picker.cpp" line="+1"/>
        <source>Skipped pulses</source>
        <translation>Skipped pulses</translation>
    </message>
    <message>
        <location line="-129"/>
        <source>State values:</source>
        <translation>State values:</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <location line="+16"/>
        <location filename="../../panels/pulse_picker.cpp" line="-8"/>
        <source>Frequency</source>
        <translation>Frequency</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>0.000 kHz</source>
        <translation>0.000 kHz</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Amplitude</source>
        <translation>Amplitude</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>0.0 %</source>
        <translation>0.0 %</translation>
    </message>
    <message>
        <location line="+23"/>
        <location line="+23"/>
        <location line="+23"/>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <location line="-30"/>
        <source>Pulse selection</source>
        <translation>Pulse selection</translation>
    </message>
    <message>
        <location filename="../../panels/pulse_picker.cpp" line="-2"/>
        <source>CAN ID</source>
        <translation>CAN ID</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>kHz</source>
        <translation>kHz</translation>
    </message>
    <message>
        <location line="+4"/>
        <location line="+7"/>
        <source>%</source>
        <translation>%</translation>
    </message>
</context>
<context>
    <name>vtr_cw_1800_zif</name>
    <message>
        <location filename="../../panels/vtr_cw_1800_zif.ui" line="+20"/>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <location line="+86"/>
        <source>LASER1</source>
        <translation>LASER1</translation>
    </message>
    <message>
        <location line="+37"/>
        <location line="+77"/>
        <source>Emission</source>
        <translation>Emission</translation>
    </message>
    <message>
        <location line="-64"/>
        <source>type name</source>
        <translation>type name</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Device parameters</source>
        <translation>Device parameters</translation>
    </message>
    <message>
        <location line="+75"/>
        <source>Mode</source>
        <translation>Mode</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Const.Current</source>
        <translation>Const.Current</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>External Analog</source>
        <translation>External Analogue</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>External TTL</source>
        <translation>External TTL</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Const.Power</source>
        <translation>Const.Power</translation>
    </message>
    <message>
        <location line="+44"/>
        <source>Drive current</source>
        <translation>Drive current</translation>
    </message>
    <message>
        <location line="+23"/>
        <source> mA</source>
        <translation> mA</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>Step size</source>
        <translation>Step size</translation>
    </message>
    <message>
        <location line="+45"/>
        <source>0.00</source>
        <translation>0.00</translation>
    </message>
    <message>
        <location line="+41"/>
        <source>1200.00</source>
        <translation>1200.00</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Temperature</source>
        <translation>Temperature</translation>
    </message>
    <message>
        <location line="+23"/>
        <source> °C</source>
        <translation> °C</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>TEC</source>
        <translation>TEC</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>10.00</source>
        <translation>10.00</translation>
    </message>
    <message>
        <location line="+41"/>
        <source>25.00</source>
        <translation>25.00</translation>
    </message>
    <message>
        <location line="+35"/>
        <source>State values:</source>
        <translation>State values:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Current:</source>
        <translation>Current:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>0.0 mA</source>
        <translation>0.0 mA</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Temperature:</source>
        <translation>Temperature:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>0.0 C</source>
        <translation>0.0 C</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Power:</source>
        <translation>Power:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>0.0 V</source>
        <translation>0.0 V</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Mode:</source>
        <translation>Mode:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Emission:</source>
        <translation>Emission:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>OFF</source>
        <translation>OFF</translation>
    </message>
    <message>
        <location filename="../../panels/vtr_cw_1800_zif.cpp" line="+39"/>
        <source>CAN ID</source>
        <translation>CAN ID</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Max current, mA</source>
        <translation>Max current, mA</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Min current, mA</source>
        <translation>Min current, mA</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Max power, mW</source>
        <translation>Max power, mW</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Min power, mW</source>
        <translation>Min power, mW</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Max temperature, °C</source>
        <translation>Max temperature, °C</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Min temperature, °C</source>
        <translation>Min temperature, °C</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Resistance at 25°C, Ohm</source>
        <translation>Resistance at 25°C, Ohm</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Thermistor beta</source>
        <translation>Thermistor beta</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Max tec current, A</source>
        <translation>Max tec current, A</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Monitor responsivity, uA/mW</source>
        <translation>Monitor responsivity, uA/mW</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>coef. P</source>
        <translation>coef. P</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>coef. I</source>
        <translation>coef. I</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>coef. D</source>
        <translation>coef. D</translation>
    </message>
</context>
<context>
    <name>vtr_sns_panel</name>
    <message>
        <location filename="../../panels/vtr_sns_panel.ui" line="+20"/>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <location line="+86"/>
        <source>LASER1</source>
        <translation>LASER1</translation>
    </message>
    <message>
        <location line="+37"/>
        <location line="+71"/>
        <source>Emission</source>
        <translation>Emission</translation>
    </message>
    <message>
        <location line="-58"/>
        <source>Power NS</source>
        <translation>Power NS</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Device parameters</source>
        <translation>Device parameters</translation>
    </message>
    <message>
        <location line="+85"/>
        <source>Alarm!!!</source>
        <translation>Alarm!!!</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <location line="+61"/>
        <location filename="../../panels/vtr_sns_panel.cpp" line="+31"/>
        <source>Temperature</source>
        <translation>Temperature</translation>
    </message>
    <message>
        <location line="+47"/>
        <source>TEC</source>
        <translation>TEC</translation>
    </message>
    <message>
        <location line="+104"/>
        <source>Repetition rate,</source>
        <translation>Repetition rate,</translation>
    </message>
    <message>
        <location line="+26"/>
        <location filename="../../panels/vtr_sns_panel.cpp" line="+2"/>
        <source>Hz</source>
        <translation>Hz</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>kHz</source>
        <translation>kHz</translation>
    </message>
    <message>
        <location line="+130"/>
        <location filename="../../panels/vtr_sns_panel.cpp" line="+10"/>
        <source>Voltage SNS</source>
        <translation>Voltage SNS</translation>
    </message>
    <message>
        <location line="+144"/>
        <source>Voltage Bias</source>
        <translation>Voltage Bias</translation>
    </message>
    <message>
        <location line="+144"/>
        <source>Width SNS,t</source>
        <translation>Width SNS,t</translation>
    </message>
    <message>
        <location line="+91"/>
        <source>Width bias,t</source>
        <translation>Width bias,t</translation>
    </message>
    <message>
        <location line="+86"/>
        <source>Delay bias,t</source>
        <translation>Delay bias,t</translation>
    </message>
    <message>
        <location line="+106"/>
        <source>Read values:</source>
        <translation>Read values:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Power state:</source>
        <translation>Power state:</translation>
    </message>
    <message>
        <location line="+7"/>
        <location filename="../../panels/vtr_sns_panel.cpp" line="+4"/>
        <location line="+71"/>
        <source>OFF</source>
        <translation>OFF</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Voltage SNS:</source>
        <translation>Voltage SNS:</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Voltage Bias:</source>
        <translation>Voltage Bias:</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Temperature:</source>
        <translation>Temperature:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>0.0 C</source>
        <translation>0.0 C</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>TEC State:</source>
        <translation>TEC State:</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Frequency:</source>
        <translation>Frequency:</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Width bias:</source>
        <translation>Width bias:</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Delay bias:</source>
        <translation>Delay bias:</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Width SNS:</source>
        <translation>Width SNS:</translation>
    </message>
    <message>
        <location filename="../../panels/vtr_sns_panel.cpp" line="-87"/>
        <source>°C</source>
        <translation>°C</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Frequency</source>
        <translation>Frequency</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Delay bias</source>
        <translation>Delay bias</translation>
    </message>
    <message>
        <location line="+0"/>
        <location line="+2"/>
        <location line="+4"/>
        <source>t</source>
        <translation>t</translation>
    </message>
    <message>
        <location line="-4"/>
        <source>Width bias</source>
        <translation>Width bias</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Voltage bias</source>
        <translation>Voltage bias</translation>
    </message>
    <message>
        <location line="+0"/>
        <location line="+4"/>
        <source>V</source>
        <translation>V</translation>
    </message>
    <message>
        <location line="-2"/>
        <source>Width SNS</source>
        <translation>Width SNS</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Monitor</source>
        <translation>Monitor</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>CAN ID</source>
        <translation>CAN ID</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Resistance at 25°C, Ohm</source>
        <translation>Resistance at 25°C, Ohm</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Thermistor beta</source>
        <translation>Thermistor beta</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Voltage SNS, V</source>
        <translation>Voltage SNS, V</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Voltage bias, V</source>
        <translation>Voltage bias, V</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Width bias, t</source>
        <translation>Width bias, t</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Delay bias, t</source>
        <translation>Delay bias, t</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Width SNS, t</source>
        <translation>Width SNS, t</translation>
    </message>
    <message>
        <location line="+45"/>
        <source>ON</source>
        <translation>ON</translation>
    </message>
</context>
<context>
    <name>zema120_panel</name>
    <message>
        <location filename="../../panels/zema120_panel.ui" line="+20"/>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <location line="+86"/>
        <source>LASER1</source>
        <translation>LASER1</translation>
    </message>
    <message>
        <location line="+37"/>
        <location line="+77"/>
        <source>Emission</source>
        <translation>Emission</translation>
    </message>
    <message>
        <location line="-64"/>
        <source>type name</source>
        <translation>type name</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Device parameters</source>
        <translation>Device parameters</translation>
    </message>
    <message>
        <location line="+111"/>
        <source>Drive current</source>
        <translation>Drive current</translation>
    </message>
    <message>
        <location line="+42"/>
        <source>Step size</source>
        <translation>Step size</translation>
    </message>
    <message>
        <location line="+93"/>
        <source>Temperature</source>
        <translation>Temperature</translation>
    </message>
    <message>
        <location line="+95"/>
        <source>State values:</source>
        <translation>State values:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Emission:</source>
        <translation>Emission:</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Current:</source>
        <translation>Current:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>0.0 mA</source>
        <translation>0.0 mA</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Temperature:</source>
        <translation>Temperature:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>0.0 C</source>
        <translation>0.0 C</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Input voltage</source>
        <translation>Input voltage</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Output voltage</source>
        <translation>Output voltage</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Power:</source>
        <translation>Power:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>0.0 V</source>
        <translation>0.0 V</translation>
    </message>
    <message>
        <location line="+46"/>
        <source>Alarm!!!</source>
        <translation>Alarm!!!</translation>
    </message>
    <message>
        <location line="+32"/>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>Clear</source>
        <translation>Clear</translation>
    </message>
</context>
<context>
    <name>zema240_panel</name>
    <message>
        <location filename="../../panels/zema240_panel.ui" line="+20"/>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <location line="+86"/>
        <source>LASER1</source>
        <translation>LASER1</translation>
    </message>
    <message>
        <location line="+37"/>
        <location line="+77"/>
        <source>Emission</source>
        <translation>Emission</translation>
    </message>
    <message>
        <location line="-64"/>
        <source>type name</source>
        <translation>type name</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Device parameters</source>
        <translation>Device parameters</translation>
    </message>
    <message>
        <location line="+75"/>
        <source>Mode</source>
        <translation>Mode</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Const.Current</source>
        <translation>Const.Current</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>External TTL</source>
        <translation>External TTL</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>External Analog</source>
        <translation>External Analog</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Ext. TTL+ Analog</source>
        <translation>Ext. TTL+ Analog</translation>
    </message>
    <message>
        <location line="+44"/>
        <source>Drive current</source>
        <translation>Drive current</translation>
    </message>
    <message>
        <location line="+42"/>
        <source>Step size</source>
        <translation>Step size</translation>
    </message>
    <message>
        <location line="+93"/>
        <source>Temperature</source>
        <translation>Temperature</translation>
    </message>
    <message>
        <location line="+123"/>
        <source>State values:</source>
        <translation>State values:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Emission:</source>
        <translation>Emission:</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Current:</source>
        <translation>Current:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>0.0 mA</source>
        <translation>0.0 mA</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Temperature:</source>
        <translation>Temperature:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>0.0 C</source>
        <translation>0.0 C</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Mode:</source>
        <translation>Mode:</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Input voltage</source>
        <translation>Input voltage</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Output voltage</source>
        <translation>Output voltage</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Power:</source>
        <translation>Power:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>0.0 V</source>
        <translation>0.0 V</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Temp. out:</source>
        <translation>Temp. out:</translation>
    </message>
    <message>
        <location line="+53"/>
        <source>Alarm!!!</source>
        <translation>Alarm!!!</translation>
    </message>
    <message>
        <location line="+32"/>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>Clear</source>
        <translation>Clear</translation>
    </message>
    <message>
        <location filename="../../panels/zema240_panel.cpp" line="+16"/>
        <source>Outlet temperature</source>
        <translation>Outlet temperature</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>°C</source>
        <translation>°C</translation>
    </message>
</context>
<context>
    <name>zema_driver_base</name>
    <message>
        <location filename="../../panels/zema_driver_base.cpp" line="+23"/>
        <source>CAN ID</source>
        <translation>CAN ID</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Max current, A</source>
        <translation>Max current, A</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>coef. P</source>
        <translation>coef. P</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>coef. I</source>
        <translation>coef. I</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>coef. D</source>
        <translation>coef. D</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>To be able to configure device CAN ID in the device parameters ZEMA driver has permanent CAN address 0xFA. Using this address you can connect to ZEMA and set new one in parameters window.</source>
        <translation>To be able to configure device CAN ID in the device parameters ZEMA driver has permanent CAN address 0xFA. Using this address you can connect to ZEMA and set new one in parameters window.</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Current</source>
        <translation>Current</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>A</source>
        <translation>A</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Temperature</source>
        <translation>Temperature</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>°C</source>
        <translation>°C</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Input voltage</source>
        <translation>Input voltage</translation>
    </message>
    <message>
        <location line="+0"/>
        <location line="+2"/>
        <source>V</source>
        <translation>V</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Output voltage</source>
        <translation>Output voltage</translation>
    </message>
    <message>
        <location line="+5"/>
        <location line="+68"/>
        <source>W</source>
        <translation>W</translation>
    </message>
    <message>
        <location line="-62"/>
        <location line="+3"/>
        <source>Mode</source>
        <translation>Mode</translation>
    </message>
    <message>
        <location line="+46"/>
        <source>Drive Current</source>
        <translation>Drive Current</translation>
    </message>
</context>
<context>
    <name>zema_panel</name>
    <message>
        <location filename="../../panels/zema_panel.ui" line="+20"/>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <location line="+86"/>
        <source>LASER1</source>
        <translation>LASER1</translation>
    </message>
    <message>
        <location line="+37"/>
        <location line="+77"/>
        <source>Emission</source>
        <translation>Emission</translation>
    </message>
    <message>
        <location line="-64"/>
        <source>type name</source>
        <translation>type name</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Device parameters</source>
        <translation>Device parameters</translation>
    </message>
    <message>
        <location line="+75"/>
        <source>Mode</source>
        <translation>Mode</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Const.Current</source>
        <translation>Const.Current</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>External TTL</source>
        <translation>External TTL</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>External Analog</source>
        <translation>External Analog</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Ext. TTL+ Analog</source>
        <translation>Ext. TTL+ Analog</translation>
    </message>
    <message>
        <location line="+44"/>
        <source>Drive current</source>
        <translation>Drive current</translation>
    </message>
    <message>
        <location line="+42"/>
        <source>Step size</source>
        <translation>Step size</translation>
    </message>
    <message>
        <location line="+93"/>
        <source>Temperature</source>
        <translation>Temperature</translation>
    </message>
    <message>
        <location line="+95"/>
        <source>State values:</source>
        <translation>State values:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Emission:</source>
        <translation>Emission:</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Current:</source>
        <translation>Current:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>0.0 mA</source>
        <translation>0.0 mA</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Temperature:</source>
        <translation>Temperature:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>0.0 C</source>
        <translation>0.0 C</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Mode:</source>
        <translation>Mode:</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Input voltage</source>
        <translation>Input voltage</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Output voltage</source>
        <translation>Output voltage</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Power:</source>
        <translation>Power:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>0.0 V</source>
        <translation>0.0 V</translation>
    </message>
    <message>
        <location line="+46"/>
        <source>Alarm!!!</source>
        <translation>Alarm!!!</translation>
    </message>
    <message>
        <location line="+32"/>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>Clear</source>
        <translation>Clear</translation>
    </message>
</context>
</TS>
