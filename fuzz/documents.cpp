#include "FuzzTexts.h"
#include "documents/ColorDocument.h"

#include <algorithm>

namespace {

using namespace vantorel;

void requireOrder(std::string_view text, DocumentLanguage language)
{
    const DocumentColors found = findColors(text, language);
    std::size_t begin = 0;
    for (const DocumentColor& color : found.colors) {
        require(color.range.begin >= begin && color.range.begin < color.range.end);
        require(color.range.end <= text.size() && !color.color.isPattern());
        require(color.block == notInDocument || color.block < found.blocks.size());
        begin = color.range.begin;
        if (color.declaration == notInDocument) continue;
        const DocumentDeclaration& declaration = found.declarations.at(color.declaration);
        require(declaration.name.end <= text.size() && declaration.value.end <= text.size());
    }
    for (std::size_t i = 0; i < found.blocks.size(); ++i) {
        const DocumentBlock& block = found.blocks[i];
        require(block.range.begin <= block.range.end && block.range.end <= text.size());
        require(block.parent == notInDocument || block.parent < i);
    }
}

bool haveSameColors(const ColorDocument& first, const ColorDocument& second)
{
    const auto colorsOf = [](const ColorDocument& document) {
        std::vector<std::pair<TextRange, HostColor>> colors;
        document.forEachColor([&](const DocumentColor& color, TextRange range) {
            colors.emplace_back(range, color.color);
        });
        return colors;
    };
    return colorsOf(first) == colorsOf(second);
}

}  // namespace

/// The input is a language, an edit, and a text after a line feed. A document that was edited has
/// the colours of one that was opened with the same text.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view input = bytesFrom(data, size);
    const std::size_t lineFeed = std::min(input.find('\n'), input.size());
    const std::string_view edit = input.substr(0, lineFeed);
    const std::string_view text = input.substr(std::min(lineFeed + 1, input.size()));
    if (edit.size() < 3) return 0;
    const auto byte = [&](std::size_t place) { return static_cast<unsigned char>(edit[place]); };
    constexpr int languages = static_cast<int>(DocumentLanguage::plainText) + 1;
    const auto language = static_cast<DocumentLanguage>(byte(0) % languages);
    requireOrder(text, language);
    // Longer than several parts, so that an edit scans some of them.
    std::string many;
    for (int i = 0; i < 4 && text.size() < 2000; ++i)
        many.append(text).append(12000 / (text.size() + 1), ';').append("\n<p>\n");
    ColorDocument document(many, language);
    const std::size_t begin = many.size() * byte(1) / 256;
    const std::size_t end = std::min(begin + byte(2), many.size());
    document.replace({begin, end}, edit.substr(3));
    require(haveSameColors(document, ColorDocument(document.text(), language)));
    return 0;
}
