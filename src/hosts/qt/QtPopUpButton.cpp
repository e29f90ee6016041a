#include "hosts/qt/QtPopUpButton.h"

#include "hosts/common/PopUpChoice.h"
#include "hosts/common/TypeAhead.h"
#include "hosts/qt/DisplayNames.h"
#include "hosts/qt/EventGuard.h"
#include "hosts/qt/QtCanvas.h"
#include "hosts/qt/QtColors.h"
#include "hosts/qt/QtItemList.h"
#include "hosts/qt/QtMenu.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QStyleOptionComboBox>
#include <QStylePainter>

namespace vantorel {

class QtPopUpButton::Widget final : public QAbstractButton {
public:
    explicit Widget(QtPopUpButton& owner) : _owner(owner)
    {
        setFocusPolicy(Qt::StrongFocus);
        setAttribute(Qt::WA_Hover);
        connect(this, &QAbstractButton::pressed, this, [this] {
            const WidgetReaction reaction;
            setDown(false);
            _owner.openMenu();
        });
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QStyleOptionComboBox option;
        option.initFrom(this);
        option.subControls = QStyle::SC_All;
        option.editable = false;
        option.currentText = shownTitleOfSelectedItem(_owner);
        QStylePainter painter(this);
        painter.drawComplexControl(QStyle::CC_ComboBox, option);
        paintLabel(painter, option);
    }

    /// The style does not use all of the room up to the arrow, which matters in a button as narrow
    /// as ours. The picture is painted directly: of icons Qt would keep the name until the program
    /// exits, and each step of a drag has another picture.
    void paintLabel(QStylePainter& painter, const QStyleOptionComboBox& option) const
    {
        QRect room = style()->subControlRect(QStyle::CC_ComboBox, &option,
                                             QStyle::SC_ComboBoxEditField, this);
        room.adjust(2, 0, 5, 0);
        const int selected = _owner.indexOfSelectedItem();
        if (selected != noItem) {
            const auto& image = _owner.menu()[static_cast<std::size_t>(selected)].image;
            if (image) {
                const QPixmap picture = pixmapOfImage(*image, devicePixelRatioF());
                const int width = pictureSize(*image).toSize().width();
                drawInMiddle(painter, picture,
                             QRectF(room.left(), room.top(), width, room.height()));
                room.setLeft(room.left() + width + 4);
            }
        }
        const QString text =
            fontMetrics().elidedText(option.currentText, Qt::ElideRight, room.width());
        painter.drawItemText(room, Qt::AlignLeft | Qt::AlignVCenter, option.palette, isEnabled(),
                             text, QPalette::ButtonText);
    }

    void keyPressEvent(QKeyEvent* event) override
    {
        const WidgetReaction reaction;
        const bool alt = (event->modifiers() & Qt::AltModifier) != 0;
        switch (event->key()) {
            case Qt::Key_Space:
                if (_typeAhead.takes(u" ")) break;
                _owner.openMenu();
                return;
            case Qt::Key_Return:
            case Qt::Key_Enter:
                _owner.openMenu();
                return;
            case Qt::Key_Down:
                if (alt) {
                    _owner.openMenu();
                } else {
                    chooseNeighbour(_owner, 1);
                }
                return;
            case Qt::Key_Up:
                chooseNeighbour(_owner, -1);
                return;
            default:
                break;
        }
        if (const std::u16string typed = u16From(event->text()); _typeAhead.takes(typed)) {
            search(typed);
        } else {
            QAbstractButton::keyPressEvent(event);
        }
    }

    void hideEvent(QHideEvent* event) override
    {
        QAbstractButton::hideEvent(event);
        if (_owner._opened) _owner._opened->close();
    }

private:
    void search(std::u16string_view typed)
    {
        const int found = _typeAhead.find(
            typed, _owner.indexOfSelectedItem(), _owner.numberOfItems(),
            [&](int index, const std::u16string& prefix) {
                const HostMenuItem& item = _owner.menu()[static_cast<std::size_t>(index)];
                return canBeChosen(item) &&
                       shownTitle(item).startsWith(qStringFrom(prefix), Qt::CaseInsensitive);
            });
        if (found >= 0) chooseItem(_owner, found);
    }

    QtPopUpButton& _owner;
    TypeAhead _typeAhead;
};

QtPopUpButton::QtPopUpButton(const HostControlDescription& description)
    : QtMirrored(description.frame, new Widget(*this))
{
    widget()->setFont(fontOf(description));
    widget()->setAccessibleName(qStringFrom(description.accessibleName));
}

void QtPopUpButton::menuDidChange()
{
    if (QWidget* shown = widget()) shown->update();
}

void QtPopUpButton::openMenu()
{
    sendWillPopUp();
    QWidget* shown = widget();
    if (shown == nullptr || menu().empty()) return;
    const auto choose = [this](const HostMenuItem& item, int index) {
        const WidgetReaction reaction;
        EventGuard::run(*widget(), [&] { chooseOpenedItem(*this, item, index); });
    };
    if (hasSubmenus(menu())) {
        QMenu* opened = makeMenu(menu(), indexOfSelectedItem(), *shown, choose);
        _opened = opened;
        opened->setMinimumWidth(shown->width());
        opened->popup(shown->mapToGlobal(QPoint(0, shown->height())));
    } else {
        auto* opened = new QtItemList(menu(), indexOfSelectedItem(), *shown);
        _opened = opened;
        QObject::connect(opened, &QtItemList::chosen, shown, choose);
        opened->openBeside(QRect(shown->mapToGlobal(QPoint(0, 0)), shown->size()));
    }
}

}  // namespace vantorel
