#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

namespace vantorel {

/// Reports in one sentence why Qt cannot open a display, where Qt itself would abort.
///
/// Create it before the QApplication and destroy it after. If the QApplication cannot be created,
/// the sentence is printed to standard error and the program exits. Otherwise the messages about
/// displays that Qt has printed meanwhile are passed on, so that none is lost.
///
/// At most one may exist at a time, because Qt has one message handler.
class DisplayFailure {
public:
    /// `exitStatus`: the program's status if there is no display.
    explicit DisplayFailure(int exitStatus);
    ~DisplayFailure();
    DisplayFailure(const DisplayFailure&) = delete;
    DisplayFailure& operator=(const DisplayFailure&) = delete;

private:
    struct Message {
        QtMsgType type;
        QByteArray category;
        QString text;
    };

    static void handle(QtMsgType type, const QMessageLogContext& context, const QString& text);
    [[noreturn]] void exit(const QString& reason) const;
    void printMessages() const;

    int _exitStatus;
    QtMessageHandler _usualHandler;
    std::vector<Message> _messages;
};

}  // namespace vantorel
