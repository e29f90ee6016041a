#pragma once

#include "host/HostFiles.h"
#include "scales/ScalesModel.h"

#include <span>
#include <string_view>

namespace vantorel {

/// What the page keeps over starts: the file `Vantorel/Scales.plist` in the user's data folder,
/// with the section and the gradient. What the file does not have, and a damaged file, changes
/// nothing. Errors are not reported. `chosen` is an index of `sections`.
void readScalesMemory(const HostFiles& files, ScalesModel& model,
                      std::span<const std::string_view> sections, std::size_t& chosen);
void writeScalesMemory(HostFiles& files, const ScalesModel& model, std::string_view section);

}  // namespace vantorel
