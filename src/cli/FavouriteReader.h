#ifndef CLI_FAVOURITEREADER_H
#define CLI_FAVOURITEREADER_H

#include <string>

#include "FavouriteFile.h"

namespace Cli
{

/// Returns the path of the file in which the dashboard stores the user's favourites.
std::string favouritesPath();

/// Reads the file. Returns false and sets `problem` to an error message if the file exists but
/// cannot be read. If the file does not exist, returns true and leaves `file` unchanged.
bool readFavourites(const std::string &path, Chains::FavouriteFile &file, std::string &problem);

} // namespace Cli

#endif
