#pragma once

#include "panel/widgets/KeyboardFocusWatch.h"

#include <QProxyStyle>
#include <QStyleOptionButton>
#include <QStyleOptionToolButton>

namespace vantorel {

/// The look of the panel's controls: flat frames with round corners, in the colours of
/// `themeColors`. What it does not paint itself is as in Qt's style Fusion.
class PanelStyle final : public QProxyStyle {
    Q_OBJECT

public:
    PanelStyle();

    void polish(QWidget* widget) override;
    void polish(QApplication* application) override;
    using QProxyStyle::polish;
    void unpolish(QWidget* widget) override;
    using QProxyStyle::unpolish;

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;

    [[nodiscard]] QRect subElementRect(SubElement element, const QStyleOption* option,
                                       const QWidget* widget) const override;
    [[nodiscard]] QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                       SubControl part, const QWidget* widget) const override;
    [[nodiscard]] QSize sizeFromContents(ContentsType type, const QStyleOption* option,
                                         const QSize& contents,
                                         const QWidget* widget) const override;
    [[nodiscard]] int pixelMetric(PixelMetric metric, const QStyleOption* option,
                                  const QWidget* widget) const override;
    [[nodiscard]] int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                                QStyleHintReturn* returned) const override;

private:
    void drawCheckable(const QStyleOptionButton& option, ControlElement element, QPainter& painter,
                       const QWidget* widget) const;
    void drawToolButton(const QStyleOptionToolButton& option, QPainter& painter,
                        const QWidget* widget) const;

    KeyboardFocusWatch _focusWatch;
};

}  // namespace vantorel
