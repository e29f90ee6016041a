#pragma once

#include "listformats/ListFormats.h"

#include <QCoreApplication>
#include <QString>

/// The formats of colour-list files as filters of file dialogs.
namespace vantorel {

class ListFileFilters {
    Q_DECLARE_TR_FUNCTIONS(ListFileFilters)

public:
    /// "GIMP palettes (*.gpl *.colors)"
    [[nodiscard]] static QString filterOf(const ListFormat& format);
    /// Returns the format of a filter made by `filterOf`, or null.
    [[nodiscard]] static const ListFormat* formatOf(const QString& filter);

    /// The readable formats: all of them together, then each format, then every file.
    [[nodiscard]] static QString forReading();
    [[nodiscard]] static QString forWriting();

    /// Returns a file name with the first ending of the format, in place of the ending of another
    /// format.
    [[nodiscard]] static QString withEnding(const QString& fileName, const ListFormat& format);
};

}  // namespace vantorel
