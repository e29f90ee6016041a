#pragma once

#include "panel/widgets/ColorFacts.h"
#include "panel/widgets/ColorField.h"
#include "panel/widgets/FormList.h"
#include "panel/window/ColorExchange.h"

#include <QMenu>
#include <QTimer>

namespace vantorel {

/// The panel's colour as texts: it is read from the field, and shown there, in the lines below and
/// in the list of forms.
class ColorEntry final : public QObject {
    Q_OBJECT

public:
    /// All must outlive the object.
    ColorEntry(ColorField& field, ColorFacts& facts, FormList& forms, PanelColors& colors,
               PanelPages& pages, ColorExchange& exchange);

signals:
    /// The text in the field is no longer wrong.
    void mended();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void read(const QString& text);
    void noteEdit(const QString& text);
    void giveUp();
    /// Shows the colour, also in place of a text that was typed but not entered.
    void show();
    void showTexts();
    void showFacts();
    void fillFormMenu();

    ColorField& _field;
    ColorFacts& _facts;
    FormList& _forms;
    PanelColors& _colors;
    ColorExchange& _exchange;
    QMenu* _formMenu;
    /// The snippets that pages do not offer.
    QMenu* _snippetMenu;
    QTimer _settingsMayHaveChanged;
};

}  // namespace vantorel
