#include "panel/widgets/ColorField.h"

#include "hosts/qt/PlainText.h"
#include "hosts/qt/QtColors.h"
#include "hosts/qt/QtToolButton.h"
#include "hosts/qt/TextScale.h"
#include "panel/widgets/PanelIcons.h"
#include "panel/widgets/StylePainting.h"

#include <QFontDatabase>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QPainter>
#include <QStyle>

#include <array>
#include <utility>

namespace vantorel {
namespace {

// In points.
constexpr std::array entrySizes{15, 13, 12};
constexpr int formSize = 11;
constexpr int iconSize = 16;
constexpr int buttonWidth = 28;
constexpr int arrowWidth = 22;
constexpr int textMargin = 6;

QFont entryFont(int points)
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPixelSize(scaled(points));
    return font;
}

QToolButton* newFieldButton(QWidget* parent)
{
    auto* button = new QtToolButton(parent);
    button->setIconSize(QSize(scaled(iconSize), scaled(iconSize)));
    return button;
}

}  // namespace

ColorField::ColorField(QWidget* parent)
    : QWidget(parent),
      _form(newFieldButton(this)),
      _edit(new ClipboardLineEdit(this)),
      _copy(newFieldButton(this)),
      _copyMenu(newFieldButton(this))
{
    setObjectName(QStringLiteral("colorField"));
    _form->setPopupMode(QToolButton::InstantPopup);
    _form->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    _form->setLayoutDirection(Qt::RightToLeft);
    _form->setFont(fontOfSize(formSize));
    _form->setIcon(downIcon());
    _form->setToolTip(tr("Form of the text, and of copies"));
    _form->setAccessibleName(tr("Form of the text, and of copies"));
    _edit->setFrame(false);
    _edit->setObjectName(QStringLiteral("colorText"));
    _edit->setToolTip(tr("Type or paste a colour in any form"));
    _edit->setAccessibleName(tr("Colour as a text"));
    _edit->setLayoutDirection(Qt::LeftToRight);
    _edit->installEventFilter(this);
    QPalette clear = _edit->palette();
    clear.setColor(QPalette::Base, Qt::transparent);
    _edit->setPalette(clear);
    _copyMenu->setIcon(downIcon());
    _copyMenu->setPopupMode(QToolButton::InstantPopup);
    _copyMenu->setToolTip(tr("Copy as"));
    _copyMenu->setAccessibleName(tr("Copy as"));
    connect(_edit, &QLineEdit::returnPressed, this, &ColorField::finishEditing);
    connect(_edit, &QLineEdit::textEdited, this, [this](const QString& text) {
        layOut();
        emit edited(text);
    });
}

void ColorField::setText(const QString& text)
{
    setHasError(false);
    if (text == _edit->text()) {
        _edit->setModified(false);
        return;
    }
    _edit->setText(text);
    // The beginning counts if there is not room for all.
    _edit->setCursorPosition(0);
    layOut();
}

QString ColorField::text() const
{
    return _edit->text();
}

void ColorField::setFormName(const QString& name)
{
    if (name == _formName) return;
    _formName = name;
    layOut();
}

void ColorField::setCopyActions(QAction& copy, QMenu& copyMenu)
{
    _copy->setDefaultAction(&copy);
    _copy->setAccessibleName(copy.text());
    _copyMenu->setMenu(&copyMenu);
}

void ColorField::setHasError(bool hasError)
{
    if (hasError == _hasError) return;
    _hasError = hasError;
    update();
}

void ColorField::setNames(std::vector<NameCompletion::Row> names)
{
    if (_completion == nullptr) {
        _completion = new NameCompletion(*_edit);
        // Before the completer, which hides from others that the field is left while it shows
        // names.
        _edit->removeEventFilter(this);
        _edit->installEventFilter(this);
        connect(_completion, &NameCompletion::chosen, this, [this](const QString& name) {
            _edit->setModified(false);
            emit entered(name);
        });
    }
    _completion->setRows(std::move(names));
}

void ColorField::finishEditing()
{
    // An error stays reported until the text is another one.
    if (!_edit->isModified()) return;
    _edit->setModified(false);
    emit entered(_edit->text());
}

bool ColorField::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
        case QEvent::FocusIn:
            update();
            break;
        case QEvent::FocusOut:
            update();
            // A menu of the field itself does not leave it.
            if (static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason) finishEditing();
            break;
        case QEvent::ShortcutOverride:
        case QEvent::KeyPress: {
            auto* key = static_cast<QKeyEvent*>(event);
            const bool cancels = key->key() == Qt::Key_Escape && (_edit->isModified() || _hasError);
            const bool copies = key->matches(QKeySequence::Copy) && !_edit->hasSelectedText();
            if (!cancels && !copies) break;
            event->accept();
            if (event->type() == QEvent::KeyPress)
                cancels ? emit cancelled() : emit copyRequested();
            return true;
        }
        default:
            break;
    }
    return QWidget::eventFilter(watched, event);
}

void ColorField::paintEvent(QPaintEvent*)
{
    const ThemeColors colors = themeColors(palette());
    QPainter painter(this);
    const bool isStrong = _hasError || _edit->hasFocus();
    const QColor edge = _hasError ? colors.error : _edit->hasFocus() ? colors.accent : colors.edge;
    paintRounded(painter, rect(), controlRadius, colors.base, edge, isStrong ? ringWidth : 1);
    // Divides the form from the text.
    const int x = isRightToLeft() ? _form->x() - 1 : _form->geometry().right() + 1;
    const int inset = scaled(8);
    if (!_form->text().isEmpty()) painter.fillRect(x, inset, 1, height() - 2 * inset, colors.line);
}

void ColorField::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    layOut();
}

void ColorField::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange) layOut();
}

void ColorField::layOut()
{
    // Until it has its place, no text fits, and every size would be tried; opening a font takes
    // time.
    if (!testAttribute(Qt::WA_Resized)) return;
    const int edge = scaled(3);
    const int arrow = scaled(arrowWidth);
    const int copy = scaled(buttonWidth);
    const int named = QFontMetrics(_form->font()).horizontalAdvance(_formName) + arrow + scaled(8);
    const auto textWidth = [this](int points) {
        return QFontMetrics(entryFont(points)).horizontalAdvance(_edit->text()) +
               2 * scaled(textMargin);
    };
    const auto room = [&](int form, int buttons) { return width() - 2 * edge - form - buttons; };
    const bool hasName = !_formName.isEmpty();
    // What gives way first: the menu of other forms, which the panel's menu has too, then the
    // form's name, then the size of the text.
    struct Try {
        bool name;
        bool menu;
        int size;
    };
    constexpr std::array tries{Try{true, true, entrySizes[0]},   Try{true, false, entrySizes[0]},
                               Try{false, false, entrySizes[0]}, Try{true, false, entrySizes[1]},
                               Try{false, false, entrySizes[1]}, Try{false, false, entrySizes[2]}};
    Try chosen = tries.back();
    for (const Try& next : tries) {
        const int form = next.name && hasName ? named : arrow;
        if (textWidth(next.size) > room(form, copy + (next.menu ? arrow : 0))) continue;
        chosen = next;
        break;
    }
    const int form = chosen.name && hasName ? named : arrow;
    _form->setText(chosen.name ? plainTitle(_formName) : QString());
    _copyMenu->setVisible(chosen.menu);
    _edit->setFont(entryFont(chosen.size));

    const int buttonHeight = height() - 2 * edge;
    int right = width() - edge;
    const auto place = [&](QWidget& widget, int left, int wide) {
        widget.setGeometry(
            QStyle::visualRect(layoutDirection(), rect(), QRect(left, edge, wide, buttonHeight)));
    };
    if (chosen.menu) {
        right -= arrow;
        place(*_copyMenu, right, arrow);
    }
    right -= copy;
    place(*_copy, right, copy);
    // The text of the button begins at its edge.
    place(*_form, chosen.name && hasName ? scaled(textMargin) : edge, form);
    const int textLeft = edge + form + scaled(textMargin);
    place(*_edit, textLeft, right - textLeft);
    update();
}

}  // namespace vantorel
