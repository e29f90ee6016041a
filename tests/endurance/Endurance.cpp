#include "Endurance.h"

#include <malloc.h>

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <span>
#include <system_error>
#include <vector>

#ifdef __SANITIZE_ADDRESS__
// Declared in the sanitizers' runtime; g++ provides the function without the header.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#endif

namespace vantorel {
namespace {

/// The bytes allocated and not freed. The size of the process is less precise: it depends on what
/// the allocator keeps.
std::size_t allocatedBytes()
{
#ifdef __SANITIZE_ADDRESS__
    return __sanitizer_get_current_allocated_bytes();
#else
    const struct mallinfo2 info = ::mallinfo2();
    return info.uordblks + info.hblkhd;
#endif
}

std::vector<std::string> openHandles()
{
    std::vector<std::string> handles;
    for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
        std::error_code gone;
        const auto target = std::filesystem::read_symlink(entry.path(), gone);
        if (!gone) handles.push_back(target.string());
    }
    std::ranges::sort(handles);
    return handles;
}

/// Returns the number in an environment variable, or `usual` if there is none.
std::uint64_t numberFrom(const char* variable, std::uint64_t usual)
{
    const char* wish = std::getenv(variable);
    const std::uint64_t number = wish != nullptr ? std::strtoull(wish, nullptr, 10) : 0;
    return number > 0 ? number : usual;
}

struct Sample {
    double event = 0;
    double bytes = 0;
};

/// The slope fitted by least squares.
double slopeOf(std::span<const Sample> samples)
{
    const auto count = static_cast<double>(samples.size());
    Sample mean;
    for (const Sample& sample : samples) {
        mean.event += sample.event / count;
        mean.bytes += sample.bytes / count;
    }
    double products = 0;
    double squares = 0;
    for (const Sample& sample : samples) {
        products += (sample.event - mean.event) * (sample.bytes - mean.bytes);
        squares += (sample.event - mean.event) * (sample.event - mean.event);
    }
    return squares > 0 ? products / squares : 0;
}

}  // namespace

std::size_t eventsToEndure(std::size_t usual)
{
    return numberFrom("VANTOREL_EVENTS", usual);
}

std::uint64_t seedToEndure(std::uint64_t usual)
{
    return numberFrom("VANTOREL_SEED", usual);
}

Endurance endure(std::size_t events, const std::function<void()>& act,
                 const std::function<void()>& settle)
{
    constexpr std::size_t sampleCount = 1000;
    const std::size_t step = std::max<std::size_t>(1, events / sampleCount);
    std::vector<Sample> samples;
    samples.reserve(events / step + 1);
    Endurance result;
    result.events = events;
    for (std::size_t i = 0; i < events; ++i) {
        act();
        if (i < events / 10) continue;
        if (i != events / 10 && i % step != 0) continue;
        settle();
        if (i == events / 10) result.handlesBefore = openHandles();
        samples.push_back({static_cast<double>(i), static_cast<double>(allocatedBytes())});
    }
    result.bytesPerEvent = slopeOf(samples);
    settle();
    result.handlesAfter = openHandles();
    // A cache that fills once makes the second half flatter than the whole; a leak does not.
    const double secondHalf = slopeOf(std::span(samples).subspan(samples.size() / 2));
    std::printf(
        "%zu events; after the first tenth %.0f bytes in use, at the end %.0f: %.4f bytes "
        "an event, in the second half %.4f; handles %zu, then %zu\n",
        events, samples.front().bytes, samples.back().bytes, result.bytesPerEvent, secondHalf,
        result.handlesBefore.size(), result.handlesAfter.size());
    return result;
}

}  // namespace vantorel
