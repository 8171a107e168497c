#ifndef LANGUAGEPROBLEM_H
#define LANGUAGEPROBLEM_H

class QString;

namespace Dashboard
{

/// Returns the text key of the error message for a language whose file is missing or damaged. %1 in
/// the message is the path of the file.
const char *languageProblem(const QString &code);

} // namespace Dashboard

#endif
