#include "wayland/FocusWindow.h"

#include <sys/mman.h>
#include <unistd.h>

namespace vantorel {

FocusWindow::FocusWindow(const WaylandConnection& connection)
    : _compositor(connection.bind<wl_compositor>(wl_compositor_interface)),
      _memory(connection.bind<wl_shm>(wl_shm_interface)),
      _windows(connection.bind<xdg_wm_base>(xdg_wm_base_interface)),
      _activation(connection.bind<xdg_activation_v1>(xdg_activation_v1_interface))
{
}

bool FocusWindow::isPossible() const
{
    return _compositor != nullptr && _memory != nullptr && _windows != nullptr;
}

void FocusWindow::show(const std::string& activationToken)
{
    _surface.reset(wl_compositor_create_surface(_compositor.get()));
    _role.reset(xdg_wm_base_get_xdg_surface(_windows.get(), _surface.get()));
    _window.reset(xdg_surface_get_toplevel(_role.get()));
    listen();
    xdg_toplevel_set_app_id(_window.get(), "org.vantorel.ColorPanel");
    xdg_toplevel_set_title(_window.get(), "Vantorel");
    if (_activation != nullptr && !activationToken.empty())
        xdg_activation_v1_activate(_activation.get(), activationToken.c_str(), _surface.get());
    // The first commit has no contents; the compositor answers with the event "configure".
    wl_surface_commit(_surface.get());
}

void FocusWindow::listen()
{
    static const xdg_wm_base_listener windowsListener{
        [](void*, xdg_wm_base* windows, std::uint32_t serial) {
            xdg_wm_base_pong(windows, serial);
        }};
    xdg_wm_base_add_listener(_windows.get(), &windowsListener, this);
    static const xdg_surface_listener roleListener{
        [](void* data, xdg_surface* role, std::uint32_t serial) {
            xdg_surface_ack_configure(role, serial);
            static_cast<FocusWindow*>(data)->attachPixel();
        }};
    xdg_surface_add_listener(_role.get(), &roleListener, this);
}

void FocusWindow::attachPixel()
{
    if (_pixel == nullptr) {
        constexpr std::int32_t bytes = 4;
        // A new file is filled with zeros, which is transparent.
        const int file = memfd_create("pixel", MFD_CLOEXEC);
        if (file < 0 || ftruncate(file, bytes) != 0) {
            if (file >= 0) ::close(file);
            return;
        }
        const WaylandObject<wl_shm_pool> pool(wl_shm_create_pool(_memory.get(), file, bytes));
        _pixel.reset(wl_shm_pool_create_buffer(pool.get(), 0, 1, 1, bytes, WL_SHM_FORMAT_ARGB8888));
        ::close(file);
    }
    wl_surface_attach(_surface.get(), _pixel.get(), 0, 0);
    wl_surface_commit(_surface.get());
}

void FocusWindow::close()
{
    _window.reset();
    _role.reset();
    _surface.reset();
}

}  // namespace vantorel
