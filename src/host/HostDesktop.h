#pragma once

#include "host/HostColorList.h"
#include "host/HostFiles.h"
#include "host/HostInterfaceFactory.h"
#include "host/HostText.h"

#include <functional>
#include <memory>
#include <string>

namespace vantorel {

/// A one-shot timer. Destroying it before it has fired cancels it.
class HostTimer {
public:
    virtual ~HostTimer() = default;
};

/// Desktop services shared by all panels of a process.
class HostDesktop {
public:
    virtual ~HostDesktop() = default;

    virtual HostColorListStore& colorLists() = 0;
    virtual HostFiles& files() = 0;
    virtual HostInterfaceFactory& interfaceFactory() = 0;

    /// Calls `reaction` once, after `seconds`, on the user-interface thread.
    [[nodiscard]] virtual std::unique_ptr<HostTimer> scheduleTimer(
        double seconds, std::function<void()> reaction) = 0;

    /// Returns the size of the laid-out text, in points. Lines are separated by "\n".
    [[nodiscard]] virtual HostSize sizeOfText(const HostText& text) = 0;

    /// Returns the host application's translation of a key, or the key itself if there is none.
    [[nodiscard]] virtual std::u16string localizedString(const std::u16string& key) = 0;

    virtual void openURL(const std::string& url) = 0;
    virtual void beep() = 0;
    virtual void log(const std::u16string& line) = 0;
};

}  // namespace vantorel
