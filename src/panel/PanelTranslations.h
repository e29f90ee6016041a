#pragma once

#include <QCoreApplication>

namespace vantorel {

/// Makes the program speak the user's language, where there is a translation, and Qt's own texts
/// with it. The language is that of the desktop (freedesktop: LANGUAGE, LC_ALL, LC_MESSAGES, LANG).
void installTranslations(QCoreApplication& application);

}  // namespace vantorel
