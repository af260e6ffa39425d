#include "toolbelt/ToolBelt.h"

int main(int argc, char** argv) { return quendle::RunToolBelt({argv + 1, argv + argc}); }
