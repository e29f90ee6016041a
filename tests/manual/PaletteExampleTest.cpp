#include "colorlists/PaletteFile.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace vantorel {
namespace {

TEST(ManualTest, ThePaletteFileInTheManualIsValid)
{
    int pages = 0;
    for (const auto& entry : std::filesystem::directory_iterator(VANTOREL_MANUAL)) {
        if (entry.path().extension() != ".htm") continue;
        SCOPED_TRACE(entry.path());
        ++pages;
        std::ifstream file(entry.path());
        const std::string page{std::istreambuf_iterator<char>(file), {}};
        const std::string start = "<code id=\"palette-file\">";
        const std::size_t begin = page.find(start);
        ASSERT_NE(begin, std::string::npos);
        const std::size_t end = page.find("</code>", begin);
        const std::string text = page.substr(begin + start.size(), end - begin - start.size());

        const auto reading = readPalette(text, u"by the file's name");
        ASSERT_TRUE(reading);
        EXPECT_TRUE(reading->skipped.empty());
        EXPECT_EQ(reading->list->name(), u"Garden");
        EXPECT_EQ(reading->list->allKeys(), (std::vector<std::u16string>{u"leaf", u"rose"}));
    }
    EXPECT_GE(pages, 2);
}

}  // namespace
}  // namespace vantorel
