#pragma once

#include "colormath/ListNames.h"
#include "lsp/ClientAbilities.h"
#include "lsp/OpenDocument.h"
#include "lsp/PanelChoices.h"
#include "lsp/Protocol.h"
#include "lsp/ServerUser.h"

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace vantorel {

/// The requests and notifications about documents, and the open documents.
class DocumentRequests {
public:
    /// `user` must outlive this object.
    explicit DocumentRequests(ServerUser& user) : _user(user) {}

    /// To be called before the first request or notification.
    void setClient(const ClientAbilities& client) { _client = client; }

    /// Appends the result of a request as JSON. Throws a `RequestError` if the method is not known
    /// or cannot be done with these parameters.
    void answer(std::string_view method, const Json& params, std::string& result);
    /// Follows a notification if its method is known. Throws a `RequestError` if the parameters are
    /// wrong.
    void notify(std::string_view method, const Json& params);

    /// The outputs of panels to wait for. When one is ready, `readPanel` must be called.
    [[nodiscard]] std::vector<int> panelOutputs() const { return _choices.outputs(); }
    /// Returns the parameters of the `workspace/applyEdit` with which the client is to write the
    /// chosen colour, or null if there is no such edit, or not yet.
    [[nodiscard]] Json readPanel(int output);

private:
    using Request = void (DocumentRequests::*)(const Json& params, std::string& result);
    using Notification = void (DocumentRequests::*)(const Json& params);

    [[nodiscard]] static Request requestNamed(std::string_view method);
    [[nodiscard]] static Notification notificationNamed(std::string_view method);

    void documentColors(const Json& params, std::string& result);
    void colorPresentations(const Json& params, std::string& result);
    void hover(const Json& params, std::string& result);
    void completion(const Json& params, std::string& result);
    void codeActionsFor(const Json& params, std::string& result);
    void executeCommand(const Json& params, std::string& result);

    void didOpen(const Json& params);
    void didChange(const Json& params);
    void didClose(const Json& params);
    void applyChange(const std::string& uri, OpenDocument& document, const Json& change);

    [[nodiscard]] OpenDocument& requiredDocument(const Json& params);
    [[nodiscard]] const std::vector<ListNames>& listNames();
    [[nodiscard]] std::shared_ptr<const SnippetReaders> snippets();
    [[nodiscard]] Json editForChoice(const PanelChoices::Choice& choice);

    ServerUser& _user;
    ClientAbilities _client;
    std::map<std::string, OpenDocument> _documents;
    std::shared_ptr<const SnippetReaders> _snippets;
    std::vector<ListNames> _listNames;
    PanelChoices _choices;
};

}  // namespace vantorel
