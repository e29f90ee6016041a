#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <random>
#include <string>

namespace vantorel {

/// Makes the decisions of a simulated user: at random or from the input of a fuzzer.
class Choices {
public:
    Choices() = default;
    Choices(const Choices&) = delete;
    Choices& operator=(const Choices&) = delete;
    virtual ~Choices() = default;

    /// `from` to `to`, both included.
    [[nodiscard]] virtual std::uint64_t integer(std::uint64_t from, std::uint64_t to) = 0;
    /// 0..1
    [[nodiscard]] virtual double fraction() = 0;
    /// Up to `most` bytes of any value.
    [[nodiscard]] virtual std::string bytes(std::size_t most) = 0;

    [[nodiscard]] bool oneIn(std::uint64_t count) { return integer(1, count) == 1; }
    [[nodiscard]] double between(double from, double to) { return from + fraction() * (to - from); }
    /// An element of a range, which must not be empty.
    template <class Range>
    [[nodiscard]] const auto& oneOf(const Range& range)
    {
        const auto last = static_cast<std::uint64_t>(std::ssize(range) - 1);
        return *std::next(std::begin(range), static_cast<std::ptrdiff_t>(integer(0, last)));
    }
};

/// Reproducible random choices.
class RandomChoices final : public Choices {
public:
    explicit RandomChoices(std::uint64_t seed) : _engine(seed) {}

    [[nodiscard]] std::uint64_t integer(std::uint64_t from, std::uint64_t to) override
    {
        return std::uniform_int_distribution<std::uint64_t>(from, to)(_engine);
    }
    [[nodiscard]] double fraction() override
    {
        return std::uniform_real_distribution<double>(0, 1)(_engine);
    }
    [[nodiscard]] std::string bytes(std::size_t most) override
    {
        std::string result(integer(0, most), '\0');
        for (char& byte : result)
            byte = static_cast<char>(integer(0, 255));
        return result;
    }

private:
    std::mt19937_64 _engine;
};

}  // namespace vantorel
