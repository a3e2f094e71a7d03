// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

// Renders the still life by following paths of light:
//   g++ -O3 -march=native -std=c++20 -fopenmp still_life.cpp -o still_life
//   ./still_life WIDTH HEIGHT PATHS OUT.ppm

#include "scene.h"

#include <cstdio>
#include <cstdlib>

namespace {

struct Random {
    std::uint64_t state;
    float operator()() {
        state = state * 6364136223846793005ull + 1442695040888963407ull;
        const auto x = static_cast<std::uint32_t>(((state >> 18u) ^ state) >> 27u);
        const auto turn = static_cast<std::uint32_t>(state >> 59u);
        return static_cast<float>(((x >> turn) | (x << ((32 - turn) & 31))) >> 8) / 16777216.0f;
    }
};

/// A bright rectangle that shines to the side of its normal.
struct Light {
    Vec centre, a, b, normal, colour;
    float area;
    Light(Vec c, Vec target, float size, Vec radiance)
        : centre(c),
          normal(Unit(target - c)),
          colour(radiance),
          area(size * size) {
        const Frame f(c, normal);
        a = f.right * (size / 2);
        b = f.front * (size / 2);
    }
};

const std::array<Light, 2> Lights{
    Light({-4.6f, 5.2f, 3.8f}, {-0.2f, 1.6f, 0}, 2.6f, {31, 28, 23}),
    Light({4.4f, 4.6f, -0.6f}, {0.2f, 1.9f, 0}, 1.5f, {26, 21, 15}),
};

const std::array<Material, 8> Materials{
    Material{},
    Material{0.34f, 0, 0.35f},
    Material{0.22f, 0.05f, 0.28f},
    Material{0, 0.06f, 0.02f, 2},
    Material{0, 0.045f, 0.09f},
    Material{0, 0.035f, 0.16f, 1},
    Material{},
    Material{0.1f, 0.0f, 0.3f},
};

float Waves(Vec p) {
    return std::sin(p.x) + 0.5f * std::sin(2.1f * p.x + 1.7f * p.z) +
           0.25f * std::sin(4.3f * p.z + 3.1f * p.x);
}

Vec WoodColour(Vec p, Vec base) {
    const float plank = std::floor((p.z + 9) / 1.15f);
    const float x = p.x + 3.7f * plank;
    const float ring = std::sin(38 * (p.z + 0.05f * Waves({0.8f * x, 0, 2 * p.z})) + 2 * plank);
    const float fine =
        std::sin(260 * p.z + 9 * Waves({1.2f * x, 0, p.z})) * std::sin(5 * x + 40 * p.z);
    const float gap = std::fabs((p.z + 9) / 1.15f - plank - 0.5f) > 0.492f ? 0.25f : 1.0f;
    const float tone = 0.85f + 0.3f * Noise(static_cast<std::uint32_t>(plank), 3);
    return base * (gap * tone * (1 + 0.20f * ring + 0.09f * fine));
}

/// A light band with a row of petals painted round the belly of the vase.
Vec GlazeColour(Vec p, Vec base) {
    const float around = std::atan2(p.z, p.x - Neck.x) / (2 * Pi) * 14;
    const float x = around - std::floor(around) - 0.5f;
    const Vec cream{0.74f, 0.72f, 0.62f};
    const float petal = std::fabs(x) / 0.36f + std::pow(std::fabs(p.y - 0.66f) / 0.17f, 2.0f);
    const bool lines = std::fabs(p.y - 0.43f) < 0.012f || std::fabs(p.y - 0.89f) < 0.012f ||
                       std::fabs(p.y - 1.30f) < 0.01f;
    const bool dots = std::hypot(x * 0.28f + (x < 0 ? 0.14f : -0.14f), p.y - 0.66f) < 0.022f;
    return petal < 1 || lines || dots ? cream : base;
}

class Tracer {
public:
    Tracer() { m_bvh.Build(BuildScene()); }

    Vec Radiance(Vec o, Vec d, Random& random) const {
        Vec sum, weight{1, 1, 1};
        bool mirrored = false;
        for (int bounce = 0; bounce < 6; ++bounce) {
            Hit hit;
            const bool found = m_bvh.Trace(o, d, hit, false);
            if (mirrored && bounce == 1) { // later ones are rare and bright: noise
                sum = sum + weight * LightOnTheWay(o, d, hit.t);
            }
            if (!found) {
                return sum + weight * Surroundings(d);
            }
            const Vec light = Bounce(hit, o, d, weight, mirrored, random);
            sum = sum + (bounce == 0 ? light : Limited(light));
            if (bounce > 1) {
                const float keep = std::min(0.95f, std::max({weight.x, weight.y, weight.z}));
                if (random() > keep) {
                    break;
                }
                weight = weight * (1 / keep);
            }
        }
        return sum;
    }

private:
    static Vec Limited(Vec c) {
        return {std::min(c.x, 5.0f), std::min(c.y, 5.0f), std::min(c.z, 5.0f)};
    }

    static Vec Surroundings(Vec d) {
        return Mix({0.20f, 0.18f, 0.17f}, {0.42f, 0.47f, 0.54f}, Step(-0.3f, 0.9f, d.y)) * 0.42f;
    }

    static Vec LightOnTheWay(Vec o, Vec d, float limit) {
        for (const Light& l : Lights) {
            const float down = Dot(d, l.normal);
            const float t = Dot(l.centre - o, l.normal) / down;
            const Vec at = o + d * t - l.centre;
            if (down < 0 && t > 0 && t < limit && std::fabs(Dot(at, l.a)) < Dot(l.a, l.a) &&
                std::fabs(Dot(at, l.b)) < Dot(l.b, l.b)) {
                return l.colour * 0.35f; // a full highlight would be a hard white patch
            }
        }
        return {};
    }

    Vec FromLights(Vec p, Vec n, float through, Random& random) const {
        const bool first = random() < 0.65f;
        const Light& l = Lights[first ? 0 : 1];
        const Vec to = l.centre + l.a * (2 * random() - 1) + l.b * (2 * random() - 1) - p;
        const float far = std::sqrt(Dot(to, to));
        const Vec d = to * (1 / far);
        const float cosine = Dot(n, d);
        const float share = cosine > 0 ? 1 - through : through;
        const float down = -Dot(d, l.normal);
        Hit hit;
        hit.t = far * 0.999f;
        if (share <= 0 || down <= 0 || m_bvh.Trace(p + d * 1e-3f, d, hit, true)) {
            return {};
        }
        const float chance = first ? 0.65f : 0.35f;
        return l.colour * (share * std::fabs(cosine) * down * l.area / (far * far * Pi * chance));
    }

    static Vec AroundNormal(Vec n, Random& random) {
        const float a = 2 * Pi * random(), r2 = random(), r = std::sqrt(r2);
        return Frame({}, n).At(r * std::cos(a), std::sqrt(1 - r2), r * std::sin(a));
    }

    /// Light that this hit sends straight on; moves the ray and its weight to the next leg.
    Vec Bounce(const Hit& hit, Vec& o, Vec& d, Vec& weight, bool& mirrored, Random& random) const {
        const Triangle& t = *hit.triangle;
        const Material& m = Materials[static_cast<std::size_t>(t.material)];
        const float w = 1 - hit.u - hit.v;
        o = o + d * hit.t;
        Vec n = Unit(t.normal[0] * w + t.normal[1] * hit.u + t.normal[2] * hit.v);
        if (Dot(n, d) > 0) {
            n = n * -1.0f;
        }
        Vec colour = t.colour[0] * w + t.colour[1] * hit.u + t.colour[2] * hit.v;
        colour = m.pattern == 1 ? WoodColour(o, colour)
                                : (m.pattern == 2 ? GlazeColour(o, colour) : colour);
        const float grazing = 1 + Dot(n, d);
        const float mirror = m.coat > 0
                                 ? m.coat + (1 - m.coat) * std::pow(std::max(0.0f, grazing), 5.0f) *
                                                (1 - 2 * m.rough)
                                 : 0;
        mirrored = random() < mirror;
        if (mirrored) {
            const Vec fuzz = Unit(Vec{random() - 0.5f, random() - 0.5f, random() - 0.5f}) *
                             (m.rough * std::sqrt(random()));
            d = Unit(d - n * (2 * Dot(n, d)) + fuzz);
            o = o + n * 1e-3f;
            return {};
        }
        weight = weight * colour;
        const Vec light = weight * FromLights(o, n, m.through, random);
        const Vec side = random() < m.through ? n * -1.0f : n;
        d = AroundNormal(side, random);
        o = o + side * 1e-3f;
        return light;
    }

    Bvh m_bvh;
};

/// A lens with an open aperture, so that what is far from the focus goes soft.
struct Camera {
    Vec eye{0.15f, 2.45f, 8.3f};
    Vec target{0.12f, 1.60f, 0.2f};
    float field = 0.25f; ///< tangent of half the height's angle
    float aperture = 0.085f;
    float focus = 7.55f;

    void Ray(float x, float y, Random& random, Vec& o, Vec& d) const {
        const Vec front = Unit(target - eye);
        const Vec right = Unit(Cross(front, {0, 1, 0}));
        const Vec up = Cross(right, front);
        const float a = 2 * Pi * random(), r = aperture * std::sqrt(random());
        const Vec at = eye + (front + right * (x * field) + up * (y * field)) * focus;
        o = eye + right * (r * std::cos(a)) + up * (r * std::sin(a));
        d = Unit(at - o);
    }
};

/// Soft shoulder for the highlights, a little contrast, then the sRGB curve.
unsigned char Developed(float c) {
    c *= 1.12f;
    const float film = c * (2.51f * c + 0.03f) / (c * (2.43f * c + 0.59f) + 0.14f);
    const float v = std::clamp(film, 0.0f, 1.0f);
    const float s = v <= 0.0031308f ? 12.92f * v : 1.055f * std::pow(v, 1 / 2.4f) - 0.055f;
    return static_cast<unsigned char>(std::lround(255 * s));
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 5) {
        std::fprintf(stderr, "usage: still_life WIDTH HEIGHT PATHS OUT.ppm\n");
        return 2;
    }
    const int width = std::atoi(argv[1]), height = std::atoi(argv[2]), paths = std::atoi(argv[3]);
    const Tracer tracer;
    const Camera camera;
    std::vector<unsigned char> pixels(static_cast<std::size_t>(width) *
                                      static_cast<std::size_t>(height) * 3);
#pragma omp parallel for schedule(dynamic, 2)
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            Random random{static_cast<std::uint64_t>(y * width + x) * 0x9E3779B97F4A7C15ull + 7};
            Vec sum;
            for (int i = 0; i < paths; ++i) {
                const float px =
                    static_cast<float>(x) + random() - 0.5f * static_cast<float>(width);
                const float py =
                    0.5f * static_cast<float>(height) - static_cast<float>(y) - random();
                const float half = 0.5f * static_cast<float>(height);
                Vec o, d;
                camera.Ray(px / half, py / half, random, o, d);
                const Vec c = tracer.Radiance(o, d, random);
                sum = sum + Vec{std::min(c.x, 6.0f), std::min(c.y, 6.0f), std::min(c.z, 6.0f)};
            }
            sum = sum * (1.0f / static_cast<float>(paths));
            unsigned char* p = &pixels[static_cast<std::size_t>(y * width + x) * 3];
            p[0] = Developed(sum.x);
            p[1] = Developed(sum.y);
            p[2] = Developed(sum.z);
        }
    }
    std::FILE* out = std::fopen(argv[4], "wb");
    if (out == nullptr) {
        std::perror(argv[4]);
        return 1;
    }
    std::fprintf(out, "P6 %d %d 255\n", width, height);
    const bool whole = std::fwrite(pixels.data(), 1, pixels.size(), out) == pixels.size();
    return std::fclose(out) == 0 && whole ? 0 : 1;
}
