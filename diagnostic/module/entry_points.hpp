// The module's entry points, called by the interpreter at load and unload.
#pragma once

#include "diagnostic/module/export.hpp"

/// Registers the module's services: the built-in "ResetLastPrintedWarning" (once
/// per process), the Warning class and its log functions; installs the
/// warning-log factory and destroy functions and, when there is a warning
/// manager context, attaches a new warning log to it.
DIAGNOSTIC_ENTRY void LxInitialize_diagnostic();

/// Clears the warning-log factory and destroy functions and drops the current
/// context's log. Registrations are not undone.
DIAGNOSTIC_ENTRY void LxTerminate_diagnostic();
