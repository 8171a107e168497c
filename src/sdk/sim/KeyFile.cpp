#include "KeyFile.h"

#include <algorithm>
#include <glib.h>
#include <memory>
#include <unordered_map>

namespace Tksv
{

namespace
{

using GKeyFilePointer = std::unique_ptr<GKeyFile, decltype(&g_key_file_free)>;

GKeyFilePointer parse(const std::string &text)
{
    GKeyFilePointer file(g_key_file_new(), &g_key_file_free);
    if (!g_key_file_load_from_data(file.get(), text.data(), text.size(),
                                   G_KEY_FILE_KEEP_TRANSLATIONS, nullptr))
        file.reset();
    return file;
}

std::string trimmed(const std::string &text)
{
    const char blanks[] = " \t\r\n\v\f";
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string::npos)
        return std::string();
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::vector<std::string> splitLines(const std::string &text)
{
    std::vector<std::string> lines;
    std::size_t start = 0;
    for (std::size_t end = text.find('\n'); end != std::string::npos;
         end = text.find('\n', start)) {
        lines.push_back(text.substr(start, end - start));
        start = end + 1;
    }
    lines.push_back(text.substr(start));
    return lines;
}

std::string join(const std::vector<std::string> &lines)
{
    std::string text;
    for (const std::string &line : lines)
        text += line + "\n";
    return text;
}

bool isHeader(const std::string &line)
{
    const std::string content = trimmed(line);
    return !content.empty() && content.front() == '[';
}

/// Reports each line that is not valid UTF-8 and replaces the invalid bytes, so that the rest of
/// the file can be checked.
void mendNonUtf8(std::vector<std::string> &lines, Complaints &complaints)
{
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const gssize size = static_cast<gssize>(lines[i].size());
        if (g_utf8_validate(lines[i].data(), size, nullptr))
            continue;
        complaints.add(static_cast<int>(i) + 1, "expected text in UTF-8");
        char *valid = g_utf8_make_valid(lines[i].data(), size);
        lines[i] = valid;
        g_free(valid);
    }
}

/**
 * Finds the lines that GKeyFile rejects. GKeyFile itself reports only the first such line, and
 * without its line number. The search parses each line separately, so its running time is linear in
 * the size of the file.
 */
class BadLineSearch
{
public:
    bool isBad(const std::string &line)
    {
        const std::string groups = m_groups == 0 ? "" : m_groups == 1 ? "[1]\n" : "[1]\n[2]\n";
        const bool isBad = !parse((isHeader(line) ? "" : groups) + line);
        if (!isBad && isHeader(line) && m_groups < 2)
            ++m_groups;
        return isBad;
    }

private:
    int m_groups = 0; // number of preceding groups, counted only up to 2
};

/// Returns the header without the characters that are not allowed in it. Returns an empty string if
/// no characters remain.
std::string repairedHeader(const std::string &line)
{
    const std::string content = trimmed(line);
    std::string name = content.substr(0, content.find(']'));
    const auto isForbidden = [](char c) { return c == '[' || g_ascii_iscntrl(c); };
    name.erase(std::remove_if(name.begin(), name.end(), isForbidden), name.end());
    return name.empty() ? name : "[" + name + "]";
}

/// Returns true if the bad line appears to be a header whose opening bracket is missing.
bool isMeantAsHeader(const std::string &line)
{
    const std::string content = trimmed(line);
    return !content.empty() && content.back() == ']' && content.find('=') == std::string::npos;
}

void complainAboutLine(std::size_t index, const std::string &line, Complaints &complaints)
{
    complaints.add(static_cast<int>(index) + 1,
                   "expected [group], key=value below a group, a comment that begins with #, or "
                   "an empty line, found \"" +
                       trimmed(line) + "\"");
}

/// Reports each line that is not valid in a key file. Bad headers are repaired, and other bad lines
/// are cleared. If a header cannot be repaired, its keys are cleared as well, because they would
/// otherwise become part of the preceding group.
void mendBadLines(std::vector<std::string> &lines, Complaints &complaints)
{
    BadLineSearch search;
    bool isGroupLost = false;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const bool isBad = search.isBad(lines[i]);
        const bool startsGroup = isHeader(lines[i]) || (isBad && isMeantAsHeader(lines[i]));
        if (isBad && (startsGroup || !isGroupLost))
            complainAboutLine(i, lines[i], complaints);
        if (isBad)
            lines[i] = startsGroup ? repairedHeader(lines[i]) : std::string();
        if (startsGroup)
            isGroupLost = isBad && (lines[i].empty() || search.isBad(lines[i]));
        if (isGroupLost)
            lines[i].clear();
    }
}

/** Collects the groups and keys of a text that GKeyFile has accepted, with their line numbers. */
class LineScan
{
public:
    LineScan(GKeyFile *file, Complaints &complaints) : m_file(file), m_complaints(complaints) {}

    void take(const std::string &line)
    {
        ++m_line;
        const std::string content = trimmed(line);
        if (content.empty() || content.front() == '#')
            return;
        if (content.front() == '[')
            takeGroup(content.substr(1, content.find(']') - 1));
        else
            takeKey(trimmed(content.substr(0, content.find('='))));
    }

    std::vector<KeyFileGroup> groups;

private:
    void takeGroup(const std::string &name)
    {
        const auto added = m_groupLines.emplace(name, m_line);
        if (!added.second)
            complainAboutSecond("[" + name + "]: expected each group once", added.first->second);
        groups.push_back(KeyFileGroup{name, m_line, {}, false});
        m_keyLines.clear();
    }

    void takeKey(const std::string &key)
    {
        KeyFileGroup &group = groups.back();
        const auto added = m_keyLines.emplace(key, m_line);
        if (!added.second) {
            complainAboutSecond(key + ": expected each key once in a group", added.first->second);
            return;
        }
        group.entries.push_back(KeyFileEntry{key, value(group.name, key), m_line});
    }

    void complainAboutSecond(const std::string &rule, int firstLine)
    {
        m_complaints.add(m_line,
                         rule + "; line " + std::to_string(firstLine) + " already defines it");
    }

    std::string value(const std::string &group, const std::string &key)
    {
        GError *error = nullptr;
        char *text = g_key_file_get_string(m_file, group.c_str(), key.c_str(), &error);
        if (error) // GKeyFile may return both a string and an error
            m_complaints.add(m_line, key + ": expected n, t, s, r or \\ after each \\");
        std::string result = text ? text : "";
        g_clear_error(&error);
        g_free(text);
        return result;
    }

    GKeyFile *m_file;
    Complaints &m_complaints;
    std::unordered_map<std::string, int> m_groupLines; // line number of each group
    std::unordered_map<std::string, int> m_keyLines;   // line number of each key of the group
    int m_line = 0;
};

/// Marks each group in which a complaint was found.
void markDamaged(std::vector<KeyFileGroup> &groups, const std::vector<Complaint> &sorted)
{
    std::size_t next = 0; // the first group that starts after the complaint
    for (const Complaint &complaint : sorted) {
        while (next < groups.size() && groups[next].line <= complaint.line)
            ++next;
        if (next > 0)
            groups[next - 1].isDamaged = true;
    }
}

std::string withoutByteOrderMark(const std::string &text)
{
    const char mark[] = "\xEF\xBB\xBF";
    return text.compare(0, 3, mark) == 0 ? text.substr(3) : text;
}

} // namespace

const KeyFileEntry *KeyFileGroup::find(const std::string &key) const
{
    const auto matches = [&key](const KeyFileEntry &entry) { return entry.key == key; };
    const auto found = std::find_if(entries.begin(), entries.end(), matches);
    return found == entries.end() ? nullptr : &*found;
}

std::vector<KeyFileGroup> readKeyFile(const std::string &text, Complaints &complaints)
{
    std::vector<std::string> lines = splitLines(withoutByteOrderMark(text));
    mendNonUtf8(lines, complaints);
    GKeyFilePointer file = parse(join(lines));
    if (!file) {
        mendBadLines(lines, complaints);
        file = parse(join(lines));
    }
    if (!file) {
        complaints.add(0, "expected a key file");
        return {};
    }
    LineScan scan(file.get(), complaints);
    for (const std::string &line : lines)
        scan.take(line);
    markDamaged(scan.groups, complaints.sorted());
    return scan.groups;
}

} // namespace Tksv
