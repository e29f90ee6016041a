#include "scales/CopyMenu.h"

#include "colortext/ByteColor.h"
#include "csscolor/GamutMapping.h"
#include "settings/KnownSnippets.h"
#include "settings/SettingsFile.h"
#include "settings/SettingsInFile.h"
#include "text/Decimals.h"
#include "text/Unicode.h"

#include <algorithm>
#include <memory>
#include <span>
#include <utility>

namespace vantorel {
namespace {

/// What all items of a series share.
struct Source {
    HostColorPanel& panel;
    CopiedSeries series;

    [[nodiscard]] HostDesktop& desktop() const { return panel.desktop(); }
    void copy(const std::string& text, const std::u16string& form) const
    {
        panel.copyText(utf16FromUtf8(text));
        panel.report(series.title + u": " + form + u" " + desktop().localizedString(u"copied"));
    }
};
using Shared = std::shared_ptr<const Source>;

HostMenuItem itemOf(std::u16string title, std::function<void()> run)
{
    HostMenuItem item;
    item.title = std::move(title);
    item.action = [run = std::move(run)](const HostMenuItem&) { run(); };
    return item;
}

HostMenuItem submenuOf(std::u16string title, std::function<HostMenu()> submenu)
{
    HostMenuItem item;
    item.title = std::move(title);
    item.submenu = std::move(submenu);
    return item;
}

std::string linesOf(const QTXCodeSnippet& snippet, const ColorSeries& series)
{
    std::string text;
    for (const ColorSeries::Entry& entry : series.entries) {
        const ByteColor color = byteColorOf(mappedIntoSRGB(entry.color));
        text += utf8FromUtf16(snippet.codeSnippetWithColorSpec(color.spec())) + '\n';
    }
    return text;
}

/// All snippets that the user has, read when the menu opens.
HostMenu snippetsMenu(const Shared& source)
{
    const HostFiles& files = source->desktop().files();
    QTXHexSettings settings;
    settings.setCodeSnippets(QTXCodeSnippet::buildDefaultCodeSnippets());
    readDefaults(files, settings);
    KnownSnippets known(files, settings.codeSnippets());
    HostMenu menu;
    for (const QTXCodeSnippet& snippet : known.all()) {
        const std::u16string name = snippet.nameSnippet().value_or(u"");
        menu.push_back(itemOf(name, [source, snippet, name] {
            source->copy(linesOf(snippet, source->series.colors()), name);
        }));
    }
    return menu;
}

HostMenu formsMenu(const Shared& source)
{
    struct Form {
        std::u16string title;
        std::string (*text)(const ColorSeries&);
    };
    const std::vector<Form> forms{
        {source->desktop().localizedString(u"CSS custom properties"), customPropertiesText},
        {source->desktop().localizedString(u"SCSS variables"), scssVariablesText},
        {u"Tailwind 4 @theme", tailwindThemeText},
        {source->desktop().localizedString(u"JSON design tokens"), designTokensText},
    };
    HostMenu menu;
    for (const Form& form : forms) {
        menu.push_back(itemOf(form.title, [source, form] {
            source->copy(form.text(source->series.colors()), form.title);
        }));
    }
    const std::u16string hexCodes = source->desktop().localizedString(u"Hex codes");
    menu.push_back(itemOf(hexCodes, [source, hexCodes] {
        SettingsInFile settings(source->desktop().files());
        source->copy(hexCodesText(source->series.colors(), settings.current().hexForm()), hexCodes);
    }));
    menu.push_back(submenuOf(source->desktop().localizedString(u"Lines of code"),
                             [source] { return snippetsMenu(source); }));
    menu.push_back(HostMenuItem::separatorItem());
    menu.push_back(itemOf(source->desktop().localizedString(u"Keep as a colour list"), [source] {
        keepAsList(source->panel, source->series.title, source->series.colors());
    }));
    return menu;
}

}  // namespace

HostMenu copyMenu(HostColorPanel& panel, std::vector<CopiedSeries> series, bool comesFirst)
{
    HostMenu menu(1);
    menu.front().title = panel.desktop().localizedString(u"Copy all");
    for (std::size_t i = 0; i < series.size(); ++i) {
        const auto source = std::make_shared<const Source>(Source{panel, std::move(series[i])});
        if (i == 0 && comesFirst) {
            menu.push_back(HostMenuItem::separatorItem());
            std::ranges::move(formsMenu(source), std::back_inserter(menu));
        } else {
            if (i < 2) menu.push_back(HostMenuItem::separatorItem());
            menu.push_back(submenuOf(source->series.title, [source] { return formsMenu(source); }));
        }
    }
    return menu;
}

void keepAsList(HostColorPanel& panel, const std::u16string& title, const ColorSeries& series)
{
    HostColorListStore& store = panel.desktop().colorLists();
    const std::vector<std::u16string> taken = store.availableColorLists();
    const std::u16string base = title + u" " + utf16FromUtf8(series.name);
    std::u16string name = base;
    for (int i = 2; std::ranges::find(taken, name) != taken.end(); ++i)
        name = base + u" " + decimalText(i);
    const auto list = std::make_shared<HostColorList>(name);
    for (const ColorSeries::Entry& entry : series.entries) {
        // Lists hold opaque colours of sRGB.
        list->setColor(mappedIntoSRGB(entry.color).colorWithAlphaComponent(1),
                       utf16FromUtf8(series.name + " " + entry.label));
    }
    const bool isSaved = store.writeColorList(list);
    panel.report(
        isSaved
            ? panel.desktop().localizedString(u"Kept as the colour list") + u" \"" + name + u"\""
            : panel.desktop().localizedString(
                  u"The colour list could not be saved. Check that you can write to its folder"));
}

}  // namespace vantorel
