#include "panel/window/PanelWindow.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QDesktopServices>
#include <QFileInfo>
#include <QSignalSpy>
#include <QTest>
#include <QTextBrowser>

namespace vantorel {
namespace {

/// Receives file URLs in place of a web browser while it exists.
class Browser : public QTextBrowser {
public:
    Browser() { QDesktopServices::setUrlHandler("file", this, "setSource"); }
    ~Browser() override { QDesktopServices::unsetUrlHandler("file"); }
};

TEST(HelpButtonTest, OpensTheInstalledManualOrTheOneBesideThePlugin)
{
    Browser browser;
    const QSignalSpy opened(&browser, &QTextBrowser::sourceChanged);
    QtDesktop desktop;
    const PluginSearch search = loadPlugins({VANTOREL_PICKERS}, {});
    std::vector<Message> problems;
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
    ASSERT_EQ(opened.count(), 1);
    const QFileInfo page(browser.source().toLocalFile());
    EXPECT_EQ(page.absoluteFilePath(), QFileInfo::exists(installed) ? installed : built);
    EXPECT_TRUE(page.isFile());
    EXPECT_TRUE(QFileInfo(page.absolutePath() + "/pictures/settings.png").isFile())
        << "the pictures are where the page looks for them";
}

}  // namespace
}  // namespace vantorel
