#include "dialogswitch/SharedTexts.h"

#include "text/Trimming.h"

#include <algorithm>
#include <vector>

namespace vantorel {
namespace {

constexpr std::string_view settingsGroup = "[Settings]";
constexpr std::string_view modulesKey = "gtk-modules";
constexpr char moduleSeparator = ':';

std::string_view withoutBlanks(std::string_view line)
{
    return trimmed(line, [](char c) { return isBlank(c) || c == '\n' || c == '\r'; });
}

/// The lines of a text with their line feeds.
std::vector<std::string> linesOf(std::string_view text)
{
    std::vector<std::string> lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size() - 1) + 1;
        lines.emplace_back(text.substr(0, end));
        text.remove_prefix(end);
    }
    return lines;
}

std::string textOf(const std::vector<std::string>& lines)
{
    std::string text;
    for (const std::string& line : lines)
        text += line;
    return text;
}

void endLastLine(std::vector<std::string>& lines)
{
    if (!lines.empty() && !lines.back().ends_with('\n')) lines.back() += '\n';
}

using Lines = std::vector<std::string>;

/// The first line of GTK's group, after its header; the end if the group is missing.
Lines::iterator startOfSettings(Lines& lines)
{
    const auto group = std::ranges::find_if(
        lines, [](std::string_view line) { return withoutBlanks(line) == settingsGroup; });
    return group == lines.end() ? group : group + 1;
}

/// The line with the modules; the end if there is none.
Lines::iterator lineOfModules(Lines& lines)
{
    for (auto line = startOfSettings(lines); line != lines.end(); ++line) {
        const std::string_view text = withoutBlanks(*line);
        if (text.starts_with('[')) break;
        const std::size_t sign = text.find('=');
        if (sign != std::string_view::npos && withoutBlanks(text.substr(0, sign)) == modulesKey)
            return line;
    }
    return lines.end();
}

std::vector<std::string> modulesIn(std::string_view line)
{
    std::string_view value = withoutBlanks(line.substr(line.find('=') + 1));
    std::vector<std::string> modules;
    while (!value.empty()) {
        const std::size_t end = std::min(value.find(moduleSeparator), value.size());
        modules.emplace_back(value.substr(0, end));
        value.remove_prefix(std::min(end + 1, value.size()));
    }
    return modules;
}

std::string lineWith(const std::vector<std::string>& modules)
{
    std::string line = std::string(modulesKey) + '=';
    for (const std::string& module : modules) {
        if (&module != &modules.front()) line += moduleSeparator;
        line += module;
    }
    return line + '\n';
}

std::string beginMark(std::string_view title)
{
    return "# " + std::string(title) + ": begin\n";
}
std::string endMark(std::string_view title)
{
    return "# " + std::string(title) + ": end\n";
}

}  // namespace

bool hasGtkModule(std::string_view settings, std::string_view module)
{
    auto lines = linesOf(settings);
    const auto line = lineOfModules(lines);
    if (line == lines.end()) return false;
    const auto modules = modulesIn(*line);
    return std::ranges::find(modules, module) != modules.end();
}

std::string withGtkModule(std::string_view settings, std::string_view module)
{
    if (hasGtkModule(settings, module)) return std::string(settings);
    auto lines = linesOf(settings);
    if (const auto line = lineOfModules(lines); line != lines.end()) {
        auto modules = modulesIn(*line);
        modules.emplace_back(module);
        *line = lineWith(modules);
        return textOf(lines);
    }
    auto place = startOfSettings(lines);
    if (place == lines.end()) {
        endLastLine(lines);
        const bool hasGroup = !lines.empty() && withoutBlanks(lines.back()) == settingsGroup;
        if (!hasGroup) lines.emplace_back(std::string(settingsGroup) + '\n');
        place = lines.end();
    }
    lines.insert(place, lineWith({std::string(module)}));
    return textOf(lines);
}

std::string withoutGtkModule(std::string_view settings, std::string_view module)
{
    if (!hasGtkModule(settings, module)) return std::string(settings);
    auto lines = linesOf(settings);
    const auto line = lineOfModules(lines);
    auto modules = modulesIn(*line);
    std::erase(modules, module);
    if (modules.empty()) {
        lines.erase(line);
    } else {
        *line = lineWith(modules);
    }
    return textOf(lines);
}

std::string withMarkedLines(std::string_view script, std::string_view title, std::string_view lines)
{
    auto text = linesOf(withoutMarkedLines(script, title));
    endLastLine(text);
    return textOf(text) + beginMark(title) + std::string(lines) + endMark(title);
}

std::string withoutMarkedLines(std::string_view script, std::string_view title)
{
    auto lines = linesOf(script);
    const auto begin = std::ranges::find(lines, beginMark(title));
    const auto end = std::find(begin, lines.end(), endMark(title));
    // A user may have deleted a mark. The lines are then the user's own.
    if (end == lines.end()) return std::string(script);
    lines.erase(begin, end + 1);
    return textOf(lines);
}

}  // namespace vantorel
