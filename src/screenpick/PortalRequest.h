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
    explicit PortalRequest(const QDBusConnection& bus);

    /// `parentWindow` in the portal's form, may be empty.
    void start(const QString& parentWindow);
    /// Gives the pick up: it does not finish any more, and the portal takes its picker away.
    void cancel();

signals:
    /// The pick is over. Comes at most once, from the event loop.
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
    /// Where the portal answers.
    QString _handle;
    bool _handleIsPending = false;
    /// The pick is over, or is no longer wanted.
    bool _over = false;
};

}  // namespace vantorel
