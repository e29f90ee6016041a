#include "hosts/gtk/GtkHostEvents.h"

#include "hosts/gtk/GtkTexts.h"

#include <gdk/gdkkeysyms.h>

#include <array>
#include <utility>

namespace vantorel {
namespace {

std::optional<HostKey> hostKeyOf(guint key)
{
    switch (key) {
        case GDK_KEY_Left:
        case GDK_KEY_KP_Left:
            return HostKey::left;
        case GDK_KEY_Right:
        case GDK_KEY_KP_Right:
            return HostKey::right;
        case GDK_KEY_Up:
        case GDK_KEY_KP_Up:
            return HostKey::up;
        case GDK_KEY_Down:
        case GDK_KEY_KP_Down:
            return HostKey::down;
        case GDK_KEY_Home:
        case GDK_KEY_KP_Home:
            return HostKey::home;
        case GDK_KEY_End:
        case GDK_KEY_KP_End:
            return HostKey::end;
        case GDK_KEY_Page_Up:
        case GDK_KEY_KP_Page_Up:
            return HostKey::pageUp;
        case GDK_KEY_Page_Down:
        case GDK_KEY_KP_Page_Down:
            return HostKey::pageDown;
        case GDK_KEY_space:
        case GDK_KEY_KP_Space:
            return HostKey::pick;
        default:
            return isReturn(key) ? std::optional(HostKey::pick) : std::nullopt;
    }
}

constexpr guint controlAside = GDK_MOD1_MASK | GDK_SUPER_MASK | GDK_META_MASK;
constexpr guint shortcutModifiers = GDK_CONTROL_MASK | controlAside;

}  // namespace

std::uint64_t modifierFlagsOf(guint state)
{
    std::uint64_t flags = 0;
    if ((state & GDK_SHIFT_MASK) != 0) flags |= shiftModifierFlag;
    if ((state & GDK_CONTROL_MASK) != 0) flags |= controlModifierFlag;
    if ((state & GDK_MOD1_MASK) != 0) flags |= alternateModifierFlag;
    if ((state & GDK_SUPER_MASK) != 0) flags |= commandModifierFlag;
    return flags;
}

std::optional<HostKeyEvent> hostKeyEventOf(const GdkEventKey& event, bool withControl)
{
    const auto key = hostKeyOf(event.keyval);
    const guint ofShortcuts = withControl ? controlAside : shortcutModifiers;
    if (!key || (event.state & ofShortcuts) != 0) return std::nullopt;
    return HostKeyEvent{*key, modifierFlagsOf(event.state)};
}

double turnOf(const GdkEventScroll& event)
{
#if GTK_MAJOR_VERSION >= 3
    if (event.direction == GDK_SCROLL_SMOOTH) return -event.delta_y;
#endif
    if (event.direction == GDK_SCROLL_UP) return 1;
    return event.direction == GDK_SCROLL_DOWN ? -1 : 0;
}

bool isReturn(guint key)
{
    return key == GDK_KEY_Return || key == GDK_KEY_KP_Enter || key == GDK_KEY_ISO_Enter;
}

std::u16string typedTextOf(const GdkEventKey& event)
{
    const gunichar character = gdk_keyval_to_unicode(event.keyval);
    if ((event.state & shortcutModifiers) != 0 || !g_unichar_isprint(character)) return {};
    std::array<char, 8> bytes{};
    g_unichar_to_utf8(character, bytes.data());
    return coreText(bytes.data());
}

void GtkNestedLoop::run()
{
    _running = g_main_loop_new(nullptr, FALSE);
    // As gtk_dialog_run does, for programs that use GTK from several threads.
    gdk_threads_leave();
    g_main_loop_run(_running);
    gdk_threads_enter();
    g_main_loop_unref(std::exchange(_running, nullptr));
}

void GtkNestedLoop::end()
{
    if (_running != nullptr) g_main_loop_quit(_running);
}

}  // namespace vantorel
