#include "listformats/ListTexts.h"

#include "colortext/ByteColor.h"
#include "csscolor/CSSColorWriter.h"
#include "listformats/Json.h"
#include "result/HarmlessLine.h"
#include "text/ASCII.h"
#include "text/Unicode.h"

#include <unordered_map>

namespace vantorel {
namespace {

std::string lineOf(const std::u16string& name)
{
    return harmlessLine(utf8FromUtf16(name));
}

/// Changes a name so that it cannot end the comment that contains it.
std::string commentOf(const std::u16string& name)
{
    std::string text = lineOf(name);
    for (std::size_t i = text.find("*/"); i != std::string::npos; i = text.find("*/", i))
        text.replace(i, 2, "* /");
    return text;
}

/// Makes unique CSS identifiers from names.
class Identifiers {
public:
    std::string identifierOf(const std::u16string& name)
    {
        std::string base;
        for (const char c : lineOf(name)) {
            const bool isOfIdentifiers =
                isLetterOrDigit(c) || c == '_' || static_cast<unsigned char>(c) >= 0x80;
            if (isOfIdentifiers) {
                base += lowerCase(c);
            } else if (!base.empty() && base.back() != '-') {
                base += '-';
            }
        }
        while (base.ends_with('-'))
            base.pop_back();
        if (base.empty()) base = "color";
        // An SCSS variable must not begin with a digit.
        if (isDigit(base.front())) base.insert(0, "color-");
        std::string identifier = base;
        while (_taken.contains(identifier))
            identifier = base + "-" + std::to_string(++_taken[base]);
        _taken.try_emplace(identifier, 1);
        return identifier;
    }

private:
    std::unordered_map<std::string, int> _taken;
};

}  // namespace

std::string cssText(const HostColorList& list)
{
    std::string text = "/* " + commentOf(list.name()) + " */\n:root {\n";
    Identifiers identifiers;
    for (std::size_t i = 0; i < list.allKeys().size(); ++i) {
        const std::u16string& key = list.allKeys()[i];
        text += "  --" + identifiers.identifierOf(key) + ": " +
                opaqueHexText(list.colorAtIndex(i)) + "; /* " + commentOf(key) + " */\n";
    }
    return text + "}\n";
}

std::string scssText(const HostColorList& list)
{
    std::string text = "// " + lineOf(list.name()) + "\n";
    Identifiers identifiers;
    for (std::size_t i = 0; i < list.allKeys().size(); ++i) {
        const std::u16string& key = list.allKeys()[i];
        text += "$" + identifiers.identifierOf(key) + ": " + opaqueHexText(list.colorAtIndex(i)) +
                "; // " + lineOf(key) + "\n";
    }
    return text;
}

std::string jsonText(const HostColorList& list)
{
    std::string json = "{\n  \"name\": ";
    appendJson(json, list.name());
    json += ",\n  \"colors\": [";
    for (std::size_t i = 0; i < list.allKeys().size(); ++i) {
        json += i == 0 ? "\n    {\"name\": " : ",\n    {\"name\": ";
        appendJson(json, list.allKeys()[i]);
        json += ", \"hex\": \"" + opaqueHexText(list.colorAtIndex(i)) + "\"}";
    }
    return json + "\n  ]\n}\n";
}

std::string plainText(const HostColorList& list)
{
    std::string text;
    for (std::size_t i = 0; i < list.allKeys().size(); ++i)
        text += opaqueHexText(list.colorAtIndex(i)) + '\t' + lineOf(list.allKeys()[i]) + '\n';
    return text;
}

}  // namespace vantorel
