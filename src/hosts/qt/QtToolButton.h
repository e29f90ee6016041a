#pragma once

#include <QToolButton>

namespace vantorel {

/// A flat button with a picture that shows when it has the keyboard's focus, which most styles
/// leave out for such buttons.
class QtToolButton final : public QToolButton {
public:
    explicit QtToolButton(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace vantorel
