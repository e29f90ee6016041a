#pragma once

#include "lsp/DocumentRequests.h"
#include "lsp/MessageReader.h"
#include "lsp/Protocol.h"
#include "lsp/ServerUser.h"

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantorel {

/// A server of the Language Server Protocol 3.17 for colours, apart from its input and output: the
/// queue of messages, and the life of the server. Documents are left to `DocumentRequests`.
///
/// Messages are queued and handled one after the other, so that a request can be cancelled while
/// others are before it.
class LanguageServer {
public:
    /// Gets the body of each message to the client.
    using Send = std::function<void(std::string_view body)>;

    /// `user` must outlive the server.
    LanguageServer(ServerUser& user, std::string version, Send send);

    void enqueue(const MessageReader::Incoming& incoming);
    [[nodiscard]] bool hasWork() const { return !_queue.empty() && !_isOver; }
    /// The length of all messages in the queue.
    [[nodiscard]] std::size_t queuedBytes() const { return _queuedBytes; }
    /// Handles the next message of the queue.
    void work();

    /// Whether the client has sent `exit`.
    [[nodiscard]] bool isOver() const { return _isOver; }
    /// The exit status of the program: 0 if the client has asked for the end, as it should.
    [[nodiscard]] int exitStatus() const { return _isShutDown ? 0 : 1; }
    /// The client's process, when it has named it.
    [[nodiscard]] std::optional<int> clientProcess() const { return _clientProcess; }

    /// The outputs of panels to wait for. When one is ready, `readPanel` must be called.
    [[nodiscard]] std::vector<int> panelOutputs() const { return _documents.panelOutputs(); }
    void readPanel(int output);

private:
    void handle(const Json& message);
    void handleRequest(const Json& id, const std::string& method, const Json& params);
    void handleNotification(const std::string& method, const Json& params);
    void cancel(const Json& id);
    void sendError(const Json& id, ErrorCode code, std::string_view what);

    /// Appends the result of a request as JSON, or throws a `RequestError`.
    void answer(const std::string& method, const Json& params, std::string& result);
    void initialize(const Json& params, std::string& result);

    std::string _version;
    Send _send;
    /// The last answer. Its memory is used again: fresh memory for megabytes would take longer than
    /// writing them.
    std::string _answer;
    struct Queued {
        Json message;
        std::size_t length = 0;
    };
    std::deque<Queued> _queue;
    std::size_t _queuedBytes = 0;
    bool _isInitialized = false;
    bool _isShutDown = false;
    bool _isOver = false;
    std::optional<int> _clientProcess;
    DocumentRequests _documents;
    /// The number of our last request to the client.
    int _lastRequest = 0;
};

}  // namespace vantorel
