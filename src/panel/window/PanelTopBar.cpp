#include "panel/window/PanelTopBar.h"

#include "hosts/qt/PlainText.h"
#include "hosts/qt/QtColors.h"
#include "hosts/qt/QtToolButton.h"
#include "hosts/qt/TextScale.h"
#include "panel/widgets/PanelIcons.h"

#include <QAccessible>
#include <QHBoxLayout>

#include <chrono>

namespace vantorel {
namespace {

constexpr int iconPoints = 18;
constexpr std::chrono::milliseconds messageTime{6000};

QToolButton* newTopButton(QWidget* parent)
{
    auto* button = new QtToolButton(parent);
    button->setIconSize(QSize(scaled(iconPoints), scaled(iconPoints)));
    return button;
}

}  // namespace

PanelTopBar::PanelTopBar(QWidget* parent)
    : QWidget(parent),
      _pages(new QButtonGroup(this)),
      _name(new PlainLabel(this)),
      _menuButton(newTopButton(this))
{
    setObjectName(QStringLiteral("topBar"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(10, 3, 10, 1);
    row->setSpacing(2);
    _pages->setExclusive(true);
    _name->setAlignment(Qt::AlignTrailing | Qt::AlignVCenter);
    _name->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    _name->setAccessibleDescription(tr("Current page"));
    _menuButton->setIcon(menuIcon());
    _menuButton->setToolTip(tr("Commands"));
    _menuButton->setAccessibleName(tr("Commands"));
    _menuButton->setPopupMode(QToolButton::InstantPopup);
    _menuButton->setStyleSheet(QStringLiteral("QToolButton::menu-indicator { image: none; }"));
    row->addWidget(_name, 1);
    row->addWidget(_menuButton);
    // Not `idClicked`: assistive technology toggles without a click.
    connect(_pages, &QButtonGroup::idToggled, this, [this](int index, bool checked) {
        if (checked) emit pageChosen(index);
    });
    _messageTimer.setSingleShot(true);
    connect(&_messageTimer, &QTimer::timeout, this, [this] { showMessage({}); });
}

void PanelTopBar::addPage(const QIcon& icon, const QString& name, const QString& toolTip)
{
    QToolButton* button = newTopButton(this);
    button->setCheckable(true);
    button->setIcon(icon);
    button->setToolTip(plainToolTip(toolTip));
    button->setAccessibleName(name);
    const int index = static_cast<int>(_pages->buttons().size());
    _pages->addButton(button, index);
    static_cast<QHBoxLayout*>(layout())->insertWidget(index, button);
}

void PanelTopBar::showPage(int index, const QString& name)
{
    _pages->button(index)->setChecked(true);
    _pageName = name;
    showName();
}

void PanelTopBar::setMenu(QMenu& menu)
{
    _menuButton->setMenu(&menu);
}

void PanelTopBar::showMessage(const QString& sentence)
{
    _message = sentence;
    if (sentence.isEmpty()) {
        _messageTimer.stop();
    } else {
        _messageTimer.start(messageTime);
        QAccessibleEvent event(_name, QAccessible::Alert);
        QAccessible::updateAccessibility(&event);
    }
    showName();
}

bool PanelTopBar::hasRoomFor(const QString& sentence) const
{
    return QFontMetrics(fontOfSize(10)).horizontalAdvance(sentence) <= _name->width();
}

void PanelTopBar::showName()
{
    const QString text = _message.isEmpty() ? _pageName : _message;
    _name->setFont(_message.isEmpty() ? font() : fontOfSize(10));
    _name->setToolTip(plainToolTip(_message));
    _name->setAccessibleName(text);
    _name->setText(_name->fontMetrics().elidedText(
        text, _message.isEmpty() ? Qt::ElideRight : Qt::ElideMiddle, _name->width()));
}

void PanelTopBar::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    layout()->activate();
    showName();
}

}  // namespace vantorel
