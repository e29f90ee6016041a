#include "snippets/SnippetValues.h"

#include "color/ChannelConversion.h"

#include <algorithm>
#include <array>

namespace vantorel {
namespace {

using Part = SnippetValue::Part;

constexpr SnippetValue redFraction{Part::red, true};
constexpr SnippetValue greenFraction{Part::green, true};
constexpr SnippetValue blueFraction{Part::blue, true};
constexpr SnippetValue opacityFraction{Part::opacity, true};
constexpr SnippetValue redByte{Part::red, false};
constexpr SnippetValue greenByte{Part::green, false};
constexpr SnippetValue blueByte{Part::blue, false};
constexpr SnippetValue opacityByte{Part::opacity, false};

constexpr std::array rgbaFloats{redFraction, greenFraction, blueFraction, opacityFraction};
constexpr std::array rgbFloats{redFraction, greenFraction, blueFraction};
constexpr std::array rgbFixedAlphaFloat{redByte, greenByte, blueByte, opacityFraction};
constexpr std::array rgbFixed{redByte, greenByte, blueByte};
constexpr std::array rgbaFixed{redByte, greenByte, blueByte, opacityByte};
constexpr std::array rgbPackedInt{SnippetValue{Part::rgb, false}};
constexpr std::array rgbaPackedInt{SnippetValue{Part::argb, false}};

struct VarForm {
    std::u16string_view name;
    std::span<const SnippetValue> values;
};

constexpr std::array varForms{
    VarForm{u"rgbaFloats", rgbaFloats},
    VarForm{u"rgbFloats", rgbFloats},
    VarForm{u"rgbFixedAlphaFloat", rgbFixedAlphaFloat},
    VarForm{u"rgbFixed", rgbFixed},
    VarForm{u"rgbaFixed", rgbaFixed},
    VarForm{u"rgbPackedInt", rgbPackedInt},
    VarForm{u"rgbaPackedInt", rgbaPackedInt},
};

}  // namespace

FormatArgument SnippetValue::of(const QTXHexColorSpec& spec) const
{
    const auto channel = [&](std::uint64_t component) -> FormatArgument {
        if (isFraction) return static_cast<double>(component) / 255;
        return component;
    };
    switch (part) {
        case Part::red:
            return channel(spec.redHexComp());
        case Part::green:
            return channel(spec.greenHexComp());
        case Part::blue:
            return channel(spec.blueHexComp());
        case Part::rgb:
            return spec.javaRGBInt();
        case Part::argb:
            return spec.javaRGBAInt();
        case Part::opacity:
            break;
    }
    if (isFraction) return spec.alphaComp();
    // A negative alpha keeps its sign, in two's complement like every integer argument.
    return static_cast<std::uint64_t>(truncatedSigned(spec.alphaComp() * 255));
}

std::optional<std::span<const SnippetValue>> valuesOfVarForm(std::u16string_view form)
{
    const auto* const found = std::ranges::find(varForms, form, &VarForm::name);
    if (found == varForms.end()) return std::nullopt;
    return found->values;
}

}  // namespace vantorel
