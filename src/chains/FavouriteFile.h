#ifndef CHAINS_FAVOURITEFILE_H
#define CHAINS_FAVOURITEFILE_H

#include <map>
#include <string>
#include <vector>

#include "Chain.h"

namespace Chains
{

/** A favourite: a code with its name, or the name of a chain. */
struct Favourite {
    std::string name;
    std::string code; // empty if the favourite is a chain

    bool isChain() const { return code.empty(); }
    bool operator==(const Favourite &other) const
    {
        return name == other.name && code == other.code;
    }
};

/** The favourites and chains of a home network. */
struct NetworkFavourites {
    bool areSelected = false; // false if the user has never selected favourites
    std::vector<Favourite> favourites;
    std::vector<Chain> chains;

    /// Returns the chain with this name, or null.
    const Chain *chain(const std::string &name) const;
};

/** The contents of the file of the favourites; docs/ussd.md describes the format. */
struct FavouriteFile {
    std::map<std::string, NetworkFavourites> networks; // by MCC and MNC, or a name below
    bool isWhole = true; // false if something in the file could not be read

    /// Reads everything in the file that can be read. An empty string is an empty file.
    static FavouriteFile fromJson(const std::string &json);
    std::string toJson() const;
};

/// The name of the file in the user's data folder.
extern const char *const FAVOURITE_FILE;
/// The key of favourites that were selected without a known home network.
extern const char *const UNKNOWN_NETWORK;
/// The key of favourites that were selected in a demonstration, whatever its home network is.
extern const char *const DEMONSTRATION_NETWORK;
/// The size above which the file is not read, in bytes.
extern const std::size_t LARGEST_FAVOURITE_FILE;

} // namespace Chains

#endif
