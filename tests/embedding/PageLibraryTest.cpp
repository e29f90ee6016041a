#include "embedding/PageLibrary.h"

#include "EmbeddedPageFixture.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

// Each test runs in a process of its own, as CTest starts them: a library is loaded only once.

TEST(PageLibraryTest, ThePageIsLoadedOnceAndShown)
{
    const LoadedPlugin* page = pageOfLibrary(VANTOREL_PICKERS "/QTXHexColorPicker.so");
    ASSERT_NE(page, nullptr);
    EXPECT_STREQ(page->plugin().identifier, "org.vantorel.hex");
    EXPECT_EQ(pageOfLibrary("/nowhere/else.so"), page);

    HeadlessDesktop desktop{{std::make_unique<MemoryFiles>(), 0.6, {}}};
    RecordingDialog dialog;
    HostView holder({0, 0, 260, 300});
    EmbeddedPanel<QueuePanel> panel(dialog, EmbeddingTraits{}, desktop);
    ASSERT_TRUE(panel.showPage(*page, holder, HostColor::blackColor()));
    EXPECT_EQ(holder.subviews().size(), 1U);
    EXPECT_EQ(panel.page().view()->frame().size(), (HostSize{260, 300}));
}

TEST(PageLibraryTest, APageOfAnotherNumberIsNoPage)
{
    EXPECT_EQ(pageOfLibrary(VANTOREL_TEST_PLUGINS "/other-abi-plugin.so"), nullptr);
}

TEST(PageLibraryTest, AMissingLibraryIsNoPage)
{
    EXPECT_EQ(pageOfLibrary("/nowhere/page.so"), nullptr);
}

}  // namespace
}  // namespace vantorel
