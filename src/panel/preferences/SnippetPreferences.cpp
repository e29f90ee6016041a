#include "panel/preferences/SnippetPreferences.h"

#include "hosts/qt/PlainText.h"
#include "hosts/qt/QtColors.h"
#include "hosts/qt/QtToolButton.h"
#include "hosts/qt/TextScale.h"
#include "panel/preferences/SnippetEditor.h"
#include "panel/preferences/SnippetRows.h"
#include "panel/widgets/PanelIcons.h"
#include "result/HarmlessLine.h"
#include "snippets/SnippetFile.h"

#include <QEvent>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace vantorel {
namespace {

/// Larger files are rejected unread; nobody writes snippets that big.
constexpr qint64 largestSnippetFile = qint64{4} << 20;

QTXCodeSnippet newSnippet()
{
    return {u16From(SnippetPreferences::tr("New snippet")), u"#%06x", u"rgbPackedInt"};
}

}  // namespace

SnippetPreferences::SnippetPreferences(HostFiles& files, const HostColor& color, QWidget* parent)
    : QWidget(parent),
      _files(files),
      _store(files),
      _rows(new SnippetRows(this)),
      _editor(new SnippetEditor(this)),
      _message(new MessageLabel(this)),
      _more(new QMenu(this))
{
    makeActions();
    layOut();
    _editor->setNameCheck([this](const std::u16string& name) { return problemOfName(name); });
    connect(_rows, &QListWidget::currentRowChanged, this, &SnippetPreferences::showCurrent);
    connect(_rows, &SnippetRows::moveRequested, this, &SnippetPreferences::move);
    connect(_editor, &SnippetEditor::edited, this, &SnippetPreferences::replaceCurrent);
    connect(_editor, &SnippetEditor::copyRequested, this, &SnippetPreferences::copyRequested);
    setColor(color);
    _message->showMessages(_store.problems(), MessageLabel::Kind::failure);
}

SnippetPreferences::~SnippetPreferences()
{
    // The focus leaves the fields now, while what was typed can be entered.
    blockSignals(true);
    hide();
}

QAction* SnippetPreferences::add(const QString& text, const QIcon& icon,
                                 const QList<QKeySequence>& keys,
                                 void (SnippetPreferences::*step)())
{
    auto* action = new QAction(icon, plainTitle(text), this);
    action->setShortcuts(keys);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    connect(action, &QAction::triggered, this, step);
    addAction(action);
    return action;
}

void SnippetPreferences::makeActions()
{
    using Self = SnippetPreferences;
    _actions.add = add(tr("Add a snippet"), addIcon(), {QKeySequence::New}, &Self::addSnippet);
    _actions.add->setObjectName(QStringLiteral("addSnippet"));
    _actions.remove = add(tr("Remove the snippet"), removeIcon(), {}, &Self::removeSnippet);
    _actions.remove->setObjectName(QStringLiteral("removeSnippet"));
    // In a text the key deletes a letter.
    auto* removeKey = new QAction(_rows);
    removeKey->setShortcut(QKeySequence::Delete);
    removeKey->setShortcutContext(Qt::WidgetShortcut);
    connect(removeKey, &QAction::triggered, _actions.remove, &QAction::trigger);
    _rows->addAction(removeKey);
    _actions.up = add(tr("Move up"), upIcon(), {Qt::ALT | Qt::Key_Up}, &Self::moveUp);
    _actions.down = add(tr("Move down"), downIcon(), {Qt::ALT | Qt::Key_Down}, &Self::moveDown);
    _actions.undo = add(tr("Undo"), undoIcon(), {QKeySequence::Undo}, &Self::undo);
    _actions.redo = add(tr("Redo"), redoIcon(), {QKeySequence::Redo}, &Self::redo);
    _actions.duplicate = add(tr("Duplicate"), {}, {Qt::CTRL | Qt::Key_D}, &Self::duplicateSnippet);
    QAction* importing = add(tr("Import..."), {}, {}, &Self::chooseImport);
    QAction* exporting = add(tr("Export..."), {}, {}, &Self::chooseExport);
    _more->addAction(_actions.duplicate);
    _more->addAction(_actions.redo);
    _more->addSeparator();
    _more->addAction(importing);
    _more->addAction(exporting);
    _more->addSeparator();
    QAction* restored = add(tr("Restore the program's snippets"), {}, {}, &Self::restore);
    restored->setObjectName(QStringLiteral("restoreSnippets"));
    _more->addAction(restored);
}

void SnippetPreferences::layOut()
{
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(0);
    for (QAction* action :
         {_actions.add, _actions.remove, _actions.up, _actions.down, _actions.undo}) {
        auto* button = new QtToolButton(this);
        button->setDefaultAction(action);
        button->setAccessibleName(action->text());
        button->setFocusPolicy(Qt::StrongFocus);
        buttons->addWidget(button);
    }
    buttons->addStretch();
    auto* more = new QPushButton(tr("More"), this);
    more->setObjectName(QStringLiteral("moreSnippets"));
    more->setAutoDefault(false);
    more->setMenu(_more);
    more->setIcon(downIcon());
    more->setLayoutDirection(isRightToLeft() ? Qt::LeftToRight : Qt::RightToLeft);
    buttons->addWidget(more);

    constexpr int listWidth = 188;
    constexpr int besideList = 12;
    constexpr int belowList = 4;
    auto* left = new QVBoxLayout;
    left->setSpacing(scaled(belowList));
    _rows->setMinimumWidth(scaled(listWidth));
    left->addWidget(_rows, 1);
    left->addLayout(buttons);
    auto* columns = new QHBoxLayout;
    columns->setSpacing(scaled(besideList));
    columns->addLayout(left, 2);
    columns->addWidget(_editor, 3);
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    all->addLayout(columns, 1);
    all->addWidget(_message);
    _message->setVisible(false);
}

void SnippetPreferences::setColor(const HostColor& color)
{
    _spec = specOfColor(color);
    _editor->setColor(color);
    showSnippets();
}

void SnippetPreferences::showSnippets()
{
    QStringList lines;
    constexpr qsizetype longestLine = 300;
    for (const QTXCodeSnippet& snippet : _store.snippets()) {
        lines.append(
            qStringFrom(snippet.codeSnippetWithColorSpec(_spec)).left(longestLine).simplified());
    }
    _rows->setSnippets(_store.snippets(), lines);
    showCurrent();
}

void SnippetPreferences::showCurrent()
{
    const int row = _rows->currentRow();
    const int count = static_cast<int>(_store.snippets().size());
    const bool hasRow = row >= 0 && row < count;
    if (row != _current) _editor->finishEditing();
    _current = hasRow ? row : -1;
    _editor->setEnabled(hasRow);
    _editor->setSnippet(hasRow ? _store.snippets()[static_cast<std::size_t>(row)]
                               : QTXCodeSnippet());
    _actions.remove->setEnabled(hasRow);
    _actions.duplicate->setEnabled(hasRow);
    _actions.up->setEnabled(hasRow && row > 0);
    _actions.down->setEnabled(hasRow && row + 1 < count);
    _actions.undo->setEnabled(_store.canUndo());
    _actions.redo->setEnabled(_store.canRedo());
}

void SnippetPreferences::take(const Status& status)
{
    if (status) {
        _message->showMessages({}, MessageLabel::Kind::news);
        emit changed();
    } else {
        _message->showMessage(status.error(), MessageLabel::Kind::failure);
    }
    showSnippets();
}

void SnippetPreferences::change(const SnippetList& edited)
{
    take(_store.change(edited));
}

void SnippetPreferences::replaceCurrent(const QTXCodeSnippet& snippet)
{
    if (_current < 0 || _current >= static_cast<int>(_store.snippets().size())) return;
    SnippetList edited = _store.snippets();
    edited[static_cast<std::size_t>(_current)] = snippet;
    // The row keeps its place in the list by its name.
    if (QListWidgetItem* row = _rows->item(_current))
        row->setText(qStringFrom(snippet.nameSnippet().value_or(u"")));
    change(edited);
}

void SnippetPreferences::move(int row, int before)
{
    _editor->finishEditing();
    SnippetList edited = _store.snippets();
    const int count = static_cast<int>(edited.size());
    if (row < 0 || row >= count || before < 0 || before > count) return;
    if (before == row || before == row + 1) return;
    const auto begin = edited.begin();
    if (before < row) {
        std::rotate(begin + before, begin + row, begin + row + 1);
    } else {
        std::rotate(begin + row, begin + row + 1, begin + before);
    }
    change(edited);
}

Message SnippetPreferences::problemOfName(const std::u16string& name) const
{
    const auto isNamed = [&](const QTXCodeSnippet& snippet) {
        return snippet.nameSnippet() == name;
    };
    const bool isTaken = std::ranges::find(_store.takenNames(), name) != _store.takenNames().end();
    if (!isTaken && std::ranges::none_of(_store.snippets(), isNamed)) return {};
    return {phrase("there is already a snippet \"%1\"", name), phrase("give it another name")};
}

void SnippetPreferences::addSnippet()
{
    _editor->finishEditing();
    QTXCodeSnippet added = newSnippet();
    added.setNameSnippet(
        freeSnippetName(*added.nameSnippet(), _store.snippets(), _store.takenNames()));
    SnippetList edited = _store.snippets();
    edited.insert(edited.begin() + (_current + 1), added);
    change(edited);
    for (int i = 0; i < _rows->count(); ++i)
        if (_rows->item(i)->text() == qStringFrom(*added.nameSnippet())) _rows->setCurrentRow(i);
    _editor->editName();
}

void SnippetPreferences::duplicateSnippet()
{
    _editor->finishEditing();
    if (_current < 0) return;
    SnippetList edited = _store.snippets();
    QTXCodeSnippet copy = edited[static_cast<std::size_t>(_current)];
    copy.setNameSnippet(
        freeSnippetName(copy.nameSnippet().value_or(u""), edited, _store.takenNames()));
    edited.insert(edited.begin() + (_current + 1), copy);
    const int place = _current + 1;
    change(edited);
    _rows->setCurrentRow(place);
    _editor->editName();
}

void SnippetPreferences::removeSnippet()
{
    if (_current < 0) return;
    SnippetList edited = _store.snippets();
    const QString name =
        qStringFrom(edited[static_cast<std::size_t>(_current)].nameSnippet().value_or(u""));
    edited.erase(edited.begin() + _current);
    const Status status = _store.change(edited);
    take(status);
    if (!status) return;
    _message->showMessage(
        {phrase("\"%1\" removed", excerpt(name.toStdString())),
         phrase("press %1 to bring it back",
                _actions.undo->shortcut().toString(QKeySequence::NativeText).toStdString())},
        MessageLabel::Kind::news);
}

void SnippetPreferences::moveUp()
{
    if (_current > 0) move(_current, _current - 1);
}

void SnippetPreferences::moveDown()
{
    move(_current, _current + 2);
}

void SnippetPreferences::undo()
{
    _editor->finishEditing();
    take(_store.undo());
}

void SnippetPreferences::redo()
{
    take(_store.redo());
}

void SnippetPreferences::chooseImport()
{
    const QString path = QFileDialog::getOpenFileName(
        this, tr("Import snippets"), {}, tr("Property lists (*.plist);;All files (*)"));
    if (!path.isEmpty()) importFile(path);
}

void SnippetPreferences::importFile(const QString& path)
{
    _editor->finishEditing();
    const QFileInfo info(path);
    const std::string name = info.fileName().toStdString();
    QFile file(path);
    // Regular files only: reading a pipe could block the panel.
    if (!info.isFile() || info.size() > largestSnippetFile || !file.open(QIODevice::ReadOnly)) {
        _message->showMessage(
            {phrase("\"%1\" cannot be read", excerpt(name)),
             phrase("check that it is a file of at most 4 MiB that you can read")},
            MessageLabel::Kind::failure);
        return;
    }
    SnippetFileReading reading =
        readSnippetFile(file.read(largestSnippetFile).toStdString(), excerpt(name));
    const SnippetList edited =
        withImported(_store.snippets(), reading.snippets, _store.takenNames());
    const std::size_t count = edited.size() - _store.snippets().size();
    if (count > 0) {
        const Status status = _store.change(edited);
        take(status);
        if (!status) return;
    }
    std::vector<Message> messages{{phrase("snippets imported: %1", count)}};
    messages.insert(messages.end(), reading.problems.begin(), reading.problems.end());
    _message->showMessages(messages, reading.problems.empty() ? MessageLabel::Kind::news
                                                              : MessageLabel::Kind::failure);
}

void SnippetPreferences::chooseExport()
{
    _editor->finishEditing();
    const QString path =
        QFileDialog::getSaveFileName(this, tr("Export snippets"), QStringLiteral("Snippets.plist"),
                                     tr("Property lists (*.plist);;All files (*)"));
    if (!path.isEmpty()) exportFile(path);
}

void SnippetPreferences::exportFile(const QString& path)
{
    const bool isWritten = _files.writeForOthers(QFile::encodeName(path).toStdString(),
                                                 snippetFileText(_store.snippets()));
    if (isWritten) {
        _message->showMessage({phrase("saved as %1", path.toStdString())},
                              MessageLabel::Kind::news);
    } else {
        _message->showMessage(
            {phrase("\"%1\" could not be written", path.toStdString()),
             phrase("check that you can write to its folder and that the disk has room")},
            MessageLabel::Kind::failure);
    }
}

void SnippetPreferences::restore()
{
    _editor->finishEditing();
    change(withShippedRestored(_store.snippets(), _store.shipped()));
}

bool SnippetPreferences::event(QEvent* event)
{
    // Another program may have changed the file while its window was used.
    if (event->type() == QEvent::WindowActivate && _store.refresh()) {
        showSnippets();
        emit changed();
    }
    return QWidget::event(event);
}

void SnippetPreferences::hideEvent(QHideEvent* event)
{
    _editor->finishEditing();
    QWidget::hideEvent(event);
}

}  // namespace vantorel
