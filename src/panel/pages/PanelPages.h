#pragma once

#include "hosts/qt/QtView.h"
#include "panel/pages/PanelPage.h"

#include <QStringList>

#include <memory>
#include <vector>

namespace vantorel {

/// The pages of a panel, and the place in its window where one of them is shown.
class PanelPages final : public QObject {
    Q_OBJECT

public:
    explicit PanelPages(QWidget& window);
    ~PanelPages() override;

    void add(std::unique_ptr<PanelPage> page);
    /// Removes all pages. Call this before destroying objects that they use.
    void clear();
    [[nodiscard]] int count() const { return static_cast<int>(_pages.size()); }
    /// -1 until a page is shown.
    [[nodiscard]] int currentIndex() const { return _currentIndex; }
    /// Null until a page is shown.
    [[nodiscard]] PanelPage* current() const;
    /// Whether the page that is shown takes colours outside sRGB as they are.
    [[nodiscard]] bool takesWideGamut() const;
    /// The picker of the page that is shown; null for the panel's own pages.
    [[nodiscard]] HostColorPicker* currentPicker() const;
    [[nodiscard]] const PanelPage& page(int index) const;
    [[nodiscard]] QStringList keys() const;
    /// Returns false, without any effect, if no page has the key.
    bool showPageWithKey(const QString& key);
    /// Shows the page that a panel has remembered by its identifier. Older panels remembered the
    /// name in the user's language, which counts if no identifier matches. Has no effect if neither
    /// does.
    void showRemembered(const QString& identifierOrName);

    /// Tells the page that is shown, and each that is shown later, whether the user can see it.
    /// Pages are visible from the beginning.
    void setVisible(bool isVisible);

    /// Moves the area of the pages, in pixels of the window, immediately even in a hidden window.
    void setGeometry(const QRect& place);
    [[nodiscard]] const QWidget& place() const { return *_holder->widget(); }

public slots:
    /// Has no effect if there is no such page.
    void showPage(int index);
    void showNextPage() { step(1); }
    void showPreviousPage() { step(-1); }
    /// Passes the panel's colour to the page that is shown, and to each that is shown later. A page
    /// that does not take it gets the nearest colour inside sRGB, as CSS maps it.
    void setColor(const HostColor& color);
    /// The panel's colour or its background has changed. Pages that are shown later ask for them.
    void notePairChange();

signals:
    /// The page that is shown has got the panel's colour.
    void colorShown();
    /// Another page is shown. It has its place and the colour.
    void pageShown(int index);

private:
    void step(int pages);
    void passColor();

    std::unique_ptr<QtMirrored<HostView>> _holder;
    std::vector<std::unique_ptr<PanelPage>> _pages;
    int _currentIndex = -1;
    bool _isVisible = true;
    HostColor _color = HostColor::whiteColor();
};

}  // namespace vantorel
