<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_GB">
<context>
    <name>ColorClipboard</name>
    <message>
        <source>That is a long text, not a colour.</source>
        <translation>Das ist ein langer Text, keine Farbe.</translation>
    </message>
    <message>
        <source>%1 is outside sRGB; this is the nearest colour inside.</source>
        <translation>%1 liegt außerhalb von sRGB; dies ist die nächste Farbe darin.</translation>
    </message>
    <message>
        <source>There is no colour to paste: copy one, or a CSS text such as #ff8000.</source>
        <translation>Es gibt keine Farbe einzufügen: Kopieren Sie eine, oder einen CSS-Text wie #ff8000.</translation>
    </message>
</context>
<context>
    <name>ContrastLabel</name>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message>
        <source>Contrast with the background: %1 to 1
Normal text: AA %2, AAA %3
Large text: AA %4, AAA %5
Controls and graphics: AA %6</source>
        <translation>Kontrast zum Hintergrund: %1 zu 1
Normaler Text: AA %2, AAA %3
Großer Text: AA %4, AAA %5
Bedienelemente und Grafik: AA %6</translation>
    </message>
</context>
<context>
    <name>DialogPage</name>
    <message>
        <source>Colour dialog</source>
        <translation>Farbdialog</translation>
    </message>
</context>
<context>
    <name>PanelCommands</name>
    <message>
        <source>Pick from the screen</source>
        <translation>Vom Bildschirm aufnehmen</translation>
    </message>
    <message>
        <source>Pick and copy</source>
        <translation>Aufnehmen und kopieren</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy the hex code</source>
        <translation>Hex-Code kopieren</translation>
    </message>
    <message>
        <source>Paste a colour</source>
        <translation>Farbe einfügen</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Swap colour and background</source>
        <translation>Farbe und Hintergrund tauschen</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Nächste Seite</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Vorige Seite</translation>
    </message>
    <message>
        <source>Always on top</source>
        <translation>Immer im Vordergrund</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Copy as</source>
        <translation>Kopieren als</translation>
    </message>
</context>
<context>
    <name>PanelTools</name>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
</context>
<context>
    <name>PanelTopBar</name>
    <message>
        <source>Current page</source>
        <translation>Aktuelle Seite</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Befehle</translation>
    </message>
</context>
<context>
    <name>PanelWindow</name>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>A plug-in was left out</source>
        <translation>Ein Plug-in wurde ausgelassen</translation>
    </message>
    <message>
        <source>%1 plug-ins were left out</source>
        <translation>%1 Plug-ins wurden ausgelassen</translation>
    </message>
    <message>
        <source>Copied: %1</source>
        <translation>Kopiert: %1</translation>
    </message>
</context>
<context>
    <name>PluginPage</name>
    <message>
        <source>The page &quot;%1&quot; could not be made. Its interface file is missing or damaged; installing %2 again may help.</source>
        <translation>Die Seite „%1“ ließ sich nicht aufbauen. Ihre Oberflächendatei fehlt oder ist beschädigt; %2 neu zu installieren kann helfen.</translation>
    </message>
</context>
<context>
    <name>RecentColors</name>
    <message>
        <source>Last colours</source>
        <translation>Letzte Farben</translation>
    </message>
</context>
<context>
    <name>ShortcutOverlay</name>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
</context>
<context>
    <name>Vantorel</name>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Colour magnifier</source>
        <translation>Farblupe</translation>
    </message>
    <message>
        <source>Back to the colours</source>
        <translation>Zurück zu den Farben</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Click on color</source>
        <translation>Farbe anklicken</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Code snippet</source>
        <translation>Codezeile</translation>
    </message>
    <message>
        <source>Code snippet form</source>
        <translation>Form der Codezeile</translation>
    </message>
    <message>
        <source>Colour list</source>
        <translation>Farbliste</translation>
    </message>
    <message>
        <source>Colour name</source>
        <translation>Farbname</translation>
    </message>
    <message>
        <source>Colour under the pointer</source>
        <translation>Farbe unter dem Zeiger</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Component display</source>
        <translation>Anzeige der Anteile</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Drag</source>
        <translation>Zug</translation>
    </message>
    <message>
        <source>Drag type</source>
        <translation>Was ein Ziehen trägt</translation>
    </message>
    <message>
        <source>Enlarge the panel to show all settings</source>
        <translation>Fenster vergrößern, um alle Einstellungen zu zeigen</translation>
    </message>
    <message>
        <source>Fewer rings</source>
        <translation>Weniger Ringe</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Hex code</source>
        <translation>Hex-Code</translation>
    </message>
    <message>
        <source>Hex colour</source>
        <translation>Hex-Farbe</translation>
    </message>
    <message>
        <source>Lead hex codes with #</source>
        <translation>Hex-Codes mit # beginnen</translation>
    </message>
    <message>
        <source>Letter case</source>
        <translation>Groß oder klein</translation>
    </message>
    <message>
        <source>Letter case of hex codes</source>
        <translation>Groß- oder Kleinschreibung der Hex-Codes</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Handbuch</translation>
    </message>
    <message>
        <source>More rings</source>
        <translation>Mehr Ringe</translation>
    </message>
    <message>
        <source>More settings</source>
        <translation>Weitere Einstellungen</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Palette</translation>
    </message>
    <message>
        <source>Palette: pick among the colours of the list</source>
        <translation>Palette: unter den Farben der Liste wählen</translation>
    </message>
    <message>
        <source>RGB or colour name</source>
        <translation>RGB oder Farbname</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Zeige</translation>
    </message>
    <message>
        <source>Slider</source>
        <translation>Schieber</translation>
    </message>
    <message>
        <source>Slider: pick by hex digits</source>
        <translation>Schieber: nach Hex-Ziffern wählen</translation>
    </message>
    <message>
        <source>The colour as a hex code: six digits, three or one</source>
        <translation>Die Farbe als Hex-Code: sechs Ziffern, drei oder eine</translation>
    </message>
    <message>
        <source>The colour as a line of code</source>
        <translation>Die Farbe als Codezeile</translation>
    </message>
    <message>
        <source>The colour as rgb(red, green, blue); a colour name is completed as you type</source>
        <translation>Die Farbe als rgb(rot, grün, blau); ein Farbname wird beim Tippen ergänzt</translation>
    </message>
    <message>
        <source>The colour&apos;s name in the list; choose one to pick it</source>
        <translation>Der Name der Farbe in der Liste; wählen Sie einen, um seine Farbe zu nehmen</translation>
    </message>
    <message>
        <source>The form of the line of code</source>
        <translation>Die Form der Codezeile</translation>
    </message>
    <message>
        <source>The list that names the colour and fills the palette</source>
        <translation>Die Liste, die die Farbe benennt und die Palette füllt</translation>
    </message>
    <message>
        <source>Use #</source>
        <translation>Mit #</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Version 0.1</source>
        <translation>Version 0.1</translation>
    </message>
    <message>
        <source>What a drag out of the colours carries</source>
        <translation>Was man aus den Farben herauszieht</translation>
    </message>
    <message>
        <source>What the fields below the colours show</source>
        <translation>Was die Felder unter den Farben zeigen</translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation>Farbrad</translation>
    </message>
    <message>
        <source>Wheel: pick by hue, tint and shade</source>
        <translation>Farbrad: nach Farbton und Helligkeit wählen</translation>
    </message>
</context>
</TS>
