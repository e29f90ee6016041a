#include "lsp/DocumentRequests.h"

#include "colortext/ByteColor.h"
#include "colortext/ColorInCode.h"
#include "commandline/Translations.h"
#include "csscolor/CSSColorWriter.h"
#include "documents/DocumentLanguage.h"
#include "lsp/CodeActions.h"
#include "lsp/ColorResponse.h"
#include "lsp/CompletionItems.h"
#include "lsp/HoverText.h"
#include "lsp/WrittenColors.h"
#include "text/Unicode.h"

#include <algorithm>
#include <utility>

namespace vantorel {
namespace {

using Type = Json::value_t;

std::string uriFrom(const Json& params)
{
    const Json& document = member(params, "textDocument", Type::object);
    return member(document, "uri", Type::string).get<std::string>();
}

double channelFrom(const Json& color, const char* key)
{
    const auto found = color.find(key);
    if (found == color.end() || !found->is_number())
        throw RequestError{ErrorCode::invalidParams, "A colour has no " + std::string(key)};
    const auto channel = found->get<double>();
    return channel > 0 ? std::min(channel, 1.0) : 0;
}

HostColor colorFrom(const Json& json)
{
    return HostColor::colorWithCalibratedRed(channelFrom(json, "red"), channelFrom(json, "green"),
                                             channelFrom(json, "blue"), channelFrom(json, "alpha"));
}

/// Reads what the panel prints: a hex code, or the line of a snippet.
std::optional<HostColor> chosenColor(std::string_view utf8, const SnippetReaders& snippets)
{
    const std::u16string text = utf16FromUtf8(utf8);
    if (const auto color = colorInText(text)) return color->color;
    const auto match = snippets.matchOf(text);
    return match ? std::optional(match->color) : std::nullopt;
}

}  // namespace

DocumentRequests::Request DocumentRequests::requestNamed(std::string_view method)
{
    static constexpr std::pair<std::string_view, Request> requests[] = {
        {"textDocument/documentColor", &DocumentRequests::documentColors},
        {"textDocument/colorPresentation", &DocumentRequests::colorPresentations},
        {"textDocument/hover", &DocumentRequests::hover},
        {"textDocument/completion", &DocumentRequests::completion},
        {"textDocument/codeAction", &DocumentRequests::codeActionsFor},
        {"workspace/executeCommand", &DocumentRequests::executeCommand},
    };
    const auto* const found =
        std::ranges::find(requests, method, &std::pair<std::string_view, Request>::first);
    return found == std::end(requests) ? nullptr : found->second;
}

DocumentRequests::Notification DocumentRequests::notificationNamed(std::string_view method)
{
    static constexpr std::pair<std::string_view, Notification> notifications[] = {
        {"textDocument/didOpen", &DocumentRequests::didOpen},
        {"textDocument/didChange", &DocumentRequests::didChange},
        {"textDocument/didClose", &DocumentRequests::didClose},
    };
    const auto* const found =
        std::ranges::find(notifications, method, &std::pair<std::string_view, Notification>::first);
    return found == std::end(notifications) ? nullptr : found->second;
}

void DocumentRequests::answer(std::string_view method, const Json& params, std::string& result)
{
    const Request request = requestNamed(method);
    if (request == nullptr)
        throw RequestError{ErrorCode::methodNotFound, "The method is not known"};
    (this->*request)(params, result);
}

void DocumentRequests::notify(std::string_view method, const Json& params)
{
    const Notification notification = notificationNamed(method);
    if (notification != nullptr) (this->*notification)(params);
}

OpenDocument& DocumentRequests::requiredDocument(const Json& params)
{
    const auto document = _documents.find(uriFrom(params));
    if (document == _documents.end())
        throw RequestError{ErrorCode::invalidParams, "The document is not open"};
    return document->second;
}

/// Returns the readers of the known snippets, the same ones as long as the snippets are the same.
std::shared_ptr<const SnippetReaders> DocumentRequests::snippets()
{
    auto current = _user.knownSnippets();
    if (!_snippets || _snippets->snippets() != current)
        _snippets = std::make_shared<const SnippetReaders>(std::move(current));
    return _snippets;
}

const std::vector<ListNames>& DocumentRequests::listNames()
{
    const auto lists = _user.lists();
    const bool areSame = std::ranges::equal(
        _listNames, lists,
        [](const ListNames& names, const auto& list) { return names.isOf(list); });
    if (!areSame) {
        _listNames.clear();
        for (const auto& list : lists)
            _listNames.emplace_back(list);
    }
    return _listNames;
}

void DocumentRequests::didOpen(const Json& params)
{
    const Json& opened = member(params, "textDocument", Type::object);
    const std::string uri = uriFrom(params);
    const DocumentLanguage language = documentLanguage(textOr(opened, "languageId"), uri);
    std::string text = member(opened, "text", Type::string).get<std::string>();
    _choices.forget(uri);
    OpenDocument document(std::move(text), language, snippets(), _client.encoding);
    const auto version = opened.find("version");
    if (version != opened.end() && version->is_number_integer())
        document.setVersion(version->get<std::int64_t>());
    _documents.insert_or_assign(uri, std::move(document));
}

void DocumentRequests::didChange(const Json& params)
{
    OpenDocument& document = requiredDocument(params);
    const std::string uri = uriFrom(params);
    for (const Json& change : member(params, "contentChanges", Type::array))
        applyChange(uri, document, change);
    const Json& version = valueAt(params, "/textDocument/version");
    if (version.is_number_integer()) document.setVersion(version.get<std::int64_t>());
}

void DocumentRequests::applyChange(const std::string& uri, OpenDocument& document,
                                   const Json& change)
{
    const auto& text = member(change, "text", Type::string).get_ref<const std::string&>();
    if (!change.contains("range")) {
        _choices.forget(uri);
        document.replaceAll(text);
        return;
    }
    const TextRange range =
        document.range(positionRangeFrom(member(change, "range", Type::object)));
    _choices.replace(uri, range, text.size());
    document.replace(range, text);
}

void DocumentRequests::didClose(const Json& params)
{
    const std::string uri = uriFrom(params);
    _choices.forget(uri);
    _documents.erase(uri);
}

void DocumentRequests::documentColors(const Json& params, std::string& result)
{
    appendColors(result, requiredDocument(params));
}

void DocumentRequests::colorPresentations(const Json& params, std::string& result)
{
    const OpenDocument& document = requiredDocument(params);
    const HostColor color = colorFrom(member(params, "color", Type::object));
    const TextRange range =
        document.range(positionRangeFrom(member(params, "range", Type::object)));
    Json presentations = Json::array();
    const auto snippets = _user.ownSnippets();
    for (const auto& form :
         WrittenColors(document, _user.settings()).texts(color, range, snippets)) {
        presentations.push_back(
            {{"label", form.text}, {"textEdit", textEdit(document, range, form.text)}});
    }
    result += textOf(presentations);
}

void DocumentRequests::hover(const Json& params, std::string& result)
{
    const OpenDocument& document = requiredDocument(params);
    const std::size_t place =
        document.place(positionFrom(member(params, "position", Type::object)));
    const auto found = document.colorAt({place, place});
    if (!found) {
        result += "null";
        return;
    }
    const WrittenColors writer(document, _user.settings());
    const auto& names = listNames();
    const std::string text =
        hoverText(*found, writer, names.empty() ? nullptr : &names.front(), _client);
    result +=
        textOf({{"contents",
                 {{"kind", _client.takesMarkdown ? "markdown" : "plaintext"}, {"value", text}}},
                {"range", jsonOf(document.positions(found->range))}});
}

void DocumentRequests::completion(const Json& params, std::string& result)
{
    const OpenDocument& document = requiredDocument(params);
    const std::size_t place =
        document.place(positionFrom(member(params, "position", Type::object)));
    const auto lists = _user.lists();
    result +=
        textOf(completionItems(document, place, WrittenColors(document, _user.settings()), lists));
}

void DocumentRequests::codeActionsFor(const Json& params, std::string& result)
{
    const OpenDocument& document = requiredDocument(params);
    const std::string uri = uriFrom(params);
    const TextRange range =
        document.range(positionRangeFrom(member(params, "range", Type::object)));
    const WrittenColors writer(document, _user.settings());
    result += textOf(codeActions({document, uri, writer, _client, listNames()}, range,
                                 valueAt(params, "/context/only")));
}

/// Starts a panel for the colour of a range. The answer comes at once, and the edit when the user
/// has chosen.
void DocumentRequests::executeCommand(const Json& params, std::string& result)
{
    if (textOr(params, "command") != chooseCommand)
        throw RequestError{ErrorCode::invalidParams, "The command is not known"};
    const Json& arguments = member(params, "arguments", Type::array);
    if (arguments.size() != 2 || !arguments[0].is_string())
        throw RequestError{ErrorCode::invalidParams, "The arguments are wrong"};
    const auto document = _documents.find(arguments[0].get<std::string>());
    if (document == _documents.end())
        throw RequestError{ErrorCode::invalidParams, "The document is not open"};
    const TextRange range = document->second.range(positionRangeFrom(arguments[1]));
    const auto found = document->second.colorWithRange(range);
    if (!found) throw RequestError{ErrorCode::invalidParams, "There is no colour at this range"};
    const auto panel =
        _user.startPanel(utf8FromUtf16(hexText(found->color.color).value_or(u"#000000")));
    if (!panel)
        throw RequestError{ErrorCode::internalError,
                           inUsersWords(phrase("The colour panel cannot be started"))};
    _choices.add(*panel, document->first, range);
    result += "null";
}

Json DocumentRequests::readPanel(int output)
{
    const auto choice = _choices.read(output);
    return choice ? editForChoice(*choice) : Json();
}

/// Returns the edit that writes a chosen colour, in the form of the one that it replaces.
Json DocumentRequests::editForChoice(const PanelChoices::Choice& choice)
{
    const auto document = _documents.find(choice.uri);
    const auto color = chosenColor(choice.text, *snippets());
    if (document == _documents.end() || !color) return nullptr;
    const auto found = document->second.colorWithRange(choice.range);
    if (!found) return nullptr;
    const WrittenColors writer(document->second, _user.settings());
    const std::string text = writer.textLike(*found, byteColorOf(*color).hostColor());
    // An edit that changes nothing would be a step to undo.
    if (text == choice.range.in(document->second.text())) return nullptr;
    const Json edit =
        workspaceEdit(document->second, choice.uri,
                      Json::array({textEdit(document->second, choice.range, text)}), _client);
    return {{"label", inUsersWords(phrase("Choose in the panel"))}, {"edit", edit}};
}

}  // namespace vantorel
