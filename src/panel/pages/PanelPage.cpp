#include "panel/pages/PanelPage.h"

#include <QStringList>

namespace vantorel {

QString shownKeys(const QList<QKeySequence>& keys)
{
    QStringList texts;
    for (const QKeySequence& key : keys) {
        // Keys of old workstations, which Qt adds to Copy and Undo; today's keyboards have none.
        const bool isSeldom = key[0].key() >= Qt::Key_F13 && key[0].key() <= Qt::Key_F35;
        if (!isSeldom) texts.append(key.toString(QKeySequence::NativeText));
    }
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
