#ifndef MENUCHOICES_H
#define MENUCHOICES_H

#include <QList>
#include <QString>

namespace Dashboard
{

/** A choice of a network menu; see Chains::Choice. */
struct MenuChoice {
    QString key; // "1" to "999", "0", "00", "*" or "#", always in ASCII
    QString text;

    /// Returns the key and the text as the text of a button. Each of them has its own direction.
    /// Otherwise, a right-to-left window would swap the key with the digits of a left-to-right
    /// text.
    QString buttonText() const;
    bool operator==(const MenuChoice &other) const;
    bool operator!=(const MenuChoice &other) const { return !(*this == other); }
};

/// Returns the choices of a network menu with this text; see Chains::menuChoices().
QList<MenuChoice> menuChoices(const QString &menu);

} // namespace Dashboard

#endif
