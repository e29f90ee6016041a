#pragma once

#include "commandline/CommandTable.h"

/// The rows of the commands that convert and compute colours, in the order of the help text.
namespace vantorel {

inline constexpr std::string_view themeText =
    "Which of its two colours light-dark() stands for: \"light\" or \"dark\".";

inline std::vector<Choice> themesOfPages()
{
    return {{"light", {}}, {"dark", {}}};
}

/// The colour spaces, by their names in color-mix().
inline std::vector<Choice> mixingSpaces()
{
    return {{"oklab", {}},      {"oklch", {}},
            {"lab", {}},        {"lch", {}},
            {"hsl", {}},        {"hwb", {}},
            {"srgb", {}},       {"srgb-linear", {}},
            {"display-p3", {}}, {"display-p3-linear", {}},
            {"a98-rgb", {}},    {"prophoto-rgb", {}},
            {"rec2020", {}},    {"xyz", {}},
            {"xyz-d50", {}}};
}

inline std::vector<Choice> colorForms()
{
    return {{"hex", {}},     {"rgb", {}},          {"hsl", {}},        {"hwb", {}},
            {"lab", {}},     {"lch", {}},          {"oklab", {}},      {"oklch", {}},
            {"srgb", {}},    {"srgb-linear", {}},  {"display-p3", {}}, {"display-p3-linear", {}},
            {"a98-rgb", {}}, {"prophoto-rgb", {}}, {"rec2020", {}},    {"xyz", {}},
            {"xyz-d50", {}}};
}

inline std::vector<Choice> polarSpaces()
{
    return {{"hsl", {}}, {"oklch", {}}, {"lch", {}}};
}

inline std::vector<Choice> hueArcs()
{
    return {{"shorter", {}}, {"longer", {}}, {"increasing", {}}, {"decreasing", {}}};
}

inline constexpr OptionRow themeOption{
    .name = "--theme", .value = "THEME", .text = themeText, .choices = themesOfPages};

inline constexpr OperandRow convertOperands[] = {
    {"COLOR", "The colour to convert; read as for \"show\"."}};
inline constexpr OptionRow convertOptions[] = {
    {.name = "--to",
     .value = "FORM",
     .text = "The form to write: \"hex\", the name of a function such as \"oklch\", or a colour "
             "space of color() such as \"display-p3\".",
     .isRequired = true,
     .choices = colorForms},
    themeOption,
};

inline constexpr OptionRow toOption{
    .name = "--to",
    .value = "FORM",
    .text = "The form to write, as for \"convert\". The default is hex.",
    .choices = colorForms};

inline constexpr OptionRow mixingSpaceOption{
    .name = "--in",
    .value = "SPACE",
    .text = "The colour space to mix in, by its name in color-mix(). The default is oklab.",
    .choices = mixingSpaces};
inline constexpr OptionRow hueOption{
    .name = "--hue",
    .value = "ARC",
    .text =
        "Which way around the circle hues are mixed: shorter (the default), longer, increasing "
        "or decreasing.",
    .choices = hueArcs};

inline constexpr OperandRow mixOperands[] = {
    {"BASE", "The colour to mix in.", 1, 1},
    {"COLOR", "The colours to mix it with; read as for \"show\"."},
};
inline constexpr OptionRow mixOptions[] = {
    {.name = "--fraction",
     .value = "FRACTION",
     .text = "The share of BASE, from 0 to 1, or as a percentage. The default is 0.5."},
    mixingSpaceOption,
    hueOption,
    toOption,
    themeOption,
};

inline constexpr OperandRow gradientOperands[] = {
    {"COLOR", "The colours of the gradient, at least two; read as for \"show\"."}};
inline constexpr OptionRow gradientOptions[] = {
    {.name = "--number",
     .value = "N",
     .text = "How many colours to write, with the first and the last. The default is 10.",
     .shortName = "-n"},
    mixingSpaceOption,
    hueOption,
    toOption,
    themeOption,
};

inline constexpr OperandRow adjustOperands[] = {
    {"AMOUNT", "How much, from 0 to 1, or as a percentage.", 1, 1},
    {"COLOR", "The colours to change; read as for \"show\"."},
};
inline constexpr OperandRow rotateOperands[] = {
    {"DEGREES", "The angle in degrees; negative ones turn back.", 1, 1},
    {"COLOR", "The colours to change; read as for \"show\"."},
};
inline constexpr OperandRow complementOperands[] = {
    {"COLOR", "The colours to change; read as for \"show\"."}};
inline constexpr OptionRow adjustOptions[] = {
    {.name = "--in",
     .value = "SPACE",
     .text = "The colour space to compute in: hsl (the default), oklch or lch. In oklch, equal "
             "amounts look equal, and colours outside sRGB are kept.",
     .choices = polarSpaces},
    toOption,
    themeOption,
};

}  // namespace vantorel
