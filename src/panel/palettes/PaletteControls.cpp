#include "panel/palettes/PaletteControls.h"

#include "hosts/qt/PlainText.h"
#include "hosts/qt/QtColors.h"
#include "hosts/qt/TextScale.h"

#include <QAction>

namespace vantorel::palettecontrols {
namespace {

constexpr int iconPoints = 16;

}  // namespace

QLabel* newLabel(QWidget* parent, const char* name)
{
    auto* label = new PlainLabel(parent);
    label->setObjectName(QString::fromLatin1(name));
    label->setFont(fontOfSize(10));
    label->setForegroundRole(QPalette::PlaceholderText);
    return label;
}

QToolButton* newButton(QWidget* parent)
{
    auto* button = new QToolButton(parent);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setIconSize(QSize(scaled(iconPoints), scaled(iconPoints)));
    return button;
}

QToolButton* newButton(QWidget* parent, QAction* action)
{
    QToolButton* button = newButton(parent);
    button->setDefaultAction(action);
    button->setAccessibleName(action->text());
    // Only icons, because the text "Add" would not fit beside the others.
    button->setToolButtonStyle(Qt::ToolButtonIconOnly);
    return button;
}

}  // namespace vantorel::palettecontrols
