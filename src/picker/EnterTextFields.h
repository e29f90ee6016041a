#pragma once

#include "host/HostControls.h"

namespace vantorel {

/// Handles each keystroke in the entry fields.
class EnterTextFieldDelegate {
public:
    virtual ~EnterTextFieldDelegate() = default;
    virtual void hexEntryTextChange(HostTextField& field) = 0;
    virtual void rgbDecimalEntryTextChange(HostTextField& field) = 0;
};

/// Calls its delegate's function `reaction` after every edit of a text field.
template <void (EnterTextFieldDelegate::*reaction)(HostTextField&)>
class EnterTextField {
public:
    /// Both must outlive this object.
    EnterTextField(HostTextField& field, EnterTextFieldDelegate& delegate)
        : _field(field), _delegate(delegate)
    {
        _field.setTextDidChange([this] { textDidChange(); });
    }
    EnterTextField(const EnterTextField&) = delete;
    EnterTextField& operator=(const EnterTextField&) = delete;
    ~EnterTextField() { _field.setTextDidChange({}); }

    void textDidChange() { (_delegate.*reaction)(_field); }

private:
    HostTextField& _field;
    EnterTextFieldDelegate& _delegate;
};

/// The class of the full hex field.
using QTXHexEnterTextField = EnterTextField<&EnterTextFieldDelegate::hexEntryTextChange>;
/// The class of the rgb decimal field.
using QTXRGBDecimalEnterTextField =
    EnterTextField<&EnterTextFieldDelegate::rgbDecimalEntryTextChange>;

}  // namespace vantorel
