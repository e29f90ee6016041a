#include "cli/LineReader.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <string>
#include <thread>

namespace {

using namespace vantorel;

/// The lines read from bytes that arrive in pieces, each followed by "|"; a line that is too long
/// is shown as "!".
std::string read(const std::string& bytes, std::size_t piece)
{
    int ends[2];
    if (::pipe(ends) != 0) return "no pipe";
    std::thread writer([&] {
        for (std::size_t i = 0; i < bytes.size(); i += piece) {
            const std::size_t count = std::min(piece, bytes.size() - i);
            if (::write(ends[1], bytes.data() + i, count) != static_cast<ssize_t>(count)) break;
        }
        ::close(ends[1]);
    });
    LineReader reader(ends[0]);
    std::string seen;
    std::string_view line;
    std::uint64_t results = 0;
    for (;;) {
        const auto result = reader.next(line, [] {});
        if (result == LineReader::Result::end) break;
        if (result == LineReader::Result::line) seen.append(line);
        seen += result == LineReader::Result::line ? "|" : "!";
        EXPECT_EQ(reader.number(), ++results);
    }
    writer.join();
    ::close(ends[0]);
    return seen;
}

TEST(LineReaderTest, LinesAreSplitHoweverTheBytesArrive)
{
    const std::string longest(LineReader::longestLine, 'x');
    const std::string longer = longest + "x";
    const std::string giant(LineReader::longestLine * 9, 'x');
    const std::pair<std::string, std::string> rows[] = {
        {"", ""},
        {"\n", "|"},
        {"a", "a|"},
        {"a\n\nb\r\n\rc\r", "a||b|\rc|"},
        {longest + "\nb\n", longest + "|b|"},
        {longest, longest + "|"},
        {longer + "\nb\n", "!b|"},
        {longer, "!"},
        {giant + "\n" + giant + "\n" + longest + "\nb", "!!" + longest + "|b|"},
        {"a\n" + giant, "a|!"},
        {"a\n" + giant + "\n", "a|!"},
    };
    for (const auto& [bytes, expected] : rows) {
        for (const std::size_t piece : {7777UL, 65536UL, 300000UL})
            EXPECT_EQ(read(bytes, piece), expected) << bytes.substr(0, 20) << " by " << piece;
    }
    EXPECT_EQ(read("one\ntwo\r\nthree", 1), "one|two|three|");
}

TEST(LineReaderTest, ADescriptorThatCannotBeReadIsReported)
{
    LineReader reader(-1);
    std::string_view line;
    EXPECT_EQ(reader.next(line, [] {}), LineReader::Result::failed);
}

}  // namespace
