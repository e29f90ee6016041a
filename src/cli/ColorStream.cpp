#include "cli/ColorStream.h"

#include "cli/Failure.h"
#include "cli/LineReader.h"
#include "cli/Terminal.h"
#include "text/Trimming.h"

#include <unistd.h>

#include <chrono>

namespace vantorel {
namespace {

/// Shows the progress of a long stream on standard error, unless the terminal already shows the
/// output itself.
class Progress {
public:
    Progress()
        : _isShown(isTerminal(STDERR_FILENO) && !isTerminal(STDIN_FILENO) &&
                   !isTerminal(STDOUT_FILENO))
    {
    }
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;
    ~Progress() { clear(); }

    void update(std::uint64_t lines)
    {
        if (!_isShown) return;
        const auto now = std::chrono::steady_clock::now();
        if (now - _last < std::chrono::milliseconds(200)) return;
        _last = now;
        print("\r" + std::to_string(lines) + " lines");
        _hasPrinted = true;
    }
    /// Removes the progress line. Call this before anything else is written to the terminal.
    void clear()
    {
        if (_hasPrinted) print("\r\x1b[K");
        _hasPrinted = false;
    }

private:
    static void print(const std::string& text)
    {
        [[maybe_unused]] const auto written = ::write(STDERR_FILENO, text.data(), text.size());
    }

    bool _isShown;
    bool _hasPrinted = false;
    std::chrono::steady_clock::time_point _last = std::chrono::steady_clock::now();
};

/// Reports errors in lines. Their number is limited, because a binary file can have millions.
class LineErrors {
public:
    LineErrors(Progress& progress, Output& output) : _progress(progress), _output(output) {}

    void add(std::uint64_t number, const Message& message)
    {
        constexpr std::uint64_t mostReported = 100;
        if (++_count > mostReported) {
            ++_unreported;
            return;
        }
        // Flushed, so that messages and output appear in the order of the lines.
        _output.flush();
        _progress.clear();
        reportError({phrase("standard input, line %1: %2", number, message.what), message.remedy});
    }
    void finish()
    {
        if (_unreported == 0) return;
        _output.flush();
        _progress.clear();
        reportError({phrase("standard input has %1 more lines that are not colours", _unreported),
                     phrase("give one colour per line")});
    }
    [[nodiscard]] bool isEmpty() const { return _count == 0; }

private:
    Progress& _progress;
    Output& _output;
    std::uint64_t _count = 0;
    std::uint64_t _unreported = 0;
};

bool useStandardInput(ColorTextUser& user, Output& output)
{
    LineReader lines(STDIN_FILENO);
    Progress progress;
    LineErrors errors(progress, output);
    const auto beforeReading = [&] {
        // Whoever writes the next line may be waiting for the output of the previous one.
        output.flush();
        progress.update(lines.number());
    };
    std::string_view line;
    for (;;) {
        switch (lines.next(line, beforeReading)) {
            case LineReader::Result::line:
                if (const Status used = user.use(output, line, true);
                    !used && !trimmed(line).empty())
                    errors.add(lines.number(), used.error());
                break;
            case LineReader::Result::tooLong:
                errors.add(lines.number(), {phrase("the line is longer than 64 KiB"),
                                            phrase("give one colour per line")});
                break;
            case LineReader::Result::end:
                errors.finish();
                return errors.isEmpty();
            case LineReader::Result::failed:
                output.flush();
                throw Failure{{phrase("standard input cannot be read"),
                               phrase("give colours as arguments, or redirect standard input from "
                                      "a file or program")}};
        }
    }
}

}  // namespace

Status ColorWriter::use(Output& output, std::string_view text, bool isLine)
{
    // Separate from the other forms: what these keep on the stack would take longer to set up than
    // a plain hex code takes to read.
    if (const auto plain = readPlainHex(text)) {
        write(output, *plain, isLine);
        return {};
    }
    return useOther(output, text, isLine);
}

Status ColorWriter::useOther(Output& output, std::string_view text, bool isLine)
{
    Result<ByteColor> color = _reader.read(text);
    if (!color) return std::move(color).error();
    write(output, *color, isLine);
    return {};
}

bool useColorTexts(const std::vector<std::string>& arguments, ColorTextUser& user, Output& output)
{
    if (arguments.empty()) return useStandardInput(user, output);
    bool areAllColors = true;
    for (const std::string& argument : arguments) {
        if (argument == "-") {
            areAllColors = useStandardInput(user, output) && areAllColors;
            continue;
        }
        const Status used = user.use(output, argument, false);
        if (used) continue;
        areAllColors = false;
        // Flushed, so that the message appears in place of the colour.
        output.flush();
        reportError(used.error());
    }
    return areAllColors;
}

}  // namespace vantorel
