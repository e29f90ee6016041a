#include "plugins/AccessList.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

using namespace std::string_view_literals;

/// A version, then entries of a tag, permissions and an identifier.
const std::string head("\2\0\0\0"sv);
const std::string owner("\x01\0\6\0\xFF\xFF\xFF\xFF"sv);
const std::string user7("\x02\0\6\0\x07\0\0\0"sv);
const std::string reader8("\x02\0\4\0\x08\0\0\0"sv);
const std::string owningGroup("\x04\0\6\0\xFF\xFF\xFF\xFF"sv);
const std::string group9("\x08\0\2\0\x09\1\0\0"sv);
const std::string readMask("\x10\0\4\0\xFF\xFF\xFF\xFF"sv);
const std::string writeMask("\x10\0\6\0\xFF\xFF\xFF\xFF"sv);
const std::string others("\x20\0\7\0\xFF\xFF\xFF\xFF"sv);

TEST(AccessListTest, WritersAreThoseThatTheMaskLetsWrite)
{
    EXPECT_EQ(writersInAccessList(head), Writers{});
    EXPECT_EQ(writersInAccessList(head + owner + user7 + reader8 + owningGroup + group9 +
                                  writeMask + others),
              (Writers{true, true, {7}, {0x109}}));
    EXPECT_EQ(writersInAccessList(head + owner + user7 + owningGroup + group9 + readMask + others),
              (Writers{true, false, {}, {}}));
    EXPECT_EQ(writersInAccessList(head + owner + reader8 + writeMask), Writers{});
}

TEST(AccessListTest, OtherFormsAreNotRead)
{
    for (const std::string& bytes :
         {std::string(), std::string("\2\0"sv), std::string("\3\0\0\0"sv), head + "\1",
          head + owner + owner.substr(1), head + std::string("\x40\0\6\0\0\0\0\0"sv)}) {
        EXPECT_EQ(writersInAccessList(bytes), std::nullopt);
    }
}

}  // namespace
}  // namespace vantorel
