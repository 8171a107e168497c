#ifndef TOUR_H
#define TOUR_H

#include <QString>

namespace Dashboard
{

class MainWindow;
class PrivatePluginFolder;

/**
 * Walks through the windows as a user would, in several languages, takes a picture at each stop and
 * writes a transcript of the texts shown. GUI thread; handles events meanwhile.
 */
namespace Tour
{

/// Takes the whole tour and writes its files to `folder`, which is created when needed. `window`
/// must be visible, with its plug-in loaded from `library`. Prints each step, and errors to
/// standard error. Returns whether every stop was reached and every file was written.
bool take(MainWindow *window, PrivatePluginFolder *library, const QString &folder);

} // namespace Tour

} // namespace Dashboard

#endif
