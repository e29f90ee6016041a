#pragma once

#include <memory>
#include <string>
#include <utility>
#include <variant>
#include <vector>

struct DBusConnection;
struct DBusMessageIter;

namespace vantorel {

struct DBusFunctions;

/// A method of an object on the session bus.
struct BusMethod {
    const char* name;
    const char* path;
    const char* interface;
    const char* member;
};

/// What a call returned.
struct BusReply {
    enum class Kind {
        value,
        error,  ///< of the method
        none,   ///< the name has no owner, or its owner did not answer in time
    };
    Kind kind = Kind::none;
    /// The first returned value if that is a text, or the error's sentence. UTF-8.
    std::string text;
    std::string errorName;
};

/// A connection to the session bus for a program that starts fast: libdbus is loaded when a
/// connection is made, and a program without it works as without a bus.
class SessionBus {
public:
    using Dictionary = std::vector<std::pair<std::string, std::string>>;
    /// A `Dictionary` becomes an a{sv} of texts.
    using Argument = std::variant<bool, std::string, Dictionary>;

    /// Returns null if there is no bus. No bus is started.
    [[nodiscard]] static std::unique_ptr<SessionBus> connect();
    SessionBus(const SessionBus&) = delete;
    SessionBus& operator=(const SessionBus&) = delete;
    ~SessionBus();

    /// In milliseconds, for a method whose reply depends on the user.
    static constexpr int withoutLimit = 0x7fffffff;
    /// Calls a method of a program that is running, and waits for the reply. An argument that is
    /// not UTF-8 gets the kind `none`.
    [[nodiscard]] BusReply call(const BusMethod& method, const std::vector<Argument>& arguments,
                                int milliseconds);

private:
    SessionBus(const DBusFunctions& functions, DBusConnection* connection)
        : _functions(functions), _connection(connection)
    {
    }
    [[nodiscard]] bool isValid(const Argument& argument) const;
    void append(DBusMessageIter& to, const Argument& argument) const;

    const DBusFunctions& _functions;
    DBusConnection* _connection;
};

}  // namespace vantorel
