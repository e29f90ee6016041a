#pragma once

#include "host/HostDesktop.h"
#include "testing/headless/HeadlessColorListStore.h"
#include "testing/headless/HeadlessControls.h"
#include "testing/headless/HeadlessJournal.h"

#include <map>
#include <memory>
#include <vector>

namespace vantorel {

/// A desktop without a screen whose behaviour is reproducible: it has its own clock, characters of
/// equal width, and a journal that records calls to the outside.
class HeadlessDesktop final : public HostDesktop {
public:
    struct Options {
        /// The user's files.
        std::unique_ptr<HostFiles> files;
        /// Width of a character as a multiple of the point size.
        double charWidth = 0.6;
        std::map<std::u16string, std::u16string> localizedStrings;
        /// The size of a font is rounded to whole points, upwards, as some hosts do.
        bool hasWholeFontSizes = false;
    };

    explicit HeadlessDesktop(Options options);
    ~HeadlessDesktop() override;

    HeadlessColorListStore& colorLists() override { return _colorLists; }
    HostFiles& files() override { return *_files; }
    HeadlessInterfaceFactory& interfaceFactory() override { return _factory; }
    [[nodiscard]] std::unique_ptr<HostTimer> scheduleTimer(double seconds,
                                                           std::function<void()> reaction) override;
    /// The height of a line is 1.25 times the point size. A trailing line break does not add a
    /// line.
    [[nodiscard]] HostSize sizeOfText(const HostText& text) override;
    [[nodiscard]] std::u16string localizedString(const std::u16string& key) override;
    void openURL(const std::string& url) override { _journal.emplace_back(URLOpened{url}); }
    void beep() override { _journal.emplace_back(Beeped{}); }
    void log(const std::u16string& line) override { _journal.emplace_back(LineLogged{line}); }

    [[nodiscard]] HeadlessJournal& journal() { return _journal; }

    /// Advances the clock and fires the timers that become due, in the order in which they are due.
    /// Calls `look` first and after every timer. Returns the number of timers that fired.
    int advance(double seconds, const std::function<void()>& look);
    /// Returns the seconds until each timer is due, soonest first.
    [[nodiscard]] std::vector<double> pendingTimers() const;

private:
    struct Timer {
        double due;
        std::function<void()> reaction;
        bool cancelled = false;
    };
    class TimerHandle;

    std::unique_ptr<HostFiles> _files;
    double _charWidth;
    std::map<std::u16string, std::u16string> _localizedStrings;
    bool _hasWholeFontSizes;
    HeadlessJournal _journal;
    HeadlessColorListStore _colorLists;
    HeadlessInterfaceFactory _factory;
    double _now = 0;
    std::vector<std::shared_ptr<Timer>>
        _timers;  // soonest first; the older one first if due together
};

}  // namespace vantorel
