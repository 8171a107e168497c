#ifndef ACCESSIBLEROLES_H
#define ACCESSIBLEROLES_H

namespace Dashboard
{

/// Gives the widgets of the main window the roles that screen readers expect. May be called more
/// than once.
void installAccessibleRoles();

} // namespace Dashboard

#endif
