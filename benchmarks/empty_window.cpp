/*
 * What the start of the dashboard is measured against: a main window of the same size, and nothing
 * in it.
 */
#include <QApplication>
#include <QMainWindow>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QMainWindow window;
    window.setWindowTitle(QLatin1String("Empty"));
    window.resize(900, 700);
    window.show();
    return QApplication::exec();
}
