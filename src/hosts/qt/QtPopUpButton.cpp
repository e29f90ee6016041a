#include "hosts/qt/QtPopUpButton.h"

#include "hosts/qt/DisplayNames.h"
#include "hosts/qt/QtCanvas.h"
#include "hosts/qt/QtColors.h"
#include "hosts/qt/QtItemList.h"
#include "hosts/qt/QtMenu.h"
#include "hosts/qt/TypeAhead.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QStyleOptionComboBox>
#include <QStylePainter>

#include <algorithm>

namespace vantorel {
namespace {

bool canBeChosen(const HostMenuItem& item)
{
    return !item.separator && !item.submenu;
}

}  // namespace

class QtPopUpButton::Widget final : public QAbstractButton {
public:
    explicit Widget(QtPopUpButton& owner) : _owner(owner)
    {
        setFocusPolicy(Qt::StrongFocus);
        setAttribute(Qt::WA_Hover);
        connect(this, &QAbstractButton::pressed, this, [this] {
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
        option.currentText = displayName(_owner.titleOfSelectedItem().value_or(u""));
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
        const bool alt = (event->modifiers() & Qt::AltModifier) != 0;
        switch (event->key()) {
            case Qt::Key_Space:
                if (_typeAhead.isSearching()) break;
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
                    chooseNeighbour(1);
                }
                return;
            case Qt::Key_Up:
                chooseNeighbour(-1);
                return;
            default:
                break;
        }
        if (!event->text().isEmpty() && event->text().at(0).isPrint()) {
            search(event->text());
        } else {
            QAbstractButton::keyPressEvent(event);
        }
    }

private:
    void chooseNeighbour(int step)
    {
        const HostMenu& menu = _owner.menu();
        for (int i = _owner.indexOfSelectedItem() + step; i >= 0 && i < _owner.numberOfItems();
             i += step) {
            if (canBeChosen(menu[static_cast<std::size_t>(i)])) {
                _owner.chooseItem(i);
                return;
            }
        }
    }

    void search(const QString& typed)
    {
        const int found = _typeAhead.find(
            typed, _owner.indexOfSelectedItem(), _owner.numberOfItems(),
            [&](int index, const QString& start) {
                const HostMenuItem& item = _owner.menu()[static_cast<std::size_t>(index)];
                return canBeChosen(item) &&
                       displayName(item.title).startsWith(start, Qt::CaseInsensitive);
            });
        if (found >= 0) _owner.chooseItem(found);
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

void QtPopUpButton::chooseItem(int index)
{
    if (index < 0 || index >= numberOfItems()) return;
    // A copy, because the action may rebuild the menu.
    const HostMenuItem item = menu()[static_cast<std::size_t>(index)];
    if (!canBeChosen(item)) return;
    if (item.action) {
        item.action(item);
        return;
    }
    selectItemAtIndex(index);
    sendAction();
}

void QtPopUpButton::chooseOpened(const HostMenuItem& item, int index)
{
    // The items may have changed while they were shown.
    const bool unchanged =
        index < numberOfItems() && menu()[static_cast<std::size_t>(index)].title == item.title;
    chooseItem(unchanged ? index : indexOfItemWithTitle(item.title));
}

void QtPopUpButton::openMenu()
{
    sendWillPopUp();
    QWidget* shown = widget();
    const auto choose = [this](const HostMenuItem& item, int index) { chooseOpened(item, index); };
    const bool hasSubmenus =
        std::any_of(menu().begin(), menu().end(),
                    [](const HostMenuItem& item) { return item.submenu != nullptr; });
    if (hasSubmenus) {
        QMenu* opened = makeMenu(menu(), indexOfSelectedItem(), *shown, choose);
        opened->setMinimumWidth(shown->width());
        opened->popup(shown->mapToGlobal(QPoint(0, shown->height())));
    } else {
        auto* opened = new QtItemList(menu(), indexOfSelectedItem(), *shown);
        QObject::connect(opened, &QtItemList::chosen, shown, choose);
        opened->openBeside(QRect(shown->mapToGlobal(QPoint(0, 0)), shown->size()));
    }
}

}  // namespace vantorel
