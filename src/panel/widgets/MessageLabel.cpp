#include "panel/widgets/MessageLabel.h"

#include "hosts/qt/QtColors.h"
#include "hosts/qt/QtMessages.h"
#include "hosts/qt/TextScale.h"

#include <QAccessible>
#include <QMouseEvent>

#include <chrono>

namespace vantorel {
namespace {

constexpr std::chrono::milliseconds newsTime{12000};

QColor mixed(const QColor& ground, const QColor& color, double share)
{
    const auto channel = [share](int from, int to) { return qRound(from + (to - from) * share); };
    return {channel(ground.red(), color.red()), channel(ground.green(), color.green()),
            channel(ground.blue(), color.blue())};
}

}  // namespace

MessageLabel::MessageLabel(QWidget* parent) : PlainLabel(parent)
{
    setFont(fontOfSize(10));
    setWordWrap(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse);
    setMargin(scaled(4));
    setAutoFillBackground(true);
    hide();
    _timer.setSingleShot(true);
    _timer.setInterval(newsTime);
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
    QPalette colors = parentWidget()->palette();
    const QColor ground = colors.color(QPalette::Window);
    colors.setColor(QPalette::Window, kind == Kind::failure
                                          ? mixed(ground, QColor(220, 50, 30), 0.25)
                                          : mixed(ground, colors.color(QPalette::Highlight), 0.15));
    setPalette(colors);
    if (kind == Kind::news) _timer.start();
    QAccessibleEvent event(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

void MessageLabel::mouseReleaseEvent(QMouseEvent* event)
{
    PlainLabel::mouseReleaseEvent(event);
    if (!hasSelectedText()) showMessages({}, Kind::news);
}

}  // namespace vantorel
