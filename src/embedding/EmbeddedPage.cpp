#include "embedding/EmbeddedPage.h"

#include "hosts/common/PageSize.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace vantorel {
namespace {

bool isWithin(double distance, double a, double b)
{
    // Differences of a few units in the last place are no differences.
    constexpr double tolerance = 1e-9;
    return std::abs(a - b) <= distance + tolerance;
}

/// Whether a dialog that changes channels by up to `rounding` can have made `b` from `a`.
bool isSameColor(const HostColor& a, const HostColor& b, double rounding)
{
    const auto first = a.calibratedRGB();
    const auto second = b.calibratedRGB();
    if (!first || !second) return first.has_value() == second.has_value();
    const auto stored = [](double channel) { return std::clamp(channel, 0.0, 1.0); };
    return isWithin(rounding, stored(first->red), stored(second->red)) &&
           isWithin(rounding, stored(first->green), stored(second->green)) &&
           isWithin(rounding, stored(first->blue), stored(second->blue)) &&
           isWithin(rounding, stored(first->alpha), stored(second->alpha));
}

}  // namespace

EmbeddedPage::EmbeddedPage(EmbeddingDialog& dialog, HostDesktop& desktop, EmbeddingTraits traits)
    : _dialog(&dialog), _desktop(desktop), _traits(traits)
{
}

EmbeddedPage::~EmbeddedPage()
{
    close();
}

void EmbeddedPage::close()
{
    if (_view != nullptr) _view->removeFromSuperview();
    _view = nullptr;
    _isPending = false;
    _picker.reset();
}

bool EmbeddedPage::show(const LoadedPlugin& plugin, HostColorPanel& panel, HostView& holder,
                        const HostColor& color)
{
    _color = _dialogsColor = color;
    _holder = &holder;
    guarded([&] {
        auto picker = plugin.makePicker(panel);
        if (!picker) return;
        _picker = *std::move(picker);
        HostView* view = _picker->provideNewView(true);
        if (view == nullptr) return;
        if (!_dialog->makeRoom(_picker->preferredContentSize(), _picker->minContentSize())) return;
        _view = view;
        _view->setFrame({0, 0, holder.frame().width, holder.frame().height});
        holder.addSubview(*_view);
        reportPageSize(*_picker, *_view);
        _picker->setColor(_color);
    });
    // The caller learns it from the result.
    _failureTimer.reset();
    return _view != nullptr;
}

void EmbeddedPage::resize()
{
    if (_view == nullptr) return;
    guarded([this] {
        _view->setFrame({0, 0, _holder->frame().width, _holder->frame().height});
        reportPageSize(*_picker, *_view);
    });
}

void EmbeddedPage::dialogDidAppear()
{
    if (_picker != nullptr) guarded([this] { _picker->pageDidAppear(); });
}

void EmbeddedPage::dialogDidDisappear()
{
    if (_picker != nullptr) guarded([this] { _picker->pageDidDisappear(); });
}

HostSize EmbeddedPage::room() const
{
    return _holder != nullptr ? _holder->frame().size() : HostSize{};
}

HostSize EmbeddedPage::grow(HostSize growth)
{
    return _dialog != nullptr ? _dialog->growHolder(growth) : HostSize{};
}

void EmbeddedPage::dialogColorDidChange(const HostColor& color)
{
    if (isSameColor(color, _dialogsColor, _traits.rounding)) return;
    // What happened last counts: a colour of the page that the dialog has not got yet is older.
    _isPending = false;
    _color = _dialogsColor = color;
    _isFinal = true;
    // `send` passes it to the page when the dialog has returned.
    if (_isSending || _picker == nullptr) return;
    guarded([this] { _picker->setColor(_color); });
}

void EmbeddedPage::setColor(const std::optional<HostColor>& color)
{
    const auto components = color ? color->calibratedRGB() : std::nullopt;
    if (!components) return;
    _color = _takesOpacity ? *color : color->colorWithAlphaComponent(_color.alphaComponent());
    _isPending = true;
    if (_picker != nullptr) _picker->setColor(_color);
    sendLater();
}

void EmbeddedPage::sendLater()
{
    _sendTimer = _desktop.scheduleTimer(0, [this] { send(!_isTracking); });
}

void EmbeddedPage::sendPendingColor()
{
    send(true);
}

void EmbeddedPage::send(bool isFinal)
{
    if (!std::exchange(_isPending, false) || _dialog == nullptr || _hasFailed) return;
    const bool isKnown = _dialogsColor == _color && (_isFinal || !isFinal);
    if (isKnown) return;
    _dialogsColor = _color;
    _isFinal = isFinal;
    const std::weak_ptr<const bool> life = _life;
    const bool wasSending = std::exchange(_isSending, true);
    const HostColor sent = _color;
    try {
        _dialog->colorChosen(sent, isFinal);
    } catch (...) {
        if (!life.expired()) fail();
    }
    if (life.expired()) return;
    _isSending = wasSending;
    if (_color != sent && !_isSending && _picker != nullptr) {
        guarded([this] { _picker->setColor(_color); });
    }
}

void EmbeddedPage::willWait()
{
    _isTracking = true;
    send(false);
}

void EmbeddedPage::didGet(const HostEvent& event)
{
    if (event.type == HostEventType::leftMouseUp) changeDidEnd();
}

void EmbeddedPage::changeDidEnd()
{
    _isTracking = false;
    // The end of the drag is reported even if the colour does not change any more.
    _isPending = true;
    sendLater();
}

void EmbeddedPage::willDragOut()
{
    // What the page has set now, it shows only during the drag: it is black while a text is
    // dragged.
    _isPending = false;
}

void EmbeddedPage::forgetDialog()
{
    _dialog = nullptr;
    _isPending = false;
}

void EmbeddedPage::fail() noexcept
{
    if (std::exchange(_hasFailed, true)) return;
    _isPending = false;
    try {
        if (_view != nullptr) _view->removeFromSuperview();
        _failureTimer = _desktop.scheduleTimer(0, [this] {
            if (_dialog != nullptr) _dialog->pageDidFail();
        });
    } catch (...) {
        // The page stays where it is, and is not called any more.
        _hasFailed = true;
    }
    _view = nullptr;
}

}  // namespace vantorel
