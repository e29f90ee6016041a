#include "ServerFixture.h"

#include <gmock/gmock.h>

namespace vantorel {
namespace {

TEST_F(LanguageServerTest, TheClientChoosesTheEncodingOfPositions)
{
    const Json capabilities =
        result("initialize",
               {{"processId", 1234},
                {"capabilities",
                 {{"general", {{"positionEncodings", {"utf-16", "utf-8"}}}}}}})["capabilities"];
    EXPECT_EQ(capabilities["positionEncoding"], "utf-8");
    EXPECT_EQ(capabilities["textDocumentSync"]["change"], 2);
    EXPECT_EQ(server.clientProcess(), 1234);
    open("css", "a{/*\u00e4*/color:red}");
    EXPECT_EQ(result("textDocument/documentColor", about())[0]["range"], range(0, 14, 17));
}

TEST_F(LanguageServerTest, PositionsCountUTF16OtherwiseToo)
{
    initialize();
    open("css", "a{/*\u00e4\U0001F600*/color:red}");
    EXPECT_EQ(result("textDocument/documentColor", about())[0]["range"], range(0, 15, 18));
}

TEST_F(LanguageServerTest, TheLifeOfAServerIsThatOfTheProtocol)
{
    EXPECT_EQ(errorCode("textDocument/documentColor", about()), -32002);
    open("css", "a{color:red}");
    initialize();
    EXPECT_EQ(errorCode("textDocument/documentColor", about()), -32602);
    EXPECT_EQ(errorCode("initialize", Json::object()), -32600);
    EXPECT_EQ(errorCode("unknown/method", Json::object()), -32601);
    EXPECT_EQ(errorCode("$/unknown", Json::object()), -32601);
    const std::size_t before = sent.size();
    notify("unknown/method", Json::object());
    notify("$/setTrace", {{"value", "off"}});
    notify("textDocument/didOpen", 1);
    EXPECT_EQ(sent.size(), before);
    EXPECT_EQ(server.exitStatus(), 1);
    EXPECT_EQ(result("shutdown", nullptr), nullptr);
    EXPECT_EQ(errorCode("textDocument/documentColor", about()), -32600);
    EXPECT_FALSE(server.isOver());
    notify("exit", nullptr);
    EXPECT_TRUE(server.isOver());
    EXPECT_EQ(server.exitStatus(), 0);
}

TEST_F(LanguageServerTest, DamagedMessagesAreAnswered)
{
    const std::pair<std::string, int> cases[] = {
        {"", -32700},
        {"{", -32700},
        {"\xff", -32700},
        {"\"\\ud800\"", -32700},
        {std::string(5000000, '['), -32700},
        {"[]", -32600},
        {"1", -32600},
        {"{}", -32600},
        {R"({"id":1})", -32600},
        {R"({"id":1,"method":2})", -32600},
        {R"({"id":null,"method":"shutdown"})", -32600},
        {R"({"id":[1],"method":"shutdown"})", -32600},
    };
    for (const auto& [body, code] : cases) {
        const std::size_t before = sent.size();
        sendText(body);
        ASSERT_EQ(sent.size(), before + 1) << body;
        EXPECT_EQ(sent.back()["error"]["code"], code) << body;
    }
    const std::size_t before = sent.size();
    sendText(R"({"id":"vantorel-1","result":null})");
    EXPECT_EQ(sent.size(), before);
    server.enqueue({MessageReader::Incoming::Kind::damagedHeader, {}});
    EXPECT_EQ(sent.back()["error"]["code"], -32700);
    server.enqueue({MessageReader::Incoming::Kind::tooLong, {}});
    EXPECT_EQ(sent.back()["error"]["code"], -32600);
}

TEST_F(LanguageServerTest, WrongParametersAreErrors)
{
    initialize();
    open("css", "a{color:red}");
    const Json where = {{"line", 0}, {"character", "x"}};
    EXPECT_EQ(errorCode("textDocument/documentColor", nullptr), -32602);
    EXPECT_EQ(errorCode("textDocument/documentColor", {{"textDocument", {{"uri", 1}}}}), -32602);
    EXPECT_EQ(errorCode("textDocument/hover", about()), -32602);
    EXPECT_EQ(errorCode("textDocument/hover", about({{"position", where}})), -32602);
    EXPECT_EQ(errorCode("textDocument/colorPresentation",
                        about({{"range", range(0, 0, 0)}, {"color", {{"red", 1}}}})),
              -32602);
    EXPECT_EQ(errorCode("workspace/executeCommand", {{"command", "x"}}), -32602);
    EXPECT_EQ(errorCode("workspace/executeCommand",
                        {{"command", "vantorel.chooseInPanel"}, {"arguments", {1, 2, 3}}}),
              -32602);
}

TEST_F(LanguageServerTest, AQueuedRequestCanBeCancelled)
{
    initialize();
    open("css", "a{color:red}");
    const auto enqueue = [&](const Json& message) {
        server.enqueue({MessageReader::Incoming::Kind::message, textOf(message)});
    };
    for (const int id : {100, 101}) {
        enqueue({{"id", id}, {"method", "textDocument/documentColor"}, {"params", about()}});
    }
    enqueue({{"method", "$/cancelRequest"}, {"params", {{"id", 100}}}});
    enqueue({{"method", "$/cancelRequest"}, {"params", {{"id", 999}}}});
    enqueue({{"method", "$/cancelRequest"}, {"params", nullptr}});
    EXPECT_EQ(sent.back()["id"], 100);
    EXPECT_EQ(sent.back()["error"]["code"], -32800);
    while (server.hasWork())
        server.work();
    EXPECT_EQ(sent.back()["id"], 101);
    EXPECT_TRUE(sent.back().contains("result"));
    EXPECT_EQ(server.queuedBytes(), 0U);
}

TEST_F(LanguageServerTest, ColoursFollowTheEditsOfADocument)
{
    initialize();
    open("css", "a{color:red}\r\nb{}");
    notify("textDocument/didChange", {{"textDocument", {{"uri", "file:///a"}, {"version", 2}}},
                                      {"contentChanges",
                                       {{{"range", range(1, 2, 2)}, {"text", "fill:#00f;"}},
                                        {{"range", range(0, 8, 11)}, {"text", "tan"}}}}});
    const Json colors = result("textDocument/documentColor", about());
    ASSERT_EQ(colors.size(), 2U);
    EXPECT_EQ(colors[0]["range"], range(0, 8, 11));
    EXPECT_EQ(colors[0]["color"],
              Json({{"red", 0.82353}, {"green", 0.70588}, {"blue", 0.54902}, {"alpha", 1}}));
    EXPECT_EQ(colors[1]["range"], range(1, 7, 11));
    notify("textDocument/didChange", {{"textDocument", {{"uri", "file:///a"}, {"version", 3}}},
                                      {"contentChanges", {{{"text", "b{color:#fff8}"}}}}});
    EXPECT_EQ(result("textDocument/documentColor", about())[0]["color"]["alpha"], 0.53333);
    notify("textDocument/didClose", about());
    EXPECT_EQ(errorCode("textDocument/documentColor", about()), -32602);
}

}  // namespace
}  // namespace vantorel
