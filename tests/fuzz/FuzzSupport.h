#ifndef FUZZSUPPORT_H
#define FUZZSUPPORT_H

#include <cstddef>
#include <cstdint>

#include <QByteArray>
#include <QString>

/* What the fuzzers have in common. Each runs one input in LLVMFuzzerTestOneInput(). */

/// Ends the program with a message, which the fuzzer takes for a crash. Works in every build.
#define FUZZ_REQUIRE(condition)                                                                    \
    ((condition) ? static_cast<void>(0) : FuzzSupport::fail(#condition, __FILE__, __LINE__))

namespace FuzzSupport
{

[[noreturn]] void fail(const char *condition, const char *file, int line);

/// Log lines are formatted and go nowhere: what they hold of the input is fuzzed with it.
void dropMessages();

/// An application without a display, for widgets. Made on the first call, never deleted.
void needApplication();

/// A folder that is gone after the program, without a separator at its end.
QString folder();

/// Makes or replaces a file in an existing folder.
void writeFile(const QString &path, const QByteArray &content);

/// The input as UTF-16 units in the host's byte order, lone surrogates and all; an odd byte at the
/// end is left out.
QString units(const uint8_t *data, size_t size);

} // namespace FuzzSupport

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);
extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv);

#endif
