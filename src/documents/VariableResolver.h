#pragma once

#include "documents/ColorLiterals.h"
#include "documents/DocumentPart.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace vantorel {

/// A part, and where it is in the document.
struct PlacedPart {
    const DocumentPart* part = nullptr;
    std::size_t begin = 0;
};

/// Finds the colours that variables of a document hold.
///
/// * `var(--x)`: the last definition in the rule itself or in the nearest one around it, otherwise
///   the first one in the document, which usually is that of the whole page. Without a definition,
///   the fallback counts.
/// * `$x` of SCSS: the last definition before the place in the same block or in one around it. One
///   with `!default` counts only if it is the first. Without one, the first at the top of the
///   document counts, as in a mixin that is used later.
/// * `@x` of Less: the last definition in the same block, or in the nearest one around it.
///
/// A variable that is defined by itself holds no colour.
class VariableResolver {
public:
    /// The text and the parts must outlive the resolver.
    VariableResolver(std::string_view text, const std::vector<PlacedPart>& parts);

    /// Returns the colour of a text that uses variables, as an index of the parts and one of its
    /// colours.
    [[nodiscard]] std::optional<ColorLiteral> resolve(std::size_t part, const DocumentColor& color);

private:
    /// A block of the document. The top of the document has the greatest numbers.
    struct Scope {
        std::uint32_t part = notInDocument;
        std::uint32_t block = notInDocument;
        bool operator==(const Scope&) const = default;
    };
    struct Key {
        Scope scope;
        std::string_view name;
        bool operator==(const Key&) const = default;
    };
    struct KeyHash {
        std::size_t operator()(const Key& key) const;
    };
    struct Definition {
        std::size_t place = 0;
        TextRange value;
        Scope scope;
        bool isResolved = false;
        std::optional<ColorLiteral> color = {};
    };
    /// A text that is being put together.
    struct Expansion {
        std::string text;
        /// How many more definitions it may use, so that definitions cannot multiply each other.
        int budget = 128;
    };

    void addDefinitions(std::uint32_t index, const PlacedPart& placed);
    [[nodiscard]] Scope scopeAround(Scope scope) const;
    [[nodiscard]] Definition* find(std::string_view name, Scope scope, std::size_t place);
    [[nodiscard]] std::optional<ColorLiteral> colorOf(Definition& definition);
    [[nodiscard]] std::optional<ColorLiteral> colorOf(TextRange range, Scope scope);
    bool expand(Expansion& expansion, TextRange range, Scope scope, int depth);
    bool expandVar(Expansion& expansion, TextRange arguments, Scope scope, int depth);
    bool expandVariable(Expansion& expansion, TextRange name, Scope scope, int depth);
    bool append(Expansion& expansion, std::string_view text) const;

    std::string_view _text;
    const std::vector<PlacedPart>& _parts;
    std::vector<Definition> _definitions;
    /// In the order of the document, as indexes of `_definitions`.
    std::unordered_map<Key, std::vector<std::size_t>, KeyHash> _byScope;
    std::unordered_map<std::string_view, std::size_t> _first;
};

}  // namespace vantorel
