#pragma once

#include "host/HostColorPicker.h"
#include "picker/InterfaceFile.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace vantorel {

/// The controls of one picker, built from an interface file through the desktop's factory.
class PickerInterface {
public:
    /// What the builder needs besides the file.
    struct Parts {
        HostInterfaceFactory& factory;
        /// For the pictures of buttons.
        const HostBundle& bundle;
        /// What the two custom views show; they must outlive the interface.
        HostViewContent& colorsView;
        HostViewContent& settingsView;
        /// Gives each control that names an action the function that sends it; an unknown name
        /// gives an empty function, which makes the file unusable.
        std::function<HostControl::Action(const std::string& name)> actionNamed;
        /// The translation of a title, tool tip or accessible name; the text itself for none.
        std::function<std::u16string(const std::u16string& text)> localized;
    };

    /// Null when the file does not read, names an action that nobody has, or the desktop cannot
    /// make a control.
    [[nodiscard]] static std::unique_ptr<PickerInterface> build(const std::string& interfaceFile,
                                                                const Parts& parts);

    PickerInterface() = default;
    PickerInterface(const PickerInterface&) = delete;
    PickerInterface& operator=(const PickerInterface&) = delete;
    ~PickerInterface();

    /// The control of that name if it is a `Control`, else null.
    template <class Control>
    [[nodiscard]] Control* control(const std::string& name) const
    {
        const auto found = _byName.find(name);
        return found == _byName.end() ? nullptr : dynamic_cast<Control*>(found->second);
    }

private:
    [[nodiscard]] HostView* buildItem(const InterfaceItem& item, const Parts& parts);
    [[nodiscard]] std::unique_ptr<HostView> makeView(const InterfaceItem& item,
                                                     const HostControlDescription& description,
                                                     const Parts& parts);

    std::vector<std::unique_ptr<HostView>> _views;  // superviews before their subviews
    std::map<std::string, HostView*> _byName;
};

}  // namespace vantorel
