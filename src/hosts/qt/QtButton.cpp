#include "hosts/qt/QtButton.h"

#include "hosts/qt/QtColors.h"
#include "hosts/qt/QtToolButton.h"
#include "hosts/qt/TextScale.h"

#include <QApplication>
#include <QCheckBox>
#include <QIconEngine>
#include <QPainter>
#include <QPushButton>
#include <QSvgRenderer>

#include <utility>

namespace vantorel {
namespace {

class SvgIconEngine final : public QIconEngine {
public:
    SvgIconEngine(QByteArray svg, const QWidget* ground) : _svg(std::move(svg)), _ground(ground) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const QPalette palette = _ground ? _ground->palette() : QApplication::palette();
        const QColor color = palette.color(group, QPalette::ButtonText);
        QByteArray colored = _svg;
        colored.replace("currentColor", color.name().toLatin1());
        QSvgRenderer(colored).render(painter, rect);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap result(size);
        result.fill(Qt::transparent);
        QPainter painter(&result);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return result;
    }

    [[nodiscard]] QIconEngine* clone() const override { return new SvgIconEngine(_svg, _ground); }

private:
    QByteArray _svg;
    QPointer<const QWidget> _ground;
};

QAbstractButton* makeButton(const HostControlDescription& description)
{
    using ButtonKind = HostControlDescription::ButtonKind;
    if (description.buttonKind == ButtonKind::checkBox) return new QCheckBox;
    if (description.svgImage.empty() && description.buttonKind == ButtonKind::push) {
        return new QPushButton;
    }
    auto* button = new QtToolButton;
    button->setCheckable(description.buttonKind == ButtonKind::toggle);
    return button;
}

}  // namespace

QIcon iconFromSvg(const std::string& svg, const QWidget* ground)
{
    if (svg.empty()) return {};
    return QIcon(new SvgIconEngine(QByteArray::fromStdString(svg), ground));
}

QtButton::QtButton(const HostControlDescription& description)
    : QtMirrored(description.frame, makeButton(description))
{
    constexpr double defaultPointSize = 11;
    constexpr int iconSize = 14;
    QAbstractButton* shown = button();
    shown->setFont(
        fontOfSize(description.pointSize > 0 ? description.pointSize : defaultPointSize));
    shown->setText(qStringFrom(description.title));
    shown->setIcon(iconFromSvg(description.svgImage, shown));
    shown->setIconSize(QSize(iconSize, iconSize) * textScale());
    shown->setAccessibleName(qStringFrom(description.accessibleName));
    if (!shown->isCheckable()) {
        QObject::connect(shown, &QAbstractButton::clicked, shown, [this] { sendAction(); });
        return;
    }
    // Not `clicked`: assistive technology toggles without a click.
    QObject::connect(shown, &QAbstractButton::toggled, shown, [this](bool checked) {
        if (_stateIsBeingShown) return;
        setState(checked ? 1 : 0);
        sendAction();
        // The action may have decided otherwise.
        stateDidChange();
    });
}

QAbstractButton* QtButton::button() const
{
    return static_cast<QAbstractButton*>(widget());
}

void QtButton::stateDidChange()
{
    if (!button()->isCheckable()) return;
    const bool wasBeingShown = std::exchange(_stateIsBeingShown, true);
    button()->setChecked(state() == 1);
    _stateIsBeingShown = wasBeingShown;
}

}  // namespace vantorel
