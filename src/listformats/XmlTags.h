#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vantorel {

/// A tag of an XML text.
struct XmlTag {
    /// Without a namespace prefix.
    std::string_view name;
    bool isEnd = false;
    /// Names without prefixes, and values with their entities replaced.
    std::vector<std::pair<std::string_view, std::string>> attributes;

    /// Returns the value of an attribute; an empty text if there is none.
    [[nodiscard]] std::string_view attribute(std::string_view wanted) const;
};

/// Reads the tags of an XML text one after another, and passes over everything else. It is lenient
/// with what is not well-formed. Declarations are not obeyed, so no entity can stand for more than
/// a character.
class XmlTags {
public:
    /// The text must outlive the reader and its tags.
    explicit XmlTags(std::string_view text) : _rest(text) {}

    /// Returns the next tag; `std::nullopt` at the end, or if the text ends within a tag.
    [[nodiscard]] std::optional<XmlTag> next();

private:
    [[nodiscard]] bool skipTo(std::string_view end);
    bool readAttributes(XmlTag& tag);

    std::string_view _rest;
};

/// Escapes a text for use in an attribute between quotation marks.
[[nodiscard]] std::string xmlAttributeText(const std::u16string& text);

}  // namespace vantorel
