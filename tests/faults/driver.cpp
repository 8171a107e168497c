/*
 * Simulates a dashboard user on a faulty machine. The driver is linked into faulty_dashboard, which
 * is otherwise identical to the dashboard program. The simulated user reads the window, answers
 * message boxes and closes the window. The driver prints each observation on standard output as a
 * line "box: TEXT", "notice: TITLE: TEXT" or "codes: LIST".
 *
 *   USSD_USER_SAVES=CODE    adds the code in the editor and saves
 *   USSD_USER_SAYS=TEXT     presses the message-box button whose label starts with TEXT, or the
 *                           first button if there is no such button
 */
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QTableWidget>
#include <QTimer>

#include <cstdio>

#include "pages/StateStrip.h"
#include "plugin/GeneralWindow.h"
#include "window/Banners.h"
#include "window/MainWindow.h"

using namespace Dashboard;

namespace
{

const int INTERVAL = 20; // ms

void print(const char *what, QString text)
{
    text.replace(QLatin1Char('\n'), QLatin1Char(' '));
    printf("%s: %s\n", what, text.toUtf8().constData());
    fflush(stdout);
}

MainWindow *mainWindow()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (MainWindow *window = qobject_cast<MainWindow *>(widget))
            return window;
    }
    return nullptr;
}

/// Returns the text of the message box. Long texts are shown in a text view instead of the label.
QString textOf(const QMessageBox *box)
{
    const QPlainTextEdit *view = box->findChild<QPlainTextEdit *>();
    return view ? view->toPlainText() : box->text();
}

void press(QMessageBox *box)
{
    const QString wanted = QString::fromLocal8Bit(qgetenv("USSD_USER_SAYS"));
    for (QAbstractButton *button : box->buttons()) {
        if (!wanted.isEmpty() && button->text().startsWith(wanted))
            return button->click();
    }
    box->buttons().first()->click();
}

/// Adds a code in the first empty row. The editor's table always ends with empty rows.
void addCode(QTableWidget *table, const QString &code)
{
    int row = 0;
    while (table->item(row, 1) && !table->item(row, 1)->text().isEmpty())
        ++row;
    table->setItem(row, 0, new QTableWidgetItem(QLatin1String("Mine")));
    table->setItem(row, 1, new QTableWidgetItem(code));
}

class User : public QObject
{
    Q_OBJECT
public:
    explicit User(QObject *parent)
        : QObject(parent), m_code(QString::fromLocal8Bit(qgetenv("USSD_USER_SAVES")))
    {
        lookLater();
    }

private:
    /// Starts a new single-shot timer. A repeating timer would not fire while its own slot runs a
    /// dialog.
    void lookLater() { QTimer::singleShot(INTERVAL, this, &User::look); }

    void look()
    {
        if (!m_isDone)
            lookLater();
        QWidget *modal = QApplication::activeModalWidget();
        if (QMessageBox *box = qobject_cast<QMessageBox *>(modal)) {
            print("box", textOf(box));
            press(box);
        } else if (modal) {
            edit(modal);
        } else if (mainWindow() && GeneralWindow(mainWindow()->page()).isComplete()) {
            usePage();
        }
    }

    void edit(QWidget *editor)
    {
        QTableWidget *table =
            editor->findChild<QTableWidget *>(QLatin1String("USSDUIPlugin_ProfileTable"));
        if (!table || m_code.isEmpty())
            return void(editor->close());
        addCode(table, m_code);
        m_code.clear();
        editor->findChild<QPushButton *>(QLatin1String("USSDUIPlugin_ProfileDialog_SaveButton"))
            ->click();
    }

    void usePage()
    {
        if (m_isDone)
            return;
        if (restore())
            return;
        if (!m_code.isEmpty())
            return named<QPushButton>("USSDUIPlugin_AdvancedDialog_EditButton")->click();
        m_isDone = true;
        tell();
        mainWindow()->close();
        QApplication::quit();
    }

    /// Accepts the offer to restore the user's codes. Uses the banner object directly, because the
    /// banner about the demonstration hides the offer.
    bool restore()
    {
        Banners *banners = mainWindow()->findChild<Banners *>();
        const Banner offer = banners->banner(Banners::Restore);
        if (m_isRestored || offer.title.isEmpty())
            return false;
        m_isRestored = true;
        print("notice", offer.title + QLatin1String(": ") + offer.text);
        emit banners->actionRequested(Banners::Restore);
        return true;
    }

    template <typename Widget>
    static Widget *named(const char *name)
    {
        return mainWindow()->findChild<Widget *>(QLatin1String(name));
    }

    static void tell()
    {
        const Banners *banners = mainWindow()->findChild<Banners *>();
        for (int kind = Banners::Saved; kind <= Banners::Demonstration; ++kind) {
            const Banner &banner = banners->banner(Banners::Kind(kind));
            if (!banner.title.isEmpty())
                print("notice", banner.title + QLatin1String(": ") + banner.text);
        }
        const StateStrip *strip = named<StateStrip>("Dashboard_StateStrip");
        if (strip->isBlocked())
            print("notice", strip->title() + QLatin1String(": ") + strip->text());
        const QComboBox *combo = named<QComboBox>("USSDUIPlugin_AdvancedDialog_ProfilesCombo");
        QStringList names;
        for (int i = 0; combo && i < combo->count(); ++i)
            names << combo->itemText(i);
        print("codes", names.join(QLatin1String(", ")));
    }

    QString m_code;
    bool m_isDone = false;
    bool m_isRestored = false;
};

void seatUser()
{
    new User(qApp);
}
Q_COREAPP_STARTUP_FUNCTION(seatUser)

} // namespace

#include "driver.moc"
