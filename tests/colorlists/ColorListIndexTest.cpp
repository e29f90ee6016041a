#include "colorlists/ColorListIndex.h"

#include "colorlists/ColorSort.h"
#include "colorlists/SortedColorKeys.h"
#include "text/Unicode.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <random>

namespace vantorel {
namespace {

std::u16string keyOfNumber(std::size_t number)
{
    const std::string digits = std::to_string(number);
    return std::u16string(digits.begin(), digits.end());
}

/// Colours clustered in the corners of the cube, at the edges of cells and outside the cube.
class ColorSource {
public:
    HostColor next()
    {
        if (_random() % 50 == 0) return HostColor::patternColor();
        const double red = channel();
        const double green = channel();
        return HostColor::colorWithCalibratedRed(red, green, channel(), 1);
    }

    QTXHexColorSpec nextSpec()
    {
        QTXHexColorSpec spec;
        spec.setHexRed(component(), component(), component());
        return spec;
    }

private:
    double channel()
    {
        constexpr double beyond[] = {-0.5,
                                     -0.001,
                                     1.0001,
                                     1.05,
                                     300,
                                     -1e300,
                                     std::numeric_limits<double>::infinity(),
                                     std::numeric_limits<double>::quiet_NaN()};
        if (_random() % 20 == 0) return beyond[_random() % std::size(beyond)];
        return static_cast<double>(component()) / 255.0 + (_random() % 2 == 0 ? 0 : 0.001);
    }

    std::uint64_t component()
    {
        if (_random() % 60 == 0) return 256 + _random() % 300;
        constexpr std::uint64_t corners[] = {0, 15, 16, 17, 31, 32, 128, 239, 240, 255};
        return _random() % 2 == 0 ? corners[_random() % std::size(corners)] : _random() % 256;
    }

    std::minstd_rand _random{7};
};

std::shared_ptr<HostColorList> listFrom(ColorSource& source, std::size_t count)
{
    auto list = std::make_shared<HostColorList>(u"list");
    for (std::size_t i = 0; i < count; ++i)
        list->setColor(source.next(), keyOfNumber(i));
    return list;
}

std::vector<std::size_t> placesNearByWalking(const QTXHexColorSpec& color,
                                             const HostColorList& list)
{
    std::vector<std::size_t> places;
    for (std::size_t place = 0; place < list.allKeys().size(); ++place) {
        const HostColor& entry = list.colorAtIndex(place);
        if (color.isEqualToColor(entry) || color.isCloseToColor(entry)) places.push_back(place);
    }
    return places;
}

TEST(ColorListIndexTest, FindsTheSameAsALinearSearch)
{
    ColorSource source;
    std::size_t found = 0;
    ColorListIndex index;
    for (const std::size_t count : {0U, 1U, 17U, 3000U, 170U}) {
        const auto list = listFrom(source, count);
        index.update(list);
        for (int i = 0; i < 500; ++i) {
            const QTXHexColorSpec color = source.nextSpec();
            const auto places = index.placesNear(color);
            ASSERT_EQ(places, placesNearByWalking(color, *list))
                << utf8FromUtf16(color.description());
            found += places.size();
        }
    }
    EXPECT_GT(found, 1000U) << "too few close colours for a meaningful test";
}

TEST(ColorListIndexTest, FindsWhatIsCloseToComponentsBeyondTheCube)
{
    const auto list = std::make_shared<HostColorList>(u"list");
    for (const double channel : {0.9, 0.94, 0.95, 1.0, 1.05, 1.07, 2.0, 1e30}) {
        for (const double other : {0.0, 1.0}) {
            list->setColor(HostColor::colorWithCalibratedRed(channel, other, other, 1),
                           keyOfNumber(list->allKeys().size()));
            list->setColor(HostColor::colorWithCalibratedRed(other, channel, other, 1),
                           keyOfNumber(list->allKeys().size()));
            list->setColor(HostColor::colorWithCalibratedRed(other, other, channel, 1),
                           keyOfNumber(list->allKeys().size()));
        }
    }
    ColorListIndex index;
    index.update(list);
    QTXHexColorSpec color;
    for (const std::uint64_t beyond : {239ULL, 240ULL, 255ULL, 256ULL, 257ULL, 266ULL, 270ULL,
                                       271ULL, 272ULL, 287ULL, 510ULL, ~0ULL}) {
        for (const std::uint64_t other : {std::uint64_t{0}, std::uint64_t{255}, beyond}) {
            for (const int place : {0, 1, 2}) {
                color.setHexRed(other, other, other);
                color.setComponent(beyond, place);
                EXPECT_EQ(index.placesNear(color), placesNearByWalking(color, *list))
                    << utf8FromUtf16(color.description());
            }
        }
    }
}

TEST(ColorListIndexTest, NoticesThatTheListHasGrown)
{
    const auto list = std::make_shared<HostColorList>(u"list");
    ColorListIndex index;
    index.update(list);
    EXPECT_TRUE(index.placesNear(QTXHexColorSpec()).empty());
    list->setColor(HostColor::blackColor(), u"black");
    index.update(list);
    EXPECT_EQ(index.placesNear(QTXHexColorSpec()), std::vector<std::size_t>{0});
    index.update(nullptr);
    EXPECT_TRUE(index.placesNear(QTXHexColorSpec()).empty());
}

TEST(SortedColorKeysTest, AreInPaletteOrder)
{
    ColorSource source;
    const auto list = listFrom(source, 500);
    SortedColorKeys keys;
    EXPECT_EQ(keys.size(), 0U);
    keys.update(list);
    ASSERT_EQ(keys.size(), 500U);
    for (std::size_t i = 0; i + 1 < keys.size(); ++i)
        EXPECT_LE(colorSortFunc(keys[i], keys[i + 1], *list), 0) << i;
}

TEST(SortedColorKeysTest, FollowTheListAndItsChanges)
{
    const auto first = std::make_shared<HostColorList>(u"first");
    const auto second = std::make_shared<HostColorList>(u"second");
    first->setColor(HostColor::blackColor(), u"a");
    second->setColor(HostColor::blackColor(), u"b");
    SortedColorKeys keys;
    keys.update(first);
    EXPECT_EQ(keys[0], u"a");
    keys.update(second);
    EXPECT_EQ(keys[0], u"b") << "another list, changed as often as the first";
    second->setColor(HostColor::whiteColor(), u"c");
    keys.update(second);
    EXPECT_EQ(keys.size(), 2U);
    EXPECT_EQ(keys.positionsNear(QTXHexColorSpec()).size(), 1U);
}

TEST(SortedColorKeysTest, FindThePositionsOfNearColoursInOrder)
{
    ColorSource source;
    const auto list = listFrom(source, 500);
    SortedColorKeys keys;
    keys.update(list);
    for (int i = 0; i < 200; ++i) {
        const QTXHexColorSpec color = source.nextSpec();
        std::vector<std::size_t> expected;
        for (std::size_t position = 0; position < keys.size(); ++position) {
            const HostColor& entry = keys.colorAtPosition(position);
            if (color.isEqualToColor(entry) || color.isCloseToColor(entry)) {
                expected.push_back(position);
            }
        }
        ASSERT_EQ(keys.positionsNear(color), expected);
    }
}

}  // namespace
}  // namespace vantorel
