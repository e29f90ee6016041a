#include "panel/palettes/PaletteEntryDelegates.h"

#include "hosts/qt/ClipboardLineEdit.h"
#include "hosts/qt/QtColors.h"
#include "hosts/qt/StyleHints.h"
#include "hosts/qt/TextScale.h"
#include "panel/palettes/PaletteEntriesModel.h"
#include "panel/palettes/PaletteEntriesView.h"
#include "panel/widgets/PixelGrid.h"
#include "panel/widgets/StylePainting.h"
#include "panel/widgets/Swatch.h"

#include <QFocusEvent>
#include <QFontDatabase>
#include <QPainter>

#include <algorithm>

namespace vantorel {
namespace {

// In points.
constexpr QSize rowSwatch{28, 24};
constexpr int rowGap = 8;
/// Narrower rows have no room for the hex code.
constexpr int leastWidthWithHex = 170;
constexpr int nameFieldWidth = 180;
/// The maximum length of a typed name. Files may have longer ones.
constexpr int longestTypedName = 200;

/// Of a field: the name that the entry has.
constexpr const char* nameInListProperty = "nameInList";

/// Between a swatch of the grid and the ring around it, in device-independent pixels.
constexpr qreal ringGap = 1;

HostColor colorOf(const QModelIndex& index)
{
    return hostColorFrom(index.data(PaletteEntriesModel::colorRole).value<QColor>());
}

QRect mirrored(const QStyleOptionViewItem& option, const QRect& rect)
{
    return QStyle::visualRect(option.direction, option.rect, rect);
}

QRect rowSwatchRect(const QRect& row)
{
    const int width = scaled(rowSwatch.width());
    const int height = std::min(scaled(rowSwatch.height()), row.height());
    return {row.left() + scaled(rowGap), row.top() + (row.height() - height) / 2, width, height};
}

QRect rowNameRect(const QRect& row)
{
    const int left = rowSwatchRect(row).right() + 1 + scaled(rowGap);
    return {left, row.top(), row.right() - scaled(rowGap) - left, row.height()};
}

QFont codeFont()
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPixelSize(scaled(11));
    return font;
}

}  // namespace

QWidget* PaletteEntryDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                            const QModelIndex&) const
{
    auto* field = new ClipboardLineEdit(parent);
    field->setObjectName(QStringLiteral("paletteEntryName"));
    field->setMaxLength(longestTypedName);
    field->setAccessibleName(PaletteEntriesView::tr("Colour name"));
    return field;
}

void PaletteEntryDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    auto* field = static_cast<QLineEdit*>(editor);
    const QString name = index.data(PaletteEntriesModel::startNameRole).toString();
    field->setProperty(nameInListProperty, index.data(Qt::EditRole));
    // A name from a file may be longer than the maximum and must not be truncated.
    if (name.size() > field->maxLength()) field->setMaxLength(static_cast<int>(name.size()));
    field->setText(name);
    field->selectAll();
}

bool PaletteEntryDelegate::eventFilter(QObject* editor, QEvent* event)
{
    if (event->type() == QEvent::FocusOut &&
        static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason) {
        auto* field = qobject_cast<QLineEdit*>(editor);
        if (field != nullptr && !field->isModified())
            field->setText(field->property(nameInListProperty).toString());
    }
    return QStyledItemDelegate::eventFilter(editor, event);
}

QSize PaletteRowDelegate::sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const
{
    return {scaled(60), scaled(rowHeight)};
}

void PaletteRowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& given,
                               const QModelIndex& index) const
{
    QStyleOptionViewItem option = given;
    initStyleOption(&option, index);
    const QWidget* view = option.widget;
    const QStyle& style = *view->style();
    style.drawPrimitive(QStyle::PE_PanelItemViewItem, &option, painter, view);

    const ThemeColors theme = themeColors(option.palette);
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    QColor text = theme.text;
    QColor faint = theme.text2;
    // Other styles mark a row with the colour of selected text.
    if (isSelected && style.styleHint(stylePaintsHostControls, nullptr, view) == 0) {
        const bool isActive = option.state.testFlag(QStyle::State_Active);
        text = option.palette.color(isActive ? QPalette::Active : QPalette::Inactive,
                                    QPalette::HighlightedText);
        faint = text;
    }

    painter->save();
    {
        const PixelGrid pixels(*painter);
        paintSwatch(*painter, pixels.nearest(QRectF(mirrored(option, rowSwatchRect(option.rect)))),
                    colorOf(index), theme);
    }
    QRect name = rowNameRect(option.rect);
    const auto level = static_cast<int>(Qt::AlignVCenter);
    if (option.rect.width() >= scaled(leastWidthWithHex)) {
        painter->setFont(codeFont());
        painter->setPen(faint);
        const QString hex = index.data(PaletteEntriesModel::hexRole).toString();
        const int width = painter->fontMetrics().horizontalAdvance(QStringLiteral("#DDDDDD"));
        const QRect place(name.right() + 1 - width, name.top(), width, name.height());
        painter->drawText(mirrored(option, place), level | Qt::AlignTrailing, hex);
        name.setRight(place.left() - scaled(rowGap));
    }
    painter->setFont(option.font);
    painter->setPen(text);
    painter->drawText(mirrored(option, name), level | Qt::AlignLeading | Qt::TextSingleLine,
                      painter->fontMetrics().elidedText(option.text, Qt::ElideRight, name.width()));
    painter->restore();
    if (option.state.testFlag(QStyle::State_HasFocus)) {
        QStyleOptionFocusRect focus;
        focus.QStyleOption::operator=(option);
        focus.backgroundColor =
            option.palette.color(isSelected ? QPalette::Highlight : QPalette::Base);
        style.drawPrimitive(QStyle::PE_FrameFocusRect, &focus, painter, view);
    }
}

void PaletteRowDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                              const QModelIndex&) const
{
    editor->setGeometry(mirrored(option, rowNameRect(option.rect)));
}

QSize PaletteCellDelegate::sizeHint(const QStyleOptionViewItem& option,
                                    const QModelIndex& index) const
{
    return static_cast<const PaletteEntriesView*>(option.widget)->grid().cellSize(index.row());
}

void PaletteCellDelegate::paint(QPainter* painter, const QStyleOptionViewItem& given,
                                const QModelIndex& index) const
{
    QStyleOptionViewItem option = given;
    initStyleOption(&option, index);
    const auto* view = static_cast<const PaletteEntriesView*>(option.widget);
    const QSize size = view->grid().swatchSize(index.row());
    const QRect place = mirrored(option, QRect(option.rect.topLeft(), size));
    const ThemeColors theme = themeColors(option.palette);

    painter->save();
    const PixelGrid pixels(*painter);
    QRectF swatch = pixels.nearest(QRectF(place));
    const bool hasFocus = option.state.testFlag(QStyle::State_HasFocus) &&
                          option.state.testFlag(QStyle::State_KeyboardFocusChange);
    if (hasFocus || option.state.testFlag(QStyle::State_Selected)) {
        paintRounded(*painter, swatch, swatchRadius() + 1, {}, hasFocus ? theme.accent : theme.text,
                     ringWidth);
        const qreal inset = ringWidth + ringGap;
        swatch.adjust(inset, inset, -inset, -inset);
        // With the focus elsewhere among several chosen ones, both must be seen.
        if (hasFocus && option.state.testFlag(QStyle::State_Selected)) {
            paintRounded(*painter, swatch, swatchRadius(), {}, theme.text, ringWidth);
            swatch.adjust(ringWidth, ringWidth, -ringWidth, -ringWidth);
        }
    }
    paintSwatch(*painter, swatch, colorOf(index), theme);
    painter->restore();
}

void PaletteCellDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                               const QModelIndex&) const
{
    const QRect room = editor->parentWidget()->rect();
    QRect place(QPoint(), QSize(std::min(scaled(nameFieldWidth), room.width()),
                                std::max(option.rect.height(), editor->sizeHint().height())));
    place.moveCenter(option.rect.center());
    place.moveLeft(std::clamp(place.left(), 0, std::max(0, room.width() - place.width())));
    place.moveTop(std::clamp(place.top(), 0, std::max(0, room.height() - place.height())));
    editor->setGeometry(place);
}

}  // namespace vantorel
