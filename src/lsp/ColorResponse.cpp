#include "lsp/ColorResponse.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstring>
#include <string_view>

namespace vantorel {
namespace {

/// A part of the answer that fits into a fixed place, so that it is appended at once.
// NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init): see _bytes.
class ShortText {
public:
    void add(std::string_view text)
    {
        std::memcpy(_end, text.data(), text.size());
        _end += text.size();
    }
    void add(std::size_t number)
    {
        _end = std::to_chars(_end, _bytes.data() + _bytes.size(), number).ptr;
    }
    void add(Position position)
    {
        add("{\"line\":");
        add(position.line);
        add(",\"character\":");
        add(position.character);
        add("}");
    }
    /// Adds a fraction of 0..1 with five decimals, which are enough to tell bytes apart and to
    /// compute with the result.
    void addFraction(double fraction)
    {
        constexpr unsigned unit = 100000;
        const double inside = fraction > 0 ? std::min(fraction, 1.0) : 0;
        auto rest = static_cast<unsigned>(std::lround(inside * unit));
        if (rest == 0 || rest == unit) {
            *_end++ = rest == 0 ? '0' : '1';
            return;
        }
        add("0.00000");
        for (char* digit = _end - 1; rest > 0; --digit, rest /= 10)
            *digit = static_cast<char>('0' + rest % 10);
    }

    [[nodiscard]] std::string_view text() const
    {
        return {_bytes.data(), static_cast<std::size_t>(_end - _bytes.data())};
    }

private:
    /// More than four numbers of 64 bits and the words around them.
    std::array<char, 320> _bytes;  // NOLINT(cppcoreguidelines-pro-type-member-init): filled later.
    char* _end = _bytes.data();
};

}  // namespace

void appendColors(std::string& json, const OpenDocument& document)
{
    PositionWalker begins(document.text(), document.lines(), document.encoding());
    // Of its own, because colours can be nested.
    PositionWalker ends(document.text(), document.lines(), document.encoding());
    std::size_t count = 0;
    document.colors().forEachColor([&](const DocumentColor&, TextRange) { ++count; });
    constexpr std::size_t usualLength = 160;
    json.reserve(json.size() + count * usualLength);
    json += '[';
    bool isFirst = true;
    document.colors().forEachColor([&](const DocumentColor& color, TextRange range) {
        ShortText text;
        text.add(isFirst ? "{\"range\":{\"start\":" : ",{\"range\":{\"start\":");
        isFirst = false;
        text.add(begins.to(range.begin));
        text.add(",\"end\":");
        text.add(ends.to(range.end));
        const auto rgb = color.color.calibratedRGB().value_or(HostColor::Components{});
        text.add("},\"color\":{\"red\":");
        text.addFraction(rgb.red);
        text.add(",\"green\":");
        text.addFraction(rgb.green);
        text.add(",\"blue\":");
        text.addFraction(rgb.blue);
        text.add(",\"alpha\":");
        text.addFraction(rgb.alpha);
        text.add("}}");
        json += text.text();
    });
    json += ']';
}

}  // namespace vantorel
