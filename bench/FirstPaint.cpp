#include <xcb/xcb.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <memory>
#include <vector>

/// Tells when the next window on an X display has been painted: prints "ready", waits, and prints
/// CLOCK_MONOTONIC in nanoseconds. It looks from outside, so that every program is measured alike.
///
/// The display must have a black root and no window manager. A window that is shown has the root's
/// pixels until its program paints it.
namespace {

/// Icons, owners of selections and the like are smaller.
constexpr std::uint16_t leastEdge = 50;

template <class Type>
using Reply = std::unique_ptr<Type, decltype(&std::free)>;

template <class Type>
Reply<Type> owned(Type* reply)
{
    return {reply, &std::free};
}

/// Whether anything but black is on the lines down the middle and across it.
bool isPainted(xcb_connection_t* x, xcb_window_t window, std::uint16_t width, std::uint16_t height)
{
    const auto middle = [](std::uint16_t edge) { return static_cast<std::int16_t>(edge / 2); };
    const auto lit = [&](std::int16_t left, std::int16_t top, std::uint16_t across,
                         std::uint16_t down) {
        const auto cookie =
            xcb_get_image(x, XCB_IMAGE_FORMAT_Z_PIXMAP, window, left, top, across, down, 0xFFFFFF);
        const auto image = owned(xcb_get_image_reply(x, cookie, nullptr));
        if (!image) return false;
        const std::uint8_t* bytes = xcb_get_image_data(image.get());
        for (int i = 0; i < xcb_get_image_data_length(image.get()); ++i) {
            // The fourth byte of a pixel is not part of the colour.
            if (i % 4 != 3 && bytes[i] != 0) return true;
        }
        return false;
    };
    return lit(middle(width), 0, 1, height) || lit(0, middle(height), width, 1);
}

}  // namespace

int main()
{
    xcb_connection_t* x = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(x) != 0) {
        (void)std::fputs("first-paint: there is no X display\n", stderr);
        return 1;
    }
    const xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(x)).data;
    const std::uint32_t events = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(x, screen->root, XCB_CW_EVENT_MASK, &events);
    owned(xcb_get_input_focus_reply(x, xcb_get_input_focus(x), nullptr));
    std::puts("ready");
    (void)std::fflush(stdout);
    while (const auto event = owned(xcb_wait_for_event(x))) {
        if ((event->response_type & 0x7F) != XCB_MAP_NOTIFY) continue;
        const auto window = reinterpret_cast<const xcb_map_notify_event_t*>(event.get())->window;
        const auto place = owned(xcb_get_geometry_reply(x, xcb_get_geometry(x, window), nullptr));
        if (!place || place->width < leastEdge || place->height < leastEdge) continue;
        while (!isPainted(x, window, place->width, place->height)) {
            const timespec pause{0, 200'000};
            ::nanosleep(&pause, nullptr);
        }
        timespec now{};
        ::clock_gettime(CLOCK_MONOTONIC, &now);
        std::printf("%lld\n", static_cast<long long>(now.tv_sec) * 1'000'000'000 + now.tv_nsec);
        return 0;
    }
    return 1;
}
