// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <limits>
#include <vector>

/// A point, a direction or a linear colour.
struct Vec {
    float x = 0, y = 0, z = 0;
};

inline Vec operator+(Vec a, Vec b) {
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}
inline Vec operator-(Vec a, Vec b) {
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}
inline Vec operator*(Vec a, Vec b) {
    return {a.x * b.x, a.y * b.y, a.z * b.z};
}
inline Vec operator*(Vec a, float s) {
    return {a.x * s, a.y * s, a.z * s};
}
inline Vec operator*(float s, Vec a) {
    return a * s;
}
inline float Dot(Vec a, Vec b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}
inline Vec Cross(Vec a, Vec b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
inline Vec Unit(Vec a) {
    return a * (1.0f / std::sqrt(std::max(1e-20f, Dot(a, a))));
}
inline Vec Mix(Vec a, Vec b, float t) {
    return a * (1 - t) + b * t;
}
inline float Step(float a, float b, float x) {
    const float t = std::clamp((x - a) / (b - a), 0.0f, 1.0f);
    return t * t * (3 - 2 * t);
}

/// A frame with `up` as its second axis.
struct Frame {
    Vec o, right, up, front;
    Frame(Vec origin, Vec axis, float turn = 0) : o(origin), up(Unit(axis)) {
        const Vec help = std::fabs(up.y) < 0.9f ? Vec{0, 1, 0} : Vec{1, 0, 0};
        const Vec a = Unit(Cross(help, up));
        const Vec b = Cross(up, a);
        right = a * std::cos(turn) + b * std::sin(turn);
        front = Cross(right, up);
    }
    [[nodiscard]] Vec At(float x, float y, float z) const {
        return o + right * x + up * y + front * z;
    }
};

/// How a surface answers light: a diffuse body, a share of it let through, a clear coat above.
struct Material {
    float through = 0;
    float coat = 0;
    float rough = 0.1f;
    int pattern = 0; ///< 0 plain, 1 wood, 2 glaze
};

struct Triangle {
    Vec a, e1, e2;
    std::array<Vec, 3> normal, colour;
    int material = 0;
};

struct Hit {
    float t = std::numeric_limits<float>::max();
    float u = 0, v = 0;
    const Triangle* triangle = nullptr;
};

/// Splits of space over the triangles, by surface area, so that a ray meets few of them.
class Bvh {
public:
    void Build(std::vector<Triangle> triangles) {
        m_triangles = std::move(triangles);
        m_nodes.reserve(m_triangles.size() * 2);
        m_nodes.emplace_back();
        Split(0, 0, m_triangles.size());
    }

    /// The nearest hit beyond 0 and before `hit.t`; with `any` the first one found.
    bool Trace(Vec o, Vec d, Hit& hit, bool any) const {
        const Vec inv{1 / d.x, 1 / d.y, 1 / d.z};
        std::array<std::uint32_t, 64> stack{};
        int depth = 0;
        stack[static_cast<std::size_t>(depth++)] = 0;
        bool found = false;
        while (depth > 0) {
            const Node& n = m_nodes[stack[static_cast<std::size_t>(--depth)]];
            if (!n.box.Meets(o, inv, hit.t)) {
                continue;
            }
            if (n.count == 0) {
                const bool swap = (&d.x)[n.axis] < 0;
                stack[static_cast<std::size_t>(depth++)] = swap ? n.first : n.first + 1;
                stack[static_cast<std::size_t>(depth++)] = swap ? n.first + 1 : n.first;
                continue;
            }
            for (std::uint32_t i = n.first; i < n.first + n.count; ++i) {
                found = Meet(m_triangles[i], o, d, hit) || found;
                if (found && any) {
                    return true;
                }
            }
        }
        return found;
    }

    [[nodiscard]] std::size_t Size() const { return m_triangles.size(); }

private:
    struct Box {
        Vec lo{1e30f, 1e30f, 1e30f}, hi{-1e30f, -1e30f, -1e30f};
        void Add(Vec p) {
            lo = {std::min(lo.x, p.x), std::min(lo.y, p.y), std::min(lo.z, p.z)};
            hi = {std::max(hi.x, p.x), std::max(hi.y, p.y), std::max(hi.z, p.z)};
        }
        void Add(const Triangle& t) {
            Add(t.a);
            Add(t.a + t.e1);
            Add(t.a + t.e2);
        }
        void Add(const Box& b) {
            Add(b.lo);
            Add(b.hi);
        }
        [[nodiscard]] float Area() const {
            const Vec d = hi - lo;
            return d.x < 0 ? 0 : d.x * d.y + d.y * d.z + d.z * d.x;
        }
        [[nodiscard]] bool Meets(Vec o, Vec inv, float limit) const {
            const Vec a = (lo - o) * inv;
            const Vec b = (hi - o) * inv;
            const float near =
                std::max({std::min(a.x, b.x), std::min(a.y, b.y), std::min(a.z, b.z), 0.0f});
            const float far =
                std::min({std::max(a.x, b.x), std::max(a.y, b.y), std::max(a.z, b.z), limit});
            return near <= far;
        }
    };
    struct Node {
        Box box;
        std::uint32_t first = 0;
        std::uint32_t count = 0; ///< 0: an inner node, children at first and first + 1
        int axis = 0;
    };
    static constexpr int Bins = 16;

    static bool Meet(const Triangle& t, Vec o, Vec d, Hit& hit) {
        const Vec p = Cross(d, t.e2);
        const float det = Dot(t.e1, p);
        if (std::fabs(det) < 1e-12f) {
            return false;
        }
        const float inv = 1 / det;
        const Vec s = o - t.a;
        const float u = Dot(s, p) * inv;
        const Vec q = Cross(s, t.e1);
        const float v = Dot(d, q) * inv;
        const float far = Dot(t.e2, q) * inv;
        if (u < 0 || v < 0 || u + v > 1 || far < 1e-4f || far >= hit.t) {
            return false;
        }
        hit = {far, u, v, &t};
        return true;
    }

    static float Middle(const Triangle& t, int axis) {
        const Vec m = t.a + (t.e1 + t.e2) * (1.0f / 3);
        return (&m.x)[axis];
    }

    /// The best of the bins' borders on the longest axis; `from` if nothing separates.
    std::size_t Cut(const Node& n, std::size_t from, std::size_t to, int axis) {
        const float lo = (&n.box.lo.x)[axis];
        const float scale = Bins / std::max(1e-9f, (&n.box.hi.x)[axis] - lo);
        std::array<Box, Bins> boxes{};
        std::array<int, Bins> counts{};
        const auto bin = [&](const Triangle& t) {
            return std::clamp(static_cast<int>((Middle(t, axis) - lo) * scale), 0, Bins - 1);
        };
        for (std::size_t i = from; i < to; ++i) {
            const auto b = static_cast<std::size_t>(bin(m_triangles[i]));
            boxes[b].Add(m_triangles[i]);
            ++counts[b];
        }
        float best = 1e30f;
        int cut = -1;
        for (int c = 1; c < Bins; ++c) {
            Box left, right;
            int nl = 0, nr = 0;
            for (int b = 0; b < Bins; ++b) {
                const auto i = static_cast<std::size_t>(b);
                if (counts[i] > 0) {
                    (b < c ? left : right).Add(boxes[i]);
                    (b < c ? nl : nr) += counts[i];
                }
            }
            const float cost =
                left.Area() * static_cast<float>(nl) + right.Area() * static_cast<float>(nr);
            if (nl > 0 && nr > 0 && cost < best) {
                best = cost;
                cut = c;
            }
        }
        if (cut < 0) {
            return from;
        }
        const auto first = m_triangles.begin();
        const auto at = std::partition(first + static_cast<std::ptrdiff_t>(from),
                                       first + static_cast<std::ptrdiff_t>(to),
                                       [&](const Triangle& t) { return bin(t) < cut; });
        return static_cast<std::size_t>(at - first);
    }

    void Split(std::size_t node, std::size_t from, std::size_t to) {
        Box box;
        for (std::size_t i = from; i < to; ++i) {
            box.Add(m_triangles[i]);
        }
        const Vec d = box.hi - box.lo;
        const int axis = d.x > d.y && d.x > d.z ? 0 : (d.y > d.z ? 1 : 2);
        m_nodes[node] = {box, static_cast<std::uint32_t>(from),
                         static_cast<std::uint32_t>(to - from), axis};
        if (to - from <= 4) {
            return;
        }
        const std::size_t at = Cut(m_nodes[node], from, to, axis);
        if (at == from) {
            return;
        }
        const std::size_t child = m_nodes.size();
        m_nodes.resize(child + 2);
        m_nodes[node].first = static_cast<std::uint32_t>(child);
        m_nodes[node].count = 0;
        Split(child, from, at);
        Split(child + 1, at, to);
    }

    std::vector<Triangle> m_triangles;
    std::vector<Node> m_nodes;
};
