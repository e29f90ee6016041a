#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace vantorel {

/// The measurements of a long run.
struct Endurance {
    std::size_t events = 0;
    /// Growth of the memory in use over the last nine tenths of the run, from a straight line
    /// fitted to all samples.
    double bytesPerEvent = 0;
    [[nodiscard]] double growth() const { return bytesPerEvent * static_cast<double>(events); }
    /// The targets of open files, pipes and sockets after the first tenth and at the end, sorted.
    std::vector<std::string> handlesBefore;
    std::vector<std::string> handlesAfter;
};

/// The number of events in a run: VANTOREL_EVENTS from the environment, or `usual`.
[[nodiscard]] std::size_t eventsToEndure(std::size_t usual);

/// The seed of the random user: VANTOREL_SEED from the environment, or `usual`.
[[nodiscard]] std::uint64_t seedToEndure(std::uint64_t usual);

/// Calls `act` `events` times, measures the process and prints the results. `settle` is called
/// before each measurement to release memory that is legitimately in use.
[[nodiscard]] Endurance endure(
    std::size_t events, const std::function<void()>& act,
    const std::function<void()>& settle = [] {});

}  // namespace vantorel
