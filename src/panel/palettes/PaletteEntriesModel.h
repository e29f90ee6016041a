#pragma once

#include "paletteedit/PaletteEntry.h"

#include <QAbstractListModel>
#include <QString>

#include <vector>

namespace vantorel {

/// The entries of a list for a view, or those that match a filter. A row is an index among the
/// shown entries, a place an index in the list.
class PaletteEntriesModel final : public QAbstractListModel {
    Q_OBJECT

public:
    explicit PaletteEntriesModel(QObject* parent) : QAbstractListModel(parent) {}

    enum Role {
        colorRole = Qt::UserRole,
        hexRole,
        /// The name from which a user who renames the entry starts.
        startNameRole,
    };

    void setEntries(const PaletteEntries& entries);
    /// Sets the entries when more of the same list has been read. The selection is kept.
    void extendEntries(const PaletteEntries& entries);
    /// Shows only entries with the text in their name, ignoring letter case, or with a hex code
    /// that begins with it. An empty text shows all.
    void setFilter(const QString& filter);

    [[nodiscard]] const PaletteEntries& entries() const { return _entries; }
    [[nodiscard]] std::size_t placeOfRow(int row) const
    {
        return _places[static_cast<std::size_t>(row)];
    }
    /// -1 for an entry that is not shown.
    [[nodiscard]] int rowOfPlace(std::size_t place) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    /// The colours as colours and text, for other programs.
    [[nodiscard]] QMimeData* mimeData(const QModelIndexList& indexes) const override;
    [[nodiscard]] QStringList mimeTypes() const override;
    [[nodiscard]] Qt::DropActions supportedDragActions() const override;

signals:
    /// The user has entered another name for the entry at a place. The model does not change the
    /// entry.
    void nameEntered(std::size_t place, const QString& name);

private:
    [[nodiscard]] std::vector<std::size_t> shownPlaces(const PaletteEntries& entries) const;

    PaletteEntries _entries;
    QString _filter;
    /// Ascending.
    std::vector<std::size_t> _places;
};

}  // namespace vantorel
