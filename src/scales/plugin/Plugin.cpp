#include "host/HostPluginEntry.h"
#include "scales/ScalesPicker.h"

VANTOREL_PICKER_PLUGIN(vantorel::ScalesPicker, "org.vantorel.scales", "Scales")
