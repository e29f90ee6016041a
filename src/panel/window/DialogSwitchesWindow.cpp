#include "panel/window/DialogSwitchesWindow.h"

#include "hosts/qt/QtColors.h"
#include "hosts/qt/QtMessages.h"
#include "hosts/qt/TextScale.h"

#include <QDialogButtonBox>
#include <QSignalBlocker>
#include <QStyle>
#include <QVBoxLayout>

namespace vantorel {
namespace {

constexpr int usualWidth = 360;
constexpr int stateTextSize = 11;

}  // namespace

DialogSwitchesWindow::DialogSwitchesWindow(QWidget& panel)
    : QDialog(&panel), _places(userDialogSwitchPlaces(_files)), _message(new MessageLabel(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(tr("Dialogs of other programs"));
    auto* rows = new QVBoxLayout(this);
    auto* purpose = new PlainLabel(this);
    purpose->setWordWrap(true);
    purpose->setText(
        tr("The page of this panel can be in the colour dialogs of other programs, "
           "beside their own controls. A switch changes only your own settings, and "
           "takes all of it back when you turn it off."));
    rows->addWidget(purpose);
    rows->addSpacing(scaled(6));
    const int indent = style()->pixelMetric(QStyle::PM_IndicatorWidth) +
                       style()->pixelMetric(QStyle::PM_CheckBoxLabelSpacing);
    for (const DialogPrograms programs : allDialogPrograms) {
        auto* box = new QCheckBox(plainTitle(titleOf(programs)), this);
        const std::string_view key = keyOf(programs);
        box->setObjectName(QString::fromUtf8(key.data(), static_cast<qsizetype>(key.size())));
        auto* state = new PlainLabel(this);
        state->setFont(fontOfSize(stateTextSize));
        state->setIndent(indent);
        state->setWordWrap(true);
        connect(box, &QCheckBox::toggled, this, [this, programs](bool on) { turn(programs, on); });
        rows->addWidget(box);
        rows->addWidget(state);
        _rows.push_back({programs, box, state});
    }
    rows->addStretch();
    rows->addWidget(_message);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    rows->addWidget(buttons);
    resize(scaled(usualWidth), sizeHint().height());
    if (_places) {
        showStates();
    } else {
        for (const Row& row : _rows)
            row.box->setEnabled(false);
        _message->showMessage(_places.error(), MessageLabel::Kind::failure);
    }
}

QString DialogSwitchesWindow::titleOf(DialogPrograms programs) const
{
    switch (programs) {
        case DialogPrograms::qt:
            return tr("Programs made with Qt 5 or Qt 6");
        case DialogPrograms::gtk:
            return tr("Programs made with GTK 3");
        case DialogPrograms::gimp:
            break;
    }
    return QStringLiteral("GIMP");
}

void DialogSwitchesWindow::turn(DialogPrograms programs, bool on)
{
    const Status turned = turnDialogs(_files, *_places, {programs}, on);
    if (turned) {
        _message->showMessages({}, MessageLabel::Kind::news);
    } else {
        _message->showMessage(turned.error(), MessageLabel::Kind::failure);
    }
    showStates();
}

void DialogSwitchesWindow::showStates()
{
    for (const Row& row : _rows) {
        const auto state = DialogSwitch::create(row.programs, _files, *_places)->state();
        const QSignalBlocker blocker(row.box);
        row.box->setChecked(isOn(state));
        row.box->setEnabled(canTurnOn(state));
        row.state->setText(translated(Message{sentenceOf(row.programs, state)}));
        row.box->setAccessibleDescription(row.state->text());
    }
}

}  // namespace vantorel
