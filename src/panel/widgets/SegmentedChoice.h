#pragma once

#include <QWidget>

class QRadioButton;

namespace vantorel {

/// Words in one frame, of which one is chosen. To assistive technology and the keyboard they are
/// radio buttons.
class SegmentedChoice final : public QWidget {
    Q_OBJECT

public:
    explicit SegmentedChoice(QWidget* parent = nullptr);

    /// `key` identifies the choice.
    void addChoice(const QString& word, const QString& key);
    /// Chooses without the signal. An unknown key changes nothing.
    void setCurrentKey(const QString& key);
    [[nodiscard]] QString currentKey() const;

signals:
    void chosen(const QString& key);

private:
    QList<QRadioButton*> _words;
};

}  // namespace vantorel
