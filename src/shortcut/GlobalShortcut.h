#pragma once

#include "shortcut/ShortcutMethod.h"

#include <functional>
#include <memory>
#include <vector>

namespace vantorel {

/// A key that works in all programs: by the desktop portal where there is one, otherwise by the X
/// server.
class GlobalShortcut final : public QObject {
    Q_OBJECT

public:
    using MakeMethod = std::function<std::unique_ptr<ShortcutMethod>()>;
    /// The methods of the desktop, most wanted first.
    [[nodiscard]] static std::vector<MakeMethod> desktopMethods();

    explicit GlobalShortcut(QObject* parent = nullptr,
                            std::vector<MakeMethod> methods = desktopMethods());
    ~GlobalShortcut() override;

    /// Binds the first key of a sequence in place of the one before; an empty sequence binds none.
    void setKeys(const QKeySequence& keys);

signals:
    void activated();
    /// Why the key does not work; empty if it does, or if there is none.
    void stateChanged(const vantorel::Message& problem);

private:
    void tryNext();

    std::vector<MakeMethod> _methods;
    std::size_t _tried = 0;
    std::unique_ptr<ShortcutMethod> _method;
    QKeySequence _keys;
};

}  // namespace vantorel
