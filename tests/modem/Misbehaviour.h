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
    HangUp          // closes the connection instead of sending a line
};

const int ALWAYS = -1;

/** A fault and the lines that it affects. */
struct Misbehaviour {
    /// The beginning of a command ("AT+CUSD=1") or of an unsolicited line ("+CUSD:").
    std::string start;
    Fault fault = Fault::Error;
    int value = 0;
    int times = 1;
};

/** The faults that have not occurred yet. */
class Misbehaviours
{
public:
    void add(const Misbehaviour &misbehaviour) { m_list.push_back(misbehaviour); }
    void clear() { m_list.clear(); }
    /// If a fault affects the line, stores the fault in `found`, decrements the number of its
    /// remaining occurrences and returns true. Otherwise returns false.
    bool take(const std::string &line, Misbehaviour &found);

private:
    std::vector<Misbehaviour> m_list;
};

/// Garbles the line after the first colon, so that the daemon still recognises the type of the
/// line.
std::string garbled(std::string line);

} // namespace FakeModems

#endif
