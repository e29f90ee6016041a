#pragma once

#include "result/Message.h"

#include <cassert>
#include <optional>
#include <utility>
#include <variant>

namespace vantorel {

/// A value, or an error that explains why there is none: a message, or a type with more details.
/// Modelled on C++23's std::expected.
template <class Value, class Error = Message>
class [[nodiscard]] Result {
public:
    // Implicit, so that a function can return either.
    // NOLINTBEGIN(google-explicit-constructor)
    Result(Value value) : _state(std::in_place_index<0>, std::move(value)) {}
    Result(Error error) : _state(std::in_place_index<1>, std::move(error)) {}
    // NOLINTEND(google-explicit-constructor)

    [[nodiscard]] bool hasValue() const { return _state.index() == 0; }
    explicit operator bool() const { return hasValue(); }

    /// Returns the value, which must exist.
    [[nodiscard]] const Value& operator*() const& { return *valueOrNull(); }
    [[nodiscard]] Value& operator*() & { return *std::get_if<0>(&_state); }
    [[nodiscard]] Value&& operator*() && { return std::move(*std::get_if<0>(&_state)); }
    [[nodiscard]] const Value* operator->() const { return valueOrNull(); }
    [[nodiscard]] Value* operator->() { return std::get_if<0>(&_state); }
    /// Returns the value. Throws `std::bad_variant_access` if there is none.
    [[nodiscard]] const Value& value() const { return std::get<0>(_state); }

    /// Returns the error. There must not be a value.
    [[nodiscard]] const Error& error() const&
    {
        assert(!hasValue());
        return *std::get_if<1>(&_state);
    }
    [[nodiscard]] Error&& error() &&
    {
        assert(!hasValue());
        return std::move(*std::get_if<1>(&_state));
    }

    bool operator==(const Result&) const = default;

private:
    [[nodiscard]] const Value* valueOrNull() const
    {
        assert(hasValue());
        return std::get_if<0>(&_state);
    }

    std::variant<Value, Error> _state;
};

/// Success, or a message that explains the failure.
class [[nodiscard]] Status {
public:
    /// Success. Not defaulted, because `return {}` would then also clear the room for a message,
    /// for each line of a stream.
    Status() {}
    // NOLINTNEXTLINE(google-explicit-constructor): so that a function can return the message.
    Status(Message message) : _error(std::move(message)) {}

    [[nodiscard]] bool isOk() const { return !_error; }
    explicit operator bool() const { return isOk(); }
    /// Returns the message. The status must not be a success.
    [[nodiscard]] const Message& error() const
    {
        assert(_error);
        return *_error;
    }

    bool operator==(const Status&) const = default;

private:
    std::optional<Message> _error;
};

}  // namespace vantorel
