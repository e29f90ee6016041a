#include "panel/palettes/PaletteWatch.h"

#include <QFile>

#include <chrono>

namespace vantorel {
namespace {

/// Programs change a folder several times when they save a file.
constexpr std::chrono::milliseconds settlingTime{60};

/// Returns the folder, or its nearest ancestor that exists.
std::string nearestFolder(const HostFiles& files, std::string path)
{
    while (!path.empty() && files.kindAtPath(path) != HostFileKind::folder) {
        const std::size_t slash = path.rfind('/');
        path.resize(slash != std::string::npos ? slash : 0);
    }
    return path;
}

}  // namespace

PaletteWatch::PaletteWatch(HostFiles& files, PaletteFileStore& store) : _files(files), _store(store)
{
    _settling.setSingleShot(true);
    _settling.setInterval(settlingTime);
    connect(&_settling, &QTimer::timeout, this, &PaletteWatch::changed);
}

void PaletteWatch::start()
{
    _watcher = std::make_unique<QFileSystemWatcher>();
    const auto settle = [this] {
        // Not restarted while it runs, or else a folder that changes all the time would never be
        // reported.
        if (!_settling.isActive()) _settling.start();
    };
    connect(_watcher.get(), &QFileSystemWatcher::directoryChanged, this, settle);
    connect(_watcher.get(), &QFileSystemWatcher::fileChanged, this, settle);
}

void PaletteWatch::stop()
{
    _watcher.reset();
    _settling.stop();
}

void PaletteWatch::watchFile(const std::string& path)
{
    if (!isOn()) return;
    QStringList wanted;
    const auto add = [&wanted](const std::string& added) {
        const QString name = QFile::decodeName(added.c_str());
        if (!added.empty() && !wanted.contains(name)) wanted.append(name);
    };
    bool isOwn = true;
    for (const std::string& folder : _store.folders()) {
        // Our own folder may be created at any time. Those of other programs are created before
        // they have palettes.
        if (isOwn || _files.kindAtPath(folder) == HostFileKind::folder) {
            add(nearestFolder(_files, folder));
        }
        isOwn = false;
    }
    // Overwriting a file in place does not change its folder.
    add(path);
    QStringList gone;
    for (const QString& watched : _watcher->directories() + _watcher->files()) {
        if (!wanted.contains(watched)) gone.append(watched);
        wanted.removeAll(watched);
    }
    if (!gone.isEmpty()) _watcher->removePaths(gone);
    if (!wanted.isEmpty()) _watcher->addPaths(wanted);
}

}  // namespace vantorel
