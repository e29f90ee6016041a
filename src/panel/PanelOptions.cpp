#include "panel/PanelOptions.h"

#include "colortext/ColorTextReader.h"
#include "commandline/ArgumentReader.h"
#include "commandline/Programs.h"
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

/// Returns what is wrong with the text, or an empty text.
QString readColor(const QString& text, std::optional<QColor>& color)
{
    // Names of a colour list do not count: the lists are the pages', which are not loaded yet.
    const ColorTextReading reading =
        ColorTextReader([] { return nullptr; }).read(text.toStdString());
    if (reading.color) {
        color = qColorFrom(reading.color->hostColor());
        return {};
    }
    QString wrong = QString::fromStdString(reading.error);
    if (wrong.endsWith(u'.')) wrong.chop(1);
    return wrong;
}

PanelCommandLine refusal(const QString& what)
{
    return {{}, usageError, QStringLiteral("vantorel-panel: ") + what + u'\n'};
}

std::optional<QString> textOf(const GivenArguments& given, std::string_view option)
{
    const auto value = given.value(option);
    return value ? std::optional(QString::fromStdString(*value)) : std::nullopt;
}

/// Returns what is wrong.
QString readStep(const GivenArguments& given, PanelOptions& options)
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
    return QStringLiteral("%1 do not go together").arg(alone.join(QStringLiteral(" and ")));
}

}  // namespace

PanelCommandLine readCommandLine(const QStringList& arguments)
{
    std::vector<std::string> texts;
    for (const QString& argument : arguments.mid(1))
        texts.push_back(argument.toStdString());
    const ArgumentReading reading = readArguments(vantorelPanelProgram, texts);
    if (!reading.what.empty())
        return refusal(QString::fromStdString(reading.what + ": " + reading.right));
    if (!reading.arguments) return {{}, 0, QString::fromStdString(reading.text)};

    const GivenArguments& given = *reading.arguments;
    PanelCommandLine result;
    PanelOptions& options = result.options;
    if (const auto color = textOf(given, "--color")) {
        const QString wrong = readColor(*color, options.color);
        if (!wrong.isEmpty()) return refusal(QStringLiteral("--color: ") + wrong);
    }
    if (const auto size = textOf(given, "--size")) {
        options.size = sizeFromText(*size);
        if (!options.size)
            return refusal(QStringLiteral("--size: \"%1\" is no size; try 260x340").arg(*size));
    }
    if (const auto data = textOf(given, "--data")) {
        const QFileInfo folder(*data);
        if (!folder.isDir())
            return refusal(QStringLiteral("--data: there is no folder \"%1\"").arg(*data));
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
    const QString error = readStep(given, options);
    if (!error.isEmpty()) return refusal(error);
    return result;
}

}  // namespace vantorel
