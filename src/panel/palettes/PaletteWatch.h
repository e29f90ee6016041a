#pragma once

#include "colorlists/PaletteFileStore.h"

#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>

#include <memory>
#include <string>

namespace vantorel {

/// Watches for changes by other programs in the folders of colour lists and in the file of one
/// list.
class PaletteWatch final : public QObject {
    Q_OBJECT

public:
    /// `files` and `store` must outlive the watch, which is off at first.
    PaletteWatch(HostFiles& files, PaletteFileStore& store);

    void start();
    void stop();
    [[nodiscard]] bool isOn() const { return _watcher != nullptr; }
    /// Watches the folders that exist now and the file at `path`, which may be empty. Has no effect
    /// while the watch is off.
    void watchFile(const std::string& path);

signals:
    /// Files have changed. Several changes in quick succession are reported once.
    void changed();

private:
    HostFiles& _files;
    PaletteFileStore& _store;
    /// Null while the watch is off.
    std::unique_ptr<QFileSystemWatcher> _watcher;
    QTimer _settling;
};

}  // namespace vantorel
