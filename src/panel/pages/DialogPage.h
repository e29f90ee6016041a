#pragma once

#include "panel/pages/PanelPage.h"

#include <QColorDialog>
#include <QPointer>

namespace vantorel {

/// Qt's own colour dialog as a page.
class DialogPage final : public PanelPage {
    Q_OBJECT

public:
    ~DialogPage() override;

    [[nodiscard]] QString key() const override { return QStringLiteral("dialog"); }
    [[nodiscard]] QString name() const override;
    [[nodiscard]] QString toolTip() const override;
    [[nodiscard]] QIcon icon() const override;
    [[nodiscard]] QSize minimumSize() const override;
    void show(HostView& holder) override;
    void hide() override;
    void resize(HostSize size) override;
    void setColor(const HostColor& color) override;

private:
    QPointer<QColorDialog> _dialog;
};

}  // namespace vantorel
