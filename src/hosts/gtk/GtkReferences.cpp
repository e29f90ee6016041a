#include "hosts/gtk/GtkReferences.h"

namespace vantorel {
namespace {

std::function<void()>& failureReaction()
{
    static std::function<void()> reaction;
    return reaction;
}

}  // namespace

void reportGtkFailure() noexcept
{
    try {
        if (failureReaction()) failureReaction()();
    } catch (...) {
        // There is nobody left to hear of it.
        return;
    }
}

void setGtkFailureReaction(std::function<void()> reaction)
{
    failureReaction() = std::move(reaction);
}

}  // namespace vantorel
