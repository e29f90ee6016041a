#include "panel/palettes/PaletteFiles.h"

#include "hosts/qt/QtColors.h"
#include "listformats/ListReader.h"
#include "paletteedit/FreeNames.h"
#include "panel/palettes/ListFileFilters.h"
#include "panel/palettes/PictureFile.h"
#include "result/HarmlessLine.h"

#include <QFile>
#include <QFileDialog>
#include <QFileInfo>

#include <algorithm>

namespace vantorel {
namespace {

/// Larger files are rejected unread; nobody makes palettes that big.
constexpr qint64 largestFile = qint64{64} << 20;

Result<ListFile> readListFile(const QFileInfo& info)
{
    const std::string fileName = info.fileName().toStdString();
    QFile file(info.filePath());
    // Regular files only: reading a pipe could block the panel.
    if (!info.isFile() || info.size() > largestFile || !file.open(QIODevice::ReadOnly)) {
        return Message{phrase("\"%1\" cannot be read", excerpt(fileName)),
                       phrase("check that it is a file of at most 64 MiB that you can read")};
    }
    const QByteArray bytes = file.read(largestFile);
    Result<ListFile> read =
        readColorList({bytes.constData(), static_cast<std::size_t>(bytes.size())}, fileName);
    if (!read) {
        return Message{
            phrase("\"%1\" is not a colour list that can be read", excerpt(fileName)),
            phrase(
                "use a palette of GIMP, KDE or Krita, CSS, SCSS, JSON, swatches, a colour table of "
                "an office program, or a text with one colour per line")};
    }
    return read;
}

}  // namespace

PaletteFiles::PaletteFiles(QWidget& page, HostFiles& files, PaletteSession& session,
                           MessageLabel& message)
    : QObject(&page), _page(page), _files(files), _session(session), _message(message)
{
}

void PaletteFiles::chooseImport()
{
    importFiles(QFileDialog::getOpenFileNames(&_page, tr("Import palette files"), {},
                                              ListFileFilters::forReading()));
}

void PaletteFiles::importFiles(const QStringList& paths)
{
    std::vector<Message> messages;
    bool hasFailed = false;
    for (const QString& path : paths)
        hasFailed = !importFile(path, messages) || hasFailed;
    _message.showMessages(messages,
                          hasFailed ? MessageLabel::Kind::failure : MessageLabel::Kind::news);
}

bool PaletteFiles::importFile(const QString& path, std::vector<Message>& messages)
{
    const QFileInfo info(path);
    Result<ListFile> read = readListFile(info);
    if (!read) {
        messages.push_back(std::move(read).error());
        return false;
    }
    std::u16string name = read->list->name();
    if (tidyName(name).empty()) name = u16From(info.completeBaseName());
    const EditOutcome outcome = _session.addList(name, entriesOfList(*read->list));
    if (!outcome.done) {
        messages.insert(messages.end(), outcome.messages.begin(), outcome.messages.end());
        return false;
    }
    messages.push_back(
        {phrase("\"%1\" has been imported", excerpt(_session.listName().toStdString()))});
    if (read->skipped > 0)
        messages.push_back({phrase("lines that are not colours were left out: %1", read->skipped)});
    return true;
}

void PaletteFiles::importUrls(const QList<QUrl>& urls)
{
    QStringList paths;
    for (const QUrl& url : urls) {
        if (url.isLocalFile()) paths.append(url.toLocalFile());
    }
    const auto isPicture = [](const QString& path) {
        const ListFormat* format = listFormatOfFile(path.toStdString());
        return (format == nullptr || !format->isRead) && isPictureFile(path);
    };
    const auto picture = std::find_if(paths.begin(), paths.end(), isPicture);
    if (picture != paths.end()) {
        // One at a time: each has a window of its own.
        openPicture(*picture);
    } else if (paths.isEmpty()) {
        _message.showMessage({phrase("only files on this computer can be imported")},
                             MessageLabel::Kind::failure);
    } else {
        importFiles(paths);
    }
}

void PaletteFiles::choosePicture()
{
    const QString path =
        QFileDialog::getOpenFileName(&_page, tr("Colours of a picture"), {}, pictureFilter());
    if (!path.isEmpty()) openPicture(path);
}

void PaletteFiles::openPicture(const QString& path)
{
    const Result<QImage> picture = readPicture(path);
    if (picture) {
        emit pictureOpened(*picture, QFileInfo(path).completeBaseName());
    } else {
        _message.showMessage(picture.error(), MessageLabel::Kind::failure);
    }
}

void PaletteFiles::chooseCopy()
{
    QString proposed = _session.listName();
    proposed.replace(u'/', u'-');
    QFileDialog dialog(&_page, tr("Save a copy"), {}, ListFileFilters::forWriting());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    const auto useFormat = [&dialog](const ListFormat& format, const QString& name) {
        const std::string_view ending = format.endings.front();
        // Not the suffix of the name, which would be "json" for "tokens.json".
        dialog.setDefaultSuffix(
            QString::fromLatin1(ending.data(), static_cast<qsizetype>(ending.size())));
        dialog.selectFile(ListFileFilters::withEnding(name, format));
    };
    connect(&dialog, &QFileDialog::filterSelected, &dialog, [&](const QString& filter) {
        const ListFormat* format = ListFileFilters::formatOf(filter);
        if (format != nullptr)
            useFormat(*format, QFileInfo(dialog.selectedFiles().value(0)).fileName());
    });
    useFormat(listFormats().front(), proposed);
    if (dialog.exec() == QDialog::Accepted) saveCopy(dialog.selectedFiles().value(0));
}

void PaletteFiles::saveCopy(const QString& path)
{
    const std::u16string name = u16From(_session.listName());
    const ListFormat* ofEnding = listFormatOfFile(path.toStdString());
    const ListFormat& format = ofEnding != nullptr ? *ofEnding : listFormats().front();
    if (_session.entries().size() > format.mostColors) {
        _message.showMessage({phrase("the format %1 holds at most %2 colours",
                                     std::string(format.name), format.mostColors),
                              phrase("choose another format")},
                             MessageLabel::Kind::failure);
        return;
    }
    const bool saved =
        _files.writeForOthers(QFile::encodeName(path).toStdString(),
                              format.write(*listOfEntries(name, _session.entries())));
    if (saved) {
        _message.showMessage({phrase("saved as %1", path.toStdString())}, MessageLabel::Kind::news);
    } else {
        _message.showMessage(
            {phrase("\"%1\" could not be written", path.toStdString()),
             phrase("check that you can write to its folder and that the disk has room")},
            MessageLabel::Kind::failure);
    }
}

}  // namespace vantorel
