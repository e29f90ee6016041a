#include "panel/palettes/PictureColors.h"

#include "colormath/MainColors.h"
#include "hosts/qt/PlainText.h"
#include "hosts/qt/QtColors.h"
#include "hosts/qt/TextScale.h"
#include "paletteedit/ProposedName.h"
#include "panel/widgets/QuietLabel.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include <span>

namespace vantorel {
namespace {

constexpr QSize windowPoints{380, 520};
constexpr int windowMargin = 12;
constexpr int rowsShown = 4;

}  // namespace

PictureColors::PictureColors(const QImage& picture, const QString& name, QWidget* parent)
    : QDialog(parent),
      _picture(picture.convertToFormat(QImage::Format_ARGB32)),
      _view(new PictureView(_picture, this)),
      _pointedAt(new QuietLabel({}, this)),
      _count(new QSpinBox(this)),
      _colors(new PaletteEntriesView(this))
{
    setObjectName(QStringLiteral("pictureColors"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(plainTitle(tr("Colours of \"%1\"").arg(name)));
    _pointedAt->setObjectName(QStringLiteral("picturePointedAt"));
    _pointedAt->setFont(fontOfSize(11));

    _count->setObjectName(QStringLiteral("pictureCount"));
    _count->setRange(1, largestCount);
    _count->setValue(usualCount);
    _count->setAccessibleName(tr("Number of main colours"));
    _count->setToolTip(tr("Number of main colours"));
    auto* countLabel = new PlainLabel(tr("Main colours:"), this);
    countLabel->setBuddy(_count);

    _colors->setObjectName(QStringLiteral("pictureMainColors"));
    _colors->setAccessibleName(tr("Main colours of the picture"));
    _colors->setEditTriggers(QAbstractItemView::NoEditTriggers);
    _colors->setAcceptDrops(false);
    _colors->setMinimumHeight(scaled(rowsShown * 32));

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    QPushButton* keep = buttons->addButton(tr("Keep as a list"), QDialogButtonBox::ActionRole);
    keep->setObjectName(QStringLiteral("pictureKeep"));
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(keep, &QPushButton::clicked, this,
            [this, name] { emit kept(name, _colors->entriesModel().entries()); });
    buttons->button(QDialogButtonBox::Close)->setIcon({});
    // Return chooses a colour, and must not press a button.
    for (QAbstractButton* button : buttons->buttons()) {
        if (auto* push = qobject_cast<QPushButton*>(button)) push->setAutoDefault(false);
    }

    auto* rows = new QVBoxLayout(this);
    const int margin = scaled(windowMargin);
    rows->setContentsMargins(margin, margin, margin, margin);
    rows->addWidget(_view, 1);
    auto* head = new QHBoxLayout;
    head->addWidget(countLabel);
    head->addWidget(_count);
    head->addStretch(1);
    head->addWidget(_pointedAt);
    rows->addLayout(head);
    rows->addWidget(_colors);
    rows->addWidget(buttons);
    resize(windowPoints * textScale());

    connect(_view, &PictureView::pointedAt, this, &PictureColors::showPointedAt);
    connect(_view, &PictureView::picked, this,
            [this](const QColor& color) { emit colorChosen(hostColorFrom(color)); });
    connect(_count, &QSpinBox::valueChanged, this, &PictureColors::findColors);
    connect(_colors, &PaletteEntriesView::colorChosen, this, [this](std::size_t place) {
        emit colorChosen(_colors->entriesModel().entries()[place].color());
    });
    findColors();
}

void PictureColors::findColors()
{
    // Lines of this format have no gaps.
    const std::span pixels(
        reinterpret_cast<const std::uint32_t*>(_picture.constBits()),
        static_cast<std::size_t>(_picture.width()) * static_cast<std::size_t>(_picture.height()));
    std::vector<HostColor> colors;
    for (const MainColor& color : mainColors(pixels, static_cast<std::size_t>(_count->value())))
        colors.push_back(hostColorFrom(QColor(static_cast<QRgb>(color.value))));
    _colors->entriesModel().setEntries(entriesNamedAfterCSS(colors));
    _colors->setNote(colors.empty() ? tr("The picture is transparent.") : QString());
}

void PictureColors::showPointedAt(const QColor& color)
{
    _pointedAt->setText(color.isValid() ? color.name() : QString());
}

}  // namespace vantorel
