#include "PanelWindowFixture.h"
#include "panel/widgets/ColorClipboard.h"

#include <sys/stat.h>

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QDirIterator>
#include <QDropEvent>
#include <QMimeData>
#include <QTemporaryDir>
#include <QUrl>

#include <functional>

namespace vantorel {
namespace {

struct OfferRow {
    const char* name;
    std::function<void(QMimeData&, const QDir& scratch)> fill;
};

void setWords(QMimeData& data, int size)
{
    data.setData(QStringLiteral("application/x-color"), QByteArray(size, '\xFF'));
}

const std::vector<OfferRow>& offers()
{
    static const std::vector<OfferRow> rows{
        {"a text of 20 MB",
         [](QMimeData& data, const QDir&) { data.setText(QString(20'000'000, u'#')); }},
        {"a function without an end",
         [](QMimeData& data, const QDir&) { data.setText(QStringLiteral("rgb(").repeated(900)); }},
        {"half a character",
         [](QMimeData& data, const QDir&) { data.setText(QString(QChar(0xD800))); }},
        {"bytes that are not UTF-8",
         [](QMimeData& data, const QDir&) {
             data.setData(QStringLiteral("text/plain"), QByteArray("\xFF\xC0\x80\xF8", 4));
         }},
        {"no words of a colour", [](QMimeData& data, const QDir&) { setWords(data, 0); }},
        {"a word too few", [](QMimeData& data, const QDir&) { setWords(data, 6); }},
        {"half a word too many", [](QMimeData& data, const QDir&) { setWords(data, 9); }},
        {"20 MB of words", [](QMimeData& data, const QDir&) { setWords(data, 20'000'000); }},
        {"100,000 files",
         [](QMimeData& data, const QDir&) {
             QList<QUrl> urls;
             for (int i = 0; i < 100'000; ++i)
                 urls.append(QUrl(QStringLiteral("https://example.org/%1.gpl").arg(i)));
             data.setUrls(urls);
         }},
        {"devices, pipes and circular links",
         [](QMimeData& data, const QDir& scratch) {
             ASSERT_EQ(::mkfifo(scratch.filePath("pipe.gpl").toLocal8Bit().constData(), 0600), 0);
             QFile::link(QStringLiteral("circle.gpl"), scratch.filePath("circle.gpl"));
             QList<QUrl> urls;
             for (const QString& path :
                  {QStringLiteral("/dev/zero"), QStringLiteral("/dev/urandom"),
                   QStringLiteral("/proc/self/mem"), QStringLiteral("/"),
                   scratch.filePath("pipe.gpl"), scratch.filePath("circle.gpl"),
                   scratch.filePath("missing.gpl")})
                 urls.append(QUrl::fromLocalFile(path));
             data.setUrls(urls);
         }},
    };
    return rows;
}

/// Data that other programs may offer to the panel.
class HostileDropsTest : public PanelWindowFixture {
protected:
    void SetUp() override
    {
        PanelWindowFixture::SetUp();
        _window->colors().setColor(HostColor::colorWithCalibratedRed(0.2, 0.4, 0.6, 1));
    }

    /// Drops the data on everything that accepts drops, on every page.
    int dropEverywhere(const QMimeData& data)
    {
        int taken = 0;
        for (int page = 0; page < _window->pages().count(); ++page) {
            _window->pages().showPage(page);
            QApplication::processEvents();
            for (QWidget* target : _window->findChildren<QWidget*>()) {
                if (!target->acceptDrops() || !target->isVisible()) continue;
                const QPoint middle = target->rect().center();
                QDragEnterEvent enter(middle, Qt::CopyAction, &data, Qt::LeftButton, {});
                QApplication::sendEvent(target, &enter);
                if (!enter.isAccepted()) continue;
                QDragMoveEvent move(middle, Qt::CopyAction, &data, Qt::LeftButton, {});
                QApplication::sendEvent(target, &move);
                QDropEvent dropped(middle, Qt::CopyAction, &data, Qt::LeftButton, {});
                QApplication::sendEvent(target, &dropped);
                ++taken;
            }
        }
        return taken;
    }

    const QTemporaryDir _scratch;
};

class HostileOfferTest : public HostileDropsTest, public testing::WithParamInterface<int> {};

TEST_P(HostileOfferTest, LeavesTheColourUnchanged)
{
    const OfferRow& row = offers()[static_cast<std::size_t>(GetParam())];
    SCOPED_TRACE(row.name);
    QMimeData data;
    row.fill(data, QDir(_scratch.path()));
    EXPECT_GT(dropEverywhere(data), 0);
    EXPECT_FALSE(colorFromMimeData(data).color.has_value());
    EXPECT_FALSE(colorFromMimeData(data).message.isEmpty());

    auto held = std::make_unique<QMimeData>();
    for (const QString& format : data.formats())
        held->setData(format, data.data(format));
    QApplication::clipboard()->setMimeData(held.release());
    _window->pages().showPage(0);
    _window->exchange().paste();
    EXPECT_EQ(chosenColor(), QColor(51, 102, 153));
    EXPECT_EQ(text("_fullHexText"), "#336699");
}

INSTANTIATE_TEST_SUITE_P(Offers, HostileOfferTest,
                         testing::Range(0, static_cast<int>(offers().size())));

TEST_F(HostileDropsTest, AListNamedLikeAPathStaysInTheListFolder)
{
    QFile file(_scratch.filePath("evil.gpl"));
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    file.write("GIMP Palette\nName: ../../../evil\n1 2 3\t../up\n");
    file.close();
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(file.fileName())});
    EXPECT_GT(dropEverywhere(data), 0);

    const QString home = qEnvironmentVariable("XDG_DATA_HOME");
    int copies = 0;
    QDirIterator files(QDir(home).filePath(QStringLiteral("..")), QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = QDir::cleanPath(files.next());
        if (!path.contains(QLatin1String("evil"))) continue;
        EXPECT_EQ(QFileInfo(path).path(), QDir::cleanPath(home + "/Vantorel/Palettes"))
            << path.toStdString();
        ++copies;
    }
    EXPECT_GT(copies, 0);
}

}  // namespace
}  // namespace vantorel
