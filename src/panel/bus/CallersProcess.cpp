#include "panel/bus/CallersProcess.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <initializer_list>

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace vantorel {
namespace {

constexpr int failure = 1;
constexpr int signalBase = 128;

[[noreturn]] void waitFor(pid_t child, int pipe)
{
    unsigned char status = 0;
    ssize_t count = 0;
    do {
        count = read(pipe, &status, 1);
    } while (count < 0 && errno == EINTR);
    if (count == 1) _exit(status);
    // It has exited without reporting a status.
    int ended = 0;
    while (waitpid(child, &ended, 0) < 0 && errno == EINTR) {
    }
    if (WIFEXITED(ended)) _exit(WEXITSTATUS(ended));
    _exit(WIFSIGNALED(ended) ? signalBase + WTERMSIG(ended) : failure);
}

}  // namespace

CallersProcess::CallersProcess()
{
    int ends[2] = {-1, -1};
    if (pipe2(ends, O_CLOEXEC) != 0) return;
    const pid_t parent = getpid();
    const pid_t child = fork();
    if (child > 0) {
        close(ends[1]);
        waitFor(child, ends[0]);
    }
    close(ends[0]);
    if (child < 0) {
        close(ends[1]);
        return;
    }
    _pipe = ends[1];
    prctl(PR_SET_PDEATHSIG, SIGTERM);
    if (getppid() != parent) std::exit(failure);  // it was quicker
}

CallersProcess::~CallersProcess()
{
    if (_pipe >= 0) close(_pipe);
}

void CallersProcess::release(int status)
{
    if (_pipe < 0) return;
    prctl(PR_SET_PDEATHSIG, 0);
    setsid();
    // Nobody may read the program's output from here on.
    static_cast<void>(signal(SIGPIPE, SIG_IGN));
    [[maybe_unused]] const int moved = chdir("/");
    // Before reporting the status, so that the caller gets all of the output.
    const int nowhere = open("/dev/null", O_RDWR | O_CLOEXEC);
    for (int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        dup2(nowhere, stream);
    close(nowhere);
    const auto word = static_cast<unsigned char>(status);
    while (write(_pipe, &word, 1) < 0 && errno == EINTR) {
    }
    close(_pipe);
    _pipe = -1;
}

}  // namespace vantorel
