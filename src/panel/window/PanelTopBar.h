#pragma once

#include <QButtonGroup>
#include <QLabel>
#include <QMenu>
#include <QTimer>
#include <QToolButton>
#include <QWidget>

namespace vantorel {

/// The bar above the page: a button for each page, the name of the shown page, and the menu. A
/// short message replaces the name for some seconds.
class PanelTopBar final : public QWidget {
    Q_OBJECT

public:
    explicit PanelTopBar(QWidget* parent = nullptr);

    void addPage(const QIcon& icon, const QString& name, const QString& toolTip);
    void showPage(int index, const QString& name);
    void setMenu(QMenu& menu);
    /// Shows a message for a while, shortened in the middle if there is not enough room. Pass an
    /// empty text to show the page's name at once.
    void showMessage(const QString& sentence);
    [[nodiscard]] bool hasRoomFor(const QString& sentence) const;

signals:
    /// The button of a page was turned on.
    void pageChosen(int index);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void showName();

    QButtonGroup* _pages;
    QLabel* _name;
    QToolButton* _menuButton;
    QString _pageName;
    QString _message;
    QTimer _messageTimer;
};

}  // namespace vantorel
