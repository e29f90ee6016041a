#include "snippets/SnippetReaders.h"

#include "text/ASCII.h"
#include "text/Trimming.h"

#include <algorithm>

namespace vantorel {
namespace {

/// Further snippets are not read. Nobody has as many.
constexpr std::size_t mostReaders = 1000;

}  // namespace

SnippetReaders::SnippetReaders(std::vector<QTXCodeSnippet> snippets)
    : _snippets(std::move(snippets))
{
    const std::size_t count = std::min(_snippets.size(), mostReaders);
    _readers.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        const SnippetReader& reader = _readers.emplace_back(_snippets[i]);
        if (!reader.canRead() || !reader.hasOwnText()) continue;
        const auto unit = reader.firstUnit();
        Places& places = unit && *unit < _byFirstUnit.size() ? _byFirstUnit[*unit] : _others;
        places.push_back(static_cast<std::uint16_t>(i));
    }
}

void SnippetReaders::matchWith(const Places& readers, std::u16string_view text, std::size_t place,
                               std::optional<SnippetMatch>& best) const
{
    for (const std::uint16_t i : readers) {
        const auto match = _readers[i].matchAt(text, place);
        if (match && (!best || match->end > best->end))
            best = SnippetMatch{place, match->end, match->color, i};
    }
}

std::optional<SnippetMatch> SnippetReaders::matchAt(std::u16string_view text,
                                                    std::size_t place) const
{
    std::optional<SnippetMatch> best;
    if (place >= text.size()) return best;
    if (text[place] < _byFirstUnit.size()) matchWith(_byFirstUnit[text[place]], text, place, best);
    matchWith(_others, text, place, best);
    return best;
}

std::vector<SnippetMatch> SnippetReaders::matchesIn(std::u16string_view text) const
{
    std::vector<SnippetMatch> matches;
    for (std::size_t place = 0; place < text.size();) {
        const auto match = matchAt(text, place);
        if (match) matches.push_back(*match);
        // A line of nothing but a value that prints no digits would be empty.
        place = match ? std::max(match->end, place + 1) : place + 1;
    }
    return matches;
}

std::optional<SnippetMatch> SnippetReaders::matchOf(std::u16string_view text) const
{
    const auto isSpaceAround = [](char16_t c) { return isBlank(c) || c == u'\n' || c == u'\r'; };
    const auto inside = trimmed(text, isSpaceAround);
    if (inside.empty()) return std::nullopt;
    const auto begin = static_cast<std::size_t>(inside.data() - text.data());
    for (std::size_t i = 0; i < _readers.size(); ++i) {
        const auto match = _readers[i].matchAt(inside, 0);
        if (match && match->end == inside.size())
            return SnippetMatch{begin, begin + match->end, match->color, i};
    }
    return std::nullopt;
}

}  // namespace vantorel
