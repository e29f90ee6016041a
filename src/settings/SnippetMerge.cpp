#include "settings/SnippetMerge.h"

#include "text/Unicode.h"

#include <algorithm>
#include <list>
#include <map>
#include <set>

namespace vantorel {
namespace {

std::u16string nameOf(const QTXCodeSnippet& snippet)
{
    return snippet.nameSnippet().value_or(u"");
}

/// The snippets of a list by their names.
class SnippetsByName {
public:
    explicit SnippetsByName(const SnippetList& list) : _list(list)
    {
        for (std::size_t i = 0; i < list.size(); ++i)
            _places.emplace(nameOf(list[i]), i);
    }
    /// Null if there is none.
    [[nodiscard]] const QTXCodeSnippet* find(const std::u16string& name) const
    {
        const auto found = _places.find(name);
        return found == _places.end() ? nullptr : &_list[found->second];
    }
    [[nodiscard]] std::size_t placeOf(const std::u16string& name) const
    {
        const auto found = _places.find(name);
        return found == _places.end() ? _list.size() : found->second;
    }

private:
    const SnippetList& _list;
    std::map<std::u16string, std::size_t> _places;
};

bool areEqual(const QTXCodeSnippet* left, const QTXCodeSnippet* right)
{
    if (left == nullptr || right == nullptr) return left == right;
    return *left == *right;
}

/// Returns what a merge leaves of a snippet; null if it is gone.
const QTXCodeSnippet* mergedSnippet(const QTXCodeSnippet* base, const QTXCodeSnippet* mine,
                                    const QTXCodeSnippet* theirs)
{
    if (areEqual(base, mine)) return theirs;
    if (mine != nullptr || areEqual(base, theirs)) return mine;
    return theirs;
}

/// Whether the snippets that both lists have are in the same order.
bool haveSameOrder(const SnippetList& list, const SnippetsByName& other)
{
    std::size_t before = 0;
    for (const QTXCodeSnippet& snippet : list) {
        if (other.find(nameOf(snippet)) == nullptr) continue;
        const std::size_t place = other.placeOf(nameOf(snippet));
        if (place < before) return false;
        before = place;
    }
    return true;
}

std::set<std::u16string> namesOf(const SnippetList& snippets,
                                 const std::vector<std::u16string>& taken)
{
    std::set<std::u16string> names(taken.begin(), taken.end());
    for (const QTXCodeSnippet& snippet : snippets)
        names.insert(nameOf(snippet));
    return names;
}

std::u16string freeName(const std::u16string& name, const std::set<std::u16string>& names)
{
    std::u16string result = name;
    for (int number = 2; names.contains(result); ++number)
        result = name + u' ' + utf16FromUtf8(std::to_string(number));
    return result;
}

}  // namespace

SnippetList mergedSnippets(const SnippetList& base, const SnippetList& mine,
                           const SnippetList& theirs)
{
    if (theirs == base) return mine;
    const SnippetsByName ofBase(base);
    const SnippetsByName ofMine(mine);
    const SnippetsByName ofTheirs(theirs);
    const bool isMyOrder = !haveSameOrder(mine, ofBase);
    std::list<QTXCodeSnippet> merged;
    std::map<std::u16string, std::list<QTXCodeSnippet>::iterator> places;
    const auto place = [&](const std::u16string& name, std::list<QTXCodeSnippet>::iterator at) {
        const auto* snippet =
            mergedSnippet(ofBase.find(name), ofMine.find(name), ofTheirs.find(name));
        if (snippet == nullptr) return at;
        const auto made = merged.insert(at, *snippet);
        places.emplace(name, made);
        return std::next(made);
    };
    for (const QTXCodeSnippet& snippet : isMyOrder ? mine : theirs)
        place(nameOf(snippet), merged.end());
    // The others follow the one that they follow in their own list.
    auto at = merged.begin();
    for (const QTXCodeSnippet& snippet : isMyOrder ? theirs : mine) {
        const auto known = places.find(nameOf(snippet));
        at = known != places.end() ? std::next(known->second) : place(nameOf(snippet), at);
    }
    return {merged.begin(), merged.end()};
}

SnippetList snippetsOfFile(const SnippetFileContents& file, const SnippetList& shipped)
{
    SnippetList list = file.own;
    const std::set<std::u16string> names = namesOf(file.own, file.removed);
    for (const QTXCodeSnippet& snippet : shipped)
        if (!names.contains(nameOf(snippet))) list.push_back(snippet);
    return list;
}

SnippetFileContents snippetFileFor(const SnippetList& snippets, const SnippetList& shipped)
{
    const SnippetsByName ofProgram(shipped);
    std::size_t ownCount = snippets.size();
    std::size_t next = shipped.size();
    while (ownCount > 0) {
        const QTXCodeSnippet& last = snippets[ownCount - 1];
        const QTXCodeSnippet* original = ofProgram.find(nameOf(last));
        const std::size_t place = ofProgram.placeOf(nameOf(last));
        if (original == nullptr || *original != last || place >= next) break;
        next = place;
        --ownCount;
    }
    SnippetFileContents file;
    file.own.assign(snippets.begin(), snippets.begin() + static_cast<std::ptrdiff_t>(ownCount));
    const std::set<std::u16string> names = namesOf(snippets, {});
    for (const QTXCodeSnippet& snippet : shipped)
        if (!names.contains(nameOf(snippet))) file.removed.push_back(nameOf(snippet));
    return file;
}

SnippetList withShippedRestored(const SnippetList& snippets, const SnippetList& shipped)
{
    const SnippetsByName ofProgram(shipped);
    SnippetList list = snippets;
    for (QTXCodeSnippet& snippet : list) {
        if (const QTXCodeSnippet* original = ofProgram.find(nameOf(snippet))) snippet = *original;
    }
    const std::set<std::u16string> names = namesOf(list, {});
    for (const QTXCodeSnippet& snippet : shipped)
        if (!names.contains(nameOf(snippet))) list.push_back(snippet);
    return list;
}

SnippetList withImported(const SnippetList& snippets, const SnippetList& imported,
                         const std::vector<std::u16string>& taken)
{
    const SnippetsByName present(snippets);
    std::set<std::u16string> names = namesOf(snippets, taken);
    SnippetList list = snippets;
    for (const QTXCodeSnippet& snippet : imported) {
        if (areEqual(present.find(nameOf(snippet)), &snippet)) continue;
        QTXCodeSnippet added = snippet;
        added.setNameSnippet(freeName(nameOf(snippet), names));
        names.insert(nameOf(added));
        list.push_back(std::move(added));
    }
    return list;
}

std::u16string freeSnippetName(const std::u16string& name, const SnippetList& snippets,
                               const std::vector<std::u16string>& taken)
{
    return freeName(name, namesOf(snippets, taken));
}

}  // namespace vantorel
