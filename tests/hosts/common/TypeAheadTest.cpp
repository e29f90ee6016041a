#include "hosts/common/TypeAhead.h"

#include <gtest/gtest.h>

#include <vector>

namespace vantorel {
namespace {

class TypeAheadTest : public testing::Test {
protected:
    int type(std::u16string_view letter)
    {
        const int count = static_cast<int>(_titles.size());
        const int found = _search.find(letter, _current, count, [&](int index, const auto& prefix) {
            return _titles[static_cast<std::size_t>(index)].starts_with(prefix);
        });
        if (found >= 0) _current = found;
        return found;
    }

    std::vector<std::u16string> _titles{u"black", u"blue", u"no match", u"brown"};
    int _current = -1;
    std::chrono::steady_clock::time_point _now;
    TypeAhead _search{[this] { return _now; }};
};

TEST_F(TypeAheadTest, LettersNarrowTheSearch)
{
    EXPECT_EQ(type(u"b"), 0);
    EXPECT_EQ(type(u"r"), 3);
    EXPECT_EQ(type(u"x"), -1);
}

TEST_F(TypeAheadTest, OneLetterRepeatedGoesRound)
{
    EXPECT_EQ(type(u"b"), 0);
    EXPECT_EQ(type(u"b"), 1);
    EXPECT_EQ(type(u"b"), 3);
    EXPECT_EQ(type(u"b"), 0);
}

TEST_F(TypeAheadTest, APauseBeginsANewSearch)
{
    type(u"b");
    _now += std::chrono::milliseconds(1001);
    EXPECT_EQ(type(u"n"), 2);
}

TEST_F(TypeAheadTest, ABlankDoesNotBeginASearch)
{
    EXPECT_FALSE(_search.takes(u" "));
    EXPECT_FALSE(_search.takes(u""));
    EXPECT_FALSE(_search.takes(u"\t"));
    EXPECT_FALSE(_search.takes(u"\u007F"));
    EXPECT_TRUE(_search.takes(u"\u00E9"));
    type(u"n");
    EXPECT_TRUE(_search.takes(u" "));
    _now += std::chrono::seconds(2);
    EXPECT_FALSE(_search.takes(u" "));
}

TEST_F(TypeAheadTest, AnEmptyMenuHasNoItem)
{
    _titles.clear();
    EXPECT_EQ(type(u"b"), -1);
}

}  // namespace
}  // namespace vantorel
