#ifndef USSDTEMPLATE_H
#define USSDTEMPLATE_H

#include "ProviderDatabase.h"

namespace Provisioning
{

/** A code of the database, converted to the plug-in's format. */
struct UssdTemplate {
    QString code;            // contains "%s" instead of the user's input; empty if not usable
    bool takesInput = false; // the code contains "%s"
    QString problem;         // the reason why the code is not usable; empty if it is
};

/// Converts a code such as "*103*CODE#" with the replacement "CODE" to "*103*%s#". Only the text of
/// the replacement attribute is replaced. A code without this attribute takes no input.
UssdTemplate ussdTemplate(const ProviderCode &code);

} // namespace Provisioning

#endif
