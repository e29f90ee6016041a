#include "panel/preferences/PreferencesDialog.h"

#include "hosts/qt/QtColors.h"
#include "hosts/qt/TextScale.h"
#include "panel/preferences/GeneralPreferences.h"
#include "panel/widgets/QuietLabel.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <utility>

namespace vantorel {
namespace {

/// A place for a page that is made later.
QWidget* newPagePlace(QWidget* parent)
{
    auto* place = new QWidget(parent);
    auto* rows = new QVBoxLayout(place);
    rows->setContentsMargins(0, 0, 0, 0);
    return place;
}

}  // namespace

PreferencesDialog::PreferencesDialog(PanelPreferences& preferences, QWidget* parent)
    : QDialog(parent),
      _general(new GeneralPreferences(preferences, this)),
      _names(new QListWidget(this)),
      _pages(new QStackedWidget(this))
{
    constexpr int margin = 12;
    constexpr int smallText = 11;
    constexpr int usualWidth = 640;
    constexpr int usualHeight = 476;
    constexpr int namesWidth = 120;
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(tr("Preferences"));

    _names->setObjectName(QStringLiteral("preferencePages"));
    _names->setAccessibleName(tr("Pages of the preferences"));
    _names->setFrameShape(QFrame::NoFrame);
    _names->viewport()->setAutoFillBackground(false);
    _names->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    _names->setMinimumWidth(scaled(namesWidth));
    _names->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    connect(_names, &QListWidget::currentRowChanged, this, &PreferencesDialog::showPage);
    // A click beside the names would leave none of them chosen.
    connect(_names, &QListWidget::itemSelectionChanged, this, [this] {
        if (_names->selectedItems().isEmpty()) showPage(_names->currentRow());
    });

    auto* rows = new QVBoxLayout;
    rows->setSpacing(scaled(margin));
    rows->addWidget(_pages, 1);
    auto* last = new QHBoxLayout;
    auto* note = new QuietLabel(tr("Changes apply at once"), this);
    note->setFont(fontOfSize(smallText));
    auto* close = new QPushButton(tr("Close"), this);
    close->setAutoDefault(false);
    connect(close, &QPushButton::clicked, this, &QDialog::close);
    last->addWidget(note, 1);
    last->addWidget(close);
    rows->addLayout(last);

    auto* columns = new QHBoxLayout(this);
    columns->setContentsMargins(scaled(margin), scaled(margin), scaled(margin), scaled(margin));
    columns->setSpacing(scaled(margin));
    columns->addWidget(_names);
    columns->addLayout(rows, 1);

    addPage(tr("General"), [this](QWidget* place) {
        static_cast<QVBoxLayout*>(place->layout())->addStretch();
        return _general;
    });
    showPage(0);
    resize(sizeHint().expandedTo({scaled(usualWidth), scaled(usualHeight)}));
}

void PreferencesDialog::addPage(const QString& name, MakePage makePage)
{
    _makers.push_back(std::move(makePage));
    _pages->addWidget(newPagePlace(_pages));
    constexpr int nameHeight = 32;
    constexpr int besideName = 12;
    auto* item = new QListWidgetItem(name, _names);
    const int width = _names->fontMetrics().horizontalAdvance(name) + 2 * scaled(besideName);
    item->setSizeHint({width, scaled(nameHeight)});
    _names->setFixedWidth(qMax(_names->minimumWidth(), _names->sizeHintForColumn(0)));
}

void PreferencesDialog::showPage(int page)
{
    if (page < 0 || page >= _pages->count()) return;
    if (const MakePage make = std::exchange(_makers[static_cast<std::size_t>(page)], {})) {
        QWidget* place = _pages->widget(page);
        static_cast<QVBoxLayout*>(place->layout())->insertWidget(0, make(place));
    }
    _pages->setCurrentIndex(page);
    _names->setCurrentRow(page, QItemSelectionModel::ClearAndSelect);
}

}  // namespace vantorel
