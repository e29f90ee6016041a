#include "panel/window/ColorExchange.h"

#include "csscolor/CSSColorWriter.h"
#include "hosts/qt/ClipboardOwner.h"
#include "hosts/qt/QtColors.h"
#include "result/HarmlessLine.h"

#include <QApplication>
#include <QClipboard>

#include <algorithm>
#include <utility>

namespace vantorel {
namespace {

MessageLabel::Kind kindOf(const ColorOffer& offer)
{
    return offer.color ? MessageLabel::Kind::news : MessageLabel::Kind::failure;
}

}  // namespace

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
        if (text) texts.push_back({name, *text, true});
    };
    if (texts.empty()) {
        const double alpha = color.alphaComponent();
        add(u"Hex Code", hexText(color));
        if (const auto opaque = rgbText(color.colorWithAlphaComponent(1)))
            add(u"RGB (CSS)", rgbTextWithAlpha(*opaque, alpha));
    }
    add(u"HSL (CSS)", hslText(color));
    add(u"OKLCH (CSS)", oklchText(color));
    // The texts for style sheets first; a page may offer many lines of code.
    if (!texts.empty()) {
        std::stable_partition(texts.begin() + 1, texts.end(), [](const HostColorText& text) {
            return text.name.ends_with(u"(CSS)");
        });
    }
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

void ColorExchange::setForm(const QString& name)
{
    if (name == _form) return;
    _form = name;
    emit formChanged();
}

std::optional<HostColorText> ColorExchange::chosenForm() const
{
    if (_form.isEmpty()) return std::nullopt;
    for (HostColorText& text : colorTexts()) {
        if (qStringFrom(text.name) == _form) return std::move(text);
    }
    return std::nullopt;
}

QString ColorExchange::copiedText() const
{
    if (const auto chosen = chosenForm()) return qStringFrom(chosen->text);
    if (const HostColorPicker* picker = _pages.currentPicker()) {
        if (const auto text = picker->copyText()) return qStringFrom(*text);
    }
    const auto texts = colorTexts();
    return texts.empty() ? QString() : qStringFrom(texts.front().text);
}

void ColorExchange::copy()
{
    if (const QString text = copiedText(); !text.isEmpty()) copyText(text);
}

void ColorExchange::copyHexCode()
{
    const auto texts = colorTexts();
    if (!texts.empty()) copyText(qStringFrom(texts.front().text));
}

void ColorExchange::copyText(const QString& text)
{
    QApplication::clipboard()->setMimeData(mimeDataFromColor(_colors.color(), text).release());
    noteCopied(text);
}

void ColorExchange::noteCopied(const QString& text)
{
    _colors.rememberColor();
    emit copied(text);
}

void ColorExchange::paste()
{
    askClipboardOwner(QClipboard::Clipboard, *this, [this](bool answers) {
        if (!answers) {
            takeColor({.color = {}, .message = clipboardOwnerIsSilent()});
            return;
        }
        const QMimeData* held = QApplication::clipboard()->mimeData();
        takeColor(held != nullptr ? colorFromMimeData(*held) : colorFromMimeData(QMimeData()));
    });
}

void ColorExchange::takeColor(const ColorOffer& offer)
{
    takeOneColor(_colors.edited(), offer);
}

void ColorExchange::takeOneColor(EditedColor which, const ColorOffer& offer)
{
    if (offer.color) _colors.set(which, *offer.color);
    emit reported(offer.message, kindOf(offer));
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
                                 emit reported(result.reason, MessageLabel::Kind::failure);
                             }
                             if (done) done(result);
                         });
}

void ColorExchange::cancelPick()
{
    _screenPicker->cancel();
}

}  // namespace vantorel
