#include "terminal/command_line.h"

int main(int argumentCount, char** arguments) {
  return calvero::runCommandLine(argumentCount, arguments);
}
