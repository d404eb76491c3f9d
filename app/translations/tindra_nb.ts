<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nb_NO">
<context>
    <name>AccessoriesPanel</name>
    <message>
        <source>Accessories</source>
        <translation>Tilbehør</translation>
    </message>
    <message>
        <source>L</source>
        <translation>V</translation>
    </message>
    <message>
        <source>R</source>
        <translation>H</translation>
    </message>
    <message>
        <source>Case</source>
        <translation>Etui</translation>
    </message>
    <message>
        <source>No battery reported</source>
        <translation>Ingen batterimåling</translation>
    </message>
</context>
<context>
    <name>AccessoryBatteryRings</name>
    <message>
        <source>L</source>
        <translation>V</translation>
    </message>
    <message>
        <source>R</source>
        <translation>H</translation>
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
        <translation>Venstre</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Høyre</translation>
    </message>
    <message>
        <source>Case</source>
        <translation>Etui</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Frakoblet</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Tilkoblet</translation>
    </message>
    <message>
        <source>Playing on %1</source>
        <translation>Spilles på %1</translation>
    </message>
</context>
<context>
    <name>Autostart</name>
    <message>
        <source>could not remove %1: %2</source>
        <translation>kunne ikke fjerne %1: %2</translation>
    </message>
</context>
<context>
    <name>Backends</name>
    <message>
        <source>no system bus (%1): no battery is shown</source>
        <translation>ingen systembuss (%1): batteriet vises ikke</translation>
    </message>
    <message>
        <source>a Wayland session lets no program take the keys: the desktop keeps them, and the level changes it makes are shown</source>
        <translation>en Wayland-økt lar ingen programmer ta tastene: skrivebordet beholder dem, og nivåendringene det gjør, vises</translation>
    </message>
    <message>
        <source>no session bus: do-not-disturb is unknown, only `tindra focus` shows a Focus</source>
        <translation>ingen øktbuss: Ikke forstyrr er ukjent, bare `tindra focus` viser fokus</translation>
    </message>
    <message>
        <source>no X11 window manager to ask (%1): the notch never steps aside for full-screen windows or games</source>
        <translation>ingen X11-vindusbehandler å spørre (%1): hakket viker aldri for vinduer i fullskjerm eller spill</translation>
    </message>
    <message>
        <source>no session bus: no calls or messages are shown</source>
        <translation>ingen øktbuss: ingen anrop eller meldinger vises</translation>
    </message>
    <message>
        <source>no system bus (%1): the keyboard light keys stay with the desktop</source>
        <translation>ingen systembuss (%1): tastene for tastaturlys blir hos skrivebordet</translation>
    </message>
    <message>
        <source>no X11 display (%1): the keys stay with the desktop, and the level changes it makes are shown</source>
        <translation>ingen X11-skjerm (%1): tastene blir hos skrivebordet, og nivåendringene det gjør, vises</translation>
    </message>
    <message>
        <source>no system bus (%1): no accessories are shown</source>
        <translation>ingen systembuss (%1): tilbehør vises ikke</translation>
    </message>
    <message>
        <source>no system bus (%1): GeoClue cannot be asked</source>
        <translation>ingen systembuss (%1): GeoClue kan ikke spørres</translation>
    </message>
    <message>
        <source>the notch is an X11 window</source>
        <translation>hakket er et X11-vindu</translation>
    </message>
    <message>
        <source>the notch is a layer surface on the Wayland compositor</source>
        <translation>hakket er en lagflate hos Wayland-kompositoren</translation>
    </message>
    <message>
        <source>TINDRA_PLATFORM asks for Wayland, but the compositor offers no layer shell: the notch is an X11 window through XWayland</source>
        <translation>TINDRA_PLATFORM ber om Wayland, men kompositoren tilbyr ikke lagskallet: hakket er et X11-vindu gjennom XWayland</translation>
    </message>
    <message>
        <source>the Wayland compositor offers no layer shell (GNOME&apos;s has none): the notch is an X11 window through XWayland, above other X11 windows but not always above Wayland ones</source>
        <translation>Wayland-kompositoren tilbyr ikke lagskallet (GNOMEs har det ikke): hakket er et X11-vindu gjennom XWayland, over andre X11-vinduer, men ikke alltid over Wayland-vinduer</translation>
    </message>
    <message>
        <source>TINDRA_PLATFORM asks for X11: the notch is an X11 window</source>
        <translation>TINDRA_PLATFORM ber om X11: hakket er et X11-vindu</translation>
    </message>
    <message>
        <source>the Wayland compositor lists no windows to other programs (neither wlr foreign toplevel nor Plasma window management): the notch never steps aside for full-screen windows or games</source>
        <translation>Wayland-kompositoren viser ikke vinduene sine til andre programmer (verken wlr foreign toplevel eller Plasma window management): hakket viker aldri for vinduer i fullskjerm eller spill</translation>
    </message>
    <message>
        <source>this desktop has no volume sound setting: the volume sound follows Tindra&apos;s own setting</source>
        <translation>dette skrivebordet har ingen innstilling for volumlyden: volumlyden følger Tindras egen innstilling</translation>
    </message>
</context>
<context>
    <name>BannerPanel</name>
    <message>
        <source>%1 call</source>
        <translation>%1-anrop</translation>
    </message>
    <message>
        <source>Missed call · %1</source>
        <translation>Tapt anrop · %1</translation>
    </message>
    <message>
        <source>Ringing</source>
        <translation>Ringer</translation>
    </message>
</context>
<context>
    <name>BatteriesPanel</name>
    <message>
        <source>Battery</source>
        <translation>Batteri</translation>
    </message>
    <message>
        <source>Charged</source>
        <translation>Ladet</translation>
    </message>
    <message>
        <source>Charging</source>
        <translation>Lader</translation>
    </message>
    <message>
        <source>%1 to full</source>
        <translation>%1 til fullt</translation>
    </message>
    <message>
        <source>On power</source>
        <translation>På strøm</translation>
    </message>
    <message>
        <source>On battery</source>
        <translation>På batteri</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>%1 igjen</translation>
    </message>
    <message>
        <source>Low Power Mode is on</source>
        <translation>Strømsparing er på</translation>
    </message>
    <message>
        <source>This computer has no battery.</source>
        <translation>Denne datamaskinen har ikke batteri.</translation>
    </message>
</context>
<context>
    <name>BatteryCompact</name>
    <message>
        <source>Low</source>
        <translation>Lavt</translation>
    </message>
</context>
<context>
    <name>CalendarPanel</name>
    <message>
        <source>Today</source>
        <translation>I dag</translation>
    </message>
    <message>
        <source>Nothing else today</source>
        <translation>Ikke noe mer i dag</translation>
    </message>
    <message>
        <source>Reminders</source>
        <translation>Påminnelser</translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>%n til</numerusform>
            <numerusform>%n til</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CallCompact</name>
    <message>
        <source>Ringing</source>
        <translation>Ringer</translation>
    </message>
</context>
<context>
    <name>FileTrayPanel</name>
    <message>
        <source>File Tray</source>
        <translation>Filbrett</translation>
    </message>
    <message>
        <source>Remove All</source>
        <translation>Fjern alle</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>This file was moved to a place Tindra cannot find, or deleted.</source>
        <translation>Denne filen ble flyttet til et sted Tindra ikke finner, eller slettet.</translation>
    </message>
    <message>
        <source>Remove from the tray</source>
        <translation>Fjern fra brettet</translation>
    </message>
    <message>
        <source>Click to open, or drag to use this file</source>
        <translation>Klikk for å åpne, eller dra for å bruke denne filen</translation>
    </message>
</context>
<context>
    <name>HudPanel</name>
    <message>
        <source>Brightness</source>
        <translation>Lysstyrke</translation>
    </message>
    <message>
        <source>Keyboard light</source>
        <translation>Tastaturlys</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Lydstyrke</translation>
    </message>
</context>
<context>
    <name>JoinButton</name>
    <message>
        <source>Join</source>
        <translation>Bli med</translation>
    </message>
    <message>
        <source>Join %1</source>
        <translation>Bli med i %1</translation>
    </message>
</context>
<context>
    <name>Notch</name>
    <message>
        <source>Now Playing</source>
        <translation>Spilles nå</translation>
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
        <translation>Melding</translation>
    </message>
    <message>
        <source>Accessory</source>
        <translation>Tilbehør</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batteri</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Nivå</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Anrop</translation>
    </message>
</context>
<context>
    <name>OnboardingFeatures</name>
    <message>
        <source>Now Playing: the track of any player that speaks MPRIS (most music and video players and web browsers do), with its controls. Start one to see it.</source>
        <translation>Spilles nå: sporet i alle spillere som snakker MPRIS (det gjør de fleste musikk- og videospillere og nettlesere), med kontrollene. Start en for å se det.</translation>
    </message>
    <message>
        <source>Now Playing: no player can be followed yet. Install an MPRIS-capable player, or start the one you have; if it still does not show, Diagnostics… says why.</source>
        <translation>Spilles nå: ingen spiller kan følges ennå. Installer en spiller som kan MPRIS, eller start den du har; vises den fortsatt ikke, sier Diagnostikk… hvorfor.</translation>
    </message>
    <message>
        <source>Volume: shown in the notch as it changes.</source>
        <translation>Volum: vises i hakket når det endres.</translation>
    </message>
    <message>
        <source>Volume: no sound server answers. The volume shows as soon as PipeWire or PulseAudio runs.</source>
        <translation>Volum: ingen lydtjener svarer. Volumet vises så snart PipeWire eller PulseAudio kjører.</translation>
    </message>
    <message>
        <source>Brightness: shown as it changes; the brightness keys step it.</source>
        <translation>Lysstyrke: vises når den endres; lysstyrketastene justerer den.</translation>
    </message>
    <message>
        <source>Brightness: this display&apos;s backlight cannot be controlled here (an external monitor, or a virtual machine), so the brightness keys stay with the desktop.</source>
        <translation>Lysstyrke: skjermens baklys kan ikke styres her (en ekstern skjerm eller en virtuell maskin), så lysstyrketastene blir hos skrivebordet.</translation>
    </message>
    <message>
        <source>Battery and Bluetooth need the system bus (D-Bus), which this session does not have. Start Tindra in an ordinary desktop session to see them.</source>
        <translation>Batteri og Bluetooth trenger systembussen (D-Bus), som denne økten ikke har. Start Tindra i en vanlig skrivebordsøkt for å se dem.</translation>
    </message>
    <message>
        <source>Battery: its level, and a notice when you plug in, unplug or run low.</source>
        <translation>Batteri: nivået, og et varsel når du kobler til, kobler fra eller batteriet blir lavt.</translation>
    </message>
    <message>
        <source>Battery: UPower does not answer, so no battery is shown. Install or start UPower (the upower package).</source>
        <translation>Batteri: UPower svarer ikke, så ingen batterier vises. Installer eller start UPower (pakken upower).</translation>
    </message>
    <message>
        <source>Bluetooth: the batteries of your connected headphones and other accessories.</source>
        <translation>Bluetooth: batteriene i tilkoblede hodetelefoner og annet tilbehør.</translation>
    </message>
    <message>
        <source>Bluetooth: BlueZ does not answer, so no accessories are shown. Turn Bluetooth on, or install BlueZ (the bluez package).</source>
        <translation>Bluetooth: BlueZ svarer ikke, så intet tilbehør vises. Slå på Bluetooth, eller installer BlueZ (pakken bluez).</translation>
    </message>
    <message>
        <source>Calendar: off. Turn it on in Settings… and add your calendars (.ics files or web addresses).</source>
        <translation>Kalender: av. Slå den på i Innstillinger… og legg til kalenderne dine (.ics-filer eller nettadresser).</translation>
    </message>
    <message>
        <source>Calendar: your next meeting with its Join button, and today&apos;s agenda.</source>
        <translation>Kalender: det neste møtet ditt med Bli med-knappen, og dagens plan.</translation>
    </message>
    <message>
        <source>Calendar: nothing to show yet. Add your calendars (.ics files or web addresses) in Settings…, which says of each whether it could be read.</source>
        <translation>Kalender: ingenting å vise ennå. Legg til kalenderne dine (.ics-filer eller nettadresser) i Innstillinger…, som sier om hver av dem kunne leses.</translation>
    </message>
    <message>
        <source>Weather: off. Turn it on in Settings… to see the forecast from MET Norway.</source>
        <translation>Vær: av. Slå det på i Innstillinger… for å se varselet fra Meteorologisk institutt.</translation>
    </message>
    <message>
        <source>Weather: the forecast for where you are, from MET Norway.</source>
        <translation>Vær: varselet for der du er, fra Meteorologisk institutt.</translation>
    </message>
    <message>
        <source>Weather: no forecast yet. Settings… says why, and lets you choose your place.</source>
        <translation>Vær: ikke noe varsel ennå. Innstillinger… sier hvorfor, og lar deg velge stedet ditt.</translation>
    </message>
    <message>
        <source>Do not disturb: shown while it is on.</source>
        <translation>Ikke forstyrr: vises mens det er på.</translation>
    </message>
    <message>
        <source>Do not disturb: no notification server answers, so whether it is on is unknown until one starts.</source>
        <translation>Ikke forstyrr: ingen varslingstjener svarer, så om det er på, er ukjent til en starter.</translation>
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
        <translation>Filbrett</translation>
    </message>
    <message>
        <source>Now Playing</source>
        <translation>Spilles nå</translation>
    </message>
    <message>
        <source>Batteries</source>
        <translation>Batterier</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Vær</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Travel times are unavailable: no routing service is available on this system.</source>
        <translation>Reisetider er ikke tilgjengelige: ingen rutetjeneste er tilgjengelig på dette systemet.</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Klart</translation>
    </message>
    <message>
        <source>Fair</source>
        <translation>Lettskyet</translation>
    </message>
    <message>
        <source>Partly cloudy</source>
        <translation>Delvis skyet</translation>
    </message>
    <message>
        <source>Cloudy</source>
        <translation>Skyet</translation>
    </message>
    <message>
        <source>Fog</source>
        <translation>Tåke</translation>
    </message>
    <message>
        <source>Light rain</source>
        <translation>Lett regn</translation>
    </message>
    <message>
        <source>Rain</source>
        <translation>Regn</translation>
    </message>
    <message>
        <source>Heavy rain</source>
        <translation>Kraftig regn</translation>
    </message>
    <message>
        <source>Rain showers</source>
        <translation>Regnbyger</translation>
    </message>
    <message>
        <source>Thunderstorm</source>
        <translation>Torden</translation>
    </message>
    <message>
        <source>Sleet</source>
        <translation>Sludd</translation>
    </message>
    <message>
        <source>Snow</source>
        <translation>Snø</translation>
    </message>
    <message>
        <source>%1 % chance of precipitation</source>
        <translation>%1 % sjanse for nedbør</translation>
    </message>
    <message>
        <source>%1 mm in the next %2 h</source>
        <translation>%1 mm de neste %2 t</translation>
    </message>
    <message>
        <source>No precipitation in the next %1 h</source>
        <translation>Ingen nedbør de neste %1 t</translation>
    </message>
    <message>
        <source>Sunrise %1</source>
        <translation>Soloppgang %1</translation>
    </message>
    <message>
        <source>Sunset %1</source>
        <translation>Solnedgang %1</translation>
    </message>
    <message>
        <source>Midnight sun</source>
        <translation>Midnattssol</translation>
    </message>
    <message>
        <source>Polar night</source>
        <translation>Mørketid</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>General</source>
        <translation>Generelt</translation>
    </message>
    <message>
        <source>Notch</source>
        <translation>Hakket</translation>
    </message>
    <message>
        <source>Now Playing</source>
        <translation>Spilles nå</translation>
    </message>
    <message>
        <source>Indicator</source>
        <translation>Nivåvisning</translation>
    </message>
    <message>
        <source>Battery and Accessories</source>
        <translation>Batteri og tilbehør</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Vær</translation>
    </message>
    <message>
        <source>Focus and Banners</source>
        <translation>Fokus og varsler</translation>
    </message>
    <message>
        <source>File Tray</source>
        <translation>Filbrett</translation>
    </message>
    <message>
        <source>Diagnostics</source>
        <translation>Diagnostikk</translation>
    </message>
</context>
<context>
    <name>SettingsKeys</name>
    <message>
        <source>The first-run introduction has been seen.</source>
        <translation>Introduksjonen ved første start er sett.</translation>
    </message>
    <message>
        <source>Play a sound with notices that have one.</source>
        <translation>Spill en lyd med varsler som har en.</translation>
    </message>
    <message>
        <source>Show Tindra in the tray.</source>
        <translation>Vis Tindra i systemfeltet.</translation>
    </message>
    <message>
        <source>How long notices stay: short, medium or long.</source>
        <translation>Hvor lenge varsler vises: kort, middels eller lenge.</translation>
    </message>
    <message>
        <source>Offer test versions when updating.</source>
        <translation>Tilby testversjoner ved oppdatering.</translation>
    </message>
    <message>
        <source>Draw a notch on displays that have none.</source>
        <translation>Tegn et hakk på skjermer som ikke har et.</translation>
    </message>
    <message>
        <source>Which displays show the notch: all, main, built-in or one by name.</source>
        <translation>Hvilke skjermer som viser hakket: alle, hovedskjermen, den innebygde eller én etter navn.</translation>
    </message>
    <message>
        <source>Width in points of a drawn notch.</source>
        <translation>Bredden i punkter på et tegnet hakk.</translation>
    </message>
    <message>
        <source>A drawn notch takes the height of the top panel.</source>
        <translation>Et tegnet hakk får samme høyde som toppanelet.</translation>
    </message>
    <message>
        <source>Height in points of a drawn notch when it does not match the panel.</source>
        <translation>Høyden i punkter på et tegnet hakk når det ikke følger panelet.</translation>
    </message>
    <message>
        <source>How the notch opens: on hover, on click, or pressed and held.</source>
        <translation>Hvordan hakket åpnes: ved pekeren, ved klikk, eller trykk og hold.</translation>
    </message>
    <message>
        <source>Seconds the pointer rests on the notch before it opens.</source>
        <translation>Sekunder pekeren hviler på hakket før det åpnes.</translation>
    </message>
    <message>
        <source>Seconds of pressing that open the notch in press-and-hold mode.</source>
        <translation>Sekunder med trykk før hakket åpnes i trykk og hold-modus.</translation>
    </message>
    <message>
        <source>Panel sections pinned in the opened notch, in order (&quot;media&quot;, &quot;calendar&quot;, &quot;weather&quot;, &quot;batteries&quot;, &quot;fileTray&quot;); empty shows every section with something to show.</source>
        <translation>Panelseksjoner som er festet i det åpne hakket, i rekkefølge (&quot;media&quot;, &quot;calendar&quot;, &quot;weather&quot;, &quot;batteries&quot;, &quot;fileTray&quot;); tomt viser alle seksjoner som har noe å vise.</translation>
    </message>
    <message>
        <source>Where the playing track comes from: automatic, or only the player scripts, which exist on a Mac alone (on the desktop that shows nothing).</source>
        <translation>Hvor sporet som spilles kommer fra: automatisk, eller bare spillerskriptene, som bare finnes på Mac (på skrivebordet viser det ingenting).</translation>
    </message>
    <message>
        <source>The system version on which the basic-mode notice was last shown.</source>
        <translation>Systemversjonen der varselet om enkel modus sist ble vist.</translation>
    </message>
    <message>
        <source>Look covers up online when the player gives none.</source>
        <translation>Slå opp omslag på nettet når spilleren ikke gir noe.</translation>
    </message>
    <message>
        <source>How long a paused track stays shown: short, long or until resumed.</source>
        <translation>Hvor lenge et spor på pause vises: kort, lenge eller til avspillingen fortsetter.</translation>
    </message>
    <message>
        <source>The progress bar in the standard colour or the cover&apos;s.</source>
        <translation>Fremdriftslinjen i standardfargen eller i omslagets farge.</translation>
    </message>
    <message>
        <source>Show volume changes in the notch. Option-Shift with a volume or brightness key changes it in smaller steps.</source>
        <translation>Vis endringer i lydstyrke i hakket. Option-Shift sammen med en lydstyrke- eller lysstyrketast endrer i mindre steg.</translation>
    </message>
    <message>
        <source>Show brightness changes in the notch. Keys go to the system when the output or display cannot be controlled, or when BetterDisplay handles it.</source>
        <translation>Vis endringer i lysstyrke i hakket. Tastene går til systemet når utgangen eller skjermen ikke kan styres, eller når BetterDisplay tar seg av det.</translation>
    </message>
    <message>
        <source>How the level is drawn: a continuous bar, segments or a ring.</source>
        <translation>Hvordan nivået tegnes: en sammenhengende stolpe, en oppdelt stolpe eller en ring.</translation>
    </message>
    <message>
        <source>The level&apos;s colour: white, by level, or the accent colour.</source>
        <translation>Fargen på nivået: hvit, etter nivå eller aksentfargen.</translation>
    </message>
    <message>
        <source>Seconds the level stays shown after a change.</source>
        <translation>Sekunder nivået vises etter en endring.</translation>
    </message>
    <message>
        <source>Play the volume feedback sound where the system does not. Hold Shift while pressing a volume key to do the opposite.</source>
        <translation>Spill av tilbakemeldingslyden for lydstyrke der systemet ikke gjør det. Hold Shift mens du trykker på en lydstyrketast for å gjøre det motsatte.</translation>
    </message>
    <message>
        <source>Tell when power is connected.</source>
        <translation>Si fra når strømmen kobles til.</translation>
    </message>
    <message>
        <source>Tell when power is disconnected.</source>
        <translation>Si fra når strømmen kobles fra.</translation>
    </message>
    <message>
        <source>Warn when the battery runs low.</source>
        <translation>Advar når batterinivået blir lavt.</translation>
    </message>
    <message>
        <source>Percentage at which the battery counts as low.</source>
        <translation>Prosentnivået der batteriet regnes som lavt.</translation>
    </message>
    <message>
        <source>Tell when a Bluetooth accessory connects.</source>
        <translation>Si fra når et Bluetooth-tilbehør kobles til.</translation>
    </message>
    <message>
        <source>Tell when files arrive from nearby devices.</source>
        <translation>Si fra når filer kommer fra enheter i nærheten.</translation>
    </message>
    <message>
        <source>Warn when an accessory&apos;s battery runs low.</source>
        <translation>Advar når batteriet i et tilbehør blir lavt.</translation>
    </message>
    <message>
        <source>Percentage at which an accessory&apos;s battery counts as low.</source>
        <translation>Prosentnivået der batteriet i et tilbehør regnes som lavt.</translation>
    </message>
    <message>
        <source>Tell when sound moves to an accessory.</source>
        <translation>Si fra når lyden flyttes til et tilbehør.</translation>
    </message>
    <message>
        <source>Tell when a Bluetooth accessory disconnects.</source>
        <translation>Si fra når et Bluetooth-tilbehør kobles fra.</translation>
    </message>
    <message>
        <source>Accessory batteries as a percentage or a ring.</source>
        <translation>Batterier i tilbehør som prosent eller ring.</translation>
    </message>
    <message>
        <source>Show the next meeting.</source>
        <translation>Vis neste møte.</translation>
    </message>
    <message>
        <source>Minutes before a meeting that it appears.</source>
        <translation>Hvor mange minutter før et møte det vises.</translation>
    </message>
    <message>
        <source>Calendars whose events are never shown.</source>
        <translation>Kalendere der hendelsene aldri vises.</translation>
    </message>
    <message>
        <source>The meeting&apos;s time as a countdown, its start time, or both.</source>
        <translation>Tiden for møtet som nedtelling, starttid eller begge.</translation>
    </message>
    <message>
        <source>Hide meeting titles.</source>
        <translation>Skjul møtetitler.</translation>
    </message>
    <message>
        <source>Play a sound when a meeting is about to start.</source>
        <translation>Spill en lyd når et møte er i ferd med å starte.</translation>
    </message>
    <message>
        <source>Meetings whose start sound has played, so it plays once.</source>
        <translation>Møter der startlyden er spilt, så den bare spilles én gang.</translation>
    </message>
    <message>
        <source>Show reminders that are due.</source>
        <translation>Vis påminnelser når de forfaller.</translation>
    </message>
    <message>
        <source>Count travel time before meetings with a place.</source>
        <translation>Regn med reisetid før møter som har et sted.</translation>
    </message>
    <message>
        <source>How you travel to meetings: by car, on foot or by transit.</source>
        <translation>Hvordan du reiser til møter: med bil, til fots eller kollektivt.</translation>
    </message>
    <message>
        <source>Minutes added to the travel time.</source>
        <translation>Minutter som legges til reisetiden.</translation>
    </message>
    <message>
        <source>Show the weather.</source>
        <translation>Vis været.</translation>
    </message>
    <message>
        <source>Show when a Focus mode is on.</source>
        <translation>Vis når en fokusmodus er på.</translation>
    </message>
    <message>
        <source>Keep a Focus mark on the notch while the Focus lasts.</source>
        <translation>Behold et fokusmerke på hakket mens fokuset varer.</translation>
    </message>
    <message>
        <source>The Focus filter&apos;s last state, as written by the system.</source>
        <translation>Fokusfilterets siste tilstand, slik systemet skrev den.</translation>
    </message>
    <message>
        <source>Swipes on the notch control playback.</source>
        <translation>Sveip på hakket styrer avspillingen.</translation>
    </message>
    <message>
        <source>Sideways swipes change the track.</source>
        <translation>Sveip til siden bytter spor.</translation>
    </message>
    <message>
        <source>Give feedback when a swipe is recognised.</source>
        <translation>Gi tilbakemelding når et sveip gjenkjennes.</translation>
    </message>
    <message>
        <source>Dragging with the mouse works like swiping.</source>
        <translation>Å dra med musen virker som å sveipe.</translation>
    </message>
    <message>
        <source>Hide the notch over full-screen windows.</source>
        <translation>Skjul hakket over vinduer i fullskjerm.</translation>
    </message>
    <message>
        <source>Hide the notch while a game runs.</source>
        <translation>Skjul hakket mens et spill kjører.</translation>
    </message>
    <message>
        <source>Applications treated as games, one per line.</source>
        <translation>Programmer som behandles som spill, ett per linje.</translation>
    </message>
    <message>
        <source>Hide the notch while windows are being arranged.</source>
        <translation>Skjul hakket mens vinduer ordnes.</translation>
    </message>
    <message>
        <source>Keep the notch out of screenshots and recordings.</source>
        <translation>Hold hakket utenfor skjermbilder og opptak.</translation>
    </message>
    <message>
        <source>A translucent opened notch instead of black.</source>
        <translation>Et gjennomskinnelig åpent hakk i stedet for svart.</translation>
    </message>
    <message>
        <source>The opened notch in black and white or in colour.</source>
        <translation>Det åpne hakket i svart-hvitt eller i farger.</translation>
    </message>
    <message>
        <source>A soft glow around the opened notch.</source>
        <translation>En myk glød rundt det åpne hakket.</translation>
    </message>
    <message>
        <source>A brief flash when the notch opens.</source>
        <translation>Et kort blink når hakket åpnes.</translation>
    </message>
    <message>
        <source>Colourful bars in the live spectrum.</source>
        <translation>Fargerike stolper i sanntidsspekteret.</translation>
    </message>
    <message>
        <source>A thin coloured rim on the closed notch.</source>
        <translation>En tynn farget kant rundt det lukkede hakket.</translation>
    </message>
    <message>
        <source>Show a live spectrum of the playing audio.</source>
        <translation>Vis et sanntidsspekter av lyden som spilles.</translation>
    </message>
    <message>
        <source>Show widgets on the lock screen (experimental).</source>
        <translation>Vis moduler på låseskjermen (eksperimentelt).</translation>
    </message>
    <message>
        <source>The lock-screen widgets&apos; background: clear, light frost or frosted.</source>
        <translation>Bakgrunnen til modulene på låseskjermen: klar, lett frostet eller frostet.</translation>
    </message>
    <message>
        <source>Vertical offset in points of the lock-screen widgets.</source>
        <translation>Loddrett forskyvning i punkter for modulene på låseskjermen.</translation>
    </message>
    <message>
        <source>Keep the notch on the lock screen.</source>
        <translation>Behold hakket på låseskjermen.</translation>
    </message>
    <message>
        <source>The last lock-screen notice, kept to show it once.</source>
        <translation>Det siste varselet på låseskjermen, lagret så det bare vises én gang.</translation>
    </message>
    <message>
        <source>The last lock-screen notch notice, kept to show it once.</source>
        <translation>Det siste hakkvarselet på låseskjermen, lagret så det bare vises én gang.</translation>
    </message>
    <message>
        <source>Show keyboard backlight changes (experimental).</source>
        <translation>Vis endringer i tastaturbelysning (eksperimentelt).</translation>
    </message>
    <message>
        <source>The system version on which no keyboard backlight was found.</source>
        <translation>Systemversjonen der ingen tastaturbelysning ble funnet.</translation>
    </message>
    <message>
        <source>Show incoming calls (experimental).</source>
        <translation>Vis innkommende anrop (eksperimentelt).</translation>
    </message>
    <message>
        <source>Show incoming messages (experimental).</source>
        <translation>Vis innkommende meldinger (eksperimentelt).</translation>
    </message>
    <message>
        <source>Keep dropped files in a tray (experimental).</source>
        <translation>Ta vare på filer som slippes, i et brett (eksperimentelt).</translation>
    </message>
    <message>
        <source>The tray keeps links to dropped files or copies of them.</source>
        <translation>Brettet holder lenker til filene eller kopier av dem.</translation>
    </message>
    <message>
        <source>Where the playing track comes from: automatic (the desktop&apos;s players), or only the player scripts of a Mac, which show nothing here.</source>
        <translation>Hvor sporet som spilles kommer fra: automatisk (skrivebordets spillere), eller bare spillerskriptene på en Mac, som ikke viser noe her.</translation>
    </message>
    <message>
        <source>Show volume changes in the notch. Alt-Shift with a volume or brightness key changes it in smaller steps.</source>
        <translation>Vis endringer i lydstyrke i hakket. Alt-Shift sammen med en lydstyrke- eller lysstyrketast endrer i mindre steg.</translation>
    </message>
    <message>
        <source>Show brightness changes in the notch. Keys go to the desktop when the output or display cannot be controlled.</source>
        <translation>Vis endringer i lysstyrke i hakket. Tastene går til skrivebordet når utgangen eller skjermen ikke kan styres.</translation>
    </message>
    <message>
        <source>The Focus filter&apos;s last state, as `tindra focus` wrote it.</source>
        <translation>Fokusfilterets siste tilstand, slik `tindra focus` skrev den.</translation>
    </message>
    <message>
        <source>Sections pinned in the opened notch: tick them and drag them into order. With none ticked, every section with something to show appears.</source>
        <translation>Seksjoner som er festet i det åpne hakket: kryss dem av og dra dem i rekkefølge. Med ingen avkrysset vises alle seksjoner som har noe å vise.</translation>
    </message>
    <message>
        <source>Play the volume feedback sound on a desktop without a setting of its own for it (GNOME&apos;s event sounds and Plasma&apos;s audio feedback decide there). Hold Shift while pressing a volume key to do the opposite.</source>
        <translation>Spill av volumlyden på et skrivebord uten egen innstilling for den (der bestemmer GNOMEs hendelseslyder og Plasmas lydtilbakemelding). Hold Shift mens du trykker en volumtast for å gjøre det motsatte.</translation>
    </message>
</context>
<context>
    <name>SettingsNotes</name>
    <message>
        <source>No window can be drawn above the screen locker of a Linux desktop, so there are no lock-screen widgets here; the notch hides while the screen is locked.</source>
        <translation>Ingen vinduer kan tegnes over skjermlåsen på et Linux-skrivebord, så det finnes ingen moduler på låseskjermen her; hakket skjules mens skjermen er låst.</translation>
    </message>
    <message>
        <source>If this computer ignores Tindra&apos;s changes, the keys go back to the desktop and the notch only shows the level.</source>
        <translation>Hvis denne datamaskinen overser endringene fra Tindra, går tastene tilbake til skrivebordet, og hakket viser bare nivået.</translation>
    </message>
    <message>
        <source>The warning appears once when the battery reaches this level, and again only after charging.</source>
        <translation>Advarselen vises én gang når batteriet når dette nivået, og igjen først etter lading.</translation>
    </message>
    <message>
        <source>Up to 20 items. Copies take up to 2 GB in total.</source>
        <translation>Opptil 20 elementer. Kopier tar opptil 2 GB til sammen.</translation>
    </message>
    <message>
        <source>Links: Tindra remembers where they are; nothing is copied. Copies: Tindra keeps a copy, so they stay usable if the originals go; removing it from the tray deletes the copy, never the original.</source>
        <translation>Lenker: Tindra husker hvor filene ligger; ingenting kopieres. Kopier: Tindra tar vare på en kopi, så filene kan brukes selv om originalene forsvinner; fjerner du den fra brettet, slettes kopien, aldri originalen.</translation>
    </message>
    <message>
        <source>A ringing call shows only that it rings; answer it on the desktop&apos;s notification. Messages and missed calls show who and what, with a button that opens the application that sent them. Nothing is stored or sent, and nothing shows while do-not-disturb is on.</source>
        <translation>Et anrop som ringer, viser bare at det ringer; svar på det i varslingen på skrivebordet. Meldinger og tapte anrop viser hvem og hva, med en knapp som åpner programmet som sendte dem. Ingenting lagres eller sendes, og ingenting vises mens Ikke forstyrr er på.</translation>
    </message>
    <message>
        <source>Scroll on the notch with two fingers or the mouse wheel, as if moving a page: down opens it, up closes it, sideways skips tracks.</source>
        <translation>Rull på hakket med to fingre eller musehjulet, som om du flytter en side: ned åpner det, opp lukker det, til siden bytter spor.</translation>
    </message>
    <message>
        <source>The desktop shows through where the window manager draws windows translucent; elsewhere the glass is dark grey.</source>
        <translation>Skrivebordet skinner gjennom der vindusbehandleren tegner vinduer gjennomskinnelige; ellers er glasset mørkegrått.</translation>
    </message>
    <message>
        <source>Drag the closed notch down to open it, or sideways to skip tracks; drag the opened one up from an empty spot to close it.</source>
        <translation>Dra det lukkede hakket ned for å åpne det, eller til siden for å bytte spor; dra det åpne opp fra et tomt sted for å lukke det.</translation>
    </message>
</context>
<context>
    <name>SettingsValues</name>
    <message>
        <source>monochrome</source>
        <translation>svart-hvitt</translation>
    </message>
    <message>
        <source>colorful</source>
        <translation>farger</translation>
    </message>
    <message>
        <source>hover</source>
        <translation>ved pekeren</translation>
    </message>
    <message>
        <source>click</source>
        <translation>ved klikk</translation>
    </message>
    <message>
        <source>short</source>
        <translation>kort</translation>
    </message>
    <message>
        <source>medium</source>
        <translation>middels</translation>
    </message>
    <message>
        <source>long</source>
        <translation>lenge</translation>
    </message>
    <message>
        <source>white</source>
        <translation>hvit</translation>
    </message>
    <message>
        <source>countdown</source>
        <translation>nedtelling</translation>
    </message>
    <message>
        <source>both</source>
        <translation>begge</translation>
    </message>
    <message>
        <source>automobile</source>
        <translation>bil</translation>
    </message>
    <message>
        <source>walking</source>
        <translation>til fots</translation>
    </message>
    <message>
        <source>transit</source>
        <translation>kollektivt</translation>
    </message>
    <message>
        <source>link</source>
        <translation>lenker</translation>
    </message>
    <message>
        <source>copy</source>
        <translation>kopier</translation>
    </message>
    <message>
        <source>continuous</source>
        <translation>sammenhengende</translation>
    </message>
    <message>
        <source>segmented</source>
        <translation>delt opp</translation>
    </message>
    <message>
        <source>ring</source>
        <translation>ring</translation>
    </message>
    <message>
        <source>level</source>
        <translation>etter nivå</translation>
    </message>
    <message>
        <source>accent</source>
        <translation>aksentfarge</translation>
    </message>
    <message>
        <source>clear</source>
        <translation>klar</translation>
    </message>
    <message>
        <source>frosted</source>
        <translation>frostet</translation>
    </message>
    <message>
        <source>standard</source>
        <translation>standard</translation>
    </message>
    <message>
        <source>artwork</source>
        <translation>omslag</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>automatisk</translation>
    </message>
    <message>
        <source>percentage</source>
        <translation>prosent</translation>
    </message>
    <message>
        <source>press and hold</source>
        <translation>trykk og hold</translation>
    </message>
    <message>
        <source>start time</source>
        <translation>starttid</translation>
    </message>
    <message>
        <source>light frost</source>
        <translation>lett frostet</translation>
    </message>
    <message>
        <source>until resumed</source>
        <translation>til avspillingen fortsetter</translation>
    </message>
    <message>
        <source>AppleScript only</source>
        <translation>bare AppleScript</translation>
    </message>
</context>
<context>
    <name>WeatherPanel</name>
    <message>
        <source>Weather</source>
        <translation>Vær</translation>
    </message>
</context>
<context>
    <name>tindra::AdapterCheck</name>
    <message>
        <source>nothing playing</source>
        <translation>ingenting spilles</translation>
    </message>
    <message>
        <source>Stream gave %1 update(s) and %2 unreadable line(s) in %3 s: %4.</source>
        <translation>Strømmen ga %1 oppdatering(er) og %2 uleselig(e) linje(r) på %3 s: %4.</translation>
    </message>
    <message>
        <source>Stream skipped because the self-test failed.</source>
        <translation>Strømmen ble hoppet over fordi selvtesten mislyktes.</translation>
    </message>
    <message>
        <source>Could not launch stream: %1</source>
        <translation>Kunne ikke starte strømmen: %1</translation>
    </message>
</context>
<context>
    <name>tindra::AdapterNowPlayingSource</name>
    <message>
        <source>following the players through the adapter&apos;s stream</source>
        <translation>følger spillerne gjennom adapterens strøm</translation>
    </message>
    <message>
        <source>the adapter&apos;s stream keeps failing: testing the adapter again</source>
        <translation>adapterens strøm svikter stadig: tester adapteren på nytt</translation>
    </message>
</context>
<context>
    <name>tindra::AdapterProbe</name>
    <message>
        <source>The adapter&apos;s self-test did not finish within %1 s.</source>
        <translation>Selvtesten til adapteren ble ikke ferdig innen %1 s.</translation>
    </message>
    <message>
        <source>Could not launch %1: %2</source>
        <translation>Kunne ikke starte %1: %2</translation>
    </message>
    <message>
        <source>The adapter&apos;s self-test passed.</source>
        <translation>Selvtesten til adapteren besto.</translation>
    </message>
    <message>
        <source>The adapter&apos;s self-test failed with exit status %1.</source>
        <translation>Selvtesten til adapteren mislyktes med avslutningsstatus %1.</translation>
    </message>
    <message>
        <source>Adapter not bundled; missing: %1 %2</source>
        <translation>Adapteren følger ikke med; mangler: %1 %2</translation>
    </message>
</context>
<context>
    <name>tindra::BannerProvider</name>
    <message>
        <source>Open %1</source>
        <translation>Åpne %1</translation>
    </message>
</context>
<context>
    <name>tindra::BlueZAccessoryBackend</name>
    <message>
        <source>asking BlueZ for the accessories</source>
        <translation>spør BlueZ om tilbehøret</translation>
    </message>
    <message>
        <source>BlueZ went away: no accessories are shown until it returns</source>
        <translation>BlueZ forsvant: ikke noe tilbehør vises før den kommer tilbake</translation>
    </message>
    <message>
        <source>BlueZ does not answer (%1): no accessories are shown</source>
        <translation>BlueZ svarer ikke (%1): ikke noe tilbehør vises</translation>
    </message>
    <message>
        <source>following BlueZ: %1 Bluetooth devices known</source>
        <translation>følger BlueZ: %1 kjente Bluetooth-enheter</translation>
    </message>
</context>
<context>
    <name>tindra::BusLevelCommandSource</name>
    <message>
        <source>asking the session bus for the name of the level commands</source>
        <translation>ber øktbussen om navnet for nivåkommandoene</translation>
    </message>
    <message>
        <source>`tindra level` commands step the levels (%1 on the session bus)</source>
        <translation>`tindra level`-kommandoer endrer nivåene (%1 på øktbussen)</translation>
    </message>
    <message>
        <source>another program holds %1 on the session bus: `tindra level` commands go there</source>
        <translation>et annet program holder %1 på øktbussen: `tindra level`-kommandoer går dit</translation>
    </message>
</context>
<context>
    <name>tindra::CalendarFeed</name>
    <message>
        <source>not read yet</source>
        <translation>ikke lest ennå</translation>
    </message>
    <message numerus="yes">
        <source>%n document(s) could not be read (%1)</source>
        <translation>
            <numerusform>%n dokument kunne ikke leses (%1)</numerusform>
            <numerusform>%n dokumenter kunne ikke leses (%1)</numerusform>
        </translation>
    </message>
    <message>
        <source>, %1 to-dos</source>
        <translation>, %1 gjøremål</translation>
    </message>
    <message>
        <source>%1; the last good copy is kept</source>
        <translation>%1; den siste gode kopien beholdes</translation>
    </message>
    <message>
        <source>%1 events in view</source>
        <translation>%1 hendelser i visningen</translation>
    </message>
</context>
<context>
    <name>tindra::CalendarListEditor</name>
    <message>
        <source>A file, a folder, or an https:// or webcal:// address</source>
        <translation>En fil, en mappe eller en https://- eller webcal://-adresse</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Legg til</translation>
    </message>
    <message>
        <source>Choose File…</source>
        <translation>Velg fil…</translation>
    </message>
    <message>
        <source>Add a Calendar</source>
        <translation>Legg til en kalender</translation>
    </message>
    <message>
        <source>iCalendar (*.ics);;All files (*)</source>
        <translation>iCalendar (*.ics);;Alle filer (*)</translation>
    </message>
    <message>
        <source>Your mail addresses, separated by commas</source>
        <translation>E-postadressene dine, skilt med komma</translation>
    </message>
    <message>
        <source>Invitations you declined at these addresses are not shown.</source>
        <translation>Invitasjoner du har avslått på disse adressene, vises ikke.</translation>
    </message>
    <message>
        <source>No calendars yet.</source>
        <translation>Ingen kalendere ennå.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Fjern</translation>
    </message>
</context>
<context>
    <name>tindra::CalendarProvider</name>
    <message>
        <source>the calendar is off in Settings</source>
        <translation>kalenderen er slått av i Innstillinger</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Hendelse</translation>
    </message>
    <message>
        <source>Reminder</source>
        <translation>Påminnelse</translation>
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
        <translation>%1 t</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 t %2 min</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Nå</translation>
    </message>
    <message>
        <source>in %1</source>
        <translation>om %1</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>%1 igjen</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Ferdig</translation>
    </message>
    <message>
        <source>Leave in %1</source>
        <translation>Dra om %1</translation>
    </message>
    <message>
        <source>%1 late</source>
        <translation>%1 for sent</translation>
    </message>
    <message>
        <source>Leave now</source>
        <translation>Dra nå</translation>
    </message>
    <message>
        <source>All day</source>
        <translation>Hele dagen</translation>
    </message>
</context>
<context>
    <name>tindra::DBusNotificationMonitor</name>
    <message>
        <source>calls and messages are off: notifications are not read</source>
        <translation>anrop og meldinger er slått av: varslinger leses ikke</translation>
    </message>
    <message>
        <source>the session bus does not let Tindra read notifications (%1): no calls or messages are shown</source>
        <translation>øktbussen lar ikke Tindra lese varslinger (%1): ingen anrop eller meldinger vises</translation>
    </message>
    <message>
        <source>no notification server runs on the session bus: calls and messages show once one starts</source>
        <translation>ingen varslingstjener kjører på øktbussen: anrop og meldinger vises når en starter</translation>
    </message>
    <message>
        <source>reading notification banners for calls and messages</source>
        <translation>leser varselbannere for anrop og meldinger</translation>
    </message>
    <message>
        <source>the session bus closed the notification monitor: no calls or messages are shown</source>
        <translation>øktbussen lukket varslingsovervåkingen: ingen anrop eller meldinger vises</translation>
    </message>
</context>
<context>
    <name>tindra::DiagnosticsWindow</name>
    <message>
        <source>Tindra Diagnostics</source>
        <translation>Tindra-diagnostikk</translation>
    </message>
    <message>
        <source>Copy report</source>
        <translation>Kopier rapport</translation>
    </message>
</context>
<context>
    <name>tindra::DisplayChangeLog</name>
    <message>
        <source>display %1 went away</source>
        <translation>skjermen %1 ble borte</translation>
    </message>
    <message>
        <source>display %1 is connected</source>
        <translation>skjermen %1 er koblet til</translation>
    </message>
</context>
<context>
    <name>tindra::DisplaySelectionEditor</name>
    <message>
        <source>While the chosen display is not connected, the notch is on the main display.</source>
        <translation>Mens den valgte skjermen ikke er tilkoblet, er hakket på hovedskjermen.</translation>
    </message>
    <message>
        <source>Every display</source>
        <translation>Alle skjermer</translation>
    </message>
    <message>
        <source>Main display</source>
        <translation>Hovedskjermen</translation>
    </message>
    <message>
        <source>Main display (%1)</source>
        <translation>Hovedskjermen (%1)</translation>
    </message>
    <message>
        <source>%1 (not connected)</source>
        <translation>%1 (ikke tilkoblet)</translation>
    </message>
    <message numerus="yes">
        <source>%1 (%n displays)</source>
        <translation>
            <numerusform>%1 (%n skjerm)</numerusform>
            <numerusform>%1 (%n skjermer)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tindra::EdsCalendarFeed</name>
    <message>
        <source>Evolution Data Server&apos;s calendar factory does not answer (%1)</source>
        <translation>kalenderfabrikken i Evolution Data Server svarer ikke (%1)</translation>
    </message>
    <message>
        <source>Evolution Data Server&apos;s calendar factory went away: the events last read are kept until it returns</source>
        <translation>kalenderfabrikken i Evolution Data Server forsvant: hendelsene som sist ble lest, beholdes til den er tilbake</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a calendar and its account</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Evolution Data Server, source %1</source>
        <translation>Evolution Data Server, kilde %1</translation>
    </message>
    <message>
        <source>Evolution Data Server cannot open the calendar: %1</source>
        <translation>Evolution Data Server kan ikke åpne kalenderen: %1</translation>
    </message>
    <message>
        <source>the calendar&apos;s backend went away: the events last read are kept until it is open again</source>
        <translation>kalenderens bakende forsvant: hendelsene som sist ble lest, beholdes til den er åpen igjen</translation>
    </message>
    <message>
        <source>Evolution Data Server gives no view of the calendar: %1</source>
        <translation>Evolution Data Server gir ingen visning av kalenderen: %1</translation>
    </message>
    <message>
        <source>Evolution Data Server&apos;s view of the calendar does not start: %1</source>
        <translation>visningen av kalenderen i Evolution Data Server starter ikke: %1</translation>
    </message>
    <message>
        <source>Evolution Data Server could not list the calendar: %1</source>
        <translation>Evolution Data Server fikk ikke listet kalenderen: %1</translation>
    </message>
</context>
<context>
    <name>tindra::EdsSourceRegistry</name>
    <message>
        <source>asking Evolution Data Server for its calendars</source>
        <translation>spør Evolution Data Server etter kalenderne</translation>
    </message>
    <message>
        <source>Evolution Data Server is not running (%1): its calendars and online accounts are not read</source>
        <translation>Evolution Data Server kjører ikke (%1): kalenderne og nettkontoene der leses ikke</translation>
    </message>
    <message>
        <source>Evolution Data Server&apos;s source registry went away: its calendars are kept as they were until it returns</source>
        <translation>kilderegisteret i Evolution Data Server forsvant: kalenderne beholdes som de var til det er tilbake</translation>
    </message>
    <message numerus="yes">
        <source>Evolution Data Server gives %n calendar(s)</source>
        <translation>
            <numerusform>Evolution Data Server gir %n kalender</numerusform>
            <numerusform>Evolution Data Server gir %n kalendere</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n without an account</source>
        <translation>
            <numerusform>%n uten konto</numerusform>
            <numerusform>%n uten konto</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n from %1</source>
        <translation>
            <numerusform>%n fra %1</numerusform>
            <numerusform>%n fra %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tindra::FakeAccessoryBackend</name>
    <message>
        <source>invented accessories (TINDRA_FAKE asks for them)</source>
        <translation>oppdiktet tilbehør (TINDRA_FAKE ber om det)</translation>
    </message>
</context>
<context>
    <name>tindra::FakeBacklightBackend</name>
    <message>
        <source>invented readings (TINDRA_FAKE asks for them)</source>
        <translation>oppdiktede målinger (TINDRA_FAKE ber om dem)</translation>
    </message>
</context>
<context>
    <name>tindra::FakeBatteryBackend</name>
    <message>
        <source>invented readings (TINDRA_FAKE asks for them)</source>
        <translation>oppdiktede målinger (TINDRA_FAKE ber om dem)</translation>
    </message>
</context>
<context>
    <name>tindra::FakeCalendarBackend</name>
    <message>
        <source>invented</source>
        <translation>oppdiktet</translation>
    </message>
    <message>
        <source>The invented calendars take no additions.</source>
        <translation>Det kan ikke legges til noe i de oppdiktede kalenderne.</translation>
    </message>
</context>
<context>
    <name>tindra::FakeFileTrayBackend</name>
    <message>
        <source>invented files (TINDRA_FAKE asks for them)</source>
        <translation>oppdiktede filer (TINDRA_FAKE ber om dem)</translation>
    </message>
</context>
<context>
    <name>tindra::FakeFocusStatusSource</name>
    <message>
        <source>invented do-not-disturb (TINDRA_FAKE)</source>
        <translation>oppdiktet Ikke forstyrr (TINDRA_FAKE)</translation>
    </message>
</context>
<context>
    <name>tindra::FakeLocationSource</name>
    <message>
        <source>an invented position (TINDRA_FAKE)</source>
        <translation>en oppdiktet posisjon (TINDRA_FAKE)</translation>
    </message>
</context>
<context>
    <name>tindra::FakeLockStateSource</name>
    <message>
        <source>invented screen lock (TINDRA_FAKE)</source>
        <translation>oppdiktet skjermlås (TINDRA_FAKE)</translation>
    </message>
</context>
<context>
    <name>tindra::FakeNotificationSource</name>
    <message>
        <source>invented notifications (TINDRA_FAKE)</source>
        <translation>oppdiktede varsler (TINDRA_FAKE)</translation>
    </message>
</context>
<context>
    <name>tindra::FakeNowPlayingSource</name>
    <message>
        <source>an invented track (TINDRA_FAKE asks for it)</source>
        <translation>et oppdiktet spor (TINDRA_FAKE ber om det)</translation>
    </message>
</context>
<context>
    <name>tindra::FakeVisibilitySource</name>
    <message>
        <source>an invented window in front (TINDRA_FAKE)</source>
        <translation>et oppdiktet vindu foran (TINDRA_FAKE)</translation>
    </message>
</context>
<context>
    <name>tindra::FakeVolumeBackend</name>
    <message>
        <source>invented readings (TINDRA_FAKE asks for them)</source>
        <translation>oppdiktede målinger (TINDRA_FAKE ber om dem)</translation>
    </message>
</context>
<context>
    <name>tindra::FakeVolumeSoundPreference</name>
    <message>
        <source>an invented volume sound setting (TINDRA_FAKE asks for it)</source>
        <translation>en oppdiktet innstilling for volumlyden (TINDRA_FAKE ber om den)</translation>
    </message>
</context>
<context>
    <name>tindra::FileTrayProvider</name>
    <message>
        <source>Only files and folders can go in the tray.</source>
        <translation>Bare filer og mapper kan legges i brettet.</translation>
    </message>
    <message>
        <source>Already in the tray:</source>
        <translation>Allerede i brettet:</translation>
    </message>
    <message>
        <source>The tray is full:</source>
        <translation>Brettet er fullt:</translation>
    </message>
    <message>
        <source>not added. Remove some items first.</source>
        <translation>ikke lagt til. Fjern noe først.</translation>
    </message>
    <message>
        <source>Only files and folders can go in the tray:</source>
        <translation>Bare filer og mapper kan legges i brettet:</translation>
    </message>
    <message>
        <source>Copies in the tray are limited to 2 GB:</source>
        <translation>Kopier i brettet er begrenset til 2 GB:</translation>
    </message>
    <message>
        <source>could not be copied into the tray.</source>
        <translation>kunne ikke kopieres til brettet.</translation>
    </message>
    <message>
        <source>The copy into the tray was stopped.</source>
        <translation>Kopieringen til brettet ble stoppet.</translation>
    </message>
    <message numerus="yes">
        <source>Copying %n item(s) into the tray…</source>
        <translation>
            <numerusform>Kopierer %n element til brettet…</numerusform>
            <numerusform>Kopierer %n elementer til brettet…</numerusform>
        </translation>
    </message>
    <message>
        <source>keeping the file tray in %1</source>
        <translation>lagrer filbrettet i %1</translation>
    </message>
    <message>
        <source>some items of the saved file tray could not be read and were left out; the list as it was is kept as %1</source>
        <translation>noen elementer i det lagrede filbrettet kunne ikke leses og ble utelatt; listen slik den var, er tatt vare på som %1</translation>
    </message>
    <message>
        <source>the saved file tray %1; it is kept as %2 and the tray starts empty</source>
        <translation>det lagrede filbrettet %1; det er tatt vare på som %2, og brettet starter tomt</translation>
    </message>
    <message>
        <source>was written by a newer Tindra</source>
        <translation>ble skrevet av en nyere Tindra</translation>
    </message>
    <message>
        <source>could not be read</source>
        <translation>kunne ikke leses</translation>
    </message>
    <message>
        <source>the file tray is not saved: an unreadable list could not be moved aside</source>
        <translation>filbrettet lagres ikke: en uleselig liste kunne ikke flyttes til side</translation>
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
        <source>GNOME&apos;s notification settings are not installed: do-not-disturb is unknown</source>
        <translation>varslingsinnstillingene til GNOME er ikke installert: Ikke forstyrr er ukjent</translation>
    </message>
    <message>
        <source>reading do-not-disturb from GNOME&apos;s settings (show-banners)</source>
        <translation>leser Ikke forstyrr fra innstillingene til GNOME (show-banners)</translation>
    </message>
</context>
<context>
    <name>tindra::GSettingsVolumeSoundPreference</name>
    <message>
        <source>the volume sound follows GNOME&apos;s event sounds setting</source>
        <translation>volumlyden følger GNOMEs innstilling for hendelseslyder</translation>
    </message>
    <message>
        <source>GNOME&apos;s sound settings are not installed: the volume sound follows Tindra&apos;s own setting</source>
        <translation>GNOMEs lydinnstillinger er ikke installert: volumlyden følger Tindras egen innstilling</translation>
    </message>
</context>
<context>
    <name>tindra::GeoClueLocationSource</name>
    <message>
        <source>asking GeoClue for the position</source>
        <translation>spør GeoClue om posisjonen</translation>
    </message>
    <message>
        <source>GeoClue is not available (%1)</source>
        <translation>GeoClue er ikke tilgjengelig (%1)</translation>
    </message>
    <message>
        <source>GeoClue refused the position (%1)</source>
        <translation>GeoClue nektet å gi posisjonen (%1)</translation>
    </message>
    <message>
        <source>GeoClue gives the position, at city accuracy</source>
        <translation>GeoClue gir posisjonen, med nøyaktighet på bynivå</translation>
    </message>
    <message>
        <source>GeoClue went away: the last position stays until it returns</source>
        <translation>GeoClue forsvant: den siste posisjonen blir stående til den kommer tilbake</translation>
    </message>
</context>
<context>
    <name>tindra::HudProvider</name>
    <message>
        <source>holds %1</source>
        <translation>holder %1</translation>
    </message>
    <message>
        <source>only watches the level for %1 (another program holds them)</source>
        <translation>følger bare nivået for %1 (et annet program holder dem)</translation>
    </message>
    <message>
        <source>leaves %1 to the desktop</source>
        <translation>overlater %1 til skrivebordet</translation>
    </message>
    <message>
        <source>the keyboard backlight ignores Tindra&apos;s changes: the keys go back to the desktop and the notch only shows the level</source>
        <translation>tastaturlyset overser Tindras endringer: tastene går tilbake til skrivebordet, og hakket viser bare nivået</translation>
    </message>
</context>
<context>
    <name>tindra::ICalendarBackend</name>
    <message>
        <source>the calendar list was not readable and was set aside as %1</source>
        <translation>kalenderlisten kunne ikke leses og ble lagt til side som %1</translation>
    </message>
    <message>
        <source>not read while the calendar is off</source>
        <translation>leses ikke mens kalenderen er slått av</translation>
    </message>
    <message>
        <source>Give a file, a folder or an address.</source>
        <translation>Oppgi en fil, en mappe eller en adresse.</translation>
    </message>
    <message>
        <source>Use an https:// or webcal:// address: a calendar fetched over plain http can be read by anyone on the way.</source>
        <translation>Bruk en https://- eller webcal://-adresse: en kalender som hentes over vanlig http, kan leses av hvem som helst underveis.</translation>
    </message>
    <message>
        <source>This calendar is already in the list.</source>
        <translation>Denne kalenderen er allerede i listen.</translation>
    </message>
    <message numerus="yes">
        <source>reading %n iCalendar calendar(s)</source>
        <translation>
            <numerusform>leser %n iCalendar-kalender</numerusform>
            <numerusform>leser %n iCalendar-kalendere</numerusform>
        </translation>
    </message>
    <message>
        <source>no calendars: add an iCalendar file, folder or address in Settings</source>
        <translation>ingen kalendere: legg til en iCalendar-fil, -mappe eller -adresse i Innstillinger</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 kan ikke leses: %2</translation>
    </message>
</context>
<context>
    <name>tindra::IdleClock</name>
    <message>
        <source>dddd d MMMM</source>
        <comment>the opened notch&apos;s date: Qt date format</comment>
        <translation>dddd d. MMMM</translation>
    </message>
</context>
<context>
    <name>tindra::LocalCalendarFeed</name>
    <message>
        <source>%1 is not there</source>
        <translation>%1 finnes ikke</translation>
    </message>
    <message>
        <source>%1 cannot be read</source>
        <translation>%1 kan ikke leses</translation>
    </message>
</context>
<context>
    <name>tindra::LogindLockSource</name>
    <message>
        <source>asking logind for the session</source>
        <translation>spør logind om økten</translation>
    </message>
    <message>
        <source>logind does not know this session (%1): the screen lock is not followed</source>
        <translation>logind kjenner ikke denne økten (%1): skjermlåsen følges ikke</translation>
    </message>
    <message>
        <source>logind does not answer (%1): the screen lock is not followed</source>
        <translation>logind svarer ikke (%1): skjermlåsen følges ikke</translation>
    </message>
    <message>
        <source>following the screen lock of logind&apos;s session %1</source>
        <translation>følger skjermlåsen for logind-økt %1</translation>
    </message>
    <message>
        <source>logind went away: the screen lock is not followed until it returns</source>
        <translation>logind forsvant: skjermlåsen følges ikke før den kommer tilbake</translation>
    </message>
</context>
<context>
    <name>tindra::NotificationServerFocusSource</name>
    <message>
        <source>reading do-not-disturb from the notification server (Inhibited)</source>
        <translation>leser Ikke forstyrr fra varslingstjeneren (Inhibited)</translation>
    </message>
    <message>
        <source>asking the notification server for do-not-disturb</source>
        <translation>spør varslingstjeneren om Ikke forstyrr</translation>
    </message>
    <message>
        <source>the notification server went away: do-not-disturb is unknown until it returns</source>
        <translation>varslingstjeneren forsvant: Ikke forstyrr er ukjent til den kommer tilbake</translation>
    </message>
    <message>
        <source>no notification server runs: do-not-disturb is unknown until one starts</source>
        <translation>ingen varslingstjener kjører: Ikke forstyrr er ukjent til en starter</translation>
    </message>
    <message>
        <source>the notification server does not report do-not-disturb (no Inhibited property): only `tindra focus` shows a Focus</source>
        <translation>varslingstjeneren rapporterer ikke Ikke forstyrr (ingen Inhibited-egenskap): bare `tindra focus` viser fokus</translation>
    </message>
</context>
<context>
    <name>tindra::NowPlayingProvider</name>
    <message>
        <source>Settings ask for the player scripts, which this desktop does not have: nothing is shown as playing.</source>
        <translation>Innstillingene ber om spillerskriptene, som dette skrivebordet ikke har: ingenting vises under Spilles nå.</translation>
    </message>
    <message>
        <source>testing the now-playing adapter %1</source>
        <translation>tester Spilles nå-adapteren %1</translation>
    </message>
    <message>
        <source>a player without a name</source>
        <translation>en spiller uten navn</translation>
    </message>
    <message>
        <source>following %1</source>
        <translation>følger %1</translation>
    </message>
    <message>
        <source>%1 left: nothing is playing</source>
        <translation>%1 ble borte: ingenting spilles</translation>
    </message>
</context>
<context>
    <name>tindra::OnboardingWindow</name>
    <message>
        <source>Welcome to Tindra</source>
        <translation>Velkommen til Tindra</translation>
    </message>
    <message>
        <source>&lt;b&gt;The notch opens&lt;/b&gt;</source>
        <translation>&lt;b&gt;Hakket åpnes&lt;/b&gt;</translation>
    </message>
    <message>
        <source>when the pointer rests on it</source>
        <translation>når pekeren hviler på det</translation>
    </message>
    <message>
        <source>when you click it</source>
        <translation>når du klikker på det</translation>
    </message>
    <message>
        <source>when you press and hold it</source>
        <translation>når du trykker og holder</translation>
    </message>
    <message>
        <source>Start Tindra when I log in</source>
        <translation>Start Tindra når jeg logger inn</translation>
    </message>
    <message>
        <source>Start Using Tindra</source>
        <translation>Ta i bruk Tindra</translation>
    </message>
    <message>
        <source>&lt;h2&gt;Welcome to Tindra&lt;/h2&gt;&lt;p&gt;The strip at the top of your display is now a small live display. Closed, it shows one thing at a time: what is playing, a volume or brightness level, a battery or headphone notice, the next meeting, a call or a message. Rest the pointer on it and it opens into a panel with the controls, your calendar, the weather, your batteries and a file tray. Everything stays on this computer.&lt;/p&gt;&lt;p&gt;&lt;b&gt;What Tindra found here&lt;/b&gt; (✓ works, – off or waiting, ✗ missing), and what you can do:&lt;/p&gt;</source>
        <translation>&lt;h2&gt;Velkommen til Tindra&lt;/h2&gt;&lt;p&gt;Stripen øverst på skjermen er nå en liten levende skjerm. Lukket viser den én ting om gangen: det som spilles, et volum- eller lysstyrkenivå, et batteri- eller hodetelefonvarsel, neste møte, en samtale eller en melding. Hvil pekeren på den, så åpner den seg til et panel med kontrollene, kalenderen, været, batteriene og et filbrett. Alt blir på denne datamaskinen.&lt;/p&gt;&lt;p&gt;&lt;b&gt;Det Tindra fant her&lt;/b&gt; (✓ virker, – av eller venter, ✗ mangler), og hva du kan gjøre:&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Each service&apos;s own report is in Diagnostics… on Tindra&apos;s menu, for a bug report.</source>
        <translation>Hver tjenestes egen rapport ligger i Diagnostikk… i Tindras meny, til en feilrapport.</translation>
    </message>
</context>
<context>
    <name>tindra::PinnedSectionsEditor</name>
    <message>
        <source>Tick the sections to pin and drag them into order</source>
        <translation>Kryss av seksjonene som skal festes, og dra dem i rekkefølge</translation>
    </message>
</context>
<context>
    <name>tindra::PlasmaVolumeSoundPreference</name>
    <message>
        <source>the volume sound follows the audio feedback setting of Plasma&apos;s volume applet</source>
        <translation>volumlyden følger innstillingen for lydtilbakemelding i Plasmas volumminiprogram</translation>
    </message>
</context>
<context>
    <name>tindra::PlasmaWindowVisibilitySource</name>
    <message>
        <source>following the active window and full-screen state from KWin&apos;s window list (Plasma window management)</source>
        <translation>følger det aktive vinduet og fullskjermtilstanden i KWins vindusliste (Plasma window management)</translation>
    </message>
</context>
<context>
    <name>tindra::PosixFileTrayBackend</name>
    <message>
        <source>files are known by their device and inode</source>
        <translation>filer kjennes igjen på enhet og inode</translation>
    </message>
</context>
<context>
    <name>tindra::PulseProcessTapSession</name>
    <message>
        <source>no sound server to listen to</source>
        <translation>ingen lydtjener å lytte til</translation>
    </message>
    <message>
        <source>the player&apos;s own stream (%1)</source>
        <translation>spillerens egen strøm (%1)</translation>
    </message>
    <message>
        <source>the default output</source>
        <translation>standardutgangen</translation>
    </message>
    <message>
        <source>the sound server has no output to listen to</source>
        <translation>lydtjeneren har ingen utgang å lytte til</translation>
    </message>
    <message>
        <source> on </source>
        <translation> på </translation>
    </message>
    <message>
        <source>the sound server refused a capture stream</source>
        <translation>lydtjeneren avviste en opptaksstrøm</translation>
    </message>
</context>
<context>
    <name>tindra::PulseVolumeBackend</name>
    <message>
        <source>following the sound server&apos;s default output</source>
        <translation>følger standardutgangen til lydtjeneren</translation>
    </message>
    <message>
        <source>the sound server went away: no volume until it returns</source>
        <translation>lydtjeneren forsvant: ingen lydstyrke før den kommer tilbake</translation>
    </message>
    <message>
        <source>connecting to the sound server</source>
        <translation>kobler til lydtjeneren</translation>
    </message>
    <message>
        <source>no sound server answers: the volume shows as soon as PipeWire or PulseAudio runs</source>
        <translation>ingen lydtjener svarer: volumet vises så snart PipeWire eller PulseAudio kjører</translation>
    </message>
</context>
<context>
    <name>tindra::RemoteCalendarFeed</name>
    <message>
        <source>%1 is not an https address</source>
        <translation>%1 er ikke en https-adresse</translation>
    </message>
    <message>
        <source>HTTP %1</source>
        <translation>HTTP %1</translation>
    </message>
    <message>
        <source>could not fetch %1 (%2)</source>
        <translation>kunne ikke hente %1 (%2)</translation>
    </message>
</context>
<context>
    <name>tindra::ScreenSource</name>
    <message>
        <source>Built-in display</source>
        <translation>Innebygd skjerm</translation>
    </message>
</context>
<context>
    <name>tindra::SettingsWindow</name>
    <message>
        <source>Tindra Settings</source>
        <translation>Tindra-innstillinger</translation>
    </message>
    <message>
        <source>Search settings</source>
        <translation>Søk i innstillinger</translation>
    </message>
    <message>
        <source>Reset Page</source>
        <translation>Tilbakestill siden</translation>
    </message>
    <message>
        <source>Use the default value of every setting on this page</source>
        <translation>Bruk standardverdien for alle innstillingene på denne siden</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Tilbakestill</translation>
    </message>
    <message>
        <source>Use the default value</source>
        <translation>Bruk standardverdien</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(ingen)</translation>
    </message>
    <message>
        <source>The change was not saved: %1</source>
        <translation>Endringen ble ikke lagret: %1</translation>
    </message>
</context>
<context>
    <name>tindra::ShellActions</name>
    <message>
        <source>Settings…</source>
        <translation>Innstillinger…</translation>
    </message>
    <message>
        <source>Diagnostics…</source>
        <translation>Diagnostikk…</translation>
    </message>
    <message>
        <source>Start at Login</source>
        <translation>Start ved innlogging</translation>
    </message>
    <message>
        <source>Quit Tindra</source>
        <translation>Avslutt Tindra</translation>
    </message>
    <message>
        <source>Each service Tindra uses says here whether it answers, and every change since Tindra started is in the log. The report has the versions, the session and the log, for a bug report; it names none of your files, events or messages.</source>
        <translation>Her ser du om hver tjeneste Tindra bruker svarer, og hver endring siden Tindra startet står i loggen. Rapporten inneholder versjonene, økten og loggen, til en feilrapport; den nevner ingen av filene, hendelsene eller meldingene dine.</translation>
    </message>
    <message>
        <source>No keyboard backlight that Tindra can control was found on this computer.</source>
        <translation>Fant ikke noe tastaturlys som Tindra kan styre på denne datamaskinen.</translation>
    </message>
    <message>
        <source>Tindra could not read the keyboard backlight just now, so this was turned off. Try again with the lid open.</source>
        <translation>Tindra fikk ikke lest tastaturlyset akkurat nå, så dette ble slått av. Prøv igjen med lokket åpent.</translation>
    </message>
    <message>
        <source>This computer has no battery, so there is nothing to show here.</source>
        <translation>Denne datamaskinen har ikke batteri, så her er det ingenting å vise.</translation>
    </message>
</context>
<context>
    <name>tindra::SysfsBacklightBackend</name>
    <message>
        <source>no display backlight in %1: the brightness keys stay with the desktop</source>
        <translation>ingen skjermbelysning i %1: lysstyrketastene blir hos skrivebordet</translation>
    </message>
    <message>
        <source>%1, set through logind</source>
        <translation>%1, stilles gjennom logind</translation>
    </message>
    <message>
        <source>%1 is shown; logind is not running, so the brightness keys stay with the desktop</source>
        <translation>%1 vises; logind kjører ikke, så lysstyrketastene blir hos skrivebordet</translation>
    </message>
    <message>
        <source>%1 is shown; asking whether logind runs to set it</source>
        <translation>%1 vises; spør om logind kjører for å stille den</translation>
    </message>
    <message>
        <source>%1 is shown; logind refused to set it (%2), so the brightness keys stay with the desktop</source>
        <translation>%1 vises; logind nektet å stille den (%2), så lysstyrketastene blir hos skrivebordet</translation>
    </message>
</context>
<context>
    <name>tindra::TindraApp</name>
    <message>
        <source>Check Now Playing adapter</source>
        <translation>Sjekk Spilles nå-adapteren</translation>
    </message>
</context>
<context>
    <name>tindra::UPowerBatteryBackend</name>
    <message>
        <source>asking UPower for the battery</source>
        <translation>spør UPower om batteriet</translation>
    </message>
    <message>
        <source>UPower does not answer (%1): no battery is shown</source>
        <translation>UPower svarer ikke (%1): batteriet vises ikke</translation>
    </message>
    <message>
        <source>reading the battery from UPower</source>
        <translation>leser batteriet fra UPower</translation>
    </message>
    <message>
        <source>UPower answers and reports no battery</source>
        <translation>UPower svarer, men rapporterer ikke noe batteri</translation>
    </message>
    <message>
        <source>UPower went away: no battery is shown until it returns</source>
        <translation>UPower forsvant: batteriet vises ikke før den kommer tilbake</translation>
    </message>
    <message>
        <source>no power-profiles-daemon: low power mode is not shown</source>
        <translation>ingen power-profiles-daemon: strømsparingsmodus vises ikke</translation>
    </message>
    <message>
        <source>power-profiles-daemon does not answer (%1): low power mode is not shown</source>
        <translation>power-profiles-daemon svarer ikke (%1): strømsparingsmodus vises ikke</translation>
    </message>
    <message>
        <source>power-profiles-daemon went away: low power mode is not shown until it returns</source>
        <translation>power-profiles-daemon ble borte: strømsparingsmodus vises ikke før den er tilbake</translation>
    </message>
</context>
<context>
    <name>tindra::UPowerKeyboardBacklightBackend</name>
    <message>
        <source>UPower went away: the keyboard light keys stay with the desktop</source>
        <translation>UPower forsvant: tastene for tastaturlys blir hos skrivebordet</translation>
    </message>
    <message>
        <source>UPower reports no keyboard backlight (%1)</source>
        <translation>UPower rapporterer ingen tastaturbelysning (%1)</translation>
    </message>
    <message>
        <source>no levels</source>
        <translation>ingen nivåer</translation>
    </message>
    <message>
        <source>keyboard backlight through UPower, %1 levels</source>
        <translation>tastaturbelysning gjennom UPower, %1 nivåer</translation>
    </message>
    <message>
        <source>the keyboard backlight level cannot be read (%1 of %2)</source>
        <translation>nivået for tastaturbelysningen kan ikke leses (%1 av %2)</translation>
    </message>
    <message>
        <source>the keyboard backlight level cannot be read (%1)</source>
        <translation>tastaturlysets nivå kan ikke leses (%1)</translation>
    </message>
</context>
<context>
    <name>tindra::VisibilityMonitor</name>
    <message>
        <source>the notch steps aside: %1</source>
        <translation>hakket viker: %1</translation>
    </message>
    <message>
        <source>the notch shows</source>
        <translation>hakket vises</translation>
    </message>
</context>
<context>
    <name>tindra::WeatherProvider</name>
    <message>
        <source>the weather is off in Settings</source>
        <translation>været er slått av i Innstillinger</translation>
    </message>
    <message>
        <source>position: %1; %2</source>
        <translation>posisjon: %1; %2</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>ingen ennå</translation>
    </message>
    <message>
        <source>; the last request failed (%1)</source>
        <translation>; den siste forespørselen mislyktes (%1)</translation>
    </message>
    <message>
        <source>set in Settings</source>
        <translation>angitt i Innstillinger</translation>
    </message>
    <message>
        <source>GeoClue</source>
        <translation>GeoClue</translation>
    </message>
    <message>
        <source>the time zone %1</source>
        <translation>tidssonen %1</translation>
    </message>
    <message>
        <source>The weather is unavailable right now.</source>
        <translation>Været er ikke tilgjengelig akkurat nå.</translation>
    </message>
    <message>
        <source>Waiting for location access</source>
        <translation>Venter på tilgang til posisjon</translation>
    </message>
    <message>
        <source>High %1 · Low %2</source>
        <translation>Høyeste %1 · Laveste %2</translation>
    </message>
    <message>
        <source>%1, set in Settings</source>
        <translation>%1, angitt i Innstillinger</translation>
    </message>
</context>
<context>
    <name>tindra::WeatherSettingsEditor</name>
    <message>
        <source>Position in use:</source>
        <translation>Posisjon i bruk:</translation>
    </message>
    <message>
        <source>Pick a city</source>
        <translation>Velg en by</translation>
    </message>
    <message>
        <source>My place:</source>
        <translation>Mitt sted:</translation>
    </message>
    <message>
        <source>Use These</source>
        <translation>Bruk disse</translation>
    </message>
    <message>
        <source>Use the Location Service</source>
        <translation>Bruk posisjonstjenesten</translation>
    </message>
    <message>
        <source>Latitude, longitude:</source>
        <translation>Breddegrad, lengdegrad:</translation>
    </message>
    <message>
        <source>An e-mail address MET Norway may reach you at (optional)</source>
        <translation>En e-postadresse Meteorologisk institutt kan nå deg på (valgfritt)</translation>
    </message>
    <message>
        <source>Contact:</source>
        <translation>Kontakt:</translation>
    </message>
    <message>
        <source>As the region says</source>
        <translation>Som regionen sier</translation>
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
        <translation>Enhet:</translation>
    </message>
    <message>
        <source>No city called %1 is known.</source>
        <translation>Ingen kjent by heter %1.</translation>
    </message>
</context>
<context>
    <name>tindra::WeatherViewModel</name>
    <message>
        <source>Weather data from MET Norway</source>
        <translation>Værdata fra Meteorologisk institutt</translation>
    </message>
</context>
<context>
    <name>tindra::WlrToplevelVisibilitySource</name>
    <message>
        <source>following the active window and full-screen state from the compositor&apos;s window list (wlr foreign toplevel)</source>
        <translation>følger det aktive vinduet og fullskjermtilstanden i kompositorens vindusliste (wlr foreign toplevel)</translation>
    </message>
</context>
<context>
    <name>tindra::X11MediaKeySource</name>
    <message>
        <source>no X display: the keys stay with the desktop, and the level changes it makes are shown</source>
        <translation>ingen X-skjerm: tastene blir hos skrivebordet, og nivåendringene det gjør, vises</translation>
    </message>
    <message>
        <source>holding no keys</source>
        <translation>holder ingen taster</translation>
    </message>
    <message>
        <source>holding %1 key combinations, %2 held by another program</source>
        <translation>holder %1 tastekombinasjoner, %2 holdt av et annet program</translation>
    </message>
    <message>
        <source>the X server closed the connection: the keys stay with the desktop</source>
        <translation>X-tjeneren lukket tilkoblingen: tastene blir hos skrivebordet</translation>
    </message>
</context>
<context>
    <name>tindra::X11VisibilitySource</name>
    <message>
        <source>no X display: the notch never steps aside for full-screen windows or games</source>
        <translation>ingen X-skjerm: hakket viker aldri for vinduer i fullskjerm eller spill</translation>
    </message>
    <message>
        <source>following the active window and full-screen state from the window manager (EWMH)</source>
        <translation>følger det aktive vinduet og fullskjermtilstanden fra vindusbehandleren (EWMH)</translation>
    </message>
    <message>
        <source>the X server closed the connection: the notch no longer steps aside</source>
        <translation>X-tjeneren lukket tilkoblingen: hakket viker ikke lenger</translation>
    </message>
</context>
</TS>
