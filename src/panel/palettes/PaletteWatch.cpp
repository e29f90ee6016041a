#include "panel/palettes/PaletteWatch.h"

#include <QFile>

#include <chrono>

namespace vantorel {
namespace {

/// A program that saves a file touches its folder several times.
constexpr std::chrono::milliseconds settlingTime{60};

/// The first of a folder and those around it that exists.
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
        // Not started again while it runs: a folder that never rests would hide every change.
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
        // Our own folder may be made at any time; one of another program comes with a start of it.
        if (isOwn || _files.kindAtPath(folder) == HostFileKind::folder) {
            add(nearestFolder(_files, folder));
        }
        isOwn = false;
    }
    // A folder does not report a file that is written in its place.
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
