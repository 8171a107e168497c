#ifndef MODEM_MISBEHAVIOUR_H
#define MODEM_MISBEHAVIOUR_H

#include <string>
#include <vector>

namespace modem
{

enum class Fault {
    Error,          // ERROR
    EquipmentError, // +CME ERROR: value
    MessageError,   // +CMS ERROR: value
    Silence,        // nothing at all: neither answer nor result
    Late,           // value milliseconds later
    Garbled,        // every third character is another one
    HangUp          // the connection ends in its place
};

const int ALWAYS = -1;

/** What goes wrong, and where. */
struct Misbehaviour {
    /// Beginning of a command ("AT+CUSD=1") or of an unsolicited line ("+CUSD:").
    std::string start;
    Fault fault = Fault::Error;
    int value = 0;
    int times = 1;
};

/** The faults that are still to come. */
class Misbehaviours
{
public:
    void add(const Misbehaviour &misbehaviour) { m_list.push_back(misbehaviour); }
    void clear() { m_list.clear(); }
    /// Counts it, when it is one of those that go wrong; `found` says how.
    bool take(const std::string &line, Misbehaviour &found);

private:
    std::vector<Misbehaviour> m_list;
};

/// Behind its name and colon, so that the daemon still takes the line for what it was.
std::string garbled(std::string line);

} // namespace modem

#endif
