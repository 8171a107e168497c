#ifndef USSDTEMPLATE_H
#define USSDTEMPLATE_H

#include "ProviderDatabase.h"

namespace Provisioning
{

/** A code from the database, converted to the format of the plug-in. */
struct UssdTemplate {
    QString code;            // contains "%s" for the user's input; empty if not usable
    bool takesInput = false; // true if the code contains "%s"
    QString problem;         // the reason why the code cannot be used; empty if it can
};

/// Converts a code to the format of the plug-in. For example, "*103*CODE#" with the replacement
/// "CODE" becomes "*103*%s#". A code without a replacement attribute does not accept input.
UssdTemplate ussdTemplate(const ProviderCode &code);

} // namespace Provisioning

#endif
