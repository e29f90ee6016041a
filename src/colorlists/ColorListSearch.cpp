#include "colorlists/ColorListSearch.h"

#include "colorlists/PaletteFile.h"

#include <utility>

namespace vantorel {
namespace {

/// In seconds. Long enough for every toolkit to paint and to handle events between two steps.
constexpr double pause = 0.005;

}  // namespace

ColorListSearch::ColorListSearch(PaletteFileStore& store, Schedule schedule)
    : _store(store), _schedule(std::move(schedule))
{
}

std::shared_ptr<HostColorList> ColorListSearch::colorListNamed(const std::u16string& name)
{
    const auto known = _store.knownList(name);
    if (known && (*known || !isRunning())) return *known;
    if (!isRunning()) start();
    if (!isRunning()) return _store.colorListNamed(name);
    _wanted.insert(name);
    const auto unsaved = _unsaved.find(name);
    return unsaved != _unsaved.end() ? unsaved->second : nullptr;
}

std::vector<std::u16string> ColorListSearch::availableColorLists()
{
    auto names = _store.availableColorLists();
    if (!isRunning()) return names;
    finish();
    return _store.availableColorLists();
}

bool ColorListSearch::writeColorList(const std::shared_ptr<HostColorList>& list)
{
    if (!isRunning() || !list) return _store.writeColorList(list);
    _wanted.insert(list->name());
    _unsaved[list->name()] = list;
    return true;
}

void ColorListSearch::start()
{
    _store.beginListing();
    if (_store.continueListing(filesAtOnce)) {
        _store.endListing();
    } else {
        scheduleStep();
    }
}

void ColorListSearch::scheduleStep()
{
    _nextStep = _schedule(pause, [this] { takeStep(); });
}

void ColorListSearch::takeStep()
{
    if (_store.continueListing(filesOfStep)) {
        _store.endListing();
        finish();
    } else {
        scheduleStep();
    }
}

void ColorListSearch::finish()
{
    _nextStep.reset();
    auto unsaved = std::exchange(_unsaved, {});
    // Another program may be saving the same lists. Held until they are saved.
    const auto lock = unsaved.empty() ? nullptr : _store.lockOwnFolder();
    bool hasFound = false;
    for (const std::u16string& name : std::exchange(_wanted, {})) {
        if (!_store.colorListNamed(name)) continue;
        hasFound = true;
        unsaved.erase(name);
    }
    // `writeColorList` would look at all files once more.
    if (lock) {
        for (const auto& [name, list] : unsaved)
            _store.writeNewFile(list, paletteText(*list));
    }
    if (hasFound && _reaction) _reaction();
}

}  // namespace vantorel
