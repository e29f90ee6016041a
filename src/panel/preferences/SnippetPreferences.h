#pragma once

#include "color/QTXHexColorSpec.h"
#include "panel/widgets/MessageLabel.h"
#include "settings/SnippetStore.h"

#include <QAction>
#include <QMenu>
#include <QWidget>

namespace vantorel {

class HostColor;
class SnippetEditor;
class SnippetRows;

/// The page of the preferences that edits the user's snippets and those of the program. Each step
/// is saved at once.
class SnippetPreferences final : public QWidget {
    Q_OBJECT

public:
    /// `files` must outlive the page.
    SnippetPreferences(HostFiles& files, const HostColor& color, QWidget* parent);
    ~SnippetPreferences() override;

    /// Shows the lines of this colour.
    void setColor(const HostColor& color);
    void importFile(const QString& path);
    void exportFile(const QString& path);

signals:
    /// The snippets are other ones.
    void changed();
    void copyRequested(const QString& text);

protected:
    bool event(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void makeActions();
    QAction* add(const QString& text, const QIcon& icon, const QList<QKeySequence>& keys,
                 void (SnippetPreferences::*step)());
    void layOut();
    void showSnippets();
    void showCurrent();
    void take(const Status& status);
    void change(const SnippetList& edited);
    void replaceCurrent(const QTXCodeSnippet& snippet);
    void move(int row, int before);
    [[nodiscard]] Message problemOfName(const std::u16string& name) const;

    void addSnippet();
    void duplicateSnippet();
    void removeSnippet();
    void moveUp();
    void moveDown();
    void undo();
    void redo();
    void chooseImport();
    void chooseExport();
    void restore();

    HostFiles& _files;
    SnippetStore _store;
    SnippetRows* _rows;
    SnippetEditor* _editor;
    MessageLabel* _message;
    QMenu* _more;
    struct Actions {
        QAction* add = nullptr;
        QAction* remove = nullptr;
        QAction* up = nullptr;
        QAction* down = nullptr;
        QAction* undo = nullptr;
        QAction* redo = nullptr;
        QAction* duplicate = nullptr;
    };
    Actions _actions;
    QTXHexColorSpec _spec;
    /// The place of the snippet in the editor; -1 without one.
    int _current = -1;
};

}  // namespace vantorel
