#ifndef TOUR_H
#define TOUR_H

#include <QString>

namespace Dashboard
{

class MainWindow;
class PrivatePluginFolder;

/**
 * Operates the windows as a user does, in several languages. Takes a picture at each stop, and
 * writes a transcript of the visible texts. Must be called on the GUI thread. Processes events
 * meanwhile.
 */
namespace Tour
{

/// Runs the whole tour and writes its files to `folder`, which is created if necessary. `window`
/// must be visible, with its plug-in loaded from `library`. Prints each step, and prints errors to
/// standard error. Returns whether every stop was reached and every file was written.
bool take(MainWindow *window, PrivatePluginFolder *library, const QString &folder);

} // namespace Tour

} // namespace Dashboard

#endif
