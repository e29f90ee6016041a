#include "host/HostPluginEntry.h"
#include "mix/MixPicker.h"

VANTOREL_PICKER_PLUGIN(vantorel::MixPicker, "org.vantorel.mix", "Mix")
