// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "geometry.h"

#include <functional>

enum MaterialId { Matte, Petal, Leaf, Glazed, Fruit, Wood, Wall, Seed };

constexpr float Pi = 3.14159265f;
constexpr float GoldenAngle = 2.3999632f;

/// A number in 0 to 1 that looks random and is the same in every run.
inline float Noise(std::uint32_t a, std::uint32_t b = 0) {
    std::uint32_t h = a * 0x9E3779B1u ^ (b + 0x7F4A7C15u) * 0x85EBCA77u;
    h ^= h >> 15;
    h *= 0x2C1B3C6Du;
    h ^= h >> 12;
    h *= 0x297A2D39u;
    h ^= h >> 15;
    return static_cast<float>(h >> 8) / 16777216.0f;
}

struct Point {
    Vec pos, colour;
};

/// A surface from its two parameters, both 0 to 1, as nu by nv quads with smooth normals.
inline void AddPatch(std::vector<Triangle>& mesh, int nu, int nv, MaterialId material,
                     const std::function<Point(float, float)>& f) {
    struct Corner {
        Vec pos, normal, colour;
    };
    std::vector<Corner> grid;
    constexpr float E = 1e-3f;
    for (int j = 0; j <= nv; ++j) {
        for (int i = 0; i <= nu; ++i) {
            const float u = static_cast<float>(i) / static_cast<float>(nu);
            const float v = static_cast<float>(j) / static_cast<float>(nv);
            const Point p = f(u, v);
            const Vec du = f(std::min(1.0f, u + E), v).pos - f(std::max(0.0f, u - E), v).pos;
            const Vec dv = f(u, std::min(1.0f, v + E)).pos - f(u, std::max(0.0f, v - E)).pos;
            grid.push_back({p.pos, Unit(Cross(du, dv)), p.colour});
        }
    }
    const auto add = [&](const Corner& a, const Corner& b, const Corner& c) {
        const Vec e1 = b.pos - a.pos, e2 = c.pos - a.pos;
        if (Dot(Cross(e1, e2), Cross(e1, e2)) > 1e-18f) {
            mesh.push_back({a.pos,
                            e1,
                            e2,
                            {a.normal, b.normal, c.normal},
                            {a.colour, b.colour, c.colour},
                            material});
        }
    };
    for (int j = 0; j < nv; ++j) {
        for (int i = 0; i < nu; ++i) {
            const auto k = static_cast<std::size_t>(j * (nu + 1) + i);
            const auto below = k + static_cast<std::size_t>(nu) + 1;
            add(grid[k], grid[k + 1], grid[below + 1]);
            add(grid[k], grid[below + 1], grid[below]);
        }
    }
}

/// A flower head: petals on a spiral from the heart (first value of each pair) to the rim (second).
struct Bloom {
    int petals = 80;
    float lean[2] = {0.1f, 1.7f};  ///< angle from the axis at the petal's foot
    float curl[2] = {-0.5f, 0.6f}; ///< further turn up to its tip; below 0 bends inwards
    float length[2] = {0.2f, 0.6f};
    float foot[2] = {0.02f, 0.12f}; ///< distance of its foot from the axis
    float width = 0.4f;             ///< of its length
    float cup = 0.5f;               ///< how far its sides are rolled up
    float tip = 0.55f;              ///< 0.3 blunt to 0.9 pointed
    Vec deep, mid, rim;             ///< colours from the heart to the rim
    float size = 1;
    std::uint32_t seed = 1;
};

inline float Between(const float (&pair)[2], float t) {
    return pair[0] + (pair[1] - pair[0]) * t;
}

inline void AddPetal(std::vector<Triangle>& mesh, const Frame& frame, const Bloom& b, int index) {
    const float t =
        std::pow((static_cast<float>(index) + 0.5f) / static_cast<float>(b.petals), 0.8f);
    const auto n = static_cast<std::uint32_t>(index);
    const float chance = Noise(n, b.seed), other = Noise(n, b.seed + 77);
    const float turn = static_cast<float>(index) * GoldenAngle + 0.15f * (chance - 0.5f);
    const float lean = Between(b.lean, t) + 0.14f * (other - 0.5f);
    const float curl = Between(b.curl, t) + 0.3f * (chance - 0.5f);
    const float length = Between(b.length, t) * b.size * (0.93f + 0.14f * other);
    const float half = length * b.width * 0.5f;
    const Vec radial = frame.right * std::cos(turn) + frame.front * std::sin(turn);
    const Vec side = Cross(frame.up, radial);
    const Vec foot =
        frame.o + radial * (Between(b.foot, t) * b.size) + frame.up * (0.16f * (1 - t) * b.size);
    const float roll = 0.25f * (chance - 0.5f);
    AddPatch(mesh, 10, 14, Petal, [=](float u, float v) {
        const float s = v;
        const float angle =
            lean + curl * s * 0.5f; // the mean direction so far keeps the arc smooth
        const Vec along = radial * std::sin(angle) + frame.up * std::cos(angle);
        const Vec inner = frame.up * std::sin(lean + curl * s) - radial * std::cos(lean + curl * s);
        const float x = 2 * u - 1;
        const float shape =
            std::pow(std::sin(Pi * std::pow(0.04f + 0.96f * s, 0.85f)) * 0.999f + 0.001f, b.tip);
        const float wave = 0.03f * std::sin(9 * s + 11 * chance + 3 * x);
        const float lift =
            b.cup * half * (x * x * shape - 0.25f) * (1.1f - 0.5f * s) + wave * half * 2;
        const Vec pos =
            foot + along * (length * s) + side * (half * shape * (x + roll * s)) + inner * lift;
        Vec colour = Mix(b.deep, b.mid, Step(0, 0.6f, t * 0.7f + s * 0.45f));
        colour = Mix(colour, b.rim, Step(0.45f, 1.0f, s) * (0.35f + 0.65f * t));
        const float vein =
            1 + 0.07f * std::sin(17 * x + 5 * chance) * (1 - s) + 0.08f * (chance - 0.5f);
        return Point{pos, colour * (vein * (1 - 0.12f * std::exp(-x * x * 40)))};
    });
}

inline void AddBloom(std::vector<Triangle>& mesh, const Frame& frame, const Bloom& b) {
    for (int i = 0; i < b.petals; ++i) {
        AddPetal(mesh, frame, b, i);
    }
}

inline void AddBall(std::vector<Triangle>& mesh, Vec c, float r, Vec colour, MaterialId material,
                    int detail = 8) {
    AddPatch(mesh, detail * 2, detail, material, [=](float u, float v) {
        const float a = 2 * Pi * u, h = Pi * v;
        return Point{c + Vec{std::cos(a) * std::sin(h), std::cos(h), std::sin(a) * std::sin(h)} * r,
                     colour};
    });
}

/// The yellow heart of a daisy: florets on a dome.
inline void AddHeart(std::vector<Triangle>& mesh, const Frame& f, float radius, Vec inner,
                     Vec outer) {
    constexpr int Florets = 130;
    for (int i = 0; i < Florets; ++i) {
        const float r = std::sqrt((static_cast<float>(i) + 0.5f) / Florets);
        const float a = static_cast<float>(i) * GoldenAngle;
        const float h = 0.45f * radius * (1 - r * r) - (r < 0.3f ? 0.08f * radius : 0);
        AddBall(mesh, f.At(radius * r * std::cos(a), h + 0.04f, radius * r * std::sin(a)),
                radius * 0.095f, Mix(inner, outer, r), Seed, 5);
    }
}

/// A leaf from its foot along a curve that sinks by its own weight, folded at the midrib.
inline void AddLeaf(std::vector<Triangle>& mesh, Vec foot, Vec direction, float length, float width,
                    float sink, Vec colour) {
    const Vec d = Unit(direction);
    const Vec side = Unit(Cross(d, Vec{0, 1, 0.02f}));
    const Vec up = Cross(side, d);
    AddPatch(mesh, 16, 22, Leaf, [=](float u, float v) {
        const float x = 2 * u - 1;
        const float shape =
            std::pow(std::sin(Pi * std::pow(0.02f + 0.98f * v, 0.7f)) * 0.999f + 0.001f, 0.8f);
        const float edge = 0.02f * std::sin(34 * v) * std::fabs(x);
        const float ribs = 0.012f * std::sin(40 * v - 14 * std::fabs(x));
        const Vec pos = foot + d * (length * v) + Vec{0, -1, 0} * (sink * v * v * length) +
                        side * (width * shape * (x * (1 + edge))) +
                        up * (width * (0.35f * std::fabs(x) * shape + ribs));
        const float vein =
            0.35f * std::exp(-x * x * 300) + 0.1f * std::sin(40 * v - 14 * std::fabs(x));
        return Point{pos, Mix(colour, colour * 1.5f + Vec{0.03f, 0.04f, 0.01f},
                              std::clamp(vein, -0.5f, 1.0f))};
    });
}

inline void AddStem(std::vector<Triangle>& mesh, Vec a, Vec bend, Vec b, float r, Vec colour) {
    AddPatch(mesh, 8, 14, Leaf, [=](float u, float v) {
        const Vec p = a * ((1 - v) * (1 - v)) + bend * (2 * v * (1 - v)) + b * (v * v);
        const Frame f(p, (bend - a) * (1 - v) + (b - bend) * v);
        return Point{f.At(r * std::cos(2 * Pi * u), 0, r * std::sin(2 * Pi * u)), colour};
    });
}

/// A turned body: its radius at each height, 0 to 1 along `profile` (pairs of radius and height).
inline void AddTurned(std::vector<Triangle>& mesh, const Frame& f,
                      const std::vector<std::array<float, 2>>& profile, MaterialId material,
                      const std::function<Vec(float, float)>& colour) {
    const auto last = static_cast<int>(profile.size()) - 1;
    const auto at = [=](int i) {
        return profile[static_cast<std::size_t>(std::clamp(i, 0, last))];
    };
    AddPatch(mesh, 72, last * 10, material, [=](float u, float v) {
        const float s = std::min(v * static_cast<float>(last), static_cast<float>(last) - 1e-4f);
        const int i = static_cast<int>(s);
        const float w = s - static_cast<float>(i);
        std::array<float, 2> p{};
        for (std::size_t k = 0; k < 2; ++k) { // Catmull-Rom through the points
            const float a = at(i - 1)[k], b = at(i)[k], c = at(i + 1)[k], d = at(i + 2)[k];
            p[k] = b +
                   0.5f * w * (c - a + w * (2 * a - 5 * b + 4 * c - d + w * (3 * (b - c) + d - a)));
        }
        const float a = 2 * Pi * u;
        return Point{
            f.At(std::max(0.0f, p[0]) * std::cos(a), p[1], std::max(0.0f, p[0]) * std::sin(a)),
            colour(u, v)};
    });
}
