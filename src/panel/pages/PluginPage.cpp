#include "panel/pages/PluginPage.h"

#include "hosts/common/PageSize.h"
#include "hosts/common/ViewTree.h"
#include "hosts/qt/PlainText.h"
#include "hosts/qt/QtButton.h"
#include "hosts/qt/QtColors.h"
#include "hosts/qt/QtTextField.h"
#include "hosts/qt/QtTranslations.h"
#include "hosts/qt/TextScale.h"

namespace vantorel {

PluginPage::PluginPage(const LoadedPlugin& plugin, LoadedPlugin::Picker picker)
    : _plugin(plugin), _picker(std::move(picker))
{
}

PluginPage::~PluginPage()
{
    delete _message.data();
}

QString PluginPage::identifier() const
{
    return QString::fromUtf8(_plugin.plugin().identifier);
}

QString PluginPage::key() const
{
    return identifier().section(u'.', -1);
}

QString PluginPage::name() const
{
    return translation("Vantorel", _plugin.plugin().displayName);
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
            // Anybody may have written the plug-in; its exceptions must not affect the other pages.
            _view = nullptr;
        }
        if (_view == nullptr) {
            _message =
                new PlainLabel(tr("The page \"%1\" could not be created because its interface "
                                  "file is missing or damaged. Try reinstalling %2.")
                                   .arg(name(), QString::fromStdString(_plugin.file())));
            _message->setWordWrap(true);
            _message->setMargin(12);
        }
    }
    if (_view != nullptr) {
        _view->setFrame({0, 0, holder.frame().width, holder.frame().height});
        holder.addSubview(*_view);
        reportPageSize(*_picker, *_view);
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

void PluginPage::didAppear()
{
    if (_view != nullptr) _picker->pageDidAppear();
}

void PluginPage::didDisappear()
{
    if (_view != nullptr) _picker->pageDidDisappear();
}

void PluginPage::resize(HostSize size)
{
    if (_view != nullptr) {
        _view->setFrame({0, 0, size.width, size.height});
        reportPageSize(*_picker, *_view);
    }
    if (_message) {
        _message->setGeometry(0, 0, scaled(size.width), scaled(size.height));
    }
}

void PluginPage::setColor(const HostColor& color)
{
    _picker->setColor(color);
}

std::vector<ShortcutRow> PluginPage::shortcuts() const
{
    // What the host's fields and views do with keys on the page of any picker.
    std::vector<ShortcutRow> rows{
        {tr("Enter what was typed"), shownKeys({Qt::Key_Return})},
        {tr("Give up what was typed"), shownKeys({Qt::Key_Escape})},
        {tr("Change a component"), shownKeys({Qt::Key_Up, Qt::Key_Down})},
        {tr("Change a component in large steps"),
         shownKeys({Qt::SHIFT | Qt::Key_Up, Qt::SHIFT | Qt::Key_Down})},
        {tr("Move in the colours"),
         shownKeys({Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down})},
        {tr("Move to the ends of the colours"),
         shownKeys({Qt::Key_Home, Qt::Key_End, Qt::Key_PageUp, Qt::Key_PageDown})},
        {tr("Take the colour"), shownKeys({Qt::Key_Return})},
    };
    // Pages cannot list keys of their own.
    if (key() == QLatin1String("mix")) {
        rows.push_back({tr("Move a mark or change a number in coarse steps"),
                        shownKeys({Qt::SHIFT | Qt::Key_Left, Qt::SHIFT | Qt::Key_Up})});
        rows.push_back({tr("Move a mark or change a number in fine steps"),
                        shownKeys({Qt::CTRL | Qt::Key_Left, Qt::CTRL | Qt::Key_Up})});
    }
    return rows;
}

void PluginPage::finishEditing()
{
    finishEditingBelow<QtTextField>(_view);
}

}  // namespace vantorel
