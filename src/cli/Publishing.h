#pragma once

#include "host/HostColorList.h"
#include "host/HostFiles.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// Publishes a colour list to the palette folders of graphics programs, and reverts that.
namespace vantorel {

/// A file that is to be published or has been published.
struct PublishedFile {
    std::string path;
    /// The bytes that publishing wrote.
    std::string written;
    /// The replaced bytes; `std::nullopt` if there was no file.
    std::optional<std::string> before;
};

/// The files that a publish would write.
struct PublishPlan {
    struct Target {
        /// The program's name, as shown to users.
        std::u16string program;
        PublishedFile file;
        /// The file already has these bytes.
        bool isAsWanted = false;
        /// The path exists but cannot be read as a file, or is a dangling symbolic link.
        bool isBlocked = false;
    };
    std::vector<Target> targets;
};

/// Plans a file for a list in each existing folder for the user's own palettes.
[[nodiscard]] PublishPlan planPublish(const HostFiles& files, const HostColorList& list);

/// The records of published files, the latest last, in the user's data folder. A record is written
/// before the files, so that the replaced bytes are never lost. As long as the object exists, other
/// programs of ours cannot change the records.
class PublishRecords {
public:
    /// `files` must outlive this object.
    PublishRecords(HostFiles& files, const std::u16string& listName);

    using Publish = std::vector<PublishedFile>;

    /// Returns false if a record exists but cannot be read, or if another program keeps the records
    /// locked. In that case new ones are not written.
    [[nodiscard]] bool isReadable() const { return _isReadable; }
    /// Returns the latest publish; `std::nullopt` if the list has not been published.
    [[nodiscard]] std::optional<Publish> latest() const;
    /// Adds a publish. Returns false if the record cannot be written.
    [[nodiscard]] bool add(const Publish& publish);
    /// Replaces the latest publish. An empty one removes it.
    [[nodiscard]] bool replaceLatest(const Publish& publish);

private:
    /// The number of publishes kept. Beyond it the oldest are dropped.
    static constexpr std::size_t mostKept = 20;

    void read(const std::string& bytes);
    [[nodiscard]] bool save() const;

    HostFiles& _files;
    std::shared_ptr<HostFolderLock> _lock;
    std::optional<std::string> _path;
    bool _isReadable = true;
    /// The bytes of a record that could not be parsed completely. They are saved in a file with "~"
    /// at the end of its name before the record is overwritten.
    std::optional<std::string> _damaged;
    std::vector<Publish> _publishes;
};

enum class UndoResult {
    restored,
    removed,
    /// The file no longer exists, or has its old contents already.
    nothingToDo,
    /// The contents have changed since they were published.
    changedSince,
    failed,
};

/// Restores a file to its contents before it was published.
[[nodiscard]] UndoResult undoPublish(HostFiles& files, const PublishedFile& file);

}  // namespace vantorel
