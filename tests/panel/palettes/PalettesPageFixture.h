#pragma once

#include "PanelWindowFixture.h"
#include "ScopedEnvironment.h"
#include "panel/palettes/PalettesPage.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace vantorel {

/// The folders of a user with two lists of their own and one of Krita.
class UserFolders {
protected:
    UserFolders()
    {
        _environment.set("XDG_DATA_HOME", at("data").toStdString());
        _environment.set("XDG_CONFIG_HOME", at("config").toStdString());
        _environment.set("XDG_DATA_DIRS", at("machine").toStdString());
        _environment.set("XDG_CONFIG_DIRS", at("machine").toStdString());
        // Lets the tests of permissions act as another user.
        QFile::setPermissions(_folder.path(), QFile::Permissions(0x7755));
        for (const char* path : {"data/Vantorel/Palettes", "data/krita/palettes", "elsewhere"})
            QDir().mkpath(at(path));
        put("data/Vantorel/Palettes/Reds.gpl", reds);
        put("data/Vantorel/Palettes/Blues.gpl",
            "GIMP Palette\nName: Blues\nColumns: 0\n  0   0 255\tblue\n");
        // A built-in list, which a process creates only once.
        put("data/Vantorel/Palettes/CSS Keyword.gpl",
            "GIMP Palette\nName: CSS Keyword\nColumns: 0\n  0   0 128\tNavy\n");
        put("data/krita/palettes/Web.gpl", "GIMP Palette\nName: Web\n  0 128 128\tteal\n");
    }

    [[nodiscard]] QString at(const QString& path) const { return _folder.filePath(path); }
    void put(const QString& path, const QByteArray& bytes) const
    {
        QFile file(at(path));
        file.open(QIODevice::WriteOnly);
        file.write(bytes);
    }
    /// The contents of a file, one colour a row as "name=ff0000"; "none" if there is no file.
    [[nodiscard]] std::string rowsAt(const QString& path) const
    {
        QFile file(at(path));
        if (!file.open(QIODevice::ReadOnly)) return "none";
        QStringList rows;
        for (const QByteArray& line : file.readAll().split('\n')) {
            const QList<QByteArray> parts = line.split('\t');
            if (parts.size() != 2) continue;
            const QList<QByteArray> numbers = parts.front().simplified().split(' ');
            rows.append(
                QString::fromUtf8(parts.back()) + u'=' +
                QColor(numbers[0].toInt(), numbers[1].toInt(), numbers[2].toInt()).name().mid(1));
        }
        return rows.join(u' ').toStdString();
    }
    [[nodiscard]] std::string own(const QString& name) const
    {
        return rowsAt("data/Vantorel/Palettes/" + name + ".gpl");
    }

    static constexpr const char* reds =
        "GIMP Palette\nName: Reds\nColumns: 0\n255   0   0\tred\n192   0   0\tdark\n"
        "128   0   0\tdarker\n 64   0   0\tdarkest\n";

    QTemporaryDir _folder;
    ScopedEnvironment _environment;
};

class PalettesPageTest : protected UserFolders, public PanelWindowFixture {
protected:
    void SetUp() override
    {
        PanelWindowFixture::SetUp();
        ASSERT_TRUE(_window->pages().showPageWithKey("palettes"));
        show("Reds");
        view()->setFocus();
        _window->colors().setColor(rgb(1, 2, 3));
    }

    [[nodiscard]] PaletteEntriesView* view() const
    {
        return static_cast<PaletteEntriesView*>(child<QWidget>("paletteEntries"));
    }
    [[nodiscard]] QComboBox* lists() const { return child<QComboBox>("paletteLists"); }
    [[nodiscard]] PalettesWidget* page() const
    {
        return static_cast<PalettesWidget*>(child<QWidget>("palettesPage"));
    }
    [[nodiscard]] PaletteFiles* files() const { return page()->findChild<PaletteFiles*>(); }
    [[nodiscard]] std::string message() const
    {
        return child<QLabel>("paletteMessage")->text().toStdString();
    }
    [[nodiscard]] std::string shownList() const { return lists()->currentText().toStdString(); }
    [[nodiscard]] std::string shownNames() const
    {
        QStringList names;
        for (int row = 0; row < view()->model()->rowCount(); ++row)
            names.append(view()->model()->index(row, 0).data().toString());
        return names.join(u' ').toStdString();
    }
    void show(const QString& list) const
    {
        const int index = lists()->findText(list);
        ASSERT_GE(index, 0) << list.toStdString();
        lists()->setCurrentIndex(index);
        emit lists()->activated(index);
    }
    [[nodiscard]] QPoint middleOf(int row) const
    {
        return view()->visualRect(view()->model()->index(row, 0)).center();
    }
    void click(int row, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::mouseClick(view()->viewport(), Qt::LeftButton, modifiers, middleOf(row));
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    [[nodiscard]] QAction* command(const char* text) const
    {
        for (QAction* action : page()->findChildren<QAction*>()) {
            if (action->text() == QLatin1String(text)) return action;
        }
        return nullptr;
    }
    /// Types into the field opened by a command.
    void typeName(const QString& name) const
    {
        auto* field = qobject_cast<QLineEdit*>(QApplication::focusWidget());
        ASSERT_NE(field, nullptr);
        field->selectAll();
        QTest::keyClicks(field, name);
        QTest::keyClick(field, Qt::Key_Return);
        // A row accepts the name once its field has received the key.
        QApplication::processEvents();
    }
    static bool drop(QWidget* target, const QMimeData& data, QPoint at)
    {
        QDragEnterEvent enter(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(target, &enter);
        if (!enter.isAccepted()) return false;
        QDropEvent event(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(target, &event);
        return event.isAccepted();
    }
};

}  // namespace vantorel
