#pragma once

#include "lsp/LanguageServer.h"

#include <gtest/gtest.h>
#include <unistd.h>

namespace vantorel {

/// A user with default settings, one list, and a panel that chooses what the test says.
class TestUser final : public ServerUser {
public:
    TestUser()
    {
        theSettings.loadPropertyListRepresentation(PropertyList(PropertyList::Dictionary{}));
        list = std::make_shared<HostColorList>(u"Mine");
        list->setColor(HostColor::colorWithCalibratedRed(1, 128 / 255.0, 0, 1), u"Light Orange");
        list->setColor(HostColor::colorWithCalibratedRed(0, 0, 1, 1), u"Sea *blue*");
    }

    [[nodiscard]] const QTXHexSettings& settings() override { return theSettings; }
    [[nodiscard]] std::vector<QTXCodeSnippet> knownSnippets() override { return ownSnippets(); }
    [[nodiscard]] std::vector<QTXCodeSnippet> ownSnippets() override
    {
        return theSettings.codeSnippets();
    }
    [[nodiscard]] std::vector<std::shared_ptr<HostColorList>> lists() override { return {list}; }
    [[nodiscard]] std::optional<Panel> startPanel(const std::string& hexColor) override
    {
        startedWith = hexColor;
        if (!chosen) return std::nullopt;
        int ends[2] = {};
        EXPECT_EQ(::pipe(ends), 0);
        const int process = ::fork();
        if (process == 0) ::_exit(0);
        EXPECT_EQ(::write(ends[1], chosen->data(), chosen->size()),
                  static_cast<ssize_t>(chosen->size()));
        ::close(ends[1]);
        return Panel{process, ends[0]};
    }

    QTXHexSettings theSettings;
    std::shared_ptr<HostColorList> list;
    std::optional<std::string> chosen;
    std::string startedWith;
};

/// Plays the client of a server.
class LanguageServerTest : public testing::Test {
protected:
    void send(const Json& message) { sendText(textOf(message)); }
    void sendText(std::string body)
    {
        server.enqueue({MessageReader::Incoming::Kind::message, std::move(body)});
        while (server.hasWork())
            server.work();
    }
    void notify(const char* method, const Json& params)
    {
        send({{"jsonrpc", "2.0"}, {"method", method}, {"params", params}});
    }
    /// Returns the answer to a request.
    Json answer(const char* method, const Json& params)
    {
        const std::size_t before = sent.size();
        send({{"jsonrpc", "2.0"}, {"id", ++lastId}, {"method", method}, {"params", params}});
        if (sent.size() != before + 1 || sent.back()["id"] != lastId) {
            ADD_FAILURE() << method << " has no answer";
            return {};
        }
        return sent.back();
    }
    Json result(const char* method, const Json& params)
    {
        const Json whole = answer(method, params);
        EXPECT_TRUE(whole.contains("result")) << whole;
        return whole.value("result", Json());
    }
    int errorCode(const char* method, const Json& params)
    {
        return answer(method, params).value("/error/code"_json_pointer, 0);
    }

    void initialize(Json capabilities = Json::object(), const char* client = "Test")
    {
        capabilities["workspace"] = {{"applyEdit", true},
                                     {"workspaceEdit", {{"documentChanges", true}}}};
        capabilities["textDocument"]["codeAction"] = {{"codeActionLiteralSupport", Json::object()}};
        result("initialize", {{"processId", nullptr},
                              {"clientInfo", {{"name", client}}},
                              {"capabilities", capabilities}});
    }
    void open(const char* language, std::string_view text)
    {
        notify(
            "textDocument/didOpen",
            {{"textDocument",
              {{"uri", "file:///a"}, {"languageId", language}, {"version", 1}, {"text", text}}}});
    }
    static Json position(std::size_t line, std::size_t character)
    {
        return {{"line", line}, {"character", character}};
    }
    static Json range(std::size_t line, std::size_t from, std::size_t to)
    {
        return {{"start", position(line, from)}, {"end", position(line, to)}};
    }
    /// Parameters about the open document.
    static Json about(Json params = Json::object())
    {
        params["textDocument"] = {{"uri", "file:///a"}};
        return params;
    }
    /// The titles of the code actions at a range.
    std::vector<std::string> actionTitles(const Json& where, const Json& only = nullptr)
    {
        Json context = {{"diagnostics", Json::array()}};
        if (!only.is_null()) context["only"] = only;
        actions =
            result("textDocument/codeAction", about({{"range", where}, {"context", context}}));
        std::vector<std::string> titles;
        for (const Json& action : actions)
            titles.push_back(action["title"]);
        return titles;
    }
    /// The edits of the code action with a title.
    Json editsOf(std::string_view title)
    {
        for (const Json& action : actions) {
            if (action["title"] == title) return action["edit"]["documentChanges"][0]["edits"];
        }
        ADD_FAILURE() << "no action " << title;
        return {};
    }

    TestUser user;
    std::vector<Json> sent;
    LanguageServer server{user, "1.0",
                          [this](std::string_view body) { sent.push_back(Json::parse(body)); }};
    int lastId = 0;
    Json actions;
};

}  // namespace vantorel
