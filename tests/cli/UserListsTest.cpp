#include "cli/UserLists.h"

#include <gtest/gtest.h>

#include "CountingFiles.h"

namespace vantorel {
namespace {

const std::string ownFolder = "/home/user/.local/share/Vantorel/Palettes";

/// Writes lists to files that are not named as they are.
void addLists(MemoryFiles& files, int count)
{
    files.createDirectory("/home/user/.local/share/Vantorel");
    files.createDirectory(ownFolder);
    for (int i = 0; i < count; ++i) {
        const std::string number = std::to_string(i);
        std::string path = ownFolder;
        path.append("/file ").append(number).append(".gpl");
        files.writeAtomically(path, "GIMP Palette\nName: List " + number + "\n255 0 0\tred\n");
    }
}

/// Lists everything as "vantorel lists" does, and returns the number of calls.
std::size_t callsOfListing(int count)
{
    CountingFiles files;
    addLists(files, count);
    static_cast<void>(files.takeCalls());
    UserLists lists(files);
    for (const auto& [name, path] : lists.all())
        EXPECT_NE(lists.listNamed(name), nullptr);
    return files.takeCalls();
}

TEST(UserListsTest, ListingLooksAtEachFileAFixedNumberOfTimes)
{
    EXPECT_LT(callsOfListing(200), 200 * 20U);
    EXPECT_LT(callsOfListing(400), 400 * 20U);
}

TEST(UserListsTest, EachListHasItsFile)
{
    CountingFiles files;
    addLists(files, 2);
    files.writeAtomically(ownFolder + "/x.gpl", "GIMP Palette\nName: CSS Keyword\n0 0 0\tblack\n");
    std::vector<std::string> rows;
    for (const auto& [name, path] : UserLists(files).all())
        rows.push_back(std::string(name.begin(), name.end()) + ": " + path.value_or("-"));
    EXPECT_EQ(rows, (std::vector<std::string>{
                        "Browser Safe: -", "CSS Color 4: -", "CSS Keyword: " + ownFolder + "/x.gpl",
                        "List 0: " + ownFolder + "/file 0.gpl",
                        "List 1: " + ownFolder + "/file 1.gpl", "SVG Keyword: -"}));
}

}  // namespace
}  // namespace vantorel
