#pragma once

namespace vantorel {

/// A program that answers its caller, and may then live on. What a panel has put on the clipboard
/// is there as long as the panel runs, but a script waits for the end of what it has started.
///
/// The program goes on in a child process, and the process that the caller knows waits for its exit
/// status. Ctrl-C and the end of the caller's process end both.
class CallersProcess {
public:
    /// Returns in the child only. To be made before there are threads. Where no process can be made
    /// the caller waits for the program itself.
    CallersProcess();
    ~CallersProcess();
    CallersProcess(const CallersProcess&) = delete;
    CallersProcess& operator=(const CallersProcess&) = delete;

    /// The caller goes on with this exit status, 0..255. From here on the program is in the
    /// background, without the caller's terminal, folder and standard streams.
    void release(int status);

private:
    int _pipe = -1;
};

}  // namespace vantorel
