#include "ProfileRows.h"

using namespace Formats;

namespace
{

/// Returns the text of the cell, trimmed if the user has edited it.
QString cellText(const QString &cell, const QString &before)
{
    return cell == before ? before : cell.trimmed();
}

bool isBlank(const QString &text)
{
    return text.trimmed().isEmpty();
}

bool isSame(const ProfileRows::Row &row, const USSDProfile &profile)
{
    return row.name == profile.name && row.code == profile.value;
}

/// Returns true if the user has deleted the profile. A profile is deleted by clearing its code, or
/// by clearing its name if it has no code.
bool isTakenAway(const ProfileRows::Row &row, const USSDProfile &before)
{
    return isBlank(row.code) && (!isBlank(before.value) || isBlank(row.name));
}

USSDProfile editedProfile(const ProfileRows::Row &row, const USSDProfile &before)
{
    USSDProfile profile = before;
    profile.value = cellText(row.code, before.value);
    if (row.name == before.name)
        return profile;
    profile.name = isBlank(row.name) ? profile.value.trimmed() : row.name.trimmed();
    profile.langID.clear(); // the translated text would hide the new name
    return profile;
}

USSDProfile profileOfNewRow(const ProfileRows::Row &row)
{
    USSDProfile profile;
    profile.showButton = true;
    profile.value = row.code.trimmed();
    profile.name = isBlank(row.name) ? profile.value : row.name.trimmed();
    return profile;
}

} // namespace

namespace ProfileRows
{

QList<USSDProfile> profiles(const QList<Row> &rows, const QList<USSDProfile> &shown)
{
    QList<USSDProfile> result;
    for (int i = 0; i < rows.count(); ++i) {
        const Row &row = rows.at(i);
        if (i >= shown.count()) {
            if (!isBlank(row.code))
                result.append(profileOfNewRow(row));
        } else if (isSame(row, shown.at(i))) {
            result.append(shown.at(i));
        } else if (!isTakenAway(row, shown.at(i))) {
            result.append(editedProfile(row, shown.at(i)));
        }
    }
    return result + shown.mid(rows.count());
}

QList<USSDProfile> ofFile(const QList<USSDProfile> &profiles, bool isSystem)
{
    QList<USSDProfile> result;
    for (int i = 0; i < profiles.count(); ++i) {
        if (profiles.at(i).isSystem == isSystem)
            result.append(profiles.at(i));
    }
    return result;
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
