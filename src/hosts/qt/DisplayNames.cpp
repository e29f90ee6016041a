#include "hosts/qt/DisplayNames.h"

#include "hosts/common/DisplayNames.h"
#include "hosts/qt/QtColors.h"
#include "hosts/qt/QtTranslations.h"

namespace vantorel {
namespace {

QString shown(std::u16string_view text, bool isOwnWord)
{
    const char* key = isOwnWord ? displayNameKey(text) : nullptr;
    return key != nullptr ? translation("DisplayNames", key) : qStringFrom(text);
}

}  // namespace

QString shownTitle(const HostMenuItem& item)
{
    return shown(item.title, item.isOwnWord);
}

QString shownTitleOfSelectedItem(const HostPopUpButton& popUp)
{
    const int selected = popUp.indexOfSelectedItem();
    if (selected == HostPopUpButton::noItem) return {};
    return shownTitle(popUp.menu()[static_cast<std::size_t>(selected)]);
}

QString shownText(const HostText& text)
{
    return shown(text.string, text.isOwnWord);
}

QString shownName(const HostColorText& text)
{
    return shown(text.name, text.isOwnWord);
}

}  // namespace vantorel
