#include "lsp/LanguageServer.h"

#include "lsp/ClientAbilities.h"
#include "lsp/CodeActions.h"

#include <algorithm>
#include <new>

namespace vantorel {
namespace {

/// Whether arrays and objects are nested deeper than any message of the protocol. The JSON library
/// takes memory for each level.
bool isNestedTooDeep(std::string_view json)
{
    constexpr int deepest = 100;
    int depth = 0;
    bool isInString = false;
    for (std::size_t place = 0; place < json.size(); ++place) {
        const char c = json[place];
        if (c == '"') {
            isInString = !isInString;
        } else if (isInString) {
            if (c == '\\') ++place;
        } else if (c == '{' || c == '[') {
            if (++depth > deepest) return true;
        } else if (c == '}' || c == ']') {
            --depth;
        }
    }
    return false;
}

bool isId(const Json& id)
{
    return id.is_string() || id.is_number_integer();
}

}  // namespace

LanguageServer::LanguageServer(ServerUser& user, std::string version, Send send)
    : _version(std::move(version)), _send(std::move(send)), _documents(user)
{
}

void LanguageServer::enqueue(const MessageReader::Incoming& incoming)
{
    using Kind = MessageReader::Incoming::Kind;
    if (incoming.kind == Kind::damagedHeader) {
        sendError(nullptr, ErrorCode::parseError, "A header has no valid Content-Length");
        return;
    }
    if (incoming.kind == Kind::tooLong) {
        sendError(nullptr, ErrorCode::invalidRequest, "A message is too long");
        return;
    }
    Json message = isNestedTooDeep(incoming.body) ? Json(Json::value_t::discarded)
                                                  : Json::parse(incoming.body, nullptr, false);
    if (message.is_discarded()) {
        sendError(nullptr, ErrorCode::parseError, "A message is not valid JSON");
    } else if (!message.is_object()) {
        sendError(nullptr, ErrorCode::invalidRequest, "A message is not an object");
    } else if (textOr(message, "method") == "$/cancelRequest") {
        // At once, because the request may be next.
        cancel(valueAt(message, "/params/id"));
    } else {
        _queuedBytes += incoming.body.size();
        _queue.push_back({std::move(message), incoming.body.size()});
    }
}

void LanguageServer::work()
{
    const Json message = std::move(_queue.front().message);
    _queuedBytes -= _queue.front().length;
    _queue.pop_front();
    try {
        handle(message);
    } catch (const std::bad_alloc&) {
        const auto id = message.find("id");
        if (id != message.end())
            sendError(*id, ErrorCode::internalError, "There is not enough memory");
    }
}

void LanguageServer::handle(const Json& message)
{
    const auto id = message.find("id");
    const auto method = message.find("method");
    static const Json none = Json::object();
    const auto params = message.find("params");
    const Json& given = params == message.end() ? none : *params;
    if (method == message.end()) {
        // An answer to one of our requests says nothing that we need.
        const bool isAnswer = message.contains("result") || message.contains("error");
        if (!isAnswer) {
            sendError(id != message.end() && isId(*id) ? *id : Json(), ErrorCode::invalidRequest,
                      "A message has no method");
        }
    } else if (!method->is_string() || (id != message.end() && !isId(*id))) {
        sendError(nullptr, ErrorCode::invalidRequest,
                  "The method or the id of a message has a wrong type");
    } else if (id == message.end()) {
        handleNotification(method->get_ref<const std::string&>(), given);
    } else {
        handleRequest(*id, method->get_ref<const std::string&>(), given);
    }
}

void LanguageServer::handleRequest(const Json& id, const std::string& method, const Json& params)
{
    if (_isShutDown) {
        sendError(id, ErrorCode::invalidRequest, "The server has been shut down");
    } else if (!_isInitialized && method != "initialize") {
        sendError(id, ErrorCode::serverNotInitialized, "The first request must be \"initialize\"");
    } else if (_isInitialized && method == "initialize") {
        sendError(id, ErrorCode::invalidRequest, "The server is already initialized");
    } else {
        try {
            // Assigning a text would exchange the memory for its own.
            _answer.clear();
            _answer.append("{\"jsonrpc\":\"2.0\",\"id\":")
                .append(textOf(id))
                .append(",\"result\":");
            answer(method, params, _answer);
            _answer += '}';
            _send(_answer);
        } catch (const RequestError& error) {
            sendError(id, error.code, error.what);
        }
        constexpr std::size_t mostKept = std::size_t{8} << 20;
        if (_answer.capacity() > mostKept) std::string().swap(_answer);
    }
}

void LanguageServer::handleNotification(const std::string& method, const Json& params)
{
    if (method == "exit") {
        _isOver = true;
        return;
    }
    if (!_isInitialized || _isShutDown) return;
    try {
        _documents.notify(method, params);
    } catch (const RequestError&) {
        // There is no answer to a notification.
    }
}

void LanguageServer::cancel(const Json& id)
{
    const auto found = std::ranges::find_if(_queue, [&](const Queued& queued) {
        const auto other = queued.message.find("id");
        return other != queued.message.end() && *other == id && queued.message.contains("method");
    });
    if (found == _queue.end() || !isId(id)) return;
    _queuedBytes -= found->length;
    _queue.erase(found);
    sendError(id, ErrorCode::requestCancelled, "The request was cancelled");
}

void LanguageServer::sendError(const Json& id, ErrorCode code, std::string_view what)
{
    _send(textOf({{"jsonrpc", "2.0"},
                  {"id", id},
                  {"error", {{"code", static_cast<int>(code)}, {"message", what}}}}));
}

void LanguageServer::answer(const std::string& method, const Json& params, std::string& result)
{
    if (method == "initialize") {
        initialize(params, result);
    } else if (method == "shutdown") {
        _isShutDown = true;
        result += "null";
    } else {
        _documents.answer(method, params, result);
    }
}

void LanguageServer::initialize(const Json& params, std::string& result)
{
    _isInitialized = true;
    const ClientAbilities client = clientAbilities(params);
    _documents.setClient(client);
    const Json& process = valueAt(params, "/processId");
    if (process.is_number_integer() && process.get<std::int64_t>() > 0 &&
        process.get<std::int64_t>() <= INT32_MAX) {
        _clientProcess = process.get<int>();
    }
    const Json capabilities = {
        {"positionEncoding", client.encoding == PositionEncoding::utf8 ? "utf-8" : "utf-16"},
        {"textDocumentSync", {{"openClose", true}, {"change", 2}}},
        {"colorProvider", true},
        {"hoverProvider", true},
        {"completionProvider", Json::object()},
        {"codeActionProvider",
         {{"codeActionKinds", {"quickfix", "refactor.extract", "refactor.rewrite"}}}},
        {"executeCommandProvider", {{"commands", {chooseCommand}}}},
    };
    result += textOf({{"capabilities", capabilities},
                      {"serverInfo", {{"name", "Vantorel"}, {"version", _version}}}});
}

void LanguageServer::readPanel(int output)
{
    const Json edit = _documents.readPanel(output);
    if (edit.is_null()) return;
    _send(textOf({{"jsonrpc", "2.0"},
                  {"id", "vantorel-" + std::to_string(++_lastRequest)},
                  {"method", "workspace/applyEdit"},
                  {"params", edit}}));
}

}  // namespace vantorel
