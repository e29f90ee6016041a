#include "embedding/PageLibrary.h"
#include "embedding/loader/DialogLibrary.h"
#include "hosts/gimp/SelectorPage.h"

/// The functions that the loader calls (see embedding/loader/DialogLibrary.h). A dialog is a colour
/// selector.
extern "C" {

__attribute__((visibility("default"))) extern const std::uint32_t vantorelDialogABI;
__attribute__((visibility("default"))) bool vantorelOpenPage(const char* pagesFolder);
__attribute__((visibility("default"))) void vantorelAttachPage(void* selector);

const std::uint32_t vantorelDialogABI = vantorel::dialogLibraryABI;

bool vantorelOpenPage(const char* pagesFolder)
{
    return vantorel::openPage(pagesFolder);
}

void vantorelAttachPage(void* selector)
{
    try {
        if (vantorel::openedPage() == nullptr || !GIMP_IS_COLOR_SELECTOR(selector)) return;
        vantorel::SelectorPage::putInto(GIMP_COLOR_SELECTOR(selector), *vantorel::openedPage(),
                                        vantorel::desktopOfProgram());
    } catch (...) {
        // The selector stays empty.
        return;
    }
}
}
