#pragma once

#include <unistd.h>

#include <cerrno>

namespace vantorel {

/// A file descriptor that is closed at the end.
class Descriptor {
public:
    explicit Descriptor(int value) : _value(value) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    Descriptor(Descriptor&& other) noexcept : _value(other._value) { other._value = -1; }
    Descriptor& operator=(Descriptor&&) = delete;
    ~Descriptor()
    {
        if (_value >= 0) ::close(_value);
    }
    [[nodiscard]] int value() const { return _value; }
    explicit operator bool() const { return _value >= 0; }

private:
    int _value;
};

/// The result of a system call, which is made again when a signal has interrupted it: that happens
/// to more calls than `read` and `write` where a file system is a program or a network.
template <class Call>
auto uninterrupted(Call call)
{
    auto result = call();
    while (result == -1 && errno == EINTR)
        result = call();
    return result;
}

}  // namespace vantorel
