#include "cli/Commands.h"
#include "cli/Failure.h"
#include "cli/Snippets.h"
#include "commandline/Translations.h"
#include "listformats/Json.h"
#include "result/HarmlessLine.h"
#include "snippets/SnippetLimits.h"
#include "text/Unicode.h"

#include <algorithm>

namespace vantorel {
namespace {

/// A snippet as texts.
struct SnippetTexts {
    std::string name;
    std::string variables;
    std::string format;
    std::string_view from;
    /// Why some of its lines are not read as they were written.
    std::vector<std::string> limits;
};

std::string_view sourceText(KnownSnippets::Source source)
{
    switch (source) {
        case KnownSnippets::Source::settings:
            return "settings";
        case KnownSnippets::Source::own:
            return "own";
        case KnownSnippets::Source::shipped:
            break;
    }
    return "program";
}

SnippetTexts textsOf(Session& session, std::size_t place, bool isForUser)
{
    const QTXCodeSnippet& snippet = session.snippets().all()[place];
    SnippetTexts texts{utf8FromUtf16(snippet.nameSnippet().value_or(u"")),
                       utf8FromUtf16(snippet.varFormSnippet().value_or(u"")),
                       utf8FromUtf16(snippet.formatStringSnippet().value_or(u"")),
                       sourceText(session.snippets().sourceOf(place)),
                       {}};
    for (const Phrase& limit : snippetLimits(session.snippetReaders(), place))
        texts.limits.push_back(isForUser ? inUsersWords(limit) : english(limit));
    return texts;
}

std::string jsonOf(const SnippetTexts& texts)
{
    std::string line = "{";
    const auto add = [&](std::string_view key, std::string_view value) {
        appendJsonKey(line, key);
        appendJson(line, value);
    };
    add("name", texts.name);
    add("format", texts.format);
    add("variables", texts.variables);
    add("from", texts.from);
    appendJsonKey(line, "limits");
    line += '[';
    for (const std::string& limit : texts.limits) {
        if (!line.ends_with('[')) line += ',';
        appendJson(line, std::string_view(limit));
    }
    return line + "]}";
}

std::string lineOf(const SnippetTexts& texts)
{
    std::string line = harmlessLine(texts.name) + '\t' + harmlessLine(texts.variables) + '\t' +
                       harmlessLine(texts.format);
    for (std::size_t i = 0; i < texts.limits.size(); ++i)
        line += (i == 0 ? "\t" : "; ") + texts.limits[i];
    return line;
}

}  // namespace

const QTXCodeSnippet& requiredSnippet(KnownSnippets& snippets, const std::string& utf8Name)
{
    const std::u16string name = utf16FromUtf8(utf8Name);
    const auto& all = snippets.all();
    const auto found = std::ranges::find(all, std::optional(name), &QTXCodeSnippet::nameSnippet);
    if (found == all.end()) {
        throw Failure{{phrase("there is no snippet \"%1\"", excerpt(utf8Name)),
                       phrase("run \"vantorel snippets\" to list them")}};
    }
    return *found;
}

int printSnippets(Session& session, const CommandLine& commandLine)
{
    session.reportUnreadableFiles();
    const auto& snippets = session.snippets().all();
    for (std::size_t i = 0; i < snippets.size(); ++i) {
        std::string line;
        if (commandLine.names) {
            line = harmlessLine(utf8FromUtf16(snippets[i].nameSnippet().value_or(u"")));
        } else {
            const SnippetTexts texts = textsOf(session, i, !commandLine.json);
            line = commandLine.json ? jsonOf(texts) : lineOf(texts);
        }
        session.output().write(line + '\n');
    }
    const bool isComplete =
        session.snippets().problems().empty() && !session.hasReportedUnreadable();
    return isComplete ? 0 : failureStatus;
}

}  // namespace vantorel
