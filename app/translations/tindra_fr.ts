<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>AccessoriesPanel</name>
    <message>
        <source>Accessories</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No battery reported</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>L</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>R</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Case</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AccessoryBatteryRings</name>
    <message>
        <source>L</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>R</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AccessoryCompact</name>
    <message>
        <source>Left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Case</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Playing on %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connected</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Autostart</name>
    <message>
        <source>could not remove %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Backends</name>
    <message>
        <source>no session bus: no calls or messages are shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no session bus: do-not-disturb is unknown, only `tindra focus` shows a Focus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no system bus (%1): the keyboard light keys stay with the desktop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a Wayland session lets no program take the keys: the desktop keeps them, and the level changes it makes are shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no X11 display (%1): the keys stay with the desktop, and the level changes it makes are shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the notch is an X11 window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the notch is a layer surface on the Wayland compositor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TINDRA_PLATFORM asks for Wayland, but the compositor offers no layer shell: the notch is an X11 window through XWayland</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the Wayland compositor offers no layer shell (GNOME&apos;s has none): the notch is an X11 window through XWayland, above other X11 windows but not always above Wayland ones</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TINDRA_PLATFORM asks for X11: the notch is an X11 window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no system bus (%1): no battery is shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no system bus (%1): no accessories are shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the Wayland compositor lists no windows to other programs (neither wlr foreign toplevel nor Plasma window management): the notch never steps aside for full-screen windows or games</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no X11 window manager to ask (%1): the notch never steps aside for full-screen windows or games</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no system bus (%1): GeoClue cannot be asked</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BannerPanel</name>
    <message>
        <source>%1 call</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Missed call · %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ringing</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BatteriesPanel</name>
    <message>
        <source>Battery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Charged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Charging</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 to full</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On power</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On battery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Low Power Mode is on</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BatteryCompact</name>
    <message>
        <source>Low</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CalendarPanel</name>
    <message>
        <source>Today</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing else today</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reminders</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CallCompact</name>
    <message>
        <source>Ringing</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FileTrayPanel</name>
    <message>
        <source>File Tray</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This file was moved to a place Tindra cannot find, or deleted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove from the tray</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to open, or drag to use this file</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HudPanel</name>
    <message>
        <source>Brightness</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keyboard light</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Volume</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>JoinButton</name>
    <message>
        <source>Join</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Join %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Notch</name>
    <message>
        <source>Now Playing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Focus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AirDrop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Message</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Accessory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Level</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Call</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PinnedSectionsEditor</name>
    <message>
        <source>Calendar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File Tray</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Now Playing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Batteries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Weather</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fair</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Partly cloudy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cloudy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Light rain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Heavy rain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rain showers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thunderstorm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sleet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Snow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 % chance of precipitation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 mm in the next %2 h</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No precipitation in the next %1 h</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sunrise %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sunset %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Midnight sun</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Polar night</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Travel times are unavailable: no routing service is available on this system.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>General</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Notch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Now Playing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Indicator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery and Accessories</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Weather</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Focus and Banners</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File Tray</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Diagnostics</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SettingsKeys</name>
    <message>
        <source>The first-run introduction has been seen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play a sound with notices that have one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Tindra in the tray.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How long notices stay: short, medium or long.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Offer test versions when updating.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draw a notch on displays that have none.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Which displays show the notch: all, main, built-in or one by name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Width in points of a drawn notch.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A drawn notch takes the height of the top panel.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Height in points of a drawn notch when it does not match the panel.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How the notch opens: on hover, on click, or pressed and held.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Seconds the pointer rests on the notch before it opens.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Seconds of pressing that open the notch in press-and-hold mode.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Panel sections pinned in the opened notch, in order (&quot;media&quot;, &quot;calendar&quot;, &quot;weather&quot;, &quot;batteries&quot;, &quot;fileTray&quot;); empty shows every section with something to show.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where the playing track comes from: automatic, or only the player scripts, which exist on a Mac alone (on the desktop that shows nothing).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The system version on which the basic-mode notice was last shown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Look covers up online when the player gives none.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How long a paused track stays shown: short, long or until resumed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The progress bar in the standard colour or the cover&apos;s.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show volume changes in the notch. Option-Shift with a volume or brightness key changes it in smaller steps.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show brightness changes in the notch. Keys go to the system when the output or display cannot be controlled, or when BetterDisplay handles it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How the level is drawn: a continuous bar, segments or a ring.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The level&apos;s colour: white, by level, or the accent colour.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Seconds the level stays shown after a change.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play the volume feedback sound where the system does not. Hold Shift while pressing a volume key to do the opposite.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tell when power is connected.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tell when power is disconnected.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warn when the battery runs low.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Percentage at which the battery counts as low.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tell when a Bluetooth accessory connects.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tell when files arrive from nearby devices.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warn when an accessory&apos;s battery runs low.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Percentage at which an accessory&apos;s battery counts as low.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tell when sound moves to an accessory.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tell when a Bluetooth accessory disconnects.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Accessory batteries as a percentage or a ring.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the next meeting.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minutes before a meeting that it appears.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calendars whose events are never shown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The meeting&apos;s time as a countdown, its start time, or both.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide meeting titles.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play a sound when a meeting is about to start.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Meetings whose start sound has played, so it plays once.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show reminders that are due.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Count travel time before meetings with a place.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How you travel to meetings: by car, on foot or by transit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minutes added to the travel time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the weather.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show when a Focus mode is on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep a Focus mark on the notch while the Focus lasts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Focus filter&apos;s last state, as written by the system.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Swipes on the notch control playback.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sideways swipes change the track.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Give feedback when a swipe is recognised.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dragging with the mouse works like swiping.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide the notch over full-screen windows.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide the notch while a game runs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Applications treated as games, one per line.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide the notch while windows are being arranged.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep the notch out of screenshots and recordings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A translucent opened notch instead of black.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The opened notch in black and white or in colour.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A soft glow around the opened notch.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A brief flash when the notch opens.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colourful bars in the live spectrum.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A thin coloured rim on the closed notch.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show a live spectrum of the playing audio.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show widgets on the lock screen (experimental).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The lock-screen widgets&apos; background: clear, light frost or frosted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertical offset in points of the lock-screen widgets.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep the notch on the lock screen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The last lock-screen notice, kept to show it once.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The last lock-screen notch notice, kept to show it once.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show keyboard backlight changes (experimental).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The system version on which no keyboard backlight was found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show incoming calls (experimental).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show incoming messages (experimental).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep dropped files in a tray (experimental).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The tray keeps links to dropped files or copies of them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where the playing track comes from: automatic (the desktop&apos;s players), or only the player scripts of a Mac, which show nothing here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show volume changes in the notch. Alt-Shift with a volume or brightness key changes it in smaller steps.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show brightness changes in the notch. Keys go to the desktop when the output or display cannot be controlled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play the volume feedback sound where the desktop does not. Hold Shift while pressing a volume key to do the opposite.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Focus filter&apos;s last state, as `tindra focus` wrote it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sections pinned in the opened notch: tick them and drag them into order. With none ticked, every section with something to show appears.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SettingsNotes</name>
    <message>
        <source>No window can be drawn above the screen locker of a Linux desktop, so there are no lock-screen widgets here; the notch hides while the screen is locked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If this computer ignores Tindra&apos;s changes, the keys go back to the desktop and the notch only shows the level.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The warning appears once when the battery reaches this level, and again only after charging.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Up to 20 items. Copies take up to 2 GB in total.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Links: Tindra remembers where they are; nothing is copied. Copies: Tindra keeps a copy, so they stay usable if the originals go; removing it from the tray deletes the copy, never the original.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A ringing call shows only that it rings; answer it on the desktop&apos;s notification. Messages and missed calls show who and what, with a button that opens the application that sent them. Nothing is stored or sent, and nothing shows while do-not-disturb is on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scroll on the notch with two fingers or the mouse wheel, as if moving a page: down opens it, up closes it, sideways skips tracks.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drag the closed notch down to open it, or sideways to skip tracks.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The desktop shows through where the window manager draws windows translucent; elsewhere the glass is dark grey.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SettingsValues</name>
    <message>
        <source>monochrome</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>colorful</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>hover</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>click</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>press and hold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>short</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>medium</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>long</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>white</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>countdown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>start time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>both</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>automobile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>walking</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>transit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>link</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>continuous</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>segmented</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ring</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>level</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>accent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>light frost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>frosted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>until resumed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>standard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>artwork</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>automatic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AppleScript only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>percentage</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WeatherPanel</name>
    <message>
        <source>Weather</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tindra::AdapterCheck</name>
    <message>
        <source>nothing playing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stream gave %1 update(s) and %2 unreadable line(s) in %3 s: %4.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stream skipped because the self-test failed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not launch stream: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tindra::AdapterNowPlayingSource</name>
    <message>
        <source>following the players through the adapter&apos;s stream</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the adapter&apos;s stream keeps failing: testing the adapter again</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tindra::AdapterProbe</name>
    <message>
        <source>The adapter&apos;s self-test did not finish within %1 s.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not launch %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The adapter&apos;s self-test passed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The adapter&apos;s self-test failed with exit status %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adapter not bundled; missing: %1 %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tindra::BannerProvider</name>
    <message>
        <source>Open %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tindra::BlueZAccessoryBackend</name>
    <message>
        <source>asking BlueZ for the accessories</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BlueZ does not answer (%1): no accessories are shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BlueZ went away: no accessories are shown until it returns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>following BlueZ: %1 Bluetooth devices known</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tindra::BusLevelCommandSource</name>
    <message>
        <source>asking the session bus for the name of the level commands</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>`tindra level` commands step the levels (%1 on the session bus)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>another program holds %1 on the session bus: `tindra level` commands go there</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tindra::CalendarFeed</name>
    <message>
        <source>not read yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1; the last good copy is kept</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n document(s) could not be read (%1)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1 events in view</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, %1 to-dos</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tindra::CalendarListEditor</name>
    <message>
        <source>A file, a folder, or an https:// or webcal:// address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose File…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a Calendar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>iCalendar (*.ics);;All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your mail addresses, separated by commas</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invitations you declined at these addresses are not shown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No calendars yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tindra::CalendarProvider</name>
    <message>
        <source>the calendar is off in Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Event</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reminder</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tindra::CalendarTexts</name>
    <message>
        <source>%1 min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>in %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ended</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave in %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 late</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All day</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tindra::DBusNotificationMonitor</name>
    <message>
        <source>calls and messages are off: notifications are not read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the session bus does not let Tindra read notifications (%1): no calls or messages are shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no notification server runs on the session bus: calls and messages show once one starts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>reading notification banners for calls and messages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the session bus closed the notification monitor: no calls or messages are shown</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tindra::DiagnosticsWindow</name>
    <message>
        <source>Tindra Diagnostics</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy report</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tindra::FakeAccessoryBackend</name>
    <message>
        <source>invented accessories (TINDRA_FAKE asks for them)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tindra::FakeBacklightBackend</name>
    <message>
        <source>invented readings (TINDRA_FAKE asks for them)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tindra::FakeBatteryBackend</name>
    <message>
        <source>invented readings (TINDRA_FAKE asks for them)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tindra::FakeCalendarBackend</name>
    <message>
        <source>invented</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The invented calendars take no additions.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tindra::FakeFileTrayBackend</name>
    <message>
        <source>invented files (TINDRA_FAKE asks for them)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tindra::FakeFocusStatusSource</name>
    <message>
        <source>invented do-not-disturb (TINDRA_FAKE)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tindra::FakeLocationSource</name>
    <message>
        <source>an invented position (TINDRA_FAKE)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tindra::FakeLockStateSource</name>
    <message>
        <source>invented screen lock (TINDRA_FAKE)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tindra::FakeNotificationSource</name>
    <message>
        <source>invented notifications (TINDRA_FAKE)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tindra::FakeNowPlayingSource</name>
    <message>
        <source>an invented track (TINDRA_FAKE asks for it)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tindra::FakeVisibilitySource</name>
    <message>
        <source>an invented window in front (TINDRA_FAKE)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tindra::FakeVolumeBackend</name>
    <message>
        <source>invented readings (TINDRA_FAKE asks for them)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tindra::FileTrayProvider</name>
    <message>
        <source>keeping the file tray in %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>some items of the saved file tray could not be read and were left out; the list as it was is kept as %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the saved file tray %1; it is kept as %2 and the tray starts empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>was written by a newer Tindra</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>could not be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only files and folders can go in the tray.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Already in the tray:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The tray is full:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not added. Remove some items first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only files and folders can go in the tray:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copies in the tray are limited to 2 GB:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>could not be copied into the tray.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The copy into the tray was stopped.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file tray is not saved: an unreadable list could not be moved aside</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Copying %n item(s) into the tray…</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tindra::FocusViewModel</name>
    <message>
        <source>Focus</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tindra::GSettingsFocusSource</name>
    <message>
        <source>reading do-not-disturb from GNOME&apos;s settings (show-banners)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GNOME&apos;s notification settings are not installed: do-not-disturb is unknown</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tindra::GeoClueLocationSource</name>
    <message>
        <source>asking GeoClue for the position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GeoClue went away: the last position stays until it returns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GeoClue is not available (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GeoClue refused the position (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GeoClue gives the position, at city accuracy</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tindra::HudProvider</name>
    <message>
        <source>the keyboard backlight ignores Tindra&apos;s changes: the keys go back to the desktop and the notch only shows the level</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>holds %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>only watches the level for %1 (another program holds them)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>leaves %1 to the desktop</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tindra::ICalendarBackend</name>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the calendar list was not readable and was set aside as %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not read while the calendar is off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Give a file, a folder or an address.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use an https:// or webcal:// address: a calendar fetched over plain http can be read by anyone on the way.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This calendar is already in the list.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>reading %n iCalendar calendar(s)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>no calendars: add an iCalendar file, folder or address in Settings</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tindra::LocalCalendarFeed</name>
    <message>
        <source>%1 is not there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be read</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tindra::LogindLockSource</name>
    <message>
        <source>asking logind for the session</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>logind went away: the screen lock is not followed until it returns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>logind does not know this session (%1): the screen lock is not followed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>logind does not answer (%1): the screen lock is not followed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>following the screen lock of logind&apos;s session %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tindra::NotificationServerFocusSource</name>
    <message>
        <source>asking the notification server for do-not-disturb</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no notification server runs: do-not-disturb is unknown until one starts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the notification server went away: do-not-disturb is unknown until it returns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>reading do-not-disturb from the notification server (Inhibited)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the notification server does not report do-not-disturb (no Inhibited property): only `tindra focus` shows a Focus</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tindra::NowPlayingProvider</name>
    <message>
        <source>Settings ask for the player scripts, which this desktop does not have: nothing is shown as playing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>testing the now-playing adapter %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tindra::OnboardingWindow</name>
    <message>
        <source>Welcome to Tindra</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;h2&gt;Welcome to Tindra&lt;/h2&gt;&lt;p&gt;The strip at the top of your display is now a small live display. Closed, it shows one thing at a time: what is playing, a volume or brightness level, a battery or headphone notice, the next meeting, a call or a message. Rest the pointer on it and it opens into a panel with the controls, your calendar, the weather, your batteries and a file tray. Everything stays on this computer.&lt;/p&gt;&lt;p&gt;&lt;b&gt;What Tindra found here&lt;/b&gt; (✓ in use, – waiting or limited, ✗ not available, and what that means):&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;The notch opens&lt;/b&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>when the pointer rests on it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>when you click it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>when you press and hold it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start Tindra when I log in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start Using Tindra</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tindra::PinnedSectionsEditor</name>
    <message>
        <source>Tick the sections to pin and drag them into order</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tindra::PlasmaWindowVisibilitySource</name>
    <message>
        <source>following the active window and full-screen state from KWin&apos;s window list (Plasma window management)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tindra::PosixFileTrayBackend</name>
    <message>
        <source>files are known by their device and inode</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tindra::PulseProcessTapSession</name>
    <message>
        <source>no sound server to listen to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the player&apos;s own stream (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the default output</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the sound server has no output to listen to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> on </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the sound server refused a capture stream</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tindra::PulseVolumeBackend</name>
    <message>
        <source>connecting to the sound server</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>following the sound server&apos;s default output</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the sound server went away: no volume until it returns</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tindra::RemoteCalendarFeed</name>
    <message>
        <source>%1 is not an https address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HTTP %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>could not fetch %1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tindra::SettingsWindow</name>
    <message>
        <source>Tindra Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset Page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use the default value of every setting on this page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use the default value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(none)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The change was not saved: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tindra::ShellActions</name>
    <message>
        <source>Settings…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Diagnostics…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start at Login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit Tindra</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Each service Tindra uses says here whether it answers, and every change since Tindra started is in the log. The report has the versions, the session and the log, for a bug report; it names none of your files, events or messages.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tindra::SysfsBacklightBackend</name>
    <message>
        <source>%1, set through logind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is shown; logind is not running, so the brightness keys stay with the desktop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no display backlight in %1: the brightness keys stay with the desktop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is shown; asking whether logind runs to set it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is shown; logind refused to set it (%2), so the brightness keys stay with the desktop</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tindra::TindraApp</name>
    <message>
        <source>Check Now Playing adapter</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tindra::UPowerBatteryBackend</name>
    <message>
        <source>asking UPower for the battery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>reading the battery from UPower</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UPower answers and reports no battery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UPower does not answer (%1): no battery is shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UPower went away: no battery is shown until it returns</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tindra::UPowerKeyboardBacklightBackend</name>
    <message>
        <source>UPower went away: the keyboard light keys stay with the desktop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UPower reports no keyboard backlight (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no levels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>keyboard backlight through UPower, %1 levels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the keyboard backlight level cannot be read (%1 of %2)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tindra::VisibilityMonitor</name>
    <message>
        <source>the notch steps aside: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the notch shows</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tindra::WeatherProvider</name>
    <message>
        <source>the weather is off in Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>position: %1; %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>; the last request failed (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>set in Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, set in Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GeoClue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the time zone %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The weather is unavailable right now.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting for location access</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>High %1 · Low %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tindra::WeatherSettingsEditor</name>
    <message>
        <source>Position in use:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pick a city</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>My place:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use These</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use the Location Service</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Latitude, longitude:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An e-mail address MET Norway may reach you at (optional)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contact:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As the region says</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Celsius</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fahrenheit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No city called %1 is known.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tindra::WeatherViewModel</name>
    <message>
        <source>Weather data from MET Norway</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tindra::WlrToplevelVisibilitySource</name>
    <message>
        <source>following the active window and full-screen state from the compositor&apos;s window list (wlr foreign toplevel)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tindra::X11MediaKeySource</name>
    <message>
        <source>no X display: the keys stay with the desktop, and the level changes it makes are shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>holding no keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>holding %1 key combinations, %2 held by another program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the X server closed the connection: the keys stay with the desktop</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tindra::X11VisibilitySource</name>
    <message>
        <source>no X display: the notch never steps aside for full-screen windows or games</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>following the active window and full-screen state from the window manager (EWMH)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the X server closed the connection: the notch no longer steps aside</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
