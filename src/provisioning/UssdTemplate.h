#ifndef USSDTEMPLATE_H
#define USSDTEMPLATE_H

#include "ProviderDatabase.h"

/** A database code in the plug-in's form. */
struct UssdTemplate {
    QString code;            // with "%s" where the user's input goes; empty when it cannot be used
    bool takesInput = false; // whether there is a "%s"
    QString problem;         // why it cannot be used; empty when it can
};

/// Turns "*103*CODE#" with the replacement "CODE" into "*103*%s#". What is replaced is what the
/// attribute says and nothing else: without one the code takes no input, whatever it looks like.
UssdTemplate ussdTemplate(const ProviderCode &code);

#endif
