<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>AboutBox</name>
    <message>
        <source>About Zelpane</source>
        <translation>Über Zelpane</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Project &amp;Page</source>
        <translation>&amp;Projektseite</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>Accessible</name>
    <message>
        <source>No image</source>
        <translation>Kein Bild</translation>
    </message>
    <message>
        <source>%1 by %2 pixels</source>
        <translation>%1 mal %2 Pixel</translation>
    </message>
    <message>
        <source>zoom %1</source>
        <translation>Zoom %1</translation>
    </message>
    <message>
        <source>selected: %1</source>
        <translation>ausgewählt: %1</translation>
    </message>
</context>
<context>
    <name>Adjust</name>
    <message>
        <source>Adjust Selection</source>
        <translation>Auswahl anpassen</translation>
    </message>
    <message>
        <source>&amp;Hue:</source>
        <translation>&amp;Farbton:</translation>
    </message>
    <message>
        <source>Turns all colours about the grey axis, in hundredths of a radian; 0 leaves them as they are</source>
        <translation>Dreht alle Farben um die Grauachse, in Hundertsteln des Bogenmaßes; 0 lässt sie, wie sie sind</translation>
    </message>
    <message>
        <source>Hue slider</source>
        <translation>Schieber für den Farbton</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Farbton</translation>
    </message>
    <message>
        <source>Sa&amp;turation:</source>
        <translation>&amp;Sättigung:</translation>
    </message>
    <message>
        <source>Strength of the colours: 0 is grey, 100 leaves them as they are</source>
        <translation>Stärke der Farben: 0 ist Grau, 100 lässt sie, wie sie sind</translation>
    </message>
    <message>
        <source>Saturation slider</source>
        <translation>Schieber für die Sättigung</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Sättigung</translation>
    </message>
    <message>
        <source>&amp;Brightness:</source>
        <translation>&amp;Helligkeit:</translation>
    </message>
    <message>
        <source>Added to every colour; 0 leaves them as they are</source>
        <translation>Wird zu jeder Farbe addiert; 0 lässt sie, wie sie sind</translation>
    </message>
    <message>
        <source>Brightness slider</source>
        <translation>Schieber für die Helligkeit</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>&amp;Contrast:</source>
        <translation>&amp;Kontrast:</translation>
    </message>
    <message>
        <source>Distance from mid grey; 100 leaves it as it is</source>
        <translation>Abstand vom mittleren Grau; 100 lässt ihn, wie er ist</translation>
    </message>
    <message>
        <source>Contrast slider</source>
        <translation>Schieber für den Kontrast</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>&amp;Sharpness:</source>
        <translation>S&amp;chärfe:</translation>
    </message>
    <message>
        <source>Above 0 sharpens, below 0 blurs</source>
        <translation>Über 0 schärft, unter 0 zeichnet weich</translation>
    </message>
    <message>
        <source>Sharpness slider</source>
        <translation>Schieber für die Schärfe</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>Schärfe</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Zurücksetzen</translation>
    </message>
    <message>
        <source>All five back to what leaves the image as it is</source>
        <translation>Alle fünf zurück auf die Werte, die das Bild lassen, wie es ist</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Closes the dialog; the adjustment shown stays and can be undone once anchored</source>
        <translation>Schließt den Dialog; die gezeigte Anpassung bleibt und kann nach dem Verankern rückgängig gemacht werden</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>Closes the dialog; the adjustment shown stays</source>
        <translation>Schließt den Dialog; die gezeigte Anpassung bleibt</translation>
    </message>
    <message>
        <source>The selection could not be adjusted.</source>
        <translation>Die Auswahl konnte nicht angepasst werden.</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>Es ist nicht genug Speicher frei.</translation>
    </message>
    <message>
        <source>C&amp;ompare</source>
        <translation>&amp;Vergleichen</translation>
    </message>
    <message>
        <source>While it is pressed: the image without the adjustment</source>
        <translation>Solange gedrückt: das Bild ohne die Anpassung</translation>
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
        <translation>Auswahl %1.png</translation>
    </message>
    <message>
        <source>Nothing could be pasted.</source>
        <translation>Es konnte nichts eingefügt werden.</translation>
    </message>
    <message>
        <source>The clipboard&apos;s image cannot be read.</source>
        <translation>Das Bild in der Zwischenablage kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The clipboard&apos;s image is larger than %1 MB.</source>
        <translation>Das Bild in der Zwischenablage ist größer als %1 MB.</translation>
    </message>
</context>
<context>
    <name>Codecs</name>
    <message>
        <source>The image has no pixels.</source>
        <translation>Das Bild hat keine Pixel.</translation>
    </message>
    <message>
        <source>The image is too large: %1 x %2 pixels.</source>
        <translation>Das Bild ist zu groß: %1 × %2 Pixel.</translation>
    </message>
    <message>
        <source>The file is far too small for the %1 x %2 pixels it claims to hold.</source>
        <translation>Die Datei ist viel zu klein für die %1 × %2 Pixel, die sie enthalten soll.</translation>
    </message>
    <message>
        <source>The image of %1 x %2 pixels does not fit this machine&apos;s memory.</source>
        <translation>Das Bild mit %1 × %2 Pixeln passt nicht in den Speicher dieses Rechners.</translation>
    </message>
    <message>
        <source>its data is damaged</source>
        <translation>ihre Daten sind beschädigt</translation>
    </message>
    <message>
        <source>It is not an image of a kind that can be opened.</source>
        <translation>Das ist kein Bild einer Art, die geöffnet werden kann.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Die Datei ist leer.</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>Die Datei existiert nicht.</translation>
    </message>
    <message>
        <source>There is no permission to read the file.</source>
        <translation>Es fehlt die Berechtigung, die Datei zu lesen.</translation>
    </message>
    <message>
        <source>The file is a link that leads nowhere.</source>
        <translation>Die Datei ist eine Verknüpfung, die ins Leere führt.</translation>
    </message>
    <message>
        <source>The file&apos;s name is too long.</source>
        <translation>Der Name der Datei ist zu lang.</translation>
    </message>
    <message>
        <source>The file cannot be read: %1.</source>
        <translation>Die Datei kann nicht gelesen werden: %1.</translation>
    </message>
    <message>
        <source>There is not enough memory to read the file.</source>
        <translation>Zum Lesen der Datei ist nicht genug Speicher frei.</translation>
    </message>
    <message>
        <source>There is not enough memory for this image.</source>
        <translation>Für dieses Bild ist nicht genug Speicher frei.</translation>
    </message>
    <message>
        <source>The image cannot be read: %1.</source>
        <translation>Das Bild kann nicht gelesen werden: %1.</translation>
    </message>
    <message>
        <source>The image cannot be read.</source>
        <translation>Das Bild kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>It is a folder, not an image.</source>
        <translation>Das ist ein Ordner, kein Bild.</translation>
    </message>
    <message>
        <source>It is not an ordinary file.</source>
        <translation>Das ist keine gewöhnliche Datei.</translation>
    </message>
    <message>
        <source>The file is larger than 4 GiB.</source>
        <translation>Die Datei ist größer als 4 GiB.</translation>
    </message>
    <message>
        <source>The colour profile is incomplete and was left out.</source>
        <translation>Das Farbprofil ist unvollständig und wurde weggelassen.</translation>
    </message>
    <message>
        <source>There is not enough memory for this JPEG image.</source>
        <translation>Für dieses JPEG-Bild ist nicht genug Speicher frei.</translation>
    </message>
    <message>
        <source>The JPEG data cannot be read: %1.</source>
        <translation>Die JPEG-Daten können nicht gelesen werden: %1.</translation>
    </message>
    <message>
        <source>JPEG images with two components cannot be read.</source>
        <translation>JPEG-Bilder mit zwei Komponenten können nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The JPEG data is damaged; what could be read is shown.</source>
        <translation>Die JPEG-Daten sind beschädigt; gezeigt wird, was lesbar war.</translation>
    </message>
    <message>
        <source>The %1 image is larger than the limits of this machine allow.</source>
        <translation>Das %1-Bild ist größer, als die Grenzen dieses Rechners erlauben.</translation>
    </message>
    <message>
        <source>The %1 data cannot be read: %2.</source>
        <translation>Die %1-Daten können nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>The image&apos;s data is damaged; what could be read is shown.</source>
        <translation>Die Daten des Bildes sind beschädigt; gezeigt wird, was lesbar war.</translation>
    </message>
    <message numerus="yes">
        <source>The image had %n bits a colour; it was reduced to 8.</source>
        <translation>
            <numerusform>Das Bild hatte %n Bit je Farbe; es wurde auf 8 verringert.</numerusform>
            <numerusform>Das Bild hatte %n Bit je Farbe; es wurde auf 8 verringert.</numerusform>
        </translation>
    </message>
    <message>
        <source>The EXIF data is damaged and was left out.</source>
        <translation>Die EXIF-Daten sind beschädigt und wurden weggelassen.</translation>
    </message>
    <message>
        <source>Damaged parts of the EXIF data were left out.</source>
        <translation>Beschädigte Teile der EXIF-Daten wurden weggelassen.</translation>
    </message>
    <message>
        <source>The XMP data is damaged and was left out.</source>
        <translation>Die XMP-Daten sind beschädigt und wurden weggelassen.</translation>
    </message>
    <message>
        <source>The colour profile is damaged and was left out.</source>
        <translation>Das Farbprofil ist beschädigt und wurde weggelassen.</translation>
    </message>
    <message>
        <source>The image was converted to RGB; its colour profile was left out.</source>
        <translation>Das Bild wurde in RGB umgewandelt; sein Farbprofil wurde weggelassen.</translation>
    </message>
    <message>
        <source>The colour profile does not fit the image and was left out.</source>
        <translation>Das Farbprofil passt nicht zum Bild und wurde weggelassen.</translation>
    </message>
    <message>
        <source>The IPTC data is damaged and was left out.</source>
        <translation>Die IPTC-Daten sind beschädigt und wurden weggelassen.</translation>
    </message>
    <message>
        <source>The file is damaged or ended too early; what could be read is shown.</source>
        <translation>Die Datei ist beschädigt oder endet zu früh; gezeigt wird, was lesbar war.</translation>
    </message>
    <message numerus="yes">
        <source>The file has %n page(s); this is the first.</source>
        <translation>
            <numerusform>Die Datei hat %n Seite; dies ist die erste.</numerusform>
            <numerusform>Die Datei hat %n Seiten; dies ist die erste.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The file has %n frame(s); this is the first.</source>
        <translation>
            <numerusform>Die Datei hat %n Einzelbild; dies ist das erste.</numerusform>
            <numerusform>Die Datei hat %n Einzelbilder; dies ist das erste.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The file has %n layer(s); this is what they make together.</source>
        <translation>
            <numerusform>Die Datei hat %n Ebene; dies ist, was sie ergibt.</numerusform>
            <numerusform>Die Datei hat %n Ebenen; dies ist, was sie zusammen ergeben.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The file has %n bits a colour; the image has 8.</source>
        <translation>
            <numerusform>Die Datei hat %n Bit je Farbe; das Bild hat 8.</numerusform>
            <numerusform>Die Datei hat %n Bit je Farbe; das Bild hat 8.</numerusform>
        </translation>
    </message>
    <message>
        <source>The file is in printing inks; the image is in red, green and blue.</source>
        <translation>Die Datei ist in Druckfarben; das Bild ist in Rot, Grün und Blau.</translation>
    </message>
    <message>
        <source>Save writes quality %1; this file has %2.</source>
        <translation>Sichern schreibt Qualität %1; diese Datei hat %2.</translation>
    </message>
    <message numerus="yes">
        <source>%n page(s)</source>
        <translation>
            <numerusform>%n Seite</numerusform>
            <numerusform>%n Seiten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n frame(s)</source>
        <translation>
            <numerusform>%n Einzelbild</numerusform>
            <numerusform>%n Einzelbilder</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n layer(s)</source>
        <translation>
            <numerusform>%n Ebene</numerusform>
            <numerusform>%n Ebenen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n bits a colour</source>
        <translation>
            <numerusform>%n Bit je Farbe</numerusform>
            <numerusform>%n Bit je Farbe</numerusform>
        </translation>
    </message>
    <message>
        <source>its palette is corrupt</source>
        <translation>ihre Palette ist verfälscht</translation>
    </message>
    <message>
        <source>its palette is damaged</source>
        <translation>ihre Palette ist beschädigt</translation>
    </message>
    <message>
        <source>it holds what is unknown and cannot be left out</source>
        <translation>sie enthält Unbekanntes, das nicht weggelassen werden kann</translation>
    </message>
    <message>
        <source>The PNG data cannot be read: %1.</source>
        <translation>Die PNG-Daten können nicht gelesen werden: %1.</translation>
    </message>
    <message>
        <source>its header is damaged</source>
        <translation>ihr Kopf ist beschädigt</translation>
    </message>
    <message>
        <source>it has no pixels</source>
        <translation>sie haben keine Pixel</translation>
    </message>
    <message>
        <source>the file is damaged or ends before its pixels</source>
        <translation>die Datei ist beschädigt oder endet vor ihren Pixeln</translation>
    </message>
    <message>
        <source>it has no palette</source>
        <translation>sie haben keine Palette</translation>
    </message>
    <message>
        <source>The PNG data cannot be read: a checksum of its pixels is wrong.</source>
        <translation>Die PNG-Daten können nicht gelesen werden: Eine Prüfsumme der Pixel stimmt nicht.</translation>
    </message>
    <message>
        <source>The PNG data cannot be read: not one row of its pixels is whole.</source>
        <translation>Die PNG-Daten können nicht gelesen werden: Keine Pixelzeile ist ganz.</translation>
    </message>
    <message>
        <source>The PNG data is damaged; what could be read is shown.</source>
        <translation>Die PNG-Daten sind beschädigt; gezeigt wird, was lesbar war.</translation>
    </message>
    <message>
        <source>The PSD data cannot be read: its palette is damaged.</source>
        <translation>Die PSD-Daten können nicht gelesen werden: Ihre Palette ist beschädigt.</translation>
    </message>
    <message>
        <source>The PSD data is damaged; what could be read is shown.</source>
        <translation>Die PSD-Daten sind beschädigt; gezeigt wird, was lesbar war.</translation>
    </message>
    <message>
        <source>The TIFF structure is damaged.</source>
        <translation>Der Aufbau der TIFF-Datei ist beschädigt.</translation>
    </message>
    <message>
        <source>TIFF images with so many or so large samples cannot be read.</source>
        <translation>TIFF-Bilder mit so vielen oder so großen Farbwerten können nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The TIFF file is compressed in a way that cannot be read.</source>
        <translation>Die TIFF-Datei ist auf eine Weise komprimiert, die nicht gelesen werden kann.</translation>
    </message>
    <message>
        <source>The TIFF structure is damaged: its strips or tiles have no size.</source>
        <translation>Der Aufbau der TIFF-Datei ist beschädigt: Ihre Streifen oder Kacheln haben keine Größe.</translation>
    </message>
    <message>
        <source>The TIFF structure is damaged: its strips or tiles are too large.</source>
        <translation>Der Aufbau der TIFF-Datei ist beschädigt: Ihre Streifen oder Kacheln sind zu groß.</translation>
    </message>
    <message>
        <source>The TIFF structure is damaged: it has too many strips or tiles.</source>
        <translation>Der Aufbau der TIFF-Datei ist beschädigt: Sie hat zu viele Streifen oder Kacheln.</translation>
    </message>
    <message>
        <source>The TIFF data cannot be read: %1.</source>
        <translation>Die TIFF-Daten können nicht gelesen werden: %1.</translation>
    </message>
    <message>
        <source>The TIFF data is damaged: %1.</source>
        <translation>Die TIFF-Daten sind beschädigt: %1.</translation>
    </message>
    <message>
        <source>The TIFF data is damaged; what could be read is shown.</source>
        <translation>Die TIFF-Daten sind beschädigt; gezeigt wird, was lesbar war.</translation>
    </message>
    <message>
        <source>The %1 image cannot be read: its reader ended unexpectedly.</source>
        <translation>Das %1-Bild kann nicht gelesen werden: Sein Leser endete unerwartet.</translation>
    </message>
    <message>
        <source>The %1 image cannot be read: its reader did not come to an end.</source>
        <translation>Das %1-Bild kann nicht gelesen werden: Sein Leser kam zu keinem Ende.</translation>
    </message>
    <message>
        <source>Reading was stopped.</source>
        <translation>Das Lesen wurde abgebrochen.</translation>
    </message>
    <message>
        <source>This kind of file has no quality to choose.</source>
        <translation>Diese Art Datei hat keine wählbare Qualität.</translation>
    </message>
    <message>
        <source>A WebP file holds at most 16,383 pixels a side.</source>
        <translation>Eine WebP-Datei fasst höchstens 16.383 Pixel je Seite.</translation>
    </message>
    <message>
        <source>Even at the lowest quality the file is larger.</source>
        <translation>Selbst mit der geringsten Qualität ist die Datei größer.</translation>
    </message>
</context>
<context>
    <name>ColorPanel</name>
    <message>
        <source>The colour with its opacity</source>
        <translation>Die Farbe mit ihrer Deckkraft</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>&amp;Pick Screen Colour</source>
        <translation>Farbe vom Bildschirm &amp;aufnehmen</translation>
    </message>
</context>
<context>
    <name>ColorWell</name>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
</context>
<context>
    <name>Compare</name>
    <message>
        <source>as opened</source>
        <translation>wie geöffnet</translation>
    </message>
    <message>
        <source>as last saved</source>
        <translation>wie zuletzt gesichert</translation>
    </message>
    <message>
        <source>before the last step</source>
        <translation>vor dem letzten Schritt</translation>
    </message>
    <message>
        <source>before</source>
        <translation>vorher</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>Der Speicher reicht nicht aus.</translation>
    </message>
    <message>
        <source>That state of the image cannot be read any more.</source>
        <translation>Dieser Stand des Bildes kann nicht mehr gelesen werden.</translation>
    </message>
    <message>
        <source>The image had another size then.</source>
        <translation>Das Bild hatte damals eine andere Größe.</translation>
    </message>
    <message>
        <source>Left of the pointer: %1</source>
        <translation>Links vom Zeiger: %1</translation>
    </message>
</context>
<context>
    <name>Corners</name>
    <message>
        <source>The selection does not have four corners.</source>
        <translation>Die Auswahl hat keine vier Ecken.</translation>
    </message>
    <message>
        <source>The selection could not be made upright.</source>
        <translation>Die Auswahl konnte nicht gerade gemacht werden.</translation>
    </message>
    <message>
        <source>It is seen from too far aside.</source>
        <translation>Sie wird zu sehr von der Seite gesehen.</translation>
    </message>
    <message>
        <source>With Polygon beside the lasso, click the corners of what is to become upright one by one.</source>
        <translation>Klicken Sie mit „Vieleck“ neben dem Lasso die Ecken dessen an, was gerade werden soll, eine nach der anderen.</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>The file is too large for a small image of it.</source>
        <translation>Die Datei ist zu groß für ein Vorschaubild.</translation>
    </message>
</context>
<context>
    <name>Document</name>
    <message>
        <source>There is not enough memory.</source>
        <translation>Es ist nicht genug Speicher frei.</translation>
    </message>
</context>
<context>
    <name>EmptyView</name>
    <message>
        <source>Drop an image here</source>
        <translation>Bild hier ablegen</translation>
    </message>
    <message>
        <source>&amp;New…</source>
        <translation>&amp;Neu …</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>Ö&amp;ffnen …</translation>
    </message>
</context>
<context>
    <name>FileManager</name>
    <message>
        <source>Image Library</source>
        <translation>Bildersammlung</translation>
    </message>
    <message>
        <source>Images of the library</source>
        <translation>Bilder der Sammlung</translation>
    </message>
    <message>
        <source>Drop images here to add them</source>
        <translation>Bilder hier ablegen, um sie hinzuzufügen</translation>
    </message>
    <message>
        <source>Preview of the selected image</source>
        <translation>Vorschau des gewählten Bildes</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Hinzufügen …</translation>
    </message>
    <message>
        <source>Adds a link to an image</source>
        <translation>Fügt eine Verknüpfung mit einem Bild hinzu</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation>&amp;Umbenennen …</translation>
    </message>
    <message>
        <source>Renames the selected entry (F2)</source>
        <translation>Benennt den gewählten Eintrag um (F2)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Deletes the selected entry, never the image that a link leads to (Delete)</source>
        <translation>Löscht den gewählten Eintrag, nie das Bild, zu dem eine Verknüpfung führt (Entf)</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>Opens the selected image in the editor (Return)</source>
        <translation>Öffnet das gewählte Bild im Editor (Eingabetaste)</translation>
    </message>
    <message>
        <source>Re&amp;link</source>
        <translation>&amp;Neu verknüpfen</translation>
    </message>
    <message>
        <source>Lets the selected link lead to the image that was found</source>
        <translation>Lässt die gewählte Verknüpfung zum gefundenen Bild führen</translation>
    </message>
    <message>
        <source>Relin&amp;k All…</source>
        <translation>Alle &amp;verknüpfen …</translation>
    </message>
    <message>
        <source>Lets every broken link lead to its image, where that was found by its content</source>
        <translation>Lässt jede defekte Verknüpfung zu ihrem Bild führen, wo es am Inhalt wiedererkannt wurde</translation>
    </message>
    <message>
        <source>Show D&amp;uplicates</source>
        <translation>&amp;Doppelte zeigen</translation>
    </message>
    <message>
        <source>Shows only images that are here more than once: the same file, the same content, or the same look</source>
        <translation>Zeigt nur Bilder, die mehrmals da sind: dieselbe Datei, derselbe Inhalt oder dasselbe Aussehen</translation>
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
        <translation>Das Bild wäre zu groß.</translation>
    </message>
    <message>
        <source>An image can have up to 30,000 pixels a side and 1,000 megapixels in all.</source>
        <translation>Ein Bild kann bis zu 30.000 Pixel je Seite und insgesamt 1.000 Megapixel haben.</translation>
    </message>
    <message>
        <source>The file could not be opened.</source>
        <translation>Die Datei konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Use Save as TIFF…</source>
        <translation>Als TIFF sichern …</translation>
    </message>
    <message>
        <source>Use Save as JPEG…</source>
        <translation>Als JPEG sichern …</translation>
    </message>
    <message>
        <source>Use Save as PNG…</source>
        <translation>Als PNG sichern …</translation>
    </message>
    <message>
        <source>Save does not write files whose names have no extension.</source>
        <translation>Sichern schreibt keine Dateien, deren Namen keine Endung haben.</translation>
    </message>
    <message>
        <source>Save does not write .%1 files.</source>
        <translation>Sichern schreibt keine .%1-Dateien.</translation>
    </message>
    <message>
        <source>Not opened: %1</source>
        <translation>Nicht geöffnet: %1</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The image could not be brought back.</source>
        <translation>Das Bild konnte nicht zurückgeholt werden.</translation>
    </message>
    <message>
        <source>Its steps are gone from the folder of temporary files.</source>
        <translation>Seine Schritte sind aus dem Ordner für temporäre Dateien verschwunden.</translation>
    </message>
    <message numerus="yes">
        <source>%n bytes</source>
        <translation>
            <numerusform>%n Byte</numerusform>
            <numerusform>%n Byte</numerusform>
        </translation>
    </message>
    <message>
        <source>There is not enough memory to encode the image, or it is too large for this kind of file.</source>
        <translation>Der Speicher reicht nicht, um das Bild zu kodieren, oder es ist zu groß für diese Art von Datei.</translation>
    </message>
    <message>
        <source>The file could not be written.</source>
        <translation>Die Datei konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Saved %1 · %2 · %3</source>
        <translation>%1 gesichert · %2 · %3</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <translation>Nicht gesichert: %1</translation>
    </message>
    <message>
        <source>The file could not be saved.</source>
        <translation>Die Datei konnte nicht gesichert werden.</translation>
    </message>
    <message>
        <source>There is no image to save.</source>
        <translation>Es gibt kein Bild zu sichern.</translation>
    </message>
    <message>
        <source>Save does not write files of this name.</source>
        <translation>Sichern schreibt keine Dateien dieses Namens.</translation>
    </message>
    <message>
        <source>Cannot save PSD file (Photoshop file)</source>
        <translation>PSD-Datei (Photoshop-Datei) kann nicht gesichert werden</translation>
    </message>
    <message>
        <source>Choose &apos;File&apos; &gt; &apos;Save as TIFF…&apos; or &apos;File&apos; &gt; &apos;Save as JPEG…&apos; to save the image in another image format.</source>
        <translation>Wählen Sie „Datei“ &gt; „Als TIFF sichern …“ oder „Datei“ &gt; „Als JPEG sichern …“, um das Bild in einem anderen Format zu sichern.</translation>
    </message>
    <message>
        <source>The file holds more than the image.</source>
        <translation>Die Datei enthält mehr als das Bild.</translation>
    </message>
    <message>
        <source>%1 has %2. Saving the image into it takes that away.</source>
        <translation>%1 enthält %2. Das geht verloren, wenn das Bild hineingesichert wird.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Sichern</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Sichern als …</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>The file was changed since it was opened.</source>
        <translation>Die Datei wurde verändert, seit sie geöffnet wurde.</translation>
    </message>
    <message>
        <source>Do you want to overwrite the existing file?</source>
        <translation>Möchten Sie die vorhandene Datei überschreiben?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Its steps could not be read.</source>
        <translation>Seine Schritte konnten nicht gelesen werden.</translation>
    </message>
    <message>
        <source>It will be offered again at the next start.</source>
        <translation>Es wird beim nächsten Start wieder angeboten.</translation>
    </message>
    <message>
        <source>Reading the image…</source>
        <translation>Bild wird gelesen …</translation>
    </message>
    <message>
        <source>Combining the outlines…</source>
        <translation>Umrisse werden vereint …</translation>
    </message>
</context>
<context>
    <name>Folders</name>
    <message>
        <source>The disk is full.</source>
        <translation>Der Datenträger ist voll.</translation>
    </message>
    <message>
        <source>The disk quota is used up.</source>
        <translation>Das Kontingent auf dem Datenträger ist aufgebraucht.</translation>
    </message>
    <message>
        <source>The file would be larger than is allowed here.</source>
        <translation>Die Datei würde größer, als hier erlaubt ist.</translation>
    </message>
    <message>
        <source>There is no permission to write here.</source>
        <translation>Es fehlt die Berechtigung, hier zu schreiben.</translation>
    </message>
    <message>
        <source>The disk cannot be written to.</source>
        <translation>Auf den Datenträger kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>Der Ordner existiert nicht.</translation>
    </message>
    <message>
        <source>A part of the path is not a folder.</source>
        <translation>Ein Teil des Pfads ist kein Ordner.</translation>
    </message>
    <message>
        <source>There is a folder of that name.</source>
        <translation>Es gibt einen Ordner dieses Namens.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>Der Name ist zu lang.</translation>
    </message>
    <message>
        <source>The link leads round in a circle.</source>
        <translation>Die Verknüpfung führt im Kreis.</translation>
    </message>
    <message>
        <source>The disk reported an error.</source>
        <translation>Der Datenträger hat einen Fehler gemeldet.</translation>
    </message>
    <message>
        <source>Too many files are open.</source>
        <translation>Es sind zu viele Dateien geöffnet.</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message>
        <source>Undo steps cannot be written to the disk (%1). They are kept in memory until the program ends.</source>
        <translation>Die Schritte zum Rückgängigmachen können nicht auf den Datenträger geschrieben werden (%1). Sie bleiben bis zum Programmende im Speicher.</translation>
    </message>
    <message>
        <source>The last change could not be kept as a step of its own (%1).</source>
        <translation>Die letzte Änderung konnte nicht als eigener Schritt behalten werden (%1).</translation>
    </message>
    <message>
        <source>There is no place for undo steps among the temporary files. A private folder of this session serves instead.</source>
        <translation>Bei den temporären Dateien ist kein Platz für die Schritte zum Rückgängigmachen. Stattdessen dient ein eigener Ordner dieser Sitzung.</translation>
    </message>
    <message>
        <source>Nothing was undone: what is on screen could be kept neither on the disk nor in memory.</source>
        <translation>Nichts wurde rückgängig gemacht: Was zu sehen ist, konnte weder auf dem Datenträger noch im Speicher behalten werden.</translation>
    </message>
    <message>
        <source>there is no undo folder</source>
        <translation>es gibt keinen Ordner für die Schritte</translation>
    </message>
    <message>
        <source>there is no image</source>
        <translation>es gibt kein Bild</translation>
    </message>
    <message>
        <source>the step before could not be encoded</source>
        <translation>der vorige Schritt konnte nicht kodiert werden</translation>
    </message>
    <message>
        <source>the files could not be put in their places</source>
        <translation>die Dateien konnten nicht an ihren Platz gelegt werden</translation>
    </message>
    <message>
        <source>not enough memory</source>
        <translation>nicht genug Speicher</translation>
    </message>
    <message>
        <source>The very pixels of the last change could not be kept (%1). Undo brings them back from a JPEG copy: colours may differ a little.</source>
        <translation>Die genauen Pixel der letzten Änderung konnten nicht aufbewahrt werden (%1). Beim Widerrufen kommen sie aus einer JPEG-Kopie: Farben können etwas abweichen.</translation>
    </message>
    <message>
        <source>The very pixels of this step could not be read. What is shown comes from its JPEG copy: colours may differ a little.</source>
        <translation>Die genauen Pixel dieses Schritts konnten nicht gelesen werden. Gezeigt wird seine JPEG-Kopie: Farben können etwas abweichen.</translation>
    </message>
</context>
<context>
    <name>HistoryPanel</name>
    <message>
        <source>Change</source>
        <translation>Änderung</translation>
    </message>
    <message>
        <source>There is no room for the very pixels of this step: it comes back as its files hold it, nearly the same.</source>
        <translation>Für die genauen Pixel dieses Schritts ist kein Platz: Er kommt so zurück, wie seine Dateien ihn enthalten, fast gleich.</translation>
    </message>
    <message>
        <source>This step could not be kept.</source>
        <translation>Dieser Schritt konnte nicht behalten werden.</translation>
    </message>
    <message>
        <source>Go to this step</source>
        <translation>Zu diesem Schritt gehen</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Steps of the image, oldest first</source>
        <translation>Schritte des Bildes, älteste zuerst</translation>
    </message>
</context>
<context>
    <name>ImageProcessor</name>
    <message>
        <source>Image Processor</source>
        <translation>Stapelverarbeitung</translation>
    </message>
    <message>
        <source>&amp;Source folder:</source>
        <translation>&amp;Quellordner:</translation>
    </message>
    <message>
        <source>Every .tiff and .jpg image in it</source>
        <translation>Jedes .tiff- und .jpg-Bild darin</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Wählen …</translation>
    </message>
    <message>
        <source>&amp;Destination folder:</source>
        <translation>&amp;Zielordner:</translation>
    </message>
    <message>
        <source>Save as:</source>
        <translation>Sichern als:</translation>
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
        <translation>Größe:</translation>
    </message>
    <message>
        <source>&amp;Fit into</source>
        <translation>&amp;Einpassen in</translation>
    </message>
    <message>
        <source>Width of the box in pixels</source>
        <translation>Breite des Rahmens in Pixeln</translation>
    </message>
    <message>
        <source>by</source>
        <translation>mal</translation>
    </message>
    <message>
        <source>Height of the box in pixels</source>
        <translation>Höhe des Rahmens in Pixeln</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>Pixel</translation>
    </message>
    <message>
        <source>&amp;Watermark:</source>
        <translation>&amp;Wasserzeichen:</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keins</translation>
    </message>
    <message>
        <source>Images in the watermark folder</source>
        <translation>Bilder im Ordner der Wasserzeichen</translation>
    </message>
    <message>
        <source>&amp;Position:</source>
        <translation>&amp;Position:</translation>
    </message>
    <message>
        <source>Fills in the position for images as large as the box</source>
        <translation>Trägt die Position für Bilder ein, die so groß wie der Rahmen sind</translation>
    </message>
    <message>
        <source>Custom position</source>
        <translation>Eigene Position</translation>
    </message>
    <message>
        <source>Lower left</source>
        <translation>Unten links</translation>
    </message>
    <message>
        <source>Lower right</source>
        <translation>Unten rechts</translation>
    </message>
    <message>
        <source>Upper left</source>
        <translation>Oben links</translation>
    </message>
    <message>
        <source>Upper right</source>
        <translation>Oben rechts</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>From the left edge in pixels</source>
        <translation>Vom linken Rand in Pixeln</translation>
    </message>
    <message>
        <source>From the lower edge in pixels</source>
        <translation>Vom unteren Rand in Pixeln</translation>
    </message>
    <message>
        <source>In &amp;each image by its own size, with a margin of</source>
        <translation>&amp;In jedem Bild nach dessen Größe, mit einem Rand von</translation>
    </message>
    <message>
        <source>The preset holds for every image, upright or flat, instead of filling in X and Y</source>
        <translation>Die Vorgabe gilt für jedes Bild, ob hoch oder quer, statt X und Y einzutragen</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source>Between the watermark and the edges of its corner in pixels</source>
        <translation>Zwischen dem Wasserzeichen und den Kanten seiner Ecke, in Pixeln</translation>
    </message>
    <message>
        <source>Margin of the watermark</source>
        <translation>Rand des Wasserzeichens</translation>
    </message>
    <message>
        <source>&amp;Opacity:</source>
        <translation>&amp;Deckkraft:</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Of the watermark, on top of its own</source>
        <translation>Des Wasserzeichens, zusätzlich zu seiner eigenen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Starten</translation>
    </message>
    <message>
        <source>&amp;Relative: its longer side is</source>
        <translation>&amp;Relativ: Seine längere Seite hat</translation>
    </message>
    <message>
        <source>The watermark looks the same on small and large images, upright or flat: size, margin and position are in percent</source>
        <translation>Das Wasserzeichen sieht auf kleinen und großen Bildern gleich aus, hoch oder quer: Größe, Rand und Position stehen in Prozent</translation>
    </message>
    <message>
        <source>Of the shorter side of each image</source>
        <translation>Der kürzeren Seite jedes Bildes</translation>
    </message>
    <message>
        <source>Size of the watermark</source>
        <translation>Größe des Wasserzeichens</translation>
    </message>
    <message>
        <source>of the image&apos;s shorter side</source>
        <translation>der kürzeren Bildseite</translation>
    </message>
    <message>
        <source>The watermark covers the whole image, from its position on</source>
        <translation>Das Wasserzeichen bedeckt von seiner Position aus das ganze Bild</translation>
    </message>
    <message>
        <source>Of the watermark&apos;s longer side</source>
        <translation>Der längeren Seite des Wasserzeichens</translation>
    </message>
    <message>
        <source>Gaps between repeated watermarks</source>
        <translation>Abstände zwischen wiederholten Wasserzeichen</translation>
    </message>
    <message>
        <source>of its longer side</source>
        <translation>seiner längeren Seite</translation>
    </message>
    <message>
        <source>T&amp;urn:</source>
        <translation>Dreh&amp;ung:</translation>
    </message>
    <message>
        <source>Of the watermark, against the clock</source>
        <translation>Des Wasserzeichens, gegen den Uhrzeigersinn</translation>
    </message>
    <message>
        <source>Pre&amp;view</source>
        <translation>&amp;Vorschau</translation>
    </message>
    <message>
        <source>Shows what these settings make of three images of the folder; nothing is written</source>
        <translation>Zeigt, was diese Einstellungen aus drei Bildern des Ordners machen; nichts wird geschrieben</translation>
    </message>
    <message>
        <source>Repeated &amp;all over, with gaps of</source>
        <translation>Überall wieder&amp;holt, mit Abständen von</translation>
    </message>
    <message>
        <source>Te&amp;xt…</source>
        <translation>Te&amp;xt …</translation>
    </message>
    <message>
        <source>Makes a line of text a watermark</source>
        <translation>Macht eine Zeile Text zum Wasserzeichen</translation>
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
        <translation>Strg</translation>
    </message>
    <message>
        <source>Super</source>
        <translation>Super</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Umschalt</translation>
    </message>
</context>
<context>
    <name>Library</name>
    <message>
        <source>broken link</source>
        <translation>tote Verknüpfung</translation>
    </message>
</context>
<context>
    <name>LibraryModel</name>
    <message>
        <source>The file that this link leads to is gone. The link can be deleted.</source>
        <translation>Die Datei, zu der diese Verknüpfung führt, gibt es nicht mehr. Die Verknüpfung kann gelöscht werden.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Dimensions</source>
        <translation>Abmessungen</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Pfad</translation>
    </message>
    <message>
        <source>looks the same</source>
        <translation>sieht gleich aus</translation>
    </message>
    <message>
        <source>same content</source>
        <translation>gleicher Inhalt</translation>
    </message>
    <message>
        <source>same file</source>
        <translation>dieselbe Datei</translation>
    </message>
    <message>
        <source>Likeness</source>
        <translation>Gleichheit</translation>
    </message>
</context>
<context>
    <name>LoadSelection</name>
    <message>
        <source>Load Selection</source>
        <translation>Auswahl laden</translation>
    </message>
    <message>
        <source>&amp;Saved selection:</source>
        <translation>&amp;Gesicherte Auswahl:</translation>
    </message>
    <message>
        <source>The outline to use; it lands where it was drawn</source>
        <translation>Der zu verwendende Umriss; er kommt dahin, wo er gezeichnet wurde</translation>
    </message>
    <message>
        <source>The selection that there is now is dropped, a floating one with its pixels.</source>
        <translation>Die jetzige Auswahl wird aufgehoben, eine schwebende samt ihren Pixeln.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Delete the chosen selection&apos;s file for good</source>
        <translation>Die Datei der gewählten Auswahl endgültig löschen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Close and keep the selection as it is</source>
        <translation>Schließen und die Auswahl lassen, wie sie ist</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Laden</translation>
    </message>
    <message>
        <source>Select by the chosen outline</source>
        <translation>Mit dem gewählten Umriss auswählen</translation>
    </message>
</context>
<context>
    <name>LoadSelectionDialog</name>
    <message>
        <source>Do you wish to delete the folder with all that is in it?</source>
        <translation>Möchten Sie den Ordner mit allem, was darin ist, löschen?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
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
        <translation>Werkzeug (Tasten 1 bis 9 und 0)</translation>
    </message>
    <message>
        <source>Tool</source>
        <translation>Werkzeug</translation>
    </message>
    <message>
        <source>Paint colour and opacity</source>
        <translation>Malfarbe und Deckkraft</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Diameter of brush, pencil, eraser and clone stamp in pixels; also the text size and the width of strokes</source>
        <translation>Durchmesser von Pinsel, Stift, Radierer und Kopierstempel in Pixeln; auch die Schriftgröße und die Breite von Konturen</translation>
    </message>
    <message>
        <source>Size in pixels</source>
        <translation>Größe in Pixeln</translation>
    </message>
    <message>
        <source>Shape of the brush tip</source>
        <translation>Form der Pinselspitze</translation>
    </message>
    <message>
        <source>Brush shape</source>
        <translation>Pinselform</translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation>Toleranz</translation>
    </message>
    <message>
        <source>How far a colour may differ from the one under the pointer</source>
        <translation>Wie weit eine Farbe von der unter dem Zeiger abweichen darf</translation>
    </message>
    <message>
        <source>Tolerance in percent</source>
        <translation>Toleranz in Prozent</translation>
    </message>
    <message>
        <source>Zoom (keys + and −, Ctrl+wheel)</source>
        <translation>Zoom (Tasten + und −, Strg+Mausrad)</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>What the pressure of a pen changes</source>
        <translation>Was der Druck eines Stifts ändert</translation>
    </message>
    <message>
        <source>Pen pressure</source>
        <translation>Stiftdruck</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Tool options</source>
        <translation>Werkzeugoptionen</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>Brush %1</source>
        <translation>Pinsel %1</translation>
    </message>
    <message>
        <source>Fit · %1</source>
        <translation>Eingepasst · %1</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Quadrat</translation>
    </message>
    <message>
        <source>Oval</source>
        <translation>Oval</translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation>Vieleck</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Subtract</source>
        <translation>Abziehen</translation>
    </message>
    <message>
        <source>Float</source>
        <translation>Schweben</translation>
    </message>
    <message>
        <source>Straight</source>
        <translation>Gerade</translation>
    </message>
    <message>
        <source>Set source</source>
        <translation>Quelle setzen</translation>
    </message>
    <message>
        <source>Untitled[*] — Zelpane</source>
        <translation>Unbenannt[*] — Zelpane</translation>
    </message>
    <message>
        <source>The marquee becomes a square</source>
        <translation>Der Auswahlrahmen wird quadratisch</translation>
    </message>
    <message>
        <source>The marquee becomes an oval</source>
        <translation>Der Auswahlrahmen wird oval</translation>
    </message>
    <message>
        <source>Click corners, Return ends</source>
        <translation>Ecken anklicken, Eingabetaste beendet</translation>
    </message>
    <message>
        <source>The new shape joins the selection</source>
        <translation>Die neue Form kommt zur Auswahl hinzu</translation>
    </message>
    <message>
        <source>The new shape is cut from the selection</source>
        <translation>Die neue Form wird aus der Auswahl geschnitten</translation>
    </message>
    <message>
        <source>Dragging the selection lifts its pixels</source>
        <translation>Ziehen an der Auswahl hebt ihre Pixel ab</translation>
    </message>
    <message>
        <source>One straight line from press to release</source>
        <translation>Eine gerade Linie vom Drücken bis zum Loslassen</translation>
    </message>
    <message>
        <source>The click sets where pixels come from</source>
        <translation>Der Klick legt fest, woher die Pixel kommen</translation>
    </message>
    <message>
        <source>%1 (as if %2 were held)</source>
        <translation>%1 (als wäre %2 gedrückt)</translation>
    </message>
    <message>
        <source>The window manager moves windows with %1 and the mouse, so %1 never reaches the image. The switches above do the same.</source>
        <translation>Die Fensterverwaltung verschiebt Fenster mit %1 und der Maus, deshalb erreicht %1 das Bild nie. Die Schalter oben tun dasselbe.</translation>
    </message>
    <message>
        <source>Use %1 instead</source>
        <translation>Stattdessen %1 verwenden</translation>
    </message>
    <message>
        <source>Even pressure</source>
        <translation>Gleicher Druck</translation>
    </message>
    <message>
        <source>Pressure: size</source>
        <translation>Druck: Größe</translation>
    </message>
    <message>
        <source>Pressure: opacity</source>
        <translation>Druck: Deckkraft</translation>
    </message>
    <message>
        <source>Explain</source>
        <translation>Erklären</translation>
    </message>
    <message>
        <source>Where the pointer rests, what a click takes; a drag after the press changes the tolerance</source>
        <translation>Wo der Zeiger ruht, was ein Klick nimmt; Ziehen nach dem Drücken ändert die Toleranz</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>About Zelpane</source>
        <translation>Über Zelpane</translation>
    </message>
    <message>
        <source>Version and licence</source>
        <translation>Version und Lizenz</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>Einstellungen …</translation>
    </message>
    <message>
        <source>Units, keys and other settings</source>
        <translation>Einheiten, Tasten und andere Einstellungen</translation>
    </message>
    <message>
        <source>Quit Zelpane</source>
        <translation>Zelpane beenden</translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation>Beendet das Programm</translation>
    </message>
    <message>
        <source>New…</source>
        <translation>Neu …</translation>
    </message>
    <message>
        <source>Makes a blank image</source>
        <translation>Legt ein leeres Bild an</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Öffnen …</translation>
    </message>
    <message>
        <source>Opens an image file</source>
        <translation>Öffnet eine Bilddatei</translation>
    </message>
    <message>
        <source>Open Recent</source>
        <translation>Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>Previous Image</source>
        <translation>Voriges Bild</translation>
    </message>
    <message>
        <source>Shows the image again that was open before this one</source>
        <translation>Zeigt wieder das Bild, das vor diesem geöffnet war</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Sichern</translation>
    </message>
    <message>
        <source>Writes the image into its file</source>
        <translation>Schreibt das Bild in seine Datei</translation>
    </message>
    <message>
        <source>Save as TIFF…</source>
        <translation>Als TIFF sichern …</translation>
    </message>
    <message>
        <source>Writes a TIFF file; transparency is kept</source>
        <translation>Schreibt eine TIFF-Datei; Transparenz bleibt erhalten</translation>
    </message>
    <message>
        <source>Save as JPEG…</source>
        <translation>Als JPEG sichern …</translation>
    </message>
    <message>
        <source>Writes a JPEG file; transparent areas become white</source>
        <translation>Schreibt eine JPEG-Datei; Transparentes wird weiß</translation>
    </message>
    <message>
        <source>Save as PNG…</source>
        <translation>Als PNG sichern …</translation>
    </message>
    <message>
        <source>Writes a PNG file; transparency is kept</source>
        <translation>Schreibt eine PNG-Datei; Transparenz bleibt erhalten</translation>
    </message>
    <message>
        <source>Save without Private Data…</source>
        <translation>Ohne private Angaben sichern …</translation>
    </message>
    <message>
        <source>Writes a copy that says nothing of place, device and people</source>
        <translation>Schreibt eine Kopie, die nichts über Ort, Gerät und Personen verrät</translation>
    </message>
    <message>
        <source>Quick Save…</source>
        <translation>Schnell sichern …</translation>
    </message>
    <message>
        <source>Saves into the image library</source>
        <translation>Sichert in die Bildersammlung</translation>
    </message>
    <message>
        <source>Open with Preview</source>
        <translation>In Vorschau öffnen</translation>
    </message>
    <message>
        <source>Shows the file in the desktop&apos;s image viewer</source>
        <translation>Zeigt die Datei im Bildbetrachter des Desktops</translation>
    </message>
    <message>
        <source>Page Setup…</source>
        <translation>Seite einrichten …</translation>
    </message>
    <message>
        <source>Paper size and orientation</source>
        <translation>Papierformat und Ausrichtung</translation>
    </message>
    <message>
        <source>Print…</source>
        <translation>Drucken …</translation>
    </message>
    <message>
        <source>Prints the image on the paper of Page Setup</source>
        <translation>Druckt das Bild auf das eingerichtete Papier</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Takes the last change back</source>
        <translation>Nimmt die letzte Änderung zurück</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Brings the change back that was undone</source>
        <translation>Stellt die zurückgenommene Änderung wieder her</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Moves the selected pixels to the clipboard</source>
        <translation>Verschiebt die ausgewählten Pixel in die Zwischenablage</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copies the selected pixels, or the whole image, to the clipboard</source>
        <translation>Kopiert die ausgewählten Pixel oder das ganze Bild in die Zwischenablage</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Places the clipboard&apos;s image as a floating selection</source>
        <translation>Setzt das Bild der Zwischenablage als schwebende Auswahl ein</translation>
    </message>
    <message>
        <source>Paste Into</source>
        <translation>In die Auswahl einfügen</translation>
    </message>
    <message>
        <source>Places the clipboard&apos;s image inside the selection</source>
        <translation>Setzt das Bild der Zwischenablage in die Auswahl ein</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Makes the selected pixels transparent</source>
        <translation>Macht die ausgewählten Pixel transparent</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Füllen</translation>
    </message>
    <message>
        <source>Fills the selection with the paint colour</source>
        <translation>Füllt die Auswahl mit der Malfarbe</translation>
    </message>
    <message>
        <source>Stroke</source>
        <translation>Kontur</translation>
    </message>
    <message>
        <source>Draws the selection&apos;s outline in the paint colour</source>
        <translation>Zeichnet den Umriss der Auswahl in der Malfarbe</translation>
    </message>
    <message>
        <source>Smart Fill…</source>
        <translation>Intelligent füllen …</translation>
    </message>
    <message>
        <source>Fills the selection from its surroundings</source>
        <translation>Füllt die Auswahl aus ihrer Umgebung</translation>
    </message>
    <message>
        <source>Transform…</source>
        <translation>Transformieren …</translation>
    </message>
    <message>
        <source>Scales and rotates the selected pixels</source>
        <translation>Skaliert und dreht die ausgewählten Pixel</translation>
    </message>
    <message>
        <source>Adjust…</source>
        <translation>Anpassen …</translation>
    </message>
    <message>
        <source>Hue, saturation, brightness, contrast and sharpness of the selection</source>
        <translation>Farbton, Sättigung, Helligkeit, Kontrast und Schärfe der Auswahl</translation>
    </message>
    <message>
        <source>Resize…</source>
        <translation>Größe ändern …</translation>
    </message>
    <message>
        <source>Changes the size of the image</source>
        <translation>Ändert die Größe des Bildes</translation>
    </message>
    <message>
        <source>Crop to Selection</source>
        <translation>Auf Auswahl zuschneiden</translation>
    </message>
    <message>
        <source>Cuts the image to the selection&apos;s box</source>
        <translation>Schneidet das Bild auf den Rahmen der Auswahl zu</translation>
    </message>
    <message>
        <source>Rotate Clockwise</source>
        <translation>Im Uhrzeigersinn drehen</translation>
    </message>
    <message>
        <source>Turns the image by 90° to the right</source>
        <translation>Dreht das Bild um 90° nach rechts</translation>
    </message>
    <message>
        <source>Rotate Counter-Clockwise</source>
        <translation>Gegen den Uhrzeigersinn drehen</translation>
    </message>
    <message>
        <source>Turns the image by 90° to the left</source>
        <translation>Dreht das Bild um 90° nach links</translation>
    </message>
    <message>
        <source>Flip Horizontally</source>
        <translation>Horizontal spiegeln</translation>
    </message>
    <message>
        <source>Exchanges left and right</source>
        <translation>Vertauscht links und rechts</translation>
    </message>
    <message>
        <source>Flip Vertically</source>
        <translation>Vertikal spiegeln</translation>
    </message>
    <message>
        <source>Exchanges top and bottom</source>
        <translation>Vertauscht oben und unten</translation>
    </message>
    <message>
        <source>2x Retina Display Mode</source>
        <translation>2x-Retina-Anzeige</translation>
    </message>
    <message>
        <source>One image pixel on one pixel of a double-density screen</source>
        <translation>Ein Bildpixel auf einem Pixel eines Bildschirms mit doppelter Dichte</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>Selects the whole image</source>
        <translation>Wählt das ganze Bild aus</translation>
    </message>
    <message>
        <source>Select None</source>
        <translation>Nichts auswählen</translation>
    </message>
    <message>
        <source>Drops the selection</source>
        <translation>Hebt die Auswahl auf</translation>
    </message>
    <message>
        <source>Select Inverse</source>
        <translation>Auswahl umkehren</translation>
    </message>
    <message>
        <source>Selects what is not selected</source>
        <translation>Wählt aus, was nicht ausgewählt ist</translation>
    </message>
    <message>
        <source>Position and Size…</source>
        <translation>Position und Größe …</translation>
    </message>
    <message>
        <source>A rectangle by number, and what new marquees keep to</source>
        <translation>Ein Rechteck nach Zahlen, und woran sich neue Auswahlrahmen halten</translation>
    </message>
    <message>
        <source>Reselect</source>
        <translation>Erneut auswählen</translation>
    </message>
    <message>
        <source>Brings the last dropped selection back</source>
        <translation>Bringt die zuletzt aufgehobene Auswahl zurück</translation>
    </message>
    <message>
        <source>Float Selection</source>
        <translation>Auswahl schweben lassen</translation>
    </message>
    <message>
        <source>Lifts the selected pixels, or puts them back (Return)</source>
        <translation>Hebt die ausgewählten Pixel ab oder setzt sie zurück (Eingabetaste)</translation>
    </message>
    <message>
        <source>Save Selection…</source>
        <translation>Auswahl sichern …</translation>
    </message>
    <message>
        <source>Keeps the outline under a name (key s: the default name)</source>
        <translation>Behält den Umriss unter einem Namen (Taste s: unter dem vorgegebenen)</translation>
    </message>
    <message>
        <source>Load Selection…</source>
        <translation>Auswahl laden …</translation>
    </message>
    <message>
        <source>Brings a kept outline back</source>
        <translation>Holt einen gesicherten Umriss zurück</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>One zoom level in (+)</source>
        <translation>Eine Zoomstufe näher (+)</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>One zoom level out (−)</source>
        <translation>Eine Zoomstufe weiter weg (−)</translation>
    </message>
    <message>
        <source>Actual Size</source>
        <translation>Originalgröße</translation>
    </message>
    <message>
        <source>One image pixel on one pixel of the screen</source>
        <translation>Ein Bildpixel auf einem Pixel des Bildschirms</translation>
    </message>
    <message>
        <source>Fit to Window</source>
        <translation>In Fenster einpassen</translation>
    </message>
    <message>
        <source>The whole image in the window, whatever becomes of the window</source>
        <translation>Das ganze Bild im Fenster, was auch immer aus dem Fenster wird</translation>
    </message>
    <message>
        <source>Transparency as Chequerboard</source>
        <translation>Transparenz als Schachbrett</translation>
    </message>
    <message>
        <source>Transparent parts show a chequerboard instead of grey</source>
        <translation>Transparente Teile zeigen ein Schachbrett statt Grau</translation>
    </message>
    <message>
        <source>Pixel Grid</source>
        <translation>Pixelraster</translation>
    </message>
    <message>
        <source>Lines between the pixels, from 800 % on</source>
        <translation>Linien zwischen den Pixeln, ab 800 %</translation>
    </message>
    <message>
        <source>Keyboard Pointer</source>
        <translation>Tastaturzeiger</translation>
    </message>
    <message>
        <source>A crosshair that the numeric pad or Ctrl+arrows move; Ctrl+Space presses the button and lets it go</source>
        <translation>Ein Fadenkreuz, das Ziffernblock oder Strg+Pfeile bewegen; Strg+Leertaste drückt die Maustaste und lässt sie los</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>The steps of the image, to go back to</source>
        <translation>Die Schritte des Bildes, um zu ihnen zurückzugehen</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Vollbild</translation>
    </message>
    <message>
        <source>The window on the whole screen, and back</source>
        <translation>Das Fenster auf dem ganzen Bildschirm, und zurück</translation>
    </message>
    <message>
        <source>Larger Brush</source>
        <translation>Größerer Pinsel</translation>
    </message>
    <message>
        <source>The size of brush, pencil, eraser, text and strokes: a tenth more</source>
        <translation>Größe von Pinsel, Stift, Radierer, Text und Konturen: ein Zehntel mehr</translation>
    </message>
    <message>
        <source>Smaller Brush</source>
        <translation>Kleinerer Pinsel</translation>
    </message>
    <message>
        <source>The size of brush, pencil, eraser, text and strokes: a tenth less</source>
        <translation>Größe von Pinsel, Stift, Radierer, Text und Konturen: ein Zehntel weniger</translation>
    </message>
    <message>
        <source>Swap Colours</source>
        <translation>Farben tauschen</translation>
    </message>
    <message>
        <source>Back to the colour that was chosen before this one, and again</source>
        <translation>Zurück zu der Farbe, die vor dieser gewählt war, und wieder hin</translation>
    </message>
    <message>
        <source>Image Editor</source>
        <translation>Bildeditor</translation>
    </message>
    <message>
        <source>Brings the main window to the front</source>
        <translation>Bringt das Hauptfenster nach vorn</translation>
    </message>
    <message>
        <source>Image Library</source>
        <translation>Bildersammlung</translation>
    </message>
    <message>
        <source>Your favourite images</source>
        <translation>Ihre Lieblingsbilder</translation>
    </message>
    <message>
        <source>Show Windows</source>
        <translation>Fenster zeigen</translation>
    </message>
    <message>
        <source>Main window and image library</source>
        <translation>Hauptfenster und Bildersammlung</translation>
    </message>
    <message>
        <source>Image Processor…</source>
        <translation>Stapelverarbeitung …</translation>
    </message>
    <message>
        <source>Resizes and watermarks a folder of images</source>
        <translation>Ändert die Größe eines Ordners voller Bilder und setzt Wasserzeichen</translation>
    </message>
    <message>
        <source>Zelpane Help</source>
        <translation>Hilfe zu Zelpane</translation>
    </message>
    <message>
        <source>Where to find the User&apos;s Guide</source>
        <translation>Wo das Benutzerhandbuch zu finden ist</translation>
    </message>
    <message>
        <source>User&apos;s Guide</source>
        <translation>Benutzerhandbuch</translation>
    </message>
    <message>
        <source>Opens the guide in the browser</source>
        <translation>Öffnet das Handbuch im Browser</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>All commands and tools with their keys, which can be changed there</source>
        <translation>Alle Befehle und Werkzeuge mit ihren Tasten, die dort geändert werden können</translation>
    </message>
    <message>
        <source>Zelpane</source>
        <translation>Zelpane</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Remove Brush</source>
        <translation>Entfernen-Pinsel</translation>
    </message>
    <message>
        <source>Paint over a thing and let go: it is filled from its surroundings</source>
        <translation>Etwas übermalen und loslassen: Es wird aus seiner Umgebung gefüllt</translation>
    </message>
    <message>
        <source>Copy as Script</source>
        <translation>Als Skript kopieren</translation>
    </message>
    <message>
        <source>What was done since the image was opened, as a script that does it again</source>
        <translation>Was seit dem Öffnen des Bildes getan wurde, als Skript, das es noch einmal tut</translation>
    </message>
    <message>
        <source>Script</source>
        <translation>Skript</translation>
    </message>
    <message>
        <source>What is done to the image, written down as a script; plays scripts on it</source>
        <translation>Was mit dem Bild getan wird, als Skript aufgeschrieben; spielt Skripte darauf ab</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Vergleichen</translation>
    </message>
    <message>
        <source>While the key is held: an earlier state of the image left of the pointer</source>
        <translation>Solange die Taste gehalten wird: links vom Zeiger ein früherer Stand des Bildes</translation>
    </message>
    <message>
        <source>Compare as Opened</source>
        <translation>Vergleichen: wie geöffnet</translation>
    </message>
    <message>
        <source>Compare shows the image as it was opened</source>
        <translation>Vergleichen zeigt das Bild, wie es geöffnet wurde</translation>
    </message>
    <message>
        <source>Compare as Last Saved</source>
        <translation>Vergleichen: wie zuletzt gesichert</translation>
    </message>
    <message>
        <source>Compare shows the image as it was last saved</source>
        <translation>Vergleichen zeigt das Bild, wie es zuletzt gesichert wurde</translation>
    </message>
    <message>
        <source>Compare before Last Step</source>
        <translation>Vergleichen: vor dem letzten Schritt</translation>
    </message>
    <message>
        <source>Compare shows the image without the last step</source>
        <translation>Vergleichen zeigt das Bild ohne den letzten Schritt</translation>
    </message>
    <message>
        <source>Save for a Size…</source>
        <translation>Auf eine Größe sichern …</translation>
    </message>
    <message>
        <source>Writes a copy that is as large as it may be, or as small as looks the same</source>
        <translation>Schreibt eine Kopie, die so groß ist wie erlaubt oder so klein, dass sie noch gleich aussieht</translation>
    </message>
    <message>
        <source>Explain the Wand</source>
        <translation>Zauberstab erklären</translation>
    </message>
    <message>
        <source>Where the pointer rests, what a click of the magic wand takes; and why it left a pixel out</source>
        <translation>Wo der Zeiger ruht, was ein Klick des Zauberstabs nimmt; und warum er ein Pixel ausließ</translation>
    </message>
    <message>
        <source>Free Corners</source>
        <translation>Freie Ecken</translation>
    </message>
    <message>
        <source>The handles at the corners of what floats pull their corner alone: perspective</source>
        <translation>Die Griffe an den Ecken des Schwebenden ziehen nur ihre Ecke: Perspektive</translation>
    </message>
    <message>
        <source>Straighten Corners</source>
        <translation>Ecken ausrichten</translation>
    </message>
    <message>
        <source>What a selection of four corners holds becomes upright, as if seen from straight ahead</source>
        <translation>Was eine Auswahl mit vier Ecken enthält, wird gerade, wie von vorn gesehen</translation>
    </message>
    <message>
        <source>Put Corners Back</source>
        <translation>Ecken zurücksetzen</translation>
    </message>
    <message>
        <source>The corners of what floats go back to where they were before they were pulled</source>
        <translation>Die Ecken des Schwebenden kehren dorthin zurück, wo sie vor dem Ziehen waren</translation>
    </message>
</context>
<context>
    <name>Name</name>
    <message>
        <source>Quick Save</source>
        <translation>Schnell sichern</translation>
    </message>
    <message>
        <source>&amp;Name of the image in the library:</source>
        <translation>&amp;Name des Bildes in der Sammlung:</translation>
    </message>
    <message>
        <source>The image is saved as TIFF in the image library</source>
        <translation>Das Bild wird als TIFF in der Bildersammlung gesichert</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Sichern</translation>
    </message>
</context>
<context>
    <name>NameDialog</name>
    <message>
        <source>Please enter a proper file name.</source>
        <translation>Bitte geben Sie einen gültigen Dateinamen ein.</translation>
    </message>
    <message>
        <source>File extension must be .tiff.</source>
        <translation>Die Dateiendung muss .tiff sein.</translation>
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
        <translation>Neues Bild</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>&amp;Breite:</translation>
    </message>
    <message>
        <source>Width of the new image in pixels</source>
        <translation>Breite des neuen Bildes in Pixeln</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>Pixel</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>&amp;Höhe:</translation>
    </message>
    <message>
        <source>Height of the new image in pixels</source>
        <translation>Höhe des neuen Bildes in Pixeln</translation>
    </message>
    <message>
        <source>&amp;Resolution:</source>
        <translation>&amp;Auflösung:</translation>
    </message>
    <message>
        <source>For information; the image is measured in pixels</source>
        <translation>Zur Information; das Bild wird in Pixeln gemessen</translation>
    </message>
    <message>
        <source>pixels/inch</source>
        <translation>Pixel/Zoll</translation>
    </message>
    <message>
        <source>File size:</source>
        <translation>Dateigröße:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
</context>
<context>
    <name>NoticeBar</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>OverflowRow</name>
    <message>
        <source>More options</source>
        <translation>Weitere Optionen</translation>
    </message>
</context>
<context>
    <name>Panels</name>
    <message>
        <source>The image could not be printed.</source>
        <translation>Das Bild konnte nicht gedruckt werden.</translation>
    </message>
    <message>
        <source>The printer did not take it.</source>
        <translation>Der Drucker hat es nicht angenommen.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Alle Dateien</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualität</translation>
    </message>
    <message>
        <source>Quality:</source>
        <translation>Qualität:</translation>
    </message>
    <message>
        <source>File already exists</source>
        <translation>Die Datei existiert bereits</translation>
    </message>
    <message>
        <source>Do you want to overwrite the existing file?</source>
        <translation>Möchten Sie die vorhandene Datei überschreiben?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Save Image</source>
        <translation>Bild sichern</translation>
    </message>
    <message>
        <source>Choose Folder</source>
        <translation>Ordner wählen</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>Bild öffnen</translation>
    </message>
</context>
<context>
    <name>Prefs</name>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>&amp;Unit:</source>
        <translation>&amp;Einheit:</translation>
    </message>
    <message>
        <source>The unit that lengths are shown in</source>
        <translation>Die Einheit, in der Längen gezeigt werden</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>Pixel</translation>
    </message>
    <message>
        <source>Centimeters</source>
        <translation>Zentimeter</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>Zoll</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Punkt</translation>
    </message>
    <message>
        <source>&amp;Appearance:</source>
        <translation>&amp;Aussehen:</translation>
    </message>
    <message>
        <source>Light or dark windows</source>
        <translation>Helle oder dunkle Fenster</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Wie der Desktop</translation>
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
        <source>Play &amp;sounds</source>
        <translation>&amp;Töne abspielen</translation>
    </message>
    <message>
        <source>Cues for floated, dropped and filled selections and finished runs</source>
        <translation>Zeichen für abgehobene, aufgehobene und gefüllte Auswahlen und beendete Läufe</translation>
    </message>
    <message>
        <source>Held keys</source>
        <translation>Gehaltene Tasten</translation>
    </message>
    <message>
        <source>Some desktops take a key for themselves. Each role can be given to another one; Shift always adds and draws straight.</source>
        <translation>Manche Desktops nehmen eine Taste für sich. Jede Rolle kann eine andere bekommen; Umschalt fügt immer hinzu und zeichnet gerade.</translation>
    </message>
    <message>
        <source>&amp;Option (subtract, set source):</source>
        <translation>&amp;Option (abziehen, Quelle setzen):</translation>
    </message>
    <message>
        <source>&amp;Control (oval, polygon):</source>
        <translation>&amp;Control (Oval, Vieleck):</translation>
    </message>
    <message>
        <source>Co&amp;mmand (square, float):</source>
        <translation>Command (&amp;Quadrat, schweben):</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>&amp;Keep windows where I put them</source>
        <translation>&amp;Fenster lassen, wo ich sie hinlege</translation>
    </message>
    <message>
        <source>Windows and dialogs come back in their last place instead of the middle of the screen</source>
        <translation>Fenster und Dialoge erscheinen an ihrem letzten Platz statt in der Mitte des Bildschirms</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>C&amp;hange Shortcuts…</source>
        <translation>Ta&amp;stenkürzel ändern …</translation>
    </message>
    <message>
        <source>All commands with their keys</source>
        <translation>Alle Befehle mit ihren Tasten</translation>
    </message>
    <message>
        <source>About box</source>
        <translation>Info-Fenster</translation>
    </message>
    <message>
        <source>Project &amp;page:</source>
        <translation>&amp;Projektseite:</translation>
    </message>
    <message>
        <source>The page that the About box opens</source>
        <translation>Die Seite, die das Info-Fenster öffnet</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>Sc&amp;hließen</translation>
    </message>
</context>
<context>
    <name>Printing</name>
    <message>
        <source>There is not enough memory.</source>
        <translation>Es ist nicht genug Speicher frei.</translation>
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
        <translation>Der Ordner wird angesehen …</translation>
    </message>
    <message>
        <source>The folder has no .tiff or .jpg image.</source>
        <translation>Der Ordner hat kein .tiff- oder .jpg-Bild.</translation>
    </message>
    <message>
        <source>The largest, the middle and the smallest of %1 images of one shape</source>
        <translation>Das größte, das mittlere und das kleinste von %1 Bildern einer Form</translation>
    </message>
    <message>
        <source>The widest, the tallest and the squarest of %1 images</source>
        <translation>Das breiteste, das höchste und das quadratischste von %1 Bildern</translation>
    </message>
    <message>
        <source>%1; the folder has %2</source>
        <translation>%1; der Ordner hat %2</translation>
    </message>
</context>
<context>
    <name>Rename</name>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>&amp;New name (the extension stays as it is):</source>
        <translation>&amp;Neuer Name (die Endung bleibt, wie sie ist):</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>Resize</name>
    <message>
        <source>Resize Image</source>
        <translation>Bildgröße ändern</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>&amp;Breite:</translation>
    </message>
    <message>
        <source>New width in pixels</source>
        <translation>Neue Breite in Pixeln</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>Pixel</translation>
    </message>
    <message>
        <source>New width in percent of the present one</source>
        <translation>Neue Breite in Prozent der jetzigen</translation>
    </message>
    <message>
        <source>Width in percent</source>
        <translation>Breite in Prozent</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>&amp;Höhe:</translation>
    </message>
    <message>
        <source>New height in pixels</source>
        <translation>Neue Höhe in Pixeln</translation>
    </message>
    <message>
        <source>New height in percent of the present one</source>
        <translation>Neue Höhe in Prozent der jetzigen</translation>
    </message>
    <message>
        <source>Height in percent</source>
        <translation>Höhe in Prozent</translation>
    </message>
    <message>
        <source>File size:</source>
        <translation>Dateigröße:</translation>
    </message>
    <message>
        <source>&amp;Scale image</source>
        <translation>Bild &amp;skalieren</translation>
    </message>
    <message>
        <source>On: the image is resampled to the new size. Off: it keeps its pixels at the place below and is cut or extended</source>
        <translation>An: Das Bild wird auf die neue Größe umgerechnet. Aus: Es behält seine Pixel an der unten gewählten Stelle und wird beschnitten oder erweitert</translation>
    </message>
    <message>
        <source>&amp;Keep aspect ratio</source>
        <translation>S&amp;eitenverhältnis beibehalten</translation>
    </message>
    <message>
        <source>Width and height follow each other</source>
        <translation>Breite und Höhe folgen einander</translation>
    </message>
    <message>
        <source>&amp;Place:</source>
        <translation>&amp;Lage:</translation>
    </message>
    <message>
        <source>Where the image sits in the new size, when it is not scaled</source>
        <translation>Wo das Bild in der neuen Größe sitzt, wenn es nicht skaliert wird</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>Oben links</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Oben rechts</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Unten links</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Unten rechts</translation>
    </message>
    <message>
        <source>S&amp;harp pixels</source>
        <translation>Scharfe &amp;Pixel</translation>
    </message>
    <message>
        <source>When it is scaled, pixels stay squares of one colour instead of being blended</source>
        <translation>Beim Skalieren bleiben Pixel einfarbige Quadrate, statt ineinander überzugehen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Resize</source>
        <translation>Größe ändern</translation>
    </message>
    <message>
        <source>Width and height must be from 1 to %1 pixels, and the image at most %2 megapixels.</source>
        <translation>Breite und Höhe müssen zwischen 1 und %1 Pixeln liegen, und das Bild darf höchstens %2 Megapixel haben.</translation>
    </message>
    <message>
        <source>The image could not be resized.</source>
        <translation>Die Bildgröße konnte nicht geändert werden.</translation>
    </message>
    <message>
        <source>There is not enough memory for an image of this size.</source>
        <translation>Für ein Bild dieser Größe ist nicht genug Speicher frei.</translation>
    </message>
</context>
<context>
    <name>SaveSelection</name>
    <message>
        <source>Save Selection</source>
        <translation>Auswahl sichern</translation>
    </message>
    <message>
        <source>&amp;Name of the selection:</source>
        <translation>&amp;Name der Auswahl:</translation>
    </message>
    <message>
        <source>The outline is kept under this name; a selection of the same name is replaced</source>
        <translation>Der Umriss wird unter diesem Namen behalten; eine Auswahl gleichen Namens wird ersetzt</translation>
    </message>
    <message>
        <source>Only the outline is kept. It can be loaded into any image.</source>
        <translation>Nur der Umriss wird behalten. Er kann in jedes Bild geladen werden.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Close without saving</source>
        <translation>Schließen, ohne zu sichern</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Sichern</translation>
    </message>
    <message>
        <source>Save the outline of the selection</source>
        <translation>Den Umriss der Auswahl sichern</translation>
    </message>
</context>
<context>
    <name>SaveSelectionDialog</name>
    <message>
        <source>Please enter a valid name for the selection</source>
        <translation>Bitte geben Sie einen gültigen Namen für die Auswahl ein</translation>
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
        <translation>Die Auswahl konnte nicht gesichert werden.</translation>
    </message>
</context>
<context>
    <name>ScriptWindow</name>
    <message>
        <source>Script</source>
        <translation>Skript</translation>
    </message>
    <message>
        <source>What was done since the image was opened</source>
        <translation>Was seit dem Öffnen des Bildes getan wurde</translation>
    </message>
    <message>
        <source>What is done to the image is written down here.</source>
        <translation>Was mit dem Bild getan wird, steht hier.</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>The whole script on the clipboard</source>
        <translation>Das ganze Skript in die Zwischenablage</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>&amp;Sichern …</translation>
    </message>
    <message>
        <source>The whole script as a file</source>
        <translation>Das ganze Skript als Datei</translation>
    </message>
    <message>
        <source>&amp;Play…</source>
        <translation>&amp;Abspielen …</translation>
    </message>
    <message>
        <source>Plays a script&apos;s file on the image</source>
        <translation>Spielt eine Skriptdatei auf dem Bild ab</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>S&amp;topp</translation>
    </message>
    <message>
        <source>Ends the script before its next command</source>
        <translation>Beendet das Skript vor seinem nächsten Befehl</translation>
    </message>
    <message>
        <source>Save Script</source>
        <translation>Skript sichern</translation>
    </message>
    <message>
        <source>Saved %1.</source>
        <translation>%1 gesichert.</translation>
    </message>
    <message>
        <source>The script could not be saved.</source>
        <translation>Das Skript konnte nicht gesichert werden.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Play a Script</source>
        <translation>Ein Skript abspielen</translation>
    </message>
    <message>
        <source>Playing %1…</source>
        <translation>%1 läuft …</translation>
    </message>
    <message>
        <source>The script is done.</source>
        <translation>Das Skript ist fertig.</translation>
    </message>
    <message>
        <source>Line %1 of the script: %2.</source>
        <translation>Zeile %1 des Skripts: %2.</translation>
    </message>
</context>
<context>
    <name>SelectionByNumber</name>
    <message>
        <source>Position and Size</source>
        <translation>Position und Größe</translation>
    </message>
    <message>
        <source>&amp;Left:</source>
        <translation>&amp;Links:</translation>
    </message>
    <message>
        <source>&amp;Top:</source>
        <translation>&amp;Oben:</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>&amp;Breite:</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>&amp;Höhe:</translation>
    </message>
    <message>
        <source>Any size</source>
        <translation>Beliebige Größe</translation>
    </message>
    <message>
        <source>This ratio of width to height</source>
        <translation>Dieses Verhältnis von Breite zu Höhe</translation>
    </message>
    <message>
        <source>This size</source>
        <translation>Diese Größe</translation>
    </message>
    <message>
        <source>What a rectangle or oval keeps to while it is dragged with the mouse</source>
        <translation>Woran sich ein Rechteck oder Oval hält, während es mit der Maus gezogen wird</translation>
    </message>
    <message>
        <source>New &amp;marquees:</source>
        <translation>&amp;Neue Auswahlrahmen:</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>SelectionChip</name>
    <message>
        <source>Floating</source>
        <translation>Schwebend</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Anchor ⏎</source>
        <translation>Verankern ⏎</translation>
    </message>
    <message>
        <source>Drop Esc</source>
        <translation>Aufheben Esc</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Füllen</translation>
    </message>
    <message>
        <source>Stroke</source>
        <translation>Kontur</translation>
    </message>
    <message>
        <source>Float</source>
        <translation>Schweben</translation>
    </message>
</context>
<context>
    <name>ShortcutsWindow</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Find a command or a key</source>
        <translation>Befehl oder Taste suchen</translation>
    </message>
    <message>
        <source>Commands and their keys</source>
        <translation>Befehle und ihre Tasten</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>New &amp;keys:</source>
        <translation>&amp;Neue Tasten:</translation>
    </message>
    <message>
        <source>New keys</source>
        <translation>Neue Tasten</translation>
    </message>
    <message>
        <source>&amp;Set</source>
        <translation>&amp;Setzen</translation>
    </message>
    <message>
        <source>The chosen command gets these keys; without keys it has none</source>
        <translation>Der gewählte Befehl bekommt diese Tasten; ohne Tasten hat er keine</translation>
    </message>
    <message>
        <source>As &amp;Given</source>
        <translation>&amp;Wie vorgegeben</translation>
    </message>
    <message>
        <source>The chosen command gets its own keys back</source>
        <translation>Der gewählte Befehl bekommt seine eigenen Tasten zurück</translation>
    </message>
    <message>
        <source>&amp;All as Given</source>
        <translation>&amp;Alle wie vorgegeben</translation>
    </message>
    <message>
        <source>Every command gets its own keys back</source>
        <translation>Jeder Befehl bekommt seine eigenen Tasten zurück</translation>
    </message>
    <message>
        <source>Tools, over the image</source>
        <translation>Werkzeuge, über dem Bild</translation>
    </message>
    <message>
        <source>%1 belongs to %2 now, which would lose it.</source>
        <translation>%1 gehört jetzt zu „%2“, das es verlieren würde.</translation>
    </message>
    <message>
        <source>%1 chooses the tool %2, which would not hear it any more.</source>
        <translation>%1 wählt das Werkzeug „%2“, das dann nicht mehr darauf hören würde.</translation>
    </message>
</context>
<context>
    <name>SizeSaveDialog</name>
    <message>
        <source>There is not enough memory.</source>
        <translation>Es ist nicht genug Speicher vorhanden.</translation>
    </message>
    <message>
        <source>Save for a Size</source>
        <translation>Auf eine Größe sichern</translation>
    </message>
    <message>
        <source>The image before and after</source>
        <translation>Das Bild vorher und nachher</translation>
    </message>
    <message>
        <source>Drag to see another place; the wheel zooms</source>
        <translation>Ziehen zeigt eine andere Stelle; das Rad zoomt</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Sichern …</translation>
    </message>
    <message>
        <source>Before: %1 × %2</source>
        <translation>Vorher: %1 × %2</translation>
    </message>
    <message>
        <source>WebP files are smaller and keep transparency; older programs cannot open them</source>
        <translation>WebP-Dateien sind kleiner und behalten Transparenz; ältere Programme können sie nicht öffnen</translation>
    </message>
    <message>
        <source>&amp;Kind of file:</source>
        <translation>Date&amp;iart:</translation>
    </message>
    <message>
        <source>&amp;At most</source>
        <translation>&amp;Höchstens</translation>
    </message>
    <message>
        <source> KB</source>
        <translation> KB</translation>
    </message>
    <message>
        <source>Size of the file</source>
        <translation>Größe der Datei</translation>
    </message>
    <message>
        <source>As small as &amp;looks the same</source>
        <translation>So klein, dass es &amp;gleich aussieht</translation>
    </message>
    <message>
        <source>&amp;Quality</source>
        <translation>&amp;Qualität</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualität</translation>
    </message>
    <message>
        <source>Searching…</source>
        <translation>Suche …</translation>
    </message>
    <message>
        <source>Trying quality %1…</source>
        <translation>Versuche Qualität %1 …</translation>
    </message>
    <message>
        <source>After: %1 · %2</source>
        <translation>Nachher: %1 · %2</translation>
    </message>
    <message>
        <source>Likeness %1, in the worst place %2</source>
        <translation>Ähnlichkeit %1, an der schlechtesten Stelle %2</translation>
    </message>
</context>
<context>
    <name>SmartFill</name>
    <message>
        <source>Smart Fill</source>
        <translation>Intelligent füllen</translation>
    </message>
    <message>
        <source>&amp;Radius:</source>
        <translation>&amp;Radius:</translation>
    </message>
    <message>
        <source>How far around the selection to look for texture, in percent of its width and height</source>
        <translation>Wie weit um die Auswahl herum nach Struktur gesucht wird, in Prozent ihrer Breite und Höhe</translation>
    </message>
    <message>
        <source>Radius in percent</source>
        <translation>Radius in Prozent</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>&amp;Faster, at half the resolution</source>
        <translation>&amp;Schneller, in halber Auflösung</translation>
    </message>
    <message>
        <source>Works on every second pixel; the selection&apos;s whole box becomes coarser</source>
        <translation>Arbeitet mit jedem zweiten Pixel; der ganze Rahmen der Auswahl wird gröber</translation>
    </message>
    <message>
        <source>Time:</source>
        <translation>Zeit:</translation>
    </message>
    <message>
        <source>0.0 sec</source>
        <translation>0,0 s</translation>
    </message>
    <message>
        <source>Elapsed time</source>
        <translation>Verstrichene Zeit</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>You can go on working during a run, but changes inside the work area will be overwritten when it ends.</source>
        <translation>Sie können währenddessen weiterarbeiten, aber Änderungen im Arbeitsbereich werden am Ende überschrieben.</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>S&amp;tarten</translation>
    </message>
    <message>
        <source>&amp;Keep lines</source>
        <translation>&amp;Linien fortführen</translation>
    </message>
    <message>
        <source>Edges that enter the selection on one side and leave it on another are drawn through it first</source>
        <translation>Kanten, die auf einer Seite in die Auswahl hinein- und auf einer anderen hinausführen, werden zuerst durchgezogen</translation>
    </message>
    <message>
        <source>&amp;Even out patches</source>
        <translation>Flec&amp;ken ausgleichen</translation>
    </message>
    <message>
        <source>Takes away steps in brightness and colour where patches from different places meet</source>
        <translation>Gleicht Stufen in Helligkeit und Farbe aus, wo Flecken von verschiedenen Stellen aneinanderstoßen</translation>
    </message>
    <message>
        <source>&amp;Take From…</source>
        <translation>Füllen a&amp;us …</translation>
    </message>
    <message>
        <source>Takes colours only from what is selected in the image now; pressed again, from anywhere</source>
        <translation>Nimmt Farben nur aus dem, was jetzt im Bild ausgewählt ist; noch einmal gedrückt von überall</translation>
    </message>
    <message>
        <source>anywhere</source>
        <translation>überall</translation>
    </message>
    <message>
        <source>Taken from</source>
        <translation>Gefüllt aus</translation>
    </message>
    <message>
        <source>&amp;Never From…</source>
        <translation>&amp;Nie aus …</translation>
    </message>
    <message>
        <source>Takes no colour from what is selected in the image now; pressed again, from anywhere</source>
        <translation>Nimmt keine Farbe aus dem, was jetzt im Bild ausgewählt ist; noch einmal gedrückt von überall</translation>
    </message>
    <message>
        <source>nowhere</source>
        <translation>nirgends</translation>
    </message>
    <message>
        <source>Never taken from</source>
        <translation>Nie gefüllt aus</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>&amp;Vorschau</translation>
    </message>
    <message>
        <source>Shows the fill over the image; Run then leaves it there</source>
        <translation>Zeigt die Füllung über dem Bild; Starten lässt sie dann dort</translation>
    </message>
    <message>
        <source>&amp;Another Result</source>
        <translation>Anderes &amp;Ergebnis</translation>
    </message>
    <message>
        <source>Shows what other random numbers make of it</source>
        <translation>Zeigt, was andere Zufallszahlen daraus machen</translation>
    </message>
    <message>
        <source>Re&amp;move Brush</source>
        <translation>Ent&amp;fernen-Pinsel</translation>
    </message>
    <message>
        <source>Paint over a thing in the image and let go: it is gone</source>
        <translation>Etwas im Bild übermalen und loslassen: Es ist weg</translation>
    </message>
    <message>
        <source>One of the last four results: shows it over the image; pressed again, the image without it</source>
        <translation>Eines der letzten vier Ergebnisse: zeigt es über dem Bild; noch einmal gedrückt das Bild ohne es</translation>
    </message>
    <message>
        <source>Result 1</source>
        <translation>Ergebnis 1</translation>
    </message>
    <message>
        <source>Result 2</source>
        <translation>Ergebnis 2</translation>
    </message>
    <message>
        <source>Result 3</source>
        <translation>Ergebnis 3</translation>
    </message>
    <message>
        <source>Result 4</source>
        <translation>Ergebnis 4</translation>
    </message>
</context>
<context>
    <name>SmartFillStudio</name>
    <message>
        <source>anywhere</source>
        <translation>überall</translation>
    </message>
    <message>
        <source>nowhere</source>
        <translation>nirgends</translation>
    </message>
    <message>
        <source>select the place in the image first</source>
        <translation>zuerst die Stelle im Bild auswählen</translation>
    </message>
    <message>
        <source>the selection of %1 × %2</source>
        <translation>die Auswahl von %1 × %2</translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message>
        <source>Box of the selection</source>
        <translation>Rahmen der Auswahl</translation>
    </message>
    <message>
        <source>The selection: its corner and its size. Drag this to another program to hand it over as a PNG image.</source>
        <translation>Die Auswahl: ihre Ecke und ihre Größe. Ziehen Sie dies in ein anderes Programm, um sie als PNG-Bild zu übergeben.</translation>
    </message>
    <message>
        <source>Colour under the pointer</source>
        <translation>Farbe unter dem Zeiger</translation>
    </message>
    <message>
        <source>Position and colour under the pointer</source>
        <translation>Position und Farbe unter dem Zeiger</translation>
    </message>
    <message>
        <source>Size of the image and zoom</source>
        <translation>Größe des Bildes und Zoom</translation>
    </message>
    <message>
        <source>Open an image, make a new one, or drop a file on the window</source>
        <translation>Öffnen Sie ein Bild, legen Sie ein neues an oder ziehen Sie eine Datei auf das Fenster</translation>
    </message>
    <message>
        <source>Click the next corner · Return closes the shape, Escape gives it up</source>
        <translation>Nächste Ecke anklicken · Eingabetaste schließt die Form, Escape gibt sie auf</translation>
    </message>
    <message>
        <source>Rest: what a click takes · drag right: more tolerance, left: less · %1 adds, %2 subtracts</source>
        <translation>Ruhen: was ein Klick nimmt · nach rechts ziehen: mehr Toleranz, links: weniger · %1 fügt hinzu, %2 zieht ab</translation>
    </message>
    <message>
        <source>Drag a corner&apos;s handle: it goes alone, %1: along a side, %2: all scale · Return anchors, Escape drops</source>
        <translation>Griff einer Ecke ziehen: nur sie geht mit, %1: entlang einer Seite, %2: alles skalieren · Eingabetaste verankert, Escape hebt auf</translation>
    </message>
    <message>
        <source>Drag to move · the handles scale and turn, %1: steps of 15°, %2: one corner alone · Return anchors, Escape drops</source>
        <translation>Ziehen verschiebt · die Griffe skalieren und drehen, %1: Schritte von 15°, %2: eine Ecke allein · Eingabetaste verankert, Escape hebt auf</translation>
    </message>
    <message>
        <source>in perspective</source>
        <translation>in Perspektive</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Beschäftigt</translation>
    </message>
</context>
<context>
    <name>Steps</name>
    <message>
        <source>Anchor Selection</source>
        <translation>Auswahl verankern</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Füllen</translation>
    </message>
    <message>
        <source>Stroke</source>
        <translation>Kontur</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Zuschneiden</translation>
    </message>
    <message>
        <source>Rotate Clockwise</source>
        <translation>Im Uhrzeigersinn drehen</translation>
    </message>
    <message>
        <source>Rotate Counter-Clockwise</source>
        <translation>Gegen den Uhrzeigersinn drehen</translation>
    </message>
    <message>
        <source>Flip Horizontally</source>
        <translation>Horizontal spiegeln</translation>
    </message>
    <message>
        <source>Flip Vertically</source>
        <translation>Vertikal spiegeln</translation>
    </message>
    <message>
        <source>Resize</source>
        <translation>Größe ändern</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Verschieben</translation>
    </message>
    <message>
        <source>Brush</source>
        <translation>Pinsel</translation>
    </message>
    <message>
        <source>Pencil</source>
        <translation>Stift</translation>
    </message>
    <message>
        <source>Eraser</source>
        <translation>Radierer</translation>
    </message>
    <message>
        <source>Paint Bucket</source>
        <translation>Fülleimer</translation>
    </message>
    <message>
        <source>Clone Stamp</source>
        <translation>Kopierstempel</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Smart Fill</source>
        <translation>Intelligent füllen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
</context>
<context>
    <name>TextEditor</name>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>&amp;Text:</source>
        <translation>&amp;Text:</translation>
    </message>
    <message>
        <source>What is typed here stands on the image at once</source>
        <translation>Was hier getippt wird, steht sofort auf dem Bild</translation>
    </message>
    <message>
        <source>Font family</source>
        <translation>Schriftfamilie</translation>
    </message>
    <message>
        <source>Smaller; with Shift by ten</source>
        <translation>Kleiner; mit Umschalt um zehn</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>Kleiner</translation>
    </message>
    <message>
        <source>Size in pixels</source>
        <translation>Größe in Pixeln</translation>
    </message>
    <message>
        <source>Larger; with Shift by ten</source>
        <translation>Größer; mit Umschalt um zehn</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Größer</translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation>&amp;Fett</translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation>&amp;Kursiv</translation>
    </message>
    <message>
        <source>Colour of the preview below; the selection takes none</source>
        <translation>Farbe der Vorschau unten; die Auswahl übernimmt keine</translation>
    </message>
    <message>
        <source>Colour of the preview</source>
        <translation>Farbe der Vorschau</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>&amp;Left</source>
        <translation>&amp;Links</translation>
    </message>
    <message>
        <source>&amp;Center</source>
        <translation>&amp;Zentriert</translation>
    </message>
    <message>
        <source>&amp;Right</source>
        <translation>&amp;Rechts</translation>
    </message>
    <message>
        <source>&amp;Justified</source>
        <translation>&amp;Blocksatz</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Keeps the text as the selection</source>
        <translation>Behält den Text als Auswahl</translation>
    </message>
    <message>
        <source>What is typed here stands on the image at once; Ctrl+Return is OK</source>
        <translation>Was hier getippt wird, steht sofort auf dem Bild; Strg+Eingabe ist OK</translation>
    </message>
    <message>
        <source>&amp;Several lines</source>
        <translation>&amp;Mehrere Zeilen</translation>
    </message>
    <message>
        <source>Return begins another line, which stands below</source>
        <translation>Die Eingabetaste beginnt eine neue Zeile darunter</translation>
    </message>
    <message>
        <source>Alignment of the preview, and of several lines</source>
        <translation>Ausrichtung der Vorschau und mehrerer Zeilen</translation>
    </message>
</context>
<context>
    <name>Tools</name>
    <message>
        <source>Rectangle Selection</source>
        <translation>Rechteckige Auswahl</translation>
    </message>
    <message>
        <source>Selects a rectangle; square and oval by switch or key</source>
        <translation>Wählt ein Rechteck aus; Quadrat und Oval mit Schalter oder Taste</translation>
    </message>
    <message>
        <source>Drag to select; inside the selection it moves · {Shift} adds, {Option} subtracts · {Command}: square, {Control}: oval</source>
        <translation>Ziehen wählt aus; in der Auswahl verschiebt es · {Shift} fügt hinzu, {Option} zieht ab · {Command}: Quadrat, {Control}: Oval</translation>
    </message>
    <message>
        <source>Lasso</source>
        <translation>Lasso</translation>
    </message>
    <message>
        <source>Selects by a drawn outline; polygon by switch or key, ended with Return</source>
        <translation>Wählt nach einem gezeichneten Umriss aus; Vieleck mit Schalter oder Taste, mit der Eingabetaste beendet</translation>
    </message>
    <message>
        <source>Draw around what you want · {Shift} adds, {Option} subtracts · {Control}: corner by corner, Return ends</source>
        <translation>Umfahren Sie, was Sie möchten · {Shift} fügt hinzu, {Option} zieht ab · {Control}: Ecke für Ecke, Eingabetaste beendet</translation>
    </message>
    <message>
        <source>Magic Wand</source>
        <translation>Zauberstab</translation>
    </message>
    <message>
        <source>Selects the area of similar colour</source>
        <translation>Wählt den Bereich ähnlicher Farbe aus</translation>
    </message>
    <message>
        <source>Click a colour · {Shift} adds, {Option} subtracts · Tolerance says how far colours may differ</source>
        <translation>Klicken Sie eine Farbe an · {Shift} fügt hinzu, {Option} zieht ab · Toleranz sagt, wie weit Farben abweichen dürfen</translation>
    </message>
    <message>
        <source>Brush</source>
        <translation>Pinsel</translation>
    </message>
    <message>
        <source>Paints with a brush tip</source>
        <translation>Malt mit einer Pinselspitze</translation>
    </message>
    <message>
        <source>Pencil</source>
        <translation>Stift</translation>
    </message>
    <message>
        <source>Draws a line; straight with Shift</source>
        <translation>Zeichnet eine Linie; mit Umschalt gerade</translation>
    </message>
    <message>
        <source>Drag to draw · {Shift}: one straight line · Escape takes it back</source>
        <translation>Ziehen zeichnet · {Shift}: eine gerade Linie · Escape nimmt sie zurück</translation>
    </message>
    <message>
        <source>Eraser</source>
        <translation>Radierer</translation>
    </message>
    <message>
        <source>Makes pixels transparent; straight with Shift</source>
        <translation>Macht Pixel transparent; mit Umschalt gerade</translation>
    </message>
    <message>
        <source>Drag to make transparent · {Shift}: one straight line · Escape takes it back</source>
        <translation>Ziehen macht transparent · {Shift}: eine gerade Linie · Escape nimmt sie zurück</translation>
    </message>
    <message>
        <source>Paint Bucket</source>
        <translation>Fülleimer</translation>
    </message>
    <message>
        <source>Fills the area of similar colour</source>
        <translation>Füllt den Bereich ähnlicher Farbe</translation>
    </message>
    <message>
        <source>Click to fill the area of one colour · Tolerance says how far colours may differ</source>
        <translation>Klicken füllt den Bereich einer Farbe · Toleranz sagt, wie weit Farben abweichen dürfen</translation>
    </message>
    <message>
        <source>Eyedropper</source>
        <translation>Pipette</translation>
    </message>
    <message>
        <source>Picks the colour under the pointer</source>
        <translation>Nimmt die Farbe unter dem Zeiger auf</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Places text as a selection</source>
        <translation>Setzt Text als Auswahl ein</translation>
    </message>
    <message>
        <source>Click where the text begins · inside the text, dragging moves it</source>
        <translation>Klicken Sie, wo der Text beginnt · im Text verschiebt ihn Ziehen</translation>
    </message>
    <message>
        <source>Clone Stamp</source>
        <translation>Kopierstempel</translation>
    </message>
    <message>
        <source>Paints with pixels from elsewhere; Option-click sets the source</source>
        <translation>Malt mit Pixeln von anderswo; Klick mit Option setzt die Quelle</translation>
    </message>
    <message>
        <source>{Option}+click says where pixels come from, then paint</source>
        <translation>{Option}+Klick sagt, woher die Pixel kommen, dann malen</translation>
    </message>
    <message>
        <source>Remove Brush</source>
        <translation>Entfernen-Pinsel</translation>
    </message>
    <message>
        <source>Fills what it is drawn over from its surroundings</source>
        <translation>Füllt, worüber gemalt wird, aus der Umgebung</translation>
    </message>
    <message>
        <source>Paint over what should vanish and let go · any tool ends this · Escape takes the stroke back</source>
        <translation>Übermalen, was verschwinden soll, und loslassen · jedes Werkzeug beendet dies · Escape nimmt den Strich zurück</translation>
    </message>
    <message>
        <source>Drag to paint · {smallerBrush:} and {largerBrush:} change the size, {swapColours:} the colour · Escape takes the stroke back</source>
        <translation>Ziehen malt · {smallerBrush:} und {largerBrush:} ändern die Größe, {swapColours:} die Farbe · Escape nimmt den Strich zurück</translation>
    </message>
    <message>
        <source>Click or drag to pick the paint colour · {swapColours:} goes back to the one before</source>
        <translation>Klicken oder ziehen, um die Malfarbe aufzunehmen · {swapColours:} geht zur vorigen zurück</translation>
    </message>
</context>
<context>
    <name>Transform</name>
    <message>
        <source>Transform Selection</source>
        <translation>Auswahl transformieren</translation>
    </message>
    <message>
        <source>&amp;Scale:</source>
        <translation>&amp;Skalierung:</translation>
    </message>
    <message>
        <source>Size of the selected pixels in percent; 100 is their own size</source>
        <translation>Größe der ausgewählten Pixel in Prozent; 100 ist ihre eigene Größe</translation>
    </message>
    <message>
        <source>Scale slider</source>
        <translation>Schieber für die Skalierung</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Skalierung</translation>
    </message>
    <message>
        <source>R&amp;otate:</source>
        <translation>&amp;Drehung:</translation>
    </message>
    <message>
        <source>Turns the selected pixels about their centre, in degrees</source>
        <translation>Dreht die ausgewählten Pixel um ihren Mittelpunkt, in Grad</translation>
    </message>
    <message>
        <source>Rotate slider</source>
        <translation>Schieber für die Drehung</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Drehung</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Zurücksetzen</translation>
    </message>
    <message>
        <source>Back to 100 % and 0 degrees</source>
        <translation>Zurück auf 100 % und 0 Grad</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Closes the dialog; the selection keeps floating as shown</source>
        <translation>Schließt den Dialog; die Auswahl schwebt weiter wie gezeigt</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
</context>
<context>
    <name>Wand</name>
    <message>
        <source>Outside: red differs by %1, the tolerance allows %2</source>
        <translation>Außerhalb: Rot weicht um %1 ab, die Toleranz erlaubt %2</translation>
    </message>
    <message>
        <source>Outside: green differs by %1, the tolerance allows %2</source>
        <translation>Außerhalb: Grün weicht um %1 ab, die Toleranz erlaubt %2</translation>
    </message>
    <message>
        <source>Outside: blue differs by %1, the tolerance allows %2</source>
        <translation>Außerhalb: Blau weicht um %1 ab, die Toleranz erlaubt %2</translation>
    </message>
    <message>
        <source>Outside: opacity differs by %1, the tolerance allows %2</source>
        <translation>Außerhalb: die Deckkraft weicht um %1 ab, die Toleranz erlaubt %2</translation>
    </message>
    <message>
        <source>Inside</source>
        <translation>Innerhalb</translation>
    </message>
    <message>
        <source>Outside: within the tolerance, but not connected</source>
        <translation>Außerhalb: innerhalb der Toleranz, aber nicht verbunden</translation>
    </message>
    <message>
        <source>Outside: a tolerance of 0 takes nothing</source>
        <translation>Außerhalb: eine Toleranz von 0 nimmt nichts</translation>
    </message>
</context>
<context>
    <name>Watermark</name>
    <message>
        <source>The watermark could not be drawn.</source>
        <translation>Das Wasserzeichen konnte nicht gezeichnet werden.</translation>
    </message>
</context>
<context>
    <name>WatermarkText</name>
    <message>
        <source>Text as Watermark</source>
        <translation>Text als Wasserzeichen</translation>
    </message>
    <message>
        <source>&amp;Text:</source>
        <translation>&amp;Text:</translation>
    </message>
    <message>
        <source>© and your name</source>
        <translation>© und Ihr Name</translation>
    </message>
    <message>
        <source>&amp;Font:</source>
        <translation>&amp;Schrift:</translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation>&amp;Fett</translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation>&amp;Kursiv</translation>
    </message>
    <message>
        <source>&amp;Colour:</source>
        <translation>F&amp;arbe:</translation>
    </message>
    <message>
        <source>Colour of the letters</source>
        <translation>Farbe der Buchstaben</translation>
    </message>
    <message>
        <source>With an &amp;edge that shows on light and dark</source>
        <translation>Mit einer K&amp;ontur, die auf Hell und Dunkel zu sehen ist</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Anlegen</translation>
    </message>
</context>
<context>
    <name>ZPAboutBox</name>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Simple, yet powerful image editing: paint, select, retouch, adjust and convert images, one at a time or by the folder.</source>
        <translation>Einfache und doch mächtige Bildbearbeitung: Bilder malen, auswählen, retuschieren, anpassen und umwandeln, einzeln oder ordnerweise.</translation>
    </message>
    <message>
        <source>Free software under the GNU General Public License, version 3 or later. It comes with no warranty, to the extent that the law permits.</source>
        <translation>Freie Software unter der GNU General Public License, Version 3 oder später. Sie kommt ohne jede Gewährleistung, soweit das Gesetz es zulässt.</translation>
    </message>
</context>
<context>
    <name>ZPAppController</name>
    <message>
        <source>An image that was never saved</source>
        <translation>Ein nie gesichertes Bild</translation>
    </message>
    <message>
        <source>%1, %2 × %3 pixels, as it was after the last change.</source>
        <translation>%1, %2 × %3 Pixel, wie es nach der letzten Änderung war.</translation>
    </message>
    <message>
        <source>Zelpane ended unexpectedly. Do you want to recover your last image?</source>
        <translation>Zelpane wurde unerwartet beendet. Möchten Sie Ihr letztes Bild wiederherstellen?</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Später</translation>
    </message>
    <message>
        <source>Changed and never saved: %1.</source>
        <translation>Geändert und nie gesichert: %1.</translation>
    </message>
    <message>
        <source>This is a (Snow) Leopard-only product!</source>
        <translation>Dieses Produkt ist nur für (Snow) Leopard!</translation>
    </message>
    <message>
        <source>Mac OS X 10.5 or later is required.</source>
        <translation>Mac OS X 10.5 oder neuer wird benötigt.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>What would you like to do? Create a new image or open an existing image.</source>
        <translation>Was möchten Sie tun? Legen Sie ein neues Bild an oder öffnen Sie ein vorhandenes.</translation>
    </message>
    <message>
        <source>New…</source>
        <translation>Neu …</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Öffnen …</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Do you really want to quit?</source>
        <translation>Möchten Sie wirklich beenden?</translation>
    </message>
    <message>
        <source>Make sure that the image is saved to disk.</source>
        <translation>Vergewissern Sie sich, dass das Bild gesichert ist.</translation>
    </message>
    <message>
        <source>No recent images</source>
        <translation>Keine zuletzt geöffneten Bilder</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Liste leeren</translation>
    </message>
    <message>
        <source>Read the User&apos;s Guide</source>
        <translation>Benutzerhandbuch lesen</translation>
    </message>
    <message>
        <source>You can find the User&apos;s Guide in the same folder as this application.</source>
        <translation>Sie finden das Benutzerhandbuch im selben Ordner wie dieses Programm.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Do you really want to use the image processor?</source>
        <translation>Möchten Sie wirklich die Stapelverarbeitung benutzen?</translation>
    </message>
    <message>
        <source>Make sure that the current image is saved to disk.</source>
        <translation>Vergewissern Sie sich, dass das jetzige Bild gesichert ist.</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>You have enabled 2x retina display mode.</source>
        <translation>Sie haben die 2x-Retina-Anzeige eingeschaltet.</translation>
    </message>
    <message>
        <source>You have disabled 2x retina display mode.</source>
        <translation>Sie haben die 2x-Retina-Anzeige ausgeschaltet.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>verb and name of a step: Undo Fill</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Anchor Selection</source>
        <translation>Auswahl verankern</translation>
    </message>
    <message>
        <source>Float Selection</source>
        <translation>Auswahl schweben lassen</translation>
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
        <source>Needs an image: open one or make a new one.</source>
        <translation>Braucht ein Bild: Öffnen Sie eins oder legen Sie ein neues an.</translation>
    </message>
    <message>
        <source>Needs a selection.</source>
        <translation>Braucht eine Auswahl.</translation>
    </message>
    <message>
        <source>Needs an image on the clipboard.</source>
        <translation>Braucht ein Bild in der Zwischenablage.</translation>
    </message>
    <message>
        <source>Needs an image that has a file: save it first.</source>
        <translation>Braucht ein Bild, das eine Datei hat: Sichern Sie es zuerst.</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>Es gibt nichts rückgängig zu machen.</translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>Es gibt nichts zu wiederholen.</translation>
    </message>
    <message>
        <source>No selection was dropped yet.</source>
        <translation>Es wurde noch keine Auswahl aufgehoben.</translation>
    </message>
    <message>
        <source>No image was open before this one.</source>
        <translation>Vor diesem war kein Bild geöffnet.</translation>
    </message>
    <message>
        <source>Needs the main window.</source>
        <translation>Braucht das Hauptfenster.</translation>
    </message>
    <message>
        <source>Done: %1</source>
        <translation>Erledigt: %1</translation>
    </message>
    <message>
        <source>Copied what was done as a script.</source>
        <translation>Was getan wurde, ist als Skript kopiert.</translation>
    </message>
</context>
<context>
    <name>ZPCanvas</name>
    <message>
        <source>Canvas</source>
        <translation>Leinwand</translation>
    </message>
</context>
<context>
    <name>ZPFileManager</name>
    <message numerus="yes">
        <source>%n image(s)</source>
        <translation>
            <numerusform>%n Bild</numerusform>
            <numerusform>%n Bilder</numerusform>
        </translation>
    </message>
    <message>
        <source>No image selected</source>
        <translation>Kein Bild gewählt</translation>
    </message>
    <message>
        <source>Drop images here</source>
        <translation>Bilder hier ablegen</translation>
    </message>
    <message>
        <source>The file that this link leads to is gone.</source>
        <translation>Die Datei, zu der diese Verknüpfung führt, gibt es nicht mehr.</translation>
    </message>
    <message>
        <source>Add to Image Library</source>
        <translation>Zur Bildersammlung hinzufügen</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Do you wish to delete the selected file?</source>
        <translation>Möchten Sie die gewählte Datei löschen?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Select a file to rename.</source>
        <translation>Wählen Sie eine Datei zum Umbenennen.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Enter a valid new name.</source>
        <translation>Geben Sie einen gültigen neuen Namen ein.</translation>
    </message>
    <message>
        <source>looks the same</source>
        <translation>sieht gleich aus</translation>
    </message>
    <message>
        <source>Found again: “%1” in %2</source>
        <translation>Wiedergefunden: „%1“ in %2</translation>
    </message>
    <message>
        <source>An image of the same name, maybe another one: “%1” in %2</source>
        <translation>Ein Bild desselben Namens, vielleicht ein anderes: „%1“ in %2</translation>
    </message>
    <message>
        <source>Not found again in its old folder, below it or beside it.</source>
        <translation>Nicht wiedergefunden: weder im alten Ordner noch darunter oder daneben.</translation>
    </message>
    <message>
        <source>Looking for the image of this link…</source>
        <translation>Das Bild dieser Verknüpfung wird gesucht …</translation>
    </message>
    <message numerus="yes">
        <source>Found again: the images of %n broken link(s).</source>
        <translation>
            <numerusform>Wiedergefunden: das Bild von %n defekten Verknüpfung.</numerusform>
            <numerusform>Wiedergefunden: die Bilder von %n defekten Verknüpfungen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Do you wish to relink %n image(s)?</source>
        <translation>
            <numerusform>Möchten Sie %n Bild neu verknüpfen?</numerusform>
            <numerusform>Möchten Sie %n Bilder neu verknüpfen?</numerusform>
        </translation>
    </message>
    <message>
        <source>Relink</source>
        <translation>Neu verknüpfen</translation>
    </message>
    <message>
        <source>A link could not be changed.</source>
        <translation>Eine Verknüpfung konnte nicht geändert werden.</translation>
    </message>
    <message>
        <source>Comparing %1 of %2</source>
        <translation>Vergleiche %1 von %2</translation>
    </message>
    <message>
        <source>No duplicates</source>
        <translation>Nichts ist doppelt</translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) more than once</source>
        <translation>
            <numerusform>%n Bild mehrfach</numerusform>
            <numerusform>%n Bilder mehrfach</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ZPImageProcessor</name>
    <message>
        <source>Choose a source folder.</source>
        <translation>Wählen Sie einen Quellordner.</translation>
    </message>
    <message>
        <source>Choose a destination folder.</source>
        <translation>Wählen Sie einen Zielordner.</translation>
    </message>
    <message>
        <source>Source and destination folder cannot be the same.</source>
        <translation>Quell- und Zielordner können nicht derselbe sein.</translation>
    </message>
    <message>
        <source>Error: Source or destination folder does not exist.</source>
        <translation>Fehler: Quell- oder Zielordner existiert nicht.</translation>
    </message>
    <message>
        <source>Ending after this image…</source>
        <translation>Endet nach diesem Bild …</translation>
    </message>
    <message>
        <source>Choose source folder</source>
        <translation>Quellordner wählen</translation>
    </message>
    <message>
        <source>Choose destination folder</source>
        <translation>Zielordner wählen</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Wählen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The source folder cannot be listed.</source>
        <translation>Der Inhalt des Quellordners kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>%1 of %2: %3</source>
        <translation>%1 von %2: %3</translation>
    </message>
    <message>
        <source>There is no canvas to work on.</source>
        <translation>Es gibt keine Leinwand, auf der gearbeitet werden kann.</translation>
    </message>
    <message>
        <source>One file could not be processed.</source>
        <translation>Eine Datei konnte nicht verarbeitet werden.</translation>
    </message>
    <message numerus="yes">
        <source>%n files could not be processed.</source>
        <translation>
            <numerusform>%n Datei konnte nicht verarbeitet werden.</numerusform>
            <numerusform>%n Dateien konnten nicht verarbeitet werden.</numerusform>
        </translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keins</translation>
    </message>
    <message>
        <source>The watermark could not be made.</source>
        <translation>Das Wasserzeichen konnte nicht angelegt werden.</translation>
    </message>
    <message>
        <source>The letters of this text have no outlines in this font.</source>
        <translation>Die Buchstaben dieses Textes haben in dieser Schrift keine Umrisse.</translation>
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
        <translation>Strg</translation>
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
        <translation>Für diese Füllung ist nicht genug Speicher frei.</translation>
    </message>
    <message>
        <source>Select a smaller area or lower the radius.</source>
        <translation>Wählen Sie einen kleineren Bereich aus oder verringern Sie den Radius.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>There is nothing to fill from.</source>
        <translation>Es gibt nichts, woraus gefüllt werden kann.</translation>
    </message>
    <message>
        <source>Select a smaller area or raise the radius.</source>
        <translation>Wählen Sie einen kleineren Bereich aus oder vergrößern Sie den Radius.</translation>
    </message>
    <message>
        <source>The image changed meanwhile; the fill was dropped.</source>
        <translation>Das Bild hat sich inzwischen geändert; die Füllung wurde verworfen.</translation>
    </message>
</context>
<context>
    <name>ZPTextEditor</name>
    <message>
        <source>The letters of this family are pictures without outlines. Please choose another family.</source>
        <translation>Die Buchstaben dieser Familie sind Bilder ohne Umrisse. Bitte wählen Sie eine andere.</translation>
    </message>
    <message>
        <source>Some characters are pictures without an outline and are left out.</source>
        <translation>Einige Zeichen sind Bilder ohne Umriss und werden weggelassen.</translation>
    </message>
</context>
<context>
    <name>zp::Document</name>
    <message>
        <source>There is not enough memory.</source>
        <translation>Es ist nicht genug Speicher frei.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>It was stopped.</source>
        <translation>Der Vorgang wurde abgebrochen.</translation>
    </message>
</context>
<context>
    <name>zp::WandExplainer</name>
    <message>
        <source>A click takes %1 px</source>
        <translation>Ein Klick nimmt %1 px</translation>
    </message>
    <message>
        <source>A click takes at least %1 px</source>
        <translation>Ein Klick nimmt mindestens %1 px</translation>
    </message>
</context>
</TS>
