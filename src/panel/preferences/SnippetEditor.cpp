#include "panel/preferences/SnippetEditor.h"

#include "csscolor/GamutMapping.h"
#include "hosts/qt/ClipboardLineEdit.h"
#include "hosts/qt/PlainText.h"
#include "hosts/qt/QtColors.h"
#include "hosts/qt/QtMessages.h"
#include "hosts/qt/TextScale.h"
#include "panel/widgets/PanelIcons.h"
#include "panel/widgets/PixelGrid.h"
#include "panel/widgets/QuietLabel.h"
#include "panel/widgets/Swatch.h"
#include "snippets/FormatParts.h"
#include "snippets/FormatPlaces.h"
#include "snippets/SnippetLimits.h"
#include "snippets/SnippetValues.h"

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QPainter>
#include <QPushButton>
#include <QSyntaxHighlighter>
#include <QVBoxLayout>

#include <array>
#include <limits>

namespace vantorel {

/// The panel's colour beside the line.
class SnippetSwatch final : public QWidget {
public:
    explicit SnippetSwatch(QWidget* parent) : QWidget(parent)
    {
        constexpr int size = 20;
        setFixedSize(scaled(size), scaled(size));
    }
    void setColor(const HostColor& color)
    {
        _color = color;
        update();
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        paintSwatch(painter, rect(), _color, themeColors(palette()));
    }

private:
    HostColor _color = HostColor::blackColor();
};

namespace {

/// Which remark is shown, as a picture: a tick or a warning.
class RemarkIcon final : public QWidget {
public:
    explicit RemarkIcon(QWidget* parent) : QWidget(parent)
    {
        constexpr int size = 16;
        setFixedSize(scaled(size), scaled(size));
    }
    void setIsGood(bool isGood)
    {
        _isGood = isGood;
        update();
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        (_isGood ? tickIcon() : warnIcon()).paint(&painter, rect());
    }

private:
    bool _isGood = true;
};

/// Shows the places of a format in bold letters.
class PlaceHighlighter final : public QSyntaxHighlighter {
public:
    using QSyntaxHighlighter::QSyntaxHighlighter;

protected:
    void highlightBlock(const QString& text) override
    {
        QTextCharFormat bold;
        bold.setFontWeight(QFont::Bold);
        const std::u16string line = u16From(text);
        FormatPartReader reader(line, std::numeric_limits<std::size_t>::max());
        for (FormatPart part; reader.next(part);) {
            if (!part.isConversion) continue;
            setFormat(static_cast<int>(part.text.data() - line.data()),
                      static_cast<int>(part.text.size()), bold);
        }
    }
};

/// A text of a file is shown as far as anyone would read it.
constexpr qsizetype longestShownLine = 4000;
constexpr int pauseMilliseconds = 500;
constexpr int editorGap = 4;
constexpr int groupGap = 12;

QFont codeFont()
{
    constexpr int codeSize = 12;
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPixelSize(scaled(codeSize));
    return font;
}

/// Text edits of the editor: the Tab key leaves them, and only plain text gets in.
QPlainTextEdit* newCodeEdit(QWidget* parent, int lines)
{
    auto* edit = new QPlainTextEdit(parent);
    edit->setFont(codeFont());
    edit->setTabChangesFocus(true);
    edit->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    edit->setLayoutDirection(Qt::LeftToRight);
    constexpr int aroundLines = 14;
    edit->setFixedHeight(QFontMetrics(codeFont()).lineSpacing() * lines + scaled(aroundLines));
    return edit;
}

}  // namespace

QTXHexColorSpec specOfColor(const HostColor& color)
{
    QTXHexColorSpec spec;
    spec.setColorHexColorSpec(mappedIntoSRGB(color));
    spec.setAlphaComp(color.alphaComponent());
    return spec;
}

SnippetEditor::SnippetEditor(QWidget* parent)
    : QWidget(parent),
      _name(new ClipboardLineEdit(this)),
      _values(new QComboBox(this)),
      _format(newCodeEdit(this, 4)),
      _swatch(new SnippetSwatch(this)),
      _result(newCodeEdit(this, 3)),
      _remarkIcon(new RemarkIcon(this)),
      _remark(new PlainLabel(this))
{
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(scaled(editorGap));
    const auto addField = [&](const QString& name, QWidget& field) {
        auto* label = new QuietLabel(name, this);
        label->setBuddy(&field);
        field.setAccessibleName(name);
        rows->addWidget(label);
        rows->addWidget(&field);
        rows->addSpacing(scaled(groupGap - editorGap));
    };
    _name->setObjectName(QStringLiteral("snippetName"));
    addField(tr("Name"), *_name);
    _values->setObjectName(QStringLiteral("snippetValues"));
    const std::array<std::pair<const char*, QString>, 7> forms{{
        {"rgbFixed", tr("Red, green, blue from 0 to 255")},
        {"rgbaFixed", tr("Red, green, blue, opacity from 0 to 255")},
        {"rgbFixedAlphaFloat", tr("Red, green, blue to 255, opacity to 1")},
        {"rgbFloats", tr("Red, green, blue from 0 to 1")},
        {"rgbaFloats", tr("Red, green, blue, opacity from 0 to 1")},
        {"rgbPackedInt", tr("One number: RRGGBB")},
        {"rgbaPackedInt", tr("One number: AARRGGBB")},
    }};
    for (const auto& [form, name] : forms)
        _values->addItem(name, QString::fromLatin1(form));
    _values->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    addField(tr("Values"), *_values);
    _format->setObjectName(QStringLiteral("snippetFormat"));
    new PlaceHighlighter(_format->document());
    addField(tr("Format"), *_format);
    auto* heading = new QWidget(this);
    auto* beside = new QHBoxLayout(heading);
    beside->setContentsMargins(0, 0, 0, 0);
    auto* title = new QuietLabel(tr("With this colour"), heading);
    title->setBuddy(_result);
    beside->addWidget(title, 1);
    beside->addWidget(_swatch);
    rows->addWidget(heading);
    _result->setObjectName(QStringLiteral("snippetResult"));
    _result->setAccessibleName(tr("With this colour"));
    _result->setReadOnly(true);
    rows->addWidget(_result);

    auto* last = new QHBoxLayout;
    last->setSpacing(scaled(editorGap));
    _remark->setObjectName(QStringLiteral("snippetRemark"));
    _remark->setWordWrap(true);
    auto* copy = new QPushButton(copyIcon(), tr("Copy"), this);
    copy->setObjectName(QStringLiteral("copySnippet"));
    copy->setAutoDefault(false);
    last->addWidget(_remarkIcon, 0, Qt::AlignTop);
    last->addWidget(_remark, 1, Qt::AlignTop);
    last->addWidget(copy, 0, Qt::AlignTop);
    rows->addLayout(last);
    rows->addStretch();

    _pause.setSingleShot(true);
    _pause.setInterval(pauseMilliseconds);
    connect(&_pause, &QTimer::timeout, this, &SnippetEditor::finishEditing);
    const auto noteEdit = [this] {
        showResult();
        _pause.start();
    };
    connect(_name, &QLineEdit::textEdited, this, noteEdit);
    connect(_name, &QLineEdit::editingFinished, this, &SnippetEditor::finishEditing);
    connect(_values, &QComboBox::activated, this, [this] {
        showResult();
        finishEditing();
    });
    connect(_format, &QPlainTextEdit::textChanged, this, noteEdit);
    _format->installEventFilter(this);
    connect(copy, &QPushButton::clicked, this,
            [this] { emit copyRequested(qStringFrom(snippet().codeSnippetWithColorSpec(_spec))); });
    setColor(HostColor::blackColor());
}

void SnippetEditor::setColor(const HostColor& color)
{
    _spec = specOfColor(color);
    _swatch->setColor(color);
    showResult();
}

void SnippetEditor::setSnippet(const QTXCodeSnippet& snippet)
{
    _pause.stop();
    _shown = snippet;
    const QString name = qStringFrom(snippet.nameSnippet().value_or(u""));
    const QString format = qStringFrom(snippet.formatStringSnippet().value_or(u""));
    // Setting a text moves the insertion point and forgets what can be undone.
    if (_name->text() != name) _name->setText(name);
    if (_format->toPlainText() != format) {
        const QSignalBlocker blocker(_format);
        _format->setPlainText(format);
    }
    _values->setCurrentIndex(
        _values->findData(qStringFrom(snippet.varFormSnippet().value_or(u""))));
    showResult();
}

QTXCodeSnippet SnippetEditor::snippet() const
{
    return {u16From(_name->text().trimmed()), u16From(_format->toPlainText()),
            u16From(_values->currentData().toString())};
}

void SnippetEditor::finishEditing()
{
    _pause.stop();
    const QTXCodeSnippet typed = snippet();
    if (typed == _shown || !problem().what.isEmpty()) return;
    _shown = typed;
    emit edited(typed);
}

void SnippetEditor::editName()
{
    _name->setFocus();
    _name->selectAll();
}

bool SnippetEditor::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusOut) finishEditing();
    return QWidget::eventFilter(watched, event);
}

void SnippetEditor::showResult()
{
    const QString line = qStringFrom(snippet().codeSnippetWithColorSpec(_spec));
    _result->setPlainText(line.left(longestShownLine));
    showRemarks();
}

Message SnippetEditor::problem() const
{
    const QTXCodeSnippet typed = snippet();
    if (typed.nameSnippet()->empty()) return {phrase("give the snippet a name")};
    if (typed.nameSnippet() != _shown.nameSnippet() && _checkName) {
        if (Message taken = _checkName(*typed.nameSnippet()); !taken.what.isEmpty()) return taken;
    }
    if (typed.formatStringSnippet()->empty()) return {phrase("write a format")};
    return {};
}

void SnippetEditor::showRemarks()
{
    QStringList sentences;
    const QTXCodeSnippet typed = snippet();
    if (const Message first = problem(); !first.what.isEmpty())
        sentences.append(translatedSentence(first));
    const std::vector<Message> misfits = misfitsOfFormat(typed);
    for (const Message& misfit : misfits)
        sentences.append(translatedSentence(misfit));
    const bool isGood = sentences.isEmpty();
    if (isGood) {
        sentences.append(tr("Every value has its place."));
        // The format can be written but perhaps not read back.
        const SnippetReaders readers({typed});
        for (const Phrase& limit : snippetLimits(readers, 0))
            sentences.append(translatedSentence({limit}));
    }
    static_cast<RemarkIcon*>(_remarkIcon)->setIsGood(isGood);
    _remark->setText(sentences.join(u'\n'));
}

}  // namespace vantorel
