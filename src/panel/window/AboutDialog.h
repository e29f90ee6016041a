#pragma once

#include <QDialog>

namespace vantorel {

/// Names the program and its version. The dialog deletes itself when it is closed.
class AboutDialog final : public QDialog {
    Q_OBJECT

public:
    explicit AboutDialog(QWidget& window);
};

}  // namespace vantorel
