#pragma once

#include "host/HostCanvas.h"
#include "host/HostMenu.h"
#include "testing/driver/JsonArguments.h"
#include "testing/headless/HeadlessJournal.h"
#include "testing/headless/RecordingCanvas.h"

#include <vector>

/// Conversions of values to the JSON of the driver's replies.
namespace vantorel {

[[nodiscard]] Json jsonFromText(const std::u16string& text);
[[nodiscard]] Json jsonFromText(const std::optional<std::u16string>& text);
[[nodiscard]] Json jsonFromTexts(const std::vector<std::u16string>& texts);
[[nodiscard]] Json jsonFromPoint(HostPoint point);
[[nodiscard]] Json jsonFromSize(HostSize size);
[[nodiscard]] Json jsonFromRect(HostRect rect);
[[nodiscard]] Json jsonFromColor(const std::optional<HostColor>& color);
[[nodiscard]] Json jsonFromSpec(const QTXHexColorSpec& spec);
/// Converts a property list. Data becomes a string in angle brackets, its text form.
[[nodiscard]] Json jsonFromPropertyList(const PropertyList& value);
[[nodiscard]] Json jsonFromOperations(const std::vector<PaintOperation>& operations);
/// Returns the size and the paint operations of an image, or a JSON null for `std::nullopt`.
[[nodiscard]] Json jsonFromImage(const std::optional<HostImage>& image);
[[nodiscard]] Json jsonFromMenu(const HostMenu& menu);
[[nodiscard]] Json jsonFromJournal(const HeadlessJournal& journal);

}  // namespace vantorel
