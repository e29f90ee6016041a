#include "snippets/SnippetLimits.h"

#include "color/ChannelConversion.h"

#include <algorithm>
#include <array>

namespace vantorel {
namespace {

using Part = SnippetValue::Part;
using Obstacle = SnippetReader::Obstacle;

/// Bytes whose numbers are most easily taken for others: the smallest and largest, and those where
/// another digit begins.
constexpr std::array<std::uint8_t, 16> sampleBytes{0,   1,   2,   9,   10,  15,  16,  99,
                                                   100, 101, 127, 128, 199, 253, 254, 255};
/// What the other channels hold meanwhile.
constexpr std::array<std::uint8_t, 2> otherBytes{128, 7};

Phrase sentenceOf(const Obstacle& obstacle, const QTXCodeSnippet& snippet)
{
    const PhraseText<> part = nameOfPart(obstacle.part);
    switch (obstacle.kind) {
        case Obstacle::Kind::tooLong:
            return phrase("the format is longer than %1 characters", longestReadableFormat);
        case Obstacle::Kind::unknownForm:
            return phrase("there is no variable form \"%1\"",
                          snippet.varFormSnippet().value_or(u""));
        case Obstacle::Kind::missing:
            return phrase("%1 is not in the format", part);
        case Obstacle::Kind::character:
            return phrase("%1 is written as a character", part);
        case Obstacle::Kind::wholeNumber:
            return phrase("%1 is written without decimals", part);
        case Obstacle::Kind::cutText:
            return phrase("%1 is cut off", part);
        case Obstacle::Kind::highBits:
            return phrase("%1 is written without its highest bits", part);
        case Obstacle::Kind::notSeparated:
            break;
    }
    return phrase("%1 is not separated from what follows, so that some lines have two meanings",
                  part);
}

struct Sample {
    std::array<std::uint8_t, 4> bytes;

    [[nodiscard]] std::u16string lineOf(const QTXCodeSnippet& snippet) const
    {
        QTXHexColorSpec spec;
        spec.setHexRed(bytes[0], bytes[1], bytes[2]);
        spec.setAlphaComp(bytes[3] / 255.0);
        return snippet.codeSnippetWithColorSpec(spec);
    }
};

std::array<std::uint8_t, 4> channelBytesOf(const HostColor& color)
{
    const auto c = color.calibratedRGB().value_or(HostColor::Components{});
    return {nearestByte(c.red), nearestByte(c.green), nearestByte(c.blue), nearestByte(c.alpha)};
}

/// Whether the values of a channel, as far as they are tried, are read as they were written.
bool readsChannel(std::size_t channel, const SnippetReader& reader, const QTXCodeSnippet& snippet)
{
    for (const std::uint8_t others : otherBytes) {
        for (const std::uint8_t byte : sampleBytes) {
            Sample sample{{others, others, others, 255}};
            sample.bytes[channel] = byte;
            // An opacity of 0 has a reason of its own.
            if (sample.bytes[3] == 0) continue;
            const std::u16string line = sample.lineOf(snippet);
            const auto match = reader.matchAt(line, 0);
            if (!match || channelBytesOf(match->color)[channel] != byte) return false;
        }
    }
    return true;
}

/// Returns the first snippet that takes a line of this one for another colour; `std::nullopt` if
/// there is none.
std::optional<std::size_t> rivalOf(std::size_t snippet, const SnippetReaders& readers,
                                   const SnippetReader& reader)
{
    const auto rival = [&](const Sample& sample) -> std::optional<std::size_t> {
        const std::u16string line = sample.lineOf(readers.snippets()[snippet]);
        const auto own = reader.matchAt(line, 0);
        const auto match = readers.matchOf(line);
        if (!own || !match || match->color == own->color) return std::nullopt;
        return match->snippet;
    };
    for (const std::uint8_t alpha : {std::uint8_t{255}, otherBytes[0]}) {
        for (const std::uint8_t byte : sampleBytes) {
            if (const auto found = rival({{byte, byte, byte, alpha}})) return found;
            const auto opposite = static_cast<std::uint8_t>(255 - byte);
            if (const auto found = rival({{byte, byte, opposite, alpha}})) return found;
        }
    }
    return std::nullopt;
}

}  // namespace

PhraseText<> nameOfPart(Part part)
{
    switch (part) {
        case Part::red:
            return phraseText("red");
        case Part::green:
            return phraseText("green");
        case Part::blue:
            return phraseText("blue");
        case Part::opacity:
            return phraseText("opacity");
        case Part::rgb:
        case Part::argb:
            break;
    }
    return phraseText("the colour");
}

std::vector<Phrase> snippetLimits(const SnippetReaders& readers, std::size_t snippet)
{
    const QTXCodeSnippet& row = readers.snippets()[snippet];
    const SnippetReader reader(row);
    std::vector<Phrase> sentences;
    for (const Obstacle& obstacle : reader.obstacles())
        sentences.push_back(sentenceOf(obstacle, row));
    if (!reader.canRead()) return sentences;
    const auto values = valuesOfVarForm(row.varFormSnippet().value_or(u""));
    const auto hasObstacle = [&](Part part) {
        return std::ranges::find(reader.obstacles(), part, &Obstacle::part) !=
               reader.obstacles().end();
    };
    const bool areSeparated = std::ranges::find(reader.obstacles(), Obstacle::Kind::notSeparated,
                                                &Obstacle::kind) == reader.obstacles().end();
    for (const SnippetValue& value : *values) {
        if (!areSeparated || hasObstacle(value.part)) continue;
        bool isRead = true;
        for (std::size_t channel = 0; channel < 4; ++channel) {
            const bool isOfValue = value.part == Part::argb ||
                                   (value.part == Part::rgb && channel < 3) ||
                                   static_cast<std::size_t>(value.part) == channel;
            isRead = isRead && (!isOfValue || readsChannel(channel, reader, row));
        }
        if (!isRead) {
            sentences.push_back(phrase("%1 has too few digits to tell neighbouring values apart",
                                       nameOfPart(value.part)));
        } else if (value.part == Part::argb) {
            const std::u16string line = Sample{{255, 128, 0, 0}}.lineOf(row);
            if (!reader.matchAt(line, 0))
                sentences.push_back(phrase(
                    "an opacity of 0 is lost with the leading zeros, which are not written"));
        }
    }
    if (!reader.hasOwnText()) {
        sentences.push_back(
            phrase("the line has no text of its own, so it is read only where it is alone"));
    }
    if (const auto rival = rivalOf(snippet, readers, reader)) {
        const std::u16string name = readers.snippets()[*rival].nameSnippet().value_or(u"");
        sentences.push_back(phrase("a line can be one of \"%1\" with another colour", name));
    }
    return sentences;
}

}  // namespace vantorel
