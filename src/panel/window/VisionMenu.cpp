#include "panel/window/VisionMenu.h"

#include "hosts/qt/PlainText.h"
#include "panel/window/VisionEffect.h"

#include <QActionGroup>

namespace vantorel {

VisionMenu::VisionMenu(QWidget& window) : QMenu(tr("Colour blindness"), &window), _window(window)
{
    setObjectName(QStringLiteral("vision"));
    connect(this, &QMenu::aboutToShow, this, &VisionMenu::fill);
}

void VisionMenu::fill()
{
    if (!isEmpty()) return;
    auto* ways = new QActionGroup(this);
    const auto add = [this, ways](const QString& name, std::optional<ColorVision> vision) {
        QAction* action = addAction(plainTitle(name));
        action->setCheckable(true);
        action->setChecked(!vision);
        ways->addAction(action);
        connect(action, &QAction::triggered, this, [this, vision, name] { choose(vision, name); });
    };
    add(tr("Not simulated"), {});
    addSeparator();
    add(tr("Deuteranopia"), ColorVision::deuteranopia);
    add(tr("Protanopia"), ColorVision::protanopia);
    add(tr("Tritanopia"), ColorVision::tritanopia);
    add(tr("Grey"), ColorVision::grey);
}

void VisionMenu::choose(std::optional<ColorVision> vision, const QString& name)
{
    if (_title.isEmpty()) _title = _window.windowTitle();
    _window.setGraphicsEffect(vision ? new VisionEffect(*vision, _window) : nullptr);
    _window.setWindowTitle(
        plainTitle(vision ? QStringLiteral("%1 (%2)").arg(_title, name) : _title));
}

}  // namespace vantorel
