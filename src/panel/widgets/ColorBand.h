#pragma once

#include "panel/widgets/ColorBandHalf.h"
#include "panel/widgets/ColorBandLayout.h"
#include "panel/widgets/EditedColor.h"
#include "panel/widgets/SwapButton.h"

namespace vantorel {

/// The panel's colour over the whole width, and at its end the background with a text in the
/// colour and their contrast by WCAG 2.2. A button on the seam swaps the two. Takes the height it
/// is given, from 40 points on.
class ColorBand final : public QWidget {
    Q_OBJECT

public:
    explicit ColorBand(QWidget* parent = nullptr);

    void setColor(const HostColor& color);
    void setBackground(const HostColor& color);
    /// Marks the half that is edited.
    void setEdited(EditedColor edited);
    /// The button on the seam takes its names from an action, which a click triggers.
    void setSwapAction(QAction& action);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

signals:
    /// A click on a half, or Return or Space on it.
    void editRequested(EditedColor half);
    /// A colour was dropped on a half, or data that is not a colour.
    void dropped(EditedColor half, const ColorOffer& offer);
    /// Ctrl+C on a half.
    void copyRequested(EditedColor half);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void connectHalf(ColorBandHalf& half, EditedColor which);
    /// Shows the background and its contrast with the colour.
    void showBackground(const HostColor& background);
    void placeParts();

    // In the order in which Tab visits them.
    ColorBandHalf* _color;
    SwapButton* _swap;
    ColorBandHalf* _background;
    EditedColor _edited = EditedColor::color;
    std::optional<double> _contrast;
    /// What a screen needs to show the colours; empty for sRGB.
    QString _gamutOfColor;
    QString _gamutOfBackground;
    ColorBandLayout _layout;
};

}  // namespace vantorel
