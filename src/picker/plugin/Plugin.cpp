#include "host/HostPluginEntry.h"
#include "picker/QTXHexColorPicker.h"

VANTOREL_PICKER_PLUGIN(vantorel::QTXHexColorPicker, "org.vantorel.hex", "Hex")
