#include "panel/Panel.h"

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
        printProblem(QString::fromStdString(english(problem)));
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
            print(stdout, cssNameOf(qColorFrom(color)) + u'\n');
        });
    }
    const bool hasPage = !options.page || _window.pages().showPageWithKey(*options.page);
    if (!hasPage) {
        printProblem(QStringLiteral("--page: there is no page \"%1\"; there are: %2")
                         .arg(*options.page, _window.pages().keys().join(QStringLiteral(", "))));
    }
    if (options.size) _window.resizeToPage(*options.size);
    if (options.color) _window.colors().setColor(hostColorFrom(*options.color));
    if (options.mode == QLatin1String("slider")) sendAction("sliderViewModeAction");
    if (options.mode == QLatin1String("palette")) sendAction("paletteViewModeAction");
    if (options.mode == QLatin1String("wheel")) sendAction("cubeViewModeAction");
    if (options.settingsFace) sendAction("settingsButtonAction");
    return hasPage;
}

}  // namespace vantorel
