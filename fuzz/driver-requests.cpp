#include "FuzzTexts.h"
#include "driver/DriverRequests.h"

/// Lines of requests; each gets one line, which is a JSON object.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace vantorel;
    Driver driver;
    std::string_view rest = bytesFrom(data, size);
    for (int count = 0; !rest.empty() && count < 40; ++count) {
        const std::size_t end = std::min(rest.find('\n'), rest.size());
        const std::string_view line = rest.substr(0, end);
        rest.remove_prefix(std::min(end + 1, rest.size()));
        // A home of the fuzzer's own would be a folder on the disk.
        if (line.find("home") != std::string_view::npos) continue;
        const std::string reply = driver.reply(line);
        require(reply.find('\n') == std::string::npos);
        require(Json::parse(reply).contains("ok"));
    }
    return 0;
}
