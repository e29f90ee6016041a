#pragma once

#include "colormath/ListNames.h"
#include "lsp/ClientAbilities.h"
#include "lsp/WrittenColors.h"

#include <span>
#include <string>

namespace vantorel {

/// The command that chooses a colour in the panel. Its arguments are the address of a document and
/// the range of a colour.
inline constexpr const char* chooseCommand = "vantorel.chooseInPanel";

/// What code actions are made from.
struct ActionContext {
    const OpenDocument& document;
    const std::string& uri;
    const WrittenColors& writer;
    const ClientAbilities& client;
    std::span<const ListNames> names;
};

/// Returns the code actions for a range. `only` is the list of kinds that the client asks for, or
/// null.
[[nodiscard]] Json codeActions(const ActionContext& context, TextRange range, const Json& only);

/// Returns a WorkspaceEdit of edits in one document.
[[nodiscard]] Json workspaceEdit(const OpenDocument& document, const std::string& uri, Json edits,
                                 const ClientAbilities& client);

}  // namespace vantorel
