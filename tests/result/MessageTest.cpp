#include "result/Message.h"

#include <gtest/gtest.h>

#include <string>

namespace vantorel {
namespace {

std::string inGerman(const char* text)
{
    const std::string_view english = text;
    if (english == "the %1 of %2 is missing") return "%2 hat keinen Wert für %1";
    if (english == "red") return "Rot";
    if (english == "lost %1 and %2") return "%1, %3 und %2 verloren";
    return text;
}

TEST(MessageTest, ArgumentsReplaceTheirPlaceholders)
{
    EXPECT_EQ(english(phrase("no arguments")), "no arguments");
    EXPECT_EQ(english(phrase("%2 after %1, %2", "a", "b")), "b after a, b");
    EXPECT_EQ(english(phrase("%1 %2 %3 %4", 1, std::size_t{2}, std::string("3"), u"4\u00E4")),
              "1 2 3 4\u00E4");
    EXPECT_EQ(english(phrase("100%, %0 and %A1 are not placeholders, %1 is", "this")),
              "100%, %0 and %A1 are not placeholders, this is");
}

TEST(MessageTest, PlaceholdersInArgumentsAreNotReplaced)
{
    EXPECT_EQ(english(phrase("%1, %2", "%2", "%1")), "%2, %1");
}

TEST(MessageTest, ArgumentsCannotControlATerminal)
{
    EXPECT_EQ(english(phrase("%1", "a\x1B[2J\nb\xC2\x9B")), "a [2J b ");
    EXPECT_EQ(english(phrase("%1", "a\x7F\x1F\u009F\u00A0!~")), "a   \u00A0!~");
    EXPECT_EQ(english(phrase("%1", "\xFF")), "\uFFFD");
    EXPECT_EQ(english(phrase("%1", std::u16string{u'a', char16_t{0xD800}})), "a\uFFFD");
}

TEST(MessageTest, PhrasesWithinPhrasesAreTranslatedToo)
{
    const Phrase missing = phrase("the %1 of %2 is missing", phrase("red"), "rgb()");
    EXPECT_EQ(english(missing), "the red of rgb() is missing");
    EXPECT_EQ(missing.inWords(inGerman), "rgb() hat keinen Wert für Rot");
}

TEST(MessageTest, ASurplusPlaceholderInATranslationIsShownUnchanged)
{
    EXPECT_EQ(phrase("lost %1 and %2", "A", "B").inWords(inGerman), "A, %3 und B verloren");
}

TEST(MessageTest, AMessageSaysWhatToDoAfterASemicolon)
{
    EXPECT_EQ(english(Message{phrase("it is a pipe"), phrase("name a file")}),
              "it is a pipe; name a file");
    EXPECT_EQ(english(Message{phrase("it is a pipe")}), "it is a pipe");
}

TEST(MessageTest, MessagesWithTheSameTextAndArgumentsAreEqual)
{
    const Message message{phrase("%1 is a pipe", "a")};
    EXPECT_EQ(message, (Message{phrase("%1 is a pipe", "a")}));
    EXPECT_NE(message, (Message{phrase("%1 is a pipe", "b")}));
    EXPECT_NE(message, (Message{phrase("%1 is a file", "a")}));
    EXPECT_NE(message, (Message{phrase("%1 is a pipe", "a"), phrase("name a file")}));
}

}  // namespace
}  // namespace vantorel
