#include "OnlineLink.h"

#include "QtCompat.h"

namespace
{

const int SCHEME_LENGTH = 4;

bool beginsWithScheme(const QString &lowerCase)
{
    return lowerCase.length() > SCHEME_LENGTH && lowerCase.startsWith(QLatin1String("http"));
}

} // namespace

QString onlineAddress(const QString &configured)
{
    QString blank = QLatin1String("about:blank");
    QString address = configured.trimmed();
    if (address.isEmpty())
        return blank;
    const QString lowerCase = address.toLower();
    if (lowerCase == blank || beginsWithScheme(lowerCase))
        return address;
    return QLatin1String("http://") + address;
}

QString onlineLinkMarkup(const QString &address, const QString &shown)
{
    // A single arg() call replaces both markers. Two consecutive calls would also replace a "%2" in
    // the address.
    return QString::fromLatin1("<a href=\"%1\">%2</a>")
        .arg(QtCompat::escapeHtml(address), QtCompat::escapeHtml(shown));
}
