#pragma once

#include "panel/widgets/FocusVisibility.h"
#include "panel/widgets/ThemeColors.h"

#include <QAbstractButton>
#include <QAction>
#include <QIcon>
#include <QPointer>

namespace vantorel {

/// The round button on the seam of the colour band. It covers what answers to the pointer; its
/// parent paints it, because its focus ring reaches beyond.
class SwapButton final : public QAbstractButton {
    Q_OBJECT

public:
    explicit SwapButton(QWidget* parent);

    /// Takes the names from an action, which a click triggers.
    void setAction(QAction& action);
    /// Paints the button around the middle of its place in the parent.
    void paintIn(QPainter& painter, const ThemeColors& theme) const;

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent*) override {}
    [[nodiscard]] bool hitButton(const QPoint& point) const override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void showAction();
    /// Has everything painted again, the ring too.
    void updateAround();

    QPointer<QAction> _action;
    QIcon _picture;
    FocusVisibility _focus;
};

}  // namespace vantorel
