#include "wayland/WaylandObject.h"

#include <ext-data-control-v1-client-protocol.h>
#include <wayland-client.h>
#include <xdg-activation-v1-client-protocol.h>
#include <xdg-shell-client-protocol.h>

namespace vantorel {

void WaylandDeleter::operator()(wl_buffer* object) const
{
    wl_buffer_destroy(object);
}

void WaylandDeleter::operator()(wl_callback* object) const
{
    wl_callback_destroy(object);
}

void WaylandDeleter::operator()(wl_compositor* object) const
{
    wl_compositor_destroy(object);
}

void WaylandDeleter::operator()(wl_data_device* object) const
{
    wl_data_device_destroy(object);
}

void WaylandDeleter::operator()(wl_data_device_manager* object) const
{
    wl_data_device_manager_destroy(object);
}

void WaylandDeleter::operator()(wl_data_source* object) const
{
    wl_data_source_destroy(object);
}

void WaylandDeleter::operator()(wl_display* object) const
{
    wl_display_disconnect(object);
}

void WaylandDeleter::operator()(wl_keyboard* object) const
{
    wl_keyboard_destroy(object);
}

void WaylandDeleter::operator()(wl_registry* object) const
{
    wl_registry_destroy(object);
}

void WaylandDeleter::operator()(wl_seat* object) const
{
    wl_seat_destroy(object);
}

void WaylandDeleter::operator()(wl_shm* object) const
{
    wl_shm_destroy(object);
}

void WaylandDeleter::operator()(wl_shm_pool* object) const
{
    wl_shm_pool_destroy(object);
}

void WaylandDeleter::operator()(wl_surface* object) const
{
    wl_surface_destroy(object);
}

void WaylandDeleter::operator()(ext_data_control_device_v1* object) const
{
    ext_data_control_device_v1_destroy(object);
}

void WaylandDeleter::operator()(ext_data_control_manager_v1* object) const
{
    ext_data_control_manager_v1_destroy(object);
}

void WaylandDeleter::operator()(ext_data_control_source_v1* object) const
{
    ext_data_control_source_v1_destroy(object);
}

void WaylandDeleter::operator()(xdg_activation_token_v1* object) const
{
    xdg_activation_token_v1_destroy(object);
}

void WaylandDeleter::operator()(xdg_activation_v1* object) const
{
    xdg_activation_v1_destroy(object);
}

void WaylandDeleter::operator()(xdg_surface* object) const
{
    xdg_surface_destroy(object);
}

void WaylandDeleter::operator()(xdg_toplevel* object) const
{
    xdg_toplevel_destroy(object);
}

void WaylandDeleter::operator()(xdg_wm_base* object) const
{
    xdg_wm_base_destroy(object);
}

}  // namespace vantorel
