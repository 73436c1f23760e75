<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>AboutBox</name>
    <message>
        <source>About Zelpane</source>
        <translation>À propos de Zelpane</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Project &amp;Page</source>
        <translation>&amp;Page du projet</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>Accessible</name>
    <message>
        <source>No image</source>
        <translation>Aucune image</translation>
    </message>
    <message>
        <source>%1 by %2 pixels</source>
        <translation>%1 sur %2 pixels</translation>
    </message>
    <message>
        <source>zoom %1</source>
        <translation>zoom %1</translation>
    </message>
    <message>
        <source>selected: %1</source>
        <translation>sélection&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>Adjust</name>
    <message>
        <source>Adjust Selection</source>
        <translation>Ajuster la sélection</translation>
    </message>
    <message>
        <source>&amp;Hue:</source>
        <translation>&amp;Teinte&#xa0;:</translation>
    </message>
    <message>
        <source>Turns all colours about the grey axis, in hundredths of a radian; 0 leaves them as they are</source>
        <translation>Fait tourner toutes les couleurs autour de l’axe des gris, en centièmes de radian&#x202f;; 0 les laisse telles quelles</translation>
    </message>
    <message>
        <source>Hue slider</source>
        <translation>Curseur de teinte</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Teinte</translation>
    </message>
    <message>
        <source>Sa&amp;turation:</source>
        <translation>&amp;Saturation&#xa0;:</translation>
    </message>
    <message>
        <source>Strength of the colours: 0 is grey, 100 leaves them as they are</source>
        <translation>Force des couleurs&#xa0;: 0 donne du gris, 100 les laisse telles quelles</translation>
    </message>
    <message>
        <source>Saturation slider</source>
        <translation>Curseur de saturation</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturation</translation>
    </message>
    <message>
        <source>&amp;Brightness:</source>
        <translation>&amp;Luminosité&#xa0;:</translation>
    </message>
    <message>
        <source>Added to every colour; 0 leaves them as they are</source>
        <translation>S’ajoute à chaque couleur&#x202f;; 0 les laisse telles quelles</translation>
    </message>
    <message>
        <source>Brightness slider</source>
        <translation>Curseur de luminosité</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Luminosité</translation>
    </message>
    <message>
        <source>&amp;Contrast:</source>
        <translation>&amp;Contraste&#xa0;:</translation>
    </message>
    <message>
        <source>Distance from mid grey; 100 leaves it as it is</source>
        <translation>Distance au gris moyen&#x202f;; 100 la laisse telle quelle</translation>
    </message>
    <message>
        <source>Contrast slider</source>
        <translation>Curseur de contraste</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>&amp;Sharpness:</source>
        <translation>&amp;Netteté&#xa0;:</translation>
    </message>
    <message>
        <source>Above 0 sharpens, below 0 blurs</source>
        <translation>Au-dessus de 0 rend plus net, au-dessous plus flou</translation>
    </message>
    <message>
        <source>Sharpness slider</source>
        <translation>Curseur de netteté</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>Netteté</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Réinitialiser</translation>
    </message>
    <message>
        <source>All five back to what leaves the image as it is</source>
        <translation>Remet les cinq réglages à ce qui laisse l’image telle quelle</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Closes the dialog; the adjustment shown stays and can be undone once anchored</source>
        <translation>Ferme le dialogue&#x202f;; l’ajustement affiché reste et peut être annulé une fois ancré</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Closes the dialog; the adjustment shown stays</source>
        <translation>Ferme le dialogue&#x202f;; l’ajustement affiché reste</translation>
    </message>
    <message>
        <source>The selection could not be adjusted.</source>
        <translation>La sélection n’a pas pu être ajustée.</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>La mémoire est insuffisante.</translation>
    </message>
    <message>
        <source>C&amp;ompare</source>
        <translation>C&amp;omparer</translation>
    </message>
    <message>
        <source>While it is pressed: the image without the adjustment</source>
        <translation>Tant qu’il est enfoncé : l’image sans le réglage</translation>
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
        <translation>Sélection %1.png</translation>
    </message>
    <message>
        <source>Nothing could be pasted.</source>
        <translation>Rien n’a pu être collé.</translation>
    </message>
    <message>
        <source>The clipboard&apos;s image cannot be read.</source>
        <translation>L’image du presse-papiers est illisible.</translation>
    </message>
    <message>
        <source>The clipboard&apos;s image is larger than %1 MB.</source>
        <translation>L’image du presse-papiers dépasse %1 Mo.</translation>
    </message>
</context>
<context>
    <name>Codecs</name>
    <message>
        <source>The image has no pixels.</source>
        <translation>L’image n’a pas de pixels.</translation>
    </message>
    <message>
        <source>The image is too large: %1 x %2 pixels.</source>
        <translation>L’image est trop grande&#xa0;: %1 × %2 pixels.</translation>
    </message>
    <message>
        <source>The file is far too small for the %1 x %2 pixels it claims to hold.</source>
        <translation>Le fichier est bien trop petit pour les %1 × %2 pixels qu’il prétend contenir.</translation>
    </message>
    <message>
        <source>The image of %1 x %2 pixels does not fit this machine&apos;s memory.</source>
        <translation>L’image de %1 × %2 pixels ne tient pas dans la mémoire de cette machine.</translation>
    </message>
    <message>
        <source>its data is damaged</source>
        <translation>ses données sont endommagées</translation>
    </message>
    <message>
        <source>It is not an image of a kind that can be opened.</source>
        <translation>Ce n’est pas une image d’un type qui peut être ouvert.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Le fichier est vide.</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>Le fichier n’existe pas.</translation>
    </message>
    <message>
        <source>There is no permission to read the file.</source>
        <translation>Vous n’avez pas le droit de lire le fichier.</translation>
    </message>
    <message>
        <source>The file is a link that leads nowhere.</source>
        <translation>Le fichier est un lien qui ne mène nulle part.</translation>
    </message>
    <message>
        <source>The file&apos;s name is too long.</source>
        <translation>Le nom du fichier est trop long.</translation>
    </message>
    <message>
        <source>The file cannot be read: %1.</source>
        <translation>Le fichier est illisible&#xa0;: %1.</translation>
    </message>
    <message>
        <source>There is not enough memory to read the file.</source>
        <translation>La mémoire est insuffisante pour lire le fichier.</translation>
    </message>
    <message>
        <source>There is not enough memory for this image.</source>
        <translation>La mémoire est insuffisante pour cette image.</translation>
    </message>
    <message>
        <source>The image cannot be read: %1.</source>
        <translation>L’image est illisible&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The image cannot be read.</source>
        <translation>L’image est illisible.</translation>
    </message>
    <message>
        <source>It is a folder, not an image.</source>
        <translation>C’est un dossier, pas une image.</translation>
    </message>
    <message>
        <source>It is not an ordinary file.</source>
        <translation>Ce n’est pas un fichier ordinaire.</translation>
    </message>
    <message>
        <source>The file is larger than 4 GiB.</source>
        <translation>Le fichier dépasse 4 Gio.</translation>
    </message>
    <message>
        <source>The colour profile is incomplete and was left out.</source>
        <translation>Le profil de couleur est incomplet et a été laissé de côté.</translation>
    </message>
    <message>
        <source>There is not enough memory for this JPEG image.</source>
        <translation>La mémoire est insuffisante pour cette image JPEG.</translation>
    </message>
    <message>
        <source>The JPEG data cannot be read: %1.</source>
        <translation>Les données JPEG sont illisibles&#xa0;: %1.</translation>
    </message>
    <message>
        <source>JPEG images with two components cannot be read.</source>
        <translation>Les images JPEG à deux composantes ne peuvent pas être lues.</translation>
    </message>
    <message>
        <source>The JPEG data is damaged; what could be read is shown.</source>
        <translation>Les données JPEG sont endommagées&#x202f;; ce qui a pu être lu est affiché.</translation>
    </message>
    <message>
        <source>The %1 image is larger than the limits of this machine allow.</source>
        <translation>L’image %1 dépasse les limites de cette machine.</translation>
    </message>
    <message>
        <source>The %1 data cannot be read: %2.</source>
        <translation>Les données %1 sont illisibles&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The image&apos;s data is damaged; what could be read is shown.</source>
        <translation>Les données de l’image sont endommagées&#x202f;; ce qui a pu être lu est affiché.</translation>
    </message>
    <message numerus="yes">
        <source>The image had %n bits a colour; it was reduced to 8.</source>
        <translation>
            <numerusform>L’image avait %n bit par couleur&#x202f;; elle a été réduite à 8.</numerusform>
            <numerusform>L’image avait %n bits par couleur&#x202f;; elle a été réduite à 8.</numerusform>
        </translation>
    </message>
    <message>
        <source>The EXIF data is damaged and was left out.</source>
        <translation>Les données EXIF sont endommagées et ont été laissées de côté.</translation>
    </message>
    <message>
        <source>Damaged parts of the EXIF data were left out.</source>
        <translation>Les parties endommagées des données EXIF ont été laissées de côté.</translation>
    </message>
    <message>
        <source>The XMP data is damaged and was left out.</source>
        <translation>Les données XMP sont endommagées et ont été laissées de côté.</translation>
    </message>
    <message>
        <source>The colour profile is damaged and was left out.</source>
        <translation>Le profil de couleur est endommagé et a été laissé de côté.</translation>
    </message>
    <message>
        <source>The image was converted to RGB; its colour profile was left out.</source>
        <translation>L’image a été convertie en RVB&#x202f;; son profil de couleur a été laissé de côté.</translation>
    </message>
    <message>
        <source>The colour profile does not fit the image and was left out.</source>
        <translation>Le profil de couleur ne convient pas à l’image et a été laissé de côté.</translation>
    </message>
    <message>
        <source>The IPTC data is damaged and was left out.</source>
        <translation>Les données IPTC sont endommagées et ont été laissées de côté.</translation>
    </message>
    <message>
        <source>The file is damaged or ended too early; what could be read is shown.</source>
        <translation>Le fichier est endommagé ou s’arrête trop tôt&#x202f;; ce qui a pu être lu est affiché.</translation>
    </message>
    <message numerus="yes">
        <source>The file has %n page(s); this is the first.</source>
        <translation>
            <numerusform>Le fichier a %n page&#x202f;; voici la première.</numerusform>
            <numerusform>Le fichier a %n pages&#x202f;; voici la première.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The file has %n frame(s); this is the first.</source>
        <translation>
            <numerusform>Le fichier a %n trame&#x202f;; voici la première.</numerusform>
            <numerusform>Le fichier a %n trames&#x202f;; voici la première.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The file has %n layer(s); this is what they make together.</source>
        <translation>
            <numerusform>Le fichier a %n calque&#x202f;; voici ce qu’il donne.</numerusform>
            <numerusform>Le fichier a %n calques&#x202f;; voici ce qu’ils donnent ensemble.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The file has %n bits a colour; the image has 8.</source>
        <translation>
            <numerusform>Le fichier a %n bit par couleur&#x202f;; l’image en a 8.</numerusform>
            <numerusform>Le fichier a %n bits par couleur&#x202f;; l’image en a 8.</numerusform>
        </translation>
    </message>
    <message>
        <source>The file is in printing inks; the image is in red, green and blue.</source>
        <translation>Le fichier est en encres d’impression&#x202f;; l’image est en rouge, vert et bleu.</translation>
    </message>
    <message>
        <source>Save writes quality %1; this file has %2.</source>
        <translation>Enregistrer écrit la qualité %1&#x202f;; ce fichier a %2.</translation>
    </message>
    <message numerus="yes">
        <source>%n page(s)</source>
        <translation>
            <numerusform>%n page</numerusform>
            <numerusform>%n pages</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n frame(s)</source>
        <translation>
            <numerusform>%n trame</numerusform>
            <numerusform>%n trames</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n layer(s)</source>
        <translation>
            <numerusform>%n calque</numerusform>
            <numerusform>%n calques</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n bits a colour</source>
        <translation>
            <numerusform>%n bit par couleur</numerusform>
            <numerusform>%n bits par couleur</numerusform>
        </translation>
    </message>
    <message>
        <source>its palette is corrupt</source>
        <translation>leur palette est altérée</translation>
    </message>
    <message>
        <source>its palette is damaged</source>
        <translation>leur palette est endommagée</translation>
    </message>
    <message>
        <source>it holds what is unknown and cannot be left out</source>
        <translation>elles contiennent de l’inconnu qui ne peut pas être laissé de côté</translation>
    </message>
    <message>
        <source>The PNG data cannot be read: %1.</source>
        <translation>Les données PNG sont illisibles&#xa0;: %1.</translation>
    </message>
    <message>
        <source>its header is damaged</source>
        <translation>leur en-tête est endommagé</translation>
    </message>
    <message>
        <source>it has no pixels</source>
        <translation>elles n’ont pas de pixels</translation>
    </message>
    <message>
        <source>the file is damaged or ends before its pixels</source>
        <translation>le fichier est endommagé ou s’arrête avant ses pixels</translation>
    </message>
    <message>
        <source>it has no palette</source>
        <translation>elles n’ont pas de palette</translation>
    </message>
    <message>
        <source>The PNG data cannot be read: a checksum of its pixels is wrong.</source>
        <translation>Les données PNG sont illisibles&#xa0;: une somme de contrôle de leurs pixels est fausse.</translation>
    </message>
    <message>
        <source>The PNG data cannot be read: not one row of its pixels is whole.</source>
        <translation>Les données PNG sont illisibles&#xa0;: pas une ligne de pixels n’est entière.</translation>
    </message>
    <message>
        <source>The PNG data is damaged; what could be read is shown.</source>
        <translation>Les données PNG sont endommagées&#x202f;; ce qui a pu être lu est affiché.</translation>
    </message>
    <message>
        <source>The PSD data cannot be read: its palette is damaged.</source>
        <translation>Les données PSD sont illisibles&#xa0;: leur palette est endommagée.</translation>
    </message>
    <message>
        <source>The PSD data is damaged; what could be read is shown.</source>
        <translation>Les données PSD sont endommagées&#x202f;; ce qui a pu être lu est affiché.</translation>
    </message>
    <message>
        <source>The TIFF structure is damaged.</source>
        <translation>La structure du fichier TIFF est endommagée.</translation>
    </message>
    <message>
        <source>TIFF images with so many or so large samples cannot be read.</source>
        <translation>Les images TIFF avec des échantillons si nombreux ou si grands ne peuvent pas être lues.</translation>
    </message>
    <message>
        <source>The TIFF file is compressed in a way that cannot be read.</source>
        <translation>Le fichier TIFF est compressé d’une façon qui ne peut pas être lue.</translation>
    </message>
    <message>
        <source>The TIFF structure is damaged: its strips or tiles have no size.</source>
        <translation>La structure du fichier TIFF est endommagée&#xa0;: ses bandes ou tuiles n’ont pas de taille.</translation>
    </message>
    <message>
        <source>The TIFF structure is damaged: its strips or tiles are too large.</source>
        <translation>La structure du fichier TIFF est endommagée&#xa0;: ses bandes ou tuiles sont trop grandes.</translation>
    </message>
    <message>
        <source>The TIFF structure is damaged: it has too many strips or tiles.</source>
        <translation>La structure du fichier TIFF est endommagée&#xa0;: il a trop de bandes ou de tuiles.</translation>
    </message>
    <message>
        <source>The TIFF data cannot be read: %1.</source>
        <translation>Les données TIFF sont illisibles&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The TIFF data is damaged: %1.</source>
        <translation>Les données TIFF sont endommagées&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The TIFF data is damaged; what could be read is shown.</source>
        <translation>Les données TIFF sont endommagées&#x202f;; ce qui a pu être lu est affiché.</translation>
    </message>
    <message>
        <source>The %1 image cannot be read: its reader ended unexpectedly.</source>
        <translation>L’image %1 ne peut pas être lue : son lecteur s’est arrêté de façon inattendue.</translation>
    </message>
    <message>
        <source>The %1 image cannot be read: its reader did not come to an end.</source>
        <translation>L’image %1 ne peut pas être lue : son lecteur ne se termine pas.</translation>
    </message>
    <message>
        <source>Reading was stopped.</source>
        <translation>La lecture a été interrompue.</translation>
    </message>
    <message>
        <source>This kind of file has no quality to choose.</source>
        <translation>Ce type de fichier n’a pas de qualité à choisir.</translation>
    </message>
    <message>
        <source>A WebP file holds at most 16,383 pixels a side.</source>
        <translation>Un fichier WebP contient au plus 16 383 pixels par côté.</translation>
    </message>
    <message>
        <source>Even at the lowest quality the file is larger.</source>
        <translation>Même à la qualité la plus basse, le fichier est plus grand.</translation>
    </message>
</context>
<context>
    <name>ColorPanel</name>
    <message>
        <source>The colour with its opacity</source>
        <translation>La couleur avec son opacité</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Couleurs</translation>
    </message>
    <message>
        <source>&amp;Pick Screen Colour</source>
        <translation>&amp;Prélever une couleur à l’écran</translation>
    </message>
</context>
<context>
    <name>ColorWell</name>
    <message>
        <source>Colour</source>
        <translation>Couleur</translation>
    </message>
</context>
<context>
    <name>Compare</name>
    <message>
        <source>as opened</source>
        <translation>à l’ouverture</translation>
    </message>
    <message>
        <source>as last saved</source>
        <translation>au dernier enregistrement</translation>
    </message>
    <message>
        <source>before the last step</source>
        <translation>avant la dernière étape</translation>
    </message>
    <message>
        <source>before</source>
        <translation>avant</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>Mémoire insuffisante.</translation>
    </message>
    <message>
        <source>That state of the image cannot be read any more.</source>
        <translation>Cet état de l’image ne peut plus être lu.</translation>
    </message>
    <message>
        <source>The image had another size then.</source>
        <translation>L’image avait alors une autre taille.</translation>
    </message>
    <message>
        <source>Left of the pointer: %1</source>
        <translation>À gauche du pointeur : %1</translation>
    </message>
</context>
<context>
    <name>Corners</name>
    <message>
        <source>The selection does not have four corners.</source>
        <translation>La sélection n’a pas quatre coins.</translation>
    </message>
    <message>
        <source>The selection could not be made upright.</source>
        <translation>La sélection n’a pas pu être redressée.</translation>
    </message>
    <message>
        <source>It is seen from too far aside.</source>
        <translation>Elle est vue de trop loin de côté.</translation>
    </message>
    <message>
        <source>With Polygon beside the lasso, click the corners of what is to become upright one by one.</source>
        <translation>Avec «&#xa0;Polygone&#xa0;» à côté du lasso, cliquez un à un les coins de ce qui doit devenir droit.</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>The file is too large for a small image of it.</source>
        <translation>Le fichier est trop volumineux pour une vignette.</translation>
    </message>
</context>
<context>
    <name>Document</name>
    <message>
        <source>There is not enough memory.</source>
        <translation>La mémoire est insuffisante.</translation>
    </message>
</context>
<context>
    <name>EmptyView</name>
    <message>
        <source>Drop an image here</source>
        <translation>Déposez une image ici</translation>
    </message>
    <message>
        <source>&amp;New…</source>
        <translation>&amp;Nouvelle…</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Ouvrir…</translation>
    </message>
</context>
<context>
    <name>FileManager</name>
    <message>
        <source>Image Library</source>
        <translation>Photothèque</translation>
    </message>
    <message>
        <source>Images of the library</source>
        <translation>Images de la photothèque</translation>
    </message>
    <message>
        <source>Drop images here to add them</source>
        <translation>Déposez des images ici pour les ajouter</translation>
    </message>
    <message>
        <source>Preview of the selected image</source>
        <translation>Aperçu de l’image choisie</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Ajouter…</translation>
    </message>
    <message>
        <source>Adds a link to an image</source>
        <translation>Ajoute un lien vers une image</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation>&amp;Renommer…</translation>
    </message>
    <message>
        <source>Renames the selected entry (F2)</source>
        <translation>Renomme l’entrée choisie (F2)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Deletes the selected entry, never the image that a link leads to (Delete)</source>
        <translation>Supprime l’entrée choisie, jamais l’image à laquelle mène un lien (Suppr)</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message>
        <source>Opens the selected image in the editor (Return)</source>
        <translation>Ouvre l’image choisie dans l’éditeur (Entrée)</translation>
    </message>
    <message>
        <source>Re&amp;link</source>
        <translation>Re&amp;lier</translation>
    </message>
    <message>
        <source>Lets the selected link lead to the image that was found</source>
        <translation>Fait mener le lien choisi à l’image retrouvée</translation>
    </message>
    <message>
        <source>Relin&amp;k All…</source>
        <translation>Relier &amp;tout…</translation>
    </message>
    <message>
        <source>Lets every broken link lead to its image, where that was found by its content</source>
        <translation>Fait mener chaque lien rompu à son image, si elle a été retrouvée par son contenu</translation>
    </message>
    <message>
        <source>Show D&amp;uplicates</source>
        <translation>Afficher les &amp;doublons</translation>
    </message>
    <message>
        <source>Shows only images that are here more than once: the same file, the same content, or the same look</source>
        <translation>Ne montre que les images présentes plusieurs fois&#xa0;: même fichier, même contenu ou même aspect</translation>
    </message>
</context>
<context>
    <name>Files</name>
    <message>
        <source>%1 MB</source>
        <translation>%1 Mo</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 Ko</translation>
    </message>
    <message>
        <source>The image would be too large.</source>
        <translation>L’image serait trop grande.</translation>
    </message>
    <message>
        <source>An image can have up to 30,000 pixels a side and 1,000 megapixels in all.</source>
        <translation>Une image peut avoir jusqu’à 30 000 pixels de côté et 1 000 mégapixels en tout.</translation>
    </message>
    <message>
        <source>The file could not be opened.</source>
        <translation>Le fichier n’a pas pu être ouvert.</translation>
    </message>
    <message>
        <source>Use Save as TIFF…</source>
        <translation>Enregistrer en TIFF…</translation>
    </message>
    <message>
        <source>Use Save as JPEG…</source>
        <translation>Enregistrer en JPEG…</translation>
    </message>
    <message>
        <source>Use Save as PNG…</source>
        <translation>Enregistrer en PNG…</translation>
    </message>
    <message>
        <source>Save does not write files whose names have no extension.</source>
        <translation>Enregistrer n’écrit pas les fichiers sans extension.</translation>
    </message>
    <message>
        <source>Save does not write .%1 files.</source>
        <translation>Enregistrer n’écrit pas les fichiers .%1.</translation>
    </message>
    <message>
        <source>Not opened: %1</source>
        <translation>Non ouvert&#xa0;: %1</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The image could not be brought back.</source>
        <translation>L’image n’a pas pu être rétablie.</translation>
    </message>
    <message>
        <source>Its steps are gone from the folder of temporary files.</source>
        <translation>Ses étapes ont disparu du dossier des fichiers temporaires.</translation>
    </message>
    <message numerus="yes">
        <source>%n bytes</source>
        <translation>
            <numerusform>%n octet</numerusform>
            <numerusform>%n octets</numerusform>
        </translation>
    </message>
    <message>
        <source>There is not enough memory to encode the image, or it is too large for this kind of file.</source>
        <translation>La mémoire est insuffisante pour encoder l’image, ou elle est trop grande pour ce type de fichier.</translation>
    </message>
    <message>
        <source>The file could not be written.</source>
        <translation>Le fichier n’a pas pu être écrit.</translation>
    </message>
    <message>
        <source>Saved %1 · %2 · %3</source>
        <translation>%1 enregistré · %2 · %3</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <translation>Non enregistré&#xa0;: %1</translation>
    </message>
    <message>
        <source>The file could not be saved.</source>
        <translation>Le fichier n’a pas pu être enregistré.</translation>
    </message>
    <message>
        <source>There is no image to save.</source>
        <translation>Il n’y a pas d’image à enregistrer.</translation>
    </message>
    <message>
        <source>Save does not write files of this name.</source>
        <translation>Enregistrer n’écrit pas les fichiers de ce nom.</translation>
    </message>
    <message>
        <source>Cannot save PSD file (Photoshop file)</source>
        <translation>Impossible d’enregistrer un fichier PSD (fichier Photoshop)</translation>
    </message>
    <message>
        <source>Choose &apos;File&apos; &gt; &apos;Save as TIFF…&apos; or &apos;File&apos; &gt; &apos;Save as JPEG…&apos; to save the image in another image format.</source>
        <translation>Choisissez «&#xa0;Fichier&#xa0;» &gt; «&#xa0;Enregistrer en TIFF…&#xa0;» ou «&#xa0;Fichier&#xa0;» &gt; «&#xa0;Enregistrer en JPEG…&#xa0;» pour enregistrer l’image dans un autre format.</translation>
    </message>
    <message>
        <source>The file holds more than the image.</source>
        <translation>Le fichier contient plus que l’image.</translation>
    </message>
    <message>
        <source>%1 has %2. Saving the image into it takes that away.</source>
        <translation>%1 contient %2. Y enregistrer l’image les ferait disparaître.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Enregistrer sous…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>The file was changed since it was opened.</source>
        <translation>Le fichier a été modifié depuis son ouverture.</translation>
    </message>
    <message>
        <source>Do you want to overwrite the existing file?</source>
        <translation>Voulez-vous remplacer le fichier existant&#x202f;?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Its steps could not be read.</source>
        <translation>Ses étapes n’ont pas pu être lues.</translation>
    </message>
    <message>
        <source>It will be offered again at the next start.</source>
        <translation>Elle sera proposée de nouveau au prochain démarrage.</translation>
    </message>
    <message>
        <source>Reading the image…</source>
        <translation>Lecture de l’image…</translation>
    </message>
    <message>
        <source>Combining the outlines…</source>
        <translation>Combinaison des contours…</translation>
    </message>
</context>
<context>
    <name>Folders</name>
    <message>
        <source>The disk is full.</source>
        <translation>Le disque est plein.</translation>
    </message>
    <message>
        <source>The disk quota is used up.</source>
        <translation>Le quota du disque est épuisé.</translation>
    </message>
    <message>
        <source>The file would be larger than is allowed here.</source>
        <translation>Le fichier dépasserait la taille permise ici.</translation>
    </message>
    <message>
        <source>There is no permission to write here.</source>
        <translation>Vous n’avez pas le droit d’écrire ici.</translation>
    </message>
    <message>
        <source>The disk cannot be written to.</source>
        <translation>Le disque ne peut pas être écrit.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>Le dossier n’existe pas.</translation>
    </message>
    <message>
        <source>A part of the path is not a folder.</source>
        <translation>Une partie du chemin n’est pas un dossier.</translation>
    </message>
    <message>
        <source>There is a folder of that name.</source>
        <translation>Un dossier porte déjà ce nom.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>Le nom est trop long.</translation>
    </message>
    <message>
        <source>The link leads round in a circle.</source>
        <translation>Le lien tourne en rond.</translation>
    </message>
    <message>
        <source>The disk reported an error.</source>
        <translation>Le disque a signalé une erreur.</translation>
    </message>
    <message>
        <source>Too many files are open.</source>
        <translation>Trop de fichiers sont ouverts.</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message>
        <source>Undo steps cannot be written to the disk (%1). They are kept in memory until the program ends.</source>
        <translation>Les étapes d’annulation ne peuvent pas être écrites sur le disque (%1). Elles restent en mémoire jusqu’à la fin du programme.</translation>
    </message>
    <message>
        <source>The last change could not be kept as a step of its own (%1).</source>
        <translation>La dernière modification n’a pas pu être gardée comme étape à part (%1).</translation>
    </message>
    <message>
        <source>There is no place for undo steps among the temporary files. A private folder of this session serves instead.</source>
        <translation>Il n’y a pas de place pour les étapes d’annulation parmi les fichiers temporaires. Un dossier privé de cette session les remplace.</translation>
    </message>
    <message>
        <source>Nothing was undone: what is on screen could be kept neither on the disk nor in memory.</source>
        <translation>Rien n’a été annulé&#xa0;: ce qui est à l’écran n’a pu être gardé ni sur le disque ni en mémoire.</translation>
    </message>
    <message>
        <source>there is no undo folder</source>
        <translation>il n’y a pas de dossier d’annulation</translation>
    </message>
    <message>
        <source>there is no image</source>
        <translation>il n’y a pas d’image</translation>
    </message>
    <message>
        <source>the step before could not be encoded</source>
        <translation>l’étape précédente n’a pas pu être encodée</translation>
    </message>
    <message>
        <source>the files could not be put in their places</source>
        <translation>les fichiers n’ont pas pu être mis en place</translation>
    </message>
    <message>
        <source>not enough memory</source>
        <translation>mémoire insuffisante</translation>
    </message>
    <message>
        <source>The very pixels of the last change could not be kept (%1). Undo brings them back from a JPEG copy: colours may differ a little.</source>
        <translation>Les pixels exacts de la dernière modification n’ont pas pu être conservés (%1). L’annulation les reprend d’une copie JPEG&#xa0;: les couleurs peuvent différer légèrement.</translation>
    </message>
    <message>
        <source>The very pixels of this step could not be read. What is shown comes from its JPEG copy: colours may differ a little.</source>
        <translation>Les pixels exacts de cette étape n’ont pas pu être lus. L’image affichée vient de sa copie JPEG&#xa0;: les couleurs peuvent différer légèrement.</translation>
    </message>
</context>
<context>
    <name>HistoryPanel</name>
    <message>
        <source>Change</source>
        <translation>Modification</translation>
    </message>
    <message>
        <source>There is no room for the very pixels of this step: it comes back as its files hold it, nearly the same.</source>
        <translation>Il n’y a pas de place pour les pixels exacts de cette étape&#xa0;: elle revient telle que ses fichiers la gardent, presque pareille.</translation>
    </message>
    <message>
        <source>This step could not be kept.</source>
        <translation>Cette étape n’a pas pu être gardée.</translation>
    </message>
    <message>
        <source>Go to this step</source>
        <translation>Aller à cette étape</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>Steps of the image, oldest first</source>
        <translation>Étapes de l’image, de la plus ancienne à la plus récente</translation>
    </message>
</context>
<context>
    <name>ImageProcessor</name>
    <message>
        <source>Image Processor</source>
        <translation>Traitement par lots</translation>
    </message>
    <message>
        <source>&amp;Source folder:</source>
        <translation>&amp;Dossier source&#xa0;:</translation>
    </message>
    <message>
        <source>Every .tiff and .jpg image in it</source>
        <translation>Toutes les images .tiff et .jpg qu’il contient</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Choisir…</translation>
    </message>
    <message>
        <source>&amp;Destination folder:</source>
        <translation>D&amp;ossier de destination&#xa0;:</translation>
    </message>
    <message>
        <source>Save as:</source>
        <translation>Enregistrer en&#xa0;:</translation>
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
        <translation>Taille&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Fit into</source>
        <translation>&amp;Adapter à</translation>
    </message>
    <message>
        <source>Width of the box in pixels</source>
        <translation>Largeur du cadre en pixels</translation>
    </message>
    <message>
        <source>by</source>
        <translation>sur</translation>
    </message>
    <message>
        <source>Height of the box in pixels</source>
        <translation>Hauteur du cadre en pixels</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>pixels</translation>
    </message>
    <message>
        <source>&amp;Watermark:</source>
        <translation>&amp;Filigrane&#xa0;:</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Images in the watermark folder</source>
        <translation>Images du dossier des filigranes</translation>
    </message>
    <message>
        <source>&amp;Position:</source>
        <translation>&amp;Position&#xa0;:</translation>
    </message>
    <message>
        <source>Fills in the position for images as large as the box</source>
        <translation>Remplit la position pour des images aussi grandes que le cadre</translation>
    </message>
    <message>
        <source>Custom position</source>
        <translation>Position libre</translation>
    </message>
    <message>
        <source>Lower left</source>
        <translation>En bas à gauche</translation>
    </message>
    <message>
        <source>Lower right</source>
        <translation>En bas à droite</translation>
    </message>
    <message>
        <source>Upper left</source>
        <translation>En haut à gauche</translation>
    </message>
    <message>
        <source>Upper right</source>
        <translation>En haut à droite</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Centre</translation>
    </message>
    <message>
        <source>From the left edge in pixels</source>
        <translation>Depuis le bord gauche, en pixels</translation>
    </message>
    <message>
        <source>From the lower edge in pixels</source>
        <translation>Depuis le bord inférieur, en pixels</translation>
    </message>
    <message>
        <source>In &amp;each image by its own size, with a margin of</source>
        <translation>Dans &amp;chaque image selon sa taille, avec une marge de</translation>
    </message>
    <message>
        <source>The preset holds for every image, upright or flat, instead of filling in X and Y</source>
        <translation>Le préréglage vaut pour chaque image, debout ou couchée, au lieu de remplir X et Y</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source>Between the watermark and the edges of its corner in pixels</source>
        <translation>Entre le filigrane et les bords de son coin, en pixels</translation>
    </message>
    <message>
        <source>Margin of the watermark</source>
        <translation>Marge du filigrane</translation>
    </message>
    <message>
        <source>&amp;Opacity:</source>
        <translation>Opac&amp;ité&#xa0;:</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Of the watermark, on top of its own</source>
        <translation>Du filigrane, en plus de la sienne</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Lancer</translation>
    </message>
    <message>
        <source>&amp;Relative: its longer side is</source>
        <translation>&amp;Relatif&#xa0;: son grand côté fait</translation>
    </message>
    <message>
        <source>The watermark looks the same on small and large images, upright or flat: size, margin and position are in percent</source>
        <translation>Le filigrane a le même aspect sur de petites et de grandes images, en portrait ou en paysage&#xa0;: taille, marge et position sont en pour cent</translation>
    </message>
    <message>
        <source>Of the shorter side of each image</source>
        <translation>Du petit côté de chaque image</translation>
    </message>
    <message>
        <source>Size of the watermark</source>
        <translation>Taille du filigrane</translation>
    </message>
    <message>
        <source>of the image&apos;s shorter side</source>
        <translation>du petit côté de l’image</translation>
    </message>
    <message>
        <source>The watermark covers the whole image, from its position on</source>
        <translation>Le filigrane couvre toute l’image, à partir de sa position</translation>
    </message>
    <message>
        <source>Of the watermark&apos;s longer side</source>
        <translation>Du grand côté du filigrane</translation>
    </message>
    <message>
        <source>Gaps between repeated watermarks</source>
        <translation>Espaces entre les filigranes répétés</translation>
    </message>
    <message>
        <source>of its longer side</source>
        <translation>de son grand côté</translation>
    </message>
    <message>
        <source>T&amp;urn:</source>
        <translation>Rotatio&amp;n&#xa0;:</translation>
    </message>
    <message>
        <source>Of the watermark, against the clock</source>
        <translation>Du filigrane, dans le sens inverse des aiguilles d’une montre</translation>
    </message>
    <message>
        <source>Pre&amp;view</source>
        <translation>Aperç&amp;u</translation>
    </message>
    <message>
        <source>Shows what these settings make of three images of the folder; nothing is written</source>
        <translation>Montre ce que ces réglages font de trois images du dossier&#xa0;; rien n’est écrit</translation>
    </message>
    <message>
        <source>Repeated &amp;all over, with gaps of</source>
        <translation>Répété partout, avec des &amp;espaces de</translation>
    </message>
    <message>
        <source>Te&amp;xt…</source>
        <translation>Te&amp;xte…</translation>
    </message>
    <message>
        <source>Makes a line of text a watermark</source>
        <translation>Fait d’une ligne de texte un filigrane</translation>
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
        <translation>Maj</translation>
    </message>
</context>
<context>
    <name>Library</name>
    <message>
        <source>broken link</source>
        <translation>lien rompu</translation>
    </message>
</context>
<context>
    <name>LibraryModel</name>
    <message>
        <source>The file that this link leads to is gone. The link can be deleted.</source>
        <translation>Le fichier auquel mène ce lien a disparu. Le lien peut être supprimé.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Dimensions</source>
        <translation>Dimensions</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Modifié</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Chemin</translation>
    </message>
    <message>
        <source>looks the same</source>
        <translation>même aspect</translation>
    </message>
    <message>
        <source>same content</source>
        <translation>même contenu</translation>
    </message>
    <message>
        <source>same file</source>
        <translation>même fichier</translation>
    </message>
    <message>
        <source>Likeness</source>
        <translation>Ressemblance</translation>
    </message>
</context>
<context>
    <name>LoadSelection</name>
    <message>
        <source>Load Selection</source>
        <translation>Charger une sélection</translation>
    </message>
    <message>
        <source>&amp;Saved selection:</source>
        <translation>&amp;Sélection enregistrée&#xa0;:</translation>
    </message>
    <message>
        <source>The outline to use; it lands where it was drawn</source>
        <translation>Le contour à utiliser&#x202f;; il se place là où il a été dessiné</translation>
    </message>
    <message>
        <source>The selection that there is now is dropped, a floating one with its pixels.</source>
        <translation>La sélection actuelle est abandonnée, avec ses pixels si elle flotte.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Delete the chosen selection&apos;s file for good</source>
        <translation>Supprimer pour de bon le fichier de la sélection choisie</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Close and keep the selection as it is</source>
        <translation>Fermer et garder la sélection telle quelle</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Charger</translation>
    </message>
    <message>
        <source>Select by the chosen outline</source>
        <translation>Sélectionner selon le contour choisi</translation>
    </message>
</context>
<context>
    <name>LoadSelectionDialog</name>
    <message>
        <source>Do you wish to delete the folder with all that is in it?</source>
        <translation>Voulez-vous supprimer le dossier avec tout ce qu’il contient&#x202f;?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
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
        <translation>Outil (touches 1 à 9 et 0)</translation>
    </message>
    <message>
        <source>Tool</source>
        <translation>Outil</translation>
    </message>
    <message>
        <source>Paint colour and opacity</source>
        <translation>Couleur de peinture et opacité</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Diameter of brush, pencil, eraser and clone stamp in pixels; also the text size and the width of strokes</source>
        <translation>Diamètre du pinceau, du crayon, de la gomme et du clonage en pixels&#x202f;; aussi la taille du texte et l’épaisseur des contours</translation>
    </message>
    <message>
        <source>Size in pixels</source>
        <translation>Taille en pixels</translation>
    </message>
    <message>
        <source>Shape of the brush tip</source>
        <translation>Forme de la pointe du pinceau</translation>
    </message>
    <message>
        <source>Brush shape</source>
        <translation>Forme du pinceau</translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation>Tolérance</translation>
    </message>
    <message>
        <source>How far a colour may differ from the one under the pointer</source>
        <translation>De combien une couleur peut différer de celle sous le pointeur</translation>
    </message>
    <message>
        <source>Tolerance in percent</source>
        <translation>Tolérance en pour cent</translation>
    </message>
    <message>
        <source>Zoom (keys + and −, Ctrl+wheel)</source>
        <translation>Zoom (touches + et −, Ctrl+molette)</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>What the pressure of a pen changes</source>
        <translation>Ce que change la pression d’un stylet</translation>
    </message>
    <message>
        <source>Pen pressure</source>
        <translation>Pression du stylet</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Tool options</source>
        <translation>Options de l’outil</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Outils</translation>
    </message>
    <message>
        <source>Brush %1</source>
        <translation>Pinceau %1</translation>
    </message>
    <message>
        <source>Fit · %1</source>
        <translation>Adapté · %1</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Carré</translation>
    </message>
    <message>
        <source>Oval</source>
        <translation>Ovale</translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation>Polygone</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Subtract</source>
        <translation>Soustraire</translation>
    </message>
    <message>
        <source>Float</source>
        <translation>Flotter</translation>
    </message>
    <message>
        <source>Straight</source>
        <translation>Droit</translation>
    </message>
    <message>
        <source>Set source</source>
        <translation>Définir la source</translation>
    </message>
    <message>
        <source>Untitled[*] — Zelpane</source>
        <translation>Sans titre[*] — Zelpane</translation>
    </message>
    <message>
        <source>The marquee becomes a square</source>
        <translation>Le cadre devient un carré</translation>
    </message>
    <message>
        <source>The marquee becomes an oval</source>
        <translation>Le cadre devient un ovale</translation>
    </message>
    <message>
        <source>Click corners, Return ends</source>
        <translation>Cliquez les coins, Entrée termine</translation>
    </message>
    <message>
        <source>The new shape joins the selection</source>
        <translation>La nouvelle forme s’ajoute à la sélection</translation>
    </message>
    <message>
        <source>The new shape is cut from the selection</source>
        <translation>La nouvelle forme est retirée de la sélection</translation>
    </message>
    <message>
        <source>Dragging the selection lifts its pixels</source>
        <translation>Faire glisser la sélection soulève ses pixels</translation>
    </message>
    <message>
        <source>One straight line from press to release</source>
        <translation>Une ligne droite de l’appui au relâchement</translation>
    </message>
    <message>
        <source>The click sets where pixels come from</source>
        <translation>Le clic fixe d’où viennent les pixels</translation>
    </message>
    <message>
        <source>%1 (as if %2 were held)</source>
        <translation>%1 (comme si %2 était enfoncée)</translation>
    </message>
    <message>
        <source>The window manager moves windows with %1 and the mouse, so %1 never reaches the image. The switches above do the same.</source>
        <translation>Le gestionnaire de fenêtres déplace les fenêtres avec %1 et la souris&#xa0;: %1 n’atteint donc jamais l’image. Les boutons ci-dessus font la même chose.</translation>
    </message>
    <message>
        <source>Use %1 instead</source>
        <translation>Utiliser %1 à la place</translation>
    </message>
    <message>
        <source>Even pressure</source>
        <translation>Pression égale</translation>
    </message>
    <message>
        <source>Pressure: size</source>
        <translation>Pression : taille</translation>
    </message>
    <message>
        <source>Pressure: opacity</source>
        <translation>Pression : opacité</translation>
    </message>
    <message>
        <source>Explain</source>
        <translation>Expliquer</translation>
    </message>
    <message>
        <source>Where the pointer rests, what a click takes; a drag after the press changes the tolerance</source>
        <translation>Là où le pointeur s’arrête, ce que prend un clic ; glisser après avoir appuyé change la tolérance</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>About Zelpane</source>
        <translation>À propos de Zelpane</translation>
    </message>
    <message>
        <source>Version and licence</source>
        <translation>Version et licence</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>Préférences…</translation>
    </message>
    <message>
        <source>Units, keys and other settings</source>
        <translation>Unités, touches et autres réglages</translation>
    </message>
    <message>
        <source>Quit Zelpane</source>
        <translation>Quitter Zelpane</translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation>Termine le programme</translation>
    </message>
    <message>
        <source>New…</source>
        <translation>Nouvelle…</translation>
    </message>
    <message>
        <source>Makes a blank image</source>
        <translation>Crée une image vide</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Ouvrir…</translation>
    </message>
    <message>
        <source>Opens an image file</source>
        <translation>Ouvre un fichier d’image</translation>
    </message>
    <message>
        <source>Open Recent</source>
        <translation>Ouvrir récent</translation>
    </message>
    <message>
        <source>Previous Image</source>
        <translation>Image précédente</translation>
    </message>
    <message>
        <source>Shows the image again that was open before this one</source>
        <translation>Affiche de nouveau l’image ouverte avant celle-ci</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Writes the image into its file</source>
        <translation>Écrit l’image dans son fichier</translation>
    </message>
    <message>
        <source>Save as TIFF…</source>
        <translation>Enregistrer en TIFF…</translation>
    </message>
    <message>
        <source>Writes a TIFF file; transparency is kept</source>
        <translation>Écrit un fichier TIFF&#x202f;; la transparence est gardée</translation>
    </message>
    <message>
        <source>Save as JPEG…</source>
        <translation>Enregistrer en JPEG…</translation>
    </message>
    <message>
        <source>Writes a JPEG file; transparent areas become white</source>
        <translation>Écrit un fichier JPEG&#x202f;; les parties transparentes deviennent blanches</translation>
    </message>
    <message>
        <source>Save as PNG…</source>
        <translation>Enregistrer en PNG…</translation>
    </message>
    <message>
        <source>Writes a PNG file; transparency is kept</source>
        <translation>Écrit un fichier PNG&#x202f;; la transparence est gardée</translation>
    </message>
    <message>
        <source>Save without Private Data…</source>
        <translation>Enregistrer sans données privées…</translation>
    </message>
    <message>
        <source>Writes a copy that says nothing of place, device and people</source>
        <translation>Écrit une copie qui ne dit rien du lieu, de l’appareil ni des personnes</translation>
    </message>
    <message>
        <source>Quick Save…</source>
        <translation>Enregistrement rapide…</translation>
    </message>
    <message>
        <source>Saves into the image library</source>
        <translation>Enregistre dans la photothèque</translation>
    </message>
    <message>
        <source>Open with Preview</source>
        <translation>Ouvrir dans la visionneuse</translation>
    </message>
    <message>
        <source>Shows the file in the desktop&apos;s image viewer</source>
        <translation>Montre le fichier dans la visionneuse d’images du bureau</translation>
    </message>
    <message>
        <source>Page Setup…</source>
        <translation>Mise en page…</translation>
    </message>
    <message>
        <source>Paper size and orientation</source>
        <translation>Format du papier et orientation</translation>
    </message>
    <message>
        <source>Print…</source>
        <translation>Imprimer…</translation>
    </message>
    <message>
        <source>Prints the image on the paper of Page Setup</source>
        <translation>Imprime l’image sur le papier de la mise en page</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Takes the last change back</source>
        <translation>Défait la dernière modification</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Brings the change back that was undone</source>
        <translation>Refait la modification annulée</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Couper</translation>
    </message>
    <message>
        <source>Moves the selected pixels to the clipboard</source>
        <translation>Déplace les pixels sélectionnés dans le presse-papiers</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Copies the selected pixels, or the whole image, to the clipboard</source>
        <translation>Copie les pixels sélectionnés, ou toute l’image, dans le presse-papiers</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
    <message>
        <source>Places the clipboard&apos;s image as a floating selection</source>
        <translation>Place l’image du presse-papiers comme sélection flottante</translation>
    </message>
    <message>
        <source>Paste Into</source>
        <translation>Coller dedans</translation>
    </message>
    <message>
        <source>Places the clipboard&apos;s image inside the selection</source>
        <translation>Place l’image du presse-papiers dans la sélection</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Makes the selected pixels transparent</source>
        <translation>Rend transparents les pixels sélectionnés</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Remplir</translation>
    </message>
    <message>
        <source>Fills the selection with the paint colour</source>
        <translation>Remplit la sélection de la couleur de peinture</translation>
    </message>
    <message>
        <source>Stroke</source>
        <translation>Contour</translation>
    </message>
    <message>
        <source>Draws the selection&apos;s outline in the paint colour</source>
        <translation>Trace le contour de la sélection dans la couleur de peinture</translation>
    </message>
    <message>
        <source>Smart Fill…</source>
        <translation>Remplissage intelligent…</translation>
    </message>
    <message>
        <source>Fills the selection from its surroundings</source>
        <translation>Remplit la sélection d’après son entourage</translation>
    </message>
    <message>
        <source>Transform…</source>
        <translation>Transformer…</translation>
    </message>
    <message>
        <source>Scales and rotates the selected pixels</source>
        <translation>Met à l’échelle et tourne les pixels sélectionnés</translation>
    </message>
    <message>
        <source>Adjust…</source>
        <translation>Ajuster…</translation>
    </message>
    <message>
        <source>Hue, saturation, brightness, contrast and sharpness of the selection</source>
        <translation>Teinte, saturation, luminosité, contraste et netteté de la sélection</translation>
    </message>
    <message>
        <source>Resize…</source>
        <translation>Redimensionner…</translation>
    </message>
    <message>
        <source>Changes the size of the image</source>
        <translation>Change la taille de l’image</translation>
    </message>
    <message>
        <source>Crop to Selection</source>
        <translation>Rogner à la sélection</translation>
    </message>
    <message>
        <source>Cuts the image to the selection&apos;s box</source>
        <translation>Coupe l’image au cadre de la sélection</translation>
    </message>
    <message>
        <source>Rotate Clockwise</source>
        <translation>Pivoter à droite</translation>
    </message>
    <message>
        <source>Turns the image by 90° to the right</source>
        <translation>Tourne l’image de 90° vers la droite</translation>
    </message>
    <message>
        <source>Rotate Counter-Clockwise</source>
        <translation>Pivoter à gauche</translation>
    </message>
    <message>
        <source>Turns the image by 90° to the left</source>
        <translation>Tourne l’image de 90° vers la gauche</translation>
    </message>
    <message>
        <source>Flip Horizontally</source>
        <translation>Retourner horizontalement</translation>
    </message>
    <message>
        <source>Exchanges left and right</source>
        <translation>Échange la gauche et la droite</translation>
    </message>
    <message>
        <source>Flip Vertically</source>
        <translation>Retourner verticalement</translation>
    </message>
    <message>
        <source>Exchanges top and bottom</source>
        <translation>Échange le haut et le bas</translation>
    </message>
    <message>
        <source>2x Retina Display Mode</source>
        <translation>Affichage Retina 2x</translation>
    </message>
    <message>
        <source>One image pixel on one pixel of a double-density screen</source>
        <translation>Un pixel de l’image sur un pixel d’un écran à double densité</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>Selects the whole image</source>
        <translation>Sélectionne toute l’image</translation>
    </message>
    <message>
        <source>Select None</source>
        <translation>Ne rien sélectionner</translation>
    </message>
    <message>
        <source>Drops the selection</source>
        <translation>Abandonne la sélection</translation>
    </message>
    <message>
        <source>Select Inverse</source>
        <translation>Inverser la sélection</translation>
    </message>
    <message>
        <source>Selects what is not selected</source>
        <translation>Sélectionne ce qui ne l’est pas</translation>
    </message>
    <message>
        <source>Position and Size…</source>
        <translation>Position et taille…</translation>
    </message>
    <message>
        <source>A rectangle by number, and what new marquees keep to</source>
        <translation>Un rectangle par ses nombres, et ce que suivent les nouveaux cadres</translation>
    </message>
    <message>
        <source>Reselect</source>
        <translation>Resélectionner</translation>
    </message>
    <message>
        <source>Brings the last dropped selection back</source>
        <translation>Ramène la dernière sélection abandonnée</translation>
    </message>
    <message>
        <source>Float Selection</source>
        <translation>Rendre la sélection flottante</translation>
    </message>
    <message>
        <source>Lifts the selected pixels, or puts them back (Return)</source>
        <translation>Soulève les pixels sélectionnés, ou les repose (Entrée)</translation>
    </message>
    <message>
        <source>Save Selection…</source>
        <translation>Enregistrer la sélection…</translation>
    </message>
    <message>
        <source>Keeps the outline under a name (key s: the default name)</source>
        <translation>Garde le contour sous un nom (touche s&#xa0;: le nom par défaut)</translation>
    </message>
    <message>
        <source>Load Selection…</source>
        <translation>Charger une sélection…</translation>
    </message>
    <message>
        <source>Brings a kept outline back</source>
        <translation>Ramène un contour gardé</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Zoom avant</translation>
    </message>
    <message>
        <source>One zoom level in (+)</source>
        <translation>Un niveau de zoom de plus (+)</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Zoom arrière</translation>
    </message>
    <message>
        <source>One zoom level out (−)</source>
        <translation>Un niveau de zoom de moins (−)</translation>
    </message>
    <message>
        <source>Actual Size</source>
        <translation>Taille réelle</translation>
    </message>
    <message>
        <source>One image pixel on one pixel of the screen</source>
        <translation>Un pixel de l’image sur un pixel de l’écran</translation>
    </message>
    <message>
        <source>Fit to Window</source>
        <translation>Adapter à la fenêtre</translation>
    </message>
    <message>
        <source>The whole image in the window, whatever becomes of the window</source>
        <translation>Toute l’image dans la fenêtre, quoi que devienne la fenêtre</translation>
    </message>
    <message>
        <source>Transparency as Chequerboard</source>
        <translation>Transparence en damier</translation>
    </message>
    <message>
        <source>Transparent parts show a chequerboard instead of grey</source>
        <translation>Les parties transparentes montrent un damier au lieu du gris</translation>
    </message>
    <message>
        <source>Pixel Grid</source>
        <translation>Grille de pixels</translation>
    </message>
    <message>
        <source>Lines between the pixels, from 800 % on</source>
        <translation>Des lignes entre les pixels, à partir de 800 %</translation>
    </message>
    <message>
        <source>Keyboard Pointer</source>
        <translation>Pointeur au clavier</translation>
    </message>
    <message>
        <source>A crosshair that the numeric pad or Ctrl+arrows move; Ctrl+Space presses the button and lets it go</source>
        <translation>Un réticule que déplacent le pavé numérique ou Ctrl+flèches&#x202f;; Ctrl+Espace enfonce le bouton et le relâche</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>The steps of the image, to go back to</source>
        <translation>Les étapes de l’image, pour y revenir</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Plein écran</translation>
    </message>
    <message>
        <source>The window on the whole screen, and back</source>
        <translation>La fenêtre sur tout l’écran, et retour</translation>
    </message>
    <message>
        <source>Larger Brush</source>
        <translation>Pinceau plus grand</translation>
    </message>
    <message>
        <source>The size of brush, pencil, eraser, text and strokes: a tenth more</source>
        <translation>Taille du pinceau, du crayon, de la gomme, du texte et des contours&#xa0;: un dixième de plus</translation>
    </message>
    <message>
        <source>Smaller Brush</source>
        <translation>Pinceau plus petit</translation>
    </message>
    <message>
        <source>The size of brush, pencil, eraser, text and strokes: a tenth less</source>
        <translation>Taille du pinceau, du crayon, de la gomme, du texte et des contours&#xa0;: un dixième de moins</translation>
    </message>
    <message>
        <source>Swap Colours</source>
        <translation>Échanger les couleurs</translation>
    </message>
    <message>
        <source>Back to the colour that was chosen before this one, and again</source>
        <translation>Revient à la couleur choisie avant celle-ci, et inversement</translation>
    </message>
    <message>
        <source>Image Editor</source>
        <translation>Éditeur d’images</translation>
    </message>
    <message>
        <source>Brings the main window to the front</source>
        <translation>Amène la fenêtre principale au premier plan</translation>
    </message>
    <message>
        <source>Image Library</source>
        <translation>Photothèque</translation>
    </message>
    <message>
        <source>Your favourite images</source>
        <translation>Vos images préférées</translation>
    </message>
    <message>
        <source>Show Windows</source>
        <translation>Afficher les fenêtres</translation>
    </message>
    <message>
        <source>Main window and image library</source>
        <translation>Fenêtre principale et photothèque</translation>
    </message>
    <message>
        <source>Image Processor…</source>
        <translation>Traitement par lots…</translation>
    </message>
    <message>
        <source>Resizes and watermarks a folder of images</source>
        <translation>Redimensionne un dossier d’images et y met un filigrane</translation>
    </message>
    <message>
        <source>Zelpane Help</source>
        <translation>Aide de Zelpane</translation>
    </message>
    <message>
        <source>Where to find the User&apos;s Guide</source>
        <translation>Où trouver le guide de l’utilisateur</translation>
    </message>
    <message>
        <source>User&apos;s Guide</source>
        <translation>Guide de l’utilisateur</translation>
    </message>
    <message>
        <source>Opens the guide in the browser</source>
        <translation>Ouvre le guide dans le navigateur</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>All commands and tools with their keys, which can be changed there</source>
        <translation>Toutes les commandes et tous les outils avec leurs touches, qui peuvent y être changées</translation>
    </message>
    <message>
        <source>Zelpane</source>
        <translation>Zelpane</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Édition</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Sélection</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Affichage</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Outils</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenêtre</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Remove Brush</source>
        <translation>Pinceau de suppression</translation>
    </message>
    <message>
        <source>Paint over a thing and let go: it is filled from its surroundings</source>
        <translation>Peignez sur un objet et relâchez&#xa0;: il est comblé d’après son entourage</translation>
    </message>
    <message>
        <source>Copy as Script</source>
        <translation>Copier comme script</translation>
    </message>
    <message>
        <source>What was done since the image was opened, as a script that does it again</source>
        <translation>Ce qui a été fait depuis l’ouverture de l’image, sous forme de script qui le refait</translation>
    </message>
    <message>
        <source>Script</source>
        <translation>Script</translation>
    </message>
    <message>
        <source>What is done to the image, written down as a script; plays scripts on it</source>
        <translation>Ce qui est fait à l’image, noté sous forme de script ; y joue des scripts</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Comparer</translation>
    </message>
    <message>
        <source>While the key is held: an earlier state of the image left of the pointer</source>
        <translation>Tant que la touche est tenue : un état antérieur de l’image à gauche du pointeur</translation>
    </message>
    <message>
        <source>Compare as Opened</source>
        <translation>Comparer : à l’ouverture</translation>
    </message>
    <message>
        <source>Compare shows the image as it was opened</source>
        <translation>Comparer montre l’image telle qu’elle a été ouverte</translation>
    </message>
    <message>
        <source>Compare as Last Saved</source>
        <translation>Comparer : au dernier enregistrement</translation>
    </message>
    <message>
        <source>Compare shows the image as it was last saved</source>
        <translation>Comparer montre l’image telle qu’elle a été enregistrée</translation>
    </message>
    <message>
        <source>Compare before Last Step</source>
        <translation>Comparer : avant la dernière étape</translation>
    </message>
    <message>
        <source>Compare shows the image without the last step</source>
        <translation>Comparer montre l’image sans la dernière étape</translation>
    </message>
    <message>
        <source>Save for a Size…</source>
        <translation>Enregistrer pour une taille…</translation>
    </message>
    <message>
        <source>Writes a copy that is as large as it may be, or as small as looks the same</source>
        <translation>Écrit une copie aussi grande que permis, ou aussi petite qu’elle paraît identique</translation>
    </message>
    <message>
        <source>Explain the Wand</source>
        <translation>Expliquer la baguette</translation>
    </message>
    <message>
        <source>Where the pointer rests, what a click of the magic wand takes; and why it left a pixel out</source>
        <translation>Là où le pointeur s’arrête, ce que prend un clic de la baguette magique ; et pourquoi elle a laissé un pixel</translation>
    </message>
    <message>
        <source>Free Corners</source>
        <translation>Coins libres</translation>
    </message>
    <message>
        <source>The handles at the corners of what floats pull their corner alone: perspective</source>
        <translation>Les poignées aux coins de ce qui flotte ne tirent que leur coin&#xa0;: perspective</translation>
    </message>
    <message>
        <source>Straighten Corners</source>
        <translation>Redresser les coins</translation>
    </message>
    <message>
        <source>What a selection of four corners holds becomes upright, as if seen from straight ahead</source>
        <translation>Ce que contient une sélection à quatre coins devient droit, comme vu de face</translation>
    </message>
    <message>
        <source>Put Corners Back</source>
        <translation>Remettre les coins</translation>
    </message>
    <message>
        <source>The corners of what floats go back to where they were before they were pulled</source>
        <translation>Les coins de ce qui flotte reviennent là où ils étaient avant d’être tirés</translation>
    </message>
</context>
<context>
    <name>Name</name>
    <message>
        <source>Quick Save</source>
        <translation>Enregistrement rapide</translation>
    </message>
    <message>
        <source>&amp;Name of the image in the library:</source>
        <translation>&amp;Nom de l’image dans la photothèque&#xa0;:</translation>
    </message>
    <message>
        <source>The image is saved as TIFF in the image library</source>
        <translation>L’image est enregistrée en TIFF dans la photothèque</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
</context>
<context>
    <name>NameDialog</name>
    <message>
        <source>Please enter a proper file name.</source>
        <translation>Veuillez saisir un nom de fichier valable.</translation>
    </message>
    <message>
        <source>File extension must be .tiff.</source>
        <translation>L’extension du fichier doit être .tiff.</translation>
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
        <translation>Nouvelle image</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>&amp;Largeur&#xa0;:</translation>
    </message>
    <message>
        <source>Width of the new image in pixels</source>
        <translation>Largeur de la nouvelle image en pixels</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>pixels</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>&amp;Hauteur&#xa0;:</translation>
    </message>
    <message>
        <source>Height of the new image in pixels</source>
        <translation>Hauteur de la nouvelle image en pixels</translation>
    </message>
    <message>
        <source>&amp;Resolution:</source>
        <translation>&amp;Résolution&#xa0;:</translation>
    </message>
    <message>
        <source>For information; the image is measured in pixels</source>
        <translation>Pour information&#x202f;; l’image se mesure en pixels</translation>
    </message>
    <message>
        <source>pixels/inch</source>
        <translation>pixels/pouce</translation>
    </message>
    <message>
        <source>File size:</source>
        <translation>Taille du fichier&#xa0;:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nouvelle image</translation>
    </message>
</context>
<context>
    <name>NoticeBar</name>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>OverflowRow</name>
    <message>
        <source>More options</source>
        <translation>Plus d’options</translation>
    </message>
</context>
<context>
    <name>Panels</name>
    <message>
        <source>The image could not be printed.</source>
        <translation>L’image n’a pas pu être imprimée.</translation>
    </message>
    <message>
        <source>The printer did not take it.</source>
        <translation>L’imprimante ne l’a pas acceptée.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Tous les fichiers</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualité</translation>
    </message>
    <message>
        <source>Quality:</source>
        <translation>Qualité&#xa0;:</translation>
    </message>
    <message>
        <source>File already exists</source>
        <translation>Le fichier existe déjà</translation>
    </message>
    <message>
        <source>Do you want to overwrite the existing file?</source>
        <translation>Voulez-vous remplacer le fichier existant&#x202f;?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Save Image</source>
        <translation>Enregistrer l’image</translation>
    </message>
    <message>
        <source>Choose Folder</source>
        <translation>Choisir un dossier</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>Ouvrir une image</translation>
    </message>
</context>
<context>
    <name>Prefs</name>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>&amp;Unit:</source>
        <translation>&amp;Unité&#xa0;:</translation>
    </message>
    <message>
        <source>The unit that lengths are shown in</source>
        <translation>L’unité dans laquelle les longueurs sont affichées</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>Pixels</translation>
    </message>
    <message>
        <source>Centimeters</source>
        <translation>Centimètres</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>Pouces</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Points</translation>
    </message>
    <message>
        <source>&amp;Appearance:</source>
        <translation>&amp;Apparence&#xa0;:</translation>
    </message>
    <message>
        <source>Light or dark windows</source>
        <translation>Fenêtres claires ou sombres</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Comme le bureau</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Claire</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>Play &amp;sounds</source>
        <translation>&amp;Jouer les sons</translation>
    </message>
    <message>
        <source>Cues for floated, dropped and filled selections and finished runs</source>
        <translation>Signaux pour les sélections soulevées, abandonnées et remplies et les traitements finis</translation>
    </message>
    <message>
        <source>Held keys</source>
        <translation>Touches maintenues</translation>
    </message>
    <message>
        <source>Some desktops take a key for themselves. Each role can be given to another one; Shift always adds and draws straight.</source>
        <translation>Certains bureaux prennent une touche pour eux. Chaque rôle peut en recevoir une autre&#x202f;; Maj ajoute et trace droit toujours.</translation>
    </message>
    <message>
        <source>&amp;Option (subtract, set source):</source>
        <translation>&amp;Option (soustraire, définir la source)&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Control (oval, polygon):</source>
        <translation>&amp;Control (ovale, polygone)&#xa0;:</translation>
    </message>
    <message>
        <source>Co&amp;mmand (square, float):</source>
        <translation>Command (carré, &amp;flotter)&#xa0;:</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Fenêtres</translation>
    </message>
    <message>
        <source>&amp;Keep windows where I put them</source>
        <translation>&amp;Garder les fenêtres où je les mets</translation>
    </message>
    <message>
        <source>Windows and dialogs come back in their last place instead of the middle of the screen</source>
        <translation>Fenêtres et dialogues reviennent à leur dernière place plutôt qu’au milieu de l’écran</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Raccourcis</translation>
    </message>
    <message>
        <source>C&amp;hange Shortcuts…</source>
        <translation>&amp;Modifier les raccourcis…</translation>
    </message>
    <message>
        <source>All commands with their keys</source>
        <translation>Toutes les commandes avec leurs touches</translation>
    </message>
    <message>
        <source>About box</source>
        <translation>Fenêtre À propos</translation>
    </message>
    <message>
        <source>Project &amp;page:</source>
        <translation>&amp;Page du projet&#xa0;:</translation>
    </message>
    <message>
        <source>The page that the About box opens</source>
        <translation>La page qu’ouvre la fenêtre À propos</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>F&amp;ermer</translation>
    </message>
</context>
<context>
    <name>Printing</name>
    <message>
        <source>There is not enough memory.</source>
        <translation>La mémoire est insuffisante.</translation>
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
        <translation>Examen du dossier…</translation>
    </message>
    <message>
        <source>The folder has no .tiff or .jpg image.</source>
        <translation>Le dossier ne contient aucune image .tiff ou .jpg.</translation>
    </message>
    <message>
        <source>The largest, the middle and the smallest of %1 images of one shape</source>
        <translation>La plus grande, la moyenne et la plus petite de %1 images de même forme</translation>
    </message>
    <message>
        <source>The widest, the tallest and the squarest of %1 images</source>
        <translation>La plus large, la plus haute et la plus carrée de %1 images</translation>
    </message>
    <message>
        <source>%1; the folder has %2</source>
        <translation>%1&#xa0;; le dossier en a %2</translation>
    </message>
</context>
<context>
    <name>Rename</name>
    <message>
        <source>Rename</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>&amp;New name (the extension stays as it is):</source>
        <translation>&amp;Nouveau nom (l’extension reste la même)&#xa0;:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>Resize</name>
    <message>
        <source>Resize Image</source>
        <translation>Redimensionner l’image</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>&amp;Largeur&#xa0;:</translation>
    </message>
    <message>
        <source>New width in pixels</source>
        <translation>Nouvelle largeur en pixels</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>pixels</translation>
    </message>
    <message>
        <source>New width in percent of the present one</source>
        <translation>Nouvelle largeur en pour cent de l’actuelle</translation>
    </message>
    <message>
        <source>Width in percent</source>
        <translation>Largeur en pour cent</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>&amp;Hauteur&#xa0;:</translation>
    </message>
    <message>
        <source>New height in pixels</source>
        <translation>Nouvelle hauteur en pixels</translation>
    </message>
    <message>
        <source>New height in percent of the present one</source>
        <translation>Nouvelle hauteur en pour cent de l’actuelle</translation>
    </message>
    <message>
        <source>Height in percent</source>
        <translation>Hauteur en pour cent</translation>
    </message>
    <message>
        <source>File size:</source>
        <translation>Taille du fichier&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Scale image</source>
        <translation>&amp;Mettre l’image à l’échelle</translation>
    </message>
    <message>
        <source>On: the image is resampled to the new size. Off: it keeps its pixels at the place below and is cut or extended</source>
        <translation>Activé&#xa0;: l’image est rééchantillonnée à la nouvelle taille. Désactivé&#xa0;: elle garde ses pixels à l’emplacement ci-dessous et elle est coupée ou étendue</translation>
    </message>
    <message>
        <source>&amp;Keep aspect ratio</source>
        <translation>&amp;Garder les proportions</translation>
    </message>
    <message>
        <source>Width and height follow each other</source>
        <translation>La largeur et la hauteur se suivent</translation>
    </message>
    <message>
        <source>&amp;Place:</source>
        <translation>&amp;Emplacement&#xa0;:</translation>
    </message>
    <message>
        <source>Where the image sits in the new size, when it is not scaled</source>
        <translation>Où se place l’image dans la nouvelle taille, quand elle n’est pas mise à l’échelle</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>En haut à gauche</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>En haut</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>En haut à droite</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>À gauche</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Au milieu</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>À droite</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>En bas à gauche</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>En bas</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>En bas à droite</translation>
    </message>
    <message>
        <source>S&amp;harp pixels</source>
        <translation>&amp;Pixels nets</translation>
    </message>
    <message>
        <source>When it is scaled, pixels stay squares of one colour instead of being blended</source>
        <translation>À la mise à l’échelle, les pixels restent des carrés d’une couleur au lieu d’être fondus</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Resize</source>
        <translation>Redimensionner</translation>
    </message>
    <message>
        <source>Width and height must be from 1 to %1 pixels, and the image at most %2 megapixels.</source>
        <translation>La largeur et la hauteur doivent être de 1 à %1 pixels, et l’image de %2 mégapixels au plus.</translation>
    </message>
    <message>
        <source>The image could not be resized.</source>
        <translation>L’image n’a pas pu être redimensionnée.</translation>
    </message>
    <message>
        <source>There is not enough memory for an image of this size.</source>
        <translation>La mémoire est insuffisante pour une image de cette taille.</translation>
    </message>
</context>
<context>
    <name>SaveSelection</name>
    <message>
        <source>Save Selection</source>
        <translation>Enregistrer la sélection</translation>
    </message>
    <message>
        <source>&amp;Name of the selection:</source>
        <translation>&amp;Nom de la sélection&#xa0;:</translation>
    </message>
    <message>
        <source>The outline is kept under this name; a selection of the same name is replaced</source>
        <translation>Le contour est gardé sous ce nom&#x202f;; une sélection du même nom est remplacée</translation>
    </message>
    <message>
        <source>Only the outline is kept. It can be loaded into any image.</source>
        <translation>Seul le contour est gardé. Il peut être chargé dans toute image.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Close without saving</source>
        <translation>Fermer sans enregistrer</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Save the outline of the selection</source>
        <translation>Enregistrer le contour de la sélection</translation>
    </message>
</context>
<context>
    <name>SaveSelectionDialog</name>
    <message>
        <source>Please enter a valid name for the selection</source>
        <translation>Veuillez saisir un nom valable pour la sélection</translation>
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
        <translation>La sélection n’a pas pu être enregistrée.</translation>
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
        <translation>Ce qui a été fait depuis l’ouverture de l’image</translation>
    </message>
    <message>
        <source>What is done to the image is written down here.</source>
        <translation>Ce qui est fait à l’image est noté ici.</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>The whole script on the clipboard</source>
        <translation>Le script entier dans le presse-papiers</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>&amp;Enregistrer…</translation>
    </message>
    <message>
        <source>The whole script as a file</source>
        <translation>Le script entier dans un fichier</translation>
    </message>
    <message>
        <source>&amp;Play…</source>
        <translation>&amp;Jouer…</translation>
    </message>
    <message>
        <source>Plays a script&apos;s file on the image</source>
        <translation>Joue un fichier de script sur l’image</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>&amp;Arrêter</translation>
    </message>
    <message>
        <source>Ends the script before its next command</source>
        <translation>Termine le script avant sa prochaine commande</translation>
    </message>
    <message>
        <source>Save Script</source>
        <translation>Enregistrer le script</translation>
    </message>
    <message>
        <source>Saved %1.</source>
        <translation>%1 enregistré.</translation>
    </message>
    <message>
        <source>The script could not be saved.</source>
        <translation>Le script n’a pas pu être enregistré.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Play a Script</source>
        <translation>Jouer un script</translation>
    </message>
    <message>
        <source>Playing %1…</source>
        <translation>Lecture de %1…</translation>
    </message>
    <message>
        <source>The script is done.</source>
        <translation>Le script est terminé.</translation>
    </message>
    <message>
        <source>Line %1 of the script: %2.</source>
        <translation>Ligne %1 du script : %2.</translation>
    </message>
</context>
<context>
    <name>SelectionByNumber</name>
    <message>
        <source>Position and Size</source>
        <translation>Position et taille</translation>
    </message>
    <message>
        <source>&amp;Left:</source>
        <translation>&amp;Gauche&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Top:</source>
        <translation>&amp;Haut&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>&amp;Largeur&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>H&amp;auteur&#xa0;:</translation>
    </message>
    <message>
        <source>Any size</source>
        <translation>Taille libre</translation>
    </message>
    <message>
        <source>This ratio of width to height</source>
        <translation>Ce rapport de largeur et hauteur</translation>
    </message>
    <message>
        <source>This size</source>
        <translation>Cette taille</translation>
    </message>
    <message>
        <source>What a rectangle or oval keeps to while it is dragged with the mouse</source>
        <translation>Ce que suit un rectangle ou un ovale tracé à la souris</translation>
    </message>
    <message>
        <source>New &amp;marquees:</source>
        <translation>&amp;Nouveaux cadres&#xa0;:</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Sélectionner</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>SelectionChip</name>
    <message>
        <source>Floating</source>
        <translation>Flottante</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Anchor ⏎</source>
        <translation>Ancrer ⏎</translation>
    </message>
    <message>
        <source>Drop Esc</source>
        <translation>Abandonner Échap</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Remplir</translation>
    </message>
    <message>
        <source>Stroke</source>
        <translation>Contour</translation>
    </message>
    <message>
        <source>Float</source>
        <translation>Flotter</translation>
    </message>
</context>
<context>
    <name>ShortcutsWindow</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>Find a command or a key</source>
        <translation>Chercher une commande ou une touche</translation>
    </message>
    <message>
        <source>Commands and their keys</source>
        <translation>Commandes et leurs touches</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Touches</translation>
    </message>
    <message>
        <source>New &amp;keys:</source>
        <translation>&amp;Nouvelles touches&#xa0;:</translation>
    </message>
    <message>
        <source>New keys</source>
        <translation>Nouvelles touches</translation>
    </message>
    <message>
        <source>&amp;Set</source>
        <translation>&amp;Attribuer</translation>
    </message>
    <message>
        <source>The chosen command gets these keys; without keys it has none</source>
        <translation>La commande choisie reçoit ces touches&#x202f;; sans touches, elle n’en a aucune</translation>
    </message>
    <message>
        <source>As &amp;Given</source>
        <translation>&amp;Par défaut</translation>
    </message>
    <message>
        <source>The chosen command gets its own keys back</source>
        <translation>La commande choisie retrouve ses propres touches</translation>
    </message>
    <message>
        <source>&amp;All as Given</source>
        <translation>&amp;Tout par défaut</translation>
    </message>
    <message>
        <source>Every command gets its own keys back</source>
        <translation>Chaque commande retrouve ses propres touches</translation>
    </message>
    <message>
        <source>Tools, over the image</source>
        <translation>Outils, sur l’image</translation>
    </message>
    <message>
        <source>%1 belongs to %2 now, which would lose it.</source>
        <translation>%1 appartient maintenant à «&#xa0;%2&#xa0;», qui le perdrait.</translation>
    </message>
    <message>
        <source>%1 chooses the tool %2, which would not hear it any more.</source>
        <translation>%1 choisit l’outil «&#xa0;%2&#xa0;», qui ne l’entendrait plus.</translation>
    </message>
</context>
<context>
    <name>SizeSaveDialog</name>
    <message>
        <source>There is not enough memory.</source>
        <translation>Il n’y a pas assez de mémoire.</translation>
    </message>
    <message>
        <source>Save for a Size</source>
        <translation>Enregistrer pour une taille</translation>
    </message>
    <message>
        <source>The image before and after</source>
        <translation>L’image avant et après</translation>
    </message>
    <message>
        <source>Drag to see another place; the wheel zooms</source>
        <translation>Glisser montre un autre endroit ; la molette zoome</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Enregistrer…</translation>
    </message>
    <message>
        <source>Before: %1 × %2</source>
        <translation>Avant : %1 × %2</translation>
    </message>
    <message>
        <source>WebP files are smaller and keep transparency; older programs cannot open them</source>
        <translation>Les fichiers WebP sont plus petits et gardent la transparence ; les anciens programmes ne les ouvrent pas</translation>
    </message>
    <message>
        <source>&amp;Kind of file:</source>
        <translation>&amp;Type de fichier :</translation>
    </message>
    <message>
        <source>&amp;At most</source>
        <translation>&amp;Au plus</translation>
    </message>
    <message>
        <source> KB</source>
        <translation> Ko</translation>
    </message>
    <message>
        <source>Size of the file</source>
        <translation>Taille du fichier</translation>
    </message>
    <message>
        <source>As small as &amp;looks the same</source>
        <translation>Aussi petit qu’il &amp;paraît identique</translation>
    </message>
    <message>
        <source>&amp;Quality</source>
        <translation>&amp;Qualité</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualité</translation>
    </message>
    <message>
        <source>Searching…</source>
        <translation>Recherche…</translation>
    </message>
    <message>
        <source>Trying quality %1…</source>
        <translation>Essai de la qualité %1…</translation>
    </message>
    <message>
        <source>After: %1 · %2</source>
        <translation>Après : %1 · %2</translation>
    </message>
    <message>
        <source>Likeness %1, in the worst place %2</source>
        <translation>Ressemblance %1, au pire endroit %2</translation>
    </message>
</context>
<context>
    <name>SmartFill</name>
    <message>
        <source>Smart Fill</source>
        <translation>Remplissage intelligent</translation>
    </message>
    <message>
        <source>&amp;Radius:</source>
        <translation>&amp;Rayon&#xa0;:</translation>
    </message>
    <message>
        <source>How far around the selection to look for texture, in percent of its width and height</source>
        <translation>Jusqu’où chercher de la texture autour de la sélection, en pour cent de sa largeur et de sa hauteur</translation>
    </message>
    <message>
        <source>Radius in percent</source>
        <translation>Rayon en pour cent</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>&amp;Faster, at half the resolution</source>
        <translation>&amp;Plus vite, à demi-résolution</translation>
    </message>
    <message>
        <source>Works on every second pixel; the selection&apos;s whole box becomes coarser</source>
        <translation>Travaille sur un pixel sur deux&#x202f;; tout le cadre de la sélection devient plus grossier</translation>
    </message>
    <message>
        <source>Time:</source>
        <translation>Temps&#xa0;:</translation>
    </message>
    <message>
        <source>0.0 sec</source>
        <translation>0,0 s</translation>
    </message>
    <message>
        <source>Elapsed time</source>
        <translation>Temps écoulé</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>You can go on working during a run, but changes inside the work area will be overwritten when it ends.</source>
        <translation>Vous pouvez continuer à travailler pendant le calcul, mais les modifications dans la zone de travail seront écrasées à la fin.</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>&amp;Lancer</translation>
    </message>
    <message>
        <source>&amp;Keep lines</source>
        <translation>&amp;Garder les lignes</translation>
    </message>
    <message>
        <source>Edges that enter the selection on one side and leave it on another are drawn through it first</source>
        <translation>Les contours qui entrent dans la sélection d’un côté et en sortent d’un autre y sont d’abord prolongés</translation>
    </message>
    <message>
        <source>&amp;Even out patches</source>
        <translation>Égaliser les racc&amp;ords</translation>
    </message>
    <message>
        <source>Takes away steps in brightness and colour where patches from different places meet</source>
        <translation>Supprime les écarts de luminosité et de couleur là où se touchent des morceaux pris à des endroits différents</translation>
    </message>
    <message>
        <source>&amp;Take From…</source>
        <translation>Prendre &amp;dans…</translation>
    </message>
    <message>
        <source>Takes colours only from what is selected in the image now; pressed again, from anywhere</source>
        <translation>Ne prend les couleurs que dans ce qui est sélectionné maintenant&#x202f;; pressé de nouveau, partout</translation>
    </message>
    <message>
        <source>anywhere</source>
        <translation>partout</translation>
    </message>
    <message>
        <source>Taken from</source>
        <translation>Pris dans</translation>
    </message>
    <message>
        <source>&amp;Never From…</source>
        <translation>&amp;Jamais dans…</translation>
    </message>
    <message>
        <source>Takes no colour from what is selected in the image now; pressed again, from anywhere</source>
        <translation>Ne prend aucune couleur dans ce qui est sélectionné maintenant&#x202f;; pressé de nouveau, partout</translation>
    </message>
    <message>
        <source>nowhere</source>
        <translation>nulle part</translation>
    </message>
    <message>
        <source>Never taken from</source>
        <translation>Jamais pris dans</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>Aperç&amp;u</translation>
    </message>
    <message>
        <source>Shows the fill over the image; Run then leaves it there</source>
        <translation>Montre le remplissage sur l’image&#x202f;; Lancer l’y laisse ensuite</translation>
    </message>
    <message>
        <source>&amp;Another Result</source>
        <translation>Autr&amp;e résultat</translation>
    </message>
    <message>
        <source>Shows what other random numbers make of it</source>
        <translation>Montre ce qu’en font d’autres nombres aléatoires</translation>
    </message>
    <message>
        <source>Re&amp;move Brush</source>
        <translation>Pinceau de suppre&amp;ssion</translation>
    </message>
    <message>
        <source>Paint over a thing in the image and let go: it is gone</source>
        <translation>Peignez sur un objet de l’image et relâchez&#xa0;: il disparaît</translation>
    </message>
    <message>
        <source>One of the last four results: shows it over the image; pressed again, the image without it</source>
        <translation>L’un des quatre derniers résultats&#xa0;: le montre sur l’image&#x202f;; pressé de nouveau, l’image sans lui</translation>
    </message>
    <message>
        <source>Result 1</source>
        <translation>Résultat 1</translation>
    </message>
    <message>
        <source>Result 2</source>
        <translation>Résultat 2</translation>
    </message>
    <message>
        <source>Result 3</source>
        <translation>Résultat 3</translation>
    </message>
    <message>
        <source>Result 4</source>
        <translation>Résultat 4</translation>
    </message>
</context>
<context>
    <name>SmartFillStudio</name>
    <message>
        <source>anywhere</source>
        <translation>partout</translation>
    </message>
    <message>
        <source>nowhere</source>
        <translation>nulle part</translation>
    </message>
    <message>
        <source>select the place in the image first</source>
        <translation>sélectionnez d’abord l’endroit dans l’image</translation>
    </message>
    <message>
        <source>the selection of %1 × %2</source>
        <translation>la sélection de %1 × %2</translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message>
        <source>Box of the selection</source>
        <translation>Cadre de la sélection</translation>
    </message>
    <message>
        <source>The selection: its corner and its size. Drag this to another program to hand it over as a PNG image.</source>
        <translation>La sélection&#xa0;: son coin et sa taille. Faites glisser ceci vers un autre programme pour la lui donner comme image PNG.</translation>
    </message>
    <message>
        <source>Colour under the pointer</source>
        <translation>Couleur sous le pointeur</translation>
    </message>
    <message>
        <source>Position and colour under the pointer</source>
        <translation>Position et couleur sous le pointeur</translation>
    </message>
    <message>
        <source>Size of the image and zoom</source>
        <translation>Taille de l’image et zoom</translation>
    </message>
    <message>
        <source>Open an image, make a new one, or drop a file on the window</source>
        <translation>Ouvrez une image, créez-en une ou déposez un fichier sur la fenêtre</translation>
    </message>
    <message>
        <source>Click the next corner · Return closes the shape, Escape gives it up</source>
        <translation>Cliquez le coin suivant · Entrée ferme la forme, Échap l’abandonne</translation>
    </message>
    <message>
        <source>Rest: what a click takes · drag right: more tolerance, left: less · %1 adds, %2 subtracts</source>
        <translation>Arrêt : ce que prend un clic · glisser à droite : plus de tolérance, à gauche : moins · %1 ajoute, %2 soustrait</translation>
    </message>
    <message>
        <source>Drag a corner&apos;s handle: it goes alone, %1: along a side, %2: all scale · Return anchors, Escape drops</source>
        <translation>Tirer la poignée d’un coin&#xa0;: il va seul, %1&#xa0;: le long d’un côté, %2&#xa0;: tout à l’échelle · Entrée ancre, Échap abandonne</translation>
    </message>
    <message>
        <source>Drag to move · the handles scale and turn, %1: steps of 15°, %2: one corner alone · Return anchors, Escape drops</source>
        <translation>Glisser déplace · les poignées mettent à l’échelle et tournent, %1&#xa0;: par 15°, %2&#xa0;: un coin seul · Entrée ancre, Échap abandonne</translation>
    </message>
    <message>
        <source>in perspective</source>
        <translation>en perspective</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Occupé</translation>
    </message>
</context>
<context>
    <name>Steps</name>
    <message>
        <source>Anchor Selection</source>
        <translation>Ancrer la sélection</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nouvelle image</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Couper</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Remplir</translation>
    </message>
    <message>
        <source>Stroke</source>
        <translation>Contour</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Rogner</translation>
    </message>
    <message>
        <source>Rotate Clockwise</source>
        <translation>Pivoter à droite</translation>
    </message>
    <message>
        <source>Rotate Counter-Clockwise</source>
        <translation>Pivoter à gauche</translation>
    </message>
    <message>
        <source>Flip Horizontally</source>
        <translation>Retourner horizontalement</translation>
    </message>
    <message>
        <source>Flip Vertically</source>
        <translation>Retourner verticalement</translation>
    </message>
    <message>
        <source>Resize</source>
        <translation>Redimensionner</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Déplacer</translation>
    </message>
    <message>
        <source>Brush</source>
        <translation>Pinceau</translation>
    </message>
    <message>
        <source>Pencil</source>
        <translation>Crayon</translation>
    </message>
    <message>
        <source>Eraser</source>
        <translation>Gomme</translation>
    </message>
    <message>
        <source>Paint Bucket</source>
        <translation>Pot de peinture</translation>
    </message>
    <message>
        <source>Clone Stamp</source>
        <translation>Clonage</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Smart Fill</source>
        <translation>Remplissage intelligent</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
</context>
<context>
    <name>TextEditor</name>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>&amp;Text:</source>
        <translation>&amp;Texte&#xa0;:</translation>
    </message>
    <message>
        <source>What is typed here stands on the image at once</source>
        <translation>Ce qui est tapé ici apparaît aussitôt sur l’image</translation>
    </message>
    <message>
        <source>Font family</source>
        <translation>Famille de police</translation>
    </message>
    <message>
        <source>Smaller; with Shift by ten</source>
        <translation>Plus petit&#x202f;; avec Maj, de dix</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>Plus petit</translation>
    </message>
    <message>
        <source>Size in pixels</source>
        <translation>Taille en pixels</translation>
    </message>
    <message>
        <source>Larger; with Shift by ten</source>
        <translation>Plus grand&#x202f;; avec Maj, de dix</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Plus grand</translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation>&amp;Gras</translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation>&amp;Italique</translation>
    </message>
    <message>
        <source>Colour of the preview below; the selection takes none</source>
        <translation>Couleur de l’aperçu ci-dessous&#x202f;; la sélection n’en prend pas</translation>
    </message>
    <message>
        <source>Colour of the preview</source>
        <translation>Couleur de l’aperçu</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>&amp;Left</source>
        <translation>G&amp;auche</translation>
    </message>
    <message>
        <source>&amp;Center</source>
        <translation>&amp;Centré</translation>
    </message>
    <message>
        <source>&amp;Right</source>
        <translation>&amp;Droite</translation>
    </message>
    <message>
        <source>&amp;Justified</source>
        <translation>&amp;Justifié</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Keeps the text as the selection</source>
        <translation>Garde le texte comme sélection</translation>
    </message>
    <message>
        <source>What is typed here stands on the image at once; Ctrl+Return is OK</source>
        <translation>Ce qui est tapé ici apparaît aussitôt sur l’image&#x202f;; Ctrl+Entrée vaut OK</translation>
    </message>
    <message>
        <source>&amp;Several lines</source>
        <translation>P&amp;lusieurs lignes</translation>
    </message>
    <message>
        <source>Return begins another line, which stands below</source>
        <translation>Entrée commence une nouvelle ligne en dessous</translation>
    </message>
    <message>
        <source>Alignment of the preview, and of several lines</source>
        <translation>Alignement de l’aperçu et de plusieurs lignes</translation>
    </message>
</context>
<context>
    <name>Tools</name>
    <message>
        <source>Rectangle Selection</source>
        <translation>Sélection rectangulaire</translation>
    </message>
    <message>
        <source>Selects a rectangle; square and oval by switch or key</source>
        <translation>Sélectionne un rectangle&#x202f;; carré et ovale par bouton ou touche</translation>
    </message>
    <message>
        <source>Drag to select; inside the selection it moves · {Shift} adds, {Option} subtracts · {Command}: square, {Control}: oval</source>
        <translation>Glisser sélectionne&#x202f;; dans la sélection, déplace · {Shift} ajoute, {Option} soustrait · {Command}&#xa0;: carré, {Control}&#xa0;: ovale</translation>
    </message>
    <message>
        <source>Lasso</source>
        <translation>Lasso</translation>
    </message>
    <message>
        <source>Selects by a drawn outline; polygon by switch or key, ended with Return</source>
        <translation>Sélectionne selon un contour dessiné&#x202f;; polygone par bouton ou touche, terminé par Entrée</translation>
    </message>
    <message>
        <source>Draw around what you want · {Shift} adds, {Option} subtracts · {Control}: corner by corner, Return ends</source>
        <translation>Entourez ce que vous voulez · {Shift} ajoute, {Option} soustrait · {Control}&#xa0;: coin par coin, Entrée termine</translation>
    </message>
    <message>
        <source>Magic Wand</source>
        <translation>Baguette magique</translation>
    </message>
    <message>
        <source>Selects the area of similar colour</source>
        <translation>Sélectionne la zone de couleur semblable</translation>
    </message>
    <message>
        <source>Click a colour · {Shift} adds, {Option} subtracts · Tolerance says how far colours may differ</source>
        <translation>Cliquez une couleur · {Shift} ajoute, {Option} soustrait · la tolérance dit de combien les couleurs peuvent différer</translation>
    </message>
    <message>
        <source>Brush</source>
        <translation>Pinceau</translation>
    </message>
    <message>
        <source>Paints with a brush tip</source>
        <translation>Peint avec une pointe de pinceau</translation>
    </message>
    <message>
        <source>Pencil</source>
        <translation>Crayon</translation>
    </message>
    <message>
        <source>Draws a line; straight with Shift</source>
        <translation>Trace une ligne&#x202f;; droite avec Maj</translation>
    </message>
    <message>
        <source>Drag to draw · {Shift}: one straight line · Escape takes it back</source>
        <translation>Glisser trace · {Shift}&#xa0;: une ligne droite · Échap la reprend</translation>
    </message>
    <message>
        <source>Eraser</source>
        <translation>Gomme</translation>
    </message>
    <message>
        <source>Makes pixels transparent; straight with Shift</source>
        <translation>Rend des pixels transparents&#x202f;; droit avec Maj</translation>
    </message>
    <message>
        <source>Drag to make transparent · {Shift}: one straight line · Escape takes it back</source>
        <translation>Glisser rend transparent · {Shift}&#xa0;: une ligne droite · Échap la reprend</translation>
    </message>
    <message>
        <source>Paint Bucket</source>
        <translation>Pot de peinture</translation>
    </message>
    <message>
        <source>Fills the area of similar colour</source>
        <translation>Remplit la zone de couleur semblable</translation>
    </message>
    <message>
        <source>Click to fill the area of one colour · Tolerance says how far colours may differ</source>
        <translation>Cliquez pour remplir la zone d’une couleur · la tolérance dit de combien les couleurs peuvent différer</translation>
    </message>
    <message>
        <source>Eyedropper</source>
        <translation>Pipette</translation>
    </message>
    <message>
        <source>Picks the colour under the pointer</source>
        <translation>Prélève la couleur sous le pointeur</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Places text as a selection</source>
        <translation>Place du texte comme sélection</translation>
    </message>
    <message>
        <source>Click where the text begins · inside the text, dragging moves it</source>
        <translation>Cliquez où commence le texte · dans le texte, glisser le déplace</translation>
    </message>
    <message>
        <source>Clone Stamp</source>
        <translation>Clonage</translation>
    </message>
    <message>
        <source>Paints with pixels from elsewhere; Option-click sets the source</source>
        <translation>Peint avec des pixels venus d’ailleurs&#x202f;; un clic avec Option fixe la source</translation>
    </message>
    <message>
        <source>{Option}+click says where pixels come from, then paint</source>
        <translation>{Option}+clic dit d’où viennent les pixels, puis peignez</translation>
    </message>
    <message>
        <source>Remove Brush</source>
        <translation>Pinceau de suppression</translation>
    </message>
    <message>
        <source>Fills what it is drawn over from its surroundings</source>
        <translation>Comble ce qu’il recouvre d’après l’entourage</translation>
    </message>
    <message>
        <source>Paint over what should vanish and let go · any tool ends this · Escape takes the stroke back</source>
        <translation>Peignez sur ce qui doit disparaître et relâchez · tout outil termine · Échap reprend le trait</translation>
    </message>
    <message>
        <source>Drag to paint · {smallerBrush:} and {largerBrush:} change the size, {swapColours:} the colour · Escape takes the stroke back</source>
        <translation>Glisser peint · {smallerBrush:} et {largerBrush:} changent la taille, {swapColours:} la couleur · Échap reprend le trait</translation>
    </message>
    <message>
        <source>Click or drag to pick the paint colour · {swapColours:} goes back to the one before</source>
        <translation>Cliquez ou glissez pour prélever la couleur de peinture · {swapColours:} revient à la précédente</translation>
    </message>
</context>
<context>
    <name>Transform</name>
    <message>
        <source>Transform Selection</source>
        <translation>Transformer la sélection</translation>
    </message>
    <message>
        <source>&amp;Scale:</source>
        <translation>É&amp;chelle&#xa0;:</translation>
    </message>
    <message>
        <source>Size of the selected pixels in percent; 100 is their own size</source>
        <translation>Taille des pixels sélectionnés en pour cent&#x202f;; 100 est leur propre taille</translation>
    </message>
    <message>
        <source>Scale slider</source>
        <translation>Curseur d’échelle</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Échelle</translation>
    </message>
    <message>
        <source>R&amp;otate:</source>
        <translation>&amp;Rotation&#xa0;:</translation>
    </message>
    <message>
        <source>Turns the selected pixels about their centre, in degrees</source>
        <translation>Tourne les pixels sélectionnés autour de leur centre, en degrés</translation>
    </message>
    <message>
        <source>Rotate slider</source>
        <translation>Curseur de rotation</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Rotation</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>Ré&amp;initialiser</translation>
    </message>
    <message>
        <source>Back to 100 % and 0 degrees</source>
        <translation>Retour à 100 % et 0 degré</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Closes the dialog; the selection keeps floating as shown</source>
        <translation>Ferme le dialogue&#x202f;; la sélection continue de flotter comme affiché</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
</context>
<context>
    <name>Wand</name>
    <message>
        <source>Outside: red differs by %1, the tolerance allows %2</source>
        <translation>Dehors : le rouge diffère de %1, la tolérance permet %2</translation>
    </message>
    <message>
        <source>Outside: green differs by %1, the tolerance allows %2</source>
        <translation>Dehors : le vert diffère de %1, la tolérance permet %2</translation>
    </message>
    <message>
        <source>Outside: blue differs by %1, the tolerance allows %2</source>
        <translation>Dehors : le bleu diffère de %1, la tolérance permet %2</translation>
    </message>
    <message>
        <source>Outside: opacity differs by %1, the tolerance allows %2</source>
        <translation>Dehors : l’opacité diffère de %1, la tolérance permet %2</translation>
    </message>
    <message>
        <source>Inside</source>
        <translation>Dedans</translation>
    </message>
    <message>
        <source>Outside: within the tolerance, but not connected</source>
        <translation>Dehors : dans la tolérance, mais non relié</translation>
    </message>
    <message>
        <source>Outside: a tolerance of 0 takes nothing</source>
        <translation>Dehors : une tolérance de 0 ne prend rien</translation>
    </message>
</context>
<context>
    <name>Watermark</name>
    <message>
        <source>The watermark could not be drawn.</source>
        <translation>Le filigrane n’a pas pu être dessiné.</translation>
    </message>
</context>
<context>
    <name>WatermarkText</name>
    <message>
        <source>Text as Watermark</source>
        <translation>Texte en filigrane</translation>
    </message>
    <message>
        <source>&amp;Text:</source>
        <translation>&amp;Texte&#xa0;:</translation>
    </message>
    <message>
        <source>© and your name</source>
        <translation>© et votre nom</translation>
    </message>
    <message>
        <source>&amp;Font:</source>
        <translation>&amp;Police&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation>&amp;Gras</translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation>&amp;Italique</translation>
    </message>
    <message>
        <source>&amp;Colour:</source>
        <translation>&amp;Couleur&#xa0;:</translation>
    </message>
    <message>
        <source>Colour of the letters</source>
        <translation>Couleur des lettres</translation>
    </message>
    <message>
        <source>With an &amp;edge that shows on light and dark</source>
        <translation>Avec un &amp;bord visible sur clair et sombre</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Créer</translation>
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
        <translation>Retouche d’images simple et pourtant puissante&#xa0;: peindre, sélectionner, retoucher, ajuster et convertir des images, une à une ou par dossier.</translation>
    </message>
    <message>
        <source>Free software under the GNU General Public License, version 3 or later. It comes with no warranty, to the extent that the law permits.</source>
        <translation>Logiciel libre sous la licence publique générale GNU, version 3 ou ultérieure. Il est fourni sans garantie, dans la mesure permise par la loi.</translation>
    </message>
</context>
<context>
    <name>ZPAppController</name>
    <message>
        <source>An image that was never saved</source>
        <translation>Une image jamais enregistrée</translation>
    </message>
    <message>
        <source>%1, %2 × %3 pixels, as it was after the last change.</source>
        <translation>%1, %2 × %3 pixels, telle qu’après la dernière modification.</translation>
    </message>
    <message>
        <source>Zelpane ended unexpectedly. Do you want to recover your last image?</source>
        <translation>Zelpane s’est arrêté de façon inattendue. Voulez-vous récupérer votre dernière image&#x202f;?</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>Récupérer</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Jeter</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Plus tard</translation>
    </message>
    <message>
        <source>Changed and never saved: %1.</source>
        <translation>Modifiée et jamais enregistrée&#xa0;: %1.</translation>
    </message>
    <message>
        <source>This is a (Snow) Leopard-only product!</source>
        <translation>Ce produit est réservé à (Snow) Leopard&#x202f;!</translation>
    </message>
    <message>
        <source>Mac OS X 10.5 or later is required.</source>
        <translation>Mac OS X 10.5 ou ultérieur est requis.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>What would you like to do? Create a new image or open an existing image.</source>
        <translation>Que voulez-vous faire&#x202f;? Créez une nouvelle image ou ouvrez-en une.</translation>
    </message>
    <message>
        <source>New…</source>
        <translation>Nouvelle…</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Ouvrir…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Do you really want to quit?</source>
        <translation>Voulez-vous vraiment quitter&#x202f;?</translation>
    </message>
    <message>
        <source>Make sure that the image is saved to disk.</source>
        <translation>Assurez-vous que l’image est enregistrée sur le disque.</translation>
    </message>
    <message>
        <source>No recent images</source>
        <translation>Aucune image récente</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer la liste</translation>
    </message>
    <message>
        <source>Read the User&apos;s Guide</source>
        <translation>Lire le guide de l’utilisateur</translation>
    </message>
    <message>
        <source>You can find the User&apos;s Guide in the same folder as this application.</source>
        <translation>Vous trouverez le guide de l’utilisateur dans le même dossier que cette application.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Do you really want to use the image processor?</source>
        <translation>Voulez-vous vraiment utiliser le traitement par lots&#x202f;?</translation>
    </message>
    <message>
        <source>Make sure that the current image is saved to disk.</source>
        <translation>Assurez-vous que l’image actuelle est enregistrée sur le disque.</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>You have enabled 2x retina display mode.</source>
        <translation>Vous avez activé l’affichage Retina 2x.</translation>
    </message>
    <message>
        <source>You have disabled 2x retina display mode.</source>
        <translation>Vous avez désactivé l’affichage Retina 2x.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>verb and name of a step: Undo Fill</comment>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Anchor Selection</source>
        <translation>Ancrer la sélection</translation>
    </message>
    <message>
        <source>Float Selection</source>
        <translation>Rendre la sélection flottante</translation>
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
        <source>Needs an image: open one or make a new one.</source>
        <translation>Il faut une image&#xa0;: ouvrez-en une ou créez-en une.</translation>
    </message>
    <message>
        <source>Needs a selection.</source>
        <translation>Il faut une sélection.</translation>
    </message>
    <message>
        <source>Needs an image on the clipboard.</source>
        <translation>Il faut une image dans le presse-papiers.</translation>
    </message>
    <message>
        <source>Needs an image that has a file: save it first.</source>
        <translation>Il faut une image qui a un fichier&#xa0;: enregistrez-la d’abord.</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>Il n’y a rien à annuler.</translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>Il n’y a rien à rétablir.</translation>
    </message>
    <message>
        <source>No selection was dropped yet.</source>
        <translation>Aucune sélection n’a encore été abandonnée.</translation>
    </message>
    <message>
        <source>No image was open before this one.</source>
        <translation>Aucune image n’était ouverte avant celle-ci.</translation>
    </message>
    <message>
        <source>Needs the main window.</source>
        <translation>Il faut la fenêtre principale.</translation>
    </message>
    <message>
        <source>Done: %1</source>
        <translation>Fait&#xa0;: %1</translation>
    </message>
    <message>
        <source>Copied what was done as a script.</source>
        <translation>Ce qui a été fait est copié comme script.</translation>
    </message>
</context>
<context>
    <name>ZPCanvas</name>
    <message>
        <source>Canvas</source>
        <translation>Canevas</translation>
    </message>
</context>
<context>
    <name>ZPFileManager</name>
    <message numerus="yes">
        <source>%n image(s)</source>
        <translation>
            <numerusform>%n image</numerusform>
            <numerusform>%n images</numerusform>
        </translation>
    </message>
    <message>
        <source>No image selected</source>
        <translation>Aucune image choisie</translation>
    </message>
    <message>
        <source>Drop images here</source>
        <translation>Déposez des images ici</translation>
    </message>
    <message>
        <source>The file that this link leads to is gone.</source>
        <translation>Le fichier auquel mène ce lien a disparu.</translation>
    </message>
    <message>
        <source>Add to Image Library</source>
        <translation>Ajouter à la photothèque</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Do you wish to delete the selected file?</source>
        <translation>Voulez-vous supprimer le fichier choisi&#x202f;?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Select a file to rename.</source>
        <translation>Choisissez un fichier à renommer.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Enter a valid new name.</source>
        <translation>Saisissez un nouveau nom valable.</translation>
    </message>
    <message>
        <source>looks the same</source>
        <translation>même aspect</translation>
    </message>
    <message>
        <source>Found again: “%1” in %2</source>
        <translation>Retrouvée&#xa0;: «&#xa0;%1&#xa0;» dans %2</translation>
    </message>
    <message>
        <source>An image of the same name, maybe another one: “%1” in %2</source>
        <translation>Une image du même nom, peut-être une autre&#xa0;: «&#xa0;%1&#xa0;» dans %2</translation>
    </message>
    <message>
        <source>Not found again in its old folder, below it or beside it.</source>
        <translation>Introuvable dans son ancien dossier, dessous ou à côté.</translation>
    </message>
    <message>
        <source>Looking for the image of this link…</source>
        <translation>Recherche de l’image de ce lien…</translation>
    </message>
    <message numerus="yes">
        <source>Found again: the images of %n broken link(s).</source>
        <translation>
            <numerusform>Retrouvée&#xa0;: l’image de %n lien rompu.</numerusform>
            <numerusform>Retrouvées&#xa0;: les images de %n liens rompus.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Do you wish to relink %n image(s)?</source>
        <translation>
            <numerusform>Voulez-vous relier %n image&#x202f;?</numerusform>
            <numerusform>Voulez-vous relier %n images&#x202f;?</numerusform>
        </translation>
    </message>
    <message>
        <source>Relink</source>
        <translation>Relier</translation>
    </message>
    <message>
        <source>A link could not be changed.</source>
        <translation>Un lien n’a pas pu être modifié.</translation>
    </message>
    <message>
        <source>Comparing %1 of %2</source>
        <translation>Comparaison de %1 sur %2</translation>
    </message>
    <message>
        <source>No duplicates</source>
        <translation>Aucun doublon</translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) more than once</source>
        <translation>
            <numerusform>%n image en double</numerusform>
            <numerusform>%n images en double</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ZPImageProcessor</name>
    <message>
        <source>Choose a source folder.</source>
        <translation>Choisissez un dossier source.</translation>
    </message>
    <message>
        <source>Choose a destination folder.</source>
        <translation>Choisissez un dossier de destination.</translation>
    </message>
    <message>
        <source>Source and destination folder cannot be the same.</source>
        <translation>Les dossiers source et destination ne peuvent pas être le même.</translation>
    </message>
    <message>
        <source>Error: Source or destination folder does not exist.</source>
        <translation>Erreur&#xa0;: le dossier source ou destination n’existe pas.</translation>
    </message>
    <message>
        <source>Ending after this image…</source>
        <translation>Fin après cette image…</translation>
    </message>
    <message>
        <source>Choose source folder</source>
        <translation>Choisir le dossier source</translation>
    </message>
    <message>
        <source>Choose destination folder</source>
        <translation>Choisir le dossier de destination</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Choisir</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The source folder cannot be listed.</source>
        <translation>Le contenu du dossier source est illisible.</translation>
    </message>
    <message>
        <source>%1 of %2: %3</source>
        <translation>%1 sur %2&#xa0;: %3</translation>
    </message>
    <message>
        <source>There is no canvas to work on.</source>
        <translation>Il n’y a pas de canevas sur lequel travailler.</translation>
    </message>
    <message>
        <source>One file could not be processed.</source>
        <translation>Un fichier n’a pas pu être traité.</translation>
    </message>
    <message numerus="yes">
        <source>%n files could not be processed.</source>
        <translation>
            <numerusform>%n fichier n’a pas pu être traité.</numerusform>
            <numerusform>%n fichiers n’ont pas pu être traités.</numerusform>
        </translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>The watermark could not be made.</source>
        <translation>Le filigrane n’a pas pu être créé.</translation>
    </message>
    <message>
        <source>The letters of this text have no outlines in this font.</source>
        <translation>Les lettres de ce texte n’ont pas de contours dans cette police.</translation>
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
        <translation>La mémoire est insuffisante pour ce remplissage.</translation>
    </message>
    <message>
        <source>Select a smaller area or lower the radius.</source>
        <translation>Sélectionnez une zone plus petite ou réduisez le rayon.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>There is nothing to fill from.</source>
        <translation>Il n’y a rien d’où remplir.</translation>
    </message>
    <message>
        <source>Select a smaller area or raise the radius.</source>
        <translation>Sélectionnez une zone plus petite ou augmentez le rayon.</translation>
    </message>
    <message>
        <source>The image changed meanwhile; the fill was dropped.</source>
        <translation>L’image a changé entre-temps&#x202f;; le remplissage a été abandonné.</translation>
    </message>
</context>
<context>
    <name>ZPTextEditor</name>
    <message>
        <source>The letters of this family are pictures without outlines. Please choose another family.</source>
        <translation>Les lettres de cette famille sont des images sans contours. Veuillez en choisir une autre.</translation>
    </message>
    <message>
        <source>Some characters are pictures without an outline and are left out.</source>
        <translation>Certains caractères sont des images sans contour et sont laissés de côté.</translation>
    </message>
</context>
<context>
    <name>zp::Document</name>
    <message>
        <source>There is not enough memory.</source>
        <translation>La mémoire est insuffisante.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>It was stopped.</source>
        <translation>L’opération a été interrompue.</translation>
    </message>
</context>
<context>
    <name>zp::WandExplainer</name>
    <message>
        <source>A click takes %1 px</source>
        <translation>Un clic prend %1 px</translation>
    </message>
    <message>
        <source>A click takes at least %1 px</source>
        <translation>Un clic prend au moins %1 px</translation>
    </message>
</context>
</TS>
