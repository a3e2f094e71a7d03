// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plants.h"

inline Bloom Dahlia(Vec deep, Vec mid, Vec rim, float size, std::uint32_t seed) {
    Bloom b;
    b.petals = 120;
    b.lean[0] = 0.12f;
    b.lean[1] = 1.5f;
    b.curl[0] = -0.75f;
    b.curl[1] = 0.55f;
    b.length[0] = 0.24f;
    b.length[1] = 0.66f;
    b.width = 0.46f;
    b.cup = 0.75f;
    b.deep = deep;
    b.mid = mid;
    b.rim = rim;
    b.size = size;
    b.seed = seed;
    return b;
}

inline Bloom Daisy(float size, std::uint32_t seed) {
    Bloom b;
    b.petals = 30;
    b.lean[0] = 1.30f;
    b.lean[1] = 1.55f;
    b.curl[0] = 0.05f;
    b.curl[1] = 0.5f;
    b.length[0] = 0.62f;
    b.length[1] = 0.68f;
    b.foot[0] = 0.10f;
    b.foot[1] = 0.12f;
    b.width = 0.26f;
    b.cup = 0.35f;
    b.tip = 0.4f;
    b.deep = {0.72f, 0.72f, 0.55f};
    b.mid = {0.86f, 0.86f, 0.80f};
    b.rim = {0.90f, 0.90f, 0.87f};
    b.size = size;
    b.seed = seed;
    return b;
}

/// Where the stems meet in the neck of the vase.
constexpr Vec Neck{-0.25f, 1.42f, 0};

inline void AddStalk(std::vector<Triangle>& mesh, Vec head, Vec axis) {
    AddStem(mesh, Neck + Vec{0.06f * head.x, -0.5f, 0.06f * head.z}, head - Unit(axis) * 0.55f,
            head, 0.024f, {0.10f, 0.20f, 0.05f});
}

inline void AddDahlia(std::vector<Triangle>& mesh, Vec head, Vec axis, const Bloom& b) {
    AddStalk(mesh, head, axis);
    AddBloom(mesh, Frame(head, axis, 0.7f * static_cast<float>(b.seed)), b);
}

inline void AddDaisy(std::vector<Triangle>& mesh, Vec head, Vec axis, float size,
                     std::uint32_t seed, bool cut = false) {
    if (!cut) {
        AddStalk(mesh, head, axis);
    }
    const Frame f(head, axis, static_cast<float>(seed));
    AddBloom(mesh, f, Daisy(size, seed));
    AddHeart(mesh, f, 0.17f * size, {0.62f, 0.30f, 0.015f}, {0.88f, 0.52f, 0.03f});
}

inline void AddFlowers(std::vector<Triangle>& mesh) {
    const Bloom coral =
        Dahlia({0.48f, 0.015f, 0.03f}, {0.85f, 0.10f, 0.07f}, {0.95f, 0.34f, 0.20f}, 1.02f, 3);
    const Bloom plum =
        Dahlia({0.16f, 0.006f, 0.07f}, {0.42f, 0.02f, 0.20f}, {0.72f, 0.12f, 0.42f}, 0.92f, 5);
    const Bloom sun =
        Dahlia({0.80f, 0.25f, 0.01f}, {0.92f, 0.48f, 0.03f}, {0.96f, 0.72f, 0.18f}, 0.90f, 8);
    const Bloom blush =
        Dahlia({0.75f, 0.20f, 0.22f}, {0.88f, 0.48f, 0.42f}, {0.94f, 0.78f, 0.68f}, 0.82f, 12);
    AddDahlia(mesh, {-0.30f, 2.08f, 0.62f}, {-0.10f, 0.42f, 1.0f}, coral);
    AddDahlia(mesh, {0.62f, 2.26f, 0.34f}, {0.62f, 0.55f, 0.85f}, plum);
    AddDahlia(mesh, {-1.08f, 2.32f, 0.26f}, {-0.70f, 0.62f, 0.80f}, sun);
    AddDahlia(mesh, {0.02f, 2.86f, 0.10f}, {0.10f, 0.85f, 0.75f}, blush);
    AddDaisy(mesh, {-0.66f, 2.92f, 0.18f}, {-0.35f, 0.65f, 0.9f}, 0.62f, 2);
    AddDaisy(mesh, {0.70f, 2.88f, 0.06f}, {0.45f, 0.7f, 0.8f}, 0.58f, 4);
    AddDaisy(mesh, {0.38f, 1.78f, 0.66f}, {0.35f, 0.12f, 1.0f}, 0.54f, 6);
    AddDaisy(mesh, {-0.98f, 1.72f, 0.48f}, {-0.55f, 0.15f, 0.9f}, 0.50f, 9);
    AddDaisy(mesh, {1.22f, 2.62f, -0.15f}, {0.8f, 0.6f, 0.5f}, 0.46f, 14);
}

inline void AddFoliage(std::vector<Triangle>& mesh) {
    const Vec dark{0.07f, 0.18f, 0.05f}, light{0.16f, 0.31f, 0.07f}, blue{0.12f, 0.26f, 0.15f};
    const auto leaf = [&](Vec foot, Vec dir, float length, float width, float sink, Vec colour) {
        AddLeaf(mesh, foot, dir, length * 1.05f, width * 1.35f, sink, colour);
    };
    leaf(Neck + Vec{-0.1f, 0.2f, 0.2f}, {-0.9f, 0.25f, 0.4f}, 1.15f, 0.21f, 0.45f, light);
    leaf(Neck + Vec{0.1f, 0.2f, 0.2f}, {1.0f, 0.35f, 0.35f}, 1.25f, 0.22f, 0.45f, dark);
    leaf(Neck + Vec{0, 0.15f, 0.25f}, {0.35f, 0.1f, 0.9f}, 0.85f, 0.19f, 0.5f, light);
    leaf(Neck + Vec{0, 0.15f, 0.2f}, {-0.45f, 0.1f, 0.9f}, 0.8f, 0.18f, 0.6f, blue);
    leaf({-0.8f, 2.2f, -0.1f}, {-0.9f, 0.75f, 0.0f}, 1.1f, 0.20f, 0.30f, dark);
    leaf({0.6f, 2.2f, -0.1f}, {0.95f, 0.35f, 0.1f}, 1.15f, 0.20f, 0.35f, blue);
    leaf({0.3f, 2.5f, -0.2f}, {0.45f, 1.0f, 0.0f}, 1.05f, 0.17f, 0.15f, light);
    leaf({-0.4f, 2.6f, -0.2f}, {-0.30f, 1.0f, 0.1f}, 1.00f, 0.17f, 0.15f, dark);
    leaf({-0.1f, 2.5f, -0.3f}, {0.05f, 1.0f, -0.1f}, 1.08f, 0.15f, 0.10f, blue);
    leaf({0.45f, 1.95f, 0.2f}, {0.95f, 0.25f, 0.45f}, 1.15f, 0.20f, 0.5f, light);
    leaf({-0.6f, 1.85f, 0.2f}, {-1.0f, 0.15f, 0.45f}, 1.05f, 0.19f, 0.4f, blue);
    leaf({-0.6f, 2.45f, 0.1f}, {-0.75f, 0.70f, 0.35f}, 1.10f, 0.17f, 0.2f, light);
    leaf({0.75f, 2.45f, 0.0f}, {0.75f, 0.75f, 0.3f}, 1.05f, 0.17f, 0.2f, dark);
    leaf({0.32f, 2.4f, 0.2f}, {0.25f, 0.9f, 0.5f}, 0.75f, 0.15f, 0.1f, light);
}

inline void AddTable(std::vector<Triangle>& mesh) {
    AddPatch(mesh, 1, 1, Wood, [](float u, float v) {
        return Point{{-9 + 18 * u, 0, 2.9f - 5.6f * v}, {0.36f, 0.17f, 0.07f}};
    });
    AddPatch(mesh, 1, 1, Wood, [](float u, float v) {
        return Point{{-9 + 18 * u, -0.5f * (1 - v), 2.9f}, {0.30f, 0.14f, 0.06f}};
    });
    AddPatch(mesh, 12, 12, Wall, [](float u, float v) {
        const Vec base =
            Mix({0.020f, 0.045f, 0.055f}, {0.045f, 0.095f, 0.105f}, Step(0.1f, 0.8f, v));
        return Point{{-12 + 24 * u, -2 + 9 * v, -2.7f}, base};
    });
}

inline void AddFruit(std::vector<Triangle>& mesh) {
    const auto pear = [&](Vec at, Vec axis, Vec sunny, Vec shade, std::uint32_t seed) {
        const Frame f(at, axis, static_cast<float>(seed));
        AddTurned(mesh, f,
                  {{0.0f, 0.05f},
                   {0.16f, 0.0f},
                   {0.37f, 0.15f},
                   {0.44f, 0.38f},
                   {0.36f, 0.66f},
                   {0.22f, 0.90f},
                   {0.16f, 1.06f},
                   {0.09f, 1.13f},
                   {0.0f, 1.10f}},
                  Fruit, [=](float u, float v) {
                      const float spot = Noise(static_cast<std::uint32_t>(u * 72),
                                               static_cast<std::uint32_t>(v * 80) + seed);
                      const float blush =
                          Step(-0.2f, 0.9f, std::sin(2 * Pi * u + static_cast<float>(seed)));
                      return Mix(shade, sunny, blush) * (0.93f + 0.12f * spot);
                  });
        AddStem(mesh, f.At(0, 1.08f, 0), f.At(0.02f, 1.25f, 0), f.At(0.09f, 1.34f, 0.02f), 0.025f,
                {0.10f, 0.05f, 0.02f});
    };
    pear({1.32f, 0.0f, 0.35f}, {0.06f, 1, 0.02f}, {0.70f, 0.34f, 0.06f}, {0.48f, 0.50f, 0.08f}, 2);
    pear({1.92f, 0.36f, 1.02f}, {-0.95f, 0.10f, 0.45f}, {0.66f, 0.16f, 0.05f},
         {0.58f, 0.48f, 0.09f}, 5);
    const auto berry = [&](Vec at, float r, Vec colour) {
        AddBall(mesh, at, r, colour, Fruit, 20);
    };
    berry({-1.35f, 0.17f, 1.05f}, 0.17f, {0.42f, 0.012f, 0.02f});
    berry({-1.02f, 0.165f, 1.22f}, 0.165f, {0.50f, 0.02f, 0.025f});
    berry({-1.22f, 0.16f, 1.42f}, 0.16f, {0.36f, 0.01f, 0.02f});
    const Vec knot{-0.95f, 0.85f, 0.85f}, green{0.16f, 0.26f, 0.06f};
    AddStem(mesh, {-1.35f, 0.32f, 1.05f}, {-1.30f, 0.7f, 0.95f}, knot, 0.013f, green);
    AddStem(mesh, {-1.02f, 0.31f, 1.22f}, {-0.98f, 0.6f, 1.10f}, knot, 0.013f, green);
    AddStem(mesh, {-1.22f, 0.30f, 1.42f}, {-1.15f, 0.65f, 1.25f}, knot, 0.013f, green);
}

inline void AddVase(std::vector<Triangle>& mesh) {
    AddTurned(mesh, Frame({Neck.x, 0, 0}, {0, 1, 0}),
              {{0.0f, 0.0f},
               {0.34f, 0.0f},
               {0.40f, 0.06f},
               {0.58f, 0.36f},
               {0.64f, 0.66f},
               {0.52f, 1.00f},
               {0.34f, 1.26f},
               {0.31f, 1.40f},
               {0.38f, 1.52f},
               {0.36f, 1.53f},
               {0.28f, 1.40f},
               {0.30f, 1.2f}},
              Glazed, [](float, float) {
                  return Vec{0.06f, 0.16f, 0.36f};
              });
}

inline std::vector<Triangle> BuildScene() {
    std::vector<Triangle> mesh;
    AddTable(mesh);
    AddVase(mesh);
    AddFlowers(mesh);
    AddFoliage(mesh);
    AddFruit(mesh);
    AddDaisy(mesh, {0.50f, 0.13f, 1.22f}, {0.15f, 0.78f, 0.78f}, 0.48f, 21, true);
    return mesh;
}
