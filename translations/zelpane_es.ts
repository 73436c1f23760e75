<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
<context>
    <name>AboutBox</name>
    <message>
        <source>About Zelpane</source>
        <translation>Acerca de Zelpane</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>Project &amp;Page</source>
        <translation>&amp;Página del proyecto</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>Accessible</name>
    <message>
        <source>No image</source>
        <translation>Ninguna imagen</translation>
    </message>
    <message>
        <source>%1 by %2 pixels</source>
        <translation>%1 por %2 píxeles</translation>
    </message>
    <message>
        <source>zoom %1</source>
        <translation>ampliación %1</translation>
    </message>
    <message>
        <source>selected: %1</source>
        <translation>seleccionado: %1</translation>
    </message>
</context>
<context>
    <name>Adjust</name>
    <message>
        <source>Adjust Selection</source>
        <translation>Ajustar la selección</translation>
    </message>
    <message>
        <source>&amp;Hue:</source>
        <translation>&amp;Tono:</translation>
    </message>
    <message>
        <source>Turns all colours about the grey axis, in hundredths of a radian; 0 leaves them as they are</source>
        <translation>Gira todos los colores alrededor del eje de grises, en centésimas de radián; 0 los deja como están</translation>
    </message>
    <message>
        <source>Hue slider</source>
        <translation>Deslizador de tono</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Tono</translation>
    </message>
    <message>
        <source>Sa&amp;turation:</source>
        <translation>&amp;Saturación:</translation>
    </message>
    <message>
        <source>Strength of the colours: 0 is grey, 100 leaves them as they are</source>
        <translation>Fuerza de los colores: 0 es gris, 100 los deja como están</translation>
    </message>
    <message>
        <source>Saturation slider</source>
        <translation>Deslizador de saturación</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturación</translation>
    </message>
    <message>
        <source>&amp;Brightness:</source>
        <translation>&amp;Brillo:</translation>
    </message>
    <message>
        <source>Added to every colour; 0 leaves them as they are</source>
        <translation>Se suma a cada color; 0 los deja como están</translation>
    </message>
    <message>
        <source>Brightness slider</source>
        <translation>Deslizador de brillo</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Brillo</translation>
    </message>
    <message>
        <source>&amp;Contrast:</source>
        <translation>&amp;Contraste:</translation>
    </message>
    <message>
        <source>Distance from mid grey; 100 leaves it as it is</source>
        <translation>Distancia al gris medio; 100 la deja como está</translation>
    </message>
    <message>
        <source>Contrast slider</source>
        <translation>Deslizador de contraste</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>&amp;Sharpness:</source>
        <translation>&amp;Nitidez:</translation>
    </message>
    <message>
        <source>Above 0 sharpens, below 0 blurs</source>
        <translation>Por encima de 0 enfoca, por debajo de 0 desenfoca</translation>
    </message>
    <message>
        <source>Sharpness slider</source>
        <translation>Deslizador de nitidez</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>Nitidez</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Restablecer</translation>
    </message>
    <message>
        <source>All five back to what leaves the image as it is</source>
        <translation>Devuelve los cinco a lo que deja la imagen como está</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Closes the dialog; the adjustment shown stays and can be undone once anchored</source>
        <translation>Cierra el diálogo; el ajuste mostrado queda y se puede deshacer una vez anclado</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Closes the dialog; the adjustment shown stays</source>
        <translation>Cierra el diálogo; el ajuste mostrado queda</translation>
    </message>
    <message>
        <source>The selection could not be adjusted.</source>
        <translation>No se pudo ajustar la selección.</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>No hay memoria suficiente.</translation>
    </message>
    <message>
        <source>C&amp;ompare</source>
        <translation>C&amp;omparar</translation>
    </message>
    <message>
        <source>While it is pressed: the image without the adjustment</source>
        <translation>Mientras se pulsa: la imagen sin el ajuste</translation>
    </message>
</context>
<context>
    <name>AdjustDialog</name>
    <message>
        <source> · %1°</source>
        <translation> · %1°</translation>
    </message>
</context>
<context>
    <name>Clipboard</name>
    <message>
        <source>Selection %1.png</source>
        <translation>Selección %1.png</translation>
    </message>
    <message>
        <source>Nothing could be pasted.</source>
        <translation>No se pudo pegar nada.</translation>
    </message>
    <message>
        <source>The clipboard&apos;s image cannot be read.</source>
        <translation>No se puede leer la imagen del portapapeles.</translation>
    </message>
    <message>
        <source>The clipboard&apos;s image is larger than %1 MB.</source>
        <translation>La imagen del portapapeles ocupa más de %1 MB.</translation>
    </message>
</context>
<context>
    <name>Codecs</name>
    <message>
        <source>The image has no pixels.</source>
        <translation>La imagen no tiene píxeles.</translation>
    </message>
    <message>
        <source>The image is too large: %1 x %2 pixels.</source>
        <translation>La imagen es demasiado grande: %1 × %2 píxeles.</translation>
    </message>
    <message>
        <source>The file is far too small for the %1 x %2 pixels it claims to hold.</source>
        <translation>El archivo es demasiado pequeño para los %1 × %2 píxeles que dice contener.</translation>
    </message>
    <message>
        <source>The image of %1 x %2 pixels does not fit this machine&apos;s memory.</source>
        <translation>La imagen de %1 × %2 píxeles no cabe en la memoria de este equipo.</translation>
    </message>
    <message>
        <source>its data is damaged</source>
        <translation>sus datos están dañados</translation>
    </message>
    <message>
        <source>It is not an image of a kind that can be opened.</source>
        <translation>No es una imagen de un tipo que se pueda abrir.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>El archivo está vacío.</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>El archivo no existe.</translation>
    </message>
    <message>
        <source>There is no permission to read the file.</source>
        <translation>No hay permiso para leer el archivo.</translation>
    </message>
    <message>
        <source>The file is a link that leads nowhere.</source>
        <translation>El archivo es un enlace que no lleva a ninguna parte.</translation>
    </message>
    <message>
        <source>The file&apos;s name is too long.</source>
        <translation>El nombre del archivo es demasiado largo.</translation>
    </message>
    <message>
        <source>The file cannot be read: %1.</source>
        <translation>No se puede leer el archivo: %1.</translation>
    </message>
    <message>
        <source>There is not enough memory to read the file.</source>
        <translation>No hay memoria suficiente para leer el archivo.</translation>
    </message>
    <message>
        <source>There is not enough memory for this image.</source>
        <translation>No hay memoria suficiente para esta imagen.</translation>
    </message>
    <message>
        <source>The image cannot be read: %1.</source>
        <translation>No se puede leer la imagen: %1.</translation>
    </message>
    <message>
        <source>The image cannot be read.</source>
        <translation>No se puede leer la imagen.</translation>
    </message>
    <message>
        <source>It is a folder, not an image.</source>
        <translation>Es una carpeta, no una imagen.</translation>
    </message>
    <message>
        <source>It is not an ordinary file.</source>
        <translation>No es un archivo corriente.</translation>
    </message>
    <message>
        <source>The file is larger than 4 GiB.</source>
        <translation>El archivo ocupa más de 4 GiB.</translation>
    </message>
    <message>
        <source>The colour profile is incomplete and was left out.</source>
        <translation>El perfil de color está incompleto y se ha omitido.</translation>
    </message>
    <message>
        <source>There is not enough memory for this JPEG image.</source>
        <translation>No hay memoria suficiente para esta imagen JPEG.</translation>
    </message>
    <message>
        <source>The JPEG data cannot be read: %1.</source>
        <translation>No se pueden leer los datos JPEG: %1.</translation>
    </message>
    <message>
        <source>JPEG images with two components cannot be read.</source>
        <translation>No se pueden leer imágenes JPEG con dos componentes.</translation>
    </message>
    <message>
        <source>The JPEG data is damaged; what could be read is shown.</source>
        <translation>Los datos JPEG están dañados; se muestra lo que se pudo leer.</translation>
    </message>
    <message>
        <source>The %1 image is larger than the limits of this machine allow.</source>
        <translation>La imagen %1 supera los límites de este equipo.</translation>
    </message>
    <message>
        <source>The %1 data cannot be read: %2.</source>
        <translation>No se pueden leer los datos %1: %2.</translation>
    </message>
    <message>
        <source>The image&apos;s data is damaged; what could be read is shown.</source>
        <translation>Los datos de la imagen están dañados; se muestra lo que se pudo leer.</translation>
    </message>
    <message numerus="yes">
        <source>The image had %n bits a colour; it was reduced to 8.</source>
        <translation>
            <numerusform>La imagen tenía %n bit por color; se ha reducido a 8.</numerusform>
            <numerusform>La imagen tenía %n bits por color; se ha reducido a 8.</numerusform>
        </translation>
    </message>
    <message>
        <source>The EXIF data is damaged and was left out.</source>
        <translation>Los datos EXIF están dañados y se han omitido.</translation>
    </message>
    <message>
        <source>Damaged parts of the EXIF data were left out.</source>
        <translation>Se han omitido las partes dañadas de los datos EXIF.</translation>
    </message>
    <message>
        <source>The XMP data is damaged and was left out.</source>
        <translation>Los datos XMP están dañados y se han omitido.</translation>
    </message>
    <message>
        <source>The colour profile is damaged and was left out.</source>
        <translation>El perfil de color está dañado y se ha omitido.</translation>
    </message>
    <message>
        <source>The image was converted to RGB; its colour profile was left out.</source>
        <translation>La imagen se ha convertido a RGB; su perfil de color se ha omitido.</translation>
    </message>
    <message>
        <source>The colour profile does not fit the image and was left out.</source>
        <translation>El perfil de color no corresponde a la imagen y se ha omitido.</translation>
    </message>
    <message>
        <source>The IPTC data is damaged and was left out.</source>
        <translation>Los datos IPTC están dañados y se han omitido.</translation>
    </message>
    <message>
        <source>The file is damaged or ended too early; what could be read is shown.</source>
        <translation>El archivo está dañado o termina demasiado pronto; se muestra lo que se pudo leer.</translation>
    </message>
    <message numerus="yes">
        <source>The file has %n page(s); this is the first.</source>
        <translation>
            <numerusform>El archivo tiene %n página; esta es la primera.</numerusform>
            <numerusform>El archivo tiene %n páginas; esta es la primera.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The file has %n frame(s); this is the first.</source>
        <translation>
            <numerusform>El archivo tiene %n fotograma; este es el primero.</numerusform>
            <numerusform>El archivo tiene %n fotogramas; este es el primero.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The file has %n layer(s); this is what they make together.</source>
        <translation>
            <numerusform>El archivo tiene %n capa; esto es lo que forma.</numerusform>
            <numerusform>El archivo tiene %n capas; esto es lo que forman juntas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The file has %n bits a colour; the image has 8.</source>
        <translation>
            <numerusform>El archivo tiene %n bit por color; la imagen tiene 8.</numerusform>
            <numerusform>El archivo tiene %n bits por color; la imagen tiene 8.</numerusform>
        </translation>
    </message>
    <message>
        <source>The file is in printing inks; the image is in red, green and blue.</source>
        <translation>El archivo está en tintas de impresión; la imagen está en rojo, verde y azul.</translation>
    </message>
    <message>
        <source>Save writes quality %1; this file has %2.</source>
        <translation>Guardar escribe con calidad %1; este archivo tiene %2.</translation>
    </message>
    <message numerus="yes">
        <source>%n page(s)</source>
        <translation>
            <numerusform>%n página</numerusform>
            <numerusform>%n páginas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n frame(s)</source>
        <translation>
            <numerusform>%n fotograma</numerusform>
            <numerusform>%n fotogramas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n layer(s)</source>
        <translation>
            <numerusform>%n capa</numerusform>
            <numerusform>%n capas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n bits a colour</source>
        <translation>
            <numerusform>%n bit por color</numerusform>
            <numerusform>%n bits por color</numerusform>
        </translation>
    </message>
    <message>
        <source>its palette is corrupt</source>
        <translation>su paleta está alterada</translation>
    </message>
    <message>
        <source>its palette is damaged</source>
        <translation>su paleta está dañada</translation>
    </message>
    <message>
        <source>it holds what is unknown and cannot be left out</source>
        <translation>contienen algo desconocido que no se puede omitir</translation>
    </message>
    <message>
        <source>The PNG data cannot be read: %1.</source>
        <translation>No se pueden leer los datos PNG: %1.</translation>
    </message>
    <message>
        <source>its header is damaged</source>
        <translation>su cabecera está dañada</translation>
    </message>
    <message>
        <source>it has no pixels</source>
        <translation>no tienen píxeles</translation>
    </message>
    <message>
        <source>the file is damaged or ends before its pixels</source>
        <translation>el archivo está dañado o termina antes de sus píxeles</translation>
    </message>
    <message>
        <source>it has no palette</source>
        <translation>no tienen paleta</translation>
    </message>
    <message>
        <source>The PNG data cannot be read: a checksum of its pixels is wrong.</source>
        <translation>No se pueden leer los datos PNG: una suma de comprobación de sus píxeles no es correcta.</translation>
    </message>
    <message>
        <source>The PNG data cannot be read: not one row of its pixels is whole.</source>
        <translation>No se pueden leer los datos PNG: ninguna fila de píxeles está entera.</translation>
    </message>
    <message>
        <source>The PNG data is damaged; what could be read is shown.</source>
        <translation>Los datos PNG están dañados; se muestra lo que se pudo leer.</translation>
    </message>
    <message>
        <source>The PSD data cannot be read: its palette is damaged.</source>
        <translation>No se pueden leer los datos PSD: su paleta está dañada.</translation>
    </message>
    <message>
        <source>The PSD data is damaged; what could be read is shown.</source>
        <translation>Los datos PSD están dañados; se muestra lo que se pudo leer.</translation>
    </message>
    <message>
        <source>The TIFF structure is damaged.</source>
        <translation>La estructura del archivo TIFF está dañada.</translation>
    </message>
    <message>
        <source>TIFF images with so many or so large samples cannot be read.</source>
        <translation>No se pueden leer imágenes TIFF con muestras tan numerosas o tan grandes.</translation>
    </message>
    <message>
        <source>The TIFF file is compressed in a way that cannot be read.</source>
        <translation>El archivo TIFF está comprimido de un modo que no se puede leer.</translation>
    </message>
    <message>
        <source>The TIFF structure is damaged: its strips or tiles have no size.</source>
        <translation>La estructura del archivo TIFF está dañada: sus tiras o teselas no tienen tamaño.</translation>
    </message>
    <message>
        <source>The TIFF structure is damaged: its strips or tiles are too large.</source>
        <translation>La estructura del archivo TIFF está dañada: sus tiras o teselas son demasiado grandes.</translation>
    </message>
    <message>
        <source>The TIFF structure is damaged: it has too many strips or tiles.</source>
        <translation>La estructura del archivo TIFF está dañada: tiene demasiadas tiras o teselas.</translation>
    </message>
    <message>
        <source>The TIFF data cannot be read: %1.</source>
        <translation>No se pueden leer los datos TIFF: %1.</translation>
    </message>
    <message>
        <source>The TIFF data is damaged: %1.</source>
        <translation>Los datos TIFF están dañados: %1.</translation>
    </message>
    <message>
        <source>The TIFF data is damaged; what could be read is shown.</source>
        <translation>Los datos TIFF están dañados; se muestra lo que se pudo leer.</translation>
    </message>
    <message>
        <source>The %1 image cannot be read: its reader ended unexpectedly.</source>
        <translation>No se puede leer la imagen %1: su lector terminó de forma inesperada.</translation>
    </message>
    <message>
        <source>The %1 image cannot be read: its reader did not come to an end.</source>
        <translation>No se puede leer la imagen %1: su lector no llegó a terminar.</translation>
    </message>
    <message>
        <source>Reading was stopped.</source>
        <translation>Se detuvo la lectura.</translation>
    </message>
    <message>
        <source>This kind of file has no quality to choose.</source>
        <translation>Este tipo de archivo no tiene calidad que elegir.</translation>
    </message>
    <message>
        <source>A WebP file holds at most 16,383 pixels a side.</source>
        <translation>Un archivo WebP admite como máximo 16 383 píxeles por lado.</translation>
    </message>
    <message>
        <source>Even at the lowest quality the file is larger.</source>
        <translation>Incluso con la calidad más baja el archivo es mayor.</translation>
    </message>
</context>
<context>
    <name>ColorPanel</name>
    <message>
        <source>The colour with its opacity</source>
        <translation>El color con su opacidad</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Colores</translation>
    </message>
    <message>
        <source>&amp;Pick Screen Colour</source>
        <translation>&amp;Tomar un color de la pantalla</translation>
    </message>
</context>
<context>
    <name>ColorWell</name>
    <message>
        <source>Colour</source>
        <translation>Color</translation>
    </message>
</context>
<context>
    <name>Compare</name>
    <message>
        <source>as opened</source>
        <translation>como se abrió</translation>
    </message>
    <message>
        <source>as last saved</source>
        <translation>como se guardó por última vez</translation>
    </message>
    <message>
        <source>before the last step</source>
        <translation>antes del último paso</translation>
    </message>
    <message>
        <source>before</source>
        <translation>antes</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>No hay memoria suficiente.</translation>
    </message>
    <message>
        <source>That state of the image cannot be read any more.</source>
        <translation>Ese estado de la imagen ya no se puede leer.</translation>
    </message>
    <message>
        <source>The image had another size then.</source>
        <translation>La imagen tenía entonces otro tamaño.</translation>
    </message>
    <message>
        <source>Left of the pointer: %1</source>
        <translation>A la izquierda del puntero: %1</translation>
    </message>
</context>
<context>
    <name>Corners</name>
    <message>
        <source>The selection does not have four corners.</source>
        <translation>La selección no tiene cuatro esquinas.</translation>
    </message>
    <message>
        <source>The selection could not be made upright.</source>
        <translation>No se pudo enderezar la selección.</translation>
    </message>
    <message>
        <source>It is seen from too far aside.</source>
        <translation>Se ve demasiado de lado.</translation>
    </message>
    <message>
        <source>With Polygon beside the lasso, click the corners of what is to become upright one by one.</source>
        <translation>Con «Polígono» junto al lazo, haga clic una a una en las esquinas de lo que debe quedar recto.</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>The file is too large for a small image of it.</source>
        <translation>El archivo es demasiado grande para una miniatura.</translation>
    </message>
</context>
<context>
    <name>Document</name>
    <message>
        <source>There is not enough memory.</source>
        <translation>No hay memoria suficiente.</translation>
    </message>
</context>
<context>
    <name>EmptyView</name>
    <message>
        <source>Drop an image here</source>
        <translation>Suelte una imagen aquí</translation>
    </message>
    <message>
        <source>&amp;New…</source>
        <translation>&amp;Nueva…</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Abrir…</translation>
    </message>
</context>
<context>
    <name>FileManager</name>
    <message>
        <source>Image Library</source>
        <translation>Biblioteca de imágenes</translation>
    </message>
    <message>
        <source>Images of the library</source>
        <translation>Imágenes de la biblioteca</translation>
    </message>
    <message>
        <source>Drop images here to add them</source>
        <translation>Suelte imágenes aquí para añadirlas</translation>
    </message>
    <message>
        <source>Preview of the selected image</source>
        <translation>Vista previa de la imagen elegida</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Añadir…</translation>
    </message>
    <message>
        <source>Adds a link to an image</source>
        <translation>Añade un enlace a una imagen</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation>&amp;Cambiar nombre…</translation>
    </message>
    <message>
        <source>Renames the selected entry (F2)</source>
        <translation>Cambia el nombre de la entrada elegida (F2)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Eliminar</translation>
    </message>
    <message>
        <source>Deletes the selected entry, never the image that a link leads to (Delete)</source>
        <translation>Elimina la entrada elegida, nunca la imagen a la que lleva un enlace (Supr)</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>A&amp;brir</translation>
    </message>
    <message>
        <source>Opens the selected image in the editor (Return)</source>
        <translation>Abre la imagen elegida en el editor (Intro)</translation>
    </message>
    <message>
        <source>Re&amp;link</source>
        <translation>&amp;Volver a enlazar</translation>
    </message>
    <message>
        <source>Lets the selected link lead to the image that was found</source>
        <translation>Hace que el enlace elegido lleve a la imagen encontrada</translation>
    </message>
    <message>
        <source>Relin&amp;k All…</source>
        <translation>Enlazar &amp;todas…</translation>
    </message>
    <message>
        <source>Lets every broken link lead to its image, where that was found by its content</source>
        <translation>Hace que cada enlace roto lleve a su imagen, si se encontró por su contenido</translation>
    </message>
    <message>
        <source>Show D&amp;uplicates</source>
        <translation>Mostrar &amp;duplicados</translation>
    </message>
    <message>
        <source>Shows only images that are here more than once: the same file, the same content, or the same look</source>
        <translation>Muestra solo las imágenes que están más de una vez: el mismo archivo, el mismo contenido o el mismo aspecto</translation>
    </message>
</context>
<context>
    <name>Files</name>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 KB</translation>
    </message>
    <message>
        <source>The image would be too large.</source>
        <translation>La imagen sería demasiado grande.</translation>
    </message>
    <message>
        <source>An image can have up to 30,000 pixels a side and 1,000 megapixels in all.</source>
        <translation>Una imagen puede tener hasta 30.000 píxeles por lado y 1.000 megapíxeles en total.</translation>
    </message>
    <message>
        <source>The file could not be opened.</source>
        <translation>No se pudo abrir el archivo.</translation>
    </message>
    <message>
        <source>Use Save as TIFF…</source>
        <translation>Guardar como TIFF…</translation>
    </message>
    <message>
        <source>Use Save as JPEG…</source>
        <translation>Guardar como JPEG…</translation>
    </message>
    <message>
        <source>Use Save as PNG…</source>
        <translation>Guardar como PNG…</translation>
    </message>
    <message>
        <source>Save does not write files whose names have no extension.</source>
        <translation>Guardar no escribe archivos cuyo nombre no tiene extensión.</translation>
    </message>
    <message>
        <source>Save does not write .%1 files.</source>
        <translation>Guardar no escribe archivos .%1.</translation>
    </message>
    <message>
        <source>Not opened: %1</source>
        <translation>No abierto: %1</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The image could not be brought back.</source>
        <translation>No se pudo recuperar la imagen.</translation>
    </message>
    <message>
        <source>Its steps are gone from the folder of temporary files.</source>
        <translation>Sus pasos han desaparecido de la carpeta de archivos temporales.</translation>
    </message>
    <message numerus="yes">
        <source>%n bytes</source>
        <translation>
            <numerusform>%n byte</numerusform>
            <numerusform>%n bytes</numerusform>
        </translation>
    </message>
    <message>
        <source>There is not enough memory to encode the image, or it is too large for this kind of file.</source>
        <translation>No hay memoria suficiente para codificar la imagen, o es demasiado grande para este tipo de archivo.</translation>
    </message>
    <message>
        <source>The file could not be written.</source>
        <translation>No se pudo escribir el archivo.</translation>
    </message>
    <message>
        <source>Saved %1 · %2 · %3</source>
        <translation>Guardado %1 · %2 · %3</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <translation>No guardado: %1</translation>
    </message>
    <message>
        <source>The file could not be saved.</source>
        <translation>No se pudo guardar el archivo.</translation>
    </message>
    <message>
        <source>There is no image to save.</source>
        <translation>No hay ninguna imagen que guardar.</translation>
    </message>
    <message>
        <source>Save does not write files of this name.</source>
        <translation>Guardar no escribe archivos con este nombre.</translation>
    </message>
    <message>
        <source>Cannot save PSD file (Photoshop file)</source>
        <translation>No se puede guardar un archivo PSD (archivo de Photoshop)</translation>
    </message>
    <message>
        <source>Choose &apos;File&apos; &gt; &apos;Save as TIFF…&apos; or &apos;File&apos; &gt; &apos;Save as JPEG…&apos; to save the image in another image format.</source>
        <translation>Elija «Archivo» &gt; «Guardar como TIFF…» o «Archivo» &gt; «Guardar como JPEG…» para guardar la imagen en otro formato.</translation>
    </message>
    <message>
        <source>The file holds more than the image.</source>
        <translation>El archivo contiene más que la imagen.</translation>
    </message>
    <message>
        <source>%1 has %2. Saving the image into it takes that away.</source>
        <translation>%1 tiene %2. Se perderá al guardar en él la imagen.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Guardar como…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>The file was changed since it was opened.</source>
        <translation>El archivo ha cambiado desde que se abrió.</translation>
    </message>
    <message>
        <source>Do you want to overwrite the existing file?</source>
        <translation>¿Desea sobrescribir el archivo existente?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Its steps could not be read.</source>
        <translation>No se pudieron leer sus pasos.</translation>
    </message>
    <message>
        <source>It will be offered again at the next start.</source>
        <translation>Se volverá a ofrecer en el próximo inicio.</translation>
    </message>
    <message>
        <source>Reading the image…</source>
        <translation>Leyendo la imagen…</translation>
    </message>
    <message>
        <source>Combining the outlines…</source>
        <translation>Combinando los contornos…</translation>
    </message>
</context>
<context>
    <name>Folders</name>
    <message>
        <source>The disk is full.</source>
        <translation>El disco está lleno.</translation>
    </message>
    <message>
        <source>The disk quota is used up.</source>
        <translation>Se ha agotado la cuota del disco.</translation>
    </message>
    <message>
        <source>The file would be larger than is allowed here.</source>
        <translation>El archivo sería más grande de lo que se permite aquí.</translation>
    </message>
    <message>
        <source>There is no permission to write here.</source>
        <translation>No hay permiso para escribir aquí.</translation>
    </message>
    <message>
        <source>The disk cannot be written to.</source>
        <translation>No se puede escribir en el disco.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>La carpeta no existe.</translation>
    </message>
    <message>
        <source>A part of the path is not a folder.</source>
        <translation>Una parte de la ruta no es una carpeta.</translation>
    </message>
    <message>
        <source>There is a folder of that name.</source>
        <translation>Hay una carpeta con ese nombre.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>El nombre es demasiado largo.</translation>
    </message>
    <message>
        <source>The link leads round in a circle.</source>
        <translation>El enlace lleva en círculo.</translation>
    </message>
    <message>
        <source>The disk reported an error.</source>
        <translation>El disco ha comunicado un error.</translation>
    </message>
    <message>
        <source>Too many files are open.</source>
        <translation>Hay demasiados archivos abiertos.</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message>
        <source>Undo steps cannot be written to the disk (%1). They are kept in memory until the program ends.</source>
        <translation>Los pasos para deshacer no se pueden escribir en el disco (%1). Se guardan en memoria hasta que termine el programa.</translation>
    </message>
    <message>
        <source>The last change could not be kept as a step of its own (%1).</source>
        <translation>El último cambio no se pudo conservar como paso propio (%1).</translation>
    </message>
    <message>
        <source>There is no place for undo steps among the temporary files. A private folder of this session serves instead.</source>
        <translation>No hay sitio para los pasos entre los archivos temporales. En su lugar sirve una carpeta privada de esta sesión.</translation>
    </message>
    <message>
        <source>Nothing was undone: what is on screen could be kept neither on the disk nor in memory.</source>
        <translation>No se ha deshecho nada: lo que está en pantalla no se pudo conservar ni en el disco ni en memoria.</translation>
    </message>
    <message>
        <source>there is no undo folder</source>
        <translation>no hay carpeta para los pasos</translation>
    </message>
    <message>
        <source>there is no image</source>
        <translation>no hay imagen</translation>
    </message>
    <message>
        <source>the step before could not be encoded</source>
        <translation>no se pudo codificar el paso anterior</translation>
    </message>
    <message>
        <source>the files could not be put in their places</source>
        <translation>los archivos no se pudieron poner en su sitio</translation>
    </message>
    <message>
        <source>not enough memory</source>
        <translation>memoria insuficiente</translation>
    </message>
    <message>
        <source>The very pixels of the last change could not be kept (%1). Undo brings them back from a JPEG copy: colours may differ a little.</source>
        <translation>No se pudieron conservar los píxeles exactos del último cambio (%1). Deshacer los recupera de una copia JPEG: los colores pueden variar un poco.</translation>
    </message>
    <message>
        <source>The very pixels of this step could not be read. What is shown comes from its JPEG copy: colours may differ a little.</source>
        <translation>No se pudieron leer los píxeles exactos de este paso. Lo que se muestra procede de su copia JPEG: los colores pueden variar un poco.</translation>
    </message>
</context>
<context>
    <name>HistoryPanel</name>
    <message>
        <source>Change</source>
        <translation>Cambio</translation>
    </message>
    <message>
        <source>There is no room for the very pixels of this step: it comes back as its files hold it, nearly the same.</source>
        <translation>No hay sitio para los píxeles exactos de este paso: vuelve tal como lo guardan sus archivos, casi igual.</translation>
    </message>
    <message>
        <source>This step could not be kept.</source>
        <translation>Este paso no se pudo conservar.</translation>
    </message>
    <message>
        <source>Go to this step</source>
        <translation>Ir a este paso</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>Steps of the image, oldest first</source>
        <translation>Pasos de la imagen, del más antiguo al más reciente</translation>
    </message>
</context>
<context>
    <name>ImageProcessor</name>
    <message>
        <source>Image Processor</source>
        <translation>Proceso por lotes</translation>
    </message>
    <message>
        <source>&amp;Source folder:</source>
        <translation>&amp;Carpeta de origen:</translation>
    </message>
    <message>
        <source>Every .tiff and .jpg image in it</source>
        <translation>Todas las imágenes .tiff y .jpg que contiene</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Elegir…</translation>
    </message>
    <message>
        <source>&amp;Destination folder:</source>
        <translation>Carpeta &amp;de destino:</translation>
    </message>
    <message>
        <source>Save as:</source>
        <translation>Guardar como:</translation>
    </message>
    <message>
        <source>&amp;TIFF</source>
        <translation>&amp;TIFF</translation>
    </message>
    <message>
        <source>&amp;JPEG</source>
        <translation>&amp;JPEG</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Tamaño:</translation>
    </message>
    <message>
        <source>&amp;Fit into</source>
        <translation>&amp;Ajustar a</translation>
    </message>
    <message>
        <source>Width of the box in pixels</source>
        <translation>Ancho del marco en píxeles</translation>
    </message>
    <message>
        <source>by</source>
        <translation>por</translation>
    </message>
    <message>
        <source>Height of the box in pixels</source>
        <translation>Alto del marco en píxeles</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>píxeles</translation>
    </message>
    <message>
        <source>&amp;Watermark:</source>
        <translation>&amp;Marca de agua:</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguna</translation>
    </message>
    <message>
        <source>Images in the watermark folder</source>
        <translation>Imágenes de la carpeta de marcas de agua</translation>
    </message>
    <message>
        <source>&amp;Position:</source>
        <translation>&amp;Posición:</translation>
    </message>
    <message>
        <source>Fills in the position for images as large as the box</source>
        <translation>Rellena la posición para imágenes tan grandes como el marco</translation>
    </message>
    <message>
        <source>Custom position</source>
        <translation>Posición propia</translation>
    </message>
    <message>
        <source>Lower left</source>
        <translation>Abajo a la izquierda</translation>
    </message>
    <message>
        <source>Lower right</source>
        <translation>Abajo a la derecha</translation>
    </message>
    <message>
        <source>Upper left</source>
        <translation>Arriba a la izquierda</translation>
    </message>
    <message>
        <source>Upper right</source>
        <translation>Arriba a la derecha</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>From the left edge in pixels</source>
        <translation>Desde el borde izquierdo, en píxeles</translation>
    </message>
    <message>
        <source>From the lower edge in pixels</source>
        <translation>Desde el borde inferior, en píxeles</translation>
    </message>
    <message>
        <source>In &amp;each image by its own size, with a margin of</source>
        <translation>&amp;En cada imagen según su tamaño, con un margen de</translation>
    </message>
    <message>
        <source>The preset holds for every image, upright or flat, instead of filling in X and Y</source>
        <translation>La posición vale para cada imagen, vertical u horizontal, en vez de rellenar X e Y</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source>Between the watermark and the edges of its corner in pixels</source>
        <translation>Entre la marca de agua y los bordes de su esquina, en píxeles</translation>
    </message>
    <message>
        <source>Margin of the watermark</source>
        <translation>Margen de la marca de agua</translation>
    </message>
    <message>
        <source>&amp;Opacity:</source>
        <translation>&amp;Opacidad:</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Of the watermark, on top of its own</source>
        <translation>De la marca de agua, además de la suya propia</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Ejecutar</translation>
    </message>
    <message>
        <source>&amp;Relative: its longer side is</source>
        <translation>&amp;Relativa: su lado mayor es el</translation>
    </message>
    <message>
        <source>The watermark looks the same on small and large images, upright or flat: size, margin and position are in percent</source>
        <translation>La marca de agua se ve igual en imágenes pequeñas y grandes, verticales u horizontales: tamaño, margen y posición van en porcentaje</translation>
    </message>
    <message>
        <source>Of the shorter side of each image</source>
        <translation>Del lado menor de cada imagen</translation>
    </message>
    <message>
        <source>Size of the watermark</source>
        <translation>Tamaño de la marca de agua</translation>
    </message>
    <message>
        <source>of the image&apos;s shorter side</source>
        <translation>del lado menor de la imagen</translation>
    </message>
    <message>
        <source>The watermark covers the whole image, from its position on</source>
        <translation>La marca de agua cubre toda la imagen, a partir de su posición</translation>
    </message>
    <message>
        <source>Of the watermark&apos;s longer side</source>
        <translation>Del lado mayor de la marca de agua</translation>
    </message>
    <message>
        <source>Gaps between repeated watermarks</source>
        <translation>Espacios entre marcas de agua repetidas</translation>
    </message>
    <message>
        <source>of its longer side</source>
        <translation>de su lado mayor</translation>
    </message>
    <message>
        <source>T&amp;urn:</source>
        <translation>&amp;Giro:</translation>
    </message>
    <message>
        <source>Of the watermark, against the clock</source>
        <translation>De la marca de agua, en sentido antihorario</translation>
    </message>
    <message>
        <source>Pre&amp;view</source>
        <translation>&amp;Vista previa</translation>
    </message>
    <message>
        <source>Shows what these settings make of three images of the folder; nothing is written</source>
        <translation>Muestra el resultado de estos ajustes en tres imágenes de la carpeta; no se escribe nada</translation>
    </message>
    <message>
        <source>Repeated &amp;all over, with gaps of</source>
        <translation>Repetida por toda la &amp;imagen, con espacios del</translation>
    </message>
    <message>
        <source>Te&amp;xt…</source>
        <translation>Te&amp;xto…</translation>
    </message>
    <message>
        <source>Makes a line of text a watermark</source>
        <translation>Convierte una línea de texto en marca de agua</translation>
    </message>
</context>
<context>
    <name>Keys</name>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Super</source>
        <translation>Super</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Mayús</translation>
    </message>
</context>
<context>
    <name>Library</name>
    <message>
        <source>broken link</source>
        <translation>enlace roto</translation>
    </message>
</context>
<context>
    <name>LibraryModel</name>
    <message>
        <source>The file that this link leads to is gone. The link can be deleted.</source>
        <translation>El archivo al que lleva este enlace ya no existe. El enlace se puede eliminar.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Dimensions</source>
        <translation>Dimensiones</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Modificado</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Ruta</translation>
    </message>
    <message>
        <source>looks the same</source>
        <translation>mismo aspecto</translation>
    </message>
    <message>
        <source>same content</source>
        <translation>mismo contenido</translation>
    </message>
    <message>
        <source>same file</source>
        <translation>mismo archivo</translation>
    </message>
    <message>
        <source>Likeness</source>
        <translation>Parecido</translation>
    </message>
</context>
<context>
    <name>LoadSelection</name>
    <message>
        <source>Load Selection</source>
        <translation>Cargar una selección</translation>
    </message>
    <message>
        <source>&amp;Saved selection:</source>
        <translation>&amp;Selección guardada:</translation>
    </message>
    <message>
        <source>The outline to use; it lands where it was drawn</source>
        <translation>El contorno que se usará; queda donde se dibujó</translation>
    </message>
    <message>
        <source>The selection that there is now is dropped, a floating one with its pixels.</source>
        <translation>La selección actual se descarta, y si flota, con sus píxeles.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Delete the chosen selection&apos;s file for good</source>
        <translation>Eliminar para siempre el archivo de la selección elegida</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Close and keep the selection as it is</source>
        <translation>Cerrar y dejar la selección como está</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Cargar</translation>
    </message>
    <message>
        <source>Select by the chosen outline</source>
        <translation>Seleccionar con el contorno elegido</translation>
    </message>
</context>
<context>
    <name>LoadSelectionDialog</name>
    <message>
        <source>Do you wish to delete the folder with all that is in it?</source>
        <translation>¿Desea eliminar la carpeta con todo lo que contiene?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Zelpane</source>
        <translation>Zelpane</translation>
    </message>
    <message>
        <source>Tool (keys 1 to 9 and 0)</source>
        <translation>Herramienta (teclas 1 a 9 y 0)</translation>
    </message>
    <message>
        <source>Tool</source>
        <translation>Herramienta</translation>
    </message>
    <message>
        <source>Paint colour and opacity</source>
        <translation>Color de pintura y opacidad</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Diameter of brush, pencil, eraser and clone stamp in pixels; also the text size and the width of strokes</source>
        <translation>Diámetro del pincel, el lápiz, el borrador y el tampón de clonar en píxeles; también el tamaño del texto y el grosor de los trazos</translation>
    </message>
    <message>
        <source>Size in pixels</source>
        <translation>Tamaño en píxeles</translation>
    </message>
    <message>
        <source>Shape of the brush tip</source>
        <translation>Forma de la punta del pincel</translation>
    </message>
    <message>
        <source>Brush shape</source>
        <translation>Forma del pincel</translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation>Tolerancia</translation>
    </message>
    <message>
        <source>How far a colour may differ from the one under the pointer</source>
        <translation>Cuánto puede diferir un color del que está bajo el puntero</translation>
    </message>
    <message>
        <source>Tolerance in percent</source>
        <translation>Tolerancia en porcentaje</translation>
    </message>
    <message>
        <source>Zoom (keys + and −, Ctrl+wheel)</source>
        <translation>Ampliación (teclas + y −, Ctrl+rueda)</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Ampliación</translation>
    </message>
    <message>
        <source>What the pressure of a pen changes</source>
        <translation>Lo que cambia la presión de un lápiz óptico</translation>
    </message>
    <message>
        <source>Pen pressure</source>
        <translation>Presión del lápiz</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Tool options</source>
        <translation>Opciones de la herramienta</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Herramientas</translation>
    </message>
    <message>
        <source>Brush %1</source>
        <translation>Pincel %1</translation>
    </message>
    <message>
        <source>Fit · %1</source>
        <translation>Ajustada · %1</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Cuadrado</translation>
    </message>
    <message>
        <source>Oval</source>
        <translation>Óvalo</translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation>Polígono</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Subtract</source>
        <translation>Restar</translation>
    </message>
    <message>
        <source>Float</source>
        <translation>Flotar</translation>
    </message>
    <message>
        <source>Straight</source>
        <translation>Recto</translation>
    </message>
    <message>
        <source>Set source</source>
        <translation>Fijar origen</translation>
    </message>
    <message>
        <source>Untitled[*] — Zelpane</source>
        <translation>Sin título[*] — Zelpane</translation>
    </message>
    <message>
        <source>The marquee becomes a square</source>
        <translation>El marco se hace cuadrado</translation>
    </message>
    <message>
        <source>The marquee becomes an oval</source>
        <translation>El marco se hace ovalado</translation>
    </message>
    <message>
        <source>Click corners, Return ends</source>
        <translation>Pulse las esquinas, Intro termina</translation>
    </message>
    <message>
        <source>The new shape joins the selection</source>
        <translation>La forma nueva se suma a la selección</translation>
    </message>
    <message>
        <source>The new shape is cut from the selection</source>
        <translation>La forma nueva se recorta de la selección</translation>
    </message>
    <message>
        <source>Dragging the selection lifts its pixels</source>
        <translation>Al arrastrar la selección se levantan sus píxeles</translation>
    </message>
    <message>
        <source>One straight line from press to release</source>
        <translation>Una línea recta desde que se pulsa hasta que se suelta</translation>
    </message>
    <message>
        <source>The click sets where pixels come from</source>
        <translation>El clic fija de dónde vienen los píxeles</translation>
    </message>
    <message>
        <source>%1 (as if %2 were held)</source>
        <translation>%1 (como si se pulsara %2)</translation>
    </message>
    <message>
        <source>The window manager moves windows with %1 and the mouse, so %1 never reaches the image. The switches above do the same.</source>
        <translation>El gestor de ventanas mueve las ventanas con %1 y el ratón, así que %1 nunca llega a la imagen. Los botones de arriba hacen lo mismo.</translation>
    </message>
    <message>
        <source>Use %1 instead</source>
        <translation>Usar %1 en su lugar</translation>
    </message>
    <message>
        <source>Even pressure</source>
        <translation>Presión igual</translation>
    </message>
    <message>
        <source>Pressure: size</source>
        <translation>Presión: tamaño</translation>
    </message>
    <message>
        <source>Pressure: opacity</source>
        <translation>Presión: opacidad</translation>
    </message>
    <message>
        <source>Explain</source>
        <translation>Explicar</translation>
    </message>
    <message>
        <source>Where the pointer rests, what a click takes; a drag after the press changes the tolerance</source>
        <translation>Donde el puntero descansa, lo que toma un clic; arrastrar tras pulsar cambia la tolerancia</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>About Zelpane</source>
        <translation>Acerca de Zelpane</translation>
    </message>
    <message>
        <source>Version and licence</source>
        <translation>Versión y licencia</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>Preferencias…</translation>
    </message>
    <message>
        <source>Units, keys and other settings</source>
        <translation>Unidades, teclas y otros ajustes</translation>
    </message>
    <message>
        <source>Quit Zelpane</source>
        <translation>Salir de Zelpane</translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation>Termina el programa</translation>
    </message>
    <message>
        <source>New…</source>
        <translation>Nueva…</translation>
    </message>
    <message>
        <source>Makes a blank image</source>
        <translation>Crea una imagen vacía</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Abrir…</translation>
    </message>
    <message>
        <source>Opens an image file</source>
        <translation>Abre un archivo de imagen</translation>
    </message>
    <message>
        <source>Open Recent</source>
        <translation>Abrir reciente</translation>
    </message>
    <message>
        <source>Previous Image</source>
        <translation>Imagen anterior</translation>
    </message>
    <message>
        <source>Shows the image again that was open before this one</source>
        <translation>Vuelve a mostrar la imagen que estaba abierta antes de esta</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Writes the image into its file</source>
        <translation>Escribe la imagen en su archivo</translation>
    </message>
    <message>
        <source>Save as TIFF…</source>
        <translation>Guardar como TIFF…</translation>
    </message>
    <message>
        <source>Writes a TIFF file; transparency is kept</source>
        <translation>Escribe un archivo TIFF; se conserva la transparencia</translation>
    </message>
    <message>
        <source>Save as JPEG…</source>
        <translation>Guardar como JPEG…</translation>
    </message>
    <message>
        <source>Writes a JPEG file; transparent areas become white</source>
        <translation>Escribe un archivo JPEG; lo transparente se vuelve blanco</translation>
    </message>
    <message>
        <source>Save as PNG…</source>
        <translation>Guardar como PNG…</translation>
    </message>
    <message>
        <source>Writes a PNG file; transparency is kept</source>
        <translation>Escribe un archivo PNG; se conserva la transparencia</translation>
    </message>
    <message>
        <source>Save without Private Data…</source>
        <translation>Guardar sin datos privados…</translation>
    </message>
    <message>
        <source>Writes a copy that says nothing of place, device and people</source>
        <translation>Escribe una copia que no dice nada de lugar, aparato ni personas</translation>
    </message>
    <message>
        <source>Quick Save…</source>
        <translation>Guardado rápido…</translation>
    </message>
    <message>
        <source>Saves into the image library</source>
        <translation>Guarda en la biblioteca de imágenes</translation>
    </message>
    <message>
        <source>Open with Preview</source>
        <translation>Abrir en el visor</translation>
    </message>
    <message>
        <source>Shows the file in the desktop&apos;s image viewer</source>
        <translation>Muestra el archivo en el visor de imágenes del escritorio</translation>
    </message>
    <message>
        <source>Page Setup…</source>
        <translation>Configurar página…</translation>
    </message>
    <message>
        <source>Paper size and orientation</source>
        <translation>Tamaño y orientación del papel</translation>
    </message>
    <message>
        <source>Print…</source>
        <translation>Imprimir…</translation>
    </message>
    <message>
        <source>Prints the image on the paper of Page Setup</source>
        <translation>Imprime la imagen en el papel configurado</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Takes the last change back</source>
        <translation>Retira el último cambio</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Brings the change back that was undone</source>
        <translation>Recupera el cambio deshecho</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Cortar</translation>
    </message>
    <message>
        <source>Moves the selected pixels to the clipboard</source>
        <translation>Mueve los píxeles seleccionados al portapapeles</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Copies the selected pixels, or the whole image, to the clipboard</source>
        <translation>Copia los píxeles seleccionados, o toda la imagen, al portapapeles</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Pegar</translation>
    </message>
    <message>
        <source>Places the clipboard&apos;s image as a floating selection</source>
        <translation>Coloca la imagen del portapapeles como selección flotante</translation>
    </message>
    <message>
        <source>Paste Into</source>
        <translation>Pegar dentro</translation>
    </message>
    <message>
        <source>Places the clipboard&apos;s image inside the selection</source>
        <translation>Coloca la imagen del portapapeles dentro de la selección</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Makes the selected pixels transparent</source>
        <translation>Vuelve transparentes los píxeles seleccionados</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Rellenar</translation>
    </message>
    <message>
        <source>Fills the selection with the paint colour</source>
        <translation>Rellena la selección con el color de pintura</translation>
    </message>
    <message>
        <source>Stroke</source>
        <translation>Trazar</translation>
    </message>
    <message>
        <source>Draws the selection&apos;s outline in the paint colour</source>
        <translation>Dibuja el contorno de la selección con el color de pintura</translation>
    </message>
    <message>
        <source>Smart Fill…</source>
        <translation>Relleno inteligente…</translation>
    </message>
    <message>
        <source>Fills the selection from its surroundings</source>
        <translation>Rellena la selección a partir de su entorno</translation>
    </message>
    <message>
        <source>Transform…</source>
        <translation>Transformar…</translation>
    </message>
    <message>
        <source>Scales and rotates the selected pixels</source>
        <translation>Escala y gira los píxeles seleccionados</translation>
    </message>
    <message>
        <source>Adjust…</source>
        <translation>Ajustar…</translation>
    </message>
    <message>
        <source>Hue, saturation, brightness, contrast and sharpness of the selection</source>
        <translation>Tono, saturación, brillo, contraste y nitidez de la selección</translation>
    </message>
    <message>
        <source>Resize…</source>
        <translation>Redimensionar…</translation>
    </message>
    <message>
        <source>Changes the size of the image</source>
        <translation>Cambia el tamaño de la imagen</translation>
    </message>
    <message>
        <source>Crop to Selection</source>
        <translation>Recortar a la selección</translation>
    </message>
    <message>
        <source>Cuts the image to the selection&apos;s box</source>
        <translation>Recorta la imagen al marco de la selección</translation>
    </message>
    <message>
        <source>Rotate Clockwise</source>
        <translation>Girar a la derecha</translation>
    </message>
    <message>
        <source>Turns the image by 90° to the right</source>
        <translation>Gira la imagen 90° a la derecha</translation>
    </message>
    <message>
        <source>Rotate Counter-Clockwise</source>
        <translation>Girar a la izquierda</translation>
    </message>
    <message>
        <source>Turns the image by 90° to the left</source>
        <translation>Gira la imagen 90° a la izquierda</translation>
    </message>
    <message>
        <source>Flip Horizontally</source>
        <translation>Voltear horizontalmente</translation>
    </message>
    <message>
        <source>Exchanges left and right</source>
        <translation>Intercambia izquierda y derecha</translation>
    </message>
    <message>
        <source>Flip Vertically</source>
        <translation>Voltear verticalmente</translation>
    </message>
    <message>
        <source>Exchanges top and bottom</source>
        <translation>Intercambia arriba y abajo</translation>
    </message>
    <message>
        <source>2x Retina Display Mode</source>
        <translation>Modo de pantalla Retina 2x</translation>
    </message>
    <message>
        <source>One image pixel on one pixel of a double-density screen</source>
        <translation>Un píxel de la imagen en un píxel de una pantalla de doble densidad</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>Selects the whole image</source>
        <translation>Selecciona toda la imagen</translation>
    </message>
    <message>
        <source>Select None</source>
        <translation>No seleccionar nada</translation>
    </message>
    <message>
        <source>Drops the selection</source>
        <translation>Descarta la selección</translation>
    </message>
    <message>
        <source>Select Inverse</source>
        <translation>Invertir la selección</translation>
    </message>
    <message>
        <source>Selects what is not selected</source>
        <translation>Selecciona lo que no está seleccionado</translation>
    </message>
    <message>
        <source>Position and Size…</source>
        <translation>Posición y tamaño…</translation>
    </message>
    <message>
        <source>A rectangle by number, and what new marquees keep to</source>
        <translation>Un rectángulo por números, y a qué se atienen los marcos nuevos</translation>
    </message>
    <message>
        <source>Reselect</source>
        <translation>Volver a seleccionar</translation>
    </message>
    <message>
        <source>Brings the last dropped selection back</source>
        <translation>Recupera la última selección descartada</translation>
    </message>
    <message>
        <source>Float Selection</source>
        <translation>Hacer flotar la selección</translation>
    </message>
    <message>
        <source>Lifts the selected pixels, or puts them back (Return)</source>
        <translation>Levanta los píxeles seleccionados, o los devuelve (Intro)</translation>
    </message>
    <message>
        <source>Save Selection…</source>
        <translation>Guardar la selección…</translation>
    </message>
    <message>
        <source>Keeps the outline under a name (key s: the default name)</source>
        <translation>Conserva el contorno con un nombre (tecla s: el nombre por omisión)</translation>
    </message>
    <message>
        <source>Load Selection…</source>
        <translation>Cargar una selección…</translation>
    </message>
    <message>
        <source>Brings a kept outline back</source>
        <translation>Recupera un contorno guardado</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Acercar</translation>
    </message>
    <message>
        <source>One zoom level in (+)</source>
        <translation>Un nivel de ampliación más (+)</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Alejar</translation>
    </message>
    <message>
        <source>One zoom level out (−)</source>
        <translation>Un nivel de ampliación menos (−)</translation>
    </message>
    <message>
        <source>Actual Size</source>
        <translation>Tamaño real</translation>
    </message>
    <message>
        <source>One image pixel on one pixel of the screen</source>
        <translation>Un píxel de la imagen en un píxel de la pantalla</translation>
    </message>
    <message>
        <source>Fit to Window</source>
        <translation>Ajustar a la ventana</translation>
    </message>
    <message>
        <source>The whole image in the window, whatever becomes of the window</source>
        <translation>Toda la imagen en la ventana, cambie como cambie la ventana</translation>
    </message>
    <message>
        <source>Transparency as Chequerboard</source>
        <translation>Transparencia como tablero</translation>
    </message>
    <message>
        <source>Transparent parts show a chequerboard instead of grey</source>
        <translation>Las partes transparentes muestran un tablero en vez de gris</translation>
    </message>
    <message>
        <source>Pixel Grid</source>
        <translation>Cuadrícula de píxeles</translation>
    </message>
    <message>
        <source>Lines between the pixels, from 800 % on</source>
        <translation>Líneas entre los píxeles, a partir del 800 %</translation>
    </message>
    <message>
        <source>Keyboard Pointer</source>
        <translation>Puntero con el teclado</translation>
    </message>
    <message>
        <source>A crosshair that the numeric pad or Ctrl+arrows move; Ctrl+Space presses the button and lets it go</source>
        <translation>Una cruz que mueven el teclado numérico o Ctrl+flechas; Ctrl+Espacio pulsa el botón y lo suelta</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>The steps of the image, to go back to</source>
        <translation>Los pasos de la imagen, para volver a ellos</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Pantalla completa</translation>
    </message>
    <message>
        <source>The window on the whole screen, and back</source>
        <translation>La ventana en toda la pantalla, y de vuelta</translation>
    </message>
    <message>
        <source>Larger Brush</source>
        <translation>Pincel más grande</translation>
    </message>
    <message>
        <source>The size of brush, pencil, eraser, text and strokes: a tenth more</source>
        <translation>El tamaño de pincel, lápiz, borrador, texto y trazos: una décima más</translation>
    </message>
    <message>
        <source>Smaller Brush</source>
        <translation>Pincel más pequeño</translation>
    </message>
    <message>
        <source>The size of brush, pencil, eraser, text and strokes: a tenth less</source>
        <translation>El tamaño de pincel, lápiz, borrador, texto y trazos: una décima menos</translation>
    </message>
    <message>
        <source>Swap Colours</source>
        <translation>Intercambiar colores</translation>
    </message>
    <message>
        <source>Back to the colour that was chosen before this one, and again</source>
        <translation>Vuelve al color elegido antes de este, y otra vez al revés</translation>
    </message>
    <message>
        <source>Image Editor</source>
        <translation>Editor de imágenes</translation>
    </message>
    <message>
        <source>Brings the main window to the front</source>
        <translation>Trae la ventana principal al frente</translation>
    </message>
    <message>
        <source>Image Library</source>
        <translation>Biblioteca de imágenes</translation>
    </message>
    <message>
        <source>Your favourite images</source>
        <translation>Sus imágenes favoritas</translation>
    </message>
    <message>
        <source>Show Windows</source>
        <translation>Mostrar ventanas</translation>
    </message>
    <message>
        <source>Main window and image library</source>
        <translation>Ventana principal y biblioteca de imágenes</translation>
    </message>
    <message>
        <source>Image Processor…</source>
        <translation>Proceso por lotes…</translation>
    </message>
    <message>
        <source>Resizes and watermarks a folder of images</source>
        <translation>Redimensiona una carpeta de imágenes y les pone marca de agua</translation>
    </message>
    <message>
        <source>Zelpane Help</source>
        <translation>Ayuda de Zelpane</translation>
    </message>
    <message>
        <source>Where to find the User&apos;s Guide</source>
        <translation>Dónde está la guía del usuario</translation>
    </message>
    <message>
        <source>User&apos;s Guide</source>
        <translation>Guía del usuario</translation>
    </message>
    <message>
        <source>Opens the guide in the browser</source>
        <translation>Abre la guía en el navegador</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>All commands and tools with their keys, which can be changed there</source>
        <translation>Todas las órdenes y herramientas con sus teclas, que se pueden cambiar allí</translation>
    </message>
    <message>
        <source>Zelpane</source>
        <translation>Zelpane</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Selección</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ver</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Herramientas</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Ventana</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Remove Brush</source>
        <translation>Pincel de eliminación</translation>
    </message>
    <message>
        <source>Paint over a thing and let go: it is filled from its surroundings</source>
        <translation>Pinte sobre un objeto y suelte: se rellena con su entorno</translation>
    </message>
    <message>
        <source>Copy as Script</source>
        <translation>Copiar como script</translation>
    </message>
    <message>
        <source>What was done since the image was opened, as a script that does it again</source>
        <translation>Lo hecho desde que se abrió la imagen, como un script que lo repite</translation>
    </message>
    <message>
        <source>Script</source>
        <translation>Script</translation>
    </message>
    <message>
        <source>What is done to the image, written down as a script; plays scripts on it</source>
        <translation>Lo que se hace con la imagen, anotado como script; ejecuta scripts en ella</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Comparar</translation>
    </message>
    <message>
        <source>While the key is held: an earlier state of the image left of the pointer</source>
        <translation>Mientras se mantiene la tecla: un estado anterior de la imagen a la izquierda del puntero</translation>
    </message>
    <message>
        <source>Compare as Opened</source>
        <translation>Comparar: como se abrió</translation>
    </message>
    <message>
        <source>Compare shows the image as it was opened</source>
        <translation>Comparar muestra la imagen como se abrió</translation>
    </message>
    <message>
        <source>Compare as Last Saved</source>
        <translation>Comparar: como se guardó</translation>
    </message>
    <message>
        <source>Compare shows the image as it was last saved</source>
        <translation>Comparar muestra la imagen como se guardó por última vez</translation>
    </message>
    <message>
        <source>Compare before Last Step</source>
        <translation>Comparar: antes del último paso</translation>
    </message>
    <message>
        <source>Compare shows the image without the last step</source>
        <translation>Comparar muestra la imagen sin el último paso</translation>
    </message>
    <message>
        <source>Save for a Size…</source>
        <translation>Guardar para un tamaño…</translation>
    </message>
    <message>
        <source>Writes a copy that is as large as it may be, or as small as looks the same</source>
        <translation>Escribe una copia tan grande como se permita, o tan pequeña que aún se vea igual</translation>
    </message>
    <message>
        <source>Explain the Wand</source>
        <translation>Explicar la varita</translation>
    </message>
    <message>
        <source>Where the pointer rests, what a click of the magic wand takes; and why it left a pixel out</source>
        <translation>Donde el puntero descansa, lo que toma un clic de la varita mágica; y por qué dejó fuera un píxel</translation>
    </message>
    <message>
        <source>Free Corners</source>
        <translation>Esquinas libres</translation>
    </message>
    <message>
        <source>The handles at the corners of what floats pull their corner alone: perspective</source>
        <translation>Los tiradores de las esquinas de lo flotante mueven solo su esquina: perspectiva</translation>
    </message>
    <message>
        <source>Straighten Corners</source>
        <translation>Enderezar esquinas</translation>
    </message>
    <message>
        <source>What a selection of four corners holds becomes upright, as if seen from straight ahead</source>
        <translation>Lo que contiene una selección de cuatro esquinas queda recto, como visto de frente</translation>
    </message>
    <message>
        <source>Put Corners Back</source>
        <translation>Devolver las esquinas</translation>
    </message>
    <message>
        <source>The corners of what floats go back to where they were before they were pulled</source>
        <translation>Las esquinas de lo flotante vuelven a donde estaban antes de moverlas</translation>
    </message>
</context>
<context>
    <name>Name</name>
    <message>
        <source>Quick Save</source>
        <translation>Guardado rápido</translation>
    </message>
    <message>
        <source>&amp;Name of the image in the library:</source>
        <translation>&amp;Nombre de la imagen en la biblioteca:</translation>
    </message>
    <message>
        <source>The image is saved as TIFF in the image library</source>
        <translation>La imagen se guarda como TIFF en la biblioteca de imágenes</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
</context>
<context>
    <name>NameDialog</name>
    <message>
        <source>Please enter a proper file name.</source>
        <translation>Escriba un nombre de archivo válido.</translation>
    </message>
    <message>
        <source>File extension must be .tiff.</source>
        <translation>La extensión del archivo debe ser .tiff.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>New</name>
    <message>
        <source>New Image</source>
        <translation>Imagen nueva</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>&amp;Ancho:</translation>
    </message>
    <message>
        <source>Width of the new image in pixels</source>
        <translation>Ancho de la imagen nueva en píxeles</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>píxeles</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>A&amp;lto:</translation>
    </message>
    <message>
        <source>Height of the new image in pixels</source>
        <translation>Alto de la imagen nueva en píxeles</translation>
    </message>
    <message>
        <source>&amp;Resolution:</source>
        <translation>&amp;Resolución:</translation>
    </message>
    <message>
        <source>For information; the image is measured in pixels</source>
        <translation>Como información; la imagen se mide en píxeles</translation>
    </message>
    <message>
        <source>pixels/inch</source>
        <translation>píxeles/pulgada</translation>
    </message>
    <message>
        <source>File size:</source>
        <translation>Tamaño del archivo:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Imagen nueva</translation>
    </message>
</context>
<context>
    <name>NoticeBar</name>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>OverflowRow</name>
    <message>
        <source>More options</source>
        <translation>Más opciones</translation>
    </message>
</context>
<context>
    <name>Panels</name>
    <message>
        <source>The image could not be printed.</source>
        <translation>No se pudo imprimir la imagen.</translation>
    </message>
    <message>
        <source>The printer did not take it.</source>
        <translation>La impresora no la aceptó.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Imágenes</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Todos los archivos</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Calidad</translation>
    </message>
    <message>
        <source>Quality:</source>
        <translation>Calidad:</translation>
    </message>
    <message>
        <source>File already exists</source>
        <translation>El archivo ya existe</translation>
    </message>
    <message>
        <source>Do you want to overwrite the existing file?</source>
        <translation>¿Desea sobrescribir el archivo existente?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Save Image</source>
        <translation>Guardar imagen</translation>
    </message>
    <message>
        <source>Choose Folder</source>
        <translation>Elegir carpeta</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>Abrir imagen</translation>
    </message>
</context>
<context>
    <name>Prefs</name>
    <message>
        <source>Preferences</source>
        <translation>Preferencias</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>&amp;Unit:</source>
        <translation>&amp;Unidad:</translation>
    </message>
    <message>
        <source>The unit that lengths are shown in</source>
        <translation>La unidad en que se muestran las longitudes</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>Píxeles</translation>
    </message>
    <message>
        <source>Centimeters</source>
        <translation>Centímetros</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>Pulgadas</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Puntos</translation>
    </message>
    <message>
        <source>&amp;Appearance:</source>
        <translation>&amp;Apariencia:</translation>
    </message>
    <message>
        <source>Light or dark windows</source>
        <translation>Ventanas claras u oscuras</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Como el escritorio</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Clara</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Oscura</translation>
    </message>
    <message>
        <source>Play &amp;sounds</source>
        <translation>&amp;Reproducir sonidos</translation>
    </message>
    <message>
        <source>Cues for floated, dropped and filled selections and finished runs</source>
        <translation>Señales para selecciones flotadas, descartadas y rellenadas y procesos terminados</translation>
    </message>
    <message>
        <source>Held keys</source>
        <translation>Teclas mantenidas</translation>
    </message>
    <message>
        <source>Some desktops take a key for themselves. Each role can be given to another one; Shift always adds and draws straight.</source>
        <translation>Algunos escritorios se quedan con una tecla. A cada función se le puede dar otra; Mayús siempre suma y dibuja recto.</translation>
    </message>
    <message>
        <source>&amp;Option (subtract, set source):</source>
        <translation>&amp;Option (restar, fijar origen):</translation>
    </message>
    <message>
        <source>&amp;Control (oval, polygon):</source>
        <translation>&amp;Control (óvalo, polígono):</translation>
    </message>
    <message>
        <source>Co&amp;mmand (square, float):</source>
        <translation>Command (cuadrado, &amp;flotar):</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Ventanas</translation>
    </message>
    <message>
        <source>&amp;Keep windows where I put them</source>
        <translation>&amp;Mantener las ventanas donde las pongo</translation>
    </message>
    <message>
        <source>Windows and dialogs come back in their last place instead of the middle of the screen</source>
        <translation>Las ventanas y los diálogos vuelven a su último lugar y no al centro de la pantalla</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Atajos</translation>
    </message>
    <message>
        <source>C&amp;hange Shortcuts…</source>
        <translation>Cambiar &amp;los atajos…</translation>
    </message>
    <message>
        <source>All commands with their keys</source>
        <translation>Todas las órdenes con sus teclas</translation>
    </message>
    <message>
        <source>About box</source>
        <translation>Cuadro Acerca de</translation>
    </message>
    <message>
        <source>Project &amp;page:</source>
        <translation>&amp;Página del proyecto:</translation>
    </message>
    <message>
        <source>The page that the About box opens</source>
        <translation>La página que abre el cuadro Acerca de</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>C&amp;errar</translation>
    </message>
</context>
<context>
    <name>Printing</name>
    <message>
        <source>There is not enough memory.</source>
        <translation>No hay memoria suficiente.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>ProcessorPreview</name>
    <message>
        <source>Looking at the folder…</source>
        <translation>Examinando la carpeta…</translation>
    </message>
    <message>
        <source>The folder has no .tiff or .jpg image.</source>
        <translation>La carpeta no tiene imágenes .tiff ni .jpg.</translation>
    </message>
    <message>
        <source>The largest, the middle and the smallest of %1 images of one shape</source>
        <translation>La mayor, la mediana y la menor de %1 imágenes de la misma forma</translation>
    </message>
    <message>
        <source>The widest, the tallest and the squarest of %1 images</source>
        <translation>La más ancha, la más alta y la más cuadrada de %1 imágenes</translation>
    </message>
    <message>
        <source>%1; the folder has %2</source>
        <translation>%1; la carpeta tiene %2</translation>
    </message>
</context>
<context>
    <name>Rename</name>
    <message>
        <source>Rename</source>
        <translation>Cambiar nombre</translation>
    </message>
    <message>
        <source>&amp;New name (the extension stays as it is):</source>
        <translation>&amp;Nombre nuevo (la extensión queda como está):</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>Resize</name>
    <message>
        <source>Resize Image</source>
        <translation>Redimensionar la imagen</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>&amp;Ancho:</translation>
    </message>
    <message>
        <source>New width in pixels</source>
        <translation>Ancho nuevo en píxeles</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>píxeles</translation>
    </message>
    <message>
        <source>New width in percent of the present one</source>
        <translation>Ancho nuevo en porcentaje del actual</translation>
    </message>
    <message>
        <source>Width in percent</source>
        <translation>Ancho en porcentaje</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>A&amp;lto:</translation>
    </message>
    <message>
        <source>New height in pixels</source>
        <translation>Alto nuevo en píxeles</translation>
    </message>
    <message>
        <source>New height in percent of the present one</source>
        <translation>Alto nuevo en porcentaje del actual</translation>
    </message>
    <message>
        <source>Height in percent</source>
        <translation>Alto en porcentaje</translation>
    </message>
    <message>
        <source>File size:</source>
        <translation>Tamaño del archivo:</translation>
    </message>
    <message>
        <source>&amp;Scale image</source>
        <translation>&amp;Escalar la imagen</translation>
    </message>
    <message>
        <source>On: the image is resampled to the new size. Off: it keeps its pixels at the place below and is cut or extended</source>
        <translation>Activado: la imagen se remuestrea al tamaño nuevo. Desactivado: conserva sus píxeles en el lugar de abajo y se recorta o amplía</translation>
    </message>
    <message>
        <source>&amp;Keep aspect ratio</source>
        <translation>&amp;Mantener las proporciones</translation>
    </message>
    <message>
        <source>Width and height follow each other</source>
        <translation>El ancho y el alto se siguen el uno al otro</translation>
    </message>
    <message>
        <source>&amp;Place:</source>
        <translation>L&amp;ugar:</translation>
    </message>
    <message>
        <source>Where the image sits in the new size, when it is not scaled</source>
        <translation>Dónde queda la imagen en el tamaño nuevo, si no se escala</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>Arriba a la izquierda</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Arriba</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Arriba a la derecha</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>A la izquierda</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>En medio</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>A la derecha</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Abajo a la izquierda</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Abajo</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Abajo a la derecha</translation>
    </message>
    <message>
        <source>S&amp;harp pixels</source>
        <translation>&amp;Píxeles nítidos</translation>
    </message>
    <message>
        <source>When it is scaled, pixels stay squares of one colour instead of being blended</source>
        <translation>Al escalar, los píxeles siguen siendo cuadrados de un color en vez de mezclarse</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Resize</source>
        <translation>Redimensionar</translation>
    </message>
    <message>
        <source>Width and height must be from 1 to %1 pixels, and the image at most %2 megapixels.</source>
        <translation>El ancho y el alto deben ser de 1 a %1 píxeles, y la imagen de %2 megapíxeles como máximo.</translation>
    </message>
    <message>
        <source>The image could not be resized.</source>
        <translation>No se pudo redimensionar la imagen.</translation>
    </message>
    <message>
        <source>There is not enough memory for an image of this size.</source>
        <translation>No hay memoria suficiente para una imagen de este tamaño.</translation>
    </message>
</context>
<context>
    <name>SaveSelection</name>
    <message>
        <source>Save Selection</source>
        <translation>Guardar la selección</translation>
    </message>
    <message>
        <source>&amp;Name of the selection:</source>
        <translation>&amp;Nombre de la selección:</translation>
    </message>
    <message>
        <source>The outline is kept under this name; a selection of the same name is replaced</source>
        <translation>El contorno se guarda con este nombre; una selección del mismo nombre se sustituye</translation>
    </message>
    <message>
        <source>Only the outline is kept. It can be loaded into any image.</source>
        <translation>Solo se guarda el contorno. Se puede cargar en cualquier imagen.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Close without saving</source>
        <translation>Cerrar sin guardar</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Save the outline of the selection</source>
        <translation>Guardar el contorno de la selección</translation>
    </message>
</context>
<context>
    <name>SaveSelectionDialog</name>
    <message>
        <source>Please enter a valid name for the selection</source>
        <translation>Escriba un nombre válido para la selección</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>SavedSelections</name>
    <message>
        <source>The selection could not be saved.</source>
        <translation>No se pudo guardar la selección.</translation>
    </message>
</context>
<context>
    <name>ScriptWindow</name>
    <message>
        <source>Script</source>
        <translation>Script</translation>
    </message>
    <message>
        <source>What was done since the image was opened</source>
        <translation>Lo hecho desde que se abrió la imagen</translation>
    </message>
    <message>
        <source>What is done to the image is written down here.</source>
        <translation>Aquí se anota lo que se hace con la imagen.</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>The whole script on the clipboard</source>
        <translation>El script entero al portapapeles</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>&amp;Guardar…</translation>
    </message>
    <message>
        <source>The whole script as a file</source>
        <translation>El script entero como archivo</translation>
    </message>
    <message>
        <source>&amp;Play…</source>
        <translation>&amp;Ejecutar…</translation>
    </message>
    <message>
        <source>Plays a script&apos;s file on the image</source>
        <translation>Ejecuta un archivo de script en la imagen</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>&amp;Parar</translation>
    </message>
    <message>
        <source>Ends the script before its next command</source>
        <translation>Termina el script antes de su siguiente orden</translation>
    </message>
    <message>
        <source>Save Script</source>
        <translation>Guardar script</translation>
    </message>
    <message>
        <source>Saved %1.</source>
        <translation>%1 guardado.</translation>
    </message>
    <message>
        <source>The script could not be saved.</source>
        <translation>No se pudo guardar el script.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Play a Script</source>
        <translation>Ejecutar un script</translation>
    </message>
    <message>
        <source>Playing %1…</source>
        <translation>Ejecutando %1…</translation>
    </message>
    <message>
        <source>The script is done.</source>
        <translation>El script ha terminado.</translation>
    </message>
    <message>
        <source>Line %1 of the script: %2.</source>
        <translation>Línea %1 del script: %2.</translation>
    </message>
</context>
<context>
    <name>SelectionByNumber</name>
    <message>
        <source>Position and Size</source>
        <translation>Posición y tamaño</translation>
    </message>
    <message>
        <source>&amp;Left:</source>
        <translation>&amp;Izquierda:</translation>
    </message>
    <message>
        <source>&amp;Top:</source>
        <translation>&amp;Arriba:</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>A&amp;ncho:</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>A&amp;lto:</translation>
    </message>
    <message>
        <source>Any size</source>
        <translation>Cualquier tamaño</translation>
    </message>
    <message>
        <source>This ratio of width to height</source>
        <translation>Esta proporción de ancho y alto</translation>
    </message>
    <message>
        <source>This size</source>
        <translation>Este tamaño</translation>
    </message>
    <message>
        <source>What a rectangle or oval keeps to while it is dragged with the mouse</source>
        <translation>A qué se atiene un rectángulo u óvalo mientras se arrastra con el ratón</translation>
    </message>
    <message>
        <source>New &amp;marquees:</source>
        <translation>&amp;Marcos nuevos:</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Seleccionar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>SelectionChip</name>
    <message>
        <source>Floating</source>
        <translation>Flotante</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Anchor ⏎</source>
        <translation>Anclar ⏎</translation>
    </message>
    <message>
        <source>Drop Esc</source>
        <translation>Descartar Esc</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Rellenar</translation>
    </message>
    <message>
        <source>Stroke</source>
        <translation>Trazar</translation>
    </message>
    <message>
        <source>Float</source>
        <translation>Flotar</translation>
    </message>
</context>
<context>
    <name>ShortcutsWindow</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>Find a command or a key</source>
        <translation>Buscar una orden o una tecla</translation>
    </message>
    <message>
        <source>Commands and their keys</source>
        <translation>Órdenes y sus teclas</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Orden</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Teclas</translation>
    </message>
    <message>
        <source>New &amp;keys:</source>
        <translation>&amp;Teclas nuevas:</translation>
    </message>
    <message>
        <source>New keys</source>
        <translation>Teclas nuevas</translation>
    </message>
    <message>
        <source>&amp;Set</source>
        <translation>&amp;Asignar</translation>
    </message>
    <message>
        <source>The chosen command gets these keys; without keys it has none</source>
        <translation>La orden elegida recibe estas teclas; sin teclas no tiene ninguna</translation>
    </message>
    <message>
        <source>As &amp;Given</source>
        <translation>&amp;Por omisión</translation>
    </message>
    <message>
        <source>The chosen command gets its own keys back</source>
        <translation>La orden elegida recupera sus propias teclas</translation>
    </message>
    <message>
        <source>&amp;All as Given</source>
        <translation>Todas por &amp;omisión</translation>
    </message>
    <message>
        <source>Every command gets its own keys back</source>
        <translation>Cada orden recupera sus propias teclas</translation>
    </message>
    <message>
        <source>Tools, over the image</source>
        <translation>Herramientas, sobre la imagen</translation>
    </message>
    <message>
        <source>%1 belongs to %2 now, which would lose it.</source>
        <translation>%1 pertenece ahora a «%2», que lo perdería.</translation>
    </message>
    <message>
        <source>%1 chooses the tool %2, which would not hear it any more.</source>
        <translation>%1 elige la herramienta «%2», que dejaría de oírlo.</translation>
    </message>
</context>
<context>
    <name>SizeSaveDialog</name>
    <message>
        <source>There is not enough memory.</source>
        <translation>No hay memoria suficiente.</translation>
    </message>
    <message>
        <source>Save for a Size</source>
        <translation>Guardar para un tamaño</translation>
    </message>
    <message>
        <source>The image before and after</source>
        <translation>La imagen antes y después</translation>
    </message>
    <message>
        <source>Drag to see another place; the wheel zooms</source>
        <translation>Arrastre para ver otro lugar; la rueda amplía</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Guardar…</translation>
    </message>
    <message>
        <source>Before: %1 × %2</source>
        <translation>Antes: %1 × %2</translation>
    </message>
    <message>
        <source>WebP files are smaller and keep transparency; older programs cannot open them</source>
        <translation>Los archivos WebP son más pequeños y conservan la transparencia; los programas antiguos no los abren</translation>
    </message>
    <message>
        <source>&amp;Kind of file:</source>
        <translation>&amp;Tipo de archivo:</translation>
    </message>
    <message>
        <source>&amp;At most</source>
        <translation>&amp;Como máximo</translation>
    </message>
    <message>
        <source> KB</source>
        <translation> KB</translation>
    </message>
    <message>
        <source>Size of the file</source>
        <translation>Tamaño del archivo</translation>
    </message>
    <message>
        <source>As small as &amp;looks the same</source>
        <translation>Tan pequeño que se vea &amp;igual</translation>
    </message>
    <message>
        <source>&amp;Quality</source>
        <translation>C&amp;alidad</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Calidad</translation>
    </message>
    <message>
        <source>Searching…</source>
        <translation>Buscando…</translation>
    </message>
    <message>
        <source>Trying quality %1…</source>
        <translation>Probando la calidad %1…</translation>
    </message>
    <message>
        <source>After: %1 · %2</source>
        <translation>Después: %1 · %2</translation>
    </message>
    <message>
        <source>Likeness %1, in the worst place %2</source>
        <translation>Semejanza %1, en el peor lugar %2</translation>
    </message>
</context>
<context>
    <name>SmartFill</name>
    <message>
        <source>Smart Fill</source>
        <translation>Relleno inteligente</translation>
    </message>
    <message>
        <source>&amp;Radius:</source>
        <translation>&amp;Radio:</translation>
    </message>
    <message>
        <source>How far around the selection to look for texture, in percent of its width and height</source>
        <translation>Hasta dónde buscar textura alrededor de la selección, en porcentaje de su ancho y alto</translation>
    </message>
    <message>
        <source>Radius in percent</source>
        <translation>Radio en porcentaje</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>&amp;Faster, at half the resolution</source>
        <translation>&amp;Más rápido, a media resolución</translation>
    </message>
    <message>
        <source>Works on every second pixel; the selection&apos;s whole box becomes coarser</source>
        <translation>Trabaja con un píxel de cada dos; todo el marco de la selección queda más basto</translation>
    </message>
    <message>
        <source>Time:</source>
        <translation>Tiempo:</translation>
    </message>
    <message>
        <source>0.0 sec</source>
        <translation>0,0 s</translation>
    </message>
    <message>
        <source>Elapsed time</source>
        <translation>Tiempo transcurrido</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>You can go on working during a run, but changes inside the work area will be overwritten when it ends.</source>
        <translation>Puede seguir trabajando mientras tanto, pero los cambios en la zona de trabajo se sobrescribirán al terminar.</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>C&amp;ancelar</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>&amp;Ejecutar</translation>
    </message>
    <message>
        <source>&amp;Keep lines</source>
        <translation>Conservar &amp;líneas</translation>
    </message>
    <message>
        <source>Edges that enter the selection on one side and leave it on another are drawn through it first</source>
        <translation>Los bordes que entran en la selección por un lado y salen por otro se trazan primero a través de ella</translation>
    </message>
    <message>
        <source>&amp;Even out patches</source>
        <translation>I&amp;gualar los parches</translation>
    </message>
    <message>
        <source>Takes away steps in brightness and colour where patches from different places meet</source>
        <translation>Quita los saltos de brillo y color donde se tocan parches tomados de lugares distintos</translation>
    </message>
    <message>
        <source>&amp;Take From…</source>
        <translation>&amp;Tomar de…</translation>
    </message>
    <message>
        <source>Takes colours only from what is selected in the image now; pressed again, from anywhere</source>
        <translation>Toma los colores solo de lo que está seleccionado ahora; al pulsarlo otra vez, de cualquier lugar</translation>
    </message>
    <message>
        <source>anywhere</source>
        <translation>cualquier lugar</translation>
    </message>
    <message>
        <source>Taken from</source>
        <translation>Tomado de</translation>
    </message>
    <message>
        <source>&amp;Never From…</source>
        <translation>&amp;Nunca de…</translation>
    </message>
    <message>
        <source>Takes no colour from what is selected in the image now; pressed again, from anywhere</source>
        <translation>No toma ningún color de lo que está seleccionado ahora; al pulsarlo otra vez, de cualquier lugar</translation>
    </message>
    <message>
        <source>nowhere</source>
        <translation>ninguna parte</translation>
    </message>
    <message>
        <source>Never taken from</source>
        <translation>Nunca tomado de</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>&amp;Vista previa</translation>
    </message>
    <message>
        <source>Shows the fill over the image; Run then leaves it there</source>
        <translation>Muestra el relleno sobre la imagen; Ejecutar lo deja allí</translation>
    </message>
    <message>
        <source>&amp;Another Result</source>
        <translation>&amp;Otro resultado</translation>
    </message>
    <message>
        <source>Shows what other random numbers make of it</source>
        <translation>Muestra el resultado con otros números aleatorios</translation>
    </message>
    <message>
        <source>Re&amp;move Brush</source>
        <translation>Pincel de el&amp;iminación</translation>
    </message>
    <message>
        <source>Paint over a thing in the image and let go: it is gone</source>
        <translation>Pinte sobre un objeto de la imagen y suelte: desaparece</translation>
    </message>
    <message>
        <source>One of the last four results: shows it over the image; pressed again, the image without it</source>
        <translation>Uno de los cuatro últimos resultados: lo muestra sobre la imagen; al pulsarlo otra vez, la imagen sin él</translation>
    </message>
    <message>
        <source>Result 1</source>
        <translation>Resultado 1</translation>
    </message>
    <message>
        <source>Result 2</source>
        <translation>Resultado 2</translation>
    </message>
    <message>
        <source>Result 3</source>
        <translation>Resultado 3</translation>
    </message>
    <message>
        <source>Result 4</source>
        <translation>Resultado 4</translation>
    </message>
</context>
<context>
    <name>SmartFillStudio</name>
    <message>
        <source>anywhere</source>
        <translation>cualquier lugar</translation>
    </message>
    <message>
        <source>nowhere</source>
        <translation>ninguna parte</translation>
    </message>
    <message>
        <source>select the place in the image first</source>
        <translation>seleccione primero el lugar en la imagen</translation>
    </message>
    <message>
        <source>the selection of %1 × %2</source>
        <translation>la selección de %1 × %2</translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message>
        <source>Box of the selection</source>
        <translation>Marco de la selección</translation>
    </message>
    <message>
        <source>The selection: its corner and its size. Drag this to another program to hand it over as a PNG image.</source>
        <translation>La selección: su esquina y su tamaño. Arrastre esto a otro programa para entregársela como imagen PNG.</translation>
    </message>
    <message>
        <source>Colour under the pointer</source>
        <translation>Color bajo el puntero</translation>
    </message>
    <message>
        <source>Position and colour under the pointer</source>
        <translation>Posición y color bajo el puntero</translation>
    </message>
    <message>
        <source>Size of the image and zoom</source>
        <translation>Tamaño de la imagen y ampliación</translation>
    </message>
    <message>
        <source>Open an image, make a new one, or drop a file on the window</source>
        <translation>Abra una imagen, cree una nueva o suelte un archivo en la ventana</translation>
    </message>
    <message>
        <source>Click the next corner · Return closes the shape, Escape gives it up</source>
        <translation>Pulse la esquina siguiente · Intro cierra la forma, Escape la abandona</translation>
    </message>
    <message>
        <source>Rest: what a click takes · drag right: more tolerance, left: less · %1 adds, %2 subtracts</source>
        <translation>Descansar: lo que toma un clic · arrastrar a la derecha: más tolerancia, izquierda: menos · %1 suma, %2 resta</translation>
    </message>
    <message>
        <source>Drag a corner&apos;s handle: it goes alone, %1: along a side, %2: all scale · Return anchors, Escape drops</source>
        <translation>Arrastrar el tirador de una esquina: va sola, %1: por un lado, %2: escalar todo · Intro ancla, Escape descarta</translation>
    </message>
    <message>
        <source>Drag to move · the handles scale and turn, %1: steps of 15°, %2: one corner alone · Return anchors, Escape drops</source>
        <translation>Arrastrar mueve · los tiradores escalan y giran, %1: pasos de 15°, %2: una esquina sola · Intro ancla, Escape descarta</translation>
    </message>
    <message>
        <source>in perspective</source>
        <translation>en perspectiva</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Ocupado</translation>
    </message>
</context>
<context>
    <name>Steps</name>
    <message>
        <source>Anchor Selection</source>
        <translation>Anclar la selección</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Imagen nueva</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Cortar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Rellenar</translation>
    </message>
    <message>
        <source>Stroke</source>
        <translation>Trazar</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Recortar</translation>
    </message>
    <message>
        <source>Rotate Clockwise</source>
        <translation>Girar a la derecha</translation>
    </message>
    <message>
        <source>Rotate Counter-Clockwise</source>
        <translation>Girar a la izquierda</translation>
    </message>
    <message>
        <source>Flip Horizontally</source>
        <translation>Voltear horizontalmente</translation>
    </message>
    <message>
        <source>Flip Vertically</source>
        <translation>Voltear verticalmente</translation>
    </message>
    <message>
        <source>Resize</source>
        <translation>Redimensionar</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Mover</translation>
    </message>
    <message>
        <source>Brush</source>
        <translation>Pincel</translation>
    </message>
    <message>
        <source>Pencil</source>
        <translation>Lápiz</translation>
    </message>
    <message>
        <source>Eraser</source>
        <translation>Borrador</translation>
    </message>
    <message>
        <source>Paint Bucket</source>
        <translation>Bote de pintura</translation>
    </message>
    <message>
        <source>Clone Stamp</source>
        <translation>Tampón de clonar</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Smart Fill</source>
        <translation>Relleno inteligente</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Eliminar</translation>
    </message>
</context>
<context>
    <name>TextEditor</name>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>&amp;Text:</source>
        <translation>&amp;Texto:</translation>
    </message>
    <message>
        <source>What is typed here stands on the image at once</source>
        <translation>Lo que se escribe aquí aparece enseguida en la imagen</translation>
    </message>
    <message>
        <source>Font family</source>
        <translation>Familia tipográfica</translation>
    </message>
    <message>
        <source>Smaller; with Shift by ten</source>
        <translation>Más pequeño; con Mayús, de diez en diez</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>Más pequeño</translation>
    </message>
    <message>
        <source>Size in pixels</source>
        <translation>Tamaño en píxeles</translation>
    </message>
    <message>
        <source>Larger; with Shift by ten</source>
        <translation>Más grande; con Mayús, de diez en diez</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Más grande</translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation>&amp;Negrita</translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation>&amp;Cursiva</translation>
    </message>
    <message>
        <source>Colour of the preview below; the selection takes none</source>
        <translation>Color de la vista previa de abajo; la selección no toma ninguno</translation>
    </message>
    <message>
        <source>Colour of the preview</source>
        <translation>Color de la vista previa</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>&amp;Left</source>
        <translation>&amp;Izquierda</translation>
    </message>
    <message>
        <source>&amp;Center</source>
        <translation>C&amp;entrado</translation>
    </message>
    <message>
        <source>&amp;Right</source>
        <translation>&amp;Derecha</translation>
    </message>
    <message>
        <source>&amp;Justified</source>
        <translation>&amp;Justificado</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Keeps the text as the selection</source>
        <translation>Conserva el texto como selección</translation>
    </message>
    <message>
        <source>What is typed here stands on the image at once; Ctrl+Return is OK</source>
        <translation>Lo que se escribe aquí aparece enseguida en la imagen; Ctrl+Intro equivale a OK</translation>
    </message>
    <message>
        <source>&amp;Several lines</source>
        <translation>&amp;Varias líneas</translation>
    </message>
    <message>
        <source>Return begins another line, which stands below</source>
        <translation>Intro comienza otra línea debajo</translation>
    </message>
    <message>
        <source>Alignment of the preview, and of several lines</source>
        <translation>Alineación de la vista previa y de varias líneas</translation>
    </message>
</context>
<context>
    <name>Tools</name>
    <message>
        <source>Rectangle Selection</source>
        <translation>Selección rectangular</translation>
    </message>
    <message>
        <source>Selects a rectangle; square and oval by switch or key</source>
        <translation>Selecciona un rectángulo; cuadrado y óvalo con botón o tecla</translation>
    </message>
    <message>
        <source>Drag to select; inside the selection it moves · {Shift} adds, {Option} subtracts · {Command}: square, {Control}: oval</source>
        <translation>Arrastrar selecciona; dentro de la selección la mueve · {Shift} suma, {Option} resta · {Command}: cuadrado, {Control}: óvalo</translation>
    </message>
    <message>
        <source>Lasso</source>
        <translation>Lazo</translation>
    </message>
    <message>
        <source>Selects by a drawn outline; polygon by switch or key, ended with Return</source>
        <translation>Selecciona según un contorno dibujado; polígono con botón o tecla, terminado con Intro</translation>
    </message>
    <message>
        <source>Draw around what you want · {Shift} adds, {Option} subtracts · {Control}: corner by corner, Return ends</source>
        <translation>Rodee lo que quiera · {Shift} suma, {Option} resta · {Control}: esquina a esquina, Intro termina</translation>
    </message>
    <message>
        <source>Magic Wand</source>
        <translation>Varita mágica</translation>
    </message>
    <message>
        <source>Selects the area of similar colour</source>
        <translation>Selecciona la zona de color parecido</translation>
    </message>
    <message>
        <source>Click a colour · {Shift} adds, {Option} subtracts · Tolerance says how far colours may differ</source>
        <translation>Pulse un color · {Shift} suma, {Option} resta · la tolerancia dice cuánto pueden diferir los colores</translation>
    </message>
    <message>
        <source>Brush</source>
        <translation>Pincel</translation>
    </message>
    <message>
        <source>Paints with a brush tip</source>
        <translation>Pinta con una punta de pincel</translation>
    </message>
    <message>
        <source>Pencil</source>
        <translation>Lápiz</translation>
    </message>
    <message>
        <source>Draws a line; straight with Shift</source>
        <translation>Dibuja una línea; recta con Mayús</translation>
    </message>
    <message>
        <source>Drag to draw · {Shift}: one straight line · Escape takes it back</source>
        <translation>Arrastrar dibuja · {Shift}: una línea recta · Escape la retira</translation>
    </message>
    <message>
        <source>Eraser</source>
        <translation>Borrador</translation>
    </message>
    <message>
        <source>Makes pixels transparent; straight with Shift</source>
        <translation>Vuelve transparentes los píxeles; recto con Mayús</translation>
    </message>
    <message>
        <source>Drag to make transparent · {Shift}: one straight line · Escape takes it back</source>
        <translation>Arrastrar vuelve transparente · {Shift}: una línea recta · Escape la retira</translation>
    </message>
    <message>
        <source>Paint Bucket</source>
        <translation>Bote de pintura</translation>
    </message>
    <message>
        <source>Fills the area of similar colour</source>
        <translation>Rellena la zona de color parecido</translation>
    </message>
    <message>
        <source>Click to fill the area of one colour · Tolerance says how far colours may differ</source>
        <translation>Pulse para rellenar la zona de un color · la tolerancia dice cuánto pueden diferir los colores</translation>
    </message>
    <message>
        <source>Eyedropper</source>
        <translation>Cuentagotas</translation>
    </message>
    <message>
        <source>Picks the colour under the pointer</source>
        <translation>Toma el color que está bajo el puntero</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Places text as a selection</source>
        <translation>Coloca texto como selección</translation>
    </message>
    <message>
        <source>Click where the text begins · inside the text, dragging moves it</source>
        <translation>Pulse donde empieza el texto · dentro del texto, arrastrar lo mueve</translation>
    </message>
    <message>
        <source>Clone Stamp</source>
        <translation>Tampón de clonar</translation>
    </message>
    <message>
        <source>Paints with pixels from elsewhere; Option-click sets the source</source>
        <translation>Pinta con píxeles de otro lugar; clic con Option fija el origen</translation>
    </message>
    <message>
        <source>{Option}+click says where pixels come from, then paint</source>
        <translation>{Option}+clic dice de dónde vienen los píxeles; después, pinte</translation>
    </message>
    <message>
        <source>Remove Brush</source>
        <translation>Pincel de eliminación</translation>
    </message>
    <message>
        <source>Fills what it is drawn over from its surroundings</source>
        <translation>Rellena lo que cubre con su entorno</translation>
    </message>
    <message>
        <source>Paint over what should vanish and let go · any tool ends this · Escape takes the stroke back</source>
        <translation>Pinte sobre lo que deba desaparecer y suelte · cualquier herramienta lo termina · Escape retira el trazo</translation>
    </message>
    <message>
        <source>Drag to paint · {smallerBrush:} and {largerBrush:} change the size, {swapColours:} the colour · Escape takes the stroke back</source>
        <translation>Arrastrar pinta · {smallerBrush:} y {largerBrush:} cambian el tamaño, {swapColours:} el color · Escape retira el trazo</translation>
    </message>
    <message>
        <source>Click or drag to pick the paint colour · {swapColours:} goes back to the one before</source>
        <translation>Pulse o arrastre para tomar el color de pintura · {swapColours:} vuelve al anterior</translation>
    </message>
</context>
<context>
    <name>Transform</name>
    <message>
        <source>Transform Selection</source>
        <translation>Transformar la selección</translation>
    </message>
    <message>
        <source>&amp;Scale:</source>
        <translation>&amp;Escala:</translation>
    </message>
    <message>
        <source>Size of the selected pixels in percent; 100 is their own size</source>
        <translation>Tamaño de los píxeles seleccionados en porcentaje; 100 es su propio tamaño</translation>
    </message>
    <message>
        <source>Scale slider</source>
        <translation>Deslizador de escala</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Escala</translation>
    </message>
    <message>
        <source>R&amp;otate:</source>
        <translation>&amp;Rotación:</translation>
    </message>
    <message>
        <source>Turns the selected pixels about their centre, in degrees</source>
        <translation>Gira los píxeles seleccionados alrededor de su centro, en grados</translation>
    </message>
    <message>
        <source>Rotate slider</source>
        <translation>Deslizador de rotación</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Rotación</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>Re&amp;stablecer</translation>
    </message>
    <message>
        <source>Back to 100 % and 0 degrees</source>
        <translation>De vuelta al 100 % y 0 grados</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Closes the dialog; the selection keeps floating as shown</source>
        <translation>Cierra el diálogo; la selección sigue flotando como se muestra</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
</context>
<context>
    <name>Wand</name>
    <message>
        <source>Outside: red differs by %1, the tolerance allows %2</source>
        <translation>Fuera: el rojo difiere en %1, la tolerancia permite %2</translation>
    </message>
    <message>
        <source>Outside: green differs by %1, the tolerance allows %2</source>
        <translation>Fuera: el verde difiere en %1, la tolerancia permite %2</translation>
    </message>
    <message>
        <source>Outside: blue differs by %1, the tolerance allows %2</source>
        <translation>Fuera: el azul difiere en %1, la tolerancia permite %2</translation>
    </message>
    <message>
        <source>Outside: opacity differs by %1, the tolerance allows %2</source>
        <translation>Fuera: la opacidad difiere en %1, la tolerancia permite %2</translation>
    </message>
    <message>
        <source>Inside</source>
        <translation>Dentro</translation>
    </message>
    <message>
        <source>Outside: within the tolerance, but not connected</source>
        <translation>Fuera: dentro de la tolerancia, pero sin conexión</translation>
    </message>
    <message>
        <source>Outside: a tolerance of 0 takes nothing</source>
        <translation>Fuera: una tolerancia de 0 no toma nada</translation>
    </message>
</context>
<context>
    <name>Watermark</name>
    <message>
        <source>The watermark could not be drawn.</source>
        <translation>No se pudo dibujar la marca de agua.</translation>
    </message>
</context>
<context>
    <name>WatermarkText</name>
    <message>
        <source>Text as Watermark</source>
        <translation>Texto como marca de agua</translation>
    </message>
    <message>
        <source>&amp;Text:</source>
        <translation>&amp;Texto:</translation>
    </message>
    <message>
        <source>© and your name</source>
        <translation>© y su nombre</translation>
    </message>
    <message>
        <source>&amp;Font:</source>
        <translation>&amp;Fuente:</translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation>&amp;Negrita</translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation>&amp;Cursiva</translation>
    </message>
    <message>
        <source>&amp;Colour:</source>
        <translation>C&amp;olor:</translation>
    </message>
    <message>
        <source>Colour of the letters</source>
        <translation>Color de las letras</translation>
    </message>
    <message>
        <source>With an &amp;edge that shows on light and dark</source>
        <translation>Con un &amp;borde visible sobre claro y oscuro</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Crear</translation>
    </message>
</context>
<context>
    <name>ZPAboutBox</name>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
    <message>
        <source>Simple, yet powerful image editing: paint, select, retouch, adjust and convert images, one at a time or by the folder.</source>
        <translation>Edición de imágenes sencilla y a la vez potente: pintar, seleccionar, retocar, ajustar y convertir imágenes, de una en una o por carpetas.</translation>
    </message>
    <message>
        <source>Free software under the GNU General Public License, version 3 or later. It comes with no warranty, to the extent that the law permits.</source>
        <translation>Software libre bajo la Licencia Pública General de GNU, versión 3 o posterior. Se ofrece sin garantía, en la medida en que lo permite la ley.</translation>
    </message>
</context>
<context>
    <name>ZPAppController</name>
    <message>
        <source>An image that was never saved</source>
        <translation>Una imagen que nunca se guardó</translation>
    </message>
    <message>
        <source>%1, %2 × %3 pixels, as it was after the last change.</source>
        <translation>%1, %2 × %3 píxeles, como estaba tras el último cambio.</translation>
    </message>
    <message>
        <source>Zelpane ended unexpectedly. Do you want to recover your last image?</source>
        <translation>Zelpane terminó de forma inesperada. ¿Desea recuperar su última imagen?</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>Recuperar</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Más tarde</translation>
    </message>
    <message>
        <source>Changed and never saved: %1.</source>
        <translation>Cambiada y nunca guardada: %1.</translation>
    </message>
    <message>
        <source>This is a (Snow) Leopard-only product!</source>
        <translation>¡Este producto es solo para (Snow) Leopard!</translation>
    </message>
    <message>
        <source>Mac OS X 10.5 or later is required.</source>
        <translation>Se requiere Mac OS X 10.5 o posterior.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>What would you like to do? Create a new image or open an existing image.</source>
        <translation>¿Qué desea hacer? Cree una imagen nueva o abra una existente.</translation>
    </message>
    <message>
        <source>New…</source>
        <translation>Nueva…</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Abrir…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Do you really want to quit?</source>
        <translation>¿De verdad desea salir?</translation>
    </message>
    <message>
        <source>Make sure that the image is saved to disk.</source>
        <translation>Asegúrese de que la imagen está guardada en el disco.</translation>
    </message>
    <message>
        <source>No recent images</source>
        <translation>Ninguna imagen reciente</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vaciar la lista</translation>
    </message>
    <message>
        <source>Read the User&apos;s Guide</source>
        <translation>Leer la guía del usuario</translation>
    </message>
    <message>
        <source>You can find the User&apos;s Guide in the same folder as this application.</source>
        <translation>Encontrará la guía del usuario en la misma carpeta que esta aplicación.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Do you really want to use the image processor?</source>
        <translation>¿De verdad desea usar el proceso por lotes?</translation>
    </message>
    <message>
        <source>Make sure that the current image is saved to disk.</source>
        <translation>Asegúrese de que la imagen actual está guardada en el disco.</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>You have enabled 2x retina display mode.</source>
        <translation>Ha activado el modo de pantalla Retina 2x.</translation>
    </message>
    <message>
        <source>You have disabled 2x retina display mode.</source>
        <translation>Ha desactivado el modo de pantalla Retina 2x.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>verb and name of a step: Undo Fill</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Anchor Selection</source>
        <translation>Anclar la selección</translation>
    </message>
    <message>
        <source>Float Selection</source>
        <translation>Hacer flotar la selección</translation>
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
        <source>Needs an image: open one or make a new one.</source>
        <translation>Necesita una imagen: abra una o cree una nueva.</translation>
    </message>
    <message>
        <source>Needs a selection.</source>
        <translation>Necesita una selección.</translation>
    </message>
    <message>
        <source>Needs an image on the clipboard.</source>
        <translation>Necesita una imagen en el portapapeles.</translation>
    </message>
    <message>
        <source>Needs an image that has a file: save it first.</source>
        <translation>Necesita una imagen que tenga archivo: guárdela primero.</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>No hay nada que deshacer.</translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>No hay nada que rehacer.</translation>
    </message>
    <message>
        <source>No selection was dropped yet.</source>
        <translation>Aún no se ha descartado ninguna selección.</translation>
    </message>
    <message>
        <source>No image was open before this one.</source>
        <translation>No había ninguna imagen abierta antes de esta.</translation>
    </message>
    <message>
        <source>Needs the main window.</source>
        <translation>Necesita la ventana principal.</translation>
    </message>
    <message>
        <source>Done: %1</source>
        <translation>Hecho: %1</translation>
    </message>
    <message>
        <source>Copied what was done as a script.</source>
        <translation>Se ha copiado lo hecho como script.</translation>
    </message>
</context>
<context>
    <name>ZPCanvas</name>
    <message>
        <source>Canvas</source>
        <translation>Lienzo</translation>
    </message>
</context>
<context>
    <name>ZPFileManager</name>
    <message numerus="yes">
        <source>%n image(s)</source>
        <translation>
            <numerusform>%n imagen</numerusform>
            <numerusform>%n imágenes</numerusform>
        </translation>
    </message>
    <message>
        <source>No image selected</source>
        <translation>Ninguna imagen elegida</translation>
    </message>
    <message>
        <source>Drop images here</source>
        <translation>Suelte imágenes aquí</translation>
    </message>
    <message>
        <source>The file that this link leads to is gone.</source>
        <translation>El archivo al que lleva este enlace ya no existe.</translation>
    </message>
    <message>
        <source>Add to Image Library</source>
        <translation>Añadir a la biblioteca de imágenes</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Do you wish to delete the selected file?</source>
        <translation>¿Desea eliminar el archivo elegido?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Select a file to rename.</source>
        <translation>Elija un archivo para cambiarle el nombre.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Enter a valid new name.</source>
        <translation>Escriba un nombre nuevo válido.</translation>
    </message>
    <message>
        <source>looks the same</source>
        <translation>mismo aspecto</translation>
    </message>
    <message>
        <source>Found again: “%1” in %2</source>
        <translation>Encontrada de nuevo: «%1» en %2</translation>
    </message>
    <message>
        <source>An image of the same name, maybe another one: “%1” in %2</source>
        <translation>Una imagen del mismo nombre, quizá otra: «%1» en %2</translation>
    </message>
    <message>
        <source>Not found again in its old folder, below it or beside it.</source>
        <translation>No se encontró en su carpeta anterior, ni dentro ni al lado de ella.</translation>
    </message>
    <message>
        <source>Looking for the image of this link…</source>
        <translation>Buscando la imagen de este enlace…</translation>
    </message>
    <message numerus="yes">
        <source>Found again: the images of %n broken link(s).</source>
        <translation>
            <numerusform>Encontrada: la imagen de %n enlace roto.</numerusform>
            <numerusform>Encontradas: las imágenes de %n enlaces rotos.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Do you wish to relink %n image(s)?</source>
        <translation>
            <numerusform>¿Desea volver a enlazar %n imagen?</numerusform>
            <numerusform>¿Desea volver a enlazar %n imágenes?</numerusform>
        </translation>
    </message>
    <message>
        <source>Relink</source>
        <translation>Volver a enlazar</translation>
    </message>
    <message>
        <source>A link could not be changed.</source>
        <translation>No se pudo cambiar un enlace.</translation>
    </message>
    <message>
        <source>Comparing %1 of %2</source>
        <translation>Comparando %1 de %2</translation>
    </message>
    <message>
        <source>No duplicates</source>
        <translation>No hay duplicados</translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) more than once</source>
        <translation>
            <numerusform>%n imagen repetida</numerusform>
            <numerusform>%n imágenes repetidas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ZPImageProcessor</name>
    <message>
        <source>Choose a source folder.</source>
        <translation>Elija una carpeta de origen.</translation>
    </message>
    <message>
        <source>Choose a destination folder.</source>
        <translation>Elija una carpeta de destino.</translation>
    </message>
    <message>
        <source>Source and destination folder cannot be the same.</source>
        <translation>Las carpetas de origen y destino no pueden ser la misma.</translation>
    </message>
    <message>
        <source>Error: Source or destination folder does not exist.</source>
        <translation>Error: la carpeta de origen o de destino no existe.</translation>
    </message>
    <message>
        <source>Ending after this image…</source>
        <translation>Termina tras esta imagen…</translation>
    </message>
    <message>
        <source>Choose source folder</source>
        <translation>Elegir la carpeta de origen</translation>
    </message>
    <message>
        <source>Choose destination folder</source>
        <translation>Elegir la carpeta de destino</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Elegir</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The source folder cannot be listed.</source>
        <translation>No se puede leer el contenido de la carpeta de origen.</translation>
    </message>
    <message>
        <source>%1 of %2: %3</source>
        <translation>%1 de %2: %3</translation>
    </message>
    <message>
        <source>There is no canvas to work on.</source>
        <translation>No hay lienzo en el que trabajar.</translation>
    </message>
    <message>
        <source>One file could not be processed.</source>
        <translation>Un archivo no se pudo procesar.</translation>
    </message>
    <message numerus="yes">
        <source>%n files could not be processed.</source>
        <translation>
            <numerusform>%n archivo no se pudo procesar.</numerusform>
            <numerusform>%n archivos no se pudieron procesar.</numerusform>
        </translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguna</translation>
    </message>
    <message>
        <source>The watermark could not be made.</source>
        <translation>No se pudo crear la marca de agua.</translation>
    </message>
    <message>
        <source>The letters of this text have no outlines in this font.</source>
        <translation>Las letras de este texto no tienen contornos en esta fuente.</translation>
    </message>
</context>
<context>
    <name>ZPPrefs</name>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Super</source>
        <translation>Super</translation>
    </message>
</context>
<context>
    <name>ZPSmartFill</name>
    <message>
        <source>There is not enough memory for this fill.</source>
        <translation>No hay memoria suficiente para este relleno.</translation>
    </message>
    <message>
        <source>Select a smaller area or lower the radius.</source>
        <translation>Seleccione una zona más pequeña o reduzca el radio.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>There is nothing to fill from.</source>
        <translation>No hay nada con qué rellenar.</translation>
    </message>
    <message>
        <source>Select a smaller area or raise the radius.</source>
        <translation>Seleccione una zona más pequeña o aumente el radio.</translation>
    </message>
    <message>
        <source>The image changed meanwhile; the fill was dropped.</source>
        <translation>La imagen cambió entretanto; el relleno se ha descartado.</translation>
    </message>
</context>
<context>
    <name>ZPTextEditor</name>
    <message>
        <source>The letters of this family are pictures without outlines. Please choose another family.</source>
        <translation>Las letras de esta familia son imágenes sin contornos. Elija otra familia.</translation>
    </message>
    <message>
        <source>Some characters are pictures without an outline and are left out.</source>
        <translation>Algunos caracteres son imágenes sin contorno y se omiten.</translation>
    </message>
</context>
<context>
    <name>zp::Document</name>
    <message>
        <source>There is not enough memory.</source>
        <translation>No hay memoria suficiente.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>It was stopped.</source>
        <translation>Se detuvo la operación.</translation>
    </message>
</context>
<context>
    <name>zp::WandExplainer</name>
    <message>
        <source>A click takes %1 px</source>
        <translation>Un clic toma %1 px</translation>
    </message>
    <message>
        <source>A click takes at least %1 px</source>
        <translation>Un clic toma al menos %1 px</translation>
    </message>
</context>
</TS>
