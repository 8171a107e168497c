#include "Answers.h"
#include "ChainRun.h"
#include "Commands.h"
#include "CommandText.h"
#include "ExitCodes.h"
#include "FavouriteReader.h"
#include "Program.h"
#include "Words.h"

namespace Cli
{

namespace
{

using Chains::Chain;
using Chains::ChainStep;

const char PLACE[] = "%s";              // the placeholder for a number in a code
const std::size_t SHORTEST_NETWORK = 5; // minimum number of digits of MCC and MNC together
const char NUMBER_CHARACTERS[] = "0123456789+*";

/** A favourite or a chain, and its home network. A favourite that is a code has no steps. */
struct Item {
    Chain chain;
    std::string network;
};

std::string quoted(const std::string &text)
{
    return "'" + text + "'";
}

/// Returns the favourites and the chains of all networks, including chains that are not favourites.
std::vector<Item> itemsIn(const Chains::FavouriteFile &file)
{
    std::vector<Item> items;
    for (const auto &[network, content] : file.networks) {
        for (const Chains::Favourite &favourite : content.favourites) {
            if (!favourite.isChain())
                items.push_back({{favourite.name, favourite.code, {}}, network});
        }
        for (const Chain &chain : content.chains)
            items.push_back({chain, network});
    }
    return items;
}

bool readItems(Program &program, std::vector<Item> &items)
{
    const std::string path = favouritesPath();
    Chains::FavouriteFile file;
    std::string problem;
    if (!readFavourites(path, file, problem)) {
        program.output().error(problem);
        return false;
    }
    if (!file.isWhole)
        program.output().error(path + " is damaged; what cannot be read is left out.");
    items = itemsIn(file);
    return true;
}

/// Returns true if the favourite was selected for the home network of the SIM, or in a
/// demonstration if the network is simulated. In another network, the same code could make a
/// purchase.
bool isOfSim(const Item &item, const TKSV_DeviceInfo &device)
{
    const std::string code = device.simOperatorCode;
    const std::string imsi = device.imsi;
    if (device.backend == TKSV_BACKEND_SIMULATOR)
        return item.network == Chains::DEMONSTRATION_NETWORK;
    if (!code.empty())
        return item.network == code;
    if (imsi.empty())
        return item.network == Chains::UNKNOWN_NETWORK;
    const std::size_t digits = item.network.size();
    return digits >= SHORTEST_NETWORK && imsi.compare(0, digits, item.network) == 0;
}

// ---- finding -------------------------------------------------------------------------------

std::vector<Item> named(const std::vector<Item> &items, const std::string &name)
{
    std::vector<Item> found;
    for (const Item &item : items) {
        if (Chains::areSameNames(item.chain.name, name))
            found.push_back(item);
    }
    return found;
}

/// Sets `found` to the item that belongs to the SIM's home network. All items are favourites with
/// the name `name`. Returns an error message if the number of suitable items is not exactly one.
std::string findItem(const std::vector<Item> &items, const std::string &name,
                     const TKSV_DeviceInfo &device, Item &found)
{
    int count = 0;
    for (const Item &item : items) {
        if (!isOfSim(item, device))
            continue;
        found = item;
        ++count;
    }
    if (count > 1)
        return "There are several favourites " + quoted(name) + ". Rename one of them.";
    if (count == 0)
        return "The favourite " + quoted(name) + " belongs to another home network.";
    return std::string();
}

/// Replaces the placeholder in the code, if any, with the number that follows the favourite's name
/// in `words`. Returns an error message if the number is missing.
std::string fillPlace(Chain &chain, const Words &words, std::size_t &firstAnswer)
{
    const std::size_t place = chain.code.find(PLACE);
    if (place == std::string::npos)
        return std::string();
    const bool hasNumber =
        words.size() > 1 && words[1].find_first_not_of(NUMBER_CHARACTERS) == std::string::npos;
    if (!hasNumber)
        return "The favourite " + quoted(chain.name) + " needs a number after its name.";
    chain.code.replace(place, sizeof PLACE - 1, words[1]);
    ++firstAnswer;
    return std::string();
}

// ---- running -------------------------------------------------------------------------------

std::string stopText(const Chain &chain, const ChainStep &step)
{
    std::string text = "Stopped at step " + std::to_string(step.number) + " of " +
                       std::to_string(chain.length()) + ": ";
    if (step.verdict == ChainStep::Verdict::NoMenu)
        return text + "there is no menu that offers " + quoted(step.expected) +
               ". Nothing more was sent.";
    text += "the menu no longer offers " + quoted(step.expected) + " on key " + step.key;
    if (!step.offered.empty())
        text += ", but " + quoted(step.offered);
    return text + ". Nothing more was sent, and the session was ended.";
}

/// Ends the session, prints why the chain has stopped, and returns the exit code.
int stop(Program &program, Conversation &conversation, const Chain &chain, const ChainStep &step)
{
    const bool isMenuOpen = conversation.isMenuOpen();
    const std::string message = stopText(chain, step);
    conversation.end();
    program.output().error(message);
    if (program.options().isJson) {
        Json object;
        object.add("state", "stopped");
        object.add("message", message);
        object.add("step", static_cast<int>(step.number));
        object.add("key", step.key);
        object.add("expected", step.expected);
        object.add("offered", step.offered);
        program.output().line(object);
    }
    return isMenuOpen ? EXIT_MENU_OPEN : EXIT_REFUSED;
}

/// Sends the code and the steps of the chain, and then the answers from the command line, which
/// start at index `firstAnswer`. Returns the exit code.
int runChain(Program &program, const Chain &chain, std::size_t firstAnswer)
{
    Conversation conversation(program.device(), program.waits(), program.options().timeout);
    const Words &words = program.options().words;
    Chains::ChainRun run(chain);
    std::string text = chain.code;
    Program::Kind kind = Program::Kind::Code;
    for (;;) {
        const int result = program.send(conversation, text, kind);
        if (result != EXIT_DONE || program.output().hasFailed()) {
            reportUnsent(program, std::string(), words, firstAnswer);
            return result;
        }
        const ChainStep step = run.takeReply(program.lastReply(), conversation.isMenuOpen());
        if (step.hasStopped())
            return stop(program, conversation, chain, step);
        if (step.verdict == ChainStep::Verdict::Done)
            return sendAnswers(program, conversation, words, firstAnswer);
        text = step.key;
        kind = Program::Kind::Answer;
    }
}

} // namespace

int printFavourites(Program &program)
{
    std::vector<Item> items;
    if (!readItems(program, items))
        return EXIT_WRONG_USAGE;
    for (const Item &item : items) {
        if (!program.options().isJson) {
            program.output().line(item.chain.name + '\t' + item.chain.keys() + '\t' + item.network);
            continue;
        }
        Json object;
        object.add("name", item.chain.name);
        object.add("code", item.chain.code);
        object.add("keys", item.chain.keys());
        object.add("network", item.network);
        program.output().line(object);
    }
    return EXIT_DONE;
}

int runFavourite(Program &program)
{
    const Words &words = program.options().words;
    std::vector<Item> items;
    if (!readItems(program, items))
        return EXIT_WRONG_USAGE;
    items = named(items, words.front());
    if (items.empty()) {
        program.output().error("There is no favourite " + quoted(words.front()) +
                               ". 'ussd run --list' prints the favourites.");
        return EXIT_WRONG_USAGE;
    }
    if (!program.prepareDevice())
        return program.failOnDevice(items.front().chain.code);
    program.awaitSim();
    Item item;
    std::size_t firstAnswer = 1;
    std::string problem = findItem(items, words.front(), program.device().info(), item);
    if (problem.empty())
        problem = fillPlace(item.chain, words, firstAnswer);
    if (problem.empty() && !commandProblem(item.chain.code).empty())
        problem = "The code of " + quoted(words.front()) + " cannot be sent.";
    if (problem.empty())
        return runChain(program, item.chain, firstAnswer);
    program.output().error(problem);
    return EXIT_WRONG_USAGE;
}

} // namespace Cli
