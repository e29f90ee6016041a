#pragma once

#include "hosts/qt-dialog/DialogPanel.h"
#include "hosts/qt-dialog/PageHolder.h"

#include <QColorDialog>
#include <QPointer>

namespace vantorel {

/// The page in one colour dialog. It is a further part of the dialog, whose buttons, modality,
/// options, result and signals stay its own. The dialog owns it.
// NOLINTNEXTLINE(cppcoreguidelines-virtual-class-destructor): nobody else may destroy it.
class DialogPage final : public QObject, private EmbeddingDialog {
    Q_OBJECT

public:
    /// Puts a page into a dialog that is about to be shown; only once into each. The dialog stays
    /// as it is if the page cannot be created.
    static void putInto(QColorDialog& dialog, const LoadedPlugin& plugin, QtDesktop& desktop);

    /// For `EventGuard`: the page that the widget belongs to has failed.
    static void pageHasThrown(QObject& widget);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    DialogPage(QColorDialog& dialog, QtDesktop& desktop);
    ~DialogPage() override;

    bool show(const LoadedPlugin& plugin);
    bool makeRoom(HostSize preferred, HostSize least) override;
    void colorChosen(const HostColor& color, bool isFinal) override;
    HostSize growHolder(HostSize growth) override { return _holder.grow(growth); }
    void pageDidFail() override;
    void dialogIsDestroyed();
    void deleteWhenIdle();
    /// Follows the OK buttons of the window, which may be the dialog's or those of a window that
    /// the dialog is a part of.
    void followButtons();
    void finishEntry();

    /// The dialog, or null from the moment its destruction begins.
    [[nodiscard]] QColorDialog* dialog() const { return qobject_cast<QColorDialog*>(_dialog); }

    /// Not a pointer to a `QColorDialog`: events still come while the dialog is destroyed and is
    /// just a widget.
    QPointer<QObject> _dialog;
    PageHolder _holder;
    DialogPanel _panel;
};

}  // namespace vantorel
