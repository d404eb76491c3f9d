<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>AccessoriesPanel</name>
    <message>
        <source>Accessories</source>
        <translation>Accessoires</translation>
    </message>
    <message>
        <source>No battery reported</source>
        <translation>Aucune batterie signalée</translation>
    </message>
    <message>
        <source>L</source>
        <translation>G</translation>
    </message>
    <message>
        <source>R</source>
        <translation>D</translation>
    </message>
    <message>
        <source>Case</source>
        <translation>Boîtier</translation>
    </message>
</context>
<context>
    <name>AccessoryBatteryRings</name>
    <message>
        <source>L</source>
        <translation>G</translation>
    </message>
    <message>
        <source>R</source>
        <translation>D</translation>
    </message>
    <message>
        <source>C</source>
        <translation>B</translation>
    </message>
</context>
<context>
    <name>AccessoryCompact</name>
    <message>
        <source>Left</source>
        <translation>Gauche</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Droite</translation>
    </message>
    <message>
        <source>Case</source>
        <translation>Boîtier</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Déconnecté</translation>
    </message>
    <message>
        <source>Playing on %1</source>
        <translation>Lecture sur %1</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Connecté</translation>
    </message>
</context>
<context>
    <name>Autostart</name>
    <message>
        <source>could not remove %1: %2</source>
        <translation>impossible de supprimer %1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>Backends</name>
    <message>
        <source>no session bus: no calls or messages are shown</source>
        <translation>pas de bus de session&#xa0;: aucun appel ni message n’est affiché</translation>
    </message>
    <message>
        <source>no session bus: do-not-disturb is unknown, only `tindra focus` shows a Focus</source>
        <translation>pas de bus de session&#xa0;: «&#xa0;Ne pas déranger&#xa0;» est inconnu, seul `tindra focus` affiche une Concentration</translation>
    </message>
    <message>
        <source>no system bus (%1): the keyboard light keys stay with the desktop</source>
        <translation>pas de bus système (%1)&#xa0;: les touches d’éclairage du clavier restent au bureau</translation>
    </message>
    <message>
        <source>a Wayland session lets no program take the keys: the desktop keeps them, and the level changes it makes are shown</source>
        <translation>une session Wayland ne laisse aucun programme prendre les touches&#xa0;: le bureau les garde, et les changements de niveau qu’il fait sont affichés</translation>
    </message>
    <message>
        <source>no X11 display (%1): the keys stay with the desktop, and the level changes it makes are shown</source>
        <translation>pas d’affichage X11 (%1)&#xa0;: les touches restent au bureau, et les changements de niveau qu’il fait sont affichés</translation>
    </message>
    <message>
        <source>the notch is an X11 window</source>
        <translation>l’encoche est une fenêtre X11</translation>
    </message>
    <message>
        <source>the notch is a layer surface on the Wayland compositor</source>
        <translation>l’encoche est une surface layer-shell du compositeur Wayland</translation>
    </message>
    <message>
        <source>TINDRA_PLATFORM asks for Wayland, but the compositor offers no layer shell: the notch is an X11 window through XWayland</source>
        <translation>TINDRA_PLATFORM demande Wayland, mais le compositeur n’offre pas de layer shell&#xa0;: l’encoche est une fenêtre X11 via XWayland</translation>
    </message>
    <message>
        <source>the Wayland compositor offers no layer shell (GNOME&apos;s has none): the notch is an X11 window through XWayland, above other X11 windows but not always above Wayland ones</source>
        <translation>le compositeur Wayland n’offre pas de layer shell (celui de GNOME n’en a pas)&#xa0;: l’encoche est une fenêtre X11 via XWayland, au-dessus des autres fenêtres X11 mais pas toujours des fenêtres Wayland</translation>
    </message>
    <message>
        <source>TINDRA_PLATFORM asks for X11: the notch is an X11 window</source>
        <translation>TINDRA_PLATFORM demande X11&#xa0;: l’encoche est une fenêtre X11</translation>
    </message>
    <message>
        <source>no system bus (%1): no battery is shown</source>
        <translation>pas de bus système (%1)&#xa0;: aucune batterie n’est affichée</translation>
    </message>
    <message>
        <source>no system bus (%1): no accessories are shown</source>
        <translation>pas de bus système (%1)&#xa0;: aucun accessoire n’est affiché</translation>
    </message>
    <message>
        <source>the Wayland compositor lists no windows to other programs (neither wlr foreign toplevel nor Plasma window management): the notch never steps aside for full-screen windows or games</source>
        <translation>le compositeur Wayland ne liste pas ses fenêtres aux autres programmes (ni wlr foreign toplevel ni Plasma window management)&#xa0;: l’encoche ne s’efface jamais devant les fenêtres en plein écran ou les jeux</translation>
    </message>
    <message>
        <source>no X11 window manager to ask (%1): the notch never steps aside for full-screen windows or games</source>
        <translation>aucun gestionnaire de fenêtres X11 à interroger (%1)&#xa0;: l’encoche ne s’efface jamais devant les fenêtres en plein écran ou les jeux</translation>
    </message>
    <message>
        <source>no system bus (%1): GeoClue cannot be asked</source>
        <translation>pas de bus système (%1)&#xa0;: impossible d’interroger GeoClue</translation>
    </message>
    <message>
        <source>this desktop has no volume sound setting: the volume sound follows Tindra&apos;s own setting</source>
        <translation>ce bureau n’a pas de réglage pour le son du volume&#xa0;: il suit le réglage de Tindra</translation>
    </message>
</context>
<context>
    <name>BannerPanel</name>
    <message>
        <source>%1 call</source>
        <translation>Appel %1</translation>
    </message>
    <message>
        <source>Missed call · %1</source>
        <translation>Appel manqué · %1</translation>
    </message>
    <message>
        <source>Ringing</source>
        <translation>Sonnerie</translation>
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
        <translation>Chargée</translation>
    </message>
    <message>
        <source>Charging</source>
        <translation>En charge</translation>
    </message>
    <message>
        <source>%1 to full</source>
        <translation>Pleine dans %1</translation>
    </message>
    <message>
        <source>On power</source>
        <translation>Sur secteur</translation>
    </message>
    <message>
        <source>On battery</source>
        <translation>Sur batterie</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>Reste %1</translation>
    </message>
    <message>
        <source>Low Power Mode is on</source>
        <translation>Mode économie d’énergie activé</translation>
    </message>
    <message>
        <source>This computer has no battery.</source>
        <translation>Cet ordinateur n’a pas de batterie.</translation>
    </message>
</context>
<context>
    <name>BatteryCompact</name>
    <message>
        <source>Low</source>
        <translation>Faible</translation>
    </message>
</context>
<context>
    <name>CalendarPanel</name>
    <message>
        <source>Today</source>
        <translation>Aujourd’hui</translation>
    </message>
    <message>
        <source>Nothing else today</source>
        <translation>Plus rien aujourd’hui</translation>
    </message>
    <message>
        <source>Reminders</source>
        <translation>Rappels</translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>%n de plus</numerusform>
            <numerusform>%n de plus</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CallCompact</name>
    <message>
        <source>Ringing</source>
        <translation>Sonnerie</translation>
    </message>
</context>
<context>
    <name>FileTrayPanel</name>
    <message>
        <source>File Tray</source>
        <translation>Plateau de fichiers</translation>
    </message>
    <message>
        <source>Remove All</source>
        <translation>Tout retirer</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>This file was moved to a place Tindra cannot find, or deleted.</source>
        <translation>Ce fichier a été déplacé à un endroit que Tindra ne trouve pas, ou supprimé.</translation>
    </message>
    <message>
        <source>Remove from the tray</source>
        <translation>Retirer du plateau</translation>
    </message>
    <message>
        <source>Click to open, or drag to use this file</source>
        <translation>Cliquez pour ouvrir, ou faites glisser pour utiliser ce fichier</translation>
    </message>
</context>
<context>
    <name>HudPanel</name>
    <message>
        <source>Brightness</source>
        <translation>Luminosité</translation>
    </message>
    <message>
        <source>Keyboard light</source>
        <translation>Éclairage clavier</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
</context>
<context>
    <name>JoinButton</name>
    <message>
        <source>Join</source>
        <translation>Rejoindre</translation>
    </message>
    <message>
        <source>Join %1</source>
        <translation>Rejoindre %1</translation>
    </message>
</context>
<context>
    <name>Notch</name>
    <message>
        <source>Now Playing</source>
        <translation>À l’écoute</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendrier</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>Concentration</translation>
    </message>
    <message>
        <source>AirDrop</source>
        <translation>AirDrop</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Message</translation>
    </message>
    <message>
        <source>Accessory</source>
        <translation>Accessoire</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batterie</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Niveau</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Appel</translation>
    </message>
</context>
<context>
    <name>OnboardingFeatures</name>
    <message>
        <source>Now Playing: the track of any player that speaks MPRIS (most music and video players and web browsers do), with its controls. Start one to see it.</source>
        <translation>Lecture en cours&#xa0;: le morceau de tout lecteur qui parle MPRIS (la plupart des lecteurs audio et vidéo et des navigateurs), avec ses commandes. Lancez-en un pour le voir.</translation>
    </message>
    <message>
        <source>Now Playing: no player can be followed yet. Install an MPRIS-capable player, or start the one you have; if it still does not show, Diagnostics… says why.</source>
        <translation>Lecture en cours&#xa0;: aucun lecteur ne peut encore être suivi. Installez un lecteur compatible MPRIS ou lancez le vôtre&#xa0;; s’il n’apparaît toujours pas, Diagnostic… dit pourquoi.</translation>
    </message>
    <message>
        <source>Volume: shown in the notch as it changes.</source>
        <translation>Volume&#xa0;: affiché dans l’encoche quand il change.</translation>
    </message>
    <message>
        <source>Volume: no sound server answers. The volume shows as soon as PipeWire or PulseAudio runs.</source>
        <translation>Volume&#xa0;: aucun serveur de son ne répond. Le volume s’affiche dès que PipeWire ou PulseAudio tourne.</translation>
    </message>
    <message>
        <source>Brightness: shown as it changes; the brightness keys step it.</source>
        <translation>Luminosité&#xa0;: affichée quand elle change&#xa0;; les touches de luminosité la règlent.</translation>
    </message>
    <message>
        <source>Brightness: this display&apos;s backlight cannot be controlled here (an external monitor, or a virtual machine), so the brightness keys stay with the desktop.</source>
        <translation>Luminosité&#xa0;: le rétroéclairage de cet écran ne peut pas être réglé ici (un écran externe ou une machine virtuelle), les touches de luminosité restent donc au bureau.</translation>
    </message>
    <message>
        <source>Battery and Bluetooth need the system bus (D-Bus), which this session does not have. Start Tindra in an ordinary desktop session to see them.</source>
        <translation>La batterie et le Bluetooth ont besoin du bus système (D-Bus), absent de cette session. Lancez Tindra dans une session de bureau ordinaire pour les voir.</translation>
    </message>
    <message>
        <source>Battery: its level, and a notice when you plug in, unplug or run low.</source>
        <translation>Batterie&#xa0;: son niveau, et un avis au branchement, au débranchement ou quand elle est faible.</translation>
    </message>
    <message>
        <source>Battery: UPower does not answer, so no battery is shown. Install or start UPower (the upower package).</source>
        <translation>Batterie&#xa0;: UPower ne répond pas, aucune batterie n’est donc affichée. Installez ou démarrez UPower (le paquet upower).</translation>
    </message>
    <message>
        <source>Bluetooth: the batteries of your connected headphones and other accessories.</source>
        <translation>Bluetooth&#xa0;: les batteries de vos écouteurs et autres accessoires connectés.</translation>
    </message>
    <message>
        <source>Bluetooth: BlueZ does not answer, so no accessories are shown. Turn Bluetooth on, or install BlueZ (the bluez package).</source>
        <translation>Bluetooth&#xa0;: BlueZ ne répond pas, aucun accessoire n’est donc affiché. Activez le Bluetooth ou installez BlueZ (le paquet bluez).</translation>
    </message>
    <message>
        <source>Calendar: off. Turn it on in Settings… and add your calendars (.ics files or web addresses).</source>
        <translation>Calendrier&#xa0;: désactivé. Activez-le dans Réglages… et ajoutez vos calendriers (fichiers .ics ou adresses web).</translation>
    </message>
    <message>
        <source>Calendar: your next meeting with its Join button, and today&apos;s agenda.</source>
        <translation>Calendrier&#xa0;: votre prochaine réunion avec son bouton Rejoindre, et l’agenda du jour.</translation>
    </message>
    <message>
        <source>Calendar: nothing to show yet. Add your calendars (.ics files or web addresses) in Settings…, which says of each whether it could be read.</source>
        <translation>Calendrier&#xa0;: rien à afficher pour l’instant. Ajoutez vos calendriers (fichiers .ics ou adresses web) dans Réglages…, qui indique pour chacun s’il a pu être lu.</translation>
    </message>
    <message>
        <source>Weather: off. Turn it on in Settings… to see the forecast from MET Norway.</source>
        <translation>Météo&#xa0;: désactivée. Activez-la dans Réglages… pour voir les prévisions de MET Norway.</translation>
    </message>
    <message>
        <source>Weather: the forecast for where you are, from MET Norway.</source>
        <translation>Météo&#xa0;: les prévisions pour l’endroit où vous êtes, de MET Norway.</translation>
    </message>
    <message>
        <source>Weather: no forecast yet. Settings… says why, and lets you choose your place.</source>
        <translation>Météo&#xa0;: pas encore de prévisions. Réglages… dit pourquoi et vous laisse choisir votre lieu.</translation>
    </message>
    <message>
        <source>Do not disturb: shown while it is on.</source>
        <translation>Ne pas déranger&#xa0;: affiché tant qu’il est actif.</translation>
    </message>
    <message>
        <source>Do not disturb: no notification server answers, so whether it is on is unknown until one starts.</source>
        <translation>Ne pas déranger&#xa0;: aucun serveur de notifications ne répond&#xa0;; son état reste inconnu jusqu’au démarrage de l’un d’eux.</translation>
    </message>
</context>
<context>
    <name>PinnedSectionsEditor</name>
    <message>
        <source>Calendar</source>
        <translation>Calendrier</translation>
    </message>
    <message>
        <source>File Tray</source>
        <translation>Plateau de fichiers</translation>
    </message>
    <message>
        <source>Now Playing</source>
        <translation>À l’écoute</translation>
    </message>
    <message>
        <source>Batteries</source>
        <translation>Batteries</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Météo</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Clear</source>
        <translation>Dégagé</translation>
    </message>
    <message>
        <source>Fair</source>
        <translation>Beau temps</translation>
    </message>
    <message>
        <source>Partly cloudy</source>
        <translation>Partiellement nuageux</translation>
    </message>
    <message>
        <source>Cloudy</source>
        <translation>Nuageux</translation>
    </message>
    <message>
        <source>Fog</source>
        <translation>Brouillard</translation>
    </message>
    <message>
        <source>Light rain</source>
        <translation>Pluie faible</translation>
    </message>
    <message>
        <source>Rain</source>
        <translation>Pluie</translation>
    </message>
    <message>
        <source>Heavy rain</source>
        <translation>Forte pluie</translation>
    </message>
    <message>
        <source>Rain showers</source>
        <translation>Averses</translation>
    </message>
    <message>
        <source>Thunderstorm</source>
        <translation>Orage</translation>
    </message>
    <message>
        <source>Sleet</source>
        <translation>Neige fondue</translation>
    </message>
    <message>
        <source>Snow</source>
        <translation>Neige</translation>
    </message>
    <message>
        <source>%1 % chance of precipitation</source>
        <translation>%1 % de risque de précipitations</translation>
    </message>
    <message>
        <source>%1 mm in the next %2 h</source>
        <translation>%1 mm dans les %2 h à venir</translation>
    </message>
    <message>
        <source>No precipitation in the next %1 h</source>
        <translation>Pas de précipitations dans les %1 h à venir</translation>
    </message>
    <message>
        <source>Sunrise %1</source>
        <translation>Lever du soleil %1</translation>
    </message>
    <message>
        <source>Sunset %1</source>
        <translation>Coucher du soleil %1</translation>
    </message>
    <message>
        <source>Midnight sun</source>
        <translation>Soleil de minuit</translation>
    </message>
    <message>
        <source>Polar night</source>
        <translation>Nuit polaire</translation>
    </message>
    <message>
        <source>Travel times are unavailable: no routing service is available on this system.</source>
        <translation>Les temps de trajet ne sont pas disponibles&#xa0;: aucun service d’itinéraire n’existe sur ce système.</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Notch</source>
        <translation>Encoche</translation>
    </message>
    <message>
        <source>Now Playing</source>
        <translation>À l’écoute</translation>
    </message>
    <message>
        <source>Indicator</source>
        <translation>Indicateur</translation>
    </message>
    <message>
        <source>Battery and Accessories</source>
        <translation>Batterie et accessoires</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendrier</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Météo</translation>
    </message>
    <message>
        <source>Focus and Banners</source>
        <translation>Concentration et bannières</translation>
    </message>
    <message>
        <source>File Tray</source>
        <translation>Plateau de fichiers</translation>
    </message>
    <message>
        <source>Diagnostics</source>
        <translation>Diagnostic</translation>
    </message>
</context>
<context>
    <name>SettingsKeys</name>
    <message>
        <source>The first-run introduction has been seen.</source>
        <translation>L’introduction du premier lancement a été vue.</translation>
    </message>
    <message>
        <source>Play a sound with notices that have one.</source>
        <translation>Jouer le son des avis qui en ont un.</translation>
    </message>
    <message>
        <source>Show Tindra in the tray.</source>
        <translation>Afficher Tindra dans la zone de notification.</translation>
    </message>
    <message>
        <source>How long notices stay: short, medium or long.</source>
        <translation>Durée d’affichage des avis&#xa0;: courte, moyenne ou longue.</translation>
    </message>
    <message>
        <source>Offer test versions when updating.</source>
        <translation>Proposer les versions de test lors des mises à jour.</translation>
    </message>
    <message>
        <source>Draw a notch on displays that have none.</source>
        <translation>Dessiner une encoche sur les écrans qui n’en ont pas.</translation>
    </message>
    <message>
        <source>Which displays show the notch: all, main, built-in or one by name.</source>
        <translation>Écrans qui affichent l’encoche&#xa0;: tous, principal, intégré ou un écran nommé.</translation>
    </message>
    <message>
        <source>Width in points of a drawn notch.</source>
        <translation>Largeur en points d’une encoche dessinée.</translation>
    </message>
    <message>
        <source>A drawn notch takes the height of the top panel.</source>
        <translation>Une encoche dessinée prend la hauteur du panneau supérieur.</translation>
    </message>
    <message>
        <source>Height in points of a drawn notch when it does not match the panel.</source>
        <translation>Hauteur en points d’une encoche dessinée qui ne suit pas le panneau.</translation>
    </message>
    <message>
        <source>How the notch opens: on hover, on click, or pressed and held.</source>
        <translation>Ouverture de l’encoche&#xa0;: au survol, au clic ou par appui prolongé.</translation>
    </message>
    <message>
        <source>Seconds the pointer rests on the notch before it opens.</source>
        <translation>Secondes pendant lesquelles le pointeur reste sur l’encoche avant qu’elle s’ouvre.</translation>
    </message>
    <message>
        <source>Seconds of pressing that open the notch in press-and-hold mode.</source>
        <translation>Secondes d’appui qui ouvrent l’encoche en mode appui prolongé.</translation>
    </message>
    <message>
        <source>Panel sections pinned in the opened notch, in order (&quot;media&quot;, &quot;calendar&quot;, &quot;weather&quot;, &quot;batteries&quot;, &quot;fileTray&quot;); empty shows every section with something to show.</source>
        <translation>Sections épinglées dans l’encoche ouverte, dans l’ordre (&quot;media&quot;, &quot;calendar&quot;, &quot;weather&quot;, &quot;batteries&quot;, &quot;fileTray&quot;)&#xa0;; vide affiche toutes les sections qui ont quelque chose à montrer.</translation>
    </message>
    <message>
        <source>Where the playing track comes from: automatic, or only the player scripts, which exist on a Mac alone (on the desktop that shows nothing).</source>
        <translation>Provenance du morceau en cours&#xa0;: automatique, ou seulement les scripts des lecteurs, qui n’existent que sur Mac (sur ce bureau, rien ne s’affiche).</translation>
    </message>
    <message>
        <source>The system version on which the basic-mode notice was last shown.</source>
        <translation>La version du système sur laquelle l’avis du mode de base a été affiché pour la dernière fois.</translation>
    </message>
    <message>
        <source>Look covers up online when the player gives none.</source>
        <translation>Chercher les pochettes en ligne quand le lecteur n’en fournit pas.</translation>
    </message>
    <message>
        <source>How long a paused track stays shown: short, long or until resumed.</source>
        <translation>Durée d’affichage d’un morceau en pause&#xa0;: courte, longue ou jusqu’à la reprise.</translation>
    </message>
    <message>
        <source>The progress bar in the standard colour or the cover&apos;s.</source>
        <translation>La barre de progression dans la couleur standard ou celle de la pochette.</translation>
    </message>
    <message>
        <source>Show volume changes in the notch. Option-Shift with a volume or brightness key changes it in smaller steps.</source>
        <translation>Afficher les changements de volume dans l’encoche. Option-Maj avec une touche de volume ou de luminosité change par petits pas.</translation>
    </message>
    <message>
        <source>Show brightness changes in the notch. Keys go to the system when the output or display cannot be controlled, or when BetterDisplay handles it.</source>
        <translation>Afficher les changements de luminosité dans l’encoche. Les touches vont au système quand la sortie ou l’écran ne peut pas être contrôlé, ou quand BetterDisplay s’en charge.</translation>
    </message>
    <message>
        <source>How the level is drawn: a continuous bar, segments or a ring.</source>
        <translation>Dessin du niveau&#xa0;: barre continue, segments ou anneau.</translation>
    </message>
    <message>
        <source>The level&apos;s colour: white, by level, or the accent colour.</source>
        <translation>Couleur du niveau&#xa0;: blanc, selon le niveau ou couleur d’accentuation.</translation>
    </message>
    <message>
        <source>Seconds the level stays shown after a change.</source>
        <translation>Secondes d’affichage du niveau après un changement.</translation>
    </message>
    <message>
        <source>Play the volume feedback sound where the system does not. Hold Shift while pressing a volume key to do the opposite.</source>
        <translation>Jouer le son de retour du volume là où le système ne le fait pas. Maintenez Maj en appuyant sur une touche de volume pour faire l’inverse.</translation>
    </message>
    <message>
        <source>Tell when power is connected.</source>
        <translation>Signaler le branchement de l’alimentation.</translation>
    </message>
    <message>
        <source>Tell when power is disconnected.</source>
        <translation>Signaler le débranchement de l’alimentation.</translation>
    </message>
    <message>
        <source>Warn when the battery runs low.</source>
        <translation>Avertir quand la batterie est faible.</translation>
    </message>
    <message>
        <source>Percentage at which the battery counts as low.</source>
        <translation>Pourcentage à partir duquel la batterie est considérée comme faible.</translation>
    </message>
    <message>
        <source>Tell when a Bluetooth accessory connects.</source>
        <translation>Signaler la connexion d’un accessoire Bluetooth.</translation>
    </message>
    <message>
        <source>Tell when files arrive from nearby devices.</source>
        <translation>Signaler l’arrivée de fichiers depuis des appareils à proximité.</translation>
    </message>
    <message>
        <source>Warn when an accessory&apos;s battery runs low.</source>
        <translation>Avertir quand la batterie d’un accessoire est faible.</translation>
    </message>
    <message>
        <source>Percentage at which an accessory&apos;s battery counts as low.</source>
        <translation>Pourcentage à partir duquel la batterie d’un accessoire est considérée comme faible.</translation>
    </message>
    <message>
        <source>Tell when sound moves to an accessory.</source>
        <translation>Signaler quand le son passe sur un accessoire.</translation>
    </message>
    <message>
        <source>Tell when a Bluetooth accessory disconnects.</source>
        <translation>Signaler la déconnexion d’un accessoire Bluetooth.</translation>
    </message>
    <message>
        <source>Accessory batteries as a percentage or a ring.</source>
        <translation>Batteries des accessoires en pourcentage ou en anneau.</translation>
    </message>
    <message>
        <source>Show the next meeting.</source>
        <translation>Afficher la prochaine réunion.</translation>
    </message>
    <message>
        <source>Minutes before a meeting that it appears.</source>
        <translation>Minutes avant une réunion où elle apparaît.</translation>
    </message>
    <message>
        <source>Calendars whose events are never shown.</source>
        <translation>Calendriers dont les événements ne sont jamais affichés.</translation>
    </message>
    <message>
        <source>The meeting&apos;s time as a countdown, its start time, or both.</source>
        <translation>L’heure de la réunion en compte à rebours, en heure de début, ou les deux.</translation>
    </message>
    <message>
        <source>Hide meeting titles.</source>
        <translation>Masquer les titres des réunions.</translation>
    </message>
    <message>
        <source>Play a sound when a meeting is about to start.</source>
        <translation>Jouer un son quand une réunion va commencer.</translation>
    </message>
    <message>
        <source>Meetings whose start sound has played, so it plays once.</source>
        <translation>Réunions dont le son de début a déjà été joué, pour qu’il ne le soit qu’une fois.</translation>
    </message>
    <message>
        <source>Show reminders that are due.</source>
        <translation>Afficher les rappels arrivés à échéance.</translation>
    </message>
    <message>
        <source>Count travel time before meetings with a place.</source>
        <translation>Compter le temps de trajet avant les réunions qui ont un lieu.</translation>
    </message>
    <message>
        <source>How you travel to meetings: by car, on foot or by transit.</source>
        <translation>Comment vous vous rendez aux réunions&#xa0;: en voiture, à pied ou en transports en commun.</translation>
    </message>
    <message>
        <source>Minutes added to the travel time.</source>
        <translation>Minutes ajoutées au temps de trajet.</translation>
    </message>
    <message>
        <source>Show the weather.</source>
        <translation>Afficher la météo.</translation>
    </message>
    <message>
        <source>Show when a Focus mode is on.</source>
        <translation>Indiquer quand un mode Concentration est activé.</translation>
    </message>
    <message>
        <source>Keep a Focus mark on the notch while the Focus lasts.</source>
        <translation>Garder une marque Concentration sur l’encoche tant qu’elle dure.</translation>
    </message>
    <message>
        <source>The Focus filter&apos;s last state, as written by the system.</source>
        <translation>Le dernier état du filtre Concentration, tel qu’écrit par le système.</translation>
    </message>
    <message>
        <source>Swipes on the notch control playback.</source>
        <translation>Les balayages sur l’encoche contrôlent la lecture.</translation>
    </message>
    <message>
        <source>Sideways swipes change the track.</source>
        <translation>Un balayage latéral change de morceau.</translation>
    </message>
    <message>
        <source>Give feedback when a swipe is recognised.</source>
        <translation>Donner un retour quand un balayage est reconnu.</translation>
    </message>
    <message>
        <source>Dragging with the mouse works like swiping.</source>
        <translation>Faire glisser avec la souris équivaut à un balayage.</translation>
    </message>
    <message>
        <source>Hide the notch over full-screen windows.</source>
        <translation>Masquer l’encoche au-dessus des fenêtres en plein écran.</translation>
    </message>
    <message>
        <source>Hide the notch while a game runs.</source>
        <translation>Masquer l’encoche pendant un jeu.</translation>
    </message>
    <message>
        <source>Applications treated as games, one per line.</source>
        <translation>Applications traitées comme des jeux, une par ligne.</translation>
    </message>
    <message>
        <source>Hide the notch while windows are being arranged.</source>
        <translation>Masquer l’encoche pendant l’organisation des fenêtres.</translation>
    </message>
    <message>
        <source>Keep the notch out of screenshots and recordings.</source>
        <translation>Exclure l’encoche des captures d’écran et des enregistrements.</translation>
    </message>
    <message>
        <source>A translucent opened notch instead of black.</source>
        <translation>Encoche ouverte translucide au lieu de noire.</translation>
    </message>
    <message>
        <source>The opened notch in black and white or in colour.</source>
        <translation>L’encoche ouverte en noir et blanc ou en couleur.</translation>
    </message>
    <message>
        <source>A soft glow around the opened notch.</source>
        <translation>Une lueur douce autour de l’encoche ouverte.</translation>
    </message>
    <message>
        <source>A brief flash when the notch opens.</source>
        <translation>Un bref éclair à l’ouverture de l’encoche.</translation>
    </message>
    <message>
        <source>Colourful bars in the live spectrum.</source>
        <translation>Barres colorées dans le spectre en direct.</translation>
    </message>
    <message>
        <source>A thin coloured rim on the closed notch.</source>
        <translation>Un fin liseré coloré sur l’encoche fermée.</translation>
    </message>
    <message>
        <source>Show a live spectrum of the playing audio.</source>
        <translation>Afficher un spectre en direct du son en cours.</translation>
    </message>
    <message>
        <source>Show widgets on the lock screen (experimental).</source>
        <translation>Afficher des widgets sur l’écran de verrouillage (expérimental).</translation>
    </message>
    <message>
        <source>The lock-screen widgets&apos; background: clear, light frost or frosted.</source>
        <translation>Fond des widgets de l’écran de verrouillage&#xa0;: transparent, légèrement dépoli ou dépoli.</translation>
    </message>
    <message>
        <source>Vertical offset in points of the lock-screen widgets.</source>
        <translation>Décalage vertical en points des widgets de l’écran de verrouillage.</translation>
    </message>
    <message>
        <source>Keep the notch on the lock screen.</source>
        <translation>Garder l’encoche sur l’écran de verrouillage.</translation>
    </message>
    <message>
        <source>The last lock-screen notice, kept to show it once.</source>
        <translation>Le dernier avis de l’écran de verrouillage, gardé pour ne l’afficher qu’une fois.</translation>
    </message>
    <message>
        <source>The last lock-screen notch notice, kept to show it once.</source>
        <translation>Le dernier avis d’encoche de l’écran de verrouillage, gardé pour ne l’afficher qu’une fois.</translation>
    </message>
    <message>
        <source>Show keyboard backlight changes (experimental).</source>
        <translation>Afficher les changements du rétroéclairage du clavier (expérimental).</translation>
    </message>
    <message>
        <source>The system version on which no keyboard backlight was found.</source>
        <translation>La version du système sur laquelle aucun rétroéclairage du clavier n’a été trouvé.</translation>
    </message>
    <message>
        <source>Show incoming calls (experimental).</source>
        <translation>Afficher les appels entrants (expérimental).</translation>
    </message>
    <message>
        <source>Show incoming messages (experimental).</source>
        <translation>Afficher les messages entrants (expérimental).</translation>
    </message>
    <message>
        <source>Keep dropped files in a tray (experimental).</source>
        <translation>Garder les fichiers déposés dans un plateau (expérimental).</translation>
    </message>
    <message>
        <source>The tray keeps links to dropped files or copies of them.</source>
        <translation>Le plateau garde des liens vers les fichiers déposés ou des copies.</translation>
    </message>
    <message>
        <source>Where the playing track comes from: automatic (the desktop&apos;s players), or only the player scripts of a Mac, which show nothing here.</source>
        <translation>Provenance du morceau en cours&#xa0;: automatique (les lecteurs du bureau), ou seulement les scripts des lecteurs d’un Mac, qui n’affichent rien ici.</translation>
    </message>
    <message>
        <source>Show volume changes in the notch. Alt-Shift with a volume or brightness key changes it in smaller steps.</source>
        <translation>Afficher les changements de volume dans l’encoche. Alt+Maj avec une touche de volume ou de luminosité change par petits pas.</translation>
    </message>
    <message>
        <source>Show brightness changes in the notch. Keys go to the desktop when the output or display cannot be controlled.</source>
        <translation>Afficher les changements de luminosité dans l’encoche. Les touches vont au bureau quand la sortie ou l’écran ne peut pas être contrôlé.</translation>
    </message>
    <message>
        <source>The Focus filter&apos;s last state, as `tindra focus` wrote it.</source>
        <translation>Le dernier état du filtre Concentration, tel que `tindra focus` l’a écrit.</translation>
    </message>
    <message>
        <source>Sections pinned in the opened notch: tick them and drag them into order. With none ticked, every section with something to show appears.</source>
        <translation>Sections épinglées dans l’encoche ouverte&#xa0;: cochez-les et faites-les glisser dans l’ordre voulu. Si aucune n’est cochée, toute section qui a quelque chose à montrer apparaît.</translation>
    </message>
    <message>
        <source>Play the volume feedback sound on a desktop without a setting of its own for it (GNOME&apos;s event sounds and Plasma&apos;s audio feedback decide there). Hold Shift while pressing a volume key to do the opposite.</source>
        <translation>Jouer le son du volume sur un bureau qui n’a pas son propre réglage (les sons d’événements de GNOME et le retour audio de Plasma en décident). Maintenez Maj en appuyant sur une touche de volume pour faire l’inverse.</translation>
    </message>
</context>
<context>
    <name>SettingsNotes</name>
    <message>
        <source>No window can be drawn above the screen locker of a Linux desktop, so there are no lock-screen widgets here; the notch hides while the screen is locked.</source>
        <translation>Aucune fenêtre ne peut s’afficher au-dessus du verrouillage d’écran d’un bureau Linux&#xa0;: il n’y a donc pas de widgets sur l’écran de verrouillage ici&#xa0;; l’encoche se masque tant que l’écran est verrouillé.</translation>
    </message>
    <message>
        <source>If this computer ignores Tindra&apos;s changes, the keys go back to the desktop and the notch only shows the level.</source>
        <translation>Si cet ordinateur ignore les changements de Tindra, les touches reviennent au bureau et l’encoche n’affiche que le niveau.</translation>
    </message>
    <message>
        <source>The warning appears once when the battery reaches this level, and again only after charging.</source>
        <translation>L’avertissement apparaît une fois quand la batterie atteint ce niveau, puis seulement après une recharge.</translation>
    </message>
    <message>
        <source>Up to 20 items. Copies take up to 2 GB in total.</source>
        <translation>Jusqu’à 20 éléments. Les copies occupent 2 Go au plus au total.</translation>
    </message>
    <message>
        <source>Links: Tindra remembers where they are; nothing is copied. Copies: Tindra keeps a copy, so they stay usable if the originals go; removing it from the tray deletes the copy, never the original.</source>
        <translation>Liens&#xa0;: Tindra retient où se trouvent les fichiers&#xa0;; rien n’est copié. Copies&#xa0;: Tindra garde une copie, utilisable même si les originaux disparaissent&#xa0;; la retirer du plateau supprime la copie, jamais l’original.</translation>
    </message>
    <message>
        <source>A ringing call shows only that it rings; answer it on the desktop&apos;s notification. Messages and missed calls show who and what, with a button that opens the application that sent them. Nothing is stored or sent, and nothing shows while do-not-disturb is on.</source>
        <translation>Un appel entrant indique seulement qu’il sonne&#xa0;; répondez-y depuis la notification du bureau. Les messages et les appels manqués indiquent qui et quoi, avec un bouton qui ouvre l’application d’origine. Rien n’est enregistré ni envoyé, et rien ne s’affiche quand «&#xa0;Ne pas déranger&#xa0;» est activé.</translation>
    </message>
    <message>
        <source>Scroll on the notch with two fingers or the mouse wheel, as if moving a page: down opens it, up closes it, sideways skips tracks.</source>
        <translation>Faites défiler sur l’encoche avec deux doigts ou la molette, comme pour déplacer une page&#xa0;: vers le bas pour l’ouvrir, vers le haut pour la fermer, sur le côté pour changer de morceau.</translation>
    </message>
    <message>
        <source>The desktop shows through where the window manager draws windows translucent; elsewhere the glass is dark grey.</source>
        <translation>Le bureau transparaît là où le gestionnaire de fenêtres dessine les fenêtres translucides&#xa0;; ailleurs, le verre est gris foncé.</translation>
    </message>
    <message>
        <source>Drag the closed notch down to open it, or sideways to skip tracks; drag the opened one up from an empty spot to close it.</source>
        <translation>Faites glisser l’encoche fermée vers le bas pour l’ouvrir, ou sur le côté pour changer de morceau&#xa0;; faites glisser l’encoche ouverte vers le haut depuis un espace vide pour la fermer.</translation>
    </message>
</context>
<context>
    <name>SettingsValues</name>
    <message>
        <source>monochrome</source>
        <translation>monochrome</translation>
    </message>
    <message>
        <source>colorful</source>
        <translation>en couleur</translation>
    </message>
    <message>
        <source>hover</source>
        <translation>au survol</translation>
    </message>
    <message>
        <source>click</source>
        <translation>au clic</translation>
    </message>
    <message>
        <source>press and hold</source>
        <translation>appui prolongé</translation>
    </message>
    <message>
        <source>short</source>
        <translation>courte</translation>
    </message>
    <message>
        <source>medium</source>
        <translation>moyenne</translation>
    </message>
    <message>
        <source>long</source>
        <translation>longue</translation>
    </message>
    <message>
        <source>white</source>
        <translation>blanc</translation>
    </message>
    <message>
        <source>countdown</source>
        <translation>compte à rebours</translation>
    </message>
    <message>
        <source>start time</source>
        <translation>heure de début</translation>
    </message>
    <message>
        <source>both</source>
        <translation>les deux</translation>
    </message>
    <message>
        <source>automobile</source>
        <translation>voiture</translation>
    </message>
    <message>
        <source>walking</source>
        <translation>à pied</translation>
    </message>
    <message>
        <source>transit</source>
        <translation>transports en commun</translation>
    </message>
    <message>
        <source>link</source>
        <translation>liens</translation>
    </message>
    <message>
        <source>copy</source>
        <translation>copies</translation>
    </message>
    <message>
        <source>continuous</source>
        <translation>continu</translation>
    </message>
    <message>
        <source>segmented</source>
        <translation>segmenté</translation>
    </message>
    <message>
        <source>ring</source>
        <translation>anneau</translation>
    </message>
    <message>
        <source>level</source>
        <translation>selon le niveau</translation>
    </message>
    <message>
        <source>accent</source>
        <translation>couleur d’accentuation</translation>
    </message>
    <message>
        <source>clear</source>
        <translation>transparent</translation>
    </message>
    <message>
        <source>light frost</source>
        <translation>légèrement dépoli</translation>
    </message>
    <message>
        <source>frosted</source>
        <translation>dépoli</translation>
    </message>
    <message>
        <source>until resumed</source>
        <translation>jusqu’à la reprise</translation>
    </message>
    <message>
        <source>standard</source>
        <translation>standard</translation>
    </message>
    <message>
        <source>artwork</source>
        <translation>pochette</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>automatique</translation>
    </message>
    <message>
        <source>AppleScript only</source>
        <translation>AppleScript uniquement</translation>
    </message>
    <message>
        <source>percentage</source>
        <translation>pourcentage</translation>
    </message>
</context>
<context>
    <name>WeatherPanel</name>
    <message>
        <source>Weather</source>
        <translation>Météo</translation>
    </message>
</context>
<context>
    <name>tindra::AdapterCheck</name>
    <message>
        <source>nothing playing</source>
        <translation>aucune lecture</translation>
    </message>
    <message>
        <source>Stream gave %1 update(s) and %2 unreadable line(s) in %3 s: %4.</source>
        <translation>Le flux a donné %1 mise(s) à jour et %2 ligne(s) illisible(s) en %3 s&#xa0;: %4.</translation>
    </message>
    <message>
        <source>Stream skipped because the self-test failed.</source>
        <translation>Flux ignoré, car l’autotest a échoué.</translation>
    </message>
    <message>
        <source>Could not launch stream: %1</source>
        <translation>Impossible de lancer le flux&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>tindra::AdapterNowPlayingSource</name>
    <message>
        <source>following the players through the adapter&apos;s stream</source>
        <translation>suit les lecteurs via le flux de l’adaptateur</translation>
    </message>
    <message>
        <source>the adapter&apos;s stream keeps failing: testing the adapter again</source>
        <translation>le flux de l’adaptateur échoue sans cesse&#xa0;: nouveau test de l’adaptateur</translation>
    </message>
</context>
<context>
    <name>tindra::AdapterProbe</name>
    <message>
        <source>The adapter&apos;s self-test did not finish within %1 s.</source>
        <translation>L’autotest de l’adaptateur ne s’est pas terminé en %1 s.</translation>
    </message>
    <message>
        <source>Could not launch %1: %2</source>
        <translation>Impossible de lancer %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>The adapter&apos;s self-test passed.</source>
        <translation>L’autotest de l’adaptateur a réussi.</translation>
    </message>
    <message>
        <source>The adapter&apos;s self-test failed with exit status %1.</source>
        <translation>L’autotest de l’adaptateur a échoué avec le code de sortie %1.</translation>
    </message>
    <message>
        <source>Adapter not bundled; missing: %1 %2</source>
        <translation>Adaptateur non fourni&#xa0;; manquant&#xa0;: %1 %2</translation>
    </message>
</context>
<context>
    <name>tindra::BannerProvider</name>
    <message>
        <source>Open %1</source>
        <translation>Ouvrir %1</translation>
    </message>
</context>
<context>
    <name>tindra::BlueZAccessoryBackend</name>
    <message>
        <source>asking BlueZ for the accessories</source>
        <translation>interroge BlueZ sur les accessoires</translation>
    </message>
    <message>
        <source>BlueZ does not answer (%1): no accessories are shown</source>
        <translation>BlueZ ne répond pas (%1)&#xa0;: aucun accessoire n’est affiché</translation>
    </message>
    <message>
        <source>BlueZ went away: no accessories are shown until it returns</source>
        <translation>BlueZ a disparu&#xa0;: aucun accessoire n’est affiché jusqu’à son retour</translation>
    </message>
    <message>
        <source>following BlueZ: %1 Bluetooth devices known</source>
        <translation>suit BlueZ&#xa0;: %1 appareils Bluetooth connus</translation>
    </message>
</context>
<context>
    <name>tindra::BusLevelCommandSource</name>
    <message>
        <source>asking the session bus for the name of the level commands</source>
        <translation>demande au bus de session le nom des commandes de niveau</translation>
    </message>
    <message>
        <source>`tindra level` commands step the levels (%1 on the session bus)</source>
        <translation>`tindra level` règle les niveaux (%1 sur le bus de session)</translation>
    </message>
    <message>
        <source>another program holds %1 on the session bus: `tindra level` commands go there</source>
        <translation>un autre programme détient %1 sur le bus de session&#xa0;: les commandes `tindra level` y vont</translation>
    </message>
</context>
<context>
    <name>tindra::CalendarFeed</name>
    <message>
        <source>not read yet</source>
        <translation>pas encore lu</translation>
    </message>
    <message>
        <source>%1; the last good copy is kept</source>
        <translation>%1&#xa0;; la dernière copie valide est conservée</translation>
    </message>
    <message numerus="yes">
        <source>%n document(s) could not be read (%1)</source>
        <translation>
            <numerusform>%n document n’a pas pu être lu (%1)</numerusform>
            <numerusform>%n documents n’ont pas pu être lus (%1)</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 events in view</source>
        <translation>%1 événements en vue</translation>
    </message>
    <message>
        <source>, %1 to-dos</source>
        <translation>, %1 tâches</translation>
    </message>
</context>
<context>
    <name>tindra::CalendarListEditor</name>
    <message>
        <source>A file, a folder, or an https:// or webcal:// address</source>
        <translation>Fichier, dossier ou adresse https:// ou webcal://</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Choose File…</source>
        <translation>Parcourir…</translation>
    </message>
    <message>
        <source>Add a Calendar</source>
        <translation>Ajouter un calendrier</translation>
    </message>
    <message>
        <source>iCalendar (*.ics);;All files (*)</source>
        <translation>iCalendar (*.ics);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Your mail addresses, separated by commas</source>
        <translation>Vos adresses e-mail, séparées par des virgules</translation>
    </message>
    <message>
        <source>Invitations you declined at these addresses are not shown.</source>
        <translation>Les invitations refusées à ces adresses ne sont pas affichées.</translation>
    </message>
    <message>
        <source>No calendars yet.</source>
        <translation>Aucun calendrier pour l’instant.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
</context>
<context>
    <name>tindra::CalendarProvider</name>
    <message>
        <source>the calendar is off in Settings</source>
        <translation>le calendrier est désactivé dans les Réglages</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Événement</translation>
    </message>
    <message>
        <source>Reminder</source>
        <translation>Rappel</translation>
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
        <translation>Maintenant</translation>
    </message>
    <message>
        <source>in %1</source>
        <translation>dans %1</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>Reste %1</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Leave in %1</source>
        <translation>Départ dans %1</translation>
    </message>
    <message>
        <source>%1 late</source>
        <translation>%1 de retard</translation>
    </message>
    <message>
        <source>Leave now</source>
        <translation>Partez maintenant</translation>
    </message>
    <message>
        <source>All day</source>
        <translation>Journée</translation>
    </message>
</context>
<context>
    <name>tindra::DBusNotificationMonitor</name>
    <message>
        <source>calls and messages are off: notifications are not read</source>
        <translation>appels et messages désactivés&#xa0;: les notifications ne sont pas lues</translation>
    </message>
    <message>
        <source>the session bus does not let Tindra read notifications (%1): no calls or messages are shown</source>
        <translation>le bus de session ne laisse pas Tindra lire les notifications (%1)&#xa0;: aucun appel ni message n’est affiché</translation>
    </message>
    <message>
        <source>no notification server runs on the session bus: calls and messages show once one starts</source>
        <translation>aucun serveur de notifications ne tourne sur le bus de session&#xa0;: appels et messages s’afficheront dès qu’il y en aura un</translation>
    </message>
    <message>
        <source>reading notification banners for calls and messages</source>
        <translation>lit les bannières de notification pour les appels et les messages</translation>
    </message>
    <message>
        <source>the session bus closed the notification monitor: no calls or messages are shown</source>
        <translation>le bus de session a fermé la surveillance des notifications&#xa0;: aucun appel ni message n’est affiché</translation>
    </message>
</context>
<context>
    <name>tindra::DiagnosticsWindow</name>
    <message>
        <source>Tindra Diagnostics</source>
        <translation>Diagnostic de Tindra</translation>
    </message>
    <message>
        <source>Copy report</source>
        <translation>Copier le rapport</translation>
    </message>
</context>
<context>
    <name>tindra::DisplayChangeLog</name>
    <message>
        <source>display %1 went away</source>
        <translation>l’écran %1 a disparu</translation>
    </message>
    <message>
        <source>display %1 is connected</source>
        <translation>l’écran %1 est branché</translation>
    </message>
</context>
<context>
    <name>tindra::DisplaySelectionEditor</name>
    <message>
        <source>While the chosen display is not connected, the notch is on the main display.</source>
        <translation>Tant que l’écran choisi n’est pas connecté, l’encoche est sur l’écran principal.</translation>
    </message>
    <message>
        <source>Every display</source>
        <translation>Tous les écrans</translation>
    </message>
    <message>
        <source>Main display</source>
        <translation>Écran principal</translation>
    </message>
    <message>
        <source>Main display (%1)</source>
        <translation>Écran principal (%1)</translation>
    </message>
    <message>
        <source>%1 (not connected)</source>
        <translation>%1 (non connecté)</translation>
    </message>
    <message numerus="yes">
        <source>%1 (%n displays)</source>
        <translation>
            <numerusform>%1 (%n écran)</numerusform>
            <numerusform>%1 (%n écrans)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tindra::EdsCalendarFeed</name>
    <message>
        <source>Evolution Data Server&apos;s calendar factory does not answer (%1)</source>
        <translation>la fabrique de calendriers d’Evolution Data Server ne répond pas (%1)</translation>
    </message>
    <message>
        <source>Evolution Data Server&apos;s calendar factory went away: the events last read are kept until it returns</source>
        <translation>la fabrique de calendriers d’Evolution Data Server a disparu&#xa0;: les derniers événements lus sont gardés jusqu’à son retour</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a calendar and its account</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Evolution Data Server, source %1</source>
        <translation>Evolution Data Server, source %1</translation>
    </message>
    <message>
        <source>Evolution Data Server cannot open the calendar: %1</source>
        <translation>Evolution Data Server ne peut pas ouvrir le calendrier&#xa0;: %1</translation>
    </message>
    <message>
        <source>the calendar&apos;s backend went away: the events last read are kept until it is open again</source>
        <translation>le moteur du calendrier a disparu&#xa0;: les derniers événements lus sont gardés jusqu’à sa réouverture</translation>
    </message>
    <message>
        <source>Evolution Data Server gives no view of the calendar: %1</source>
        <translation>Evolution Data Server ne donne aucune vue du calendrier&#xa0;: %1</translation>
    </message>
    <message>
        <source>Evolution Data Server&apos;s view of the calendar does not start: %1</source>
        <translation>la vue du calendrier d’Evolution Data Server ne démarre pas&#xa0;: %1</translation>
    </message>
    <message>
        <source>Evolution Data Server could not list the calendar: %1</source>
        <translation>Evolution Data Server n’a pas pu lister le calendrier&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>tindra::EdsSourceRegistry</name>
    <message>
        <source>asking Evolution Data Server for its calendars</source>
        <translation>demande ses calendriers à Evolution Data Server</translation>
    </message>
    <message>
        <source>Evolution Data Server is not running (%1): its calendars and online accounts are not read</source>
        <translation>Evolution Data Server ne tourne pas (%1)&#xa0;: ses calendriers et comptes en ligne ne sont pas lus</translation>
    </message>
    <message>
        <source>Evolution Data Server&apos;s source registry went away: its calendars are kept as they were until it returns</source>
        <translation>le registre des sources d’Evolution Data Server a disparu&#xa0;: ses calendriers restent tels quels jusqu’à son retour</translation>
    </message>
    <message numerus="yes">
        <source>Evolution Data Server gives %n calendar(s)</source>
        <translation>
            <numerusform>Evolution Data Server fournit %n calendrier</numerusform>
            <numerusform>Evolution Data Server fournit %n calendriers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n without an account</source>
        <translation>
            <numerusform>%n sans compte</numerusform>
            <numerusform>%n sans compte</numerusform>
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
        <translation>accessoires fictifs (TINDRA_FAKE les demande)</translation>
    </message>
</context>
<context>
    <name>tindra::FakeBacklightBackend</name>
    <message>
        <source>invented readings (TINDRA_FAKE asks for them)</source>
        <translation>mesures fictives (TINDRA_FAKE les demande)</translation>
    </message>
</context>
<context>
    <name>tindra::FakeBatteryBackend</name>
    <message>
        <source>invented readings (TINDRA_FAKE asks for them)</source>
        <translation>mesures fictives (TINDRA_FAKE les demande)</translation>
    </message>
</context>
<context>
    <name>tindra::FakeCalendarBackend</name>
    <message>
        <source>invented</source>
        <translation>fictif</translation>
    </message>
    <message>
        <source>The invented calendars take no additions.</source>
        <translation>Les calendriers fictifs n’acceptent pas d’ajouts.</translation>
    </message>
</context>
<context>
    <name>tindra::FakeFileTrayBackend</name>
    <message>
        <source>invented files (TINDRA_FAKE asks for them)</source>
        <translation>fichiers fictifs (TINDRA_FAKE les demande)</translation>
    </message>
</context>
<context>
    <name>tindra::FakeFocusStatusSource</name>
    <message>
        <source>invented do-not-disturb (TINDRA_FAKE)</source>
        <translation>«&#xa0;Ne pas déranger&#xa0;» fictif (TINDRA_FAKE)</translation>
    </message>
</context>
<context>
    <name>tindra::FakeLocationSource</name>
    <message>
        <source>an invented position (TINDRA_FAKE)</source>
        <translation>une position fictive (TINDRA_FAKE)</translation>
    </message>
</context>
<context>
    <name>tindra::FakeLockStateSource</name>
    <message>
        <source>invented screen lock (TINDRA_FAKE)</source>
        <translation>verrouillage d’écran fictif (TINDRA_FAKE)</translation>
    </message>
</context>
<context>
    <name>tindra::FakeNotificationSource</name>
    <message>
        <source>invented notifications (TINDRA_FAKE)</source>
        <translation>notifications fictives (TINDRA_FAKE)</translation>
    </message>
</context>
<context>
    <name>tindra::FakeNowPlayingSource</name>
    <message>
        <source>an invented track (TINDRA_FAKE asks for it)</source>
        <translation>un morceau fictif (TINDRA_FAKE le demande)</translation>
    </message>
</context>
<context>
    <name>tindra::FakeVisibilitySource</name>
    <message>
        <source>an invented window in front (TINDRA_FAKE)</source>
        <translation>une fenêtre fictive au premier plan (TINDRA_FAKE)</translation>
    </message>
</context>
<context>
    <name>tindra::FakeVolumeBackend</name>
    <message>
        <source>invented readings (TINDRA_FAKE asks for them)</source>
        <translation>mesures fictives (TINDRA_FAKE les demande)</translation>
    </message>
</context>
<context>
    <name>tindra::FakeVolumeSoundPreference</name>
    <message>
        <source>an invented volume sound setting (TINDRA_FAKE asks for it)</source>
        <translation>un réglage inventé pour le son du volume (TINDRA_FAKE le demande)</translation>
    </message>
</context>
<context>
    <name>tindra::FileTrayProvider</name>
    <message>
        <source>keeping the file tray in %1</source>
        <translation>conserve le plateau de fichiers dans %1</translation>
    </message>
    <message>
        <source>some items of the saved file tray could not be read and were left out; the list as it was is kept as %1</source>
        <translation>certains éléments du plateau de fichiers enregistré étaient illisibles et ont été omis&#xa0;; la liste d’origine est conservée sous %1</translation>
    </message>
    <message>
        <source>the saved file tray %1; it is kept as %2 and the tray starts empty</source>
        <translation>le plateau de fichiers enregistré %1&#xa0;; il est conservé sous %2 et le plateau démarre vide</translation>
    </message>
    <message>
        <source>was written by a newer Tindra</source>
        <translation>a été écrit par une version plus récente de Tindra</translation>
    </message>
    <message>
        <source>could not be read</source>
        <translation>n’a pas pu être lu</translation>
    </message>
    <message>
        <source>Only files and folders can go in the tray.</source>
        <translation>Seuls des fichiers et des dossiers peuvent aller dans le plateau.</translation>
    </message>
    <message>
        <source>Already in the tray:</source>
        <translation>Déjà dans le plateau&#xa0;:</translation>
    </message>
    <message>
        <source>The tray is full:</source>
        <translation>Le plateau est plein&#xa0;:</translation>
    </message>
    <message>
        <source>not added. Remove some items first.</source>
        <translation>— non ajouté. Retirez d’abord des éléments.</translation>
    </message>
    <message>
        <source>Only files and folders can go in the tray:</source>
        <translation>Seuls des fichiers et des dossiers peuvent aller dans le plateau&#xa0;:</translation>
    </message>
    <message>
        <source>Copies in the tray are limited to 2 GB:</source>
        <translation>Les copies dans le plateau sont limitées à 2 Go&#xa0;:</translation>
    </message>
    <message>
        <source>could not be copied into the tray.</source>
        <translation>— la copie dans le plateau a échoué.</translation>
    </message>
    <message>
        <source>The copy into the tray was stopped.</source>
        <translation>La copie dans le plateau a été arrêtée.</translation>
    </message>
    <message>
        <source>the file tray is not saved: an unreadable list could not be moved aside</source>
        <translation>le plateau de fichiers n’est pas enregistré&#xa0;: une liste illisible n’a pas pu être mise de côté</translation>
    </message>
    <message numerus="yes">
        <source>Copying %n item(s) into the tray…</source>
        <translation>
            <numerusform>Copie de %n élément dans le plateau…</numerusform>
            <numerusform>Copie de %n éléments dans le plateau…</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tindra::FocusViewModel</name>
    <message>
        <source>Focus</source>
        <translation>Concentration</translation>
    </message>
</context>
<context>
    <name>tindra::GSettingsFocusSource</name>
    <message>
        <source>reading do-not-disturb from GNOME&apos;s settings (show-banners)</source>
        <translation>lit «&#xa0;Ne pas déranger&#xa0;» dans les réglages de GNOME (show-banners)</translation>
    </message>
    <message>
        <source>GNOME&apos;s notification settings are not installed: do-not-disturb is unknown</source>
        <translation>les réglages de notification de GNOME ne sont pas installés&#xa0;: «&#xa0;Ne pas déranger&#xa0;» est inconnu</translation>
    </message>
</context>
<context>
    <name>tindra::GSettingsVolumeSoundPreference</name>
    <message>
        <source>the volume sound follows GNOME&apos;s event sounds setting</source>
        <translation>le son du volume suit le réglage des sons d’événements de GNOME</translation>
    </message>
    <message>
        <source>GNOME&apos;s sound settings are not installed: the volume sound follows Tindra&apos;s own setting</source>
        <translation>les réglages de son de GNOME ne sont pas installés&#xa0;: le son du volume suit le réglage de Tindra</translation>
    </message>
</context>
<context>
    <name>tindra::GeoClueLocationSource</name>
    <message>
        <source>asking GeoClue for the position</source>
        <translation>demande la position à GeoClue</translation>
    </message>
    <message>
        <source>GeoClue went away: the last position stays until it returns</source>
        <translation>GeoClue a disparu&#xa0;: la dernière position reste jusqu’à son retour</translation>
    </message>
    <message>
        <source>GeoClue is not available (%1)</source>
        <translation>GeoClue n’est pas disponible (%1)</translation>
    </message>
    <message>
        <source>GeoClue refused the position (%1)</source>
        <translation>GeoClue a refusé la position (%1)</translation>
    </message>
    <message>
        <source>GeoClue gives the position, at city accuracy</source>
        <translation>GeoClue donne la position, à l’échelle de la ville</translation>
    </message>
</context>
<context>
    <name>tindra::HudProvider</name>
    <message>
        <source>the keyboard backlight ignores Tindra&apos;s changes: the keys go back to the desktop and the notch only shows the level</source>
        <translation>le rétroéclairage du clavier ignore les changements de Tindra&#xa0;: les touches reviennent au bureau et l’encoche n’affiche que le niveau</translation>
    </message>
    <message>
        <source>holds %1</source>
        <translation>détient %1</translation>
    </message>
    <message>
        <source>only watches the level for %1 (another program holds them)</source>
        <translation>surveille seulement le niveau pour %1 (un autre programme les détient)</translation>
    </message>
    <message>
        <source>leaves %1 to the desktop</source>
        <translation>laisse %1 au bureau</translation>
    </message>
</context>
<context>
    <name>tindra::ICalendarBackend</name>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 ne peut pas être lu&#xa0;: %2</translation>
    </message>
    <message>
        <source>the calendar list was not readable and was set aside as %1</source>
        <translation>la liste des calendriers était illisible et a été mise de côté sous %1</translation>
    </message>
    <message>
        <source>not read while the calendar is off</source>
        <translation>non lu tant que le calendrier est désactivé</translation>
    </message>
    <message>
        <source>Give a file, a folder or an address.</source>
        <translation>Indiquez un fichier, un dossier ou une adresse.</translation>
    </message>
    <message>
        <source>Use an https:// or webcal:// address: a calendar fetched over plain http can be read by anyone on the way.</source>
        <translation>Utilisez une adresse https:// ou webcal://&#xa0;: un calendrier récupéré en http simple peut être lu par n’importe qui en chemin.</translation>
    </message>
    <message>
        <source>This calendar is already in the list.</source>
        <translation>Ce calendrier est déjà dans la liste.</translation>
    </message>
    <message numerus="yes">
        <source>reading %n iCalendar calendar(s)</source>
        <translation>
            <numerusform>lit %n calendrier iCalendar</numerusform>
            <numerusform>lit %n calendriers iCalendar</numerusform>
        </translation>
    </message>
    <message>
        <source>no calendars: add an iCalendar file, folder or address in Settings</source>
        <translation>aucun calendrier&#xa0;: ajoutez un fichier, un dossier ou une adresse iCalendar dans les Réglages</translation>
    </message>
</context>
<context>
    <name>tindra::IdleClock</name>
    <message>
        <source>dddd d MMMM</source>
        <comment>the opened notch&apos;s date: Qt date format</comment>
        <translation>dddd d MMMM</translation>
    </message>
</context>
<context>
    <name>tindra::LocalCalendarFeed</name>
    <message>
        <source>%1 is not there</source>
        <translation>%1 n’existe pas</translation>
    </message>
    <message>
        <source>%1 cannot be read</source>
        <translation>%1 ne peut pas être lu</translation>
    </message>
</context>
<context>
    <name>tindra::LogindLockSource</name>
    <message>
        <source>asking logind for the session</source>
        <translation>demande la session à logind</translation>
    </message>
    <message>
        <source>logind went away: the screen lock is not followed until it returns</source>
        <translation>logind a disparu&#xa0;: le verrouillage d’écran n’est pas suivi jusqu’à son retour</translation>
    </message>
    <message>
        <source>logind does not know this session (%1): the screen lock is not followed</source>
        <translation>logind ne connaît pas cette session (%1)&#xa0;: le verrouillage d’écran n’est pas suivi</translation>
    </message>
    <message>
        <source>logind does not answer (%1): the screen lock is not followed</source>
        <translation>logind ne répond pas (%1)&#xa0;: le verrouillage d’écran n’est pas suivi</translation>
    </message>
    <message>
        <source>following the screen lock of logind&apos;s session %1</source>
        <translation>suit le verrouillage d’écran de la session logind %1</translation>
    </message>
</context>
<context>
    <name>tindra::NotificationServerFocusSource</name>
    <message>
        <source>asking the notification server for do-not-disturb</source>
        <translation>interroge le serveur de notifications sur «&#xa0;Ne pas déranger&#xa0;»</translation>
    </message>
    <message>
        <source>no notification server runs: do-not-disturb is unknown until one starts</source>
        <translation>aucun serveur de notifications ne tourne&#xa0;: «&#xa0;Ne pas déranger&#xa0;» est inconnu jusqu’à ce qu’un serveur démarre</translation>
    </message>
    <message>
        <source>the notification server went away: do-not-disturb is unknown until it returns</source>
        <translation>le serveur de notifications a disparu&#xa0;: «&#xa0;Ne pas déranger&#xa0;» est inconnu jusqu’à son retour</translation>
    </message>
    <message>
        <source>reading do-not-disturb from the notification server (Inhibited)</source>
        <translation>lit «&#xa0;Ne pas déranger&#xa0;» auprès du serveur de notifications (Inhibited)</translation>
    </message>
    <message>
        <source>the notification server does not report do-not-disturb (no Inhibited property): only `tindra focus` shows a Focus</source>
        <translation>le serveur de notifications ne signale pas «&#xa0;Ne pas déranger&#xa0;» (pas de propriété Inhibited)&#xa0;: seul `tindra focus` affiche une Concentration</translation>
    </message>
</context>
<context>
    <name>tindra::NowPlayingProvider</name>
    <message>
        <source>Settings ask for the player scripts, which this desktop does not have: nothing is shown as playing.</source>
        <translation>Les Réglages demandent les scripts des lecteurs, que ce bureau n’a pas&#xa0;: rien n’est affiché comme en cours de lecture.</translation>
    </message>
    <message>
        <source>testing the now-playing adapter %1</source>
        <translation>teste l’adaptateur «&#xa0;À l’écoute&#xa0;» %1</translation>
    </message>
    <message>
        <source>a player without a name</source>
        <translation>un lecteur sans nom</translation>
    </message>
    <message>
        <source>following %1</source>
        <translation>suit %1</translation>
    </message>
    <message>
        <source>%1 left: nothing is playing</source>
        <translation>%1 est parti : rien n’est en lecture</translation>
    </message>
</context>
<context>
    <name>tindra::OnboardingWindow</name>
    <message>
        <source>Welcome to Tindra</source>
        <translation>Bienvenue dans Tindra</translation>
    </message>
    <message>
        <source>&lt;b&gt;The notch opens&lt;/b&gt;</source>
        <translation>&lt;b&gt;L’encoche s’ouvre&lt;/b&gt;</translation>
    </message>
    <message>
        <source>when the pointer rests on it</source>
        <translation>quand le pointeur reste dessus</translation>
    </message>
    <message>
        <source>when you click it</source>
        <translation>quand vous cliquez dessus</translation>
    </message>
    <message>
        <source>when you press and hold it</source>
        <translation>quand vous maintenez le bouton appuyé dessus</translation>
    </message>
    <message>
        <source>Start Tindra when I log in</source>
        <translation>Lancer Tindra à l’ouverture de session</translation>
    </message>
    <message>
        <source>Start Using Tindra</source>
        <translation>Commencer à utiliser Tindra</translation>
    </message>
    <message>
        <source>&lt;h2&gt;Welcome to Tindra&lt;/h2&gt;&lt;p&gt;The strip at the top of your display is now a small live display. Closed, it shows one thing at a time: what is playing, a volume or brightness level, a battery or headphone notice, the next meeting, a call or a message. Rest the pointer on it and it opens into a panel with the controls, your calendar, the weather, your batteries and a file tray. Everything stays on this computer.&lt;/p&gt;&lt;p&gt;&lt;b&gt;What Tindra found here&lt;/b&gt; (✓ works, – off or waiting, ✗ missing), and what you can do:&lt;/p&gt;</source>
        <translation>&lt;h2&gt;Bienvenue dans Tindra&lt;/h2&gt;&lt;p&gt;La bande en haut de votre écran est maintenant un petit affichage vivant. Fermée, elle montre une chose à la fois&#xa0;: ce qui joue, un niveau de volume ou de luminosité, un avis de batterie ou d’écouteurs, la prochaine réunion, un appel ou un message. Posez le pointeur dessus et elle s’ouvre en un panneau avec les commandes, votre calendrier, la météo, vos batteries et un plateau de fichiers. Tout reste sur cet ordinateur.&lt;/p&gt;&lt;p&gt;&lt;b&gt;Ce que Tindra a trouvé ici&lt;/b&gt; (✓ fonctionne, – désactivé ou en attente, ✗ manquant), et ce que vous pouvez faire&#xa0;:&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Each service&apos;s own report is in Diagnostics… on Tindra&apos;s menu, for a bug report.</source>
        <translation>Le rapport de chaque service se trouve dans Diagnostic… du menu de Tindra, pour signaler un bogue.</translation>
    </message>
</context>
<context>
    <name>tindra::PinnedSectionsEditor</name>
    <message>
        <source>Tick the sections to pin and drag them into order</source>
        <translation>Cochez les sections à épingler et faites-les glisser dans l’ordre</translation>
    </message>
</context>
<context>
    <name>tindra::PlasmaVolumeSoundPreference</name>
    <message>
        <source>the volume sound follows the audio feedback setting of Plasma&apos;s volume applet</source>
        <translation>le son du volume suit le réglage de retour audio de l’applet de volume de Plasma</translation>
    </message>
</context>
<context>
    <name>tindra::PlasmaWindowVisibilitySource</name>
    <message>
        <source>following the active window and full-screen state from KWin&apos;s window list (Plasma window management)</source>
        <translation>suit la fenêtre active et l’état plein écran dans la liste des fenêtres de KWin (Plasma window management)</translation>
    </message>
</context>
<context>
    <name>tindra::PosixFileTrayBackend</name>
    <message>
        <source>files are known by their device and inode</source>
        <translation>les fichiers sont reconnus par leur périphérique et leur inode</translation>
    </message>
</context>
<context>
    <name>tindra::PulseProcessTapSession</name>
    <message>
        <source>no sound server to listen to</source>
        <translation>aucun serveur de son à écouter</translation>
    </message>
    <message>
        <source>the player&apos;s own stream (%1)</source>
        <translation>le flux propre du lecteur (%1)</translation>
    </message>
    <message>
        <source>the default output</source>
        <translation>la sortie par défaut</translation>
    </message>
    <message>
        <source>the sound server has no output to listen to</source>
        <translation>le serveur de son n’a aucune sortie à écouter</translation>
    </message>
    <message>
        <source> on </source>
        <translation> sur </translation>
    </message>
    <message>
        <source>the sound server refused a capture stream</source>
        <translation>le serveur de son a refusé un flux de capture</translation>
    </message>
</context>
<context>
    <name>tindra::PulseVolumeBackend</name>
    <message>
        <source>connecting to the sound server</source>
        <translation>connexion au serveur de son</translation>
    </message>
    <message>
        <source>following the sound server&apos;s default output</source>
        <translation>suit la sortie par défaut du serveur de son</translation>
    </message>
    <message>
        <source>the sound server went away: no volume until it returns</source>
        <translation>le serveur de son a disparu&#xa0;: pas de volume jusqu’à son retour</translation>
    </message>
    <message>
        <source>no sound server answers: the volume shows as soon as PipeWire or PulseAudio runs</source>
        <translation>aucun serveur de son ne répond&#xa0;: le volume s’affiche dès que PipeWire ou PulseAudio tourne</translation>
    </message>
</context>
<context>
    <name>tindra::RemoteCalendarFeed</name>
    <message>
        <source>%1 is not an https address</source>
        <translation>%1 n’est pas une adresse https</translation>
    </message>
    <message>
        <source>HTTP %1</source>
        <translation>HTTP %1</translation>
    </message>
    <message>
        <source>could not fetch %1 (%2)</source>
        <translation>impossible de récupérer %1 (%2)</translation>
    </message>
</context>
<context>
    <name>tindra::ScreenSource</name>
    <message>
        <source>Built-in display</source>
        <translation>Écran intégré</translation>
    </message>
</context>
<context>
    <name>tindra::SettingsWindow</name>
    <message>
        <source>Tindra Settings</source>
        <translation>Réglages de Tindra</translation>
    </message>
    <message>
        <source>Search settings</source>
        <translation>Rechercher dans les réglages</translation>
    </message>
    <message>
        <source>Reset Page</source>
        <translation>Réinitialiser la page</translation>
    </message>
    <message>
        <source>Use the default value of every setting on this page</source>
        <translation>Utiliser la valeur par défaut de chaque réglage de cette page</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Use the default value</source>
        <translation>Utiliser la valeur par défaut</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(aucun)</translation>
    </message>
    <message>
        <source>The change was not saved: %1</source>
        <translation>La modification n’a pas été enregistrée&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>tindra::ShellActions</name>
    <message>
        <source>Settings…</source>
        <translation>Réglages…</translation>
    </message>
    <message>
        <source>Diagnostics…</source>
        <translation>Diagnostic…</translation>
    </message>
    <message>
        <source>Start at Login</source>
        <translation>Lancer à l’ouverture de session</translation>
    </message>
    <message>
        <source>Quit Tindra</source>
        <translation>Quitter Tindra</translation>
    </message>
    <message>
        <source>Each service Tindra uses says here whether it answers, and every change since Tindra started is in the log. The report has the versions, the session and the log, for a bug report; it names none of your files, events or messages.</source>
        <translation>Chaque service utilisé par Tindra indique ici s’il répond, et chaque changement depuis le lancement de Tindra figure dans le journal. Le rapport contient les versions, la session et le journal, pour un rapport de bogue&#xa0;; il ne cite aucun de vos fichiers, événements ou messages.</translation>
    </message>
    <message>
        <source>No keyboard backlight that Tindra can control was found on this computer.</source>
        <translation>Aucun rétroéclairage de clavier que Tindra puisse régler n’a été trouvé sur cet ordinateur.</translation>
    </message>
    <message>
        <source>Tindra could not read the keyboard backlight just now, so this was turned off. Try again with the lid open.</source>
        <translation>Tindra n’a pas pu lire le rétroéclairage du clavier, cette option a donc été désactivée. Réessayez écran ouvert.</translation>
    </message>
    <message>
        <source>This computer has no battery, so there is nothing to show here.</source>
        <translation>Cet ordinateur n’a pas de batterie, il n’y a donc rien à afficher ici.</translation>
    </message>
</context>
<context>
    <name>tindra::SysfsBacklightBackend</name>
    <message>
        <source>%1, set through logind</source>
        <translation>%1, réglé via logind</translation>
    </message>
    <message>
        <source>%1 is shown; logind is not running, so the brightness keys stay with the desktop</source>
        <translation>%1 est affiché&#xa0;; logind ne tourne pas, les touches de luminosité restent donc au bureau</translation>
    </message>
    <message>
        <source>no display backlight in %1: the brightness keys stay with the desktop</source>
        <translation>pas de rétroéclairage d’écran dans %1&#xa0;: les touches de luminosité restent au bureau</translation>
    </message>
    <message>
        <source>%1 is shown; asking whether logind runs to set it</source>
        <translation>%1 est affiché&#xa0;; vérifie si logind tourne pour le régler</translation>
    </message>
    <message>
        <source>%1 is shown; logind refused to set it (%2), so the brightness keys stay with the desktop</source>
        <translation>%1 est affiché&#xa0;; logind a refusé de le régler (%2), les touches de luminosité restent donc au bureau</translation>
    </message>
</context>
<context>
    <name>tindra::TindraApp</name>
    <message>
        <source>Check Now Playing adapter</source>
        <translation>Vérifier l’adaptateur «&#xa0;À l’écoute&#xa0;»</translation>
    </message>
</context>
<context>
    <name>tindra::UPowerBatteryBackend</name>
    <message>
        <source>asking UPower for the battery</source>
        <translation>demande la batterie à UPower</translation>
    </message>
    <message>
        <source>reading the battery from UPower</source>
        <translation>lit la batterie via UPower</translation>
    </message>
    <message>
        <source>UPower answers and reports no battery</source>
        <translation>UPower répond et ne signale aucune batterie</translation>
    </message>
    <message>
        <source>UPower does not answer (%1): no battery is shown</source>
        <translation>UPower ne répond pas (%1)&#xa0;: aucune batterie n’est affichée</translation>
    </message>
    <message>
        <source>UPower went away: no battery is shown until it returns</source>
        <translation>UPower a disparu&#xa0;: aucune batterie n’est affichée jusqu’à son retour</translation>
    </message>
    <message>
        <source>no power-profiles-daemon: low power mode is not shown</source>
        <translation>pas de power-profiles-daemon : le mode économie d’énergie n’est pas affiché</translation>
    </message>
    <message>
        <source>power-profiles-daemon does not answer (%1): low power mode is not shown</source>
        <translation>power-profiles-daemon ne répond pas (%1) : le mode économie d’énergie n’est pas affiché</translation>
    </message>
    <message>
        <source>power-profiles-daemon went away: low power mode is not shown until it returns</source>
        <translation>power-profiles-daemon a disparu : le mode économie d’énergie n’est plus affiché jusqu’à son retour</translation>
    </message>
</context>
<context>
    <name>tindra::UPowerKeyboardBacklightBackend</name>
    <message>
        <source>UPower went away: the keyboard light keys stay with the desktop</source>
        <translation>UPower a disparu&#xa0;: les touches d’éclairage du clavier restent au bureau</translation>
    </message>
    <message>
        <source>UPower reports no keyboard backlight (%1)</source>
        <translation>UPower ne signale aucun rétroéclairage du clavier (%1)</translation>
    </message>
    <message>
        <source>no levels</source>
        <translation>aucun niveau</translation>
    </message>
    <message>
        <source>keyboard backlight through UPower, %1 levels</source>
        <translation>rétroéclairage du clavier via UPower, %1 niveaux</translation>
    </message>
    <message>
        <source>the keyboard backlight level cannot be read (%1 of %2)</source>
        <translation>le niveau du rétroéclairage du clavier est illisible (%1 sur %2)</translation>
    </message>
    <message>
        <source>the keyboard backlight level cannot be read (%1)</source>
        <translation>le niveau du rétroéclairage du clavier est illisible (%1)</translation>
    </message>
</context>
<context>
    <name>tindra::VisibilityMonitor</name>
    <message>
        <source>the notch steps aside: %1</source>
        <translation>l’encoche s’efface&#xa0;: %1</translation>
    </message>
    <message>
        <source>the notch shows</source>
        <translation>l’encoche est visible</translation>
    </message>
</context>
<context>
    <name>tindra::WeatherProvider</name>
    <message>
        <source>the weather is off in Settings</source>
        <translation>la météo est désactivée dans les Réglages</translation>
    </message>
    <message>
        <source>position: %1; %2</source>
        <translation>position&#xa0;: %1&#xa0;; %2</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>aucune pour l’instant</translation>
    </message>
    <message>
        <source>; the last request failed (%1)</source>
        <translation>&#xa0;; la dernière requête a échoué (%1)</translation>
    </message>
    <message>
        <source>set in Settings</source>
        <translation>définie dans les Réglages</translation>
    </message>
    <message>
        <source>%1, set in Settings</source>
        <translation>%1, définie dans les Réglages</translation>
    </message>
    <message>
        <source>GeoClue</source>
        <translation>GeoClue</translation>
    </message>
    <message>
        <source>the time zone %1</source>
        <translation>le fuseau horaire %1</translation>
    </message>
    <message>
        <source>The weather is unavailable right now.</source>
        <translation>La météo n’est pas disponible pour le moment.</translation>
    </message>
    <message>
        <source>Waiting for location access</source>
        <translation>En attente de l’accès à la position</translation>
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
        <translation>Position utilisée&#xa0;:</translation>
    </message>
    <message>
        <source>Pick a city</source>
        <translation>Choisir une ville</translation>
    </message>
    <message>
        <source>My place:</source>
        <translation>Mon lieu&#xa0;:</translation>
    </message>
    <message>
        <source>Use These</source>
        <translation>Utiliser</translation>
    </message>
    <message>
        <source>Use the Location Service</source>
        <translation>Utiliser le service de localisation</translation>
    </message>
    <message>
        <source>Latitude, longitude:</source>
        <translation>Latitude, longitude&#xa0;:</translation>
    </message>
    <message>
        <source>An e-mail address MET Norway may reach you at (optional)</source>
        <translation>E-mail où MET Norway peut vous joindre (facultatif)</translation>
    </message>
    <message>
        <source>Contact:</source>
        <translation>Contact&#xa0;:</translation>
    </message>
    <message>
        <source>As the region says</source>
        <translation>Selon la région</translation>
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
        <translation>Unité&#xa0;:</translation>
    </message>
    <message>
        <source>No city called %1 is known.</source>
        <translation>Aucune ville nommée %1 n’est connue.</translation>
    </message>
</context>
<context>
    <name>tindra::WeatherViewModel</name>
    <message>
        <source>Weather data from MET Norway</source>
        <translation>Données météo de MET Norway</translation>
    </message>
</context>
<context>
    <name>tindra::WlrToplevelVisibilitySource</name>
    <message>
        <source>following the active window and full-screen state from the compositor&apos;s window list (wlr foreign toplevel)</source>
        <translation>suit la fenêtre active et l’état plein écran dans la liste des fenêtres du compositeur (wlr foreign toplevel)</translation>
    </message>
</context>
<context>
    <name>tindra::X11MediaKeySource</name>
    <message>
        <source>no X display: the keys stay with the desktop, and the level changes it makes are shown</source>
        <translation>pas d’affichage X&#xa0;: les touches restent au bureau, et les changements de niveau qu’il fait sont affichés</translation>
    </message>
    <message>
        <source>holding no keys</source>
        <translation>ne détient aucune touche</translation>
    </message>
    <message>
        <source>holding %1 key combinations, %2 held by another program</source>
        <translation>détient %1 combinaisons de touches, %2 détenues par un autre programme</translation>
    </message>
    <message>
        <source>the X server closed the connection: the keys stay with the desktop</source>
        <translation>le serveur X a fermé la connexion&#xa0;: les touches restent au bureau</translation>
    </message>
</context>
<context>
    <name>tindra::X11VisibilitySource</name>
    <message>
        <source>no X display: the notch never steps aside for full-screen windows or games</source>
        <translation>pas d’affichage X&#xa0;: l’encoche ne s’efface jamais devant les fenêtres en plein écran ou les jeux</translation>
    </message>
    <message>
        <source>following the active window and full-screen state from the window manager (EWMH)</source>
        <translation>suit la fenêtre active et l’état plein écran via le gestionnaire de fenêtres (EWMH)</translation>
    </message>
    <message>
        <source>the X server closed the connection: the notch no longer steps aside</source>
        <translation>le serveur X a fermé la connexion&#xa0;: l’encoche ne s’efface plus</translation>
    </message>
</context>
</TS>
