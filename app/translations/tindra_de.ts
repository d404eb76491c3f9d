<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>AccessoriesPanel</name>
    <message>
        <source>Accessories</source>
        <translation>Zubehör</translation>
    </message>
    <message>
        <source>No battery reported</source>
        <translation>Kein Akkustand gemeldet</translation>
    </message>
    <message>
        <source>L</source>
        <translation>L</translation>
    </message>
    <message>
        <source>R</source>
        <translation>R</translation>
    </message>
    <message>
        <source>Case</source>
        <translation>Case</translation>
    </message>
</context>
<context>
    <name>AccessoryBatteryRings</name>
    <message>
        <source>L</source>
        <translation>L</translation>
    </message>
    <message>
        <source>R</source>
        <translation>R</translation>
    </message>
    <message>
        <source>C</source>
        <translation>C</translation>
    </message>
</context>
<context>
    <name>AccessoryCompact</name>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Case</source>
        <translation>Case</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Getrennt</translation>
    </message>
    <message>
        <source>Playing on %1</source>
        <translation>Wiedergabe auf %1</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Verbunden</translation>
    </message>
</context>
<context>
    <name>Autostart</name>
    <message>
        <source>could not remove %1: %2</source>
        <translation>%1 konnte nicht entfernt werden: %2</translation>
    </message>
</context>
<context>
    <name>Backends</name>
    <message>
        <source>no session bus: no calls or messages are shown</source>
        <translation>kein Sitzungsbus: keine Anrufe oder Nachrichten werden gezeigt</translation>
    </message>
    <message>
        <source>no session bus: do-not-disturb is unknown, only `tindra focus` shows a Focus</source>
        <translation>kein Sitzungsbus: „Nicht stören“ ist unbekannt, nur `tindra focus` zeigt einen Fokus</translation>
    </message>
    <message>
        <source>no system bus (%1): the keyboard light keys stay with the desktop</source>
        <translation>kein Systembus (%1): die Tasten für das Tastaturlicht bleiben beim Desktop</translation>
    </message>
    <message>
        <source>a Wayland session lets no program take the keys: the desktop keeps them, and the level changes it makes are shown</source>
        <translation>eine Wayland-Sitzung lässt kein Programm die Tasten übernehmen: der Desktop behält sie, und seine Pegeländerungen werden gezeigt</translation>
    </message>
    <message>
        <source>no X11 display (%1): the keys stay with the desktop, and the level changes it makes are shown</source>
        <translation>kein X11-Display (%1): die Tasten bleiben beim Desktop, und seine Pegeländerungen werden gezeigt</translation>
    </message>
    <message>
        <source>the notch is an X11 window</source>
        <translation>die Notch ist ein X11-Fenster</translation>
    </message>
    <message>
        <source>the notch is a layer surface on the Wayland compositor</source>
        <translation>die Notch ist eine Layer-Surface des Wayland-Compositors</translation>
    </message>
    <message>
        <source>TINDRA_PLATFORM asks for Wayland, but the compositor offers no layer shell: the notch is an X11 window through XWayland</source>
        <translation>TINDRA_PLATFORM verlangt Wayland, aber der Compositor bietet keine Layer-Shell: die Notch ist ein X11-Fenster über XWayland</translation>
    </message>
    <message>
        <source>the Wayland compositor offers no layer shell (GNOME&apos;s has none): the notch is an X11 window through XWayland, above other X11 windows but not always above Wayland ones</source>
        <translation>der Wayland-Compositor bietet keine Layer-Shell (der von GNOME hat keine): die Notch ist ein X11-Fenster über XWayland, über anderen X11-Fenstern, aber nicht immer über Wayland-Fenstern</translation>
    </message>
    <message>
        <source>TINDRA_PLATFORM asks for X11: the notch is an X11 window</source>
        <translation>TINDRA_PLATFORM verlangt X11: die Notch ist ein X11-Fenster</translation>
    </message>
    <message>
        <source>no system bus (%1): no battery is shown</source>
        <translation>kein Systembus (%1): keine Batterie wird gezeigt</translation>
    </message>
    <message>
        <source>no system bus (%1): no accessories are shown</source>
        <translation>kein Systembus (%1): kein Zubehör wird gezeigt</translation>
    </message>
    <message>
        <source>the Wayland compositor lists no windows to other programs (neither wlr foreign toplevel nor Plasma window management): the notch never steps aside for full-screen windows or games</source>
        <translation>der Wayland-Compositor zeigt anderen Programmen keine Fensterliste (weder wlr foreign toplevel noch Plasma window management): die Notch weicht nie Vollbildfenstern oder Spielen</translation>
    </message>
    <message>
        <source>no X11 window manager to ask (%1): the notch never steps aside for full-screen windows or games</source>
        <translation>kein X11-Fenstermanager zum Fragen (%1): die Notch weicht nie Vollbildfenstern oder Spielen</translation>
    </message>
    <message>
        <source>no system bus (%1): GeoClue cannot be asked</source>
        <translation>kein Systembus (%1): GeoClue kann nicht gefragt werden</translation>
    </message>
    <message>
        <source>this desktop has no volume sound setting: the volume sound follows Tindra&apos;s own setting</source>
        <translation>diese Arbeitsumgebung hat keine Einstellung für den Lautstärkeklang: er folgt Tindras eigener Einstellung</translation>
    </message>
</context>
<context>
    <name>BannerPanel</name>
    <message>
        <source>%1 call</source>
        <translation>%1-Anruf</translation>
    </message>
    <message>
        <source>Missed call · %1</source>
        <translation>Verpasster Anruf · %1</translation>
    </message>
    <message>
        <source>Ringing</source>
        <translation>Klingelt</translation>
    </message>
</context>
<context>
    <name>BatteriesPanel</name>
    <message>
        <source>Battery</source>
        <translation>Batterie</translation>
    </message>
    <message>
        <source>Charged</source>
        <translation>Geladen</translation>
    </message>
    <message>
        <source>Charging</source>
        <translation>Lädt</translation>
    </message>
    <message>
        <source>%1 to full</source>
        <translation>Voll in %1</translation>
    </message>
    <message>
        <source>On power</source>
        <translation>Am Netz</translation>
    </message>
    <message>
        <source>On battery</source>
        <translation>Akkubetrieb</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>Noch %1</translation>
    </message>
    <message>
        <source>Low Power Mode is on</source>
        <translation>Stromsparmodus ist an</translation>
    </message>
    <message>
        <source>This computer has no battery.</source>
        <translation>Dieser Computer hat keinen Akku.</translation>
    </message>
</context>
<context>
    <name>BatteryCompact</name>
    <message>
        <source>Low</source>
        <translation>Niedrig</translation>
    </message>
</context>
<context>
    <name>CalendarPanel</name>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>Nothing else today</source>
        <translation>Heute nichts mehr</translation>
    </message>
    <message>
        <source>Reminders</source>
        <translation>Erinnerungen</translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>%n weiterer</numerusform>
            <numerusform>%n weitere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CallCompact</name>
    <message>
        <source>Ringing</source>
        <translation>Klingelt</translation>
    </message>
</context>
<context>
    <name>FileTrayPanel</name>
    <message>
        <source>File Tray</source>
        <translation>Dateiablage</translation>
    </message>
    <message>
        <source>Remove All</source>
        <translation>Alle entfernen</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>This file was moved to a place Tindra cannot find, or deleted.</source>
        <translation>Diese Datei wurde an einen Ort verschoben, den Tindra nicht findet, oder gelöscht.</translation>
    </message>
    <message>
        <source>Remove from the tray</source>
        <translation>Aus der Ablage entfernen</translation>
    </message>
    <message>
        <source>Click to open, or drag to use this file</source>
        <translation>Zum Öffnen klicken oder ziehen, um die Datei zu verwenden</translation>
    </message>
</context>
<context>
    <name>HudPanel</name>
    <message>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Keyboard light</source>
        <translation>Tastaturlicht</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Lautstärke</translation>
    </message>
</context>
<context>
    <name>JoinButton</name>
    <message>
        <source>Join</source>
        <translation>Beitreten</translation>
    </message>
    <message>
        <source>Join %1</source>
        <translation>%1 beitreten</translation>
    </message>
</context>
<context>
    <name>Notch</name>
    <message>
        <source>Now Playing</source>
        <translation>Jetzt läuft</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>Fokus</translation>
    </message>
    <message>
        <source>AirDrop</source>
        <translation>AirDrop</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Nachricht</translation>
    </message>
    <message>
        <source>Accessory</source>
        <translation>Zubehör</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batterie</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Pegel</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Anruf</translation>
    </message>
</context>
<context>
    <name>OnboardingFeatures</name>
    <message>
        <source>Now Playing: the track of any player that speaks MPRIS (most music and video players and web browsers do), with its controls. Start one to see it.</source>
        <translation>Wiedergabe: der Titel jedes Players, der MPRIS spricht (die meisten Musik- und Videoplayer und Webbrowser), mit seinen Bedienelementen. Starte einen, um ihn zu sehen.</translation>
    </message>
    <message>
        <source>Now Playing: no player can be followed yet. Install an MPRIS-capable player, or start the one you have; if it still does not show, Diagnostics… says why.</source>
        <translation>Wiedergabe: noch kann kein Player verfolgt werden. Installiere einen MPRIS-fähigen Player oder starte deinen; erscheint er dann nicht, sagt Diagnose… warum.</translation>
    </message>
    <message>
        <source>Volume: shown in the notch as it changes.</source>
        <translation>Lautstärke: wird bei jeder Änderung in der Notch angezeigt.</translation>
    </message>
    <message>
        <source>Volume: no sound server answers. The volume shows as soon as PipeWire or PulseAudio runs.</source>
        <translation>Lautstärke: kein Soundserver antwortet. Die Lautstärke erscheint, sobald PipeWire oder PulseAudio läuft.</translation>
    </message>
    <message>
        <source>Brightness: shown as it changes; the brightness keys step it.</source>
        <translation>Helligkeit: wird bei Änderungen angezeigt; die Helligkeitstasten ändern sie.</translation>
    </message>
    <message>
        <source>Brightness: this display&apos;s backlight cannot be controlled here (an external monitor, or a virtual machine), so the brightness keys stay with the desktop.</source>
        <translation>Helligkeit: die Hintergrundbeleuchtung dieses Bildschirms lässt sich hier nicht steuern (ein externer Monitor oder eine virtuelle Maschine), daher bleiben die Helligkeitstasten bei der Arbeitsumgebung.</translation>
    </message>
    <message>
        <source>Battery and Bluetooth need the system bus (D-Bus), which this session does not have. Start Tindra in an ordinary desktop session to see them.</source>
        <translation>Akku und Bluetooth brauchen den Systembus (D-Bus), den diese Sitzung nicht hat. Starte Tindra in einer normalen Desktop-Sitzung, um sie zu sehen.</translation>
    </message>
    <message>
        <source>Battery: its level, and a notice when you plug in, unplug or run low.</source>
        <translation>Akku: sein Stand und ein Hinweis beim Ein- und Ausstecken und wenn er knapp wird.</translation>
    </message>
    <message>
        <source>Battery: UPower does not answer, so no battery is shown. Install or start UPower (the upower package).</source>
        <translation>Akku: UPower antwortet nicht, daher wird kein Akku angezeigt. Installiere oder starte UPower (das Paket upower).</translation>
    </message>
    <message>
        <source>Bluetooth: the batteries of your connected headphones and other accessories.</source>
        <translation>Bluetooth: die Akkus deiner verbundenen Kopfhörer und anderen Zubehörs.</translation>
    </message>
    <message>
        <source>Bluetooth: BlueZ does not answer, so no accessories are shown. Turn Bluetooth on, or install BlueZ (the bluez package).</source>
        <translation>Bluetooth: BlueZ antwortet nicht, daher wird kein Zubehör angezeigt. Schalte Bluetooth ein oder installiere BlueZ (das Paket bluez).</translation>
    </message>
    <message>
        <source>Calendar: off. Turn it on in Settings… and add your calendars (.ics files or web addresses).</source>
        <translation>Kalender: aus. Schalte ihn in den Einstellungen… ein und füge deine Kalender hinzu (.ics-Dateien oder Webadressen).</translation>
    </message>
    <message>
        <source>Calendar: your next meeting with its Join button, and today&apos;s agenda.</source>
        <translation>Kalender: dein nächstes Meeting mit seiner Beitreten-Taste und die Termine des Tages.</translation>
    </message>
    <message>
        <source>Calendar: nothing to show yet. Add your calendars (.ics files or web addresses) in Settings…, which says of each whether it could be read.</source>
        <translation>Kalender: noch nichts anzuzeigen. Füge deine Kalender (.ics-Dateien oder Webadressen) in den Einstellungen… hinzu; dort steht bei jedem, ob er gelesen werden konnte.</translation>
    </message>
    <message>
        <source>Weather: off. Turn it on in Settings… to see the forecast from MET Norway.</source>
        <translation>Wetter: aus. Schalte es in den Einstellungen… ein, um die Vorhersage von MET Norway zu sehen.</translation>
    </message>
    <message>
        <source>Weather: the forecast for where you are, from MET Norway.</source>
        <translation>Wetter: die Vorhersage für deinen Ort, von MET Norway.</translation>
    </message>
    <message>
        <source>Weather: no forecast yet. Settings… says why, and lets you choose your place.</source>
        <translation>Wetter: noch keine Vorhersage. Die Einstellungen… sagen warum und lassen dich deinen Ort wählen.</translation>
    </message>
    <message>
        <source>Do not disturb: shown while it is on.</source>
        <translation>Nicht stören: wird angezeigt, solange es an ist.</translation>
    </message>
    <message>
        <source>Do not disturb: no notification server answers, so whether it is on is unknown until one starts.</source>
        <translation>Nicht stören: kein Benachrichtigungsdienst antwortet; ob es an ist, bleibt unbekannt, bis einer startet.</translation>
    </message>
</context>
<context>
    <name>PinnedSectionsEditor</name>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>File Tray</source>
        <translation>Dateiablage</translation>
    </message>
    <message>
        <source>Now Playing</source>
        <translation>Jetzt läuft</translation>
    </message>
    <message>
        <source>Batteries</source>
        <translation>Batterien</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Wetter</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Clear</source>
        <translation>Klar</translation>
    </message>
    <message>
        <source>Fair</source>
        <translation>Heiter</translation>
    </message>
    <message>
        <source>Partly cloudy</source>
        <translation>Teils bewölkt</translation>
    </message>
    <message>
        <source>Cloudy</source>
        <translation>Bewölkt</translation>
    </message>
    <message>
        <source>Fog</source>
        <translation>Nebel</translation>
    </message>
    <message>
        <source>Light rain</source>
        <translation>Leichter Regen</translation>
    </message>
    <message>
        <source>Rain</source>
        <translation>Regen</translation>
    </message>
    <message>
        <source>Heavy rain</source>
        <translation>Starker Regen</translation>
    </message>
    <message>
        <source>Rain showers</source>
        <translation>Regenschauer</translation>
    </message>
    <message>
        <source>Thunderstorm</source>
        <translation>Gewitter</translation>
    </message>
    <message>
        <source>Sleet</source>
        <translation>Schneeregen</translation>
    </message>
    <message>
        <source>Snow</source>
        <translation>Schnee</translation>
    </message>
    <message>
        <source>%1 % chance of precipitation</source>
        <translation>%1 % Niederschlagsrisiko</translation>
    </message>
    <message>
        <source>%1 mm in the next %2 h</source>
        <translation>%1 mm in den nächsten %2 Std.</translation>
    </message>
    <message>
        <source>No precipitation in the next %1 h</source>
        <translation>Kein Niederschlag in den nächsten %1 Std.</translation>
    </message>
    <message>
        <source>Sunrise %1</source>
        <translation>Sonnenaufgang %1</translation>
    </message>
    <message>
        <source>Sunset %1</source>
        <translation>Sonnenuntergang %1</translation>
    </message>
    <message>
        <source>Midnight sun</source>
        <translation>Mitternachtssonne</translation>
    </message>
    <message>
        <source>Polar night</source>
        <translation>Polarnacht</translation>
    </message>
    <message>
        <source>Travel times are unavailable: no routing service is available on this system.</source>
        <translation>Fahrzeiten sind nicht verfügbar: Auf diesem System gibt es keinen Routendienst.</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Notch</source>
        <translation>Notch</translation>
    </message>
    <message>
        <source>Now Playing</source>
        <translation>Jetzt läuft</translation>
    </message>
    <message>
        <source>Indicator</source>
        <translation>Anzeige</translation>
    </message>
    <message>
        <source>Battery and Accessories</source>
        <translation>Batterie und Zubehör</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Wetter</translation>
    </message>
    <message>
        <source>Focus and Banners</source>
        <translation>Fokus und Banner</translation>
    </message>
    <message>
        <source>File Tray</source>
        <translation>Dateiablage</translation>
    </message>
    <message>
        <source>Diagnostics</source>
        <translation>Diagnose</translation>
    </message>
</context>
<context>
    <name>SettingsKeys</name>
    <message>
        <source>The first-run introduction has been seen.</source>
        <translation>Die Einführung beim ersten Start wurde gezeigt.</translation>
    </message>
    <message>
        <source>Play a sound with notices that have one.</source>
        <translation>Hinweistöne abspielen.</translation>
    </message>
    <message>
        <source>Show Tindra in the tray.</source>
        <translation>Tindra im Infobereich zeigen.</translation>
    </message>
    <message>
        <source>How long notices stay: short, medium or long.</source>
        <translation>Wie lange Hinweise bleiben: kurz, mittel oder lang.</translation>
    </message>
    <message>
        <source>Offer test versions when updating.</source>
        <translation>Beim Aktualisieren Testversionen anbieten.</translation>
    </message>
    <message>
        <source>Draw a notch on displays that have none.</source>
        <translation>Auf Bildschirmen ohne Notch eine zeichnen.</translation>
    </message>
    <message>
        <source>Which displays show the notch: all, main, built-in or one by name.</source>
        <translation>Welche Bildschirme die Notch zeigen: alle, Hauptbildschirm, eingebauter oder einer nach Name.</translation>
    </message>
    <message>
        <source>Width in points of a drawn notch.</source>
        <translation>Breite einer gezeichneten Notch in Punkt.</translation>
    </message>
    <message>
        <source>A drawn notch takes the height of the top panel.</source>
        <translation>Eine gezeichnete Notch übernimmt die Höhe der oberen Leiste.</translation>
    </message>
    <message>
        <source>Height in points of a drawn notch when it does not match the panel.</source>
        <translation>Höhe einer gezeichneten Notch in Punkt, wenn sie nicht der Leiste folgt.</translation>
    </message>
    <message>
        <source>How the notch opens: on hover, on click, or pressed and held.</source>
        <translation>Wie sich die Notch öffnet: beim Überfahren, per Klick oder durch Gedrückthalten.</translation>
    </message>
    <message>
        <source>Seconds the pointer rests on the notch before it opens.</source>
        <translation>Sekunden, die der Zeiger auf der Notch ruht, bevor sie sich öffnet.</translation>
    </message>
    <message>
        <source>Seconds of pressing that open the notch in press-and-hold mode.</source>
        <translation>Sekunden Gedrückthalten, bis sich die Notch im Modus „Gedrückt halten“ öffnet.</translation>
    </message>
    <message>
        <source>Panel sections pinned in the opened notch, in order (&quot;media&quot;, &quot;calendar&quot;, &quot;weather&quot;, &quot;batteries&quot;, &quot;fileTray&quot;); empty shows every section with something to show.</source>
        <translation>In der geöffneten Notch angeheftete Bereiche, in Reihenfolge (&quot;media&quot;, &quot;calendar&quot;, &quot;weather&quot;, &quot;batteries&quot;, &quot;fileTray&quot;); leer zeigt jeden Bereich, der etwas zu zeigen hat.</translation>
    </message>
    <message>
        <source>Where the playing track comes from: automatic, or only the player scripts, which exist on a Mac alone (on the desktop that shows nothing).</source>
        <translation>Woher der laufende Titel kommt: automatisch oder nur aus den Player-Skripten, die es nur auf dem Mac gibt (auf dem Desktop zeigt das nichts).</translation>
    </message>
    <message>
        <source>The system version on which the basic-mode notice was last shown.</source>
        <translation>Die Systemversion, unter der der Hinweis zum Basismodus zuletzt gezeigt wurde.</translation>
    </message>
    <message>
        <source>Look covers up online when the player gives none.</source>
        <translation>Cover online suchen, wenn der Player keines liefert.</translation>
    </message>
    <message>
        <source>How long a paused track stays shown: short, long or until resumed.</source>
        <translation>Wie lange ein pausierter Titel sichtbar bleibt: kurz, lang oder bis zur Fortsetzung.</translation>
    </message>
    <message>
        <source>The progress bar in the standard colour or the cover&apos;s.</source>
        <translation>Fortschrittsbalken in der Standardfarbe oder der des Covers.</translation>
    </message>
    <message>
        <source>Show volume changes in the notch. Option-Shift with a volume or brightness key changes it in smaller steps.</source>
        <translation>Lautstärkeänderungen in der Notch zeigen. Wahl-Umschalt mit einer Lautstärke- oder Helligkeitstaste ändert in kleineren Schritten.</translation>
    </message>
    <message>
        <source>Show brightness changes in the notch. Keys go to the system when the output or display cannot be controlled, or when BetterDisplay handles it.</source>
        <translation>Helligkeitsänderungen in der Notch zeigen. Die Tasten gehen an das System, wenn Ausgang oder Bildschirm nicht steuerbar sind oder BetterDisplay das übernimmt.</translation>
    </message>
    <message>
        <source>How the level is drawn: a continuous bar, segments or a ring.</source>
        <translation>Wie der Pegel gezeichnet wird: durchgehender Balken, Segmente oder Ring.</translation>
    </message>
    <message>
        <source>The level&apos;s colour: white, by level, or the accent colour.</source>
        <translation>Farbe des Pegels: weiß, nach Pegel oder Akzentfarbe.</translation>
    </message>
    <message>
        <source>Seconds the level stays shown after a change.</source>
        <translation>Sekunden, die der Pegel nach einer Änderung sichtbar bleibt.</translation>
    </message>
    <message>
        <source>Play the volume feedback sound where the system does not. Hold Shift while pressing a volume key to do the opposite.</source>
        <translation>Den Rückmeldeton der Lautstärke abspielen, wo das System es nicht tut. Umschalt beim Drücken einer Lautstärketaste halten bewirkt das Gegenteil.</translation>
    </message>
    <message>
        <source>Tell when power is connected.</source>
        <translation>Melden, wenn der Strom angeschlossen wird.</translation>
    </message>
    <message>
        <source>Tell when power is disconnected.</source>
        <translation>Melden, wenn der Strom getrennt wird.</translation>
    </message>
    <message>
        <source>Warn when the battery runs low.</source>
        <translation>Warnen, wenn der Akku fast leer ist.</translation>
    </message>
    <message>
        <source>Percentage at which the battery counts as low.</source>
        <translation>Prozentwert, ab dem der Akku als schwach gilt.</translation>
    </message>
    <message>
        <source>Tell when a Bluetooth accessory connects.</source>
        <translation>Melden, wenn sich ein Bluetooth-Gerät verbindet.</translation>
    </message>
    <message>
        <source>Tell when files arrive from nearby devices.</source>
        <translation>Melden, wenn Dateien von Geräten in der Nähe eintreffen.</translation>
    </message>
    <message>
        <source>Warn when an accessory&apos;s battery runs low.</source>
        <translation>Warnen, wenn der Akku eines Zubehörs fast leer ist.</translation>
    </message>
    <message>
        <source>Percentage at which an accessory&apos;s battery counts as low.</source>
        <translation>Prozentwert, ab dem der Akku eines Zubehörs als schwach gilt.</translation>
    </message>
    <message>
        <source>Tell when sound moves to an accessory.</source>
        <translation>Melden, wenn der Ton zu einem Zubehör wechselt.</translation>
    </message>
    <message>
        <source>Tell when a Bluetooth accessory disconnects.</source>
        <translation>Melden, wenn sich ein Bluetooth-Gerät trennt.</translation>
    </message>
    <message>
        <source>Accessory batteries as a percentage or a ring.</source>
        <translation>Zubehör-Akkus als Prozentwert oder Ring.</translation>
    </message>
    <message>
        <source>Show the next meeting.</source>
        <translation>Nächstes Meeting zeigen.</translation>
    </message>
    <message>
        <source>Minutes before a meeting that it appears.</source>
        <translation>Minuten vor einem Meeting, ab denen es erscheint.</translation>
    </message>
    <message>
        <source>Calendars whose events are never shown.</source>
        <translation>Kalender, deren Termine nie gezeigt werden.</translation>
    </message>
    <message>
        <source>The meeting&apos;s time as a countdown, its start time, or both.</source>
        <translation>Zeit des Meetings als Countdown, Startzeit oder beides.</translation>
    </message>
    <message>
        <source>Hide meeting titles.</source>
        <translation>Meeting-Titel ausblenden.</translation>
    </message>
    <message>
        <source>Play a sound when a meeting is about to start.</source>
        <translation>Einen Ton abspielen, wenn ein Meeting gleich beginnt.</translation>
    </message>
    <message>
        <source>Meetings whose start sound has played, so it plays once.</source>
        <translation>Meetings, deren Startton schon lief, damit er nur einmal spielt.</translation>
    </message>
    <message>
        <source>Show reminders that are due.</source>
        <translation>Fällige Erinnerungen zeigen.</translation>
    </message>
    <message>
        <source>Count travel time before meetings with a place.</source>
        <translation>Fahrzeit vor Meetings mit Ort einrechnen.</translation>
    </message>
    <message>
        <source>How you travel to meetings: by car, on foot or by transit.</source>
        <translation>Wie Sie zu Meetings kommen: mit dem Auto, zu Fuß oder mit ÖPNV.</translation>
    </message>
    <message>
        <source>Minutes added to the travel time.</source>
        <translation>Minuten, die zur Fahrzeit addiert werden.</translation>
    </message>
    <message>
        <source>Show the weather.</source>
        <translation>Wetter zeigen.</translation>
    </message>
    <message>
        <source>Show when a Focus mode is on.</source>
        <translation>Zeigen, wenn ein Fokus aktiv ist.</translation>
    </message>
    <message>
        <source>Keep a Focus mark on the notch while the Focus lasts.</source>
        <translation>Ein Fokus-Zeichen auf der Notch lassen, solange der Fokus dauert.</translation>
    </message>
    <message>
        <source>The Focus filter&apos;s last state, as written by the system.</source>
        <translation>Letzter Zustand des Fokusfilters, wie vom System geschrieben.</translation>
    </message>
    <message>
        <source>Swipes on the notch control playback.</source>
        <translation>Wischen auf der Notch steuert die Wiedergabe.</translation>
    </message>
    <message>
        <source>Sideways swipes change the track.</source>
        <translation>Seitliches Wischen wechselt den Titel.</translation>
    </message>
    <message>
        <source>Give feedback when a swipe is recognised.</source>
        <translation>Rückmeldung geben, wenn ein Wischen erkannt wird.</translation>
    </message>
    <message>
        <source>Dragging with the mouse works like swiping.</source>
        <translation>Ziehen mit der Maus wirkt wie Wischen.</translation>
    </message>
    <message>
        <source>Hide the notch over full-screen windows.</source>
        <translation>Notch über Vollbildfenstern ausblenden.</translation>
    </message>
    <message>
        <source>Hide the notch while a game runs.</source>
        <translation>Notch ausblenden, während ein Spiel läuft.</translation>
    </message>
    <message>
        <source>Applications treated as games, one per line.</source>
        <translation>Anwendungen, die als Spiele gelten, eine pro Zeile.</translation>
    </message>
    <message>
        <source>Hide the notch while windows are being arranged.</source>
        <translation>Notch ausblenden, während Fenster angeordnet werden.</translation>
    </message>
    <message>
        <source>Keep the notch out of screenshots and recordings.</source>
        <translation>Notch aus Bildschirmfotos und Aufnahmen heraushalten.</translation>
    </message>
    <message>
        <source>A translucent opened notch instead of black.</source>
        <translation>Geöffnete Notch durchscheinend statt schwarz.</translation>
    </message>
    <message>
        <source>The opened notch in black and white or in colour.</source>
        <translation>Die geöffnete Notch in Schwarzweiß oder in Farbe.</translation>
    </message>
    <message>
        <source>A soft glow around the opened notch.</source>
        <translation>Ein weiches Leuchten um die geöffnete Notch.</translation>
    </message>
    <message>
        <source>A brief flash when the notch opens.</source>
        <translation>Ein kurzes Aufblitzen beim Öffnen der Notch.</translation>
    </message>
    <message>
        <source>Colourful bars in the live spectrum.</source>
        <translation>Bunte Balken im Live-Spektrum.</translation>
    </message>
    <message>
        <source>A thin coloured rim on the closed notch.</source>
        <translation>Ein dünner farbiger Rand um die geschlossene Notch.</translation>
    </message>
    <message>
        <source>Show a live spectrum of the playing audio.</source>
        <translation>Live-Spektrum des laufenden Tons zeigen.</translation>
    </message>
    <message>
        <source>Show widgets on the lock screen (experimental).</source>
        <translation>Widgets auf dem Sperrbildschirm zeigen (experimentell).</translation>
    </message>
    <message>
        <source>The lock-screen widgets&apos; background: clear, light frost or frosted.</source>
        <translation>Hintergrund der Sperrbildschirm-Widgets: klar, leicht mattiert oder mattiert.</translation>
    </message>
    <message>
        <source>Vertical offset in points of the lock-screen widgets.</source>
        <translation>Vertikaler Versatz der Sperrbildschirm-Widgets in Punkt.</translation>
    </message>
    <message>
        <source>Keep the notch on the lock screen.</source>
        <translation>Notch auf dem Sperrbildschirm behalten.</translation>
    </message>
    <message>
        <source>The last lock-screen notice, kept to show it once.</source>
        <translation>Der letzte Sperrbildschirm-Hinweis, gemerkt, um ihn nur einmal zu zeigen.</translation>
    </message>
    <message>
        <source>The last lock-screen notch notice, kept to show it once.</source>
        <translation>Der letzte Notch-Hinweis des Sperrbildschirms, gemerkt, um ihn nur einmal zu zeigen.</translation>
    </message>
    <message>
        <source>Show keyboard backlight changes (experimental).</source>
        <translation>Änderungen der Tastaturbeleuchtung zeigen (experimentell).</translation>
    </message>
    <message>
        <source>The system version on which no keyboard backlight was found.</source>
        <translation>Die Systemversion, unter der keine Tastaturbeleuchtung gefunden wurde.</translation>
    </message>
    <message>
        <source>Show incoming calls (experimental).</source>
        <translation>Eingehende Anrufe zeigen (experimentell).</translation>
    </message>
    <message>
        <source>Show incoming messages (experimental).</source>
        <translation>Eingehende Nachrichten zeigen (experimentell).</translation>
    </message>
    <message>
        <source>Keep dropped files in a tray (experimental).</source>
        <translation>Abgelegte Dateien in einer Ablage sammeln (experimentell).</translation>
    </message>
    <message>
        <source>The tray keeps links to dropped files or copies of them.</source>
        <translation>Die Ablage speichert Verknüpfungen zu den Dateien oder Kopien davon.</translation>
    </message>
    <message>
        <source>Where the playing track comes from: automatic (the desktop&apos;s players), or only the player scripts of a Mac, which show nothing here.</source>
        <translation>Woher der laufende Titel kommt: automatisch (die Player des Desktops) oder nur die Player-Skripte eines Macs, die hier nichts zeigen.</translation>
    </message>
    <message>
        <source>Show volume changes in the notch. Alt-Shift with a volume or brightness key changes it in smaller steps.</source>
        <translation>Lautstärkeänderungen in der Notch zeigen. Alt+Umschalt mit einer Lautstärke- oder Helligkeitstaste ändert in kleineren Schritten.</translation>
    </message>
    <message>
        <source>Show brightness changes in the notch. Keys go to the desktop when the output or display cannot be controlled.</source>
        <translation>Helligkeitsänderungen in der Notch zeigen. Die Tasten gehen an den Desktop, wenn Ausgang oder Bildschirm nicht steuerbar sind.</translation>
    </message>
    <message>
        <source>The Focus filter&apos;s last state, as `tindra focus` wrote it.</source>
        <translation>Letzter Zustand des Fokusfilters, wie `tindra focus` ihn schrieb.</translation>
    </message>
    <message>
        <source>Sections pinned in the opened notch: tick them and drag them into order. With none ticked, every section with something to show appears.</source>
        <translation>In der geöffneten Notch angeheftete Bereiche: ankreuzen und in Reihenfolge ziehen. Ist keiner angekreuzt, erscheint jeder Bereich, der etwas zu zeigen hat.</translation>
    </message>
    <message>
        <source>Play the volume feedback sound on a desktop without a setting of its own for it (GNOME&apos;s event sounds and Plasma&apos;s audio feedback decide there). Hold Shift while pressing a volume key to do the opposite.</source>
        <translation>Den Lautstärkeklang auf Arbeitsumgebungen ohne eigene Einstellung dafür abspielen (bei GNOME entscheiden die Ereignisklänge, bei Plasma die Audio-Rückmeldung). Halte Umschalt beim Drücken einer Lautstärketaste, um das Gegenteil zu tun.</translation>
    </message>
</context>
<context>
    <name>SettingsNotes</name>
    <message>
        <source>No window can be drawn above the screen locker of a Linux desktop, so there are no lock-screen widgets here; the notch hides while the screen is locked.</source>
        <translation>Über der Bildschirmsperre eines Linux-Desktops kann kein Fenster gezeichnet werden, daher gibt es hier keine Sperrbildschirm-Widgets; die Notch verschwindet, solange der Bildschirm gesperrt ist.</translation>
    </message>
    <message>
        <source>If this computer ignores Tindra&apos;s changes, the keys go back to the desktop and the notch only shows the level.</source>
        <translation>Ignoriert dieser Computer die Änderungen von Tindra, gehen die Tasten an den Desktop zurück und die Notch zeigt nur den Pegel.</translation>
    </message>
    <message>
        <source>The warning appears once when the battery reaches this level, and again only after charging.</source>
        <translation>Die Warnung erscheint einmal, wenn der Akku diesen Stand erreicht, und erst nach dem Laden wieder.</translation>
    </message>
    <message>
        <source>Up to 20 items. Copies take up to 2 GB in total.</source>
        <translation>Bis zu 20 Objekte. Kopien belegen insgesamt bis zu 2 GB.</translation>
    </message>
    <message>
        <source>Links: Tindra remembers where they are; nothing is copied. Copies: Tindra keeps a copy, so they stay usable if the originals go; removing it from the tray deletes the copy, never the original.</source>
        <translation>Verknüpfungen: Tindra merkt sich, wo die Dateien liegen; nichts wird kopiert. Kopien: Tindra behält eine Kopie, sodass die Dateien nutzbar bleiben, auch wenn die Originale verschwinden; Entfernen aus der Ablage löscht die Kopie, nie das Original.</translation>
    </message>
    <message>
        <source>A ringing call shows only that it rings; answer it on the desktop&apos;s notification. Messages and missed calls show who and what, with a button that opens the application that sent them. Nothing is stored or sent, and nothing shows while do-not-disturb is on.</source>
        <translation>Ein klingelnder Anruf zeigt nur, dass es klingelt; angenommen wird er über die Benachrichtigung des Desktops. Nachrichten und verpasste Anrufe zeigen wer und was, mit einer Schaltfläche, die die sendende Anwendung öffnet. Nichts wird gespeichert oder gesendet, und bei „Nicht stören“ wird nichts gezeigt.</translation>
    </message>
    <message>
        <source>Scroll on the notch with two fingers or the mouse wheel, as if moving a page: down opens it, up closes it, sideways skips tracks.</source>
        <translation>Auf der Notch mit zwei Fingern oder dem Mausrad scrollen, als würde man eine Seite bewegen: nach unten öffnet, nach oben schließt, seitwärts wechselt den Titel.</translation>
    </message>
    <message>
        <source>The desktop shows through where the window manager draws windows translucent; elsewhere the glass is dark grey.</source>
        <translation>Der Desktop scheint durch, wo der Fenstermanager Fenster durchscheinend zeichnet; sonst ist das Glas dunkelgrau.</translation>
    </message>
    <message>
        <source>Drag the closed notch down to open it, or sideways to skip tracks; drag the opened one up from an empty spot to close it.</source>
        <translation>Ziehe die geschlossene Notch nach unten, um sie zu öffnen, oder zur Seite, um Titel zu wechseln; ziehe die geöffnete von einer leeren Stelle nach oben, um sie zu schließen.</translation>
    </message>
</context>
<context>
    <name>SettingsValues</name>
    <message>
        <source>monochrome</source>
        <translation>schwarzweiß</translation>
    </message>
    <message>
        <source>colorful</source>
        <translation>farbig</translation>
    </message>
    <message>
        <source>hover</source>
        <translation>beim Überfahren</translation>
    </message>
    <message>
        <source>click</source>
        <translation>per Klick</translation>
    </message>
    <message>
        <source>press and hold</source>
        <translation>gedrückt halten</translation>
    </message>
    <message>
        <source>short</source>
        <translation>kurz</translation>
    </message>
    <message>
        <source>medium</source>
        <translation>mittel</translation>
    </message>
    <message>
        <source>long</source>
        <translation>lang</translation>
    </message>
    <message>
        <source>white</source>
        <translation>weiß</translation>
    </message>
    <message>
        <source>countdown</source>
        <translation>Countdown</translation>
    </message>
    <message>
        <source>start time</source>
        <translation>Startzeit</translation>
    </message>
    <message>
        <source>both</source>
        <translation>beides</translation>
    </message>
    <message>
        <source>automobile</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>walking</source>
        <translation>zu Fuß</translation>
    </message>
    <message>
        <source>transit</source>
        <translation>ÖPNV</translation>
    </message>
    <message>
        <source>link</source>
        <translation>Verknüpfungen</translation>
    </message>
    <message>
        <source>copy</source>
        <translation>Kopien</translation>
    </message>
    <message>
        <source>continuous</source>
        <translation>durchgehend</translation>
    </message>
    <message>
        <source>segmented</source>
        <translation>segmentiert</translation>
    </message>
    <message>
        <source>ring</source>
        <translation>Ring</translation>
    </message>
    <message>
        <source>level</source>
        <translation>nach Pegel</translation>
    </message>
    <message>
        <source>accent</source>
        <translation>Akzentfarbe</translation>
    </message>
    <message>
        <source>clear</source>
        <translation>klar</translation>
    </message>
    <message>
        <source>light frost</source>
        <translation>leicht mattiert</translation>
    </message>
    <message>
        <source>frosted</source>
        <translation>mattiert</translation>
    </message>
    <message>
        <source>until resumed</source>
        <translation>bis zur Fortsetzung</translation>
    </message>
    <message>
        <source>standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>artwork</source>
        <translation>Cover</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>automatisch</translation>
    </message>
    <message>
        <source>AppleScript only</source>
        <translation>nur AppleScript</translation>
    </message>
    <message>
        <source>percentage</source>
        <translation>Prozent</translation>
    </message>
</context>
<context>
    <name>WeatherPanel</name>
    <message>
        <source>Weather</source>
        <translation>Wetter</translation>
    </message>
</context>
<context>
    <name>tindra::AdapterCheck</name>
    <message>
        <source>nothing playing</source>
        <translation>keine Wiedergabe</translation>
    </message>
    <message>
        <source>Stream gave %1 update(s) and %2 unreadable line(s) in %3 s: %4.</source>
        <translation>Der Stream lieferte %1 Aktualisierung(en) und %2 unlesbare Zeile(n) in %3 s: %4.</translation>
    </message>
    <message>
        <source>Stream skipped because the self-test failed.</source>
        <translation>Stream übersprungen, da der Selbsttest fehlschlug.</translation>
    </message>
    <message>
        <source>Could not launch stream: %1</source>
        <translation>Stream konnte nicht gestartet werden: %1</translation>
    </message>
</context>
<context>
    <name>tindra::AdapterNowPlayingSource</name>
    <message>
        <source>following the players through the adapter&apos;s stream</source>
        <translation>folgt den Playern über den Stream des Adapters</translation>
    </message>
    <message>
        <source>the adapter&apos;s stream keeps failing: testing the adapter again</source>
        <translation>der Stream des Adapters fällt immer wieder aus: Adapter wird erneut getestet</translation>
    </message>
</context>
<context>
    <name>tindra::AdapterProbe</name>
    <message>
        <source>The adapter&apos;s self-test did not finish within %1 s.</source>
        <translation>Der Selbsttest des Adapters endete nicht innerhalb von %1 s.</translation>
    </message>
    <message>
        <source>Could not launch %1: %2</source>
        <translation>%1 konnte nicht gestartet werden: %2</translation>
    </message>
    <message>
        <source>The adapter&apos;s self-test passed.</source>
        <translation>Der Selbsttest des Adapters war erfolgreich.</translation>
    </message>
    <message>
        <source>The adapter&apos;s self-test failed with exit status %1.</source>
        <translation>Der Selbsttest des Adapters schlug mit Exit-Status %1 fehl.</translation>
    </message>
    <message>
        <source>Adapter not bundled; missing: %1 %2</source>
        <translation>Adapter nicht mitgeliefert; fehlt: %1 %2</translation>
    </message>
</context>
<context>
    <name>tindra::BannerProvider</name>
    <message>
        <source>Open %1</source>
        <translation>%1 öffnen</translation>
    </message>
</context>
<context>
    <name>tindra::BlueZAccessoryBackend</name>
    <message>
        <source>asking BlueZ for the accessories</source>
        <translation>fragt BlueZ nach dem Zubehör</translation>
    </message>
    <message>
        <source>BlueZ does not answer (%1): no accessories are shown</source>
        <translation>BlueZ antwortet nicht (%1): kein Zubehör wird gezeigt</translation>
    </message>
    <message>
        <source>BlueZ went away: no accessories are shown until it returns</source>
        <translation>BlueZ ist weg: kein Zubehör wird gezeigt, bis es zurückkehrt</translation>
    </message>
    <message>
        <source>following BlueZ: %1 Bluetooth devices known</source>
        <translation>folgt BlueZ: %1 Bluetooth-Geräte bekannt</translation>
    </message>
</context>
<context>
    <name>tindra::BusLevelCommandSource</name>
    <message>
        <source>asking the session bus for the name of the level commands</source>
        <translation>fragt den Sitzungsbus nach dem Namen für die Pegelbefehle</translation>
    </message>
    <message>
        <source>`tindra level` commands step the levels (%1 on the session bus)</source>
        <translation>`tindra level` ändert die Pegel (%1 auf dem Sitzungsbus)</translation>
    </message>
    <message>
        <source>another program holds %1 on the session bus: `tindra level` commands go there</source>
        <translation>ein anderes Programm hält %1 auf dem Sitzungsbus: `tindra level`-Befehle gehen dorthin</translation>
    </message>
</context>
<context>
    <name>tindra::CalendarFeed</name>
    <message>
        <source>not read yet</source>
        <translation>noch nicht gelesen</translation>
    </message>
    <message>
        <source>%1; the last good copy is kept</source>
        <translation>%1; die letzte gute Kopie bleibt erhalten</translation>
    </message>
    <message numerus="yes">
        <source>%n document(s) could not be read (%1)</source>
        <translation>
            <numerusform>%n Dokument konnte nicht gelesen werden (%1)</numerusform>
            <numerusform>%n Dokumente konnten nicht gelesen werden (%1)</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 events in view</source>
        <translation>%1 Termine im Zeitraum</translation>
    </message>
    <message>
        <source>, %1 to-dos</source>
        <translation>, %1 Aufgaben</translation>
    </message>
</context>
<context>
    <name>tindra::CalendarListEditor</name>
    <message>
        <source>A file, a folder, or an https:// or webcal:// address</source>
        <translation>Datei, Ordner oder https://- oder webcal://-Adresse</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Choose File…</source>
        <translation>Datei wählen…</translation>
    </message>
    <message>
        <source>Add a Calendar</source>
        <translation>Kalender hinzufügen</translation>
    </message>
    <message>
        <source>iCalendar (*.ics);;All files (*)</source>
        <translation>iCalendar (*.ics);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Your mail addresses, separated by commas</source>
        <translation>Ihre E-Mail-Adressen, durch Kommas getrennt</translation>
    </message>
    <message>
        <source>Invitations you declined at these addresses are not shown.</source>
        <translation>Einladungen, die Sie unter diesen Adressen abgelehnt haben, werden nicht gezeigt.</translation>
    </message>
    <message>
        <source>No calendars yet.</source>
        <translation>Noch keine Kalender.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
</context>
<context>
    <name>tindra::CalendarProvider</name>
    <message>
        <source>the calendar is off in Settings</source>
        <translation>der Kalender ist in den Einstellungen aus</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Termin</translation>
    </message>
    <message>
        <source>Reminder</source>
        <translation>Erinnerung</translation>
    </message>
</context>
<context>
    <name>tindra::CalendarTexts</name>
    <message>
        <source>%1 min</source>
        <translation>%1 Min.</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 Std.</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 Std. %2 Min.</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Jetzt</translation>
    </message>
    <message>
        <source>in %1</source>
        <translation>in %1</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>Noch %1</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Beendet</translation>
    </message>
    <message>
        <source>Leave in %1</source>
        <translation>Aufbruch in %1</translation>
    </message>
    <message>
        <source>%1 late</source>
        <translation>%1 zu spät</translation>
    </message>
    <message>
        <source>Leave now</source>
        <translation>Jetzt aufbrechen</translation>
    </message>
    <message>
        <source>All day</source>
        <translation>Ganztägig</translation>
    </message>
</context>
<context>
    <name>tindra::DBusNotificationMonitor</name>
    <message>
        <source>calls and messages are off: notifications are not read</source>
        <translation>Anrufe und Nachrichten sind aus: Benachrichtigungen werden nicht gelesen</translation>
    </message>
    <message>
        <source>the session bus does not let Tindra read notifications (%1): no calls or messages are shown</source>
        <translation>der Sitzungsbus lässt Tindra keine Benachrichtigungen lesen (%1): keine Anrufe oder Nachrichten werden gezeigt</translation>
    </message>
    <message>
        <source>no notification server runs on the session bus: calls and messages show once one starts</source>
        <translation>auf dem Sitzungsbus läuft kein Benachrichtigungsserver: Anrufe und Nachrichten erscheinen, sobald einer startet</translation>
    </message>
    <message>
        <source>reading notification banners for calls and messages</source>
        <translation>liest Benachrichtigungsbanner für Anrufe und Nachrichten</translation>
    </message>
    <message>
        <source>the session bus closed the notification monitor: no calls or messages are shown</source>
        <translation>der Sitzungsbus hat die Benachrichtigungsüberwachung beendet: keine Anrufe oder Nachrichten werden gezeigt</translation>
    </message>
</context>
<context>
    <name>tindra::DiagnosticsWindow</name>
    <message>
        <source>Tindra Diagnostics</source>
        <translation>Tindra-Diagnose</translation>
    </message>
    <message>
        <source>Copy report</source>
        <translation>Bericht kopieren</translation>
    </message>
</context>
<context>
    <name>tindra::DisplayChangeLog</name>
    <message>
        <source>display %1 went away</source>
        <translation>Bildschirm %1 ist weg</translation>
    </message>
    <message>
        <source>display %1 is connected</source>
        <translation>Bildschirm %1 ist angeschlossen</translation>
    </message>
</context>
<context>
    <name>tindra::DisplaySelectionEditor</name>
    <message>
        <source>While the chosen display is not connected, the notch is on the main display.</source>
        <translation>Solange der gewählte Bildschirm nicht angeschlossen ist, ist die Notch auf dem Hauptbildschirm.</translation>
    </message>
    <message>
        <source>Every display</source>
        <translation>Alle Bildschirme</translation>
    </message>
    <message>
        <source>Main display</source>
        <translation>Hauptbildschirm</translation>
    </message>
    <message>
        <source>Main display (%1)</source>
        <translation>Hauptbildschirm (%1)</translation>
    </message>
    <message>
        <source>%1 (not connected)</source>
        <translation>%1 (nicht angeschlossen)</translation>
    </message>
    <message numerus="yes">
        <source>%1 (%n displays)</source>
        <translation>
            <numerusform>%1 (%n Bildschirm)</numerusform>
            <numerusform>%1 (%n Bildschirme)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tindra::EdsCalendarFeed</name>
    <message>
        <source>Evolution Data Server&apos;s calendar factory does not answer (%1)</source>
        <translation>die Kalenderfabrik von Evolution Data Server antwortet nicht (%1)</translation>
    </message>
    <message>
        <source>Evolution Data Server&apos;s calendar factory went away: the events last read are kept until it returns</source>
        <translation>die Kalenderfabrik von Evolution Data Server ist weg: die zuletzt gelesenen Termine bleiben, bis sie zurückkommt</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a calendar and its account</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Evolution Data Server, source %1</source>
        <translation>Evolution Data Server, Quelle %1</translation>
    </message>
    <message>
        <source>Evolution Data Server cannot open the calendar: %1</source>
        <translation>Evolution Data Server kann den Kalender nicht öffnen: %1</translation>
    </message>
    <message>
        <source>the calendar&apos;s backend went away: the events last read are kept until it is open again</source>
        <translation>das Backend des Kalenders ist weg: die zuletzt gelesenen Termine bleiben, bis er wieder offen ist</translation>
    </message>
    <message>
        <source>Evolution Data Server gives no view of the calendar: %1</source>
        <translation>Evolution Data Server liefert keine Ansicht des Kalenders: %1</translation>
    </message>
    <message>
        <source>Evolution Data Server&apos;s view of the calendar does not start: %1</source>
        <translation>die Ansicht des Kalenders in Evolution Data Server startet nicht: %1</translation>
    </message>
    <message>
        <source>Evolution Data Server could not list the calendar: %1</source>
        <translation>Evolution Data Server konnte den Kalender nicht auflisten: %1</translation>
    </message>
</context>
<context>
    <name>tindra::EdsSourceRegistry</name>
    <message>
        <source>asking Evolution Data Server for its calendars</source>
        <translation>fragt Evolution Data Server nach seinen Kalendern</translation>
    </message>
    <message>
        <source>Evolution Data Server is not running (%1): its calendars and online accounts are not read</source>
        <translation>Evolution Data Server läuft nicht (%1): seine Kalender und Online-Konten werden nicht gelesen</translation>
    </message>
    <message>
        <source>Evolution Data Server&apos;s source registry went away: its calendars are kept as they were until it returns</source>
        <translation>die Quellenverwaltung von Evolution Data Server ist weg: ihre Kalender bleiben, wie sie waren, bis sie zurückkommt</translation>
    </message>
    <message numerus="yes">
        <source>Evolution Data Server gives %n calendar(s)</source>
        <translation>
            <numerusform>Evolution Data Server liefert %n Kalender</numerusform>
            <numerusform>Evolution Data Server liefert %n Kalender</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n without an account</source>
        <translation>
            <numerusform>%n ohne Konto</numerusform>
            <numerusform>%n ohne Konto</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n from %1</source>
        <translation>
            <numerusform>%n von %1</numerusform>
            <numerusform>%n von %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tindra::FakeAccessoryBackend</name>
    <message>
        <source>invented accessories (TINDRA_FAKE asks for them)</source>
        <translation>erfundenes Zubehör (TINDRA_FAKE verlangt es)</translation>
    </message>
</context>
<context>
    <name>tindra::FakeBacklightBackend</name>
    <message>
        <source>invented readings (TINDRA_FAKE asks for them)</source>
        <translation>erfundene Messwerte (TINDRA_FAKE verlangt sie)</translation>
    </message>
</context>
<context>
    <name>tindra::FakeBatteryBackend</name>
    <message>
        <source>invented readings (TINDRA_FAKE asks for them)</source>
        <translation>erfundene Messwerte (TINDRA_FAKE verlangt sie)</translation>
    </message>
</context>
<context>
    <name>tindra::FakeCalendarBackend</name>
    <message>
        <source>invented</source>
        <translation>erfunden</translation>
    </message>
    <message>
        <source>The invented calendars take no additions.</source>
        <translation>Zu den erfundenen Kalendern lässt sich nichts hinzufügen.</translation>
    </message>
</context>
<context>
    <name>tindra::FakeFileTrayBackend</name>
    <message>
        <source>invented files (TINDRA_FAKE asks for them)</source>
        <translation>erfundene Dateien (TINDRA_FAKE verlangt sie)</translation>
    </message>
</context>
<context>
    <name>tindra::FakeFocusStatusSource</name>
    <message>
        <source>invented do-not-disturb (TINDRA_FAKE)</source>
        <translation>erfundenes „Nicht stören“ (TINDRA_FAKE)</translation>
    </message>
</context>
<context>
    <name>tindra::FakeLocationSource</name>
    <message>
        <source>an invented position (TINDRA_FAKE)</source>
        <translation>eine erfundene Position (TINDRA_FAKE)</translation>
    </message>
</context>
<context>
    <name>tindra::FakeLockStateSource</name>
    <message>
        <source>invented screen lock (TINDRA_FAKE)</source>
        <translation>erfundene Bildschirmsperre (TINDRA_FAKE)</translation>
    </message>
</context>
<context>
    <name>tindra::FakeNotificationSource</name>
    <message>
        <source>invented notifications (TINDRA_FAKE)</source>
        <translation>erfundene Benachrichtigungen (TINDRA_FAKE)</translation>
    </message>
</context>
<context>
    <name>tindra::FakeNowPlayingSource</name>
    <message>
        <source>an invented track (TINDRA_FAKE asks for it)</source>
        <translation>ein erfundener Titel (TINDRA_FAKE verlangt ihn)</translation>
    </message>
</context>
<context>
    <name>tindra::FakeVisibilitySource</name>
    <message>
        <source>an invented window in front (TINDRA_FAKE)</source>
        <translation>ein erfundenes Fenster im Vordergrund (TINDRA_FAKE)</translation>
    </message>
</context>
<context>
    <name>tindra::FakeVolumeBackend</name>
    <message>
        <source>invented readings (TINDRA_FAKE asks for them)</source>
        <translation>erfundene Messwerte (TINDRA_FAKE verlangt sie)</translation>
    </message>
</context>
<context>
    <name>tindra::FakeVolumeSoundPreference</name>
    <message>
        <source>an invented volume sound setting (TINDRA_FAKE asks for it)</source>
        <translation>eine erfundene Einstellung für den Lautstärkeklang (TINDRA_FAKE verlangt sie)</translation>
    </message>
</context>
<context>
    <name>tindra::FileTrayProvider</name>
    <message>
        <source>keeping the file tray in %1</source>
        <translation>speichert die Dateiablage in %1</translation>
    </message>
    <message>
        <source>some items of the saved file tray could not be read and were left out; the list as it was is kept as %1</source>
        <translation>einige Objekte der gespeicherten Dateiablage waren unlesbar und wurden ausgelassen; die ursprüngliche Liste bleibt als %1 erhalten</translation>
    </message>
    <message>
        <source>the saved file tray %1; it is kept as %2 and the tray starts empty</source>
        <translation>die gespeicherte Dateiablage %1; sie bleibt als %2 erhalten, und die Ablage startet leer</translation>
    </message>
    <message>
        <source>was written by a newer Tindra</source>
        <translation>wurde von einem neueren Tindra geschrieben</translation>
    </message>
    <message>
        <source>could not be read</source>
        <translation>war unlesbar</translation>
    </message>
    <message>
        <source>Only files and folders can go in the tray.</source>
        <translation>Nur Dateien und Ordner passen in die Ablage.</translation>
    </message>
    <message>
        <source>Already in the tray:</source>
        <translation>Schon in der Ablage:</translation>
    </message>
    <message>
        <source>The tray is full:</source>
        <translation>Die Ablage ist voll:</translation>
    </message>
    <message>
        <source>not added. Remove some items first.</source>
        <translation>– nicht hinzugefügt. Entfernen Sie zuerst einige Objekte.</translation>
    </message>
    <message>
        <source>Only files and folders can go in the tray:</source>
        <translation>Nur Dateien und Ordner passen in die Ablage:</translation>
    </message>
    <message>
        <source>Copies in the tray are limited to 2 GB:</source>
        <translation>Kopien in der Ablage sind auf 2 GB begrenzt:</translation>
    </message>
    <message>
        <source>could not be copied into the tray.</source>
        <translation>– Kopieren in die Ablage fehlgeschlagen.</translation>
    </message>
    <message>
        <source>The copy into the tray was stopped.</source>
        <translation>Das Kopieren in die Ablage wurde abgebrochen.</translation>
    </message>
    <message>
        <source>the file tray is not saved: an unreadable list could not be moved aside</source>
        <translation>die Dateiablage wird nicht gespeichert: eine unlesbare Liste ließ sich nicht beiseitelegen</translation>
    </message>
    <message numerus="yes">
        <source>Copying %n item(s) into the tray…</source>
        <translation>
            <numerusform>%n Objekt wird in die Ablage kopiert…</numerusform>
            <numerusform>%n Objekte werden in die Ablage kopiert…</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tindra::FocusViewModel</name>
    <message>
        <source>Focus</source>
        <translation>Fokus</translation>
    </message>
</context>
<context>
    <name>tindra::GSettingsFocusSource</name>
    <message>
        <source>reading do-not-disturb from GNOME&apos;s settings (show-banners)</source>
        <translation>liest „Nicht stören“ aus den Einstellungen von GNOME (show-banners)</translation>
    </message>
    <message>
        <source>GNOME&apos;s notification settings are not installed: do-not-disturb is unknown</source>
        <translation>die Benachrichtigungseinstellungen von GNOME sind nicht installiert: „Nicht stören“ ist unbekannt</translation>
    </message>
</context>
<context>
    <name>tindra::GSettingsVolumeSoundPreference</name>
    <message>
        <source>the volume sound follows GNOME&apos;s event sounds setting</source>
        <translation>der Lautstärkeklang folgt GNOMEs Einstellung für Ereignisklänge</translation>
    </message>
    <message>
        <source>GNOME&apos;s sound settings are not installed: the volume sound follows Tindra&apos;s own setting</source>
        <translation>GNOMEs Klangeinstellungen sind nicht installiert: der Lautstärkeklang folgt Tindras eigener Einstellung</translation>
    </message>
</context>
<context>
    <name>tindra::GeoClueLocationSource</name>
    <message>
        <source>asking GeoClue for the position</source>
        <translation>fragt GeoClue nach der Position</translation>
    </message>
    <message>
        <source>GeoClue went away: the last position stays until it returns</source>
        <translation>GeoClue ist weg: die letzte Position bleibt, bis es zurückkehrt</translation>
    </message>
    <message>
        <source>GeoClue is not available (%1)</source>
        <translation>GeoClue ist nicht verfügbar (%1)</translation>
    </message>
    <message>
        <source>GeoClue refused the position (%1)</source>
        <translation>GeoClue verweigert die Position (%1)</translation>
    </message>
    <message>
        <source>GeoClue gives the position, at city accuracy</source>
        <translation>GeoClue liefert die Position, auf Stadtebene genau</translation>
    </message>
</context>
<context>
    <name>tindra::HudProvider</name>
    <message>
        <source>the keyboard backlight ignores Tindra&apos;s changes: the keys go back to the desktop and the notch only shows the level</source>
        <translation>die Tastaturbeleuchtung ignoriert die Änderungen von Tindra: die Tasten gehen an den Desktop zurück und die Notch zeigt nur den Pegel</translation>
    </message>
    <message>
        <source>holds %1</source>
        <translation>hält %1</translation>
    </message>
    <message>
        <source>only watches the level for %1 (another program holds them)</source>
        <translation>beobachtet nur den Pegel für %1 (ein anderes Programm hält sie)</translation>
    </message>
    <message>
        <source>leaves %1 to the desktop</source>
        <translation>überlässt %1 dem Desktop</translation>
    </message>
</context>
<context>
    <name>tindra::ICalendarBackend</name>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 ist unlesbar: %2</translation>
    </message>
    <message>
        <source>the calendar list was not readable and was set aside as %1</source>
        <translation>die Kalenderliste war unlesbar und wurde als %1 beiseitegelegt</translation>
    </message>
    <message>
        <source>not read while the calendar is off</source>
        <translation>nicht gelesen, solange der Kalender aus ist</translation>
    </message>
    <message>
        <source>Give a file, a folder or an address.</source>
        <translation>Geben Sie eine Datei, einen Ordner oder eine Adresse an.</translation>
    </message>
    <message>
        <source>Use an https:// or webcal:// address: a calendar fetched over plain http can be read by anyone on the way.</source>
        <translation>Verwenden Sie eine https://- oder webcal://-Adresse: Ein über einfaches http geladener Kalender kann unterwegs von jedem gelesen werden.</translation>
    </message>
    <message>
        <source>This calendar is already in the list.</source>
        <translation>Dieser Kalender ist schon in der Liste.</translation>
    </message>
    <message numerus="yes">
        <source>reading %n iCalendar calendar(s)</source>
        <translation>
            <numerusform>liest %n iCalendar-Kalender</numerusform>
            <numerusform>liest %n iCalendar-Kalender</numerusform>
        </translation>
    </message>
    <message>
        <source>no calendars: add an iCalendar file, folder or address in Settings</source>
        <translation>keine Kalender: fügen Sie in den Einstellungen eine iCalendar-Datei, einen Ordner oder eine Adresse hinzu</translation>
    </message>
</context>
<context>
    <name>tindra::IdleClock</name>
    <message>
        <source>dddd d MMMM</source>
        <comment>the opened notch&apos;s date: Qt date format</comment>
        <translation>dddd, d. MMMM</translation>
    </message>
</context>
<context>
    <name>tindra::LocalCalendarFeed</name>
    <message>
        <source>%1 is not there</source>
        <translation>%1 existiert nicht</translation>
    </message>
    <message>
        <source>%1 cannot be read</source>
        <translation>%1 ist unlesbar</translation>
    </message>
</context>
<context>
    <name>tindra::LogindLockSource</name>
    <message>
        <source>asking logind for the session</source>
        <translation>fragt logind nach der Sitzung</translation>
    </message>
    <message>
        <source>logind went away: the screen lock is not followed until it returns</source>
        <translation>logind ist weg: die Bildschirmsperre wird nicht verfolgt, bis es zurückkehrt</translation>
    </message>
    <message>
        <source>logind does not know this session (%1): the screen lock is not followed</source>
        <translation>logind kennt diese Sitzung nicht (%1): die Bildschirmsperre wird nicht verfolgt</translation>
    </message>
    <message>
        <source>logind does not answer (%1): the screen lock is not followed</source>
        <translation>logind antwortet nicht (%1): die Bildschirmsperre wird nicht verfolgt</translation>
    </message>
    <message>
        <source>following the screen lock of logind&apos;s session %1</source>
        <translation>folgt der Bildschirmsperre der logind-Sitzung %1</translation>
    </message>
</context>
<context>
    <name>tindra::NotificationServerFocusSource</name>
    <message>
        <source>asking the notification server for do-not-disturb</source>
        <translation>fragt den Benachrichtigungsserver nach „Nicht stören“</translation>
    </message>
    <message>
        <source>no notification server runs: do-not-disturb is unknown until one starts</source>
        <translation>kein Benachrichtigungsserver läuft: „Nicht stören“ ist unbekannt, bis einer startet</translation>
    </message>
    <message>
        <source>the notification server went away: do-not-disturb is unknown until it returns</source>
        <translation>der Benachrichtigungsserver ist weg: „Nicht stören“ ist unbekannt, bis er zurückkehrt</translation>
    </message>
    <message>
        <source>reading do-not-disturb from the notification server (Inhibited)</source>
        <translation>liest „Nicht stören“ vom Benachrichtigungsserver (Inhibited)</translation>
    </message>
    <message>
        <source>the notification server does not report do-not-disturb (no Inhibited property): only `tindra focus` shows a Focus</source>
        <translation>der Benachrichtigungsserver meldet „Nicht stören“ nicht (keine Inhibited-Eigenschaft): nur `tindra focus` zeigt einen Fokus</translation>
    </message>
</context>
<context>
    <name>tindra::NowPlayingProvider</name>
    <message>
        <source>Settings ask for the player scripts, which this desktop does not have: nothing is shown as playing.</source>
        <translation>Die Einstellungen verlangen die Player-Skripte, die dieser Desktop nicht hat: nichts wird als laufend gezeigt.</translation>
    </message>
    <message>
        <source>testing the now-playing adapter %1</source>
        <translation>testet den „Jetzt läuft“-Adapter %1</translation>
    </message>
    <message>
        <source>a player without a name</source>
        <translation>ein Player ohne Namen</translation>
    </message>
    <message>
        <source>following %1</source>
        <translation>folgt %1</translation>
    </message>
    <message>
        <source>%1 left: nothing is playing</source>
        <translation>%1 ist weg: nichts wird abgespielt</translation>
    </message>
</context>
<context>
    <name>tindra::OnboardingWindow</name>
    <message>
        <source>Welcome to Tindra</source>
        <translation>Willkommen bei Tindra</translation>
    </message>
    <message>
        <source>&lt;b&gt;The notch opens&lt;/b&gt;</source>
        <translation>&lt;b&gt;Die Notch öffnet sich&lt;/b&gt;</translation>
    </message>
    <message>
        <source>when the pointer rests on it</source>
        <translation>wenn der Zeiger darauf ruht</translation>
    </message>
    <message>
        <source>when you click it</source>
        <translation>wenn Sie sie anklicken</translation>
    </message>
    <message>
        <source>when you press and hold it</source>
        <translation>wenn Sie sie gedrückt halten</translation>
    </message>
    <message>
        <source>Start Tindra when I log in</source>
        <translation>Tindra bei der Anmeldung starten</translation>
    </message>
    <message>
        <source>Start Using Tindra</source>
        <translation>Tindra verwenden</translation>
    </message>
    <message>
        <source>&lt;h2&gt;Welcome to Tindra&lt;/h2&gt;&lt;p&gt;The strip at the top of your display is now a small live display. Closed, it shows one thing at a time: what is playing, a volume or brightness level, a battery or headphone notice, the next meeting, a call or a message. Rest the pointer on it and it opens into a panel with the controls, your calendar, the weather, your batteries and a file tray. Everything stays on this computer.&lt;/p&gt;&lt;p&gt;&lt;b&gt;What Tindra found here&lt;/b&gt; (✓ works, – off or waiting, ✗ missing), and what you can do:&lt;/p&gt;</source>
        <translation>&lt;h2&gt;Willkommen bei Tindra&lt;/h2&gt;&lt;p&gt;Der Streifen oben auf deinem Bildschirm ist jetzt eine kleine Live-Anzeige. Geschlossen zeigt er eins nach dem anderen: was läuft, Lautstärke oder Helligkeit, einen Akku- oder Kopfhörerhinweis, das nächste Meeting, einen Anruf oder eine Nachricht. Lass den Zeiger darauf ruhen, und er öffnet sich zu einem Feld mit den Bedienelementen, deinem Kalender, dem Wetter, deinen Akkus und einer Dateiablage. Alles bleibt auf diesem Computer.&lt;/p&gt;&lt;p&gt;&lt;b&gt;Was Tindra hier gefunden hat&lt;/b&gt; (✓ funktioniert, – aus oder wartet, ✗ fehlt) und was du tun kannst:&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Each service&apos;s own report is in Diagnostics… on Tindra&apos;s menu, for a bug report.</source>
        <translation>Der eigene Bericht jedes Dienstes steht für Fehlerberichte unter Diagnose… in Tindras Menü.</translation>
    </message>
</context>
<context>
    <name>tindra::PinnedSectionsEditor</name>
    <message>
        <source>Tick the sections to pin and drag them into order</source>
        <translation>Bereiche zum Anheften ankreuzen und in Reihenfolge ziehen</translation>
    </message>
</context>
<context>
    <name>tindra::PlasmaVolumeSoundPreference</name>
    <message>
        <source>the volume sound follows the audio feedback setting of Plasma&apos;s volume applet</source>
        <translation>der Lautstärkeklang folgt der Audio-Rückmeldung des Lautstärke-Miniprogramms von Plasma</translation>
    </message>
</context>
<context>
    <name>tindra::PlasmaWindowVisibilitySource</name>
    <message>
        <source>following the active window and full-screen state from KWin&apos;s window list (Plasma window management)</source>
        <translation>folgt dem aktiven Fenster und dem Vollbildzustand aus der Fensterliste von KWin (Plasma window management)</translation>
    </message>
</context>
<context>
    <name>tindra::PosixFileTrayBackend</name>
    <message>
        <source>files are known by their device and inode</source>
        <translation>Dateien werden an Gerät und Inode erkannt</translation>
    </message>
</context>
<context>
    <name>tindra::PulseProcessTapSession</name>
    <message>
        <source>no sound server to listen to</source>
        <translation>kein Soundserver zum Mithören</translation>
    </message>
    <message>
        <source>the player&apos;s own stream (%1)</source>
        <translation>der eigene Stream des Players (%1)</translation>
    </message>
    <message>
        <source>the default output</source>
        <translation>der Standardausgang</translation>
    </message>
    <message>
        <source>the sound server has no output to listen to</source>
        <translation>der Soundserver hat keinen Ausgang zum Mithören</translation>
    </message>
    <message>
        <source> on </source>
        <translation> auf </translation>
    </message>
    <message>
        <source>the sound server refused a capture stream</source>
        <translation>der Soundserver hat einen Aufnahmestream abgelehnt</translation>
    </message>
</context>
<context>
    <name>tindra::PulseVolumeBackend</name>
    <message>
        <source>connecting to the sound server</source>
        <translation>verbindet mit dem Soundserver</translation>
    </message>
    <message>
        <source>following the sound server&apos;s default output</source>
        <translation>folgt dem Standardausgang des Soundservers</translation>
    </message>
    <message>
        <source>the sound server went away: no volume until it returns</source>
        <translation>der Soundserver ist weg: keine Lautstärke, bis er zurückkehrt</translation>
    </message>
    <message>
        <source>no sound server answers: the volume shows as soon as PipeWire or PulseAudio runs</source>
        <translation>kein Soundserver antwortet: die Lautstärke erscheint, sobald PipeWire oder PulseAudio läuft</translation>
    </message>
</context>
<context>
    <name>tindra::RemoteCalendarFeed</name>
    <message>
        <source>%1 is not an https address</source>
        <translation>%1 ist keine https-Adresse</translation>
    </message>
    <message>
        <source>HTTP %1</source>
        <translation>HTTP %1</translation>
    </message>
    <message>
        <source>could not fetch %1 (%2)</source>
        <translation>%1 konnte nicht geladen werden (%2)</translation>
    </message>
</context>
<context>
    <name>tindra::ScreenSource</name>
    <message>
        <source>Built-in display</source>
        <translation>Eingebauter Bildschirm</translation>
    </message>
</context>
<context>
    <name>tindra::SettingsWindow</name>
    <message>
        <source>Tindra Settings</source>
        <translation>Tindra-Einstellungen</translation>
    </message>
    <message>
        <source>Search settings</source>
        <translation>Einstellungen durchsuchen</translation>
    </message>
    <message>
        <source>Reset Page</source>
        <translation>Seite zurücksetzen</translation>
    </message>
    <message>
        <source>Use the default value of every setting on this page</source>
        <translation>Für jede Einstellung auf dieser Seite den Standardwert verwenden</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Use the default value</source>
        <translation>Standardwert verwenden</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(keine)</translation>
    </message>
    <message>
        <source>The change was not saved: %1</source>
        <translation>Die Änderung wurde nicht gespeichert: %1</translation>
    </message>
</context>
<context>
    <name>tindra::ShellActions</name>
    <message>
        <source>Settings…</source>
        <translation>Einstellungen…</translation>
    </message>
    <message>
        <source>Diagnostics…</source>
        <translation>Diagnose…</translation>
    </message>
    <message>
        <source>Start at Login</source>
        <translation>Bei Anmeldung starten</translation>
    </message>
    <message>
        <source>Quit Tindra</source>
        <translation>Tindra beenden</translation>
    </message>
    <message>
        <source>Each service Tindra uses says here whether it answers, and every change since Tindra started is in the log. The report has the versions, the session and the log, for a bug report; it names none of your files, events or messages.</source>
        <translation>Hier zeigt jeder Dienst, den Tindra nutzt, ob er antwortet, und jede Änderung seit dem Start von Tindra steht im Protokoll. Der Bericht enthält die Versionen, die Sitzung und das Protokoll für einen Fehlerbericht; er nennt keine Ihrer Dateien, Termine oder Nachrichten.</translation>
    </message>
    <message>
        <source>No keyboard backlight that Tindra can control was found on this computer.</source>
        <translation>Auf diesem Computer wurde keine Tastaturbeleuchtung gefunden, die Tindra steuern kann.</translation>
    </message>
    <message>
        <source>Tindra could not read the keyboard backlight just now, so this was turned off. Try again with the lid open.</source>
        <translation>Tindra konnte die Tastaturbeleuchtung gerade nicht lesen, daher wurde dies ausgeschaltet. Versuche es bei geöffnetem Deckel erneut.</translation>
    </message>
    <message>
        <source>This computer has no battery, so there is nothing to show here.</source>
        <translation>Dieser Computer hat keinen Akku, daher gibt es hier nichts anzuzeigen.</translation>
    </message>
</context>
<context>
    <name>tindra::SysfsBacklightBackend</name>
    <message>
        <source>%1, set through logind</source>
        <translation>%1, gesetzt über logind</translation>
    </message>
    <message>
        <source>%1 is shown; logind is not running, so the brightness keys stay with the desktop</source>
        <translation>%1 wird gezeigt; logind läuft nicht, daher bleiben die Helligkeitstasten beim Desktop</translation>
    </message>
    <message>
        <source>no display backlight in %1: the brightness keys stay with the desktop</source>
        <translation>keine Bildschirmbeleuchtung in %1: die Helligkeitstasten bleiben beim Desktop</translation>
    </message>
    <message>
        <source>%1 is shown; asking whether logind runs to set it</source>
        <translation>%1 wird gezeigt; es wird geprüft, ob logind zum Setzen läuft</translation>
    </message>
    <message>
        <source>%1 is shown; logind refused to set it (%2), so the brightness keys stay with the desktop</source>
        <translation>%1 wird gezeigt; logind hat das Setzen verweigert (%2), daher bleiben die Helligkeitstasten beim Desktop</translation>
    </message>
</context>
<context>
    <name>tindra::TindraApp</name>
    <message>
        <source>Check Now Playing adapter</source>
        <translation>„Jetzt läuft“-Adapter prüfen</translation>
    </message>
</context>
<context>
    <name>tindra::UPowerBatteryBackend</name>
    <message>
        <source>asking UPower for the battery</source>
        <translation>fragt UPower nach dem Akku</translation>
    </message>
    <message>
        <source>reading the battery from UPower</source>
        <translation>liest den Akku über UPower</translation>
    </message>
    <message>
        <source>UPower answers and reports no battery</source>
        <translation>UPower antwortet und meldet keinen Akku</translation>
    </message>
    <message>
        <source>UPower does not answer (%1): no battery is shown</source>
        <translation>UPower antwortet nicht (%1): keine Batterie wird gezeigt</translation>
    </message>
    <message>
        <source>UPower went away: no battery is shown until it returns</source>
        <translation>UPower ist weg: keine Batterie wird gezeigt, bis es zurückkehrt</translation>
    </message>
    <message>
        <source>no power-profiles-daemon: low power mode is not shown</source>
        <translation>kein power-profiles-daemon: der Stromsparmodus wird nicht angezeigt</translation>
    </message>
    <message>
        <source>power-profiles-daemon does not answer (%1): low power mode is not shown</source>
        <translation>power-profiles-daemon antwortet nicht (%1): der Stromsparmodus wird nicht angezeigt</translation>
    </message>
    <message>
        <source>power-profiles-daemon went away: low power mode is not shown until it returns</source>
        <translation>power-profiles-daemon ist weg: der Stromsparmodus wird erst wieder angezeigt, wenn er zurück ist</translation>
    </message>
</context>
<context>
    <name>tindra::UPowerKeyboardBacklightBackend</name>
    <message>
        <source>UPower went away: the keyboard light keys stay with the desktop</source>
        <translation>UPower ist weg: die Tasten für das Tastaturlicht bleiben beim Desktop</translation>
    </message>
    <message>
        <source>UPower reports no keyboard backlight (%1)</source>
        <translation>UPower meldet keine Tastaturbeleuchtung (%1)</translation>
    </message>
    <message>
        <source>no levels</source>
        <translation>keine Stufen</translation>
    </message>
    <message>
        <source>keyboard backlight through UPower, %1 levels</source>
        <translation>Tastaturbeleuchtung über UPower, %1 Stufen</translation>
    </message>
    <message>
        <source>the keyboard backlight level cannot be read (%1 of %2)</source>
        <translation>die Stufe der Tastaturbeleuchtung ist unlesbar (%1 von %2)</translation>
    </message>
    <message>
        <source>the keyboard backlight level cannot be read (%1)</source>
        <translation>die Helligkeit der Tastaturbeleuchtung kann nicht gelesen werden (%1)</translation>
    </message>
</context>
<context>
    <name>tindra::VisibilityMonitor</name>
    <message>
        <source>the notch steps aside: %1</source>
        <translation>die Notch weicht aus: %1</translation>
    </message>
    <message>
        <source>the notch shows</source>
        <translation>die Notch ist sichtbar</translation>
    </message>
</context>
<context>
    <name>tindra::WeatherProvider</name>
    <message>
        <source>the weather is off in Settings</source>
        <translation>das Wetter ist in den Einstellungen aus</translation>
    </message>
    <message>
        <source>position: %1; %2</source>
        <translation>Position: %1; %2</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>noch keine</translation>
    </message>
    <message>
        <source>; the last request failed (%1)</source>
        <translation>; die letzte Anfrage schlug fehl (%1)</translation>
    </message>
    <message>
        <source>set in Settings</source>
        <translation>in den Einstellungen festgelegt</translation>
    </message>
    <message>
        <source>%1, set in Settings</source>
        <translation>%1, in den Einstellungen festgelegt</translation>
    </message>
    <message>
        <source>GeoClue</source>
        <translation>GeoClue</translation>
    </message>
    <message>
        <source>the time zone %1</source>
        <translation>die Zeitzone %1</translation>
    </message>
    <message>
        <source>The weather is unavailable right now.</source>
        <translation>Das Wetter ist gerade nicht verfügbar.</translation>
    </message>
    <message>
        <source>Waiting for location access</source>
        <translation>Warte auf Standortzugriff</translation>
    </message>
    <message>
        <source>High %1 · Low %2</source>
        <translation>Max. %1 · Min. %2</translation>
    </message>
</context>
<context>
    <name>tindra::WeatherSettingsEditor</name>
    <message>
        <source>Position in use:</source>
        <translation>Position:</translation>
    </message>
    <message>
        <source>Pick a city</source>
        <translation>Stadt wählen</translation>
    </message>
    <message>
        <source>My place:</source>
        <translation>Mein Ort:</translation>
    </message>
    <message>
        <source>Use These</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>Use the Location Service</source>
        <translation>Ortungsdienst nutzen</translation>
    </message>
    <message>
        <source>Latitude, longitude:</source>
        <translation>Breite, Länge:</translation>
    </message>
    <message>
        <source>An e-mail address MET Norway may reach you at (optional)</source>
        <translation>E-Mail, unter der MET Norway Sie erreicht (optional)</translation>
    </message>
    <message>
        <source>Contact:</source>
        <translation>Kontakt:</translation>
    </message>
    <message>
        <source>As the region says</source>
        <translation>Wie in der Region üblich</translation>
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
        <translation>Einheit:</translation>
    </message>
    <message>
        <source>No city called %1 is known.</source>
        <translation>Keine Stadt namens %1 bekannt.</translation>
    </message>
</context>
<context>
    <name>tindra::WeatherViewModel</name>
    <message>
        <source>Weather data from MET Norway</source>
        <translation>Wetterdaten von MET Norway</translation>
    </message>
</context>
<context>
    <name>tindra::WlrToplevelVisibilitySource</name>
    <message>
        <source>following the active window and full-screen state from the compositor&apos;s window list (wlr foreign toplevel)</source>
        <translation>folgt dem aktiven Fenster und dem Vollbildzustand aus der Fensterliste des Compositors (wlr foreign toplevel)</translation>
    </message>
</context>
<context>
    <name>tindra::X11MediaKeySource</name>
    <message>
        <source>no X display: the keys stay with the desktop, and the level changes it makes are shown</source>
        <translation>kein X-Display: die Tasten bleiben beim Desktop, und seine Pegeländerungen werden gezeigt</translation>
    </message>
    <message>
        <source>holding no keys</source>
        <translation>hält keine Tasten</translation>
    </message>
    <message>
        <source>holding %1 key combinations, %2 held by another program</source>
        <translation>hält %1 Tastenkombinationen, %2 von einem anderen Programm gehalten</translation>
    </message>
    <message>
        <source>the X server closed the connection: the keys stay with the desktop</source>
        <translation>der X-Server hat die Verbindung geschlossen: die Tasten bleiben beim Desktop</translation>
    </message>
</context>
<context>
    <name>tindra::X11VisibilitySource</name>
    <message>
        <source>no X display: the notch never steps aside for full-screen windows or games</source>
        <translation>kein X-Display: die Notch weicht nie Vollbildfenstern oder Spielen</translation>
    </message>
    <message>
        <source>following the active window and full-screen state from the window manager (EWMH)</source>
        <translation>folgt dem aktiven Fenster und dem Vollbildzustand über den Fenstermanager (EWMH)</translation>
    </message>
    <message>
        <source>the X server closed the connection: the notch no longer steps aside</source>
        <translation>der X-Server hat die Verbindung geschlossen: die Notch weicht nicht mehr aus</translation>
    </message>
</context>
</TS>
