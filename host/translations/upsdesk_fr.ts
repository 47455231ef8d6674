<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>AddOperator</name>
    <message>
        <source>not enough memory to hash the password</source>
        <translation>pas assez de mémoire pour hacher le mot de passe</translation>
    </message>
</context>
<context>
    <name>AddressRange</name>
    <message>
        <source>Enter a range as 10.0.0.0/24, 10.0.0.5-10.0.0.60 or 10.0.0.5-60.</source>
        <translation>Saisir une plage comme 10.0.0.0/24, 10.0.0.5-10.0.0.60 ou 10.0.0.5-60.</translation>
    </message>
    <message>
        <source>The range has %1 addresses; at most %2 are asked at a time.</source>
        <translation>La plage compte %1 adresses ; %2 au plus sont interrogées à la fois.</translation>
    </message>
</context>
<context>
    <name>Attention</name>
    <message numerus="yes">
        <source>%n UPS(es), none needs attention</source>
        <translation>
            <numerusform>%n ASI, aucune ne demande d&apos;attention</numerusform>
            <numerusform>%n ASI, aucune ne demande d&apos;attention</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n UPS(es) need attention</source>
        <translation>
            <numerusform>%1 ASI sur %n demande attention</numerusform>
            <numerusform>%1 ASI sur %n demandent attention</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CheckConfig</name>
    <message>
        <source>there is no file %1; the defaults apply</source>
        <translation>il n&apos;y a pas de fichier %1 ; les valeurs par défaut s&apos;appliquent</translation>
    </message>
</context>
<context>
    <name>CloseGuard</name>
    <message>
        <source>%1: %2, sent at %3</source>
        <translation>%1 : %2, envoyée à %3</translation>
    </message>
    <message>
        <source>Commands under way</source>
        <translation>Commandes en cours</translation>
    </message>
    <message>
        <source>Close while commands have no result yet?</source>
        <translation>Fermer alors que des commandes n&apos;ont pas encore de résultat ?</translation>
    </message>
    <message>
        <source>%1

A command that was sent is not taken back by closing. It may be left half-done: sent, but not followed to its end, so that its result stays unknown; a command that takes several steps may stop between them.</source>
        <translation>%1

Fermer n&apos;annule pas une commande envoyée. Elle peut rester inachevée : envoyée, mais pas suivie jusqu&apos;au bout, si bien que son résultat reste inconnu ; une commande en plusieurs étapes peut s&apos;arrêter entre deux.</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>&amp;Fermer</translation>
    </message>
</context>
<context>
    <name>CommandChannel</name>
    <message>
        <source>The command for notifications is too slow: %1 wait for it.</source>
        <translation>La commande de notification est trop lente : %1 l&apos;attendent.</translation>
    </message>
    <message>
        <source>The command for notifications was ended: it crashed or ran longer than %1 s.</source>
        <translation>La commande de notification a été terminée : elle a planté ou duré plus de %1 s.</translation>
    </message>
    <message>
        <source>The command for notifications failed with exit code %1.</source>
        <translation>La commande de notification a échoué avec le code de sortie %1.</translation>
    </message>
    <message>
        <source>The command for notifications cannot be started: %1</source>
        <translation>La commande de notification ne peut pas être lancée : %1</translation>
    </message>
</context>
<context>
    <name>CommandDesk</name>
    <message>
        <source>Nobody who may command this device is logged in.</source>
        <translation>Personne qui puisse commander cet appareil n&apos;est connecté.</translation>
    </message>
    <message>
        <source>%1 may look, but not command: that takes level %2.</source>
        <translation>%1 peut regarder, mais pas commander : il faut le niveau %2.</translation>
    </message>
    <message>
        <source>Unknown command %1</source>
        <translation>Commande inconnue %1</translation>
    </message>
    <message>
        <source>Nobody could be asked whether load may lose power.</source>
        <translation>Il n&apos;y avait personne à qui demander si la charge peut perdre l&apos;alimentation.</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>annulé</translation>
    </message>
    <message>
        <source>Nothing was sent.</source>
        <translation>Rien n&apos;a été envoyé.</translation>
    </message>
    <message>
        <source>The device was removed or changed before it answered.</source>
        <translation>L&apos;appareil a été retiré ou modifié avant de répondre.</translation>
    </message>
    <message>
        <source>The device was removed or changed; nothing was sent.</source>
        <translation>L&apos;appareil a été retiré ou modifié ; rien n&apos;a été envoyé.</translation>
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
        <translation>l&apos;ASI entière</translation>
    </message>
    <message>
        <source>output</source>
        <translation>sortie</translation>
    </message>
    <message>
        <source>%1 off at once</source>
        <translation>%1 coupée immédiatement</translation>
    </message>
    <message>
        <source>%1 off within %2</source>
        <translation>%1 coupée dans les %2</translation>
    </message>
    <message>
        <source>%1 off in %2</source>
        <translation>%1 coupée dans %2</translation>
    </message>
    <message>
        <source>output off at once, and on again after the UPS&apos;s own time</source>
        <translation>sortie coupée immédiatement, puis rétablie après le délai propre à l&apos;ASI</translation>
    </message>
    <message>
        <source>output off at once for %1</source>
        <translation>sortie coupée immédiatement pendant %1</translation>
    </message>
    <message>
        <source>%1 for %2 min</source>
        <translation>%1 pendant %2 min</translation>
    </message>
    <message>
        <source>%1 (or by the UPS&apos;s own times, where these are fixed)</source>
        <translation>%1 (ou selon les délais propres à l&apos;ASI, s&apos;ils sont fixes)</translation>
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
        <translation>la charge qui perd l&apos;alimentation n&apos;est pas connue</translation>
    </message>
    <message>
        <source>%1 of load lose power</source>
        <translation>%1 de charge perdent l&apos;alimentation</translation>
    </message>
    <message>
        <source>%1: %2; %3</source>
        <translation>%1 : %2 ; %3</translation>
    </message>
    <message>
        <source>restart, %1</source>
        <translation>redémarrage, %1</translation>
    </message>
</context>
<context>
    <name>ConfigDocument</name>
    <message>
        <source>%1; the line is skipped</source>
        <translation>%1 ; la ligne est ignorée</translation>
    </message>
    <message>
        <source>%1; the section is skipped</source>
        <translation>%1 ; la section est ignorée</translation>
    </message>
    <message>
        <source>[%1] stands already in line %2; this section is skipped</source>
        <translation>[%1] figure déjà à la ligne %2 ; cette section est ignorée</translation>
    </message>
    <message>
        <source>and more; further faults are not listed</source>
        <translation>et d&apos;autres ; les fautes suivantes ne sont pas listées</translation>
    </message>
    <message>
        <source>stands before the first [section]; the line is skipped</source>
        <translation>se trouve avant la première [section] ; la ligne est ignorée</translation>
    </message>
    <message>
        <source>%1 stands already in line %2; the line is skipped</source>
        <translation>%1 figure déjà à la ligne %2 ; la ligne est ignorée</translation>
    </message>
    <message>
        <source>the section has more than %1 keys; the line is skipped</source>
        <translation>la section a plus de %1 clés ; la ligne est ignorée</translation>
    </message>
    <message>
        <source>%1 is not written because it has faults (line %2: %3); mend it with a text editor first</source>
        <translation>%1 n&apos;est pas écrit car il contient des fautes (ligne %2 : %3) ; corrigez-le d&apos;abord avec un éditeur de texte</translation>
    </message>
    <message>
        <source>%1 is not written because it was changed by another program; read it again and repeat the change</source>
        <translation>%1 n&apos;est pas écrit car un autre programme l&apos;a modifié ; relisez-le et recommencez la modification</translation>
    </message>
</context>
<context>
    <name>ConfigKeys</name>
    <message>
        <source>&amp;Poll every</source>
        <translation>&amp;Interroger toutes les</translation>
    </message>
    <message>
        <source>Battery &amp;low below</source>
        <translation>Batterie &amp;faible sous</translation>
    </message>
    <message>
        <source>Battery &amp;critical below</source>
        <translation>Batterie &amp;critique sous</translation>
    </message>
    <message>
        <source>Little time left &amp;below</source>
        <translation>Peu de &amp;temps restant sous</translation>
    </message>
    <message>
        <source>&amp;High load above</source>
        <translation>Charge &amp;haute au-dessus de</translation>
    </message>
    <message>
        <source>Battery too &amp;warm above</source>
        <translation>Batterie trop ch&amp;aude au-dessus de</translation>
    </message>
    <message>
        <source>Log operators out &amp;after</source>
        <translation>&amp;Déconnecter après</translation>
    </message>
    <message>
        <source>Them&amp;e</source>
        <translation>Th&amp;ème</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Clair</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Comme le bureau</translation>
    </message>
    <message>
        <source>Lan&amp;guage</source>
        <translation>Lan&amp;gue</translation>
    </message>
    <message>
        <source>&amp;Motion</source>
        <translation>&amp;Mouvement</translation>
    </message>
    <message>
        <source>Flows move</source>
        <translation>Les flux bougent</translation>
    </message>
    <message>
        <source>Flows stand</source>
        <translation>Les flux sont immobiles</translation>
    </message>
    <message>
        <source>&amp;Keep secrets in</source>
        <translation>&amp;Garder les secrets dans</translation>
    </message>
    <message>
        <source>the desktop&apos;s keychain</source>
        <translation>le trousseau du bureau</translation>
    </message>
    <message>
        <source>a file that only you can read</source>
        <translation>un fichier que vous seul pouvez lire</translation>
    </message>
    <message>
        <source>&amp;Kept in</source>
        <translation>C&amp;onservé dans</translation>
    </message>
    <message>
        <source>This &amp;desk</source>
        <translation>Ce &amp;poste</translation>
    </message>
    <message>
        <source>records</source>
        <translation>enregistre</translation>
    </message>
    <message>
        <source>does not record</source>
        <translation>n&apos;enregistre pas</translation>
    </message>
    <message>
        <source>&amp;Encryption</source>
        <translation>C&amp;hiffrement</translation>
    </message>
    <message>
        <source>always</source>
        <translation>toujours</translation>
    </message>
    <message>
        <source>always with a password</source>
        <translation>toujours avec un mot de passe</translation>
    </message>
    <message>
        <source>never</source>
        <translation>jamais</translation>
    </message>
    <message>
        <source>&amp;Authorities</source>
        <translation>&amp;Autorités</translation>
    </message>
    <message>
        <source>Keep every &amp;poll for</source>
        <translation>Garder chaque &amp;interrogation pendant</translation>
    </message>
    <message>
        <source>&amp;minutes for</source>
        <translation>&amp;minutes pendant</translation>
    </message>
    <message>
        <source>&amp;quarters of an hour and the journal for</source>
        <translation>&amp;quarts d&apos;heure et journal pendant</translation>
    </message>
    <message>
        <source>from warnings on</source>
        <translation>dès les avertissements</translation>
    </message>
    <message>
        <source>from alarms on</source>
        <translation>dès les alarmes</translation>
    </message>
    <message>
        <source>when critical</source>
        <translation>si critique</translation>
    </message>
    <message>
        <source>a time like 22:00</source>
        <translation>une heure comme 22:00</translation>
    </message>
    <message>
        <source>&amp;Desktop notifications</source>
        <translation>Notifications du &amp;bureau</translation>
    </message>
    <message>
        <source>with so&amp;und</source>
        <translation>avec &amp;son</translation>
    </message>
    <message>
        <source>&amp;Quiet from</source>
        <translation>&amp;Silence de</translation>
    </message>
    <message>
        <source>to</source>
        <translation>à</translation>
    </message>
    <message>
        <source>&amp;Command</source>
        <translation>&amp;Commande</translation>
    </message>
    <message>
        <source>&amp;run it</source>
        <translation>&amp;lancer</translation>
    </message>
    <message>
        <source>&amp;Webhook</source>
        <translation>&amp;Webhook</translation>
    </message>
    <message>
        <source>an address that begins with https://</source>
        <translation>une adresse qui commence par https://</translation>
    </message>
    <message>
        <source>t&amp;ell it</source>
        <translation>a&amp;vertir</translation>
    </message>
    <message>
        <source>Serve &amp;metrics at</source>
        <translation>&amp;Métriques servies sur</translation>
    </message>
    <message>
        <source>sha256: and the 64 hexadecimal digits of a certificate&apos;s fingerprint</source>
        <translation>sha256: et les 64 chiffres hexadécimaux de l&apos;empreinte d&apos;un certificat</translation>
    </message>
    <message>
        <source>a whole number from %1 to %2 %3</source>
        <translation>un nombre entier de %1 à %2 %3</translation>
    </message>
    <message>
        <source>yes or no</source>
        <translation>yes ou no</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 ou %2</translation>
    </message>
    <message>
        <source>a text of at most %1 characters</source>
        <translation>un texte de %1 caractères au plus</translation>
    </message>
</context>
<context>
    <name>ConfigLine</name>
    <message>
        <source>the quoted text does not end, or holds an escape other than \&quot; \\ \n \t \uXXXX</source>
        <translation>le texte entre guillemets ne se termine pas, ou contient un échappement autre que \&quot; \\ \n \t \uXXXX</translation>
    </message>
    <message>
        <source>a section looks like [type] or [type &quot;name&quot;]</source>
        <translation>une section s&apos;écrit [type] ou [type &quot;nom&quot;]</translation>
    </message>
    <message>
        <source>only a comment may follow the closing bracket</source>
        <translation>seul un commentaire peut suivre le crochet fermant</translation>
    </message>
    <message>
        <source>neither a [section] nor key = value nor a # comment</source>
        <translation>ni une [section] ni clé = valeur ni un # commentaire</translation>
    </message>
    <message>
        <source>only a comment may follow the closing quote</source>
        <translation>seul un commentaire peut suivre le guillemet fermant</translation>
    </message>
    <message>
        <source>longer than %1 bytes</source>
        <translation>plus long que %1 octets</translation>
    </message>
    <message>
        <source>holds control characters</source>
        <translation>contient des caractères de contrôle</translation>
    </message>
    <message>
        <source>is not UTF-8 text</source>
        <translation>n&apos;est pas du texte UTF-8</translation>
    </message>
</context>
<context>
    <name>ConfigReader</name>
    <message>
        <source>a device or operator needs a name, as in [device &quot;Rack 3&quot;]</source>
        <translation>un appareil ou un opérateur a besoin d&apos;un nom, comme dans [device &quot;Rack 3&quot;]</translation>
    </message>
    <message>
        <source>the name is longer than %1 characters</source>
        <translation>le nom dépasse %1 caractères</translation>
    </message>
    <message>
        <source>the name holds control characters</source>
        <translation>le nom contient des caractères de contrôle</translation>
    </message>
    <message>
        <source>the name starts or ends with a blank</source>
        <translation>le nom commence ou finit par une espace</translation>
    </message>
    <message>
        <source>%1 is %2; %3 is used</source>
        <translation>%1 vaut %2 ; %3 est utilisé</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>charge-critical is above charge-low; %1 is used for both</source>
        <translation>charge-critical est au-dessus de charge-low ; %1 vaut pour les deux</translation>
    </message>
    <message>
        <source>%1; the section is skipped</source>
        <translation>%1 ; la section est ignorée</translation>
    </message>
    <message>
        <source>unknown section &quot;%1&quot;; it is not used. Known are %2, operator and device</source>
        <translation>section inconnue &quot;%1&quot; ; elle n&apos;est pas utilisée. Sont connues %2, operator et device</translation>
    </message>
    <message>
        <source>section %1 takes no name; it is not used</source>
        <translation>la section %1 ne prend pas de nom ; elle n&apos;est pas utilisée</translation>
    </message>
    <message>
        <source>%1 is not used: secrets do not belong in this file but in the keychain, or in the file that [secrets] store = file stands for</source>
        <translation>%1 n&apos;est pas utilisé : les secrets n&apos;ont pas leur place dans ce fichier mais dans le trousseau, ou dans le fichier que désigne [secrets] store = file</translation>
    </message>
    <message>
        <source>unknown key &quot;%1&quot;; it is not used. Known are %2</source>
        <translation>clé inconnue &quot;%1&quot; ; elle n&apos;est pas utilisée. Sont connues %2</translation>
    </message>
    <message>
        <source>the device has no address; it is left out</source>
        <translation>l&apos;appareil n&apos;a pas d&apos;adresse ; il est laissé de côté</translation>
    </message>
    <message>
        <source>%1; the device is left out</source>
        <translation>%1 ; l&apos;appareil est laissé de côté</translation>
    </message>
    <message>
        <source>unknown quantity &quot;%1&quot;; it is not used. Known are %2</source>
        <translation>grandeur inconnue &quot;%1&quot; ; elle n&apos;est pas utilisée. Sont connues %2</translation>
    </message>
    <message>
        <source>%1 is a factor above 0, as 0.1; 1 is used</source>
        <translation>%1 est un facteur supérieur à 0, comme 0.1 ; 1 est utilisé</translation>
    </message>
    <message>
        <source>the operator has no level; 0 is used</source>
        <translation>l&apos;opérateur n&apos;a pas de niveau ; 0 est utilisé</translation>
    </message>
    <message>
        <source>no valid hash; the operator is left out. Set the password with upsdesk add-operator</source>
        <translation>pas de hachage valide ; l&apos;opérateur est laissé de côté. Définir le mot de passe avec upsdesk add-operator</translation>
    </message>
</context>
<context>
    <name>ControlNotice</name>
    <message>
        <source>Log in…</source>
        <translation>Se connecter…</translation>
    </message>
    <message>
        <source>Commands are disabled. %1</source>
        <translation>Les commandes sont désactivées. %1</translation>
    </message>
</context>
<context>
    <name>Desk</name>
    <message>
        <source>line %1: %2</source>
        <translation>ligne %1 : %2</translation>
    </message>
    <message>
        <source>The configuration has faults and is used without them: </source>
        <translation>La configuration contient des fautes et est utilisée sans elles : </translation>
    </message>
    <message>
        <source>Metrics</source>
        <translation>Métriques</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>échec</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Thème</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
</context>
<context>
    <name>DeskConfig</name>
    <message>
        <source>there is no device &quot;%1&quot;</source>
        <translation>il n&apos;y a pas d&apos;appareil &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is a device &quot;%1&quot; already</source>
        <translation>il y a déjà un appareil &quot;%1&quot;</translation>
    </message>
    <message>
        <source>others may read or write %1, and it holds password hashes; chmod 600 ends that</source>
        <translation>d&apos;autres peuvent lire ou écrire %1, et il contient des mots de passe hachés ; chmod 600 y met fin</translation>
    </message>
    <message>
        <source>there is no such place in the list of devices</source>
        <translation>cette place n&apos;existe pas dans la liste des appareils</translation>
    </message>
    <message>
        <source>there is no operator &quot;%1&quot;</source>
        <translation>il n&apos;y a pas d&apos;opérateur &quot;%1&quot;</translation>
    </message>
    <message>
        <source>%1 is not written because it has faults (line %2: %3); mend it with a text editor first</source>
        <translation>%1 n&apos;est pas écrit car il contient des fautes (ligne %2 : %3) ; corrigez-le d&apos;abord avec un éditeur de texte</translation>
    </message>
</context>
<context>
    <name>DeskHistory</name>
    <message>
        <source>Nothing is recorded: %1</source>
        <translation>Rien n&apos;est enregistré : %1</translation>
    </message>
</context>
<context>
    <name>DeskMenu</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>A&amp;ffichage</translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation>A&amp;ppareil</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;ide</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;All devices</source>
        <translation>&amp;Tous les appareils</translation>
    </message>
    <message>
        <source>&amp;Journal</source>
        <translation>&amp;Journal</translation>
    </message>
    <message>
        <source>&amp;Filter the list</source>
        <translation>&amp;Filtrer la liste</translation>
    </message>
    <message>
        <source>Device &amp;list</source>
        <translation>&amp;Liste des appareils</translation>
    </message>
    <message>
        <source>&amp;Events</source>
        <translation>&amp;Événements</translation>
    </message>
    <message>
        <source>F&amp;ull screen</source>
        <translation>&amp;Plein écran</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message>
        <source>&amp;Test connection</source>
        <translation>&amp;Tester la connexion</translation>
    </message>
    <message>
        <source>&amp;Poll now</source>
        <translation>&amp;Interroger maintenant</translation>
    </message>
    <message>
        <source>&amp;Commands</source>
        <translation>&amp;Commandes</translation>
    </message>
    <message>
        <source>Cop&amp;y values</source>
        <translation>Co&amp;pier les valeurs</translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts</source>
        <translation>&amp;Raccourcis clavier</translation>
    </message>
    <message>
        <source>Where the &amp;configuration is</source>
        <translation>Où se trouve la &amp;configuration</translation>
    </message>
    <message>
        <source>&amp;About upsdesk</source>
        <translation>À &amp;propos d&apos;upsdesk</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Clair</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Sombre</translation>
    </message>
    <message>
        <source>As the &amp;system</source>
        <translation>Comme le s&amp;ystème</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>Th&amp;ème</translation>
    </message>
    <message>
        <source>Rep&amp;lay</source>
        <translation>&amp;Rejouer</translation>
    </message>
    <message>
        <source>Lan&amp;guage</source>
        <translation>Lan&amp;gue</translation>
    </message>
</context>
<context>
    <name>DesktopChannel</name>
    <message>
        <source>since %1</source>
        <translation>depuis %1</translation>
    </message>
    <message>
        <source>The desktop shows no notifications: %1</source>
        <translation>Le bureau n&apos;affiche pas de notifications : %1</translation>
    </message>
</context>
<context>
    <name>Device</name>
    <message>
        <source>There has been no new data for a while.</source>
        <translation>Il n&apos;y a pas de nouvelles données depuis un moment.</translation>
    </message>
    <message>
        <source>The poll was not answered in time.</source>
        <translation>L&apos;interrogation n&apos;a pas reçu de réponse à temps.</translation>
    </message>
</context>
<context>
    <name>DeviceActions</name>
    <message>
        <source>A&amp;dd…</source>
        <translation>A&amp;jouter…</translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation>&amp;Modifier…</translation>
    </message>
    <message>
        <source>&amp;Remove…</source>
        <translation>&amp;Supprimer…</translation>
    </message>
    <message>
        <source>Move &amp;up</source>
        <translation>Mon&amp;ter</translation>
    </message>
    <message>
        <source>Move d&amp;own</source>
        <translation>&amp;Descendre</translation>
    </message>
    <message>
        <source>The device is no longer in the list.</source>
        <translation>L&apos;appareil n&apos;est plus dans la liste.</translation>
    </message>
    <message>
        <source>Remove a device</source>
        <translation>Supprimer un appareil</translation>
    </message>
    <message>
        <source>Remove &quot;%1&quot; from the list of devices?</source>
        <translation>Retirer &quot;%1&quot; de la liste des appareils ?</translation>
    </message>
    <message>
        <source>Its settings and secrets are deleted. What was recorded of it stays.</source>
        <translation>Ses réglages et ses secrets sont effacés. Ce qui en a été enregistré reste.</translation>
    </message>
    <message>
        <source>It is not in the configuration; the list loses it until the next start.</source>
        <translation>Il n&apos;est pas dans la configuration ; la liste le perd jusqu&apos;au prochain démarrage.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Add se&amp;veral…</source>
        <translation>Ajouter &amp;plusieurs…</translation>
    </message>
</context>
<context>
    <name>DeviceAddress</name>
    <message>
        <source>&quot;%1&quot; is not one of %2 for %3</source>
        <translation>&quot;%1&quot; n&apos;est pas l&apos;un de %2 pour %3</translation>
    </message>
    <message>
        <source>user and password of a NUT server belong in the configuration, not in the address</source>
        <translation>l&apos;utilisateur et le mot de passe d&apos;un serveur NUT vont dans la configuration, pas dans l&apos;adresse</translation>
    </message>
    <message>
        <source>a NUT address looks like nut://HOST[:PORT]/UPS</source>
        <translation>une adresse NUT s&apos;écrit nut://HOST[:PORT]/UPS</translation>
    </message>
    <message>
        <source>unknown option &quot;%1&quot;; known are %2</source>
        <translation>option inconnue &quot;%1&quot; ; sont connues %2</translation>
    </message>
    <message>
        <source>SNMP secrets belong in the configuration, not in the address</source>
        <translation>les secrets SNMP vont dans la configuration, pas dans l&apos;adresse</translation>
    </message>
    <message>
        <source>SNMPv3 needs a user: snmp://USER@HOST?version=3</source>
        <translation>SNMPv3 a besoin d&apos;un utilisateur : snmp://USER@HOST?version=3</translation>
    </message>
    <message>
        <source>an address starts with sim:, nut:// or snmp://</source>
        <translation>une adresse commence par sim:, nut:// ou snmp://</translation>
    </message>
    <message>
        <source>no valid host or port in the address</source>
        <translation>pas d&apos;hôte ni de port valide dans l&apos;adresse</translation>
    </message>
    <message>
        <source>a port lies between 1 and 65535</source>
        <translation>un port est compris entre 1 et 65535</translation>
    </message>
</context>
<context>
    <name>DeviceAdvanced</name>
    <message>
        <source>Answer &amp;within</source>
        <translation>Ré&amp;ponse en</translation>
    </message>
    <message>
        <source>&amp;Retries</source>
        <translation>&amp;Répétitions</translation>
    </message>
    <message>
        <source>&amp;Shutdown delay</source>
        <translation>&amp;Délai d&apos;arrêt</translation>
    </message>
    <message>
        <source>Off d&amp;uring a restart</source>
        <translation>&amp;Coupée au redémarrage</translation>
    </message>
    <message>
        <source>Shut down the w&amp;hole UPS, not its output alone</source>
        <translation>Arrêter l&apos;ASI &amp;entière, pas seulement sa sortie</translation>
    </message>
    <message>
        <source>For a device that is wrong by a power of ten; empty means 1</source>
        <translation>Pour un appareil qui se trompe d&apos;une puissance de dix ; vide signifie 1</translation>
    </message>
    <message>
        <source>Correction &amp;factors</source>
        <translation>&amp;Facteurs de correction</translation>
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
        <translation>Simulateur</translation>
    </message>
    <message>
        <source>Add a device</source>
        <translation>Ajouter un appareil</translation>
    </message>
    <message>
        <source>Settings of %1</source>
        <translation>Réglages de %1</translation>
    </message>
    <message>
        <source>site or room</source>
        <translation>site ou local</translation>
    </message>
    <message>
        <source>nut://HOST/UPS, snmp://COMMUNITY@HOST or sim:</source>
        <translation>nut://HOST/UPS, snmp://COMMUNITY@HOST ou sim:</translation>
    </message>
    <message>
        <source>The address in one line; paste one here to fill the fields</source>
        <translation>L&apos;adresse sur une ligne ; collez-en une ici pour remplir les champs</translation>
    </message>
    <message>
        <source>Na&amp;me</source>
        <translation>&amp;Nom</translation>
    </message>
    <message>
        <source>&amp;Group</source>
        <translation>&amp;Groupe</translation>
    </message>
    <message>
        <source>&amp;Kind</source>
        <translation>T&amp;ype</translation>
    </message>
    <message>
        <source>&amp;Address</source>
        <translation>&amp;Adresse</translation>
    </message>
    <message>
        <source>Poll &amp;every</source>
        <translation>&amp;Interroger toutes les</translation>
    </message>
    <message>
        <source>Con&amp;nection</source>
        <translation>Con&amp;nexion</translation>
    </message>
    <message>
        <source>A&amp;dvanced</source>
        <translation>A&amp;vancé</translation>
    </message>
    <message>
        <source>There is a device &quot;%1&quot; already.</source>
        <translation>Il y a déjà un appareil &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Stop &amp;test</source>
        <translation>Arrêter le &amp;test</translation>
    </message>
    <message>
        <source>Asking %1 …</source>
        <translation>Interrogation de %1 …</translation>
    </message>
    <message>
        <source>&amp;Test connection</source>
        <translation>&amp;Tester la connexion</translation>
    </message>
    <message>
        <source>The server looks at user and password only when a command is sent.</source>
        <translation>Le serveur ne vérifie l&apos;utilisateur et le mot de passe qu&apos;à l&apos;envoi d&apos;une commande.</translation>
    </message>
</context>
<context>
    <name>DeviceFacts</name>
    <message>
        <source>Battery test</source>
        <translation>Test batterie</translation>
    </message>
    <message>
        <source>Battery discharging</source>
        <translation>Batterie en décharge</translation>
    </message>
    <message>
        <source>Battery low</source>
        <translation>Batterie faible</translation>
    </message>
    <message>
        <source>Battery depleted</source>
        <translation>Batterie épuisée</translation>
    </message>
    <message>
        <source>Mains lost, on battery</source>
        <translation>Secteur perdu, sur batterie</translation>
    </message>
    <message>
        <source>On bypass</source>
        <translation>Sur bypass</translation>
    </message>
</context>
<context>
    <name>DeviceHeading</name>
    <message>
        <source>recorded</source>
        <translation>enregistré</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>et %1 de plus</translation>
    </message>
</context>
<context>
    <name>DeviceHistory</name>
    <message>
        <source>Nothing is stored of this device.</source>
        <translation>Rien n&apos;est enregistré de cet appareil.</translation>
    </message>
</context>
<context>
    <name>DeviceListModel</name>
    <message>
        <source>%1 critical</source>
        <translation>%1 critique</translation>
    </message>
    <message>
        <source>%1 alarm</source>
        <translation>%1 alarme</translation>
    </message>
    <message>
        <source>%1 warning</source>
        <translation>%1 avertissement</translation>
    </message>
    <message>
        <source>%1 notice</source>
        <translation>%1 remarque</translation>
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
        <translation>ASI</translation>
    </message>
</context>
<context>
    <name>DevicePage</name>
    <message>
        <source>Energy flow</source>
        <translation>Flux d&apos;énergie</translation>
    </message>
    <message>
        <source>Alarms</source>
        <translation>Alarmes</translation>
    </message>
    <message>
        <source>Detail</source>
        <translation>Détail</translation>
    </message>
    <message>
        <source>Control</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>Charts</source>
        <translation>Graphiques</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tableau</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Appareil</translation>
    </message>
</context>
<context>
    <name>DeviceSettings</name>
    <message>
        <source>Simulator</source>
        <translation>Simulateur</translation>
    </message>
    <message>
        <source>Simulator, %1</source>
        <translation>Simulateur, %1</translation>
    </message>
</context>
<context>
    <name>DeviceSnapshot</name>
    <message>
        <source>Battery fault</source>
        <translation>Défaut batterie</translation>
    </message>
    <message>
        <source>Battery powered</source>
        <translation>Alimentation par batterie</translation>
    </message>
    <message>
        <source>Battery low</source>
        <translation>Batterie faible</translation>
    </message>
    <message>
        <source>Battery EOD</source>
        <translation>Fin de décharge batterie</translation>
    </message>
    <message>
        <source>Temperature overrun MAX-value</source>
        <translation>Température au-dessus du maximum</translation>
    </message>
    <message>
        <source>Input fault</source>
        <translation>Défaut d&apos;entrée</translation>
    </message>
    <message>
        <source>Output fault</source>
        <translation>Défaut de sortie</translation>
    </message>
    <message>
        <source>Load overrun MAX-value</source>
        <translation>Charge au-dessus du maximum</translation>
    </message>
    <message>
        <source>Bypass powered</source>
        <translation>Alimentation par bypass</translation>
    </message>
    <message>
        <source>Bypass fault</source>
        <translation>Défaut bypass</translation>
    </message>
    <message>
        <source>The UPS output has shutdown as requested</source>
        <translation>La sortie de l&apos;ASI a été coupée comme demandé</translation>
    </message>
    <message>
        <source>The entire UPS has shutdown as commanded</source>
        <translation>L&apos;ASI entière a été arrêtée comme commandé</translation>
    </message>
    <message>
        <source>Charger subsystem fault</source>
        <translation>Défaut du chargeur</translation>
    </message>
    <message>
        <source>The output of the UPS is in the off state</source>
        <translation>La sortie de l&apos;ASI est coupée</translation>
    </message>
    <message>
        <source>The UPS system is in the off state</source>
        <translation>L&apos;ASI est à l&apos;arrêt</translation>
    </message>
    <message>
        <source>Fan fault</source>
        <translation>Défaut ventilateur</translation>
    </message>
    <message>
        <source>Fuse fault</source>
        <translation>Défaut fusible</translation>
    </message>
    <message>
        <source>UPS fault</source>
        <translation>Défaut ASI</translation>
    </message>
    <message>
        <source>Last diagnostic test failed</source>
        <translation>Échec du dernier test de diagnostic</translation>
    </message>
    <message>
        <source>Communication between agent and UPS fault</source>
        <translation>Défaut de communication entre l&apos;agent et l&apos;ASI</translation>
    </message>
    <message>
        <source>UPS is awaiting the return of input power</source>
        <translation>L&apos;ASI attend le retour de l&apos;alimentation d&apos;entrée</translation>
    </message>
    <message>
        <source>UPS shutdown after delay countdown is underway</source>
        <translation>Compte à rebours d&apos;arrêt de l&apos;ASI en cours</translation>
    </message>
    <message>
        <source>The UPS will turn off power to the load</source>
        <translation>L&apos;ASI va couper l&apos;alimentation de la charge</translation>
    </message>
    <message>
        <source>A test is in progress</source>
        <translation>Un test est en cours</translation>
    </message>
    <message>
        <source>battery charge</source>
        <translation>charge de la batterie</translation>
    </message>
    <message>
        <source>remaining time</source>
        <translation>temps restant</translation>
    </message>
    <message>
        <source>battery voltage</source>
        <translation>tension de la batterie</translation>
    </message>
    <message>
        <source>battery current</source>
        <translation>courant de la batterie</translation>
    </message>
    <message>
        <source>battery temperature</source>
        <translation>température de la batterie</translation>
    </message>
    <message>
        <source>time on battery</source>
        <translation>durée sur batterie</translation>
    </message>
    <message>
        <source>number of mains failures</source>
        <translation>nombre de coupures secteur</translation>
    </message>
    <message>
        <source>rated input voltage</source>
        <translation>tension d&apos;entrée nominale</translation>
    </message>
    <message>
        <source>rated input frequency</source>
        <translation>fréquence d&apos;entrée nominale</translation>
    </message>
    <message>
        <source>rated output voltage</source>
        <translation>tension de sortie nominale</translation>
    </message>
    <message>
        <source>rated output frequency</source>
        <translation>fréquence de sortie nominale</translation>
    </message>
    <message>
        <source>rated apparent power</source>
        <translation>puissance apparente nominale</translation>
    </message>
    <message>
        <source>rated active power</source>
        <translation>puissance active nominale</translation>
    </message>
    <message>
        <source>input voltage</source>
        <translation>tension d&apos;entrée</translation>
    </message>
    <message>
        <source>input current</source>
        <translation>courant d&apos;entrée</translation>
    </message>
    <message>
        <source>input frequency</source>
        <translation>fréquence d&apos;entrée</translation>
    </message>
    <message>
        <source>input power</source>
        <translation>puissance d&apos;entrée</translation>
    </message>
    <message>
        <source>output voltage</source>
        <translation>tension de sortie</translation>
    </message>
    <message>
        <source>output current</source>
        <translation>courant de sortie</translation>
    </message>
    <message>
        <source>output frequency</source>
        <translation>fréquence de sortie</translation>
    </message>
    <message>
        <source>output power</source>
        <translation>puissance de sortie</translation>
    </message>
    <message>
        <source>load</source>
        <translation>charge</translation>
    </message>
    <message>
        <source>bypass voltage</source>
        <translation>tension bypass</translation>
    </message>
    <message>
        <source>bypass current</source>
        <translation>courant bypass</translation>
    </message>
    <message>
        <source>bypass frequency</source>
        <translation>fréquence bypass</translation>
    </message>
    <message>
        <source>bypass power</source>
        <translation>puissance bypass</translation>
    </message>
    <message>
        <source>%1 of line %2</source>
        <translation>%1 de la phase %2</translation>
    </message>
    <message>
        <source> and </source>
        <translation> et </translation>
    </message>
    <message>
        <source>Not reported, shown as 0: %1.</source>
        <translation>Non communiqué, affiché comme 0 : %1.</translation>
    </message>
    <message>
        <source>Split phase: line 1 of 2 is shown.</source>
        <translation>Biphasé : la phase 1 sur 2 est affichée.</translation>
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
        <translation>jamais de données</translation>
    </message>
    <message>
        <source>last data %1 ago</source>
        <translation>dernières données il y a %1</translation>
    </message>
    <message>
        <source>now</source>
        <translation>maintenant</translation>
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
        <translation>%1 jours</translation>
    </message>
    <message>
        <source>connecting</source>
        <translation>connexion</translation>
    </message>
    <message>
        <source>live, now</source>
        <translation>à jour</translation>
    </message>
    <message>
        <source>live, %1 ago</source>
        <translation>à jour, il y a %1</translation>
    </message>
    <message>
        <source>no new data</source>
        <translation>pas de nouvelles données</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>pas de réponse</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>refusé</translation>
    </message>
    <message>
        <source>since %1</source>
        <translation>depuis %1</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batterie</translation>
    </message>
    <message>
        <source>Lasts</source>
        <translation>Autonomie</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Charge</translation>
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
        <translation>À jour : %1</translation>
    </message>
</context>
<context>
    <name>EventDock</name>
    <message>
        <source>Events</source>
        <translation>Événements</translation>
    </message>
</context>
<context>
    <name>EventLog</name>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Opérateur</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Appareil</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Événement</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Message</translation>
    </message>
</context>
<context>
    <name>FileSecretStore</name>
    <message>
        <source>%1 is not used because others may read or write it; &quot;chmod 600&quot; ends that, then change the secrets in it</source>
        <translation>%1 n&apos;est pas utilisé car d&apos;autres peuvent le lire ou l&apos;écrire ; &quot;chmod 600&quot; y met fin, changez ensuite les secrets qu&apos;il contient</translation>
    </message>
    <message>
        <source>%1 is not used because it is damaged; mend it, or move it away and enter the secrets again</source>
        <translation>%1 n&apos;est pas utilisé car il est endommagé ; réparez-le, ou mettez-le de côté et saisissez de nouveau les secrets</translation>
    </message>
</context>
<context>
    <name>FindDevicesDialog</name>
    <message>
        <source>&amp;Tick all</source>
        <translation>Tout c&amp;ocher</translation>
    </message>
    <message>
        <source>Add several devices</source>
        <translation>Ajouter plusieurs appareils</translation>
    </message>
    <message>
        <source>UPSes of a NUT server</source>
        <translation>ASI d&apos;un serveur NUT</translation>
    </message>
    <message>
        <source>SNMP agents in a range of addresses</source>
        <translation>Agents SNMP dans une plage d&apos;adresses</translation>
    </message>
    <message>
        <source>for commands only</source>
        <translation>pour les commandes seulement</translation>
    </message>
    <message>
        <source>&amp;Host</source>
        <translation>&amp;Hôte</translation>
    </message>
    <message>
        <source>U&amp;ser</source>
        <translation>&amp;Utilisateur</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>&amp;Mot de passe</translation>
    </message>
    <message>
        <source>Devices found</source>
        <translation>Appareils trouvés</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>What it is</source>
        <translation>Ce que c&apos;est</translation>
    </message>
    <message>
        <source>site or room, for all that are added</source>
        <translation>site ou local, pour tous ceux qui sont ajoutés</translation>
    </message>
    <message>
        <source>&amp;Look for</source>
        <translation>&amp;Chercher</translation>
    </message>
    <message>
        <source>&amp;Group</source>
        <translation>&amp;Groupe</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Arrêter</translation>
    </message>
    <message>
        <source>Asking %1 …</source>
        <translation>Interrogation de %1 …</translation>
    </message>
    <message>
        <source>Asked %1 of %2 addresses …</source>
        <translation>%1 adresses sur %2 interrogées …</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Rechercher</translation>
    </message>
    <message>
        <source>Nobody answered.</source>
        <translation>Personne n&apos;a répondu.</translation>
    </message>
    <message>
        <source>Found: %1. Tick what is to be added.</source>
        <translation>Trouvés : %1. Cochez ce qui doit être ajouté.</translation>
    </message>
    <message>
        <source>&amp;Add %1</source>
        <translation>A&amp;jouter %1</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>A&amp;jouter</translation>
    </message>
    <message>
        <source>Each device needs a name.</source>
        <translation>Chaque appareil a besoin d&apos;un nom.</translation>
    </message>
    <message>
        <source>There is a device &quot;%1&quot; already.</source>
        <translation>Il y a déjà un appareil &quot;%1&quot;.</translation>
    </message>
</context>
<context>
    <name>FirstRunStrip</name>
    <message>
        <source>Add your &amp;UPS…</source>
        <translation>Ajouter votre &amp;ASI…</translation>
    </message>
    <message>
        <source>There is no device yet - add your UPS</source>
        <translation>Il n&apos;y a pas encore d&apos;appareil - ajoutez votre ASI</translation>
    </message>
    <message>
        <source>This is a simulation - add your UPS</source>
        <translation>Ceci est une simulation - ajoutez votre ASI</translation>
    </message>
</context>
<context>
    <name>HelpDialogs</name>
    <message>
        <source>Back to all devices</source>
        <translation>Retour à tous les appareils</translation>
    </message>
    <message>
        <source>In the list: add, edit, remove a device</source>
        <translation>Dans la liste : ajouter, modifier, supprimer un appareil</translation>
    </message>
    <message>
        <source>In the list: move a device</source>
        <translation>Dans la liste : déplacer un appareil</translation>
    </message>
    <message>
        <source>In the history: earlier, later; by a whole length</source>
        <translation>Dans l&apos;historique : plus tôt, plus tard ; d&apos;une longueur entière</translation>
    </message>
    <message>
        <source>In the history: less, more time</source>
        <translation>Dans l&apos;historique : moins, plus de temps</translation>
    </message>
    <message>
        <source>In the history: the values of another row</source>
        <translation>Dans l&apos;historique : les valeurs d&apos;une autre ligne</translation>
    </message>
    <message>
        <source>In the history: the oldest, the present</source>
        <translation>Dans l&apos;historique : le plus ancien, le présent</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Action</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Touches</translation>
    </message>
    <message>
        <source>Where the configuration is</source>
        <translation>Où se trouve la configuration</translation>
    </message>
    <message>
        <source>Devices, thresholds and operators stand in
%1

&quot;upsdesk check-config&quot; says what is wrong in it. How the window was left stands in
%2</source>
        <translation>Les appareils, seuils et opérateurs sont dans
%1

&quot;upsdesk check-config&quot; dit ce qui n&apos;y va pas. L&apos;état dans lequel la fenêtre a été laissée est dans
%2</translation>
    </message>
    <message>
        <source>About upsdesk</source>
        <translation>À propos d&apos;upsdesk</translation>
    </message>
    <message>
        <source>upsdesk %1
Watches uninterruptible power supplies.

Qt %2
%3 %4</source>
        <translation>upsdesk %1
Surveille des alimentations sans interruption.

Qt %2
%3 %4</translation>
    </message>
</context>
<context>
    <name>HistoryCharts</name>
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
        <source>Battery</source>
        <translation>Batterie</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>Tension</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Charge</translation>
    </message>
    <message>
        <source>Charge</source>
        <translation>Charge batterie</translation>
    </message>
    <message>
        <source>Time left on battery</source>
        <translation>Autonomie restante</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>Courant</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Fréquence</translation>
    </message>
    <message>
        <source>Battery temperature</source>
        <translation>Température batterie</translation>
    </message>
    <message>
        <source>Battery voltage</source>
        <translation>Tension batterie</translation>
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
        <translation>Jour</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Semaine</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Mois</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Année</translation>
    </message>
    <message>
        <source>Show: %1</source>
        <translation>Afficher : %1</translation>
    </message>
    <message>
        <source>Earlier</source>
        <translation>Plus tôt</translation>
    </message>
    <message>
        <source>Left, Page Up</source>
        <translation>Gauche, Page préc.</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Plus tard</translation>
    </message>
    <message>
        <source>Right, Page Down</source>
        <translation>Droite, Page suiv.</translation>
    </message>
    <message>
        <source>Show more time</source>
        <translation>Afficher plus de temps</translation>
    </message>
    <message>
        <source>Show less time</source>
        <translation>Afficher moins de temps</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Maintenant</translation>
    </message>
    <message>
        <source>Follow the present</source>
        <translation>Suivre le présent</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Charts</source>
        <translation>Graphiques</translation>
    </message>
    <message>
        <source>Which charts are shown</source>
        <translation>Graphiques affichés</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Save what is shown</source>
        <translation>Enregistrer ce qui est affiché</translation>
    </message>
    <message>
        <source>As &amp;CSV …</source>
        <translation>En &amp;CSV …</translation>
    </message>
    <message>
        <source>As &amp;picture …</source>
        <translation>En &amp;image …</translation>
    </message>
    <message>
        <source>There is no history here: this desk records none, or its store is not open yet.</source>
        <translation>Il n&apos;y a pas d&apos;historique ici : ce poste n&apos;en enregistre pas, ou sa base n&apos;est pas encore ouverte.</translation>
    </message>
    <message>
        <source>Loading …</source>
        <translation>Chargement …</translation>
    </message>
    <message>
        <source>The history cannot be read: %1</source>
        <translation>L&apos;historique ne peut pas être lu : %1</translation>
    </message>
    <message>
        <source>Nothing is stored of this device. The simulator is recorded only where it stands in the configuration.</source>
        <translation>Rien n&apos;est enregistré de cet appareil. Le simulateur n&apos;est enregistré que s&apos;il figure dans la configuration.</translation>
    </message>
    <message>
        <source>Nothing is stored of this device yet.</source>
        <translation>Rien n&apos;est encore enregistré de cet appareil.</translation>
    </message>
    <message>
        <source>%1 for %2</source>
        <translation>%1 pendant %2</translation>
    </message>
    <message>
        <source>Nothing is stored of this time</source>
        <translation>Rien n&apos;est enregistré de cette période</translation>
    </message>
    <message>
        <source>Only the latest entries of the journal are shown</source>
        <translation>Seules les dernières entrées du journal sont affichées</translation>
    </message>
    <message>
        <source>on battery</source>
        <translation>sur batterie</translation>
    </message>
    <message>
        <source>on bypass</source>
        <translation>sur bypass</translation>
    </message>
    <message>
        <source>not reachable</source>
        <translation>injoignable</translation>
    </message>
    <message>
        <source>▴ journal</source>
        <translation>▴ journal</translation>
    </message>
    <message>
        <source>Save the history</source>
        <translation>Enregistrer l&apos;historique</translation>
    </message>
    <message>
        <source>Saving …</source>
        <translation>Enregistrement …</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <translation>Enregistré sous %1</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <translation>Non enregistré : %1</translation>
    </message>
    <message>
        <source>Not saved: %1 cannot be written</source>
        <translation>Non enregistré : %1 ne peut pas être écrit</translation>
    </message>
</context>
<context>
    <name>HistorySpool</name>
    <message>
        <source>cannot make the folder %1</source>
        <translation>impossible de créer le dossier %1</translation>
    </message>
    <message>
        <source>cannot write in the folder %1</source>
        <translation>impossible d&apos;écrire dans le dossier %1</translation>
    </message>
    <message>
        <source>the spool in %1 is full</source>
        <translation>le tampon dans %1 est plein</translation>
    </message>
    <message>
        <source>cannot write the spool in %1: %2</source>
        <translation>impossible d&apos;écrire le tampon dans %1 : %2</translation>
    </message>
</context>
<context>
    <name>HistoryStore</name>
    <message>
        <source>the driver %1 of QtSql is not installed</source>
        <translation>le pilote %1 de QtSql n&apos;est pas installé</translation>
    </message>
    <message>
        <source>the history was written by a newer upsdesk; update this one</source>
        <translation>l&apos;historique a été écrit par un upsdesk plus récent ; mettez celui-ci à jour</translation>
    </message>
    <message>
        <source>there is no history yet</source>
        <translation>il n&apos;y a pas encore d&apos;historique</translation>
    </message>
    <message>
        <source>the history is of an older upsdesk; start the desk once so that it brings it up to date</source>
        <translation>l&apos;historique vient d&apos;un upsdesk plus ancien ; démarrez le poste une fois pour qu&apos;il le mette à jour</translation>
    </message>
</context>
<context>
    <name>HistoryWriter</name>
    <message>
        <source>The history cannot be written: %1. Events are kept on disk until it can.</source>
        <translation>L&apos;historique ne peut pas être écrit : %1. Les événements sont gardés sur disque jusqu&apos;à ce qu&apos;il le puisse.</translation>
    </message>
    <message>
        <source>The history is written again; nothing is missing.</source>
        <translation>L&apos;historique est de nouveau écrit ; rien ne manque.</translation>
    </message>
    <message>
        <source>The history is written again; %1 samples are missing.</source>
        <translation>L&apos;historique est de nouveau écrit ; %1 mesures manquent.</translation>
    </message>
</context>
<context>
    <name>HostAddresses</name>
    <message>
        <source>There is no host named %1; check the address.</source>
        <translation>Aucun hôte ne s&apos;appelle %1 ; vérifiez l&apos;adresse.</translation>
    </message>
    <message>
        <source>The name %1 could not be looked up; check the network and its name server.</source>
        <translation>Le nom %1 n&apos;a pas pu être résolu ; vérifiez le réseau et son serveur de noms.</translation>
    </message>
    <message>
        <source>Too many names are being looked up; check the network&apos;s name server.</source>
        <translation>Trop de noms sont en cours de résolution ; vérifiez le serveur de noms du réseau.</translation>
    </message>
</context>
<context>
    <name>HostPort</name>
    <message>
        <source>Host</source>
        <translation>Hôte</translation>
    </message>
    <message>
        <source>name or IP address</source>
        <translation>nom ou adresse IP</translation>
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
        <translation>Plage d&apos;adresses</translation>
    </message>
    <message>
        <source>10.0.0.0/24 or 10.0.0.5-60</source>
        <translation>10.0.0.0/24 ou 10.0.0.5-60</translation>
    </message>
    <message>
        <source>Enter the name or the IP address of the host.</source>
        <translation>Saisir le nom ou l&apos;adresse IP de l&apos;hôte.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither a host name nor an IP address.</source>
        <translation>&quot;%1&quot; n&apos;est ni un nom d&apos;hôte ni une adresse IP.</translation>
    </message>
</context>
<context>
    <name>JournalModel</name>
    <message>
        <source>Onset</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Appareil</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Severity</source>
        <translation>Gravité</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>Entrée</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Message</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Opérateur</translation>
    </message>
    <message>
        <source>Acknowledged</source>
        <translation>Acquitté</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Alarm</source>
        <translation>Alarme</translation>
    </message>
    <message>
        <source>Outage</source>
        <translation>Coupure</translation>
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
        <translation>Liaison</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Configuration</translation>
    </message>
    <message>
        <source>Store</source>
        <translation>Base</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Horloge</translation>
    </message>
    <message>
        <source>Desk</source>
        <translation>Poste</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Remarque</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>Critique</translation>
    </message>
    <message>
        <source>%1 d %2</source>
        <translation>%1 j %2</translation>
    </message>
    <message>
        <source>still so</source>
        <translation>dure encore</translation>
    </message>
    <message>
        <source>lowest charge %1 %</source>
        <translation>charge la plus basse %1 %</translation>
    </message>
</context>
<context>
    <name>JournalPage</name>
    <message>
        <source>Any time</source>
        <translation>Toute période</translation>
    </message>
    <message>
        <source>Last hour</source>
        <translation>Dernière heure</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>Dernier jour</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Dernière semaine</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <translation>30 derniers jours</translation>
    </message>
    <message>
        <source>Last year</source>
        <translation>Dernière année</translation>
    </message>
    <message>
        <source>Still s&amp;o</source>
        <translation>En c&amp;ours</translation>
    </message>
    <message>
        <source>Not acknowled&amp;ged</source>
        <translation>&amp;Non acquitté</translation>
    </message>
    <message>
        <source>Ack&amp;nowledge …</source>
        <translation>Ac&amp;quitter …</translation>
    </message>
    <message>
        <source>&amp;Export …</source>
        <translation>&amp;Exporter …</translation>
    </message>
    <message>
        <source>&amp;Replay</source>
        <translation>&amp;Rejouer</translation>
    </message>
    <message>
        <source>Devi&amp;ce</source>
        <translation>Apparei&amp;l</translation>
    </message>
    <message>
        <source>&amp;Kind</source>
        <translation>T&amp;ype</translation>
    </message>
    <message>
        <source>T&amp;ime</source>
        <translation>&amp;Période</translation>
    </message>
    <message>
        <source>&amp;Severity from</source>
        <translation>&amp;Gravité dès</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tous</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>in entry, message or note</source>
        <translation>dans l&apos;entrée, le message ou la note</translation>
    </message>
    <message>
        <source>What has begun and is not over: the alarms of the desk</source>
        <translation>Ce qui a commencé et n&apos;est pas fini : les alarmes du poste</translation>
    </message>
    <message>
        <source>Te&amp;xt</source>
        <translation>Te&amp;xte</translation>
    </message>
    <message>
        <source>Journal</source>
        <translation>Journal</translation>
    </message>
    <message>
        <source>%1 entries and more</source>
        <translation>%1 entrées et plus</translation>
    </message>
    <message>
        <source>%1 entries</source>
        <translation>%1 entrées</translation>
    </message>
    <message>
        <source>This desk keeps no history.</source>
        <translation>Ce poste ne tient pas d&apos;historique.</translation>
    </message>
    <message>
        <source>Acknowledge</source>
        <translation>Acquitter</translation>
    </message>
    <message>
        <source>Note (may be empty)</source>
        <translation>Note (peut rester vide)</translation>
    </message>
    <message>
        <source>Export the journal</source>
        <translation>Exporter le journal</translation>
    </message>
    <message>
        <source>CSV files (*.csv);;All files (*)</source>
        <translation>Fichiers CSV (*.csv);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>The journal is in %1</source>
        <translation>Le journal est dans %1</translation>
    </message>
    <message>
        <source>The journal was not exported: %1</source>
        <translation>Le journal n&apos;a pas été exporté : %1</translation>
    </message>
</context>
<context>
    <name>KeychainSecretStore</name>
    <message>
        <source>The desktop&apos;s keychain cannot be used: %1. Start a keychain service, for example GNOME Keyring or KWallet, and log in again; or write &quot;store = file&quot; under [secrets] in the configuration to keep secrets in a file that only you can read.</source>
        <translation>Le trousseau du bureau ne peut pas être utilisé : %1. Démarrez un service de trousseau, par exemple GNOME Keyring ou KWallet, et reconnectez-vous ; ou écrivez &quot;store = file&quot; sous [secrets] dans la configuration pour garder les secrets dans un fichier que vous seul pouvez lire.</translation>
    </message>
    <message>
        <source>Access to the desktop&apos;s keychain was denied; unlock it and try again.</source>
        <translation>L&apos;accès au trousseau du bureau a été refusé ; déverrouillez-le et réessayez.</translation>
    </message>
    <message>
        <source>it gives no reason</source>
        <translation>il ne donne pas de raison</translation>
    </message>
    <message>
        <source>it does not answer</source>
        <translation>il ne répond pas</translation>
    </message>
</context>
<context>
    <name>LoginDialog</name>
    <message>
        <source>Log in</source>
        <translation>Se connecter</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Nom</translation>
    </message>
    <message>
        <source>&amp;Password</source>
        <translation>&amp;Mot de passe</translation>
    </message>
    <message>
        <source>There are no operators yet. Add one in the settings, under Operators.</source>
        <translation>Il n&apos;y a pas encore d&apos;opérateurs. Ajoutez-en un dans les réglages, sous Opérateurs.</translation>
    </message>
    <message>
        <source>Checking …</source>
        <translation>Vérification …</translation>
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
        <translation>Ceci est un affichage mural : il ne commande rien.</translation>
    </message>
    <message>
        <source>&amp;All devices</source>
        <translation>&amp;Tous les appareils</translation>
    </message>
    <message>
        <source>%1: %2: sent, waiting for the result</source>
        <translation>%1 : %2 : envoyé, attend le résultat</translation>
    </message>
    <message>
        <source>Journal - upsdesk</source>
        <translation>Journal - upsdesk</translation>
    </message>
    <message>
        <source>Replay: %1 - upsdesk</source>
        <translation>Rejeu : %1 - upsdesk</translation>
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
        <translation>%1 : son collecteur l&apos;interroge, pas ce poste.</translation>
    </message>
    <message>
        <source>%1: testing the connection …</source>
        <translation>%1 : test de la connexion …</translation>
    </message>
    <message>
        <source>Logged in</source>
        <translation>Connecté</translation>
    </message>
    <message>
        <source>Logged out</source>
        <translation>Déconnecté</translation>
    </message>
    <message>
        <source>level %1</source>
        <translation>niveau %1</translation>
    </message>
    <message>
        <source>done</source>
        <translation>terminé</translation>
    </message>
</context>
<context>
    <name>MetricsServer</name>
    <message>
        <source>is no numeric address with a port, like 127.0.0.1:9199</source>
        <translation>n&apos;est pas une adresse numérique avec un port, comme 127.0.0.1:9199</translation>
    </message>
    <message>
        <source>Metrics are not served: &quot;%1&quot; %2.</source>
        <translation>Les métriques ne sont pas servies : &quot;%1&quot; %2.</translation>
    </message>
    <message>
        <source>Metrics are not served: nothing can listen at %1. Another program may do so already.</source>
        <translation>Les métriques ne sont pas servies : impossible d&apos;écouter sur %1. Un autre programme le fait peut-être déjà.</translation>
    </message>
</context>
<context>
    <name>NearestName</name>
    <message>
        <source>; did you mean &quot;%1&quot;?</source>
        <translation> ; vouliez-vous dire &quot;%1&quot; ?</translation>
    </message>
</context>
<context>
    <name>Notifier</name>
    <message>
        <source>Desktop notifications</source>
        <translation>Notifications du bureau</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>Webhook</source>
        <translation>Webhook</translation>
    </message>
    <message>
        <source>upsdesk: a trial</source>
        <translation>upsdesk : un essai</translation>
    </message>
    <message>
        <source>Notifications arrive here.</source>
        <translation>Les notifications arrivent ici.</translation>
    </message>
</context>
<context>
    <name>NotifyTests</name>
    <message>
        <source>Test desktop</source>
        <translation>Tester le bureau</translation>
    </message>
    <message>
        <source>Test command</source>
        <translation>Tester la commande</translation>
    </message>
    <message>
        <source>Test webhook</source>
        <translation>Tester le webhook</translation>
    </message>
    <message>
        <source>%1: it is not set up.</source>
        <translation>%1 : n&apos;est pas configuré.</translation>
    </message>
    <message>
        <source>%1: the trial was delivered.</source>
        <translation>%1 : l&apos;essai a été livré.</translation>
    </message>
    <message>
        <source>%1: trying ...</source>
        <translation>%1 : essai en cours ...</translation>
    </message>
</context>
<context>
    <name>NutDevices</name>
    <message>
        <source>The server has no UPS.</source>
        <translation>Le serveur n&apos;a pas d&apos;ASI.</translation>
    </message>
    <message>
        <source>The server has several devices; put the name of one at the end of the address: %1.</source>
        <translation>Le serveur a plusieurs appareils ; mettez le nom de l&apos;un d&apos;eux à la fin de l&apos;adresse : %1.</translation>
    </message>
</context>
<context>
    <name>NutFields</name>
    <message>
        <source>&amp;List</source>
        <translation>&amp;Lister</translation>
    </message>
    <message>
        <source>the only one of the server</source>
        <translation>la seule du serveur</translation>
    </message>
    <message>
        <source>Asks the server which UPSes it has</source>
        <translation>Demande au serveur quelles ASI il a</translation>
    </message>
    <message>
        <source>for commands only</source>
        <translation>pour les commandes seulement</translation>
    </message>
    <message>
        <source>&amp;Host</source>
        <translation>&amp;Hôte</translation>
    </message>
    <message>
        <source>&amp;UPS</source>
        <translation>&amp;ASI</translation>
    </message>
    <message>
        <source>U&amp;ser</source>
        <translation>&amp;Utilisateur</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>&amp;Mot de passe</translation>
    </message>
    <message>
        <source>Enter the user that the password is for.</source>
        <translation>Saisir l&apos;utilisateur auquel appartient le mot de passe.</translation>
    </message>
    <message>
        <source>Asking %1 …</source>
        <translation>Interrogation de %1 …</translation>
    </message>
    <message>
        <source>The server has no UPS.</source>
        <translation>Le serveur n&apos;a pas d&apos;ASI.</translation>
    </message>
    <message>
        <source>The server&apos;s UPSes: %1.</source>
        <translation>Les ASI du serveur : %1.</translation>
    </message>
</context>
<context>
    <name>NutLine</name>
    <message>
        <source>The password is not sent to %1, because the link is %2 Give the device the server&apos;s certificate (fingerprint) or its authority (ca-file), or allow plain text with tls = off.</source>
        <translation>Le mot de passe n&apos;est pas envoyé à %1, car la liaison est %2 Donnez à l&apos;appareil le certificat du serveur (fingerprint) ou son autorité (ca-file), ou permettez le texte en clair avec tls = off.</translation>
    </message>
    <message>
        <source>not trusted: %1</source>
        <translation>non fiable : %1</translation>
    </message>
    <message>
        <source>in plain text.</source>
        <translation>en clair.</translation>
    </message>
    <message>
        <source>%1 does not answer; check that the server is on and that no firewall is in between.</source>
        <translation>%1 ne répond pas ; vérifiez que le serveur est en marche et qu&apos;aucun pare-feu ne s&apos;interpose.</translation>
    </message>
    <message>
        <source>%1 went on in plain text after it had offered encryption: somebody may be in between.</source>
        <translation>%1 a continué en clair après avoir offert le chiffrement : quelqu&apos;un est peut-être entre les deux.</translation>
    </message>
    <message>
        <source>%1 offers no encryption, and the configuration requires it (tls = required, or a certificate to trust).</source>
        <translation>%1 n&apos;offre pas de chiffrement, et la configuration l&apos;exige (tls = required, ou un certificat de confiance).</translation>
    </message>
    <message>
        <source>%1 has offered encryption before and offers none now: somebody may be in between. If the server was changed on purpose, set tls = off.</source>
        <translation>%1 offrait le chiffrement et ne l&apos;offre plus : quelqu&apos;un est peut-être entre les deux. Si le serveur a été changé exprès, mettez tls = off.</translation>
    </message>
    <message>
        <source>there is no certificate to be read in %1.</source>
        <translation>il n&apos;y a pas de certificat lisible dans %1.</translation>
    </message>
    <message>
        <source>%1 cannot be trusted: %2 Its certificate is %3.</source>
        <translation>%1 n&apos;est pas fiable : %2 Son certificat est %3.</translation>
    </message>
    <message>
        <source>%1 offers encryption, but the two sides cannot agree on it; check the certificate of the server.</source>
        <translation>%1 offre le chiffrement, mais les deux côtés ne s&apos;accordent pas ; vérifiez le certificat du serveur.</translation>
    </message>
    <message>
        <source>%1 offers encryption, but this machine has no TLS library.</source>
        <translation>%1 offre le chiffrement, mais cette machine n&apos;a pas de bibliothèque TLS.</translation>
    </message>
    <message>
        <source>%1 closed the connection.</source>
        <translation>%1 a fermé la connexion.</translation>
    </message>
    <message>
        <source>%1 refuses the connection: no NUT server runs there, or it does not listen on this address.</source>
        <translation>%1 refuse la connexion : aucun serveur NUT n&apos;y tourne, ou il n&apos;écoute pas à cette adresse.</translation>
    </message>
    <message>
        <source>No connection to %1: too many open files.</source>
        <translation>Pas de connexion à %1 : trop de fichiers ouverts.</translation>
    </message>
    <message>
        <source>No connection to %1: %2.</source>
        <translation>Pas de connexion à %1 : %2.</translation>
    </message>
    <message>
        <source>No name server answered for %1 in time; check the network.</source>
        <translation>Aucun serveur de noms n&apos;a répondu à temps pour %1 ; vérifiez le réseau.</translation>
    </message>
    <message>
        <source>%1 accepts the connection but does not answer.</source>
        <translation>%1 accepte la connexion mais ne répond pas.</translation>
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
        <translation>Les commandes demandent un compte du serveur ; ajoutez son utilisateur et son mot de passe dans la configuration. Rien n&apos;a été envoyé.</translation>
    </message>
    <message>
        <source>This UPS offers no such command; looked for %1.</source>
        <translation>Cette ASI n&apos;offre pas une telle commande ; cherché : %1.</translation>
    </message>
    <message>
        <source>%1 Look at the readings before sending it again.</source>
        <translation>%1 Regardez les mesures avant de la renvoyer.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>%1 Whether %2 was carried out is not known; it is not sent again.</source>
        <translation>%1 On ne sait pas si %2 a été exécuté ; ce n&apos;est pas renvoyé.</translation>
    </message>
    <message>
        <source>The connection broke before the server told how %1 ended.</source>
        <translation>La connexion s&apos;est rompue avant que le serveur dise comment %1 s&apos;est terminé.</translation>
    </message>
    <message>
        <source>The server took %1 but did not tell how it ended.</source>
        <translation>Le serveur a pris %1 mais n&apos;a pas dit comment cela s&apos;est terminé.</translation>
    </message>
    <message>
        <source>The server has handed %1 on to its driver, but cannot tell how it ended; look at the readings.</source>
        <translation>Le serveur a transmis %1 à son pilote, mais ne peut pas dire comment cela s&apos;est terminé ; regardez les mesures.</translation>
    </message>
    <message>
        <source>%1 was carried out; the minutes of standby cannot be set on this UPS, it comes back as its own settings say.</source>
        <translation>%1 a été exécuté ; les minutes de veille ne peuvent pas être réglées sur cette ASI, elle revient selon ses propres réglages.</translation>
    </message>
    <message>
        <source>%1 was carried out.</source>
        <translation>%1 a été exécuté.</translation>
    </message>
    <message>
        <source>%1 %2 was not sent.</source>
        <translation>%1 %2 n&apos;a pas été envoyé.</translation>
    </message>
    <message>
        <source>%1 Nothing was sent.</source>
        <translation>%1 Rien n&apos;a été envoyé.</translation>
    </message>
</context>
<context>
    <name>NutPoll</name>
    <message>
        <source>The link to the server is in plain text: others on the network can read and change what it says.</source>
        <translation>La liaison au serveur est en clair : d&apos;autres sur le réseau peuvent lire et modifier ce qu&apos;il dit.</translation>
    </message>
    <message>
        <source>The link to the server is encrypted, but not trusted: %1</source>
        <translation>La liaison au serveur est chiffrée, mais non fiable : %1</translation>
    </message>
</context>
<context>
    <name>NutProtocol</name>
    <message>
        <source>The server answers, but its driver has brought no new data for a while; check the cable between server and UPS.</source>
        <translation>Le serveur répond, mais son pilote n&apos;apporte plus de nouvelles données depuis un moment ; vérifiez le câble entre serveur et ASI.</translation>
    </message>
    <message>
        <source>The server answers, but the driver of this UPS is not running; start it on the server.</source>
        <translation>Le serveur répond, mais le pilote de cette ASI ne tourne pas ; démarrez-le sur le serveur.</translation>
    </message>
    <message>
        <source>The server denies access: wrong password or too few rights. Check user and password in the configuration, and the user&apos;s actions and instcmds in upsd.users on the server.</source>
        <translation>Le serveur refuse l&apos;accès : mauvais mot de passe ou droits insuffisants. Vérifiez l&apos;utilisateur et le mot de passe dans la configuration, et ses actions et instcmds dans upsd.users sur le serveur.</translation>
    </message>
    <message>
        <source>The server knows no UPS of this name; compare the address with the server&apos;s list of devices.</source>
        <translation>Le serveur ne connaît pas d&apos;ASI de ce nom ; comparez l&apos;adresse avec la liste d&apos;appareils du serveur.</translation>
    </message>
    <message>
        <source>The server wants a user and a password; add them in the configuration.</source>
        <translation>Le serveur veut un utilisateur et un mot de passe ; ajoutez-les dans la configuration.</translation>
    </message>
    <message>
        <source>The server wants a password; add it in the configuration.</source>
        <translation>Le serveur veut un mot de passe ; ajoutez-le dans la configuration.</translation>
    </message>
    <message>
        <source>The server does not accept the user; correct it in the configuration.</source>
        <translation>Le serveur n&apos;accepte pas l&apos;utilisateur ; corrigez-le dans la configuration.</translation>
    </message>
    <message>
        <source>The server does not accept the password; correct it in the configuration.</source>
        <translation>Le serveur n&apos;accepte pas le mot de passe ; corrigez-le dans la configuration.</translation>
    </message>
    <message>
        <source>The UPS does not support this command.</source>
        <translation>L&apos;ASI ne prend pas en charge cette commande.</translation>
    </message>
    <message>
        <source>The UPS does not have this setting.</source>
        <translation>L&apos;ASI n&apos;a pas ce réglage.</translation>
    </message>
    <message>
        <source>The UPS does not let this setting be changed.</source>
        <translation>L&apos;ASI ne permet pas de changer ce réglage.</translation>
    </message>
    <message>
        <source>The value is too long for this setting.</source>
        <translation>La valeur est trop longue pour ce réglage.</translation>
    </message>
    <message>
        <source>The UPS does not accept this value.</source>
        <translation>L&apos;ASI n&apos;accepte pas cette valeur.</translation>
    </message>
    <message>
        <source>The server or its driver does not accept the request.</source>
        <translation>Le serveur ou son pilote n&apos;accepte pas la demande.</translation>
    </message>
    <message>
        <source>The server could not hand the command to its driver.</source>
        <translation>Le serveur n&apos;a pas pu transmettre la commande à son pilote.</translation>
    </message>
    <message>
        <source>The server could not hand the setting to its driver.</source>
        <translation>Le serveur n&apos;a pas pu transmettre le réglage à son pilote.</translation>
    </message>
    <message>
        <source>The UPS or its driver reports that it failed.</source>
        <translation>L&apos;ASI ou son pilote signale un échec.</translation>
    </message>
    <message>
        <source>The driver of this UPS does not know this command or setting.</source>
        <translation>Le pilote de cette ASI ne connaît pas cette commande ou ce réglage.</translation>
    </message>
    <message>
        <source>What %1 answers is not the language of a NUT server; check host and port.</source>
        <translation>Ce que répond %1 n&apos;est pas la langue d&apos;un serveur NUT ; vérifiez l&apos;hôte et le port.</translation>
    </message>
    <message>
        <source>The server refuses the request without saying why.</source>
        <translation>Le serveur refuse la demande sans dire pourquoi.</translation>
    </message>
    <message>
        <source>The server refuses the request: %1.</source>
        <translation>Le serveur refuse la demande : %1.</translation>
    </message>
</context>
<context>
    <name>NutReading</name>
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
        <source>voltage</source>
        <translation>tension</translation>
    </message>
    <message>
        <source>current</source>
        <translation>courant</translation>
    </message>
    <message>
        <source>power</source>
        <translation>puissance</translation>
    </message>
    <message>
        <source>load</source>
        <translation>charge</translation>
    </message>
    <message>
        <source>%1 voltages are line to line.</source>
        <translation>%1 : tensions entre phases.</translation>
    </message>
    <message>
        <source>%1: one value for all lines (%2), shown in the first.</source>
        <translation>%1 : une valeur pour toutes les phases (%2), affichée à la première.</translation>
    </message>
    <message>
        <source>Battery depleted: derived from a charge of 0 %.</source>
        <translation>Batterie épuisée : déduit d&apos;une charge de 0 %.</translation>
    </message>
    <message>
        <source>The driver has just started and has no data yet; the source of power is unknown.</source>
        <translation>Le pilote vient de démarrer et n&apos;a pas encore de données ; la source d&apos;alimentation est inconnue.</translation>
    </message>
    <message>
        <source>The UPS does not say where its power comes from.</source>
        <translation>L&apos;ASI ne dit pas d&apos;où vient son alimentation.</translation>
    </message>
    <message>
        <source>Humidity %1</source>
        <translation>Humidité %1</translation>
    </message>
</context>
<context>
    <name>NutTrust</name>
    <message>
        <source>%1 port %2</source>
        <translation>%1 port %2</translation>
    </message>
    <message>
        <source>the certificate is not the one that the configuration names.</source>
        <translation>le certificat n&apos;est pas celui que nomme la configuration.</translation>
    </message>
    <message>
        <source>the server shows no certificate.</source>
        <translation>le serveur ne montre pas de certificat.</translation>
    </message>
</context>
<context>
    <name>NutTrustFields</name>
    <message>
        <source>Where the server offers it; commands only when trusted</source>
        <translation>Si le serveur l&apos;offre ; commandes si fiable seulement</translation>
    </message>
    <message>
        <source>Always, and trusted</source>
        <translation>Toujours, et fiable</translation>
    </message>
    <message>
        <source>Off: passwords go in plain text</source>
        <translation>Non : les mots de passe passent en clair</translation>
    </message>
    <message>
        <source>P&amp;in it</source>
        <translation>É&amp;pingler</translation>
    </message>
    <message>
        <source>those of the system; or a PEM file</source>
        <translation>celles du système ; ou un fichier PEM</translation>
    </message>
    <message>
        <source>none pinned; the connection test shows it</source>
        <translation>aucun épinglé ; le test de connexion le montre</translation>
    </message>
    <message>
        <source>Trust this certificate, and no other, from now on</source>
        <translation>Faire confiance à ce certificat, et à aucun autre, désormais</translation>
    </message>
    <message>
        <source>&amp;Encryption</source>
        <translation>C&amp;hiffrement</translation>
    </message>
    <message>
        <source>Authorities</source>
        <translation>Autorités</translation>
    </message>
    <message>
        <source>&amp;Fingerprint</source>
        <translation>&amp;Empreinte</translation>
    </message>
    <message>
        <source>The file of authorities cannot be read: %1.</source>
        <translation>Le fichier des autorités ne peut pas être lu : %1.</translation>
    </message>
    <message>
        <source>A fingerprint is sha256: and 64 hexadecimal digits.</source>
        <translation>Une empreinte est sha256: et 64 chiffres hexadécimaux.</translation>
    </message>
    <message>
        <source>%1, trusted</source>
        <translation>%1, fiable</translation>
    </message>
    <message>
        <source>%1, not trusted</source>
        <translation>%1, non fiable</translation>
    </message>
</context>
<context>
    <name>OperatorBar</name>
    <message>
        <source>%1, level %2</source>
        <translation>%1, niveau %2</translation>
    </message>
    <message>
        <source>Nobody is logged in</source>
        <translation>Personne n&apos;est connecté</translation>
    </message>
    <message>
        <source>Log out</source>
        <translation>Se déconnecter</translation>
    </message>
    <message>
        <source>Log in</source>
        <translation>Se connecter</translation>
    </message>
</context>
<context>
    <name>OperatorDesk</name>
    <message>
        <source>&amp;Settings…</source>
        <translation>&amp;Réglages…</translation>
    </message>
    <message>
        <source>Log-in</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>échec</translation>
    </message>
    <message>
        <source>There is no operator of the name that was given.</source>
        <translation>Il n&apos;y a pas d&apos;opérateur de ce nom.</translation>
    </message>
    <message>
        <source>The password was wrong.</source>
        <translation>Le mot de passe était faux.</translation>
    </message>
    <message>
        <source>done</source>
        <translation>terminé</translation>
    </message>
</context>
<context>
    <name>OperatorDialog</name>
    <message>
        <source>Add an operator</source>
        <translation>Ajouter un opérateur</translation>
    </message>
    <message>
        <source>Operator %1</source>
        <translation>Opérateur %1</translation>
    </message>
    <message>
        <source>0 may look; 1 and above may command and change the desk</source>
        <translation>0 peut regarder ; 1 et plus peuvent commander et modifier le poste</translation>
    </message>
    <message>
        <source>kept</source>
        <translation>gardé</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Nom</translation>
    </message>
    <message>
        <source>&amp;Level (0 looks, from 1 on commands)</source>
        <translation>Ni&amp;veau (0 regarde, dès 1 commande)</translation>
    </message>
    <message>
        <source>&amp;Password</source>
        <translation>&amp;Mot de passe</translation>
    </message>
    <message>
        <source>Once &amp;more</source>
        <translation>&amp;Encore une fois</translation>
    </message>
    <message>
        <source>Enter a name.</source>
        <translation>Saisir un nom.</translation>
    </message>
    <message>
        <source>There is an operator &quot;%1&quot; already.</source>
        <translation>Il y a déjà un opérateur &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The two passwords differ.</source>
        <translation>Les deux mots de passe diffèrent.</translation>
    </message>
    <message>
        <source>There is not enough memory to hash the password.</source>
        <translation>Il n&apos;y a pas assez de mémoire pour hacher le mot de passe.</translation>
    </message>
    <message>
        <source>Hashing the password …</source>
        <translation>Hachage du mot de passe …</translation>
    </message>
</context>
<context>
    <name>OperatorEdits</name>
    <message>
        <source>one operator of level %1 or above must remain, or nobody could change the desk any more</source>
        <translation>un opérateur de niveau %1 ou plus doit rester, sinon personne ne pourrait plus modifier le poste</translation>
    </message>
    <message>
        <source>a level lies between %1 and %2</source>
        <translation>un niveau est compris entre %1 et %2</translation>
    </message>
    <message>
        <source>a password has at least %1 characters</source>
        <translation>un mot de passe a au moins %1 caractères</translation>
    </message>
</context>
<context>
    <name>OperatorSession</name>
    <message>
        <source>%1 may look, but not change: that takes level %2.</source>
        <translation>%1 peut regarder, mais pas modifier : il faut le niveau %2.</translation>
    </message>
    <message>
        <source>Log in first: devices and settings are changed by operators.</source>
        <translation>Connectez-vous d&apos;abord : appareils et réglages sont modifiés par des opérateurs.</translation>
    </message>
    <message>
        <source>Too many failed attempts. Try again in %1 s.</source>
        <translation>Trop de tentatives échouées. Réessayez dans %1 s.</translation>
    </message>
    <message>
        <source>Name or password is wrong.</source>
        <translation>Le nom ou le mot de passe est faux.</translation>
    </message>
</context>
<context>
    <name>OperatorsPage</name>
    <message>
        <source>&amp;Change…</source>
        <translation>&amp;Changer…</translation>
    </message>
    <message>
        <source>&amp;Remove…</source>
        <translation>&amp;Supprimer…</translation>
    </message>
    <message>
        <source>Operators</source>
        <translation>Opérateurs</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Niveau</translation>
    </message>
    <message>
        <source>While there is no operator, everybody may change the desk and nobody may command a real UPS. Changes here are kept at once.</source>
        <translation>Tant qu&apos;il n&apos;y a pas d&apos;opérateur, chacun peut modifier le poste et personne ne peut commander une vraie ASI. Les changements faits ici sont gardés aussitôt.</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>A&amp;jouter…</translation>
    </message>
    <message>
        <source>Operator %1 added, level %2</source>
        <translation>Opérateur %1 ajouté, niveau %2</translation>
    </message>
    <message>
        <source>Operator %1 changed, level %2</source>
        <translation>Opérateur %1 modifié, niveau %2</translation>
    </message>
    <message>
        <source>Remove an operator</source>
        <translation>Supprimer un opérateur</translation>
    </message>
    <message>
        <source>Remove the operator &quot;%1&quot;?</source>
        <translation>Supprimer l&apos;opérateur &quot;%1&quot; ?</translation>
    </message>
    <message>
        <source>Who is logged in by this name is logged out.</source>
        <translation>Qui est connecté sous ce nom est déconnecté.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Operator %1 removed</source>
        <translation>Opérateur %1 supprimé</translation>
    </message>
</context>
<context>
    <name>OutageTable</name>
    <message>
        <source>Outages</source>
        <translation>Coupures</translation>
    </message>
    <message>
        <source>Double-click or Enter shows the outage in the charts.</source>
        <translation>Double-clic ou Entrée montre la coupure dans les graphiques.</translation>
    </message>
    <message>
        <source>Mains lost</source>
        <translation>Secteur perdu</translation>
    </message>
    <message>
        <source>Mains back</source>
        <translation>Secteur revenu</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Lowest charge</source>
        <translation>Charge minimale</translation>
    </message>
    <message>
        <source>still on battery</source>
        <translation>encore sur batterie</translation>
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
        <translation>Tous les appareils</translation>
    </message>
    <message>
        <source>Nothing matches “%1”.</source>
        <translation>Rien ne correspond à « %1 ».</translation>
    </message>
</context>
<context>
    <name>PostgresStore</name>
    <message>
        <source>%1 does not let this user in; look at the password</source>
        <translation>%1 n&apos;admet pas cet utilisateur ; voyez le mot de passe</translation>
    </message>
    <message>
        <source>%1: there is no such database; create it</source>
        <translation>%1 : cette base n&apos;existe pas ; créez-la</translation>
    </message>
    <message>
        <source>%1: the user may not do this; look at its rights</source>
        <translation>%1 : l&apos;utilisateur n&apos;en a pas le droit ; voyez ses droits</translation>
    </message>
    <message>
        <source>%1 is read-only</source>
        <translation>%1 est en lecture seule</translation>
    </message>
    <message>
        <source>the disk of %1 is full</source>
        <translation>le disque de %1 est plein</translation>
    </message>
    <message>
        <source>%1 has too many connections</source>
        <translation>%1 a trop de connexions</translation>
    </message>
    <message>
        <source>%1: a table is locked by another program</source>
        <translation>%1 : une table est verrouillée par un autre programme</translation>
    </message>
    <message>
        <source>%1 is shutting down or starting up</source>
        <translation>%1 s&apos;arrête ou démarre</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 ne répond pas</translation>
    </message>
</context>
<context>
    <name>PrivateFile</name>
    <message>
        <source>%1 is not a file</source>
        <translation>%1 n&apos;est pas un fichier</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>impossible de lire %1 : %2</translation>
    </message>
    <message>
        <source>%1 is longer than %2 bytes; it is not read</source>
        <translation>%1 dépasse %2 octets ; il n&apos;est pas lu</translation>
    </message>
    <message>
        <source>cannot make the folder %1</source>
        <translation>impossible de créer le dossier %1</translation>
    </message>
    <message>
        <source>%1 is not written: another upsdesk is writing it, or its folder is read-only</source>
        <translation>%1 n&apos;est pas écrit : un autre upsdesk l&apos;écrit, ou son dossier est en lecture seule</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>impossible d&apos;écrire %1 : %2</translation>
    </message>
</context>
<context>
    <name>Recorder</name>
    <message>
        <source>Recording ended</source>
        <translation>Enregistrement terminé</translation>
    </message>
    <message>
        <source>Recording began</source>
        <translation>Enregistrement commencé</translation>
    </message>
    <message>
        <source>Ended while nothing was recorded.</source>
        <translation>Terminé pendant que rien n&apos;était enregistré.</translation>
    </message>
    <message>
        <source>Ended while the device could not be reached.</source>
        <translation>Terminé pendant que l&apos;appareil était injoignable.</translation>
    </message>
    <message>
        <source>The device is no longer watched.</source>
        <translation>L&apos;appareil n&apos;est plus surveillé.</translation>
    </message>
    <message>
        <source>The desk&apos;s clock was set forward by %1 s</source>
        <translation>L&apos;horloge du poste a été avancée de %1 s</translation>
    </message>
    <message>
        <source>The desk&apos;s clock was set back by %1 s</source>
        <translation>L&apos;horloge du poste a été reculée de %1 s</translation>
    </message>
</context>
<context>
    <name>RelayConnector</name>
    <message>
        <source>This desk is a viewer: it polls nothing, the collector of %1 does.</source>
        <translation>Ce poste est un spectateur : il n&apos;interroge rien, le collecteur de %1 le fait.</translation>
    </message>
    <message>
        <source>this device</source>
        <translation>cet appareil</translation>
    </message>
    <message>
        <source>This desk is a viewer and has no way to the device: commands are given at a desk that polls it itself.</source>
        <translation>Ce poste est un spectateur et n&apos;a pas d&apos;accès à l&apos;appareil : les commandes se donnent à un poste qui l&apos;interroge lui-même.</translation>
    </message>
</context>
<context>
    <name>ReplayBar</name>
    <message>
        <source>Back to &amp;live</source>
        <translation>Retour au &amp;direct</translation>
    </message>
    <message>
        <source>Reading …</source>
        <translation>Lecture …</translation>
    </message>
    <message>
        <source>REPLAY</source>
        <translation>REJEU</translation>
    </message>
    <message>
        <source>To the reading before</source>
        <translation>À la mesure précédente</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lire</translation>
    </message>
    <message>
        <source>To the next reading</source>
        <translation>À la mesure suivante</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>%1x</source>
        <translation>%1x</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Replay: %1</source>
        <translation>Rejeu : %1</translation>
    </message>
    <message>
        <source>stored since %1</source>
        <translation>enregistré depuis %1</translation>
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
        <translation>Cela a été enregistré ainsi.</translation>
    </message>
    <message>
        <source>The past takes no commands.</source>
        <translation>Le passé ne prend pas de commandes.</translation>
    </message>
</context>
<context>
    <name>ReplayPage</name>
    <message>
        <source>This is a replay: the past takes no commands. Go back to live.</source>
        <translation>Ceci est un rejeu : le passé ne prend pas de commandes. Revenez au direct.</translation>
    </message>
</context>
<context>
    <name>ReplayPlayer</name>
    <message>
        <source>This desk keeps no history.</source>
        <translation>Ce poste ne tient pas d&apos;historique.</translation>
    </message>
    <message>
        <source>Nothing is stored of %1 yet.</source>
        <translation>Rien n&apos;est encore enregistré de %1.</translation>
    </message>
</context>
<context>
    <name>ResultBanner</name>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>ScaleTable</name>
    <message>
        <source>Quantity</source>
        <translation>Grandeur</translation>
    </message>
    <message>
        <source>Factor</source>
        <translation>Facteur</translation>
    </message>
    <message>
        <source>Correction factors</source>
        <translation>Facteurs de correction</translation>
    </message>
    <message>
        <source>The factor of %1 is a number above 0, as 0.1.</source>
        <translation>Le facteur de %1 est un nombre supérieur à 0, comme 0.1.</translation>
    </message>
</context>
<context>
    <name>ScenarioPlayer</name>
    <message>
        <source>Simulated day, %1x</source>
        <translation>Journée simulée, %1x</translation>
    </message>
    <message>
        <source>Simulated day, %1x: the battery lives so much faster; what is ordered takes its own time.</source>
        <translation>Journée simulée, %1x : la batterie vit d&apos;autant plus vite ; ce qui est commandé prend son propre temps.</translation>
    </message>
</context>
<context>
    <name>SecretEdit</name>
    <message>
        <source>kept</source>
        <translation>gardé</translation>
    </message>
</context>
<context>
    <name>SecretKeeper</name>
    <message>
        <source>A secret was not kept: %1</source>
        <translation>Un secret n&apos;a pas été gardé : %1</translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>&amp;General</source>
        <translation>&amp;Général</translation>
    </message>
    <message>
        <source>A device may have an interval of its own; its dialog says which.</source>
        <translation>Un appareil peut avoir son propre intervalle ; son dialogue dit lequel.</translation>
    </message>
    <message>
        <source>&amp;Thresholds</source>
        <translation>&amp;Seuils</translation>
    </message>
    <message>
        <source>From here on a live device is conspicuous in list, tiles and heading. Its own alarms count whatever stands here.</source>
        <translation>Dès ces valeurs, un appareil à jour se remarque dans la liste, les tuiles et l&apos;en-tête. Ses propres alarmes comptent quoi qu&apos;il soit écrit ici.</translation>
    </message>
    <message>
        <source>&amp;Secrets</source>
        <translation>Se&amp;crets</translation>
    </message>
    <message>
        <source>Passwords and keys of devices. Where another place is chosen, those that the desk knows move there. The file is not encrypted: this user and the administrator of this machine can read it.</source>
        <translation>Mots de passe et clés des appareils. Si un autre endroit est choisi, ceux que le poste connaît y déménagent. Le fichier n&apos;est pas chiffré : cet utilisateur et l&apos;administrateur de cette machine peuvent le lire.</translation>
    </message>
    <message>
        <source>Histor&amp;y</source>
        <translation>&amp;Historique</translation>
    </message>
    <message>
        <source>In a file of yours, or where it says: sqlite:/PATH or postgresql://USER@HOST/DATABASE, the latter encrypted as chosen and checked against the authorities in that file, or those of the system. Followed from the next start on.</source>
        <translation>Dans un fichier à vous, ou là où c&apos;est indiqué : sqlite:/CHEMIN ou postgresql://USER@HOST/DATABASE, ce dernier chiffré comme choisi et vérifié selon les autorités de ce fichier, ou celles du système. Suivi à partir du prochain démarrage.</translation>
    </message>
    <message>
        <source>&amp;Notifications</source>
        <translation>&amp;Notifications</translation>
    </message>
    <message>
        <source>Power failures are told at once, anything else after it has held for one more poll. In quiet hours the desktop is told only what is critical. The command is a program with its arguments; what happened is in its environment (UPSDESK_TEXT and others). Metrics are served at a port of this machine, or at an address like 127.0.0.1:9199.</source>
        <translation>Les coupures de courant sont annoncées aussitôt, tout le reste une fois confirmé par une interrogation de plus. Aux heures de silence, le bureau n&apos;apprend que ce qui est critique. La commande est un programme avec ses arguments ; ce qui s&apos;est passé est dans son environnement (UPSDESK_TEXT et d&apos;autres). Les métriques sont servies sur un port de cette machine, ou à une adresse comme 127.0.0.1:9199.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>&amp;Operators</source>
        <translation>&amp;Opérateurs</translation>
    </message>
    <message>
        <source>Settings: %1</source>
        <translation>Réglages : %1</translation>
    </message>
</context>
<context>
    <name>SidePanel</name>
    <message>
        <source>&amp;Worst first</source>
        <translation>Les &amp;pires d&apos;abord</translation>
    </message>
    <message>
        <source>&amp;All devices</source>
        <translation>&amp;Tous les appareils</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>Filter by name, address or state</source>
        <translation>Filtrer par nom, adresse ou état</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Appareils</translation>
    </message>
</context>
<context>
    <name>SimulatedUps</name>
    <message>
        <source>The battery is being tested for %1 s</source>
        <translation>La batterie est testée pendant %1 s</translation>
    </message>
    <message>
        <source>The battery is being discharged until it is low</source>
        <translation>La batterie est déchargée jusqu&apos;à ce qu&apos;elle soit faible</translation>
    </message>
    <message>
        <source>The test has ended</source>
        <translation>Le test est terminé</translation>
    </message>
    <message>
        <source>The output goes off in %1 s</source>
        <translation>La sortie se coupe dans %1 s</translation>
    </message>
    <message>
        <source>The output goes off in %1 s, for %2 min</source>
        <translation>La sortie se coupe dans %1 s, pendant %2 min</translation>
    </message>
    <message>
        <source>The output is off for %1 s</source>
        <translation>La sortie est coupée pendant %1 s</translation>
    </message>
    <message>
        <source>The output is on</source>
        <translation>La sortie est en marche</translation>
    </message>
    <message>
        <source>This unit does not know the command</source>
        <translation>Cet appareil ne connaît pas la commande</translation>
    </message>
    <message>
        <source>The delay is out of range</source>
        <translation>Le délai est hors limites</translation>
    </message>
    <message>
        <source>The time of standby is out of range</source>
        <translation>La durée de veille est hors limites</translation>
    </message>
    <message>
        <source>The duration is out of range</source>
        <translation>La durée est hors limites</translation>
    </message>
    <message>
        <source>No test is running</source>
        <translation>Aucun test n&apos;est en cours</translation>
    </message>
    <message>
        <source>The output is on already</source>
        <translation>La sortie est déjà en marche</translation>
    </message>
    <message>
        <source>There are no mains and the battery is low</source>
        <translation>Il n&apos;y a pas de secteur et la batterie est faible</translation>
    </message>
    <message>
        <source>The output is off already</source>
        <translation>La sortie est déjà coupée</translation>
    </message>
    <message>
        <source>A shutdown is under way already</source>
        <translation>Un arrêt est déjà en cours</translation>
    </message>
    <message>
        <source>The output is off</source>
        <translation>La sortie est coupée</translation>
    </message>
    <message>
        <source>A test is running already</source>
        <translation>Un test est déjà en cours</translation>
    </message>
    <message>
        <source>The battery carries the load</source>
        <translation>La batterie porte la charge</translation>
    </message>
    <message>
        <source>The load is on bypass</source>
        <translation>La charge est sur bypass</translation>
    </message>
    <message>
        <source>A shutdown is under way</source>
        <translation>Un arrêt est en cours</translation>
    </message>
    <message>
        <source>The output is overloaded</source>
        <translation>La sortie est surchargée</translation>
    </message>
    <message>
        <source>The battery is not charged enough</source>
        <translation>La batterie n&apos;est pas assez chargée</translation>
    </message>
</context>
<context>
    <name>SimulatorConnector</name>
    <message>
        <source>The simulator answers, the simulated UPS behind it is silent</source>
        <translation>Le simulateur répond, l&apos;ASI simulée derrière lui se tait</translation>
    </message>
    <message>
        <source>The simulated UPS does not answer</source>
        <translation>L&apos;ASI simulée ne répond pas</translation>
    </message>
</context>
<context>
    <name>SimulatorFields</name>
    <message>
        <source>Scena&amp;rio</source>
        <translation>Scéna&amp;rio</translation>
    </message>
    <message>
        <source>The simulator has no such scenario; choose one.</source>
        <translation>Le simulateur n&apos;a pas ce scénario ; choisissez-en un.</translation>
    </message>
    <message>
        <source>Simulator</source>
        <translation>Simulateur</translation>
    </message>
    <message>
        <source>Simulator %1</source>
        <translation>Simulateur %1</translation>
    </message>
</context>
<context>
    <name>SimulatorScenarios</name>
    <message>
        <source>simulated day, 60x</source>
        <translation>journée simulée, 60x</translation>
    </message>
    <message>
        <source>mains supply, battery full</source>
        <translation>alimentation secteur, batterie pleine</translation>
    </message>
    <message>
        <source>mains failure, the battery carries the load</source>
        <translation>coupure secteur, la batterie porte la charge</translation>
    </message>
    <message>
        <source>mains failure, battery low and soon empty</source>
        <translation>coupure secteur, batterie faible et bientôt vide</translation>
    </message>
    <message>
        <source>mains are back, the battery recharges</source>
        <translation>le secteur est revenu, la batterie se recharge</translation>
    </message>
    <message>
        <source>the load is on bypass</source>
        <translation>la charge est sur bypass</translation>
    </message>
    <message>
        <source>too much load, then transfer to bypass</source>
        <translation>trop de charge, puis transfert sur bypass</translation>
    </message>
    <message>
        <source>battery self-test, repeated</source>
        <translation>autotest batterie, répété</translation>
    </message>
    <message>
        <source>answers at first, then falls silent for a while</source>
        <translation>répond d&apos;abord, puis se tait un moment</translation>
    </message>
    <message>
        <source>the link comes and goes</source>
        <translation>la liaison va et vient</translation>
    </message>
    <message>
        <source>Single-phase UPS: %1</source>
        <translation>ASI monophasée : %1</translation>
    </message>
    <message>
        <source>Three-phase UPS: %1</source>
        <translation>ASI triphasée : %1</translation>
    </message>
    <message>
        <source>Unknown scenario &quot;%1&quot;; known are %2, and sim: alone for the whole day%3</source>
        <translation>Scénario inconnu &quot;%1&quot; ; sont connus %2, et sim: seul pour la journée entière%3</translation>
    </message>
</context>
<context>
    <name>SnmpCommand</name>
    <message>
        <source>The agent does not answer; nothing was set.</source>
        <translation>L&apos;agent ne répond pas ; rien n&apos;a été réglé.</translation>
    </message>
    <message>
        <source>%1. The command was sent before; look at the readings before sending it again.</source>
        <translation>%1. La commande avait été envoyée avant ; regardez les mesures avant de la renvoyer.</translation>
    </message>
    <message>
        <source>The agent fell silent after the command was sent; it is not known whether the device carried it out. It was not sent again.</source>
        <translation>L&apos;agent s&apos;est tu après l&apos;envoi de la commande ; on ne sait pas si l&apos;appareil l&apos;a exécutée. Elle n&apos;a pas été renvoyée.</translation>
    </message>
    <message>
        <source>A test is already in progress.</source>
        <translation>Un test est déjà en cours.</translation>
    </message>
    <message>
        <source>No test is in progress.</source>
        <translation>Aucun test n&apos;est en cours.</translation>
    </message>
    <message>
        <source>The device has no test objects.</source>
        <translation>L&apos;appareil n&apos;a pas d&apos;objets de test.</translation>
    </message>
    <message>
        <source>The shutdown delay of %1 s is not shorter than the standby.</source>
        <translation>Le délai d&apos;arrêt de %1 s n&apos;est pas plus court que la veille.</translation>
    </message>
    <message>
        <source>The device has no object for this command (%1).</source>
        <translation>L&apos;appareil n&apos;a pas d&apos;objet pour cette commande (%1).</translation>
    </message>
    <message>
        <source>No answer to the first step of the command; the shutdown was not sent.</source>
        <translation>Pas de réponse à la première étape de la commande ; l&apos;arrêt n&apos;a pas été envoyé.</translation>
    </message>
    <message>
        <source>No answer to the command, and the device shows no effect of it. It was not sent again.</source>
        <translation>Pas de réponse à la commande, et l&apos;appareil n&apos;en montre aucun effet. Elle n&apos;a pas été renvoyée.</translation>
    </message>
    <message>
        <source>The agent accepted the command, but the output was on before: nothing shows whether the device followed it.</source>
        <translation>L&apos;agent a accepté la commande, mais la sortie était déjà en marche : rien ne montre si l&apos;appareil a suivi.</translation>
    </message>
    <message>
        <source>The agent accepted the command, but the output was off before: nothing shows whether the device followed it.</source>
        <translation>L&apos;agent a accepté la commande, mais la sortie était déjà coupée : rien ne montre si l&apos;appareil a suivi.</translation>
    </message>
    <message>
        <source>The agent accepted the command, but the device shows no effect of it.</source>
        <translation>L&apos;agent a accepté la commande, mais l&apos;appareil n&apos;en montre aucun effet.</translation>
    </message>
    <message>
        <source>The test has ended.</source>
        <translation>Le test est terminé.</translation>
    </message>
    <message>
        <source>The test has begun.</source>
        <translation>Le test a commencé.</translation>
    </message>
    <message>
        <source>The test has ended. %1</source>
        <translation>Le test est terminé. %1</translation>
    </message>
    <message>
        <source>The test failed. %1</source>
        <translation>Le test a échoué. %1</translation>
    </message>
    <message>
        <source>The test was aborted. %1</source>
        <translation>Le test a été interrompu. %1</translation>
    </message>
    <message>
        <source>The output is on.</source>
        <translation>La sortie est en marche.</translation>
    </message>
    <message>
        <source>The output is off.</source>
        <translation>La sortie est coupée.</translation>
    </message>
    <message>
        <source>The countdown is running, %1 s left.</source>
        <translation>Le compte à rebours court, encore %1 s.</translation>
    </message>
    <message>
        <source>The device does not offer this command (%1 cannot be set).</source>
        <translation>L&apos;appareil n&apos;offre pas cette commande (%1 ne peut pas être réglé).</translation>
    </message>
    <message>
        <source>The agent does not let %1 be set: the %2 needs write access.</source>
        <translation>L&apos;agent ne laisse pas régler %1 : %2 a besoin du droit d&apos;écriture.</translation>
    </message>
    <message>
        <source>The device does not accept the value for %1.</source>
        <translation>L&apos;appareil n&apos;accepte pas la valeur pour %1.</translation>
    </message>
    <message>
        <source>The device cannot do this now (SNMP error %1 at %2).</source>
        <translation>L&apos;appareil ne le peut pas maintenant (erreur SNMP %1 à %2).</translation>
    </message>
</context>
<context>
    <name>SnmpFields</name>
    <message>
        <source>No authentication, no encryption</source>
        <translation>Ni authentification ni chiffrement</translation>
    </message>
    <message>
        <source>Authentication, no encryption</source>
        <translation>Authentification, pas de chiffrement</translation>
    </message>
    <message>
        <source>Authentication and encryption</source>
        <translation>Authentification et chiffrement</translation>
    </message>
    <message>
        <source>the agent&apos;s own</source>
        <translation>celui de l&apos;agent</translation>
    </message>
    <message>
        <source>&amp;Host</source>
        <translation>&amp;Hôte</translation>
    </message>
    <message>
        <source>&amp;Version</source>
        <translation>&amp;Version</translation>
    </message>
    <message>
        <source>Comm&amp;unity</source>
        <translation>Comm&amp;unauté</translation>
    </message>
    <message>
        <source>&amp;User</source>
        <translation>&amp;Utilisateur</translation>
    </message>
    <message>
        <source>&amp;Security</source>
        <translation>&amp;Sécurité</translation>
    </message>
    <message>
        <source>Authent&amp;ication</source>
        <translation>Authent&amp;ification</translation>
    </message>
    <message>
        <source>Authentication secret</source>
        <translation>Secret d&apos;authentification</translation>
    </message>
    <message>
        <source>Encr&amp;yption</source>
        <translation>C&amp;hiffrement</translation>
    </message>
    <message>
        <source>Encryption secret</source>
        <translation>Secret de chiffrement</translation>
    </message>
    <message>
        <source>Conte&amp;xt</source>
        <translation>Conte&amp;xte</translation>
    </message>
    <message>
        <source>&amp;Range</source>
        <translation>&amp;Plage</translation>
    </message>
    <message>
        <source>Enter the user of SNMPv3.</source>
        <translation>Saisir l&apos;utilisateur SNMPv3.</translation>
    </message>
    <message>
        <source>A secret of SNMPv3 has at least %1 characters.</source>
        <translation>Un secret SNMPv3 a au moins %1 caractères.</translation>
    </message>
</context>
<context>
    <name>SnmpPeer</name>
    <message>
        <source>The name server does not answer for %1</source>
        <translation>Le serveur de noms ne répond pas pour %1</translation>
    </message>
    <message>
        <source>user &quot;%1&quot;</source>
        <translation>l&apos;utilisateur &quot;%1&quot;</translation>
    </message>
    <message>
        <source>community</source>
        <translation>la communauté</translation>
    </message>
</context>
<context>
    <name>SnmpPoll</name>
    <message>
        <source>not a UPS: %1 answers SNMP but has no UPS-MIB objects</source>
        <translation>pas une ASI : %1 répond en SNMP mais n&apos;a pas d&apos;objets UPS-MIB</translation>
    </message>
    <message>
        <source>The agent at %1 answers, but has lost contact with its UPS; what it repeats is not taken for new.</source>
        <translation>L&apos;agent de %1 répond, mais a perdu le contact avec son ASI ; ce qu&apos;il répète n&apos;est pas pris pour nouveau.</translation>
    </message>
    <message>
        <source>%1 stopped answering, or answers too slowly: a poll did not end within %2 s</source>
        <translation>%1 ne répond plus, ou répond trop lentement : une interrogation n&apos;a pas abouti en %2 s</translation>
    </message>
    <message>
        <source>Silent for %1 s: wrong user or context, an agent without SNMPv3, or nothing at %2</source>
        <translation>Muet depuis %1 s : mauvais utilisateur ou contexte, un agent sans SNMPv3, ou rien à %2</translation>
    </message>
    <message>
        <source>Silent for %1 s: wrong community, an agent without this SNMP version, or nothing at %2</source>
        <translation>Muet depuis %1 s : mauvaise communauté, un agent sans cette version de SNMP, ou rien à %2</translation>
    </message>
</context>
<context>
    <name>SnmpPort</name>
    <message>
        <source>upsdesk has as many files open as this computer allows it (%1; see &quot;ulimit -n&quot;)</source>
        <translation>upsdesk a autant de fichiers ouverts que cet ordinateur le permet (%1 ; voir &quot;ulimit -n&quot;)</translation>
    </message>
</context>
<context>
    <name>SnmpReading</name>
    <message>
        <source>Alarms counted, but not named: %1</source>
        <translation>Alarmes comptées, mais non nommées : %1</translation>
    </message>
</context>
<context>
    <name>SnmpSession</name>
    <message>
        <source>No SNMP session to %1: %2</source>
        <translation>Pas de session SNMP avec %1 : %2</translation>
    </message>
    <message>
        <source>Cannot send to %1: %2</source>
        <translation>Impossible d&apos;envoyer à %1 : %2</translation>
    </message>
    <message>
        <source>The request cannot be made: %1</source>
        <translation>La demande ne peut pas être formée : %1</translation>
    </message>
    <message>
        <source>Wrong authentication secret or protocol: %1 refuses the digest of user &quot;%2&quot;</source>
        <translation>Mauvais secret ou protocole d&apos;authentification : %1 refuse l&apos;empreinte de l&apos;utilisateur &quot;%2&quot;</translation>
    </message>
    <message>
        <source>Unknown user &quot;%1&quot; at %2</source>
        <translation>Utilisateur inconnu &quot;%1&quot; sur %2</translation>
    </message>
    <message>
        <source>%1 does not allow user &quot;%2&quot; the level %3</source>
        <translation>%1 ne permet pas à l&apos;utilisateur &quot;%2&quot; le niveau %3</translation>
    </message>
    <message>
        <source>Wrong privacy secret or protocol: %1 cannot decrypt what user &quot;%2&quot; sends</source>
        <translation>Mauvais secret ou protocole de chiffrement : %1 ne peut pas déchiffrer ce qu&apos;envoie l&apos;utilisateur &quot;%2&quot;</translation>
    </message>
    <message>
        <source>%1 refuses the SNMPv3 message: %2</source>
        <translation>%1 refuse le message SNMPv3 : %2</translation>
    </message>
    <message>
        <source>%1 answers, but not what user &quot;%2&quot; sends: wrong privacy secret or protocol, or unknown context</source>
        <translation>%1 répond, mais pas à ce qu&apos;envoie l&apos;utilisateur &quot;%2&quot; : mauvais secret ou protocole de chiffrement, ou contexte inconnu</translation>
    </message>
</context>
<context>
    <name>SnmpUsers</name>
    <message>
        <source>SNMPv3 secrets have at least %1 characters; the %2 secret is shorter or missing.</source>
        <translation>Les secrets SNMPv3 ont au moins %1 caractères ; celui pour %2 est plus court ou manque.</translation>
    </message>
    <message>
        <source>authentication</source>
        <translation>authentification</translation>
    </message>
    <message>
        <source>privacy</source>
        <translation>chiffrement</translation>
    </message>
    <message>
        <source>The SNMP library of this computer has no authentication with &quot;%1&quot;.</source>
        <translation>La bibliothèque SNMP de cet ordinateur n&apos;a pas d&apos;authentification avec &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The SNMP library cannot make keys of these secrets.</source>
        <translation>La bibliothèque SNMP ne peut pas faire de clés de ces secrets.</translation>
    </message>
    <message>
        <source>The SNMP library of this computer has no privacy with &quot;%1&quot;.</source>
        <translation>La bibliothèque SNMP de cet ordinateur n&apos;a pas de chiffrement avec &quot;%1&quot;.</translation>
    </message>
</context>
<context>
    <name>SqliteStore</name>
    <message>
        <source>%1 is locked by another program</source>
        <translation>%1 est verrouillé par un autre programme</translation>
    </message>
    <message>
        <source>%1 may not be written; look at its permissions</source>
        <translation>%1 ne peut pas être écrit ; voyez ses droits</translation>
    </message>
    <message>
        <source>%1 cannot be read or written; the disk is at fault</source>
        <translation>%1 ne peut être ni lu ni écrit ; le disque est en cause</translation>
    </message>
    <message>
        <source>%1 is damaged; move it away and a new one is begun</source>
        <translation>%1 est endommagé ; mettez-le de côté et un nouveau est commencé</translation>
    </message>
    <message>
        <source>the disk of %1 is full</source>
        <translation>le disque de %1 est plein</translation>
    </message>
    <message>
        <source>%1 cannot be opened; look at its folder</source>
        <translation>%1 ne peut pas être ouvert ; voyez son dossier</translation>
    </message>
    <message>
        <source>%1 is no history; move it away</source>
        <translation>%1 n&apos;est pas un historique ; mettez-le de côté</translation>
    </message>
    <message>
        <source>there is no history yet: %1 does not exist</source>
        <translation>il n&apos;y a pas encore d&apos;historique : %1 n&apos;existe pas</translation>
    </message>
    <message>
        <source>cannot make the folder %1</source>
        <translation>impossible de créer le dossier %1</translation>
    </message>
</context>
<context>
    <name>StoreAddress</name>
    <message>
        <source>store is sqlite:PATH or postgresql://USER@HOST[:PORT]/DATABASE</source>
        <translation>store est sqlite:PATH ou postgresql://USER@HOST[:PORT]/DATABASE</translation>
    </message>
    <message>
        <source>a password does not belong in the store&apos;s address but in the keychain, or in UPSDESK_HISTORY_SECRET</source>
        <translation>un mot de passe n&apos;a pas sa place dans l&apos;adresse de la base mais dans le trousseau, ou dans UPSDESK_HISTORY_SECRET</translation>
    </message>
    <message>
        <source>the path of the store begins with /: sqlite:/PATH</source>
        <translation>le chemin de la base commence par / : sqlite:/PATH</translation>
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
        <translation>%1 jours %2 h</translation>
    </message>
</context>
<context>
    <name>TrayIcon</name>
    <message>
        <source>&amp;Show the desk</source>
        <translation>&amp;Afficher le poste</translation>
    </message>
    <message>
        <source>&amp;Mute sounds</source>
        <translation>&amp;Couper les sons</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
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
        <translation>Décharge jusqu&apos;à tension basse</translation>
    </message>
    <message>
        <source>Cancel test</source>
        <translation>Annuler le test</translation>
    </message>
    <message>
        <source>Shutdown</source>
        <translation>Arrêt</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Veille</translation>
    </message>
    <message>
        <source>Wake up from standby</source>
        <translation>Sortie de veille</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Redémarrage</translation>
    </message>
    <message>
        <source>Standby takes a number of minutes from 1 to %1; nothing was sent.</source>
        <translation>La veille prend un nombre de minutes de 1 à %1 ; rien n&apos;a été envoyé.</translation>
    </message>
    <message>
        <source>The event %1 is no command that this desk carries out.</source>
        <translation>L&apos;événement %1 n&apos;est pas une commande que ce poste exécute.</translation>
    </message>
    <message>
        <source>The command %1 takes no value.</source>
        <translation>La commande %1 ne prend pas de valeur.</translation>
    </message>
    <message>
        <source>Unknown command &quot;%1&quot;; known are %2%3</source>
        <translation>Commande inconnue &quot;%1&quot; ; sont connues %2%3</translation>
    </message>
    <message>
        <source>%1 for %2 min</source>
        <translation>%1 pendant %2 min</translation>
    </message>
    <message>
        <source>done</source>
        <translation>terminé</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>refusé</translation>
    </message>
    <message>
        <source>not offered by this device</source>
        <translation>non offert par cet appareil</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>pas de réponse</translation>
    </message>
    <message>
        <source>sent, result unknown</source>
        <translation>envoyé, résultat inconnu</translation>
    </message>
</context>
<context>
    <name>Urgency</name>
    <message>
        <source>Connecting</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>On mains</source>
        <translation>Sur secteur</translation>
    </message>
    <message>
        <source>On mains, boosting</source>
        <translation>Sur secteur, élève</translation>
    </message>
    <message>
        <source>On mains, reducing</source>
        <translation>Sur secteur, réduit</translation>
    </message>
    <message>
        <source>On battery</source>
        <translation>Sur batterie</translation>
    </message>
    <message>
        <source>Battery test</source>
        <translation>Test batterie</translation>
    </message>
    <message>
        <source>On bypass</source>
        <translation>Sur bypass</translation>
    </message>
    <message>
        <source>Output off</source>
        <translation>Sortie coupée</translation>
    </message>
    <message>
        <source>Source unknown</source>
        <translation>Source inconnue</translation>
    </message>
    <message>
        <source>No new data</source>
        <translation>Pas de nouvelles données</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>Pas de réponse</translation>
    </message>
    <message>
        <source>Refused</source>
        <translation>Refusé</translation>
    </message>
    <message>
        <source>low</source>
        <translation>faible</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>vide</translation>
    </message>
    <message>
        <source>Little time left</source>
        <translation>Peu de temps restant</translation>
    </message>
    <message>
        <source>little time left</source>
        <translation>peu de temps restant</translation>
    </message>
    <message>
        <source>Battery at %1 %</source>
        <translation>Batterie à %1 %</translation>
    </message>
    <message>
        <source>battery at %1 %</source>
        <translation>batterie à %1 %</translation>
    </message>
    <message>
        <source>%1 % left</source>
        <translation>reste %1 %</translation>
    </message>
    <message>
        <source>Load %1 %</source>
        <translation>Charge %1 %</translation>
    </message>
    <message>
        <source>load %1 %</source>
        <translation>charge %1 %</translation>
    </message>
    <message>
        <source>Alarm %1</source>
        <translation>Alarme %1</translation>
    </message>
    <message>
        <source>Battery at %1 °C</source>
        <translation>Batterie à %1 °C</translation>
    </message>
    <message>
        <source>battery at %1 °C</source>
        <translation>batterie à %1 °C</translation>
    </message>
</context>
<context>
    <name>Viewer</name>
    <message>
        <source>mode = viewer needs the PostgreSQL database that the collectors write (store = postgresql://USER@HOST/DATABASE)</source>
        <translation>mode = viewer a besoin de la base PostgreSQL que les collecteurs écrivent (store = postgresql://USER@HOST/DATABASE)</translation>
    </message>
    <message>
        <source>The collector of %1 has been silent since %2.</source>
        <translation>Le collecteur de %1 est muet depuis %2.</translation>
    </message>
    <message>
        <source>this device</source>
        <translation>cet appareil</translation>
    </message>
    <message>
        <source>The shared store has not answered since %1.</source>
        <translation>La base commune n&apos;a pas répondu depuis %1.</translation>
    </message>
</context>
<context>
    <name>ViewerLine</name>
    <message>
        <source>one without a name</source>
        <translation>un sans nom</translation>
    </message>
    <message>
        <source>%1 for %2</source>
        <translation>%1 depuis %2</translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>%n de plus</numerusform>
            <numerusform>%n de plus</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 collectors silent: %3</source>
        <translation>%1 collecteurs sur %2 muets : %3</translation>
    </message>
    <message>
        <source>The shared store is not reached: %1</source>
        <translation>La base commune n&apos;est pas joignable : %1</translation>
    </message>
    <message>
        <source>No collector has written into the shared store yet.</source>
        <translation>Aucun collecteur n&apos;a encore écrit dans la base commune.</translation>
    </message>
    <message>
        <source>Viewer of one collector; its word is at most %1 old</source>
        <translation>Spectateur d&apos;un collecteur ; sa parole date de %1 au plus</translation>
    </message>
    <message>
        <source>Viewer of %1 collectors; their word is at most %2 old</source>
        <translation>Spectateur de %1 collecteurs ; leur parole date de %2 au plus</translation>
    </message>
    <message>
        <source>Waiting for the shared store</source>
        <translation>Attend la base commune</translation>
    </message>
</context>
<context>
    <name>WatchList</name>
    <message>
        <source>Device added</source>
        <translation>Appareil ajouté</translation>
    </message>
    <message>
        <source>Device changed</source>
        <translation>Appareil modifié</translation>
    </message>
    <message>
        <source>Device changed, was &quot;%1&quot;</source>
        <translation>Appareil modifié, s&apos;appelait &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Device removed</source>
        <translation>Appareil supprimé</translation>
    </message>
    <message>
        <source>there is no such place in the list of devices</source>
        <translation>cette place n&apos;existe pas dans la liste des appareils</translation>
    </message>
    <message>
        <source>%1 was changed by another program and has faults now (line %2: %3); mend it with a text editor first</source>
        <translation>%1 a été modifié par un autre programme et contient maintenant des fautes (ligne %2 : %3) ; corrigez-le d&apos;abord avec un éditeur de texte</translation>
    </message>
    <message>
        <source>%1 was changed by another program and has been read again. Nothing else was changed; look at the devices and repeat the change</source>
        <translation>%1 a été modifié par un autre programme et relu. Rien d&apos;autre n&apos;a été changé ; regardez les appareils et recommencez la modification</translation>
    </message>
</context>
<context>
    <name>WebhookChannel</name>
    <message>
        <source>it answered with status %1</source>
        <translation>il a répondu avec le statut %1</translation>
    </message>
    <message>
        <source>no answer in time</source>
        <translation>pas de réponse à temps</translation>
    </message>
    <message>
        <source>connection failed (%1)</source>
        <translation>échec de la connexion (%1)</translation>
    </message>
    <message>
        <source>The webhook at %1 did not take a notification: %2.</source>
        <translation>Le webhook à %1 n&apos;a pas pris une notification : %2.</translation>
    </message>
    <message>
        <source>The webhook at %1 takes nothing: %2 notifications wait for it.</source>
        <translation>Le webhook à %1 ne prend rien : %2 notifications l&apos;attendent.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>--collector takes its devices from the configuration and no further arguments</source>
        <translation>--collector prend ses appareils dans la configuration et pas d&apos;autres arguments</translation>
    </message>
</context>
</TS>
