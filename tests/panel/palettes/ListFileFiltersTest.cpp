#include "panel/palettes/ListFileFilters.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

TEST(ListFileFiltersTest, EachFormatHasAFilter)
{
    for (const ListFormat& format : listFormats()) {
        const QString filter = ListFileFilters::filterOf(format);
        EXPECT_EQ(ListFileFilters::formatOf(filter), &format);
        EXPECT_TRUE(ListFileFilters::forWriting().split(";;").contains(filter));
        EXPECT_EQ(ListFileFilters::forReading().split(";;").contains(filter), format.isRead);
        for (const std::string_view ending : format.endings)
            EXPECT_TRUE(filter.contains("*." + QString::fromStdString(std::string(ending))));
        // The bare name would mean that the format has no title.
        EXPECT_FALSE(filter.startsWith(QString::fromStdString(std::string(format.name)) + " "));
    }
}

TEST(ListFileFiltersTest, ChoosingAnotherFormatChangesTheExtension)
{
    const ListFormat& json = *listFormatNamed("json");
    EXPECT_EQ(ListFileFilters::withEnding("Reds.gpl", json), "Reds.json");
    EXPECT_EQ(ListFileFilters::withEnding("Reds", json), "Reds.json");
    EXPECT_EQ(ListFileFilters::withEnding("Reds 1.5", json), "Reds 1.5.json");
    EXPECT_EQ(ListFileFilters::withEnding("Reds.tokens.json", json), "Reds.json");
    EXPECT_EQ(ListFileFilters::withEnding("Reds.json", *listFormatNamed("tokens")),
              "Reds.tokens.json");
}

}  // namespace
}  // namespace vantorel
