#ifndef SCENARIOS_H
#define SCENARIOS_H

#include <QString>
#include <QStringList>

namespace Dashboard
{

/** The simulated networks. */
namespace Scenarios
{

/// Returns the installed scenario files, which describe simulated networks, sorted by name.
QStringList shipped();
/// Returns the name that menus display for the scenario file.
QString displayName(const QString &file);

/// Makes the device SDK simulate the network of the file and returns an empty string. If `file` is
/// empty, the default network is used. If the file is invalid, keeps the current device and returns
/// the error with its line number.
QString use(const QString &file);

} // namespace Scenarios

} // namespace Dashboard

#endif
