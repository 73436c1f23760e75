<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
<context>
    <name>AboutBox</name>
    <message>
        <source>About Zelpane</source>
        <translation>Sobre o Zelpane</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versão</translation>
    </message>
    <message>
        <source>Project &amp;Page</source>
        <translation>&amp;Página do projeto</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>Accessible</name>
    <message>
        <source>No image</source>
        <translation>Nenhuma imagem</translation>
    </message>
    <message>
        <source>%1 by %2 pixels</source>
        <translation>%1 por %2 pixels</translation>
    </message>
    <message>
        <source>zoom %1</source>
        <translation>zoom %1</translation>
    </message>
    <message>
        <source>selected: %1</source>
        <translation>selecionado: %1</translation>
    </message>
</context>
<context>
    <name>Adjust</name>
    <message>
        <source>Adjust Selection</source>
        <translation>Ajustar a seleção</translation>
    </message>
    <message>
        <source>&amp;Hue:</source>
        <translation>&amp;Matiz:</translation>
    </message>
    <message>
        <source>Turns all colours about the grey axis, in hundredths of a radian; 0 leaves them as they are</source>
        <translation>Gira todas as cores em torno do eixo dos cinzas, em centésimos de radiano; 0 as deixa como estão</translation>
    </message>
    <message>
        <source>Hue slider</source>
        <translation>Controle de matiz</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Matiz</translation>
    </message>
    <message>
        <source>Sa&amp;turation:</source>
        <translation>&amp;Saturação:</translation>
    </message>
    <message>
        <source>Strength of the colours: 0 is grey, 100 leaves them as they are</source>
        <translation>Força das cores: 0 é cinza, 100 as deixa como estão</translation>
    </message>
    <message>
        <source>Saturation slider</source>
        <translation>Controle de saturação</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturação</translation>
    </message>
    <message>
        <source>&amp;Brightness:</source>
        <translation>&amp;Brilho:</translation>
    </message>
    <message>
        <source>Added to every colour; 0 leaves them as they are</source>
        <translation>Somado a cada cor; 0 as deixa como estão</translation>
    </message>
    <message>
        <source>Brightness slider</source>
        <translation>Controle de brilho</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Brilho</translation>
    </message>
    <message>
        <source>&amp;Contrast:</source>
        <translation>&amp;Contraste:</translation>
    </message>
    <message>
        <source>Distance from mid grey; 100 leaves it as it is</source>
        <translation>Distância do cinza médio; 100 a deixa como está</translation>
    </message>
    <message>
        <source>Contrast slider</source>
        <translation>Controle de contraste</translation>
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
        <translation>Acima de 0 aumenta a nitidez, abaixo de 0 desfoca</translation>
    </message>
    <message>
        <source>Sharpness slider</source>
        <translation>Controle de nitidez</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>Nitidez</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Redefinir</translation>
    </message>
    <message>
        <source>All five back to what leaves the image as it is</source>
        <translation>Devolve os cinco ao que deixa a imagem como está</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Closes the dialog; the adjustment shown stays and can be undone once anchored</source>
        <translation>Fecha o diálogo; o ajuste mostrado fica e pode ser desfeito depois de ancorado</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Closes the dialog; the adjustment shown stays</source>
        <translation>Fecha o diálogo; o ajuste mostrado fica</translation>
    </message>
    <message>
        <source>The selection could not be adjusted.</source>
        <translation>Não foi possível ajustar a seleção.</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>Não há memória suficiente.</translation>
    </message>
    <message>
        <source>C&amp;ompare</source>
        <translation>C&amp;omparar</translation>
    </message>
    <message>
        <source>While it is pressed: the image without the adjustment</source>
        <translation>Enquanto pressionado: a imagem sem o ajuste</translation>
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
        <translation>Seleção %1.png</translation>
    </message>
    <message>
        <source>Nothing could be pasted.</source>
        <translation>Nada pôde ser colado.</translation>
    </message>
    <message>
        <source>The clipboard&apos;s image cannot be read.</source>
        <translation>A imagem da área de transferência não pode ser lida.</translation>
    </message>
    <message>
        <source>The clipboard&apos;s image is larger than %1 MB.</source>
        <translation>A imagem da área de transferência tem mais de %1 MB.</translation>
    </message>
</context>
<context>
    <name>Codecs</name>
    <message>
        <source>The image has no pixels.</source>
        <translation>A imagem não tem pixels.</translation>
    </message>
    <message>
        <source>The image is too large: %1 x %2 pixels.</source>
        <translation>A imagem é grande demais: %1 × %2 pixels.</translation>
    </message>
    <message>
        <source>The file is far too small for the %1 x %2 pixels it claims to hold.</source>
        <translation>O arquivo é pequeno demais para os %1 × %2 pixels que diz conter.</translation>
    </message>
    <message>
        <source>The image of %1 x %2 pixels does not fit this machine&apos;s memory.</source>
        <translation>A imagem de %1 × %2 pixels não cabe na memória desta máquina.</translation>
    </message>
    <message>
        <source>its data is damaged</source>
        <translation>seus dados estão danificados</translation>
    </message>
    <message>
        <source>It is not an image of a kind that can be opened.</source>
        <translation>Não é uma imagem de um tipo que possa ser aberto.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>O arquivo está vazio.</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>O arquivo não existe.</translation>
    </message>
    <message>
        <source>There is no permission to read the file.</source>
        <translation>Não há permissão para ler o arquivo.</translation>
    </message>
    <message>
        <source>The file is a link that leads nowhere.</source>
        <translation>O arquivo é um atalho que não leva a lugar nenhum.</translation>
    </message>
    <message>
        <source>The file&apos;s name is too long.</source>
        <translation>O nome do arquivo é longo demais.</translation>
    </message>
    <message>
        <source>The file cannot be read: %1.</source>
        <translation>O arquivo não pode ser lido: %1.</translation>
    </message>
    <message>
        <source>There is not enough memory to read the file.</source>
        <translation>Não há memória suficiente para ler o arquivo.</translation>
    </message>
    <message>
        <source>There is not enough memory for this image.</source>
        <translation>Não há memória suficiente para esta imagem.</translation>
    </message>
    <message>
        <source>The image cannot be read: %1.</source>
        <translation>A imagem não pode ser lida: %1.</translation>
    </message>
    <message>
        <source>The image cannot be read.</source>
        <translation>A imagem não pode ser lida.</translation>
    </message>
    <message>
        <source>It is a folder, not an image.</source>
        <translation>É uma pasta, não uma imagem.</translation>
    </message>
    <message>
        <source>It is not an ordinary file.</source>
        <translation>Não é um arquivo comum.</translation>
    </message>
    <message>
        <source>The file is larger than 4 GiB.</source>
        <translation>O arquivo tem mais de 4 GiB.</translation>
    </message>
    <message>
        <source>The colour profile is incomplete and was left out.</source>
        <translation>O perfil de cor está incompleto e foi deixado de fora.</translation>
    </message>
    <message>
        <source>There is not enough memory for this JPEG image.</source>
        <translation>Não há memória suficiente para esta imagem JPEG.</translation>
    </message>
    <message>
        <source>The JPEG data cannot be read: %1.</source>
        <translation>Os dados JPEG não podem ser lidos: %1.</translation>
    </message>
    <message>
        <source>JPEG images with two components cannot be read.</source>
        <translation>Imagens JPEG com dois componentes não podem ser lidas.</translation>
    </message>
    <message>
        <source>The JPEG data is damaged; what could be read is shown.</source>
        <translation>Os dados JPEG estão danificados; mostra-se o que pôde ser lido.</translation>
    </message>
    <message>
        <source>The %1 image is larger than the limits of this machine allow.</source>
        <translation>A imagem %1 é maior do que os limites desta máquina permitem.</translation>
    </message>
    <message>
        <source>The %1 data cannot be read: %2.</source>
        <translation>Os dados %1 não podem ser lidos: %2.</translation>
    </message>
    <message>
        <source>The image&apos;s data is damaged; what could be read is shown.</source>
        <translation>Os dados da imagem estão danificados; mostra-se o que pôde ser lido.</translation>
    </message>
    <message numerus="yes">
        <source>The image had %n bits a colour; it was reduced to 8.</source>
        <translation>
            <numerusform>A imagem tinha %n bit por cor; foi reduzida a 8.</numerusform>
            <numerusform>A imagem tinha %n bits por cor; foi reduzida a 8.</numerusform>
        </translation>
    </message>
    <message>
        <source>The EXIF data is damaged and was left out.</source>
        <translation>Os dados EXIF estão danificados e foram deixados de fora.</translation>
    </message>
    <message>
        <source>Damaged parts of the EXIF data were left out.</source>
        <translation>As partes danificadas dos dados EXIF foram deixadas de fora.</translation>
    </message>
    <message>
        <source>The XMP data is damaged and was left out.</source>
        <translation>Os dados XMP estão danificados e foram deixados de fora.</translation>
    </message>
    <message>
        <source>The colour profile is damaged and was left out.</source>
        <translation>O perfil de cor está danificado e foi deixado de fora.</translation>
    </message>
    <message>
        <source>The image was converted to RGB; its colour profile was left out.</source>
        <translation>A imagem foi convertida para RGB; seu perfil de cor foi deixado de fora.</translation>
    </message>
    <message>
        <source>The colour profile does not fit the image and was left out.</source>
        <translation>O perfil de cor não serve para a imagem e foi deixado de fora.</translation>
    </message>
    <message>
        <source>The IPTC data is damaged and was left out.</source>
        <translation>Os dados IPTC estão danificados e foram deixados de fora.</translation>
    </message>
    <message>
        <source>The file is damaged or ended too early; what could be read is shown.</source>
        <translation>O arquivo está danificado ou termina cedo demais; mostra-se o que pôde ser lido.</translation>
    </message>
    <message numerus="yes">
        <source>The file has %n page(s); this is the first.</source>
        <translation>
            <numerusform>O arquivo tem %n página; esta é a primeira.</numerusform>
            <numerusform>O arquivo tem %n páginas; esta é a primeira.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The file has %n frame(s); this is the first.</source>
        <translation>
            <numerusform>O arquivo tem %n quadro; este é o primeiro.</numerusform>
            <numerusform>O arquivo tem %n quadros; este é o primeiro.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The file has %n layer(s); this is what they make together.</source>
        <translation>
            <numerusform>O arquivo tem %n camada; isto é o que ela forma.</numerusform>
            <numerusform>O arquivo tem %n camadas; isto é o que formam juntas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The file has %n bits a colour; the image has 8.</source>
        <translation>
            <numerusform>O arquivo tem %n bit por cor; a imagem tem 8.</numerusform>
            <numerusform>O arquivo tem %n bits por cor; a imagem tem 8.</numerusform>
        </translation>
    </message>
    <message>
        <source>The file is in printing inks; the image is in red, green and blue.</source>
        <translation>O arquivo está em tintas de impressão; a imagem está em vermelho, verde e azul.</translation>
    </message>
    <message>
        <source>Save writes quality %1; this file has %2.</source>
        <translation>Salvar grava com qualidade %1; este arquivo tem %2.</translation>
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
            <numerusform>%n quadro</numerusform>
            <numerusform>%n quadros</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n layer(s)</source>
        <translation>
            <numerusform>%n camada</numerusform>
            <numerusform>%n camadas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n bits a colour</source>
        <translation>
            <numerusform>%n bit por cor</numerusform>
            <numerusform>%n bits por cor</numerusform>
        </translation>
    </message>
    <message>
        <source>its palette is corrupt</source>
        <translation>sua paleta está corrompida</translation>
    </message>
    <message>
        <source>its palette is damaged</source>
        <translation>sua paleta está danificada</translation>
    </message>
    <message>
        <source>it holds what is unknown and cannot be left out</source>
        <translation>eles contêm algo desconhecido que não pode ser deixado de fora</translation>
    </message>
    <message>
        <source>The PNG data cannot be read: %1.</source>
        <translation>Os dados PNG não podem ser lidos: %1.</translation>
    </message>
    <message>
        <source>its header is damaged</source>
        <translation>seu cabeçalho está danificado</translation>
    </message>
    <message>
        <source>it has no pixels</source>
        <translation>eles não têm pixels</translation>
    </message>
    <message>
        <source>the file is damaged or ends before its pixels</source>
        <translation>o arquivo está danificado ou termina antes de seus pixels</translation>
    </message>
    <message>
        <source>it has no palette</source>
        <translation>eles não têm paleta</translation>
    </message>
    <message>
        <source>The PNG data cannot be read: a checksum of its pixels is wrong.</source>
        <translation>Os dados PNG não podem ser lidos: uma soma de verificação de seus pixels está errada.</translation>
    </message>
    <message>
        <source>The PNG data cannot be read: not one row of its pixels is whole.</source>
        <translation>Os dados PNG não podem ser lidos: nenhuma linha de pixels está inteira.</translation>
    </message>
    <message>
        <source>The PNG data is damaged; what could be read is shown.</source>
        <translation>Os dados PNG estão danificados; mostra-se o que pôde ser lido.</translation>
    </message>
    <message>
        <source>The PSD data cannot be read: its palette is damaged.</source>
        <translation>Os dados PSD não podem ser lidos: sua paleta está danificada.</translation>
    </message>
    <message>
        <source>The PSD data is damaged; what could be read is shown.</source>
        <translation>Os dados PSD estão danificados; mostra-se o que pôde ser lido.</translation>
    </message>
    <message>
        <source>The TIFF structure is damaged.</source>
        <translation>A estrutura do arquivo TIFF está danificada.</translation>
    </message>
    <message>
        <source>TIFF images with so many or so large samples cannot be read.</source>
        <translation>Imagens TIFF com amostras tão numerosas ou tão grandes não podem ser lidas.</translation>
    </message>
    <message>
        <source>The TIFF file is compressed in a way that cannot be read.</source>
        <translation>O arquivo TIFF está comprimido de um modo que não pode ser lido.</translation>
    </message>
    <message>
        <source>The TIFF structure is damaged: its strips or tiles have no size.</source>
        <translation>A estrutura do arquivo TIFF está danificada: suas faixas ou blocos não têm tamanho.</translation>
    </message>
    <message>
        <source>The TIFF structure is damaged: its strips or tiles are too large.</source>
        <translation>A estrutura do arquivo TIFF está danificada: suas faixas ou blocos são grandes demais.</translation>
    </message>
    <message>
        <source>The TIFF structure is damaged: it has too many strips or tiles.</source>
        <translation>A estrutura do arquivo TIFF está danificada: há faixas ou blocos demais.</translation>
    </message>
    <message>
        <source>The TIFF data cannot be read: %1.</source>
        <translation>Os dados TIFF não podem ser lidos: %1.</translation>
    </message>
    <message>
        <source>The TIFF data is damaged: %1.</source>
        <translation>Os dados TIFF estão danificados: %1.</translation>
    </message>
    <message>
        <source>The TIFF data is damaged; what could be read is shown.</source>
        <translation>Os dados TIFF estão danificados; mostra-se o que pôde ser lido.</translation>
    </message>
    <message>
        <source>The %1 image cannot be read: its reader ended unexpectedly.</source>
        <translation>Não é possível ler a imagem %1: seu leitor terminou inesperadamente.</translation>
    </message>
    <message>
        <source>The %1 image cannot be read: its reader did not come to an end.</source>
        <translation>Não é possível ler a imagem %1: seu leitor não chegou ao fim.</translation>
    </message>
    <message>
        <source>Reading was stopped.</source>
        <translation>A leitura foi interrompida.</translation>
    </message>
    <message>
        <source>This kind of file has no quality to choose.</source>
        <translation>Este tipo de arquivo não tem qualidade a escolher.</translation>
    </message>
    <message>
        <source>A WebP file holds at most 16,383 pixels a side.</source>
        <translation>Um arquivo WebP tem no máximo 16.383 pixels por lado.</translation>
    </message>
    <message>
        <source>Even at the lowest quality the file is larger.</source>
        <translation>Mesmo na qualidade mais baixa o arquivo é maior.</translation>
    </message>
</context>
<context>
    <name>ColorPanel</name>
    <message>
        <source>The colour with its opacity</source>
        <translation>A cor com sua opacidade</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Cores</translation>
    </message>
    <message>
        <source>&amp;Pick Screen Colour</source>
        <translation>&amp;Capturar cor da tela</translation>
    </message>
</context>
<context>
    <name>ColorWell</name>
    <message>
        <source>Colour</source>
        <translation>Cor</translation>
    </message>
</context>
<context>
    <name>Compare</name>
    <message>
        <source>as opened</source>
        <translation>como foi aberta</translation>
    </message>
    <message>
        <source>as last saved</source>
        <translation>como foi salva por último</translation>
    </message>
    <message>
        <source>before the last step</source>
        <translation>antes do último passo</translation>
    </message>
    <message>
        <source>before</source>
        <translation>antes</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>Não há memória suficiente.</translation>
    </message>
    <message>
        <source>That state of the image cannot be read any more.</source>
        <translation>Esse estado da imagem não pode mais ser lido.</translation>
    </message>
    <message>
        <source>The image had another size then.</source>
        <translation>A imagem tinha outro tamanho.</translation>
    </message>
    <message>
        <source>Left of the pointer: %1</source>
        <translation>À esquerda do ponteiro: %1</translation>
    </message>
</context>
<context>
    <name>Corners</name>
    <message>
        <source>The selection does not have four corners.</source>
        <translation>A seleção não tem quatro cantos.</translation>
    </message>
    <message>
        <source>The selection could not be made upright.</source>
        <translation>Não foi possível endireitar a seleção.</translation>
    </message>
    <message>
        <source>It is seen from too far aside.</source>
        <translation>Ela é vista muito de lado.</translation>
    </message>
    <message>
        <source>With Polygon beside the lasso, click the corners of what is to become upright one by one.</source>
        <translation>Com “Polígono” ao lado do laço, clique um a um nos cantos do que deve ficar reto.</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>The file is too large for a small image of it.</source>
        <translation>O arquivo é grande demais para uma miniatura.</translation>
    </message>
</context>
<context>
    <name>Document</name>
    <message>
        <source>There is not enough memory.</source>
        <translation>Não há memória suficiente.</translation>
    </message>
</context>
<context>
    <name>EmptyView</name>
    <message>
        <source>Drop an image here</source>
        <translation>Solte uma imagem aqui</translation>
    </message>
    <message>
        <source>&amp;New…</source>
        <translation>&amp;Nova…</translation>
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
        <translation>Biblioteca de imagens</translation>
    </message>
    <message>
        <source>Images of the library</source>
        <translation>Imagens da biblioteca</translation>
    </message>
    <message>
        <source>Drop images here to add them</source>
        <translation>Solte imagens aqui para adicioná-las</translation>
    </message>
    <message>
        <source>Preview of the selected image</source>
        <translation>Visualização da imagem escolhida</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Adicionar…</translation>
    </message>
    <message>
        <source>Adds a link to an image</source>
        <translation>Adiciona um atalho para uma imagem</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation>&amp;Renomear…</translation>
    </message>
    <message>
        <source>Renames the selected entry (F2)</source>
        <translation>Renomeia o item escolhido (F2)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Excluir</translation>
    </message>
    <message>
        <source>Deletes the selected entry, never the image that a link leads to (Delete)</source>
        <translation>Exclui o item escolhido, nunca a imagem a que um atalho leva (Delete)</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>A&amp;brir</translation>
    </message>
    <message>
        <source>Opens the selected image in the editor (Return)</source>
        <translation>Abre a imagem escolhida no editor (Enter)</translation>
    </message>
    <message>
        <source>Re&amp;link</source>
        <translation>Re&amp;vincular</translation>
    </message>
    <message>
        <source>Lets the selected link lead to the image that was found</source>
        <translation>Faz o link escolhido levar à imagem encontrada</translation>
    </message>
    <message>
        <source>Relin&amp;k All…</source>
        <translation>Vincular &amp;todas…</translation>
    </message>
    <message>
        <source>Lets every broken link lead to its image, where that was found by its content</source>
        <translation>Faz cada link quebrado levar à sua imagem, se ela foi encontrada pelo conteúdo</translation>
    </message>
    <message>
        <source>Show D&amp;uplicates</source>
        <translation>Mostrar &amp;duplicatas</translation>
    </message>
    <message>
        <source>Shows only images that are here more than once: the same file, the same content, or the same look</source>
        <translation>Mostra só as imagens que estão aqui mais de uma vez: o mesmo arquivo, o mesmo conteúdo ou a mesma aparência</translation>
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
        <translation>A imagem seria grande demais.</translation>
    </message>
    <message>
        <source>An image can have up to 30,000 pixels a side and 1,000 megapixels in all.</source>
        <translation>Uma imagem pode ter até 30.000 pixels de lado e 1.000 megapixels ao todo.</translation>
    </message>
    <message>
        <source>The file could not be opened.</source>
        <translation>Não foi possível abrir o arquivo.</translation>
    </message>
    <message>
        <source>Use Save as TIFF…</source>
        <translation>Salvar como TIFF…</translation>
    </message>
    <message>
        <source>Use Save as JPEG…</source>
        <translation>Salvar como JPEG…</translation>
    </message>
    <message>
        <source>Use Save as PNG…</source>
        <translation>Salvar como PNG…</translation>
    </message>
    <message>
        <source>Save does not write files whose names have no extension.</source>
        <translation>Salvar não grava arquivos cujo nome não tem extensão.</translation>
    </message>
    <message>
        <source>Save does not write .%1 files.</source>
        <translation>Salvar não grava arquivos .%1.</translation>
    </message>
    <message>
        <source>Not opened: %1</source>
        <translation>Não aberto: %1</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The image could not be brought back.</source>
        <translation>Não foi possível trazer a imagem de volta.</translation>
    </message>
    <message>
        <source>Its steps are gone from the folder of temporary files.</source>
        <translation>Seus passos sumiram da pasta de arquivos temporários.</translation>
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
        <translation>Não há memória suficiente para codificar a imagem, ou ela é grande demais para este tipo de arquivo.</translation>
    </message>
    <message>
        <source>The file could not be written.</source>
        <translation>Não foi possível gravar o arquivo.</translation>
    </message>
    <message>
        <source>Saved %1 · %2 · %3</source>
        <translation>%1 salvo · %2 · %3</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <translation>Não salvo: %1</translation>
    </message>
    <message>
        <source>The file could not be saved.</source>
        <translation>Não foi possível salvar o arquivo.</translation>
    </message>
    <message>
        <source>There is no image to save.</source>
        <translation>Não há imagem para salvar.</translation>
    </message>
    <message>
        <source>Save does not write files of this name.</source>
        <translation>Salvar não grava arquivos com este nome.</translation>
    </message>
    <message>
        <source>Cannot save PSD file (Photoshop file)</source>
        <translation>Não é possível salvar arquivo PSD (arquivo do Photoshop)</translation>
    </message>
    <message>
        <source>Choose &apos;File&apos; &gt; &apos;Save as TIFF…&apos; or &apos;File&apos; &gt; &apos;Save as JPEG…&apos; to save the image in another image format.</source>
        <translation>Escolha “Arquivo” &gt; “Salvar como TIFF…” ou “Arquivo” &gt; “Salvar como JPEG…” para salvar a imagem em outro formato.</translation>
    </message>
    <message>
        <source>The file holds more than the image.</source>
        <translation>O arquivo contém mais do que a imagem.</translation>
    </message>
    <message>
        <source>%1 has %2. Saving the image into it takes that away.</source>
        <translation>%1 tem %2. Isso se perde ao salvar a imagem nele.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salvar</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Salvar como…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>The file was changed since it was opened.</source>
        <translation>O arquivo foi alterado desde que foi aberto.</translation>
    </message>
    <message>
        <source>Do you want to overwrite the existing file?</source>
        <translation>Deseja sobrescrever o arquivo existente?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sim</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Não</translation>
    </message>
    <message>
        <source>Its steps could not be read.</source>
        <translation>Não foi possível ler os passos dela.</translation>
    </message>
    <message>
        <source>It will be offered again at the next start.</source>
        <translation>Ela será oferecida novamente na próxima inicialização.</translation>
    </message>
    <message>
        <source>Reading the image…</source>
        <translation>Lendo a imagem…</translation>
    </message>
    <message>
        <source>Combining the outlines…</source>
        <translation>Combinando os contornos…</translation>
    </message>
</context>
<context>
    <name>Folders</name>
    <message>
        <source>The disk is full.</source>
        <translation>O disco está cheio.</translation>
    </message>
    <message>
        <source>The disk quota is used up.</source>
        <translation>A cota do disco se esgotou.</translation>
    </message>
    <message>
        <source>The file would be larger than is allowed here.</source>
        <translation>O arquivo seria maior do que se permite aqui.</translation>
    </message>
    <message>
        <source>There is no permission to write here.</source>
        <translation>Não há permissão para gravar aqui.</translation>
    </message>
    <message>
        <source>The disk cannot be written to.</source>
        <translation>Não é possível gravar no disco.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>A pasta não existe.</translation>
    </message>
    <message>
        <source>A part of the path is not a folder.</source>
        <translation>Uma parte do caminho não é uma pasta.</translation>
    </message>
    <message>
        <source>There is a folder of that name.</source>
        <translation>Há uma pasta com esse nome.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>O nome é longo demais.</translation>
    </message>
    <message>
        <source>The link leads round in a circle.</source>
        <translation>O atalho anda em círculo.</translation>
    </message>
    <message>
        <source>The disk reported an error.</source>
        <translation>O disco informou um erro.</translation>
    </message>
    <message>
        <source>Too many files are open.</source>
        <translation>Há arquivos demais abertos.</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message>
        <source>Undo steps cannot be written to the disk (%1). They are kept in memory until the program ends.</source>
        <translation>Os passos para desfazer não podem ser gravados no disco (%1). Eles ficam na memória até o programa terminar.</translation>
    </message>
    <message>
        <source>The last change could not be kept as a step of its own (%1).</source>
        <translation>A última alteração não pôde ser guardada como um passo próprio (%1).</translation>
    </message>
    <message>
        <source>There is no place for undo steps among the temporary files. A private folder of this session serves instead.</source>
        <translation>Não há lugar para os passos entre os arquivos temporários. Uma pasta particular desta sessão serve em vez disso.</translation>
    </message>
    <message>
        <source>Nothing was undone: what is on screen could be kept neither on the disk nor in memory.</source>
        <translation>Nada foi desfeito: o que está na tela não pôde ser guardado nem no disco nem na memória.</translation>
    </message>
    <message>
        <source>there is no undo folder</source>
        <translation>não há pasta para os passos</translation>
    </message>
    <message>
        <source>there is no image</source>
        <translation>não há imagem</translation>
    </message>
    <message>
        <source>the step before could not be encoded</source>
        <translation>o passo anterior não pôde ser codificado</translation>
    </message>
    <message>
        <source>the files could not be put in their places</source>
        <translation>os arquivos não puderam ser postos em seus lugares</translation>
    </message>
    <message>
        <source>not enough memory</source>
        <translation>memória insuficiente</translation>
    </message>
    <message>
        <source>The very pixels of the last change could not be kept (%1). Undo brings them back from a JPEG copy: colours may differ a little.</source>
        <translation>Não foi possível guardar os pixels exatos da última alteração (%1). Desfazer os traz de uma cópia JPEG: as cores podem diferir um pouco.</translation>
    </message>
    <message>
        <source>The very pixels of this step could not be read. What is shown comes from its JPEG copy: colours may differ a little.</source>
        <translation>Não foi possível ler os pixels exatos deste passo. O que é mostrado vem da cópia JPEG: as cores podem diferir um pouco.</translation>
    </message>
</context>
<context>
    <name>HistoryPanel</name>
    <message>
        <source>Change</source>
        <translation>Alteração</translation>
    </message>
    <message>
        <source>There is no room for the very pixels of this step: it comes back as its files hold it, nearly the same.</source>
        <translation>Não há lugar para os pixels exatos deste passo: ele volta como seus arquivos o guardam, quase igual.</translation>
    </message>
    <message>
        <source>This step could not be kept.</source>
        <translation>Este passo não pôde ser guardado.</translation>
    </message>
    <message>
        <source>Go to this step</source>
        <translation>Ir para este passo</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Histórico</translation>
    </message>
    <message>
        <source>Steps of the image, oldest first</source>
        <translation>Passos da imagem, do mais antigo ao mais recente</translation>
    </message>
</context>
<context>
    <name>ImageProcessor</name>
    <message>
        <source>Image Processor</source>
        <translation>Processamento em lote</translation>
    </message>
    <message>
        <source>&amp;Source folder:</source>
        <translation>&amp;Pasta de origem:</translation>
    </message>
    <message>
        <source>Every .tiff and .jpg image in it</source>
        <translation>Todas as imagens .tiff e .jpg que ela contém</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Escolher…</translation>
    </message>
    <message>
        <source>&amp;Destination folder:</source>
        <translation>Pasta &amp;de destino:</translation>
    </message>
    <message>
        <source>Save as:</source>
        <translation>Salvar como:</translation>
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
        <translation>Tamanho:</translation>
    </message>
    <message>
        <source>&amp;Fit into</source>
        <translation>&amp;Ajustar a</translation>
    </message>
    <message>
        <source>Width of the box in pixels</source>
        <translation>Largura da moldura em pixels</translation>
    </message>
    <message>
        <source>by</source>
        <translation>por</translation>
    </message>
    <message>
        <source>Height of the box in pixels</source>
        <translation>Altura da moldura em pixels</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>pixels</translation>
    </message>
    <message>
        <source>&amp;Watermark:</source>
        <translation>&amp;Marca d’água:</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nenhuma</translation>
    </message>
    <message>
        <source>Images in the watermark folder</source>
        <translation>Imagens da pasta de marcas d’água</translation>
    </message>
    <message>
        <source>&amp;Position:</source>
        <translation>P&amp;osição:</translation>
    </message>
    <message>
        <source>Fills in the position for images as large as the box</source>
        <translation>Preenche a posição para imagens tão grandes quanto a moldura</translation>
    </message>
    <message>
        <source>Custom position</source>
        <translation>Posição própria</translation>
    </message>
    <message>
        <source>Lower left</source>
        <translation>Inferior esquerda</translation>
    </message>
    <message>
        <source>Lower right</source>
        <translation>Inferior direita</translation>
    </message>
    <message>
        <source>Upper left</source>
        <translation>Superior esquerda</translation>
    </message>
    <message>
        <source>Upper right</source>
        <translation>Superior direita</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>From the left edge in pixels</source>
        <translation>A partir da borda esquerda, em pixels</translation>
    </message>
    <message>
        <source>From the lower edge in pixels</source>
        <translation>A partir da borda inferior, em pixels</translation>
    </message>
    <message>
        <source>In &amp;each image by its own size, with a margin of</source>
        <translation>&amp;Em cada imagem conforme seu tamanho, com margem de</translation>
    </message>
    <message>
        <source>The preset holds for every image, upright or flat, instead of filling in X and Y</source>
        <translation>A posição vale para cada imagem, em pé ou deitada, em vez de preencher X e Y</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source>Between the watermark and the edges of its corner in pixels</source>
        <translation>Entre a marca d’água e as bordas de seu canto, em pixels</translation>
    </message>
    <message>
        <source>Margin of the watermark</source>
        <translation>Margem da marca d’água</translation>
    </message>
    <message>
        <source>&amp;Opacity:</source>
        <translation>Opa&amp;cidade:</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Of the watermark, on top of its own</source>
        <translation>Da marca d’água, além da sua própria</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Executar</translation>
    </message>
    <message>
        <source>&amp;Relative: its longer side is</source>
        <translation>&amp;Relativa: seu lado maior tem</translation>
    </message>
    <message>
        <source>The watermark looks the same on small and large images, upright or flat: size, margin and position are in percent</source>
        <translation>A marca d’água tem a mesma aparência em imagens pequenas e grandes, em pé ou deitadas: tamanho, margem e posição são em porcentagem</translation>
    </message>
    <message>
        <source>Of the shorter side of each image</source>
        <translation>Do lado menor de cada imagem</translation>
    </message>
    <message>
        <source>Size of the watermark</source>
        <translation>Tamanho da marca d’água</translation>
    </message>
    <message>
        <source>of the image&apos;s shorter side</source>
        <translation>do lado menor da imagem</translation>
    </message>
    <message>
        <source>The watermark covers the whole image, from its position on</source>
        <translation>A marca d’água cobre toda a imagem, a partir de sua posição</translation>
    </message>
    <message>
        <source>Of the watermark&apos;s longer side</source>
        <translation>Do lado maior da marca d’água</translation>
    </message>
    <message>
        <source>Gaps between repeated watermarks</source>
        <translation>Espaços entre as marcas d’água repetidas</translation>
    </message>
    <message>
        <source>of its longer side</source>
        <translation>de seu lado maior</translation>
    </message>
    <message>
        <source>T&amp;urn:</source>
        <translation>&amp;Giro:</translation>
    </message>
    <message>
        <source>Of the watermark, against the clock</source>
        <translation>Da marca d’água, no sentido anti-horário</translation>
    </message>
    <message>
        <source>Pre&amp;view</source>
        <translation>Pré&amp;via</translation>
    </message>
    <message>
        <source>Shows what these settings make of three images of the folder; nothing is written</source>
        <translation>Mostra o que estes ajustes fazem de três imagens da pasta; nada é gravado</translation>
    </message>
    <message>
        <source>Repeated &amp;all over, with gaps of</source>
        <translation>Repetida por toda a &amp;imagem, com espaços de</translation>
    </message>
    <message>
        <source>Te&amp;xt…</source>
        <translation>Te&amp;xto…</translation>
    </message>
    <message>
        <source>Makes a line of text a watermark</source>
        <translation>Transforma uma linha de texto em marca d’água</translation>
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
        <translation>Shift</translation>
    </message>
</context>
<context>
    <name>Library</name>
    <message>
        <source>broken link</source>
        <translation>atalho quebrado</translation>
    </message>
</context>
<context>
    <name>LibraryModel</name>
    <message>
        <source>The file that this link leads to is gone. The link can be deleted.</source>
        <translation>O arquivo a que este atalho leva não existe mais. O atalho pode ser excluído.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>Dimensions</source>
        <translation>Dimensões</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Modificado</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Caminho</translation>
    </message>
    <message>
        <source>looks the same</source>
        <translation>mesma aparência</translation>
    </message>
    <message>
        <source>same content</source>
        <translation>mesmo conteúdo</translation>
    </message>
    <message>
        <source>same file</source>
        <translation>mesmo arquivo</translation>
    </message>
    <message>
        <source>Likeness</source>
        <translation>Semelhança</translation>
    </message>
</context>
<context>
    <name>LoadSelection</name>
    <message>
        <source>Load Selection</source>
        <translation>Carregar seleção</translation>
    </message>
    <message>
        <source>&amp;Saved selection:</source>
        <translation>&amp;Seleção salva:</translation>
    </message>
    <message>
        <source>The outline to use; it lands where it was drawn</source>
        <translation>O contorno a usar; ele fica onde foi desenhado</translation>
    </message>
    <message>
        <source>The selection that there is now is dropped, a floating one with its pixels.</source>
        <translation>A seleção atual é descartada, uma flutuante com seus pixels.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Excluir</translation>
    </message>
    <message>
        <source>Delete the chosen selection&apos;s file for good</source>
        <translation>Excluir para sempre o arquivo da seleção escolhida</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Close and keep the selection as it is</source>
        <translation>Fechar e deixar a seleção como está</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Carregar</translation>
    </message>
    <message>
        <source>Select by the chosen outline</source>
        <translation>Selecionar pelo contorno escolhido</translation>
    </message>
</context>
<context>
    <name>LoadSelectionDialog</name>
    <message>
        <source>Do you wish to delete the folder with all that is in it?</source>
        <translation>Deseja excluir a pasta com tudo o que ela contém?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Excluir</translation>
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
        <translation>Ferramenta (teclas 1 a 9 e 0)</translation>
    </message>
    <message>
        <source>Tool</source>
        <translation>Ferramenta</translation>
    </message>
    <message>
        <source>Paint colour and opacity</source>
        <translation>Cor de pintura e opacidade</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>Diameter of brush, pencil, eraser and clone stamp in pixels; also the text size and the width of strokes</source>
        <translation>Diâmetro do pincel, do lápis, da borracha e do carimbo em pixels; também o tamanho do texto e a espessura dos traços</translation>
    </message>
    <message>
        <source>Size in pixels</source>
        <translation>Tamanho em pixels</translation>
    </message>
    <message>
        <source>Shape of the brush tip</source>
        <translation>Forma da ponta do pincel</translation>
    </message>
    <message>
        <source>Brush shape</source>
        <translation>Forma do pincel</translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation>Tolerância</translation>
    </message>
    <message>
        <source>How far a colour may differ from the one under the pointer</source>
        <translation>Quanto uma cor pode diferir da que está sob o ponteiro</translation>
    </message>
    <message>
        <source>Tolerance in percent</source>
        <translation>Tolerância em porcentagem</translation>
    </message>
    <message>
        <source>Zoom (keys + and −, Ctrl+wheel)</source>
        <translation>Zoom (teclas + e −, Ctrl+roda)</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>What the pressure of a pen changes</source>
        <translation>O que a pressão de uma caneta altera</translation>
    </message>
    <message>
        <source>Pen pressure</source>
        <translation>Pressão da caneta</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Tool options</source>
        <translation>Opções da ferramenta</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Ferramentas</translation>
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
        <translation>Quadrado</translation>
    </message>
    <message>
        <source>Oval</source>
        <translation>Oval</translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation>Polígono</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Adicionar</translation>
    </message>
    <message>
        <source>Subtract</source>
        <translation>Subtrair</translation>
    </message>
    <message>
        <source>Float</source>
        <translation>Flutuar</translation>
    </message>
    <message>
        <source>Straight</source>
        <translation>Reto</translation>
    </message>
    <message>
        <source>Set source</source>
        <translation>Definir origem</translation>
    </message>
    <message>
        <source>Untitled[*] — Zelpane</source>
        <translation>Sem título[*] — Zelpane</translation>
    </message>
    <message>
        <source>The marquee becomes a square</source>
        <translation>A moldura vira um quadrado</translation>
    </message>
    <message>
        <source>The marquee becomes an oval</source>
        <translation>A moldura vira um oval</translation>
    </message>
    <message>
        <source>Click corners, Return ends</source>
        <translation>Clique nos cantos, Enter termina</translation>
    </message>
    <message>
        <source>The new shape joins the selection</source>
        <translation>A nova forma se soma à seleção</translation>
    </message>
    <message>
        <source>The new shape is cut from the selection</source>
        <translation>A nova forma é recortada da seleção</translation>
    </message>
    <message>
        <source>Dragging the selection lifts its pixels</source>
        <translation>Arrastar a seleção levanta seus pixels</translation>
    </message>
    <message>
        <source>One straight line from press to release</source>
        <translation>Uma linha reta do apertar ao soltar</translation>
    </message>
    <message>
        <source>The click sets where pixels come from</source>
        <translation>O clique define de onde vêm os pixels</translation>
    </message>
    <message>
        <source>%1 (as if %2 were held)</source>
        <translation>%1 (como se %2 estivesse pressionada)</translation>
    </message>
    <message>
        <source>The window manager moves windows with %1 and the mouse, so %1 never reaches the image. The switches above do the same.</source>
        <translation>O gerenciador de janelas move janelas com %1 e o mouse; por isso %1 nunca chega à imagem. Os botões acima fazem o mesmo.</translation>
    </message>
    <message>
        <source>Use %1 instead</source>
        <translation>Usar %1 no lugar</translation>
    </message>
    <message>
        <source>Even pressure</source>
        <translation>Pressão igual</translation>
    </message>
    <message>
        <source>Pressure: size</source>
        <translation>Pressão: tamanho</translation>
    </message>
    <message>
        <source>Pressure: opacity</source>
        <translation>Pressão: opacidade</translation>
    </message>
    <message>
        <source>Explain</source>
        <translation>Explicar</translation>
    </message>
    <message>
        <source>Where the pointer rests, what a click takes; a drag after the press changes the tolerance</source>
        <translation>Onde o ponteiro repousa, o que um clique pega; arrastar depois de pressionar muda a tolerância</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>About Zelpane</source>
        <translation>Sobre o Zelpane</translation>
    </message>
    <message>
        <source>Version and licence</source>
        <translation>Versão e licença</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>Preferências…</translation>
    </message>
    <message>
        <source>Units, keys and other settings</source>
        <translation>Unidades, teclas e outras configurações</translation>
    </message>
    <message>
        <source>Quit Zelpane</source>
        <translation>Sair do Zelpane</translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation>Encerra o programa</translation>
    </message>
    <message>
        <source>New…</source>
        <translation>Nova…</translation>
    </message>
    <message>
        <source>Makes a blank image</source>
        <translation>Cria uma imagem vazia</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Abrir…</translation>
    </message>
    <message>
        <source>Opens an image file</source>
        <translation>Abre um arquivo de imagem</translation>
    </message>
    <message>
        <source>Open Recent</source>
        <translation>Abrir recente</translation>
    </message>
    <message>
        <source>Previous Image</source>
        <translation>Imagem anterior</translation>
    </message>
    <message>
        <source>Shows the image again that was open before this one</source>
        <translation>Mostra de novo a imagem que estava aberta antes desta</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salvar</translation>
    </message>
    <message>
        <source>Writes the image into its file</source>
        <translation>Grava a imagem em seu arquivo</translation>
    </message>
    <message>
        <source>Save as TIFF…</source>
        <translation>Salvar como TIFF…</translation>
    </message>
    <message>
        <source>Writes a TIFF file; transparency is kept</source>
        <translation>Grava um arquivo TIFF; a transparência é mantida</translation>
    </message>
    <message>
        <source>Save as JPEG…</source>
        <translation>Salvar como JPEG…</translation>
    </message>
    <message>
        <source>Writes a JPEG file; transparent areas become white</source>
        <translation>Grava um arquivo JPEG; as áreas transparentes ficam brancas</translation>
    </message>
    <message>
        <source>Save as PNG…</source>
        <translation>Salvar como PNG…</translation>
    </message>
    <message>
        <source>Writes a PNG file; transparency is kept</source>
        <translation>Grava um arquivo PNG; a transparência é mantida</translation>
    </message>
    <message>
        <source>Save without Private Data…</source>
        <translation>Salvar sem dados pessoais…</translation>
    </message>
    <message>
        <source>Writes a copy that says nothing of place, device and people</source>
        <translation>Grava uma cópia que nada diz de lugar, aparelho e pessoas</translation>
    </message>
    <message>
        <source>Quick Save…</source>
        <translation>Salvamento rápido…</translation>
    </message>
    <message>
        <source>Saves into the image library</source>
        <translation>Salva na biblioteca de imagens</translation>
    </message>
    <message>
        <source>Open with Preview</source>
        <translation>Abrir no visualizador</translation>
    </message>
    <message>
        <source>Shows the file in the desktop&apos;s image viewer</source>
        <translation>Mostra o arquivo no visualizador de imagens da área de trabalho</translation>
    </message>
    <message>
        <source>Page Setup…</source>
        <translation>Configurar página…</translation>
    </message>
    <message>
        <source>Paper size and orientation</source>
        <translation>Tamanho e orientação do papel</translation>
    </message>
    <message>
        <source>Print…</source>
        <translation>Imprimir…</translation>
    </message>
    <message>
        <source>Prints the image on the paper of Page Setup</source>
        <translation>Imprime a imagem no papel configurado</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Desfazer</translation>
    </message>
    <message>
        <source>Takes the last change back</source>
        <translation>Retira a última alteração</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Refazer</translation>
    </message>
    <message>
        <source>Brings the change back that was undone</source>
        <translation>Traz de volta a alteração desfeita</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Recortar</translation>
    </message>
    <message>
        <source>Moves the selected pixels to the clipboard</source>
        <translation>Move os pixels selecionados para a área de transferência</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Copies the selected pixels, or the whole image, to the clipboard</source>
        <translation>Copia os pixels selecionados, ou toda a imagem, para a área de transferência</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Colar</translation>
    </message>
    <message>
        <source>Places the clipboard&apos;s image as a floating selection</source>
        <translation>Coloca a imagem da área de transferência como seleção flutuante</translation>
    </message>
    <message>
        <source>Paste Into</source>
        <translation>Colar dentro</translation>
    </message>
    <message>
        <source>Places the clipboard&apos;s image inside the selection</source>
        <translation>Coloca a imagem da área de transferência dentro da seleção</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Excluir</translation>
    </message>
    <message>
        <source>Makes the selected pixels transparent</source>
        <translation>Torna transparentes os pixels selecionados</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Preencher</translation>
    </message>
    <message>
        <source>Fills the selection with the paint colour</source>
        <translation>Preenche a seleção com a cor de pintura</translation>
    </message>
    <message>
        <source>Stroke</source>
        <translation>Contornar</translation>
    </message>
    <message>
        <source>Draws the selection&apos;s outline in the paint colour</source>
        <translation>Desenha o contorno da seleção na cor de pintura</translation>
    </message>
    <message>
        <source>Smart Fill…</source>
        <translation>Preenchimento inteligente…</translation>
    </message>
    <message>
        <source>Fills the selection from its surroundings</source>
        <translation>Preenche a seleção a partir do que a cerca</translation>
    </message>
    <message>
        <source>Transform…</source>
        <translation>Transformar…</translation>
    </message>
    <message>
        <source>Scales and rotates the selected pixels</source>
        <translation>Redimensiona e gira os pixels selecionados</translation>
    </message>
    <message>
        <source>Adjust…</source>
        <translation>Ajustar…</translation>
    </message>
    <message>
        <source>Hue, saturation, brightness, contrast and sharpness of the selection</source>
        <translation>Matiz, saturação, brilho, contraste e nitidez da seleção</translation>
    </message>
    <message>
        <source>Resize…</source>
        <translation>Redimensionar…</translation>
    </message>
    <message>
        <source>Changes the size of the image</source>
        <translation>Altera o tamanho da imagem</translation>
    </message>
    <message>
        <source>Crop to Selection</source>
        <translation>Cortar para a seleção</translation>
    </message>
    <message>
        <source>Cuts the image to the selection&apos;s box</source>
        <translation>Corta a imagem na moldura da seleção</translation>
    </message>
    <message>
        <source>Rotate Clockwise</source>
        <translation>Girar à direita</translation>
    </message>
    <message>
        <source>Turns the image by 90° to the right</source>
        <translation>Gira a imagem 90° para a direita</translation>
    </message>
    <message>
        <source>Rotate Counter-Clockwise</source>
        <translation>Girar à esquerda</translation>
    </message>
    <message>
        <source>Turns the image by 90° to the left</source>
        <translation>Gira a imagem 90° para a esquerda</translation>
    </message>
    <message>
        <source>Flip Horizontally</source>
        <translation>Inverter na horizontal</translation>
    </message>
    <message>
        <source>Exchanges left and right</source>
        <translation>Troca esquerda e direita</translation>
    </message>
    <message>
        <source>Flip Vertically</source>
        <translation>Inverter na vertical</translation>
    </message>
    <message>
        <source>Exchanges top and bottom</source>
        <translation>Troca o alto e a base</translation>
    </message>
    <message>
        <source>2x Retina Display Mode</source>
        <translation>Modo de exibição Retina 2x</translation>
    </message>
    <message>
        <source>One image pixel on one pixel of a double-density screen</source>
        <translation>Um pixel da imagem em um pixel de uma tela de densidade dupla</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Selecionar tudo</translation>
    </message>
    <message>
        <source>Selects the whole image</source>
        <translation>Seleciona a imagem inteira</translation>
    </message>
    <message>
        <source>Select None</source>
        <translation>Não selecionar nada</translation>
    </message>
    <message>
        <source>Drops the selection</source>
        <translation>Descarta a seleção</translation>
    </message>
    <message>
        <source>Select Inverse</source>
        <translation>Inverter a seleção</translation>
    </message>
    <message>
        <source>Selects what is not selected</source>
        <translation>Seleciona o que não está selecionado</translation>
    </message>
    <message>
        <source>Position and Size…</source>
        <translation>Posição e tamanho…</translation>
    </message>
    <message>
        <source>A rectangle by number, and what new marquees keep to</source>
        <translation>Um retângulo por números, e o que as novas molduras seguem</translation>
    </message>
    <message>
        <source>Reselect</source>
        <translation>Selecionar de novo</translation>
    </message>
    <message>
        <source>Brings the last dropped selection back</source>
        <translation>Traz de volta a última seleção descartada</translation>
    </message>
    <message>
        <source>Float Selection</source>
        <translation>Fazer a seleção flutuar</translation>
    </message>
    <message>
        <source>Lifts the selected pixels, or puts them back (Return)</source>
        <translation>Levanta os pixels selecionados, ou os devolve (Enter)</translation>
    </message>
    <message>
        <source>Save Selection…</source>
        <translation>Salvar seleção…</translation>
    </message>
    <message>
        <source>Keeps the outline under a name (key s: the default name)</source>
        <translation>Guarda o contorno com um nome (tecla s: o nome padrão)</translation>
    </message>
    <message>
        <source>Load Selection…</source>
        <translation>Carregar seleção…</translation>
    </message>
    <message>
        <source>Brings a kept outline back</source>
        <translation>Traz de volta um contorno guardado</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Ampliar</translation>
    </message>
    <message>
        <source>One zoom level in (+)</source>
        <translation>Um nível de zoom a mais (+)</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Reduzir</translation>
    </message>
    <message>
        <source>One zoom level out (−)</source>
        <translation>Um nível de zoom a menos (−)</translation>
    </message>
    <message>
        <source>Actual Size</source>
        <translation>Tamanho real</translation>
    </message>
    <message>
        <source>One image pixel on one pixel of the screen</source>
        <translation>Um pixel da imagem em um pixel da tela</translation>
    </message>
    <message>
        <source>Fit to Window</source>
        <translation>Ajustar à janela</translation>
    </message>
    <message>
        <source>The whole image in the window, whatever becomes of the window</source>
        <translation>A imagem inteira na janela, mude a janela como mudar</translation>
    </message>
    <message>
        <source>Transparency as Chequerboard</source>
        <translation>Transparência em xadrez</translation>
    </message>
    <message>
        <source>Transparent parts show a chequerboard instead of grey</source>
        <translation>As partes transparentes mostram um xadrez em vez de cinza</translation>
    </message>
    <message>
        <source>Pixel Grid</source>
        <translation>Grade de pixels</translation>
    </message>
    <message>
        <source>Lines between the pixels, from 800 % on</source>
        <translation>Linhas entre os pixels, a partir de 800 %</translation>
    </message>
    <message>
        <source>Keyboard Pointer</source>
        <translation>Ponteiro pelo teclado</translation>
    </message>
    <message>
        <source>A crosshair that the numeric pad or Ctrl+arrows move; Ctrl+Space presses the button and lets it go</source>
        <translation>Uma cruz que o teclado numérico ou Ctrl+setas movem; Ctrl+Espaço aperta o botão e o solta</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Histórico</translation>
    </message>
    <message>
        <source>The steps of the image, to go back to</source>
        <translation>Os passos da imagem, para voltar a eles</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Tela cheia</translation>
    </message>
    <message>
        <source>The window on the whole screen, and back</source>
        <translation>A janela na tela inteira, e de volta</translation>
    </message>
    <message>
        <source>Larger Brush</source>
        <translation>Pincel maior</translation>
    </message>
    <message>
        <source>The size of brush, pencil, eraser, text and strokes: a tenth more</source>
        <translation>O tamanho de pincel, lápis, borracha, texto e traços: um décimo a mais</translation>
    </message>
    <message>
        <source>Smaller Brush</source>
        <translation>Pincel menor</translation>
    </message>
    <message>
        <source>The size of brush, pencil, eraser, text and strokes: a tenth less</source>
        <translation>O tamanho de pincel, lápis, borracha, texto e traços: um décimo a menos</translation>
    </message>
    <message>
        <source>Swap Colours</source>
        <translation>Trocar cores</translation>
    </message>
    <message>
        <source>Back to the colour that was chosen before this one, and again</source>
        <translation>Volta à cor escolhida antes desta, e de novo</translation>
    </message>
    <message>
        <source>Image Editor</source>
        <translation>Editor de imagens</translation>
    </message>
    <message>
        <source>Brings the main window to the front</source>
        <translation>Traz a janela principal para a frente</translation>
    </message>
    <message>
        <source>Image Library</source>
        <translation>Biblioteca de imagens</translation>
    </message>
    <message>
        <source>Your favourite images</source>
        <translation>Suas imagens favoritas</translation>
    </message>
    <message>
        <source>Show Windows</source>
        <translation>Mostrar janelas</translation>
    </message>
    <message>
        <source>Main window and image library</source>
        <translation>Janela principal e biblioteca de imagens</translation>
    </message>
    <message>
        <source>Image Processor…</source>
        <translation>Processamento em lote…</translation>
    </message>
    <message>
        <source>Resizes and watermarks a folder of images</source>
        <translation>Redimensiona uma pasta de imagens e põe marca d’água</translation>
    </message>
    <message>
        <source>Zelpane Help</source>
        <translation>Ajuda do Zelpane</translation>
    </message>
    <message>
        <source>Where to find the User&apos;s Guide</source>
        <translation>Onde encontrar o guia do usuário</translation>
    </message>
    <message>
        <source>User&apos;s Guide</source>
        <translation>Guia do usuário</translation>
    </message>
    <message>
        <source>Opens the guide in the browser</source>
        <translation>Abre o guia no navegador</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Atalhos de teclado</translation>
    </message>
    <message>
        <source>All commands and tools with their keys, which can be changed there</source>
        <translation>Todos os comandos e ferramentas com suas teclas, que podem ser alteradas ali</translation>
    </message>
    <message>
        <source>Zelpane</source>
        <translation>Zelpane</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Arquivo</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Imagem</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Seleção</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Exibir</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Ferramentas</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Janela</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>Remove Brush</source>
        <translation>Pincel de remoção</translation>
    </message>
    <message>
        <source>Paint over a thing and let go: it is filled from its surroundings</source>
        <translation>Pinte sobre um objeto e solte: ele é preenchido com o entorno</translation>
    </message>
    <message>
        <source>Copy as Script</source>
        <translation>Copiar como script</translation>
    </message>
    <message>
        <source>What was done since the image was opened, as a script that does it again</source>
        <translation>O que foi feito desde que a imagem foi aberta, como um script que o repete</translation>
    </message>
    <message>
        <source>Script</source>
        <translation>Script</translation>
    </message>
    <message>
        <source>What is done to the image, written down as a script; plays scripts on it</source>
        <translation>O que é feito na imagem, anotado como script; executa scripts nela</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Comparar</translation>
    </message>
    <message>
        <source>While the key is held: an earlier state of the image left of the pointer</source>
        <translation>Enquanto a tecla está pressionada: um estado anterior da imagem à esquerda do ponteiro</translation>
    </message>
    <message>
        <source>Compare as Opened</source>
        <translation>Comparar: como foi aberta</translation>
    </message>
    <message>
        <source>Compare shows the image as it was opened</source>
        <translation>Comparar mostra a imagem como foi aberta</translation>
    </message>
    <message>
        <source>Compare as Last Saved</source>
        <translation>Comparar: como foi salva</translation>
    </message>
    <message>
        <source>Compare shows the image as it was last saved</source>
        <translation>Comparar mostra a imagem como foi salva por último</translation>
    </message>
    <message>
        <source>Compare before Last Step</source>
        <translation>Comparar: antes do último passo</translation>
    </message>
    <message>
        <source>Compare shows the image without the last step</source>
        <translation>Comparar mostra a imagem sem o último passo</translation>
    </message>
    <message>
        <source>Save for a Size…</source>
        <translation>Salvar para um tamanho…</translation>
    </message>
    <message>
        <source>Writes a copy that is as large as it may be, or as small as looks the same</source>
        <translation>Grava uma cópia tão grande quanto permitido, ou tão pequena que ainda pareça igual</translation>
    </message>
    <message>
        <source>Explain the Wand</source>
        <translation>Explicar a varinha</translation>
    </message>
    <message>
        <source>Where the pointer rests, what a click of the magic wand takes; and why it left a pixel out</source>
        <translation>Onde o ponteiro repousa, o que um clique da varinha mágica pega; e por que deixou um pixel de fora</translation>
    </message>
    <message>
        <source>Free Corners</source>
        <translation>Cantos livres</translation>
    </message>
    <message>
        <source>The handles at the corners of what floats pull their corner alone: perspective</source>
        <translation>As alças nos cantos do que flutua puxam só o seu canto: perspectiva</translation>
    </message>
    <message>
        <source>Straighten Corners</source>
        <translation>Endireitar cantos</translation>
    </message>
    <message>
        <source>What a selection of four corners holds becomes upright, as if seen from straight ahead</source>
        <translation>O que uma seleção de quatro cantos contém fica reto, como visto de frente</translation>
    </message>
    <message>
        <source>Put Corners Back</source>
        <translation>Repor os cantos</translation>
    </message>
    <message>
        <source>The corners of what floats go back to where they were before they were pulled</source>
        <translation>Os cantos do que flutua voltam para onde estavam antes de serem puxados</translation>
    </message>
</context>
<context>
    <name>Name</name>
    <message>
        <source>Quick Save</source>
        <translation>Salvamento rápido</translation>
    </message>
    <message>
        <source>&amp;Name of the image in the library:</source>
        <translation>&amp;Nome da imagem na biblioteca:</translation>
    </message>
    <message>
        <source>The image is saved as TIFF in the image library</source>
        <translation>A imagem é salva como TIFF na biblioteca de imagens</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salvar</translation>
    </message>
</context>
<context>
    <name>NameDialog</name>
    <message>
        <source>Please enter a proper file name.</source>
        <translation>Digite um nome de arquivo válido.</translation>
    </message>
    <message>
        <source>File extension must be .tiff.</source>
        <translation>A extensão do arquivo deve ser .tiff.</translation>
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
        <translation>Nova imagem</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>&amp;Largura:</translation>
    </message>
    <message>
        <source>Width of the new image in pixels</source>
        <translation>Largura da nova imagem em pixels</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>pixels</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>&amp;Altura:</translation>
    </message>
    <message>
        <source>Height of the new image in pixels</source>
        <translation>Altura da nova imagem em pixels</translation>
    </message>
    <message>
        <source>&amp;Resolution:</source>
        <translation>&amp;Resolução:</translation>
    </message>
    <message>
        <source>For information; the image is measured in pixels</source>
        <translation>Para informação; a imagem é medida em pixels</translation>
    </message>
    <message>
        <source>pixels/inch</source>
        <translation>pixels/polegada</translation>
    </message>
    <message>
        <source>File size:</source>
        <translation>Tamanho do arquivo:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nova imagem</translation>
    </message>
</context>
<context>
    <name>NoticeBar</name>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>OverflowRow</name>
    <message>
        <source>More options</source>
        <translation>Mais opções</translation>
    </message>
</context>
<context>
    <name>Panels</name>
    <message>
        <source>The image could not be printed.</source>
        <translation>Não foi possível imprimir a imagem.</translation>
    </message>
    <message>
        <source>The printer did not take it.</source>
        <translation>A impressora não a aceitou.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Imagens</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Todos os arquivos</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualidade</translation>
    </message>
    <message>
        <source>Quality:</source>
        <translation>Qualidade:</translation>
    </message>
    <message>
        <source>File already exists</source>
        <translation>O arquivo já existe</translation>
    </message>
    <message>
        <source>Do you want to overwrite the existing file?</source>
        <translation>Deseja sobrescrever o arquivo existente?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sim</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Não</translation>
    </message>
    <message>
        <source>Save Image</source>
        <translation>Salvar imagem</translation>
    </message>
    <message>
        <source>Choose Folder</source>
        <translation>Escolher pasta</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>Abrir imagem</translation>
    </message>
</context>
<context>
    <name>Prefs</name>
    <message>
        <source>Preferences</source>
        <translation>Preferências</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>&amp;Unit:</source>
        <translation>&amp;Unidade:</translation>
    </message>
    <message>
        <source>The unit that lengths are shown in</source>
        <translation>A unidade em que os comprimentos são mostrados</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>Pixels</translation>
    </message>
    <message>
        <source>Centimeters</source>
        <translation>Centímetros</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>Polegadas</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Pontos</translation>
    </message>
    <message>
        <source>&amp;Appearance:</source>
        <translation>&amp;Aparência:</translation>
    </message>
    <message>
        <source>Light or dark windows</source>
        <translation>Janelas claras ou escuras</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Como a área de trabalho</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Clara</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Escura</translation>
    </message>
    <message>
        <source>Play &amp;sounds</source>
        <translation>&amp;Tocar sons</translation>
    </message>
    <message>
        <source>Cues for floated, dropped and filled selections and finished runs</source>
        <translation>Sinais para seleções flutuadas, descartadas e preenchidas e processos terminados</translation>
    </message>
    <message>
        <source>Held keys</source>
        <translation>Teclas mantidas</translation>
    </message>
    <message>
        <source>Some desktops take a key for themselves. Each role can be given to another one; Shift always adds and draws straight.</source>
        <translation>Algumas áreas de trabalho tomam uma tecla para si. Cada papel pode receber outra; Shift sempre soma e desenha reto.</translation>
    </message>
    <message>
        <source>&amp;Option (subtract, set source):</source>
        <translation>&amp;Option (subtrair, definir origem):</translation>
    </message>
    <message>
        <source>&amp;Control (oval, polygon):</source>
        <translation>&amp;Control (oval, polígono):</translation>
    </message>
    <message>
        <source>Co&amp;mmand (square, float):</source>
        <translation>Command (&amp;quadrado, flutuar):</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Janelas</translation>
    </message>
    <message>
        <source>&amp;Keep windows where I put them</source>
        <translation>&amp;Manter as janelas onde eu as ponho</translation>
    </message>
    <message>
        <source>Windows and dialogs come back in their last place instead of the middle of the screen</source>
        <translation>Janelas e diálogos voltam ao último lugar em vez do meio da tela</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Atalhos</translation>
    </message>
    <message>
        <source>C&amp;hange Shortcuts…</source>
        <translation>A&amp;lterar atalhos…</translation>
    </message>
    <message>
        <source>All commands with their keys</source>
        <translation>Todos os comandos com suas teclas</translation>
    </message>
    <message>
        <source>About box</source>
        <translation>Janela Sobre</translation>
    </message>
    <message>
        <source>Project &amp;page:</source>
        <translation>&amp;Página do projeto:</translation>
    </message>
    <message>
        <source>The page that the About box opens</source>
        <translation>A página que a janela Sobre abre</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fechar</translation>
    </message>
</context>
<context>
    <name>Printing</name>
    <message>
        <source>There is not enough memory.</source>
        <translation>Não há memória suficiente.</translation>
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
        <translation>Examinando a pasta…</translation>
    </message>
    <message>
        <source>The folder has no .tiff or .jpg image.</source>
        <translation>A pasta não tem imagens .tiff nem .jpg.</translation>
    </message>
    <message>
        <source>The largest, the middle and the smallest of %1 images of one shape</source>
        <translation>A maior, a média e a menor de %1 imagens da mesma forma</translation>
    </message>
    <message>
        <source>The widest, the tallest and the squarest of %1 images</source>
        <translation>A mais larga, a mais alta e a mais quadrada de %1 imagens</translation>
    </message>
    <message>
        <source>%1; the folder has %2</source>
        <translation>%1; a pasta tem %2</translation>
    </message>
</context>
<context>
    <name>Rename</name>
    <message>
        <source>Rename</source>
        <translation>Renomear</translation>
    </message>
    <message>
        <source>&amp;New name (the extension stays as it is):</source>
        <translation>&amp;Novo nome (a extensão fica como está):</translation>
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
        <translation>Redimensionar imagem</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>&amp;Largura:</translation>
    </message>
    <message>
        <source>New width in pixels</source>
        <translation>Nova largura em pixels</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>pixels</translation>
    </message>
    <message>
        <source>New width in percent of the present one</source>
        <translation>Nova largura em porcentagem da atual</translation>
    </message>
    <message>
        <source>Width in percent</source>
        <translation>Largura em porcentagem</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>&amp;Altura:</translation>
    </message>
    <message>
        <source>New height in pixels</source>
        <translation>Nova altura em pixels</translation>
    </message>
    <message>
        <source>New height in percent of the present one</source>
        <translation>Nova altura em porcentagem da atual</translation>
    </message>
    <message>
        <source>Height in percent</source>
        <translation>Altura em porcentagem</translation>
    </message>
    <message>
        <source>File size:</source>
        <translation>Tamanho do arquivo:</translation>
    </message>
    <message>
        <source>&amp;Scale image</source>
        <translation>&amp;Redimensionar o conteúdo</translation>
    </message>
    <message>
        <source>On: the image is resampled to the new size. Off: it keeps its pixels at the place below and is cut or extended</source>
        <translation>Ligado: a imagem é reamostrada para o novo tamanho. Desligado: ela mantém seus pixels no lugar abaixo e é cortada ou estendida</translation>
    </message>
    <message>
        <source>&amp;Keep aspect ratio</source>
        <translation>&amp;Manter a proporção</translation>
    </message>
    <message>
        <source>Width and height follow each other</source>
        <translation>Largura e altura seguem uma à outra</translation>
    </message>
    <message>
        <source>&amp;Place:</source>
        <translation>L&amp;ugar:</translation>
    </message>
    <message>
        <source>Where the image sits in the new size, when it is not scaled</source>
        <translation>Onde a imagem fica no novo tamanho, quando o conteúdo não é redimensionado</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>Superior esquerdo</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Em cima</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Superior direito</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>À esquerda</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>No meio</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>À direita</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Inferior esquerdo</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Embaixo</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Inferior direito</translation>
    </message>
    <message>
        <source>S&amp;harp pixels</source>
        <translation>&amp;Pixels nítidos</translation>
    </message>
    <message>
        <source>When it is scaled, pixels stay squares of one colour instead of being blended</source>
        <translation>Ao redimensionar, os pixels continuam quadrados de uma cor em vez de se misturar</translation>
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
        <translation>Largura e altura devem ser de 1 a %1 pixels, e a imagem de no máximo %2 megapixels.</translation>
    </message>
    <message>
        <source>The image could not be resized.</source>
        <translation>Não foi possível redimensionar a imagem.</translation>
    </message>
    <message>
        <source>There is not enough memory for an image of this size.</source>
        <translation>Não há memória suficiente para uma imagem deste tamanho.</translation>
    </message>
</context>
<context>
    <name>SaveSelection</name>
    <message>
        <source>Save Selection</source>
        <translation>Salvar seleção</translation>
    </message>
    <message>
        <source>&amp;Name of the selection:</source>
        <translation>&amp;Nome da seleção:</translation>
    </message>
    <message>
        <source>The outline is kept under this name; a selection of the same name is replaced</source>
        <translation>O contorno é guardado com este nome; uma seleção de mesmo nome é substituída</translation>
    </message>
    <message>
        <source>Only the outline is kept. It can be loaded into any image.</source>
        <translation>Só o contorno é guardado. Ele pode ser carregado em qualquer imagem.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Close without saving</source>
        <translation>Fechar sem salvar</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salvar</translation>
    </message>
    <message>
        <source>Save the outline of the selection</source>
        <translation>Salvar o contorno da seleção</translation>
    </message>
</context>
<context>
    <name>SaveSelectionDialog</name>
    <message>
        <source>Please enter a valid name for the selection</source>
        <translation>Digite um nome válido para a seleção</translation>
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
        <translation>Não foi possível salvar a seleção.</translation>
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
        <translation>O que foi feito desde que a imagem foi aberta</translation>
    </message>
    <message>
        <source>What is done to the image is written down here.</source>
        <translation>O que é feito na imagem é anotado aqui.</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>The whole script on the clipboard</source>
        <translation>O script inteiro na área de transferência</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>&amp;Salvar…</translation>
    </message>
    <message>
        <source>The whole script as a file</source>
        <translation>O script inteiro como arquivo</translation>
    </message>
    <message>
        <source>&amp;Play…</source>
        <translation>E&amp;xecutar…</translation>
    </message>
    <message>
        <source>Plays a script&apos;s file on the image</source>
        <translation>Executa um arquivo de script na imagem</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>&amp;Parar</translation>
    </message>
    <message>
        <source>Ends the script before its next command</source>
        <translation>Termina o script antes do próximo comando</translation>
    </message>
    <message>
        <source>Save Script</source>
        <translation>Salvar script</translation>
    </message>
    <message>
        <source>Saved %1.</source>
        <translation>%1 salvo.</translation>
    </message>
    <message>
        <source>The script could not be saved.</source>
        <translation>Não foi possível salvar o script.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Play a Script</source>
        <translation>Executar um script</translation>
    </message>
    <message>
        <source>Playing %1…</source>
        <translation>Executando %1…</translation>
    </message>
    <message>
        <source>The script is done.</source>
        <translation>O script terminou.</translation>
    </message>
    <message>
        <source>Line %1 of the script: %2.</source>
        <translation>Linha %1 do script: %2.</translation>
    </message>
</context>
<context>
    <name>SelectionByNumber</name>
    <message>
        <source>Position and Size</source>
        <translation>Posição e tamanho</translation>
    </message>
    <message>
        <source>&amp;Left:</source>
        <translation>&amp;Esquerda:</translation>
    </message>
    <message>
        <source>&amp;Top:</source>
        <translation>&amp;Topo:</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>&amp;Largura:</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>&amp;Altura:</translation>
    </message>
    <message>
        <source>Any size</source>
        <translation>Qualquer tamanho</translation>
    </message>
    <message>
        <source>This ratio of width to height</source>
        <translation>Esta proporção de largura e altura</translation>
    </message>
    <message>
        <source>This size</source>
        <translation>Este tamanho</translation>
    </message>
    <message>
        <source>What a rectangle or oval keeps to while it is dragged with the mouse</source>
        <translation>O que um retângulo ou oval segue enquanto é arrastado com o mouse</translation>
    </message>
    <message>
        <source>New &amp;marquees:</source>
        <translation>&amp;Novas molduras:</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Selecionar</translation>
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
        <translation>Flutuante</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Anchor ⏎</source>
        <translation>Ancorar ⏎</translation>
    </message>
    <message>
        <source>Drop Esc</source>
        <translation>Descartar Esc</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Preencher</translation>
    </message>
    <message>
        <source>Stroke</source>
        <translation>Contornar</translation>
    </message>
    <message>
        <source>Float</source>
        <translation>Flutuar</translation>
    </message>
</context>
<context>
    <name>ShortcutsWindow</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Atalhos de teclado</translation>
    </message>
    <message>
        <source>Find a command or a key</source>
        <translation>Procurar um comando ou uma tecla</translation>
    </message>
    <message>
        <source>Commands and their keys</source>
        <translation>Comandos e suas teclas</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Comando</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Teclas</translation>
    </message>
    <message>
        <source>New &amp;keys:</source>
        <translation>&amp;Novas teclas:</translation>
    </message>
    <message>
        <source>New keys</source>
        <translation>Novas teclas</translation>
    </message>
    <message>
        <source>&amp;Set</source>
        <translation>&amp;Definir</translation>
    </message>
    <message>
        <source>The chosen command gets these keys; without keys it has none</source>
        <translation>O comando escolhido recebe estas teclas; sem teclas, não tem nenhuma</translation>
    </message>
    <message>
        <source>As &amp;Given</source>
        <translation>&amp;Como no início</translation>
    </message>
    <message>
        <source>The chosen command gets its own keys back</source>
        <translation>O comando escolhido recebe de volta suas próprias teclas</translation>
    </message>
    <message>
        <source>&amp;All as Given</source>
        <translation>&amp;Tudo como no início</translation>
    </message>
    <message>
        <source>Every command gets its own keys back</source>
        <translation>Cada comando recebe de volta suas próprias teclas</translation>
    </message>
    <message>
        <source>Tools, over the image</source>
        <translation>Ferramentas, sobre a imagem</translation>
    </message>
    <message>
        <source>%1 belongs to %2 now, which would lose it.</source>
        <translation>%1 pertence agora a “%2”, que o perderia.</translation>
    </message>
    <message>
        <source>%1 chooses the tool %2, which would not hear it any more.</source>
        <translation>%1 escolhe a ferramenta “%2”, que não o ouviria mais.</translation>
    </message>
</context>
<context>
    <name>SizeSaveDialog</name>
    <message>
        <source>There is not enough memory.</source>
        <translation>Não há memória suficiente.</translation>
    </message>
    <message>
        <source>Save for a Size</source>
        <translation>Salvar para um tamanho</translation>
    </message>
    <message>
        <source>The image before and after</source>
        <translation>A imagem antes e depois</translation>
    </message>
    <message>
        <source>Drag to see another place; the wheel zooms</source>
        <translation>Arraste para ver outro lugar; a roda amplia</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Salvar…</translation>
    </message>
    <message>
        <source>Before: %1 × %2</source>
        <translation>Antes: %1 × %2</translation>
    </message>
    <message>
        <source>WebP files are smaller and keep transparency; older programs cannot open them</source>
        <translation>Arquivos WebP são menores e mantêm a transparência; programas antigos não os abrem</translation>
    </message>
    <message>
        <source>&amp;Kind of file:</source>
        <translation>&amp;Tipo de arquivo:</translation>
    </message>
    <message>
        <source>&amp;At most</source>
        <translation>No &amp;máximo</translation>
    </message>
    <message>
        <source> KB</source>
        <translation> KB</translation>
    </message>
    <message>
        <source>Size of the file</source>
        <translation>Tamanho do arquivo</translation>
    </message>
    <message>
        <source>As small as &amp;looks the same</source>
        <translation>Tão pequeno que pareça &amp;igual</translation>
    </message>
    <message>
        <source>&amp;Quality</source>
        <translation>&amp;Qualidade</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualidade</translation>
    </message>
    <message>
        <source>Searching…</source>
        <translation>Procurando…</translation>
    </message>
    <message>
        <source>Trying quality %1…</source>
        <translation>Tentando a qualidade %1…</translation>
    </message>
    <message>
        <source>After: %1 · %2</source>
        <translation>Depois: %1 · %2</translation>
    </message>
    <message>
        <source>Likeness %1, in the worst place %2</source>
        <translation>Semelhança %1, no pior lugar %2</translation>
    </message>
</context>
<context>
    <name>SmartFill</name>
    <message>
        <source>Smart Fill</source>
        <translation>Preenchimento inteligente</translation>
    </message>
    <message>
        <source>&amp;Radius:</source>
        <translation>&amp;Raio:</translation>
    </message>
    <message>
        <source>How far around the selection to look for texture, in percent of its width and height</source>
        <translation>Até onde procurar textura em torno da seleção, em porcentagem de sua largura e altura</translation>
    </message>
    <message>
        <source>Radius in percent</source>
        <translation>Raio em porcentagem</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>&amp;Faster, at half the resolution</source>
        <translation>&amp;Mais rápido, com metade da resolução</translation>
    </message>
    <message>
        <source>Works on every second pixel; the selection&apos;s whole box becomes coarser</source>
        <translation>Trabalha com um pixel a cada dois; toda a moldura da seleção fica mais grosseira</translation>
    </message>
    <message>
        <source>Time:</source>
        <translation>Tempo:</translation>
    </message>
    <message>
        <source>0.0 sec</source>
        <translation>0,0 s</translation>
    </message>
    <message>
        <source>Elapsed time</source>
        <translation>Tempo decorrido</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progresso</translation>
    </message>
    <message>
        <source>You can go on working during a run, but changes inside the work area will be overwritten when it ends.</source>
        <translation>Você pode continuar trabalhando durante a execução, mas as alterações dentro da área de trabalho serão sobrescritas no fim.</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>&amp;Fechar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>&amp;Executar</translation>
    </message>
    <message>
        <source>&amp;Keep lines</source>
        <translation>Manter &amp;linhas</translation>
    </message>
    <message>
        <source>Edges that enter the selection on one side and leave it on another are drawn through it first</source>
        <translation>As bordas que entram na seleção por um lado e saem por outro são traçadas primeiro através dela</translation>
    </message>
    <message>
        <source>&amp;Even out patches</source>
        <translation>&amp;Igualar os retalhos</translation>
    </message>
    <message>
        <source>Takes away steps in brightness and colour where patches from different places meet</source>
        <translation>Remove os degraus de brilho e cor onde se encontram retalhos tirados de lugares diferentes</translation>
    </message>
    <message>
        <source>&amp;Take From…</source>
        <translation>&amp;Usar de…</translation>
    </message>
    <message>
        <source>Takes colours only from what is selected in the image now; pressed again, from anywhere</source>
        <translation>Usa cores apenas do que está selecionado agora; pressionado de novo, de qualquer lugar</translation>
    </message>
    <message>
        <source>anywhere</source>
        <translation>qualquer lugar</translation>
    </message>
    <message>
        <source>Taken from</source>
        <translation>Usado de</translation>
    </message>
    <message>
        <source>&amp;Never From…</source>
        <translation>&amp;Nunca de…</translation>
    </message>
    <message>
        <source>Takes no colour from what is selected in the image now; pressed again, from anywhere</source>
        <translation>Não usa nenhuma cor do que está selecionado agora; pressionado de novo, de qualquer lugar</translation>
    </message>
    <message>
        <source>nowhere</source>
        <translation>nenhum lugar</translation>
    </message>
    <message>
        <source>Never taken from</source>
        <translation>Nunca usado de</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>&amp;Prévia</translation>
    </message>
    <message>
        <source>Shows the fill over the image; Run then leaves it there</source>
        <translation>Mostra o preenchimento sobre a imagem; Executar o deixa lá</translation>
    </message>
    <message>
        <source>&amp;Another Result</source>
        <translation>&amp;Outro resultado</translation>
    </message>
    <message>
        <source>Shows what other random numbers make of it</source>
        <translation>Mostra o resultado com outros números aleatórios</translation>
    </message>
    <message>
        <source>Re&amp;move Brush</source>
        <translation>Pincel &amp;de remoção</translation>
    </message>
    <message>
        <source>Paint over a thing in the image and let go: it is gone</source>
        <translation>Pinte sobre um objeto da imagem e solte: ele some</translation>
    </message>
    <message>
        <source>One of the last four results: shows it over the image; pressed again, the image without it</source>
        <translation>Um dos quatro últimos resultados: mostra-o sobre a imagem; pressionado de novo, a imagem sem ele</translation>
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
        <translation>qualquer lugar</translation>
    </message>
    <message>
        <source>nowhere</source>
        <translation>nenhum lugar</translation>
    </message>
    <message>
        <source>select the place in the image first</source>
        <translation>selecione primeiro o lugar na imagem</translation>
    </message>
    <message>
        <source>the selection of %1 × %2</source>
        <translation>a seleção de %1 × %2</translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message>
        <source>Box of the selection</source>
        <translation>Moldura da seleção</translation>
    </message>
    <message>
        <source>The selection: its corner and its size. Drag this to another program to hand it over as a PNG image.</source>
        <translation>A seleção: seu canto e seu tamanho. Arraste isto para outro programa para entregá-la como imagem PNG.</translation>
    </message>
    <message>
        <source>Colour under the pointer</source>
        <translation>Cor sob o ponteiro</translation>
    </message>
    <message>
        <source>Position and colour under the pointer</source>
        <translation>Posição e cor sob o ponteiro</translation>
    </message>
    <message>
        <source>Size of the image and zoom</source>
        <translation>Tamanho da imagem e zoom</translation>
    </message>
    <message>
        <source>Open an image, make a new one, or drop a file on the window</source>
        <translation>Abra uma imagem, crie uma nova ou solte um arquivo na janela</translation>
    </message>
    <message>
        <source>Click the next corner · Return closes the shape, Escape gives it up</source>
        <translation>Clique no próximo canto · Enter fecha a forma, Escape desiste dela</translation>
    </message>
    <message>
        <source>Rest: what a click takes · drag right: more tolerance, left: less · %1 adds, %2 subtracts</source>
        <translation>Repousar: o que um clique pega · arrastar à direita: mais tolerância, à esquerda: menos · %1 soma, %2 subtrai</translation>
    </message>
    <message>
        <source>Drag a corner&apos;s handle: it goes alone, %1: along a side, %2: all scale · Return anchors, Escape drops</source>
        <translation>Arrastar a alça de um canto: ele vai sozinho, %1: ao longo de um lado, %2: redimensiona tudo · Enter ancora, Escape descarta</translation>
    </message>
    <message>
        <source>Drag to move · the handles scale and turn, %1: steps of 15°, %2: one corner alone · Return anchors, Escape drops</source>
        <translation>Arrastar move · as alças redimensionam e giram, %1: passos de 15°, %2: um canto sozinho · Enter ancora, Escape descarta</translation>
    </message>
    <message>
        <source>in perspective</source>
        <translation>em perspectiva</translation>
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
        <translation>Ancorar a seleção</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nova imagem</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Recortar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Excluir</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Preencher</translation>
    </message>
    <message>
        <source>Stroke</source>
        <translation>Contornar</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Cortar</translation>
    </message>
    <message>
        <source>Rotate Clockwise</source>
        <translation>Girar à direita</translation>
    </message>
    <message>
        <source>Rotate Counter-Clockwise</source>
        <translation>Girar à esquerda</translation>
    </message>
    <message>
        <source>Flip Horizontally</source>
        <translation>Inverter na horizontal</translation>
    </message>
    <message>
        <source>Flip Vertically</source>
        <translation>Inverter na vertical</translation>
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
        <translation>Lápis</translation>
    </message>
    <message>
        <source>Eraser</source>
        <translation>Borracha</translation>
    </message>
    <message>
        <source>Paint Bucket</source>
        <translation>Balde de tinta</translation>
    </message>
    <message>
        <source>Clone Stamp</source>
        <translation>Carimbo</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Smart Fill</source>
        <translation>Preenchimento inteligente</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
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
        <translation>O que se digita aqui aparece logo na imagem</translation>
    </message>
    <message>
        <source>Font family</source>
        <translation>Família da fonte</translation>
    </message>
    <message>
        <source>Smaller; with Shift by ten</source>
        <translation>Menor; com Shift, de dez em dez</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>Menor</translation>
    </message>
    <message>
        <source>Size in pixels</source>
        <translation>Tamanho em pixels</translation>
    </message>
    <message>
        <source>Larger; with Shift by ten</source>
        <translation>Maior; com Shift, de dez em dez</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Maior</translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation>&amp;Negrito</translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation>&amp;Itálico</translation>
    </message>
    <message>
        <source>Colour of the preview below; the selection takes none</source>
        <translation>Cor da visualização abaixo; a seleção não toma nenhuma</translation>
    </message>
    <message>
        <source>Colour of the preview</source>
        <translation>Cor da visualização</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Visualização</translation>
    </message>
    <message>
        <source>&amp;Left</source>
        <translation>&amp;Esquerda</translation>
    </message>
    <message>
        <source>&amp;Center</source>
        <translation>&amp;Centro</translation>
    </message>
    <message>
        <source>&amp;Right</source>
        <translation>&amp;Direita</translation>
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
        <translation>Guarda o texto como seleção</translation>
    </message>
    <message>
        <source>What is typed here stands on the image at once; Ctrl+Return is OK</source>
        <translation>O que se digita aqui aparece logo na imagem; Ctrl+Enter equivale a OK</translation>
    </message>
    <message>
        <source>&amp;Several lines</source>
        <translation>&amp;Várias linhas</translation>
    </message>
    <message>
        <source>Return begins another line, which stands below</source>
        <translation>Enter começa outra linha abaixo</translation>
    </message>
    <message>
        <source>Alignment of the preview, and of several lines</source>
        <translation>Alinhamento da visualização e de várias linhas</translation>
    </message>
</context>
<context>
    <name>Tools</name>
    <message>
        <source>Rectangle Selection</source>
        <translation>Seleção retangular</translation>
    </message>
    <message>
        <source>Selects a rectangle; square and oval by switch or key</source>
        <translation>Seleciona um retângulo; quadrado e oval por botão ou tecla</translation>
    </message>
    <message>
        <source>Drag to select; inside the selection it moves · {Shift} adds, {Option} subtracts · {Command}: square, {Control}: oval</source>
        <translation>Arrastar seleciona; dentro da seleção, move · {Shift} soma, {Option} subtrai · {Command}: quadrado, {Control}: oval</translation>
    </message>
    <message>
        <source>Lasso</source>
        <translation>Laço</translation>
    </message>
    <message>
        <source>Selects by a drawn outline; polygon by switch or key, ended with Return</source>
        <translation>Seleciona por um contorno desenhado; polígono por botão ou tecla, terminado com Enter</translation>
    </message>
    <message>
        <source>Draw around what you want · {Shift} adds, {Option} subtracts · {Control}: corner by corner, Return ends</source>
        <translation>Contorne o que quiser · {Shift} soma, {Option} subtrai · {Control}: canto por canto, Enter termina</translation>
    </message>
    <message>
        <source>Magic Wand</source>
        <translation>Varinha mágica</translation>
    </message>
    <message>
        <source>Selects the area of similar colour</source>
        <translation>Seleciona a área de cor parecida</translation>
    </message>
    <message>
        <source>Click a colour · {Shift} adds, {Option} subtracts · Tolerance says how far colours may differ</source>
        <translation>Clique numa cor · {Shift} soma, {Option} subtrai · a tolerância diz quanto as cores podem diferir</translation>
    </message>
    <message>
        <source>Brush</source>
        <translation>Pincel</translation>
    </message>
    <message>
        <source>Paints with a brush tip</source>
        <translation>Pinta com uma ponta de pincel</translation>
    </message>
    <message>
        <source>Pencil</source>
        <translation>Lápis</translation>
    </message>
    <message>
        <source>Draws a line; straight with Shift</source>
        <translation>Desenha uma linha; reta com Shift</translation>
    </message>
    <message>
        <source>Drag to draw · {Shift}: one straight line · Escape takes it back</source>
        <translation>Arrastar desenha · {Shift}: uma linha reta · Escape a retira</translation>
    </message>
    <message>
        <source>Eraser</source>
        <translation>Borracha</translation>
    </message>
    <message>
        <source>Makes pixels transparent; straight with Shift</source>
        <translation>Torna pixels transparentes; reto com Shift</translation>
    </message>
    <message>
        <source>Drag to make transparent · {Shift}: one straight line · Escape takes it back</source>
        <translation>Arrastar torna transparente · {Shift}: uma linha reta · Escape a retira</translation>
    </message>
    <message>
        <source>Paint Bucket</source>
        <translation>Balde de tinta</translation>
    </message>
    <message>
        <source>Fills the area of similar colour</source>
        <translation>Preenche a área de cor parecida</translation>
    </message>
    <message>
        <source>Click to fill the area of one colour · Tolerance says how far colours may differ</source>
        <translation>Clique para preencher a área de uma cor · a tolerância diz quanto as cores podem diferir</translation>
    </message>
    <message>
        <source>Eyedropper</source>
        <translation>Conta-gotas</translation>
    </message>
    <message>
        <source>Picks the colour under the pointer</source>
        <translation>Pega a cor sob o ponteiro</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Places text as a selection</source>
        <translation>Coloca texto como seleção</translation>
    </message>
    <message>
        <source>Click where the text begins · inside the text, dragging moves it</source>
        <translation>Clique onde o texto começa · dentro do texto, arrastar o move</translation>
    </message>
    <message>
        <source>Clone Stamp</source>
        <translation>Carimbo</translation>
    </message>
    <message>
        <source>Paints with pixels from elsewhere; Option-click sets the source</source>
        <translation>Pinta com pixels de outro lugar; clique com Option define a origem</translation>
    </message>
    <message>
        <source>{Option}+click says where pixels come from, then paint</source>
        <translation>{Option}+clique diz de onde vêm os pixels; depois, pinte</translation>
    </message>
    <message>
        <source>Remove Brush</source>
        <translation>Pincel de remoção</translation>
    </message>
    <message>
        <source>Fills what it is drawn over from its surroundings</source>
        <translation>Preenche o que cobre com o entorno</translation>
    </message>
    <message>
        <source>Paint over what should vanish and let go · any tool ends this · Escape takes the stroke back</source>
        <translation>Pinte sobre o que deve sumir e solte · qualquer ferramenta encerra · Escape desfaz o traço</translation>
    </message>
    <message>
        <source>Drag to paint · {smallerBrush:} and {largerBrush:} change the size, {swapColours:} the colour · Escape takes the stroke back</source>
        <translation>Arrastar pinta · {smallerBrush:} e {largerBrush:} mudam o tamanho, {swapColours:} a cor · Escape retira o traço</translation>
    </message>
    <message>
        <source>Click or drag to pick the paint colour · {swapColours:} goes back to the one before</source>
        <translation>Clique ou arraste para pegar a cor de pintura · {swapColours:} volta à anterior</translation>
    </message>
</context>
<context>
    <name>Transform</name>
    <message>
        <source>Transform Selection</source>
        <translation>Transformar seleção</translation>
    </message>
    <message>
        <source>&amp;Scale:</source>
        <translation>&amp;Escala:</translation>
    </message>
    <message>
        <source>Size of the selected pixels in percent; 100 is their own size</source>
        <translation>Tamanho dos pixels selecionados em porcentagem; 100 é seu próprio tamanho</translation>
    </message>
    <message>
        <source>Scale slider</source>
        <translation>Controle de escala</translation>
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
        <translation>&amp;Rotação:</translation>
    </message>
    <message>
        <source>Turns the selected pixels about their centre, in degrees</source>
        <translation>Gira os pixels selecionados em torno de seu centro, em graus</translation>
    </message>
    <message>
        <source>Rotate slider</source>
        <translation>Controle de rotação</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Rotação</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>Re&amp;definir</translation>
    </message>
    <message>
        <source>Back to 100 % and 0 degrees</source>
        <translation>De volta a 100 % e 0 grau</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Closes the dialog; the selection keeps floating as shown</source>
        <translation>Fecha o diálogo; a seleção continua flutuando como mostrado</translation>
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
        <translation>Fora: o vermelho difere em %1, a tolerância permite %2</translation>
    </message>
    <message>
        <source>Outside: green differs by %1, the tolerance allows %2</source>
        <translation>Fora: o verde difere em %1, a tolerância permite %2</translation>
    </message>
    <message>
        <source>Outside: blue differs by %1, the tolerance allows %2</source>
        <translation>Fora: o azul difere em %1, a tolerância permite %2</translation>
    </message>
    <message>
        <source>Outside: opacity differs by %1, the tolerance allows %2</source>
        <translation>Fora: a opacidade difere em %1, a tolerância permite %2</translation>
    </message>
    <message>
        <source>Inside</source>
        <translation>Dentro</translation>
    </message>
    <message>
        <source>Outside: within the tolerance, but not connected</source>
        <translation>Fora: dentro da tolerância, mas sem ligação</translation>
    </message>
    <message>
        <source>Outside: a tolerance of 0 takes nothing</source>
        <translation>Fora: uma tolerância de 0 não pega nada</translation>
    </message>
</context>
<context>
    <name>Watermark</name>
    <message>
        <source>The watermark could not be drawn.</source>
        <translation>Não foi possível desenhar a marca-d’água.</translation>
    </message>
</context>
<context>
    <name>WatermarkText</name>
    <message>
        <source>Text as Watermark</source>
        <translation>Texto como marca d’água</translation>
    </message>
    <message>
        <source>&amp;Text:</source>
        <translation>&amp;Texto:</translation>
    </message>
    <message>
        <source>© and your name</source>
        <translation>© e seu nome</translation>
    </message>
    <message>
        <source>&amp;Font:</source>
        <translation>&amp;Fonte:</translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation>&amp;Negrito</translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation>&amp;Itálico</translation>
    </message>
    <message>
        <source>&amp;Colour:</source>
        <translation>&amp;Cor:</translation>
    </message>
    <message>
        <source>Colour of the letters</source>
        <translation>Cor das letras</translation>
    </message>
    <message>
        <source>With an &amp;edge that shows on light and dark</source>
        <translation>Com &amp;borda visível sobre claro e escuro</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Criar</translation>
    </message>
</context>
<context>
    <name>ZPAboutBox</name>
    <message>
        <source>Version %1</source>
        <translation>Versão %1</translation>
    </message>
    <message>
        <source>Simple, yet powerful image editing: paint, select, retouch, adjust and convert images, one at a time or by the folder.</source>
        <translation>Edição de imagens simples e, ainda assim, poderosa: pintar, selecionar, retocar, ajustar e converter imagens, uma a uma ou por pasta.</translation>
    </message>
    <message>
        <source>Free software under the GNU General Public License, version 3 or later. It comes with no warranty, to the extent that the law permits.</source>
        <translation>Software livre sob a Licença Pública Geral GNU, versão 3 ou posterior. Vem sem garantia, na medida permitida pela lei.</translation>
    </message>
</context>
<context>
    <name>ZPAppController</name>
    <message>
        <source>An image that was never saved</source>
        <translation>Uma imagem que nunca foi salva</translation>
    </message>
    <message>
        <source>%1, %2 × %3 pixels, as it was after the last change.</source>
        <translation>%1, %2 × %3 pixels, como estava depois da última alteração.</translation>
    </message>
    <message>
        <source>Zelpane ended unexpectedly. Do you want to recover your last image?</source>
        <translation>O Zelpane terminou inesperadamente. Deseja recuperar sua última imagem?</translation>
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
        <translation>Mais tarde</translation>
    </message>
    <message>
        <source>Changed and never saved: %1.</source>
        <translation>Alterada e nunca salva: %1.</translation>
    </message>
    <message>
        <source>This is a (Snow) Leopard-only product!</source>
        <translation>Este produto é somente para (Snow) Leopard!</translation>
    </message>
    <message>
        <source>Mac OS X 10.5 or later is required.</source>
        <translation>É necessário Mac OS X 10.5 ou posterior.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>What would you like to do? Create a new image or open an existing image.</source>
        <translation>O que você gostaria de fazer? Crie uma nova imagem ou abra uma existente.</translation>
    </message>
    <message>
        <source>New…</source>
        <translation>Nova…</translation>
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
        <translation>Deseja mesmo sair?</translation>
    </message>
    <message>
        <source>Make sure that the image is saved to disk.</source>
        <translation>Certifique-se de que a imagem está salva no disco.</translation>
    </message>
    <message>
        <source>No recent images</source>
        <translation>Nenhuma imagem recente</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Limpar a lista</translation>
    </message>
    <message>
        <source>Read the User&apos;s Guide</source>
        <translation>Ler o guia do usuário</translation>
    </message>
    <message>
        <source>You can find the User&apos;s Guide in the same folder as this application.</source>
        <translation>Você encontra o guia do usuário na mesma pasta deste aplicativo.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Do you really want to use the image processor?</source>
        <translation>Deseja mesmo usar o processamento em lote?</translation>
    </message>
    <message>
        <source>Make sure that the current image is saved to disk.</source>
        <translation>Certifique-se de que a imagem atual está salva no disco.</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sim</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Não</translation>
    </message>
    <message>
        <source>You have enabled 2x retina display mode.</source>
        <translation>Você ativou o modo de exibição Retina 2x.</translation>
    </message>
    <message>
        <source>You have disabled 2x retina display mode.</source>
        <translation>Você desativou o modo de exibição Retina 2x.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>verb and name of a step: Undo Fill</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Anchor Selection</source>
        <translation>Ancorar a seleção</translation>
    </message>
    <message>
        <source>Float Selection</source>
        <translation>Fazer a seleção flutuar</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Desfazer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Refazer</translation>
    </message>
    <message>
        <source>Needs an image: open one or make a new one.</source>
        <translation>Precisa de uma imagem: abra uma ou crie uma nova.</translation>
    </message>
    <message>
        <source>Needs a selection.</source>
        <translation>Precisa de uma seleção.</translation>
    </message>
    <message>
        <source>Needs an image on the clipboard.</source>
        <translation>Precisa de uma imagem na área de transferência.</translation>
    </message>
    <message>
        <source>Needs an image that has a file: save it first.</source>
        <translation>Precisa de uma imagem que tenha arquivo: salve-a primeiro.</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>Não há nada a desfazer.</translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>Não há nada a refazer.</translation>
    </message>
    <message>
        <source>No selection was dropped yet.</source>
        <translation>Nenhuma seleção foi descartada ainda.</translation>
    </message>
    <message>
        <source>No image was open before this one.</source>
        <translation>Nenhuma imagem estava aberta antes desta.</translation>
    </message>
    <message>
        <source>Needs the main window.</source>
        <translation>Precisa da janela principal.</translation>
    </message>
    <message>
        <source>Done: %1</source>
        <translation>Feito: %1</translation>
    </message>
    <message>
        <source>Copied what was done as a script.</source>
        <translation>O que foi feito foi copiado como script.</translation>
    </message>
</context>
<context>
    <name>ZPCanvas</name>
    <message>
        <source>Canvas</source>
        <translation>Tela de pintura</translation>
    </message>
</context>
<context>
    <name>ZPFileManager</name>
    <message numerus="yes">
        <source>%n image(s)</source>
        <translation>
            <numerusform>%n imagem</numerusform>
            <numerusform>%n imagens</numerusform>
        </translation>
    </message>
    <message>
        <source>No image selected</source>
        <translation>Nenhuma imagem escolhida</translation>
    </message>
    <message>
        <source>Drop images here</source>
        <translation>Solte imagens aqui</translation>
    </message>
    <message>
        <source>The file that this link leads to is gone.</source>
        <translation>O arquivo a que este atalho leva não existe mais.</translation>
    </message>
    <message>
        <source>Add to Image Library</source>
        <translation>Adicionar à biblioteca de imagens</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Adicionar</translation>
    </message>
    <message>
        <source>Do you wish to delete the selected file?</source>
        <translation>Deseja excluir o arquivo escolhido?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Excluir</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Select a file to rename.</source>
        <translation>Escolha um arquivo para renomear.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Enter a valid new name.</source>
        <translation>Digite um novo nome válido.</translation>
    </message>
    <message>
        <source>looks the same</source>
        <translation>mesma aparência</translation>
    </message>
    <message>
        <source>Found again: “%1” in %2</source>
        <translation>Encontrada de novo: “%1” em %2</translation>
    </message>
    <message>
        <source>An image of the same name, maybe another one: “%1” in %2</source>
        <translation>Uma imagem do mesmo nome, talvez outra: “%1” em %2</translation>
    </message>
    <message>
        <source>Not found again in its old folder, below it or beside it.</source>
        <translation>Não foi encontrada na pasta antiga, nem dentro nem ao lado dela.</translation>
    </message>
    <message>
        <source>Looking for the image of this link…</source>
        <translation>Procurando a imagem deste link…</translation>
    </message>
    <message numerus="yes">
        <source>Found again: the images of %n broken link(s).</source>
        <translation>
            <numerusform>Encontrada: a imagem de %n link quebrado.</numerusform>
            <numerusform>Encontradas: as imagens de %n links quebrados.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Do you wish to relink %n image(s)?</source>
        <translation>
            <numerusform>Deseja vincular de novo %n imagem?</numerusform>
            <numerusform>Deseja vincular de novo %n imagens?</numerusform>
        </translation>
    </message>
    <message>
        <source>Relink</source>
        <translation>Revincular</translation>
    </message>
    <message>
        <source>A link could not be changed.</source>
        <translation>Não foi possível alterar um link.</translation>
    </message>
    <message>
        <source>Comparing %1 of %2</source>
        <translation>Comparando %1 de %2</translation>
    </message>
    <message>
        <source>No duplicates</source>
        <translation>Nenhuma duplicata</translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) more than once</source>
        <translation>
            <numerusform>%n imagem repetida</numerusform>
            <numerusform>%n imagens repetidas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ZPImageProcessor</name>
    <message>
        <source>Choose a source folder.</source>
        <translation>Escolha uma pasta de origem.</translation>
    </message>
    <message>
        <source>Choose a destination folder.</source>
        <translation>Escolha uma pasta de destino.</translation>
    </message>
    <message>
        <source>Source and destination folder cannot be the same.</source>
        <translation>As pastas de origem e de destino não podem ser a mesma.</translation>
    </message>
    <message>
        <source>Error: Source or destination folder does not exist.</source>
        <translation>Erro: a pasta de origem ou de destino não existe.</translation>
    </message>
    <message>
        <source>Ending after this image…</source>
        <translation>Termina depois desta imagem…</translation>
    </message>
    <message>
        <source>Choose source folder</source>
        <translation>Escolher a pasta de origem</translation>
    </message>
    <message>
        <source>Choose destination folder</source>
        <translation>Escolher a pasta de destino</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Escolher</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The source folder cannot be listed.</source>
        <translation>O conteúdo da pasta de origem não pode ser lido.</translation>
    </message>
    <message>
        <source>%1 of %2: %3</source>
        <translation>%1 de %2: %3</translation>
    </message>
    <message>
        <source>There is no canvas to work on.</source>
        <translation>Não há tela em que trabalhar.</translation>
    </message>
    <message>
        <source>One file could not be processed.</source>
        <translation>Um arquivo não pôde ser processado.</translation>
    </message>
    <message numerus="yes">
        <source>%n files could not be processed.</source>
        <translation>
            <numerusform>%n arquivo não pôde ser processado.</numerusform>
            <numerusform>%n arquivos não puderam ser processados.</numerusform>
        </translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nenhuma</translation>
    </message>
    <message>
        <source>The watermark could not be made.</source>
        <translation>Não foi possível criar a marca d’água.</translation>
    </message>
    <message>
        <source>The letters of this text have no outlines in this font.</source>
        <translation>As letras deste texto não têm contornos nesta fonte.</translation>
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
        <translation>Não há memória suficiente para este preenchimento.</translation>
    </message>
    <message>
        <source>Select a smaller area or lower the radius.</source>
        <translation>Selecione uma área menor ou diminua o raio.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>There is nothing to fill from.</source>
        <translation>Não há nada com que preencher.</translation>
    </message>
    <message>
        <source>Select a smaller area or raise the radius.</source>
        <translation>Selecione uma área menor ou aumente o raio.</translation>
    </message>
    <message>
        <source>The image changed meanwhile; the fill was dropped.</source>
        <translation>A imagem mudou nesse meio-tempo; o preenchimento foi descartado.</translation>
    </message>
</context>
<context>
    <name>ZPTextEditor</name>
    <message>
        <source>The letters of this family are pictures without outlines. Please choose another family.</source>
        <translation>As letras desta família são imagens sem contornos. Escolha outra família.</translation>
    </message>
    <message>
        <source>Some characters are pictures without an outline and are left out.</source>
        <translation>Alguns caracteres são imagens sem contorno e ficam de fora.</translation>
    </message>
</context>
<context>
    <name>zp::Document</name>
    <message>
        <source>There is not enough memory.</source>
        <translation>Não há memória suficiente.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>It was stopped.</source>
        <translation>A operação foi interrompida.</translation>
    </message>
</context>
<context>
    <name>zp::WandExplainer</name>
    <message>
        <source>A click takes %1 px</source>
        <translation>Um clique pega %1 px</translation>
    </message>
    <message>
        <source>A click takes at least %1 px</source>
        <translation>Um clique pega pelo menos %1 px</translation>
    </message>
</context>
</TS>
