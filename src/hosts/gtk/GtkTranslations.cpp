#include "hosts/gtk/GtkTranslations.h"

#include "hosts/common/DisplayNames.h"

namespace vantorel {
namespace {

GtkTranslator& translator()
{
    static GtkTranslator current;
    return current;
}

}  // namespace

void setGtkTranslator(GtkTranslator newTranslator)
{
    translator() = std::move(newTranslator);
}

std::u16string translatedText(std::u16string_view text)
{
    return translator() ? translator()("Vantorel", text) : std::u16string(text);
}

std::u16string shownTitle(std::u16string_view text)
{
    const bool isTranslated = translator() && displayNameKey(text) != nullptr;
    return isTranslated ? translator()("DisplayNames", text) : std::u16string(text);
}

}  // namespace vantorel
