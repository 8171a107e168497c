/* A library that is not a plug-in. */
extern "C" __attribute__((visibility("default"))) int entry();
int entry()
{
    return 0;
}
