#include "picker/LiveHexReadout.h"
#include "picker/NameCompletion.h"

#include <gtest/gtest.h>

#include <random>

namespace vantorel {
namespace {

struct ReadoutRow {
    const char16_t* typed;
    const char16_t* readout;
};

void PrintTo(const ReadoutRow& row, std::ostream* out)
{
    *out << testing::PrintToString(std::u16string(row.typed));
}

class LiveHexReadoutTest : public testing::TestWithParam<ReadoutRow> {};

TEST_P(LiveHexReadoutTest, CountsAndDecodes)
{
    EXPECT_EQ(liveHexReadout(GetParam().typed, u"Error"), GetParam().readout);
}

INSTANTIATE_TEST_SUITE_P(Texts, LiveHexReadoutTest,
                         testing::Values(ReadoutRow{u"", u"R:---  G:---  B:---"},
                                         ReadoutRow{u"#", u"R:---  G:---  B:---"},
                                         ReadoutRow{u"f", u"1: R:240* G:--- B:---"},
                                         ReadoutRow{u"#0a", u"2: R: 10 G:--- B:---"},
                                         ReadoutRow{u"0a0", u"3: R: 10 G:000* B:---"},
                                         ReadoutRow{u"0a0b", u"4: R: 10 G: 11 B:---"},
                                         ReadoutRow{u"0a0b1", u"5: R: 10 G: 11 B:016*"},
                                         ReadoutRow{u"0a0bff", u"6: R: 10 G: 11 B:255"},
                                         ReadoutRow{u"0a0bff0", u"7: Error"}));

TEST(LiveHexReadoutTest, HasTheWordOfTheUsersLanguage)
{
    EXPECT_EQ(liveHexReadout(u"#0a0bff00", u"Fehler"), u"8: Fehler");
}

class NameCompletionTest : public testing::Test {
protected:
    void SetUp() override
    {
        for (const char16_t* key : {u"navy", u"blue", u"black", u"Blush"}) {
            _list.setColor(HostColor::colorWithCalibratedRed(0, 0, ++_count * 0.2, 1), key);
        }
    }
    NameCompletion complete(std::u16string_view typed, std::size_t place)
    {
        return completeColorName(typed, place, _list, EntryForm::lowercase);
    }

    HostColorList _list{u"names"};
    int _count = 0;
};

TEST_F(NameCompletionTest, OneCandidateIsFilledIn)
{
    const auto completion = complete(u"NA", 2);
    EXPECT_EQ(completion.text, u"navy: rgb(0, 0, 51);");
    EXPECT_EQ(completion.insertionPoint, std::nullopt);
    EXPECT_TRUE(completion.message.empty());
}

TEST_F(NameCompletionTest, SeveralCandidatesAreListedAndTheRestIsDropped)
{
    const auto completion = complete(u"blxyzx", 2);
    EXPECT_EQ(completion.message, u"blue\nblack\nBlush\n");
    EXPECT_EQ(completion.text, u"bl");
    EXPECT_EQ(completion.insertionPoint, 2U);
}

TEST_F(NameCompletionTest, TheFirstCandidateGivesTheColour)
{
    EXPECT_EQ(complete(u"black", 2).text, u"black: rgb(0, 0, 102);");
}

TEST_F(NameCompletionTest, TriplesEmptyTextsAndTooManyCandidatesAreNotCompleted)
{
    EXPECT_EQ(complete(u"RGB(1", 5).text, std::nullopt);
    EXPECT_EQ(complete(u"", 0).text, std::nullopt);
    EXPECT_EQ(complete(u"q", 1).text, std::nullopt);
    for (int i = 0; i < 8; ++i) {
        _list.setColor(HostColor::blackColor(), u"zz" + std::u16string(1, char16_t(u'a' + i)));
    }
    EXPECT_EQ(complete(u"zz", 2).text, std::nullopt);
}

}  // namespace
}  // namespace vantorel
