#pragma once

#include "colorlists/PaletteFileStore.h"

#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>

#include <memory>
#include <string>

namespace vantorel {

/// Notices what other programs change in the folders of colour lists, and in the file of one list.
class PaletteWatch final : public QObject {
    Q_OBJECT

public:
    /// `files` and `store` must outlive the watch, which is off at first.
    PaletteWatch(HostFiles& files, PaletteFileStore& store);

    void start();
    void stop();
    [[nodiscard]] bool isOn() const { return _watcher != nullptr; }
    /// Watches the folders that there are now, and the file at `path`, which may be empty. Does
    /// nothing while the watch is off.
    void watchFile(const std::string& path);

signals:
    /// Something has changed, and the disk has come to rest for a moment.
    void changed();

private:
    HostFiles& _files;
    PaletteFileStore& _store;
    /// Null while the watch is off.
    std::unique_ptr<QFileSystemWatcher> _watcher;
    QTimer _settling;
};

}  // namespace vantorel
