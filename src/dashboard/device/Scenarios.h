#ifndef SCENARIOS_H
#define SCENARIOS_H

#include <QString>
#include <QStringList>

/** The simulated networks. */
namespace Scenarios
{

/// The files that come with the program, by name.
QStringList shipped();
/// How a scenario file is called in a menu.
QString displayName(const QString &file);

/// Makes the network of the file the device; an empty name stands for the default. Returns what is
/// wrong with the file and where, and then nothing has changed; empty when it is in use.
QString use(const QString &file);

} // namespace Scenarios

#endif
