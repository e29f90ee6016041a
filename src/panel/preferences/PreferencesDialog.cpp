#include "panel/preferences/PreferencesDialog.h"

#include "hosts/qt/QtColors.h"
#include "hosts/qt/TextScale.h"
#include "panel/preferences/GeneralPreferences.h"
#include "panel/widgets/QuietLabel.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace vantorel {

PreferencesDialog::PreferencesDialog(PanelPreferences& preferences, QWidget* parent)
    : QDialog(parent), _general(new GeneralPreferences(preferences, this))
{
    constexpr int margin = 12;
    constexpr int smallText = 11;
    constexpr int usualWidth = 480;
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(tr("Preferences"));

    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(scaled(margin), scaled(margin), scaled(margin), scaled(margin));
    rows->setSpacing(scaled(margin));
    rows->addWidget(_general);
    rows->addSpacing(scaled(margin));
    rows->addStretch();

    auto* last = new QHBoxLayout;
    auto* note = new QuietLabel(tr("Changes apply at once"), this);
    note->setFont(fontOfSize(smallText));
    auto* close = new QPushButton(tr("Close"), this);
    close->setAutoDefault(false);
    connect(close, &QPushButton::clicked, this, &QDialog::close);
    last->addWidget(note, 1);
    last->addWidget(close);
    rows->addLayout(last);

    resize(sizeHint().expandedTo({scaled(usualWidth), 0}));
}

}  // namespace vantorel
