<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>ChartForm</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
</context>
<context>
    <name>ChildForm</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Detail</source>
        <translation>Detail</translation>
    </message>
    <message>
        <source>EnergyLine</source>
        <translation>Energiefluss</translation>
    </message>
    <message>
        <source>RT-Alarm</source>
        <translation>Alarme</translation>
    </message>
    <message>
        <source>Control</source>
        <translation>Steuerung</translation>
    </message>
</context>
<context>
    <name>Energyline</name>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Niedrig</translation>
    </message>
    <message>
        <source>Depleted</source>
        <translation>Entladen</translation>
    </message>
    <message>
        <source>Other supply</source>
        <translation>Andere Quelle</translation>
    </message>
    <message>
        <source>None supply</source>
        <translation>Keine Quelle</translation>
    </message>
    <message>
        <source>Utility supply</source>
        <translation>Netzbetrieb</translation>
    </message>
    <message>
        <source>Bypass supply</source>
        <translation>Bypassbetrieb</translation>
    </message>
    <message>
        <source>Battery supply</source>
        <translation>Batteriebetrieb</translation>
    </message>
    <message>
        <source>Booster supply</source>
        <translation>Netz, angehoben</translation>
    </message>
    <message>
        <source>Reducer supply</source>
        <translation>Netz, abgesenkt</translation>
    </message>
    <message>
        <source>Selftest</source>
        <translation>Selbsttest</translation>
    </message>
    <message>
        <source>Boost</source>
        <translation>Starkladung</translation>
    </message>
    <message>
        <source>Floating</source>
        <translation>Erhaltung</translation>
    </message>
    <message>
        <source>Discharge</source>
        <translation>Entladung</translation>
    </message>
    <message>
        <source>INPUT</source>
        <translation>EINGANG</translation>
    </message>
    <message>
        <source>BYPASS</source>
        <translation>BYPASS</translation>
    </message>
    <message>
        <source>LOAD</source>
        <translation>LAST</translation>
    </message>
    <message>
        <source>REC</source>
        <translation>GR</translation>
    </message>
    <message>
        <source>INV</source>
        <translation>WR</translation>
    </message>
    <message>
        <source>BATTERY</source>
        <translation>BATTERIE</translation>
    </message>
    <message>
        <source>Voltage:</source>
        <translation>Spannung:</translation>
    </message>
    <message>
        <source>Frequency:</source>
        <translation>Frequenz:</translation>
    </message>
    <message>
        <source>Current:</source>
        <translation>Strom:</translation>
    </message>
    <message>
        <source>UPS</source>
        <translation>USV</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>Typ:</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>Manufacturer:</source>
        <translation>Hersteller:</translation>
    </message>
    <message>
        <source>Active power:</source>
        <translation>Wirkleistung:</translation>
    </message>
    <message>
        <source>Load percent:</source>
        <translation>Last:</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>Temperature:</source>
        <translation>Temperatur:</translation>
    </message>
    <message>
        <source>Remain time:</source>
        <translation>Restzeit:</translation>
    </message>
    <message>
        <source>Capacity:</source>
        <translation>Kapazität:</translation>
    </message>
</context>
<context>
    <name>MsgBox</name>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>RTDataForm</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Real-time information interface</source>
        <translation>Echtzeitdaten</translation>
    </message>
    <message>
        <source>Battery Info</source>
        <translation>Batterie</translation>
    </message>
    <message>
        <source>Input Info</source>
        <translation>Eingang</translation>
    </message>
    <message>
        <source>Output Info</source>
        <translation>Ausgang</translation>
    </message>
    <message>
        <source>Bypass Info</source>
        <translation>Bypass</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Niedrig</translation>
    </message>
    <message>
        <source>Depleted</source>
        <translation>Entladen</translation>
    </message>
    <message>
        <source>Other supply</source>
        <translation>Andere Quelle</translation>
    </message>
    <message>
        <source>None supply</source>
        <translation>Keine Quelle</translation>
    </message>
    <message>
        <source>Utility supply</source>
        <translation>Netzbetrieb</translation>
    </message>
    <message>
        <source>Bypass supply</source>
        <translation>Bypassbetrieb</translation>
    </message>
    <message>
        <source>Battery supply</source>
        <translation>Batteriebetrieb</translation>
    </message>
    <message>
        <source>Booster supply</source>
        <translation>Netz, angehoben</translation>
    </message>
    <message>
        <source>Reducer supply</source>
        <translation>Netz, abgesenkt</translation>
    </message>
    <message>
        <source>Battery state</source>
        <translation>Batteriezustand</translation>
    </message>
    <message>
        <source>Time on battery(s)</source>
        <translation>Zeit auf Batterie(s)</translation>
    </message>
    <message>
        <source>Remaining battery time(Min)</source>
        <translation>Batterie-Restzeit(Min)</translation>
    </message>
    <message>
        <source>Remaining battery capacity(%)</source>
        <translation>Batterie-Restkapazität(%)</translation>
    </message>
    <message>
        <source>Battery voltage(V)</source>
        <translation>Batteriespannung(V)</translation>
    </message>
    <message>
        <source>Battery current(A)</source>
        <translation>Batteriestrom(A)</translation>
    </message>
    <message>
        <source>Battery temperature(C)</source>
        <translation>Batterietemperatur(C)</translation>
    </message>
    <message>
        <source>Number of mains failure</source>
        <translation>Anzahl Netzausfälle</translation>
    </message>
    <message>
        <source>Input voltage(V)</source>
        <translation>Eingangsspannung(V)</translation>
    </message>
    <message>
        <source>Input current(A)</source>
        <translation>Eingangsstrom(A)</translation>
    </message>
    <message>
        <source>Input frequency(Hz)</source>
        <translation>Eingangsfrequenz(Hz)</translation>
    </message>
    <message>
        <source>Input power(W)</source>
        <translation>Eingangsleistung(W)</translation>
    </message>
    <message>
        <source>Output mode</source>
        <translation>Ausgangsmodus</translation>
    </message>
    <message>
        <source>Output frequency(Hz)</source>
        <translation>Ausgangsfrequenz(Hz)</translation>
    </message>
    <message>
        <source>Output voltage(V)</source>
        <translation>Ausgangsspannung(V)</translation>
    </message>
    <message>
        <source>Output current(A)</source>
        <translation>Ausgangsstrom(A)</translation>
    </message>
    <message>
        <source>Output power(W)</source>
        <translation>Ausgangsleistung(W)</translation>
    </message>
    <message>
        <source>Output load(%)</source>
        <translation>Ausgangslast(%)</translation>
    </message>
    <message>
        <source>Bypass frequency(Hz)</source>
        <translation>Bypassfrequenz(Hz)</translation>
    </message>
    <message>
        <source>Bypass voltage(V)</source>
        <translation>Bypassspannung(V)</translation>
    </message>
    <message>
        <source>Bypass current(A)</source>
        <translation>Bypassstrom(A)</translation>
    </message>
    <message>
        <source>Bypass power(W)</source>
        <translation>Bypassleistung(W)</translation>
    </message>
    <message>
        <source>Input voltage R/S/T(V)</source>
        <translation>Eingangsspannung R/S/T(V)</translation>
    </message>
    <message>
        <source>Input current R/S/T(A)</source>
        <translation>Eingangsstrom R/S/T(A)</translation>
    </message>
    <message>
        <source>Input frequency R/S/T(Hz)</source>
        <translation>Eingangsfrequenz R/S/T(Hz)</translation>
    </message>
    <message>
        <source>Input power R/S/T(W)</source>
        <translation>Eingangsleistung R/S/T(W)</translation>
    </message>
    <message>
        <source>Output voltage R/S/T(V)</source>
        <translation>Ausgangsspannung R/S/T(V)</translation>
    </message>
    <message>
        <source>Output current R/S/T(A)</source>
        <translation>Ausgangsstrom R/S/T(A)</translation>
    </message>
    <message>
        <source>Output power R/S/T(W)</source>
        <translation>Ausgangsleistung R/S/T(W)</translation>
    </message>
    <message>
        <source>Output load R/S/T(%)</source>
        <translation>Ausgangslast R/S/T(%)</translation>
    </message>
    <message>
        <source>Bypass voltage R/S/T(V)</source>
        <translation>Bypassspannung R/S/T(V)</translation>
    </message>
    <message>
        <source>Bypass current R/S/T(A)</source>
        <translation>Bypassstrom R/S/T(A)</translation>
    </message>
    <message>
        <source>Bypass power R/S/T(W)</source>
        <translation>Bypassleistung R/S/T(W)</translation>
    </message>
    <message>
        <source>Real-time Info</source>
        <translation>Echtzeitdaten</translation>
    </message>
</context>
<context>
    <name>RTEventForm</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Communication between agent and UPS fault</source>
        <translation>Kommunikation zwischen Agent und USV gestört</translation>
    </message>
    <message>
        <source>Communications between agent and UPS normal</source>
        <translation>Kommunikation zwischen Agent und USV normal</translation>
    </message>
    <message>
        <source>Battery fault</source>
        <translation>Batteriefehler</translation>
    </message>
    <message>
        <source>Battery normal</source>
        <translation>Batterie normal</translation>
    </message>
    <message>
        <source>Battery powered</source>
        <translation>Batteriebetrieb</translation>
    </message>
    <message>
        <source>Utility supply normal</source>
        <translation>Netzversorgung normal</translation>
    </message>
    <message>
        <source>Battery low</source>
        <translation>Batterie schwach</translation>
    </message>
    <message>
        <source>Battery voltage normal</source>
        <translation>Batteriespannung normal</translation>
    </message>
    <message>
        <source>Battery EOD</source>
        <translation>Batterie entladen</translation>
    </message>
    <message>
        <source>Battery resume</source>
        <translation>Batterie wieder bereit</translation>
    </message>
    <message>
        <source>Temperature overrun MAX-value</source>
        <translation>Temperatur über dem Höchstwert</translation>
    </message>
    <message>
        <source>Temperature normal</source>
        <translation>Temperatur normal</translation>
    </message>
    <message>
        <source>Input fault</source>
        <translation>Eingangsfehler</translation>
    </message>
    <message>
        <source>Input normal</source>
        <translation>Eingang normal</translation>
    </message>
    <message>
        <source>Output fault</source>
        <translation>Ausgangsfehler</translation>
    </message>
    <message>
        <source>Output normal</source>
        <translation>Ausgang normal</translation>
    </message>
    <message>
        <source>Load overrun MAX-value</source>
        <translation>Last über dem Höchstwert</translation>
    </message>
    <message>
        <source>The output load normal</source>
        <translation>Ausgangslast normal</translation>
    </message>
    <message>
        <source>Bypass powered</source>
        <translation>Bypassbetrieb</translation>
    </message>
    <message>
        <source>Inverter operation</source>
        <translation>Wechselrichterbetrieb</translation>
    </message>
    <message>
        <source>Bypass fault</source>
        <translation>Bypassfehler</translation>
    </message>
    <message>
        <source>Bypass normal</source>
        <translation>Bypass normal</translation>
    </message>
    <message>
        <source>The UPS output has shutdown as requested</source>
        <translation>Der USV-Ausgang wurde wie angefordert abgeschaltet</translation>
    </message>
    <message>
        <source>The UPS output not shutdown as requested</source>
        <translation>Der USV-Ausgang wurde nicht wie angefordert abgeschaltet</translation>
    </message>
    <message>
        <source>The entire UPS has shutdown as commanded</source>
        <translation>Die ganze USV wurde wie befohlen abgeschaltet</translation>
    </message>
    <message>
        <source>The entire UPS not shutdown as commanded</source>
        <translation>Die ganze USV wurde nicht wie befohlen abgeschaltet</translation>
    </message>
    <message>
        <source>Charger subsystem fault</source>
        <translation>Ladegerät gestört</translation>
    </message>
    <message>
        <source>Charger subsystem normal</source>
        <translation>Ladegerät normal</translation>
    </message>
    <message>
        <source>The output of the UPS is in the off state</source>
        <translation>Der Ausgang der USV ist ausgeschaltet</translation>
    </message>
    <message>
        <source>UPS output on</source>
        <translation>USV-Ausgang ein</translation>
    </message>
    <message>
        <source>The UPS system is in the off state</source>
        <translation>Die USV ist ausgeschaltet</translation>
    </message>
    <message>
        <source>UPS on</source>
        <translation>USV ein</translation>
    </message>
    <message>
        <source>Fan fault</source>
        <translation>Lüfterfehler</translation>
    </message>
    <message>
        <source>Fan normal</source>
        <translation>Lüfter normal</translation>
    </message>
    <message>
        <source>Fuse fault</source>
        <translation>Sicherungsfehler</translation>
    </message>
    <message>
        <source>Fuse normal</source>
        <translation>Sicherung normal</translation>
    </message>
    <message>
        <source>UPS fault</source>
        <translation>USV-Fehler</translation>
    </message>
    <message>
        <source>UPS normal</source>
        <translation>USV normal</translation>
    </message>
    <message>
        <source>Last diagnostic test failed</source>
        <translation>Letzter Diagnosetest fehlgeschlagen</translation>
    </message>
    <message>
        <source>Last diagnostic test success</source>
        <translation>Letzter Diagnosetest bestanden</translation>
    </message>
    <message>
        <source>Communications between the agent and the UPS fault</source>
        <translation>Kommunikation zwischen Agent und USV gestört</translation>
    </message>
    <message>
        <source>UPS is not awaiting the return of input power</source>
        <translation>USV wartet nicht auf die Rückkehr der Eingangsversorgung</translation>
    </message>
    <message>
        <source>UPS shutdown after delay countdown is underway</source>
        <translation>Countdown zur Abschaltung der USV läuft</translation>
    </message>
    <message>
        <source>UPS shutdown after delay ended</source>
        <translation>Countdown zur Abschaltung der USV beendet</translation>
    </message>
    <message>
        <source>The UPS will turn off power to the load</source>
        <translation>Die USV wird die Last abschalten</translation>
    </message>
    <message>
        <source>The UPS will not turn off power to the load</source>
        <translation>Die USV wird die Last nicht abschalten</translation>
    </message>
    <message>
        <source>A test is in progress</source>
        <translation>Ein Test läuft</translation>
    </message>
    <message>
        <source>No a test is in progress</source>
        <translation>Es läuft kein Test</translation>
    </message>
    <message>
        <source>Battery Discharge</source>
        <translation>Batterieentladung</translation>
    </message>
    <message>
        <source>Battery equalization</source>
        <translation>Batterie-Ausgleichsladung</translation>
    </message>
    <message>
        <source>Battery switch is off</source>
        <translation>Batterieschalter aus</translation>
    </message>
    <message>
        <source>Battery switch on</source>
        <translation>Batterieschalter ein</translation>
    </message>
    <message>
        <source>Input switch is off</source>
        <translation>Eingangsschalter aus</translation>
    </message>
    <message>
        <source>Input switch on</source>
        <translation>Eingangsschalter ein</translation>
    </message>
    <message>
        <source>Output switch is off</source>
        <translation>Ausgangsschalter aus</translation>
    </message>
    <message>
        <source>Output switch is on</source>
        <translation>Ausgangsschalter ein</translation>
    </message>
    <message>
        <source>Bypass switch is off</source>
        <translation>Bypassschalter aus</translation>
    </message>
    <message>
        <source>Bypass switch is on</source>
        <translation>Bypassschalter ein</translation>
    </message>
    <message>
        <source>Temperature and humidity module 1 communication lost</source>
        <translation>Temperatur- und Feuchtemodul 1: Verbindung verloren</translation>
    </message>
    <message>
        <source>Temperature and humidity module 1 communication normal</source>
        <translation>Temperatur- und Feuchtemodul 1: Verbindung normal</translation>
    </message>
    <message>
        <source>Temperature and humidity module 1 temperature is too high</source>
        <translation>Temperatur- und Feuchtemodul 1: Temperatur zu hoch</translation>
    </message>
    <message>
        <source>Temperature and humidity module 1 temperature is normal</source>
        <translation>Temperatur- und Feuchtemodul 1: Temperatur normal</translation>
    </message>
    <message>
        <source>Temperature and humidity module 1 temperature is too low</source>
        <translation>Temperatur- und Feuchtemodul 1: Temperatur zu niedrig</translation>
    </message>
    <message>
        <source>Temperature and humidity module 1 humidity is too high</source>
        <translation>Temperatur- und Feuchtemodul 1: Feuchte zu hoch</translation>
    </message>
    <message>
        <source>Temperature and humidity module 1 humidity is normal</source>
        <translation>Temperatur- und Feuchtemodul 1: Feuchte normal</translation>
    </message>
    <message>
        <source>Temperature and humidity module 1 humidity is too low</source>
        <translation>Temperatur- und Feuchtemodul 1: Feuchte zu niedrig</translation>
    </message>
    <message>
        <source>Temperature and humidity module 2 communication lost</source>
        <translation>Temperatur- und Feuchtemodul 2: Verbindung verloren</translation>
    </message>
    <message>
        <source>Temperature and humidity module 2 communication normal</source>
        <translation>Temperatur- und Feuchtemodul 2: Verbindung normal</translation>
    </message>
    <message>
        <source>Temperature and humidity module 2 temperature is too high</source>
        <translation>Temperatur- und Feuchtemodul 2: Temperatur zu hoch</translation>
    </message>
    <message>
        <source>Temperature and humidity module 2 temperature normal</source>
        <translation>Temperatur- und Feuchtemodul 2: Temperatur normal</translation>
    </message>
    <message>
        <source>Temperature and humidity module 2 temperature is too low</source>
        <translation>Temperatur- und Feuchtemodul 2: Temperatur zu niedrig</translation>
    </message>
    <message>
        <source>Temperature and humidity module 2 humidity is too high</source>
        <translation>Temperatur- und Feuchtemodul 2: Feuchte zu hoch</translation>
    </message>
    <message>
        <source>Temperature and humidity module 2 humidity is normal</source>
        <translation>Temperatur- und Feuchtemodul 2: Feuchte normal</translation>
    </message>
    <message>
        <source>Temperature and humidity module 2 humidity is too low</source>
        <translation>Temperatur- und Feuchtemodul 2: Feuchte zu niedrig</translation>
    </message>
    <message>
        <source>Temperature and humidity module 3 communication lost</source>
        <translation>Temperatur- und Feuchtemodul 3: Verbindung verloren</translation>
    </message>
    <message>
        <source>Temperature and humidity module 3 communication normal</source>
        <translation>Temperatur- und Feuchtemodul 3: Verbindung normal</translation>
    </message>
    <message>
        <source>Temperature and humidity module 3 temperature is too high</source>
        <translation>Temperatur- und Feuchtemodul 3: Temperatur zu hoch</translation>
    </message>
    <message>
        <source>Temperature and humidity module 3 temperature is normal</source>
        <translation>Temperatur- und Feuchtemodul 3: Temperatur normal</translation>
    </message>
    <message>
        <source>Temperature and humidity module 3 temperature is too low</source>
        <translation>Temperatur- und Feuchtemodul 3: Temperatur zu niedrig</translation>
    </message>
    <message>
        <source>Temperature and humidity module 3 humidity is too high</source>
        <translation>Temperatur- und Feuchtemodul 3: Feuchte zu hoch</translation>
    </message>
    <message>
        <source>Temperature and humidity module 3 humidity is normal</source>
        <translation>Temperatur- und Feuchtemodul 3: Feuchte normal</translation>
    </message>
    <message>
        <source>Temperature and humidity module 3 humidity is too low</source>
        <translation>Temperatur- und Feuchtemodul 3: Feuchte zu niedrig</translation>
    </message>
    <message>
        <source>Temperature and humidity module 4 communication lost</source>
        <translation>Temperatur- und Feuchtemodul 4: Verbindung verloren</translation>
    </message>
    <message>
        <source>Temperature and humidity module 4 communication normal</source>
        <translation>Temperatur- und Feuchtemodul 4: Verbindung normal</translation>
    </message>
    <message>
        <source>Temperature and humidity module 4 temperature is too high</source>
        <translation>Temperatur- und Feuchtemodul 4: Temperatur zu hoch</translation>
    </message>
    <message>
        <source>Temperature and humidity module 4 temperature is normal</source>
        <translation>Temperatur- und Feuchtemodul 4: Temperatur normal</translation>
    </message>
    <message>
        <source>Temperature and humidity module 4 temperature is too low</source>
        <translation>Temperatur- und Feuchtemodul 4: Temperatur zu niedrig</translation>
    </message>
    <message>
        <source>Temperature and humidity module 4 humidity is too high</source>
        <translation>Temperatur- und Feuchtemodul 4: Feuchte zu hoch</translation>
    </message>
    <message>
        <source>Temperature and humidity module 4 humidity is normal</source>
        <translation>Temperatur- und Feuchtemodul 4: Feuchte normal</translation>
    </message>
    <message>
        <source>Temperature and humidity module 4 humidity is too low</source>
        <translation>Temperatur- und Feuchtemodul 4: Feuchte zu niedrig</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Data/Time</source>
        <translation>Datum/Zeit</translation>
    </message>
    <message>
        <source>Event description</source>
        <translation>Ereignis</translation>
    </message>
</context>
<context>
    <name>RTSingleGraphForm</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Real chart information interface</source>
        <translation>Echtzeitdiagramme</translation>
    </message>
    <message>
        <source>Single-phase UPS Data Table Display</source>
        <translation>Werte der einphasigen USV</translation>
    </message>
    <message>
        <source>Battery Capacity</source>
        <translation>Batteriekapazität</translation>
    </message>
    <message>
        <source>Output Load</source>
        <translation>Ausgangslast</translation>
    </message>
    <message>
        <source>Battery Temperature</source>
        <translation>Batterietemperatur</translation>
    </message>
    <message>
        <source>Battery Voltage(V)</source>
        <translation>Batteriespannung(V)</translation>
    </message>
    <message>
        <source>Battery Current(A)</source>
        <translation>Batteriestrom(A)</translation>
    </message>
    <message>
        <source>Bypass Voltage(V)</source>
        <translation>Bypassspannung(V)</translation>
    </message>
    <message>
        <source>Single-phase UPS Data Graphic Display</source>
        <translation>Diagramme der einphasigen USV</translation>
    </message>
    <message>
        <source>Input Voltage(V)</source>
        <translation>Eingangsspannung(V)</translation>
    </message>
    <message>
        <source>(0)</source>
        <translation>(0)</translation>
    </message>
    <message>
        <source>Output Voltage(V)</source>
        <translation>Ausgangsspannung(V)</translation>
    </message>
    <message>
        <source>Remaining battery time(Min)</source>
        <translation>Batterie-Restzeit(Min)</translation>
    </message>
    <message>
        <source>Output load(%)</source>
        <translation>Ausgangslast(%)</translation>
    </message>
    <message>
        <source>Battery temperature(C)</source>
        <translation>Batterietemperatur(C)</translation>
    </message>
    <message>
        <source>Input frequency(Hz)</source>
        <translation>Eingangsfrequenz(Hz)</translation>
    </message>
    <message>
        <source>Output frequency(Hz)</source>
        <translation>Ausgangsfrequenz(Hz)</translation>
    </message>
    <message>
        <source>Bypass frequency(Hz)</source>
        <translation>Bypassfrequenz(Hz)</translation>
    </message>
    <message>
        <source>Input voltage(V)</source>
        <translation>Eingangsspannung(V)</translation>
    </message>
    <message>
        <source>Output voltage(V)</source>
        <translation>Ausgangsspannung(V)</translation>
    </message>
    <message>
        <source>Battery voltage(V)</source>
        <translation>Batteriespannung(V)</translation>
    </message>
    <message>
        <source>Bypass voltage(V)</source>
        <translation>Bypassspannung(V)</translation>
    </message>
    <message>
        <source>Current value:</source>
        <translation>Aktuell:</translation>
    </message>
</context>
<context>
    <name>RTThreeGraphForm</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Three-phase UPS Data Table Display</source>
        <translation>Werte der dreiphasigen USV</translation>
    </message>
    <message>
        <source>Remaining battery capacity(%)</source>
        <translation>Batterie-Restkapazität(%)</translation>
    </message>
    <message>
        <source>Output load(%)</source>
        <translation>Ausgangslast(%)</translation>
    </message>
    <message>
        <source>Battery temperature(C)</source>
        <translation>Batterietemperatur(C)</translation>
    </message>
    <message>
        <source>Battery voltage(V)</source>
        <translation>Batteriespannung(V)</translation>
    </message>
    <message>
        <source>Battery current(A)</source>
        <translation>Batteriestrom(A)</translation>
    </message>
    <message>
        <source>Three-phase UPS Data Graphic Display</source>
        <translation>Diagramme der dreiphasigen USV</translation>
    </message>
    <message>
        <source>Input</source>
        <translation>Eingang</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Ausgang</translation>
    </message>
    <message>
        <source>Bypass</source>
        <translation>Bypass</translation>
    </message>
    <message>
        <source>Voltage R(V)</source>
        <translation>Spannung R(V)</translation>
    </message>
    <message>
        <source>Voltage S(V)</source>
        <translation>Spannung S(V)</translation>
    </message>
    <message>
        <source>Voltage T(V)</source>
        <translation>Spannung T(V)</translation>
    </message>
    <message>
        <source>Frequency R(Hz)</source>
        <translation>Frequenz R(Hz)</translation>
    </message>
    <message>
        <source>Frequency S(Hz)</source>
        <translation>Frequenz S(Hz)</translation>
    </message>
    <message>
        <source>Frequency T(Hz)</source>
        <translation>Frequenz T(Hz)</translation>
    </message>
    <message>
        <source>Frequency(Hz)</source>
        <translation>Frequenz(Hz)</translation>
    </message>
    <message>
        <source>Current value:</source>
        <translation>Aktuell:</translation>
    </message>
</context>
<context>
    <name>RateInfoForm</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <source>V</source>
        <translation>V</translation>
    </message>
    <message>
        <source>A</source>
        <translation>A</translation>
    </message>
    <message>
        <source>℃</source>
        <translation>℃</translation>
    </message>
    <message>
        <source>Min</source>
        <translation>Min</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Hz</source>
        <translation>Hz</translation>
    </message>
    <message>
        <source>W</source>
        <translation>W</translation>
    </message>
    <message>
        <source>VA</source>
        <translation>VA</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Niedrig</translation>
    </message>
    <message>
        <source>Depleted</source>
        <translation>Entladen</translation>
    </message>
    <message>
        <source>Selftest</source>
        <translation>Selbsttest</translation>
    </message>
    <message>
        <source>Boost</source>
        <translation>Starkladung</translation>
    </message>
    <message>
        <source>Floating</source>
        <translation>Erhaltung</translation>
    </message>
    <message>
        <source>Discharge</source>
        <translation>Entladung</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Other Supply</source>
        <translation>Andere Quelle</translation>
    </message>
    <message>
        <source>None Supply</source>
        <translation>Keine Quelle</translation>
    </message>
    <message>
        <source>Utility Supply</source>
        <translation>Netzbetrieb</translation>
    </message>
    <message>
        <source>Bypass Supply</source>
        <translation>Bypassbetrieb</translation>
    </message>
    <message>
        <source>Battery Supply</source>
        <translation>Batteriebetrieb</translation>
    </message>
    <message>
        <source>Booster Supply</source>
        <translation>Netz, angehoben</translation>
    </message>
    <message>
        <source>Reducer Supply</source>
        <translation>Netz, abgesenkt</translation>
    </message>
    <message>
        <source>UPS model</source>
        <translation>USV-Modell</translation>
    </message>
    <message>
        <source>Manufacturer name</source>
        <translation>Hersteller</translation>
    </message>
    <message>
        <source>System name</source>
        <translation>Systemname</translation>
    </message>
    <message>
        <source>UPS ident attached devices</source>
        <translation>Angeschlossene Geräte</translation>
    </message>
    <message>
        <source>UPS software version</source>
        <translation>USV-Softwareversion</translation>
    </message>
    <message>
        <source>Agent software version</source>
        <translation>Agent-Softwareversion</translation>
    </message>
    <message>
        <source>Agent location</source>
        <translation>Standort des Agenten</translation>
    </message>
    <message>
        <source>battery voltage:</source>
        <translation>Batteriespannung:</translation>
    </message>
    <message>
        <source>battery current:</source>
        <translation>Batteriestrom:</translation>
    </message>
    <message>
        <source>battery temperature:</source>
        <translation>Batterietemperatur:</translation>
    </message>
    <message>
        <source>remain discharge time:</source>
        <translation>Batterie-Restzeit:</translation>
    </message>
    <message>
        <source>Time on battery:</source>
        <translation>Zeit auf Batterie:</translation>
    </message>
    <message>
        <source>battery capacity:</source>
        <translation>Batteriekapazität:</translation>
    </message>
    <message>
        <source>battery state:</source>
        <translation>Batteriezustand:</translation>
    </message>
    <message>
        <source>input voltage:</source>
        <translation>Eingangsspannung:</translation>
    </message>
    <message>
        <source>input current:</source>
        <translation>Eingangsstrom:</translation>
    </message>
    <message>
        <source>input frequency:</source>
        <translation>Eingangsfrequenz:</translation>
    </message>
    <message>
        <source>input PF:</source>
        <translation>Eingang LF:</translation>
    </message>
    <message>
        <source>Number of mains failure</source>
        <translation>Anzahl Netzausfälle</translation>
    </message>
    <message>
        <source>output voltage:</source>
        <translation>Ausgangsspannung:</translation>
    </message>
    <message>
        <source>output current:</source>
        <translation>Ausgangsstrom:</translation>
    </message>
    <message>
        <source>output frequency:</source>
        <translation>Ausgangsfrequenz:</translation>
    </message>
    <message>
        <source>output power:</source>
        <translation>Ausgangsleistung:</translation>
    </message>
    <message>
        <source>output load percentage:</source>
        <translation>Ausgangslast in Prozent:</translation>
    </message>
    <message>
        <source>Output Mode:</source>
        <translation>Ausgangsmodus:</translation>
    </message>
    <message>
        <source>bypass voltage:</source>
        <translation>Bypassspannung:</translation>
    </message>
    <message>
        <source>bypass current:</source>
        <translation>Bypassstrom:</translation>
    </message>
    <message>
        <source>bypass PF:</source>
        <translation>Bypass LF:</translation>
    </message>
    <message>
        <source>bypass frequency:</source>
        <translation>Bypassfrequenz:</translation>
    </message>
    <message>
        <source>Rated input voltage</source>
        <translation>Nenneingangsspannung</translation>
    </message>
    <message>
        <source>Rated input frequency</source>
        <translation>Nenneingangsfrequenz</translation>
    </message>
    <message>
        <source>Rated output voltage</source>
        <translation>Nennausgangsspannung</translation>
    </message>
    <message>
        <source>Rated output frequency</source>
        <translation>Nennausgangsfrequenz</translation>
    </message>
    <message>
        <source>Rated active power</source>
        <translation>Nennwirkleistung</translation>
    </message>
    <message>
        <source>Rated apparent power</source>
        <translation>Nennscheinleistung</translation>
    </message>
    <message>
        <source>DEVICE</source>
        <translation>GERÄT</translation>
    </message>
    <message>
        <source>BATTERY</source>
        <translation>BATTERIE</translation>
    </message>
    <message>
        <source>INPUT</source>
        <translation>EINGANG</translation>
    </message>
    <message>
        <source>OUTPUT</source>
        <translation>AUSGANG</translation>
    </message>
    <message>
        <source>BYPASS</source>
        <translation>BYPASS</translation>
    </message>
    <message>
        <source>RATE</source>
        <translation>NENNWERTE</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
</context>
<context>
    <name>SetInfoForm</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Device test</source>
        <translation>Gerätetest</translation>
    </message>
    <message>
        <source>UPS Self-test for 10 seconds</source>
        <translation>USV-Selbsttest für 10 Sekunden</translation>
    </message>
    <message>
        <source>UPS Discharge test to low voltage</source>
        <translation>USV-Entladetest bis Unterspannung</translation>
    </message>
    <message>
        <source>Cancel the UPS test</source>
        <translation>USV-Test abbrechen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Shut down setting</source>
        <translation>Abschalten</translation>
    </message>
    <message>
        <source>UPS shutdown</source>
        <translation>USV abschalten</translation>
    </message>
    <message>
        <source>UPS to standby</source>
        <translation>USV in Standby für</translation>
    </message>
    <message>
        <source>minute</source>
        <translation>Minuten</translation>
    </message>
    <message>
        <source>UPS will wake up from standby state</source>
        <translation>USV aus dem Standby wecken</translation>
    </message>
    <message>
        <source>Restart the UPS</source>
        <translation>USV neu starten</translation>
    </message>
</context>
<context>
    <name>TrendChart</name>
    <message>
        <source>Curve %1</source>
        <translation>Kurve %1</translation>
    </message>
</context>
<context>
    <name>TrendLegend</name>
    <message>
        <source>Left scale:</source>
        <translation>Linke Skala:</translation>
    </message>
    <message>
        <source>Right scale:</source>
        <translation>Rechte Skala:</translation>
    </message>
</context>
</TS>
