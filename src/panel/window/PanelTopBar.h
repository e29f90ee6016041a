#pragma once

#include <QButtonGroup>
#include <QCoreApplication>
#include <QLabel>
#include <QMenu>
#include <QTimer>
#include <QToolButton>
#include <QWidget>

#include <functional>

namespace vantorel {

/// The bar above the page: a button for each page, the name of the one on show, and the menu. A
/// remark takes the name's place for some seconds.
class PanelTopBar final : public QWidget {
    Q_DECLARE_TR_FUNCTIONS(PanelTopBar)

public:
    explicit PanelTopBar(QWidget* parent = nullptr);

    void addPage(const QIcon& icon, const QString& name, const QString& toolTip);
    /// Called with the index of the page whose button is switched on.
    void setPageChoice(std::function<void(int index)> choice);
    void showPage(int index, const QString& name);
    void setMenu(QMenu& menu);
    void showRemark(const QString& remark);
    /// Empty when none is on show.
    [[nodiscard]] QString remark() const { return _remark; }

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void showName();

    QButtonGroup* _pages;
    QLabel* _name;
    QToolButton* _menuButton;
    QString _pageName;
    QString _remark;
    QTimer _remarkTimer;
};

}  // namespace vantorel
