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
    /// What a test sets, and what the panel asked for.
    struct Script {
        std::vector<HostColor> onTheWay;
        ScreenPickResult result;
        PickOptions options;
        /// The key of the magnifier that picks; none at 0.
        char letter = '\0';
        bool letterPicks = false;
    };

    explicit ScriptedScreenPicker(Script& script) : _script(script) {}
    void start(QWidget*, const PickOptions& options, Callback done) override
    {
        _script.options = options;
        for (const HostColor& color : _script.onTheWay) {
            if (options.pickedOnTheWay) options.pickedOnTheWay(color);
        }
        if (_script.letter != '\0')
            _script.letterPicks = options.picksByLetter && options.picksByLetter(_script.letter);
        done(_script.result);
    }
    void cancel() override {}
    [[nodiscard]] bool isPicking() const override { return false; }

private:
    Script& _script;
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

    ScriptedScreenPicker::Script _pick;
};

}  // namespace vantorel
