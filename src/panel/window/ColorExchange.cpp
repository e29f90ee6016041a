#include "panel/window/ColorExchange.h"

#include "color/QTXHexColorSpec.h"
#include "csscolor/CSSColorWriter.h"
#include "csscolor/GamutMapping.h"
#include "hosts/qt/ClipboardOwner.h"
#include "hosts/qt/QtColors.h"
#include "panel/palettes/PictureData.h"
#include "panel/preferences/PanelPreferences.h"
#include "panel/widgets/PanelSettings.h"
#include "result/HarmlessLine.h"

#include <QApplication>
#include <QClipboard>

#include <algorithm>
#include <memory>
#include <optional>
#include <string_view>
#include <utility>

namespace vantorel {
namespace {

constexpr int picksWithHints = 3;

/// Writes a colour outside sRGB as it is.
std::u16string wideText(const HostColor& color, ColorSpace space)
{
    const auto rgb = color.calibratedRGB().value_or(HostColor::Components{});
    CSSColorValue value;
    value.alpha = rgb.alpha;
    value.components = convertedColor({rgb.red, rgb.green, rgb.blue}, ColorSpace::srgb, space);
    value.space = space;
    return cssTextIn(space, value);
}

/// The keys of the magnifier that copy: hex, RGB, HSL, OKLCH.
bool isLetterOfForm(char letter)
{
    return std::string_view("HRSO").find(letter) != std::string_view::npos;
}

QString textOf(const std::optional<std::u16string>& text)
{
    return text ? qStringFrom(*text) : QString();
}

Message onlyOneWasPicked()
{
    return {phrase("one colour was picked: the desktop's own picker takes one at a time"),
            phrase("pick again for the next one")};
}

MessageLabel::Kind kindOf(const ColorOffer& offer)
{
    return offer.color ? MessageLabel::Kind::news : MessageLabel::Kind::failure;
}

}  // namespace

ColorExchange::ColorExchange(PanelColors& colors, PanelPages& pages, QWidget& window,
                             const HostFiles& files, std::unique_ptr<ScreenPicker> screenPicker)
    : _colors(colors),
      _pages(pages),
      _window(window),
      _snippets(files),
      _screenPicker(std::move(screenPicker))
{
}

std::vector<HostColorText> ColorExchange::colorTexts() const
{
    const bool isWide = isOutsideSRGB(_colors.color());
    const HostColor color = mappedIntoSRGB(_colors.color());
    std::vector<HostColorText> texts;
    if (const HostColorPicker* picker = _pages.currentPicker()) texts = picker->colorTexts();
    const auto add = [&](const char16_t* name, const std::optional<std::u16string>& text) {
        if (text) texts.push_back({name, *text, true});
    };
    if (texts.empty()) {
        const double alpha = color.alphaComponent();
        add(u"Hex Code", hexText(color, PanelSettings::hexForm()));
        if (const auto opaque = rgbText(color.colorWithAlphaComponent(1)))
            add(u"RGB (CSS)", rgbTextWithAlpha(*opaque, alpha));
    }
    add(u"HSL (CSS)", hslText(color));
    add(u"OKLCH (CSS)", isWide ? wideText(_colors.color(), ColorSpace::oklch) : oklchText(color));
    if (isWide) add(u"Display P3 (CSS)", wideText(_colors.color(), ColorSpace::displayP3));
    // The texts for style sheets first; a page may offer many lines of code.
    if (!texts.empty()) {
        std::stable_partition(texts.begin() + 1, texts.end(), [](const HostColorText& text) {
            return text.name.ends_with(u"(CSS)");
        });
    }
    return texts;
}

std::vector<HostColorText> ColorExchange::otherSnippetTexts()
{
    for (const Message& problem : _snippets.takeProblems())
        emit reported(problem, MessageLabel::Kind::failure);
    QTXHexColorSpec spec;
    spec.setColorHexColorSpec(mappedIntoSRGB(_colors.color()));
    spec.setAlphaComp(_colors.color().alphaComponent());
    std::vector<HostColorText> texts;
    for (const QTXCodeSnippet& snippet : _snippets.others()) {
        texts.push_back(
            {snippet.nameSnippet().value_or(u""), snippet.codeSnippetWithColorSpec(spec), false});
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

std::optional<HostColorText> ColorExchange::chosenForm()
{
    if (_form.isEmpty()) return std::nullopt;
    const auto chosenOf = [this](const std::vector<HostColorText>& texts) {
        const auto found = std::ranges::find_if(
            texts, [this](const HostColorText& text) { return qStringFrom(text.name) == _form; });
        return found == texts.end() ? std::nullopt : std::optional(*found);
    };
    const auto chosen = chosenOf(colorTexts());
    return chosen ? chosen : chosenOf(otherSnippetTexts());
}

QString ColorExchange::copiedText()
{
    if (const auto chosen = chosenForm()) return qStringFrom(chosen->text);
    if (const HostColorPicker* picker = _pages.currentPicker()) {
        if (const auto text = picker->copyText()) return qStringFrom(*text);
    }
    if (isOutsideSRGB(_colors.color()))
        return qStringFrom(wideText(_colors.color(), ColorSpace::oklch));
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
        const ColorOffer offer =
            held != nullptr ? colorFromMimeData(*held) : colorFromMimeData(QMimeData());
        if (!offer.color && held != nullptr && offersPicture(*held)) {
            emit picturePasted(pictureIn(*held));
        } else {
            takeColor(offer);
        }
    });
}

void ColorExchange::takeColor(const ColorOffer& offer)
{
    takeOneColor(_colors.edited(), offer);
}

void ColorExchange::takeOneColor(EditedColor which, const ColorOffer& offer)
{
    if (offer.color) _colors.set(which, *offer.color);
    const bool isHeld = offer.color && _pages.takesWideGamut();
    emit reported(isHeld ? Message() : offer.message, kindOf(offer));
}

std::u16string ColorExchange::nameOfPicked(const HostColor& color) const
{
    const auto found = _names != nullptr ? _names->nameOf(color) : std::nullopt;
    if (!found) return {};
    // The sign for "about" says that it is not the colour's own name.
    return (found->isExact ? u"" : u"\u2248 ") + found->name;
}

QString ColorExchange::formOfLetter(char letter) const
{
    const HostColor color = mappedIntoSRGB(_colors.color());
    switch (letter) {
        case 'R':
            return textOf(rgbText(color));
        case 'S':
            return textOf(hslText(color));
        case 'O':
            return textOf(oklchText(color));
        default:
            return qStringFrom(colorTexts().front().text);
    }
}

void ColorExchange::pickFromScreen(bool copies, ScreenPicker::Callback done)
{
    // Read each time: another panel, or the dialog, may have changed them.
    const PanelPreferences preferences;
    PickOptions options;
    options.averagedSide = preferences.averagedSide();
    options.showsHints = _picks < picksWithHints;
    options.pickedOnTheWay = [this](const HostColor& color) {
        _colors.setColor(color);
        _colors.rememberColor();
    };
    options.nameOf = [this](const HostColor& color) { return nameOfPicked(color); };
    const auto letter = std::make_shared<char>('\0');
    // What another program asked for is not copied by the way.
    if (done == nullptr) {
        options.picksByLetter = [letter](char pressed) {
            if (!isLetterOfForm(pressed)) return false;
            *letter = pressed;
            return true;
        };
    }
    const auto after = done == nullptr ? preferences.afterPicking() : AfterPicking::shows;
    _screenPicker->start(
        &_window, options,
        [this, copies, after, letter, done = std::move(done)](const ScreenPickResult& result) {
            takePick(result);
            if (result.outcome == ScreenPickResult::Outcome::picked) {
                if (*letter != '\0') {
                    copyText(formOfLetter(*letter));
                } else if (copies || after != AfterPicking::shows) {
                    copy();
                }
                if (after == AfterPicking::copiesHides) _window.showMinimized();
            }
            if (done)
                done(result);
            else if (result.outcome == ScreenPickResult::Outcome::picked)
                emit picked();
        });
}

void ColorExchange::pickMany(std::function<void(const std::vector<HostColor>&)> done)
{
    const auto picked = std::make_shared<std::vector<HostColor>>();
    PickOptions options;
    options.averagedSide = PanelPreferences().averagedSide();
    // Only here a click does not end it, so the keys are always explained.
    options.showsHints = true;
    options.goesOn = true;
    options.nameOf = [this](const HostColor& color) { return nameOfPicked(color); };
    options.pickedOnTheWay = [picked](const HostColor& color) { picked->push_back(color); };
    _screenPicker->start(&_window, options,
                         [this, picked, done = std::move(done)](const ScreenPickResult& result) {
                             using Outcome = ScreenPickResult::Outcome;
                             if (result.outcome == Outcome::picked) picked->push_back(result.color);
                             if (result.outcome == Outcome::notPossible)
                                 emit reported(result.reason, MessageLabel::Kind::failure);
                             if (!picked->empty()) done(*picked);
                             if (result.endsAfterOne)
                                 emit reported(onlyOneWasPicked(), MessageLabel::Kind::news);
                         });
}

void ColorExchange::takePick(const ScreenPickResult& result)
{
    using Outcome = ScreenPickResult::Outcome;
    if (result.outcome == Outcome::notPossible) {
        emit reported(result.reason, MessageLabel::Kind::failure);
        return;
    }
    if (result.outcome != Outcome::picked) return;
    _picks = std::min(_picks + 1, picksWithHints);
    _colors.setColor(result.color);
    if (result.lacksAverage) {
        emit reported({phrase("one pixel was picked: the desktop's own picker cannot average")},
                      MessageLabel::Kind::news);
    }
}

void ColorExchange::cancelPick()
{
    _screenPicker->cancel();
}

}  // namespace vantorel
