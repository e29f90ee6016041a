#include "snippets/FormatPlaces.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

TEST(FormatPlacesTest, EachValueWithoutAPlaceIsNamed)
{
    struct Row {
        const char16_t* format;
        const char16_t* form;
        std::vector<std::string> messages;
    };
    const Row rows[]{
        {u"%d, %d, %d", u"rgbFixed", {}},
        {u"%d, %d", u"rgbFixed", {"blue has no place in the format: write %d where it belongs"}},
        {u"%.3f %.3f %.3f",
         u"rgbaFloats",
         {"opacity has no place in the format: write %.3f where it belongs"}},
        {u"100%%",
         u"rgbPackedInt",
         {"the colour has no place in the format: write %06x where it belongs"}},
        {u"",
         u"rgbaPackedInt",
         {"the colour has no place in the format: write %08x where it belongs"}},
        {u"%d",
         u"rgbFixed",
         {"green has no place in the format: write %d where it belongs",
          "blue has no place in the format: write %d where it belongs"}},
        {u"%x %d",
         u"rgbPackedInt",
         {"the format has 2 places for 1 values, so the last ones are copied unchanged: write %% "
          "for a per cent sign"}},
        {u"%d", u"unknown", {}},
    };
    for (const Row& row : rows) {
        std::vector<std::string> found;
        for (const Message& message : misfitsOfFormat({u"name", row.format, row.form}))
            found.push_back(english(message.what) + ": " + english(message.remedy));
        EXPECT_EQ(found, row.messages);
    }
}

}  // namespace
}  // namespace vantorel
