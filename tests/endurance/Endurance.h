#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace vantorel {

/// What a long run has shown.
struct Endurance {
    std::size_t events = 0;
    /// Growth of the memory in use over the last nine tenths of the run, as a straight line through
    /// all samples has it.
    double bytesPerEvent = 0;
    [[nodiscard]] double growth() const { return bytesPerEvent * static_cast<double>(events); }
    /// What open files, pipes and sockets lead to, after the first tenth and at the end, sorted.
    std::vector<std::string> handlesBefore;
    std::vector<std::string> handlesAfter;
};

/// How many events a run has: VANTOREL_EVENTS of the environment, or `usual`.
[[nodiscard]] std::size_t eventsToEndure(std::size_t usual);

/// Calls `act` that often and watches the process; prints what it sees. `settle` is called before
/// each look, to take back what costs memory by right.
[[nodiscard]] Endurance endure(
    std::size_t events, const std::function<void()>& act,
    const std::function<void()>& settle = [] {});

}  // namespace vantorel
