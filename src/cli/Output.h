#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace vantorel {

/// Buffered standard output. Throws a `Failure` if writing fails, and a `SilentFailure` if the
/// reader has closed its end.
// NOLINTBEGIN(cppcoreguidelines-pro-type-member-init): see _buffer.
class Output {
public:
    Output() = default;
    // NOLINTEND(cppcoreguidelines-pro-type-member-init)
    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;

    void write(std::string_view bytes);
    void write(char byte) { write(std::string_view(&byte, 1)); }

    /// Returns room for at least `mostReserved` bytes. Fill it from its beginning, then pass the
    /// end of the written bytes to `commit`.
    static constexpr std::size_t mostReserved = 256;
    [[nodiscard]] char* reserve()
    {
        if (_buffer.size() - _used < mostReserved) flush();
        return _buffer.data() + _used;
    }
    void commit(const char* end) { _used = static_cast<std::size_t>(end - _buffer.data()); }

    void flush();

private:
    static constexpr std::size_t bufferSize = std::size_t{128} << 10;

    std::size_t _used = 0;
    // Not initialised, so that a short command touches only one page of it.
    std::array<char, bufferSize> _buffer;
};

/// Occupies the descriptors of closed standard streams, so that no file opened later gets one of
/// them and is mistaken for the stream. Reading from or writing to such a stream still fails.
void occupyClosedStreams();

/// Writes a file, or standard output for "-". A regular file is replaced atomically. Throws a
/// `Failure` if the file cannot be written.
void writeFile(Output& output, const std::string& path, std::string_view bytes);

/// Makes a path absolute; a relative one starts at the working directory.
[[nodiscard]] std::string absolutePath(const std::string& path);

}  // namespace vantorel
