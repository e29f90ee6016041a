#include "ScratchFolder.h"
#include "colorlists/PaletteFile.h"
#include "hosts/posix/FileRemoval.h"
#include "hosts/posix/PosixFiles.h"
#include "paletteedit/PaletteEditor.h"
#include "settings/SettingsFile.h"
#include "text/Unicode.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdlib>
#include <deque>
#include <iostream>
#include <map>
#include <random>
#include <set>

/// Many processes edit one list and one settings file; some are killed. Whatever one of them has
/// reported as done must be in the files at the end.
namespace vantorel {
namespace {

constexpr std::size_t writerCount = 20;
/// A kill after so many edits, on average.
constexpr std::size_t editsPerKill = 40;
constexpr std::size_t usualEdits = 300;

std::size_t editsToMake()
{
    const char* wanted = std::getenv("VANTOREL_EDITS");
    return wanted != nullptr ? std::strtoul(wanted, nullptr, 10) : usualEdits;
}

/// What is known of a name, in a list or among the active lists.
enum class Fate : char { added = '+', removed = '-', unknown = '?' };

/// A process that adds names to the list "Shared" and to the active lists of the settings, and
/// removes its older ones.
class Writer {
public:
    Writer(const std::string& folder, int reports, std::string name)
        : _files(folder), _reports(reports), _name(std::move(name))
    {
        initializeDefaults(_files, _settings, _merge);
    }

    [[noreturn]] void keepOn()
    {
        constexpr std::size_t mostOwn = 5;
        constexpr std::size_t editsPerSetting = 5;
        for (std::size_t i = 0;; ++i) {
            const std::string name = _name + "-" + std::to_string(i);
            if (i % editsPerSetting == 0) {
                activate("active " + name);
                continue;
            }
            if (edit(name, Fate::added)) _own.push_back(name);
            if (_own.size() > mostOwn && edit(_own.front(), Fate::removed)) _own.pop_front();
        }
    }

private:
    bool edit(const std::string& name, Fate fate)
    {
        const PaletteId id = _editor.palettes().front().id;
        PaletteEntries entries = _editor.entriesOf(id);
        const std::u16string key = utf16FromUtf8(name);
        if (fate == Fate::added) {
            entries.emplace_back(key, HostColor::blackColor());
        } else {
            std::erase_if(entries, [&](const PaletteEntry& entry) { return entry.name() == key; });
        }
        report(Fate::unknown, name);
        const bool done = _editor.setEntries(id, std::move(entries)).done;
        if (done) report(fate, name);
        return done;
    }
    void activate(const std::string& name)
    {
        _settings.activeColorLists().push_back(utf16FromUtf8(name));
        report(Fate::unknown, name);
        writeDefaults(_files, _settings, _merge);
        QTXHexSettings stored;
        readDefaults(_files, stored);
        const auto& active = stored.activeColorLists();
        // A page is not told whether its settings could be written.
        if (std::find(active.begin(), active.end(), utf16FromUtf8(name)) != active.end())
            report(Fate::added, name);
    }
    /// A line of a pipe is written whole, even by a process that is killed.
    void report(Fate fate, const std::string& name) const
    {
        const std::string line = static_cast<char>(fate) + name + '\n';
        if (::write(_reports, line.data(), line.size()) != static_cast<ssize_t>(line.size()))
            ::_exit(1);
    }

    PosixFiles _files;
    PaletteFileStore _store{_files};
    PaletteEditor _editor{_files, _store, removeFile};
    QTXHexSettings _settings;
    SettingsMerge _merge;
    int _reports;
    std::string _name;
    std::deque<std::string> _own;
};

class SharedFilesTest : public testing::Test {
protected:
    SharedFilesTest()
    {
        PaletteFileStore store(_files);
        store.writeColorList(std::make_shared<HostColorList>(u"Shared"));
        SettingsMerge merge;
        QTXHexSettings settings;
        initializeDefaults(_files, settings, merge);
        EXPECT_EQ(::pipe2(_reports.data(), O_CLOEXEC), 0);
        for (std::size_t i = 0; i < writerCount; ++i)
            startWriter();
    }
    ~SharedFilesTest() override
    {
        for (const pid_t writer : _writers)
            end(writer);
        ::close(_reports[0]);
        ::close(_reports[1]);
    }

    void startWriter()
    {
        const std::string name = "writer " + std::to_string(++_started);
        const pid_t writer = ::fork();
        if (writer == 0) Writer(_folder, _reports[1], name).keepOn();
        _writers.push_back(writer);
    }
    static void end(pid_t writer)
    {
        ::kill(writer, SIGKILL);
        ::waitpid(writer, nullptr, 0);
    }
    void replaceWriter(std::size_t number)
    {
        end(_writers[number]);
        _writers.erase(_writers.begin() + static_cast<std::ptrdiff_t>(number));
        startWriter();
    }
    /// Takes down the reports that have arrived, waiting for one. Returns how many edits were done.
    std::size_t readReports()
    {
        std::array<char, 4096> buffer{};
        const ssize_t count = ::read(_reports[0], buffer.data(), buffer.size());
        if (count > 0) _unread.append(buffer.data(), static_cast<std::size_t>(count));
        std::size_t done = 0;
        std::size_t end = 0;
        while ((end = _unread.find('\n')) != std::string::npos) {
            const auto fate = static_cast<Fate>(_unread.front());
            _fates[_unread.substr(1, end - 1)] = fate;
            _unread.erase(0, end + 1);
            done += fate != Fate::unknown ? 1U : 0U;
        }
        return done;
    }
    void endAll()
    {
        for (const pid_t writer : _writers)
            end(writer);
        _writers.clear();
        ::fcntl(_reports[0], F_SETFL, O_NONBLOCK);
        while (::write(_reports[1], "?end\n", 5) == 5 && _fates.count("end") == 0)
            readReports();
        _fates.erase("end");
    }
    [[nodiscard]] std::set<std::string> storedNames()
    {
        std::set<std::string> names;
        PaletteFileStore store(_files);
        const auto list = store.colorListNamed(u"Shared");
        for (const std::u16string& key : list->allKeys())
            names.insert(utf8FromUtf16(key));
        QTXHexSettings settings;
        readDefaults(_files, settings);
        for (const std::u16string& name : settings.activeColorLists())
            names.insert(utf8FromUtf16(name));
        return names;
    }

    ScratchFolder _scratch;
    std::string _folder = _scratch.path();
    PosixFiles _files{_folder};
    std::array<int, 2> _reports{-1, -1};
    std::vector<pid_t> _writers;
    std::size_t _started = 0;
    std::string _unread;
    std::map<std::string, Fate> _fates;
};

TEST_F(SharedFilesTest, NothingThatWasReportedAsDoneIsMissing)
{
    constexpr unsigned seed = 15;
    std::mt19937 random(seed);
    const std::size_t wanted = editsToMake();
    std::size_t done = 0;
    std::size_t kills = 0;
    while (done < wanted) {
        done += readReports();
        for (; kills < done / editsPerKill; ++kills)
            replaceWriter(random() % writerCount);
    }
    endAll();
    const std::set<std::string> stored = storedNames();
    std::size_t lost = 0;
    std::size_t revived = 0;
    for (const auto& [name, fate] : _fates) {
        lost += fate == Fate::added && stored.count(name) == 0 ? 1U : 0U;
        revived += fate == Fate::removed && stored.count(name) != 0 ? 1U : 0U;
    }
    std::cout << done << " edits; " << writerCount << " processes; " << kills << " killed; " << lost
              << " lost; " << revived << " undone\n";
    EXPECT_EQ(lost, 0U);
    EXPECT_EQ(revived, 0U);
}

}  // namespace
}  // namespace vantorel
