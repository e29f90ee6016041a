#pragma once

#include "shortcut/ShortcutMethod.h"

#include <cstdint>
#include <memory>

class QSocketNotifier;
struct xcb_connection_t;

namespace vantorel {

/// A key that the X server reports to us alone, whichever window has the focus.
class X11Shortcut final : public ShortcutMethod {
    Q_OBJECT

public:
    /// Connects to the display of this name; by default that of the environment.
    explicit X11Shortcut(QObject* parent = nullptr, const char* display = nullptr);
    ~X11Shortcut() override;

    void bind(const QKeySequence& keys) override;

private:
    struct Disconnect {
        void operator()(xcb_connection_t* server) const;
    };

    /// Returns the key that has the symbol; 0 if there is none.
    [[nodiscard]] std::uint8_t keyCodeOf(std::uint32_t symbol) const;
    void grab();
    void release();
    void readEvents();

    std::unique_ptr<xcb_connection_t, Disconnect> _server;
    std::uint32_t _root = 0;
    QSocketNotifier* _notifier = nullptr;
    QKeySequence _keys;
    std::uint8_t _keyCode = 0;
    std::uint16_t _modifiers = 0;
};

}  // namespace vantorel
