#include "ConformanceTest.h"

namespace vantorel {
namespace {

/// A content that shows a picture.
class PictureContent final : public HostViewContent {
public:
    void drawRect(HostCanvas& canvas) override
    {
        ++drawings;
        asked = canvas.pixelSizeOf(place);
        none = canvas.pixelSizeOf({place.x, place.y, -5, 20});
        text = canvas.themeColor(HostThemeColor::text);
        window = canvas.themeColor(HostThemeColor::window);
        canvas.drawPixels(HostPixels(), place);
        canvas.drawPixels(pixels, place);
    }

    HostRect place{10, 10, 40, 20};
    HostPixels pixels;
    int drawings = 0;
    HostPixelSize asked;
    HostPixelSize none{1, 1};
    HostColor text = HostColor::patternColor();
    HostColor window = HostColor::patternColor();
};

class PixelsConformance : public ConformanceTest {
protected:
    PixelsConformance() : view(factory.makeCustomView(described({20, 30, 100, 80}), content))
    {
        // Two columns and two rows: red and green above, blue and half transparent black below.
        content.pixels = HostPixels({2, 2});
        content.pixels.row(0)[0] = HostPixels::opaque(255, 0, 0);
        content.pixels.row(0)[1] = HostPixels::opaque(0, 255, 0);
        content.pixels.row(1)[0] = HostPixels::opaque(0, 0, 255);
    }
    void show()
    {
        root.addSubview(*view);
        host->handleEvents();
        ASSERT_TRUE(host->runUntil([this] { return content.drawings > 0; }));
    }
    /// The pixel whose lower left corner is a place of the view.
    [[nodiscard]] std::array<int, 3> at(double x, double y)
    {
        return host->pixelAt({20 + x, 30 + y});
    }

    PictureContent content;
    std::unique_ptr<HostCustomView> view;
};

TEST_F(PixelsConformance, APictureFillsItsRectangleWithItsFirstRowAbove)
{
    show();
    EXPECT_EQ(at(10, 29), (std::array{255, 0, 0}));
    EXPECT_EQ(at(29, 20), (std::array{255, 0, 0})) << "nothing is blended";
    EXPECT_EQ(at(30, 20), (std::array{0, 255, 0}));
    EXPECT_EQ(at(29, 19), (std::array{0, 0, 255}));
    EXPECT_EQ(at(10, 10), (std::array{0, 0, 255}));
    EXPECT_EQ(at(49, 10), at(5, 5)) << "transparent";
    EXPECT_EQ(at(9, 29), at(5, 5)) << "outside";
}

TEST_F(PixelsConformance, TheCanvasKnowsItsPixels)
{
    show();
    // All hosts are tested at a scale of 1.
    EXPECT_EQ(content.asked, (HostPixelSize{40, 20}));
    EXPECT_EQ(content.none.width, 0);
}

TEST_F(PixelsConformance, APictureOfTheRightSizeIsShownPixelByPixel)
{
    content.place = {10.3, 10.4, 3, 2};
    content.pixels = HostPixels({3, 2});
    for (int y = 0; y < 2; ++y)
        for (int x = 0; x < 3; ++x)
            content.pixels.row(y)[x] = HostPixels::opaque(100, static_cast<std::uint32_t>(x * 50),
                                                          static_cast<std::uint32_t>(y * 50));
    show();
    ASSERT_EQ(content.asked, (HostPixelSize{3, 2}));
    for (int y = 0; y < 2; ++y)
        for (int x = 0; x < 3; ++x)
            EXPECT_EQ(at(10 + x, 11 - y), (std::array{100, x * 50, y * 50})) << x << " " << y;
}

TEST_F(PixelsConformance, TheThemesTextIsReadableOnItsWindow)
{
    show();
    ASSERT_TRUE(content.text.calibratedRGB());
    ASSERT_TRUE(content.window.calibratedRGB());
    EXPECT_GT(std::abs(content.text.calibratedRGB()->green - content.window.calibratedRGB()->green),
              0.3);
}

}  // namespace
}  // namespace vantorel
