#include "hosts/common/Translator.h"
#include "hosts/qt/DisplayNames.h"

#include "host/HostControls.h"
#include "hosts/qt/QtInterfaceFactory.h"
#include "hosts/qt/QtView.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QCoreApplication>
#include <QTranslator>

namespace vantorel {
namespace {

class GermanNames final : public QTranslator {
public:
    GermanNames() { QCoreApplication::installTranslator(this); }
    ~GermanNames() override { QCoreApplication::removeTranslator(this); }
    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char* context, const char* source, const char*,
                                    int) const override
    {
        if (QLatin1String(context) != QLatin1String("DisplayNames")) return {};
        return QStringLiteral("de ") + QString::fromUtf8(source);
    }
};

HostMenuItem item(const char16_t* title, bool isOwnWord)
{
    HostMenuItem item;
    item.title = title;
    item.isOwnWord = isOwnWord;
    return item;
}

TEST(TranslationsTest, ATranslatorOfOursCountsInPlaceOfTheProgramsTranslators)
{
    const GermanNames german;
    setTranslator([](std::string_view context, std::u16string_view text) {
        return (context == "Vantorel" ? u"page " : u"other ") + std::u16string(text);
    });
    EXPECT_EQ(shownTitle(item(u"Color", true)), "other Color");
    EXPECT_EQ(translatedText(u"Red \u00e9"), QStringLiteral("page Red \u00e9"));
    setTranslator({});
    EXPECT_EQ(shownTitle(item(u"Color", true)), "de Color");
    EXPECT_EQ(translatedText(u"Red"), "Red");
}

TEST(DisplayNamesTest, OnlyWordsOfThePageAreTranslated)
{
    EXPECT_EQ(shownTitle(item(u"No Match", true)), "No Match");
    const GermanNames german;
    EXPECT_EQ(shownTitle(item(u"No Match", true)), "de No Match");
    HostText text;
    text.string = u"Input Error";
    EXPECT_EQ(shownText(text), "Input Error");
    text.isOwnWord = true;
    EXPECT_EQ(shownText(text), "de Input Error");
    EXPECT_EQ(shownName({u"Hex Code", u"#FF8000", true}), "de Hex Code");
    for (const char16_t* title : {u"* red", u"add", u""})
        EXPECT_EQ(shownTitle(item(title, true)), QString::fromUtf16(title));
    // A colour and a snippet of the user's.
    EXPECT_EQ(shownTitle(item(u"Color", false)), "Color");
    EXPECT_EQ(shownName({u"Hex Code", u"0xff8000", false}), "Hex Code");
}

TEST(DisplayNamesTest, APopUpButtonShowsTheTranslationAndKeepsTheTitle)
{
    const GermanNames german;
    QtInterfaceFactory factory;
    const auto popUp = factory.makePopUpButton({});
    popUp->setItems({item(u"Uppercase", true), item(u"Lowercase", false)});
    const QAccessibleInterface* shown =
        QAccessible::queryAccessibleInterface(widgetOf(popUp.get()));
    ASSERT_NE(shown, nullptr);
    EXPECT_EQ(shown->text(QAccessible::Value), "de Uppercase");
    EXPECT_EQ(popUp->titleOfSelectedItem(), u"Uppercase");
    popUp->selectItemAtIndex(1);
    EXPECT_EQ(shown->text(QAccessible::Value), "Lowercase") << "the name of a list";
}

}  // namespace
}  // namespace vantorel
