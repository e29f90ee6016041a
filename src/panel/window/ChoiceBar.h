#pragma once

#include <QWidget>

namespace vantorel {

/// The buttons at the bottom of a panel that was opened to choose one colour: Choose and Cancel.
class ChoiceBar final : public QWidget {
    Q_OBJECT

public:
    explicit ChoiceBar(QWidget* parent);

signals:
    void accepted();
    void rejected();
};

}  // namespace vantorel
