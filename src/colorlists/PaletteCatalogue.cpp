#include "colorlists/PaletteCatalogue.h"

#include "text/Decimals.h"

#include <algorithm>
#include <set>

namespace vantorel {
namespace {

std::u16string bracketedName(const PaletteCatalogue::Entry& entry, std::size_t number)
{
    std::u16string name = entry.listName + u" (" + entry.program;
    if (number > 1) name += u' ' + decimalText(number);
    return name + u')';
}

/// Returns the number after the program's name in brackets, 1 if there is no number, or 0 if the
/// name does not have that form.
std::size_t numberInBrackets(std::u16string_view name, const PaletteCatalogue::Entry& entry)
{
    if (!name.starts_with(entry.listName)) return 0;
    name.remove_prefix(entry.listName.size());
    const std::u16string opening = u" (" + entry.program;
    if (!name.starts_with(opening) || !name.ends_with(u')')) return 0;
    name.remove_prefix(opening.size());
    name.remove_suffix(1);
    if (name.empty()) return 1;
    if (name.front() != u' ') return 0;
    const std::size_t number = nameNumber(name.substr(1)).value_or(0);
    return number > 1 ? number : 0;
}

bool haveSameEntries(const PaletteCatalogue::Entry& left, const PaletteCatalogue::Entry& right)
{
    const auto leftList = left.folder->listInFile(left.fileName);
    const auto rightList = right.folder->listInFile(right.fileName);
    if (!leftList || !rightList) return false;
    if (leftList->allKeys() != rightList->allKeys()) return false;
    for (std::size_t i = 0; i < leftList->allKeys().size(); ++i) {
        if (leftList->colorAtIndex(i) != rightList->colorAtIndex(i)) return false;
    }
    return true;
}

}  // namespace

void PaletteCatalogue::rebuild(const std::vector<Source>& sources)
{
    _entries.clear();
    _listed.clear();
    for (const auto& [folder, program] : sources) {
        for (const auto& [fileName, file] : folder->files()) {
            if (!file.isPalette) continue;
            _entries.push_back({folder, fileName, file.version, file.listName, program, false});
        }
    }
    // First give every name to the first list that has it. Names are made up afterwards, so that
    // none is taken from a list of that name.
    std::set<std::string> reached;
    std::vector<Entry*> rest;
    for (Entry& entry : _entries) {
        const std::string& identity = entry.folder->files().at(entry.fileName).identity;
        if (!identity.empty() && !reached.insert(identity).second) continue;
        entry.isListed = _listed.try_emplace(entry.listName, &entry).second;
        if (!entry.isListed && !entry.program.empty()) rest.push_back(&entry);
    }
    listUnderOtherNames(rest);
}

void PaletteCatalogue::listUnderOtherNames(const std::vector<Entry*>& entries)
{
    std::map<std::u16string, std::vector<const Entry*>> listedWithName;
    std::map<std::pair<std::u16string, std::u16string>, std::size_t> lastNumber;
    for (Entry* entry : entries) {
        auto& listed = listedWithName[entry->listName];
        if (listed.empty()) listed.push_back(_listed.at(entry->listName));
        const bool isKnown = std::any_of(listed.begin(), listed.end(), [&](const Entry* other) {
            return haveSameEntries(*other, *entry);
        });
        if (isKnown) continue;
        std::size_t& number = lastNumber[{entry->listName, entry->program}];
        do {
            ++number;
        } while (!_listed.try_emplace(bracketedName(*entry, number), entry).second);
        entry->isListed = true;
        listed.push_back(entry);
    }
}

std::vector<std::u16string> PaletteCatalogue::names() const
{
    std::vector<std::u16string> names;
    names.reserve(_listed.size());
    for (const auto& [name, entry] : _listed)
        names.push_back(name);
    return names;
}

const PaletteCatalogue::Entry* PaletteCatalogue::entryListedAs(const std::u16string& name) const
{
    const auto found = _listed.find(name);
    return found != _listed.end() ? found->second : nullptr;
}

const PaletteCatalogue::Entry* PaletteCatalogue::entryOnceListedAs(const std::u16string& name) const
{
    const Entry* best = nullptr;
    std::size_t left = 0;
    for (const Entry& entry : _entries) {
        if (entry.program.empty()) continue;
        const std::size_t number = numberInBrackets(name, entry);
        if (number == 0) continue;
        if (!entry.isListed) {
            // This entry is not listed, because it equals a listed one. Use it unless a better one
            // follows.
            if (best == nullptr) best = &entry;
            continue;
        }
        if (left == 0) left = number;
        best = &entry;
        if (--left == 0) break;
    }
    return best;
}

}  // namespace vantorel
