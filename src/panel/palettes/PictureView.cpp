#include "panel/palettes/PictureView.h"

#include "hosts/qt/TextScale.h"
#include "panel/widgets/StylePainting.h"
#include "panel/widgets/Swatch.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace vantorel {
namespace {

constexpr QSize pictureRoom{360, 220};
constexpr QSize leastPictureRoom{120, 80};
constexpr int markSide = 11;

}  // namespace

PictureView::PictureView(const QImage& picture, QWidget* parent)
    : QWidget(parent), _picture(picture.convertToFormat(QImage::Format_ARGB32))
{
    constexpr int mostSide = 2048;
    _reduced =
        std::max(_picture.width(), _picture.height()) > mostSide
            ? _picture.scaled(mostSide, mostSide, Qt::KeepAspectRatio, Qt::SmoothTransformation)
            : _picture;
    setObjectName(QStringLiteral("pictureView"));
    setAccessibleName(tr("Picture"));
    setToolTip(
        tr("Click a colour to choose it, or move to it with the arrow keys and press Enter"));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setCursor(Qt::CrossCursor);
    setMinimumSize(leastPictureRoom * textScale());
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize PictureView::sizeHint() const
{
    return pictureRoom * textScale();
}

QRect PictureView::place() const
{
    const QSize size = _picture.size().scaled(this->size(), Qt::KeepAspectRatio).expandedTo({1, 1});
    return {QPoint((width() - size.width()) / 2, (height() - size.height()) / 2), size};
}

QColor PictureView::colorAt(QPoint point) const
{
    const QRect room = place();
    if (!room.contains(point)) return {};
    const auto pixelAt = [](int offset, int length, int pixels) {
        return std::min(static_cast<int>((offset + 0.5) * pixels / length), pixels - 1);
    };
    const QColor color =
        _picture.pixelColor(pixelAt(point.x() - room.left(), room.width(), _picture.width()),
                            pixelAt(point.y() - room.top(), room.height(), _picture.height()));
    if (color.alpha() == 0) return {};
    return {color.red(), color.green(), color.blue()};
}

bool PictureView::event(QEvent* event)
{
    switch (event->type()) {
        case QEvent::Leave:
            emit pointedAt(_mark && hasFocus() ? colorAt(*_mark) : QColor());
            break;
        case QEvent::Resize:
            _mark.reset();
            break;
        case QEvent::FocusIn:
        case QEvent::FocusOut:
            update();
            break;
        default:
            break;
    }
    return QWidget::event(event);
}

void PictureView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QRect room = place();
    const qreal ratio = devicePixelRatioF();
    const QSize pixels = (QSizeF(room.size()) * ratio).toSize();
    if (_scaled.size() != pixels) {
        _scaled = QPixmap::fromImage(
            _reduced.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
        _scaled.setDevicePixelRatio(ratio);
    }
    const ThemeColors theme = themeColors(palette());
    if (_picture.hasAlphaChannel()) {
        painter.setBrushOrigin(room.topLeft());
        painter.fillRect(room, checkersBrush(theme, ratio));
    }
    painter.drawPixmap(room.topLeft(), _scaled);
    if (!hasFocus()) return;
    paintFocusRing(painter, QRectF(rect()), controlRadius, theme);
    if (!_mark) return;
    // White and black, so that it is seen on any colour.
    const int side = scaled(markSide);
    QRect mark(QPoint(), QSize(side, side));
    mark.moveCenter(*_mark);
    painter.setPen(Qt::black);
    painter.drawRect(mark.adjusted(-1, -1, 0, 0));
    painter.setPen(Qt::white);
    painter.drawRect(mark.adjusted(0, 0, -1, -1));
}

void PictureView::mouseMoveEvent(QMouseEvent* event)
{
    emit pointedAt(colorAt(event->position().toPoint()));
}

void PictureView::mouseReleaseEvent(QMouseEvent* event)
{
    const QColor color = colorAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton && color.isValid()) emit picked(color);
}

void PictureView::setMark(QPoint mark)
{
    const QRect room = place();
    _mark = QPoint(std::clamp(mark.x(), room.left(), room.right()),
                   std::clamp(mark.y(), room.top(), room.bottom()));
    const QColor color = colorAt(*_mark);
    // Assistive technology reads it as it changes.
    setAccessibleDescription(color.isValid() ? color.name() : tr("transparent"));
    emit pointedAt(color);
    update();
}

void PictureView::keyPressEvent(QKeyEvent* event)
{
    constexpr int coarse = 10;
    const int step = event->modifiers().testFlag(Qt::ShiftModifier) ? coarse : 1;
    const QPoint mark = _mark.value_or(place().center());
    switch (event->key()) {
        case Qt::Key_Left:
            setMark(mark - QPoint(step, 0));
            break;
        case Qt::Key_Right:
            setMark(mark + QPoint(step, 0));
            break;
        case Qt::Key_Up:
            setMark(mark - QPoint(0, step));
            break;
        case Qt::Key_Down:
            setMark(mark + QPoint(0, step));
            break;
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
            setMark(mark);
            if (colorAt(mark).isValid()) emit picked(colorAt(mark));
            break;
        default:
            QWidget::keyPressEvent(event);
    }
}

}  // namespace vantorel
