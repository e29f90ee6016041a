#include <QApplication>
#include <QColorDialog>

/// Qt's own colour dialog and nothing else.
int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QColorDialog dialog;
    dialog.setOptions(QColorDialog::DontUseNativeDialog | QColorDialog::ShowAlphaChannel);
    dialog.show();
    return QApplication::exec();
}
