#include "panel/widgets/ColorClipboard.h"

#include "csscolor/CSSColorReader.h"
#include "csscolor/CSSColorWriter.h"
#include "hosts/qt/QtColors.h"
#include "hosts/qt/QtMessages.h"

#include <QCoreApplication>

#include <array>
#include <cstring>

namespace vantorel {
namespace {

constexpr const char* colorType = "application/x-color";
/// No text that is a colour is longer; a clipboard can hold a whole book.
constexpr qsizetype longestColorText = 4096;
constexpr qsizetype longestShownText = 40;

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(ColorClipboard)
};

/// Four 16-bit words in the machine's own order.
std::optional<HostColor> colorFromWords(const QByteArray& bytes)
{
    std::array<quint16, 4> words{};
    if (bytes.size() != static_cast<qsizetype>(sizeof words)) return std::nullopt;
    std::memcpy(words.data(), bytes.constData(), sizeof words);
    constexpr double largest = 65535;
    return HostColor::colorWithCalibratedRed(words[0] / largest, words[1] / largest,
                                             words[2] / largest, words[3] / largest);
}

ColorOffer colorFromText(const QString& text)
{
    if (text.size() > longestColorText)
        return {{}, Texts::tr("That is a long text, not a colour.")};
    const Result<CSSColor> css = readCSSColor(u16From(text));
    if (!css) return {{}, translated(css.error()) + u'.'};
    ColorOffer offer{css->color, {}};
    if (css->wasOutsideSRGB) {
        offer.remark = Texts::tr("%1 is outside sRGB; this is the nearest colour inside.")
                           .arg(text.trimmed().left(longestShownText));
    }
    return offer;
}

}  // namespace

std::unique_ptr<QMimeData> mimeDataFromColor(const HostColor& color, const QString& text)
{
    auto data = std::make_unique<QMimeData>();
    const QColor shown = qColorFrom(color);
    if (shown.isValid()) data->setColorData(shown);
    if (!text.isEmpty()) data->setText(text);
    return data;
}

bool mayHoldColor(const QMimeData& data)
{
    return data.hasFormat(QLatin1String(colorType)) || data.hasText();
}

ColorOffer colorFromMimeData(const QMimeData& data)
{
    if (data.hasFormat(QLatin1String(colorType))) {
        if (auto color = colorFromWords(data.data(QLatin1String(colorType)))) return {color, {}};
        // Within one program Qt hands its own colour on, whose bytes it tells as a text.
        const auto color = qvariant_cast<QColor>(data.colorData());
        if (color.isValid()) return {hostColorFrom(color), {}};
    }
    if (data.hasText() && !data.text().isEmpty()) return colorFromText(data.text());
    return {{}, Texts::tr("There is no colour to paste: copy one, or a CSS text such as #ff8000.")};
}

}  // namespace vantorel
