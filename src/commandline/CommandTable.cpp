#include "commandline/CommandTable.h"

#include <algorithm>

namespace vantorel {

std::vector<std::string_view> paragraphsOf(std::string_view text)
{
    std::vector<std::string_view> paragraphs;
    for (;;) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        paragraphs.push_back(text.substr(0, end));
        if (end == text.size()) return paragraphs;
        text.remove_prefix(end + 1);
    }
}

std::string formOf(const OptionRow& option)
{
    std::string form(&option == &helpOption ? "-h, " : "");
    form += option.name;
    if (!option.value.empty()) form.append(" ").append(option.value);
    return form;
}

std::string formOf(const OperandRow& operand)
{
    return std::string(operand.value) + (operand.most == 0 ? "..." : "");
}

std::string explanationOf(const OptionRow& option)
{
    if (!option.text.empty() || option.choices == nullptr) return std::string(option.text);
    std::vector<std::string> values;
    for (const Choice& choice : option.choices()) {
        std::string& value = values.emplace_back(choice.value);
        if (!choice.text.empty()) value.append(" (").append(choice.text).append(")");
    }
    return sentenceOf(values) + ".";
}

std::string usageOf(const CommandRow& command)
{
    std::string usage(command.name);
    for (const OptionRow& option : command.options)
        if (option.isRequired) usage.append(" ").append(formOf(option));
    usage += " [OPTION...]";
    for (const OperandRow& operand : command.operands) {
        // An operand that is given twice, such as the colours of "contrast", is shown twice.
        for (std::size_t i = 0; i < std::max<std::size_t>(operand.most, 1); ++i) {
            const std::string form = formOf(operand);
            usage += i < operand.fewest ? " " + form : " [" + form + "]";
        }
    }
    return usage;
}

std::string sentenceOf(const std::vector<std::string>& values)
{
    std::string sentence;
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (i > 0) sentence += i + 1 == values.size() ? " or " : ", ";
        sentence += values[i];
    }
    return sentence;
}

}  // namespace vantorel
