#pragma once

#include "cli/UserLists.h"
#include "color/EntryForm.h"
#include "colortext/ByteColor.h"
#include "snippets/QTXCodeSnippet.h"

#include <span>
#include <string>

namespace vantorel {

/// The contents and the form of a colour's report.
struct ReportForm {
    EntryForm entryForm = EntryForm::uppercase;
    bool poundSign = true;
    /// Names the colour; null for a report without a name. Not owned.
    const ColorNamer* namer = nullptr;
    /// Not owned.
    std::span<const QTXCodeSnippet> snippets;
    bool swatches = false;
};

/// Returns a hex code such as "#FF8000", with two more digits if the alpha is not opaque in 8 bits.
[[nodiscard]] std::string hexTextOf(const ByteColor& color, const ReportForm& form);

/// Formats a contrast ratio with two decimals, truncated, because a ratio that only rounds to a
/// limit does not reach it.
[[nodiscard]] std::string ratioText(double ratio);

/// Returns the report of a colour as several lines of text.
[[nodiscard]] std::string reportOf(const ByteColor& color, const ReportForm& form);
/// Returns the report of a colour as a JSON object on one line.
[[nodiscard]] std::string jsonReportOf(const ByteColor& color, const ReportForm& form);

/// Appends the name of a colour as a JSON object.
void appendJsonName(std::string& json, const std::u16string& listName,
                    const PaletteNameMatch& match);

/// Returns the line for a colour of a stream: the hex code, a tab and the rgb() text, followed by a
/// tab and the name if the form has a namer. The line feed is not included.
[[nodiscard]] std::string lineOf(const ByteColor& color, const ReportForm& form);

/// Whether `writePlainLine` can write the lines of a form.
[[nodiscard]] inline bool hasPlainLines(const ReportForm& form)
{
    return form.namer == nullptr && !form.swatches;
}
/// Writes the line of an opaque colour, including its line feed, to `place`, which must have room
/// for `Output::mostReserved` bytes. Returns the end of the line.
[[nodiscard]] char* writePlainLine(char* place, const ByteColor& color, EntryForm entryForm,
                                   bool poundSign);

}  // namespace vantorel
