/*
 * The baseline for the dashboard's start-up time: an empty main window of the same size. With the
 * argument --with-field, the window contains a focused text field with a blinking cursor and is the
 * baseline for the CPU load of an idle program.
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
