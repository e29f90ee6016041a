#pragma once

#include <cstdint>

/// Both versions of Qt read `QT_PLUGIN_PATH`, so both find the loaders of both in one folder. Qt 5
/// passes over plug-ins of Qt 6 in silence, but Qt 6 prints a warning for each of Qt 5. It looks
/// for this note first, and does not look further: a note of the current version about a plug-in
/// for nothing that Qt asks for.
namespace vantorel {

struct NoteForQt6 {
    std::uint32_t nameSize = sizeof(name);
    std::uint32_t contentSize = sizeof(version) + sizeof(content);
    std::uint32_t type = 0x74510001;
    char name[12] = "qt-project!";
    /// Version of the note, version of Qt, and what processors the plug-in needs.
    alignas(8) std::uint8_t version[4] = {1, 6, 0, 1};
    /// CBOR: a map of one entry; key 2 is the interface that the plug-in implements.
    std::uint8_t content[7] = {0xA1, 0x02, 0x64, 'n', 'o', 'n', 'e'};
};

// With the alignment of a pointer, which is expected of such notes; the compiler would take more.
__attribute__((section(".note.qt.metadata"), used, aligned(sizeof(void*))))
const NoteForQt6 noteForQt6;

}  // namespace vantorel
