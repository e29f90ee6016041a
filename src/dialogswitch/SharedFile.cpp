#include "dialogswitch/SharedFile.h"

#include "dialogswitch/Folders.h"
#include "hosts/posix/FileRemoval.h"
#include "result/HarmlessLine.h"

#include <optional>

namespace vantorel {

Status SharedFile::write(const std::string& path, const std::string& bytes)
{
    return _files.writeForOthers(path, bytes) ? Status() : Status(writeFailure(path));
}

Status SharedFile::change(const Edit& add, const Edit& remove)
{
    const auto current = _files.contentsAtPath(_path);
    if (!current && _files.kindAtPath(_path) != HostFileKind::none) {
        return Message{phrase("\"%1\" cannot be read", excerpt(_path)),
                       phrase("make it a readable file, or remove it")};
    }
    const bool isAsWeLeftIt = current && current == _files.contentsAtPath(_after);
    std::optional<std::string> before;
    if (isAsWeLeftIt) {
        before = _files.contentsAtPath(_before);
    } else if (current) {
        before = remove(*current);
    }
    const std::string after = add(before.value_or(""));
    if (isAsWeLeftIt && current == after) return {};

    // The record comes first, so that the old bytes are never lost.
    if (before) {
        if (Status written = write(_before, *before); !written) return written;
    } else if (!removeFile(_before)) {
        return writeFailure(_before);
    }
    if (Status written = write(_after, after); !written) return written;
    if (Status made = _folders.create(folderOfPath(_path)); !made) return made;
    return write(_path, after);
}

Status SharedFile::revert(const Edit& remove)
{
    const auto current = _files.contentsAtPath(_path);
    const auto before = _files.contentsAtPath(_before);
    const auto after = _files.contentsAtPath(_after);
    if (current) {
        const std::string restored = current == after ? before.value_or("") : remove(*current);
        if (!before && restored.empty()) {
            if (!removeFile(_path)) return writeFailure(_path);
        } else if (restored != current) {
            if (Status written = write(_path, restored); !written) return written;
        }
    }
    for (const std::string& record : {_before, _after}) {
        if (!removeFile(record)) return writeFailure(record);
    }
    return _folders.removeEmpty();
}

}  // namespace vantorel
