#pragma once

#include "host/HostColor.h"
#include "panel/bus/PanelOrder.h"
#include "panel/bus/SessionClipboard.h"

#include <QObject>

#include <functional>

namespace vantorel {

class PanelWindow;

/// The requests of other programs to the panel, however they reach it.
///
/// A panel may run without a window, for a pick or to keep its text on the clipboard, which is lost
/// when its owner exits. Such a panel exits when no request is in progress and it no longer owns
/// the clipboard. Once its window has been shown, it exits like any other panel.
class PanelRequests final : public QObject {
    Q_OBJECT

public:
    using Done = std::function<void(const PanelAnswer&)>;

    /// `window` must outlive the requests.
    explicit PanelRequests(PanelWindow& window);

    void show(const ActivationToken& token);
    /// Reads every text form of CSS Color 5. The answer is an empty text.
    [[nodiscard]] PanelAnswer setColor(const QString& text);
    /// The hex code, with the alpha unless it is opaque; empty for a pattern.
    [[nodiscard]] QString color() const;
    /// The colour itself.
    [[nodiscard]] HostColor hostColor() const;
    /// The answer is the hex code of the picked colour. A pick in progress is cancelled first.
    /// `done` is called once, unless this object is destroyed before.
    void pick(bool copies, Done done);
    /// Cancels the pick in progress, if any.
    void cancelPick();
    /// Copies the colour to the clipboard. The answer is the copied text. The token may help to get
    /// the keyboard where copying needs it.
    void copy(const QString& form, const ActivationToken& token, Done done);
    /// Whether a panel without a window has nothing left to do.
    [[nodiscard]] bool isNothingLeft() const;
    /// Carries out the whole order. `say` gets each text for the caller as soon as it is known: a
    /// picked colour is not lost if it cannot be copied.
    void carryOut(const PanelOrder& order, const PanelOrder::Say& say, const Done& done);

signals:
    void colorChanged();
    /// Emitted when `isNothingLeft` has become or remains true.
    void nothingLeft();

private:
    void putOnClipboard(const QString& form, const ActivationToken& token, const Done& done);
    void finish(const Done& done, const PanelAnswer& answer);
    void lookWhetherNothingIsLeft();

    PanelWindow& _window;
    SessionClipboard _clipboard;
    /// The number of unanswered picks and copies.
    int _underWay = 0;
};

}  // namespace vantorel
