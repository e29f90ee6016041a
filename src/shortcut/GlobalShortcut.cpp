#include "shortcut/GlobalShortcut.h"

#include "shortcut/DesktopKeys.h"
#include "shortcut/PortalShortcut.h"
#include "shortcut/X11Shortcut.h"

#include <QGuiApplication>

#include <utility>

namespace vantorel {

std::vector<GlobalShortcut::MakeMethod> GlobalShortcut::desktopMethods()
{
    std::vector<MakeMethod> methods;
    methods.emplace_back([]() -> std::unique_ptr<ShortcutMethod> {
        return std::make_unique<PortalShortcut>(QDBusConnection::sessionBus(), nullptr);
    });
    // Under Wayland an X server hears only the keys of its own windows.
    if (QGuiApplication::platformName() == QLatin1String("xcb"))
        methods.emplace_back([] { return std::make_unique<X11Shortcut>(); });
    return methods;
}

GlobalShortcut::GlobalShortcut(QObject* parent, std::vector<MakeMethod> methods)
    : QObject(parent), _methods(std::move(methods))
{
}

GlobalShortcut::~GlobalShortcut() = default;

void GlobalShortcut::setKeys(const QKeySequence& keys)
{
    if (keys == _keys) return;
    _keys = keys;
    _method.reset();
    _tried = 0;
    if (keys.isEmpty()) {
        emit stateChanged({});
    } else if (!canBeGlobal(keys)) {
        emit stateChanged({phrase("a shortcut for all programs needs Ctrl, Alt or Meta"),
                           phrase("choose another shortcut")});
    } else {
        tryNext();
    }
}

void GlobalShortcut::tryNext()
{
    if (_tried == _methods.size()) {
        emit stateChanged(
            {phrase("this desktop lets no program have a shortcut of its own"),
             phrase("bind \"vantorel-panel --pick-and-copy\" to a key in its settings")});
        return;
    }
    // The one before may be the sender of the signal that leads here.
    if (_method) _method.release()->deleteLater();
    _method = _methods[_tried++]();
    connect(_method.get(), &ShortcutMethod::activated, this, &GlobalShortcut::activated);
    connect(_method.get(), &ShortcutMethod::bound, this, [this] { emit stateChanged({}); });
    connect(_method.get(), &ShortcutMethod::failed, this, &GlobalShortcut::stateChanged);
    connect(_method.get(), &ShortcutMethod::unavailable, this, &GlobalShortcut::tryNext);
    _method->bind(_keys);
}

}  // namespace vantorel
