#include "UssdTest.h"

#include <QFile>
#include <QRect>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <algorithm>

/// Tests that the shipped data files are consistent with each other and with the default scenario.
class ShippedDataTest : public UssdTest
{
    Q_OBJECT

protected:
    void setUpClass() override;

private slots:
    void sectionsStandInTheOrderOfTheReader();
    void nothingFollowsTheSimCards();
    void profilesFillTheirSlots();
    void paymentProfilesTakeTheNumber();
    void everyServiceHasFiveControls();
    void controlsLieInTheWindowAndApart();
    void everyCodeIsServedByTheDefaultNetwork();
    void everyShortMessageArrivesInTheDefaultNetwork();

private:
    QStringList codes() const;
};

namespace
{
const QString ROOT = QString::fromUtf8(USSD_SOURCE_DIR);

/// An XML element, reduced to the parts that these tests compare.
struct Element {
    QString name;
    QXmlStreamAttributes attributes;
    QString text;
    QList<Element> children;

    QString attribute(const char *name) const
    {
        return attributes.value(QLatin1String(name)).toString();
    }
    int number(const char *name) const { return attribute(name).toInt(); }

    QList<Element> all(const QString &wanted) const
    {
        QList<Element> found;
        for (const Element &child : children) {
            if (child.name == wanted)
                found << child;
            found << child.all(wanted);
        }
        return found;
    }
    QList<Element> all(const char *wanted) const { return all(QLatin1String(wanted)); }
    Element first(const char *wanted) const { return all(wanted).value(0); }
};

Element readElement(QXmlStreamReader &reader)
{
    Element element;
    element.name = reader.name().toString();
    element.attributes = reader.attributes();
    while (!reader.atEnd() && reader.readNext() != QXmlStreamReader::EndElement) {
        if (reader.isStartElement())
            element.children << readElement(reader);
        else if (reader.isCharacters())
            element.text += reader.text();
    }
    return element;
}

QByteArray contentOf(const char *path)
{
    QFile file(ROOT + QLatin1String(path));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s: %s", path, qPrintable(file.errorString()));
    return file.readAll();
}

Element documentOf(const char *path)
{
    QXmlStreamReader reader(contentOf(path));
    reader.readNextStartElement();
    Element root = readElement(reader);
    if (reader.hasError())
        qFatal("%s: %s", path, qPrintable(reader.errorString()));
    return root;
}

QRect placeOf(const Element &element)
{
    return QRect(element.number("posx"), element.number("posy"), element.number("width"),
                 element.number("height"));
}

Element g_config;
Element g_profiles;
QString g_network;

bool hasGroup(const QString &name)
{
    return g_network.contains(QLatin1String("\n[") + name + QLatin1String("]\n"));
}
} // namespace

void ShippedDataTest::setUpClass()
{
    g_config = documentOf("/plugins/USSDUIPlugin/USSDPluginConfig.xml");
    g_profiles = documentOf("/plugins/USSDUIPlugin/ussdsysprofile.xml");
    g_network = QString::fromUtf8(contentOf("/scenarios/default.scenario"));
}

QStringList ShippedDataTest::codes() const
{
    QStringList codes;
    for (const Element &element : g_config.all("command") + g_profiles.all("value"))
        codes << element.text;
    return codes.filter(QRegularExpression(QLatin1String("^[*#].*#$")));
}

void ShippedDataTest::sectionsStandInTheOrderOfTheReader()
{
    const QStringList order = QString::fromLatin1("PrePostDiffer Prepaid Postpaid send recevie "
                                                  "cmdEdit autoUSSD")
                                  .split(QLatin1Char(' '));
    QStringList found;
    for (const Element &section : g_config.children) {
        if (order.contains(section.name))
            found << section.name;
    }
    QCOMPARE(found, order);
}

void ShippedDataTest::nothingFollowsTheSimCards()
{
    QCOMPARE(g_config.children.last().name, QLatin1String("autoUSSD"));
}

void ShippedDataTest::profilesFillTheirSlots()
{
    const QStringList fields =
        QString::fromLatin1("name value readonly showButton langID desLangID")
            .split(QLatin1Char(' '));
    QCOMPARE(g_profiles.attribute("type"), QLatin1String("USSDProfile"));
    QCOMPARE(g_profiles.children.size(), 11);
    for (const Element &item : g_profiles.children) {
        QStringList found;
        for (const Element &field : item.children)
            found << field.name;
        QCOMPARE(found, fields);
        QCOMPARE(item.first("showButton").text, QLatin1String("true"));
    }
}

void ShippedDataTest::paymentProfilesTakeTheNumber()
{
    for (int slot = 0; slot < g_profiles.children.size(); ++slot) {
        const QString code = g_profiles.children.at(slot).first("value").text;
        QCOMPARE(code.contains(QLatin1String("%s")), slot >= 9);
    }
}

void ShippedDataTest::everyServiceHasFiveControls()
{
    QStringList services;
    for (const Element &entry : g_config.first("Tree").children) {
        if (entry.attribute("type") != QLatin1String("root"))
            services << entry.attribute("name");
    }
    QStringList served;
    for (const Element &group : g_config.first("Dialog").children) {
        QCOMPARE(group.all("control").size(), 5);
        QVERIFY(!group.all("control").at(3).first("command").text.isEmpty());
        served << group.attribute("parent");
    }
    QCOMPARE(services.size(), 12);
    QCOMPARE(served, services);
}

void ShippedDataTest::controlsLieInTheWindowAndApart()
{
    const Element size = g_config.first("MainSize");
    const QRect window(0, 0, size.number("width"), size.number("height"));
    for (const Element &group : g_config.first("Dialog").children) {
        QList<QRect> taken;
        taken << placeOf(g_config.first("TreeSize"));
        for (const Element &control : group.all("control")) {
            if (control.attribute("visible") == QLatin1String("false"))
                continue;
            const QRect place = placeOf(control);
            QVERIFY2(place.isValid() && window.contains(place),
                     qPrintable(control.attribute("id")));
            QVERIFY2(std::none_of(taken.begin(), taken.end(),
                                  [&](const QRect &other) { return other.intersects(place); }),
                     qPrintable(control.attribute("id")));
            taken << place;
        }
    }
}

void ShippedDataTest::everyCodeIsServedByTheDefaultNetwork()
{
    QVERIFY(codes().size() > 20);
    for (const QString &code : codes())
        QVERIFY2(hasGroup(code), qPrintable(code));
}

void ShippedDataTest::everyShortMessageArrivesInTheDefaultNetwork()
{
    const QList<Element> numbers = g_config.first("Dialog").all("number");
    QVERIFY(numbers.size() >= 3);
    for (const Element &number : numbers)
        QVERIFY2(hasGroup(QLatin1String("SMS ") + number.text), qPrintable(number.text));
}

USSD_TEST_MAIN(ShippedDataTest)
#include "shipped_data_test.moc"
