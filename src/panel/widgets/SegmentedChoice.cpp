#include "panel/widgets/SegmentedChoice.h"

#include "hosts/qt/PlainText.h"
#include "hosts/qt/TextScale.h"
#include "panel/widgets/StyleFields.h"
#include "panel/widgets/StylePainting.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QRadioButton>
#include <QStyleOptionButton>

#include <algorithm>
#include <utility>

namespace vantorel {
namespace {

QFont chosenFont(QFont font)
{
    font.setBold(true);
    return font;
}

/// The frame belongs to the whole row; a word fills its part of it.
class Segment final : public QRadioButton {
public:
    /// `before` is the word on the left, or null.
    Segment(const QString& text, const QIcon& icon, const QRadioButton* before, QWidget* parent)
        : QRadioButton(text, parent), _icon(icon), _before(before)
    {
        setAttribute(Qt::WA_Hover);
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    }

    [[nodiscard]] QSize sizeHint() const override
    {
        constexpr int padding = 12;
        if (!_icon.isNull()) return {iconSide() + 2 * iconPadding, controlHeight};
        const QFontMetrics metrics(chosenFont(font()));
        constexpr int aroundText = 12;
        return {metrics.size(Qt::TextShowMnemonic, text()).width() + 2 * padding,
                std::max(controlHeight, metrics.height() + aroundText)};
    }
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    [[nodiscard]] bool hitButton(const QPoint& place) const override
    {
        return rect().contains(place);
    }

    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        QStyleOptionButton option;
        initStyleOption(&option);
        const ThemeColors colors = themeColors(option);
        const QRectF row = QRectF(parentWidget()->rect()).translated(-pos());
        paintGround(painter, option, row, colors);
        const QColor ink = isOff(option) ? (isChecked() ? colors.window : colors.textOff)
                                         : (isChecked() ? colors.window : colors.text2);
        if (_icon.isNull()) {
            painter.setFont(isChecked() ? chosenFont(font()) : font());
            painter.setPen(ink);
            painter.drawText(rect(), Qt::AlignCenter | Qt::TextShowMnemonic, text());
        } else {
            paintIcon(painter, ink);
        }
        if (!showsKeyboardFocus(option)) return;
        constexpr qreal inset = 1;
        const QRectF ring = QRectF(rect()).adjusted(inset, inset, -inset, -inset);
        if (isChecked())
            paintRounded(painter, ring, controlRadius, {}, colors.window, ringWidth + 1);
        paintFocusRing(painter, ring, controlRadius, colors);
    }

private:
    static constexpr int iconPadding = 8;

    [[nodiscard]] static int iconSide() { return scaled(16); }

    void paintIcon(QPainter& painter, const QColor& ink) const
    {
        const QSize size(iconSide(), iconSide());
        QPixmap picture = _icon.pixmap(size, devicePixelRatioF());
        QPainter dye(&picture);
        dye.setCompositionMode(QPainter::CompositionMode_SourceIn);
        dye.fillRect(QRect(QPoint(), size), ink);
        dye.end();
        painter.drawPixmap((width() - size.width()) / 2, (height() - size.height()) / 2, picture);
    }

    /// The row is painted whole and only this part is seen, so that its ends are round.
    void paintGround(QPainter& painter, const QStyleOptionButton& option, const QRectF& row,
                     const ThemeColors& colors) const
    {
        painter.save();
        painter.setClipRect(rect());
        if (isChecked()) {
            paintRounded(painter, row, controlRadius, isOff(option) ? colors.textOff : colors.text,
                         {});
        } else {
            paintRounded(painter, row, controlRadius, pressableGround(option, colors),
                         borderColor(option, colors));
            const qreal line = lineOnDevicePixels(painter, 1);
            if (_before != nullptr && !_before->isChecked())
                painter.fillRect(onDevicePixels(painter, {0, line, line, height() - 2 * line}),
                                 colors.line);
        }
        painter.restore();
    }

    QIcon _icon;
    const QRadioButton* _before;
};

}  // namespace

SegmentedChoice::SegmentedChoice(QWidget* parent) : QWidget(parent)
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void SegmentedChoice::addChoice(const QString& word, const QString& key)
{
    addSegment({}, word, key);
}

void SegmentedChoice::addChoice(const QIcon& icon, const QString& word, const QString& key)
{
    QRadioButton* segment = addSegment(icon, word, key);
    segment->setToolTip(plainToolTip(word));
    segment->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QRadioButton* SegmentedChoice::addSegment(const QIcon& icon, const QString& word,
                                          const QString& key)
{
    const QRadioButton* before = _words.isEmpty() ? nullptr : _words.last();
    // Radio buttons of one parent exclude each other.
    auto* segment = new Segment(plainTitle(word), icon, before, this);
    segment->setObjectName(key);
    _words.append(segment);
    layout()->addWidget(segment);
    connect(segment, &QRadioButton::toggled, this, [this, key](bool isChecked) {
        // The lines between words depend on their neighbours.
        for (QRadioButton* other : std::as_const(_words))
            other->update();
        if (isChecked) emit chosen(key);
    });
    return segment;
}

void SegmentedChoice::setCurrentKey(const QString& key)
{
    const QSignalBlocker blocker(this);
    for (QRadioButton* word : std::as_const(_words)) {
        if (word->objectName() == key) word->setChecked(true);
    }
}

QString SegmentedChoice::currentKey() const
{
    const auto checked = std::find_if(_words.begin(), _words.end(),
                                      [](const QRadioButton* word) { return word->isChecked(); });
    return checked != _words.end() ? (*checked)->objectName() : QString();
}

}  // namespace vantorel
