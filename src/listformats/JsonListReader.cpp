#include "listformats/JsonListReader.h"

#include "text/Unicode.h"

#include <nlohmann/json.hpp>

#include <unordered_map>

namespace vantorel {
namespace {

/// A string; `std::nullopt` for any other value.
using Text = std::optional<std::string>;

std::optional<HostColor> colorOf(const Text& text)
{
    return text ? listColorOf(*text) : std::nullopt;
}

/// The colours of an array or object, in the file's order.
class Members {
public:
    void append(const Text& color, const Text& name)
    {
        _members.emplace_back(colorOf(color), utf16FromUtf8(name.value_or(std::string())));
    }
    void set(const std::string& name, const Text& color)
    {
        const auto [known, isNew] = _placeOfName.try_emplace(name, _members.size());
        if (isNew) {
            append(color, name);
        } else {
            _members[known->second].first = colorOf(color);
        }
    }
    void moveTo(ListContents& found)
    {
        for (auto& [color, name] : _members) {
            if (color) {
                found.entries.emplace_back(*color, std::move(name));
            } else {
                ++found.skipped;
            }
        }
    }

private:
    std::vector<std::pair<std::optional<HostColor>, std::u16string>> _members;
    std::unordered_map<std::string, std::size_t> _placeOfName;
};

/// Receives the parts of a JSON text from the parser. Each function returns whether to go on.
class ListHandler final : public nlohmann::json_sax<nlohmann::json> {
public:
    bool null() override { return value(std::nullopt); }
    bool boolean(bool) override { return value(std::nullopt); }
    bool number_integer(number_integer_t) override { return value(std::nullopt); }
    bool number_unsigned(number_unsigned_t) override { return value(std::nullopt); }
    bool number_float(number_float_t, const string_t&) override { return value(std::nullopt); }
    bool binary(binary_t&) override { return value(std::nullopt); }
    bool string(string_t& text) override { return value(std::move(text)); }
    bool key(string_t& name) override
    {
        _key = std::move(name);
        return true;
    }
    bool start_object(std::size_t) override { return open(Kind::object); }
    bool start_array(std::size_t) override { return open(Kind::array); }
    bool end_object() override { return close(); }
    bool end_array() override { return close(); }
    bool parse_error(std::size_t, const std::string&, const nlohmann::detail::exception&) override
    {
        return false;
    }

    [[nodiscard]] bool isTooDeep() const { return _isTooDeep; }
    /// Returns the colours of a whole text; `std::nullopt` if it is not a list.
    [[nodiscard]] std::optional<ListContents> take()
    {
        ListContents found;
        if (_hasColors) found.name = utf16FromUtf8(_name.value_or(std::string()));
        std::optional<Members>& members = _hasColors ? _colors : _root;
        if (!members) return std::nullopt;
        members->moveTo(found);
        return found;
    }

private:
    enum class Kind { object, array };
    /// What the innermost open array or object is.
    enum class Role { rootObject, colorsObject, colorsArray, entry, ignored };

    bool value(const Text& text)
    {
        if (_roles.empty()) return false;
        switch (_roles.back()) {
            case Role::rootObject:
                if (_key == "name") _name = text;
                if (_key == "colors") {
                    _hasColors = true;
                    _colors.reset();
                }
                _root->set(_key, text);
                break;
            case Role::colorsObject:
                members().set(_key, text);
                break;
            case Role::colorsArray:
                members().append(text, std::nullopt);
                break;
            case Role::entry:
                if (_key == "hex") _entryColor = text;
                if (_key == "name") _entryName = text;
                break;
            case Role::ignored:
                break;
        }
        return true;
    }

    bool open(Kind kind)
    {
        if (_roles.size() == deepestJson) {
            _isTooDeep = true;
            return false;
        }
        const bool isRoot = _roles.empty();
        if (isRoot) {
            _root.emplace();
            _roles.push_back(kind == Kind::object ? Role::rootObject : Role::colorsArray);
            return true;
        }
        const Role parent = _roles.back();
        if (parent == Role::colorsArray && kind == Kind::object) {
            _entryColor.reset();
            _entryName.reset();
            _roles.push_back(Role::entry);
            return true;
        }
        value(std::nullopt);
        if (parent == Role::rootObject && _key == "colors") {
            _colors.emplace();
            _roles.push_back(kind == Kind::object ? Role::colorsObject : Role::colorsArray);
        } else {
            _roles.push_back(Role::ignored);
        }
        return true;
    }

    bool close()
    {
        const Role closed = _roles.back();
        _roles.pop_back();
        if (closed == Role::entry) members().append(_entryColor, _entryName);
        return true;
    }

    /// Those of the member "colors" if it is open, else of the array that is the whole text.
    Members& members() { return _colors ? *_colors : *_root; }

    std::vector<Role> _roles;
    std::string _key;
    std::optional<Members> _root;
    bool _hasColors = false;
    /// Empty if the member "colors" has neither an array nor an object.
    std::optional<Members> _colors;
    Text _name;
    Text _entryColor;
    Text _entryName;
    bool _isTooDeep = false;
};

}  // namespace

Result<ListContents> readJsonList(std::string_view text)
{
    ListHandler handler;
    if (nlohmann::json::sax_parse(text.begin(), text.end(), &handler)) {
        if (auto found = handler.take()) return *std::move(found);
    }
    if (handler.isTooDeep()) {
        return Message{phrase("its arrays and objects are more than %1 deep", deepestJson),
                       phrase("give a list of names and colours")};
    }
    return Message{
        phrase("it is not a JSON colour list"),
        phrase("write %1", R"({"name": NAME, "colors": [{"name": NAME, "hex": "#ff8000"}]})")};
}

}  // namespace vantorel
