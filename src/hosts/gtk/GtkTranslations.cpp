#include "hosts/gtk/GtkTranslations.h"

#include "hosts/common/DisplayNames.h"
#include "hosts/common/Translator.h"

namespace vantorel {
namespace {

std::u16string shown(const std::u16string& text, bool isOwnWord)
{
    const Translator& translate = currentTranslator();
    const bool isTranslated = isOwnWord && translate && displayNameKey(text) != nullptr;
    return isTranslated ? translate("DisplayNames", text) : text;
}

}  // namespace

std::u16string translatedText(std::u16string_view text)
{
    const Translator& translate = currentTranslator();
    return translate ? translate("Vantorel", text) : std::u16string(text);
}

std::u16string shownTitle(const HostMenuItem& item)
{
    return shown(item.title, item.isOwnWord);
}

std::u16string shownText(const HostText& text)
{
    return shown(text.string, text.isOwnWord);
}

}  // namespace vantorel
