#include "panel/palettes/PaletteEntriesModel.h"

#include "hosts/qt/PlainText.h"
#include "hosts/qt/QtColors.h"
#include "paletteedit/ProposedName.h"
#include "panel/widgets/CodeWithOpacity.h"
#include "panel/widgets/ColorClipboard.h"

#include <algorithm>

namespace vantorel {
namespace {

QString nameAndCode(const PaletteEntry& entry)
{
    return QStringLiteral("%1, %2").arg(qStringFrom(entry.name()), plainHexCode(entry.color()));
}

}  // namespace

std::vector<std::size_t> PaletteEntriesModel::shownPlaces(const PaletteEntries& entries) const
{
    std::vector<std::size_t> places;
    places.reserve(entries.size());
    const QString digits = _filter.startsWith(u'#') ? _filter.mid(1) : _filter;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const std::u16string& name = entries[i].name();
        // Not copied, because a long list is searched at each typed letter.
        const QStringView text(name.data(), static_cast<qsizetype>(name.size()));
        if (_filter.isEmpty() || text.contains(_filter, Qt::CaseInsensitive) ||
            qStringFrom(hexCodeOf(entries[i].color()))
                .mid(1)
                .startsWith(digits, Qt::CaseInsensitive)) {
            places.push_back(i);
        }
    }
    return places;
}

void PaletteEntriesModel::setEntries(const PaletteEntries& entries)
{
    std::vector<std::size_t> places = shownPlaces(entries);
    if (places != _places || entries.size() != _entries.size()) {
        beginResetModel();
        _entries = entries;
        _places = std::move(places);
        endResetModel();
        return;
    }
    const auto different = [&](std::size_t place) { return entries[place] != _entries[place]; };
    const auto first = std::find_if(_places.begin(), _places.end(), different);
    const auto last = std::find_if(_places.rbegin(), _places.rend(), different);
    const auto firstRow = static_cast<int>(first - _places.begin());
    const auto lastRow = static_cast<int>(_places.rend() - last) - 1;
    _entries = entries;
    if (firstRow <= lastRow) emit dataChanged(index(firstRow), index(lastRow));
}

void PaletteEntriesModel::extendEntries(const PaletteEntries& entries)
{
    const bool isLonger = entries.size() > _entries.size() &&
                          std::equal(_entries.begin(), _entries.end(), entries.begin());
    std::vector<std::size_t> places = shownPlaces(entries);
    if (!isLonger || places.size() <= _places.size()) {
        setEntries(entries);
        return;
    }
    beginInsertRows({}, rowCount(), static_cast<int>(places.size()) - 1);
    _entries = entries;
    _places = std::move(places);
    endInsertRows();
}

void PaletteEntriesModel::setFilter(const QString& filter)
{
    if (filter == _filter) return;
    beginResetModel();
    _filter = filter;
    _places = shownPlaces(_entries);
    endResetModel();
}

int PaletteEntriesModel::rowOfPlace(std::size_t place) const
{
    const auto found = std::lower_bound(_places.begin(), _places.end(), place);
    if (found == _places.end() || *found != place) return -1;
    return static_cast<int>(found - _places.begin());
}

int PaletteEntriesModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(_places.size());
}

QVariant PaletteEntriesModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount()) return {};
    const PaletteEntry& entry = _entries[placeOfRow(index.row())];
    switch (role) {
        case Qt::DisplayRole:
        case Qt::EditRole:
            return qStringFrom(entry.name());
        case Qt::ToolTipRole:
            return plainToolTip(nameAndCode(entry));
        case Qt::AccessibleTextRole:
            return nameAndCode(entry);
        case colorRole:
            return qColorFrom(entry.color());
        case hexRole:
            return plainHexCode(entry.color());
        case startNameRole:
            return qStringFrom(nameToStartFrom(_entries, placeOfRow(index.row())));
        default:
            return {};
    }
}

bool PaletteEntriesModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::EditRole || !index.isValid()) return false;
    const QString name = value.toString();
    if (name == data(index, Qt::EditRole).toString()) return false;
    emit nameEntered(placeOfRow(index.row()), name);
    return true;
}

Qt::ItemFlags PaletteEntriesModel::flags(const QModelIndex& index) const
{
    if (!index.isValid()) return Qt::ItemIsDropEnabled;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsEditable | Qt::ItemIsDragEnabled |
           Qt::ItemNeverHasChildren;
}

QMimeData* PaletteEntriesModel::mimeData(const QModelIndexList& indexes) const
{
    if (indexes.isEmpty()) return nullptr;
    std::vector<int> rows;
    for (const QModelIndex& index : indexes)
        rows.push_back(index.row());
    std::sort(rows.begin(), rows.end());
    QStringList texts;
    for (const int row : rows)
        texts.append(data(index(row), hexRole).toString());
    return mimeDataFromColor(_entries[placeOfRow(rows.front())].color(), texts.join(u'\n'))
        .release();
}

QStringList PaletteEntriesModel::mimeTypes() const
{
    return {QStringLiteral("application/x-color"), QStringLiteral("text/plain"),
            QStringLiteral("text/uri-list")};
}

Qt::DropActions PaletteEntriesModel::supportedDragActions() const
{
    return Qt::CopyAction;
}

}  // namespace vantorel
