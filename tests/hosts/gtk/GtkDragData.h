#pragma once

#include "host/HostPasteboard.h"
#include "hosts/gtk/GtkReferences.h"

#include <array>
#include <cstring>
#include <memory>
#include <optional>

/// What a drag out of a widget carries, read as the target of a drop reads it.
namespace vantorel {

struct SelectionDataFree {
    void operator()(GtkSelectionData* data) const { gtk_selection_data_free(data); }
};
using SelectionData = std::unique_ptr<GtkSelectionData, SelectionDataFree>;

/// Null if the drag does not offer that type.
[[nodiscard]] inline SelectionData dataOfDrag(GtkWidget* source, GdkDragContext* drag,
                                              const char* type)
{
    GdkAtom target = gdk_atom_intern(type, FALSE);
#if GTK_MAJOR_VERSION >= 3
    static_cast<void>(source);
    GtkClipboard* selection = gtk_clipboard_get(gdk_drag_get_selection(drag));
    return SelectionData(gtk_clipboard_wait_for_contents(selection, target));
#else
    // GTK 2 serves the selection only when there is a target below the pointer.
    GList* offered = gdk_drag_context_list_targets(drag);
    if (g_list_find(offered, GDK_ATOM_TO_POINTER(target)) == nullptr) return nullptr;
    GtkSelectionData empty{};
    empty.target = target;
    empty.display = gtk_widget_get_display(source);
    SelectionData data(gtk_selection_data_copy(&empty));
    g_signal_emit_by_name(source, "drag-data-get", drag, data.get(), 0, 0);
    return data;
#endif
}

/// The text or the colour that a drag carries.
[[nodiscard]] inline std::optional<HostPasteboardItem> dataOfDrag(GtkWidget* source,
                                                                  GdkDragContext* drag)
{
    if (const SelectionData data = dataOfDrag(source, drag, "UTF8_STRING")) {
        const GText text(reinterpret_cast<char*>(gtk_selection_data_get_text(data.get())));
        if (text != nullptr) return std::string(text.get());
    }
    const SelectionData data = dataOfDrag(source, drag, "application/x-color");
    std::array<guint16, 4> words{};
    constexpr int size = sizeof words;
    if (data == nullptr || gtk_selection_data_get_length(data.get()) != size) return std::nullopt;
    std::memcpy(words.data(), gtk_selection_data_get_data(data.get()), sizeof words);
    constexpr double most = 65535;
    return HostColor::colorWithCalibratedRed(words[0] / most, words[1] / most, words[2] / most,
                                             words[3] / most);
}

}  // namespace vantorel
