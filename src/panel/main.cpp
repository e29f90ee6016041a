#include "panel/OnePanel.h"
#include "panel/Output.h"
#include "panel/PanelApplication.h"
#include "panel/PanelEnvironment.h"
#include "panel/PanelRuns.h"

int main(int argc, char** argv)
{
    using namespace vantorel;

    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    const QString session = takeSessionIdentifier(arguments);
    const PanelCommandLine commandLine = readCommandLine(arguments);
    if (commandLine.exitStatus) {
        if (*commandLine.exitStatus == succeeded) return printResult(commandLine.message);
        print(stderr, commandLine.message);
        return *commandLine.exitStatus;
    }
    const PanelOptions& options = commandLine.options;
    const PanelOrder order = orderFrom(options, activationTokenOfThisStart());
    const bool staysHidden = order.step != PanelOrder::Step::show;
    std::optional<CallersProcess> caller;
    if (staysHidden) caller.emplace();

    const PanelEnvironment environment(options);
    const int noDisplay = staysHidden || options.choice ? notPossible : failed;
    if (!PanelEnvironment::hasDisplay()) {
        printProblem(
            Message{phrase("there is no display (neither WAYLAND_DISPLAY nor DISPLAY is set); "
                           "--screenshot FILE works without one")});
        return noDisplay;
    }
    const PanelApplication application(argv[0], options, session, noDisplay);

    // A caller waits for these, so they are neither handed over nor found by other starts.
    if (options.screenshot || options.choice) {
        Panel panel(options, environment.userData());
        return options.screenshot ? takePicture(panel, options) : letUserChoose(panel, options);
    }
    return OnePanel(options, environment, order, caller ? &*caller : nullptr).run();
}
