#include "cli/ColorForm.h"
#include "cli/ColorStream.h"
#include "cli/Commands.h"
#include "cli/Failure.h"

namespace vantorel {
namespace {

class Converter final : public ColorTextUser {
public:
    Converter(const CommandLine& commandLine, ColorTextReader& reader)
        : _writer(commandLine.form), _reader(reader)
    {
    }

    Status use(Output& output, std::string_view text, bool) override
    {
        const Result<CSSColor> color = _reader.readUnrounded(text);
        if (!color) return color.error();
        _writer.write(output, *color);
        return {};
    }

private:
    ColorFormWriter _writer;
    ColorTextReader& _reader;
};

}  // namespace

int convertColors(Session& session, const CommandLine& commandLine)
{
    ColorTextReader reader = colorTextReader(session, commandLine);
    Converter converter(commandLine, reader);
    return useColorTexts(commandLine.operands, converter, session.output()) ? 0 : failureStatus;
}

}  // namespace vantorel
