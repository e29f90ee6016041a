#include "cli/ColorReport.h"

#include "cli/Failure.h"
#include "listformats/Json.h"
#include "result/HarmlessLine.h"

#include <gtest/gtest.h>

namespace {

using namespace vantorel;

TEST(ColorReportTest, TheFastPathWritesTheSameLineAsTheSlowOne)
{
    for (const EntryForm entryForm : {EntryForm::uppercase, EntryForm::lowercase}) {
        for (const bool poundSign : {true, false}) {
            ReportForm form;
            form.entryForm = entryForm;
            form.poundSign = poundSign;
            for (std::uint32_t value = 0; value < 0x1000000; value += 1021) {
                const ByteColor color{static_cast<std::uint8_t>(value >> 16),
                                      static_cast<std::uint8_t>(value >> 8),
                                      static_cast<std::uint8_t>(value)};
                char line[256];
                char* end = writePlainLine(line, color, entryForm, poundSign);
                ASSERT_EQ(std::string(line, end), lineOf(color, form) + '\n');
            }
        }
    }
}

TEST(ColorReportTest, JsonTextsAreEscaped)
{
    std::string json;
    appendJson(json, std::string_view("a\"\\\n\x1b\x7f\xFF\xC3\xA9"));
    EXPECT_EQ(json, "\"a\\\"\\\\\\u000a\\u001b\\u007f\xEF\xBF\xBD\xC3\xA9\"");
}

}  // namespace
