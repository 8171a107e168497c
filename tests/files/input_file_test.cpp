#include "InputFile.h"
#include "OddFiles.h"
#include "UssdTest.h"

/// Tests which files can be opened for reading, and the error messages for all others.
class InputFileTest : public UssdTest
{
    Q_OBJECT

private slots:
    void regularFileIsReadWhole();
    void linkToARegularFileIsRead();
    void whatIsNoRegularFileIsRefused_data();
    void whatIsNoRegularFileIsRefused();
    void sizeIsBounded();
    void missingFileHasTheSystemsWords();
};

void InputFileTest::regularFileIsReadWhole()
{
    const QString path = writeFile(QLatin1String("a"), "one\r\ntwo");
    QByteArray content("old");
    QString problem;
    QVERIFY(InputFile::read(path, content, problem));
    QCOMPARE(content, QByteArray("one\r\ntwo"));
    QCOMPARE(InputFile::content(path), content);
    QCOMPARE(InputFile::problem(path), QString());
    QFile file(path);
    QVERIFY(InputFile::open(file, QIODevice::Text, problem));
    QCOMPARE(file.readAll(), QByteArray("one\ntwo"));
    QVERIFY(!file.isWritable());
}

void InputFileTest::linkToARegularFileIsRead()
{
    const QString link = folder() + QLatin1String("/link");
    QVERIFY(QFile::link(writeFile(QLatin1String("a"), "text"), link));
    QCOMPARE(InputFile::content(link), QByteArray("text"));
}

void InputFileTest::whatIsNoRegularFileIsRefused_data()
{
    OddFiles::addColumns();
}

void InputFileTest::whatIsNoRegularFileIsRefused()
{
    const QString path = folder() + QLatin1String("/odd");
    const QString why = OddFiles::make(path);
    QByteArray content("old");
    QString problem;
    QVERIFY(!InputFile::read(path, content, problem));
    QCOMPARE(problem, why);
    QVERIFY(content.isEmpty());
    QCOMPARE(InputFile::problem(path), why);
    QFile file(path);
    QVERIFY(!InputFile::open(file, QIODevice::NotOpen, problem));
    QVERIFY(!file.isOpen());
}

void InputFileTest::sizeIsBounded()
{
    const QString path = writeFile(QLatin1String("a"), "12345");
    QByteArray content;
    QString problem;
    QVERIFY(InputFile::read(path, content, problem, 5));
    QCOMPARE(content, QByteArray("12345"));
    QVERIFY(!InputFile::read(path, content, problem, 4));
    QCOMPARE(problem, QLatin1String("it is larger than 4 bytes"));
}

void InputFileTest::missingFileHasTheSystemsWords()
{
    QCOMPARE(InputFile::problem(folder() + QLatin1String("/none")),
             QLatin1String("No such file or directory"));
}

USSD_TEST_MAIN(InputFileTest)
#include "input_file_test.moc"
