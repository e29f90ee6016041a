#include "panel/palettes/PaletteListModel.h"

#include "hosts/qt/PlainText.h"
#include "hosts/qt/QtColors.h"
#include "panel/widgets/PanelIcons.h"

namespace vantorel {
namespace {

QString shownName(const EditablePalette& palette)
{
    QString name = qStringFrom(palette.name);
    const QString program = qStringFrom(palette.program);
    if (palette.isOwn() || name.contains(u'(' + program)) return name;
    return QStringLiteral("%1 (%2)").arg(name, program);
}

}  // namespace

void PaletteListModel::setPalettes(const std::vector<EditablePalette>& palettes)
{
    std::vector<Row> own;
    std::vector<Row> foreign;
    for (const EditablePalette& palette : palettes) {
        (palette.isOwn() ? own : foreign)
            .push_back({palette.id, shownName(palette), qStringFrom(palette.program)});
    }
    if (!own.empty() && !foreign.empty()) own.push_back({});
    own.insert(own.end(), foreign.begin(), foreign.end());
    if (own == _rows) return;

    beginResetModel();
    _rows = std::move(own);
    _rowsOfLists.clear();
    for (std::size_t row = 0; row < _rows.size(); ++row)
        _rowsOfLists[_rows[row].list] = static_cast<int>(row);
    _rowsOfLists.erase(0);
    endResetModel();
}

int PaletteListModel::rowOf(PaletteId list) const
{
    const auto found = _rowsOfLists.find(list);
    return found != _rowsOfLists.end() ? found->second : -1;
}

PaletteId PaletteListModel::listAt(int row) const
{
    return row >= 0 && row < rowCount() ? _rows[static_cast<std::size_t>(row)].list : 0;
}

int PaletteListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(_rows.size());
}

QVariant PaletteListModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount()) return {};
    const Row& row = _rows[static_cast<std::size_t>(index.row())];
    // By this the pop-up knows a separator.
    if (row.list == 0)
        return role == Qt::AccessibleDescriptionRole ? QStringLiteral("separator") : QVariant();
    const bool isOwn = row.program.isEmpty();
    switch (role) {
        case Qt::DisplayRole:
        case Qt::EditRole:
            return row.name;
        case Qt::DecorationRole:
            return isOwn ? QVariant() : lockIcon();
        case Qt::ToolTipRole:
            return isOwn ? QVariant()
                         : plainToolTip(tr("Belongs to %1, read-only").arg(row.program));
        case Qt::UserRole:
            return QVariant::fromValue(row.list);
        default:
            return {};
    }
}

Qt::ItemFlags PaletteListModel::flags(const QModelIndex& index) const
{
    return listAt(index.row()) != 0 ? QAbstractListModel::flags(index) : Qt::NoItemFlags;
}

}  // namespace vantorel
