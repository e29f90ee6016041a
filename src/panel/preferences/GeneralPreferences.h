#pragma once

#include <QWidget>

class QCheckBox;
class QComboBox;
class QGridLayout;
class QKeySequenceEdit;
class QLabel;

namespace vantorel {

class PanelPreferences;
class SegmentedChoice;

/// The first page of the preferences: theme, text size and picking.
class GeneralPreferences final : public QWidget {
    Q_OBJECT

public:
    GeneralPreferences(PanelPreferences& preferences, QWidget* parent);

    /// Adds a control below the others, with its name beside it; an empty name continues the row
    /// before. A name is also what screen readers call the control.
    void addRow(const QString& name, QWidget& control);
    /// Adds a line between groups of rows.
    void addRule();
    /// Adds the choice to keep running when the window is closed.
    void addResidence();
    /// Adds the key that picks from anywhere.
    void addShortcut();
    /// Adds a sentence below a control.
    QLabel* addNote(const QString& text);

private:
    void addTheme();
    void addTextSize();
    void addPicking();
    void showPreferences();
    void showShortcut();
    void changeTheme();

    PanelPreferences& _preferences;
    QGridLayout* _rows;
    SegmentedChoice* _theme;
    QCheckBox* _desktopStyle;
    QComboBox* _textSize;
    QComboBox* _afterPicking;
    SegmentedChoice* _average;
    /// Null unless it was added.
    QCheckBox* _residence = nullptr;
    QKeySequenceEdit* _shortcut = nullptr;
    QLabel* _shortcutNote = nullptr;
};

}  // namespace vantorel
