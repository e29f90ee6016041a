#include "hosts/qt/QtTranslations.h"

#include "hosts/common/Translator.h"
#include "text/Unicode.h"

#include <QCoreApplication>

namespace vantorel {

QString translation(const char* context, const char* text)
{
    const Translator& translate = currentTranslator();
    if (!translate) return QCoreApplication::translate(context, text);
    return QString::fromStdU16String(translate(context, utf16FromUtf8(text)));
}

QString translatedText(const std::u16string& text)
{
    return translation("Vantorel", utf8FromUtf16(text).c_str());
}

}  // namespace vantorel
