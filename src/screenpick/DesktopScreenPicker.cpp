#include "screenpick/DesktopScreenPicker.h"

#include <utility>

namespace vantorel {
namespace {

Message messageOf(const std::vector<PickMethod::Failure>& failures)
{
    Phrase clauses;
    for (const PickMethod::Failure& failure : failures) {
        clauses = clauses.isEmpty() ? failure.clause : phrase("%1 and %2", clauses, failure.clause);
    }
    return {phrase("this desktop offers no way to pick a colour: %1", clauses)};
}

}  // namespace

DesktopScreenPicker::DesktopScreenPicker(Methods methods) : _methods(std::move(methods))
{
    for (const auto& method : _methods)
        connect(method.get(), &PickMethod::finished, this, &DesktopScreenPicker::take);
}

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
                messageOf(_failures)});
        return;
    }
    _methods[_tried++]->start(_parent);
}

void DesktopScreenPicker::take(const PickMethod::Outcome& outcome)
{
    if (const auto* color = std::get_if<HostColor>(&outcome)) {
        finish({ScreenPickResult::Outcome::picked, *color, {}});
    } else if (const auto* failure = std::get_if<PickMethod::Failure>(&outcome)) {
        _failures.push_back(*failure);
        tryNextMethod();
    } else {
        finish({});
    }
}

void DesktopScreenPicker::finish(ScreenPickResult result)
{
    _picking = false;
    // A result that has not been delivered is dropped with the picker.
    QMetaObject::invokeMethod(
        this,
        [done = std::exchange(_done, nullptr), result = std::move(result)] {
            if (done) done(result);
        },
        Qt::QueuedConnection);
}

}  // namespace vantorel
