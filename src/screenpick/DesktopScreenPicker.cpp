#include "screenpick/DesktopScreenPicker.h"

#include <algorithm>
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

/// The desktop's own pickers give one pixel.
bool needsOwnMagnifier(const PickOptions& options)
{
    return options.averagedSide > 1 || options.goesOn || options.nameOf || options.picksByLetter;
}

}  // namespace

DesktopScreenPicker::DesktopScreenPicker(Methods methods) : _methods(std::move(methods))
{
    for (const auto& method : _methods) {
        connect(method.get(), &PickMethod::finished, this, &DesktopScreenPicker::take);
        connect(method.get(), &PickMethod::pickedOnTheWay, this, [this](const HostColor& color) {
            if (_options.pickedOnTheWay) _options.pickedOnTheWay(color);
        });
    }
}

void DesktopScreenPicker::start(QWidget* parent, const PickOptions& options, Callback done)
{
    cancel();
    _parent = parent;
    _options = options;
    _done = std::move(done);
    _tried = nullptr;
    _untried.clear();
    for (auto method = _methods.rbegin(); method != _methods.rend(); ++method)
        _untried.push_back(method->get());
    if (needsOwnMagnifier(options)) {
        std::stable_partition(_untried.begin(), _untried.end(),
                              [](const PickMethod* method) { return !method->canAverage(); });
    }
    _failures.clear();
    _picking = true;
    tryNextMethod();
}

void DesktopScreenPicker::cancel()
{
    if (!_picking) return;
    if (_tried != nullptr) _tried->cancel();
    finish({});
}

void DesktopScreenPicker::tryNextMethod()
{
    if (_untried.empty()) {
        finish({.outcome = ScreenPickResult::Outcome::notPossible, .reason = messageOf(_failures)});
        return;
    }
    _tried = _untried.back();
    _untried.pop_back();
    _tried->start(_parent, _options);
}

void DesktopScreenPicker::take(const PickMethod::Outcome& outcome)
{
    if (const auto* color = std::get_if<HostColor>(&outcome)) {
        finish({.outcome = ScreenPickResult::Outcome::picked,
                .color = *color,
                .lacksAverage = _options.averagedSide > 1 && !_tried->canAverage(),
                .endsAfterOne = _options.goesOn && !_tried->canAverage()});
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
