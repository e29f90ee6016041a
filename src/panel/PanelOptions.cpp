#include "panel/PanelOptions.h"

#include "colortext/ColorTextReader.h"
#include "hosts/qt/QtColors.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <QRegularExpression>

#include <array>
#include <utility>

namespace vantorel {
namespace {

constexpr int usageError = 2;

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

/// Returns what is wrong.
QString readStep(const QCommandLineParser& parser, PanelOptions& options)
{
    using Step = PanelOrder::Step;
    constexpr std::array steps{std::pair{"pick", Step::pick},
                               std::pair{"pick-and-copy", Step::pickAndCopy},
                               std::pair{"copy", Step::copy}, std::pair{"copy-as", Step::copy}};
    QStringList given;
    for (const auto& [name, step] : steps) {
        if (!parser.isSet(QLatin1String(name))) continue;
        given.append(QStringLiteral("--") + QLatin1String(name));
        options.step = step;
    }
    options.choice = parser.isSet(QStringLiteral("choose"));
    if (options.choice) given.append(QStringLiteral("--choose"));
    options.copyForm = parser.value(QStringLiteral("copy-as"));
    if (options.screenshot) given.append(QStringLiteral("--screenshot"));
    if (parser.isSet(QStringLiteral("service"))) given.append(QStringLiteral("--service"));
    if (given.size() < 2) return {};
    return QStringLiteral("%1 do not go together").arg(given.join(QStringLiteral(" and ")));
}

}  // namespace

PanelCommandLine readCommandLine(const QStringList& arguments)
{
    const auto option = [](const char* name, const char* help, const char* value = nullptr) {
        return QCommandLineOption(QString::fromLatin1(name), QString::fromUtf8(help),
                                  QString::fromLatin1(value != nullptr ? value : ""));
    };
    const auto color = option("color",
                              "Start with this colour: any form of CSS Color 4, such as "
                              "\"#ff8000\" or \"hsl(30 100% 50%)\", "
                              "or a text that the hex page takes.",
                              "TEXT");
    const auto page = option(
        "page", "Start with this page: hex, dialog, palettes, or one of another plug-in.", "PAGE");
    const auto mode =
        option("mode", "Start in this mode of the hex page: slider, palette or wheel.", "MODE");
    const auto size = option("size", "Size of the page in points, e.g. 260x340.", "WxH");
    const auto screenshot = option("screenshot",
                                   "Write a picture of the window (PNG) to FILE and end; works "
                                   "without a display and leaves the settings alone.",
                                   "FILE");
    const auto face = option("face", "Show this face of the hex page: colors or settings.", "FACE");
    const auto theme =
        option("theme", "Colours of the window in place of the desktop's: light or dark.", "THEME");
    const auto data = option(
        "data",
        "Keep settings, colour lists and the panel's own memory under DIR/Vantorel, not with the "
        "user's own; DIR must exist.",
        "DIR");
    const auto plugin =
        option("plugin", "Load this picker plug-in, too. May be given more than once.", "FILE");
    const auto printColor =
        option("print-color", "Print the colour as #rrggbbaa to standard output at each change.");
    const auto pick = option("pick",
                             "Pick a colour from the screen, print it as #rrggbb, and end. Status: "
                             "0 picked, 1 cancelled, 3 not possible.");
    const auto pickAndCopy =
        option("pick-and-copy", "The same, and put the colour on the clipboard.");
    const auto copy = option("copy",
                             "Put the panel's colour on the clipboard as a drag out of the panel "
                             "would carry it, print the text, and end.");
    const auto copyAs =
        option("copy-as", "The same in the form that has this name in the panel's menu.", "FORM");
    const auto choose =
        option("choose",
               "Let the user choose one colour in a panel of its own, print it as a drag out of "
               "the panel would carry it, and end. Status: 0 chosen, 1 cancelled, 3 not possible.");
    const auto another = option("new", "Start a panel even where one runs already.");
    const auto service = option("service",
                                "Start without a window, do what is asked over D-Bus, and end when "
                                "nobody asks any more: how the session bus starts the panel.");
    const auto help = option("help", "Show this help and end.");
    const auto version = option("version", "Show the version and end.");

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "A colour panel with pages by plug-ins. Where one runs already it is shown, "
        "and does what --color, --pick, --pick-and-copy, --copy and --copy-as say."));
    parser.addOptions({color, page, mode, size, screenshot, face, theme, data, plugin, printColor,
                       pick, pickAndCopy, copy, copyAs, choose, another, service, help, version});
    if (!parser.parse(arguments)) return refusal(parser.errorText());
    if (parser.isSet(help)) return {{}, 0, parser.helpText()};
    if (parser.isSet(version)) {
        return {{}, 0, QStringLiteral("vantorel-panel " VANTOREL_VERSION "\n")};
    }
    if (!parser.positionalArguments().isEmpty()) {
        return refusal(QStringLiteral("\"%1\" is no option; --help shows them")
                           .arg(parser.positionalArguments().front()));
    }

    PanelCommandLine result;
    PanelOptions& options = result.options;
    if (parser.isSet(color)) {
        const QString wrong = readColor(parser.value(color), options.color);
        if (!wrong.isEmpty()) return refusal(QStringLiteral("--color: ") + wrong);
    }
    if (parser.isSet(page)) options.page = parser.value(page);
    if (parser.isSet(mode)) {
        options.mode = parser.value(mode);
        if (!QStringList{"slider", "palette", "wheel"}.contains(*options.mode))
            return refusal(QStringLiteral("--mode is slider, palette or wheel, not \"%1\"")
                               .arg(*options.mode));
    }
    if (parser.isSet(size)) {
        options.size = sizeFromText(parser.value(size));
        if (!options.size)
            return refusal(
                QStringLiteral("--size: \"%1\" is no size; try 260x340").arg(parser.value(size)));
    }
    if (parser.isSet(face)) {
        const QString value = parser.value(face);
        if (value != QLatin1String("colors") && value != QLatin1String("settings"))
            return refusal(QStringLiteral("--face is colors or settings, not \"%1\"").arg(value));
        options.settingsFace = value == QLatin1String("settings");
    }
    if (parser.isSet(theme)) {
        options.theme = parser.value(theme);
        if (*options.theme != QLatin1String("light") && *options.theme != QLatin1String("dark"))
            return refusal(
                QStringLiteral("--theme is light or dark, not \"%1\"").arg(*options.theme));
    }
    if (parser.isSet(data)) {
        const QFileInfo folder(parser.value(data));
        if (!folder.isDir())
            return refusal(
                QStringLiteral("--data: there is no folder \"%1\"").arg(parser.value(data)));
        options.dataFolder = folder.absoluteFilePath();
    }
    if (parser.isSet(screenshot)) options.screenshot = parser.value(screenshot);
    options.printColor = parser.isSet(printColor);
    options.plugins = parser.values(plugin);
    options.another = parser.isSet(another);
    options.service = parser.isSet(service);
    for (const auto& each : {page, mode, size, face, theme, data, plugin, printColor}) {
        if (parser.isSet(each))
            options.forStartsOnly.append(QStringLiteral("--") + each.names().front());
    }
    const QString error = readStep(parser, options);
    if (!error.isEmpty()) return refusal(error);
    return result;
}

}  // namespace vantorel
