#ifndef MODEM_MISBEHAVIOUR_H
#define MODEM_MISBEHAVIOUR_H

#include <string>
#include <vector>

namespace FakeModems
{

enum class Fault {
    Error,          // answers ERROR
    EquipmentError, // answers +CME ERROR with `value`
    MessageError,   // answers +CMS ERROR with `value`
    Silence,        // sends nothing, neither an answer nor a result
    Late,           // delays the line by `value` milliseconds
    Garbled,        // replaces every third character
    HangUp          // closes the connection instead of sending the line
};

const int ALWAYS = -1;

/** A fault and the lines to which it applies. */
struct Misbehaviour {
    /// The start of a command ("AT+CUSD=1") or of an unsolicited line ("+CUSD:").
    std::string start;
    Fault fault = Fault::Error;
    int value = 0;
    int times = 1;
};

/** The faults that have not yet occurred. */
class Misbehaviours
{
public:
    void add(const Misbehaviour &misbehaviour) { m_list.push_back(misbehaviour); }
    void clear() { m_list.clear(); }
    /// Returns true if a fault applies to the line. In this case, stores the fault in `found` and
    /// decrements the number of its remaining occurrences.
    bool take(const std::string &line, Misbehaviour &found);

private:
    std::vector<Misbehaviour> m_list;
};

/// Garbles the line after its name and colon, so that the daemon still recognises the type of the
/// line.
std::string garbled(std::string line);

} // namespace FakeModems

#endif
