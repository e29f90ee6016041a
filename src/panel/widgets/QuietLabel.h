#pragma once

#include "hosts/qt/PlainText.h"

namespace vantorel {

/// A label for what matters less, in the second text colour of the theme.
class QuietLabel final : public PlainLabel {
    Q_OBJECT

public:
    explicit QuietLabel(const QString& text, QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;

private:
    void applyColor();

    bool _isApplying = false;
};

}  // namespace vantorel
