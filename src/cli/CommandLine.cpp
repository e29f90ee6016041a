#include "cli/CommandLine.h"

namespace vantorel {
namespace {

/// Returns true if the first option is given, false if the second is, and `std::nullopt` if neither
/// is.
std::optional<bool> eitherOf(const GivenArguments& given, std::string_view yes, std::string_view no)
{
    if (given.has(yes)) return true;
    return given.has(no) ? std::optional(false) : std::nullopt;
}

}  // namespace

CommandLine::CommandLine(GivenArguments given)
    : operands(std::move(given.operands)),
      listName(given.value("--list")),
      snippetName(given.value("--snippet")),
      newName(given.value("--name")),
      format(given.value("--format")),
      form(given.value("--to")),
      output(given.value("--output")),
      svg(given.value("--svg")),
      png(given.value("--png")),
      size(given.value("--size")),
      rings(given.value("--rings")),
      theme(given.value("--theme")),
      space(given.value("--in")),
      hueArc(given.value("--hue")),
      fraction(given.value("--fraction")),
      number(given.value("--number")),
      kind(given.value("--kind")),
      sortedBy(given.value("--by")),
      failOn(given.value("--fail-on")),
      lowercase(eitherOf(given, "--lowercase", "--uppercase")),
      poundSign(eitherOf(given, "--pound-sign", "--no-pound-sign")),
      reversed(given.has("--reverse")),
      json(given.has("--json")),
      names(given.has("--names")),
      yes(given.has("--yes")),
      undo(given.has("--undo")),
      copy(given.has("--copy")),
      panel(given.has("--panel")),
      on(given.has("--on")),
      off(given.has("--off"))
{
}

}  // namespace vantorel
