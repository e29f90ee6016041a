#include "panel/widgets/FormList.h"

#include "hosts/qt/PlainText.h"
#include "hosts/qt/QtColors.h"
#include "hosts/qt/TextScale.h"
#include "panel/widgets/PanelIcons.h"
#include "panel/widgets/StylePainting.h"

#include <QFontDatabase>
#include <QPainter>
#include <QStyle>

namespace vantorel {
namespace {

// In points.
constexpr int formRowPoints = 28;
constexpr int formNameWidth = 48;
constexpr int formNameSize = 11;
constexpr int formTextSize = 11;
constexpr int formIconPoints = 16;
constexpr int formInset = 6;

class FormRow final : public QAbstractButton {
public:
    explicit FormRow(QWidget* parent) : QAbstractButton(parent)
    {
        setFocusPolicy(Qt::TabFocus);
        setAttribute(Qt::WA_Hover);
    }
    void show(const FormList::Row& row)
    {
        if (row.text == _row.text && row.name == _row.name) return;
        _row = row;
        setAccessibleName(row.name);
        setAccessibleDescription(row.text);
        setToolTip(plainToolTip(tr("Copy %1").arg(row.text)));
        update();
    }
    [[nodiscard]] const QString& value() const { return _row.text; }

protected:
    void paintEvent(QPaintEvent*) override
    {
        const ThemeColors colors = themeColors(palette());
        QPainter painter(this);
        const bool isActive = underMouse() || hasFocus();
        if (isDown() || isActive) {
            const QColor ring = hasFocus() ? colors.accent : QColor();
            paintRounded(painter, rect(), rowRadius, isDown() ? colors.down : colors.hover, ring,
                         ringWidth);
        }
        const QRect inside = rect().adjusted(scaled(formInset), 0, -scaled(formInset), 0);
        const int names = scaled(formNameWidth);
        const int icon = scaled(formIconPoints);
        painter.setFont(fontOfSize(formNameSize));
        painter.setPen(colors.text2);
        const auto place = [&](int left, int wide) {
            return QStyle::visualRect(layoutDirection(), inside,
                                      QRect(inside.left() + left, 0, wide, height()));
        };
        painter.drawText(
            place(0, names), Qt::AlignLeading | Qt::AlignVCenter,
            painter.fontMetrics().elidedText(_row.shortName, Qt::ElideRight, names - scaled(4)));
        QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
        fixed.setPixelSize(scaled(formTextSize));
        painter.setFont(fixed);
        painter.setPen(colors.text);
        const int room = inside.width() - names - (isActive ? icon + scaled(4) : 0);
        painter.drawText(place(names, room), Qt::AlignLeading | Qt::AlignVCenter,
                         painter.fontMetrics().elidedText(_row.text, Qt::ElideRight, room));
        if (isActive) {
            QRect at = place(inside.width() - icon, icon);
            at.setTop((height() - icon) / 2);
            at.setHeight(icon);
            copyIcon().paint(&painter, at);
        }
    }

private:
    FormList::Row _row;
};

}  // namespace

FormList::FormList(QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("formList"));
    setAccessibleName(tr("Forms of the colour"));
}

int FormList::rowHeight()
{
    return scaled(formRowPoints);
}

void FormList::setRows(const std::vector<Row>& rows)
{
    while (_buttons.size() < rows.size()) {
        auto* button = new FormRow(this);
        connect(button, &QAbstractButton::clicked, this,
                [this, button] { emit chosen(button->value()); });
        _buttons.push_back(button);
    }
    for (std::size_t i = 0; i < rows.size(); ++i)
        static_cast<FormRow*>(_buttons[i])->show(rows[i]);
    _used = rows.size();
    layOut();
}

void FormList::layOut()
{
    for (std::size_t i = 0; i < _buttons.size(); ++i) {
        const int top = static_cast<int>(i) * rowHeight();
        _buttons[i]->setGeometry(0, top, width(), rowHeight());
        _buttons[i]->setVisible(i < _used && top + rowHeight() <= height());
    }
}

void FormList::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    layOut();
}

}  // namespace vantorel
