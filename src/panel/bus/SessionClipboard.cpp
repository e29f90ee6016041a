#include "panel/bus/SessionClipboard.h"

#include "hosts/qt/WaylandSession.h"
#include "panel/widgets/ColorClipboard.h"

#include <QApplication>
#include <QClipboard>

#include <utility>

namespace vantorel {

SessionClipboard::SessionClipboard()
{
    connect(QApplication::clipboard(), &QClipboard::dataChanged, this, &SessionClipboard::lost);
}

void SessionClipboard::copy(const HostColor& color, const QString& text,
                            const ActivationToken& token, Done done)
{
    if (!isWaylandSession()) {
        QApplication::clipboard()->setMimeData(mimeDataFromColor(color, text).release());
        done(QApplication::clipboard()->text() == text);
        return;
    }
    Job job{{}, token.activationToken.toStdString(), std::move(done)};
    for (const auto& [type, bytes] : formsFromColor(color, text))
        job.forms.push_back({type, bytes.toStdString()});
    _jobs.push_back(std::move(job));
    if (_jobs.size() == 1) startNextJob();
}

void SessionClipboard::startNextJob()
{
    Job& job = _jobs.front();
    const int number = ++_nextNumber;
    // The events come from another thread.
    _next = std::make_unique<WaylandSelection>(
        std::move(job.forms), std::move(job.activationToken),
        WaylandSelection::Events{
            [this](bool isOurs) {
                QMetaObject::invokeMethod(
                    this, [this, isOurs] { finishJob(isOurs); }, Qt::QueuedConnection);
            },
            [this, number] {
                QMetaObject::invokeMethod(
                    this, [this, number] { forget(number); }, Qt::QueuedConnection);
            }});
}

void SessionClipboard::finishJob(bool isOurs)
{
    if (isOurs) {
        _current = std::move(_next);
        _currentNumber = _nextNumber;
    }
    _next.reset();
    const Done done = std::move(_jobs.front().done);
    _jobs.pop_front();
    if (!_jobs.empty()) startNextJob();
    done(isOurs);
}

void SessionClipboard::forget(int selection)
{
    if (_current == nullptr || selection != _currentNumber) return;
    _current.reset();
    emit lost();
}

bool SessionClipboard::isOurs() const
{
    return !_jobs.empty() || _current != nullptr || QApplication::clipboard()->ownsClipboard();
}

}  // namespace vantorel
