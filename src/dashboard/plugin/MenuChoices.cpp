#include "MenuChoices.h"

#include "base/Isolate.h"
#include "MenuLines.h"

namespace Dashboard
{

bool MenuChoice::operator==(const MenuChoice &other) const
{
    return key == other.key && text == other.text;
}

QString MenuChoice::buttonText() const
{
    const QString words = QString(text).replace(QLatin1Char('&'), QLatin1String("&&"));
    return isolated(key) + QLatin1String("  ") + isolatedWords(words);
}

QList<MenuChoice> menuChoices(const QString &menu)
{
    QList<MenuChoice> choices;
    for (const Chains::Choice &choice : Chains::menuChoices(menu.toStdString()))
        choices << MenuChoice{QString::fromStdString(choice.key),
                              QString::fromStdString(choice.text)};
    return choices;
}

} // namespace Dashboard
