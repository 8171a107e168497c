#include "plugin/PrivatePluginFolder.h"
#include "plugin/TranscriptColors.h"
#include "PluginConfig.h"
#include "UssdTest.h"

using namespace Dashboard;

/** Tests the warnings about transcript colours that the operator has configured. */
class TranscriptColorsTest : public UssdTest
{
    Q_OBJECT

private slots:
    void readableColoursCauseNoWarning()
    {
        Formats::PluginConfig configuration; // the default colours are black
        QVERIFY(paleTranscriptColors(configuration).isEmpty());
    }

    void eachPaleColourIsNamed()
    {
        Formats::PluginConfig configuration;
        configuration.receivedChar.red = configuration.receivedChar.green = 200;
        const QStringList warnings = paleTranscriptColors(configuration);
        QCOMPARE(warnings.size(), 1);
        QVERIFY(warnings.first().contains(latin1("\"recevie\", #c8c800 on #ffffff")));
        configuration.sentChar.green = 255;
        QCOMPARE(paleTranscriptColors(configuration).size(), 2);
    }

    void paperOfTheDarkThemeCountsToo()
    {
        // The colour has a contrast of 4.9 on white, but only 4.0 on the transcript background of
        // the dark theme.
        Formats::PluginConfig configuration;
        configuration.sentChar.red = configuration.sentChar.green = configuration.sentChar.blue =
            112;
        const QStringList warnings = paleTranscriptColors(configuration);
        QCOMPARE(warnings.size(), 1);
        QVERIFY(warnings.first().contains(latin1("on #e3e8ef")));
    }

    void shippedColoursAreReadable()
    {
        warnAboutPaleTranscript();
        QCOMPARE(timesLogged("contrast"), 0);
    }

    void coloursOfTheConfigurationFileAreChecked()
    {
        PrivatePluginFolder library;
        QVERIFY(library.isValid());
        QVERIFY(library.change(latin1("USSDPluginConfig.xml"), "<recevie", "green=\"96\"",
                               "green=\"240\""));
        expectWarning("recevie");
        warnAboutPaleTranscript();
        QCOMPARE(timesLogged("has a contrast of only"), 1);
    }
};

USSD_TEST_MAIN(TranscriptColorsTest)
#include "transcript_colors_test.moc"
