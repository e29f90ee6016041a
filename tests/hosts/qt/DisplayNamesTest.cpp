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

TEST(DisplayNamesTest, OnlyNamesOfTheInterfaceAreTranslated)
{
    EXPECT_EQ(displayName(u"No Match"), "No Match");
    const GermanNames german;
    EXPECT_EQ(displayName(u"No Match"), "de No Match");
    EXPECT_EQ(displayName(u"Uppercase"), "de Uppercase");
    for (const char16_t* name : {u"red", u"* red", u"CSS Keyword", u"add", u""})
        EXPECT_EQ(displayName(name), QString::fromUtf16(name));
}

TEST(DisplayNamesTest, APopUpButtonShowsTheTranslationAndKeepsTheTitle)
{
    const GermanNames german;
    QtInterfaceFactory factory;
    const auto popUp = factory.makePopUpButton({});
    popUp->addItemWithTitle(u"Uppercase");
    popUp->selectItemAtIndex(0);
    const QAccessibleInterface* shown =
        QAccessible::queryAccessibleInterface(widgetOf(popUp.get()));
    ASSERT_NE(shown, nullptr);
    EXPECT_EQ(shown->text(QAccessible::Value), "de Uppercase");
    EXPECT_EQ(popUp->titleOfSelectedItem(), u"Uppercase");
}

}  // namespace
}  // namespace vantorel
