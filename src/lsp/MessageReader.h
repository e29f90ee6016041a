#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace vantorel {

/// Splits a stream of bytes into the messages of the base protocol: a header with `Content-Length`,
/// an empty line, and as many bytes.
///
/// After a damaged header, the next message is where the next `Content-Length` is. So a message
/// whose length was wrong costs only itself and its neighbour.
class MessageReader {
public:
    /// Longer messages are skipped without being kept.
    static constexpr std::size_t longestMessage = std::size_t{64} << 20;

    struct Incoming {
        enum class Kind { message, damagedHeader, tooLong };
        Kind kind = Kind::message;
        std::string body;
    };

    void append(std::string_view bytes);
    /// Returns the next message, or `std::nullopt` until there are more bytes.
    [[nodiscard]] std::optional<Incoming> next();

private:
    [[nodiscard]] std::string_view rest() const { return std::string_view(_bytes).substr(_place); }
    void consume(std::size_t count) { _place += count; }

    std::string _bytes;
    /// The bytes before it have been used.
    std::size_t _place = 0;
    /// How many bytes of a message that is too long are still to come.
    std::size_t _skipped = 0;
    /// Of the message whose header has been read.
    std::optional<std::size_t> _length;
    /// Whether a damaged header has been reported, and no valid one has followed.
    bool _isLost = false;
};

/// Returns the header of a message with this length.
[[nodiscard]] std::string messageHeader(std::size_t length);

}  // namespace vantorel
