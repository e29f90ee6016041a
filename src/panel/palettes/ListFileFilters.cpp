#include "panel/palettes/ListFileFilters.h"

#include <QStringList>

#include <array>
#include <string>
#include <utility>

namespace vantorel {
namespace {

/// The user-visible name of each format.
constexpr std::array titles{
    std::pair{"gpl", QT_TRANSLATE_NOOP("ListFileFilters", "GIMP palettes")},
    std::pair{"css", QT_TRANSLATE_NOOP("ListFileFilters", "CSS custom properties")},
    std::pair{"scss", QT_TRANSLATE_NOOP("ListFileFilters", "SCSS variables")},
    std::pair{"json", QT_TRANSLATE_NOOP("ListFileFilters", "JSON")},
    std::pair{"tokens", QT_TRANSLATE_NOOP("ListFileFilters", "Design tokens")},
    std::pair{"ase", QT_TRANSLATE_NOOP("ListFileFilters", "Swatch exchange files")},
    std::pair{"aco", QT_TRANSLATE_NOOP("ListFileFilters", "Colour swatches")},
    std::pair{"kpl", QT_TRANSLATE_NOOP("ListFileFilters", "Krita palettes")},
    std::pair{"soc", QT_TRANSLATE_NOOP("ListFileFilters", "Colour tables of office programs")},
    std::pair{"svg", QT_TRANSLATE_NOOP("ListFileFilters", "SVG pictures")},
    std::pair{"txt", QT_TRANSLATE_NOOP("ListFileFilters", "Text files")},
};

QString latin1(std::string_view text)
{
    return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
}

QStringList patternsOf(const ListFormat& format)
{
    QStringList patterns;
    for (const std::string_view ending : format.endings)
        patterns.append(QStringLiteral("*.") + latin1(ending));
    return patterns;
}

QString filterOfPatterns(const QString& title, const QStringList& patterns)
{
    return QStringLiteral("%1 (%2)").arg(title, patterns.join(u' '));
}

}  // namespace

QString ListFileFilters::filterOf(const ListFormat& format)
{
    QString title = latin1(format.name);
    for (const auto& [name, text] : titles)
        if (format.name == name) title = tr(text);
    return filterOfPatterns(title, patternsOf(format));
}

const ListFormat* ListFileFilters::formatOf(const QString& filter)
{
    for (const ListFormat& format : listFormats())
        if (filterOf(format) == filter) return &format;
    return nullptr;
}

QString ListFileFilters::forReading()
{
    QStringList filters;
    QStringList patterns;
    for (const ListFormat& format : listFormats()) {
        if (!format.isRead) continue;
        filters.append(filterOf(format));
        patterns += patternsOf(format);
    }
    filters.prepend(filterOfPatterns(tr("Colour lists"), patterns));
    filters.append(tr("All files (*)"));
    return filters.join(QStringLiteral(";;"));
}

QString ListFileFilters::forWriting()
{
    QStringList filters;
    for (const ListFormat& format : listFormats())
        filters.append(filterOf(format));
    return filters.join(QStringLiteral(";;"));
}

QString ListFileFilters::withEnding(const QString& fileName, const ListFormat& format)
{
    return QString::fromStdString(std::string(withoutListEnding(fileName.toStdString()))) + u'.' +
           latin1(format.endings.front());
}

}  // namespace vantorel
