#ifndef ONLINELINK_H
#define ONLINELINK_H

#include <QString>

/* The link to the operator's top-up page. */

/// Returns the address that the link opens: `configured`, with "http://" prepended unless it begins
/// with "http", or "about:blank" if it is empty.
QString onlineAddress(const QString &configured);

/// Returns a rich-text link to `address` that reads `shown`. Both are escaped, so neither can add
/// markup.
QString onlineLinkMarkup(const QString &address, const QString &shown);

#endif
