#pragma once

#include "listformats/ListFormats.h"

#include <QCoreApplication>
#include <QString>

/// The forms of colour-list files as the filters of file dialogs.
namespace vantorel {

class ListFileFilters {
    Q_DECLARE_TR_FUNCTIONS(ListFileFilters)

public:
    /// "GIMP palettes (*.gpl *.colors)"
    [[nodiscard]] static QString filterOf(const ListFormat& format);
    /// The form of a filter that `filterOf` has made, or null.
    [[nodiscard]] static const ListFormat* formatOf(const QString& filter);

    /// What can be read: all of it together, then each form, then every file.
    [[nodiscard]] static QString forReading();
    [[nodiscard]] static QString forWriting();

    /// A file's name with the first ending of a form in place of that of another form.
    [[nodiscard]] static QString withEnding(const QString& fileName, const ListFormat& format);
};

}  // namespace vantorel
