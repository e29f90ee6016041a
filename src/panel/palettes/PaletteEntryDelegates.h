#pragma once

#include <QStyledItemDelegate>

/// How an entry of a colour list is painted and renamed.
namespace vantorel {

/// The field in which a colour is renamed. In place of a name that is only a code it proposes
/// another, which is taken when the user enters or changes it, and forgotten when they go
/// elsewhere.
class PaletteEntryDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                        const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;

protected:
    bool eventFilter(QObject* editor, QEvent* event) override;
};

/// A row: a swatch, the name, and the hex code if there is room.
class PaletteRowDelegate final : public PaletteEntryDelegate {
public:
    using PaletteEntryDelegate::PaletteEntryDelegate;

    /// In points.
    static constexpr int rowHeight = 32;

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const override;
    void paint(QPainter* painter, const QStyleOptionViewItem& given,
               const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;
};

/// A swatch alone, in a cell of a `PaletteGrid` as wide as the viewport.
class PaletteCellDelegate final : public PaletteEntryDelegate {
public:
    using PaletteEntryDelegate::PaletteEntryDelegate;

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const override;
    void paint(QPainter* painter, const QStyleOptionViewItem& given,
               const QModelIndex& index) const override;
    /// A cell is too narrow for a name: the field lies over its row.
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;
};

}  // namespace vantorel
