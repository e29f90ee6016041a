#include "HostUnderTest.h"

namespace vantorel {

std::unique_ptr<HostUnderTest> makeHostUnderTest()
{
    return makeHeadlessHost();
}

}  // namespace vantorel
