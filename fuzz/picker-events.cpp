#include "FuzzTexts.h"
#include "FuzzedChoices.h"
#include "HeadlessUser.h"

/// Sequences of what a user and a panel can do to the whole picker.
namespace {

using namespace vantorel;

EventCount count;

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
