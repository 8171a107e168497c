#include "ProvisionTool.h"

int main(int argc, char **argv)
{
    return Tools::runProvisionTool(Tools::startTool(argc, argv));
}
