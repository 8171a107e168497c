#ifndef FORWARDTRACE_H
#define FORWARDTRACE_H

#include "XmlElements.h"

/**
 * Walks over a document as the plug-in's forward scan does, and knows at each step where it stands:
 * the next element of a name, wherever it stands; behind an element's text the scan goes on behind
 * the element.
 */
class ForwardTrace
{
public:
    explicit ForwardTrace(const XmlElements &elements) : m_elements(elements) {}

    /// The place of the next element with this name; -1 when there is none, and then none any more.
    int seek(const char *name);
    /// The text of the element that was found last; empty when none was.
    QString text();
    /// The nearest element with this name that the scan has passed; -1 when there is none.
    int passed(const char *name) const;

private:
    const XmlElements &m_elements;
    int m_next = 0;
    int m_current = -1;
};

#endif
