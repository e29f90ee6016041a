#include "panel/window/AboutDialog.h"

#include "hosts/qt/PlainText.h"
#include "hosts/qt/QtColors.h"
#include "hosts/qt/TextScale.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QVBoxLayout>

namespace vantorel {

AboutDialog::AboutDialog(QWidget& window) : QDialog(&window)
{
    constexpr int margin = 12;
    constexpr int titleSize = 15;
    constexpr int iconSize = 48;
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(tr("About Vantorel"));
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(scaled(margin), scaled(margin), scaled(margin), scaled(margin));
    rows->setSpacing(scaled(margin));
    auto* picture = new PlainLabel(this);
    picture->setPixmap(window.windowIcon().pixmap(QSize(scaled(iconSize), scaled(iconSize))));
    rows->addWidget(picture);
    auto* title = new PlainLabel(
        QStringLiteral("Vantorel %1").arg(QCoreApplication::applicationVersion()), this);
    QFont font = fontOfSize(titleSize);
    font.setBold(true);
    title->setFont(font);
    rows->addWidget(title);
    rows->addWidget(new PlainLabel(tr("A colour picker for people who write CSS and code."), this));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::close);
    rows->addWidget(buttons);
}

}  // namespace vantorel
