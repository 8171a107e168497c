#include "LanguageProblem.h"

#include "Languages.h"

namespace Dashboard
{

const char *languageProblem(const QString &code)
{
    return HostCore::Languages::fileState(code) == HostCore::Languages::Damaged
               ? "LANGUAGE_DAMAGED"
               : "LANGUAGE_MISSING";
}

} // namespace Dashboard
