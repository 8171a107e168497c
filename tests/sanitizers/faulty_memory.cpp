// Contains deliberate errors. CTest runs each of them separately, and expects a report from the
// address sanitizer.
#include <cstdio>
#include <cstring>
#include <limits>

namespace
{
int *volatile g_kept = nullptr; // volatile, so that the compiler does not remove it

// The volatile variables prevent compiler warnings about the errors.
int readAfterFree()
{
    int *volatile value = new int(1);
    delete value;
    return *value;
}

int overflow(int more)
{
    volatile int most = std::numeric_limits<int>::max();
    return most + more;
}

void leak()
{
    for (int i = 0; i < 10; ++i)
        g_kept = new int[100];
    g_kept = nullptr;
}
} // namespace

int main(int argc, char **argv)
{
    const char *fault = argc > 1 ? argv[1] : "";
    if (std::strcmp(fault, "readAfterFree") == 0)
        std::printf("%d\n", readAfterFree());
    else if (std::strcmp(fault, "overflow") == 0)
        std::printf("%d\n", overflow(argc));
    else if (std::strcmp(fault, "leak") == 0)
        leak();
    return 0;
}
