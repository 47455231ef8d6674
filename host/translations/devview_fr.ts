<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
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
        <translation>Détail</translation>
    </message>
    <message>
        <source>EnergyLine</source>
        <translation>Flux d&apos;énergie</translation>
    </message>
    <message>
        <source>RT-Alarm</source>
        <translation>Alarmes</translation>
    </message>
    <message>
        <source>Control</source>
        <translation>Commande</translation>
    </message>
</context>
<context>
    <name>Energyline</name>
    <message>
        <source>Unknown</source>
        <translation>Inconnu</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Faible</translation>
    </message>
    <message>
        <source>Depleted</source>
        <translation>Épuisée</translation>
    </message>
    <message>
        <source>Other supply</source>
        <translation>Autre source</translation>
    </message>
    <message>
        <source>None supply</source>
        <translation>Aucune source</translation>
    </message>
    <message>
        <source>Utility supply</source>
        <translation>Secteur</translation>
    </message>
    <message>
        <source>Bypass supply</source>
        <translation>Bypass</translation>
    </message>
    <message>
        <source>Battery supply</source>
        <translation>Batterie</translation>
    </message>
    <message>
        <source>Booster supply</source>
        <translation>Secteur élevé</translation>
    </message>
    <message>
        <source>Reducer supply</source>
        <translation>Secteur réduit</translation>
    </message>
    <message>
        <source>Selftest</source>
        <translation>Autotest</translation>
    </message>
    <message>
        <source>Boost</source>
        <translation>Égalisation</translation>
    </message>
    <message>
        <source>Floating</source>
        <translation>Floating</translation>
    </message>
    <message>
        <source>Discharge</source>
        <translation>Décharge</translation>
    </message>
    <message>
        <source>INPUT</source>
        <translation>ENTRÉE</translation>
    </message>
    <message>
        <source>BYPASS</source>
        <translation>BYPASS</translation>
    </message>
    <message>
        <source>LOAD</source>
        <translation>UTIL.</translation>
    </message>
    <message>
        <source>REC</source>
        <translation>RED</translation>
    </message>
    <message>
        <source>INV</source>
        <translation>OND</translation>
    </message>
    <message>
        <source>BATTERY</source>
        <translation>BATTERIE</translation>
    </message>
    <message>
        <source>Voltage:</source>
        <translation>Tension:</translation>
    </message>
    <message>
        <source>Frequency:</source>
        <translation>Fréquence:</translation>
    </message>
    <message>
        <source>Current:</source>
        <translation>Courant:</translation>
    </message>
    <message>
        <source>UPS</source>
        <translation>ASI</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>Type:</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nom:</translation>
    </message>
    <message>
        <source>Manufacturer:</source>
        <translation>Fabricant:</translation>
    </message>
    <message>
        <source>Active power:</source>
        <translation>Puiss. act.:</translation>
    </message>
    <message>
        <source>Load percent:</source>
        <translation>Charge:</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>État:</translation>
    </message>
    <message>
        <source>Temperature:</source>
        <translation>Température:</translation>
    </message>
    <message>
        <source>Remain time:</source>
        <translation>Autonomie:</translation>
    </message>
    <message>
        <source>Capacity:</source>
        <translation>Capacité:</translation>
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
        <translation>Annuler</translation>
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
        <translation>Données en temps réel</translation>
    </message>
    <message>
        <source>Battery Info</source>
        <translation>Batterie</translation>
    </message>
    <message>
        <source>Input Info</source>
        <translation>Entrée</translation>
    </message>
    <message>
        <source>Output Info</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <source>Bypass Info</source>
        <translation>Bypass</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Inconnu</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Faible</translation>
    </message>
    <message>
        <source>Depleted</source>
        <translation>Épuisée</translation>
    </message>
    <message>
        <source>Other supply</source>
        <translation>Autre source</translation>
    </message>
    <message>
        <source>None supply</source>
        <translation>Aucune source</translation>
    </message>
    <message>
        <source>Utility supply</source>
        <translation>Secteur</translation>
    </message>
    <message>
        <source>Bypass supply</source>
        <translation>Bypass</translation>
    </message>
    <message>
        <source>Battery supply</source>
        <translation>Batterie</translation>
    </message>
    <message>
        <source>Booster supply</source>
        <translation>Secteur élevé</translation>
    </message>
    <message>
        <source>Reducer supply</source>
        <translation>Secteur réduit</translation>
    </message>
    <message>
        <source>Battery state</source>
        <translation>État de la batterie</translation>
    </message>
    <message>
        <source>Time on battery(s)</source>
        <translation>Durée sur batterie(s)</translation>
    </message>
    <message>
        <source>Remaining battery time(Min)</source>
        <translation>Autonomie restante(Min)</translation>
    </message>
    <message>
        <source>Remaining battery capacity(%)</source>
        <translation>Capacité restante(%)</translation>
    </message>
    <message>
        <source>Battery voltage(V)</source>
        <translation>Tension batterie(V)</translation>
    </message>
    <message>
        <source>Battery current(A)</source>
        <translation>Courant batterie(A)</translation>
    </message>
    <message>
        <source>Battery temperature(C)</source>
        <translation>Température batterie(C)</translation>
    </message>
    <message>
        <source>Number of mains failure</source>
        <translation>Nombre de coupures secteur</translation>
    </message>
    <message>
        <source>Input voltage(V)</source>
        <translation>Tension d&apos;entrée(V)</translation>
    </message>
    <message>
        <source>Input current(A)</source>
        <translation>Courant d&apos;entrée(A)</translation>
    </message>
    <message>
        <source>Input frequency(Hz)</source>
        <translation>Fréquence d&apos;entrée(Hz)</translation>
    </message>
    <message>
        <source>Input power(W)</source>
        <translation>Puissance d&apos;entrée(W)</translation>
    </message>
    <message>
        <source>Output mode</source>
        <translation>Mode de sortie</translation>
    </message>
    <message>
        <source>Output frequency(Hz)</source>
        <translation>Fréquence de sortie(Hz)</translation>
    </message>
    <message>
        <source>Output voltage(V)</source>
        <translation>Tension de sortie(V)</translation>
    </message>
    <message>
        <source>Output current(A)</source>
        <translation>Courant de sortie(A)</translation>
    </message>
    <message>
        <source>Output power(W)</source>
        <translation>Puissance de sortie(W)</translation>
    </message>
    <message>
        <source>Output load(%)</source>
        <translation>Charge de sortie(%)</translation>
    </message>
    <message>
        <source>Bypass frequency(Hz)</source>
        <translation>Fréquence bypass(Hz)</translation>
    </message>
    <message>
        <source>Bypass voltage(V)</source>
        <translation>Tension bypass(V)</translation>
    </message>
    <message>
        <source>Bypass current(A)</source>
        <translation>Courant bypass(A)</translation>
    </message>
    <message>
        <source>Bypass power(W)</source>
        <translation>Puissance bypass(W)</translation>
    </message>
    <message>
        <source>Input voltage R/S/T(V)</source>
        <translation>Tension d&apos;entrée R/S/T(V)</translation>
    </message>
    <message>
        <source>Input current R/S/T(A)</source>
        <translation>Courant d&apos;entrée R/S/T(A)</translation>
    </message>
    <message>
        <source>Input frequency R/S/T(Hz)</source>
        <translation>Fréquence d&apos;entrée R/S/T(Hz)</translation>
    </message>
    <message>
        <source>Input power R/S/T(W)</source>
        <translation>Puissance d&apos;entrée R/S/T(W)</translation>
    </message>
    <message>
        <source>Output voltage R/S/T(V)</source>
        <translation>Tension de sortie R/S/T(V)</translation>
    </message>
    <message>
        <source>Output current R/S/T(A)</source>
        <translation>Courant de sortie R/S/T(A)</translation>
    </message>
    <message>
        <source>Output power R/S/T(W)</source>
        <translation>Puissance de sortie R/S/T(W)</translation>
    </message>
    <message>
        <source>Output load R/S/T(%)</source>
        <translation>Charge de sortie R/S/T(%)</translation>
    </message>
    <message>
        <source>Bypass voltage R/S/T(V)</source>
        <translation>Tension bypass R/S/T(V)</translation>
    </message>
    <message>
        <source>Bypass current R/S/T(A)</source>
        <translation>Courant bypass R/S/T(A)</translation>
    </message>
    <message>
        <source>Bypass power R/S/T(W)</source>
        <translation>Puissance bypass R/S/T(W)</translation>
    </message>
    <message>
        <source>Real-time Info</source>
        <translation>Temps réel</translation>
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
        <translation>Défaut de communication entre l&apos;agent et l&apos;ASI</translation>
    </message>
    <message>
        <source>Communications between agent and UPS normal</source>
        <translation>Communication entre l&apos;agent et l&apos;ASI normale</translation>
    </message>
    <message>
        <source>Battery fault</source>
        <translation>Défaut batterie</translation>
    </message>
    <message>
        <source>Battery normal</source>
        <translation>Batterie normale</translation>
    </message>
    <message>
        <source>Battery powered</source>
        <translation>Alimentation par batterie</translation>
    </message>
    <message>
        <source>Utility supply normal</source>
        <translation>Alimentation secteur normale</translation>
    </message>
    <message>
        <source>Battery low</source>
        <translation>Batterie faible</translation>
    </message>
    <message>
        <source>Battery voltage normal</source>
        <translation>Tension batterie normale</translation>
    </message>
    <message>
        <source>Battery EOD</source>
        <translation>Fin de décharge batterie</translation>
    </message>
    <message>
        <source>Battery resume</source>
        <translation>Batterie rétablie</translation>
    </message>
    <message>
        <source>Temperature overrun MAX-value</source>
        <translation>Température au-dessus du maximum</translation>
    </message>
    <message>
        <source>Temperature normal</source>
        <translation>Température normale</translation>
    </message>
    <message>
        <source>Input fault</source>
        <translation>Défaut d&apos;entrée</translation>
    </message>
    <message>
        <source>Input normal</source>
        <translation>Entrée normale</translation>
    </message>
    <message>
        <source>Output fault</source>
        <translation>Défaut de sortie</translation>
    </message>
    <message>
        <source>Output normal</source>
        <translation>Sortie normale</translation>
    </message>
    <message>
        <source>Load overrun MAX-value</source>
        <translation>Charge au-dessus du maximum</translation>
    </message>
    <message>
        <source>The output load normal</source>
        <translation>Charge de sortie normale</translation>
    </message>
    <message>
        <source>Bypass powered</source>
        <translation>Alimentation par bypass</translation>
    </message>
    <message>
        <source>Inverter operation</source>
        <translation>Fonctionnement sur onduleur</translation>
    </message>
    <message>
        <source>Bypass fault</source>
        <translation>Défaut bypass</translation>
    </message>
    <message>
        <source>Bypass normal</source>
        <translation>Bypass normal</translation>
    </message>
    <message>
        <source>The UPS output has shutdown as requested</source>
        <translation>La sortie de l&apos;ASI a été coupée comme demandé</translation>
    </message>
    <message>
        <source>The UPS output not shutdown as requested</source>
        <translation>La sortie de l&apos;ASI n&apos;a pas été coupée comme demandé</translation>
    </message>
    <message>
        <source>The entire UPS has shutdown as commanded</source>
        <translation>L&apos;ASI entière a été arrêtée comme commandé</translation>
    </message>
    <message>
        <source>The entire UPS not shutdown as commanded</source>
        <translation>L&apos;ASI entière n&apos;a pas été arrêtée comme commandé</translation>
    </message>
    <message>
        <source>Charger subsystem fault</source>
        <translation>Défaut du chargeur</translation>
    </message>
    <message>
        <source>Charger subsystem normal</source>
        <translation>Chargeur normal</translation>
    </message>
    <message>
        <source>The output of the UPS is in the off state</source>
        <translation>La sortie de l&apos;ASI est coupée</translation>
    </message>
    <message>
        <source>UPS output on</source>
        <translation>Sortie ASI en marche</translation>
    </message>
    <message>
        <source>The UPS system is in the off state</source>
        <translation>L&apos;ASI est à l&apos;arrêt</translation>
    </message>
    <message>
        <source>UPS on</source>
        <translation>ASI en marche</translation>
    </message>
    <message>
        <source>Fan fault</source>
        <translation>Défaut ventilateur</translation>
    </message>
    <message>
        <source>Fan normal</source>
        <translation>Ventilateur normal</translation>
    </message>
    <message>
        <source>Fuse fault</source>
        <translation>Défaut fusible</translation>
    </message>
    <message>
        <source>Fuse normal</source>
        <translation>Fusible normal</translation>
    </message>
    <message>
        <source>UPS fault</source>
        <translation>Défaut ASI</translation>
    </message>
    <message>
        <source>UPS normal</source>
        <translation>ASI normale</translation>
    </message>
    <message>
        <source>Last diagnostic test failed</source>
        <translation>Échec du dernier test de diagnostic</translation>
    </message>
    <message>
        <source>Last diagnostic test success</source>
        <translation>Dernier test de diagnostic réussi</translation>
    </message>
    <message>
        <source>Communications between the agent and the UPS fault</source>
        <translation>Défaut de communication entre l&apos;agent et l&apos;ASI</translation>
    </message>
    <message>
        <source>UPS is not awaiting the return of input power</source>
        <translation>L&apos;ASI n&apos;attend pas le retour de l&apos;alimentation d&apos;entrée</translation>
    </message>
    <message>
        <source>UPS shutdown after delay countdown is underway</source>
        <translation>Compte à rebours d&apos;arrêt de l&apos;ASI en cours</translation>
    </message>
    <message>
        <source>UPS shutdown after delay ended</source>
        <translation>Compte à rebours d&apos;arrêt de l&apos;ASI terminé</translation>
    </message>
    <message>
        <source>The UPS will turn off power to the load</source>
        <translation>L&apos;ASI va couper l&apos;alimentation de la charge</translation>
    </message>
    <message>
        <source>The UPS will not turn off power to the load</source>
        <translation>L&apos;ASI ne va pas couper l&apos;alimentation de la charge</translation>
    </message>
    <message>
        <source>A test is in progress</source>
        <translation>Un test est en cours</translation>
    </message>
    <message>
        <source>No a test is in progress</source>
        <translation>Aucun test en cours</translation>
    </message>
    <message>
        <source>Battery Discharge</source>
        <translation>Décharge de la batterie</translation>
    </message>
    <message>
        <source>Battery equalization</source>
        <translation>Égalisation de la batterie</translation>
    </message>
    <message>
        <source>Battery switch is off</source>
        <translation>Interrupteur batterie ouvert</translation>
    </message>
    <message>
        <source>Battery switch on</source>
        <translation>Interrupteur batterie fermé</translation>
    </message>
    <message>
        <source>Input switch is off</source>
        <translation>Interrupteur d&apos;entrée ouvert</translation>
    </message>
    <message>
        <source>Input switch on</source>
        <translation>Interrupteur d&apos;entrée fermé</translation>
    </message>
    <message>
        <source>Output switch is off</source>
        <translation>Interrupteur de sortie ouvert</translation>
    </message>
    <message>
        <source>Output switch is on</source>
        <translation>Interrupteur de sortie fermé</translation>
    </message>
    <message>
        <source>Bypass switch is off</source>
        <translation>Interrupteur bypass ouvert</translation>
    </message>
    <message>
        <source>Bypass switch is on</source>
        <translation>Interrupteur bypass fermé</translation>
    </message>
    <message>
        <source>Temperature and humidity module 1 communication lost</source>
        <translation>Module température et humidité 1 : communication perdue</translation>
    </message>
    <message>
        <source>Temperature and humidity module 1 communication normal</source>
        <translation>Module température et humidité 1 : communication normale</translation>
    </message>
    <message>
        <source>Temperature and humidity module 1 temperature is too high</source>
        <translation>Module température et humidité 1 : température trop élevée</translation>
    </message>
    <message>
        <source>Temperature and humidity module 1 temperature is normal</source>
        <translation>Module température et humidité 1 : température normale</translation>
    </message>
    <message>
        <source>Temperature and humidity module 1 temperature is too low</source>
        <translation>Module température et humidité 1 : température trop basse</translation>
    </message>
    <message>
        <source>Temperature and humidity module 1 humidity is too high</source>
        <translation>Module température et humidité 1 : humidité trop élevée</translation>
    </message>
    <message>
        <source>Temperature and humidity module 1 humidity is normal</source>
        <translation>Module température et humidité 1 : humidité normale</translation>
    </message>
    <message>
        <source>Temperature and humidity module 1 humidity is too low</source>
        <translation>Module température et humidité 1 : humidité trop basse</translation>
    </message>
    <message>
        <source>Temperature and humidity module 2 communication lost</source>
        <translation>Module température et humidité 2 : communication perdue</translation>
    </message>
    <message>
        <source>Temperature and humidity module 2 communication normal</source>
        <translation>Module température et humidité 2 : communication normale</translation>
    </message>
    <message>
        <source>Temperature and humidity module 2 temperature is too high</source>
        <translation>Module température et humidité 2 : température trop élevée</translation>
    </message>
    <message>
        <source>Temperature and humidity module 2 temperature normal</source>
        <translation>Module température et humidité 2 : température normale</translation>
    </message>
    <message>
        <source>Temperature and humidity module 2 temperature is too low</source>
        <translation>Module température et humidité 2 : température trop basse</translation>
    </message>
    <message>
        <source>Temperature and humidity module 2 humidity is too high</source>
        <translation>Module température et humidité 2 : humidité trop élevée</translation>
    </message>
    <message>
        <source>Temperature and humidity module 2 humidity is normal</source>
        <translation>Module température et humidité 2 : humidité normale</translation>
    </message>
    <message>
        <source>Temperature and humidity module 2 humidity is too low</source>
        <translation>Module température et humidité 2 : humidité trop basse</translation>
    </message>
    <message>
        <source>Temperature and humidity module 3 communication lost</source>
        <translation>Module température et humidité 3 : communication perdue</translation>
    </message>
    <message>
        <source>Temperature and humidity module 3 communication normal</source>
        <translation>Module température et humidité 3 : communication normale</translation>
    </message>
    <message>
        <source>Temperature and humidity module 3 temperature is too high</source>
        <translation>Module température et humidité 3 : température trop élevée</translation>
    </message>
    <message>
        <source>Temperature and humidity module 3 temperature is normal</source>
        <translation>Module température et humidité 3 : température normale</translation>
    </message>
    <message>
        <source>Temperature and humidity module 3 temperature is too low</source>
        <translation>Module température et humidité 3 : température trop basse</translation>
    </message>
    <message>
        <source>Temperature and humidity module 3 humidity is too high</source>
        <translation>Module température et humidité 3 : humidité trop élevée</translation>
    </message>
    <message>
        <source>Temperature and humidity module 3 humidity is normal</source>
        <translation>Module température et humidité 3 : humidité normale</translation>
    </message>
    <message>
        <source>Temperature and humidity module 3 humidity is too low</source>
        <translation>Module température et humidité 3 : humidité trop basse</translation>
    </message>
    <message>
        <source>Temperature and humidity module 4 communication lost</source>
        <translation>Module température et humidité 4 : communication perdue</translation>
    </message>
    <message>
        <source>Temperature and humidity module 4 communication normal</source>
        <translation>Module température et humidité 4 : communication normale</translation>
    </message>
    <message>
        <source>Temperature and humidity module 4 temperature is too high</source>
        <translation>Module température et humidité 4 : température trop élevée</translation>
    </message>
    <message>
        <source>Temperature and humidity module 4 temperature is normal</source>
        <translation>Module température et humidité 4 : température normale</translation>
    </message>
    <message>
        <source>Temperature and humidity module 4 temperature is too low</source>
        <translation>Module température et humidité 4 : température trop basse</translation>
    </message>
    <message>
        <source>Temperature and humidity module 4 humidity is too high</source>
        <translation>Module température et humidité 4 : humidité trop élevée</translation>
    </message>
    <message>
        <source>Temperature and humidity module 4 humidity is normal</source>
        <translation>Module température et humidité 4 : humidité normale</translation>
    </message>
    <message>
        <source>Temperature and humidity module 4 humidity is too low</source>
        <translation>Module température et humidité 4 : humidité trop basse</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Data/Time</source>
        <translation>Date/Heure</translation>
    </message>
    <message>
        <source>Event description</source>
        <translation>Événement</translation>
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
        <translation>Graphiques en temps réel</translation>
    </message>
    <message>
        <source>Single-phase UPS Data Table Display</source>
        <translation>Valeurs de l&apos;ASI monophasée</translation>
    </message>
    <message>
        <source>Battery Capacity</source>
        <translation>Capacité batterie</translation>
    </message>
    <message>
        <source>Output Load</source>
        <translation>Charge de sortie</translation>
    </message>
    <message>
        <source>Battery Temperature</source>
        <translation>Température batterie</translation>
    </message>
    <message>
        <source>Battery Voltage(V)</source>
        <translation>Tension batterie(V)</translation>
    </message>
    <message>
        <source>Battery Current(A)</source>
        <translation>Courant batterie(A)</translation>
    </message>
    <message>
        <source>Bypass Voltage(V)</source>
        <translation>Tension bypass(V)</translation>
    </message>
    <message>
        <source>Single-phase UPS Data Graphic Display</source>
        <translation>Graphiques de l&apos;ASI monophasée</translation>
    </message>
    <message>
        <source>Input Voltage(V)</source>
        <translation>Tension d&apos;entrée(V)</translation>
    </message>
    <message>
        <source>(0)</source>
        <translation>(0)</translation>
    </message>
    <message>
        <source>Output Voltage(V)</source>
        <translation>Tension de sortie(V)</translation>
    </message>
    <message>
        <source>Remaining battery time(Min)</source>
        <translation>Autonomie restante(Min)</translation>
    </message>
    <message>
        <source>Output load(%)</source>
        <translation>Charge de sortie(%)</translation>
    </message>
    <message>
        <source>Battery temperature(C)</source>
        <translation>Température batterie(C)</translation>
    </message>
    <message>
        <source>Input frequency(Hz)</source>
        <translation>Fréquence d&apos;entrée(Hz)</translation>
    </message>
    <message>
        <source>Output frequency(Hz)</source>
        <translation>Fréquence de sortie(Hz)</translation>
    </message>
    <message>
        <source>Bypass frequency(Hz)</source>
        <translation>Fréquence bypass(Hz)</translation>
    </message>
    <message>
        <source>Input voltage(V)</source>
        <translation>Tension d&apos;entrée(V)</translation>
    </message>
    <message>
        <source>Output voltage(V)</source>
        <translation>Tension de sortie(V)</translation>
    </message>
    <message>
        <source>Battery voltage(V)</source>
        <translation>Tension batterie(V)</translation>
    </message>
    <message>
        <source>Bypass voltage(V)</source>
        <translation>Tension bypass(V)</translation>
    </message>
    <message>
        <source>Current value:</source>
        <translation>Actuel:</translation>
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
        <translation>Valeurs de l&apos;ASI triphasée</translation>
    </message>
    <message>
        <source>Remaining battery capacity(%)</source>
        <translation>Capacité restante(%)</translation>
    </message>
    <message>
        <source>Output load(%)</source>
        <translation>Charge de sortie(%)</translation>
    </message>
    <message>
        <source>Battery temperature(C)</source>
        <translation>Température batterie(C)</translation>
    </message>
    <message>
        <source>Battery voltage(V)</source>
        <translation>Tension batterie(V)</translation>
    </message>
    <message>
        <source>Battery current(A)</source>
        <translation>Courant batterie(A)</translation>
    </message>
    <message>
        <source>Three-phase UPS Data Graphic Display</source>
        <translation>Graphiques de l&apos;ASI triphasée</translation>
    </message>
    <message>
        <source>Input</source>
        <translation>Entrée</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <source>Bypass</source>
        <translation>Bypass</translation>
    </message>
    <message>
        <source>Voltage R(V)</source>
        <translation>Tension R(V)</translation>
    </message>
    <message>
        <source>Voltage S(V)</source>
        <translation>Tension S(V)</translation>
    </message>
    <message>
        <source>Voltage T(V)</source>
        <translation>Tension T(V)</translation>
    </message>
    <message>
        <source>Frequency R(Hz)</source>
        <translation>Fréquence R(Hz)</translation>
    </message>
    <message>
        <source>Frequency S(Hz)</source>
        <translation>Fréquence S(Hz)</translation>
    </message>
    <message>
        <source>Frequency T(Hz)</source>
        <translation>Fréquence T(Hz)</translation>
    </message>
    <message>
        <source>Frequency(Hz)</source>
        <translation>Fréquence(Hz)</translation>
    </message>
    <message>
        <source>Current value:</source>
        <translation>Actuel:</translation>
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
        <translation>Inconnu</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Faible</translation>
    </message>
    <message>
        <source>Depleted</source>
        <translation>Épuisée</translation>
    </message>
    <message>
        <source>Selftest</source>
        <translation>Autotest</translation>
    </message>
    <message>
        <source>Boost</source>
        <translation>Égalisation</translation>
    </message>
    <message>
        <source>Floating</source>
        <translation>Floating</translation>
    </message>
    <message>
        <source>Discharge</source>
        <translation>Décharge</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>Other Supply</source>
        <translation>Autre source</translation>
    </message>
    <message>
        <source>None Supply</source>
        <translation>Aucune source</translation>
    </message>
    <message>
        <source>Utility Supply</source>
        <translation>Secteur</translation>
    </message>
    <message>
        <source>Bypass Supply</source>
        <translation>Bypass</translation>
    </message>
    <message>
        <source>Battery Supply</source>
        <translation>Batterie</translation>
    </message>
    <message>
        <source>Booster Supply</source>
        <translation>Secteur élevé</translation>
    </message>
    <message>
        <source>Reducer Supply</source>
        <translation>Secteur réduit</translation>
    </message>
    <message>
        <source>UPS model</source>
        <translation>Modèle d&apos;ASI</translation>
    </message>
    <message>
        <source>Manufacturer name</source>
        <translation>Fabricant</translation>
    </message>
    <message>
        <source>System name</source>
        <translation>Nom du système</translation>
    </message>
    <message>
        <source>UPS ident attached devices</source>
        <translation>Équipements raccordés</translation>
    </message>
    <message>
        <source>UPS software version</source>
        <translation>Version logiciel ASI</translation>
    </message>
    <message>
        <source>Agent software version</source>
        <translation>Version logiciel agent</translation>
    </message>
    <message>
        <source>Agent location</source>
        <translation>Emplacement de l&apos;agent</translation>
    </message>
    <message>
        <source>battery voltage:</source>
        <translation>tension batterie:</translation>
    </message>
    <message>
        <source>battery current:</source>
        <translation>courant batterie:</translation>
    </message>
    <message>
        <source>battery temperature:</source>
        <translation>température batterie:</translation>
    </message>
    <message>
        <source>remain discharge time:</source>
        <translation>autonomie restante:</translation>
    </message>
    <message>
        <source>Time on battery:</source>
        <translation>Durée sur batterie:</translation>
    </message>
    <message>
        <source>battery capacity:</source>
        <translation>capacité batterie:</translation>
    </message>
    <message>
        <source>battery state:</source>
        <translation>état batterie:</translation>
    </message>
    <message>
        <source>input voltage:</source>
        <translation>tension d&apos;entrée:</translation>
    </message>
    <message>
        <source>input current:</source>
        <translation>courant d&apos;entrée:</translation>
    </message>
    <message>
        <source>input frequency:</source>
        <translation>fréquence d&apos;entrée:</translation>
    </message>
    <message>
        <source>input PF:</source>
        <translation>FP d&apos;entrée:</translation>
    </message>
    <message>
        <source>Number of mains failure</source>
        <translation>Nombre de coupures secteur</translation>
    </message>
    <message>
        <source>output voltage:</source>
        <translation>tension de sortie:</translation>
    </message>
    <message>
        <source>output current:</source>
        <translation>courant de sortie:</translation>
    </message>
    <message>
        <source>output frequency:</source>
        <translation>fréquence de sortie:</translation>
    </message>
    <message>
        <source>output power:</source>
        <translation>puissance de sortie:</translation>
    </message>
    <message>
        <source>output load percentage:</source>
        <translation>taux de charge:</translation>
    </message>
    <message>
        <source>Output Mode:</source>
        <translation>Mode de sortie:</translation>
    </message>
    <message>
        <source>bypass voltage:</source>
        <translation>tension bypass:</translation>
    </message>
    <message>
        <source>bypass current:</source>
        <translation>courant bypass:</translation>
    </message>
    <message>
        <source>bypass PF:</source>
        <translation>FP bypass:</translation>
    </message>
    <message>
        <source>bypass frequency:</source>
        <translation>fréquence bypass:</translation>
    </message>
    <message>
        <source>Rated input voltage</source>
        <translation>Tension d&apos;entrée nom.</translation>
    </message>
    <message>
        <source>Rated input frequency</source>
        <translation>Fréquence d&apos;entrée nom.</translation>
    </message>
    <message>
        <source>Rated output voltage</source>
        <translation>Tension de sortie nom.</translation>
    </message>
    <message>
        <source>Rated output frequency</source>
        <translation>Fréquence de sortie nom.</translation>
    </message>
    <message>
        <source>Rated active power</source>
        <translation>Puissance active nom.</translation>
    </message>
    <message>
        <source>Rated apparent power</source>
        <translation>Puissance apparente nom.</translation>
    </message>
    <message>
        <source>DEVICE</source>
        <translation>APPAREIL</translation>
    </message>
    <message>
        <source>BATTERY</source>
        <translation>BATTERIE</translation>
    </message>
    <message>
        <source>INPUT</source>
        <translation>ENTRÉE</translation>
    </message>
    <message>
        <source>OUTPUT</source>
        <translation>SORTIE</translation>
    </message>
    <message>
        <source>BYPASS</source>
        <translation>BYPASS</translation>
    </message>
    <message>
        <source>RATE</source>
        <translation>NOMINAL</translation>
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
        <translation>Test de l&apos;appareil</translation>
    </message>
    <message>
        <source>UPS Self-test for 10 seconds</source>
        <translation>Autotest de l&apos;ASI pendant 10 secondes</translation>
    </message>
    <message>
        <source>UPS Discharge test to low voltage</source>
        <translation>Décharge de l&apos;ASI jusqu&apos;à tension basse</translation>
    </message>
    <message>
        <source>Cancel the UPS test</source>
        <translation>Annuler le test de l&apos;ASI</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Shut down setting</source>
        <translation>Arrêt</translation>
    </message>
    <message>
        <source>UPS shutdown</source>
        <translation>Arrêter l&apos;ASI</translation>
    </message>
    <message>
        <source>UPS to standby</source>
        <translation>ASI en veille pendant</translation>
    </message>
    <message>
        <source>minute</source>
        <translation>minutes</translation>
    </message>
    <message>
        <source>UPS will wake up from standby state</source>
        <translation>Sortir l&apos;ASI de la veille</translation>
    </message>
    <message>
        <source>Restart the UPS</source>
        <translation>Redémarrer l&apos;ASI</translation>
    </message>
</context>
<context>
    <name>TrendChart</name>
    <message>
        <source>Curve %1</source>
        <translation>Courbe %1</translation>
    </message>
</context>
<context>
    <name>TrendLegend</name>
    <message>
        <source>Left scale:</source>
        <translation>Échelle gauche:</translation>
    </message>
    <message>
        <source>Right scale:</source>
        <translation>Échelle droite:</translation>
    </message>
</context>
</TS>
