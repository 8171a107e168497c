#ifndef PLUGINFAILURE_H
#define PLUGINFAILURE_H

#include <QString>

namespace Dashboard
{

/** The reason why a plug-in could not be used: the failed step and its details. */
struct PluginFailure {
    enum Step {
        None,
        FileMissing,
        NotALibrary, // the file is not a library, or a dependency is missing
        WrongBuild,  // the library is not a plug-in, or was built for another Qt version
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
