#include "panel/pages/WidgetPage.h"

#include "hosts/qt/QtView.h"
#include "hosts/qt/TextScale.h"

namespace vantorel {

WidgetPage::~WidgetPage()
{
    // Its parent may have deleted it.
    delete _widget.data();
}

void WidgetPage::show(HostView& holder)
{
    if (!_widget) _widget = makeWidget();
    _widget->setParent(widgetOf(&holder));
    _widget->show();
    resize(holder.frame().size());
}

void WidgetPage::hide()
{
    if (!_widget) return;
    _widget->hide();
    _widget->setParent(nullptr);
}

void WidgetPage::resize(HostSize size)
{
    if (_widget) _widget->setGeometry(0, 0, scaled(size.width), scaled(size.height));
}

}  // namespace vantorel
