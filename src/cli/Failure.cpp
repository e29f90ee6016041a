#include "cli/Failure.h"

#include "commandline/Translations.h"

#include <unistd.h>

#include <string>

namespace vantorel {

void reportError(const Message& message)
{
    const std::string line = "vantorel: " + inUsersWords(message) + '\n';
    // If standard error is closed, there is no way to report it.
    [[maybe_unused]] const auto written = ::write(STDERR_FILENO, line.data(), line.size());
}

}  // namespace vantorel
