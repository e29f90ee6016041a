/// Tests on a real window end the panel by a signal, after which counters of coverage would be
/// lost: they are written when a program ends by itself.
#include <unistd.h>
#include <csignal>

extern "C" void __gcov_dump();

namespace {

void writeCountsAndEnd(int signal)
{
    __gcov_dump();
    ::_exit(128 + signal);
}

[[maybe_unused]] const bool installed = [] {
    return std::signal(SIGTERM, writeCountsAndEnd) != SIG_ERR;
}();

}  // namespace
