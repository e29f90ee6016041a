#pragma once

#include "lsp/Protocol.h"
#include "lsp/TextLines.h"

namespace vantorel {

/// What a client can do, from its `initialize` request.
struct ClientAbilities {
    PositionEncoding encoding = PositionEncoding::utf16;
    bool takesMarkdown = false;
    /// Whether it shows pictures of data addresses in Markdown. The protocol has no word for it, so
    /// it is known by the client's name. Other editors would show the address.
    bool showsPictures = false;
    /// Whether edits can name the version of the document.
    bool takesVersionedEdits = false;
    /// Whether code actions can be more than commands.
    bool takesCodeActions = false;
    bool appliesEdits = false;
};

[[nodiscard]] ClientAbilities clientAbilities(const Json& initializeParams);

}  // namespace vantorel
