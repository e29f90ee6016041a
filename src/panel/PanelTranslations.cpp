#include "panel/PanelTranslations.h"

#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace vantorel {

void installTranslations(QCoreApplication& application)
{
    const QLocale locale;
    for (const auto& [name, folder] :
         {std::pair(QStringLiteral("vantorel"), QStringLiteral(":/translations")),
          std::pair(QStringLiteral("qtbase"),
                    QLibraryInfo::path(QLibraryInfo::TranslationsPath))}) {
        auto* translator = new QTranslator(&application);
        if (translator->load(locale, name, QStringLiteral("_"), folder)) {
            QCoreApplication::installTranslator(translator);
        }
    }
}

}  // namespace vantorel
