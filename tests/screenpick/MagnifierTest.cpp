#include "screenpick/Magnifier.h"

#include "screenpick/MagnifierOverlay.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QCursor>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

#include <algorithm>

namespace vantorel {
namespace {

using testing::ElementsAre;

QColor colorOf(int x, int y)
{
    return {x, y, 7};
}

class MagnifierTest : public testing::Test {
protected:
    MagnifierTest()
    {
        const QImage image = picture();
        // The platform reports its own mouse position to the overlay sooner or later.
        QCursor::setPos(50, 60);
        _magnifier = std::make_unique<Magnifier>(DesktopPicture({{nullptr, {0, 0}, image}}),
                                                 QPoint(50, 60), options());
        QObject::connect(_magnifier.get(), &Magnifier::picked,
                         [this](const QColor& color) { take(color); });
        QObject::connect(_magnifier.get(), &Magnifier::pickedOnTheWay,
                         [this](const QColor& color) { _onTheWay.push_back(color); });
        QObject::connect(_magnifier.get(), &Magnifier::left, [this] { take(std::nullopt); });
    }

    static QImage picture()
    {
        QImage image(200, 150, QImage::Format_RGB32);
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                image.setPixelColor(x, y, colorOf(x, y));
        }
        return image;
    }
    /// R and S pick.
    PickOptions options()
    {
        PickOptions options;
        options.pickedOnTheWay = [](const HostColor&) {};
        options.picksByLetter = [this](char letter) {
            _letters += letter;
            return letter == 'R' || letter == 'S';
        };
        options.nameOf = [](const HostColor& color) {
            return color.calibratedRGB()->red > 0.65 ? std::u16string(u"bright") : u"";
        };
        return options;
    }
    void take(const std::optional<QColor>& answer)
    {
        _answers.push_back(answer);
        _magnifier.reset();
    }

    static QWidget& overlay()
    {
        const auto windows = QApplication::topLevelWidgets();
        return **std::ranges::find_if(windows, [](const QWidget* window) {
            return dynamic_cast<const MagnifierOverlay*>(window) != nullptr;
        });
    }
    void key(int code, Qt::KeyboardModifiers modifiers = Qt::NoModifier, bool repeats = false)
    {
        QKeyEvent event(QEvent::KeyPress, code, modifiers, QString(), repeats);
        QApplication::sendEvent(&overlay(), &event);
    }
    void mouse(QEvent::Type type, QPointF position, Qt::MouseButton button = Qt::NoButton,
               Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QMouseEvent event(type, position, position, button, button, modifiers);
        QApplication::sendEvent(&overlay(), &event);
    }
    void click(QPointF position, Qt::MouseButton button = Qt::LeftButton,
               Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        mouse(QEvent::MouseButtonPress, position, button, modifiers);
        mouse(QEvent::MouseButtonRelease, position, button, modifiers);
    }
    void wheel(int angle)
    {
        QWheelEvent event(QPointF(50, 60), QPointF(50, 60), QPoint(), QPoint(0, angle),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&overlay(), &event);
    }
    const std::vector<std::optional<QColor>>& answers()
    {
        QApplication::processEvents();
        return _answers;
    }
    QString spokenDescription()
    {
        return QAccessible::queryAccessibleInterface(&overlay())->text(QAccessible::Description);
    }

    std::unique_ptr<Magnifier> _magnifier;
    std::vector<std::optional<QColor>> _answers;
    std::vector<QColor> _onTheWay;
    std::string _letters;
};

TEST_F(MagnifierTest, picksAtTheMousePositionAndCloses)
{
    key(Qt::Key_Return);
    EXPECT_THAT(_answers, ElementsAre()) << "answers come from the event loop";
    EXPECT_FALSE(overlay().isVisible());
    EXPECT_THAT(answers(), ElementsAre(colorOf(50, 60)));
    EXPECT_EQ(_magnifier, nullptr);
}

class MagnifierPickKeyTest : public MagnifierTest, public testing::WithParamInterface<int> {};

TEST_P(MagnifierPickKeyTest, picksButNotWhenItOnlyRepeats)
{
    key(GetParam(), Qt::NoModifier, true);
    EXPECT_THAT(answers(), ElementsAre());
    key(GetParam());
    EXPECT_THAT(answers(), ElementsAre(colorOf(50, 60)));
}

INSTANTIATE_TEST_SUITE_P(Keys, MagnifierPickKeyTest,
                         testing::Values(Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space));

TEST_F(MagnifierTest, stepsByOneOrTenPixels)
{
    key(Qt::Key_Left);
    key(Qt::Key_Left);
    key(Qt::Key_Right);
    key(Qt::Key_Right, Qt::ShiftModifier);
    key(Qt::Key_Up);
    key(Qt::Key_Down, Qt::ShiftModifier);
    key(Qt::Key_Up, Qt::NoModifier, true);
    key(Qt::Key_Return);
    EXPECT_THAT(answers(), ElementsAre(colorOf(50 - 1 + 10, 60 + 10 - 2)));
}

TEST_F(MagnifierTest, picksOnReleaseOnlyIfItSawThePress)
{
    mouse(QEvent::MouseButtonRelease, {80, 90}, Qt::LeftButton);
    EXPECT_THAT(answers(), ElementsAre());
    mouse(QEvent::MouseButtonPress, {80, 90}, Qt::LeftButton);
    EXPECT_THAT(answers(), ElementsAre());
    mouse(QEvent::MouseMove, {81, 92}, Qt::LeftButton);
    mouse(QEvent::MouseButtonRelease, {81, 92}, Qt::LeftButton);
    EXPECT_THAT(answers(), ElementsAre(colorOf(81, 92)));
}

TEST_F(MagnifierTest, aClickAfterKeyStepsPicksThePixelSteppedTo)
{
    mouse(QEvent::MouseMove, {80, 90});
    key(Qt::Key_Right);
    key(Qt::Key_Right);
    click({80, 90});
    EXPECT_THAT(answers(), ElementsAre(colorOf(82, 90)));
}

TEST_F(MagnifierTest, ALetterPicksIfItsReceiverSaysSo)
{
    for (const int code : {Qt::Key_Q, Qt::Key_A, Qt::Key_1})
        key(code);
    key(Qt::Key_R, Qt::ControlModifier);
    key(Qt::Key_S, Qt::NoModifier, true);
    EXPECT_THAT(answers(), ElementsAre());
    EXPECT_EQ(_letters, "Q") << "A averages, and digits are not letters";
    key(Qt::Key_R);
    EXPECT_EQ(_letters, "QR");
    key(Qt::Key_S);
    EXPECT_THAT(answers(), ElementsAre(colorOf(50, 60)));
    EXPECT_EQ(_letters, "QR") << "nothing follows the pick";
}

TEST_F(MagnifierTest, cancelsOnEscape)
{
    key(Qt::Key_Escape);
    EXPECT_THAT(answers(), ElementsAre(std::nullopt));
}

TEST_F(MagnifierTest, cancelsOnARightClick)
{
    click({80, 90}, Qt::RightButton);
    EXPECT_THAT(answers(), ElementsAre(std::nullopt));
}

TEST_F(MagnifierTest, cancelsWhenItsWindowIsClosed)
{
    overlay().close();
    EXPECT_THAT(answers(), ElementsAre(std::nullopt));
}

TEST_F(MagnifierTest, reportsOnlyOneResult)
{
    key(Qt::Key_Return);
    key(Qt::Key_Escape);
    key(Qt::Key_Right);
    click({1, 1});
    EXPECT_THAT(answers(), ElementsAre(colorOf(50, 60)));
}

TEST_F(MagnifierTest, picksWithNoOtherButtonOrKey)
{
    click({80, 90}, Qt::MiddleButton);
    for (const int code : {Qt::Key_B, Qt::Key_Tab, Qt::Key_Shift, Qt::Key_F1})
        key(code);
    EXPECT_THAT(answers(), ElementsAre());
}

TEST_F(MagnifierTest, theWheelDoesNotMoveIt)
{
    for (const int angle : {120, 120, -60, -60, 40, -1200, 9600})
        wheel(angle);
    key(Qt::Key_Return);
    EXPECT_THAT(answers(), ElementsAre(colorOf(50, 60)));
}

TEST_F(MagnifierTest, theWheelChangesTheMagnification)
{
    const auto look = [] { return overlay().grab().toImage(); };
    overlay().resize(200, 150);
    const QImage before = look();
    wheel(60);
    EXPECT_TRUE(look() == before) << "half a notch";
    wheel(60);
    const QImage larger = look();
    EXPECT_FALSE(larger == before);
    key(Qt::Key_Minus);
    EXPECT_TRUE(look() == before) << "keys do the same";
    key(Qt::Key_Plus);
    EXPECT_TRUE(look() == larger);
}

TEST_F(MagnifierTest, exposesItsNameAndTheHexCodeToAssistivePrograms)
{
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&overlay())->text(QAccessible::Name),
              QStringLiteral("Colour magnifier"));
    EXPECT_EQ(spokenDescription(), QStringLiteral("#323c07"));
    key(Qt::Key_Right);
    EXPECT_EQ(spokenDescription(), QStringLiteral("#333c07"));
    mouse(QEvent::MouseMove, {1, 1});
    EXPECT_EQ(spokenDescription(), QStringLiteral("#020107")) << "with the key's step";
    mouse(QEvent::MouseMove, {180, 1});
    EXPECT_EQ(spokenDescription(), QStringLiteral("#b50107, bright")) << "a colour with a name";
}

TEST_F(MagnifierTest, averagesSquares)
{
    const DesktopPicture desktop({{nullptr, {}, picture()}});
    // In a corner, where a larger square is lighter.
    mouse(QEvent::MouseMove, {0, 0});
    for (const int side : {3, 5, 11}) {
        key(Qt::Key_A);
        const QRect square(-(side / 2), -(side / 2), side, side);
        EXPECT_EQ(spokenDescription(), hexCodeOf(*desktop.averageOf(square))) << side;
    }
    EXPECT_NE(spokenDescription(), QStringLiteral("#000007"));
    key(Qt::Key_A);
    EXPECT_EQ(spokenDescription(), QStringLiteral("#000007")) << "a single pixel again";
}

TEST_F(MagnifierTest, averagesABoxThatIsDragged)
{
    mouse(QEvent::MouseButtonPress, {100, 90}, Qt::LeftButton);
    mouse(QEvent::MouseMove, {60, 20}, Qt::LeftButton);
    const QColor average =
        *DesktopPicture({{nullptr, {}, picture()}}).averageOf({QPoint(60, 20), QPoint(100, 90)});
    EXPECT_EQ(spokenDescription(), hexCodeOf(average));
    mouse(QEvent::MouseButtonRelease, {60, 20}, Qt::LeftButton);
    EXPECT_THAT(answers(), ElementsAre(average));
}

TEST_F(MagnifierTest, paintsTheBoxAndRepaintsWhereItWas)
{
    overlay().resize(200, 150);
    const QImage before = overlay().grab().toImage();
    mouse(QEvent::MouseButtonPress, {5, 5}, Qt::LeftButton);
    mouse(QEvent::MouseMove, {195, 5}, Qt::LeftButton);
    mouse(QEvent::MouseMove, {195, 140}, Qt::LeftButton);
    const QImage box = overlay().grab().toImage();
    EXPECT_EQ(box.pixelColor(4, 140), QColor(Qt::white));
    EXPECT_EQ(box.pixelColor(3, 140), QColor(Qt::black));
    mouse(QEvent::MouseButtonRelease, {195, 140}, Qt::LeftButton, Qt::ShiftModifier);
    EXPECT_NE(overlay().grab().toImage().pixelColor(4, 140), QColor(Qt::white));
    EXPECT_THAT(answers(), ElementsAre());
}

TEST_F(MagnifierTest, picksSeveralWhileShiftIsHeld)
{
    click({80, 90}, Qt::LeftButton, Qt::ShiftModifier);
    key(Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_THAT(_onTheWay, ElementsAre()) << "they come from the event loop";
    EXPECT_THAT(answers(), ElementsAre());
    EXPECT_THAT(_onTheWay, ElementsAre(colorOf(80, 90), colorOf(80, 90)));
    EXPECT_TRUE(overlay().isVisible());
    click({81, 92});
    EXPECT_THAT(answers(), ElementsAre(colorOf(81, 92)));
    EXPECT_EQ(_onTheWay.size(), 2U);
}

TEST_F(MagnifierTest, whatGoesOnIsEndedOnlyByTheUser)
{
    PickOptions goesOn = options();
    goesOn.goesOn = true;
    _magnifier = std::make_unique<Magnifier>(DesktopPicture({{nullptr, {0, 0}, picture()}}),
                                             QPoint(50, 60), goesOn);
    QObject::connect(_magnifier.get(), &Magnifier::picked,
                     [this](const QColor& color) { take(color); });
    QObject::connect(_magnifier.get(), &Magnifier::pickedOnTheWay,
                     [this](const QColor& color) { _onTheWay.push_back(color); });
    QObject::connect(_magnifier.get(), &Magnifier::left, [this] { take(std::nullopt); });
    click({80, 90});
    click({81, 92});
    EXPECT_THAT(answers(), ElementsAre());
    key(Qt::Key_Escape);
    EXPECT_THAT(answers(), ElementsAre(std::nullopt));
    EXPECT_THAT(_onTheWay, ElementsAre(colorOf(80, 90), colorOf(81, 92)));
}

TEST_F(MagnifierTest, reportsNoResultOnceDestroyed)
{
    key(Qt::Key_Return);
    _magnifier.reset();
    EXPECT_THAT(answers(), ElementsAre());
}

}  // namespace
}  // namespace vantorel
