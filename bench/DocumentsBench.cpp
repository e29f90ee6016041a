#include "documents/ColorDocument.h"
#include "lsp/LanguageServer.h"

#include <benchmark/benchmark.h>

#include <array>
#include <cstdio>

/// A style sheet of a megabyte with 20,000 colours: how long it takes to open, and to follow a key.
namespace {

using namespace vantorel;

constexpr std::size_t sheetSize = 1'000'000;
constexpr int ruleCount = 4000;

/// Five colours a rule, in forms that style sheets have.
std::string styleSheet()
{
    std::string sheet = ":root { --ink: #102030; --paper: oklch(98% 0.01 90); }\n";
    const std::size_t perRule = sheetSize / ruleCount;
    for (int i = 0; i < ruleCount; ++i) {
        std::array<char, 400> rule{};
        const int length = std::snprintf(
            rule.data(), rule.size(),
            ".block-%d > .item:hover {\n  color: #%06x;\n  background: rgb(%d %d %d / 50%%);\n"
            "  border: 1px solid hsl(%d, 40%%, 50%%);\n  fill: %s;\n  outline-color: var(--%s);\n"
            "  margin: 0 auto;\n",
            i, static_cast<unsigned>(i * 4099 & 0xFFFFFF), i % 256, i / 16, 7, i % 360,
            i % 2 == 0 ? "rebeccapurple" : "tan", i % 3 == 0 ? "ink" : "paper");
        sheet.append(rule.data(), static_cast<std::size_t>(length));
        sheet += "  /*";
        while (sheet.size() < static_cast<std::size_t>(i + 1) * perRule - 4)
            sheet += " padding";
        sheet += " */\n}\n";
    }
    return sheet;
}

void findsColors(benchmark::State& state)
{
    const std::string sheet = styleSheet();
    std::size_t count = 0;
    for (auto _ : state)
        count = findColors(sheet, DocumentLanguage::css).colors.size();
    state.counters["colours"] = static_cast<double>(count);
    state.SetBytesProcessed(static_cast<std::int64_t>(sheet.size()) * state.iterations());
}
BENCHMARK(findsColors)->Unit(benchmark::kMillisecond);

class BenchUser final : public ServerUser {
public:
    [[nodiscard]] const QTXHexSettings& settings() override { return _settings; }
    [[nodiscard]] std::vector<QTXCodeSnippet> knownSnippets() override { return {}; }
    [[nodiscard]] std::vector<QTXCodeSnippet> ownSnippets() override { return {}; }
    [[nodiscard]] std::vector<std::shared_ptr<HostColorList>> lists() override { return {}; }
    [[nodiscard]] std::optional<Panel> startPanel(const std::string&) override { return {}; }

private:
    QTXHexSettings _settings;
};

class BenchServer {
public:
    BenchServer() { send({{"id", 1}, {"method", "initialize"}, {"params", Json::object()}}); }

    void send(const Json& message) { send(textOf(message)); }
    void send(std::string body)
    {
        _server.enqueue({MessageReader::Incoming::Kind::message, std::move(body)});
        while (_server.hasWork())
            _server.work();
    }
    [[nodiscard]] std::size_t sentBytes() const { return _sentBytes; }

private:
    BenchUser _user;
    std::size_t _sentBytes = 0;
    LanguageServer _server{_user, "", [this](std::string_view body) { _sentBytes += body.size(); }};
};

const Json document = {{"uri", "file:///a.css"}, {"languageId", "css"}, {"version", 1}};
const Json colorsRequest = {
    {"id", 2}, {"method", "textDocument/documentColor"}, {"params", {{"textDocument", document}}}};

void opensAFile(benchmark::State& state)
{
    BenchServer server;
    Json opened = document;
    opened["text"] = styleSheet();
    const std::string message =
        textOf({{"method", "textDocument/didOpen"}, {"params", {{"textDocument", opened}}}});
    for (auto _ : state) {
        server.send(message);
        server.send(colorsRequest);
    }
    state.counters["answer"] =
        static_cast<double>(server.sentBytes()) / static_cast<double>(state.iterations());
}
BENCHMARK(opensAFile)->Unit(benchmark::kMillisecond);

/// A letter is typed in the middle and removed again; after each, the client asks for all colours.
void followsAKey(benchmark::State& state)
{
    BenchServer server;
    Json opened = document;
    opened["text"] = styleSheet();
    server.send({{"method", "textDocument/didOpen"}, {"params", {{"textDocument", opened}}}});
    const auto change = [](std::size_t end, const char* text) {
        const Json range = {{"start", {{"line", 18001}, {"character", 0}}},
                            {"end", {{"line", 18001}, {"character", end}}}};
        return textOf({{"method", "textDocument/didChange"},
                       {"params",
                        {{"textDocument", document},
                         {"contentChanges", {{{"range", range}, {"text", text}}}}}}});
    };
    const std::array changes{change(0, "x"), change(1, "")};
    const std::string request = textOf(colorsRequest);
    for (auto _ : state) {
        for (const std::string& each : changes) {
            server.send(each);
            server.send(request);
        }
    }
    state.counters["keys"] = benchmark::Counter(
        2, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}
BENCHMARK(followsAKey)->Unit(benchmark::kMillisecond);

}  // namespace
