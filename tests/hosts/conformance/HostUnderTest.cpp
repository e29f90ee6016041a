#include "HostUnderTest.h"

#include <iterator>

namespace vantorel {

void HostUnderTest::takeSteps(std::vector<HandStep> steps,
                              const std::function<void(const HandStep&)>& take)
{
    _steps.assign(std::make_move_iterator(steps.begin()), std::make_move_iterator(steps.end()));
    takeNext(take);
    static_cast<void>(runUntil([this] { return _steps.empty(); }));
}

void HostUnderTest::takeNext(const std::function<void(const HandStep&)>& take)
{
    const HandStep step = std::move(_steps.front());
    // The last step stays until it has been taken.
    if (_steps.size() == 1) {
        take(step);
        _steps.clear();
        return;
    }
    _steps.pop_front();
    callLater([this, &take] { takeNext(take); });
    take(step);
}

}  // namespace vantorel
