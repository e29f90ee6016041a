#pragma once

namespace vantorel {

/// Lets a program report its exit status and continue to run. Text that a panel has copied is on
/// the clipboard only while the panel runs, but a script waits for the programs it has started.
///
/// The program continues in a child process, and the process known to the caller waits for its exit
/// status. Ctrl-C and the end of the caller's process end both.
class CallersProcess {
public:
    /// Returns in the child only. Create it before any thread. If no process can be created, the
    /// caller waits for the program itself.
    CallersProcess();
    ~CallersProcess();
    CallersProcess(const CallersProcess&) = delete;
    CallersProcess& operator=(const CallersProcess&) = delete;

    /// Reports this exit status, 0..255, to the caller. From here on the program is in the
    /// background, without the caller's terminal, folder and standard streams.
    void release(int status);

private:
    int _pipe = -1;
};

}  // namespace vantorel
