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
    std::string form(option.shortName);
    if (!form.empty()) form += ", ";
    form += option.name;
    if (!option.value.empty()) form.append(" ").append(option.value);
    return form;
}

std::string formOf(const OperandRow& operand)
{
    return std::string(operand.value) + (operand.most == 0 ? "..." : "");
}

Phrase explanationOf(const OptionRow& option)
{
    if (!option.text.empty() || option.choices == nullptr) return phraseOf(option.text);
    return phrase("%1.", sentenceOf(option.choices, true));
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

Phrase sentenceOf(Choices choices, bool explains)
{
    const std::vector<Choice> all = choices();
    Phrase sentence;
    for (std::size_t i = 0; i < all.size(); ++i) {
        Phrase value = verbatim(all[i].value);
        if (explains && !all[i].text.empty())
            value = phrase("%1 (%2)", all[i].value, phraseOf(all[i].text));
        if (i == 0) {
            sentence = std::move(value);
        } else if (i + 1 < all.size()) {
            sentence = phrase("%1, %2", std::move(sentence), std::move(value));
        } else {
            sentence = phrase("%1 or %2", std::move(sentence), std::move(value));
        }
    }
    return sentence;
}

}  // namespace vantorel
