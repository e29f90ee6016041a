#include "panel/window/ShortcutOverlay.h"

#include "hosts/qt/QtColors.h"

#include <QEvent>

namespace vantorel {

ShortcutOverlay::ShortcutOverlay(const std::vector<std::pair<QString, QString>>& rows,
                                 QWidget& window)
    : QLabel(&window)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setTextFormat(Qt::RichText);
    setWordWrap(true);
    setAutoFillBackground(true);
    setAlignment(Qt::AlignTop | Qt::AlignLeading);
    setMargin(12);
    setFont(fontOfSize(11));
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(tr("Keyboard shortcuts"));
    QString table = QStringLiteral("<b>%1</b><table cellspacing='3'>").arg(accessibleName());
    for (const auto& [name, keys] : rows) {
        table += QStringLiteral("<tr><td>%1&nbsp;&nbsp;</td><td>%2</td></tr>")
                     .arg(name.toHtmlEscaped(), keys.toHtmlEscaped());
    }
    setText(table + QStringLiteral("</table>"));
    setGeometry(window.rect());
    window.installEventFilter(this);
    show();
    raise();
    setFocus();
}

bool ShortcutOverlay::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize) setGeometry(parentWidget()->rect());
    return QLabel::eventFilter(watched, event);
}

void ShortcutOverlay::keyPressEvent(QKeyEvent*)
{
    close();
}

void ShortcutOverlay::mousePressEvent(QMouseEvent*)
{
    close();
}

void ShortcutOverlay::focusOutEvent(QFocusEvent*)
{
    close();
}

}  // namespace vantorel
