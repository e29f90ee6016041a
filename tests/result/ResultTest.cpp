#include "result/Result.h"

#include <gtest/gtest.h>

#include <memory>

namespace vantorel {
namespace {

Result<int> half(int number)
{
    if (number % 2 != 0) return Message{phrase("%1 is odd", number), phrase("give an even number")};
    return number / 2;
}

TEST(ResultTest, HoldsAValueOrAMessage)
{
    const Result<int> good = half(4);
    ASSERT_TRUE(good);
    EXPECT_EQ(*good, 2);
    EXPECT_EQ(good.value(), 2);

    const Result<int> bad = half(3);
    ASSERT_FALSE(bad);
    EXPECT_EQ(english(bad.error()), "3 is odd; give an even number");
    EXPECT_THROW(static_cast<void>(bad.value()), std::bad_variant_access);
}

TEST(ResultTest, ValuesCanBeMovedOut)
{
    Result<std::unique_ptr<int>> result(std::make_unique<int>(7));
    EXPECT_EQ(**result, 7);
    const std::unique_ptr<int> taken = *std::move(result);
    EXPECT_EQ(*taken, 7);
}

TEST(ResultTest, AnErrorTypeCanHoldMoreThanAMessage)
{
    enum class Kind { missing, damaged };
    struct Error {
        Kind kind;
    };
    const Result<int, Error> result(Error{Kind::damaged});
    ASSERT_FALSE(result);
    EXPECT_EQ(result.error().kind, Kind::damaged);
}

TEST(StatusTest, IsSuccessUnlessItHoldsAMessage)
{
    EXPECT_TRUE(Status().isOk());
    const Status failed = Message{phrase("it is a pipe")};
    EXPECT_FALSE(failed);
    EXPECT_EQ(english(failed.error()), "it is a pipe");
}

}  // namespace
}  // namespace vantorel
