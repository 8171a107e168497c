/*
 * The baseline for the start-up time of the dashboard: an empty main window of the same size. With
 * the argument --with-field, the window contains a text field with the focus and a blinking cursor.
 * This is the baseline for the CPU load of an idle program.
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
