#ifndef USSDTEMPLATE_H
#define USSDTEMPLATE_H

#include "ProviderDatabase.h"

namespace Provisioning
{

/** A code of the database, converted to the plug-in's format. */
struct UssdTemplate {
    QString code;            // contains "%s" instead of the user's input; empty if not usable
    bool takesInput = false; // the code contains "%s"
    QString problem;         // the reason why the code cannot be used; empty if it can be used
};

/// Converts a code such as "*103*CODE#" with the replacement "CODE" to "*103*%s#". Only the value
/// of the replacement attribute is replaced. A code without this attribute does not take any input.
UssdTemplate ussdTemplate(const ProviderCode &code);

} // namespace Provisioning

#endif
