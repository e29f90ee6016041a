#include "hosts/qt/QtColors.h"
#include "hosts/qt/QtDesktop.h"
#include "panel/DisplayFailure.h"
#include "panel/PanelOptions.h"
#include "panel/PanelTranslations.h"
#include "panel/bus/CallersProcess.h"
#include "panel/bus/PanelRequests.h"
#include "panel/bus/PanelService.h"
#include "panel/bus/RunningPanel.h"
#include "panel/bus/ServiceLifetime.h"
#include "panel/widgets/PanelTheme.h"
#include "panel/window/ColorChoice.h"
#include "plugins/PluginLoader.h"

#include <QApplication>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>

#include <cstdio>

namespace {

using namespace vantorel;

constexpr int failure = 1;
constexpr int cancelled = 1;
constexpr int usageError = 2;
constexpr int notPossible = 3;

void print(std::FILE* stream, const QString& text)
{
    // There is nowhere to tell that a standard stream is closed.
    static_cast<void>(std::fputs(text.toUtf8().constData(), stream));
    static_cast<void>(std::fflush(stream));
}

bool hasDisplay()
{
    return qEnvironmentVariableIsSet("WAYLAND_DISPLAY") || qEnvironmentVariableIsSet("DISPLAY") ||
           qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
}

void sendAction(PanelWindow& window, const char* name)
{
    if (HostColorPicker* picker = window.pages().currentPicker())
        picker->performAction(name, nullptr);
}

/// "#rrggbbaa"
QString cssNameOf(const QColor& color)
{
    const QString argb = color.name(QColor::HexArgb);
    return u'#' + argb.mid(3) + argb.mid(1, 2);
}

/// False when the page that is asked for is missing; the rest is done.
bool applyOptions(PanelWindow& window, const PanelOptions& options)
{
    if (options.printColor) {
        QObject::connect(&window.colors(), &PanelColors::colorChanged, [](const HostColor& color) {
            print(stdout, cssNameOf(qColorFrom(color)) + u'\n');
        });
    }
    const bool hasPage = !options.page || window.pages().showPageWithKey(*options.page);
    if (!hasPage) {
        print(stderr,
              QStringLiteral("vantorel-panel: --page: there is no page \"%1\"; there are: %2\n")
                  .arg(*options.page, window.pages().keys().join(QStringLiteral(", "))));
    }
    if (options.size) window.resizeToPage(*options.size);
    if (options.color) window.colors().setColor(hostColorFrom(*options.color));
    if (options.mode == QLatin1String("slider")) sendAction(window, "sliderViewModeAction");
    if (options.mode == QLatin1String("palette")) sendAction(window, "paletteViewModeAction");
    if (options.mode == QLatin1String("wheel")) sendAction(window, "cubeViewModeAction");
    if (options.settingsFace) sendAction(window, "settingsButtonAction");
    return hasPage;
}

int saveScreenshot(PanelWindow& window, const QString& file)
{
    window.show();
    QApplication::processEvents();
    // Painting places some controls, so what counts is the second look.
    window.grab();
    QApplication::processEvents();
    if (window.grab().save(file, "PNG")) return 0;
    print(stderr,
          QStringLiteral("vantorel-panel: --screenshot: \"%1\" cannot be written\n").arg(file));
    return failure;
}

void complain(const QString& sentence)
{
    print(stderr, QStringLiteral("vantorel-panel: %1\n").arg(sentence));
}

PanelOrder orderFrom(const PanelOptions& options, const ActivationToken& token)
{
    PanelOrder order{options.step, {}, options.copyForm, token};
    if (options.color) order.color = cssNameOf(*options.color);
    return order;
}

/// Prints how an order has ended, and returns the exit status.
int report(const PanelOrder& order, const PanelAnswer& answer)
{
    using Kind = PanelRefusal::Kind;
    if (const auto* refusal = std::get_if<PanelRefusal>(&answer)) {
        complain(refusal->sentence);
        if (refusal->kind == Kind::cancelled) return cancelled;
        return refusal->kind == Kind::notPossible ? notPossible : usageError;
    }
    if (order.step != PanelOrder::Step::show) print(stdout, std::get<QString>(answer) + u'\n');
    return 0;
}

/// Has the panel that runs already carry out what is ordered. Returns the exit status, or nothing
/// when `contact`, which is set, was not made.
std::optional<int> handOver(const RunningPanel& running, const PanelOrder& order,
                            const PanelOptions& options, RunningPanel::Contact& contact)
{
    const auto [made, answer] = running.handOver(order);
    contact = made;
    if (contact != RunningPanel::Contact::made) return std::nullopt;
    if (!options.forStartsOnly.isEmpty()) {
        complain(QCoreApplication::translate("main",
                                             "A panel runs already, which does not follow "
                                             "%1; --new starts another.")
                     .arg(options.forStartsOnly.join(QStringLiteral(", "))));
    }
    return report(order, answer);
}

/// Makes this start the one that has the name on the bus, or hands over to one that was quicker.
/// Returns the exit status, or nothing when this start goes on.
std::optional<int> takePlace(PanelService& service, const RunningPanel& running,
                             const PanelOrder& order, const PanelOptions& options,
                             RunningPanel::Contact& contact)
{
    // A panel that was quicker may just have ended.
    constexpr int mostAttempts = 3;
    for (int i = 0; i < mostAttempts; ++i) {
        if (service.claimName() != PanelService::Claim::taken) return std::nullopt;
        // Who called gets the answer of the other.
        if (options.service) return 0;
        if (options.another || contact != RunningPanel::Contact::none) break;
        if (const auto status = handOver(running, order, options, contact)) return status;
    }
    service.waitForName();
    return std::nullopt;
}

/// Returns the exit status.
int letUserChoose(PanelWindow& window, const ColorChoice& choice, PanelMemory recalled)
{
    window.show();
    QApplication::exec();
    if (!choice.text()) return cancelled;
    // It was shown for one colour: beside that colour nothing of the user's own panel changes.
    recalled.recent = window.colors().recent();
    writePanelMemory(recalled);
    print(stdout, *choice.text() + u'\n');
    return 0;
}

}  // namespace

int main(int argc, char** argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    const PanelCommandLine commandLine = readCommandLine(arguments);
    if (commandLine.exitStatus) {
        print(*commandLine.exitStatus == 0 ? stdout : stderr, commandLine.message);
        return *commandLine.exitStatus;
    }
    const PanelOptions& options = commandLine.options;
    const PanelOrder order = orderFrom(options, activationTokenOfThisStart());
    const bool staysHidden = order.step != PanelOrder::Step::show;
    // A caller waits for it, so it is neither handed over nor found by other starts.
    const bool isAlone = options.screenshot || options.choice;
    const int noDisplay = staysHidden || options.choice ? notPossible : failure;
    std::optional<CallersProcess> caller;
    if (staysHidden) caller.emplace();

    if (options.dataFolder) {
        qputenv("XDG_DATA_HOME", QFile::encodeName(*options.dataFolder));
        // The configuration's folder stays: it also leads to the palettes of other programs.
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, *options.dataFolder);
    }
    const std::string userData = PosixFiles().applicationSupportDirectory().value_or("");
    std::optional<QTemporaryDir> scratch;
    if (options.screenshot) {
        scratch.emplace();
        // A picture is taken beside the user's own panel and settings, not with them.
        // What other programs have installed must not show in it, either.
        for (const char* variable : {"XDG_CONFIG_HOME", "XDG_DATA_DIRS", "XDG_CONFIG_DIRS"})
            qputenv(variable, QFile::encodeName(scratch->path()));
        if (!options.dataFolder) qputenv("XDG_DATA_HOME", QFile::encodeName(scratch->path()));
        if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    } else if (!hasDisplay()) {
        print(stderr, QStringLiteral("vantorel-panel: there is no display (neither WAYLAND_DISPLAY "
                                     "nor DISPLAY is set); --screenshot FILE works without one\n"));
        return noDisplay;
    }

    std::optional<DisplayFailure> displayFailure(std::in_place, noDisplay);
    // Qt gets the program's name alone: it would take --plugin for an option of its own.
    int qtArguments = 1;
    QApplication application(qtArguments, argv);
    displayFailure.reset();
    installTranslations(application);
    QApplication::setApplicationName(QStringLiteral("vantorel-panel"));
    QApplication::setDesktopFileName(QStringLiteral("org.vantorel.ColorPanel"));
    // The panel quits by itself when it is closed, and without a window the magnifier is the last.
    QApplication::setQuitOnLastWindowClosed(false);
    if (options.theme) applyTheme(*options.theme);

    auto contact = RunningPanel::Contact::none;
    std::optional<RunningPanel> running;
    if (!isAlone) running.emplace(QDBusConnection::sessionBus());
    if (running && !options.another && !options.service) {
        if (const auto status = handOver(*running, order, options, contact)) return *status;
    }

    std::vector<std::string> pluginFiles;
    for (const QString& file : options.plugins) {
        pluginFiles.push_back(file.toLocal8Bit().toStdString());
    }
    PluginSearch search = loadPlugins(
        pluginFolders(QCoreApplication::applicationDirPath().toStdString(), userData), pluginFiles);

    QtDesktop desktop;
    PanelWindow window(desktop, search.plugins, search.problems);
    for (const std::string& problem : search.problems) {
        print(stderr, QStringLiteral("vantorel-panel: %1\n").arg(QString::fromStdString(problem)));
    }
    if (!search.problems.empty()) window.showProblems(search.problems);
    if (options.screenshot) {
        if (!applyOptions(window, options)) return usageError;
        return saveScreenshot(window, *options.screenshot);
    }
    const PanelMemory recalled = readPanelMemory();
    window.recall(recalled);
    std::optional<ColorChoice> choice;
    if (options.choice) choice.emplace(window);
    applyOptions(window, options);
    if (choice) return letUserChoose(window, *choice, recalled);

    PanelRequests requests(window);
    PanelService service(requests, QDBusConnection::sessionBus());
    const auto tell = [&window](const QString& sentence) {
        complain(sentence);
        window.showRemark(sentence);
    };
    QObject::connect(&service, &PanelService::unreachable, &window, tell);
    if (const auto status = takePlace(service, *running, order, options, contact)) return *status;
    if (const QString remark = RunningPanel::remarkOn(contact); !remark.isEmpty()) tell(remark);

    int status = 0;
    std::optional<ServiceLifetime> lifetime;
    if (staysHidden) {
        QTimer::singleShot(0, &requests, [&] {
            // Not sooner: while the order waits there is nothing under way.
            QObject::connect(&requests, &PanelRequests::nothingLeft, &QApplication::quit);
            requests.carryOut(order, [&](const PanelAnswer& answer) {
                status = report(order, answer);
                caller->release(status);
            });
        });
    } else if (options.service) {
        lifetime.emplace(service, requests);
        QObject::connect(&*lifetime, &ServiceLifetime::ended, &QApplication::quit);
    } else {
        window.show();
    }
    QApplication::exec();
    PanelMemory memory = window.memory();
    // A window that was never seen has no place of its own.
    if (!window.testAttribute(Qt::WA_WState_Created)) memory.geometry = recalled.geometry;
    writePanelMemory(memory);
    return status;
}
