#pragma once

#include <memory>

struct wl_buffer;
struct wl_callback;
struct wl_compositor;
struct wl_data_device;
struct wl_data_device_manager;
struct wl_data_source;
struct wl_display;
struct wl_keyboard;
struct wl_registry;
struct wl_seat;
struct wl_shm;
struct wl_shm_pool;
struct wl_surface;
struct ext_data_control_device_v1;
struct ext_data_control_manager_v1;
struct ext_data_control_source_v1;
struct xdg_activation_token_v1;
struct xdg_activation_v1;
struct xdg_surface;
struct xdg_toplevel;
struct xdg_wm_base;

namespace vantorel {

/// Destroys objects of the protocols. An object must be destroyed before its connection.
struct WaylandDeleter {
    void operator()(wl_buffer* object) const;
    void operator()(wl_callback* object) const;
    void operator()(wl_compositor* object) const;
    void operator()(wl_data_device* object) const;
    void operator()(wl_data_device_manager* object) const;
    void operator()(wl_data_source* object) const;
    void operator()(wl_display* object) const;
    void operator()(wl_keyboard* object) const;
    void operator()(wl_registry* object) const;
    void operator()(wl_seat* object) const;
    void operator()(wl_shm* object) const;
    void operator()(wl_shm_pool* object) const;
    void operator()(wl_surface* object) const;
    void operator()(ext_data_control_device_v1* object) const;
    void operator()(ext_data_control_manager_v1* object) const;
    void operator()(ext_data_control_source_v1* object) const;
    void operator()(xdg_activation_token_v1* object) const;
    void operator()(xdg_activation_v1* object) const;
    void operator()(xdg_surface* object) const;
    void operator()(xdg_toplevel* object) const;
    void operator()(xdg_wm_base* object) const;
};

template <typename T>
using WaylandObject = std::unique_ptr<T, WaylandDeleter>;

}  // namespace vantorel
