#pragma once

#include "hosts/qt/PlainText.h"

#include <QTimer>

#include <vector>

namespace vantorel {

struct Message;

/// Reports the outcome of a step, in as many lines as the message needs, with an icon. News
/// disappears as soon as it can have been read; a failure is shown until the next step or until it
/// is clicked.
class MessageLabel final : public PlainLabel {
    Q_OBJECT

public:
    enum class Kind { news, failure };

    explicit MessageLabel(QWidget* parent);

    /// Shows messages, one sentence each, and announces them to assistive technology. Without
    /// messages the label is hidden.
    void showMessages(const std::vector<Message>& messages, Kind kind);
    void showMessage(const Message& message, Kind kind);

signals:
    /// The message is another one, or there is none any more.
    void messageChanged();

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void applyTheme();

    Kind _kind = Kind::news;
    QTimer _timer;
};

}  // namespace vantorel
