#include "InitialScenarioPath.h"

#include <cstdlib>
#include <dlfcn.h>
#include <memory>

#include "modemmanager/GLibPointers.h"

namespace Tksv
{

namespace
{

/// An object that is passed to dladdr() to identify this library. Any object of the library would
/// do.
const char ADDRESS_IN_LIBRARY = 0;

/// Returns the path of this library, with symbolic links resolved if possible.
std::string libraryPath()
{
    Dl_info info = {};
    if (dladdr(&ADDRESS_IN_LIBRARY, &info) == 0 || !info.dli_fname)
        return {};
    const std::unique_ptr<char, decltype(&std::free)> resolved(realpath(info.dli_fname, nullptr),
                                                               &std::free);
    return resolved ? resolved.get() : info.dli_fname;
}

} // namespace

std::string initialScenarioPath()
{
    const char *chosen = std::getenv("TKSV_SCENARIO");
    if (chosen && *chosen)
        return chosen;
    // Does not use std::filesystem, which would link the locales of the C++ library into this
    // library and double its size.
    const GMemory<char> file(g_build_filename(libraryPath().c_str(), "..", USSD_SHARE_FROM_LIB,
                                              "scenarios", "default.scenario", nullptr));
    const GMemory<char> path(g_canonicalize_filename(file.get(), nullptr));
    return path.get();
}

} // namespace Tksv
