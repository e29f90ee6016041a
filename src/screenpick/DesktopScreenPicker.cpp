#include "screenpick/DesktopScreenPicker.h"

#include <utility>

namespace vantorel {

void DesktopScreenPicker::start(QWidget* parent, Callback done)
{
    cancel();
    _parent = parent;
    _done = std::move(done);
    _tried = 0;
    _failures.clear();
    _picking = true;
    tryNextMethod();
}

void DesktopScreenPicker::cancel()
{
    if (!_picking) return;
    if (_tried > 0) _methods[_tried - 1]->cancel();
    finish({});
}

void DesktopScreenPicker::tryNextMethod()
{
    if (_tried == _methods.size()) {
        finish({ScreenPickResult::Outcome::notPossible, HostColor::blackColor(),
                QStringLiteral("This desktop offers no way to pick a colour: %1.")
                    .arg(_failures.join(QStringLiteral(" and ")))});
        return;
    }
    PickMethod& method = *_methods[_tried++];
    method.start(_parent, [this](const PickMethod::Outcome& outcome) { take(outcome); });
}

void DesktopScreenPicker::take(const PickMethod::Outcome& outcome)
{
    if (const auto* color = std::get_if<HostColor>(&outcome)) {
        finish({ScreenPickResult::Outcome::picked, *color, {}});
    } else if (const auto* failure = std::get_if<PickMethod::Failure>(&outcome)) {
        _failures.append(failure->clause);
        tryNextMethod();
    } else {
        finish({});
    }
}

void DesktopScreenPicker::finish(ScreenPickResult result)
{
    _picking = false;
    QMetaObject::invokeMethod(
        &_mail,
        [done = std::exchange(_done, nullptr), result = std::move(result)] {
            if (done) done(result);
        },
        Qt::QueuedConnection);
}

}  // namespace vantorel
