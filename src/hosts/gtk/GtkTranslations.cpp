#include "hosts/gtk/GtkTranslations.h"

#include "hosts/common/DisplayNames.h"

namespace vantorel {
namespace {

/// Never destroyed: a dialog may outlive the static objects of a program that ends.
Translator& translator()
{
    static auto* const current = new Translator;
    return *current;
}

std::u16string shown(const std::u16string& text, bool isOwnWord)
{
    const bool isTranslated = isOwnWord && translator() && displayNameKey(text) != nullptr;
    return isTranslated ? translator()("DisplayNames", text) : text;
}

}  // namespace

void setGtkTranslator(Translator newTranslator)
{
    translator() = std::move(newTranslator);
}

std::u16string translatedText(std::u16string_view text)
{
    return translator() ? translator()("Vantorel", text) : std::u16string(text);
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
