#include "panel/widgets/NameCompletion.h"

#include "hosts/qt/QtColors.h"
#include "hosts/qt/TextScale.h"
#include "panel/widgets/Swatch.h"

#include <QAbstractListModel>
#include <QListView>
#include <QPainter>
#include <QPixmap>

#include <utility>

namespace vantorel {
namespace {

// In points.
constexpr int completionTextSize = 12;
constexpr int completionSwatchSize = 16;
constexpr int mostShownNames = 8;

}  // namespace

class NameCompletion::Model final : public QAbstractListModel {
public:
    using QAbstractListModel::QAbstractListModel;

    void setRows(std::vector<Row> rows)
    {
        beginResetModel();
        _rows = std::move(rows);
        endResetModel();
    }
    void setLook(const QWidget& look) { _look = &look; }

    [[nodiscard]] int rowCount(const QModelIndex& parent) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(_rows.size());
    }
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override
    {
        if (!index.isValid() || index.row() >= static_cast<int>(_rows.size())) return {};
        const Row& row = _rows[static_cast<std::size_t>(index.row())];
        switch (role) {
            case Qt::DisplayRole:
            case Qt::EditRole:
                return row.name;
            case Qt::DecorationRole:
                return swatch(row.color);
            default:
                return {};
        }
    }

private:
    [[nodiscard]] QPixmap swatch(const HostColor& color) const
    {
        const qreal density = _look->devicePixelRatioF();
        const int side = scaled(completionSwatchSize);
        QPixmap picture(QSize(side, side) * density);
        picture.setDevicePixelRatio(density);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paintSwatch(painter, QRectF(0, 0, side, side), color, themeColors(_look->palette()));
        return picture;
    }

    std::vector<Row> _rows;
    const QWidget* _look = nullptr;
};

NameCompletion::NameCompletion(QLineEdit& field)
    : QObject(&field),
      _field(field),
      _model(new Model(this)),
      _completer(new QCompleter(_model, this))
{
    _completer->setCaseSensitivity(Qt::CaseInsensitive);
    _completer->setMaxVisibleItems(mostShownNames);
    QAbstractItemView* popup = _completer->popup();
    popup->setObjectName(QStringLiteral("colorNames"));
    popup->setAccessibleName(tr("Names of colours"));
    popup->setFont(fontOfSize(completionTextSize));
    // Not measured one by one: a list may have tens of thousands.
    if (auto* list = qobject_cast<QListView*>(popup)) list->setUniformItemSizes(true);
    _model->setLook(*popup);
    field.setCompleter(_completer);
    // Queued, because the field gets the name as its text at the same signal.
    connect(_completer, qOverload<const QString&>(&QCompleter::activated), this,
            &NameCompletion::chosen, Qt::QueuedConnection);
    // A name that the keys have reached is a text that the user has not entered yet.
    connect(
        _completer, qOverload<const QString&>(&QCompleter::highlighted), this,
        [this] { _field.setModified(true); }, Qt::QueuedConnection);
}

void NameCompletion::setRows(std::vector<Row> rows)
{
    _model->setRows(std::move(rows));
}

}  // namespace vantorel
