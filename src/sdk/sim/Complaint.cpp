#include "Complaint.h"

#include <algorithm>

namespace Tksv
{

namespace
{

std::string describe(const Complaint &complaint)
{
    const std::string line = complaint.line > 0 ? ":" + std::to_string(complaint.line) : "";
    return complaint.file + line + ": " + complaint.text;
}

} // namespace

std::string describe(const std::vector<Complaint> &complaints)
{
    std::string text;
    for (const Complaint &complaint : complaints)
        text += (text.empty() ? "" : "\n") + describe(complaint);
    return text;
}

std::vector<Complaint> Complaints::sorted() const
{
    std::vector<Complaint> list = m_list;
    const auto isBefore = [](const Complaint &a, const Complaint &b) { return a.line < b.line; };
    std::stable_sort(list.begin(), list.end(), isBefore);
    return list;
}

} // namespace Tksv
