#include "panel/pages/DialogPage.h"

#include "hosts/qt/QtColors.h"
#include "hosts/qt/TextScale.h"
#include "panel/widgets/PanelIcons.h"

#include <QSignalBlocker>

namespace vantorel {

QString DialogPage::name() const
{
    return tr("Colour dialog");
}

QString DialogPage::toolTip() const
{
    return tr("Colour dialog");
}

QIcon DialogPage::icon() const
{
    return dialogPageIcon();
}

QSize DialogPage::minimumSize() const
{
    return _dialog ? _dialog->sizeHint() / textScale() : QSize(0, 0);
}

QWidget* DialogPage::makeWidget()
{
    _dialog = new QColorDialog;
    _dialog->setWindowFlags(Qt::Widget);
    _dialog->setOptions(QColorDialog::NoButtons | QColorDialog::DontUseNativeDialog |
                        QColorDialog::ShowAlphaChannel);
    connect(_dialog, &QColorDialog::currentColorChanged, this,
            [this](const QColor& color) { emit colorChosen(hostColorFrom(color)); });
    return _dialog;
}

void DialogPage::setColor(const HostColor& color)
{
    if (!_dialog) return;
    const QColor wanted = qColorFrom(color);
    // The dialog rounds, so setting the colour that it has just reported would lose precision.
    if (!wanted.isValid() || _dialog->currentColor().rgba() == wanted.rgba()) return;
    const QSignalBlocker blocker(_dialog);
    _dialog->setCurrentColor(wanted);
}

std::vector<ShortcutRow> DialogPage::shortcuts() const
{
    return {
        {tr("Move in the colours"),
         shownKeys({Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down})},
        {tr("Take the colour"), shownKeys({Qt::Key_Space})},
    };
}

}  // namespace vantorel
