#include "embedding/loader/DialogLibrary.h"

/// A dialog library of another version. Its functions must never be called.
extern "C" {

__attribute__((visibility("default"))) extern const std::uint32_t vantorelDialogABI;
__attribute__((visibility("default"))) bool vantorelOpenPage(const char* pagesFolder);

const std::uint32_t vantorelDialogABI = vantorel::dialogLibraryABI + 1;

bool vantorelOpenPage(const char*)
{
    __builtin_trap();
}
}
