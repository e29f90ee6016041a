#pragma once

#include <string_view>

namespace vantorel {

/// The languages in which colours are found.
enum class DocumentLanguage {
    css,
    scss,
    less,
    html,
    /// Also other XML.
    svg,
    vue,
    svelte,
    /// JavaScript and TypeScript, with or without JSX.
    script,
    json,
    /// C and its many relatives: comments begin with "//" or are enclosed in "/*" and "*/".
    cLikeCode,
    /// Like `cLikeCode`, but "'" begins no string, as in Rust.
    rustCode,
    /// Comments begin with "#", as in Python and shells.
    hashCode,
    /// Comments begin with "--", as in Lua and SQL.
    dashCode,
    /// Comments begin with ";", as in Lisp.
    lispCode,
    /// Comments begin with "%", as in LaTeX.
    percentCode,
    /// Comments begin with "'", as in Visual Basic.
    basicCode,
    /// Texts without comments. All other languages.
    plainText,
};

/// Returns the language of an identifier of the Language Server Protocol, such as
/// "typescriptreact". For one that is unknown or empty, the ending of the file's name or address
/// decides.
[[nodiscard]] DocumentLanguage documentLanguage(std::string_view identifier,
                                                std::string_view fileName);

/// Whether a document consists of CSS, SCSS or Less.
[[nodiscard]] constexpr bool isStyleSheet(DocumentLanguage language)
{
    return language == DocumentLanguage::css || language == DocumentLanguage::scss ||
           language == DocumentLanguage::less;
}

/// Whether a document consists of tags.
[[nodiscard]] constexpr bool isMarkup(DocumentLanguage language)
{
    return language == DocumentLanguage::html || language == DocumentLanguage::svg ||
           language == DocumentLanguage::vue || language == DocumentLanguage::svelte;
}

}  // namespace vantorel
