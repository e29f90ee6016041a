#include "lsp/ClientAbilities.h"

#include <algorithm>
#include <array>

namespace vantorel {
namespace {

bool has(const Json& list, std::string_view value)
{
    return list.is_array() && std::ranges::find(list, Json(value)) != list.end();
}

bool isTrue(const Json& value)
{
    return value.is_boolean() && value.get<bool>();
}

bool isKnownForPictures(std::string_view client)
{
    constexpr std::array<std::string_view, 5> names{"Visual Studio Code", "VSCodium", "Code - OSS",
                                                    "Theia", "Cursor"};
    return std::ranges::any_of(names,
                               [&](std::string_view name) { return client.starts_with(name); });
}

}  // namespace

ClientAbilities clientAbilities(const Json& params)
{
    ClientAbilities abilities;
    if (has(valueAt(params, "/capabilities/general/positionEncodings"), "utf-8"))
        abilities.encoding = PositionEncoding::utf8;
    abilities.takesMarkdown =
        has(valueAt(params, "/capabilities/textDocument/hover/contentFormat"), "markdown");
    abilities.showsPictures = abilities.takesMarkdown &&
                              isKnownForPictures(textOr(valueAt(params, "/clientInfo"), "name"));
    abilities.takesVersionedEdits =
        isTrue(valueAt(params, "/capabilities/workspace/workspaceEdit/documentChanges"));
    abilities.takesCodeActions =
        valueAt(params, "/capabilities/textDocument/codeAction/codeActionLiteralSupport")
            .is_object();
    abilities.appliesEdits = isTrue(valueAt(params, "/capabilities/workspace/applyEdit"));
    return abilities;
}

}  // namespace vantorel
