#include "panel/widgets/ColorClipboard.h"

#include "colortext/ColorInCode.h"
#include "colortext/UnmappedColor.h"
#include "csscolor/CSSColorReader.h"
#include "csscolor/CSSColorWriter.h"
#include "csscolor/GamutMapping.h"
#include "hosts/qt/QtColors.h"
#include "panel/widgets/PanelSnippets.h"
#include "result/HarmlessLine.h"
#include "result/Result.h"

#include <QList>
#include <QUrl>

#include <algorithm>
#include <array>
#include <cstring>
#include <utility>

namespace vantorel {
namespace {

constexpr const char* colorType = "application/x-color";
/// Longer texts are not colours; a clipboard can have any amount of text.
constexpr qsizetype longestColorText = 4096;
constexpr std::size_t mostShownBytes = 40;

/// Reads four 16-bit words in the machine's byte order.
std::optional<HostColor> colorFromWords(const QByteArray& bytes)
{
    std::array<quint16, 4> words{};
    if (bytes.size() != static_cast<qsizetype>(sizeof words)) return std::nullopt;
    std::memcpy(words.data(), bytes.constData(), sizeof words);
    constexpr double largest = 65535;
    return HostColor::colorWithCalibratedRed(words[0] / largest, words[1] / largest,
                                             words[2] / largest, words[3] / largest);
}

/// The reverse of `colorFromWords`.
QByteArray wordsOfColor(const QColor& color)
{
    const QRgba64 channels = color.rgba64();
    const std::array<quint16, 4> words{channels.red(), channels.green(), channels.blue(),
                                       channels.alpha()};
    return {reinterpret_cast<const char*>(words.data()), sizeof words};
}

}  // namespace

ColorOffer colorFromText(const QString& text)
{
    if (text.size() > longestColorText) return {{}, {phrase("that is a long text, not a colour")}};
    const Result<CSSColor> css = colorInText(u16From(text), PanelSnippets::readersInUse());
    if (!css) return {{}, css.error()};
    if (!css->wasOutsideSRGB) return {css->color, {}};
    return {unmappedColor(*css),
            {phrase("\"%1\" is outside sRGB; this is the nearest colour inside",
                    excerpt(text.trimmed().toStdString(), mostShownBytes))}};
}

QString exactColorText(const HostColor& color)
{
    if (!isOutsideSRGB(color)) return qStringFrom(hexText(color).value_or(std::u16string()));
    const auto rgb = color.calibratedRGB().value_or(HostColor::Components{});
    CSSColorValue value;
    value.alpha = rgb.alpha;
    value.space = ColorSpace::displayP3;
    value.components =
        convertedColor({rgb.red, rgb.green, rgb.blue}, ColorSpace::srgb, value.space);
    return qStringFrom(cssTextIn(value.space, value));
}

std::unique_ptr<QMimeData> mimeDataFromColor(const HostColor& color, const QString& text)
{
    auto data = std::make_unique<QMimeData>();
    const QColor shown = qColorFrom(mappedIntoSRGB(color));
    if (shown.isValid()) data->setColorData(shown);
    if (!text.isEmpty()) data->setText(text);
    return data;
}

std::vector<ColorForm> formsFromColor(const HostColor& color, const QString& text)
{
    std::vector<ColorForm> forms;
    const QColor shown = qColorFrom(mappedIntoSRGB(color));
    if (shown.isValid()) forms.push_back({colorType, wordsOfColor(shown)});
    if (text.isEmpty()) return forms;
    for (const char* type :
         {"text/plain;charset=utf-8", "text/plain", "UTF8_STRING", "STRING", "TEXT"})
        forms.push_back({type, text.toUtf8()});
    return forms;
}

bool mayHoldColor(const QMimeData& data)
{
    if (data.hasFormat(QLatin1String(colorType))) return true;
    // File managers offer the paths of files as texts, too.
    const QList<QUrl> urls = data.urls();
    const bool holdsFile =
        std::any_of(urls.begin(), urls.end(), [](const QUrl& url) { return url.isLocalFile(); });
    return data.hasText() && !holdsFile;
}

ColorOffer colorFromMimeData(const QMimeData& data)
{
    if (data.hasFormat(QLatin1String(colorType))) {
        if (auto color = colorFromWords(data.data(QLatin1String(colorType)))) return {color, {}};
        // Within one program Qt passes its own colour object on; its bytes are those of a text.
        const auto color = qvariant_cast<QColor>(data.colorData());
        if (color.isValid()) return {hostColorFrom(color), {}};
    }
    if (data.hasText() && !data.text().isEmpty()) return colorFromText(data.text());
    return {{},
            {phrase("there is no colour to paste"),
             phrase("copy a colour, or a CSS text such as #ff8000")}};
}

}  // namespace vantorel
