<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>AboutBox</name>
    <message>
        <source>About Zelpane</source>
        <translation>关于 Zelpane</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>Project &amp;Page</source>
        <translation>项目主页(&amp;P)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>Accessible</name>
    <message>
        <source>No image</source>
        <translation>没有图片</translation>
    </message>
    <message>
        <source>%1 by %2 pixels</source>
        <translation>%1 × %2 像素</translation>
    </message>
    <message>
        <source>zoom %1</source>
        <translation>缩放 %1</translation>
    </message>
    <message>
        <source>selected: %1</source>
        <translation>已选择：%1</translation>
    </message>
</context>
<context>
    <name>Adjust</name>
    <message>
        <source>Adjust Selection</source>
        <translation>调整选区</translation>
    </message>
    <message>
        <source>&amp;Hue:</source>
        <translation>色相(&amp;H)：</translation>
    </message>
    <message>
        <source>Turns all colours about the grey axis, in hundredths of a radian; 0 leaves them as they are</source>
        <translation>让所有颜色绕灰轴旋转，单位为百分之一弧度；0 表示不变</translation>
    </message>
    <message>
        <source>Hue slider</source>
        <translation>色相滑块</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>色相</translation>
    </message>
    <message>
        <source>Sa&amp;turation:</source>
        <translation>饱和度(&amp;T)：</translation>
    </message>
    <message>
        <source>Strength of the colours: 0 is grey, 100 leaves them as they are</source>
        <translation>颜色的强度：0 为灰色，100 表示不变</translation>
    </message>
    <message>
        <source>Saturation slider</source>
        <translation>饱和度滑块</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>饱和度</translation>
    </message>
    <message>
        <source>&amp;Brightness:</source>
        <translation>亮度(&amp;B)：</translation>
    </message>
    <message>
        <source>Added to every colour; 0 leaves them as they are</source>
        <translation>加到每种颜色上的值；0 表示不变</translation>
    </message>
    <message>
        <source>Brightness slider</source>
        <translation>亮度滑块</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>亮度</translation>
    </message>
    <message>
        <source>&amp;Contrast:</source>
        <translation>对比度(&amp;C)：</translation>
    </message>
    <message>
        <source>Distance from mid grey; 100 leaves it as it is</source>
        <translation>与中灰的距离；100 表示不变</translation>
    </message>
    <message>
        <source>Contrast slider</source>
        <translation>对比度滑块</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>对比度</translation>
    </message>
    <message>
        <source>&amp;Sharpness:</source>
        <translation>锐度(&amp;S)：</translation>
    </message>
    <message>
        <source>Above 0 sharpens, below 0 blurs</source>
        <translation>大于 0 锐化，小于 0 模糊</translation>
    </message>
    <message>
        <source>Sharpness slider</source>
        <translation>锐度滑块</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>锐度</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>重置(&amp;R)</translation>
    </message>
    <message>
        <source>All five back to what leaves the image as it is</source>
        <translation>将五项全部恢复为不改变图片的值</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Closes the dialog; the adjustment shown stays and can be undone once anchored</source>
        <translation>关闭对话框；显示的调整会保留，固定后可以撤销</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>Closes the dialog; the adjustment shown stays</source>
        <translation>关闭对话框；显示的调整会保留</translation>
    </message>
    <message>
        <source>The selection could not be adjusted.</source>
        <translation>无法调整选区。</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>内存不足。</translation>
    </message>
    <message>
        <source>C&amp;ompare</source>
        <translation>比较(&amp;O)</translation>
    </message>
    <message>
        <source>While it is pressed: the image without the adjustment</source>
        <translation>按住时显示未调整的图像</translation>
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
        <translation>选区 %1.png</translation>
    </message>
    <message>
        <source>Nothing could be pasted.</source>
        <translation>无法粘贴任何内容。</translation>
    </message>
    <message>
        <source>The clipboard&apos;s image cannot be read.</source>
        <translation>无法读取剪贴板中的图片。</translation>
    </message>
    <message>
        <source>The clipboard&apos;s image is larger than %1 MB.</source>
        <translation>剪贴板中的图像大于 %1 MB。</translation>
    </message>
</context>
<context>
    <name>Codecs</name>
    <message>
        <source>The image has no pixels.</source>
        <translation>图片没有像素。</translation>
    </message>
    <message>
        <source>The image is too large: %1 x %2 pixels.</source>
        <translation>图片太大：%1 × %2 像素。</translation>
    </message>
    <message>
        <source>The file is far too small for the %1 x %2 pixels it claims to hold.</source>
        <translation>文件太小，不可能包含它声称的 %1 × %2 像素。</translation>
    </message>
    <message>
        <source>The image of %1 x %2 pixels does not fit this machine&apos;s memory.</source>
        <translation>%1 × %2 像素的图片超出了本机内存。</translation>
    </message>
    <message>
        <source>its data is damaged</source>
        <translation>其数据已损坏</translation>
    </message>
    <message>
        <source>It is not an image of a kind that can be opened.</source>
        <translation>这不是可以打开的图片类型。</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>文件是空的。</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>文件不存在。</translation>
    </message>
    <message>
        <source>There is no permission to read the file.</source>
        <translation>没有读取该文件的权限。</translation>
    </message>
    <message>
        <source>The file is a link that leads nowhere.</source>
        <translation>该文件是一个没有目标的链接。</translation>
    </message>
    <message>
        <source>The file&apos;s name is too long.</source>
        <translation>文件名太长。</translation>
    </message>
    <message>
        <source>The file cannot be read: %1.</source>
        <translation>无法读取文件：%1。</translation>
    </message>
    <message>
        <source>There is not enough memory to read the file.</source>
        <translation>内存不足，无法读取文件。</translation>
    </message>
    <message>
        <source>There is not enough memory for this image.</source>
        <translation>内存不足，无法容纳这张图片。</translation>
    </message>
    <message>
        <source>The image cannot be read: %1.</source>
        <translation>无法读取图片：%1。</translation>
    </message>
    <message>
        <source>The image cannot be read.</source>
        <translation>无法读取图片。</translation>
    </message>
    <message>
        <source>It is a folder, not an image.</source>
        <translation>这是文件夹，不是图片。</translation>
    </message>
    <message>
        <source>It is not an ordinary file.</source>
        <translation>这不是普通文件。</translation>
    </message>
    <message>
        <source>The file is larger than 4 GiB.</source>
        <translation>文件大于 4 GiB。</translation>
    </message>
    <message>
        <source>The colour profile is incomplete and was left out.</source>
        <translation>颜色配置文件不完整，已略去。</translation>
    </message>
    <message>
        <source>There is not enough memory for this JPEG image.</source>
        <translation>内存不足，无法容纳这张 JPEG 图片。</translation>
    </message>
    <message>
        <source>The JPEG data cannot be read: %1.</source>
        <translation>无法读取 JPEG 数据：%1。</translation>
    </message>
    <message>
        <source>JPEG images with two components cannot be read.</source>
        <translation>无法读取只有两个分量的 JPEG 图片。</translation>
    </message>
    <message>
        <source>The JPEG data is damaged; what could be read is shown.</source>
        <translation>JPEG 数据已损坏；显示的是能读取的部分。</translation>
    </message>
    <message>
        <source>The %1 image is larger than the limits of this machine allow.</source>
        <translation>%1 图片超出了本机的限制。</translation>
    </message>
    <message>
        <source>The %1 data cannot be read: %2.</source>
        <translation>无法读取 %1 数据：%2。</translation>
    </message>
    <message>
        <source>The image&apos;s data is damaged; what could be read is shown.</source>
        <translation>图片数据已损坏；显示的是能读取的部分。</translation>
    </message>
    <message numerus="yes">
        <source>The image had %n bits a colour; it was reduced to 8.</source>
        <translation>
            <numerusform>图片每种颜色有 %n 位，已减为 8 位。</numerusform>
        </translation>
    </message>
    <message>
        <source>The EXIF data is damaged and was left out.</source>
        <translation>EXIF 数据已损坏，已略去。</translation>
    </message>
    <message>
        <source>Damaged parts of the EXIF data were left out.</source>
        <translation>EXIF 数据的损坏部分已略去。</translation>
    </message>
    <message>
        <source>The XMP data is damaged and was left out.</source>
        <translation>XMP 数据已损坏，已略去。</translation>
    </message>
    <message>
        <source>The colour profile is damaged and was left out.</source>
        <translation>颜色配置文件已损坏，已略去。</translation>
    </message>
    <message>
        <source>The image was converted to RGB; its colour profile was left out.</source>
        <translation>图片已转换为 RGB；其颜色配置文件已略去。</translation>
    </message>
    <message>
        <source>The colour profile does not fit the image and was left out.</source>
        <translation>颜色配置文件与图片不符，已略去。</translation>
    </message>
    <message>
        <source>The IPTC data is damaged and was left out.</source>
        <translation>IPTC 数据已损坏，已略去。</translation>
    </message>
    <message>
        <source>The file is damaged or ended too early; what could be read is shown.</source>
        <translation>文件已损坏或提前结束；显示的是能读取的部分。</translation>
    </message>
    <message numerus="yes">
        <source>The file has %n page(s); this is the first.</source>
        <translation>
            <numerusform>文件有 %n 页；这是第一页。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The file has %n frame(s); this is the first.</source>
        <translation>
            <numerusform>文件有 %n 帧；这是第一帧。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The file has %n layer(s); this is what they make together.</source>
        <translation>
            <numerusform>文件有 %n 个图层；这是它们合成的结果。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The file has %n bits a colour; the image has 8.</source>
        <translation>
            <numerusform>文件每种颜色有 %n 位；图片为 8 位。</numerusform>
        </translation>
    </message>
    <message>
        <source>The file is in printing inks; the image is in red, green and blue.</source>
        <translation>文件使用印刷油墨颜色；图片使用红、绿、蓝。</translation>
    </message>
    <message>
        <source>Save writes quality %1; this file has %2.</source>
        <translation>“保存”以品质 %1 写入；此文件为 %2。</translation>
    </message>
    <message numerus="yes">
        <source>%n page(s)</source>
        <translation>
            <numerusform>%n 页</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n frame(s)</source>
        <translation>
            <numerusform>%n 帧</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n layer(s)</source>
        <translation>
            <numerusform>%n 个图层</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n bits a colour</source>
        <translation>
            <numerusform>每种颜色 %n 位</numerusform>
        </translation>
    </message>
    <message>
        <source>its palette is corrupt</source>
        <translation>其调色板有误</translation>
    </message>
    <message>
        <source>its palette is damaged</source>
        <translation>其调色板已损坏</translation>
    </message>
    <message>
        <source>it holds what is unknown and cannot be left out</source>
        <translation>含有无法略去的未知内容</translation>
    </message>
    <message>
        <source>The PNG data cannot be read: %1.</source>
        <translation>无法读取 PNG 数据：%1。</translation>
    </message>
    <message>
        <source>its header is damaged</source>
        <translation>其文件头已损坏</translation>
    </message>
    <message>
        <source>it has no pixels</source>
        <translation>没有像素</translation>
    </message>
    <message>
        <source>the file is damaged or ends before its pixels</source>
        <translation>文件已损坏或在像素之前就结束</translation>
    </message>
    <message>
        <source>it has no palette</source>
        <translation>没有调色板</translation>
    </message>
    <message>
        <source>The PNG data cannot be read: a checksum of its pixels is wrong.</source>
        <translation>无法读取 PNG 数据：像素的校验和不正确。</translation>
    </message>
    <message>
        <source>The PNG data cannot be read: not one row of its pixels is whole.</source>
        <translation>无法读取 PNG 数据：没有一行像素是完整的。</translation>
    </message>
    <message>
        <source>The PNG data is damaged; what could be read is shown.</source>
        <translation>PNG 数据已损坏；显示的是能读取的部分。</translation>
    </message>
    <message>
        <source>The PSD data cannot be read: its palette is damaged.</source>
        <translation>无法读取 PSD 数据：其调色板已损坏。</translation>
    </message>
    <message>
        <source>The PSD data is damaged; what could be read is shown.</source>
        <translation>PSD 数据已损坏；显示的是能读取的部分。</translation>
    </message>
    <message>
        <source>The TIFF structure is damaged.</source>
        <translation>TIFF 结构已损坏。</translation>
    </message>
    <message>
        <source>TIFF images with so many or so large samples cannot be read.</source>
        <translation>无法读取样本如此之多或如此之大的 TIFF 图片。</translation>
    </message>
    <message>
        <source>The TIFF file is compressed in a way that cannot be read.</source>
        <translation>TIFF 文件的压缩方式无法读取。</translation>
    </message>
    <message>
        <source>The TIFF structure is damaged: its strips or tiles have no size.</source>
        <translation>TIFF 结构已损坏：其条带或图块没有大小。</translation>
    </message>
    <message>
        <source>The TIFF structure is damaged: its strips or tiles are too large.</source>
        <translation>TIFF 结构已损坏：其条带或图块太大。</translation>
    </message>
    <message>
        <source>The TIFF structure is damaged: it has too many strips or tiles.</source>
        <translation>TIFF 结构已损坏：条带或图块太多。</translation>
    </message>
    <message>
        <source>The TIFF data cannot be read: %1.</source>
        <translation>无法读取 TIFF 数据：%1。</translation>
    </message>
    <message>
        <source>The TIFF data is damaged: %1.</source>
        <translation>TIFF 数据已损坏：%1。</translation>
    </message>
    <message>
        <source>The TIFF data is damaged; what could be read is shown.</source>
        <translation>TIFF 数据已损坏；显示的是能读取的部分。</translation>
    </message>
    <message>
        <source>The %1 image cannot be read: its reader ended unexpectedly.</source>
        <translation>无法读取 %1 图片：读取程序意外结束。</translation>
    </message>
    <message>
        <source>The %1 image cannot be read: its reader did not come to an end.</source>
        <translation>无法读取 %1 图片：读取程序没有结束。</translation>
    </message>
    <message>
        <source>Reading was stopped.</source>
        <translation>读取已停止。</translation>
    </message>
    <message>
        <source>This kind of file has no quality to choose.</source>
        <translation>这种文件没有可选的品质。</translation>
    </message>
    <message>
        <source>A WebP file holds at most 16,383 pixels a side.</source>
        <translation>WebP 文件每边最多 16,383 像素。</translation>
    </message>
    <message>
        <source>Even at the lowest quality the file is larger.</source>
        <translation>即使用最低品质，文件仍然更大。</translation>
    </message>
</context>
<context>
    <name>ColorPanel</name>
    <message>
        <source>The colour with its opacity</source>
        <translation>带不透明度的颜色</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>&amp;Pick Screen Colour</source>
        <translation>拾取屏幕颜色(&amp;P)</translation>
    </message>
</context>
<context>
    <name>ColorWell</name>
    <message>
        <source>Colour</source>
        <translation>颜色</translation>
    </message>
</context>
<context>
    <name>Compare</name>
    <message>
        <source>as opened</source>
        <translation>打开时</translation>
    </message>
    <message>
        <source>as last saved</source>
        <translation>上次保存时</translation>
    </message>
    <message>
        <source>before the last step</source>
        <translation>最后一步之前</translation>
    </message>
    <message>
        <source>before</source>
        <translation>之前</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>内存不足。</translation>
    </message>
    <message>
        <source>That state of the image cannot be read any more.</source>
        <translation>该状态的图像已无法读取。</translation>
    </message>
    <message>
        <source>The image had another size then.</source>
        <translation>那时图像的尺寸不同。</translation>
    </message>
    <message>
        <source>Left of the pointer: %1</source>
        <translation>指针左侧：%1</translation>
    </message>
</context>
<context>
    <name>Corners</name>
    <message>
        <source>The selection does not have four corners.</source>
        <translation>选区没有四个角。</translation>
    </message>
    <message>
        <source>The selection could not be made upright.</source>
        <translation>无法把选区变正。</translation>
    </message>
    <message>
        <source>It is seen from too far aside.</source>
        <translation>观看角度太斜。</translation>
    </message>
    <message>
        <source>With Polygon beside the lasso, click the corners of what is to become upright one by one.</source>
        <translation>用套索旁的“多边形”逐个点击要变正之物的四角。</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>The file is too large for a small image of it.</source>
        <translation>文件太大，无法生成缩略图。</translation>
    </message>
</context>
<context>
    <name>Document</name>
    <message>
        <source>There is not enough memory.</source>
        <translation>内存不足。</translation>
    </message>
</context>
<context>
    <name>EmptyView</name>
    <message>
        <source>Drop an image here</source>
        <translation>将图片拖放到这里</translation>
    </message>
    <message>
        <source>&amp;New…</source>
        <translation>新建(&amp;N)…</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>打开(&amp;O)…</translation>
    </message>
</context>
<context>
    <name>FileManager</name>
    <message>
        <source>Image Library</source>
        <translation>图片库</translation>
    </message>
    <message>
        <source>Images of the library</source>
        <translation>图片库中的图片</translation>
    </message>
    <message>
        <source>Drop images here to add them</source>
        <translation>将图片拖放到这里以添加</translation>
    </message>
    <message>
        <source>Preview of the selected image</source>
        <translation>所选图片的预览</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>添加(&amp;A)…</translation>
    </message>
    <message>
        <source>Adds a link to an image</source>
        <translation>添加图片的链接</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation>重命名(&amp;R)…</translation>
    </message>
    <message>
        <source>Renames the selected entry (F2)</source>
        <translation>重命名所选项目 (F2)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>删除(&amp;D)</translation>
    </message>
    <message>
        <source>Deletes the selected entry, never the image that a link leads to (Delete)</source>
        <translation>删除所选项目，绝不删除链接指向的图片 (Delete)</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>打开(&amp;O)</translation>
    </message>
    <message>
        <source>Opens the selected image in the editor (Return)</source>
        <translation>在编辑器中打开所选图片 (回车)</translation>
    </message>
    <message>
        <source>Re&amp;link</source>
        <translation>重新链接(&amp;L)</translation>
    </message>
    <message>
        <source>Lets the selected link lead to the image that was found</source>
        <translation>让选中的链接指向找到的图像</translation>
    </message>
    <message>
        <source>Relin&amp;k All…</source>
        <translation>全部重新链接(&amp;K)…</translation>
    </message>
    <message>
        <source>Lets every broken link lead to its image, where that was found by its content</source>
        <translation>让每个按内容找到图像的失效链接重新指向其图像</translation>
    </message>
    <message>
        <source>Show D&amp;uplicates</source>
        <translation>显示重复项(&amp;U)</translation>
    </message>
    <message>
        <source>Shows only images that are here more than once: the same file, the same content, or the same look</source>
        <translation>只显示重复出现的图像：同一文件、相同内容或相同外观</translation>
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
        <translation>图像会太大。</translation>
    </message>
    <message>
        <source>An image can have up to 30,000 pixels a side and 1,000 megapixels in all.</source>
        <translation>图像每边最多 30,000 像素，总计最多 1,000 百万像素。</translation>
    </message>
    <message>
        <source>The file could not be opened.</source>
        <translation>无法打开文件。</translation>
    </message>
    <message>
        <source>Use Save as TIFF…</source>
        <translation>存储为 TIFF…</translation>
    </message>
    <message>
        <source>Use Save as JPEG…</source>
        <translation>存储为 JPEG…</translation>
    </message>
    <message>
        <source>Use Save as PNG…</source>
        <translation>存储为 PNG…</translation>
    </message>
    <message>
        <source>Save does not write files whose names have no extension.</source>
        <translation>“保存”不写入没有扩展名的文件。</translation>
    </message>
    <message>
        <source>Save does not write .%1 files.</source>
        <translation>“保存”不写入 .%1 文件。</translation>
    </message>
    <message>
        <source>Not opened: %1</source>
        <translation>未打开：%1</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The image could not be brought back.</source>
        <translation>无法找回这张图片。</translation>
    </message>
    <message>
        <source>Its steps are gone from the folder of temporary files.</source>
        <translation>它的步骤已不在临时文件夹中。</translation>
    </message>
    <message numerus="yes">
        <source>%n bytes</source>
        <translation>
            <numerusform>%n 字节</numerusform>
        </translation>
    </message>
    <message>
        <source>There is not enough memory to encode the image, or it is too large for this kind of file.</source>
        <translation>内存不足，无法编码图像，或图像对这种文件来说太大。</translation>
    </message>
    <message>
        <source>The file could not be written.</source>
        <translation>无法写入文件。</translation>
    </message>
    <message>
        <source>Saved %1 · %2 · %3</source>
        <translation>已保存 %1 · %2 · %3</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <translation>未保存：%1</translation>
    </message>
    <message>
        <source>The file could not be saved.</source>
        <translation>无法保存文件。</translation>
    </message>
    <message>
        <source>There is no image to save.</source>
        <translation>没有可保存的图像。</translation>
    </message>
    <message>
        <source>Save does not write files of this name.</source>
        <translation>“保存”不写入这种名称的文件。</translation>
    </message>
    <message>
        <source>Cannot save PSD file (Photoshop file)</source>
        <translation>无法保存 PSD 文件 (Photoshop 文件)</translation>
    </message>
    <message>
        <source>Choose &apos;File&apos; &gt; &apos;Save as TIFF…&apos; or &apos;File&apos; &gt; &apos;Save as JPEG…&apos; to save the image in another image format.</source>
        <translation>请选择“文件”&gt;“存储为 TIFF…”或“文件”&gt;“存储为 JPEG…”，以其他格式保存图像。</translation>
    </message>
    <message>
        <source>The file holds more than the image.</source>
        <translation>文件中不只有这张图片。</translation>
    </message>
    <message>
        <source>%1 has %2. Saving the image into it takes that away.</source>
        <translation>%1 含有%2。将图片保存到其中会失去这些内容。</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>另存为…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>The file was changed since it was opened.</source>
        <translation>文件打开之后已被更改。</translation>
    </message>
    <message>
        <source>Do you want to overwrite the existing file?</source>
        <translation>要覆盖现有文件吗？</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Its steps could not be read.</source>
        <translation>无法读取其步骤。</translation>
    </message>
    <message>
        <source>It will be offered again at the next start.</source>
        <translation>下次启动时会再次提供。</translation>
    </message>
    <message>
        <source>Reading the image…</source>
        <translation>正在读取图片…</translation>
    </message>
    <message>
        <source>Combining the outlines…</source>
        <translation>正在合并轮廓…</translation>
    </message>
</context>
<context>
    <name>Folders</name>
    <message>
        <source>The disk is full.</source>
        <translation>磁盘已满。</translation>
    </message>
    <message>
        <source>The disk quota is used up.</source>
        <translation>磁盘配额已用完。</translation>
    </message>
    <message>
        <source>The file would be larger than is allowed here.</source>
        <translation>文件会超过此处允许的大小。</translation>
    </message>
    <message>
        <source>There is no permission to write here.</source>
        <translation>没有在此写入的权限。</translation>
    </message>
    <message>
        <source>The disk cannot be written to.</source>
        <translation>磁盘不可写入。</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>文件夹不存在。</translation>
    </message>
    <message>
        <source>A part of the path is not a folder.</source>
        <translation>路径的一部分不是文件夹。</translation>
    </message>
    <message>
        <source>There is a folder of that name.</source>
        <translation>已有同名文件夹。</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>名称太长。</translation>
    </message>
    <message>
        <source>The link leads round in a circle.</source>
        <translation>链接循环指向自身。</translation>
    </message>
    <message>
        <source>The disk reported an error.</source>
        <translation>磁盘报告了错误。</translation>
    </message>
    <message>
        <source>Too many files are open.</source>
        <translation>打开的文件太多。</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message>
        <source>Undo steps cannot be written to the disk (%1). They are kept in memory until the program ends.</source>
        <translation>撤销步骤无法写入磁盘 (%1)。它们会留在内存中，直到程序结束。</translation>
    </message>
    <message>
        <source>The last change could not be kept as a step of its own (%1).</source>
        <translation>最后一次更改无法作为单独的步骤保留 (%1)。</translation>
    </message>
    <message>
        <source>There is no place for undo steps among the temporary files. A private folder of this session serves instead.</source>
        <translation>临时文件中没有存放撤销步骤的位置。改用本次会话的私有文件夹。</translation>
    </message>
    <message>
        <source>Nothing was undone: what is on screen could be kept neither on the disk nor in memory.</source>
        <translation>没有撤销任何内容：屏幕上的内容既无法保留在磁盘上，也无法保留在内存中。</translation>
    </message>
    <message>
        <source>there is no undo folder</source>
        <translation>没有撤销文件夹</translation>
    </message>
    <message>
        <source>there is no image</source>
        <translation>没有图片</translation>
    </message>
    <message>
        <source>the step before could not be encoded</source>
        <translation>前一步骤无法编码</translation>
    </message>
    <message>
        <source>the files could not be put in their places</source>
        <translation>文件无法就位</translation>
    </message>
    <message>
        <source>not enough memory</source>
        <translation>内存不足</translation>
    </message>
    <message>
        <source>The very pixels of the last change could not be kept (%1). Undo brings them back from a JPEG copy: colours may differ a little.</source>
        <translation>无法保留上次更改的精确像素（%1）。撤销时将从 JPEG 副本恢复：颜色可能略有差异。</translation>
    </message>
    <message>
        <source>The very pixels of this step could not be read. What is shown comes from its JPEG copy: colours may differ a little.</source>
        <translation>无法读取此步骤的精确像素。显示的是其 JPEG 副本：颜色可能略有差异。</translation>
    </message>
</context>
<context>
    <name>HistoryPanel</name>
    <message>
        <source>Change</source>
        <translation>更改</translation>
    </message>
    <message>
        <source>There is no room for the very pixels of this step: it comes back as its files hold it, nearly the same.</source>
        <translation>没有空间存放此步骤的精确像素：它将按文件中保存的样子恢复，几乎相同。</translation>
    </message>
    <message>
        <source>This step could not be kept.</source>
        <translation>此步骤无法保留。</translation>
    </message>
    <message>
        <source>Go to this step</source>
        <translation>转到此步骤</translation>
    </message>
    <message>
        <source>History</source>
        <translation>历史记录</translation>
    </message>
    <message>
        <source>Steps of the image, oldest first</source>
        <translation>图像的步骤，最早的在前</translation>
    </message>
</context>
<context>
    <name>ImageProcessor</name>
    <message>
        <source>Image Processor</source>
        <translation>批量处理</translation>
    </message>
    <message>
        <source>&amp;Source folder:</source>
        <translation>源文件夹(&amp;S)：</translation>
    </message>
    <message>
        <source>Every .tiff and .jpg image in it</source>
        <translation>其中所有 .tiff 和 .jpg 图像</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>选择…</translation>
    </message>
    <message>
        <source>&amp;Destination folder:</source>
        <translation>目标文件夹(&amp;D)：</translation>
    </message>
    <message>
        <source>Save as:</source>
        <translation>存储为：</translation>
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
        <translation>大小：</translation>
    </message>
    <message>
        <source>&amp;Fit into</source>
        <translation>适合到(&amp;F)</translation>
    </message>
    <message>
        <source>Width of the box in pixels</source>
        <translation>方框宽度 (像素)</translation>
    </message>
    <message>
        <source>by</source>
        <translation>×</translation>
    </message>
    <message>
        <source>Height of the box in pixels</source>
        <translation>方框高度 (像素)</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>像素</translation>
    </message>
    <message>
        <source>&amp;Watermark:</source>
        <translation>水印(&amp;W)：</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Images in the watermark folder</source>
        <translation>水印文件夹中的图像</translation>
    </message>
    <message>
        <source>&amp;Position:</source>
        <translation>位置(&amp;P)：</translation>
    </message>
    <message>
        <source>Fills in the position for images as large as the box</source>
        <translation>为与方框同样大小的图像填入位置</translation>
    </message>
    <message>
        <source>Custom position</source>
        <translation>自定位置</translation>
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
        <translation>居中</translation>
    </message>
    <message>
        <source>From the left edge in pixels</source>
        <translation>距左边 (像素)</translation>
    </message>
    <message>
        <source>From the lower edge in pixels</source>
        <translation>距下边 (像素)</translation>
    </message>
    <message>
        <source>In &amp;each image by its own size, with a margin of</source>
        <translation>在每张图片中按其大小放置，边距为(&amp;E)</translation>
    </message>
    <message>
        <source>The preset holds for every image, upright or flat, instead of filling in X and Y</source>
        <translation>预设适用于每张图片，无论横竖，不再填入 X 和 Y</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source>Between the watermark and the edges of its corner in pixels</source>
        <translation>水印与其所在角的边之间的距离 (像素)</translation>
    </message>
    <message>
        <source>Margin of the watermark</source>
        <translation>水印边距</translation>
    </message>
    <message>
        <source>&amp;Opacity:</source>
        <translation>不透明度(&amp;O)：</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Of the watermark, on top of its own</source>
        <translation>水印的不透明度，叠加在其自身之上</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>运行</translation>
    </message>
    <message>
        <source>&amp;Relative: its longer side is</source>
        <translation>相对大小(&amp;R)：长边为</translation>
    </message>
    <message>
        <source>The watermark looks the same on small and large images, upright or flat: size, margin and position are in percent</source>
        <translation>无论图像大小、横竖，水印看起来都一样：大小、边距和位置均为百分比</translation>
    </message>
    <message>
        <source>Of the shorter side of each image</source>
        <translation>相对于每张图像的短边</translation>
    </message>
    <message>
        <source>Size of the watermark</source>
        <translation>水印大小</translation>
    </message>
    <message>
        <source>of the image&apos;s shorter side</source>
        <translation>（相对于图像短边）</translation>
    </message>
    <message>
        <source>The watermark covers the whole image, from its position on</source>
        <translation>水印从其位置开始铺满整张图像</translation>
    </message>
    <message>
        <source>Of the watermark&apos;s longer side</source>
        <translation>相对于水印的长边</translation>
    </message>
    <message>
        <source>Gaps between repeated watermarks</source>
        <translation>重复水印之间的间距</translation>
    </message>
    <message>
        <source>of its longer side</source>
        <translation>（相对于其长边）</translation>
    </message>
    <message>
        <source>T&amp;urn:</source>
        <translation>旋转(&amp;U)：</translation>
    </message>
    <message>
        <source>Of the watermark, against the clock</source>
        <translation>逆时针旋转水印</translation>
    </message>
    <message>
        <source>Pre&amp;view</source>
        <translation>预览(&amp;V)</translation>
    </message>
    <message>
        <source>Shows what these settings make of three images of the folder; nothing is written</source>
        <translation>显示这些设置在文件夹中三张图像上的效果；不写入任何文件</translation>
    </message>
    <message>
        <source>Repeated &amp;all over, with gaps of</source>
        <translation>铺满整张图像(&amp;A)，间距为</translation>
    </message>
    <message>
        <source>Te&amp;xt…</source>
        <translation>文字(&amp;X)…</translation>
    </message>
    <message>
        <source>Makes a line of text a watermark</source>
        <translation>把一行文字做成水印</translation>
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
        <translation>失效链接</translation>
    </message>
</context>
<context>
    <name>LibraryModel</name>
    <message>
        <source>The file that this link leads to is gone. The link can be deleted.</source>
        <translation>此链接指向的文件已不存在。可以删除此链接。</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>种类</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Dimensions</source>
        <translation>尺寸</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>修改时间</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>路径</translation>
    </message>
    <message>
        <source>looks the same</source>
        <translation>外观相同</translation>
    </message>
    <message>
        <source>same content</source>
        <translation>内容相同</translation>
    </message>
    <message>
        <source>same file</source>
        <translation>同一文件</translation>
    </message>
    <message>
        <source>Likeness</source>
        <translation>相似</translation>
    </message>
</context>
<context>
    <name>LoadSelection</name>
    <message>
        <source>Load Selection</source>
        <translation>载入选区</translation>
    </message>
    <message>
        <source>&amp;Saved selection:</source>
        <translation>已保存的选区(&amp;S)：</translation>
    </message>
    <message>
        <source>The outline to use; it lands where it was drawn</source>
        <translation>要使用的轮廓；它会落在原先绘制的位置</translation>
    </message>
    <message>
        <source>The selection that there is now is dropped, a floating one with its pixels.</source>
        <translation>现有选区会被放弃，浮动选区连同其像素一起放弃。</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Delete the chosen selection&apos;s file for good</source>
        <translation>永久删除所选选区的文件</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Close and keep the selection as it is</source>
        <translation>关闭并保持选区不变</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>载入</translation>
    </message>
    <message>
        <source>Select by the chosen outline</source>
        <translation>按所选轮廓选择</translation>
    </message>
</context>
<context>
    <name>LoadSelectionDialog</name>
    <message>
        <source>Do you wish to delete the folder with all that is in it?</source>
        <translation>要删除此文件夹及其全部内容吗？</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
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
        <translation>工具 (按键 1 到 9 和 0)</translation>
    </message>
    <message>
        <source>Tool</source>
        <translation>工具</translation>
    </message>
    <message>
        <source>Paint colour and opacity</source>
        <translation>绘画颜色和不透明度</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Diameter of brush, pencil, eraser and clone stamp in pixels; also the text size and the width of strokes</source>
        <translation>画笔、铅笔、橡皮擦和仿制图章的直径 (像素)；也是文字大小和描边宽度</translation>
    </message>
    <message>
        <source>Size in pixels</source>
        <translation>大小 (像素)</translation>
    </message>
    <message>
        <source>Shape of the brush tip</source>
        <translation>画笔笔尖的形状</translation>
    </message>
    <message>
        <source>Brush shape</source>
        <translation>画笔形状</translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation>容差</translation>
    </message>
    <message>
        <source>How far a colour may differ from the one under the pointer</source>
        <translation>颜色与指针下颜色可以相差多少</translation>
    </message>
    <message>
        <source>Tolerance in percent</source>
        <translation>容差 (百分比)</translation>
    </message>
    <message>
        <source>Zoom (keys + and −, Ctrl+wheel)</source>
        <translation>缩放 (按键 + 和 −，Ctrl+滚轮)</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>缩放</translation>
    </message>
    <message>
        <source>What the pressure of a pen changes</source>
        <translation>画笔压力所改变的内容</translation>
    </message>
    <message>
        <source>Pen pressure</source>
        <translation>笔压</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Tool options</source>
        <translation>工具选项</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>工具</translation>
    </message>
    <message>
        <source>Brush %1</source>
        <translation>画笔 %1</translation>
    </message>
    <message>
        <source>Fit · %1</source>
        <translation>适合 · %1</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>正方形</translation>
    </message>
    <message>
        <source>Oval</source>
        <translation>椭圆</translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation>多边形</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Subtract</source>
        <translation>减去</translation>
    </message>
    <message>
        <source>Float</source>
        <translation>浮动</translation>
    </message>
    <message>
        <source>Straight</source>
        <translation>直线</translation>
    </message>
    <message>
        <source>Set source</source>
        <translation>设置来源</translation>
    </message>
    <message>
        <source>Untitled[*] — Zelpane</source>
        <translation>未命名[*] — Zelpane</translation>
    </message>
    <message>
        <source>The marquee becomes a square</source>
        <translation>选框变为正方形</translation>
    </message>
    <message>
        <source>The marquee becomes an oval</source>
        <translation>选框变为椭圆</translation>
    </message>
    <message>
        <source>Click corners, Return ends</source>
        <translation>单击各角，回车结束</translation>
    </message>
    <message>
        <source>The new shape joins the selection</source>
        <translation>新形状加入选区</translation>
    </message>
    <message>
        <source>The new shape is cut from the selection</source>
        <translation>从选区中减去新形状</translation>
    </message>
    <message>
        <source>Dragging the selection lifts its pixels</source>
        <translation>拖动选区会提起其像素</translation>
    </message>
    <message>
        <source>One straight line from press to release</source>
        <translation>从按下到松开画一条直线</translation>
    </message>
    <message>
        <source>The click sets where pixels come from</source>
        <translation>单击设定像素的来源</translation>
    </message>
    <message>
        <source>%1 (as if %2 were held)</source>
        <translation>%1（如同按住 %2）</translation>
    </message>
    <message>
        <source>The window manager moves windows with %1 and the mouse, so %1 never reaches the image. The switches above do the same.</source>
        <translation>窗口管理器用 %1 加鼠标移动窗口，因此 %1 无法传到图像。上方的开关作用相同。</translation>
    </message>
    <message>
        <source>Use %1 instead</source>
        <translation>改用 %1</translation>
    </message>
    <message>
        <source>Even pressure</source>
        <translation>忽略笔压</translation>
    </message>
    <message>
        <source>Pressure: size</source>
        <translation>笔压：大小</translation>
    </message>
    <message>
        <source>Pressure: opacity</source>
        <translation>笔压：不透明度</translation>
    </message>
    <message>
        <source>Explain</source>
        <translation>说明</translation>
    </message>
    <message>
        <source>Where the pointer rests, what a click takes; a drag after the press changes the tolerance</source>
        <translation>指针停留之处显示单击会选取的内容；按下后拖动可改变容差</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>About Zelpane</source>
        <translation>关于 Zelpane</translation>
    </message>
    <message>
        <source>Version and licence</source>
        <translation>版本和许可证</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>首选项…</translation>
    </message>
    <message>
        <source>Units, keys and other settings</source>
        <translation>单位、按键和其他设置</translation>
    </message>
    <message>
        <source>Quit Zelpane</source>
        <translation>退出 Zelpane</translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation>结束程序</translation>
    </message>
    <message>
        <source>New…</source>
        <translation>新建…</translation>
    </message>
    <message>
        <source>Makes a blank image</source>
        <translation>创建空白图像</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>打开…</translation>
    </message>
    <message>
        <source>Opens an image file</source>
        <translation>打开图像文件</translation>
    </message>
    <message>
        <source>Open Recent</source>
        <translation>最近打开的文件</translation>
    </message>
    <message>
        <source>Previous Image</source>
        <translation>上一张图片</translation>
    </message>
    <message>
        <source>Shows the image again that was open before this one</source>
        <translation>再次显示此前打开的图像</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Writes the image into its file</source>
        <translation>将图像写入其文件</translation>
    </message>
    <message>
        <source>Save as TIFF…</source>
        <translation>存储为 TIFF…</translation>
    </message>
    <message>
        <source>Writes a TIFF file; transparency is kept</source>
        <translation>写入 TIFF 文件；保留透明度</translation>
    </message>
    <message>
        <source>Save as JPEG…</source>
        <translation>存储为 JPEG…</translation>
    </message>
    <message>
        <source>Writes a JPEG file; transparent areas become white</source>
        <translation>写入 JPEG 文件；透明区域变为白色</translation>
    </message>
    <message>
        <source>Save as PNG…</source>
        <translation>存储为 PNG…</translation>
    </message>
    <message>
        <source>Writes a PNG file; transparency is kept</source>
        <translation>写入 PNG 文件；保留透明度</translation>
    </message>
    <message>
        <source>Save without Private Data…</source>
        <translation>保存时去除隐私信息…</translation>
    </message>
    <message>
        <source>Writes a copy that says nothing of place, device and people</source>
        <translation>写入一份不含地点、设备和人物信息的副本</translation>
    </message>
    <message>
        <source>Quick Save…</source>
        <translation>快速保存…</translation>
    </message>
    <message>
        <source>Saves into the image library</source>
        <translation>保存到图片库</translation>
    </message>
    <message>
        <source>Open with Preview</source>
        <translation>用查看器打开</translation>
    </message>
    <message>
        <source>Shows the file in the desktop&apos;s image viewer</source>
        <translation>在桌面的图像查看器中显示此文件</translation>
    </message>
    <message>
        <source>Page Setup…</source>
        <translation>页面设置…</translation>
    </message>
    <message>
        <source>Paper size and orientation</source>
        <translation>纸张大小和方向</translation>
    </message>
    <message>
        <source>Print…</source>
        <translation>打印…</translation>
    </message>
    <message>
        <source>Prints the image on the paper of Page Setup</source>
        <translation>按页面设置的纸张打印图像</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Takes the last change back</source>
        <translation>取消上一次更改</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>Brings the change back that was undone</source>
        <translation>恢复被撤销的更改</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>剪切</translation>
    </message>
    <message>
        <source>Moves the selected pixels to the clipboard</source>
        <translation>将选中的像素移到剪贴板</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Copies the selected pixels, or the whole image, to the clipboard</source>
        <translation>将选中的像素或整张图像复制到剪贴板</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>粘贴</translation>
    </message>
    <message>
        <source>Places the clipboard&apos;s image as a floating selection</source>
        <translation>将剪贴板中的图像作为浮动选区放入</translation>
    </message>
    <message>
        <source>Paste Into</source>
        <translation>贴入选区</translation>
    </message>
    <message>
        <source>Places the clipboard&apos;s image inside the selection</source>
        <translation>将剪贴板中的图像放入选区内</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Makes the selected pixels transparent</source>
        <translation>使选中的像素透明</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>填充</translation>
    </message>
    <message>
        <source>Fills the selection with the paint colour</source>
        <translation>用绘画颜色填充选区</translation>
    </message>
    <message>
        <source>Stroke</source>
        <translation>描边</translation>
    </message>
    <message>
        <source>Draws the selection&apos;s outline in the paint colour</source>
        <translation>用绘画颜色描绘选区轮廓</translation>
    </message>
    <message>
        <source>Smart Fill…</source>
        <translation>智能填充…</translation>
    </message>
    <message>
        <source>Fills the selection from its surroundings</source>
        <translation>根据周围内容填充选区</translation>
    </message>
    <message>
        <source>Transform…</source>
        <translation>变换…</translation>
    </message>
    <message>
        <source>Scales and rotates the selected pixels</source>
        <translation>缩放和旋转选中的像素</translation>
    </message>
    <message>
        <source>Adjust…</source>
        <translation>调整…</translation>
    </message>
    <message>
        <source>Hue, saturation, brightness, contrast and sharpness of the selection</source>
        <translation>选区的色相、饱和度、亮度、对比度和锐度</translation>
    </message>
    <message>
        <source>Resize…</source>
        <translation>调整大小…</translation>
    </message>
    <message>
        <source>Changes the size of the image</source>
        <translation>更改图像大小</translation>
    </message>
    <message>
        <source>Crop to Selection</source>
        <translation>裁剪到选区</translation>
    </message>
    <message>
        <source>Cuts the image to the selection&apos;s box</source>
        <translation>将图像裁剪到选区方框</translation>
    </message>
    <message>
        <source>Rotate Clockwise</source>
        <translation>顺时针旋转</translation>
    </message>
    <message>
        <source>Turns the image by 90° to the right</source>
        <translation>将图像向右旋转 90°</translation>
    </message>
    <message>
        <source>Rotate Counter-Clockwise</source>
        <translation>逆时针旋转</translation>
    </message>
    <message>
        <source>Turns the image by 90° to the left</source>
        <translation>将图像向左旋转 90°</translation>
    </message>
    <message>
        <source>Flip Horizontally</source>
        <translation>水平翻转</translation>
    </message>
    <message>
        <source>Exchanges left and right</source>
        <translation>左右互换</translation>
    </message>
    <message>
        <source>Flip Vertically</source>
        <translation>垂直翻转</translation>
    </message>
    <message>
        <source>Exchanges top and bottom</source>
        <translation>上下互换</translation>
    </message>
    <message>
        <source>2x Retina Display Mode</source>
        <translation>2x Retina 显示模式</translation>
    </message>
    <message>
        <source>One image pixel on one pixel of a double-density screen</source>
        <translation>一个图像像素对应高密度屏幕上的一个像素</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全选</translation>
    </message>
    <message>
        <source>Selects the whole image</source>
        <translation>选择整张图像</translation>
    </message>
    <message>
        <source>Select None</source>
        <translation>取消选择</translation>
    </message>
    <message>
        <source>Drops the selection</source>
        <translation>放弃选区</translation>
    </message>
    <message>
        <source>Select Inverse</source>
        <translation>反选</translation>
    </message>
    <message>
        <source>Selects what is not selected</source>
        <translation>选择未选中的部分</translation>
    </message>
    <message>
        <source>Position and Size…</source>
        <translation>位置和大小…</translation>
    </message>
    <message>
        <source>A rectangle by number, and what new marquees keep to</source>
        <translation>用数值指定矩形，以及新选框遵循的规则</translation>
    </message>
    <message>
        <source>Reselect</source>
        <translation>重新选择</translation>
    </message>
    <message>
        <source>Brings the last dropped selection back</source>
        <translation>恢复上次放弃的选区</translation>
    </message>
    <message>
        <source>Float Selection</source>
        <translation>浮动选区</translation>
    </message>
    <message>
        <source>Lifts the selected pixels, or puts them back (Return)</source>
        <translation>提起选中的像素，或放回原处 (回车)</translation>
    </message>
    <message>
        <source>Save Selection…</source>
        <translation>保存选区…</translation>
    </message>
    <message>
        <source>Keeps the outline under a name (key s: the default name)</source>
        <translation>以名称保存轮廓 (按键 s：默认名称)</translation>
    </message>
    <message>
        <source>Load Selection…</source>
        <translation>载入选区…</translation>
    </message>
    <message>
        <source>Brings a kept outline back</source>
        <translation>取回保存的轮廓</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>放大</translation>
    </message>
    <message>
        <source>One zoom level in (+)</source>
        <translation>放大一级 (+)</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>缩小</translation>
    </message>
    <message>
        <source>One zoom level out (−)</source>
        <translation>缩小一级 (−)</translation>
    </message>
    <message>
        <source>Actual Size</source>
        <translation>实际大小</translation>
    </message>
    <message>
        <source>One image pixel on one pixel of the screen</source>
        <translation>一个图像像素对应一个屏幕像素</translation>
    </message>
    <message>
        <source>Fit to Window</source>
        <translation>适合窗口</translation>
    </message>
    <message>
        <source>The whole image in the window, whatever becomes of the window</source>
        <translation>无论窗口如何变化，都显示整张图像</translation>
    </message>
    <message>
        <source>Transparency as Chequerboard</source>
        <translation>以棋盘格显示透明</translation>
    </message>
    <message>
        <source>Transparent parts show a chequerboard instead of grey</source>
        <translation>透明部分显示棋盘格而不是灰色</translation>
    </message>
    <message>
        <source>Pixel Grid</source>
        <translation>像素网格</translation>
    </message>
    <message>
        <source>Lines between the pixels, from 800 % on</source>
        <translation>像素之间的线，从 800 % 起</translation>
    </message>
    <message>
        <source>Keyboard Pointer</source>
        <translation>键盘指针</translation>
    </message>
    <message>
        <source>A crosshair that the numeric pad or Ctrl+arrows move; Ctrl+Space presses the button and lets it go</source>
        <translation>用数字键盘或 Ctrl+方向键移动的十字线；Ctrl+空格按下并松开按钮</translation>
    </message>
    <message>
        <source>History</source>
        <translation>历史记录</translation>
    </message>
    <message>
        <source>The steps of the image, to go back to</source>
        <translation>图像的步骤，可以返回</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>全屏</translation>
    </message>
    <message>
        <source>The window on the whole screen, and back</source>
        <translation>窗口占满整个屏幕，以及还原</translation>
    </message>
    <message>
        <source>Larger Brush</source>
        <translation>增大画笔</translation>
    </message>
    <message>
        <source>The size of brush, pencil, eraser, text and strokes: a tenth more</source>
        <translation>画笔、铅笔、橡皮擦、文字和描边的大小增加十分之一</translation>
    </message>
    <message>
        <source>Smaller Brush</source>
        <translation>减小画笔</translation>
    </message>
    <message>
        <source>The size of brush, pencil, eraser, text and strokes: a tenth less</source>
        <translation>画笔、铅笔、橡皮擦、文字和描边的大小减少十分之一</translation>
    </message>
    <message>
        <source>Swap Colours</source>
        <translation>交换颜色</translation>
    </message>
    <message>
        <source>Back to the colour that was chosen before this one, and again</source>
        <translation>换回此前选择的颜色，再次执行则换回来</translation>
    </message>
    <message>
        <source>Image Editor</source>
        <translation>图像编辑器</translation>
    </message>
    <message>
        <source>Brings the main window to the front</source>
        <translation>将主窗口置于最前</translation>
    </message>
    <message>
        <source>Image Library</source>
        <translation>图片库</translation>
    </message>
    <message>
        <source>Your favourite images</source>
        <translation>您喜爱的图像</translation>
    </message>
    <message>
        <source>Show Windows</source>
        <translation>显示窗口</translation>
    </message>
    <message>
        <source>Main window and image library</source>
        <translation>主窗口和图片库</translation>
    </message>
    <message>
        <source>Image Processor…</source>
        <translation>批量处理…</translation>
    </message>
    <message>
        <source>Resizes and watermarks a folder of images</source>
        <translation>为一个文件夹的图像调整大小并加水印</translation>
    </message>
    <message>
        <source>Zelpane Help</source>
        <translation>Zelpane 帮助</translation>
    </message>
    <message>
        <source>Where to find the User&apos;s Guide</source>
        <translation>在哪里可以找到用户指南</translation>
    </message>
    <message>
        <source>User&apos;s Guide</source>
        <translation>用户指南</translation>
    </message>
    <message>
        <source>Opens the guide in the browser</source>
        <translation>在浏览器中打开指南</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>键盘快捷键</translation>
    </message>
    <message>
        <source>All commands and tools with their keys, which can be changed there</source>
        <translation>所有命令和工具及其按键，可在此更改</translation>
    </message>
    <message>
        <source>Zelpane</source>
        <translation>Zelpane</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>图像</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>选择</translation>
    </message>
    <message>
        <source>View</source>
        <translation>视图</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>工具</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>窗口</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>Remove Brush</source>
        <translation>移除画笔</translation>
    </message>
    <message>
        <source>Paint over a thing and let go: it is filled from its surroundings</source>
        <translation>在物体上涂抹后松开：由其周围填充</translation>
    </message>
    <message>
        <source>Copy as Script</source>
        <translation>拷贝为脚本</translation>
    </message>
    <message>
        <source>What was done since the image was opened, as a script that does it again</source>
        <translation>把打开图像后所做的操作写成可重做的脚本</translation>
    </message>
    <message>
        <source>Script</source>
        <translation>脚本</translation>
    </message>
    <message>
        <source>What is done to the image, written down as a script; plays scripts on it</source>
        <translation>把对图像的操作记录为脚本，并可在图像上运行脚本</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>比较</translation>
    </message>
    <message>
        <source>While the key is held: an earlier state of the image left of the pointer</source>
        <translation>按住按键时，指针左侧显示图像以前的状态</translation>
    </message>
    <message>
        <source>Compare as Opened</source>
        <translation>比较：打开时</translation>
    </message>
    <message>
        <source>Compare shows the image as it was opened</source>
        <translation>“比较”显示打开时的图像</translation>
    </message>
    <message>
        <source>Compare as Last Saved</source>
        <translation>比较：上次保存时</translation>
    </message>
    <message>
        <source>Compare shows the image as it was last saved</source>
        <translation>“比较”显示上次保存时的图像</translation>
    </message>
    <message>
        <source>Compare before Last Step</source>
        <translation>比较：最后一步之前</translation>
    </message>
    <message>
        <source>Compare shows the image without the last step</source>
        <translation>“比较”显示没有最后一步的图像</translation>
    </message>
    <message>
        <source>Save for a Size…</source>
        <translation>按大小存储…</translation>
    </message>
    <message>
        <source>Writes a copy that is as large as it may be, or as small as looks the same</source>
        <translation>写入一份不超过所给大小、或看起来相同且最小的副本</translation>
    </message>
    <message>
        <source>Explain the Wand</source>
        <translation>说明魔棒</translation>
    </message>
    <message>
        <source>Where the pointer rests, what a click of the magic wand takes; and why it left a pixel out</source>
        <translation>指针停留之处显示魔棒单击会选取的内容，以及某个像素为何未被选取</translation>
    </message>
    <message>
        <source>Free Corners</source>
        <translation>自由角点</translation>
    </message>
    <message>
        <source>The handles at the corners of what floats pull their corner alone: perspective</source>
        <translation>浮动部分四角的控制柄只移动各自的角：透视</translation>
    </message>
    <message>
        <source>Straighten Corners</source>
        <translation>拉直四角</translation>
    </message>
    <message>
        <source>What a selection of four corners holds becomes upright, as if seen from straight ahead</source>
        <translation>四角选区内的内容变正，如同从正面看</translation>
    </message>
    <message>
        <source>Put Corners Back</source>
        <translation>复位四角</translation>
    </message>
    <message>
        <source>The corners of what floats go back to where they were before they were pulled</source>
        <translation>浮动部分的四角回到移动前的位置</translation>
    </message>
</context>
<context>
    <name>Name</name>
    <message>
        <source>Quick Save</source>
        <translation>快速保存</translation>
    </message>
    <message>
        <source>&amp;Name of the image in the library:</source>
        <translation>图片库中的图像名称(&amp;N)：</translation>
    </message>
    <message>
        <source>The image is saved as TIFF in the image library</source>
        <translation>图像以 TIFF 格式保存到图片库</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
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
        <translation>请输入有效的文件名。</translation>
    </message>
    <message>
        <source>File extension must be .tiff.</source>
        <translation>文件扩展名必须是 .tiff。</translation>
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
        <translation>新建图像</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>宽度(&amp;W)：</translation>
    </message>
    <message>
        <source>Width of the new image in pixels</source>
        <translation>新图像的宽度 (像素)</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>像素</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>高度(&amp;H)：</translation>
    </message>
    <message>
        <source>Height of the new image in pixels</source>
        <translation>新图像的高度 (像素)</translation>
    </message>
    <message>
        <source>&amp;Resolution:</source>
        <translation>分辨率(&amp;R)：</translation>
    </message>
    <message>
        <source>For information; the image is measured in pixels</source>
        <translation>仅供参考；图像以像素计量</translation>
    </message>
    <message>
        <source>pixels/inch</source>
        <translation>像素/英寸</translation>
    </message>
    <message>
        <source>File size:</source>
        <translation>文件大小：</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新建</translation>
    </message>
</context>
<context>
    <name>NoticeBar</name>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>OverflowRow</name>
    <message>
        <source>More options</source>
        <translation>更多选项</translation>
    </message>
</context>
<context>
    <name>Panels</name>
    <message>
        <source>The image could not be printed.</source>
        <translation>无法打印图像。</translation>
    </message>
    <message>
        <source>The printer did not take it.</source>
        <translation>打印机未接受。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>所有文件</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>品质</translation>
    </message>
    <message>
        <source>Quality:</source>
        <translation>品质：</translation>
    </message>
    <message>
        <source>File already exists</source>
        <translation>文件已存在</translation>
    </message>
    <message>
        <source>Do you want to overwrite the existing file?</source>
        <translation>要覆盖现有文件吗？</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Save Image</source>
        <translation>保存图像</translation>
    </message>
    <message>
        <source>Choose Folder</source>
        <translation>选择文件夹</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>打开图像</translation>
    </message>
</context>
<context>
    <name>Prefs</name>
    <message>
        <source>Preferences</source>
        <translation>首选项</translation>
    </message>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>&amp;Unit:</source>
        <translation>单位(&amp;U)：</translation>
    </message>
    <message>
        <source>The unit that lengths are shown in</source>
        <translation>显示长度所用的单位</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>像素</translation>
    </message>
    <message>
        <source>Centimeters</source>
        <translation>厘米</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>英寸</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>点</translation>
    </message>
    <message>
        <source>&amp;Appearance:</source>
        <translation>外观(&amp;A)：</translation>
    </message>
    <message>
        <source>Light or dark windows</source>
        <translation>浅色或深色窗口</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>跟随桌面</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>浅色</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>深色</translation>
    </message>
    <message>
        <source>Play &amp;sounds</source>
        <translation>播放声音(&amp;S)</translation>
    </message>
    <message>
        <source>Cues for floated, dropped and filled selections and finished runs</source>
        <translation>选区浮动、放弃、填充以及处理结束时的提示音</translation>
    </message>
    <message>
        <source>Held keys</source>
        <translation>按住的键</translation>
    </message>
    <message>
        <source>Some desktops take a key for themselves. Each role can be given to another one; Shift always adds and draws straight.</source>
        <translation>有些桌面会占用某个按键。每种功能都可以改用其他按键；Shift 始终用于添加和画直线。</translation>
    </message>
    <message>
        <source>&amp;Option (subtract, set source):</source>
        <translation>Option (减去、设置来源)(&amp;O)：</translation>
    </message>
    <message>
        <source>&amp;Control (oval, polygon):</source>
        <translation>Control (椭圆、多边形)(&amp;C)：</translation>
    </message>
    <message>
        <source>Co&amp;mmand (square, float):</source>
        <translation>Command (正方形、浮动)(&amp;M)：</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>窗口</translation>
    </message>
    <message>
        <source>&amp;Keep windows where I put them</source>
        <translation>保持窗口在我放置的位置(&amp;K)</translation>
    </message>
    <message>
        <source>Windows and dialogs come back in their last place instead of the middle of the screen</source>
        <translation>窗口和对话框回到上次的位置，而不是屏幕中央</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>快捷键</translation>
    </message>
    <message>
        <source>C&amp;hange Shortcuts…</source>
        <translation>更改快捷键(&amp;H)…</translation>
    </message>
    <message>
        <source>All commands with their keys</source>
        <translation>所有命令及其按键</translation>
    </message>
    <message>
        <source>About box</source>
        <translation>关于窗口</translation>
    </message>
    <message>
        <source>Project &amp;page:</source>
        <translation>项目主页(&amp;P)：</translation>
    </message>
    <message>
        <source>The page that the About box opens</source>
        <translation>关于窗口打开的页面</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;L)</translation>
    </message>
</context>
<context>
    <name>Printing</name>
    <message>
        <source>There is not enough memory.</source>
        <translation>内存不足。</translation>
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
        <translation>正在查看文件夹…</translation>
    </message>
    <message>
        <source>The folder has no .tiff or .jpg image.</source>
        <translation>文件夹中没有 .tiff 或 .jpg 图像。</translation>
    </message>
    <message>
        <source>The largest, the middle and the smallest of %1 images of one shape</source>
        <translation>%1 张同形状图像中最大、居中和最小的一张</translation>
    </message>
    <message>
        <source>The widest, the tallest and the squarest of %1 images</source>
        <translation>%1 张图像中最宽、最高和最接近正方形的一张</translation>
    </message>
    <message>
        <source>%1; the folder has %2</source>
        <translation>%1；文件夹中共有 %2 张</translation>
    </message>
</context>
<context>
    <name>Rename</name>
    <message>
        <source>Rename</source>
        <translation>重命名</translation>
    </message>
    <message>
        <source>&amp;New name (the extension stays as it is):</source>
        <translation>新名称 (扩展名保持不变)(&amp;N)：</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>Resize</name>
    <message>
        <source>Resize Image</source>
        <translation>调整图像大小</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>宽度(&amp;W)：</translation>
    </message>
    <message>
        <source>New width in pixels</source>
        <translation>新宽度 (像素)</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>像素</translation>
    </message>
    <message>
        <source>New width in percent of the present one</source>
        <translation>新宽度占当前宽度的百分比</translation>
    </message>
    <message>
        <source>Width in percent</source>
        <translation>宽度 (百分比)</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>高度(&amp;H)：</translation>
    </message>
    <message>
        <source>New height in pixels</source>
        <translation>新高度 (像素)</translation>
    </message>
    <message>
        <source>New height in percent of the present one</source>
        <translation>新高度占当前高度的百分比</translation>
    </message>
    <message>
        <source>Height in percent</source>
        <translation>高度 (百分比)</translation>
    </message>
    <message>
        <source>File size:</source>
        <translation>文件大小：</translation>
    </message>
    <message>
        <source>&amp;Scale image</source>
        <translation>缩放图像(&amp;S)</translation>
    </message>
    <message>
        <source>On: the image is resampled to the new size. Off: it keeps its pixels at the place below and is cut or extended</source>
        <translation>开：图像重新采样为新大小。关：像素保留在下面的位置，图像被裁剪或扩展</translation>
    </message>
    <message>
        <source>&amp;Keep aspect ratio</source>
        <translation>保持宽高比(&amp;K)</translation>
    </message>
    <message>
        <source>Width and height follow each other</source>
        <translation>宽度和高度联动</translation>
    </message>
    <message>
        <source>&amp;Place:</source>
        <translation>位置(&amp;P)：</translation>
    </message>
    <message>
        <source>Where the image sits in the new size, when it is not scaled</source>
        <translation>不缩放时，图片在新大小中的位置</translation>
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
        <translation>中间</translation>
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
        <translation>清晰像素(&amp;A)</translation>
    </message>
    <message>
        <source>When it is scaled, pixels stay squares of one colour instead of being blended</source>
        <translation>缩放时，像素保持为单色方块，而不互相混合</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Resize</source>
        <translation>调整大小</translation>
    </message>
    <message>
        <source>Width and height must be from 1 to %1 pixels, and the image at most %2 megapixels.</source>
        <translation>宽度和高度必须在 1 到 %1 像素之间，图像最多 %2 百万像素。</translation>
    </message>
    <message>
        <source>The image could not be resized.</source>
        <translation>无法调整图像大小。</translation>
    </message>
    <message>
        <source>There is not enough memory for an image of this size.</source>
        <translation>内存不足，无法容纳这种大小的图像。</translation>
    </message>
</context>
<context>
    <name>SaveSelection</name>
    <message>
        <source>Save Selection</source>
        <translation>保存选区</translation>
    </message>
    <message>
        <source>&amp;Name of the selection:</source>
        <translation>选区名称(&amp;N)：</translation>
    </message>
    <message>
        <source>The outline is kept under this name; a selection of the same name is replaced</source>
        <translation>轮廓以此名称保存；同名的选区会被替换</translation>
    </message>
    <message>
        <source>Only the outline is kept. It can be loaded into any image.</source>
        <translation>只保存轮廓。它可以载入任何图像。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Close without saving</source>
        <translation>关闭而不保存</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Save the outline of the selection</source>
        <translation>保存选区的轮廓</translation>
    </message>
</context>
<context>
    <name>SaveSelectionDialog</name>
    <message>
        <source>Please enter a valid name for the selection</source>
        <translation>请输入有效的选区名称</translation>
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
        <translation>无法保存选区。</translation>
    </message>
</context>
<context>
    <name>ScriptWindow</name>
    <message>
        <source>Script</source>
        <translation>脚本</translation>
    </message>
    <message>
        <source>What was done since the image was opened</source>
        <translation>打开图像后所做的操作</translation>
    </message>
    <message>
        <source>What is done to the image is written down here.</source>
        <translation>对图像的操作会记录在这里。</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>拷贝(&amp;C)</translation>
    </message>
    <message>
        <source>The whole script on the clipboard</source>
        <translation>把整个脚本放到剪贴板</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>保存(&amp;S)…</translation>
    </message>
    <message>
        <source>The whole script as a file</source>
        <translation>把整个脚本存为文件</translation>
    </message>
    <message>
        <source>&amp;Play…</source>
        <translation>运行(&amp;P)…</translation>
    </message>
    <message>
        <source>Plays a script&apos;s file on the image</source>
        <translation>在图像上运行脚本文件</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>停止(&amp;T)</translation>
    </message>
    <message>
        <source>Ends the script before its next command</source>
        <translation>在下一条命令之前结束脚本</translation>
    </message>
    <message>
        <source>Save Script</source>
        <translation>保存脚本</translation>
    </message>
    <message>
        <source>Saved %1.</source>
        <translation>已保存 %1。</translation>
    </message>
    <message>
        <source>The script could not be saved.</source>
        <translation>无法保存脚本。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Play a Script</source>
        <translation>运行脚本</translation>
    </message>
    <message>
        <source>Playing %1…</source>
        <translation>正在运行 %1…</translation>
    </message>
    <message>
        <source>The script is done.</source>
        <translation>脚本已完成。</translation>
    </message>
    <message>
        <source>Line %1 of the script: %2.</source>
        <translation>脚本第 %1 行：%2。</translation>
    </message>
</context>
<context>
    <name>SelectionByNumber</name>
    <message>
        <source>Position and Size</source>
        <translation>位置和大小</translation>
    </message>
    <message>
        <source>&amp;Left:</source>
        <translation>左(&amp;L)：</translation>
    </message>
    <message>
        <source>&amp;Top:</source>
        <translation>上(&amp;T)：</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>宽度(&amp;W)：</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>高度(&amp;H)：</translation>
    </message>
    <message>
        <source>Any size</source>
        <translation>任意大小</translation>
    </message>
    <message>
        <source>This ratio of width to height</source>
        <translation>此宽高比</translation>
    </message>
    <message>
        <source>This size</source>
        <translation>此大小</translation>
    </message>
    <message>
        <source>What a rectangle or oval keeps to while it is dragged with the mouse</source>
        <translation>用鼠标拖出矩形或椭圆时遵循的规则</translation>
    </message>
    <message>
        <source>New &amp;marquees:</source>
        <translation>新选框(&amp;M)：</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>选择</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>SelectionChip</name>
    <message>
        <source>Floating</source>
        <translation>浮动</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>Anchor ⏎</source>
        <translation>固定 ⏎</translation>
    </message>
    <message>
        <source>Drop Esc</source>
        <translation>放弃 Esc</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>填充</translation>
    </message>
    <message>
        <source>Stroke</source>
        <translation>描边</translation>
    </message>
    <message>
        <source>Float</source>
        <translation>浮动</translation>
    </message>
</context>
<context>
    <name>ShortcutsWindow</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>键盘快捷键</translation>
    </message>
    <message>
        <source>Find a command or a key</source>
        <translation>查找命令或按键</translation>
    </message>
    <message>
        <source>Commands and their keys</source>
        <translation>命令及其按键</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>按键</translation>
    </message>
    <message>
        <source>New &amp;keys:</source>
        <translation>新按键(&amp;K)：</translation>
    </message>
    <message>
        <source>New keys</source>
        <translation>新按键</translation>
    </message>
    <message>
        <source>&amp;Set</source>
        <translation>设置(&amp;S)</translation>
    </message>
    <message>
        <source>The chosen command gets these keys; without keys it has none</source>
        <translation>为所选命令设置这些按键；留空则没有按键</translation>
    </message>
    <message>
        <source>As &amp;Given</source>
        <translation>恢复默认(&amp;G)</translation>
    </message>
    <message>
        <source>The chosen command gets its own keys back</source>
        <translation>所选命令恢复其原有按键</translation>
    </message>
    <message>
        <source>&amp;All as Given</source>
        <translation>全部恢复默认(&amp;A)</translation>
    </message>
    <message>
        <source>Every command gets its own keys back</source>
        <translation>每个命令都恢复其原有按键</translation>
    </message>
    <message>
        <source>Tools, over the image</source>
        <translation>工具 (在图片上)</translation>
    </message>
    <message>
        <source>%1 belongs to %2 now, which would lose it.</source>
        <translation>%1 现在属于“%2”，它将失去此按键。</translation>
    </message>
    <message>
        <source>%1 chooses the tool %2, which would not hear it any more.</source>
        <translation>%1 用于选择工具“%2”，它将不再响应此按键。</translation>
    </message>
</context>
<context>
    <name>SizeSaveDialog</name>
    <message>
        <source>There is not enough memory.</source>
        <translation>内存不足。</translation>
    </message>
    <message>
        <source>Save for a Size</source>
        <translation>按大小存储</translation>
    </message>
    <message>
        <source>The image before and after</source>
        <translation>处理前后的图像</translation>
    </message>
    <message>
        <source>Drag to see another place; the wheel zooms</source>
        <translation>拖动查看别处；滚轮缩放</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>存储…</translation>
    </message>
    <message>
        <source>Before: %1 × %2</source>
        <translation>之前：%1 × %2</translation>
    </message>
    <message>
        <source>WebP files are smaller and keep transparency; older programs cannot open them</source>
        <translation>WebP 文件更小并保留透明；旧程序无法打开</translation>
    </message>
    <message>
        <source>&amp;Kind of file:</source>
        <translation>文件种类(&amp;K)：</translation>
    </message>
    <message>
        <source>&amp;At most</source>
        <translation>最多(&amp;A)</translation>
    </message>
    <message>
        <source> KB</source>
        <translation> KB</translation>
    </message>
    <message>
        <source>Size of the file</source>
        <translation>文件大小</translation>
    </message>
    <message>
        <source>As small as &amp;looks the same</source>
        <translation>看起来相同的最小(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Quality</source>
        <translation>品质(&amp;Q)</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>品质</translation>
    </message>
    <message>
        <source>Searching…</source>
        <translation>正在搜索…</translation>
    </message>
    <message>
        <source>Trying quality %1…</source>
        <translation>正在试品质 %1…</translation>
    </message>
    <message>
        <source>After: %1 · %2</source>
        <translation>之后：%1 · %2</translation>
    </message>
    <message>
        <source>Likeness %1, in the worst place %2</source>
        <translation>相似度 %1，最差处 %2</translation>
    </message>
</context>
<context>
    <name>SmartFill</name>
    <message>
        <source>Smart Fill</source>
        <translation>智能填充</translation>
    </message>
    <message>
        <source>&amp;Radius:</source>
        <translation>半径(&amp;R)：</translation>
    </message>
    <message>
        <source>How far around the selection to look for texture, in percent of its width and height</source>
        <translation>在选区周围多大范围内寻找纹理，以其宽高的百分比表示</translation>
    </message>
    <message>
        <source>Radius in percent</source>
        <translation>半径 (百分比)</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>&amp;Faster, at half the resolution</source>
        <translation>更快，使用一半分辨率(&amp;F)</translation>
    </message>
    <message>
        <source>Works on every second pixel; the selection&apos;s whole box becomes coarser</source>
        <translation>每隔一个像素处理；选区的整个方框会变粗糙</translation>
    </message>
    <message>
        <source>Time:</source>
        <translation>时间：</translation>
    </message>
    <message>
        <source>0.0 sec</source>
        <translation>0.0 秒</translation>
    </message>
    <message>
        <source>Elapsed time</source>
        <translation>已用时间</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>You can go on working during a run, but changes inside the work area will be overwritten when it ends.</source>
        <translation>运行期间可以继续工作，但工作区域内的更改会在结束时被覆盖。</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>关闭(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>运行(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Keep lines</source>
        <translation>保留线条(&amp;K)</translation>
    </message>
    <message>
        <source>Edges that enter the selection on one side and leave it on another are drawn through it first</source>
        <translation>先将从一侧进入选区并从另一侧穿出的边缘贯穿绘出</translation>
    </message>
    <message>
        <source>&amp;Even out patches</source>
        <translation>均匀拼接处(&amp;E)</translation>
    </message>
    <message>
        <source>Takes away steps in brightness and colour where patches from different places meet</source>
        <translation>消除取自不同位置的色块相接处的亮度和颜色突变</translation>
    </message>
    <message>
        <source>&amp;Take From…</source>
        <translation>取自(&amp;T)…</translation>
    </message>
    <message>
        <source>Takes colours only from what is selected in the image now; pressed again, from anywhere</source>
        <translation>仅从当前所选部分取色；再按一次则从任意位置取色</translation>
    </message>
    <message>
        <source>anywhere</source>
        <translation>任意位置</translation>
    </message>
    <message>
        <source>Taken from</source>
        <translation>取自</translation>
    </message>
    <message>
        <source>&amp;Never From…</source>
        <translation>绝不取自(&amp;N)…</translation>
    </message>
    <message>
        <source>Takes no colour from what is selected in the image now; pressed again, from anywhere</source>
        <translation>不从当前所选部分取色；再按一次则从任意位置取色</translation>
    </message>
    <message>
        <source>nowhere</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Never taken from</source>
        <translation>绝不取自</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>预览(&amp;P)</translation>
    </message>
    <message>
        <source>Shows the fill over the image; Run then leaves it there</source>
        <translation>在图像上显示填充效果；运行后即保留</translation>
    </message>
    <message>
        <source>&amp;Another Result</source>
        <translation>另一结果(&amp;A)</translation>
    </message>
    <message>
        <source>Shows what other random numbers make of it</source>
        <translation>显示使用其他随机数的结果</translation>
    </message>
    <message>
        <source>Re&amp;move Brush</source>
        <translation>移除画笔(&amp;M)</translation>
    </message>
    <message>
        <source>Paint over a thing in the image and let go: it is gone</source>
        <translation>在图像中的物体上涂抹后松开：它就消失</translation>
    </message>
    <message>
        <source>One of the last four results: shows it over the image; pressed again, the image without it</source>
        <translation>最近四个结果之一：显示在图像上；再按一次显示原图像</translation>
    </message>
    <message>
        <source>Result 1</source>
        <translation>结果 1</translation>
    </message>
    <message>
        <source>Result 2</source>
        <translation>结果 2</translation>
    </message>
    <message>
        <source>Result 3</source>
        <translation>结果 3</translation>
    </message>
    <message>
        <source>Result 4</source>
        <translation>结果 4</translation>
    </message>
</context>
<context>
    <name>SmartFillStudio</name>
    <message>
        <source>anywhere</source>
        <translation>任意位置</translation>
    </message>
    <message>
        <source>nowhere</source>
        <translation>无</translation>
    </message>
    <message>
        <source>select the place in the image first</source>
        <translation>请先在图像中选择位置</translation>
    </message>
    <message>
        <source>the selection of %1 × %2</source>
        <translation>%1 × %2 的选区</translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message>
        <source>Box of the selection</source>
        <translation>选区的方框</translation>
    </message>
    <message>
        <source>The selection: its corner and its size. Drag this to another program to hand it over as a PNG image.</source>
        <translation>选区：它的角和大小。将此拖到其他程序，可以把它作为 PNG 图片交出。</translation>
    </message>
    <message>
        <source>Colour under the pointer</source>
        <translation>指针下的颜色</translation>
    </message>
    <message>
        <source>Position and colour under the pointer</source>
        <translation>指针的位置和其下的颜色</translation>
    </message>
    <message>
        <source>Size of the image and zoom</source>
        <translation>图像大小和缩放</translation>
    </message>
    <message>
        <source>Open an image, make a new one, or drop a file on the window</source>
        <translation>打开图像、新建图像，或将文件拖放到窗口上</translation>
    </message>
    <message>
        <source>Click the next corner · Return closes the shape, Escape gives it up</source>
        <translation>单击下一个角 · 回车闭合形状，Esc 放弃</translation>
    </message>
    <message>
        <source>Rest: what a click takes · drag right: more tolerance, left: less · %1 adds, %2 subtracts</source>
        <translation>停留：单击会选取的内容 · 向右拖动：增大容差，向左：减小 · %1 添加，%2 减去</translation>
    </message>
    <message>
        <source>Drag a corner&apos;s handle: it goes alone, %1: along a side, %2: all scale · Return anchors, Escape drops</source>
        <translation>拖动角的控制柄：只移动该角，%1：沿一边，%2：整体缩放 · 回车固定，Escape 放弃</translation>
    </message>
    <message>
        <source>Drag to move · the handles scale and turn, %1: steps of 15°, %2: one corner alone · Return anchors, Escape drops</source>
        <translation>拖动可移动 · 控制柄可缩放和旋转，%1：每次 15°，%2：单独一角 · 回车固定，Escape 放弃</translation>
    </message>
    <message>
        <source>in perspective</source>
        <translation>透视</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>忙</translation>
    </message>
</context>
<context>
    <name>Steps</name>
    <message>
        <source>Anchor Selection</source>
        <translation>固定选区</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新建</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>剪切</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>填充</translation>
    </message>
    <message>
        <source>Stroke</source>
        <translation>描边</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>裁剪</translation>
    </message>
    <message>
        <source>Rotate Clockwise</source>
        <translation>顺时针旋转</translation>
    </message>
    <message>
        <source>Rotate Counter-Clockwise</source>
        <translation>逆时针旋转</translation>
    </message>
    <message>
        <source>Flip Horizontally</source>
        <translation>水平翻转</translation>
    </message>
    <message>
        <source>Flip Vertically</source>
        <translation>垂直翻转</translation>
    </message>
    <message>
        <source>Resize</source>
        <translation>调整大小</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>移动</translation>
    </message>
    <message>
        <source>Brush</source>
        <translation>画笔</translation>
    </message>
    <message>
        <source>Pencil</source>
        <translation>铅笔</translation>
    </message>
    <message>
        <source>Eraser</source>
        <translation>橡皮擦</translation>
    </message>
    <message>
        <source>Paint Bucket</source>
        <translation>油漆桶</translation>
    </message>
    <message>
        <source>Clone Stamp</source>
        <translation>仿制图章</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Smart Fill</source>
        <translation>智能填充</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
</context>
<context>
    <name>TextEditor</name>
    <message>
        <source>Text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>&amp;Text:</source>
        <translation>文字(&amp;T)：</translation>
    </message>
    <message>
        <source>What is typed here stands on the image at once</source>
        <translation>在此输入的内容会立即显示在图片上</translation>
    </message>
    <message>
        <source>Font family</source>
        <translation>字体系列</translation>
    </message>
    <message>
        <source>Smaller; with Shift by ten</source>
        <translation>更小；按 Shift 每次十</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>更小</translation>
    </message>
    <message>
        <source>Size in pixels</source>
        <translation>大小 (像素)</translation>
    </message>
    <message>
        <source>Larger; with Shift by ten</source>
        <translation>更大；按 Shift 每次十</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>更大</translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation>粗体(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation>斜体(&amp;I)</translation>
    </message>
    <message>
        <source>Colour of the preview below; the selection takes none</source>
        <translation>下方预览的颜色；选区不使用颜色</translation>
    </message>
    <message>
        <source>Colour of the preview</source>
        <translation>预览的颜色</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>&amp;Left</source>
        <translation>左对齐(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Center</source>
        <translation>居中(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Right</source>
        <translation>右对齐(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Justified</source>
        <translation>两端对齐(&amp;J)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Keeps the text as the selection</source>
        <translation>将文字保留为选区</translation>
    </message>
    <message>
        <source>What is typed here stands on the image at once; Ctrl+Return is OK</source>
        <translation>在此输入的内容会立即显示在图片上；Ctrl+回车相当于“确定”</translation>
    </message>
    <message>
        <source>&amp;Several lines</source>
        <translation>多行(&amp;S)</translation>
    </message>
    <message>
        <source>Return begins another line, which stands below</source>
        <translation>回车在下方另起一行</translation>
    </message>
    <message>
        <source>Alignment of the preview, and of several lines</source>
        <translation>预览和多行文字的对齐方式</translation>
    </message>
</context>
<context>
    <name>Tools</name>
    <message>
        <source>Rectangle Selection</source>
        <translation>矩形选择</translation>
    </message>
    <message>
        <source>Selects a rectangle; square and oval by switch or key</source>
        <translation>选择矩形；用开关或按键选择正方形和椭圆</translation>
    </message>
    <message>
        <source>Drag to select; inside the selection it moves · {Shift} adds, {Option} subtracts · {Command}: square, {Control}: oval</source>
        <translation>拖动以选择；在选区内则移动 · {Shift} 添加，{Option} 减去 · {Command}：正方形，{Control}：椭圆</translation>
    </message>
    <message>
        <source>Lasso</source>
        <translation>套索</translation>
    </message>
    <message>
        <source>Selects by a drawn outline; polygon by switch or key, ended with Return</source>
        <translation>按绘制的轮廓选择；用开关或按键画多边形，回车结束</translation>
    </message>
    <message>
        <source>Draw around what you want · {Shift} adds, {Option} subtracts · {Control}: corner by corner, Return ends</source>
        <translation>圈出所需部分 · {Shift} 添加，{Option} 减去 · {Control}：逐角单击，回车结束</translation>
    </message>
    <message>
        <source>Magic Wand</source>
        <translation>魔棒</translation>
    </message>
    <message>
        <source>Selects the area of similar colour</source>
        <translation>选择颜色相近的区域</translation>
    </message>
    <message>
        <source>Click a colour · {Shift} adds, {Option} subtracts · Tolerance says how far colours may differ</source>
        <translation>单击一种颜色 · {Shift} 添加，{Option} 减去 · 容差决定颜色可以相差多少</translation>
    </message>
    <message>
        <source>Brush</source>
        <translation>画笔</translation>
    </message>
    <message>
        <source>Paints with a brush tip</source>
        <translation>用画笔笔尖绘画</translation>
    </message>
    <message>
        <source>Pencil</source>
        <translation>铅笔</translation>
    </message>
    <message>
        <source>Draws a line; straight with Shift</source>
        <translation>画线；按 Shift 为直线</translation>
    </message>
    <message>
        <source>Drag to draw · {Shift}: one straight line · Escape takes it back</source>
        <translation>拖动以绘制 · {Shift}：一条直线 · Esc 撤回</translation>
    </message>
    <message>
        <source>Eraser</source>
        <translation>橡皮擦</translation>
    </message>
    <message>
        <source>Makes pixels transparent; straight with Shift</source>
        <translation>使像素透明；按 Shift 为直线</translation>
    </message>
    <message>
        <source>Drag to make transparent · {Shift}: one straight line · Escape takes it back</source>
        <translation>拖动以变透明 · {Shift}：一条直线 · Esc 撤回</translation>
    </message>
    <message>
        <source>Paint Bucket</source>
        <translation>油漆桶</translation>
    </message>
    <message>
        <source>Fills the area of similar colour</source>
        <translation>填充颜色相近的区域</translation>
    </message>
    <message>
        <source>Click to fill the area of one colour · Tolerance says how far colours may differ</source>
        <translation>单击以填充同色区域 · 容差决定颜色可以相差多少</translation>
    </message>
    <message>
        <source>Eyedropper</source>
        <translation>吸管</translation>
    </message>
    <message>
        <source>Picks the colour under the pointer</source>
        <translation>拾取指针下的颜色</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>Places text as a selection</source>
        <translation>将文字作为选区放置</translation>
    </message>
    <message>
        <source>Click where the text begins · inside the text, dragging moves it</source>
        <translation>单击文字开始的位置 · 在文字内拖动可移动</translation>
    </message>
    <message>
        <source>Clone Stamp</source>
        <translation>仿制图章</translation>
    </message>
    <message>
        <source>Paints with pixels from elsewhere; Option-click sets the source</source>
        <translation>用别处的像素绘画；按 Option 单击设定来源</translation>
    </message>
    <message>
        <source>{Option}+click says where pixels come from, then paint</source>
        <translation>{Option}+单击指定像素来源，然后绘画</translation>
    </message>
    <message>
        <source>Remove Brush</source>
        <translation>移除画笔</translation>
    </message>
    <message>
        <source>Fills what it is drawn over from its surroundings</source>
        <translation>用周围填充所涂部分</translation>
    </message>
    <message>
        <source>Paint over what should vanish and let go · any tool ends this · Escape takes the stroke back</source>
        <translation>涂抹要消失的部分后松开 · 选择任一工具即结束 · Esc 撤回笔画</translation>
    </message>
    <message>
        <source>Drag to paint · {smallerBrush:} and {largerBrush:} change the size, {swapColours:} the colour · Escape takes the stroke back</source>
        <translation>拖动以绘画 · {smallerBrush:} 和 {largerBrush:} 改变大小，{swapColours:} 改变颜色 · Esc 撤回这一笔</translation>
    </message>
    <message>
        <source>Click or drag to pick the paint colour · {swapColours:} goes back to the one before</source>
        <translation>单击或拖动以拾取绘画颜色 · {swapColours:} 换回之前的颜色</translation>
    </message>
</context>
<context>
    <name>Transform</name>
    <message>
        <source>Transform Selection</source>
        <translation>变换选区</translation>
    </message>
    <message>
        <source>&amp;Scale:</source>
        <translation>缩放(&amp;S)：</translation>
    </message>
    <message>
        <source>Size of the selected pixels in percent; 100 is their own size</source>
        <translation>选中像素的大小，以百分比表示；100 为原始大小</translation>
    </message>
    <message>
        <source>Scale slider</source>
        <translation>缩放滑块</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>缩放</translation>
    </message>
    <message>
        <source>R&amp;otate:</source>
        <translation>旋转(&amp;O)：</translation>
    </message>
    <message>
        <source>Turns the selected pixels about their centre, in degrees</source>
        <translation>选中的像素绕其中心旋转，单位为度</translation>
    </message>
    <message>
        <source>Rotate slider</source>
        <translation>旋转滑块</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>旋转</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>重置(&amp;R)</translation>
    </message>
    <message>
        <source>Back to 100 % and 0 degrees</source>
        <translation>恢复为 100 % 和 0 度</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Closes the dialog; the selection keeps floating as shown</source>
        <translation>关闭对话框；选区保持显示的样子继续浮动</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
</context>
<context>
    <name>Wand</name>
    <message>
        <source>Outside: red differs by %1, the tolerance allows %2</source>
        <translation>在外：红色相差 %1，容差允许 %2</translation>
    </message>
    <message>
        <source>Outside: green differs by %1, the tolerance allows %2</source>
        <translation>在外：绿色相差 %1，容差允许 %2</translation>
    </message>
    <message>
        <source>Outside: blue differs by %1, the tolerance allows %2</source>
        <translation>在外：蓝色相差 %1，容差允许 %2</translation>
    </message>
    <message>
        <source>Outside: opacity differs by %1, the tolerance allows %2</source>
        <translation>在外：不透明度相差 %1，容差允许 %2</translation>
    </message>
    <message>
        <source>Inside</source>
        <translation>在内</translation>
    </message>
    <message>
        <source>Outside: within the tolerance, but not connected</source>
        <translation>在外：在容差之内，但不相连</translation>
    </message>
    <message>
        <source>Outside: a tolerance of 0 takes nothing</source>
        <translation>在外：容差为 0 时不选取任何内容</translation>
    </message>
</context>
<context>
    <name>Watermark</name>
    <message>
        <source>The watermark could not be drawn.</source>
        <translation>无法绘制水印。</translation>
    </message>
</context>
<context>
    <name>WatermarkText</name>
    <message>
        <source>Text as Watermark</source>
        <translation>文字水印</translation>
    </message>
    <message>
        <source>&amp;Text:</source>
        <translation>文字(&amp;T)：</translation>
    </message>
    <message>
        <source>© and your name</source>
        <translation>© 和您的名字</translation>
    </message>
    <message>
        <source>&amp;Font:</source>
        <translation>字体(&amp;F)：</translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation>粗体(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation>斜体(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Colour:</source>
        <translation>颜色(&amp;C)：</translation>
    </message>
    <message>
        <source>Colour of the letters</source>
        <translation>文字颜色</translation>
    </message>
    <message>
        <source>With an &amp;edge that shows on light and dark</source>
        <translation>带明暗背景下都可见的描边(&amp;E)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>创建</translation>
    </message>
</context>
<context>
    <name>ZPAboutBox</name>
    <message>
        <source>Version %1</source>
        <translation>版本 %1</translation>
    </message>
    <message>
        <source>Simple, yet powerful image editing: paint, select, retouch, adjust and convert images, one at a time or by the folder.</source>
        <translation>简单而强大的图像编辑：绘画、选择、修饰、调整和转换图片，逐张或按文件夹处理。</translation>
    </message>
    <message>
        <source>Free software under the GNU General Public License, version 3 or later. It comes with no warranty, to the extent that the law permits.</source>
        <translation>基于 GNU 通用公共许可证第 3 版或更高版本的自由软件。在法律允许的范围内，不提供任何担保。</translation>
    </message>
</context>
<context>
    <name>ZPAppController</name>
    <message>
        <source>An image that was never saved</source>
        <translation>从未保存过的图像</translation>
    </message>
    <message>
        <source>%1, %2 × %3 pixels, as it was after the last change.</source>
        <translation>%1，%2 × %3 像素，为最后一次更改后的样子。</translation>
    </message>
    <message>
        <source>Zelpane ended unexpectedly. Do you want to recover your last image?</source>
        <translation>Zelpane 意外结束。要恢复最后的图像吗？</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>恢复</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>放弃</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>以后</translation>
    </message>
    <message>
        <source>Changed and never saved: %1.</source>
        <translation>已更改但从未保存：%1。</translation>
    </message>
    <message>
        <source>This is a (Snow) Leopard-only product!</source>
        <translation>本产品仅适用于 (Snow) Leopard！</translation>
    </message>
    <message>
        <source>Mac OS X 10.5 or later is required.</source>
        <translation>需要 Mac OS X 10.5 或更高版本。</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>What would you like to do? Create a new image or open an existing image.</source>
        <translation>您想做什么？新建图像或打开现有图像。</translation>
    </message>
    <message>
        <source>New…</source>
        <translation>新建…</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>打开…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Do you really want to quit?</source>
        <translation>确实要退出吗？</translation>
    </message>
    <message>
        <source>Make sure that the image is saved to disk.</source>
        <translation>请确认图像已保存到磁盘。</translation>
    </message>
    <message>
        <source>No recent images</source>
        <translation>没有最近打开的图像</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除列表</translation>
    </message>
    <message>
        <source>Read the User&apos;s Guide</source>
        <translation>阅读用户指南</translation>
    </message>
    <message>
        <source>You can find the User&apos;s Guide in the same folder as this application.</source>
        <translation>您可以在此应用程序所在的文件夹中找到用户指南。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Do you really want to use the image processor?</source>
        <translation>确实要使用批量处理吗？</translation>
    </message>
    <message>
        <source>Make sure that the current image is saved to disk.</source>
        <translation>请确认当前图像已保存到磁盘。</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>You have enabled 2x retina display mode.</source>
        <translation>您已启用 2x Retina 显示模式。</translation>
    </message>
    <message>
        <source>You have disabled 2x retina display mode.</source>
        <translation>您已停用 2x Retina 显示模式。</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>verb and name of a step: Undo Fill</comment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Anchor Selection</source>
        <translation>固定选区</translation>
    </message>
    <message>
        <source>Float Selection</source>
        <translation>浮动选区</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>Needs an image: open one or make a new one.</source>
        <translation>需要图像：请打开或新建一张。</translation>
    </message>
    <message>
        <source>Needs a selection.</source>
        <translation>需要选区。</translation>
    </message>
    <message>
        <source>Needs an image on the clipboard.</source>
        <translation>需要剪贴板中有图像。</translation>
    </message>
    <message>
        <source>Needs an image that has a file: save it first.</source>
        <translation>需要有文件的图像：请先保存。</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>没有可撤销的内容。</translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>没有可重做的内容。</translation>
    </message>
    <message>
        <source>No selection was dropped yet.</source>
        <translation>尚未放弃过选区。</translation>
    </message>
    <message>
        <source>No image was open before this one.</source>
        <translation>此前没有打开过图像。</translation>
    </message>
    <message>
        <source>Needs the main window.</source>
        <translation>需要主窗口。</translation>
    </message>
    <message>
        <source>Done: %1</source>
        <translation>已完成：%1</translation>
    </message>
    <message>
        <source>Copied what was done as a script.</source>
        <translation>已把所做的操作拷贝为脚本。</translation>
    </message>
</context>
<context>
    <name>ZPCanvas</name>
    <message>
        <source>Canvas</source>
        <translation>画布</translation>
    </message>
</context>
<context>
    <name>ZPFileManager</name>
    <message numerus="yes">
        <source>%n image(s)</source>
        <translation>
            <numerusform>%n 张图片</numerusform>
        </translation>
    </message>
    <message>
        <source>No image selected</source>
        <translation>未选择图片</translation>
    </message>
    <message>
        <source>Drop images here</source>
        <translation>将图片拖放到这里</translation>
    </message>
    <message>
        <source>The file that this link leads to is gone.</source>
        <translation>此链接指向的文件已不存在。</translation>
    </message>
    <message>
        <source>Add to Image Library</source>
        <translation>添加到图片库</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Do you wish to delete the selected file?</source>
        <translation>要删除所选文件吗？</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Select a file to rename.</source>
        <translation>请选择要重命名的文件。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Enter a valid new name.</source>
        <translation>请输入有效的新名称。</translation>
    </message>
    <message>
        <source>looks the same</source>
        <translation>外观相同</translation>
    </message>
    <message>
        <source>Found again: “%1” in %2</source>
        <translation>已找到：“%1”，位于 %2</translation>
    </message>
    <message>
        <source>An image of the same name, maybe another one: “%1” in %2</source>
        <translation>同名图像（可能是另一张）：“%1”，位于 %2</translation>
    </message>
    <message>
        <source>Not found again in its old folder, below it or beside it.</source>
        <translation>在原文件夹、其子文件夹及相邻文件夹中都没有找到。</translation>
    </message>
    <message>
        <source>Looking for the image of this link…</source>
        <translation>正在查找此链接的图像…</translation>
    </message>
    <message numerus="yes">
        <source>Found again: the images of %n broken link(s).</source>
        <translation>
            <numerusform>已找到 %n 个失效链接的图像。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Do you wish to relink %n image(s)?</source>
        <translation>
            <numerusform>要重新链接 %n 张图像吗？</numerusform>
        </translation>
    </message>
    <message>
        <source>Relink</source>
        <translation>重新链接</translation>
    </message>
    <message>
        <source>A link could not be changed.</source>
        <translation>无法更改某个链接。</translation>
    </message>
    <message>
        <source>Comparing %1 of %2</source>
        <translation>正在比较第 %1 张，共 %2 张</translation>
    </message>
    <message>
        <source>No duplicates</source>
        <translation>没有重复项</translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) more than once</source>
        <translation>
            <numerusform>%n 张图像重复</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ZPImageProcessor</name>
    <message>
        <source>Choose a source folder.</source>
        <translation>请选择源文件夹。</translation>
    </message>
    <message>
        <source>Choose a destination folder.</source>
        <translation>请选择目标文件夹。</translation>
    </message>
    <message>
        <source>Source and destination folder cannot be the same.</source>
        <translation>源文件夹和目标文件夹不能相同。</translation>
    </message>
    <message>
        <source>Error: Source or destination folder does not exist.</source>
        <translation>错误：源文件夹或目标文件夹不存在。</translation>
    </message>
    <message>
        <source>Ending after this image…</source>
        <translation>将在这张图像之后结束…</translation>
    </message>
    <message>
        <source>Choose source folder</source>
        <translation>选择源文件夹</translation>
    </message>
    <message>
        <source>Choose destination folder</source>
        <translation>选择目标文件夹</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>选择</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The source folder cannot be listed.</source>
        <translation>无法列出源文件夹的内容。</translation>
    </message>
    <message>
        <source>%1 of %2: %3</source>
        <translation>第 %1 个，共 %2 个：%3</translation>
    </message>
    <message>
        <source>There is no canvas to work on.</source>
        <translation>没有可用的画布。</translation>
    </message>
    <message>
        <source>One file could not be processed.</source>
        <translation>有一个文件无法处理。</translation>
    </message>
    <message numerus="yes">
        <source>%n files could not be processed.</source>
        <translation>
            <numerusform>%n 个文件无法处理。</numerusform>
        </translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>The watermark could not be made.</source>
        <translation>无法创建水印。</translation>
    </message>
    <message>
        <source>The letters of this text have no outlines in this font.</source>
        <translation>此字体中没有这段文字的字符轮廓。</translation>
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
        <translation>内存不足，无法完成此填充。</translation>
    </message>
    <message>
        <source>Select a smaller area or lower the radius.</source>
        <translation>请选择较小的区域或减小半径。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>There is nothing to fill from.</source>
        <translation>没有可用于填充的内容。</translation>
    </message>
    <message>
        <source>Select a smaller area or raise the radius.</source>
        <translation>请选择较小的区域或增大半径。</translation>
    </message>
    <message>
        <source>The image changed meanwhile; the fill was dropped.</source>
        <translation>图片在此期间已更改；填充已放弃。</translation>
    </message>
</context>
<context>
    <name>ZPTextEditor</name>
    <message>
        <source>The letters of this family are pictures without outlines. Please choose another family.</source>
        <translation>此字体系列的字母是没有轮廓的图片。请选择其他字体系列。</translation>
    </message>
    <message>
        <source>Some characters are pictures without an outline and are left out.</source>
        <translation>有些字符是没有轮廓的图片，已略去。</translation>
    </message>
</context>
<context>
    <name>zp::Document</name>
    <message>
        <source>There is not enough memory.</source>
        <translation>内存不足。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>It was stopped.</source>
        <translation>操作已停止。</translation>
    </message>
</context>
<context>
    <name>zp::WandExplainer</name>
    <message>
        <source>A click takes %1 px</source>
        <translation>单击会选取 %1 px</translation>
    </message>
    <message>
        <source>A click takes at least %1 px</source>
        <translation>单击至少会选取 %1 px</translation>
    </message>
</context>
</TS>
