#include "Json.h"

#include <memory>

#include "SafeText.h"

namespace Cli
{

Json::Json() : m_object(json_object_new()) {}

Json::~Json()
{
    json_object_unref(m_object);
}

void Json::add(const char *name, const std::string &value)
{
    json_object_set_string_member(m_object, name, value.c_str());
}

void Json::add(const char *name, const char *value)
{
    json_object_set_string_member(m_object, name, value);
}

void Json::add(const char *name, int value)
{
    json_object_set_int_member(m_object, name, value);
}

void Json::add(const char *name, bool value)
{
    json_object_set_boolean_member(m_object, name, value ? TRUE : FALSE);
}

void Json::addSeconds(const char *name, double value)
{
    char number[G_ASCII_DTOSTR_BUF_SIZE];
    m_seconds =
        std::string(",\"") + name + "\":" + g_ascii_formatd(number, sizeof number, "%.3f", value);
}

std::string Json::text() const
{
    JsonNode *const node = json_node_new(JSON_NODE_OBJECT);
    json_node_set_object(node, m_object);
    const std::unique_ptr<char, decltype(&g_free)> line(json_to_string(node, FALSE), g_free);
    json_node_unref(node);
    std::string text = safeJson(line.get());
    text.insert(text.size() - 1, m_seconds);
    return text;
}

} // namespace Cli
