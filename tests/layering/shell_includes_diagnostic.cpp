// Must not compile: the shell reaches the module only through dlopen.
#include "diagnostic/module/entry_points.hpp"
