#include "panel/pages/DialogPage.h"

#include "hosts/qt/QtColors.h"
#include "hosts/qt/QtView.h"
#include "hosts/qt/TextScale.h"
#include "panel/widgets/PanelIcons.h"

#include <QSignalBlocker>

namespace vantorel {

DialogPage::~DialogPage()
{
    delete _dialog.data();
}

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

void DialogPage::show(HostView& holder)
{
    if (!_dialog) {
        _dialog = new QColorDialog;
        _dialog->setWindowFlags(Qt::Widget);
        _dialog->setOptions(QColorDialog::NoButtons | QColorDialog::DontUseNativeDialog |
                            QColorDialog::ShowAlphaChannel);
        connect(_dialog, &QColorDialog::currentColorChanged, this,
                [this](const QColor& color) { emit colorChosen(hostColorFrom(color)); });
    }
    _dialog->setParent(widgetOf(&holder));
    _dialog->show();
    resize(holder.frame().size());
}

void DialogPage::hide()
{
    if (!_dialog) return;
    _dialog->hide();
    _dialog->setParent(nullptr);
}

void DialogPage::resize(HostSize size)
{
    if (_dialog) {
        _dialog->setGeometry(0, 0, scaled(size.width), scaled(size.height));
    }
}

void DialogPage::setColor(const HostColor& color)
{
    if (!_dialog) return;
    const QColor wanted = qColorFrom(color);
    // The dialog rounds; setting what it has just told would take its precision away.
    if (!wanted.isValid() || _dialog->currentColor().rgba() == wanted.rgba()) return;
    const QSignalBlocker blocker(_dialog);
    _dialog->setCurrentColor(wanted);
}

}  // namespace vantorel
