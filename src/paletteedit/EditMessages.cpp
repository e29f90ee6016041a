#include "paletteedit/EditMessages.h"

#include "result/HarmlessLine.h"
#include "text/Unicode.h"

namespace vantorel::editmessages {
namespace {

std::string shown(std::u16string_view name)
{
    return excerpt(utf8FromUtf16(name));
}

}  // namespace

Message locked(std::u16string_view name)
{
    return {phrase("another program is still changing colour lists, so \"%1\" was not changed",
                   shown(name)),
            phrase("try again when it has finished")};
}

Message notSaved(std::u16string_view name, const std::string& folder)
{
    return {phrase("\"%1\" could not be saved, so nothing was changed", shown(name)),
            phrase("check that you can write to %1 and that the disk has room", folder)};
}

Message notRemoved(std::u16string_view name, const std::string& folder)
{
    return {phrase("\"%1\" could not be removed", shown(name)),
            phrase("check that you can write to %1", folder)};
}

Message oldFileStayed(std::u16string_view name)
{
    return {phrase("the file of \"%1\" could not be removed, so the list exists under both names",
                   shown(name))};
}

Message otherName(std::u16string_view name)
{
    return {phrase("the name was taken, so the list is called \"%1\"", shown(name))};
}

Message copiedFirst(std::u16string_view name)
{
    return {phrase("\"%1\" is now a list of your own; the other program's list is unchanged",
                   shown(name))};
}

Message merged(std::u16string_view name)
{
    return {phrase("another program had changed \"%1\" too; it now has both changes", shown(name))};
}

Message keptBoth(std::u16string_view name)
{
    return {
        phrase("another program had changed the same list; its version is unchanged, and yours "
               "was saved as \"%1\"",
               shown(name))};
}

Message restored(std::u16string_view name)
{
    return {phrase("another program had removed \"%1\"; it was restored with your change",
                   shown(name))};
}

Message changedMeanwhile(std::u16string_view name)
{
    return {phrase("another program has changed \"%1\", so it was not removed", shown(name)),
            phrase("check its colours before you remove it")};
}

Message partlyUndone(std::u16string_view name)
{
    return {
        phrase("the step was undone only in part: later changes by another program to \"%1\" "
               "were kept",
               shown(name))};
}

Message keptOriginal(std::u16string_view name)
{
    return {
        phrase("the file of \"%1\" had comments or damaged lines; the original was kept, with "
               "\"~\" appended to its name",
               shown(name))};
}

}  // namespace vantorel::editmessages
