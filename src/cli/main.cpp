#include "cli/CommandDescription.h"
#include "cli/CommandLine.h"
#include "cli/Commands.h"
#include "cli/Failure.h"

#include <memory>
#include <new>

namespace {

using namespace vantorel;

int run(Session& session, const CommandLine& commandLine)
{
    switch (commandLine.command) {
        case Command::show:
            return showColors(session, commandLine);
        case Command::name:
            return nameColors(session, commandLine);
        case Command::lists:
            return tellLists(session, commandLine);
        case Command::list:
            return tellList(session, commandLine);
        case Command::listImport:
            return importLists(session, commandLine);
        case Command::listExport:
            return exportList(session, commandLine);
        case Command::listPublish:
            return publishList(session, commandLine);
        case Command::snippets:
            return tellSnippets(session, commandLine);
        case Command::contrast:
            return tellContrast(session, commandLine);
        case Command::wheel:
            return drawWheel(session, commandLine);
        case Command::palette:
            return drawPalette(session, commandLine);
        case Command::pick:
        case Command::choose:
        case Command::panel:
            return runPanel(session, commandLine);
        case Command::completions:
            session.output().write(
                completionScript(describeProgram(), commandLine.operands.front()));
            return 0;
        case Command::manpage:
            session.output().write(manualPage(describeProgram()));
            return 0;
    }
    return failureStatus;
}

int runArguments(Session& session, const std::vector<std::string>& arguments)
{
    const CommandLineReading reading = readCommandLine(arguments);
    if (!reading.commandLine) {
        session.output().write(reading.text);
        session.output().flush();
        return 0;
    }
    const int status = run(session, *reading.commandLine);
    session.output().flush();
    return status;
}

}  // namespace

int main(int argc, char** argv)
{
    occupyClosedStreams();
    try {
        // Its output buffer is nothing for the stack.
        const auto session = std::make_unique<Session>();
        try {
            return runArguments(*session, std::vector<std::string>(argv + (argc > 0), argv + argc));
        } catch (const Failure& failure) {
            // What was written before it went wrong is not lost.
            try {
                session->output().flush();
            } catch (const Failure&) {
            }
            complain(failure.what, failure.right);
            return failureStatus;
        }
    } catch (const SilentFailure&) {
        return failureStatus;
    } catch (const std::bad_alloc&) {
        complain("there is not enough memory", "less at once needs less");
        return failureStatus;
    }
}
