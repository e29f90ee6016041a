#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace vantorel {

/// Standard output, gathered in a buffer. What cannot be written ends the command by a `Failure`; a
/// reader who went away ends it silently.
// NOLINTBEGIN(cppcoreguidelines-pro-type-member-init): see _buffer.
class Output {
public:
    Output() = default;
    // NOLINTEND(cppcoreguidelines-pro-type-member-init)
    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;

    void write(std::string_view bytes);
    void write(char byte) { write(std::string_view(&byte, 1)); }

    /// Room for at least `mostReserved` bytes, to be filled from its beginning; `commit` says where
    /// what was filled ends.
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
    // Not initialised: a short command touches one page of it.
    std::array<char, bufferSize> _buffer;
};

/// Takes the numbers of standard streams that are closed, so that no file that is opened later gets
/// one of them and is mistaken for it; reading or writing there goes on failing.
void occupyClosedStreams();

/// Writes a file, or standard output for "-". A regular file is replaced at once or stays. A file
/// that cannot be written is a `Failure`.
void writeFile(Output& output, const std::string& path, std::string_view bytes);

/// A path from the working directory as an absolute one.
[[nodiscard]] std::string absolutePath(const std::string& path);

}  // namespace vantorel
