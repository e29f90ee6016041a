#pragma once

#include "hosts/gtk/GtkVersions.h"

#include <functional>
#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

/// Owners of what GLib counts, and signals that call C++.
namespace vantorel {

/// Owns one reference of a GObject; may be null.
template <class Object>
class GtkReference {
public:
    GtkReference() = default;
    GtkReference(GtkReference&& other) noexcept : _object(std::exchange(other._object, nullptr)) {}
    GtkReference(const GtkReference& other) : _object(other._object)
    {
        if (_object != nullptr) g_object_ref(_object);
    }
    GtkReference& operator=(GtkReference other) noexcept
    {
        std::swap(_object, other._object);
        return *this;
    }
    ~GtkReference()
    {
        if (_object != nullptr) g_object_unref(_object);
    }

    /// Takes over a reference that the caller owns.
    [[nodiscard]] static GtkReference adopt(Object* object)
    {
        GtkReference reference;
        reference._object = object;
        return reference;
    }
    /// Adds a reference, or takes over the floating one of a new object.
    [[nodiscard]] static GtkReference sink(Object* object)
    {
        if (object != nullptr) g_object_ref_sink(object);
        return adopt(object);
    }

    [[nodiscard]] Object* get() const { return _object; }
    explicit operator bool() const { return _object != nullptr; }

private:
    Object* _object = nullptr;
};

struct GFree {
    void operator()(void* memory) const { g_free(memory); }
};
using GText = std::unique_ptr<char, GFree>;

struct GdkEventFree {
    void operator()(GdkEvent* event) const { gdk_event_free(event); }
};
using GdkEventCopy = std::unique_ptr<GdkEvent, GdkEventFree>;

struct CairoDestroy {
    void operator()(cairo_t* cairo) const { cairo_destroy(cairo); }
    void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
};
using CairoContext = std::unique_ptr<cairo_t, CairoDestroy>;
using CairoSurface = std::unique_ptr<cairo_surface_t, CairoDestroy>;

/// Knows whether an object still exists and has not been destroyed by its owner.
class GtkWeakWidget {
public:
    GtkWeakWidget() = default;
    explicit GtkWeakWidget(GtkWidget* widget) : _widget(widget) { watch(); }
    GtkWeakWidget(const GtkWeakWidget& other) : GtkWeakWidget(other._widget) {}
    GtkWeakWidget& operator=(const GtkWeakWidget& other)
    {
        if (this == &other) return *this;
        forget();
        _widget = other._widget;
        watch();
        return *this;
    }
    ~GtkWeakWidget() { forget(); }

    [[nodiscard]] GtkWidget* get() const { return _widget; }

private:
    void watch()
    {
        if (_widget != nullptr) g_object_add_weak_pointer(G_OBJECT(_widget), address());
    }
    void forget()
    {
        if (_widget != nullptr) g_object_remove_weak_pointer(G_OBJECT(_widget), address());
        _widget = nullptr;
    }
    [[nodiscard]] gpointer* address() { return reinterpret_cast<gpointer*>(&_widget); }

    GtkWidget* _widget = nullptr;
};

/// Calls the reaction to failures.
void reportGtkFailure() noexcept;

/// Sets what happens after a reaction to an event has thrown.
void setGtkFailureReaction(std::function<void()> reaction);

/// Calls a function from C code, through which no exception may pass. Returns `Returned()` if it
/// throws.
template <class Function, class... Arguments>
auto callFromC(const Function& function, Arguments... arguments) noexcept
    -> std::invoke_result_t<Function, Arguments...>
{
    using Returned = std::invoke_result_t<Function, Arguments...>;
    try {
        return function(arguments...);
    } catch (...) {
        reportGtkFailure();
        return Returned();
    }
}

/// Connections to signals, which end with this object. The reactions are called by `callFromC`.
class GtkConnections {
public:
    GtkConnections() = default;
    GtkConnections(const GtkConnections&) = delete;
    GtkConnections& operator=(const GtkConnections&) = delete;
    ~GtkConnections() { clear(); }

    /// `Arguments` are those of the signal, after its sender.
    template <class Returned, class... Arguments>
    gulong connect(gpointer sender, const char* signal,
                   std::type_identity_t<std::function<Returned(Arguments...)>> reaction,
                   bool after = false)
    {
        using Reaction = std::function<Returned(Arguments...)>;
        // GTK's truth values are integers.
        using ReturnedToC = std::conditional_t<std::is_same_v<Returned, bool>, gboolean, Returned>;
        using Handler = ReturnedToC (*)(gpointer, Arguments..., gpointer);
        const Handler handler = [](gpointer, Arguments... arguments, gpointer data) -> ReturnedToC {
            return callFromC(*static_cast<Reaction*>(data), arguments...);
        };
        const GClosureNotify destroy = [](gpointer data, GClosure*) {
            delete static_cast<Reaction*>(data);
        };
        const auto flags = after ? G_CONNECT_AFTER : static_cast<GConnectFlags>(0);
        const gulong id =
            g_signal_connect_data(sender, signal, reinterpret_cast<GCallback>(handler),
                                  new Reaction(std::move(reaction)), destroy, flags);
        _connections.push_back({sender, id});
        g_object_weak_ref(G_OBJECT(sender), senderIsGone, this);
        return id;
    }

    /// Calls `paint` when a widget is to be painted. The context's origin is the widget's corner,
    /// and it clips to what must be painted.
    void connectPaint(GtkWidget* widget, std::function<void(cairo_t*)> paint)
    {
#if GTK_MAJOR_VERSION >= 3
        connect<bool, cairo_t*>(widget, "draw", [paint = std::move(paint)](cairo_t* cairo) {
            paint(cairo);
            return false;
        });
#else
        connect<bool, GdkEventExpose*>(
            widget, "expose-event", [widget, paint = std::move(paint)](GdkEventExpose* event) {
                const CairoContext cairo(gdk_cairo_create(event->window));
                gdk_cairo_region(cairo.get(), event->region);
                cairo_clip(cairo.get());
                if (!gtk_widget_get_has_window(widget)) {
                    GtkAllocation place;
                    gtk_widget_get_allocation(widget, &place);
                    cairo_translate(cairo.get(), place.x, place.y);
                    cairo_rectangle(cairo.get(), 0, 0, place.width, place.height);
                    cairo_clip(cairo.get());
                }
                paint(cairo.get());
                return false;
            });
#endif
    }

    void clear()
    {
        for (const Connection& connection : std::exchange(_connections, {})) {
            g_object_weak_unref(G_OBJECT(connection.sender), senderIsGone, this);
            if (g_signal_handler_is_connected(connection.sender, connection.id)) {
                g_signal_handler_disconnect(connection.sender, connection.id);
            }
        }
    }

private:
    struct Connection {
        gpointer sender;
        gulong id;
    };

    static void senderIsGone(gpointer self, GObject* sender)
    {
        // Called once for each connection to the sender, and each takes one out.
        auto& connections = static_cast<GtkConnections*>(self)->_connections;
        for (auto connection = connections.begin(); connection != connections.end(); ++connection) {
            if (connection->sender != sender) continue;
            connections.erase(connection);
            return;
        }
    }

    std::vector<Connection> _connections;
};

/// A function that GLib calls once, later, unless this object is destroyed or set anew before.
class GtkDeferral {
public:
    GtkDeferral() = default;
    GtkDeferral(const GtkDeferral&) = delete;
    GtkDeferral& operator=(const GtkDeferral&) = delete;
    ~GtkDeferral() { cancel(); }

    /// As soon as GTK is done with what it does, before any further event.
    void callSoon(std::function<void()> function)
    {
        start(g_idle_source_new(), G_PRIORITY_HIGH, std::move(function));
    }
    void callAfter(unsigned milliseconds, std::function<void()> function)
    {
        start(g_timeout_source_new(milliseconds), G_PRIORITY_DEFAULT, std::move(function));
    }
    [[nodiscard]] bool isPending() const { return _id != 0; }
    void cancel()
    {
        if (_id != 0) g_source_remove(std::exchange(_id, 0));
    }

private:
    void start(GSource* source, int priority, std::function<void()> function)
    {
        cancel();
        struct Call {
            GtkDeferral* owner;
            std::function<void()> function;
        };
        g_source_set_priority(source, priority);
        g_source_set_callback(
            source,
            [](gpointer data) {
                auto* call = static_cast<Call*>(data);
                call->owner->_id = 0;
                const auto called = std::move(call->function);
                callFromC(called);
                return static_cast<gboolean>(G_SOURCE_REMOVE);
            },
            new Call{this, std::move(function)},
            [](gpointer data) { delete static_cast<Call*>(data); });
        _id = g_source_attach(source, nullptr);
        g_source_unref(source);
    }

    guint _id = 0;
};

}  // namespace vantorel
