#pragma once

#include "hosts/qt/PlainText.h"

#include <QTimer>

#include <vector>

namespace vantorel {

struct Message;

/// Reports the outcome of a step, in as many lines as the message needs. News disappears after a
/// while; a failure is shown until the next step or until it is clicked.
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
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    QTimer _timer;
};

}  // namespace vantorel
