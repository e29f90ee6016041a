#include "panel/SessionManagerLoss.h"

#include <array>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

namespace vantorel {
namespace {

using ErrorHandler = void (*)(void* connection);

int (*numberOfConnection)(void* connection) = nullptr;

/// Qt goes on watching the descriptor of a broken connection, which is always readable. In its
/// place it gets a socket whose other end, never closed, says nothing.
void silence(void* connection)
{
    std::array<int, 2> ends{-1, -1};
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0) return;
    ::dup3(ends[0], numberOfConnection(connection), O_CLOEXEC);
    ::close(ends[0]);
}

template <class Function>
bool find(void* library, const char* name, Function& function)
{
    function = reinterpret_cast<Function>(::dlsym(library, name));
    return function != nullptr;
}

}  // namespace

void outliveSessionManager()
{
    // Only if Qt has loaded it: other platforms than X have no such session managers.
    void* library = ::dlopen("libICE.so.6", RTLD_LAZY | RTLD_NOLOAD);
    if (library == nullptr) return;
    ErrorHandler (*setHandler)(ErrorHandler) = nullptr;
    if (find(library, "IceConnectionNumber", numberOfConnection) &&
        find(library, "IceSetIOErrorHandler", setHandler)) {
        setHandler(silence);
    }
}

}  // namespace vantorel
