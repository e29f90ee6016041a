#pragma once

#include "cli/UserLists.h"
#include "color/EntryForm.h"
#include "colortext/ByteColor.h"
#include "snippets/QTXCodeSnippet.h"

#include <string>
#include <vector>

namespace vantorel {

/// What is told of a colour, and how.
struct ReportForm {
    EntryForm entryForm = EntryForm::uppercase;
    bool poundSign = true;
    /// What names are taken from; null for none. Must outlive the report.
    const ColorNamer* namer = nullptr;
    std::vector<QTXCodeSnippet> snippets;
    bool swatches = false;
};

/// "#FF8000", with two digits more for an alpha that is not opaque in 8 bits.
[[nodiscard]] std::string hexTextOf(const ByteColor& color, const ReportForm& form);

/// All about a colour in several lines.
[[nodiscard]] std::string reportOf(const ByteColor& color, const ReportForm& form);
/// The same as a JSON object on one line.
[[nodiscard]] std::string jsonReportOf(const ByteColor& color, const ReportForm& form);

/// How a colour is named, as a JSON object.
void appendJsonName(std::string& json, const ColorNamer& namer, const ColorNameMatch& match);

/// What stands for a colour of a stream: hex code, tab, rgb() text, and with a list a tab and the
/// name. Without line feed.
[[nodiscard]] std::string lineOf(const ByteColor& color, const ReportForm& form);

/// Whether the lines of a form can be written by `writePlainLine`.
[[nodiscard]] bool hasPlainLines(const ReportForm& form);
/// Writes the line of an opaque colour, with its line feed, at `place`, which has room for
/// `Output::mostReserved` bytes; returns where it ends.
[[nodiscard]] char* writePlainLine(char* place, const ByteColor& color, EntryForm entryForm,
                                   bool poundSign);

}  // namespace vantorel
