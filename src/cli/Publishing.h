#pragma once

#include "host/HostColorList.h"
#include "host/HostFiles.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

/// Puts a colour list into the palette folders of graphics programs, and takes it back.
namespace vantorel {

/// A file that is written, or has been.
struct PublishedFile {
    std::string path;
    /// The bytes that publishing wrote.
    std::string written;
    /// What it replaced; nothing where there was no file.
    std::optional<std::string> before;
};

/// What a publish would do, before it does it.
struct PublishPlan {
    struct Target {
        /// What people call the program.
        std::u16string program;
        PublishedFile file;
        bool isAsWanted = false;
        /// Something that is no file, or cannot be read, stands there.
        bool isBlocked = false;
    };
    std::vector<Target> targets;
};

/// The files for a list: one in each folder for the user's own palettes that exists.
[[nodiscard]] PublishPlan planPublish(const HostFiles& files, const HostColorList& list);

/// The records of what was published, the latest last, under the user's data. A record is written
/// before the files, so that what they replace is safe whatever happens.
class PublishRecords {
public:
    /// `files` must outlive this object.
    PublishRecords(HostFiles& files, const std::u16string& listName);

    using Publish = std::vector<PublishedFile>;

    /// False while a record is there that the disk does not give; then nothing is recorded.
    [[nodiscard]] bool isReadable() const { return _isReadable; }
    /// Nothing when nothing has been published.
    [[nodiscard]] std::optional<Publish> latest() const;
    /// False when the record cannot be written.
    [[nodiscard]] bool add(const Publish& publish);
    /// Puts another in the place of the latest; an empty one removes it.
    [[nodiscard]] bool replaceLatest(const Publish& publish);

private:
    /// More are forgotten, the oldest first.
    static constexpr std::size_t mostKept = 20;

    void read(const std::string& bytes);
    [[nodiscard]] bool save() const;

    HostFiles& _files;
    std::optional<std::string> _path;
    bool _isReadable = true;
    /// A record that is not understood whole; it is kept, with a "~", before another takes its
    /// place.
    std::optional<std::string> _damaged;
    std::vector<Publish> _publishes;
};

enum class TakenBack {
    restored,
    removed,
    /// It is gone already, or as it was before.
    nothingToDo,
    /// Its contents are no longer what was published.
    changedSince,
    failed,
};

/// Brings a file back to what it was before it was published.
[[nodiscard]] TakenBack takeBack(HostFiles& files, const PublishedFile& file);

}  // namespace vantorel
