#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryDir>
#include <QWidget>

namespace {

/// Reports ownerless widgets. Sanitizers do not see them as leaks, because the toolkit keeps a
/// reference to every widget.
class WidgetsGoAway final : public testing::EmptyTestEventListener {
    void OnTestEnd(const testing::TestInfo& /*info*/) override
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        for (const QWidget* widget : QApplication::allWidgets()) {
            // The toolkit creates one for the screen on first use and keeps it.
            if (widget->windowType() == Qt::Desktop) continue;
            ADD_FAILURE() << "left behind: " << widget->metaObject()->className();
        }
    }
};

}  // namespace

int main(int argc, char** argv)
{
    // Keeps the tests from using the real user's files and files installed by other programs.
    const QTemporaryDir home;
    qputenv("HOME", home.path().toLocal8Bit());
    qputenv("XDG_DATA_HOME", (home.path() + "/data").toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", (home.path() + "/config").toLocal8Bit());
    qputenv("XDG_DATA_DIRS", (home.path() + "/machine").toLocal8Bit());
    qputenv("XDG_CONFIG_DIRS", (home.path() + "/machine").toLocal8Bit());
    qputenv("XDG_RUNTIME_DIR", home.path().toLocal8Bit());
    // Texts are compared with the English ones.
    qputenv("LC_ALL", "C.UTF-8");
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    testing::UnitTest::GetInstance()->listeners().Append(new WidgetsGoAway);
    return RUN_ALL_TESTS();
}
