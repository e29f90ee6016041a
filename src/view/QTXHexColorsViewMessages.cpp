#include "view/QTXHexColorsView.h"

namespace vantorel {
namespace {

/// The opacity at and below which a message is not drawn.
constexpr double faintestAlpha = 0.2;
constexpr double fadingStep = 0.05;

/// The differences between a plain message and a warning.
struct MessageStyle {
    double pointSize = 0;
    HostColor color;
    /// Above this opacity, the message waits `restingSeconds` before the next step, else
    /// `fadingSeconds`.
    double restingAbove = 0;
    double restingSeconds = 0;
    double fadingSeconds = 0;
};

constexpr MessageStyle plainStyle{12.0, HostColor::colorWithCalibratedRed(0, 0, 1, 1), 0.55, 0.9,
                                  0.22};
constexpr MessageStyle warningStyle{18.0, HostColor::colorWithCalibratedRed(1, 0, 0, 1), 0.95, 0.4,
                                    0.05};

}  // namespace

void QTXHexColorsView::postMessage(const std::u16string& text)
{
    post(text, false);
}

void QTXHexColorsView::postWarning(const std::u16string& text)
{
    post(text, true);
}

void QTXHexColorsView::post(const std::u16string& text, bool isWarning)
{
    _isWarning = isWarning;
    _messageStr = text;
    _messageAlpha = 1.0F;
}

void QTXHexColorsView::clearMessage()
{
    _messageStr.reset();
    setNeedsDisplay(true);
}

void QTXHexColorsView::drawMessage(HostCanvas& canvas)
{
    const double alpha = _messageAlpha;
    if (alpha <= faintestAlpha) return;
    const MessageStyle& style = _isWarning ? warningStyle : plainStyle;
    const HostColor color = style.color.colorWithAlphaComponent(alpha);
    // Other messages are names of colours.
    const HostText text{*_messageStr, style.pointSize, color, _isWarning};
    const HostSize size = panel().desktop().sizeOfText(text);
    const HostRect within = bounds();
    const HostRect textBox{within.midX() - size.width / 2, within.maxY() - size.height - 10.0,
                           size.width, size.height};
    _messageRect = insetRect(textBox, -8.0, -3.0);

    __bPth.removeAllPoints();
    __bPth.appendBezierPathWithRect(_messageRect);
    canvas.fill(__bPth, HostColor::whiteColor().colorWithAlphaComponent(alpha));
    __bPth.setLineWidth(2.5);
    canvas.stroke(__bPth, color);
    canvas.drawText(text, {_messageRect.x + 5.0, _messageRect.y + 6.0});
    scheduleMessageTimer(alpha > style.restingAbove ? style.restingSeconds : style.fadingSeconds);
}

/// Each drawing starts a timer, and none is cancelled. A redraw for another reason therefore adds a
/// step and makes the message fade faster.
void QTXHexColorsView::scheduleMessageTimer(double seconds)
{
    std::erase_if(_messageTimers, [](const MessageTimer& timer) { return *timer.fired; });
    auto fired = std::make_shared<bool>(false);
    auto timer = panel().desktop().scheduleTimer(seconds, [this, fired] {
        *fired = true;
        messageCallBack();
    });
    _messageTimers.push_back({std::move(timer), std::move(fired)});
}

void QTXHexColorsView::messageCallBack()
{
    if (_messageAlpha <= faintestAlpha) {
        clearMessage();
        return;
    }
    _messageAlpha = static_cast<float>(_messageAlpha - fadingStep);
    if (_view != nullptr) _view->setNeedsDisplayInRect(insetRect(_messageRect, -4.0, -4.0));
}

}  // namespace vantorel
