#pragma once

#include "colorlists/ColorListSearch.h"
#include "host/HostDesktop.h"
#include "hosts/common/HeldFiles.h"
#include "hosts/posix/PosixFiles.h"
#include "hosts/qt/QtInterfaceFactory.h"

namespace vantorel {

/// Whether problems of a page are written to standard error. In programs of others, which did not
/// ask for a page, nothing is.
enum class QtLog { standardError, nowhere };

/// The desktop as seen through Qt. Needs a QApplication.
class QtDesktop final : public HostDesktop {
public:
    explicit QtDesktop(QtLog log = QtLog::standardError);

    ColorListSearch& colorLists() override { return _colorLists; }
    /// The store that `colorLists` searches.
    [[nodiscard]] PaletteFileStore& paletteFiles() { return _paletteFiles; }
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
    QtLog _log;
    PosixFiles _disk;
    HeldFiles _files{_disk};
    PaletteFileStore _paletteFiles;
    ColorListSearch _colorLists;
    QtInterfaceFactory _factory;
};

}  // namespace vantorel
