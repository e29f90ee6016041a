#include "hosts/posix/LibraryFile.h"

#include <fcntl.h>
#include <link.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdint>
#include <cstring>

namespace vantorel {
namespace {

/// A part of a file, of a size that the file itself states.
bool fits(std::uint64_t offset, std::uint64_t length, std::uint64_t fileSize)
{
    return offset <= fileSize && length <= fileSize - offset;
}

template <class Part>
bool readPart(int file, std::uint64_t offset, Part& part)
{
    return ::pread(file, &part, sizeof part, static_cast<off_t>(offset)) ==
           static_cast<ssize_t>(sizeof part);
}

bool isCutOff(int file, std::uint64_t fileSize)
{
    ElfW(Ehdr) header;
    if (!readPart(file, 0, header)) return false;
    if (std::memcmp(header.e_ident, ELFMAG, SELFMAG) != 0) return false;
    // Sections are at the end of a file. They are not mapped, but without them it is not whole.
    const std::uint64_t sections = std::uint64_t{header.e_shnum} * header.e_shentsize;
    if (!fits(header.e_shoff, sections, fileSize)) return true;
    for (unsigned i = 0; i < header.e_phnum; ++i) {
        ElfW(Phdr) segment;
        const std::uint64_t place = header.e_phoff + std::uint64_t{i} * header.e_phentsize;
        if (!fits(place, sizeof segment, fileSize) || !readPart(file, place, segment)) return true;
        if (segment.p_type == PT_LOAD && !fits(segment.p_offset, segment.p_filesz, fileSize)) {
            return true;
        }
    }
    return false;
}

}  // namespace

bool isCutOffLibrary(const char* path) noexcept
{
    const int file = ::open(path, O_RDONLY | O_CLOEXEC);
    if (file < 0) return false;
    struct stat status = {};
    const bool result = ::fstat(file, &status) == 0 && S_ISREG(status.st_mode) &&
                        isCutOff(file, static_cast<std::uint64_t>(status.st_size));
    ::close(file);
    return result;
}

}  // namespace vantorel
