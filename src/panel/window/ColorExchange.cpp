#include "panel/window/ColorExchange.h"

#include "csscolor/CSSColorWriter.h"
#include "hosts/qt/QtColors.h"
#include "result/HarmlessLine.h"

#include <QApplication>
#include <QClipboard>

#include <utility>

namespace vantorel {

ColorExchange::ColorExchange(PanelColors& colors, PanelPages& pages, QWidget& window,
                             std::unique_ptr<ScreenPicker> screenPicker)
    : _colors(colors), _pages(pages), _window(window), _screenPicker(std::move(screenPicker))
{
}

std::vector<HostColorText> ColorExchange::colorTexts() const
{
    const HostColor& color = _colors.color();
    std::vector<HostColorText> texts;
    if (const HostColorPicker* picker = _pages.currentPicker()) texts = picker->colorTexts();
    const auto add = [&](const char16_t* name, const std::optional<std::u16string>& text) {
        if (text) texts.push_back({name, *text});
    };
    if (texts.empty()) {
        add(u"Hex Code", hexText(color));
        add(u"RGB (CSS)", rgbText(color));
    }
    add(u"HSL (CSS)", hslText(color));
    add(u"OKLCH (CSS)", oklchText(color));
    return texts;
}

QString ColorExchange::draggedText() const
{
    if (const HostColorPicker* picker = _pages.currentPicker()) {
        if (const auto carried = picker->dragText()) return qStringFrom(*carried);
    }
    const auto texts = colorTexts();
    return texts.empty() ? QString() : qStringFrom(texts.front().text);
}

void ColorExchange::copy()
{
    if (const QString text = draggedText(); !text.isEmpty()) copyText(text);
}

void ColorExchange::copyHexCode()
{
    const auto texts = colorTexts();
    if (!texts.empty()) copyText(qStringFrom(texts.front().text));
}

void ColorExchange::copyText(const QString& text)
{
    QApplication::clipboard()->setMimeData(mimeDataFromColor(_colors.color(), text).release());
    _colors.rememberColor();
    emit reported({phrase("\"%1\" copied", excerpt(text.toStdString()))});
}

void ColorExchange::paste()
{
    const QMimeData* held = QApplication::clipboard()->mimeData();
    takeColor(held != nullptr ? colorFromMimeData(*held) : colorFromMimeData(QMimeData()));
}

void ColorExchange::takeColor(const ColorOffer& offer)
{
    if (offer.color) _colors.setColor(*offer.color);
    if (!offer.message.isEmpty()) emit reported(offer.message);
}

void ColorExchange::takeBackground(const ColorOffer& offer)
{
    if (offer.color) _colors.setBackground(*offer.color);
    if (!offer.message.isEmpty()) emit reported(offer.message);
}

void ColorExchange::pickFromScreen(bool copies, ScreenPicker::Callback done)
{
    _screenPicker->start(&_window,
                         [this, copies, done = std::move(done)](const ScreenPickResult& result) {
                             using Outcome = ScreenPickResult::Outcome;
                             if (result.outcome == Outcome::picked) {
                                 _colors.setColor(result.color);
                                 if (copies) copy();
                             } else if (result.outcome == Outcome::notPossible) {
                                 emit reported(result.reason);
                             }
                             if (done) done(result);
                         });
}

void ColorExchange::cancelPick()
{
    _screenPicker->cancel();
}

}  // namespace vantorel
