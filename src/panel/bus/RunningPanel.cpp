#include "panel/bus/RunningPanel.h"

#include "panel/bus/PanelNames.h"

#include <QDBusError>

#include <limits>

namespace vantorel {
namespace {

constexpr int withoutLimit = std::numeric_limits<int>::max();

RunningPanel::Contact contactAfter(const QDBusMessage& error)
{
    using Contact = RunningPanel::Contact;
    if (error.errorName() == QLatin1String("org.freedesktop.DBus.Error.NameHasNoOwner"))
        return Contact::none;
    switch (QDBusError(error).type()) {
        case QDBusError::NoReply:
        case QDBusError::Timeout:
        case QDBusError::TimedOut:
            return Contact::noAnswer;
        case QDBusError::ServiceUnknown:
        case QDBusError::Disconnected:
            return Contact::none;
        default:
            return Contact::notAPanel;
    }
}

/// Drops the full stop, which is added again when the message is shown.
Message messageFromSentence(QString sentence)
{
    if (sentence.endsWith(u'.')) sentence.chop(1);
    return {verbatim(sentence.toStdString())};
}

QVariantMap platformData(const ActivationToken& token)
{
    QVariantMap data;
    if (!token.activationToken.isEmpty())
        data.insert(activationTokenKey, QString::fromUtf8(token.activationToken));
    if (!token.startupID.isEmpty()) data.insert(startupIDKey, QString::fromUtf8(token.startupID));
    return data;
}

}  // namespace

RunningPanel::Reply RunningPanel::call(const QString& member, const QVariantList& arguments,
                                       int timeout) const
{
    QDBusMessage message =
        QDBusMessage::createMethodCall(panelBusName, panelObjectPath, panelInterface, member);
    message.setArguments(arguments);
    // If no panel is running, this start becomes the panel.
    message.setAutoStartService(false);
    const QDBusMessage reply = _bus.call(message, QDBus::Block, timeout);
    if (reply.type() == QDBusMessage::ReplyMessage)
        return {Contact::made, reply.arguments().value(0).toString()};
    if (const auto kind = errorKindFor(reply.errorName()))
        return {Contact::made, PanelError{*kind, messageFromSentence(reply.errorMessage())}};
    return {contactAfter(reply), QString()};
}

/// The colour is copied by a call of its own, so that it can be printed before.
RunningPanel::Reply RunningPanel::pick(const PanelOrder& order, const PanelOrder::Say& say) const
{
    Reply picked = call(QStringLiteral("Pick"), {false}, withoutLimit);
    if (picked.contact != Contact::made || !picked.answer) return picked;
    say(*picked.answer);
    if (order.step == PanelOrder::Step::pick) return picked;
    Reply copied = call(QStringLiteral("Copy"), {QString()});
    if (copied.contact == Contact::made) return copied;
    return {Contact::made, PanelError{PanelError::Kind::notPossible,
                                      {phrase("the panel did not answer, and may not have "
                                              "copied the colour")}}};
}

RunningPanel::Reply RunningPanel::handOver(const PanelOrder& order,
                                           const PanelOrder::Say& say) const
{
    using Step = PanelOrder::Step;
    if (!_bus.isConnected()) return {};
    // First a call with a short limit: a pick cannot distinguish a slow user from a panel that
    // hangs.
    Reply reply = order.color ? call(QStringLiteral("SetColor"), {*order.color})
                              : call(QStringLiteral("GetColor"), {});
    if (reply.contact != Contact::made || !reply.answer) return reply;
    switch (order.step) {
        case Step::show:
            return call(QStringLiteral("Activate"), {platformData(order.token)});
        case Step::pick:
        case Step::pickAndCopy:
            return pick(order, say);
        case Step::copy:
            reply = call(QStringLiteral("Copy"), {order.form});
            if (reply.contact == Contact::made && reply.answer) say(*reply.answer);
            return reply;
    }
    return reply;
}

Status RunningPanel::statusAfter(Contact contact)
{
    if (contact == Contact::noAnswer)
        return Message{
            phrase("the panel that is already running does not answer, so a second one "
                   "was started")};
    if (contact == Contact::notAPanel)
        return Message{
            phrase("another program has the name %1 on the session bus: other programs "
                   "cannot reach this panel",
                   panelBusName.toStdString())};
    return {};
}

}  // namespace vantorel
