#include "panel/palettes/PaletteProgress.h"

#include "panel/palettes/PaletteControls.h"

#include <QHBoxLayout>

namespace vantorel {

PaletteProgress::PaletteProgress(QWidget* parent)
    : QWidget(parent), _text(palettecontrols::newLabel(this, "paletteProgressText"))
{
    setObjectName(QStringLiteral("paletteProgress"));
    QToolButton* stop = palettecontrols::newButton(this);
    stop->setObjectName(QStringLiteral("paletteStop"));
    stop->setText(tr("Stop"));
    stop->setAccessibleName(tr("Stop"));
    stop->setToolTip(tr("Read no more. What has been read so far can be used."));
    connect(stop, &QToolButton::clicked, this, &PaletteProgress::stopPressed);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(_text, 1);
    row->addWidget(stop);
    hide();
}

void PaletteProgress::showProgress(const QString& text)
{
    show();
    _text->setText(text);
    _text->setAccessibleName(tr("Read so far: %1").arg(text));
}

}  // namespace vantorel
