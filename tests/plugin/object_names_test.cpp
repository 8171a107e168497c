/*
 * Compares the table of object names in docs/host-integration.md with the widgets of the loaded
 * plug-in and its shipped data files.
 */
#include "UssdTest.h"

#include <QFile>
#include <QLayout>
#include <QPluginLoader>
#include <QPushButton>
#include <QTimer>
#include <QWidget>

#include <cstdio>

#include "fake_tksv.h"
#include "HostState.h"
#include "IUIPlugin.h"
#include "IUSSD.h"

namespace
{

const char TABLE_BEGIN[] = "<!-- object names: begin -->\n";
const char TABLE_END[] = "<!-- object names: end -->\n";
const int USSD_SERVICE = 4097;

/// A row of the table. `windows` lists the windows that contain a widget with this name, in the
/// order in which the test opens them.
struct Row {
    QStringList windows;
    QString name;
    QString className;
    QString qtClass;
};

QString qtClassOf(const QObject *object)
{
    const QMetaObject *meta = object->metaObject();
    while (meta->className()[0] != 'Q')
        meta = meta->superClass();
    return QString::fromLatin1(meta->className());
}

/// Returns true if the plug-in itself has named the object. Qt also names internal widgets.
bool isOurs(const QObject *object)
{
    const bool visual = object->isWidgetType() || qobject_cast<const QLayout *>(object);
    const QString name = object->objectName();
    return visual && !name.isEmpty() && !name.startsWith(QLatin1String("qt_"));
}

} // namespace

class ObjectNamesTest : public UssdTest
{
    Q_OBJECT

protected:
    void setUp() override;
    void tearDown() override;

private:
    void collect(const QString &window, QObject *root);
    void collectObject(const QString &window, const QObject *object);
    void collectFrame(const QString &window, PAID_TYPE type);
    void collectEditor();
    QWidget *frame();
    QString table() const;
    static QString documentedTable();

    QPluginLoader m_loader;
    IUIPlugin *m_plugin = nullptr;
    IUSSD *m_ussd = nullptr;
    QScopedPointer<QWidget> m_window;
    QList<Row> m_rows;

private slots:
    void documentListsEveryObjectName();
};

void ObjectNamesTest::setUp()
{
    qunsetenv("USSD_PLUGIN_LIBRARY_PATH");
    fakeSdkReset();
    fakeSdkSetUserDataDirectory((folder() + QLatin1Char('/')).toStdU16String());
    m_window.reset(new QWidget);
    m_window->resize(700, 600);
    m_window->show();
    HostCore::HostState::setMainWindow(m_window.data());
    m_loader.setFileName(QString::fromLocal8Bit(USSD_PLUGIN_FILE));
    m_plugin = qobject_cast<IUIPlugin *>(m_loader.instance());
    QVERIFY2(m_plugin, qPrintable(m_loader.errorString()));
    QObject *service = nullptr;
    QVERIFY(m_plugin->QueryInterface(USSD_SERVICE, &service));
    m_ussd = qobject_cast<IUSSD *>(service);
    QVERIFY(m_ussd);
}

void ObjectNamesTest::tearDown()
{
    if (m_plugin) {
        m_plugin->UnSDKRegisterEvent();
        m_plugin->OnDestroy();
    }
    delete m_loader.instance();
    m_loader.unload();
    HostCore::HostState::setMainWindow(nullptr);
    m_window.reset();
    fakeSdkReset();
}

void ObjectNamesTest::collect(const QString &window, QObject *root)
{
    collectObject(window, root);
    for (const QObject *child : root->findChildren<QObject *>())
        collectObject(window, child);
}

void ObjectNamesTest::collectObject(const QString &window, const QObject *object)
{
    if (!isOurs(object))
        return;
    const QString className = QString::fromLatin1(object->metaObject()->className());
    for (Row &row : m_rows) {
        if (row.name == object->objectName() && row.className == className) {
            if (!row.windows.contains(window))
                row.windows << window;
            return;
        }
    }
    Row row;
    row.windows << window;
    row.name = object->objectName();
    row.className = className;
    row.qtClass = qtClassOf(object);
    m_rows << row;
}

QWidget *ObjectNamesTest::frame()
{
    for (QWidget *child : m_window->findChildren<QWidget *>()) {
        if (child->isWindow() && child->isVisible() && child->inherits("ExtendDialog"))
            return child;
    }
    return nullptr;
}

void ObjectNamesTest::collectFrame(const QString &window, PAID_TYPE type)
{
    QCOMPARE(m_ussd->DoPrePostPaidModal(type), 1);
    QVERIFY(frame());
    collect(window, frame());
    frame()->close();
    drainEvents();
    QVERIFY(!frame());
}

void ObjectNamesTest::collectEditor()
{
    QPushButton *button = m_window->findChild<QPushButton *>(
        QStringLiteral("USSDUIPlugin_AdvancedDialog_EditButton"));
    QVERIFY(button);
    bool isOpen = false;
    QTimer::singleShot(0, this, [this, &isOpen] {
        QWidget *editor = QApplication::activeModalWidget();
        if (!editor)
            return;
        isOpen = true;
        collect(QStringLiteral("profile editor"), editor);
        editor->close();
    });
    button->click(); // returns after the editor has closed
    QVERIFY(isOpen);
}

QString ObjectNamesTest::table() const
{
    QString text =
        QStringLiteral("| window | object name | class | Qt class |\n|---|---|---|---|\n");
    for (const Row &row : m_rows) {
        text +=
            QStringLiteral("| %1 | `%2` | `%3` | `%4` |\n")
                .arg(row.windows.join(QStringLiteral(", ")), row.name, row.className, row.qtClass);
    }
    return text;
}

QString ObjectNamesTest::documentedTable()
{
    QFile file(QStringLiteral(USSD_SOURCE_DIR "/docs/host-integration.md"));
    if (!file.open(QIODevice::ReadOnly))
        return QString();
    const QString text = QString::fromUtf8(file.readAll());
    return text.section(QLatin1String(TABLE_BEGIN), 1).section(QLatin1String(TABLE_END), 0, 0);
}

void ObjectNamesTest::documentListsEveryObjectName()
{
    QRect rect(QPoint(), m_window->size());
    m_ussd->ShowPrePostPaidWindow(m_window.data(), rect, PAID_TYPE_GENERAL);
    collect(QStringLiteral("general"), m_window.data());
    collectFrame(QStringLiteral("general"), PAID_TYPE_GENERAL);
    collectFrame(QStringLiteral("prepaid"), PAID_TYPE_PREPAID);
    collectFrame(QStringLiteral("postpaid"), PAID_TYPE_POSTPAID);
    collectFrame(QStringLiteral("USSD-SMS"), PAID_TYPE_USSD_SMS);
    collectEditor();
    QVERIFY(m_rows.count() > 30); // proves that all windows were examined
    if (table() != documentedTable())
        std::fprintf(stderr, "The table ought to be:\n\n%s\n", qPrintable(table()));
    QVERIFY2(table() == documentedTable(),
             "docs/host-integration.md: the table of object names is out of date; put there what "
             "was printed");
}

USSD_TEST_MAIN(ObjectNamesTest)
#include "object_names_test.moc"
