#include "paletteedit/PaletteRecord.h"

#include <gtest/gtest.h>

#include "testing/headless/MemoryFiles.h"

namespace vantorel {
namespace {

constexpr const char* path = "/home/user/A.gpl";

TEST(PaletteRecordTest, WhatWasWrittenIsNotReadAgain)
{
    MemoryFiles files;
    PaletteRecord record{path, {}};
    ASSERT_TRUE(files.writeAtomically(path, "text"));
    record.setWritten({u"A", std::make_shared<const PaletteEntries>(), nullptr}, "text", files);
    EXPECT_EQ(record.version, files.versionAtPath(path));
    record.readIfChanged(files);
    EXPECT_EQ(record.state->name, u"A");
}

TEST(PaletteRecordTest, AFileThatOthersHaveChangedMeanwhileIsReadAgain)
{
    MemoryFiles files;
    PaletteRecord record{path, {}};
    ASSERT_TRUE(files.writeAtomically(path, "GIMP Palette\nName: Theirs\n1 2 3 a\n"));
    record.setWritten({u"Ours", std::make_shared<const PaletteEntries>(), nullptr}, "ours", files);
    EXPECT_EQ(record.version, 0U);
    record.readIfChanged(files);
    EXPECT_EQ(record.state->name, u"Theirs");
}

}  // namespace
}  // namespace vantorel
