#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <vector>

namespace vantorel {

/// Reads lines from a file descriptor in bounded memory. A line ends in a line feed, which a
/// carriage return may precede. The last line may lack the line feed.
class LineReader {
public:
    /// The length limit in bytes.
    static constexpr std::size_t longestLine = std::size_t{64} << 10;

    explicit LineReader(int descriptor);

    enum class Result { line, tooLong, end, failed };

    /// Reads the next line, which is valid until the next call. `beforeReading` is called before
    /// each read, because reading can block. For a line longer than `longestLine` returns `tooLong`
    /// and skips its contents.
    template <class BeforeReading>
    Result next(std::string_view& line, BeforeReading&& beforeReading)
    {
        for (;;) {
            if (const char* end = lineEnd()) return takeUntil(end, line);
            dropLongBeginning();
            if (_isAtEnd) return takeRest(line);
            beforeReading();
            if (!readMore()) return Result::failed;
        }
    }

    /// Returns the number of lines read, including that of the last result.
    [[nodiscard]] std::uint64_t number() const { return _number; }

private:
    // Inline, because a line of a plain hex code takes no longer to read than a few calls.

    [[nodiscard]] const char* lineEnd() const
    {
        return static_cast<const char*>(std::memchr(_buffer.data() + _begin, '\n', _end - _begin));
    }
    [[nodiscard]] static std::string_view withoutCarriageReturn(std::string_view line)
    {
        if (line.ends_with('\r')) line.remove_suffix(1);
        return line;
    }
    Result takeUntil(const char* end, std::string_view& line)
    {
        const char* begin = _buffer.data() + _begin;
        const auto length = static_cast<std::size_t>(end - begin);
        const bool isTooLong = _isTooLong || length > longestLine;
        _isTooLong = false;
        _begin += length + 1;
        ++_number;
        if (isTooLong) return Result::tooLong;
        line = withoutCarriageReturn({begin, length});
        return Result::line;
    }

    void dropLongBeginning();
    Result takeRest(std::string_view& line);
    bool readMore();

    int _descriptor;
    std::vector<char> _buffer;
    std::size_t _begin = 0;
    std::size_t _end = 0;
    bool _isAtEnd = false;
    /// Whether the beginning of the current line has been dropped.
    bool _isTooLong = false;
    std::uint64_t _number = 0;
};

}  // namespace vantorel
