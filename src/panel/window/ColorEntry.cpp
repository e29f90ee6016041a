#include "panel/window/ColorEntry.h"

#include "colortext/ColorTextReader.h"
#include "csscolor/CSSNamedColors.h"
#include "csscolor/GamutMapping.h"
#include "hosts/qt/DisplayNames.h"
#include "hosts/qt/PlainText.h"
#include "hosts/qt/QtColors.h"
#include "panel/widgets/CodeWithOpacity.h"
#include "panel/window/FormNames.h"
#include "result/HarmlessLine.h"

#include <QActionGroup>
#include <QApplication>
#include <QSet>

#include <algorithm>
#include <cmath>

namespace vantorel {
namespace {

/// More of a name is not shown; files of others can have names of any length.
constexpr qsizetype longestShownName = 200;

/// Whether a text may be the name of a colour. A code, and what CSS reads as anything but one of
/// its names, is a colour of its own, whatever lists call by it.
bool mayBeName(const QString& text)
{
    const std::u16string trimmedText = u16From(text.trimmed());
    if (cssNamedColor(trimmedText)) return true;
    return !readPlainHex(text.trimmed().toStdString()) && !readCSSColor(trimmedText);
}

/// Whether a text that is not a colour looks like a name, and not like a form of CSS or code.
bool looksLikeName(const QString& text)
{
    const QString name = text.trimmed();
    return !name.isEmpty() && name.front().isLetter() && std::ranges::all_of(name, [](QChar c) {
        return c.isLetterOrNumber() || c.isMark() || QStringLiteral(" -_'.&").contains(c);
    });
}

}  // namespace

ColorEntry::ColorEntry(ColorField& field, ColorFacts& facts, FormList& forms, PanelColors& colors,
                       PanelPages& pages, ColorExchange& exchange, ColorNames& names)
    : _field(field),
      _facts(facts),
      _forms(forms),
      _colors(colors),
      _exchange(exchange),
      _names(names),
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
    // A page's settings decide how a colour is written, and settings and lists how it is called.
    // Their changes are not reported, but each ends with a button or a key that is let go, with a
    // drop, or in another program.
    _settingsMayHaveChanged.setSingleShot(true);
    _settingsMayHaveChanged.setInterval(0);
    connect(&_settingsMayHaveChanged, &QTimer::timeout, this, [this] {
        if (!_field.isEdited() && !_field.hasError()) showTexts();
        showFacts();
    });
    qApp->installEventFilter(this);
    show();
}

bool ColorEntry::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
        case QEvent::MouseButtonRelease:
        case QEvent::KeyRelease:
        case QEvent::Drop:
        case QEvent::ApplicationActivate:
            _settingsMayHaveChanged.start();
            break;
        default:
            break;
    }
    if (watched == &_forms && event->type() == QEvent::Show) showTexts();
    return QObject::eventFilter(watched, event);
}

ColorOffer ColorEntry::offerOf(const QString& text, ColorNames::Reach reach)
{
    if (mayBeName(text)) {
        if (const auto color = _names.colorNamed(u16From(text), reach)) return {color, {}};
    }
    ColorOffer offer = colorFromText(text);
    if (!offer.color && looksLikeName(text)) {
        offer.message = {
            phrase("no colour list has the name \"%1\"", excerpt(text.trimmed().toStdString())),
            phrase("write a name of a list or of CSS, or a colour such as \"#ff8000\"")};
    }
    return offer;
}

void ColorEntry::read(const QString& text)
{
    const ColorOffer offer = offerOf(text, ColorNames::Reach::allLists);
    _exchange.takeColor(offer);
    if (!offer.color) _field.setHasError(true);
}

void ColorEntry::noteEdit(const QString& text)
{
    if (!text.isEmpty() && text.front().isLetter()) offerNames();
    // Half a colour is not an error yet, but one that was reported goes when it is mended.
    if (!_field.hasError() || !offerOf(text, ColorNames::Reach::chosenLists).color) return;
    _field.setHasError(false);
    emit mended();
}

void ColorEntry::offerNames()
{
    OfferedLists lists;
    for (auto& list : _names.chosenLists())
        lists.emplace_back(list, list->revision());
    if (lists == _offered) return;
    std::vector<NameCompletion::Row> rows;
    QSet<QString> taken;
    // Of names that differ only in their case, the first is the one that is read.
    const auto add = [&](QString name, const HostColor& color) {
        if (name.isEmpty() || name.size() > longestShownName || name.front() == u'#') return;
        const QString key = name.toLower();
        if (taken.contains(key)) return;
        taken.insert(key);
        rows.push_back({std::move(name), color});
    };
    for (const auto& [list, revision] : lists) {
        for (std::size_t i = 0; i < list->allKeys().size(); ++i)
            if (list->hasColorAtIndex(i))
                add(qStringFrom(list->allKeys()[i]), list->colorAtIndex(i));
    }
    for (const CSSNamedColor& named : cssNamedColors())
        add(qStringFrom(named.name), hostColorFrom(QColor(named.value)));
    _offered = std::move(lists);
    _field.setNames(std::move(rows));
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
    QString list;
    if (const auto found = _names.nameOf(color)) {
        const QString shown = qStringFrom(found->name).left(longestShownName);
        name = isOutsideSRGB(_colors.color()) ? tr("Outside sRGB, nearest: %1").arg(shown)
               : found->isExact               ? shown
                                              : tr("Nearest: %1").arg(shown);
        list = qStringFrom(found->list).left(longestShownName);
    }
    const bool isBackground = _colors.edited() == EditedColor::background;
    _facts.setName(isBackground ? tr("Background: %1").arg(name) : name, list);
    // Whatever is being typed.
    const bool showsHex = shortFormNameOfText(_exchange.copiedText()) == QLatin1String("HEX");
    _facts.setOtherForm(showsHex ? roundedOklchText(_colors.color()) : plainHexCode(color));
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
