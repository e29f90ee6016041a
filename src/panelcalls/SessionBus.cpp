#include "panelcalls/SessionBus.h"

#include "panelcalls/DBusFunctions.h"

#include <sys/stat.h>

#include <algorithm>
#include <cstdlib>

namespace vantorel {
namespace {

/// libdbus would start a bus of its own if it found none.
bool hasSessionBus()
{
    const char* address = std::getenv("DBUS_SESSION_BUS_ADDRESS");
    if (address != nullptr && *address != '\0') return true;
    const char* folder = std::getenv("XDG_RUNTIME_DIR");
    if (folder == nullptr) return false;
    struct stat status {};
    return ::stat((std::string(folder) + "/bus").c_str(), &status) == 0 && S_ISSOCK(status.st_mode);
}

/// Frees what libdbus reports.
class BusError {
public:
    explicit BusError(const DBusFunctions& functions) : _functions(functions)
    {
        _functions.errorInit(&_error);
    }
    BusError(const BusError&) = delete;
    BusError& operator=(const BusError&) = delete;
    ~BusError() { _functions.errorFree(&_error); }

    DBusError* operator&() { return &_error; }
    [[nodiscard]] std::string name() const { return _error.name != nullptr ? _error.name : ""; }
    [[nodiscard]] std::string text() const
    {
        return _error.message != nullptr ? _error.message : "";
    }

private:
    const DBusFunctions& _functions;
    DBusError _error{};
};

/// The errors that the bus and libdbus make in the place of a program that does not answer.
bool isWithoutAnswer(const std::string& errorName)
{
    return errorName.starts_with("org.freedesktop.DBus.Error.");
}

}  // namespace

std::unique_ptr<SessionBus> SessionBus::connect()
{
    if (!hasSessionBus()) return nullptr;
    const DBusFunctions* functions = dbusFunctions();
    if (functions == nullptr) return nullptr;
    BusError error(*functions);
    DBusConnection* connection = functions->busGetPrivate(DBUS_BUS_SESSION, &error);
    if (connection == nullptr) return nullptr;
    functions->setExitOnDisconnect(connection, FALSE);
    return std::unique_ptr<SessionBus>(new SessionBus(*functions, connection));
}

SessionBus::~SessionBus()
{
    _functions.connectionClose(_connection);
    _functions.connectionUnref(_connection);
}

/// libdbus ends the process over a text that it cannot send.
bool SessionBus::isValid(const Argument& argument) const
{
    const auto isText = [this](const std::string& text) {
        return text.find('\0') == std::string::npos &&
               _functions.validateUTF8(text.c_str(), nullptr) != FALSE;
    };
    if (const auto* text = std::get_if<std::string>(&argument)) return isText(*text);
    const auto* dictionary = std::get_if<Dictionary>(&argument);
    return dictionary == nullptr ||
           std::all_of(dictionary->begin(), dictionary->end(), [&](const auto& entry) {
               return isText(entry.first) && isText(entry.second);
           });
}

void SessionBus::append(DBusMessageIter& to, const Argument& argument) const
{
    const auto appendText = [this](DBusMessageIter& iterator, const std::string& text) {
        const char* bytes = text.c_str();
        _functions.appendBasic(&iterator, DBUS_TYPE_STRING, &bytes);
    };
    if (const bool* flag = std::get_if<bool>(&argument)) {
        const dbus_bool_t value = *flag ? TRUE : FALSE;
        _functions.appendBasic(&to, DBUS_TYPE_BOOLEAN, &value);
    } else if (const auto* text = std::get_if<std::string>(&argument)) {
        appendText(to, *text);
    } else {
        DBusMessageIter entries;
        _functions.openContainer(&to, DBUS_TYPE_ARRAY, "{sv}", &entries);
        for (const auto& [key, value] : std::get<Dictionary>(argument)) {
            DBusMessageIter entry;
            DBusMessageIter variant;
            _functions.openContainer(&entries, DBUS_TYPE_DICT_ENTRY, nullptr, &entry);
            appendText(entry, key);
            _functions.openContainer(&entry, DBUS_TYPE_VARIANT, "s", &variant);
            appendText(variant, value);
            _functions.closeContainer(&entry, &variant);
            _functions.closeContainer(&entries, &entry);
        }
        _functions.closeContainer(&to, &entries);
    }
}

BusReply SessionBus::call(const BusMethod& method, const std::vector<Argument>& arguments,
                          int milliseconds)
{
    const auto valid = [this](const Argument& argument) { return isValid(argument); };
    if (!std::all_of(arguments.begin(), arguments.end(), valid)) return {};
    DBusMessage* message =
        _functions.newMethodCall(method.name, method.path, method.interface, method.member);
    if (message == nullptr) return {};
    _functions.setAutoStart(message, FALSE);
    DBusMessageIter iterator;
    _functions.iterInitAppend(message, &iterator);
    for (const Argument& argument : arguments)
        append(iterator, argument);

    BusError error(_functions);
    DBusMessage* answer = _functions.sendAndWait(_connection, message, milliseconds, &error);
    _functions.messageUnref(message);
    if (answer == nullptr) {
        if (isWithoutAnswer(error.name())) return {};
        return {BusReply::Kind::error, error.text(), error.name()};
    }
    BusReply reply{BusReply::Kind::value, {}, {}};
    if (_functions.iterInit(answer, &iterator) &&
        _functions.argumentType(&iterator) == DBUS_TYPE_STRING) {
        const char* text = nullptr;
        _functions.getBasic(&iterator, &text);
        reply.text = text;
    }
    _functions.messageUnref(answer);
    return reply;
}

}  // namespace vantorel
