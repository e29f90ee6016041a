#include "panel/pages/PanelPages.h"

#include "hosts/qt/QtButton.h"
#include "hosts/qt/QtColors.h"
#include "hosts/qt/QtView.h"
#include "hosts/qt/TextScale.h"
#include "panel/widgets/PanelIcons.h"

#include <QCoreApplication>
#include <QSignalBlocker>

namespace vantorel {

PluginPage::PluginPage(const LoadedPlugin& plugin, LoadedPlugin::Picker picker)
    : _plugin(plugin), _picker(std::move(picker))
{
}

PluginPage::~PluginPage()
{
    delete _message.data();
}

QString PluginPage::key() const
{
    return QString::fromUtf8(_plugin.plugin().identifier).section(u'.', -1);
}

QString PluginPage::name() const
{
    return QString::fromUtf8(_plugin.plugin().displayName);
}

QString PluginPage::toolTip() const
{
    return qStringFrom(_picker->buttonToolTip());
}

QIcon PluginPage::icon() const
{
    return iconFromSvg(_picker->buttonImage());
}

QSize PluginPage::minimumSize() const
{
    const HostSize size = _picker->minContentSize();
    return {static_cast<int>(size.width), static_cast<int>(size.height)};
}

void PluginPage::show(HostView& holder)
{
    if (!_viewWasAskedFor) {
        _viewWasAskedFor = true;
        try {
            _view = _picker->provideNewView(true);
        } catch (...) {
            // It may be anybody's; the other pages must stay.
            _view = nullptr;
        }
        if (_view == nullptr) {
            _message = new QLabel(tr("The page \"%1\" could not be made. Its interface file is "
                                     "missing or damaged; installing %2 again may help.")
                                      .arg(name(), QString::fromStdString(_plugin.file())));
            _message->setWordWrap(true);
            _message->setMargin(12);
            _message->setTextFormat(Qt::PlainText);
        }
    }
    if (_view != nullptr) {
        _view->setFrame({0, 0, holder.frame().width, holder.frame().height});
        holder.addSubview(*_view);
        _picker->viewSizeChanged(_view);
    } else {
        _message->setParent(widgetOf(&holder));
        _message->show();
        resize(holder.frame().size());
    }
}

void PluginPage::hide()
{
    if (_view != nullptr) _view->removeFromSuperview();
    if (_message) _message->setParent(nullptr);
}

void PluginPage::resize(HostSize size)
{
    if (_view != nullptr) {
        _view->setFrame({0, 0, size.width, size.height});
        _picker->viewSizeChanged(_view);
    }
    if (_message) {
        _message->setGeometry(0, 0, scaled(size.width), scaled(size.height));
    }
}

void PluginPage::setColor(const HostColor& color)
{
    _picker->setColor(color);
}

DialogPage::DialogPage(std::function<void(const QColor&)> colorChosen)
    : _colorChosen(std::move(colorChosen))
{
}

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
        QObject::connect(_dialog, &QColorDialog::currentColorChanged, _dialog, _colorChosen);
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
