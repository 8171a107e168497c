#include "DialogTest.h"

#include <QDesktopServices>
#include <QFile>
#include <QImage>
#include <QTextBlock>
#include <QTextFrame>

#include <malloc.h>

#include "fake_tksv.h"
#include "SystemCalls.h"
#include "windows/AccountReplyView.h"
#include "windows/ServiceReplyLabel.h"

namespace
{

const int MILLION = 1000000;
const char BAIT[] = "bait"; // part of the names of all files that the replies refer to

QString repeated(const QString &piece, int length)
{
    return piece.repeated(length / piece.length() + 1).left(length);
}

/// Returns the resident memory of this process in bytes.
qint64 residentBytes()
{
    malloc_trim(0);
    QFile file(latin1("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    return file.readAll().split(' ').at(1).toLongLong() * 4096;
}

QByteArray loadedLibraries()
{
    QFile file(latin1("/proc/self/maps"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

/** Records the URLs that would otherwise be opened on the desktop. */
class UrlRecorder : public QObject
{
    Q_OBJECT
public:
    UrlRecorder()
    {
        for (const char *scheme : SCHEMES)
            QDesktopServices::setUrlHandler(latin1(scheme), this, "opened");
    }
    ~UrlRecorder() override
    {
        for (const char *scheme : SCHEMES)
            QDesktopServices::unsetUrlHandler(latin1(scheme));
    }
    QList<QUrl> urls;

public slots:
    void opened(const QUrl &url) { urls << url; }

private:
    static constexpr const char *SCHEMES[] = {"file", "http", "https", "ftp", "tel", "javascript"};
};
constexpr const char *UrlRecorder::SCHEMES[];

/** Tests malicious replies, which try to make the program open files or use too many resources. */
class HostileRepliesTest : public DialogTest
{
    Q_OBJECT

private slots:
    void nothingIsOpenedLoadedOrRun_data();
    void nothingIsOpenedLoadedOrRun();
    void watchSeesWhatIsOpened();
    void linkInAReplyOpensNothing();
    void desktopRecorderSeesWhatIsOpened();

    void windowOutlivesReply_data() { addAttacks(); }
    void windowOutlivesReply();
    void statusBoxShowsTheLetters_data() { addAttacks(); }
    void statusBoxShowsTheLetters();
    void labelOutlivesReply_data() { addAttacks(); }
    void labelOutlivesReply();

    void memoryComesBack();
    void noNetworkLibraryIsLoaded();

private:
    static void addAttacks();
    QString baited(const char *reply);
    QString baitPath(const char *name);
    QStringList baitsTouched();
    void showEverywhere(const QString &reply);
    void waitUntilShown();
};

void HostileRepliesTest::addAttacks()
{
    QTest::addColumn<QString>("reply");
    const auto add = [](const char *name, const QString &reply) { QTest::newRow(name) << reply; };
    add("nothing", QString());
    add("zero unit", QString(QChar(0)));
    add("blanks", QString(500, QLatin1Char(' ')));
    add("line feeds", QString(10000, QLatin1Char('\n')));
    add("returns", QString(10000, QLatin1Char('\r')));
    QString controls;
    for (ushort unit = 1; unit < 0xA0; ++unit)
        controls += unit >= 0x20 && unit < 0x7F ? QChar(QLatin1Char('x')) : QChar(unit);
    add("control characters", controls);
    add("terminal sequences", latin1("\x1b[2J\x1b]0;title\x07\x9b"
                                     "31m"));
    add("high surrogates", QString(10000, QChar(0xD800)));
    add("low surrogates", QString(10000, QChar(0xDC00)));
    add("surrogates the wrong way round", repeated(QString(QChar(0xDC00)) + QChar(0xD800), 10000));
    add("right-to-left overrides", QString(10000, QChar(0x202E)));
    add("overrides both ways", repeated(QString(QChar(0x202E)) + QChar(0x202D), 10000));
    add("isolates", QString(10000, QChar(0x2068)));
    add("one override", latin1("Pay ") + QChar(0x202E) + latin1("#001*") + QChar(0x202C));
    add("marks on one letter", latin1("a") + QString(10000, QChar(0x0301)));
    add("two scripts by turns", repeated(latin1("a") + QChar(0x627), 10000));
    add("paragraph separators", QString(10000, QChar(0x2029)));
    add("object characters", QString(10000, QChar(0xFFFC)));
    add("frame characters", repeated(QString(QChar(0xFDD0)) + QChar(0xFDD1), 1000));
    add("nested tables, short", repeated(latin1("<table><td>"), 182));
    add("nested tables", repeated(latin1("<table><tr><td>"), 10000));
    add("floating tables", repeated(latin1("<table style='float:left'><td>x</td></table>"), 10000));
    add("wide cells", repeated(latin1("<table><td colspan=20480 rowspan=20480>x"), 182));
    add("cells", latin1("<table>") + repeated(latin1("<td>"), 10000));
    add("nested lists", repeated(latin1("<ul><li>"), 10000));
    add("nested everything", repeated(latin1("<b><i><u><div><p><h1><pre>"), 10000));
    add("style sheet", latin1("<style>") + repeated(latin1("a{b:c}"), 8000) + latin1("</style>") +
                           repeated(latin1("<a>"), 2000));
    add("large letters", latin1("<span style='font-size:2000000000pt'>x"));
    add("large picture", latin1("<img width=2147483647 height=2147483647 src=x>"));
    add("ampersands", QString(10000, QLatin1Char('&')));
    add("less-than signs", QString(10000, QLatin1Char('<')));
    add("a million letters", QString(MILLION, QLatin1Char('x')));
    add("a million characters of tables", repeated(latin1("<table><tr><td>"), MILLION));
    add("a million line feeds", QString(MILLION, QLatin1Char('\n')));
}

QString HostileRepliesTest::baitPath(const char *name)
{
    return folder() + QLatin1Char('/') + latin1(BAIT) + latin1(name);
}

/// Replaces "FILE" in the reply with the path of an existing file.
QString HostileRepliesTest::baited(const char *reply)
{
    return latin1(reply).replace(latin1("FILE"), baitPath(".png"));
}

QStringList HostileRepliesTest::baitsTouched()
{
    QStringList touched;
    for (const std::string &call : SystemCalls::seen()) {
        const QString text = QString::fromStdString(call);
        if (text.contains(latin1(BAIT)) || !text.startsWith(latin1("open ")))
            touched << text;
    }
    return touched;
}

/// Waits until the complete reply is shown. A long reply is added in several steps.
void HostileRepliesTest::waitUntilShown()
{
    int before = -1;
    while (before != history()->document()->characterCount()) {
        before = history()->document()->characterCount();
        drainEvents();
    }
}

void HostileRepliesTest::showEverywhere(const QString &reply)
{
    send(latin1("*100#"));
    networkSays(reply);
    waitUntilShown();
    history()->grab();
    AccountReplyView box;
    box.showText(reply);
    box.grab();
    ServiceReplyLabel label(&box);
    label.setText(reply);
    label.grab();
    drainEvents();
}

void HostileRepliesTest::nothingIsOpenedLoadedOrRun_data()
{
    QTest::addColumn<QByteArray>("reply");
    const auto add = [](const char *reply) { QTest::newRow(reply) << QByteArray(reply); };
    add("<img src='FILE'>");
    add("<img src='file://FILE'>");
    add("<img src=\"FILE\" style='float:left'>");
    add("<img src='http://127.0.0.1:1/bait.png'>");
    add("<link rel='stylesheet' type='text/css' href='FILE'>x");
    add("<link rel='stylesheet' type='text/css' href='file://FILE'>x");
    add("<style>@import url('FILE'); p{background-image:url(FILE)}</style>x");
    add("<body background='FILE'>x");
    add("<table background='FILE'><td background='FILE'>x");
    add("<p style='background-image:url(FILE)'>x");
    add("<ul style='list-style-image:url(FILE)'><li>x</ul>");
    add("<script src='FILE'>open('FILE')</script>x");
    add("<object data='FILE'>x</object>");
    add("<iframe src='FILE'>x</iframe>");
    add("<embed src='FILE'>x");
    add("<audio src='FILE' autoplay>x");
    add("<meta http-equiv='refresh' content='0;url=file://FILE'>x");
    add("<a href='file://FILE'>x</a>");
    add("<base href='file://FILE'><img src='bait.png'>");
    add("<!DOCTYPE x [<!ENTITY y SYSTEM 'file://FILE'>]>&y;");
    add("file://FILE http://127.0.0.1:1/bait");
}

void HostileRepliesTest::nothingIsOpenedLoadedOrRun()
{
    QFETCH(QByteArray, reply);
    QImage picture(40, 40, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QVERIFY(picture.save(baitPath(".png")));
    open();
    // The first reply makes the windows load the resources that they load only once.
    showEverywhere(latin1("first"));
    const UrlRecorder desktop;
    SystemCalls::watch();
    showEverywhere(baited(reply.constData()));
    QCOMPARE(baitsTouched(), QStringList());
    QCOMPARE(desktop.urls, QList<QUrl>());
    QVERIFY(isIdle());
}

void HostileRepliesTest::watchSeesWhatIsOpened()
{
    writeFile(latin1("bait.html"), "<p>x");
    SystemCalls::watch();
    QImage().load(folder() + latin1("/bait.html"));
    QFile file(folder() + latin1("/bait.html"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(baitsTouched().count() >= 2);
}

void HostileRepliesTest::linkInAReplyOpensNothing()
{
    open();
    send(latin1("*100#"));
    networkSays(latin1("<a href='file:///etc/bait'>") + QString(400, QLatin1Char('x')) +
                latin1("</a>"));
    const UrlRecorder desktop;
    SystemCalls::watch();
    QPoint middle = history()->viewport()->rect().center();
    while (history()->anchorAt(middle).isEmpty() && middle.y() > 0)
        middle.ry() -= 1;                            // the space between two lines is not a link
    QVERIFY(!history()->anchorAt(middle).isEmpty()); // there is a link under the pointer
    QTest::mouseClick(history()->viewport(), Qt::LeftButton, Qt::NoModifier, middle);
    QTest::mouseDClick(history()->viewport(), Qt::LeftButton, Qt::NoModifier, middle);
    QTest::keyClick(history(), Qt::Key_Return);
    drainEvents();
    QCOMPARE(baitsTouched(), QStringList());
    QCOMPARE(desktop.urls, QList<QUrl>());
}

void HostileRepliesTest::desktopRecorderSeesWhatIsOpened()
{
    const UrlRecorder desktop;
    QDesktopServices::openUrl(QUrl(latin1("file:///etc/bait")));
    QCOMPARE(desktop.urls.count(), 1);
}

void HostileRepliesTest::windowOutlivesReply()
{
    QFETCH(QString, reply);
    open();
    send(latin1("*100#"));
    networkSays(reply);
    waitUntilShown();
    history()->grab();
    QVERIFY(isIdle());
    // The next reply must be shown as usual.
    send(latin1("*101#"));
    networkSays(latin1("5 EUR"));
    waitUntilShown();
    QVERIFY(history()->toPlainText().endsWith(latin1("5 EUR\n")));
    QVERIFY(isIdle());
    click(clearButton());
    QCOMPARE(history()->toPlainText(), QString());
}

void HostileRepliesTest::statusBoxShowsTheLetters()
{
    QFETCH(QString, reply);
    AccountReplyView box;
    box.resize(300, 60);
    box.show();
    box.showText(reply);
    int before = -1;
    while (before != box.document()->characterCount()) {
        before = box.document()->characterCount();
        drainEvents();
    }
    box.grab();
    QVERIFY(box.document()->rootFrame()->childFrames().isEmpty());
    QVERIFY(box.document()->characterCount() >= reply.length());
    box.showText(latin1("5 EUR"));
    drainEvents();
    QCOMPARE(box.toPlainText(), latin1("5 EUR"));
}

void HostileRepliesTest::labelOutlivesReply()
{
    QFETCH(QString, reply);
    QWidget window;
    ServiceReplyLabel label(&window);
    label.resize(300, 60);
    label.setText(reply);
    QVERIFY(!label.grab().isNull());
    QCOMPARE(label.text(), reply);
}

/// Tests that the memory use does not grow when long replies are shown and cleared repeatedly.
void HostileRepliesTest::memoryComesBack()
{
    open();
    const QString reply = repeated(latin1("twelve letters <b>"), MILLION);
    qint64 warm = 0;
    for (int round = 0; round < 6; ++round) {
        send(latin1("*100#"));
        networkSays(reply);
        waitUntilShown();
        QVERIFY(history()->document()->characterCount() > MILLION);
        click(clearButton());
        drainEvents();
        clearLog(); // the log would otherwise store all replies
        fakeSdkForgetRecords();
        if (round == 1)
            warm = residentBytes();
    }
    const qint64 grown = residentBytes() - warm;
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
    QVERIFY2(grown < 2 * qint64(MILLION) * 2, qPrintable(QString::number(grown)));
#endif
    Q_UNUSED(grown);
}

void HostileRepliesTest::noNetworkLibraryIsLoaded()
{
    open();
    showEverywhere(latin1("<img src='http://127.0.0.1:1/x.png'>"));
    const QByteArray libraries = loadedLibraries();
    const QByteArray qt = "libQt" + QByteArray::number(QT_VERSION_MAJOR);
    QVERIFY(libraries.contains(qt + "Widgets")); // proves that the list contains libraries of Qt
    QVERIFY(!libraries.contains(qt + "Network"));
}

USSD_TEST_MAIN(HostileRepliesTest)
#include "hostile_replies_test.moc"
