#pragma once

#include "panel/pages/WidgetPage.h"
#include "panel/palettes/PalettesWidget.h"

#include <QPointer>

namespace vantorel {

/// The page on which the user edits the colour lists that all pages share.
class PalettesPage final : public WidgetPage {
    Q_OBJECT

public:
    /// `files` and `store` must outlive the page.
    PalettesPage(HostFiles& files, PaletteFileStore& store);

    [[nodiscard]] QString key() const override { return QStringLiteral("palettes"); }
    [[nodiscard]] QString name() const override;
    [[nodiscard]] QString toolTip() const override;
    [[nodiscard]] QIcon icon() const override;
    [[nodiscard]] QSize minimumSize() const override;
    void show(HostView& holder) override;
    void hide() override;
    void setColor(const HostColor& color) override;
    void finishEditing() override;
    bool performKey(const QKeyEvent& event) override;
    [[nodiscard]] std::vector<ShortcutRow> shortcuts() const override;

    /// Returns the name of the list that the page shows; empty if there is none, or if the page has
    /// not been shown.
    [[nodiscard]] QString listName() const;

    /// How the colours of a list are arranged, which is kept from one start to the next.
    void setArrangement(PaletteEntriesView::Arrangement arrangement);
    [[nodiscard]] PaletteEntriesView::Arrangement arrangement() const { return _arrangement; }

    /// Adds colours to the list that is shown, in one step. Has no effect unless the page has been
    /// shown.
    void addColors(const std::vector<HostColor>& colors);
    /// Shows the colours of a picture, of which only the user may know the name. Has no effect
    /// unless the page has been shown.
    void showPicture(const QImage& picture);
    /// Imports dropped files, or shows the colours of a dropped picture. Has no effect unless the
    /// page has been shown.
    void takeDropped(const QMimeData& dropped);
    /// Makes a new list of these colours and lets the user name it. Has no effect unless the page
    /// is shown.
    void keepAsList(const QString& name, const std::vector<HostColor>& colors);

signals:
    void arrangementChanged();
    /// The user wants to pick colours from the screen, which `addColors` takes.
    void picksRequested();

protected:
    [[nodiscard]] QWidget* makeWidget() override;

private:
    HostFiles& _files;
    PaletteFileStore& _store;
    HostColor _color = HostColor::whiteColor();
    PaletteEntriesView::Arrangement _arrangement = PaletteEntriesView::Arrangement::list;
    QPointer<PalettesWidget> _widget;
};

}  // namespace vantorel
