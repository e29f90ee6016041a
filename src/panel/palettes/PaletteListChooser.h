#pragma once

#include "paletteedit/PaletteEditor.h"
#include "panel/palettes/PaletteListModel.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

#include <vector>

namespace vantorel {

/// The pop-up of colour lists, the user's own first. A list is renamed in a field that covers the
/// pop-up.
class PaletteListChooser final : public QComboBox {
    Q_OBJECT

public:
    explicit PaletteListChooser(QWidget* parent);

    /// Offers `palettes` and shows `wanted`, or its neighbour if it no longer exists. Returns the
    /// shown list; 0 if there is none.
    PaletteId showLists(const std::vector<EditablePalette>& palettes, PaletteId wanted);
    /// The shown list; 0 if there is none.
    [[nodiscard]] PaletteId shownList() const { return _rows->listAt(currentIndex()); }

    /// Shows after the name how many colours the list has.
    void showCount(const QString& count);

    /// Lets the user type a name for the list; `name` is the current one.
    void beginRename(const QString& name);
    /// Applies the name that the user is typing, if any.
    void finishEditing() { endRename(true); }

signals:
    void listChosen(PaletteId list);
    /// The user has entered a name for the shown list. It may be the current one.
    void nameEntered(const QString& name);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void endRename(bool takes);

    PaletteListModel* _rows;
    QLineEdit* _name;
    QLabel* _count;
};

}  // namespace vantorel
