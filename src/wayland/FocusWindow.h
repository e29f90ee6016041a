#pragma once

#include "wayland/WaylandConnection.h"

#include <xdg-activation-v1-client-protocol.h>
#include <xdg-shell-client-protocol.h>

namespace vantorel {

/// A transparent window of one pixel. Compositors give the keyboard to a new window.
class FocusWindow {
public:
    explicit FocusWindow(const WaylandConnection& connection);

    /// False if the compositor does not offer windows.
    [[nodiscard]] bool isPossible() const;
    /// `activationToken` may be empty.
    void show(const std::string& activationToken);
    void close();
    [[nodiscard]] wl_surface* surface() const { return _surface.get(); }

private:
    void listen();
    void attachPixel();

    WaylandObject<wl_compositor> _compositor;
    WaylandObject<wl_shm> _memory;
    WaylandObject<xdg_wm_base> _windows;
    WaylandObject<xdg_activation_v1> _activation;
    WaylandObject<wl_buffer> _pixel;
    WaylandObject<wl_surface> _surface;
    WaylandObject<xdg_surface> _role;
    WaylandObject<xdg_toplevel> _window;
};

}  // namespace vantorel
