#pragma once

#include "color/QTXHexColorSpec.h"
#include "host/HostColor.h"
#include "result/Message.h"
#include "settings/SnippetMerge.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTimer>
#include <QWidget>

#include <functional>

namespace vantorel {

class PlainLabel;
class SnippetSwatch;

/// Edits one snippet, and shows its line for the panel's colour while it is typed. What is typed
/// is entered when the field is left, after a pause, and when another snippet is shown.
class SnippetEditor final : public QWidget {
    Q_OBJECT

public:
    explicit SnippetEditor(QWidget* parent);

    /// Returns why a snippet cannot have a name; an empty message if it can.
    using NameCheck = std::function<Message(const std::u16string& name)>;
    void setNameCheck(NameCheck check) { _checkName = std::move(check); }

    void setColor(const HostColor& color);
    /// Shows a snippet in place of what is typed.
    void setSnippet(const QTXCodeSnippet& snippet);
    /// The snippet as it is typed.
    [[nodiscard]] QTXCodeSnippet snippet() const;
    /// Enters what was typed but not entered yet, unless it is not a snippet.
    void finishEditing();
    /// Puts the focus into the name.
    void editName();

signals:
    void edited(const vantorel::QTXCodeSnippet& snippet);
    void copyRequested(const QString& text);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void showResult();
    void showRemarks();
    /// Returns what prevents the snippet from being kept.
    [[nodiscard]] Message problem() const;

    QLineEdit* _name;
    QComboBox* _values;
    QPlainTextEdit* _format;
    SnippetSwatch* _swatch;
    QPlainTextEdit* _result;
    QWidget* _remarkIcon;
    PlainLabel* _remark;
    NameCheck _checkName;
    /// As it was shown or entered last.
    QTXCodeSnippet _shown;
    QTXHexColorSpec _spec;
    QTimer _pause;
};

/// Returns the line of a snippet for a colour, which is mapped into sRGB.
[[nodiscard]] QTXHexColorSpec specOfColor(const HostColor& color);

}  // namespace vantorel
