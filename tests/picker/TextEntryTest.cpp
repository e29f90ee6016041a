#include "picker/LiveHexReadout.h"
#include "picker/NameCompletion.h"
#include "picker/RgbTriple.h"

#include <gtest/gtest.h>

#include <random>

namespace vantorel {
namespace {

using Triple = std::array<std::uint64_t, 3>;

struct TripleRow {
    const char16_t* text;
    bool found;
    std::optional<Triple> components;
};

class RgbTripleTest : public testing::TestWithParam<TripleRow> {};

TEST_P(RgbTripleTest, ReadsWhatStandsBehindTheName)
{
    const auto reading = readRgbTriple(GetParam().text);
    EXPECT_EQ(reading.found, GetParam().found);
    EXPECT_EQ(reading.components, GetParam().components);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, RgbTripleTest,
    testing::Values(TripleRow{u"RGB(255,0,128)", true, Triple{255, 0, 128}},
                    TripleRow{u"rgb(255 0 128", true, Triple{255, 0, 128}},
                    TripleRow{u"rGb( ,, 1,2 ,3 junk", true, Triple{1, 2, 3}},
                    TripleRow{u"navy: rgb(0, 0, 128);", true, Triple{0, 0, 128}},
                    TripleRow{u"rgb(001,02,3)", true, Triple{1, 2, 3}},
                    TripleRow{u"rgb(256,0,0)", true, std::nullopt},
                    TripleRow{u"rgb(1000,0,0)", true, std::nullopt},
                    TripleRow{u"rgb(-1,0,0)", true, std::nullopt},
                    TripleRow{u"rgb(1,2)", true, std::nullopt},
                    TripleRow{u"rgb(1,2,", true, std::nullopt},
                    TripleRow{u"rgb(1,2, )", true, std::nullopt},
                    TripleRow{u"rgb()", true, std::nullopt}, TripleRow{u"rgb(", true, std::nullopt},
                    TripleRow{u"rgb", false, std::nullopt}, TripleRow{u"", false, std::nullopt},
                    TripleRow{u"255,0,128", false, std::nullopt}));

struct ReadoutRow {
    const char16_t* typed;
    const char16_t* readout;
};

class LiveHexReadoutTest : public testing::TestWithParam<ReadoutRow> {};

TEST_P(LiveHexReadoutTest, CountsAndDecodes)
{
    EXPECT_EQ(liveHexReadout(GetParam().typed), GetParam().readout);
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

TEST_F(NameCompletionTest, SeveralAreListedAndTheRestIsDropped)
{
    const auto completion = complete(u"blxyzx", 2);
    EXPECT_EQ(completion.message, u"blue\nblack\nBlush\n");
    EXPECT_EQ(completion.text, u"bl");
    EXPECT_EQ(completion.insertionPoint, 2U);
}

TEST_F(NameCompletionTest, TheNameOfTheLengthTypedHasTheFirstCandidatesColour)
{
    EXPECT_EQ(complete(u"black", 2).text, u"black: rgb(0, 0, 102);");
}

TEST_F(NameCompletionTest, NothingIsCompletedForATripleNoTextOrTooMany)
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
