#include "panel/window/ShortcutOverlay.h"

#include "hosts/qt/QtColors.h"

#include <QEvent>
#include <QLabel>

#include <algorithm>
#include <array>

namespace vantorel {
namespace {

/// Rich text; names of pages come from plug-ins.
QString tableOf(const ShortcutSection& section)
{
    QString table;
    if (!section.title.isEmpty())
        table += QStringLiteral("<p><b>%1</b></p>").arg(section.title.toHtmlEscaped());
    table += QStringLiteral("<table cellspacing='3'>");
    for (const auto& [action, keys] : section.rows) {
        table += QStringLiteral("<tr><td>%1&nbsp;&nbsp;</td><td>%2</td></tr>")
                     .arg(action.toHtmlEscaped(), keys.toHtmlEscaped());
    }
    return table + QStringLiteral("</table>");
}

}  // namespace

ShortcutOverlay::ShortcutOverlay(const std::vector<ShortcutSection>& sections, QWidget& window)
    : QScrollArea(&window)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setAutoFillBackground(true);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(tr("Keyboard shortcuts"));

    auto* label = new QLabel(this);
    label->setTextFormat(Qt::RichText);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignTop | Qt::AlignLeading);
    label->setMargin(12);
    label->setFont(fontOfSize(11));
    QString text = QStringLiteral("<b>%1</b><br>%2")
                       .arg(accessibleName().toHtmlEscaped(),
                            tr("Escape or a click closes the list.").toHtmlEscaped());
    for (const ShortcutSection& section : sections)
        text += tableOf(section);
    label->setText(text);
    setWidget(label);
    setWidgetResizable(true);

    setGeometry(window.rect());
    window.installEventFilter(this);
    show();
    raise();
    setFocus();
}

bool ShortcutOverlay::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == parentWidget() && event->type() == QEvent::Resize)
        setGeometry(parentWidget()->rect());
    return QScrollArea::eventFilter(watched, event);
}

void ShortcutOverlay::keyPressEvent(QKeyEvent* event)
{
    constexpr std::array scrollKeys{Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown};
    if (std::find(scrollKeys.begin(), scrollKeys.end(), event->key()) != scrollKeys.end()) {
        QScrollArea::keyPressEvent(event);
    } else {
        close();
    }
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
