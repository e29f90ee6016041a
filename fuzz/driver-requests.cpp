#include "FuzzTexts.h"
#include "testing/driver/DriverRequests.h"

#include <cstdio>
#include <fstream>

namespace {

using namespace vantorel;

/// A picker takes much longer to open than to answer, so it lives on from input to input, and so
/// does what earlier inputs have done to it. A finding may need them all: they stand in a file
/// beside it, as the driver reads them. Without a finding the file goes away again.
class LongSession {
public:
    ~LongSession()
    {
        (void)std::fprintf(stderr, "stat::number_of_requests: %llu\n", _requests);
        if (!_logName.empty()) (void)std::remove(_logName.c_str());
    }

    void logTo(std::string name) { _logName = std::move(name); }

    void answer(std::string_view request)
    {
        if (_requests++ % requestsOfAPicker == 0) {
            if (!_logName.empty()) _log = std::ofstream(_logName, std::ios::binary);
            _driver = Driver();
            replyTo(R"({"op": "open"})");
        }
        replyTo(request);
    }

private:
    static constexpr unsigned long long requestsOfAPicker = 500;

    void replyTo(std::string_view request)
    {
        _log << request << std::endl;
        const std::string reply = _driver.reply(request);
        require(reply.find('\n') == std::string::npos);
        // Replies can be long: validating the JSON costs less than parsing it.
        require(reply.starts_with(R"({"ok":)"));
        require(Json::accept(reply));
    }

    Driver _driver;
    std::ofstream _log;
    std::string _logName;
    unsigned long long _requests = 0;
} session;

}  // namespace

// The parameters are the library's.
// cppcheck-suppress constParameter
// NOLINTNEXTLINE(readability-non-const-parameter)
extern "C" int LLVMFuzzerInitialize(int* count, char*** arguments)
{
    constexpr std::string_view option = "-artifact_prefix=";
    for (int i = 1; i < *count; ++i) {
        const std::string_view argument = (*arguments)[i];
        if (argument.starts_with(option))
            session.logTo(std::string(argument.substr(option.size())) + "session");
    }
    return 0;
}

/// One request, which gets one line, a JSON object. The sequence is the session's: of inputs with
/// many lines, those that ask for the same long answer over and over would soon be most.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view bytes = bytesFrom(data, size);
    const std::string_view request = bytes.substr(0, bytes.find('\n'));
    // Requests with a home would write to a folder on the disk.
    if (request.find("home") == std::string_view::npos) session.answer(request);
    return 0;
}
