#include "cli/ColorStream.h"
#include "cli/Commands.h"
#include "cli/Failure.h"
#include "csscolor/CSSColorWriter.h"
#include "text/Unicode.h"

namespace vantorel {
namespace {

std::u16string mappedText(std::string_view form, const CSSColor& color)
{
    if (form == "hex") return hexText(color.color).value_or(u"");
    if (form == "rgb") return rgbText(color.color).value_or(u"");
    if (form == "hsl") return hslText(color.color).value_or(u"");
    const auto srgb = color.color.calibratedRGB().value_or(HostColor::Components{});
    CSSColorValue value;
    value.components = {srgb.red, srgb.green, srgb.blue};
    value.alpha = srgb.alpha;
    return cssTextIn(ColorSpace::hwb, value);
}

/// The spaces of the forms that can hold colours outside sRGB.
std::optional<ColorSpace> wideSpace(std::string_view form)
{
    const auto space = colorSpaceNamed(utf16FromUtf8(form));
    return space == ColorSpace::hsl || space == ColorSpace::hwb ? std::nullopt : space;
}

class FormWriter final : public ColorTextUser {
public:
    FormWriter(std::string form, ColorTextReader& reader)
        : _form(std::move(form)), _space(wideSpace(_form)), _reader(reader)
    {
    }

    Status use(Output& output, std::string_view text, bool) override
    {
        const Result<CSSColor> color = _reader.readUnrounded(text);
        if (!color) return color.error();
        output.write(
            utf8FromUtf16(_space ? cssTextIn(*_space, color->value) : mappedText(_form, *color)));
        output.write('\n');
        return {};
    }

private:
    std::string _form;
    std::optional<ColorSpace> _space;
    ColorTextReader& _reader;
};

}  // namespace

int convertColors(Session& session, const CommandLine& commandLine)
{
    ColorTextReader reader = colorTextReader(session, commandLine);
    FormWriter writer(commandLine.form.value(), reader);
    return useColorTexts(commandLine.operands, writer, session.output()) ? 0 : failureStatus;
}

}  // namespace vantorel
