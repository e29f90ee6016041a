#pragma once

#include "host/HostColorPicker.h"

#include <QIcon>
#include <QKeyEvent>
#include <QKeySequence>
#include <QList>
#include <QObject>
#include <QSize>
#include <QString>

#include <vector>

namespace vantorel {

/// What keys do, for the list of shortcuts.
struct ShortcutRow {
    QString action;
    QString keys;
};

/// Returns keys as the desktop writes them, such as "Ctrl+Y, Ctrl+Shift+Z".
[[nodiscard]] QString shownKeys(const QList<QKeySequence>& keys);

/// A page of the panel. Its widgets are created when it is first shown.
class PanelPage : public QObject {
    Q_OBJECT

public:
    /// Identifies the page in the panel's memory; the same in every language and on every machine.
    [[nodiscard]] virtual QString identifier() const;
    /// Identifies the page on the command line; the same in every language.
    [[nodiscard]] virtual QString key() const = 0;
    [[nodiscard]] virtual QString name() const = 0;
    [[nodiscard]] virtual QString toolTip() const = 0;
    [[nodiscard]] virtual QIcon icon() const = 0;
    /// In points.
    [[nodiscard]] virtual QSize minimumSize() const = 0;

    /// Puts the page into `holder`, which has its final size.
    virtual void show(HostView& holder) = 0;
    virtual void hide() = 0;
    /// Called when the page that is shown becomes visible to the user, and when it no longer is,
    /// because of another page or because the window is hidden or minimised.
    virtual void didAppear() {}
    virtual void didDisappear() {}
    /// The holder has a new size.
    virtual void resize(HostSize size) = 0;
    /// Whether `setColor` takes colours outside sRGB; others get the nearest inside.
    [[nodiscard]] virtual bool takesWideGamut() const { return false; }
    /// Called when the panel's colour is set while the page is shown, even by the page itself.
    virtual void setColor(const HostColor& color) = 0;
    /// Enters text that the user has typed into the page's fields but not yet entered.
    virtual void finishEditing();
    /// Carries out the page's command for a key that neither the control in focus nor the panel has
    /// used. Returns false if the page has no command for it.
    virtual bool performKey(const QKeyEvent& event);
    /// The keys that the page adds to those of the panel, also before it is shown first.
    [[nodiscard]] virtual std::vector<ShortcutRow> shortcuts() const;

    /// The picker of the page; null for the panel's own pages.
    [[nodiscard]] virtual HostColorPicker* picker() const;
    /// The picker's view; null until it is created, and for the panel's own pages.
    [[nodiscard]] virtual HostView* view() const;

signals:
    /// The user has chosen a colour on the page. Pickers report theirs to the host panel instead.
    void colorChosen(const HostColor& color);
};

}  // namespace vantorel
