#include "QtUser.h"

#include "hosts/qt/QtColors.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QHelpEvent>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPointer>
#include <QTest>
#include <QWheelEvent>

#include <array>
#include <memory>

namespace vantorel {
namespace {

template <class Widget>
QList<Widget*> shownChildren(const QWidget& window)
{
    QList<Widget*> shown;
    for (Widget* widget : window.findChildren<Widget*>()) {
        if (widget->isVisible() && widget->isEnabled() && widget->window() == &window)
            shown.append(widget);
    }
    return shown;
}

Qt::KeyboardModifiers modifiersFrom(Choices& choices)
{
    constexpr std::array<Qt::KeyboardModifiers, 5> all{Qt::NoModifier, Qt::ShiftModifier,
                                                       Qt::ControlModifier, Qt::AltModifier,
                                                       Qt::ShiftModifier | Qt::ControlModifier};
    return choices.oneOf(all);
}

}  // namespace

QtUser::QtUser(PanelWindow& window, Choices& choices, Lists lists)
    : _window(window), _choices(choices), _lists(lists)
{
    _inLoops.setInterval(0);
    QObject::connect(&_inLoops, &QTimer::timeout, &_window, [this] { actInLoop(); });
}

void QtUser::act()
{
    _inLoops.start();
    const bool mayEdit = _lists == Lists::mayBeEdited || _window.pages().currentPicker() != nullptr;
    constexpr std::uint64_t lastOfAll = 17;
    constexpr std::uint64_t lastThatEditsNothing = 6;
    switch (_choices.integer(0, mayEdit ? lastOfAll : lastThatEditsNothing)) {
        case 0:
            _window.colors().setColor(color());
            break;
        case 1:
            _window.colors().undo();
            break;
        case 2:
            _window.colors().redo();
            break;
        case 3:
            _window.colors().swap();
            break;
        case 4:
            _choices.oneIn(2) ? _window.exchange().copy() : _window.exchange().paste();
            break;
        case 5:
            if (_choices.oneIn(10)) {
                _window.pages().showPage(static_cast<int>(
                    _choices.integer(0, static_cast<unsigned>(_window.pages().count() - 1))));
            } else {
                _window.pages().showPage(0);
            }
            break;
        case 6:
            resize();
            break;
        case 7:
            pressButton();
            break;
        case 8:
            openPopUp();
            break;
        case 9:
            type();
            break;
        case 10:
            pressKey();
            break;
        case 11:
            drop();
            break;
        case 12:
        case 13:
            pointAtSomething();
            break;
        case 14:
            compose();
            break;
        case 15:
            if (_lists == Lists::mayBeEdited) {
                _window.pages().showPage(static_cast<int>(
                    _choices.integer(0, static_cast<unsigned>(_window.pages().count() - 1))));
            }
            break;
        default:
            if (auto* colors = _window.findChild<QWidget*>(QStringLiteral("_hexColorsView"));
                colors != nullptr && colors->isVisible())
                press(*colors);
    }
    QApplication::processEvents();
    _inLoops.stop();
    _pressed = nullptr;
}

QPoint QtUser::placeIn(const QWidget& widget)
{
    constexpr int around = 20;
    return {static_cast<int>(_choices.between(-around, widget.width() + around)),
            static_cast<int>(_choices.between(-around, widget.height() + around))};
}

QString QtUser::text()
{
    static const QStringList usual{"navy", "n",  "rgb(1,2,3)", "#ff8000",
                                   "12",   "zz", "",           "oklch(0.7 0.1 50)"};
    if (_choices.oneIn(2)) return _choices.oneOf(usual);
    constexpr std::size_t longest = 200;
    return QString::fromLatin1(QByteArray::fromStdString(_choices.bytes(longest)));
}

HostColor QtUser::color()
{
    const double red = _choices.fraction();
    const double green = _choices.fraction();
    const double blue = _choices.fraction();
    return HostColor::colorWithCalibratedRed(red, green, blue, _choices.fraction());
}

void QtUser::press(QWidget& target)
{
    _pressed = &target;
    // Some views track the mouse in their own event loop; actInLoop then releases it.
    QTest::mousePress(
        &target, Qt::LeftButton, modifiersFrom(_choices),
        target.rect().center() / 2 + QPoint(static_cast<int>(_choices.integer(0, 99)),
                                            static_cast<int>(_choices.integer(0, 99))));
    if (_pressed != nullptr) {
        QTest::mouseMove(&target, placeIn(target));
        QTest::mouseRelease(&target, Qt::LeftButton, {}, placeIn(target));
    }
    _pressed = nullptr;
}

void QtUser::pointAtSomething()
{
    const QList<QWidget*> widgets = shownChildren<QWidget>(_window);
    if (widgets.isEmpty()) return;
    QWidget& target = *_choices.oneOf(widgets);
    const QPoint place = placeIn(target);
    switch (_choices.integer(0, 3)) {
        case 0:
            turnWheel(target);
            break;
        case 1: {
            QTest::mouseMove(&target, place);
            QHelpEvent help(QEvent::ToolTip, place, target.mapToGlobal(place));
            QApplication::sendEvent(&target, &help);
            break;
        }
        case 2: {
            // The panel's buttons are left to pressButton, which knows those that leave it.
            if (qobject_cast<QAbstractButton*>(&target) != nullptr) break;
            doubleClick(target, place);
            break;
        }
        default: {
            QContextMenuEvent menu(QContextMenuEvent::Mouse, place, target.mapToGlobal(place));
            QApplication::sendEvent(&target, &menu);
        }
    }
}

void QtUser::doubleClick(QWidget& target, QPoint place)
{
    const QPointer<QWidget> clicked(&target);
    _pressed = &target;
    QMouseEvent event(QEvent::MouseButtonDblClick, place, target.mapToGlobal(QPointF(place)),
                      Qt::LeftButton, Qt::LeftButton, modifiersFrom(_choices));
    QApplication::sendEvent(&target, &event);
    if (_pressed != nullptr && clicked) QTest::mouseRelease(&target, Qt::LeftButton, {}, place);
    _pressed = nullptr;
}

void QtUser::turnWheel(QWidget& target)
{
    constexpr std::array steps{-1200, -120, -1, 0, 1, 120, 1200};
    const QPointF place = target.rect().center();
    const QPoint angle(_choices.oneOf(steps), _choices.oneOf(steps));
    QWheelEvent wheel(place, target.mapToGlobal(place), QPoint(), angle, Qt::NoButton,
                      modifiersFrom(_choices), Qt::NoScrollPhase, false);
    QApplication::sendEvent(&target, &wheel);
}

void QtUser::compose()
{
    QWidget* target = _window.focusWidget();
    if (target == nullptr) return;
    QInputMethodEvent event(text(), {});
    if (_choices.oneIn(2)) event.setCommitString(text());
    QApplication::sendEvent(target, &event);
}

void QtUser::pressButton()
{
    // These would leave the panel: for the browser, or for the whole screen.
    const auto leaves = [this](const QAbstractButton* button) {
        const auto* tool = qobject_cast<const QToolButton*>(button);
        return button->objectName() == QLatin1String("helpButton") ||
               (tool != nullptr && tool->defaultAction() == &_window.commands().pick());
    };
    QList<QAbstractButton*> buttons = shownChildren<QAbstractButton>(_window);
    buttons.removeIf(leaves);
    if (!buttons.isEmpty()) _choices.oneOf(buttons)->click();
}

void QtUser::openPopUp()
{
    const QList<QComboBox*> popUps = shownChildren<QComboBox>(_window);
    if (!popUps.isEmpty()) QTest::mousePress(_choices.oneOf(popUps), Qt::LeftButton);
}

void QtUser::type()
{
    const QList<QLineEdit*> fields = shownChildren<QLineEdit>(_window);
    if (fields.isEmpty()) return;
    const QPointer<QLineEdit> field = _choices.oneOf(fields);
    field->setFocus();
    if (_choices.oneIn(2)) field->selectAll();
    for (const QChar character : text().left(12)) {
        if (!field) return;
        QKeyEvent key(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, character);
        QApplication::sendEvent(field, &key);
    }
    constexpr std::array keys{Qt::Key_Return, Qt::Key_Escape, Qt::Key_Tab, Qt::Key_Backspace};
    if (field) QTest::keyClick(field.data(), _choices.oneOf(keys));
}

void QtUser::pressKey()
{
    constexpr std::array keys{Qt::Key_Tab,  Qt::Key_Backtab, Qt::Key_Up, Qt::Key_Down,
                              Qt::Key_Left, Qt::Key_Right,   Qt::Key_X,  Qt::Key_Space,
                              Qt::Key_Home, Qt::Key_End,     Qt::Key_F1, Qt::Key_Escape,
                              Qt::Key_Z,    Qt::Key_C,       Qt::Key_V,  Qt::Key_PageDown};
    QWidget* target = _window.focusWidget();
    QTest::keyClick(target != nullptr ? target : &_window, _choices.oneOf(keys),
                    modifiersFrom(_choices) & ~Qt::KeyboardModifiers(Qt::AltModifier));
}

void QtUser::drop()
{
    const QList<QWidget*> all = shownChildren<QWidget>(_window);
    QList<QWidget*> targets;
    for (QWidget* widget : all) {
        if (widget->acceptDrops()) targets.append(widget);
    }
    if (targets.isEmpty()) return;
    QWidget* target = _choices.oneOf(targets);
    QMimeData data;
    if (_choices.oneIn(2)) data.setText(text());
    if (_choices.oneIn(2)) data.setColorData(qColorFrom(color()));
    if (_choices.oneIn(3)) {
        const std::string bytes = _choices.bytes(64);
        data.setData(QStringLiteral("application/x-color"), QByteArray::fromStdString(bytes));
    }
    const QPointF at = target->rect().center();
    QDragEnterEvent enter(at.toPoint(), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &enter);
    if (!enter.isAccepted()) return;
    QDropEvent dropped(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &dropped);
}

void QtUser::resize()
{
    _window.resize(static_cast<int>(_choices.integer(100, 700)),
                   static_cast<int>(_choices.integer(100, 900)));
}

void QtUser::actInLoop()
{
    if (QWidget* popUp = QApplication::activePopupWidget()) {
        handlePopUp(*popUp);
    } else if (QWidget* dialog = QApplication::activeModalWidget()) {
        dialog->close();
    } else if (_pressed != nullptr) {
        QWidget& target = *std::exchange(_pressed, nullptr);
        QTest::mouseMove(&target, placeIn(target));
        QTest::mouseRelease(&target, Qt::LeftButton, {}, placeIn(target));
    }
}

void QtUser::handlePopUp(QWidget& popUp)
{
    constexpr std::array keys{Qt::Key_Down, Qt::Key_Down,  Qt::Key_Up,
                              Qt::Key_End,  Qt::Key_Right, Qt::Key_Escape};
    // A command of the panel's own menu could leave it.
    const bool isPanelsMenu = &popUp == &_window.commands().menu();
    const Qt::Key key = _choices.oneIn(4) && !isPanelsMenu ? Qt::Key_Return : _choices.oneOf(keys);
    QTest::keyClick(&popUp, key);
    if (_choices.oneIn(10)) popUp.close();
}

}  // namespace vantorel
