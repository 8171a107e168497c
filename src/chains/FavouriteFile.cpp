#include "FavouriteFile.h"

#include <json-glib/json-glib.h>
#include <memory>

namespace Chains
{

namespace
{

const int VERSION = 1;
const int DEEPEST = 16; // maximum nesting depth; json-glib itself has no limit

using Node = std::unique_ptr<JsonNode, decltype(&json_node_unref)>;

// ---- reading -------------------------------------------------------------------------------

/// Returns true if the objects and arrays are not nested too deeply. Brackets in strings are not
/// counted.
bool isShallow(const std::string &json)
{
    int depth = 0;
    bool isInString = false;
    for (std::size_t i = 0; i < json.size(); ++i) {
        const char c = json[i];
        if (isInString && c == '\\')
            ++i;
        else if (c == '"')
            isInString = !isInString;
        else if (!isInString && (c == '{' || c == '['))
            ++depth;
        else if (!isInString && (c == '}' || c == ']'))
            --depth;
        if (depth > DEEPEST)
            return false;
    }
    return true;
}

/// Parses the string. Returns null if the string is not a JSON object or is nested too deeply.
Node parse(const std::string &json)
{
    JsonNode *root = nullptr;
    const bool isUtf8 = g_utf8_validate(json.data(), static_cast<gssize>(json.size()), nullptr);
    if (isUtf8 && isShallow(json))
        root = json_from_string(json.c_str(), nullptr);
    Node node(root, json_node_unref);
    if (node && !JSON_NODE_HOLDS_OBJECT(node.get()))
        node.reset();
    return node;
}

JsonObject *objectIn(JsonNode *node)
{
    return node && JSON_NODE_HOLDS_OBJECT(node) ? json_node_get_object(node) : nullptr;
}

std::string stringIn(JsonObject *object, const char *name)
{
    JsonNode *const node = object ? json_object_get_member(object, name) : nullptr;
    if (!node || json_node_get_value_type(node) != G_TYPE_STRING)
        return std::string();
    return json_node_get_string(node);
}

bool hasKnownVersion(JsonObject *object)
{
    JsonNode *const node = json_object_get_member(object, "version");
    return node && json_node_get_value_type(node) == G_TYPE_INT64 &&
           json_node_get_int(node) == VERSION;
}

/** Reads the networks. Skips invalid parts and clears FavouriteFile::isWhole if there are any. */
class Reader
{
public:
    explicit Reader(FavouriteFile &file) : m_file(file) {}
    void readNetworks(JsonObject *networks);

private:
    NetworkFavourites readNetwork(JsonObject *object);
    Favourite readFavourite(JsonObject *object, const NetworkFavourites &network);
    static Chain readChain(JsonObject *object);
    /// Returns the objects in the array `name` of `parent`. Returns an empty list if there is no
    /// such array.
    std::vector<JsonObject *> objects(JsonObject *parent, const char *name);

    FavouriteFile &m_file;
};

std::vector<JsonObject *> Reader::objects(JsonObject *parent, const char *name)
{
    std::vector<JsonObject *> found;
    JsonNode *const node = json_object_get_member(parent, name);
    if (!node)
        return found;
    if (!JSON_NODE_HOLDS_ARRAY(node)) {
        m_file.isWhole = false;
        return found;
    }
    JsonArray *const array = json_node_get_array(node);
    for (guint i = 0; i < json_array_get_length(array); ++i) {
        if (JsonObject *const object = objectIn(json_array_get_element(array, i)))
            found.push_back(object);
        else
            m_file.isWhole = false;
    }
    return found;
}

Chain Reader::readChain(JsonObject *object)
{
    Chain chain;
    chain.name = stringIn(object, "name");
    chain.code = stringIn(object, "code");
    JsonNode *const steps = json_object_get_member(object, "steps");
    if (!steps || !JSON_NODE_HOLDS_ARRAY(steps))
        return chain;
    JsonArray *const array = json_node_get_array(steps);
    for (guint i = 0; i < json_array_get_length(array); ++i) {
        JsonObject *const step = objectIn(json_array_get_element(array, i));
        chain.steps.push_back({stringIn(step, "key"), stringIn(step, "text")});
    }
    return chain;
}

/// Returns the favourite that the object describes. If the object is not valid, returns a favourite
/// without a name and a code.
Favourite Reader::readFavourite(JsonObject *object, const NetworkFavourites &network)
{
    Favourite favourite{stringIn(object, "name"), stringIn(object, "code")};
    const std::string chain = stringIn(object, "chain");
    if (!chain.empty())
        return network.chain(chain) ? Favourite{chain, std::string()} : Favourite();
    return favourite.code.empty() ? Favourite() : favourite;
}

NetworkFavourites Reader::readNetwork(JsonObject *object)
{
    NetworkFavourites network;
    for (JsonObject *const element : objects(object, "chains")) {
        const Chain chain = readChain(element);
        if (isComplete(chain) && !network.chain(chain.name))
            network.chains.push_back(chain);
        else
            m_file.isWhole = false;
    }
    network.areSelected = json_object_has_member(object, "favourites");
    for (JsonObject *const element : objects(object, "favourites")) {
        const Favourite favourite = readFavourite(element, network);
        if (favourite == Favourite())
            m_file.isWhole = false;
        else
            network.favourites.push_back(favourite);
    }
    return network;
}

void Reader::readNetworks(JsonObject *networks)
{
    GList *const names = json_object_get_members(networks);
    for (const GList *name = names; name; name = name->next) {
        const char *const key = static_cast<const char *>(name->data);
        if (JsonObject *const object = objectIn(json_object_get_member(networks, key)))
            m_file.networks[key] = readNetwork(object);
        else
            m_file.isWhole = false;
    }
    g_list_free(names);
}

// ---- writing -------------------------------------------------------------------------------

void add(JsonObject *object, const char *name, const std::string &value)
{
    json_object_set_string_member(object, name, value.c_str());
}

JsonArray *favouritesOf(const NetworkFavourites &network)
{
    JsonArray *const array = json_array_new();
    for (const Favourite &favourite : network.favourites) {
        JsonObject *const object = json_object_new();
        if (favourite.isChain()) {
            add(object, "chain", favourite.name);
        } else {
            add(object, "name", favourite.name);
            add(object, "code", favourite.code);
        }
        json_array_add_object_element(array, object);
    }
    return array;
}

JsonObject *objectOf(const Chain &chain)
{
    JsonArray *const steps = json_array_new();
    for (const Choice &choice : chain.steps) {
        JsonObject *const step = json_object_new();
        add(step, "key", choice.key);
        add(step, "text", choice.text);
        json_array_add_object_element(steps, step);
    }
    JsonObject *const object = json_object_new();
    add(object, "name", chain.name);
    add(object, "code", chain.code);
    json_object_set_array_member(object, "steps", steps);
    return object;
}

JsonObject *objectOf(const NetworkFavourites &network)
{
    JsonObject *const object = json_object_new();
    if (network.areSelected)
        json_object_set_array_member(object, "favourites", favouritesOf(network));
    JsonArray *const chains = json_array_new();
    for (const Chain &chain : network.chains)
        json_array_add_object_element(chains, objectOf(chain));
    json_object_set_array_member(object, "chains", chains);
    return object;
}

} // namespace

const char *const FAVOURITE_FILE = "favourites.json";
const char *const UNKNOWN_NETWORK = "unknown";
const char *const DEMONSTRATION_NETWORK = "demonstration";
const std::size_t LARGEST_FAVOURITE_FILE = 1024UL * 1024;

const Chain *NetworkFavourites::chain(const std::string &name) const
{
    for (const Chain &chain : chains) {
        if (chain.name == name)
            return &chain;
    }
    return nullptr;
}

FavouriteFile FavouriteFile::fromJson(const std::string &json)
{
    FavouriteFile file;
    if (json.empty())
        return file;
    const Node root = parse(json);
    JsonObject *const object = objectIn(root.get());
    file.isWhole = object && hasKnownVersion(object);
    JsonObject *const networks =
        file.isWhole ? objectIn(json_object_get_member(object, "networks")) : nullptr;
    if (networks)
        Reader(file).readNetworks(networks);
    file.isWhole = file.isWhole && networks;
    return file;
}

std::string FavouriteFile::toJson() const
{
    JsonObject *const members = json_object_new();
    for (const auto &[name, network] : networks)
        json_object_set_object_member(members, name.c_str(), objectOf(network));
    JsonObject *const object = json_object_new();
    json_object_set_int_member(object, "version", VERSION);
    json_object_set_object_member(object, "networks", members);
    const Node root(json_node_init_object(json_node_alloc(), object), json_node_unref);
    json_object_unref(object);
    const std::unique_ptr<char, decltype(&g_free)> text(json_to_string(root.get(), TRUE), g_free);
    return std::string(text.get()) + '\n';
}

} // namespace Chains
