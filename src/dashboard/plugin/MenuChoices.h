#ifndef MENUCHOICES_H
#define MENUCHOICES_H

#include <QList>
#include <QString>

namespace Dashboard
{

/** A choice of a menu: the key to send, and the text of the choice. */
struct MenuChoice {
    QString key; // "1" to "999", "0", "00", "*" or "#", always in ASCII
    QString text;

    bool operator==(const MenuChoice &other) const;
    bool operator!=(const MenuChoice &other) const { return !(*this == other); }
};

/**
 * Returns the choices of a menu, in their order. Call this function only for messages that require
 * an answer, because other messages may contain similar lines such as "1 GB for 2 EUR".
 *
 * A choice is a line of the form "1 Text", "1. Text", "1) Text", "1: Text" or "1 - Text". There
 * must be at least two choices, and the keys must be in ascending order. The keys 0, 00, * and #
 * are allowed only after all other keys. Otherwise, it is not certain that the lines are choices,
 * and the function returns an empty list.
 */
QList<MenuChoice> menuChoices(const QString &menu);

} // namespace Dashboard

#endif
