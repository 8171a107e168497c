#include "ProvisionTool.h"

int main(int argc, char **argv)
{
    return runProvisionTool(startTool(argc, argv));
}
