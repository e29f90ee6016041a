#include "embedding/loader/ExcludedPrograms.h"

#include <gtest/gtest.h>

#include <string_view>

namespace vantorel {
namespace {

struct ListRow {
    std::string_view list;
    bool hasOkular;
};

TEST(ExcludedProgramsTest, WholeLinesAreNames)
{
    for (const auto& row :
         {ListRow{"", false}, ListRow{"okular", true}, ListRow{"okular\n", true},
          ListRow{"krita\nokular\n", true}, ListRow{" okular \r\n", true},
          ListRow{"\n\n\tokular", true}, ListRow{"#okular\n", false},
          ListRow{"# a comment\nokular", true}, ListRow{"okular2\nokula\n", false},
          ListRow{"okular krita\n", false}, ListRow{"\n \n", false}}) {
        EXPECT_EQ(listHasProgram(row.list.data(), row.list.size(), "okular"), row.hasOkular)
            << row.list;
    }
}

TEST(ExcludedProgramsTest, AnEmptyNameIsOnNoList)
{
    EXPECT_FALSE(listHasProgram("\n\n", 2, ""));
}

}  // namespace
}  // namespace vantorel
