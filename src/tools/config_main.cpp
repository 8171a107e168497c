#include "ConfigTool.h"

int main(int argc, char **argv)
{
    return Tools::runConfigTool(Tools::startTool(argc, argv));
}
