#ifndef TKSV_INTERNAL_COMPLAINT_H
#define TKSV_INTERNAL_COMPLAINT_H

#include <string>
#include <vector>

namespace Tksv
{

/** An error in a file. The message is intended for the author of the file. */
struct Complaint {
    std::string file;
    int line = 0; // starts at 1; 0 refers to the entire file
    std::string text;
};

/// Returns the complaints as lines of the form "file:line: text", without a final line feed.
std::string describe(const std::vector<Complaint> &complaints);

/** Collects the errors in one file. */
class Complaints
{
public:
    explicit Complaints(std::string file) : m_file(std::move(file)) {}
    void add(int line, const std::string &text) { m_list.push_back({m_file, line, text}); }
    bool isEmpty() const { return m_list.empty(); }
    std::size_t count() const { return m_list.size(); }
    /// Returns the complaints, sorted by line number.
    std::vector<Complaint> sorted() const;

private:
    std::string m_file;
    std::vector<Complaint> m_list;
};

} // namespace Tksv

#endif
