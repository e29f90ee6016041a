#include "panel/window/PanelMemory.h"

#include "hosts/posix/PosixFiles.h"
#include "hosts/qt/QtColors.h"

#include <QFile>
#include <QSettings>

#include <cstdio>

namespace vantorel {
namespace {

QSettings panelSettings()
{
    return {QSettings::IniFormat, QSettings::UserScope, QStringLiteral("Vantorel"),
            QStringLiteral("panel")};
}

QString textOf(const HostColor& color)
{
    return qColorFrom(color).name(QColor::HexArgb);
}

HostColor colorOf(const QString& text, const HostColor& otherwise)
{
    const QColor color(text);
    return color.isValid() ? hostColorFrom(color) : otherwise;
}

/// A character or byte as QSettings reads it. It takes any hexadecimal digit that follows for one
/// more, so that what has one of these is written in no other way.
QByteArray escaped(unsigned int code)
{
    return "\\x" + QByteArray::number(code, 16);
}

QByteArray escapedText(const QString& text)
{
    QByteArray bytes;
    for (const QChar c : text)
        bytes += escaped(c.unicode());
    return bytes;
}

QByteArray escapedBytes(const QByteArray& bytes)
{
    QByteArray text = "@ByteArray(";
    for (const char byte : bytes)
        text += escaped(static_cast<unsigned char>(byte));
    return text + ')';
}

/// The file that `QSettings` reads. It is not written by one: that leaves a file behind when the
/// panel is killed, and lets everybody read what it makes.
QByteArray memoryText(const PanelMemory& memory)
{
    QByteArray text = "[General]\n";
    text += "background=" + textOf(memory.background).toLatin1() + '\n';
    text += "color=" + textOf(memory.color).toLatin1() + '\n';
    text += "geometry=" + escapedBytes(memory.geometry) + '\n';
    text += memory.onTop ? "onTop=true\n" : "onTop=false\n";
    text += "page=" + escapedText(memory.page) + '\n';
    if (memory.recent.empty()) return text;
    QStringList recent;
    for (const HostColor& color : memory.recent)
        recent.append(textOf(color));
    return text + "recent=" + recent.join(QStringLiteral(", ")).toLatin1() + '\n';
}

}  // namespace

PanelMemory readPanelMemory()
{
    const QSettings settings = panelSettings();
    PanelMemory memory;
    memory.geometry = settings.value(QStringLiteral("geometry")).toByteArray();
    memory.page = settings.value(QStringLiteral("page")).toString();
    memory.onTop = settings.value(QStringLiteral("onTop")).toBool();
    memory.color = colorOf(settings.value(QStringLiteral("color")).toString(), memory.color);
    memory.background =
        colorOf(settings.value(QStringLiteral("background")).toString(), memory.background);
    for (const QString& text : settings.value(QStringLiteral("recent")).toStringList()) {
        const QColor color(text);
        if (color.isValid()) memory.recent.push_back(hostColorFrom(color));
    }
    return memory;
}

bool writePanelMemory(const PanelMemory& memory)
{
    const std::string path = QFile::encodeName(panelSettings().fileName()).toStdString();
    const std::string folder = path.substr(0, path.rfind('/'));
    PosixFiles files(folder);
    files.setComplaint([](const auto& name, auto trouble, const auto& reason) {
        static_cast<void>(std::fprintf(stderr, "vantorel-panel: %s %s: %s\n", name.c_str(),
                                       PosixFiles::textOf(trouble).c_str(), reason.c_str()));
    });
    // Makes it, for the user alone.
    static_cast<void>(files.applicationSupportDirectory());
    return files.writeAtomically(path, memoryText(memory).toStdString());
}

}  // namespace vantorel
