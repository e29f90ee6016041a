#pragma once

#include "Choices.h"

#include <fuzzer/FuzzedDataProvider.h>

#include <cstdio>

namespace vantorel {

/// The decisions of a simulated user, from the input of a fuzzer.
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

/// Prints the number of events when the program ends. An input is a sequence of them, so libFuzzer
/// does not count them.
struct EventCount {
    ~EventCount() { (void)std::fprintf(stderr, "stat::number_of_events: %llu\n", events); }
    unsigned long long events = 0;
};

}  // namespace vantorel
