#include "panel/palettes/PaletteRemarks.h"

#include "hosts/qt/QtColors.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>

namespace vantorel {
namespace {

/// The context of the texts: lupdate finds none for those of a free function.
class PaletteRemarks {
    Q_DECLARE_TR_FUNCTIONS(PaletteRemarks)

public:
    [[nodiscard]] static QString textOf(EditRemark kind);
};

QString PaletteRemarks::textOf(EditRemark kind)
{
    switch (kind) {
        case EditRemark::notSaved:
            return tr(
                "\"%1\" could not be saved, so nothing was changed. May you write in %2, and "
                "is there room on the disk?");
        case EditRemark::notRemoved:
            return tr("\"%1\" could not be removed. May you write in %2?");
        case EditRemark::oldFileStayed:
            return tr(
                "The file of \"%1\" could not be removed, so the list is there under both "
                "names.");
        case EditRemark::otherName:
            return tr("The name was taken; the list is called \"%1\".");
        case EditRemark::copiedFirst:
            return tr("\"%1\" is now a list of your own; the other program's is as it was.");
        case EditRemark::merged:
            return tr("Another program had changed \"%1\", too. It now holds both changes.");
        case EditRemark::keptBoth:
            return tr(
                "Another program had changed the same. Its list is as it was; yours is "
                "\"%1\".");
        case EditRemark::madeAgain:
            return tr("Another program had removed \"%1\". It is there again, with your change.");
        case EditRemark::changedMeanwhile:
            return tr(
                "\"%1\" stays: another program has changed it meanwhile. Look at it before "
                "you remove it.");
        case EditRemark::partlyUndone:
            return tr("What another program has changed in \"%1\" since was left as it is.");
        case EditRemark::keptOriginal:
            return tr(
                "The file of \"%1\" had comments or damaged lines. It is kept beside the new "
                "one, with a \"~\" behind its name.");
    }
    return {};
}

}  // namespace

QString textOfRemarks(const EditOutcome& outcome, const QString& folder)
{
    constexpr int longestShownName = 60;
    QStringList texts;
    for (const auto& [kind, name] : outcome.remarks) {
        QString shown = qStringFrom(name);
        if (shown.size() > longestShownName) {
            shown = shown.left(longestShownName) + QStringLiteral("\u2026");
        }
        const QString text = PaletteRemarks::textOf(kind);
        // In one go: a name may hold a "%2" itself.
        texts.append(text.contains(QLatin1String("%2")) ? text.arg(shown, folder)
                                                        : text.arg(shown));
    }
    return texts.join(u' ');
}

bool isFailure(const EditOutcome& outcome)
{
    return !outcome.done && !outcome.remarks.empty();
}

}  // namespace vantorel
