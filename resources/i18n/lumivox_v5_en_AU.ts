<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_AU">
<context>
    <name>broker_link</name>
    <message>
        <location filename="../../publish/broker_link.cpp" line="+59"/>
        <source>no answer from the broker at %1 within %2 s</source>
        <translation>no answer from the broker at %1 within %2 s</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>cannot set up the broker connection (%1)</source>
        <translation>cannot set up the broker connection (%1)</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>cannot use the certificate authority file &quot;%1&quot; for the broker (%2)</source>
        <translation>cannot use the certificate authority file &quot;%1&quot; for the broker (%2)</translation>
    </message>
    <message>
        <location line="+26"/>
        <location line="+59"/>
        <source>cannot reach the broker at %1: %2</source>
        <translation>cannot reach the broker at %1: %2</translation>
    </message>
    <message>
        <location line="-5"/>
        <source>the broker at %1 refused the connection: %2</source>
        <translation>the broker at %1 refused the connection: %2</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>lost the connection to the broker at %1: %2</source>
        <translation>lost the connection to the broker at %1: %2</translation>
    </message>
    <message>
        <location line="+200"/>
        <source>no such host</source>
        <translation>no such host</translation>
    </message>
</context>
<context>
    <name>broker_url</name>
    <message>
        <location filename="../../publish/broker_url.cpp" line="+56"/>
        <source>the broker URL is longer than %1 characters</source>
        <translation>the broker URL is longer than %1 characters</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>&quot;%1&quot; is not a broker URL: it must start with mqtt:// or mqtts://</source>
        <translation>&quot;%1&quot; is not a broker URL: it must start with mqtt:// or mqtts://</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>a user name or password does not belong in the broker URL (anyone on this machine can read the command line): put it in the settings file or the environment</source>
        <translation>a user name or password does not belong in the broker URL (anyone on this machine can read the command line): put it in the settings file or the environment</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>&quot;%1&quot;: a broker URL has no path, query or fragment</source>
        <translation>&quot;%1&quot;: a broker URL has no path, query or fragment</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>&quot;%1&quot;: the IPv6 address has no closing bracket</source>
        <translation>&quot;%1&quot;: the IPv6 address has no closing bracket</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&quot;%1&quot; is not an IPv6 address</source>
        <translation>&quot;%1&quot; is not an IPv6 address</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>&quot;%1&quot;: unexpected text after the address</source>
        <translation>&quot;%1&quot;: unexpected text after the address</translation>
    </message>
    <message>
        <location line="+4"/>
        <location line="+9"/>
        <source>&quot;%1&quot;: the port is missing after the colon</source>
        <translation>&quot;%1&quot;: the port is missing after the colon</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&quot;%1&quot;: the broker&apos;s host is missing</source>
        <translation>&quot;%1&quot;: the broker&apos;s host is missing</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>&quot;%1&quot; is not a host name or address</source>
        <translation>&quot;%1&quot; is not a host name or address</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>&quot;%1&quot;: the port must be a number from 1 to 65535</source>
        <translation>&quot;%1&quot;: the port must be a number from 1 to 65535</translation>
    </message>
</context>
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
        <location line="+14"/>
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
        <source>Save to file...</source>
        <translation>Save to file...</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Load from file...</source>
        <translation>Load from file...</translation>
    </message>
    <message>
        <location line="+5"/>
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
        <location filename="../../panels/cw_driver_base.cpp" line="+31"/>
        <location line="+9"/>
        <source>Current</source>
        <translation>Current</translation>
    </message>
    <message>
        <location line="-9"/>
        <location line="+9"/>
        <location line="+7"/>
        <source>mA</source>
        <translation>mA</translation>
    </message>
    <message>
        <location line="-14"/>
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
        <location line="+5"/>
        <source>Power</source>
        <translation>Power</translation>
    </message>
    <message>
        <location line="-5"/>
        <location line="+5"/>
        <location line="+6"/>
        <source>mW</source>
        <translation>mW</translation>
    </message>
    <message>
        <location line="-9"/>
        <location line="+4"/>
        <source>Mode</source>
        <translation>Mode</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Current or power</source>
        <translation>Current or power</translation>
    </message>
    <message>
        <location line="+40"/>
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
    <name>device_directory</name>
    <message>
        <location filename="../../monitor/device_directory.cpp" line="+42"/>
        <source>read device type</source>
        <translation>read device type</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>read CAN ID</source>
        <translation>read CAN ID</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>write %1</source>
        <translation>write %1</translation>
    </message>
    <message>
        <location line="+3"/>
        <location line="+19"/>
        <location line="+7"/>
        <source>read %1</source>
        <translation>read %1</translation>
    </message>
    <message>
        <location line="-11"/>
        <source>write %1 set-point</source>
        <translation>write %1 set-point</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>store parameters</source>
        <translation>store parameters</translation>
    </message>
</context>
<context>
    <name>device_service</name>
    <message>
        <location filename="../../app/device_service.cpp" line="+79"/>
        <source>CAN ID %1 &quot;%2&quot;</source>
        <translation>CAN ID %1 &quot;%2&quot;</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>not found (no answer)</source>
        <translation>not found (no answer)</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>device type %1 has no configuration rows this program knows</source>
        <translation>device type %1 has no configuration rows this program knows</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>incomplete: %1 of %2 rows reported</source>
        <translation>incomplete: %1 of %2 rows reported</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>There is no %1 in %2: run where the program&apos;s configuration is.</source>
        <translation>There is no %1 in %2: run where the program&apos;s configuration is.</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>The serial port &quot;%1&quot; did not open.</source>
        <translation>The serial port &quot;%1&quot; did not open.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>%1 cannot be written: nothing saved.</source>
        <translation>%1 cannot be written: nothing saved.</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>%1: %2 could not be written: %3</source>
        <translation>%1: %2 could not be written: %3</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>saved %1 (%2, %3)</source>
        <translation>saved %1 (%2, %3)</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>%1 of %2 devices not saved.</source>
        <translation>%1 of %2 devices not saved.</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Row</source>
        <translation>Row</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Device</source>
        <translation>Device</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>not in the file: left as it is</source>
        <translation>not in the file: left as it is</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>differs: the CAN ID row is never written here</source>
        <translation>differs: the CAN ID row is never written here</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>changed</source>
        <translation>changed</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>  %1: in the file, not in this device: not written</source>
        <translation>  %1: in the file, not in this device: not written</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>%1 cannot be loaded: %2. Nothing was written.</source>
        <translation>%1 cannot be loaded: %2. Nothing was written.</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>CAN ID %1 is not in the device table of %2.</source>
        <translation>CAN ID %1 is not in the device table of %2.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>%1: %2. Nothing was written.</source>
        <translation>%1: %2. Nothing was written.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>%1 cannot be loaded: %2.</source>
        <translation>%1 cannot be loaded: %2.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>%1, %2 (type %3), and %4 (saved %5 from CAN ID %6 &quot;%7&quot;):</source>
        <translation>%1, %2 (type %3), and %4 (saved %5 from CAN ID %6 &quot;%7&quot;):</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>The device already holds the file&apos;s values: nothing to write.</source>
        <translation>The device already holds the file&apos;s values: nothing to write.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1 to write; nothing was written (--yes writes them).</source>
        <translation>%1 to write; nothing was written (--yes writes them).</translation>
    </message>
    <message>
        <location line="+18"/>
        <source>Interrupted: the rows written so far were neither checked nor stored.</source>
        <translation>Interrupted: the rows written so far were neither checked nor stored.</translation>
    </message>
</context>
<context>
    <name>device_settings</name>
    <message>
        <location filename="../../backup/device_settings.cpp" line="+55"/>
        <source>row %1</source>
        <translation>row %1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>row %1 (&quot;%2&quot;)</source>
        <translation>row %1 (&quot;%2&quot;)</translation>
    </message>
    <message>
        <location line="+82"/>
        <source>1 row</source>
        <translation>1 row</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>%1 rows</source>
        <translation>%1 rows</translation>
    </message>
    <message>
        <location line="+34"/>
        <source>the file is larger than %1 KiB: not a settings file</source>
        <translation>the file is larger than %1 KiB: not a settings file</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>the file is empty</source>
        <translation>the file is empty</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>the file is damaged: the key &quot;%1&quot; appears twice in one entry</source>
        <translation>the file is damaged: the key &quot;%1&quot; appears twice in one entry</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>not a settings file (it nests deeper than %1 levels)</source>
        <translation>not a settings file (it nests deeper than %1 levels)</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>not a settings file (it is not JSON text)</source>
        <translation>not a settings file (it is not JSON text)</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>the file ends early, after %1 bytes (cut short?)</source>
        <translation>the file ends early, after %1 bytes (cut short?)</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>the file is damaged at byte %1: %2</source>
        <translation>the file is damaged at byte %1: %2</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>not a settings file (it does not say &quot;format&quot;: &quot;%1&quot;)</source>
        <translation>not a settings file (it does not say &quot;format&quot;: &quot;%1&quot;)</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>the file is damaged: &quot;format_version&quot; is not a positive whole number</source>
        <translation>the file is damaged: &quot;format_version&quot; is not a positive whole number</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>the file was written by a newer program (format %1; this program reads format %2)</source>
        <translation>the file was written by a newer program (format %1; this program reads format %2)</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>the file is damaged: &quot;program&quot; or &quot;saved&quot; is missing</source>
        <translation>the file is damaged: &quot;program&quot; or &quot;saved&quot; is missing</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>the file is damaged: &quot;saved&quot; is not a date (%1)</source>
        <translation>the file is damaged: &quot;saved&quot; is not a date (%1)</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>the file is damaged: the &quot;device&quot; entry needs a type_id, model, can_id (0 to 2047) and name</source>
        <translation>the file is damaged: the &quot;device&quot; entry needs a type_id, model, can_id (0 to 2047) and name</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>the file is damaged: it holds no rows</source>
        <translation>the file is damaged: it holds no rows</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>the file is damaged: %1 rows, more than any device keeps (%2)</source>
        <translation>the file is damaged: %1 rows, more than any device keeps (%2)</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>the file is damaged: %1 needs a code (0 to 127), label, decimals (0 to %2), wire (a 32-bit whole number) and value</source>
        <translation>the file is damaged: %1 needs a code (0 to 127), label, decimals (0 to %2), wire (a 32-bit whole number) and value</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>the file is damaged: %1 repeats code %2</source>
        <translation>the file is damaged: %1 repeats code %2</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1: &quot;value&quot; %2 does not agree with &quot;wire&quot; %3 (which is %4); edit both or neither</source>
        <translation>%1: &quot;value&quot; %2 does not agree with &quot;wire&quot; %3 (which is %4); edit both or neither</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>there is no file &quot;%1&quot;</source>
        <translation>there is no file &quot;%1&quot;</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>&quot;%1&quot; is not a file</source>
        <translation>&quot;%1&quot; is not a file</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&quot;%1&quot; cannot be read: %2</source>
        <translation>&quot;%1&quot; cannot be read: %2</translation>
    </message>
    <message>
        <location line="+70"/>
        <source>the file holds the rows of a %1 (device type %2); this device is a %3 (type %4)</source>
        <translation>the file holds the rows of a %1 (device type %2); this device is a %3 (type %4)</translation>
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
        <location filename="../../panels/heater.cpp" line="+29"/>
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
        <location filename="../../panels/heater.cpp" line="-4"/>
        <source>CAN ID</source>
        <translation>CAN ID</translation>
    </message>
    <message>
        <location line="+3"/>
        <location line="+2"/>
        <source>Heater</source>
        <translation>Heater</translation>
    </message>
    <message>
        <location line="-2"/>
        <source>ON</source>
        <translation>ON</translation>
    </message>
    <message>
        <location line="+3"/>
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
        <location filename="../../app/main_window.cpp" line="+568"/>
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
        <location filename="../../app/main_window.cpp" line="-149"/>
        <location line="+24"/>
        <location line="+25"/>
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
        <location filename="../../app/main_window.cpp" line="-23"/>
        <source>Connection status: DISCONNECTED</source>
        <translation>Connection status: DISCONNECTED</translation>
    </message>
    <message>
        <location line="+64"/>
        <location filename="../../app/main_window.cpp" line="+63"/>
        <source>Emission: OFF</source>
        <translation>Emission: OFF</translation>
    </message>
    <message>
        <location filename="../../app/main_window.cpp" line="-323"/>
        <source>CAN ID</source>
        <translation>CAN ID</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Device name</source>
        <translation>Device name</translation>
    </message>
    <message>
        <location line="+246"/>
        <source>Disconnect</source>
        <translation>Disconnect</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Connection status: CONNECTED</source>
        <translation>Connection status: CONNECTED</translation>
    </message>
    <message>
        <location line="+75"/>
        <source>Emission: ON</source>
        <translation>Emission: ON</translation>
    </message>
    <message>
        <location line="+57"/>
        <source>STOP</source>
        <translation>STOP</translation>
    </message>
</context>
<context>
    <name>monitor_model</name>
    <message>
        <location filename="../../monitor/monitor_model.cpp" line="+230"/>
        <source>sent</source>
        <translation>sent</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>received</source>
        <translation>received</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>ignored: %1</source>
        <translation>ignored: %1</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>malformed frame: %1</source>
        <translation>malformed frame: %1</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>text: %1</source>
        <translation>text: %1</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>bad checksum</source>
        <translation>bad checksum</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>%1 (bad checksum)</source>
        <translation>%1 (bad checksum)</translation>
    </message>
    <message>
        <location line="+76"/>
        <source>Time</source>
        <translation>Time</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Direction</source>
        <translation>Direction</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>CAN ID</source>
        <translation>CAN ID</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Device</source>
        <translation>Device</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Meaning</source>
        <translation>Meaning</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Raw value</source>
        <translation>Raw value</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Value</source>
        <translation>Value</translation>
    </message>
</context>
<context>
    <name>monitor_window</name>
    <message>
        <location filename="../../monitor/monitor_window.cpp" line="+42"/>
        <source>Bus monitor</source>
        <translation>Bus monitor</translation>
    </message>
    <message>
        <location line="+3"/>
        <location line="+146"/>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <location line="-144"/>
        <source>Hold the list still; lines are still kept meanwhile</source>
        <translation>Hold the list still; lines are still kept meanwhile</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Clear</source>
        <translation>Clear</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>All devices</source>
        <translation>All devices</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>all codes</source>
        <translation>all codes</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Codes in hex, e.g. &quot;12 92&quot;; a write code also shows its reads and reports</source>
        <translation>Codes in hex, e.g. &quot;12 92&quot;; a write code also shows its reads and reports</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Both directions</source>
        <translation>Both directions</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Sent</source>
        <translation>Sent</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Received</source>
        <translation>Received</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Open log...</source>
        <translation>Open log...</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Show a candump log in a window of its own</source>
        <translation>Show a candump log in a window of its own</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Export log...</source>
        <translation>Export log...</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Write the frames shown as a candump log</source>
        <translation>Write the frames shown as a candump log</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Device:</source>
        <translation>Device:</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Codes:</source>
        <translation>Codes:</translation>
    </message>
    <message>
        <location line="+103"/>
        <source>Resume</source>
        <translation>Resume</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>&quot;%1&quot; is no code: codes are written in hex, 0 to ff</source>
        <translation>&quot;%1&quot; is no code: codes are written in hex, 0 to ff</translation>
    </message>
    <message>
        <location line="+84"/>
        <source>not capturing while closed</source>
        <translation>not capturing while closed</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1 lines kept (at most %2)</source>
        <translation>%1 lines kept (at most %2)</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1 oldest dropped</source>
        <translation>%1 oldest dropped</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1 shown</source>
        <translation>%1 shown</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>paused, %1 new lines held back</source>
        <translation>paused, %1 new lines held back</translation>
    </message>
    <message>
        <location line="+18"/>
        <source>Cannot open %1: %2</source>
        <translation>Cannot open %1: %2</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Cannot read %1: %2</source>
        <translation>Cannot read %1: %2</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Bus monitor - %1</source>
        <translation>Bus monitor - %1</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>%1 frames read</source>
        <translation>%1 frames read</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>, the newest %1 kept</source>
        <translation>, the newest %1 kept</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>, %1 lines skipped (the first is line %2)</source>
        <translation>, %1 lines skipped (the first is line %2)</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Cannot write %1: %2</source>
        <translation>Cannot write %1: %2</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 frames written to %2</source>
        <translation>%1 frames written to %2</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Open log</source>
        <translation>Open log</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+17"/>
        <source>candump logs (*.log);;All files (*)</source>
        <translation>candump logs (*.log);;All files (*)</translation>
    </message>
    <message>
        <location line="-1"/>
        <source>Export log</source>
        <translation>Export log</translation>
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
        <location filename="../../panels/ns_driver_base.cpp" line="+39"/>
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
        <location line="+58"/>
        <source>Pulse on Demand</source>
        <translation>Pulse on Demand</translation>
    </message>
    <message>
        <location line="-53"/>
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
        <location line="+27"/>
        <location line="+5"/>
        <source>Frequency</source>
        <translation>Frequency</translation>
    </message>
    <message>
        <location line="-32"/>
        <location line="+27"/>
        <source>Hz</source>
        <translation>Hz</translation>
    </message>
    <message>
        <location line="-19"/>
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
        <location line="+2"/>
        <source>Cut count</source>
        <translation>Cut count</translation>
    </message>
    <message>
        <location line="+2"/>
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
        <location line="+24"/>
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
        <location line="+13"/>
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
        <location filename="../../panels/ns_gss_triangle_panel.cpp" line="+13"/>
        <source>Voltage</source>
        <translation>Voltage</translation>
    </message>
    <message>
        <location line="+1"/>
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
        <location filename="../../panels/ns_gss_triangle_panel.cpp" line="+22"/>
        <source>Triangle rise factor</source>
        <translation>Triangle rise factor</translation>
    </message>
    <message>
        <location line="+46"/>
        <location filename="../../panels/ns_gss_triangle_panel.cpp" line="+3"/>
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
        <location filename="../../panels/framework/panel_base.cpp" line="+47"/>
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
        <location line="+147"/>
        <location line="+3"/>
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
        <location line="+82"/>
        <source>Command %1</source>
        <translation>Command %1</translation>
    </message>
    <message>
        <location line="+131"/>
        <source>WARNING</source>
        <translation>WARNING</translation>
    </message>
    <message>
        <location line="+148"/>
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
    <name>port_report</name>
    <message>
        <location filename="../../app/port_report.cpp" line="+17"/>
        <source>No serial port is chosen: pick the adapter&apos;s port on the Settings page, then connect.</source>
        <translation>No serial port is chosen: pick the adapter&apos;s port on the Settings page, then connect.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Cannot open the serial port %1: it is not there, so the USB adapter is unplugged. Plug it in and connect again, or pick its port on the Settings page.</source>
        <translation>Cannot open the serial port %1: it is not there, so the USB adapter is unplugged. Plug it in and connect again, or pick its port on the Settings page.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Cannot open the serial port %1: permission denied. Serial ports belong to the &quot;dialout&quot; group: add yourself with &quot;sudo adduser $USER dialout&quot;, then log out and log in again.</source>
        <translation>Cannot open the serial port %1: permission denied. Serial ports belong to the &quot;dialout&quot; group: add yourself with &quot;sudo adduser $USER dialout&quot;, then log out and log in again.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Cannot open the serial port %1: another program holds it. Close that program (or the other Lumivox) and connect again.</source>
        <translation>Cannot open the serial port %1: another program holds it. Close that program (or the other Lumivox) and connect again.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Cannot open the serial port %1: %2.</source>
        <translation>Cannot open the serial port %1: %2.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>No serial port is chosen: pick one on the Settings page.</source>
        <translation>No serial port is chosen: pick one on the Settings page.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1 is not there: the USB adapter is unplugged.</source>
        <translation>%1 is not there: the USB adapter is unplugged.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1: permission denied; join the &quot;dialout&quot; group (sudo adduser $USER dialout, log in again).</source>
        <translation>%1: permission denied; join the &quot;dialout&quot; group (sudo adduser $USER dialout, log in again).</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1 is held by another program: close it and connect again.</source>
        <translation>%1 is held by another program: close it and connect again.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Cannot open %1: %2.</source>
        <translation>Cannot open %1: %2.</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Serial port</source>
        <translation>Serial port</translation>
    </message>
</context>
<context>
    <name>program</name>
    <message>
        <location filename="../../app/program.cpp" line="+113"/>
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
        <source>Publish what the devices report to the MQTT broker at &lt;url&gt; (mqtt://host[:port], or mqtts://host[:port] for TLS); remembered for the next runs until &quot;--mqtt off&quot;. User name, password and CA file come from the settings file or the environment.</source>
        <translation>Publish what the devices report to the MQTT broker at &lt;url&gt; (mqtt://host[:port], or mqtts://host[:port] for TLS); remembered for the next runs until &quot;--mqtt off&quot;. User name, password and CA file come from the settings file or the environment.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>The station&apos;s name in the broker&apos;s topics (lumivox/&lt;name&gt;/); the host name by default. Remembered; &quot;&quot; forgets it.</source>
        <translation>The station&apos;s name in the broker&apos;s topics (lumivox/&lt;name&gt;/); the host name by default. Remembered; &quot;&quot; forgets it.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Work in the per-user directory ($XDG_CONFIG_HOME/lumivox/work, by default ~/.config/lumivox/work; made on first run) instead of the current directory. The menu entry starts the program this way.</source>
        <translation>Work in the per-user directory ($XDG_CONFIG_HOME/lumivox/work, by default ~/.config/lumivox/work; made on first run) instead of the current directory. The menu entry starts the program this way.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Try the program without hardware: start the device simulator (lumivox-sim) with one device of every modelled type and connect to it, in a scratch directory.</source>
        <translation>Try the program without hardware: start the device simulator (lumivox-sim) with one device of every modelled type and connect to it, in a scratch directory.</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Without a window: wait until every configured device has reported every configuration row, save them into &lt;dir&gt; (a file per device), print what was written and exit.</source>
        <translation>Without a window: wait until every configured device has reported every configuration row, save them into &lt;dir&gt; (a file per device), print what was written and exit.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Without a window: compare the settings &lt;file&gt; with the device at --can-id and print the rows that differ; with --yes write them (never the CAN ID row), read every row back, check and store.</source>
        <translation>Without a window: compare the settings &lt;file&gt; with the device at --can-id and print the rows that differ; with --yes write them (never the CAN ID row), read every row back, check and store.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>The CAN ID of the device for --restore.</source>
        <translation>The CAN ID of the device for --restore.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Let --restore write without asking.</source>
        <translation>Let --restore write without asking.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>How long --backup and --restore wait for the devices (seconds, default 30).</source>
        <translation>How long --backup and --restore wait for the devices (seconds, default 30).</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Open the bus monitor with the main window: every frame sent and received, decoded.</source>
        <translation>Open the bus monitor with the main window: every frame sent and received, decoded.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Serve instrument commands over TCP at [&lt;address&gt;:]&lt;port&gt; (usually 5025; the address defaults to 127.0.0.1); remembered for the next runs until &quot;--listen off&quot;.</source>
        <translation>Serve instrument commands over TCP at [&lt;address&gt;:]&lt;port&gt; (usually 5025; the address defaults to 127.0.0.1); remembered for the next runs until &quot;--listen off&quot;.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Let command-server clients change set-points, emission and parameters (the option alone means on); remembered for the next runs until &quot;--remote-control off&quot;.</source>
        <translation>Let command-server clients change set-points, emission and parameters (the option alone means on); remembered for the next runs until &quot;--remote-control off&quot;.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Run without a window and without a display: the devices of configs/config.ini, recording and the command server as configured, until SIGINT, SIGTERM or SIGHUP.</source>
        <translation>Run without a window and without a display: the devices of configs/config.ini, recording and the command server as configured, until SIGINT, SIGTERM or SIGHUP.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>A recording for --trends.</source>
        <translation>A recording for --trends.</translation>
    </message>
    <message>
        <location line="+18"/>
        <source>Unexpected argument: %1 (a recording goes after --trends).</source>
        <translation>Unexpected argument: %1 (a recording goes after --trends).</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>--trends needs the window: it cannot go with --headless.</source>
        <translation>--trends needs the window: it cannot go with --headless.</translation>
    </message>
    <message>
        <location line="+31"/>
        <source>Station name &quot;%1&quot; cannot be a topic level: at most %2 characters, none of them &apos;/&apos;, &apos;+&apos;, &apos;#&apos; or control characters.</source>
        <translation>Station name &quot;%1&quot; cannot be a topic level: at most %2 characters, none of them &apos;/&apos;, &apos;+&apos;, &apos;#&apos; or control characters.</translation>
    </message>
    <message>
        <location line="+48"/>
        <source>--timeout takes a number of seconds (1 to 86400).</source>
        <translation>--timeout takes a number of seconds (1 to 86400).</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>--backup and --restore go one at a time.</source>
        <translation>--backup and --restore go one at a time.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>--backup needs a directory.</source>
        <translation>--backup needs a directory.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>--can-id takes a CAN ID (0 to 2047, or 0x0 to 0x7FF).</source>
        <translation>--can-id takes a CAN ID (0 to 2047, or 0x0 to 0x7FF).</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>--restore needs a settings file and --can-id N.</source>
        <translation>--restore needs a settings file and --can-id N.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>--can-id and --yes belong to --restore.</source>
        <translation>--can-id and --yes belong to --restore.</translation>
    </message>
    <message>
        <location line="+49"/>
        <source>Recording</source>
        <translation>Recording</translation>
    </message>
    <message>
        <location filename="../../app/working_place.cpp" line="+27"/>
        <source>Cannot make the working directory %1.</source>
        <translation>Cannot make the working directory %1.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Cannot work in the directory %1.</source>
        <translation>Cannot work in the directory %1.</translation>
    </message>
    <message>
        <location line="+33"/>
        <source>Cannot make a scratch directory: %1.</source>
        <translation>Cannot make a scratch directory: %1.</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>The simulator %1 did not start: %2.</source>
        <translation>The simulator %1 did not start: %2.</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>Cannot write the demo&apos;s configuration in %1.</source>
        <translation>Cannot write the demo&apos;s configuration in %1.</translation>
    </message>
    <message>
        <location line="+38"/>
        <source>Demo: simulated devices, working in %1</source>
        <translation>Demo: simulated devices, working in %1</translation>
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
        <location filename="../../panels/ps26_panel.cpp" line="+20"/>
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
        <location line="+3"/>
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
        <location line="+5"/>
        <location line="+11"/>
        <source>Frequency</source>
        <translation>Frequency</translation>
    </message>
    <message>
        <location line="-16"/>
        <location line="+5"/>
        <source>Hz</source>
        <translation>Hz</translation>
    </message>
    <message>
        <location line="-3"/>
        <location line="+2"/>
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
        <location filename="../../panels/pulse_picker.cpp" line="+45"/>
        <location line="+2"/>
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
        <location filename="../../panels/pulse_picker.cpp" line="-10"/>
        <location line="+11"/>
        <location line="+11"/>
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
        <location filename="../../panels/pulse_picker.cpp" line="-19"/>
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
        <location filename="../../panels/pulse_picker.cpp" line="+2"/>
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
        <location filename="../../panels/pulse_picker.cpp" line="-9"/>
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
        <location line="+3"/>
        <location line="+11"/>
        <location line="+11"/>
        <source>%</source>
        <translation>%</translation>
    </message>
</context>
<context>
    <name>record_writer</name>
    <message>
        <location filename="../../record/record_writer.cpp" line="+42"/>
        <source>Recording stopped: cannot create the directory %1.</source>
        <translation>Recording stopped: cannot create the directory %1.</translation>
    </message>
    <message>
        <location line="+18"/>
        <location line="+41"/>
        <location line="+20"/>
        <source>Recording stopped: cannot write to %1 (%2).</source>
        <translation>Recording stopped: cannot write to %1 (%2).</translation>
    </message>
</context>
<context>
    <name>remote_status</name>
    <message>
        <location filename="../../remote/remote_status.cpp" line="+15"/>
        <source>Allow remote writes</source>
        <translation>Allow remote writes</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Let clients of the command server change set-points, emission and parameters. Queries are always answered.</source>
        <translation>Let clients of the command server change set-points, emission and parameters. Queries are always answered.</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>Remote: listening on %1</source>
        <translation>Remote: listening on %1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Remote: 1 client</source>
        <translation>Remote: 1 client</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Remote: %1 clients</source>
        <translation>Remote: %1 clients</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>, WRITES ALLOWED</source>
        <translation>, WRITES ALLOWED</translation>
    </message>
</context>
<context>
    <name>settings_actions</name>
    <message>
        <location filename="../../panels/framework/settings_actions.cpp" line="+50"/>
        <source>not every row has been reported yet</source>
        <translation>not every row has been reported yet</translation>
    </message>
    <message>
        <location line="+25"/>
        <location line="+49"/>
        <source>Load settings</source>
        <translation>Load settings</translation>
    </message>
    <message>
        <location line="-48"/>
        <source>%1 cannot be loaded: %2. Nothing was written.</source>
        <translation>%1 cannot be loaded: %2. Nothing was written.</translation>
    </message>
    <message>
        <location line="+28"/>
        <location line="+13"/>
        <source>Save settings</source>
        <translation>Save settings</translation>
    </message>
    <message>
        <location line="-12"/>
        <source>Settings files (*.json)</source>
        <translation>Settings files (*.json)</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Saved to %1</source>
        <translation>Saved to %1</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>%1 could not be written: %2</source>
        <translation>%1 could not be written: %2</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Settings files (*.json);;All files (*)</source>
        <translation>Settings files (*.json);;All files (*)</translation>
    </message>
</context>
<context>
    <name>settings_compare_dialog</name>
    <message>
        <location filename="../../panels/framework/settings_compare_dialog.cpp" line="+33"/>
        <source>: settings from file</source>
        <translation>: settings from file</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>&lt;b&gt;%1&lt;/b&gt;&lt;br&gt;saved %2 by %3&lt;br&gt;from %4 &quot;%5&quot; at CAN ID %6</source>
        <translation>&lt;b&gt;%1&lt;/b&gt;&lt;br&gt;saved %2 by %3&lt;br&gt;from %4 &quot;%5&quot; at CAN ID %6</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Row</source>
        <translation>Row</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>In the device</source>
        <translation>In the device</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>In the file</source>
        <translation>In the file</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Write changed rows</source>
        <translation>Write changed rows</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <location line="+54"/>
        <location line="+37"/>
        <source>not in the file</source>
        <translation>not in the file</translation>
    </message>
    <message>
        <location line="-34"/>
        <source>kept</source>
        <translation>kept</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>changed</source>
        <translation>changed</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>(none)</source>
        <translation>(none)</translation>
    </message>
    <message>
        <location line="+37"/>
        <source>Reading the device&apos;s rows...</source>
        <translation>Reading the device&apos;s rows...</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The device holds the file&apos;s values.</source>
        <translation>The device holds the file&apos;s values.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Rows that differ: %1 of %2; to be written: %3.</source>
        <translation>Rows that differ: %1 of %2; to be written: %3.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The CAN ID row is kept unless ticked below.</source>
        <translation>The CAN ID row is kept unless ticked below.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Not in the file, left as in the device: %1.</source>
        <translation>Not in the file, left as in the device: %1.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>In the file but not in this device, not written: %1.</source>
        <translation>In the file but not in this device, not written: %1.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Also write the CAN ID row (%1 to %2, taken at the next device reset)</source>
        <translation>Also write the CAN ID row (%1 to %2, taken at the next device reset)</translation>
    </message>
    <message>
        <location line="+18"/>
        <location line="+14"/>
        <location line="+17"/>
        <source>Restore settings</source>
        <translation>Restore settings</translation>
    </message>
    <message>
        <location line="-30"/>
        <source>Write %1 from the file to %2?</source>
        <translation>Write %1 from the file to %2?</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Writing %1, then reading every row back...</source>
        <translation>Writing %1, then reading every row back...</translation>
    </message>
</context>
<context>
    <name>settings_restore</name>
    <message>
        <location filename="../../panels/framework/settings_restore.cpp" line="+59"/>
        <source>the device stopped answering</source>
        <translation>the device stopped answering</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>the device is gone</source>
        <translation>the device is gone</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>the device was lost (it stopped answering or changed its type)</source>
        <translation>the device was lost (it stopped answering or changed its type)</translation>
    </message>
    <message>
        <location line="+75"/>
        <source>The restore stopped: %1.</source>
        <translation>The restore stopped: %1.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The device already holds the file&apos;s values: nothing was written.</source>
        <translation>The device already holds the file&apos;s values: nothing was written.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1 written; every row read back holds the file&apos;s value</source>
        <translation>%1 written; every row read back holds the file&apos;s value</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>; stored in the device.</source>
        <translation>; stored in the device.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1 written</source>
        <translation>%1 written</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>, then stored in the device.</source>
        <translation>, then stored in the device.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>, not stored.</source>
        <translation>, not stored.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>  %1: the device holds %2, the file %3</source>
        <translation>  %1: the device holds %2, the file %3</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>  %1: the file holds %2</source>
        <translation>  %1: the file holds %2</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>These rows did not take:</source>
        <translation>These rows did not take:</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Written, but not read back, so not known to have taken:</source>
        <translation>Written, but not read back, so not known to have taken:</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 not read back.</source>
        <translation>%1 not read back.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>1 other row</source>
        <translation>1 other row</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 other rows</source>
        <translation>%1 other rows</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Left as they are: %1.</source>
        <translation>Left as they are: %1.</translation>
    </message>
</context>
<context>
    <name>trend_store</name>
    <message>
        <location filename="../../record/trend_store.cpp" line="+20"/>
        <source>set-point</source>
        <translation>set-point</translation>
    </message>
    <message>
        <location line="+117"/>
        <source>no recorded readings in the file</source>
        <translation>no recorded readings in the file</translation>
    </message>
</context>
<context>
    <name>trend_window</name>
    <message>
        <location filename="../../record/trend_window.cpp" line="+90"/>
        <source>set-point</source>
        <translation>set-point</translation>
    </message>
    <message>
        <location line="+31"/>
        <source>Lumivox trends</source>
        <translation>Lumivox trends</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>1 min</source>
        <translation>1 min</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>10 min</source>
        <translation>10 min</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>1 h</source>
        <translation>1 h</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>4 h</source>
        <translation>4 h</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>All</source>
        <translation>All</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Reset zoom</source>
        <translation>Reset zoom</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Export PNG...</source>
        <translation>Export PNG...</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Export CSV...</source>
        <translation>Export CSV...</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Open recording...</source>
        <translation>Open recording...</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Span:</source>
        <translation>Span:</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Devices and readings</source>
        <translation>Devices and readings</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Waiting for readings from the devices...</source>
        <translation>Waiting for readings from the devices...</translation>
    </message>
    <message>
        <location line="+51"/>
        <location line="+277"/>
        <source>Live: the charts follow what the devices report.</source>
        <translation>Live: the charts follow what the devices report.</translation>
    </message>
    <message>
        <location line="-170"/>
        <source>CAN ID %1</source>
        <translation>CAN ID %1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>CAN ID %1, %2</source>
        <translation>CAN ID %1, %2</translation>
    </message>
    <message>
        <location line="+90"/>
        <location line="+178"/>
        <source>%1 to %2</source>
        <translation>%1 to %2</translation>
    </message>
    <message>
        <location line="-109"/>
        <source>Tick a reading in the list to see its chart.</source>
        <translation>Tick a reading in the list to see its chart.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Paused: %1. Un-pause or reset the zoom to follow the devices again.</source>
        <translation>Paused: %1. Un-pause or reset the zoom to follow the devices again.</translation>
    </message>
    <message>
        <location line="+42"/>
        <source>Lumivox trends: %1</source>
        <translation>Lumivox trends: %1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Loading %1...</source>
        <translation>Loading %1...</translation>
    </message>
    <message>
        <location line="+30"/>
        <source>Cannot show %1: %2.</source>
        <translation>Cannot show %1: %2.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Nothing to show.</source>
        <translation>Nothing to show.</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>%1: %2 samples in %3 series, %4.</source>
        <translation>%1: %2 samples in %3 series, %4.</translation>
    </message>
    <message numerus="yes">
        <location line="+8"/>
        <source>%n line(s) that are not a recording&apos;s skipped.</source>
        <translation>
            <numerusform>%n line that is not a recording&apos;s skipped.</numerusform>
            <numerusform>%n lines that are not a recording&apos;s skipped.</numerusform>
        </translation>
    </message>
    <message>
        <location line="+69"/>
        <source>Open recording</source>
        <translation>Open recording</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Recordings (*.csv);;All files (*)</source>
        <translation>Recordings (*.csv);;All files (*)</translation>
    </message>
    <message>
        <location line="+18"/>
        <source>Export the charts</source>
        <translation>Export the charts</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>PNG pictures (*.png)</source>
        <translation>PNG pictures (*.png)</translation>
    </message>
    <message>
        <location line="+2"/>
        <location line="+8"/>
        <source>Cannot write %1.</source>
        <translation>Cannot write %1.</translation>
    </message>
    <message>
        <location line="-3"/>
        <source>Export the samples shown</source>
        <translation>Export the samples shown</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Recordings (*.csv)</source>
        <translation>Recordings (*.csv)</translation>
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
        <location line="+73"/>
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
        <location filename="../../panels/vtr_sns_panel.cpp" line="-89"/>
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
        <location line="-23"/>
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
        <location line="+22"/>
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
        <location line="+3"/>
        <source>Input voltage</source>
        <translation>Input voltage</translation>
    </message>
    <message>
        <location line="+0"/>
        <location line="+3"/>
        <source>V</source>
        <translation>V</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Output voltage</source>
        <translation>Output voltage</translation>
    </message>
    <message>
        <location line="+11"/>
        <location line="+2"/>
        <source>Mode</source>
        <translation>Mode</translation>
    </message>
    <message>
        <location line="+50"/>
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
