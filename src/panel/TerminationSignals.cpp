#include "panel/TerminationSignals.h"

#include <QSocketNotifier>

#include <cerrno>

#include <fcntl.h>
#include <unistd.h>

namespace vantorel {
namespace {

/// The only thing that the handler may use; it does nothing but write one byte.
volatile sig_atomic_t pipeOfHandler = -1;

void passOn(int signal)
{
    const int error = errno;
    const auto byte = static_cast<unsigned char>(signal);
    // The pipe is full only if nobody reads it, and then a byte is in it already.
    [[maybe_unused]] const ssize_t count = ::write(pipeOfHandler, &byte, 1);
    errno = error;
}

}  // namespace

TerminationSignals::TerminationSignals()
{
    std::array<int, 2> ends{-1, -1};
    // Without a pipe the signals end the program at once, as they do without this object.
    if (::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;
    _readEnd = ends[0];
    _writeEnd = ends[1];
    pipeOfHandler = _writeEnd;
    auto* notifier = new QSocketNotifier(_readEnd, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, &TerminationSignals::takeSignal);

    struct sigaction action {};
    action.sa_handler = passOn;
    action.sa_flags = static_cast<int>(SA_RESTART | SA_RESETHAND);
    sigemptyset(&action.sa_mask);
    for (std::size_t i = 0; i < handled.size(); ++i) {
        ::sigaction(handled[i], nullptr, &_usual[i]);
        if (_usual[i].sa_handler != SIG_IGN) ::sigaction(handled[i], &action, nullptr);
    }
}

TerminationSignals::~TerminationSignals()
{
    if (_readEnd < 0) return;
    takeSignal();
    for (std::size_t i = 0; i < handled.size(); ++i)
        ::sigaction(handled[i], &_usual[i], nullptr);
    pipeOfHandler = -1;
    ::close(_readEnd);
    ::close(_writeEnd);
    if (_signal != 0) static_cast<void>(::raise(_signal));
}

void TerminationSignals::takeSignal()
{
    unsigned char byte = 0;
    while (::read(_readEnd, &byte, 1) == 1) {
        _signal = byte;
        emit received();
    }
}

}  // namespace vantorel
