<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>ardeo::ActionHeader</name>
    <message>
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Refresh adapter list</source>
        <translation>Adapterliste aktualisieren</translation>
    </message>
    <message>
        <source>Applying…</source>
        <translation>Wird angewendet&#xa0;…</translation>
    </message>
    <message>
        <source>Apply configuration</source>
        <translation>Konfiguration anwenden</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
</context>
<context>
    <name>ardeo::AdapterPropertiesCard</name>
    <message>
        <source>Connected</source>
        <translation>Verbunden</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Nicht verbunden</translation>
    </message>
    <message>
        <source>IP Address:</source>
        <translation>IP-Adresse:</translation>
    </message>
    <message>
        <source>Subnet Mask:</source>
        <translation>Subnetzmaske:</translation>
    </message>
    <message>
        <source>Gateway:</source>
        <translation>Gateway:</translation>
    </message>
    <message>
        <source>Preferred DNS:</source>
        <translation>Bevorzugter DNS:</translation>
    </message>
    <message>
        <source>Alternate DNS:</source>
        <translation>Alternativer DNS:</translation>
    </message>
    <message>
        <source>DHCP Server:</source>
        <translation>DHCP-Server:</translation>
    </message>
    <message>
        <source>Mode:</source>
        <translation>Modus:</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manuell</translation>
    </message>
    <message>
        <source>DHCP</source>
        <translation>DHCP</translation>
    </message>
    <message>
        <source>Computer Name:</source>
        <translation>Computername:</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>Wird geladen&#xa0;…</translation>
    </message>
    <message>
        <source>Disable Adapter</source>
        <translation>Adapter deaktivieren</translation>
    </message>
    <message>
        <source>Enable Adapter</source>
        <translation>Adapter aktivieren</translation>
    </message>
    <message>
        <source>Current Adapter Properties</source>
        <translation>Aktuelle Adaptereigenschaften</translation>
    </message>
</context>
<context>
    <name>ardeo::AdapterSection</name>
    <message>
        <source>%1 (removed)</source>
        <translation>%1 (entfernt)</translation>
    </message>
    <message>
        <source>Select Adapter</source>
        <translation>Adapter auswählen</translation>
    </message>
    <message>
        <source>Full-duplex</source>
        <translation>Vollduplex</translation>
    </message>
    <message>
        <source>Half-duplex</source>
        <translation>Halbduplex</translation>
    </message>
    <message>
        <source>%1 (disconnected)</source>
        <translation>%1 (getrennt)</translation>
    </message>
    <message>
        <source>%1 (disabled)</source>
        <translation>%1 (deaktiviert)</translation>
    </message>
    <message>
        <source>%1 (on trial)</source>
        <translation>%1 (auf Probe)</translation>
    </message>
    <message>
        <source>%1 Gbps</source>
        <translation>%1 Gbit/s</translation>
    </message>
    <message>
        <source>%1 Mbps</source>
        <translation>%1 Mbit/s</translation>
    </message>
</context>
<context>
    <name>ardeo::AppDelegate</name>
    <message>
        <source>Ardeo IP Config is still running. This desktop shows no tray icons, so its window was minimised instead of hidden. %1 ends the program.</source>
        <translation>Ardeo IP Config läuft weiter. Dieser Desktop zeigt keine Symbole im Infobereich, daher wurde das Fenster minimiert statt ausgeblendet. %1 beendet das Programm.</translation>
    </message>
</context>
<context>
    <name>ardeo::Ardeo_IPConfigApp</name>
    <message>
        <source>Ardeo IP Config Help</source>
        <translation>Hilfe zu Ardeo IP Config</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>About Ardeo IP Config</source>
        <translation>Über Ardeo IP Config</translation>
    </message>
    <message>
        <source>Version %1
Works on: %2</source>
        <translation>Version %1
Arbeitet auf: %2</translation>
    </message>
</context>
<context>
    <name>ardeo::AuthError</name>
    <message>
        <source>Cannot create authorization reference.</source>
        <translation>Die Autorisierungsreferenz kann nicht erstellt werden.</translation>
    </message>
    <message>
        <source>Admin authorization was denied or cancelled.</source>
        <translation>Die Administratorfreigabe wurde verweigert oder abgebrochen.</translation>
    </message>
</context>
<context>
    <name>ardeo::ConfigError</name>
    <message>
        <source>Cannot acquire preferences lock (SC %1).</source>
        <translation>Die Sperre der Einstellungen ist nicht zu bekommen (SC %1).</translation>
    </message>
    <message>
        <source>Service &apos;%1&apos; not found.</source>
        <translation>Der Dienst „%1“ wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>Protocol %1 unavailable.</source>
        <translation>Das Protokoll %1 ist nicht verfügbar.</translation>
    </message>
    <message>
        <source>Cannot save changes (SC %1).</source>
        <translation>Die Änderungen können nicht gespeichert werden (SC %1).</translation>
    </message>
    <message>
        <source>Cannot apply changes (SC %1).</source>
        <translation>Die Änderungen können nicht angewendet werden (SC %1).</translation>
    </message>
    <message>
        <source>Cannot open system network preferences.</source>
        <translation>Die Netzwerkeinstellungen des Systems können nicht geöffnet werden.</translation>
    </message>
</context>
<context>
    <name>ardeo::ConfirmationDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>ardeo::Console</name>
    <message>
        <source>A command is missing; see ardeoctl --help.</source>
        <translation>Ein Befehl fehlt; siehe ardeoctl --help.</translation>
    </message>
    <message>
        <source>There is no command &apos;%1&apos;; see ardeoctl --help.</source>
        <translation>Den Befehl „%1“ gibt es nicht; siehe ardeoctl --help.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; needs a %2.</source>
        <translation>„%1“ braucht %2.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; takes no &apos;%2&apos;.</source>
        <translation>„%1“ nimmt kein „%2“ an.</translation>
    </message>
    <message>
        <source>--system is auto, networkmanager or simulated.</source>
        <translation>--system ist auto, networkmanager oder simulated.</translation>
    </message>
    <message>
        <source>--state goes with --system=simulated.</source>
        <translation>--state gehört zu --system=simulated.</translation>
    </message>
    <message>
        <source>--state needs a file.</source>
        <translation>--state braucht eine Datei.</translation>
    </message>
    <message>
        <source>--confirm-within takes 5 to 3600 seconds.</source>
        <translation>--confirm-within nimmt 5 bis 3600 Sekunden.</translation>
    </message>
    <message>
        <source>--profile brings all settings along and takes no others beside it.</source>
        <translation>--profile bringt alle Einstellungen mit und nimmt keine anderen daneben.</translation>
    </message>
    <message>
        <source>--dhcp takes no --address, --mask or --router.</source>
        <translation>--dhcp nimmt kein --address, --mask oder --router.</translation>
    </message>
    <message>
        <source>A manual address takes both --address and --mask.</source>
        <translation>Eine manuelle Adresse braucht --address und --mask.</translation>
    </message>
    <message>
        <source>--dns takes two servers at most.</source>
        <translation>--dns nimmt höchstens zwei Server.</translation>
    </message>
    <message>
        <source>--search needs DNS servers of its own: automatic DNS keeps no search domains.</source>
        <translation>--search braucht eigene DNS-Server: automatisches DNS behält keine Suchdomänen.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; takes no --%2.</source>
        <translation>„%1“ nimmt kein --%2 an.</translation>
    </message>
    <message>
        <source>Usage: ardeoctl [--system=SYSTEM] [--state=FILE] COMMAND</source>
        <translation>Aufruf: ardeoctl [--system=SYSTEM] [--state=FILE] BEFEHL</translation>
    </message>
    <message>
        <source>Switches the IPv4 and DNS settings of this computer&apos;s network services.</source>
        <translation>Wechselt die IPv4- und DNS-Einstellungen der Netzwerkdienste dieses Computers.</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Befehle:</translation>
    </message>
    <message>
        <source>the network services, connected ones first</source>
        <translation>die Netzwerkdienste, verbundene zuerst</translation>
    </message>
    <message>
        <source>the settings and the state of one service</source>
        <translation>die Einstellungen und der Zustand eines Dienstes</translation>
    </message>
    <message>
        <source>change a service; what is not named keeps its present value</source>
        <translation>einen Dienst ändern; was nicht genannt ist, behält seinen Wert</translation>
    </message>
    <message>
        <source>put the service on DHCP and take a new lease</source>
        <translation>den Dienst auf DHCP stellen und eine neue Lease holen</translation>
    </message>
    <message>
        <source>switch the service on</source>
        <translation>den Dienst einschalten</translation>
    </message>
    <message>
        <source>switch the service off, and keep it off</source>
        <translation>den Dienst ausschalten, und er bleibt aus</translation>
    </message>
    <message>
        <source>keep what was changed on trial, of one service or of all</source>
        <translation>behalten, was auf Probe geändert wurde, von einem Dienst oder allen</translation>
    </message>
    <message>
        <source>take it back at once</source>
        <translation>es sofort zurücknehmen</translation>
    </message>
    <message>
        <source>the saved profiles</source>
        <translation>die gespeicherten Profile</translation>
    </message>
    <message>
        <source>write them to a file</source>
        <translation>sie in eine Datei schreiben</translation>
    </message>
    <message>
        <source>Settings:</source>
        <translation>Einstellungen:</translation>
    </message>
    <message>
        <source>take the address from the network</source>
        <translation>die Adresse vom Netz beziehen</translation>
    </message>
    <message>
        <source>a manual address with its dotted mask</source>
        <translation>eine manuelle Adresse mit ihrer Maske, beide mit Punkten</translation>
    </message>
    <message>
        <source>the gateway of a manual address; --router= for none</source>
        <translation>das Gateway einer manuellen Adresse; --router= für keines</translation>
    </message>
    <message>
        <source>take the DNS servers from the network</source>
        <translation>die DNS-Server vom Netz beziehen</translation>
    </message>
    <message>
        <source>DNS servers set by hand</source>
        <translation>von Hand gesetzte DNS-Server</translation>
    </message>
    <message>
        <source>search domains, with DNS servers set by hand</source>
        <translation>Suchdomänen, mit von Hand gesetzten DNS-Servern</translation>
    </message>
    <message>
        <source>Trial (apply, renew, enable, disable):</source>
        <translation>Probe (apply, renew, enable, disable):</translation>
    </message>
    <message>
        <source>take the change back by itself unless it is confirmed in time</source>
        <translation>die Änderung von selbst zurücknehmen, wenn sie nicht rechtzeitig bestätigt wird</translation>
    </message>
    <message>
        <source>Systems:</source>
        <translation>Systeme:</translation>
    </message>
    <message>
        <source>NetworkManager, with advice where it is not running (the default)</source>
        <translation>NetworkManager, mit einem Rat, wo er nicht läuft (die Vorgabe)</translation>
    </message>
    <message>
        <source>this computer</source>
        <translation>dieser Computer</translation>
    </message>
    <message>
        <source>a simulated machine, for trying things out</source>
        <translation>ein simulierter Rechner, um etwas auszuprobieren</translation>
    </message>
    <message>
        <source>the file that the simulated machine lives in</source>
        <translation>die Datei, in der der simulierte Rechner lebt</translation>
    </message>
    <message>
        <source>Exit status: 0 when done, 1 when it failed (the reason is on standard error), 2 for wrong usage.</source>
        <translation>Rückgabewert: 0, wenn es getan ist, 1, wenn es misslang (der Grund steht auf der Standardfehlerausgabe), 2 bei falschem Aufruf.</translation>
    </message>
    <message>
        <source>No change awaits confirmation.</source>
        <translation>Keine Änderung wartet auf Bestätigung.</translation>
    </message>
    <message>
        <source>Cannot write %1: %2.</source>
        <translation>%1 kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>The saved profiles cannot be read.</source>
        <translation>Die gespeicherten Profile sind nicht lesbar.</translation>
    </message>
    <message>
        <source>There is no profile &apos;%1&apos;.</source>
        <translation>Das Profil „%1“ gibt es nicht.</translation>
    </message>
    <message>
        <source>%1 profiles are named &apos;%2&apos;.</source>
        <translation>%1 Profile heißen „%2“.</translation>
    </message>
    <message>
        <source>--search needs --dns: automatic DNS keeps no search domains.</source>
        <translation>--search braucht --dns: automatisches DNS behält keine Suchdomänen.</translation>
    </message>
    <message>
        <source>--router needs --address and --mask.</source>
        <translation>--router braucht --address und --mask.</translation>
    </message>
    <message>
        <source>A profile holds text that is not valid Unicode.</source>
        <translation>Ein Profil enthält Text, der kein gültiges Unicode ist.</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>%1 auf %2</translation>
    </message>
    <message>
        <source>Cannot write the output: %1.</source>
        <translation>Die Ausgabe kann nicht geschrieben werden: %1.</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manuell</translation>
    </message>
    <message>
        <source>DHCP</source>
        <translation>DHCP</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message numerus="yes">
        <source>, %n s to confirm</source>
        <translation>
            <numerusform>, noch %n s zum Bestätigen</numerusform>
            <numerusform>, noch %n s zum Bestätigen</numerusform>
        </translation>
    </message>
    <message>
        <source>connected</source>
        <translation>verbunden</translation>
    </message>
    <message>
        <source>disconnected</source>
        <translation>getrennt</translation>
    </message>
    <message>
        <source>disabled</source>
        <translation>deaktiviert</translation>
    </message>
    <message>
        <source>%1 Gb/s</source>
        <translation>%1 Gbit/s</translation>
    </message>
    <message>
        <source>%1 Mb/s</source>
        <translation>%1 Mbit/s</translation>
    </message>
    <message>
        <source>full-duplex</source>
        <translation>Vollduplex</translation>
    </message>
    <message>
        <source>half-duplex</source>
        <translation>Halbduplex</translation>
    </message>
    <message>
        <source>No network services.</source>
        <translation>Keine Netzwerkdienste.</translation>
    </message>
    <message>
        <source>SERVICE</source>
        <translation>DIENST</translation>
    </message>
    <message>
        <source>STATE</source>
        <translation>ZUSTAND</translation>
    </message>
    <message>
        <source>DEVICE</source>
        <translation>GERÄT</translation>
    </message>
    <message>
        <source>HARDWARE ADDRESS</source>
        <translation>HARDWAREADRESSE</translation>
    </message>
    <message>
        <source>LINK</source>
        <translation>VERBINDUNG</translation>
    </message>
    <message>
        <source>HARDWARE</source>
        <translation>HARDWARE</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>Zustand:</translation>
    </message>
    <message>
        <source>Mode:</source>
        <translation>Modus:</translation>
    </message>
    <message>
        <source>IP Address:</source>
        <translation>IP-Adresse:</translation>
    </message>
    <message>
        <source>Subnet Mask:</source>
        <translation>Subnetzmaske:</translation>
    </message>
    <message>
        <source>Gateway:</source>
        <translation>Gateway:</translation>
    </message>
    <message>
        <source>DNS:</source>
        <translation>DNS:</translation>
    </message>
    <message>
        <source>Search Domains:</source>
        <translation>Suchdomänen:</translation>
    </message>
    <message>
        <source>No saved profiles.</source>
        <translation>Keine gespeicherten Profile.</translation>
    </message>
    <message>
        <source>PROFILE</source>
        <translation>PROFIL</translation>
    </message>
    <message>
        <source>IPV4</source>
        <translation>IPV4</translation>
    </message>
    <message>
        <source>DNS</source>
        <translation>DNS</translation>
    </message>
    <message>
        <source>The change has been taken back.</source>
        <translation>Die Änderung wurde zurückgenommen.</translation>
    </message>
    <message>
        <source>The change is no longer on trial.</source>
        <translation>Die Änderung ist nicht mehr auf Probe.</translation>
    </message>
    <message numerus="yes">
        <source>Keep this change? Enter keeps it, u and Enter takes it back; so does waiting %n s. </source>
        <translation>
            <numerusform>Diese Änderung behalten? Eingabe behält sie, u und Eingabe nimmt sie zurück, %n s Warten auch. </numerusform>
            <numerusform>Diese Änderung behalten? Eingabe behält sie, u und Eingabe nimmt sie zurück, %n s Warten auch. </numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The change is taken back in %n s. &quot;ardeoctl confirm&quot; keeps it, &quot;ardeoctl undo&quot; takes it back at once.</source>
        <translation>
            <numerusform>Die Änderung wird in %n Sekunde zurückgenommen. „ardeoctl confirm“ behält sie, „ardeoctl undo“ nimmt sie sofort zurück.</numerusform>
            <numerusform>Die Änderung wird in %n Sekunden zurückgenommen. „ardeoctl confirm“ behält sie, „ardeoctl undo“ nimmt sie sofort zurück.</numerusform>
        </translation>
    </message>
    <message>
        <source>--profiles needs --profile.</source>
        <translation>--profiles braucht --profile.</translation>
    </message>
    <message>
        <source>--dry-run changes nothing, and takes no --confirm-within.</source>
        <translation>--dry-run ändert nichts und nimmt kein --confirm-within an.</translation>
    </message>
    <message>
        <source>the same with the settings of a saved profile, or of one that was exported</source>
        <translation>dasselbe mit den Einstellungen eines gespeicherten Profils oder eines, das exportiert wurde</translation>
    </message>
    <message>
        <source>one line for each change of a service, until it is ended</source>
        <translation>eine Zeile für jede Änderung eines Dienstes, bis es beendet wird</translation>
    </message>
    <message>
        <source>For scripts (apply):</source>
        <translation>Für Skripte (apply):</translation>
    </message>
    <message>
        <source>only say what would change; nobody is asked for a password</source>
        <translation>nur sagen, was sich ändern würde; niemand wird nach einem Passwort gefragt</translation>
    </message>
    <message>
        <source>whether something has changed, and what</source>
        <translation>ob sich etwas geändert hat, und was</translation>
    </message>
    <message>
        <source>Cannot read %1: %2.</source>
        <translation>%1 kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>%1 is no list of profiles.</source>
        <translation>%1 ist keine Liste von Profilen.</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modus</translation>
    </message>
    <message>
        <source>IP Address</source>
        <translation>IP-Adresse</translation>
    </message>
    <message>
        <source>Subnet Mask</source>
        <translation>Subnetzmaske</translation>
    </message>
    <message>
        <source>Gateway</source>
        <translation>Gateway</translation>
    </message>
    <message>
        <source>Preferred DNS</source>
        <translation>Bevorzugter DNS</translation>
    </message>
    <message>
        <source>Alternate DNS</source>
        <translation>Alternativer DNS</translation>
    </message>
    <message>
        <source>Search Domains</source>
        <translation>Suchdomänen</translation>
    </message>
    <message>
        <source>DHCP Server</source>
        <translation>DHCP-Server</translation>
    </message>
    <message>
        <source>Computer Name</source>
        <translation>Computername</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
    <message>
        <source>Nothing to do: &apos;%1&apos; has these settings already.</source>
        <translation>Nichts zu tun: „%1“ hat diese Einstellungen schon.</translation>
    </message>
    <message>
        <source>The settings are saved already, and would be brought into force.</source>
        <translation>Die Einstellungen sind schon gespeichert und würden in Kraft gesetzt.</translation>
    </message>
    <message>
        <source>Only settings that are not shown here would change.</source>
        <translation>Nur Einstellungen, die hier nicht gezeigt werden, würden sich ändern.</translation>
    </message>
    <message>
        <source>, on trial</source>
        <translation>, auf Probe</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>The network service answers again.</source>
        <translation>Der Netzwerkdienst antwortet wieder.</translation>
    </message>
    <message>
        <source>added, %1</source>
        <translation>hinzugekommen, %1</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>entfernt</translation>
    </message>
</context>
<context>
    <name>ardeo::DescribedError</name>
    <message>
        <source>Waiting for another program that is changing the network settings. It is process %1.</source>
        <translation>Es wird auf ein anderes Programm gewartet, das die Netzwerkeinstellungen ändert. Es ist Prozess %1.</translation>
    </message>
    <message>
        <source>Waiting for another program that is changing the network settings.</source>
        <translation>Es wird auf ein anderes Programm gewartet, das die Netzwerkeinstellungen ändert.</translation>
    </message>
</context>
<context>
    <name>ardeo::DesktopFilePanels</name>
    <message>
        <source>Ardeo IP Config profiles (*.profiles);;All files (*)</source>
        <translation>Ardeo-IP-Config-Profile (*.profiles);;Alle Dateien (*)</translation>
    </message>
</context>
<context>
    <name>ardeo::FileUserDefaults</name>
    <message>
        <source>Your profiles could not be saved: %1.</source>
        <translation>Ihre Profile konnten nicht gespeichert werden: %1.</translation>
    </message>
    <message>
        <source>those stored before cannot be read</source>
        <translation>die zuvor gespeicherten sind nicht lesbar</translation>
    </message>
</context>
<context>
    <name>ardeo::HelpView</name>
    <message>
        <source>Ardeo IP Config is a native {system} utility for quickly switching network adapter configurations. Switch between DHCP and static IP in seconds — ideal for IT professionals, developers, and power users who work across multiple network environments such as office, home, VPN, or lab setups.

Settings are applied instantly through {configuration}. No restarts required.</source>
        <translation>Ardeo IP Config ist ein natives {system}-Programm, mit dem sich die Konfiguration von Netzwerkadaptern schnell wechseln lässt. Wechseln Sie in Sekunden zwischen DHCP und statischer IP – ideal für IT-Fachleute, Entwickler und erfahrene Anwender, die in verschiedenen Netzwerken arbeiten: im Büro, zu Hause, im VPN oder im Labor.

Die Einstellungen werden sofort angewendet, über {configuration}. Kein Neustart nötig.</translation>
    </message>
    <message>
        <source>Select any adapter</source>
        <translation>Beliebigen Adapter wählen</translation>
    </message>
    <message>
        <source>Wi-Fi, Ethernet, Thunderbolt, VPN</source>
        <translation>WLAN, Ethernet, Thunderbolt, VPN</translation>
    </message>
    <message>
        <source>DHCP / Static IP</source>
        <translation>DHCP / statische IP</translation>
    </message>
    <message>
        <source>Switch modes with one click</source>
        <translation>Modus mit einem Klick wechseln</translation>
    </message>
    <message>
        <source>DNS control</source>
        <translation>DNS-Steuerung</translation>
    </message>
    <message>
        <source>Automatic or manually configured DNS servers</source>
        <translation>Automatische oder manuell konfigurierte DNS-Server</translation>
    </message>
    <message>
        <source>Network profiles</source>
        <translation>Netzwerkprofile</translation>
    </message>
    <message>
        <source>Save, load, rename, delete named presets</source>
        <translation>Benannte Voreinstellungen speichern, laden, umbenennen, löschen</translation>
    </message>
    <message>
        <source>Import &amp; Export</source>
        <translation>Import &amp; Export</translation>
    </message>
    <message>
        <source>Share profiles as JSON files across machines</source>
        <translation>Profile als JSON-Dateien zwischen Rechnern austauschen</translation>
    </message>
    <message>
        <source>Current properties</source>
        <translation>Aktuelle Eigenschaften</translation>
    </message>
    <message>
        <source>Live view of IP, subnet, gateway, DHCP server, computer name</source>
        <translation>Live-Ansicht von IP, Subnetz, Gateway, DHCP-Server, Computername</translation>
    </message>
    <message>
        <source>Enable / Disable adapter</source>
        <translation>Adapter aktivieren / deaktivieren</translation>
    </message>
    <message>
        <source>Toggle any adapter on or off without {settings}</source>
        <translation>Jeden Adapter ein- oder ausschalten, ohne {settings}</translation>
    </message>
    <message>
        <source>Renew DHCP lease</source>
        <translation>DHCP-Lease erneuern</translation>
    </message>
    <message>
        <source>Force a fresh lease from the DHCP server</source>
        <translation>Eine neue Lease vom DHCP-Server erzwingen</translation>
    </message>
    <message>
        <source>{IconPlace} access</source>
        <translation>{IconPlace}: Zugriff</translation>
    </message>
    <message>
        <source>Quick access from the {iconPlace} icon at all times</source>
        <translation>Jederzeit schneller Zugriff über das Symbol ({iconPlace})</translation>
    </message>
    <message>
        <source>Start at Login</source>
        <translation>Bei der Anmeldung starten</translation>
    </message>
    <message>
        <source>Launch automatically when you log in</source>
        <translation>Startet automatisch, wenn Sie sich anmelden</translation>
    </message>
    <message>
        <source>Select an Adapter</source>
        <translation>Einen Adapter auswählen</translation>
    </message>
    <message>
        <source>Use the dropdown at the top of the left panel to choose a network interface. The hardware name and MAC address appear below the picker.</source>
        <translation>Wählen Sie mit der Auswahlliste oben im linken Bereich eine Netzwerkschnittstelle. Der Hardwarename und die MAC-Adresse erscheinen darunter.</translation>
    </message>
    <message>
        <source>Configure Settings</source>
        <translation>Einstellungen festlegen</translation>
    </message>
    <message>
        <source>Choose &quot;Automatically Set IP Address&quot; for DHCP, or &quot;Manually Set IP Address&quot; to enter a static IP, subnet mask, and gateway. Set DNS in the same way below.</source>
        <translation>Wählen Sie „IP-Adresse automatisch beziehen“ für DHCP oder „IP-Adresse manuell festlegen“, um statische IP, Subnetzmaske und Gateway einzugeben. Darunter stellen Sie DNS ebenso ein.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>Click the Apply button (top-right) or press {apply}. The interface briefly reconfigures; the Current Adapter Properties card refreshes automatically after ~4 seconds.</source>
        <translation>Klicken Sie auf „Anwenden“ (oben rechts) oder drücken Sie {apply}. Die Schnittstelle wird kurz neu konfiguriert; die Karte „Aktuelle Adaptereigenschaften“ aktualisiert sich nach etwa 4 Sekunden von selbst.</translation>
    </message>
    <message>
        <source>Save a Profile</source>
        <translation>Ein Profil speichern</translation>
    </message>
    <message>
        <source>Click &quot;Save Profile…&quot; at the bottom of the left panel. Give the preset a name — it appears in the profiles list immediately.</source>
        <translation>Klicken Sie unten im linken Bereich auf „Profil speichern&#xa0;…“. Geben Sie ihm einen Namen – es erscheint sofort in der Profilliste.</translation>
    </message>
    <message>
        <source>Load a Profile</source>
        <translation>Ein Profil laden</translation>
    </message>
    <message>
        <source>Click any profile row to populate the form fields. Then click Apply to activate it on the selected adapter.</source>
        <translation>Klicken Sie auf ein Profil, um die Felder zu füllen. Mit „Anwenden“ wird es auf dem ausgewählten Adapter wirksam.</translation>
    </message>
    <message>
        <source>Manage Profiles</source>
        <translation>Profile verwalten</translation>
    </message>
    <message>
        <source>Right-click any profile to Rename or Delete it. Use the ↓ / ↑ icon buttons to Import or Export the entire profile list as a JSON file.</source>
        <translation>Mit einem Rechtsklick benennen Sie ein Profil um oder löschen es. Die Schaltflächen ↓ / ↑ importieren oder exportieren die ganze Profilliste als JSON-Datei.</translation>
    </message>
    <message>
        <source>Enable / Disable Adapter</source>
        <translation>Adapter aktivieren / deaktivieren</translation>
    </message>
    <message>
        <source>In the Current Adapter Properties card, use the &quot;Enable Adapter&quot; or &quot;Disable Adapter&quot; button. Green = re-enable, Red = disable.</source>
        <translation>Benutzen Sie in der Karte „Aktuelle Adaptereigenschaften“ die Schaltfläche „Adapter aktivieren“ oder „Adapter deaktivieren“. Grün = aktivieren, Rot = deaktivieren.</translation>
    </message>
    <message>
        <source>Renew DHCP</source>
        <translation>DHCP erneuern</translation>
    </message>
    <message>
        <source>Visible in the Set Profile Properties card when the adapter is in DHCP mode. Forces a fresh IP lease from the router.</source>
        <translation>In der Karte „Profileigenschaften festlegen“ zu sehen, wenn der Adapter auf DHCP steht. Erzwingt eine neue IP-Lease vom Router.</translation>
    </message>
    <message>
        <source>Network configuration made fast.</source>
        <translation>Netzwerkkonfiguration leicht und schnell.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über das Programm</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>Funktionen</translation>
    </message>
    <message>
        <source>How to Use</source>
        <translation>So geht’s</translation>
    </message>
</context>
<context>
    <name>ardeo::IPAddressField</name>
    <message>
        <source>%1, part %2 of 4</source>
        <translation>%1, Teil %2 von 4</translation>
    </message>
</context>
<context>
    <name>ardeo::InfoRow</name>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
</context>
<context>
    <name>ardeo::LeftPanel</name>
    <message>
        <source>Profiles</source>
        <translation>Profile</translation>
    </message>
    <message>
        <source>Search profiles</source>
        <translation>Profile suchen</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>Suche löschen</translation>
    </message>
    <message>
        <source>No match.</source>
        <translation>Kein Treffer.</translation>
    </message>
    <message>
        <source>No saved profiles.</source>
        <translation>Keine gespeicherten Profile.</translation>
    </message>
    <message>
        <source>Save Profile…</source>
        <translation>Profil speichern&#xa0;…</translation>
    </message>
    <message>
        <source>Import profiles from file</source>
        <translation>Profile aus Datei importieren</translation>
    </message>
    <message>
        <source>Export profiles to file</source>
        <translation>Profile in Datei exportieren</translation>
    </message>
    <message>
        <source>Delete Preset</source>
        <translation>Profil löschen</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>„%1“ löschen</translation>
    </message>
</context>
<context>
    <name>ardeo::MainMenu</name>
    <message>
        <source>Remove from Login Items</source>
        <translation>Nicht mehr bei der Anmeldung starten</translation>
    </message>
    <message>
        <source>Start at Login</source>
        <translation>Bei der Anmeldung starten</translation>
    </message>
    <message>
        <source>&amp;Ardeo IP Config</source>
        <translation>&amp;Ardeo IP Config</translation>
    </message>
    <message>
        <source>About Ardeo IP Config</source>
        <translation>Über Ardeo IP Config</translation>
    </message>
    <message>
        <source>Hide Ardeo IP Config</source>
        <translation>Ardeo IP Config ausblenden</translation>
    </message>
    <message>
        <source>Quit Ardeo IP Config</source>
        <translation>Ardeo IP Config beenden</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>Import Profiles…</source>
        <translation>Profile importieren&#xa0;…</translation>
    </message>
    <message>
        <source>Export Profiles…</source>
        <translation>Profile exportieren&#xa0;…</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Extras</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>Renew DHCP</source>
        <translation>DHCP erneuern</translation>
    </message>
    <message>
        <source>Enable Adapter</source>
        <translation>Adapter aktivieren</translation>
    </message>
    <message>
        <source>Disable Adapter</source>
        <translation>Adapter deaktivieren</translation>
    </message>
    <message>
        <source>Open Network Settings</source>
        <translation>Netzwerkeinstellungen öffnen</translation>
    </message>
    <message>
        <source>Open Activity Monitor</source>
        <translation>Systemmonitor öffnen</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Ardeo IP Config Help</source>
        <translation>Hilfe zu Ardeo IP Config</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts…</source>
        <translation>Tastenkürzel&#xa0;…</translation>
    </message>
</context>
<context>
    <name>ardeo::MainViewModel</name>
    <message>
        <source>Nobody confirmed the change of &apos;%1&apos;, so it was taken back.</source>
        <translation>Niemand hat die Änderung von „%1“ bestätigt, daher wurde sie zurückgenommen.</translation>
    </message>
    <message>
        <source>Export Ardeo IP Config profiles</source>
        <translation>Profile von Ardeo IP Config exportieren</translation>
    </message>
    <message>
        <source>Select an Ardeo IP Config profiles file (.profiles)</source>
        <translation>Profildatei von Ardeo IP Config (.profiles) auswählen</translation>
    </message>
    <message>
        <source>Could not read profiles file.</source>
        <translation>Die Profildatei konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Start at login: %1</source>
        <translation>Start bei der Anmeldung: %1</translation>
    </message>
</context>
<context>
    <name>ardeo::MenuBarMenuView</name>
    <message>
        <source>Open Ardeo IP Config</source>
        <translation>Ardeo IP Config öffnen</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts…</source>
        <translation>Tastenkürzel&#xa0;…</translation>
    </message>
    <message>
        <source>Network Settings…</source>
        <translation>Netzwerkeinstellungen&#xa0;…</translation>
    </message>
    <message>
        <source>Activity Monitor…</source>
        <translation>Systemmonitor&#xa0;…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
</context>
<context>
    <name>ardeo::NoticePanel</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>ardeo::PresetList</name>
    <message>
        <source>Manual</source>
        <translation>Manuell</translation>
    </message>
    <message>
        <source>DHCP</source>
        <translation>DHCP</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Laden</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profile</translation>
    </message>
    <message>
        <source>Load Profile</source>
        <translation>Profil laden</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>Umbenennen&#xa0;…</translation>
    </message>
    <message>
        <source>Delete…</source>
        <translation>Löschen&#xa0;…</translation>
    </message>
</context>
<context>
    <name>ardeo::ProfileNameSheet</name>
    <message>
        <source>Profile name</source>
        <translation>Profilname</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>ardeo::ProfilePropertiesCard</name>
    <message>
        <source>IP Address</source>
        <translation>IP-Adresse</translation>
    </message>
    <message>
        <source>Automatically Set IP Address</source>
        <translation>IP-Adresse automatisch beziehen</translation>
    </message>
    <message>
        <source>Manually Set IP Address</source>
        <translation>IP-Adresse manuell festlegen</translation>
    </message>
    <message>
        <source>IP Address:</source>
        <translation>IP-Adresse:</translation>
    </message>
    <message>
        <source>Subnet Mask:</source>
        <translation>Subnetzmaske:</translation>
    </message>
    <message>
        <source>Gateway:</source>
        <translation>Gateway:</translation>
    </message>
    <message>
        <source>DNS</source>
        <translation>DNS</translation>
    </message>
    <message>
        <source>Automatically Set DNS Address</source>
        <translation>DNS-Adresse automatisch beziehen</translation>
    </message>
    <message>
        <source>Manually Set DNS Address</source>
        <translation>DNS-Adresse manuell festlegen</translation>
    </message>
    <message>
        <source>Preferred DNS:</source>
        <translation>Bevorzugter DNS:</translation>
    </message>
    <message>
        <source>Alternate DNS:</source>
        <translation>Alternativer DNS:</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Behalten</translation>
    </message>
    <message numerus="yes">
        <source>The change is taken back in %n s.</source>
        <translation>
            <numerusform>Die Änderung wird in %n Sekunde zurückgenommen.</numerusform>
            <numerusform>Die Änderung wird in %n Sekunden zurückgenommen.</numerusform>
        </translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Renew DHCP</source>
        <translation>DHCP erneuern</translation>
    </message>
    <message>
        <source>Force a new DHCP lease</source>
        <translation>Eine neue DHCP-Lease erzwingen</translation>
    </message>
    <message>
        <source>Applied</source>
        <translation>Angewendet</translation>
    </message>
    <message>
        <source>Set Profile Properties</source>
        <translation>Profileigenschaften festlegen</translation>
    </message>
</context>
<context>
    <name>ardeo::Program</name>
    <message>
        <source>Switches the IPv4 and DNS settings of this computer&apos;s network services.</source>
        <translation>Wechselt die IPv4- und DNS-Einstellungen der Netzwerkdienste dieses Computers.</translation>
    </message>
    <message>
        <source>Says the version and the system.</source>
        <translation>Nennt die Version und das System.</translation>
    </message>
    <message>
        <source>The system to work on: auto, networkmanager or simulated.</source>
        <translation>Das System, auf dem gearbeitet wird: auto, networkmanager oder simulated.</translation>
    </message>
    <message>
        <source>The simulated machine&apos;s file.</source>
        <translation>Die Datei des simulierten Rechners.</translation>
    </message>
    <message>
        <source>--system is auto, networkmanager or simulated.</source>
        <translation>--system ist auto, networkmanager oder simulated.</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>%1 auf %2</translation>
    </message>
    <message>
        <source>An option&apos;s value that is an option&apos;s name is written with =.</source>
        <translation>Der Wert einer Option, der selbst der Name einer Option ist, wird mit = geschrieben.</translation>
    </message>
    <message>
        <source>Ardeo IP Config is running already, but does not answer.</source>
        <translation>Ardeo IP Config läuft bereits, antwortet aber nicht.</translation>
    </message>
    <message>
        <source>Ardeo IP Config on %1</source>
        <translation>Ardeo IP Config auf %1</translation>
    </message>
</context>
<context>
    <name>ardeo::RenamePresetSheet</name>
    <message>
        <source>Rename Profile</source>
        <translation>Profil umbenennen</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
</context>
<context>
    <name>ardeo::RightPanel</name>
    <message>
        <source>No Network Services</source>
        <translation>Keine Netzwerkdienste</translation>
    </message>
    <message>
        <source>No network services found on {thisComputer}.</source>
        <translation>Keine Netzwerkdienste auf {thisComputer} gefunden.</translation>
    </message>
    <message>
        <source>Disable %1?</source>
        <translation>%1 deaktivieren?</translation>
    </message>
    <message>
        <source>Adapter</source>
        <translation>Adapter</translation>
    </message>
    <message>
        <source>This will disconnect %1 from the network.</source>
        <translation>Damit wird die Netzwerkverbindung getrennt: %1.</translation>
    </message>
    <message>
        <source>the adapter</source>
        <translation>der Adapter</translation>
    </message>
    <message>
        <source>Disable</source>
        <translation>Deaktivieren</translation>
    </message>
</context>
<context>
    <name>ardeo::SavePresetSheet</name>
    <message>
        <source>Save Profile</source>
        <translation>Profil speichern</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
</context>
<context>
    <name>ardeo::SettingFault</name>
    <message>
        <source>Without a device it could not be taken back by itself.</source>
        <translation>Ohne Gerät könnte sie sich nicht von selbst zurücknehmen.</translation>
    </message>
    <message>
        <source>%1 is missing.</source>
        <translation>%1 fehlt.</translation>
    </message>
    <message>
        <source>%1 is not complete.</source>
        <translation>%1 ist nicht vollständig.</translation>
    </message>
    <message>
        <source>%1 is not an IPv4 address.</source>
        <translation>%1 ist keine IPv4-Adresse.</translation>
    </message>
    <message>
        <source>%1 cannot be the address of a computer.</source>
        <translation>%1 kann nicht die Adresse eines Computers sein.</translation>
    </message>
    <message>
        <source>The subnet mask</source>
        <translation>Die Subnetzmaske</translation>
    </message>
    <message>
        <source>%1 is not a subnet mask.</source>
        <translation>%1 ist keine Subnetzmaske.</translation>
    </message>
    <message>
        <source>The IP address</source>
        <translation>Die IP-Adresse</translation>
    </message>
    <message>
        <source>%1 is the address of the network itself.</source>
        <translation>%1 ist die Adresse des Netzes selbst.</translation>
    </message>
    <message>
        <source>%1 is the broadcast address of the network.</source>
        <translation>%1 ist die Broadcast-Adresse des Netzes.</translation>
    </message>
    <message>
        <source>The addresses are set neither by DHCP nor by hand.</source>
        <translation>Die Adressen werden weder durch DHCP noch von Hand festgelegt.</translation>
    </message>
    <message>
        <source>The gateway</source>
        <translation>Das Gateway</translation>
    </message>
    <message>
        <source>The gateway is the address itself.</source>
        <translation>Das Gateway ist die Adresse selbst.</translation>
    </message>
    <message>
        <source>The DNS server</source>
        <translation>Der DNS-Server</translation>
    </message>
    <message>
        <source>The search domains are not a list of names.</source>
        <translation>Die Suchdomänen sind keine Liste von Namen.</translation>
    </message>
    <message>
        <source>The preferred DNS server</source>
        <translation>Der bevorzugte DNS-Server</translation>
    </message>
    <message>
        <source>The alternate DNS server</source>
        <translation>Der alternative DNS-Server</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a search domain.</source>
        <translation>„%1“ ist keine Suchdomäne.</translation>
    </message>
    <message>
        <source>A service whose IPv4 is &quot;%1&quot; takes no DNS servers.</source>
        <translation>Ein Dienst, dessen IPv4 auf „%1“ steht, nimmt keine DNS-Server an.</translation>
    </message>
    <message>
        <source>No change of it awaits confirmation.</source>
        <translation>Keine Änderung daran wartet auf Bestätigung.</translation>
    </message>
    <message>
        <source>An earlier change of it awaits confirmation; confirm it or take it back first.</source>
        <translation>Eine frühere Änderung daran wartet auf Bestätigung; bestätigen Sie sie oder nehmen Sie sie erst zurück.</translation>
    </message>
</context>
<context>
    <name>ardeo::ShortcutsView</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Konfiguration</translation>
    </message>
    <message>
        <source>Apply configuration</source>
        <translation>Konfiguration anwenden</translation>
    </message>
    <message>
        <source>Refresh adapter list</source>
        <translation>Adapterliste aktualisieren</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profile</translation>
    </message>
    <message>
        <source>Import profiles from file</source>
        <translation>Profile aus Datei importieren</translation>
    </message>
    <message>
        <source>Export profiles to file</source>
        <translation>Profile in Datei exportieren</translation>
    </message>
    <message>
        <source>Adapter</source>
        <translation>Adapter</translation>
    </message>
    <message>
        <source>Tools → Renew DHCP</source>
        <translation>Extras → DHCP erneuern</translation>
    </message>
    <message>
        <source>Renew DHCP lease</source>
        <translation>DHCP-Lease erneuern</translation>
    </message>
    <message>
        <source>Tools → Enable Adapter</source>
        <translation>Extras → Adapter aktivieren</translation>
    </message>
    <message>
        <source>Enable the selected adapter</source>
        <translation>Ausgewählten Adapter aktivieren</translation>
    </message>
    <message>
        <source>Tools → Disable Adapter</source>
        <translation>Extras → Adapter deaktivieren</translation>
    </message>
    <message>
        <source>Disable the selected adapter</source>
        <translation>Ausgewählten Adapter deaktivieren</translation>
    </message>
    <message>
        <source>Navigation</source>
        <translation>Navigation</translation>
    </message>
    <message>
        <source>Tools → Network Settings</source>
        <translation>Extras → Netzwerkeinstellungen</translation>
    </message>
    <message>
        <source>Open Network Settings</source>
        <translation>Netzwerkeinstellungen öffnen</translation>
    </message>
    <message>
        <source>Tools → Activity Monitor</source>
        <translation>Extras → Systemmonitor</translation>
    </message>
    <message>
        <source>Open Activity Monitor</source>
        <translation>Systemmonitor öffnen</translation>
    </message>
    <message>
        <source>Hide Ardeo IP Config</source>
        <translation>Ardeo IP Config ausblenden</translation>
    </message>
    <message>
        <source>Quit Ardeo IP Config</source>
        <translation>Ardeo IP Config beenden</translation>
    </message>
</context>
<context>
    <name>ardeo::Trouble</name>
    <message>
        <source>NetworkManager is not running.</source>
        <translation>NetworkManager läuft nicht.</translation>
    </message>
    <message>
        <source>NetworkManager does not answer.</source>
        <translation>NetworkManager antwortet nicht.</translation>
    </message>
    <message>
        <source>NetworkManager is not running; --system=simulated works without it.</source>
        <translation>NetworkManager läuft nicht; --system=simulated geht ohne ihn.</translation>
    </message>
    <message>
        <source>The simulated machine&apos;s file %1 cannot be read.</source>
        <translation>Die Datei %1 des simulierten Rechners ist nicht lesbar.</translation>
    </message>
    <message>
        <source>simulated machine (%1)</source>
        <translation>simulierter Rechner (%1)</translation>
    </message>
</context>
<context>
    <name>ardeo::words</name>
    <message>
        <source>this Mac</source>
        <translation>diesem Mac</translation>
    </message>
    <message>
        <source>macOS System Configuration, the same framework used by Network preferences</source>
        <translation>macOS System Configuration, dasselbe Framework wie in den Netzwerkeinstellungen</translation>
    </message>
    <message>
        <source>System Settings</source>
        <translation>die Systemeinstellungen</translation>
    </message>
    <message>
        <source>menu bar</source>
        <translation>Menüleiste</translation>
    </message>
    <message>
        <source>this computer</source>
        <translation>dieser Computer</translation>
    </message>
    <message>
        <source>NetworkManager, the same service used by your desktop&apos;s network settings</source>
        <translation>NetworkManager, denselben Dienst wie in den Netzwerkeinstellungen Ihres Desktops</translation>
    </message>
    <message>
        <source>the desktop&apos;s settings</source>
        <translation>die Einstellungen des Desktops</translation>
    </message>
    <message>
        <source>system tray</source>
        <translation>Infobereich</translation>
    </message>
    <message>
        <source>macOS</source>
        <translation>macOS</translation>
    </message>
    <message>
        <source>Linux</source>
        <translation>Linux</translation>
    </message>
</context>
</TS>
