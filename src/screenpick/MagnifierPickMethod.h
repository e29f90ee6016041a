#pragma once

#include "screenpick/Magnifier.h"
#include "screenpick/PickMethod.h"

#include <QElapsedTimer>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <memory>

namespace vantorel {

/// Picks with our own magnifier, if an X11 display shows the whole screen. Colours are those of the
/// frame buffer, interpreted as sRGB.
class MagnifierPickMethod final : public PickMethod {
    Q_OBJECT

public:
    MagnifierPickMethod();

    [[nodiscard]] bool canAverage() const override { return true; }
    void start(QWidget* parent, const PickOptions& options) override;
    void cancel() override;

    /// The visible magnifier; null if there is none.
    [[nodiscard]] const Magnifier* magnifier() const { return _magnifier.get(); }

private:
    void begin();
    void end();
    void finish(const Outcome& outcome);

    PickOptions _options;
    QPointer<QWidget> _activeBefore;
    std::unique_ptr<Magnifier> _magnifier;
    QTimer _settling;
    QElapsedTimer _sinceLast;
};

}  // namespace vantorel
