#pragma once

#include "dialogswitch/DialogSwitch.h"
#include "hosts/qt/PlainText.h"
#include "panel/widgets/MessageLabel.h"

#include <QCheckBox>
#include <QDialog>

#include <vector>

namespace vantorel {

/// The switches that put the page into the colour dialogs of other programs, as the command
/// "vantorel dialogs" does. A change takes effect at once. The window deletes itself when it is
/// closed.
class DialogSwitchesWindow final : public QDialog {
    Q_OBJECT

public:
    explicit DialogSwitchesWindow(QWidget& panel);

private:
    struct Row {
        DialogPrograms programs;
        QCheckBox* box;
        PlainLabel* state;
    };

    [[nodiscard]] QString titleOf(DialogPrograms programs) const;
    void turn(DialogPrograms programs, bool on);
    void showStates();

    PosixFiles _files;
    Result<DialogSwitchPlaces> _places;
    std::vector<Row> _rows;
    MessageLabel* _message;
};

}  // namespace vantorel
