#include "panel/Output.h"

namespace vantorel {

void print(std::FILE* stream, const QString& text)
{
    static_cast<void>(std::fputs(text.toUtf8().constData(), stream));
    static_cast<void>(std::fflush(stream));
}

void printProblem(const QString& sentence)
{
    print(stderr, QStringLiteral("vantorel-panel: %1\n").arg(sentence));
}

void printProblem(const Message& message)
{
    printProblem(QString::fromStdString(english(message, ": ")));
}

}  // namespace vantorel
