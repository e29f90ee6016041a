#pragma once

#include "lsp/OpenDocument.h"

#include <nlohmann/json.hpp>

#include <string>
#include <string_view>

/// Values of the Language Server Protocol 3.17 as JSON.
namespace vantorel {

using Json = nlohmann::json;

/// The error codes of JSON-RPC and of the protocol.
enum class ErrorCode {
    parseError = -32700,
    invalidRequest = -32600,
    methodNotFound = -32601,
    invalidParams = -32602,
    internalError = -32603,
    serverNotInitialized = -32002,
    requestCancelled = -32800,
};

/// Thrown by the handler of a request.
struct RequestError {
    ErrorCode code = ErrorCode::invalidParams;
    /// For developers, in English.
    std::string what;
};

/// Returns a member of an object. Throws a `RequestError` if it is missing or has another type.
[[nodiscard]] const Json& member(const Json& object, const char* key, Json::value_t type);
/// Returns a text of an object, or an empty one.
[[nodiscard]] std::string textOr(const Json& object, const char* key, std::string_view other = {});
/// Returns the value at a path such as "/textDocument/hover", or null.
[[nodiscard]] const Json& valueAt(const Json& object, const char* path);

/// Reads ranges and positions. Throws a `RequestError` if there are none.
[[nodiscard]] Position positionFrom(const Json& json);
[[nodiscard]] PositionRange positionRangeFrom(const Json& json);

[[nodiscard]] Json jsonOf(const PositionRange& range);
/// Returns a TextEdit.
[[nodiscard]] Json textEdit(const OpenDocument& document, TextRange range, std::string_view text);

/// Returns JSON as text. Bytes that are not UTF-8 are replaced.
[[nodiscard]] std::string textOf(const Json& json);

}  // namespace vantorel
