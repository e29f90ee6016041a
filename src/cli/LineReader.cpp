#include "cli/LineReader.h"

#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <utility>

namespace vantorel {
namespace {

constexpr std::size_t chunk = std::size_t{256} << 10;

}  // namespace

/// The buffer has room for an incomplete line followed by the next chunk.
LineReader::LineReader(int descriptor) : _descriptor(descriptor), _buffer(longestLine + 1 + chunk)
{
}

void LineReader::dropLongBeginning()
{
    _isTooLong = _isTooLong || _end - _begin > longestLine;
    if (_isTooLong) _begin = _end;
}

LineReader::Result LineReader::takeRest(std::string_view& line)
{
    const std::string_view rest(_buffer.data() + _begin, _end - _begin);
    if (!_isTooLong && rest.empty()) return Result::end;
    ++_number;
    _begin = _end;
    if (std::exchange(_isTooLong, false)) return Result::tooLong;
    line = withoutCarriageReturn(rest);
    return Result::line;
}

bool LineReader::readMore()
{
    std::memmove(_buffer.data(), _buffer.data() + _begin, _end - _begin);
    _end -= _begin;
    _begin = 0;
    ssize_t count = 0;
    do {
        count = ::read(_descriptor, _buffer.data() + _end, chunk);
    } while (count < 0 && errno == EINTR);
    if (count < 0) return false;
    _isAtEnd = count == 0;
    _end += static_cast<std::size_t>(count);
    return true;
}

}  // namespace vantorel
