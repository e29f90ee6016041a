#pragma once

#include "host/HostColor.h"
#include "panel/widgets/QuietLabel.h"

#include <QSlider>

namespace vantorel {

/// Two lines about a colour: its name with the list that it comes from, and another form of it with
/// its opacity. The lines are always there, so that nothing moves.
class ColorFacts final : public QWidget {
    Q_OBJECT

public:
    explicit ColorFacts(QWidget* parent = nullptr);

    /// The height of one line and of both, in pixels.
    [[nodiscard]] static int lineHeight();
    [[nodiscard]] static int heightOfBoth() { return 2 * lineHeight(); }

    void setName(const QString& name, const QString& list);
    void setOtherForm(const QString& text);
    /// In percent.
    void setOpacity(int percent);

signals:
    void opacityChosen(int percent);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void layOut();

    PlainLabel* _name;
    QuietLabel* _list;
    QuietLabel* _otherForm;
    QSlider* _opacity;
    QuietLabel* _percent;
    QString _fullName;
};

}  // namespace vantorel
