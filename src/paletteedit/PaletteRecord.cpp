#include "paletteedit/PaletteRecord.h"

namespace vantorel {

void PaletteRecord::readIfChanged(const HostFiles& files)
{
    // Read the version first, so that a later change is noticed the next time.
    const std::uint64_t versionNow = files.versionAtPath(path);
    if (versionNow != 0 && versionNow == version) return;
    version = versionNow;
    EntriesReader reader(files.contentsAtPath(path).value_or(std::string()), path);
    reader.readLines(reader.allBytes());
    state = reader.takeState();
}

void PaletteRecord::setWritten(const PaletteState& written, const std::string& text,
                               const HostFiles& files)
{
    version = files.versionAtPath(path);
    state = written;
    if (state->bytes != nullptr && *state->bytes != text) state->bytes = nullptr;
    // If the file has already been changed again, it is read at the next request.
    if (files.contentsAtPath(path) != text) version = 0;
}

bool PaletteRecord::isUnreadable(const HostFiles& files) const
{
    return version == 0 && files.kindAtPath(path) != HostFileKind::none;
}

}  // namespace vantorel
