#ifndef PLUGINFAILURE_H
#define PLUGINFAILURE_H

#include <QString>

/** Why a plug-in could not be used: the step that failed, and what is known about it. */
struct PluginFailure {
    enum Step {
        None,
        FileMissing,
        NotALibrary, // or one that lacks something it needs
        WrongBuild,  // a library, but no plug-in, or one for another Qt
        NoInstance,
        NoInterface,
        InitFailed,
        NoService
    };

    Step step = None;
    QString file;
    QString detail; // the loader's own words, or the identifier that is missing

    /// In the user's language; empty for None.
    QString text() const;
};

#endif
