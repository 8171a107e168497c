#include "CodeForm.h"

namespace Tksv
{

bool hasFormOfCode(const std::string &text)
{
    return text.size() > 1 && (text.front() == '*' || text.front() == '#') && text.back() == '#';
}

} // namespace Tksv
