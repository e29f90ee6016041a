#include "panel/palettes/PaletteUpdates.h"

#include <QLocale>

namespace vantorel {

PaletteUpdates::PaletteUpdates(HostFiles& files, PaletteFileStore& store, PaletteSession& session)
    : _session(session), _refresh(session), _loading(session), _watch(files, store)
{
    connect(&_watch, &PaletteWatch::changed, &_refresh, &PaletteRefresh::start);
    connect(&_refresh, &PaletteRefresh::progressed, this, [this](qsizetype seen, qsizetype all) {
        emit progressed(
            tr("%1 of %2 lists").arg(QLocale().toString(seen), QLocale().toString(all)));
    });
    connect(&_refresh, &PaletteRefresh::foundMore, this, &PaletteUpdates::foundLists);
    connect(&_refresh, &PaletteRefresh::finished, this,
            [this](const std::vector<EditablePalette>& changed) {
                restIfDone();
                emit refreshed(changed);
            });
    connect(&_loading, &PaletteLoading::progressed, this,
            [this](int percent) { emit progressed(tr("%1 % of the list").arg(percent)); });
    connect(&_loading, &PaletteLoading::foundMore, this, &PaletteUpdates::foundColors);
    connect(&_loading, &PaletteLoading::finished, this, [this] {
        restIfDone();
        emit foundColors();
    });
}

void PaletteUpdates::start()
{
    _watch.start();
    _refresh.start();
}

void PaletteUpdates::stop()
{
    _watch.stop();
    _refresh.stop();
    _loading.pause();
    restIfDone();
}

void PaletteUpdates::lookAgain()
{
    if (_watch.isOn()) _refresh.start();
}

void PaletteUpdates::followList()
{
    _loading.start();
    const EditablePalette* list = _session.list();
    _watch.watchFile(list != nullptr ? list->path : std::string());
}

void PaletteUpdates::readNoMore()
{
    _refresh.stop();
    _loading.stop();
}

void PaletteUpdates::restIfDone()
{
    if (!_refresh.isRunning() && !_loading.isRunning()) emit rested();
}

}  // namespace vantorel
