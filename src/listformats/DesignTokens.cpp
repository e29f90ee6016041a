#include "listformats/DesignTokens.h"

#include "colortext/ByteColor.h"
#include "listformats/Json.h"
#include "listformats/JsonListReader.h"
#include "text/ASCII.h"
#include "text/Decimals.h"
#include "text/Unicode.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <unordered_map>
#include <unordered_set>

namespace vantorel {
namespace {

constexpr std::string_view extensionKey = "org.vantorel";

bool isNumber(std::string_view name)
{
    return !name.empty() &&
           std::all_of(name.begin(), name.end(), [](char c) { return isDigit(c); });
}

/// Makes names of tokens: no "{", "}", "." and "$" at the beginning, and each only once.
class TokenNames {
public:
    std::string nameFor(const std::string& wanted)
    {
        std::string base = wanted;
        std::replace_if(
            base.begin(), base.end(), [](char c) { return c == '{' || c == '}' || c == '.'; }, '-');
        if (base.empty() || base.starts_with('$')) base.insert(0, "-");
        std::string name = base;
        for (std::size_t& number = _numbers[base]; !_taken.insert(name).second;)
            name = base + "-" + std::to_string(++number + 1);
        return name;
    }

private:
    std::unordered_set<std::string> _taken;
    std::unordered_map<std::string, std::size_t> _numbers;
};

void appendOwnName(std::string& json, const std::string& name)
{
    json += "\"$extensions\": {\"" + std::string(extensionKey) + "\": {\"name\": ";
    appendJson(json, std::string_view(name));
    json += "}}";
}

/// A group or a token.
struct TokenNode {
    /// The place of the group; the root is its own.
    std::size_t parent = 0;
    std::string name;
    /// Empty for that of the group.
    std::string type = {};
    /// As another list had it.
    std::string ownName = {};
    /// The place of its value, or `noValue` for a group.
    std::size_t value = noValue;

    static constexpr std::size_t noValue = std::string::npos;
};

struct TokenValue {
    /// A colour or a reference, unless the value is an object.
    std::string text = {};
    std::string space = {};
    std::string hex = {};
    std::vector<std::string> components = {};
};

std::optional<HostColor> colorOfValue(const TokenValue& value)
{
    if (!value.text.empty()) return listColorOf(value.text);
    constexpr std::array<std::string_view, 9> functionSpaces{
        "srgb",    "srgb-linear", "display-p3", "a98-rgb", "prophoto-rgb",
        "rec2020", "xyz",         "xyz-d50",    "xyz-d65"};
    constexpr std::array<std::string_view, 4> ownFunctions{"lab", "lch", "oklab", "oklch"};
    const auto isIn = [&](const auto& names) {
        return std::find(names.begin(), names.end(), value.space) != names.end();
    };
    std::string css;
    if (value.components.size() == 3) {
        const auto& [first, second, third] =
            std::tie(value.components[0], value.components[1], value.components[2]);
        const auto percent = [](const std::string& number) {
            return number == "none" ? number : number + "%";
        };
        if (isIn(functionSpaces)) {
            css = "color(" + value.space + ' ' + first + ' ' + second + ' ' + third + ')';
        } else if (isIn(ownFunctions)) {
            css = value.space + '(' + first + ' ' + second + ' ' + third + ')';
        } else if (value.space == "hsl" || value.space == "hwb") {
            css = value.space + '(' + first + ' ' + percent(second) + ' ' + percent(third) + ')';
        }
    }
    auto color = css.empty() ? std::nullopt : listColorOf(css);
    if (!color && value.hex.starts_with('#')) color = listColorOf(value.hex);
    return color;
}

/// Receives the parts of a JSON text from the parser. Each function returns whether to go on.
class TokenHandler final : public nlohmann::json_sax<nlohmann::json> {
public:
    bool null() override { return true; }
    bool boolean(bool) override { return true; }
    bool number_integer(number_integer_t number) override
    {
        return component(std::to_string(number));
    }
    bool number_unsigned(number_unsigned_t number) override
    {
        return component(std::to_string(number));
    }
    bool number_float(number_float_t, const string_t& text) override { return component(text); }
    bool binary(binary_t&) override { return true; }
    bool string(string_t& text) override;
    bool key(string_t& name) override
    {
        _key = std::move(name);
        return true;
    }
    bool start_object(std::size_t) override { return open(true); }
    bool start_array(std::size_t) override { return open(false); }
    bool end_object() override { return close(); }
    bool end_array() override { return close(); }
    bool parse_error(std::size_t, const std::string&, const nlohmann::detail::exception&) override
    {
        return false;
    }

    [[nodiscard]] ListContents take() const;
    [[nodiscard]] bool hasTokens() const { return !_values.empty(); }

private:
    /// What the innermost open array or object is.
    enum class Role { node, value, components, extensions, ownExtension, ignored };

    bool component(const std::string& number)
    {
        constexpr std::size_t mostComponents = 4;
        if (!_roles.empty() && _roles.back() == Role::components &&
            valueOfOpen().components.size() < mostComponents)
            valueOfOpen().components.push_back(number);
        return true;
    }
    bool open(bool isObject);
    bool close()
    {
        if (_roles.back() == Role::node) _open = _nodes[_open].parent;
        _roles.pop_back();
        return true;
    }
    TokenValue& valueOfOpen()
    {
        TokenNode& node = _nodes[_open];
        if (node.value == TokenNode::noValue) {
            node.value = _values.size();
            _values.emplace_back();
        }
        return _values[node.value];
    }

    [[nodiscard]] const std::string& typeOf(std::size_t place) const;
    /// Returns the value to which a token's references lead; null if they lead nowhere.
    [[nodiscard]] const TokenValue* resolvedValue(std::size_t place) const;
    [[nodiscard]] std::size_t nodeOf(std::string_view path) const;
    [[nodiscard]] std::string nameOfToken(std::size_t place, std::size_t listGroup) const;
    /// The only group in the file; the root if there are others, or tokens beside it.
    [[nodiscard]] std::size_t onlyGroup() const;

    std::vector<Role> _roles;
    std::string _key;
    std::vector<TokenNode> _nodes;
    std::vector<TokenValue> _values;
    /// The group or token that is open.
    std::size_t _open = 0;
    /// The places of nodes by that of their group and their name; made for the first reference.
    mutable std::unordered_map<std::string, std::size_t> _places;
};

bool TokenHandler::string(string_t& text)
{
    if (_roles.empty()) return false;
    switch (_roles.back()) {
        case Role::node:
            if (_key == "$type")
                _nodes[_open].type = std::move(text);
            else if (_key == "$value")
                valueOfOpen().text = std::move(text);
            break;
        case Role::value:
            if (_key == "colorSpace")
                valueOfOpen().space = std::move(text);
            else if (_key == "hex")
                valueOfOpen().hex = std::move(text);
            break;
        case Role::components:
            if (text == "none") return component(text);
            break;
        case Role::ownExtension:
            if (_key == "name") _nodes[_open].ownName = std::move(text);
            break;
        case Role::extensions:
        case Role::ignored:
            break;
    }
    return true;
}

bool TokenHandler::open(bool isObject)
{
    if (_roles.size() == deepestJson) return false;
    Role role = Role::ignored;
    if (_roles.empty()) {
        if (!isObject) return false;
        _nodes.emplace_back();
        role = Role::node;
    } else if (_roles.back() == Role::node) {
        if (_key == "$value") {
            // Also of another type, so that it counts as a token.
            valueOfOpen() = {};
            if (isObject) role = Role::value;
        } else if (_key == "$extensions" && isObject) {
            role = Role::extensions;
        } else if (isObject && !_key.starts_with('$')) {
            _nodes.push_back({_open, _key});
            _open = _nodes.size() - 1;
            role = Role::node;
        }
    } else if (_roles.back() == Role::value && _key == "components" && !isObject) {
        valueOfOpen().components.clear();
        role = Role::components;
    } else if (_roles.back() == Role::extensions && _key == extensionKey && isObject) {
        role = Role::ownExtension;
    }
    _roles.push_back(role);
    return true;
}

const std::string& TokenHandler::typeOf(std::size_t place) const
{
    while (_nodes[place].type.empty() && place != 0)
        place = _nodes[place].parent;
    return _nodes[place].type;
}

std::size_t TokenHandler::nodeOf(std::string_view path) const
{
    const auto keyOf = [](std::size_t group, std::string_view name) {
        return std::to_string(group) + ' ' + std::string(name);
    };
    if (_places.empty()) {
        for (std::size_t i = 1; i < _nodes.size(); ++i)
            _places[keyOf(_nodes[i].parent, _nodes[i].name)] = i;
    }
    std::size_t place = 0;
    while (!path.empty()) {
        const std::size_t dot = std::min(path.find('.'), path.size());
        const auto found = _places.find(keyOf(place, path.substr(0, dot)));
        if (found == _places.end()) return 0;
        place = found->second;
        path.remove_prefix(std::min(dot + 1, path.size()));
    }
    return place;
}

const TokenValue* TokenHandler::resolvedValue(std::size_t place) const
{
    constexpr int mostReferences = 32;
    for (int i = 0; i < mostReferences; ++i) {
        if (_nodes[place].value == TokenNode::noValue) return nullptr;
        const TokenValue& value = _values[_nodes[place].value];
        const std::string_view text = value.text;
        if (!text.starts_with('{') || !text.ends_with('}')) return &value;
        place = nodeOf(text.substr(1, text.size() - 2));
    }
    return nullptr;
}

std::size_t TokenHandler::onlyGroup() const
{
    std::size_t only = 0;
    for (std::size_t i = 1; i < _nodes.size(); ++i) {
        if (_nodes[i].parent != 0) continue;
        if (only != 0 || _nodes[i].value != TokenNode::noValue) return 0;
        only = i;
    }
    return only;
}

std::string TokenHandler::nameOfToken(std::size_t place, std::size_t listGroup) const
{
    if (!_nodes[place].ownName.empty()) return _nodes[place].ownName;
    /// The names of groups are left out where they would make each name of many long.
    constexpr std::size_t longestName = 200;
    std::string name = _nodes[place].name;
    const bool isOnlyNumber = isNumber(name);
    for (std::size_t group = _nodes[place].parent; group != 0; group = _nodes[group].parent) {
        // "500" alone would say little.
        if (group == listGroup && !(isOnlyNumber && name == _nodes[place].name)) break;
        if (name.size() + _nodes[group].name.size() > longestName) break;
        name.insert(0, _nodes[group].name + ' ');
        if (group == listGroup) break;
    }
    return name;
}

ListContents TokenHandler::take() const
{
    ListContents contents;
    const std::size_t listGroup = onlyGroup();
    const TokenNode& named = _nodes[listGroup];
    contents.name = utf16FromUtf8(named.ownName.empty() ? named.name : named.ownName);
    for (std::size_t i = 0; i < _nodes.size(); ++i) {
        if (_nodes[i].value == TokenNode::noValue) continue;
        const std::string& type = typeOf(i);
        const TokenValue* value = type.empty() || type == "color" ? resolvedValue(i) : nullptr;
        const auto color = value != nullptr ? colorOfValue(*value) : std::nullopt;
        if (color) {
            contents.entries.emplace_back(*color, utf16FromUtf8(nameOfToken(i, listGroup)));
        } else {
            ++contents.skipped;
        }
    }
    return contents;
}

}  // namespace

std::string designTokenColor(const HostColor& color)
{
    constexpr int decimals = 4;
    const ByteColor bytes = byteColorOf(color);
    const auto part = [](std::uint8_t byte) { return shortFixedText(byte / 255.0, decimals); };
    std::string json = R"({"colorSpace": "srgb", "components": [)" + part(bytes.red) + ", " +
                       part(bytes.green) + ", " + part(bytes.blue) + "], ";
    const double alpha = color.alphaComponent();
    if (alpha >= 0 && alpha < 1) json += "\"alpha\": " + shortFixedText(alpha, decimals) + ", ";
    return json + "\"hex\": \"" + opaqueHexText(color) + "\"}";
}

std::string designTokenListText(const HostColorList& list)
{
    TokenNames groups;
    const std::string listName = utf8FromUtf16(list.name());
    const std::string groupName = groups.nameFor(listName);
    std::string json = "{\n  ";
    appendJson(json, std::string_view(groupName));
    json += ": {\n    \"$type\": \"color\"";
    if (groupName != listName) {
        json += ",\n    ";
        appendOwnName(json, listName);
    }
    TokenNames names;
    for (std::size_t i = 0; i < list.allKeys().size(); ++i) {
        const std::string wanted = utf8FromUtf16(list.allKeys()[i]);
        const std::string name = names.nameFor(wanted);
        json += ",\n    ";
        appendJson(json, std::string_view(name));
        json +=
            ": {\"$value\": " + designTokenColor(list.colorAtIndex(i).colorWithAlphaComponent(1));
        if (name != wanted || isNumber(name)) {
            json += ", ";
            appendOwnName(json, wanted);
        }
        json += '}';
    }
    return json + "\n  }\n}\n";
}

bool mayHoldDesignTokens(std::string_view json)
{
    return json.find("\"$value\"") != std::string_view::npos;
}

std::optional<ListContents> readDesignTokens(std::string_view json)
{
    TokenHandler handler;
    if (!nlohmann::json::sax_parse(json.begin(), json.end(), &handler) || !handler.hasTokens())
        return std::nullopt;
    return handler.take();
}

}  // namespace vantorel
