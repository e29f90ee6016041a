#include "embedding/PageTranslations.h"

#include "text/Unicode.h"
#include "translations/TranslationFiles.h"

namespace vantorel {
namespace {

/// Never destroyed: a program that ends may still be showing a dialog.
TranslationFiles& files()
{
    static auto* const current = new TranslationFiles({}, {});
    return *current;
}

}  // namespace

void setPageTranslations(const std::string& folder)
{
    files() = TranslationFiles(folder, languagesToTranslateTo());
}

std::u16string pageTranslation(std::string_view context, std::u16string_view text)
{
    return utf16FromUtf8(files().translated(std::string(context), utf8FromUtf16(text)));
}

}  // namespace vantorel
