#include "hosts/qt/PlainText.h"

#include <QTextDocument>

namespace vantorel {

QString plainToolTip(const QString& text)
{
    // Other texts stay unchanged, because assistive technology reads tool tips with their tags.
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}

QString plainTitle(const QString& text)
{
    QString title = text;
    return title.replace(u'&', QStringLiteral("&&")).replace(u'\t', u' ');
}

PlainLabel::PlainLabel(QWidget* parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
}

PlainLabel::PlainLabel(const QString& text, QWidget* parent) : PlainLabel(parent)
{
    setText(text);
}

}  // namespace vantorel
