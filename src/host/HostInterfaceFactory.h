#pragma once

#include "host/HostView.h"

#include <memory>
#include <string>

namespace vantorel {

class HostButton;
class HostCustomView;
class HostNumberField;
class HostPopUpButton;
class HostTextField;
class HostViewContent;
struct HostNumberFormat;

/// The properties of a control in an interface file, from which a desktop creates the control.
struct HostControlDescription {
    /// The control's name in the interface file, unique there.
    std::string identifier;
    HostRect frame;
    HostResizing resizing;
    /// The initial text of a label, button or field.
    std::u16string title;
    std::u16string toolTip;
    /// The name that assistive technology announces for the control.
    std::u16string accessibleName;
    /// The text size in points; 0 for the desktop's small control size.
    double pointSize = 0;
    enum class Alignment { left, center, right } alignment = Alignment::left;

    /// Text fields only: if false, the field is a label.
    bool editable = true;
    /// Editable text fields only: whether the user can select and copy the text, but not change it.
    bool readOnly = false;
    /// Text fields only: whether all digits have the same width.
    bool monospaced = false;

    enum class ButtonKind { push, checkBox, toggle } buttonKind = ButtonKind::push;
    /// Buttons only: an SVG picture, drawn with the text colour where it uses `currentColor`; may
    /// be empty.
    std::string svgImage;
};

/// Creates a desktop's native controls. New controls have no superview. The caller owns them and
/// must destroy them before the factory.
class HostInterfaceFactory {
public:
    virtual ~HostInterfaceFactory() = default;

    virtual std::unique_ptr<HostView> makeView(const HostControlDescription&) = 0;
    virtual std::unique_ptr<HostCustomView> makeCustomView(const HostControlDescription&,
                                                           HostViewContent& content) = 0;
    virtual std::unique_ptr<HostTextField> makeTextField(const HostControlDescription&) = 0;
    virtual std::unique_ptr<HostButton> makeButton(const HostControlDescription&) = 0;
    virtual std::unique_ptr<HostPopUpButton> makePopUpButton(const HostControlDescription&) = 0;

    /// Creates a field for a number: one of `makeTextField` with the rules of `HostNumberField`.
    /// The description's title is ignored.
    [[nodiscard]] std::unique_ptr<HostNumberField> makeNumberField(const HostControlDescription&,
                                                                   const HostNumberFormat&);
    /// Returns what the desktop writes before decimals, e.g. "." or ",".
    [[nodiscard]] virtual std::u16string decimalSeparator() const = 0;
};

}  // namespace vantorel
