#pragma once

#include <QToolButton>

namespace vantorel {

/// A flat button with a picture. It shows the keyboard focus, which most styles omit for flat
/// buttons.
class QtToolButton final : public QToolButton {
public:
    explicit QtToolButton(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace vantorel
