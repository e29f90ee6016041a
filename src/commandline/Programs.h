#pragma once

#include "commandline/CommandTable.h"

namespace vantorel {

/// The command line.
extern const ProgramRow vantorelProgram;
/// The colour panel.
extern const ProgramRow vantorelPanelProgram;

}  // namespace vantorel
