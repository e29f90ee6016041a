#pragma once

#include "colorlists/PaletteFileStore.h"
#include "testing/headless/HeadlessJournal.h"

#include <vector>

namespace vantorel {

/// Colour lists in memory, followed by those in files. Lists in memory can contain colours that no
/// file can represent.
class HeadlessColorListStore final : public HostColorListStore {
public:
    /// Both arguments must outlive the store.
    HeadlessColorListStore(HostFiles& files, HeadlessJournal& journal);

    void install(std::shared_ptr<HostColorList> list);

    [[nodiscard]] std::shared_ptr<HostColorList> colorListNamed(
        const std::u16string& name) override;
    [[nodiscard]] std::vector<std::u16string> availableColorLists() override;
    bool writeColorList(const std::shared_ptr<HostColorList>& list) override;

private:
    HeadlessJournal& _journal;
    PaletteFileStore _fileStore;
    std::vector<std::shared_ptr<HostColorList>> _installed;
};

}  // namespace vantorel
