#include "panel/window/PageTabs.h"

#include "hosts/qt/PlainText.h"
#include "hosts/qt/QtColors.h"
#include "hosts/qt/TextScale.h"
#include "panel/widgets/ThemeColors.h"

#include <QEvent>
#include <QFontMetrics>
#include <QPainter>

namespace vantorel {
namespace {

// In points.
constexpr int wordSize = 12;
constexpr int tabHeight = 30;
constexpr int tabIconPoints = 16;
constexpr int underline = 2;

QFont wordFont(bool isBold)
{
    QFont font = fontOfSize(wordSize);
    font.setBold(isBold);
    return font;
}

}  // namespace

PageTabs::PageTabs(QWidget* parent) : QTabBar(parent)
{
    setDrawBase(false);
    setExpanding(false);
    setUsesScrollButtons(false);
    setIconSize(QSize(scaled(tabIconPoints), scaled(tabIconPoints)));
    setAttribute(Qt::WA_Hover);
    setAccessibleName(tr("Pages"));
}

void PageTabs::addPage(const QIcon& icon, const QString& name, const QString& toolTip)
{
    const int index = addTab(icon, plainTitle(name));
    setTabToolTip(index, plainToolTip(toolTip));
    setAccessibleTabName(index, name);
    setTabData(index, name);
}

int PageTabs::padding() const
{
    switch (_form) {
        case Form::roomy:
            return scaled(8);
        case Form::close:
            return scaled(6);
        default:
            return scaled(4);
    }
}

bool PageTabs::showsWord(int index) const
{
    return _form < Form::currentWord || (_form == Form::currentWord && index == currentIndex());
}

QSize PageTabs::tabSizeHint(int index) const
{
    const int height = scaled(tabHeight);
    if (!showsWord(index)) return {scaled(tabIconPoints) + 2 * padding(), height};
    const QFontMetrics metrics(wordFont(_form < Form::regular));
    return {metrics.horizontalAdvance(tabData(index).toString()) + 2 * padding(), height};
}

int PageTabs::widthOfAll() const
{
    int width = 0;
    for (int i = 0; i < count(); ++i)
        width += tabSizeHint(i).width();
    return width;
}

QSize PageTabs::sizeHint() const
{
    return {widthOfAll(), scaled(tabHeight)};
}

int PageTabs::fitInto(int width)
{
    const Form before = _form;
    for (const Form form :
         {Form::roomy, Form::close, Form::tight, Form::regular, Form::currentWord, Form::icons}) {
        _form = form;
        if (widthOfAll() - 2 * padding() <= width) break;
    }
    // Lays the tabs out anew.
    if (_form != before || _form == Form::currentWord) setIconSize(iconSize());
    return widthOfAll();
}

bool PageTabs::event(QEvent* event)
{
    if (event->type() == QEvent::HoverMove || event->type() == QEvent::FocusIn ||
        event->type() == QEvent::FocusOut)
        update();
    return QTabBar::event(event);
}

void PageTabs::paintTab(QPainter& painter, int index) const
{
    const ThemeColors colors = themeColors(palette());
    const bool isCurrent = index == currentIndex();
    const QRect place = tabRect(index);
    const QRect inside = place.adjusted(padding(), 0, -padding(), 0);
    const bool isHovered = place.contains(mapFromGlobal(QCursor::pos())) && underMouse();
    painter.setPen(isCurrent || isHovered ? colors.text : colors.text2);
    if (showsWord(index)) {
        painter.setFont(wordFont(isCurrent && _form < Form::regular));
        painter.drawText(inside, Qt::AlignLeading | Qt::AlignVCenter | Qt::TextDontClip,
                         tabData(index).toString());
    } else {
        const int size = scaled(tabIconPoints);
        tabIcon(index).paint(&painter, QRect(inside.left(), (height() - size) / 2, size, size));
    }
    if (isCurrent) {
        const int thick = scaled(underline);
        painter.fillRect(QRect(inside.left(), height() - thick, inside.width(), thick),
                         colors.text);
    }
}

void PageTabs::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    for (int i = 0; i < count(); ++i)
        paintTab(painter, i);
    if (hasFocus() && window()->testAttribute(Qt::WA_KeyboardFocusChange)) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(themeColors(palette()).accent, 2));
        painter.drawRoundedRect(QRectF(tabRect(currentIndex())).adjusted(1, 3, -1, -4), 4, 4);
    }
}

}  // namespace vantorel
