#include "Endurance.h"
#include "HeadlessUser.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

TEST(HeadlessEnduranceTest, MemoryDoesNotGrowWhateverTheUserDoes)
{
    constexpr std::uint64_t usualSeed = 20;
    RandomChoices choices(seedToEndure(usualSeed));
    HeadlessUser user(choices);
    const Endurance run = endure(eventsToEndure(30'000), [&] { user.act(); });
    EXPECT_LT(run.growth(), 2e5);
    EXPECT_EQ(run.handlesBefore, run.handlesAfter);
    EXPECT_TRUE(user.panelWorks());
}

}  // namespace
}  // namespace vantorel
