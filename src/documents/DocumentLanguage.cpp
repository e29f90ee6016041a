#include "documents/DocumentLanguage.h"

#include "text/ASCII.h"

#include <algorithm>
#include <string>

namespace vantorel {
namespace {

struct LanguageRow {
    DocumentLanguage language;
    /// Separated by spaces, in lower case. Also compared with the endings of file names.
    std::string_view names;
};

constexpr LanguageRow languageRows[] = {
    {DocumentLanguage::css, "css postcss"},
    {DocumentLanguage::scss, "scss"},
    {DocumentLanguage::less, "less"},
    {DocumentLanguage::html, "html htm xhtml php phtml erb ejs handlebars hbs twig jinja-html"},
    {DocumentLanguage::svg, "svg xml xaml axaml qrc ui xsl plist"},
    {DocumentLanguage::vue, "vue"},
    {DocumentLanguage::svelte, "svelte astro"},
    {DocumentLanguage::script,
     "javascript typescript javascriptreact typescriptreact js ts jsx tsx mjs cjs mts cts qml"},
    {DocumentLanguage::json, "json jsonc json5"},
    {DocumentLanguage::cLikeCode,
     "c cpp objective-c objective-cpp csharp java kotlin swift dart go groovy scala glsl hlsl wgsl "
     "php-code h hpp hh cc cxx m mm cs kt kts vert frag shader arduino ino zig vala d"},
    {DocumentLanguage::rustCode, "rust rs"},
    {DocumentLanguage::hashCode,
     "python ruby shellscript sh bash zsh fish perl perl6 r yaml toml makefile coffeescript elixir "
     "dockerfile cmake powershell nix py rb pl yml mk ex exs ps1 gdscript gd conf"},
    {DocumentLanguage::dashCode, "lua sql haskell elm ada vhdl hs"},
    {DocumentLanguage::lispCode, "lisp clojure scheme elisp emacs-lisp racket el clj ini"},
    {DocumentLanguage::percentCode, "latex tex bibtex context erlang prolog matlab sty cls erl"},
    {DocumentLanguage::basicCode, "vb vba vbs bas"},
};

bool contains(std::string_view names, std::string_view name)
{
    for (std::size_t place = 0; place < names.size();) {
        const std::size_t end = std::min(names.find(' ', place), names.size());
        if (names.substr(place, end - place) == name) return true;
        place = end + 1;
    }
    return false;
}

const LanguageRow* rowNamed(std::string_view name)
{
    const std::string lower = lowerCased(std::string(name));
    const auto* const row = std::ranges::find_if(
        languageRows, [&](const LanguageRow& each) { return contains(each.names, lower); });
    return row == std::end(languageRows) ? nullptr : row;
}

std::string_view endingOf(std::string_view fileName)
{
    const std::size_t separator = fileName.find_last_of("./");
    if (separator == std::string_view::npos || fileName[separator] != '.') return {};
    return fileName.substr(separator + 1);
}

}  // namespace

DocumentLanguage documentLanguage(std::string_view identifier, std::string_view fileName)
{
    if (const LanguageRow* const row = rowNamed(identifier)) return row->language;
    if (const LanguageRow* const row = rowNamed(endingOf(fileName))) return row->language;
    return DocumentLanguage::plainText;
}

}  // namespace vantorel
