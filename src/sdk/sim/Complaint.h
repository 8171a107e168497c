#ifndef TKSV_INTERNAL_COMPLAINT_H
#define TKSV_INTERNAL_COMPLAINT_H

#include <string>
#include <vector>

namespace tksv
{

/** What is wrong with a file that somebody wrote, said so that he can mend it. */
struct Complaint {
    std::string file;
    int line = 0; // from 1; 0: the file as a whole
    std::string text;
};

/// "file:line: text", one a line, without a line feed at the end.
std::string describe(const std::vector<Complaint> &complaints);

/** Collects the complaints about one file. */
class Complaints
{
public:
    explicit Complaints(std::string file) : m_file(std::move(file)) {}
    void add(int line, const std::string &text) { m_list.push_back({m_file, line, text}); }
    bool isEmpty() const { return m_list.empty(); }
    std::size_t count() const { return m_list.size(); }
    /// In the order of the lines.
    std::vector<Complaint> sorted() const;

private:
    std::string m_file;
    std::vector<Complaint> m_list;
};

} // namespace tksv

#endif
