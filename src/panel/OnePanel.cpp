#include "panel/OnePanel.h"

#include "hosts/qt/QtMessages.h"
#include "panel/Output.h"
#include "panel/TerminationSignals.h"
#include "panel/bus/ServiceLifetime.h"
#include "panel/preferences/PanelPreferences.h"
#include "panel/widgets/ColorClipboard.h"
#include "panel/window/PanelMemoryKeeper.h"
#include "panel/window/Residence.h"

#include <QApplication>
#include <QTimer>

namespace vantorel {

PanelOrder orderFrom(const PanelOptions& options, const ActivationToken& token)
{
    PanelOrder order{options.step, {}, options.copyForm, token};
    if (options.color) order.color = exactColorText(*options.color);
    return order;
}

OnePanel::OnePanel(const PanelOptions& options, const PanelEnvironment& environment,
                   const PanelOrder& order, CallersProcess* caller)
    : _options(options),
      _environment(environment),
      _order(order),
      _caller(caller),
      _running(QDBusConnection::sessionBus())
{
}

PanelOrder::Say OnePanel::say()
{
    return [this](const QString& text) { _sayStatus = printResult(text + u'\n'); };
}

int OnePanel::report(const PanelAnswer& answer) const
{
    using Kind = PanelError::Kind;
    if (!answer) {
        const auto& [kind, message] = answer.error();
        printProblem(translatedSentence(message));
        if (kind == Kind::cancelled) return cancelled;
        return kind == Kind::notPossible ? notPossible : usageError;
    }
    return _sayStatus;
}

std::optional<int> OnePanel::handOver()
{
    const auto [contact, answer] = _running.handOver(_order, say());
    _contact = contact;
    if (contact != RunningPanel::Contact::made) return std::nullopt;
    if (!_options.forStartsOnly.isEmpty()) {
        printProblem(QCoreApplication::translate("main",
                                                 "A panel is already running and cannot apply "
                                                 "%1. Use --new to start another.")
                         .arg(_options.forStartsOnly.join(QStringLiteral(", "))));
    }
    return report(answer);
}

std::optional<int> OnePanel::takeName(PanelService& service)
{
    // A panel that started first may just have exited.
    constexpr int mostAttempts = 3;
    for (int i = 0; i < mostAttempts; ++i) {
        if (service.claimName() != PanelService::Claim::taken) return std::nullopt;
        // The caller gets the other panel's answer.
        if (_options.service) return succeeded;
        if (_options.another || _contact != RunningPanel::Contact::none) break;
        if (const auto status = handOver()) return status;
    }
    service.waitForName();
    return std::nullopt;
}

int OnePanel::run()
{
    if (!_options.another && !_options.service) {
        if (const auto status = handOver()) return *status;
    }
    Panel panel(_options, _environment.userData());
    PanelWindow& window = panel.window();
    PanelMemoryKeeper memory(window);
    panel.apply(_options);

    PanelRequests requests(window);
    PanelService service(requests, QDBusConnection::sessionBus());
    const auto warn = [&window](const Message& message) {
        printProblem(translatedSentence(message));
        window.showMessage(message, MessageLabel::Kind::failure);
    };
    QObject::connect(&service, &PanelService::unreachable, &window, warn);
    if (const auto status = takeName(service)) return *status;
    const TerminationSignals termination;
    QObject::connect(&termination, &TerminationSignals::received, &QApplication::quit);
    memory.keep();
    if (const Status status = RunningPanel::statusAfter(_contact); !status) warn(status.error());

    const int status = _order.step != PanelOrder::Step::show ? runForOrder(requests)
                       : _options.service ? runForCalls(service, requests, window)
                                          : runForUser(window);
    memory.save();
    return status;
}

int OnePanel::runForOrder(PanelRequests& requests)
{
    int status = succeeded;
    QTimer::singleShot(0, &requests, [&] {
        // Not earlier, because before the order begins there is nothing left to do.
        QObject::connect(&requests, &PanelRequests::nothingLeft, &QApplication::quit);
        requests.carryOut(_order, say(), [&](const PanelAnswer& answer) {
            status = report(answer);
            _caller->release(status);
        });
    });
    QApplication::exec();
    return status;
}

int OnePanel::runForCalls(PanelService& service, PanelRequests& requests, PanelWindow& window)
{
    PanelPreferences& preferences = window.commands().preferences();
    const Residence residence(window, preferences);
    std::optional<ServiceLifetime> lifetime;
    if (!preferences.staysResident()) {
        lifetime.emplace(service, requests);
        QObject::connect(&*lifetime, &ServiceLifetime::ended, &QApplication::quit);
    }
    QApplication::exec();
    return succeeded;
}

int OnePanel::runForUser(PanelWindow& window)
{
    window.show();
    // Later, because a tray takes time to find.
    std::optional<Residence> residence;
    QTimer::singleShot(0, &window,
                       [&] { residence.emplace(window, window.commands().preferences()); });
    QApplication::exec();
    return succeeded;
}

}  // namespace vantorel
