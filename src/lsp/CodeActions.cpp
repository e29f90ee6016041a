#include "lsp/CodeActions.h"

#include "commandline/Translations.h"
#include "lsp/ContrastRepair.h"
#include "lsp/PropertyNames.h"
#include "result/HarmlessLine.h"
#include "text/Decimals.h"
#include "text/Unicode.h"

#include <cmath>

namespace vantorel {
namespace {

constexpr const char* quickFix = "quickfix";
constexpr const char* rewrite = "refactor.rewrite";
constexpr const char* extract = "refactor.extract";

/// Whether a kind is one of those asked for, or below one: "refactor.rewrite" is a "refactor".
bool isAskedFor(const Json& only, std::string_view kind)
{
    if (!only.is_array()) return true;
    for (const Json& each : only) {
        if (!each.is_string()) continue;
        const auto& asked = each.get_ref<const std::string&>();
        const bool isBelow =
            kind.starts_with(asked) && (kind.size() == asked.size() || kind[asked.size()] == '.');
        if (asked.empty() || isBelow) return true;
    }
    return false;
}

class ActionList {
public:
    ActionList(const ActionContext& context, const Json& only) : _context(context), _only(only) {}

    void add(const Phrase& title, const char* kind, Json edits)
    {
        if (!isAskedFor(_only, kind)) return;
        _actions.push_back({{"title", harmlessLine(inUsersWords(title))},
                            {"kind", kind},
                            {"edit", workspaceEdit(_context.document, _context.uri,
                                                   std::move(edits), _context.client)}});
    }

    void addChoice(TextRange range)
    {
        if (!isAskedFor(_only, rewrite)) return;
        const std::string title = inUsersWords(phrase("Choose in the panel"));
        const Json command = {
            {"title", title},
            {"command", chooseCommand},
            {"arguments", {_context.uri, jsonOf(_context.document.positions(range))}}};
        if (_context.client.takesCodeActions) {
            _actions.push_back({{"title", title}, {"kind", rewrite}, {"command", command}});
        } else {
            _actions.push_back(command);
        }
    }

    [[nodiscard]] Json take() { return std::move(_actions); }

private:
    const ActionContext& _context;
    const Json& _only;
    Json _actions = Json::array();
};

void addRepair(ActionList& actions, const ActionContext& context, std::size_t place)
{
    const auto repair = contrastRepair(context.document, place, context.writer);
    if (!repair) return;
    // Truncated, because a ratio that only rounds to the limit does not reach it.
    const std::string ratio = fixedText(std::floor(repair->ratio * 100) / 100, 2);
    actions.add(phrase("Change the text colour to %1: a contrast of %2 with the background",
                       repair->text, ratio),
                quickFix, Json::array({textEdit(context.document, repair->range, repair->text)}));
}

void addNames(ActionList& actions, const ActionContext& context, const OpenDocument::Found& found)
{
    for (const ListNames& names : context.names) {
        const auto nearest = names.nearest(found.color.color);
        if (!nearest || nearest->isExact) continue;
        const HostColor color =
            nearest->color.colorWithAlphaComponent(found.color.color.alphaComponent());
        actions.add(
            phrase("Replace with \"%1\", the closest in %2", nearest->name, names.list().name()),
            rewrite,
            Json::array(
                {textEdit(context.document, found.range, context.writer.textLike(found, color))}));
    }
}

void addProperty(ActionList& actions, const ActionContext& context,
                 const OpenDocument::Found& found)
{
    std::u16string proposal;
    if (!context.names.empty()) {
        if (const auto name = context.names.front().nearest(found.color.color))
            proposal = name->name;
    }
    const auto property = namedProperty(context.document, found, utf8FromUtf16(proposal));
    if (!property) return;
    actions.add(
        phrase("Name it as the custom property %1", property->name), extract,
        Json::array(
            {textEdit(context.document, {property->place, property->place}, property->declaration),
             textEdit(context.document, found.range, "var(" + property->name + ")")}));
}

}  // namespace

Json workspaceEdit(const OpenDocument& document, const std::string& uri, Json edits,
                   const ClientAbilities& client)
{
    if (!client.takesVersionedEdits) return {{"changes", {{uri, std::move(edits)}}}};
    const Json identifier = {{"uri", uri}, {"version", document.version()}};
    return {{"documentChanges",
             Json::array({{{"textDocument", identifier}, {"edits", std::move(edits)}}})}};
}

Json codeActions(const ActionContext& context, TextRange range, const Json& only)
{
    ActionList actions(context, only);
    const auto found = context.document.colorAt(range);
    if (context.client.takesCodeActions) {
        addRepair(actions, context, range.begin);
        if (found) {
            const std::string_view written = found->range.in(context.document.text());
            for (const auto& form : context.writer.forms(found->color.color, *found)) {
                if (form.text == written) continue;
                actions.add(phrase("Convert to %1", form.text), rewrite,
                            Json::array({textEdit(context.document, found->range, form.text)}));
            }
            addNames(actions, context, *found);
            addProperty(actions, context, *found);
        }
    }
    if (found && context.client.appliesEdits) actions.addChoice(found->range);
    return actions.take();
}

}  // namespace vantorel
