<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
<context>
    <name>AddOperator</name>
    <message>
        <source>not enough memory to hash the password</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AddressRange</name>
    <message>
        <source>Enter a range as 10.0.0.0/24, 10.0.0.5-10.0.0.60 or 10.0.0.5-60.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The range has %1 addresses; at most %2 are asked at a time.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Attention</name>
    <message numerus="yes">
        <source>%n UPS(es), none needs attention</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n UPS(es) need attention</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CheckConfig</name>
    <message>
        <source>there is no file %1; the defaults apply</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CloseGuard</name>
    <message>
        <source>%1: %2, sent at %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Commands under way</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close while commands have no result yet?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1

A command that was sent is not taken back by closing. It may be left half-done: sent, but not followed to its end, so that its result stays unknown; a command that takes several steps may stop between them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CommandChannel</name>
    <message>
        <source>The command for notifications is too slow: %1 wait for it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The command for notifications was ended: it crashed or ran longer than %1 s.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The command for notifications failed with exit code %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The command for notifications cannot be started: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CommandDesk</name>
    <message>
        <source>Nobody who may command this device is logged in.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 may look, but not command: that takes level %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown command %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nobody could be asked whether load may lose power.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was sent.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The device was removed or changed before it answered.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The device was removed or changed; nothing was sent.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CommandTerms</name>
    <message>
        <source>%1 min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the whole UPS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>output</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 off at once</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 off within %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 off in %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>output off at once, and on again after the UPS&apos;s own time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>output off at once for %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 for %2 min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (or by the UPS&apos;s own times, where these are fixed)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 W</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 kW</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>how much load loses power is not known</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of load lose power</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2; %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>restart, %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ConfigDocument</name>
    <message>
        <source>%1; the line is skipped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1; the section is skipped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[%1] stands already in line %2; this section is skipped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>and more; further faults are not listed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>stands before the first [section]; the line is skipped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 stands already in line %2; the line is skipped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the section has more than %1 keys; the line is skipped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not written because it has faults (line %2: %3); mend it with a text editor first</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not written because it was changed by another program; read it again and repeat the change</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ConfigKeys</name>
    <message>
        <source>&amp;Poll every</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery &amp;low below</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery &amp;critical below</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Little time left &amp;below</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;High load above</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery too &amp;warm above</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log operators out &amp;after</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Them&amp;e</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Light</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lan&amp;guage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Motion</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flows move</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flows stand</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keep secrets in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the desktop&apos;s keychain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a file that only you can read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Kept in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This &amp;desk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>records</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>does not record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Encryption</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>always</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>always with a password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>never</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Authorities</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep every &amp;poll for</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;minutes for</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;quarters of an hour and the journal for</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>from warnings on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>from alarms on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>when critical</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a time like 22:00</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Desktop notifications</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>with so&amp;und</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quiet from</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;run it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Webhook</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an address that begins with https://</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>t&amp;ell it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Serve &amp;metrics at</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>sha256: and the 64 hexadecimal digits of a certificate&apos;s fingerprint</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a whole number from %1 to %2 %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>yes or no</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a text of at most %1 characters</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ConfigLine</name>
    <message>
        <source>the quoted text does not end, or holds an escape other than \&quot; \\ \n \t \uXXXX</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a section looks like [type] or [type &quot;name&quot;]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>only a comment may follow the closing bracket</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>neither a [section] nor key = value nor a # comment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>only a comment may follow the closing quote</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>longer than %1 bytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>holds control characters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is not UTF-8 text</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ConfigReader</name>
    <message>
        <source>a device or operator needs a name, as in [device &quot;Rack 3&quot;]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the name is longer than %1 characters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the name holds control characters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the name starts or ends with a blank</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is %2; %3 is used</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>charge-critical is above charge-low; %1 is used for both</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1; the section is skipped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown section &quot;%1&quot;; it is not used. Known are %2, operator and device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>section %1 takes no name; it is not used</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not used: secrets do not belong in this file but in the keychain, or in the file that [secrets] store = file stands for</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown key &quot;%1&quot;; it is not used. Known are %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the device has no address; it is left out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1; the device is left out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown quantity &quot;%1&quot;; it is not used. Known are %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is a factor above 0, as 0.1; 1 is used</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the operator has no level; 0 is used</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no valid hash; the operator is left out. Set the password with upsdesk add-operator</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ControlNotice</name>
    <message>
        <source>Log in…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Commands are disabled. %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DeskConfig</name>
    <message>
        <source>there is no device &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is a device &quot;%1&quot; already</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>others may read or write %1, and it holds password hashes; chmod 600 ends that</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no such place in the list of devices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no operator &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not written because it has faults (line %2: %3); mend it with a text editor first</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DeskHistory</name>
    <message>
        <source>Nothing is recorded: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DeskMenu</name>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;All devices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Journal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Filter the list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device &amp;list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Events</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F&amp;ull screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Test connection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Poll now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Commands</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Replay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cop&amp;y values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where the &amp;configuration is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About upsdesk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As the &amp;system</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DesktopChannel</name>
    <message>
        <source>since %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The desktop shows no notifications: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Device</name>
    <message>
        <source>There has been no new data for a while.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The poll was not answered in time.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DeviceActions</name>
    <message>
        <source>A&amp;dd…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add &amp;several…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Remove…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move &amp;up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move d&amp;own</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The device is no longer in the list.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove a device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove &quot;%1&quot; from the list of devices?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its settings and secrets are deleted. What was recorded of it stays.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is not in the configuration; the list loses it until the next start.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DeviceAddress</name>
    <message>
        <source>&quot;%1&quot; is not one of %2 for %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>user and password of a NUT server belong in the configuration, not in the address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a NUT address looks like nut://HOST[:PORT]/UPS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown option &quot;%1&quot;; known are %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SNMP secrets belong in the configuration, not in the address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SNMPv3 needs a user: snmp://USER@HOST?version=3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an address starts with sim:, nut:// or snmp://</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no valid host or port in the address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a port lies between 1 and 65535</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DeviceAdvanced</name>
    <message>
        <source>Answer &amp;within</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Retries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Shutdown delay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Off d&amp;uring a restart</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shut down the w&amp;hole UPS, not its output alone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For a device that is wrong by a power of ten; empty means 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Correction &amp;factors</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DeviceDialog</name>
    <message>
        <source>Network UPS Tools</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SNMP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Simulator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>site or room</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nut://HOST/UPS, snmp://COMMUNITY@HOST or sim:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The address in one line; paste one here to fill the fields</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Na&amp;me</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Poll &amp;every</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Con&amp;nection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A&amp;dvanced</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is a device &quot;%1&quot; already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop &amp;test</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Asking %1 …</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Test connection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server looks at user and password only when a command is sent.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DeviceFacts</name>
    <message>
        <source>Battery test</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery discharging</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery low</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery depleted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mains lost, on battery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On bypass</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DeviceHeading</name>
    <message>
        <source>recorded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DeviceHistory</name>
    <message>
        <source>Nothing is stored of this device.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DeviceListModel</name>
    <message>
        <source>%1 critical</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 alarm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 notice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 normal</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DeviceName</name>
    <message>
        <source>UPS</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DevicePage</name>
    <message>
        <source>Energy flow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alarms</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Detail</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Control</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Charts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>History</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DeviceSettings</name>
    <message>
        <source>Simulator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Simulator, %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DeviceSnapshot</name>
    <message>
        <source>Battery fault</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery powered</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery low</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery EOD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Temperature overrun MAX-value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Input fault</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output fault</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load overrun MAX-value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bypass powered</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bypass fault</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The UPS output has shutdown as requested</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The entire UPS has shutdown as commanded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Charger subsystem fault</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The output of the UPS is in the off state</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The UPS system is in the off state</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fan fault</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fuse fault</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UPS fault</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last diagnostic test failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Communication between agent and UPS fault</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UPS is awaiting the return of input power</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UPS shutdown after delay countdown is underway</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The UPS will turn off power to the load</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A test is in progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>battery charge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>remaining time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>battery voltage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>battery current</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>battery temperature</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>time on battery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>number of mains failures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>rated input voltage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>rated input frequency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>rated output voltage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>rated output frequency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>rated apparent power</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>rated active power</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>input voltage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>input current</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>input frequency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>input power</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>output voltage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>output current</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>output frequency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>output power</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>load</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>bypass voltage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>bypass current</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>bypass frequency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>bypass power</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of line %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> and </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not reported, shown as 0: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Split phase: line 1 of 2 is shown.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DeviceSummary</name>
    <message>
        <source>%1 %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>never any data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>last data %1 ago</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>connecting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>live, now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>live, %1 ago</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no new data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no answer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>refused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>since %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lasts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Live: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EventDock</name>
    <message>
        <source>Events</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EventLog</name>
    <message>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Operator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Event</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Message</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FileSecretStore</name>
    <message>
        <source>%1 is not used because others may read or write it; &quot;chmod 600&quot; ends that, then change the secrets in it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not used because it is damaged; mend it, or move it away and enter the secrets again</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FindDevicesDialog</name>
    <message>
        <source>&amp;Tick all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add several devices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UPSes of a NUT server</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SNMP agents in a range of addresses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>for commands only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Host</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>U&amp;ser</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Devices found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What it is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>site or room, for all that are added</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Look for</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Asking %1 …</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Asked %1 of %2 addresses …</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nobody answered.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Found: %1. Tick what is to be added.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Each device needs a name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is a device &quot;%1&quot; already.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FirstRunStrip</name>
    <message>
        <source>Add your &amp;UPS…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no device yet - add your UPS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is a simulation - add your UPS</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HelpDialogs</name>
    <message>
        <source>Back to all devices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In the list: add, edit, remove a device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In the list: move a device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In the history: earlier, later; by a whole length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In the history: less, more time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In the history: the values of another row</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In the history: the oldest, the present</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where the configuration is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Devices, thresholds and operators stand in
%1

&quot;upsdesk check-config&quot; says what is wrong in it. How the window was left stands in
%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About upsdesk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>upsdesk %1
Watches uninterruptible power supplies.

Qt %2
%3 %4</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HistoryCharts</name>
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
        <source>Battery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Charge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time left on battery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery temperature</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery voltage</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HistoryPage</name>
    <message>
        <source>1 h</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>6 h</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Week</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Month</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Year</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Earlier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left, Page Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Later</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Right, Page Down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show more time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show less time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Follow the present</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Charts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Which charts are shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save what is shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As &amp;CSV …</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As &amp;picture …</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no history here: this desk records none, or its store is not open yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loading …</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The history cannot be read: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is stored of this device. The simulator is recorded only where it stands in the configuration.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is stored of this device yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 for %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is stored of this time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only the latest entries of the journal are shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>on battery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>on bypass</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not reachable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>▴ journal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the history</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saving …</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not saved: %1 cannot be written</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HistorySpool</name>
    <message>
        <source>cannot make the folder %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot write in the folder %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the spool in %1 is full</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot write the spool in %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HistoryStore</name>
    <message>
        <source>the driver %1 of QtSql is not installed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the history was written by a newer upsdesk; update this one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no history yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the history is of an older upsdesk; start the desk once so that it brings it up to date</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HistoryWriter</name>
    <message>
        <source>The history cannot be written: %1. Events are kept on disk until it can.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The history is written again; nothing is missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The history is written again; %1 samples are missing.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HostAddresses</name>
    <message>
        <source>There is no host named %1; check the address.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The name %1 could not be looked up; check the network and its name server.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Too many names are being looked up; check the network&apos;s name server.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HostPort</name>
    <message>
        <source>Host</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>name or IP address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Port</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Port</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Range of addresses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>10.0.0.0/24 or 10.0.0.5-60</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the name or the IP address of the host.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither a host name nor an IP address.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>JournalModel</name>
    <message>
        <source>Onset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Severity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Entry</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Message</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Operator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Acknowledged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Condition</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alarm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Outage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bypass</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Link</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Store</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clock</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Desk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Normal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Notice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Critical</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 d %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>still so</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>lowest charge %1 %</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>JournalPage</name>
    <message>
        <source>Any time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last hour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last week</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last year</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Still s&amp;o</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not acknowled&amp;ged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ack&amp;nowledge …</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Export …</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Replay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Devi&amp;ce</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>T&amp;ime</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Severity from</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>in entry, message or note</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What has begun and is not over: the alarms of the desk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Te&amp;xt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Journal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 entries and more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 entries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This desk keeps no history.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Acknowledge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Note (may be empty)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export the journal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CSV files (*.csv);;All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The journal is in %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The journal was not exported: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KeychainSecretStore</name>
    <message>
        <source>The desktop&apos;s keychain cannot be used: %1. Start a keychain service, for example GNOME Keyring or KWallet, and log in again; or write &quot;store = file&quot; under [secrets] in the configuration to keep secrets in a file that only you can read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Access to the desktop&apos;s keychain was denied; unlock it and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it gives no reason</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it does not answer</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LoginDialog</name>
    <message>
        <source>Log in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no operators yet. Add one in the settings, under Operators.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checking …</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Theme</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Metrics</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>upsdesk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is a wall display: it commands nothing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;All devices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2: sent, waiting for the result</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Journal - upsdesk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replay: %1 - upsdesk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 - upsdesk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(%1) %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: its collector polls it, this desk does not.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: testing the connection …</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Logged in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Logged out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>level %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>done</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MetricsServer</name>
    <message>
        <source>is no numeric address with a port, like 127.0.0.1:9199</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Metrics are not served: &quot;%1&quot; %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Metrics are not served: nothing can listen at %1. Another program may do so already.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NearestName</name>
    <message>
        <source>; did you mean &quot;%1&quot;?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Notifier</name>
    <message>
        <source>Desktop notifications</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Webhook</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>upsdesk: a trial</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Notifications arrive here.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NotifyTests</name>
    <message>
        <source>Test desktop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Test command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Test webhook</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: it is not set up.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the trial was delivered.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: trying ...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NutDevices</name>
    <message>
        <source>The server has no UPS.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server has several devices; put the name of one at the end of the address: %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NutFields</name>
    <message>
        <source>&amp;List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the only one of the server</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Asks the server which UPSes it has</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>for commands only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Host</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;UPS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>U&amp;ser</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the user that the password is for.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Asking %1 …</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server has no UPS.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server&apos;s UPSes: %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NutLine</name>
    <message>
        <source>The password is not sent to %1, because the link is %2 Give the device the server&apos;s certificate (fingerprint) or its authority (ca-file), or allow plain text with tls = off.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not trusted: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>in plain text.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 does not answer; check that the server is on and that no firewall is in between.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 went on in plain text after it had offered encryption: somebody may be in between.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 offers no encryption, and the configuration requires it (tls = required, or a certificate to trust).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has offered encryption before and offers none now: somebody may be in between. If the server was changed on purpose, set tls = off.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no certificate to be read in %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be trusted: %2 Its certificate is %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 offers encryption, but the two sides cannot agree on it; check the certificate of the server.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 offers encryption, but this machine has no TLS library.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 closed the connection.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 refuses the connection: no NUT server runs there, or it does not listen on this address.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No connection to %1: too many open files.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No connection to %1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No name server answered for %1 in time; check the network.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 accepts the connection but does not answer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NutOrder</name>
    <message>
        <source>Commands need an account of the server; add its user and password in the configuration. Nothing was sent.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This UPS offers no such command; looked for %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Look at the readings before sending it again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Whether %2 was carried out is not known; it is not sent again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The connection broke before the server told how %1 ended.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server took %1 but did not tell how it ended.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server has handed %1 on to its driver, but cannot tell how it ended; look at the readings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was carried out; the minutes of standby cannot be set on this UPS, it comes back as its own settings say.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was carried out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2 was not sent.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Nothing was sent.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NutPoll</name>
    <message>
        <source>The link to the server is in plain text: others on the network can read and change what it says.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The link to the server is encrypted, but not trusted: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NutProtocol</name>
    <message>
        <source>The server answers, but its driver has brought no new data for a while; check the cable between server and UPS.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server answers, but the driver of this UPS is not running; start it on the server.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server denies access: wrong password or too few rights. Check user and password in the configuration, and the user&apos;s actions and instcmds in upsd.users on the server.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server knows no UPS of this name; compare the address with the server&apos;s list of devices.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server wants a user and a password; add them in the configuration.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server wants a password; add it in the configuration.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server does not accept the user; correct it in the configuration.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server does not accept the password; correct it in the configuration.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The UPS does not support this command.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The UPS does not have this setting.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The UPS does not let this setting be changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The value is too long for this setting.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The UPS does not accept this value.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server or its driver does not accept the request.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server could not hand the command to its driver.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server could not hand the setting to its driver.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The UPS or its driver reports that it failed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The driver of this UPS does not know this command or setting.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What %1 answers is not the language of a NUT server; check host and port.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server refuses the request without saying why.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server refuses the request: %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NutReading</name>
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
        <source>voltage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>current</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>power</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>load</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 voltages are line to line.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: one value for all lines (%2), shown in the first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery depleted: derived from a charge of 0 %.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The driver has just started and has no data yet; the source of power is unknown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The UPS does not say where its power comes from.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Humidity %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NutTrust</name>
    <message>
        <source>%1 port %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the certificate is not the one that the configuration names.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the server shows no certificate.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NutTrustFields</name>
    <message>
        <source>Where the server offers it; commands only when trusted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Always, and trusted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Off: passwords go in plain text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>P&amp;in it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>those of the system; or a PEM file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none pinned; the connection test shows it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trust this certificate, and no other, from now on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Encryption</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Authorities</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Fingerprint</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file of authorities cannot be read: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A fingerprint is sha256: and 64 hexadecimal digits.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, trusted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, not trusted</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OperatorBar</name>
    <message>
        <source>%1, level %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nobody is logged in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log in</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OperatorDesk</name>
    <message>
        <source>&amp;Settings…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log-in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no operator of the name that was given.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The password was wrong.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>done</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OperatorDialog</name>
    <message>
        <source>Add an operator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Operator %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0 may look; 1 and above may command and change the desk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>kept</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Level (0 looks, from 1 on commands)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Once &amp;more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter a name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is an operator &quot;%1&quot; already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The two passwords differ.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is not enough memory to hash the password.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hashing the password …</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OperatorEdits</name>
    <message>
        <source>one operator of level %1 or above must remain, or nobody could change the desk any more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a level lies between %1 and %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a password has at least %1 characters</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OperatorSession</name>
    <message>
        <source>%1 may look, but not change: that takes level %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log in first: devices and settings are changed by operators.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Too many failed attempts. Try again in %1 s.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name or password is wrong.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OperatorsPage</name>
    <message>
        <source>&amp;Change…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Remove…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Operators</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Level</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>While there is no operator, everybody may change the desk and nobody may command a real UPS. Changes here are kept at once.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Operator %1 added, level %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Operator %1 changed, level %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove an operator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the operator &quot;%1&quot;?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Who is logged in by this name is logged out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Operator %1 removed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OutageTable</name>
    <message>
        <source>Outages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Double-click or Enter shows the outage in the charts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mains lost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mains back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lowest charge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>still on battery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OverviewPage</name>
    <message>
        <source>All devices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing matches “%1”.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PostgresStore</name>
    <message>
        <source>%1 does not let this user in; look at the password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: there is no such database; create it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the user may not do this; look at its rights</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is read-only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the disk of %1 is full</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has too many connections</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: a table is locked by another program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is shutting down or starting up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PrivateFile</name>
    <message>
        <source>%1 is not a file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is longer than %2 bytes; it is not read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot make the folder %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not written: another upsdesk is writing it, or its folder is read-only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Recorder</name>
    <message>
        <source>Recording ended</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recording began</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ended while nothing was recorded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ended while the device could not be reached.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The device is no longer watched.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The desk&apos;s clock was set forward by %1 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The desk&apos;s clock was set back by %1 s</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RelayConnector</name>
    <message>
        <source>This desk is a viewer: it polls nothing, the collector of %1 does.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This desk is a viewer and has no way to the device: commands are given at a desk that polls it itself.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ReplayBar</name>
    <message>
        <source>Back to &amp;live</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading …</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>REPLAY</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To the reading before</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To the next reading</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1x</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replay: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>stored since %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ReplayDevice</name>
    <message>
        <source>It was recorded like this.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The past takes no commands.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ReplayPage</name>
    <message>
        <source>This is a replay: the past takes no commands. Go back to live.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ReplayPlayer</name>
    <message>
        <source>This desk keeps no history.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is stored of %1 yet.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ResultBanner</name>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ScaleTable</name>
    <message>
        <source>Quantity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Factor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Correction factors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The factor of %1 is a number above 0, as 0.1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ScenarioPlayer</name>
    <message>
        <source>Simulated day, %1x</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Simulated day, %1x: the battery lives so much faster; what is ordered takes its own time.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SecretEdit</name>
    <message>
        <source>kept</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SecretKeeper</name>
    <message>
        <source>A secret was not kept: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>&amp;General</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A device may have an interval of its own; its dialog says which.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Thresholds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From here on a live device is conspicuous in list, tiles and heading. Its own alarms count whatever stands here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Secrets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Passwords and keys of devices. Where another place is chosen, those that the desk knows move there. The file is not encrypted: this user and the administrator of this machine can read it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Histor&amp;y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In a file of yours, or where it says: sqlite:/PATH or postgresql://USER@HOST/DATABASE, the latter encrypted as chosen and checked against the authorities in that file, or those of the system. Followed from the next start on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Notifications</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Power failures are told at once, anything else after it has held for one more poll. In quiet hours the desktop is told only what is critical. The command is a program with its arguments; what happened is in its environment (UPSDESK_TEXT and others). Metrics are served at a port of this machine, or at an address like 127.0.0.1:9199.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Operators</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SidePanel</name>
    <message>
        <source>&amp;Worst first</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;All devices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter by name, address or state</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Devices</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SimulatedUps</name>
    <message>
        <source>The battery is being tested for %1 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The battery is being discharged until it is low</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The test has ended</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The output goes off in %1 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The output goes off in %1 s, for %2 min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The output is off for %1 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The output is on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This unit does not know the command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The delay is out of range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The time of standby is out of range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The duration is out of range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No test is running</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The output is on already</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no mains and the battery is low</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The output is off already</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A shutdown is under way already</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The output is off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A test is running already</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The battery carries the load</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The load is on bypass</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A shutdown is under way</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The output is overloaded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The battery is not charged enough</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SimulatorConnector</name>
    <message>
        <source>The simulator answers, the simulated UPS behind it is silent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The simulated UPS does not answer</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SimulatorFields</name>
    <message>
        <source>Scena&amp;rio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The simulator has no such scenario; choose one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Simulator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Simulator %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SimulatorScenarios</name>
    <message>
        <source>simulated day, 60x</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mains supply, battery full</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mains failure, the battery carries the load</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mains failure, battery low and soon empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mains are back, the battery recharges</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the load is on bypass</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>too much load, then transfer to bypass</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>battery self-test, repeated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>answers at first, then falls silent for a while</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the link comes and goes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Single-phase UPS: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Three-phase UPS: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown scenario &quot;%1&quot;; known are %2, and sim: alone for the whole day%3</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SnmpCommand</name>
    <message>
        <source>The agent does not answer; nothing was set.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1. The command was sent before; look at the readings before sending it again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The agent fell silent after the command was sent; it is not known whether the device carried it out. It was not sent again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A test is already in progress.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No test is in progress.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The device has no test objects.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The shutdown delay of %1 s is not shorter than the standby.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The device has no object for this command (%1).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No answer to the first step of the command; the shutdown was not sent.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No answer to the command, and the device shows no effect of it. It was not sent again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The agent accepted the command, but the output was on before: nothing shows whether the device followed it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The agent accepted the command, but the output was off before: nothing shows whether the device followed it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The agent accepted the command, but the device shows no effect of it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The test has ended.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The test has begun.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The test has ended. %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The test failed. %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The test was aborted. %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The output is on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The output is off.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The countdown is running, %1 s left.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The device does not offer this command (%1 cannot be set).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The agent does not let %1 be set: the %2 needs write access.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The device does not accept the value for %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The device cannot do this now (SNMP error %1 at %2).</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SnmpFields</name>
    <message>
        <source>No authentication, no encryption</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Authentication, no encryption</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Authentication and encryption</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the agent&apos;s own</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Host</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Comm&amp;unity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;User</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Security</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Authent&amp;ication</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Authentication secret</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Encr&amp;yption</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Encryption secret</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Conte&amp;xt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the user of SNMPv3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A secret of SNMPv3 has at least %1 characters.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SnmpPeer</name>
    <message>
        <source>The name server does not answer for %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>user &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>community</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SnmpPoll</name>
    <message>
        <source>not a UPS: %1 answers SNMP but has no UPS-MIB objects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The agent at %1 answers, but has lost contact with its UPS; what it repeats is not taken for new.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 stopped answering, or answers too slowly: a poll did not end within %2 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Silent for %1 s: wrong user or context, an agent without SNMPv3, or nothing at %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Silent for %1 s: wrong community, an agent without this SNMP version, or nothing at %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SnmpPort</name>
    <message>
        <source>upsdesk has as many files open as this computer allows it (%1; see &quot;ulimit -n&quot;)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SnmpReading</name>
    <message>
        <source>Alarms counted, but not named: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SnmpSession</name>
    <message>
        <source>No SNMP session to %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot send to %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The request cannot be made: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wrong authentication secret or protocol: %1 refuses the digest of user &quot;%2&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown user &quot;%1&quot; at %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 does not allow user &quot;%2&quot; the level %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wrong privacy secret or protocol: %1 cannot decrypt what user &quot;%2&quot; sends</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 refuses the SNMPv3 message: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 answers, but not what user &quot;%2&quot; sends: wrong privacy secret or protocol, or unknown context</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SnmpUsers</name>
    <message>
        <source>SNMPv3 secrets have at least %1 characters; the %2 secret is shorter or missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>authentication</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>privacy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The SNMP library of this computer has no authentication with &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The SNMP library cannot make keys of these secrets.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The SNMP library of this computer has no privacy with &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SqliteStore</name>
    <message>
        <source>%1 is locked by another program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 may not be written; look at its permissions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be read or written; the disk is at fault</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is damaged; move it away and a new one is begun</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the disk of %1 is full</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be opened; look at its folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no history; move it away</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no history yet: %1 does not exist</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot make the folder %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StoreAddress</name>
    <message>
        <source>store is sqlite:PATH or postgresql://USER@HOST[:PORT]/DATABASE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a password does not belong in the store&apos;s address but in the keychain, or in UPSDESK_HISTORY_SECRET</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the path of the store begins with /: sqlite:/PATH</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TimeText</name>
    <message>
        <source>%1 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 min %2 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 days %2 h</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TrayIcon</name>
    <message>
        <source>&amp;Show the desk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Mute sounds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UpsCommand</name>
    <message>
        <source>Self-test</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discharge test to low voltage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel test</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shutdown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Standby</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wake up from standby</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restart</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Standby takes a number of minutes from 1 to %1; nothing was sent.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The event %1 is no command that this desk carries out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The command %1 takes no value.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown command &quot;%1&quot;; known are %2%3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 for %2 min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>refused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not offered by this device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no answer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>sent, result unknown</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Urgency</name>
    <message>
        <source>Connecting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On mains</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On mains, boosting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On mains, reducing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On battery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery test</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On bypass</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Source unknown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No new data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No answer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>low</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Little time left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>little time left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery at %1 %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>battery at %1 %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 % left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load %1 %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>load %1 %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery at %1 ଌ</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>battery at %1 ଌ</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alarm %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Viewer</name>
    <message>
        <source>mode = viewer needs the PostgreSQL database that the collectors write (store = postgresql://USER@HOST/DATABASE)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The collector of %1 has been silent since %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The shared store has not answered since %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ViewerLine</name>
    <message>
        <source>one without a name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 for %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 collectors silent: %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The shared store is not reached: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No collector has written into the shared store yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Viewer of one collector; its word is at most %1 old</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Viewer of %1 collectors; their word is at most %2 old</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting for the shared store</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WatchList</name>
    <message>
        <source>Device added</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device changed, was &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device removed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no such place in the list of devices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was changed by another program and has faults now (line %2: %3); mend it with a text editor first</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was changed by another program and has been read again. Nothing else was changed; look at the devices and repeat the change</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WebhookChannel</name>
    <message>
        <source>it answered with status %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no answer in time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>connection failed (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The webhook at %1 did not take a notification: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The webhook at %1 takes nothing: %2 notifications wait for it.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Wall display: all devices, full screen, no commands.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dark theme.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The configuration has faults and is used without them: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--collector takes its devices from the configuration and no further arguments</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
