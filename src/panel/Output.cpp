#include "panel/Output.h"

#include "commandline/Translations.h"

#include <cerrno>
#include <system_error>

namespace vantorel {

void print(std::FILE* stream, const QString& text)
{
    static_cast<void>(std::fputs(text.toUtf8().constData(), stream));
    static_cast<void>(std::fflush(stream));
}

ExitStatus printResult(const QString& text)
{
    if (std::fputs(text.toUtf8().constData(), stdout) >= 0 && std::fflush(stdout) == 0)
        return succeeded;
    const std::string reason = std::generic_category().message(errno);
    // Otherwise the same would fail once more at the exit.
    std::clearerr(stdout);
    printProblem(Message{phrase("standard output cannot be written: %1", reason)});
    return failed;
}

void printProblem(const QString& sentence)
{
    print(stderr, QStringLiteral("vantorel-panel: %1\n").arg(sentence));
}

void printProblem(const Message& message)
{
    printProblem(QString::fromStdString(inUsersWords(message)));
}

}  // namespace vantorel
