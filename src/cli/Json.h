#ifndef CLI_JSON_H
#define CLI_JSON_H

#include <json-glib/json-glib.h>
#include <string>

namespace Cli
{

/**
 * A JSON object on a single line. The members are written in the order in which they were added.
 */
class Json
{
public:
    Json();
    ~Json();
    Json(const Json &) = delete;
    Json &operator=(const Json &) = delete;

    /// Adds a member. Strings must be encoded in UTF-8.
    void add(const char *name, const std::string &value);
    void add(const char *name, const char *value);
    void add(const char *name, int value);
    void add(const char *name, bool value);
    /// Adds a number, rounded to milliseconds, as the last member. json-glib would write the number
    /// with all its digits, for example 0.69999999999999996 instead of 0.7.
    void addSeconds(const char *name, double value);

    /// Returns the object without a line feed at the end. Control characters are escaped.
    std::string text() const;

private:
    JsonObject *const m_object;
    std::string m_seconds; // the text of the member that addSeconds() adds
};

} // namespace Cli

#endif
