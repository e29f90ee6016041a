#include "HostUnderTest.h"

#include "hosts/common/ViewTree.h"
#include "hosts/qt/QtColorPanel.h"
#include "hosts/qt/QtColors.h"
#include "hosts/qt/QtCustomView.h"
#include "hosts/qt/QtTextField.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QDrag>
#include <QElapsedTimer>
#include <QListView>
#include <QMenu>
#include <QMimeData>
#include <QTest>
#include <QTextDocument>
#include <QTimer>
#include <QWheelEvent>

namespace vantorel {
namespace {

class QtToolkitPanel : public QtColorPanel {
public:
    QtToolkitPanel(QtDesktop& desktop, HostView& root) : QtColorPanel(desktop), _root(root) {}
    using QtColorPanel::pageDidAppear;

protected:
    [[nodiscard]] HostView* pageView() const override { return &_root; }
    bool takeText(const QString&) override { return false; }

private:
    HostView& _root;
};

Qt::KeyboardModifiers modifiersFrom(std::uint64_t flags)
{
    Qt::KeyboardModifiers modifiers;
    modifiers.setFlag(Qt::ShiftModifier, (flags & shiftModifierFlag) != 0);
    modifiers.setFlag(Qt::ControlModifier, (flags & controlModifierFlag) != 0);
    modifiers.setFlag(Qt::AltModifier, (flags & alternateModifierFlag) != 0);
    return modifiers;
}

int qtKeyOf(HandKey key)
{
    switch (key) {
        case HandKey::enter:
            return Qt::Key_Return;
        case HandKey::escape:
            return Qt::Key_Escape;
        case HandKey::backspace:
            return Qt::Key_Backspace;
        case HandKey::up:
            return Qt::Key_Up;
        case HandKey::down:
            return Qt::Key_Down;
        case HandKey::left:
            return Qt::Key_Left;
        case HandKey::space:
            return Qt::Key_Space;
        case HandKey::tab:
            break;
    }
    return Qt::Key_Tab;
}

/// Reads what drags out of a widget carry. Without a screen a drag is over at once.
class DragWatch final : public QObject {
public:
    explicit DragWatch(std::optional<HostPasteboardItem>& carried) : _carried(carried) {}

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() != QEvent::ChildAdded) return false;
        QObject* child = static_cast<QChildEvent*>(event)->child();
        // A drag gets its data after it has been made.
        QMetaObject::invokeMethod(
            child,
            [this, child] {
                if (const auto* drag = qobject_cast<QDrag*>(child)) read(*drag->mimeData());
            },
            Qt::QueuedConnection);
        return false;
    }

private:
    void read(const QMimeData& data)
    {
        if (data.hasColor()) {
            const auto words = data.colorData().value<QColor>().rgba64();
            constexpr double most = 65535;
            _carried = HostColor::colorWithCalibratedRed(words.red() / most, words.green() / most,
                                                         words.blue() / most, words.alpha() / most);
        } else {
            _carried = data.text().toStdString();
        }
    }

    std::optional<HostPasteboardItem>& _carried;
};

class QtUnderTest final : public HostUnderTest {
public:
    QtUnderTest() : _window(new QWidget)
    {
        _root.widget()->setParent(_window);
        _root.widget()->show();
        resizeWindow({300, 200});
    }
    QtUnderTest(const QtUnderTest&) = delete;
    QtUnderTest& operator=(const QtUnderTest&) = delete;
    ~QtUnderTest() override
    {
        QCursor::setPos(pointerElsewhere, pointerElsewhere);
        _panel.page().close();
        destroyWindow();
    }

    HostDesktop& desktop() override { return _desktop; }
    HostColorPanel& panel() override { return _panel; }
    EmbeddedPage& page() override { return _panel.page(); }
    bool showPage(const LoadedPlugin& plugin) override
    {
        if (!_panel.showPage(plugin, _root, HostColor::blackColor())) return false;
        _panel.pageDidAppear();
        return true;
    }

    HostView& root() override { return _root; }
    void showWindow() override
    {
        _window->show();
        _window->activateWindow();
        static_cast<void>(runUntil([this] { return _window->isActiveWindow(); }));
        handleEvents();
    }
    void resizeWindow(HostSize size) override
    {
        const QSize pixels(static_cast<int>(size.width), static_cast<int>(size.height));
        _window->resize(pixels);
        _root.setFrame({0, 0, size.width, size.height});
        _root.widget()->resize(pixels);
        _panel.page().resize();
    }
    void destroyWindow() override
    {
        delete _window.data();
        handleEvents();
    }
    void handleEvents() override
    {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    bool runUntil(const std::function<bool()>& hasHappened) override
    {
        constexpr int longest = 10000;
        constexpr int pause = 20;
        QElapsedTimer clock;
        clock.start();
        while (!hasHappened()) {
            if (clock.elapsed() > longest) return false;
            QCoreApplication::processEvents(QEventLoop::AllEvents, pause);
        }
        return true;
    }

    void clickInto(HostTextField& field) override
    {
        QWidget* edit = widgetOf(&field);
        QTest::mouseClick(edit, Qt::LeftButton, {}, {edit->width() - 4, edit->height() / 2});
        handleEvents();
    }
    void type(HostTextField& field, const std::u16string& text) override
    {
        const QPointer<QWidget> edit = widgetOf(&field);
        const QString whole = qStringFrom(text);
        for (int i = 0; i < whole.size() && edit != nullptr;) {
            const int length = whole[i].isHighSurrogate() ? 2 : 1;
            QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, whole.mid(i, length));
            QApplication::sendEvent(edit, &press);
            i += length;
            handleEvents();
        }
    }
    bool pressKey(HostView& control, HandKey key, std::uint64_t modifierFlags) override
    {
        QKeyEvent press(QEvent::KeyPress, qtKeyOf(key), modifiersFrom(modifierFlags));
        QApplication::sendEvent(widgetOf(&control), &press);
        handleEvents();
        return press.isAccepted();
    }
    void clickAcross(HostTextField& field, const std::vector<HostEvent>& events) override
    {
        const QPointer<QWidget> edit = widgetOf(&field);
        const HostRect bounds = field.bounds();
        for (const HostEvent& event : events) {
            if (edit != nullptr && edit->isVisible()) sendTurn(*edit, bounds, event);
            handleEvents();
        }
    }
    void click(HostButton& button) override
    {
        QTest::mouseClick(widgetOf(&button), Qt::LeftButton, {}, {8, 8});
        handleEvents();
    }
    void open(HostPopUpButton& popUp) override
    {
        QTest::mousePress(widgetOf(&popUp), Qt::LeftButton);
        handleEvents();
    }
    bool choose(const std::vector<std::u16string>& path) override
    {
        QWidget* opened = QApplication::activePopupWidget();
        bool isChosen = false;
        if (auto* menu = qobject_cast<QMenu*>(opened)) {
            isChosen = chooseInMenu(*menu, path);
        } else if (opened != nullptr) {
            isChosen = chooseInList(*opened->findChild<QListView*>(), path);
        }
        handleEvents();
        while (!isChosen && hasOpenMenu())
            QApplication::activePopupWidget()->close();
        handleEvents();
        return isChosen;
    }
    bool hasOpenMenu() override { return QApplication::activePopupWidget() != nullptr; }

    void turnMouse(HostCustomView& view, std::vector<HandStep> steps) override
    {
        const QPointer<QWidget> widget = widgetOf(&view);
        DragWatch watch(_carried);
        widget->installEventFilter(&watch);
        takeSteps(std::move(steps), [&](const HandStep& step) {
            if (const auto* function = std::get_if<std::function<void()>>(&step)) {
                (*function)();
            } else if (widget != nullptr && widget->isVisible()) {
                sendTurn(*widget, view.bounds(), std::get<HostEvent>(step));
            }
        });
        handleEvents();
    }
    void movePointer(HostCustomView& view, std::optional<HostPoint> at) override
    {
        QWidget* widget = widgetOf(&view);
        if (at) {
            sendMouse(*widget, QEvent::MouseMove, widgetPoint(*at, view.bounds()), Qt::NoButton,
                      Qt::NoButton, 0);
        } else {
            QEvent leave(QEvent::Leave);
            QApplication::sendEvent(widget, &leave);
        }
    }
    void turnWheel(HostCustomView& view, const HostScrollEvent& turn) override
    {
        constexpr int step = 120;
        QWidget* widget = widgetOf(&view);
        const QPointF at = widgetPoint(turn.location, view.bounds());
        QWheelEvent event(at, widget->mapToGlobal(at), {}, {0, step * turn.steps}, Qt::NoButton,
                          modifiersFrom(turn.modifierFlags), Qt::NoScrollPhase, false);
        QApplication::sendEvent(widget, &event);
    }
    void placePointer(HostCustomView& view, HostPoint at) override
    {
        const QPointF place = widgetPoint(at, view.bounds());
        QCursor::setPos(widgetOf(&view)->mapToGlobal(place.toPoint()));
    }
    void pressOK() override
    {
        finishEditingBelow<QtTextField>(&_root);
        handleEvents();
    }

    std::optional<PixelRect> placeOf(const HostView& view) override
    {
        const QWidget* widget = widgetOf(&view);
        if (widget == nullptr || _root.widget() == nullptr || !widget->isVisible())
            return std::nullopt;
        const QPoint corner = widget->mapTo(_root.widget(), QPoint());
        return PixelRect{corner.x(), corner.y(), widget->width(), widget->height()};
    }
    std::u16string textIn(const HostTextField& field) override
    {
        const QWidget* widget = widgetOf(&field);
        const auto* edit = qobject_cast<const QLineEdit*>(widget);
        return u16From(edit != nullptr ? edit->text()
                                       : qobject_cast<const QLabel*>(widget)->text());
    }
    std::optional<HostSelection> selectionIn(const HostTextField& field) override
    {
        const auto* edit = qobject_cast<const QLineEdit*>(widgetOf(&field));
        if (!edit->hasFocus()) return std::nullopt;
        const auto caret = static_cast<std::size_t>(edit->cursorPosition());
        if (!edit->hasSelectedText()) return HostSelection{caret, 0};
        return HostSelection{static_cast<std::size_t>(edit->selectionStart()),
                             static_cast<std::size_t>(edit->selectedText().size())};
    }
    bool isOn(const HostButton& button) override
    {
        return qobject_cast<const QAbstractButton*>(widgetOf(&button))->isChecked();
    }
    std::optional<std::u16string> tipOf(const HostView& view) override
    {
        const QString tip = widgetOf(&view)->toolTip();
        if (tip.isEmpty()) return std::nullopt;
        if (!Qt::mightBeRichText(tip)) return u16From(tip);
        QTextDocument shown;
        shown.setHtml(tip);
        return u16From(shown.toPlainText());
    }
    std::array<int, 3> pixelAt(HostPoint inRoot) override
    {
        const QImage picture = _root.widget()->grab().toImage();
        const QPointF place = widgetPoint(inRoot, _root.bounds());
        const QColor color =
            picture.pixelColor(static_cast<int>(place.x()), static_cast<int>(place.y()) - 1);
        return {color.red(), color.green(), color.blue()};
    }
    std::string identifierOf(const HostView& view) override
    {
        const QWidget* widget = widgetOf(&view);
        return widget != nullptr ? widget->objectName().toStdString() : std::string();
    }
    std::optional<std::u16string> spokenNameOf(const HostView& view) override
    {
        QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(widgetOf(&view));
        return u16From(spoken != nullptr ? spoken->text(QAccessible::Name) : QString());
    }
    std::optional<HostPasteboardItem> carried() override { return _carried; }
    std::u16string textOnClipboard() override
    {
        return u16From(QGuiApplication::clipboard()->text());
    }

protected:
    void callLater(std::function<void()> function) override
    {
        // Not a queued call: several of them would be handled in one go.
        _later.disconnect();
        _later.setSingleShot(true);
        QObject::connect(&_later, &QTimer::timeout, &_later, function);
        _later.start(0);
    }

private:
    static constexpr int pointerElsewhere = 700;

    static void sendMouse(QWidget& widget, QEvent::Type type, QPointF at, Qt::MouseButton button,
                          Qt::MouseButtons buttons, std::uint64_t flags)
    {
        QMouseEvent event(type, at, widget.mapToGlobal(at), button, buttons, modifiersFrom(flags));
        QApplication::sendEvent(&widget, &event);
    }
    static void sendTurn(QWidget& widget, HostRect bounds, const HostEvent& event)
    {
        const QPointF at = widgetPoint(event.location, bounds);
        switch (event.type) {
            case HostEventType::leftMouseDown:
                sendMouse(widget, QEvent::MouseButtonPress, at, Qt::LeftButton, Qt::LeftButton,
                          event.modifierFlags);
                break;
            case HostEventType::leftMouseUp:
                sendMouse(widget, QEvent::MouseButtonRelease, at, Qt::LeftButton, Qt::NoButton,
                          event.modifierFlags);
                break;
            default:
                sendMouse(widget, QEvent::MouseMove, at, Qt::NoButton, Qt::LeftButton,
                          event.modifierFlags);
                break;
        }
    }

    static bool chooseInMenu(QMenu& first, const std::vector<std::u16string>& path)
    {
        QMenu* menu = &first;
        for (std::size_t i = 0; i < path.size(); ++i) {
            const bool isLast = i + 1 == path.size();
            QAction* found = nullptr;
            for (QAction* action : menu->actions()) {
                QString title = action->text();
                title.replace(QStringLiteral("&&"), QStringLiteral("&"));
                const bool isMeant = title == qStringFrom(path[i]) && action->isEnabled() &&
                                     !action->isSeparator() &&
                                     (action->menu() == nullptr) == isLast;
                if (found == nullptr && isMeant) found = action;
            }
            if (found == nullptr) return false;
            if (isLast) {
                QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(found).center());
            } else {
                menu->setActiveAction(found);
                QTest::keyClick(menu, Qt::Key_Right);
                menu = found->menu();
            }
        }
        return true;
    }
    static bool chooseInList(QListView& list, const std::vector<std::u16string>& path)
    {
        if (path.size() > 1) return false;
        for (int row = 0; row < list.model()->rowCount(); ++row) {
            const QModelIndex index = list.model()->index(row, 0);
            if (u16From(index.data().toString()) != path.front()) continue;
            list.scrollTo(index);
            QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(index).center());
            return true;
        }
        return false;
    }

    QPointer<QWidget> _window;
    QtDesktop _desktop;
    QtMirrored<HostView> _root{{0, 0, 300, 200}, new QWidget};
    PanelUnderTest<QtToolkitPanel> _panel{_dialog, EmbeddingTraits{}, _desktop, _root};
    std::optional<HostPasteboardItem> _carried;
    QTimer _later;
};

}  // namespace

std::unique_ptr<HostUnderTest> makeHostUnderTest()
{
    return std::make_unique<QtUnderTest>();
}

}  // namespace vantorel
