#include "testing/headless/HeadlessColorListStore.h"

#include <algorithm>

namespace vantorel {

HeadlessColorListStore::HeadlessColorListStore(HostFiles& files, HeadlessJournal& journal)
    : _journal(journal), _fileStore(files, [&journal](const std::u16string& line) {
          journal.emplace_back(LineLogged{line});
      })
{
}

void HeadlessColorListStore::install(std::shared_ptr<HostColorList> list)
{
    _installed.push_back(std::move(list));
}

std::shared_ptr<HostColorList> HeadlessColorListStore::colorListNamed(const std::u16string& name)
{
    const auto found = std::find_if(_installed.begin(), _installed.end(),
                                    [&](const auto& list) { return list->name() == name; });
    return found != _installed.end() ? *found : _fileStore.colorListNamed(name);
}

std::vector<std::u16string> HeadlessColorListStore::availableColorLists()
{
    std::vector<std::u16string> names;
    const auto add = [&](const std::u16string& name) {
        if (std::find(names.begin(), names.end(), name) == names.end()) names.push_back(name);
    };
    for (const auto& list : _installed)
        add(list->name());
    for (const std::u16string& name : _fileStore.availableColorLists())
        add(name);
    return names;
}

bool HeadlessColorListStore::writeColorList(const std::shared_ptr<HostColorList>& list)
{
    if (!_fileStore.writeColorList(list)) return false;
    _journal.emplace_back(ListSaved{list->name()});
    return true;
}

}  // namespace vantorel
