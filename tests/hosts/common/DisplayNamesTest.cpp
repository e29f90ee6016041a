#include "hosts/common/DisplayNames.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

TEST(DisplayNamesTest, OnlyNamesOfTheInterfaceHaveAKey)
{
    EXPECT_STREQ(displayNameKey(u"No Match"), "No Match");
    EXPECT_STREQ(displayNameKey(u"Uppercase"), "Uppercase");
    for (const char16_t* name : {u"red", u"* red", u"CSS Keyword", u"add", u"Add ", u""})
        EXPECT_EQ(displayNameKey(name), nullptr);
}

}  // namespace
}  // namespace vantorel
