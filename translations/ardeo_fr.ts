<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>ardeo::ActionHeader</name>
    <message>
        <source>Refresh</source>
        <translation>Actualiser</translation>
    </message>
    <message>
        <source>Refresh adapter list</source>
        <translation>Actualiser la liste des interfaces</translation>
    </message>
    <message>
        <source>Applying…</source>
        <translation>Application…</translation>
    </message>
    <message>
        <source>Apply configuration</source>
        <translation>Appliquer la configuration</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
</context>
<context>
    <name>ardeo::AdapterPropertiesCard</name>
    <message>
        <source>Connected</source>
        <translation>Connectée</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Non connectée</translation>
    </message>
    <message>
        <source>IP Address:</source>
        <translation>Adresse IP&#xa0;:</translation>
    </message>
    <message>
        <source>Subnet Mask:</source>
        <translation>Masque&#xa0;:</translation>
    </message>
    <message>
        <source>Gateway:</source>
        <translation>Passerelle&#xa0;:</translation>
    </message>
    <message>
        <source>Preferred DNS:</source>
        <translation>DNS préféré&#xa0;:</translation>
    </message>
    <message>
        <source>Alternate DNS:</source>
        <translation>DNS auxiliaire&#xa0;:</translation>
    </message>
    <message>
        <source>DHCP Server:</source>
        <translation>Serveur DHCP&#xa0;:</translation>
    </message>
    <message>
        <source>Mode:</source>
        <translation>Mode&#xa0;:</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manuel</translation>
    </message>
    <message>
        <source>DHCP</source>
        <translation>DHCP</translation>
    </message>
    <message>
        <source>Computer Name:</source>
        <translation>Ordinateur&#xa0;:</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>Chargement…</translation>
    </message>
    <message>
        <source>Disable Adapter</source>
        <translation>Désactiver l’interface</translation>
    </message>
    <message>
        <source>Enable Adapter</source>
        <translation>Activer l’interface</translation>
    </message>
    <message>
        <source>Current Adapter Properties</source>
        <translation>Propriétés actuelles de l’interface</translation>
    </message>
</context>
<context>
    <name>ardeo::AdapterSection</name>
    <message>
        <source>%1 (removed)</source>
        <translation>%1 (retirée)</translation>
    </message>
    <message>
        <source>Select Adapter</source>
        <translation>Choisir l’interface</translation>
    </message>
    <message>
        <source>Full-duplex</source>
        <translation>Duplex intégral</translation>
    </message>
    <message>
        <source>Half-duplex</source>
        <translation>Semi-duplex</translation>
    </message>
    <message>
        <source>%1 (disconnected)</source>
        <translation>%1 (déconnectée)</translation>
    </message>
    <message>
        <source>%1 (disabled)</source>
        <translation>%1 (désactivée)</translation>
    </message>
    <message>
        <source>%1 (on trial)</source>
        <translation>%1 (à l’essai)</translation>
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
        <translation>Ardeo IP Config est toujours en cours d’exécution. Ce bureau n’affiche pas d’icônes de notification&#x202f;; la fenêtre a donc été réduite au lieu d’être masquée. %1 quitte le programme.</translation>
    </message>
</context>
<context>
    <name>ardeo::Ardeo_IPConfigApp</name>
    <message>
        <source>Ardeo IP Config Help</source>
        <translation>Aide d’Ardeo IP Config</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>About Ardeo IP Config</source>
        <translation>À propos d’Ardeo IP Config</translation>
    </message>
    <message>
        <source>Version %1
Works on: %2</source>
        <translation>Version %1
Fonctionne sur&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>ardeo::AuthError</name>
    <message>
        <source>Cannot create authorization reference.</source>
        <translation>Impossible de créer la référence d’autorisation.</translation>
    </message>
    <message>
        <source>Admin authorization was denied or cancelled.</source>
        <translation>L’autorisation d’administrateur a été refusée ou annulée.</translation>
    </message>
</context>
<context>
    <name>ardeo::ConfigError</name>
    <message>
        <source>Cannot acquire preferences lock (SC %1).</source>
        <translation>Impossible d’obtenir le verrou des préférences (SC %1).</translation>
    </message>
    <message>
        <source>Service &apos;%1&apos; not found.</source>
        <translation>Service «&#xa0;%1&#xa0;» introuvable.</translation>
    </message>
    <message>
        <source>Protocol %1 unavailable.</source>
        <translation>Protocole %1 indisponible.</translation>
    </message>
    <message>
        <source>Cannot save changes (SC %1).</source>
        <translation>Impossible d’enregistrer les modifications (SC %1).</translation>
    </message>
    <message>
        <source>Cannot apply changes (SC %1).</source>
        <translation>Impossible d’appliquer les modifications (SC %1).</translation>
    </message>
    <message>
        <source>Cannot open system network preferences.</source>
        <translation>Impossible d’ouvrir les préférences réseau du système.</translation>
    </message>
</context>
<context>
    <name>ardeo::ConfirmationDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>ardeo::Console</name>
    <message>
        <source>A command is missing; see ardeoctl --help.</source>
        <translation>Il manque une commande&#x202f;; voir ardeoctl --help.</translation>
    </message>
    <message>
        <source>There is no command &apos;%1&apos;; see ardeoctl --help.</source>
        <translation>La commande «&#xa0;%1&#xa0;» n’existe pas&#x202f;; voir ardeoctl --help.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; needs a %2.</source>
        <translation>«&#xa0;%1&#xa0;» exige %2.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; takes no &apos;%2&apos;.</source>
        <translation>«&#xa0;%1&#xa0;» n’accepte pas «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>--system is auto, networkmanager or simulated.</source>
        <translation>--system vaut auto, networkmanager ou simulated.</translation>
    </message>
    <message>
        <source>--state goes with --system=simulated.</source>
        <translation>--state va avec --system=simulated.</translation>
    </message>
    <message>
        <source>--state needs a file.</source>
        <translation>--state exige un fichier.</translation>
    </message>
    <message>
        <source>--confirm-within takes 5 to 3600 seconds.</source>
        <translation>--confirm-within accepte de 5 à 3600 secondes.</translation>
    </message>
    <message>
        <source>--profile brings all settings along and takes no others beside it.</source>
        <translation>--profile apporte tous les réglages et n’en accepte pas d’autres à côté.</translation>
    </message>
    <message>
        <source>--dhcp takes no --address, --mask or --router.</source>
        <translation>--dhcp n’accepte ni --address, ni --mask, ni --router.</translation>
    </message>
    <message>
        <source>A manual address takes both --address and --mask.</source>
        <translation>Une adresse manuelle exige --address et --mask.</translation>
    </message>
    <message>
        <source>--dns takes two servers at most.</source>
        <translation>--dns accepte deux serveurs au plus.</translation>
    </message>
    <message>
        <source>--search needs DNS servers of its own: automatic DNS keeps no search domains.</source>
        <translation>--search exige des serveurs DNS propres&#xa0;: le DNS automatique ne garde pas de domaines de recherche.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; takes no --%2.</source>
        <translation>«&#xa0;%1&#xa0;» n’accepte pas --%2.</translation>
    </message>
    <message>
        <source>Usage: ardeoctl [--system=SYSTEM] [--state=FILE] COMMAND</source>
        <translation>Utilisation&#xa0;: ardeoctl [--system=SYSTEM] [--state=FILE] COMMANDE</translation>
    </message>
    <message>
        <source>Switches the IPv4 and DNS settings of this computer&apos;s network services.</source>
        <translation>Change les réglages IPv4 et DNS des services réseau de cet ordinateur.</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Commandes&#xa0;:</translation>
    </message>
    <message>
        <source>the network services, connected ones first</source>
        <translation>les services réseau, ceux qui sont connectés d’abord</translation>
    </message>
    <message>
        <source>the settings and the state of one service</source>
        <translation>les réglages et l’état d’un service</translation>
    </message>
    <message>
        <source>change a service; what is not named keeps its present value</source>
        <translation>modifier un service&#x202f;; ce qui n’est pas nommé garde sa valeur</translation>
    </message>
    <message>
        <source>put the service on DHCP and take a new lease</source>
        <translation>mettre le service en DHCP et prendre un nouveau bail</translation>
    </message>
    <message>
        <source>switch the service on</source>
        <translation>activer le service</translation>
    </message>
    <message>
        <source>switch the service off, and keep it off</source>
        <translation>désactiver le service, et le laisser désactivé</translation>
    </message>
    <message>
        <source>keep what was changed on trial, of one service or of all</source>
        <translation>conserver ce qui a été modifié à l’essai, d’un service ou de tous</translation>
    </message>
    <message>
        <source>take it back at once</source>
        <translation>l’annuler aussitôt</translation>
    </message>
    <message>
        <source>the saved profiles</source>
        <translation>les profils enregistrés</translation>
    </message>
    <message>
        <source>write them to a file</source>
        <translation>les écrire dans un fichier</translation>
    </message>
    <message>
        <source>Settings:</source>
        <translation>Réglages&#xa0;:</translation>
    </message>
    <message>
        <source>take the address from the network</source>
        <translation>prendre l’adresse du réseau</translation>
    </message>
    <message>
        <source>a manual address with its dotted mask</source>
        <translation>une adresse manuelle avec son masque pointé</translation>
    </message>
    <message>
        <source>the gateway of a manual address; --router= for none</source>
        <translation>la passerelle d’une adresse manuelle&#x202f;; --router= pour aucune</translation>
    </message>
    <message>
        <source>take the DNS servers from the network</source>
        <translation>prendre les serveurs DNS du réseau</translation>
    </message>
    <message>
        <source>DNS servers set by hand</source>
        <translation>serveurs DNS définis à la main</translation>
    </message>
    <message>
        <source>search domains, with DNS servers set by hand</source>
        <translation>domaines de recherche, avec des serveurs DNS définis à la main</translation>
    </message>
    <message>
        <source>Trial (apply, renew, enable, disable):</source>
        <translation>Essai (apply, renew, enable, disable)&#xa0;:</translation>
    </message>
    <message>
        <source>take the change back by itself unless it is confirmed in time</source>
        <translation>annuler la modification d’elle-même si elle n’est pas confirmée à temps</translation>
    </message>
    <message>
        <source>Systems:</source>
        <translation>Systèmes&#xa0;:</translation>
    </message>
    <message>
        <source>NetworkManager, with advice where it is not running (the default)</source>
        <translation>NetworkManager, avec un conseil là où il ne fonctionne pas (par défaut)</translation>
    </message>
    <message>
        <source>this computer</source>
        <translation>cet ordinateur</translation>
    </message>
    <message>
        <source>a simulated machine, for trying things out</source>
        <translation>une machine simulée, pour essayer</translation>
    </message>
    <message>
        <source>the file that the simulated machine lives in</source>
        <translation>le fichier où vit la machine simulée</translation>
    </message>
    <message>
        <source>Exit status: 0 when done, 1 when it failed (the reason is on standard error), 2 for wrong usage.</source>
        <translation>Code de retour&#xa0;: 0 si c’est fait, 1 en cas d’échec (la raison est sur la sortie d’erreur), 2 pour un mauvais appel.</translation>
    </message>
    <message>
        <source>No change awaits confirmation.</source>
        <translation>Aucune modification n’attend de confirmation.</translation>
    </message>
    <message>
        <source>Cannot write %1: %2.</source>
        <translation>Impossible d’écrire %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The saved profiles cannot be read.</source>
        <translation>Les profils enregistrés sont illisibles.</translation>
    </message>
    <message>
        <source>There is no profile &apos;%1&apos;.</source>
        <translation>Le profil «&#xa0;%1&#xa0;» n’existe pas.</translation>
    </message>
    <message>
        <source>%1 profiles are named &apos;%2&apos;.</source>
        <translation>%1 profils s’appellent «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>--search needs --dns: automatic DNS keeps no search domains.</source>
        <translation>--search exige --dns&#xa0;: le DNS automatique ne garde pas de domaines de recherche.</translation>
    </message>
    <message>
        <source>--router needs --address and --mask.</source>
        <translation>--router exige --address et --mask.</translation>
    </message>
    <message>
        <source>A profile holds text that is not valid Unicode.</source>
        <translation>Un profil contient un texte qui n’est pas de l’Unicode valide.</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>Cannot write the output: %1.</source>
        <translation>Impossible d’écrire la sortie&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manuel</translation>
    </message>
    <message>
        <source>DHCP</source>
        <translation>DHCP</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatique</translation>
    </message>
    <message numerus="yes">
        <source>, %n s to confirm</source>
        <translation>
            <numerusform>, %n s pour confirmer</numerusform>
            <numerusform>, %n s pour confirmer</numerusform>
        </translation>
    </message>
    <message>
        <source>connected</source>
        <translation>connecté</translation>
    </message>
    <message>
        <source>disconnected</source>
        <translation>déconnecté</translation>
    </message>
    <message>
        <source>disabled</source>
        <translation>désactivé</translation>
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
        <translation>duplex intégral</translation>
    </message>
    <message>
        <source>half-duplex</source>
        <translation>semi-duplex</translation>
    </message>
    <message>
        <source>No network services.</source>
        <translation>Aucun service réseau.</translation>
    </message>
    <message>
        <source>SERVICE</source>
        <translation>SERVICE</translation>
    </message>
    <message>
        <source>STATE</source>
        <translation>ÉTAT</translation>
    </message>
    <message>
        <source>DEVICE</source>
        <translation>PÉRIPHÉRIQUE</translation>
    </message>
    <message>
        <source>HARDWARE ADDRESS</source>
        <translation>ADRESSE MATÉRIELLE</translation>
    </message>
    <message>
        <source>LINK</source>
        <translation>LIAISON</translation>
    </message>
    <message>
        <source>HARDWARE</source>
        <translation>MATÉRIEL</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>État&#xa0;:</translation>
    </message>
    <message>
        <source>Mode:</source>
        <translation>Mode&#xa0;:</translation>
    </message>
    <message>
        <source>IP Address:</source>
        <translation>Adresse IP&#xa0;:</translation>
    </message>
    <message>
        <source>Subnet Mask:</source>
        <translation>Masque&#xa0;:</translation>
    </message>
    <message>
        <source>Gateway:</source>
        <translation>Passerelle&#xa0;:</translation>
    </message>
    <message>
        <source>DNS:</source>
        <translation>DNS&#xa0;:</translation>
    </message>
    <message>
        <source>Search Domains:</source>
        <translation>Domaines&#xa0;:</translation>
    </message>
    <message>
        <source>No saved profiles.</source>
        <translation>Aucun profil enregistré.</translation>
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
        <translation>La modification a été annulée.</translation>
    </message>
    <message>
        <source>The change is no longer on trial.</source>
        <translation>La modification n’est plus à l’essai.</translation>
    </message>
    <message numerus="yes">
        <source>Keep this change? Enter keeps it, u and Enter takes it back; so does waiting %n s. </source>
        <translation>
            <numerusform>Conserver cette modification&#x202f;? Entrée la conserve, u puis Entrée l’annule&#x202f;; attendre %n s aussi. </numerusform>
            <numerusform>Conserver cette modification&#x202f;? Entrée la conserve, u puis Entrée l’annule&#x202f;; attendre %n s aussi. </numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The change is taken back in %n s. &quot;ardeoctl confirm&quot; keeps it, &quot;ardeoctl undo&quot; takes it back at once.</source>
        <translation>
            <numerusform>La modification sera annulée dans %n seconde. «&#xa0;ardeoctl confirm&#xa0;» la conserve, «&#xa0;ardeoctl undo&#xa0;» l’annule aussitôt.</numerusform>
            <numerusform>La modification sera annulée dans %n secondes. «&#xa0;ardeoctl confirm&#xa0;» la conserve, «&#xa0;ardeoctl undo&#xa0;» l’annule aussitôt.</numerusform>
        </translation>
    </message>
    <message>
        <source>--profiles needs --profile.</source>
        <translation>--profiles exige --profile.</translation>
    </message>
    <message>
        <source>--dry-run changes nothing, and takes no --confirm-within.</source>
        <translation>--dry-run ne change rien et n’accepte pas --confirm-within.</translation>
    </message>
    <message>
        <source>the same with the settings of a saved profile, or of one that was exported</source>
        <translation>de même avec les réglages d’un profil enregistré, ou d’un profil exporté</translation>
    </message>
    <message>
        <source>one line for each change of a service, until it is ended</source>
        <translation>une ligne pour chaque changement d’un service, jusqu’à l’arrêt</translation>
    </message>
    <message>
        <source>For scripts (apply):</source>
        <translation>Pour les scripts (apply)&#xa0;:</translation>
    </message>
    <message>
        <source>only say what would change; nobody is asked for a password</source>
        <translation>dire seulement ce qui changerait&#x202f;; aucun mot de passe n’est demandé</translation>
    </message>
    <message>
        <source>whether something has changed, and what</source>
        <translation>si quelque chose a changé, et quoi</translation>
    </message>
    <message>
        <source>Cannot read %1: %2.</source>
        <translation>Impossible de lire %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>%1 is no list of profiles.</source>
        <translation>%1 n’est pas une liste de profils.</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Mode</translation>
    </message>
    <message>
        <source>IP Address</source>
        <translation>Adresse IP</translation>
    </message>
    <message>
        <source>Subnet Mask</source>
        <translation>Masque</translation>
    </message>
    <message>
        <source>Gateway</source>
        <translation>Passerelle</translation>
    </message>
    <message>
        <source>Preferred DNS</source>
        <translation>DNS préféré</translation>
    </message>
    <message>
        <source>Alternate DNS</source>
        <translation>DNS auxiliaire</translation>
    </message>
    <message>
        <source>Search Domains</source>
        <translation>Domaines</translation>
    </message>
    <message>
        <source>DHCP Server</source>
        <translation>Serveur DHCP</translation>
    </message>
    <message>
        <source>Computer Name</source>
        <translation>Ordinateur</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1&#xa0;:</translation>
    </message>
    <message>
        <source>Nothing to do: &apos;%1&apos; has these settings already.</source>
        <translation>Rien à faire&#xa0;: «&#xa0;%1&#xa0;» a déjà ces réglages.</translation>
    </message>
    <message>
        <source>The settings are saved already, and would be brought into force.</source>
        <translation>Les réglages sont déjà enregistrés et seraient mis en vigueur.</translation>
    </message>
    <message>
        <source>Only settings that are not shown here would change.</source>
        <translation>Seuls des réglages qui ne sont pas affichés ici changeraient.</translation>
    </message>
    <message>
        <source>, on trial</source>
        <translation>, à l’essai</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>The network service answers again.</source>
        <translation>Le service réseau répond de nouveau.</translation>
    </message>
    <message>
        <source>added, %1</source>
        <translation>ajouté, %1</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>retiré</translation>
    </message>
</context>
<context>
    <name>ardeo::DescribedError</name>
    <message>
        <source>Waiting for another program that is changing the network settings. It is process %1.</source>
        <translation>En attente d’un autre programme qui modifie les paramètres réseau. Il s’agit du processus %1.</translation>
    </message>
    <message>
        <source>Waiting for another program that is changing the network settings.</source>
        <translation>En attente d’un autre programme qui modifie les paramètres réseau.</translation>
    </message>
</context>
<context>
    <name>ardeo::DesktopFilePanels</name>
    <message>
        <source>Ardeo IP Config profiles (*.profiles);;All files (*)</source>
        <translation>Profils d’Ardeo IP Config (*.profiles);;Tous les fichiers (*)</translation>
    </message>
</context>
<context>
    <name>ardeo::FileUserDefaults</name>
    <message>
        <source>Your profiles could not be saved: %1.</source>
        <translation>Vos profils n’ont pas pu être enregistrés&#xa0;: %1.</translation>
    </message>
    <message>
        <source>those stored before cannot be read</source>
        <translation>ceux qui étaient enregistrés sont illisibles</translation>
    </message>
</context>
<context>
    <name>ardeo::HelpView</name>
    <message>
        <source>Ardeo IP Config is a native {system} utility for quickly switching network adapter configurations. Switch between DHCP and static IP in seconds — ideal for IT professionals, developers, and power users who work across multiple network environments such as office, home, VPN, or lab setups.

Settings are applied instantly through {configuration}. No restarts required.</source>
        <translation>Ardeo IP Config est un utilitaire natif pour {system} qui change rapidement la configuration des interfaces réseau. Passez de DHCP à une adresse IP statique en quelques secondes — idéal pour les informaticiens, les développeurs et les utilisateurs avancés qui travaillent dans plusieurs environnements réseau&#xa0;: bureau, domicile, VPN ou laboratoire.

Les réglages sont appliqués immédiatement par {configuration}. Aucun redémarrage n’est nécessaire.</translation>
    </message>
    <message>
        <source>Select any adapter</source>
        <translation>Choisir n’importe quelle interface</translation>
    </message>
    <message>
        <source>Wi-Fi, Ethernet, Thunderbolt, VPN</source>
        <translation>Wi-Fi, Ethernet, Thunderbolt, VPN</translation>
    </message>
    <message>
        <source>DHCP / Static IP</source>
        <translation>DHCP / IP statique</translation>
    </message>
    <message>
        <source>Switch modes with one click</source>
        <translation>Changer de mode en un clic</translation>
    </message>
    <message>
        <source>DNS control</source>
        <translation>Gestion du DNS</translation>
    </message>
    <message>
        <source>Automatic or manually configured DNS servers</source>
        <translation>Serveurs DNS automatiques ou configurés à la main</translation>
    </message>
    <message>
        <source>Network profiles</source>
        <translation>Profils réseau</translation>
    </message>
    <message>
        <source>Save, load, rename, delete named presets</source>
        <translation>Enregistrer, charger, renommer, supprimer des préréglages nommés</translation>
    </message>
    <message>
        <source>Import &amp; Export</source>
        <translation>Importation et exportation</translation>
    </message>
    <message>
        <source>Share profiles as JSON files across machines</source>
        <translation>Partager des profils entre machines sous forme de fichiers JSON</translation>
    </message>
    <message>
        <source>Current properties</source>
        <translation>Propriétés actuelles</translation>
    </message>
    <message>
        <source>Live view of IP, subnet, gateway, DHCP server, computer name</source>
        <translation>Vue en direct de l’IP, du sous-réseau, de la passerelle, du serveur DHCP et du nom de l’ordinateur</translation>
    </message>
    <message>
        <source>Enable / Disable adapter</source>
        <translation>Activer / désactiver l’interface</translation>
    </message>
    <message>
        <source>Toggle any adapter on or off without {settings}</source>
        <translation>Activer ou désactiver une interface sans passer par {settings}</translation>
    </message>
    <message>
        <source>Renew DHCP lease</source>
        <translation>Renouveler le bail DHCP</translation>
    </message>
    <message>
        <source>Force a fresh lease from the DHCP server</source>
        <translation>Forcer un nouveau bail du serveur DHCP</translation>
    </message>
    <message>
        <source>{IconPlace} access</source>
        <translation>{IconPlace}&#xa0;: accès</translation>
    </message>
    <message>
        <source>Quick access from the {iconPlace} icon at all times</source>
        <translation>Accès rapide à tout moment par l’icône ({iconPlace})</translation>
    </message>
    <message>
        <source>Start at Login</source>
        <translation>Lancer à l’ouverture de session</translation>
    </message>
    <message>
        <source>Launch automatically when you log in</source>
        <translation>Se lance automatiquement quand vous ouvrez une session</translation>
    </message>
    <message>
        <source>Select an Adapter</source>
        <translation>Choisir une interface</translation>
    </message>
    <message>
        <source>Use the dropdown at the top of the left panel to choose a network interface. The hardware name and MAC address appear below the picker.</source>
        <translation>Choisissez une interface réseau dans la liste en haut du panneau de gauche. Le nom du matériel et l’adresse MAC apparaissent au-dessous.</translation>
    </message>
    <message>
        <source>Configure Settings</source>
        <translation>Configurer les réglages</translation>
    </message>
    <message>
        <source>Choose &quot;Automatically Set IP Address&quot; for DHCP, or &quot;Manually Set IP Address&quot; to enter a static IP, subnet mask, and gateway. Set DNS in the same way below.</source>
        <translation>Choisissez «&#xa0;Adresse IP automatique&#xa0;» pour DHCP, ou «&#xa0;Adresse IP manuelle&#xa0;» pour saisir une adresse IP statique, un masque et une passerelle. Réglez le DNS de la même façon au-dessous.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Click the Apply button (top-right) or press {apply}. The interface briefly reconfigures; the Current Adapter Properties card refreshes automatically after ~4 seconds.</source>
        <translation>Cliquez sur «&#xa0;Appliquer&#xa0;» (en haut à droite) ou appuyez sur {apply}. L’interface se reconfigure brièvement&#x202f;; la carte «&#xa0;Propriétés actuelles de l’interface&#xa0;» s’actualise automatiquement après 4 secondes environ.</translation>
    </message>
    <message>
        <source>Save a Profile</source>
        <translation>Enregistrer un profil</translation>
    </message>
    <message>
        <source>Click &quot;Save Profile…&quot; at the bottom of the left panel. Give the preset a name — it appears in the profiles list immediately.</source>
        <translation>Cliquez sur «&#xa0;Enregistrer…&#xa0;» en bas du panneau de gauche. Donnez un nom au profil — il apparaît aussitôt dans la liste.</translation>
    </message>
    <message>
        <source>Load a Profile</source>
        <translation>Charger un profil</translation>
    </message>
    <message>
        <source>Click any profile row to populate the form fields. Then click Apply to activate it on the selected adapter.</source>
        <translation>Cliquez sur un profil pour remplir les champs. Cliquez ensuite sur «&#xa0;Appliquer&#xa0;» pour l’activer sur l’interface choisie.</translation>
    </message>
    <message>
        <source>Manage Profiles</source>
        <translation>Gérer les profils</translation>
    </message>
    <message>
        <source>Right-click any profile to Rename or Delete it. Use the ↓ / ↑ icon buttons to Import or Export the entire profile list as a JSON file.</source>
        <translation>Cliquez avec le bouton droit sur un profil pour le renommer ou le supprimer. Les boutons ↓ / ↑ importent ou exportent toute la liste dans un fichier JSON.</translation>
    </message>
    <message>
        <source>Enable / Disable Adapter</source>
        <translation>Activer / désactiver l’interface</translation>
    </message>
    <message>
        <source>In the Current Adapter Properties card, use the &quot;Enable Adapter&quot; or &quot;Disable Adapter&quot; button. Green = re-enable, Red = disable.</source>
        <translation>Dans la carte «&#xa0;Propriétés actuelles de l’interface&#xa0;», utilisez le bouton «&#xa0;Activer l’interface&#xa0;» ou «&#xa0;Désactiver l’interface&#xa0;». Vert = réactiver, rouge = désactiver.</translation>
    </message>
    <message>
        <source>Renew DHCP</source>
        <translation>Renouveler DHCP</translation>
    </message>
    <message>
        <source>Visible in the Set Profile Properties card when the adapter is in DHCP mode. Forces a fresh IP lease from the router.</source>
        <translation>Visible dans la carte «&#xa0;Définir les propriétés du profil&#xa0;» quand l’interface est en mode DHCP. Force un nouveau bail IP du routeur.</translation>
    </message>
    <message>
        <source>Network configuration made fast.</source>
        <translation>La configuration réseau, en vitesse.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>Fonctions</translation>
    </message>
    <message>
        <source>How to Use</source>
        <translation>Mode d’emploi</translation>
    </message>
</context>
<context>
    <name>ardeo::IPAddressField</name>
    <message>
        <source>%1, part %2 of 4</source>
        <translation>%1, partie %2 sur 4</translation>
    </message>
</context>
<context>
    <name>ardeo::InfoRow</name>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
</context>
<context>
    <name>ardeo::LeftPanel</name>
    <message>
        <source>Profiles</source>
        <translation>Profils</translation>
    </message>
    <message>
        <source>Search profiles</source>
        <translation>Rechercher un profil</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>Effacer la recherche</translation>
    </message>
    <message>
        <source>No match.</source>
        <translation>Aucun résultat.</translation>
    </message>
    <message>
        <source>No saved profiles.</source>
        <translation>Aucun profil enregistré.</translation>
    </message>
    <message>
        <source>Save Profile…</source>
        <translation>Enregistrer…</translation>
    </message>
    <message>
        <source>Import profiles from file</source>
        <translation>Importer des profils d’un fichier</translation>
    </message>
    <message>
        <source>Export profiles to file</source>
        <translation>Exporter les profils vers un fichier</translation>
    </message>
    <message>
        <source>Delete Preset</source>
        <translation>Supprimer le profil</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>Supprimer «&#xa0;%1&#xa0;»</translation>
    </message>
</context>
<context>
    <name>ardeo::MainMenu</name>
    <message>
        <source>Remove from Login Items</source>
        <translation>Ne plus lancer à l’ouverture de session</translation>
    </message>
    <message>
        <source>Start at Login</source>
        <translation>Lancer à l’ouverture de session</translation>
    </message>
    <message>
        <source>&amp;Ardeo IP Config</source>
        <translation>&amp;Ardeo IP Config</translation>
    </message>
    <message>
        <source>About Ardeo IP Config</source>
        <translation>À propos d’Ardeo IP Config</translation>
    </message>
    <message>
        <source>Hide Ardeo IP Config</source>
        <translation>Masquer Ardeo IP Config</translation>
    </message>
    <message>
        <source>Quit Ardeo IP Config</source>
        <translation>Quitter Ardeo IP Config</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>Import Profiles…</source>
        <translation>Importer des profils…</translation>
    </message>
    <message>
        <source>Export Profiles…</source>
        <translation>Exporter les profils…</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Outils</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Actualiser</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Renew DHCP</source>
        <translation>Renouveler DHCP</translation>
    </message>
    <message>
        <source>Enable Adapter</source>
        <translation>Activer l’interface</translation>
    </message>
    <message>
        <source>Disable Adapter</source>
        <translation>Désactiver l’interface</translation>
    </message>
    <message>
        <source>Open Network Settings</source>
        <translation>Ouvrir les réglages réseau</translation>
    </message>
    <message>
        <source>Open Activity Monitor</source>
        <translation>Ouvrir le moniteur d’activité</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Ai&amp;de</translation>
    </message>
    <message>
        <source>Ardeo IP Config Help</source>
        <translation>Aide d’Ardeo IP Config</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts…</source>
        <translation>Raccourcis clavier…</translation>
    </message>
</context>
<context>
    <name>ardeo::MainViewModel</name>
    <message>
        <source>Nobody confirmed the change of &apos;%1&apos;, so it was taken back.</source>
        <translation>Personne n’a confirmé la modification de «&#xa0;%1&#xa0;»&#x202f;; elle a donc été annulée.</translation>
    </message>
    <message>
        <source>Export Ardeo IP Config profiles</source>
        <translation>Exporter les profils d’Ardeo IP Config</translation>
    </message>
    <message>
        <source>Select an Ardeo IP Config profiles file (.profiles)</source>
        <translation>Choisir un fichier de profils d’Ardeo IP Config (.profiles)</translation>
    </message>
    <message>
        <source>Could not read profiles file.</source>
        <translation>Impossible de lire le fichier de profils.</translation>
    </message>
    <message>
        <source>Start at login: %1</source>
        <translation>Lancement à l’ouverture de session&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>ardeo::MenuBarMenuView</name>
    <message>
        <source>Open Ardeo IP Config</source>
        <translation>Ouvrir Ardeo IP Config</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts…</source>
        <translation>Raccourcis clavier…</translation>
    </message>
    <message>
        <source>Network Settings…</source>
        <translation>Réglages réseau…</translation>
    </message>
    <message>
        <source>Activity Monitor…</source>
        <translation>Moniteur d’activité…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
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
        <translation>Manuel</translation>
    </message>
    <message>
        <source>DHCP</source>
        <translation>DHCP</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Charger</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profils</translation>
    </message>
    <message>
        <source>Load Profile</source>
        <translation>Charger le profil</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>Renommer…</translation>
    </message>
    <message>
        <source>Delete…</source>
        <translation>Supprimer…</translation>
    </message>
</context>
<context>
    <name>ardeo::ProfileNameSheet</name>
    <message>
        <source>Profile name</source>
        <translation>Nom du profil</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>ardeo::ProfilePropertiesCard</name>
    <message>
        <source>IP Address</source>
        <translation>Adresse IP</translation>
    </message>
    <message>
        <source>Automatically Set IP Address</source>
        <translation>Adresse IP automatique</translation>
    </message>
    <message>
        <source>Manually Set IP Address</source>
        <translation>Adresse IP manuelle</translation>
    </message>
    <message>
        <source>IP Address:</source>
        <translation>Adresse IP&#xa0;:</translation>
    </message>
    <message>
        <source>Subnet Mask:</source>
        <translation>Masque&#xa0;:</translation>
    </message>
    <message>
        <source>Gateway:</source>
        <translation>Passerelle&#xa0;:</translation>
    </message>
    <message>
        <source>DNS</source>
        <translation>DNS</translation>
    </message>
    <message>
        <source>Automatically Set DNS Address</source>
        <translation>Adresse DNS automatique</translation>
    </message>
    <message>
        <source>Manually Set DNS Address</source>
        <translation>Adresse DNS manuelle</translation>
    </message>
    <message>
        <source>Preferred DNS:</source>
        <translation>DNS préféré&#xa0;:</translation>
    </message>
    <message>
        <source>Alternate DNS:</source>
        <translation>DNS auxiliaire&#xa0;:</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Conserver</translation>
    </message>
    <message numerus="yes">
        <source>The change is taken back in %n s.</source>
        <translation>
            <numerusform>La modification sera annulée dans %n seconde.</numerusform>
            <numerusform>La modification sera annulée dans %n secondes.</numerusform>
        </translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Renew DHCP</source>
        <translation>Renouveler DHCP</translation>
    </message>
    <message>
        <source>Force a new DHCP lease</source>
        <translation>Forcer un nouveau bail DHCP</translation>
    </message>
    <message>
        <source>Applied</source>
        <translation>Appliqué</translation>
    </message>
    <message>
        <source>Set Profile Properties</source>
        <translation>Définir les propriétés du profil</translation>
    </message>
</context>
<context>
    <name>ardeo::Program</name>
    <message>
        <source>Switches the IPv4 and DNS settings of this computer&apos;s network services.</source>
        <translation>Change les réglages IPv4 et DNS des services réseau de cet ordinateur.</translation>
    </message>
    <message>
        <source>Says the version and the system.</source>
        <translation>Indique la version et le système.</translation>
    </message>
    <message>
        <source>The system to work on: auto, networkmanager or simulated.</source>
        <translation>Le système sur lequel travailler&#xa0;: auto, networkmanager ou simulated.</translation>
    </message>
    <message>
        <source>The simulated machine&apos;s file.</source>
        <translation>Le fichier de la machine simulée.</translation>
    </message>
    <message>
        <source>--system is auto, networkmanager or simulated.</source>
        <translation>--system vaut auto, networkmanager ou simulated.</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>An option&apos;s value that is an option&apos;s name is written with =.</source>
        <translation>La valeur d’une option qui est le nom d’une option s’écrit avec =.</translation>
    </message>
    <message>
        <source>Ardeo IP Config is running already, but does not answer.</source>
        <translation>Ardeo IP Config est déjà en cours d’exécution, mais ne répond pas.</translation>
    </message>
    <message>
        <source>Ardeo IP Config on %1</source>
        <translation>Ardeo IP Config sur %1</translation>
    </message>
</context>
<context>
    <name>ardeo::RenamePresetSheet</name>
    <message>
        <source>Rename Profile</source>
        <translation>Renommer le profil</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renommer</translation>
    </message>
</context>
<context>
    <name>ardeo::RightPanel</name>
    <message>
        <source>No Network Services</source>
        <translation>Aucun service réseau</translation>
    </message>
    <message>
        <source>No network services found on {thisComputer}.</source>
        <translation>Aucun service réseau trouvé sur {thisComputer}.</translation>
    </message>
    <message>
        <source>Disable %1?</source>
        <translation>Désactiver %1&#x202f;?</translation>
    </message>
    <message>
        <source>Adapter</source>
        <translation>Interface</translation>
    </message>
    <message>
        <source>This will disconnect %1 from the network.</source>
        <translation>Cette action déconnecte du réseau&#xa0;: %1.</translation>
    </message>
    <message>
        <source>the adapter</source>
        <translation>l’interface</translation>
    </message>
    <message>
        <source>Disable</source>
        <translation>Désactiver</translation>
    </message>
</context>
<context>
    <name>ardeo::SavePresetSheet</name>
    <message>
        <source>Save Profile</source>
        <translation>Enregistrer le profil</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
</context>
<context>
    <name>ardeo::SettingFault</name>
    <message>
        <source>Without a device it could not be taken back by itself.</source>
        <translation>Sans périphérique, elle ne pourrait pas être annulée automatiquement.</translation>
    </message>
    <message>
        <source>%1 is missing.</source>
        <translation>%1&#xa0;: valeur manquante.</translation>
    </message>
    <message>
        <source>%1 is not complete.</source>
        <translation>%1&#xa0;: valeur incomplète.</translation>
    </message>
    <message>
        <source>%1 is not an IPv4 address.</source>
        <translation>%1 n’est pas une adresse IPv4.</translation>
    </message>
    <message>
        <source>%1 cannot be the address of a computer.</source>
        <translation>%1 ne peut pas être l’adresse d’un ordinateur.</translation>
    </message>
    <message>
        <source>The subnet mask</source>
        <translation>Le masque de sous-réseau</translation>
    </message>
    <message>
        <source>%1 is not a subnet mask.</source>
        <translation>%1 n’est pas un masque de sous-réseau.</translation>
    </message>
    <message>
        <source>The IP address</source>
        <translation>L’adresse IP</translation>
    </message>
    <message>
        <source>%1 is the address of the network itself.</source>
        <translation>%1 est l’adresse du réseau lui-même.</translation>
    </message>
    <message>
        <source>%1 is the broadcast address of the network.</source>
        <translation>%1 est l’adresse de diffusion du réseau.</translation>
    </message>
    <message>
        <source>The addresses are set neither by DHCP nor by hand.</source>
        <translation>Les adresses ne sont définies ni par DHCP ni à la main.</translation>
    </message>
    <message>
        <source>The gateway</source>
        <translation>La passerelle</translation>
    </message>
    <message>
        <source>The gateway is the address itself.</source>
        <translation>La passerelle est l’adresse elle-même.</translation>
    </message>
    <message>
        <source>The DNS server</source>
        <translation>Le serveur DNS</translation>
    </message>
    <message>
        <source>The search domains are not a list of names.</source>
        <translation>Les domaines de recherche ne sont pas une liste de noms.</translation>
    </message>
    <message>
        <source>The preferred DNS server</source>
        <translation>Le serveur DNS préféré</translation>
    </message>
    <message>
        <source>The alternate DNS server</source>
        <translation>Le serveur DNS auxiliaire</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a search domain.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un domaine de recherche.</translation>
    </message>
    <message>
        <source>A service whose IPv4 is &quot;%1&quot; takes no DNS servers.</source>
        <translation>Un service dont l’IPv4 est «&#xa0;%1&#xa0;» n’accepte pas de serveurs DNS.</translation>
    </message>
    <message>
        <source>No change of it awaits confirmation.</source>
        <translation>Aucune modification n’attend de confirmation.</translation>
    </message>
    <message>
        <source>An earlier change of it awaits confirmation; confirm it or take it back first.</source>
        <translation>Une modification précédente attend une confirmation&#x202f;; confirmez-la ou annulez-la d’abord.</translation>
    </message>
</context>
<context>
    <name>ardeo::ShortcutsView</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Configuration</translation>
    </message>
    <message>
        <source>Apply configuration</source>
        <translation>Appliquer la configuration</translation>
    </message>
    <message>
        <source>Refresh adapter list</source>
        <translation>Actualiser la liste des interfaces</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profils</translation>
    </message>
    <message>
        <source>Import profiles from file</source>
        <translation>Importer des profils d’un fichier</translation>
    </message>
    <message>
        <source>Export profiles to file</source>
        <translation>Exporter les profils vers un fichier</translation>
    </message>
    <message>
        <source>Adapter</source>
        <translation>Interface</translation>
    </message>
    <message>
        <source>Tools → Renew DHCP</source>
        <translation>Outils → Renouveler DHCP</translation>
    </message>
    <message>
        <source>Renew DHCP lease</source>
        <translation>Renouveler le bail DHCP</translation>
    </message>
    <message>
        <source>Tools → Enable Adapter</source>
        <translation>Outils → Activer l’interface</translation>
    </message>
    <message>
        <source>Enable the selected adapter</source>
        <translation>Activer l’interface choisie</translation>
    </message>
    <message>
        <source>Tools → Disable Adapter</source>
        <translation>Outils → Désactiver l’interface</translation>
    </message>
    <message>
        <source>Disable the selected adapter</source>
        <translation>Désactiver l’interface choisie</translation>
    </message>
    <message>
        <source>Navigation</source>
        <translation>Navigation</translation>
    </message>
    <message>
        <source>Tools → Network Settings</source>
        <translation>Outils → Réglages réseau</translation>
    </message>
    <message>
        <source>Open Network Settings</source>
        <translation>Ouvrir les réglages réseau</translation>
    </message>
    <message>
        <source>Tools → Activity Monitor</source>
        <translation>Outils → Moniteur d’activité</translation>
    </message>
    <message>
        <source>Open Activity Monitor</source>
        <translation>Ouvrir le moniteur d’activité</translation>
    </message>
    <message>
        <source>Hide Ardeo IP Config</source>
        <translation>Masquer Ardeo IP Config</translation>
    </message>
    <message>
        <source>Quit Ardeo IP Config</source>
        <translation>Quitter Ardeo IP Config</translation>
    </message>
</context>
<context>
    <name>ardeo::Trouble</name>
    <message>
        <source>NetworkManager is not running.</source>
        <translation>NetworkManager n’est pas en cours d’exécution.</translation>
    </message>
    <message>
        <source>NetworkManager does not answer.</source>
        <translation>NetworkManager ne répond pas.</translation>
    </message>
    <message>
        <source>NetworkManager is not running; --system=simulated works without it.</source>
        <translation>NetworkManager n’est pas en cours d’exécution&#x202f;; --system=simulated fonctionne sans lui.</translation>
    </message>
    <message>
        <source>The simulated machine&apos;s file %1 cannot be read.</source>
        <translation>Le fichier %1 de la machine simulée est illisible.</translation>
    </message>
    <message>
        <source>simulated machine (%1)</source>
        <translation>machine simulée (%1)</translation>
    </message>
</context>
<context>
    <name>ardeo::words</name>
    <message>
        <source>this Mac</source>
        <translation>ce Mac</translation>
    </message>
    <message>
        <source>macOS System Configuration, the same framework used by Network preferences</source>
        <translation>macOS System Configuration, le même framework que les préférences Réseau</translation>
    </message>
    <message>
        <source>System Settings</source>
        <translation>les Réglages Système</translation>
    </message>
    <message>
        <source>menu bar</source>
        <translation>barre des menus</translation>
    </message>
    <message>
        <source>this computer</source>
        <translation>cet ordinateur</translation>
    </message>
    <message>
        <source>NetworkManager, the same service used by your desktop&apos;s network settings</source>
        <translation>NetworkManager, le même service que les réglages réseau de votre bureau</translation>
    </message>
    <message>
        <source>the desktop&apos;s settings</source>
        <translation>les réglages du bureau</translation>
    </message>
    <message>
        <source>system tray</source>
        <translation>zone de notification</translation>
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
