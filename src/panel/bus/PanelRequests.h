#pragma once

#include "host/HostColor.h"
#include "panel/bus/PanelOrder.h"

#include <QObject>

#include <functional>

namespace vantorel {

class PanelWindow;

/// What programs outside ask of the panel, whichever way they reach it.
///
/// A panel may run without a window, for a pick or for what it has copied: the clipboard belongs to
/// a program, and goes with it. Such a panel ends when nothing is under way, and no text of its own
/// is on the clipboard any more. Once the window has been shown it ends as every panel does.
class PanelRequests final : public QObject {
    Q_OBJECT

public:
    using Done = std::function<void(const PanelAnswer&)>;

    /// `window` must outlive the requests.
    explicit PanelRequests(PanelWindow& window);

    void show(const ActivationToken& token);
    /// Takes every text of CSS Color 4. Answers with an empty text.
    [[nodiscard]] PanelAnswer setColor(const QString& text);
    /// Hex code, with the alpha where it is not opaque; empty for a pattern.
    [[nodiscard]] QString color() const;
    /// The colour itself.
    [[nodiscard]] HostColor hostColor() const;
    /// Answers with the hex code of the colour picked. A pick that is under way is cancelled.
    /// `done` is called once, unless the requests end before.
    void pick(bool copies, Done done);
    /// Cancels a pick that is under way.
    void cancelPick();
    /// Puts the colour on the clipboard and answers with the text that stands for it there.
    void copy(const QString& form, Done done);
    /// Whether a panel without a window has nothing left to do.
    [[nodiscard]] bool isNothingLeft() const;
    /// Does all that is ordered.
    void carryOut(const PanelOrder& order, Done done);

signals:
    void colorChanged();
    /// `isNothingLeft` has become true, or is so still.
    void nothingLeft();

private:
    void putOnClipboard(const QString& form, const Done& done);
    void finish(const Done& done, const PanelAnswer& answer);
    void lookWhetherNothingIsLeft();

    PanelWindow& _window;
    /// Picks and copies that are not yet answered.
    int _underWay = 0;
};

}  // namespace vantorel
