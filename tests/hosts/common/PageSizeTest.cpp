#include "hosts/common/PageSize.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

TEST(PageSizeTest, APageGetsTheSizeItWantsAsFarAsTheScreenHasRoom)
{
    constexpr HostSize needed{100, 50};
    EXPECT_EQ(pageSizeWithin({500, 500}, {260, 300}, needed), (HostSize{260, 300}));
    EXPECT_EQ(pageSizeWithin({-100, 0}, {260, 300}, needed), (HostSize{160, 300}));
    EXPECT_EQ(pageSizeWithin({500, -20}, {260, 300}, needed), (HostSize{260, 280}));
    EXPECT_EQ(pageSizeWithin({-300, -300}, {260, 300}, needed), needed);
    EXPECT_EQ(pageSizeWithin({500, 500}, {20, 20}, needed), needed);
}

}  // namespace
}  // namespace vantorel
