#include "KeyFile.h"

#include <algorithm>
#include <glib.h>
#include <memory>

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

std::string join(const std::vector<std::string> &lines, std::size_t count)
{
    std::string text;
    for (std::size_t i = 0; i < count; ++i)
        text += lines[i] + "\n";
    return text;
}

/// Returns the index of the first line that GKeyFile rejects. All lines before it form a valid key
/// file.
std::size_t firstRefusedLine(const std::vector<std::string> &lines)
{
    std::size_t good = 0;
    std::size_t bad = lines.size();
    while (bad - good > 1) {
        const std::size_t middle = good + (bad - good) / 2;
        (parse(join(lines, middle)) ? good : bad) = middle;
    }
    return bad - 1;
}

bool reportNonUtf8(const std::vector<std::string> &lines, Complaints &complaints)
{
    bool found = false;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (g_utf8_validate(lines[i].data(), static_cast<gssize>(lines[i].size()), nullptr))
            continue;
        complaints.add(static_cast<int>(i) + 1, "expected text in UTF-8");
        found = true;
    }
    return found;
}

/// Parses the lines. Reports and clears each line that is not valid in a key file.
GKeyFilePointer parseWithoutBadLines(std::vector<std::string> lines, Complaints &complaints)
{
    GKeyFilePointer file = parse(join(lines, lines.size()));
    while (!file) {
        const std::size_t bad = firstRefusedLine(lines);
        complaints.add(
            static_cast<int>(bad) + 1,
            "expected [group], key=value below a group, a comment that begins with #, or "
            "an empty line, found \"" +
                trimmed(lines[bad]) + "\"");
        lines[bad].clear();
        file = parse(join(lines, lines.size()));
    }
    return file;
}

bool containsGroup(const std::vector<KeyFileGroup> &groups, const std::string &name, int &line)
{
    const auto matches = [&name](const KeyFileGroup &group) { return group.name == name; };
    const auto found = std::find_if(groups.begin(), groups.end(), matches);
    if (found != groups.end())
        line = found->line;
    return found != groups.end();
}

/** Collects the groups and keys from the lines of a text that GKeyFile has accepted. */
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
        int earlier = 0;
        if (containsGroup(groups, name, earlier))
            complainAboutSecond("[" + name + "]: expected each group once", earlier);
        groups.push_back(KeyFileGroup{name, m_line, {}});
    }

    void takeKey(const std::string &key)
    {
        KeyFileGroup &group = groups.back();
        if (const KeyFileEntry *earlier = group.find(key)) {
            complainAboutSecond(key + ": expected each key once in a group", earlier->line);
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
    int m_line = 0;
};

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
    const std::vector<std::string> lines = splitLines(withoutByteOrderMark(text));
    if (reportNonUtf8(lines, complaints))
        return {};
    const GKeyFilePointer file = parseWithoutBadLines(lines, complaints);
    if (!complaints.isEmpty())
        return {};
    LineScan scan(file.get(), complaints);
    for (const std::string &line : lines)
        scan.take(line);
    return scan.groups;
}

} // namespace Tksv
