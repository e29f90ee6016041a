#pragma once

#include "panel/palettes/PaletteSession.h"
#include "panel/widgets/MessageLabel.h"

#include <QImage>
#include <QUrl>
#include <QWidget>

namespace vantorel {

/// Imports colour lists from files, and saves copies of the shown list in files for other programs.
class PaletteFiles final : public QObject {
    Q_OBJECT

public:
    /// `page` owns this object and the dialogs; the others must live as long.
    PaletteFiles(QWidget& page, HostFiles& files, PaletteSession& session, MessageLabel& message);

    /// Lets the user choose the files.
    void chooseImport();
    void chooseCopy();
    void choosePicture();

    void importFiles(const QStringList& paths);
    /// Imports the colour lists that the user has dropped, or shows the colours of a picture.
    void importUrls(const QList<QUrl>& urls);
    /// Saves in the format of the file name's ending, or as a GIMP palette if the ending is
    /// unknown.
    void saveCopy(const QString& path);
    void openPicture(const QString& path);

signals:
    /// The user wants to see the colours of a picture with this name.
    void pictureOpened(const QImage& picture, const QString& name);

private:
    /// Adds the list in a file. Returns false if that failed. Adds to the messages what the user
    /// should know.
    bool importFile(const QString& path, std::vector<Message>& messages);

    QWidget& _page;
    HostFiles& _files;
    PaletteSession& _session;
    MessageLabel& _message;
};

}  // namespace vantorel
