#include "InitialScenarioPath.h"

#include <cstdlib>
#include <dlfcn.h>
#include <filesystem>
#include <system_error>

namespace Tksv
{

namespace
{

/// An object that is passed to dladdr() to identify this library. Any object of the library would
/// do.
const char ADDRESS_IN_LIBRARY = 0;

/// Returns the folder from which this library was loaded.
std::filesystem::path libraryFolder()
{
    Dl_info info = {};
    if (dladdr(&ADDRESS_IN_LIBRARY, &info) == 0 || !info.dli_fname)
        return {};
    std::error_code ignored; // if an error occurs, the unresolved path is used
    const std::filesystem::path path = std::filesystem::canonical(info.dli_fname, ignored);
    return path.empty() ? std::filesystem::path(info.dli_fname).parent_path() : path.parent_path();
}

} // namespace

std::string initialScenarioPath()
{
    const char *chosen = std::getenv("TKSV_SCENARIO");
    if (chosen && *chosen)
        return chosen;
    const std::filesystem::path shipped = "scenarios/default.scenario";
    return (libraryFolder() / USSD_SHARE_FROM_LIB / shipped).lexically_normal().string();
}

} // namespace Tksv
