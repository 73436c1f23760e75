#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Holes in places whose truth is known, filled by smart fill and by others, judged by one measure.

    held_out.py SMARTFILL_LOOKS FOLDER PICTURE.ppm X,Y [X,Y…] [PICTURE.ppm X,Y…]

X,Y is the near corner of a hole of 120 x 90 pixels; everybody gets the same excerpt of 480 x 360 around it, so that times
can be compared. G'MIC's patch matching takes part where `gmic` is installed. One line a hole, then the means. FOLDER keeps
excerpts and results, to be looked at.
"""
import os
import re
import shutil
import subprocess
import sys
import time

HOLE, EXCERPT = (120, 90), (480, 360)


def read_ppm(path):
    with open(path, "rb") as file:
        data = file.read()
    match = re.match(rb"P6\s+(\d+)\s+(\d+)\s+255\s", data)
    return int(match[1]), int(match[2]), data[match.end():]


def excerpt(path, corner, prefix):
    """Writes PREFIX.ppm and PREFIX.pgm. Returns whether the hole lies inside the picture."""
    width, height, bytes_ = read_ppm(path)
    (x, y), (w, h), (ew, eh) = corner, HOLE, EXCERPT
    left, top = min(max(0, x - (ew - w) // 2), width - ew), min(max(0, y - (eh - h) // 2), height - eh)
    if left < 0 or top < 0 or x + w > width or y + h > height:
        return False
    with open(prefix + ".ppm", "wb") as out:
        out.write(b"P6\n%d %d\n255\n" % EXCERPT)
        for row in range(top, top + eh):
            out.write(bytes_[3 * (row * width + left):3 * (row * width + left + ew)])
    mask = bytearray(ew * eh)
    for row in range(y - top, y - top + h):
        mask[row * ew + x - left:row * ew + x - left + w] = b"\xff" * w
    with open(prefix + ".pgm", "wb") as out:
        out.write(b"P5\n%d %d\n255\n" % EXCERPT + mask)
    return True


def main():
    looks, folder, words = sys.argv[1], sys.argv[2], sys.argv[3:]
    os.makedirs(folder, exist_ok=True)
    sums, count, picture = {}, 0, ""
    for word in words:
        if not re.fullmatch(r"\d+,\d+", word):
            picture = word
            continue
        name = os.path.splitext(os.path.basename(picture))[0] + "-" + word.replace(",", "-")
        prefix = os.path.join(folder, name)
        if not excerpt(picture, tuple(map(int, word.split(","))), prefix):
            sys.exit(f"{name}: the hole lies outside the picture")
        others, took = [], 0.0
        if shutil.which("gmic"):
            result = prefix + "-gmic.ppm"
            began = time.monotonic()
            subprocess.run(["gmic", "-v", "-1", prefix + ".ppm", prefix + ".pgm", "-inpaint_matchpatch[0]", "[1]",
                            "-keep[0]", "-round", "-cut", "0,255", "-o", result + ",uchar"], check=True,
                           stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
            took = time.monotonic() - began
            others = ["gmic=" + result]
        line = subprocess.run([looks, prefix + ".ppm", prefix + ".pgm", "50", "normal", prefix] + others, check=True,
                              text=True, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL).stdout
        found = re.findall(r"(\w+)(?: ([\d.]+) s)? PSNR ([\d.]+) SSIM ([-\d.]+)", line)
        print(f"{name:40}", "  ".join(f"{who} {psnr}/{ssim}" for who, _, psnr, ssim in found), flush=True)
        count += 1
        for who, seconds, psnr, ssim in found:
            total = sums.setdefault(who, [0.0, 0.0, 0.0])
            for i, value in enumerate((psnr, ssim, seconds or took)):
                total[i] += float(value)
    for who, (psnr, ssim, seconds) in sums.items():
        print(f"{who:10} {psnr / count:6.2f} dB  SSIM {ssim / count:.3f}  {seconds / count:7.3f} s")


if __name__ == "__main__":
    main()
