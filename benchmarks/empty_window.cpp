/*
 * The baseline for the start of the dashboard: an empty main window of the same size. With the
 * argument --with-field the window contains a text field with the focus. This is the baseline for
 * the load of an idle program, in which the cursor blinks.
 */
#include <QApplication>
#include <QLineEdit>
#include <QMainWindow>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QMainWindow window;
    window.setWindowTitle(QLatin1String("Empty"));
    window.resize(900, 700);
    if (application.arguments().contains(QLatin1String("--with-field"))) {
        window.setCentralWidget(new QLineEdit);
        window.centralWidget()->setFocus();
    }
    window.show();
    return QApplication::exec();
}
