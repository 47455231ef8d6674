<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
<context>
    <name>AddOperator</name>
    <message>
        <source>not enough memory to hash the password</source>
        <translation>no hay memoria suficiente para cifrar la contraseña</translation>
    </message>
</context>
<context>
    <name>AddressRange</name>
    <message>
        <source>Enter a range as 10.0.0.0/24, 10.0.0.5-10.0.0.60 or 10.0.0.5-60.</source>
        <translation>Introduzca un rango como 10.0.0.0/24, 10.0.0.5-10.0.0.60 o 10.0.0.5-60.</translation>
    </message>
    <message>
        <source>The range has %1 addresses; at most %2 are asked at a time.</source>
        <translation>El rango tiene %1 direcciones; se consultan como máximo %2 a la vez.</translation>
    </message>
</context>
<context>
    <name>Attention</name>
    <message numerus="yes">
        <source>%n UPS(es), none needs attention</source>
        <translation>
            <numerusform>%n SAI, ninguno necesita atención</numerusform>
            <numerusform>%n SAI, ninguno necesita atención</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n UPS(es) need attention</source>
        <translation>
            <numerusform>%1 de %n SAI necesita atención</numerusform>
            <numerusform>%1 de %n SAI necesitan atención</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CheckConfig</name>
    <message>
        <source>there is no file %1; the defaults apply</source>
        <translation>no existe el archivo %1; se aplican los valores por defecto</translation>
    </message>
</context>
<context>
    <name>CloseGuard</name>
    <message>
        <source>%1: %2, sent at %3</source>
        <translation>%1: %2, enviada a las %3</translation>
    </message>
    <message>
        <source>Commands under way</source>
        <translation>Órdenes en curso</translation>
    </message>
    <message>
        <source>Close while commands have no result yet?</source>
        <translation>¿Cerrar mientras hay órdenes sin resultado?</translation>
    </message>
    <message>
        <source>%1

A command that was sent is not taken back by closing. It may be left half-done: sent, but not followed to its end, so that its result stays unknown; a command that takes several steps may stop between them.</source>
        <translation>%1

Cerrar no anula una orden enviada. Puede quedar a medias: enviada, pero no seguida hasta el final, de modo que su resultado queda desconocido; una orden de varios pasos puede detenerse entre ellos.</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>&amp;Cerrar</translation>
    </message>
</context>
<context>
    <name>CommandChannel</name>
    <message>
        <source>The command for notifications is too slow: %1 wait for it.</source>
        <translation>La orden de notificación es demasiado lenta: %1 esperan por ella.</translation>
    </message>
    <message>
        <source>The command for notifications was ended: it crashed or ran longer than %1 s.</source>
        <translation>La orden de notificación se terminó: falló o duró más de %1 s.</translation>
    </message>
    <message>
        <source>The command for notifications failed with exit code %1.</source>
        <translation>La orden de notificación falló con el código de salida %1.</translation>
    </message>
    <message>
        <source>The command for notifications cannot be started: %1</source>
        <translation>La orden de notificación no se puede iniciar: %1</translation>
    </message>
</context>
<context>
    <name>CommandDesk</name>
    <message>
        <source>Nobody who may command this device is logged in.</source>
        <translation>No ha iniciado sesión nadie que pueda dar órdenes a este equipo.</translation>
    </message>
    <message>
        <source>%1 may look, but not command: that takes level %2.</source>
        <translation>%1 puede mirar, pero no dar órdenes: hace falta el nivel %2.</translation>
    </message>
    <message>
        <source>Unknown command %1</source>
        <translation>Orden desconocida %1</translation>
    </message>
    <message>
        <source>Nobody could be asked whether load may lose power.</source>
        <translation>No había nadie a quien preguntar si la carga puede perder la alimentación.</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>cancelado</translation>
    </message>
    <message>
        <source>Nothing was sent.</source>
        <translation>No se envió nada.</translation>
    </message>
    <message>
        <source>The device was removed or changed before it answered.</source>
        <translation>El equipo se quitó o cambió antes de responder.</translation>
    </message>
    <message>
        <source>The device was removed or changed; nothing was sent.</source>
        <translation>El equipo se quitó o cambió; no se envió nada.</translation>
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
        <translation>el SAI completo</translation>
    </message>
    <message>
        <source>output</source>
        <translation>salida</translation>
    </message>
    <message>
        <source>%1 off at once</source>
        <translation>%1: apagado inmediato</translation>
    </message>
    <message>
        <source>%1 off within %2</source>
        <translation>%1: apagado en menos de %2</translation>
    </message>
    <message>
        <source>%1 off in %2</source>
        <translation>%1: apagado en %2</translation>
    </message>
    <message>
        <source>output off at once, and on again after the UPS&apos;s own time</source>
        <translation>salida apagada de inmediato, y encendida de nuevo tras el tiempo propio del SAI</translation>
    </message>
    <message>
        <source>output off at once for %1</source>
        <translation>salida apagada de inmediato durante %1</translation>
    </message>
    <message>
        <source>%1 for %2 min</source>
        <translation>%1 durante %2 min</translation>
    </message>
    <message>
        <source>%1 (or by the UPS&apos;s own times, where these are fixed)</source>
        <translation>%1 (o según los tiempos propios del SAI, si son fijos)</translation>
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
        <translation>no se sabe cuánta carga pierde la alimentación</translation>
    </message>
    <message>
        <source>%1 of load lose power</source>
        <translation>%1 de carga pierden la alimentación</translation>
    </message>
    <message>
        <source>%1: %2; %3</source>
        <translation>%1: %2; %3</translation>
    </message>
    <message>
        <source>restart, %1</source>
        <translation>reinicio, %1</translation>
    </message>
</context>
<context>
    <name>ConfigDocument</name>
    <message>
        <source>%1; the line is skipped</source>
        <translation>%1; se omite la línea</translation>
    </message>
    <message>
        <source>%1; the section is skipped</source>
        <translation>%1; se omite la sección</translation>
    </message>
    <message>
        <source>[%1] stands already in line %2; this section is skipped</source>
        <translation>[%1] ya figura en la línea %2; se omite esta sección</translation>
    </message>
    <message>
        <source>and more; further faults are not listed</source>
        <translation>y más; los demás fallos no se enumeran</translation>
    </message>
    <message>
        <source>stands before the first [section]; the line is skipped</source>
        <translation>está antes de la primera [sección]; se omite la línea</translation>
    </message>
    <message>
        <source>%1 stands already in line %2; the line is skipped</source>
        <translation>%1 ya figura en la línea %2; se omite la línea</translation>
    </message>
    <message>
        <source>the section has more than %1 keys; the line is skipped</source>
        <translation>la sección tiene más de %1 claves; se omite la línea</translation>
    </message>
    <message>
        <source>%1 is not written because it has faults (line %2: %3); mend it with a text editor first</source>
        <translation>%1 no se escribe porque tiene fallos (línea %2: %3); corríjalo antes con un editor de texto</translation>
    </message>
    <message>
        <source>%1 is not written because it was changed by another program; read it again and repeat the change</source>
        <translation>%1 no se escribe porque otro programa lo ha cambiado; léalo de nuevo y repita el cambio</translation>
    </message>
</context>
<context>
    <name>ConfigKeys</name>
    <message>
        <source>&amp;Poll every</source>
        <translation>&amp;Consultar cada</translation>
    </message>
    <message>
        <source>Battery &amp;low below</source>
        <translation>Batería &amp;baja por debajo de</translation>
    </message>
    <message>
        <source>Battery &amp;critical below</source>
        <translation>Batería c&amp;rítica por debajo de</translation>
    </message>
    <message>
        <source>Little time left &amp;below</source>
        <translation>Poco &amp;tiempo por debajo de</translation>
    </message>
    <message>
        <source>&amp;High load above</source>
        <translation>Carga &amp;alta por encima de</translation>
    </message>
    <message>
        <source>Battery too &amp;warm above</source>
        <translation>Batería ca&amp;liente por encima de</translation>
    </message>
    <message>
        <source>Log operators out &amp;after</source>
        <translation>Cerrar &amp;sesión tras</translation>
    </message>
    <message>
        <source>Them&amp;e</source>
        <translation>T&amp;ema</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Oscuro</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Como el escritorio</translation>
    </message>
    <message>
        <source>Lan&amp;guage</source>
        <translation>Idi&amp;oma</translation>
    </message>
    <message>
        <source>&amp;Motion</source>
        <translation>&amp;Movimiento</translation>
    </message>
    <message>
        <source>Flows move</source>
        <translation>Los flujos se mueven</translation>
    </message>
    <message>
        <source>Flows stand</source>
        <translation>Los flujos están quietos</translation>
    </message>
    <message>
        <source>&amp;Keep secrets in</source>
        <translation>&amp;Guardar los secretos en</translation>
    </message>
    <message>
        <source>the desktop&apos;s keychain</source>
        <translation>el llavero del escritorio</translation>
    </message>
    <message>
        <source>a file that only you can read</source>
        <translation>un archivo que solo usted puede leer</translation>
    </message>
    <message>
        <source>&amp;Kept in</source>
        <translation>&amp;Guardado en</translation>
    </message>
    <message>
        <source>This &amp;desk</source>
        <translation>Este &amp;puesto</translation>
    </message>
    <message>
        <source>records</source>
        <translation>registra</translation>
    </message>
    <message>
        <source>does not record</source>
        <translation>no registra</translation>
    </message>
    <message>
        <source>&amp;Encryption</source>
        <translation>Ci&amp;frado</translation>
    </message>
    <message>
        <source>always</source>
        <translation>siempre</translation>
    </message>
    <message>
        <source>always with a password</source>
        <translation>siempre con contraseña</translation>
    </message>
    <message>
        <source>never</source>
        <translation>nunca</translation>
    </message>
    <message>
        <source>&amp;Authorities</source>
        <translation>&amp;Autoridades</translation>
    </message>
    <message>
        <source>Keep every &amp;poll for</source>
        <translation>Guardar cada &amp;consulta durante</translation>
    </message>
    <message>
        <source>&amp;minutes for</source>
        <translation>&amp;minutos durante</translation>
    </message>
    <message>
        <source>&amp;quarters of an hour and the journal for</source>
        <translation>&amp;cuartos de hora y diario durante</translation>
    </message>
    <message>
        <source>from warnings on</source>
        <translation>desde avisos</translation>
    </message>
    <message>
        <source>from alarms on</source>
        <translation>desde alarmas</translation>
    </message>
    <message>
        <source>when critical</source>
        <translation>si es crítico</translation>
    </message>
    <message>
        <source>a time like 22:00</source>
        <translation>una hora como 22:00</translation>
    </message>
    <message>
        <source>&amp;Desktop notifications</source>
        <translation>Notificaciones de &amp;escritorio</translation>
    </message>
    <message>
        <source>with so&amp;und</source>
        <translation>con s&amp;onido</translation>
    </message>
    <message>
        <source>&amp;Quiet from</source>
        <translation>&amp;Silencio de</translation>
    </message>
    <message>
        <source>to</source>
        <translation>a</translation>
    </message>
    <message>
        <source>&amp;Command</source>
        <translation>&amp;Orden</translation>
    </message>
    <message>
        <source>&amp;run it</source>
        <translation>e&amp;jecutar</translation>
    </message>
    <message>
        <source>&amp;Webhook</source>
        <translation>&amp;Webhook</translation>
    </message>
    <message>
        <source>an address that begins with https://</source>
        <translation>una dirección que empieza por https://</translation>
    </message>
    <message>
        <source>t&amp;ell it</source>
        <translation>a&amp;visar</translation>
    </message>
    <message>
        <source>Serve &amp;metrics at</source>
        <translation>&amp;Métricas servidas en</translation>
    </message>
    <message>
        <source>sha256: and the 64 hexadecimal digits of a certificate&apos;s fingerprint</source>
        <translation>sha256: y los 64 dígitos hexadecimales de la huella de un certificado</translation>
    </message>
    <message>
        <source>a whole number from %1 to %2 %3</source>
        <translation>un número entero de %1 a %2 %3</translation>
    </message>
    <message>
        <source>yes or no</source>
        <translation>yes o no</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 o %2</translation>
    </message>
    <message>
        <source>a text of at most %1 characters</source>
        <translation>un texto de %1 caracteres como máximo</translation>
    </message>
</context>
<context>
    <name>ConfigLine</name>
    <message>
        <source>the quoted text does not end, or holds an escape other than \&quot; \\ \n \t \uXXXX</source>
        <translation>el texto entre comillas no termina, o contiene un escape distinto de \&quot; \\ \n \t \uXXXX</translation>
    </message>
    <message>
        <source>a section looks like [type] or [type &quot;name&quot;]</source>
        <translation>una sección se escribe [tipo] o [tipo &quot;nombre&quot;]</translation>
    </message>
    <message>
        <source>only a comment may follow the closing bracket</source>
        <translation>tras el corchete de cierre solo puede ir un comentario</translation>
    </message>
    <message>
        <source>neither a [section] nor key = value nor a # comment</source>
        <translation>ni una [sección] ni clave = valor ni un # comentario</translation>
    </message>
    <message>
        <source>only a comment may follow the closing quote</source>
        <translation>tras la comilla de cierre solo puede ir un comentario</translation>
    </message>
    <message>
        <source>longer than %1 bytes</source>
        <translation>más largo que %1 bytes</translation>
    </message>
    <message>
        <source>holds control characters</source>
        <translation>contiene caracteres de control</translation>
    </message>
    <message>
        <source>is not UTF-8 text</source>
        <translation>no es texto UTF-8</translation>
    </message>
</context>
<context>
    <name>ConfigReader</name>
    <message>
        <source>a device or operator needs a name, as in [device &quot;Rack 3&quot;]</source>
        <translation>un equipo u operador necesita un nombre, como en [device &quot;Rack 3&quot;]</translation>
    </message>
    <message>
        <source>the name is longer than %1 characters</source>
        <translation>el nombre supera los %1 caracteres</translation>
    </message>
    <message>
        <source>the name holds control characters</source>
        <translation>el nombre contiene caracteres de control</translation>
    </message>
    <message>
        <source>the name starts or ends with a blank</source>
        <translation>el nombre empieza o termina con un espacio</translation>
    </message>
    <message>
        <source>%1 is %2; %3 is used</source>
        <translation>%1 es %2; se usa %3</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguno</translation>
    </message>
    <message>
        <source>charge-critical is above charge-low; %1 is used for both</source>
        <translation>charge-critical está por encima de charge-low; se usa %1 para ambos</translation>
    </message>
    <message>
        <source>%1; the section is skipped</source>
        <translation>%1; se omite la sección</translation>
    </message>
    <message>
        <source>unknown section &quot;%1&quot;; it is not used. Known are %2, operator and device</source>
        <translation>sección desconocida &quot;%1&quot;; no se usa. Se conocen %2, operator y device</translation>
    </message>
    <message>
        <source>section %1 takes no name; it is not used</source>
        <translation>la sección %1 no lleva nombre; no se usa</translation>
    </message>
    <message>
        <source>%1 is not used: secrets do not belong in this file but in the keychain, or in the file that [secrets] store = file stands for</source>
        <translation>%1 no se usa: los secretos no van en este archivo sino en el llavero, o en el archivo que indica [secrets] store = file</translation>
    </message>
    <message>
        <source>unknown key &quot;%1&quot;; it is not used. Known are %2</source>
        <translation>clave desconocida &quot;%1&quot;; no se usa. Se conocen %2</translation>
    </message>
    <message>
        <source>the device has no address; it is left out</source>
        <translation>el equipo no tiene dirección; se deja fuera</translation>
    </message>
    <message>
        <source>%1; the device is left out</source>
        <translation>%1; el equipo se deja fuera</translation>
    </message>
    <message>
        <source>unknown quantity &quot;%1&quot;; it is not used. Known are %2</source>
        <translation>magnitud desconocida &quot;%1&quot;; no se usa. Se conocen %2</translation>
    </message>
    <message>
        <source>%1 is a factor above 0, as 0.1; 1 is used</source>
        <translation>%1 es un factor mayor que 0, como 0.1; se usa 1</translation>
    </message>
    <message>
        <source>the operator has no level; 0 is used</source>
        <translation>el operador no tiene nivel; se usa 0</translation>
    </message>
    <message>
        <source>no valid hash; the operator is left out. Set the password with upsdesk add-operator</source>
        <translation>no hay un hash válido; el operador se deja fuera. Ponga la contraseña con upsdesk add-operator</translation>
    </message>
</context>
<context>
    <name>ControlNotice</name>
    <message>
        <source>Log in…</source>
        <translation>Iniciar sesión…</translation>
    </message>
    <message>
        <source>Commands are disabled. %1</source>
        <translation>Las órdenes están desactivadas. %1</translation>
    </message>
</context>
<context>
    <name>Desk</name>
    <message>
        <source>line %1: %2</source>
        <translation>línea %1: %2</translation>
    </message>
    <message>
        <source>The configuration has faults and is used without them: </source>
        <translation>La configuración tiene fallos y se usa sin ellos: </translation>
    </message>
    <message>
        <source>Metrics</source>
        <translation>Métricas</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>fallido</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Tema</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
</context>
<context>
    <name>DeskConfig</name>
    <message>
        <source>there is no device &quot;%1&quot;</source>
        <translation>no hay ningún equipo &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is a device &quot;%1&quot; already</source>
        <translation>ya hay un equipo &quot;%1&quot;</translation>
    </message>
    <message>
        <source>others may read or write %1, and it holds password hashes; chmod 600 ends that</source>
        <translation>otros pueden leer o escribir %1, y contiene hashes de contraseñas; chmod 600 lo remedia</translation>
    </message>
    <message>
        <source>there is no such place in the list of devices</source>
        <translation>no existe ese lugar en la lista de equipos</translation>
    </message>
    <message>
        <source>there is no operator &quot;%1&quot;</source>
        <translation>no hay ningún operador &quot;%1&quot;</translation>
    </message>
    <message>
        <source>%1 is not written because it has faults (line %2: %3); mend it with a text editor first</source>
        <translation>%1 no se escribe porque tiene fallos (línea %2: %3); corríjalo antes con un editor de texto</translation>
    </message>
</context>
<context>
    <name>DeskHistory</name>
    <message>
        <source>Nothing is recorded: %1</source>
        <translation>No se registra nada: %1</translation>
    </message>
</context>
<context>
    <name>DeskMenu</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation>&amp;Equipo</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;All devices</source>
        <translation>&amp;Todos los equipos</translation>
    </message>
    <message>
        <source>&amp;Journal</source>
        <translation>&amp;Diario</translation>
    </message>
    <message>
        <source>&amp;Filter the list</source>
        <translation>&amp;Filtrar la lista</translation>
    </message>
    <message>
        <source>Device &amp;list</source>
        <translation>&amp;Lista de equipos</translation>
    </message>
    <message>
        <source>&amp;Events</source>
        <translation>&amp;Eventos</translation>
    </message>
    <message>
        <source>F&amp;ull screen</source>
        <translation>&amp;Pantalla completa</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Abrir</translation>
    </message>
    <message>
        <source>&amp;Test connection</source>
        <translation>&amp;Probar conexión</translation>
    </message>
    <message>
        <source>&amp;Poll now</source>
        <translation>&amp;Consultar ahora</translation>
    </message>
    <message>
        <source>&amp;Commands</source>
        <translation>Ór&amp;denes</translation>
    </message>
    <message>
        <source>Cop&amp;y values</source>
        <translation>Cop&amp;iar valores</translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts</source>
        <translation>A&amp;tajos de teclado</translation>
    </message>
    <message>
        <source>Where the &amp;configuration is</source>
        <translation>Dónde está la &amp;configuración</translation>
    </message>
    <message>
        <source>&amp;About upsdesk</source>
        <translation>&amp;Acerca de upsdesk</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Claro</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Oscuro</translation>
    </message>
    <message>
        <source>As the &amp;system</source>
        <translation>Como el &amp;sistema</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>Te&amp;ma</translation>
    </message>
    <message>
        <source>Rep&amp;lay</source>
        <translation>&amp;Reproducir</translation>
    </message>
    <message>
        <source>Lan&amp;guage</source>
        <translation>Idi&amp;oma</translation>
    </message>
</context>
<context>
    <name>DesktopChannel</name>
    <message>
        <source>since %1</source>
        <translation>desde %1</translation>
    </message>
    <message>
        <source>The desktop shows no notifications: %1</source>
        <translation>El escritorio no muestra notificaciones: %1</translation>
    </message>
</context>
<context>
    <name>Device</name>
    <message>
        <source>There has been no new data for a while.</source>
        <translation>Hace un tiempo que no hay datos nuevos.</translation>
    </message>
    <message>
        <source>The poll was not answered in time.</source>
        <translation>La consulta no se respondió a tiempo.</translation>
    </message>
</context>
<context>
    <name>DeviceActions</name>
    <message>
        <source>A&amp;dd…</source>
        <translation>Aña&amp;dir…</translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation>&amp;Editar…</translation>
    </message>
    <message>
        <source>&amp;Remove…</source>
        <translation>&amp;Quitar…</translation>
    </message>
    <message>
        <source>Move &amp;up</source>
        <translation>&amp;Subir</translation>
    </message>
    <message>
        <source>Move d&amp;own</source>
        <translation>&amp;Bajar</translation>
    </message>
    <message>
        <source>The device is no longer in the list.</source>
        <translation>El equipo ya no está en la lista.</translation>
    </message>
    <message>
        <source>Remove a device</source>
        <translation>Quitar un equipo</translation>
    </message>
    <message>
        <source>Remove &quot;%1&quot; from the list of devices?</source>
        <translation>¿Quitar &quot;%1&quot; de la lista de equipos?</translation>
    </message>
    <message>
        <source>Its settings and secrets are deleted. What was recorded of it stays.</source>
        <translation>Se borran sus ajustes y secretos. Lo registrado de él se conserva.</translation>
    </message>
    <message>
        <source>It is not in the configuration; the list loses it until the next start.</source>
        <translation>No está en la configuración; la lista lo pierde hasta el próximo inicio.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>Add se&amp;veral…</source>
        <translation>Añadir &amp;varios…</translation>
    </message>
</context>
<context>
    <name>DeviceAddress</name>
    <message>
        <source>&quot;%1&quot; is not one of %2 for %3</source>
        <translation>&quot;%1&quot; no es uno de %2 para %3</translation>
    </message>
    <message>
        <source>user and password of a NUT server belong in the configuration, not in the address</source>
        <translation>el usuario y la contraseña de un servidor NUT van en la configuración, no en la dirección</translation>
    </message>
    <message>
        <source>a NUT address looks like nut://HOST[:PORT]/UPS</source>
        <translation>una dirección NUT es como nut://HOST[:PORT]/UPS</translation>
    </message>
    <message>
        <source>unknown option &quot;%1&quot;; known are %2</source>
        <translation>opción desconocida &quot;%1&quot;; se conocen %2</translation>
    </message>
    <message>
        <source>SNMP secrets belong in the configuration, not in the address</source>
        <translation>los secretos de SNMP van en la configuración, no en la dirección</translation>
    </message>
    <message>
        <source>SNMPv3 needs a user: snmp://USER@HOST?version=3</source>
        <translation>SNMPv3 necesita un usuario: snmp://USER@HOST?version=3</translation>
    </message>
    <message>
        <source>an address starts with sim:, nut:// or snmp://</source>
        <translation>una dirección empieza por sim:, nut:// o snmp://</translation>
    </message>
    <message>
        <source>no valid host or port in the address</source>
        <translation>no hay un host o puerto válido en la dirección</translation>
    </message>
    <message>
        <source>a port lies between 1 and 65535</source>
        <translation>un puerto está entre 1 y 65535</translation>
    </message>
</context>
<context>
    <name>DeviceAdvanced</name>
    <message>
        <source>Answer &amp;within</source>
        <translation>&amp;Respuesta en</translation>
    </message>
    <message>
        <source>&amp;Retries</source>
        <translation>&amp;Intentos</translation>
    </message>
    <message>
        <source>&amp;Shutdown delay</source>
        <translation>Retar&amp;do de apagado</translation>
    </message>
    <message>
        <source>Off d&amp;uring a restart</source>
        <translation>Ap&amp;agado al reiniciar</translation>
    </message>
    <message>
        <source>Shut down the w&amp;hole UPS, not its output alone</source>
        <translation>Apagar el SAI c&amp;ompleto, no solo su salida</translation>
    </message>
    <message>
        <source>For a device that is wrong by a power of ten; empty means 1</source>
        <translation>Para un equipo que se equivoca en una potencia de diez; vacío significa 1</translation>
    </message>
    <message>
        <source>Correction &amp;factors</source>
        <translation>&amp;Factores de corrección</translation>
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
        <translation>Simulador</translation>
    </message>
    <message>
        <source>Add a device</source>
        <translation>Añadir un equipo</translation>
    </message>
    <message>
        <source>Settings of %1</source>
        <translation>Ajustes de %1</translation>
    </message>
    <message>
        <source>site or room</source>
        <translation>sitio o sala</translation>
    </message>
    <message>
        <source>nut://HOST/UPS, snmp://COMMUNITY@HOST or sim:</source>
        <translation>nut://HOST/UPS, snmp://COMMUNITY@HOST o sim:</translation>
    </message>
    <message>
        <source>The address in one line; paste one here to fill the fields</source>
        <translation>La dirección en una línea; pegue una aquí para rellenar los campos</translation>
    </message>
    <message>
        <source>Na&amp;me</source>
        <translation>&amp;Nombre</translation>
    </message>
    <message>
        <source>&amp;Group</source>
        <translation>&amp;Grupo</translation>
    </message>
    <message>
        <source>&amp;Kind</source>
        <translation>&amp;Tipo</translation>
    </message>
    <message>
        <source>&amp;Address</source>
        <translation>D&amp;irección</translation>
    </message>
    <message>
        <source>Poll &amp;every</source>
        <translation>&amp;Consultar cada</translation>
    </message>
    <message>
        <source>Con&amp;nection</source>
        <translation>Cone&amp;xión</translation>
    </message>
    <message>
        <source>A&amp;dvanced</source>
        <translation>A&amp;vanzado</translation>
    </message>
    <message>
        <source>There is a device &quot;%1&quot; already.</source>
        <translation>Ya hay un equipo &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Stop &amp;test</source>
        <translation>&amp;Parar la prueba</translation>
    </message>
    <message>
        <source>Asking %1 …</source>
        <translation>Consultando %1 …</translation>
    </message>
    <message>
        <source>&amp;Test connection</source>
        <translation>&amp;Probar conexión</translation>
    </message>
    <message>
        <source>The server looks at user and password only when a command is sent.</source>
        <translation>El servidor solo mira usuario y contraseña cuando se envía una orden.</translation>
    </message>
</context>
<context>
    <name>DeviceFacts</name>
    <message>
        <source>Battery test</source>
        <translation>Test de batería</translation>
    </message>
    <message>
        <source>Battery discharging</source>
        <translation>Batería en descarga</translation>
    </message>
    <message>
        <source>Battery low</source>
        <translation>Batería baja</translation>
    </message>
    <message>
        <source>Battery depleted</source>
        <translation>Batería agotada</translation>
    </message>
    <message>
        <source>Mains lost, on battery</source>
        <translation>Red perdida, en batería</translation>
    </message>
    <message>
        <source>On bypass</source>
        <translation>En bypass</translation>
    </message>
</context>
<context>
    <name>DeviceHeading</name>
    <message>
        <source>recorded</source>
        <translation>registrado</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>y %1 más</translation>
    </message>
</context>
<context>
    <name>DeviceHistory</name>
    <message>
        <source>Nothing is stored of this device.</source>
        <translation>No hay nada guardado de este equipo.</translation>
    </message>
</context>
<context>
    <name>DeviceListModel</name>
    <message>
        <source>%1 critical</source>
        <translation>%1 crítico</translation>
    </message>
    <message>
        <source>%1 alarm</source>
        <translation>%1 alarma</translation>
    </message>
    <message>
        <source>%1 warning</source>
        <translation>%1 aviso</translation>
    </message>
    <message>
        <source>%1 notice</source>
        <translation>%1 nota</translation>
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
        <translation>SAI</translation>
    </message>
</context>
<context>
    <name>DevicePage</name>
    <message>
        <source>Energy flow</source>
        <translation>Flujo de energía</translation>
    </message>
    <message>
        <source>Alarms</source>
        <translation>Alarmas</translation>
    </message>
    <message>
        <source>Detail</source>
        <translation>Detalle</translation>
    </message>
    <message>
        <source>Control</source>
        <translation>Control</translation>
    </message>
    <message>
        <source>Charts</source>
        <translation>Gráficos</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tabla</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Equipo</translation>
    </message>
</context>
<context>
    <name>DeviceSettings</name>
    <message>
        <source>Simulator</source>
        <translation>Simulador</translation>
    </message>
    <message>
        <source>Simulator, %1</source>
        <translation>Simulador, %1</translation>
    </message>
</context>
<context>
    <name>DeviceSnapshot</name>
    <message>
        <source>Battery fault</source>
        <translation>Fallo de batería</translation>
    </message>
    <message>
        <source>Battery powered</source>
        <translation>Alimentación por batería</translation>
    </message>
    <message>
        <source>Battery low</source>
        <translation>Batería baja</translation>
    </message>
    <message>
        <source>Battery EOD</source>
        <translation>Batería agotada</translation>
    </message>
    <message>
        <source>Temperature overrun MAX-value</source>
        <translation>Temperatura por encima del máximo</translation>
    </message>
    <message>
        <source>Input fault</source>
        <translation>Fallo de entrada</translation>
    </message>
    <message>
        <source>Output fault</source>
        <translation>Fallo de salida</translation>
    </message>
    <message>
        <source>Load overrun MAX-value</source>
        <translation>Carga por encima del máximo</translation>
    </message>
    <message>
        <source>Bypass powered</source>
        <translation>Alimentación por bypass</translation>
    </message>
    <message>
        <source>Bypass fault</source>
        <translation>Fallo de bypass</translation>
    </message>
    <message>
        <source>The UPS output has shutdown as requested</source>
        <translation>La salida del SAI se ha apagado como se pidió</translation>
    </message>
    <message>
        <source>The entire UPS has shutdown as commanded</source>
        <translation>El SAI completo se ha apagado como se ordenó</translation>
    </message>
    <message>
        <source>Charger subsystem fault</source>
        <translation>Fallo del cargador</translation>
    </message>
    <message>
        <source>The output of the UPS is in the off state</source>
        <translation>La salida del SAI está apagada</translation>
    </message>
    <message>
        <source>The UPS system is in the off state</source>
        <translation>El SAI está apagado</translation>
    </message>
    <message>
        <source>Fan fault</source>
        <translation>Fallo de ventilador</translation>
    </message>
    <message>
        <source>Fuse fault</source>
        <translation>Fallo de fusible</translation>
    </message>
    <message>
        <source>UPS fault</source>
        <translation>Fallo del SAI</translation>
    </message>
    <message>
        <source>Last diagnostic test failed</source>
        <translation>Último test de diagnóstico fallido</translation>
    </message>
    <message>
        <source>Communication between agent and UPS fault</source>
        <translation>Fallo de comunicación entre el agente y el SAI</translation>
    </message>
    <message>
        <source>UPS is awaiting the return of input power</source>
        <translation>El SAI espera el retorno de la alimentación de entrada</translation>
    </message>
    <message>
        <source>UPS shutdown after delay countdown is underway</source>
        <translation>Cuenta atrás de apagado del SAI en curso</translation>
    </message>
    <message>
        <source>The UPS will turn off power to the load</source>
        <translation>El SAI cortará la alimentación de la carga</translation>
    </message>
    <message>
        <source>A test is in progress</source>
        <translation>Hay un test en curso</translation>
    </message>
    <message>
        <source>battery charge</source>
        <translation>carga de la batería</translation>
    </message>
    <message>
        <source>remaining time</source>
        <translation>tiempo restante</translation>
    </message>
    <message>
        <source>battery voltage</source>
        <translation>tensión de la batería</translation>
    </message>
    <message>
        <source>battery current</source>
        <translation>corriente de la batería</translation>
    </message>
    <message>
        <source>battery temperature</source>
        <translation>temperatura de la batería</translation>
    </message>
    <message>
        <source>time on battery</source>
        <translation>tiempo en batería</translation>
    </message>
    <message>
        <source>number of mains failures</source>
        <translation>número de fallos de red</translation>
    </message>
    <message>
        <source>rated input voltage</source>
        <translation>tensión nominal de entrada</translation>
    </message>
    <message>
        <source>rated input frequency</source>
        <translation>frecuencia nominal de entrada</translation>
    </message>
    <message>
        <source>rated output voltage</source>
        <translation>tensión nominal de salida</translation>
    </message>
    <message>
        <source>rated output frequency</source>
        <translation>frecuencia nominal de salida</translation>
    </message>
    <message>
        <source>rated apparent power</source>
        <translation>potencia aparente nominal</translation>
    </message>
    <message>
        <source>rated active power</source>
        <translation>potencia activa nominal</translation>
    </message>
    <message>
        <source>input voltage</source>
        <translation>tensión de entrada</translation>
    </message>
    <message>
        <source>input current</source>
        <translation>corriente de entrada</translation>
    </message>
    <message>
        <source>input frequency</source>
        <translation>frecuencia de entrada</translation>
    </message>
    <message>
        <source>input power</source>
        <translation>potencia de entrada</translation>
    </message>
    <message>
        <source>output voltage</source>
        <translation>tensión de salida</translation>
    </message>
    <message>
        <source>output current</source>
        <translation>corriente de salida</translation>
    </message>
    <message>
        <source>output frequency</source>
        <translation>frecuencia de salida</translation>
    </message>
    <message>
        <source>output power</source>
        <translation>potencia de salida</translation>
    </message>
    <message>
        <source>load</source>
        <translation>carga</translation>
    </message>
    <message>
        <source>bypass voltage</source>
        <translation>tensión de bypass</translation>
    </message>
    <message>
        <source>bypass current</source>
        <translation>corriente de bypass</translation>
    </message>
    <message>
        <source>bypass frequency</source>
        <translation>frecuencia de bypass</translation>
    </message>
    <message>
        <source>bypass power</source>
        <translation>potencia de bypass</translation>
    </message>
    <message>
        <source>%1 of line %2</source>
        <translation>%1 de la fase %2</translation>
    </message>
    <message>
        <source> and </source>
        <translation> y </translation>
    </message>
    <message>
        <source>Not reported, shown as 0: %1.</source>
        <translation>No comunicado, mostrado como 0: %1.</translation>
    </message>
    <message>
        <source>Split phase: line 1 of 2 is shown.</source>
        <translation>Bifásico: se muestra la fase 1 de 2.</translation>
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
        <translation>nunca hubo datos</translation>
    </message>
    <message>
        <source>last data %1 ago</source>
        <translation>últimos datos hace %1</translation>
    </message>
    <message>
        <source>now</source>
        <translation>ahora</translation>
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
        <translation>%1 días</translation>
    </message>
    <message>
        <source>connecting</source>
        <translation>conectando</translation>
    </message>
    <message>
        <source>live, now</source>
        <translation>al día</translation>
    </message>
    <message>
        <source>live, %1 ago</source>
        <translation>al día, hace %1</translation>
    </message>
    <message>
        <source>no new data</source>
        <translation>sin datos nuevos</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>sin respuesta</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>rechazado</translation>
    </message>
    <message>
        <source>since %1</source>
        <translation>desde %1</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batería</translation>
    </message>
    <message>
        <source>Lasts</source>
        <translation>Autonomía</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Carga</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 h</translation>
    </message>
    <message>
        <source>Battery %1</source>
        <translation>Batería %1</translation>
    </message>
    <message>
        <source>Live: %1</source>
        <translation>Al día: %1</translation>
    </message>
</context>
<context>
    <name>EventDock</name>
    <message>
        <source>Events</source>
        <translation>Eventos</translation>
    </message>
</context>
<context>
    <name>EventLog</name>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Operador</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Equipo</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Evento</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Mensaje</translation>
    </message>
</context>
<context>
    <name>FileSecretStore</name>
    <message>
        <source>%1 is not used because others may read or write it; &quot;chmod 600&quot; ends that, then change the secrets in it</source>
        <translation>%1 no se usa porque otros pueden leerlo o escribirlo; &quot;chmod 600&quot; lo remedia, cambie después los secretos que contiene</translation>
    </message>
    <message>
        <source>%1 is not used because it is damaged; mend it, or move it away and enter the secrets again</source>
        <translation>%1 no se usa porque está dañado; repárelo, o apártelo e introduzca de nuevo los secretos</translation>
    </message>
</context>
<context>
    <name>FindDevicesDialog</name>
    <message>
        <source>&amp;Tick all</source>
        <translation>Marcar &amp;todos</translation>
    </message>
    <message>
        <source>Add several devices</source>
        <translation>Añadir varios equipos</translation>
    </message>
    <message>
        <source>UPSes of a NUT server</source>
        <translation>Los SAI de un servidor NUT</translation>
    </message>
    <message>
        <source>SNMP agents in a range of addresses</source>
        <translation>Agentes SNMP en un rango de direcciones</translation>
    </message>
    <message>
        <source>for commands only</source>
        <translation>solo para órdenes</translation>
    </message>
    <message>
        <source>&amp;Host</source>
        <translation>&amp;Host</translation>
    </message>
    <message>
        <source>U&amp;ser</source>
        <translation>&amp;Usuario</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>Contraseñ&amp;a</translation>
    </message>
    <message>
        <source>Devices found</source>
        <translation>Equipos encontrados</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Dirección</translation>
    </message>
    <message>
        <source>What it is</source>
        <translation>Qué es</translation>
    </message>
    <message>
        <source>site or room, for all that are added</source>
        <translation>sitio o sala, para todos los añadidos</translation>
    </message>
    <message>
        <source>&amp;Look for</source>
        <translation>&amp;Buscar</translation>
    </message>
    <message>
        <source>&amp;Group</source>
        <translation>&amp;Grupo</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Parar</translation>
    </message>
    <message>
        <source>Asking %1 …</source>
        <translation>Consultando %1 …</translation>
    </message>
    <message>
        <source>Asked %1 of %2 addresses …</source>
        <translation>Consultadas %1 de %2 direcciones …</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>Bu&amp;scar</translation>
    </message>
    <message>
        <source>Nobody answered.</source>
        <translation>Nadie respondió.</translation>
    </message>
    <message>
        <source>Found: %1. Tick what is to be added.</source>
        <translation>Encontrados: %1. Marque los que se añadirán.</translation>
    </message>
    <message>
        <source>&amp;Add %1</source>
        <translation>Aña&amp;dir %1</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>Aña&amp;dir</translation>
    </message>
    <message>
        <source>Each device needs a name.</source>
        <translation>Cada equipo necesita un nombre.</translation>
    </message>
    <message>
        <source>There is a device &quot;%1&quot; already.</source>
        <translation>Ya hay un equipo &quot;%1&quot;.</translation>
    </message>
</context>
<context>
    <name>FirstRunStrip</name>
    <message>
        <source>Add your &amp;UPS…</source>
        <translation>Añadir su &amp;SAI…</translation>
    </message>
    <message>
        <source>There is no device yet - add your UPS</source>
        <translation>Aún no hay equipos: añada su SAI</translation>
    </message>
    <message>
        <source>This is a simulation - add your UPS</source>
        <translation>Esto es una simulación: añada su SAI</translation>
    </message>
</context>
<context>
    <name>HelpDialogs</name>
    <message>
        <source>Back to all devices</source>
        <translation>Volver a todos los equipos</translation>
    </message>
    <message>
        <source>In the list: add, edit, remove a device</source>
        <translation>En la lista: añadir, editar, quitar un equipo</translation>
    </message>
    <message>
        <source>In the list: move a device</source>
        <translation>En la lista: mover un equipo</translation>
    </message>
    <message>
        <source>In the history: earlier, later; by a whole length</source>
        <translation>En el historial: antes, después; una longitud entera</translation>
    </message>
    <message>
        <source>In the history: less, more time</source>
        <translation>En el historial: menos, más tiempo</translation>
    </message>
    <message>
        <source>In the history: the values of another row</source>
        <translation>En el historial: los valores de otra fila</translation>
    </message>
    <message>
        <source>In the history: the oldest, the present</source>
        <translation>En el historial: lo más antiguo, el presente</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Qué</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Teclas</translation>
    </message>
    <message>
        <source>Where the configuration is</source>
        <translation>Dónde está la configuración</translation>
    </message>
    <message>
        <source>Devices, thresholds and operators stand in
%1

&quot;upsdesk check-config&quot; says what is wrong in it. How the window was left stands in
%2</source>
        <translation>Los equipos, umbrales y operadores están en
%1

&quot;upsdesk check-config&quot; dice qué está mal en ella. Cómo se dejó la ventana está en
%2</translation>
    </message>
    <message>
        <source>About upsdesk</source>
        <translation>Acerca de upsdesk</translation>
    </message>
    <message>
        <source>upsdesk %1
Watches uninterruptible power supplies.

Qt %2
%3 %4</source>
        <translation>upsdesk %1
Vigila sistemas de alimentación ininterrumpida.

Qt %2
%3 %4</translation>
    </message>
</context>
<context>
    <name>HistoryCharts</name>
    <message>
        <source>Input</source>
        <translation>Entrada</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Salida</translation>
    </message>
    <message>
        <source>Bypass</source>
        <translation>Bypass</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batería</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>Tensión</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Carga</translation>
    </message>
    <message>
        <source>Charge</source>
        <translation>Carga de batería</translation>
    </message>
    <message>
        <source>Time left on battery</source>
        <translation>Tiempo restante en batería</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>Corriente</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frecuencia</translation>
    </message>
    <message>
        <source>Battery temperature</source>
        <translation>Temperatura de batería</translation>
    </message>
    <message>
        <source>Battery voltage</source>
        <translation>Tensión de batería</translation>
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
        <translation>Día</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Semana</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Mes</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Año</translation>
    </message>
    <message>
        <source>Show: %1</source>
        <translation>Mostrar: %1</translation>
    </message>
    <message>
        <source>Earlier</source>
        <translation>Antes</translation>
    </message>
    <message>
        <source>Left, Page Up</source>
        <translation>Izquierda, RePág</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Después</translation>
    </message>
    <message>
        <source>Right, Page Down</source>
        <translation>Derecha, AvPág</translation>
    </message>
    <message>
        <source>Show more time</source>
        <translation>Mostrar más tiempo</translation>
    </message>
    <message>
        <source>Show less time</source>
        <translation>Mostrar menos tiempo</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Ahora</translation>
    </message>
    <message>
        <source>Follow the present</source>
        <translation>Seguir el presente</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Charts</source>
        <translation>Gráficos</translation>
    </message>
    <message>
        <source>Which charts are shown</source>
        <translation>Qué gráficos se muestran</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Save what is shown</source>
        <translation>Guardar lo que se muestra</translation>
    </message>
    <message>
        <source>As &amp;CSV …</source>
        <translation>Como &amp;CSV …</translation>
    </message>
    <message>
        <source>As &amp;picture …</source>
        <translation>Como &amp;imagen …</translation>
    </message>
    <message>
        <source>There is no history here: this desk records none, or its store is not open yet.</source>
        <translation>Aquí no hay historial: este puesto no registra ninguno, o su almacén aún no está abierto.</translation>
    </message>
    <message>
        <source>Loading …</source>
        <translation>Cargando …</translation>
    </message>
    <message>
        <source>The history cannot be read: %1</source>
        <translation>No se puede leer el historial: %1</translation>
    </message>
    <message>
        <source>Nothing is stored of this device. The simulator is recorded only where it stands in the configuration.</source>
        <translation>No hay nada guardado de este equipo. El simulador solo se registra si figura en la configuración.</translation>
    </message>
    <message>
        <source>Nothing is stored of this device yet.</source>
        <translation>Aún no hay nada guardado de este equipo.</translation>
    </message>
    <message>
        <source>%1 for %2</source>
        <translation>%1 durante %2</translation>
    </message>
    <message>
        <source>Nothing is stored of this time</source>
        <translation>No hay nada guardado de este tiempo</translation>
    </message>
    <message>
        <source>Only the latest entries of the journal are shown</source>
        <translation>Solo se muestran las últimas entradas del diario</translation>
    </message>
    <message>
        <source>on battery</source>
        <translation>en batería</translation>
    </message>
    <message>
        <source>on bypass</source>
        <translation>en bypass</translation>
    </message>
    <message>
        <source>not reachable</source>
        <translation>no accesible</translation>
    </message>
    <message>
        <source>▴ journal</source>
        <translation>▴ diario</translation>
    </message>
    <message>
        <source>Save the history</source>
        <translation>Guardar el historial</translation>
    </message>
    <message>
        <source>Saving …</source>
        <translation>Guardando …</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <translation>Guardado como %1</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <translation>No guardado: %1</translation>
    </message>
    <message>
        <source>Not saved: %1 cannot be written</source>
        <translation>No guardado: no se puede escribir %1</translation>
    </message>
</context>
<context>
    <name>HistorySpool</name>
    <message>
        <source>cannot make the folder %1</source>
        <translation>no se puede crear la carpeta %1</translation>
    </message>
    <message>
        <source>cannot write in the folder %1</source>
        <translation>no se puede escribir en la carpeta %1</translation>
    </message>
    <message>
        <source>the spool in %1 is full</source>
        <translation>la cola en %1 está llena</translation>
    </message>
    <message>
        <source>cannot write the spool in %1: %2</source>
        <translation>no se puede escribir la cola en %1: %2</translation>
    </message>
</context>
<context>
    <name>HistoryStore</name>
    <message>
        <source>the driver %1 of QtSql is not installed</source>
        <translation>el controlador %1 de QtSql no está instalado</translation>
    </message>
    <message>
        <source>the history was written by a newer upsdesk; update this one</source>
        <translation>el historial lo escribió un upsdesk más nuevo; actualice este</translation>
    </message>
    <message>
        <source>there is no history yet</source>
        <translation>aún no hay historial</translation>
    </message>
    <message>
        <source>the history is of an older upsdesk; start the desk once so that it brings it up to date</source>
        <translation>el historial es de un upsdesk más antiguo; inicie el puesto una vez para que lo actualice</translation>
    </message>
</context>
<context>
    <name>HistoryWriter</name>
    <message>
        <source>The history cannot be written: %1. Events are kept on disk until it can.</source>
        <translation>No se puede escribir el historial: %1. Los eventos se guardan en disco hasta que se pueda.</translation>
    </message>
    <message>
        <source>The history is written again; nothing is missing.</source>
        <translation>El historial se escribe de nuevo; no falta nada.</translation>
    </message>
    <message>
        <source>The history is written again; %1 samples are missing.</source>
        <translation>El historial se escribe de nuevo; faltan %1 muestras.</translation>
    </message>
</context>
<context>
    <name>HostAddresses</name>
    <message>
        <source>There is no host named %1; check the address.</source>
        <translation>No hay ningún host llamado %1; revise la dirección.</translation>
    </message>
    <message>
        <source>The name %1 could not be looked up; check the network and its name server.</source>
        <translation>No se pudo resolver el nombre %1; revise la red y su servidor de nombres.</translation>
    </message>
    <message>
        <source>Too many names are being looked up; check the network&apos;s name server.</source>
        <translation>Se están resolviendo demasiados nombres; revise el servidor de nombres de la red.</translation>
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
        <translation>nombre o dirección IP</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Puerto</translation>
    </message>
    <message>
        <source>&amp;Port</source>
        <translation>&amp;Puerto</translation>
    </message>
    <message>
        <source>Range of addresses</source>
        <translation>Rango de direcciones</translation>
    </message>
    <message>
        <source>10.0.0.0/24 or 10.0.0.5-60</source>
        <translation>10.0.0.0/24 o 10.0.0.5-60</translation>
    </message>
    <message>
        <source>Enter the name or the IP address of the host.</source>
        <translation>Introduzca el nombre o la dirección IP del host.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither a host name nor an IP address.</source>
        <translation>&quot;%1&quot; no es un nombre de host ni una dirección IP.</translation>
    </message>
</context>
<context>
    <name>JournalModel</name>
    <message>
        <source>Onset</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Equipo</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Severity</source>
        <translation>Gravedad</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>Entrada</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Mensaje</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Operador</translation>
    </message>
    <message>
        <source>Acknowledged</source>
        <translation>Reconocido</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Alarm</source>
        <translation>Alarma</translation>
    </message>
    <message>
        <source>Outage</source>
        <translation>Corte</translation>
    </message>
    <message>
        <source>Bypass</source>
        <translation>Bypass</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batería</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Enlace</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Orden</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Store</source>
        <translation>Almacén</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Reloj</translation>
    </message>
    <message>
        <source>Desk</source>
        <translation>Puesto</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>Crítico</translation>
    </message>
    <message>
        <source>%1 d %2</source>
        <translation>%1 d %2</translation>
    </message>
    <message>
        <source>still so</source>
        <translation>continúa</translation>
    </message>
    <message>
        <source>lowest charge %1 %</source>
        <translation>carga mínima %1 %</translation>
    </message>
</context>
<context>
    <name>JournalPage</name>
    <message>
        <source>Any time</source>
        <translation>Cualquier momento</translation>
    </message>
    <message>
        <source>Last hour</source>
        <translation>Última hora</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>Último día</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Última semana</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <translation>Últimos 30 días</translation>
    </message>
    <message>
        <source>Last year</source>
        <translation>Último año</translation>
    </message>
    <message>
        <source>Still s&amp;o</source>
        <translation>C&amp;ontinúa</translation>
    </message>
    <message>
        <source>Not acknowled&amp;ged</source>
        <translation>Sin re&amp;conocer</translation>
    </message>
    <message>
        <source>Ack&amp;nowledge …</source>
        <translation>Reco&amp;nocer …</translation>
    </message>
    <message>
        <source>&amp;Export …</source>
        <translation>&amp;Exportar …</translation>
    </message>
    <message>
        <source>&amp;Replay</source>
        <translation>&amp;Reproducir</translation>
    </message>
    <message>
        <source>Devi&amp;ce</source>
        <translation>E&amp;quipo</translation>
    </message>
    <message>
        <source>&amp;Kind</source>
        <translation>&amp;Tipo</translation>
    </message>
    <message>
        <source>T&amp;ime</source>
        <translation>Tie&amp;mpo</translation>
    </message>
    <message>
        <source>&amp;Severity from</source>
        <translation>&amp;Gravedad desde</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todos</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>in entry, message or note</source>
        <translation>en entrada, mensaje o nota</translation>
    </message>
    <message>
        <source>What has begun and is not over: the alarms of the desk</source>
        <translation>Lo que ha empezado y no ha terminado: las alarmas del puesto</translation>
    </message>
    <message>
        <source>Te&amp;xt</source>
        <translation>Te&amp;xto</translation>
    </message>
    <message>
        <source>Journal</source>
        <translation>Diario</translation>
    </message>
    <message>
        <source>%1 entries and more</source>
        <translation>%1 entradas y más</translation>
    </message>
    <message>
        <source>%1 entries</source>
        <translation>%1 entradas</translation>
    </message>
    <message>
        <source>This desk keeps no history.</source>
        <translation>Este puesto no lleva historial.</translation>
    </message>
    <message>
        <source>Acknowledge</source>
        <translation>Reconocer</translation>
    </message>
    <message>
        <source>Note (may be empty)</source>
        <translation>Nota (puede quedar vacía)</translation>
    </message>
    <message>
        <source>Export the journal</source>
        <translation>Exportar el diario</translation>
    </message>
    <message>
        <source>CSV files (*.csv);;All files (*)</source>
        <translation>Archivos CSV (*.csv);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>The journal is in %1</source>
        <translation>El diario está en %1</translation>
    </message>
    <message>
        <source>The journal was not exported: %1</source>
        <translation>El diario no se exportó: %1</translation>
    </message>
</context>
<context>
    <name>KeychainSecretStore</name>
    <message>
        <source>The desktop&apos;s keychain cannot be used: %1. Start a keychain service, for example GNOME Keyring or KWallet, and log in again; or write &quot;store = file&quot; under [secrets] in the configuration to keep secrets in a file that only you can read.</source>
        <translation>No se puede usar el llavero del escritorio: %1. Inicie un servicio de llavero, por ejemplo GNOME Keyring o KWallet, y vuelva a entrar; o escriba &quot;store = file&quot; bajo [secrets] en la configuración para guardar los secretos en un archivo que solo usted puede leer.</translation>
    </message>
    <message>
        <source>Access to the desktop&apos;s keychain was denied; unlock it and try again.</source>
        <translation>Se denegó el acceso al llavero del escritorio; desbloquéelo e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>it gives no reason</source>
        <translation>no da ninguna razón</translation>
    </message>
    <message>
        <source>it does not answer</source>
        <translation>no responde</translation>
    </message>
</context>
<context>
    <name>LoginDialog</name>
    <message>
        <source>Log in</source>
        <translation>Iniciar sesión</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Nombre</translation>
    </message>
    <message>
        <source>&amp;Password</source>
        <translation>&amp;Contraseña</translation>
    </message>
    <message>
        <source>There are no operators yet. Add one in the settings, under Operators.</source>
        <translation>Aún no hay operadores. Añada uno en los ajustes, en Operadores.</translation>
    </message>
    <message>
        <source>Checking …</source>
        <translation>Comprobando …</translation>
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
        <translation>Esto es una pantalla mural: no da órdenes.</translation>
    </message>
    <message>
        <source>&amp;All devices</source>
        <translation>&amp;Todos los equipos</translation>
    </message>
    <message>
        <source>%1: %2: sent, waiting for the result</source>
        <translation>%1: %2: enviada, esperando el resultado</translation>
    </message>
    <message>
        <source>Journal - upsdesk</source>
        <translation>Diario - upsdesk</translation>
    </message>
    <message>
        <source>Replay: %1 - upsdesk</source>
        <translation>Reproducción: %1 - upsdesk</translation>
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
        <translation>%1: lo consulta su recolector, este puesto no.</translation>
    </message>
    <message>
        <source>%1: testing the connection …</source>
        <translation>%1: probando la conexión …</translation>
    </message>
    <message>
        <source>Logged in</source>
        <translation>Sesión iniciada</translation>
    </message>
    <message>
        <source>Logged out</source>
        <translation>Sesión cerrada</translation>
    </message>
    <message>
        <source>level %1</source>
        <translation>nivel %1</translation>
    </message>
    <message>
        <source>done</source>
        <translation>hecho</translation>
    </message>
</context>
<context>
    <name>MetricsServer</name>
    <message>
        <source>is no numeric address with a port, like 127.0.0.1:9199</source>
        <translation>no es una dirección numérica con puerto, como 127.0.0.1:9199</translation>
    </message>
    <message>
        <source>Metrics are not served: &quot;%1&quot; %2.</source>
        <translation>No se sirven métricas: &quot;%1&quot; %2.</translation>
    </message>
    <message>
        <source>Metrics are not served: nothing can listen at %1. Another program may do so already.</source>
        <translation>No se sirven métricas: no se puede escuchar en %1. Quizá otro programa ya lo hace.</translation>
    </message>
</context>
<context>
    <name>NearestName</name>
    <message>
        <source>; did you mean &quot;%1&quot;?</source>
        <translation>; ¿quiso decir &quot;%1&quot;?</translation>
    </message>
</context>
<context>
    <name>Notifier</name>
    <message>
        <source>Desktop notifications</source>
        <translation>Notificaciones de escritorio</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Orden</translation>
    </message>
    <message>
        <source>Webhook</source>
        <translation>Webhook</translation>
    </message>
    <message>
        <source>upsdesk: a trial</source>
        <translation>upsdesk: una prueba</translation>
    </message>
    <message>
        <source>Notifications arrive here.</source>
        <translation>Las notificaciones llegan aquí.</translation>
    </message>
</context>
<context>
    <name>NotifyTests</name>
    <message>
        <source>Test desktop</source>
        <translation>Probar escritorio</translation>
    </message>
    <message>
        <source>Test command</source>
        <translation>Probar orden</translation>
    </message>
    <message>
        <source>Test webhook</source>
        <translation>Probar webhook</translation>
    </message>
    <message>
        <source>%1: it is not set up.</source>
        <translation>%1: no está configurado.</translation>
    </message>
    <message>
        <source>%1: the trial was delivered.</source>
        <translation>%1: la prueba se entregó.</translation>
    </message>
    <message>
        <source>%1: trying ...</source>
        <translation>%1: probando ...</translation>
    </message>
</context>
<context>
    <name>NutDevices</name>
    <message>
        <source>The server has no UPS.</source>
        <translation>El servidor no tiene ningún SAI.</translation>
    </message>
    <message>
        <source>The server has several devices; put the name of one at the end of the address: %1.</source>
        <translation>El servidor tiene varios equipos; ponga el nombre de uno al final de la dirección: %1.</translation>
    </message>
</context>
<context>
    <name>NutFields</name>
    <message>
        <source>&amp;List</source>
        <translation>&amp;Listar</translation>
    </message>
    <message>
        <source>the only one of the server</source>
        <translation>el único del servidor</translation>
    </message>
    <message>
        <source>Asks the server which UPSes it has</source>
        <translation>Pregunta al servidor qué SAI tiene</translation>
    </message>
    <message>
        <source>for commands only</source>
        <translation>solo para órdenes</translation>
    </message>
    <message>
        <source>&amp;Host</source>
        <translation>&amp;Host</translation>
    </message>
    <message>
        <source>&amp;UPS</source>
        <translation>&amp;SAI</translation>
    </message>
    <message>
        <source>U&amp;ser</source>
        <translation>&amp;Usuario</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>Contraseñ&amp;a</translation>
    </message>
    <message>
        <source>Enter the user that the password is for.</source>
        <translation>Introduzca el usuario al que pertenece la contraseña.</translation>
    </message>
    <message>
        <source>Asking %1 …</source>
        <translation>Consultando %1 …</translation>
    </message>
    <message>
        <source>The server has no UPS.</source>
        <translation>El servidor no tiene ningún SAI.</translation>
    </message>
    <message>
        <source>The server&apos;s UPSes: %1.</source>
        <translation>Los SAI del servidor: %1.</translation>
    </message>
</context>
<context>
    <name>NutLine</name>
    <message>
        <source>The password is not sent to %1, because the link is %2 Give the device the server&apos;s certificate (fingerprint) or its authority (ca-file), or allow plain text with tls = off.</source>
        <translation>La contraseña no se envía a %1, porque el enlace es %2 Dé al equipo el certificado del servidor (fingerprint) o su autoridad (ca-file), o permita texto en claro con tls = off.</translation>
    </message>
    <message>
        <source>not trusted: %1</source>
        <translation>no fiable: %1</translation>
    </message>
    <message>
        <source>in plain text.</source>
        <translation>en claro.</translation>
    </message>
    <message>
        <source>%1 does not answer; check that the server is on and that no firewall is in between.</source>
        <translation>%1 no responde; compruebe que el servidor está encendido y que no hay un cortafuegos en medio.</translation>
    </message>
    <message>
        <source>%1 went on in plain text after it had offered encryption: somebody may be in between.</source>
        <translation>%1 siguió en claro tras ofrecer cifrado: puede haber alguien en medio.</translation>
    </message>
    <message>
        <source>%1 offers no encryption, and the configuration requires it (tls = required, or a certificate to trust).</source>
        <translation>%1 no ofrece cifrado, y la configuración lo exige (tls = required, o un certificado de confianza).</translation>
    </message>
    <message>
        <source>%1 has offered encryption before and offers none now: somebody may be in between. If the server was changed on purpose, set tls = off.</source>
        <translation>%1 ofrecía cifrado y ahora no lo ofrece: puede haber alguien en medio. Si el servidor se cambió a propósito, ponga tls = off.</translation>
    </message>
    <message>
        <source>there is no certificate to be read in %1.</source>
        <translation>no hay ningún certificado legible en %1.</translation>
    </message>
    <message>
        <source>%1 cannot be trusted: %2 Its certificate is %3.</source>
        <translation>No se puede confiar en %1: %2 Su certificado es %3.</translation>
    </message>
    <message>
        <source>%1 offers encryption, but the two sides cannot agree on it; check the certificate of the server.</source>
        <translation>%1 ofrece cifrado, pero las dos partes no se ponen de acuerdo; revise el certificado del servidor.</translation>
    </message>
    <message>
        <source>%1 offers encryption, but this machine has no TLS library.</source>
        <translation>%1 ofrece cifrado, pero esta máquina no tiene biblioteca TLS.</translation>
    </message>
    <message>
        <source>%1 closed the connection.</source>
        <translation>%1 cerró la conexión.</translation>
    </message>
    <message>
        <source>%1 refuses the connection: no NUT server runs there, or it does not listen on this address.</source>
        <translation>%1 rechaza la conexión: allí no corre ningún servidor NUT, o no escucha en esta dirección.</translation>
    </message>
    <message>
        <source>No connection to %1: too many open files.</source>
        <translation>Sin conexión a %1: demasiados archivos abiertos.</translation>
    </message>
    <message>
        <source>No connection to %1: %2.</source>
        <translation>Sin conexión a %1: %2.</translation>
    </message>
    <message>
        <source>No name server answered for %1 in time; check the network.</source>
        <translation>Ningún servidor de nombres respondió a tiempo por %1; revise la red.</translation>
    </message>
    <message>
        <source>%1 accepts the connection but does not answer.</source>
        <translation>%1 acepta la conexión pero no responde.</translation>
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
        <translation>Las órdenes necesitan una cuenta del servidor; añada su usuario y contraseña en la configuración. No se envió nada.</translation>
    </message>
    <message>
        <source>This UPS offers no such command; looked for %1.</source>
        <translation>Este SAI no ofrece tal orden; se buscó %1.</translation>
    </message>
    <message>
        <source>%1 Look at the readings before sending it again.</source>
        <translation>%1 Mire las lecturas antes de enviarla de nuevo.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 Whether %2 was carried out is not known; it is not sent again.</source>
        <translation>%1 No se sabe si %2 se ejecutó; no se envía otra vez.</translation>
    </message>
    <message>
        <source>The connection broke before the server told how %1 ended.</source>
        <translation>La conexión se rompió antes de que el servidor dijera cómo terminó %1.</translation>
    </message>
    <message>
        <source>The server took %1 but did not tell how it ended.</source>
        <translation>El servidor tomó %1 pero no dijo cómo terminó.</translation>
    </message>
    <message>
        <source>The server has handed %1 on to its driver, but cannot tell how it ended; look at the readings.</source>
        <translation>El servidor pasó %1 a su controlador, pero no puede decir cómo terminó; mire las lecturas.</translation>
    </message>
    <message>
        <source>%1 was carried out; the minutes of standby cannot be set on this UPS, it comes back as its own settings say.</source>
        <translation>%1 se ejecutó; los minutos de espera no se pueden fijar en este SAI, vuelve según sus propios ajustes.</translation>
    </message>
    <message>
        <source>%1 was carried out.</source>
        <translation>%1 se ejecutó.</translation>
    </message>
    <message>
        <source>%1 %2 was not sent.</source>
        <translation>%1 %2 no se envió.</translation>
    </message>
    <message>
        <source>%1 Nothing was sent.</source>
        <translation>%1 No se envió nada.</translation>
    </message>
</context>
<context>
    <name>NutPoll</name>
    <message>
        <source>The link to the server is in plain text: others on the network can read and change what it says.</source>
        <translation>El enlace con el servidor va en claro: otros en la red pueden leer y cambiar lo que dice.</translation>
    </message>
    <message>
        <source>The link to the server is encrypted, but not trusted: %1</source>
        <translation>El enlace con el servidor está cifrado, pero no es fiable: %1</translation>
    </message>
</context>
<context>
    <name>NutProtocol</name>
    <message>
        <source>The server answers, but its driver has brought no new data for a while; check the cable between server and UPS.</source>
        <translation>El servidor responde, pero su controlador hace tiempo que no trae datos nuevos; revise el cable entre servidor y SAI.</translation>
    </message>
    <message>
        <source>The server answers, but the driver of this UPS is not running; start it on the server.</source>
        <translation>El servidor responde, pero el controlador de este SAI no está en marcha; inícielo en el servidor.</translation>
    </message>
    <message>
        <source>The server denies access: wrong password or too few rights. Check user and password in the configuration, and the user&apos;s actions and instcmds in upsd.users on the server.</source>
        <translation>El servidor deniega el acceso: contraseña incorrecta o pocos permisos. Revise usuario y contraseña en la configuración, y actions e instcmds del usuario en upsd.users en el servidor.</translation>
    </message>
    <message>
        <source>The server knows no UPS of this name; compare the address with the server&apos;s list of devices.</source>
        <translation>El servidor no conoce ningún SAI con este nombre; compare la dirección con la lista de equipos del servidor.</translation>
    </message>
    <message>
        <source>The server wants a user and a password; add them in the configuration.</source>
        <translation>El servidor quiere usuario y contraseña; añádalos en la configuración.</translation>
    </message>
    <message>
        <source>The server wants a password; add it in the configuration.</source>
        <translation>El servidor quiere una contraseña; añádala en la configuración.</translation>
    </message>
    <message>
        <source>The server does not accept the user; correct it in the configuration.</source>
        <translation>El servidor no acepta el usuario; corríjalo en la configuración.</translation>
    </message>
    <message>
        <source>The server does not accept the password; correct it in the configuration.</source>
        <translation>El servidor no acepta la contraseña; corríjala en la configuración.</translation>
    </message>
    <message>
        <source>The UPS does not support this command.</source>
        <translation>El SAI no admite esta orden.</translation>
    </message>
    <message>
        <source>The UPS does not have this setting.</source>
        <translation>El SAI no tiene este ajuste.</translation>
    </message>
    <message>
        <source>The UPS does not let this setting be changed.</source>
        <translation>El SAI no deja cambiar este ajuste.</translation>
    </message>
    <message>
        <source>The value is too long for this setting.</source>
        <translation>El valor es demasiado largo para este ajuste.</translation>
    </message>
    <message>
        <source>The UPS does not accept this value.</source>
        <translation>El SAI no acepta este valor.</translation>
    </message>
    <message>
        <source>The server or its driver does not accept the request.</source>
        <translation>El servidor o su controlador no acepta la petición.</translation>
    </message>
    <message>
        <source>The server could not hand the command to its driver.</source>
        <translation>El servidor no pudo pasar la orden a su controlador.</translation>
    </message>
    <message>
        <source>The server could not hand the setting to its driver.</source>
        <translation>El servidor no pudo pasar el ajuste a su controlador.</translation>
    </message>
    <message>
        <source>The UPS or its driver reports that it failed.</source>
        <translation>El SAI o su controlador comunica que falló.</translation>
    </message>
    <message>
        <source>The driver of this UPS does not know this command or setting.</source>
        <translation>El controlador de este SAI no conoce esta orden o este ajuste.</translation>
    </message>
    <message>
        <source>What %1 answers is not the language of a NUT server; check host and port.</source>
        <translation>Lo que responde %1 no es el lenguaje de un servidor NUT; revise host y puerto.</translation>
    </message>
    <message>
        <source>The server refuses the request without saying why.</source>
        <translation>El servidor rechaza la petición sin decir por qué.</translation>
    </message>
    <message>
        <source>The server refuses the request: %1.</source>
        <translation>El servidor rechaza la petición: %1.</translation>
    </message>
</context>
<context>
    <name>NutReading</name>
    <message>
        <source>Input</source>
        <translation>Entrada</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Salida</translation>
    </message>
    <message>
        <source>Bypass</source>
        <translation>Bypass</translation>
    </message>
    <message>
        <source>voltage</source>
        <translation>tensión</translation>
    </message>
    <message>
        <source>current</source>
        <translation>corriente</translation>
    </message>
    <message>
        <source>power</source>
        <translation>potencia</translation>
    </message>
    <message>
        <source>load</source>
        <translation>carga</translation>
    </message>
    <message>
        <source>%1 voltages are line to line.</source>
        <translation>%1: tensiones entre fases.</translation>
    </message>
    <message>
        <source>%1: one value for all lines (%2), shown in the first.</source>
        <translation>%1: un valor para todas las fases (%2), mostrado en la primera.</translation>
    </message>
    <message>
        <source>Battery depleted: derived from a charge of 0 %.</source>
        <translation>Batería agotada: deducido de una carga del 0 %.</translation>
    </message>
    <message>
        <source>The driver has just started and has no data yet; the source of power is unknown.</source>
        <translation>El controlador acaba de iniciarse y aún no tiene datos; la fuente de alimentación es desconocida.</translation>
    </message>
    <message>
        <source>The UPS does not say where its power comes from.</source>
        <translation>El SAI no dice de dónde viene su alimentación.</translation>
    </message>
    <message>
        <source>Humidity %1</source>
        <translation>Humedad %1</translation>
    </message>
</context>
<context>
    <name>NutTrust</name>
    <message>
        <source>%1 port %2</source>
        <translation>%1 puerto %2</translation>
    </message>
    <message>
        <source>the certificate is not the one that the configuration names.</source>
        <translation>el certificado no es el que nombra la configuración.</translation>
    </message>
    <message>
        <source>the server shows no certificate.</source>
        <translation>el servidor no muestra ningún certificado.</translation>
    </message>
</context>
<context>
    <name>NutTrustFields</name>
    <message>
        <source>Where the server offers it; commands only when trusted</source>
        <translation>Si el servidor lo ofrece; órdenes solo si es fiable</translation>
    </message>
    <message>
        <source>Always, and trusted</source>
        <translation>Siempre, y fiable</translation>
    </message>
    <message>
        <source>Off: passwords go in plain text</source>
        <translation>No: las contraseñas van en claro</translation>
    </message>
    <message>
        <source>P&amp;in it</source>
        <translation>&amp;Fijarlo</translation>
    </message>
    <message>
        <source>those of the system; or a PEM file</source>
        <translation>las del sistema; o un archivo PEM</translation>
    </message>
    <message>
        <source>none pinned; the connection test shows it</source>
        <translation>ninguno fijado; la prueba de conexión lo muestra</translation>
    </message>
    <message>
        <source>Trust this certificate, and no other, from now on</source>
        <translation>Confiar en este certificado, y en ningún otro, desde ahora</translation>
    </message>
    <message>
        <source>&amp;Encryption</source>
        <translation>Ci&amp;frado</translation>
    </message>
    <message>
        <source>Authorities</source>
        <translation>Autoridades</translation>
    </message>
    <message>
        <source>&amp;Fingerprint</source>
        <translation>&amp;Huella</translation>
    </message>
    <message>
        <source>The file of authorities cannot be read: %1.</source>
        <translation>No se puede leer el archivo de autoridades: %1.</translation>
    </message>
    <message>
        <source>A fingerprint is sha256: and 64 hexadecimal digits.</source>
        <translation>Una huella es sha256: y 64 dígitos hexadecimales.</translation>
    </message>
    <message>
        <source>%1, trusted</source>
        <translation>%1, fiable</translation>
    </message>
    <message>
        <source>%1, not trusted</source>
        <translation>%1, no fiable</translation>
    </message>
</context>
<context>
    <name>OperatorBar</name>
    <message>
        <source>%1, level %2</source>
        <translation>%1, nivel %2</translation>
    </message>
    <message>
        <source>Nobody is logged in</source>
        <translation>Sin sesión</translation>
    </message>
    <message>
        <source>Log out</source>
        <translation>Cerrar sesión</translation>
    </message>
    <message>
        <source>Log in</source>
        <translation>Iniciar sesión</translation>
    </message>
</context>
<context>
    <name>OperatorDesk</name>
    <message>
        <source>&amp;Settings…</source>
        <translation>&amp;Ajustes…</translation>
    </message>
    <message>
        <source>Log-in</source>
        <translation>Inicio de sesión</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>fallido</translation>
    </message>
    <message>
        <source>There is no operator of the name that was given.</source>
        <translation>No hay ningún operador con ese nombre.</translation>
    </message>
    <message>
        <source>The password was wrong.</source>
        <translation>La contraseña era incorrecta.</translation>
    </message>
    <message>
        <source>done</source>
        <translation>hecho</translation>
    </message>
</context>
<context>
    <name>OperatorDialog</name>
    <message>
        <source>Add an operator</source>
        <translation>Añadir un operador</translation>
    </message>
    <message>
        <source>Operator %1</source>
        <translation>Operador %1</translation>
    </message>
    <message>
        <source>0 may look; 1 and above may command and change the desk</source>
        <translation>0 puede mirar; 1 y más pueden dar órdenes y cambiar el puesto</translation>
    </message>
    <message>
        <source>kept</source>
        <translation>conservada</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Nombre</translation>
    </message>
    <message>
        <source>&amp;Level (0 looks, from 1 on commands)</source>
        <translation>Ni&amp;vel (0 mira, desde 1 ordena)</translation>
    </message>
    <message>
        <source>&amp;Password</source>
        <translation>&amp;Contraseña</translation>
    </message>
    <message>
        <source>Once &amp;more</source>
        <translation>&amp;Otra vez</translation>
    </message>
    <message>
        <source>Enter a name.</source>
        <translation>Introduzca un nombre.</translation>
    </message>
    <message>
        <source>There is an operator &quot;%1&quot; already.</source>
        <translation>Ya hay un operador &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The two passwords differ.</source>
        <translation>Las dos contraseñas son distintas.</translation>
    </message>
    <message>
        <source>There is not enough memory to hash the password.</source>
        <translation>No hay memoria suficiente para cifrar la contraseña.</translation>
    </message>
    <message>
        <source>Hashing the password …</source>
        <translation>Cifrando la contraseña …</translation>
    </message>
</context>
<context>
    <name>OperatorEdits</name>
    <message>
        <source>one operator of level %1 or above must remain, or nobody could change the desk any more</source>
        <translation>debe quedar un operador de nivel %1 o superior, o nadie podría cambiar ya el puesto</translation>
    </message>
    <message>
        <source>a level lies between %1 and %2</source>
        <translation>un nivel está entre %1 y %2</translation>
    </message>
    <message>
        <source>a password has at least %1 characters</source>
        <translation>una contraseña tiene al menos %1 caracteres</translation>
    </message>
</context>
<context>
    <name>OperatorSession</name>
    <message>
        <source>%1 may look, but not change: that takes level %2.</source>
        <translation>%1 puede mirar, pero no cambiar: hace falta el nivel %2.</translation>
    </message>
    <message>
        <source>Log in first: devices and settings are changed by operators.</source>
        <translation>Inicie sesión antes: los operadores cambian equipos y ajustes.</translation>
    </message>
    <message>
        <source>Too many failed attempts. Try again in %1 s.</source>
        <translation>Demasiados intentos fallidos. Inténtelo de nuevo en %1 s.</translation>
    </message>
    <message>
        <source>Name or password is wrong.</source>
        <translation>El nombre o la contraseña es incorrecto.</translation>
    </message>
</context>
<context>
    <name>OperatorsPage</name>
    <message>
        <source>&amp;Change…</source>
        <translation>Ca&amp;mbiar…</translation>
    </message>
    <message>
        <source>&amp;Remove…</source>
        <translation>&amp;Quitar…</translation>
    </message>
    <message>
        <source>Operators</source>
        <translation>Operadores</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Nivel</translation>
    </message>
    <message>
        <source>While there is no operator, everybody may change the desk and nobody may command a real UPS. Changes here are kept at once.</source>
        <translation>Mientras no haya operador, cualquiera puede cambiar el puesto y nadie puede dar órdenes a un SAI real. Los cambios hechos aquí se guardan de inmediato.</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>Aña&amp;dir…</translation>
    </message>
    <message>
        <source>Operator %1 added, level %2</source>
        <translation>Operador %1 añadido, nivel %2</translation>
    </message>
    <message>
        <source>Operator %1 changed, level %2</source>
        <translation>Operador %1 cambiado, nivel %2</translation>
    </message>
    <message>
        <source>Remove an operator</source>
        <translation>Quitar un operador</translation>
    </message>
    <message>
        <source>Remove the operator &quot;%1&quot;?</source>
        <translation>¿Quitar el operador &quot;%1&quot;?</translation>
    </message>
    <message>
        <source>Who is logged in by this name is logged out.</source>
        <translation>Se cierra la sesión de quien la tenga iniciada con este nombre.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>Operator %1 removed</source>
        <translation>Operador %1 quitado</translation>
    </message>
</context>
<context>
    <name>OutageTable</name>
    <message>
        <source>Outages</source>
        <translation>Cortes</translation>
    </message>
    <message>
        <source>Double-click or Enter shows the outage in the charts.</source>
        <translation>Doble clic o Intro muestra el corte en los gráficos.</translation>
    </message>
    <message>
        <source>Mains lost</source>
        <translation>Red perdida</translation>
    </message>
    <message>
        <source>Mains back</source>
        <translation>Red de vuelta</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Lowest charge</source>
        <translation>Carga mínima</translation>
    </message>
    <message>
        <source>still on battery</source>
        <translation>aún en batería</translation>
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
        <translation>Todos los equipos</translation>
    </message>
    <message>
        <source>Nothing matches “%1”.</source>
        <translation>Nada coincide con «%1».</translation>
    </message>
</context>
<context>
    <name>PostgresStore</name>
    <message>
        <source>%1 does not let this user in; look at the password</source>
        <translation>%1 no deja entrar a este usuario; mire la contraseña</translation>
    </message>
    <message>
        <source>%1: there is no such database; create it</source>
        <translation>%1: no existe esa base de datos; créela</translation>
    </message>
    <message>
        <source>%1: the user may not do this; look at its rights</source>
        <translation>%1: el usuario no tiene permiso; mire sus derechos</translation>
    </message>
    <message>
        <source>%1 is read-only</source>
        <translation>%1 es de solo lectura</translation>
    </message>
    <message>
        <source>the disk of %1 is full</source>
        <translation>el disco de %1 está lleno</translation>
    </message>
    <message>
        <source>%1 has too many connections</source>
        <translation>%1 tiene demasiadas conexiones</translation>
    </message>
    <message>
        <source>%1: a table is locked by another program</source>
        <translation>%1: otro programa tiene bloqueada una tabla</translation>
    </message>
    <message>
        <source>%1 is shutting down or starting up</source>
        <translation>%1 se está apagando o iniciando</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 no responde</translation>
    </message>
</context>
<context>
    <name>PrivateFile</name>
    <message>
        <source>%1 is not a file</source>
        <translation>%1 no es un archivo</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>no se puede leer %1: %2</translation>
    </message>
    <message>
        <source>%1 is longer than %2 bytes; it is not read</source>
        <translation>%1 supera los %2 bytes; no se lee</translation>
    </message>
    <message>
        <source>cannot make the folder %1</source>
        <translation>no se puede crear la carpeta %1</translation>
    </message>
    <message>
        <source>%1 is not written: another upsdesk is writing it, or its folder is read-only</source>
        <translation>%1 no se escribe: otro upsdesk lo está escribiendo, o su carpeta es de solo lectura</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>no se puede escribir %1: %2</translation>
    </message>
</context>
<context>
    <name>Recorder</name>
    <message>
        <source>Recording ended</source>
        <translation>Registro terminado</translation>
    </message>
    <message>
        <source>Recording began</source>
        <translation>Registro comenzado</translation>
    </message>
    <message>
        <source>Ended while nothing was recorded.</source>
        <translation>Terminó mientras no se registraba nada.</translation>
    </message>
    <message>
        <source>Ended while the device could not be reached.</source>
        <translation>Terminó mientras el equipo no era accesible.</translation>
    </message>
    <message>
        <source>The device is no longer watched.</source>
        <translation>El equipo ya no se vigila.</translation>
    </message>
    <message>
        <source>The desk&apos;s clock was set forward by %1 s</source>
        <translation>El reloj del puesto se adelantó %1 s</translation>
    </message>
    <message>
        <source>The desk&apos;s clock was set back by %1 s</source>
        <translation>El reloj del puesto se atrasó %1 s</translation>
    </message>
</context>
<context>
    <name>RelayConnector</name>
    <message>
        <source>This desk is a viewer: it polls nothing, the collector of %1 does.</source>
        <translation>Este puesto es un visor: no consulta nada, lo hace el recolector de %1.</translation>
    </message>
    <message>
        <source>this device</source>
        <translation>este equipo</translation>
    </message>
    <message>
        <source>This desk is a viewer and has no way to the device: commands are given at a desk that polls it itself.</source>
        <translation>Este puesto es un visor y no tiene acceso al equipo: las órdenes se dan en un puesto que lo consulta él mismo.</translation>
    </message>
</context>
<context>
    <name>ReplayBar</name>
    <message>
        <source>Back to &amp;live</source>
        <translation>Volver al &amp;directo</translation>
    </message>
    <message>
        <source>Reading …</source>
        <translation>Leyendo …</translation>
    </message>
    <message>
        <source>REPLAY</source>
        <translation>REPRODUCCIÓN</translation>
    </message>
    <message>
        <source>To the reading before</source>
        <translation>A la lectura anterior</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>To the next reading</source>
        <translation>A la lectura siguiente</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>%1x</source>
        <translation>%1x</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Replay: %1</source>
        <translation>Reproducción: %1</translation>
    </message>
    <message>
        <source>stored since %1</source>
        <translation>guardado desde %1</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
</context>
<context>
    <name>ReplayDevice</name>
    <message>
        <source>It was recorded like this.</source>
        <translation>Se registró así.</translation>
    </message>
    <message>
        <source>The past takes no commands.</source>
        <translation>El pasado no admite órdenes.</translation>
    </message>
</context>
<context>
    <name>ReplayPage</name>
    <message>
        <source>This is a replay: the past takes no commands. Go back to live.</source>
        <translation>Esto es una reproducción: el pasado no admite órdenes. Vuelva al directo.</translation>
    </message>
</context>
<context>
    <name>ReplayPlayer</name>
    <message>
        <source>This desk keeps no history.</source>
        <translation>Este puesto no lleva historial.</translation>
    </message>
    <message>
        <source>Nothing is stored of %1 yet.</source>
        <translation>Aún no hay nada guardado de %1.</translation>
    </message>
</context>
<context>
    <name>ResultBanner</name>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>ScaleTable</name>
    <message>
        <source>Quantity</source>
        <translation>Magnitud</translation>
    </message>
    <message>
        <source>Factor</source>
        <translation>Factor</translation>
    </message>
    <message>
        <source>Correction factors</source>
        <translation>Factores de corrección</translation>
    </message>
    <message>
        <source>The factor of %1 is a number above 0, as 0.1.</source>
        <translation>El factor de %1 es un número mayor que 0, como 0.1.</translation>
    </message>
</context>
<context>
    <name>ScenarioPlayer</name>
    <message>
        <source>Simulated day, %1x</source>
        <translation>Día simulado, %1x</translation>
    </message>
    <message>
        <source>Simulated day, %1x: the battery lives so much faster; what is ordered takes its own time.</source>
        <translation>Día simulado, %1x: la batería vive otro tanto más deprisa; lo que se ordena lleva su propio tiempo.</translation>
    </message>
</context>
<context>
    <name>SecretEdit</name>
    <message>
        <source>kept</source>
        <translation>conservada</translation>
    </message>
</context>
<context>
    <name>SecretKeeper</name>
    <message>
        <source>A secret was not kept: %1</source>
        <translation>No se guardó un secreto: %1</translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>&amp;General</source>
        <translation>&amp;General</translation>
    </message>
    <message>
        <source>A device may have an interval of its own; its dialog says which.</source>
        <translation>Un equipo puede tener su propio intervalo; su diálogo dice cuál.</translation>
    </message>
    <message>
        <source>&amp;Thresholds</source>
        <translation>&amp;Umbrales</translation>
    </message>
    <message>
        <source>From here on a live device is conspicuous in list, tiles and heading. Its own alarms count whatever stands here.</source>
        <translation>A partir de aquí un equipo al día llama la atención en lista, mosaico y cabecera. Sus propias alarmas cuentan sea lo que sea lo que ponga aquí.</translation>
    </message>
    <message>
        <source>&amp;Secrets</source>
        <translation>&amp;Secretos</translation>
    </message>
    <message>
        <source>Passwords and keys of devices. Where another place is chosen, those that the desk knows move there. The file is not encrypted: this user and the administrator of this machine can read it.</source>
        <translation>Contraseñas y claves de los equipos. Si se elige otro lugar, los que el puesto conoce se trasladan allí. El archivo no está cifrado: este usuario y el administrador de esta máquina pueden leerlo.</translation>
    </message>
    <message>
        <source>Histor&amp;y</source>
        <translation>&amp;Historial</translation>
    </message>
    <message>
        <source>In a file of yours, or where it says: sqlite:/PATH or postgresql://USER@HOST/DATABASE, the latter encrypted as chosen and checked against the authorities in that file, or those of the system. Followed from the next start on.</source>
        <translation>En un archivo suyo, o donde se indique: sqlite:/RUTA o postgresql://USER@HOST/DATABASE, este cifrado según lo elegido y comprobado con las autoridades de ese archivo, o las del sistema. Se aplica desde el próximo inicio.</translation>
    </message>
    <message>
        <source>&amp;Notifications</source>
        <translation>&amp;Notificaciones</translation>
    </message>
    <message>
        <source>Power failures are told at once, anything else after it has held for one more poll. In quiet hours the desktop is told only what is critical. The command is a program with its arguments; what happened is in its environment (UPSDESK_TEXT and others). Metrics are served at a port of this machine, or at an address like 127.0.0.1:9199.</source>
        <translation>Los cortes de corriente se comunican de inmediato, lo demás cuando dura una consulta más. En horas de silencio el escritorio solo recibe lo crítico. La orden es un programa con sus argumentos; lo ocurrido está en su entorno (UPSDESK_TEXT y otros). Las métricas se sirven en un puerto de esta máquina, o en una dirección como 127.0.0.1:9199.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>&amp;Operators</source>
        <translation>&amp;Operadores</translation>
    </message>
    <message>
        <source>Settings: %1</source>
        <translation>Ajustes: %1</translation>
    </message>
</context>
<context>
    <name>SidePanel</name>
    <message>
        <source>&amp;Worst first</source>
        <translation>Los &amp;peores primero</translation>
    </message>
    <message>
        <source>&amp;All devices</source>
        <translation>&amp;Todos los equipos</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>Filter by name, address or state</source>
        <translation>Nombre, dirección o estado</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Equipos</translation>
    </message>
</context>
<context>
    <name>SimulatedUps</name>
    <message>
        <source>The battery is being tested for %1 s</source>
        <translation>La batería se prueba durante %1 s</translation>
    </message>
    <message>
        <source>The battery is being discharged until it is low</source>
        <translation>La batería se descarga hasta que esté baja</translation>
    </message>
    <message>
        <source>The test has ended</source>
        <translation>El test ha terminado</translation>
    </message>
    <message>
        <source>The output goes off in %1 s</source>
        <translation>La salida se apaga en %1 s</translation>
    </message>
    <message>
        <source>The output goes off in %1 s, for %2 min</source>
        <translation>La salida se apaga en %1 s, durante %2 min</translation>
    </message>
    <message>
        <source>The output is off for %1 s</source>
        <translation>La salida está apagada durante %1 s</translation>
    </message>
    <message>
        <source>The output is on</source>
        <translation>La salida está encendida</translation>
    </message>
    <message>
        <source>This unit does not know the command</source>
        <translation>Este equipo no conoce la orden</translation>
    </message>
    <message>
        <source>The delay is out of range</source>
        <translation>El retardo está fuera de rango</translation>
    </message>
    <message>
        <source>The time of standby is out of range</source>
        <translation>El tiempo de espera está fuera de rango</translation>
    </message>
    <message>
        <source>The duration is out of range</source>
        <translation>La duración está fuera de rango</translation>
    </message>
    <message>
        <source>No test is running</source>
        <translation>No hay ningún test en curso</translation>
    </message>
    <message>
        <source>The output is on already</source>
        <translation>La salida ya está encendida</translation>
    </message>
    <message>
        <source>There are no mains and the battery is low</source>
        <translation>No hay red y la batería está baja</translation>
    </message>
    <message>
        <source>The output is off already</source>
        <translation>La salida ya está apagada</translation>
    </message>
    <message>
        <source>A shutdown is under way already</source>
        <translation>Ya hay un apagado en curso</translation>
    </message>
    <message>
        <source>The output is off</source>
        <translation>La salida está apagada</translation>
    </message>
    <message>
        <source>A test is running already</source>
        <translation>Ya hay un test en curso</translation>
    </message>
    <message>
        <source>The battery carries the load</source>
        <translation>La batería sostiene la carga</translation>
    </message>
    <message>
        <source>The load is on bypass</source>
        <translation>La carga está en bypass</translation>
    </message>
    <message>
        <source>A shutdown is under way</source>
        <translation>Hay un apagado en curso</translation>
    </message>
    <message>
        <source>The output is overloaded</source>
        <translation>La salida está sobrecargada</translation>
    </message>
    <message>
        <source>The battery is not charged enough</source>
        <translation>La batería no tiene carga suficiente</translation>
    </message>
</context>
<context>
    <name>SimulatorConnector</name>
    <message>
        <source>The simulator answers, the simulated UPS behind it is silent</source>
        <translation>El simulador responde, el SAI simulado detrás de él calla</translation>
    </message>
    <message>
        <source>The simulated UPS does not answer</source>
        <translation>El SAI simulado no responde</translation>
    </message>
</context>
<context>
    <name>SimulatorFields</name>
    <message>
        <source>Scena&amp;rio</source>
        <translation>Escena&amp;rio</translation>
    </message>
    <message>
        <source>The simulator has no such scenario; choose one.</source>
        <translation>El simulador no tiene ese escenario; elija uno.</translation>
    </message>
    <message>
        <source>Simulator</source>
        <translation>Simulador</translation>
    </message>
    <message>
        <source>Simulator %1</source>
        <translation>Simulador %1</translation>
    </message>
</context>
<context>
    <name>SimulatorScenarios</name>
    <message>
        <source>simulated day, 60x</source>
        <translation>día simulado, 60x</translation>
    </message>
    <message>
        <source>mains supply, battery full</source>
        <translation>alimentación de red, batería llena</translation>
    </message>
    <message>
        <source>mains failure, the battery carries the load</source>
        <translation>fallo de red, la batería sostiene la carga</translation>
    </message>
    <message>
        <source>mains failure, battery low and soon empty</source>
        <translation>fallo de red, batería baja y pronto vacía</translation>
    </message>
    <message>
        <source>mains are back, the battery recharges</source>
        <translation>la red ha vuelto, la batería se recarga</translation>
    </message>
    <message>
        <source>the load is on bypass</source>
        <translation>la carga está en bypass</translation>
    </message>
    <message>
        <source>too much load, then transfer to bypass</source>
        <translation>demasiada carga, luego paso a bypass</translation>
    </message>
    <message>
        <source>battery self-test, repeated</source>
        <translation>autotest de batería, repetido</translation>
    </message>
    <message>
        <source>answers at first, then falls silent for a while</source>
        <translation>responde al principio, luego calla un rato</translation>
    </message>
    <message>
        <source>the link comes and goes</source>
        <translation>el enlace va y viene</translation>
    </message>
    <message>
        <source>Single-phase UPS: %1</source>
        <translation>SAI monofásico: %1</translation>
    </message>
    <message>
        <source>Three-phase UPS: %1</source>
        <translation>SAI trifásico: %1</translation>
    </message>
    <message>
        <source>Unknown scenario &quot;%1&quot;; known are %2, and sim: alone for the whole day%3</source>
        <translation>Escenario desconocido &quot;%1&quot;; se conocen %2, y sim: solo para el día entero%3</translation>
    </message>
</context>
<context>
    <name>SnmpCommand</name>
    <message>
        <source>The agent does not answer; nothing was set.</source>
        <translation>El agente no responde; no se fijó nada.</translation>
    </message>
    <message>
        <source>%1. The command was sent before; look at the readings before sending it again.</source>
        <translation>%1. La orden se envió antes; mire las lecturas antes de enviarla de nuevo.</translation>
    </message>
    <message>
        <source>The agent fell silent after the command was sent; it is not known whether the device carried it out. It was not sent again.</source>
        <translation>El agente calló tras enviarse la orden; no se sabe si el equipo la ejecutó. No se envió otra vez.</translation>
    </message>
    <message>
        <source>A test is already in progress.</source>
        <translation>Ya hay un test en curso.</translation>
    </message>
    <message>
        <source>No test is in progress.</source>
        <translation>No hay ningún test en curso.</translation>
    </message>
    <message>
        <source>The device has no test objects.</source>
        <translation>El equipo no tiene objetos de test.</translation>
    </message>
    <message>
        <source>The shutdown delay of %1 s is not shorter than the standby.</source>
        <translation>El retardo de apagado de %1 s no es más corto que la espera.</translation>
    </message>
    <message>
        <source>The device has no object for this command (%1).</source>
        <translation>El equipo no tiene ningún objeto para esta orden (%1).</translation>
    </message>
    <message>
        <source>No answer to the first step of the command; the shutdown was not sent.</source>
        <translation>Sin respuesta al primer paso de la orden; el apagado no se envió.</translation>
    </message>
    <message>
        <source>No answer to the command, and the device shows no effect of it. It was not sent again.</source>
        <translation>Sin respuesta a la orden, y el equipo no muestra efecto. No se envió otra vez.</translation>
    </message>
    <message>
        <source>The agent accepted the command, but the output was on before: nothing shows whether the device followed it.</source>
        <translation>El agente aceptó la orden, pero la salida ya estaba encendida: nada muestra si el equipo la siguió.</translation>
    </message>
    <message>
        <source>The agent accepted the command, but the output was off before: nothing shows whether the device followed it.</source>
        <translation>El agente aceptó la orden, pero la salida ya estaba apagada: nada muestra si el equipo la siguió.</translation>
    </message>
    <message>
        <source>The agent accepted the command, but the device shows no effect of it.</source>
        <translation>El agente aceptó la orden, pero el equipo no muestra efecto.</translation>
    </message>
    <message>
        <source>The test has ended.</source>
        <translation>El test ha terminado.</translation>
    </message>
    <message>
        <source>The test has begun.</source>
        <translation>El test ha comenzado.</translation>
    </message>
    <message>
        <source>The test has ended. %1</source>
        <translation>El test ha terminado. %1</translation>
    </message>
    <message>
        <source>The test failed. %1</source>
        <translation>El test ha fallado. %1</translation>
    </message>
    <message>
        <source>The test was aborted. %1</source>
        <translation>El test se interrumpió. %1</translation>
    </message>
    <message>
        <source>The output is on.</source>
        <translation>La salida está encendida.</translation>
    </message>
    <message>
        <source>The output is off.</source>
        <translation>La salida está apagada.</translation>
    </message>
    <message>
        <source>The countdown is running, %1 s left.</source>
        <translation>La cuenta atrás corre, quedan %1 s.</translation>
    </message>
    <message>
        <source>The device does not offer this command (%1 cannot be set).</source>
        <translation>El equipo no ofrece esta orden (%1 no se puede fijar).</translation>
    </message>
    <message>
        <source>The agent does not let %1 be set: the %2 needs write access.</source>
        <translation>El agente no deja fijar %1: %2 necesita acceso de escritura.</translation>
    </message>
    <message>
        <source>The device does not accept the value for %1.</source>
        <translation>El equipo no acepta el valor para %1.</translation>
    </message>
    <message>
        <source>The device cannot do this now (SNMP error %1 at %2).</source>
        <translation>El equipo no puede hacerlo ahora (error SNMP %1 en %2).</translation>
    </message>
</context>
<context>
    <name>SnmpFields</name>
    <message>
        <source>No authentication, no encryption</source>
        <translation>Sin autenticación ni cifrado</translation>
    </message>
    <message>
        <source>Authentication, no encryption</source>
        <translation>Autenticación, sin cifrado</translation>
    </message>
    <message>
        <source>Authentication and encryption</source>
        <translation>Autenticación y cifrado</translation>
    </message>
    <message>
        <source>the agent&apos;s own</source>
        <translation>el del agente</translation>
    </message>
    <message>
        <source>&amp;Host</source>
        <translation>&amp;Host</translation>
    </message>
    <message>
        <source>&amp;Version</source>
        <translation>&amp;Versión</translation>
    </message>
    <message>
        <source>Comm&amp;unity</source>
        <translation>Com&amp;unidad</translation>
    </message>
    <message>
        <source>&amp;User</source>
        <translation>&amp;Usuario</translation>
    </message>
    <message>
        <source>&amp;Security</source>
        <translation>&amp;Seguridad</translation>
    </message>
    <message>
        <source>Authent&amp;ication</source>
        <translation>Autent&amp;icación</translation>
    </message>
    <message>
        <source>Authentication secret</source>
        <translation>Secreto de autenticación</translation>
    </message>
    <message>
        <source>Encr&amp;yption</source>
        <translation>Ci&amp;frado</translation>
    </message>
    <message>
        <source>Encryption secret</source>
        <translation>Secreto de cifrado</translation>
    </message>
    <message>
        <source>Conte&amp;xt</source>
        <translation>Conte&amp;xto</translation>
    </message>
    <message>
        <source>&amp;Range</source>
        <translation>&amp;Rango</translation>
    </message>
    <message>
        <source>Enter the user of SNMPv3.</source>
        <translation>Introduzca el usuario de SNMPv3.</translation>
    </message>
    <message>
        <source>A secret of SNMPv3 has at least %1 characters.</source>
        <translation>Un secreto de SNMPv3 tiene al menos %1 caracteres.</translation>
    </message>
</context>
<context>
    <name>SnmpPeer</name>
    <message>
        <source>The name server does not answer for %1</source>
        <translation>El servidor de nombres no responde por %1</translation>
    </message>
    <message>
        <source>user &quot;%1&quot;</source>
        <translation>el usuario &quot;%1&quot;</translation>
    </message>
    <message>
        <source>community</source>
        <translation>la comunidad</translation>
    </message>
</context>
<context>
    <name>SnmpPoll</name>
    <message>
        <source>not a UPS: %1 answers SNMP but has no UPS-MIB objects</source>
        <translation>no es un SAI: %1 responde por SNMP pero no tiene objetos UPS-MIB</translation>
    </message>
    <message>
        <source>The agent at %1 answers, but has lost contact with its UPS; what it repeats is not taken for new.</source>
        <translation>El agente de %1 responde, pero ha perdido el contacto con su SAI; lo que repite no se toma por nuevo.</translation>
    </message>
    <message>
        <source>%1 stopped answering, or answers too slowly: a poll did not end within %2 s</source>
        <translation>%1 dejó de responder, o responde demasiado despacio: una consulta no terminó en %2 s</translation>
    </message>
    <message>
        <source>Silent for %1 s: wrong user or context, an agent without SNMPv3, or nothing at %2</source>
        <translation>Callado desde hace %1 s: usuario o contexto incorrecto, un agente sin SNMPv3, o nada en %2</translation>
    </message>
    <message>
        <source>Silent for %1 s: wrong community, an agent without this SNMP version, or nothing at %2</source>
        <translation>Callado desde hace %1 s: comunidad incorrecta, un agente sin esta versión de SNMP, o nada en %2</translation>
    </message>
</context>
<context>
    <name>SnmpPort</name>
    <message>
        <source>upsdesk has as many files open as this computer allows it (%1; see &quot;ulimit -n&quot;)</source>
        <translation>upsdesk tiene abiertos tantos archivos como permite este ordenador (%1; véase &quot;ulimit -n&quot;)</translation>
    </message>
</context>
<context>
    <name>SnmpReading</name>
    <message>
        <source>Alarms counted, but not named: %1</source>
        <translation>Alarmas contadas, pero sin nombre: %1</translation>
    </message>
</context>
<context>
    <name>SnmpSession</name>
    <message>
        <source>No SNMP session to %1: %2</source>
        <translation>Sin sesión SNMP con %1: %2</translation>
    </message>
    <message>
        <source>Cannot send to %1: %2</source>
        <translation>No se puede enviar a %1: %2</translation>
    </message>
    <message>
        <source>The request cannot be made: %1</source>
        <translation>La petición no se puede formar: %1</translation>
    </message>
    <message>
        <source>Wrong authentication secret or protocol: %1 refuses the digest of user &quot;%2&quot;</source>
        <translation>Secreto o protocolo de autenticación incorrecto: %1 rechaza el resumen del usuario &quot;%2&quot;</translation>
    </message>
    <message>
        <source>Unknown user &quot;%1&quot; at %2</source>
        <translation>Usuario desconocido &quot;%1&quot; en %2</translation>
    </message>
    <message>
        <source>%1 does not allow user &quot;%2&quot; the level %3</source>
        <translation>%1 no permite al usuario &quot;%2&quot; el nivel %3</translation>
    </message>
    <message>
        <source>Wrong privacy secret or protocol: %1 cannot decrypt what user &quot;%2&quot; sends</source>
        <translation>Secreto o protocolo de cifrado incorrecto: %1 no puede descifrar lo que envía el usuario &quot;%2&quot;</translation>
    </message>
    <message>
        <source>%1 refuses the SNMPv3 message: %2</source>
        <translation>%1 rechaza el mensaje SNMPv3: %2</translation>
    </message>
    <message>
        <source>%1 answers, but not what user &quot;%2&quot; sends: wrong privacy secret or protocol, or unknown context</source>
        <translation>%1 responde, pero no a lo que envía el usuario &quot;%2&quot;: secreto o protocolo de cifrado incorrecto, o contexto desconocido</translation>
    </message>
</context>
<context>
    <name>SnmpUsers</name>
    <message>
        <source>SNMPv3 secrets have at least %1 characters; the %2 secret is shorter or missing.</source>
        <translation>Los secretos de SNMPv3 tienen al menos %1 caracteres; el de %2 es más corto o falta.</translation>
    </message>
    <message>
        <source>authentication</source>
        <translation>autenticación</translation>
    </message>
    <message>
        <source>privacy</source>
        <translation>cifrado</translation>
    </message>
    <message>
        <source>The SNMP library of this computer has no authentication with &quot;%1&quot;.</source>
        <translation>La biblioteca SNMP de este ordenador no tiene autenticación con &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The SNMP library cannot make keys of these secrets.</source>
        <translation>La biblioteca SNMP no puede hacer claves de estos secretos.</translation>
    </message>
    <message>
        <source>The SNMP library of this computer has no privacy with &quot;%1&quot;.</source>
        <translation>La biblioteca SNMP de este ordenador no tiene cifrado con &quot;%1&quot;.</translation>
    </message>
</context>
<context>
    <name>SqliteStore</name>
    <message>
        <source>%1 is locked by another program</source>
        <translation>otro programa tiene bloqueado %1</translation>
    </message>
    <message>
        <source>%1 may not be written; look at its permissions</source>
        <translation>%1 no se puede escribir; mire sus permisos</translation>
    </message>
    <message>
        <source>%1 cannot be read or written; the disk is at fault</source>
        <translation>%1 no se puede leer ni escribir; falla el disco</translation>
    </message>
    <message>
        <source>%1 is damaged; move it away and a new one is begun</source>
        <translation>%1 está dañado; apártelo y se comienza uno nuevo</translation>
    </message>
    <message>
        <source>the disk of %1 is full</source>
        <translation>el disco de %1 está lleno</translation>
    </message>
    <message>
        <source>%1 cannot be opened; look at its folder</source>
        <translation>%1 no se puede abrir; mire su carpeta</translation>
    </message>
    <message>
        <source>%1 is no history; move it away</source>
        <translation>%1 no es un historial; apártelo</translation>
    </message>
    <message>
        <source>there is no history yet: %1 does not exist</source>
        <translation>aún no hay historial: %1 no existe</translation>
    </message>
    <message>
        <source>cannot make the folder %1</source>
        <translation>no se puede crear la carpeta %1</translation>
    </message>
</context>
<context>
    <name>StoreAddress</name>
    <message>
        <source>store is sqlite:PATH or postgresql://USER@HOST[:PORT]/DATABASE</source>
        <translation>store es sqlite:PATH o postgresql://USER@HOST[:PORT]/DATABASE</translation>
    </message>
    <message>
        <source>a password does not belong in the store&apos;s address but in the keychain, or in UPSDESK_HISTORY_SECRET</source>
        <translation>una contraseña no va en la dirección del almacén sino en el llavero, o en UPSDESK_HISTORY_SECRET</translation>
    </message>
    <message>
        <source>the path of the store begins with /: sqlite:/PATH</source>
        <translation>la ruta del almacén empieza por /: sqlite:/PATH</translation>
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
        <translation>%1 días %2 h</translation>
    </message>
</context>
<context>
    <name>TrayIcon</name>
    <message>
        <source>&amp;Show the desk</source>
        <translation>&amp;Mostrar el puesto</translation>
    </message>
    <message>
        <source>&amp;Mute sounds</source>
        <translation>&amp;Silenciar</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
</context>
<context>
    <name>UpsCommand</name>
    <message>
        <source>Self-test</source>
        <translation>Autotest</translation>
    </message>
    <message>
        <source>Discharge test to low voltage</source>
        <translation>Descarga hasta tensión baja</translation>
    </message>
    <message>
        <source>Cancel test</source>
        <translation>Cancelar test</translation>
    </message>
    <message>
        <source>Shutdown</source>
        <translation>Apagado</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Espera</translation>
    </message>
    <message>
        <source>Wake up from standby</source>
        <translation>Salir de la espera</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Reinicio</translation>
    </message>
    <message>
        <source>Standby takes a number of minutes from 1 to %1; nothing was sent.</source>
        <translation>La espera lleva un número de minutos de 1 a %1; no se envió nada.</translation>
    </message>
    <message>
        <source>The event %1 is no command that this desk carries out.</source>
        <translation>El evento %1 no es una orden que este puesto ejecute.</translation>
    </message>
    <message>
        <source>The command %1 takes no value.</source>
        <translation>La orden %1 no lleva valor.</translation>
    </message>
    <message>
        <source>Unknown command &quot;%1&quot;; known are %2%3</source>
        <translation>Orden desconocida &quot;%1&quot;; se conocen %2%3</translation>
    </message>
    <message>
        <source>%1 for %2 min</source>
        <translation>%1 durante %2 min</translation>
    </message>
    <message>
        <source>done</source>
        <translation>hecho</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>rechazado</translation>
    </message>
    <message>
        <source>not offered by this device</source>
        <translation>no ofrecido por este equipo</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>sin respuesta</translation>
    </message>
    <message>
        <source>sent, result unknown</source>
        <translation>enviada, resultado desconocido</translation>
    </message>
</context>
<context>
    <name>Urgency</name>
    <message>
        <source>Connecting</source>
        <translation>Conectando</translation>
    </message>
    <message>
        <source>On mains</source>
        <translation>En red</translation>
    </message>
    <message>
        <source>On mains, boosting</source>
        <translation>En red, eleva</translation>
    </message>
    <message>
        <source>On mains, reducing</source>
        <translation>En red, reduce</translation>
    </message>
    <message>
        <source>On battery</source>
        <translation>En batería</translation>
    </message>
    <message>
        <source>Battery test</source>
        <translation>Test de batería</translation>
    </message>
    <message>
        <source>On bypass</source>
        <translation>En bypass</translation>
    </message>
    <message>
        <source>Output off</source>
        <translation>Salida apagada</translation>
    </message>
    <message>
        <source>Source unknown</source>
        <translation>Fuente desconocida</translation>
    </message>
    <message>
        <source>No new data</source>
        <translation>Sin datos nuevos</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>Sin respuesta</translation>
    </message>
    <message>
        <source>Refused</source>
        <translation>Rechazado</translation>
    </message>
    <message>
        <source>low</source>
        <translation>baja</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>vacía</translation>
    </message>
    <message>
        <source>Little time left</source>
        <translation>Queda poco tiempo</translation>
    </message>
    <message>
        <source>little time left</source>
        <translation>queda poco tiempo</translation>
    </message>
    <message>
        <source>Battery at %1 %</source>
        <translation>Batería al %1 %</translation>
    </message>
    <message>
        <source>battery at %1 %</source>
        <translation>batería al %1 %</translation>
    </message>
    <message>
        <source>%1 % left</source>
        <translation>queda %1 %</translation>
    </message>
    <message>
        <source>Load %1 %</source>
        <translation>Carga %1 %</translation>
    </message>
    <message>
        <source>load %1 %</source>
        <translation>carga %1 %</translation>
    </message>
    <message>
        <source>Alarm %1</source>
        <translation>Alarma %1</translation>
    </message>
    <message>
        <source>Battery at %1 °C</source>
        <translation>Batería a %1 °C</translation>
    </message>
    <message>
        <source>battery at %1 °C</source>
        <translation>batería a %1 °C</translation>
    </message>
</context>
<context>
    <name>Viewer</name>
    <message>
        <source>mode = viewer needs the PostgreSQL database that the collectors write (store = postgresql://USER@HOST/DATABASE)</source>
        <translation>mode = viewer necesita la base de datos PostgreSQL que escriben los recolectores (store = postgresql://USER@HOST/DATABASE)</translation>
    </message>
    <message>
        <source>The collector of %1 has been silent since %2.</source>
        <translation>El recolector de %1 calla desde %2.</translation>
    </message>
    <message>
        <source>this device</source>
        <translation>este equipo</translation>
    </message>
    <message>
        <source>The shared store has not answered since %1.</source>
        <translation>El almacén común no responde desde %1.</translation>
    </message>
</context>
<context>
    <name>ViewerLine</name>
    <message>
        <source>one without a name</source>
        <translation>uno sin nombre</translation>
    </message>
    <message>
        <source>%1 for %2</source>
        <translation>%1 desde hace %2</translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>%n más</numerusform>
            <numerusform>%n más</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 collectors silent: %3</source>
        <translation>%1 de %2 recolectores callados: %3</translation>
    </message>
    <message>
        <source>The shared store is not reached: %1</source>
        <translation>No se alcanza el almacén común: %1</translation>
    </message>
    <message>
        <source>No collector has written into the shared store yet.</source>
        <translation>Ningún recolector ha escrito aún en el almacén común.</translation>
    </message>
    <message>
        <source>Viewer of one collector; its word is at most %1 old</source>
        <translation>Visor de un recolector; su palabra tiene como máximo %1</translation>
    </message>
    <message>
        <source>Viewer of %1 collectors; their word is at most %2 old</source>
        <translation>Visor de %1 recolectores; su palabra tiene como máximo %2</translation>
    </message>
    <message>
        <source>Waiting for the shared store</source>
        <translation>Esperando al almacén común</translation>
    </message>
</context>
<context>
    <name>WatchList</name>
    <message>
        <source>Device added</source>
        <translation>Equipo añadido</translation>
    </message>
    <message>
        <source>Device changed</source>
        <translation>Equipo cambiado</translation>
    </message>
    <message>
        <source>Device changed, was &quot;%1&quot;</source>
        <translation>Equipo cambiado, era &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Device removed</source>
        <translation>Equipo quitado</translation>
    </message>
    <message>
        <source>there is no such place in the list of devices</source>
        <translation>no existe ese lugar en la lista de equipos</translation>
    </message>
    <message>
        <source>%1 was changed by another program and has faults now (line %2: %3); mend it with a text editor first</source>
        <translation>%1 fue cambiado por otro programa y ahora tiene fallos (línea %2: %3); corríjalo antes con un editor de texto</translation>
    </message>
    <message>
        <source>%1 was changed by another program and has been read again. Nothing else was changed; look at the devices and repeat the change</source>
        <translation>%1 fue cambiado por otro programa y se ha leído de nuevo. No se cambió nada más; mire los equipos y repita el cambio</translation>
    </message>
</context>
<context>
    <name>WebhookChannel</name>
    <message>
        <source>it answered with status %1</source>
        <translation>respondió con el estado %1</translation>
    </message>
    <message>
        <source>no answer in time</source>
        <translation>sin respuesta a tiempo</translation>
    </message>
    <message>
        <source>connection failed (%1)</source>
        <translation>falló la conexión (%1)</translation>
    </message>
    <message>
        <source>The webhook at %1 did not take a notification: %2.</source>
        <translation>El webhook de %1 no aceptó una notificación: %2.</translation>
    </message>
    <message>
        <source>The webhook at %1 takes nothing: %2 notifications wait for it.</source>
        <translation>El webhook de %1 no acepta nada: %2 notificaciones esperan por él.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>--collector takes its devices from the configuration and no further arguments</source>
        <translation>--collector toma sus equipos de la configuración y ningún otro argumento</translation>
    </message>
</context>
</TS>
