#include "hosts/qt/QtButton.h"

#include "hosts/qt/PlainText.h"
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
        QByteArray colored = _svg;
        colored.replace("currentColor", color(mode).name().toLatin1());
        QSvgRenderer(colored).render(painter, rect);
    }

    /// Buttons ask at every paint. Without this cache, reading the icons took half of the time to
    /// paint the panel.
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        const QRgb wanted = color(mode).rgba();
        if (_drawn.size() == size && _drawnColor == wanted) return _drawn;
        QPixmap result(size);
        result.fill(Qt::transparent);
        QPainter painter(&result);
        paint(&painter, QRect(QPoint(), size), mode, state);
        painter.end();
        _drawn = result;
        _drawnColor = wanted;
        return result;
    }

    [[nodiscard]] QIconEngine* clone() const override { return new SvgIconEngine(_svg, _ground); }

private:
    [[nodiscard]] QColor color(QIcon::Mode mode) const
    {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const QPalette palette = _ground ? _ground->palette() : QApplication::palette();
        // On a selected row.
        const auto role =
            mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::ButtonText;
        return palette.color(group, role);
    }

    QByteArray _svg;
    QPointer<const QWidget> _ground;
    QPixmap _drawn;
    QRgb _drawnColor = 0;
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
    constexpr int iconSize = 14;
    QAbstractButton* shown = button();
    shown->setFont(fontOf(description));
    shown->setText(plainTitle(qStringFrom(description.title)));
    shown->setIcon(iconFromSvg(description.svgImage, shown));
    shown->setIconSize(QSize(iconSize, iconSize) * textScale());
    shown->setAccessibleName(qStringFrom(description.accessibleName));
    if (!shown->isCheckable()) {
        QObject::connect(shown, &QAbstractButton::clicked, shown, [this] {
            const WidgetReaction reaction;
            sendAction();
        });
        return;
    }
    // Not `clicked`: assistive technology toggles without a click.
    QObject::connect(shown, &QAbstractButton::toggled, shown, [this](bool checked) {
        if (_stateIsBeingShown) return;
        const WidgetReaction reaction;
        const std::weak_ptr<const bool> life = _life;
        setState(checked ? 1 : 0);
        sendAction();
        // The action may have set another state, or destroyed the button.
        if (!life.expired()) stateDidChange();
    });
}

QAbstractButton* QtButton::button() const
{
    return static_cast<QAbstractButton*>(widget());
}

void QtButton::stateDidChange()
{
    if (button() == nullptr || !button()->isCheckable()) return;
    const bool wasBeingShown = std::exchange(_stateIsBeingShown, true);
    button()->setChecked(state() == 1);
    _stateIsBeingShown = wasBeingShown;
}

}  // namespace vantorel
