#include "panel/bus/PanelRequests.h"

#include "csscolor/CSSColorWriter.h"
#include "csscolor/GamutMapping.h"
#include "hosts/qt/QtColors.h"
#include "panel/bus/ActivationToken.h"
#include "panel/widgets/ColorClipboard.h"
#include "panel/window/PanelWindow.h"
#include "result/HarmlessLine.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace vantorel {
namespace {

QString hexCode(const HostColor& color)
{
    return qStringFrom(hexText(color).value_or(std::u16string()));
}

}  // namespace

PanelRequests::PanelRequests(PanelWindow& window) : _window(window)
{
    connect(&_clipboard, &SessionClipboard::lost, this, &PanelRequests::lookWhetherNothingIsLeft);
    connect(&window.colors(), &PanelColors::colorChanged, this, &PanelRequests::colorChanged);
}

void PanelRequests::show(const ActivationToken& token)
{
    bringToFront(_window, token);
}

PanelAnswer PanelRequests::setColor(const QString& text)
{
    const ColorOffer offer = colorFromText(text);
    if (!offer.color) return PanelError{PanelError::Kind::notAColor, offer.message};
    _window.exchange().takeColor(offer);
    return QString();
}

QString PanelRequests::color() const
{
    return hexCode(hostColor());
}

HostColor PanelRequests::hostColor() const
{
    return mappedIntoSRGB(_window.colors().color());
}

void PanelRequests::pick(bool copies, Done done)
{
    ++_underWay;
    const auto take = [this, copies, done = std::move(done)](const ScreenPickResult& result) {
        using Outcome = ScreenPickResult::Outcome;
        using Kind = PanelError::Kind;
        if (result.outcome == Outcome::notPossible) {
            finish(done, PanelError{Kind::notPossible, result.reason});
        } else if (result.outcome == Outcome::cancelled) {
            finish(done, PanelError{Kind::cancelled, {phrase("no colour was picked")}});
        } else if (copies) {
            putOnClipboard({}, {},
                           [this, done, picked = hexCode(result.color)](const PanelAnswer& copied) {
                               finish(done, copied ? PanelAnswer(picked) : copied);
                           });
        } else {
            finish(done, hexCode(result.color));
        }
    };
    _window.exchange().pickFromScreen(false, take);
}

void PanelRequests::cancelPick()
{
    _window.exchange().cancelPick();
}

void PanelRequests::copy(const QString& form, const ActivationToken& token, Done done)
{
    ++_underWay;
    putOnClipboard(form, token, [this, done = std::move(done)](const PanelAnswer& answer) {
        finish(done, answer);
    });
}

void PanelRequests::putOnClipboard(const QString& form, const ActivationToken& token,
                                   const Done& done)
{
    auto texts = _window.exchange().colorTexts();
    std::ranges::move(_window.exchange().otherSnippetTexts(), std::back_inserter(texts));
    const auto chosen = std::find_if(texts.begin(), texts.end(), [&](const HostColorText& text) {
        return qStringFrom(text.name) == form;
    });
    if (!form.isEmpty() && chosen == texts.end()) {
        std::u16string names;
        for (const HostColorText& text : texts)
            names += (names.empty() ? u"" : u", ") + text.name;
        done(PanelError{PanelError::Kind::noSuchForm,
                        {phrase("\"%1\" is not a form of a colour", excerpt(form.toStdString())),
                         phrase("use one of: %1", names)}});
        return;
    }
    const QString text =
        form.isEmpty() ? _window.exchange().copiedText() : qStringFrom(chosen->text);
    if (text.isEmpty()) {
        done(PanelError{PanelError::Kind::notPossible, {phrase("this colour has no text")}});
        return;
    }
    _clipboard.copy(hostColor(), text, token, [this, text, done](bool isCopied) {
        if (!isCopied) {
            done(PanelError{PanelError::Kind::notPossible,
                            {phrase("the desktop did not let the panel copy"),
                             phrase("show the panel and copy there")}});
            return;
        }
        _window.exchange().noteCopied(text);
        done(text);
    });
}

void PanelRequests::carryOut(const PanelOrder& order, const PanelOrder::Say& say, const Done& done)
{
    if (order.color) {
        const PanelAnswer answer = setColor(*order.color);
        if (!answer) {
            done(answer);
            return;
        }
    }
    const Done sayAndFinish = [say, done](const PanelAnswer& answer) {
        if (answer) say(*answer);
        done(answer);
    };
    switch (order.step) {
        case PanelOrder::Step::show:
            show(order.token);
            done(QString());
            return;
        case PanelOrder::Step::pick:
            pick(false, sayAndFinish);
            return;
        case PanelOrder::Step::pickAndCopy:
            pick(false, [this, say, done, token = order.token](const PanelAnswer& answer) {
                if (!answer) {
                    done(answer);
                    return;
                }
                say(*answer);
                copy({}, token, done);
            });
            return;
        case PanelOrder::Step::copy:
            copy(order.form, order.token, sayAndFinish);
            return;
    }
}

void PanelRequests::finish(const Done& done, const PanelAnswer& answer)
{
    --_underWay;
    done(answer);
    lookWhetherNothingIsLeft();
}

bool PanelRequests::isNothingLeft() const
{
    return !_window.isVisible() && _underWay == 0 && !_clipboard.isOurs();
}

void PanelRequests::lookWhetherNothingIsLeft()
{
    if (isNothingLeft()) emit nothingLeft();
}

}  // namespace vantorel
