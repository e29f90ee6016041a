#include "cli/Commands.h"
#include "cli/Failure.h"
#include "cli/Publishing.h"
#include "cli/Terminal.h"
#include "commandline/Translations.h"
#include "result/HarmlessLine.h"
#include "text/Unicode.h"

namespace vantorel {
namespace {

/// Prints what was done about a file.
void printResult(Session& session, const Phrase& result)
{
    session.output().write(inUsersWords(result) + '\n');
}

/// Reports an error after the output that precedes it.
void reportErrorInOrder(Session& session, const Message& message)
{
    session.output().flush();
    reportError(message);
}

int undoListPublish(Session& session, const std::u16string& name)
{
    PublishRecords records(session.files(), name);
    if (!records.isReadable()) {
        throw Failure{{phrase("the record of published files cannot be read"),
                       phrase("check that you can read your data folder")}};
    }
    const auto latest = records.latest();
    if (!latest) {
        throw Failure{
            {phrase("the list \"%1\" has not been published", excerpt(utf8FromUtf16(name))),
             phrase("only lists published with \"vantorel list publish\" can be undone")}};
    }
    PublishRecords::Publish left;
    for (const PublishedFile& file : *latest) {
        switch (undoPublish(session.files(), file)) {
            case UndoResult::restored:
                printResult(session, phrase("restored: %1", file.path));
                break;
            case UndoResult::removed:
                printResult(session, phrase("removed: %1", file.path));
                break;
            case UndoResult::nothingToDo:
                printResult(session, phrase("already undone: %1", file.path));
                break;
            case UndoResult::changedSince:
                reportErrorInOrder(
                    session,
                    {phrase("\"%1\" has changed since it was published", excerpt(file.path)),
                     phrase("it is kept; remove it yourself if you do not need it")});
                left.push_back(file);
                break;
            case UndoResult::failed:
                reportErrorInOrder(session, {phrase("\"%1\" cannot be written", excerpt(file.path)),
                                             phrase("check that you can write to its folder")});
                left.push_back(file);
                break;
        }
    }
    if (!records.replaceLatest(left)) {
        reportErrorInOrder(session, {phrase("the record of published files cannot be written"),
                                     phrase("check that you can write to your data folder")});
        return failureStatus;
    }
    return left.empty() ? 0 : failureStatus;
}

std::string describe(const PublishPlan::Target& target)
{
    return utf8FromUtf16(target.program) + ": " + target.file.path;
}

}  // namespace

int publishList(Session& session, const CommandLine& commandLine)
{
    const std::string& utf8Name = commandLine.operands.front();
    // The list itself need not exist any more.
    if (commandLine.undo) return undoListPublish(session, utf16FromUtf8(utf8Name));

    const auto list = session.lists().requiredList(utf8Name);
    const PublishPlan plan = planPublish(session.files(), *list);
    if (plan.targets.empty()) {
        throw Failure{{phrase("no graphics program has a folder for your palettes"),
                       phrase("start GIMP, Inkscape or Krita once to create it")}};
    }
    int status = 0;
    PublishRecords::Publish publish;
    for (const PublishPlan::Target& target : plan.targets) {
        if (target.isAsWanted) {
            printResult(session, phrase("up to date: %1", target.file.path));
        } else if (target.isBlocked) {
            reportErrorInOrder(session,
                               {phrase("\"%1\" cannot be replaced", excerpt(target.file.path)),
                                phrase("remove it, or make it a readable file")});
            status = failureStatus;
        } else if (target.file.before && !commandLine.yes && !canAsk()) {
            reportErrorInOrder(session, {phrase("\"%1\" already exists with different contents",
                                                excerpt(target.file.path)),
                                         phrase("use \"--yes\" to replace it")});
            status = failureStatus;
        } else {
            session.output().flush();
            if (target.file.before && !commandLine.yes &&
                !confirms(phrase("Replace \"%1\", which has different contents?",
                                 excerpt(target.file.path)))) {
                printResult(session, phrase("kept: %1", target.file.path));
                continue;
            }
            // The file may have changed while the user was asked.
            if (session.files().contentsAtPath(target.file.path) != target.file.before) {
                reportErrorInOrder(session,
                                   {phrase("\"%1\" has just been changed by another program",
                                           excerpt(target.file.path)),
                                    phrase("publish again")});
                status = failureStatus;
                continue;
            }
            publish.push_back(target.file);
        }
    }
    if (publish.empty()) return status;

    PublishRecords records(session.files(), list->name());
    if (!records.add(publish)) {
        throw Failure{
            {phrase("the record of published files cannot be written, so no file was published"),
             phrase("check that you can write to your data folder")}};
    }
    PublishRecords::Publish written;
    for (const PublishPlan::Target& target : plan.targets) {
        const auto isPlanned = [&](const PublishedFile& file) {
            return file.path == target.file.path;
        };
        if (std::find_if(publish.begin(), publish.end(), isPlanned) == publish.end()) continue;
        if (session.files().writeForOthers(target.file.path, target.file.written)) {
            const std::string where = describe(target);
            const Phrase report = target.file.before ? phrase("replaced for %1", where)
                                                     : phrase("written for %1", where);
            printResult(session, report);
            written.push_back(target.file);
        } else {
            reportErrorInOrder(session,
                               {phrase("\"%1\" cannot be written", excerpt(target.file.path)),
                                phrase("check that you can write to its folder")});
            status = failureStatus;
        }
    }
    // Files that were not written must not be undone.
    if (written.size() < publish.size() && !records.replaceLatest(written)) status = failureStatus;
    return status;
}

}  // namespace vantorel
