# SPDX-License-Identifier: GPL-3.0-or-later
"""What bench/table measures: sections, and in each the rows with our work, the peers that do the same, and the goal.

A row: the work, our benchmark, its peers as pairs (who, benchmark), the goal for the ratio to the best of them, and a remark. The
peers are the best ones that Debian packages, and they have as many threads as we have, unless a row says otherwise. The goals
without AVX-512 are the same for all: at most 1.6 times the best path's time with AVX2, 4 times with SSE4.
"""
from dataclasses import dataclass, field


@dataclass
class Row:
    work: str
    ours: str
    peers: list = field(default_factory=list)
    goal: float | None = None
    remark: str = ""


@dataclass
class Section:
    name: str      # of the place in docs/performance.md
    program: str   # build-bench/bench/ROOM/bench_NAME
    rows: list
    targets: bool = True  # whether its kernels are chosen among vector targets, and the program takes --targets


def ms(name, *args):
    """The benchmark's name with its arguments, measured by the clock."""
    return "/".join([name, *map(str, args), "real_time"])


SECTIONS = [
    Section("tools", "tools/bench_tools", [
        *[Row(f"flood fill, {k}", f"fill/{k}/iterations:9/real_time", [("cv::floodFill", f"fill, OpenCV/{k}/iterations:9/real_time")], g)
          for k, g in (("uniform", 0.13), ("photo", 0.16), ("drawing", 0.20), ("percolation 65 %", 0.10), ("comb", 0.10),
                       ("columns", 0.30), ("rows", 0.40), ("spiral", 0.30))],
        *[Row(f"wand, {k}", f"wand/{k}/iterations:9/real_time", [("cv::floodFill, mask only", f"wand, OpenCV/{k}/iterations:9/real_time")], g)
          for k, g in (("uniform", 0.18), ("photo", 0.18), ("drawing", 0.36), ("percolation 65 %", 0.12), ("comb", 0.10),
                       ("columns", 0.30), ("rows", 0.40), ("spiral", 0.30))],
        *[Row(f"what a wand would take, {k}", f"preview/{k}/iterations:9/real_time",
              [("cv::floodFill, mask only", f"wand, OpenCV/{k}/iterations:9/real_time")], None, "the picture looked over before")
          for k in ("uniform", "photo", "drawing")],
        Row("one stamp of size 200", "stamp/200", [("AGG", "stamp, AGG/200")], 0.10, "the calling thread's own time"),
    ]),
    Section("files", "codecs/bench_codecs", [
        Row("JPEG open", ms("JPEGOpen"), [("libjpeg-turbo", ms("JPEGOpenPeerTurbo"))], 0.80),
        Row("JPEG open, a file of our own", ms("JPEGOpenOwn"), [("libjpeg-turbo", ms("JPEGOpenPeerTurbo"))], 0.80),
        Row("JPEG save", ms("JPEGSave"), [("libjpeg-turbo", ms("JPEGSavePeerTurbo"))], 0.55),
        *[Row(f"{what}, {look}", ms(ours, f"photo:{n}"), [(who, ms(peer, f"photo:{n}")) for who, peer in peers], goals[1 - n])
          for what, ours, peers, goals in (
              ("PNG open", "PNGOpen", (("libspng", "PNGOpenPeerSpng"), ("libpng", "PNGOpenPeerLibpng")), (0.52, 0.20)),
              ("TIFF LZW open", "TIFFOpen", (("libtiff", "TIFFOpenPeerLibtiff"),), (0.45, 0.50)),
              ("TIFF LZW save", "TIFFSave", (("libtiff", "TIFFSavePeerLibtiff"),), (0.30, 0.40)))
          for n, look in ((1, "photo"), (0, "drawing"))],
        Row("PNG save, photo", ms("PNGSave", "photo:1"), [("libpng level 1", ms("PNGSavePeerLibpng", "photo:1", "level:1")),
                                                          ("libspng", ms("PNGSavePeerSpng", "photo:1"))], 0.20),
        Row("PNG save, drawing", ms("PNGSave", "photo:0"), [("libpng level 6", ms("PNGSavePeerLibpng", "photo:0", "level:6")),
                                                            ("libspng", ms("PNGSavePeerSpng", "photo:0"))], 0.25),
    ]),
    Section("engines", "codecs/bench_codecs", [
        Row("JPEG strips coded", ms("StripsOwn"), [("libjpeg-turbo, a picture a strip", ms("StripsTurbo"))], 1, "all cores"),
        *[Row(f"{what}, {look}", ms(ours, f"look:{n}"), [(who, ms(peer, f"look:{n}")) for who, peer in peers], 1, remark)
          for what, ours, peers, remark in (
              ("filtered strips packed", "DeflateOwn", (("ISA-L level 1", "DeflateISAL"), ("libdeflate level 1", "DeflateLibdeflate")), "one core"),
              ("a stream unpacked", "InflateLibdeflate", (("ISA-L", "InflateISAL"),), "one core; ours is libdeflate"),
              ("LZW strips packed", "LZWPackOwn", (("libtiff", "LZWPackLibtiff"),), "all cores"),
              ("LZW strips unpacked", "LZWUnpackOwn", (("libtiff", "LZWUnpackLibtiff"),), "all cores"))
          for n, look in ((2, "camera"), (1, "photo"), (0, "drawing"))],
    ]),
    Section("drawing", "drawing/bench_drawing", [
        *[Row(f"Gaussian blur, sigma {s / 10:g}", ms("BM_Gaussian", s), [("cv::GaussianBlur", ms("OpenCV_Gaussian", s))], g)
          for s, g in ((10, 0.5), (25, 0.5), (50, 0.5), (100, 0.14), (200, 0.05))],
        Row("unsharp mask, sigma 2.5", ms("BM_Unsharp"), [("cv, blur and weighted sum", ms("OpenCV_Unsharp"))], 0.4),
        Row("colour matrix", ms("BM_Colour"), [("cv::transform", ms("OpenCV_Transform"))], 0.10),
        Row("five adjustments", ms("BM_AllFive"), [("the same chain by cv", ms("OpenCV_AllFive"))], 0.12),
        *[Row(f"resize to {w} x {h}", ms("BM_Resample", 6000, 4000, w, h),
              [("Qt, smooth", ms("Qt_Smooth", 6000, 4000, w, h)), ("cv::resize, area", ms("OpenCV_Resize", 6000, 4000, w, h))], g)
          for w, h, g in ((300, 200, None), (1600, 1067, 0.4), (3000, 2000, 0.6), (5000, 3333, None))],
        Row("resize 6 to 24 megapixels", ms("BM_Resample", 3000, 2000, 6000, 4000),
            [("cv::resize, cubic", ms("OpenCV_Resize", 3000, 2000, 6000, 4000))], 0.21),
        Row("mask of a star of 1,000 vertices", ms("BM_FillMask", 0),
            [("cv::fillPoly", ms("BM_FillMaskOpenCv", 0)), ("AGG", ms("BM_FillMaskAgg", 0))], 1.0, "cv smooths edge lines only"),
        Row("mask of a zigzag", ms("BM_FillMask", 1),
            [("cv::fillPoly", ms("BM_FillMaskOpenCv", 1)), ("AGG", ms("BM_FillMaskAgg", 1))], 0.7, "cv smooths edge lines only"),
        Row("picture drawn at exactly half its size", ms("BM_Reduce", 3000), [("cv::resize, area", ms("BM_ReduceOpenCv", 3000))], 0.6),
        Row("picture drawn at 1600 across", ms("BM_Reduce", 1600), [("cv::resize, area", ms("BM_ReduceOpenCv", 1600))], 0.4),
        Row("picture drawn at twice its size", ms("BM_Enlarge"), [("cv::resize, cubic", ms("BM_EnlargeOpenCv"))], 0.4),
        Row("picture in perspective, four corners pulled", ms("BM_Perspective"),
            [("cv::warpPerspective, cubic", ms("BM_PerspectiveOpenCv"))]),
        Row("its halves, quarters and so on, for drawing it reduced", ms("BM_Levels"),
            [("cv::resize, area", ms("BM_LevelsOpenCv"))]),
        Row("picture turned by 7 degrees", ms("BM_Turn"), [("cv::warpAffine, cubic", ms("BM_TurnOpenCv"))], 0.4),
    ]),
    Section("imageops", "imageops/bench_imageops", [
        Row("rotate by 90 degrees", ms("BM_RotateClockwise", 6000, 4000), [("cv::rotate", ms("BM_RotateOpenCV", 6000, 4000))], 0.15),
        Row("flip left-right in place", ms("BM_FlipHorizontally", 6000, 4000),
            [("cv::flip in place", ms("BM_FlipHorizontallyOpenCVInPlace", 6000, 4000))], 0.55),
        Row("flip top-bottom in place", ms("BM_FlipVertically", 6000, 4000),
            [("cv::flip in place", ms("BM_FlipVerticallyOpenCVInPlace", 6000, 4000))], 0.55),
    ]),
    Section("memory", "imageops/bench_imageops", [
        *[Row(f"{what}, {who}", ms(name, n))
          for what, name in (("every pixel read once", "BM_ReadPixels"), ("every pixel read and written in place", "BM_ChangePixels"))
          for n, who in ((1, "one thread"), (2, "all threads"))],
    ], targets=False),
    Section("selection", "selection/bench_selection", [
        Row("union of two outlines of 20,000 vertices", "BM_Union/0", [("Clipper", "BM_UnionClipperAlone/0")], 0.22),
        Row("the same, spiky", "BM_Union/1", [("Clipper", "BM_UnionClipperAlone/1")], 0.12),
        Row("2,000 strokes right across joined with a rectangle", ms("BM_UnionOfStrokes", 2000, "iterations:1"), remark="goal 300 ms"),
        Row("20,000 strokes of 600 pixels joined with a rectangle", ms("BM_UnionOfStrokes", 20000, "iterations:1"), remark="goal 5,000 ms"),
        Row("outline traced, fine structure", "BM_Trace/0", [("cv::findContours", "BM_TraceOpenCV/0")], 0.43),
        Row("outline traced, a wand in a photo", "BM_Trace/1", [("cv::findContours", "BM_TraceOpenCV/1")], 0.13),
        Row("6 megapixels anchored, rectangle", ms("BM_Anchor", 0), [("cv::Mat::copyTo", ms("BM_AnchorOpenCvCopy", 0))], 1.2),
        Row("6 megapixels anchored, oval", ms("BM_Anchor", 1), [("cv::Mat::copyTo", ms("BM_AnchorOpenCvCopy", 1))], 0.7),
        Row("6 megapixels anchored, turned", ms("BM_AnchorTurned"), [("cv::warpAffine", ms("BM_AnchorTurnedOpenCv"))], 0.5),
    ]),
    Section("undo", "undo/bench_undo", [
        Row("colours coded, every row changed", ms("BM_EncodeAllChanged"), [("libjpeg-turbo", ms("BM_EncodePlainTurboJPEG"))], 0.34),
        Row("colours coded after a small stroke", ms("BM_EncodeSmallStroke")),
        Row("a whole snapshot with its files, small stroke", ms("BM_WholeSnapshot", 100)),
        Row("the same, every row changed", ms("BM_WholeSnapshot", 4000)),
        Row("restored", ms("BM_DecodeSnapshot"), [("libjpeg-turbo", ms("BM_DecodePlainTurboJPEG"))], 0.55),
    ]),
    Section("smartfill", "smartfill/bench_smartfill", [
        Row("hole of 200 x 150, waves and grain", "BM_SmartFill/0", [("the algorithm literally", "BM_SmartFillLiteral/0/iterations:1")], 0.10),
        Row("the same without AVX-512 VBMI", "BM_SmartFillPortable/0", [("with it", "BM_SmartFill/0")], 2),
    ], targets=False),
    Section("canvas", "canvas/bench_canvas", [
        *[Row(f"redraw of 1600 x 1000 at {z} %", ms("BM_RedrawView", z)) for z in (25, 100, 400)],
        *[Row(f"redraw of 1600 x 1000 at {z} %, on a screen with a profile", ms("BM_RedrawViewThroughProfile", z), remark="goal 6 ms")
          for z in (25, 100, 400)],
        Row("a tick of the marching ants", ms("BM_AntsTick")),
        *[Row(f"a step of dragging 6 megapixels at {z} %", ms("BM_DragFloatingSixMegapixels", z, "iterations:40")) for z in (25, 100)],
        *[Row(f"a step of pulling a corner of 24 megapixels at {z} %", ms("BM_PullCorner", k, "iterations:40"))
          for z, k in (("12.5", 125), ("25", 250), ("100", 1000))],
        Row("a JPEG opened until it can be drawn", ms("BM_OpenJPEG"), [("libjpeg-turbo, into warm memory", ms("BM_OpenJPEG_TurboIntoWarmMemory"))], 0.9),
    ], targets=False),
    Section("large", "canvas/bench_large", [
        *[Row(f"JPEG of {n} megapixels opened and drawn, resident", ms("BM_OpenLarge", n, "iterations:3"),
              [("libjpeg-turbo, its pixels", ms("BM_OpenLargeTurbo", n, "iterations:3"))], 1) for n in (100, 400, 900)],
        *[Row(f"900 megapixels at {z} %, a step of panning", ms("BM_PanLarge", k, "iterations:40"), remark="goal 16.7 ms")
          for z, k in (("6.25", 625), ("25", 2500), ("100", 10000))],
        *[Row(f"900 megapixels zoomed to {z} %", ms("BM_ZoomLarge", k, "iterations:20"), remark="goal 16.7 ms")
          for z, k in (("6.25", 625), ("12.5", 1250), ("25", 2500), ("100", 10000))],
        Row("900 megapixels zoomed to 6.25 %, changed just before", ms("BM_ZoomLargeChanged", "iterations:20")),
    ], targets=False),
    Section("programs", "programs/bench_programs", [
        *[Row(f"started until the window is there, {what}; resident", f"window/Zelpane/{key}/iterations:3/manual_time",
              [(who, f"window/{who}/{key}/iterations:3/manual_time") for who in ("mtPaint", "KolourPaint")], remark=goals)
          for what, key, goals in (("empty", "empty", "goal 35 ms"),
                                   ("with the 24 megapixels", "picture", "goal 40 ms, 142 MB"))],
        *[Row(f"15 photographs to 1024 x 768, {what}", f"batch/Zelpane/{kind}/iterations:5/manual_time",
              [("GraphicsMagick told the size, a process a core", f"batch/GraphicsMagick/{kind}/iterations:5/manual_time")], 0.4)
          for what, kind in (("as cameras write them", "camera"), ("as for the web, progressive", "web"))],
    ], targets=False),
    Section("batch", "batch/bench_batch", [
        Row("12 photos of 12 megapixels fitted and stamped", ms("BatchToJPEG", "tiff:0"),
            [("libjpeg-turbo at half scale, cv area, no stamp", ms("BatchToJPEGPeerTurboAndOpenCV"))], 0.8),
        *[Row(f"a watermark repeated over 24 megapixels{what}", ms("TiledWatermark", "size:25", "gap:50", f"turn:{turn}"))
          for what, turn in (("", 0), (", turned", 30))],
    ], targets=False),
]
