#include "panel/widgets/PanelStyle.h"

#include "hosts/qt/StyleHints.h"
#include "panel/widgets/StyleButtons.h"
#include "panel/widgets/StyleFields.h"
#include "panel/widgets/StyleMenus.h"
#include "panel/widgets/StylePainting.h"
#include "panel/widgets/StyleRows.h"
#include "panel/widgets/StyleSliders.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QGroupBox>
#include <QLineEdit>

#include <algorithm>

namespace vantorel {
namespace {

/// A field without a frame lies on the ground of what frames it; an editor in a list has to cover
/// the row that is edited.
bool needsGround(const QStyleOptionFrame& option, const QWidget* field)
{
    if (option.lineWidth > 0) return true;
    const QWidget* holder = field != nullptr ? field->parentWidget() : nullptr;
    return holder != nullptr && qobject_cast<const QAbstractItemView*>(holder->parentWidget());
}

QFont headingFont(QFont font)
{
    font.setBold(true);
    return font;
}

template <class Option>
const Option& optionAs(const QStyleOption* option)
{
    return *static_cast<const Option*>(option);
}

}  // namespace

PanelStyle::PanelStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void PanelStyle::polish(QWidget* widget)
{
    QProxyStyle::polish(widget);
    if (auto* menu = qobject_cast<QMenu*>(widget)) prepareMenu(*menu);
}

void PanelStyle::unpolish(QWidget* widget)
{
    if (qobject_cast<QMenu*>(widget) != nullptr) {
        widget->setAttribute(Qt::WA_TranslucentBackground, false);
        widget->setAttribute(Qt::WA_NoSystemBackground, false);
    }
    QProxyStyle::unpolish(widget);
}

void PanelStyle::polish(QApplication* application)
{
    QProxyStyle::polish(application);
    // It goes with the style.
    application->installEventFilter(&_focusWatch);
}

void PanelStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                               QPainter* painter, const QWidget* widget) const
{
    switch (element) {
        case PE_PanelButtonCommand:
            return paintPushButton(*painter, optionAs<QStyleOptionButton>(option));
        case PE_PanelButtonTool:
            return paintToolButton(*painter, *option);
        case PE_PanelLineEdit:
            if (needsGround(optionAs<QStyleOptionFrame>(option), widget))
                paintField(*painter, *option);
            return;
        case PE_FrameLineEdit:
            return paintField(*painter, *option);
        case PE_Frame:
            return paintFrameWidget(*painter, optionAs<QStyleOptionFrame>(option), widget);
        case PE_FrameGroupBox:
            return;  // A heading needs no frame.
        case PE_FrameFocusRect:
            if (option->state.testFlag(State_KeyboardFocusChange))
                paintFocusRing(*painter, option->rect, rowRadius, themeColors(*option));
            return;
        case PE_IndicatorCheckBox:
        case PE_IndicatorItemViewItemCheck:
            return paintCheckBox(*painter, *option);
        case PE_IndicatorRadioButton:
            return paintRadioButton(*painter, *option);
        case PE_IndicatorArrowDown:
        case PE_IndicatorArrowUp:
        case PE_IndicatorArrowLeft:
        case PE_IndicatorArrowRight: {
            const ThemeColors colors = themeColors(*option);
            const auto direction = element == PE_IndicatorArrowDown   ? ChevronDirection::down
                                   : element == PE_IndicatorArrowUp   ? ChevronDirection::up
                                   : element == PE_IndicatorArrowLeft ? ChevronDirection::left
                                                                      : ChevronDirection::right;
            return paintChevron(*painter, option->rect, direction,
                                isOff(*option) ? colors.textOff : colors.text);
        }
        case PE_PanelMenu:
            return paintMenu(*painter, *option, widget);
        case PE_FrameMenu:
            return;  // It is part of the ground.
        case PE_PanelTipLabel:
            return paintToolTip(*painter, *option);
        case PE_PanelItemViewItem:
            return paintRow(*painter, optionAs<QStyleOptionViewItem>(option));
        default:
            QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void PanelStyle::drawCheckable(const QStyleOptionButton& option, ControlElement element,
                               QPainter& painter, const QWidget* widget) const
{
    const bool isCheckBox = element == CE_CheckBox;
    QStyleOptionButton part = option;
    part.rect = proxy()->subElementRect(isCheckBox ? SE_CheckBoxIndicator : SE_RadioButtonIndicator,
                                        &option, widget);
    proxy()->drawPrimitive(isCheckBox ? PE_IndicatorCheckBox : PE_IndicatorRadioButton, &part,
                           &painter, widget);
    part.rect = proxy()->subElementRect(isCheckBox ? SE_CheckBoxContents : SE_RadioButtonContents,
                                        &option, widget);
    proxy()->drawControl(isCheckBox ? CE_CheckBoxLabel : CE_RadioButtonLabel, &part, &painter,
                         widget);
}

void PanelStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                             const QWidget* widget) const
{
    switch (element) {
        case CE_PushButton:
            proxy()->drawControl(CE_PushButtonBevel, option, painter, widget);
            proxy()->drawControl(CE_PushButtonLabel, option, painter, widget);
            return;
        case CE_PushButtonBevel:
            return paintPushButton(*painter, optionAs<QStyleOptionButton>(option));
        case CE_PushButtonLabel: {
            const auto label = withChosenText(optionAs<QStyleOptionButton>(option));
            return QProxyStyle::drawControl(element, &label, painter, widget);
        }
        case CE_ToolButtonLabel: {
            auto label = withChosenText(optionAs<QStyleOptionToolButton>(option));
            if (option->state.testFlag(State_On))
                label.icon = chosenIcon(label, painter->device()->devicePixelRatio());
            return QProxyStyle::drawControl(element, &label, painter, widget);
        }
        case CE_CheckBox:
        case CE_RadioButton:
            return drawCheckable(optionAs<QStyleOptionButton>(option), element, *painter, widget);
        case CE_ComboBoxLabel:
            return paintComboBoxLabel(*painter, optionAs<QStyleOptionComboBox>(option), *proxy(),
                                      widget);
        case CE_ShapedFrame:
            return paintFrameWidget(*painter, optionAs<QStyleOptionFrame>(option), widget);
        case CE_MenuItem:
            // A combo box fills its rows with the window's colour before.
            if (qobject_cast<const QMenu*>(widget) == nullptr) paintMenuGround(*painter, *option);
            return paintMenuRow(*painter, optionAs<QStyleOptionMenuItem>(option), *proxy());
        case CE_MenuEmptyArea:
            // Menus have painted theirs.
            if (qobject_cast<const QMenu*>(widget) == nullptr) paintMenuGround(*painter, *option);
            return;
        case CE_MenuScroller:
            return paintMenuScroller(*painter, *option);
        case CE_ItemViewItem: {
            QStyleOptionViewItem row = optionAs<QStyleOptionViewItem>(option);
            const ThemeColors colors = themeColors(row);
            if (isInPopUp(row)) row.palette.setColor(QPalette::HighlightedText, colors.onAccent);
            return QProxyStyle::drawControl(element, &row, painter, widget);
        }
        default:
            QProxyStyle::drawControl(element, option, painter, widget);
    }
}

void PanelStyle::drawToolButton(const QStyleOptionToolButton& option, QPainter& painter,
                                const QWidget* widget) const
{
    QStyleOptionToolButton part = option;
    paintToolButton(painter, option);
    part.rect = proxy()->subControlRect(CC_ToolButton, &option, SC_ToolButton, widget);
    const bool hasArrow = option.subControls.testFlag(SC_ToolButtonMenu);
    if (hasArrow) {
        QStyleOptionToolButton arrow = option;
        arrow.rect = proxy()->subControlRect(CC_ToolButton, &option, SC_ToolButtonMenu, widget);
        proxy()->drawPrimitive(PE_IndicatorArrowDown, &arrow, &painter, widget);
    }
    proxy()->drawControl(CE_ToolButtonLabel, &part, &painter, widget);
}

void PanelStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                    QPainter* painter, const QWidget* widget) const
{
    switch (control) {
        case CC_ComboBox:
            return paintComboBox(*painter, optionAs<QStyleOptionComboBox>(option));
        case CC_SpinBox:
            return paintSpinBox(
                *painter, optionAs<QStyleOptionSpinBox>(option),
                proxy()->subControlRect(CC_SpinBox, option, SC_SpinBoxUp, widget),
                proxy()->subControlRect(CC_SpinBox, option, SC_SpinBoxDown, widget));
        case CC_Slider:
            return paintSlider(*painter, optionAs<QStyleOptionSlider>(option));
        case CC_ScrollBar:
            return paintScrollBar(*painter, optionAs<QStyleOptionSlider>(option), widget);
        case CC_ToolButton:
            return drawToolButton(optionAs<QStyleOptionToolButton>(option), *painter, widget);
        case CC_GroupBox: {
            painter->save();
            painter->setFont(headingFont(painter->font()));
            QProxyStyle::drawComplexControl(control, option, painter, widget);
            painter->restore();
            return;
        }
        default:
            QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
}

QRect PanelStyle::subElementRect(SubElement element, const QStyleOption* option,
                                 const QWidget* widget) const
{
    if (element == SE_LineEditContents) {
        const auto& field = optionAs<QStyleOptionFrame>(option);
        if (field.lineWidth > 0) return field.rect.adjusted(fieldPadding, 1, -fieldPadding, -1);
    }
    return QProxyStyle::subElementRect(element, option, widget);
}

QRect PanelStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                 SubControl part, const QWidget* widget) const
{
    if (control == CC_ComboBox) {
        const auto& combo = optionAs<QStyleOptionComboBox>(option);
        if (part == SC_ComboBoxEditField) return comboBoxTextRect(combo);
        if (part == SC_ComboBoxArrow) return comboBoxArrowRect(combo);
    } else if (control == CC_Slider) {
        if (const auto rect = sliderRect(optionAs<QStyleOptionSlider>(option), part)) return *rect;
    } else if (control == CC_ScrollBar) {
        return scrollBarRect(optionAs<QStyleOptionSlider>(option), part);
    } else if (control == CC_GroupBox && part == SC_GroupBoxLabel && widget != nullptr) {
        const QFontMetrics metrics(headingFont(widget->font()));
        const QString& title = optionAs<QStyleOptionGroupBox>(option).text;
        QRect rect = QProxyStyle::subControlRect(control, option, part, widget);
        rect.setWidth(metrics.size(Qt::TextShowMnemonic, title).width());
        return rect;
    }
    return QProxyStyle::subControlRect(control, option, part, widget);
}

QSize PanelStyle::sizeFromContents(ContentsType type, const QStyleOption* option,
                                   const QSize& contents, const QWidget* widget) const
{
    switch (type) {
        case CT_MenuItem:
            return menuRowSize(optionAs<QStyleOptionMenuItem>(option), contents);
        case CT_ComboBox: {
            constexpr int aroundText = 8;
            return {contents.width() + comboBoxChrome(),
                    std::max(controlHeight, contents.height() + aroundText)};
        }
        default:
            break;
    }
    const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    switch (type) {
        case CT_PushButton:
        case CT_SpinBox:
            return size.expandedTo({0, controlHeight});
        case CT_LineEdit:
            if (optionAs<QStyleOptionFrame>(option).lineWidth <= 0) return size;
            return size.expandedTo({0, controlHeight});
        case CT_ToolButton: {
            constexpr int leastTarget = 24;
            return size.expandedTo({leastTarget, leastTarget});
        }
        case CT_ItemViewItem: {
            constexpr int leastTarget = 24;
            return size.expandedTo({0, leastTarget});
        }
        default:
            return size;
    }
}

int PanelStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                            const QWidget* widget) const
{
    switch (metric) {
        case PM_IndicatorWidth:
        case PM_IndicatorHeight:
        case PM_ExclusiveIndicatorWidth:
        case PM_ExclusiveIndicatorHeight:
            return indicatorSize;
        case PM_CheckBoxLabelSpacing:
        case PM_RadioButtonLabelSpacing:
            return 8;
        case PM_DefaultFrameWidth:
            return 2;
        case PM_FocusFrameHMargin: {
            // Beside the text of a row. Lists that are open like menus measure their own rows.
            constexpr int besideText = 7;
            const bool isPopUp = widget != nullptr && widget->window()->windowType() == Qt::Popup;
            return isPopUp ? QProxyStyle::pixelMetric(metric, option, widget) : besideText;
        }
        case PM_SliderLength:
        case PM_SliderThickness:
        case PM_SliderControlThickness:
            return sliderThumb;
        case PM_ScrollBarExtent:
            return scrollBarExtent;
        case PM_ScrollBarSliderMin:
            return leastScrollBarLength;
        case PM_ScrollView_ScrollBarSpacing:
        case PM_ScrollView_ScrollBarOverlap:
        case PM_MenuPanelWidth:
        case PM_ButtonShiftHorizontal:
        case PM_ButtonShiftVertical:
        case PM_ButtonDefaultIndicator:
            return 0;
        case PM_MenuHMargin:
        case PM_MenuVMargin:
        case PM_ToolTipLabelFrameWidth:
            return menuMargin;
        default:
            return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int PanelStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                          QStyleHintReturn* returned) const
{
    if (hint == stylePaintsHostControls) return 1;
    switch (hint) {
        case SH_EtchDisabledText:
        case SH_DitherDisabledText:
        case SH_Widget_Animation_Duration:
        case SH_ComboBox_PopupFrameStyle:
            return 0;
        case SH_Menu_Scrollable:
        case SH_Menu_MouseTracking:
            return 1;
        case SH_ToolTipLabel_Opacity:
            return 255;
        default:
            return QProxyStyle::styleHint(hint, option, widget, returned);
    }
}

}  // namespace vantorel
