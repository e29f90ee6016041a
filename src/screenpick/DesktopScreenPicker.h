#pragma once

#include "screenpick/PickMethod.h"
#include "screenpick/ScreenPicker.h"

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <vector>

namespace vantorel {

/// Tries methods in order until one works or the user cancels.
class DesktopScreenPicker final : public QObject, public ScreenPicker {
    Q_OBJECT

public:
    using Methods = std::vector<std::unique_ptr<PickMethod>>;

    explicit DesktopScreenPicker(Methods methods);

    void start(QWidget* parent, const PickOptions& options, Callback done) override;
    void cancel() override;
    [[nodiscard]] bool isPicking() const override { return _picking; }

private:
    void tryNextMethod();
    void take(const PickMethod::Outcome& outcome);
    void finish(ScreenPickResult result);

    Methods _methods;
    PickOptions _options;
    /// The methods for the options, the next one last.
    std::vector<PickMethod*> _untried;
    PickMethod* _tried = nullptr;
    std::vector<PickMethod::Failure> _failures;
    QPointer<QWidget> _parent;
    Callback _done;
    bool _picking = false;
};

}  // namespace vantorel
