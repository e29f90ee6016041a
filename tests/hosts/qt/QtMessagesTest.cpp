#include "hosts/qt/QtMessages.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTranslator>

namespace vantorel {
namespace {

class GermanTexts final : public QTranslator {
public:
    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char* context, const char* text, const char*,
                                    int) const override
    {
        if (QLatin1String(context) != QLatin1String("Messages")) return {};
        if (QLatin1String(text) == QLatin1String("the %1 of \"%2\" is missing"))
            return QStringLiteral("in „%2“ fehlt %1");
        if (QLatin1String(text) == QLatin1String("red")) return QStringLiteral("Rot");
        return {};
    }
};

class QtMessagesTest : public testing::Test {
protected:
    QtMessagesTest() { QCoreApplication::installTranslator(&_texts); }
    ~QtMessagesTest() override { QCoreApplication::removeTranslator(&_texts); }

    GermanTexts _texts;
};

TEST_F(QtMessagesTest, AMessageIsPutIntoTheUsersWords)
{
    const Message message{phrase("the %1 of \"%2\" is missing", phrase("red"), "<b>%1</b>")};
    EXPECT_EQ(translated(message), QStringLiteral("in „<b>%1</b>“ fehlt Rot"));
}

TEST_F(QtMessagesTest, WhatHasNoTranslationIsShownInEnglish)
{
    const Message message{phrase("it is a pipe"), phrase("name a file")};
    EXPECT_EQ(translated(message), QStringLiteral("it is a pipe; name a file"));
}

TEST_F(QtMessagesTest, ASentenceHasACapitalLetterAndAFullStop)
{
    EXPECT_EQ(translatedSentence({phrase("it is a pipe"), phrase("name a file")}),
              QStringLiteral("It is a pipe; name a file."));
    EXPECT_EQ(translatedSentence({phrase("\"x\" is a pipe")}), QStringLiteral("\"x\" is a pipe."));
    EXPECT_EQ(translatedSentence({}), QString());
}

}  // namespace
}  // namespace vantorel
