#pragma once

#include <QObject>

namespace vantorel {

/// Keeps exceptions of a page from the event loop of a program that does not expect any: most
/// programs end then. In our own programs no guard is installed, and exceptions reach `main`.
class EventGuard final : public QObject {
    Q_OBJECT

public:
    /// Called while the exception is being handled, with the object whose event has caused it. Must
    /// not throw.
    using Failed = void (*)(QObject& where);

    /// From now on, new objects of pages are guarded.
    static void install(Failed failed);
    /// Catches what the event handler of an object throws. Call it for a new object that has no
    /// event filter yet: only filters that are added later see its events.
    static void watch(QObject& object);
    /// Runs code that another event handler calls.
    template <class Code>
    static void run(QObject& where, const Code& code)
    {
        if (installed() == nullptr) {
            code();
            return;
        }
        try {
            code();
        } catch (...) {
            installed()->_failed(where);
        }
    }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    explicit EventGuard(Failed failed) : _failed(failed) {}

    static EventGuard*& installed();

    Failed _failed;
};

}  // namespace vantorel
