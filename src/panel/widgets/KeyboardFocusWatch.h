#pragma once

#include <QObject>

namespace vantorel {

/// Keeps Qt's mark of windows whose focus is to be seen (`Qt::WA_KeyboardFocusChange`). Qt sets it
/// when Tab or a shortcut moves the focus and never takes it back; here a click takes it back, and
/// every key but Shift and its like sets it.
class KeyboardFocusWatch final : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace vantorel
