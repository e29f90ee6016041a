#include "hosts/gtk/GtkTextScale.h"

#include "hosts/common/TextScale.h"
#include "hosts/gtk/GtkStyles.h"

namespace vantorel {

double gtkTextScale()
{
    static const double scale = textScaleForFontHeight(generalFontHeight());
    return scale;
}

}  // namespace vantorel
