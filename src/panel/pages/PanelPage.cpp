#include "panel/pages/PanelPage.h"

namespace vantorel {

QString PanelPage::identifier() const
{
    return key();
}

void PanelPage::finishEditing() {}

HostColorPicker* PanelPage::picker() const
{
    return nullptr;
}

HostView* PanelPage::view() const
{
    return nullptr;
}

}  // namespace vantorel
