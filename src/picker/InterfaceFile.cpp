#include "picker/InterfaceFile.h"

#include "plist/PropertyList.h"
#include "plist/PropertyListReader.h"
#include "text/Unicode.h"

#include <array>
#include <charconv>
#include <cmath>
#include <set>

namespace vantorel {
namespace {

constexpr std::u16string_view fileVersion = u"1";
/// Far larger than any screen, yet small enough for exact arithmetic on frames.
constexpr double largestCoordinate = 100000;
constexpr double largestFontSize = 200;

using Kind = InterfaceItem::Kind;
using Description = HostControlDescription;

struct ClassName {
    std::string_view name;
    Kind kind;
    bool editable;
    Description::ButtonKind buttonKind;
};

constexpr std::array classNames{
    ClassName{"View", Kind::view, false, Description::ButtonKind::push},
    ClassName{"Label", Kind::textField, false, Description::ButtonKind::push},
    ClassName{"TextField", Kind::textField, true, Description::ButtonKind::push},
    ClassName{"QTXHexEnterTextField", Kind::hexEnterTextField, true, Description::ButtonKind::push},
    ClassName{"QTXRGBDecimalEnterTextField", Kind::rgbDecimalEnterTextField, true,
              Description::ButtonKind::push},
    ClassName{"PopUpButton", Kind::popUpButton, false, Description::ButtonKind::push},
    ClassName{"Button", Kind::button, false, Description::ButtonKind::push},
    ClassName{"CheckBox", Kind::button, false, Description::ButtonKind::checkBox},
    ClassName{"ToggleButton", Kind::button, false, Description::ButtonKind::toggle},
    ClassName{"QTXHexColorsView", Kind::colorsView, false, Description::ButtonKind::push},
    ClassName{"QTXHexSettingsView", Kind::settingsView, false, Description::ButtonKind::push},
};

struct ResizingName {
    std::string_view name;
    bool HostResizing::*part;
};

constexpr std::array resizingNames{
    ResizingName{"LeftMargin", &HostResizing::leftMargin},
    ResizingName{"Width", &HostResizing::width},
    ResizingName{"RightMargin", &HostResizing::rightMargin},
    ResizingName{"BottomMargin", &HostResizing::bottomMargin},
    ResizingName{"Height", &HostResizing::height},
    ResizingName{"TopMargin", &HostResizing::topMargin},
};

struct AlignmentName {
    std::string_view name;
    Description::Alignment alignment;
};

constexpr std::array alignmentNames{
    AlignmentName{"Left", Description::Alignment::left},
    AlignmentName{"Center", Description::Alignment::center},
    AlignmentName{"Right", Description::Alignment::right},
};

/// Returns the entry of a name table, or null.
template <class Table>
auto entryNamed(const Table& table, std::string_view name)
{
    for (const auto& entry : table) {
        if (entry.name == name) return &entry;
    }
    return static_cast<decltype(table.data())>(nullptr);
}

/// Parses `{{x, y}, {width, height}}`.
std::optional<HostRect> parseFrame(std::string_view text)
{
    std::string bare;
    for (const char c : text) {
        if (c != ' ') bare.push_back(c);
    }
    HostRect frame;
    const std::array fields{&frame.x, &frame.y, &frame.width, &frame.height};
    constexpr auto before = std::to_array<std::string_view>({"{{", ",", "},{", ","});
    std::string_view rest = bare;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (!rest.starts_with(before[i])) return std::nullopt;
        rest.remove_prefix(before[i].size());
        const auto [end, error] =
            std::from_chars(rest.data(), rest.data() + rest.size(), *fields[i]);
        if (error != std::errc{} || !(std::abs(*fields[i]) <= largestCoordinate)) {
            return std::nullopt;
        }
        rest.remove_prefix(static_cast<std::size_t>(end - rest.data()));
    }
    if (rest != "}}" || frame.width < 0 || frame.height < 0) return std::nullopt;
    return frame;
}

/// Reads the dictionaries of the file and stops at the first invalid value.
class Reader {
public:
    std::optional<InterfaceItem> item(const PropertyList& value)
    {
        if (value.dictionary() == nullptr) return std::nullopt;
        InterfaceItem item;
        Description& description = item.description;

        const auto className = text(value, u"Class");
        const auto* known = entryNamed(classNames, className);
        const auto frame = parseFrame(text(value, u"Frame"));
        description.identifier = text(value, u"Name");
        const bool isNew = _names.insert(description.identifier).second;
        if (known == nullptr || !frame || description.identifier.empty() || !isNew) {
            return std::nullopt;
        }
        item.kind = known->kind;
        description.editable = known->editable;
        description.buttonKind = known->buttonKind;
        description.frame = *frame;
        description.title = string(value, u"Title");
        description.toolTip = string(value, u"ToolTip");
        description.accessibleName = string(value, u"AccessibleName");
        description.readOnly = text(value, u"ReadOnly") == "YES";
        description.monospaced = text(value, u"Monospaced") == "YES";
        item.action = text(value, u"Action");
        item.image = text(value, u"Image");
        if (!readFontSize(value, description) || !readAlignment(value, description) ||
            !readResizing(value, description) || !readSubviews(value, item)) {
            return std::nullopt;
        }
        return item;
    }

    std::optional<std::vector<InterfaceItem>> items(const PropertyList* values)
    {
        std::vector<InterfaceItem> result;
        if (values == nullptr || values->array() == nullptr) return std::nullopt;
        for (const PropertyList& value : *values->array()) {
            auto next = item(value);
            if (!next) return std::nullopt;
            result.push_back(std::move(*next));
        }
        return result;
    }

private:
    static std::u16string string(const PropertyList& value, std::u16string_view key)
    {
        const PropertyList* found = value.valueForKey(key);
        return found != nullptr && found->string() != nullptr ? *found->string() : std::u16string();
    }

    static std::string text(const PropertyList& value, std::u16string_view key)
    {
        return utf8FromUtf16(string(value, key));
    }

    static bool readFontSize(const PropertyList& value, Description& description)
    {
        const std::string size = text(value, u"FontSize");
        if (size.empty()) return true;
        const auto [end, error] =
            std::from_chars(size.data(), size.data() + size.size(), description.pointSize);
        return error == std::errc{} && end == size.data() + size.size() &&
               description.pointSize > 0 && description.pointSize <= largestFontSize;
    }

    static bool readAlignment(const PropertyList& value, Description& description)
    {
        const std::string name = text(value, u"Alignment");
        if (name.empty()) return true;
        const auto* known = entryNamed(alignmentNames, name);
        if (known == nullptr) return false;
        description.alignment = known->alignment;
        return true;
    }

    static bool readResizing(const PropertyList& value, Description& description)
    {
        const PropertyList* names = value.valueForKey(u"Resizing");
        if (names == nullptr) return true;
        if (names->array() == nullptr) return false;
        for (const PropertyList& name : *names->array()) {
            const auto* known = name.string() != nullptr
                                    ? entryNamed(resizingNames, utf8FromUtf16(*name.string()))
                                    : nullptr;
            if (known == nullptr) return false;
            description.resizing.*(known->part) = true;
        }
        return true;
    }

    bool readSubviews(const PropertyList& value, InterfaceItem& item)
    {
        const PropertyList* subviews = value.valueForKey(u"Subviews");
        if (subviews == nullptr) return true;
        auto read = items(subviews);
        if (!read) return false;
        item.subviews = std::move(*read);
        return true;
    }

    std::set<std::string> _names;
};

}  // namespace

std::optional<std::vector<InterfaceItem>> parseInterfaceFile(std::string_view utf8)
{
    if (!isWellFormedUtf8(utf8)) return std::nullopt;
    const auto file = parsePropertyList(utf16FromUtf8(utf8));
    if (!file) return std::nullopt;
    const PropertyList* version = file->valueForKey(u"Version");
    if (version == nullptr || version->string() == nullptr || *version->string() != fileVersion) {
        return std::nullopt;
    }
    return Reader().items(file->valueForKey(u"Views"));
}

}  // namespace vantorel
