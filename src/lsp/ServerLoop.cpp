#include "lsp/ServerLoop.h"

#include "hosts/posix/SystemCalls.h"
#include "lsp/LanguageServer.h"

#include <fcntl.h>
#include <malloc.h>
#include <poll.h>
#include <sys/stat.h>
#include <sys/syscall.h>

#include <array>
#include <csignal>
#include <vector>

namespace vantorel {
namespace {

/// Bytes for standard output, which may not take all at once. A client that sends many requests
/// before it reads an answer must not wait for us while we wait for it.
class Answers {
public:
    Answers()
    {
        struct stat status {};
        const bool isStream = ::fstat(STDOUT_FILENO, &status) == 0 &&
                              (S_ISFIFO(status.st_mode) || S_ISSOCK(status.st_mode));
        const int flags = isStream ? ::fcntl(STDOUT_FILENO, F_GETFL) : -1;
        if (flags >= 0) ::fcntl(STDOUT_FILENO, F_SETFL, flags | O_NONBLOCK);
    }

    void add(std::string_view body)
    {
        if (_place == _bytes.size()) {
            _bytes.clear();
            _place = 0;
        }
        const std::string header = messageHeader(body.size());
        _bytes.reserve(_bytes.size() + header.size() + body.size());
        _bytes += header;
        _bytes += body;
        write();
    }
    /// Writes as much as standard output takes.
    void write()
    {
        while (_place < _bytes.size() && !_isClosed) {
            const auto count = uninterrupted([&] {
                return ::write(STDOUT_FILENO, _bytes.data() + _place, _bytes.size() - _place);
            });
            if (count < 0 && errno == EAGAIN) return;
            _isClosed = count < 0;
            if (count > 0) _place += static_cast<std::size_t>(count);
        }
        if (_bytes.capacity() > mostKept) std::string().swap(_bytes);
        _bytes.clear();
        _place = 0;
    }
    [[nodiscard]] std::size_t waiting() const { return _bytes.size() - _place; }
    [[nodiscard]] bool isClosed() const { return _isClosed; }

private:
    /// Memory for the answers about a large file is kept for the next ones.
    static constexpr std::size_t mostKept = std::size_t{8} << 20;

    std::string _bytes;
    std::size_t _place = 0;
    bool _isClosed = false;
};

class ServerLoop {
public:
    ServerLoop(ServerUser& user, const std::string& version)
        : _server(user, version, [this](std::string_view body) { _answers.add(body); })
    {
    }

    int run()
    {
        while (!_server.isOver() && !_answers.isClosed() && (!_hasEnded || _server.hasWork())) {
            wait();
            if (_server.hasWork() && _answers.waiting() < mostWaiting) _server.work();
            watchClient();
        }
        // The last answers.
        while (_answers.waiting() > 0 && !_answers.isClosed() && isClientThere()) {
            pollfd output{STDOUT_FILENO, POLLOUT, 0};
            ::poll(&output, 1, 1000);
            _answers.write();
        }
        return _server.exitStatus();
    }

private:
    /// Messages and answers that wait for each other take no more memory than this, apart from
    /// single ones that are longer.
    static constexpr std::size_t mostWaiting = std::size_t{8} << 20;

    [[nodiscard]] bool isClientThere() const
    {
        if (!_client) return true;
        pollfd process{_client->value(), POLLIN, 0};
        return ::poll(&process, 1, 0) == 0;
    }

    /// Ends when the client's process does, even if another process keeps our input open. A process
    /// that we do not see, as in a container, is not watched.
    void watchClient()
    {
        if (_isWatching || !_server.clientProcess()) return;
        _isWatching = true;
        const auto descriptor = ::syscall(SYS_pidfd_open, *_server.clientProcess(), 0);
        if (descriptor >= 0) _client.emplace(static_cast<int>(descriptor));
    }

    void wait()
    {
        const bool hasRoom = _server.queuedBytes() < mostWaiting;
        const bool hasWork = _server.hasWork() && _answers.waiting() < mostWaiting;
        std::vector<pollfd> files;
        // A negative descriptor is left out.
        files.push_back({hasRoom && !_hasEnded ? STDIN_FILENO : -1, POLLIN, 0});
        files.push_back({_answers.waiting() > 0 ? STDOUT_FILENO : -1, POLLOUT, 0});
        files.push_back({_client ? _client->value() : -1, POLLIN, 0});
        for (const int output : _server.panelOutputs())
            files.push_back({output, POLLIN, 0});
        if (::poll(files.data(), files.size(), hasWork ? 0 : -1) <= 0) return;
        if (files[0].revents != 0) readInput();
        if (files[1].revents != 0) _answers.write();
        if (files[2].revents != 0) _hasEnded = true;
        for (std::size_t i = 3; i < files.size(); ++i) {
            if (files[i].revents != 0) _server.readPanel(files[i].fd);
        }
    }

    void readInput()
    {
        const auto count =
            uninterrupted([&] { return ::read(STDIN_FILENO, _buffer.data(), _buffer.size()); });
        if (count < 0 && errno == EAGAIN) return;
        if (count <= 0) {
            _hasEnded = true;
            return;
        }
        _reader.append({_buffer.data(), static_cast<std::size_t>(count)});
        while (const auto message = _reader.next())
            _server.enqueue(*message);
    }

    Answers _answers;
    MessageReader _reader;
    LanguageServer _server;
    std::optional<Descriptor> _client;
    bool _isWatching = false;
    bool _hasEnded = false;
    std::vector<char> _buffer = std::vector<char>(std::size_t{256} << 10);
};

}  // namespace

int serveOnStandardStreams(ServerUser& user, const std::string& version)
{
#ifdef __GLIBC__
    // The texts of large files go back to the system when they have been used.
    ::mallopt(M_MMAP_THRESHOLD, 1 << 19);
#endif
    // A client that has gone is noticed when we write.
    (void)std::signal(SIGPIPE, SIG_IGN);
    return ServerLoop(user, version).run();
}

}  // namespace vantorel
