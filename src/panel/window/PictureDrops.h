#pragma once

#include <QMimeData>
#include <QObject>
#include <QWidget>

namespace vantorel {

/// Takes pictures that are dropped on a window, wherever no control of it takes them.
class PictureDrops final : public QObject {
    Q_OBJECT

public:
    /// The window owns the object.
    explicit PictureDrops(QWidget& window);

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    /// Files, of which the first one on this computer is a picture, or a picture without a file.
    void dropped(const QMimeData& data);
};

}  // namespace vantorel
