#include "panel/window/TabOrder.h"

#include <gtest/gtest.h>

#include <QLineEdit>

namespace vantorel {
namespace {

/// The names of the fields in the order of Tab, which is a circle, beginning with `first`.
QStringList namesFrom(const QWidget& first)
{
    QStringList names{first.objectName()};
    for (const QWidget* widget = first.nextInFocusChain(); widget != &first;
         widget = widget->nextInFocusChain()) {
        if (qobject_cast<const QLineEdit*>(widget) != nullptr) names.append(widget->objectName());
    }
    return names;
}

class TabOrderTest : public testing::Test {
protected:
    QWidget& add(QWidget& parent, const char* name, const QRect& place)
    {
        auto* field = new QLineEdit(&parent);
        field->setObjectName(QLatin1String(name));
        field->setGeometry(place);
        return *field;
    }

    QWidget _window;
    QWidget _first{&_window};
    QWidget _second{&_window};
};

TEST_F(TabOrderTest, GroupsComeInTheirOrderAndControlsAsOneReads)
{
    add(_second, "last", {0, 0, 20, 20});
    add(_first, "below", {0, 40, 20, 20});
    add(_first, "right", {50, 2, 20, 20});
    const QWidget& left = add(_first, "left", {0, 0, 20, 20});
    orderTabs(_window, {&_first, &_second});
    EXPECT_EQ(namesFrom(left), (QStringList{"left", "right", "below", "last"}));
}

TEST_F(TabOrderTest, AControlWithoutAHeightIsOrderedLikeOthers)
{
    add(_first, "flat", {0, 10, 20, 0});
    add(_first, "below", {0, 40, 20, 20});
    const QWidget& above = add(_first, "above", {0, 0, 20, 5});
    orderTabs(_window, {&_first});
    EXPECT_EQ(namesFrom(above), (QStringList{"above", "flat", "below"}));
}

}  // namespace
}  // namespace vantorel
