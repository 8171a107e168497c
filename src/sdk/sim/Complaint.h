#ifndef TKSV_INTERNAL_COMPLAINT_H
#define TKSV_INTERNAL_COMPLAINT_H

#include <string>
#include <vector>

namespace Tksv
{

/** A fault in a file, with a description for the author of the file. */
struct Complaint {
    std::string file;
    int line = 0; // counts from 1; 0 means the whole file
    std::string text;
};

/// Returns one line "file:line: text" for each complaint, without a line feed at the end.
std::string describe(const std::vector<Complaint> &complaints);

/** Collects the complaints about one file. */
class Complaints
{
public:
    explicit Complaints(std::string file) : m_file(std::move(file)) {}
    void add(int line, const std::string &text) { m_list.push_back({m_file, line, text}); }
    bool isEmpty() const { return m_list.empty(); }
    std::size_t count() const { return m_list.size(); }
    /// Returns the complaints in the order of their lines.
    std::vector<Complaint> sorted() const;

private:
    std::string m_file;
    std::vector<Complaint> m_list;
};

} // namespace Tksv

#endif
