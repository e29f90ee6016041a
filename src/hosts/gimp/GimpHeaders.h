#pragma once

// GIMP's headers do not include what they need.
#include <gegl.h>
#include <gtk/gtk.h>

#include <libgimpbase/gimpbase.h>
#include <libgimpcolor/gimpcolor.h>
#include <libgimpmodule/gimpmodule.h>
#include <libgimpwidgets/gimpwidgets.h>
