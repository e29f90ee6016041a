#include "shortcut/DesktopKeys.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

QKeySequence sequence(const char* text)
{
    return QKeySequence::fromString(QString::fromLatin1(text), QKeySequence::PortableText);
}

TEST(DesktopKeysTest, KeysHaveTheNamesOfTheDesktop)
{
    struct Row {
        const char* keys;
        const char* trigger;
        std::uint32_t symbol;
        std::uint16_t modifiers;
        bool canBeGlobal;
    };
    const Row rows[]{
        {"Ctrl+Alt+C", "CTRL+ALT+c", 'c', 12, true},
        {"Meta+Shift+5", "SHIFT+LOGO+5", '5', 65, true},
        {"F5", "F5", 0xffc2, 0, true},
        {"Print", "Print", 0xff61, 0, true},
        {"Shift+C", "SHIFT+c", 'c', 1, false},
        {"C", "c", 'c', 0, false},
        {"Ctrl+PgUp", "CTRL+Page_Up", 0xff55, 4, true},
        {"Ctrl+C, Ctrl+D", "CTRL+c", 'c', 4, true},
    };
    for (const Row& row : rows) {
        const auto key = desktopKeyFrom(sequence(row.keys));
        ASSERT_TRUE(key) << row.keys;
        EXPECT_EQ(key->symbol, row.symbol) << row.keys;
        EXPECT_EQ(key->modifiers, row.modifiers) << row.keys;
        EXPECT_EQ(portalTriggerFrom(sequence(row.keys)).toStdString(), row.trigger);
        EXPECT_EQ(canBeGlobal(sequence(row.keys)), row.canBeGlobal) << row.keys;
    }
}

TEST(DesktopKeysTest, OtherKeysHaveNone)
{
    for (const char* keys : {"", "Ctrl+\xc3\x84", "Ctrl+Volume Up"}) {
        const auto given = QKeySequence::fromString(QString::fromUtf8(keys));
        EXPECT_FALSE(desktopKeyFrom(given)) << keys;
        EXPECT_TRUE(portalTriggerFrom(given).isEmpty()) << keys;
    }
    EXPECT_FALSE(canBeGlobal({}));
}

}  // namespace
}  // namespace vantorel
