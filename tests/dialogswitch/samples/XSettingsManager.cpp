#include <X11/Xatom.h>
#include <X11/Xlib.h>

#include <unistd.h>
#include <cstdio>
#include <string>

/// A desktop of somebody else that sets GTK's modules (XSETTINGS of freedesktop). Prints "ready",
/// and runs until it is killed.
int main()
{
    Display* display = XOpenDisplay(nullptr);
    if (display == nullptr) return 1;
    const Window window =
        XCreateSimpleWindow(display, DefaultRootWindow(display), 0, 0, 1, 1, 0, 0, 0);
    const Atom settings = XInternAtom(display, "_XSETTINGS_SETTINGS", False);
    // Little-endian, serial number 0, one setting: a text.
    const std::string bytes(
        "\0\0\0\0\0\0\0\0\1\0\0\0"
        "\1\0\13\0Gtk/Modules\0\0\0\0\0\4\0\0\0none",
        12 + 4 + 12 + 4 + 4 + 4);
    XChangeProperty(display, window, settings, settings, 8, PropModeReplace,
                    reinterpret_cast<const unsigned char*>(bytes.data()),
                    static_cast<int>(bytes.size()));
    XSetSelectionOwner(display, XInternAtom(display, "_XSETTINGS_S0", False), window, CurrentTime);
    XSync(display, False);
    std::puts("ready");
    std::fflush(stdout);
    ::pause();
}
