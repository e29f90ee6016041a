#include "panel/palettes/PaletteListChooser.h"

#include "hosts/qt/ClipboardLineEdit.h"
#include "hosts/qt/QtColors.h"
#include "panel/widgets/QuietLabel.h"

#include <QKeyEvent>
#include <QSignalBlocker>
#include <QStylePainter>

#include <algorithm>

namespace vantorel {

PaletteListChooser::PaletteListChooser(QWidget* parent)
    : QComboBox(parent),
      _rows(new PaletteListModel(this)),
      _name(new ClipboardLineEdit(this)),
      _count(new QuietLabel({}, this))
{
    setModel(_rows);
    setObjectName(QStringLiteral("paletteLists"));
    setAccessibleName(tr("Colour list"));
    setToolTip(tr("The shown list"));
    setFont(fontOfSize(12));
    // As wide as the page, not as the longest name.
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(6);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(this, &QComboBox::activated, this, [this] { emit listChosen(shownList()); });

    _count->setObjectName(QStringLiteral("paletteCount"));
    _count->setFont(fontOfSize(11));
    _count->setAttribute(Qt::WA_TransparentForMouseEvents);

    _name->setObjectName(QStringLiteral("paletteListName"));
    _name->setAccessibleName(tr("Name of the list"));
    _name->setMaxLength(200);
    _name->hide();
    _name->installEventFilter(this);
    connect(_name, &QLineEdit::editingFinished, this, &PaletteListChooser::finishEditing);
}

PaletteId PaletteListChooser::showLists(const std::vector<EditablePalette>& palettes,
                                        PaletteId wanted)
{
    const QSignalBlocker blocker(this);
    const int place = std::max(currentIndex(), 0);
    _rows->setPalettes(palettes);
    int row = _rows->rowOf(wanted);
    if (row < 0) {
        row = std::min(place, count() - 1);
        // Before a separator there is always a list.
        if (row > 0 && _rows->listAt(row) == 0) --row;
    }
    setCurrentIndex(row);
    setEnabled(count() > 0);
    return shownList();
}

void PaletteListChooser::showCount(const QString& count)
{
    _count->setText(count);
    _count->setAccessibleName(tr("Colours in the list: %1").arg(count));
    setAccessibleDescription(_count->accessibleName());
    update();
}

void PaletteListChooser::paintEvent(QPaintEvent*)
{
    constexpr int gap = 6;
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    const QRect room =
        style()
            ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this)
            .adjusted(gap, 0, -gap, 0);
    const int iconWidth = option.currentIcon.isNull() ? 0 : option.iconSize.width() + gap;
    const int countWidth = _count->sizeHint().width();
    const int nameRoom = std::max(0, room.width() - iconWidth - gap - countWidth);
    option.currentText =
        option.fontMetrics.elidedText(option.currentText, Qt::ElideRight, nameRoom);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
    const int nameWidth =
        std::min(option.fontMetrics.horizontalAdvance(option.currentText), nameRoom);
    const QRect place(room.left() + iconWidth + nameWidth + gap, room.top(), countWidth,
                      room.height());
    const QRect shown = QStyle::visualRect(layoutDirection(), room, place);
    if (_count->geometry() != shown) _count->setGeometry(shown);
}

void PaletteListChooser::beginRename(const QString& name)
{
    _name->setGeometry(rect());
    _name->setText(name);
    _name->raise();
    _name->show();
    _name->setFocus();
    _name->selectAll();
}

void PaletteListChooser::endRename(bool takes)
{
    if (!_name->isVisible()) return;
    // Hiding the field removes its focus, which would finish editing a second time.
    const QSignalBlocker blocker(_name);
    const bool hadFocus = _name->hasFocus();
    _name->hide();
    if (hadFocus) setFocus();
    if (takes) emit nameEntered(_name->text());
}

bool PaletteListChooser::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == _name && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        endRename(false);
        return true;
    }
    return QComboBox::eventFilter(watched, event);
}

}  // namespace vantorel
