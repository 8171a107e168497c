#include "ProfileRows.h"

namespace
{

/// The cell's text without blanks around it, unless nobody touched it.
QString cellText(const QString &cell, const QString &before)
{
    return cell == before ? before : cell.trimmed();
}

USSDProfile newProfile()
{
    USSDProfile profile;
    profile.showButton = true;
    return profile;
}

USSDProfile profileOfRow(const ProfileRows::Row &row, const USSDProfile &before)
{
    USSDProfile profile = before;
    profile.value = cellText(row.code, before.value);
    profile.name = cellText(row.name, before.name);
    if (profile.name.trimmed().isEmpty())
        profile.name = profile.value;
    if (profile.name != before.name)
        profile.langID.clear(); // the translated text would hide the new name
    return profile;
}

} // namespace

namespace ProfileRows
{

QList<USSDProfile> profiles(const QList<Row> &rows, const QList<USSDProfile> &shown)
{
    QList<USSDProfile> result;
    for (int i = 0; i < rows.count(); ++i) {
        if (rows.at(i).code.trimmed().isEmpty())
            continue;
        result.append(profileOfRow(rows.at(i), i < shown.count() ? shown.at(i) : newProfile()));
    }
    return result + shown.mid(rows.count());
}

bool differ(const QList<USSDProfile> &a, const QList<USSDProfile> &b)
{
    if (a.count() != b.count())
        return true;
    for (int i = 0; i < a.count(); ++i) {
        if (a.at(i).name != b.at(i).name || a.at(i).value != b.at(i).value)
            return true;
    }
    return false;
}

} // namespace ProfileRows
