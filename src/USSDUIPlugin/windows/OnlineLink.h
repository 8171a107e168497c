#ifndef ONLINELINK_H
#define ONLINELINK_H

#include <QString>

/* Functions for the link to the operator's top-up page. */

/// Returns the address of the link: `configured`, preceded by "http://" unless it starts with
/// "http", or "about:blank" if `configured` is empty.
QString onlineAddress(const QString &configured);

/// Returns a rich-text link to `address` with the text `shown`. Both strings are escaped, so that
/// they cannot contain markup.
QString onlineLinkMarkup(const QString &address, const QString &shown);

#endif
