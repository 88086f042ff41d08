// Must not compile: the module sees the platform's public headers only.
#include "platform/src/warning/warning_print.hpp"
