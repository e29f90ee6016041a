#include "commandline/ArgumentReader.h"

#include "commandline/Descriptions.h"
#include "result/HarmlessLine.h"
#include "text/ASCII.h"

#include <algorithm>

namespace vantorel {
namespace {

constexpr std::string_view versionOption = "--version";

/// No option begins with a digit, so "-30" is an operand.
bool isNegativeNumber(std::string_view argument)
{
    if (!argument.starts_with('-')) return false;
    argument.remove_prefix(argument.starts_with("-.") ? 2 : 1);
    return !argument.empty() && isDigit(argument.front());
}

/// Parses the arguments one by one. The first error is returned, unless help or the version is
/// requested.
class ArgumentReader {
public:
    ArgumentReader(const ProgramRow& program, const std::vector<std::string>& arguments)
        : _program(program),
          _command(&program.command),
          _names(program.command.name),
          _arguments(arguments)
    {
    }

    Result<ArgumentReading> read()
    {
        while (_next < _arguments.size() && _command->handsOnTo == nullptr &&
               _arguments[_next] != "--")
            take(_arguments[_next++]);
        if (_wantsHelp) return ArgumentReading{{}, helpText(*_command, _names)};
        if (_given.has(versionOption))
            return ArgumentReading{{}, _names + " " + std::string(_program.version) + "\n"};

        if (_next < _arguments.size() && _command->handsOnTo == nullptr) ++_next;
        for (; _next < _arguments.size(); ++_next)
            _given.operands.push_back(_arguments[_next]);
        if (!_error) checkOptions();
        if (!_error && _command->handsOnTo == nullptr) checkOperands();
        if (_error) return *std::move(_error);
        return ArgumentReading{std::move(_given), {}};
    }

private:
    void fail(Phrase what, Phrase remedy)
    {
        if (!_error) _error = {std::move(what), std::move(remedy)};
    }
    void fail(Phrase what) { fail(std::move(what), phrase("see \"%1 --help\"", _names)); }

    void take(const std::string& argument)
    {
        if (argument.starts_with('-') && argument != "-" && !isNegativeNumber(argument))
            return takeOption(argument);
        const auto inner =
            std::find_if(_command->commands.begin(), _command->commands.end(),
                         [&](const CommandRow& command) { return command.name == argument; });
        if (inner != _command->commands.end()) return enter(*inner);
        if (_command->needsCommand())
            return fail(phrase("\"%1\" is not a command", excerpt(argument)));
        _given.operands.push_back(argument);
    }

    void enter(const CommandRow& inner)
    {
        const std::string names = _names + " " + std::string(inner.name);
        // Arguments between a command and its subcommand are rejected, because they could be meant
        // for either.
        const Phrase remedy = phrase("put it after \"%1\"", names);
        if (!_given.operands.empty())
            fail(phrase("\"%1\" precedes the command", excerpt(_given.operands.front())), remedy);
        if (!_given.options.empty())
            fail(phrase("%1 precedes the command", std::string(_given.options.front().first)),
                 remedy);
        _command = &inner;
        _names = names;
        _given.command.append(_given.command.empty() ? "" : " ").append(inner.name);
    }

    void takeOption(const std::string& argument)
    {
        const std::size_t equals = argument.find('=');
        const std::string_view name = std::string_view(argument).substr(0, equals);
        if (argument == helpOption.shortName || argument == helpOption.name) {
            _wantsHelp = true;
            return;
        }
        const auto option = std::find_if(
            _command->options.begin(), _command->options.end(),
            [&](const OptionRow& row) { return row.name == name || row.shortName == name; });
        if (option == _command->options.end())
            return fail(phrase("\"%1\" has no option \"%2\"", _names, excerpt(argument)));
        const std::string named(name);
        std::string value;
        if (option->value.empty()) {
            if (equals != std::string::npos) return fail(phrase("%1 takes no value", named));
        } else if (equals != std::string::npos) {
            value = argument.substr(equals + 1);
        } else if (_next < _arguments.size()) {
            value = _arguments[_next++];
        } else {
            return fail(phrase("%1 requires a value", named));
        }
        if (!option->value.empty() && !option->isRepeatable && _given.has(option->name))
            return fail(phrase("%1 is given twice", named));
        _given.options.emplace_back(option->name, std::move(value));
    }

    void checkOptions()
    {
        for (const OptionRow& option : _command->options) {
            const std::string name(option.name);
            if (option.isRequired && !_given.has(option.name)) fail(phrase("%1 is required", name));
            if (_given.has(option.name) && _given.has(option.excludes))
                fail(phrase("%1 cannot be combined with %2", name, std::string(option.excludes)));
            for (const std::string& value : _given.values(option.name))
                checkChoice(name, value, option.choices);
        }
    }

    void checkOperands()
    {
        if (_command->needsCommand()) return fail(phrase("the command is missing"));
        std::size_t begin = 0;
        for (const OperandRow& operand : _command->operands) {
            const std::size_t count =
                std::min(_given.operands.size() - begin,
                         operand.most == 0 ? std::string::npos : operand.most);
            if (count < operand.fewest)
                return fail(phrase("%1 is missing", std::string(operand.value)));
            for (std::size_t i = begin; i < begin + count; ++i)
                checkChoice(std::string(operand.value), _given.operands[i], operand.choices);
            begin += count;
        }
        if (begin < _given.operands.size())
            fail(phrase("\"%1\" is one argument too many", excerpt(_given.operands[begin])));
    }

    void checkChoice(const std::string& what, const std::string& value, Choices choices)
    {
        if (choices == nullptr) return;
        const std::vector<Choice> all = choices();
        if (std::ranges::find(all, value, &Choice::value) == all.end())
            fail(phrase("%1 cannot be \"%2\"", what, excerpt(value)),
                 phrase("use %1", sentenceOf(choices)));
    }

    const ProgramRow& _program;
    const CommandRow* _command;
    /// The names typed so far, such as "vantorel list export".
    std::string _names;
    const std::vector<std::string>& _arguments;
    std::size_t _next = 0;
    GivenArguments _given;
    bool _wantsHelp = false;
    std::optional<Message> _error;
};

}  // namespace

bool GivenArguments::has(std::string_view option) const
{
    return std::any_of(options.begin(), options.end(),
                       [&](const auto& given) { return given.first == option; });
}

std::optional<std::string> GivenArguments::value(std::string_view option) const
{
    const auto found = std::find_if(options.begin(), options.end(),
                                    [&](const auto& given) { return given.first == option; });
    if (found == options.end()) return std::nullopt;
    return found->second;
}

std::vector<std::string> GivenArguments::values(std::string_view option) const
{
    std::vector<std::string> result;
    for (const auto& [name, value] : options)
        if (name == option) result.push_back(value);
    return result;
}

Result<ArgumentReading> readArguments(const ProgramRow& program,
                                      const std::vector<std::string>& arguments)
{
    return ArgumentReader(program, arguments).read();
}

}  // namespace vantorel
