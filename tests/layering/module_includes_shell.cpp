// Must not compile: the module never depends on the shell.
#include "shell/eval/interpreter.hpp"
