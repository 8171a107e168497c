#ifndef FORWARDTRACE_H
#define FORWARDTRACE_H

#include "XmlElements.h"

namespace Tools
{

/**
 * Reproduces the plug-in's forward scan of a document and keeps track of the position. The scan
 * finds the next element with a given name at any depth. After the text of an element has been
 * read, the scan continues after the end of this element.
 */
class ForwardTrace
{
public:
    explicit ForwardTrace(const XmlElements &elements) : m_elements(elements) {}

    /// Moves to the next element with this name and returns its index. If there is no such element,
    /// moves to the end of the document and returns -1.
    int seek(const char *name);
    /// Returns the text of the element that was found last, or an empty string if none was found.
    QString text();
    /// Returns the current position, which can later be restored with moveTo().
    int position() const { return m_next; }
    void moveTo(int position)
    {
        m_next = position;
        m_current = -1;
    }
    /// Returns the index of the last element with this name that precedes the current position, or
    /// -1 if there is none.
    int passed(const char *name) const;

private:
    const XmlElements &m_elements;
    int m_next = 0;
    int m_current = -1;
};

} // namespace Tools

#endif
