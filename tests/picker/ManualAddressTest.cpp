#include "picker/ManualAddress.h"
#include "testing/headless/MemoryFiles.h"

#include <gtest/gtest.h>

#include <ostream>

namespace vantorel {
namespace {

class BundleWithManual final : public HostBundle {
public:
    explicit BundleWithManual(std::optional<std::string> path) : _path(std::move(path)) {}

    [[nodiscard]] std::optional<std::string> resource(const std::string&) const override
    {
        return std::nullopt;
    }
    [[nodiscard]] std::optional<std::string> pathOfResource(const std::string& name) const override
    {
        return name == "supportManual.htm" ? _path : std::nullopt;
    }

private:
    std::optional<std::string> _path;
};

/// A disk with one installed manual, in a folder whose name must be escaped in URLs.
MemoryFiles filesWithInstalledManual()
{
    MemoryFiles files("/a b");
    files.createDirectory("/a b/50%");
    files.writeAtomically("/a b/50%/supportManual.htm", "manual");
    return files;
}

struct AddressRow {
    const char* why;
    const char* configured;
    std::optional<std::string> beside;
    const char* expected;
};

void PrintTo(const AddressRow& row, std::ostream* out)
{
    *out << row.why;
}

class ManualAddressTest : public testing::TestWithParam<AddressRow> {};

TEST_P(ManualAddressTest, IsTheFirstThatCanBeOpened)
{
    const AddressRow& row = GetParam();
    EXPECT_EQ(manualURL(row.configured, filesWithInstalledManual(), BundleWithManual(row.beside)),
              row.expected)
        << row.why;
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ManualAddressTest,
    testing::Values(
        AddressRow{"the installed manual exists", "file:///a%20b/50%25/supportManual.htm",
                   "/p/supportManual.htm", "file:///a%20b/50%25/supportManual.htm"},
        AddressRow{"escapes in lower case", "file:///a%20b%2f50%25/supportManual.htm",
                   "/p/supportManual.htm", "file:///a%20b%2f50%25/supportManual.htm"},
        AddressRow{"no manual is installed", "file:///usr/share/doc/vantorel/supportManual.htm",
                   "/p q/supportManual.htm", "file:///p%20q/supportManual.htm"},
        AddressRow{"a folder in place of the manual", "file:///a%20b/50%25", "/p/supportManual.htm",
                   "file:///p/supportManual.htm"},
        AddressRow{"an invalid escape is taken literally", "file:///a%20b/50%/supportManual.htm",
                   "/p/supportManual.htm", "file:///a%20b/50%/supportManual.htm"},
        AddressRow{"there is no manual at all", "file:///usr/share/doc/vantorel/supportManual.htm",
                   std::nullopt, "file:///usr/share/doc/vantorel/supportManual.htm"},
        AddressRow{"a page on the web", "https://host.example/supportManual.htm",
                   "/p/supportManual.htm", "https://host.example/supportManual.htm"},
        AddressRow{"a file on another computer", "file://server/supportManual.htm",
                   "/p/supportManual.htm", "file://server/supportManual.htm"}));

TEST(FileURLTest, EscapesCharactersNotAllowedInURLs)
{
    EXPECT_EQ(fileURLFromPath("/usr/share-1/~a_b.c/d"), "file:///usr/share-1/~a_b.c/d");
    EXPECT_EQ(fileURLFromPath("/a b#c?d%e"), "file:///a%20b%23c%3Fd%25e");
    EXPECT_EQ(fileURLFromPath("/\xC3\xBC\xFF"), "file:///%C3%BC%FF");
}

}  // namespace
}  // namespace vantorel
