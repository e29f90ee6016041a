#include "panel/preferences/GeneralPreferences.h"

#include "hosts/qt/QtColors.h"
#include "hosts/qt/QtMessages.h"
#include "hosts/qt/TextScale.h"
#include "panel/preferences/PanelPreferences.h"
#include "panel/widgets/PanelTheme.h"
#include "panel/widgets/QuietLabel.h"
#include "panel/widgets/SegmentedChoice.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QKeySequenceEdit>
#include <QLocale>
#include <QSignalBlocker>

namespace vantorel {
namespace {

constexpr int textSizes[]{100, 125, 150, 175, 200, 250, 300};

}  // namespace

GeneralPreferences::GeneralPreferences(PanelPreferences& preferences, QWidget* parent)
    : QWidget(parent),
      _preferences(preferences),
      _rows(new QGridLayout(this)),
      _theme(new SegmentedChoice(this)),
      _desktopStyle(new QCheckBox(tr("Use the desktop's own controls and colours"), this)),
      _textSize(new QComboBox(this)),
      _afterPicking(new QComboBox(this)),
      _average(new SegmentedChoice(this))
{
    constexpr int gap = 8;
    constexpr int besideNames = 12;
    _rows->setContentsMargins(0, 0, 0, 0);
    _rows->setVerticalSpacing(scaled(gap));
    _rows->setHorizontalSpacing(scaled(besideNames));
    _rows->setColumnStretch(1, 1);
    addTheme();
    addTextSize();
    addRule();
    addPicking();
    showPreferences();
    connect(&_preferences, &PanelPreferences::changed, this, &GeneralPreferences::showPreferences);
}

void GeneralPreferences::addRow(const QString& name, QWidget& control)
{
    const int row = _rows->rowCount();
    _rows->addWidget(&control, row, 1);
    if (name.isEmpty()) return;
    auto* label = new QuietLabel(name, this);
    label->setBuddy(&control);
    control.setAccessibleName(name);
    _rows->addWidget(label, row, 0, Qt::AlignTrailing | Qt::AlignVCenter);
}

void GeneralPreferences::addRule()
{
    auto* rule = new QFrame(this);
    rule->setFrameShape(QFrame::HLine);
    _rows->addWidget(rule, _rows->rowCount(), 0, 1, 2);
}

QLabel* GeneralPreferences::addNote(const QString& text)
{
    constexpr int smallText = 11;
    auto* note = new QuietLabel(text, this);
    note->setFont(fontOfSize(smallText));
    note->setWordWrap(true);
    _rows->addWidget(note, _rows->rowCount(), 1);
    return note;
}

void GeneralPreferences::addTheme()
{
    _theme->setObjectName(QStringLiteral("theme"));
    _theme->addChoice(tr("Automatic"), QStringLiteral("auto"));
    _theme->addChoice(tr("Light"), QStringLiteral("light"));
    _theme->addChoice(tr("Dark"), QStringLiteral("dark"));
    _theme->addChoice(tr("Contrast"), QStringLiteral("contrast"));
    addRow(tr("Theme"), *_theme);
    _desktopStyle->setObjectName(QStringLiteral("desktopStyle"));
    addRow({}, *_desktopStyle);
    connect(_theme, &SegmentedChoice::chosen, this, [this](const QString& theme) {
        _preferences.setTheme(theme);
        changeTheme();
    });
    connect(_desktopStyle, &QCheckBox::toggled, this, [this](bool uses) {
        _preferences.setUsesDesktopStyle(uses);
        changeTheme();
    });
}

void GeneralPreferences::addTextSize()
{
    _textSize->setObjectName(QStringLiteral("textSize"));
    _textSize->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    for (const int percent : textSizes)
        _textSize->addItem(tr("%1 %").arg(QLocale().toString(percent)), percent);
    addRow(tr("Text size"), *_textSize);
    addNote(tr("Takes effect at the next start of the panel"));
    connect(_textSize, &QComboBox::activated, this,
            [this](int index) { _preferences.setTextSize(_textSize->itemData(index).toInt()); });
}

void GeneralPreferences::addPicking()
{
    _afterPicking->setObjectName(QStringLiteral("afterPicking"));
    const auto offer = [this](const QString& text, AfterPicking after) {
        _afterPicking->addItem(text, static_cast<int>(after));
    };
    offer(tr("Show the colour"), AfterPicking::shows);
    offer(tr("Copy the colour and stay"), AfterPicking::copies);
    offer(tr("Copy the colour and minimise the panel"), AfterPicking::copiesHides);
    addRow(tr("After picking"), *_afterPicking);
    _average->setObjectName(QStringLiteral("average"));
    for (const int side : averagedSides) {
        const QString number = QLocale().toString(side);
        _average->addChoice(side == 1 ? number : tr("%1×%1").arg(number), QString::number(side));
    }
    addRow(tr("Pick the average of"), *_average);
    addNote(tr("Pixels of the screen. Where only the desktop can pick, it picks one pixel."));
    connect(_afterPicking, &QComboBox::activated, this, [this](int index) {
        _preferences.setAfterPicking(
            static_cast<AfterPicking>(_afterPicking->itemData(index).toInt()));
    });
    connect(_average, &SegmentedChoice::chosen, this,
            [this](const QString& side) { _preferences.setAveragedSide(side.toInt()); });
}

void GeneralPreferences::addResidence()
{
    _residence = new QCheckBox(tr("Stay resident, with a tray icon"), this);
    _residence->setObjectName(QStringLiteral("residence"));
    _residence->setChecked(_preferences.staysResident());
    addRow({}, *_residence);
    connect(_residence, &QCheckBox::toggled, &_preferences, &PanelPreferences::setStaysResident);
}

void GeneralPreferences::addShortcut()
{
    _shortcut = new QKeySequenceEdit(this);
    _shortcut->setObjectName(QStringLiteral("pickShortcut"));
    _shortcut->setClearButtonEnabled(true);
    addRow(tr("Pick from anywhere"), *_shortcut);
    _shortcutNote = addNote({});
    _shortcutNote->setObjectName(QStringLiteral("pickShortcutNote"));
    showShortcut();
    connect(_shortcut, &QKeySequenceEdit::keySequenceChanged, this,
            [this](const QKeySequence& keys) {
                // One key, not several after each other.
                const QKeySequence first = keys.isEmpty() ? keys : QKeySequence(keys[0]);
                _preferences.setPickShortcut(first.toString(QKeySequence::PortableText));
            });
}

void GeneralPreferences::showShortcut()
{
    const QKeySequence keys =
        QKeySequence::fromString(_preferences.pickShortcut(), QKeySequence::PortableText);
    const QSignalBlocker blocker(_shortcut);
    if (_shortcut->keySequence() != keys) _shortcut->setKeySequence(keys);
    _shortcut->setEnabled(_preferences.staysResident());
    const QString problem = translatedSentence(_preferences.shortcutProblem());
    _shortcutNote->setText(!_preferences.staysResident()
                               ? tr("Works while the panel stays resident.")
                           : problem.isEmpty() ? tr("Press the keys, such as Ctrl+Alt+C.")
                                               : problem);
    // Screen readers read it with the field.
    _shortcut->setAccessibleDescription(_shortcutNote->text());
}

void GeneralPreferences::showPreferences()
{
    const QSignalBlocker blocker(_desktopStyle);
    if (_residence != nullptr) _residence->setChecked(_preferences.staysResident());
    if (_shortcut != nullptr) showShortcut();
    _theme->setCurrentKey(_preferences.theme());
    _theme->setEnabled(!_preferences.usesDesktopStyle());
    _desktopStyle->setChecked(_preferences.usesDesktopStyle());
    _afterPicking->setCurrentIndex(
        _afterPicking->findData(static_cast<int>(_preferences.afterPicking())));
    _average->setCurrentKey(QString::number(_preferences.averagedSide()));
    _textSize->setCurrentIndex(_textSize->findData(_preferences.textSize()));
}

void GeneralPreferences::changeTheme()
{
    applyTheme(_preferences.themeInForce());
}

}  // namespace vantorel
