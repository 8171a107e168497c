/*
 * What the start of the dashboard is measured against: a main window of the same size, and nothing
 * in it. With the argument --with-field it holds one text field with the focus, for what is
 * measured while nothing happens: the cursor blinks in any program.
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
