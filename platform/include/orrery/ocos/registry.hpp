// Lookup of classes, namespaces and functions by dotted path, and the host's
// storage mode.
#pragma once

#include <orrery/export.hpp>
#include <orrery/ocos/namespace.hpp>

#include <memory>
#include <string_view>

namespace orrery::ocos {

/// The top-level namespace of that name ("orrery"), made on first use.
ORRERY_API COSNamespace& getNamespace(std::string_view name);

/// The namespace at a dotted path ("orrery.internal"), or null; never creates.
ORRERY_API COSNamespace* findNamespace(std::string_view path);

/// The class at a full dotted path ("orrery.internal.diagnostic.Warning",
/// "message"), or null.
ORRERY_API std::shared_ptr<const COSClassInfo> findClass(std::string_view path);
/// As findClass; an unknown path raises "ORRERY:ocos:noSuchClass".
ORRERY_API std::shared_ptr<const COSClassInfo> getClass(std::string_view path);

/// The namespace function at a dotted path ("orrery.internal.diagnostic.log.open"), or null.
ORRERY_API std::shared_ptr<const COSMethodInfo> findFunction(std::string_view path);
/// As findFunction; an unknown path raises "ORRERY:ocos:noSuchFunction".
ORRERY_API std::shared_ptr<const COSMethodInfo> getFunction(std::string_view path);

/// True when the class system keeps its registrations per interpreter instance,
/// so that modules must register their classes for every instance. The
/// reference host keeps one process-wide registry and answers false.
ORRERY_API bool isPerInstanceStorage();
/// Changes the answer of isPerInstanceStorage (for hosts and tests).
ORRERY_API void setPerInstanceStorage(bool perInstance);

}  // namespace orrery::ocos
