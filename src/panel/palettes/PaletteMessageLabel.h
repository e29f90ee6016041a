#pragma once

#include "hosts/qt/PlainText.h"

#include <QTimer>

#include <vector>

namespace vantorel {

struct Message;

/// The line in which the page reports the outcome of a step. News disappears after a while; a
/// failure is shown until the next step.
class PaletteMessageLabel final : public PlainLabel {
    Q_OBJECT

public:
    enum class Kind { news, failure };

    explicit PaletteMessageLabel(QWidget* parent);

    /// Shows messages, one sentence each, and announces them to assistive technology. Without
    /// messages the line is hidden.
    void showMessages(const std::vector<Message>& messages, Kind kind);
    void showMessage(const Message& message, Kind kind);

private:
    QTimer _timer;
};

}  // namespace vantorel
