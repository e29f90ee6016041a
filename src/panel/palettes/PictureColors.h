#pragma once

#include "panel/palettes/PaletteEntriesView.h"
#include "panel/palettes/PictureView.h"

#include <QDialog>
#include <QLabel>
#include <QSpinBox>

namespace vantorel {

/// A window with a picture and its main colours, which can be kept as a list. Colours of the list
/// and of the picture can be chosen for the panel. It deletes itself when it is closed.
class PictureColors final : public QDialog {
    Q_OBJECT

public:
    static constexpr int usualCount = 10;
    static constexpr int largestCount = 32;

    /// `name` is that of the picture. The picture must not be null.
    PictureColors(const QImage& picture, const QString& name, QWidget* parent);

signals:
    void colorChosen(const vantorel::HostColor& color);
    /// The user wants a list of these colours.
    void kept(const QString& name, const vantorel::PaletteEntries& entries);

private:
    void findColors();
    void showPointedAt(const QColor& color);

    QImage _picture;
    PictureView* _view;
    QLabel* _pointedAt;
    QSpinBox* _count;
    PaletteEntriesView* _colors;
};

}  // namespace vantorel
