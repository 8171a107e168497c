/*
 * A copy of the dashboard's main window that consists only of Qt widgets and has no device, files
 * or languages. It shows how much of the dashboard's start-up time is spent in Qt.
 */
#include <QApplication>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollArea>
#include <QStatusBar>
#include <QVBoxLayout>

namespace
{

QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

void addMenu(QMainWindow &window, const char *title, int actions)
{
    QMenu *menu = window.menuBar()->addMenu(text(title));
    for (int i = 0; i < actions; ++i)
        menu->addAction(text("An entry"));
}

QLabel *boldLabel(const char *latin1)
{
    QLabel *label = new QLabel(text(latin1));
    QFont font = label->font();
    font.setBold(true);
    font.setPointSize(font.pointSize() + 3);
    label->setFont(font);
    return label;
}

QWidget *header()
{
    QFrame *frame = new QFrame;
    frame->setFrameShape(QFrame::StyledPanel);
    QHBoxLayout *row = new QHBoxLayout(frame);
    row->addWidget(boldLabel("Example Mobile"));
    row->addWidget(new QLabel(text("Signal 80 %")));
    row->addStretch();
    row->addWidget(new QLabel(text("SIM 001010123456789")));
    return frame;
}

QWidget *buttons()
{
    QWidget *widget = new QWidget;
    QHBoxLayout *row = new QHBoxLayout(widget);
    row->addWidget(new QPushButton(text("USSD page")));
    row->addWidget(new QPushButton(text("USSD window")));
    row->addStretch();
    widget->setEnabled(false);
    return widget;
}

QWidget *page()
{
    QScrollArea *area = new QScrollArea;
    area->setWidget(new QWidget);
    area->setWidgetResizable(true);
    return area;
}

QWidget *centre()
{
    QWidget *widget = new QWidget;
    QVBoxLayout *column = new QVBoxLayout(widget);
    column->addWidget(header());
    column->addWidget(buttons());
    column->addWidget(page(), 1);
    return widget;
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QMainWindow window;
    window.setWindowTitle(text("Plain"));
    window.resize(900, 700);
    addMenu(window, "&File", 1);
    addMenu(window, "&Network", 6);
    addMenu(window, "&Language", 8);
    window.setCentralWidget(centre());
    window.statusBar()->addWidget(new QLabel(text("Simulated network: default.scenario")), 1);
    window.show();
    return QApplication::exec();
}
