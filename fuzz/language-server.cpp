#include "FuzzTexts.h"
#include "lsp/LanguageServer.h"

#include <algorithm>

namespace {

using namespace vantorel;

class FuzzUser final : public ServerUser {
public:
    FuzzUser()
    {
        _settings.loadPropertyListRepresentation(PropertyList(PropertyList::Dictionary{}));
        _list->setColor(HostColor::colorWithCalibratedRed(1, 0.5, 0, 1), u"Light Orange");
    }
    [[nodiscard]] const QTXHexSettings& settings() override { return _settings; }
    [[nodiscard]] std::vector<QTXCodeSnippet> knownSnippets() override { return ownSnippets(); }
    [[nodiscard]] std::vector<QTXCodeSnippet> ownSnippets() override
    {
        return _settings.codeSnippets();
    }
    [[nodiscard]] std::vector<std::shared_ptr<HostColorList>> lists() override { return {_list}; }
    [[nodiscard]] std::optional<Panel> startPanel(const std::string&) override { return {}; }

private:
    QTXHexSettings _settings;
    std::shared_ptr<HostColorList> _list = std::make_shared<HostColorList>(u"Mine");
};

Json parsed(std::string_view body)
{
    Json message = Json::parse(body, nullptr, false);
    require(message.is_object() && (message.contains("id") || message.contains("method")));
    return message;
}

}  // namespace

/// The input is a stream of messages, with a line feed in place of each header; a line that begins
/// with "!" is part of the stream as it is. Every answer is JSON, and the server still works.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzUser user;
    Json last;
    LanguageServer server(user, "", [&](std::string_view body) { last = parsed(body); });
    MessageReader reader;
    const auto work = [&] {
        while (const auto message = reader.next())
            server.enqueue(*message);
        while (server.hasWork())
            server.work();
    };
    const auto send = [&](std::string_view body) {
        reader.append(messageHeader(body.size()));
        reader.append(body);
        work();
    };
    send(R"({"id":1,"method":"initialize","params":{"capabilities":{"workspace":{"applyEdit":true},
        "textDocument":{"codeAction":{"codeActionLiteralSupport":{}}}}}})");
    std::string_view input = bytesFrom(data, size);
    while (!input.empty() && !server.isOver()) {
        const std::string_view line = input.substr(0, input.find('\n'));
        input.remove_prefix(std::min(line.size() + 1, input.size()));
        if (!line.starts_with('!')) {
            send(line);
            continue;
        }
        reader.append(line.substr(1));
        work();
        // The stream may be within a message. The next header is found again after this.
        reader = MessageReader();
    }
    if (server.isOver()) return 0;
    send(R"({"id":"last","method":"unknown"})");
    require(last["id"] == "last" && last["error"]["code"].is_number());
    return 0;
}
