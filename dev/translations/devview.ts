<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>ChartForm</name>
    <message>
        <source>Form</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ChildForm</name>
    <message>
        <source>Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Detail</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>EnergyLine</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RT-Alarm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Control</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Energyline</name>
    <message>
        <source>Unknown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Normal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Low</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Depleted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other supply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None supply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Utility supply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bypass supply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery supply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Booster supply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reducer supply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selftest</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Boost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Floating</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discharge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>INPUT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BYPASS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>LOAD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>REC</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>INV</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BATTERY</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Voltage:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frequency:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UPS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Manufacturer:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Active power:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load percent:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Temperature:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remain time:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Capacity:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MsgBox</name>
    <message>
        <source>Ok</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RTDataForm</name>
    <message>
        <source>Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Real-time information interface</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery Info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Input Info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output Info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bypass Info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Normal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Low</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Depleted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other supply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None supply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Utility supply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bypass supply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery supply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Booster supply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reducer supply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery state</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time on battery(s)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remaining battery time(Min)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remaining battery capacity(%)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery voltage(V)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery current(A)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery temperature(C)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of mains failure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Input voltage(V)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Input current(A)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Input frequency(Hz)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Input power(W)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output frequency(Hz)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output voltage(V)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output current(A)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output power(W)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output load(%)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bypass frequency(Hz)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bypass voltage(V)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bypass current(A)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bypass power(W)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Input voltage R/S/T(V)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Input current R/S/T(A)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Input frequency R/S/T(Hz)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Input power R/S/T(W)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output voltage R/S/T(V)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output current R/S/T(A)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output power R/S/T(W)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output load R/S/T(%)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bypass voltage R/S/T(V)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bypass current R/S/T(A)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bypass power R/S/T(W)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Real-time Info</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RTEventForm</name>
    <message>
        <source>Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Communication between agent and UPS fault</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Communications between agent and UPS normal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery fault</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery normal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery powered</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Utility supply normal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery low</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery voltage normal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery EOD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery resume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Temperature overrun MAX-value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Temperature normal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Input fault</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Input normal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output fault</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output normal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load overrun MAX-value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The output load normal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bypass powered</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inverter operation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bypass fault</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bypass normal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The UPS output has shutdown as requested</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The UPS output not shutdown as requested</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The entire UPS has shutdown as commanded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The entire UPS not shutdown as commanded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Charger subsystem fault</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Charger subsystem normal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The output of the UPS is in the off state</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UPS output on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The UPS system is in the off state</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UPS on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fan fault</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fan normal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fuse fault</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fuse normal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UPS fault</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UPS normal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last diagnostic test failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last diagnostic test success</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Communications between the agent and the UPS fault</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UPS is not awaiting the return of input power</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UPS shutdown after delay countdown is underway</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UPS shutdown after delay ended</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The UPS will turn off power to the load</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The UPS will not turn off power to the load</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A test is in progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No a test is in progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery Discharge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery equalization</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery switch is off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery switch on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Input switch is off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Input switch on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output switch is off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output switch is on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bypass switch is off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bypass switch is on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Temperature and humidity module 1 communication lost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Temperature and humidity module 1 communication normal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Temperature and humidity module 1 temperature is too high</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Temperature and humidity module 1 temperature is normal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Temperature and humidity module 1 temperature is too low</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Temperature and humidity module 1 humidity is too high</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Temperature and humidity module 1 humidity is normal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Temperature and humidity module 1 humidity is too low</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Temperature and humidity module 2 communication lost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Temperature and humidity module 2 communication normal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Temperature and humidity module 2 temperature is too high</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Temperature and humidity module 2 temperature normal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Temperature and humidity module 2 temperature is too low</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Temperature and humidity module 2 humidity is too high</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Temperature and humidity module 2 humidity is normal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Temperature and humidity module 2 humidity is too low</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Temperature and humidity module 3 communication lost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Temperature and humidity module 3 communication normal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Temperature and humidity module 3 temperature is too high</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Temperature and humidity module 3 temperature is normal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Temperature and humidity module 3 temperature is too low</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Temperature and humidity module 3 humidity is too high</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Temperature and humidity module 3 humidity is normal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Temperature and humidity module 3 humidity is too low</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Temperature and humidity module 4 communication lost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Temperature and humidity module 4 communication normal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Temperature and humidity module 4 temperature is too high</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Temperature and humidity module 4 temperature is normal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Temperature and humidity module 4 temperature is too low</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Temperature and humidity module 4 humidity is too high</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Temperature and humidity module 4 humidity is normal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Temperature and humidity module 4 humidity is too low</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Data/Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Event description</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RTSingleGraphForm</name>
    <message>
        <source>Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Real chart information interface</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Single-phase UPS Data Table Display</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery Capacity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output Load</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery Temperature</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery Voltage(V)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery Current(A)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bypass Voltage(V)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Single-phase UPS Data Graphic Display</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Input Voltage(V)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(0)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output Voltage(V)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remaining battery time(Min)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output load(%)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery temperature(C)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Input frequency(Hz)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output frequency(Hz)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bypass frequency(Hz)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Input voltage(V)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output voltage(V)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery voltage(V)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bypass voltage(V)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current value:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RTThreeGraphForm</name>
    <message>
        <source>Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Three-phase UPS Data Table Display</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remaining battery capacity(%)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output load(%)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery temperature(C)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery voltage(V)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery current(A)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Three-phase UPS Data Graphic Display</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bypass</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Voltage R(V)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Voltage S(V)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Voltage T(V)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frequency R(Hz)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frequency S(Hz)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frequency T(Hz)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frequency(Hz)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current value:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RateInfoForm</name>
    <message>
        <source>Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>-</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>V</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>℃</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>W</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VA</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Normal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Low</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Depleted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selftest</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Boost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Floating</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discharge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other Supply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None Supply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Utility Supply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bypass Supply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery Supply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Booster Supply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reducer Supply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UPS model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Manufacturer name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UPS ident attached devices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UPS software version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Agent software version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Agent location</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>battery voltage:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>battery current:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>battery temperature:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>remain discharge time:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time on battery:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>battery capacity:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>battery state:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>input voltage:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>input current:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>input frequency:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>input PF:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of mains failure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>output voltage:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>output current:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>output frequency:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>output power:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>output load percentage:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output Mode:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>bypass voltage:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>bypass current:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>bypass PF:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>bypass frequency:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rated input voltage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rated input frequency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rated output voltage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rated output frequency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rated active power</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rated apparent power</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DEVICE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BATTERY</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>INPUT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OUTPUT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BYPASS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RATE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SetInfoForm</name>
    <message>
        <source>Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device test</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UPS Self-test for 10 seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UPS Discharge test to low voltage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel the UPS test</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shut down setting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UPS shutdown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UPS to standby</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>minute</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UPS will wake up from standby state</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restart the UPS</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TrendChart</name>
    <message>
        <source>Curve %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TrendLegend</name>
    <message>
        <source>Left scale:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Right scale:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
