#ifndef FUZZSUPPORT_H
#define FUZZSUPPORT_H

#include <cstddef>
#include <cstdint>

#include <QByteArray>
#include <QString>

/* Common code of the fuzzers. Each fuzzer runs one input in LLVMFuzzerTestOneInput(). */

/// Ends the program with a message if the condition is false. The fuzzer reports this as a crash.
/// The macro works in every build type.
#define FUZZ_REQUIRE(condition)                                                                    \
    ((condition) ? static_cast<void>(0) : FuzzSupport::fail(#condition, __FILE__, __LINE__))

namespace FuzzSupport
{

[[noreturn]] void fail(const char *condition, const char *file, int line);

/// Discards log lines. They are still formatted, so that the formatting is fuzzed too.
void dropMessages();

/// Creates an application without a display, for widgets. Only the first call creates it, and it is
/// never deleted.
void needApplication();

/// Returns a directory that is deleted at the end of the program. The path has no trailing
/// separator.
QString folder();

/// Creates or replaces a file in an existing folder.
void writeFile(const QString &path, const QByteArray &content);

/// Returns the input as UTF-16 code units in the host's byte order, including unpaired surrogates.
/// An odd byte at the end is ignored.
QString units(const uint8_t *data, size_t size);

} // namespace FuzzSupport

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);
extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv);

#endif
