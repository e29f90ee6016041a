#include "wayland/AttentionToken.h"

#include "wayland/WaylandConnection.h"

#include <xdg-activation-v1-client-protocol.h>

namespace vantorel {
namespace {

constexpr std::chrono::milliseconds longestWaitForToken{500};

}  // namespace

std::string attentionToken()
{
    const auto deadline = WaylandConnection::Clock::now() + longestWaitForToken;
    constexpr int nothingEndsIt = -1;
    WaylandConnection connection(nothingEndsIt);
    if (!connection.isOpen() || !connection.waitForCompositor(deadline)) return {};
    const auto activation = connection.bind<xdg_activation_v1>(xdg_activation_v1_interface);
    if (activation == nullptr) return {};
    const WaylandObject<xdg_activation_token_v1> request(
        xdg_activation_v1_get_activation_token(activation.get()));
    std::string token;
    static const xdg_activation_token_v1_listener listener{
        [](void* data, xdg_activation_token_v1*, const char* text) {
            *static_cast<std::string*>(data) = text;
        }};
    xdg_activation_token_v1_add_listener(request.get(), &listener, &token);
    xdg_activation_token_v1_commit(request.get());
    connection.waitUntil([&token] { return !token.empty(); }, deadline);
    return token;
}

}  // namespace vantorel
