#include "cli/Failure.h"

#include "result/HarmlessLine.h"

#include <unistd.h>

namespace vantorel {

void complain(std::string_view what, std::string_view right)
{
    std::string line = "vantorel: " + harmlessLine(what);
    if (!right.empty()) line.append(": ").append(harmlessLine(right));
    line += '\n';
    // There is nowhere to tell that standard error is closed.
    [[maybe_unused]] const auto written = ::write(STDERR_FILENO, line.data(), line.size());
}

Complaint complaintFromSentence(std::string_view sentence)
{
    if (sentence.ends_with('.')) sentence.remove_suffix(1);
    bool isQuoted = false;
    for (std::size_t i = 0; i < sentence.size(); ++i) {
        if (sentence[i] == '"') isQuoted = !isQuoted;
        if (isQuoted || !sentence.substr(i).starts_with("; ")) continue;
        return {std::string(sentence.substr(0, i)), std::string(sentence.substr(i + 2))};
    }
    return {std::string(sentence), {}};
}

}  // namespace vantorel
