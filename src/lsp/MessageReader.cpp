#include "lsp/MessageReader.h"

#include "text/ASCII.h"
#include "text/Decimals.h"
#include "text/Trimming.h"

#include <algorithm>
#include <utility>

namespace vantorel {
namespace {

constexpr std::string_view lengthField = "content-length:";
constexpr std::size_t longestHeader = 4096;
/// Memory for longer messages, such as that of a file which is opened, is not kept.
constexpr std::size_t mostKept = std::size_t{1} << 20;
/// A greater length is a mistake: believing it would skip all that follows.
constexpr std::size_t longestBelieved = std::size_t{1} << 30;

/// Returns the place after the empty line that ends a header, or npos.
std::size_t endOfHeader(std::string_view bytes)
{
    const std::size_t lineFeeds = bytes.find("\n\n");
    const std::size_t returns = bytes.find("\r\n\r\n");
    if (returns < lineFeeds) return returns + 4;
    return lineFeeds == std::string_view::npos ? lineFeeds : lineFeeds + 2;
}

/// Returns the length in a header. What precedes the field can be the rest of a damaged message, so
/// the last field counts wherever it is.
std::optional<std::size_t> lengthInHeader(std::string_view header)
{
    const std::string lower = lowerCased(std::string(header));
    const std::size_t field = lower.rfind(lengthField);
    if (field == std::string::npos) return std::nullopt;
    const std::string_view line = header.substr(field + lengthField.size());
    const std::string_view value = line.substr(0, line.find_first_of("\r\n"));
    const auto length = wholeNumber<std::size_t>(trimmed(value));
    return length && *length <= longestBelieved ? length : std::nullopt;
}

/// Returns how much of a damaged header can be left out: up to its last field, or nearly all,
/// because a field may be cut off at its end.
std::size_t uselessLength(std::string_view header)
{
    const std::string lower = lowerCased(std::string(header));
    const std::size_t field = lower.rfind(lengthField);
    if (field != std::string::npos && field > 0) return field;
    return header.size() - (lengthField.size() - 1);
}

}  // namespace

void MessageReader::append(std::string_view bytes)
{
    if (_skipped > 0) {
        const std::size_t count = std::min(_skipped, bytes.size());
        _skipped -= count;
        bytes.remove_prefix(count);
    }
    if (_place > 0 && _place >= _bytes.size() / 2) {
        _bytes.erase(0, _place);
        _place = 0;
    }
    _bytes += bytes;
}

std::optional<MessageReader::Incoming> MessageReader::next()
{
    while (!_length) {
        const std::string_view header = rest().substr(0, longestHeader);
        const std::size_t end = endOfHeader(header);
        if (end == std::string_view::npos && header.size() < longestHeader) return std::nullopt;
        const bool isWhole = end != std::string_view::npos;
        const auto length = isWhole ? lengthInHeader(header.substr(0, end)) : std::nullopt;
        consume(isWhole ? end : uselessLength(header));
        if (!length) {
            // Reported once, however long the damage is.
            if (std::exchange(_isLost, true)) continue;
            return Incoming{Incoming::Kind::damagedHeader, {}};
        }
        _isLost = false;
        if (*length > longestMessage) {
            const std::size_t present = std::min(*length, rest().size());
            consume(present);
            _skipped = *length - present;
            return Incoming{Incoming::Kind::tooLong, {}};
        }
        _length = length;
    }
    if (rest().size() < *_length) return std::nullopt;
    Incoming message{Incoming::Kind::message, std::string(rest().substr(0, *_length))};
    consume(*_length);
    _length.reset();
    if (rest().empty() && _bytes.capacity() > mostKept) {
        std::string().swap(_bytes);
        _place = 0;
    }
    return message;
}

std::string messageHeader(std::size_t length)
{
    return "Content-Length: " + std::to_string(length) + "\r\n\r\n";
}

}  // namespace vantorel
