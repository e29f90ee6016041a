#pragma once

#include "host/HostCanvas.h"

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

using PaintOperation = std::variant<FillOperation, StrokeOperation, TextOperation>;

/// Records the paint operations in their order.
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

    [[nodiscard]] const std::vector<PaintOperation>& operations() const { return _operations; }

private:
    std::vector<PaintOperation> _operations;
};

}  // namespace vantorel
