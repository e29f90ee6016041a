#pragma once

#include "host/HostCanvas.h"
#include "host/HostMenu.h"
#include "testing/driver/JsonArguments.h"
#include "testing/headless/HeadlessJournal.h"
#include "testing/headless/RecordingCanvas.h"

#include <vector>

/// What the driver answers with.
namespace vantorel {

[[nodiscard]] Json jsonFromText(const std::u16string& text);
[[nodiscard]] Json jsonFromText(const std::optional<std::u16string>& text);
[[nodiscard]] Json jsonFromTexts(const std::vector<std::u16string>& texts);
[[nodiscard]] Json jsonFromPoint(HostPoint point);
[[nodiscard]] Json jsonFromSize(HostSize size);
[[nodiscard]] Json jsonFromRect(HostRect rect);
[[nodiscard]] Json jsonFromColor(const std::optional<HostColor>& color);
[[nodiscard]] Json jsonFromSpec(const QTXHexColorSpec& spec);
/// Data becomes its text form, a string in angle brackets.
[[nodiscard]] Json jsonFromPropertyList(const PropertyList& value);
[[nodiscard]] Json jsonFromOperations(const std::vector<PaintOperation>& operations);
/// The size and the painting of an image; null for none.
[[nodiscard]] Json jsonFromImage(const std::optional<HostImage>& image);
[[nodiscard]] Json jsonFromMenu(const HostMenu& menu);
[[nodiscard]] Json jsonFromJournal(const HeadlessJournal& journal);

}  // namespace vantorel
