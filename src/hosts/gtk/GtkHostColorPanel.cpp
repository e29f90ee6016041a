#include "hosts/gtk/GtkHostColorPanel.h"

#include "hosts/common/ViewTree.h"
#include "hosts/gtk/GtkHostCustomView.h"
#include "hosts/gtk/GtkHostDrag.h"
#include "hosts/gtk/GtkHostTextField.h"
#include "hosts/gtk/GtkTexts.h"

namespace vantorel {

void GtkHostColorPanel::setAcceptsMouseMovedEvents(bool flag)
{
    _acceptsMouseMoved = flag;
    forEachBelow<GtkHostCustomView>(
        pageView(), [flag](GtkHostCustomView& view) { view.setAcceptsMouseMoved(flag); });
}

void GtkHostColorPanel::pageDidAppear()
{
    forEachBelow<GtkHostTextField>(pageView(), [this](GtkHostTextField& field) {
        field.setPanel({[this] {
                            if (const auto current = color()) setColor(*current);
                        },
                        [this](const std::u16string& text) { return takeText(text); }});
    });
}

void GtkHostColorPanel::finishEditing()
{
    finishEditingBelow<GtkHostTextField>(pageView());
}

void GtkHostColorPanel::endPress()
{
    forEachBelow<GtkHostCustomView>(pageView(), [](GtkHostCustomView& view) { view.endPress(); });
}

HostPoint GtkHostColorPanel::mouseLocation(const HostView& view) const
{
    GtkWidget* widget = gtkWidgetOf(&view);
    if (widget == nullptr || !gtk_widget_get_realized(widget)) return {};
    int x = 0;
    int y = 0;
    gtk_widget_get_pointer(widget, &x, &y);
    return corePoint(x, y, view.bounds());
}

void GtkHostColorPanel::makeFirstResponder(HostView& view)
{
    // A widget gets mouse moves without having the focus, and taking it would end a text entry.
    static_cast<void>(view);
}

HostFieldEditor* GtkHostColorPanel::fieldEditor(HostTextField& field)
{
    auto* edited = dynamic_cast<GtkHostTextField*>(&field);
    return edited != nullptr && edited->isEdited() ? edited : nullptr;
}

HostEvent GtkHostColorPanel::nextEventMatchingMask(std::uint32_t mask, HostView& view)
{
    auto* custom = dynamic_cast<GtkHostCustomView*>(&view);
    return custom != nullptr ? custom->nextMouseEvent(mask)
                             : HostEvent{HostEventType::leftMouseUp, {}, 0};
}

void GtkHostColorPanel::dragImage(const HostImage& image, const HostPasteboardItem& item,
                                  const HostEvent&, HostView& source)
{
    auto* custom = dynamic_cast<GtkHostCustomView*>(&source);
    if (custom == nullptr || custom->widget() == nullptr) return;
    // The drag takes the pointer, which must not count as a release.
    custom->forgetButton();
    runDrag(custom->activeWidget(), custom->lastButtonEvent(), image, item);
}

void GtkHostColorPanel::copyText(const std::u16string& text)
{
    const std::string copied = gtkText(text);
    gtk_clipboard_set_text(gtk_clipboard_get(GDK_SELECTION_CLIPBOARD), copied.data(),
                           static_cast<int>(copied.size()));
}

}  // namespace vantorel
