#include "panel/palettes/SvgPicture.h"

#include <QBuffer>
#include <QImageReader>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace vantorel {
namespace {

constexpr int longerSide = 1024;

/// Whether an attribute, such as "xlink:href", names something outside the drawing.
bool leadsOutside(const QXmlStreamAttribute& attribute)
{
    const bool isReference = attribute.qualifiedName().endsWith(u"href", Qt::CaseInsensitive);
    return isReference && !attribute.value().trimmed().startsWith(u'#');
}

/// Returns the elements and texts of a drawing; empty if it is damaged.
QByteArray drawingByItself(QIODevice& device)
{
    QByteArray drawing;
    QXmlStreamReader reader(&device);
    reader.setNamespaceProcessing(false);
    QXmlStreamWriter writer(&drawing);
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
            case QXmlStreamReader::StartElement:
                writer.writeStartElement(reader.qualifiedName().toString());
                for (const QXmlStreamAttribute& attribute : reader.attributes()) {
                    if (leadsOutside(attribute)) continue;
                    writer.writeAttribute(attribute.qualifiedName().toString(),
                                          attribute.value().toString());
                }
                break;
            case QXmlStreamReader::EndElement:
                writer.writeEndElement();
                break;
            case QXmlStreamReader::Characters:
                writer.writeCharacters(reader.text().toString());
                break;
            default:
                break;
        }
    }
    return reader.hasError() ? QByteArray() : drawing;
}

}  // namespace

QImage readSvgPicture(QIODevice& device)
{
    if (!device.seek(0)) return {};
    QByteArray drawing = drawingByItself(device);
    QBuffer buffer(&drawing);
    QImageReader reader(&buffer, "svg");
    const QSize size = reader.size();
    const QSize wanted = size.isEmpty() ? QSize(1, 1) : size;
    reader.setScaledSize(
        wanted.scaled(longerSide, longerSide, Qt::KeepAspectRatio).expandedTo({1, 1}));
    return reader.read();
}

}  // namespace vantorel
