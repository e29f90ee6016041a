#pragma once

#include "hosts/qt/ClipboardLineEdit.h"
#include "panel/widgets/NameCompletion.h"

#include <QAction>
#include <QMenu>
#include <QToolButton>

namespace vantorel {

/// The text of the panel's colour, in one frame with the menu of its forms and the buttons that
/// copy it. Any text may be typed; the field does not read it.
class ColorField final : public QWidget {
    Q_OBJECT

public:
    explicit ColorField(QWidget* parent = nullptr);

    /// Shows a colour's text in place of what is there, even while it is edited.
    void setText(const QString& text);
    [[nodiscard]] QString text() const;
    /// Whether the user has changed the text and not entered it yet.
    [[nodiscard]] bool isEdited() const { return _edit->isModified(); }
    /// Shows the name of the form at the left, as far as there is room. An empty name leaves only
    /// the arrow.
    void setFormName(const QString& name);
    void setFormMenu(QMenu& menu) { _form->setMenu(&menu); }
    void setCopyActions(QAction& copy, QMenu& copyMenu);
    /// Marks a text that could not be read.
    void setHasError(bool hasError);
    [[nodiscard]] bool hasError() const { return _hasError; }
    /// Offers names that begin with what is typed, from the first letter on. Choosing one enters
    /// it.
    void setNames(std::vector<NameCompletion::Row> names);
    /// Enters a text that was typed but not entered yet.
    void finishEditing();

signals:
    /// The user has entered a text, by Return or by leaving the field.
    void entered(const QString& text);
    /// The user has changed the text, but not entered it.
    void edited(const QString& text);
    /// Escape was pressed: the colour's text is wanted back.
    void cancelled();
    /// Ctrl+C was pressed without a selection.
    void copyRequested();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    /// Gives the text the largest size in which the whole of it is visible.
    void layOut();

    QToolButton* _form;
    ClipboardLineEdit* _edit;
    QToolButton* _copy;
    QToolButton* _copyMenu;
    /// Null until there are names.
    NameCompletion* _completion = nullptr;
    QString _formName;
    bool _hasError = false;
};

}  // namespace vantorel
