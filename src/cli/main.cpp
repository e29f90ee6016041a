#include "cli/CommandLine.h"
#include "cli/Commands.h"
#include "cli/Failure.h"
#include "commandline/Descriptions.h"
#include "commandline/Programs.h"

#include <algorithm>
#include <memory>
#include <new>

namespace {

using namespace vantorel;

const ProgramRow& describedProgram(const CommandLine& commandLine)
{
    return commandLine.panel ? vantorelPanelProgram : vantorelProgram;
}

int printCompletions(Session& session, const CommandLine& commandLine)
{
    session.output().write(
        completionScript(describedProgram(commandLine), commandLine.operands.front()));
    return 0;
}

int printManualPage(Session& session, const CommandLine& commandLine)
{
    session.output().write(manualPage(describedProgram(commandLine)));
    return 0;
}

using Function = int (*)(Session& session, const CommandLine& commandLine);

/// Each command of `vantorelProgram`.
constexpr std::pair<std::string_view, Function> functions[] = {
    {"show", showColors},
    {"convert", convertColors},
    {"mix", mixColors},
    {"gradient", printGradient},
    {"lighten", lightenColors},
    {"darken", darkenColors},
    {"saturate", saturateColors},
    {"desaturate", desaturateColors},
    {"rotate", rotateColors},
    {"complement", complementColors},
    {"gray", printGray},
    {"scale", printScales},
    {"distinct", printDistinctColors},
    {"sort", sortColors},
    {"nearest", printNearest},
    {"simulate", simulateVision},
    {"name", nameColors},
    {"lists", printLists},
    {"list", printList},
    {"list import", importLists},
    {"list export", exportList},
    {"list publish", publishList},
    {"snippets", printSnippets},
    {"contrast", printContrast},
    {"sheet", checkStyleSheets},
    {"lsp", serveEditor},
    {"wheel", drawWheel},
    {"palette", drawPalette},
    {"pick", pickColor},
    {"choose", chooseColor},
    {"panel", startPanel},
    {"completions", printCompletions},
    {"manpage", printManualPage},
    {"dialogs", switchDialogs},
};

int runArguments(Session& session, const std::vector<std::string>& arguments)
{
    Result<ArgumentReading> reading = readArguments(vantorelProgram, arguments);
    if (!reading) throw Failure{reading.error()};
    int status = 0;
    if (reading->arguments) {
        const auto* const function =
            std::ranges::find(functions, std::string_view(reading->arguments->command),
                              &std::pair<std::string_view, Function>::first);
        status = function->second(session, CommandLine(std::move(*reading->arguments)));
    } else {
        session.output().write(reading->text);
    }
    session.output().flush();
    return status;
}

}  // namespace

int main(int argc, char** argv)
{
    occupyClosedStreams();
    try {
        // On the heap, because its output buffer is large.
        const auto session = std::make_unique<Session>();
        try {
            return runArguments(*session, std::vector<std::string>(argv + (argc > 0), argv + argc));
        } catch (const Failure& failure) {
            // Keep the output written before the error.
            try {
                session->output().flush();
            } catch (const Failure&) {
            }
            reportError(failure.message);
            return failureStatus;
        }
    } catch (const SilentFailure&) {
        return failureStatus;
    } catch (const std::bad_alloc&) {
        reportError({phrase("out of memory"), phrase("try fewer colours at a time")});
        return failureStatus;
    }
}
