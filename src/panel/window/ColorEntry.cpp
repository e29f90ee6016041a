#include "panel/window/ColorEntry.h"

#include "colormath/NearestNamedColor.h"
#include "csscolor/CSSColorWriter.h"
#include "csscolor/GamutMapping.h"
#include "hosts/qt/DisplayNames.h"
#include "hosts/qt/PlainText.h"
#include "hosts/qt/QtColors.h"
#include "panel/window/FormNames.h"

#include <QActionGroup>
#include <QApplication>

#include <cmath>

namespace vantorel {

ColorEntry::ColorEntry(ColorField& field, ColorFacts& facts, FormList& forms, PanelColors& colors,
                       PanelPages& pages, ColorExchange& exchange)
    : _field(field),
      _facts(facts),
      _forms(forms),
      _colors(colors),
      _exchange(exchange),
      _formMenu(new QMenu(&field)),
      _snippetMenu(new QMenu(tr("More code snippets"), _formMenu))
{
    field.setFormMenu(*_formMenu);
    connect(_formMenu, &QMenu::aboutToShow, this, &ColorEntry::fillFormMenu);
    connect(&field, &ColorField::entered, this, &ColorEntry::read);
    connect(&field, &ColorField::edited, this, &ColorEntry::noteEdit);
    connect(&field, &ColorField::cancelled, this, &ColorEntry::giveUp);
    connect(&field, &ColorField::copyRequested, &exchange, &ColorExchange::copy);
    connect(&forms, &FormList::chosen, &exchange, &ColorExchange::copyText);
    connect(&facts, &ColorFacts::opacityChosen, &colors, &PanelColors::setOpacity);
    // Not when the colour is set: the page that is shown writes its texts.
    connect(&pages, &PanelPages::colorShown, this, &ColorEntry::show);
    connect(&pages, &PanelPages::pageShown, this, &ColorEntry::show);
    connect(&exchange, &ColorExchange::formChanged, this, &ColorEntry::show);
    // A page's settings decide how a colour is written, and pages do not report their changes.
    // Every one of them ends with a button or a key that is let go.
    _settingsMayHaveChanged.setSingleShot(true);
    _settingsMayHaveChanged.setInterval(0);
    connect(&_settingsMayHaveChanged, &QTimer::timeout, this, [this] {
        if (!_field.isEdited() && !_field.hasError()) showTexts();
    });
    qApp->installEventFilter(this);
    show();
}

bool ColorEntry::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonRelease || event->type() == QEvent::KeyRelease)
        _settingsMayHaveChanged.start();
    if (watched == &_forms && event->type() == QEvent::Show) showTexts();
    return QObject::eventFilter(watched, event);
}

void ColorEntry::read(const QString& text)
{
    const ColorOffer offer = colorFromText(text);
    _exchange.takeColor(offer);
    if (!offer.color) _field.setHasError(true);
}

void ColorEntry::noteEdit(const QString& text)
{
    // Half a colour is not an error yet, but one that was reported goes when it is mended.
    if (!_field.hasError() || !colorFromText(text).color) return;
    _field.setHasError(false);
    emit mended();
}

void ColorEntry::giveUp()
{
    show();
    emit mended();
}

void ColorEntry::show()
{
    showTexts();
    showFacts();
}

void ColorEntry::showTexts()
{
    const QString text = _exchange.copiedText();
    _field.setText(text);
    const auto form = _exchange.chosenForm();
    _field.setFormName(form ? shortFormName(*form) : shortFormNameOfText(text));
    if (!_forms.isVisible()) return;
    std::vector<FormList::Row> rows;
    for (const HostColorText& row : _exchange.colorTexts())
        rows.push_back({shownName(row), shortFormName(row), qStringFrom(row.text)});
    _forms.setRows(rows);
}

void ColorEntry::showFacts()
{
    const HostColor color = mappedIntoSRGB(_colors.color());
    QString name;
    if (const auto nearest = nearestNamedColor(color)) {
        const QString found = qStringFrom(nearest->color.name);
        name = isOutsideSRGB(_colors.color()) ? tr("Outside sRGB, nearest: %1").arg(found)
               : nearest->isExact             ? found
                                              : tr("Nearest: %1").arg(found);
    }
    const bool isBackground = _colors.edited() == EditedColor::background;
    _facts.setName(isBackground ? tr("Background: %1").arg(name) : name,
                   name.isEmpty() ? QString() : QStringLiteral("CSS Color 4"));
    const bool showsHex = _field.text().startsWith(u'#');
    _facts.setOtherForm(showsHex ? roundedOklchText(_colors.color())
                                 : qStringFrom(hexText(color).value_or(std::u16string())));
    _facts.setOpacity(static_cast<int>(std::lround(qColorFrom(color).alphaF() * 100)));
}

void ColorEntry::fillFormMenu()
{
    _formMenu->clear();
    auto* group = new QActionGroup(_formMenu);
    const auto add = [&](QMenu& menu, const QString& title, const QString& form) {
        QAction* action = menu.addAction(plainTitle(title));
        action->setCheckable(true);
        action->setChecked(form == _exchange.form());
        group->addAction(action);
        connect(action, &QAction::triggered, this, [this, form] { _exchange.setForm(form); });
    };
    add(*_formMenu, tr("As in the settings of the page"), {});
    _formMenu->addSeparator();
    for (const HostColorText& form : _exchange.colorTexts())
        add(*_formMenu, shownName(form), qStringFrom(form.name));
    const auto others = _exchange.otherSnippetTexts();
    if (others.empty()) return;
    _snippetMenu->clear();
    for (const HostColorText& form : others)
        add(*_snippetMenu, shownName(form), qStringFrom(form.name));
    _formMenu->addMenu(_snippetMenu);
}

}  // namespace vantorel
