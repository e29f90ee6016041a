#include "panel/widgets/MessageLabel.h"

#include "hosts/qt/QtColors.h"
#include "hosts/qt/QtMessages.h"
#include "hosts/qt/TextScale.h"
#include "panel/widgets/PanelIcons.h"
#include "panel/widgets/ThemeColors.h"

#include <QAccessible>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

#include <chrono>

namespace vantorel {
namespace {

/// News is read in this time: some to notice it, some for each character.
constexpr std::chrono::milliseconds noticingTime{2000};
constexpr std::chrono::milliseconds characterTime{50};

// In points.
constexpr int messageTextSize = 12;
constexpr int messageIconPoints = 16;
constexpr int messageGap = 4;

}  // namespace

MessageLabel::MessageLabel(QWidget* parent) : PlainLabel(parent)
{
    setFont(fontOfSize(messageTextSize));
    setWordWrap(true);
    setAlignment(Qt::AlignLeading | Qt::AlignTop);
    setTextInteractionFlags(Qt::TextSelectableByMouse);
    hide();
    _timer.setSingleShot(true);
    connect(&_timer, &QTimer::timeout, this, [this] { showMessages({}, Kind::news); });
}

void MessageLabel::showMessage(const Message& message, Kind kind)
{
    showMessages({message}, kind);
}

void MessageLabel::showMessages(const std::vector<Message>& messages, Kind kind)
{
    QStringList sentences;
    for (const Message& message : messages)
        sentences.append(translatedSentence(message));
    sentences.removeAll(QString());
    const QString text = sentences.join(u' ');
    if (text.isEmpty() && this->text().isEmpty()) return;
    setText(text);
    setAccessibleName(text);
    setVisible(!text.isEmpty());
    _timer.stop();
    emit messageChanged();
    if (text.isEmpty()) return;
    _kind = kind;
    applyTheme();
    if (kind == Kind::news) _timer.start(noticingTime + text.size() * characterTime);
    QAccessibleEvent event(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

void MessageLabel::applyTheme()
{
    const ThemeColors theme = themeColors(parentWidget()->palette());
    QPalette colors = parentWidget()->palette();
    const QColor color = _kind == Kind::failure ? theme.error : theme.text;
    colors.setColor(QPalette::WindowText, color);
    // That of icons.
    colors.setColor(QPalette::ButtonText, color);
    if (colors != palette()) setPalette(colors);
    const int icon = scaled(messageIconPoints) + scaled(messageGap);
    const bool isMirrored = isRightToLeft();
    setContentsMargins(isMirrored ? 0 : icon, 0, isMirrored ? icon : 0, 0);
}

void MessageLabel::changeEvent(QEvent* event)
{
    PlainLabel::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange) applyTheme();
}

/// Failure and news have signs, because not everybody sees the difference of their colours.
void MessageLabel::paintEvent(QPaintEvent* event)
{
    PlainLabel::paintEvent(event);
    QPainter painter(this);
    const int size = scaled(messageIconPoints);
    const QIcon icon = _kind == Kind::failure ? warnIcon(this) : tickIcon(this);
    icon.paint(&painter, QStyle::visualRect(layoutDirection(), rect(), QRect(0, 0, size, size)));
}

void MessageLabel::mouseReleaseEvent(QMouseEvent* event)
{
    PlainLabel::mouseReleaseEvent(event);
    if (!hasSelectedText()) showMessages({}, Kind::news);
}

}  // namespace vantorel
