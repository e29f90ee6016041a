#include "cli/RunningPanel.h"

#include "cli/Failure.h"
#include "panelcalls/PanelCaller.h"

namespace vantorel {
namespace {

using Kind = PanelReply::Kind;

// As the panel's program ends.
constexpr int cancelledStatus = 1;
constexpr int notPossibleStatus = 3;

constexpr std::string_view colorOption = "--color";

/// Returns the colour that the arguments name, empty if there are none, or `std::nullopt` if they
/// ask for something else.
std::optional<std::string> colorOfArguments(const std::vector<std::string>& arguments)
{
    if (arguments.empty()) return std::string();
    const std::string& first = arguments.front();
    if (arguments.back().empty()) return std::nullopt;
    if (arguments.size() == 2 && first == colorOption) return arguments.back();
    if (arguments.size() != 1) return std::nullopt;
    if (first.starts_with(colorOption) && first.size() > colorOption.size() + 1 &&
        first[colorOption.size()] == '=') {
        return first.substr(colorOption.size() + 1);
    }
    if (first.front() == '-') return std::nullopt;
    return first;
}

/// The sentence's full stop is added again when it is shown.
Message messageOfSentence(std::string sentence)
{
    if (sentence.ends_with('.')) sentence.pop_back();
    return {verbatim(sentence)};
}

}  // namespace

bool showRunningPanel(const std::vector<std::string>& arguments)
{
    const auto color = colorOfArguments(arguments);
    if (!color) return false;
    auto panel = PanelCaller::find();
    if (!panel) return false;
    if (!color->empty() && panel->setColor(*color).kind != Kind::done) return false;
    return panel->show().kind == Kind::done;
}

std::optional<int> pickWithRunningPanel(Output& output, bool copies)
{
    auto panel = PanelCaller::find();
    if (!panel) return std::nullopt;
    const PanelReply picked = panel->pick();
    switch (picked.kind) {
        case Kind::noAnswer:
            return std::nullopt;
        case Kind::cancelled:
            reportError(messageOfSentence(picked.text));
            return cancelledStatus;
        case Kind::notPossible:
            reportError(messageOfSentence(picked.text));
            return notPossibleStatus;
        case Kind::done:
            break;
    }
    // Before it is copied, which may fail.
    output.write(picked.text);
    output.write('\n');
    output.flush();
    if (!copies) return 0;
    const PanelReply copied = panel->copy();
    if (copied.kind == Kind::done) return 0;
    reportError(copied.kind == Kind::notPossible
                    ? messageOfSentence(copied.text)
                    : Message{phrase("the panel did not answer, and may not have copied the "
                                     "colour")});
    return notPossibleStatus;
}

}  // namespace vantorel
