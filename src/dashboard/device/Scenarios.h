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

/// Selects the simulated network of the file as the device. An empty name selects the default.
/// Returns an empty string on success. On failure, has no effect and returns the error in the file
/// with its line number.
QString use(const QString &file);

} // namespace Scenarios

} // namespace Dashboard

#endif
