#ifndef FUZZSUPPORT_H
#define FUZZSUPPORT_H

#include <cstddef>
#include <cstdint>

#include <QByteArray>
#include <QString>

/* Functions that the fuzzers share. Each fuzzer processes one input in LLVMFuzzerTestOneInput(). */

/// Aborts the program with a message if the condition is false. The fuzzer reports this as a crash.
/// The macro is active in all build types.
#define FUZZ_REQUIRE(condition)                                                                    \
    ((condition) ? static_cast<void>(0) : FuzzSupport::fail(#condition, __FILE__, __LINE__))

namespace FuzzSupport
{

[[noreturn]] void fail(const char *condition, const char *file, int line);

/// Discards log messages after they have been formatted, so that the formatting is fuzzed too.
void dropMessages();

/// Creates an application that supports widgets without a display. Only the first call has an
/// effect. The application is never deleted.
void needApplication();

/// Returns a temporary folder, without a trailing separator. The folder is deleted when the program
/// ends.
QString folder();

/// Creates or replaces a file in an existing folder.
void writeFile(const QString &path, const QByteArray &content);

/// Returns the input as UTF-16 code units in the byte order of the host, including unpaired
/// surrogates. An odd byte at the end is ignored.
QString units(const uint8_t *data, size_t size);

} // namespace FuzzSupport

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);
extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv);

#endif
