#include "hosts/common/TextLines.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

using Lines = std::vector<std::u16string_view>;

TEST(TextLinesTest, ALineEndAtTheEndAddsNoLine)
{
    EXPECT_EQ(linesOf(u""), Lines{u""});
    EXPECT_EQ(linesOf(u"a"), Lines{u"a"});
    EXPECT_EQ(linesOf(u"a\n"), Lines{u"a"});
    EXPECT_EQ(linesOf(u"a\n\nb\n\n"), (Lines{u"a", u"", u"b", u""}));
    EXPECT_EQ(linesOf(u"\n"), Lines{u""});
}

}  // namespace
}  // namespace vantorel
