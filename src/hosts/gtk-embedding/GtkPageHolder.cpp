#include "hosts/gtk-embedding/GtkPageHolder.h"

#include "hosts/gtk/GtkHostBox.h"
#include "hosts/gtk/GtkTextScale.h"

#include <algorithm>
#include <cmath>

namespace vantorel {
namespace {

/// What others see to be ours.
constexpr const char* holderName = "vantorel-page";

}  // namespace

GtkPageHolder::GtkPageHolder(std::function<void()> sizeDidChange)
    : GtkMirrored({0, 0, 0, 0}, newHostBox(true)), _sizeDidChange(std::move(sizeDidChange))
{
    gtk_widget_set_name(widget(), holderName);
    setHostBoxReaction(widget(), [this](int width, int height) { takeSize(width, height); });
}

void GtkPageHolder::setLeastSize(HostSize size)
{
    setFrame({0, 0, std::max(size.width, frame().width), std::max(size.height, frame().height)});
    const auto pixels = [](double points) {
        return static_cast<int>(std::ceil(points * gtkTextScale()));
    };
    if (widget() == nullptr) return;
    gtk_widget_set_size_request(widget(), pixels(size.width), pixels(size.height));
}

void GtkPageHolder::takeSize(int width, int height)
{
    const double scale = gtkTextScale();
    const HostRect room{0, 0, width / scale, height / scale};
    if (room == frame()) return;
    setFrame(room);
    _sizeDidChange();
}

void GtkPageHolder::takeOut()
{
    GtkWidget* holder = widget();
    GtkWidget* parent = holder != nullptr ? gtk_widget_get_parent(holder) : nullptr;
    if (parent != nullptr) gtk_container_remove(GTK_CONTAINER(parent), holder);
}

}  // namespace vantorel
