#pragma once

#include "host/HostControls.h"

namespace vantorel {

/// The background of the settings face.
class QTXHexSettingsView final : public HostViewContent {
public:
    /// Attaches the desktop's native view, or detaches it if null. Detach the view before it is
    /// destroyed.
    void attachToView(HostCustomView* view);
    [[nodiscard]] HostCustomView* view() const { return _view; }

    void drawRect(HostCanvas& canvas) override;

private:
    HostCustomView* _view = nullptr;
    HostBezierPath __bPth;
};

}  // namespace vantorel
