#include "panel/widgets/ColorFacts.h"

#include "hosts/qt/QtColors.h"
#include "hosts/qt/TextScale.h"

#include <QEvent>
#include <QFontDatabase>
#include <QFontMetrics>
#include <QSignalBlocker>
#include <QStyle>

#include <algorithm>

namespace vantorel {
namespace {

// In points.
constexpr int factsNameSize = 12;
constexpr int factsSmallSize = 11;
constexpr int factsLinePoints = 16;
constexpr int factsGap = 8;
constexpr int leastSlider = 40;
constexpr int widestSlider = 72;
constexpr int gapAfterSlider = 4;
constexpr int sliderPoints = 20;

int textAdvance(const QLabel& label, const QString& text)
{
    return QFontMetrics(label.font()).horizontalAdvance(text);
}

}  // namespace

ColorFacts::ColorFacts(QWidget* parent)
    : QWidget(parent),
      _name(new PlainLabel(this)),
      _list(new QuietLabel({}, this)),
      _otherForm(new QuietLabel({}, this)),
      _opacity(new QSlider(Qt::Horizontal, this)),
      _percent(new QuietLabel({}, this))
{
    setObjectName(QStringLiteral("colorFacts"));
    _name->setObjectName(QStringLiteral("colorName"));
    _name->setFont(fontOfSize(factsNameSize));
    _list->setFont(fontOfSize(factsSmallSize));
    _list->setAlignment(Qt::AlignTrailing | Qt::AlignVCenter);
    QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    fixed.setPixelSize(scaled(factsSmallSize));
    _otherForm->setFont(fixed);
    _otherForm->setTextInteractionFlags(Qt::TextSelectableByMouse);
    _opacity->setRange(0, 100);
    _opacity->setToolTip(tr("Opacity"));
    _opacity->setAccessibleName(tr("Opacity"));
    _percent->setFont(fontOfSize(factsSmallSize));
    _percent->setAlignment(Qt::AlignTrailing | Qt::AlignVCenter);
    connect(_opacity, &QSlider::valueChanged, this, &ColorFacts::opacityChosen);
}

int ColorFacts::lineHeight()
{
    return std::max(scaled(factsLinePoints), QFontMetrics(fontOfSize(factsNameSize)).height());
}

void ColorFacts::setName(const QString& name, const QString& list)
{
    if (name == _fullName && list == _list->text()) return;
    _fullName = name;
    _list->setText(list);
    _name->setAccessibleName(name);
    layOut();
}

void ColorFacts::setOtherForm(const QString& text)
{
    if (text == _otherForm->text()) return;
    _otherForm->setText(text);
    layOut();
}

void ColorFacts::setOpacity(int percent)
{
    const QSignalBlocker blocker(_opacity);
    _opacity->setValue(percent);
    _percent->setText(QStringLiteral("%1 %").arg(percent));
}

void ColorFacts::layOut()
{
    const int line = std::min(lineHeight(), height());
    const auto place = [&](QWidget& widget, int left, int top, int wide) {
        widget.setGeometry(
            QStyle::visualRect(layoutDirection(), rect(), QRect(left, top, wide, line)));
    };
    // The name of the list goes first, then the end of the name.
    const int space = scaled(factsGap);
    const int listWidth = textAdvance(*_list, _list->text());
    const bool hasList =
        !_list->text().isEmpty() && textAdvance(*_name, _fullName) + space + listWidth <= width();
    const int nameWidth = hasList ? width() - listWidth - space : width();
    _list->setVisible(hasList);
    place(*_list, width() - listWidth, 0, listWidth);
    place(*_name, 0, 0, nameWidth);
    const QString shown =
        QFontMetrics(_name->font()).elidedText(_fullName, Qt::ElideRight, nameWidth);
    _name->setText(shown);
    _name->setToolTip(shown == _fullName ? QString() : plainToolTip(_fullName));

    const bool hasSecond = height() >= 2 * line;
    const int percentWidth = textAdvance(*_percent, QStringLiteral("100 %"));
    const int formWidth = textAdvance(*_otherForm, _otherForm->text());
    // The handle reaches the end of the slider.
    const int sliderEnd = width() - percentWidth - scaled(gapAfterSlider);
    const int sliderWidth =
        std::clamp(sliderEnd - formWidth - 2 * space, scaled(leastSlider), scaled(widestSlider));
    const int sliderLeft = sliderEnd - sliderWidth;
    // Never cut: half a code is another colour.
    _otherForm->setVisible(hasSecond && formWidth + space <= sliderLeft);
    _opacity->setVisible(hasSecond);
    _percent->setVisible(hasSecond);
    place(*_otherForm, 0, line, formWidth);
    // The handle is higher than the line.
    const int sliderHeight = std::min(_opacity->sizeHint().height(), scaled(sliderPoints));
    _opacity->setGeometry(QStyle::visualRect(
        layoutDirection(), rect(),
        QRect(sliderLeft, line + (line - sliderHeight) / 2, sliderWidth, sliderHeight)));
    place(*_percent, width() - percentWidth, line, percentWidth);
}

void ColorFacts::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    layOut();
}

void ColorFacts::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange) layOut();
}

}  // namespace vantorel
