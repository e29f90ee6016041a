#pragma once

#include "PanelWindowFixture.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>

#include <algorithm>

namespace vantorel {

/// Answers at once with the outcome set by the test.
class ScriptedScreenPicker final : public ScreenPicker {
public:
    explicit ScriptedScreenPicker(const ScreenPickResult& result) : _result(result) {}
    void start(QWidget*, Callback done) override { done(_result); }
    void cancel() override {}
    [[nodiscard]] bool isPicking() const override { return false; }

private:
    const ScreenPickResult& _result;
};

/// The panel with an orange colour and a clipboard that is empty.
class PanelCommandsFixture : public PanelWindowFixture {
protected:
    void SetUp() override
    {
        PanelWindowFixture::SetUp();
        QApplication::clipboard()->clear();
        _window->colors().setColor(rgb(255, 128, 0));
        _window->setFocus();
    }

    std::unique_ptr<ScreenPicker> screenPicker() override
    {
        return std::make_unique<ScriptedScreenPicker>(_pick);
    }
    static const QMimeData& clipboard() { return *QApplication::clipboard()->mimeData(); }
    [[nodiscard]] MessageLabel& messageLabel() const
    {
        return *_window->findChild<MessageLabel*>();
    }
    /// The message; empty if there is none.
    [[nodiscard]] QString message() const
    {
        return messageLabel().isVisible() ? messageLabel().text() : QString();
    }
    [[nodiscard]] QAction* command(const QString& text) const
    {
        const QList<QAction*> all = _window->actions();
        const auto found = std::find_if(
            all.begin(), all.end(), [&](const QAction* action) { return action->text() == text; });
        return found != all.end() ? *found : nullptr;
    }
    void type(const QKeySequence& keys) { QTest::keySequence(_window.get(), keys); }

    /// How picks from the screen end.
    ScreenPickResult _pick;
};

}  // namespace vantorel
