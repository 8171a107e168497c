#include "LanguageProblem.h"

#include "Languages.h"

const char *languageProblem(const QString &code)
{
    return Languages::fileState(code) == Languages::Damaged ? "LANGUAGE_DAMAGED"
                                                            : "LANGUAGE_MISSING";
}
