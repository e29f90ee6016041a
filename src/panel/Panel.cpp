#include "panel/Panel.h"

#include "csscolor/GamutMapping.h"
#include "hosts/qt/QtColors.h"
#include "panel/Output.h"
#include "result/Message.h"

#include <QCoreApplication>

namespace vantorel {
namespace {

PluginSearch searchFor(const PanelOptions& options, const std::string& userData)
{
    std::vector<std::string> files;
    for (const QString& file : options.plugins)
        files.push_back(file.toLocal8Bit().toStdString());
    return loadPlugins(
        pluginFolders(QCoreApplication::applicationDirPath().toStdString(), userData), files);
}

}  // namespace

QString cssNameOf(const QColor& color)
{
    const QString argb = color.name(QColor::HexArgb);
    return u'#' + argb.mid(3) + argb.mid(1, 2);
}

Panel::Panel(const PanelOptions& options, const std::string& userData)
    : _search(searchFor(options, userData)), _window(_desktop, _search.plugins, _search.problems)
{
    for (const Message& problem : _search.problems)
        printProblem(problem);
    if (!_search.problems.empty()) _window.showProblems(_search.problems);
}

void Panel::sendAction(const char* name)
{
    if (HostColorPicker* picker = _window.pages().currentPicker())
        picker->performAction(name, nullptr);
}

bool Panel::apply(const PanelOptions& options)
{
    if (options.printColor) {
        QObject::connect(&_window.colors(), &PanelColors::colorChanged, [](const HostColor& color) {
            print(stdout, cssNameOf(qColorFrom(mappedIntoSRGB(color))) + u'\n');
        });
    }
    const bool hasPage = !options.page || _window.pages().showPageWithKey(*options.page);
    if (!hasPage) {
        const QString keys = _window.pages().keys().join(QStringLiteral(", "));
        printProblem(Message{phrase("--page: there is no page \"%1\"", options.page->toStdString()),
                             phrase("use one of: %1", keys.toStdString())});
    }
    if (options.size) _window.resizeToPage(*options.size);
    if (options.color) _window.colors().setColor(*options.color);
    if (options.mode == QLatin1String("slider")) sendAction("sliderViewModeAction");
    if (options.mode == QLatin1String("palette")) sendAction("paletteViewModeAction");
    if (options.mode == QLatin1String("wheel")) sendAction("cubeViewModeAction");
    if (options.settingsFace) sendAction("settingsButtonAction");
    return hasPage;
}

}  // namespace vantorel
