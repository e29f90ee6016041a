<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en_GB">
<context>
    <name>ContrastText</name>
    <message>
        <source>yes</source>
        <translation>sí</translation>
    </message>
    <message>
        <source>no</source>
        <translation>no</translation>
    </message>
    <message>
        <source>Contrast with the background: %1 to 1
Normal text: AA %2, AAA %3
Large text: AA %4, AAA %5
Controls and graphics: AA %6</source>
        <translation>Contraste con el fondo: %1 a 1
Texto normal: AA %2, AAA %3
Texto grande: AA %4, AAA %5
Controles y gráficos: AA %6</translation>
    </message>
    <message>
        <source>AA large</source>
        <translation>AA grande</translation>
    </message>
    <message>
        <source>fails</source>
        <translation>falla</translation>
    </message>
</context>
<context>
    <name>DisplayNames</name>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Code Snippet</source>
        <translation>Línea de código</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Vacía</translation>
    </message>
    <message>
        <source>Fraction</source>
        <translation>Fracción</translation>
    </message>
    <message>
        <source>Hex</source>
        <translation>Hex</translation>
    </message>
    <message>
        <source>Hex Code</source>
        <translation>Código hexadecimal</translation>
    </message>
    <message>
        <source>Input Error</source>
        <translation>Error de entrada</translation>
    </message>
    <message>
        <source>Integer</source>
        <translation>Entero</translation>
    </message>
    <message>
        <source>Lowercase</source>
        <translation>Minúsculas</translation>
    </message>
    <message>
        <source>No Match</source>
        <translation>Sin nombre</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Uppercase</source>
        <translation>Mayúsculas</translation>
    </message>
</context>
<context>
    <name>ListFileFilters</name>
    <message>
        <source>GIMP palettes</source>
        <translation>Paletas de GIMP</translation>
    </message>
    <message>
        <source>CSS custom properties</source>
        <translation>Propiedades personalizadas de CSS</translation>
    </message>
    <message>
        <source>SCSS variables</source>
        <translation>Variables de SCSS</translation>
    </message>
    <message>
        <source>JSON</source>
        <translation>JSON</translation>
    </message>
    <message>
        <source>Swatch exchange files</source>
        <translation>Archivos de intercambio de muestras</translation>
    </message>
    <message>
        <source>SVG pictures</source>
        <translation>Imágenes SVG</translation>
    </message>
    <message>
        <source>Text files</source>
        <translation>Archivos de texto</translation>
    </message>
    <message>
        <source>Colour lists</source>
        <translation>Listas de colores</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Design tokens</source>
        <translation>Tokens de diseño</translation>
    </message>
    <message>
        <source>Colour swatches</source>
        <translation>Muestras de color</translation>
    </message>
    <message>
        <source>Krita palettes</source>
        <translation>Paletas de Krita</translation>
    </message>
    <message>
        <source>Colour tables of office programs</source>
        <translation>Tablas de colores de programas de oficina</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Imágenes</translation>
    </message>
</context>
<context>
    <name>Messages</name>
    <message>
        <source>hue</source>
        <translation>tono</translation>
    </message>
    <message>
        <source>lightness</source>
        <translation>luminosidad</translation>
    </message>
    <message>
        <source>red</source>
        <translation>rojo</translation>
    </message>
    <message>
        <source>green</source>
        <translation>verde</translation>
    </message>
    <message>
        <source>blue</source>
        <translation>azul</translation>
    </message>
    <message>
        <source>saturation</source>
        <translation>saturación</translation>
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
        <translation>opacidad</translation>
    </message>
    <message>
        <source>whiteness</source>
        <translation>blancura</translation>
    </message>
    <message>
        <source>blackness</source>
        <translation>negrura</translation>
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
        <translation>croma</translation>
    </message>
    <message>
        <source>write &quot;%1&quot;</source>
        <translation>escriba «%1»</translation>
    </message>
    <message>
        <source>an angle or a number</source>
        <translation>un ángulo o un número</translation>
    </message>
    <message>
        <source>a number or a percentage</source>
        <translation>un número o un porcentaje</translation>
    </message>
    <message>
        <source>A hex colour without &quot;#&quot; has 3 or 6 digits, not %1</source>
        <translation>Un color hexadecimal sin «#» tiene 3 o 6 dígitos, no %1</translation>
    </message>
    <message>
        <source>The text contains no colour</source>
        <translation>El texto no contiene ningún color</translation>
    </message>
    <message>
        <source>write one such as &quot;#ff8000&quot;, &quot;rgb(255 128 0)&quot; or &quot;orange&quot;</source>
        <translation>escriba uno como «#ff8000», «rgb(255 128 0)» u «orange»</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a colour</source>
        <translation>«%1» no es un color</translation>
    </message>
    <message>
        <source>&quot;%1&quot; follows the colour</source>
        <translation>«%1» sigue al color</translation>
    </message>
    <message>
        <source>give a single colour</source>
        <translation>dé un solo color</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a hex digit</source>
        <translation>«%1» no es un dígito hexadecimal</translation>
    </message>
    <message>
        <source>use digits 0 to 9 and letters a to f after the &quot;#&quot;</source>
        <translation>use los dígitos del 0 al 9 y las letras de la a a la f tras el «#»</translation>
    </message>
    <message>
        <source>A hex colour has 3, 4, 6 or 8 digits after the &quot;#&quot;, not %1</source>
        <translation>Un color hexadecimal tiene 3, 4, 6 u 8 dígitos tras el «#», no %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a property, not part of the colour</source>
        <translation>«%1» es una propiedad y no forma parte del color</translation>
    </message>
    <message>
        <source>give only its value, such as &quot;#ff8000&quot;, &quot;rgb(255 128 0)&quot; or &quot;orange&quot;</source>
        <translation>dé solo su valor, como «#ff8000», «rgb(255 128 0)» u «orange»</translation>
    </message>
    <message>
        <source>The colour of &quot;%1&quot; depends on the page that uses it</source>
        <translation>El color de «%1» depende de la página que lo usa</translation>
    </message>
    <message>
        <source>write a fixed colour such as &quot;#ff8000&quot;, &quot;rgb(255 128 0)&quot; or &quot;orange&quot;</source>
        <translation>escriba un color fijo como «#ff8000», «rgb(255 128 0)» u «orange»</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be directly followed by its parenthesis</source>
        <translation>tras «%1» debe ir inmediatamente su paréntesis</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a CSS colour name</source>
        <translation>«%1» no es un nombre de color de CSS</translation>
    </message>
    <message>
        <source>write a colour such as &quot;#ff8000&quot;, &quot;rgb(255 128 0)&quot; or &quot;orange&quot;</source>
        <translation>escriba un color como «#ff8000», «rgb(255 128 0)» u «orange»</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a supported colour function</source>
        <translation>«%1» no es una función de color admitida</translation>
    </message>
    <message>
        <source>srgb, srgb-linear, display-p3, display-p3-linear, a98-rgb, prophoto-rgb, rec2020, xyz, xyz-d50 or xyz-d65</source>
        <translation>srgb, srgb-linear, display-p3, display-p3-linear, a98-rgb, prophoto-rgb, rec2020, xyz, xyz-d50 o xyz-d65</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a colour space of color()</source>
        <translation>«%1» no es un espacio de color de color()</translation>
    </message>
    <message>
        <source>write %1</source>
        <translation>escriba %1</translation>
    </message>
    <message>
        <source>color() must begin with a colour space: %1</source>
        <translation>color() debe empezar por un espacio de color: %1</translation>
    </message>
    <message>
        <source>%1 does not take commas between its values</source>
        <translation>%1 no admite comas entre sus valores</translation>
    </message>
    <message>
        <source>The hue of %1 must be %2, not &quot;%3&quot;</source>
        <translation>El tono de %1 debe ser %2, no «%3»</translation>
    </message>
    <message>
        <source>The %1 of %2 must be %3, not &quot;%4&quot;</source>
        <translation>El valor «%1» de %2 debe ser %3, no «%4»</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an angle</source>
        <translation>«%1» no es un ángulo</translation>
    </message>
    <message>
        <source>use the unit deg, grad, rad or turn</source>
        <translation>use la unidad deg, grad, rad o turn</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not supported inside a colour</source>
        <translation>«%1» no se admite dentro de un color</translation>
    </message>
    <message>
        <source>write the resulting number</source>
        <translation>escriba el número resultante</translation>
    </message>
    <message>
        <source>The alpha of %1 is missing</source>
        <translation>Falta la opacidad de %1</translation>
    </message>
    <message>
        <source>write %1 before the &quot;)&quot;</source>
        <translation>escriba %1 antes del «)»</translation>
    </message>
    <message>
        <source>%1 needs 3 values and has %2</source>
        <translation>%1 necesita 3 valores y tiene %2</translation>
    </message>
    <message>
        <source>The %1 of %2 is missing before &quot;%3&quot;</source>
        <translation>Falta el valor «%1» de %2 antes de «%3»</translation>
    </message>
    <message>
        <source>insert %1</source>
        <translation>inserte %1</translation>
    </message>
    <message>
        <source>The alpha of %1 must follow a &quot;/&quot;</source>
        <translation>La opacidad de %1 debe ir tras un «/»</translation>
    </message>
    <message>
        <source>With commas, the alpha of %1 must also follow a comma</source>
        <translation>Con comas, la opacidad de %1 también debe ir tras una coma</translation>
    </message>
    <message>
        <source>&quot;none&quot; cannot be used with commas</source>
        <translation>«none» no se puede usar con comas</translation>
    </message>
    <message>
        <source>Instead of the &quot;)&quot; of %1 there is &quot;%2&quot;</source>
        <translation>En lugar del «)» de %1 hay «%2»</translation>
    </message>
    <message>
        <source>With commas, the values of %1 must be all numbers or all percentages</source>
        <translation>Con comas, los valores de %1 deben ser todos números o todos porcentajes</translation>
    </message>
    <message>
        <source>With commas, the %1 of %2 must be a percentage</source>
        <translation>Con comas, el valor «%1» de %2 debe ser un porcentaje</translation>
    </message>
    <message>
        <source>The values of %1 must be separated either by commas or by spaces</source>
        <translation>Los valores de %1 deben separarse o bien con comas o bien con espacios</translation>
    </message>
    <message>
        <source>write &quot;%1&quot; or &quot;%2&quot;</source>
        <translation>escriba «%1» o «%2»</translation>
    </message>
    <message>
        <source>%1 is not closed</source>
        <translation>%1 no está cerrado</translation>
    </message>
    <message>
        <source>add a &quot;)&quot; after the values</source>
        <translation>añada un «)» tras los valores</translation>
    </message>
    <message>
        <source>The comment that starts with &quot;/*&quot; is not closed</source>
        <translation>El comentario que empieza por «/*» no está cerrado</translation>
    </message>
    <message>
        <source>close it with &quot;*/&quot;</source>
        <translation>ciérrelo con «*/»</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be saved, so nothing was changed</source>
        <translation>«%1» no se pudo guardar, así que no se ha cambiado nada</translation>
    </message>
    <message>
        <source>check that you can write to %1 and that the disk has room</source>
        <translation>compruebe que puede escribir en %1 y que queda espacio en el disco</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be removed</source>
        <translation>«%1» no se pudo eliminar</translation>
    </message>
    <message>
        <source>check that you can write to %1</source>
        <translation>compruebe que puede escribir en %1</translation>
    </message>
    <message>
        <source>the file of &quot;%1&quot; could not be removed, so the list exists under both names</source>
        <translation>el archivo de «%1» no se pudo eliminar, así que la lista existe con ambos nombres</translation>
    </message>
    <message>
        <source>the name was taken, so the list is called &quot;%1&quot;</source>
        <translation>el nombre estaba ocupado, así que la lista se llama «%1»</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is now a list of your own; the other program&apos;s list is unchanged</source>
        <translation>«%1» es ahora una lista suya; la del otro programa no ha cambiado</translation>
    </message>
    <message>
        <source>another program had changed &quot;%1&quot; too; it now has both changes</source>
        <translation>otro programa también había cambiado «%1»; ahora tiene ambos cambios</translation>
    </message>
    <message>
        <source>another program had changed the same list; its version is unchanged, and yours was saved as &quot;%1&quot;</source>
        <translation>otro programa había cambiado la misma lista; su versión no ha cambiado, y la de usted se guardó como «%1»</translation>
    </message>
    <message>
        <source>another program had removed &quot;%1&quot;; it was restored with your change</source>
        <translation>otro programa había eliminado «%1»; se ha restaurado con el cambio de usted</translation>
    </message>
    <message>
        <source>another program has changed &quot;%1&quot;, so it was not removed</source>
        <translation>otro programa ha cambiado «%1», así que no se ha eliminado</translation>
    </message>
    <message>
        <source>check its colours before you remove it</source>
        <translation>compruebe sus colores antes de eliminarla</translation>
    </message>
    <message>
        <source>the step was undone only in part: later changes by another program to &quot;%1&quot; were kept</source>
        <translation>el paso solo se deshizo en parte: se conservaron los cambios posteriores de otro programa en «%1»</translation>
    </message>
    <message>
        <source>the file of &quot;%1&quot; had comments or damaged lines; the original was kept, with &quot;~&quot; appended to its name</source>
        <translation>el archivo de «%1» tenía comentarios o líneas dañadas; se conservó el original, con «~» al final de su nombre</translation>
    </message>
    <message>
        <source>no colour was picked</source>
        <translation>no se tomó ningún color</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a form of a colour</source>
        <translation>«%1» no es una forma de un color</translation>
    </message>
    <message>
        <source>use one of: %1</source>
        <translation>use una de estas: %1</translation>
    </message>
    <message>
        <source>the panel has lost its name on the session bus: other programs can no longer reach it</source>
        <translation>el panel ha perdido su nombre en el bus de sesión: los demás programas ya no pueden contactar con él</translation>
    </message>
    <message>
        <source>the panel was closed</source>
        <translation>se cerró el panel</translation>
    </message>
    <message>
        <source>the session bus has gone: other programs can no longer reach the panel</source>
        <translation>el bus de sesión ha desaparecido: los demás programas ya no pueden contactar con el panel</translation>
    </message>
    <message>
        <source>the panel that is already running does not answer, so a second one was started</source>
        <translation>el panel que ya está abierto no responde, así que se ha iniciado otro</translation>
    </message>
    <message>
        <source>another program has the name %1 on the session bus: other programs cannot reach this panel</source>
        <translation>otro programa tiene el nombre %1 en el bus de sesión: los demás programas no pueden contactar con este panel</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been removed by another program</source>
        <translation>otro programa ha eliminado «%1»</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been changed by another program</source>
        <translation>otro programa ha cambiado «%1»</translation>
    </message>
    <message>
        <source>a pattern cannot be added to a list</source>
        <translation>no se puede añadir un patrón a una lista</translation>
    </message>
    <message>
        <source>lists store no opacity, so the colour was added without it</source>
        <translation>las listas no guardan la opacidad, así que el color se añadió sin ella</translation>
    </message>
    <message>
        <source>the name was taken, so the colour is called &quot;%1&quot;</source>
        <translation>el nombre estaba ocupado, así que el color se llama «%1»</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been removed</source>
        <translation>se ha eliminado «%1»</translation>
    </message>
    <message>
        <source>choose Undo to restore it</source>
        <translation>elija Deshacer para restaurarla</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read</source>
        <translation>«%1» no se puede leer</translation>
    </message>
    <message>
        <source>check that it is a file of at most 64 MiB that you can read</source>
        <translation>compruebe que es un archivo de 64 MiB como máximo que puede leer</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a colour list that can be read</source>
        <translation>«%1» no es una lista de colores que se pueda leer</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been imported</source>
        <translation>se ha importado «%1»</translation>
    </message>
    <message>
        <source>lines that are not colours were left out: %1</source>
        <translation>líneas omitidas que no son colores: %1</translation>
    </message>
    <message>
        <source>saved as %1</source>
        <translation>guardada como %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written</source>
        <translation>«%1» no se pudo escribir</translation>
    </message>
    <message>
        <source>check that you can write to its folder and that the disk has room</source>
        <translation>compruebe que puede escribir en su carpeta y que queda espacio en el disco</translation>
    </message>
    <message>
        <source>only files on this computer can be imported</source>
        <translation>solo se pueden importar archivos de este equipo</translation>
    </message>
    <message>
        <source>that is a long text, not a colour</source>
        <translation>eso es un texto largo, no un color</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is outside sRGB; this is the nearest colour inside</source>
        <translation>«%1» está fuera de sRGB; este es el color más cercano dentro</translation>
    </message>
    <message>
        <source>there is no colour to paste</source>
        <translation>no hay ningún color que pegar</translation>
    </message>
    <message>
        <source>copy a colour, or a CSS text such as #ff8000</source>
        <translation>copie un color o un texto de CSS como #ff8000</translation>
    </message>
    <message>
        <source>&quot;%1&quot; copied</source>
        <translation>«%1» copiado</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be opened (%2)</source>
        <translation>«%1» no se puede abrir (%2)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; belongs to another user</source>
        <translation>«%1» pertenece a otro usuario</translation>
    </message>
    <message>
        <source>it cannot be loaded</source>
        <translation>no se puede cargar</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>no es un archivo normal</translation>
    </message>
    <message>
        <source>it is not a picker plug-in (it lacks vantorelPluginABI)</source>
        <translation>no es un complemento de selector (le falta vantorelPluginABI)</translation>
    </message>
    <message>
        <source>it was built for version %1 of the plug-in interface, and this panel has version %2</source>
        <translation>se compiló para la versión %1 de la interfaz de complementos, y este panel tiene la versión %2</translation>
    </message>
    <message>
        <source>install one that was built for this panel</source>
        <translation>instale uno compilado para este panel</translation>
    </message>
    <message>
        <source>it contains no picker</source>
        <translation>no contiene ningún selector</translation>
    </message>
    <message>
        <source>%1 is the same plug-in and was loaded first</source>
        <translation>%1 es el mismo complemento y se cargó antes</translation>
    </message>
    <message>
        <source>it did not create a page</source>
        <translation>no creó ninguna página</translation>
    </message>
    <message>
        <source>it failed to create its page: %1</source>
        <translation>no pudo crear su página: %1</translation>
    </message>
    <message>
        <source>it failed to create its page</source>
        <translation>no pudo crear su página</translation>
    </message>
    <message>
        <source>%1 is left out: %2</source>
        <translation>se omite %1: %2</translation>
    </message>
    <message>
        <source>remove the access-control list with &quot;setfacl -b&quot;</source>
        <translation>quite la lista de control de acceso con «setfacl -b»</translation>
    </message>
    <message>
        <source>the access-control list of &quot;%1&quot; cannot be read</source>
        <translation>no se puede leer la lista de control de acceso de «%1»</translation>
    </message>
    <message>
        <source>all users can write to &quot;%1&quot;</source>
        <translation>todos los usuarios pueden escribir en «%1»</translation>
    </message>
    <message>
        <source>remove the permission with &quot;chmod o-w&quot;</source>
        <translation>quite el permiso con «chmod o-w»</translation>
    </message>
    <message>
        <source>a group can write to &quot;%1&quot;</source>
        <translation>un grupo puede escribir en «%1»</translation>
    </message>
    <message>
        <source>remove the permission with &quot;chmod g-w&quot;</source>
        <translation>quite el permiso con «chmod g-w»</translation>
    </message>
    <message>
        <source>another user can write to &quot;%1&quot;</source>
        <translation>otro usuario puede escribir en «%1»</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 y %2</translation>
    </message>
    <message>
        <source>this desktop offers no way to pick a colour: %1</source>
        <translation>este escritorio no ofrece ninguna forma de tomar un color: %1</translation>
    </message>
    <message>
        <source>there is no X11 display</source>
        <translation>no hay pantalla X11</translation>
    </message>
    <message>
        <source>the X11 display does not show the windows of Wayland</source>
        <translation>la pantalla X11 no muestra las ventanas de Wayland</translation>
    </message>
    <message>
        <source>the X11 display gives no picture of its screens</source>
        <translation>la pantalla X11 no da ninguna imagen de sus monitores</translation>
    </message>
    <message>
        <source>the desktop portal has no PickColor</source>
        <translation>el portal del escritorio no tiene PickColor</translation>
    </message>
    <message>
        <source>the desktop portal could not pick a colour</source>
        <translation>el portal del escritorio no pudo tomar un color</translation>
    </message>
    <message>
        <source>there is no desktop portal</source>
        <translation>no hay portal del escritorio</translation>
    </message>
    <message>
        <source>the desktop portal does not answer</source>
        <translation>el portal del escritorio no responde</translation>
    </message>
    <message>
        <source>the desktop portal has gone</source>
        <translation>el portal del escritorio ha desaparecido</translation>
    </message>
    <message>
        <source>there is no session bus</source>
        <translation>no hay bus de sesión</translation>
    </message>
    <message>
        <source>the session bus has gone</source>
        <translation>el bus de sesión ha desaparecido</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Muestra esta ayuda.</translation>
    </message>
    <message>
        <source>The same as --color COLOR.</source>
        <translation>Lo mismo que --color COLOR.</translation>
    </message>
    <message>
        <source>Start with this colour: any form of CSS Color 5, such as &quot;#ff8000&quot; or &quot;hsl(30 100% 50%)&quot;, or a text that the hex page accepts.</source>
        <translation>Empieza con este color: cualquier forma de CSS Color 5, como «#ff8000» o «hsl(30 100% 50%)», o un texto que la página Hex acepta.</translation>
    </message>
    <message>
        <source>Start in this mode of the hex page: slider, palette or wheel.</source>
        <translation>Empieza en este modo de la página Hex: slider, palette o wheel.</translation>
    </message>
    <message>
        <source>Size of the page in points, such as 260x340.</source>
        <translation>Tamaño de la página en puntos, por ejemplo 260x340.</translation>
    </message>
    <message>
        <source>Write a picture of the window to FILE as PNG and exit. Works without a display and does not change the settings.</source>
        <translation>Escribe una imagen de la ventana en FILE como PNG y termina. Funciona sin pantalla y no cambia los ajustes.</translation>
    </message>
    <message>
        <source>Show this face of the hex page: colors or settings.</source>
        <translation>Muestra esta cara de la página Hex: colors o settings.</translation>
    </message>
    <message>
        <source>Keep settings, colour lists and the state of the panel in DIR/Vantorel instead of the user&apos;s own folder. DIR must exist.</source>
        <translation>Guarda los ajustes, las listas de colores y el estado del panel en DIR/Vantorel en lugar de la carpeta del usuario. DIR debe existir.</translation>
    </message>
    <message>
        <source>Also load this picker plug-in. Can be given more than once.</source>
        <translation>Carga también este complemento de selector. Se puede dar varias veces.</translation>
    </message>
    <message>
        <source>Print the colour to standard output as #rrggbbaa whenever it changes.</source>
        <translation>Muestra el color en la salida estándar como #rrggbbaa cada vez que cambia.</translation>
    </message>
    <message>
        <source>Pick a colour from the screen, print it as #rrggbb, and exit. Status: 0 picked, 1 cancelled, 3 not possible.</source>
        <translation>Toma un color de la pantalla, lo muestra como #rrggbb y termina. Estado: 0 tomado, 1 cancelado, 3 imposible.</translation>
    </message>
    <message>
        <source>Like --pick, and copy the colour to the clipboard.</source>
        <translation>Como --pick, y copia el color en el portapapeles.</translation>
    </message>
    <message>
        <source>Copy the panel&apos;s colour with its opacity to the clipboard, in the form that the panel&apos;s field shows, print the text, and exit.</source>
        <translation>Copia el color del panel con su opacidad en el portapapeles, en la forma que muestra el campo del panel, muestra el texto y termina.</translation>
    </message>
    <message>
        <source>Like --copy, in the form with this name in the panel&apos;s menu.</source>
        <translation>Como --copy, en la forma que tiene este nombre en el menú inglés del panel.</translation>
    </message>
    <message>
        <source>Let the user choose a colour in a separate panel, print it in the form that a drag out of the panel would carry, and exit. Status: 0 chosen, 1 cancelled, 3 not possible.</source>
        <translation>Deja elegir un color en un panel aparte, lo muestra en la forma que llevaría un arrastre desde el panel y termina. Estado: 0 elegido, 1 cancelado, 3 imposible.</translation>
    </message>
    <message>
        <source>Start a new panel even if one is already running.</source>
        <translation>Inicia un panel nuevo aunque ya haya uno abierto.</translation>
    </message>
    <message>
        <source>Start without a window, answer requests over D-Bus, and exit when there are no more. The session bus starts the panel with this option.</source>
        <translation>Se inicia sin ventana, responde a las peticiones por D-Bus y termina cuando no hay más. El bus de sesión inicia el panel con esta opción.</translation>
    </message>
    <message>
        <source>Show the version and exit.</source>
        <translation>Muestra la versión y termina.</translation>
    </message>
    <message>
        <source>A colour panel with pages from plug-ins. If a panel is already running, it is shown and carries out COLOR, --color, --pick, --pick-and-copy, --copy and --copy-as.</source>
        <translation>Un panel de colores con páginas de complementos. Si ya hay un panel abierto, se muestra y ejecuta COLOR, --color, --pick, --pick-and-copy, --copy y --copy-as.</translation>
    </message>
    <message>
        <source>Write JSON, one object per line.</source>
        <translation>Escribe JSON, un objeto por línea.</translation>
    </message>
    <message>
        <source>Width and height in points, or in pixels for PNG. The default is 640x480.</source>
        <translation>Anchura y altura en puntos, o en píxeles para PNG. El valor predeterminado es 640x480.</translation>
    </message>
    <message>
        <source>The name of the list.</source>
        <translation>El nombre de la lista.</translation>
    </message>
    <message>
        <source>The colour to show. With &quot;-&quot;, or without COLOR, colours are read from standard input, one per line.</source>
        <translation>El color que se muestra. Con «-», o sin COLOR, los colores se leen de la entrada estándar, uno por línea.</translation>
    </message>
    <message>
        <source>Take the name from this list instead of the list in the settings. With standard input, add the name to each line.</source>
        <translation>Toma el nombre de esta lista en lugar de la de los ajustes. Con la entrada estándar, añade el nombre a cada línea.</translation>
    </message>
    <message>
        <source>Write only the text of this snippet.</source>
        <translation>Escribe solo el texto de esta línea de código.</translation>
    </message>
    <message>
        <source>Write hex digits in lower case.</source>
        <translation>Escribe los dígitos hexadecimales en minúsculas.</translation>
    </message>
    <message>
        <source>Write hex digits in upper case. Without --lowercase or --uppercase, the settings decide.</source>
        <translation>Escribe los dígitos hexadecimales en mayúsculas. Sin --lowercase ni --uppercase deciden los ajustes.</translation>
    </message>
    <message>
        <source>Write hex codes without &quot;#&quot;.</source>
        <translation>Escribe los códigos hexadecimales sin «#».</translation>
    </message>
    <message>
        <source>Write hex codes with &quot;#&quot;. Without --pound-sign or --no-pound-sign, the settings decide.</source>
        <translation>Escribe los códigos hexadecimales con «#». Sin --pound-sign ni --no-pound-sign deciden los ajustes.</translation>
    </message>
    <message>
        <source>The colour to name; read as for &quot;show&quot;.</source>
        <translation>El color que se nombra; se lee como en «show».</translation>
    </message>
    <message>
        <source>Take the names from this list instead of the list in the settings.</source>
        <translation>Toma los nombres de esta lista en lugar de la de los ajustes.</translation>
    </message>
    <message>
        <source>Print only the names, one per line.</source>
        <translation>Muestra solo los nombres, uno por línea.</translation>
    </message>
    <message>
        <source>Write JSON.</source>
        <translation>Escribe JSON.</translation>
    </message>
    <message>
        <source>A palette file in any format of &quot;export&quot; except svg.</source>
        <translation>Un archivo de paleta en un formato de «export» distinto de svg.</translation>
    </message>
    <message>
        <source>Save the list under this name. Requires a single FILE.</source>
        <translation>Guarda la lista con este nombre. Requiere un solo FILE.</translation>
    </message>
    <message>
        <source>Replace lists of the same name without asking.</source>
        <translation>Reemplaza las listas del mismo nombre sin preguntar.</translation>
    </message>
    <message>
        <source>Write to FILE instead of standard output.</source>
        <translation>Escribe en FILE en lugar de en la salida estándar.</translation>
    </message>
    <message>
        <source>Replace files with different contents without asking.</source>
        <translation>Reemplaza los archivos con otro contenido sin preguntar.</translation>
    </message>
    <message>
        <source>Revert the last publish of the list: restore the files that it replaced and remove those that it created. Files that have changed since are kept.</source>
        <translation>Revierte la última publicación de la lista: restaura los archivos reemplazados y elimina los creados. Se conservan los archivos que han cambiado desde entonces.</translation>
    </message>
    <message>
        <source>The name of the list. If it is also the name of a command, put &quot;--&quot; before it.</source>
        <translation>El nombre de la lista. Si también es el nombre de una orden, ponga «--» delante.</translation>
    </message>
    <message>
        <source>Add palette files to your colour lists.
A list of the same name is replaced only if you agree.</source>
        <translation>Añade archivos de paleta a sus listas de colores.
Una lista del mismo nombre solo se reemplaza si usted lo acepta.</translation>
    </message>
    <message>
        <source>Write a colour list in a format that other programs read.</source>
        <translation>Escribe una lista de colores en un formato que leen otros programas.</translation>
    </message>
    <message>
        <source>Put a colour list into the palette folders of graphics programs.
A palette file is written into your palette folder of every version of GIMP, of Inkscape, Krita and KDE, if the folder exists. A file with different contents is replaced only if you agree.</source>
        <translation>Pone una lista de colores en las carpetas de paletas de los programas gráficos.
Se escribe un archivo de paleta en su carpeta de paletas de cada versión de GIMP, de Inkscape, Krita y KDE, si la carpeta existe. Un archivo con otro contenido solo se reemplaza si usted lo acepta.</translation>
    </message>
    <message>
        <source>The foreground colour, then the background colour.</source>
        <translation>El color del primer plano y después el del fondo.</translation>
    </message>
    <message>
        <source>Number of rings, 2 to 128. The default is the number in the settings.</source>
        <translation>Número de anillos, de 2 a 128. El predeterminado es el de los ajustes.</translation>
    </message>
    <message>
        <source>Write SVG to FILE; &quot;-&quot; is standard output.</source>
        <translation>Escribe SVG en FILE; «-» es la salida estándar.</translation>
    </message>
    <message>
        <source>Write PNG to FILE; &quot;-&quot; is standard output.</source>
        <translation>Escribe PNG en FILE; «-» es la salida estándar.</translation>
    </message>
    <message>
        <source>Copy the colour to the clipboard.</source>
        <translation>Copia el color en el portapapeles.</translation>
    </message>
    <message>
        <source>The colour to start with.</source>
        <translation>El color inicial.</translation>
    </message>
    <message>
        <source>bash, zsh or fish.</source>
        <translation>bash, zsh o fish.</translation>
    </message>
    <message>
        <source>Print the completion script of vantorel-panel.</source>
        <translation>Muestra el guion de completado de vantorel-panel.</translation>
    </message>
    <message>
        <source>Print the manual page of vantorel-panel.</source>
        <translation>Muestra la página de manual de vantorel-panel.</translation>
    </message>
    <message>
        <source>Print the name of each colour on a line of its own.
If the list has no exact name but CSS Color 4 has one, that name is printed, followed by &quot;(CSS Color 4)&quot;. If neither has, the names of close colours follow a &quot;*&quot;; if no colour is close, the line is &quot;No Match&quot;.</source>
        <translation>Muestra el nombre de cada color en una línea propia.
Si la lista no tiene un nombre exacto pero CSS Color 4 sí, se muestra ese nombre seguido de «(CSS Color 4)». Si no lo tiene ninguna, los nombres de colores cercanos siguen a un «*»; si no hay ninguno cercano, la línea es «No Match».</translation>
    </message>
    <message>
        <source>List all colour lists with their number of colours, name and file.</source>
        <translation>Muestra todas las listas de colores con su número de colores, nombre y archivo.</translation>
    </message>
    <message>
        <source>List the colours of a list, or import, export or publish a list.</source>
        <translation>Muestra los colores de una lista, o importa, exporta o publica una lista.</translation>
    </message>
    <message>
        <source>Print the contrast ratio of two colours and the criteria of WCAG 2.2 that it meets.
The ratio is truncated to two decimals, not rounded.</source>
        <translation>Muestra la relación de contraste de dos colores y los criterios de WCAG 2.2 que cumple.
La relación se trunca a dos decimales, no se redondea.</translation>
    </message>
    <message>
        <source>Draw the colour wheel.</source>
        <translation>Dibuja la rueda de colores.</translation>
    </message>
    <message>
        <source>Draw the palette of a colour list.</source>
        <translation>Dibuja la paleta de una lista de colores.</translation>
    </message>
    <message>
        <source>Pick a colour from the screen and print it (vantorel-panel).</source>
        <translation>Toma un color de la pantalla y lo muestra (vantorel-panel).</translation>
    </message>
    <message>
        <source>Choose a colour in the colour panel and print it (vantorel-panel).</source>
        <translation>Deja elegir un color en el panel y lo muestra (vantorel-panel).</translation>
    </message>
    <message>
        <source>Start the colour panel with the options that follow. &quot;panel --help&quot; lists them.</source>
        <translation>Inicia el panel con las opciones que siguen. «panel --help» las muestra.</translation>
    </message>
    <message>
        <source>Print a completion script for a shell.
For bash: source &lt;(vantorel completions bash)</source>
        <translation>Muestra un guion de completado para una shell.
Para bash: source &lt;(vantorel completions bash)</translation>
    </message>
    <message>
        <source>Print the manual page, formatted for man.</source>
        <translation>Muestra la página de manual, en el formato de man.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Muestra la versión.</translation>
    </message>
    <message>
        <source>palette of graphics programs</source>
        <translation>paleta de programas gráficos</translation>
    </message>
    <message>
        <source>custom properties</source>
        <translation>propiedades personalizadas</translation>
    </message>
    <message>
        <source>variables</source>
        <translation>variables</translation>
    </message>
    <message>
        <source>swatch exchange, binary</source>
        <translation>intercambio de muestras, binario</translation>
    </message>
    <message>
        <source>a picture with names</source>
        <translation>una imagen con nombres</translation>
    </message>
    <message>
        <source>there is no snippet &quot;%1&quot;</source>
        <translation>no hay ninguna línea de código «%1»</translation>
    </message>
    <message>
        <source>run &quot;vantorel snippets&quot; to list them</source>
        <translation>«vantorel snippets» las muestra</translation>
    </message>
    <message>
        <source>there is no colour list with names</source>
        <translation>no hay ninguna lista de colores con la que nombrar los colores</translation>
    </message>
    <message>
        <source>choose one with &quot;--list NAME&quot;; run &quot;vantorel lists&quot; to list them</source>
        <translation>elija una con «--list NAME»; «vantorel lists» las muestra</translation>
    </message>
    <message>
        <source>standard input, line %1: %2</source>
        <translation>entrada estándar, línea %1: %2</translation>
    </message>
    <message>
        <source>standard input has %1 more lines that are not colours</source>
        <translation>la entrada estándar tiene %1 líneas más que no son colores</translation>
    </message>
    <message>
        <source>give one colour per line</source>
        <translation>dé un color por línea</translation>
    </message>
    <message>
        <source>the line is longer than 64 KiB</source>
        <translation>la línea supera los 64 KiB</translation>
    </message>
    <message>
        <source>standard input cannot be read</source>
        <translation>no se puede leer la entrada estándar</translation>
    </message>
    <message>
        <source>give colours as arguments, or redirect standard input from a file or program</source>
        <translation>dé los colores como argumentos, o redirija la entrada estándar desde un archivo o programa</translation>
    </message>
    <message>
        <source>--size cannot be &quot;%1&quot;</source>
        <translation>--size no puede ser «%1»</translation>
    </message>
    <message>
        <source>use a size from 8x8 to 16384x16384, such as 640x480</source>
        <translation>use un tamaño de 8x8 a 16384x16384, por ejemplo 640x480</translation>
    </message>
    <message>
        <source>use a whole number from %1 to %2</source>
        <translation>use un número entero de %1 a %2</translation>
    </message>
    <message>
        <source>this format is binary and is not written to a terminal</source>
        <translation>este formato es binario y no se escribe en un terminal</translation>
    </message>
    <message>
        <source>give a file, or redirect the output</source>
        <translation>dé un archivo, o redirija la salida</translation>
    </message>
    <message>
        <source>check that it is a readable file of at most 64 MiB</source>
        <translation>compruebe que es un archivo legible de 64 MiB como máximo</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: %2</source>
        <translation>«%1»: %2</translation>
    </message>
    <message>
        <source>a list &quot;%1&quot; with different colours already exists</source>
        <translation>ya existe una lista «%1» con otros colores</translation>
    </message>
    <message>
        <source>use &quot;--yes&quot; to replace it, or &quot;--name NAME&quot; to choose another name</source>
        <translation>«--yes» la reemplaza, «--name NAME» elige otro nombre</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not imported</source>
        <translation>no se importó «%1»</translation>
    </message>
    <message>
        <source>use &quot;--name NAME&quot; to choose another name</source>
        <translation>«--name NAME» elige otro nombre</translation>
    </message>
    <message>
        <source>the list &quot;%1&quot; cannot be saved</source>
        <translation>no se puede guardar la lista «%1»</translation>
    </message>
    <message>
        <source>check that you can write to your data folder</source>
        <translation>compruebe que puede escribir en su carpeta de datos</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: %2 lines or entries were skipped</source>
        <translation>«%1»: se omitieron %2 líneas o entradas</translation>
    </message>
    <message>
        <source>each must contain one colour</source>
        <translation>cada una debe contener un color</translation>
    </message>
    <message>
        <source>NAME is missing</source>
        <translation>falta NAME</translation>
    </message>
    <message>
        <source>run &quot;vantorel lists&quot; to list the names, or &quot;vantorel list --help&quot; for the commands</source>
        <translation>«vantorel lists» muestra los nombres, «vantorel list --help» las órdenes</translation>
    </message>
    <message>
        <source>--name is given for %1 files</source>
        <translation>--name se da para %1 archivos</translation>
    </message>
    <message>
        <source>use it with a single FILE</source>
        <translation>úselo con un solo FILE</translation>
    </message>
    <message>
        <source>--name is empty</source>
        <translation>--name está vacío</translation>
    </message>
    <message>
        <source>give the list a name</source>
        <translation>dé un nombre a la lista</translation>
    </message>
    <message>
        <source>no output file is given</source>
        <translation>no se da ningún archivo de salida</translation>
    </message>
    <message>
        <source>give --svg FILE or --png FILE</source>
        <translation>dé --svg FILE o --png FILE</translation>
    </message>
    <message>
        <source>the picture cannot be drawn</source>
        <translation>no se puede dibujar la imagen</translation>
    </message>
    <message>
        <source>try a smaller --size</source>
        <translation>pruebe un --size menor</translation>
    </message>
    <message>
        <source>standard output cannot be written (%1)</source>
        <translation>no se puede escribir en la salida estándar (%1)</translation>
    </message>
    <message>
        <source>redirect it to a file with free space, or to a program that reads it</source>
        <translation>rediríjala a un archivo con espacio libre, o a un programa que la lea</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written</source>
        <translation>no se puede escribir «%1»</translation>
    </message>
    <message>
        <source>check that its folder exists and that you can write to it</source>
        <translation>compruebe que su carpeta existe y que puede escribir en ella</translation>
    </message>
    <message>
        <source>the program vantorel-panel is missing</source>
        <translation>falta el programa vantorel-panel</translation>
    </message>
    <message>
        <source>install it beside vantorel or in a folder of PATH</source>
        <translation>instálelo junto a vantorel o en una carpeta de PATH</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be run (%2)</source>
        <translation>no se puede ejecutar «%1» (%2)</translation>
    </message>
    <message>
        <source>reinstall vantorel-panel</source>
        <translation>reinstale vantorel-panel</translation>
    </message>
    <message>
        <source>the record of published files cannot be read</source>
        <translation>no se puede leer el registro de archivos publicados</translation>
    </message>
    <message>
        <source>check that you can read your data folder</source>
        <translation>compruebe que puede leer su carpeta de datos</translation>
    </message>
    <message>
        <source>the list &quot;%1&quot; has not been published</source>
        <translation>la lista «%1» no se ha publicado</translation>
    </message>
    <message>
        <source>only lists published with &quot;vantorel list publish&quot; can be undone</source>
        <translation>solo se pueden deshacer las listas publicadas con «vantorel list publish»</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has changed since it was published</source>
        <translation>«%1» ha cambiado desde que se publicó</translation>
    </message>
    <message>
        <source>it is kept; remove it yourself if you do not need it</source>
        <translation>se conserva; elimínelo usted si no lo necesita</translation>
    </message>
    <message>
        <source>check that you can write to its folder</source>
        <translation>compruebe que puede escribir en su carpeta</translation>
    </message>
    <message>
        <source>the record of published files cannot be written</source>
        <translation>no se puede escribir el registro de archivos publicados</translation>
    </message>
    <message>
        <source>no graphics program has a folder for your palettes</source>
        <translation>ningún programa gráfico tiene una carpeta para sus paletas</translation>
    </message>
    <message>
        <source>start GIMP, Inkscape or Krita once to create it</source>
        <translation>inicie GIMP, Inkscape o Krita una vez para crearla</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be replaced</source>
        <translation>no se puede reemplazar «%1»</translation>
    </message>
    <message>
        <source>remove it, or make it a readable file</source>
        <translation>elimínelo, o conviértalo en un archivo legible</translation>
    </message>
    <message>
        <source>&quot;%1&quot; already exists with different contents</source>
        <translation>«%1» ya existe con otro contenido</translation>
    </message>
    <message>
        <source>use &quot;--yes&quot; to replace it</source>
        <translation>«--yes» lo reemplaza</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has just been changed by another program</source>
        <translation>otro programa acaba de cambiar «%1»</translation>
    </message>
    <message>
        <source>publish again</source>
        <translation>publique de nuevo</translation>
    </message>
    <message>
        <source>the record of published files cannot be written, so no file was published</source>
        <translation>no se puede escribir el registro de archivos publicados, así que no se ha publicado ninguno</translation>
    </message>
    <message>
        <source>there is no colour list &quot;%1&quot;</source>
        <translation>no hay ninguna lista de colores «%1»</translation>
    </message>
    <message>
        <source>run &quot;vantorel lists&quot; to list them</source>
        <translation>«vantorel lists» las muestra</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>memoria insuficiente</translation>
    </message>
    <message>
        <source>try fewer colours at a time</source>
        <translation>pruebe con menos colores a la vez</translation>
    </message>
    <message>
        <source>see &quot;%1 --help&quot;</source>
        <translation>vea «%1 --help»</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a command</source>
        <translation>«%1» no es una orden</translation>
    </message>
    <message>
        <source>put it after &quot;%1&quot;</source>
        <translation>póngalo después de «%1»</translation>
    </message>
    <message>
        <source>&quot;%1&quot; precedes the command</source>
        <translation>«%1» precede a la orden</translation>
    </message>
    <message>
        <source>%1 precedes the command</source>
        <translation>%1 precede a la orden</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no option &quot;%2&quot;</source>
        <translation>«%1» no tiene la opción «%2»</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 no admite ningún valor</translation>
    </message>
    <message>
        <source>%1 requires a value</source>
        <translation>%1 necesita un valor</translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <translation>%1 se da dos veces</translation>
    </message>
    <message>
        <source>%1 is required</source>
        <translation>%1 es obligatorio</translation>
    </message>
    <message>
        <source>%1 cannot be combined with %2</source>
        <translation>%1 no se puede combinar con %2</translation>
    </message>
    <message>
        <source>the command is missing</source>
        <translation>falta la orden</translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation>falta %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is one argument too many</source>
        <translation>«%1» es un argumento de más</translation>
    </message>
    <message>
        <source>%1 cannot be &quot;%2&quot;</source>
        <translation>%1 no puede ser «%2»</translation>
    </message>
    <message>
        <source>use %1</source>
        <translation>use %1</translation>
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
        <translation>%1 o %2</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation>Uso: %1</translation>
    </message>
    <message>
        <source>Arguments:</source>
        <translation>Argumentos:</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Órdenes:</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Opciones:</translation>
    </message>
    <message>
        <source>&quot;%1 COMMAND --help&quot; shows the help of a command.</source>
        <translation>«%1 COMMAND --help» muestra la ayuda de una orden.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: %2</source>
        <translation>no se puede leer «%1»: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2</source>
        <translation>no se puede escribir «%1»: %2</translation>
    </message>
    <message>
        <source>its arrays and objects are more than %1 deep</source>
        <translation>sus matrices y objetos superan los %1 niveles</translation>
    </message>
    <message>
        <source>give a list of names and colours</source>
        <translation>dé una lista de nombres y colores</translation>
    </message>
    <message>
        <source>it is not a JSON colour list</source>
        <translation>no es una lista de colores en JSON</translation>
    </message>
    <message>
        <source>it contains no colours</source>
        <translation>no contiene colores</translation>
    </message>
    <message>
        <source>give a file in any format of &quot;export&quot; except svg</source>
        <translation>dé un archivo en un formato de «export» distinto de svg</translation>
    </message>
    <message>
        <source>it is a palette without colours</source>
        <translation>es una paleta sin colores</translation>
    </message>
    <message>
        <source>give one with rows &quot;R G B NAME&quot;</source>
        <translation>dé una con filas «R G B NOMBRE»</translation>
    </message>
    <message>
        <source>it is truncated</source>
        <translation>está truncado</translation>
    </message>
    <message>
        <source>give the complete file</source>
        <translation>dé el archivo completo</translation>
    </message>
    <message>
        <source>give a file with RGB, CMYK, Lab or grey colours</source>
        <translation>dé un archivo con colores RGB, CMYK, Lab o grises</translation>
    </message>
    <message>
        <source>pictures cannot be imported</source>
        <translation>las imágenes no se pueden importar</translation>
    </message>
    <message>
        <source>give a palette, such as one exported with &quot;--format gpl&quot;</source>
        <translation>dé una paleta, por ejemplo una exportada con «--format gpl»</translation>
    </message>
    <message>
        <source>--page: there is no page &quot;%1&quot;</source>
        <translation>--page: no hay ninguna página «%1»</translation>
    </message>
    <message>
        <source>%1 cannot be combined</source>
        <translation>%1 no se pueden combinar</translation>
    </message>
    <message>
        <source>COLOR and --color cannot be combined</source>
        <translation>COLOR y --color no se pueden combinar</translation>
    </message>
    <message>
        <source>--color: %1</source>
        <translation>--color: %1</translation>
    </message>
    <message>
        <source>--size: &quot;%1&quot; is not a size</source>
        <translation>--size: «%1» no es un tamaño</translation>
    </message>
    <message>
        <source>try 260x340</source>
        <translation>pruebe 260x340</translation>
    </message>
    <message>
        <source>--data: there is no folder &quot;%1&quot;</source>
        <translation>--data: no hay ninguna carpeta «%1»</translation>
    </message>
    <message>
        <source>--screenshot: &quot;%1&quot; cannot be written</source>
        <translation>--screenshot: no se puede escribir «%1»</translation>
    </message>
    <message>
        <source>there is no display (neither WAYLAND_DISPLAY nor DISPLAY is set); --screenshot FILE works without one</source>
        <translation>no hay pantalla (ni WAYLAND_DISPLAY ni DISPLAY están definidas); --screenshot FILE funciona sin ella</translation>
    </message>
    <message>
        <source>&quot;%1&quot; already exists: %2 colours</source>
        <translation>«%1» ya existe: %2 colores</translation>
    </message>
    <message>
        <source>Replace the list &quot;%1&quot;?</source>
        <translation>¿Reemplazar la lista «%1»?</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: %2 colours from %3</source>
        <translation>«%1»: %2 colores de %3</translation>
    </message>
    <message>
        <source>restored: %1</source>
        <translation>restaurado: %1</translation>
    </message>
    <message>
        <source>removed: %1</source>
        <translation>eliminado: %1</translation>
    </message>
    <message>
        <source>already undone: %1</source>
        <translation>ya deshecho: %1</translation>
    </message>
    <message>
        <source>up to date: %1</source>
        <translation>al día: %1</translation>
    </message>
    <message>
        <source>Replace &quot;%1&quot;, which has different contents?</source>
        <translation>¿Reemplazar «%1», que tiene otro contenido?</translation>
    </message>
    <message>
        <source>kept: %1</source>
        <translation>conservado: %1</translation>
    </message>
    <message>
        <source>replaced for %1</source>
        <translation>reemplazado para %1</translation>
    </message>
    <message>
        <source>written for %1</source>
        <translation>escrito para %1</translation>
    </message>
    <message>
        <source>%1 [y/N]</source>
        <translation>%1 [s/N]</translation>
    </message>
    <message>
        <source>y</source>
        <translation>s</translation>
    </message>
    <message>
        <source>the list &quot;%1&quot; has just been changed</source>
        <translation>la lista «%1» acaba de cambiar</translation>
    </message>
    <message>
        <source>import once more</source>
        <translation>importe de nuevo</translation>
    </message>
    <message>
        <source>another program is still changing files in &quot;%1&quot;</source>
        <translation>otro programa todavía está cambiando archivos en «%1»</translation>
    </message>
    <message>
        <source>try again when it has finished</source>
        <translation>inténtelo de nuevo cuando haya terminado</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: it is not a regular file</source>
        <translation>no se puede leer «%1»: no es un archivo normal</translation>
    </message>
    <message>
        <source>another program is still changing colour lists, so &quot;%1&quot; was not changed</source>
        <translation>otro programa todavía está cambiando listas de colores, así que «%1» no se ha cambiado</translation>
    </message>
    <message>
        <source>standard output cannot be written: %1</source>
        <translation>no se puede escribir en la salida estándar: %1</translation>
    </message>
    <message>
        <source>the working folder cannot be read: %1</source>
        <translation>no se puede leer la carpeta de trabajo: %1</translation>
    </message>
    <message>
        <source>use the absolute path of the plug-in</source>
        <translation>use la ruta absoluta del complemento</translation>
    </message>
    <message>
        <source>this colour has no text</source>
        <translation>este color no tiene texto</translation>
    </message>
    <message>
        <source>the desktop did not let the panel copy</source>
        <translation>el escritorio no permitió copiar</translation>
    </message>
    <message>
        <source>show the panel and copy there</source>
        <translation>muestre el panel y copie allí</translation>
    </message>
    <message>
        <source>the panel did not answer, and may not have copied the colour</source>
        <translation>el panel no respondió y quizá no copió el color</translation>
    </message>
    <message>
        <source>the program that holds the clipboard does not answer</source>
        <translation>el programa que tiene el portapapeles no responde</translation>
    </message>
    <message>
        <source>copy again, or close that program</source>
        <translation>copie de nuevo, o cierre ese programa</translation>
    </message>
    <message>
        <source>The user cancelled, a picture could not be written, or there is no display.</source>
        <translation>El usuario ha cancelado, no se ha podido escribir una imagen o no hay pantalla.</translation>
    </message>
    <message>
        <source>The command line is wrong.</source>
        <translation>La línea de órdenes es incorrecta.</translation>
    </message>
    <message>
        <source>Picking, choosing or copying is not possible; the reason is reported on standard error.</source>
        <translation>No es posible tomar, elegir o copiar; el motivo se comunica por el error estándar.</translation>
    </message>
    <message>
        <source>The user&apos;s settings, colour lists and plug-ins. If the variable is not set, the folder is ~/.local/share/Vantorel/.</source>
        <translation>Los ajustes, las listas de colores y los complementos del usuario. Si la variable no está definida, la carpeta es ~/.local/share/Vantorel/.</translation>
    </message>
    <message>
        <source>An error, such as a wrong option, a text that is not a colour, or a file that cannot be read. It is reported on standard error.</source>
        <translation>Un error, como una opción incorrecta, un texto que no es un color o un archivo que no se puede leer. Se comunica por el error estándar.</translation>
    </message>
    <message>
        <source>&quot;choose&quot; or &quot;pick&quot; is not possible, for example without a display.</source>
        <translation>«choose» o «pick» no es posible, por ejemplo sin pantalla.</translation>
    </message>
    <message>
        <source>If it is &quot;truecolor&quot; or &quot;24bit&quot;, a terminal shows a patch of each colour.</source>
        <translation>Si vale «truecolor» o «24bit», un terminal muestra una muestra de cada color.</translation>
    </message>
    <message>
        <source>If it is set and not empty, no patches are shown.</source>
        <translation>Si está definida y no está vacía, no se muestran.</translation>
    </message>
    <message>
        <source>The folder that contains settings and colour lists, instead of ~/.local/share.</source>
        <translation>La carpeta que contiene los ajustes y las listas de colores, en lugar de ~/.local/share.</translation>
    </message>
    <message>
        <source>The folder that contains the palettes of graphics programs, instead of ~/.config.</source>
        <translation>La carpeta que contiene las paletas de los programas gráficos, en lugar de ~/.config.</translation>
    </message>
    <message>
        <source>The settings of the colour picker. They are never changed.</source>
        <translation>Los ajustes del selector. No se cambian nunca.</translation>
    </message>
    <message>
        <source>Your colour lists.</source>
        <translation>Sus listas de colores.</translation>
    </message>
    <message>
        <source>The files that &quot;list publish&quot; replaced, for its option --undo.</source>
        <translation>Los archivos que «list publish» ha reemplazado, para su opción --undo.</translation>
    </message>
    <message>
        <source>&quot;pick&quot;, &quot;choose&quot; and &quot;panel&quot; exit with the status of vantorel-panel.</source>
        <translation>«pick», «choose» y «panel» terminan con el estado de vantorel-panel.</translation>
    </message>
    <message>
        <source>User Commands</source>
        <translation>Órdenes de usuario</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NOMBRE</translation>
    </message>
    <message>
        <source>SYNOPSIS</source>
        <translation>SINOPSIS</translation>
    </message>
    <message>
        <source>DESCRIPTION</source>
        <translation>DESCRIPCIÓN</translation>
    </message>
    <message>
        <source>OPTIONS</source>
        <translation>OPCIONES</translation>
    </message>
    <message>
        <source>Show help. After a command, show the help of that command.</source>
        <translation>Muestra la ayuda; después de una orden, la ayuda de esa orden.</translation>
    </message>
    <message>
        <source>COMMANDS</source>
        <translation>ÓRDENES</translation>
    </message>
    <message>
        <source>SEE ALSO</source>
        <translation>VÉASE TAMBIÉN</translation>
    </message>
    <message>
        <source>EXIT STATUS</source>
        <translation>ESTADO DE SALIDA</translation>
    </message>
    <message>
        <source>FILES</source>
        <translation>ARCHIVOS</translation>
    </message>
    <message>
        <source>a colour panel with pages from plug-ins</source>
        <translation>un panel de colores con páginas de complementos</translation>
    </message>
    <message>
        <source>ENVIRONMENT</source>
        <translation>ENTORNO</translation>
    </message>
    <message>
        <source>EXAMPLES</source>
        <translation>EJEMPLOS</translation>
    </message>
    <message>
        <source>colours for people who write CSS and code</source>
        <translation>colores para quienes escriben CSS y código</translation>
    </message>
    <message>
        <source>The command succeeded.</source>
        <translation>La orden ha tenido éxito.</translation>
    </message>
    <message>
        <source>a part of it is missing</source>
        <translation>falta una parte</translation>
    </message>
    <message>
        <source>install it again</source>
        <translation>vuelva a instalarlo</translation>
    </message>
    <message>
        <source>qt, gtk or gimp. Without PROGRAMS, all that are installed.</source>
        <translation>qt, gtk o gimp. Sin PROGRAMS, todos los instalados.</translation>
    </message>
    <message>
        <source>Print whether the page is in the dialogs; so does the command without an option.</source>
        <translation>Mostrar si la página está en los diálogos; lo mismo hace la orden sin opciones.</translation>
    </message>
    <message>
        <source>Add the page to the colour dialogs.</source>
        <translation>Añadir la página a los diálogos de color.</translation>
    </message>
    <message>
        <source>Take the page out of the colour dialogs, and remove all that --on has written.</source>
        <translation>Quitar la página de los diálogos de color y borrar todo lo que --on ha escrito.</translation>
    </message>
    <message>
        <source>Add the colour page to the colour dialogs of other programs.
Programs of Qt and of GTK 3, and GIMP, then show the page in their own colour dialogs. Nothing is changed before you use --on, which changes your own settings only.</source>
        <translation>Añadir la página de color a los diálogos de color de otros programas.
Los programas de Qt y de GTK 3, y GIMP, muestran entonces la página en sus propios diálogos de color. Nada cambia antes de usar --on, que solo cambia sus propios ajustes.</translation>
    </message>
    <message>
        <source>The plug-ins of &quot;dialogs --on&quot;, and what its option --off restores.</source>
        <translation>Los complementos de «dialogs --on» y lo que su opción --off restaura.</translation>
    </message>
    <message>
        <source>The environment in which programs find these plug-ins.</source>
        <translation>El entorno en el que los programas encuentran estos complementos.</translation>
    </message>
    <message>
        <source>GTK&apos;s list of modules, to which ours is added.</source>
        <translation>La lista de módulos de GTK, a la que se añade el nuestro.</translation>
    </message>
    <message>
        <source>The programs whose dialogs stay as they are, one per line.</source>
        <translation>Los programas cuyos diálogos quedan como están, uno por línea.</translation>
    </message>
    <message>
        <source>no page for the dialogs of other programs is installed</source>
        <translation>no hay ninguna página instalada para los diálogos de otros programas</translation>
    </message>
    <message>
        <source>install the package for the programs</source>
        <translation>instale el paquete para los programas</translation>
    </message>
    <message>
        <source>you have no folder for your settings</source>
        <translation>no tiene una carpeta para sus ajustes</translation>
    </message>
    <message>
        <source>set HOME</source>
        <translation>defina HOME</translation>
    </message>
    <message>
        <source>the libraries of Vantorel are not beside this program</source>
        <translation>las bibliotecas de Vantorel no están junto a este programa</translation>
    </message>
    <message>
        <source>use the installed program</source>
        <translation>use el programa instalado</translation>
    </message>
    <message>
        <source>%1: not installed</source>
        <translation>%1: no instalado</translation>
    </message>
    <message>
        <source>%1: off</source>
        <translation>%1: desactivado</translation>
    </message>
    <message>
        <source>%1: off; start it once, then turn it on</source>
        <translation>%1: desactivado; inícielo una vez y actívelo después</translation>
    </message>
    <message>
        <source>%1: on</source>
        <translation>%1: activado</translation>
    </message>
    <message>
        <source>%1: on after your next login</source>
        <translation>%1: activado a partir de su próximo inicio de sesión</translation>
    </message>
    <message>
        <source>%1: on after your next login, because this desktop sets its modules itself</source>
        <translation>%1: activado a partir de su próximo inicio de sesión, porque este escritorio fija los módulos</translation>
    </message>
    <message>
        <source>%1: on, but for another version; turn it on again</source>
        <translation>%1: activado, pero para otra versión; actívelo de nuevo</translation>
    </message>
    <message>
        <source>%1: off; to remove the rest, turn it off again after your next login</source>
        <translation>%1: desactivado; para borrar el resto, desactívelo otra vez tras su próximo inicio de sesión</translation>
    </message>
    <message>
        <source>another program is changing the colour dialogs</source>
        <translation>otro programa está cambiando los diálogos de color</translation>
    </message>
    <message>
        <source>try again</source>
        <translation>inténtelo de nuevo</translation>
    </message>
    <message>
        <source>the page for %1 is not installed</source>
        <translation>la página para %1 no está instalada</translation>
    </message>
    <message>
        <source>install the package for it</source>
        <translation>instale el paquete correspondiente</translation>
    </message>
    <message>
        <source>GIMP has no folder for your modules</source>
        <translation>GIMP no tiene una carpeta para sus módulos</translation>
    </message>
    <message>
        <source>start GIMP once to create it</source>
        <translation>inicie GIMP una vez para crearla</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a character that the list of plug-ins of a desktop cannot have</source>
        <translation>«%1» tiene un carácter que la lista de complementos de un escritorio no admite</translation>
    </message>
    <message>
        <source>use a data folder without : &quot; &apos; \ $ and `</source>
        <translation>use una carpeta de datos sin : &quot; &apos; \ $ ni `</translation>
    </message>
    <message>
        <source>make it a readable file, or remove it</source>
        <translation>conviértalo en un archivo legible o bórrelo</translation>
    </message>
    <message>
        <source>Which of its two colours light-dark() stands for: &quot;light&quot; or &quot;dark&quot;.</source>
        <translation>Cuál de sus dos colores representa light-dark(): «light» o «dark».</translation>
    </message>
    <message>
        <source>clamp() needs 3 values and has %1</source>
        <translation>clamp() necesita 3 valores y tiene %1</translation>
    </message>
    <message>
        <source>A calculation needs spaces on both sides of &quot;%1&quot;</source>
        <translation>Un cálculo necesita espacios a ambos lados de «%1»</translation>
    </message>
    <message>
        <source>A calculation can divide only by a number</source>
        <translation>Un cálculo solo puede dividir entre un número</translation>
    </message>
    <message>
        <source>A calculation can multiply only by a number</source>
        <translation>Un cálculo solo puede multiplicar por un número</translation>
    </message>
    <message>
        <source>The calculation is not closed</source>
        <translation>El cálculo no está cerrado</translation>
    </message>
    <message>
        <source>A calculation needs a value before &quot;%1&quot;</source>
        <translation>Al cálculo le falta un valor antes de «%1»</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not stand for a number in a calculation</source>
        <translation>«%1» no representa un número en un cálculo</translation>
    </message>
    <message>
        <source>write the number</source>
        <translation>escriba el número</translation>
    </message>
    <message>
        <source>A calculation cannot mix numbers, percentages and angles</source>
        <translation>Un cálculo no puede mezclar números, porcentajes y ángulos</translation>
    </message>
    <message>
        <source>write all values in one of them</source>
        <translation>escriba todos los valores en una de esas formas</translation>
    </message>
    <message>
        <source>The value of %1() depends on the page that uses it</source>
        <translation>El valor de %1() depende de la página que lo usa</translation>
    </message>
    <message>
        <source>write the value itself</source>
        <translation>escriba el valor mismo</translation>
    </message>
    <message>
        <source>The %1 of %2 must be %3, not the result of this %4</source>
        <translation>El valor «%1» de %2 debe ser %3, no el resultado de este %4</translation>
    </message>
    <message>
        <source>The function is not closed</source>
        <translation>La función no está cerrada</translation>
    </message>
    <message>
        <source>A comma is missing before &quot;%1&quot;</source>
        <translation>Falta una coma antes de «%1»</translation>
    </message>
    <message>
        <source>color-mix() must begin with &quot;in&quot; and a colour space</source>
        <translation>color-mix() debe empezar por «in» y un espacio de color</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a colour space of color-mix()</source>
        <translation>«%1» no es un espacio de color de color-mix()</translation>
    </message>
    <message>
        <source>write a space of color(), or hsl, hwb, lab, lch, oklab or oklch</source>
        <translation>escriba un espacio de color(), o bien hsl, hwb, lab, lch, oklab u oklch</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a way around the circle of hues</source>
        <translation>«%1» no es un camino por el círculo de tonos</translation>
    </message>
    <message>
        <source>write shorter, longer, increasing or decreasing hue</source>
        <translation>escriba shorter, longer, increasing o decreasing hue</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs a colour space with a hue</source>
        <translation>«%1» necesita un espacio de color con tono</translation>
    </message>
    <message>
        <source>use hsl, hwb, lch or oklch</source>
        <translation>use hsl, hwb, lch u oklch</translation>
    </message>
    <message>
        <source>The word &quot;hue&quot; is missing before &quot;%1&quot;</source>
        <translation>Falta la palabra «hue» antes de «%1»</translation>
    </message>
    <message>
        <source>The share of a colour must be a percentage</source>
        <translation>La parte de un color debe ser un porcentaje</translation>
    </message>
    <message>
        <source>The share of a colour must be from 0% to 100%, not &quot;%1&quot;</source>
        <translation>La parte de un color debe estar entre 0% y 100%, no ser «%1»</translation>
    </message>
    <message>
        <source>color-mix() mixes 0% of both colours</source>
        <translation>color-mix() mezcla 0% de ambos colores</translation>
    </message>
    <message>
        <source>The colour of %1() depends on the theme of the page</source>
        <translation>El color de %1() depende del tema de la página</translation>
    </message>
    <message>
        <source>write one of its two colours</source>
        <translation>escriba uno de sus dos colores</translation>
    </message>
    <message>
        <source>use rgb(), hsl(), hwb(), lab(), lch(), oklab(), oklch(), color(), color-mix() or light-dark()</source>
        <translation>use rgb(), hsl(), hwb(), lab(), lch(), oklab(), oklch(), color(), color-mix() o light-dark()</translation>
    </message>
    <message>
        <source>The parentheses are nested too deep</source>
        <translation>Los paréntesis están anidados a demasiada profundidad</translation>
    </message>
    <message>
        <source>nest at most %1</source>
        <translation>anide %1 como máximo</translation>
    </message>
    <message>
        <source>The colour to convert; read as for &quot;show&quot;.</source>
        <translation>El color que se convierte; se lee como en «show».</translation>
    </message>
    <message>
        <source>The form to write: &quot;hex&quot;, the name of a function such as &quot;oklch&quot;, or a colour space of color() such as &quot;display-p3&quot;.</source>
        <translation>La forma que se escribe: «hex», el nombre de una función como «oklch» o un espacio de color() como «display-p3».</translation>
    </message>
    <message>
        <source>Write each colour in another form of CSS, on a line of its own.
hex, rgb, hsl and hwb hold sRGB only, so other colours are mapped as CSS prescribes. All other forms keep colours as they are.</source>
        <translation>Escribir cada color en otra forma de CSS, en una línea propia.
hex, rgb, hsl y hwb solo admiten sRGB, así que los demás colores se ajustan como indica CSS. Las otras formas dejan los colores como son.</translation>
    </message>
    <message>
        <source>Look of the window: auto (light or dark as the desktop is), light, dark, contrast (white on black), or desktop (the desktop&apos;s own colours and controls). Without the option the preferences decide.</source>
        <translation>Aspecto de la ventana: auto (claro u oscuro como el escritorio), light, dark, contrast (blanco sobre negro) o desktop (los colores y controles del escritorio). Sin esta opción deciden las preferencias.</translation>
    </message>
    <message>
        <source>The preferences of the panel. If the variable is not set, the folder is ~/.config/Vantorel/.</source>
        <translation>Las preferencias del panel. Si la variable no está definida, la carpeta es ~/.config/Vantorel/.</translation>
    </message>
    <message>
        <source>The form to write, as for &quot;convert&quot;. The default is hex.</source>
        <translation>La forma que se escribe, como en «convert». Por omisión, hex.</translation>
    </message>
    <message>
        <source>The colour space to mix in, by its name in color-mix(). The default is oklab.</source>
        <translation>El espacio de color en que se mezcla, por su nombre en color-mix(). Por omisión, oklab.</translation>
    </message>
    <message>
        <source>Which way around the circle hues are mixed: shorter (the default), longer, increasing or decreasing.</source>
        <translation>El sentido en que se mezclan los tonos en el círculo: shorter (por omisión), longer, increasing o decreasing.</translation>
    </message>
    <message>
        <source>The colour to mix in.</source>
        <translation>El color que se añade.</translation>
    </message>
    <message>
        <source>The colours to mix it with; read as for &quot;show&quot;.</source>
        <translation>Los colores con los que se mezcla; se leen como en «show».</translation>
    </message>
    <message>
        <source>The share of BASE, from 0 to 1, or as a percentage. The default is 0.5.</source>
        <translation>La parte de BASE, de 0 a 1 o en porcentaje. Por omisión, 0.5.</translation>
    </message>
    <message>
        <source>The colours of the gradient, at least two; read as for &quot;show&quot;.</source>
        <translation>Los colores del degradado, dos como mínimo; se leen como en «show».</translation>
    </message>
    <message>
        <source>How many colours to write, with the first and the last. The default is 10.</source>
        <translation>Cuántos colores se escriben, con el primero y el último. Por omisión, 10.</translation>
    </message>
    <message>
        <source>How much, from 0 to 1, or as a percentage.</source>
        <translation>Cuánto, de 0 a 1 o en porcentaje.</translation>
    </message>
    <message>
        <source>The colours to change; read as for &quot;show&quot;.</source>
        <translation>Los colores que se cambian; se leen como en «show».</translation>
    </message>
    <message>
        <source>The angle in degrees; negative ones turn back.</source>
        <translation>El ángulo en grados; si es negativo, gira hacia atrás.</translation>
    </message>
    <message>
        <source>The colour space to compute in: hsl (the default), oklch or lch. In oklch, equal amounts look equal, and colours outside sRGB are kept.</source>
        <translation>El espacio de color en que se calcula: hsl (por omisión), oklch o lch. En oklch, los pasos iguales parecen iguales y los colores fuera de sRGB se conservan.</translation>
    </message>
    <message>
        <source>Mix a colour with others, and write each result on a line of its own.</source>
        <translation>Mezcla un color con otros y escribe cada resultado en una línea propia.</translation>
    </message>
    <message>
        <source>Write the colours of an even gradient through the given colours, one per line.</source>
        <translation>Escribe los colores de un degradado uniforme entre los colores dados, uno por línea.</translation>
    </message>
    <message>
        <source>Add to the lightness of each colour.</source>
        <translation>Aumenta la luminosidad de cada color.</translation>
    </message>
    <message>
        <source>Subtract from the lightness of each colour.</source>
        <translation>Reduce la luminosidad de cada color.</translation>
    </message>
    <message>
        <source>Add to the saturation of each colour.
A grey has no hue to saturate, and stays grey.</source>
        <translation>Aumenta la saturación de cada color.
Un gris no tiene tono que saturar y sigue siendo gris.</translation>
    </message>
    <message>
        <source>Subtract from the saturation of each colour.</source>
        <translation>Reduce la saturación de cada color.</translation>
    </message>
    <message>
        <source>Turn the hue of each colour.</source>
        <translation>Gira el tono de cada color.</translation>
    </message>
    <message>
        <source>Write the complement of each colour, whose hue is turned by 180 degrees.</source>
        <translation>Escribe el complementario de cada color, cuyo tono está girado 180 grados.</translation>
    </message>
    <message>
        <source>a gradient needs at least two colours</source>
        <translation>un degradado necesita dos colores como mínimo</translation>
    </message>
    <message>
        <source>give its first and its last colour</source>
        <translation>indique el primero y el último</translation>
    </message>
    <message>
        <source>use a number from 0 to 1, or a percentage such as 20%</source>
        <translation>use un número de 0 a 1 o un porcentaje como 20%</translation>
    </message>
    <message>
        <source>use a number of degrees, such as 90 or -22.5</source>
        <translation>use un número de grados como 90 o -22.5</translation>
    </message>
    <message>
        <source>The colours to make scales of; read as for &quot;show&quot;.</source>
        <translation>Los colores de los que se hacen escalas; se leen como en «show».</translation>
    </message>
    <message>
        <source>What to write: steps (the default), tints towards white, shades towards black, or tones towards grey.</source>
        <translation>Qué se escribe: steps (pasos, por omisión), tints (hacia el blanco), shades (hacia el negro) o tones (hacia el gris).</translation>
    </message>
    <message>
        <source>How many tints, shades or tones to write, the colour first. The default is 10.</source>
        <translation>Cuántos colores se escriben con tints, shades o tones, primero el color dado. Por omisión, 10.</translation>
    </message>
    <message>
        <source>How many colours to write, 1 to 1000.</source>
        <translation>Cuántos colores se escriben, de 1 a 1000.</translation>
    </message>
    <message>
        <source>Colours to begin with, which count and are written first. With &quot;-&quot;, they are read from standard input.</source>
        <translation>Colores con los que se empieza; cuentan y se escriben primero. Con «-», se leen de la entrada estándar.</translation>
    </message>
    <message>
        <source>The colours to sort; read as for &quot;show&quot;.</source>
        <translation>Los colores que se ordenan; se leen como en «show».</translation>
    </message>
    <message>
        <source>What to sort by: hue (the default), lightness or chroma in OkLCh, luminance, contrast with white, or the name of the nearest colour of the list.</source>
        <translation>Según qué se ordena: hue (tono, por omisión), lightness (luminosidad) o chroma (croma) en OkLCh, luminance (luminancia), contrast (contraste con el blanco) o name (nombre del color más cercano de la lista).</translation>
    </message>
    <message>
        <source>Write the largest first.</source>
        <translation>Escribe primero los mayores.</translation>
    </message>
    <message>
        <source>The colour to look for; read as for &quot;show&quot;.</source>
        <translation>El color que se busca; se lee como en «show».</translation>
    </message>
    <message>
        <source>Look in this list instead of the list in the settings.</source>
        <translation>Busca en esta lista en lugar de la lista de los ajustes.</translation>
    </message>
    <message>
        <source>deuteranopia (no green cones), protanopia (no red ones), tritanopia (no blue ones) or grey (luminance only).</source>
        <translation>deuteranopia (sin conos verdes), protanopia (sin rojos), tritanopia (sin azules) o grey (solo luminancia).</translation>
    </message>
    <message>
        <source>The colours to look at; read as for &quot;show&quot;.</source>
        <translation>Los colores que se miran; se leen como en «show».</translation>
    </message>
    <message>
        <source>Write the scale of each colour, from nearly white to nearly black.
Its eleven steps are known as 50, 100, 200 to 900, and 950. Their lightness in OkLCh is evenly spaced on both sides of the colour, which is one of them.</source>
        <translation>Escribe la escala de cada color, de casi blanco a casi negro.
Sus once pasos se llaman 50, 100, 200 a 900 y 950. Su luminosidad en OkLCh se reparte de modo uniforme a ambos lados del color, que es uno de ellos.</translation>
    </message>
    <message>
        <source>Write colours that differ as much as possible.
They can be seen on black and on white, and are the same each time.</source>
        <translation>Escribe colores tan distintos como sea posible.
Se ven sobre negro y sobre blanco, y son siempre los mismos.</translation>
    </message>
    <message>
        <source>Sort colours.
Colours with equal keys stay in order. Greys have no hue, and precede all others.</source>
        <translation>Ordena colores.
Los colores iguales según la clave conservan su orden. Los grises no tienen tono y preceden a los demás.</translation>
    </message>
    <message>
        <source>Write the nearest colour of a list and its name, separated by a tab.
The difference is deltaE OK of CSS Color 4, the distance in Oklab.</source>
        <translation>Escribe el color más cercano de una lista y su nombre, separados por un tabulador.
La diferencia es deltaE OK de CSS Color 4, la distancia en Oklab.</translation>
    </message>
    <message>
        <source>Write how each colour looks to people who do not see all colours.</source>
        <translation>Escribe cómo ven cada color las personas que no distinguen todos los colores.</translation>
    </message>
    <message>
        <source>a scale always has %1 colours</source>
        <translation>una escala tiene siempre %1 colores</translation>
    </message>
    <message>
        <source>leave out --number, or add --kind tints, shades or tones</source>
        <translation>omita --number o añada --kind tints, shades o tones</translation>
    </message>
    <message>
        <source>the list &quot;%1&quot; has no colours</source>
        <translation>la lista «%1» no tiene colores</translation>
    </message>
    <message>
        <source>choose another one with &quot;--list NAME&quot;</source>
        <translation>elija otra con «--list NAME»</translation>
    </message>
    <message>
        <source>The lightness, from 0 to 1, or as a percentage.</source>
        <translation>La luminosidad, de 0 a 1 o en porcentaje.</translation>
    </message>
    <message>
        <source>The colour space of the lightness: hsl (the default), oklch or lch.</source>
        <translation>El espacio de color de la luminosidad: hsl (por omisión), oklch o lch.</translation>
    </message>
    <message>
        <source>Write the grey of a lightness.</source>
        <translation>Escribe el gris de una luminosidad.</translation>
    </message>
    <message>
        <source>Show a colour in every form, with its name and your snippets.
Colours on standard input are read one per line. For each, one line is written: the hex code, a tab and the rgb() text; --list adds a tab and the name. Empty lines are skipped. A line that is not a colour is reported on standard error, and the following lines are still read.</source>
        <translation>Muestra un color en todas sus formas, con su nombre y sus propias líneas de código.
Los colores de la entrada estándar se leen uno por línea. Por cada uno se escribe una línea: el código hexadecimal, un tabulador y el texto rgb(); --list añade un tabulador y el nombre. Se omiten las líneas vacías. Una línea que no es un color se comunica por el error estándar, y se siguen leyendo las siguientes.</translation>
    </message>
    <message>
        <source>List the snippets with their formats.
Those of the settings come first, then those of your own file, then those that ship with the program. A line that a snippet writes is read as a colour. If some lines of a snippet cannot be read as the colour that was written, the last column says why.</source>
        <translation>Muestra las líneas de código con sus formatos.
Primero las de los ajustes, después las de su propio archivo y después las que se incluyen con el programa. Una línea escrita así se lee como un color. Si algunas líneas no se pueden leer como el color que se escribió, la última columna dice por qué.</translation>
    </message>
    <message>
        <source>Your own snippets, in the form of those in the settings.</source>
        <translation>Sus propias líneas de código, en la forma de las de los ajustes.</translation>
    </message>
    <message>
        <source>Colours for people who write CSS and code.
A COLOR is any form of CSS Color 5 (&quot;#ff8000&quot;, &quot;rgb(255 128 0)&quot;, &quot;oklch(70% 0.1 50)&quot;, &quot;orange&quot;), a text that the colour picker accepts (&quot;ff8000&quot;, &quot;RGB(255, 128, 0);&quot;), a line of code that a snippet writes (&quot;Color(0xffff8000)&quot;), or a name of the colour list.
Settings, snippets and colour lists are shared with the colour picker.</source>
        <translation>Colores para quienes escriben CSS y código.
Un COLOR es cualquier forma de CSS Color 5 («#ff8000», «rgb(255 128 0)», «oklch(70% 0.1 50)», «orange»), un texto que el selector acepta («ff8000», «RGB(255, 128, 0);»), una de las líneas de código («Color(0xffff8000)») o un nombre de la lista de colores.
Los ajustes, líneas de código y listas de colores son los del selector.</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: there is already a snippet &quot;%2&quot; in the settings</source>
        <translation>«%1»: en los ajustes ya hay una línea de código «%2»</translation>
    </message>
    <message>
        <source>give it another name</source>
        <translation>póngale otro nombre</translation>
    </message>
    <message>
        <source>write it as { NameSnippet = &quot;...&quot;; FormatSnippet = &quot;...&quot;; VarsSnippet = ...; }</source>
        <translation>escriba { NameSnippet = &quot;...&quot;; FormatSnippet = &quot;...&quot;; VarsSnippet = ...; }</translation>
    </message>
    <message>
        <source>&quot;%1&quot;, entry %2, has no %3</source>
        <translation>«%1», entrada %2: falta %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot;, entry %2: there is no variable form &quot;%3&quot;</source>
        <translation>«%1», entrada %2: no existe la forma de variables «%3»</translation>
    </message>
    <message>
        <source>use rgbaFloats, rgbFloats, rgbFixedAlphaFloat, rgbFixed, rgbaFixed, rgbPackedInt or rgbaPackedInt</source>
        <translation>use rgbaFloats, rgbFloats, rgbFixedAlphaFloat, rgbFixed, rgbaFixed, rgbPackedInt o rgbaPackedInt</translation>
    </message>
    <message>
        <source>&quot;%1&quot;, entry %2: there is already a snippet &quot;%3&quot;</source>
        <translation>«%1», entrada %2: ya hay una línea de código «%3»</translation>
    </message>
    <message>
        <source>&quot;%1&quot;, line %2: this is not a property list</source>
        <translation>«%1», línea %2: esto no es una lista de propiedades</translation>
    </message>
    <message>
        <source>compare this line and the one before it with the examples in the manual</source>
        <translation>compare esta línea y la anterior con los ejemplos del manual</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no list of snippets</source>
        <translation>«%1» no tiene una lista de líneas de código</translation>
    </message>
    <message>
        <source>put the snippets into round brackets, separated by commas</source>
        <translation>ponga las líneas de código entre paréntesis, separadas por comas</translation>
    </message>
    <message>
        <source>&quot;%1&quot;, entry %2, is not a snippet</source>
        <translation>«%1», entrada %2: esto no es una línea de código</translation>
    </message>
    <message>
        <source>opacity</source>
        <translation>opacidad</translation>
    </message>
    <message>
        <source>the colour</source>
        <translation>el color</translation>
    </message>
    <message>
        <source>the format is longer than %1 characters</source>
        <translation>el formato tiene más de %1 caracteres</translation>
    </message>
    <message>
        <source>there is no variable form &quot;%1&quot;</source>
        <translation>no existe la forma de variables «%1»</translation>
    </message>
    <message>
        <source>%1 is not in the format</source>
        <translation>falta en el formato: %1</translation>
    </message>
    <message>
        <source>%1 is written as a character</source>
        <translation>se escribe como carácter: %1</translation>
    </message>
    <message>
        <source>%1 is written without decimals</source>
        <translation>se escribe sin decimales: %1</translation>
    </message>
    <message>
        <source>%1 is cut off</source>
        <translation>se recorta: %1</translation>
    </message>
    <message>
        <source>%1 is written without its highest bits</source>
        <translation>se escribe sin los bits más altos: %1</translation>
    </message>
    <message>
        <source>%1 is not separated from what follows, so that some lines have two meanings</source>
        <translation>no se separa de lo que sigue, así que algunas líneas tienen dos significados: %1</translation>
    </message>
    <message>
        <source>%1 has too few digits to tell neighbouring values apart</source>
        <translation>pocas cifras para distinguir valores vecinos: %1</translation>
    </message>
    <message>
        <source>an opacity of 0 is lost with the leading zeros, which are not written</source>
        <translation>una opacidad de 0 se pierde con los ceros iniciales, que no se escriben</translation>
    </message>
    <message>
        <source>the line has no text of its own, so it is read only where it is alone</source>
        <translation>la línea no tiene texto propio, así que solo se lee cuando está sola</translation>
    </message>
    <message>
        <source>a line can be one of &quot;%1&quot; with another colour</source>
        <translation>una línea también puede ser una de «%1» con otro color</translation>
    </message>
    <message>
        <source>A style sheet, or another document with colours; &quot;-&quot; is standard input.</source>
        <translation>Una hoja de estilo u otro documento con colores; «-» es la entrada estándar.</translation>
    </message>
    <message>
        <source>When to exit with status 1: contrast, for a contrast below AA; doubles, for near doubles; any of them (the default); or never.</source>
        <translation>Cuándo el estado de salida es 1: contrast, con un contraste por debajo de AA; doubles, con colores casi iguales; any, con cualquiera de los dos (predeterminado); o never, nunca.</translation>
    </message>
    <message>
        <source>Also draw the colours as SVG to FILE; &quot;-&quot; is standard output.</source>
        <translation>Dibujar también los colores como SVG en FILE; «-» es la salida estándar.</translation>
    </message>
    <message>
        <source>Also draw the colours as PNG to FILE; &quot;-&quot; is standard output.</source>
        <translation>Dibujar también los colores como PNG en FILE; «-» es la salida estándar.</translation>
    </message>
    <message>
        <source>List the colours of style sheets, and what may be wrong with them.
Each colour is written with its number and names: the variables that hold it, and its exact name. Near doubles are colours that differ by less than 2 (CIEDE2000). A contrast is reported if the color and the background of one rule fail AA of WCAG 2.2 for text of normal size. If something is found, the exit status is 1.</source>
        <translation>Muestra los colores de hojas de estilo y lo que puede estar mal en ellos.
Cada color se escribe con su número y sus nombres: las variables que lo contienen y su nombre exacto. Son casi iguales los colores que difieren en menos de 2 (CIEDE2000). Se comunica un contraste si color y el fondo de una regla no cumplen AA de las WCAG 2.2 para texto de tamaño normal. Si se encuentra algo, el estado de salida es 1.</translation>
    </message>
    <message>
        <source>The user left &quot;choose&quot; or &quot;pick&quot; without a colour, or &quot;sheet&quot; has found something.</source>
        <translation>Se salió de «choose» o «pick» sin color, o «sheet» ha encontrado algo.</translation>
    </message>
    <message>
        <source>If it contains &quot;256color&quot;, a terminal shows a patch of the nearest of its 256 colours.</source>
        <translation>Si contiene «256color», un terminal muestra una muestra del más cercano de sus 256 colores.</translation>
    </message>
    <message>
        <source>Has no effect: some editors add it.</source>
        <translation>Sin efecto: algunos editores la añaden.</translation>
    </message>
    <message>
        <source>Serve an editor by the Language Server Protocol, on standard input and output.
The editor shows the colours of style sheets, markup and code, writes them in other forms, completes the names of your lists, and opens the colour panel. Editors start the command themselves; docs/editors.md describes how to set them up.</source>
        <translation>Servir a un editor con el Language Server Protocol, por la entrada y la salida estándar.
El editor muestra los colores de hojas de estilo, marcado y código, los escribe en otras formas, completa los nombres de sus listas y abre el panel de color. Los editores inician la orden por sí mismos; docs/editors.md describe cómo configurarlos.</translation>
    </message>
    <message>
        <source>Choose in the panel</source>
        <translation>Elegir en el panel</translation>
    </message>
    <message>
        <source>Change the text colour to %1: a contrast of %2 with the background</source>
        <translation>Cambiar el color del texto a %1: contraste de %2 con el fondo</translation>
    </message>
    <message>
        <source>Replace with &quot;%1&quot;, the closest in %2</source>
        <translation>Sustituir por «%1», el color más cercano de %2</translation>
    </message>
    <message>
        <source>Name it as the custom property %1</source>
        <translation>Darle nombre como propiedad personalizada %1</translation>
    </message>
    <message>
        <source>Convert to %1</source>
        <translation>Convertir a %1</translation>
    </message>
    <message>
        <source>The colour panel cannot be started</source>
        <translation>No se puede iniciar el panel de color</translation>
    </message>
    <message>
        <source>Closest name: %1 (%2)</source>
        <translation>Nombre más cercano: %1 (%2)</translation>
    </message>
    <message>
        <source>the colour is outside sRGB; this page shows the nearest colour inside</source>
        <translation>el color está fuera de sRGB; esta página muestra el más próximo dentro</translation>
    </message>
    <message>
        <source>Contrast with white %1, with black %2</source>
        <translation>Contraste con blanco %1, con negro %2</translation>
    </message>
    <message>
        <source>one pixel was picked: the desktop&apos;s own picker cannot average</source>
        <translation>se tomó un solo píxel: el selector del escritorio no calcula promedios</translation>
    </message>
    <message>
        <source>design tokens</source>
        <translation>tokens de diseño</translation>
    </message>
    <message>
        <source>colour swatches, binary</source>
        <translation>muestras de color, binario</translation>
    </message>
    <message>
        <source>palette of Krita, binary</source>
        <translation>paleta de Krita, binario</translation>
    </message>
    <message>
        <source>colour table of office programs</source>
        <translation>tabla de colores de programas de oficina</translation>
    </message>
    <message>
        <source>the format %1 holds at most %2 colours</source>
        <translation>el formato %1 admite como máximo %2 colores</translation>
    </message>
    <message>
        <source>choose another format</source>
        <translation>elija otro formato</translation>
    </message>
    <message>
        <source>it is an archive without the colours of a palette, or damaged</source>
        <translation>es un archivo comprimido sin los colores de una paleta, o está dañado</translation>
    </message>
    <message>
        <source>give a complete palette of Krita</source>
        <translation>indique una paleta completa de Krita</translation>
    </message>
    <message>
        <source>use a palette of GIMP, KDE or Krita, CSS, SCSS, JSON, swatches, a colour table of an office program, or a text with one colour per line</source>
        <translation>use una paleta de GIMP, KDE o Krita, CSS, SCSS, JSON, muestras, una tabla de colores de un programa de oficina o un texto con un color por línea</translation>
    </message>
    <message>
        <source>Start with this page: hex, mix, scales, palettes, or the page of another plug-in.</source>
        <translation>Empieza con esta página: hex, mix, scales, palettes o la página de otro complemento.</translation>
    </message>
    <message>
        <source>give the snippet a name</source>
        <translation>dé un nombre a la línea de código</translation>
    </message>
    <message>
        <source>write a format</source>
        <translation>escriba un formato</translation>
    </message>
    <message>
        <source>there is already a snippet &quot;%1&quot;</source>
        <translation>ya hay una línea de código «%1»</translation>
    </message>
    <message>
        <source>&quot;%1&quot; removed</source>
        <translation>«%1» quitado</translation>
    </message>
    <message>
        <source>press %1 to bring it back</source>
        <translation>pulse %1 para recuperarla</translation>
    </message>
    <message>
        <source>check that it is a file of at most 4 MiB that you can read</source>
        <translation>compruebe que es un archivo de 4 MiB como máximo que puede leer</translation>
    </message>
    <message>
        <source>snippets imported: %1</source>
        <translation>líneas de código importadas: %1</translation>
    </message>
    <message>
        <source>check that it is a file that you can read</source>
        <translation>compruebe que es un archivo que puede leer</translation>
    </message>
    <message>
        <source>there is no folder for your data</source>
        <translation>no hay carpeta para sus datos</translation>
    </message>
    <message>
        <source>set HOME or XDG_DATA_HOME to a folder that you can write to</source>
        <translation>ponga en HOME o XDG_DATA_HOME una carpeta en la que pueda escribir</translation>
    </message>
    <message>
        <source>%1 has no place in the format</source>
        <translation>%1 no tiene lugar en el formato</translation>
    </message>
    <message>
        <source>write %1 where it belongs</source>
        <translation>escriba %1 donde corresponda</translation>
    </message>
    <message>
        <source>the format has %1 places for %2 values, so the last ones are copied unchanged</source>
        <translation>el formato tiene %1 lugares para %2 valores, así que los últimos se copian sin cambios</translation>
    </message>
    <message>
        <source>write %% for a per cent sign</source>
        <translation>escriba %% para un signo de porcentaje</translation>
    </message>
    <message>
        <source>a shortcut for all programs needs Ctrl, Alt or Meta</source>
        <translation>un atajo para todos los programas necesita Ctrl, Alt o Meta</translation>
    </message>
    <message>
        <source>choose another shortcut</source>
        <translation>elija otro atajo</translation>
    </message>
    <message>
        <source>this desktop lets no program have a shortcut of its own</source>
        <translation>este escritorio no deja a los programas tener atajos propios</translation>
    </message>
    <message>
        <source>bind &quot;vantorel-panel --pick-and-copy&quot; to a key in its settings</source>
        <translation>asigne «vantorel-panel --pick-and-copy» a una tecla en sus ajustes</translation>
    </message>
    <message>
        <source>the desktop did not accept the shortcut</source>
        <translation>el escritorio no ha aceptado el atajo</translation>
    </message>
    <message>
        <source>choose another one, or allow it in the settings of the desktop</source>
        <translation>elija otro o permítalo en los ajustes del escritorio</translation>
    </message>
    <message>
        <source>the keyboard has no key %1</source>
        <translation>el teclado no tiene la tecla %1</translation>
    </message>
    <message>
        <source>another program has the shortcut %1</source>
        <translation>otro programa tiene el atajo %1</translation>
    </message>
    <message>
        <source>it is the nearest colour inside sRGB</source>
        <translation>es el color más cercano dentro de sRGB</translation>
    </message>
    <message>
        <source>the picture cannot be read</source>
        <translation>la imagen no se puede leer</translation>
    </message>
    <message>
        <source>save it as PNG or JPEG, and open the file</source>
        <translation>guárdela como PNG o JPEG y abra el archivo</translation>
    </message>
    <message>
        <source>check that it is a file of at most 256 MiB that you can read</source>
        <translation>compruebe que sea un archivo de 256 MiB como máximo que pueda leer</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a picture that can be read</source>
        <translation>«%1» no es una imagen que se pueda leer</translation>
    </message>
    <message>
        <source>use PNG, JPEG, SVG, or WebP if Qt&apos;s plug-in for it is installed</source>
        <translation>use PNG, JPEG, SVG, o WebP si está instalado el complemento de Qt para ello</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has more than 100 megapixels</source>
        <translation>«%1» tiene más de 100 megapíxeles</translation>
    </message>
    <message>
        <source>make a smaller copy of it</source>
        <translation>haga una copia más pequeña</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is damaged</source>
        <translation>«%1» está dañado</translation>
    </message>
    <message>
        <source>use another copy of it</source>
        <translation>use otra copia</translation>
    </message>
    <message>
        <source>no colour list has the name &quot;%1&quot;</source>
        <translation>ninguna lista de colores tiene el nombre «%1»</translation>
    </message>
    <message>
        <source>write a name of a list or of CSS, or a colour such as &quot;#ff8000&quot;</source>
        <translation>escriba un nombre de una lista o de CSS, o un color como «#ff8000»</translation>
    </message>
    <message>
        <source>one colour was picked: the desktop&apos;s own picker takes one at a time</source>
        <translation>se ha tomado un color: el selector del escritorio toma uno cada vez</translation>
    </message>
    <message>
        <source>pick again for the next one</source>
        <translation>tome de nuevo para el siguiente</translation>
    </message>
</context>
<context>
    <name>Vantorel</name>
    <message>
        <source>None</source>
        <translation>Ninguna</translation>
    </message>
    <message>
        <source>Colour magnifier</source>
        <translation>Lupa de colores</translation>
    </message>
    <message>
        <source>Back to the colours</source>
        <translation>Volver a los colores</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Azul</translation>
    </message>
    <message>
        <source>Click on color</source>
        <translation>Pulse sobre un color</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Código</translation>
    </message>
    <message>
        <source>Code snippet</source>
        <translation>Línea de código</translation>
    </message>
    <message>
        <source>Code snippet form</source>
        <translation>Forma de la línea de código</translation>
    </message>
    <message>
        <source>Colour list</source>
        <translation>Lista de colores</translation>
    </message>
    <message>
        <source>Colour name</source>
        <translation>Nombre del color</translation>
    </message>
    <message>
        <source>Colour under the pointer</source>
        <translation>Color bajo el puntero</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Colores</translation>
    </message>
    <message>
        <source>Component display</source>
        <translation>Presentación de los componentes</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Hecho</translation>
    </message>
    <message>
        <source>Drag</source>
        <translation>Arrastre</translation>
    </message>
    <message>
        <source>Drag type</source>
        <translation>Contenido del arrastre</translation>
    </message>
    <message>
        <source>Enlarge the panel to show all settings</source>
        <translation>Agrande el panel para ver todos los ajustes</translation>
    </message>
    <message>
        <source>Fewer rings</source>
        <translation>Menos anillos</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Hex code</source>
        <translation>Código hexadecimal</translation>
    </message>
    <message>
        <source>Hex colour</source>
        <translation>Color hexadecimal</translation>
    </message>
    <message>
        <source>Lead hex codes with #</source>
        <translation>Empezar los códigos hexadecimales con #</translation>
    </message>
    <message>
        <source>Letter case</source>
        <translation>Mayúsculas</translation>
    </message>
    <message>
        <source>Letter case of hex codes</source>
        <translation>Mayúsculas o minúsculas en los códigos hexadecimales</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>More rings</source>
        <translation>Más anillos</translation>
    </message>
    <message>
        <source>More settings</source>
        <translation>Más ajustes</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Paleta</translation>
    </message>
    <message>
        <source>Palette: pick among the colours of the list</source>
        <translation>Paleta: elegir entre los colores de la lista</translation>
    </message>
    <message>
        <source>RGB or colour name</source>
        <translation>RGB o nombre de color</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rojo</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>Slider</source>
        <translation>Deslizadores</translation>
    </message>
    <message>
        <source>Slider: pick by hex digits</source>
        <translation>Deslizadores: elegir por dígitos hexadecimales</translation>
    </message>
    <message>
        <source>The colour as a hex code: six digits, three or one</source>
        <translation>El color como código hexadecimal: seis dígitos, tres o uno</translation>
    </message>
    <message>
        <source>The colour as a line of code</source>
        <translation>El color como línea de código</translation>
    </message>
    <message>
        <source>The colour as rgb(red, green, blue); a colour name is completed as you type</source>
        <translation>El color como rgb(rojo, verde, azul); un nombre de color se completa al escribir</translation>
    </message>
    <message>
        <source>The colour&apos;s name in the list; choose one to pick it</source>
        <translation>El nombre del color en la lista; elija uno para tomar su color</translation>
    </message>
    <message>
        <source>The form of the line of code</source>
        <translation>La forma de la línea de código</translation>
    </message>
    <message>
        <source>The list that names the colour and fills the palette</source>
        <translation>La lista que da nombre al color y llena la paleta</translation>
    </message>
    <message>
        <source>Use #</source>
        <translation>Con #</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>Version 0.1</source>
        <translation>Versión 0.1</translation>
    </message>
    <message>
        <source>What a drag out of the colours carries</source>
        <translation>Lo que se lleva un arrastre desde los colores</translation>
    </message>
    <message>
        <source>What the fields below the colours show</source>
        <translation>Lo que muestran los campos bajo los colores</translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation>Rueda</translation>
    </message>
    <message>
        <source>Wheel: pick by hue, tint and shade</source>
        <translation>Rueda: elegir por tono y matiz</translation>
    </message>
    <message>
        <source>Vantorel</source>
        <translation>Vantorel</translation>
    </message>
    <message>
        <source>left digit</source>
        <translation>dígito izquierdo</translation>
    </message>
    <message>
        <source>right digit</source>
        <translation>dígito derecho</translation>
    </message>
    <message>
        <source>supportManual.htm</source>
        <translation>supportManual_es.htm</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Blue to yellow</source>
        <translation>Azul a amarillo</translation>
    </message>
    <message>
        <source>Chroma</source>
        <translation>Croma</translation>
    </message>
    <message>
        <source>Green to red</source>
        <translation>Verde a rojo</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Tono</translation>
    </message>
    <message>
        <source>Lightness</source>
        <translation>Luminosidad</translation>
    </message>
    <message>
        <source>Mix</source>
        <translation>Mezclar</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacidad</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturación</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>change a colour in OKLCH, HSL, HSV and Lab</source>
        <translation>cambiar un color en OKLCH, HSL, HSV y Lab</translation>
    </message>
    <message>
        <source>outside sRGB</source>
        <translation>fuera de sRGB</translation>
    </message>
    <message>
        <source>within sRGB</source>
        <translation>dentro de sRGB</translation>
    </message>
    <message>
        <source>Colour space</source>
        <translation>Espacio de color</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Intro</translation>
    </message>
    <message>
        <source>picks</source>
        <translation>toma</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Mayús</translation>
    </message>
    <message>
        <source>several</source>
        <translation>varios</translation>
    </message>
    <message>
        <source>A</source>
        <translation>A</translation>
    </message>
    <message>
        <source>averages</source>
        <translation>promedio</translation>
    </message>
    <message>
        <source>Mouse wheel</source>
        <translation>Rueda</translation>
    </message>
    <message>
        <source>zooms</source>
        <translation>amplía</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>leaves</source>
        <translation>sale</translation>
    </message>
    <message>
        <source>%1 picked</source>
        <translation>%1 tomados</translation>
    </message>
    <message>
        <source>AA large</source>
        <translation>AA grande</translation>
    </message>
    <message>
        <source>Analogous</source>
        <translation>Análogo</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Fondo</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Negro</translation>
    </message>
    <message>
        <source>CSS custom properties</source>
        <translation>Propiedades personalizadas de CSS</translation>
    </message>
    <message>
        <source>Complement</source>
        <translation>Complemento</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>Contrasts of the scale</source>
        <translation>Contrastes de la escala</translation>
    </message>
    <message>
        <source>Copy all</source>
        <translation>Copiar todo</translation>
    </message>
    <message>
        <source>Deuteranopia</source>
        <translation>Deuteranopia</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Degradado</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>Gris</translation>
    </message>
    <message>
        <source>Hex codes</source>
        <translation>Códigos hexadecimales</translation>
    </message>
    <message>
        <source>JSON design tokens</source>
        <translation>Tokens de diseño JSON</translation>
    </message>
    <message>
        <source>Keep as a colour list</source>
        <translation>Guardar como lista de colores</translation>
    </message>
    <message>
        <source>Kept as the colour list</source>
        <translation>Guardado como lista de colores</translation>
    </message>
    <message>
        <source>Last colour of the gradient</source>
        <translation>Último color del degradado</translation>
    </message>
    <message>
        <source>Lines of code</source>
        <translation>Líneas de código</translation>
    </message>
    <message>
        <source>Makes the last colour the panel&apos;s colour, and the panel&apos;s colour the last one</source>
        <translation>Hace del último color el del panel, y al revés</translation>
    </message>
    <message>
        <source>Nearest</source>
        <translation>Más cercano</translation>
    </message>
    <message>
        <source>Nearest colours that pass</source>
        <translation>Colores suficientes más cercanos</translation>
    </message>
    <message>
        <source>Number of colours</source>
        <translation>Número de colores</translation>
    </message>
    <message>
        <source>Protanopia</source>
        <translation>Protanopia</translation>
    </message>
    <message>
        <source>SCSS variables</source>
        <translation>Variables de SCSS</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Escala</translation>
    </message>
    <message>
        <source>Scales</source>
        <translation>Escalas</translation>
    </message>
    <message>
        <source>Schemes</source>
        <translation>Esquemas</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Sección</translation>
    </message>
    <message>
        <source>Shades</source>
        <translation>Oscuros</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Dividido</translation>
    </message>
    <message>
        <source>Steps</source>
        <translation>Pasos</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Cambiar</translation>
    </message>
    <message>
        <source>Tetrad</source>
        <translation>Tétrada</translation>
    </message>
    <message>
        <source>The colour list could not be saved. Check that you can write to its folder</source>
        <translation>No se pudo guardar la lista de colores. Compruebe que puede escribir en su carpeta</translation>
    </message>
    <message>
        <source>The last colour, in any form of CSS. Leave it empty for the complement</source>
        <translation>El último color, en cualquier forma de CSS. Vacío: el complemento</translation>
    </message>
    <message>
        <source>The scale in place of the colour</source>
        <translation>La escala en lugar del color</translation>
    </message>
    <message>
        <source>This is not a colour. Write it as in CSS, such as #ff8000 or hsl(30 100% 50%)</source>
        <translation>Esto no es un color. Escríbalo como en CSS, por ejemplo #ff8000 o hsl(30 100% 50%)</translation>
    </message>
    <message>
        <source>Tints</source>
        <translation>Claros</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Hasta</translation>
    </message>
    <message>
        <source>Tones</source>
        <translation>Grises</translation>
    </message>
    <message>
        <source>Triad</source>
        <translation>Tríada</translation>
    </message>
    <message>
        <source>Tritanopia</source>
        <translation>Tritanopia</translation>
    </message>
    <message>
        <source>Usual</source>
        <translation>Usual</translation>
    </message>
    <message>
        <source>Vision</source>
        <translation>Visión</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Blanco</translation>
    </message>
    <message>
        <source>copied</source>
        <translation>copiado</translation>
    </message>
    <message>
        <source>fails</source>
        <translation>falla</translation>
    </message>
    <message>
        <source>linear light</source>
        <translation>luz lineal</translation>
    </message>
    <message>
        <source>longer hue</source>
        <translation>tono largo</translation>
    </message>
    <message>
        <source>no lightness is enough</source>
        <translation>ninguna luminosidad basta</translation>
    </message>
    <message>
        <source>passes</source>
        <translation>pasa</translation>
    </message>
    <message>
        <source>scales, schemes, gradients and contrasts of a colour</source>
        <translation>escalas, esquemas, degradados y contrastes de un color</translation>
    </message>
    <message>
        <source>shorter hue</source>
        <translation>tono corto</translation>
    </message>
    <message>
        <source>the colour itself</source>
        <translation>el propio color</translation>
    </message>
    <message>
        <source>copy as hex, rgb, hsl, oklch</source>
        <translation>copian como hex, rgb, hsl, oklch</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Shown contrasts</source>
        <translation>Contrastes mostrados</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Texts in columns, backgrounds in rows</source>
        <translation>Textos en columnas, fondos en filas</translation>
    </message>
    <message>
        <source>A larger window shows more colours of the list</source>
        <translation>Una ventana mayor muestra más colores de la lista</translation>
    </message>
    <message>
        <source>Contrasts of the colours with each other</source>
        <translation>Contrastes de los colores entre sí</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Lista</translation>
    </message>
    <message>
        <source>No colour lists. Make one on the page Palettes</source>
        <translation>No hay listas de colores. Cree una en la página Paletas</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>A panel is already running and cannot apply %1. Use --new to start another.</source>
        <translation>Ya hay un panel abierto, que no puede aplicar %1. Use --new para iniciar otro.</translation>
    </message>
</context>
<context>
    <name>vantorel::AboutDialog</name>
    <message>
        <source>About Vantorel</source>
        <translation>Acerca de Vantorel</translation>
    </message>
    <message>
        <source>A colour picker for people who write CSS and code.</source>
        <translation>Un selector de color para quienes escriben CSS y código.</translation>
    </message>
</context>
<context>
    <name>vantorel::ChoiceBar</name>
    <message>
        <source>Choose</source>
        <translation>Elegir</translation>
    </message>
</context>
<context>
    <name>vantorel::ColorBand</name>
    <message>
        <source>Colour</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Fondo</translation>
    </message>
    <message>
        <source>Colour and background</source>
        <translation>Color y fondo</translation>
    </message>
</context>
<context>
    <name>vantorel::ColorChoice</name>
    <message>
        <source>Choose a colour</source>
        <translation>Elegir un color</translation>
    </message>
</context>
<context>
    <name>vantorel::ColorEntry</name>
    <message>
        <source>Nearest: %1</source>
        <translation>Más cercano: %1</translation>
    </message>
    <message>
        <source>Background: %1</source>
        <translation>Fondo: %1</translation>
    </message>
    <message>
        <source>As in the settings of the page</source>
        <translation>Como en los ajustes de la página</translation>
    </message>
    <message>
        <source>More code snippets</source>
        <translation>Más líneas de código</translation>
    </message>
    <message>
        <source>Outside sRGB, nearest: %1</source>
        <translation>Fuera de sRGB, el más próximo: %1</translation>
    </message>
</context>
<context>
    <name>vantorel::ColorFacts</name>
    <message>
        <source>Opacity</source>
        <translation>Opacidad</translation>
    </message>
</context>
<context>
    <name>vantorel::ColorField</name>
    <message>
        <source>Form of the text, and of copies</source>
        <translation>Forma del texto y de las copias</translation>
    </message>
    <message>
        <source>Type or paste a colour in any form</source>
        <translation>Escriba o pegue un color en cualquier forma</translation>
    </message>
    <message>
        <source>Colour as a text</source>
        <translation>Color como texto</translation>
    </message>
    <message>
        <source>Copy as</source>
        <translation>Copiar como</translation>
    </message>
</context>
<context>
    <name>vantorel::DialogSwitchesWindow</name>
    <message>
        <source>Dialogs of other programs</source>
        <translation>Diálogos de otros programas</translation>
    </message>
    <message>
        <source>The page of this panel can be in the colour dialogs of other programs, beside their own controls. A switch changes only your own settings, and takes all of it back when you turn it off.</source>
        <translation>La página de este panel puede estar en los diálogos de color de otros programas, junto a sus propios controles. Un interruptor solo cambia sus propios ajustes y deshace todo cuando lo desactiva.</translation>
    </message>
    <message>
        <source>Programs made with Qt 5 or Qt 6</source>
        <translation>Programas hechos con Qt 5 o Qt 6</translation>
    </message>
    <message>
        <source>Programs made with GTK 3</source>
        <translation>Programas hechos con GTK 3</translation>
    </message>
</context>
<context>
    <name>vantorel::FormList</name>
    <message>
        <source>Forms of the colour</source>
        <translation>Formas del color</translation>
    </message>
</context>
<context>
    <name>vantorel::FormRow</name>
    <message>
        <source>Copy %1</source>
        <translation>Copiar %1</translation>
    </message>
</context>
<context>
    <name>vantorel::GeneralPreferences</name>
    <message>
        <source>Use the desktop&apos;s own controls and colours</source>
        <translation>Usar los controles y colores del escritorio</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Oscuro</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Tema</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Tamaño del texto</translation>
    </message>
    <message>
        <source>Takes effect at the next start of the panel</source>
        <translation>Tiene efecto en el próximo inicio del panel</translation>
    </message>
    <message>
        <source>Show the colour</source>
        <translation>Mostrar el color</translation>
    </message>
    <message>
        <source>Copy the colour and stay</source>
        <translation>Copiar el color y quedarse</translation>
    </message>
    <message>
        <source>Copy the colour and minimise the panel</source>
        <translation>Copiar el color y minimizar el panel</translation>
    </message>
    <message>
        <source>After picking</source>
        <translation>Después de tomar</translation>
    </message>
    <message>
        <source>%1×%1</source>
        <translation>%1×%1</translation>
    </message>
    <message>
        <source>Pick the average of</source>
        <translation>Promedio de</translation>
    </message>
    <message>
        <source>Pixels of the screen. Where only the desktop can pick, it picks one pixel.</source>
        <translation>Píxeles de la pantalla. Donde solo el escritorio puede tomar colores, toma un píxel.</translation>
    </message>
    <message>
        <source>Stay resident, with a tray icon</source>
        <translation>Quedarse en segundo plano, con icono en la bandeja</translation>
    </message>
    <message>
        <source>Pick from anywhere</source>
        <translation>Tomar desde cualquier lugar</translation>
    </message>
    <message>
        <source>Works while the panel stays resident.</source>
        <translation>Funciona mientras el panel se queda en segundo plano.</translation>
    </message>
    <message>
        <source>Press the keys, such as Ctrl+Alt+C.</source>
        <translation>Pulse las teclas, como Ctrl+Alt+C.</translation>
    </message>
</context>
<context>
    <name>vantorel::LastColors</name>
    <message>
        <source>Last colours</source>
        <translation>Últimos colores</translation>
    </message>
    <message>
        <source>Commands for the last colours</source>
        <translation>Órdenes de los últimos colores</translation>
    </message>
    <message>
        <source>Unpin %1</source>
        <translation>Soltar %1</translation>
    </message>
    <message>
        <source>Pin %1</source>
        <translation>Fijar %1</translation>
    </message>
    <message>
        <source>Keep all as a list</source>
        <translation>Guardar todos como lista</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vaciar</translation>
    </message>
    <message>
        <source>pinned</source>
        <translation>fijado</translation>
    </message>
</context>
<context>
    <name>vantorel::NameCompletion</name>
    <message>
        <source>Names of colours</source>
        <translation>Nombres de colores</translation>
    </message>
</context>
<context>
    <name>vantorel::PageBar</name>
    <message>
        <source>Commands</source>
        <translation>Órdenes</translation>
    </message>
</context>
<context>
    <name>vantorel::PageTabs</name>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
</context>
<context>
    <name>vantorel::PaletteCommands</name>
    <message>
        <source>New list</source>
        <translation>Lista nueva</translation>
    </message>
    <message>
        <source>Rename the list</source>
        <translation>Cambiar el nombre de la lista</translation>
    </message>
    <message>
        <source>Copy the list</source>
        <translation>Copiar la lista</translation>
    </message>
    <message>
        <source>Remove the list</source>
        <translation>Eliminar la lista</translation>
    </message>
    <message>
        <source>Import palette files...</source>
        <translation>Importar archivos de paleta...</translation>
    </message>
    <message>
        <source>Save a copy as a file...</source>
        <translation>Guardar una copia en un archivo...</translation>
    </message>
    <message>
        <source>Add the panel&apos;s colour</source>
        <translation>Añadir el color del panel</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Cambiar el nombre</translation>
    </message>
    <message>
        <source>Give it the panel&apos;s colour</source>
        <translation>Darle el color del panel</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Bajar</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Colores</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Add %1 to the list (%2)</source>
        <translation>Añadir %1 a la lista (%2)</translation>
    </message>
    <message>
        <source>Give the selected colours the panel&apos;s colour, %1</source>
        <translation>Dar a los colores seleccionados el color del panel, %1</translation>
    </message>
    <message>
        <source>Colours of a picture...</source>
        <translation>Colores de una imagen...</translation>
    </message>
    <message>
        <source>Pick into this list</source>
        <translation>Tomar para esta lista</translation>
    </message>
</context>
<context>
    <name>vantorel::PaletteEdits</name>
    <message>
        <source>My colours</source>
        <translation>Mis colores</translation>
    </message>
</context>
<context>
    <name>vantorel::PaletteEntriesView</name>
    <message>
        <source>Colour name</source>
        <translation>Nombre del color</translation>
    </message>
    <message>
        <source>Colours of the list</source>
        <translation>Colores de la lista</translation>
    </message>
</context>
<context>
    <name>vantorel::PaletteFiles</name>
    <message>
        <source>Import palette files</source>
        <translation>Importar archivos de paleta</translation>
    </message>
    <message>
        <source>Save a copy</source>
        <translation>Guardar una copia</translation>
    </message>
    <message>
        <source>Colours of a picture</source>
        <translation>Colores de una imagen</translation>
    </message>
</context>
<context>
    <name>vantorel::PaletteFilter</name>
    <message>
        <source>Find a name or hex code</source>
        <translation>Buscar un nombre o código hexadecimal</translation>
    </message>
    <message>
        <source>Shows only colours with this in their name or hex code (Ctrl+F)</source>
        <translation>Muestra solo los colores cuyo nombre o código hexadecimal contiene esto (Ctrl+F)</translation>
    </message>
</context>
<context>
    <name>vantorel::PaletteListChooser</name>
    <message>
        <source>Colour list</source>
        <translation>Lista de colores</translation>
    </message>
    <message>
        <source>The shown list</source>
        <translation>La lista mostrada</translation>
    </message>
    <message>
        <source>Name of the list</source>
        <translation>Nombre de la lista</translation>
    </message>
    <message>
        <source>Colours in the list: %1</source>
        <translation>Colores de la lista: %1</translation>
    </message>
</context>
<context>
    <name>vantorel::PaletteListModel</name>
    <message>
        <source>Belongs to %1, read-only</source>
        <translation>Pertenece a %1, solo lectura</translation>
    </message>
</context>
<context>
    <name>vantorel::PaletteProgress</name>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Read no more. What has been read so far can be used.</source>
        <translation>No leer más. Lo leído hasta ahora se puede usar.</translation>
    </message>
    <message>
        <source>Read so far: %1</source>
        <translation>Leído hasta ahora: %1</translation>
    </message>
</context>
<context>
    <name>vantorel::PaletteUpdates</name>
    <message>
        <source>%1 of %2 lists</source>
        <translation>%1 de %2 listas</translation>
    </message>
    <message>
        <source>%1 % of the list</source>
        <translation>%1 % de la lista</translation>
    </message>
</context>
<context>
    <name>vantorel::PalettesPage</name>
    <message>
        <source>Palettes</source>
        <translation>Paletas</translation>
    </message>
    <message>
        <source>Palettes: edit the lists of named colours</source>
        <translation>Paletas: editar las listas de colores con nombre</translation>
    </message>
</context>
<context>
    <name>vantorel::PalettesWidget</name>
    <message>
        <source>Palettes</source>
        <translation>Paletas</translation>
    </message>
    <message>
        <source>Commands for lists and colours</source>
        <translation>Órdenes para listas y colores</translation>
    </message>
    <message>
        <source>From %1, read-only. Your first change makes a list of your own.</source>
        <translation>De %1, solo lectura. El primer cambio la convierte en una lista suya.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>There is no list yet. Create one, or drop a palette file here.</source>
        <translation>Aún no hay ninguna lista. Cree una o suelte aquí un archivo de paleta.</translation>
    </message>
    <message>
        <source>The list is empty. The + adds the panel&apos;s colour.</source>
        <translation>La lista está vacía. El + añade el color del panel.</translation>
    </message>
    <message>
        <source>No colour name or hex code matches.</source>
        <translation>Ningún nombre ni código hexadecimal coincide.</translation>
    </message>
    <message>
        <source>New list</source>
        <translation>Lista nueva</translation>
    </message>
    <message>
        <source>%1 copy</source>
        <translation>%1 copia</translation>
    </message>
    <message>
        <source>As a list</source>
        <translation>Como lista</translation>
    </message>
    <message>
        <source>As a grid</source>
        <translation>Como cuadrícula</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Imagen</translation>
    </message>
</context>
<context>
    <name>vantorel::PanelCommands</name>
    <message>
        <source>Copy as</source>
        <translation>Copiar como</translation>
    </message>
    <message>
        <source>Pick from the screen</source>
        <translation>Tomar de la pantalla</translation>
    </message>
    <message>
        <source>Pick and copy</source>
        <translation>Tomar y copiar</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Copy the hex code</source>
        <translation>Copiar el código hexadecimal</translation>
    </message>
    <message>
        <source>Paste a colour</source>
        <translation>Pegar un color</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Swap colour and background</source>
        <translation>Intercambiar color y fondo</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Página siguiente</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Página anterior</translation>
    </message>
    <message>
        <source>Always on top</source>
        <translation>Siempre visible</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Next control</source>
        <translation>Control siguiente</translation>
    </message>
    <message>
        <source>Dialogs of other programs...</source>
        <translation>Diálogos de otros programas...</translation>
    </message>
    <message>
        <source>Preferences...</source>
        <translation>Preferencias...</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>About Vantorel</source>
        <translation>Acerca de Vantorel</translation>
    </message>
    <message>
        <source>More code snippets</source>
        <translation>Más líneas de código</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Ventana</translation>
    </message>
    <message>
        <source>Snippets</source>
        <translation>Líneas de código</translation>
    </message>
</context>
<context>
    <name>vantorel::PanelWindow</name>
    <message>
        <source>A plug-in was left out</source>
        <translation>Se omitió un complemento</translation>
    </message>
    <message>
        <source>%1 plug-ins were left out</source>
        <translation>Se omitieron %1 complementos</translation>
    </message>
    <message>
        <source>%1 picks from the screen</source>
        <translation>%1 toma de la pantalla</translation>
    </message>
    <message>
        <source>Last colours</source>
        <translation>Últimos colores</translation>
    </message>
</context>
<context>
    <name>vantorel::PictureColors</name>
    <message>
        <source>Colours of &quot;%1&quot;</source>
        <translation>Colores de «%1»</translation>
    </message>
    <message>
        <source>Number of main colours</source>
        <translation>Número de colores principales</translation>
    </message>
    <message>
        <source>Main colours:</source>
        <translation>Colores principales:</translation>
    </message>
    <message>
        <source>Main colours of the picture</source>
        <translation>Colores principales de la imagen</translation>
    </message>
    <message>
        <source>Keep as a list</source>
        <translation>Guardar como lista</translation>
    </message>
    <message>
        <source>The picture is transparent.</source>
        <translation>La imagen es transparente.</translation>
    </message>
</context>
<context>
    <name>vantorel::PictureView</name>
    <message>
        <source>Picture</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>Click a colour to choose it, or move to it with the arrow keys and press Enter</source>
        <translation>Pulse sobre un color para elegirlo, o vaya a él con las flechas y pulse Intro</translation>
    </message>
    <message>
        <source>transparent</source>
        <translation>transparente</translation>
    </message>
</context>
<context>
    <name>vantorel::PluginPage</name>
    <message>
        <source>The page &quot;%1&quot; could not be created because its interface file is missing or damaged. Try reinstalling %2.</source>
        <translation>La página «%1» no se pudo crear porque su archivo de interfaz falta o está dañado. Pruebe a reinstalar %2.</translation>
    </message>
    <message>
        <source>Enter what was typed</source>
        <translation>Aceptar lo escrito</translation>
    </message>
    <message>
        <source>Give up what was typed</source>
        <translation>Descartar lo escrito</translation>
    </message>
    <message>
        <source>Change a component</source>
        <translation>Cambiar un componente</translation>
    </message>
    <message>
        <source>Move in the colours</source>
        <translation>Moverse por los colores</translation>
    </message>
    <message>
        <source>Move to the ends of the colours</source>
        <translation>Ir a los extremos de los colores</translation>
    </message>
    <message>
        <source>Take the colour</source>
        <translation>Tomar el color</translation>
    </message>
    <message>
        <source>Change a component in large steps</source>
        <translation>Cambiar un componente en pasos grandes</translation>
    </message>
    <message>
        <source>Move a mark or change a number in coarse steps</source>
        <translation>Mover una marca o cambiar un número a pasos grandes</translation>
    </message>
    <message>
        <source>Move a mark or change a number in fine steps</source>
        <translation>Mover una marca o cambiar un número a pasos finos</translation>
    </message>
</context>
<context>
    <name>vantorel::PortalShortcut</name>
    <message>
        <source>Pick a colour from the screen</source>
        <translation>Tomar un color de la pantalla</translation>
    </message>
</context>
<context>
    <name>vantorel::PreferencesDialog</name>
    <message>
        <source>Preferences</source>
        <translation>Preferencias</translation>
    </message>
    <message>
        <source>Changes apply at once</source>
        <translation>Los cambios se aplican al momento</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Pages of the preferences</source>
        <translation>Páginas de las preferencias</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
</context>
<context>
    <name>vantorel::Residence</name>
    <message>
        <source>Show the panel</source>
        <translation>Mostrar el panel</translation>
    </message>
</context>
<context>
    <name>vantorel::ShortcutOverlay</name>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>Escape or a click closes the list.</source>
        <translation>Escape o un clic cierra la lista.</translation>
    </message>
</context>
<context>
    <name>vantorel::SnippetEditor</name>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Red, green, blue from 0 to 255</source>
        <translation>Rojo, verde, azul de 0 a 255</translation>
    </message>
    <message>
        <source>Red, green, blue, opacity from 0 to 255</source>
        <translation>Rojo, verde, azul, opacidad de 0 a 255</translation>
    </message>
    <message>
        <source>Red, green, blue to 255, opacity to 1</source>
        <translation>Rojo, verde, azul hasta 255, opacidad hasta 1</translation>
    </message>
    <message>
        <source>Red, green, blue from 0 to 1</source>
        <translation>Rojo, verde, azul de 0 a 1</translation>
    </message>
    <message>
        <source>Red, green, blue, opacity from 0 to 1</source>
        <translation>Rojo, verde, azul, opacidad de 0 a 1</translation>
    </message>
    <message>
        <source>One number: RRGGBB</source>
        <translation>Un número: RRGGBB</translation>
    </message>
    <message>
        <source>One number: AARRGGBB</source>
        <translation>Un número: AARRGGBB</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Valores</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>With this colour</source>
        <translation>Con este color</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Every value has its place.</source>
        <translation>Cada valor tiene su lugar.</translation>
    </message>
</context>
<context>
    <name>vantorel::SnippetPreferences</name>
    <message>
        <source>New snippet</source>
        <translation>Nueva línea</translation>
    </message>
    <message>
        <source>Add a snippet</source>
        <translation>Añadir una línea de código</translation>
    </message>
    <message>
        <source>Remove the snippet</source>
        <translation>Quitar la línea de código</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Bajar</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplicar</translation>
    </message>
    <message>
        <source>Import...</source>
        <translation>Importar...</translation>
    </message>
    <message>
        <source>Export...</source>
        <translation>Exportar...</translation>
    </message>
    <message>
        <source>Restore the program&apos;s snippets</source>
        <translation>Restaurar las líneas del programa</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Más</translation>
    </message>
    <message>
        <source>Import snippets</source>
        <translation>Importar líneas de código</translation>
    </message>
    <message>
        <source>Property lists (*.plist);;All files (*)</source>
        <translation>Listas de propiedades (*.plist);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Export snippets</source>
        <translation>Exportar líneas de código</translation>
    </message>
</context>
<context>
    <name>vantorel::SnippetRows</name>
    <message>
        <source>Snippets</source>
        <translation>Líneas de código</translation>
    </message>
</context>
<context>
    <name>vantorel::VisionMenu</name>
    <message>
        <source>Colour blindness</source>
        <translation>Daltonismo</translation>
    </message>
    <message>
        <source>Not simulated</source>
        <translation>Sin simular</translation>
    </message>
    <message>
        <source>Deuteranopia</source>
        <translation>Deuteranopia</translation>
    </message>
    <message>
        <source>Protanopia</source>
        <translation>Protanopia</translation>
    </message>
    <message>
        <source>Tritanopia</source>
        <translation>Tritanopia</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>Gris</translation>
    </message>
</context>
</TS>
