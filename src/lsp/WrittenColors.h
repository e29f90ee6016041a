#pragma once

#include "csscolor/CSSColorReader.h"
#include "lsp/OpenDocument.h"
#include "settings/QTXHexSettings.h"

#include <span>
#include <string>
#include <vector>

namespace vantorel {

/// How colours are written into a document.
class WrittenColors {
public:
    /// `settings` must outlive the object.
    WrittenColors(const OpenDocument& document, const QTXHexSettings& settings)
        : _document(document), _settings(settings)
    {
    }

    /// A text for a colour, and the name of its form for menus, such as "rgb".
    struct Text {
        std::string form;
        std::string text;
    };
    /// Returns the texts of a colour that is to replace a range: first in the form that the range
    /// has, then in the others, and then those of the snippets. No text occurs twice. The text of a
    /// colour that has not changed stays.
    [[nodiscard]] std::vector<Text> texts(const HostColor& color, TextRange range,
                                          std::span<const QTXCodeSnippet> snippets) const;

    /// Returns the forms of CSS of a colour of the document.
    [[nodiscard]] std::vector<Text> forms(const HostColor& color,
                                          const OpenDocument::Found& written) const;

    /// Returns the text of a colour in the form of a colour of the document.
    [[nodiscard]] std::string textLike(const OpenDocument::Found& written,
                                       const HostColor& color) const;
    /// Returns the text of a colour in the form that most colours of the document have.
    [[nodiscard]] std::string textInForm(CSSColorForm form, const HostColor& color) const;
    /// Returns a form of CSS: the most frequent one of the document, or hex if it has none.
    [[nodiscard]] CSSColorForm mostFrequentForm() const;

    /// Whether hex codes must have their "#".
    [[nodiscard]] bool needsPoundSign() const;

private:
    [[nodiscard]] CSSColorValue wideValue(const HostColor& color,
                                          const std::optional<OpenDocument::Found>& written) const;
    [[nodiscard]] std::vector<Text> formsOf(const HostColor& color,
                                            const CSSColorValue& value) const;
    [[nodiscard]] std::string hex(const HostColor& color, bool hasPoundSign) const;
    [[nodiscard]] std::string hexNumber(const HostColor& color, bool hasAlpha) const;
    [[nodiscard]] std::string formLike(std::string_view written, CSSColorForm form,
                                       const HostColor& color) const;

    const OpenDocument& _document;
    const QTXHexSettings& _settings;
};

/// Whether two colours are the same after the rounding of the protocol's fractions.
[[nodiscard]] bool areSameColors(const HostColor& first, const HostColor& second);

}  // namespace vantorel
