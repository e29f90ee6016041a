#include "embedding/EmbeddedPage.h"

#include "hosts/common/PageSize.h"

#include <utility>

namespace vantorel {

EmbeddedPage::EmbeddedPage(EmbeddingDialog& dialog, HostDesktop& desktop, EmbeddingTraits traits)
    : _dialog(&dialog), _desktop(desktop), _color(traits.rounding)
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
    _color.keepFromDialog();
    _picker.reset();
}

bool EmbeddedPage::show(const LoadedPlugin& plugin, HostColorPanel& panel, HostView& holder,
                        const HostColor& color)
{
    _color.beginWith(color);
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
        _picker->setColor(this->color());
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
    if (!_color.setByDialog(color)) return;
    // `send` passes it to the page when the dialog has returned.
    if (_isSending || _picker == nullptr) return;
    guarded([this] { _picker->setColor(this->color()); });
}

void EmbeddedPage::setColor(const std::optional<HostColor>& color)
{
    if (!_color.setByPage(color)) return;
    if (_picker != nullptr) _picker->setColor(this->color());
    sendLater();
}

void EmbeddedPage::sendLater()
{
    _sendTimer = _desktop.scheduleTimer(0, [this] { send(!_color.isInSteps()); });
}

void EmbeddedPage::sendPendingColor()
{
    send(true);
}

void EmbeddedPage::send(bool isFinal)
{
    if (_dialog == nullptr || _hasFailed) return;
    const auto sent = _color.takeForDialog(isFinal);
    if (!sent) return;
    const std::weak_ptr<const bool> life = _life;
    const bool wasSending = std::exchange(_isSending, true);
    try {
        _dialog->colorChosen(*sent, isFinal);
    } catch (...) {
        if (!life.expired()) fail();
    }
    if (life.expired()) return;
    _isSending = wasSending;
    if (color() != *sent && !_isSending && _picker != nullptr) {
        guarded([this] { _picker->setColor(color()); });
    }
}

void EmbeddedPage::changeDidEnd()
{
    _color.stepsEnd();
    sendLater();
}

void EmbeddedPage::forgetDialog()
{
    _dialog = nullptr;
    _color.keepFromDialog();
}

void EmbeddedPage::fail() noexcept
{
    if (std::exchange(_hasFailed, true)) return;
    _color.keepFromDialog();
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
