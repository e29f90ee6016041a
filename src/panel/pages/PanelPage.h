#pragma once

#include "host/HostColorPicker.h"

#include <QIcon>
#include <QObject>
#include <QSize>
#include <QString>

namespace vantorel {

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
    /// The holder has a new size.
    virtual void resize(HostSize size) = 0;
    /// Called when the panel's colour is set while the page is shown, even by the page itself.
    virtual void setColor(const HostColor& color) = 0;
    /// Enters text that the user has typed into the page's fields but not yet entered.
    virtual void finishEditing();

    /// The picker of the page; null for the panel's own pages.
    [[nodiscard]] virtual HostColorPicker* picker() const;
    /// The picker's view; null until it is created, and for the panel's own pages.
    [[nodiscard]] virtual HostView* view() const;

signals:
    /// The user has chosen a colour on the page. Pickers report theirs to the host panel instead.
    void colorChosen(const HostColor& color);
};

}  // namespace vantorel
