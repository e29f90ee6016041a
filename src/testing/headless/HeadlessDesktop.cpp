#include "testing/headless/HeadlessDesktop.h"

#include "testing/headless/JournalingFiles.h"

#include <algorithm>
#include <cmath>

namespace vantorel {
namespace {

constexpr double lineHeight = 1.25;
/// How much wider bold letters are.
constexpr double boldWidth = 1.1;
/// The tolerance for rounding errors of added seconds, so that advancing by 0.9 three times fires a
/// timer that is due at 2.7.
constexpr double clockTolerance = 1e-9;

}  // namespace

class HeadlessDesktop::TimerHandle final : public HostTimer {
public:
    explicit TimerHandle(std::shared_ptr<Timer> timer) : _timer(std::move(timer)) {}
    TimerHandle(const TimerHandle&) = delete;
    TimerHandle& operator=(const TimerHandle&) = delete;
    ~TimerHandle() override { _timer->cancelled = true; }

private:
    std::shared_ptr<Timer> _timer;
};

HeadlessDesktop::HeadlessDesktop(Options options)
    : _files(std::make_unique<JournalingFiles>(std::move(options.files), _journal)),
      _charWidth(options.charWidth),
      _localizedStrings(std::move(options.localizedStrings)),
      _hasWholeFontSizes(options.hasWholeFontSizes),
      _colorLists(*_files, _journal)
{
}

HeadlessDesktop::~HeadlessDesktop() = default;

std::unique_ptr<HostTimer> HeadlessDesktop::scheduleTimer(double seconds,
                                                          std::function<void()> reaction)
{
    auto timer = std::make_shared<Timer>(Timer{_now + seconds, std::move(reaction)});
    const auto later = [](double due, const auto& other) { return due < other->due; };
    _timers.insert(std::upper_bound(_timers.begin(), _timers.end(), timer->due, later), timer);
    return std::make_unique<TimerHandle>(std::move(timer));
}

HostSize HeadlessDesktop::sizeOfText(const HostText& text)
{
    std::size_t widest = 0;
    std::size_t lines = 0;
    std::u16string_view rest = text.string;
    do {
        const std::size_t length = std::min(rest.find(u'\n'), rest.size());
        widest = std::max(widest, length);
        ++lines;
        rest.remove_prefix(std::min(length + 1, rest.size()));
    } while (!rest.empty());
    const double charWidth = _charWidth * (text.isBold ? boldWidth : 1);
    const double pointSize = _hasWholeFontSizes ? std::ceil(text.pointSize) : text.pointSize;
    return {static_cast<double>(widest) * charWidth * pointSize,
            static_cast<double>(lines) * lineHeight * pointSize};
}

std::u16string HeadlessDesktop::localizedString(const std::u16string& key)
{
    const auto found = _localizedStrings.find(key);
    return found == _localizedStrings.end() ? key : found->second;
}

int HeadlessDesktop::advance(double seconds, const std::function<void()>& look)
{
    const double end = _now + seconds;
    int fired = 0;
    look();
    while (!_timers.empty() && _timers.front()->due <= end + clockTolerance) {
        const auto timer = _timers.front();
        _timers.erase(_timers.begin());
        if (timer->cancelled) continue;
        _now = timer->due;
        timer->reaction();
        ++fired;
        look();
    }
    _now = end;
    return fired;
}

std::vector<double> HeadlessDesktop::pendingTimers() const
{
    std::vector<double> seconds;
    for (const auto& timer : _timers) {
        if (!timer->cancelled) seconds.push_back(timer->due - _now);
    }
    return seconds;
}

}  // namespace vantorel
