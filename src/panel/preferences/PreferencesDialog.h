#pragma once

#include <QDialog>

namespace vantorel {

class PanelPreferences;
class GeneralPreferences;

/// The panel's preferences. A change takes effect at once, so there are no buttons that accept or
/// reject. The dialog deletes itself when it is closed.
class PreferencesDialog final : public QDialog {
    Q_OBJECT

public:
    /// The preferences must outlive the dialog.
    PreferencesDialog(PanelPreferences& preferences, QWidget* parent);

    /// Where further rows can be added.
    [[nodiscard]] GeneralPreferences& general() const { return *_general; }

private:
    GeneralPreferences* _general;
};

}  // namespace vantorel
