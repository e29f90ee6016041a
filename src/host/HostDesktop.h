#pragma once

#include "host/HostColorList.h"
#include "host/HostFiles.h"
#include "host/HostInterfaceFactory.h"
#include "host/HostText.h"

#include <functional>
#include <memory>
#include <string>

namespace vantorel {

/// A one-shot timer. Ending the object before it has fired cancels it.
class HostTimer {
public:
    virtual ~HostTimer() = default;
};

/// The services of the desktop that are the same for every panel of a process.
class HostDesktop {
public:
    virtual ~HostDesktop() = default;

    virtual HostColorListStore& colorLists() = 0;
    virtual HostFiles& files() = 0;
    virtual HostInterfaceFactory& interfaceFactory() = 0;

    /// Calls `reaction` once on the user-interface thread after `seconds`.
    [[nodiscard]] virtual std::unique_ptr<HostTimer> scheduleTimer(
        double seconds, std::function<void()> reaction) = 0;

    /// The size of the laid-out text, in points. Lines part at "\n".
    [[nodiscard]] virtual HostSize sizeOfText(const HostText& text) = 0;

    /// The translation of a key in the host application's own texts; the key when there is none.
    [[nodiscard]] virtual std::u16string localizedString(const std::u16string& key) = 0;

    virtual void openURL(const std::string& url) = 0;
    virtual void beep() = 0;
    virtual void log(const std::u16string& line) = 0;
};

}  // namespace vantorel
