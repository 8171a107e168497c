#ifndef ONLINELINK_H
#define ONLINELINK_H

#include <QString>

/* The link to the operator's top-up page. */

/// Returns the address that the link opens. The address is `configured`, with "http://" prepended
/// unless it begins with "http". Returns "about:blank" if `configured` is empty.
QString onlineAddress(const QString &configured);

/// Returns a rich-text link to `address` with the text `shown`. Both strings are escaped, so that
/// neither can add markup.
QString onlineLinkMarkup(const QString &address, const QString &shown);

#endif
