#pragma once

#include "host/HostColorPicker.h"

#include <QIcon>
#include <QObject>
#include <QSize>
#include <QString>

namespace vantorel {

/// A page of the panel. What is seen of it is made when it is shown first.
class PanelPage : public QObject {
    Q_OBJECT

public:
    /// Names the page in the panel's memory; the same in every language and on every machine.
    [[nodiscard]] virtual QString identifier() const;
    /// Names the page on the command line; the same in every language.
    [[nodiscard]] virtual QString key() const = 0;
    [[nodiscard]] virtual QString name() const = 0;
    [[nodiscard]] virtual QString toolTip() const = 0;
    [[nodiscard]] virtual QIcon icon() const = 0;
    /// In points.
    [[nodiscard]] virtual QSize minimumSize() const = 0;

    /// Puts the page into its place, `holder`, which has its final size.
    virtual void show(HostView& holder) = 0;
    virtual void hide() = 0;
    /// The holder has a new size.
    virtual void resize(HostSize size) = 0;
    /// The panel's colour was set while the page is shown, also by the page itself.
    virtual void setColor(const HostColor& color) = 0;
    /// Enters what the user has typed into the page's text fields and not yet entered.
    virtual void finishEditing();

    /// The picker behind the page; null for the panel's own pages.
    [[nodiscard]] virtual HostColorPicker* picker() const;
    /// The picker's view; null until it is made, and for the panel's own pages.
    [[nodiscard]] virtual HostView* view() const;

signals:
    /// The user has chosen a colour on the page. Pickers report theirs to the host panel instead.
    void colorChosen(const HostColor& color);
};

}  // namespace vantorel
