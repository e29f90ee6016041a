#include "hosts/qt/QtMessages.h"

#include "hosts/qt/QtTranslations.h"

namespace vantorel {
namespace {

QString translated(const Phrase& phrase)
{
    return QString::fromStdString(phrase.inWords([](const char* text) {
        // The context in which tools/update-translations lists them.
        return translation("Messages", text).toStdString();
    }));
}

}  // namespace

QString translated(const Message& message)
{
    QString words = translated(message.what);
    if (!message.remedy.isEmpty()) words += QStringLiteral("; ") + translated(message.remedy);
    return words;
}

QString translatedSentence(const Message& message)
{
    const QString words = translated(message);
    return words.isEmpty() ? words : words.front().toUpper() + words.mid(1) + u'.';
}

}  // namespace vantorel
