#pragma once

#include "host/HostColorPicker.h"
#include "host/HostControls.h"
#include "picker/InterfaceFile.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace vantorel {

/// The controls of one picker, created from an interface file by the desktop's factory.
class PickerInterface {
public:
    /// What `build` needs besides the file.
    struct Parts {
        HostInterfaceFactory& factory;
        /// For the pictures of buttons.
        const HostBundle& bundle;
        /// The contents of the two custom views. They must outlive the interface.
        HostViewContent& colorsView;
        HostViewContent& settingsView;
        /// Returns the function that runs the action of that name, or an empty function for an
        /// unknown name, which makes the file invalid.
        std::function<HostControl::Action(const std::string& name)> actionNamed;
        /// Returns the translation of a title, tool tip or accessible name, or the text itself if
        /// there is none.
        std::function<std::u16string(const std::u16string& text)> localized;
    };

    /// Returns null if the file is not valid, names an unknown action, or the desktop cannot create
    /// a control.
    [[nodiscard]] static std::unique_ptr<PickerInterface> build(const std::string& interfaceFile,
                                                                const Parts& parts);

    PickerInterface() = default;
    PickerInterface(const PickerInterface&) = delete;
    PickerInterface& operator=(const PickerInterface&) = delete;
    ~PickerInterface();

    /// Returns the control of that name if it is a `Control`, else null.
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
