<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_GB">
<context>
    <name>ContrastText</name>
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
    <message>
        <source>AA large</source>
        <translation>AA groß</translation>
    </message>
    <message>
        <source>fails</source>
        <translation>zu gering</translation>
    </message>
</context>
<context>
    <name>DisplayNames</name>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Code Snippet</source>
        <translation>Codezeile</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Leer</translation>
    </message>
    <message>
        <source>Fraction</source>
        <translation>Bruch</translation>
    </message>
    <message>
        <source>Hex</source>
        <translation>Hex</translation>
    </message>
    <message>
        <source>Hex Code</source>
        <translation>Hex-Code</translation>
    </message>
    <message>
        <source>Input Error</source>
        <translation>Eingabefehler</translation>
    </message>
    <message>
        <source>Integer</source>
        <translation>Ganzzahl</translation>
    </message>
    <message>
        <source>Lowercase</source>
        <translation>Klein (a–f)</translation>
    </message>
    <message>
        <source>No Match</source>
        <translation>Kein Name</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Uppercase</source>
        <translation>Groß (A–F)</translation>
    </message>
</context>
<context>
    <name>ListFileFilters</name>
    <message>
        <source>GIMP palettes</source>
        <translation>GIMP-Paletten</translation>
    </message>
    <message>
        <source>CSS custom properties</source>
        <translation>CSS-Variablen</translation>
    </message>
    <message>
        <source>SCSS variables</source>
        <translation>SCSS-Variablen</translation>
    </message>
    <message>
        <source>JSON</source>
        <translation>JSON</translation>
    </message>
    <message>
        <source>Swatch exchange files</source>
        <translation>Swatch-Exchange-Dateien</translation>
    </message>
    <message>
        <source>SVG pictures</source>
        <translation>SVG-Bilder</translation>
    </message>
    <message>
        <source>Text files</source>
        <translation>Textdateien</translation>
    </message>
    <message>
        <source>Colour lists</source>
        <translation>Farblisten</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Design tokens</source>
        <translation>Design-Tokens</translation>
    </message>
    <message>
        <source>Colour swatches</source>
        <translation>Farbfelder</translation>
    </message>
    <message>
        <source>Krita palettes</source>
        <translation>Krita-Paletten</translation>
    </message>
    <message>
        <source>Colour tables of office programs</source>
        <translation>Farbtabellen von Büroprogrammen</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
</context>
<context>
    <name>Messages</name>
    <message>
        <source>all users can write to &quot;%1&quot;</source>
        <translation>alle Benutzer dürfen in „%1“ schreiben</translation>
    </message>
    <message>
        <source>remove the permission with &quot;chmod o-w&quot;</source>
        <translation>entziehen Sie das Recht mit „chmod o-w“</translation>
    </message>
    <message>
        <source>a group can write to &quot;%1&quot;</source>
        <translation>eine Gruppe darf in „%1“ schreiben</translation>
    </message>
    <message>
        <source>remove the permission with &quot;chmod g-w&quot;</source>
        <translation>entziehen Sie das Recht mit „chmod g-w“</translation>
    </message>
    <message>
        <source>&quot;%1&quot; belongs to another user</source>
        <translation>„%1“ gehört einem anderen Benutzer</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>es ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>it cannot be loaded</source>
        <translation>es lässt sich nicht laden</translation>
    </message>
    <message>
        <source>it is not a picker plug-in (it lacks vantorelPluginABI)</source>
        <translation>es ist kein Plug-in mit einer Farbauswahl (vantorelPluginABI fehlt)</translation>
    </message>
    <message>
        <source>it was built for version %1 of the plug-in interface, and this panel has version %2</source>
        <translation>es ist für Version %1 der Plug-in-Schnittstelle gebaut, und dieses Fenster hat Version %2</translation>
    </message>
    <message>
        <source>install one that was built for this panel</source>
        <translation>installieren Sie eines, das für dieses Fenster gebaut ist</translation>
    </message>
    <message>
        <source>it contains no picker</source>
        <translation>es enthält keinen Farbwähler</translation>
    </message>
    <message>
        <source>%1 is the same plug-in and was loaded first</source>
        <translation>%1 ist dasselbe Plug-in und wurde zuerst geladen</translation>
    </message>
    <message>
        <source>it did not create a page</source>
        <translation>es hat keine Seite angelegt</translation>
    </message>
    <message>
        <source>it failed to create its page: %1</source>
        <translation>das Anlegen seiner Seite ist fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>it failed to create its page</source>
        <translation>das Anlegen seiner Seite ist fehlgeschlagen</translation>
    </message>
    <message>
        <source>%1 is left out: %2</source>
        <translation>%1 wurde ausgelassen: %2</translation>
    </message>
    <message>
        <source>hue</source>
        <translation>Farbton</translation>
    </message>
    <message>
        <source>lightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>saturation</source>
        <translation>Sättigung</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Z</source>
        <translation>Z</translation>
    </message>
    <message>
        <source>alpha</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>whiteness</source>
        <translation>Weißanteil</translation>
    </message>
    <message>
        <source>blackness</source>
        <translation>Schwarzanteil</translation>
    </message>
    <message>
        <source>a</source>
        <translation>a</translation>
    </message>
    <message>
        <source>b</source>
        <translation>b</translation>
    </message>
    <message>
        <source>chroma</source>
        <translation>Buntheit</translation>
    </message>
    <message>
        <source>write &quot;%1&quot;</source>
        <translation>schreiben Sie „%1“</translation>
    </message>
    <message>
        <source>an angle or a number</source>
        <translation>ein Winkel oder eine Zahl</translation>
    </message>
    <message>
        <source>a number or a percentage</source>
        <translation>eine Zahl oder ein Prozentwert</translation>
    </message>
    <message>
        <source>A hex colour without &quot;#&quot; has 3 or 6 digits, not %1</source>
        <translation>Eine Hex-Farbe ohne „#“ hat 3 oder 6 Ziffern, nicht %1</translation>
    </message>
    <message>
        <source>The text contains no colour</source>
        <translation>Der Text enthält keine Farbe</translation>
    </message>
    <message>
        <source>write one such as &quot;#ff8000&quot;, &quot;rgb(255 128 0)&quot; or &quot;orange&quot;</source>
        <translation>schreiben Sie eine wie „#ff8000“, „rgb(255 128 0)“ oder „orange“</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a colour</source>
        <translation>„%1“ ist keine Farbe</translation>
    </message>
    <message>
        <source>&quot;%1&quot; follows the colour</source>
        <translation>Nach der Farbe folgt „%1“</translation>
    </message>
    <message>
        <source>give a single colour</source>
        <translation>geben Sie eine einzige Farbe an</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a hex digit</source>
        <translation>„%1“ ist keine Hex-Ziffer</translation>
    </message>
    <message>
        <source>use digits 0 to 9 and letters a to f after the &quot;#&quot;</source>
        <translation>verwenden Sie nach dem „#“ Ziffern von 0 bis 9 und Buchstaben von a bis f</translation>
    </message>
    <message>
        <source>A hex colour has 3, 4, 6 or 8 digits after the &quot;#&quot;, not %1</source>
        <translation>Eine Hex-Farbe hat 3, 4, 6 oder 8 Ziffern nach dem „#“, nicht %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a property, not part of the colour</source>
        <translation>„%1“ ist eine Eigenschaft, kein Teil der Farbe</translation>
    </message>
    <message>
        <source>give only its value, such as &quot;#ff8000&quot;, &quot;rgb(255 128 0)&quot; or &quot;orange&quot;</source>
        <translation>geben Sie nur ihren Wert an, etwa „#ff8000“, „rgb(255 128 0)“ oder „orange“</translation>
    </message>
    <message>
        <source>The colour of &quot;%1&quot; depends on the page that uses it</source>
        <translation>Die Farbe von „%1“ hängt von der Seite ab, die sie verwendet</translation>
    </message>
    <message>
        <source>write a fixed colour such as &quot;#ff8000&quot;, &quot;rgb(255 128 0)&quot; or &quot;orange&quot;</source>
        <translation>schreiben Sie eine feste Farbe wie „#ff8000“, „rgb(255 128 0)“ oder „orange“</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be directly followed by its parenthesis</source>
        <translation>Auf „%1“ muss unmittelbar die Klammer folgen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a CSS colour name</source>
        <translation>„%1“ ist kein CSS-Farbname</translation>
    </message>
    <message>
        <source>write a colour such as &quot;#ff8000&quot;, &quot;rgb(255 128 0)&quot; or &quot;orange&quot;</source>
        <translation>schreiben Sie eine Farbe wie „#ff8000“, „rgb(255 128 0)“ oder „orange“</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a supported colour function</source>
        <translation>„%1“ ist keine unterstützte Farbfunktion</translation>
    </message>
    <message>
        <source>srgb, srgb-linear, display-p3, display-p3-linear, a98-rgb, prophoto-rgb, rec2020, xyz, xyz-d50 or xyz-d65</source>
        <translation>srgb, srgb-linear, display-p3, display-p3-linear, a98-rgb, prophoto-rgb, rec2020, xyz, xyz-d50 oder xyz-d65</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a colour space of color()</source>
        <translation>„%1“ ist kein Farbraum von color()</translation>
    </message>
    <message>
        <source>write %1</source>
        <translation>schreiben Sie %1</translation>
    </message>
    <message>
        <source>color() must begin with a colour space: %1</source>
        <translation>color() muss mit einem Farbraum beginnen: %1</translation>
    </message>
    <message>
        <source>%1 does not take commas between its values</source>
        <translation>%1 darf keine Kommas zwischen den Werten haben</translation>
    </message>
    <message>
        <source>The hue of %1 must be %2, not &quot;%3&quot;</source>
        <translation>Der Farbton von %1 muss %2 sein, nicht „%3“</translation>
    </message>
    <message>
        <source>The %1 of %2 must be %3, not &quot;%4&quot;</source>
        <translation>Der Wert für %1 von %2 muss %3 sein, nicht „%4“</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an angle</source>
        <translation>„%1“ ist kein Winkel</translation>
    </message>
    <message>
        <source>use the unit deg, grad, rad or turn</source>
        <translation>verwenden Sie die Einheit deg, grad, rad oder turn</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not supported inside a colour</source>
        <translation>„%1“ wird innerhalb einer Farbe nicht unterstützt</translation>
    </message>
    <message>
        <source>write the resulting number</source>
        <translation>schreiben Sie die Zahl, die sich daraus ergibt</translation>
    </message>
    <message>
        <source>The alpha of %1 is missing</source>
        <translation>Die Deckkraft von %1 fehlt</translation>
    </message>
    <message>
        <source>write %1 before the &quot;)&quot;</source>
        <translation>vor die „)“ gehört %1</translation>
    </message>
    <message>
        <source>%1 needs 3 values and has %2</source>
        <translation>%1 braucht 3 Werte und hat %2</translation>
    </message>
    <message>
        <source>The %1 of %2 is missing before &quot;%3&quot;</source>
        <translation>Vor „%3“ fehlt der Wert für %1 von %2</translation>
    </message>
    <message>
        <source>insert %1</source>
        <translation>dorthin gehört %1</translation>
    </message>
    <message>
        <source>The alpha of %1 must follow a &quot;/&quot;</source>
        <translation>Die Deckkraft von %1 muss auf ein „/“ folgen</translation>
    </message>
    <message>
        <source>With commas, the alpha of %1 must also follow a comma</source>
        <translation>Mit Kommas muss auch die Deckkraft von %1 auf ein Komma folgen</translation>
    </message>
    <message>
        <source>&quot;none&quot; cannot be used with commas</source>
        <translation>„none“ ist zusammen mit Kommas nicht erlaubt</translation>
    </message>
    <message>
        <source>Instead of the &quot;)&quot; of %1 there is &quot;%2&quot;</source>
        <translation>Anstelle der „)“ von %1 steht „%2“</translation>
    </message>
    <message>
        <source>With commas, the values of %1 must be all numbers or all percentages</source>
        <translation>Mit Kommas müssen die Werte von %1 alle Zahlen oder alle Prozentwerte sein</translation>
    </message>
    <message>
        <source>With commas, the %1 of %2 must be a percentage</source>
        <translation>Mit Kommas muss der Wert für %1 von %2 ein Prozentwert sein</translation>
    </message>
    <message>
        <source>The values of %1 must be separated either by commas or by spaces</source>
        <translation>Die Werte von %1 müssen entweder durch Kommas oder durch Leerzeichen getrennt sein</translation>
    </message>
    <message>
        <source>write &quot;%1&quot; or &quot;%2&quot;</source>
        <translation>schreiben Sie „%1“ oder „%2“</translation>
    </message>
    <message>
        <source>%1 is not closed</source>
        <translation>%1 ist nicht geschlossen</translation>
    </message>
    <message>
        <source>add a &quot;)&quot; after the values</source>
        <translation>fügen Sie nach den Werten eine „)“ an</translation>
    </message>
    <message>
        <source>The comment that starts with &quot;/*&quot; is not closed</source>
        <translation>Der Kommentar, der mit „/*“ beginnt, ist nicht geschlossen</translation>
    </message>
    <message>
        <source>close it with &quot;*/&quot;</source>
        <translation>schließen Sie ihn mit „*/“</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <source>there is no X11 display</source>
        <translation>es gibt keine X11-Anzeige</translation>
    </message>
    <message>
        <source>the X11 display does not show the windows of Wayland</source>
        <translation>die X11-Anzeige zeigt die Fenster von Wayland nicht</translation>
    </message>
    <message>
        <source>the X11 display gives no picture of its screens</source>
        <translation>die X11-Anzeige liefert kein Bild ihrer Bildschirme</translation>
    </message>
    <message>
        <source>the desktop portal has no PickColor</source>
        <translation>das Desktop-Portal kennt PickColor nicht</translation>
    </message>
    <message>
        <source>the desktop portal could not pick a colour</source>
        <translation>das Desktop-Portal konnte keine Farbe aufnehmen</translation>
    </message>
    <message>
        <source>there is no desktop portal</source>
        <translation>es gibt kein Desktop-Portal</translation>
    </message>
    <message>
        <source>the desktop portal does not answer</source>
        <translation>das Desktop-Portal antwortet nicht</translation>
    </message>
    <message>
        <source>the desktop portal has gone</source>
        <translation>das Desktop-Portal ist weg</translation>
    </message>
    <message>
        <source>there is no session bus</source>
        <translation>es gibt keinen Sitzungsbus</translation>
    </message>
    <message>
        <source>the session bus has gone</source>
        <translation>der Sitzungsbus ist weg</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be opened (%2)</source>
        <translation>„%1“ lässt sich nicht öffnen (%2)</translation>
    </message>
    <message>
        <source>remove the access-control list with &quot;setfacl -b&quot;</source>
        <translation>entfernen Sie die Zugriffsliste mit „setfacl -b“</translation>
    </message>
    <message>
        <source>the access-control list of &quot;%1&quot; cannot be read</source>
        <translation>die Zugriffsliste (ACL) von „%1“ lässt sich nicht lesen</translation>
    </message>
    <message>
        <source>another user can write to &quot;%1&quot;</source>
        <translation>ein anderer Benutzer darf in „%1“ schreiben</translation>
    </message>
    <message>
        <source>the working folder cannot be read: %1</source>
        <translation>der Arbeitsordner lässt sich nicht lesen: %1</translation>
    </message>
    <message>
        <source>use the absolute path of the plug-in</source>
        <translation>geben Sie den vollständigen Pfad des Plug-ins an</translation>
    </message>
    <message>
        <source>another program is still changing colour lists, so &quot;%1&quot; was not changed</source>
        <translation>ein anderes Programm ändert noch Farblisten, darum wurde „%1“ nicht geändert</translation>
    </message>
    <message>
        <source>try again when it has finished</source>
        <translation>versuchen Sie es noch einmal, wenn es fertig ist</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be saved, so nothing was changed</source>
        <translation>„%1“ ließ sich nicht sichern, darum wurde nichts geändert</translation>
    </message>
    <message>
        <source>check that you can write to %1 and that the disk has room</source>
        <translation>prüfen Sie, ob Sie in %1 schreiben dürfen und ob auf dem Datenträger Platz ist</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be removed</source>
        <translation>„%1“ ließ sich nicht entfernen</translation>
    </message>
    <message>
        <source>check that you can write to %1</source>
        <translation>prüfen Sie, ob Sie in %1 schreiben dürfen</translation>
    </message>
    <message>
        <source>the file of &quot;%1&quot; could not be removed, so the list exists under both names</source>
        <translation>die Datei von „%1“ ließ sich nicht entfernen, darum gibt es die Liste unter beiden Namen</translation>
    </message>
    <message>
        <source>the name was taken, so the list is called &quot;%1&quot;</source>
        <translation>der Name war vergeben, darum heißt die Liste „%1“</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is now a list of your own; the other program&apos;s list is unchanged</source>
        <translation>„%1“ ist nun Ihre eigene Liste; die des anderen Programms ist unverändert</translation>
    </message>
    <message>
        <source>another program had changed &quot;%1&quot; too; it now has both changes</source>
        <translation>ein anderes Programm hatte „%1“ auch geändert; die Liste enthält nun beide Änderungen</translation>
    </message>
    <message>
        <source>another program had changed the same list; its version is unchanged, and yours was saved as &quot;%1&quot;</source>
        <translation>ein anderes Programm hatte dieselbe Liste geändert; seine Fassung ist unverändert, Ihre wurde als „%1“ gesichert</translation>
    </message>
    <message>
        <source>another program had removed &quot;%1&quot;; it was restored with your change</source>
        <translation>ein anderes Programm hatte „%1“ entfernt; die Liste wurde mit Ihrer Änderung wiederhergestellt</translation>
    </message>
    <message>
        <source>another program has changed &quot;%1&quot;, so it was not removed</source>
        <translation>ein anderes Programm hat „%1“ geändert, darum wurde die Liste nicht entfernt</translation>
    </message>
    <message>
        <source>check its colours before you remove it</source>
        <translation>prüfen Sie ihre Farben, ehe Sie sie entfernen</translation>
    </message>
    <message>
        <source>the step was undone only in part: later changes by another program to &quot;%1&quot; were kept</source>
        <translation>der Schritt wurde nur zum Teil zurückgenommen: spätere Änderungen eines anderen Programms an „%1“ blieben erhalten</translation>
    </message>
    <message>
        <source>the file of &quot;%1&quot; had comments or damaged lines; the original was kept, with &quot;~&quot; appended to its name</source>
        <translation>die Datei von „%1“ hatte Kommentare oder beschädigte Zeilen; das Original blieb erhalten, mit „~“ am Ende des Namens</translation>
    </message>
    <message>
        <source>no colour was picked</source>
        <translation>es wurde keine Farbe aufgenommen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a form of a colour</source>
        <translation>„%1“ ist keine Form einer Farbe</translation>
    </message>
    <message>
        <source>use one of: %1</source>
        <translation>möglich sind: %1</translation>
    </message>
    <message>
        <source>the panel has lost its name on the session bus: other programs can no longer reach it</source>
        <translation>das Fenster hat seinen Namen auf dem Sitzungsbus verloren: andere Programme erreichen es nicht mehr</translation>
    </message>
    <message>
        <source>the panel was closed</source>
        <translation>das Fenster wurde geschlossen</translation>
    </message>
    <message>
        <source>the session bus has gone: other programs can no longer reach the panel</source>
        <translation>der Sitzungsbus ist weg: andere Programme erreichen das Fenster nicht mehr</translation>
    </message>
    <message>
        <source>the panel that is already running does not answer, so a second one was started</source>
        <translation>das Fenster, das schon läuft, antwortet nicht, darum wurde ein zweites gestartet</translation>
    </message>
    <message>
        <source>another program has the name %1 on the session bus: other programs cannot reach this panel</source>
        <translation>ein anderes Programm hat den Namen %1 auf dem Sitzungsbus: andere Programme erreichen dieses Fenster nicht</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been removed by another program</source>
        <translation>„%1“ wurde von einem anderen Programm entfernt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been changed by another program</source>
        <translation>„%1“ wurde von einem anderen Programm geändert</translation>
    </message>
    <message>
        <source>a pattern cannot be added to a list</source>
        <translation>ein Muster lässt sich keiner Liste hinzufügen</translation>
    </message>
    <message>
        <source>lists store no opacity, so the colour was added without it</source>
        <translation>Listen speichern keine Deckkraft, darum wurde die Farbe ohne sie hinzugefügt</translation>
    </message>
    <message>
        <source>the name was taken, so the colour is called &quot;%1&quot;</source>
        <translation>der Name war vergeben, darum heißt die Farbe „%1“</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been removed</source>
        <translation>„%1“ wurde entfernt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read</source>
        <translation>„%1“ lässt sich nicht lesen</translation>
    </message>
    <message>
        <source>check that it is a file of at most 64 MiB that you can read</source>
        <translation>prüfen Sie, ob es eine Datei von höchstens 64 MiB ist, die Sie lesen dürfen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a colour list that can be read</source>
        <translation>„%1“ ist keine lesbare Farbliste</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been imported</source>
        <translation>„%1“ wurde importiert</translation>
    </message>
    <message>
        <source>lines that are not colours were left out: %1</source>
        <translation>ausgelassene Zeilen, die keine Farben sind: %1</translation>
    </message>
    <message>
        <source>saved as %1</source>
        <translation>gesichert als %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written</source>
        <translation>„%1“ ließ sich nicht schreiben</translation>
    </message>
    <message>
        <source>check that you can write to its folder and that the disk has room</source>
        <translation>prüfen Sie, ob Sie in den Ordner schreiben dürfen und ob auf dem Datenträger Platz ist</translation>
    </message>
    <message>
        <source>only files on this computer can be imported</source>
        <translation>nur Dateien auf diesem Rechner lassen sich importieren</translation>
    </message>
    <message>
        <source>that is a long text, not a colour</source>
        <translation>das ist ein langer Text, keine Farbe</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is outside sRGB; this is the nearest colour inside</source>
        <translation>„%1“ liegt außerhalb von sRGB; dies ist die nächste Farbe darin</translation>
    </message>
    <message>
        <source>there is no colour to paste</source>
        <translation>es gibt keine Farbe einzufügen</translation>
    </message>
    <message>
        <source>copy a colour, or a CSS text such as #ff8000</source>
        <translation>kopieren Sie eine Farbe oder einen CSS-Text wie #ff8000</translation>
    </message>
    <message>
        <source>&quot;%1&quot; copied</source>
        <translation>„%1“ kopiert</translation>
    </message>
    <message>
        <source>this desktop offers no way to pick a colour: %1</source>
        <translation>dieser Desktop bietet keinen Weg, eine Farbe aufzunehmen: %1</translation>
    </message>
    <message>
        <source>choose Undo to restore it</source>
        <translation>wählen Sie „Rückgängig“, um die Liste wiederherzustellen</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Zeigt diese Hilfe.</translation>
    </message>
    <message>
        <source>The same as --color COLOR.</source>
        <translation>Dasselbe wie --color COLOR.</translation>
    </message>
    <message>
        <source>Start with this colour: any form of CSS Color 5, such as &quot;#ff8000&quot; or &quot;hsl(30 100% 50%)&quot;, or a text that the hex page accepts.</source>
        <translation>Beginnt mit dieser Farbe: jede Form von CSS Color 5, etwa „#ff8000“ oder „hsl(30 100% 50%)“, oder ein Text, den die Hex-Seite annimmt.</translation>
    </message>
    <message>
        <source>Start in this mode of the hex page: slider, palette or wheel.</source>
        <translation>Beginnt in dieser Ansicht der Hex-Seite: slider, palette oder wheel.</translation>
    </message>
    <message>
        <source>Size of the page in points, such as 260x340.</source>
        <translation>Größe der Seite in Punkt, etwa 260x340.</translation>
    </message>
    <message>
        <source>Write a picture of the window to FILE as PNG and exit. Works without a display and does not change the settings.</source>
        <translation>Schreibt ein Bild des Fensters als PNG in FILE und endet. Geht ohne Anzeige und ändert die Einstellungen nicht.</translation>
    </message>
    <message>
        <source>Show this face of the hex page: colors or settings.</source>
        <translation>Zeigt diese Seite der Hex-Seite: colors oder settings.</translation>
    </message>
    <message>
        <source>Keep settings, colour lists and the state of the panel in DIR/Vantorel instead of the user&apos;s own folder. DIR must exist.</source>
        <translation>Hält Einstellungen, Farblisten und den Zustand des Fensters in DIR/Vantorel anstatt im Ordner des Benutzers. DIR muss existieren.</translation>
    </message>
    <message>
        <source>Also load this picker plug-in. Can be given more than once.</source>
        <translation>Lädt auch dieses Plug-in mit einer Farbauswahl. Kann mehrmals angegeben werden.</translation>
    </message>
    <message>
        <source>Print the colour to standard output as #rrggbbaa whenever it changes.</source>
        <translation>Gibt die Farbe bei jeder Änderung als #rrggbbaa auf der Standardausgabe aus.</translation>
    </message>
    <message>
        <source>Pick a colour from the screen, print it as #rrggbb, and exit. Status: 0 picked, 1 cancelled, 3 not possible.</source>
        <translation>Nimmt eine Farbe vom Bildschirm auf, gibt sie als #rrggbb aus und endet. Status: 0 aufgenommen, 1 abgebrochen, 3 nicht möglich.</translation>
    </message>
    <message>
        <source>Like --pick, and copy the colour to the clipboard.</source>
        <translation>Wie --pick, und kopiert die Farbe in die Zwischenablage.</translation>
    </message>
    <message>
        <source>Copy the panel&apos;s colour with its opacity to the clipboard, in the form that the panel&apos;s field shows, print the text, and exit.</source>
        <translation>Kopiert die Farbe des Fensters mit ihrer Deckkraft in die Zwischenablage, in der Form, die das Feld des Fensters zeigt, gibt den Text aus und endet.</translation>
    </message>
    <message>
        <source>Like --copy, in the form with this name in the panel&apos;s menu.</source>
        <translation>Wie --copy, in der Form, die im englischen Menü des Fensters diesen Namen hat.</translation>
    </message>
    <message>
        <source>Let the user choose a colour in a separate panel, print it in the form that a drag out of the panel would carry, and exit. Status: 0 chosen, 1 cancelled, 3 not possible.</source>
        <translation>Lässt in einem eigenen Fenster eine Farbe wählen, gibt sie in der Form aus, die ein Ziehen aus dem Fenster hätte, und endet. Status: 0 gewählt, 1 abgebrochen, 3 nicht möglich.</translation>
    </message>
    <message>
        <source>Start a new panel even if one is already running.</source>
        <translation>Startet ein neues Fenster, auch wenn schon eines läuft.</translation>
    </message>
    <message>
        <source>Start without a window, answer requests over D-Bus, and exit when there are no more. The session bus starts the panel with this option.</source>
        <translation>Startet ohne Fenster, beantwortet Anfragen über D-Bus und endet, wenn keine mehr kommen. Der Sitzungsbus startet das Fenster mit dieser Option.</translation>
    </message>
    <message>
        <source>Show the version and exit.</source>
        <translation>Zeigt die Version und endet.</translation>
    </message>
    <message>
        <source>A colour panel with pages from plug-ins. If a panel is already running, it is shown and carries out COLOR, --color, --pick, --pick-and-copy, --copy and --copy-as.</source>
        <translation>Ein Farbfenster mit Seiten aus Plug-ins. Läuft schon eines, wird es gezeigt und führt COLOR, --color, --pick, --pick-and-copy, --copy und --copy-as aus.</translation>
    </message>
    <message>
        <source>Write JSON, one object per line.</source>
        <translation>Schreibt JSON, ein Objekt je Zeile.</translation>
    </message>
    <message>
        <source>Width and height in points, or in pixels for PNG. The default is 640x480.</source>
        <translation>Breite und Höhe in Punkt, für PNG in Pixeln. Vorgabe ist 640x480.</translation>
    </message>
    <message>
        <source>The name of the list.</source>
        <translation>Der Name der Liste.</translation>
    </message>
    <message>
        <source>The colour to show. With &quot;-&quot;, or without COLOR, colours are read from standard input, one per line.</source>
        <translation>Die Farbe, die gezeigt wird. Mit „-“ oder ohne COLOR werden Farben von der Standardeingabe gelesen, eine je Zeile.</translation>
    </message>
    <message>
        <source>Take the name from this list instead of the list in the settings. With standard input, add the name to each line.</source>
        <translation>Nimmt den Namen aus dieser Liste anstelle der Liste in den Einstellungen. Mit der Standardeingabe wird der Name an jede Zeile angefügt.</translation>
    </message>
    <message>
        <source>Write only the text of this snippet.</source>
        <translation>Schreibt nur den Text dieser Codezeile.</translation>
    </message>
    <message>
        <source>Write hex digits in lower case.</source>
        <translation>Schreibt Hex-Ziffern klein.</translation>
    </message>
    <message>
        <source>Write hex digits in upper case. Without --lowercase or --uppercase, the settings decide.</source>
        <translation>Schreibt Hex-Ziffern groß. Ohne --lowercase oder --uppercase entscheiden die Einstellungen.</translation>
    </message>
    <message>
        <source>Write hex codes without &quot;#&quot;.</source>
        <translation>Schreibt Hex-Codes ohne „#“.</translation>
    </message>
    <message>
        <source>Write hex codes with &quot;#&quot;. Without --pound-sign or --no-pound-sign, the settings decide.</source>
        <translation>Schreibt Hex-Codes mit „#“. Ohne --pound-sign oder --no-pound-sign entscheiden die Einstellungen.</translation>
    </message>
    <message>
        <source>The colour to name; read as for &quot;show&quot;.</source>
        <translation>Die Farbe, die benannt wird; gelesen wie bei „show“.</translation>
    </message>
    <message>
        <source>Take the names from this list instead of the list in the settings.</source>
        <translation>Nimmt die Namen aus dieser Liste anstelle der Liste in den Einstellungen.</translation>
    </message>
    <message>
        <source>Print only the names, one per line.</source>
        <translation>Gibt nur die Namen aus, einen je Zeile.</translation>
    </message>
    <message>
        <source>Write JSON.</source>
        <translation>Schreibt JSON.</translation>
    </message>
    <message>
        <source>A palette file in any format of &quot;export&quot; except svg.</source>
        <translation>Eine Palettendatei in einem Format von „export“ außer svg.</translation>
    </message>
    <message>
        <source>Save the list under this name. Requires a single FILE.</source>
        <translation>Sichert die Liste unter diesem Namen. Braucht eine einzige FILE.</translation>
    </message>
    <message>
        <source>Replace lists of the same name without asking.</source>
        <translation>Ersetzt Listen desselben Namens ohne Rückfrage.</translation>
    </message>
    <message>
        <source>Write to FILE instead of standard output.</source>
        <translation>Schreibt in FILE anstatt auf die Standardausgabe.</translation>
    </message>
    <message>
        <source>Replace files with different contents without asking.</source>
        <translation>Ersetzt Dateien mit anderem Inhalt ohne Rückfrage.</translation>
    </message>
    <message>
        <source>Revert the last publish of the list: restore the files that it replaced and remove those that it created. Files that have changed since are kept.</source>
        <translation>Nimmt die letzte Veröffentlichung der Liste zurück: stellt ersetzte Dateien wieder her und entfernt angelegte. Dateien, die sich seither geändert haben, bleiben.</translation>
    </message>
    <message>
        <source>The name of the list. If it is also the name of a command, put &quot;--&quot; before it.</source>
        <translation>Der Name der Liste. Ist er auch der Name eines Befehls, setzen Sie „--“ davor.</translation>
    </message>
    <message>
        <source>Add palette files to your colour lists.
A list of the same name is replaced only if you agree.</source>
        <translation>Fügt Palettendateien Ihren Farblisten hinzu.
Eine Liste desselben Namens wird nur mit Ihrer Zustimmung ersetzt.</translation>
    </message>
    <message>
        <source>Write a colour list in a format that other programs read.</source>
        <translation>Schreibt eine Farbliste in einem Format, das andere Programme lesen.</translation>
    </message>
    <message>
        <source>Put a colour list into the palette folders of graphics programs.
A palette file is written into your palette folder of every version of GIMP, of Inkscape, Krita and KDE, if the folder exists. A file with different contents is replaced only if you agree.</source>
        <translation>Legt eine Farbliste in die Palettenordner von Grafikprogrammen.
Eine Palettendatei wird in Ihren Palettenordner jeder Version von GIMP, von Inkscape, Krita und KDE geschrieben, sofern es ihn gibt. Eine Datei mit anderem Inhalt wird nur mit Ihrer Zustimmung ersetzt.</translation>
    </message>
    <message>
        <source>The foreground colour, then the background colour.</source>
        <translation>Die Farbe des Vordergrunds, dann die des Hintergrunds.</translation>
    </message>
    <message>
        <source>Number of rings, 2 to 128. The default is the number in the settings.</source>
        <translation>Anzahl der Ringe, 2 bis 128. Vorgabe ist die Zahl in den Einstellungen.</translation>
    </message>
    <message>
        <source>Write SVG to FILE; &quot;-&quot; is standard output.</source>
        <translation>Schreibt SVG in FILE; „-“ ist die Standardausgabe.</translation>
    </message>
    <message>
        <source>Write PNG to FILE; &quot;-&quot; is standard output.</source>
        <translation>Schreibt PNG in FILE; „-“ ist die Standardausgabe.</translation>
    </message>
    <message>
        <source>Copy the colour to the clipboard.</source>
        <translation>Kopiert die Farbe in die Zwischenablage.</translation>
    </message>
    <message>
        <source>The colour to start with.</source>
        <translation>Die Farbe am Anfang.</translation>
    </message>
    <message>
        <source>bash, zsh or fish.</source>
        <translation>bash, zsh oder fish.</translation>
    </message>
    <message>
        <source>Print the completion script of vantorel-panel.</source>
        <translation>Gibt das Vervollständigungs-Skript von vantorel-panel aus.</translation>
    </message>
    <message>
        <source>Print the manual page of vantorel-panel.</source>
        <translation>Gibt die Handbuchseite von vantorel-panel aus.</translation>
    </message>
    <message>
        <source>Print the name of each colour on a line of its own.
If the list has no exact name but CSS Color 4 has one, that name is printed, followed by &quot;(CSS Color 4)&quot;. If neither has, the names of close colours follow a &quot;*&quot;; if no colour is close, the line is &quot;No Match&quot;.</source>
        <translation>Gibt den Namen jeder Farbe auf einer eigenen Zeile aus.
Hat die Liste keinen genauen Namen, wohl aber CSS Color 4, wird dieser ausgegeben, gefolgt von „(CSS Color 4)“. Hat keine einen, folgen nach einem „*“ die Namen naher Farben; ist keine Farbe nah, lautet die Zeile „No Match“.</translation>
    </message>
    <message>
        <source>List all colour lists with their number of colours, name and file.</source>
        <translation>Listet alle Farblisten mit Anzahl der Farben, Namen und Datei auf.</translation>
    </message>
    <message>
        <source>List the colours of a list, or import, export or publish a list.</source>
        <translation>Listet die Farben einer Liste auf, oder übernimmt, exportiert oder veröffentlicht eine Liste.</translation>
    </message>
    <message>
        <source>Print the contrast ratio of two colours and the criteria of WCAG 2.2 that it meets.
The ratio is truncated to two decimals, not rounded.</source>
        <translation>Gibt das Kontrastverhältnis zweier Farben aus und die Kriterien von WCAG 2.2, die es erfüllt.
Das Verhältnis wird auf zwei Stellen abgeschnitten, nicht gerundet.</translation>
    </message>
    <message>
        <source>Draw the colour wheel.</source>
        <translation>Zeichnet das Farbrad.</translation>
    </message>
    <message>
        <source>Draw the palette of a colour list.</source>
        <translation>Zeichnet die Palette einer Farbliste.</translation>
    </message>
    <message>
        <source>Pick a colour from the screen and print it (vantorel-panel).</source>
        <translation>Nimmt eine Farbe vom Bildschirm auf und gibt sie aus (vantorel-panel).</translation>
    </message>
    <message>
        <source>Choose a colour in the colour panel and print it (vantorel-panel).</source>
        <translation>Lässt im Farbfenster eine Farbe wählen und gibt sie aus (vantorel-panel).</translation>
    </message>
    <message>
        <source>Start the colour panel with the options that follow. &quot;panel --help&quot; lists them.</source>
        <translation>Startet das Farbfenster mit den folgenden Optionen. „panel --help“ listet sie auf.</translation>
    </message>
    <message>
        <source>Print a completion script for a shell.
For bash: source &lt;(vantorel completions bash)</source>
        <translation>Gibt ein Vervollständigungs-Skript für eine Shell aus.
Für bash: source &lt;(vantorel completions bash)</translation>
    </message>
    <message>
        <source>Print the manual page, formatted for man.</source>
        <translation>Gibt die Handbuchseite aus, formatiert für man.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Zeigt die Version.</translation>
    </message>
    <message>
        <source>palette of graphics programs</source>
        <translation>Palette von Grafikprogrammen</translation>
    </message>
    <message>
        <source>custom properties</source>
        <translation>CSS-Variablen</translation>
    </message>
    <message>
        <source>variables</source>
        <translation>Variablen</translation>
    </message>
    <message>
        <source>swatch exchange, binary</source>
        <translation>Swatch Exchange, binär</translation>
    </message>
    <message>
        <source>a picture with names</source>
        <translation>ein Bild mit Namen</translation>
    </message>
    <message>
        <source>there is no snippet &quot;%1&quot;</source>
        <translation>es gibt keine Codezeile „%1“</translation>
    </message>
    <message>
        <source>run &quot;vantorel snippets&quot; to list them</source>
        <translation>„vantorel snippets“ listet sie auf</translation>
    </message>
    <message>
        <source>there is no colour list with names</source>
        <translation>es gibt keine Farbliste, nach der Farben benannt werden könnten</translation>
    </message>
    <message>
        <source>choose one with &quot;--list NAME&quot;; run &quot;vantorel lists&quot; to list them</source>
        <translation>wählen Sie eine mit „--list NAME“; „vantorel lists“ listet sie auf</translation>
    </message>
    <message>
        <source>standard input, line %1: %2</source>
        <translation>Standardeingabe, Zeile %1: %2</translation>
    </message>
    <message>
        <source>standard input has %1 more lines that are not colours</source>
        <translation>die Standardeingabe hat %1 weitere Zeilen, die keine Farben sind</translation>
    </message>
    <message>
        <source>give one colour per line</source>
        <translation>geben Sie eine Farbe je Zeile an</translation>
    </message>
    <message>
        <source>the line is longer than 64 KiB</source>
        <translation>die Zeile ist länger als 64 KiB</translation>
    </message>
    <message>
        <source>standard input cannot be read</source>
        <translation>die Standardeingabe lässt sich nicht lesen</translation>
    </message>
    <message>
        <source>give colours as arguments, or redirect standard input from a file or program</source>
        <translation>geben Sie Farben als Argumente an, oder leiten Sie die Standardeingabe aus einer Datei oder einem Programm um</translation>
    </message>
    <message>
        <source>--size cannot be &quot;%1&quot;</source>
        <translation>--size kann nicht „%1“ sein</translation>
    </message>
    <message>
        <source>use a size from 8x8 to 16384x16384, such as 640x480</source>
        <translation>verwenden Sie eine Größe von 8x8 bis 16384x16384, etwa 640x480</translation>
    </message>
    <message>
        <source>use a whole number from %1 to %2</source>
        <translation>verwenden Sie eine ganze Zahl von %1 bis %2</translation>
    </message>
    <message>
        <source>this format is binary and is not written to a terminal</source>
        <translation>dieses Format ist binär und wird nicht auf ein Terminal geschrieben</translation>
    </message>
    <message>
        <source>give a file, or redirect the output</source>
        <translation>geben Sie eine Datei an, oder leiten Sie die Ausgabe um</translation>
    </message>
    <message>
        <source>check that it is a readable file of at most 64 MiB</source>
        <translation>prüfen Sie, ob es eine lesbare Datei von höchstens 64 MiB ist</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: %2</source>
        <translation>„%1“: %2</translation>
    </message>
    <message>
        <source>a list &quot;%1&quot; with different colours already exists</source>
        <translation>es gibt schon eine Liste „%1“ mit anderen Farben</translation>
    </message>
    <message>
        <source>use &quot;--yes&quot; to replace it, or &quot;--name NAME&quot; to choose another name</source>
        <translation>„--yes“ ersetzt sie, „--name NAME“ wählt einen anderen Namen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not imported</source>
        <translation>„%1“ wurde nicht übernommen</translation>
    </message>
    <message>
        <source>use &quot;--name NAME&quot; to choose another name</source>
        <translation>„--name NAME“ wählt einen anderen Namen</translation>
    </message>
    <message>
        <source>the list &quot;%1&quot; cannot be saved</source>
        <translation>die Liste „%1“ lässt sich nicht sichern</translation>
    </message>
    <message>
        <source>check that you can write to your data folder</source>
        <translation>prüfen Sie, ob Sie in Ihren Datenordner schreiben dürfen</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: %2 lines or entries were skipped</source>
        <translation>„%1“: %2 Zeilen oder Einträge wurden ausgelassen</translation>
    </message>
    <message>
        <source>each must contain one colour</source>
        <translation>jede muss eine Farbe enthalten</translation>
    </message>
    <message>
        <source>NAME is missing</source>
        <translation>NAME fehlt</translation>
    </message>
    <message>
        <source>run &quot;vantorel lists&quot; to list the names, or &quot;vantorel list --help&quot; for the commands</source>
        <translation>„vantorel lists“ listet die Namen auf, „vantorel list --help“ die Befehle</translation>
    </message>
    <message>
        <source>--name is given for %1 files</source>
        <translation>--name ist für %1 Dateien angegeben</translation>
    </message>
    <message>
        <source>use it with a single FILE</source>
        <translation>verwenden Sie es mit einer einzigen FILE</translation>
    </message>
    <message>
        <source>--name is empty</source>
        <translation>--name ist leer</translation>
    </message>
    <message>
        <source>give the list a name</source>
        <translation>geben Sie der Liste einen Namen</translation>
    </message>
    <message>
        <source>no output file is given</source>
        <translation>es ist keine Ausgabedatei angegeben</translation>
    </message>
    <message>
        <source>give --svg FILE or --png FILE</source>
        <translation>geben Sie --svg FILE oder --png FILE an</translation>
    </message>
    <message>
        <source>the picture cannot be drawn</source>
        <translation>das Bild lässt sich nicht zeichnen</translation>
    </message>
    <message>
        <source>try a smaller --size</source>
        <translation>versuchen Sie ein kleineres --size</translation>
    </message>
    <message>
        <source>standard output cannot be written (%1)</source>
        <translation>die Standardausgabe lässt sich nicht schreiben (%1)</translation>
    </message>
    <message>
        <source>redirect it to a file with free space, or to a program that reads it</source>
        <translation>leiten Sie sie in eine Datei mit freiem Platz oder an ein Programm, das sie liest</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written</source>
        <translation>„%1“ lässt sich nicht schreiben</translation>
    </message>
    <message>
        <source>check that its folder exists and that you can write to it</source>
        <translation>prüfen Sie, ob der Ordner existiert und ob Sie darin schreiben dürfen</translation>
    </message>
    <message>
        <source>the program vantorel-panel is missing</source>
        <translation>das Programm vantorel-panel fehlt</translation>
    </message>
    <message>
        <source>install it beside vantorel or in a folder of PATH</source>
        <translation>installieren Sie es neben vantorel oder in einem Ordner von PATH</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be run (%2)</source>
        <translation>„%1“ lässt sich nicht ausführen (%2)</translation>
    </message>
    <message>
        <source>reinstall vantorel-panel</source>
        <translation>installieren Sie vantorel-panel neu</translation>
    </message>
    <message>
        <source>the record of published files cannot be read</source>
        <translation>das Verzeichnis der veröffentlichten Dateien lässt sich nicht lesen</translation>
    </message>
    <message>
        <source>check that you can read your data folder</source>
        <translation>prüfen Sie, ob Sie Ihren Datenordner lesen dürfen</translation>
    </message>
    <message>
        <source>the list &quot;%1&quot; has not been published</source>
        <translation>die Liste „%1“ ist nicht veröffentlicht</translation>
    </message>
    <message>
        <source>only lists published with &quot;vantorel list publish&quot; can be undone</source>
        <translation>nur mit „vantorel list publish“ veröffentlichte Listen lassen sich zurücknehmen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has changed since it was published</source>
        <translation>„%1“ hat sich seit der Veröffentlichung geändert</translation>
    </message>
    <message>
        <source>it is kept; remove it yourself if you do not need it</source>
        <translation>die Datei bleibt; entfernen Sie sie selbst, wenn Sie sie nicht brauchen</translation>
    </message>
    <message>
        <source>check that you can write to its folder</source>
        <translation>prüfen Sie, ob Sie in den Ordner schreiben dürfen</translation>
    </message>
    <message>
        <source>the record of published files cannot be written</source>
        <translation>das Verzeichnis der veröffentlichten Dateien lässt sich nicht schreiben</translation>
    </message>
    <message>
        <source>no graphics program has a folder for your palettes</source>
        <translation>kein Grafikprogramm hat einen Ordner für Ihre Paletten</translation>
    </message>
    <message>
        <source>start GIMP, Inkscape or Krita once to create it</source>
        <translation>starten Sie GIMP, Inkscape oder Krita einmal, um ihn anzulegen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be replaced</source>
        <translation>„%1“ lässt sich nicht ersetzen</translation>
    </message>
    <message>
        <source>remove it, or make it a readable file</source>
        <translation>entfernen Sie es, oder machen Sie eine lesbare Datei daraus</translation>
    </message>
    <message>
        <source>&quot;%1&quot; already exists with different contents</source>
        <translation>„%1“ gibt es schon mit anderem Inhalt</translation>
    </message>
    <message>
        <source>use &quot;--yes&quot; to replace it</source>
        <translation>„--yes“ ersetzt die Datei</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has just been changed by another program</source>
        <translation>„%1“ wurde soeben von einem anderen Programm geändert</translation>
    </message>
    <message>
        <source>publish again</source>
        <translation>veröffentlichen Sie noch einmal</translation>
    </message>
    <message>
        <source>the record of published files cannot be written, so no file was published</source>
        <translation>das Verzeichnis der veröffentlichten Dateien lässt sich nicht schreiben, darum wurde nichts veröffentlicht</translation>
    </message>
    <message>
        <source>there is no colour list &quot;%1&quot;</source>
        <translation>es gibt keine Farbliste „%1“</translation>
    </message>
    <message>
        <source>run &quot;vantorel lists&quot; to list them</source>
        <translation>„vantorel lists“ listet sie auf</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>der Speicher reicht nicht</translation>
    </message>
    <message>
        <source>try fewer colours at a time</source>
        <translation>versuchen Sie es mit weniger Farben auf einmal</translation>
    </message>
    <message>
        <source>see &quot;%1 --help&quot;</source>
        <translation>siehe „%1 --help“</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a command</source>
        <translation>„%1“ ist kein Befehl</translation>
    </message>
    <message>
        <source>put it after &quot;%1&quot;</source>
        <translation>setzen Sie es hinter „%1“</translation>
    </message>
    <message>
        <source>&quot;%1&quot; precedes the command</source>
        <translation>„%1“ steht vor dem Befehl</translation>
    </message>
    <message>
        <source>%1 precedes the command</source>
        <translation>%1 steht vor dem Befehl</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no option &quot;%2&quot;</source>
        <translation>„%1“ hat keine Option „%2“</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 nimmt keinen Wert</translation>
    </message>
    <message>
        <source>%1 requires a value</source>
        <translation>%1 braucht einen Wert</translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <translation>%1 ist zweimal angegeben</translation>
    </message>
    <message>
        <source>%1 is required</source>
        <translation>%1 ist erforderlich</translation>
    </message>
    <message>
        <source>%1 cannot be combined with %2</source>
        <translation>%1 lässt sich nicht mit %2 verbinden</translation>
    </message>
    <message>
        <source>the command is missing</source>
        <translation>der Befehl fehlt</translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation>%1 fehlt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is one argument too many</source>
        <translation>„%1“ ist ein Argument zu viel</translation>
    </message>
    <message>
        <source>%1 cannot be &quot;%2&quot;</source>
        <translation>%1 kann nicht „%2“ sein</translation>
    </message>
    <message>
        <source>use %1</source>
        <translation>verwenden Sie %1</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 oder %2</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation>Aufruf: %1</translation>
    </message>
    <message>
        <source>Arguments:</source>
        <translation>Argumente:</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Befehle:</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Optionen:</translation>
    </message>
    <message>
        <source>&quot;%1 COMMAND --help&quot; shows the help of a command.</source>
        <translation>„%1 COMMAND --help“ zeigt die Hilfe zu einem Befehl.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: %2</source>
        <translation>„%1“ lässt sich nicht lesen: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2</source>
        <translation>„%1“ lässt sich nicht schreiben: %2</translation>
    </message>
    <message>
        <source>its arrays and objects are more than %1 deep</source>
        <translation>ihre Arrays und Objekte sind mehr als %1 Ebenen tief</translation>
    </message>
    <message>
        <source>give a list of names and colours</source>
        <translation>geben Sie eine Liste von Namen und Farben an</translation>
    </message>
    <message>
        <source>it is not a JSON colour list</source>
        <translation>es ist keine Farbliste in JSON</translation>
    </message>
    <message>
        <source>it contains no colours</source>
        <translation>es enthält keine Farben</translation>
    </message>
    <message>
        <source>give a file in any format of &quot;export&quot; except svg</source>
        <translation>geben Sie eine Datei in einem Format von „export“ außer svg an</translation>
    </message>
    <message>
        <source>it is a palette without colours</source>
        <translation>es ist eine Palette ohne Farben</translation>
    </message>
    <message>
        <source>give one with rows &quot;R G B NAME&quot;</source>
        <translation>geben Sie eine mit Zeilen „R G B NAME“ an</translation>
    </message>
    <message>
        <source>it is truncated</source>
        <translation>es ist abgeschnitten</translation>
    </message>
    <message>
        <source>give the complete file</source>
        <translation>geben Sie die ganze Datei an</translation>
    </message>
    <message>
        <source>give a file with RGB, CMYK, Lab or grey colours</source>
        <translation>geben Sie eine Datei mit Farben in RGB, CMYK, Lab oder Grau an</translation>
    </message>
    <message>
        <source>pictures cannot be imported</source>
        <translation>Bilder lassen sich nicht übernehmen</translation>
    </message>
    <message>
        <source>give a palette, such as one exported with &quot;--format gpl&quot;</source>
        <translation>geben Sie eine Palette an, etwa eine mit „--format gpl“ ausgegebene</translation>
    </message>
    <message>
        <source>--page: there is no page &quot;%1&quot;</source>
        <translation>--page: es gibt keine Seite „%1“</translation>
    </message>
    <message>
        <source>%1 cannot be combined</source>
        <translation>%1 lassen sich nicht verbinden</translation>
    </message>
    <message>
        <source>COLOR and --color cannot be combined</source>
        <translation>COLOR und --color lassen sich nicht verbinden</translation>
    </message>
    <message>
        <source>--color: %1</source>
        <translation>--color: %1</translation>
    </message>
    <message>
        <source>--size: &quot;%1&quot; is not a size</source>
        <translation>--size: „%1“ ist keine Größe</translation>
    </message>
    <message>
        <source>try 260x340</source>
        <translation>versuchen Sie 260x340</translation>
    </message>
    <message>
        <source>--data: there is no folder &quot;%1&quot;</source>
        <translation>--data: es gibt keinen Ordner „%1“</translation>
    </message>
    <message>
        <source>--screenshot: &quot;%1&quot; cannot be written</source>
        <translation>--screenshot: „%1“ lässt sich nicht schreiben</translation>
    </message>
    <message>
        <source>there is no display (neither WAYLAND_DISPLAY nor DISPLAY is set); --screenshot FILE works without one</source>
        <translation>es gibt keine Anzeige (weder WAYLAND_DISPLAY noch DISPLAY ist gesetzt); --screenshot FILE geht ohne</translation>
    </message>
    <message>
        <source>&quot;%1&quot; already exists: %2 colours</source>
        <translation>„%1“ gibt es schon: %2 Farben</translation>
    </message>
    <message>
        <source>Replace the list &quot;%1&quot;?</source>
        <translation>Die Liste „%1“ ersetzen?</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: %2 colours from %3</source>
        <translation>„%1“: %2 Farben aus %3</translation>
    </message>
    <message>
        <source>restored: %1</source>
        <translation>wiederhergestellt: %1</translation>
    </message>
    <message>
        <source>removed: %1</source>
        <translation>entfernt: %1</translation>
    </message>
    <message>
        <source>already undone: %1</source>
        <translation>schon zurückgenommen: %1</translation>
    </message>
    <message>
        <source>up to date: %1</source>
        <translation>schon aktuell: %1</translation>
    </message>
    <message>
        <source>Replace &quot;%1&quot;, which has different contents?</source>
        <translation>„%1“ mit anderem Inhalt ersetzen?</translation>
    </message>
    <message>
        <source>kept: %1</source>
        <translation>behalten: %1</translation>
    </message>
    <message>
        <source>replaced for %1</source>
        <translation>ersetzt für %1</translation>
    </message>
    <message>
        <source>written for %1</source>
        <translation>geschrieben für %1</translation>
    </message>
    <message>
        <source>%1 [y/N]</source>
        <translation>%1 [j/N]</translation>
    </message>
    <message>
        <source>y</source>
        <translation>j</translation>
    </message>
    <message>
        <source>the list &quot;%1&quot; has just been changed</source>
        <translation>die Liste „%1“ wurde soeben geändert</translation>
    </message>
    <message>
        <source>import once more</source>
        <translation>übernehmen Sie noch einmal</translation>
    </message>
    <message>
        <source>another program is still changing files in &quot;%1&quot;</source>
        <translation>ein anderes Programm ändert noch Dateien in „%1“</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: it is not a regular file</source>
        <translation>„%1“ lässt sich nicht lesen: es ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>standard output cannot be written: %1</source>
        <translation>die Standardausgabe lässt sich nicht schreiben: %1</translation>
    </message>
    <message>
        <source>this colour has no text</source>
        <translation>für diese Farbe gibt es keinen Text</translation>
    </message>
    <message>
        <source>the desktop did not let the panel copy</source>
        <translation>die Arbeitsumgebung hat das Kopieren nicht zugelassen</translation>
    </message>
    <message>
        <source>show the panel and copy there</source>
        <translation>zeigen Sie das Fenster an und kopieren Sie dort</translation>
    </message>
    <message>
        <source>the panel did not answer, and may not have copied the colour</source>
        <translation>das Fenster hat nicht geantwortet und die Farbe vielleicht nicht kopiert</translation>
    </message>
    <message>
        <source>the program that holds the clipboard does not answer</source>
        <translation>das Programm, das die Zwischenablage hält, antwortet nicht</translation>
    </message>
    <message>
        <source>copy again, or close that program</source>
        <translation>kopieren Sie erneut, oder schließen Sie dieses Programm</translation>
    </message>
    <message>
        <source>The user cancelled, a picture could not be written, or there is no display.</source>
        <translation>Der Benutzer hat abgebrochen, ein Bild ließ sich nicht schreiben, oder es gibt keine Anzeige.</translation>
    </message>
    <message>
        <source>The command line is wrong.</source>
        <translation>Die Befehlszeile ist falsch.</translation>
    </message>
    <message>
        <source>Picking, choosing or copying is not possible; the reason is reported on standard error.</source>
        <translation>Aufnehmen, Wählen oder Kopieren ist nicht möglich; der Grund wird auf der Standardfehlerausgabe gemeldet.</translation>
    </message>
    <message>
        <source>The user&apos;s settings, colour lists and plug-ins. If the variable is not set, the folder is ~/.local/share/Vantorel/.</source>
        <translation>Einstellungen, Farblisten und Plug-ins des Benutzers. Ist die Variable nicht gesetzt, ist der Ordner ~/.local/share/Vantorel/.</translation>
    </message>
    <message>
        <source>An error, such as a wrong option, a text that is not a colour, or a file that cannot be read. It is reported on standard error.</source>
        <translation>Ein Fehler, etwa eine falsche Option, ein Text, der keine Farbe ist, oder eine Datei, die sich nicht lesen lässt. Er wird auf der Standardfehlerausgabe gemeldet.</translation>
    </message>
    <message>
        <source>&quot;choose&quot; or &quot;pick&quot; is not possible, for example without a display.</source>
        <translation>„choose“ oder „pick“ ist nicht möglich, zum Beispiel ohne Anzeige.</translation>
    </message>
    <message>
        <source>If it is &quot;truecolor&quot; or &quot;24bit&quot;, a terminal shows a patch of each colour.</source>
        <translation>Ist der Wert „truecolor“ oder „24bit“, zeigt ein Terminal ein Feld mit jeder Farbe.</translation>
    </message>
    <message>
        <source>If it is set and not empty, no patches are shown.</source>
        <translation>Ist sie gesetzt und nicht leer, werden keine Farbfelder gezeigt.</translation>
    </message>
    <message>
        <source>The folder that contains settings and colour lists, instead of ~/.local/share.</source>
        <translation>Der Ordner mit Einstellungen und Farblisten, anstelle von ~/.local/share.</translation>
    </message>
    <message>
        <source>The folder that contains the palettes of graphics programs, instead of ~/.config.</source>
        <translation>Der Ordner mit den Paletten von Grafikprogrammen, anstelle von ~/.config.</translation>
    </message>
    <message>
        <source>The settings of the colour picker. They are never changed.</source>
        <translation>Die Einstellungen des Farbwählers. Sie werden nie geändert.</translation>
    </message>
    <message>
        <source>Your colour lists.</source>
        <translation>Ihre Farblisten.</translation>
    </message>
    <message>
        <source>The files that &quot;list publish&quot; replaced, for its option --undo.</source>
        <translation>Die Dateien, die „list publish“ ersetzt hat, für dessen Option --undo.</translation>
    </message>
    <message>
        <source>&quot;pick&quot;, &quot;choose&quot; and &quot;panel&quot; exit with the status of vantorel-panel.</source>
        <translation>„pick“, „choose“ und „panel“ enden mit dem Status von vantorel-panel.</translation>
    </message>
    <message>
        <source>User Commands</source>
        <translation>Dienstprogramme für Benutzer</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>BEZEICHNUNG</translation>
    </message>
    <message>
        <source>SYNOPSIS</source>
        <translation>ÜBERSICHT</translation>
    </message>
    <message>
        <source>DESCRIPTION</source>
        <translation>BESCHREIBUNG</translation>
    </message>
    <message>
        <source>OPTIONS</source>
        <translation>OPTIONEN</translation>
    </message>
    <message>
        <source>Show help. After a command, show the help of that command.</source>
        <translation>Zeigt die Hilfe, nach einem Befehl die Hilfe zu diesem.</translation>
    </message>
    <message>
        <source>COMMANDS</source>
        <translation>BEFEHLE</translation>
    </message>
    <message>
        <source>SEE ALSO</source>
        <translation>SIEHE AUCH</translation>
    </message>
    <message>
        <source>EXIT STATUS</source>
        <translation>EXIT-STATUS</translation>
    </message>
    <message>
        <source>FILES</source>
        <translation>DATEIEN</translation>
    </message>
    <message>
        <source>a colour panel with pages from plug-ins</source>
        <translation>ein Farbfenster mit Seiten aus Plug-ins</translation>
    </message>
    <message>
        <source>ENVIRONMENT</source>
        <translation>UMGEBUNGSVARIABLEN</translation>
    </message>
    <message>
        <source>EXAMPLES</source>
        <translation>BEISPIELE</translation>
    </message>
    <message>
        <source>colours for people who write CSS and code</source>
        <translation>Farben für Menschen, die CSS und Code schreiben</translation>
    </message>
    <message>
        <source>The command succeeded.</source>
        <translation>Der Befehl war erfolgreich.</translation>
    </message>
    <message>
        <source>a part of it is missing</source>
        <translation>ein Teil davon fehlt</translation>
    </message>
    <message>
        <source>install it again</source>
        <translation>installieren Sie es neu</translation>
    </message>
    <message>
        <source>qt, gtk or gimp. Without PROGRAMS, all that are installed.</source>
        <translation>qt, gtk oder gimp. Ohne PROGRAMS alle, die installiert sind.</translation>
    </message>
    <message>
        <source>Print whether the page is in the dialogs; so does the command without an option.</source>
        <translation>Ausgeben, ob die Seite in den Dialogen ist; das tut auch der Befehl ohne Option.</translation>
    </message>
    <message>
        <source>Add the page to the colour dialogs.</source>
        <translation>Die Seite zu den Farbdialogen hinzufügen.</translation>
    </message>
    <message>
        <source>Take the page out of the colour dialogs, and remove all that --on has written.</source>
        <translation>Die Seite aus den Farbdialogen nehmen und alles entfernen, was --on geschrieben hat.</translation>
    </message>
    <message>
        <source>Add the colour page to the colour dialogs of other programs.
Programs of Qt and of GTK 3, and GIMP, then show the page in their own colour dialogs. Nothing is changed before you use --on, which changes your own settings only.</source>
        <translation>Die Farbseite zu den Farbdialogen anderer Programme hinzufügen.
Programme mit Qt und GTK 3 sowie GIMP zeigen die Seite dann in ihren eigenen Farbdialogen. Ohne --on wird nichts geändert, und --on ändert nur Ihre eigenen Einstellungen.</translation>
    </message>
    <message>
        <source>The plug-ins of &quot;dialogs --on&quot;, and what its option --off restores.</source>
        <translation>Die Plug-ins von „dialogs --on“ und was die Option --off wiederherstellt.</translation>
    </message>
    <message>
        <source>The environment in which programs find these plug-ins.</source>
        <translation>Die Umgebung, in der Programme diese Plug-ins finden.</translation>
    </message>
    <message>
        <source>GTK&apos;s list of modules, to which ours is added.</source>
        <translation>Die Modulliste von GTK, in die unser Modul eingetragen wird.</translation>
    </message>
    <message>
        <source>The programs whose dialogs stay as they are, one per line.</source>
        <translation>Die Programme, deren Dialoge bleiben, wie sie sind, eines je Zeile.</translation>
    </message>
    <message>
        <source>no page for the dialogs of other programs is installed</source>
        <translation>es ist keine Seite für die Dialoge anderer Programme installiert</translation>
    </message>
    <message>
        <source>install the package for the programs</source>
        <translation>installieren Sie das Paket für die Programme</translation>
    </message>
    <message>
        <source>you have no folder for your settings</source>
        <translation>Sie haben keinen Ordner für Ihre Einstellungen</translation>
    </message>
    <message>
        <source>set HOME</source>
        <translation>setzen Sie HOME</translation>
    </message>
    <message>
        <source>the libraries of Vantorel are not beside this program</source>
        <translation>die Bibliotheken von Vantorel liegen nicht neben diesem Programm</translation>
    </message>
    <message>
        <source>use the installed program</source>
        <translation>verwenden Sie das installierte Programm</translation>
    </message>
    <message>
        <source>%1: not installed</source>
        <translation>%1: nicht installiert</translation>
    </message>
    <message>
        <source>%1: off</source>
        <translation>%1: aus</translation>
    </message>
    <message>
        <source>%1: off; start it once, then turn it on</source>
        <translation>%1: aus; starten Sie es einmal und schalten Sie dann ein</translation>
    </message>
    <message>
        <source>%1: on</source>
        <translation>%1: ein</translation>
    </message>
    <message>
        <source>%1: on after your next login</source>
        <translation>%1: ein, ab der nächsten Anmeldung</translation>
    </message>
    <message>
        <source>%1: on after your next login, because this desktop sets its modules itself</source>
        <translation>%1: ein, ab der nächsten Anmeldung, weil diese Arbeitsumgebung die Module selbst festlegt</translation>
    </message>
    <message>
        <source>%1: on, but for another version; turn it on again</source>
        <translation>%1: ein, aber für eine andere Version; schalten Sie es noch einmal ein</translation>
    </message>
    <message>
        <source>%1: off; to remove the rest, turn it off again after your next login</source>
        <translation>%1: aus; schalten Sie nach der nächsten Anmeldung noch einmal aus, um den Rest zu entfernen</translation>
    </message>
    <message>
        <source>another program is changing the colour dialogs</source>
        <translation>ein anderes Programm ändert gerade die Farbdialoge</translation>
    </message>
    <message>
        <source>try again</source>
        <translation>versuchen Sie es noch einmal</translation>
    </message>
    <message>
        <source>the page for %1 is not installed</source>
        <translation>die Seite für %1 ist nicht installiert</translation>
    </message>
    <message>
        <source>install the package for it</source>
        <translation>installieren Sie das Paket dafür</translation>
    </message>
    <message>
        <source>GIMP has no folder for your modules</source>
        <translation>GIMP hat keinen Ordner für Ihre Module</translation>
    </message>
    <message>
        <source>start GIMP once to create it</source>
        <translation>starten Sie GIMP einmal, um ihn anzulegen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a character that the list of plug-ins of a desktop cannot have</source>
        <translation>„%1“ enthält ein Zeichen, das in der Plug-in-Liste einer Arbeitsumgebung nicht vorkommen kann</translation>
    </message>
    <message>
        <source>use a data folder without : &quot; &apos; \ $ and `</source>
        <translation>verwenden Sie einen Datenordner ohne : &quot; &apos; \ $ und `</translation>
    </message>
    <message>
        <source>make it a readable file, or remove it</source>
        <translation>machen Sie es zu einer lesbaren Datei oder entfernen Sie es</translation>
    </message>
    <message>
        <source>Which of its two colours light-dark() stands for: &quot;light&quot; or &quot;dark&quot;.</source>
        <translation>Für welche ihrer beiden Farben light-dark() steht: „light“ oder „dark“.</translation>
    </message>
    <message>
        <source>clamp() needs 3 values and has %1</source>
        <translation>clamp() braucht 3 Werte und hat %1</translation>
    </message>
    <message>
        <source>A calculation needs spaces on both sides of &quot;%1&quot;</source>
        <translation>In einer Berechnung gehören Leerzeichen auf beide Seiten von „%1“</translation>
    </message>
    <message>
        <source>A calculation can divide only by a number</source>
        <translation>Eine Berechnung kann nur durch eine Zahl teilen</translation>
    </message>
    <message>
        <source>A calculation can multiply only by a number</source>
        <translation>Eine Berechnung kann nur mit einer Zahl malnehmen</translation>
    </message>
    <message>
        <source>The calculation is not closed</source>
        <translation>Die Berechnung ist nicht geschlossen</translation>
    </message>
    <message>
        <source>A calculation needs a value before &quot;%1&quot;</source>
        <translation>In der Berechnung fehlt ein Wert vor „%1“</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not stand for a number in a calculation</source>
        <translation>„%1“ steht in einer Berechnung für keine Zahl</translation>
    </message>
    <message>
        <source>write the number</source>
        <translation>schreiben Sie die Zahl</translation>
    </message>
    <message>
        <source>A calculation cannot mix numbers, percentages and angles</source>
        <translation>Eine Berechnung kann Zahlen, Prozente und Winkel nicht mischen</translation>
    </message>
    <message>
        <source>write all values in one of them</source>
        <translation>schreiben Sie alle Werte in einer dieser Arten</translation>
    </message>
    <message>
        <source>The value of %1() depends on the page that uses it</source>
        <translation>Der Wert von %1() hängt von der Seite ab, die ihn verwendet</translation>
    </message>
    <message>
        <source>write the value itself</source>
        <translation>schreiben Sie den Wert selbst</translation>
    </message>
    <message>
        <source>The %1 of %2 must be %3, not the result of this %4</source>
        <translation>Der Wert für %1 von %2 muss %3 sein, nicht das Ergebnis dieses %4</translation>
    </message>
    <message>
        <source>The function is not closed</source>
        <translation>Die Funktion ist nicht geschlossen</translation>
    </message>
    <message>
        <source>A comma is missing before &quot;%1&quot;</source>
        <translation>Vor „%1“ fehlt ein Komma</translation>
    </message>
    <message>
        <source>color-mix() must begin with &quot;in&quot; and a colour space</source>
        <translation>color-mix() muss mit „in“ und einem Farbraum beginnen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a colour space of color-mix()</source>
        <translation>„%1“ ist kein Farbraum von color-mix()</translation>
    </message>
    <message>
        <source>write a space of color(), or hsl, hwb, lab, lch, oklab or oklch</source>
        <translation>schreiben Sie einen Farbraum von color() oder hsl, hwb, lab, lch, oklab oder oklch</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a way around the circle of hues</source>
        <translation>„%1“ ist kein Weg um den Farbkreis</translation>
    </message>
    <message>
        <source>write shorter, longer, increasing or decreasing hue</source>
        <translation>schreiben Sie shorter, longer, increasing oder decreasing hue</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs a colour space with a hue</source>
        <translation>„%1“ braucht einen Farbraum mit Farbton</translation>
    </message>
    <message>
        <source>use hsl, hwb, lch or oklch</source>
        <translation>verwenden Sie hsl, hwb, lch oder oklch</translation>
    </message>
    <message>
        <source>The word &quot;hue&quot; is missing before &quot;%1&quot;</source>
        <translation>Vor „%1“ fehlt das Wort „hue“</translation>
    </message>
    <message>
        <source>The share of a colour must be a percentage</source>
        <translation>Der Anteil einer Farbe muss ein Prozentwert sein</translation>
    </message>
    <message>
        <source>The share of a colour must be from 0% to 100%, not &quot;%1&quot;</source>
        <translation>Der Anteil einer Farbe muss zwischen 0% und 100% liegen, nicht bei „%1“</translation>
    </message>
    <message>
        <source>color-mix() mixes 0% of both colours</source>
        <translation>color-mix() mischt 0% beider Farben</translation>
    </message>
    <message>
        <source>The colour of %1() depends on the theme of the page</source>
        <translation>Die Farbe von %1() hängt vom Farbschema der Seite ab</translation>
    </message>
    <message>
        <source>write one of its two colours</source>
        <translation>schreiben Sie eine ihrer beiden Farben</translation>
    </message>
    <message>
        <source>use rgb(), hsl(), hwb(), lab(), lch(), oklab(), oklch(), color(), color-mix() or light-dark()</source>
        <translation>verwenden Sie rgb(), hsl(), hwb(), lab(), lch(), oklab(), oklch(), color(), color-mix() oder light-dark()</translation>
    </message>
    <message>
        <source>The parentheses are nested too deep</source>
        <translation>Die Klammern sind zu tief verschachtelt</translation>
    </message>
    <message>
        <source>nest at most %1</source>
        <translation>verschachteln Sie höchstens %1</translation>
    </message>
    <message>
        <source>The colour to convert; read as for &quot;show&quot;.</source>
        <translation>Die umzuwandelnde Farbe; gelesen wie bei „show“.</translation>
    </message>
    <message>
        <source>The form to write: &quot;hex&quot;, the name of a function such as &quot;oklch&quot;, or a colour space of color() such as &quot;display-p3&quot;.</source>
        <translation>Die Form, die geschrieben wird: „hex“, der Name einer Funktion wie „oklch“ oder ein Farbraum von color() wie „display-p3“.</translation>
    </message>
    <message>
        <source>Write each colour in another form of CSS, on a line of its own.
hex, rgb, hsl and hwb hold sRGB only, so other colours are mapped as CSS prescribes. All other forms keep colours as they are.</source>
        <translation>Jede Farbe in einer anderen Form von CSS schreiben, je in eine Zeile.
hex, rgb, hsl und hwb fassen nur sRGB; andere Farben werden abgebildet, wie CSS es vorschreibt. Alle anderen Formen lassen Farben, wie sie sind.</translation>
    </message>
    <message>
        <source>Look of the window: auto (light or dark as the desktop is), light, dark, contrast (white on black), or desktop (the desktop&apos;s own colours and controls). Without the option the preferences decide.</source>
        <translation>Aussehen des Fensters: auto (hell oder dunkel wie der Desktop), light, dark, contrast (Weiß auf Schwarz) oder desktop (Farben und Bedienelemente des Desktops). Ohne die Option entscheiden die Einstellungen.</translation>
    </message>
    <message>
        <source>The preferences of the panel. If the variable is not set, the folder is ~/.config/Vantorel/.</source>
        <translation>Die Einstellungen des Fensters. Ist die Variable nicht gesetzt, ist der Ordner ~/.config/Vantorel/.</translation>
    </message>
    <message>
        <source>The form to write, as for &quot;convert&quot;. The default is hex.</source>
        <translation>Die Form, die geschrieben wird, wie bei „convert“. Voreingestellt ist hex.</translation>
    </message>
    <message>
        <source>The colour space to mix in, by its name in color-mix(). The default is oklab.</source>
        <translation>Der Farbraum, in dem gemischt wird, mit seinem Namen in color-mix(). Voreingestellt ist oklab.</translation>
    </message>
    <message>
        <source>Which way around the circle hues are mixed: shorter (the default), longer, increasing or decreasing.</source>
        <translation>In welcher Richtung Farbtöne um den Kreis gemischt werden: shorter (voreingestellt), longer, increasing oder decreasing.</translation>
    </message>
    <message>
        <source>The colour to mix in.</source>
        <translation>Die Farbe, die beigemischt wird.</translation>
    </message>
    <message>
        <source>The colours to mix it with; read as for &quot;show&quot;.</source>
        <translation>Die Farben, mit denen sie gemischt wird; gelesen wie bei „show“.</translation>
    </message>
    <message>
        <source>The share of BASE, from 0 to 1, or as a percentage. The default is 0.5.</source>
        <translation>Der Anteil von BASE, von 0 bis 1 oder in Prozent. Voreingestellt ist 0.5.</translation>
    </message>
    <message>
        <source>The colours of the gradient, at least two; read as for &quot;show&quot;.</source>
        <translation>Die Farben des Verlaufs, mindestens zwei; gelesen wie bei „show“.</translation>
    </message>
    <message>
        <source>How many colours to write, with the first and the last. The default is 10.</source>
        <translation>Wie viele Farben geschrieben werden, mit der ersten und der letzten. Voreingestellt ist 10.</translation>
    </message>
    <message>
        <source>How much, from 0 to 1, or as a percentage.</source>
        <translation>Wie viel, von 0 bis 1 oder in Prozent.</translation>
    </message>
    <message>
        <source>The colours to change; read as for &quot;show&quot;.</source>
        <translation>Die Farben, die geändert werden; gelesen wie bei „show“.</translation>
    </message>
    <message>
        <source>The angle in degrees; negative ones turn back.</source>
        <translation>Der Winkel in Grad; negative drehen zurück.</translation>
    </message>
    <message>
        <source>The colour space to compute in: hsl (the default), oklch or lch. In oklch, equal amounts look equal, and colours outside sRGB are kept.</source>
        <translation>Der Farbraum, in dem gerechnet wird: hsl (voreingestellt), oklch oder lch. In oklch wirken gleiche Schritte gleich groß, und Farben außerhalb von sRGB bleiben erhalten.</translation>
    </message>
    <message>
        <source>Mix a colour with others, and write each result on a line of its own.</source>
        <translation>Mischt eine Farbe mit anderen und schreibt jedes Ergebnis in eine eigene Zeile.</translation>
    </message>
    <message>
        <source>Write the colours of an even gradient through the given colours, one per line.</source>
        <translation>Schreibt die Farben eines gleichmäßigen Verlaufs durch die Farben, eine je Zeile.</translation>
    </message>
    <message>
        <source>Add to the lightness of each colour.</source>
        <translation>Erhöht die Helligkeit jeder Farbe.</translation>
    </message>
    <message>
        <source>Subtract from the lightness of each colour.</source>
        <translation>Verringert die Helligkeit jeder Farbe.</translation>
    </message>
    <message>
        <source>Add to the saturation of each colour.
A grey has no hue to saturate, and stays grey.</source>
        <translation>Erhöht die Sättigung jeder Farbe.
Ein Grau hat keinen Farbton, der sich sättigen ließe, und bleibt grau.</translation>
    </message>
    <message>
        <source>Subtract from the saturation of each colour.</source>
        <translation>Verringert die Sättigung jeder Farbe.</translation>
    </message>
    <message>
        <source>Turn the hue of each colour.</source>
        <translation>Dreht den Farbton jeder Farbe.</translation>
    </message>
    <message>
        <source>Write the complement of each colour, whose hue is turned by 180 degrees.</source>
        <translation>Schreibt die Komplementärfarbe jeder Farbe; ihr Farbton ist um 180 Grad gedreht.</translation>
    </message>
    <message>
        <source>a gradient needs at least two colours</source>
        <translation>ein Verlauf braucht mindestens zwei Farben</translation>
    </message>
    <message>
        <source>give its first and its last colour</source>
        <translation>geben Sie die erste und die letzte an</translation>
    </message>
    <message>
        <source>use a number from 0 to 1, or a percentage such as 20%</source>
        <translation>verwenden Sie eine Zahl von 0 bis 1 oder einen Prozentwert wie 20%</translation>
    </message>
    <message>
        <source>use a number of degrees, such as 90 or -22.5</source>
        <translation>verwenden Sie eine Zahl von Grad wie 90 oder -22.5</translation>
    </message>
    <message>
        <source>The colours to make scales of; read as for &quot;show&quot;.</source>
        <translation>Die Farben, von denen Reihen gebildet werden; gelesen wie bei „show“.</translation>
    </message>
    <message>
        <source>What to write: steps (the default), tints towards white, shades towards black, or tones towards grey.</source>
        <translation>Was geschrieben wird: steps (Stufen, voreingestellt), tints (zu Weiß hin), shades (zu Schwarz hin) oder tones (zu Grau hin).</translation>
    </message>
    <message>
        <source>How many tints, shades or tones to write, the colour first. The default is 10.</source>
        <translation>Wie viele davon bei tints, shades oder tones geschrieben werden, die Farbe zuerst. Voreingestellt ist 10.</translation>
    </message>
    <message>
        <source>How many colours to write, 1 to 1000.</source>
        <translation>Wie viele Farben geschrieben werden, 1 bis 1000.</translation>
    </message>
    <message>
        <source>Colours to begin with, which count and are written first. With &quot;-&quot;, they are read from standard input.</source>
        <translation>Farben, mit denen begonnen wird; sie zählen mit und werden zuerst geschrieben. Mit „-“ werden sie von der Standardeingabe gelesen.</translation>
    </message>
    <message>
        <source>The colours to sort; read as for &quot;show&quot;.</source>
        <translation>Die Farben, die sortiert werden; gelesen wie bei „show“.</translation>
    </message>
    <message>
        <source>What to sort by: hue (the default), lightness or chroma in OkLCh, luminance, contrast with white, or the name of the nearest colour of the list.</source>
        <translation>Wonach sortiert wird: hue (Farbton, voreingestellt), lightness (Helligkeit) oder chroma (Buntheit) in OkLCh, luminance (Leuchtdichte), contrast (Kontrast zu Weiß) oder name (Name der nächsten Farbe der Liste).</translation>
    </message>
    <message>
        <source>Write the largest first.</source>
        <translation>Schreibt die größten zuerst.</translation>
    </message>
    <message>
        <source>The colour to look for; read as for &quot;show&quot;.</source>
        <translation>Die Farbe, die gesucht wird; gelesen wie bei „show“.</translation>
    </message>
    <message>
        <source>Look in this list instead of the list in the settings.</source>
        <translation>Sucht in dieser Liste statt in der Liste der Einstellungen.</translation>
    </message>
    <message>
        <source>deuteranopia (no green cones), protanopia (no red ones), tritanopia (no blue ones) or grey (luminance only).</source>
        <translation>deuteranopia (ohne grüne Zapfen), protanopia (ohne rote), tritanopia (ohne blaue) oder grey (nur Leuchtdichte).</translation>
    </message>
    <message>
        <source>The colours to look at; read as for &quot;show&quot;.</source>
        <translation>Die Farben, die betrachtet werden; gelesen wie bei „show“.</translation>
    </message>
    <message>
        <source>Write the scale of each colour, from nearly white to nearly black.
Its eleven steps are known as 50, 100, 200 to 900, and 950. Their lightness in OkLCh is evenly spaced on both sides of the colour, which is one of them.</source>
        <translation>Schreibt die Reihe jeder Farbe, von fast weiß bis fast schwarz.
Ihre elf Stufen heißen 50, 100, 200 bis 900 und 950. Ihre Helligkeit in OkLCh ist beiderseits der Farbe, die eine davon ist, gleichmäßig verteilt.</translation>
    </message>
    <message>
        <source>Write colours that differ as much as possible.
They can be seen on black and on white, and are the same each time.</source>
        <translation>Schreibt Farben, die sich möglichst stark unterscheiden.
Sie sind auf Schwarz und auf Weiß zu sehen und jedes Mal dieselben.</translation>
    </message>
    <message>
        <source>Sort colours.
Colours with equal keys stay in order. Greys have no hue, and precede all others.</source>
        <translation>Sortiert Farben.
Gleichrangige Farben behalten ihre Reihenfolge. Grautöne haben keinen Farbton und kommen vor allen anderen.</translation>
    </message>
    <message>
        <source>Write the nearest colour of a list and its name, separated by a tab.
The difference is deltaE OK of CSS Color 4, the distance in Oklab.</source>
        <translation>Schreibt die nächste Farbe einer Liste und ihren Namen, getrennt durch einen Tabulator.
Der Unterschied ist deltaE OK aus CSS Color 4, der Abstand in Oklab.</translation>
    </message>
    <message>
        <source>Write how each colour looks to people who do not see all colours.</source>
        <translation>Schreibt, wie jede Farbe für Menschen aussieht, die nicht alle Farben sehen.</translation>
    </message>
    <message>
        <source>a scale always has %1 colours</source>
        <translation>eine Reihe hat immer %1 Farben</translation>
    </message>
    <message>
        <source>leave out --number, or add --kind tints, shades or tones</source>
        <translation>lassen Sie --number weg, oder fügen Sie --kind tints, shades oder tones hinzu</translation>
    </message>
    <message>
        <source>the list &quot;%1&quot; has no colours</source>
        <translation>die Liste „%1“ hat keine Farben</translation>
    </message>
    <message>
        <source>choose another one with &quot;--list NAME&quot;</source>
        <translation>wählen Sie mit „--list NAME“ eine andere</translation>
    </message>
    <message>
        <source>The lightness, from 0 to 1, or as a percentage.</source>
        <translation>Die Helligkeit, von 0 bis 1 oder in Prozent.</translation>
    </message>
    <message>
        <source>The colour space of the lightness: hsl (the default), oklch or lch.</source>
        <translation>Der Farbraum der Helligkeit: hsl (voreingestellt), oklch oder lch.</translation>
    </message>
    <message>
        <source>Write the grey of a lightness.</source>
        <translation>Schreibt das Grau einer Helligkeit.</translation>
    </message>
    <message>
        <source>Show a colour in every form, with its name and your snippets.
Colours on standard input are read one per line. For each, one line is written: the hex code, a tab and the rgb() text; --list adds a tab and the name. Empty lines are skipped. A line that is not a colour is reported on standard error, and the following lines are still read.</source>
        <translation>Zeigt eine Farbe in jeder Form, mit Namen und Ihren Codezeilen.
Farben auf der Standardeingabe werden zeilenweise gelesen. Für jede wird eine Zeile geschrieben: der Hex-Code, ein Tabulator und der rgb()-Text; --list fügt einen Tabulator und den Namen an. Leere Zeilen werden übergangen. Eine Zeile, die keine Farbe ist, wird auf der Standardfehlerausgabe gemeldet, und die folgenden werden noch gelesen.</translation>
    </message>
    <message>
        <source>List the snippets with their formats.
Those of the settings come first, then those of your own file, then those that ship with the program. A line that a snippet writes is read as a colour. If some lines of a snippet cannot be read as the colour that was written, the last column says why.</source>
        <translation>Listet die Codezeilen mit ihren Formaten auf.
Zuerst kommen die der Einstellungen, dann die Ihrer eigenen Datei, dann die mitgelieferten. Eine Zeile, die so geschrieben wurde, wird als Farbe gelesen. Wenn manche Zeilen nicht als die Farbe gelesen werden können, die geschrieben wurde, sagt die letzte Spalte, warum.</translation>
    </message>
    <message>
        <source>Your own snippets, in the form of those in the settings.</source>
        <translation>Ihre eigenen Codezeilen, in der Form der Codezeilen in den Einstellungen.</translation>
    </message>
    <message>
        <source>Colours for people who write CSS and code.
A COLOR is any form of CSS Color 5 (&quot;#ff8000&quot;, &quot;rgb(255 128 0)&quot;, &quot;oklch(70% 0.1 50)&quot;, &quot;orange&quot;), a text that the colour picker accepts (&quot;ff8000&quot;, &quot;RGB(255, 128, 0);&quot;), a line of code that a snippet writes (&quot;Color(0xffff8000)&quot;), or a name of the colour list.
Settings, snippets and colour lists are shared with the colour picker.</source>
        <translation>Farben für Menschen, die CSS und Code schreiben.
Eine COLOR ist jede Form von CSS Color 5 („#ff8000“, „rgb(255 128 0)“, „oklch(70% 0.1 50)“, „orange“), ein Text, den der Farbwähler annimmt („ff8000“, „RGB(255, 128, 0);“), eine der Codezeilen („Color(0xffff8000)“) oder ein Name der Farbliste.
Einstellungen, Codezeilen und Farblisten sind dieselben wie im Farbwähler.</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: there is already a snippet &quot;%2&quot; in the settings</source>
        <translation>„%1“: In den Einstellungen gibt es schon eine Codezeile „%2“</translation>
    </message>
    <message>
        <source>give it another name</source>
        <translation>geben Sie ihr einen anderen Namen</translation>
    </message>
    <message>
        <source>write it as { NameSnippet = &quot;...&quot;; FormatSnippet = &quot;...&quot;; VarsSnippet = ...; }</source>
        <translation>schreiben Sie { NameSnippet = &quot;...&quot;; FormatSnippet = &quot;...&quot;; VarsSnippet = ...; }</translation>
    </message>
    <message>
        <source>&quot;%1&quot;, entry %2, has no %3</source>
        <translation>„%1“, Eintrag %2: %3 fehlt</translation>
    </message>
    <message>
        <source>&quot;%1&quot;, entry %2: there is no variable form &quot;%3&quot;</source>
        <translation>„%1“, Eintrag %2: Es gibt keine Variablenform „%3“</translation>
    </message>
    <message>
        <source>use rgbaFloats, rgbFloats, rgbFixedAlphaFloat, rgbFixed, rgbaFixed, rgbPackedInt or rgbaPackedInt</source>
        <translation>verwenden Sie rgbaFloats, rgbFloats, rgbFixedAlphaFloat, rgbFixed, rgbaFixed, rgbPackedInt oder rgbaPackedInt</translation>
    </message>
    <message>
        <source>&quot;%1&quot;, entry %2: there is already a snippet &quot;%3&quot;</source>
        <translation>„%1“, Eintrag %2: Es gibt schon eine Codezeile „%3“</translation>
    </message>
    <message>
        <source>&quot;%1&quot;, line %2: this is not a property list</source>
        <translation>„%1“, Zeile %2: Das ist keine Property-Liste</translation>
    </message>
    <message>
        <source>compare this line and the one before it with the examples in the manual</source>
        <translation>vergleichen Sie diese Zeile und die davor mit den Beispielen im Handbuch</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no list of snippets</source>
        <translation>„%1“ hat keine Liste von Codezeilen</translation>
    </message>
    <message>
        <source>put the snippets into round brackets, separated by commas</source>
        <translation>setzen Sie die Codezeilen in runde Klammern, durch Kommas getrennt</translation>
    </message>
    <message>
        <source>&quot;%1&quot;, entry %2, is not a snippet</source>
        <translation>„%1“, Eintrag %2: Das ist keine Codezeile</translation>
    </message>
    <message>
        <source>opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>the colour</source>
        <translation>die Farbe</translation>
    </message>
    <message>
        <source>the format is longer than %1 characters</source>
        <translation>das Format ist länger als %1 Zeichen</translation>
    </message>
    <message>
        <source>there is no variable form &quot;%1&quot;</source>
        <translation>es gibt keine Variablenform „%1“</translation>
    </message>
    <message>
        <source>%1 is not in the format</source>
        <translation>im Format fehlt: %1</translation>
    </message>
    <message>
        <source>%1 is written as a character</source>
        <translation>als Zeichen geschrieben: %1</translation>
    </message>
    <message>
        <source>%1 is written without decimals</source>
        <translation>ohne Nachkommastellen geschrieben: %1</translation>
    </message>
    <message>
        <source>%1 is cut off</source>
        <translation>abgeschnitten: %1</translation>
    </message>
    <message>
        <source>%1 is written without its highest bits</source>
        <translation>ohne die höchsten Bits geschrieben: %1</translation>
    </message>
    <message>
        <source>%1 is not separated from what follows, so that some lines have two meanings</source>
        <translation>nicht vom Folgenden getrennt, sodass manche Zeilen zwei Bedeutungen haben: %1</translation>
    </message>
    <message>
        <source>%1 has too few digits to tell neighbouring values apart</source>
        <translation>zu wenige Stellen, um benachbarte Werte zu unterscheiden: %1</translation>
    </message>
    <message>
        <source>an opacity of 0 is lost with the leading zeros, which are not written</source>
        <translation>eine Deckkraft von 0 geht mit den führenden Nullen verloren, die nicht geschrieben werden</translation>
    </message>
    <message>
        <source>the line has no text of its own, so it is read only where it is alone</source>
        <translation>die Zeile hat keinen eigenen Text und wird daher nur gelesen, wo sie allein steht</translation>
    </message>
    <message>
        <source>a line can be one of &quot;%1&quot; with another colour</source>
        <translation>eine Zeile kann auch eine von „%1“ mit einer anderen Farbe sein</translation>
    </message>
    <message>
        <source>A style sheet, or another document with colours; &quot;-&quot; is standard input.</source>
        <translation>Ein Stylesheet oder ein anderes Dokument mit Farben; „-“ ist die Standardeingabe.</translation>
    </message>
    <message>
        <source>When to exit with status 1: contrast, for a contrast below AA; doubles, for near doubles; any of them (the default); or never.</source>
        <translation>Wann der Exit-Status 1 ist: contrast, bei einem Kontrast unter AA; doubles, bei fast gleichen Farben; any, bei beidem (Vorgabe); oder never, nie.</translation>
    </message>
    <message>
        <source>Also draw the colours as SVG to FILE; &quot;-&quot; is standard output.</source>
        <translation>Die Farben auch als SVG nach FILE zeichnen; „-“ ist die Standardausgabe.</translation>
    </message>
    <message>
        <source>Also draw the colours as PNG to FILE; &quot;-&quot; is standard output.</source>
        <translation>Die Farben auch als PNG nach FILE zeichnen; „-“ ist die Standardausgabe.</translation>
    </message>
    <message>
        <source>List the colours of style sheets, and what may be wrong with them.
Each colour is written with its number and names: the variables that hold it, and its exact name. Near doubles are colours that differ by less than 2 (CIEDE2000). A contrast is reported if the color and the background of one rule fail AA of WCAG 2.2 for text of normal size. If something is found, the exit status is 1.</source>
        <translation>Listet die Farben von Stylesheets auf, und was an ihnen falsch sein kann.
Zu jeder Farbe werden ihre Anzahl und ihre Namen geschrieben: die Variablen, die sie enthalten, und ihr genauer Name. Fast gleich sind Farben, die sich um weniger als 2 unterscheiden (CIEDE2000). Ein Kontrast wird gemeldet, wenn color und Hintergrund einer Regel AA von WCAG 2.2 für Text normaler Größe nicht erfüllen. Wenn etwas gefunden wird, ist der Exit-Status 1.</translation>
    </message>
    <message>
        <source>The user left &quot;choose&quot; or &quot;pick&quot; without a colour, or &quot;sheet&quot; has found something.</source>
        <translation>„choose“ oder „pick“ wurde ohne Farbe verlassen, oder „sheet“ hat etwas gefunden.</translation>
    </message>
    <message>
        <source>If it contains &quot;256color&quot;, a terminal shows a patch of the nearest of its 256 colours.</source>
        <translation>Wenn sie „256color“ enthält, zeigt ein Terminal ein Feld in der nächsten seiner 256 Farben.</translation>
    </message>
    <message>
        <source>Has no effect: some editors add it.</source>
        <translation>Ohne Wirkung: Manche Editoren fügen die Option hinzu.</translation>
    </message>
    <message>
        <source>Serve an editor by the Language Server Protocol, on standard input and output.
The editor shows the colours of style sheets, markup and code, writes them in other forms, completes the names of your lists, and opens the colour panel. Editors start the command themselves; docs/editors.md describes how to set them up.</source>
        <translation>Einem Editor mit dem Language Server Protocol dienen, über Standardein- und -ausgabe.
Der Editor zeigt die Farben von Stilvorlagen, Markup und Code, schreibt sie in anderen Formen, vervollständigt die Namen Ihrer Listen und öffnet das Farbfenster. Editoren starten den Befehl selbst; docs/editors.md beschreibt, wie sie eingerichtet werden.</translation>
    </message>
    <message>
        <source>Choose in the panel</source>
        <translation>Im Farbfenster wählen</translation>
    </message>
    <message>
        <source>Change the text colour to %1: a contrast of %2 with the background</source>
        <translation>Textfarbe in %1 ändern: Kontrast von %2 zum Hintergrund</translation>
    </message>
    <message>
        <source>Replace with &quot;%1&quot;, the closest in %2</source>
        <translation>Durch „%1“ ersetzen, die nächste Farbe in %2</translation>
    </message>
    <message>
        <source>Name it as the custom property %1</source>
        <translation>Als CSS-Variable %1 benennen</translation>
    </message>
    <message>
        <source>Convert to %1</source>
        <translation>In %1 umwandeln</translation>
    </message>
    <message>
        <source>The colour panel cannot be started</source>
        <translation>Das Farbfenster kann nicht gestartet werden</translation>
    </message>
    <message>
        <source>Closest name: %1 (%2)</source>
        <translation>Nächster Name: %1 (%2)</translation>
    </message>
    <message>
        <source>the colour is outside sRGB; this page shows the nearest colour inside</source>
        <translation>die Farbe liegt außerhalb von sRGB; diese Seite zeigt die nächste innerhalb</translation>
    </message>
    <message>
        <source>Contrast with white %1, with black %2</source>
        <translation>Kontrast zu Weiß %1, zu Schwarz %2</translation>
    </message>
    <message>
        <source>one pixel was picked: the desktop&apos;s own picker cannot average</source>
        <translation>ein einzelner Pixel wurde aufgenommen: die Pipette der Arbeitsumgebung bildet keinen Durchschnitt</translation>
    </message>
    <message>
        <source>design tokens</source>
        <translation>Design-Tokens</translation>
    </message>
    <message>
        <source>colour swatches, binary</source>
        <translation>Farbfelder, binär</translation>
    </message>
    <message>
        <source>palette of Krita, binary</source>
        <translation>Palette von Krita, binär</translation>
    </message>
    <message>
        <source>colour table of office programs</source>
        <translation>Farbtabelle von Büroprogrammen</translation>
    </message>
    <message>
        <source>the format %1 holds at most %2 colours</source>
        <translation>das Format %1 fasst höchstens %2 Farben</translation>
    </message>
    <message>
        <source>choose another format</source>
        <translation>wählen Sie ein anderes Format</translation>
    </message>
    <message>
        <source>it is an archive without the colours of a palette, or damaged</source>
        <translation>es ist ein Archiv ohne die Farben einer Palette oder beschädigt</translation>
    </message>
    <message>
        <source>give a complete palette of Krita</source>
        <translation>geben Sie eine vollständige Palette von Krita an</translation>
    </message>
    <message>
        <source>use a palette of GIMP, KDE or Krita, CSS, SCSS, JSON, swatches, a colour table of an office program, or a text with one colour per line</source>
        <translation>verwenden Sie eine Palette von GIMP, KDE oder Krita, CSS, SCSS, JSON, Farbfelder, die Farbtabelle eines Büroprogramms oder einen Text mit einer Farbe pro Zeile</translation>
    </message>
    <message>
        <source>Start with this page: hex, mix, scales, palettes, or the page of another plug-in.</source>
        <translation>Beginnt mit dieser Seite: hex, mix, scales, palettes oder der Seite eines anderen Plug-ins.</translation>
    </message>
    <message>
        <source>give the snippet a name</source>
        <translation>geben Sie der Codezeile einen Namen</translation>
    </message>
    <message>
        <source>write a format</source>
        <translation>schreiben Sie ein Format</translation>
    </message>
    <message>
        <source>there is already a snippet &quot;%1&quot;</source>
        <translation>es gibt schon eine Codezeile „%1“</translation>
    </message>
    <message>
        <source>&quot;%1&quot; removed</source>
        <translation>„%1“ entfernt</translation>
    </message>
    <message>
        <source>press %1 to bring it back</source>
        <translation>drücken Sie %1, um sie zurückzuholen</translation>
    </message>
    <message>
        <source>check that it is a file of at most 4 MiB that you can read</source>
        <translation>prüfen Sie, ob es eine Datei von höchstens 4 MiB ist, die Sie lesen dürfen</translation>
    </message>
    <message>
        <source>snippets imported: %1</source>
        <translation>importierte Codezeilen: %1</translation>
    </message>
    <message>
        <source>check that it is a file that you can read</source>
        <translation>prüfen Sie, ob es eine Datei ist, die Sie lesen dürfen</translation>
    </message>
    <message>
        <source>there is no folder for your data</source>
        <translation>es gibt keinen Ordner für Ihre Daten</translation>
    </message>
    <message>
        <source>set HOME or XDG_DATA_HOME to a folder that you can write to</source>
        <translation>setzen Sie HOME oder XDG_DATA_HOME auf einen Ordner, in den Sie schreiben dürfen</translation>
    </message>
    <message>
        <source>%1 has no place in the format</source>
        <translation>%1 hat keinen Platz im Format</translation>
    </message>
    <message>
        <source>write %1 where it belongs</source>
        <translation>schreiben Sie %1 dorthin, wo der Wert stehen soll</translation>
    </message>
    <message>
        <source>the format has %1 places for %2 values, so the last ones are copied unchanged</source>
        <translation>das Format hat %1 Plätze für %2 Werte, daher bleiben die letzten unverändert</translation>
    </message>
    <message>
        <source>write %% for a per cent sign</source>
        <translation>schreiben Sie %% für ein Prozentzeichen</translation>
    </message>
    <message>
        <source>a shortcut for all programs needs Ctrl, Alt or Meta</source>
        <translation>ein Tastenkürzel für alle Programme braucht Strg, Alt oder Meta</translation>
    </message>
    <message>
        <source>choose another shortcut</source>
        <translation>wählen Sie ein anderes Tastenkürzel</translation>
    </message>
    <message>
        <source>this desktop lets no program have a shortcut of its own</source>
        <translation>dieser Desktop lässt Programmen keine eigenen Tastenkürzel</translation>
    </message>
    <message>
        <source>bind &quot;vantorel-panel --pick-and-copy&quot; to a key in its settings</source>
        <translation>legen Sie in seinen Einstellungen „vantorel-panel --pick-and-copy“ auf eine Taste</translation>
    </message>
    <message>
        <source>the desktop did not accept the shortcut</source>
        <translation>der Desktop hat das Tastenkürzel nicht angenommen</translation>
    </message>
    <message>
        <source>choose another one, or allow it in the settings of the desktop</source>
        <translation>wählen Sie ein anderes, oder erlauben Sie es in den Einstellungen des Desktops</translation>
    </message>
    <message>
        <source>the keyboard has no key %1</source>
        <translation>die Tastatur hat keine Taste %1</translation>
    </message>
    <message>
        <source>another program has the shortcut %1</source>
        <translation>ein anderes Programm hat das Tastenkürzel %1</translation>
    </message>
    <message>
        <source>it is the nearest colour inside sRGB</source>
        <translation>das ist die nächste Farbe in sRGB</translation>
    </message>
    <message>
        <source>the picture cannot be read</source>
        <translation>das Bild kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>save it as PNG or JPEG, and open the file</source>
        <translation>sichern Sie es als PNG oder JPEG und öffnen Sie die Datei</translation>
    </message>
    <message>
        <source>check that it is a file of at most 256 MiB that you can read</source>
        <translation>prüfen Sie, ob es eine Datei von höchstens 256 MiB ist, die Sie lesen dürfen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a picture that can be read</source>
        <translation>„%1“ ist kein lesbares Bild</translation>
    </message>
    <message>
        <source>use PNG, JPEG, SVG, or WebP if Qt&apos;s plug-in for it is installed</source>
        <translation>verwenden Sie PNG, JPEG, SVG oder, wenn das Plug-in von Qt dafür installiert ist, WebP</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has more than 100 megapixels</source>
        <translation>„%1“ hat mehr als 100 Megapixel</translation>
    </message>
    <message>
        <source>make a smaller copy of it</source>
        <translation>machen Sie eine kleinere Kopie davon</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is damaged</source>
        <translation>„%1“ ist beschädigt</translation>
    </message>
    <message>
        <source>use another copy of it</source>
        <translation>verwenden Sie eine andere Kopie davon</translation>
    </message>
    <message>
        <source>no colour list has the name &quot;%1&quot;</source>
        <translation>keine Farbliste hat den Namen „%1“</translation>
    </message>
    <message>
        <source>write a name of a list or of CSS, or a colour such as &quot;#ff8000&quot;</source>
        <translation>schreiben Sie einen Namen aus einer Liste oder aus CSS, oder eine Farbe wie „#ff8000“</translation>
    </message>
    <message>
        <source>one colour was picked: the desktop&apos;s own picker takes one at a time</source>
        <translation>eine Farbe wurde aufgenommen: Die Pipette der Arbeitsumgebung nimmt nur eine auf einmal auf</translation>
    </message>
    <message>
        <source>pick again for the next one</source>
        <translation>rufen Sie die Pipette für die nächste erneut auf</translation>
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
        <translation>Ziehen</translation>
    </message>
    <message>
        <source>Drag type</source>
        <translation>Inhalt beim Ziehen</translation>
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
    <message>
        <source>Vantorel</source>
        <translation>Vantorel</translation>
    </message>
    <message>
        <source>left digit</source>
        <translation>linke Ziffer</translation>
    </message>
    <message>
        <source>right digit</source>
        <translation>rechte Ziffer</translation>
    </message>
    <message>
        <source>supportManual.htm</source>
        <translation>supportManual_de.htm</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Blue to yellow</source>
        <translation>Blau nach Gelb</translation>
    </message>
    <message>
        <source>Chroma</source>
        <translation>Buntheit</translation>
    </message>
    <message>
        <source>Green to red</source>
        <translation>Grün nach Rot</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Farbton</translation>
    </message>
    <message>
        <source>Lightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Mix</source>
        <translation>Mischen</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Sättigung</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Hellwert</translation>
    </message>
    <message>
        <source>change a colour in OKLCH, HSL, HSV and Lab</source>
        <translation>eine Farbe in OKLCH, HSL, HSV und Lab ändern</translation>
    </message>
    <message>
        <source>outside sRGB</source>
        <translation>außerhalb von sRGB</translation>
    </message>
    <message>
        <source>within sRGB</source>
        <translation>innerhalb von sRGB</translation>
    </message>
    <message>
        <source>Colour space</source>
        <translation>Farbraum</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Eingabe</translation>
    </message>
    <message>
        <source>picks</source>
        <translation>nimmt auf</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Umschalt</translation>
    </message>
    <message>
        <source>several</source>
        <translation>mehrere</translation>
    </message>
    <message>
        <source>A</source>
        <translation>A</translation>
    </message>
    <message>
        <source>averages</source>
        <translation>Durchschnitt</translation>
    </message>
    <message>
        <source>Mouse wheel</source>
        <translation>Mausrad</translation>
    </message>
    <message>
        <source>zooms</source>
        <translation>vergrößert</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>leaves</source>
        <translation>beendet</translation>
    </message>
    <message>
        <source>%1 picked</source>
        <translation>%1 aufgenommen</translation>
    </message>
    <message>
        <source>AA large</source>
        <translation>AA groß</translation>
    </message>
    <message>
        <source>Analogous</source>
        <translation>Analog</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Schwarz</translation>
    </message>
    <message>
        <source>CSS custom properties</source>
        <translation>CSS-Variablen</translation>
    </message>
    <message>
        <source>Complement</source>
        <translation>Komplement</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>Contrasts of the scale</source>
        <translation>Kontraste der Skala</translation>
    </message>
    <message>
        <source>Copy all</source>
        <translation>Alle kopieren</translation>
    </message>
    <message>
        <source>Deuteranopia</source>
        <translation>Deuteranopie</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>Grau</translation>
    </message>
    <message>
        <source>Hex codes</source>
        <translation>Hexcodes</translation>
    </message>
    <message>
        <source>JSON design tokens</source>
        <translation>JSON-Design-Tokens</translation>
    </message>
    <message>
        <source>Keep as a colour list</source>
        <translation>Als Farbliste aufheben</translation>
    </message>
    <message>
        <source>Kept as the colour list</source>
        <translation>Aufgehoben als Farbliste</translation>
    </message>
    <message>
        <source>Last colour of the gradient</source>
        <translation>Letzte Farbe des Verlaufs</translation>
    </message>
    <message>
        <source>Lines of code</source>
        <translation>Codezeilen</translation>
    </message>
    <message>
        <source>Makes the last colour the panel&apos;s colour, and the panel&apos;s colour the last one</source>
        <translation>Macht die letzte Farbe zur Farbe des Fensters und diese zur letzten</translation>
    </message>
    <message>
        <source>Nearest</source>
        <translation>Nächste</translation>
    </message>
    <message>
        <source>Nearest colours that pass</source>
        <translation>Nächste ausreichende Farben</translation>
    </message>
    <message>
        <source>Number of colours</source>
        <translation>Anzahl der Farben</translation>
    </message>
    <message>
        <source>Protanopia</source>
        <translation>Protanopie</translation>
    </message>
    <message>
        <source>SCSS variables</source>
        <translation>SCSS-Variablen</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Skala</translation>
    </message>
    <message>
        <source>Scales</source>
        <translation>Skalen</translation>
    </message>
    <message>
        <source>Schemes</source>
        <translation>Schemata</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Abschnitt</translation>
    </message>
    <message>
        <source>Shades</source>
        <translation>Dunkler</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Geteilt</translation>
    </message>
    <message>
        <source>Steps</source>
        <translation>Stufen</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Tauschen</translation>
    </message>
    <message>
        <source>Tetrad</source>
        <translation>Tetrade</translation>
    </message>
    <message>
        <source>The colour list could not be saved. Check that you can write to its folder</source>
        <translation>Die Farbliste konnte nicht gespeichert werden. Prüfen Sie, ob Sie in ihren Ordner schreiben dürfen</translation>
    </message>
    <message>
        <source>The last colour, in any form of CSS. Leave it empty for the complement</source>
        <translation>Die letzte Farbe, in jeder Form von CSS. Leer: das Komplement</translation>
    </message>
    <message>
        <source>The scale in place of the colour</source>
        <translation>Die Skala anstelle der Farbe</translation>
    </message>
    <message>
        <source>This is not a colour. Write it as in CSS, such as #ff8000 or hsl(30 100% 50%)</source>
        <translation>Das ist keine Farbe. Schreiben Sie sie wie in CSS, etwa #ff8000 oder hsl(30 100% 50%)</translation>
    </message>
    <message>
        <source>Tints</source>
        <translation>Heller</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Bis</translation>
    </message>
    <message>
        <source>Tones</source>
        <translation>Grauer</translation>
    </message>
    <message>
        <source>Triad</source>
        <translation>Triade</translation>
    </message>
    <message>
        <source>Tritanopia</source>
        <translation>Tritanopie</translation>
    </message>
    <message>
        <source>Usual</source>
        <translation>Üblich</translation>
    </message>
    <message>
        <source>Vision</source>
        <translation>Sehen</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Weiß</translation>
    </message>
    <message>
        <source>copied</source>
        <translation>kopiert</translation>
    </message>
    <message>
        <source>fails</source>
        <translation>zu gering</translation>
    </message>
    <message>
        <source>linear light</source>
        <translation>lineares Licht</translation>
    </message>
    <message>
        <source>longer hue</source>
        <translation>langer Weg</translation>
    </message>
    <message>
        <source>no lightness is enough</source>
        <translation>keine Helligkeit reicht</translation>
    </message>
    <message>
        <source>passes</source>
        <translation>reicht</translation>
    </message>
    <message>
        <source>scales, schemes, gradients and contrasts of a colour</source>
        <translation>Skalen, Schemata, Verläufe und Kontraste einer Farbe</translation>
    </message>
    <message>
        <source>shorter hue</source>
        <translation>kurzer Weg</translation>
    </message>
    <message>
        <source>the colour itself</source>
        <translation>die Farbe selbst</translation>
    </message>
    <message>
        <source>copy as hex, rgb, hsl, oklch</source>
        <translation>kopieren als Hex, rgb, hsl, oklch</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Shown contrasts</source>
        <translation>Gezeigte Kontraste</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Texts in columns, backgrounds in rows</source>
        <translation>Texte in Spalten, Hintergründe in Zeilen</translation>
    </message>
    <message>
        <source>A larger window shows more colours of the list</source>
        <translation>Ein größeres Fenster zeigt mehr Farben der Liste</translation>
    </message>
    <message>
        <source>Contrasts of the colours with each other</source>
        <translation>Kontraste der Farben miteinander</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>No colour lists. Make one on the page Palettes</source>
        <translation>Keine Farblisten. Eine entsteht auf der Seite Paletten</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>A panel is already running and cannot apply %1. Use --new to start another.</source>
        <translation>Es läuft schon ein Fenster, das %1 nicht anwenden kann. Mit --new starten Sie ein weiteres.</translation>
    </message>
</context>
<context>
    <name>vantorel::AboutDialog</name>
    <message>
        <source>About Vantorel</source>
        <translation>Über Vantorel</translation>
    </message>
    <message>
        <source>A colour picker for people who write CSS and code.</source>
        <translation>Ein Farbwähler für alle, die CSS und Code schreiben.</translation>
    </message>
</context>
<context>
    <name>vantorel::ChoiceBar</name>
    <message>
        <source>Choose</source>
        <translation>Wählen</translation>
    </message>
</context>
<context>
    <name>vantorel::ColorBand</name>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Colour and background</source>
        <translation>Farbe und Hintergrund</translation>
    </message>
</context>
<context>
    <name>vantorel::ColorChoice</name>
    <message>
        <source>Choose a colour</source>
        <translation>Eine Farbe wählen</translation>
    </message>
</context>
<context>
    <name>vantorel::ColorEntry</name>
    <message>
        <source>Nearest: %1</source>
        <translation>Ähnlichster: %1</translation>
    </message>
    <message>
        <source>Background: %1</source>
        <translation>Hintergrund: %1</translation>
    </message>
    <message>
        <source>As in the settings of the page</source>
        <translation>Wie in den Einstellungen der Seite</translation>
    </message>
    <message>
        <source>More code snippets</source>
        <translation>Weitere Codezeilen</translation>
    </message>
    <message>
        <source>Outside sRGB, nearest: %1</source>
        <translation>Außerhalb von sRGB, am nächsten: %1</translation>
    </message>
</context>
<context>
    <name>vantorel::ColorFacts</name>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
</context>
<context>
    <name>vantorel::ColorField</name>
    <message>
        <source>Form of the text, and of copies</source>
        <translation>Form des Textes und der Kopien</translation>
    </message>
    <message>
        <source>Type or paste a colour in any form</source>
        <translation>Eine Farbe in beliebiger Form eintippen oder einfügen</translation>
    </message>
    <message>
        <source>Colour as a text</source>
        <translation>Farbe als Text</translation>
    </message>
    <message>
        <source>Copy as</source>
        <translation>Kopieren als</translation>
    </message>
</context>
<context>
    <name>vantorel::DialogSwitchesWindow</name>
    <message>
        <source>Dialogs of other programs</source>
        <translation>Dialoge anderer Programme</translation>
    </message>
    <message>
        <source>The page of this panel can be in the colour dialogs of other programs, beside their own controls. A switch changes only your own settings, and takes all of it back when you turn it off.</source>
        <translation>Die Seite dieses Fensters kann in den Farbdialogen anderer Programme stehen, neben deren eigenen Bedienelementen. Ein Schalter ändert nur Ihre eigenen Einstellungen und nimmt alles zurück, wenn Sie ihn ausschalten.</translation>
    </message>
    <message>
        <source>Programs made with Qt 5 or Qt 6</source>
        <translation>Programme mit Qt 5 oder Qt 6</translation>
    </message>
    <message>
        <source>Programs made with GTK 3</source>
        <translation>Programme mit GTK 3</translation>
    </message>
</context>
<context>
    <name>vantorel::FormList</name>
    <message>
        <source>Forms of the colour</source>
        <translation>Formen der Farbe</translation>
    </message>
</context>
<context>
    <name>vantorel::FormRow</name>
    <message>
        <source>Copy %1</source>
        <translation>%1 kopieren</translation>
    </message>
</context>
<context>
    <name>vantorel::GeneralPreferences</name>
    <message>
        <source>Use the desktop&apos;s own controls and colours</source>
        <translation>Bedienelemente und Farben des Desktops verwenden</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Farbschema</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Textgröße</translation>
    </message>
    <message>
        <source>Takes effect at the next start of the panel</source>
        <translation>Wirkt beim nächsten Start</translation>
    </message>
    <message>
        <source>Show the colour</source>
        <translation>Farbe zeigen</translation>
    </message>
    <message>
        <source>Copy the colour and stay</source>
        <translation>Farbe kopieren und bleiben</translation>
    </message>
    <message>
        <source>Copy the colour and minimise the panel</source>
        <translation>Farbe kopieren und Fenster minimieren</translation>
    </message>
    <message>
        <source>After picking</source>
        <translation>Nach dem Aufnehmen</translation>
    </message>
    <message>
        <source>%1×%1</source>
        <translation>%1×%1</translation>
    </message>
    <message>
        <source>Pick the average of</source>
        <translation>Durchschnitt von</translation>
    </message>
    <message>
        <source>Pixels of the screen. Where only the desktop can pick, it picks one pixel.</source>
        <translation>Pixel des Bildschirms. Wo nur die Arbeitsumgebung aufnehmen kann, ist es ein einzelner.</translation>
    </message>
    <message>
        <source>Stay resident, with a tray icon</source>
        <translation>Weiterlaufen, mit Symbol in der Ablage</translation>
    </message>
    <message>
        <source>Pick from anywhere</source>
        <translation>Überall aufnehmen</translation>
    </message>
    <message>
        <source>Works while the panel stays resident.</source>
        <translation>Geht, solange das Fenster weiterläuft.</translation>
    </message>
    <message>
        <source>Press the keys, such as Ctrl+Alt+C.</source>
        <translation>Drücken Sie die Tasten, etwa Strg+Alt+C.</translation>
    </message>
</context>
<context>
    <name>vantorel::LastColors</name>
    <message>
        <source>Last colours</source>
        <translation>Letzte Farben</translation>
    </message>
    <message>
        <source>Commands for the last colours</source>
        <translation>Befehle für die letzten Farben</translation>
    </message>
    <message>
        <source>Unpin %1</source>
        <translation>%1 lösen</translation>
    </message>
    <message>
        <source>Pin %1</source>
        <translation>%1 anheften</translation>
    </message>
    <message>
        <source>Keep all as a list</source>
        <translation>Alle als Liste behalten</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>pinned</source>
        <translation>angeheftet</translation>
    </message>
</context>
<context>
    <name>vantorel::NameCompletion</name>
    <message>
        <source>Names of colours</source>
        <translation>Namen von Farben</translation>
    </message>
</context>
<context>
    <name>vantorel::PageBar</name>
    <message>
        <source>Commands</source>
        <translation>Befehle</translation>
    </message>
</context>
<context>
    <name>vantorel::PageTabs</name>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
</context>
<context>
    <name>vantorel::PaletteCommands</name>
    <message>
        <source>New list</source>
        <translation>Neue Liste</translation>
    </message>
    <message>
        <source>Rename the list</source>
        <translation>Liste umbenennen</translation>
    </message>
    <message>
        <source>Copy the list</source>
        <translation>Liste kopieren</translation>
    </message>
    <message>
        <source>Remove the list</source>
        <translation>Liste entfernen</translation>
    </message>
    <message>
        <source>Import palette files...</source>
        <translation>Palettendateien übernehmen ...</translation>
    </message>
    <message>
        <source>Save a copy as a file...</source>
        <translation>Kopie als Datei sichern ...</translation>
    </message>
    <message>
        <source>Add the panel&apos;s colour</source>
        <translation>Farbe des Fensters hinzufügen</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Give it the panel&apos;s colour</source>
        <translation>Farbe des Fensters geben</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
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
        <source>Add %1 to the list (%2)</source>
        <translation>%1 zur Liste hinzufügen (%2)</translation>
    </message>
    <message>
        <source>Give the selected colours the panel&apos;s colour, %1</source>
        <translation>Den gewählten Einträgen die Farbe des Fensters geben, %1</translation>
    </message>
    <message>
        <source>Colours of a picture...</source>
        <translation>Farben eines Bildes ...</translation>
    </message>
    <message>
        <source>Pick into this list</source>
        <translation>In diese Liste aufnehmen</translation>
    </message>
</context>
<context>
    <name>vantorel::PaletteEdits</name>
    <message>
        <source>My colours</source>
        <translation>Meine Farben</translation>
    </message>
</context>
<context>
    <name>vantorel::PaletteEntriesView</name>
    <message>
        <source>Colour name</source>
        <translation>Farbname</translation>
    </message>
    <message>
        <source>Colours of the list</source>
        <translation>Farben der Liste</translation>
    </message>
</context>
<context>
    <name>vantorel::PaletteFiles</name>
    <message>
        <source>Import palette files</source>
        <translation>Palettendateien übernehmen</translation>
    </message>
    <message>
        <source>Save a copy</source>
        <translation>Kopie sichern</translation>
    </message>
    <message>
        <source>Colours of a picture</source>
        <translation>Farben eines Bildes</translation>
    </message>
</context>
<context>
    <name>vantorel::PaletteFilter</name>
    <message>
        <source>Find a name or hex code</source>
        <translation>Name oder Hex-Code suchen</translation>
    </message>
    <message>
        <source>Shows only colours with this in their name or hex code (Ctrl+F)</source>
        <translation>Zeigt nur Farben, deren Name oder Hex-Code dies enthält (Strg+F)</translation>
    </message>
</context>
<context>
    <name>vantorel::PaletteListChooser</name>
    <message>
        <source>Colour list</source>
        <translation>Farbliste</translation>
    </message>
    <message>
        <source>Name of the list</source>
        <translation>Name der Liste</translation>
    </message>
    <message>
        <source>The shown list</source>
        <translation>Die angezeigte Liste</translation>
    </message>
    <message>
        <source>Colours in the list: %1</source>
        <translation>Farben in der Liste: %1</translation>
    </message>
</context>
<context>
    <name>vantorel::PaletteListModel</name>
    <message>
        <source>Belongs to %1, read-only</source>
        <translation>Gehört zu %1, nur lesbar</translation>
    </message>
</context>
<context>
    <name>vantorel::PaletteProgress</name>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Read no more. What has been read so far can be used.</source>
        <translation>Nicht weiter lesen. Das bisher Gelesene lässt sich benutzen.</translation>
    </message>
    <message>
        <source>Read so far: %1</source>
        <translation>Bisher gelesen: %1</translation>
    </message>
</context>
<context>
    <name>vantorel::PaletteUpdates</name>
    <message>
        <source>%1 of %2 lists</source>
        <translation>%1 von %2 Listen</translation>
    </message>
    <message>
        <source>%1 % of the list</source>
        <translation>%1 % der Liste</translation>
    </message>
</context>
<context>
    <name>vantorel::PalettesPage</name>
    <message>
        <source>Palettes</source>
        <translation>Paletten</translation>
    </message>
    <message>
        <source>Palettes: edit the lists of named colours</source>
        <translation>Paletten: die Listen benannter Farben bearbeiten</translation>
    </message>
</context>
<context>
    <name>vantorel::PalettesWidget</name>
    <message>
        <source>Palettes</source>
        <translation>Paletten</translation>
    </message>
    <message>
        <source>Commands for lists and colours</source>
        <translation>Befehle für Listen und Farben</translation>
    </message>
    <message>
        <source>From %1, read-only. Your first change makes a list of your own.</source>
        <translation>Von %1, nur lesbar. Ihre erste Änderung macht eine eigene Liste daraus.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>The list is empty. The + adds the panel&apos;s colour.</source>
        <translation>Die Liste ist leer. Das + fügt die Farbe des Fensters hinzu.</translation>
    </message>
    <message>
        <source>New list</source>
        <translation>Neue Liste</translation>
    </message>
    <message>
        <source>%1 copy</source>
        <translation>%1 Kopie</translation>
    </message>
    <message>
        <source>There is no list yet. Create one, or drop a palette file here.</source>
        <translation>Es gibt noch keine Liste. Legen Sie eine an, oder lassen Sie eine Palettendatei hier fallen.</translation>
    </message>
    <message>
        <source>No colour name or hex code matches.</source>
        <translation>Kein Name und kein Hex-Code passt.</translation>
    </message>
    <message>
        <source>As a list</source>
        <translation>Als Liste</translation>
    </message>
    <message>
        <source>As a grid</source>
        <translation>Als Raster</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
</context>
<context>
    <name>vantorel::PanelCommands</name>
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
    <message>
        <source>Next control</source>
        <translation>Nächstes Bedienelement</translation>
    </message>
    <message>
        <source>Dialogs of other programs...</source>
        <translation>Dialoge anderer Programme …</translation>
    </message>
    <message>
        <source>Preferences...</source>
        <translation>Einstellungen …</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Handbuch</translation>
    </message>
    <message>
        <source>About Vantorel</source>
        <translation>Über Vantorel</translation>
    </message>
    <message>
        <source>More code snippets</source>
        <translation>Weitere Codezeilen</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>Snippets</source>
        <translation>Codezeilen</translation>
    </message>
</context>
<context>
    <name>vantorel::PanelWindow</name>
    <message>
        <source>A plug-in was left out</source>
        <translation>Ein Plug-in wurde ausgelassen</translation>
    </message>
    <message>
        <source>%1 plug-ins were left out</source>
        <translation>%1 Plug-ins wurden ausgelassen</translation>
    </message>
    <message>
        <source>%1 picks from the screen</source>
        <translation>%1 nimmt vom Bildschirm auf</translation>
    </message>
    <message>
        <source>Last colours</source>
        <translation>Letzte Farben</translation>
    </message>
</context>
<context>
    <name>vantorel::PictureColors</name>
    <message>
        <source>Colours of &quot;%1&quot;</source>
        <translation>Farben von „%1“</translation>
    </message>
    <message>
        <source>Number of main colours</source>
        <translation>Anzahl der Hauptfarben</translation>
    </message>
    <message>
        <source>Main colours:</source>
        <translation>Hauptfarben:</translation>
    </message>
    <message>
        <source>Main colours of the picture</source>
        <translation>Hauptfarben des Bildes</translation>
    </message>
    <message>
        <source>Keep as a list</source>
        <translation>Als Liste behalten</translation>
    </message>
    <message>
        <source>The picture is transparent.</source>
        <translation>Das Bild ist durchsichtig.</translation>
    </message>
</context>
<context>
    <name>vantorel::PictureView</name>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Click a colour to choose it, or move to it with the arrow keys and press Enter</source>
        <translation>Klicken Sie auf eine Farbe, um sie zu wählen, oder gehen Sie mit den Pfeiltasten zu ihr und drücken Sie die Eingabetaste</translation>
    </message>
    <message>
        <source>transparent</source>
        <translation>durchsichtig</translation>
    </message>
</context>
<context>
    <name>vantorel::PluginPage</name>
    <message>
        <source>The page &quot;%1&quot; could not be created because its interface file is missing or damaged. Try reinstalling %2.</source>
        <translation>Die Seite „%1“ ließ sich nicht erzeugen, weil ihre Oberflächendatei fehlt oder beschädigt ist. Versuchen Sie, %2 neu zu installieren.</translation>
    </message>
    <message>
        <source>Enter what was typed</source>
        <translation>Eingabe übernehmen</translation>
    </message>
    <message>
        <source>Give up what was typed</source>
        <translation>Eingabe verwerfen</translation>
    </message>
    <message>
        <source>Change a component</source>
        <translation>Anteil ändern</translation>
    </message>
    <message>
        <source>Move in the colours</source>
        <translation>In den Farben bewegen</translation>
    </message>
    <message>
        <source>Move to the ends of the colours</source>
        <translation>An die Enden der Farben springen</translation>
    </message>
    <message>
        <source>Take the colour</source>
        <translation>Farbe nehmen</translation>
    </message>
    <message>
        <source>Change a component in large steps</source>
        <translation>Anteil in großen Schritten ändern</translation>
    </message>
    <message>
        <source>Move a mark or change a number in coarse steps</source>
        <translation>Marke oder Zahl in großen Schritten ändern</translation>
    </message>
    <message>
        <source>Move a mark or change a number in fine steps</source>
        <translation>Marke oder Zahl in feinen Schritten ändern</translation>
    </message>
</context>
<context>
    <name>vantorel::PortalShortcut</name>
    <message>
        <source>Pick a colour from the screen</source>
        <translation>Eine Farbe vom Bildschirm aufnehmen</translation>
    </message>
</context>
<context>
    <name>vantorel::PreferencesDialog</name>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Changes apply at once</source>
        <translation>Änderungen wirken sofort</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Pages of the preferences</source>
        <translation>Seiten der Einstellungen</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
</context>
<context>
    <name>vantorel::Residence</name>
    <message>
        <source>Show the panel</source>
        <translation>Panel zeigen</translation>
    </message>
</context>
<context>
    <name>vantorel::ShortcutOverlay</name>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Escape or a click closes the list.</source>
        <translation>Escape oder ein Klick schließt die Liste.</translation>
    </message>
</context>
<context>
    <name>vantorel::SnippetEditor</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Red, green, blue from 0 to 255</source>
        <translation>Rot, Grün, Blau von 0 bis 255</translation>
    </message>
    <message>
        <source>Red, green, blue, opacity from 0 to 255</source>
        <translation>Rot, Grün, Blau, Deckkraft von 0 bis 255</translation>
    </message>
    <message>
        <source>Red, green, blue to 255, opacity to 1</source>
        <translation>Rot, Grün, Blau bis 255, Deckkraft bis 1</translation>
    </message>
    <message>
        <source>Red, green, blue from 0 to 1</source>
        <translation>Rot, Grün, Blau von 0 bis 1</translation>
    </message>
    <message>
        <source>Red, green, blue, opacity from 0 to 1</source>
        <translation>Rot, Grün, Blau, Deckkraft von 0 bis 1</translation>
    </message>
    <message>
        <source>One number: RRGGBB</source>
        <translation>Eine Zahl: RRGGBB</translation>
    </message>
    <message>
        <source>One number: AARRGGBB</source>
        <translation>Eine Zahl: AARRGGBB</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Werte</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>With this colour</source>
        <translation>Mit dieser Farbe</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Every value has its place.</source>
        <translation>Jeder Wert hat seinen Platz.</translation>
    </message>
</context>
<context>
    <name>vantorel::SnippetPreferences</name>
    <message>
        <source>New snippet</source>
        <translation>Neue Codezeile</translation>
    </message>
    <message>
        <source>Add a snippet</source>
        <translation>Codezeile hinzufügen</translation>
    </message>
    <message>
        <source>Remove the snippet</source>
        <translation>Codezeile entfernen</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Nach unten</translation>
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
        <source>Duplicate</source>
        <translation>Verdoppeln</translation>
    </message>
    <message>
        <source>Import...</source>
        <translation>Importieren...</translation>
    </message>
    <message>
        <source>Export...</source>
        <translation>Exportieren...</translation>
    </message>
    <message>
        <source>Restore the program&apos;s snippets</source>
        <translation>Codezeilen des Programms wiederherstellen</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mehr</translation>
    </message>
    <message>
        <source>Import snippets</source>
        <translation>Codezeilen importieren</translation>
    </message>
    <message>
        <source>Property lists (*.plist);;All files (*)</source>
        <translation>Property-Listen (*.plist);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Export snippets</source>
        <translation>Codezeilen exportieren</translation>
    </message>
</context>
<context>
    <name>vantorel::SnippetRows</name>
    <message>
        <source>Snippets</source>
        <translation>Codezeilen</translation>
    </message>
</context>
<context>
    <name>vantorel::VisionMenu</name>
    <message>
        <source>Colour blindness</source>
        <translation>Farbfehlsichtigkeit</translation>
    </message>
    <message>
        <source>Not simulated</source>
        <translation>Nicht simuliert</translation>
    </message>
    <message>
        <source>Deuteranopia</source>
        <translation>Deuteranopie</translation>
    </message>
    <message>
        <source>Protanopia</source>
        <translation>Protanopie</translation>
    </message>
    <message>
        <source>Tritanopia</source>
        <translation>Tritanopie</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>Grau</translation>
    </message>
</context>
</TS>
