#include "panel/window/TabOrder.h"

#include <algorithm>
#include <iterator>

namespace vantorel {
namespace {

void sortAsRead(std::vector<QWidget*>& widgets, const QWidget& window)
{
    const auto place = [&](const QWidget* widget) {
        return QRect(widget->mapTo(&window, QPoint()), widget->size());
    };
    const auto isAbove = [&](const QWidget* a, const QWidget* b) {
        return place(a).center().y() < place(b).center().y();
    };
    std::stable_sort(widgets.begin(), widgets.end(), isAbove);
    for (auto row = widgets.begin(); row != widgets.end();) {
        // A widget without a height is below its own bottom.
        const auto end = std::find_if(std::next(row), widgets.end(), [&](const QWidget* widget) {
            return place(widget).center().y() > place(*row).bottom();
        });
        std::stable_sort(row, end, [&](const QWidget* a, const QWidget* b) {
            const int ahead = place(a).left() - place(b).left();
            return window.isRightToLeft() ? ahead > 0 : ahead < 0;
        });
        row = end;
    }
}

}  // namespace

void orderTabs(QWidget& window, const std::vector<const QWidget*>& groups)
{
    std::vector<std::vector<QWidget*>> members(groups.size());
    for (QWidget* widget = window.nextInFocusChain(); widget != &window;
         widget = widget->nextInFocusChain()) {
        if ((widget->focusPolicy() & Qt::TabFocus) == 0) continue;
        for (std::size_t i = 0; i < groups.size(); ++i) {
            if (groups[i] == widget || groups[i]->isAncestorOf(widget))
                members[i].push_back(widget);
        }
    }
    QWidget* last = nullptr;
    for (auto& group : members) {
        sortAsRead(group, window);
        for (QWidget* widget : group) {
            if (last != nullptr) QWidget::setTabOrder(last, widget);
            last = widget;
        }
    }
}

}  // namespace vantorel
