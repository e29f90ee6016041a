#pragma once

#include "paletteedit/PaletteEditor.h"

#include <QAbstractListModel>
#include <QString>

#include <unordered_map>
#include <vector>

namespace vantorel {

/// The colour lists as rows of a pop-up: the user's own, a separator, and those of other programs.
class PaletteListModel final : public QAbstractListModel {
    Q_OBJECT

public:
    explicit PaletteListModel(QObject* parent) : QAbstractListModel(parent) {}

    void setPalettes(const std::vector<EditablePalette>& palettes);
    /// -1 for a list that is not among them.
    [[nodiscard]] int rowOf(PaletteId list) const;
    /// 0 for a separator, and if there is no such row.
    [[nodiscard]] PaletteId listAt(int row) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    struct Row {
        /// 0 for a separator.
        PaletteId list = 0;
        QString name = {};
        /// Empty for a list of the user's own.
        QString program = {};

        bool operator==(const Row&) const = default;
    };

    std::vector<Row> _rows;
    std::unordered_map<PaletteId, int> _rowsOfLists;
};

}  // namespace vantorel
