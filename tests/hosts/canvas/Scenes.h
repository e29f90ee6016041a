#pragma once

#include "host/HostCanvas.h"

#include <cmath>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace vantorel {

/// A picture of `scene` in pixels of 0xAARRGGBB, row by row from the top.
struct PaintedScene {
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> pixels;
};

struct Scene {
    std::string name;
    HostSize size;
    std::function<void(HostCanvas&)> paint;
};

/// Each paints on white, at `ratio` pixels of the device per point.
[[nodiscard]] PaintedScene paintWithQt(const Scene& scene, double ratio);
[[nodiscard]] PaintedScene paintWithCairo(const Scene& scene, double ratio);

}  // namespace vantorel
