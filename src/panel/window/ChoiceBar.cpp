#include "panel/window/ChoiceBar.h"

#include "hosts/qt/PlainText.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QKeySequence>
#include <QPushButton>

namespace vantorel {
namespace {

QString withKey(const QString& text, const QKeySequence& key)
{
    return QStringLiteral("%1 (%2)").arg(text, key.toString(QKeySequence::NativeText));
}

}  // namespace

ChoiceBar::ChoiceBar(QWidget* parent) : QWidget(parent)
{
    auto* box = new QDialogButtonBox(this);
    QPushButton* chooseButton = box->addButton(tr("Choose"), QDialogButtonBox::AcceptRole);
    QPushButton* cancelButton = box->addButton(QDialogButtonBox::Cancel);
    // Enter in a text field only enters the text and does not end the choice.
    chooseButton->setAutoDefault(false);
    cancelButton->setAutoDefault(false);
    chooseButton->setToolTip(plainToolTip(withKey(tr("Choose"), Qt::CTRL | Qt::Key_Return)));
    cancelButton->setToolTip(
        plainToolTip(withKey(cancelButton->text().remove(u'&'), Qt::Key_Escape)));
    connect(box, &QDialogButtonBox::accepted, this, &ChoiceBar::accepted);
    connect(box, &QDialogButtonBox::rejected, this, &ChoiceBar::rejected);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(10, 2, 10, 6);
    row->addWidget(box);
}

}  // namespace vantorel
