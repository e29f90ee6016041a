#include "listformats/ZipArchive.h"

#include <zlib.h>

#include <algorithm>
#include <cstdint>

namespace vantorel {
namespace {

using namespace std::string_view_literals;

constexpr std::string_view fileMark = "PK\3\4"sv;
constexpr std::string_view entryMark = "PK\1\2"sv;
constexpr std::string_view endMark = "PK\5\6"sv;
constexpr std::size_t fileHead = 30;
constexpr std::size_t entryHead = 46;
constexpr std::size_t endHead = 22;
constexpr std::size_t longestComment = 0xFFFF;

constexpr std::uint32_t stored = 0;
constexpr std::uint32_t deflated = 8;

void appendLittleEndian(std::string& bytes, std::size_t number, int width)
{
    for (int i = 0; i < width; ++i)
        bytes += static_cast<char>((number >> (8 * i)) & 0xFF);
}

/// Reads a number within bytes that are long enough for it.
std::uint32_t numberAt(std::string_view bytes, std::size_t place, std::size_t width)
{
    std::uint32_t number = 0;
    for (std::size_t i = 0; i < width; ++i)
        number |= static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[place + i]))
                  << (8 * i);
    return number;
}

std::uint32_t checksum(std::string_view bytes)
{
    return static_cast<std::uint32_t>(
        crc32_z(0, reinterpret_cast<const Bytef*>(bytes.data()), bytes.size()));
}

/// What the head of a file and its entry in the directory have in common, from the version on.
std::string commonHead(const std::pair<std::string, std::string>& file)
{
    std::string head;
    appendLittleEndian(head, 20, 2);      // 2.0, the first version that every program knows
    appendLittleEndian(head, 0x0800, 2);  // names are UTF-8
    appendLittleEndian(head, stored, 2);
    appendLittleEndian(head, 0, 2);       // midnight
    appendLittleEndian(head, 0x0021, 2);  // 1 January 1980, so that equal lists are equal files
    appendLittleEndian(head, checksum(file.second), 4);
    appendLittleEndian(head, file.second.size(), 4);
    appendLittleEndian(head, file.second.size(), 4);
    appendLittleEndian(head, file.first.size(), 2);
    appendLittleEndian(head, 0, 2);  // no extra fields
    return head;
}

std::optional<std::string> inflatedBytes(std::string_view bytes, std::size_t size)
{
    // Nothing can be packed better, so that a small damaged file takes no large room.
    constexpr std::size_t bestRatio = 1100;
    if (size / bestRatio > bytes.size()) return std::nullopt;
    z_stream stream{};
    // No zlib header.
    if (inflateInit2(&stream, -MAX_WBITS) != Z_OK) return std::nullopt;
    std::string contents(size, '\0');
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(bytes.data()));
    stream.avail_in = static_cast<uInt>(bytes.size());
    stream.next_out = reinterpret_cast<Bytef*>(contents.data());
    stream.avail_out = static_cast<uInt>(size);
    const int result = inflate(&stream, Z_FINISH);
    const bool isWhole = result == Z_STREAM_END && stream.avail_out == 0;
    inflateEnd(&stream);
    if (!isWhole) return std::nullopt;
    return contents;
}

/// The entry in an archive's directory that has a name.
struct Entry {
    std::uint32_t flags;
    std::uint32_t method;
    std::uint32_t sum;
    std::uint32_t packedSize;
    std::uint32_t size;
    std::uint32_t place;
};

std::optional<Entry> entryOf(std::string_view archive, std::string_view name)
{
    const std::size_t end = archive.rfind(endMark);
    if (end == std::string_view::npos || archive.size() - end < endHead ||
        archive.size() - end > endHead + longestComment)
        return std::nullopt;
    std::size_t place = numberAt(archive, end + 16, 4);
    while (place <= archive.size() && archive.size() - place >= entryHead &&
           archive.substr(place).starts_with(entryMark)) {
        const std::size_t nameSize = numberAt(archive, place + 28, 2);
        const std::size_t rest =
            numberAt(archive, place + 30, 2) + numberAt(archive, place + 32, 2);
        if (archive.substr(place + entryHead).substr(0, nameSize) == name) {
            return Entry{.flags = numberAt(archive, place + 8, 2),
                         .method = numberAt(archive, place + 10, 2),
                         .sum = numberAt(archive, place + 16, 4),
                         .packedSize = numberAt(archive, place + 20, 4),
                         .size = numberAt(archive, place + 24, 4),
                         .place = numberAt(archive, place + 42, 4)};
        }
        place += entryHead + nameSize + rest;
    }
    return std::nullopt;
}

}  // namespace

std::string zipArchive(std::span<const std::pair<std::string, std::string>> files)
{
    std::string archive;
    std::string directory;
    for (const auto& file : files) {
        const std::string head = commonHead(file);
        directory += entryMark;
        appendLittleEndian(directory, 20, 2);
        directory += head;
        appendLittleEndian(directory, 0, 2);  // no comment
        appendLittleEndian(directory, 0, 2);  // the first disk
        appendLittleEndian(directory, 0, 2);
        appendLittleEndian(directory, 0, 4);
        appendLittleEndian(directory, archive.size(), 4);
        directory += file.first;
        archive += fileMark;
        archive += head + file.first + file.second;
    }
    const std::size_t start = archive.size();
    archive += directory;
    archive += endMark;
    appendLittleEndian(archive, 0, 4);
    appendLittleEndian(archive, files.size(), 2);
    appendLittleEndian(archive, files.size(), 2);
    appendLittleEndian(archive, directory.size(), 4);
    appendLittleEndian(archive, start, 4);
    appendLittleEndian(archive, 0, 2);
    return archive;
}

std::optional<std::string> fileInZip(std::string_view archive, std::string_view name,
                                     std::size_t mostBytes)
{
    const auto entry = entryOf(archive, name);
    constexpr std::uint32_t encrypted = 1;
    if (!entry || (entry->flags & encrypted) != 0 || entry->size > mostBytes) return std::nullopt;
    if (entry->place > archive.size() || archive.size() - entry->place < fileHead)
        return std::nullopt;
    const std::string_view file = archive.substr(entry->place);
    if (!file.starts_with(fileMark)) return std::nullopt;
    const std::size_t head = fileHead + numberAt(file, 26, 2) + numberAt(file, 28, 2);
    if (head > file.size() || file.size() - head < entry->packedSize) return std::nullopt;
    const std::string_view packed = file.substr(head, entry->packedSize);
    std::optional<std::string> contents;
    if (entry->method == stored && packed.size() == entry->size) contents = std::string(packed);
    if (entry->method == deflated) contents = inflatedBytes(packed, entry->size);
    if (contents && checksum(*contents) != entry->sum) return std::nullopt;
    return contents;
}

}  // namespace vantorel
