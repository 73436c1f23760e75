// SPDX-License-Identifier: GPL-3.0-or-later
/// Paints the two pictures that ship with the program: the sample image and the default watermark.
///
///     g++ -O3 -march=native -std=c++20 paint.cpp -ljpeg -o paint && ./paint FOLDER [PERCENT]
///
/// Everything is a function of a position, so any size can be painted; PERCENT (default 100) is for quick looks.
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <jpeglib.h>
#include <string>
#include <thread>
#include <vector>

namespace
{

constexpr double kPi = 3.14159265358979323846;

struct Vec {
    double x = 0, y = 0;
};
Vec operator+(Vec a, Vec b) { return {a.x + b.x, a.y + b.y}; }
Vec operator-(Vec a, Vec b) { return {a.x - b.x, a.y - b.y}; }
Vec operator*(Vec a, double k) { return {a.x * k, a.y * k}; }
double length(Vec a) { return std::hypot(a.x, a.y); }
Vec turned(Vec a, double angle)
{
    const double c = std::cos(angle), s = std::sin(angle);
    return {a.x * c - a.y * s, a.x * s + a.y * c};
}

/// Linear light.
struct Light {
    double r = 0, g = 0, b = 0;
};
Light operator+(Light a, Light b) { return {a.r + b.r, a.g + b.g, a.b + b.b}; }
Light operator*(Light a, double k) { return {a.r * k, a.g * k, a.b * k}; }
Light operator*(Light a, Light b) { return {a.r * b.r, a.g * b.g, a.b * b.b}; }
Light mix(Light a, Light b, double t) { return a * (1 - t) + b * t; }
double linear(double v) { return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4); }
Light srgb(int hex)
{
    return {linear((hex >> 16 & 255) / 255.0), linear((hex >> 8 & 255) / 255.0), linear((hex & 255) / 255.0)};
}
std::uint8_t encoded(double v)
{
    v = std::clamp(v, 0.0, 1.0);
    return std::uint8_t(std::lround(255 * (v <= 0.0031308 ? 12.92 * v : 1.055 * std::pow(v, 1 / 2.4) - 0.055)));
}

double clamp01(double v) { return std::clamp(v, 0.0, 1.0); }
double smooth(double from, double to, double v)
{
    const double t = clamp01((v - from) / (to - from));
    return t * t * (3 - 2 * t);
}
double bump(double v, double width) { return std::exp(-v * v / (width * width)); }

std::uint32_t hashed(int x, int y, int seed)
{
    std::uint32_t h =
        std::uint32_t(x) * 0x8DA6B343u ^ std::uint32_t(y) * 0xD8163841u ^ std::uint32_t(seed) * 0xCB1AB31Fu;
    h = (h ^ h >> 13) * 0x5BD1E995u;
    h = (h ^ h >> 15) * 0x27D4EB2Du;
    return h ^ h >> 16;
}
double random01(int x, int y, int seed) { return hashed(x, y, seed) / 4294967296.0; }
double noise(double x, double y, int seed)
{
    const double fx = std::floor(x), fy = std::floor(y);
    const int ix = int(fx), iy = int(fy);
    double u = x - fx, v = y - fy;
    u = u * u * u * (u * (u * 6 - 15) + 10);
    v = v * v * v * (v * (v * 6 - 15) + 10);
    const double a = random01(ix, iy, seed), b = random01(ix + 1, iy, seed);
    const double c = random01(ix, iy + 1, seed), d = random01(ix + 1, iy + 1, seed);
    return (a + (b - a) * u) * (1 - v) + (c + (d - c) * u) * v;
}
double clouds(double x, double y, int seed, int octaves)
{
    double sum = 0, weight = 0.5;
    for (int i = 0; i < octaves; ++i, x *= 2.03, y *= 2.03, weight *= 0.5) sum += weight * noise(x, y, seed + i);
    return sum;
}

// The picture is laid out on 2000 by 1500 units.
constexpr double kWide = 2000, kHigh = 1500;
constexpr Vec kHeart{985, 770}; ///< where the petals meet
constexpr double kReach = 655;  ///< how far a petal reaches

// ---- the garden behind, out of focus

struct Disc {
    Vec at;
    double radius;
    Light light;
    double strength;
};
std::vector<Disc> makeDiscs()
{
    const std::array<Light, 5> tints{srgb(0xB9D66B), srgb(0x8CC152), srgb(0xE9F2A8), srgb(0x6FB7A0), srgb(0xF4C7CF)};
    std::vector<Disc> discs;
    for (int i = 0; i < 70; ++i) {
        const double r = 28 + 95 * std::pow(random01(i, 1, 7), 2);
        const Vec at{random01(i, 2, 7) * kWide, std::pow(random01(i, 3, 7), 1.5) * kHigh * 0.95};
        discs.push_back({at, r, tints[hashed(i, 4, 7) % tints.size()], 0.05 + 0.16 * random01(i, 5, 7)});
    }
    return discs;
}

Light garden(Vec p, const std::vector<Disc>& discs)
{
    const double x = p.x / kWide, y = p.y / kHigh;
    Light c = mix(srgb(0x7FA84F), srgb(0x1F4A2B), smooth(-0.1, 0.95, y));
    c = mix(c, srgb(0xDCE7A0), 0.62 * bump(std::hypot(x - 0.16, (y - 0.05) * 0.8), 0.36));
    c = mix(c, srgb(0x12331F), 0.75 * smooth(0.35, 1.1, std::hypot(x - 0.35, y - 0.25)));
    const double cloud = clouds(x * 3.2 + 5, y * 2.6, 40, 3);
    c = c * (0.62 + 0.9 * cloud);
    c = mix(c, srgb(0x9CCB62), 0.30 * smooth(0.50, 0.72, clouds(x * 4.5, y * 4.5 + 9, 60, 2)));
    for (const Disc& d : discs) {
        const double r = length(p - d.at) / d.radius;
        if (r > 1.25) continue;
        // A lens draws a point of light as a disc that is a little brighter at its rim.
        const double cover = 1 - smooth(0.86, 1.08, r);
        c = c + d.light * (d.strength * cover * (0.72 + 0.4 * smooth(0.55, 0.95, r)));
    }
    return c;
}

// ---- leaves

struct Leaf {
    Vec base;
    double angle, size, breadth, bend, tone, blur;
};
const std::array<Leaf, 9> kLeaves{{{{1130, 640}, -0.62, 900, 0.31, 0.25, 0.40, 20},
                                   {{760, 520}, -2.42, 820, 0.30, -0.20, 0.45, 20},
                                   {{1250, 1010}, 0.62, 830, 0.33, -0.22, 0.60, 9},
                                   {{860, 1000}, 2.05, 720, 0.34, 0.24, 0.55, 10},
                                   {{650, 800}, 3.05, 760, 0.30, 0.20, 0.70, 7},
                                   {{1050, 430}, -1.45, 640, 0.33, 0.22, 0.58, 12},
                                   {{1340, 760}, 0.03, 760, 0.29, 0.16, 0.95, 3},
                                   {{1010, 1120}, 1.32, 640, 0.34, -0.20, 0.90, 3},
                                   {{700, 960}, 2.56, 800, 0.31, -0.18, 1.00, 2}}};

/// @return how much of the pixel the leaf covers
double paintLeaf(Vec p, const Leaf& leaf, Light& c)
{
    Vec q = turned(p - leaf.base, -leaf.angle) * (1 / leaf.size);
    q.y += leaf.bend * q.x * (1 - q.x) * 0.9;
    const double t = q.x;
    if (t < -0.05 || t > 1.05) return 0;
    const double tt = clamp01(t);
    double half = leaf.breadth * std::pow(std::sin(kPi * std::pow(tt, 0.72)), 0.85) * (1 - 0.28 * tt);
    // Teeth that point to the tip.
    const double tooth = std::fmod(tt * 17 + 0.08 * std::sin(q.y * 40), 1.0);
    half *= 1 - 0.065 * tooth * smooth(0.10, 0.3, tt) * smooth(15, 5, leaf.blur);
    const double side = q.y < 0 ? -1 : 1, across = std::abs(q.y);
    const double soft = std::max(leaf.blur, 1.2) / leaf.size;
    const double cover = smooth(soft, -soft, across - half) * smooth(-0.03, 0.0, t) * smooth(1.01, 0.985, t);
    if (cover <= 0) return 0;
    const double v = half > 1e-6 ? across / half : 0;

    // Side veins leave the midrib forwards and curve along the edge.
    const double lane = tt * 8.5 - v * 1.05 - 0.35 * v * v + (side < 0 ? 0.42 : 0);
    const double toVein = std::abs(lane - std::round(lane));
    const double sharp = smooth(16, 3, leaf.blur);
    const double vein = bump(toVein, 0.045) * (1 - 0.55 * v) * smooth(0.03, 0.10, v);
    const double midrib = bump(across, 0.0085 * (1.15 - 0.8 * tt));
    const double fine = bump(std::abs(std::fmod(std::abs(lane) * 5 + v * 4, 1.0) - 0.5), 0.16);
    // Between the veins the blade swells.
    const double swell = std::cos(lane * 2 * kPi);
    const double slope = std::sin(lane * 2 * kPi);
    const double grain = clouds(q.x * 26, q.y * 26, 90, 3);
    const double facing = side * std::cos(leaf.angle) > 0 ? -1 : 1; // which half looks to the light, from upper left
    double light =
        0.60 + 0.20 * facing * (0.4 + 0.6 * (1 - v)) + sharp * (0.10 * slope - 0.06 * swell) + 0.16 * (grain - 0.45);
    light *= 0.78 + 0.30 * smooth(0.0, 0.85, tt);
    Light blade = mix(srgb(0x1E5A2C), srgb(0x5E9E3E), clamp01(light));
    blade = mix(blade, srgb(0xB7D67C), sharp * (0.50 * vein + 0.75 * midrib + 0.05 * fine));
    // A waxy shine that runs along the half towards the light.
    const double shine = bump(v - 0.42, 0.26) * (facing > 0 ? 1 : 0.18) * smooth(0.12, 0.5, tt) * smooth(1.0, 0.6, tt);
    blade =
        blade * (0.75 + 0.5 * leaf.tone) + srgb(0xDDEEDF) * (0.16 * shine * leaf.tone * (0.6 + 0.4 * slope * sharp));
    blade = mix(srgb(0x16402A), blade, 0.35 + 0.65 * leaf.tone);
    c = mix(c, blade, cover);
    return cover;
}

// ---- petals

struct Petal {
    double axis, reach, half, wave, tilt;
};
const std::array<Petal, 5> kPetals{{{-1.46, 1.02, 0.90, 0.3, 0.02},
                                    {-0.20, 0.98, 0.91, 2.1, -0.03},
                                    {1.05, 1.00, 0.90, 4.0, 0.03},
                                    {2.31, 0.97, 0.91, 5.2, -0.02},
                                    {3.57, 1.01, 0.90, 1.3, 0.00}}};

double wrapped(double a) { return std::remainder(a, 2 * kPi); }

/// How far the petal reaches at this angle from its axis, in parts of kReach; 0 outside its span.
double petalReach(const Petal& p, double phi)
{
    const double u = phi / p.half;
    if (std::abs(u) >= 1) return 0;
    const double outline = std::pow(1 - std::pow(std::abs(u), 3.0), 0.50) * (1 - 0.08 * u * u);
    const double notch = 0.030 * bump(u + 0.05, 0.16);
    const double ruffle = 0.020 * std::sin(phi * 15 + p.wave) + 0.013 * std::sin(phi * 31 + 2.3 * p.wave) +
                          0.006 * std::sin(phi * 67 + 5 * p.wave);
    return p.reach * (outline - notch + ruffle * smooth(0.0, 0.4, outline));
}

/// The relief of a petal: a bowl, long folds that deepen outwards, the grooves of its veins.
struct Relief {
    double height, vein;
};
Relief petalRelief(const Petal& p, double r, double phi)
{
    const double u = phi / p.half;
    const double wander = 0.030 * (noise(r * 5 + 10 * p.wave, phi * 3, 17) - 0.5);
    // The fan of veins: a strong one in the middle, others that fork on the way out.
    double vein = 0.9 * bump((phi + wander) * r, 0.0052);
    for (int k = 1; k <= 5; ++k) {
        const double spread = 0.150 * k;
        for (const double side : {-1.0, 1.0}) {
            const double bendOut = spread * (0.74 + 0.32 * r) + 0.012 * std::sin(7 * r + k + p.wave);
            const double main = side * bendOut;
            vein += 0.75 * bump((phi + wander - main) * r, 0.0042) * smooth(1.1, 0.75, r);
            const double fork = smooth(0.36 + 0.04 * k, 1.02, r) * 0.075;
            vein += 0.42 * bump((phi + wander - main - side * fork) * r, 0.0034) * smooth(0.40, 0.5, r);
            vein += 0.34 * bump((phi + wander - main + side * fork * 0.9) * r, 0.0032) * smooth(0.48, 0.6, r);
        }
    }
    vein = std::min(vein, 1.0);
    const double out = smooth(0.15, 1.0, r);
    double height = 0.26 * (1 - u * u) * r + 0.10 * std::sin(r * 3.4 + 0.3);
    height += out * (0.042 * std::sin(phi * 9.5 + p.wave + 1.5 * r) + 0.030 * std::sin(phi * 15 + p.wave) * r);
    height += 0.030 * out * out * std::sin(phi * 31 + 2.3 * p.wave) * smooth(0.72, 1.0, r);
    height += 0.020 * (clouds(r * 7 + p.wave, phi * 7, 30, 3) - 0.45) - 0.010 * vein;
    return {height, vein};
}

/// @param under how deep in the shadow of the petal above (0 to 1)
Light petalColor(const Petal& p, double r, double phi, double under)
{
    const double e = 0.0035;
    const Relief here = petalRelief(p, r, phi);
    const double dr = (petalRelief(p, r + e, phi).height - here.height) / e;
    const double dp = (petalRelief(p, r, phi + e / r).height - here.height) / e;
    // The relief's slope in the picture, and the light from the upper left, above the page.
    const double a = p.axis + phi;
    const Vec slope{dr * std::cos(a) - dp * std::sin(a), dr * std::sin(a) + dp * std::cos(a)};
    const double nz = 1 / std::sqrt(1 + slope.x * slope.x + slope.y * slope.y);
    const double nx = -slope.x * nz, ny = -slope.y * nz;
    const double lx = -0.46, ly = -0.56, lz = 0.69;
    const double facing = nx * lx + ny * ly + nz * lz;
    const double lit = 0.30 + 0.86 * clamp01(facing);

    const double reach = petalReach(p, phi), rim = reach > 0 ? r / reach : 1;
    Light c = mix(srgb(0xC4164A), srgb(0xEE4C70), smooth(0.22, 0.66, r));
    c = mix(c, srgb(0xFF8C96), 0.78 * smooth(0.55, 1.02, rim));
    c = mix(c, srgb(0xFFC2B8), 0.42 * smooth(0.86, 1.0, rim));
    // The dark eye runs out along the veins.
    const double streak = 0.055 * here.vein + 0.05 * (noise(phi * 40, r * 3, 55) - 0.5);
    c = mix(c, srgb(0x6E0A2E), 0.93 * smooth(0.325, 0.15, r - streak));
    c = mix(c, srgb(0x2C0314), 0.80 * smooth(0.17, 0.03, r));
    c = mix(c, srgb(0xA80F3F), 0.46 * here.vein * smooth(1.08, 0.45, r));
    const double grain = clouds(phi * 70, r * 26, 71, 3) - 0.45;
    c = c * (1 + 0.16 * grain);
    // Thin towards the rim: light comes through.
    Light shaded = c * lit + c * Light{0.26, 0.10, 0.09} * (smooth(0.45, 1.0, rim) * (1.15 - lit));
    const double gloss = std::pow(clamp01(nx * -0.25 + ny * -0.31 + nz * 0.92), 26.0);
    shaded = shaded + srgb(0xFFE6E2) * (0.085 * gloss * smooth(0.15, 0.5, r));
    const Light shadow{0.40, 0.26, 0.34};
    return shaded * mix(Light{1, 1, 1}, shadow, under);
}

/// @return how much of the position the flower covers
double paintPetals(Vec p, Light& c)
{
    Vec q = (p - kHeart) * (1 / kReach);
    q.y *= 1.06; // seen a little from above
    const double r = length(q), angle = std::atan2(q.y, q.x);
    if (r > 1.15) return 0;
    // A position lies in at most two petals; of two neighbours the one further round lies on top, all the way about.
    int below = -1, above = -1;
    double phiBelow = 0, phiAbove = 0;
    for (int i = 0; i < 5; ++i) {
        const double phi = wrapped(angle - kPetals[std::size_t(i)].axis);
        if (std::abs(phi) >= kPetals[std::size_t(i)].half) continue;
        if (phi < 0 ? above < 0 : below >= 0) {
            above = i, phiAbove = phi;
        } else if (below < 0) {
            below = i, phiBelow = phi;
        }
    }
    const double soft = 1.4 / kReach;
    const auto cover = [&](int i, double phi) {
        if (i < 0) return 0.0;
        return smooth(soft, -soft, r - petalReach(kPetals[std::size_t(i)], phi));
    };
    const double overAbove = cover(above, phiAbove), overBelow = cover(below, phiBelow);
    if (overBelow > 0 && overAbove < 1) {
        // Shadow of the petal above, falling to the lower right.
        double under = 0;
        if (above >= 0) {
            const Vec s = q - Vec{0.030, 0.036};
            const double phi = wrapped(std::atan2(s.y, s.x) - kPetals[std::size_t(above)].axis);
            under = 0.85 * smooth(0.045, -0.045, length(s) - petalReach(kPetals[std::size_t(above)], phi));
            if (std::abs(phi) >= kPetals[std::size_t(above)].half) under = 0;
            const double gap = std::max(0.0, r - petalReach(kPetals[std::size_t(above)], phiAbove));
            under = std::max(under, 0.62 * bump(gap, 0.035));
        }
        c = mix(c, petalColor(kPetals[std::size_t(below)], r, phiBelow, under), overBelow);
    }
    if (overAbove > 0) {
        c = mix(c, petalColor(kPetals[std::size_t(above)], r, phiAbove, 0), overAbove);
    }
    return std::max(overAbove, overBelow);
}

// ---- the column of stamens

struct Sphere {
    Vec at;
    double radius, height;
    Light color;
    Vec root;
};
constexpr Vec kColumnEnd{1365, 505};
Vec column(double t)
{
    const Vec a = kHeart, b = kHeart + Vec{95, 40}, c{1240, 660}, d = kColumnEnd;
    const double s = 1 - t;
    return a * (s * s * s) + b * (3 * s * s * t) + c * (3 * s * t * t) + d * (t * t * t);
}

std::vector<Sphere> makeSpheres()
{
    std::vector<Sphere> spheres;
    for (int i = 0; i < 105; ++i) {
        const double t = 0.50 + 0.46 * (i + 0.6 * random01(i, 1, 3)) / 105;
        const double turn = i * 2.39996 + 0.5 * random01(i, 2, 3);
        const Vec along = column(t + 0.01) - column(t - 0.01);
        const Vec across = turned(along * (1 / length(along)), kPi / 2);
        const double out = 30 + 24 * random01(i, 3, 3) - 8 * (t - 0.5);
        const Vec root = column(t) + across * (9 * std::cos(turn));
        const Vec at =
            column(t) + across * (out * std::cos(turn)) + along * (1 / length(along)) * (16 * random01(i, 4, 3) + 4);
        const double tint = random01(i, 5, 3);
        spheres.push_back(
            {at, 7.2 + 3.2 * random01(i, 6, 3), std::sin(turn), mix(srgb(0xF2B91E), srgb(0xFFE27A), tint), root});
    }
    // Five cushions at the very end.
    for (int i = 0; i < 5; ++i) {
        const double turn = -0.75 + 2 * kPi * i / 5;
        const Vec at = kColumnEnd + Vec{26, -20} + Vec{std::cos(turn) * 33, std::sin(turn) * 29};
        spheres.push_back({at, 16.5, 1.5 + 0.1 * std::sin(turn), srgb(0xC3123F), kColumnEnd});
    }
    std::sort(spheres.begin(), spheres.end(), [](const Sphere& a, const Sphere& b) { return a.height < b.height; });
    return spheres;
}

double toSegment(Vec p, Vec a, Vec b)
{
    const Vec ab = b - a, ap = p - a;
    const double t = clamp01((ap.x * ab.x + ap.y * ab.y) / (ab.x * ab.x + ab.y * ab.y));
    return length(ap - ab * t);
}

/// Nearest place on the column. @return its parameter; @p side the signed distance
double nearColumn(Vec p, double& side)
{
    double best = 1e9, at = 0;
    for (int i = 0; i <= 60; ++i) {
        const double t = i / 60.0, d = length(p - column(t));
        if (d < best) best = d, at = t;
    }
    for (double step = 1 / 120.0; step > 1e-4; step *= 0.5)
        for (const double t : {at - step, at + step})
            if (const double d = length(p - column(clamp01(t))); d < best) best = d, at = clamp01(t);
    const Vec along = column(std::min(at + 0.005, 1.0)) - column(std::max(at - 0.005, 0.0)), away = p - column(at);
    side = along.x * away.y - along.y * away.x < 0 ? -best : best;
    return at;
}

double columnWidth(double t) { return 21 - 10 * t + 10 * bump(t, 0.09); }

void paintSphere(Vec p, const Sphere& s, Light& c)
{
    const Vec q = (p - s.at) * (1 / s.radius);
    const double r = length(q);
    if (r > 1.2) return;
    const double cover = smooth(1.06, 0.94, r);
    const double nz = std::sqrt(std::max(0.0, 1 - r * r));
    const double facing = clamp01(-0.46 * q.x - 0.56 * q.y + 0.69 * nz);
    const double depth = 0.62 + 0.38 * smooth(-1.0, 0.8, s.height);
    Light ball = s.color * ((0.24 + 0.90 * facing) * depth);
    ball = ball + srgb(0xFFF6D8) * (0.45 * std::pow(clamp01(-0.28 * q.x - 0.36 * q.y + 0.89 * nz), 30.0) * depth);
    c = mix(c, ball, cover);
}

void paintFilament(Vec p, const Sphere& s, Light& c)
{
    const double d = toSegment(p, s.root, s.at);
    if (d > 5) return;
    c = mix(c, mix(srgb(0xF6A2A4), srgb(0xFFE3B0), 0.5) * (0.62 + 0.30 * smooth(-1.0, 0.8, s.height)),
            smooth(2.6, 1.2, d));
}

void paintColumn(Vec p, const std::vector<Sphere>& spheres, Light& c, double onFlower)
{
    if (p.x < 880 || p.x > 1560 || p.y < 380 || p.y > 1000) return;
    // Its shadow on the petals, softer the further the column stands off them.
    double shadow = 0, side = 0;
    const Vec cast = p - Vec{34, 46};
    const double ts = nearColumn(cast, side);
    const double softness = 8 + 26 * ts;
    shadow = 0.50 * smooth(columnWidth(ts) + softness, columnWidth(ts) - softness * 0.5, std::abs(side)) *
             smooth(0.0, 0.12, ts);
    double crowd = 0;
    for (const Sphere& s : spheres) {
        const double d = length(cast - Vec{12, 16} - s.at);
        if (d < 46) crowd += 0.14 * bump(d, 20);
    }
    c = c * mix(Light{1, 1, 1}, Light{0.34, 0.22, 0.30}, onFlower * clamp01(shadow + std::min(crowd, 0.5)));

    for (const Sphere& s : spheres)
        if (s.height <= 0) {
            paintFilament(p, s, c);
            paintSphere(p, s, c);
        }
    const double t = nearColumn(p, side), width = columnWidth(t);
    const double d = std::abs(side) / width;
    if (d < 1.2) {
        const double cover = smooth(1 + 1.2 / width, 1 - 1.2 / width, d);
        const double across = std::clamp(side / width, -1.0, 1.0), nz = std::sqrt(1 - across * across);
        const double facing = clamp01(-0.60 * across + 0.72 * nz);
        Light tube = mix(srgb(0xA3123C), srgb(0xF58A90), smooth(0.05, 0.62, t));
        tube = mix(tube, srgb(0xFFD9B8), 0.55 * smooth(0.55, 1.0, t));
        tube = tube * (0.30 + 0.86 * facing) +
               srgb(0xFFEFE6) * (0.22 * std::pow(clamp01(-0.33 * across + 0.94 * nz), 40.0));
        c = mix(c, tube, cover * smooth(1.002, 0.99, t));
    }
    for (const Sphere& s : spheres)
        if (s.height > 0) {
            paintFilament(p, s, c);
            paintSphere(p, s, c);
        }
}

struct Scene {
    std::vector<Disc> discs = makeDiscs();
    std::vector<Sphere> spheres = makeSpheres();
};

Light hibiscus(Vec p, const Scene& scene)
{
    Light c = garden(p, scene.discs);
    for (const Leaf& leaf : kLeaves) {
        // Each leaf darkens what lies just below it.
        Light shade = c;
        Leaf soft = leaf;
        soft.blur += 26;
        const double blot = paintLeaf(p - Vec{18, 28}, soft, shade);
        c = c * (1 - 0.34 * blot);
        paintLeaf(p, leaf, c);
    }
    // The flower's own shadow on the leaves.
    Vec q = (p - kHeart - Vec{34, 52}) * (1 / kReach);
    q.y *= 1.06;
    double reach = 0;
    const double angle = std::atan2(q.y, q.x);
    for (const Petal& petal : kPetals) reach = std::max(reach, petalReach(petal, wrapped(angle - petal.axis)));
    c = c * (1 - 0.62 * smooth(0.13, -0.06, length(q) - reach));

    const double onFlower = paintPetals(p, c);
    paintColumn(p, scene.spheres, c, onFlower);

    const double edge = std::hypot((p.x - 1000) / 1250, (p.y - 740) / 960);
    c = c * (1 - 0.42 * smooth(0.62, 1.25, edge));
    // Highlights bend over instead of breaking off.
    const auto bent = [](double v) { return v < 0.72 ? v : 0.72 + 0.28 * std::tanh((v - 0.72) / 0.28); };
    c = c * 1.10;
    return {bent(c.r), bent(c.g), bent(c.b)};
}

// ---- the word mark

/// Distance to the strokes of the word, in units of the letters' height.
double toWord(Vec p)
{
    double d = 1e9;
    const auto line = [&](double x, Vec a, Vec b) { d = std::min(d, toSegment(p, a + Vec{x, 0}, b + Vec{x, 0})); };
    const auto arc = [&](Vec centre, double rx, double ry, double from, double to) {
        Vec last{};
        for (int i = 0; i <= 40; ++i) {
            const double a = from + (to - from) * i / 40;
            const Vec next = centre + Vec{rx * std::cos(a), ry * std::sin(a)};
            if (i) d = std::min(d, toSegment(p, last, next));
            last = next;
        }
    };
    double x = 0;
    arc({0.46, 0.5}, 0.46, 0.5, 0, 2 * kPi);
    x += 1.18; // R
    line(x, {0, 1}, {0, 0});
    line(x, {0, 0}, {0.30, 0});
    arc({x + 0.30, 0.27}, 0.27, 0.27, -kPi / 2, kPi / 2);
    line(x, {0.30, 0.54}, {0, 0.54});
    line(x, {0.28, 0.54}, {0.60, 1});
    x += 0.78; // V
    line(x, {0, 0}, {0.40, 1});
    line(x, {0.40, 1}, {0.80, 0});
    x += 0.94; // A, with an open foot
    line(x, {0, 1}, {0.40, 0});
    line(x, {0.40, 0}, {0.80, 1});
    x += 1.06; // N
    line(x, {0, 1}, {0, 0});
    line(x, {0, 0}, {0.66, 1});
    line(x, {0.66, 1}, {0.66, 0});
    x += 0.88; // T
    line(x, {0, 0}, {0.66, 0});
    line(x, {0.33, 0}, {0.33, 1});
    x += 0.76; // A
    line(x, {0, 1}, {0.40, 0});
    line(x, {0.40, 0}, {0.80, 1});
    return d;
}
constexpr double kWordWide = 1.18 + 0.78 + 0.94 + 1.06 + 0.88 + 0.76 + 0.80;

Light wordMark(Vec p)
{
    const double high = 34, stroke = 2.3;
    const Vec at{(320 - kWordWide * high) / 2, 24};
    Light c = mix(srgb(0x24313C), srgb(0x121A21), smooth(0, 96, p.y + 0.12 * p.x));
    const double d = toWord((p - at) * (1 / high)) * high;
    c = mix(c, srgb(0xF3EFE6), smooth(stroke + 0.6, stroke - 0.6, d));
    // A petal-coloured line under the word.
    const double line = toSegment(p, {at.x + 2, 76}, {320 - at.x - 2, 76});
    const double fade = smooth(0, 60, p.x - at.x) * smooth(0, 60, 320 - at.x - p.x);
    return mix(c, mix(srgb(0xE2476B), srgb(0xF4C14F), clamp01((p.x - at.x) / (320 - 2 * at.x))),
               fade * smooth(1.5, 0.6, line));
}

// ---- files

template <class F>
void paint(const std::string& path, int width, int height, int samples, int quality, F&& colorAt)
{
    std::vector<std::uint8_t> bytes(std::size_t(width) * std::size_t(height) * 3);
    const auto rows = [&](int first, int step) {
        for (int y = first; y < height; y += step)
            for (int x = 0; x < width; ++x) {
                Light sum;
                for (int i = 0; i < samples * samples; ++i)
                    sum = sum + colorAt(Vec{x + (i % samples + 0.5) / samples, y + (i / samples + 0.5) / samples});
                sum = sum * (1.0 / (samples * samples));
                std::uint8_t* out = &bytes[(std::size_t(y) * std::size_t(width) + std::size_t(x)) * 3];
                out[0] = encoded(sum.r), out[1] = encoded(sum.g), out[2] = encoded(sum.b);
            }
    };
    std::thread other([&] { rows(1, 2); });
    rows(0, 2);
    other.join();

    std::FILE* file = std::fopen(path.c_str(), "wb");
    if (!file) {
        std::perror(path.c_str());
        std::exit(1);
    }
    jpeg_compress_struct jpeg;
    jpeg_error_mgr errors;
    jpeg.err = jpeg_std_error(&errors);
    jpeg_create_compress(&jpeg);
    jpeg_stdio_dest(&jpeg, file);
    jpeg.image_width = JDIMENSION(width);
    jpeg.image_height = JDIMENSION(height);
    jpeg.input_components = 3;
    jpeg.in_color_space = JCS_RGB;
    jpeg_set_defaults(&jpeg);
    jpeg_set_quality(&jpeg, quality, TRUE);
    jpeg.optimize_coding = TRUE;
    jpeg_start_compress(&jpeg, TRUE);
    while (jpeg.next_scanline < jpeg.image_height) {
        JSAMPROW row = &bytes[std::size_t(jpeg.next_scanline) * std::size_t(width) * 3];
        jpeg_write_scanlines(&jpeg, &row, 1);
    }
    jpeg_finish_compress(&jpeg);
    jpeg_destroy_compress(&jpeg);
    std::fclose(file);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 2) {
        std::fprintf(stderr, "usage: paint FOLDER [PERCENT]\n");
        return 2;
    }
    const std::string folder = argv[1];
    const double scale = argc > 2 ? std::atof(argv[2]) / 100 : 1;
    const Scene scene;
    paint(folder + "/Hibiskus.jpg", int(kWide * scale), int(kHigh * scale), scale < 1 ? 1 : 2, 88,
          [&](Vec p) { return hibiscus(p * (1 / scale), scene); });
    paint(folder + "/Title.jpg", 320, 96, 4, 92, wordMark);
    return 0;
}
