#pragma once

#include <QCoreApplication>

namespace vantorel {

/// Installs the translations of the program and of Qt for the user's language, if they exist. The
/// language is that of the desktop (freedesktop: LANGUAGE, LC_ALL, LC_MESSAGES, LANG).
void installTranslations(QCoreApplication& application);

}  // namespace vantorel
