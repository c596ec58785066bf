#include "commands/command.h"

int main(int argc, char** argv) {
    return zkp::app::runCommandLine({argc, argv});
}
