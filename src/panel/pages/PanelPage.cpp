#include "panel/pages/PanelPage.h"

#include <QStringList>

namespace vantorel {

QString shownKeys(const QList<QKeySequence>& keys)
{
    QStringList texts;
    for (const QKeySequence& key : keys)
        texts.append(key.toString(QKeySequence::NativeText));
    return texts.join(QStringLiteral(", "));
}

QString PanelPage::identifier() const
{
    return key();
}

void PanelPage::finishEditing() {}

bool PanelPage::performKey(const QKeyEvent&)
{
    return false;
}

std::vector<ShortcutRow> PanelPage::shortcuts() const
{
    return {};
}

HostColorPicker* PanelPage::picker() const
{
    return nullptr;
}

HostView* PanelPage::view() const
{
    return nullptr;
}

}  // namespace vantorel
