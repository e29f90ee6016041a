#include "embedding/PageLibrary.h"
#include "embedding/PageTranslations.h"
#include "embedding/loader/DialogLibrary.h"
#include "hosts/common/Translator.h"
#include "hosts/qt-dialog/DialogPage.h"
#include "hosts/qt/EventGuard.h"

/// The functions that the loader calls (see embedding/loader/DialogLibrary.h).
namespace vantorel {
namespace {

/// Never destroyed: a dialog may outlive the static objects of a program that ends.
QtDesktop& desktopOfProgram()
{
    static auto* const desktop = [] {
        setTranslator(pageTranslation);
        return new QtDesktop(QtLog::nowhere);
    }();
    return *desktop;
}

QColorDialog* colorDialog(void* dialog)
{
    return qobject_cast<QColorDialog*>(static_cast<QObject*>(dialog));
}

}  // namespace
}  // namespace vantorel

extern "C" {

__attribute__((visibility("default"))) extern const std::uint32_t vantorelDialogABI;
__attribute__((visibility("default"))) bool vantorelOpenPage(const char* pagesFolder);
__attribute__((visibility("default"))) void vantorelKeepDialog(void* dialog);
__attribute__((visibility("default"))) void vantorelAttachPage(void* dialog);

const std::uint32_t vantorelDialogABI = vantorel::dialogLibraryABI;

bool vantorelOpenPage(const char* pagesFolder)
{
    return vantorel::openPage(pagesFolder);
}

void vantorelKeepDialog(void* dialog)
{
    QColorDialog* made = vantorel::colorDialog(dialog);
    if (made == nullptr || made->isVisible()) return;
    made->setOption(QColorDialog::DontUseNativeDialog);
}

void vantorelAttachPage(void* dialog)
{
    try {
        QColorDialog* shown = vantorel::colorDialog(dialog);
        if (shown == nullptr || vantorel::openedPage() == nullptr) return;
        vantorel::EventGuard::install(vantorel::DialogPage::pageHasThrown);
        vantorel::DialogPage::putInto(*shown, *vantorel::openedPage(),
                                      vantorel::desktopOfProgram());
    } catch (...) {
        // The dialog opens without the page.
        return;
    }
}
}
