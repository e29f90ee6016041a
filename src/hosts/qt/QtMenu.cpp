#include "hosts/qt/QtMenu.h"

#include "hosts/qt/QtCanvas.h"
#include "hosts/qt/QtColors.h"

#include <QCoreApplication>
#include <QProxyStyle>

namespace vantorel {
namespace {

/// The application's style with the two habits that long menus need.
class LongMenuStyle final : public QProxyStyle {
public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override
    {
        if (hint == SH_Menu_KeyboardSearch || hint == SH_Menu_Scrollable) return 1;
        return QProxyStyle::styleHint(hint, option, widget, returned);
    }
};

/// "&" would make a mnemonic of the letter behind it.
QString menuTitle(const std::u16string& title)
{
    return qStringFrom(title).replace(u'&', QStringLiteral("&&"));
}

void prepare(QMenu& menu)
{
    auto* style = new LongMenuStyle;
    style->setParent(&menu);
    menu.setStyle(style);
}

void fillMenu(QMenu& target, const HostMenu& items, int selected, const QtMenuChoice& choose);

void addSubmenu(QMenu& target, const HostMenuItem& item)
{
    QMenu* submenu = target.addMenu(menuTitle(item.title));
    prepare(*submenu);
    submenu->setFont(target.font());
    QObject::connect(submenu, &QMenu::aboutToShow, submenu, [submenu, make = item.submenu] {
        submenu->clear();
        fillMenu(*submenu, make(), -1, [](const HostMenuItem& chosen, int) {
            if (chosen.action) chosen.action(chosen);
        });
        // An empty menu would not open, and say nothing.
        if (submenu->isEmpty()) {
            submenu->addAction(QCoreApplication::translate("Vantorel", "None"))->setEnabled(false);
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
            QAction* action = target.addAction(menuTitle(item.title));
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
    auto* menu = new QMenu(&parent);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setFont(parent.font());
    prepare(*menu);
    fillMenu(*menu, items, selected, choose);
    const auto actions = menu->actions();
    if (selected >= 0 && selected < actions.size()) menu->setActiveAction(actions.at(selected));
    return menu;
}

}  // namespace vantorel
