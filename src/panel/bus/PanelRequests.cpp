#include "panel/bus/PanelRequests.h"

#include "csscolor/CSSColorWriter.h"
#include "hosts/qt/QtColors.h"
#include "panel/bus/ClipboardTurn.h"
#include "panel/widgets/ColorClipboard.h"
#include "panel/window/PanelWindow.h"
#include "result/HarmlessLine.h"

#include <QApplication>
#include <QClipboard>

#include <algorithm>
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
    connect(QApplication::clipboard(), &QClipboard::dataChanged, this,
            &PanelRequests::lookWhetherNothingIsLeft);
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
    return _window.colors().color();
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
            putOnClipboard({},
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

void PanelRequests::copy(const QString& form, Done done)
{
    ++_underWay;
    putOnClipboard(
        form, [this, done = std::move(done)](const PanelAnswer& answer) { finish(done, answer); });
}

void PanelRequests::putOnClipboard(const QString& form, const Done& done)
{
    const auto texts = _window.exchange().colorTexts();
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
    const QString text = form.isEmpty() ? QString() : qStringFrom(chosen->text);
    auto* turn = new ClipboardTurn(_window, this);
    connect(turn, &ClipboardTurn::over, this, [this, form, text, done](bool isOurTurn) {
        if (!isOurTurn) {
            done(PanelError{PanelError::Kind::notPossible,
                            {phrase("the desktop lets only the active window copy, and did not "
                                    "activate the panel")}});
            return;
        }
        if (form.isEmpty()) {
            _window.exchange().copy();
        } else {
            _window.exchange().copyText(text);
        }
        done(QApplication::clipboard()->text());
    });
    turn->wait();
}

void PanelRequests::carryOut(const PanelOrder& order, Done done)
{
    if (order.color) {
        const PanelAnswer answer = setColor(*order.color);
        if (!answer) {
            done(answer);
            return;
        }
    }
    switch (order.step) {
        case PanelOrder::Step::show:
            show(order.token);
            done(QString());
            return;
        case PanelOrder::Step::pick:
            pick(false, std::move(done));
            return;
        case PanelOrder::Step::pickAndCopy:
            pick(true, std::move(done));
            return;
        case PanelOrder::Step::copy:
            copy(order.form, std::move(done));
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
    const bool copied = QApplication::clipboard()->ownsClipboard();
    return !_window.isVisible() && _underWay == 0 && !copied;
}

void PanelRequests::lookWhetherNothingIsLeft()
{
    if (isNothingLeft()) emit nothingLeft();
}

}  // namespace vantorel
