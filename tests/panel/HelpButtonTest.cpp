#include "panel/PanelWindow.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QDesktopServices>
#include <QFileInfo>
#include <QTest>

namespace vantorel {
namespace {

/// Takes addresses in a web browser's place.
class Browser : public QObject {
    Q_OBJECT
public:
    Browser() { QDesktopServices::setUrlHandler("file", this, "open"); }
    ~Browser() override { QDesktopServices::unsetUrlHandler("file"); }

    QList<QUrl> opened;

public slots:
    void open(const QUrl& url) { opened.append(url); }
};

TEST(HelpButtonTest, OpensTheInstalledManualOrElseTheOneBesideThePlugin)
{
    Browser browser;
    QtDesktop desktop;
    const PluginSearch search = loadPlugins({VANTOREL_PICKERS}, {});
    std::vector<std::string> problems;
    PanelWindow window(desktop, search.plugins, problems);
    window.resizeToPage({260, 340});
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    window.findChild<QAbstractButton*>("settingsButton")->click();
    auto* help = window.findChild<QAbstractButton*>("helpButton");
    ASSERT_TRUE(help->isVisible());
    QTest::mouseClick(help, Qt::LeftButton);

    const QString installed = QUrl(VANTOREL_TEST_MANUAL_URL).toLocalFile();
    const QString built = VANTOREL_PICKERS "/QTXHexColorPicker.resources/supportManual.htm";
    ASSERT_EQ(browser.opened.size(), 1);
    const QFileInfo page(browser.opened.front().toLocalFile());
    EXPECT_EQ(page.absoluteFilePath(), QFileInfo::exists(installed) ? installed : built);
    EXPECT_TRUE(page.isFile());
    EXPECT_TRUE(QFileInfo(page.absolutePath() + "/pictures/settings.png").isFile())
        << "the pictures are where the page looks for them";
}

}  // namespace
}  // namespace vantorel

#include "HelpButtonTest.moc"
