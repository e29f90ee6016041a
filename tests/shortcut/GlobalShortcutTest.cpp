#include "shortcut/GlobalShortcut.h"

#include "shortcut/X11Shortcut.h"

#include <gtest/gtest.h>

#include <QCoreApplication>

#include <optional>

namespace vantorel {
namespace {

enum class Behaviour { binds, isMissing };

class TrialMethod final : public ShortcutMethod {
public:
    explicit TrialMethod(Behaviour behaviour, TrialMethod*& inUse)
        : _behaviour(behaviour), _inUse(inUse)
    {
        _inUse = this;
    }
    ~TrialMethod() override
    {
        if (_inUse == this) _inUse = nullptr;
    }
    void bind(const QKeySequence&) override
    {
        if (_behaviour == Behaviour::binds) {
            emit bound();
        } else {
            emit unavailable();
        }
    }

private:
    Behaviour _behaviour;
    TrialMethod*& _inUse;
};

class GlobalShortcutTest : public testing::Test {
protected:
    ~GlobalShortcutTest() override
    {
        // Methods are destroyed by the event loop, and each knows this test.
        _shortcut.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    void use(const std::vector<Behaviour>& behaviours)
    {
        std::vector<GlobalShortcut::MakeMethod> methods;
        methods.reserve(behaviours.size());
        for (const Behaviour behaviour : behaviours) {
            methods.emplace_back([this, behaviour]() -> std::unique_ptr<ShortcutMethod> {
                return std::make_unique<TrialMethod>(behaviour, _inUse);
            });
        }
        _shortcut.emplace(nullptr, std::move(methods));
        QObject::connect(&*_shortcut, &GlobalShortcut::stateChanged,
                         [this](const Message& problem) { _problem = english(problem.what); });
        QObject::connect(&*_shortcut, &GlobalShortcut::activated, [this] { ++_activated; });
    }

    TrialMethod* _inUse = nullptr;
    std::optional<GlobalShortcut> _shortcut;
    std::string _problem = "none yet";
    int _activated = 0;
};

TEST_F(GlobalShortcutTest, TheFirstMethodThatThereIsBindsTheKey)
{
    use({Behaviour::isMissing, Behaviour::binds});
    _shortcut->setKeys(QKeySequence(Qt::CTRL | Qt::Key_F2));
    EXPECT_EQ(_problem, "");
    ASSERT_NE(_inUse, nullptr);
    emit _inUse->activated();
    EXPECT_EQ(_activated, 1);
    _shortcut->setKeys({});
    EXPECT_EQ(_inUse, nullptr) << "the key was not given back";
}

TEST_F(GlobalShortcutTest, SaysWhyAKeyDoesNotWork)
{
    use({Behaviour::isMissing});
    _shortcut->setKeys(QKeySequence(Qt::CTRL | Qt::Key_F2));
    EXPECT_EQ(_problem, "this desktop lets no program have a shortcut of its own");
    _shortcut->setKeys(QKeySequence(Qt::SHIFT | Qt::Key_A));
    EXPECT_EQ(_problem, "a shortcut for all programs needs Ctrl, Alt or Meta");
    _shortcut->setKeys({});
    EXPECT_EQ(_problem, "");
}

/// Run by window-test, with an X server of its own.
TEST(X11ShortcutTest, AKeyOfAnotherProgramIsTaken)
{
    X11Shortcut first;
    bool isMissing = false;
    QObject::connect(&first, &ShortcutMethod::unavailable, [&] { isMissing = true; });
    int bound = 0;
    QObject::connect(&first, &ShortcutMethod::bound, [&] { ++bound; });
    first.bind(QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_F9));
    if (isMissing) GTEST_SKIP() << "there is no X server";
    ASSERT_EQ(bound, 1);
    std::string failure;
    {
        X11Shortcut second;
        QObject::connect(&second, &ShortcutMethod::failed,
                         [&](const Message& reason) { failure = english(reason.what); });
        second.bind(QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_F9));
    }
    EXPECT_EQ(failure, "another program has the shortcut Ctrl+Alt+F9");
}

}  // namespace
}  // namespace vantorel
