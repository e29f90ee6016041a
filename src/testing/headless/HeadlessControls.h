#pragma once

#include "host/HostControls.h"
#include "host/HostInterfaceFactory.h"
#include "testing/headless/RecordingCanvas.h"

#include <map>
#include <memory>
#include <string>
#include <utility>

namespace vantorel {

/// The existing controls by their names in the interface file.
using ControlRegister = std::map<std::string, HostView*>;

/// Keeps a control in a register for the lifetime of this object.
class Registration {
public:
    Registration(std::shared_ptr<ControlRegister> controls, std::string name, HostView& view)
        : _controls(std::move(controls)), _name(std::move(name))
    {
        (*_controls)[_name] = &view;
    }
    Registration(const Registration&) = delete;
    Registration& operator=(const Registration&) = delete;
    ~Registration() { _controls->erase(_name); }

private:
    std::shared_ptr<ControlRegister> _controls;
    std::string _name;
};

/// A view class whose objects are in a register while they exist.
template <class Base>
class Registered : public Base {
public:
    Registered(HostRect frame, const std::shared_ptr<ControlRegister>& controls,
               const std::string& name)
        : Base(frame), _registration(controls, name, *this)
    {
    }

private:
    Registration _registration;
};

class HeadlessTextField final : public Registered<HostTextField>, public HostFieldEditor {
public:
    using Registered::Registered;

    [[nodiscard]] std::u16string stringValue() const override { return _text; }
    void setStringValue(const std::u16string& text) override;
    void setTextColor(const HostColor& color) override { _color = color; }
    [[nodiscard]] const std::optional<HostColor>& textColor() const { return _color; }

    /// Whether a user can type into the field. A label or a read-only field takes no typing.
    [[nodiscard]] bool takesTyping() const { return _takesTyping; }
    void setTakesTyping(bool flag) { _takesTyping = flag; }

    /// Sets the text and the insertion point as they are after a user's keystroke.
    void type(const std::u16string& text, std::size_t insertionPoint);
    /// Puts the insertion point at the end of the text.
    void beginEditing() { _selection = HostSelection{_text.size(), 0}; }
    void endEditing() { _selection.reset(); }
    [[nodiscard]] bool isEdited() const { return _selection.has_value(); }

    [[nodiscard]] HostSelection selectedRange() const override
    {
        return _selection.value_or(HostSelection{});
    }
    void setSelectedRange(HostSelection range) override;

private:
    std::u16string _text;
    std::optional<HostColor> _color;
    std::optional<HostSelection> _selection;
    bool _takesTyping = true;
};

class HeadlessButton final : public Registered<HostButton> {
public:
    using Kind = HostControlDescription::ButtonKind;

    HeadlessButton(HostRect frame, const std::shared_ptr<ControlRegister>& controls,
                   const std::string& name, Kind kind)
        : Registered(frame, controls, name), _kind(kind)
    {
    }

    /// Clicks the button as a user does: all but push buttons change their state first.
    void click();

private:
    Kind _kind;
};

class HeadlessCustomView final : public Registered<HostCustomView> {
public:
    HeadlessCustomView(HostRect frame, const std::shared_ptr<ControlRegister>& controls,
                       const std::string& name, HostViewContent& content)
        : Registered(frame, controls, name), _content(content)
    {
    }

    [[nodiscard]] HostViewContent& content() const { return _content; }
    /// Paints the whole view and clears its mark for redisplay.
    [[nodiscard]] RecordingCanvas draw();

    std::intptr_t addTrackingRect(HostRect rect, bool assumeInside) override;
    void removeTrackingRect(std::intptr_t tag) override;
    [[nodiscard]] bool isTracking() const { return _tracking.has_value(); }
    [[nodiscard]] bool pointerIsInside() const { return _tracking && _tracking->inside; }
    /// Moves the pointer, which may enter or leave the tracking rectangle. Returns whether it is
    /// now inside.
    bool movePointer(const HostEvent& event);

private:
    struct Tracking {
        std::intptr_t tag;
        HostRect rect;
        bool inside;
    };

    HostViewContent& _content;
    std::optional<Tracking> _tracking;
    std::intptr_t _lastTag = 0;
};

class HeadlessInterfaceFactory final : public HostInterfaceFactory {
public:
    std::unique_ptr<HostView> makeView(const HostControlDescription& description) override;
    std::unique_ptr<HostCustomView> makeCustomView(const HostControlDescription& description,
                                                   HostViewContent& content) override;
    std::unique_ptr<HostTextField> makeTextField(
        const HostControlDescription& description) override;
    std::unique_ptr<HostButton> makeButton(const HostControlDescription& description) override;
    std::unique_ptr<HostPopUpButton> makePopUpButton(
        const HostControlDescription& description) override;
    [[nodiscard]] std::u16string decimalSeparator() const override { return u"."; }

    [[nodiscard]] const ControlRegister& controls() const { return *_controls; }
    /// Returns the control of a name, or null if there is none or it is not a `Control`.
    template <class Control>
    [[nodiscard]] Control* control(const std::string& name) const
    {
        const auto found = _controls->find(name);
        return found == _controls->end() ? nullptr : dynamic_cast<Control*>(found->second);
    }

private:
    std::shared_ptr<ControlRegister> _controls = std::make_shared<ControlRegister>();
};

}  // namespace vantorel
