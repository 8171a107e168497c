#include "FileCheck.h"
#include "OddFiles.h"
#include "ToolArguments.h"
#include "ToolTest.h"
#include "XmlElements.h"
#include "XmlFormat.h"

#include <QRandomGenerator>

using namespace Tools;

/// Tests "ussd-config fmt": the layout that it produces, the content that it keeps, and the files
/// that it rejects.
class XmlFormatTest : public ToolTest
{
    Q_OBJECT
public:
    XmlFormatTest() : ToolTest(CONFIG_PROGRAM) {}

private slots:
    void layoutIsUniform_data();
    void layoutIsUniform();
    void unusableDocuments_data();
    void unusableDocuments();
    void shippedFilesAreFormatted_data();
    void shippedFilesAreFormatted();
    void badlySpacedConfigurationKeepsItsMeaning();
    void formattingTwiceChangesNothing();
    void programReplacesTheFile();
    void programOnlyChecks();
    void oddFilesAreLeftAlone_data();
    void oddFilesAreLeftAlone();
    void unusableArguments_data();
    void unusableArguments();

private:
};

namespace
{
const char DECLARATION[] = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";

QByteArray formatted(const QByteArray &xml)
{
    QString problem;
    const QByteArray result = formattedXml(xml, problem);
    return problem.isEmpty() ? result : QByteArray("problem: ") + problem.toUtf8();
}

QByteArray shipped()
{
    return contentOf(QLatin1String(USSD_SOURCE_DIR "/plugins/USSDUIPlugin/USSDPluginConfig.xml"));
}

QByteArray commentsIn(const QByteArray &xml)
{
    QByteArray comments;
    for (int at = int(xml.indexOf("<!--")); at >= 0; at = int(xml.indexOf("<!--", at + 1)))
        comments += xml.mid(at, xml.indexOf("-->", at) - at);
    return comments;
}

/// Returns a random piece of a document.
QByteArray piece(QRandomGenerator &random, int depth)
{
    static const char *const leaves[] = {
        "<!-- c -->",      "<!--\n  d\n-->",          " ",        "\n\n\n", "t", "&lt;",
        "<![CDATA[<x>]]>", "<e f=\"&quot;&#10;g\"/>", "<h> </h>", "<?i j?>"};
    if (depth == 0 || random.bounded(3) == 0)
        return leaves[random.bounded(10)];
    QByteArray inner;
    for (int i = random.bounded(4); i > 0; --i)
        inner += piece(random, depth - 1);
    return "<k>" + inner + "</k>";
}
} // namespace

void XmlFormatTest::layoutIsUniform_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    const auto row = [](const char *title, const char *before, const char *after) {
        QTest::newRow(title) << QByteArray(before) << QByteArray(after);
    };
    row("indented", "<a><b><c>1</c></b></a>", "<a>\n    <b>\n        <c>1</c>\n    </b>\n</a>\n");
    row("empty element", "<a><b></b><c  /></a>", "<a>\n    <b/>\n    <c/>\n</a>\n");
    row("attributes", "<a  z='1'\n y=\"&lt;&apos;\"/>", "<a z=\"1\" y=\"&lt;'\"/>\n");
    row("attribute with a line break", "<a b=\"&#10;&quot;\"/>", "<a b=\"&#10;&quot;\"/>\n");
    row("text is kept", "<a><b> x \n y</b></a>", "<a>\n    <b> x \n y</b>\n</a>\n");
    row("white space alone", "<a><b>  </b></a>", "<a>\n    <b>  </b>\n</a>\n");
    row("comments", "<!-- 1 --><a><!-- 2 -->\n<b/><!-- 3 --></a><!-- 4 -->",
        "<!-- 1 -->\n<a> <!-- 2 -->\n    <b/> <!-- 3 -->\n</a>\n<!-- 4 -->\n");
    row("one blank line", "<a>\n\n\n\n<b/>\n\n<!-- c -->\n<d/>\n\n</a>",
        "<a>\n\n    <b/>\n\n    <!-- c -->\n    <d/>\n</a>\n");
    row("mixed content", "<a><b>x<c/>  y</b></a>", "<a>\n    <b>x<c/>  y</b>\n</a>\n");
    row("CDATA", "<a><![CDATA[<&]]></a>", "<a>&lt;&amp;</a>\n");
    row("carriage return", "<a>\r\n<b>1&#13;</b></a>", "<a>\n    <b>1&#13;</b>\n</a>\n");
    row("instruction", "<?x y?><a/>", "<?x y?>\n<a/>\n");
    row("name space", "<a xmlns=\"n\" xmlns:p=\"q\"><p:b/></a>",
        "<a xmlns=\"n\" xmlns:p=\"q\">\n    <p:b/>\n</a>\n");
    row("other encoding", "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><a>\xfc</a>",
        "<a>\xc3\xbc</a>\n");
}

void XmlFormatTest::layoutIsUniform()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    QCOMPARE(formatted(before), DECLARATION + after);
    QCOMPARE(formatted(DECLARATION + after), DECLARATION + after);
}

void XmlFormatTest::unusableDocuments_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::newRow("not closed") << QByteArray("<a><b></a>");
    QTest::newRow("no XML") << QByteArray("[Network]");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("document type") << QByteArray("<!DOCTYPE a><a/>");
    QTest::newRow("entities") << QByteArray("<!DOCTYPE a [<!ENTITY b 'c'>]><a>&b;</a>");
    QTest::newRow("unknown entity") << QByteArray("<a>&b;</a>");
}

void XmlFormatTest::unusableDocuments()
{
    QFETCH(QByteArray, xml);
    QVERIFY(formatted(xml).startsWith("problem: "));
}

void XmlFormatTest::shippedFilesAreFormatted_data()
{
    QTest::addColumn<QString>("file");
    for (const char *file : {"USSDUIPlugin/USSDPluginConfig.xml", "USSDUIPlugin/ussdsysprofile.xml",
                             "plain/USSDPluginConfig.xml", "plain/ussdsysprofile.xml"})
        QTest::newRow(file) << QLatin1String(USSD_SOURCE_DIR "/plugins/") + QLatin1String(file);
}

void XmlFormatTest::shippedFilesAreFormatted()
{
    QFETCH(QString, file);
    const QByteArray content = contentOf(file);
    QCOMPARE(formatted(content), content);
}

void XmlFormatTest::badlySpacedConfigurationKeepsItsMeaning()
{
    QByteArray bad = shipped();
    bad.replace("\n    ", "\n").replace("/>\n", "/>").replace("=\"true\"", "  =  'true'");
    QVERIFY(bad != shipped());
    const QByteArray result = formatted(bad);
    QCOMPARE(checkContent(result, QString()).findings.count(), 0);
    QCOMPARE(reportText(checkContent(result, QString())),
             reportText(checkContent(shipped(), QString())));
    QCOMPARE(commentsIn(result), commentsIn(bad));
}

void XmlFormatTest::formattingTwiceChangesNothing()
{
    QRandomGenerator random(20261122);
    int documents = 0;
    for (int i = 0; i < 1000; ++i) {
        const QByteArray xml = "<r>" + piece(random, 4) + piece(random, 4) + "</r>";
        const QByteArray once = formatted(xml);
        QVERIFY2(!once.startsWith("problem"), (xml + '\n' + once).constData());
        const QByteArray twice = formatted(once);
        QVERIFY2(twice == once, (xml + "\n--\n" + once + "\n--\n" + twice).constData());
        QCOMPARE(commentsIn(once), commentsIn(xml));
        ++documents;
    }
    QCOMPARE(documents, 1000);
}

// ---- the program -------------------------------------------------------------------------------

void XmlFormatTest::programReplacesTheFile()
{
    const QString bad = writeFile(QLatin1String("bad.xml"), "<a><b/></a>");
    const QString broken = writeFile(QLatin1String("broken.xml"), "<a>");
    QCOMPARE(run(words("fmt") << bad), int(TOOL_GOOD));
    QCOMPARE(m_out, bad.toUtf8() + ": formatted\n");
    QCOMPARE(contentOf(bad), DECLARATION + QByteArray("<a>\n    <b/>\n</a>\n"));
    QCOMPARE(run(words("fmt") << bad), int(TOOL_GOOD));
    QVERIFY(m_out.isEmpty());
    QCOMPARE(run(words("fmt") << broken << bad), int(TOOL_USAGE));
    QVERIFY(m_error.contains("it is unchanged"));
    QCOMPARE(contentOf(broken), QByteArray("<a>"));
}

void XmlFormatTest::programOnlyChecks()
{
    const QString bad = writeFile(QLatin1String("bad.xml"), "<a><b/></a>");
    QCOMPARE(run(words("fmt --check") << bad), int(TOOL_BAD));
    QVERIFY(m_out.contains("would be formatted"));
    QCOMPARE(contentOf(bad), QByteArray("<a><b/></a>"));
}

void XmlFormatTest::oddFilesAreLeftAlone_data()
{
    OddFiles::addColumns();
}

void XmlFormatTest::oddFilesAreLeftAlone()
{
    const QString path = folder() + QLatin1String("/odd.xml");
    const QString said = path + QLatin1String(": ") + OddFiles::make(path);
    QCOMPARE(run(words("fmt") << path), int(TOOL_USAGE));
    QVERIFY2(m_error.contains(said.toUtf8()), m_error.constData());
}

void XmlFormatTest::unusableArguments_data()
{
    QTest::addColumn<QString>("arguments");
    for (const char *arguments : {"fmt", "fmt --check", "fmt --format=json a.xml", "schema",
                                  "schema scenario", "schema layout profiles"})
        QTest::newRow(arguments) << QString::fromLatin1(arguments);
}

void XmlFormatTest::unusableArguments()
{
    QFETCH(QString, arguments);
    QCOMPARE(run(arguments.split(QLatin1Char(' '))), int(TOOL_USAGE));
    QVERIFY(m_error.contains("--help"));
}

USSD_TEST_MAIN(XmlFormatTest)
#include "xml_format_test.moc"
