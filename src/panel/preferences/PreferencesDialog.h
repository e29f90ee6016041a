#pragma once

#include <QDialog>

#include <functional>
#include <vector>

class QListWidget;
class QStackedWidget;

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

    using MakePage = std::function<QWidget*(QWidget* parent)>;
    /// Adds a page after the others. It is made when it is first shown.
    void addPage(const QString& name, MakePage makePage);
    /// Shows the page at a place; the general one is 0.
    void showPage(int page);

private:
    GeneralPreferences* _general;
    QListWidget* _names;
    QStackedWidget* _pages;
    /// For each page that has not been shown yet.
    std::vector<MakePage> _makers;
};

}  // namespace vantorel
