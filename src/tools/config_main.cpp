#include "ConfigTool.h"

int main(int argc, char **argv)
{
    return runConfigTool(startTool(argc, argv));
}
