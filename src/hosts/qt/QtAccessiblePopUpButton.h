#pragma once

#include "hosts/qt/QtPopUpButton.h"

#include <QAccessibleWidget>

namespace vantorel {

/// A pop-up for assistive technology: a combo box that keeps its own name, and whose text, which
/// cannot be edited, is the selected item's title. An action opens it; keys also select items.
class QtAccessiblePopUpButton final : public QAccessibleWidget, public QAccessibleTextInterface {
public:
    QtAccessiblePopUpButton(QWidget* widget, QtPopUpButton& popUp);

    /// The title of the selected item; empty if there is none.
    [[nodiscard]] static QString shownText(const QtPopUpButton& popUp);

    void* interface_cast(QAccessible::InterfaceType type) override;
    [[nodiscard]] QAccessible::State state() const override;
    [[nodiscard]] QString text(QAccessible::Text kind) const override;

    [[nodiscard]] QStringList actionNames() const override;
    void doAction(const QString& action) override;
    [[nodiscard]] QStringList keyBindingsForAction(const QString& action) const override;

    // The text has no selection and cannot get one.
    void selection(int index, int* start, int* end) const override;
    [[nodiscard]] int selectionCount() const override { return 0; }
    void addSelection(int, int) override {}
    void removeSelection(int) override {}
    void setSelection(int, int, int) override {}
    [[nodiscard]] int cursorPosition() const override { return 0; }
    void setCursorPosition(int) override {}
    [[nodiscard]] QString text(int start, int end) const override;
    [[nodiscard]] int characterCount() const override;
    [[nodiscard]] QRect characterRect(int offset) const override;
    [[nodiscard]] int offsetAtPoint(const QPoint& point) const override;
    void scrollToSubstring(int, int) override {}
    QString attributes(int offset, int* start, int* end) const override;

private:
    QtPopUpButton& _popUp;
};

}  // namespace vantorel
