#include "wayland/WaylandSelection.h"

#include "wayland/SelectionWays.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <string_view>
#include <utility>

namespace vantorel {
namespace {

constexpr std::chrono::seconds longestWait{2};

/// Signals are for the main thread. SIGPIPE, which would end the program, becomes an error of
/// `write`.
void blockSignals()
{
    sigset_t all;
    sigfillset(&all);
    pthread_sigmask(SIG_BLOCK, &all, nullptr);
}

bool canWrite(int file)
{
    pollfd waited{file, POLLOUT, 0};
    const auto limit = std::chrono::milliseconds(longestWait).count();
    int ready = 0;
    do {
        ready = poll(&waited, 1, static_cast<int>(limit));
    } while (ready < 0 && errno == EINTR);
    return ready > 0;
}

/// Owns the clipboard until it is lost or `end` becomes readable.
void keepSelection(int end, const std::vector<OfferedForm>& forms,
                   const std::string& activationToken, const WaylandSelection::Events& events)
{
    const auto deadline = WaylandConnection::Clock::now() + longestWait;
    WaylandConnection connection(end);
    std::unique_ptr<SelectionWay> way;
    if (connection.isOpen() && connection.waitForCompositor(deadline)) {
        way = dataControlWay(connection, forms);
        if (way == nullptr) way = focusWay(connection, forms, activationToken);
    }
    const bool isOurs = way != nullptr && way->take(deadline);
    events.settled(isOurs);
    if (!isOurs) return;
    const bool isLost = connection.waitUntil([&way] { return way->isLost(); });
    if (isLost || !connection.isOpen()) events.lost();
}

}  // namespace

void serve(const std::vector<OfferedForm>& forms, const std::string& type, int file)
{
    const auto form = std::find_if(forms.begin(), forms.end(),
                                   [&](const OfferedForm& each) { return each.type == type; });
    std::string_view rest = form != forms.end() ? form->bytes : std::string_view();
    fcntl(file, F_SETFL, O_NONBLOCK);
    while (!rest.empty() && canWrite(file)) {
        const ssize_t count = write(file, rest.data(), rest.size());
        if (count > 0) rest.remove_prefix(static_cast<std::size_t>(count));
        if (count < 0 && errno != EAGAIN && errno != EINTR) break;
    }
    close(file);
}

WaylandSelection::WaylandSelection(std::vector<OfferedForm> forms, std::string activationToken,
                                   Events events)
    : _end(eventfd(0, EFD_CLOEXEC)),
      _thread([end = _end, forms = std::move(forms), token = std::move(activationToken),
               events = std::move(events)] {
          blockSignals();
          keepSelection(end, forms, token, events);
      })
{
}

WaylandSelection::~WaylandSelection()
{
    eventfd_write(_end, 1);
    _thread.join();
    close(_end);
}

}  // namespace vantorel
