#include "PanelCommandsFixture.h"
#include "ScopedEnvironment.h"
#include "ScratchFolder.h"
#include "panel/window/DialogSwitchesWindow.h"

#include <QPushButton>

#include <filesystem>

namespace vantorel {
namespace {

class DialogSwitchesTest : public PanelCommandsFixture {
protected:
    void SetUp() override
    {
        PanelCommandsFixture::SetUp();
        for (const char* variable : {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "QT_PLUGIN_PATH",
                                     "QT_QPA_GENERIC_PLUGINS", "GTK_MODULES", "DISPLAY"}) {
            _environment.set(variable, std::nullopt);
        }
        _environment.set("HOME", _home.path().string());
        command("Dialogs of other programs...")->trigger();
        _switches = _window->findChild<DialogSwitchesWindow*>();
        ASSERT_NE(_switches, nullptr);
    }

    [[nodiscard]] QCheckBox& box(const char* key) const
    {
        return *_switches->findChild<QCheckBox*>(QString::fromLatin1(key));
    }
    [[nodiscard]] QString state(const char* key) const { return box(key).accessibleDescription(); }
    [[nodiscard]] QString message() const
    {
        const auto* label = _switches->findChild<MessageLabel*>();
        return label->isVisibleTo(_switches) ? label->text() : QString();
    }

    ScratchFolder _home;
    ScopedEnvironment _environment;
    DialogSwitchesWindow* _switches = nullptr;
};

TEST_F(DialogSwitchesTest, ASwitchChangesTheUsersSettingsAtOnceAndTakesThemBack)
{
    EXPECT_EQ(state("qt"), "Qt: off");
    EXPECT_FALSE(box("qt").isChecked());
    const auto file = _home.path() / ".config/environment.d/60-vantorel-qt.conf";
    box("qt").click();
    EXPECT_EQ(state("qt"), "Qt: on after your next login");
    EXPECT_TRUE(box("qt").isChecked());
    EXPECT_TRUE(std::filesystem::exists(file));
    EXPECT_EQ(message(), "");

    box("qt").click();
    EXPECT_EQ(state("qt"), "Qt: off");
    EXPECT_FALSE(std::filesystem::exists(_home.path() / ".config"));
}

TEST_F(DialogSwitchesTest, ASwitchThatFailsStaysOffAndSaysWhy)
{
    // Not a folder, so nothing can be written into it.
    std::filesystem::create_directories(_home.path() / ".config/environment.d");
    std::filesystem::create_directories(_home.path() / ".config/environment.d/60-vantorel-qt.conf");
    box("qt").click();
    EXPECT_TRUE(message().contains("cannot be read")) << message().toStdString();
    EXPECT_FALSE(box("qt").isChecked());
    EXPECT_FALSE(std::filesystem::exists(_home.path() / ".local/share/Vantorel"));
}

TEST_F(DialogSwitchesTest, TheWindowIsGoneWhenItIsClosed)
{
    const QPointer<DialogSwitchesWindow> window(_switches);
    _switches->findChild<QPushButton*>()->click();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(window.isNull());
    EXPECT_TRUE(std::filesystem::is_empty(_home.path()) ||
                !std::filesystem::exists(_home.path() / ".config"));
}

}  // namespace
}  // namespace vantorel
