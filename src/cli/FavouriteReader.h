#ifndef CLI_FAVOURITEREADER_H
#define CLI_FAVOURITEREADER_H

#include <string>

#include "FavouriteFile.h"

namespace Cli
{

/// Returns the path of the file in which the user's dashboard keeps the favourites.
std::string favouritesPath();

/// Reads the file. Returns false and sets `problem` to an error message if the file exists, but
/// cannot be read. A missing file is empty.
bool readFavourites(const std::string &path, Chains::FavouriteFile &file, std::string &problem);

} // namespace Cli

#endif
