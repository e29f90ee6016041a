#pragma once

#include <unistd.h>

#include <cerrno>

namespace vantorel {

/// Owns a file descriptor and closes it on destruction. A negative value means that it has none.
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

/// Repeats a system call while signals interrupt it (EINTR), and returns its result. On file
/// systems in user space or on a network, signals interrupt more calls than `read` and `write`.
template <class Call>
auto uninterrupted(Call call)
{
    auto result = call();
    while (result == -1 && errno == EINTR)
        result = call();
    return result;
}

}  // namespace vantorel
