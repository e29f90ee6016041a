<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_GB">
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
        <source>use rgb(), hsl(), hwb(), lab(), lch(), oklab(), oklch() or color()</source>
        <translation>verwenden Sie rgb(), hsl(), hwb(), lab(), lch(), oklab(), oklch() oder color()</translation>
    </message>
    <message>
        <source>Relative colours, with &quot;from&quot;, are not supported</source>
        <translation>Relative Farben, mit „from“, werden nicht unterstützt</translation>
    </message>
    <message>
        <source>write the values themselves, as in &quot;%1&quot;</source>
        <translation>schreiben Sie die Werte selbst wie in „%1“</translation>
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
        <source>the desktop lets only the active window copy, and did not activate the panel</source>
        <translation>der Desktop lässt nur das aktive Fenster kopieren und hat dieses nicht aktiviert</translation>
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
        <source>use a palette of GIMP or KDE, CSS, SCSS, JSON, a swatch exchange file, or a text with one colour per line</source>
        <translation>nehmen Sie eine Palette von GIMP oder KDE, CSS, SCSS, JSON, eine Swatch-Exchange-Datei oder einen Text mit einer Farbe pro Zeile</translation>
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
</context>
<context>
    <name>main</name>
    <message>
        <source>A panel is already running and cannot apply %1. Use --new to start another.</source>
        <translation>Es läuft schon ein Fenster, das %1 nicht anwenden kann. Mit --new starten Sie ein weiteres.</translation>
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
    <name>vantorel::ColorChoice</name>
    <message>
        <source>Choose a colour</source>
        <translation>Eine Farbe wählen</translation>
    </message>
</context>
<context>
    <name>vantorel::ContrastLabel</name>
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
    <name>vantorel::DialogPage</name>
    <message>
        <source>Colour dialog</source>
        <translation>Farbdialog</translation>
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
</context>
<context>
    <name>vantorel::PaletteListModel</name>
    <message>
        <source>Belongs to %1, read-only</source>
        <translation>Gehört zu %1, nur lesbar</translation>
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
        <source>Find a name or hex code</source>
        <translation>Name oder Hex-Code suchen</translation>
    </message>
    <message>
        <source>Shows only colours with this in their name or hex code (Ctrl+F)</source>
        <translation>Zeigt nur Farben, deren Name oder Hex-Code dies enthält (Strg+F)</translation>
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
        <source>Colours in the list</source>
        <translation>Farben in der Liste</translation>
    </message>
    <message>
        <source>Colours in the list: %1</source>
        <translation>Farben in der Liste: %1</translation>
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
        <source>My colours</source>
        <translation>Meine Farben</translation>
    </message>
    <message>
        <source>Import palette files</source>
        <translation>Palettendateien übernehmen</translation>
    </message>
    <message>
        <source>Save a copy</source>
        <translation>Kopie sichern</translation>
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
        <source>%1 of %2 lists</source>
        <translation>%1 von %2 Listen</translation>
    </message>
    <message>
        <source>%1 % of the list</source>
        <translation>%1 % der Liste</translation>
    </message>
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
</context>
<context>
    <name>vantorel::PanelTools</name>
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
    <name>vantorel::PanelTopBar</name>
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
    <name>vantorel::PanelWindow</name>
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
</context>
<context>
    <name>vantorel::PluginPage</name>
    <message>
        <source>The page &quot;%1&quot; could not be created because its interface file is missing or damaged. Try reinstalling %2.</source>
        <translation>Die Seite „%1“ ließ sich nicht erzeugen, weil ihre Oberflächendatei fehlt oder beschädigt ist. Versuchen Sie, %2 neu zu installieren.</translation>
    </message>
</context>
<context>
    <name>vantorel::RecentColors</name>
    <message>
        <source>Last colours</source>
        <translation>Letzte Farben</translation>
    </message>
</context>
<context>
    <name>vantorel::ShortcutOverlay</name>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
</context>
</TS>
