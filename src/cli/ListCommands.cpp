#include "cli/Commands.h"
#include "cli/Failure.h"
#include "cli/PictureFiles.h"
#include "cli/Terminal.h"
#include "colorlists/PaletteFile.h"
#include "commandline/Translations.h"
#include "csscolor/CSSColorWriter.h"
#include "listformats/Json.h"
#include "listformats/ListFormats.h"
#include "listformats/ListReader.h"
#include "listformats/ListTexts.h"
#include "result/HarmlessLine.h"
#include "text/Unicode.h"

namespace vantorel {
namespace {

std::string utf8Line(const std::u16string& text)
{
    return harmlessLine(utf8FromUtf16(text));
}

bool haveSameColors(const HostColorList& left, const HostColorList& right)
{
    // Compared as exported, because files store colours with 8 bits per channel.
    return plainText(left) == plainText(right);
}

std::shared_ptr<HostColorList> renamed(const HostColorList& list, const std::u16string& name)
{
    auto result = std::make_shared<HostColorList>(name);
    for (std::size_t i = 0; i < list.allKeys().size(); ++i)
        result->setColor(list.colorAtIndex(i), list.allKeys()[i]);
    return result;
}

/// Imports the list of one file. Throws a `Failure` if that is not possible.
void importList(Session& session, const CommandLine& commandLine, const std::string& path)
{
    const auto bytes = session.files().contentsAtPath(path);
    if (!bytes) {
        throw Failure{{phrase("\"%1\" cannot be read", excerpt(path)),
                       phrase("check that it is a readable file of at most 64 MiB")}};
    }
    const Result<ListFile> file = readColorList(*bytes, path);
    if (!file) {
        throw Failure{
            {phrase("\"%1\": %2", excerpt(path), file.error().what), file.error().remedy}};
    }
    std::shared_ptr<HostColorList> list = file->list;
    if (commandLine.newName) list = renamed(*list, utf16FromUtf8(*commandLine.newName));
    const std::string name = utf8Line(list->name());

    // Only the user's own lists can be replaced. Lists of other programs stay in their own files.
    PaletteFileStore store(session.files());
    const auto cannotBeSaved = [&] {
        return Failure{{phrase("the list \"%1\" cannot be saved", excerpt(name)),
                        phrase("check that you can write to your data folder")}};
    };
    // From the comparison to the end of the write.
    auto lock = store.lockOwnFolder();
    if (!lock) throw cannotBeSaved();
    const bool isOwn = store.pathOfOwnList(list->name()).has_value();
    const auto known = isOwn ? store.colorListNamed(list->name()) : nullptr;
    const std::size_t count = list->allKeys().size();
    if (known && haveSameColors(*known, *list)) {
        session.output().write(
            inUsersWords(phrase("\"%1\" already exists: %2 colours", name, count)) + "\n");
        return;
    }
    if (isOwn && !commandLine.yes) {
        if (!canAsk()) {
            throw Failure{
                {phrase("a list \"%1\" with different colours already exists", excerpt(name)),
                 phrase("use \"--yes\" to replace it, or \"--name NAME\" to choose another name")}};
        }
        session.output().flush();
        // The answer can take a while, and other programs must not wait for it.
        lock.reset();
        if (!confirms(phrase("Replace the list \"%1\"?", name))) {
            throw Failure{{phrase("\"%1\" was not imported", excerpt(path)),
                           phrase("use \"--name NAME\" to choose another name")}};
        }
        lock = store.lockOwnFolder();
        if (!lock) throw cannotBeSaved();
        const auto now = store.colorListNamed(list->name());
        if (known && now && !haveSameColors(*known, *now)) {
            throw Failure{{phrase("the list \"%1\" has just been changed", excerpt(name)),
                           phrase("import once more")}};
        }
    }
    if (!store.writeColorList(list)) throw cannotBeSaved();
    session.output().write(inUsersWords(phrase("\"%1\": %2 colours from %3", name, count, path)) +
                           "\n");
    if (file->skipped > 0) {
        session.output().flush();
        reportError(
            {phrase("\"%1\": %2 lines or entries were skipped", excerpt(path), file->skipped),
             phrase("each must contain one colour")});
    }
}

}  // namespace

int printLists(Session& session, const CommandLine& commandLine)
{
    session.reportUnreadableFiles();
    for (const auto& [name, path] : session.lists().all()) {
        if (commandLine.names) {
            session.output().write(utf8Line(name) + '\n');
            continue;
        }
        const auto list = session.lists().listNamed(name);
        // The list has been removed since the folder was read.
        if (!list) continue;
        const std::string count = std::to_string(list->allKeys().size());
        std::string line;
        if (commandLine.json) {
            line = "{";
            appendJsonKey(line, "name");
            appendJson(line, name);
            appendJsonKey(line, "count");
            line += count;
            appendJsonKey(line, "place");
            if (path) {
                appendJson(line, std::string_view(*path));
            } else {
                line += "null";
            }
            line += '}';
        } else {
            line =
                count + '\t' + utf8Line(name) + '\t' + (path ? harmlessLine(*path) : "(built in)");
        }
        session.output().write(line + '\n');
    }
    return session.hasReportedUnreadable() ? failureStatus : 0;
}

int printList(Session& session, const CommandLine& commandLine)
{
    if (commandLine.operands.empty()) {
        throw Failure{
            {phrase("NAME is missing"),
             phrase("run \"vantorel lists\" to list the names, or \"vantorel list --help\" for the "
                    "commands")}};
    }
    const auto list = session.lists().requiredList(commandLine.operands.front());
    if (commandLine.json) {
        session.output().write(jsonText(*list));
        return 0;
    }
    const bool swatches = showsSwatches();
    for (std::size_t i = 0; i < list->allKeys().size(); ++i) {
        const ByteColor color = byteColorOf(list->colorAtIndex(i));
        if (swatches) session.output().write(swatchOf(color));
        session.output().write(utf8FromUtf16(hexText(color.hostColor()).value_or(u"")));
        session.output().write('\t' + utf8Line(list->allKeys()[i]) + '\n');
    }
    return 0;
}

int importLists(Session& session, const CommandLine& commandLine)
{
    if (commandLine.newName && commandLine.operands.size() > 1) {
        throw Failure{{phrase("--name is given for %1 files", commandLine.operands.size()),
                       phrase("use it with a single FILE")}};
    }
    if (commandLine.newName && commandLine.newName->empty())
        throw Failure{{phrase("--name is empty"), phrase("give the list a name")}};
    int status = 0;
    for (const std::string& file : commandLine.operands) {
        try {
            importList(session, commandLine, absolutePath(file));
        } catch (const Failure& failure) {
            // Continue with the next file.
            session.output().flush();
            reportError(failure.message);
            status = failureStatus;
        }
    }
    return status;
}

int exportList(Session& session, const CommandLine& commandLine)
{
    const auto list = session.lists().requiredList(commandLine.operands.front());
    const std::string path = commandLine.output.value_or("-");
    const ListFormat& format = *listFormatNamed(*commandLine.format);
    if (list->allKeys().size() > format.mostColors) {
        throw Failure{{phrase("the format %1 holds at most %2 colours", std::string(format.name),
                              format.mostColors),
                       phrase("choose another format")}};
    }
    if (format.isBinary) refuseBytesOnTerminal(path);
    writeFile(session.output(), path, format.write(*list));
    return 0;
}

}  // namespace vantorel
