// Visibility of the module's external interfaces; everything else stays hidden.
#pragma once

/// Exported type or C++ function of the module.
#define DIAGNOSTIC_EXPORT __attribute__((visibility("default")))

/// Exported entry point or built-in, bound by the interpreter by its plain name.
#define DIAGNOSTIC_ENTRY extern "C" DIAGNOSTIC_EXPORT
