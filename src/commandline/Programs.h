#pragma once

#include "commandline/CommandTable.h"

namespace vantorel {

/// Describes `vantorel`, the command line program.
extern const ProgramRow vantorelProgram;
/// Describes `vantorel-panel`, the colour panel.
extern const ProgramRow vantorelPanelProgram;

}  // namespace vantorel
