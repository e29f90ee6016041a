#include "embedding/PageLibrary.h"
#include "embedding/loader/DialogLibrary.h"
#include "hosts/gtk-dialog/GtkDialogPage.h"

/// The functions that the loader calls (see embedding/loader/DialogLibrary.h).
extern "C" {

__attribute__((visibility("default"))) extern const std::uint32_t vantorelDialogABI;
__attribute__((visibility("default"))) bool vantorelOpenPage(const char* pagesFolder);
__attribute__((visibility("default"))) void vantorelAttachPage(void* dialog);

const std::uint32_t vantorelDialogABI = vantorel::dialogLibraryABI;

bool vantorelOpenPage(const char* pagesFolder)
{
    return vantorel::openPage(pagesFolder);
}

void vantorelAttachPage(void* dialog)
{
    try {
        if (vantorel::openedPage() == nullptr || !GTK_IS_WIDGET(dialog)) return;
        vantorel::GtkDialogPage::putInto(GTK_WIDGET(dialog), *vantorel::openedPage(),
                                         vantorel::desktopOfProgram());
    } catch (...) {
        // The dialog opens without the page.
        return;
    }
}
}
