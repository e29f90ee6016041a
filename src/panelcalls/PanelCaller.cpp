#include "panelcalls/PanelCaller.h"

#include <cstdlib>
#include <string_view>

namespace vantorel {
namespace {

// As in the panel's D-Bus interface.
constexpr const char* panelName = "org.vantorel.ColorPanel";
constexpr const char* panelPath = "/org/vantorel/ColorPanel";
constexpr const char* panelInterfaceName = "org.vantorel.ColorPanel1";
constexpr std::string_view cancelledError = "org.vantorel.ColorPanel1.Error.Cancelled";
constexpr std::string_view notPossibleError = "org.vantorel.ColorPanel1.Error.NotPossible";

/// Longer than a busy panel needs, and shorter than users wait. In milliseconds.
constexpr int panelPatience = 5000;

PanelReply replyFrom(const BusReply& reply)
{
    using Kind = PanelReply::Kind;
    if (reply.kind == BusReply::Kind::value) return {Kind::done, reply.text};
    if (reply.errorName == cancelledError) return {Kind::cancelled, reply.text};
    if (reply.errorName == notPossibleError) return {Kind::notPossible, reply.text};
    return {};
}

}  // namespace

std::optional<PanelCaller> PanelCaller::find()
{
    auto bus = SessionBus::connect();
    if (bus == nullptr) return std::nullopt;
    PanelCaller caller(std::move(bus));
    // A call with a limit: later ones cannot distinguish a slow user from a panel that hangs.
    if (caller.call("GetColor", {}, panelPatience).kind != PanelReply::Kind::done)
        return std::nullopt;
    return caller;
}

PanelReply PanelCaller::call(const char* member, const std::vector<SessionBus::Argument>& arguments,
                             int milliseconds)
{
    return replyFrom(
        _bus->call({panelName, panelPath, panelInterfaceName, member}, arguments, milliseconds));
}

PanelReply PanelCaller::setColor(const std::string& color)
{
    return call("SetColor", {color}, panelPatience);
}

PanelReply PanelCaller::show()
{
    SessionBus::Dictionary token;
    const auto add = [&token](const char* key, const char* variable) {
        const char* value = std::getenv(variable);
        if (value != nullptr && *value != '\0') token.emplace_back(key, value);
    };
    add("activation-token", "XDG_ACTIVATION_TOKEN");
    add("desktop-startup-id", "DESKTOP_STARTUP_ID");
    return call("Activate", {token}, panelPatience);
}

PanelReply PanelCaller::pick()
{
    return call("Pick", {false}, SessionBus::withoutLimit);
}

PanelReply PanelCaller::copy()
{
    return call("Copy", {std::string()}, panelPatience);
}

}  // namespace vantorel
