#include "TextFile.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>

namespace Tksv
{

namespace
{

const std::size_t MAX_BYTES = std::size_t(1024) * 1024;

using FilePointer = std::unique_ptr<std::FILE, int (*)(std::FILE *)>;

/// Opens the file. Opening a named pipe does not block; the caller then rejects the pipe with
/// isRegular().
FilePointer openFile(const std::string &path)
{
    const int descriptor = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    return FilePointer(descriptor < 0 ? nullptr : fdopen(descriptor, "rb"), &std::fclose);
}

bool isRegular(std::FILE *file)
{
    struct stat status = {};
    return fstat(fileno(file), &status) == 0 && S_ISREG(status.st_mode);
}

/// Reads to the end of the file, or until the text exceeds the maximum size. The buffer is small
/// because most files have only a few kilobytes.
void readPieces(std::FILE *file, std::string &text)
{
    char piece[4096];
    text.clear();
    while (text.size() <= MAX_BYTES) {
        const std::size_t length = std::fread(piece, 1, sizeof(piece), file);
        if (length == 0)
            return;
        text.append(piece, length);
    }
}

std::string systemError()
{
    return std::string("cannot be read: ") + std::strerror(errno);
}

} // namespace

std::string readTextFile(const std::string &path, std::string &text)
{
    const FilePointer file = openFile(path);
    if (!file)
        return systemError();
    if (!isRegular(file.get()))
        return "expected a regular file";
    readPieces(file.get(), text);
    if (std::ferror(file.get()))
        return systemError();
    return text.size() > MAX_BYTES ? "expected at most 1 MiB" : std::string();
}

} // namespace Tksv
