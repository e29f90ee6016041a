#include "hosts/qt/QtTranslations.h"

#include "text/Unicode.h"

#include <QCoreApplication>

namespace vantorel {
namespace {

/// Never destroyed: a dialog may outlive the static objects of a program that ends.
Translator& translator()
{
    static auto* const current = new Translator;
    return *current;
}

}  // namespace

void setQtTranslator(Translator newTranslator)
{
    translator() = std::move(newTranslator);
}

QString translation(const char* context, const char* text)
{
    if (!translator()) return QCoreApplication::translate(context, text);
    return QString::fromStdU16String(translator()(context, utf16FromUtf8(text)));
}

QString translatedText(const std::u16string& text)
{
    return translation("Vantorel", utf8FromUtf16(text).c_str());
}

}  // namespace vantorel
