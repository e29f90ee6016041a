#include "listformats/JsonListReader.h"

#include "text/Unicode.h"

#include <nlohmann/json.hpp>

namespace vantorel {
namespace {

void addJsonEntry(ListContents& contents, const nlohmann::ordered_json& value,
                  const std::string& name)
{
    const auto color =
        value.is_string() ? listColorOf(value.get_ref<const std::string&>()) : std::nullopt;
    if (color) {
        contents.entries.emplace_back(*color, utf16FromUtf8(name));
    } else {
        ++contents.skipped;
    }
}

std::string stringAt(const nlohmann::ordered_json& object, const char* key)
{
    const auto found = object.find(key);
    return found != object.end() && found->is_string() ? found->get<std::string>() : std::string();
}

}  // namespace

std::optional<ListContents> readJsonList(std::string_view text)
{
    // Ordered, so that an object of names and colours keeps its order.
    const auto json = nlohmann::ordered_json::parse(text, nullptr, false);
    if (json.is_discarded()) return std::nullopt;
    ListContents contents;
    const auto* colors = &json;
    if (json.is_object() && json.contains("colors")) {
        const auto name = json.find("name");
        if (name != json.end() && name->is_string())
            contents.name = utf16FromUtf8(name->get_ref<const std::string&>());
        colors = &json["colors"];
    }
    if (colors->is_object()) {
        for (const auto& [name, value] : colors->items())
            addJsonEntry(contents, value, name);
    } else if (colors->is_array()) {
        for (const auto& entry : *colors) {
            if (entry.is_object() && entry.contains("hex")) {
                addJsonEntry(contents, entry["hex"], stringAt(entry, "name"));
            } else {
                addJsonEntry(contents, entry, {});
            }
        }
    } else {
        return std::nullopt;
    }
    return contents;
}

}  // namespace vantorel
