#pragma once

#ifndef Q_MOC_RUN  // moc cannot read concepts
#include "result/Message.h"
#endif

#include <QKeySequence>
#include <QObject>

namespace vantorel {

/// A way to get a key of the whole desktop. Its destruction gives the key back.
class ShortcutMethod : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// Asks for the first key of a sequence. Call it once.
    virtual void bind(const QKeySequence& keys) = 0;

signals:
    void activated();
    /// The key is bound.
    void bound();
    /// The desktop does not have this method.
    void unavailable();
    void failed(const vantorel::Message& reason);
};

}  // namespace vantorel
