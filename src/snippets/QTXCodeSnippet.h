#pragma once

#include "color/QTXHexColorSpec.h"
#include "plist/PropertyList.h"

#include <optional>
#include <string>
#include <vector>

namespace vantorel {

/// A template that turns a colour into a line of source code. It has a name, a printf format (see
/// FormatString.h) and a variable form, which selects the arguments of the format:
///
///     rgbaFloats          red/255, green/255, blue/255, alpha
///     rgbFloats           red/255, green/255, blue/255
///     rgbFixedAlphaFloat  red, green, blue as integers, alpha
///     rgbFixed            red, green, blue as integers
///     rgbaFixed           red, green, blue, alpha × 255 truncated
///     rgbPackedInt        0xRRGGBB
///     rgbaPackedInt       0xAARRGGBB
class QTXCodeSnippet {
public:
    QTXCodeSnippet() = default;
    QTXCodeSnippet(std::u16string name, std::u16string format, std::u16string varForm)
        : _nameSnippet(std::move(name)),
          _formatStringSnippet(std::move(format)),
          _varFormSnippet(std::move(varForm))
    {
    }

    /// The name identifies the snippet.
    [[nodiscard]] const std::optional<std::u16string>& nameSnippet() const { return _nameSnippet; }
    void setNameSnippet(std::optional<std::u16string> name) { _nameSnippet = std::move(name); }
    [[nodiscard]] const std::optional<std::u16string>& formatStringSnippet() const
    {
        return _formatStringSnippet;
    }
    void setFormatStringSnippet(std::optional<std::u16string> format)
    {
        _formatStringSnippet = std::move(format);
    }
    [[nodiscard]] const std::optional<std::u16string>& varFormSnippet() const
    {
        return _varFormSnippet;
    }
    void setVarFormSnippet(std::optional<std::u16string> form)
    {
        _varFormSnippet = std::move(form);
    }

    /// Returns the line for a colour, or "??" if the variable form is unknown. The format
    /// determines the letter case of hex digits.
    [[nodiscard]] std::u16string codeSnippetWithColorSpec(const QTXHexColorSpec& colorSpec) const;

    /// Returns a dictionary of strings without the fields that are not set.
    [[nodiscard]] PropertyList propertyListRepresentation() const;
    /// Sets each field whose key has a string value; the other fields are unchanged.
    void loadPropertyListRepresentation(const PropertyList& dictionary);

    /// The built-in snippets as an array of dictionaries. The first one is used wherever no other
    /// is available.
    [[nodiscard]] static const PropertyList& buildDefaultCodeSnippetDictionaries();
    /// The built-in snippets. Every call returns the same object.
    [[nodiscard]] static const std::vector<QTXCodeSnippet>& buildDefaultCodeSnippets();

    bool operator==(const QTXCodeSnippet&) const = default;

private:
    std::optional<std::u16string> _nameSnippet;
    std::optional<std::u16string> _formatStringSnippet;
    std::optional<std::u16string> _varFormSnippet;
};

}  // namespace vantorel
