#include "FuzzTexts.h"
#include "driver/DriverRequests.h"

#include <cstdio>

namespace {

/// An input is a sequence, so the requests are counted apart.
struct Count {
    ~Count() { std::fprintf(stderr, "stat::number_of_requests: %llu\n", requests); }
    unsigned long long requests = 0;
} count;

}  // namespace

/// Lines of requests; each gets one line, which is a JSON object.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace vantorel;
    Driver driver;
    std::string_view rest = bytesFrom(data, size);
    for (int line = 0; !rest.empty() && line < 40; ++line) {
        const std::size_t end = std::min(rest.find('\n'), rest.size());
        const std::string_view request = rest.substr(0, end);
        rest.remove_prefix(std::min(end + 1, rest.size()));
        // A home of the fuzzer's own would be a folder on the disk.
        if (request.find("home") != std::string_view::npos) continue;
        const std::string reply = driver.reply(request);
        ++count.requests;
        require(reply.find('\n') == std::string::npos);
        require(Json::parse(reply).contains("ok"));
    }
    return 0;
}
