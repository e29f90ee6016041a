#include "PalettesPageFixture.h"
#include "panel/palettes/PictureColors.h"
#include "panel/palettes/PictureFile.h"

#include <QClipboard>
#include <QColorSpace>
#include <QImage>
#include <QMimeData>
#include <QPainter>
#include <QPushButton>
#include <QSpinBox>
#include <QUrl>

namespace vantorel {
namespace {

/// Half of it white, a quarter of it blue and a quarter transparent.
QImage flag()
{
    QImage image(40, 20, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.fillRect(0, 0, 40, 10, Qt::white);
    painter.fillRect(0, 10, 20, 10, QColor("#3b82f6"));
    return image;
}

class PictureColorsTest : public PalettesPageTest {
protected:
    void TearDown() override
    {
        if (PictureColors* open = window()) open->close();
        QApplication::clipboard()->clear();
    }

    [[nodiscard]] PictureColors* window() const
    {
        const auto all = page()->findChildren<PictureColors*>();
        return all.isEmpty() ? nullptr : all.last();
    }
    template <class Widget>
    [[nodiscard]] Widget* part(const char* name) const
    {
        return window()->findChild<Widget*>(name);
    }
    [[nodiscard]] std::string colors() const
    {
        if (window() == nullptr) return "no window";
        QStringList rows;
        const auto* list = static_cast<PaletteEntriesView*>(part<QWidget>("pictureMainColors"));
        for (int row = 0; row < list->model()->rowCount(); ++row)
            rows.append(list->model()->index(row, 0).data(Qt::AccessibleTextRole).toString());
        return rows.join("; ").toStdString();
    }
    QString save(const QString& name, const char* format) const
    {
        flag().save(at("elsewhere/" + name), format, 100);
        return at("elsewhere/" + name);
    }
};

TEST_F(PictureColorsTest, AFileShowsItsMainColoursAndTheyAreKept)
{
    files()->openPicture(save("Flag.png", "PNG"));
    ASSERT_NE(window(), nullptr) << message();
    EXPECT_EQ(colors(), "white, #FFFFFF; dodgerblue, #3B82F6");
    part<QPushButton>("pictureKeep")->click();
    EXPECT_EQ(own("Flag"), "white=ffffff dodgerblue=3b82f6");
    EXPECT_EQ(shownList(), "Flag");
    command("Undo")->trigger();
    EXPECT_EQ(own("Flag"), "none");
}

TEST_F(PictureColorsTest, TheNumberOfColoursIsTheUsers)
{
    files()->openPicture(save("Flag.png", "PNG"));
    ASSERT_NE(window(), nullptr);
    part<QSpinBox>("pictureCount")->setValue(1);
    EXPECT_EQ(colors(), "white, #FFFFFF");
}

TEST_F(PictureColorsTest, ColoursOfTheListAndOfThePictureAreChosen)
{
    files()->openPicture(save("Flag.png", "PNG"));
    ASSERT_NE(window(), nullptr);
    auto* list = static_cast<PaletteEntriesView*>(part<QWidget>("pictureMainColors"));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                      list->visualRect(list->model()->index(1, 0)).center());
    EXPECT_EQ(chosenColor(), QColor("#3b82f6"));

    auto* view = part<PictureView>("pictureView");
    // The picture is twice as wide as high, and in the middle.
    const int width = std::min(view->width(), 2 * view->height());
    const QPoint middle = view->rect().center();
    QTest::mouseClick(view, Qt::LeftButton, {}, middle - QPoint(0, width / 8));
    EXPECT_EQ(chosenColor(), QColor("#ffffff"));
    QTest::mouseClick(view, Qt::LeftButton, {}, middle + QPoint(-width / 4, width / 8));
    EXPECT_EQ(chosenColor(), QColor("#3b82f6"));
    QTest::mouseClick(view, Qt::LeftButton, {}, middle - QPoint(0, width / 8));
    QTest::mouseClick(view, Qt::LeftButton, {}, middle + QPoint(width / 4, width / 8));
    EXPECT_EQ(chosenColor(), QColor("#ffffff")) << "where it is transparent there is no colour";
}

TEST_F(PictureColorsTest, TheKeyboardReachesEveryPixel)
{
    files()->openPicture(save("Flag.png", "PNG"));
    ASSERT_NE(window(), nullptr);
    auto* view = part<PictureView>("pictureView");
    for (int i = 0; i < 100; ++i)
        QTest::keyClick(view, Qt::Key_Left, Qt::ShiftModifier);
    QTest::keyClick(view, Qt::Key_Up);
    for (int i = 0; i < 100; ++i)
        QTest::keyClick(view, Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(view->accessibleDescription(), "#3b82f6");
    EXPECT_EQ(part<QLabel>("picturePointedAt")->text(), "#3b82f6");
    QTest::keyClick(view, Qt::Key_Return);
    EXPECT_EQ(chosenColor(), QColor("#3b82f6"));
    for (int i = 0; i < 100; ++i)
        QTest::keyClick(view, Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(view->accessibleDescription(), "transparent");
}

TEST_F(PictureColorsTest, PicturesAreDroppedAndPasted)
{
    QMimeData file;
    file.setUrls({QUrl::fromLocalFile(save("dropped.png", "PNG"))});
    EXPECT_TRUE(drop(page(), file, {50, 50}));
    EXPECT_EQ(colors(), "white, #FFFFFF; dodgerblue, #3B82F6");
    EXPECT_TRUE(window()->windowTitle().contains("dropped"));
    window()->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    QMimeData fromBrowser;
    fromBrowser.setUrls({QUrl("https://example.org/a.png")});
    fromBrowser.setImageData(flag());
    EXPECT_TRUE(drop(page(), fromBrowser, {50, 50}));
    EXPECT_EQ(colors(), "white, #FFFFFF; dodgerblue, #3B82F6");
    window()->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    _window->pages().showPage(0);
    QApplication::clipboard()->setImage(flag());
    _window->exchange().paste();
    EXPECT_TRUE(QTest::qWaitFor([&] { return window() != nullptr; }));
    EXPECT_EQ(colors(), "white, #FFFFFF; dodgerblue, #3B82F6");
}

TEST_F(PictureColorsTest, SvgIsAPictureAndListsAreImported)
{
    put("elsewhere/p.svg",
        "<svg xmlns='http://www.w3.org/2000/svg' width='4' height='4'>"
        "<rect width='4' height='4' fill='#ff6347'/></svg>");
    put("elsewhere/l.gpl", "GIMP Palette\nName: L\n1 2 3\tfirst\n");
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(at("elsewhere/l.gpl"))});
    EXPECT_TRUE(drop(page(), data, {50, 50}));
    EXPECT_EQ(own("L"), "first=010203");
    EXPECT_EQ(window(), nullptr);
    data.setUrls({QUrl::fromLocalFile(at("elsewhere/p.svg"))});
    EXPECT_TRUE(drop(page(), data, {50, 50}));
    EXPECT_EQ(colors(), "tomato, #FF6347");
}

/// A drawing in tomato that names a picture to be painted over it.
QByteArray drawingWith(const char* attribute, const QString& picture)
{
    return "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' "
           "width='4' height='4'><rect width='4' height='4' fill='#ff6347'/><image width='4' "
           "height='4' " +
           QByteArray(attribute) + "='" + picture.toUtf8() + "'/></svg>";
}

TEST_F(PictureColorsTest, ADrawingOpensNoOtherFile)
{
    const QString other = save("other.png", "PNG");
    for (const char* attribute : {"href", "xlink:href", "xlink:HREF"}) {
        put("elsewhere/p.svg", drawingWith(attribute, other));
        const auto picture = readPicture(at("elsewhere/p.svg"));
        ASSERT_TRUE(picture) << attribute;
        EXPECT_EQ(picture->pixelColor(300, 450), QColor(0xFF, 0x63, 0x47)) << attribute;
    }
}

TEST_F(PictureColorsTest, ADrawingThatIsPastedOrDroppedOpensNoOtherFile)
{
    const QByteArray drawing = drawingWith("xlink:href", save("other.png", "PNG"));
    // Its owner may give it a wrong name.
    for (const char* format : {"image/svg+xml", "image/png"}) {
        QMimeData dropped;
        dropped.setData(format, drawing);
        EXPECT_TRUE(drop(page(), dropped, {50, 50})) << format;
        EXPECT_EQ(colors(), "tomato, #FF6347") << format;
        window()->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

        auto pasted = std::make_unique<QMimeData>();
        pasted->setData(format, drawing);
        QApplication::clipboard()->setMimeData(pasted.release());
        _window->exchange().paste();
        EXPECT_TRUE(QTest::qWaitFor([&] { return window() != nullptr; })) << format;
        EXPECT_EQ(colors(), "tomato, #FF6347") << format;
        window()->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

TEST_F(PictureColorsTest, TheFormatWithEveryPixelIsReadFirst)
{
    QMimeData data;
    data.setData("image/svg+xml", drawingWith("x", {}));
    data.setData("image/png", [this] {
        QFile file(save("flag.png", "PNG"));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }());
    EXPECT_TRUE(drop(page(), data, {50, 50}));
    EXPECT_EQ(colors(), "white, #FFFFFF; dodgerblue, #3B82F6");
}

TEST_F(PictureColorsTest, BrokenAndGiantPicturesAreReported)
{
    const QByteArray whole = [this] {
        QFile file(save("whole.png", "PNG"));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }();
    ASSERT_GT(whole.size(), 60);
    put("elsewhere/half.png", whole.left(whole.size() / 2));
    // The width of the header, with no matching checksum.
    QByteArray giant = whole;
    giant.replace(16, 8, QByteArray::fromHex("0000ffff0000ffff"));
    put("elsewhere/giant.png", giant);
    put("elsewhere/empty.png", "");
    put("elsewhere/text.png", "not a picture");
    struct Row {
        const char* file;
        const char* message;
    };
    for (const Row& row : {Row{"half.png", "damaged"}, Row{"empty.png", "not a picture"},
                           Row{"text.png", "not a picture"}, Row{"missing.png", "cannot be read"},
                           Row{"", "cannot be read"}}) {
        files()->openPicture(at(QString("elsewhere/") + row.file));
        EXPECT_THAT(message(), testing::HasSubstr(row.message)) << row.file;
        EXPECT_EQ(window(), nullptr) << row.file;
    }
    files()->openPicture(at("elsewhere/giant.png"));
    EXPECT_EQ(window(), nullptr);
    EXPECT_NE(message(), "");
}

TEST(PictureFileTest, PicturesWithMoreThanAHundredMegapixelsAreRejectedUndecoded)
{
    // A bitmap's header says its size, and needs no checksum.
    QTemporaryDir folder;
    QFile file(folder.filePath("giant.bmp"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("BM" + QByteArray(8, '\0') +
               QByteArray::fromHex("36000000"
                                   "28000000"
                                   "10270000"
                                   "15270000"
                                   "0100"
                                   "1800") +
               QByteArray(24, '\0') + QByteArray(3000, '\x7F'));
    file.close();
    const auto read = readPicture(file.fileName());
    ASSERT_FALSE(read);
    EXPECT_THAT(english(read.error()), testing::HasSubstr("100 megapixels"));
}

TEST(PictureFileTest, APictureOfAnotherProfileIsConverted)
{
    QTemporaryDir folder;
    QImage image(2, 2, QImage::Format_RGB32);
    image.fill(QColor(234, 51, 35));  // the red of sRGB
    image.setColorSpace(QColorSpace(QColorSpace::DisplayP3));
    const QString path = folder.filePath("p3.png");
    ASSERT_TRUE(image.save(path));
    const auto read = readPicture(path);
    ASSERT_TRUE(read);
    const QColor color = read->pixelColor(0, 0);
    EXPECT_GE(color.red(), 253);
    EXPECT_LE(color.green(), 6);
    EXPECT_LE(color.blue(), 6);
}

}  // namespace
}  // namespace vantorel
