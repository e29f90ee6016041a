#include "panel/palettes/PaletteListChooser.h"

#include "hosts/qt/PlainText.h"
#include "hosts/qt/QtColors.h"
#include "panel/widgets/PanelIcons.h"

#include <QKeyEvent>
#include <QSignalBlocker>

#include <algorithm>

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

PaletteListChooser::PaletteListChooser(QWidget* parent)
    : QComboBox(parent), _name(new QLineEdit(this))
{
    setObjectName(QStringLiteral("paletteLists"));
    setAccessibleName(tr("Colour list"));
    setToolTip(tr("The shown list"));
    setFont(fontOfSize(12));
    // As wide as the page, not as the longest name.
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(6);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(this, &QComboBox::activated, this, [this] { emit listChosen(shownList()); });

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
    clear();
    // The user's own lists first, because only those can be edited.
    for (const bool own : {true, false}) {
        if (!own && count() > 0) insertSeparator(count());
        for (const EditablePalette& palette : palettes) {
            if (palette.isOwn() == own) addList(palette);
        }
    }
    if (count() > 0 && itemData(count() - 1).isNull()) removeItem(count() - 1);
    PaletteId shown = wanted;
    if (findData(QVariant::fromValue(shown)) < 0) {
        // A separator is not a list, but there is always a list before it.
        const int next = std::min(place, count() - 1);
        shown = itemData(next).toULongLong();
        if (shown == 0) shown = itemData(next - 1).toULongLong();
    }
    setCurrentIndex(findData(QVariant::fromValue(shown)));
    setEnabled(count() > 0);
    return shown;
}

void PaletteListChooser::addList(const EditablePalette& palette)
{
    addItem(palette.isOwn() ? QIcon() : lockIcon(), shownName(palette),
            QVariant::fromValue(palette.id));
    if (palette.isOwn()) return;
    setItemData(count() - 1,
                plainToolTip(tr("Belongs to %1, read-only").arg(qStringFrom(palette.program))),
                Qt::ToolTipRole);
}

void PaletteListChooser::beginRename(const QString& name)
{
    _name->setGeometry(rect());
    _name->setText(name);
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
