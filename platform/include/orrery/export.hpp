// Visibility of the platform library's public symbols.
#pragma once

/// Marks a declaration of the platform library as part of its public interface.
#define ORRERY_API __attribute__((visibility("default")))
