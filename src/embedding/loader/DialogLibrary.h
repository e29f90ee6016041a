#pragma once

#include <cstdint>

/// A plug-in that a toolkit loads into every program must cost next to nothing in programs that
/// open no colour dialog, and must not harm any. So each toolkit gets a small loader, and a dialog
/// library with everything else, which the loader opens when the first dialog appears:
///
///     extern "C" const std::uint32_t vantorelDialogABI;                 // = dialogLibraryABI
///     extern "C" bool vantorelOpenPage(const char* pagesFolder);
///     extern "C" void vantorelAttachPage(void* dialog);
///     extern "C" void vantorelKeepDialog(void* dialog);                 // may be left out
///
/// Nothing here throws, prints, writes, or allocates memory before a dialog appears.
namespace vantorel {

/// Increases with every change of the functions above.
inline constexpr std::uint32_t dialogLibraryABI = 1;

class DialogLibrary {
public:
    /// Opens the dialog library of that file name at the first call. Returns whether the page can
    /// be put into dialogs: the library and the page exist, are whole and fit each other, and the
    /// user has not excluded the program. Later calls return the same.
    [[nodiscard]] bool open(const char* fileName) noexcept;

    // Call the functions below only after `open` has returned true. The dialog's type is known to
    // the library.

    /// Puts the page into a dialog.
    void attachPage(void* dialog) const noexcept { _attach(dialog); }
    /// Has the toolkit's own dialog shown when the program shows this one, not the desktop's, for
    /// toolkits that may show either. Has no effect on a dialog that is shown.
    void keepDialog(void* dialog) const noexcept
    {
        if (_keep != nullptr) _keep(dialog);
    }

private:
    enum class State { unopened, open, unavailable };

    [[nodiscard]] bool openOnce(const char* fileName) noexcept;

    State _state = State::unopened;
    void (*_keep)(void*) = nullptr;
    void (*_attach)(void*) = nullptr;
};

}  // namespace vantorel
