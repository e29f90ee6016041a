#include "hosts/qt-dialog/loader/Loader.h"

#include "embedding/loader/DialogLibrary.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPointer>

#include <utility>

#if QT_VERSION_MAJOR == 5
#include "hosts/qt-dialog/loader/HiddenFromQt6.h"
#endif

namespace vantorel {
namespace {

constexpr const char* dialogClass = "QColorDialog";
constexpr const char* libraryName = VANTOREL_DIALOG_LIBRARY;

/// Waits for colour dialogs.
class DialogWatcher final : public QObject {
public:
    DialogWatcher()
    {
        if (QCoreApplication* program = QCoreApplication::instance()) {
            program->installEventFilter(this);
        }
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        switch (event->type()) {
            case QEvent::WindowTitleChange:
                if (isDialogBeingMade(*watched) && _library.open(libraryName)) {
                    forbidNativeDialog(*watched);
                }
                break;
            case QEvent::Polish:
                if (isDialog(*watched) && _library.open(libraryName)) {
                    _library.attachPage(watched);
                }
                break;
            default:
                break;
        }
        return false;
    }

private:
    static bool isDialog(const QObject& object)
    {
        return object.isWidgetType() && object.inherits(dialogClass);
    }

    /// The constructor of a dialog sets its title, and then decides whether the desktop's own
    /// dialog is shown in its place, before it has any children.
    static bool isDialogBeingMade(const QObject& object)
    {
        return isDialog(object) && object.children().isEmpty();
    }

    /// The dialog asks for the attribute when it is made and again when it is shown, which most
    /// programs do at once. Other dialogs, such as those for files, are to stay the desktop's, so
    /// the attribute is set no longer than that.
    void forbidNativeDialog(QObject& dialog)
    {
        if (_prohibitions == 0) {
            if (QCoreApplication::testAttribute(Qt::AA_DontUseNativeDialogs)) return;
            QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs, true);
        }
        ++_prohibitions;
        QMetaObject::invokeMethod(
            this,
            [this, made = QPointer<QObject>(&dialog)] {
                if (--_prohibitions == 0) {
                    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs, false);
                }
                if (made) _library.keepDialog(made);
            },
            Qt::QueuedConnection);
    }

    DialogLibrary _library;
    int _prohibitions = 0;
};

}  // namespace

QObject* LoaderPlugin::create(const QString&, const QString&)
{
    // The environment may name the plug-in twice. The page must not be in a dialog twice.
    static bool isCreated = false;
    if (std::exchange(isCreated, true)) return new QObject;
    return new DialogWatcher;
}

}  // namespace vantorel
