#include "hosts/qt/QtMenu.h"

#include "hosts/common/PopUpList.h"
#include "hosts/common/TypeAhead.h"
#include "hosts/qt/DisplayNames.h"
#include "hosts/qt/EventGuard.h"
#include "hosts/qt/PlainText.h"
#include "hosts/qt/QtCanvas.h"
#include "hosts/qt/QtColors.h"
#include "hosts/qt/QtTranslations.h"
#include "hosts/qt/StyleHints.h"
#include "hosts/qt/TextScale.h"

#include <QKeyEvent>
#include <QProxyStyle>
#include <QStyleOption>

namespace vantorel {
namespace {

/// The application's style, but long menus scroll, and rows are as high as in lists.
class LongMenuStyle final : public QProxyStyle {
public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override
    {
        return hint == SH_Menu_Scrollable ? 1
                                          : QProxyStyle::styleHint(hint, option, widget, returned);
    }

    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override
    {
        QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
        const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
        if (type == CT_MenuItem && item != nullptr &&
            item->menuItemType != QStyleOptionMenuItem::Separator) {
            size.setHeight(popUpRowHeight(item->fontMetrics.height(), textScale()));
        }
        return size;
    }
};

class LongMenu final : public QMenu {
public:
    explicit LongMenu(QWidget* parent) : QMenu(parent)
    {
        EventGuard::watch(*this);
        if (style()->styleHint(stylePaintsHostControls) != 0) return;
        auto* style = new LongMenuStyle;
        style->setParent(this);
        setStyle(style);
    }

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        const std::u16string typed = u16From(event->text());
        const bool isSearch =
            _typeAhead.takes(typed) && (event->modifiers() & ~Qt::ShiftModifier) == 0;
        if (isSearch) {
            search(typed);
        } else {
            QMenu::keyPressEvent(event);
        }
    }

private:
    void search(std::u16string_view typed)
    {
        const QList<QAction*> items = actions();
        const int found = _typeAhead.find(
            typed, static_cast<int>(items.indexOf(activeAction())), static_cast<int>(items.size()),
            [&](int index, const std::u16string& prefix) {
                const QAction* item = items.at(index);
                QString title = item->text();
                title.replace(QStringLiteral("&&"), QStringLiteral("&"));
                return item->isEnabled() && !item->isSeparator() &&
                       title.startsWith(qStringFrom(prefix), Qt::CaseInsensitive);
            });
        if (found >= 0) setActiveAction(items.at(found));
    }

    TypeAhead _typeAhead;
};

void fillMenu(QMenu& target, const HostMenu& items, int selected, const QtMenuChoice& choose);

void addSubmenu(QMenu& target, const HostMenuItem& item)
{
    auto* submenu = new LongMenu(&target);
    submenu->setTitle(plainTitle(shownTitle(item)));
    target.addMenu(submenu);
    submenu->setFont(target.font());
    QObject::connect(submenu, &QMenu::aboutToShow, submenu, [submenu, make = item.submenu] {
        submenu->clear();
        fillMenu(*submenu, make(), -1, [](const HostMenuItem& chosen, int) {
            if (chosen.action) chosen.action(chosen);
        });
        // An empty menu would not open, without any explanation.
        if (submenu->isEmpty()) {
            submenu->addAction(plainTitle(translatedText(u"None")))->setEnabled(false);
        }
    });
}

void fillMenu(QMenu& target, const HostMenu& items, int selected, const QtMenuChoice& choose)
{
    for (std::size_t i = 0; i < items.size(); ++i) {
        const HostMenuItem& item = items[i];
        const int index = static_cast<int>(i);
        if (item.separator) {
            target.addSeparator();
        } else if (item.submenu) {
            addSubmenu(target, item);
        } else {
            QAction* action = target.addAction(plainTitle(shownTitle(item)));
            if (item.image) action->setIcon(pixmapOfImage(*item.image, target.devicePixelRatioF()));
            if (index == selected) {
                action->setCheckable(true);
                action->setChecked(true);
            }
            QObject::connect(action, &QAction::triggered, &target,
                             [item, index, choose] { choose(item, index); });
        }
    }
}

}  // namespace

QMenu* makeMenu(const HostMenu& items, int selected, QWidget& parent, const QtMenuChoice& choose)
{
    auto* menu = new LongMenu(&parent);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setFont(parent.font());
    fillMenu(*menu, items, selected, choose);
    const auto actions = menu->actions();
    if (selected >= 0 && selected < actions.size()) menu->setActiveAction(actions.at(selected));
    return menu;
}

}  // namespace vantorel
