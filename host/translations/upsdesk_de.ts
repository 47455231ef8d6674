<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>AddOperator</name>
    <message>
        <source>not enough memory to hash the password</source>
        <translation>nicht genug Speicher, um das Passwort zu hashen</translation>
    </message>
</context>
<context>
    <name>AddressRange</name>
    <message>
        <source>Enter a range as 10.0.0.0/24, 10.0.0.5-10.0.0.60 or 10.0.0.5-60.</source>
        <translation>Einen Bereich so eingeben: 10.0.0.0/24, 10.0.0.5-10.0.0.60 oder 10.0.0.5-60.</translation>
    </message>
    <message>
        <source>The range has %1 addresses; at most %2 are asked at a time.</source>
        <translation>Der Bereich hat %1 Adressen; höchstens %2 werden auf einmal gefragt.</translation>
    </message>
</context>
<context>
    <name>Attention</name>
    <message numerus="yes">
        <source>%n UPS(es), none needs attention</source>
        <translation>
            <numerusform>%n USV, keine braucht Aufmerksamkeit</numerusform>
            <numerusform>%n USVen, keine braucht Aufmerksamkeit</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n UPS(es) need attention</source>
        <translation>
            <numerusform>%1 von %n USV braucht Aufmerksamkeit</numerusform>
            <numerusform>%1 von %n USVen brauchen Aufmerksamkeit</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CheckConfig</name>
    <message>
        <source>there is no file %1; the defaults apply</source>
        <translation>es gibt keine Datei %1; die Vorgaben gelten</translation>
    </message>
</context>
<context>
    <name>CloseGuard</name>
    <message>
        <source>%1: %2, sent at %3</source>
        <translation>%1: %2, gesendet um %3</translation>
    </message>
    <message>
        <source>Commands under way</source>
        <translation>Laufende Befehle</translation>
    </message>
    <message>
        <source>Close while commands have no result yet?</source>
        <translation>Schließen, obwohl Befehle noch kein Ergebnis haben?</translation>
    </message>
    <message>
        <source>%1

A command that was sent is not taken back by closing. It may be left half-done: sent, but not followed to its end, so that its result stays unknown; a command that takes several steps may stop between them.</source>
        <translation>%1

Ein gesendeter Befehl wird durch das Schließen nicht zurückgenommen. Er kann halb fertig bleiben: gesendet, aber nicht bis zum Ende verfolgt, so dass sein Ergebnis unbekannt bleibt; ein Befehl in mehreren Schritten kann dazwischen stehen bleiben.</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>S&amp;chließen</translation>
    </message>
</context>
<context>
    <name>CommandChannel</name>
    <message>
        <source>The command for notifications is too slow: %1 wait for it.</source>
        <translation>Der Befehl für Benachrichtigungen ist zu langsam: %1 warten auf ihn.</translation>
    </message>
    <message>
        <source>The command for notifications was ended: it crashed or ran longer than %1 s.</source>
        <translation>Der Befehl für Benachrichtigungen wurde beendet: Er ist abgestürzt oder lief länger als %1 s.</translation>
    </message>
    <message>
        <source>The command for notifications failed with exit code %1.</source>
        <translation>Der Befehl für Benachrichtigungen ist mit Exit-Code %1 fehlgeschlagen.</translation>
    </message>
    <message>
        <source>The command for notifications cannot be started: %1</source>
        <translation>Der Befehl für Benachrichtigungen lässt sich nicht starten: %1</translation>
    </message>
</context>
<context>
    <name>CommandDesk</name>
    <message>
        <source>Nobody who may command this device is logged in.</source>
        <translation>Niemand ist angemeldet, der diesem Gerät Befehle geben darf.</translation>
    </message>
    <message>
        <source>%1 may look, but not command: that takes level %2.</source>
        <translation>%1 darf zusehen, aber nicht befehlen: Dafür ist Stufe %2 nötig.</translation>
    </message>
    <message>
        <source>Unknown command %1</source>
        <translation>Unbekannter Befehl %1</translation>
    </message>
    <message>
        <source>Nobody could be asked whether load may lose power.</source>
        <translation>Niemand konnte gefragt werden, ob Last den Strom verlieren darf.</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>abgebrochen</translation>
    </message>
    <message>
        <source>Nothing was sent.</source>
        <translation>Es wurde nichts gesendet.</translation>
    </message>
    <message>
        <source>The device was removed or changed before it answered.</source>
        <translation>Das Gerät wurde entfernt oder geändert, bevor es antwortete.</translation>
    </message>
    <message>
        <source>The device was removed or changed; nothing was sent.</source>
        <translation>Das Gerät wurde entfernt oder geändert; es wurde nichts gesendet.</translation>
    </message>
</context>
<context>
    <name>CommandTerms</name>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>the whole UPS</source>
        <translation>die ganze USV</translation>
    </message>
    <message>
        <source>output</source>
        <translation>Ausgang</translation>
    </message>
    <message>
        <source>%1 off at once</source>
        <translation>%1 sofort aus</translation>
    </message>
    <message>
        <source>%1 off within %2</source>
        <translation>%1 binnen %2 aus</translation>
    </message>
    <message>
        <source>%1 off in %2</source>
        <translation>%1 in %2 aus</translation>
    </message>
    <message>
        <source>output off at once, and on again after the UPS&apos;s own time</source>
        <translation>Ausgang sofort aus und nach der eigenen Zeit der USV wieder ein</translation>
    </message>
    <message>
        <source>output off at once for %1</source>
        <translation>Ausgang sofort aus für %1</translation>
    </message>
    <message>
        <source>%1 for %2 min</source>
        <translation>%1 für %2 min</translation>
    </message>
    <message>
        <source>%1 (or by the UPS&apos;s own times, where these are fixed)</source>
        <translation>%1 (oder nach den eigenen Zeiten der USV, wo diese feststehen)</translation>
    </message>
    <message>
        <source>%1 W</source>
        <translation>%1 W</translation>
    </message>
    <message>
        <source>%1 kW</source>
        <translation>%1 kW</translation>
    </message>
    <message>
        <source>how much load loses power is not known</source>
        <translation>wie viel Last den Strom verliert, ist nicht bekannt</translation>
    </message>
    <message>
        <source>%1 of load lose power</source>
        <translation>%1 Last verlieren den Strom</translation>
    </message>
    <message>
        <source>%1: %2; %3</source>
        <translation>%1: %2; %3</translation>
    </message>
    <message>
        <source>restart, %1</source>
        <translation>Neustart, %1</translation>
    </message>
</context>
<context>
    <name>ConfigDocument</name>
    <message>
        <source>%1; the line is skipped</source>
        <translation>%1; die Zeile wird übergangen</translation>
    </message>
    <message>
        <source>%1; the section is skipped</source>
        <translation>%1; der Abschnitt wird übergangen</translation>
    </message>
    <message>
        <source>[%1] stands already in line %2; this section is skipped</source>
        <translation>[%1] steht schon in Zeile %2; dieser Abschnitt wird übergangen</translation>
    </message>
    <message>
        <source>and more; further faults are not listed</source>
        <translation>und weitere; weitere Fehler werden nicht aufgeführt</translation>
    </message>
    <message>
        <source>stands before the first [section]; the line is skipped</source>
        <translation>steht vor dem ersten [Abschnitt]; die Zeile wird übergangen</translation>
    </message>
    <message>
        <source>%1 stands already in line %2; the line is skipped</source>
        <translation>%1 steht schon in Zeile %2; die Zeile wird übergangen</translation>
    </message>
    <message>
        <source>the section has more than %1 keys; the line is skipped</source>
        <translation>der Abschnitt hat mehr als %1 Schlüssel; die Zeile wird übergangen</translation>
    </message>
    <message>
        <source>%1 is not written because it has faults (line %2: %3); mend it with a text editor first</source>
        <translation>%1 wird nicht geschrieben, weil sie Fehler hat (Zeile %2: %3); zuerst mit einem Texteditor berichtigen</translation>
    </message>
    <message>
        <source>%1 is not written because it was changed by another program; read it again and repeat the change</source>
        <translation>%1 wird nicht geschrieben, weil ein anderes Programm sie geändert hat; neu einlesen und die Änderung wiederholen</translation>
    </message>
</context>
<context>
    <name>ConfigKeys</name>
    <message>
        <source>&amp;Poll every</source>
        <translation>Abfrage &amp;alle</translation>
    </message>
    <message>
        <source>Battery &amp;low below</source>
        <translation>Batterie &amp;schwach unter</translation>
    </message>
    <message>
        <source>Battery &amp;critical below</source>
        <translation>Batterie &amp;kritisch unter</translation>
    </message>
    <message>
        <source>Little time left &amp;below</source>
        <translation>Wenig Zeit &amp;übrig unter</translation>
    </message>
    <message>
        <source>&amp;High load above</source>
        <translation>&amp;Hohe Last über</translation>
    </message>
    <message>
        <source>Battery too &amp;warm above</source>
        <translation>Batterie zu &amp;warm über</translation>
    </message>
    <message>
        <source>Log operators out &amp;after</source>
        <translation>Bediener ab&amp;melden nach</translation>
    </message>
    <message>
        <source>Them&amp;e</source>
        <translation>&amp;Design</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Wie der Desktop</translation>
    </message>
    <message>
        <source>Lan&amp;guage</source>
        <translation>&amp;Sprache</translation>
    </message>
    <message>
        <source>&amp;Motion</source>
        <translation>&amp;Bewegung</translation>
    </message>
    <message>
        <source>Flows move</source>
        <translation>Flüsse bewegen sich</translation>
    </message>
    <message>
        <source>Flows stand</source>
        <translation>Flüsse stehen still</translation>
    </message>
    <message>
        <source>&amp;Keep secrets in</source>
        <translation>&amp;Geheimnisse aufbewahren in</translation>
    </message>
    <message>
        <source>the desktop&apos;s keychain</source>
        <translation>dem Schlüsselbund des Desktops</translation>
    </message>
    <message>
        <source>a file that only you can read</source>
        <translation>einer Datei, die nur Sie lesen können</translation>
    </message>
    <message>
        <source>&amp;Kept in</source>
        <translation>Auf&amp;bewahrt in</translation>
    </message>
    <message>
        <source>This &amp;desk</source>
        <translation>Dieser &amp;Platz</translation>
    </message>
    <message>
        <source>records</source>
        <translation>zeichnet auf</translation>
    </message>
    <message>
        <source>does not record</source>
        <translation>zeichnet nicht auf</translation>
    </message>
    <message>
        <source>&amp;Encryption</source>
        <translation>&amp;Verschlüsselung</translation>
    </message>
    <message>
        <source>always</source>
        <translation>immer</translation>
    </message>
    <message>
        <source>always with a password</source>
        <translation>immer mit Passwort</translation>
    </message>
    <message>
        <source>never</source>
        <translation>nie</translation>
    </message>
    <message>
        <source>&amp;Authorities</source>
        <translation>&amp;Zertifizierungsstellen</translation>
    </message>
    <message>
        <source>Keep every &amp;poll for</source>
        <translation>Jede &amp;Abfrage behalten für</translation>
    </message>
    <message>
        <source>&amp;minutes for</source>
        <translation>&amp;Minuten für</translation>
    </message>
    <message>
        <source>&amp;quarters of an hour and the journal for</source>
        <translation>&amp;Viertelstunden und das Journal für</translation>
    </message>
    <message>
        <source>from warnings on</source>
        <translation>ab Warnungen</translation>
    </message>
    <message>
        <source>from alarms on</source>
        <translation>ab Alarmen</translation>
    </message>
    <message>
        <source>when critical</source>
        <translation>wenn kritisch</translation>
    </message>
    <message>
        <source>a time like 22:00</source>
        <translation>eine Uhrzeit wie 22:00</translation>
    </message>
    <message>
        <source>&amp;Desktop notifications</source>
        <translation>&amp;Desktop-Benachrichtigungen</translation>
    </message>
    <message>
        <source>with so&amp;und</source>
        <translation>mit &amp;Ton</translation>
    </message>
    <message>
        <source>&amp;Quiet from</source>
        <translation>&amp;Ruhe von</translation>
    </message>
    <message>
        <source>to</source>
        <translation>bis</translation>
    </message>
    <message>
        <source>&amp;Command</source>
        <translation>&amp;Befehl</translation>
    </message>
    <message>
        <source>&amp;run it</source>
        <translation>&amp;ausführen</translation>
    </message>
    <message>
        <source>&amp;Webhook</source>
        <translation>&amp;Webhook</translation>
    </message>
    <message>
        <source>an address that begins with https://</source>
        <translation>eine Adresse, die mit https:// beginnt</translation>
    </message>
    <message>
        <source>t&amp;ell it</source>
        <translation>&amp;mitteilen</translation>
    </message>
    <message>
        <source>Serve &amp;metrics at</source>
        <translation>Metriken &amp;anbieten unter</translation>
    </message>
    <message>
        <source>sha256: and the 64 hexadecimal digits of a certificate&apos;s fingerprint</source>
        <translation>sha256: und die 64 hexadezimalen Ziffern des Fingerabdrucks eines Zertifikats</translation>
    </message>
    <message>
        <source>a whole number from %1 to %2 %3</source>
        <translation>eine ganze Zahl von %1 bis %2 %3</translation>
    </message>
    <message>
        <source>yes or no</source>
        <translation>yes oder no</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 oder %2</translation>
    </message>
    <message>
        <source>a text of at most %1 characters</source>
        <translation>ein Text von höchstens %1 Zeichen</translation>
    </message>
</context>
<context>
    <name>ConfigLine</name>
    <message>
        <source>the quoted text does not end, or holds an escape other than \&quot; \\ \n \t \uXXXX</source>
        <translation>der Text in Anführungszeichen endet nicht oder enthält ein anderes Escape als \&quot; \\ \n \t \uXXXX</translation>
    </message>
    <message>
        <source>a section looks like [type] or [type &quot;name&quot;]</source>
        <translation>ein Abschnitt sieht so aus: [Art] oder [Art &quot;Name&quot;]</translation>
    </message>
    <message>
        <source>only a comment may follow the closing bracket</source>
        <translation>nach der schließenden Klammer darf nur ein Kommentar folgen</translation>
    </message>
    <message>
        <source>neither a [section] nor key = value nor a # comment</source>
        <translation>weder ein [Abschnitt] noch Schlüssel = Wert noch ein # Kommentar</translation>
    </message>
    <message>
        <source>only a comment may follow the closing quote</source>
        <translation>nach dem schließenden Anführungszeichen darf nur ein Kommentar folgen</translation>
    </message>
    <message>
        <source>longer than %1 bytes</source>
        <translation>länger als %1 Bytes</translation>
    </message>
    <message>
        <source>holds control characters</source>
        <translation>enthält Steuerzeichen</translation>
    </message>
    <message>
        <source>is not UTF-8 text</source>
        <translation>ist kein UTF-8-Text</translation>
    </message>
</context>
<context>
    <name>ConfigReader</name>
    <message>
        <source>a device or operator needs a name, as in [device &quot;Rack 3&quot;]</source>
        <translation>ein Gerät oder Bediener braucht einen Namen, wie in [device &quot;Rack 3&quot;]</translation>
    </message>
    <message>
        <source>the name is longer than %1 characters</source>
        <translation>der Name ist länger als %1 Zeichen</translation>
    </message>
    <message>
        <source>the name holds control characters</source>
        <translation>der Name enthält Steuerzeichen</translation>
    </message>
    <message>
        <source>the name starts or ends with a blank</source>
        <translation>der Name beginnt oder endet mit einem Leerzeichen</translation>
    </message>
    <message>
        <source>%1 is %2; %3 is used</source>
        <translation>%1 ist %2; verwendet wird %3</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>charge-critical is above charge-low; %1 is used for both</source>
        <translation>charge-critical liegt über charge-low; für beide gilt %1</translation>
    </message>
    <message>
        <source>%1; the section is skipped</source>
        <translation>%1; der Abschnitt wird übergangen</translation>
    </message>
    <message>
        <source>unknown section &quot;%1&quot;; it is not used. Known are %2, operator and device</source>
        <translation>unbekannter Abschnitt &quot;%1&quot;; er wird nicht verwendet. Bekannt sind %2, operator und device</translation>
    </message>
    <message>
        <source>section %1 takes no name; it is not used</source>
        <translation>Abschnitt %1 nimmt keinen Namen; er wird nicht verwendet</translation>
    </message>
    <message>
        <source>%1 is not used: secrets do not belong in this file but in the keychain, or in the file that [secrets] store = file stands for</source>
        <translation>%1 wird nicht verwendet: Geheimnisse gehören nicht in diese Datei, sondern in den Schlüsselbund oder in die Datei, für die [secrets] store = file steht</translation>
    </message>
    <message>
        <source>unknown key &quot;%1&quot;; it is not used. Known are %2</source>
        <translation>unbekannter Schlüssel &quot;%1&quot;; er wird nicht verwendet. Bekannt sind %2</translation>
    </message>
    <message>
        <source>the device has no address; it is left out</source>
        <translation>das Gerät hat keine Adresse; es wird ausgelassen</translation>
    </message>
    <message>
        <source>%1; the device is left out</source>
        <translation>%1; das Gerät wird ausgelassen</translation>
    </message>
    <message>
        <source>unknown quantity &quot;%1&quot;; it is not used. Known are %2</source>
        <translation>unbekannte Größe &quot;%1&quot;; sie wird nicht verwendet. Bekannt sind %2</translation>
    </message>
    <message>
        <source>%1 is a factor above 0, as 0.1; 1 is used</source>
        <translation>%1 ist ein Faktor über 0, etwa 0.1; verwendet wird 1</translation>
    </message>
    <message>
        <source>the operator has no level; 0 is used</source>
        <translation>der Bediener hat keine Stufe; verwendet wird 0</translation>
    </message>
    <message>
        <source>no valid hash; the operator is left out. Set the password with upsdesk add-operator</source>
        <translation>kein gültiger Hash; der Bediener wird ausgelassen. Das Passwort mit upsdesk add-operator setzen</translation>
    </message>
</context>
<context>
    <name>ControlNotice</name>
    <message>
        <source>Log in…</source>
        <translation>Anmelden…</translation>
    </message>
    <message>
        <source>Commands are disabled. %1</source>
        <translation>Befehle sind gesperrt. %1</translation>
    </message>
</context>
<context>
    <name>Desk</name>
    <message>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>The configuration has faults and is used without them: </source>
        <translation>Die Konfiguration hat Fehler und wird ohne sie verwendet: </translation>
    </message>
    <message>
        <source>Metrics</source>
        <translation>Metriken</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>fehlgeschlagen</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Design</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
</context>
<context>
    <name>DeskConfig</name>
    <message>
        <source>there is no device &quot;%1&quot;</source>
        <translation>es gibt kein Gerät &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is a device &quot;%1&quot; already</source>
        <translation>es gibt schon ein Gerät &quot;%1&quot;</translation>
    </message>
    <message>
        <source>others may read or write %1, and it holds password hashes; chmod 600 ends that</source>
        <translation>andere dürfen %1 lesen oder schreiben, und sie enthält Passwort-Hashes; chmod 600 beendet das</translation>
    </message>
    <message>
        <source>there is no such place in the list of devices</source>
        <translation>diesen Platz gibt es in der Geräteliste nicht</translation>
    </message>
    <message>
        <source>there is no operator &quot;%1&quot;</source>
        <translation>es gibt keinen Bediener &quot;%1&quot;</translation>
    </message>
    <message>
        <source>%1 is not written because it has faults (line %2: %3); mend it with a text editor first</source>
        <translation>%1 wird nicht geschrieben, weil sie Fehler hat (Zeile %2: %3); zuerst mit einem Texteditor berichtigen</translation>
    </message>
</context>
<context>
    <name>DeskHistory</name>
    <message>
        <source>Nothing is recorded: %1</source>
        <translation>Nichts wird aufgezeichnet: %1</translation>
    </message>
</context>
<context>
    <name>DeskMenu</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation>&amp;Gerät</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;All devices</source>
        <translation>&amp;Alle Geräte</translation>
    </message>
    <message>
        <source>&amp;Journal</source>
        <translation>&amp;Journal</translation>
    </message>
    <message>
        <source>&amp;Filter the list</source>
        <translation>Liste &amp;filtern</translation>
    </message>
    <message>
        <source>Device &amp;list</source>
        <translation>Geräte&amp;liste</translation>
    </message>
    <message>
        <source>&amp;Events</source>
        <translation>&amp;Ereignisse</translation>
    </message>
    <message>
        <source>F&amp;ull screen</source>
        <translation>&amp;Vollbild</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Öffnen</translation>
    </message>
    <message>
        <source>&amp;Test connection</source>
        <translation>Verbindung &amp;testen</translation>
    </message>
    <message>
        <source>&amp;Poll now</source>
        <translation>Jetzt &amp;abfragen</translation>
    </message>
    <message>
        <source>&amp;Commands</source>
        <translation>Befe&amp;hle</translation>
    </message>
    <message>
        <source>Cop&amp;y values</source>
        <translation>Werte &amp;kopieren</translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts</source>
        <translation>&amp;Tastenkürzel</translation>
    </message>
    <message>
        <source>Where the &amp;configuration is</source>
        <translation>Wo die &amp;Konfiguration steht</translation>
    </message>
    <message>
        <source>&amp;About upsdesk</source>
        <translation>&amp;Über upsdesk</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Hell</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Dunkel</translation>
    </message>
    <message>
        <source>As the &amp;system</source>
        <translation>Wie das &amp;System</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>&amp;Design</translation>
    </message>
    <message>
        <source>Rep&amp;lay</source>
        <translation>&amp;Wiedergabe</translation>
    </message>
    <message>
        <source>Lan&amp;guage</source>
        <translation>&amp;Sprache</translation>
    </message>
</context>
<context>
    <name>DesktopChannel</name>
    <message>
        <source>since %1</source>
        <translation>seit %1</translation>
    </message>
    <message>
        <source>The desktop shows no notifications: %1</source>
        <translation>Der Desktop zeigt keine Benachrichtigungen: %1</translation>
    </message>
</context>
<context>
    <name>Device</name>
    <message>
        <source>There has been no new data for a while.</source>
        <translation>Seit einiger Zeit gibt es keine neuen Daten.</translation>
    </message>
    <message>
        <source>The poll was not answered in time.</source>
        <translation>Die Abfrage wurde nicht rechtzeitig beantwortet.</translation>
    </message>
</context>
<context>
    <name>DeviceActions</name>
    <message>
        <source>A&amp;dd…</source>
        <translation>&amp;Hinzufügen…</translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation>Bearb&amp;eiten…</translation>
    </message>
    <message>
        <source>&amp;Remove…</source>
        <translation>Ent&amp;fernen…</translation>
    </message>
    <message>
        <source>Move &amp;up</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>Move d&amp;own</source>
        <translation>Nach &amp;unten</translation>
    </message>
    <message>
        <source>The device is no longer in the list.</source>
        <translation>Das Gerät steht nicht mehr in der Liste.</translation>
    </message>
    <message>
        <source>Remove a device</source>
        <translation>Gerät entfernen</translation>
    </message>
    <message>
        <source>Remove &quot;%1&quot; from the list of devices?</source>
        <translation>&quot;%1&quot; aus der Geräteliste entfernen?</translation>
    </message>
    <message>
        <source>Its settings and secrets are deleted. What was recorded of it stays.</source>
        <translation>Seine Einstellungen und Geheimnisse werden gelöscht. Was von ihm aufgezeichnet wurde, bleibt.</translation>
    </message>
    <message>
        <source>It is not in the configuration; the list loses it until the next start.</source>
        <translation>Es steht nicht in der Konfiguration; die Liste verliert es bis zum nächsten Start.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>Ent&amp;fernen</translation>
    </message>
    <message>
        <source>Add se&amp;veral…</source>
        <translation>&amp;Mehrere hinzufügen…</translation>
    </message>
</context>
<context>
    <name>DeviceAddress</name>
    <message>
        <source>&quot;%1&quot; is not one of %2 for %3</source>
        <translation>&quot;%1&quot; ist nicht eines von %2 für %3</translation>
    </message>
    <message>
        <source>user and password of a NUT server belong in the configuration, not in the address</source>
        <translation>Benutzer und Passwort eines NUT-Servers gehören in die Konfiguration, nicht in die Adresse</translation>
    </message>
    <message>
        <source>a NUT address looks like nut://HOST[:PORT]/UPS</source>
        <translation>eine NUT-Adresse sieht so aus: nut://HOST[:PORT]/UPS</translation>
    </message>
    <message>
        <source>unknown option &quot;%1&quot;; known are %2</source>
        <translation>unbekannte Option &quot;%1&quot;; bekannt sind %2</translation>
    </message>
    <message>
        <source>SNMP secrets belong in the configuration, not in the address</source>
        <translation>SNMP-Geheimnisse gehören in die Konfiguration, nicht in die Adresse</translation>
    </message>
    <message>
        <source>SNMPv3 needs a user: snmp://USER@HOST?version=3</source>
        <translation>SNMPv3 braucht einen Benutzer: snmp://USER@HOST?version=3</translation>
    </message>
    <message>
        <source>an address starts with sim:, nut:// or snmp://</source>
        <translation>eine Adresse beginnt mit sim:, nut:// oder snmp://</translation>
    </message>
    <message>
        <source>no valid host or port in the address</source>
        <translation>kein gültiger Host oder Port in der Adresse</translation>
    </message>
    <message>
        <source>a port lies between 1 and 65535</source>
        <translation>ein Port liegt zwischen 1 und 65535</translation>
    </message>
</context>
<context>
    <name>DeviceAdvanced</name>
    <message>
        <source>Answer &amp;within</source>
        <translation>Antwort &amp;binnen</translation>
    </message>
    <message>
        <source>&amp;Retries</source>
        <translation>&amp;Wiederholungen</translation>
    </message>
    <message>
        <source>&amp;Shutdown delay</source>
        <translation>Ab&amp;schaltverzögerung</translation>
    </message>
    <message>
        <source>Off d&amp;uring a restart</source>
        <translation>&amp;Aus bei Neustart</translation>
    </message>
    <message>
        <source>Shut down the w&amp;hole UPS, not its output alone</source>
        <translation>Die &amp;ganze USV abschalten, nicht nur ihren Ausgang</translation>
    </message>
    <message>
        <source>For a device that is wrong by a power of ten; empty means 1</source>
        <translation>Für ein Gerät, das um eine Zehnerpotenz falsch liegt; leer heißt 1</translation>
    </message>
    <message>
        <source>Correction &amp;factors</source>
        <translation>Korrektur&amp;faktoren</translation>
    </message>
</context>
<context>
    <name>DeviceDialog</name>
    <message>
        <source>Network UPS Tools</source>
        <translation>Network UPS Tools</translation>
    </message>
    <message>
        <source>SNMP</source>
        <translation>SNMP</translation>
    </message>
    <message>
        <source>Simulator</source>
        <translation>Simulator</translation>
    </message>
    <message>
        <source>Add a device</source>
        <translation>Gerät hinzufügen</translation>
    </message>
    <message>
        <source>Settings of %1</source>
        <translation>Einstellungen von %1</translation>
    </message>
    <message>
        <source>site or room</source>
        <translation>Standort oder Raum</translation>
    </message>
    <message>
        <source>nut://HOST/UPS, snmp://COMMUNITY@HOST or sim:</source>
        <translation>nut://HOST/UPS, snmp://COMMUNITY@HOST oder sim:</translation>
    </message>
    <message>
        <source>The address in one line; paste one here to fill the fields</source>
        <translation>Die Adresse in einer Zeile; hier einfügen, um die Felder zu füllen</translation>
    </message>
    <message>
        <source>Na&amp;me</source>
        <translation>Na&amp;me</translation>
    </message>
    <message>
        <source>&amp;Group</source>
        <translation>&amp;Gruppe</translation>
    </message>
    <message>
        <source>&amp;Kind</source>
        <translation>A&amp;rt</translation>
    </message>
    <message>
        <source>&amp;Address</source>
        <translation>A&amp;dresse</translation>
    </message>
    <message>
        <source>Poll &amp;every</source>
        <translation>Abfrage a&amp;lle</translation>
    </message>
    <message>
        <source>Con&amp;nection</source>
        <translation>&amp;Verbindung</translation>
    </message>
    <message>
        <source>A&amp;dvanced</source>
        <translation>&amp;Erweitert</translation>
    </message>
    <message>
        <source>There is a device &quot;%1&quot; already.</source>
        <translation>Es gibt schon ein Gerät &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Stop &amp;test</source>
        <translation>&amp;Test abbrechen</translation>
    </message>
    <message>
        <source>Asking %1 …</source>
        <translation>%1 wird gefragt …</translation>
    </message>
    <message>
        <source>&amp;Test connection</source>
        <translation>Verbindung &amp;testen</translation>
    </message>
    <message>
        <source>The server looks at user and password only when a command is sent.</source>
        <translation>Der Server prüft Benutzer und Passwort erst, wenn ein Befehl gesendet wird.</translation>
    </message>
</context>
<context>
    <name>DeviceFacts</name>
    <message>
        <source>Battery test</source>
        <translation>Batterietest</translation>
    </message>
    <message>
        <source>Battery discharging</source>
        <translation>Batterie wird entladen</translation>
    </message>
    <message>
        <source>Battery low</source>
        <translation>Batterie schwach</translation>
    </message>
    <message>
        <source>Battery depleted</source>
        <translation>Batterie leer</translation>
    </message>
    <message>
        <source>Mains lost, on battery</source>
        <translation>Netz ausgefallen, auf Batterie</translation>
    </message>
    <message>
        <source>On bypass</source>
        <translation>Auf Bypass</translation>
    </message>
</context>
<context>
    <name>DeviceHeading</name>
    <message>
        <source>recorded</source>
        <translation>aufgezeichnet</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
</context>
<context>
    <name>DeviceHistory</name>
    <message>
        <source>Nothing is stored of this device.</source>
        <translation>Von diesem Gerät ist nichts gespeichert.</translation>
    </message>
</context>
<context>
    <name>DeviceListModel</name>
    <message>
        <source>%1 critical</source>
        <translation>%1 kritisch</translation>
    </message>
    <message>
        <source>%1 alarm</source>
        <translation>%1 Alarm</translation>
    </message>
    <message>
        <source>%1 warning</source>
        <translation>%1 Warnung</translation>
    </message>
    <message>
        <source>%1 notice</source>
        <translation>%1 Hinweis</translation>
    </message>
    <message>
        <source>%1 normal</source>
        <translation>%1 normal</translation>
    </message>
</context>
<context>
    <name>DeviceName</name>
    <message>
        <source>UPS</source>
        <translation>USV</translation>
    </message>
</context>
<context>
    <name>DevicePage</name>
    <message>
        <source>Energy flow</source>
        <translation>Energiefluss</translation>
    </message>
    <message>
        <source>Alarms</source>
        <translation>Alarme</translation>
    </message>
    <message>
        <source>Detail</source>
        <translation>Detail</translation>
    </message>
    <message>
        <source>Control</source>
        <translation>Steuerung</translation>
    </message>
    <message>
        <source>Charts</source>
        <translation>Diagramme</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tabelle</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
</context>
<context>
    <name>DeviceSettings</name>
    <message>
        <source>Simulator</source>
        <translation>Simulator</translation>
    </message>
    <message>
        <source>Simulator, %1</source>
        <translation>Simulator, %1</translation>
    </message>
</context>
<context>
    <name>DeviceSnapshot</name>
    <message>
        <source>Battery fault</source>
        <translation>Batteriefehler</translation>
    </message>
    <message>
        <source>Battery powered</source>
        <translation>Batteriebetrieb</translation>
    </message>
    <message>
        <source>Battery low</source>
        <translation>Batterie schwach</translation>
    </message>
    <message>
        <source>Battery EOD</source>
        <translation>Batterie entladen</translation>
    </message>
    <message>
        <source>Temperature overrun MAX-value</source>
        <translation>Temperatur über dem Höchstwert</translation>
    </message>
    <message>
        <source>Input fault</source>
        <translation>Eingangsfehler</translation>
    </message>
    <message>
        <source>Output fault</source>
        <translation>Ausgangsfehler</translation>
    </message>
    <message>
        <source>Load overrun MAX-value</source>
        <translation>Last über dem Höchstwert</translation>
    </message>
    <message>
        <source>Bypass powered</source>
        <translation>Bypassbetrieb</translation>
    </message>
    <message>
        <source>Bypass fault</source>
        <translation>Bypassfehler</translation>
    </message>
    <message>
        <source>The UPS output has shutdown as requested</source>
        <translation>Der USV-Ausgang wurde wie angefordert abgeschaltet</translation>
    </message>
    <message>
        <source>The entire UPS has shutdown as commanded</source>
        <translation>Die ganze USV wurde wie befohlen abgeschaltet</translation>
    </message>
    <message>
        <source>Charger subsystem fault</source>
        <translation>Ladegerät gestört</translation>
    </message>
    <message>
        <source>The output of the UPS is in the off state</source>
        <translation>Der Ausgang der USV ist ausgeschaltet</translation>
    </message>
    <message>
        <source>The UPS system is in the off state</source>
        <translation>Die USV ist ausgeschaltet</translation>
    </message>
    <message>
        <source>Fan fault</source>
        <translation>Lüfterfehler</translation>
    </message>
    <message>
        <source>Fuse fault</source>
        <translation>Sicherungsfehler</translation>
    </message>
    <message>
        <source>UPS fault</source>
        <translation>USV-Fehler</translation>
    </message>
    <message>
        <source>Last diagnostic test failed</source>
        <translation>Letzter Diagnosetest fehlgeschlagen</translation>
    </message>
    <message>
        <source>Communication between agent and UPS fault</source>
        <translation>Kommunikation zwischen Agent und USV gestört</translation>
    </message>
    <message>
        <source>UPS is awaiting the return of input power</source>
        <translation>USV wartet auf die Rückkehr der Eingangsversorgung</translation>
    </message>
    <message>
        <source>UPS shutdown after delay countdown is underway</source>
        <translation>Countdown zur Abschaltung der USV läuft</translation>
    </message>
    <message>
        <source>The UPS will turn off power to the load</source>
        <translation>Die USV wird die Last abschalten</translation>
    </message>
    <message>
        <source>A test is in progress</source>
        <translation>Ein Test läuft</translation>
    </message>
    <message>
        <source>battery charge</source>
        <translation>Batterieladung</translation>
    </message>
    <message>
        <source>remaining time</source>
        <translation>Restzeit</translation>
    </message>
    <message>
        <source>battery voltage</source>
        <translation>Batteriespannung</translation>
    </message>
    <message>
        <source>battery current</source>
        <translation>Batteriestrom</translation>
    </message>
    <message>
        <source>battery temperature</source>
        <translation>Batterietemperatur</translation>
    </message>
    <message>
        <source>time on battery</source>
        <translation>Zeit auf Batterie</translation>
    </message>
    <message>
        <source>number of mains failures</source>
        <translation>Anzahl der Netzausfälle</translation>
    </message>
    <message>
        <source>rated input voltage</source>
        <translation>Nenneingangsspannung</translation>
    </message>
    <message>
        <source>rated input frequency</source>
        <translation>Nenneingangsfrequenz</translation>
    </message>
    <message>
        <source>rated output voltage</source>
        <translation>Nennausgangsspannung</translation>
    </message>
    <message>
        <source>rated output frequency</source>
        <translation>Nennausgangsfrequenz</translation>
    </message>
    <message>
        <source>rated apparent power</source>
        <translation>Nennscheinleistung</translation>
    </message>
    <message>
        <source>rated active power</source>
        <translation>Nennwirkleistung</translation>
    </message>
    <message>
        <source>input voltage</source>
        <translation>Eingangsspannung</translation>
    </message>
    <message>
        <source>input current</source>
        <translation>Eingangsstrom</translation>
    </message>
    <message>
        <source>input frequency</source>
        <translation>Eingangsfrequenz</translation>
    </message>
    <message>
        <source>input power</source>
        <translation>Eingangsleistung</translation>
    </message>
    <message>
        <source>output voltage</source>
        <translation>Ausgangsspannung</translation>
    </message>
    <message>
        <source>output current</source>
        <translation>Ausgangsstrom</translation>
    </message>
    <message>
        <source>output frequency</source>
        <translation>Ausgangsfrequenz</translation>
    </message>
    <message>
        <source>output power</source>
        <translation>Ausgangsleistung</translation>
    </message>
    <message>
        <source>load</source>
        <translation>Last</translation>
    </message>
    <message>
        <source>bypass voltage</source>
        <translation>Bypassspannung</translation>
    </message>
    <message>
        <source>bypass current</source>
        <translation>Bypassstrom</translation>
    </message>
    <message>
        <source>bypass frequency</source>
        <translation>Bypassfrequenz</translation>
    </message>
    <message>
        <source>bypass power</source>
        <translation>Bypassleistung</translation>
    </message>
    <message>
        <source>%1 of line %2</source>
        <translation>%1 von Leiter %2</translation>
    </message>
    <message>
        <source> and </source>
        <translation> und </translation>
    </message>
    <message>
        <source>Not reported, shown as 0: %1.</source>
        <translation>Nicht gemeldet, als 0 gezeigt: %1.</translation>
    </message>
    <message>
        <source>Split phase: line 1 of 2 is shown.</source>
        <translation>Zweiphasig: Leiter 1 von 2 wird gezeigt.</translation>
    </message>
</context>
<context>
    <name>DeviceSummary</name>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>never any data</source>
        <translation>nie Daten</translation>
    </message>
    <message>
        <source>last data %1 ago</source>
        <translation>letzte Daten vor %1</translation>
    </message>
    <message>
        <source>now</source>
        <translation>jetzt</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 h %2 min</translation>
    </message>
    <message>
        <source>%1 days</source>
        <translation>%1 Tagen</translation>
    </message>
    <message>
        <source>connecting</source>
        <translation>verbindet</translation>
    </message>
    <message>
        <source>live, now</source>
        <translation>aktuell</translation>
    </message>
    <message>
        <source>live, %1 ago</source>
        <translation>aktuell, vor %1</translation>
    </message>
    <message>
        <source>no new data</source>
        <translation>keine neuen Daten</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>keine Antwort</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>abgelehnt</translation>
    </message>
    <message>
        <source>since %1</source>
        <translation>seit %1</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batterie</translation>
    </message>
    <message>
        <source>Lasts</source>
        <translation>Reicht</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Last</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 h</translation>
    </message>
    <message>
        <source>Battery %1</source>
        <translation>Batterie %1</translation>
    </message>
    <message>
        <source>Live: %1</source>
        <translation>Aktuell: %1</translation>
    </message>
</context>
<context>
    <name>EventDock</name>
    <message>
        <source>Events</source>
        <translation>Ereignisse</translation>
    </message>
</context>
<context>
    <name>EventLog</name>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Bediener</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Ereignis</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Meldung</translation>
    </message>
</context>
<context>
    <name>FileSecretStore</name>
    <message>
        <source>%1 is not used because others may read or write it; &quot;chmod 600&quot; ends that, then change the secrets in it</source>
        <translation>%1 wird nicht verwendet, weil andere sie lesen oder schreiben dürfen; &quot;chmod 600&quot; beendet das, danach die Geheimnisse darin ändern</translation>
    </message>
    <message>
        <source>%1 is not used because it is damaged; mend it, or move it away and enter the secrets again</source>
        <translation>%1 wird nicht verwendet, weil sie beschädigt ist; reparieren, oder beiseitelegen und die Geheimnisse neu eingeben</translation>
    </message>
</context>
<context>
    <name>FindDevicesDialog</name>
    <message>
        <source>&amp;Tick all</source>
        <translation>Alle a&amp;nkreuzen</translation>
    </message>
    <message>
        <source>Add several devices</source>
        <translation>Mehrere Geräte hinzufügen</translation>
    </message>
    <message>
        <source>UPSes of a NUT server</source>
        <translation>USVen eines NUT-Servers</translation>
    </message>
    <message>
        <source>SNMP agents in a range of addresses</source>
        <translation>SNMP-Agenten in einem Adressbereich</translation>
    </message>
    <message>
        <source>for commands only</source>
        <translation>nur für Befehle</translation>
    </message>
    <message>
        <source>&amp;Host</source>
        <translation>&amp;Host</translation>
    </message>
    <message>
        <source>U&amp;ser</source>
        <translation>&amp;Benutzer</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>Pass&amp;wort</translation>
    </message>
    <message>
        <source>Devices found</source>
        <translation>Gefundene Geräte</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>What it is</source>
        <translation>Was es ist</translation>
    </message>
    <message>
        <source>site or room, for all that are added</source>
        <translation>Standort oder Raum, für alle hinzugefügten</translation>
    </message>
    <message>
        <source>&amp;Look for</source>
        <translation>Suchen na&amp;ch</translation>
    </message>
    <message>
        <source>&amp;Group</source>
        <translation>&amp;Gruppe</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Anhalten</translation>
    </message>
    <message>
        <source>Asking %1 …</source>
        <translation>%1 wird gefragt …</translation>
    </message>
    <message>
        <source>Asked %1 of %2 addresses …</source>
        <translation>%1 von %2 Adressen gefragt …</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Suchen</translation>
    </message>
    <message>
        <source>Nobody answered.</source>
        <translation>Niemand hat geantwortet.</translation>
    </message>
    <message>
        <source>Found: %1. Tick what is to be added.</source>
        <translation>Gefunden: %1. Ankreuzen, was hinzukommen soll.</translation>
    </message>
    <message>
        <source>&amp;Add %1</source>
        <translation>%1 &amp;hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <source>Each device needs a name.</source>
        <translation>Jedes Gerät braucht einen Namen.</translation>
    </message>
    <message>
        <source>There is a device &quot;%1&quot; already.</source>
        <translation>Es gibt schon ein Gerät &quot;%1&quot;.</translation>
    </message>
</context>
<context>
    <name>FirstRunStrip</name>
    <message>
        <source>Add your &amp;UPS…</source>
        <translation>&amp;USV hinzufügen…</translation>
    </message>
    <message>
        <source>There is no device yet - add your UPS</source>
        <translation>Es gibt noch kein Gerät - fügen Sie Ihre USV hinzu</translation>
    </message>
    <message>
        <source>This is a simulation - add your UPS</source>
        <translation>Dies ist eine Simulation - fügen Sie Ihre USV hinzu</translation>
    </message>
</context>
<context>
    <name>HelpDialogs</name>
    <message>
        <source>Back to all devices</source>
        <translation>Zurück zu allen Geräten</translation>
    </message>
    <message>
        <source>In the list: add, edit, remove a device</source>
        <translation>In der Liste: Gerät hinzufügen, bearbeiten, entfernen</translation>
    </message>
    <message>
        <source>In the list: move a device</source>
        <translation>In der Liste: Gerät verschieben</translation>
    </message>
    <message>
        <source>In the history: earlier, later; by a whole length</source>
        <translation>Im Verlauf: früher, später; um eine ganze Länge</translation>
    </message>
    <message>
        <source>In the history: less, more time</source>
        <translation>Im Verlauf: weniger, mehr Zeit</translation>
    </message>
    <message>
        <source>In the history: the values of another row</source>
        <translation>Im Verlauf: die Werte einer anderen Zeile</translation>
    </message>
    <message>
        <source>In the history: the oldest, the present</source>
        <translation>Im Verlauf: das Älteste, die Gegenwart</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Was</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>Where the configuration is</source>
        <translation>Wo die Konfiguration steht</translation>
    </message>
    <message>
        <source>Devices, thresholds and operators stand in
%1

&quot;upsdesk check-config&quot; says what is wrong in it. How the window was left stands in
%2</source>
        <translation>Geräte, Schwellen und Bediener stehen in
%1

&quot;upsdesk check-config&quot; sagt, was daran falsch ist. Wie das Fenster verlassen wurde, steht in
%2</translation>
    </message>
    <message>
        <source>About upsdesk</source>
        <translation>Über upsdesk</translation>
    </message>
    <message>
        <source>upsdesk %1
Watches uninterruptible power supplies.

Qt %2
%3 %4</source>
        <translation>upsdesk %1
Überwacht unterbrechungsfreie Stromversorgungen.

Qt %2
%3 %4</translation>
    </message>
</context>
<context>
    <name>HistoryCharts</name>
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
        <source>Battery</source>
        <translation>Batterie</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>Spannung</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Last</translation>
    </message>
    <message>
        <source>Charge</source>
        <translation>Ladung</translation>
    </message>
    <message>
        <source>Time left on battery</source>
        <translation>Restzeit auf Batterie</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>Strom</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frequenz</translation>
    </message>
    <message>
        <source>Battery temperature</source>
        <translation>Batterietemperatur</translation>
    </message>
    <message>
        <source>Battery voltage</source>
        <translation>Batteriespannung</translation>
    </message>
</context>
<context>
    <name>HistoryPage</name>
    <message>
        <source>1 h</source>
        <translation>1 h</translation>
    </message>
    <message>
        <source>6 h</source>
        <translation>6 h</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Woche</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Monat</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Jahr</translation>
    </message>
    <message>
        <source>Show: %1</source>
        <translation>Zeigen: %1</translation>
    </message>
    <message>
        <source>Earlier</source>
        <translation>Früher</translation>
    </message>
    <message>
        <source>Left, Page Up</source>
        <translation>Links, Bild auf</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Später</translation>
    </message>
    <message>
        <source>Right, Page Down</source>
        <translation>Rechts, Bild ab</translation>
    </message>
    <message>
        <source>Show more time</source>
        <translation>Mehr Zeit zeigen</translation>
    </message>
    <message>
        <source>Show less time</source>
        <translation>Weniger Zeit zeigen</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Jetzt</translation>
    </message>
    <message>
        <source>Follow the present</source>
        <translation>Der Gegenwart folgen</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Charts</source>
        <translation>Diagramme</translation>
    </message>
    <message>
        <source>Which charts are shown</source>
        <translation>Welche Diagramme gezeigt werden</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Save what is shown</source>
        <translation>Das Gezeigte speichern</translation>
    </message>
    <message>
        <source>As &amp;CSV …</source>
        <translation>Als &amp;CSV …</translation>
    </message>
    <message>
        <source>As &amp;picture …</source>
        <translation>Als &amp;Bild …</translation>
    </message>
    <message>
        <source>There is no history here: this desk records none, or its store is not open yet.</source>
        <translation>Hier gibt es keinen Verlauf: Dieser Platz zeichnet keinen auf, oder sein Speicher ist noch nicht offen.</translation>
    </message>
    <message>
        <source>Loading …</source>
        <translation>Wird geladen …</translation>
    </message>
    <message>
        <source>The history cannot be read: %1</source>
        <translation>Der Verlauf kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>Nothing is stored of this device. The simulator is recorded only where it stands in the configuration.</source>
        <translation>Von diesem Gerät ist nichts gespeichert. Der Simulator wird nur aufgezeichnet, wenn er in der Konfiguration steht.</translation>
    </message>
    <message>
        <source>Nothing is stored of this device yet.</source>
        <translation>Von diesem Gerät ist noch nichts gespeichert.</translation>
    </message>
    <message>
        <source>%1 for %2</source>
        <translation>%1, Dauer %2</translation>
    </message>
    <message>
        <source>Nothing is stored of this time</source>
        <translation>Aus dieser Zeit ist nichts gespeichert</translation>
    </message>
    <message>
        <source>Only the latest entries of the journal are shown</source>
        <translation>Nur die neuesten Einträge des Journals werden gezeigt</translation>
    </message>
    <message>
        <source>on battery</source>
        <translation>auf Batterie</translation>
    </message>
    <message>
        <source>on bypass</source>
        <translation>auf Bypass</translation>
    </message>
    <message>
        <source>not reachable</source>
        <translation>nicht erreichbar</translation>
    </message>
    <message>
        <source>▴ journal</source>
        <translation>▴ Journal</translation>
    </message>
    <message>
        <source>Save the history</source>
        <translation>Verlauf speichern</translation>
    </message>
    <message>
        <source>Saving …</source>
        <translation>Wird gespeichert …</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <translation>Gespeichert als %1</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <translation>Nicht gespeichert: %1</translation>
    </message>
    <message>
        <source>Not saved: %1 cannot be written</source>
        <translation>Nicht gespeichert: %1 kann nicht geschrieben werden</translation>
    </message>
</context>
<context>
    <name>HistorySpool</name>
    <message>
        <source>cannot make the folder %1</source>
        <translation>der Ordner %1 kann nicht angelegt werden</translation>
    </message>
    <message>
        <source>cannot write in the folder %1</source>
        <translation>im Ordner %1 kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>the spool in %1 is full</source>
        <translation>der Zwischenspeicher in %1 ist voll</translation>
    </message>
    <message>
        <source>cannot write the spool in %1: %2</source>
        <translation>der Zwischenspeicher in %1 kann nicht geschrieben werden: %2</translation>
    </message>
</context>
<context>
    <name>HistoryStore</name>
    <message>
        <source>the driver %1 of QtSql is not installed</source>
        <translation>der Treiber %1 von QtSql ist nicht installiert</translation>
    </message>
    <message>
        <source>the history was written by a newer upsdesk; update this one</source>
        <translation>der Verlauf wurde von einem neueren upsdesk geschrieben; dieses aktualisieren</translation>
    </message>
    <message>
        <source>there is no history yet</source>
        <translation>es gibt noch keinen Verlauf</translation>
    </message>
    <message>
        <source>the history is of an older upsdesk; start the desk once so that it brings it up to date</source>
        <translation>der Verlauf stammt von einem älteren upsdesk; den Desk einmal starten, damit er ihn auf den neuen Stand bringt</translation>
    </message>
</context>
<context>
    <name>HistoryWriter</name>
    <message>
        <source>The history cannot be written: %1. Events are kept on disk until it can.</source>
        <translation>Der Verlauf kann nicht geschrieben werden: %1. Ereignisse bleiben auf der Platte, bis es wieder geht.</translation>
    </message>
    <message>
        <source>The history is written again; nothing is missing.</source>
        <translation>Der Verlauf wird wieder geschrieben; nichts fehlt.</translation>
    </message>
    <message>
        <source>The history is written again; %1 samples are missing.</source>
        <translation>Der Verlauf wird wieder geschrieben; %1 Messwerte fehlen.</translation>
    </message>
</context>
<context>
    <name>HostAddresses</name>
    <message>
        <source>There is no host named %1; check the address.</source>
        <translation>Es gibt keinen Host namens %1; die Adresse prüfen.</translation>
    </message>
    <message>
        <source>The name %1 could not be looked up; check the network and its name server.</source>
        <translation>Der Name %1 konnte nicht aufgelöst werden; das Netzwerk und seinen Namensserver prüfen.</translation>
    </message>
    <message>
        <source>Too many names are being looked up; check the network&apos;s name server.</source>
        <translation>Zu viele Namen werden aufgelöst; den Namensserver des Netzwerks prüfen.</translation>
    </message>
</context>
<context>
    <name>HostPort</name>
    <message>
        <source>Host</source>
        <translation>Host</translation>
    </message>
    <message>
        <source>name or IP address</source>
        <translation>Name oder IP-Adresse</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>&amp;Port</source>
        <translation>&amp;Port</translation>
    </message>
    <message>
        <source>Range of addresses</source>
        <translation>Adressbereich</translation>
    </message>
    <message>
        <source>10.0.0.0/24 or 10.0.0.5-60</source>
        <translation>10.0.0.0/24 oder 10.0.0.5-60</translation>
    </message>
    <message>
        <source>Enter the name or the IP address of the host.</source>
        <translation>Den Namen oder die IP-Adresse des Hosts eingeben.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither a host name nor an IP address.</source>
        <translation>&quot;%1&quot; ist weder ein Hostname noch eine IP-Adresse.</translation>
    </message>
</context>
<context>
    <name>JournalModel</name>
    <message>
        <source>Onset</source>
        <translation>Beginn</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Severity</source>
        <translation>Schwere</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>Eintrag</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Meldung</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Bediener</translation>
    </message>
    <message>
        <source>Acknowledged</source>
        <translation>Quittiert</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Alarm</source>
        <translation>Alarm</translation>
    </message>
    <message>
        <source>Outage</source>
        <translation>Ausfall</translation>
    </message>
    <message>
        <source>Bypass</source>
        <translation>Bypass</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batterie</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Verbindung</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Konfiguration</translation>
    </message>
    <message>
        <source>Store</source>
        <translation>Speicher</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Uhr</translation>
    </message>
    <message>
        <source>Desk</source>
        <translation>Desk</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>Kritisch</translation>
    </message>
    <message>
        <source>%1 d %2</source>
        <translation>%1 d %2</translation>
    </message>
    <message>
        <source>still so</source>
        <translation>dauert an</translation>
    </message>
    <message>
        <source>lowest charge %1 %</source>
        <translation>niedrigste Ladung %1 %</translation>
    </message>
</context>
<context>
    <name>JournalPage</name>
    <message>
        <source>Any time</source>
        <translation>Jederzeit</translation>
    </message>
    <message>
        <source>Last hour</source>
        <translation>Letzte Stunde</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>Letzter Tag</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Letzte Woche</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <translation>Letzte 30 Tage</translation>
    </message>
    <message>
        <source>Last year</source>
        <translation>Letztes Jahr</translation>
    </message>
    <message>
        <source>Still s&amp;o</source>
        <translation>Dauert n&amp;och an</translation>
    </message>
    <message>
        <source>Not acknowled&amp;ged</source>
        <translation>Nicht &amp;quittiert</translation>
    </message>
    <message>
        <source>Ack&amp;nowledge …</source>
        <translation>Quitt&amp;ieren …</translation>
    </message>
    <message>
        <source>&amp;Export …</source>
        <translation>E&amp;xportieren …</translation>
    </message>
    <message>
        <source>&amp;Replay</source>
        <translation>&amp;Wiedergabe</translation>
    </message>
    <message>
        <source>Devi&amp;ce</source>
        <translation>Ge&amp;rät</translation>
    </message>
    <message>
        <source>&amp;Kind</source>
        <translation>A&amp;rt</translation>
    </message>
    <message>
        <source>T&amp;ime</source>
        <translation>&amp;Zeit</translation>
    </message>
    <message>
        <source>&amp;Severity from</source>
        <translation>&amp;Schwere ab</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>in entry, message or note</source>
        <translation>in Eintrag, Meldung oder Notiz</translation>
    </message>
    <message>
        <source>What has begun and is not over: the alarms of the desk</source>
        <translation>Was begonnen hat und nicht vorbei ist: die Alarme des Desks</translation>
    </message>
    <message>
        <source>Te&amp;xt</source>
        <translation>Te&amp;xt</translation>
    </message>
    <message>
        <source>Journal</source>
        <translation>Journal</translation>
    </message>
    <message>
        <source>%1 entries and more</source>
        <translation>%1 Einträge und mehr</translation>
    </message>
    <message>
        <source>%1 entries</source>
        <translation>%1 Einträge</translation>
    </message>
    <message>
        <source>This desk keeps no history.</source>
        <translation>Dieser Desk führt keinen Verlauf.</translation>
    </message>
    <message>
        <source>Acknowledge</source>
        <translation>Quittieren</translation>
    </message>
    <message>
        <source>Note (may be empty)</source>
        <translation>Notiz (darf leer sein)</translation>
    </message>
    <message>
        <source>Export the journal</source>
        <translation>Journal exportieren</translation>
    </message>
    <message>
        <source>CSV files (*.csv);;All files (*)</source>
        <translation>CSV-Dateien (*.csv);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>The journal is in %1</source>
        <translation>Das Journal steht in %1</translation>
    </message>
    <message>
        <source>The journal was not exported: %1</source>
        <translation>Das Journal wurde nicht exportiert: %1</translation>
    </message>
</context>
<context>
    <name>KeychainSecretStore</name>
    <message>
        <source>The desktop&apos;s keychain cannot be used: %1. Start a keychain service, for example GNOME Keyring or KWallet, and log in again; or write &quot;store = file&quot; under [secrets] in the configuration to keep secrets in a file that only you can read.</source>
        <translation>Der Schlüsselbund des Desktops kann nicht verwendet werden: %1. Einen Schlüsselbunddienst starten, etwa GNOME Keyring oder KWallet, und neu anmelden; oder &quot;store = file&quot; unter [secrets] in die Konfiguration schreiben, um Geheimnisse in einer Datei aufzubewahren, die nur Sie lesen können.</translation>
    </message>
    <message>
        <source>Access to the desktop&apos;s keychain was denied; unlock it and try again.</source>
        <translation>Der Zugriff auf den Schlüsselbund des Desktops wurde verweigert; entsperren und erneut versuchen.</translation>
    </message>
    <message>
        <source>it gives no reason</source>
        <translation>er nennt keinen Grund</translation>
    </message>
    <message>
        <source>it does not answer</source>
        <translation>er antwortet nicht</translation>
    </message>
</context>
<context>
    <name>LoginDialog</name>
    <message>
        <source>Log in</source>
        <translation>Anmelden</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Name</translation>
    </message>
    <message>
        <source>&amp;Password</source>
        <translation>&amp;Passwort</translation>
    </message>
    <message>
        <source>There are no operators yet. Add one in the settings, under Operators.</source>
        <translation>Es gibt noch keine Bediener. In den Einstellungen unter Bediener einen hinzufügen.</translation>
    </message>
    <message>
        <source>Checking …</source>
        <translation>Wird geprüft …</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>upsdesk</source>
        <translation>upsdesk</translation>
    </message>
    <message>
        <source>This is a wall display: it commands nothing.</source>
        <translation>Dies ist eine Wandanzeige: Sie gibt keine Befehle.</translation>
    </message>
    <message>
        <source>&amp;All devices</source>
        <translation>&amp;Alle Geräte</translation>
    </message>
    <message>
        <source>%1: %2: sent, waiting for the result</source>
        <translation>%1: %2: gesendet, wartet auf das Ergebnis</translation>
    </message>
    <message>
        <source>Journal - upsdesk</source>
        <translation>Journal - upsdesk</translation>
    </message>
    <message>
        <source>Replay: %1 - upsdesk</source>
        <translation>Wiedergabe: %1 - upsdesk</translation>
    </message>
    <message>
        <source>%1 - upsdesk</source>
        <translation>%1 - upsdesk</translation>
    </message>
    <message>
        <source>(%1) %2</source>
        <translation>(%1) %2</translation>
    </message>
    <message>
        <source>%1: its collector polls it, this desk does not.</source>
        <translation>%1: Sein Sammler fragt es ab, dieser Desk nicht.</translation>
    </message>
    <message>
        <source>%1: testing the connection …</source>
        <translation>%1: Verbindung wird getestet …</translation>
    </message>
    <message>
        <source>Logged in</source>
        <translation>Angemeldet</translation>
    </message>
    <message>
        <source>Logged out</source>
        <translation>Abgemeldet</translation>
    </message>
    <message>
        <source>level %1</source>
        <translation>Stufe %1</translation>
    </message>
    <message>
        <source>done</source>
        <translation>erledigt</translation>
    </message>
</context>
<context>
    <name>MetricsServer</name>
    <message>
        <source>is no numeric address with a port, like 127.0.0.1:9199</source>
        <translation>ist keine numerische Adresse mit Port, etwa 127.0.0.1:9199</translation>
    </message>
    <message>
        <source>Metrics are not served: &quot;%1&quot; %2.</source>
        <translation>Metriken werden nicht angeboten: &quot;%1&quot; %2.</translation>
    </message>
    <message>
        <source>Metrics are not served: nothing can listen at %1. Another program may do so already.</source>
        <translation>Metriken werden nicht angeboten: An %1 lässt sich nicht lauschen. Vielleicht tut es schon ein anderes Programm.</translation>
    </message>
</context>
<context>
    <name>NearestName</name>
    <message>
        <source>; did you mean &quot;%1&quot;?</source>
        <translation>; war &quot;%1&quot; gemeint?</translation>
    </message>
</context>
<context>
    <name>Notifier</name>
    <message>
        <source>Desktop notifications</source>
        <translation>Desktop-Benachrichtigungen</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Webhook</source>
        <translation>Webhook</translation>
    </message>
    <message>
        <source>upsdesk: a trial</source>
        <translation>upsdesk: eine Probe</translation>
    </message>
    <message>
        <source>Notifications arrive here.</source>
        <translation>Benachrichtigungen kommen hier an.</translation>
    </message>
</context>
<context>
    <name>NotifyTests</name>
    <message>
        <source>Test desktop</source>
        <translation>Desktop testen</translation>
    </message>
    <message>
        <source>Test command</source>
        <translation>Befehl testen</translation>
    </message>
    <message>
        <source>Test webhook</source>
        <translation>Webhook testen</translation>
    </message>
    <message>
        <source>%1: it is not set up.</source>
        <translation>%1: ist nicht eingerichtet.</translation>
    </message>
    <message>
        <source>%1: the trial was delivered.</source>
        <translation>%1: Die Probe wurde zugestellt.</translation>
    </message>
    <message>
        <source>%1: trying ...</source>
        <translation>%1: wird versucht ...</translation>
    </message>
</context>
<context>
    <name>NutDevices</name>
    <message>
        <source>The server has no UPS.</source>
        <translation>Der Server hat keine USV.</translation>
    </message>
    <message>
        <source>The server has several devices; put the name of one at the end of the address: %1.</source>
        <translation>Der Server hat mehrere Geräte; den Namen eines davon ans Ende der Adresse setzen: %1.</translation>
    </message>
</context>
<context>
    <name>NutFields</name>
    <message>
        <source>&amp;List</source>
        <translation>&amp;Liste</translation>
    </message>
    <message>
        <source>the only one of the server</source>
        <translation>die einzige des Servers</translation>
    </message>
    <message>
        <source>Asks the server which UPSes it has</source>
        <translation>Fragt den Server, welche USVen er hat</translation>
    </message>
    <message>
        <source>for commands only</source>
        <translation>nur für Befehle</translation>
    </message>
    <message>
        <source>&amp;Host</source>
        <translation>&amp;Host</translation>
    </message>
    <message>
        <source>&amp;UPS</source>
        <translation>&amp;USV</translation>
    </message>
    <message>
        <source>U&amp;ser</source>
        <translation>&amp;Benutzer</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>Pass&amp;wort</translation>
    </message>
    <message>
        <source>Enter the user that the password is for.</source>
        <translation>Den Benutzer eingeben, zu dem das Passwort gehört.</translation>
    </message>
    <message>
        <source>Asking %1 …</source>
        <translation>%1 wird gefragt …</translation>
    </message>
    <message>
        <source>The server has no UPS.</source>
        <translation>Der Server hat keine USV.</translation>
    </message>
    <message>
        <source>The server&apos;s UPSes: %1.</source>
        <translation>Die USVen des Servers: %1.</translation>
    </message>
</context>
<context>
    <name>NutLine</name>
    <message>
        <source>The password is not sent to %1, because the link is %2 Give the device the server&apos;s certificate (fingerprint) or its authority (ca-file), or allow plain text with tls = off.</source>
        <translation>Das Passwort wird nicht an %1 gesendet, denn die Verbindung ist %2 Dem Gerät das Zertifikat des Servers (fingerprint) oder dessen Stelle (ca-file) angeben, oder mit tls = off Klartext erlauben.</translation>
    </message>
    <message>
        <source>not trusted: %1</source>
        <translation>nicht vertrauenswürdig: %1</translation>
    </message>
    <message>
        <source>in plain text.</source>
        <translation>im Klartext.</translation>
    </message>
    <message>
        <source>%1 does not answer; check that the server is on and that no firewall is in between.</source>
        <translation>%1 antwortet nicht; prüfen, ob der Server läuft und keine Firewall dazwischen ist.</translation>
    </message>
    <message>
        <source>%1 went on in plain text after it had offered encryption: somebody may be in between.</source>
        <translation>%1 sprach im Klartext weiter, nachdem Verschlüsselung angeboten war: Jemand könnte dazwischen sein.</translation>
    </message>
    <message>
        <source>%1 offers no encryption, and the configuration requires it (tls = required, or a certificate to trust).</source>
        <translation>%1 bietet keine Verschlüsselung, und die Konfiguration verlangt sie (tls = required, oder ein Zertifikat, dem zu trauen ist).</translation>
    </message>
    <message>
        <source>%1 has offered encryption before and offers none now: somebody may be in between. If the server was changed on purpose, set tls = off.</source>
        <translation>%1 hat früher Verschlüsselung angeboten und bietet jetzt keine: Jemand könnte dazwischen sein. Wurde der Server absichtlich geändert, tls = off setzen.</translation>
    </message>
    <message>
        <source>there is no certificate to be read in %1.</source>
        <translation>in %1 ist kein Zertifikat zu lesen.</translation>
    </message>
    <message>
        <source>%1 cannot be trusted: %2 Its certificate is %3.</source>
        <translation>%1 ist nicht zu trauen: %2 Sein Zertifikat ist %3.</translation>
    </message>
    <message>
        <source>%1 offers encryption, but the two sides cannot agree on it; check the certificate of the server.</source>
        <translation>%1 bietet Verschlüsselung an, aber beide Seiten werden sich nicht einig; das Zertifikat des Servers prüfen.</translation>
    </message>
    <message>
        <source>%1 offers encryption, but this machine has no TLS library.</source>
        <translation>%1 bietet Verschlüsselung an, aber dieser Rechner hat keine TLS-Bibliothek.</translation>
    </message>
    <message>
        <source>%1 closed the connection.</source>
        <translation>%1 hat die Verbindung geschlossen.</translation>
    </message>
    <message>
        <source>%1 refuses the connection: no NUT server runs there, or it does not listen on this address.</source>
        <translation>%1 lehnt die Verbindung ab: Dort läuft kein NUT-Server, oder er lauscht nicht an dieser Adresse.</translation>
    </message>
    <message>
        <source>No connection to %1: too many open files.</source>
        <translation>Keine Verbindung zu %1: zu viele offene Dateien.</translation>
    </message>
    <message>
        <source>No connection to %1: %2.</source>
        <translation>Keine Verbindung zu %1: %2.</translation>
    </message>
    <message>
        <source>No name server answered for %1 in time; check the network.</source>
        <translation>Kein Namensserver hat rechtzeitig für %1 geantwortet; das Netzwerk prüfen.</translation>
    </message>
    <message>
        <source>%1 accepts the connection but does not answer.</source>
        <translation>%1 nimmt die Verbindung an, antwortet aber nicht.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>NutOrder</name>
    <message>
        <source>Commands need an account of the server; add its user and password in the configuration. Nothing was sent.</source>
        <translation>Befehle brauchen ein Konto des Servers; Benutzer und Passwort in der Konfiguration eintragen. Es wurde nichts gesendet.</translation>
    </message>
    <message>
        <source>This UPS offers no such command; looked for %1.</source>
        <translation>Diese USV bietet keinen solchen Befehl; gesucht wurde %1.</translation>
    </message>
    <message>
        <source>%1 Look at the readings before sending it again.</source>
        <translation>%1 Vor erneutem Senden die Messwerte ansehen.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 Whether %2 was carried out is not known; it is not sent again.</source>
        <translation>%1 Ob %2 ausgeführt wurde, ist nicht bekannt; es wird nicht noch einmal gesendet.</translation>
    </message>
    <message>
        <source>The connection broke before the server told how %1 ended.</source>
        <translation>Die Verbindung brach ab, bevor der Server sagte, wie %1 ausging.</translation>
    </message>
    <message>
        <source>The server took %1 but did not tell how it ended.</source>
        <translation>Der Server nahm %1 an, sagte aber nicht, wie es ausging.</translation>
    </message>
    <message>
        <source>The server has handed %1 on to its driver, but cannot tell how it ended; look at the readings.</source>
        <translation>Der Server hat %1 an seinen Treiber weitergegeben, kann aber nicht sagen, wie es ausging; die Messwerte ansehen.</translation>
    </message>
    <message>
        <source>%1 was carried out; the minutes of standby cannot be set on this UPS, it comes back as its own settings say.</source>
        <translation>%1 wurde ausgeführt; die Minuten des Standby lassen sich bei dieser USV nicht setzen, sie kommt nach ihren eigenen Einstellungen zurück.</translation>
    </message>
    <message>
        <source>%1 was carried out.</source>
        <translation>%1 wurde ausgeführt.</translation>
    </message>
    <message>
        <source>%1 %2 was not sent.</source>
        <translation>%1 %2 wurde nicht gesendet.</translation>
    </message>
    <message>
        <source>%1 Nothing was sent.</source>
        <translation>%1 Es wurde nichts gesendet.</translation>
    </message>
</context>
<context>
    <name>NutPoll</name>
    <message>
        <source>The link to the server is in plain text: others on the network can read and change what it says.</source>
        <translation>Die Verbindung zum Server ist im Klartext: Andere im Netzwerk können lesen und ändern, was er sagt.</translation>
    </message>
    <message>
        <source>The link to the server is encrypted, but not trusted: %1</source>
        <translation>Die Verbindung zum Server ist verschlüsselt, aber nicht vertrauenswürdig: %1</translation>
    </message>
</context>
<context>
    <name>NutProtocol</name>
    <message>
        <source>The server answers, but its driver has brought no new data for a while; check the cable between server and UPS.</source>
        <translation>Der Server antwortet, aber sein Treiber hat seit einiger Zeit keine neuen Daten gebracht; das Kabel zwischen Server und USV prüfen.</translation>
    </message>
    <message>
        <source>The server answers, but the driver of this UPS is not running; start it on the server.</source>
        <translation>Der Server antwortet, aber der Treiber dieser USV läuft nicht; auf dem Server starten.</translation>
    </message>
    <message>
        <source>The server denies access: wrong password or too few rights. Check user and password in the configuration, and the user&apos;s actions and instcmds in upsd.users on the server.</source>
        <translation>Der Server verweigert den Zugriff: falsches Passwort oder zu wenig Rechte. Benutzer und Passwort in der Konfiguration prüfen, und actions und instcmds des Benutzers in upsd.users auf dem Server.</translation>
    </message>
    <message>
        <source>The server knows no UPS of this name; compare the address with the server&apos;s list of devices.</source>
        <translation>Der Server kennt keine USV dieses Namens; die Adresse mit der Geräteliste des Servers vergleichen.</translation>
    </message>
    <message>
        <source>The server wants a user and a password; add them in the configuration.</source>
        <translation>Der Server will Benutzer und Passwort; in der Konfiguration eintragen.</translation>
    </message>
    <message>
        <source>The server wants a password; add it in the configuration.</source>
        <translation>Der Server will ein Passwort; in der Konfiguration eintragen.</translation>
    </message>
    <message>
        <source>The server does not accept the user; correct it in the configuration.</source>
        <translation>Der Server akzeptiert den Benutzer nicht; in der Konfiguration berichtigen.</translation>
    </message>
    <message>
        <source>The server does not accept the password; correct it in the configuration.</source>
        <translation>Der Server akzeptiert das Passwort nicht; in der Konfiguration berichtigen.</translation>
    </message>
    <message>
        <source>The UPS does not support this command.</source>
        <translation>Die USV unterstützt diesen Befehl nicht.</translation>
    </message>
    <message>
        <source>The UPS does not have this setting.</source>
        <translation>Die USV hat diese Einstellung nicht.</translation>
    </message>
    <message>
        <source>The UPS does not let this setting be changed.</source>
        <translation>Die USV lässt diese Einstellung nicht ändern.</translation>
    </message>
    <message>
        <source>The value is too long for this setting.</source>
        <translation>Der Wert ist zu lang für diese Einstellung.</translation>
    </message>
    <message>
        <source>The UPS does not accept this value.</source>
        <translation>Die USV akzeptiert diesen Wert nicht.</translation>
    </message>
    <message>
        <source>The server or its driver does not accept the request.</source>
        <translation>Der Server oder sein Treiber akzeptiert die Anfrage nicht.</translation>
    </message>
    <message>
        <source>The server could not hand the command to its driver.</source>
        <translation>Der Server konnte den Befehl nicht an seinen Treiber weitergeben.</translation>
    </message>
    <message>
        <source>The server could not hand the setting to its driver.</source>
        <translation>Der Server konnte die Einstellung nicht an seinen Treiber weitergeben.</translation>
    </message>
    <message>
        <source>The UPS or its driver reports that it failed.</source>
        <translation>Die USV oder ihr Treiber meldet, dass es fehlschlug.</translation>
    </message>
    <message>
        <source>The driver of this UPS does not know this command or setting.</source>
        <translation>Der Treiber dieser USV kennt diesen Befehl oder diese Einstellung nicht.</translation>
    </message>
    <message>
        <source>What %1 answers is not the language of a NUT server; check host and port.</source>
        <translation>Was %1 antwortet, ist nicht die Sprache eines NUT-Servers; Host und Port prüfen.</translation>
    </message>
    <message>
        <source>The server refuses the request without saying why.</source>
        <translation>Der Server lehnt die Anfrage ab, ohne zu sagen, warum.</translation>
    </message>
    <message>
        <source>The server refuses the request: %1.</source>
        <translation>Der Server lehnt die Anfrage ab: %1.</translation>
    </message>
</context>
<context>
    <name>NutReading</name>
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
        <source>voltage</source>
        <translation>Spannung</translation>
    </message>
    <message>
        <source>current</source>
        <translation>Strom</translation>
    </message>
    <message>
        <source>power</source>
        <translation>Leistung</translation>
    </message>
    <message>
        <source>load</source>
        <translation>Last</translation>
    </message>
    <message>
        <source>%1 voltages are line to line.</source>
        <translation>%1: Spannungen zwischen den Leitern.</translation>
    </message>
    <message>
        <source>%1: one value for all lines (%2), shown in the first.</source>
        <translation>%1: ein Wert für alle Leiter (%2), beim ersten gezeigt.</translation>
    </message>
    <message>
        <source>Battery depleted: derived from a charge of 0 %.</source>
        <translation>Batterie leer: abgeleitet aus einer Ladung von 0 %.</translation>
    </message>
    <message>
        <source>The driver has just started and has no data yet; the source of power is unknown.</source>
        <translation>Der Treiber ist gerade gestartet und hat noch keine Daten; die Stromquelle ist unbekannt.</translation>
    </message>
    <message>
        <source>The UPS does not say where its power comes from.</source>
        <translation>Die USV sagt nicht, woher ihr Strom kommt.</translation>
    </message>
    <message>
        <source>Humidity %1</source>
        <translation>Feuchte %1</translation>
    </message>
</context>
<context>
    <name>NutTrust</name>
    <message>
        <source>%1 port %2</source>
        <translation>%1 Port %2</translation>
    </message>
    <message>
        <source>the certificate is not the one that the configuration names.</source>
        <translation>das Zertifikat ist nicht das in der Konfiguration genannte.</translation>
    </message>
    <message>
        <source>the server shows no certificate.</source>
        <translation>der Server zeigt kein Zertifikat.</translation>
    </message>
</context>
<context>
    <name>NutTrustFields</name>
    <message>
        <source>Where the server offers it; commands only when trusted</source>
        <translation>Wo der Server sie bietet; Befehle nur, wenn vertraut</translation>
    </message>
    <message>
        <source>Always, and trusted</source>
        <translation>Immer, und vertraut</translation>
    </message>
    <message>
        <source>Off: passwords go in plain text</source>
        <translation>Aus: Passwörter gehen im Klartext</translation>
    </message>
    <message>
        <source>P&amp;in it</source>
        <translation>An&amp;heften</translation>
    </message>
    <message>
        <source>those of the system; or a PEM file</source>
        <translation>die des Systems; oder eine PEM-Datei</translation>
    </message>
    <message>
        <source>none pinned; the connection test shows it</source>
        <translation>keines angeheftet; der Verbindungstest zeigt es</translation>
    </message>
    <message>
        <source>Trust this certificate, and no other, from now on</source>
        <translation>Von jetzt an diesem Zertifikat trauen und keinem anderen</translation>
    </message>
    <message>
        <source>&amp;Encryption</source>
        <translation>&amp;Verschlüsselung</translation>
    </message>
    <message>
        <source>Authorities</source>
        <translation>Zertifizierungsstellen</translation>
    </message>
    <message>
        <source>&amp;Fingerprint</source>
        <translation>&amp;Fingerabdruck</translation>
    </message>
    <message>
        <source>The file of authorities cannot be read: %1.</source>
        <translation>Die Datei der Zertifizierungsstellen kann nicht gelesen werden: %1.</translation>
    </message>
    <message>
        <source>A fingerprint is sha256: and 64 hexadecimal digits.</source>
        <translation>Ein Fingerabdruck ist sha256: und 64 hexadezimale Ziffern.</translation>
    </message>
    <message>
        <source>%1, trusted</source>
        <translation>%1, vertraut</translation>
    </message>
    <message>
        <source>%1, not trusted</source>
        <translation>%1, nicht vertraut</translation>
    </message>
</context>
<context>
    <name>OperatorBar</name>
    <message>
        <source>%1, level %2</source>
        <translation>%1, Stufe %2</translation>
    </message>
    <message>
        <source>Nobody is logged in</source>
        <translation>Niemand ist angemeldet</translation>
    </message>
    <message>
        <source>Log out</source>
        <translation>Abmelden</translation>
    </message>
    <message>
        <source>Log in</source>
        <translation>Anmelden</translation>
    </message>
</context>
<context>
    <name>OperatorDesk</name>
    <message>
        <source>&amp;Settings…</source>
        <translation>&amp;Einstellungen…</translation>
    </message>
    <message>
        <source>Log-in</source>
        <translation>Anmeldung</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>fehlgeschlagen</translation>
    </message>
    <message>
        <source>There is no operator of the name that was given.</source>
        <translation>Es gibt keinen Bediener dieses Namens.</translation>
    </message>
    <message>
        <source>The password was wrong.</source>
        <translation>Das Passwort war falsch.</translation>
    </message>
    <message>
        <source>done</source>
        <translation>erledigt</translation>
    </message>
</context>
<context>
    <name>OperatorDialog</name>
    <message>
        <source>Add an operator</source>
        <translation>Bediener hinzufügen</translation>
    </message>
    <message>
        <source>Operator %1</source>
        <translation>Bediener %1</translation>
    </message>
    <message>
        <source>0 may look; 1 and above may command and change the desk</source>
        <translation>0 darf zusehen; ab 1 darf man befehlen und den Desk ändern</translation>
    </message>
    <message>
        <source>kept</source>
        <translation>bleibt</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Name</translation>
    </message>
    <message>
        <source>&amp;Level (0 looks, from 1 on commands)</source>
        <translation>&amp;Stufe (0 sieht zu, ab 1 befiehlt)</translation>
    </message>
    <message>
        <source>&amp;Password</source>
        <translation>&amp;Passwort</translation>
    </message>
    <message>
        <source>Once &amp;more</source>
        <translation>Noch &amp;einmal</translation>
    </message>
    <message>
        <source>Enter a name.</source>
        <translation>Einen Namen eingeben.</translation>
    </message>
    <message>
        <source>There is an operator &quot;%1&quot; already.</source>
        <translation>Es gibt schon einen Bediener &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The two passwords differ.</source>
        <translation>Die beiden Passwörter sind verschieden.</translation>
    </message>
    <message>
        <source>There is not enough memory to hash the password.</source>
        <translation>Der Speicher reicht nicht, um das Passwort zu hashen.</translation>
    </message>
    <message>
        <source>Hashing the password …</source>
        <translation>Passwort wird gehasht …</translation>
    </message>
</context>
<context>
    <name>OperatorEdits</name>
    <message>
        <source>one operator of level %1 or above must remain, or nobody could change the desk any more</source>
        <translation>ein Bediener der Stufe %1 oder höher muss bleiben, sonst könnte niemand mehr den Desk ändern</translation>
    </message>
    <message>
        <source>a level lies between %1 and %2</source>
        <translation>eine Stufe liegt zwischen %1 und %2</translation>
    </message>
    <message>
        <source>a password has at least %1 characters</source>
        <translation>ein Passwort hat mindestens %1 Zeichen</translation>
    </message>
</context>
<context>
    <name>OperatorSession</name>
    <message>
        <source>%1 may look, but not change: that takes level %2.</source>
        <translation>%1 darf zusehen, aber nicht ändern: Dafür ist Stufe %2 nötig.</translation>
    </message>
    <message>
        <source>Log in first: devices and settings are changed by operators.</source>
        <translation>Zuerst anmelden: Geräte und Einstellungen werden von Bedienern geändert.</translation>
    </message>
    <message>
        <source>Too many failed attempts. Try again in %1 s.</source>
        <translation>Zu viele fehlgeschlagene Versuche. In %1 s erneut versuchen.</translation>
    </message>
    <message>
        <source>Name or password is wrong.</source>
        <translation>Name oder Passwort ist falsch.</translation>
    </message>
</context>
<context>
    <name>OperatorsPage</name>
    <message>
        <source>&amp;Change…</source>
        <translation>Ä&amp;ndern…</translation>
    </message>
    <message>
        <source>&amp;Remove…</source>
        <translation>Ent&amp;fernen…</translation>
    </message>
    <message>
        <source>Operators</source>
        <translation>Bediener</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Stufe</translation>
    </message>
    <message>
        <source>While there is no operator, everybody may change the desk and nobody may command a real UPS. Changes here are kept at once.</source>
        <translation>Solange es keinen Bediener gibt, darf jeder den Desk ändern und niemand einer echten USV Befehle geben. Änderungen hier gelten sofort.</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Hinzufügen…</translation>
    </message>
    <message>
        <source>Operator %1 added, level %2</source>
        <translation>Bediener %1 hinzugefügt, Stufe %2</translation>
    </message>
    <message>
        <source>Operator %1 changed, level %2</source>
        <translation>Bediener %1 geändert, Stufe %2</translation>
    </message>
    <message>
        <source>Remove an operator</source>
        <translation>Bediener entfernen</translation>
    </message>
    <message>
        <source>Remove the operator &quot;%1&quot;?</source>
        <translation>Den Bediener &quot;%1&quot; entfernen?</translation>
    </message>
    <message>
        <source>Who is logged in by this name is logged out.</source>
        <translation>Wer unter diesem Namen angemeldet ist, wird abgemeldet.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>Ent&amp;fernen</translation>
    </message>
    <message>
        <source>Operator %1 removed</source>
        <translation>Bediener %1 entfernt</translation>
    </message>
</context>
<context>
    <name>OutageTable</name>
    <message>
        <source>Outages</source>
        <translation>Ausfälle</translation>
    </message>
    <message>
        <source>Double-click or Enter shows the outage in the charts.</source>
        <translation>Doppelklick oder Eingabe zeigt den Ausfall in den Diagrammen.</translation>
    </message>
    <message>
        <source>Mains lost</source>
        <translation>Netz weg</translation>
    </message>
    <message>
        <source>Mains back</source>
        <translation>Netz zurück</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Lowest charge</source>
        <translation>Niedrigste Ladung</translation>
    </message>
    <message>
        <source>still on battery</source>
        <translation>noch auf Batterie</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
</context>
<context>
    <name>OverviewPage</name>
    <message>
        <source>All devices</source>
        <translation>Alle Geräte</translation>
    </message>
    <message>
        <source>Nothing matches “%1”.</source>
        <translation>Nichts passt zu „%1“.</translation>
    </message>
</context>
<context>
    <name>PostgresStore</name>
    <message>
        <source>%1 does not let this user in; look at the password</source>
        <translation>%1 lässt diesen Benutzer nicht ein; das Passwort ansehen</translation>
    </message>
    <message>
        <source>%1: there is no such database; create it</source>
        <translation>%1: diese Datenbank gibt es nicht; anlegen</translation>
    </message>
    <message>
        <source>%1: the user may not do this; look at its rights</source>
        <translation>%1: der Benutzer darf das nicht; seine Rechte ansehen</translation>
    </message>
    <message>
        <source>%1 is read-only</source>
        <translation>%1 ist schreibgeschützt</translation>
    </message>
    <message>
        <source>the disk of %1 is full</source>
        <translation>die Platte von %1 ist voll</translation>
    </message>
    <message>
        <source>%1 has too many connections</source>
        <translation>%1 hat zu viele Verbindungen</translation>
    </message>
    <message>
        <source>%1: a table is locked by another program</source>
        <translation>%1: ein anderes Programm hat eine Tabelle gesperrt</translation>
    </message>
    <message>
        <source>%1 is shutting down or starting up</source>
        <translation>%1 fährt herunter oder startet</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 antwortet nicht</translation>
    </message>
</context>
<context>
    <name>PrivateFile</name>
    <message>
        <source>%1 is not a file</source>
        <translation>%1 ist keine Datei</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>%1 is longer than %2 bytes; it is not read</source>
        <translation>%1 ist länger als %2 Bytes und wird nicht gelesen</translation>
    </message>
    <message>
        <source>cannot make the folder %1</source>
        <translation>der Ordner %1 kann nicht angelegt werden</translation>
    </message>
    <message>
        <source>%1 is not written: another upsdesk is writing it, or its folder is read-only</source>
        <translation>%1 wird nicht geschrieben: Ein anderes upsdesk schreibt sie, oder ihr Ordner ist schreibgeschützt</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
</context>
<context>
    <name>Recorder</name>
    <message>
        <source>Recording ended</source>
        <translation>Aufzeichnung beendet</translation>
    </message>
    <message>
        <source>Recording began</source>
        <translation>Aufzeichnung begonnen</translation>
    </message>
    <message>
        <source>Ended while nothing was recorded.</source>
        <translation>Endete, während nichts aufgezeichnet wurde.</translation>
    </message>
    <message>
        <source>Ended while the device could not be reached.</source>
        <translation>Endete, während das Gerät nicht erreichbar war.</translation>
    </message>
    <message>
        <source>The device is no longer watched.</source>
        <translation>Das Gerät wird nicht mehr überwacht.</translation>
    </message>
    <message>
        <source>The desk&apos;s clock was set forward by %1 s</source>
        <translation>Die Uhr des Desks wurde um %1 s vorgestellt</translation>
    </message>
    <message>
        <source>The desk&apos;s clock was set back by %1 s</source>
        <translation>Die Uhr des Desks wurde um %1 s zurückgestellt</translation>
    </message>
</context>
<context>
    <name>RelayConnector</name>
    <message>
        <source>This desk is a viewer: it polls nothing, the collector of %1 does.</source>
        <translation>Dieser Desk ist ein Betrachter: Er fragt nichts ab, das tut der Sammler von %1.</translation>
    </message>
    <message>
        <source>this device</source>
        <translation>dieses Gerät</translation>
    </message>
    <message>
        <source>This desk is a viewer and has no way to the device: commands are given at a desk that polls it itself.</source>
        <translation>Dieser Desk ist ein Betrachter und hat keinen Weg zum Gerät: Befehle werden an einem Desk gegeben, der es selbst abfragt.</translation>
    </message>
</context>
<context>
    <name>ReplayBar</name>
    <message>
        <source>Back to &amp;live</source>
        <translation>Zurück zu &amp;live</translation>
    </message>
    <message>
        <source>Reading …</source>
        <translation>Wird gelesen …</translation>
    </message>
    <message>
        <source>REPLAY</source>
        <translation>WIEDERGABE</translation>
    </message>
    <message>
        <source>To the reading before</source>
        <translation>Zum vorigen Messwert</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>To the next reading</source>
        <translation>Zum nächsten Messwert</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>%1x</source>
        <translation>%1x</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Replay: %1</source>
        <translation>Wiedergabe: %1</translation>
    </message>
    <message>
        <source>stored since %1</source>
        <translation>gespeichert seit %1</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
</context>
<context>
    <name>ReplayDevice</name>
    <message>
        <source>It was recorded like this.</source>
        <translation>So wurde es aufgezeichnet.</translation>
    </message>
    <message>
        <source>The past takes no commands.</source>
        <translation>Die Vergangenheit nimmt keine Befehle an.</translation>
    </message>
</context>
<context>
    <name>ReplayPage</name>
    <message>
        <source>This is a replay: the past takes no commands. Go back to live.</source>
        <translation>Dies ist eine Wiedergabe: Die Vergangenheit nimmt keine Befehle an. Zurück zu live gehen.</translation>
    </message>
</context>
<context>
    <name>ReplayPlayer</name>
    <message>
        <source>This desk keeps no history.</source>
        <translation>Dieser Desk führt keinen Verlauf.</translation>
    </message>
    <message>
        <source>Nothing is stored of %1 yet.</source>
        <translation>Von %1 ist noch nichts gespeichert.</translation>
    </message>
</context>
<context>
    <name>ResultBanner</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>ScaleTable</name>
    <message>
        <source>Quantity</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Factor</source>
        <translation>Faktor</translation>
    </message>
    <message>
        <source>Correction factors</source>
        <translation>Korrekturfaktoren</translation>
    </message>
    <message>
        <source>The factor of %1 is a number above 0, as 0.1.</source>
        <translation>Der Faktor von %1 ist eine Zahl über 0, etwa 0.1.</translation>
    </message>
</context>
<context>
    <name>ScenarioPlayer</name>
    <message>
        <source>Simulated day, %1x</source>
        <translation>Simulierter Tag, %1x</translation>
    </message>
    <message>
        <source>Simulated day, %1x: the battery lives so much faster; what is ordered takes its own time.</source>
        <translation>Simulierter Tag, %1x: Die Batterie lebt so viel schneller; was befohlen wird, dauert seine eigene Zeit.</translation>
    </message>
</context>
<context>
    <name>SecretEdit</name>
    <message>
        <source>kept</source>
        <translation>bleibt</translation>
    </message>
</context>
<context>
    <name>SecretKeeper</name>
    <message>
        <source>A secret was not kept: %1</source>
        <translation>Ein Geheimnis wurde nicht aufbewahrt: %1</translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>&amp;General</source>
        <translation>&amp;Allgemein</translation>
    </message>
    <message>
        <source>A device may have an interval of its own; its dialog says which.</source>
        <translation>Ein Gerät kann ein eigenes Intervall haben; sein Dialog sagt, welches.</translation>
    </message>
    <message>
        <source>&amp;Thresholds</source>
        <translation>&amp;Schwellen</translation>
    </message>
    <message>
        <source>From here on a live device is conspicuous in list, tiles and heading. Its own alarms count whatever stands here.</source>
        <translation>Ab hier fällt ein aktuelles Gerät in Liste, Kacheln und Kopfzeile auf. Seine eigenen Alarme zählen, was immer hier steht.</translation>
    </message>
    <message>
        <source>&amp;Secrets</source>
        <translation>&amp;Geheimnisse</translation>
    </message>
    <message>
        <source>Passwords and keys of devices. Where another place is chosen, those that the desk knows move there. The file is not encrypted: this user and the administrator of this machine can read it.</source>
        <translation>Passwörter und Schlüssel der Geräte. Wird ein anderer Ort gewählt, ziehen die dem Desk bekannten dorthin um. Die Datei ist nicht verschlüsselt: Dieser Benutzer und der Verwalter dieses Rechners können sie lesen.</translation>
    </message>
    <message>
        <source>Histor&amp;y</source>
        <translation>&amp;Verlauf</translation>
    </message>
    <message>
        <source>In a file of yours, or where it says: sqlite:/PATH or postgresql://USER@HOST/DATABASE, the latter encrypted as chosen and checked against the authorities in that file, or those of the system. Followed from the next start on.</source>
        <translation>In einer Datei von Ihnen, oder wo es hier steht: sqlite:/PFAD oder postgresql://USER@HOST/DATABASE, letztere verschlüsselt wie gewählt und geprüft gegen die Zertifizierungsstellen in jener Datei oder die des Systems. Gilt ab dem nächsten Start.</translation>
    </message>
    <message>
        <source>&amp;Notifications</source>
        <translation>&amp;Meldungen</translation>
    </message>
    <message>
        <source>Power failures are told at once, anything else after it has held for one more poll. In quiet hours the desktop is told only what is critical. The command is a program with its arguments; what happened is in its environment (UPSDESK_TEXT and others). Metrics are served at a port of this machine, or at an address like 127.0.0.1:9199.</source>
        <translation>Stromausfälle werden sofort gemeldet, alles andere, sobald es eine weitere Abfrage lang anhielt. In Ruhezeiten erfährt der Desktop nur, was kritisch ist. Der Befehl ist ein Programm mit seinen Argumenten; was geschah, steht in seiner Umgebung (UPSDESK_TEXT und andere). Metriken werden an einem Port dieses Rechners angeboten oder an einer Adresse wie 127.0.0.1:9199.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>&amp;Operators</source>
        <translation>&amp;Bediener</translation>
    </message>
    <message>
        <source>Settings: %1</source>
        <translation>Einstellungen: %1</translation>
    </message>
</context>
<context>
    <name>SidePanel</name>
    <message>
        <source>&amp;Worst first</source>
        <translation>&amp;Schlimmste zuerst</translation>
    </message>
    <message>
        <source>&amp;All devices</source>
        <translation>&amp;Alle Geräte</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Filter by name, address or state</source>
        <translation>Nach Name, Adresse oder Zustand filtern</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Geräte</translation>
    </message>
</context>
<context>
    <name>SimulatedUps</name>
    <message>
        <source>The battery is being tested for %1 s</source>
        <translation>Die Batterie wird %1 s lang getestet</translation>
    </message>
    <message>
        <source>The battery is being discharged until it is low</source>
        <translation>Die Batterie wird entladen, bis sie schwach ist</translation>
    </message>
    <message>
        <source>The test has ended</source>
        <translation>Der Test ist beendet</translation>
    </message>
    <message>
        <source>The output goes off in %1 s</source>
        <translation>Der Ausgang geht in %1 s aus</translation>
    </message>
    <message>
        <source>The output goes off in %1 s, for %2 min</source>
        <translation>Der Ausgang geht in %1 s aus, für %2 min</translation>
    </message>
    <message>
        <source>The output is off for %1 s</source>
        <translation>Der Ausgang ist für %1 s aus</translation>
    </message>
    <message>
        <source>The output is on</source>
        <translation>Der Ausgang ist ein</translation>
    </message>
    <message>
        <source>This unit does not know the command</source>
        <translation>Dieses Gerät kennt den Befehl nicht</translation>
    </message>
    <message>
        <source>The delay is out of range</source>
        <translation>Die Verzögerung ist außerhalb des Bereichs</translation>
    </message>
    <message>
        <source>The time of standby is out of range</source>
        <translation>Die Standby-Zeit ist außerhalb des Bereichs</translation>
    </message>
    <message>
        <source>The duration is out of range</source>
        <translation>Die Dauer ist außerhalb des Bereichs</translation>
    </message>
    <message>
        <source>No test is running</source>
        <translation>Es läuft kein Test</translation>
    </message>
    <message>
        <source>The output is on already</source>
        <translation>Der Ausgang ist schon ein</translation>
    </message>
    <message>
        <source>There are no mains and the battery is low</source>
        <translation>Es gibt kein Netz, und die Batterie ist schwach</translation>
    </message>
    <message>
        <source>The output is off already</source>
        <translation>Der Ausgang ist schon aus</translation>
    </message>
    <message>
        <source>A shutdown is under way already</source>
        <translation>Eine Abschaltung läuft schon</translation>
    </message>
    <message>
        <source>The output is off</source>
        <translation>Der Ausgang ist aus</translation>
    </message>
    <message>
        <source>A test is running already</source>
        <translation>Ein Test läuft schon</translation>
    </message>
    <message>
        <source>The battery carries the load</source>
        <translation>Die Batterie trägt die Last</translation>
    </message>
    <message>
        <source>The load is on bypass</source>
        <translation>Die Last ist auf Bypass</translation>
    </message>
    <message>
        <source>A shutdown is under way</source>
        <translation>Eine Abschaltung läuft</translation>
    </message>
    <message>
        <source>The output is overloaded</source>
        <translation>Der Ausgang ist überlastet</translation>
    </message>
    <message>
        <source>The battery is not charged enough</source>
        <translation>Die Batterie ist nicht genug geladen</translation>
    </message>
</context>
<context>
    <name>SimulatorConnector</name>
    <message>
        <source>The simulator answers, the simulated UPS behind it is silent</source>
        <translation>Der Simulator antwortet, die simulierte USV dahinter schweigt</translation>
    </message>
    <message>
        <source>The simulated UPS does not answer</source>
        <translation>Die simulierte USV antwortet nicht</translation>
    </message>
</context>
<context>
    <name>SimulatorFields</name>
    <message>
        <source>Scena&amp;rio</source>
        <translation>Sze&amp;nario</translation>
    </message>
    <message>
        <source>The simulator has no such scenario; choose one.</source>
        <translation>Der Simulator hat kein solches Szenario; eines wählen.</translation>
    </message>
    <message>
        <source>Simulator</source>
        <translation>Simulator</translation>
    </message>
    <message>
        <source>Simulator %1</source>
        <translation>Simulator %1</translation>
    </message>
</context>
<context>
    <name>SimulatorScenarios</name>
    <message>
        <source>simulated day, 60x</source>
        <translation>simulierter Tag, 60x</translation>
    </message>
    <message>
        <source>mains supply, battery full</source>
        <translation>Netzversorgung, Batterie voll</translation>
    </message>
    <message>
        <source>mains failure, the battery carries the load</source>
        <translation>Netzausfall, die Batterie trägt die Last</translation>
    </message>
    <message>
        <source>mains failure, battery low and soon empty</source>
        <translation>Netzausfall, Batterie schwach und bald leer</translation>
    </message>
    <message>
        <source>mains are back, the battery recharges</source>
        <translation>das Netz ist zurück, die Batterie lädt</translation>
    </message>
    <message>
        <source>the load is on bypass</source>
        <translation>die Last ist auf Bypass</translation>
    </message>
    <message>
        <source>too much load, then transfer to bypass</source>
        <translation>zu viel Last, dann Umschaltung auf Bypass</translation>
    </message>
    <message>
        <source>battery self-test, repeated</source>
        <translation>Batterie-Selbsttest, wiederholt</translation>
    </message>
    <message>
        <source>answers at first, then falls silent for a while</source>
        <translation>antwortet zuerst, schweigt dann eine Weile</translation>
    </message>
    <message>
        <source>the link comes and goes</source>
        <translation>die Verbindung kommt und geht</translation>
    </message>
    <message>
        <source>Single-phase UPS: %1</source>
        <translation>Einphasige USV: %1</translation>
    </message>
    <message>
        <source>Three-phase UPS: %1</source>
        <translation>Dreiphasige USV: %1</translation>
    </message>
    <message>
        <source>Unknown scenario &quot;%1&quot;; known are %2, and sim: alone for the whole day%3</source>
        <translation>Unbekanntes Szenario &quot;%1&quot;; bekannt sind %2, und sim: allein für den ganzen Tag%3</translation>
    </message>
</context>
<context>
    <name>SnmpCommand</name>
    <message>
        <source>The agent does not answer; nothing was set.</source>
        <translation>Der Agent antwortet nicht; nichts wurde gesetzt.</translation>
    </message>
    <message>
        <source>%1. The command was sent before; look at the readings before sending it again.</source>
        <translation>%1. Der Befehl war zuvor gesendet worden; vor erneutem Senden die Messwerte ansehen.</translation>
    </message>
    <message>
        <source>The agent fell silent after the command was sent; it is not known whether the device carried it out. It was not sent again.</source>
        <translation>Der Agent verstummte, nachdem der Befehl gesendet war; ob das Gerät ihn ausführte, ist nicht bekannt. Er wurde nicht noch einmal gesendet.</translation>
    </message>
    <message>
        <source>A test is already in progress.</source>
        <translation>Ein Test läuft schon.</translation>
    </message>
    <message>
        <source>No test is in progress.</source>
        <translation>Es läuft kein Test.</translation>
    </message>
    <message>
        <source>The device has no test objects.</source>
        <translation>Das Gerät hat keine Testobjekte.</translation>
    </message>
    <message>
        <source>The shutdown delay of %1 s is not shorter than the standby.</source>
        <translation>Die Abschaltverzögerung von %1 s ist nicht kürzer als das Standby.</translation>
    </message>
    <message>
        <source>The device has no object for this command (%1).</source>
        <translation>Das Gerät hat kein Objekt für diesen Befehl (%1).</translation>
    </message>
    <message>
        <source>No answer to the first step of the command; the shutdown was not sent.</source>
        <translation>Keine Antwort auf den ersten Schritt des Befehls; die Abschaltung wurde nicht gesendet.</translation>
    </message>
    <message>
        <source>No answer to the command, and the device shows no effect of it. It was not sent again.</source>
        <translation>Keine Antwort auf den Befehl, und das Gerät zeigt keine Wirkung. Er wurde nicht noch einmal gesendet.</translation>
    </message>
    <message>
        <source>The agent accepted the command, but the output was on before: nothing shows whether the device followed it.</source>
        <translation>Der Agent nahm den Befehl an, aber der Ausgang war vorher schon ein: Nichts zeigt, ob das Gerät ihm folgte.</translation>
    </message>
    <message>
        <source>The agent accepted the command, but the output was off before: nothing shows whether the device followed it.</source>
        <translation>Der Agent nahm den Befehl an, aber der Ausgang war vorher schon aus: Nichts zeigt, ob das Gerät ihm folgte.</translation>
    </message>
    <message>
        <source>The agent accepted the command, but the device shows no effect of it.</source>
        <translation>Der Agent nahm den Befehl an, aber das Gerät zeigt keine Wirkung.</translation>
    </message>
    <message>
        <source>The test has ended.</source>
        <translation>Der Test ist beendet.</translation>
    </message>
    <message>
        <source>The test has begun.</source>
        <translation>Der Test hat begonnen.</translation>
    </message>
    <message>
        <source>The test has ended. %1</source>
        <translation>Der Test ist beendet. %1</translation>
    </message>
    <message>
        <source>The test failed. %1</source>
        <translation>Der Test ist fehlgeschlagen. %1</translation>
    </message>
    <message>
        <source>The test was aborted. %1</source>
        <translation>Der Test wurde abgebrochen. %1</translation>
    </message>
    <message>
        <source>The output is on.</source>
        <translation>Der Ausgang ist ein.</translation>
    </message>
    <message>
        <source>The output is off.</source>
        <translation>Der Ausgang ist aus.</translation>
    </message>
    <message>
        <source>The countdown is running, %1 s left.</source>
        <translation>Der Countdown läuft, noch %1 s.</translation>
    </message>
    <message>
        <source>The device does not offer this command (%1 cannot be set).</source>
        <translation>Das Gerät bietet diesen Befehl nicht (%1 lässt sich nicht setzen).</translation>
    </message>
    <message>
        <source>The agent does not let %1 be set: the %2 needs write access.</source>
        <translation>Der Agent lässt %1 nicht setzen: %2 braucht Schreibzugriff.</translation>
    </message>
    <message>
        <source>The device does not accept the value for %1.</source>
        <translation>Das Gerät akzeptiert den Wert für %1 nicht.</translation>
    </message>
    <message>
        <source>The device cannot do this now (SNMP error %1 at %2).</source>
        <translation>Das Gerät kann das jetzt nicht (SNMP-Fehler %1 bei %2).</translation>
    </message>
</context>
<context>
    <name>SnmpFields</name>
    <message>
        <source>No authentication, no encryption</source>
        <translation>Keine Authentifizierung, keine Verschlüsselung</translation>
    </message>
    <message>
        <source>Authentication, no encryption</source>
        <translation>Authentifizierung, keine Verschlüsselung</translation>
    </message>
    <message>
        <source>Authentication and encryption</source>
        <translation>Authentifizierung und Verschlüsselung</translation>
    </message>
    <message>
        <source>the agent&apos;s own</source>
        <translation>der des Agenten</translation>
    </message>
    <message>
        <source>&amp;Host</source>
        <translation>&amp;Host</translation>
    </message>
    <message>
        <source>&amp;Version</source>
        <translation>&amp;Version</translation>
    </message>
    <message>
        <source>Comm&amp;unity</source>
        <translation>Comm&amp;unity</translation>
    </message>
    <message>
        <source>&amp;User</source>
        <translation>&amp;Benutzer</translation>
    </message>
    <message>
        <source>&amp;Security</source>
        <translation>&amp;Sicherheit</translation>
    </message>
    <message>
        <source>Authent&amp;ication</source>
        <translation>Authent&amp;ifizierung</translation>
    </message>
    <message>
        <source>Authentication secret</source>
        <translation>Geheimnis der Authentifizierung</translation>
    </message>
    <message>
        <source>Encr&amp;yption</source>
        <translation>Verschl&amp;üsselung</translation>
    </message>
    <message>
        <source>Encryption secret</source>
        <translation>Geheimnis der Verschlüsselung</translation>
    </message>
    <message>
        <source>Conte&amp;xt</source>
        <translation>Konte&amp;xt</translation>
    </message>
    <message>
        <source>&amp;Range</source>
        <translation>&amp;Bereich</translation>
    </message>
    <message>
        <source>Enter the user of SNMPv3.</source>
        <translation>Den Benutzer von SNMPv3 eingeben.</translation>
    </message>
    <message>
        <source>A secret of SNMPv3 has at least %1 characters.</source>
        <translation>Ein Geheimnis von SNMPv3 hat mindestens %1 Zeichen.</translation>
    </message>
</context>
<context>
    <name>SnmpPeer</name>
    <message>
        <source>The name server does not answer for %1</source>
        <translation>Der Namensserver antwortet nicht für %1</translation>
    </message>
    <message>
        <source>user &quot;%1&quot;</source>
        <translation>Benutzer &quot;%1&quot;</translation>
    </message>
    <message>
        <source>community</source>
        <translation>die Community</translation>
    </message>
</context>
<context>
    <name>SnmpPoll</name>
    <message>
        <source>not a UPS: %1 answers SNMP but has no UPS-MIB objects</source>
        <translation>keine USV: %1 antwortet auf SNMP, hat aber keine Objekte der UPS-MIB</translation>
    </message>
    <message>
        <source>The agent at %1 answers, but has lost contact with its UPS; what it repeats is not taken for new.</source>
        <translation>Der Agent auf %1 antwortet, hat aber den Kontakt zu seiner USV verloren; was er wiederholt, gilt nicht als neu.</translation>
    </message>
    <message>
        <source>%1 stopped answering, or answers too slowly: a poll did not end within %2 s</source>
        <translation>%1 antwortet nicht mehr oder zu langsam: Eine Abfrage endete nicht binnen %2 s</translation>
    </message>
    <message>
        <source>Silent for %1 s: wrong user or context, an agent without SNMPv3, or nothing at %2</source>
        <translation>Seit %1 s still: falscher Benutzer oder Kontext, ein Agent ohne SNMPv3, oder nichts an %2</translation>
    </message>
    <message>
        <source>Silent for %1 s: wrong community, an agent without this SNMP version, or nothing at %2</source>
        <translation>Seit %1 s still: falsche Community, ein Agent ohne diese SNMP-Version, oder nichts an %2</translation>
    </message>
</context>
<context>
    <name>SnmpPort</name>
    <message>
        <source>upsdesk has as many files open as this computer allows it (%1; see &quot;ulimit -n&quot;)</source>
        <translation>upsdesk hat so viele Dateien offen, wie dieser Rechner erlaubt (%1; siehe &quot;ulimit -n&quot;)</translation>
    </message>
</context>
<context>
    <name>SnmpReading</name>
    <message>
        <source>Alarms counted, but not named: %1</source>
        <translation>Alarme gezählt, aber nicht benannt: %1</translation>
    </message>
</context>
<context>
    <name>SnmpSession</name>
    <message>
        <source>No SNMP session to %1: %2</source>
        <translation>Keine SNMP-Sitzung zu %1: %2</translation>
    </message>
    <message>
        <source>Cannot send to %1: %2</source>
        <translation>An %1 kann nicht gesendet werden: %2</translation>
    </message>
    <message>
        <source>The request cannot be made: %1</source>
        <translation>Die Anfrage lässt sich nicht bilden: %1</translation>
    </message>
    <message>
        <source>Wrong authentication secret or protocol: %1 refuses the digest of user &quot;%2&quot;</source>
        <translation>Falsches Geheimnis oder Verfahren der Authentifizierung: %1 lehnt den Digest des Benutzers &quot;%2&quot; ab</translation>
    </message>
    <message>
        <source>Unknown user &quot;%1&quot; at %2</source>
        <translation>Unbekannter Benutzer &quot;%1&quot; auf %2</translation>
    </message>
    <message>
        <source>%1 does not allow user &quot;%2&quot; the level %3</source>
        <translation>%1 erlaubt dem Benutzer &quot;%2&quot; die Stufe %3 nicht</translation>
    </message>
    <message>
        <source>Wrong privacy secret or protocol: %1 cannot decrypt what user &quot;%2&quot; sends</source>
        <translation>Falsches Geheimnis oder Verfahren der Verschlüsselung: %1 kann nicht entschlüsseln, was Benutzer &quot;%2&quot; sendet</translation>
    </message>
    <message>
        <source>%1 refuses the SNMPv3 message: %2</source>
        <translation>%1 lehnt die SNMPv3-Nachricht ab: %2</translation>
    </message>
    <message>
        <source>%1 answers, but not what user &quot;%2&quot; sends: wrong privacy secret or protocol, or unknown context</source>
        <translation>%1 antwortet, aber nicht auf das, was Benutzer &quot;%2&quot; sendet: falsches Geheimnis oder Verfahren der Verschlüsselung, oder unbekannter Kontext</translation>
    </message>
</context>
<context>
    <name>SnmpUsers</name>
    <message>
        <source>SNMPv3 secrets have at least %1 characters; the %2 secret is shorter or missing.</source>
        <translation>Geheimnisse von SNMPv3 haben mindestens %1 Zeichen; das für %2 ist kürzer oder fehlt.</translation>
    </message>
    <message>
        <source>authentication</source>
        <translation>Authentifizierung</translation>
    </message>
    <message>
        <source>privacy</source>
        <translation>Verschlüsselung</translation>
    </message>
    <message>
        <source>The SNMP library of this computer has no authentication with &quot;%1&quot;.</source>
        <translation>Die SNMP-Bibliothek dieses Rechners hat keine Authentifizierung mit &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The SNMP library cannot make keys of these secrets.</source>
        <translation>Die SNMP-Bibliothek kann aus diesen Geheimnissen keine Schlüssel machen.</translation>
    </message>
    <message>
        <source>The SNMP library of this computer has no privacy with &quot;%1&quot;.</source>
        <translation>Die SNMP-Bibliothek dieses Rechners hat keine Verschlüsselung mit &quot;%1&quot;.</translation>
    </message>
</context>
<context>
    <name>SqliteStore</name>
    <message>
        <source>%1 is locked by another program</source>
        <translation>%1 ist von einem anderen Programm gesperrt</translation>
    </message>
    <message>
        <source>%1 may not be written; look at its permissions</source>
        <translation>%1 darf nicht geschrieben werden; ihre Rechte ansehen</translation>
    </message>
    <message>
        <source>%1 cannot be read or written; the disk is at fault</source>
        <translation>%1 kann nicht gelesen oder geschrieben werden; die Platte ist schuld</translation>
    </message>
    <message>
        <source>%1 is damaged; move it away and a new one is begun</source>
        <translation>%1 ist beschädigt; beiseitelegen, dann wird eine neue begonnen</translation>
    </message>
    <message>
        <source>the disk of %1 is full</source>
        <translation>die Platte von %1 ist voll</translation>
    </message>
    <message>
        <source>%1 cannot be opened; look at its folder</source>
        <translation>%1 kann nicht geöffnet werden; ihren Ordner ansehen</translation>
    </message>
    <message>
        <source>%1 is no history; move it away</source>
        <translation>%1 ist kein Verlauf; beiseitelegen</translation>
    </message>
    <message>
        <source>there is no history yet: %1 does not exist</source>
        <translation>es gibt noch keinen Verlauf: %1 existiert nicht</translation>
    </message>
    <message>
        <source>cannot make the folder %1</source>
        <translation>der Ordner %1 kann nicht angelegt werden</translation>
    </message>
</context>
<context>
    <name>StoreAddress</name>
    <message>
        <source>store is sqlite:PATH or postgresql://USER@HOST[:PORT]/DATABASE</source>
        <translation>store ist sqlite:PATH oder postgresql://USER@HOST[:PORT]/DATABASE</translation>
    </message>
    <message>
        <source>a password does not belong in the store&apos;s address but in the keychain, or in UPSDESK_HISTORY_SECRET</source>
        <translation>ein Passwort gehört nicht in die Adresse des Speichers, sondern in den Schlüsselbund oder in UPSDESK_HISTORY_SECRET</translation>
    </message>
    <message>
        <source>the path of the store begins with /: sqlite:/PATH</source>
        <translation>der Pfad des Speichers beginnt mit /: sqlite:/PATH</translation>
    </message>
</context>
<context>
    <name>TimeText</name>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 min %2 s</source>
        <translation>%1 min %2 s</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 h %2 min</translation>
    </message>
    <message>
        <source>%1 days %2 h</source>
        <translation>%1 Tage %2 h</translation>
    </message>
</context>
<context>
    <name>TrayIcon</name>
    <message>
        <source>&amp;Show the desk</source>
        <translation>Desk &amp;zeigen</translation>
    </message>
    <message>
        <source>&amp;Mute sounds</source>
        <translation>Töne &amp;stumm</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
</context>
<context>
    <name>UpsCommand</name>
    <message>
        <source>Self-test</source>
        <translation>Selbsttest</translation>
    </message>
    <message>
        <source>Discharge test to low voltage</source>
        <translation>Entladetest bis Unterspannung</translation>
    </message>
    <message>
        <source>Cancel test</source>
        <translation>Test abbrechen</translation>
    </message>
    <message>
        <source>Shutdown</source>
        <translation>Abschalten</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Standby</translation>
    </message>
    <message>
        <source>Wake up from standby</source>
        <translation>Aus Standby wecken</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Neustart</translation>
    </message>
    <message>
        <source>Standby takes a number of minutes from 1 to %1; nothing was sent.</source>
        <translation>Standby braucht eine Anzahl Minuten von 1 bis %1; es wurde nichts gesendet.</translation>
    </message>
    <message>
        <source>The event %1 is no command that this desk carries out.</source>
        <translation>Das Ereignis %1 ist kein Befehl, den dieser Desk ausführt.</translation>
    </message>
    <message>
        <source>The command %1 takes no value.</source>
        <translation>Der Befehl %1 nimmt keinen Wert.</translation>
    </message>
    <message>
        <source>Unknown command &quot;%1&quot;; known are %2%3</source>
        <translation>Unbekannter Befehl &quot;%1&quot;; bekannt sind %2%3</translation>
    </message>
    <message>
        <source>%1 for %2 min</source>
        <translation>%1 für %2 min</translation>
    </message>
    <message>
        <source>done</source>
        <translation>erledigt</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>abgelehnt</translation>
    </message>
    <message>
        <source>not offered by this device</source>
        <translation>von diesem Gerät nicht angeboten</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>keine Antwort</translation>
    </message>
    <message>
        <source>sent, result unknown</source>
        <translation>gesendet, Ergebnis unbekannt</translation>
    </message>
</context>
<context>
    <name>Urgency</name>
    <message>
        <source>Connecting</source>
        <translation>Verbindet</translation>
    </message>
    <message>
        <source>On mains</source>
        <translation>Am Netz</translation>
    </message>
    <message>
        <source>On mains, boosting</source>
        <translation>Am Netz, hebt an</translation>
    </message>
    <message>
        <source>On mains, reducing</source>
        <translation>Am Netz, senkt ab</translation>
    </message>
    <message>
        <source>On battery</source>
        <translation>Auf Batterie</translation>
    </message>
    <message>
        <source>Battery test</source>
        <translation>Batterietest</translation>
    </message>
    <message>
        <source>On bypass</source>
        <translation>Auf Bypass</translation>
    </message>
    <message>
        <source>Output off</source>
        <translation>Ausgang aus</translation>
    </message>
    <message>
        <source>Source unknown</source>
        <translation>Quelle unbekannt</translation>
    </message>
    <message>
        <source>No new data</source>
        <translation>Keine neuen Daten</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>Keine Antwort</translation>
    </message>
    <message>
        <source>Refused</source>
        <translation>Abgelehnt</translation>
    </message>
    <message>
        <source>low</source>
        <translation>schwach</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>leer</translation>
    </message>
    <message>
        <source>Little time left</source>
        <translation>Wenig Zeit übrig</translation>
    </message>
    <message>
        <source>little time left</source>
        <translation>wenig Zeit übrig</translation>
    </message>
    <message>
        <source>Battery at %1 %</source>
        <translation>Batterie bei %1 %</translation>
    </message>
    <message>
        <source>battery at %1 %</source>
        <translation>Batterie bei %1 %</translation>
    </message>
    <message>
        <source>%1 % left</source>
        <translation>noch %1 %</translation>
    </message>
    <message>
        <source>Load %1 %</source>
        <translation>Last %1 %</translation>
    </message>
    <message>
        <source>load %1 %</source>
        <translation>Last %1 %</translation>
    </message>
    <message>
        <source>Alarm %1</source>
        <translation>Alarm %1</translation>
    </message>
    <message>
        <source>Battery at %1 °C</source>
        <translation>Batterie bei %1 °C</translation>
    </message>
    <message>
        <source>battery at %1 °C</source>
        <translation>Batterie bei %1 °C</translation>
    </message>
</context>
<context>
    <name>Viewer</name>
    <message>
        <source>mode = viewer needs the PostgreSQL database that the collectors write (store = postgresql://USER@HOST/DATABASE)</source>
        <translation>mode = viewer braucht die PostgreSQL-Datenbank, die die Sammler schreiben (store = postgresql://USER@HOST/DATABASE)</translation>
    </message>
    <message>
        <source>The collector of %1 has been silent since %2.</source>
        <translation>Der Sammler von %1 schweigt seit %2.</translation>
    </message>
    <message>
        <source>this device</source>
        <translation>dieses Gerät</translation>
    </message>
    <message>
        <source>The shared store has not answered since %1.</source>
        <translation>Der gemeinsame Speicher hat seit %1 nicht geantwortet.</translation>
    </message>
</context>
<context>
    <name>ViewerLine</name>
    <message>
        <source>one without a name</source>
        <translation>einer ohne Namen</translation>
    </message>
    <message>
        <source>%1 for %2</source>
        <translation>%1 seit %2</translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>%n weiterer</numerusform>
            <numerusform>%n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 collectors silent: %3</source>
        <translation>%1 von %2 Sammlern schweigen: %3</translation>
    </message>
    <message>
        <source>The shared store is not reached: %1</source>
        <translation>Der gemeinsame Speicher ist nicht erreichbar: %1</translation>
    </message>
    <message>
        <source>No collector has written into the shared store yet.</source>
        <translation>Noch kein Sammler hat in den gemeinsamen Speicher geschrieben.</translation>
    </message>
    <message>
        <source>Viewer of one collector; its word is at most %1 old</source>
        <translation>Betrachter eines Sammlers; sein Wort ist höchstens %1 alt</translation>
    </message>
    <message>
        <source>Viewer of %1 collectors; their word is at most %2 old</source>
        <translation>Betrachter von %1 Sammlern; ihr Wort ist höchstens %2 alt</translation>
    </message>
    <message>
        <source>Waiting for the shared store</source>
        <translation>Wartet auf den gemeinsamen Speicher</translation>
    </message>
</context>
<context>
    <name>WatchList</name>
    <message>
        <source>Device added</source>
        <translation>Gerät hinzugefügt</translation>
    </message>
    <message>
        <source>Device changed</source>
        <translation>Gerät geändert</translation>
    </message>
    <message>
        <source>Device changed, was &quot;%1&quot;</source>
        <translation>Gerät geändert, hieß &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Device removed</source>
        <translation>Gerät entfernt</translation>
    </message>
    <message>
        <source>there is no such place in the list of devices</source>
        <translation>diesen Platz gibt es in der Geräteliste nicht</translation>
    </message>
    <message>
        <source>%1 was changed by another program and has faults now (line %2: %3); mend it with a text editor first</source>
        <translation>%1 wurde von einem anderen Programm geändert und hat jetzt Fehler (Zeile %2: %3); zuerst mit einem Texteditor berichtigen</translation>
    </message>
    <message>
        <source>%1 was changed by another program and has been read again. Nothing else was changed; look at the devices and repeat the change</source>
        <translation>%1 wurde von einem anderen Programm geändert und neu eingelesen. Sonst wurde nichts geändert; die Geräte ansehen und die Änderung wiederholen</translation>
    </message>
</context>
<context>
    <name>WebhookChannel</name>
    <message>
        <source>it answered with status %1</source>
        <translation>er antwortete mit Status %1</translation>
    </message>
    <message>
        <source>no answer in time</source>
        <translation>keine rechtzeitige Antwort</translation>
    </message>
    <message>
        <source>connection failed (%1)</source>
        <translation>Verbindung fehlgeschlagen (%1)</translation>
    </message>
    <message>
        <source>The webhook at %1 did not take a notification: %2.</source>
        <translation>Der Webhook bei %1 nahm eine Benachrichtigung nicht an: %2.</translation>
    </message>
    <message>
        <source>The webhook at %1 takes nothing: %2 notifications wait for it.</source>
        <translation>Der Webhook bei %1 nimmt nichts an: %2 Benachrichtigungen warten auf ihn.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>--collector takes its devices from the configuration and no further arguments</source>
        <translation>--collector nimmt seine Geräte aus der Konfiguration und keine weiteren Argumente</translation>
    </message>
</context>
</TS>
