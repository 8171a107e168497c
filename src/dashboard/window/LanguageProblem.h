#ifndef LANGUAGEPROBLEM_H
#define LANGUAGEPROBLEM_H

class QString;

/// The key of the text that says why the language cannot be used: its file, the text's "%1", is
/// missing or damaged.
const char *languageProblem(const QString &code);

#endif
