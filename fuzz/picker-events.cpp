#include "FuzzTexts.h"
#include "HeadlessUser.h"

#include <fuzzer/FuzzedDataProvider.h>

#include <cstdio>

/// Sequences of what a user and a panel can do to the whole picker.
namespace {

using namespace vantorel;

class FuzzedChoices final : public Choices {
public:
    FuzzedChoices(const std::uint8_t* data, std::size_t size) : _input(data, size) {}

    [[nodiscard]] bool areLeft() const { return _input.remaining_bytes() > 0; }

    [[nodiscard]] std::uint64_t integer(std::uint64_t from, std::uint64_t to) override
    {
        return _input.ConsumeIntegralInRange(from, to);
    }
    [[nodiscard]] double fraction() override { return _input.ConsumeProbability<double>(); }
    [[nodiscard]] std::string bytes(std::size_t most) override
    {
        return _input.ConsumeRandomLengthString(most);
    }

private:
    mutable FuzzedDataProvider _input;
};

/// An input is a sequence, so the events are counted apart.
struct Count {
    ~Count() { (void)std::fprintf(stderr, "stat::number_of_events: %llu\n", events); }
    unsigned long long events = 0;
} count;

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzedChoices choices(data, size);
    HeadlessUser user(choices);
    for (; choices.areLeft(); ++count.events)
        user.act();
    require(user.panelWorks());
    return 0;
}
