#include "hosts/qt/DisplayNames.h"

#include "hosts/common/DisplayNames.h"
#include "hosts/qt/QtColors.h"

#include <QCoreApplication>

namespace vantorel {

QString displayName(std::u16string_view text)
{
    const char* key = displayNameKey(text);
    return key != nullptr ? QCoreApplication::translate("DisplayNames", key) : qStringFrom(text);
}

}  // namespace vantorel
