#pragma once

#include "host/HostCanvas.h"

#include <algorithm>
#include <cmath>
#include <variant>
#include <vector>

namespace vantorel {

struct FillOperation {
    HostBezierPath path;
    HostColor color;
};

struct StrokeOperation {
    HostBezierPath path;  ///< including the line width of the stroke
    HostColor color;
};

struct TextOperation {
    HostText text;
    HostPoint at;
};

struct PixelsOperation {
    HostPixels pixels;
    HostRect rect;
};

using PaintOperation = std::variant<FillOperation, StrokeOperation, TextOperation, PixelsOperation>;

/// Records the paint operations in their order. A point is one pixel of the device, and the theme
/// is black on white.
class RecordingCanvas final : public HostCanvas {
public:
    void fill(const HostBezierPath& path, const HostColor& color) override
    {
        _operations.emplace_back(FillOperation{path, color});
    }
    void stroke(const HostBezierPath& path, const HostColor& color) override
    {
        _operations.emplace_back(StrokeOperation{path, color});
    }
    void drawText(const HostText& text, HostPoint at) override
    {
        _operations.emplace_back(TextOperation{text, at});
    }
    void drawPixels(const HostPixels& pixels, HostRect rect) override
    {
        const HostPixelSize size = pixelSizeOf(rect);
        if (pixels.isEmpty() || size.width == 0 || size.height == 0) return;
        _operations.emplace_back(PixelsOperation{pixels, rect});
    }
    [[nodiscard]] HostPixelSize pixelSizeOf(HostRect rect) const override
    {
        const auto pixels = [](double from, double to) {
            return std::max(0, static_cast<int>(std::lround(to) - std::lround(from)));
        };
        return {pixels(rect.x, rect.maxX()), pixels(rect.y, rect.maxY())};
    }
    [[nodiscard]] HostColor themeColor(HostThemeColor kind) const override
    {
        switch (kind) {
            case HostThemeColor::window:
            case HostThemeColor::base:
                return HostColor::whiteColor();
            default:
                return HostColor::blackColor();
        }
    }

    [[nodiscard]] const std::vector<PaintOperation>& operations() const { return _operations; }

private:
    std::vector<PaintOperation> _operations;
};

}  // namespace vantorel
