<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_GB">
<context>
    <name>ContrastText</name>
    <message>
        <source>yes</source>
        <translation>oui</translation>
    </message>
    <message>
        <source>no</source>
        <translation>non</translation>
    </message>
    <message>
        <source>Contrast with the background: %1 to 1
Normal text: AA %2, AAA %3
Large text: AA %4, AAA %5
Controls and graphics: AA %6</source>
        <translation>Contraste avec le fond : %1 pour 1
Texte normal : AA %2, AAA %3
Grand texte : AA %4, AAA %5
Commandes et graphismes : AA %6</translation>
    </message>
    <message>
        <source>AA large</source>
        <translation>AA grand</translation>
    </message>
    <message>
        <source>fails</source>
        <translation>échec</translation>
    </message>
</context>
<context>
    <name>DisplayNames</name>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Code Snippet</source>
        <translation>Ligne de code</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Vide</translation>
    </message>
    <message>
        <source>Fraction</source>
        <translation>Fraction</translation>
    </message>
    <message>
        <source>Hex</source>
        <translation>Hex</translation>
    </message>
    <message>
        <source>Hex Code</source>
        <translation>Code hexadécimal</translation>
    </message>
    <message>
        <source>Input Error</source>
        <translation>Erreur de saisie</translation>
    </message>
    <message>
        <source>Integer</source>
        <translation>Entier</translation>
    </message>
    <message>
        <source>Lowercase</source>
        <translation>Minuscules</translation>
    </message>
    <message>
        <source>No Match</source>
        <translation>Aucun nom</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Uppercase</source>
        <translation>Majuscules</translation>
    </message>
</context>
<context>
    <name>ListFileFilters</name>
    <message>
        <source>GIMP palettes</source>
        <translation>Palettes de GIMP</translation>
    </message>
    <message>
        <source>CSS custom properties</source>
        <translation>Propriétés personnalisées CSS</translation>
    </message>
    <message>
        <source>SCSS variables</source>
        <translation>Variables SCSS</translation>
    </message>
    <message>
        <source>JSON</source>
        <translation>JSON</translation>
    </message>
    <message>
        <source>Swatch exchange files</source>
        <translation>Fichiers d’échange de nuanciers</translation>
    </message>
    <message>
        <source>SVG pictures</source>
        <translation>Images SVG</translation>
    </message>
    <message>
        <source>Text files</source>
        <translation>Fichiers texte</translation>
    </message>
    <message>
        <source>Colour lists</source>
        <translation>Listes de couleurs</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Design tokens</source>
        <translation>Jetons de design</translation>
    </message>
    <message>
        <source>Colour swatches</source>
        <translation>Nuanciers</translation>
    </message>
    <message>
        <source>Krita palettes</source>
        <translation>Palettes de Krita</translation>
    </message>
    <message>
        <source>Colour tables of office programs</source>
        <translation>Tables de couleurs de suites bureautiques</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Images</translation>
    </message>
</context>
<context>
    <name>Messages</name>
    <message>
        <source>hue</source>
        <translation>teinte</translation>
    </message>
    <message>
        <source>lightness</source>
        <translation>luminosité</translation>
    </message>
    <message>
        <source>red</source>
        <translation>rouge</translation>
    </message>
    <message>
        <source>green</source>
        <translation>vert</translation>
    </message>
    <message>
        <source>blue</source>
        <translation>bleu</translation>
    </message>
    <message>
        <source>saturation</source>
        <translation>saturation</translation>
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
        <translation>opacité</translation>
    </message>
    <message>
        <source>whiteness</source>
        <translation>part de blanc</translation>
    </message>
    <message>
        <source>blackness</source>
        <translation>part de noir</translation>
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
        <translation>chroma</translation>
    </message>
    <message>
        <source>write &quot;%1&quot;</source>
        <translation>écrivez « %1 »</translation>
    </message>
    <message>
        <source>an angle or a number</source>
        <translation>un angle ou un nombre</translation>
    </message>
    <message>
        <source>a number or a percentage</source>
        <translation>un nombre ou un pourcentage</translation>
    </message>
    <message>
        <source>A hex colour without &quot;#&quot; has 3 or 6 digits, not %1</source>
        <translation>Une couleur hexadécimale sans « # » a 3 ou 6 chiffres, et non %1</translation>
    </message>
    <message>
        <source>The text contains no colour</source>
        <translation>Le texte ne contient pas de couleur</translation>
    </message>
    <message>
        <source>write one such as &quot;#ff8000&quot;, &quot;rgb(255 128 0)&quot; or &quot;orange&quot;</source>
        <translation>écrivez-en une comme « #ff8000 », « rgb(255 128 0) » ou « orange »</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a colour</source>
        <translation>« %1 » n’est pas une couleur</translation>
    </message>
    <message>
        <source>&quot;%1&quot; follows the colour</source>
        <translation>« %1 » suit la couleur</translation>
    </message>
    <message>
        <source>give a single colour</source>
        <translation>donnez une seule couleur</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a hex digit</source>
        <translation>« %1 » n’est pas un chiffre hexadécimal</translation>
    </message>
    <message>
        <source>use digits 0 to 9 and letters a to f after the &quot;#&quot;</source>
        <translation>utilisez les chiffres 0 à 9 et les lettres a à f après le « # »</translation>
    </message>
    <message>
        <source>A hex colour has 3, 4, 6 or 8 digits after the &quot;#&quot;, not %1</source>
        <translation>Une couleur hexadécimale a 3, 4, 6 ou 8 chiffres après le « # », et non %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a property, not part of the colour</source>
        <translation>« %1 » est une propriété et ne fait pas partie de la couleur</translation>
    </message>
    <message>
        <source>give only its value, such as &quot;#ff8000&quot;, &quot;rgb(255 128 0)&quot; or &quot;orange&quot;</source>
        <translation>donnez seulement sa valeur, comme « #ff8000 », « rgb(255 128 0) » ou « orange »</translation>
    </message>
    <message>
        <source>The colour of &quot;%1&quot; depends on the page that uses it</source>
        <translation>La couleur de « %1 » dépend de la page qui l’utilise</translation>
    </message>
    <message>
        <source>write a fixed colour such as &quot;#ff8000&quot;, &quot;rgb(255 128 0)&quot; or &quot;orange&quot;</source>
        <translation>écrivez une couleur fixe comme « #ff8000 », « rgb(255 128 0) » ou « orange »</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be directly followed by its parenthesis</source>
        <translation>« %1 » doit être suivi immédiatement de sa parenthèse</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a CSS colour name</source>
        <translation>« %1 » n’est pas un nom de couleur CSS</translation>
    </message>
    <message>
        <source>write a colour such as &quot;#ff8000&quot;, &quot;rgb(255 128 0)&quot; or &quot;orange&quot;</source>
        <translation>écrivez une couleur comme « #ff8000 », « rgb(255 128 0) » ou « orange »</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a supported colour function</source>
        <translation>« %1 » n’est pas une fonction de couleur prise en charge</translation>
    </message>
    <message>
        <source>srgb, srgb-linear, display-p3, display-p3-linear, a98-rgb, prophoto-rgb, rec2020, xyz, xyz-d50 or xyz-d65</source>
        <translation>srgb, srgb-linear, display-p3, display-p3-linear, a98-rgb, prophoto-rgb, rec2020, xyz, xyz-d50 ou xyz-d65</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a colour space of color()</source>
        <translation>« %1 » n’est pas un espace colorimétrique de color()</translation>
    </message>
    <message>
        <source>write %1</source>
        <translation>écrivez %1</translation>
    </message>
    <message>
        <source>color() must begin with a colour space: %1</source>
        <translation>color() doit commencer par un espace colorimétrique : %1</translation>
    </message>
    <message>
        <source>%1 does not take commas between its values</source>
        <translation>%1 n’accepte pas de virgules entre ses valeurs</translation>
    </message>
    <message>
        <source>The hue of %1 must be %2, not &quot;%3&quot;</source>
        <translation>La teinte de %1 doit être %2, et non « %3 »</translation>
    </message>
    <message>
        <source>The %1 of %2 must be %3, not &quot;%4&quot;</source>
        <translation>La valeur « %1 » de %2 doit être %3, et non « %4 »</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an angle</source>
        <translation>« %1 » n’est pas un angle</translation>
    </message>
    <message>
        <source>use the unit deg, grad, rad or turn</source>
        <translation>utilisez l’unité deg, grad, rad ou turn</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not supported inside a colour</source>
        <translation>« %1 » n’est pas pris en charge dans une couleur</translation>
    </message>
    <message>
        <source>write the resulting number</source>
        <translation>écrivez le nombre qui en résulte</translation>
    </message>
    <message>
        <source>The alpha of %1 is missing</source>
        <translation>L’opacité de %1 manque</translation>
    </message>
    <message>
        <source>write %1 before the &quot;)&quot;</source>
        <translation>écrivez %1 avant la « ) »</translation>
    </message>
    <message>
        <source>%1 needs 3 values and has %2</source>
        <translation>%1 demande 3 valeurs et en a %2</translation>
    </message>
    <message>
        <source>The %1 of %2 is missing before &quot;%3&quot;</source>
        <translation>La valeur « %1 » de %2 manque avant « %3 »</translation>
    </message>
    <message>
        <source>insert %1</source>
        <translation>insérez %1</translation>
    </message>
    <message>
        <source>The alpha of %1 must follow a &quot;/&quot;</source>
        <translation>L’opacité de %1 doit suivre un « / »</translation>
    </message>
    <message>
        <source>With commas, the alpha of %1 must also follow a comma</source>
        <translation>Avec des virgules, l’opacité de %1 doit elle aussi suivre une virgule</translation>
    </message>
    <message>
        <source>&quot;none&quot; cannot be used with commas</source>
        <translation>« none » ne peut pas être utilisé avec des virgules</translation>
    </message>
    <message>
        <source>Instead of the &quot;)&quot; of %1 there is &quot;%2&quot;</source>
        <translation>Au lieu de la « ) » de %1, il y a « %2 »</translation>
    </message>
    <message>
        <source>With commas, the values of %1 must be all numbers or all percentages</source>
        <translation>Avec des virgules, les valeurs de %1 doivent être toutes des nombres ou toutes des pourcentages</translation>
    </message>
    <message>
        <source>With commas, the %1 of %2 must be a percentage</source>
        <translation>Avec des virgules, la valeur « %1 » de %2 doit être un pourcentage</translation>
    </message>
    <message>
        <source>The values of %1 must be separated either by commas or by spaces</source>
        <translation>Les valeurs de %1 doivent être séparées ou bien par des virgules, ou bien par des espaces</translation>
    </message>
    <message>
        <source>write &quot;%1&quot; or &quot;%2&quot;</source>
        <translation>écrivez « %1 » ou « %2 »</translation>
    </message>
    <message>
        <source>%1 is not closed</source>
        <translation>%1 n’est pas fermé</translation>
    </message>
    <message>
        <source>add a &quot;)&quot; after the values</source>
        <translation>ajoutez une « ) » après les valeurs</translation>
    </message>
    <message>
        <source>The comment that starts with &quot;/*&quot; is not closed</source>
        <translation>Le commentaire qui commence par « /* » n’est pas fermé</translation>
    </message>
    <message>
        <source>close it with &quot;*/&quot;</source>
        <translation>fermez-le par « */ »</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be saved, so nothing was changed</source>
        <translation>« %1 » n’a pas pu être enregistrée, donc rien n’a été modifié</translation>
    </message>
    <message>
        <source>check that you can write to %1 and that the disk has room</source>
        <translation>vérifiez que vous pouvez écrire dans %1 et qu’il reste de la place sur le disque</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be removed</source>
        <translation>« %1 » n’a pas pu être supprimée</translation>
    </message>
    <message>
        <source>check that you can write to %1</source>
        <translation>vérifiez que vous pouvez écrire dans %1</translation>
    </message>
    <message>
        <source>the file of &quot;%1&quot; could not be removed, so the list exists under both names</source>
        <translation>le fichier de « %1 » n’a pas pu être supprimé, donc la liste existe sous les deux noms</translation>
    </message>
    <message>
        <source>the name was taken, so the list is called &quot;%1&quot;</source>
        <translation>le nom était pris, donc la liste s’appelle « %1 »</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is now a list of your own; the other program&apos;s list is unchanged</source>
        <translation>« %1 » est maintenant votre propre liste ; celle de l’autre programme est inchangée</translation>
    </message>
    <message>
        <source>another program had changed &quot;%1&quot; too; it now has both changes</source>
        <translation>un autre programme avait aussi modifié « %1 » ; elle contient maintenant les deux modifications</translation>
    </message>
    <message>
        <source>another program had changed the same list; its version is unchanged, and yours was saved as &quot;%1&quot;</source>
        <translation>un autre programme avait modifié la même liste ; sa version est inchangée, et la vôtre a été enregistrée sous « %1 »</translation>
    </message>
    <message>
        <source>another program had removed &quot;%1&quot;; it was restored with your change</source>
        <translation>un autre programme avait supprimé « %1 » ; elle a été rétablie avec votre modification</translation>
    </message>
    <message>
        <source>another program has changed &quot;%1&quot;, so it was not removed</source>
        <translation>un autre programme a modifié « %1 », donc elle n’a pas été supprimée</translation>
    </message>
    <message>
        <source>check its colours before you remove it</source>
        <translation>vérifiez ses couleurs avant de la supprimer</translation>
    </message>
    <message>
        <source>the step was undone only in part: later changes by another program to &quot;%1&quot; were kept</source>
        <translation>l’étape n’a été annulée qu’en partie : les modifications ultérieures de « %1 » par un autre programme ont été conservées</translation>
    </message>
    <message>
        <source>the file of &quot;%1&quot; had comments or damaged lines; the original was kept, with &quot;~&quot; appended to its name</source>
        <translation>le fichier de « %1 » avait des commentaires ou des lignes endommagées ; l’original a été conservé, avec « ~ » à la fin de son nom</translation>
    </message>
    <message>
        <source>no colour was picked</source>
        <translation>aucune couleur n’a été prélevée</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a form of a colour</source>
        <translation>« %1 » n’est pas une forme de couleur</translation>
    </message>
    <message>
        <source>use one of: %1</source>
        <translation>utilisez l’une de celles-ci : %1</translation>
    </message>
    <message>
        <source>the panel has lost its name on the session bus: other programs can no longer reach it</source>
        <translation>le panneau a perdu son nom sur le bus de session : les autres programmes ne peuvent plus le joindre</translation>
    </message>
    <message>
        <source>the panel was closed</source>
        <translation>le panneau a été fermé</translation>
    </message>
    <message>
        <source>the session bus has gone: other programs can no longer reach the panel</source>
        <translation>le bus de session a disparu : les autres programmes ne peuvent plus joindre le panneau</translation>
    </message>
    <message>
        <source>the panel that is already running does not answer, so a second one was started</source>
        <translation>le panneau déjà ouvert ne répond pas, donc un second a été lancé</translation>
    </message>
    <message>
        <source>another program has the name %1 on the session bus: other programs cannot reach this panel</source>
        <translation>un autre programme porte le nom %1 sur le bus de session : les autres programmes ne peuvent pas joindre ce panneau</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been removed by another program</source>
        <translation>« %1 » a été supprimée par un autre programme</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been changed by another program</source>
        <translation>« %1 » a été modifiée par un autre programme</translation>
    </message>
    <message>
        <source>a pattern cannot be added to a list</source>
        <translation>un motif ne peut pas être ajouté à une liste</translation>
    </message>
    <message>
        <source>lists store no opacity, so the colour was added without it</source>
        <translation>les listes ne gardent pas l’opacité, donc la couleur a été ajoutée sans elle</translation>
    </message>
    <message>
        <source>the name was taken, so the colour is called &quot;%1&quot;</source>
        <translation>le nom était pris, donc la couleur s’appelle « %1 »</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been removed</source>
        <translation>« %1 » a été supprimée</translation>
    </message>
    <message>
        <source>choose Undo to restore it</source>
        <translation>choisissez Annuler pour la rétablir</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read</source>
        <translation>« %1 » ne peut pas être lu</translation>
    </message>
    <message>
        <source>check that it is a file of at most 64 MiB that you can read</source>
        <translation>vérifiez que c’est un fichier d’au plus 64 Mio que vous pouvez lire</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a colour list that can be read</source>
        <translation>« %1 » n’est pas une liste de couleurs lisible</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been imported</source>
        <translation>« %1 » a été importée</translation>
    </message>
    <message>
        <source>lines that are not colours were left out: %1</source>
        <translation>lignes ignorées, qui ne sont pas des couleurs : %1</translation>
    </message>
    <message>
        <source>saved as %1</source>
        <translation>enregistrée sous %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written</source>
        <translation>« %1 » n’a pas pu être écrit</translation>
    </message>
    <message>
        <source>check that you can write to its folder and that the disk has room</source>
        <translation>vérifiez que vous pouvez écrire dans son dossier et qu’il reste de la place sur le disque</translation>
    </message>
    <message>
        <source>only files on this computer can be imported</source>
        <translation>seuls les fichiers de cet ordinateur peuvent être importés</translation>
    </message>
    <message>
        <source>that is a long text, not a colour</source>
        <translation>c’est un long texte, pas une couleur</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is outside sRGB; this is the nearest colour inside</source>
        <translation>« %1 » est hors de sRGB ; voici la couleur la plus proche à l’intérieur</translation>
    </message>
    <message>
        <source>there is no colour to paste</source>
        <translation>il n’y a pas de couleur à coller</translation>
    </message>
    <message>
        <source>copy a colour, or a CSS text such as #ff8000</source>
        <translation>copiez une couleur ou un texte CSS tel que #ff8000</translation>
    </message>
    <message>
        <source>&quot;%1&quot; copied</source>
        <translation>« %1 » copié</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be opened (%2)</source>
        <translation>« %1 » ne peut pas être ouvert (%2)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; belongs to another user</source>
        <translation>« %1 » appartient à un autre utilisateur</translation>
    </message>
    <message>
        <source>it cannot be loaded</source>
        <translation>il ne peut pas être chargé</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>ce n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>it is not a picker plug-in (it lacks vantorelPluginABI)</source>
        <translation>ce n’est pas un greffon de sélecteur (vantorelPluginABI y manque)</translation>
    </message>
    <message>
        <source>it was built for version %1 of the plug-in interface, and this panel has version %2</source>
        <translation>il a été compilé pour la version %1 de l’interface des greffons, et ce panneau a la version %2</translation>
    </message>
    <message>
        <source>install one that was built for this panel</source>
        <translation>installez-en un qui a été compilé pour ce panneau</translation>
    </message>
    <message>
        <source>it contains no picker</source>
        <translation>il ne contient pas de sélecteur</translation>
    </message>
    <message>
        <source>%1 is the same plug-in and was loaded first</source>
        <translation>%1 est le même greffon et a été chargé d’abord</translation>
    </message>
    <message>
        <source>it did not create a page</source>
        <translation>il n’a pas créé de page</translation>
    </message>
    <message>
        <source>it failed to create its page: %1</source>
        <translation>il n’a pas pu créer sa page : %1</translation>
    </message>
    <message>
        <source>it failed to create its page</source>
        <translation>il n’a pas pu créer sa page</translation>
    </message>
    <message>
        <source>%1 is left out: %2</source>
        <translation>%1 est ignoré : %2</translation>
    </message>
    <message>
        <source>remove the access-control list with &quot;setfacl -b&quot;</source>
        <translation>retirez la liste de contrôle d’accès avec « setfacl -b »</translation>
    </message>
    <message>
        <source>the access-control list of &quot;%1&quot; cannot be read</source>
        <translation>la liste de contrôle d’accès de « %1 » ne peut pas être lue</translation>
    </message>
    <message>
        <source>all users can write to &quot;%1&quot;</source>
        <translation>tous les utilisateurs peuvent écrire dans « %1 »</translation>
    </message>
    <message>
        <source>remove the permission with &quot;chmod o-w&quot;</source>
        <translation>retirez le droit avec « chmod o-w »</translation>
    </message>
    <message>
        <source>a group can write to &quot;%1&quot;</source>
        <translation>un groupe peut écrire dans « %1 »</translation>
    </message>
    <message>
        <source>remove the permission with &quot;chmod g-w&quot;</source>
        <translation>retirez le droit avec « chmod g-w »</translation>
    </message>
    <message>
        <source>another user can write to &quot;%1&quot;</source>
        <translation>un autre utilisateur peut écrire dans « %1 »</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 et %2</translation>
    </message>
    <message>
        <source>this desktop offers no way to pick a colour: %1</source>
        <translation>ce bureau n’offre aucun moyen de prélever une couleur : %1</translation>
    </message>
    <message>
        <source>there is no X11 display</source>
        <translation>il n’y a pas d’affichage X11</translation>
    </message>
    <message>
        <source>the X11 display does not show the windows of Wayland</source>
        <translation>l’affichage X11 ne montre pas les fenêtres de Wayland</translation>
    </message>
    <message>
        <source>the X11 display gives no picture of its screens</source>
        <translation>l’affichage X11 ne donne pas d’image de ses écrans</translation>
    </message>
    <message>
        <source>the desktop portal has no PickColor</source>
        <translation>le portail du bureau n’a pas PickColor</translation>
    </message>
    <message>
        <source>the desktop portal could not pick a colour</source>
        <translation>le portail du bureau n’a pas pu prélever de couleur</translation>
    </message>
    <message>
        <source>there is no desktop portal</source>
        <translation>il n’y a pas de portail du bureau</translation>
    </message>
    <message>
        <source>the desktop portal does not answer</source>
        <translation>le portail du bureau ne répond pas</translation>
    </message>
    <message>
        <source>the desktop portal has gone</source>
        <translation>le portail du bureau a disparu</translation>
    </message>
    <message>
        <source>there is no session bus</source>
        <translation>il n’y a pas de bus de session</translation>
    </message>
    <message>
        <source>the session bus has gone</source>
        <translation>le bus de session a disparu</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Affiche cette aide.</translation>
    </message>
    <message>
        <source>The same as --color COLOR.</source>
        <translation>Identique à --color COLOR.</translation>
    </message>
    <message>
        <source>Start with this colour: any form of CSS Color 5, such as &quot;#ff8000&quot; or &quot;hsl(30 100% 50%)&quot;, or a text that the hex page accepts.</source>
        <translation>Commence par cette couleur : toute forme de CSS Color 5, comme « #ff8000 » ou « hsl(30 100% 50%) », ou un texte que la page Hex accepte.</translation>
    </message>
    <message>
        <source>Start in this mode of the hex page: slider, palette or wheel.</source>
        <translation>Commence dans ce mode de la page Hex : slider, palette ou wheel.</translation>
    </message>
    <message>
        <source>Size of the page in points, such as 260x340.</source>
        <translation>Taille de la page en points, par exemple 260x340.</translation>
    </message>
    <message>
        <source>Write a picture of the window to FILE as PNG and exit. Works without a display and does not change the settings.</source>
        <translation>Écrit une image de la fenêtre dans FILE en PNG et se termine. Fonctionne sans affichage et ne change pas les réglages.</translation>
    </message>
    <message>
        <source>Show this face of the hex page: colors or settings.</source>
        <translation>Montre cette face de la page Hex : colors ou settings.</translation>
    </message>
    <message>
        <source>Keep settings, colour lists and the state of the panel in DIR/Vantorel instead of the user&apos;s own folder. DIR must exist.</source>
        <translation>Garde réglages, listes de couleurs et état du panneau dans DIR/Vantorel au lieu du dossier de l’utilisateur. DIR doit exister.</translation>
    </message>
    <message>
        <source>Also load this picker plug-in. Can be given more than once.</source>
        <translation>Charge aussi ce greffon de sélecteur. Peut être donné plusieurs fois.</translation>
    </message>
    <message>
        <source>Print the colour to standard output as #rrggbbaa whenever it changes.</source>
        <translation>Affiche la couleur sur la sortie standard sous la forme #rrggbbaa à chaque changement.</translation>
    </message>
    <message>
        <source>Pick a colour from the screen, print it as #rrggbb, and exit. Status: 0 picked, 1 cancelled, 3 not possible.</source>
        <translation>Prélève une couleur à l’écran, l’affiche sous la forme #rrggbb et se termine. État : 0 prélevée, 1 annulé, 3 impossible.</translation>
    </message>
    <message>
        <source>Like --pick, and copy the colour to the clipboard.</source>
        <translation>Comme --pick, et copie la couleur dans le presse-papiers.</translation>
    </message>
    <message>
        <source>Copy the panel&apos;s colour with its opacity to the clipboard, in the form that the panel&apos;s field shows, print the text, and exit.</source>
        <translation>Copie la couleur du panneau avec son opacité dans le presse-papiers, sous la forme que montre le champ du panneau, affiche le texte et se termine.</translation>
    </message>
    <message>
        <source>Like --copy, in the form with this name in the panel&apos;s menu.</source>
        <translation>Comme --copy, sous la forme qui porte ce nom dans le menu anglais du panneau.</translation>
    </message>
    <message>
        <source>Let the user choose a colour in a separate panel, print it in the form that a drag out of the panel would carry, and exit. Status: 0 chosen, 1 cancelled, 3 not possible.</source>
        <translation>Fait choisir une couleur dans un panneau séparé, l’affiche sous la forme qu’emporterait un glisser hors du panneau et se termine. État : 0 choisie, 1 annulé, 3 impossible.</translation>
    </message>
    <message>
        <source>Start a new panel even if one is already running.</source>
        <translation>Lance un nouveau panneau même si un autre est déjà ouvert.</translation>
    </message>
    <message>
        <source>Start without a window, answer requests over D-Bus, and exit when there are no more. The session bus starts the panel with this option.</source>
        <translation>Démarre sans fenêtre, répond aux requêtes par D-Bus et se termine quand il n’y en a plus. Le bus de session lance le panneau avec cette option.</translation>
    </message>
    <message>
        <source>Show the version and exit.</source>
        <translation>Affiche la version et se termine.</translation>
    </message>
    <message>
        <source>A colour panel with pages from plug-ins. If a panel is already running, it is shown and carries out COLOR, --color, --pick, --pick-and-copy, --copy and --copy-as.</source>
        <translation>Un panneau de couleurs avec des pages de greffons. Si un panneau est déjà ouvert, il est montré et exécute COLOR, --color, --pick, --pick-and-copy, --copy et --copy-as.</translation>
    </message>
    <message>
        <source>Write JSON, one object per line.</source>
        <translation>Écrit du JSON, un objet par ligne.</translation>
    </message>
    <message>
        <source>Width and height in points, or in pixels for PNG. The default is 640x480.</source>
        <translation>Largeur et hauteur en points, ou en pixels pour PNG. Par défaut 640x480.</translation>
    </message>
    <message>
        <source>The name of the list.</source>
        <translation>Le nom de la liste.</translation>
    </message>
    <message>
        <source>The colour to show. With &quot;-&quot;, or without COLOR, colours are read from standard input, one per line.</source>
        <translation>La couleur à montrer. Avec « - » ou sans COLOR, les couleurs sont lues sur l’entrée standard, une par ligne.</translation>
    </message>
    <message>
        <source>Take the name from this list instead of the list in the settings. With standard input, add the name to each line.</source>
        <translation>Prend le nom dans cette liste au lieu de celle des réglages. Avec l’entrée standard, ajoute le nom à chaque ligne.</translation>
    </message>
    <message>
        <source>Write only the text of this snippet.</source>
        <translation>N’écrit que le texte de cette ligne de code.</translation>
    </message>
    <message>
        <source>Write hex digits in lower case.</source>
        <translation>Écrit les chiffres hexadécimaux en minuscules.</translation>
    </message>
    <message>
        <source>Write hex digits in upper case. Without --lowercase or --uppercase, the settings decide.</source>
        <translation>Écrit les chiffres hexadécimaux en majuscules. Sans --lowercase ni --uppercase, les réglages décident.</translation>
    </message>
    <message>
        <source>Write hex codes without &quot;#&quot;.</source>
        <translation>Écrit les codes hexadécimaux sans « # ».</translation>
    </message>
    <message>
        <source>Write hex codes with &quot;#&quot;. Without --pound-sign or --no-pound-sign, the settings decide.</source>
        <translation>Écrit les codes hexadécimaux avec « # ». Sans --pound-sign ni --no-pound-sign, les réglages décident.</translation>
    </message>
    <message>
        <source>The colour to name; read as for &quot;show&quot;.</source>
        <translation>La couleur à nommer ; lue comme pour « show ».</translation>
    </message>
    <message>
        <source>Take the names from this list instead of the list in the settings.</source>
        <translation>Prend les noms dans cette liste au lieu de celle des réglages.</translation>
    </message>
    <message>
        <source>Print only the names, one per line.</source>
        <translation>N’affiche que les noms, un par ligne.</translation>
    </message>
    <message>
        <source>Write JSON.</source>
        <translation>Écrit du JSON.</translation>
    </message>
    <message>
        <source>A palette file in any format of &quot;export&quot; except svg.</source>
        <translation>Un fichier de palette dans un format d’« export » autre que svg.</translation>
    </message>
    <message>
        <source>Save the list under this name. Requires a single FILE.</source>
        <translation>Enregistre la liste sous ce nom. Demande un seul FILE.</translation>
    </message>
    <message>
        <source>Replace lists of the same name without asking.</source>
        <translation>Remplace les listes de même nom sans demander.</translation>
    </message>
    <message>
        <source>Write to FILE instead of standard output.</source>
        <translation>Écrit dans FILE au lieu de la sortie standard.</translation>
    </message>
    <message>
        <source>Replace files with different contents without asking.</source>
        <translation>Remplace les fichiers au contenu différent sans demander.</translation>
    </message>
    <message>
        <source>Revert the last publish of the list: restore the files that it replaced and remove those that it created. Files that have changed since are kept.</source>
        <translation>Annule la dernière publication de la liste : rétablit les fichiers remplacés et supprime ceux qui ont été créés. Les fichiers modifiés depuis sont conservés.</translation>
    </message>
    <message>
        <source>The name of the list. If it is also the name of a command, put &quot;--&quot; before it.</source>
        <translation>Le nom de la liste. Si c’est aussi le nom d’une commande, mettez « -- » devant.</translation>
    </message>
    <message>
        <source>Add palette files to your colour lists.
A list of the same name is replaced only if you agree.</source>
        <translation>Ajoute des fichiers de palette à vos listes de couleurs.
Une liste de même nom n’est remplacée qu’avec votre accord.</translation>
    </message>
    <message>
        <source>Write a colour list in a format that other programs read.</source>
        <translation>Écrit une liste de couleurs dans un format que d’autres programmes lisent.</translation>
    </message>
    <message>
        <source>Put a colour list into the palette folders of graphics programs.
A palette file is written into your palette folder of every version of GIMP, of Inkscape, Krita and KDE, if the folder exists. A file with different contents is replaced only if you agree.</source>
        <translation>Place une liste de couleurs dans les dossiers de palettes des programmes graphiques.
Un fichier de palette est écrit dans votre dossier de palettes de chaque version de GIMP, d’Inkscape, de Krita et de KDE, si ce dossier existe. Un fichier au contenu différent n’est remplacé qu’avec votre accord.</translation>
    </message>
    <message>
        <source>The foreground colour, then the background colour.</source>
        <translation>La couleur du premier plan, puis celle du fond.</translation>
    </message>
    <message>
        <source>Number of rings, 2 to 128. The default is the number in the settings.</source>
        <translation>Nombre d’anneaux, de 2 à 128. Par défaut celui des réglages.</translation>
    </message>
    <message>
        <source>Write SVG to FILE; &quot;-&quot; is standard output.</source>
        <translation>Écrit du SVG dans FILE ; « - » est la sortie standard.</translation>
    </message>
    <message>
        <source>Write PNG to FILE; &quot;-&quot; is standard output.</source>
        <translation>Écrit du PNG dans FILE ; « - » est la sortie standard.</translation>
    </message>
    <message>
        <source>Copy the colour to the clipboard.</source>
        <translation>Copie la couleur dans le presse-papiers.</translation>
    </message>
    <message>
        <source>The colour to start with.</source>
        <translation>La couleur de départ.</translation>
    </message>
    <message>
        <source>bash, zsh or fish.</source>
        <translation>bash, zsh ou fish.</translation>
    </message>
    <message>
        <source>Print the completion script of vantorel-panel.</source>
        <translation>Affiche le script de complétion de vantorel-panel.</translation>
    </message>
    <message>
        <source>Print the manual page of vantorel-panel.</source>
        <translation>Affiche la page de manuel de vantorel-panel.</translation>
    </message>
    <message>
        <source>Print the name of each colour on a line of its own.
If the list has no exact name but CSS Color 4 has one, that name is printed, followed by &quot;(CSS Color 4)&quot;. If neither has, the names of close colours follow a &quot;*&quot;; if no colour is close, the line is &quot;No Match&quot;.</source>
        <translation>Affiche le nom de chaque couleur sur sa propre ligne.
Si la liste n’a pas de nom exact mais que CSS Color 4 en a un, ce nom est affiché, suivi de « (CSS Color 4) ». Si aucune n’en a, les noms des couleurs proches suivent un « * » ; si aucune n’est proche, la ligne est « No Match ».</translation>
    </message>
    <message>
        <source>List all colour lists with their number of colours, name and file.</source>
        <translation>Affiche toutes les listes de couleurs avec leur nombre de couleurs, leur nom et leur fichier.</translation>
    </message>
    <message>
        <source>List the colours of a list, or import, export or publish a list.</source>
        <translation>Affiche les couleurs d’une liste, ou importe, exporte ou publie une liste.</translation>
    </message>
    <message>
        <source>Print the contrast ratio of two colours and the criteria of WCAG 2.2 that it meets.
The ratio is truncated to two decimals, not rounded.</source>
        <translation>Affiche le rapport de contraste de deux couleurs et les critères de WCAG 2.2 qu’il remplit.
Le rapport est tronqué à deux décimales, pas arrondi.</translation>
    </message>
    <message>
        <source>Draw the colour wheel.</source>
        <translation>Dessine la roue des couleurs.</translation>
    </message>
    <message>
        <source>Draw the palette of a colour list.</source>
        <translation>Dessine la palette d’une liste de couleurs.</translation>
    </message>
    <message>
        <source>Pick a colour from the screen and print it (vantorel-panel).</source>
        <translation>Prélève une couleur à l’écran et l’affiche (vantorel-panel).</translation>
    </message>
    <message>
        <source>Choose a colour in the colour panel and print it (vantorel-panel).</source>
        <translation>Fait choisir une couleur dans le panneau et l’affiche (vantorel-panel).</translation>
    </message>
    <message>
        <source>Start the colour panel with the options that follow. &quot;panel --help&quot; lists them.</source>
        <translation>Lance le panneau avec les options qui suivent. « panel --help » les affiche.</translation>
    </message>
    <message>
        <source>Print a completion script for a shell.
For bash: source &lt;(vantorel completions bash)</source>
        <translation>Affiche un script de complétion pour un shell.
Pour bash : source &lt;(vantorel completions bash)</translation>
    </message>
    <message>
        <source>Print the manual page, formatted for man.</source>
        <translation>Affiche la page de manuel, au format de man.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Affiche la version.</translation>
    </message>
    <message>
        <source>palette of graphics programs</source>
        <translation>palette de programmes graphiques</translation>
    </message>
    <message>
        <source>custom properties</source>
        <translation>propriétés personnalisées</translation>
    </message>
    <message>
        <source>variables</source>
        <translation>variables</translation>
    </message>
    <message>
        <source>swatch exchange, binary</source>
        <translation>échange de nuanciers, binaire</translation>
    </message>
    <message>
        <source>a picture with names</source>
        <translation>une image avec les noms</translation>
    </message>
    <message>
        <source>there is no snippet &quot;%1&quot;</source>
        <translation>il n’y a pas de ligne de code « %1 »</translation>
    </message>
    <message>
        <source>run &quot;vantorel snippets&quot; to list them</source>
        <translation>« vantorel snippets » les affiche</translation>
    </message>
    <message>
        <source>there is no colour list with names</source>
        <translation>il n’y a pas de liste de couleurs pour nommer les couleurs</translation>
    </message>
    <message>
        <source>choose one with &quot;--list NAME&quot;; run &quot;vantorel lists&quot; to list them</source>
        <translation>choisissez-en une avec « --list NAME » ; « vantorel lists » les affiche</translation>
    </message>
    <message>
        <source>standard input, line %1: %2</source>
        <translation>entrée standard, ligne %1 : %2</translation>
    </message>
    <message>
        <source>standard input has %1 more lines that are not colours</source>
        <translation>l’entrée standard a %1 autres lignes qui ne sont pas des couleurs</translation>
    </message>
    <message>
        <source>give one colour per line</source>
        <translation>donnez une couleur par ligne</translation>
    </message>
    <message>
        <source>the line is longer than 64 KiB</source>
        <translation>la ligne dépasse 64 Kio</translation>
    </message>
    <message>
        <source>standard input cannot be read</source>
        <translation>l’entrée standard ne peut pas être lue</translation>
    </message>
    <message>
        <source>give colours as arguments, or redirect standard input from a file or program</source>
        <translation>donnez des couleurs en arguments, ou redirigez l’entrée standard depuis un fichier ou un programme</translation>
    </message>
    <message>
        <source>--size cannot be &quot;%1&quot;</source>
        <translation>--size ne peut pas être « %1 »</translation>
    </message>
    <message>
        <source>use a size from 8x8 to 16384x16384, such as 640x480</source>
        <translation>utilisez une taille de 8x8 à 16384x16384, par exemple 640x480</translation>
    </message>
    <message>
        <source>use a whole number from %1 to %2</source>
        <translation>utilisez un nombre entier de %1 à %2</translation>
    </message>
    <message>
        <source>this format is binary and is not written to a terminal</source>
        <translation>ce format est binaire et n’est pas écrit sur un terminal</translation>
    </message>
    <message>
        <source>give a file, or redirect the output</source>
        <translation>donnez un fichier, ou redirigez la sortie</translation>
    </message>
    <message>
        <source>check that it is a readable file of at most 64 MiB</source>
        <translation>vérifiez que c’est un fichier lisible d’au plus 64 Mio</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: %2</source>
        <translation>« %1 » : %2</translation>
    </message>
    <message>
        <source>a list &quot;%1&quot; with different colours already exists</source>
        <translation>une liste « %1 » avec d’autres couleurs existe déjà</translation>
    </message>
    <message>
        <source>use &quot;--yes&quot; to replace it, or &quot;--name NAME&quot; to choose another name</source>
        <translation>« --yes » la remplace, « --name NAME » choisit un autre nom</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not imported</source>
        <translation>« %1 » n’a pas été importée</translation>
    </message>
    <message>
        <source>use &quot;--name NAME&quot; to choose another name</source>
        <translation>« --name NAME » choisit un autre nom</translation>
    </message>
    <message>
        <source>the list &quot;%1&quot; cannot be saved</source>
        <translation>la liste « %1 » ne peut pas être enregistrée</translation>
    </message>
    <message>
        <source>check that you can write to your data folder</source>
        <translation>vérifiez que vous pouvez écrire dans votre dossier de données</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: %2 lines or entries were skipped</source>
        <translation>« %1 » : %2 lignes ou entrées ont été ignorées</translation>
    </message>
    <message>
        <source>each must contain one colour</source>
        <translation>chacune doit contenir une couleur</translation>
    </message>
    <message>
        <source>NAME is missing</source>
        <translation>NAME manque</translation>
    </message>
    <message>
        <source>run &quot;vantorel lists&quot; to list the names, or &quot;vantorel list --help&quot; for the commands</source>
        <translation>« vantorel lists » affiche les noms, « vantorel list --help » les commandes</translation>
    </message>
    <message>
        <source>--name is given for %1 files</source>
        <translation>--name est donné pour %1 fichiers</translation>
    </message>
    <message>
        <source>use it with a single FILE</source>
        <translation>utilisez-le avec un seul FILE</translation>
    </message>
    <message>
        <source>--name is empty</source>
        <translation>--name est vide</translation>
    </message>
    <message>
        <source>give the list a name</source>
        <translation>donnez un nom à la liste</translation>
    </message>
    <message>
        <source>no output file is given</source>
        <translation>aucun fichier de sortie n’est donné</translation>
    </message>
    <message>
        <source>give --svg FILE or --png FILE</source>
        <translation>donnez --svg FILE ou --png FILE</translation>
    </message>
    <message>
        <source>the picture cannot be drawn</source>
        <translation>l’image ne peut pas être dessinée</translation>
    </message>
    <message>
        <source>try a smaller --size</source>
        <translation>essayez un --size plus petit</translation>
    </message>
    <message>
        <source>standard output cannot be written (%1)</source>
        <translation>la sortie standard ne peut pas être écrite (%1)</translation>
    </message>
    <message>
        <source>redirect it to a file with free space, or to a program that reads it</source>
        <translation>redirigez-la vers un fichier qui a de la place, ou vers un programme qui la lit</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written</source>
        <translation>« %1 » ne peut pas être écrit</translation>
    </message>
    <message>
        <source>check that its folder exists and that you can write to it</source>
        <translation>vérifiez que son dossier existe et que vous pouvez y écrire</translation>
    </message>
    <message>
        <source>the program vantorel-panel is missing</source>
        <translation>le programme vantorel-panel manque</translation>
    </message>
    <message>
        <source>install it beside vantorel or in a folder of PATH</source>
        <translation>installez-le à côté de vantorel ou dans un dossier de PATH</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be run (%2)</source>
        <translation>« %1 » ne peut pas être exécuté (%2)</translation>
    </message>
    <message>
        <source>reinstall vantorel-panel</source>
        <translation>réinstallez vantorel-panel</translation>
    </message>
    <message>
        <source>the record of published files cannot be read</source>
        <translation>le registre des fichiers publiés ne peut pas être lu</translation>
    </message>
    <message>
        <source>check that you can read your data folder</source>
        <translation>vérifiez que vous pouvez lire votre dossier de données</translation>
    </message>
    <message>
        <source>the list &quot;%1&quot; has not been published</source>
        <translation>la liste « %1 » n’a pas été publiée</translation>
    </message>
    <message>
        <source>only lists published with &quot;vantorel list publish&quot; can be undone</source>
        <translation>seules les listes publiées avec « vantorel list publish » peuvent être annulées</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has changed since it was published</source>
        <translation>« %1 » a changé depuis sa publication</translation>
    </message>
    <message>
        <source>it is kept; remove it yourself if you do not need it</source>
        <translation>il est conservé ; supprimez-le vous-même s’il ne sert plus</translation>
    </message>
    <message>
        <source>check that you can write to its folder</source>
        <translation>vérifiez que vous pouvez écrire dans son dossier</translation>
    </message>
    <message>
        <source>the record of published files cannot be written</source>
        <translation>le registre des fichiers publiés ne peut pas être écrit</translation>
    </message>
    <message>
        <source>no graphics program has a folder for your palettes</source>
        <translation>aucun programme graphique n’a de dossier pour vos palettes</translation>
    </message>
    <message>
        <source>start GIMP, Inkscape or Krita once to create it</source>
        <translation>lancez GIMP, Inkscape ou Krita une fois pour le créer</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be replaced</source>
        <translation>« %1 » ne peut pas être remplacé</translation>
    </message>
    <message>
        <source>remove it, or make it a readable file</source>
        <translation>supprimez-le, ou faites-en un fichier lisible</translation>
    </message>
    <message>
        <source>&quot;%1&quot; already exists with different contents</source>
        <translation>« %1 » existe déjà avec un autre contenu</translation>
    </message>
    <message>
        <source>use &quot;--yes&quot; to replace it</source>
        <translation>« --yes » le remplace</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has just been changed by another program</source>
        <translation>« %1 » vient d’être modifié par un autre programme</translation>
    </message>
    <message>
        <source>publish again</source>
        <translation>publiez à nouveau</translation>
    </message>
    <message>
        <source>the record of published files cannot be written, so no file was published</source>
        <translation>le registre des fichiers publiés ne peut pas être écrit, donc aucun fichier n’a été publié</translation>
    </message>
    <message>
        <source>there is no colour list &quot;%1&quot;</source>
        <translation>il n’y a pas de liste de couleurs « %1 »</translation>
    </message>
    <message>
        <source>run &quot;vantorel lists&quot; to list them</source>
        <translation>« vantorel lists » les affiche</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>mémoire insuffisante</translation>
    </message>
    <message>
        <source>try fewer colours at a time</source>
        <translation>essayez avec moins de couleurs à la fois</translation>
    </message>
    <message>
        <source>see &quot;%1 --help&quot;</source>
        <translation>voyez « %1 --help »</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a command</source>
        <translation>« %1 » n’est pas une commande</translation>
    </message>
    <message>
        <source>put it after &quot;%1&quot;</source>
        <translation>placez-le après « %1 »</translation>
    </message>
    <message>
        <source>&quot;%1&quot; precedes the command</source>
        <translation>« %1 » précède la commande</translation>
    </message>
    <message>
        <source>%1 precedes the command</source>
        <translation>%1 précède la commande</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no option &quot;%2&quot;</source>
        <translation>« %1 » n’a pas d’option « %2 »</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 ne prend pas de valeur</translation>
    </message>
    <message>
        <source>%1 requires a value</source>
        <translation>%1 demande une valeur</translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <translation>%1 est donné deux fois</translation>
    </message>
    <message>
        <source>%1 is required</source>
        <translation>%1 est obligatoire</translation>
    </message>
    <message>
        <source>%1 cannot be combined with %2</source>
        <translation>%1 ne peut pas être combiné avec %2</translation>
    </message>
    <message>
        <source>the command is missing</source>
        <translation>la commande manque</translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation>%1 manque</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is one argument too many</source>
        <translation>« %1 » est un argument de trop</translation>
    </message>
    <message>
        <source>%1 cannot be &quot;%2&quot;</source>
        <translation>%1 ne peut pas être « %2 »</translation>
    </message>
    <message>
        <source>use %1</source>
        <translation>utilisez %1</translation>
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
        <translation>%1 ou %2</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation>Utilisation : %1</translation>
    </message>
    <message>
        <source>Arguments:</source>
        <translation>Arguments :</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Commandes :</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Options :</translation>
    </message>
    <message>
        <source>&quot;%1 COMMAND --help&quot; shows the help of a command.</source>
        <translation>« %1 COMMAND --help » affiche l’aide d’une commande.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: %2</source>
        <translation>« %1 » ne peut pas être lu : %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2</source>
        <translation>« %1 » ne peut pas être écrit : %2</translation>
    </message>
    <message>
        <source>its arrays and objects are more than %1 deep</source>
        <translation>ses tableaux et objets dépassent %1 niveaux</translation>
    </message>
    <message>
        <source>give a list of names and colours</source>
        <translation>donnez une liste de noms et de couleurs</translation>
    </message>
    <message>
        <source>it is not a JSON colour list</source>
        <translation>ce n’est pas une liste de couleurs en JSON</translation>
    </message>
    <message>
        <source>it contains no colours</source>
        <translation>il ne contient pas de couleurs</translation>
    </message>
    <message>
        <source>give a file in any format of &quot;export&quot; except svg</source>
        <translation>donnez un fichier dans un format d’« export » autre que svg</translation>
    </message>
    <message>
        <source>it is a palette without colours</source>
        <translation>c’est une palette sans couleurs</translation>
    </message>
    <message>
        <source>give one with rows &quot;R G B NAME&quot;</source>
        <translation>donnez-en une avec des lignes « R G B NOM »</translation>
    </message>
    <message>
        <source>it is truncated</source>
        <translation>il est tronqué</translation>
    </message>
    <message>
        <source>give the complete file</source>
        <translation>donnez le fichier complet</translation>
    </message>
    <message>
        <source>give a file with RGB, CMYK, Lab or grey colours</source>
        <translation>donnez un fichier avec des couleurs RGB, CMYK, Lab ou en gris</translation>
    </message>
    <message>
        <source>pictures cannot be imported</source>
        <translation>les images ne peuvent pas être importées</translation>
    </message>
    <message>
        <source>give a palette, such as one exported with &quot;--format gpl&quot;</source>
        <translation>donnez une palette, par exemple exportée avec « --format gpl »</translation>
    </message>
    <message>
        <source>--page: there is no page &quot;%1&quot;</source>
        <translation>--page : il n’y a pas de page « %1 »</translation>
    </message>
    <message>
        <source>%1 cannot be combined</source>
        <translation>%1 ne peuvent pas être combinés</translation>
    </message>
    <message>
        <source>COLOR and --color cannot be combined</source>
        <translation>COLOR et --color ne peuvent pas être combinés</translation>
    </message>
    <message>
        <source>--color: %1</source>
        <translation>--color : %1</translation>
    </message>
    <message>
        <source>--size: &quot;%1&quot; is not a size</source>
        <translation>--size : « %1 » n’est pas une taille</translation>
    </message>
    <message>
        <source>try 260x340</source>
        <translation>essayez 260x340</translation>
    </message>
    <message>
        <source>--data: there is no folder &quot;%1&quot;</source>
        <translation>--data : il n’y a pas de dossier « %1 »</translation>
    </message>
    <message>
        <source>--screenshot: &quot;%1&quot; cannot be written</source>
        <translation>--screenshot : « %1 » ne peut pas être écrit</translation>
    </message>
    <message>
        <source>there is no display (neither WAYLAND_DISPLAY nor DISPLAY is set); --screenshot FILE works without one</source>
        <translation>il n’y a pas d’affichage (ni WAYLAND_DISPLAY ni DISPLAY ne sont définis) ; --screenshot FILE s’en passe</translation>
    </message>
    <message>
        <source>&quot;%1&quot; already exists: %2 colours</source>
        <translation>« %1 » existe déjà : %2 couleurs</translation>
    </message>
    <message>
        <source>Replace the list &quot;%1&quot;?</source>
        <translation>Remplacer la liste « %1 » ?</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: %2 colours from %3</source>
        <translation>« %1 » : %2 couleurs de %3</translation>
    </message>
    <message>
        <source>restored: %1</source>
        <translation>rétabli : %1</translation>
    </message>
    <message>
        <source>removed: %1</source>
        <translation>supprimé : %1</translation>
    </message>
    <message>
        <source>already undone: %1</source>
        <translation>déjà annulé : %1</translation>
    </message>
    <message>
        <source>up to date: %1</source>
        <translation>à jour : %1</translation>
    </message>
    <message>
        <source>Replace &quot;%1&quot;, which has different contents?</source>
        <translation>Remplacer « %1 », dont le contenu est différent ?</translation>
    </message>
    <message>
        <source>kept: %1</source>
        <translation>conservé : %1</translation>
    </message>
    <message>
        <source>replaced for %1</source>
        <translation>remplacé pour %1</translation>
    </message>
    <message>
        <source>written for %1</source>
        <translation>écrit pour %1</translation>
    </message>
    <message>
        <source>%1 [y/N]</source>
        <translation>%1 [o/N]</translation>
    </message>
    <message>
        <source>y</source>
        <translation>o</translation>
    </message>
    <message>
        <source>the list &quot;%1&quot; has just been changed</source>
        <translation>la liste « %1 » vient d’être modifiée</translation>
    </message>
    <message>
        <source>import once more</source>
        <translation>importez à nouveau</translation>
    </message>
    <message>
        <source>another program is still changing files in &quot;%1&quot;</source>
        <translation>un autre programme modifie encore des fichiers dans « %1 »</translation>
    </message>
    <message>
        <source>try again when it has finished</source>
        <translation>réessayez quand il aura fini</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: it is not a regular file</source>
        <translation>« %1 » ne peut pas être lu : ce n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>another program is still changing colour lists, so &quot;%1&quot; was not changed</source>
        <translation>un autre programme modifie encore des listes de couleurs, donc « %1 » n’a pas été modifiée</translation>
    </message>
    <message>
        <source>standard output cannot be written: %1</source>
        <translation>la sortie standard ne peut pas être écrite : %1</translation>
    </message>
    <message>
        <source>the working folder cannot be read: %1</source>
        <translation>le dossier de travail ne peut pas être lu : %1</translation>
    </message>
    <message>
        <source>use the absolute path of the plug-in</source>
        <translation>utilisez le chemin absolu du greffon</translation>
    </message>
    <message>
        <source>this colour has no text</source>
        <translation>cette couleur n’a pas de texte</translation>
    </message>
    <message>
        <source>the desktop did not let the panel copy</source>
        <translation>le bureau n’a pas autorisé la copie</translation>
    </message>
    <message>
        <source>show the panel and copy there</source>
        <translation>affichez le panneau et copiez-y la couleur</translation>
    </message>
    <message>
        <source>the panel did not answer, and may not have copied the colour</source>
        <translation>le panneau n’a pas répondu et n’a peut-être pas copié la couleur</translation>
    </message>
    <message>
        <source>the program that holds the clipboard does not answer</source>
        <translation>le programme qui détient le presse-papiers ne répond pas</translation>
    </message>
    <message>
        <source>copy again, or close that program</source>
        <translation>copiez de nouveau, ou fermez ce programme</translation>
    </message>
    <message>
        <source>The user cancelled, a picture could not be written, or there is no display.</source>
        <translation>L’utilisateur a annulé, une image n’a pas pu être écrite ou il n’y a pas d’affichage.</translation>
    </message>
    <message>
        <source>The command line is wrong.</source>
        <translation>La ligne de commande est incorrecte.</translation>
    </message>
    <message>
        <source>Picking, choosing or copying is not possible; the reason is reported on standard error.</source>
        <translation>Il n’est pas possible de prélever, de choisir ou de copier ; la raison est signalée sur l’erreur standard.</translation>
    </message>
    <message>
        <source>The user&apos;s settings, colour lists and plug-ins. If the variable is not set, the folder is ~/.local/share/Vantorel/.</source>
        <translation>Les réglages, listes de couleurs et greffons de l’utilisateur. Si la variable n’est pas définie, le dossier est ~/.local/share/Vantorel/.</translation>
    </message>
    <message>
        <source>An error, such as a wrong option, a text that is not a colour, or a file that cannot be read. It is reported on standard error.</source>
        <translation>Une erreur, comme une option incorrecte, un texte qui n’est pas une couleur ou un fichier illisible. Elle est signalée sur l’erreur standard.</translation>
    </message>
    <message>
        <source>&quot;choose&quot; or &quot;pick&quot; is not possible, for example without a display.</source>
        <translation>« choose » ou « pick » n’est pas possible, par exemple sans affichage.</translation>
    </message>
    <message>
        <source>If it is &quot;truecolor&quot; or &quot;24bit&quot;, a terminal shows a patch of each colour.</source>
        <translation>Si elle vaut « truecolor » ou « 24bit », un terminal montre un échantillon de chaque couleur.</translation>
    </message>
    <message>
        <source>If it is set and not empty, no patches are shown.</source>
        <translation>Si elle est définie et n’est pas vide, aucun échantillon n’est montré.</translation>
    </message>
    <message>
        <source>The folder that contains settings and colour lists, instead of ~/.local/share.</source>
        <translation>Le dossier qui contient les réglages et les listes de couleurs, au lieu de ~/.local/share.</translation>
    </message>
    <message>
        <source>The folder that contains the palettes of graphics programs, instead of ~/.config.</source>
        <translation>Le dossier qui contient les palettes des programmes graphiques, au lieu de ~/.config.</translation>
    </message>
    <message>
        <source>The settings of the colour picker. They are never changed.</source>
        <translation>Les réglages du sélecteur. Ils ne sont jamais modifiés.</translation>
    </message>
    <message>
        <source>Your colour lists.</source>
        <translation>Vos listes de couleurs.</translation>
    </message>
    <message>
        <source>The files that &quot;list publish&quot; replaced, for its option --undo.</source>
        <translation>Les fichiers que « list publish » a remplacés, pour son option --undo.</translation>
    </message>
    <message>
        <source>&quot;pick&quot;, &quot;choose&quot; and &quot;panel&quot; exit with the status of vantorel-panel.</source>
        <translation>« pick », « choose » et « panel » se terminent avec l’état de vantorel-panel.</translation>
    </message>
    <message>
        <source>User Commands</source>
        <translation>Commandes de l’utilisateur</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NOM</translation>
    </message>
    <message>
        <source>SYNOPSIS</source>
        <translation>SYNOPSIS</translation>
    </message>
    <message>
        <source>DESCRIPTION</source>
        <translation>DESCRIPTION</translation>
    </message>
    <message>
        <source>OPTIONS</source>
        <translation>OPTIONS</translation>
    </message>
    <message>
        <source>Show help. After a command, show the help of that command.</source>
        <translation>Affiche l’aide ; après une commande, l’aide de cette commande.</translation>
    </message>
    <message>
        <source>COMMANDS</source>
        <translation>COMMANDES</translation>
    </message>
    <message>
        <source>SEE ALSO</source>
        <translation>VOIR AUSSI</translation>
    </message>
    <message>
        <source>EXIT STATUS</source>
        <translation>CODE DE RETOUR</translation>
    </message>
    <message>
        <source>FILES</source>
        <translation>FICHIERS</translation>
    </message>
    <message>
        <source>a colour panel with pages from plug-ins</source>
        <translation>un panneau de couleurs avec des pages de greffons</translation>
    </message>
    <message>
        <source>ENVIRONMENT</source>
        <translation>ENVIRONNEMENT</translation>
    </message>
    <message>
        <source>EXAMPLES</source>
        <translation>EXEMPLES</translation>
    </message>
    <message>
        <source>colours for people who write CSS and code</source>
        <translation>des couleurs pour celles et ceux qui écrivent du CSS et du code</translation>
    </message>
    <message>
        <source>The command succeeded.</source>
        <translation>La commande a réussi.</translation>
    </message>
    <message>
        <source>a part of it is missing</source>
        <translation>il en manque une partie</translation>
    </message>
    <message>
        <source>install it again</source>
        <translation>réinstallez-le</translation>
    </message>
    <message>
        <source>qt, gtk or gimp. Without PROGRAMS, all that are installed.</source>
        <translation>qt, gtk ou gimp. Sans PROGRAMS, tous ceux qui sont installés.</translation>
    </message>
    <message>
        <source>Print whether the page is in the dialogs; so does the command without an option.</source>
        <translation>Indiquer si la page est dans les dialogues ; la commande sans option fait de même.</translation>
    </message>
    <message>
        <source>Add the page to the colour dialogs.</source>
        <translation>Ajouter la page aux dialogues de couleur.</translation>
    </message>
    <message>
        <source>Take the page out of the colour dialogs, and remove all that --on has written.</source>
        <translation>Retirer la page des dialogues de couleur et supprimer tout ce que --on a écrit.</translation>
    </message>
    <message>
        <source>Add the colour page to the colour dialogs of other programs.
Programs of Qt and of GTK 3, and GIMP, then show the page in their own colour dialogs. Nothing is changed before you use --on, which changes your own settings only.</source>
        <translation>Ajouter la page de couleur aux dialogues de couleur d&apos;autres programmes.
Les programmes de Qt et de GTK 3, ainsi que GIMP, affichent alors la page dans leurs propres dialogues de couleur. Rien ne change avant --on, qui ne modifie que vos propres réglages.</translation>
    </message>
    <message>
        <source>The plug-ins of &quot;dialogs --on&quot;, and what its option --off restores.</source>
        <translation>Les modules de « dialogs --on » et ce que l&apos;option --off rétablit.</translation>
    </message>
    <message>
        <source>The environment in which programs find these plug-ins.</source>
        <translation>L&apos;environnement dans lequel les programmes trouvent ces modules.</translation>
    </message>
    <message>
        <source>GTK&apos;s list of modules, to which ours is added.</source>
        <translation>La liste des modules de GTK, à laquelle le nôtre est ajouté.</translation>
    </message>
    <message>
        <source>The programs whose dialogs stay as they are, one per line.</source>
        <translation>Les programmes dont les dialogues restent tels quels, un par ligne.</translation>
    </message>
    <message>
        <source>no page for the dialogs of other programs is installed</source>
        <translation>aucune page pour les dialogues d&apos;autres programmes n&apos;est installée</translation>
    </message>
    <message>
        <source>install the package for the programs</source>
        <translation>installez le paquet pour ces programmes</translation>
    </message>
    <message>
        <source>you have no folder for your settings</source>
        <translation>vous n&apos;avez pas de dossier pour vos réglages</translation>
    </message>
    <message>
        <source>set HOME</source>
        <translation>définissez HOME</translation>
    </message>
    <message>
        <source>the libraries of Vantorel are not beside this program</source>
        <translation>les bibliothèques de Vantorel ne sont pas à côté de ce programme</translation>
    </message>
    <message>
        <source>use the installed program</source>
        <translation>utilisez le programme installé</translation>
    </message>
    <message>
        <source>%1: not installed</source>
        <translation>%1 : non installé</translation>
    </message>
    <message>
        <source>%1: off</source>
        <translation>%1 : désactivé</translation>
    </message>
    <message>
        <source>%1: off; start it once, then turn it on</source>
        <translation>%1 : désactivé ; démarrez-le une fois, puis activez</translation>
    </message>
    <message>
        <source>%1: on</source>
        <translation>%1 : activé</translation>
    </message>
    <message>
        <source>%1: on after your next login</source>
        <translation>%1 : activé à partir de votre prochaine session</translation>
    </message>
    <message>
        <source>%1: on after your next login, because this desktop sets its modules itself</source>
        <translation>%1 : activé à partir de votre prochaine session, car ce bureau fixe lui-même les modules</translation>
    </message>
    <message>
        <source>%1: on, but for another version; turn it on again</source>
        <translation>%1 : activé, mais pour une autre version ; activez-le de nouveau</translation>
    </message>
    <message>
        <source>%1: off; to remove the rest, turn it off again after your next login</source>
        <translation>%1 : désactivé ; pour supprimer le reste, désactivez de nouveau à votre prochaine session</translation>
    </message>
    <message>
        <source>another program is changing the colour dialogs</source>
        <translation>un autre programme modifie les dialogues de couleur</translation>
    </message>
    <message>
        <source>try again</source>
        <translation>réessayez</translation>
    </message>
    <message>
        <source>the page for %1 is not installed</source>
        <translation>la page pour %1 n&apos;est pas installée</translation>
    </message>
    <message>
        <source>install the package for it</source>
        <translation>installez le paquet correspondant</translation>
    </message>
    <message>
        <source>GIMP has no folder for your modules</source>
        <translation>GIMP n&apos;a pas de dossier pour vos modules</translation>
    </message>
    <message>
        <source>start GIMP once to create it</source>
        <translation>démarrez GIMP une fois pour le créer</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a character that the list of plug-ins of a desktop cannot have</source>
        <translation>« %1 » contient un caractère que la liste des modules d&apos;un bureau n&apos;admet pas</translation>
    </message>
    <message>
        <source>use a data folder without : &quot; &apos; \ $ and `</source>
        <translation>utilisez un dossier de données sans : &quot; &apos; \ $ ni `</translation>
    </message>
    <message>
        <source>make it a readable file, or remove it</source>
        <translation>faites-en un fichier lisible ou supprimez-le</translation>
    </message>
    <message>
        <source>Which of its two colours light-dark() stands for: &quot;light&quot; or &quot;dark&quot;.</source>
        <translation>Laquelle de ses deux couleurs light-dark() désigne : « light » ou « dark ».</translation>
    </message>
    <message>
        <source>clamp() needs 3 values and has %1</source>
        <translation>clamp() demande 3 valeurs et en a %1</translation>
    </message>
    <message>
        <source>A calculation needs spaces on both sides of &quot;%1&quot;</source>
        <translation>Un calcul demande des espaces des deux côtés de « %1 »</translation>
    </message>
    <message>
        <source>A calculation can divide only by a number</source>
        <translation>Un calcul ne peut diviser que par un nombre</translation>
    </message>
    <message>
        <source>A calculation can multiply only by a number</source>
        <translation>Un calcul ne peut multiplier que par un nombre</translation>
    </message>
    <message>
        <source>The calculation is not closed</source>
        <translation>Le calcul n&apos;est pas fermé</translation>
    </message>
    <message>
        <source>A calculation needs a value before &quot;%1&quot;</source>
        <translation>Il manque une valeur au calcul avant « %1 »</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not stand for a number in a calculation</source>
        <translation>« %1 » ne désigne pas un nombre dans un calcul</translation>
    </message>
    <message>
        <source>write the number</source>
        <translation>écrivez le nombre</translation>
    </message>
    <message>
        <source>A calculation cannot mix numbers, percentages and angles</source>
        <translation>Un calcul ne peut mêler nombres, pourcentages et angles</translation>
    </message>
    <message>
        <source>write all values in one of them</source>
        <translation>écrivez toutes les valeurs sous l&apos;une de ces formes</translation>
    </message>
    <message>
        <source>The value of %1() depends on the page that uses it</source>
        <translation>La valeur de %1() dépend de la page qui l&apos;utilise</translation>
    </message>
    <message>
        <source>write the value itself</source>
        <translation>écrivez la valeur elle-même</translation>
    </message>
    <message>
        <source>The %1 of %2 must be %3, not the result of this %4</source>
        <translation>La valeur « %1 » de %2 doit être %3, non le résultat de ce %4</translation>
    </message>
    <message>
        <source>The function is not closed</source>
        <translation>La fonction n&apos;est pas fermée</translation>
    </message>
    <message>
        <source>A comma is missing before &quot;%1&quot;</source>
        <translation>Il manque une virgule avant « %1 »</translation>
    </message>
    <message>
        <source>color-mix() must begin with &quot;in&quot; and a colour space</source>
        <translation>color-mix() doit commencer par « in » et un espace de couleur</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a colour space of color-mix()</source>
        <translation>« %1 » n&apos;est pas un espace de couleur de color-mix()</translation>
    </message>
    <message>
        <source>write a space of color(), or hsl, hwb, lab, lch, oklab or oklch</source>
        <translation>écrivez un espace de color(), ou hsl, hwb, lab, lch, oklab ou oklch</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a way around the circle of hues</source>
        <translation>« %1 » n&apos;est pas un chemin sur le cercle des teintes</translation>
    </message>
    <message>
        <source>write shorter, longer, increasing or decreasing hue</source>
        <translation>écrivez shorter, longer, increasing ou decreasing hue</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs a colour space with a hue</source>
        <translation>« %1 » demande un espace de couleur avec une teinte</translation>
    </message>
    <message>
        <source>use hsl, hwb, lch or oklch</source>
        <translation>utilisez hsl, hwb, lch ou oklch</translation>
    </message>
    <message>
        <source>The word &quot;hue&quot; is missing before &quot;%1&quot;</source>
        <translation>Il manque le mot « hue » avant « %1 »</translation>
    </message>
    <message>
        <source>The share of a colour must be a percentage</source>
        <translation>La part d&apos;une couleur doit être un pourcentage</translation>
    </message>
    <message>
        <source>The share of a colour must be from 0% to 100%, not &quot;%1&quot;</source>
        <translation>La part d&apos;une couleur doit être comprise entre 0% et 100%, et non « %1 »</translation>
    </message>
    <message>
        <source>color-mix() mixes 0% of both colours</source>
        <translation>color-mix() mélange 0% des deux couleurs</translation>
    </message>
    <message>
        <source>The colour of %1() depends on the theme of the page</source>
        <translation>La couleur de %1() dépend du thème de la page</translation>
    </message>
    <message>
        <source>write one of its two colours</source>
        <translation>écrivez l&apos;une de ses deux couleurs</translation>
    </message>
    <message>
        <source>use rgb(), hsl(), hwb(), lab(), lch(), oklab(), oklch(), color(), color-mix() or light-dark()</source>
        <translation>utilisez rgb(), hsl(), hwb(), lab(), lch(), oklab(), oklch(), color(), color-mix() ou light-dark()</translation>
    </message>
    <message>
        <source>The parentheses are nested too deep</source>
        <translation>Les parenthèses sont trop profondément imbriquées</translation>
    </message>
    <message>
        <source>nest at most %1</source>
        <translation>n&apos;en imbriquez que %1 au plus</translation>
    </message>
    <message>
        <source>The colour to convert; read as for &quot;show&quot;.</source>
        <translation>La couleur à convertir ; lue comme pour « show ».</translation>
    </message>
    <message>
        <source>The form to write: &quot;hex&quot;, the name of a function such as &quot;oklch&quot;, or a colour space of color() such as &quot;display-p3&quot;.</source>
        <translation>La forme à écrire : « hex », le nom d&apos;une fonction comme « oklch » ou un espace de color() comme « display-p3 ».</translation>
    </message>
    <message>
        <source>Write each colour in another form of CSS, on a line of its own.
hex, rgb, hsl and hwb hold sRGB only, so other colours are mapped as CSS prescribes. All other forms keep colours as they are.</source>
        <translation>Écrire chaque couleur sous une autre forme de CSS, une par ligne.
hex, rgb, hsl et hwb ne contiennent que du sRGB ; les autres couleurs sont ramenées comme CSS le prescrit. Les autres formes laissent les couleurs telles quelles.</translation>
    </message>
    <message>
        <source>Look of the window: auto (light or dark as the desktop is), light, dark, contrast (white on black), or desktop (the desktop&apos;s own colours and controls). Without the option the preferences decide.</source>
        <translation>Aspect de la fenêtre : auto (clair ou sombre comme le bureau), light, dark, contrast (blanc sur noir) ou desktop (les couleurs et les contrôles du bureau). Sans cette option, les préférences décident.</translation>
    </message>
    <message>
        <source>The preferences of the panel. If the variable is not set, the folder is ~/.config/Vantorel/.</source>
        <translation>Les préférences du panneau. Si la variable n’est pas définie, le dossier est ~/.config/Vantorel/.</translation>
    </message>
    <message>
        <source>The form to write, as for &quot;convert&quot;. The default is hex.</source>
        <translation>La forme à écrire, comme pour « convert ». Par défaut : hex.</translation>
    </message>
    <message>
        <source>The colour space to mix in, by its name in color-mix(). The default is oklab.</source>
        <translation>L&apos;espace de couleurs du mélange, par son nom dans color-mix(). Par défaut : oklab.</translation>
    </message>
    <message>
        <source>Which way around the circle hues are mixed: shorter (the default), longer, increasing or decreasing.</source>
        <translation>Le sens dans lequel les teintes sont mélangées sur le cercle : shorter (par défaut), longer, increasing ou decreasing.</translation>
    </message>
    <message>
        <source>The colour to mix in.</source>
        <translation>La couleur à ajouter.</translation>
    </message>
    <message>
        <source>The colours to mix it with; read as for &quot;show&quot;.</source>
        <translation>Les couleurs avec lesquelles la mélanger ; lues comme pour « show ».</translation>
    </message>
    <message>
        <source>The share of BASE, from 0 to 1, or as a percentage. The default is 0.5.</source>
        <translation>La part de BASE, de 0 à 1 ou en pourcentage. Par défaut : 0.5.</translation>
    </message>
    <message>
        <source>The colours of the gradient, at least two; read as for &quot;show&quot;.</source>
        <translation>Les couleurs du dégradé, deux au moins ; lues comme pour « show ».</translation>
    </message>
    <message>
        <source>How many colours to write, with the first and the last. The default is 10.</source>
        <translation>Le nombre de couleurs à écrire, la première et la dernière comprises. Par défaut : 10.</translation>
    </message>
    <message>
        <source>How much, from 0 to 1, or as a percentage.</source>
        <translation>La quantité, de 0 à 1 ou en pourcentage.</translation>
    </message>
    <message>
        <source>The colours to change; read as for &quot;show&quot;.</source>
        <translation>Les couleurs à modifier ; lues comme pour « show ».</translation>
    </message>
    <message>
        <source>The angle in degrees; negative ones turn back.</source>
        <translation>L&apos;angle en degrés ; un angle négatif tourne en arrière.</translation>
    </message>
    <message>
        <source>The colour space to compute in: hsl (the default), oklch or lch. In oklch, equal amounts look equal, and colours outside sRGB are kept.</source>
        <translation>L&apos;espace de couleurs du calcul : hsl (par défaut), oklch ou lch. En oklch, des pas égaux paraissent égaux et les couleurs hors de sRGB sont conservées.</translation>
    </message>
    <message>
        <source>Mix a colour with others, and write each result on a line of its own.</source>
        <translation>Mélange une couleur avec d&apos;autres et écrit chaque résultat sur sa propre ligne.</translation>
    </message>
    <message>
        <source>Write the colours of an even gradient through the given colours, one per line.</source>
        <translation>Écrit les couleurs d&apos;un dégradé régulier passant par les couleurs données, une par ligne.</translation>
    </message>
    <message>
        <source>Add to the lightness of each colour.</source>
        <translation>Augmente la clarté de chaque couleur.</translation>
    </message>
    <message>
        <source>Subtract from the lightness of each colour.</source>
        <translation>Diminue la clarté de chaque couleur.</translation>
    </message>
    <message>
        <source>Add to the saturation of each colour.
A grey has no hue to saturate, and stays grey.</source>
        <translation>Augmente la saturation de chaque couleur.
Un gris n&apos;a pas de teinte à saturer et reste gris.</translation>
    </message>
    <message>
        <source>Subtract from the saturation of each colour.</source>
        <translation>Diminue la saturation de chaque couleur.</translation>
    </message>
    <message>
        <source>Turn the hue of each colour.</source>
        <translation>Fait tourner la teinte de chaque couleur.</translation>
    </message>
    <message>
        <source>Write the complement of each colour, whose hue is turned by 180 degrees.</source>
        <translation>Écrit la couleur complémentaire de chaque couleur, dont la teinte est tournée de 180 degrés.</translation>
    </message>
    <message>
        <source>a gradient needs at least two colours</source>
        <translation>un dégradé demande au moins deux couleurs</translation>
    </message>
    <message>
        <source>give its first and its last colour</source>
        <translation>donnez la première et la dernière</translation>
    </message>
    <message>
        <source>use a number from 0 to 1, or a percentage such as 20%</source>
        <translation>utilisez un nombre de 0 à 1 ou un pourcentage comme 20%</translation>
    </message>
    <message>
        <source>use a number of degrees, such as 90 or -22.5</source>
        <translation>utilisez un nombre de degrés comme 90 ou -22.5</translation>
    </message>
    <message>
        <source>The colours to make scales of; read as for &quot;show&quot;.</source>
        <translation>Les couleurs dont on fait des gammes ; lues comme pour « show ».</translation>
    </message>
    <message>
        <source>What to write: steps (the default), tints towards white, shades towards black, or tones towards grey.</source>
        <translation>Ce qui est écrit : steps (degrés, par défaut), tints (vers le blanc), shades (vers le noir) ou tones (vers le gris).</translation>
    </message>
    <message>
        <source>How many tints, shades or tones to write, the colour first. The default is 10.</source>
        <translation>Le nombre de couleurs à écrire pour tints, shades ou tones, la couleur d&apos;abord. Par défaut : 10.</translation>
    </message>
    <message>
        <source>How many colours to write, 1 to 1000.</source>
        <translation>Le nombre de couleurs à écrire, de 1 à 1000.</translation>
    </message>
    <message>
        <source>Colours to begin with, which count and are written first. With &quot;-&quot;, they are read from standard input.</source>
        <translation>Les couleurs de départ, comptées et écrites en premier. Avec « - », elles sont lues sur l&apos;entrée standard.</translation>
    </message>
    <message>
        <source>The colours to sort; read as for &quot;show&quot;.</source>
        <translation>Les couleurs à trier ; lues comme pour « show ».</translation>
    </message>
    <message>
        <source>What to sort by: hue (the default), lightness or chroma in OkLCh, luminance, contrast with white, or the name of the nearest colour of the list.</source>
        <translation>Le critère de tri : hue (teinte, par défaut), lightness (clarté) ou chroma dans OkLCh, luminance, contrast (contraste avec le blanc) ou name (nom de la couleur la plus proche dans la liste).</translation>
    </message>
    <message>
        <source>Write the largest first.</source>
        <translation>Écrit les plus grandes d&apos;abord.</translation>
    </message>
    <message>
        <source>The colour to look for; read as for &quot;show&quot;.</source>
        <translation>La couleur à chercher ; lue comme pour « show ».</translation>
    </message>
    <message>
        <source>Look in this list instead of the list in the settings.</source>
        <translation>Cherche dans cette liste au lieu de celle des réglages.</translation>
    </message>
    <message>
        <source>deuteranopia (no green cones), protanopia (no red ones), tritanopia (no blue ones) or grey (luminance only).</source>
        <translation>deuteranopia (sans cônes verts), protanopia (sans rouges), tritanopia (sans bleus) ou grey (luminance seule).</translation>
    </message>
    <message>
        <source>The colours to look at; read as for &quot;show&quot;.</source>
        <translation>Les couleurs à regarder ; lues comme pour « show ».</translation>
    </message>
    <message>
        <source>Write the scale of each colour, from nearly white to nearly black.
Its eleven steps are known as 50, 100, 200 to 900, and 950. Their lightness in OkLCh is evenly spaced on both sides of the colour, which is one of them.</source>
        <translation>Écrit la gamme de chaque couleur, du presque blanc au presque noir.
Ses onze degrés se nomment 50, 100, 200 à 900, et 950. Leur clarté dans OkLCh est répartie régulièrement de part et d&apos;autre de la couleur, qui est l&apos;un d&apos;eux.</translation>
    </message>
    <message>
        <source>Write colours that differ as much as possible.
They can be seen on black and on white, and are the same each time.</source>
        <translation>Écrit des couleurs aussi différentes que possible.
Elles se voient sur le noir comme sur le blanc et sont chaque fois les mêmes.</translation>
    </message>
    <message>
        <source>Sort colours.
Colours with equal keys stay in order. Greys have no hue, and precede all others.</source>
        <translation>Trie des couleurs.
Les couleurs équivalentes restent dans l&apos;ordre. Les gris n&apos;ont pas de teinte et précèdent toutes les autres.</translation>
    </message>
    <message>
        <source>Write the nearest colour of a list and its name, separated by a tab.
The difference is deltaE OK of CSS Color 4, the distance in Oklab.</source>
        <translation>Écrit la couleur la plus proche dans une liste et son nom, séparés par une tabulation.
La différence est le deltaE OK de CSS Color 4, la distance dans Oklab.</translation>
    </message>
    <message>
        <source>Write how each colour looks to people who do not see all colours.</source>
        <translation>Écrit l&apos;aspect de chaque couleur pour qui ne voit pas toutes les couleurs.</translation>
    </message>
    <message>
        <source>a scale always has %1 colours</source>
        <translation>une gamme a toujours %1 couleurs</translation>
    </message>
    <message>
        <source>leave out --number, or add --kind tints, shades or tones</source>
        <translation>omettez --number ou ajoutez --kind tints, shades ou tones</translation>
    </message>
    <message>
        <source>the list &quot;%1&quot; has no colours</source>
        <translation>la liste « %1 » n&apos;a pas de couleurs</translation>
    </message>
    <message>
        <source>choose another one with &quot;--list NAME&quot;</source>
        <translation>choisissez-en une autre avec « --list NAME »</translation>
    </message>
    <message>
        <source>The lightness, from 0 to 1, or as a percentage.</source>
        <translation>La clarté, de 0 à 1 ou en pourcentage.</translation>
    </message>
    <message>
        <source>The colour space of the lightness: hsl (the default), oklch or lch.</source>
        <translation>L&apos;espace de couleurs de la clarté : hsl (par défaut), oklch ou lch.</translation>
    </message>
    <message>
        <source>Write the grey of a lightness.</source>
        <translation>Écrit le gris d&apos;une clarté.</translation>
    </message>
    <message>
        <source>Show a colour in every form, with its name and your snippets.
Colours on standard input are read one per line. For each, one line is written: the hex code, a tab and the rgb() text; --list adds a tab and the name. Empty lines are skipped. A line that is not a colour is reported on standard error, and the following lines are still read.</source>
        <translation>Montre une couleur sous toutes ses formes, avec son nom et vos lignes de code.
Les couleurs de l’entrée standard sont lues une par ligne. Pour chacune, une ligne est écrite : le code hexadécimal, une tabulation et le texte rgb() ; --list ajoute une tabulation et le nom. Les lignes vides sont ignorées. Une ligne qui n’est pas une couleur est signalée sur l’erreur standard, et les suivantes sont encore lues.</translation>
    </message>
    <message>
        <source>List the snippets with their formats.
Those of the settings come first, then those of your own file, then those that ship with the program. A line that a snippet writes is read as a colour. If some lines of a snippet cannot be read as the colour that was written, the last column says why.</source>
        <translation>Affiche les lignes de code avec leurs formats.
D’abord celles des réglages, puis celles de votre propre fichier, puis celles fournies avec le programme. Une ligne ainsi écrite est lue comme une couleur. Si certaines lignes ne peuvent être lues comme la couleur écrite, la dernière colonne dit pourquoi.</translation>
    </message>
    <message>
        <source>Your own snippets, in the form of those in the settings.</source>
        <translation>Vos propres lignes de code, sous la forme de celles des réglages.</translation>
    </message>
    <message>
        <source>Colours for people who write CSS and code.
A COLOR is any form of CSS Color 5 (&quot;#ff8000&quot;, &quot;rgb(255 128 0)&quot;, &quot;oklch(70% 0.1 50)&quot;, &quot;orange&quot;), a text that the colour picker accepts (&quot;ff8000&quot;, &quot;RGB(255, 128, 0);&quot;), a line of code that a snippet writes (&quot;Color(0xffff8000)&quot;), or a name of the colour list.
Settings, snippets and colour lists are shared with the colour picker.</source>
        <translation>Des couleurs pour celles et ceux qui écrivent du CSS et du code.
Une COLOR est toute forme de CSS Color 5 (« #ff8000 », « rgb(255 128 0) », « oklch(70% 0.1 50) », « orange »), un texte que le sélecteur accepte (« ff8000 », « RGB(255, 128, 0); »), une des lignes de code (« Color(0xffff8000) ») ou un nom de la liste de couleurs.
Les réglages, lignes de code et listes de couleurs sont ceux du sélecteur.</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: there is already a snippet &quot;%2&quot; in the settings</source>
        <translation>« %1 » : il y a déjà une ligne de code « %2 » dans les réglages</translation>
    </message>
    <message>
        <source>give it another name</source>
        <translation>donnez-lui un autre nom</translation>
    </message>
    <message>
        <source>write it as { NameSnippet = &quot;...&quot;; FormatSnippet = &quot;...&quot;; VarsSnippet = ...; }</source>
        <translation>écrivez { NameSnippet = &quot;...&quot;; FormatSnippet = &quot;...&quot;; VarsSnippet = ...; }</translation>
    </message>
    <message>
        <source>&quot;%1&quot;, entry %2, has no %3</source>
        <translation>« %1 », entrée %2 : %3 manque</translation>
    </message>
    <message>
        <source>&quot;%1&quot;, entry %2: there is no variable form &quot;%3&quot;</source>
        <translation>« %1 », entrée %2 : il n’y a pas de forme de variables « %3 »</translation>
    </message>
    <message>
        <source>use rgbaFloats, rgbFloats, rgbFixedAlphaFloat, rgbFixed, rgbaFixed, rgbPackedInt or rgbaPackedInt</source>
        <translation>utilisez rgbaFloats, rgbFloats, rgbFixedAlphaFloat, rgbFixed, rgbaFixed, rgbPackedInt ou rgbaPackedInt</translation>
    </message>
    <message>
        <source>&quot;%1&quot;, entry %2: there is already a snippet &quot;%3&quot;</source>
        <translation>« %1 », entrée %2 : il y a déjà une ligne de code « %3 »</translation>
    </message>
    <message>
        <source>&quot;%1&quot;, line %2: this is not a property list</source>
        <translation>« %1 », ligne %2 : ce n’est pas une liste de propriétés</translation>
    </message>
    <message>
        <source>compare this line and the one before it with the examples in the manual</source>
        <translation>comparez cette ligne et la précédente avec les exemples du manuel</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no list of snippets</source>
        <translation>« %1 » n’a pas de liste de lignes de code</translation>
    </message>
    <message>
        <source>put the snippets into round brackets, separated by commas</source>
        <translation>mettez les lignes de code entre parenthèses, séparées par des virgules</translation>
    </message>
    <message>
        <source>&quot;%1&quot;, entry %2, is not a snippet</source>
        <translation>« %1 », entrée %2 : ce n’est pas une ligne de code</translation>
    </message>
    <message>
        <source>opacity</source>
        <translation>opacité</translation>
    </message>
    <message>
        <source>the colour</source>
        <translation>la couleur</translation>
    </message>
    <message>
        <source>the format is longer than %1 characters</source>
        <translation>le format dépasse %1 caractères</translation>
    </message>
    <message>
        <source>there is no variable form &quot;%1&quot;</source>
        <translation>il n’y a pas de forme de variables « %1 »</translation>
    </message>
    <message>
        <source>%1 is not in the format</source>
        <translation>absent du format : %1</translation>
    </message>
    <message>
        <source>%1 is written as a character</source>
        <translation>écrit comme un caractère : %1</translation>
    </message>
    <message>
        <source>%1 is written without decimals</source>
        <translation>écrit sans décimales : %1</translation>
    </message>
    <message>
        <source>%1 is cut off</source>
        <translation>tronqué : %1</translation>
    </message>
    <message>
        <source>%1 is written without its highest bits</source>
        <translation>écrit sans les bits de poids fort : %1</translation>
    </message>
    <message>
        <source>%1 is not separated from what follows, so that some lines have two meanings</source>
        <translation>non séparé de la suite, si bien que certaines lignes ont deux sens : %1</translation>
    </message>
    <message>
        <source>%1 has too few digits to tell neighbouring values apart</source>
        <translation>trop peu de chiffres pour distinguer des valeurs voisines : %1</translation>
    </message>
    <message>
        <source>an opacity of 0 is lost with the leading zeros, which are not written</source>
        <translation>une opacité de 0 se perd avec les zéros de tête, qui ne sont pas écrits</translation>
    </message>
    <message>
        <source>the line has no text of its own, so it is read only where it is alone</source>
        <translation>la ligne n’a pas de texte propre et n’est donc lue que si elle est seule</translation>
    </message>
    <message>
        <source>a line can be one of &quot;%1&quot; with another colour</source>
        <translation>une ligne peut aussi être une de « %1 » avec une autre couleur</translation>
    </message>
    <message>
        <source>A style sheet, or another document with colours; &quot;-&quot; is standard input.</source>
        <translation>Une feuille de style, ou un autre document avec des couleurs ; « - » est l’entrée standard.</translation>
    </message>
    <message>
        <source>When to exit with status 1: contrast, for a contrast below AA; doubles, for near doubles; any of them (the default); or never.</source>
        <translation>Quand l’état de sortie est 1 : contrast, pour un contraste sous AA ; doubles, pour des couleurs presque égales ; any, pour les deux (par défaut) ; ou never, jamais.</translation>
    </message>
    <message>
        <source>Also draw the colours as SVG to FILE; &quot;-&quot; is standard output.</source>
        <translation>Dessiner aussi les couleurs en SVG dans FILE ; « - » est la sortie standard.</translation>
    </message>
    <message>
        <source>Also draw the colours as PNG to FILE; &quot;-&quot; is standard output.</source>
        <translation>Dessiner aussi les couleurs en PNG dans FILE ; « - » est la sortie standard.</translation>
    </message>
    <message>
        <source>List the colours of style sheets, and what may be wrong with them.
Each colour is written with its number and names: the variables that hold it, and its exact name. Near doubles are colours that differ by less than 2 (CIEDE2000). A contrast is reported if the color and the background of one rule fail AA of WCAG 2.2 for text of normal size. If something is found, the exit status is 1.</source>
        <translation>Affiche les couleurs de feuilles de style, et ce qui peut y être faux.
Chaque couleur est écrite avec son nombre et ses noms : les variables qui la contiennent et son nom exact. Sont presque égales les couleurs qui diffèrent de moins de 2 (CIEDE2000). Un contraste est signalé si la color et le fond d’une règle n’atteignent pas le niveau AA des WCAG 2.2 pour un texte de taille normale. Si quelque chose est trouvé, l’état de sortie est 1.</translation>
    </message>
    <message>
        <source>The user left &quot;choose&quot; or &quot;pick&quot; without a colour, or &quot;sheet&quot; has found something.</source>
        <translation>« choose » ou « pick » a été quitté sans couleur, ou « sheet » a trouvé quelque chose.</translation>
    </message>
    <message>
        <source>If it contains &quot;256color&quot;, a terminal shows a patch of the nearest of its 256 colours.</source>
        <translation>Si elle contient « 256color », un terminal montre un échantillon de la plus proche de ses 256 couleurs.</translation>
    </message>
    <message>
        <source>Has no effect: some editors add it.</source>
        <translation>Sans effet : certains éditeurs l’ajoutent.</translation>
    </message>
    <message>
        <source>Serve an editor by the Language Server Protocol, on standard input and output.
The editor shows the colours of style sheets, markup and code, writes them in other forms, completes the names of your lists, and opens the colour panel. Editors start the command themselves; docs/editors.md describes how to set them up.</source>
        <translation>Servir un éditeur par le Language Server Protocol, sur l’entrée et la sortie standard.
L’éditeur montre les couleurs des feuilles de style, du balisage et du code, les écrit sous d’autres formes, complète les noms de vos listes et ouvre le panneau de couleurs. Les éditeurs lancent eux-mêmes la commande ; docs/editors.md décrit leur configuration.</translation>
    </message>
    <message>
        <source>Choose in the panel</source>
        <translation>Choisir dans le panneau</translation>
    </message>
    <message>
        <source>Change the text colour to %1: a contrast of %2 with the background</source>
        <translation>Changer la couleur du texte en %1 : contraste de %2 avec le fond</translation>
    </message>
    <message>
        <source>Replace with &quot;%1&quot;, the closest in %2</source>
        <translation>Remplacer par « %1 », la couleur la plus proche dans %2</translation>
    </message>
    <message>
        <source>Name it as the custom property %1</source>
        <translation>La nommer en propriété personnalisée %1</translation>
    </message>
    <message>
        <source>Convert to %1</source>
        <translation>Convertir en %1</translation>
    </message>
    <message>
        <source>The colour panel cannot be started</source>
        <translation>Le panneau de couleurs ne peut pas être lancé</translation>
    </message>
    <message>
        <source>Closest name: %1 (%2)</source>
        <translation>Nom le plus proche : %1 (%2)</translation>
    </message>
    <message>
        <source>the colour is outside sRGB; this page shows the nearest colour inside</source>
        <translation>la couleur est hors de sRGB ; cette page montre la plus proche à l’intérieur</translation>
    </message>
    <message>
        <source>Contrast with white %1, with black %2</source>
        <translation>Contraste avec le blanc %1, avec le noir %2</translation>
    </message>
    <message>
        <source>one pixel was picked: the desktop&apos;s own picker cannot average</source>
        <translation>un seul pixel a été prélevé : la pipette du bureau ne calcule pas de moyenne</translation>
    </message>
    <message>
        <source>design tokens</source>
        <translation>jetons de design</translation>
    </message>
    <message>
        <source>colour swatches, binary</source>
        <translation>nuancier, binaire</translation>
    </message>
    <message>
        <source>palette of Krita, binary</source>
        <translation>palette de Krita, binaire</translation>
    </message>
    <message>
        <source>colour table of office programs</source>
        <translation>table de couleurs de suites bureautiques</translation>
    </message>
    <message>
        <source>the format %1 holds at most %2 colours</source>
        <translation>le format %1 contient au plus %2 couleurs</translation>
    </message>
    <message>
        <source>choose another format</source>
        <translation>choisissez un autre format</translation>
    </message>
    <message>
        <source>it is an archive without the colours of a palette, or damaged</source>
        <translation>c’est une archive sans les couleurs d’une palette, ou elle est endommagée</translation>
    </message>
    <message>
        <source>give a complete palette of Krita</source>
        <translation>donnez une palette complète de Krita</translation>
    </message>
    <message>
        <source>use a palette of GIMP, KDE or Krita, CSS, SCSS, JSON, swatches, a colour table of an office program, or a text with one colour per line</source>
        <translation>utilisez une palette de GIMP, de KDE ou de Krita, CSS, SCSS, JSON, un nuancier, une table de couleurs d’une suite bureautique ou un texte avec une couleur par ligne</translation>
    </message>
    <message>
        <source>Start with this page: hex, mix, scales, palettes, or the page of another plug-in.</source>
        <translation>Commence par cette page : hex, mix, scales, palettes, ou la page d’un autre greffon.</translation>
    </message>
    <message>
        <source>give the snippet a name</source>
        <translation>donnez un nom à la ligne de code</translation>
    </message>
    <message>
        <source>write a format</source>
        <translation>écrivez un format</translation>
    </message>
    <message>
        <source>there is already a snippet &quot;%1&quot;</source>
        <translation>il y a déjà une ligne de code « %1 »</translation>
    </message>
    <message>
        <source>&quot;%1&quot; removed</source>
        <translation>« %1 » retiré</translation>
    </message>
    <message>
        <source>press %1 to bring it back</source>
        <translation>appuyez sur %1 pour la rétablir</translation>
    </message>
    <message>
        <source>check that it is a file of at most 4 MiB that you can read</source>
        <translation>vérifiez que c’est un fichier d’au plus 4 Mio que vous pouvez lire</translation>
    </message>
    <message>
        <source>snippets imported: %1</source>
        <translation>lignes de code importées : %1</translation>
    </message>
    <message>
        <source>check that it is a file that you can read</source>
        <translation>vérifiez que c’est un fichier que vous pouvez lire</translation>
    </message>
    <message>
        <source>there is no folder for your data</source>
        <translation>il n’y a pas de dossier pour vos données</translation>
    </message>
    <message>
        <source>set HOME or XDG_DATA_HOME to a folder that you can write to</source>
        <translation>donnez à HOME ou XDG_DATA_HOME un dossier où vous pouvez écrire</translation>
    </message>
    <message>
        <source>%1 has no place in the format</source>
        <translation>%1 n’a pas de place dans le format</translation>
    </message>
    <message>
        <source>write %1 where it belongs</source>
        <translation>écrivez %1 à l’endroit voulu</translation>
    </message>
    <message>
        <source>the format has %1 places for %2 values, so the last ones are copied unchanged</source>
        <translation>le format a %1 places pour %2 valeurs, donc les dernières sont copiées telles quelles</translation>
    </message>
    <message>
        <source>write %% for a per cent sign</source>
        <translation>écrivez %% pour un signe pour cent</translation>
    </message>
    <message>
        <source>a shortcut for all programs needs Ctrl, Alt or Meta</source>
        <translation>un raccourci pour tous les programmes a besoin de Ctrl, Alt ou Meta</translation>
    </message>
    <message>
        <source>choose another shortcut</source>
        <translation>choisissez un autre raccourci</translation>
    </message>
    <message>
        <source>this desktop lets no program have a shortcut of its own</source>
        <translation>ce bureau ne laisse aux programmes aucun raccourci à eux</translation>
    </message>
    <message>
        <source>bind &quot;vantorel-panel --pick-and-copy&quot; to a key in its settings</source>
        <translation>associez « vantorel-panel --pick-and-copy » à une touche dans ses réglages</translation>
    </message>
    <message>
        <source>the desktop did not accept the shortcut</source>
        <translation>le bureau n’a pas accepté le raccourci</translation>
    </message>
    <message>
        <source>choose another one, or allow it in the settings of the desktop</source>
        <translation>choisissez-en un autre, ou autorisez-le dans les réglages du bureau</translation>
    </message>
    <message>
        <source>the keyboard has no key %1</source>
        <translation>le clavier n’a pas de touche %1</translation>
    </message>
    <message>
        <source>another program has the shortcut %1</source>
        <translation>un autre programme a le raccourci %1</translation>
    </message>
    <message>
        <source>it is the nearest colour inside sRGB</source>
        <translation>c’est la couleur la plus proche dans sRGB</translation>
    </message>
    <message>
        <source>the picture cannot be read</source>
        <translation>l’image ne peut pas être lue</translation>
    </message>
    <message>
        <source>save it as PNG or JPEG, and open the file</source>
        <translation>enregistrez-la en PNG ou JPEG et ouvrez le fichier</translation>
    </message>
    <message>
        <source>check that it is a file of at most 256 MiB that you can read</source>
        <translation>vérifiez que c’est un fichier d’au plus 256 Mio que vous pouvez lire</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a picture that can be read</source>
        <translation>« %1 » n’est pas une image lisible</translation>
    </message>
    <message>
        <source>use PNG, JPEG, SVG, or WebP if Qt&apos;s plug-in for it is installed</source>
        <translation>utilisez PNG, JPEG, SVG, ou WebP si le greffon de Qt pour ce format est installé</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has more than 100 megapixels</source>
        <translation>« %1 » a plus de 100 mégapixels</translation>
    </message>
    <message>
        <source>make a smaller copy of it</source>
        <translation>faites-en une copie plus petite</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is damaged</source>
        <translation>« %1 » est endommagé</translation>
    </message>
    <message>
        <source>use another copy of it</source>
        <translation>utilisez-en une autre copie</translation>
    </message>
    <message>
        <source>no colour list has the name &quot;%1&quot;</source>
        <translation>aucune liste de couleurs ne contient le nom « %1 »</translation>
    </message>
    <message>
        <source>write a name of a list or of CSS, or a colour such as &quot;#ff8000&quot;</source>
        <translation>écrivez un nom d’une liste ou de CSS, ou une couleur telle que « #ff8000 »</translation>
    </message>
    <message>
        <source>one colour was picked: the desktop&apos;s own picker takes one at a time</source>
        <translation>une couleur a été prélevée : la pipette du bureau n’en prend qu’une à la fois</translation>
    </message>
    <message>
        <source>pick again for the next one</source>
        <translation>prélevez de nouveau pour la suivante</translation>
    </message>
</context>
<context>
    <name>Vantorel</name>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>Colour magnifier</source>
        <translation>Loupe de couleurs</translation>
    </message>
    <message>
        <source>Back to the colours</source>
        <translation>Retour aux couleurs</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Bleu</translation>
    </message>
    <message>
        <source>Click on color</source>
        <translation>Cliquez sur une couleur</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Code snippet</source>
        <translation>Ligne de code</translation>
    </message>
    <message>
        <source>Code snippet form</source>
        <translation>Forme de la ligne de code</translation>
    </message>
    <message>
        <source>Colour list</source>
        <translation>Liste de couleurs</translation>
    </message>
    <message>
        <source>Colour name</source>
        <translation>Nom de la couleur</translation>
    </message>
    <message>
        <source>Colour under the pointer</source>
        <translation>Couleur sous le pointeur</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Couleurs</translation>
    </message>
    <message>
        <source>Component display</source>
        <translation>Affichage des composantes</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Drag</source>
        <translation>Glisser</translation>
    </message>
    <message>
        <source>Drag type</source>
        <translation>Contenu du glisser</translation>
    </message>
    <message>
        <source>Enlarge the panel to show all settings</source>
        <translation>Agrandissez le panneau pour voir tous les réglages</translation>
    </message>
    <message>
        <source>Fewer rings</source>
        <translation>Moins d’anneaux</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Vert</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Hex code</source>
        <translation>Code hexadécimal</translation>
    </message>
    <message>
        <source>Hex colour</source>
        <translation>Couleur hexadécimale</translation>
    </message>
    <message>
        <source>Lead hex codes with #</source>
        <translation>Commencer les codes hexadécimaux par #</translation>
    </message>
    <message>
        <source>Letter case</source>
        <translation>Casse</translation>
    </message>
    <message>
        <source>Letter case of hex codes</source>
        <translation>Majuscules ou minuscules dans les codes hexadécimaux</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manuel</translation>
    </message>
    <message>
        <source>More rings</source>
        <translation>Plus d’anneaux</translation>
    </message>
    <message>
        <source>More settings</source>
        <translation>Autres réglages</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Palette</translation>
    </message>
    <message>
        <source>Palette: pick among the colours of the list</source>
        <translation>Palette : choisir parmi les couleurs de la liste</translation>
    </message>
    <message>
        <source>RGB or colour name</source>
        <translation>RGB ou nom de couleur</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rouge</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Montrer</translation>
    </message>
    <message>
        <source>Slider</source>
        <translation>Curseurs</translation>
    </message>
    <message>
        <source>Slider: pick by hex digits</source>
        <translation>Curseurs : choisir par chiffres hexadécimaux</translation>
    </message>
    <message>
        <source>The colour as a hex code: six digits, three or one</source>
        <translation>La couleur en code hexadécimal : six chiffres, trois ou un</translation>
    </message>
    <message>
        <source>The colour as a line of code</source>
        <translation>La couleur en ligne de code</translation>
    </message>
    <message>
        <source>The colour as rgb(red, green, blue); a colour name is completed as you type</source>
        <translation>La couleur sous la forme rgb(rouge, vert, bleu) ; un nom de couleur est complété pendant la saisie</translation>
    </message>
    <message>
        <source>The colour&apos;s name in the list; choose one to pick it</source>
        <translation>Le nom de la couleur dans la liste ; choisissez-en un pour prendre sa couleur</translation>
    </message>
    <message>
        <source>The form of the line of code</source>
        <translation>La forme de la ligne de code</translation>
    </message>
    <message>
        <source>The list that names the colour and fills the palette</source>
        <translation>La liste qui nomme la couleur et remplit la palette</translation>
    </message>
    <message>
        <source>Use #</source>
        <translation>Avec #</translation>
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
        <translation>Ce qu’on emporte en faisant glisser hors des couleurs</translation>
    </message>
    <message>
        <source>What the fields below the colours show</source>
        <translation>Ce que montrent les champs sous les couleurs</translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation>Roue</translation>
    </message>
    <message>
        <source>Wheel: pick by hue, tint and shade</source>
        <translation>Roue : choisir par teinte et par nuance</translation>
    </message>
    <message>
        <source>Vantorel</source>
        <translation>Vantorel</translation>
    </message>
    <message>
        <source>left digit</source>
        <translation>chiffre de gauche</translation>
    </message>
    <message>
        <source>right digit</source>
        <translation>chiffre de droite</translation>
    </message>
    <message>
        <source>supportManual.htm</source>
        <translation>supportManual_fr.htm</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Blue to yellow</source>
        <translation>Du bleu au jaune</translation>
    </message>
    <message>
        <source>Chroma</source>
        <translation>Chroma</translation>
    </message>
    <message>
        <source>Green to red</source>
        <translation>Du vert au rouge</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Teinte</translation>
    </message>
    <message>
        <source>Lightness</source>
        <translation>Clarté</translation>
    </message>
    <message>
        <source>Mix</source>
        <translation>Mélange</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacité</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturation</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>change a colour in OKLCH, HSL, HSV and Lab</source>
        <translation>modifier une couleur en OKLCH, HSL, HSV et Lab</translation>
    </message>
    <message>
        <source>outside sRGB</source>
        <translation>hors de sRGB</translation>
    </message>
    <message>
        <source>within sRGB</source>
        <translation>dans sRGB</translation>
    </message>
    <message>
        <source>Colour space</source>
        <translation>Espace de couleurs</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Entrée</translation>
    </message>
    <message>
        <source>picks</source>
        <translation>prélève</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Maj</translation>
    </message>
    <message>
        <source>several</source>
        <translation>plusieurs</translation>
    </message>
    <message>
        <source>A</source>
        <translation>A</translation>
    </message>
    <message>
        <source>averages</source>
        <translation>moyenne</translation>
    </message>
    <message>
        <source>Mouse wheel</source>
        <translation>Molette</translation>
    </message>
    <message>
        <source>zooms</source>
        <translation>agrandit</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Échap</translation>
    </message>
    <message>
        <source>leaves</source>
        <translation>quitte</translation>
    </message>
    <message>
        <source>%1 picked</source>
        <translation>%1 prélevées</translation>
    </message>
    <message>
        <source>AA large</source>
        <translation>AA grand</translation>
    </message>
    <message>
        <source>Analogous</source>
        <translation>Analogue</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Fond</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Noir</translation>
    </message>
    <message>
        <source>CSS custom properties</source>
        <translation>Propriétés personnalisées CSS</translation>
    </message>
    <message>
        <source>Complement</source>
        <translation>Complément</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>Contrasts of the scale</source>
        <translation>Contrastes de la gamme</translation>
    </message>
    <message>
        <source>Copy all</source>
        <translation>Tout copier</translation>
    </message>
    <message>
        <source>Deuteranopia</source>
        <translation>Deutéranopie</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Dégradé</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>Gris</translation>
    </message>
    <message>
        <source>Hex codes</source>
        <translation>Codes hexadécimaux</translation>
    </message>
    <message>
        <source>JSON design tokens</source>
        <translation>Jetons de design JSON</translation>
    </message>
    <message>
        <source>Keep as a colour list</source>
        <translation>Garder comme liste de couleurs</translation>
    </message>
    <message>
        <source>Kept as the colour list</source>
        <translation>Gardé comme liste de couleurs</translation>
    </message>
    <message>
        <source>Last colour of the gradient</source>
        <translation>Dernière couleur du dégradé</translation>
    </message>
    <message>
        <source>Lines of code</source>
        <translation>Lignes de code</translation>
    </message>
    <message>
        <source>Makes the last colour the panel&apos;s colour, and the panel&apos;s colour the last one</source>
        <translation>Fait de la dernière couleur celle du panneau, et inversement</translation>
    </message>
    <message>
        <source>Nearest</source>
        <translation>Plus proche</translation>
    </message>
    <message>
        <source>Nearest colours that pass</source>
        <translation>Couleurs suffisantes les plus proches</translation>
    </message>
    <message>
        <source>Number of colours</source>
        <translation>Nombre de couleurs</translation>
    </message>
    <message>
        <source>Protanopia</source>
        <translation>Protanopie</translation>
    </message>
    <message>
        <source>SCSS variables</source>
        <translation>Variables SCSS</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Gamme</translation>
    </message>
    <message>
        <source>Scales</source>
        <translation>Gammes</translation>
    </message>
    <message>
        <source>Schemes</source>
        <translation>Harmonies</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Section</translation>
    </message>
    <message>
        <source>Shades</source>
        <translation>Foncés</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Scindé</translation>
    </message>
    <message>
        <source>Steps</source>
        <translation>Étapes</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Échanger</translation>
    </message>
    <message>
        <source>Tetrad</source>
        <translation>Tétrade</translation>
    </message>
    <message>
        <source>The colour list could not be saved. Check that you can write to its folder</source>
        <translation>La liste de couleurs n’a pas pu être enregistrée. Vérifiez que vous pouvez écrire dans son dossier</translation>
    </message>
    <message>
        <source>The last colour, in any form of CSS. Leave it empty for the complement</source>
        <translation>La dernière couleur, sous toute forme de CSS. Vide : le complément</translation>
    </message>
    <message>
        <source>The scale in place of the colour</source>
        <translation>La gamme à la place de la couleur</translation>
    </message>
    <message>
        <source>This is not a colour. Write it as in CSS, such as #ff8000 or hsl(30 100% 50%)</source>
        <translation>Ce n’est pas une couleur. Écrivez-la comme en CSS, par exemple #ff8000 ou hsl(30 100% 50%)</translation>
    </message>
    <message>
        <source>Tints</source>
        <translation>Clairs</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Vers</translation>
    </message>
    <message>
        <source>Tones</source>
        <translation>Grisés</translation>
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
        <translation>Usuelle</translation>
    </message>
    <message>
        <source>Vision</source>
        <translation>Vision</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Blanc</translation>
    </message>
    <message>
        <source>copied</source>
        <translation>copié</translation>
    </message>
    <message>
        <source>fails</source>
        <translation>échec</translation>
    </message>
    <message>
        <source>linear light</source>
        <translation>lumière linéaire</translation>
    </message>
    <message>
        <source>longer hue</source>
        <translation>arc long</translation>
    </message>
    <message>
        <source>no lightness is enough</source>
        <translation>aucune clarté ne suffit</translation>
    </message>
    <message>
        <source>passes</source>
        <translation>suffit</translation>
    </message>
    <message>
        <source>scales, schemes, gradients and contrasts of a colour</source>
        <translation>gammes, harmonies, dégradés et contrastes d’une couleur</translation>
    </message>
    <message>
        <source>shorter hue</source>
        <translation>arc court</translation>
    </message>
    <message>
        <source>the colour itself</source>
        <translation>la couleur elle-même</translation>
    </message>
    <message>
        <source>copy as hex, rgb, hsl, oklch</source>
        <translation>copient en hex, rgb, hsl, oklch</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Shown contrasts</source>
        <translation>Contrastes montrés</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Texts in columns, backgrounds in rows</source>
        <translation>Textes en colonnes, fonds en lignes</translation>
    </message>
    <message>
        <source>A larger window shows more colours of the list</source>
        <translation>Une fenêtre plus grande montre plus de couleurs de la liste</translation>
    </message>
    <message>
        <source>Contrasts of the colours with each other</source>
        <translation>Contrastes des couleurs entre elles</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>No colour lists. Make one on the page Palettes</source>
        <translation>Aucune liste de couleurs. Créez-en une à la page Palettes</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>A panel is already running and cannot apply %1. Use --new to start another.</source>
        <translation>Un panneau est déjà ouvert et ne peut pas appliquer %1. Utilisez --new pour en lancer un autre.</translation>
    </message>
</context>
<context>
    <name>vantorel::AboutDialog</name>
    <message>
        <source>About Vantorel</source>
        <translation>À propos de Vantorel</translation>
    </message>
    <message>
        <source>A colour picker for people who write CSS and code.</source>
        <translation>Un sélecteur de couleurs pour celles et ceux qui écrivent du CSS et du code.</translation>
    </message>
</context>
<context>
    <name>vantorel::ChoiceBar</name>
    <message>
        <source>Choose</source>
        <translation>Choisir</translation>
    </message>
</context>
<context>
    <name>vantorel::ColorBand</name>
    <message>
        <source>Colour</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Fond</translation>
    </message>
    <message>
        <source>Colour and background</source>
        <translation>Couleur et fond</translation>
    </message>
</context>
<context>
    <name>vantorel::ColorChoice</name>
    <message>
        <source>Choose a colour</source>
        <translation>Choisir une couleur</translation>
    </message>
</context>
<context>
    <name>vantorel::ColorEntry</name>
    <message>
        <source>Nearest: %1</source>
        <translation>Le plus proche : %1</translation>
    </message>
    <message>
        <source>Background: %1</source>
        <translation>Fond : %1</translation>
    </message>
    <message>
        <source>As in the settings of the page</source>
        <translation>Comme dans les réglages de la page</translation>
    </message>
    <message>
        <source>More code snippets</source>
        <translation>Autres lignes de code</translation>
    </message>
    <message>
        <source>Outside sRGB, nearest: %1</source>
        <translation>Hors de sRGB, la plus proche : %1</translation>
    </message>
</context>
<context>
    <name>vantorel::ColorFacts</name>
    <message>
        <source>Opacity</source>
        <translation>Opacité</translation>
    </message>
</context>
<context>
    <name>vantorel::ColorField</name>
    <message>
        <source>Form of the text, and of copies</source>
        <translation>Forme du texte et des copies</translation>
    </message>
    <message>
        <source>Type or paste a colour in any form</source>
        <translation>Tapez ou collez une couleur sous n&apos;importe quelle forme</translation>
    </message>
    <message>
        <source>Colour as a text</source>
        <translation>Couleur en toutes lettres</translation>
    </message>
    <message>
        <source>Copy as</source>
        <translation>Copier en</translation>
    </message>
</context>
<context>
    <name>vantorel::DialogSwitchesWindow</name>
    <message>
        <source>Dialogs of other programs</source>
        <translation>Dialogues d&apos;autres programmes</translation>
    </message>
    <message>
        <source>The page of this panel can be in the colour dialogs of other programs, beside their own controls. A switch changes only your own settings, and takes all of it back when you turn it off.</source>
        <translation>La page de ce panneau peut figurer dans les dialogues de couleur d&apos;autres programmes, à côté de leurs propres éléments. Un interrupteur ne change que vos propres réglages et annule tout quand vous le désactivez.</translation>
    </message>
    <message>
        <source>Programs made with Qt 5 or Qt 6</source>
        <translation>Programmes faits avec Qt 5 ou Qt 6</translation>
    </message>
    <message>
        <source>Programs made with GTK 3</source>
        <translation>Programmes faits avec GTK 3</translation>
    </message>
</context>
<context>
    <name>vantorel::FormList</name>
    <message>
        <source>Forms of the colour</source>
        <translation>Formes de la couleur</translation>
    </message>
</context>
<context>
    <name>vantorel::FormRow</name>
    <message>
        <source>Copy %1</source>
        <translation>Copier %1</translation>
    </message>
</context>
<context>
    <name>vantorel::GeneralPreferences</name>
    <message>
        <source>Use the desktop&apos;s own controls and colours</source>
        <translation>Utiliser les contrôles et les couleurs du bureau</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Clair</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Thème</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Taille du texte</translation>
    </message>
    <message>
        <source>Takes effect at the next start of the panel</source>
        <translation>Prend effet au prochain démarrage du panneau</translation>
    </message>
    <message>
        <source>Show the colour</source>
        <translation>Afficher la couleur</translation>
    </message>
    <message>
        <source>Copy the colour and stay</source>
        <translation>Copier la couleur et rester</translation>
    </message>
    <message>
        <source>Copy the colour and minimise the panel</source>
        <translation>Copier la couleur et réduire le panneau</translation>
    </message>
    <message>
        <source>After picking</source>
        <translation>Après le prélèvement</translation>
    </message>
    <message>
        <source>%1×%1</source>
        <translation>%1×%1</translation>
    </message>
    <message>
        <source>Pick the average of</source>
        <translation>Moyenne de</translation>
    </message>
    <message>
        <source>Pixels of the screen. Where only the desktop can pick, it picks one pixel.</source>
        <translation>Pixels de l&apos;écran. Là où seul le bureau peut prélever, il prend un pixel.</translation>
    </message>
    <message>
        <source>Stay resident, with a tray icon</source>
        <translation>Rester en arrière-plan, avec une icône dans la zone de notification</translation>
    </message>
    <message>
        <source>Pick from anywhere</source>
        <translation>Prélever de partout</translation>
    </message>
    <message>
        <source>Works while the panel stays resident.</source>
        <translation>Fonctionne tant que le panneau reste en arrière-plan.</translation>
    </message>
    <message>
        <source>Press the keys, such as Ctrl+Alt+C.</source>
        <translation>Appuyez sur les touches, comme Ctrl+Alt+C.</translation>
    </message>
</context>
<context>
    <name>vantorel::LastColors</name>
    <message>
        <source>Last colours</source>
        <translation>Dernières couleurs</translation>
    </message>
    <message>
        <source>Commands for the last colours</source>
        <translation>Commandes des dernières couleurs</translation>
    </message>
    <message>
        <source>Unpin %1</source>
        <translation>Détacher %1</translation>
    </message>
    <message>
        <source>Pin %1</source>
        <translation>Épingler %1</translation>
    </message>
    <message>
        <source>Keep all as a list</source>
        <translation>Tout garder comme liste</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vider</translation>
    </message>
    <message>
        <source>pinned</source>
        <translation>épinglée</translation>
    </message>
</context>
<context>
    <name>vantorel::NameCompletion</name>
    <message>
        <source>Names of colours</source>
        <translation>Noms de couleurs</translation>
    </message>
</context>
<context>
    <name>vantorel::PageBar</name>
    <message>
        <source>Commands</source>
        <translation>Commandes</translation>
    </message>
</context>
<context>
    <name>vantorel::PageTabs</name>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
</context>
<context>
    <name>vantorel::PaletteCommands</name>
    <message>
        <source>New list</source>
        <translation>Nouvelle liste</translation>
    </message>
    <message>
        <source>Rename the list</source>
        <translation>Renommer la liste</translation>
    </message>
    <message>
        <source>Copy the list</source>
        <translation>Copier la liste</translation>
    </message>
    <message>
        <source>Remove the list</source>
        <translation>Supprimer la liste</translation>
    </message>
    <message>
        <source>Import palette files...</source>
        <translation>Importer des fichiers de palette...</translation>
    </message>
    <message>
        <source>Save a copy as a file...</source>
        <translation>Enregistrer une copie dans un fichier...</translation>
    </message>
    <message>
        <source>Add the panel&apos;s colour</source>
        <translation>Ajouter la couleur du panneau</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>Give it the panel&apos;s colour</source>
        <translation>Lui donner la couleur du panneau</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Monter</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Descendre</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Couleurs</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Add %1 to the list (%2)</source>
        <translation>Ajouter %1 à la liste (%2)</translation>
    </message>
    <message>
        <source>Give the selected colours the panel&apos;s colour, %1</source>
        <translation>Donner aux couleurs sélectionnées la couleur du panneau, %1</translation>
    </message>
    <message>
        <source>Colours of a picture...</source>
        <translation>Couleurs d’une image...</translation>
    </message>
    <message>
        <source>Pick into this list</source>
        <translation>Prélever dans cette liste</translation>
    </message>
</context>
<context>
    <name>vantorel::PaletteEdits</name>
    <message>
        <source>My colours</source>
        <translation>Mes couleurs</translation>
    </message>
</context>
<context>
    <name>vantorel::PaletteEntriesView</name>
    <message>
        <source>Colour name</source>
        <translation>Nom de la couleur</translation>
    </message>
    <message>
        <source>Colours of the list</source>
        <translation>Couleurs de la liste</translation>
    </message>
</context>
<context>
    <name>vantorel::PaletteFiles</name>
    <message>
        <source>Import palette files</source>
        <translation>Importer des fichiers de palette</translation>
    </message>
    <message>
        <source>Save a copy</source>
        <translation>Enregistrer une copie</translation>
    </message>
    <message>
        <source>Colours of a picture</source>
        <translation>Couleurs d’une image</translation>
    </message>
</context>
<context>
    <name>vantorel::PaletteFilter</name>
    <message>
        <source>Find a name or hex code</source>
        <translation>Rechercher un nom ou un code hexadécimal</translation>
    </message>
    <message>
        <source>Shows only colours with this in their name or hex code (Ctrl+F)</source>
        <translation>N’affiche que les couleurs dont le nom ou le code hexadécimal contient ceci (Ctrl+F)</translation>
    </message>
</context>
<context>
    <name>vantorel::PaletteListChooser</name>
    <message>
        <source>Colour list</source>
        <translation>Liste de couleurs</translation>
    </message>
    <message>
        <source>The shown list</source>
        <translation>La liste affichée</translation>
    </message>
    <message>
        <source>Name of the list</source>
        <translation>Nom de la liste</translation>
    </message>
    <message>
        <source>Colours in the list: %1</source>
        <translation>Couleurs dans la liste : %1</translation>
    </message>
</context>
<context>
    <name>vantorel::PaletteListModel</name>
    <message>
        <source>Belongs to %1, read-only</source>
        <translation>Appartient à %1, en lecture seule</translation>
    </message>
</context>
<context>
    <name>vantorel::PaletteProgress</name>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Read no more. What has been read so far can be used.</source>
        <translation>Ne plus rien lire. Ce qui a été lu jusqu’ici est utilisable.</translation>
    </message>
    <message>
        <source>Read so far: %1</source>
        <translation>Lu jusqu’ici : %1</translation>
    </message>
</context>
<context>
    <name>vantorel::PaletteUpdates</name>
    <message>
        <source>%1 of %2 lists</source>
        <translation>%1 listes sur %2</translation>
    </message>
    <message>
        <source>%1 % of the list</source>
        <translation>%1 % de la liste</translation>
    </message>
</context>
<context>
    <name>vantorel::PalettesPage</name>
    <message>
        <source>Palettes</source>
        <translation>Palettes</translation>
    </message>
    <message>
        <source>Palettes: edit the lists of named colours</source>
        <translation>Palettes : modifier les listes de couleurs nommées</translation>
    </message>
</context>
<context>
    <name>vantorel::PalettesWidget</name>
    <message>
        <source>Palettes</source>
        <translation>Palettes</translation>
    </message>
    <message>
        <source>Commands for lists and colours</source>
        <translation>Commandes pour les listes et les couleurs</translation>
    </message>
    <message>
        <source>From %1, read-only. Your first change makes a list of your own.</source>
        <translation>De %1, en lecture seule. Votre première modification en fait votre propre liste.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>There is no list yet. Create one, or drop a palette file here.</source>
        <translation>Il n’y a pas encore de liste. Créez-en une ou déposez ici un fichier de palette.</translation>
    </message>
    <message>
        <source>The list is empty. The + adds the panel&apos;s colour.</source>
        <translation>La liste est vide. Le + ajoute la couleur du panneau.</translation>
    </message>
    <message>
        <source>No colour name or hex code matches.</source>
        <translation>Aucun nom ni code hexadécimal ne correspond.</translation>
    </message>
    <message>
        <source>New list</source>
        <translation>Nouvelle liste</translation>
    </message>
    <message>
        <source>%1 copy</source>
        <translation>%1 copie</translation>
    </message>
    <message>
        <source>As a list</source>
        <translation>En liste</translation>
    </message>
    <message>
        <source>As a grid</source>
        <translation>En grille</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Image</translation>
    </message>
</context>
<context>
    <name>vantorel::PanelCommands</name>
    <message>
        <source>Copy as</source>
        <translation>Copier en</translation>
    </message>
    <message>
        <source>Pick from the screen</source>
        <translation>Prélever à l’écran</translation>
    </message>
    <message>
        <source>Pick and copy</source>
        <translation>Prélever et copier</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Copy the hex code</source>
        <translation>Copier le code hexadécimal</translation>
    </message>
    <message>
        <source>Paste a colour</source>
        <translation>Coller une couleur</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Swap colour and background</source>
        <translation>Échanger couleur et fond</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Page suivante</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Page précédente</translation>
    </message>
    <message>
        <source>Always on top</source>
        <translation>Toujours au premier plan</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Next control</source>
        <translation>Commande suivante</translation>
    </message>
    <message>
        <source>Dialogs of other programs...</source>
        <translation>Dialogues d&apos;autres programmes...</translation>
    </message>
    <message>
        <source>Preferences...</source>
        <translation>Préférences...</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manuel</translation>
    </message>
    <message>
        <source>About Vantorel</source>
        <translation>À propos de Vantorel</translation>
    </message>
    <message>
        <source>More code snippets</source>
        <translation>Autres lignes de code</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenêtre</translation>
    </message>
    <message>
        <source>Snippets</source>
        <translation>Lignes de code</translation>
    </message>
</context>
<context>
    <name>vantorel::PanelWindow</name>
    <message>
        <source>A plug-in was left out</source>
        <translation>Un greffon a été ignoré</translation>
    </message>
    <message>
        <source>%1 plug-ins were left out</source>
        <translation>%1 greffons ont été ignorés</translation>
    </message>
    <message>
        <source>%1 picks from the screen</source>
        <translation>%1 prélève à l&apos;écran</translation>
    </message>
    <message>
        <source>Last colours</source>
        <translation>Dernières couleurs</translation>
    </message>
</context>
<context>
    <name>vantorel::PictureColors</name>
    <message>
        <source>Colours of &quot;%1&quot;</source>
        <translation>Couleurs de « %1 »</translation>
    </message>
    <message>
        <source>Number of main colours</source>
        <translation>Nombre de couleurs principales</translation>
    </message>
    <message>
        <source>Main colours:</source>
        <translation>Couleurs principales :</translation>
    </message>
    <message>
        <source>Main colours of the picture</source>
        <translation>Couleurs principales de l’image</translation>
    </message>
    <message>
        <source>Keep as a list</source>
        <translation>Garder en liste</translation>
    </message>
    <message>
        <source>The picture is transparent.</source>
        <translation>L’image est transparente.</translation>
    </message>
</context>
<context>
    <name>vantorel::PictureView</name>
    <message>
        <source>Picture</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Click a colour to choose it, or move to it with the arrow keys and press Enter</source>
        <translation>Cliquez sur une couleur pour la choisir, ou allez-y avec les flèches et appuyez sur Entrée</translation>
    </message>
    <message>
        <source>transparent</source>
        <translation>transparent</translation>
    </message>
</context>
<context>
    <name>vantorel::PluginPage</name>
    <message>
        <source>The page &quot;%1&quot; could not be created because its interface file is missing or damaged. Try reinstalling %2.</source>
        <translation>La page « %1 » n’a pas pu être créée, car son fichier d’interface manque ou est endommagé. Essayez de réinstaller %2.</translation>
    </message>
    <message>
        <source>Enter what was typed</source>
        <translation>Valider la saisie</translation>
    </message>
    <message>
        <source>Give up what was typed</source>
        <translation>Abandonner la saisie</translation>
    </message>
    <message>
        <source>Change a component</source>
        <translation>Modifier une composante</translation>
    </message>
    <message>
        <source>Move in the colours</source>
        <translation>Se déplacer dans les couleurs</translation>
    </message>
    <message>
        <source>Move to the ends of the colours</source>
        <translation>Aller aux extrémités des couleurs</translation>
    </message>
    <message>
        <source>Take the colour</source>
        <translation>Prendre la couleur</translation>
    </message>
    <message>
        <source>Change a component in large steps</source>
        <translation>Modifier une composante par grands pas</translation>
    </message>
    <message>
        <source>Move a mark or change a number in coarse steps</source>
        <translation>Déplacer un repère ou changer un nombre par grands pas</translation>
    </message>
    <message>
        <source>Move a mark or change a number in fine steps</source>
        <translation>Déplacer un repère ou changer un nombre par petits pas</translation>
    </message>
</context>
<context>
    <name>vantorel::PortalShortcut</name>
    <message>
        <source>Pick a colour from the screen</source>
        <translation>Prélever une couleur à l’écran</translation>
    </message>
</context>
<context>
    <name>vantorel::PreferencesDialog</name>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>Changes apply at once</source>
        <translation>Les changements s’appliquent aussitôt</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Pages of the preferences</source>
        <translation>Pages des préférences</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
</context>
<context>
    <name>vantorel::Residence</name>
    <message>
        <source>Show the panel</source>
        <translation>Afficher le panneau</translation>
    </message>
</context>
<context>
    <name>vantorel::ShortcutOverlay</name>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>Escape or a click closes the list.</source>
        <translation>Échap ou un clic ferme la liste.</translation>
    </message>
</context>
<context>
    <name>vantorel::SnippetEditor</name>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Red, green, blue from 0 to 255</source>
        <translation>Rouge, vert, bleu de 0 à 255</translation>
    </message>
    <message>
        <source>Red, green, blue, opacity from 0 to 255</source>
        <translation>Rouge, vert, bleu, opacité de 0 à 255</translation>
    </message>
    <message>
        <source>Red, green, blue to 255, opacity to 1</source>
        <translation>Rouge, vert, bleu jusqu’à 255, opacité jusqu’à 1</translation>
    </message>
    <message>
        <source>Red, green, blue from 0 to 1</source>
        <translation>Rouge, vert, bleu de 0 à 1</translation>
    </message>
    <message>
        <source>Red, green, blue, opacity from 0 to 1</source>
        <translation>Rouge, vert, bleu, opacité de 0 à 1</translation>
    </message>
    <message>
        <source>One number: RRGGBB</source>
        <translation>Un nombre : RRGGBB</translation>
    </message>
    <message>
        <source>One number: AARRGGBB</source>
        <translation>Un nombre : AARRGGBB</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Valeurs</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>With this colour</source>
        <translation>Avec cette couleur</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Every value has its place.</source>
        <translation>Chaque valeur a sa place.</translation>
    </message>
</context>
<context>
    <name>vantorel::SnippetPreferences</name>
    <message>
        <source>New snippet</source>
        <translation>Nouvelle ligne</translation>
    </message>
    <message>
        <source>Add a snippet</source>
        <translation>Ajouter une ligne de code</translation>
    </message>
    <message>
        <source>Remove the snippet</source>
        <translation>Retirer la ligne de code</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Monter</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Descendre</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Dupliquer</translation>
    </message>
    <message>
        <source>Import...</source>
        <translation>Importer...</translation>
    </message>
    <message>
        <source>Export...</source>
        <translation>Exporter...</translation>
    </message>
    <message>
        <source>Restore the program&apos;s snippets</source>
        <translation>Rétablir les lignes du programme</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Plus</translation>
    </message>
    <message>
        <source>Import snippets</source>
        <translation>Importer des lignes de code</translation>
    </message>
    <message>
        <source>Property lists (*.plist);;All files (*)</source>
        <translation>Listes de propriétés (*.plist);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Export snippets</source>
        <translation>Exporter des lignes de code</translation>
    </message>
</context>
<context>
    <name>vantorel::SnippetRows</name>
    <message>
        <source>Snippets</source>
        <translation>Lignes de code</translation>
    </message>
</context>
<context>
    <name>vantorel::VisionMenu</name>
    <message>
        <source>Colour blindness</source>
        <translation>Daltonisme</translation>
    </message>
    <message>
        <source>Not simulated</source>
        <translation>Non simulé</translation>
    </message>
    <message>
        <source>Deuteranopia</source>
        <translation>Deutéranopie</translation>
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
        <translation>Gris</translation>
    </message>
</context>
</TS>
