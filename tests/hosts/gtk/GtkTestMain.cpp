#include "hosts/gtk/GtkReferences.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace {

/// Reports windows without an owner. Sanitizers do not see them as leaks, because the toolkit keeps
/// a reference to each.
class WindowsGoAway final : public testing::EmptyTestEventListener {
    void OnTestEnd(const testing::TestInfo& /*info*/) override
    {
        while (g_main_context_iteration(nullptr, FALSE)) {
        }
        GList* windows = gtk_window_list_toplevels();
        for (const GList* window = windows; window != nullptr; window = window->next) {
            // The toolkit keeps its own pop-ups, and an empty window for drags.
            GtkWidget* widget = GTK_WIDGET(window->data);
            if (!gtk_widget_get_visible(widget)) continue;
            if (GTK_IS_BIN(widget) && gtk_bin_get_child(GTK_BIN(widget)) == nullptr) continue;
            ADD_FAILURE() << "left behind: " << G_OBJECT_TYPE_NAME(window->data);
        }
        g_list_free(windows);
    }
};

}  // namespace

/// Needs a display. Messages of the toolkit are failures: a program of somebody else's would print
/// them.
int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    // Keeps the tests from using the real user's files and files installed by other programs.
    const vantorel::GText folder(g_dir_make_tmp("vantorel-test-XXXXXX", nullptr));
    const std::string home = folder.get();
    g_setenv("HOME", home.c_str(), TRUE);
    g_setenv("XDG_DATA_HOME", (home + "/data").c_str(), TRUE);
    g_setenv("XDG_CONFIG_HOME", (home + "/config").c_str(), TRUE);
    g_setenv("XDG_RUNTIME_DIR", home.c_str(), TRUE);
    // Texts are compared with the English ones.
    g_setenv("LC_ALL", "C.UTF-8", TRUE);
    g_setenv("NO_AT_BRIDGE", "1", TRUE);
    g_setenv("GSETTINGS_BACKEND", "memory", TRUE);
    g_setenv("GTK_THEME", "Adwaita", TRUE);
    g_log_set_writer_func(
        [](GLogLevelFlags level, const GLogField* fields, gsize count, gpointer) {
            constexpr int complaints =
                G_LOG_LEVEL_ERROR | G_LOG_LEVEL_CRITICAL | G_LOG_LEVEL_WARNING;
            if ((level & complaints) != 0) {
                const vantorel::GText text(g_log_writer_format_fields(level, fields, count, FALSE));
                ADD_FAILURE() << text.get();
            }
            return G_LOG_WRITER_HANDLED;
        },
        nullptr, nullptr);
    if (!gtk_init_check(&argc, &argv)) {
        g_printerr("no display\n");
        return 1;
    }
    testing::UnitTest::GetInstance()->listeners().Append(new WindowsGoAway);
    const int result = RUN_ALL_TESTS();
    std::error_code error;
    std::filesystem::remove_all(home, error);
    return result;
}
