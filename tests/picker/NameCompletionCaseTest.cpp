#include "picker/NameCompletion.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

/// Whether typing one letter completes a name that begins with the other.
bool completes(char16_t typed, char16_t named)
{
    HostColorList list(u"Names");
    list.setColor(HostColor::blackColor(), std::u16string(1, named) + u"x");
    return completeColorName(std::u16string(1, typed), 1, list, EntryForm::lowercase)
        .text.has_value();
}

TEST(NameCompletionCaseTest, TheCaseOfLettersIsIgnoredInThreeAlphabets)
{
    struct Row {
        char16_t capital;
        char16_t small;
    };
    for (const auto& [capital, small] :
         {Row{u'A', u'a'}, Row{u'Z', u'z'}, Row{u'\u00C0', u'\u00E0'}, Row{u'\u00DE', u'\u00FE'},
          Row{u'\u0391', u'\u03B1'}, Row{u'\u03A9', u'\u03C9'}, Row{u'\u0410', u'\u0430'},
          Row{u'\u042F', u'\u044F'}}) {
        EXPECT_TRUE(completes(capital, small)) << static_cast<int>(capital);
        EXPECT_TRUE(completes(small, capital)) << static_cast<int>(small);
    }
}

TEST(NameCompletionCaseTest, SignsBesideTheLettersHaveNoCase)
{
    // 32 above each is a sign or a letter that is not its small form.
    for (const char16_t sign : {u'@', u'[', u'\u00BF', u'\u00D7', u'\u00DF', u'\u0390', u'\u03AA',
                                u'\u040F', u'\u0430'}) {
        EXPECT_FALSE(completes(sign, static_cast<char16_t>(sign + 32))) << static_cast<int>(sign);
        EXPECT_TRUE(completes(sign, sign)) << static_cast<int>(sign);
    }
}

}  // namespace
}  // namespace vantorel
