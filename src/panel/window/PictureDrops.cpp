#include "panel/window/PictureDrops.h"

#include "panel/palettes/PictureFile.h"

#include <QDropEvent>
#include <QUrl>

#include <algorithm>

namespace vantorel {
namespace {

bool holdsPicture(const QMimeData& data)
{
    const QList<QUrl> urls = data.urls();
    const auto file =
        std::find_if(urls.begin(), urls.end(), [](const QUrl& url) { return url.isLocalFile(); });
    // A browser offers the picture beside its address.
    return file != urls.end() ? isPictureFile(file->toLocalFile()) : data.hasImage();
}

}  // namespace

PictureDrops::PictureDrops(QWidget& window) : QObject(&window)
{
    window.setAcceptDrops(true);
    window.installEventFilter(this);
}

bool PictureDrops::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::DragEnter || event->type() == QEvent::Drop) {
        auto* drop = static_cast<QDropEvent*>(event);
        if (!holdsPicture(*drop->mimeData())) return false;
        drop->setDropAction(Qt::CopyAction);
        drop->accept();
        if (event->type() == QEvent::Drop) emit dropped(*drop->mimeData());
        return true;
    }
    return QObject::eventFilter(watched, event);
}

}  // namespace vantorel
