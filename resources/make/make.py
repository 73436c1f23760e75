# SPDX-License-Identifier: GPL-3.0-or-later
"""Makes the brush tips and the sounds that ship with the program: make.py FOLDER. Standard library only.

Every shape is a signed distance in a square from -1 to 1, every sound a sum of decaying waves; nothing is random but
by a fixed seed, so that a second run gives the same bytes.
"""
import math
import random
import struct
import sys
import wave
import zlib

TIP = 200  # pixels a side: twice the largest brush that is often used
RATE = 44100


def write_png(path, side, alpha_at):
    """Black pixels whose alpha is the shape; the program gives them the colour."""
    rows = bytearray()
    for y in range(side):
        rows.append(0)
        for x in range(side):
            u, v = (2 * x + 1) / side - 1, (2 * y + 1) / side - 1
            rows += bytes((0, 0, 0, round(255 * min(1.0, max(0.0, alpha_at(u, v))))))

    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))

    with open(path, "wb") as out:
        out.write(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", side, side, 8, 6, 0, 0, 0))
                  + chunk(b"IDAT", zlib.compress(bytes(rows), 9)) + chunk(b"IEND", b""))


def smooth(a, b, v):
    t = min(1.0, max(0.0, (v - a) / (b - a)))
    return t * t * (3 - 2 * t)


def edge(distance, side=TIP):
    """Covered part of a pixel whose centre lies this far outside the shape."""
    return 0.5 - distance * side / 2


def hard_round(u, v):
    return edge(math.hypot(u, v) - 0.985)


def soft_round(u, v):
    r = math.hypot(u, v)
    return (math.exp(-4.5 * r * r) - math.exp(-4.5)) / (1 - math.exp(-4.5)) if r < 1 else 0


def square(u, v):
    return edge(max(abs(u), abs(v)) - 0.92)


def calligraphy(u, v):
    """A broad nib held at 45 degrees."""
    along, across = (u - v) / math.sqrt(2), (u + v) / math.sqrt(2)
    x, y = abs(along) - 0.78, abs(across) - 0.02
    return edge(math.hypot(max(x, 0), max(y, 0)) + min(max(x, y), 0) - 0.16)


class Spray:
    def __init__(self):
        chance = random.Random(11)
        self.dots = []
        while len(self.dots) < 330:
            r, a = abs(chance.gauss(0, 0.42)), chance.uniform(0, 2 * math.pi)
            if r < 0.95:
                self.dots.append((r * math.cos(a), r * math.sin(a), chance.uniform(0.012, 0.034)))

    def __call__(self, u, v):
        return max(edge(math.hypot(u - x, v - y) - r) for x, y, r in self.dots)


def star(u, v):
    """Five points, the edges a little hollow."""
    a = math.atan2(u, -v)
    sector = 2 * math.pi / 5
    a = abs((a + sector / 2) % sector - sector / 2)
    r = math.hypot(u, v)
    x, y = r * math.cos(a), r * math.sin(a)
    tip, inner = (0.97, 0.0), (0.40 * math.cos(sector / 2), 0.40 * math.sin(sector / 2))
    dx, dy = inner[0] - tip[0], inner[1] - tip[1]
    length = math.hypot(dx, dy)
    return edge((dx * (y - tip[1]) - dy * (x - tip[0])) / -length)


def leaf(u, v):
    """A pointed leaf along the diagonal, its midrib left open."""
    along, across = (u - v) / math.sqrt(2), (u + v) / math.sqrt(2)
    reach, radius = 0.97, 1.16
    # Two arcs of one circle that meet in the points.
    centre = math.sqrt(radius * radius - reach * reach)
    body = edge(math.hypot(along, abs(across) + centre) - radius)
    rib = edge(0.018 * (1.1 - along) - abs(across)) if along > -0.93 else 1
    return min(body, rib)


class Chalk:
    """A round tip whose grain lets the ground through."""

    def __init__(self):
        chance = random.Random(5)
        self.grid = [[chance.random() for _ in range(64)] for _ in range(64)]

    def noise(self, x, y):
        ix, iy = math.floor(x), math.floor(y)
        u, v = smooth(0, 1, x - ix), smooth(0, 1, y - iy)
        g = self.grid
        a, b = g[iy % 64][ix % 64], g[iy % 64][(ix + 1) % 64]
        c, d = g[(iy + 1) % 64][ix % 64], g[(iy + 1) % 64][(ix + 1) % 64]
        return (a + (b - a) * u) * (1 - v) + (c + (d - c) * u) * v

    def __call__(self, u, v):
        grain = 0.6 * self.noise(u * 17 + 40, v * 17 + 40) + 0.4 * self.noise(u * 39 + 9, v * 39 + 9)
        r = math.hypot(u, v) + 0.10 * (self.noise(u * 9 + 7, v * 9 + 7) - 0.5)
        return smooth(0.96, 0.86, r) * smooth(0.30, 0.52, grain + 0.16 * (1 - r))


def write_wave(path, seconds, sample_at, peak=0.6):
    count = int(seconds * RATE)
    samples = [sample_at(i / RATE) for i in range(count)]
    loudest = max(abs(s) for s in samples) or 1
    fade = int(0.004 * RATE)  # no click at the ends
    data = bytearray()
    for i, s in enumerate(samples):
        level = min(1.0, i / (fade * 0.25), (count - 1 - i) / fade)
        data += struct.pack("<h", round(32767 * peak * level * s / loudest))
    with wave.open(path, "wb") as out:
        out.setnchannels(1)
        out.setsampwidth(2)
        out.setframerate(RATE)
        out.writeframes(bytes(data))


def frog(t):
    """Two croaks: a buzz through two resonances that open and close."""
    value = 0.0
    for start, pitch in ((0.0, 118.0), (0.15, 104.0)):
        s = t - start
        if not 0 <= s < 0.13:
            continue
        envelope = math.sin(math.pi * s / 0.13) ** 0.6
        phase = pitch * s + 14 * s * s
        for k in range(1, 22):
            f = k * pitch
            formant = math.exp(-((f - 620 - 900 * s) / 240) ** 2) + 0.45 * math.exp(-((f - 1650) / 330) ** 2)
            value += envelope * formant * math.sin(2 * math.pi * k * phase)
        value *= 0.75 + 0.25 * math.sin(2 * math.pi * 43 * s)
    return value


def pop(t):
    """A bubble: the pitch rises while the sound dies."""
    phase = 2 * math.pi * (260 * t + 2600 * t * t)
    return math.exp(-t * 34) * (math.sin(phase) + 0.25 * math.sin(2 * phase))


def ping(t):
    return sum(a * math.exp(-t * d) * math.sin(2 * math.pi * f * t)
               for f, a, d in ((1318.5, 1.0, 7.5), (2637.0, 0.42, 10.0), (3955.5, 0.15, 15.0), (5280.0, 0.06, 22.0)))


def glass(t):
    """A struck rim: partials as a thin bar has them, two of each so close that they beat."""
    return sum(a * math.exp(-t * d) * (math.sin(2 * math.pi * f * t) + math.sin(2 * math.pi * (f + 2.6) * t))
               for f, a, d in ((1046.5, 0.9, 4.2), (2884.0, 0.55, 6.5), (5650.0, 0.22, 10.0), (7900.0, 0.07, 17.0)))


def main():
    folder = sys.argv[1]
    tips = (hard_round, soft_round, square, calligraphy, Spray(), star, leaf, Chalk())
    for number, tip in enumerate(tips, 1):
        write_png(f"{folder}/B{number}.png", TIP, tip)
    write_png(f"{folder}/Brush60.png", 60, lambda u, v: edge(math.hypot(u, v) - 0.96, 60))
    write_wave(f"{folder}/Frog.wav", 0.29, frog)
    write_wave(f"{folder}/Pop.wav", 0.13, pop)
    write_wave(f"{folder}/Ping.wav", 0.55, ping)
    write_wave(f"{folder}/Glass.wav", 0.85, glass)
    with open(f"{folder}/2xRetina.txt", "w", encoding="ascii") as flag:
        flag.write("NO")


main()
