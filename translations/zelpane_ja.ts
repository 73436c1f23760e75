<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP">
<context>
    <name>AboutBox</name>
    <message>
        <source>About Zelpane</source>
        <translation>Zelpane について</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>Project &amp;Page</source>
        <translation>プロジェクトのページ(&amp;P)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>Accessible</name>
    <message>
        <source>No image</source>
        <translation>画像なし</translation>
    </message>
    <message>
        <source>%1 by %2 pixels</source>
        <translation>%1 × %2 ピクセル</translation>
    </message>
    <message>
        <source>zoom %1</source>
        <translation>ズーム %1</translation>
    </message>
    <message>
        <source>selected: %1</source>
        <translation>選択: %1</translation>
    </message>
</context>
<context>
    <name>Adjust</name>
    <message>
        <source>Adjust Selection</source>
        <translation>選択範囲の色調補正</translation>
    </message>
    <message>
        <source>&amp;Hue:</source>
        <translation>色相(&amp;H):</translation>
    </message>
    <message>
        <source>Turns all colours about the grey axis, in hundredths of a radian; 0 leaves them as they are</source>
        <translation>すべての色をグレーの軸のまわりに回します (単位は 1/100 ラジアン)。0 で変化なし</translation>
    </message>
    <message>
        <source>Hue slider</source>
        <translation>色相スライダー</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>色相</translation>
    </message>
    <message>
        <source>Sa&amp;turation:</source>
        <translation>彩度(&amp;T):</translation>
    </message>
    <message>
        <source>Strength of the colours: 0 is grey, 100 leaves them as they are</source>
        <translation>色の強さ。0 でグレー、100 で変化なし</translation>
    </message>
    <message>
        <source>Saturation slider</source>
        <translation>彩度スライダー</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>彩度</translation>
    </message>
    <message>
        <source>&amp;Brightness:</source>
        <translation>明るさ(&amp;B):</translation>
    </message>
    <message>
        <source>Added to every colour; 0 leaves them as they are</source>
        <translation>すべての色に加える値。0 で変化なし</translation>
    </message>
    <message>
        <source>Brightness slider</source>
        <translation>明るさスライダー</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>明るさ</translation>
    </message>
    <message>
        <source>&amp;Contrast:</source>
        <translation>コントラスト(&amp;C):</translation>
    </message>
    <message>
        <source>Distance from mid grey; 100 leaves it as it is</source>
        <translation>中間グレーからの距離。100 で変化なし</translation>
    </message>
    <message>
        <source>Contrast slider</source>
        <translation>コントラストスライダー</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>コントラスト</translation>
    </message>
    <message>
        <source>&amp;Sharpness:</source>
        <translation>シャープネス(&amp;S):</translation>
    </message>
    <message>
        <source>Above 0 sharpens, below 0 blurs</source>
        <translation>0 より大きいとくっきり、小さいとぼかし</translation>
    </message>
    <message>
        <source>Sharpness slider</source>
        <translation>シャープネススライダー</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>シャープネス</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>リセット(&amp;R)</translation>
    </message>
    <message>
        <source>All five back to what leaves the image as it is</source>
        <translation>5 つすべてを画像が変わらない値に戻します</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Closes the dialog; the adjustment shown stays and can be undone once anchored</source>
        <translation>ダイアログを閉じます。表示中の補正は残り、固定した後に取り消せます</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>適用</translation>
    </message>
    <message>
        <source>Closes the dialog; the adjustment shown stays</source>
        <translation>ダイアログを閉じます。表示中の補正は残ります</translation>
    </message>
    <message>
        <source>The selection could not be adjusted.</source>
        <translation>選択範囲を補正できませんでした。</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>メモリが足りません。</translation>
    </message>
    <message>
        <source>C&amp;ompare</source>
        <translation>比較(&amp;O)</translation>
    </message>
    <message>
        <source>While it is pressed: the image without the adjustment</source>
        <translation>押している間、補正前の画像を表示します</translation>
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
        <translation>選択範囲 %1.png</translation>
    </message>
    <message>
        <source>Nothing could be pasted.</source>
        <translation>何も貼り付けられませんでした。</translation>
    </message>
    <message>
        <source>The clipboard&apos;s image cannot be read.</source>
        <translation>クリップボードの画像を読み込めません。</translation>
    </message>
    <message>
        <source>The clipboard&apos;s image is larger than %1 MB.</source>
        <translation>クリップボードの画像が %1 MB を超えています。</translation>
    </message>
</context>
<context>
    <name>Codecs</name>
    <message>
        <source>The image has no pixels.</source>
        <translation>画像にピクセルがありません。</translation>
    </message>
    <message>
        <source>The image is too large: %1 x %2 pixels.</source>
        <translation>画像が大きすぎます: %1 × %2 ピクセル。</translation>
    </message>
    <message>
        <source>The file is far too small for the %1 x %2 pixels it claims to hold.</source>
        <translation>%1 × %2 ピクセルを含むというには、ファイルが小さすぎます。</translation>
    </message>
    <message>
        <source>The image of %1 x %2 pixels does not fit this machine&apos;s memory.</source>
        <translation>%1 × %2 ピクセルの画像は、このコンピューターのメモリに収まりません。</translation>
    </message>
    <message>
        <source>its data is damaged</source>
        <translation>データが壊れています</translation>
    </message>
    <message>
        <source>It is not an image of a kind that can be opened.</source>
        <translation>開くことのできる種類の画像ではありません。</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>ファイルが空です。</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>ファイルが存在しません。</translation>
    </message>
    <message>
        <source>There is no permission to read the file.</source>
        <translation>ファイルを読む権限がありません。</translation>
    </message>
    <message>
        <source>The file is a link that leads nowhere.</source>
        <translation>ファイルはリンク先のないリンクです。</translation>
    </message>
    <message>
        <source>The file&apos;s name is too long.</source>
        <translation>ファイル名が長すぎます。</translation>
    </message>
    <message>
        <source>The file cannot be read: %1.</source>
        <translation>ファイルを読み込めません: %1。</translation>
    </message>
    <message>
        <source>There is not enough memory to read the file.</source>
        <translation>ファイルを読み込むためのメモリが足りません。</translation>
    </message>
    <message>
        <source>There is not enough memory for this image.</source>
        <translation>この画像のためのメモリが足りません。</translation>
    </message>
    <message>
        <source>The image cannot be read: %1.</source>
        <translation>画像を読み込めません: %1。</translation>
    </message>
    <message>
        <source>The image cannot be read.</source>
        <translation>画像を読み込めません。</translation>
    </message>
    <message>
        <source>It is a folder, not an image.</source>
        <translation>画像ではなくフォルダーです。</translation>
    </message>
    <message>
        <source>It is not an ordinary file.</source>
        <translation>通常のファイルではありません。</translation>
    </message>
    <message>
        <source>The file is larger than 4 GiB.</source>
        <translation>ファイルが 4 GiB を超えています。</translation>
    </message>
    <message>
        <source>The colour profile is incomplete and was left out.</source>
        <translation>カラープロファイルが不完全なため省かれました。</translation>
    </message>
    <message>
        <source>There is not enough memory for this JPEG image.</source>
        <translation>この JPEG 画像のためのメモリが足りません。</translation>
    </message>
    <message>
        <source>The JPEG data cannot be read: %1.</source>
        <translation>JPEG データを読み込めません: %1。</translation>
    </message>
    <message>
        <source>JPEG images with two components cannot be read.</source>
        <translation>2 成分の JPEG 画像は読み込めません。</translation>
    </message>
    <message>
        <source>The JPEG data is damaged; what could be read is shown.</source>
        <translation>JPEG データが壊れています。読み込めた部分を表示しています。</translation>
    </message>
    <message>
        <source>The %1 image is larger than the limits of this machine allow.</source>
        <translation>%1 画像がこのコンピューターの制限を超えています。</translation>
    </message>
    <message>
        <source>The %1 data cannot be read: %2.</source>
        <translation>%1 データを読み込めません: %2。</translation>
    </message>
    <message>
        <source>The image&apos;s data is damaged; what could be read is shown.</source>
        <translation>画像のデータが壊れています。読み込めた部分を表示しています。</translation>
    </message>
    <message numerus="yes">
        <source>The image had %n bits a colour; it was reduced to 8.</source>
        <translation>
            <numerusform>画像は 1 色あたり %n ビットでしたが、8 ビットに減らしました。</numerusform>
        </translation>
    </message>
    <message>
        <source>The EXIF data is damaged and was left out.</source>
        <translation>EXIF データが壊れているため省かれました。</translation>
    </message>
    <message>
        <source>Damaged parts of the EXIF data were left out.</source>
        <translation>EXIF データの壊れた部分は省かれました。</translation>
    </message>
    <message>
        <source>The XMP data is damaged and was left out.</source>
        <translation>XMP データが壊れているため省かれました。</translation>
    </message>
    <message>
        <source>The colour profile is damaged and was left out.</source>
        <translation>カラープロファイルが壊れているため省かれました。</translation>
    </message>
    <message>
        <source>The image was converted to RGB; its colour profile was left out.</source>
        <translation>画像を RGB に変換しました。カラープロファイルは省かれました。</translation>
    </message>
    <message>
        <source>The colour profile does not fit the image and was left out.</source>
        <translation>カラープロファイルが画像に合わないため省かれました。</translation>
    </message>
    <message>
        <source>The IPTC data is damaged and was left out.</source>
        <translation>IPTC データが壊れているため省かれました。</translation>
    </message>
    <message>
        <source>The file is damaged or ended too early; what could be read is shown.</source>
        <translation>ファイルが壊れているか途中で終わっています。読み込めた部分を表示しています。</translation>
    </message>
    <message numerus="yes">
        <source>The file has %n page(s); this is the first.</source>
        <translation>
            <numerusform>ファイルには %n ページあります。これは最初のページです。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The file has %n frame(s); this is the first.</source>
        <translation>
            <numerusform>ファイルには %n フレームあります。これは最初のフレームです。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The file has %n layer(s); this is what they make together.</source>
        <translation>
            <numerusform>ファイルには %n 枚のレイヤーがあります。これは重ね合わせたものです。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The file has %n bits a colour; the image has 8.</source>
        <translation>
            <numerusform>ファイルは 1 色あたり %n ビット、画像は 8 ビットです。</numerusform>
        </translation>
    </message>
    <message>
        <source>The file is in printing inks; the image is in red, green and blue.</source>
        <translation>ファイルは印刷インクの色、画像は赤・緑・青です。</translation>
    </message>
    <message>
        <source>Save writes quality %1; this file has %2.</source>
        <translation>「保存」は品質 %1 で書き込みます。このファイルは %2 です。</translation>
    </message>
    <message numerus="yes">
        <source>%n page(s)</source>
        <translation>
            <numerusform>%n ページ</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n frame(s)</source>
        <translation>
            <numerusform>%n フレーム</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n layer(s)</source>
        <translation>
            <numerusform>%n 枚のレイヤー</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n bits a colour</source>
        <translation>
            <numerusform>1 色あたり %n ビット</numerusform>
        </translation>
    </message>
    <message>
        <source>its palette is corrupt</source>
        <translation>パレットが破損しています</translation>
    </message>
    <message>
        <source>its palette is damaged</source>
        <translation>パレットが壊れています</translation>
    </message>
    <message>
        <source>it holds what is unknown and cannot be left out</source>
        <translation>省くことのできない未知の内容があります</translation>
    </message>
    <message>
        <source>The PNG data cannot be read: %1.</source>
        <translation>PNG データを読み込めません: %1。</translation>
    </message>
    <message>
        <source>its header is damaged</source>
        <translation>ヘッダーが壊れています</translation>
    </message>
    <message>
        <source>it has no pixels</source>
        <translation>ピクセルがありません</translation>
    </message>
    <message>
        <source>the file is damaged or ends before its pixels</source>
        <translation>ファイルが壊れているか、ピクセルの前で終わっています</translation>
    </message>
    <message>
        <source>it has no palette</source>
        <translation>パレットがありません</translation>
    </message>
    <message>
        <source>The PNG data cannot be read: a checksum of its pixels is wrong.</source>
        <translation>PNG データを読み込めません: ピクセルのチェックサムが合いません。</translation>
    </message>
    <message>
        <source>The PNG data cannot be read: not one row of its pixels is whole.</source>
        <translation>PNG データを読み込めません: 完全なピクセル行が 1 行もありません。</translation>
    </message>
    <message>
        <source>The PNG data is damaged; what could be read is shown.</source>
        <translation>PNG データが壊れています。読み込めた部分を表示しています。</translation>
    </message>
    <message>
        <source>The PSD data cannot be read: its palette is damaged.</source>
        <translation>PSD データを読み込めません: パレットが壊れています。</translation>
    </message>
    <message>
        <source>The PSD data is damaged; what could be read is shown.</source>
        <translation>PSD データが壊れています。読み込めた部分を表示しています。</translation>
    </message>
    <message>
        <source>The TIFF structure is damaged.</source>
        <translation>TIFF の構造が壊れています。</translation>
    </message>
    <message>
        <source>TIFF images with so many or so large samples cannot be read.</source>
        <translation>サンプルがこれほど多いか大きい TIFF 画像は読み込めません。</translation>
    </message>
    <message>
        <source>The TIFF file is compressed in a way that cannot be read.</source>
        <translation>TIFF ファイルは読み込めない方法で圧縮されています。</translation>
    </message>
    <message>
        <source>The TIFF structure is damaged: its strips or tiles have no size.</source>
        <translation>TIFF の構造が壊れています: ストリップまたはタイルの大きさがありません。</translation>
    </message>
    <message>
        <source>The TIFF structure is damaged: its strips or tiles are too large.</source>
        <translation>TIFF の構造が壊れています: ストリップまたはタイルが大きすぎます。</translation>
    </message>
    <message>
        <source>The TIFF structure is damaged: it has too many strips or tiles.</source>
        <translation>TIFF の構造が壊れています: ストリップまたはタイルが多すぎます。</translation>
    </message>
    <message>
        <source>The TIFF data cannot be read: %1.</source>
        <translation>TIFF データを読み込めません: %1。</translation>
    </message>
    <message>
        <source>The TIFF data is damaged: %1.</source>
        <translation>TIFF データが壊れています: %1。</translation>
    </message>
    <message>
        <source>The TIFF data is damaged; what could be read is shown.</source>
        <translation>TIFF データが壊れています。読み込めた部分を表示しています。</translation>
    </message>
    <message>
        <source>The %1 image cannot be read: its reader ended unexpectedly.</source>
        <translation>%1 画像を読み込めません: 読み込み処理が予期せず終了しました。</translation>
    </message>
    <message>
        <source>The %1 image cannot be read: its reader did not come to an end.</source>
        <translation>%1 画像を読み込めません: 読み込み処理が終わりませんでした。</translation>
    </message>
    <message>
        <source>Reading was stopped.</source>
        <translation>読み込みを中止しました。</translation>
    </message>
    <message>
        <source>This kind of file has no quality to choose.</source>
        <translation>この種類のファイルでは品質を選べません。</translation>
    </message>
    <message>
        <source>A WebP file holds at most 16,383 pixels a side.</source>
        <translation>WebP ファイルの一辺は最大 16,383 ピクセルです。</translation>
    </message>
    <message>
        <source>Even at the lowest quality the file is larger.</source>
        <translation>最低の品質でもファイルの方が大きくなります。</translation>
    </message>
</context>
<context>
    <name>ColorPanel</name>
    <message>
        <source>The colour with its opacity</source>
        <translation>不透明度を含む色</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>色</translation>
    </message>
    <message>
        <source>&amp;Pick Screen Colour</source>
        <translation>画面の色を取得(&amp;P)</translation>
    </message>
</context>
<context>
    <name>ColorWell</name>
    <message>
        <source>Colour</source>
        <translation>色</translation>
    </message>
</context>
<context>
    <name>Compare</name>
    <message>
        <source>as opened</source>
        <translation>開いたとき</translation>
    </message>
    <message>
        <source>as last saved</source>
        <translation>最後に保存したとき</translation>
    </message>
    <message>
        <source>before the last step</source>
        <translation>最後の操作の前</translation>
    </message>
    <message>
        <source>before</source>
        <translation>補正前</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>メモリが足りません。</translation>
    </message>
    <message>
        <source>That state of the image cannot be read any more.</source>
        <translation>その状態の画像はもう読み込めません。</translation>
    </message>
    <message>
        <source>The image had another size then.</source>
        <translation>そのときの画像は大きさが違います。</translation>
    </message>
    <message>
        <source>Left of the pointer: %1</source>
        <translation>ポインタの左側: %1</translation>
    </message>
</context>
<context>
    <name>Corners</name>
    <message>
        <source>The selection does not have four corners.</source>
        <translation>選択範囲に四つの角がありません。</translation>
    </message>
    <message>
        <source>The selection could not be made upright.</source>
        <translation>選択範囲をまっすぐにできませんでした。</translation>
    </message>
    <message>
        <source>It is seen from too far aside.</source>
        <translation>横から見すぎています。</translation>
    </message>
    <message>
        <source>With Polygon beside the lasso, click the corners of what is to become upright one by one.</source>
        <translation>なげなわの横の「多角形」で、まっすぐにするものの角を一つずつクリックしてください。</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>The file is too large for a small image of it.</source>
        <translation>ファイルが大きすぎるため、縮小画像を作れません。</translation>
    </message>
</context>
<context>
    <name>Document</name>
    <message>
        <source>There is not enough memory.</source>
        <translation>メモリが足りません。</translation>
    </message>
</context>
<context>
    <name>EmptyView</name>
    <message>
        <source>Drop an image here</source>
        <translation>ここに画像をドロップ</translation>
    </message>
    <message>
        <source>&amp;New…</source>
        <translation>新規(&amp;N)…</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>開く(&amp;O)…</translation>
    </message>
</context>
<context>
    <name>FileManager</name>
    <message>
        <source>Image Library</source>
        <translation>画像ライブラリ</translation>
    </message>
    <message>
        <source>Images of the library</source>
        <translation>ライブラリの画像</translation>
    </message>
    <message>
        <source>Drop images here to add them</source>
        <translation>ここに画像をドロップして追加</translation>
    </message>
    <message>
        <source>Preview of the selected image</source>
        <translation>選んだ画像のプレビュー</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>追加(&amp;A)…</translation>
    </message>
    <message>
        <source>Adds a link to an image</source>
        <translation>画像へのリンクを追加します</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation>名前の変更(&amp;R)…</translation>
    </message>
    <message>
        <source>Renames the selected entry (F2)</source>
        <translation>選んだ項目の名前を変更します (F2)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>削除(&amp;D)</translation>
    </message>
    <message>
        <source>Deletes the selected entry, never the image that a link leads to (Delete)</source>
        <translation>選んだ項目を削除します。リンク先の画像は削除しません (Delete)</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>開く(&amp;O)</translation>
    </message>
    <message>
        <source>Opens the selected image in the editor (Return)</source>
        <translation>選んだ画像をエディターで開きます (Return)</translation>
    </message>
    <message>
        <source>Re&amp;link</source>
        <translation>再リンク(&amp;L)</translation>
    </message>
    <message>
        <source>Lets the selected link lead to the image that was found</source>
        <translation>選んだリンクの行き先を、見つかった画像にします</translation>
    </message>
    <message>
        <source>Relin&amp;k All…</source>
        <translation>すべて再リンク(&amp;K)…</translation>
    </message>
    <message>
        <source>Lets every broken link lead to its image, where that was found by its content</source>
        <translation>内容から画像が見つかった切れたリンクを、すべてその画像につなぎ直します</translation>
    </message>
    <message>
        <source>Show D&amp;uplicates</source>
        <translation>重複を表示(&amp;U)</translation>
    </message>
    <message>
        <source>Shows only images that are here more than once: the same file, the same content, or the same look</source>
        <translation>二つ以上ある画像だけを表示します: 同じファイル、同じ内容、同じ見た目</translation>
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
        <translation>画像が大きくなりすぎます。</translation>
    </message>
    <message>
        <source>An image can have up to 30,000 pixels a side and 1,000 megapixels in all.</source>
        <translation>画像は 1 辺 30,000 ピクセル、全体で 1,000 メガピクセルまでです。</translation>
    </message>
    <message>
        <source>The file could not be opened.</source>
        <translation>ファイルを開けませんでした。</translation>
    </message>
    <message>
        <source>Use Save as TIFF…</source>
        <translation>TIFF で保存…</translation>
    </message>
    <message>
        <source>Use Save as JPEG…</source>
        <translation>JPEG で保存…</translation>
    </message>
    <message>
        <source>Use Save as PNG…</source>
        <translation>PNG で保存…</translation>
    </message>
    <message>
        <source>Save does not write files whose names have no extension.</source>
        <translation>「保存」は拡張子のない名前のファイルを書き込みません。</translation>
    </message>
    <message>
        <source>Save does not write .%1 files.</source>
        <translation>「保存」は .%1 ファイルを書き込みません。</translation>
    </message>
    <message>
        <source>Not opened: %1</source>
        <translation>開けませんでした: %1</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The image could not be brought back.</source>
        <translation>画像を元に戻せませんでした。</translation>
    </message>
    <message>
        <source>Its steps are gone from the folder of temporary files.</source>
        <translation>画像の履歴が一時ファイルのフォルダーから失われています。</translation>
    </message>
    <message numerus="yes">
        <source>%n bytes</source>
        <translation>
            <numerusform>%n バイト</numerusform>
        </translation>
    </message>
    <message>
        <source>There is not enough memory to encode the image, or it is too large for this kind of file.</source>
        <translation>画像をエンコードするメモリが足りないか、この種類のファイルには大きすぎます。</translation>
    </message>
    <message>
        <source>The file could not be written.</source>
        <translation>ファイルを書き込めませんでした。</translation>
    </message>
    <message>
        <source>Saved %1 · %2 · %3</source>
        <translation>%1 を保存しました · %2 · %3</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <translation>保存できませんでした: %1</translation>
    </message>
    <message>
        <source>The file could not be saved.</source>
        <translation>ファイルを保存できませんでした。</translation>
    </message>
    <message>
        <source>There is no image to save.</source>
        <translation>保存する画像がありません。</translation>
    </message>
    <message>
        <source>Save does not write files of this name.</source>
        <translation>「保存」はこの名前のファイルを書き込みません。</translation>
    </message>
    <message>
        <source>Cannot save PSD file (Photoshop file)</source>
        <translation>PSD ファイル (Photoshop ファイル) は保存できません</translation>
    </message>
    <message>
        <source>Choose &apos;File&apos; &gt; &apos;Save as TIFF…&apos; or &apos;File&apos; &gt; &apos;Save as JPEG…&apos; to save the image in another image format.</source>
        <translation>「ファイル」&gt;「TIFF で保存…」または「ファイル」&gt;「JPEG で保存…」を選んで、別の形式で保存してください。</translation>
    </message>
    <message>
        <source>The file holds more than the image.</source>
        <translation>ファイルには画像以外の内容があります。</translation>
    </message>
    <message>
        <source>%1 has %2. Saving the image into it takes that away.</source>
        <translation>%1 には %2 があります。画像を上書き保存すると失われます。</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>名前を付けて保存…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>The file was changed since it was opened.</source>
        <translation>ファイルは開いた後に変更されています。</translation>
    </message>
    <message>
        <source>Do you want to overwrite the existing file?</source>
        <translation>既存のファイルを上書きしますか?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>No</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>Its steps could not be read.</source>
        <translation>手順を読み込めませんでした。</translation>
    </message>
    <message>
        <source>It will be offered again at the next start.</source>
        <translation>次回の起動時にもう一度提示されます。</translation>
    </message>
    <message>
        <source>Reading the image…</source>
        <translation>画像を読み込んでいます…</translation>
    </message>
    <message>
        <source>Combining the outlines…</source>
        <translation>輪郭を合成しています…</translation>
    </message>
</context>
<context>
    <name>Folders</name>
    <message>
        <source>The disk is full.</source>
        <translation>ディスクがいっぱいです。</translation>
    </message>
    <message>
        <source>The disk quota is used up.</source>
        <translation>ディスクの割り当て容量を使い切りました。</translation>
    </message>
    <message>
        <source>The file would be larger than is allowed here.</source>
        <translation>ここで許される大きさをファイルが超えます。</translation>
    </message>
    <message>
        <source>There is no permission to write here.</source>
        <translation>ここに書き込む権限がありません。</translation>
    </message>
    <message>
        <source>The disk cannot be written to.</source>
        <translation>ディスクに書き込めません。</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>フォルダーが存在しません。</translation>
    </message>
    <message>
        <source>A part of the path is not a folder.</source>
        <translation>パスの一部がフォルダーではありません。</translation>
    </message>
    <message>
        <source>There is a folder of that name.</source>
        <translation>同じ名前のフォルダーがあります。</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>名前が長すぎます。</translation>
    </message>
    <message>
        <source>The link leads round in a circle.</source>
        <translation>リンクが循環しています。</translation>
    </message>
    <message>
        <source>The disk reported an error.</source>
        <translation>ディスクがエラーを報告しました。</translation>
    </message>
    <message>
        <source>Too many files are open.</source>
        <translation>開いているファイルが多すぎます。</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message>
        <source>Undo steps cannot be written to the disk (%1). They are kept in memory until the program ends.</source>
        <translation>取り消し用の履歴をディスクに書き込めません (%1)。プログラムが終わるまでメモリに保持します。</translation>
    </message>
    <message>
        <source>The last change could not be kept as a step of its own (%1).</source>
        <translation>最後の変更を独立した履歴として保持できませんでした (%1)。</translation>
    </message>
    <message>
        <source>There is no place for undo steps among the temporary files. A private folder of this session serves instead.</source>
        <translation>一時ファイルの場所に履歴を置く余地がありません。代わりにこのセッション専用のフォルダーを使います。</translation>
    </message>
    <message>
        <source>Nothing was undone: what is on screen could be kept neither on the disk nor in memory.</source>
        <translation>取り消しませんでした。画面の内容をディスクにもメモリにも保持できないためです。</translation>
    </message>
    <message>
        <source>there is no undo folder</source>
        <translation>履歴のフォルダーがありません</translation>
    </message>
    <message>
        <source>there is no image</source>
        <translation>画像がありません</translation>
    </message>
    <message>
        <source>the step before could not be encoded</source>
        <translation>前の履歴をエンコードできませんでした</translation>
    </message>
    <message>
        <source>the files could not be put in their places</source>
        <translation>ファイルを所定の場所に置けませんでした</translation>
    </message>
    <message>
        <source>not enough memory</source>
        <translation>メモリ不足</translation>
    </message>
    <message>
        <source>The very pixels of the last change could not be kept (%1). Undo brings them back from a JPEG copy: colours may differ a little.</source>
        <translation>最後の変更の正確なピクセルを保存できませんでした (%1)。取り消すと JPEG のコピーから戻るため、色が少し異なることがあります。</translation>
    </message>
    <message>
        <source>The very pixels of this step could not be read. What is shown comes from its JPEG copy: colours may differ a little.</source>
        <translation>この手順の正確なピクセルを読み込めませんでした。JPEG のコピーを表示しているため、色が少し異なることがあります。</translation>
    </message>
</context>
<context>
    <name>HistoryPanel</name>
    <message>
        <source>Change</source>
        <translation>変更</translation>
    </message>
    <message>
        <source>There is no room for the very pixels of this step: it comes back as its files hold it, nearly the same.</source>
        <translation>この履歴の正確なピクセルを置く余地がありません。ファイルに保存された、ほぼ同じ状態で戻ります。</translation>
    </message>
    <message>
        <source>This step could not be kept.</source>
        <translation>この履歴を保持できませんでした。</translation>
    </message>
    <message>
        <source>Go to this step</source>
        <translation>この履歴に移動</translation>
    </message>
    <message>
        <source>History</source>
        <translation>履歴</translation>
    </message>
    <message>
        <source>Steps of the image, oldest first</source>
        <translation>画像の履歴 (古い順)</translation>
    </message>
</context>
<context>
    <name>ImageProcessor</name>
    <message>
        <source>Image Processor</source>
        <translation>一括処理</translation>
    </message>
    <message>
        <source>&amp;Source folder:</source>
        <translation>元のフォルダー(&amp;S):</translation>
    </message>
    <message>
        <source>Every .tiff and .jpg image in it</source>
        <translation>フォルダー内のすべての .tiff と .jpg 画像</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>選択…</translation>
    </message>
    <message>
        <source>&amp;Destination folder:</source>
        <translation>保存先フォルダー(&amp;D):</translation>
    </message>
    <message>
        <source>Save as:</source>
        <translation>保存形式:</translation>
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
        <translation>サイズ:</translation>
    </message>
    <message>
        <source>&amp;Fit into</source>
        <translation>次の枠に収める(&amp;F)</translation>
    </message>
    <message>
        <source>Width of the box in pixels</source>
        <translation>枠の幅 (ピクセル)</translation>
    </message>
    <message>
        <source>by</source>
        <translation>×</translation>
    </message>
    <message>
        <source>Height of the box in pixels</source>
        <translation>枠の高さ (ピクセル)</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>ピクセル</translation>
    </message>
    <message>
        <source>&amp;Watermark:</source>
        <translation>透かし(&amp;W):</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Images in the watermark folder</source>
        <translation>透かしフォルダーの画像</translation>
    </message>
    <message>
        <source>&amp;Position:</source>
        <translation>位置(&amp;P):</translation>
    </message>
    <message>
        <source>Fills in the position for images as large as the box</source>
        <translation>枠と同じ大きさの画像に対する位置を入力します</translation>
    </message>
    <message>
        <source>Custom position</source>
        <translation>任意の位置</translation>
    </message>
    <message>
        <source>Lower left</source>
        <translation>左下</translation>
    </message>
    <message>
        <source>Lower right</source>
        <translation>右下</translation>
    </message>
    <message>
        <source>Upper left</source>
        <translation>左上</translation>
    </message>
    <message>
        <source>Upper right</source>
        <translation>右上</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>中央</translation>
    </message>
    <message>
        <source>From the left edge in pixels</source>
        <translation>左端からの距離 (ピクセル)</translation>
    </message>
    <message>
        <source>From the lower edge in pixels</source>
        <translation>下端からの距離 (ピクセル)</translation>
    </message>
    <message>
        <source>In &amp;each image by its own size, with a margin of</source>
        <translation>各画像の大きさに合わせ、余白は(&amp;E)</translation>
    </message>
    <message>
        <source>The preset holds for every image, upright or flat, instead of filling in X and Y</source>
        <translation>X と Y を入力する代わりに、縦でも横でもすべての画像にこの位置を使います</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source>Between the watermark and the edges of its corner in pixels</source>
        <translation>透かしと角の両端との間隔 (ピクセル)</translation>
    </message>
    <message>
        <source>Margin of the watermark</source>
        <translation>透かしの余白</translation>
    </message>
    <message>
        <source>&amp;Opacity:</source>
        <translation>不透明度(&amp;O):</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Of the watermark, on top of its own</source>
        <translation>透かし自身の不透明度に加えて適用</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>実行</translation>
    </message>
    <message>
        <source>&amp;Relative: its longer side is</source>
        <translation>相対サイズ(&amp;R): 長辺は</translation>
    </message>
    <message>
        <source>The watermark looks the same on small and large images, upright or flat: size, margin and position are in percent</source>
        <translation>大小や縦横に関係なく、透かしはどの画像でも同じに見えます。大きさ、余白、位置はパーセントです</translation>
    </message>
    <message>
        <source>Of the shorter side of each image</source>
        <translation>各画像の短辺に対する割合</translation>
    </message>
    <message>
        <source>Size of the watermark</source>
        <translation>透かしの大きさ</translation>
    </message>
    <message>
        <source>of the image&apos;s shorter side</source>
        <translation>(画像の短辺に対して)</translation>
    </message>
    <message>
        <source>The watermark covers the whole image, from its position on</source>
        <translation>透かしがその位置から画像全体を覆います</translation>
    </message>
    <message>
        <source>Of the watermark&apos;s longer side</source>
        <translation>透かしの長辺に対する割合</translation>
    </message>
    <message>
        <source>Gaps between repeated watermarks</source>
        <translation>繰り返す透かしの間隔</translation>
    </message>
    <message>
        <source>of its longer side</source>
        <translation>(長辺に対して)</translation>
    </message>
    <message>
        <source>T&amp;urn:</source>
        <translation>回転(&amp;U):</translation>
    </message>
    <message>
        <source>Of the watermark, against the clock</source>
        <translation>透かしを反時計回りに回転</translation>
    </message>
    <message>
        <source>Pre&amp;view</source>
        <translation>プレビュー(&amp;V)</translation>
    </message>
    <message>
        <source>Shows what these settings make of three images of the folder; nothing is written</source>
        <translation>フォルダー内の 3 枚の画像がこの設定でどうなるかを表示します。何も書き込みません</translation>
    </message>
    <message>
        <source>Repeated &amp;all over, with gaps of</source>
        <translation>全体に繰り返す(&amp;A)、間隔は</translation>
    </message>
    <message>
        <source>Te&amp;xt…</source>
        <translation>テキスト(&amp;X)…</translation>
    </message>
    <message>
        <source>Makes a line of text a watermark</source>
        <translation>1 行のテキストを透かしにします</translation>
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
        <translation>リンク切れ</translation>
    </message>
</context>
<context>
    <name>LibraryModel</name>
    <message>
        <source>The file that this link leads to is gone. The link can be deleted.</source>
        <translation>このリンク先のファイルはもうありません。リンクは削除できます。</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Dimensions</source>
        <translation>寸法</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>更新日時</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>パス</translation>
    </message>
    <message>
        <source>looks the same</source>
        <translation>見た目が同じ</translation>
    </message>
    <message>
        <source>same content</source>
        <translation>内容が同じ</translation>
    </message>
    <message>
        <source>same file</source>
        <translation>同じファイル</translation>
    </message>
    <message>
        <source>Likeness</source>
        <translation>類似</translation>
    </message>
</context>
<context>
    <name>LoadSelection</name>
    <message>
        <source>Load Selection</source>
        <translation>選択範囲を読み込む</translation>
    </message>
    <message>
        <source>&amp;Saved selection:</source>
        <translation>保存した選択範囲(&amp;S):</translation>
    </message>
    <message>
        <source>The outline to use; it lands where it was drawn</source>
        <translation>使用する輪郭。描かれた位置に置かれます</translation>
    </message>
    <message>
        <source>The selection that there is now is dropped, a floating one with its pixels.</source>
        <translation>現在の選択範囲は破棄されます。浮いている場合はピクセルも破棄されます。</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Delete the chosen selection&apos;s file for good</source>
        <translation>選んだ選択範囲のファイルを完全に削除</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Close and keep the selection as it is</source>
        <translation>選択範囲をそのままにして閉じる</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>読み込む</translation>
    </message>
    <message>
        <source>Select by the chosen outline</source>
        <translation>選んだ輪郭で選択</translation>
    </message>
</context>
<context>
    <name>LoadSelectionDialog</name>
    <message>
        <source>Do you wish to delete the folder with all that is in it?</source>
        <translation>フォルダーをその中身ごと削除しますか?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
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
        <translation>ツール (キー 1〜9 と 0)</translation>
    </message>
    <message>
        <source>Tool</source>
        <translation>ツール</translation>
    </message>
    <message>
        <source>Paint colour and opacity</source>
        <translation>描画色と不透明度</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Diameter of brush, pencil, eraser and clone stamp in pixels; also the text size and the width of strokes</source>
        <translation>ブラシ、鉛筆、消しゴム、スタンプの直径 (ピクセル)。文字の大きさと境界線の太さも兼ねます</translation>
    </message>
    <message>
        <source>Size in pixels</source>
        <translation>大きさ (ピクセル)</translation>
    </message>
    <message>
        <source>Shape of the brush tip</source>
        <translation>ブラシ先端の形</translation>
    </message>
    <message>
        <source>Brush shape</source>
        <translation>ブラシの形</translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation>許容値</translation>
    </message>
    <message>
        <source>How far a colour may differ from the one under the pointer</source>
        <translation>ポインターの下の色とどれだけ違ってよいか</translation>
    </message>
    <message>
        <source>Tolerance in percent</source>
        <translation>許容値 (パーセント)</translation>
    </message>
    <message>
        <source>Zoom (keys + and −, Ctrl+wheel)</source>
        <translation>ズーム (キー + と −、Ctrl+ホイール)</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>ズーム</translation>
    </message>
    <message>
        <source>What the pressure of a pen changes</source>
        <translation>ペンの筆圧で変わるもの</translation>
    </message>
    <message>
        <source>Pen pressure</source>
        <translation>筆圧</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Tool options</source>
        <translation>ツールオプション</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>ツール</translation>
    </message>
    <message>
        <source>Brush %1</source>
        <translation>ブラシ %1</translation>
    </message>
    <message>
        <source>Fit · %1</source>
        <translation>全体 · %1</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>正方形</translation>
    </message>
    <message>
        <source>Oval</source>
        <translation>楕円</translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation>多角形</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Subtract</source>
        <translation>減算</translation>
    </message>
    <message>
        <source>Float</source>
        <translation>フロート</translation>
    </message>
    <message>
        <source>Straight</source>
        <translation>直線</translation>
    </message>
    <message>
        <source>Set source</source>
        <translation>元の位置</translation>
    </message>
    <message>
        <source>Untitled[*] — Zelpane</source>
        <translation>無題[*] — Zelpane</translation>
    </message>
    <message>
        <source>The marquee becomes a square</source>
        <translation>選択枠が正方形になります</translation>
    </message>
    <message>
        <source>The marquee becomes an oval</source>
        <translation>選択枠が楕円になります</translation>
    </message>
    <message>
        <source>Click corners, Return ends</source>
        <translation>角をクリックし、Return で終了</translation>
    </message>
    <message>
        <source>The new shape joins the selection</source>
        <translation>新しい形を選択範囲に加えます</translation>
    </message>
    <message>
        <source>The new shape is cut from the selection</source>
        <translation>新しい形を選択範囲から除きます</translation>
    </message>
    <message>
        <source>Dragging the selection lifts its pixels</source>
        <translation>選択範囲をドラッグするとピクセルが浮き上がります</translation>
    </message>
    <message>
        <source>One straight line from press to release</source>
        <translation>押した点から離した点まで 1 本の直線</translation>
    </message>
    <message>
        <source>The click sets where pixels come from</source>
        <translation>クリックでピクセルの元の位置を決めます</translation>
    </message>
    <message>
        <source>%1 (as if %2 were held)</source>
        <translation>%1（%2 を押したときと同じ）</translation>
    </message>
    <message>
        <source>The window manager moves windows with %1 and the mouse, so %1 never reaches the image. The switches above do the same.</source>
        <translation>ウィンドウマネージャーが %1 とマウスでウィンドウを動かすため、%1 は画像に届きません。上のスイッチで同じことができます。</translation>
    </message>
    <message>
        <source>Use %1 instead</source>
        <translation>代わりに %1 を使う</translation>
    </message>
    <message>
        <source>Even pressure</source>
        <translation>筆圧なし</translation>
    </message>
    <message>
        <source>Pressure: size</source>
        <translation>筆圧: 大きさ</translation>
    </message>
    <message>
        <source>Pressure: opacity</source>
        <translation>筆圧: 不透明度</translation>
    </message>
    <message>
        <source>Explain</source>
        <translation>説明</translation>
    </message>
    <message>
        <source>Where the pointer rests, what a click takes; a drag after the press changes the tolerance</source>
        <translation>ポインターを止めた場所でクリックすると選択される範囲を示します。押したままドラッグすると許容値が変わります</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>About Zelpane</source>
        <translation>Zelpane について</translation>
    </message>
    <message>
        <source>Version and licence</source>
        <translation>バージョンとライセンス</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>設定…</translation>
    </message>
    <message>
        <source>Units, keys and other settings</source>
        <translation>単位、キー、その他の設定</translation>
    </message>
    <message>
        <source>Quit Zelpane</source>
        <translation>Zelpane を終了</translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation>プログラムを終了します</translation>
    </message>
    <message>
        <source>New…</source>
        <translation>新規…</translation>
    </message>
    <message>
        <source>Makes a blank image</source>
        <translation>空白の画像を作ります</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>開く…</translation>
    </message>
    <message>
        <source>Opens an image file</source>
        <translation>画像ファイルを開きます</translation>
    </message>
    <message>
        <source>Open Recent</source>
        <translation>最近使ったファイル</translation>
    </message>
    <message>
        <source>Previous Image</source>
        <translation>前の画像</translation>
    </message>
    <message>
        <source>Shows the image again that was open before this one</source>
        <translation>この画像の前に開いていた画像を再び表示します</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Writes the image into its file</source>
        <translation>画像をそのファイルに書き込みます</translation>
    </message>
    <message>
        <source>Save as TIFF…</source>
        <translation>TIFF で保存…</translation>
    </message>
    <message>
        <source>Writes a TIFF file; transparency is kept</source>
        <translation>TIFF ファイルを書き込みます。透明部分は保たれます</translation>
    </message>
    <message>
        <source>Save as JPEG…</source>
        <translation>JPEG で保存…</translation>
    </message>
    <message>
        <source>Writes a JPEG file; transparent areas become white</source>
        <translation>JPEG ファイルを書き込みます。透明部分は白になります</translation>
    </message>
    <message>
        <source>Save as PNG…</source>
        <translation>PNG で保存…</translation>
    </message>
    <message>
        <source>Writes a PNG file; transparency is kept</source>
        <translation>PNG ファイルを書き込みます。透明部分は保たれます</translation>
    </message>
    <message>
        <source>Save without Private Data…</source>
        <translation>個人情報を除いて保存…</translation>
    </message>
    <message>
        <source>Writes a copy that says nothing of place, device and people</source>
        <translation>場所、機器、人物の情報を含まないコピーを書き込みます</translation>
    </message>
    <message>
        <source>Quick Save…</source>
        <translation>クイック保存…</translation>
    </message>
    <message>
        <source>Saves into the image library</source>
        <translation>画像ライブラリに保存します</translation>
    </message>
    <message>
        <source>Open with Preview</source>
        <translation>ビューアーで開く</translation>
    </message>
    <message>
        <source>Shows the file in the desktop&apos;s image viewer</source>
        <translation>デスクトップの画像ビューアーでファイルを表示します</translation>
    </message>
    <message>
        <source>Page Setup…</source>
        <translation>ページ設定…</translation>
    </message>
    <message>
        <source>Paper size and orientation</source>
        <translation>用紙の大きさと向き</translation>
    </message>
    <message>
        <source>Print…</source>
        <translation>印刷…</translation>
    </message>
    <message>
        <source>Prints the image on the paper of Page Setup</source>
        <translation>ページ設定の用紙に画像を印刷します</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>取り消し</translation>
    </message>
    <message>
        <source>Takes the last change back</source>
        <translation>最後の変更を取り消します</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直し</translation>
    </message>
    <message>
        <source>Brings the change back that was undone</source>
        <translation>取り消した変更を元に戻します</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>切り取り</translation>
    </message>
    <message>
        <source>Moves the selected pixels to the clipboard</source>
        <translation>選択したピクセルをクリップボードに移します</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Copies the selected pixels, or the whole image, to the clipboard</source>
        <translation>選択したピクセル、または画像全体をクリップボードにコピーします</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>貼り付け</translation>
    </message>
    <message>
        <source>Places the clipboard&apos;s image as a floating selection</source>
        <translation>クリップボードの画像をフローティング選択範囲として置きます</translation>
    </message>
    <message>
        <source>Paste Into</source>
        <translation>選択範囲内に貼り付け</translation>
    </message>
    <message>
        <source>Places the clipboard&apos;s image inside the selection</source>
        <translation>クリップボードの画像を選択範囲の中に置きます</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Makes the selected pixels transparent</source>
        <translation>選択したピクセルを透明にします</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>塗りつぶし</translation>
    </message>
    <message>
        <source>Fills the selection with the paint colour</source>
        <translation>選択範囲を描画色で塗りつぶします</translation>
    </message>
    <message>
        <source>Stroke</source>
        <translation>境界線を描く</translation>
    </message>
    <message>
        <source>Draws the selection&apos;s outline in the paint colour</source>
        <translation>選択範囲の輪郭を描画色で描きます</translation>
    </message>
    <message>
        <source>Smart Fill…</source>
        <translation>スマート塗りつぶし…</translation>
    </message>
    <message>
        <source>Fills the selection from its surroundings</source>
        <translation>選択範囲を周囲から塗りつぶします</translation>
    </message>
    <message>
        <source>Transform…</source>
        <translation>変形…</translation>
    </message>
    <message>
        <source>Scales and rotates the selected pixels</source>
        <translation>選択したピクセルを拡大縮小、回転します</translation>
    </message>
    <message>
        <source>Adjust…</source>
        <translation>色調補正…</translation>
    </message>
    <message>
        <source>Hue, saturation, brightness, contrast and sharpness of the selection</source>
        <translation>選択範囲の色相、彩度、明るさ、コントラスト、シャープネス</translation>
    </message>
    <message>
        <source>Resize…</source>
        <translation>サイズ変更…</translation>
    </message>
    <message>
        <source>Changes the size of the image</source>
        <translation>画像の大きさを変えます</translation>
    </message>
    <message>
        <source>Crop to Selection</source>
        <translation>選択範囲で切り抜き</translation>
    </message>
    <message>
        <source>Cuts the image to the selection&apos;s box</source>
        <translation>画像を選択範囲の枠で切り抜きます</translation>
    </message>
    <message>
        <source>Rotate Clockwise</source>
        <translation>右に回転</translation>
    </message>
    <message>
        <source>Turns the image by 90° to the right</source>
        <translation>画像を右に 90° 回します</translation>
    </message>
    <message>
        <source>Rotate Counter-Clockwise</source>
        <translation>左に回転</translation>
    </message>
    <message>
        <source>Turns the image by 90° to the left</source>
        <translation>画像を左に 90° 回します</translation>
    </message>
    <message>
        <source>Flip Horizontally</source>
        <translation>左右反転</translation>
    </message>
    <message>
        <source>Exchanges left and right</source>
        <translation>左と右を入れ替えます</translation>
    </message>
    <message>
        <source>Flip Vertically</source>
        <translation>上下反転</translation>
    </message>
    <message>
        <source>Exchanges top and bottom</source>
        <translation>上と下を入れ替えます</translation>
    </message>
    <message>
        <source>2x Retina Display Mode</source>
        <translation>2x Retina 表示モード</translation>
    </message>
    <message>
        <source>One image pixel on one pixel of a double-density screen</source>
        <translation>画像の 1 ピクセルを高密度画面の 1 ピクセルに表示します</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>すべて選択</translation>
    </message>
    <message>
        <source>Selects the whole image</source>
        <translation>画像全体を選択します</translation>
    </message>
    <message>
        <source>Select None</source>
        <translation>選択を解除</translation>
    </message>
    <message>
        <source>Drops the selection</source>
        <translation>選択範囲を破棄します</translation>
    </message>
    <message>
        <source>Select Inverse</source>
        <translation>選択範囲を反転</translation>
    </message>
    <message>
        <source>Selects what is not selected</source>
        <translation>選択されていない部分を選択します</translation>
    </message>
    <message>
        <source>Position and Size…</source>
        <translation>位置と大きさ…</translation>
    </message>
    <message>
        <source>A rectangle by number, and what new marquees keep to</source>
        <translation>数値で指定する矩形と、新しい選択枠が従う規則</translation>
    </message>
    <message>
        <source>Reselect</source>
        <translation>再選択</translation>
    </message>
    <message>
        <source>Brings the last dropped selection back</source>
        <translation>最後に破棄した選択範囲を戻します</translation>
    </message>
    <message>
        <source>Float Selection</source>
        <translation>選択範囲をフロート</translation>
    </message>
    <message>
        <source>Lifts the selected pixels, or puts them back (Return)</source>
        <translation>選択したピクセルを浮かせる、または戻します (Return)</translation>
    </message>
    <message>
        <source>Save Selection…</source>
        <translation>選択範囲を保存…</translation>
    </message>
    <message>
        <source>Keeps the outline under a name (key s: the default name)</source>
        <translation>輪郭を名前を付けて保存します (キー s: 既定の名前)</translation>
    </message>
    <message>
        <source>Load Selection…</source>
        <translation>選択範囲を読み込む…</translation>
    </message>
    <message>
        <source>Brings a kept outline back</source>
        <translation>保存した輪郭を呼び出します</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>拡大</translation>
    </message>
    <message>
        <source>One zoom level in (+)</source>
        <translation>1 段階拡大 (+)</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>縮小</translation>
    </message>
    <message>
        <source>One zoom level out (−)</source>
        <translation>1 段階縮小 (−)</translation>
    </message>
    <message>
        <source>Actual Size</source>
        <translation>実際のサイズ</translation>
    </message>
    <message>
        <source>One image pixel on one pixel of the screen</source>
        <translation>画像の 1 ピクセルを画面の 1 ピクセルに表示します</translation>
    </message>
    <message>
        <source>Fit to Window</source>
        <translation>ウィンドウに合わせる</translation>
    </message>
    <message>
        <source>The whole image in the window, whatever becomes of the window</source>
        <translation>ウィンドウがどう変わっても画像全体を表示します</translation>
    </message>
    <message>
        <source>Transparency as Chequerboard</source>
        <translation>透明部分を市松模様で表示</translation>
    </message>
    <message>
        <source>Transparent parts show a chequerboard instead of grey</source>
        <translation>透明な部分をグレーの代わりに市松模様で示します</translation>
    </message>
    <message>
        <source>Pixel Grid</source>
        <translation>ピクセルグリッド</translation>
    </message>
    <message>
        <source>Lines between the pixels, from 800 % on</source>
        <translation>ピクセルの間の線 (800 % 以上)</translation>
    </message>
    <message>
        <source>Keyboard Pointer</source>
        <translation>キーボードポインター</translation>
    </message>
    <message>
        <source>A crosshair that the numeric pad or Ctrl+arrows move; Ctrl+Space presses the button and lets it go</source>
        <translation>テンキーまたは Ctrl+矢印で動く十字。Ctrl+Space でボタンを押し、離します</translation>
    </message>
    <message>
        <source>History</source>
        <translation>履歴</translation>
    </message>
    <message>
        <source>The steps of the image, to go back to</source>
        <translation>画像の履歴。戻りたい所へ戻れます</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>フルスクリーン</translation>
    </message>
    <message>
        <source>The window on the whole screen, and back</source>
        <translation>ウィンドウを画面全体に広げ、また戻します</translation>
    </message>
    <message>
        <source>Larger Brush</source>
        <translation>ブラシを大きく</translation>
    </message>
    <message>
        <source>The size of brush, pencil, eraser, text and strokes: a tenth more</source>
        <translation>ブラシ、鉛筆、消しゴム、文字、境界線の大きさを 1 割増やします</translation>
    </message>
    <message>
        <source>Smaller Brush</source>
        <translation>ブラシを小さく</translation>
    </message>
    <message>
        <source>The size of brush, pencil, eraser, text and strokes: a tenth less</source>
        <translation>ブラシ、鉛筆、消しゴム、文字、境界線の大きさを 1 割減らします</translation>
    </message>
    <message>
        <source>Swap Colours</source>
        <translation>色の入れ替え</translation>
    </message>
    <message>
        <source>Back to the colour that was chosen before this one, and again</source>
        <translation>この前に選んだ色に戻り、もう一度で再び入れ替わります</translation>
    </message>
    <message>
        <source>Image Editor</source>
        <translation>画像エディター</translation>
    </message>
    <message>
        <source>Brings the main window to the front</source>
        <translation>メインウィンドウを前面に出します</translation>
    </message>
    <message>
        <source>Image Library</source>
        <translation>画像ライブラリ</translation>
    </message>
    <message>
        <source>Your favourite images</source>
        <translation>お気に入りの画像</translation>
    </message>
    <message>
        <source>Show Windows</source>
        <translation>ウィンドウを表示</translation>
    </message>
    <message>
        <source>Main window and image library</source>
        <translation>メインウィンドウと画像ライブラリ</translation>
    </message>
    <message>
        <source>Image Processor…</source>
        <translation>一括処理…</translation>
    </message>
    <message>
        <source>Resizes and watermarks a folder of images</source>
        <translation>フォルダー内の画像のサイズを変え、透かしを入れます</translation>
    </message>
    <message>
        <source>Zelpane Help</source>
        <translation>Zelpane ヘルプ</translation>
    </message>
    <message>
        <source>Where to find the User&apos;s Guide</source>
        <translation>ユーザーガイドの場所</translation>
    </message>
    <message>
        <source>User&apos;s Guide</source>
        <translation>ユーザーガイド</translation>
    </message>
    <message>
        <source>Opens the guide in the browser</source>
        <translation>ガイドをブラウザーで開きます</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>キーボードショートカット</translation>
    </message>
    <message>
        <source>All commands and tools with their keys, which can be changed there</source>
        <translation>すべてのコマンドとツールのキー。ここで変更できます</translation>
    </message>
    <message>
        <source>Zelpane</source>
        <translation>Zelpane</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編集</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>選択</translation>
    </message>
    <message>
        <source>View</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>ツール</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>ウィンドウ</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>Remove Brush</source>
        <translation>除去ブラシ</translation>
    </message>
    <message>
        <source>Paint over a thing and let go: it is filled from its surroundings</source>
        <translation>物の上を塗って離すと、周囲から塗りつぶされます</translation>
    </message>
    <message>
        <source>Copy as Script</source>
        <translation>スクリプトとしてコピー</translation>
    </message>
    <message>
        <source>What was done since the image was opened, as a script that does it again</source>
        <translation>画像を開いてから行ったことを、もう一度行うスクリプトにします</translation>
    </message>
    <message>
        <source>Script</source>
        <translation>スクリプト</translation>
    </message>
    <message>
        <source>What is done to the image, written down as a script; plays scripts on it</source>
        <translation>画像に行ったことをスクリプトとして記録し、スクリプトを実行します</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>比較</translation>
    </message>
    <message>
        <source>While the key is held: an earlier state of the image left of the pointer</source>
        <translation>キーを押している間、ポインタの左側に以前の画像を表示します</translation>
    </message>
    <message>
        <source>Compare as Opened</source>
        <translation>比較: 開いたとき</translation>
    </message>
    <message>
        <source>Compare shows the image as it was opened</source>
        <translation>比較で、開いたときの画像を表示します</translation>
    </message>
    <message>
        <source>Compare as Last Saved</source>
        <translation>比較: 保存したとき</translation>
    </message>
    <message>
        <source>Compare shows the image as it was last saved</source>
        <translation>比較で、最後に保存したときの画像を表示します</translation>
    </message>
    <message>
        <source>Compare before Last Step</source>
        <translation>比較: 最後の操作の前</translation>
    </message>
    <message>
        <source>Compare shows the image without the last step</source>
        <translation>比較で、最後の操作をする前の画像を表示します</translation>
    </message>
    <message>
        <source>Save for a Size…</source>
        <translation>サイズに合わせて保存…</translation>
    </message>
    <message>
        <source>Writes a copy that is as large as it may be, or as small as looks the same</source>
        <translation>許される大きさのコピー、または同じに見える最小のコピーを書き出します</translation>
    </message>
    <message>
        <source>Explain the Wand</source>
        <translation>自動選択の説明</translation>
    </message>
    <message>
        <source>Where the pointer rests, what a click of the magic wand takes; and why it left a pixel out</source>
        <translation>ポインターを止めた場所で自動選択が選ぶ範囲と、選ばれなかったピクセルの理由を示します</translation>
    </message>
    <message>
        <source>Free Corners</source>
        <translation>自由な角</translation>
    </message>
    <message>
        <source>The handles at the corners of what floats pull their corner alone: perspective</source>
        <translation>浮動部分の角のハンドルがその角だけを動かします（遠近）</translation>
    </message>
    <message>
        <source>Straighten Corners</source>
        <translation>角をまっすぐに</translation>
    </message>
    <message>
        <source>What a selection of four corners holds becomes upright, as if seen from straight ahead</source>
        <translation>四つの角を持つ選択範囲の中身が、正面から見たようにまっすぐになります</translation>
    </message>
    <message>
        <source>Put Corners Back</source>
        <translation>角を元に戻す</translation>
    </message>
    <message>
        <source>The corners of what floats go back to where they were before they were pulled</source>
        <translation>浮動部分の角が、動かす前の場所に戻ります</translation>
    </message>
</context>
<context>
    <name>Name</name>
    <message>
        <source>Quick Save</source>
        <translation>クイック保存</translation>
    </message>
    <message>
        <source>&amp;Name of the image in the library:</source>
        <translation>ライブラリでの画像の名前(&amp;N):</translation>
    </message>
    <message>
        <source>The image is saved as TIFF in the image library</source>
        <translation>画像は TIFF として画像ライブラリに保存されます</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
</context>
<context>
    <name>NameDialog</name>
    <message>
        <source>Please enter a proper file name.</source>
        <translation>正しいファイル名を入力してください。</translation>
    </message>
    <message>
        <source>File extension must be .tiff.</source>
        <translation>ファイルの拡張子は .tiff でなければなりません。</translation>
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
        <translation>新規画像</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>幅(&amp;W):</translation>
    </message>
    <message>
        <source>Width of the new image in pixels</source>
        <translation>新しい画像の幅 (ピクセル)</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>ピクセル</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>高さ(&amp;H):</translation>
    </message>
    <message>
        <source>Height of the new image in pixels</source>
        <translation>新しい画像の高さ (ピクセル)</translation>
    </message>
    <message>
        <source>&amp;Resolution:</source>
        <translation>解像度(&amp;R):</translation>
    </message>
    <message>
        <source>For information; the image is measured in pixels</source>
        <translation>参考情報。画像はピクセルで測ります</translation>
    </message>
    <message>
        <source>pixels/inch</source>
        <translation>ピクセル/インチ</translation>
    </message>
    <message>
        <source>File size:</source>
        <translation>ファイルサイズ:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新規</translation>
    </message>
</context>
<context>
    <name>NoticeBar</name>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>OverflowRow</name>
    <message>
        <source>More options</source>
        <translation>その他のオプション</translation>
    </message>
</context>
<context>
    <name>Panels</name>
    <message>
        <source>The image could not be printed.</source>
        <translation>画像を印刷できませんでした。</translation>
    </message>
    <message>
        <source>The printer did not take it.</source>
        <translation>プリンターが受け付けませんでした。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>すべてのファイル</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>品質</translation>
    </message>
    <message>
        <source>Quality:</source>
        <translation>品質:</translation>
    </message>
    <message>
        <source>File already exists</source>
        <translation>ファイルはすでに存在します</translation>
    </message>
    <message>
        <source>Do you want to overwrite the existing file?</source>
        <translation>既存のファイルを上書きしますか?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>No</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>Save Image</source>
        <translation>画像を保存</translation>
    </message>
    <message>
        <source>Choose Folder</source>
        <translation>フォルダーを選択</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>画像を開く</translation>
    </message>
</context>
<context>
    <name>Prefs</name>
    <message>
        <source>Preferences</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>General</source>
        <translation>全般</translation>
    </message>
    <message>
        <source>&amp;Unit:</source>
        <translation>単位(&amp;U):</translation>
    </message>
    <message>
        <source>The unit that lengths are shown in</source>
        <translation>長さを表示する単位</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>ピクセル</translation>
    </message>
    <message>
        <source>Centimeters</source>
        <translation>センチメートル</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>インチ</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>ポイント</translation>
    </message>
    <message>
        <source>&amp;Appearance:</source>
        <translation>外観(&amp;A):</translation>
    </message>
    <message>
        <source>Light or dark windows</source>
        <translation>明るいウィンドウまたは暗いウィンドウ</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>デスクトップに合わせる</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>ライト</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>ダーク</translation>
    </message>
    <message>
        <source>Play &amp;sounds</source>
        <translation>サウンドを鳴らす(&amp;S)</translation>
    </message>
    <message>
        <source>Cues for floated, dropped and filled selections and finished runs</source>
        <translation>フロート、破棄、塗りつぶしと、処理の終了を知らせる音</translation>
    </message>
    <message>
        <source>Held keys</source>
        <translation>押し続けるキー</translation>
    </message>
    <message>
        <source>Some desktops take a key for themselves. Each role can be given to another one; Shift always adds and draws straight.</source>
        <translation>デスクトップがキーを使うことがあります。各役割に別のキーを割り当てられます。Shift は常に追加と直線です。</translation>
    </message>
    <message>
        <source>&amp;Option (subtract, set source):</source>
        <translation>Option (減算、元の位置)(&amp;O):</translation>
    </message>
    <message>
        <source>&amp;Control (oval, polygon):</source>
        <translation>Control (楕円、多角形)(&amp;C):</translation>
    </message>
    <message>
        <source>Co&amp;mmand (square, float):</source>
        <translation>Command (正方形、フロート)(&amp;M):</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>ウィンドウ</translation>
    </message>
    <message>
        <source>&amp;Keep windows where I put them</source>
        <translation>ウィンドウの位置を記憶する(&amp;K)</translation>
    </message>
    <message>
        <source>Windows and dialogs come back in their last place instead of the middle of the screen</source>
        <translation>ウィンドウとダイアログは画面の中央ではなく最後の位置に現れます</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>ショートカット</translation>
    </message>
    <message>
        <source>C&amp;hange Shortcuts…</source>
        <translation>ショートカットの変更(&amp;H)…</translation>
    </message>
    <message>
        <source>All commands with their keys</source>
        <translation>すべてのコマンドとそのキー</translation>
    </message>
    <message>
        <source>About box</source>
        <translation>情報ウィンドウ</translation>
    </message>
    <message>
        <source>Project &amp;page:</source>
        <translation>プロジェクトのページ(&amp;P):</translation>
    </message>
    <message>
        <source>The page that the About box opens</source>
        <translation>情報ウィンドウが開くページ</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;L)</translation>
    </message>
</context>
<context>
    <name>Printing</name>
    <message>
        <source>There is not enough memory.</source>
        <translation>メモリが足りません。</translation>
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
        <translation>フォルダーを調べています…</translation>
    </message>
    <message>
        <source>The folder has no .tiff or .jpg image.</source>
        <translation>フォルダーに .tiff または .jpg の画像がありません。</translation>
    </message>
    <message>
        <source>The largest, the middle and the smallest of %1 images of one shape</source>
        <translation>同じ形の %1 枚のうち最大、中間、最小の画像</translation>
    </message>
    <message>
        <source>The widest, the tallest and the squarest of %1 images</source>
        <translation>%1 枚のうち最も横長、最も縦長、最も正方形に近い画像</translation>
    </message>
    <message>
        <source>%1; the folder has %2</source>
        <translation>%1。フォルダー内は全部で %2 枚</translation>
    </message>
</context>
<context>
    <name>Rename</name>
    <message>
        <source>Rename</source>
        <translation>名前の変更</translation>
    </message>
    <message>
        <source>&amp;New name (the extension stays as it is):</source>
        <translation>新しい名前 (拡張子はそのまま)(&amp;N):</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>Resize</name>
    <message>
        <source>Resize Image</source>
        <translation>画像のサイズ変更</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>幅(&amp;W):</translation>
    </message>
    <message>
        <source>New width in pixels</source>
        <translation>新しい幅 (ピクセル)</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>ピクセル</translation>
    </message>
    <message>
        <source>New width in percent of the present one</source>
        <translation>現在の幅に対する新しい幅 (パーセント)</translation>
    </message>
    <message>
        <source>Width in percent</source>
        <translation>幅 (パーセント)</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>高さ(&amp;H):</translation>
    </message>
    <message>
        <source>New height in pixels</source>
        <translation>新しい高さ (ピクセル)</translation>
    </message>
    <message>
        <source>New height in percent of the present one</source>
        <translation>現在の高さに対する新しい高さ (パーセント)</translation>
    </message>
    <message>
        <source>Height in percent</source>
        <translation>高さ (パーセント)</translation>
    </message>
    <message>
        <source>File size:</source>
        <translation>ファイルサイズ:</translation>
    </message>
    <message>
        <source>&amp;Scale image</source>
        <translation>画像を拡大縮小(&amp;S)</translation>
    </message>
    <message>
        <source>On: the image is resampled to the new size. Off: it keeps its pixels at the place below and is cut or extended</source>
        <translation>オン: 画像を新しい大きさに再サンプルします。オフ: ピクセルは下の位置に残り、切り取られるか広げられます</translation>
    </message>
    <message>
        <source>&amp;Keep aspect ratio</source>
        <translation>縦横比を保つ(&amp;K)</translation>
    </message>
    <message>
        <source>Width and height follow each other</source>
        <translation>幅と高さが連動します</translation>
    </message>
    <message>
        <source>&amp;Place:</source>
        <translation>配置(&amp;P):</translation>
    </message>
    <message>
        <source>Where the image sits in the new size, when it is not scaled</source>
        <translation>拡大縮小しないとき、新しい大きさの中で画像を置く位置</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>左上</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>上</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>右上</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>中央</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>左下</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>下</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>右下</translation>
    </message>
    <message>
        <source>S&amp;harp pixels</source>
        <translation>くっきりしたピクセル(&amp;A)</translation>
    </message>
    <message>
        <source>When it is scaled, pixels stay squares of one colour instead of being blended</source>
        <translation>拡大縮小のとき、ピクセルを混ぜずに 1 色の正方形のままにします</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Resize</source>
        <translation>サイズ変更</translation>
    </message>
    <message>
        <source>Width and height must be from 1 to %1 pixels, and the image at most %2 megapixels.</source>
        <translation>幅と高さは 1〜%1 ピクセル、画像は %2 メガピクセルまででなければなりません。</translation>
    </message>
    <message>
        <source>The image could not be resized.</source>
        <translation>画像のサイズを変更できませんでした。</translation>
    </message>
    <message>
        <source>There is not enough memory for an image of this size.</source>
        <translation>この大きさの画像のためのメモリが足りません。</translation>
    </message>
</context>
<context>
    <name>SaveSelection</name>
    <message>
        <source>Save Selection</source>
        <translation>選択範囲を保存</translation>
    </message>
    <message>
        <source>&amp;Name of the selection:</source>
        <translation>選択範囲の名前(&amp;N):</translation>
    </message>
    <message>
        <source>The outline is kept under this name; a selection of the same name is replaced</source>
        <translation>輪郭はこの名前で保存されます。同じ名前の選択範囲は置き換えられます</translation>
    </message>
    <message>
        <source>Only the outline is kept. It can be loaded into any image.</source>
        <translation>保存されるのは輪郭だけです。どの画像にも読み込めます。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Close without saving</source>
        <translation>保存せずに閉じる</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Save the outline of the selection</source>
        <translation>選択範囲の輪郭を保存</translation>
    </message>
</context>
<context>
    <name>SaveSelectionDialog</name>
    <message>
        <source>Please enter a valid name for the selection</source>
        <translation>選択範囲の正しい名前を入力してください</translation>
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
        <translation>選択範囲を保存できませんでした。</translation>
    </message>
</context>
<context>
    <name>ScriptWindow</name>
    <message>
        <source>Script</source>
        <translation>スクリプト</translation>
    </message>
    <message>
        <source>What was done since the image was opened</source>
        <translation>画像を開いてから行ったこと</translation>
    </message>
    <message>
        <source>What is done to the image is written down here.</source>
        <translation>画像に行ったことがここに記録されます。</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>The whole script on the clipboard</source>
        <translation>スクリプト全体をクリップボードへ</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>保存(&amp;S)…</translation>
    </message>
    <message>
        <source>The whole script as a file</source>
        <translation>スクリプト全体をファイルへ</translation>
    </message>
    <message>
        <source>&amp;Play…</source>
        <translation>実行(&amp;P)…</translation>
    </message>
    <message>
        <source>Plays a script&apos;s file on the image</source>
        <translation>スクリプトのファイルを画像に対して実行します</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>停止(&amp;T)</translation>
    </message>
    <message>
        <source>Ends the script before its next command</source>
        <translation>次のコマンドの前でスクリプトを終了します</translation>
    </message>
    <message>
        <source>Save Script</source>
        <translation>スクリプトを保存</translation>
    </message>
    <message>
        <source>Saved %1.</source>
        <translation>%1 を保存しました。</translation>
    </message>
    <message>
        <source>The script could not be saved.</source>
        <translation>スクリプトを保存できませんでした。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Play a Script</source>
        <translation>スクリプトを実行</translation>
    </message>
    <message>
        <source>Playing %1…</source>
        <translation>%1 を実行中…</translation>
    </message>
    <message>
        <source>The script is done.</source>
        <translation>スクリプトが終わりました。</translation>
    </message>
    <message>
        <source>Line %1 of the script: %2.</source>
        <translation>スクリプトの %1 行目: %2。</translation>
    </message>
</context>
<context>
    <name>SelectionByNumber</name>
    <message>
        <source>Position and Size</source>
        <translation>位置と大きさ</translation>
    </message>
    <message>
        <source>&amp;Left:</source>
        <translation>左(&amp;L):</translation>
    </message>
    <message>
        <source>&amp;Top:</source>
        <translation>上(&amp;T):</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>幅(&amp;W):</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>高さ(&amp;H):</translation>
    </message>
    <message>
        <source>Any size</source>
        <translation>自由な大きさ</translation>
    </message>
    <message>
        <source>This ratio of width to height</source>
        <translation>この縦横比</translation>
    </message>
    <message>
        <source>This size</source>
        <translation>この大きさ</translation>
    </message>
    <message>
        <source>What a rectangle or oval keeps to while it is dragged with the mouse</source>
        <translation>マウスでドラッグする矩形や楕円が従う規則</translation>
    </message>
    <message>
        <source>New &amp;marquees:</source>
        <translation>新しい選択枠(&amp;M):</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>選択</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>SelectionChip</name>
    <message>
        <source>Floating</source>
        <translation>フローティング</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>Anchor ⏎</source>
        <translation>固定 ⏎</translation>
    </message>
    <message>
        <source>Drop Esc</source>
        <translation>破棄 Esc</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>塗りつぶし</translation>
    </message>
    <message>
        <source>Stroke</source>
        <translation>境界線を描く</translation>
    </message>
    <message>
        <source>Float</source>
        <translation>フロート</translation>
    </message>
</context>
<context>
    <name>ShortcutsWindow</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>キーボードショートカット</translation>
    </message>
    <message>
        <source>Find a command or a key</source>
        <translation>コマンドまたはキーを検索</translation>
    </message>
    <message>
        <source>Commands and their keys</source>
        <translation>コマンドとそのキー</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>キー</translation>
    </message>
    <message>
        <source>New &amp;keys:</source>
        <translation>新しいキー(&amp;K):</translation>
    </message>
    <message>
        <source>New keys</source>
        <translation>新しいキー</translation>
    </message>
    <message>
        <source>&amp;Set</source>
        <translation>設定(&amp;S)</translation>
    </message>
    <message>
        <source>The chosen command gets these keys; without keys it has none</source>
        <translation>選んだコマンドにこのキーを割り当てます。空ならキーなし</translation>
    </message>
    <message>
        <source>As &amp;Given</source>
        <translation>既定に戻す(&amp;G)</translation>
    </message>
    <message>
        <source>The chosen command gets its own keys back</source>
        <translation>選んだコマンドを元のキーに戻します</translation>
    </message>
    <message>
        <source>&amp;All as Given</source>
        <translation>すべて既定に戻す(&amp;A)</translation>
    </message>
    <message>
        <source>Every command gets its own keys back</source>
        <translation>すべてのコマンドを元のキーに戻します</translation>
    </message>
    <message>
        <source>Tools, over the image</source>
        <translation>ツール (画像の上で)</translation>
    </message>
    <message>
        <source>%1 belongs to %2 now, which would lose it.</source>
        <translation>%1 は現在「%2」のキーで、そちらから外れます。</translation>
    </message>
    <message>
        <source>%1 chooses the tool %2, which would not hear it any more.</source>
        <translation>%1 はツール「%2」を選ぶキーで、そちらでは効かなくなります。</translation>
    </message>
</context>
<context>
    <name>SizeSaveDialog</name>
    <message>
        <source>There is not enough memory.</source>
        <translation>メモリが足りません。</translation>
    </message>
    <message>
        <source>Save for a Size</source>
        <translation>サイズに合わせて保存</translation>
    </message>
    <message>
        <source>The image before and after</source>
        <translation>前と後の画像</translation>
    </message>
    <message>
        <source>Drag to see another place; the wheel zooms</source>
        <translation>ドラッグで場所を、ホイールで倍率を変えます</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>保存…</translation>
    </message>
    <message>
        <source>Before: %1 × %2</source>
        <translation>前: %1 × %2</translation>
    </message>
    <message>
        <source>WebP files are smaller and keep transparency; older programs cannot open them</source>
        <translation>WebP ファイルは小さく透明部分を保ちますが、古いプログラムでは開けません</translation>
    </message>
    <message>
        <source>&amp;Kind of file:</source>
        <translation>ファイルの種類(&amp;K):</translation>
    </message>
    <message>
        <source>&amp;At most</source>
        <translation>最大(&amp;A)</translation>
    </message>
    <message>
        <source> KB</source>
        <translation> KB</translation>
    </message>
    <message>
        <source>Size of the file</source>
        <translation>ファイルのサイズ</translation>
    </message>
    <message>
        <source>As small as &amp;looks the same</source>
        <translation>同じに見える最小(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Quality</source>
        <translation>品質(&amp;Q)</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>品質</translation>
    </message>
    <message>
        <source>Searching…</source>
        <translation>検索中…</translation>
    </message>
    <message>
        <source>Trying quality %1…</source>
        <translation>品質 %1 を試しています…</translation>
    </message>
    <message>
        <source>After: %1 · %2</source>
        <translation>後: %1 · %2</translation>
    </message>
    <message>
        <source>Likeness %1, in the worst place %2</source>
        <translation>類似度 %1、最も悪い場所で %2</translation>
    </message>
</context>
<context>
    <name>SmartFill</name>
    <message>
        <source>Smart Fill</source>
        <translation>スマート塗りつぶし</translation>
    </message>
    <message>
        <source>&amp;Radius:</source>
        <translation>半径(&amp;R):</translation>
    </message>
    <message>
        <source>How far around the selection to look for texture, in percent of its width and height</source>
        <translation>選択範囲のまわりでテクスチャを探す広さ (幅と高さに対するパーセント)</translation>
    </message>
    <message>
        <source>Radius in percent</source>
        <translation>半径 (パーセント)</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>&amp;Faster, at half the resolution</source>
        <translation>半分の解像度で高速に(&amp;F)</translation>
    </message>
    <message>
        <source>Works on every second pixel; the selection&apos;s whole box becomes coarser</source>
        <translation>1 ピクセルおきに処理します。選択範囲の枠全体が粗くなります</translation>
    </message>
    <message>
        <source>Time:</source>
        <translation>時間:</translation>
    </message>
    <message>
        <source>0.0 sec</source>
        <translation>0.0 秒</translation>
    </message>
    <message>
        <source>Elapsed time</source>
        <translation>経過時間</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進行状況</translation>
    </message>
    <message>
        <source>You can go on working during a run, but changes inside the work area will be overwritten when it ends.</source>
        <translation>実行中も作業を続けられますが、作業範囲内の変更は終了時に上書きされます。</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>閉じる(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>実行(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Keep lines</source>
        <translation>線を保つ(&amp;K)</translation>
    </message>
    <message>
        <source>Edges that enter the selection on one side and leave it on another are drawn through it first</source>
        <translation>選択範囲の一方から入り他方へ抜ける輪郭を、先に通して描きます</translation>
    </message>
    <message>
        <source>&amp;Even out patches</source>
        <translation>継ぎ目をならす(&amp;E)</translation>
    </message>
    <message>
        <source>Takes away steps in brightness and colour where patches from different places meet</source>
        <translation>別々の場所から取った部分の境目にできる明るさと色の段差をなくします</translation>
    </message>
    <message>
        <source>&amp;Take From…</source>
        <translation>取り込み元(&amp;T)…</translation>
    </message>
    <message>
        <source>Takes colours only from what is selected in the image now; pressed again, from anywhere</source>
        <translation>いま選択している部分からだけ色を取ります。もう一度押すとどこからでも取ります</translation>
    </message>
    <message>
        <source>anywhere</source>
        <translation>どこからでも</translation>
    </message>
    <message>
        <source>Taken from</source>
        <translation>取り込み元</translation>
    </message>
    <message>
        <source>&amp;Never From…</source>
        <translation>使わない部分(&amp;N)…</translation>
    </message>
    <message>
        <source>Takes no colour from what is selected in the image now; pressed again, from anywhere</source>
        <translation>いま選択している部分からは色を取りません。もう一度押すとどこからでも取ります</translation>
    </message>
    <message>
        <source>nowhere</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Never taken from</source>
        <translation>使わない部分</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>プレビュー(&amp;P)</translation>
    </message>
    <message>
        <source>Shows the fill over the image; Run then leaves it there</source>
        <translation>塗りつぶしを画像の上に表示します。実行するとそのまま残ります</translation>
    </message>
    <message>
        <source>&amp;Another Result</source>
        <translation>別の結果(&amp;A)</translation>
    </message>
    <message>
        <source>Shows what other random numbers make of it</source>
        <translation>別の乱数での結果を表示します</translation>
    </message>
    <message>
        <source>Re&amp;move Brush</source>
        <translation>除去ブラシ(&amp;M)</translation>
    </message>
    <message>
        <source>Paint over a thing in the image and let go: it is gone</source>
        <translation>画像の中の物を塗って離すと、消えます</translation>
    </message>
    <message>
        <source>One of the last four results: shows it over the image; pressed again, the image without it</source>
        <translation>最近の 4 つの結果の 1 つを画像の上に表示します。もう一度押すと元の画像を表示します</translation>
    </message>
    <message>
        <source>Result 1</source>
        <translation>結果 1</translation>
    </message>
    <message>
        <source>Result 2</source>
        <translation>結果 2</translation>
    </message>
    <message>
        <source>Result 3</source>
        <translation>結果 3</translation>
    </message>
    <message>
        <source>Result 4</source>
        <translation>結果 4</translation>
    </message>
</context>
<context>
    <name>SmartFillStudio</name>
    <message>
        <source>anywhere</source>
        <translation>どこからでも</translation>
    </message>
    <message>
        <source>nowhere</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>select the place in the image first</source>
        <translation>先に画像の中で場所を選択してください</translation>
    </message>
    <message>
        <source>the selection of %1 × %2</source>
        <translation>%1 × %2 の選択範囲</translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message>
        <source>Box of the selection</source>
        <translation>選択範囲の枠</translation>
    </message>
    <message>
        <source>The selection: its corner and its size. Drag this to another program to hand it over as a PNG image.</source>
        <translation>選択範囲の角と大きさ。別のプログラムへドラッグすると PNG 画像として渡せます。</translation>
    </message>
    <message>
        <source>Colour under the pointer</source>
        <translation>ポインターの下の色</translation>
    </message>
    <message>
        <source>Position and colour under the pointer</source>
        <translation>ポインターの位置とその下の色</translation>
    </message>
    <message>
        <source>Size of the image and zoom</source>
        <translation>画像の大きさとズーム</translation>
    </message>
    <message>
        <source>Open an image, make a new one, or drop a file on the window</source>
        <translation>画像を開くか、新規に作るか、ファイルをウィンドウにドロップしてください</translation>
    </message>
    <message>
        <source>Click the next corner · Return closes the shape, Escape gives it up</source>
        <translation>次の角をクリック · Return で形を閉じ、Escape で中止</translation>
    </message>
    <message>
        <source>Rest: what a click takes · drag right: more tolerance, left: less · %1 adds, %2 subtracts</source>
        <translation>止める: クリックで選ばれる範囲 · 右へドラッグ: 許容値を増やす、左: 減らす · %1 で追加、%2 で減算</translation>
    </message>
    <message>
        <source>Drag a corner&apos;s handle: it goes alone, %1: along a side, %2: all scale · Return anchors, Escape drops</source>
        <translation>角のハンドルをドラッグ：その角だけ動く、%1: 辺に沿って、%2: 全体を拡大縮小 · Return で固定、Escape で破棄</translation>
    </message>
    <message>
        <source>Drag to move · the handles scale and turn, %1: steps of 15°, %2: one corner alone · Return anchors, Escape drops</source>
        <translation>ドラッグで移動 · ハンドルで拡大縮小と回転、%1: 15° 刻み、%2: 一つの角だけ · Return で固定、Escape で破棄</translation>
    </message>
    <message>
        <source>in perspective</source>
        <translation>遠近あり</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>処理中</translation>
    </message>
</context>
<context>
    <name>Steps</name>
    <message>
        <source>Anchor Selection</source>
        <translation>選択範囲を固定</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新規</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>切り取り</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>塗りつぶし</translation>
    </message>
    <message>
        <source>Stroke</source>
        <translation>境界線を描く</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>切り抜き</translation>
    </message>
    <message>
        <source>Rotate Clockwise</source>
        <translation>右に回転</translation>
    </message>
    <message>
        <source>Rotate Counter-Clockwise</source>
        <translation>左に回転</translation>
    </message>
    <message>
        <source>Flip Horizontally</source>
        <translation>左右反転</translation>
    </message>
    <message>
        <source>Flip Vertically</source>
        <translation>上下反転</translation>
    </message>
    <message>
        <source>Resize</source>
        <translation>サイズ変更</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>移動</translation>
    </message>
    <message>
        <source>Brush</source>
        <translation>ブラシ</translation>
    </message>
    <message>
        <source>Pencil</source>
        <translation>鉛筆</translation>
    </message>
    <message>
        <source>Eraser</source>
        <translation>消しゴム</translation>
    </message>
    <message>
        <source>Paint Bucket</source>
        <translation>バケツ</translation>
    </message>
    <message>
        <source>Clone Stamp</source>
        <translation>スタンプ</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Smart Fill</source>
        <translation>スマート塗りつぶし</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>除去</translation>
    </message>
</context>
<context>
    <name>TextEditor</name>
    <message>
        <source>Text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>&amp;Text:</source>
        <translation>テキスト(&amp;T):</translation>
    </message>
    <message>
        <source>What is typed here stands on the image at once</source>
        <translation>ここに入力した文字はすぐに画像に現れます</translation>
    </message>
    <message>
        <source>Font family</source>
        <translation>フォント</translation>
    </message>
    <message>
        <source>Smaller; with Shift by ten</source>
        <translation>小さく。Shift で 10 ずつ</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>小さく</translation>
    </message>
    <message>
        <source>Size in pixels</source>
        <translation>大きさ (ピクセル)</translation>
    </message>
    <message>
        <source>Larger; with Shift by ten</source>
        <translation>大きく。Shift で 10 ずつ</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>大きく</translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation>太字(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation>斜体(&amp;I)</translation>
    </message>
    <message>
        <source>Colour of the preview below; the selection takes none</source>
        <translation>下のプレビューの色。選択範囲には付きません</translation>
    </message>
    <message>
        <source>Colour of the preview</source>
        <translation>プレビューの色</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>&amp;Left</source>
        <translation>左揃え(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Center</source>
        <translation>中央揃え(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Right</source>
        <translation>右揃え(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Justified</source>
        <translation>両端揃え(&amp;J)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Keeps the text as the selection</source>
        <translation>テキストを選択範囲として残します</translation>
    </message>
    <message>
        <source>What is typed here stands on the image at once; Ctrl+Return is OK</source>
        <translation>ここに入力した文字はすぐに画像に現れます。Ctrl+Return で OK</translation>
    </message>
    <message>
        <source>&amp;Several lines</source>
        <translation>複数行(&amp;S)</translation>
    </message>
    <message>
        <source>Return begins another line, which stands below</source>
        <translation>Return で下に新しい行を始めます</translation>
    </message>
    <message>
        <source>Alignment of the preview, and of several lines</source>
        <translation>プレビューと複数行の行揃え</translation>
    </message>
</context>
<context>
    <name>Tools</name>
    <message>
        <source>Rectangle Selection</source>
        <translation>矩形選択</translation>
    </message>
    <message>
        <source>Selects a rectangle; square and oval by switch or key</source>
        <translation>矩形を選択します。スイッチまたはキーで正方形と楕円</translation>
    </message>
    <message>
        <source>Drag to select; inside the selection it moves · {Shift} adds, {Option} subtracts · {Command}: square, {Control}: oval</source>
        <translation>ドラッグで選択、選択範囲の中では移動 · {Shift} で追加、{Option} で減算 · {Command}: 正方形、{Control}: 楕円</translation>
    </message>
    <message>
        <source>Lasso</source>
        <translation>なげなわ</translation>
    </message>
    <message>
        <source>Selects by a drawn outline; polygon by switch or key, ended with Return</source>
        <translation>描いた輪郭で選択します。スイッチまたはキーで多角形、Return で終了</translation>
    </message>
    <message>
        <source>Draw around what you want · {Shift} adds, {Option} subtracts · {Control}: corner by corner, Return ends</source>
        <translation>選びたいものを囲みます · {Shift} で追加、{Option} で減算 · {Control}: 角ごとに、Return で終了</translation>
    </message>
    <message>
        <source>Magic Wand</source>
        <translation>自動選択</translation>
    </message>
    <message>
        <source>Selects the area of similar colour</source>
        <translation>似た色の領域を選択します</translation>
    </message>
    <message>
        <source>Click a colour · {Shift} adds, {Option} subtracts · Tolerance says how far colours may differ</source>
        <translation>色をクリック · {Shift} で追加、{Option} で減算 · 許容値は色の違いをどこまで許すか</translation>
    </message>
    <message>
        <source>Brush</source>
        <translation>ブラシ</translation>
    </message>
    <message>
        <source>Paints with a brush tip</source>
        <translation>ブラシの先端で描きます</translation>
    </message>
    <message>
        <source>Pencil</source>
        <translation>鉛筆</translation>
    </message>
    <message>
        <source>Draws a line; straight with Shift</source>
        <translation>線を描きます。Shift で直線</translation>
    </message>
    <message>
        <source>Drag to draw · {Shift}: one straight line · Escape takes it back</source>
        <translation>ドラッグで描画 · {Shift}: 1 本の直線 · Escape で取り消し</translation>
    </message>
    <message>
        <source>Eraser</source>
        <translation>消しゴム</translation>
    </message>
    <message>
        <source>Makes pixels transparent; straight with Shift</source>
        <translation>ピクセルを透明にします。Shift で直線</translation>
    </message>
    <message>
        <source>Drag to make transparent · {Shift}: one straight line · Escape takes it back</source>
        <translation>ドラッグで透明に · {Shift}: 1 本の直線 · Escape で取り消し</translation>
    </message>
    <message>
        <source>Paint Bucket</source>
        <translation>バケツ</translation>
    </message>
    <message>
        <source>Fills the area of similar colour</source>
        <translation>似た色の領域を塗りつぶします</translation>
    </message>
    <message>
        <source>Click to fill the area of one colour · Tolerance says how far colours may differ</source>
        <translation>クリックで同じ色の領域を塗りつぶし · 許容値は色の違いをどこまで許すか</translation>
    </message>
    <message>
        <source>Eyedropper</source>
        <translation>スポイト</translation>
    </message>
    <message>
        <source>Picks the colour under the pointer</source>
        <translation>ポインターの下の色を取ります</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>Places text as a selection</source>
        <translation>テキストを選択範囲として置きます</translation>
    </message>
    <message>
        <source>Click where the text begins · inside the text, dragging moves it</source>
        <translation>文字の始まる位置をクリック · 文字の中ではドラッグで移動</translation>
    </message>
    <message>
        <source>Clone Stamp</source>
        <translation>スタンプ</translation>
    </message>
    <message>
        <source>Paints with pixels from elsewhere; Option-click sets the source</source>
        <translation>別の場所のピクセルで描きます。Option を押してクリックで元の位置を設定</translation>
    </message>
    <message>
        <source>{Option}+click says where pixels come from, then paint</source>
        <translation>{Option}+クリックで元の位置を決め、それから描きます</translation>
    </message>
    <message>
        <source>Remove Brush</source>
        <translation>除去ブラシ</translation>
    </message>
    <message>
        <source>Fills what it is drawn over from its surroundings</source>
        <translation>塗った部分を周囲から塗りつぶします</translation>
    </message>
    <message>
        <source>Paint over what should vanish and let go · any tool ends this · Escape takes the stroke back</source>
        <translation>消したいものを塗って離す · どのツールでも終了 · Esc で線を取り消す</translation>
    </message>
    <message>
        <source>Drag to paint · {smallerBrush:} and {largerBrush:} change the size, {swapColours:} the colour · Escape takes the stroke back</source>
        <translation>ドラッグで描画 · {smallerBrush:} と {largerBrush:} で大きさ、{swapColours:} で色を変更 · Escape で取り消し</translation>
    </message>
    <message>
        <source>Click or drag to pick the paint colour · {swapColours:} goes back to the one before</source>
        <translation>クリックまたはドラッグで描画色を取ります · {swapColours:} で前の色に戻ります</translation>
    </message>
</context>
<context>
    <name>Transform</name>
    <message>
        <source>Transform Selection</source>
        <translation>選択範囲の変形</translation>
    </message>
    <message>
        <source>&amp;Scale:</source>
        <translation>拡大率(&amp;S):</translation>
    </message>
    <message>
        <source>Size of the selected pixels in percent; 100 is their own size</source>
        <translation>選択したピクセルの大きさ (パーセント)。100 が元の大きさ</translation>
    </message>
    <message>
        <source>Scale slider</source>
        <translation>拡大率スライダー</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>拡大率</translation>
    </message>
    <message>
        <source>R&amp;otate:</source>
        <translation>回転(&amp;O):</translation>
    </message>
    <message>
        <source>Turns the selected pixels about their centre, in degrees</source>
        <translation>選択したピクセルを中心のまわりに回します (度)</translation>
    </message>
    <message>
        <source>Rotate slider</source>
        <translation>回転スライダー</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>回転</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>リセット(&amp;R)</translation>
    </message>
    <message>
        <source>Back to 100 % and 0 degrees</source>
        <translation>100 % と 0 度に戻します</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Closes the dialog; the selection keeps floating as shown</source>
        <translation>ダイアログを閉じます。選択範囲は表示のまま浮いています</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>適用</translation>
    </message>
</context>
<context>
    <name>Wand</name>
    <message>
        <source>Outside: red differs by %1, the tolerance allows %2</source>
        <translation>外側: 赤の差は %1、許容値は %2 まで</translation>
    </message>
    <message>
        <source>Outside: green differs by %1, the tolerance allows %2</source>
        <translation>外側: 緑の差は %1、許容値は %2 まで</translation>
    </message>
    <message>
        <source>Outside: blue differs by %1, the tolerance allows %2</source>
        <translation>外側: 青の差は %1、許容値は %2 まで</translation>
    </message>
    <message>
        <source>Outside: opacity differs by %1, the tolerance allows %2</source>
        <translation>外側: 不透明度の差は %1、許容値は %2 まで</translation>
    </message>
    <message>
        <source>Inside</source>
        <translation>内側</translation>
    </message>
    <message>
        <source>Outside: within the tolerance, but not connected</source>
        <translation>外側: 許容値の範囲内だが、つながっていない</translation>
    </message>
    <message>
        <source>Outside: a tolerance of 0 takes nothing</source>
        <translation>外側: 許容値 0 では何も選ばれない</translation>
    </message>
</context>
<context>
    <name>Watermark</name>
    <message>
        <source>The watermark could not be drawn.</source>
        <translation>透かしを描画できませんでした。</translation>
    </message>
</context>
<context>
    <name>WatermarkText</name>
    <message>
        <source>Text as Watermark</source>
        <translation>テキストの透かし</translation>
    </message>
    <message>
        <source>&amp;Text:</source>
        <translation>テキスト(&amp;T):</translation>
    </message>
    <message>
        <source>© and your name</source>
        <translation>© とお名前</translation>
    </message>
    <message>
        <source>&amp;Font:</source>
        <translation>フォント(&amp;F):</translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation>太字(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation>斜体(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Colour:</source>
        <translation>色(&amp;C):</translation>
    </message>
    <message>
        <source>Colour of the letters</source>
        <translation>文字の色</translation>
    </message>
    <message>
        <source>With an &amp;edge that shows on light and dark</source>
        <translation>明暗どちらでも見える縁取り(&amp;E)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>作成</translation>
    </message>
</context>
<context>
    <name>ZPAboutBox</name>
    <message>
        <source>Version %1</source>
        <translation>バージョン %1</translation>
    </message>
    <message>
        <source>Simple, yet powerful image editing: paint, select, retouch, adjust and convert images, one at a time or by the folder.</source>
        <translation>シンプルで強力な画像編集: 描画、選択、レタッチ、補正、変換を 1 枚ずつ、またはフォルダーごとに。</translation>
    </message>
    <message>
        <source>Free software under the GNU General Public License, version 3 or later. It comes with no warranty, to the extent that the law permits.</source>
        <translation>GNU General Public License バージョン 3 以降のもとで配布されるフリーソフトウェアです。法律の許す範囲で、いかなる保証もありません。</translation>
    </message>
</context>
<context>
    <name>ZPAppController</name>
    <message>
        <source>An image that was never saved</source>
        <translation>一度も保存していない画像</translation>
    </message>
    <message>
        <source>%1, %2 × %3 pixels, as it was after the last change.</source>
        <translation>%1、%2 × %3 ピクセル、最後の変更後の状態です。</translation>
    </message>
    <message>
        <source>Zelpane ended unexpectedly. Do you want to recover your last image?</source>
        <translation>Zelpane が予期せず終了しました。最後の画像を復元しますか?</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>復元</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>破棄</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>後で</translation>
    </message>
    <message>
        <source>Changed and never saved: %1.</source>
        <translation>変更後、一度も保存していません: %1。</translation>
    </message>
    <message>
        <source>This is a (Snow) Leopard-only product!</source>
        <translation>この製品は (Snow) Leopard 専用です!</translation>
    </message>
    <message>
        <source>Mac OS X 10.5 or later is required.</source>
        <translation>Mac OS X 10.5 以降が必要です。</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>What would you like to do? Create a new image or open an existing image.</source>
        <translation>何をしますか? 新しい画像を作るか、既存の画像を開いてください。</translation>
    </message>
    <message>
        <source>New…</source>
        <translation>新規…</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>開く…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Do you really want to quit?</source>
        <translation>本当に終了しますか?</translation>
    </message>
    <message>
        <source>Make sure that the image is saved to disk.</source>
        <translation>画像がディスクに保存されていることを確かめてください。</translation>
    </message>
    <message>
        <source>No recent images</source>
        <translation>最近の画像はありません</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>一覧を消去</translation>
    </message>
    <message>
        <source>Read the User&apos;s Guide</source>
        <translation>ユーザーガイドをお読みください</translation>
    </message>
    <message>
        <source>You can find the User&apos;s Guide in the same folder as this application.</source>
        <translation>ユーザーガイドはこのアプリケーションと同じフォルダーにあります。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Do you really want to use the image processor?</source>
        <translation>本当に一括処理を使いますか?</translation>
    </message>
    <message>
        <source>Make sure that the current image is saved to disk.</source>
        <translation>現在の画像がディスクに保存されていることを確かめてください。</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>No</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>You have enabled 2x retina display mode.</source>
        <translation>2x Retina 表示モードをオンにしました。</translation>
    </message>
    <message>
        <source>You have disabled 2x retina display mode.</source>
        <translation>2x Retina 表示モードをオフにしました。</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>verb and name of a step: Undo Fill</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Anchor Selection</source>
        <translation>選択範囲を固定</translation>
    </message>
    <message>
        <source>Float Selection</source>
        <translation>選択範囲をフロート</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>取り消し</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直し</translation>
    </message>
    <message>
        <source>Needs an image: open one or make a new one.</source>
        <translation>画像が必要です。開くか新しく作ってください。</translation>
    </message>
    <message>
        <source>Needs a selection.</source>
        <translation>選択範囲が必要です。</translation>
    </message>
    <message>
        <source>Needs an image on the clipboard.</source>
        <translation>クリップボードに画像が必要です。</translation>
    </message>
    <message>
        <source>Needs an image that has a file: save it first.</source>
        <translation>ファイルのある画像が必要です。先に保存してください。</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>取り消すことがありません。</translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>やり直すことがありません。</translation>
    </message>
    <message>
        <source>No selection was dropped yet.</source>
        <translation>まだ破棄した選択範囲がありません。</translation>
    </message>
    <message>
        <source>No image was open before this one.</source>
        <translation>この前に開いていた画像はありません。</translation>
    </message>
    <message>
        <source>Needs the main window.</source>
        <translation>メインウィンドウが必要です。</translation>
    </message>
    <message>
        <source>Done: %1</source>
        <translation>完了: %1</translation>
    </message>
    <message>
        <source>Copied what was done as a script.</source>
        <translation>行ったことをスクリプトとしてコピーしました。</translation>
    </message>
</context>
<context>
    <name>ZPCanvas</name>
    <message>
        <source>Canvas</source>
        <translation>キャンバス</translation>
    </message>
</context>
<context>
    <name>ZPFileManager</name>
    <message numerus="yes">
        <source>%n image(s)</source>
        <translation>
            <numerusform>%n 枚の画像</numerusform>
        </translation>
    </message>
    <message>
        <source>No image selected</source>
        <translation>画像が選ばれていません</translation>
    </message>
    <message>
        <source>Drop images here</source>
        <translation>ここに画像をドロップ</translation>
    </message>
    <message>
        <source>The file that this link leads to is gone.</source>
        <translation>このリンク先のファイルはもうありません。</translation>
    </message>
    <message>
        <source>Add to Image Library</source>
        <translation>画像ライブラリに追加</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Do you wish to delete the selected file?</source>
        <translation>選んだファイルを削除しますか?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Select a file to rename.</source>
        <translation>名前を変更するファイルを選んでください。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Enter a valid new name.</source>
        <translation>正しい新しい名前を入力してください。</translation>
    </message>
    <message>
        <source>looks the same</source>
        <translation>見た目が同じ</translation>
    </message>
    <message>
        <source>Found again: “%1” in %2</source>
        <translation>見つかりました:「%1」(%2)</translation>
    </message>
    <message>
        <source>An image of the same name, maybe another one: “%1” in %2</source>
        <translation>同じ名前の画像(別の画像かもしれません):「%1」(%2)</translation>
    </message>
    <message>
        <source>Not found again in its old folder, below it or beside it.</source>
        <translation>元のフォルダ、その中、その隣には見つかりませんでした。</translation>
    </message>
    <message>
        <source>Looking for the image of this link…</source>
        <translation>このリンクの画像を探しています…</translation>
    </message>
    <message numerus="yes">
        <source>Found again: the images of %n broken link(s).</source>
        <translation>
            <numerusform>切れたリンク %n 件の画像が見つかりました。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Do you wish to relink %n image(s)?</source>
        <translation>
            <numerusform>%n 枚の画像をリンクし直しますか?</numerusform>
        </translation>
    </message>
    <message>
        <source>Relink</source>
        <translation>再リンク</translation>
    </message>
    <message>
        <source>A link could not be changed.</source>
        <translation>リンクを変更できませんでした。</translation>
    </message>
    <message>
        <source>Comparing %1 of %2</source>
        <translation>%2 枚中 %1 枚を比較中</translation>
    </message>
    <message>
        <source>No duplicates</source>
        <translation>重複はありません</translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) more than once</source>
        <translation>
            <numerusform>%n 枚が重複</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ZPImageProcessor</name>
    <message>
        <source>Choose a source folder.</source>
        <translation>元のフォルダーを選んでください。</translation>
    </message>
    <message>
        <source>Choose a destination folder.</source>
        <translation>保存先フォルダーを選んでください。</translation>
    </message>
    <message>
        <source>Source and destination folder cannot be the same.</source>
        <translation>元のフォルダーと保存先フォルダーを同じにはできません。</translation>
    </message>
    <message>
        <source>Error: Source or destination folder does not exist.</source>
        <translation>エラー: 元のフォルダーまたは保存先フォルダーが存在しません。</translation>
    </message>
    <message>
        <source>Ending after this image…</source>
        <translation>この画像の後で終了します…</translation>
    </message>
    <message>
        <source>Choose source folder</source>
        <translation>元のフォルダーを選択</translation>
    </message>
    <message>
        <source>Choose destination folder</source>
        <translation>保存先フォルダーを選択</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>選択</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The source folder cannot be listed.</source>
        <translation>元のフォルダーの内容を読み取れません。</translation>
    </message>
    <message>
        <source>%1 of %2: %3</source>
        <translation>%1 / %2: %3</translation>
    </message>
    <message>
        <source>There is no canvas to work on.</source>
        <translation>作業するキャンバスがありません。</translation>
    </message>
    <message>
        <source>One file could not be processed.</source>
        <translation>1 個のファイルを処理できませんでした。</translation>
    </message>
    <message numerus="yes">
        <source>%n files could not be processed.</source>
        <translation>
            <numerusform>%n 個のファイルを処理できませんでした。</numerusform>
        </translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>The watermark could not be made.</source>
        <translation>透かしを作成できませんでした。</translation>
    </message>
    <message>
        <source>The letters of this text have no outlines in this font.</source>
        <translation>このフォントでは、このテキストの文字に輪郭がありません。</translation>
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
        <translation>この塗りつぶしのためのメモリが足りません。</translation>
    </message>
    <message>
        <source>Select a smaller area or lower the radius.</source>
        <translation>より小さな範囲を選択するか、半径を小さくしてください。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>There is nothing to fill from.</source>
        <translation>塗りつぶしに使える部分がありません。</translation>
    </message>
    <message>
        <source>Select a smaller area or raise the radius.</source>
        <translation>より小さな範囲を選択するか、半径を大きくしてください。</translation>
    </message>
    <message>
        <source>The image changed meanwhile; the fill was dropped.</source>
        <translation>その間に画像が変わったため、塗りつぶしは破棄されました。</translation>
    </message>
</context>
<context>
    <name>ZPTextEditor</name>
    <message>
        <source>The letters of this family are pictures without outlines. Please choose another family.</source>
        <translation>このフォントの文字は輪郭のない画像です。別のフォントを選んでください。</translation>
    </message>
    <message>
        <source>Some characters are pictures without an outline and are left out.</source>
        <translation>一部の文字は輪郭のない画像のため省かれます。</translation>
    </message>
</context>
<context>
    <name>zp::Document</name>
    <message>
        <source>There is not enough memory.</source>
        <translation>メモリが足りません。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>It was stopped.</source>
        <translation>処理を中止しました。</translation>
    </message>
</context>
<context>
    <name>zp::WandExplainer</name>
    <message>
        <source>A click takes %1 px</source>
        <translation>クリックで %1 px を選択</translation>
    </message>
    <message>
        <source>A click takes at least %1 px</source>
        <translation>クリックで少なくとも %1 px を選択</translation>
    </message>
</context>
</TS>
