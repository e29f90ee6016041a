#pragma once

#include "host/HostControls.h"
#include "host/HostInterfaceFactory.h"
#include "hosts/gtk/GtkHostView.h"
#include "hosts/gtk/GtkStyles.h"
#include "hosts/gtk/SvgPicture.h"

namespace vantorel {

/// A push button, check box or toggle, with a text or a picture.
class GtkHostButton final : public GtkMirrored<HostButton> {
public:
    explicit GtkHostButton(const HostControlDescription& description);

protected:
    void stateDidChange() override;

private:
    void addPicture(const HostControlDescription& description);
    void paintPicture(cairo_t* cairo, GtkWidget* area);
    void wasToggled();

    SvgPicture _picture;
    GtkControlStyle _style;
    bool _stateIsBeingShown = false;
};

}  // namespace vantorel
