#include "testing/driver/DriverRequests.h"

#include <map>

namespace vantorel {
namespace {

using SessionRequest = Json (DriverSession::*)(const Json&);

const std::map<std::string, SessionRequest>& sessionRequests()
{
    static const std::map<std::string, SessionRequest> table{
        {"open", &DriverSession::open},
        {"close", &DriverSession::close},
        {"picker", &DriverSession::picker},
        {"panel.setColor", &DriverSession::setPanelColor},
        {"resize", &DriverSession::resize},
        {"set", &DriverSession::set},
        {"enter", &DriverSession::enter},
        {"type", &DriverSession::type},
        {"choose", &DriverSession::choose},
        {"popUp", &DriverSession::popUp},
        {"action", &DriverSession::action},
        {"check", &DriverSession::check},
        {"mouse", &DriverSession::mouse},
        {"pointer", &DriverSession::pointer},
        {"draw", &DriverSession::draw},
        {"advance", &DriverSession::advance},
        {"swatch", &DriverSession::swatch},
        {"dragImage", &DriverSession::dragImage},
        {"dragString", &DriverSession::dragString},
        {"settingsFile", &DriverSession::settingsFile},
        {"state", &DriverSession::state},
    };
    return table;
}

using PureRequest = Json (*)(const Json&);

const std::map<std::string, PureRequest>& pureRequests()
{
    static const std::map<std::string, PureRequest> table{
        {"call", replyToCall},
        {"spec", replyToSpec},
        {"snippet", replyToSnippet},
        {"plist.parse", replyToPropertyListParse},
        {"plist.write", replyToPropertyListWrite},
    };
    return table;
}

Json answer(DriverSession& session, const Json& request)
{
    if (!request.is_object()) throw DriverError("a request must be an object");
    const Json& op = requiredMember(request, "op");
    if (!op.is_string()) throw DriverError("op must be a text");
    const std::string name = op.get<std::string>();
    if (const auto found = sessionRequests().find(name); found != sessionRequests().end()) {
        return (session.*found->second)(request);
    }
    if (const auto found = pureRequests().find(name); found != pureRequests().end()) {
        return found->second(request);
    }
    throw DriverError("no request is called \"" + name + "\"");
}

}  // namespace

std::string Driver::reply(std::string_view line)
{
    Json result{{"ok", true}};
    try {
        result.update(answer(_session, Json::parse(line)));
    } catch (const DriverError& error) {
        result = {{"ok", false}, {"error", error.what()}};
    } catch (const Json::exception& error) {
        result = {{"ok", false}, {"error", error.what()}};
    }
    // Error texts can quote a malformed line, so bytes that are not UTF-8 are replaced.
    return result.dump(-1, ' ', false, Json::error_handler_t::replace);
}

}  // namespace vantorel
