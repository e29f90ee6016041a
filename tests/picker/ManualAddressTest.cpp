#include "picker/ManualAddress.h"
#include "testing/headless/MemoryFiles.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>
#include <vector>

namespace vantorel {
namespace {

class BundleWithManual final : public HostBundle {
public:
    /// `paths` are those of the pages.
    explicit BundleWithManual(std::vector<std::string> paths) : _paths(std::move(paths)) {}

    [[nodiscard]] std::optional<std::string> resource(const std::string&) const override
    {
        return std::nullopt;
    }
    [[nodiscard]] std::optional<std::string> pathOfResource(const std::string& name) const override
    {
        const auto found = std::ranges::find_if(
            _paths, [&](const std::string& path) { return path.ends_with("/" + name); });
        return found != _paths.end() ? std::optional(*found) : std::nullopt;
    }

private:
    std::vector<std::string> _paths;
};

/// A disk with a manual in English and German, in folders whose names must be escaped in URLs.
MemoryFiles filesWithInstalledManual()
{
    MemoryFiles files("/a b");
    for (const std::string folder : {"/a b/50%", "/a b/5%4g", "/a b/5%g4"}) {
        files.createDirectory(folder);
        files.writeAtomically(folder + "/supportManual.htm", "manual");
    }
    files.writeAtomically("/a b/50%/supportManual_de.htm", "Handbuch");
    return files;
}

struct AddressRow {
    const char* why;
    const char* configured;
    std::vector<std::string> beside;
    const char* expected;
    const char* page = "supportManual.htm";
};

void PrintTo(const AddressRow& row, std::ostream* out)
{
    *out << row.why;
}

class ManualAddressTest : public testing::TestWithParam<AddressRow> {};

TEST_P(ManualAddressTest, IsTheFirstThatCanBeOpened)
{
    const AddressRow& row = GetParam();
    EXPECT_EQ(manualURL(row.configured, filesWithInstalledManual(), BundleWithManual(row.beside),
                        row.page),
              row.expected)
        << row.why;
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ManualAddressTest,
    testing::Values(AddressRow{"the installed manual exists",
                               "file:///a%20b/50%25/supportManual.htm",
                               {"/p/supportManual.htm"},
                               "file:///a%20b/50%25/supportManual.htm"},
                    AddressRow{"escapes in lower case",
                               "file:///a%20b%2f50%25/supportManual.htm",
                               {"/p/supportManual.htm"},
                               "file:///a%20b%2f50%25/supportManual.htm"},
                    AddressRow{"no manual is installed",
                               "file:///usr/share/doc/vantorel/supportManual.htm",
                               {"/p q/supportManual.htm"},
                               "file:///p%20q/supportManual.htm"},
                    AddressRow{"a folder in place of the manual",
                               "file:///a%20b/50%25",
                               {"/p/supportManual.htm"},
                               "file:///p/supportManual.htm"},
                    AddressRow{"an invalid escape is taken literally",
                               "file:///a%20b/50%/supportManual.htm",
                               {"/p/supportManual.htm"},
                               "file:///a%20b/50%/supportManual.htm"},
                    AddressRow{"the second digit of an escape is none",
                               "file:///a%20b/5%4g/supportManual.htm",
                               {"/p/supportManual.htm"},
                               "file:///a%20b/5%4g/supportManual.htm"},
                    AddressRow{"the first digit of an escape is none",
                               "file:///a%20b/5%g4/supportManual.htm",
                               {"/p/supportManual.htm"},
                               "file:///a%20b/5%g4/supportManual.htm"},
                    AddressRow{"half an escape at the end is taken literally",
                               "file:///a%20b/5%4",
                               {},
                               "file:///a%20b/5%4"},
                    AddressRow{"there is no manual at all",
                               "file:///usr/share/doc/vantorel/supportManual.htm",
                               {},
                               "file:///usr/share/doc/vantorel/supportManual.htm"},
                    AddressRow{"the installed translation exists",
                               "file:///a%20b/50%25/supportManual.htm",
                               {"/p/supportManual_de.htm"},
                               "file:///a%20b/50%25/supportManual_de.htm",
                               "supportManual_de.htm"},
                    AddressRow{"only the copy is translated",
                               "file:///usr/share/doc/vantorel/supportManual.htm",
                               {"/p/supportManual.htm", "/p/supportManual_de.htm"},
                               "file:///p/supportManual_de.htm",
                               "supportManual_de.htm"},
                    AddressRow{"there is no translation",
                               "file:///a%20b/50%25/supportManual.htm",
                               {"/p/supportManual.htm"},
                               "file:///a%20b/50%25/supportManual.htm",
                               "supportManual_nl.htm"},
                    AddressRow{"the copy is English",
                               "file:///usr/share/doc/vantorel/supportManual.htm",
                               {"/p/supportManual.htm"},
                               "file:///p/supportManual.htm",
                               "supportManual_nl.htm"},
                    AddressRow{"a translation on the web is uncertain",
                               "https://host.example/supportManual.htm",
                               {"/p/supportManual_de.htm"},
                               "https://host.example/supportManual.htm",
                               "supportManual_de.htm"},
                    AddressRow{"an empty name is no page",
                               "file:///a%20b/50%25/supportManual.htm",
                               {},
                               "file:///a%20b/50%25/supportManual.htm",
                               ""},
                    AddressRow{"a page on the web",
                               "https://host.example/supportManual.htm",
                               {"/p/supportManual.htm"},
                               "https://host.example/supportManual.htm"},
                    AddressRow{"a file on another computer",
                               "file://server/supportManual.htm",
                               {"/p/supportManual.htm"},
                               "file://server/supportManual.htm"}));

TEST(FileURLTest, EscapesCharactersNotAllowedInURLs)
{
    EXPECT_EQ(fileURLFromPath("/usr/share-1/~a_b.c/d"), "file:///usr/share-1/~a_b.c/d");
    EXPECT_EQ(fileURLFromPath("/a b#c?d%e"), "file:///a%20b%23c%3Fd%25e");
    EXPECT_EQ(fileURLFromPath("/\xC3\xBC\xFF"), "file:///%C3%BC%FF");
}

}  // namespace
}  // namespace vantorel
