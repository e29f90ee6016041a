#pragma once

#include "screenpick/PickMethod.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusServiceWatcher>
#include <QObject>

namespace vantorel {

/// One `PickColor` call, from checking that the portal supports it to the user's answer.
///
/// It deletes itself when it is done: at the answer, or, if it is abandoned while the portal
/// prepares the pick, once the portal has returned the handle to close.
class PortalRequest final : public QObject {
    Q_OBJECT

public:
    explicit PortalRequest(const QDBusConnection& bus);

    /// `parentWindow` in the portal's form, may be empty.
    void start(const QString& parentWindow);
    /// Abandons the pick: `finished` is not emitted, and the portal closes its picker.
    void cancel();

signals:
    /// Emitted at most once, from the event loop.
    void finished(const vantorel::PickMethod::Outcome& outcome);

private slots:
    void responded(const QDBusMessage& message);
    void busHasGone();

private:
    void askForVersion();
    void takeVersion(const QDBusMessage& reply);
    void callPickColor();
    void takeHandle(const QDBusMessage& reply);
    void listenAt(const QString& handle);
    void closeAtPortal();
    void fail(const Phrase& clause);
    void finish(const PickMethod::Outcome& outcome);

    QDBusConnection _bus;
    QDBusServiceWatcher _portalWatcher;
    QString _parentWindow;
    QString _token;
    /// The object path of the portal's answer.
    QString _handle;
    bool _handleIsPending = false;
    /// The pick has finished or was abandoned.
    bool _over = false;
};

}  // namespace vantorel
