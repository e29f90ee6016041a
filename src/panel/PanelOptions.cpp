#include "panel/PanelOptions.h"

#include "colortext/ColorTextReader.h"
#include "colortext/UnmappedColor.h"
#include "commandline/ArgumentReader.h"
#include "commandline/Programs.h"
#include "commandline/Translations.h"
#include "hosts/qt/QtColors.h"
#include "panel/Output.h"

#include <QFileInfo>
#include <QRegularExpression>

#include <array>
#include <utility>

namespace vantorel {
namespace {

std::optional<QSize> sizeFromText(const QString& text)
{
    static const QRegularExpression form(QStringLiteral("^(\\d{1,5})x(\\d{1,5})$"));
    const auto match = form.match(text);
    if (!match.hasMatch()) return std::nullopt;
    return QSize(match.captured(1).toInt(), match.captured(2).toInt());
}

PanelCommandLine failure(const Message& message)
{
    const std::string line = "vantorel-panel: " + inUsersWords(message) + '\n';
    return {{}, usageError, QString::fromStdString(line)};
}

std::optional<QString> textOf(const GivenArguments& given, std::string_view option)
{
    const auto value = given.value(option);
    return value ? std::optional(QString::fromStdString(*value)) : std::nullopt;
}

/// Reads the action of this start. Fails if the options ask for two.
Status readStep(const GivenArguments& given, PanelOptions& options)
{
    using Step = PanelOrder::Step;
    constexpr std::array steps{std::pair{"--pick", Step::pick},
                               std::pair{"--pick-and-copy", Step::pickAndCopy},
                               std::pair{"--copy", Step::copy}, std::pair{"--copy-as", Step::copy}};
    QStringList alone;
    for (const auto& [name, step] : steps) {
        if (!given.has(name)) continue;
        alone.append(QLatin1String(name));
        options.step = step;
    }
    options.choice = given.has("--choose");
    options.copyForm = textOf(given, "--copy-as").value_or(QString());
    for (const char* name : {"--choose", "--screenshot", "--service"})
        if (given.has(name)) alone.append(QLatin1String(name));
    if (alone.size() < 2) return {};
    return Message{
        phrase("%1 cannot be combined", alone.join(QStringLiteral(" and ")).toStdString())};
}

}  // namespace

PanelCommandLine readCommandLine(const QStringList& arguments)
{
    std::vector<std::string> texts;
    for (const QString& argument : arguments.mid(1))
        texts.push_back(argument.toStdString());
    const Result<ArgumentReading> reading = readArguments(vantorelPanelProgram, texts);
    if (!reading) return failure(reading.error());
    if (!reading->arguments) return {{}, 0, QString::fromStdString(reading->text)};

    const GivenArguments& given = *reading->arguments;
    PanelCommandLine result;
    PanelOptions& options = result.options;
    const bool hasOperand = !given.operands.empty();
    if (hasOperand && given.has("--color"))
        return failure({phrase("COLOR and --color cannot be combined")});
    if (const auto color =
            hasOperand ? std::optional(given.operands.front()) : given.value("--color")) {
        // Names of colour lists are not read: the lists belong to the pages, which are not loaded
        // yet.
        const auto read = ColorTextReader([] { return nullptr; }).readUnrounded(*color);
        if (!read && hasOperand) return failure(read.error());
        if (!read) return failure({phrase("--color: %1", read.error().what), read.error().remedy});
        options.color = unmappedColor(*read);
    }
    if (const auto size = given.value("--size")) {
        options.size = sizeFromText(QString::fromStdString(*size));
        if (!options.size)
            return failure({phrase("--size: \"%1\" is not a size", *size), phrase("try 260x340")});
    }
    if (const auto data = given.value("--data")) {
        const QFileInfo folder(QString::fromStdString(*data));
        if (!folder.isDir()) return failure({phrase("--data: there is no folder \"%1\"", *data)});
        options.dataFolder = folder.absoluteFilePath();
    }
    options.page = textOf(given, "--page");
    options.mode = textOf(given, "--mode");
    options.settingsFace = given.value("--face") == "settings";
    options.theme = textOf(given, "--theme");
    options.screenshot = textOf(given, "--screenshot");
    options.printColor = given.has("--print-color");
    for (const std::string& plugin : given.values("--plugin"))
        options.plugins.append(QString::fromStdString(plugin));
    options.another = given.has("--new");
    options.service = given.has("--service");
    for (const char* name :
         {"--page", "--mode", "--size", "--face", "--theme", "--data", "--plugin", "--print-color"})
        if (given.has(name)) options.forStartsOnly.append(QLatin1String(name));
    if (const Status step = readStep(given, options); !step) return failure(step.error());
    return result;
}

}  // namespace vantorel
