#pragma once

#include "panel/window/PageTabs.h"

#include <QMenu>
#include <QToolButton>

namespace vantorel {

/// The pages of the panel, and the button of its menu.
class PageBar final : public QWidget {
    Q_OBJECT

public:
    explicit PageBar(QWidget* parent = nullptr);

    /// By how much the bar reaches beyond the edges of its contents on both sides, in pixels, for
    /// what can be clicked around them.
    [[nodiscard]] static int bleed();

    void addPage(const QIcon& icon, const QString& name, const QString& toolTip);
    void showPage(int index);
    void setMenu(QMenu& menu);

signals:
    /// The user has selected a page.
    void pageChosen(int index);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void layOut();

    PageTabs* _tabs;
    QToolButton* _menuButton;
};

}  // namespace vantorel
