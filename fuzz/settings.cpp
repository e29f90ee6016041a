#include "FuzzTexts.h"
#include "plist/PropertyListReader.h"
#include "settings/SettingsFile.h"
#include "testing/headless/MemoryFiles.h"
#include "text/Unicode.h"

/// Whatever the settings file holds, the settings that were read from it are written and read back
/// the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace vantorel;
    MemoryFiles files;
    files.createDirectory("/home/user/.local/share/Vantorel");
    const std::string path = *hexColorPickerDefaultsFileName(files);
    const std::string bytes(bytesFrom(data, size));
    files.writeAtomically(path, bytes);
    QTXHexSettings settings;
    SettingsMerge merge;
    initializeDefaults(files, settings, merge);
    require(!settings.codeSnippets().empty());
    static_cast<void>(settings.codeSnippet());
    // Files that cannot be read leave the settings of a first start, which are always the same.
    if (!isWellFormedUtf8(bytes) || !parsePropertyList(utf16FromUtf8(bytes))) return 0;
    writeDefaults(files, settings, merge);
    const auto written = files.contentsAtPath(path);
    QTXHexSettings again;
    readDefaults(files, again);
    require(written == settingsData(again));
    return 0;
}
