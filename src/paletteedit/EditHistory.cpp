#include "paletteedit/EditHistory.h"

namespace vantorel {
namespace {

/// Counts one state only: a step's first state is usually the last state of the step before it.
std::size_t entryCount(const EditStep& step)
{
    const auto& state = step.after ? step.after : step.before;
    return state ? state->entries->size() : 0;
}

}  // namespace

void EditHistory::record(EditStep step)
{
    for (const EditStep& undone : _undone)
        _entryCount -= entryCount(undone);
    _undone.clear();
    _entryCount += entryCount(step);
    _done.push_back(std::move(step));
    while (_done.size() > 1 && (_done.size() > mostSteps || _entryCount > mostEntries)) {
        _entryCount -= entryCount(_done.front());
        _done.pop_front();
    }
}

void EditHistory::moveToUndone()
{
    _undone.push_back(std::move(_done.back()));
    _done.pop_back();
}

void EditHistory::moveToDone()
{
    _done.push_back(std::move(_undone.back()));
    _undone.pop_back();
}

}  // namespace vantorel
