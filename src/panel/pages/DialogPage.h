#pragma once

#include "panel/pages/WidgetPage.h"

#include <QColorDialog>
#include <QPointer>

namespace vantorel {

/// Qt's own colour dialog as a page.
class DialogPage final : public WidgetPage {
    Q_OBJECT

public:
    [[nodiscard]] QString key() const override { return QStringLiteral("dialog"); }
    [[nodiscard]] QString name() const override;
    [[nodiscard]] QString toolTip() const override;
    [[nodiscard]] QIcon icon() const override;
    [[nodiscard]] QSize minimumSize() const override;
    void setColor(const HostColor& color) override;
    [[nodiscard]] std::vector<ShortcutRow> shortcuts() const override;

protected:
    [[nodiscard]] QWidget* makeWidget() override;

private:
    QPointer<QColorDialog> _dialog;
};

}  // namespace vantorel
