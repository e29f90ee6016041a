#include "cli/Commands.h"
#include "cli/Failure.h"
#include "cli/Publishing.h"
#include "cli/Terminal.h"
#include "result/HarmlessLine.h"
#include "text/Unicode.h"

namespace vantorel {
namespace {

void tell(Session& session, const std::string& what, const std::string& path)
{
    session.output().write(what + ": " + harmlessLine(path) + '\n');
}

/// What stands on standard output so far comes before a message.
void complainInOrder(Session& session, const Message& message)
{
    session.output().flush();
    complain(message);
}

int takeListBack(Session& session, const std::u16string& name)
{
    PublishRecords records(session.files(), name);
    if (!records.isReadable()) {
        throw Failure{{phrase("the record of what was published cannot be read"),
                       phrase("the folder of your data may be read by you")}};
    }
    const auto latest = records.latest();
    if (!latest) {
        throw Failure{
            {phrase("the list \"%1\" has not been published", excerpt(utf8FromUtf16(name))),
             phrase("only what \"list publish\" has written can be taken back")}};
    }
    PublishRecords::Publish left;
    for (const PublishedFile& file : *latest) {
        switch (takeBack(session.files(), file)) {
            case TakenBack::restored:
                tell(session, "restored", file.path);
                break;
            case TakenBack::removed:
                tell(session, "removed", file.path);
                break;
            case TakenBack::nothingToDo:
                tell(session, "already as it was", file.path);
                break;
            case TakenBack::changedSince:
                complainInOrder(
                    session,
                    {phrase("\"%1\" has been changed since", excerpt(file.path)),
                     phrase("what is there stays; remove it yourself if it is not needed")});
                left.push_back(file);
                break;
            case TakenBack::failed:
                complainInOrder(session, {phrase("\"%1\" cannot be written", excerpt(file.path)),
                                          phrase("its folder may be written to by you")});
                left.push_back(file);
                break;
        }
    }
    if (!records.replaceLatest(left)) {
        complainInOrder(session, {phrase("the record of what was published cannot be written"),
                                  phrase("the folder of your data may be written to by you")});
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
    // A list that has gone can be taken back, too.
    if (commandLine.undo) return takeListBack(session, utf16FromUtf8(utf8Name));

    const auto list = session.lists().requiredList(utf8Name);
    const PublishPlan plan = planPublish(session.files(), *list);
    if (plan.targets.empty()) {
        throw Failure{{phrase("no graphics program has a folder for palettes of yours"),
                       phrase("start GIMP, Inkscape or Krita once, which makes theirs")}};
    }
    int status = 0;
    PublishRecords::Publish publish;
    for (const PublishPlan::Target& target : plan.targets) {
        if (target.isAsWanted) {
            tell(session, "already there", target.file.path);
        } else if (target.isBlocked) {
            complainInOrder(session,
                            {phrase("\"%1\" cannot be replaced", excerpt(target.file.path)),
                             phrase("a file that may be read, or nothing, stands there")});
            status = failureStatus;
        } else if (target.file.before && !commandLine.yes && !canAsk()) {
            complainInOrder(session,
                            {phrase("\"%1\" is there and differs", excerpt(target.file.path)),
                             phrase("\"--yes\" replaces it")});
            status = failureStatus;
        } else {
            session.output().flush();
            if (target.file.before && !commandLine.yes &&
                !confirms("Replace \"" + excerpt(target.file.path) + "\", which differs?")) {
                tell(session, "left as it is", target.file.path);
                continue;
            }
            // The answer can take a while.
            if (session.files().contentsAtPath(target.file.path) != target.file.before) {
                complainInOrder(session,
                                {phrase("\"%1\" has just been changed", excerpt(target.file.path)),
                                 phrase("publish once more")});
                status = failureStatus;
                continue;
            }
            publish.push_back(target.file);
        }
    }
    if (publish.empty()) return status;

    PublishRecords records(session.files(), list->name());
    if (!records.add(publish)) {
        throw Failure{{phrase("what is published cannot be recorded, so nothing was written"),
                       phrase("the folder of your data may be written to by you")}};
    }
    PublishRecords::Publish written;
    for (const PublishPlan::Target& target : plan.targets) {
        const auto isPlanned = [&](const PublishedFile& file) {
            return file.path == target.file.path;
        };
        if (std::find_if(publish.begin(), publish.end(), isPlanned) == publish.end()) continue;
        if (session.files().writeForOthers(target.file.path, target.file.written)) {
            session.output().write((target.file.before ? "replaced for " : "written for ") +
                                   harmlessLine(describe(target)) + '\n');
            written.push_back(target.file);
        } else {
            complainInOrder(session, {phrase("\"%1\" cannot be written", excerpt(target.file.path)),
                                      phrase("its folder may be written to by you")});
            status = failureStatus;
        }
    }
    // What was not written must not be taken back.
    if (written.size() < publish.size() && !records.replaceLatest(written)) status = failureStatus;
    return status;
}

}  // namespace vantorel
