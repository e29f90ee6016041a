#include "lsp/Protocol.h"

#include <algorithm>
#include <limits>

namespace vantorel {
namespace {

/// Positions are unsigned integers of 31 bits. Others are as near as possible.
std::size_t columnFrom(const Json& json, const char* key)
{
    const auto found = json.find(key);
    if (found == json.end() || !found->is_number())
        throw RequestError{ErrorCode::invalidParams, "A position has no " + std::string(key)};
    constexpr double largest = std::numeric_limits<std::int32_t>::max();
    const auto number = found->get<double>();
    return number > 0 ? static_cast<std::size_t>(std::min(number, largest)) : 0;
}

Json jsonOf(Position position)
{
    return {{"line", position.line}, {"character", position.character}};
}

}  // namespace

const Json& member(const Json& object, const char* key, Json::value_t type)
{
    if (object.is_object()) {
        const auto found = object.find(key);
        if (found != object.end() && found->type() == type) return *found;
    }
    throw RequestError{ErrorCode::invalidParams,
                       std::string(key) + " is missing or has another type"};
}

std::string textOr(const Json& object, const char* key, std::string_view other)
{
    if (object.is_object()) {
        const auto found = object.find(key);
        if (found != object.end() && found->is_string()) return found->get<std::string>();
    }
    return std::string(other);
}

const Json& valueAt(const Json& object, const char* path)
{
    static const Json null;
    const Json::json_pointer pointer(path);
    return object.is_object() && object.contains(pointer) ? object.at(pointer) : null;
}

Position positionFrom(const Json& json)
{
    if (!json.is_object()) throw RequestError{ErrorCode::invalidParams, "A position is missing"};
    return {columnFrom(json, "line"), columnFrom(json, "character")};
}

PositionRange positionRangeFrom(const Json& json)
{
    return {positionFrom(member(json, "start", Json::value_t::object)),
            positionFrom(member(json, "end", Json::value_t::object))};
}

Json jsonOf(const PositionRange& range)
{
    return {{"start", jsonOf(range.start)}, {"end", jsonOf(range.end)}};
}

Json textEdit(const OpenDocument& document, TextRange range, std::string_view text)
{
    return {{"range", jsonOf(document.positions(range))}, {"newText", text}};
}

std::string textOf(const Json& json)
{
    return json.dump(-1, ' ', false, Json::error_handler_t::replace);
}

}  // namespace vantorel
