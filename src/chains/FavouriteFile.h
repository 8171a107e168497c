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

    /// Returns the chain with this name, or null if there is none.
    const Chain *chain(const std::string &name) const;
};

/** The contents of the favourites file, whose format is described in docs/ussd.md. */
struct FavouriteFile {
    std::map<std::string, NetworkFavourites> networks; // keyed by MCC and MNC, or by a key below
    bool isWhole = true; // false if a part of the file could not be read

    /// Parses the contents of the file and skips the invalid parts. An empty string is valid and
    /// contains no favourites.
    static FavouriteFile fromJson(const std::string &json);
    std::string toJson() const;
};

/// The name of the favourites file, which is in the user's data folder.
extern const char *const FAVOURITE_FILE;
/// The key for favourites that were selected while the home network was unknown.
extern const char *const UNKNOWN_NETWORK;
/// The key for favourites that were selected in a demonstration, regardless of its home network.
extern const char *const DEMONSTRATION_NETWORK;
/// The maximum size of the file in bytes. A larger file is not read.
extern const std::size_t LARGEST_FAVOURITE_FILE;

} // namespace Chains

#endif
