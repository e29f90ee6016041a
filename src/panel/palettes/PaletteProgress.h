#pragma once

#include <QLabel>
#include <QWidget>

namespace vantorel {

/// A row that is shown while many lists, or a long one, are read: how far the reading has come, and
/// a button that stops it. It is hidden at first.
class PaletteProgress final : public QWidget {
    Q_OBJECT

public:
    explicit PaletteProgress(QWidget* parent);

    /// Shows the row, and in it what has been read so far.
    void showProgress(const QString& text);

signals:
    void stopPressed();

private:
    QLabel* _text;
};

}  // namespace vantorel
