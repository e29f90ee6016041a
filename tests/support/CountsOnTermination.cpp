/// Writes coverage counters when a signal ends the panel, as tests on a real window do. Without
/// this they are written only on a normal exit.
#include <unistd.h>
#include <csignal>
#include <cstdlib>

extern "C" void __gcov_dump();

namespace {

void writeCountsAndEnd(int signal)
{
    __gcov_dump();
    ::_exit(128 + signal);
}

/// While counts are being written at the end of the program, a signal would cut the file short.
void ignoreTermination()
{
    std::signal(SIGTERM, SIG_IGN);
}

[[maybe_unused]] const bool installed = [] {
    return std::atexit(ignoreTermination) == 0 &&
           std::signal(SIGTERM, writeCountsAndEnd) != SIG_ERR;
}();

}  // namespace
