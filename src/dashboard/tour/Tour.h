#ifndef TOUR_H
#define TOUR_H

#include <QString>

namespace Dashboard
{

class MainWindow;
class PrivatePluginFolder;

/**
 * The tour, which operates the windows as a user would, takes a picture at each stop, and writes a
 * transcript of the visible texts. Processes events while it is running. All functions must be
 * called from the GUI thread.
 */
namespace Tour
{

/// Runs the tour and writes its files to `folder`, which is created if necessary. If `language` is
/// empty, visits the most important stops in each language. Otherwise, makes the complete tour in
/// this language. `window` must be visible, with its plug-in loaded from `library`. Prints each
/// step to standard output and errors to standard error. Returns true if every stop was reached and
/// every file was written.
bool take(MainWindow *window, PrivatePluginFolder *library, const QString &folder,
          const QString &language);

} // namespace Tour

} // namespace Dashboard

#endif
