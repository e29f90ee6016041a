#include "hosts/qt-dialog/DialogPage.h"

#include "hosts/qt/QtColors.h"

#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QEvent>
#include <QTimer>
#include <QVariant>

#include <cmath>

namespace vantorel {
namespace {

constexpr const char* attachedProperty = "vantorelHasPage";
/// Of the holder's widget: the `DialogPage`.
constexpr const char* pageProperty = "vantorelDialogPage";

/// Qt's dialog cuts channels down to bytes; this rounds them.
QColor colorInBytes(const HostColor& color)
{
    const QColor exact = qColorFrom(color);
    const auto byte = [](auto fraction) { return static_cast<int>(std::lround(fraction * 255)); };
    return {byte(exact.redF()), byte(exact.greenF()), byte(exact.blueF()), byte(exact.alphaF())};
}

}  // namespace

void DialogPage::putInto(QColorDialog& dialog, const LoadedPlugin& plugin, QtDesktop& desktop)
{
    if (dialog.property(attachedProperty).isValid()) return;
    dialog.setProperty(attachedProperty, true);
    auto* page = new DialogPage(dialog, desktop);
    if (!page->show(plugin)) delete page;
}

DialogPage::DialogPage(QColorDialog& dialog, QtDesktop& desktop)
    : _dialog(&dialog), _panel(*this, desktop)
{
    _holder.widget()->setProperty(pageProperty, QVariant::fromValue<QObject*>(this));
}

DialogPage::~DialogPage() = default;

bool DialogPage::show(const LoadedPlugin& plugin)
{
    QColorDialog& shown = *dialog();
    if (!_panel.showPage(plugin, _holder, hostColorFrom(shown.currentColor()))) return false;
    _holder.setSizeDidChange([this] { _panel.page().resize(); });
    _panel.page().setTakesOpacity(shown.testOption(QColorDialog::ShowAlphaChannel));
    shown.installEventFilter(this);
    connect(&shown, &QColorDialog::currentColorChanged, this, [this](const QColor& color) {
        _panel.page().dialogColorDidChange(hostColorFrom(color));
    });
    connect(&shown, &QObject::destroyed, this, &DialogPage::dialogIsDestroyed);
    return true;
}

bool DialogPage::makeRoom(HostSize preferred, HostSize least)
{
    QColorDialog* shown = dialog();
    return shown != nullptr && _holder.putInto(*shown, preferred, least);
}

void DialogPage::pageHasThrown(QObject& widget)
{
    for (QObject* object = &widget; object != nullptr; object = object->parent()) {
        const auto found = object->property(pageProperty).value<QObject*>();
        if (auto* page = qobject_cast<DialogPage*>(found)) {
            page->_panel.page().guarded([] { throw; });
            return;
        }
    }
}

bool DialogPage::eventFilter(QObject* watched, QEvent* event)
{
    const QColorDialog* shown = dialog();
    if (shown == nullptr || watched != shown) return false;
    switch (event->type()) {
        case QEvent::Show:
            followButtons();
            _panel.page().dialogDidAppear();
            // Its options have no signal, but showing or hiding the opacity changes the layout.
            [[fallthrough]];
        case QEvent::LayoutRequest:
            _panel.page().setTakesOpacity(shown->testOption(QColorDialog::ShowAlphaChannel));
            break;
        case QEvent::Hide:
            _panel.page().dialogDidDisappear();
            break;
        default:
            break;
    }
    return false;
}

void DialogPage::followButtons()
{
    for (const auto* box : dialog()->window()->findChildren<QDialogButtonBox*>()) {
        for (QAbstractButton* button : box->buttons()) {
            if (box->buttonRole(button) != QDialogButtonBox::AcceptRole) continue;
            // Comes before `clicked`, however the button is operated.
            connect(button, &QAbstractButton::pressed, this, &DialogPage::finishEntry,
                    Qt::UniqueConnection);
        }
    }
}

void DialogPage::finishEntry()
{
    _panel.page().guarded([this] { _panel.finishEditing(); });
    _panel.page().sendPendingColor();
}

void DialogPage::colorChosen(const HostColor& color, bool)
{
    if (QColorDialog* shown = dialog()) shown->setCurrentColor(colorInBytes(color));
}

void DialogPage::pageDidFail()
{
    _holder.takeOut();
    deleteWhenIdle();
}

void DialogPage::dialogIsDestroyed()
{
    _panel.page().forgetDialog();
    // The page may be in the middle of a drag. It keeps its widgets until it has noticed the end.
    _holder.takeOut();
    deleteWhenIdle();
}

void DialogPage::deleteWhenIdle()
{
    if (_panel.page().isBusy()) {
        QTimer::singleShot(0, this, &DialogPage::deleteWhenIdle);
    } else {
        deleteLater();
    }
}

}  // namespace vantorel
