#pragma once

#include "colorlists/PaletteFileStore.h"
#include "host/HostDesktop.h"
#include "hosts/common/HeldFiles.h"
#include "hosts/gtk/GtkHostInterfaceFactory.h"
#include "hosts/posix/PosixFiles.h"

#include <functional>

namespace vantorel {

/// The desktop as seen through GTK, which must have been initialised.
class GtkHostDesktop final : public HostDesktop {
public:
    /// `log` gets the lines of the page; a program of somebody else's has no place for them.
    explicit GtkHostDesktop(std::function<void(const std::u16string&)> log = {});

    PaletteFileStore& colorLists() override { return _colorLists; }
    HeldFiles& files() override { return _files; }
    HostInterfaceFactory& interfaceFactory() override { return _factory; }
    [[nodiscard]] std::unique_ptr<HostTimer> scheduleTimer(double seconds,
                                                           std::function<void()> reaction) override;
    [[nodiscard]] HostSize sizeOfText(const HostText& text) override;
    [[nodiscard]] std::u16string localizedString(const std::u16string& key) override;
    void openURL(const std::string& url) override;
    void beep() override;
    void log(const std::u16string& line) override;

private:
    std::function<void(const std::u16string&)> _log;
    PosixFiles _disk;
    HeldFiles _files{_disk};
    PaletteFileStore _colorLists;
    GtkHostInterfaceFactory _factory;
};

}  // namespace vantorel
