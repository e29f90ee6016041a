#pragma once

#include "panel/pages/PanelPage.h"

#include <QPointer>
#include <QWidget>

namespace vantorel {

/// A page of the panel's own: a widget that fills the page and is created when it is first shown.
class WidgetPage : public PanelPage {
    Q_OBJECT

public:
    ~WidgetPage() override;

    void show(HostView& holder) override;
    void hide() override;
    void resize(HostSize size) final;

protected:
    /// Creates the widget. Called at most once; the page owns the widget.
    [[nodiscard]] virtual QWidget* makeWidget() = 0;

private:
    QPointer<QWidget> _widget;
};

}  // namespace vantorel
