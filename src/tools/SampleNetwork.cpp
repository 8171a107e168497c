#include "SampleNetwork.h"

#include <QStringList>

namespace Tools
{

namespace
{

const int IMSI_DIGITS = 15;
const char TEST_NETWORK[] = "00101"; // the network code for tests; see 3GPP TS 34.108

/// Returns the trimmed text, escaped for use as a value in a key file.
QString valueOf(QString text)
{
    text.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
    text.replace(QLatin1Char('\n'), QLatin1String("\\n"));
    return text.trimmed();
}

QString imsiOf(const Provisioning::ProvisionPlan &plan)
{
    QString imsi = plan.network.isEmpty() ? plan.imsiPrefixes.value(0) : plan.network;
    if (imsi.isEmpty())
        imsi = QLatin1String(TEST_NETWORK);
    return imsi.leftJustified(IMSI_DIGITS, QLatin1Char('0'));
}

QString groupOf(const Formats::USSDProfile &profile)
{
    QString group = QString::fromLatin1("\n[%1]\n").arg(profile.value);
    QString reply = profile.name;
    if (profile.value.contains(QLatin1String("%s"))) {
        group += QLatin1String("Digits=1-30\n");
        reply += QLatin1String(" {digits}");
    }
    return group + QString::fromLatin1("Reply=%1: a sample reply.\n").arg(valueOf(reply));
}

} // namespace

QByteArray sampleNetwork(const Provisioning::ProvisionPlan &plan)
{
    QString text = QString::fromLatin1("# A simulated network with a sample reply to each code. "
                                       "Replace the replies.\n\n"
                                       "[Network]\nOperator=%1\nIMSI=%2\nSignal=78\nDelay=600\n"
                                       "SMS=ready\n")
                       .arg(valueOf(plan.provider), imsiOf(plan));
    QStringList codes;
    for (int i = 0; i < plan.profiles.count(); ++i) {
        const Formats::USSDProfile &profile = plan.profiles.at(i);
        if (!profile.value.isEmpty() && !codes.contains(profile.value))
            text += groupOf(profile);
        codes << profile.value;
    }
    return text.toUtf8();
}

} // namespace Tools
