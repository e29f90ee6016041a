#include "lsp/MessageReader.h"

#include <gmock/gmock.h>

namespace vantorel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// What a reader makes of a stream: the bodies, "damaged" and "too long".
std::vector<std::string> read(std::string_view stream, std::size_t chunk = 1000000)
{
    MessageReader reader;
    std::vector<std::string> results;
    for (std::size_t place = 0; place < stream.size(); place += chunk) {
        reader.append(stream.substr(place, chunk));
        while (const auto message = reader.next()) {
            using Kind = MessageReader::Incoming::Kind;
            results.push_back(message->kind == Kind::message         ? message->body
                              : message->kind == Kind::damagedHeader ? "damaged"
                                                                     : "too long");
        }
    }
    return results;
}

TEST(MessageReaderTest, MessagesAreSplit)
{
    const std::string stream = messageHeader(2) + "{}" + messageHeader(0) + messageHeader(4) +
                               "null" + messageHeader(3) + "[";
    EXPECT_THAT(read(stream), ElementsAre("{}", "", "null"));
    EXPECT_THAT(read(stream, 1), ElementsAre("{}", "", "null"));
    EXPECT_THAT(read(stream, 7), ElementsAre("{}", "", "null"));
}

TEST(MessageReaderTest, HeadersMayBeWrittenOtherwise)
{
    EXPECT_THAT(read("content-LENGTH:2\r\n\r\n{}"), ElementsAre("{}"));
    EXPECT_THAT(read("Content-Type: x; charset=utf-8\r\nContent-Length: \t2 \r\n\r\n{}"),
                ElementsAre("{}"));
    EXPECT_THAT(read("Content-Length: 2\n\n{}"), ElementsAre("{}"));
}

TEST(MessageReaderTest, ADamagedHeaderIsReportedOnceAndLeftOut)
{
    const std::string good = messageHeader(2) + "{}";
    EXPECT_THAT(read("Content-Length: -1\r\n\r\n" + good), ElementsAre("damaged", "{}"));
    EXPECT_THAT(read("Content-Length: 1e3\r\n\r\n" + good), ElementsAre("damaged", "{}"));
    EXPECT_THAT(read("Content-Length: 99999999999999999999999\r\n\r\n" + good),
                ElementsAre("damaged", "{}"));
    EXPECT_THAT(read("Content-Length: 99999999999\r\n\r\n" + good), ElementsAre("damaged", "{}"));
    EXPECT_THAT(read("nonsense\r\n\r\nnonsense\r\n\r\n" + good), ElementsAre("damaged", "{}"));
    EXPECT_THAT(read(std::string(100000, 'x') + good), ElementsAre("damaged", "{}"));
    EXPECT_THAT(read(std::string(100000, 'x') + good, 100), ElementsAre("damaged", "{}"));
}

TEST(MessageReaderTest, AWrongLengthCostsTwoMessagesAtMost)
{
    const std::string good = messageHeader(2) + "{}";
    EXPECT_THAT(read(messageHeader(1) + "{}" + good), ElementsAre("{", "{}"));
    EXPECT_THAT(read(messageHeader(4) + "{}" + good + good), ElementsAre("{}Co", "damaged", "{}"));
}

TEST(MessageReaderTest, AMessageThatIsTooLongIsSkipped)
{
    const std::size_t length = MessageReader::longestMessage + 1;
    const std::string good = messageHeader(2) + "{}";
    EXPECT_THAT(read(messageHeader(length) + std::string(length, ' ') + good, 1 << 20),
                ElementsAre("too long", "{}"));
}

TEST(MessageReaderTest, AFloodOfFieldsTakesLinearTime)
{
    std::string flood;
    while (flood.size() < std::size_t{1} << 20)
        flood += "content-length:";
    EXPECT_THAT(read(flood, 65536), ElementsAre("damaged"));
    EXPECT_THAT(read(std::string(1 << 20, '\n'), 65536), ElementsAre("damaged"));
}

}  // namespace
}  // namespace vantorel
