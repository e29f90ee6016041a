#include "panel/window/PanelWindow.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QCoreApplication>
#include <QDesktopServices>
#include <QFileInfo>
#include <QSignalSpy>
#include <QTest>
#include <QTextBrowser>
#include <QTranslator>

namespace vantorel {
namespace {

/// Receives file URLs in place of a web browser while it exists.
class Browser : public QTextBrowser {
public:
    Browser() { QDesktopServices::setUrlHandler("file", this, "setSource"); }
    ~Browser() override { QDesktopServices::unsetUrlHandler("file"); }
};

class HelpButtonTest : public testing::Test {
protected:
    /// Returns the page that a click on the help button opens.
    QFileInfo openedPage()
    {
        Browser browser;
        const QSignalSpy opened(&browser, &QTextBrowser::sourceChanged);
        QtDesktop desktop;
        const PluginSearch search = loadPlugins({VANTOREL_PICKERS}, {});
        std::vector<Message> problems;
        PanelWindow window(desktop, search.plugins, problems);
        window.resizeToPage({260, 340});
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
        window.findChild<QAbstractButton*>("settingsButton")->click();
        auto* help = window.findChild<QAbstractButton*>("helpButton");
        EXPECT_TRUE(help->isVisible());
        QTest::mouseClick(help, Qt::LeftButton);
        EXPECT_EQ(opened.count(), 1);
        return QFileInfo(browser.source().toLocalFile());
    }
    /// Expects a page with its pictures, installed or beside the plug-in.
    static void expectPage(const QFileInfo& page, const QString& name, const QString& pictures)
    {
        const QFileInfo installed(QUrl(VANTOREL_TEST_MANUAL_URL).toLocalFile());
        const QString path = installed.absolutePath() + '/' + name;
        const QString built = VANTOREL_PICKERS "/QTXHexColorPicker.resources/" + name;
        EXPECT_EQ(page.absoluteFilePath(), QFileInfo::exists(path) ? path : built);
        EXPECT_TRUE(page.isFile());
        EXPECT_TRUE(QFileInfo(page.absolutePath() + pictures + "/settings.png").isFile())
            << "the pictures are where the page looks for them";
    }
};

TEST_F(HelpButtonTest, OpensTheInstalledManualOrTheOneBesideThePlugin)
{
    expectPage(openedPage(), "supportManual.htm", "/pictures");
}

/// Names the German page, as the translation does.
class GermanPage final : public QTranslator {
public:
    GermanPage() { QCoreApplication::installTranslator(this); }
    ~GermanPage() override { QCoreApplication::removeTranslator(this); }
    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char*, const char* source, const char*,
                                    int) const override
    {
        return QLatin1String(source) == QLatin1String("supportManual.htm") ? "supportManual_de.htm"
                                                                           : QString();
    }
};

TEST_F(HelpButtonTest, OpensTheManualInTheUsersLanguage)
{
    const GermanPage german;
    expectPage(openedPage(), "supportManual_de.htm", "/pictures/de");
}

}  // namespace
}  // namespace vantorel
