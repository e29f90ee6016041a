#include "hosts/qt-dialog/PageHolder.h"

#include "hosts/common/PageSize.h"
#include "hosts/qt/TextScale.h"

#include <QBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScreen>

#include <algorithm>

namespace vantorel {
namespace {

/// The row with Qt's controls, above its buttons; null if the dialog is laid out otherwise.
QBoxLayout* rowOfControls(const QBoxLayout& whole)
{
    if (whole.direction() != QBoxLayout::TopToBottom || whole.count() < 2) return nullptr;
    auto* row = qobject_cast<QBoxLayout*>(whole.itemAt(0)->layout());
    const bool isRow = row != nullptr && (row->direction() == QBoxLayout::LeftToRight ||
                                          row->direction() == QBoxLayout::RightToLeft);
    return isRow ? row : nullptr;
}

}  // namespace

class PageHolder::Widget final : public QWidget {
public:
    void setOwner(PageHolder* owner) { _owner = owner; }

protected:
    void resizeEvent(QResizeEvent* event) override
    {
        QWidget::resizeEvent(event);
        if (_owner != nullptr) _owner->followWidget();
    }

    void keyPressEvent(QKeyEvent* event) override
    {
        const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
        // Return ends the entry in a field of the page. In the dialog it would press OK.
        if (!isReturn || qobject_cast<QLineEdit*>(focusWidget()) == nullptr) {
            QWidget::keyPressEvent(event);
        }
    }

private:
    PageHolder* _owner = nullptr;
};

PageHolder::PageHolder() : QtMirrored({}, new Widget)
{
    auto* holder = static_cast<Widget*>(widget());
    holder->setOwner(this);
    holder->setObjectName(QStringLiteral("vantorelPage"));
    holder->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
}

bool PageHolder::putInto(QColorDialog& dialog, HostSize preferred, HostSize least)
{
    QLayout* whole = dialog.layout();
    if (whole == nullptr) return false;
    auto* column = qobject_cast<QBoxLayout*>(whole);
    QBoxLayout* row = column != nullptr ? rowOfControls(*column) : nullptr;
    if (row != nullptr) {
        row->insertWidget(0, widget());
    } else if (column != nullptr && column->count() > 0) {
        column->insertWidget(column->count() - 1, widget());
    } else {
        whole->addWidget(widget());
    }
    widget()->setVisible(true);
    ask(preferred, least);
    const double scale = textScale();
    setFrame({0, 0, widget()->minimumWidth() / scale, widget()->minimumHeight() / scale});
    return true;
}

void PageHolder::takeOut()
{
    if (QWidget* shown = widget()) {
        shown->setVisible(false);
        shown->setParent(nullptr);
    }
}

void PageHolder::ask(HostSize wanted, HostSize needed)
{
    QWidget* shown = widget();
    const QWidget* dialog = shown->parentWidget();
    const auto give = [&](HostSize size) {
        shown->setMinimumSize(scaled(size.width), scaled(size.height));
        dialog->layout()->activate();
    };
    give(wanted);
    const QSize spare = dialog->screen()->availableSize() - dialog->layout()->totalMinimumSize();
    const double scale = textScale();
    give(pageSizeWithin({spare.width() / scale, spare.height() / scale}, wanted, needed));
}

HostSize PageHolder::grow(HostSize growth)
{
    QWidget* shown = widget();
    QWidget* dialog = shown != nullptr ? shown->parentWidget() : nullptr;
    if (dialog == nullptr || dialog->layout() == nullptr) return {};
    const HostSize before = frame().size();
    ask({before.width + growth.width, before.height + growth.height}, before);
    const HostSize after = frame().size();
    return {std::max(0.0, after.width - before.width), std::max(0.0, after.height - before.height)};
}

void PageHolder::followWidget()
{
    const double scale = textScale();
    setFrame({0, 0, widget()->width() / scale, widget()->height() / scale});
    if (_sizeDidChange) _sizeDidChange();
}

}  // namespace vantorel
