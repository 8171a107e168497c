#ifndef PLUGINFAILURE_H
#define PLUGINFAILURE_H

#include <QString>

namespace Dashboard
{

/** The reason why a plug-in could not be used: the step that failed, and details about it. */
struct PluginFailure {
    enum Step {
        None,
        FileMissing,
        NotALibrary, // the file is not a library, or it has an unmet dependency
        WrongBuild,  // the library is not a plug-in, or it is a plug-in for another Qt
        NoInstance,
        NoInterface,
        InitFailed,
        NoService
    };

    Step step = None;
    QString file;
    QString detail; // the loader's error message, or the missing identifier

    /// Returns the error message in the user's language, or an empty string for None.
    QString text() const;
};

} // namespace Dashboard

#endif
