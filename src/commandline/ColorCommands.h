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

/// The arguments that print the names of the colour lists.
inline constexpr std::string_view listNames = "lists --names";

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

inline constexpr OperandRow grayOperands[] = {
    {"LIGHTNESS", "The lightness, from 0 to 1, or as a percentage.", 1, 1}};
inline constexpr OptionRow grayOptions[] = {
    {.name = "--in",
     .value = "SPACE",
     .text = "The colour space of the lightness: hsl (the default), oklch or lch.",
     .choices = polarSpaces},
    toOption,
};

inline std::vector<Choice> kindsOfScales()
{
    return {{"steps", {}}, {"tints", {}}, {"shades", {}}, {"tones", {}}};
}
inline constexpr OperandRow scaleOperands[] = {
    {"COLOR", "The colours to make scales of; read as for \"show\"."}};
inline constexpr OptionRow scaleOptions[] = {
    {.name = "--kind",
     .value = "KIND",
     .text = "What to write: steps (the default), tints towards white, shades towards black, or "
             "tones towards grey.",
     .choices = kindsOfScales},
    {.name = "--number",
     .value = "N",
     .text = "How many tints, shades or tones to write, the colour first. The default is 10.",
     .shortName = "-n"},
    toOption,
    themeOption,
};

inline constexpr OperandRow distinctOperands[] = {
    {"N", "How many colours to write, 1 to 1000.", 1, 1},
    {"COLOR",
     "Colours to begin with, which count and are written first. With \"-\", they are read from "
     "standard input."},
};
inline constexpr OptionRow distinctOptions[] = {toOption, themeOption};

inline std::vector<Choice> sortKeys()
{
    return {{"hue", {}},       {"lightness", {}}, {"chroma", {}},
            {"luminance", {}}, {"contrast", {}},  {"name", {}}};
}
inline constexpr OperandRow sortOperands[] = {
    {"COLOR", "The colours to sort; read as for \"show\"."}};
inline constexpr OptionRow sortOptions[] = {
    {.name = "--by",
     .value = "KEY",
     .text =
         "What to sort by: hue (the default), lightness or chroma in OkLCh, luminance, contrast "
         "with white, or the name of the nearest colour of the list.",
     .choices = sortKeys},
    {"--reverse", {}, "Write the largest first."},
    {.name = "--list",
     .value = "NAME",
     .text = "Take the names from this list instead of the list in the settings.",
     .valuesFrom = listNames},
    toOption,
    themeOption,
};

inline constexpr OperandRow nearestOperands[] = {
    {"COLOR", "The colour to look for; read as for \"show\"."}};
inline constexpr OptionRow nearestOptions[] = {
    {.name = "--list",
     .value = "NAME",
     .text = "Look in this list instead of the list in the settings.",
     .valuesFrom = listNames},
    toOption,
    themeOption,
};

inline std::vector<Choice> colorVisions()
{
    return {{"deuteranopia", {}}, {"protanopia", {}}, {"tritanopia", {}}, {"grey", {}}};
}
inline constexpr OperandRow simulateOperands[] = {
    {"VISION",
     "deuteranopia (no green cones), protanopia (no red ones), tritanopia (no blue ones) or grey "
     "(luminance only).",
     1, 1, colorVisions},
    {"COLOR", "The colours to look at; read as for \"show\"."},
};
inline constexpr OptionRow simulateOptions[] = {toOption, themeOption};

}  // namespace vantorel
