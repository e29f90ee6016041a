#pragma once

#include "EntryTexts.h"
#include "colorlists/PaletteFile.h"
#include "paletteedit/EditMessages.h"
#include "paletteedit/EntryEdits.h"
#include "paletteedit/PaletteEditor.h"
#include "testing/headless/MemoryFiles.h"
#include "text/Unicode.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vantorel {

/// The user's own lists and those of another program, in memory.
class PaletteEditorFixture : public testing::Test {
protected:
    static constexpr const char* ours = "/home/user/.local/share/Vantorel/Palettes/";
    static constexpr const char* folder = "/home/user/.local/share/Vantorel/Palettes";
    static constexpr const char* theirs = "/home/user/.local/share/krita/palettes/";

    PaletteEditorFixture()
    {
        for (const char* path :
             {"/home/user/.local/share/Vantorel", "/home/user/.local/share/Vantorel/Palettes",
              "/home/user/.local/share/krita", "/home/user/.local/share/krita/palettes"}) {
            _files.createDirectory(path);
        }
        HostBaseDirectories directories;
        directories.dataHome = "/home/user/.local/share";
        _files.setBaseDirectories(directories);
    }

    /// Writes a list as another program or another panel would.
    void put(const std::string& path, const std::string& name, const std::string& entries)
    {
        ASSERT_TRUE(_files.writeAtomically(
            path, paletteText(*listOfEntries(utf16FromUtf8(name), entriesFrom(entries)))));
    }
    /// The contents of a file as "Name: entries"; "none" if there is no file.
    [[nodiscard]] std::string fileAt(const std::string& path) const
    {
        const auto bytes = _files.contentsAtPath(path);
        if (!bytes) return "none";
        const auto reading = readPalette(*bytes, u"no name");
        if (!reading) return "no palette";
        return utf8FromUtf16(reading->list->name()) + ": " + textOf(entriesOfList(*reading->list));
    }
    [[nodiscard]] PaletteId idOf(const PaletteEditor& editor, const std::string& name) const
    {
        for (const EditablePalette& palette : editor.palettes()) {
            if (palette.name == utf16FromUtf8(name)) return palette.id;
        }
        return 0;
    }
    [[nodiscard]] static std::string namesIn(const PaletteEditor& editor)
    {
        std::string names;
        for (const EditablePalette& palette : editor.palettes())
            names += (names.empty() ? "" : ", ") + utf8FromUtf16(palette.name);
        return names;
    }
    [[nodiscard]] PaletteEditor::RemoveFile remover()
    {
        return [this](const std::string& path) {
            if (_removalFails) return false;
            _files.remove(path);
            return true;
        };
    }

    MemoryFiles _files;
    PaletteFileStore _store{_files};
    bool _removalFails = false;
};

}  // namespace vantorel
