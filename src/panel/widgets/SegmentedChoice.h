#pragma once

#include <QIcon>
#include <QWidget>

class QRadioButton;

namespace vantorel {

/// Words or pictures in one frame, of which one is chosen. To assistive technology and the keyboard
/// they are radio buttons.
class SegmentedChoice final : public QWidget {
    Q_OBJECT

public:
    explicit SegmentedChoice(QWidget* parent = nullptr);

    /// `key` identifies the choice.
    void addChoice(const QString& word, const QString& key);
    /// Shows a picture in place of the word, which becomes its tool tip.
    void addChoice(const QIcon& icon, const QString& word, const QString& key);
    /// Chooses without the signal. An unknown key changes nothing.
    void setCurrentKey(const QString& key);
    [[nodiscard]] QString currentKey() const;

signals:
    void chosen(const QString& key);

private:
    QRadioButton* addSegment(const QIcon& icon, const QString& word, const QString& key);

    QList<QRadioButton*> _words;
};

}  // namespace vantorel
