#ifndef ONLINELINK_H
#define ONLINELINK_H

#include <QString>

/*
 * The link to the operator's top-up page.
 */

/// The address behind a configured one: "http://" in front of all that does not begin with "http",
/// and "about:blank" for none.
QString onlineAddress(const QString &configured);

/// A rich-text link to `address` that reads `shown`. Neither can break out of it.
QString onlineLinkMarkup(const QString &address, const QString &shown);

#endif
