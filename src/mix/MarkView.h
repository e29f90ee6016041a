#pragma once

#include "host/HostControls.h"
#include "host/HostInterfaceFactory.h"

#include <memory>
#include <string>

namespace vantorel {

/// Is notified of drags of a mark.
class MarkDragListener {
public:
    virtual ~MarkDragListener() = default;
    /// A drag of the mouse begins or ends. Its steps lie between.
    virtual void dragDidBegin() = 0;
    virtual void dragDidEnd() = 0;
};

/// A view with a mark among colours. The mark is dragged with the mouse and moved by keys.
class MarkView : public HostViewContent {
public:
    void makeView(HostInterfaceFactory& factory, const std::string& identifier);
    [[nodiscard]] HostCustomView& view() const { return *_view; }

    void mouseDown(const HostEvent& event) final;
    void mouseDragged(const HostEvent& event) final;
    void mouseUp(const HostEvent& event) final;
    [[nodiscard]] bool takesKeys() const final { return true; }
    [[nodiscard]] bool takesControlKeys() const final { return true; }
    /// Leaves keys with Ctrl to the panel, which has shortcuts with them, except the arrows.
    bool keyDown(const HostKeyEvent& event) final;

protected:
    /// `listener` must outlive the view.
    explicit MarkView(MarkDragListener& listener) : _listener(listener) {}

    /// Moves the mark to a place in the view, or as near as it gets.
    virtual void moveMarkTo(HostPoint at) = 0;
    /// Moves the mark by a key. Returns false if the key moves nothing.
    virtual bool moveMarkBy(const HostKeyEvent& event) = 0;

private:
    MarkDragListener& _listener;
    std::unique_ptr<HostCustomView> _view;
};

}  // namespace vantorel
