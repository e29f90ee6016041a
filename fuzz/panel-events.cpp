#include "FuzzTexts.h"
#include "FuzzedChoices.h"
#include "QtUser.h"
#include "hosts/qt/QtColors.h"
#include "panel/window/PanelWindow.h"
#include "plugins/PluginLoader.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QTemporaryDir>

/// Sequences of what a user can do to the panel's window, on a screen that nobody sees.
namespace {

using namespace vantorel;

EventCount count;

/// Lives as long as the program.
QTemporaryDir& home()
{
    static QTemporaryDir folder;
    return folder;
}

/// Each input finds the same lists.
void restoreLists()
{
    QDir lists(home().filePath(QStringLiteral("data/Vantorel/Palettes")));
    lists.removeRecursively();
    lists.mkpath(QStringLiteral("."));
    for (const char* name : {"Reds", "CSS Keyword"}) {
        QFile file(lists.filePath(QLatin1String(name) + QStringLiteral(".gpl")));
        if (!file.open(QIODevice::WriteOnly)) continue;
        file.write(QByteArray("GIMP Palette\nName: ") + name +
                   "\n#\n255 0 0\tred\n192 0 0\t<b>dark</b> & more\n");
    }
}

const std::vector<LoadedPlugin>& plugins()
{
    static const PluginSearch search = loadPlugins({VANTOREL_PICKERS}, {});
    require(!search.plugins.empty());
    return search.plugins;
}

}  // namespace

// NOLINTNEXTLINE(readability-non-const-parameter)
extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    const auto setFolder = [](const char* variable, const char* name) {
        qputenv(variable, home().filePath(QLatin1String(name)).toLocal8Bit());
    };
    setFolder("HOME", "home");
    setFolder("XDG_DATA_HOME", "data");
    setFolder("XDG_CONFIG_HOME", "config");
    setFolder("XDG_DATA_DIRS", "machine");
    setFolder("XDG_CONFIG_DIRS", "machine");
    // Neither portals nor an assistive program take part.
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent");
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    // Never destroyed: the fuzzer ends the program without notice.
    new QApplication(*argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzedChoices choices(data, size);
    restoreLists();
    QApplication::clipboard()->clear();
    {
        QtDesktop desktop;
        std::vector<Message> problems;
        PanelWindow window(desktop, plugins(), problems, makeScreenPicker());
        window.resizeToPage({260, 340});
        window.show();
        QtUser user(window, choices, QtUser::Lists::mayBeEdited);
        for (; choices.areLeft(); ++count.events)
            user.act();
        window.pages().showPage(0);
        window.colors().setColor(hostColorFrom(QColor(0x33, 0x66, 0x99)));
        require(qColorFrom(window.colors().color()) == QColor(0x33, 0x66, 0x99));
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return 0;
}
