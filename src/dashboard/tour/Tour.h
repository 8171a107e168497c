#ifndef TOUR_H
#define TOUR_H

#include <QString>

class MainWindow;
class PrivateLibrary;

/**
 * Walks through the windows as a user would, in several languages, takes a picture at each stop and
 * writes down what the windows said. GUI thread; handles events meanwhile.
 */
namespace Tour
{

/// `window` is shown and has its plug-in, which uses `library`. `folder` is made when needed.
/// Prints each step. Returns whether every stop was reached and every file written; what went wrong
/// goes to standard error.
bool take(MainWindow *window, PrivateLibrary *library, const QString &folder);

} // namespace Tour

#endif
