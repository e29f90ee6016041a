#include "lsp/PanelChoices.h"

#include "hosts/posix/SystemCalls.h"

#include <sys/wait.h>

#include <algorithm>
#include <array>
#include <csignal>

namespace vantorel {
namespace {

void finish(const ServerUser::Panel& panel)
{
    ::close(panel.output);
    int status = 0;
    uninterrupted([&] { return ::waitpid(panel.process, &status, 0); });
}

}  // namespace

PanelChoices::~PanelChoices()
{
    for (const Open& open : _open) {
        ::kill(open.panel.process, SIGTERM);
        finish(open.panel);
    }
}

void PanelChoices::add(ServerUser::Panel panel, std::string uri, TextRange range)
{
    _open.push_back({panel, {std::move(uri), range, {}}});
}

void PanelChoices::replace(const std::string& uri, TextRange range, std::size_t length)
{
    for (Open& open : _open) {
        TextRange& kept = open.choice.range;
        if (open.choice.uri != uri || range.begin >= kept.end) continue;
        if (range.end > kept.begin) {
            open.isGivenUp = true;
            continue;
        }
        kept.begin = kept.begin - range.length() + length;
        kept.end = kept.end - range.length() + length;
    }
}

void PanelChoices::forget(const std::string& uri)
{
    for (Open& open : _open)
        open.isGivenUp = open.isGivenUp || open.choice.uri == uri;
}

std::vector<int> PanelChoices::outputs() const
{
    std::vector<int> outputs;
    for (const Open& open : _open)
        outputs.push_back(open.panel.output);
    return outputs;
}

std::optional<PanelChoices::Choice> PanelChoices::read(int output)
{
    const auto open =
        std::ranges::find_if(_open, [&](const Open& each) { return each.panel.output == output; });
    if (open == _open.end()) return std::nullopt;
    std::array<char, 512> buffer;  // NOLINT(cppcoreguidelines-pro-type-member-init): filled below.
    const auto count = uninterrupted([&] { return ::read(output, buffer.data(), buffer.size()); });
    constexpr std::size_t longestText = 4096;
    if (count > 0 && open->choice.text.size() < longestText) {
        open->choice.text.append(buffer.data(), static_cast<std::size_t>(count));
        return std::nullopt;
    }
    // A panel that still runs writes more than a colour, or cannot be read.
    if (count != 0) ::kill(open->panel.process, SIGTERM);
    finish(open->panel);
    Open ended = std::move(*open);
    _open.erase(open);
    return ended.isGivenUp ? std::nullopt : std::optional(std::move(ended.choice));
}

}  // namespace vantorel
