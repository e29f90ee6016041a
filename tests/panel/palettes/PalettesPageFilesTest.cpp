#include "PalettesPageFixture.h"
#include "colorlists/PaletteFile.h"
#include "listformats/ListFormats.h"

#include <QMimeData>
#include <QUrl>

#include <unistd.h>

namespace vantorel {
namespace {

TEST_F(PalettesPageTest, DroppedFilesAreImported)
{
    put("elsewhere/a.gpl", "GIMP Palette\nName: Reds\n1 2 3\tfirst\nnonsense\n");
    put("elsewhere/b.colors", "KDE RGB Palette\n4 5 6 second\n");
    put("elsewhere/c.gpl", "a shopping list");
    QMimeData data;
    data.setUrls(
        {QUrl::fromLocalFile(at("elsewhere/a.gpl")), QUrl::fromLocalFile(at("elsewhere/b.colors")),
         QUrl::fromLocalFile(at("elsewhere/c.gpl")), QUrl::fromLocalFile(at("elsewhere"))});
    EXPECT_TRUE(drop(page(), data, {50, 50}));
    EXPECT_EQ(own("Reds 2"), "first=010203");
    EXPECT_EQ(own("b"), "second=040506");
    for (const char* part :
         {"\"Reds 2\" has been imported", "\"b\" has been imported", "left out: 1",
          "\"c.gpl\" is not a colour list", "\"elsewhere\" cannot be read"}) {
        EXPECT_THAT(message(), testing::HasSubstr(part));
    }
    EXPECT_EQ(own("Reds"), "red=ff0000 dark=c00000 darker=800000 darkest=400000");
    press(Qt::Key_Z, Qt::ControlModifier);
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(own("Reds 2") + own("b"), "nonenone");
}

TEST_F(PalettesPageTest, ColoursAreDroppedBetweenRows)
{
    QMimeData data;
    data.setText("#00ff00");
    const QRect second = view()->visualRect(view()->model()->index(1, 0));
    EXPECT_TRUE(drop(view()->viewport(), data, second.topLeft() + QPoint(5, 2)));
    EXPECT_EQ(own("Reds"), "red=ff0000 #00FF00=00ff00 dark=c00000 darker=800000 darkest=400000");
    data.setText("no colour");
    EXPECT_FALSE(drop(view()->viewport(), data, second.topLeft()));
    EXPECT_EQ(own("Reds"), "red=ff0000 #00FF00=00ff00 dark=c00000 darker=800000 darkest=400000");
    EXPECT_NE(message(), "");
}

TEST_F(PalettesPageTest, ACopyIsSavedInTheStrictForm)
{
    files()->saveCopy(at("elsewhere/copy.gpl"));
    QFile file(at("elsewhere/copy.gpl"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), QByteArray(reds));
    files()->saveCopy(at("no/such/folder/copy.gpl"));
    EXPECT_THAT(message(), testing::HasSubstr("could not be written"));
}

TEST_F(PalettesPageTest, EveryFormatIsSavedAndImported)
{
    const auto list = readPalette(reds, u"")->list;
    const std::string original = own("Reds");
    for (const ListFormat& format : listFormats()) {
        for (const std::string_view ending : format.endings) {
            show("Reds");
            const QString path =
                at("elsewhere/copy.") + QString::fromStdString(std::string(ending));
            files()->saveCopy(path);
            QFile file(path);
            ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << ending;
            EXPECT_EQ(file.readAll().toStdString(), format.write(*list)) << ending;
            if (!format.isRead) continue;
            files()->importFiles({path});
            EXPECT_NE(shownList(), "Reds") << ending << message();
            EXPECT_EQ(own(lists()->currentText()), original) << ending;
        }
    }
}

TEST_F(PalettesPageTest, APictureIsNotImported)
{
    files()->saveCopy(at("elsewhere/copy.svg"));
    files()->importFiles({at("elsewhere/copy.svg")});
    EXPECT_THAT(message(), testing::HasSubstr("\"copy.svg\" is not a colour list"));
}

/// Acts as a user without write permission for the test's folders.
class ReadOnlyFolder {
public:
    explicit ReadOnlyFolder(const QString& path) : _path(path)
    {
        setMode("a-w");
        if (::geteuid() == 0) _isOtherUser = ::seteuid(65534) == 0;
    }
    ReadOnlyFolder(const ReadOnlyFolder&) = delete;
    ReadOnlyFolder& operator=(const ReadOnlyFolder&) = delete;
    ~ReadOnlyFolder()
    {
        if (_isOtherUser && ::seteuid(0) != 0) std::abort();
        setMode("u+w");
    }

private:
    void setMode(const char* change) const
    {
        QFile::Permissions mode = QFile::permissions(_path);
        const bool writable = change[0] == 'u';
        mode.setFlag(QFile::WriteOwner, writable);
        mode.setFlag(QFile::WriteUser, writable);
        QFile::setPermissions(_path, mode);
    }

    QString _path;
    bool _isOtherUser = false;
};

TEST_F(PalettesPageTest, AnUnwritableFolderLosesNoData)
{
    const std::string before = own("Reds");
    {
        const ReadOnlyFolder folder(at("data/Vantorel/Palettes"));
        click(0, Qt::ControlModifier);
        press(Qt::Key_Delete);
        EXPECT_THAT(message(), testing::HasSubstr("\"Reds\" could not be saved"));
        EXPECT_THAT(message(), testing::HasSubstr(at("data/Vantorel/Palettes").toStdString()));
        EXPECT_EQ(shownNames(), "red dark darker darkest");
        command("Remove the list")->trigger();
        EXPECT_THAT(message(), testing::HasSubstr("could not be removed"));
        EXPECT_EQ(shownList(), "Reds");
        press(Qt::Key_N, Qt::ControlModifier);
        EXPECT_THAT(message(), testing::HasSubstr("could not be saved"));
        EXPECT_FALSE(command("Undo")->isEnabled());
    }
    EXPECT_EQ(own("Reds"), before);
    press(Qt::Key_Delete);
    EXPECT_EQ(own("Reds"), "dark=c00000 darker=800000 darkest=400000") << "it works again";
}

}  // namespace
}  // namespace vantorel
