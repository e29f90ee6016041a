"""Examples and errors of the commands that compute with colours, for commands_test.py.

The hex codes were computed with Python's colorsys and the published matrices of Oklab.
"""

TRANSLUCENT = "oklch(50% 0.1 30 / 0.5)"
# Each command takes the same options.
ADJUSTED = ["--in", "oklch", "--to", "oklch", "--theme", "dark"]
LIGHT_DARK = "light-dark(red, oklch(50% 0.1 30))"

# Arguments, standard input, and standard output.
COMPUTING_EXAMPLES = [
    (["mix", "red", "blue"], "", "#8c53a2\n"),
    (["mix", "red", "--fraction", "25%", "--in", "srgb"], "blue\n\nlime\n", "#4000bf\n#40bf00\n"),
    (["mix", "--fraction=1", "red", "blue"], "", "#ff0000\n"),
    (["mix", "--in", "hsl", "--hue", "longer", "--to", "hsl", "hsl(0 100% 50%)", "hsl(60 100% 50%)"], "", "hsl(210 100% 50%)\n"),
    (["mix", "--theme", "light", "light-dark(red, blue)", "red"], "", "#ff0000\n"),
    (["mix", "rgb(255 0 0 / 50%)", "--in", "srgb", "rgb(255 0 0 / 0)"], "", "#ff000040\n"),
    (["gradient", "red", "blue", "-n", "3"], "", "#ff0000\n#8c53a2\n#0000ff\n"),
    (["gradient", "--number", "3", "--in", "oklch", "--to", "oklch"], "oklch(50% 0.1 350)\noklch(50% 0.1 30)\n",
     "oklch(50% 0.1 350)\noklch(50% 0.1 10)\noklch(50% 0.1 30)\n"),
    (["gradient", "--hue", "decreasing", "--in", "hsl", "-n=3", "--theme", "dark", "light-dark(lime, red)", "lime"], "",
     "#ff0000\n#0000ff\n#00ff00\n"),
    (["gradient", "black", "white", "black", "--in", "srgb", "-n", "5"], "", "#000000\n#808080\n#ffffff\n#808080\n#000000\n"),
    (["lighten", "0.2", "#b36b1d", "red"], "", "#e39e53\n#ff6666\n"),
    (["darken", "10%", "#b36b1d"], "", "#875116\n"),
    (["saturate", ".2"], "#b36b1d\ngray\n", "#c86c08\n#808080\n"),
    (["desaturate", "0.2", "#b36b1d"], "", "#9e6a32\n"),
    (["rotate", "-30", "#b36b1d"], "", "#b3201d\n"),
    (["rotate", "90deg", "gray", "red"], "", "#808080\n#80ff00\n"),
    (["complement", "#b36b1d"], "", "#1d65b3\n"),
    (["lighten", *ADJUSTED, "0.1", LIGHT_DARK, TRANSLUCENT], "", "oklch(60% 0.1 30)\noklch(60% 0.1 30 / 0.5)\n"),
    (["darken", *ADJUSTED, "0.1", LIGHT_DARK], "", "oklch(40% 0.1 30)\n"),
    (["saturate", *ADJUSTED, "0.1", LIGHT_DARK], "", "oklch(50% 0.14 30)\n"),
    (["desaturate", *ADJUSTED, "0.1", LIGHT_DARK], "", "oklch(50% 0.06 30)\n"),
    (["rotate", *ADJUSTED, "45", LIGHT_DARK], "", "oklch(50% 0.1 75)\n"),
    (["complement", *ADJUSTED, LIGHT_DARK], "", "oklch(50% 0.1 210)\n"),
    (["lighten", "0", "--to", "display-p3", "--in", "lch", "color(display-p3 0 1 0)"], "", "color(display-p3 0 1 0)\n"),
    (["lighten", "0", "--in", "lch", "color(display-p3 0 1 0)"], "", "#00fb29\n"),
]

FRACTIONS = "use a number from 0 to 1, or a percentage such as 20%"

COMPUTING_ERRORS = [
    (["mix"], "BASE is missing"),
    (["mix", "redd", "blue"], '"redd" is not a CSS colour name'),
    (["mix", "red", "redd"], '"redd" is not a CSS colour name'),
    (["mix", "red", "blue", "--fraction", "1.1"], '--fraction cannot be "1.1": ' + FRACTIONS),
    (["mix", "red", "blue", "--fraction", "-1%"], '--fraction cannot be "-1%": ' + FRACTIONS),
    (["mix", "red", "blue", "--in", "cmyk"], '--in cannot be "cmyk": use oklab, oklch'),
    (["mix", "red", "blue", "--hue", "longer"], '"--hue" needs a colour space with a hue: use hsl, hwb, lch or oklch'),
    (["gradient", "red"], "a gradient needs at least two colours: give its first and its last colour"),
    (["gradient", "red", "blue", "redd"], '"redd" is not a CSS colour name'),
    (["gradient", "red", "blue", "-n", "1"], '--number cannot be "1": use a whole number from 2 to 1000000'),
    (["gradient", "red", "blue", "--number", "3.5"], "--number"),
    (["gradient", "red", "blue", "-n", "3", "--number", "4"], "is given twice"),
    (["lighten"], "AMOUNT is missing"),
    (["lighten", "red"], 'AMOUNT cannot be "red": ' + FRACTIONS),
    (["darken", "nan", "red"], 'AMOUNT cannot be "nan": ' + FRACTIONS),
    (["saturate", "101%", "red"], 'AMOUNT cannot be "101%": ' + FRACTIONS),
    (["desaturate", "-0.5", "red"], 'AMOUNT cannot be "-0.5": ' + FRACTIONS),
    (["lighten", "0.1", "red", "--in", "srgb"], '--in cannot be "srgb": use hsl, oklch or lch'),
    (["rotate", "red", "90"], 'DEGREES cannot be "red": use a number of degrees, such as 90 or -22.5'),
    (["rotate", "inf", "red"], "DEGREES"),
]
