#include "snippets/SnippetFile.h"

#include "plist/PropertyListReader.h"
#include "plist/PropertyListWriter.h"
#include "snippets/SnippetValues.h"
#include "text/Unicode.h"

#include <optional>
#include <set>

namespace vantorel {
namespace {

constexpr std::u16string_view snippetsKey = u"CodeSnippets";
constexpr std::u16string_view removedKey = u"RemovedSnippets";

Phrase formOfEntries()
{
    return phrase(
        "write it as { NameSnippet = \"...\"; FormatSnippet = \"...\"; VarsSnippet = ...; }");
}

/// Returns what is wrong with an entry; `std::nullopt` if nothing is.
std::optional<Message> problemOf(const QTXCodeSnippet& snippet, const std::string& path,
                                 std::size_t number, const std::set<std::u16string>& names)
{
    const auto missing = [&](const char* key) {
        return Message{phrase("\"%1\", entry %2, has no %3", path, number, key), formOfEntries()};
    };
    if (snippet.nameSnippet().value_or(u"").empty()) return missing("NameSnippet");
    if (snippet.formatStringSnippet().value_or(u"").empty()) return missing("FormatSnippet");
    if (!snippet.varFormSnippet()) return missing("VarsSnippet");
    if (!valuesOfVarForm(*snippet.varFormSnippet())) {
        return Message{phrase("\"%1\", entry %2: there is no variable form \"%3\"", path, number,
                              *snippet.varFormSnippet()),
                       phrase("use rgbaFloats, rgbFloats, rgbFixedAlphaFloat, rgbFixed, rgbaFixed, "
                              "rgbPackedInt or rgbaPackedInt")};
    }
    if (!names.contains(*snippet.nameSnippet())) return std::nullopt;
    return Message{phrase("\"%1\", entry %2: there is already a snippet \"%3\"", path, number,
                          *snippet.nameSnippet()),
                   phrase("give it another name")};
}

}  // namespace

SnippetFileReading readSnippetFile(std::string_view utf8, const std::string& path)
{
    SnippetFileReading reading;
    const std::u16string text = utf16FromUtf8(utf8);
    const auto list = parsePropertyList(text);
    if (!list) {
        reading.problems.push_back(
            {phrase("\"%1\", line %2: this is not a property list", path,
                    lineOfPropertyListError(text)),
             phrase("compare this line and the one before it with the examples in the manual")});
        return reading;
    }
    const PropertyList* inside = list->valueForKey(snippetsKey);
    const PropertyList::Array* entries = (inside != nullptr ? inside : &*list)->array();
    if (entries == nullptr) {
        reading.problems.push_back(
            {phrase("\"%1\" has no list of snippets", path),
             phrase("put the snippets into round brackets, separated by commas")});
        return reading;
    }
    if (const PropertyList* removed = list->valueForKey(removedKey);
        removed != nullptr && removed->array() != nullptr) {
        for (const PropertyList& name : *removed->array())
            if (name.string() != nullptr) reading.removed.push_back(*name.string());
    }
    std::set<std::u16string> names;
    for (std::size_t i = 0; i < entries->size(); ++i) {
        const PropertyList& entry = (*entries)[i];
        if (entry.dictionary() == nullptr) {
            reading.problems.push_back(
                {phrase("\"%1\", entry %2, is not a snippet", path, i + 1), formOfEntries()});
            continue;
        }
        QTXCodeSnippet snippet;
        snippet.loadPropertyListRepresentation(entry);
        if (auto problem = problemOf(snippet, path, i + 1, names)) {
            reading.problems.push_back(std::move(*problem));
        } else {
            names.insert(*snippet.nameSnippet());
            reading.snippets.push_back(std::move(snippet));
        }
    }
    return reading;
}

std::string snippetFileText(std::span<const QTXCodeSnippet> snippets,
                            std::span<const std::u16string> removed)
{
    PropertyList::Array entries;
    for (const QTXCodeSnippet& snippet : snippets)
        entries.push_back(snippet.propertyListRepresentation());
    if (removed.empty()) return utf8FromUtf16(propertyListText(std::move(entries)));
    PropertyList::Array names(removed.begin(), removed.end());
    return utf8FromUtf16(
        propertyListText(PropertyList::Dictionary{{std::u16string(snippetsKey), std::move(entries)},
                                                  {std::u16string(removedKey), std::move(names)}}));
}

}  // namespace vantorel
