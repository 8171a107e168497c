#ifndef MENUCHOICES_H
#define MENUCHOICES_H

#include <QList>
#include <QString>

namespace Dashboard
{

/** A choice of a menu: the key that the user sends, and the words of the menu after the key. */
struct MenuChoice {
    QString key; // "1" to "999", "0", "00", "*" or "#", always in ASCII
    QString text;

    bool operator==(const MenuChoice &other) const;
    bool operator!=(const MenuChoice &other) const { return !(*this == other); }
};

/**
 * Returns the choices that a menu of the network offers, in the order of the menu. The menu must be
 * a message for which the network waits for an answer, because other messages may also contain
 * lines such as "1 GB for 2 EUR".
 *
 * A choice is a line of the form "1 Text", "1. Text", "1) Text", "1: Text" or "1 - Text". Returns
 * an empty list unless there are at least two choices and the keys are in ascending order, except
 * for the keys 0, 00, * and #, which may only follow the other keys. In this case, the program
 * cannot be certain that the lines are choices.
 */
QList<MenuChoice> menuChoices(const QString &menu);

} // namespace Dashboard

#endif
