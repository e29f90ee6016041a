#include "wayland/WaylandConnection.h"

#include <poll.h>

#include <algorithm>
#include <array>
#include <cerrno>

namespace vantorel {
namespace {

/// In milliseconds, rounded up; -1 without a deadline.
int remainingTime(std::optional<WaylandConnection::Clock::time_point> deadline)
{
    if (!deadline) return -1;
    const auto left =
        std::chrono::ceil<std::chrono::milliseconds>(*deadline - WaylandConnection::Clock::now());
    return static_cast<int>(std::max<std::int64_t>(left.count(), 0));
}

}  // namespace

WaylandConnection::WaylandConnection(int end) : _end(end), _display(wl_display_connect(nullptr))
{
    if (_display == nullptr) return;
    _isOpen = true;
    _registry.reset(wl_display_get_registry(_display.get()));
    static const wl_registry_listener listener{
        [](void* data, wl_registry*, std::uint32_t name, const char* interface, std::uint32_t) {
            // Of several seats the first one counts.
            static_cast<WaylandConnection*>(data)->_globals.emplace(interface, name);
        },
        [](void*, wl_registry*, std::uint32_t) {}};
    wl_registry_add_listener(_registry.get(), &listener, this);
}

bool WaylandConnection::waitUntil(const std::function<bool()>& condition,
                                  std::optional<Clock::time_point> deadline)
{
    while (!condition()) {
        if (!handleEvents(deadline)) return false;
    }
    return true;
}

bool WaylandConnection::waitForCompositor(Clock::time_point deadline)
{
    bool isDone = false;
    const WaylandObject<wl_callback> callback(wl_display_sync(_display.get()));
    static const wl_callback_listener listener{
        [](void* data, wl_callback*, std::uint32_t) { *static_cast<bool*>(data) = true; }};
    wl_callback_add_listener(callback.get(), &listener, &isDone);
    return waitUntil([&] { return isDone; }, deadline);
}

bool WaylandConnection::handleEvents(std::optional<Clock::time_point> deadline)
{
    if (wl_display_prepare_read(_display.get()) != 0)
        return _isOpen = wl_display_dispatch_pending(_display.get()) >= 0;
    const bool isWritten = wl_display_flush(_display.get()) >= 0 || errno == EAGAIN;
    if (!isWritten || !waitForEvents(deadline)) {
        wl_display_cancel_read(_display.get());
        _isOpen = _isOpen && isWritten;
        return false;
    }
    return _isOpen = wl_display_read_events(_display.get()) >= 0 &&
                     wl_display_dispatch_pending(_display.get()) >= 0;
}

bool WaylandConnection::waitForEvents(std::optional<Clock::time_point> deadline) const
{
    std::array<pollfd, 2> files{pollfd{wl_display_get_fd(_display.get()), POLLIN, 0},
                                pollfd{_end, POLLIN, 0}};
    int ready = 0;
    do {
        ready = poll(files.data(), files.size(), remainingTime(deadline));
    } while (ready < 0 && errno == EINTR);
    return ready > 0 && files[1].revents == 0;
}

}  // namespace vantorel
