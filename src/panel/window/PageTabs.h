#pragma once

#include <QTabBar>

namespace vantorel {

/// The pages as words in a row. The current one is bold and underlined; each word has the room of
/// its bold form, so that the row does not move. A row that is short of room loses its padding,
/// then the bold type, then the words, of which the current one stays as long as it can.
class PageTabs final : public QTabBar {
    Q_OBJECT

public:
    explicit PageTabs(QWidget* parent = nullptr);

    void addPage(const QIcon& icon, const QString& name, const QString& toolTip);
    /// Chooses the form for this width, in pixels, and returns the width that it takes.
    int fitInto(int width);
    /// The distance of the first word from the left edge of the bar, in pixels.
    [[nodiscard]] int padding() const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return {0, 0}; }

protected:
    [[nodiscard]] QSize tabSizeHint(int index) const override;
    [[nodiscard]] QSize minimumTabSizeHint(int index) const override { return tabSizeHint(index); }
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    /// From the widest to the narrowest.
    enum class Form { roomy, close, tight, regular, currentWord, icons };

    [[nodiscard]] bool showsWord(int index) const;
    [[nodiscard]] int widthOfAll() const;
    void paintTab(QPainter& painter, int index) const;

    Form _form = Form::roomy;
};

}  // namespace vantorel
