#pragma once

#include "paletteedit/PaletteEditor.h"

#include <QComboBox>
#include <QLineEdit>

#include <vector>

namespace vantorel {

/// The pop-up of colour lists, the user's own first. A list is renamed in a field over it.
class PaletteListChooser final : public QComboBox {
    Q_OBJECT

public:
    explicit PaletteListChooser(QWidget* parent);

    /// Offers `palettes` and shows the one at `wanted`, or, if it has gone, its neighbour. Returns
    /// the list that is shown; 0 if there is none.
    PaletteId showLists(const std::vector<EditablePalette>& palettes, PaletteId wanted);
    /// The list that is shown; 0 if there is none.
    [[nodiscard]] PaletteId shownList() const { return currentData().toULongLong(); }

    /// Lets the user type a name for the list; `name` is the one that it has.
    void beginRename(const QString& name);
    /// Takes the name that the user is typing. Does nothing if there is none.
    void finishEditing() { endRename(true); }

signals:
    void listChosen(PaletteId list);
    /// The user has entered a name for the list that is shown; it may be the one that it has.
    void nameEntered(const QString& name);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void addList(const EditablePalette& palette);
    void endRename(bool takes);

    QLineEdit* _name;
};

}  // namespace vantorel
