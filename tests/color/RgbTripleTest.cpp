#include "color/RgbTriple.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

using Triple = std::array<std::uint64_t, 3>;

struct TripleRow {
    const char16_t* text;
    bool found;
    std::optional<Triple> components;
};

void PrintTo(const TripleRow& row, std::ostream* out)
{
    *out << testing::PrintToString(std::u16string(row.text));
}

class RgbTripleTest : public testing::TestWithParam<TripleRow> {};

TEST_P(RgbTripleTest, ReadsTheValuesAfterTheName)
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
                    TripleRow{u"rgb(0,256,0)", true, std::nullopt},
                    TripleRow{u"rgb(0,0,256)", true, std::nullopt},
                    TripleRow{u"rgb(255,255,255)", true, Triple{255, 255, 255}},
                    TripleRow{u"rgb(1000,0,0)", true, std::nullopt},
                    TripleRow{u"rgb(-1,0,0)", true, std::nullopt},
                    TripleRow{u"rgb(1,2)", true, std::nullopt},
                    TripleRow{u"rgb(1,2,", true, std::nullopt},
                    TripleRow{u"rgb(1,2, )", true, std::nullopt},
                    TripleRow{u"rgb()", true, std::nullopt}, TripleRow{u"rgb(", true, std::nullopt},
                    TripleRow{u"rgb", false, std::nullopt}, TripleRow{u"", false, std::nullopt},
                    TripleRow{u"255,0,128", false, std::nullopt}));

}  // namespace
}  // namespace vantorel
