#include "hosts/qt/ClipboardOwner.h"

#include <QGuiApplication>
#include <QSocketNotifier>
#include <QTimer>

#include <xcb/xcb.h>

#include <chrono>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <utility>

namespace vantorel {
namespace {

using namespace std::chrono_literals;
constexpr auto patience = 2s;

struct Freed {
    void operator()(void* reply) const { std::free(reply); }
};
template <class Reply>
using Owned = std::unique_ptr<Reply, Freed>;

struct Disconnected {
    void operator()(xcb_connection_t* server) const { xcb_disconnect(server); }
};
using Connection = std::unique_ptr<xcb_connection_t, Disconnected>;

xcb_atom_t atomNamed(xcb_connection_t& server, std::string_view name)
{
    const auto request =
        xcb_intern_atom(&server, 0, static_cast<std::uint16_t>(name.size()), name.data());
    const Owned<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(&server, request, nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

/// Asks the owner for the list of its formats, as any reader does first (ICCCM, 2.6.2), through a
/// connection of its own, because the toolkit keeps the answers on its connection to itself.
/// Deletes itself when it has reported.
class Question final : public QObject {
public:
    /// `server` must be connected.
    Question(Connection server, QClipboard::Mode mode, QObject& context,
             std::function<void(bool)> then)
        : QObject(&context),
          _server(std::move(server)),
          _answers(xcb_get_file_descriptor(_server.get()), QSocketNotifier::Read),
          _then(std::move(then))
    {
        const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(_server.get())).data->root;
        const xcb_window_t window = xcb_generate_id(_server.get());
        xcb_create_window(_server.get(), XCB_COPY_FROM_PARENT, window, root, 0, 0, 1, 1, 0,
                          XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
        const xcb_atom_t selection = mode == QClipboard::Selection
                                         ? xcb_atom_t{XCB_ATOM_PRIMARY}
                                         : atomNamed(*_server, "CLIPBOARD");
        const xcb_atom_t formats = atomNamed(*_server, "TARGETS");
        xcb_convert_selection(_server.get(), window, selection, formats, formats, XCB_CURRENT_TIME);
        xcb_flush(_server.get());
        connect(&_answers, &QSocketNotifier::activated, this, &Question::read);
        QTimer::singleShot(patience, this, [this] { report(false); });
    }

private:
    void read()
    {
        // An owner that refuses answers, too. The toolkit reports a lost server.
        if (xcb_connection_has_error(_server.get()) != 0) report(true);
        while (const Owned<xcb_generic_event_t> event{xcb_poll_for_event(_server.get())}) {
            constexpr unsigned sentFlag = 0x80;
            if ((event->response_type & ~sentFlag) == XCB_SELECTION_NOTIFY) report(true);
        }
    }

    void report(bool answers)
    {
        if (!_then) return;
        _answers.setEnabled(false);
        deleteLater();
        std::exchange(_then, nullptr)(answers);
    }

    Connection _server;
    QSocketNotifier _answers;
    std::function<void(bool)> _then;
};

bool isOwn(QClipboard::Mode mode)
{
    const QClipboard& clipboard = *QGuiApplication::clipboard();
    return mode == QClipboard::Selection ? clipboard.ownsSelection() : clipboard.ownsClipboard();
}

}  // namespace

void askClipboardOwner(QClipboard::Mode mode, QObject& context, std::function<void(bool)> then)
{
    const bool isX11 = QGuiApplication::platformName() == QLatin1String("xcb");
    Connection server(isX11 && !isOwn(mode) ? xcb_connect(nullptr, nullptr) : nullptr);
    if (!server || xcb_connection_has_error(server.get()) != 0) {
        then(true);
    } else {
        new Question(std::move(server), mode, context, std::move(then));  // owned by the context
    }
}

Message clipboardOwnerIsSilent()
{
    return {phrase("the program that holds the clipboard does not answer"),
            phrase("copy again, or close that program")};
}

}  // namespace vantorel
