<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_AU">
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
        <location line="+35"/>
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
        <location filename="../../panels/cw_driver_base.cpp" line="+69"/>
        <source>Optical Power</source>
        <translation>Optical Power</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Drive Current</source>
        <translation>Drive Current</translation>
    </message>
    <message>
        <location line="+20"/>
        <source> mA</source>
        <translation> mA</translation>
    </message>
    <message>
        <location line="+3"/>
        <source> °C</source>
        <translation> °C</translation>
    </message>
    <message>
        <location line="+3"/>
        <source> mW</source>
        <translation> mW</translation>
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
        <location filename="../../panels/cw_panel.cpp" line="+45"/>
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
    <message>
        <location line="+14"/>
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
        <location filename="../../app/main_window.cpp" line="+445"/>
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
        <location filename="../../app/main_window.cpp" line="-108"/>
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
        <location filename="../../app/main_window.cpp" line="+52"/>
        <source>Emission: OFF</source>
        <translation>Emission: OFF</translation>
    </message>
    <message>
        <location filename="../../app/main_window.cpp" line="-260"/>
        <source>CAN ID</source>
        <translation>CAN ID</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Device name</source>
        <translation>Device name</translation>
    </message>
    <message>
        <location line="+197"/>
        <source>Disconnect</source>
        <translation>Disconnect</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Connection status: CONNECTED</source>
        <translation>Connection status: CONNECTED</translation>
    </message>
    <message>
        <location line="+61"/>
        <source>Emission: ON</source>
        <translation>Emission: ON</translation>
    </message>
    <message>
        <location line="+30"/>
        <source>STOP</source>
        <translation>STOP</translation>
    </message>
</context>
<context>
    <name>panel_base</name>
    <message>
        <location filename="../../panels/framework/panel_base.cpp" line="+41"/>
        <source>To be able to configure device CAN ID in the device parameters window please make sure, that your PC is connected directly to driver board via mini-USB cable, and &quot;mini USB mode&quot; is set in Settings tab.</source>
        <translation>To be able to configure device CAN ID in the device parameters window please make sure, that your PC is connected directly to driver board via mini-USB cable, and &quot;mini USB mode&quot; is set in Settings tab.</translation>
    </message>
    <message>
        <location line="+112"/>
        <source>ON</source>
        <translation>ON</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>OFF</source>
        <translation>OFF</translation>
    </message>
    <message>
        <location line="+153"/>
        <source>WARNING</source>
        <translation>WARNING</translation>
    </message>
    <message>
        <location line="+45"/>
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
        <location filename="../../panels/vtr_cw_1800_zif.cpp" line="+42"/>
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
</TS>
