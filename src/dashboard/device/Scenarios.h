#ifndef SCENARIOS_H
#define SCENARIOS_H

#include <QString>
#include <QStringList>

namespace Dashboard
{

/** The simulated networks. */
namespace Scenarios
{

/// Returns the installed scenario files, sorted by name.
QStringList shipped();
/// Returns the name of a scenario file as shown in menus.
QString displayName(const QString &file);

/// Makes the device SDK use the simulated network of the file, and returns an empty string. An
/// empty name selects the default network. If the file contains an error, has no effect and returns
/// the error with its line number.
QString use(const QString &file);

} // namespace Scenarios

} // namespace Dashboard

#endif
