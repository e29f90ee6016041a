#pragma once

#include "screenpick/PickMethod.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusServiceWatcher>
#include <QObject>

namespace vantorel {

/// One `PickColor` call, from the question whether there is such a thing to the user's answer.
///
/// It deletes itself when all is said: at the answer, or, where it is given up while the portal
/// still prepares the pick, once the portal has said what there is to close.
class PortalRequest final : public QObject {
    Q_OBJECT

public:
    PortalRequest(const QDBusConnection& bus, PickMethod::Done done);

    /// `parentWindow` in the portal's form, may be empty.
    void start(const QString& parentWindow);
    /// Gives the pick up: `done` is not called any more, and the portal takes its picker away.
    void cancel();

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
    void fail(const QString& clause);
    void finish(const PickMethod::Outcome& outcome);

    QDBusConnection _bus;
    PickMethod::Done _done;
    QDBusServiceWatcher _portalWatcher;
    QString _parentWindow;
    QString _token;
    /// Where the portal answers.
    QString _handle;
    bool _handleIsPending = false;
    /// The outcome has been told, or is no longer wanted.
    bool _over = false;
};

}  // namespace vantorel
