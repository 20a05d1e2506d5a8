<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>ardeo::ActionHeader</name>
    <message>
        <source>Refresh</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>Refresh adapter list</source>
        <translation>Actualizar la lista de adaptadores</translation>
    </message>
    <message>
        <source>Applying…</source>
        <translation>Aplicando…</translation>
    </message>
    <message>
        <source>Apply configuration</source>
        <translation>Aplicar la configuración</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
</context>
<context>
    <name>ardeo::AdapterPropertiesCard</name>
    <message>
        <source>Connected</source>
        <translation>Conectado</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>No conectado</translation>
    </message>
    <message>
        <source>IP Address:</source>
        <translation>Dirección IP:</translation>
    </message>
    <message>
        <source>Subnet Mask:</source>
        <translation>Máscara:</translation>
    </message>
    <message>
        <source>Gateway:</source>
        <translation>Puerta de enlace:</translation>
    </message>
    <message>
        <source>Preferred DNS:</source>
        <translation>DNS preferido:</translation>
    </message>
    <message>
        <source>Alternate DNS:</source>
        <translation>DNS alternativo:</translation>
    </message>
    <message>
        <source>DHCP Server:</source>
        <translation>Servidor DHCP:</translation>
    </message>
    <message>
        <source>Mode:</source>
        <translation>Modo:</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>DHCP</source>
        <translation>DHCP</translation>
    </message>
    <message>
        <source>Computer Name:</source>
        <translation>Equipo:</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>Cargando…</translation>
    </message>
    <message>
        <source>Disable Adapter</source>
        <translation>Desactivar adaptador</translation>
    </message>
    <message>
        <source>Enable Adapter</source>
        <translation>Activar adaptador</translation>
    </message>
    <message>
        <source>Current Adapter Properties</source>
        <translation>Propiedades actuales del adaptador</translation>
    </message>
</context>
<context>
    <name>ardeo::AdapterSection</name>
    <message>
        <source>%1 (removed)</source>
        <translation>%1 (eliminado)</translation>
    </message>
    <message>
        <source>Select Adapter</source>
        <translation>Elegir adaptador</translation>
    </message>
    <message>
        <source>Full-duplex</source>
        <translation>Dúplex completo</translation>
    </message>
    <message>
        <source>Half-duplex</source>
        <translation>Semidúplex</translation>
    </message>
    <message>
        <source>%1 (disconnected)</source>
        <translation>%1 (desconectado)</translation>
    </message>
    <message>
        <source>%1 (disabled)</source>
        <translation>%1 (desactivado)</translation>
    </message>
    <message>
        <source>%1 (on trial)</source>
        <translation>%1 (a prueba)</translation>
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
        <translation>Ardeo IP Config sigue en ejecución. Este escritorio no muestra iconos en la bandeja, así que la ventana se ha minimizado en lugar de ocultarse. %1 cierra el programa.</translation>
    </message>
</context>
<context>
    <name>ardeo::Ardeo_IPConfigApp</name>
    <message>
        <source>Ardeo IP Config Help</source>
        <translation>Ayuda de Ardeo IP Config</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>About Ardeo IP Config</source>
        <translation>Acerca de Ardeo IP Config</translation>
    </message>
    <message>
        <source>Version %1
Works on: %2</source>
        <translation>Versión %1
Trabaja sobre: %2</translation>
    </message>
</context>
<context>
    <name>ardeo::AuthError</name>
    <message>
        <source>Cannot create authorization reference.</source>
        <translation>No se puede crear la referencia de autorización.</translation>
    </message>
    <message>
        <source>Admin authorization was denied or cancelled.</source>
        <translation>La autorización de administrador se denegó o se canceló.</translation>
    </message>
</context>
<context>
    <name>ardeo::ConfigError</name>
    <message>
        <source>Cannot acquire preferences lock (SC %1).</source>
        <translation>No se puede obtener el bloqueo de las preferencias (SC %1).</translation>
    </message>
    <message>
        <source>Service &apos;%1&apos; not found.</source>
        <translation>No se encuentra el servicio «%1».</translation>
    </message>
    <message>
        <source>Protocol %1 unavailable.</source>
        <translation>El protocolo %1 no está disponible.</translation>
    </message>
    <message>
        <source>Cannot save changes (SC %1).</source>
        <translation>No se pueden guardar los cambios (SC %1).</translation>
    </message>
    <message>
        <source>Cannot apply changes (SC %1).</source>
        <translation>No se pueden aplicar los cambios (SC %1).</translation>
    </message>
    <message>
        <source>Cannot open system network preferences.</source>
        <translation>No se pueden abrir las preferencias de red del sistema.</translation>
    </message>
</context>
<context>
    <name>ardeo::ConfirmationDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>ardeo::Console</name>
    <message>
        <source>A command is missing; see ardeoctl --help.</source>
        <translation>Falta una orden; vea ardeoctl --help.</translation>
    </message>
    <message>
        <source>There is no command &apos;%1&apos;; see ardeoctl --help.</source>
        <translation>No existe la orden «%1»; vea ardeoctl --help.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; needs a %2.</source>
        <translation>«%1» necesita %2.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; takes no &apos;%2&apos;.</source>
        <translation>«%1» no admite «%2».</translation>
    </message>
    <message>
        <source>--system is auto, networkmanager or simulated.</source>
        <translation>--system es auto, networkmanager o simulated.</translation>
    </message>
    <message>
        <source>--state goes with --system=simulated.</source>
        <translation>--state va con --system=simulated.</translation>
    </message>
    <message>
        <source>--state needs a file.</source>
        <translation>--state necesita un archivo.</translation>
    </message>
    <message>
        <source>--confirm-within takes 5 to 3600 seconds.</source>
        <translation>--confirm-within admite de 5 a 3600 segundos.</translation>
    </message>
    <message>
        <source>--profile brings all settings along and takes no others beside it.</source>
        <translation>--profile trae todos los ajustes y no admite otros a su lado.</translation>
    </message>
    <message>
        <source>--dhcp takes no --address, --mask or --router.</source>
        <translation>--dhcp no admite --address, --mask ni --router.</translation>
    </message>
    <message>
        <source>A manual address takes both --address and --mask.</source>
        <translation>Una dirección manual necesita --address y --mask.</translation>
    </message>
    <message>
        <source>--dns takes two servers at most.</source>
        <translation>--dns admite dos servidores como máximo.</translation>
    </message>
    <message>
        <source>--search needs DNS servers of its own: automatic DNS keeps no search domains.</source>
        <translation>--search necesita servidores DNS propios: el DNS automático no conserva dominios de búsqueda.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; takes no --%2.</source>
        <translation>«%1» no admite --%2.</translation>
    </message>
    <message>
        <source>Usage: ardeoctl [--system=SYSTEM] [--state=FILE] COMMAND</source>
        <translation>Uso: ardeoctl [--system=SYSTEM] [--state=FILE] ORDEN</translation>
    </message>
    <message>
        <source>Switches the IPv4 and DNS settings of this computer&apos;s network services.</source>
        <translation>Cambia los ajustes IPv4 y DNS de los servicios de red de este equipo.</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Órdenes:</translation>
    </message>
    <message>
        <source>the network services, connected ones first</source>
        <translation>los servicios de red, primero los conectados</translation>
    </message>
    <message>
        <source>the settings and the state of one service</source>
        <translation>los ajustes y el estado de un servicio</translation>
    </message>
    <message>
        <source>change a service; what is not named keeps its present value</source>
        <translation>cambiar un servicio; lo que no se nombra conserva su valor</translation>
    </message>
    <message>
        <source>put the service on DHCP and take a new lease</source>
        <translation>poner el servicio en DHCP y tomar una concesión nueva</translation>
    </message>
    <message>
        <source>switch the service on</source>
        <translation>activar el servicio</translation>
    </message>
    <message>
        <source>switch the service off, and keep it off</source>
        <translation>desactivar el servicio y mantenerlo así</translation>
    </message>
    <message>
        <source>keep what was changed on trial, of one service or of all</source>
        <translation>conservar lo cambiado a prueba, de un servicio o de todos</translation>
    </message>
    <message>
        <source>take it back at once</source>
        <translation>deshacerlo enseguida</translation>
    </message>
    <message>
        <source>the saved profiles</source>
        <translation>los perfiles guardados</translation>
    </message>
    <message>
        <source>write them to a file</source>
        <translation>escribirlos en un archivo</translation>
    </message>
    <message>
        <source>Settings:</source>
        <translation>Ajustes:</translation>
    </message>
    <message>
        <source>take the address from the network</source>
        <translation>tomar la dirección de la red</translation>
    </message>
    <message>
        <source>a manual address with its dotted mask</source>
        <translation>una dirección manual con su máscara con puntos</translation>
    </message>
    <message>
        <source>the gateway of a manual address; --router= for none</source>
        <translation>la puerta de enlace de una dirección manual; --router= para ninguna</translation>
    </message>
    <message>
        <source>take the DNS servers from the network</source>
        <translation>tomar los servidores DNS de la red</translation>
    </message>
    <message>
        <source>DNS servers set by hand</source>
        <translation>servidores DNS puestos a mano</translation>
    </message>
    <message>
        <source>search domains, with DNS servers set by hand</source>
        <translation>dominios de búsqueda, con servidores DNS puestos a mano</translation>
    </message>
    <message>
        <source>Trial (apply, renew, enable, disable):</source>
        <translation>Prueba (apply, renew, enable, disable):</translation>
    </message>
    <message>
        <source>take the change back by itself unless it is confirmed in time</source>
        <translation>deshacer el cambio por sí solo si no se confirma a tiempo</translation>
    </message>
    <message>
        <source>Systems:</source>
        <translation>Sistemas:</translation>
    </message>
    <message>
        <source>NetworkManager, with advice where it is not running (the default)</source>
        <translation>NetworkManager, con un consejo donde no está en ejecución (lo predeterminado)</translation>
    </message>
    <message>
        <source>this computer</source>
        <translation>este equipo</translation>
    </message>
    <message>
        <source>a simulated machine, for trying things out</source>
        <translation>un equipo simulado, para probar cosas</translation>
    </message>
    <message>
        <source>the file that the simulated machine lives in</source>
        <translation>el archivo en el que vive el equipo simulado</translation>
    </message>
    <message>
        <source>Exit status: 0 when done, 1 when it failed (the reason is on standard error), 2 for wrong usage.</source>
        <translation>Estado de salida: 0 si se hizo, 1 si falló (el motivo está en la salida de errores), 2 por uso incorrecto.</translation>
    </message>
    <message>
        <source>No change awaits confirmation.</source>
        <translation>Ningún cambio espera confirmación.</translation>
    </message>
    <message>
        <source>Cannot write %1: %2.</source>
        <translation>No se puede escribir %1: %2.</translation>
    </message>
    <message>
        <source>The saved profiles cannot be read.</source>
        <translation>No se pueden leer los perfiles guardados.</translation>
    </message>
    <message>
        <source>There is no profile &apos;%1&apos;.</source>
        <translation>No existe el perfil «%1».</translation>
    </message>
    <message>
        <source>%1 profiles are named &apos;%2&apos;.</source>
        <translation>%1 perfiles se llaman «%2».</translation>
    </message>
    <message>
        <source>--search needs --dns: automatic DNS keeps no search domains.</source>
        <translation>--search necesita --dns: el DNS automático no conserva dominios de búsqueda.</translation>
    </message>
    <message>
        <source>--router needs --address and --mask.</source>
        <translation>--router necesita --address y --mask.</translation>
    </message>
    <message>
        <source>A profile holds text that is not valid Unicode.</source>
        <translation>Un perfil contiene texto que no es Unicode válido.</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>%1 en %2</translation>
    </message>
    <message>
        <source>Cannot write the output: %1.</source>
        <translation>No se puede escribir la salida: %1.</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>DHCP</source>
        <translation>DHCP</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automático</translation>
    </message>
    <message numerus="yes">
        <source>, %n s to confirm</source>
        <translation>
            <numerusform>, %n s para confirmar</numerusform>
            <numerusform>, %n s para confirmar</numerusform>
        </translation>
    </message>
    <message>
        <source>connected</source>
        <translation>conectado</translation>
    </message>
    <message>
        <source>disconnected</source>
        <translation>desconectado</translation>
    </message>
    <message>
        <source>disabled</source>
        <translation>desactivado</translation>
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
        <translation>dúplex completo</translation>
    </message>
    <message>
        <source>half-duplex</source>
        <translation>semidúplex</translation>
    </message>
    <message>
        <source>No network services.</source>
        <translation>No hay servicios de red.</translation>
    </message>
    <message>
        <source>SERVICE</source>
        <translation>SERVICIO</translation>
    </message>
    <message>
        <source>STATE</source>
        <translation>ESTADO</translation>
    </message>
    <message>
        <source>DEVICE</source>
        <translation>DISPOSITIVO</translation>
    </message>
    <message>
        <source>HARDWARE ADDRESS</source>
        <translation>DIRECCIÓN FÍSICA</translation>
    </message>
    <message>
        <source>LINK</source>
        <translation>ENLACE</translation>
    </message>
    <message>
        <source>HARDWARE</source>
        <translation>HARDWARE</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>Estado:</translation>
    </message>
    <message>
        <source>Mode:</source>
        <translation>Modo:</translation>
    </message>
    <message>
        <source>IP Address:</source>
        <translation>Dirección IP:</translation>
    </message>
    <message>
        <source>Subnet Mask:</source>
        <translation>Máscara:</translation>
    </message>
    <message>
        <source>Gateway:</source>
        <translation>Puerta de enlace:</translation>
    </message>
    <message>
        <source>DNS:</source>
        <translation>DNS:</translation>
    </message>
    <message>
        <source>Search Domains:</source>
        <translation>Dominios de búsqueda:</translation>
    </message>
    <message>
        <source>No saved profiles.</source>
        <translation>No hay perfiles guardados.</translation>
    </message>
    <message>
        <source>PROFILE</source>
        <translation>PERFIL</translation>
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
        <translation>El cambio se ha deshecho.</translation>
    </message>
    <message>
        <source>The change is no longer on trial.</source>
        <translation>El cambio ya no está a prueba.</translation>
    </message>
    <message numerus="yes">
        <source>Keep this change? Enter keeps it, u and Enter takes it back; so does waiting %n s. </source>
        <translation>
            <numerusform>¿Conservar este cambio? Intro lo conserva, u e Intro lo deshace; esperar %n s también. </numerusform>
            <numerusform>¿Conservar este cambio? Intro lo conserva, u e Intro lo deshace; esperar %n s también. </numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The change is taken back in %n s. &quot;ardeoctl confirm&quot; keeps it, &quot;ardeoctl undo&quot; takes it back at once.</source>
        <translation>
            <numerusform>El cambio se deshará en %n segundo. «ardeoctl confirm» lo conserva, «ardeoctl undo» lo deshace enseguida.</numerusform>
            <numerusform>El cambio se deshará en %n segundos. «ardeoctl confirm» lo conserva, «ardeoctl undo» lo deshace enseguida.</numerusform>
        </translation>
    </message>
    <message>
        <source>--profiles needs --profile.</source>
        <translation>--profiles necesita --profile.</translation>
    </message>
    <message>
        <source>--dry-run changes nothing, and takes no --confirm-within.</source>
        <translation>--dry-run no cambia nada y no admite --confirm-within.</translation>
    </message>
    <message>
        <source>the same with the settings of a saved profile, or of one that was exported</source>
        <translation>lo mismo con los ajustes de un perfil guardado, o de uno exportado</translation>
    </message>
    <message>
        <source>one line for each change of a service, until it is ended</source>
        <translation>una línea por cada cambio de un servicio, hasta que se termine</translation>
    </message>
    <message>
        <source>For scripts (apply):</source>
        <translation>Para scripts (apply):</translation>
    </message>
    <message>
        <source>only say what would change; nobody is asked for a password</source>
        <translation>solo decir qué cambiaría; no se pide ninguna contraseña</translation>
    </message>
    <message>
        <source>whether something has changed, and what</source>
        <translation>si algo ha cambiado, y qué</translation>
    </message>
    <message>
        <source>Cannot read %1: %2.</source>
        <translation>No se puede leer %1: %2.</translation>
    </message>
    <message>
        <source>%1 is no list of profiles.</source>
        <translation>%1 no es una lista de perfiles.</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modo</translation>
    </message>
    <message>
        <source>IP Address</source>
        <translation>Dirección IP</translation>
    </message>
    <message>
        <source>Subnet Mask</source>
        <translation>Máscara</translation>
    </message>
    <message>
        <source>Gateway</source>
        <translation>Puerta de enlace</translation>
    </message>
    <message>
        <source>Preferred DNS</source>
        <translation>DNS preferido</translation>
    </message>
    <message>
        <source>Alternate DNS</source>
        <translation>DNS alternativo</translation>
    </message>
    <message>
        <source>Search Domains</source>
        <translation>Dominios de búsqueda</translation>
    </message>
    <message>
        <source>DHCP Server</source>
        <translation>Servidor DHCP</translation>
    </message>
    <message>
        <source>Computer Name</source>
        <translation>Equipo</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
    <message>
        <source>Nothing to do: &apos;%1&apos; has these settings already.</source>
        <translation>Nada que hacer: «%1» ya tiene estos ajustes.</translation>
    </message>
    <message>
        <source>The settings are saved already, and would be brought into force.</source>
        <translation>Los ajustes ya están guardados y se pondrían en vigor.</translation>
    </message>
    <message>
        <source>Only settings that are not shown here would change.</source>
        <translation>Solo cambiarían ajustes que no se muestran aquí.</translation>
    </message>
    <message>
        <source>, on trial</source>
        <translation>, a prueba</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>The network service answers again.</source>
        <translation>El servicio de red responde de nuevo.</translation>
    </message>
    <message>
        <source>added, %1</source>
        <translation>añadido, %1</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>eliminado</translation>
    </message>
</context>
<context>
    <name>ardeo::DescribedError</name>
    <message>
        <source>Waiting for another program that is changing the network settings. It is process %1.</source>
        <translation>Esperando a otro programa que está cambiando los ajustes de red. Es el proceso %1.</translation>
    </message>
    <message>
        <source>Waiting for another program that is changing the network settings.</source>
        <translation>Esperando a otro programa que está cambiando los ajustes de red.</translation>
    </message>
</context>
<context>
    <name>ardeo::DesktopFilePanels</name>
    <message>
        <source>Ardeo IP Config profiles (*.profiles);;All files (*)</source>
        <translation>Perfiles de Ardeo IP Config (*.profiles);;Todos los archivos (*)</translation>
    </message>
</context>
<context>
    <name>ardeo::FileUserDefaults</name>
    <message>
        <source>Your profiles could not be saved: %1.</source>
        <translation>No se pudieron guardar sus perfiles: %1.</translation>
    </message>
    <message>
        <source>those stored before cannot be read</source>
        <translation>no se pueden leer los guardados antes</translation>
    </message>
</context>
<context>
    <name>ardeo::HelpView</name>
    <message>
        <source>Ardeo IP Config is a native {system} utility for quickly switching network adapter configurations. Switch between DHCP and static IP in seconds — ideal for IT professionals, developers, and power users who work across multiple network environments such as office, home, VPN, or lab setups.

Settings are applied instantly through {configuration}. No restarts required.</source>
        <translation>Ardeo IP Config es una utilidad nativa de {system} para cambiar rápidamente la configuración de los adaptadores de red. Pase de DHCP a una IP estática en segundos: ideal para profesionales de TI, desarrolladores y usuarios avanzados que trabajan en varios entornos de red, como la oficina, el hogar, una VPN o un laboratorio.

Los ajustes se aplican al instante mediante {configuration}. No hace falta reiniciar.</translation>
    </message>
    <message>
        <source>Select any adapter</source>
        <translation>Elegir cualquier adaptador</translation>
    </message>
    <message>
        <source>Wi-Fi, Ethernet, Thunderbolt, VPN</source>
        <translation>Wi-Fi, Ethernet, Thunderbolt, VPN</translation>
    </message>
    <message>
        <source>DHCP / Static IP</source>
        <translation>DHCP / IP estática</translation>
    </message>
    <message>
        <source>Switch modes with one click</source>
        <translation>Cambiar de modo con un clic</translation>
    </message>
    <message>
        <source>DNS control</source>
        <translation>Control de DNS</translation>
    </message>
    <message>
        <source>Automatic or manually configured DNS servers</source>
        <translation>Servidores DNS automáticos o configurados a mano</translation>
    </message>
    <message>
        <source>Network profiles</source>
        <translation>Perfiles de red</translation>
    </message>
    <message>
        <source>Save, load, rename, delete named presets</source>
        <translation>Guardar, cargar, renombrar y eliminar preajustes con nombre</translation>
    </message>
    <message>
        <source>Import &amp; Export</source>
        <translation>Importación y exportación</translation>
    </message>
    <message>
        <source>Share profiles as JSON files across machines</source>
        <translation>Compartir perfiles entre equipos como archivos JSON</translation>
    </message>
    <message>
        <source>Current properties</source>
        <translation>Propiedades actuales</translation>
    </message>
    <message>
        <source>Live view of IP, subnet, gateway, DHCP server, computer name</source>
        <translation>Vista en vivo de IP, subred, puerta de enlace, servidor DHCP y nombre del equipo</translation>
    </message>
    <message>
        <source>Enable / Disable adapter</source>
        <translation>Activar / desactivar el adaptador</translation>
    </message>
    <message>
        <source>Toggle any adapter on or off without {settings}</source>
        <translation>Encender o apagar cualquier adaptador sin {settings}</translation>
    </message>
    <message>
        <source>Renew DHCP lease</source>
        <translation>Renovar la concesión DHCP</translation>
    </message>
    <message>
        <source>Force a fresh lease from the DHCP server</source>
        <translation>Forzar una concesión nueva del servidor DHCP</translation>
    </message>
    <message>
        <source>{IconPlace} access</source>
        <translation>{IconPlace}: acceso</translation>
    </message>
    <message>
        <source>Quick access from the {iconPlace} icon at all times</source>
        <translation>Acceso rápido en todo momento desde el icono ({iconPlace})</translation>
    </message>
    <message>
        <source>Start at Login</source>
        <translation>Iniciar al entrar en la sesión</translation>
    </message>
    <message>
        <source>Launch automatically when you log in</source>
        <translation>Se inicia automáticamente al entrar en la sesión</translation>
    </message>
    <message>
        <source>Select an Adapter</source>
        <translation>Elegir un adaptador</translation>
    </message>
    <message>
        <source>Use the dropdown at the top of the left panel to choose a network interface. The hardware name and MAC address appear below the picker.</source>
        <translation>Elija una interfaz de red en la lista desplegable de la parte superior del panel izquierdo. El nombre del hardware y la dirección MAC aparecen debajo.</translation>
    </message>
    <message>
        <source>Configure Settings</source>
        <translation>Configurar los ajustes</translation>
    </message>
    <message>
        <source>Choose &quot;Automatically Set IP Address&quot; for DHCP, or &quot;Manually Set IP Address&quot; to enter a static IP, subnet mask, and gateway. Set DNS in the same way below.</source>
        <translation>Elija «Dirección IP automática» para DHCP, o «Dirección IP manual» para introducir una IP estática, la máscara y la puerta de enlace. Configure el DNS del mismo modo más abajo.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Click the Apply button (top-right) or press {apply}. The interface briefly reconfigures; the Current Adapter Properties card refreshes automatically after ~4 seconds.</source>
        <translation>Haga clic en «Aplicar» (arriba a la derecha) o pulse {apply}. La interfaz se reconfigura brevemente; la tarjeta «Propiedades actuales del adaptador» se actualiza sola pasados unos 4 segundos.</translation>
    </message>
    <message>
        <source>Save a Profile</source>
        <translation>Guardar un perfil</translation>
    </message>
    <message>
        <source>Click &quot;Save Profile…&quot; at the bottom of the left panel. Give the preset a name — it appears in the profiles list immediately.</source>
        <translation>Haga clic en «Guardar perfil…» al pie del panel izquierdo. Póngale un nombre: aparece enseguida en la lista de perfiles.</translation>
    </message>
    <message>
        <source>Load a Profile</source>
        <translation>Cargar un perfil</translation>
    </message>
    <message>
        <source>Click any profile row to populate the form fields. Then click Apply to activate it on the selected adapter.</source>
        <translation>Haga clic en un perfil para rellenar los campos. Después pulse «Aplicar» para activarlo en el adaptador elegido.</translation>
    </message>
    <message>
        <source>Manage Profiles</source>
        <translation>Gestionar los perfiles</translation>
    </message>
    <message>
        <source>Right-click any profile to Rename or Delete it. Use the ↓ / ↑ icon buttons to Import or Export the entire profile list as a JSON file.</source>
        <translation>Haga clic con el botón derecho en un perfil para renombrarlo o eliminarlo. Los botones ↓ / ↑ importan o exportan la lista entera como archivo JSON.</translation>
    </message>
    <message>
        <source>Enable / Disable Adapter</source>
        <translation>Activar / desactivar el adaptador</translation>
    </message>
    <message>
        <source>In the Current Adapter Properties card, use the &quot;Enable Adapter&quot; or &quot;Disable Adapter&quot; button. Green = re-enable, Red = disable.</source>
        <translation>En la tarjeta «Propiedades actuales del adaptador», use el botón «Activar adaptador» o «Desactivar adaptador». Verde = volver a activar, rojo = desactivar.</translation>
    </message>
    <message>
        <source>Renew DHCP</source>
        <translation>Renovar DHCP</translation>
    </message>
    <message>
        <source>Visible in the Set Profile Properties card when the adapter is in DHCP mode. Forces a fresh IP lease from the router.</source>
        <translation>Visible en la tarjeta «Definir propiedades del perfil» cuando el adaptador está en modo DHCP. Fuerza una concesión IP nueva del router.</translation>
    </message>
    <message>
        <source>Network configuration made fast.</source>
        <translation>La configuración de red, más rápida.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca del programa</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>Funciones</translation>
    </message>
    <message>
        <source>How to Use</source>
        <translation>Modo de uso</translation>
    </message>
</context>
<context>
    <name>ardeo::IPAddressField</name>
    <message>
        <source>%1, part %2 of 4</source>
        <translation>%1, parte %2 de 4</translation>
    </message>
</context>
<context>
    <name>ardeo::InfoRow</name>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
</context>
<context>
    <name>ardeo::LeftPanel</name>
    <message>
        <source>Profiles</source>
        <translation>Perfiles</translation>
    </message>
    <message>
        <source>Search profiles</source>
        <translation>Buscar perfiles</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>Borrar la búsqueda</translation>
    </message>
    <message>
        <source>No match.</source>
        <translation>Sin resultados.</translation>
    </message>
    <message>
        <source>No saved profiles.</source>
        <translation>No hay perfiles guardados.</translation>
    </message>
    <message>
        <source>Save Profile…</source>
        <translation>Guardar perfil…</translation>
    </message>
    <message>
        <source>Import profiles from file</source>
        <translation>Importar perfiles de un archivo</translation>
    </message>
    <message>
        <source>Export profiles to file</source>
        <translation>Exportar perfiles a un archivo</translation>
    </message>
    <message>
        <source>Delete Preset</source>
        <translation>Eliminar perfil</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>Eliminar «%1»</translation>
    </message>
</context>
<context>
    <name>ardeo::MainMenu</name>
    <message>
        <source>Remove from Login Items</source>
        <translation>No iniciar al entrar en la sesión</translation>
    </message>
    <message>
        <source>Start at Login</source>
        <translation>Iniciar al entrar en la sesión</translation>
    </message>
    <message>
        <source>&amp;Ardeo IP Config</source>
        <translation>Ardeo &amp;IP Config</translation>
    </message>
    <message>
        <source>About Ardeo IP Config</source>
        <translation>Acerca de Ardeo IP Config</translation>
    </message>
    <message>
        <source>Hide Ardeo IP Config</source>
        <translation>Ocultar Ardeo IP Config</translation>
    </message>
    <message>
        <source>Quit Ardeo IP Config</source>
        <translation>Salir de Ardeo IP Config</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>Import Profiles…</source>
        <translation>Importar perfiles…</translation>
    </message>
    <message>
        <source>Export Profiles…</source>
        <translation>Exportar perfiles…</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Herramientas</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Renew DHCP</source>
        <translation>Renovar DHCP</translation>
    </message>
    <message>
        <source>Enable Adapter</source>
        <translation>Activar adaptador</translation>
    </message>
    <message>
        <source>Disable Adapter</source>
        <translation>Desactivar adaptador</translation>
    </message>
    <message>
        <source>Open Network Settings</source>
        <translation>Abrir los ajustes de red</translation>
    </message>
    <message>
        <source>Open Activity Monitor</source>
        <translation>Abrir el monitor de actividad</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>Ardeo IP Config Help</source>
        <translation>Ayuda de Ardeo IP Config</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts…</source>
        <translation>Atajos de teclado…</translation>
    </message>
</context>
<context>
    <name>ardeo::MainViewModel</name>
    <message>
        <source>Nobody confirmed the change of &apos;%1&apos;, so it was taken back.</source>
        <translation>Nadie confirmó el cambio de «%1», así que se deshizo.</translation>
    </message>
    <message>
        <source>Export Ardeo IP Config profiles</source>
        <translation>Exportar los perfiles de Ardeo IP Config</translation>
    </message>
    <message>
        <source>Select an Ardeo IP Config profiles file (.profiles)</source>
        <translation>Elegir un archivo de perfiles de Ardeo IP Config (.profiles)</translation>
    </message>
    <message>
        <source>Could not read profiles file.</source>
        <translation>No se pudo leer el archivo de perfiles.</translation>
    </message>
    <message>
        <source>Start at login: %1</source>
        <translation>Inicio con la sesión: %1</translation>
    </message>
</context>
<context>
    <name>ardeo::MenuBarMenuView</name>
    <message>
        <source>Open Ardeo IP Config</source>
        <translation>Abrir Ardeo IP Config</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts…</source>
        <translation>Atajos de teclado…</translation>
    </message>
    <message>
        <source>Network Settings…</source>
        <translation>Ajustes de red…</translation>
    </message>
    <message>
        <source>Activity Monitor…</source>
        <translation>Monitor de actividad…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
</context>
<context>
    <name>ardeo::NoticePanel</name>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>ardeo::PresetList</name>
    <message>
        <source>Manual</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>DHCP</source>
        <translation>DHCP</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Cargar</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Perfiles</translation>
    </message>
    <message>
        <source>Load Profile</source>
        <translation>Cargar perfil</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>Renombrar…</translation>
    </message>
    <message>
        <source>Delete…</source>
        <translation>Eliminar…</translation>
    </message>
</context>
<context>
    <name>ardeo::ProfileNameSheet</name>
    <message>
        <source>Profile name</source>
        <translation>Nombre del perfil</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>ardeo::ProfilePropertiesCard</name>
    <message>
        <source>IP Address</source>
        <translation>Dirección IP</translation>
    </message>
    <message>
        <source>Automatically Set IP Address</source>
        <translation>Dirección IP automática</translation>
    </message>
    <message>
        <source>Manually Set IP Address</source>
        <translation>Dirección IP manual</translation>
    </message>
    <message>
        <source>IP Address:</source>
        <translation>Dirección IP:</translation>
    </message>
    <message>
        <source>Subnet Mask:</source>
        <translation>Máscara:</translation>
    </message>
    <message>
        <source>Gateway:</source>
        <translation>Puerta de enlace:</translation>
    </message>
    <message>
        <source>DNS</source>
        <translation>DNS</translation>
    </message>
    <message>
        <source>Automatically Set DNS Address</source>
        <translation>Dirección DNS automática</translation>
    </message>
    <message>
        <source>Manually Set DNS Address</source>
        <translation>Dirección DNS manual</translation>
    </message>
    <message>
        <source>Preferred DNS:</source>
        <translation>DNS preferido:</translation>
    </message>
    <message>
        <source>Alternate DNS:</source>
        <translation>DNS alternativo:</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Conservar</translation>
    </message>
    <message numerus="yes">
        <source>The change is taken back in %n s.</source>
        <translation>
            <numerusform>El cambio se deshará en %n segundo.</numerusform>
            <numerusform>El cambio se deshará en %n segundos.</numerusform>
        </translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>Revertir</translation>
    </message>
    <message>
        <source>Renew DHCP</source>
        <translation>Renovar DHCP</translation>
    </message>
    <message>
        <source>Force a new DHCP lease</source>
        <translation>Forzar una concesión DHCP nueva</translation>
    </message>
    <message>
        <source>Applied</source>
        <translation>Aplicado</translation>
    </message>
    <message>
        <source>Set Profile Properties</source>
        <translation>Definir propiedades del perfil</translation>
    </message>
</context>
<context>
    <name>ardeo::Program</name>
    <message>
        <source>Switches the IPv4 and DNS settings of this computer&apos;s network services.</source>
        <translation>Cambia los ajustes IPv4 y DNS de los servicios de red de este equipo.</translation>
    </message>
    <message>
        <source>Says the version and the system.</source>
        <translation>Indica la versión y el sistema.</translation>
    </message>
    <message>
        <source>The system to work on: auto, networkmanager or simulated.</source>
        <translation>El sistema sobre el que se trabaja: auto, networkmanager o simulated.</translation>
    </message>
    <message>
        <source>The simulated machine&apos;s file.</source>
        <translation>El archivo del equipo simulado.</translation>
    </message>
    <message>
        <source>--system is auto, networkmanager or simulated.</source>
        <translation>--system es auto, networkmanager o simulated.</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>%1 en %2</translation>
    </message>
    <message>
        <source>An option&apos;s value that is an option&apos;s name is written with =.</source>
        <translation>El valor de una opción que es el nombre de otra se escribe con =.</translation>
    </message>
    <message>
        <source>Ardeo IP Config is running already, but does not answer.</source>
        <translation>Ardeo IP Config ya está en ejecución, pero no responde.</translation>
    </message>
    <message>
        <source>Ardeo IP Config on %1</source>
        <translation>Ardeo IP Config en %1</translation>
    </message>
</context>
<context>
    <name>ardeo::RenamePresetSheet</name>
    <message>
        <source>Rename Profile</source>
        <translation>Renombrar perfil</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renombrar</translation>
    </message>
</context>
<context>
    <name>ardeo::RightPanel</name>
    <message>
        <source>No Network Services</source>
        <translation>No hay servicios de red</translation>
    </message>
    <message>
        <source>No network services found on {thisComputer}.</source>
        <translation>No se encontraron servicios de red en {thisComputer}.</translation>
    </message>
    <message>
        <source>Disable %1?</source>
        <translation>¿Desactivar %1?</translation>
    </message>
    <message>
        <source>Adapter</source>
        <translation>Adaptador</translation>
    </message>
    <message>
        <source>This will disconnect %1 from the network.</source>
        <translation>Esto desconectará de la red: %1.</translation>
    </message>
    <message>
        <source>the adapter</source>
        <translation>el adaptador</translation>
    </message>
    <message>
        <source>Disable</source>
        <translation>Desactivar</translation>
    </message>
</context>
<context>
    <name>ardeo::SavePresetSheet</name>
    <message>
        <source>Save Profile</source>
        <translation>Guardar perfil</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
</context>
<context>
    <name>ardeo::SettingFault</name>
    <message>
        <source>Without a device it could not be taken back by itself.</source>
        <translation>Sin un dispositivo no podría deshacerse por sí solo.</translation>
    </message>
    <message>
        <source>%1 is missing.</source>
        <translation>%1: falta el valor.</translation>
    </message>
    <message>
        <source>%1 is not complete.</source>
        <translation>%1: valor incompleto.</translation>
    </message>
    <message>
        <source>%1 is not an IPv4 address.</source>
        <translation>%1 no es una dirección IPv4.</translation>
    </message>
    <message>
        <source>%1 cannot be the address of a computer.</source>
        <translation>%1 no puede ser la dirección de un equipo.</translation>
    </message>
    <message>
        <source>The subnet mask</source>
        <translation>La máscara de subred</translation>
    </message>
    <message>
        <source>%1 is not a subnet mask.</source>
        <translation>%1 no es una máscara de subred.</translation>
    </message>
    <message>
        <source>The IP address</source>
        <translation>La dirección IP</translation>
    </message>
    <message>
        <source>%1 is the address of the network itself.</source>
        <translation>%1 es la dirección de la propia red.</translation>
    </message>
    <message>
        <source>%1 is the broadcast address of the network.</source>
        <translation>%1 es la dirección de difusión de la red.</translation>
    </message>
    <message>
        <source>The addresses are set neither by DHCP nor by hand.</source>
        <translation>Las direcciones no se asignan ni por DHCP ni a mano.</translation>
    </message>
    <message>
        <source>The gateway</source>
        <translation>La puerta de enlace</translation>
    </message>
    <message>
        <source>The gateway is the address itself.</source>
        <translation>La puerta de enlace es la propia dirección.</translation>
    </message>
    <message>
        <source>The DNS server</source>
        <translation>El servidor DNS</translation>
    </message>
    <message>
        <source>The search domains are not a list of names.</source>
        <translation>Los dominios de búsqueda no son una lista de nombres.</translation>
    </message>
    <message>
        <source>The preferred DNS server</source>
        <translation>El servidor DNS preferido</translation>
    </message>
    <message>
        <source>The alternate DNS server</source>
        <translation>El servidor DNS alternativo</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a search domain.</source>
        <translation>«%1» no es un dominio de búsqueda.</translation>
    </message>
    <message>
        <source>A service whose IPv4 is &quot;%1&quot; takes no DNS servers.</source>
        <translation>Un servicio cuyo IPv4 es «%1» no admite servidores DNS.</translation>
    </message>
    <message>
        <source>No change of it awaits confirmation.</source>
        <translation>Ningún cambio espera confirmación.</translation>
    </message>
    <message>
        <source>An earlier change of it awaits confirmation; confirm it or take it back first.</source>
        <translation>Un cambio anterior espera confirmación; confírmelo o deshágalo primero.</translation>
    </message>
</context>
<context>
    <name>ardeo::ShortcutsView</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Apply configuration</source>
        <translation>Aplicar la configuración</translation>
    </message>
    <message>
        <source>Refresh adapter list</source>
        <translation>Actualizar la lista de adaptadores</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Perfiles</translation>
    </message>
    <message>
        <source>Import profiles from file</source>
        <translation>Importar perfiles de un archivo</translation>
    </message>
    <message>
        <source>Export profiles to file</source>
        <translation>Exportar perfiles a un archivo</translation>
    </message>
    <message>
        <source>Adapter</source>
        <translation>Adaptador</translation>
    </message>
    <message>
        <source>Tools → Renew DHCP</source>
        <translation>Herramientas → Renovar DHCP</translation>
    </message>
    <message>
        <source>Renew DHCP lease</source>
        <translation>Renovar la concesión DHCP</translation>
    </message>
    <message>
        <source>Tools → Enable Adapter</source>
        <translation>Herramientas → Activar adaptador</translation>
    </message>
    <message>
        <source>Enable the selected adapter</source>
        <translation>Activar el adaptador elegido</translation>
    </message>
    <message>
        <source>Tools → Disable Adapter</source>
        <translation>Herramientas → Desactivar adaptador</translation>
    </message>
    <message>
        <source>Disable the selected adapter</source>
        <translation>Desactivar el adaptador elegido</translation>
    </message>
    <message>
        <source>Navigation</source>
        <translation>Navegación</translation>
    </message>
    <message>
        <source>Tools → Network Settings</source>
        <translation>Herramientas → Ajustes de red</translation>
    </message>
    <message>
        <source>Open Network Settings</source>
        <translation>Abrir los ajustes de red</translation>
    </message>
    <message>
        <source>Tools → Activity Monitor</source>
        <translation>Herramientas → Monitor de actividad</translation>
    </message>
    <message>
        <source>Open Activity Monitor</source>
        <translation>Abrir el monitor de actividad</translation>
    </message>
    <message>
        <source>Hide Ardeo IP Config</source>
        <translation>Ocultar Ardeo IP Config</translation>
    </message>
    <message>
        <source>Quit Ardeo IP Config</source>
        <translation>Salir de Ardeo IP Config</translation>
    </message>
</context>
<context>
    <name>ardeo::Trouble</name>
    <message>
        <source>NetworkManager is not running.</source>
        <translation>NetworkManager no está en ejecución.</translation>
    </message>
    <message>
        <source>NetworkManager does not answer.</source>
        <translation>NetworkManager no responde.</translation>
    </message>
    <message>
        <source>NetworkManager is not running; --system=simulated works without it.</source>
        <translation>NetworkManager no está en ejecución; --system=simulated funciona sin él.</translation>
    </message>
    <message>
        <source>The simulated machine&apos;s file %1 cannot be read.</source>
        <translation>No se puede leer el archivo %1 del equipo simulado.</translation>
    </message>
    <message>
        <source>simulated machine (%1)</source>
        <translation>equipo simulado (%1)</translation>
    </message>
</context>
<context>
    <name>ardeo::words</name>
    <message>
        <source>this Mac</source>
        <translation>este Mac</translation>
    </message>
    <message>
        <source>macOS System Configuration, the same framework used by Network preferences</source>
        <translation>macOS System Configuration, el mismo framework que usan las preferencias de Red</translation>
    </message>
    <message>
        <source>System Settings</source>
        <translation>los Ajustes del Sistema</translation>
    </message>
    <message>
        <source>menu bar</source>
        <translation>barra de menús</translation>
    </message>
    <message>
        <source>this computer</source>
        <translation>este equipo</translation>
    </message>
    <message>
        <source>NetworkManager, the same service used by your desktop&apos;s network settings</source>
        <translation>NetworkManager, el mismo servicio que usan los ajustes de red de su escritorio</translation>
    </message>
    <message>
        <source>the desktop&apos;s settings</source>
        <translation>los ajustes del escritorio</translation>
    </message>
    <message>
        <source>system tray</source>
        <translation>bandeja del sistema</translation>
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
