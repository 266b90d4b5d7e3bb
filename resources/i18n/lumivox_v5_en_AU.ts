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
        <location line="+30"/>
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
        <location filename="../../panels/cw_driver_base.cpp" line="+63"/>
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
    <name>main_window</name>
    <message>
        <location filename="../../app/main_window.ui" line="+14"/>
        <source>lumivox v5</source>
        <translation>lumivox v5</translation>
    </message>
    <message>
        <location line="+99"/>
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
        <location filename="../../panels/framework/panel_base.cpp" line="+121"/>
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
</TS>
