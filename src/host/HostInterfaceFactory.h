#pragma once

#include "host/HostControls.h"

#include <memory>
#include <string>

namespace vantorel {

/// What a desktop must know to make one control of an interface file.
struct HostControlDescription {
    /// The control's name in the interface file, unique there.
    std::string identifier;
    HostRect frame;
    HostResizing resizing;
    /// The text of a label, button or field when it is new.
    std::u16string title;
    std::u16string toolTip;
    /// What assistive technology calls the control.
    std::u16string accessibleName;
    /// Size of its text; 0 for the desktop's small control size.
    double pointSize = 0;
    enum class Alignment { left, center, right } alignment = Alignment::left;

    /// Text fields: a label when false.
    bool editable = true;
    /// Text fields: digits of equal width.
    bool monospaced = false;

    enum class ButtonKind { push, checkBox, toggle } buttonKind = ButtonKind::push;
    /// Buttons: a picture in SVG that takes the text colour where it says `currentColor`; may be
    /// empty.
    std::string svgImage;
};

/// Makes a desktop's own controls. They come without superview; the caller owns them, and they must
/// not outlive the factory.
class HostInterfaceFactory {
public:
    virtual ~HostInterfaceFactory() = default;

    virtual std::unique_ptr<HostView> makeView(const HostControlDescription&) = 0;
    virtual std::unique_ptr<HostCustomView> makeCustomView(const HostControlDescription&,
                                                           HostViewContent& content) = 0;
    virtual std::unique_ptr<HostTextField> makeTextField(const HostControlDescription&) = 0;
    virtual std::unique_ptr<HostButton> makeButton(const HostControlDescription&) = 0;
    virtual std::unique_ptr<HostPopUpButton> makePopUpButton(const HostControlDescription&) = 0;
};

}  // namespace vantorel
