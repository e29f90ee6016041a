#include "colorlists/PaletteScan.h"

#include "text/ASCII.h"
#include "text/Trimming.h"
#include "text/Unicode.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>

namespace vantorel {
namespace {

/// The texts that have been added. Different texts may be taken for the same.
class TextsSeen {
public:
    explicit TextsSeen(std::size_t mostTexts) : _slots(std::bit_ceil(mostTexts * 2 + 2)) {}

    [[nodiscard]] bool add(std::string_view text)
    {
        const std::uint64_t hash = hashOf(text) | 1;
        std::size_t slot = hash >> 20;
        for (;; ++slot) {
            std::uint64_t& held = _slots[slot & (_slots.size() - 1)];
            if (held == hash) return false;
            if (held != 0) continue;
            held = hash;
            return true;
        }
    }

private:
    static std::uint64_t wordAt(const char* place)
    {
        std::uint64_t word = 0;
        std::memcpy(&word, place, sizeof word);
        return word;
    }
    static std::uint64_t hashOf(std::string_view text)
    {
        constexpr std::uint64_t factor = 0x9E3779B97F4A7C15;
        std::uint64_t hash = text.size() * factor;
        const auto add = [&](std::uint64_t word) { hash = (std::rotl(hash, 23) ^ word) * factor; };
        if (text.size() < sizeof hash) {
            std::uint64_t word = 0;
            for (const char c : text)
                word = word << 8 | static_cast<unsigned char>(c);
            add(word);
        } else {
            const char* const last = text.data() + text.size() - sizeof hash;
            for (const char* place = text.data(); place < last; place += sizeof hash)
                add(wordAt(place));
            add(wordAt(last));
        }
        return hash ^ hash >> 29;
    }

    std::vector<std::uint64_t> _slots;
};

/// Reads a number 0..255 of at most three digits between blanks, and moves `place` after it.
/// Returns -1 if there is none. `end` is that of the line.
int takeByte(const char*& place, const char* end)
{
    while (place != end && isBlank(*place))
        ++place;
    const char* const begin = place;
    int number = 0;
    for (; place != end && isDigit(*place) && place - begin < 4; ++place)
        number = number * 10 + (*place - '0');
    const bool isByte = place != begin && place - begin < 4 && number <= 255;
    return isByte && (place == end || isBlank(*place)) ? number : -1;
}

/// The number of line feeds.
std::size_t lineCount(std::string_view bytes)
{
    std::size_t count = 0;
    for (std::size_t end = bytes.find('\n'); end != std::string_view::npos;
         end = bytes.find('\n', end + 1))
        ++count;
    return count;
}

bool isASCII(std::string_view bytes)
{
    std::uint64_t all = 0;
    for (; bytes.size() >= sizeof all; bytes.remove_prefix(sizeof all)) {
        std::uint64_t word = 0;
        std::memcpy(&word, bytes.data(), sizeof word);
        all |= word;
    }
    for (const char c : bytes)
        all |= static_cast<unsigned char>(c);
    return (all & 0x8080808080808080) == 0;
}

/// The name after the numbers, as `readPalette` finds it.
std::string_view nameAfter(std::string_view rest)
{
    while (rest.starts_with(' '))
        rest.remove_prefix(1);
    if (!rest.starts_with('\t')) return trimmed(rest);
    while (rest.starts_with('\t'))
        rest.remove_prefix(1);
    return rest;
}

/// Whether a line before or between the rows says nothing about colours.
bool isSkipped(std::string_view line, bool isFirst)
{
    const std::string_view content = trimmed(line);
    return isFirst || content.empty() || content.front() == '#' || content.starts_with("Name:") ||
           content.starts_with("Columns:");
}

}  // namespace

std::optional<PaletteNameMatch> namesInPalette(std::string_view bytes, const QTXHexColorSpec& color)
{
    constexpr int closeness = 16;
    const std::array<int, 3> wanted{static_cast<int>(color.redHexComp() & 0xFF),
                                    static_cast<int>(color.greenHexComp() & 0xFF),
                                    static_cast<int>(color.blueHexComp() & 0xFF)};
    if (bytes.find('\r') != std::string_view::npos) return std::nullopt;
    // The same name can be written in UTF-8 and in Latin-1.
    if (!isASCII(bytes) && !isWellFormedUtf8(bytes)) return std::nullopt;
    TextsSeen names(lineCount(bytes) + 1);
    PaletteNameMatch match;
    bool isFirst = true;
    while (!bytes.empty()) {
        const std::string_view line = bytes.substr(0, std::min(bytes.find('\n'), bytes.size()));
        bytes.remove_prefix(std::min(line.size() + 1, bytes.size()));
        const char* place = line.data();
        const char* const end = place + line.size();
        int farthest = 0;
        bool isRow = !isFirst;
        for (std::size_t i = 0; i < wanted.size() && isRow; ++i) {
            const int byte = takeByte(place, end);
            isRow = byte >= 0;
            farthest = std::max(farthest, std::abs(byte - wanted[i]));
        }
        if (!isRow) {
            if (!isSkipped(line, isFirst)) return std::nullopt;
            isFirst = false;
            continue;
        }
        const std::string_view name = nameAfter({place, static_cast<std::size_t>(end - place)});
        if (name.empty() || !names.add(name)) return std::nullopt;
        if (farthest > closeness || (match.exact && farthest > 0)) continue;
        if (farthest > 0) {
            match.close.push_back(utf16FromUtf8(name));
        } else if (!match.exact) {
            match.exact = utf16FromUtf8(name);
        }
    }
    if (match.exact) match.close.clear();
    return match;
}

}  // namespace vantorel
