#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace vantorel {

/// Cuts what a descriptor brings into lines, in bounded memory. A line ends in a line feed, with a
/// carriage return before it or without one; the last one may lack it.
class LineReader {
public:
    /// In bytes.
    static constexpr std::size_t longestLine = std::size_t{64} << 10;

    explicit LineReader(int descriptor);

    enum class Result { line, tooLong, end, failed };

    /// `beforeReading` is called before more is read, which may wait for a long time. The line is
    /// valid until the next call. Of a line that is too long nothing is told but that it was there.
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

    /// Lines so far, that of the last result included.
    [[nodiscard]] std::uint64_t number() const { return _number; }

private:
    [[nodiscard]] const char* lineEnd() const;
    Result takeUntil(const char* end, std::string_view& line);
    void dropLongBeginning();
    Result takeRest(std::string_view& line);
    bool readMore();

    int _descriptor;
    std::vector<char> _buffer;
    std::size_t _begin = 0;
    std::size_t _end = 0;
    bool _isAtEnd = false;
    /// Of the line at hand the beginning has been dropped.
    bool _isTooLong = false;
    std::uint64_t _number = 0;
};

}  // namespace vantorel
