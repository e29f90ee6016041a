#pragma once

#include "colorlists/PaletteFileStore.h"
#include "host/HostDesktop.h"

#include <set>

namespace vantorel {

/// The colour lists of a store for programs with a window, which must not wait while all palette
/// files are read to find a name. Most lists are in the file that their name leads to, and are
/// found at once. Otherwise the files are looked at, and if there are many, in steps between which
/// the window is used. Until the search ends, a list that it may still find does not exist.
///
/// A list that is saved meanwhile is kept in memory and becomes a file when the search has not
/// found another list of its name. A program that ends earlier has not saved it; this is meant for
/// the built-in lists, which the next start saves.
class ColorListSearch final : public HostColorListStore {
public:
    /// Calls the reaction once, as `HostDesktop::scheduleTimer` does.
    using Schedule =
        std::function<std::unique_ptr<HostTimer>(double seconds, std::function<void()> reaction)>;

    /// How many files are looked at without a pause, in less than a tenth of a second.
    static constexpr std::size_t filesAtOnce = 4096;
    /// How many files each further step looks at.
    static constexpr std::size_t filesOfStep = 256;

    /// `store` must outlive the search.
    ColorListSearch(PaletteFileStore& store, Schedule schedule);

    /// `reaction` is called when a search has found a list that was asked for while it ran. Pass an
    /// empty function to remove it.
    void setReaction(std::function<void()> reaction) { _reaction = std::move(reaction); }
    [[nodiscard]] bool isRunning() const { return _nextStep != nullptr; }

    [[nodiscard]] std::shared_ptr<HostColorList> colorListNamed(
        const std::u16string& name) override;
    [[nodiscard]] std::vector<std::u16string> availableColorLists() override;
    bool writeColorList(const std::shared_ptr<HostColorList>& list) override;

private:
    void start();
    void scheduleStep();
    void takeStep();
    void finish();

    PaletteFileStore& _store;
    Schedule _schedule;
    std::function<void()> _reaction;
    /// Null if no search is running.
    std::unique_ptr<HostTimer> _nextStep;
    /// The names that the running search could not answer yet.
    std::set<std::u16string> _wanted;
    /// The lists to save if the running search finds none of their names.
    std::map<std::u16string, std::shared_ptr<HostColorList>> _unsaved;
};

}  // namespace vantorel
