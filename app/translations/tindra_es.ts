<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
<context>
    <name>AccessoriesPanel</name>
    <message>
        <source>Accessories</source>
        <translation>Accesorios</translation>
    </message>
    <message>
        <source>No battery reported</source>
        <translation>Sin datos de batería</translation>
    </message>
    <message>
        <source>L</source>
        <translation>I</translation>
    </message>
    <message>
        <source>R</source>
        <translation>D</translation>
    </message>
    <message>
        <source>Case</source>
        <translation>Estuche</translation>
    </message>
</context>
<context>
    <name>AccessoryBatteryRings</name>
    <message>
        <source>L</source>
        <translation>I</translation>
    </message>
    <message>
        <source>R</source>
        <translation>D</translation>
    </message>
    <message>
        <source>C</source>
        <translation>E</translation>
    </message>
</context>
<context>
    <name>AccessoryCompact</name>
    <message>
        <source>Left</source>
        <translation>Izquierdo</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Derecho</translation>
    </message>
    <message>
        <source>Case</source>
        <translation>Estuche</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Desconectado</translation>
    </message>
    <message>
        <source>Playing on %1</source>
        <translation>Reproduciendo en %1</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Conectado</translation>
    </message>
</context>
<context>
    <name>Autostart</name>
    <message>
        <source>could not remove %1: %2</source>
        <translation>no se pudo quitar %1: %2</translation>
    </message>
</context>
<context>
    <name>Backends</name>
    <message>
        <source>no session bus: no calls or messages are shown</source>
        <translation>sin bus de sesión: no se muestran llamadas ni mensajes</translation>
    </message>
    <message>
        <source>no session bus: do-not-disturb is unknown, only `tindra focus` shows a Focus</source>
        <translation>sin bus de sesión: «No molestar» es desconocido, solo `tindra focus` muestra una concentración</translation>
    </message>
    <message>
        <source>no system bus (%1): the keyboard light keys stay with the desktop</source>
        <translation>sin bus del sistema (%1): las teclas de la luz del teclado quedan para el escritorio</translation>
    </message>
    <message>
        <source>a Wayland session lets no program take the keys: the desktop keeps them, and the level changes it makes are shown</source>
        <translation>una sesión Wayland no deja que ningún programa tome las teclas: el escritorio las conserva y se muestran los cambios de nivel que hace</translation>
    </message>
    <message>
        <source>no X11 display (%1): the keys stay with the desktop, and the level changes it makes are shown</source>
        <translation>sin pantalla X11 (%1): las teclas quedan para el escritorio y se muestran los cambios de nivel que hace</translation>
    </message>
    <message>
        <source>the notch is an X11 window</source>
        <translation>la muesca es una ventana X11</translation>
    </message>
    <message>
        <source>the notch is a layer surface on the Wayland compositor</source>
        <translation>la muesca es una superficie layer-shell del compositor Wayland</translation>
    </message>
    <message>
        <source>TINDRA_PLATFORM asks for Wayland, but the compositor offers no layer shell: the notch is an X11 window through XWayland</source>
        <translation>TINDRA_PLATFORM pide Wayland, pero el compositor no ofrece layer shell: la muesca es una ventana X11 a través de XWayland</translation>
    </message>
    <message>
        <source>the Wayland compositor offers no layer shell (GNOME&apos;s has none): the notch is an X11 window through XWayland, above other X11 windows but not always above Wayland ones</source>
        <translation>el compositor Wayland no ofrece layer shell (el de GNOME no la tiene): la muesca es una ventana X11 a través de XWayland, por encima de otras ventanas X11 pero no siempre de las Wayland</translation>
    </message>
    <message>
        <source>TINDRA_PLATFORM asks for X11: the notch is an X11 window</source>
        <translation>TINDRA_PLATFORM pide X11: la muesca es una ventana X11</translation>
    </message>
    <message>
        <source>no system bus (%1): no battery is shown</source>
        <translation>sin bus del sistema (%1): no se muestra la batería</translation>
    </message>
    <message>
        <source>no system bus (%1): no accessories are shown</source>
        <translation>sin bus del sistema (%1): no se muestran accesorios</translation>
    </message>
    <message>
        <source>the Wayland compositor lists no windows to other programs (neither wlr foreign toplevel nor Plasma window management): the notch never steps aside for full-screen windows or games</source>
        <translation>el compositor Wayland no muestra sus ventanas a otros programas (ni wlr foreign toplevel ni Plasma window management): la muesca nunca se aparta ante ventanas a pantalla completa o juegos</translation>
    </message>
    <message>
        <source>no X11 window manager to ask (%1): the notch never steps aside for full-screen windows or games</source>
        <translation>ningún gestor de ventanas X11 al que preguntar (%1): la muesca nunca se aparta ante ventanas a pantalla completa o juegos</translation>
    </message>
    <message>
        <source>no system bus (%1): GeoClue cannot be asked</source>
        <translation>sin bus del sistema (%1): no se puede preguntar a GeoClue</translation>
    </message>
    <message>
        <source>this desktop has no volume sound setting: the volume sound follows Tindra&apos;s own setting</source>
        <translation>este escritorio no tiene ajuste para el sonido del volumen: sigue el ajuste propio de Tindra</translation>
    </message>
</context>
<context>
    <name>BannerPanel</name>
    <message>
        <source>%1 call</source>
        <translation>Llamada de %1</translation>
    </message>
    <message>
        <source>Missed call · %1</source>
        <translation>Llamada perdida · %1</translation>
    </message>
    <message>
        <source>Ringing</source>
        <translation>Sonando</translation>
    </message>
</context>
<context>
    <name>BatteriesPanel</name>
    <message>
        <source>Battery</source>
        <translation>Batería</translation>
    </message>
    <message>
        <source>Charged</source>
        <translation>Cargada</translation>
    </message>
    <message>
        <source>Charging</source>
        <translation>Cargando</translation>
    </message>
    <message>
        <source>%1 to full</source>
        <translation>Llena en %1</translation>
    </message>
    <message>
        <source>On power</source>
        <translation>Enchufado</translation>
    </message>
    <message>
        <source>On battery</source>
        <translation>Con batería</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>Quedan %1</translation>
    </message>
    <message>
        <source>Low Power Mode is on</source>
        <translation>Modo de bajo consumo activado</translation>
    </message>
    <message>
        <source>This computer has no battery.</source>
        <translation>Este ordenador no tiene batería.</translation>
    </message>
</context>
<context>
    <name>BatteryCompact</name>
    <message>
        <source>Low</source>
        <translation>Baja</translation>
    </message>
</context>
<context>
    <name>CalendarPanel</name>
    <message>
        <source>Today</source>
        <translation>Hoy</translation>
    </message>
    <message>
        <source>Nothing else today</source>
        <translation>Nada más hoy</translation>
    </message>
    <message>
        <source>Reminders</source>
        <translation>Recordatorios</translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>%n más</numerusform>
            <numerusform>%n más</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CallCompact</name>
    <message>
        <source>Ringing</source>
        <translation>Sonando</translation>
    </message>
</context>
<context>
    <name>FileTrayPanel</name>
    <message>
        <source>File Tray</source>
        <translation>Bandeja de archivos</translation>
    </message>
    <message>
        <source>Remove All</source>
        <translation>Quitar todo</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>This file was moved to a place Tindra cannot find, or deleted.</source>
        <translation>Este archivo se movió a un lugar que Tindra no encuentra, o se eliminó.</translation>
    </message>
    <message>
        <source>Remove from the tray</source>
        <translation>Quitar de la bandeja</translation>
    </message>
    <message>
        <source>Click to open, or drag to use this file</source>
        <translation>Haz clic para abrir o arrastra para usar este archivo</translation>
    </message>
</context>
<context>
    <name>HudPanel</name>
    <message>
        <source>Brightness</source>
        <translation>Brillo</translation>
    </message>
    <message>
        <source>Keyboard light</source>
        <translation>Luz del teclado</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
</context>
<context>
    <name>JoinButton</name>
    <message>
        <source>Join</source>
        <translation>Unirse</translation>
    </message>
    <message>
        <source>Join %1</source>
        <translation>Unirse a %1</translation>
    </message>
</context>
<context>
    <name>Notch</name>
    <message>
        <source>Now Playing</source>
        <translation>En reproducción</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendario</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>Concentración</translation>
    </message>
    <message>
        <source>AirDrop</source>
        <translation>AirDrop</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Mensaje</translation>
    </message>
    <message>
        <source>Accessory</source>
        <translation>Accesorio</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batería</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Nivel</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Llamada</translation>
    </message>
</context>
<context>
    <name>OnboardingFeatures</name>
    <message>
        <source>Now Playing: the track of any player that speaks MPRIS (most music and video players and web browsers do), with its controls. Start one to see it.</source>
        <translation>Reproduciendo: la pista de cualquier reproductor que hable MPRIS (la mayoría de reproductores de música y vídeo y navegadores), con sus controles. Abre uno para verla.</translation>
    </message>
    <message>
        <source>Now Playing: no player can be followed yet. Install an MPRIS-capable player, or start the one you have; if it still does not show, Diagnostics… says why.</source>
        <translation>Reproduciendo: aún no se puede seguir ningún reproductor. Instala uno compatible con MPRIS o abre el tuyo; si sigue sin aparecer, Diagnóstico… dice por qué.</translation>
    </message>
    <message>
        <source>Volume: shown in the notch as it changes.</source>
        <translation>Volumen: se muestra en la muesca cuando cambia.</translation>
    </message>
    <message>
        <source>Volume: no sound server answers. The volume shows as soon as PipeWire or PulseAudio runs.</source>
        <translation>Volumen: ningún servidor de sonido responde. El volumen se muestra en cuanto PipeWire o PulseAudio se ejecuten.</translation>
    </message>
    <message>
        <source>Brightness: shown as it changes; the brightness keys step it.</source>
        <translation>Brillo: se muestra cuando cambia; las teclas de brillo lo ajustan.</translation>
    </message>
    <message>
        <source>Brightness: this display&apos;s backlight cannot be controlled here (an external monitor, or a virtual machine), so the brightness keys stay with the desktop.</source>
        <translation>Brillo: la retroiluminación de esta pantalla no se puede controlar aquí (un monitor externo o una máquina virtual), así que las teclas de brillo siguen en manos del escritorio.</translation>
    </message>
    <message>
        <source>Battery and Bluetooth need the system bus (D-Bus), which this session does not have. Start Tindra in an ordinary desktop session to see them.</source>
        <translation>La batería y el Bluetooth necesitan el bus del sistema (D-Bus), que esta sesión no tiene. Abre Tindra en una sesión de escritorio normal para verlos.</translation>
    </message>
    <message>
        <source>Battery: its level, and a notice when you plug in, unplug or run low.</source>
        <translation>Batería: su nivel y un aviso al enchufar, desenchufar o cuando queda poca.</translation>
    </message>
    <message>
        <source>Battery: UPower does not answer, so no battery is shown. Install or start UPower (the upower package).</source>
        <translation>Batería: UPower no responde, así que no se muestra ninguna batería. Instala o inicia UPower (el paquete upower).</translation>
    </message>
    <message>
        <source>Bluetooth: the batteries of your connected headphones and other accessories.</source>
        <translation>Bluetooth: las baterías de tus auriculares y otros accesorios conectados.</translation>
    </message>
    <message>
        <source>Bluetooth: BlueZ does not answer, so no accessories are shown. Turn Bluetooth on, or install BlueZ (the bluez package).</source>
        <translation>Bluetooth: BlueZ no responde, así que no se muestra ningún accesorio. Activa el Bluetooth o instala BlueZ (el paquete bluez).</translation>
    </message>
    <message>
        <source>Calendar: off. Turn it on in Settings… and add your calendars (.ics files or web addresses).</source>
        <translation>Calendario: desactivado. Actívalo en Ajustes… y añade tus calendarios (archivos .ics o direcciones web).</translation>
    </message>
    <message>
        <source>Calendar: your next meeting with its Join button, and today&apos;s agenda.</source>
        <translation>Calendario: tu próxima reunión con su botón Unirse y la agenda de hoy.</translation>
    </message>
    <message>
        <source>Calendar: nothing to show yet. Add your calendars (.ics files or web addresses) in Settings…, which says of each whether it could be read.</source>
        <translation>Calendario: aún no hay nada que mostrar. Añade tus calendarios (archivos .ics o direcciones web) en Ajustes…, que indica de cada uno si se pudo leer.</translation>
    </message>
    <message>
        <source>Weather: off. Turn it on in Settings… to see the forecast from MET Norway.</source>
        <translation>Tiempo: desactivado. Actívalo en Ajustes… para ver el pronóstico de MET Norway.</translation>
    </message>
    <message>
        <source>Weather: the forecast for where you are, from MET Norway.</source>
        <translation>Tiempo: el pronóstico para donde estás, de MET Norway.</translation>
    </message>
    <message>
        <source>Weather: no forecast yet. Settings… says why, and lets you choose your place.</source>
        <translation>Tiempo: aún no hay pronóstico. Ajustes… dice por qué y te deja elegir tu lugar.</translation>
    </message>
    <message>
        <source>Do not disturb: shown while it is on.</source>
        <translation>No molestar: se muestra mientras está activado.</translation>
    </message>
    <message>
        <source>Do not disturb: no notification server answers, so whether it is on is unknown until one starts.</source>
        <translation>No molestar: ningún servidor de notificaciones responde, así que no se sabe si está activado hasta que se inicie uno.</translation>
    </message>
</context>
<context>
    <name>PinnedSectionsEditor</name>
    <message>
        <source>Calendar</source>
        <translation>Calendario</translation>
    </message>
    <message>
        <source>File Tray</source>
        <translation>Bandeja de archivos</translation>
    </message>
    <message>
        <source>Now Playing</source>
        <translation>En reproducción</translation>
    </message>
    <message>
        <source>Batteries</source>
        <translation>Baterías</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Tiempo</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Clear</source>
        <translation>Despejado</translation>
    </message>
    <message>
        <source>Fair</source>
        <translation>Poco nuboso</translation>
    </message>
    <message>
        <source>Partly cloudy</source>
        <translation>Parcialmente nublado</translation>
    </message>
    <message>
        <source>Cloudy</source>
        <translation>Nublado</translation>
    </message>
    <message>
        <source>Fog</source>
        <translation>Niebla</translation>
    </message>
    <message>
        <source>Light rain</source>
        <translation>Lluvia débil</translation>
    </message>
    <message>
        <source>Rain</source>
        <translation>Lluvia</translation>
    </message>
    <message>
        <source>Heavy rain</source>
        <translation>Lluvia fuerte</translation>
    </message>
    <message>
        <source>Rain showers</source>
        <translation>Chubascos</translation>
    </message>
    <message>
        <source>Thunderstorm</source>
        <translation>Tormenta</translation>
    </message>
    <message>
        <source>Sleet</source>
        <translation>Aguanieve</translation>
    </message>
    <message>
        <source>Snow</source>
        <translation>Nieve</translation>
    </message>
    <message>
        <source>%1 % chance of precipitation</source>
        <translation>%1 % de probabilidad de precipitación</translation>
    </message>
    <message>
        <source>%1 mm in the next %2 h</source>
        <translation>%1 mm en las próximas %2 h</translation>
    </message>
    <message>
        <source>No precipitation in the next %1 h</source>
        <translation>Sin precipitación en las próximas %1 h</translation>
    </message>
    <message>
        <source>Sunrise %1</source>
        <translation>Amanecer %1</translation>
    </message>
    <message>
        <source>Sunset %1</source>
        <translation>Puesta de sol %1</translation>
    </message>
    <message>
        <source>Midnight sun</source>
        <translation>Sol de medianoche</translation>
    </message>
    <message>
        <source>Polar night</source>
        <translation>Noche polar</translation>
    </message>
    <message>
        <source>Travel times are unavailable: no routing service is available on this system.</source>
        <translation>Los tiempos de viaje no están disponibles: no hay ningún servicio de rutas en este sistema.</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Notch</source>
        <translation>Muesca</translation>
    </message>
    <message>
        <source>Now Playing</source>
        <translation>En reproducción</translation>
    </message>
    <message>
        <source>Indicator</source>
        <translation>Indicador</translation>
    </message>
    <message>
        <source>Battery and Accessories</source>
        <translation>Batería y accesorios</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendario</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Tiempo</translation>
    </message>
    <message>
        <source>Focus and Banners</source>
        <translation>Concentración y avisos</translation>
    </message>
    <message>
        <source>File Tray</source>
        <translation>Bandeja de archivos</translation>
    </message>
    <message>
        <source>Diagnostics</source>
        <translation>Diagnóstico</translation>
    </message>
</context>
<context>
    <name>SettingsKeys</name>
    <message>
        <source>The first-run introduction has been seen.</source>
        <translation>La introducción del primer inicio ya se vio.</translation>
    </message>
    <message>
        <source>Play a sound with notices that have one.</source>
        <translation>Reproducir el sonido de los avisos que lo tengan.</translation>
    </message>
    <message>
        <source>Show Tindra in the tray.</source>
        <translation>Mostrar Tindra en la bandeja del sistema.</translation>
    </message>
    <message>
        <source>How long notices stay: short, medium or long.</source>
        <translation>Cuánto duran los avisos: poco, medio o mucho.</translation>
    </message>
    <message>
        <source>Offer test versions when updating.</source>
        <translation>Ofrecer versiones de prueba al actualizar.</translation>
    </message>
    <message>
        <source>Draw a notch on displays that have none.</source>
        <translation>Dibujar una muesca en las pantallas que no la tienen.</translation>
    </message>
    <message>
        <source>Which displays show the notch: all, main, built-in or one by name.</source>
        <translation>Qué pantallas muestran la muesca: todas, la principal, la integrada o una por nombre.</translation>
    </message>
    <message>
        <source>Width in points of a drawn notch.</source>
        <translation>Anchura en puntos de una muesca dibujada.</translation>
    </message>
    <message>
        <source>A drawn notch takes the height of the top panel.</source>
        <translation>Una muesca dibujada toma la altura del panel superior.</translation>
    </message>
    <message>
        <source>Height in points of a drawn notch when it does not match the panel.</source>
        <translation>Altura en puntos de una muesca dibujada que no sigue al panel.</translation>
    </message>
    <message>
        <source>How the notch opens: on hover, on click, or pressed and held.</source>
        <translation>Cómo se abre la muesca: al pasar el puntero, al hacer clic o al mantener pulsado.</translation>
    </message>
    <message>
        <source>Seconds the pointer rests on the notch before it opens.</source>
        <translation>Segundos que el puntero descansa sobre la muesca antes de que se abra.</translation>
    </message>
    <message>
        <source>Seconds of pressing that open the notch in press-and-hold mode.</source>
        <translation>Segundos de pulsación que abren la muesca en el modo mantener pulsado.</translation>
    </message>
    <message>
        <source>Panel sections pinned in the opened notch, in order (&quot;media&quot;, &quot;calendar&quot;, &quot;weather&quot;, &quot;batteries&quot;, &quot;fileTray&quot;); empty shows every section with something to show.</source>
        <translation>Secciones fijadas en la muesca abierta, en orden (&quot;media&quot;, &quot;calendar&quot;, &quot;weather&quot;, &quot;batteries&quot;, &quot;fileTray&quot;); vacío muestra todas las secciones que tengan algo que mostrar.</translation>
    </message>
    <message>
        <source>Where the playing track comes from: automatic, or only the player scripts, which exist on a Mac alone (on the desktop that shows nothing).</source>
        <translation>De dónde viene la pista en reproducción: automático, o solo los scripts de reproductor, que solo existen en Mac (en el escritorio no muestra nada).</translation>
    </message>
    <message>
        <source>The system version on which the basic-mode notice was last shown.</source>
        <translation>La versión del sistema en la que se mostró por última vez el aviso del modo básico.</translation>
    </message>
    <message>
        <source>Look covers up online when the player gives none.</source>
        <translation>Buscar portadas en internet cuando el reproductor no da ninguna.</translation>
    </message>
    <message>
        <source>How long a paused track stays shown: short, long or until resumed.</source>
        <translation>Cuánto se muestra una pista en pausa: poco, mucho o hasta reanudarla.</translation>
    </message>
    <message>
        <source>The progress bar in the standard colour or the cover&apos;s.</source>
        <translation>La barra de progreso en el color estándar o en el de la portada.</translation>
    </message>
    <message>
        <source>Show volume changes in the notch. Option-Shift with a volume or brightness key changes it in smaller steps.</source>
        <translation>Mostrar los cambios de volumen en la muesca. Opción-Mayús con una tecla de volumen o brillo cambia en pasos más pequeños.</translation>
    </message>
    <message>
        <source>Show brightness changes in the notch. Keys go to the system when the output or display cannot be controlled, or when BetterDisplay handles it.</source>
        <translation>Mostrar los cambios de brillo en la muesca. Las teclas van al sistema cuando la salida o la pantalla no se pueden controlar, o cuando BetterDisplay se encarga.</translation>
    </message>
    <message>
        <source>How the level is drawn: a continuous bar, segments or a ring.</source>
        <translation>Cómo se dibuja el nivel: barra continua, segmentos o anillo.</translation>
    </message>
    <message>
        <source>The level&apos;s colour: white, by level, or the accent colour.</source>
        <translation>Color del nivel: blanco, según el nivel o el color de acento.</translation>
    </message>
    <message>
        <source>Seconds the level stays shown after a change.</source>
        <translation>Segundos que el nivel sigue visible tras un cambio.</translation>
    </message>
    <message>
        <source>Play the volume feedback sound where the system does not. Hold Shift while pressing a volume key to do the opposite.</source>
        <translation>Reproducir el sonido de respuesta del volumen donde el sistema no lo hace. Mantén Mayús al pulsar una tecla de volumen para hacer lo contrario.</translation>
    </message>
    <message>
        <source>Tell when power is connected.</source>
        <translation>Avisar cuando se conecta la corriente.</translation>
    </message>
    <message>
        <source>Tell when power is disconnected.</source>
        <translation>Avisar cuando se desconecta la corriente.</translation>
    </message>
    <message>
        <source>Warn when the battery runs low.</source>
        <translation>Advertir cuando la batería esté baja.</translation>
    </message>
    <message>
        <source>Percentage at which the battery counts as low.</source>
        <translation>Porcentaje a partir del cual la batería se considera baja.</translation>
    </message>
    <message>
        <source>Tell when a Bluetooth accessory connects.</source>
        <translation>Avisar cuando se conecta un accesorio Bluetooth.</translation>
    </message>
    <message>
        <source>Tell when files arrive from nearby devices.</source>
        <translation>Avisar cuando lleguen archivos de dispositivos cercanos.</translation>
    </message>
    <message>
        <source>Warn when an accessory&apos;s battery runs low.</source>
        <translation>Advertir cuando la batería de un accesorio esté baja.</translation>
    </message>
    <message>
        <source>Percentage at which an accessory&apos;s battery counts as low.</source>
        <translation>Porcentaje a partir del cual la batería de un accesorio se considera baja.</translation>
    </message>
    <message>
        <source>Tell when sound moves to an accessory.</source>
        <translation>Avisar cuando el sonido pase a un accesorio.</translation>
    </message>
    <message>
        <source>Tell when a Bluetooth accessory disconnects.</source>
        <translation>Avisar cuando se desconecta un accesorio Bluetooth.</translation>
    </message>
    <message>
        <source>Accessory batteries as a percentage or a ring.</source>
        <translation>Baterías de accesorios como porcentaje o anillo.</translation>
    </message>
    <message>
        <source>Show the next meeting.</source>
        <translation>Mostrar la próxima reunión.</translation>
    </message>
    <message>
        <source>Minutes before a meeting that it appears.</source>
        <translation>Minutos de antelación con que aparece una reunión.</translation>
    </message>
    <message>
        <source>Calendars whose events are never shown.</source>
        <translation>Calendarios cuyos eventos nunca se muestran.</translation>
    </message>
    <message>
        <source>The meeting&apos;s time as a countdown, its start time, or both.</source>
        <translation>La hora de la reunión como cuenta atrás, hora de inicio o ambas.</translation>
    </message>
    <message>
        <source>Hide meeting titles.</source>
        <translation>Ocultar los títulos de las reuniones.</translation>
    </message>
    <message>
        <source>Play a sound when a meeting is about to start.</source>
        <translation>Reproducir un sonido cuando una reunión esté a punto de empezar.</translation>
    </message>
    <message>
        <source>Meetings whose start sound has played, so it plays once.</source>
        <translation>Reuniones cuyo sonido de inicio ya sonó, para que suene una sola vez.</translation>
    </message>
    <message>
        <source>Show reminders that are due.</source>
        <translation>Mostrar los recordatorios pendientes.</translation>
    </message>
    <message>
        <source>Count travel time before meetings with a place.</source>
        <translation>Tener en cuenta el tiempo de viaje antes de reuniones con lugar.</translation>
    </message>
    <message>
        <source>How you travel to meetings: by car, on foot or by transit.</source>
        <translation>Cómo vas a las reuniones: en coche, a pie o en transporte público.</translation>
    </message>
    <message>
        <source>Minutes added to the travel time.</source>
        <translation>Minutos añadidos al tiempo de viaje.</translation>
    </message>
    <message>
        <source>Show the weather.</source>
        <translation>Mostrar el tiempo.</translation>
    </message>
    <message>
        <source>Show when a Focus mode is on.</source>
        <translation>Mostrar cuando un modo de concentración esté activo.</translation>
    </message>
    <message>
        <source>Keep a Focus mark on the notch while the Focus lasts.</source>
        <translation>Mantener una marca de concentración en la muesca mientras dure.</translation>
    </message>
    <message>
        <source>The Focus filter&apos;s last state, as written by the system.</source>
        <translation>El último estado del filtro de concentración, tal como lo escribió el sistema.</translation>
    </message>
    <message>
        <source>Swipes on the notch control playback.</source>
        <translation>Deslizar sobre la muesca controla la reproducción.</translation>
    </message>
    <message>
        <source>Sideways swipes change the track.</source>
        <translation>Deslizar a los lados cambia de pista.</translation>
    </message>
    <message>
        <source>Give feedback when a swipe is recognised.</source>
        <translation>Dar una respuesta cuando se reconozca un deslizamiento.</translation>
    </message>
    <message>
        <source>Dragging with the mouse works like swiping.</source>
        <translation>Arrastrar con el ratón funciona como deslizar.</translation>
    </message>
    <message>
        <source>Hide the notch over full-screen windows.</source>
        <translation>Ocultar la muesca sobre ventanas a pantalla completa.</translation>
    </message>
    <message>
        <source>Hide the notch while a game runs.</source>
        <translation>Ocultar la muesca mientras se ejecuta un juego.</translation>
    </message>
    <message>
        <source>Applications treated as games, one per line.</source>
        <translation>Aplicaciones tratadas como juegos, una por línea.</translation>
    </message>
    <message>
        <source>Hide the notch while windows are being arranged.</source>
        <translation>Ocultar la muesca mientras se organizan las ventanas.</translation>
    </message>
    <message>
        <source>Keep the notch out of screenshots and recordings.</source>
        <translation>Dejar la muesca fuera de capturas y grabaciones.</translation>
    </message>
    <message>
        <source>A translucent opened notch instead of black.</source>
        <translation>Muesca abierta translúcida en lugar de negra.</translation>
    </message>
    <message>
        <source>The opened notch in black and white or in colour.</source>
        <translation>La muesca abierta en blanco y negro o en color.</translation>
    </message>
    <message>
        <source>A soft glow around the opened notch.</source>
        <translation>Un brillo suave alrededor de la muesca abierta.</translation>
    </message>
    <message>
        <source>A brief flash when the notch opens.</source>
        <translation>Un breve destello al abrirse la muesca.</translation>
    </message>
    <message>
        <source>Colourful bars in the live spectrum.</source>
        <translation>Barras de colores en el espectro en directo.</translation>
    </message>
    <message>
        <source>A thin coloured rim on the closed notch.</source>
        <translation>Un borde fino de color en la muesca cerrada.</translation>
    </message>
    <message>
        <source>Show a live spectrum of the playing audio.</source>
        <translation>Mostrar un espectro en directo del audio en reproducción.</translation>
    </message>
    <message>
        <source>Show widgets on the lock screen (experimental).</source>
        <translation>Mostrar widgets en la pantalla de bloqueo (experimental).</translation>
    </message>
    <message>
        <source>The lock-screen widgets&apos; background: clear, light frost or frosted.</source>
        <translation>Fondo de los widgets de la pantalla de bloqueo: transparente, algo esmerilado o esmerilado.</translation>
    </message>
    <message>
        <source>Vertical offset in points of the lock-screen widgets.</source>
        <translation>Desplazamiento vertical en puntos de los widgets de la pantalla de bloqueo.</translation>
    </message>
    <message>
        <source>Keep the notch on the lock screen.</source>
        <translation>Mantener la muesca en la pantalla de bloqueo.</translation>
    </message>
    <message>
        <source>The last lock-screen notice, kept to show it once.</source>
        <translation>El último aviso de la pantalla de bloqueo, guardado para mostrarlo una sola vez.</translation>
    </message>
    <message>
        <source>The last lock-screen notch notice, kept to show it once.</source>
        <translation>El último aviso de la muesca en la pantalla de bloqueo, guardado para mostrarlo una sola vez.</translation>
    </message>
    <message>
        <source>Show keyboard backlight changes (experimental).</source>
        <translation>Mostrar los cambios de la retroiluminación del teclado (experimental).</translation>
    </message>
    <message>
        <source>The system version on which no keyboard backlight was found.</source>
        <translation>La versión del sistema en la que no se encontró retroiluminación del teclado.</translation>
    </message>
    <message>
        <source>Show incoming calls (experimental).</source>
        <translation>Mostrar las llamadas entrantes (experimental).</translation>
    </message>
    <message>
        <source>Show incoming messages (experimental).</source>
        <translation>Mostrar los mensajes entrantes (experimental).</translation>
    </message>
    <message>
        <source>Keep dropped files in a tray (experimental).</source>
        <translation>Guardar los archivos soltados en una bandeja (experimental).</translation>
    </message>
    <message>
        <source>The tray keeps links to dropped files or copies of them.</source>
        <translation>La bandeja guarda enlaces a los archivos soltados o copias de ellos.</translation>
    </message>
    <message>
        <source>Where the playing track comes from: automatic (the desktop&apos;s players), or only the player scripts of a Mac, which show nothing here.</source>
        <translation>De dónde viene la pista en reproducción: automático (los reproductores del escritorio), o solo los scripts de reproductor de un Mac, que aquí no muestran nada.</translation>
    </message>
    <message>
        <source>Show volume changes in the notch. Alt-Shift with a volume or brightness key changes it in smaller steps.</source>
        <translation>Mostrar los cambios de volumen en la muesca. Alt+Mayús con una tecla de volumen o brillo cambia en pasos más pequeños.</translation>
    </message>
    <message>
        <source>Show brightness changes in the notch. Keys go to the desktop when the output or display cannot be controlled.</source>
        <translation>Mostrar los cambios de brillo en la muesca. Las teclas van al escritorio cuando la salida o la pantalla no se pueden controlar.</translation>
    </message>
    <message>
        <source>The Focus filter&apos;s last state, as `tindra focus` wrote it.</source>
        <translation>El último estado del filtro de concentración, tal como lo escribió `tindra focus`.</translation>
    </message>
    <message>
        <source>Sections pinned in the opened notch: tick them and drag them into order. With none ticked, every section with something to show appears.</source>
        <translation>Secciones fijadas en la muesca abierta: márcalas y arrástralas para ordenarlas. Si no hay ninguna marcada, aparece cada sección que tenga algo que mostrar.</translation>
    </message>
    <message>
        <source>Play the volume feedback sound on a desktop without a setting of its own for it (GNOME&apos;s event sounds and Plasma&apos;s audio feedback decide there). Hold Shift while pressing a volume key to do the opposite.</source>
        <translation>Reproducir el sonido del volumen en escritorios sin ajuste propio para ello (en GNOME deciden los sonidos de eventos y en Plasma la respuesta sonora). Mantén Mayús al pulsar una tecla de volumen para hacer lo contrario.</translation>
    </message>
</context>
<context>
    <name>SettingsNotes</name>
    <message>
        <source>No window can be drawn above the screen locker of a Linux desktop, so there are no lock-screen widgets here; the notch hides while the screen is locked.</source>
        <translation>Ninguna ventana puede dibujarse sobre el bloqueo de pantalla de un escritorio Linux, así que aquí no hay widgets en la pantalla de bloqueo; la muesca se oculta mientras la pantalla está bloqueada.</translation>
    </message>
    <message>
        <source>If this computer ignores Tindra&apos;s changes, the keys go back to the desktop and the notch only shows the level.</source>
        <translation>Si este equipo ignora los cambios de Tindra, las teclas vuelven al escritorio y la muesca solo muestra el nivel.</translation>
    </message>
    <message>
        <source>The warning appears once when the battery reaches this level, and again only after charging.</source>
        <translation>La advertencia aparece una vez cuando la batería llega a este nivel, y de nuevo solo después de cargarla.</translation>
    </message>
    <message>
        <source>Up to 20 items. Copies take up to 2 GB in total.</source>
        <translation>Hasta 20 elementos. Las copias ocupan como máximo 2 GB en total.</translation>
    </message>
    <message>
        <source>Links: Tindra remembers where they are; nothing is copied. Copies: Tindra keeps a copy, so they stay usable if the originals go; removing it from the tray deletes the copy, never the original.</source>
        <translation>Enlaces: Tindra recuerda dónde están; no se copia nada. Copias: Tindra guarda una copia, que sigue sirviendo si los originales desaparecen; quitarla de la bandeja borra la copia, nunca el original.</translation>
    </message>
    <message>
        <source>A ringing call shows only that it rings; answer it on the desktop&apos;s notification. Messages and missed calls show who and what, with a button that opens the application that sent them. Nothing is stored or sent, and nothing shows while do-not-disturb is on.</source>
        <translation>Una llamada entrante solo muestra que está sonando; respóndela en la notificación del escritorio. Los mensajes y las llamadas perdidas muestran quién y qué, con un botón que abre la aplicación que los envió. No se guarda ni se envía nada, y no se muestra nada mientras «No molestar» está activo.</translation>
    </message>
    <message>
        <source>Scroll on the notch with two fingers or the mouse wheel, as if moving a page: down opens it, up closes it, sideways skips tracks.</source>
        <translation>Desplázate sobre la muesca con dos dedos o la rueda del ratón, como si movieras una página: hacia abajo la abre, hacia arriba la cierra, a los lados cambia de pista.</translation>
    </message>
    <message>
        <source>The desktop shows through where the window manager draws windows translucent; elsewhere the glass is dark grey.</source>
        <translation>El escritorio se ve a través donde el gestor de ventanas dibuja ventanas translúcidas; en otro caso, el cristal es gris oscuro.</translation>
    </message>
    <message>
        <source>Drag the closed notch down to open it, or sideways to skip tracks; drag the opened one up from an empty spot to close it.</source>
        <translation>Arrastra la muesca cerrada hacia abajo para abrirla, o hacia un lado para cambiar de pista; arrastra la abierta hacia arriba desde un hueco vacío para cerrarla.</translation>
    </message>
</context>
<context>
    <name>SettingsValues</name>
    <message>
        <source>monochrome</source>
        <translation>monocromo</translation>
    </message>
    <message>
        <source>colorful</source>
        <translation>en color</translation>
    </message>
    <message>
        <source>hover</source>
        <translation>al pasar el puntero</translation>
    </message>
    <message>
        <source>click</source>
        <translation>al hacer clic</translation>
    </message>
    <message>
        <source>press and hold</source>
        <translation>mantener pulsado</translation>
    </message>
    <message>
        <source>short</source>
        <translation>poco</translation>
    </message>
    <message>
        <source>medium</source>
        <translation>medio</translation>
    </message>
    <message>
        <source>long</source>
        <translation>mucho</translation>
    </message>
    <message>
        <source>white</source>
        <translation>blanco</translation>
    </message>
    <message>
        <source>countdown</source>
        <translation>cuenta atrás</translation>
    </message>
    <message>
        <source>start time</source>
        <translation>hora de inicio</translation>
    </message>
    <message>
        <source>both</source>
        <translation>ambos</translation>
    </message>
    <message>
        <source>automobile</source>
        <translation>coche</translation>
    </message>
    <message>
        <source>walking</source>
        <translation>a pie</translation>
    </message>
    <message>
        <source>transit</source>
        <translation>transporte público</translation>
    </message>
    <message>
        <source>link</source>
        <translation>enlaces</translation>
    </message>
    <message>
        <source>copy</source>
        <translation>copias</translation>
    </message>
    <message>
        <source>continuous</source>
        <translation>continuo</translation>
    </message>
    <message>
        <source>segmented</source>
        <translation>segmentado</translation>
    </message>
    <message>
        <source>ring</source>
        <translation>anillo</translation>
    </message>
    <message>
        <source>level</source>
        <translation>según el nivel</translation>
    </message>
    <message>
        <source>accent</source>
        <translation>color de acento</translation>
    </message>
    <message>
        <source>clear</source>
        <translation>transparente</translation>
    </message>
    <message>
        <source>light frost</source>
        <translation>algo esmerilado</translation>
    </message>
    <message>
        <source>frosted</source>
        <translation>esmerilado</translation>
    </message>
    <message>
        <source>until resumed</source>
        <translation>hasta reanudar</translation>
    </message>
    <message>
        <source>standard</source>
        <translation>estándar</translation>
    </message>
    <message>
        <source>artwork</source>
        <translation>portada</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>automático</translation>
    </message>
    <message>
        <source>AppleScript only</source>
        <translation>solo AppleScript</translation>
    </message>
    <message>
        <source>percentage</source>
        <translation>porcentaje</translation>
    </message>
</context>
<context>
    <name>WeatherPanel</name>
    <message>
        <source>Weather</source>
        <translation>Tiempo</translation>
    </message>
</context>
<context>
    <name>tindra::AdapterCheck</name>
    <message>
        <source>nothing playing</source>
        <translation>no se reproduce nada</translation>
    </message>
    <message>
        <source>Stream gave %1 update(s) and %2 unreadable line(s) in %3 s: %4.</source>
        <translation>El flujo dio %1 actualización(es) y %2 línea(s) ilegible(s) en %3 s: %4.</translation>
    </message>
    <message>
        <source>Stream skipped because the self-test failed.</source>
        <translation>Flujo omitido porque falló la autoprueba.</translation>
    </message>
    <message>
        <source>Could not launch stream: %1</source>
        <translation>No se pudo iniciar el flujo: %1</translation>
    </message>
</context>
<context>
    <name>tindra::AdapterNowPlayingSource</name>
    <message>
        <source>following the players through the adapter&apos;s stream</source>
        <translation>sigue a los reproductores mediante el flujo del adaptador</translation>
    </message>
    <message>
        <source>the adapter&apos;s stream keeps failing: testing the adapter again</source>
        <translation>el flujo del adaptador sigue fallando: se vuelve a probar el adaptador</translation>
    </message>
</context>
<context>
    <name>tindra::AdapterProbe</name>
    <message>
        <source>The adapter&apos;s self-test did not finish within %1 s.</source>
        <translation>La autoprueba del adaptador no terminó en %1 s.</translation>
    </message>
    <message>
        <source>Could not launch %1: %2</source>
        <translation>No se pudo iniciar %1: %2</translation>
    </message>
    <message>
        <source>The adapter&apos;s self-test passed.</source>
        <translation>La autoprueba del adaptador se superó.</translation>
    </message>
    <message>
        <source>The adapter&apos;s self-test failed with exit status %1.</source>
        <translation>La autoprueba del adaptador falló con el estado de salida %1.</translation>
    </message>
    <message>
        <source>Adapter not bundled; missing: %1 %2</source>
        <translation>Adaptador no incluido; falta: %1 %2</translation>
    </message>
</context>
<context>
    <name>tindra::BannerProvider</name>
    <message>
        <source>Open %1</source>
        <translation>Abrir %1</translation>
    </message>
</context>
<context>
    <name>tindra::BlueZAccessoryBackend</name>
    <message>
        <source>asking BlueZ for the accessories</source>
        <translation>preguntando a BlueZ por los accesorios</translation>
    </message>
    <message>
        <source>BlueZ does not answer (%1): no accessories are shown</source>
        <translation>BlueZ no responde (%1): no se muestran accesorios</translation>
    </message>
    <message>
        <source>BlueZ went away: no accessories are shown until it returns</source>
        <translation>BlueZ desapareció: no se muestran accesorios hasta que vuelva</translation>
    </message>
    <message>
        <source>following BlueZ: %1 Bluetooth devices known</source>
        <translation>siguiendo a BlueZ: %1 dispositivos Bluetooth conocidos</translation>
    </message>
</context>
<context>
    <name>tindra::BusLevelCommandSource</name>
    <message>
        <source>asking the session bus for the name of the level commands</source>
        <translation>pidiendo al bus de sesión el nombre de las órdenes de nivel</translation>
    </message>
    <message>
        <source>`tindra level` commands step the levels (%1 on the session bus)</source>
        <translation>`tindra level` cambia los niveles (%1 en el bus de sesión)</translation>
    </message>
    <message>
        <source>another program holds %1 on the session bus: `tindra level` commands go there</source>
        <translation>otro programa tiene %1 en el bus de sesión: las órdenes `tindra level` van allí</translation>
    </message>
</context>
<context>
    <name>tindra::CalendarFeed</name>
    <message>
        <source>not read yet</source>
        <translation>aún no leído</translation>
    </message>
    <message>
        <source>%1; the last good copy is kept</source>
        <translation>%1; se conserva la última copia válida</translation>
    </message>
    <message numerus="yes">
        <source>%n document(s) could not be read (%1)</source>
        <translation>
            <numerusform>%n documento no se pudo leer (%1)</numerusform>
            <numerusform>%n documentos no se pudieron leer (%1)</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 events in view</source>
        <translation>%1 eventos a la vista</translation>
    </message>
    <message>
        <source>, %1 to-dos</source>
        <translation>, %1 tareas</translation>
    </message>
</context>
<context>
    <name>tindra::CalendarListEditor</name>
    <message>
        <source>A file, a folder, or an https:// or webcal:// address</source>
        <translation>Archivo, carpeta o dirección https:// o webcal://</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Choose File…</source>
        <translation>Elegir archivo…</translation>
    </message>
    <message>
        <source>Add a Calendar</source>
        <translation>Añadir un calendario</translation>
    </message>
    <message>
        <source>iCalendar (*.ics);;All files (*)</source>
        <translation>iCalendar (*.ics);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Your mail addresses, separated by commas</source>
        <translation>Tus direcciones de correo, separadas por comas</translation>
    </message>
    <message>
        <source>Invitations you declined at these addresses are not shown.</source>
        <translation>No se muestran las invitaciones que rechazaste en estas direcciones.</translation>
    </message>
    <message>
        <source>No calendars yet.</source>
        <translation>Aún no hay calendarios.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
</context>
<context>
    <name>tindra::CalendarProvider</name>
    <message>
        <source>the calendar is off in Settings</source>
        <translation>el calendario está desactivado en Ajustes</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Evento</translation>
    </message>
    <message>
        <source>Reminder</source>
        <translation>Recordatorio</translation>
    </message>
</context>
<context>
    <name>tindra::CalendarTexts</name>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 h</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 h %2 min</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Ahora</translation>
    </message>
    <message>
        <source>in %1</source>
        <translation>en %1</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>Quedan %1</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Terminado</translation>
    </message>
    <message>
        <source>Leave in %1</source>
        <translation>Sal en %1</translation>
    </message>
    <message>
        <source>%1 late</source>
        <translation>%1 de retraso</translation>
    </message>
    <message>
        <source>Leave now</source>
        <translation>Sal ahora</translation>
    </message>
    <message>
        <source>All day</source>
        <translation>Todo el día</translation>
    </message>
</context>
<context>
    <name>tindra::DBusNotificationMonitor</name>
    <message>
        <source>calls and messages are off: notifications are not read</source>
        <translation>llamadas y mensajes desactivados: no se leen las notificaciones</translation>
    </message>
    <message>
        <source>the session bus does not let Tindra read notifications (%1): no calls or messages are shown</source>
        <translation>el bus de sesión no deja a Tindra leer las notificaciones (%1): no se muestran llamadas ni mensajes</translation>
    </message>
    <message>
        <source>no notification server runs on the session bus: calls and messages show once one starts</source>
        <translation>no hay servidor de notificaciones en el bus de sesión: las llamadas y los mensajes se mostrarán cuando arranque uno</translation>
    </message>
    <message>
        <source>reading notification banners for calls and messages</source>
        <translation>leyendo los avisos de notificación para llamadas y mensajes</translation>
    </message>
    <message>
        <source>the session bus closed the notification monitor: no calls or messages are shown</source>
        <translation>el bus de sesión cerró la supervisión de notificaciones: no se muestran llamadas ni mensajes</translation>
    </message>
</context>
<context>
    <name>tindra::DiagnosticsWindow</name>
    <message>
        <source>Tindra Diagnostics</source>
        <translation>Diagnóstico de Tindra</translation>
    </message>
    <message>
        <source>Copy report</source>
        <translation>Copiar informe</translation>
    </message>
</context>
<context>
    <name>tindra::DisplayChangeLog</name>
    <message>
        <source>display %1 went away</source>
        <translation>la pantalla %1 ha desaparecido</translation>
    </message>
    <message>
        <source>display %1 is connected</source>
        <translation>la pantalla %1 está conectada</translation>
    </message>
</context>
<context>
    <name>tindra::DisplaySelectionEditor</name>
    <message>
        <source>While the chosen display is not connected, the notch is on the main display.</source>
        <translation>Mientras la pantalla elegida no esté conectada, la muesca está en la pantalla principal.</translation>
    </message>
    <message>
        <source>Every display</source>
        <translation>Todas las pantallas</translation>
    </message>
    <message>
        <source>Main display</source>
        <translation>Pantalla principal</translation>
    </message>
    <message>
        <source>Main display (%1)</source>
        <translation>Pantalla principal (%1)</translation>
    </message>
    <message>
        <source>%1 (not connected)</source>
        <translation>%1 (no conectada)</translation>
    </message>
    <message numerus="yes">
        <source>%1 (%n displays)</source>
        <translation>
            <numerusform>%1 (%n pantalla)</numerusform>
            <numerusform>%1 (%n pantallas)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tindra::EdsCalendarFeed</name>
    <message>
        <source>Evolution Data Server&apos;s calendar factory does not answer (%1)</source>
        <translation>la fábrica de calendarios de Evolution Data Server no responde (%1)</translation>
    </message>
    <message>
        <source>Evolution Data Server&apos;s calendar factory went away: the events last read are kept until it returns</source>
        <translation>la fábrica de calendarios de Evolution Data Server desapareció: se conservan los últimos eventos leídos hasta que vuelva</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a calendar and its account</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Evolution Data Server, source %1</source>
        <translation>Evolution Data Server, origen %1</translation>
    </message>
    <message>
        <source>Evolution Data Server cannot open the calendar: %1</source>
        <translation>Evolution Data Server no puede abrir el calendario: %1</translation>
    </message>
    <message>
        <source>the calendar&apos;s backend went away: the events last read are kept until it is open again</source>
        <translation>el motor del calendario desapareció: se conservan los últimos eventos leídos hasta que vuelva a abrirse</translation>
    </message>
    <message>
        <source>Evolution Data Server gives no view of the calendar: %1</source>
        <translation>Evolution Data Server no da ninguna vista del calendario: %1</translation>
    </message>
    <message>
        <source>Evolution Data Server&apos;s view of the calendar does not start: %1</source>
        <translation>la vista del calendario de Evolution Data Server no se inicia: %1</translation>
    </message>
    <message>
        <source>Evolution Data Server could not list the calendar: %1</source>
        <translation>Evolution Data Server no pudo listar el calendario: %1</translation>
    </message>
</context>
<context>
    <name>tindra::EdsSourceRegistry</name>
    <message>
        <source>asking Evolution Data Server for its calendars</source>
        <translation>pidiendo sus calendarios a Evolution Data Server</translation>
    </message>
    <message>
        <source>Evolution Data Server is not running (%1): its calendars and online accounts are not read</source>
        <translation>Evolution Data Server no se está ejecutando (%1): sus calendarios y cuentas en línea no se leen</translation>
    </message>
    <message>
        <source>Evolution Data Server&apos;s source registry went away: its calendars are kept as they were until it returns</source>
        <translation>el registro de orígenes de Evolution Data Server desapareció: sus calendarios se quedan como estaban hasta que vuelva</translation>
    </message>
    <message numerus="yes">
        <source>Evolution Data Server gives %n calendar(s)</source>
        <translation>
            <numerusform>Evolution Data Server da %n calendario</numerusform>
            <numerusform>Evolution Data Server da %n calendarios</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n without an account</source>
        <translation>
            <numerusform>%n sin cuenta</numerusform>
            <numerusform>%n sin cuenta</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n from %1</source>
        <translation>
            <numerusform>%n de %1</numerusform>
            <numerusform>%n de %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tindra::FakeAccessoryBackend</name>
    <message>
        <source>invented accessories (TINDRA_FAKE asks for them)</source>
        <translation>accesorios ficticios (los pide TINDRA_FAKE)</translation>
    </message>
</context>
<context>
    <name>tindra::FakeBacklightBackend</name>
    <message>
        <source>invented readings (TINDRA_FAKE asks for them)</source>
        <translation>lecturas ficticias (las pide TINDRA_FAKE)</translation>
    </message>
</context>
<context>
    <name>tindra::FakeBatteryBackend</name>
    <message>
        <source>invented readings (TINDRA_FAKE asks for them)</source>
        <translation>lecturas ficticias (las pide TINDRA_FAKE)</translation>
    </message>
</context>
<context>
    <name>tindra::FakeCalendarBackend</name>
    <message>
        <source>invented</source>
        <translation>ficticio</translation>
    </message>
    <message>
        <source>The invented calendars take no additions.</source>
        <translation>A los calendarios ficticios no se les puede añadir nada.</translation>
    </message>
</context>
<context>
    <name>tindra::FakeFileTrayBackend</name>
    <message>
        <source>invented files (TINDRA_FAKE asks for them)</source>
        <translation>archivos ficticios (los pide TINDRA_FAKE)</translation>
    </message>
</context>
<context>
    <name>tindra::FakeFocusStatusSource</name>
    <message>
        <source>invented do-not-disturb (TINDRA_FAKE)</source>
        <translation>«No molestar» ficticio (TINDRA_FAKE)</translation>
    </message>
</context>
<context>
    <name>tindra::FakeLocationSource</name>
    <message>
        <source>an invented position (TINDRA_FAKE)</source>
        <translation>una posición ficticia (TINDRA_FAKE)</translation>
    </message>
</context>
<context>
    <name>tindra::FakeLockStateSource</name>
    <message>
        <source>invented screen lock (TINDRA_FAKE)</source>
        <translation>bloqueo de pantalla ficticio (TINDRA_FAKE)</translation>
    </message>
</context>
<context>
    <name>tindra::FakeNotificationSource</name>
    <message>
        <source>invented notifications (TINDRA_FAKE)</source>
        <translation>notificaciones ficticias (TINDRA_FAKE)</translation>
    </message>
</context>
<context>
    <name>tindra::FakeNowPlayingSource</name>
    <message>
        <source>an invented track (TINDRA_FAKE asks for it)</source>
        <translation>una pista ficticia (la pide TINDRA_FAKE)</translation>
    </message>
</context>
<context>
    <name>tindra::FakeVisibilitySource</name>
    <message>
        <source>an invented window in front (TINDRA_FAKE)</source>
        <translation>una ventana ficticia en primer plano (TINDRA_FAKE)</translation>
    </message>
</context>
<context>
    <name>tindra::FakeVolumeBackend</name>
    <message>
        <source>invented readings (TINDRA_FAKE asks for them)</source>
        <translation>lecturas ficticias (las pide TINDRA_FAKE)</translation>
    </message>
</context>
<context>
    <name>tindra::FakeVolumeSoundPreference</name>
    <message>
        <source>an invented volume sound setting (TINDRA_FAKE asks for it)</source>
        <translation>un ajuste inventado para el sonido del volumen (TINDRA_FAKE lo pide)</translation>
    </message>
</context>
<context>
    <name>tindra::FileTrayProvider</name>
    <message>
        <source>keeping the file tray in %1</source>
        <translation>guardando la bandeja de archivos en %1</translation>
    </message>
    <message>
        <source>some items of the saved file tray could not be read and were left out; the list as it was is kept as %1</source>
        <translation>algunos elementos de la bandeja de archivos guardada no se pudieron leer y se omitieron; la lista original se conserva como %1</translation>
    </message>
    <message>
        <source>the saved file tray %1; it is kept as %2 and the tray starts empty</source>
        <translation>la bandeja de archivos guardada %1; se conserva como %2 y la bandeja empieza vacía</translation>
    </message>
    <message>
        <source>was written by a newer Tindra</source>
        <translation>fue escrita por una versión más reciente de Tindra</translation>
    </message>
    <message>
        <source>could not be read</source>
        <translation>no se pudo leer</translation>
    </message>
    <message>
        <source>Only files and folders can go in the tray.</source>
        <translation>Solo se pueden poner archivos y carpetas en la bandeja.</translation>
    </message>
    <message>
        <source>Already in the tray:</source>
        <translation>Ya en la bandeja:</translation>
    </message>
    <message>
        <source>The tray is full:</source>
        <translation>La bandeja está llena:</translation>
    </message>
    <message>
        <source>not added. Remove some items first.</source>
        <translation>— no se añadió. Quita antes algunos elementos.</translation>
    </message>
    <message>
        <source>Only files and folders can go in the tray:</source>
        <translation>Solo se pueden poner archivos y carpetas en la bandeja:</translation>
    </message>
    <message>
        <source>Copies in the tray are limited to 2 GB:</source>
        <translation>Las copias en la bandeja están limitadas a 2 GB:</translation>
    </message>
    <message>
        <source>could not be copied into the tray.</source>
        <translation>— no se pudo copiar en la bandeja.</translation>
    </message>
    <message>
        <source>The copy into the tray was stopped.</source>
        <translation>Se detuvo la copia en la bandeja.</translation>
    </message>
    <message>
        <source>the file tray is not saved: an unreadable list could not be moved aside</source>
        <translation>la bandeja de archivos no se guarda: no se pudo apartar una lista ilegible</translation>
    </message>
    <message numerus="yes">
        <source>Copying %n item(s) into the tray…</source>
        <translation>
            <numerusform>Copiando %n elemento en la bandeja…</numerusform>
            <numerusform>Copiando %n elementos en la bandeja…</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tindra::FocusViewModel</name>
    <message>
        <source>Focus</source>
        <translation>Concentración</translation>
    </message>
</context>
<context>
    <name>tindra::GSettingsFocusSource</name>
    <message>
        <source>reading do-not-disturb from GNOME&apos;s settings (show-banners)</source>
        <translation>leyendo «No molestar» de los ajustes de GNOME (show-banners)</translation>
    </message>
    <message>
        <source>GNOME&apos;s notification settings are not installed: do-not-disturb is unknown</source>
        <translation>los ajustes de notificación de GNOME no están instalados: «No molestar» es desconocido</translation>
    </message>
</context>
<context>
    <name>tindra::GSettingsVolumeSoundPreference</name>
    <message>
        <source>the volume sound follows GNOME&apos;s event sounds setting</source>
        <translation>el sonido del volumen sigue el ajuste de sonidos de eventos de GNOME</translation>
    </message>
    <message>
        <source>GNOME&apos;s sound settings are not installed: the volume sound follows Tindra&apos;s own setting</source>
        <translation>los ajustes de sonido de GNOME no están instalados: el sonido del volumen sigue el ajuste propio de Tindra</translation>
    </message>
</context>
<context>
    <name>tindra::GeoClueLocationSource</name>
    <message>
        <source>asking GeoClue for the position</source>
        <translation>pidiendo la posición a GeoClue</translation>
    </message>
    <message>
        <source>GeoClue went away: the last position stays until it returns</source>
        <translation>GeoClue desapareció: la última posición se mantiene hasta que vuelva</translation>
    </message>
    <message>
        <source>GeoClue is not available (%1)</source>
        <translation>GeoClue no está disponible (%1)</translation>
    </message>
    <message>
        <source>GeoClue refused the position (%1)</source>
        <translation>GeoClue denegó la posición (%1)</translation>
    </message>
    <message>
        <source>GeoClue gives the position, at city accuracy</source>
        <translation>GeoClue da la posición, con precisión de ciudad</translation>
    </message>
</context>
<context>
    <name>tindra::HudProvider</name>
    <message>
        <source>the keyboard backlight ignores Tindra&apos;s changes: the keys go back to the desktop and the notch only shows the level</source>
        <translation>la retroiluminación del teclado ignora los cambios de Tindra: las teclas vuelven al escritorio y la muesca solo muestra el nivel</translation>
    </message>
    <message>
        <source>holds %1</source>
        <translation>tiene %1</translation>
    </message>
    <message>
        <source>only watches the level for %1 (another program holds them)</source>
        <translation>solo vigila el nivel de %1 (otro programa las tiene)</translation>
    </message>
    <message>
        <source>leaves %1 to the desktop</source>
        <translation>deja %1 al escritorio</translation>
    </message>
</context>
<context>
    <name>tindra::ICalendarBackend</name>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 no se puede leer: %2</translation>
    </message>
    <message>
        <source>the calendar list was not readable and was set aside as %1</source>
        <translation>la lista de calendarios no se podía leer y se apartó como %1</translation>
    </message>
    <message>
        <source>not read while the calendar is off</source>
        <translation>no se lee mientras el calendario está desactivado</translation>
    </message>
    <message>
        <source>Give a file, a folder or an address.</source>
        <translation>Indica un archivo, una carpeta o una dirección.</translation>
    </message>
    <message>
        <source>Use an https:// or webcal:// address: a calendar fetched over plain http can be read by anyone on the way.</source>
        <translation>Usa una dirección https:// o webcal://: un calendario descargado por http simple lo puede leer cualquiera por el camino.</translation>
    </message>
    <message>
        <source>This calendar is already in the list.</source>
        <translation>Este calendario ya está en la lista.</translation>
    </message>
    <message numerus="yes">
        <source>reading %n iCalendar calendar(s)</source>
        <translation>
            <numerusform>leyendo %n calendario iCalendar</numerusform>
            <numerusform>leyendo %n calendarios iCalendar</numerusform>
        </translation>
    </message>
    <message>
        <source>no calendars: add an iCalendar file, folder or address in Settings</source>
        <translation>sin calendarios: añade un archivo, una carpeta o una dirección iCalendar en Ajustes</translation>
    </message>
</context>
<context>
    <name>tindra::IdleClock</name>
    <message>
        <source>dddd d MMMM</source>
        <comment>the opened notch&apos;s date: Qt date format</comment>
        <translation>dddd, d &apos;de&apos; MMMM</translation>
    </message>
</context>
<context>
    <name>tindra::LocalCalendarFeed</name>
    <message>
        <source>%1 is not there</source>
        <translation>%1 no existe</translation>
    </message>
    <message>
        <source>%1 cannot be read</source>
        <translation>%1 no se puede leer</translation>
    </message>
</context>
<context>
    <name>tindra::LogindLockSource</name>
    <message>
        <source>asking logind for the session</source>
        <translation>pidiendo la sesión a logind</translation>
    </message>
    <message>
        <source>logind went away: the screen lock is not followed until it returns</source>
        <translation>logind desapareció: no se sigue el bloqueo de pantalla hasta que vuelva</translation>
    </message>
    <message>
        <source>logind does not know this session (%1): the screen lock is not followed</source>
        <translation>logind no conoce esta sesión (%1): no se sigue el bloqueo de pantalla</translation>
    </message>
    <message>
        <source>logind does not answer (%1): the screen lock is not followed</source>
        <translation>logind no responde (%1): no se sigue el bloqueo de pantalla</translation>
    </message>
    <message>
        <source>following the screen lock of logind&apos;s session %1</source>
        <translation>siguiendo el bloqueo de pantalla de la sesión de logind %1</translation>
    </message>
</context>
<context>
    <name>tindra::NotificationServerFocusSource</name>
    <message>
        <source>asking the notification server for do-not-disturb</source>
        <translation>preguntando al servidor de notificaciones por «No molestar»</translation>
    </message>
    <message>
        <source>no notification server runs: do-not-disturb is unknown until one starts</source>
        <translation>no hay servidor de notificaciones: «No molestar» es desconocido hasta que arranque uno</translation>
    </message>
    <message>
        <source>the notification server went away: do-not-disturb is unknown until it returns</source>
        <translation>el servidor de notificaciones desapareció: «No molestar» es desconocido hasta que vuelva</translation>
    </message>
    <message>
        <source>reading do-not-disturb from the notification server (Inhibited)</source>
        <translation>leyendo «No molestar» del servidor de notificaciones (Inhibited)</translation>
    </message>
    <message>
        <source>the notification server does not report do-not-disturb (no Inhibited property): only `tindra focus` shows a Focus</source>
        <translation>el servidor de notificaciones no informa de «No molestar» (sin propiedad Inhibited): solo `tindra focus` muestra una concentración</translation>
    </message>
</context>
<context>
    <name>tindra::NowPlayingProvider</name>
    <message>
        <source>Settings ask for the player scripts, which this desktop does not have: nothing is shown as playing.</source>
        <translation>Los ajustes piden los scripts de reproductor, que este escritorio no tiene: no se muestra nada en reproducción.</translation>
    </message>
    <message>
        <source>testing the now-playing adapter %1</source>
        <translation>probando el adaptador de reproducción %1</translation>
    </message>
    <message>
        <source>a player without a name</source>
        <translation>un reproductor sin nombre</translation>
    </message>
    <message>
        <source>following %1</source>
        <translation>siguiendo a %1</translation>
    </message>
    <message>
        <source>%1 left: nothing is playing</source>
        <translation>%1 se ha ido: no se reproduce nada</translation>
    </message>
</context>
<context>
    <name>tindra::OnboardingWindow</name>
    <message>
        <source>Welcome to Tindra</source>
        <translation>Te damos la bienvenida a Tindra</translation>
    </message>
    <message>
        <source>&lt;b&gt;The notch opens&lt;/b&gt;</source>
        <translation>&lt;b&gt;La muesca se abre&lt;/b&gt;</translation>
    </message>
    <message>
        <source>when the pointer rests on it</source>
        <translation>al dejar el puntero encima</translation>
    </message>
    <message>
        <source>when you click it</source>
        <translation>al hacer clic en ella</translation>
    </message>
    <message>
        <source>when you press and hold it</source>
        <translation>al mantenerla pulsada</translation>
    </message>
    <message>
        <source>Start Tindra when I log in</source>
        <translation>Abrir Tindra al iniciar sesión</translation>
    </message>
    <message>
        <source>Start Using Tindra</source>
        <translation>Empezar a usar Tindra</translation>
    </message>
    <message>
        <source>&lt;h2&gt;Welcome to Tindra&lt;/h2&gt;&lt;p&gt;The strip at the top of your display is now a small live display. Closed, it shows one thing at a time: what is playing, a volume or brightness level, a battery or headphone notice, the next meeting, a call or a message. Rest the pointer on it and it opens into a panel with the controls, your calendar, the weather, your batteries and a file tray. Everything stays on this computer.&lt;/p&gt;&lt;p&gt;&lt;b&gt;What Tindra found here&lt;/b&gt; (✓ works, – off or waiting, ✗ missing), and what you can do:&lt;/p&gt;</source>
        <translation>&lt;h2&gt;Te damos la bienvenida a Tindra&lt;/h2&gt;&lt;p&gt;La franja de la parte superior de tu pantalla es ahora una pequeña pantalla en vivo. Cerrada, muestra una cosa cada vez: lo que suena, un nivel de volumen o brillo, un aviso de batería o de auriculares, la próxima reunión, una llamada o un mensaje. Deja el puntero sobre ella y se abre en un panel con los controles, tu calendario, el tiempo, tus baterías y una bandeja de archivos. Todo se queda en este ordenador.&lt;/p&gt;&lt;p&gt;&lt;b&gt;Lo que Tindra encontró aquí&lt;/b&gt; (✓ funciona, – desactivado o en espera, ✗ falta), y lo que puedes hacer:&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Each service&apos;s own report is in Diagnostics… on Tindra&apos;s menu, for a bug report.</source>
        <translation>El informe de cada servicio está en Diagnóstico… del menú de Tindra, para informar de un error.</translation>
    </message>
</context>
<context>
    <name>tindra::PinnedSectionsEditor</name>
    <message>
        <source>Tick the sections to pin and drag them into order</source>
        <translation>Marca las secciones que quieres fijar y arrástralas para ordenarlas</translation>
    </message>
</context>
<context>
    <name>tindra::PlasmaVolumeSoundPreference</name>
    <message>
        <source>the volume sound follows the audio feedback setting of Plasma&apos;s volume applet</source>
        <translation>el sonido del volumen sigue el ajuste de respuesta sonora del applet de volumen de Plasma</translation>
    </message>
</context>
<context>
    <name>tindra::PlasmaWindowVisibilitySource</name>
    <message>
        <source>following the active window and full-screen state from KWin&apos;s window list (Plasma window management)</source>
        <translation>siguiendo la ventana activa y el estado de pantalla completa en la lista de ventanas de KWin (Plasma window management)</translation>
    </message>
</context>
<context>
    <name>tindra::PosixFileTrayBackend</name>
    <message>
        <source>files are known by their device and inode</source>
        <translation>los archivos se reconocen por su dispositivo e inodo</translation>
    </message>
</context>
<context>
    <name>tindra::PulseProcessTapSession</name>
    <message>
        <source>no sound server to listen to</source>
        <translation>ningún servidor de sonido que escuchar</translation>
    </message>
    <message>
        <source>the player&apos;s own stream (%1)</source>
        <translation>el flujo propio del reproductor (%1)</translation>
    </message>
    <message>
        <source>the default output</source>
        <translation>la salida predeterminada</translation>
    </message>
    <message>
        <source>the sound server has no output to listen to</source>
        <translation>el servidor de sonido no tiene ninguna salida que escuchar</translation>
    </message>
    <message>
        <source> on </source>
        <translation> en </translation>
    </message>
    <message>
        <source>the sound server refused a capture stream</source>
        <translation>el servidor de sonido rechazó un flujo de captura</translation>
    </message>
</context>
<context>
    <name>tindra::PulseVolumeBackend</name>
    <message>
        <source>connecting to the sound server</source>
        <translation>conectando con el servidor de sonido</translation>
    </message>
    <message>
        <source>following the sound server&apos;s default output</source>
        <translation>siguiendo la salida predeterminada del servidor de sonido</translation>
    </message>
    <message>
        <source>the sound server went away: no volume until it returns</source>
        <translation>el servidor de sonido desapareció: sin volumen hasta que vuelva</translation>
    </message>
    <message>
        <source>no sound server answers: the volume shows as soon as PipeWire or PulseAudio runs</source>
        <translation>ningún servidor de sonido responde: el volumen se muestra en cuanto PipeWire o PulseAudio se ejecuten</translation>
    </message>
</context>
<context>
    <name>tindra::RemoteCalendarFeed</name>
    <message>
        <source>%1 is not an https address</source>
        <translation>%1 no es una dirección https</translation>
    </message>
    <message>
        <source>HTTP %1</source>
        <translation>HTTP %1</translation>
    </message>
    <message>
        <source>could not fetch %1 (%2)</source>
        <translation>no se pudo descargar %1 (%2)</translation>
    </message>
</context>
<context>
    <name>tindra::ScreenSource</name>
    <message>
        <source>Built-in display</source>
        <translation>Pantalla integrada</translation>
    </message>
</context>
<context>
    <name>tindra::SettingsWindow</name>
    <message>
        <source>Tindra Settings</source>
        <translation>Ajustes de Tindra</translation>
    </message>
    <message>
        <source>Search settings</source>
        <translation>Buscar ajustes</translation>
    </message>
    <message>
        <source>Reset Page</source>
        <translation>Restablecer página</translation>
    </message>
    <message>
        <source>Use the default value of every setting on this page</source>
        <translation>Usar el valor predeterminado de cada ajuste de esta página</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Use the default value</source>
        <translation>Usar el valor predeterminado</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(ninguno)</translation>
    </message>
    <message>
        <source>The change was not saved: %1</source>
        <translation>No se guardó el cambio: %1</translation>
    </message>
</context>
<context>
    <name>tindra::ShellActions</name>
    <message>
        <source>Settings…</source>
        <translation>Ajustes…</translation>
    </message>
    <message>
        <source>Diagnostics…</source>
        <translation>Diagnóstico…</translation>
    </message>
    <message>
        <source>Start at Login</source>
        <translation>Abrir al iniciar sesión</translation>
    </message>
    <message>
        <source>Quit Tindra</source>
        <translation>Salir de Tindra</translation>
    </message>
    <message>
        <source>Each service Tindra uses says here whether it answers, and every change since Tindra started is in the log. The report has the versions, the session and the log, for a bug report; it names none of your files, events or messages.</source>
        <translation>Aquí cada servicio que usa Tindra indica si responde, y cada cambio desde que Tindra se inició está en el registro. El informe incluye las versiones, la sesión y el registro, para un informe de fallo; no nombra ninguno de tus archivos, eventos ni mensajes.</translation>
    </message>
    <message>
        <source>No keyboard backlight that Tindra can control was found on this computer.</source>
        <translation>No se encontró en este ordenador ninguna retroiluminación de teclado que Tindra pueda controlar.</translation>
    </message>
    <message>
        <source>Tindra could not read the keyboard backlight just now, so this was turned off. Try again with the lid open.</source>
        <translation>Tindra no pudo leer la retroiluminación del teclado, así que esto se desactivó. Vuelve a intentarlo con la tapa abierta.</translation>
    </message>
    <message>
        <source>This computer has no battery, so there is nothing to show here.</source>
        <translation>Este ordenador no tiene batería, así que no hay nada que mostrar aquí.</translation>
    </message>
</context>
<context>
    <name>tindra::SysfsBacklightBackend</name>
    <message>
        <source>%1, set through logind</source>
        <translation>%1, ajustado mediante logind</translation>
    </message>
    <message>
        <source>%1 is shown; logind is not running, so the brightness keys stay with the desktop</source>
        <translation>se muestra %1; logind no se está ejecutando, así que las teclas de brillo quedan para el escritorio</translation>
    </message>
    <message>
        <source>no display backlight in %1: the brightness keys stay with the desktop</source>
        <translation>sin retroiluminación de pantalla en %1: las teclas de brillo quedan para el escritorio</translation>
    </message>
    <message>
        <source>%1 is shown; asking whether logind runs to set it</source>
        <translation>se muestra %1; comprobando si logind se ejecuta para ajustarlo</translation>
    </message>
    <message>
        <source>%1 is shown; logind refused to set it (%2), so the brightness keys stay with the desktop</source>
        <translation>se muestra %1; logind se negó a ajustarlo (%2), así que las teclas de brillo quedan para el escritorio</translation>
    </message>
</context>
<context>
    <name>tindra::TindraApp</name>
    <message>
        <source>Check Now Playing adapter</source>
        <translation>Comprobar el adaptador de reproducción</translation>
    </message>
</context>
<context>
    <name>tindra::UPowerBatteryBackend</name>
    <message>
        <source>asking UPower for the battery</source>
        <translation>pidiendo la batería a UPower</translation>
    </message>
    <message>
        <source>reading the battery from UPower</source>
        <translation>leyendo la batería desde UPower</translation>
    </message>
    <message>
        <source>UPower answers and reports no battery</source>
        <translation>UPower responde y no informa de ninguna batería</translation>
    </message>
    <message>
        <source>UPower does not answer (%1): no battery is shown</source>
        <translation>UPower no responde (%1): no se muestra la batería</translation>
    </message>
    <message>
        <source>UPower went away: no battery is shown until it returns</source>
        <translation>UPower desapareció: no se muestra la batería hasta que vuelva</translation>
    </message>
    <message>
        <source>no power-profiles-daemon: low power mode is not shown</source>
        <translation>no hay power-profiles-daemon: no se muestra el modo de bajo consumo</translation>
    </message>
    <message>
        <source>power-profiles-daemon does not answer (%1): low power mode is not shown</source>
        <translation>power-profiles-daemon no responde (%1): no se muestra el modo de bajo consumo</translation>
    </message>
    <message>
        <source>power-profiles-daemon went away: low power mode is not shown until it returns</source>
        <translation>power-profiles-daemon se ha ido: no se muestra el modo de bajo consumo hasta que vuelva</translation>
    </message>
</context>
<context>
    <name>tindra::UPowerKeyboardBacklightBackend</name>
    <message>
        <source>UPower went away: the keyboard light keys stay with the desktop</source>
        <translation>UPower desapareció: las teclas de la luz del teclado quedan para el escritorio</translation>
    </message>
    <message>
        <source>UPower reports no keyboard backlight (%1)</source>
        <translation>UPower no informa de retroiluminación del teclado (%1)</translation>
    </message>
    <message>
        <source>no levels</source>
        <translation>sin niveles</translation>
    </message>
    <message>
        <source>keyboard backlight through UPower, %1 levels</source>
        <translation>retroiluminación del teclado mediante UPower, %1 niveles</translation>
    </message>
    <message>
        <source>the keyboard backlight level cannot be read (%1 of %2)</source>
        <translation>no se puede leer el nivel de retroiluminación del teclado (%1 de %2)</translation>
    </message>
    <message>
        <source>the keyboard backlight level cannot be read (%1)</source>
        <translation>no se puede leer el nivel de la retroiluminación del teclado (%1)</translation>
    </message>
</context>
<context>
    <name>tindra::VisibilityMonitor</name>
    <message>
        <source>the notch steps aside: %1</source>
        <translation>la muesca se aparta: %1</translation>
    </message>
    <message>
        <source>the notch shows</source>
        <translation>la muesca está visible</translation>
    </message>
</context>
<context>
    <name>tindra::WeatherProvider</name>
    <message>
        <source>the weather is off in Settings</source>
        <translation>el tiempo está desactivado en Ajustes</translation>
    </message>
    <message>
        <source>position: %1; %2</source>
        <translation>posición: %1; %2</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>ninguna aún</translation>
    </message>
    <message>
        <source>; the last request failed (%1)</source>
        <translation>; la última petición falló (%1)</translation>
    </message>
    <message>
        <source>set in Settings</source>
        <translation>fijada en Ajustes</translation>
    </message>
    <message>
        <source>%1, set in Settings</source>
        <translation>%1, fijada en Ajustes</translation>
    </message>
    <message>
        <source>GeoClue</source>
        <translation>GeoClue</translation>
    </message>
    <message>
        <source>the time zone %1</source>
        <translation>la zona horaria %1</translation>
    </message>
    <message>
        <source>The weather is unavailable right now.</source>
        <translation>El tiempo no está disponible ahora mismo.</translation>
    </message>
    <message>
        <source>Waiting for location access</source>
        <translation>Esperando acceso a la ubicación</translation>
    </message>
    <message>
        <source>High %1 · Low %2</source>
        <translation>Máx. %1 · Mín. %2</translation>
    </message>
</context>
<context>
    <name>tindra::WeatherSettingsEditor</name>
    <message>
        <source>Position in use:</source>
        <translation>Posición en uso:</translation>
    </message>
    <message>
        <source>Pick a city</source>
        <translation>Elegir una ciudad</translation>
    </message>
    <message>
        <source>My place:</source>
        <translation>Mi lugar:</translation>
    </message>
    <message>
        <source>Use These</source>
        <translation>Usar estas</translation>
    </message>
    <message>
        <source>Use the Location Service</source>
        <translation>Usar el servicio de ubicación</translation>
    </message>
    <message>
        <source>Latitude, longitude:</source>
        <translation>Latitud, longitud:</translation>
    </message>
    <message>
        <source>An e-mail address MET Norway may reach you at (optional)</source>
        <translation>Correo en el que MET Norway puede contactarte (opcional)</translation>
    </message>
    <message>
        <source>Contact:</source>
        <translation>Contacto:</translation>
    </message>
    <message>
        <source>As the region says</source>
        <translation>Según la región</translation>
    </message>
    <message>
        <source>Celsius</source>
        <translation>Celsius</translation>
    </message>
    <message>
        <source>Fahrenheit</source>
        <translation>Fahrenheit</translation>
    </message>
    <message>
        <source>Unit:</source>
        <translation>Unidad:</translation>
    </message>
    <message>
        <source>No city called %1 is known.</source>
        <translation>No se conoce ninguna ciudad llamada %1.</translation>
    </message>
</context>
<context>
    <name>tindra::WeatherViewModel</name>
    <message>
        <source>Weather data from MET Norway</source>
        <translation>Datos meteorológicos de MET Norway</translation>
    </message>
</context>
<context>
    <name>tindra::WlrToplevelVisibilitySource</name>
    <message>
        <source>following the active window and full-screen state from the compositor&apos;s window list (wlr foreign toplevel)</source>
        <translation>siguiendo la ventana activa y el estado de pantalla completa en la lista de ventanas del compositor (wlr foreign toplevel)</translation>
    </message>
</context>
<context>
    <name>tindra::X11MediaKeySource</name>
    <message>
        <source>no X display: the keys stay with the desktop, and the level changes it makes are shown</source>
        <translation>sin pantalla X: las teclas quedan para el escritorio y se muestran los cambios de nivel que hace</translation>
    </message>
    <message>
        <source>holding no keys</source>
        <translation>no tiene ninguna tecla</translation>
    </message>
    <message>
        <source>holding %1 key combinations, %2 held by another program</source>
        <translation>tiene %1 combinaciones de teclas, %2 en manos de otro programa</translation>
    </message>
    <message>
        <source>the X server closed the connection: the keys stay with the desktop</source>
        <translation>el servidor X cerró la conexión: las teclas quedan para el escritorio</translation>
    </message>
</context>
<context>
    <name>tindra::X11VisibilitySource</name>
    <message>
        <source>no X display: the notch never steps aside for full-screen windows or games</source>
        <translation>sin pantalla X: la muesca nunca se aparta ante ventanas a pantalla completa o juegos</translation>
    </message>
    <message>
        <source>following the active window and full-screen state from the window manager (EWMH)</source>
        <translation>siguiendo la ventana activa y el estado de pantalla completa mediante el gestor de ventanas (EWMH)</translation>
    </message>
    <message>
        <source>the X server closed the connection: the notch no longer steps aside</source>
        <translation>el servidor X cerró la conexión: la muesca ya no se aparta</translation>
    </message>
</context>
</TS>
