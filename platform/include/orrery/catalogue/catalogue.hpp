// The message catalogue: texts looked up by message identifier and formatted
// with ordered arguments in the current locale.
#pragma once

#include <orrery/catalogue/message_argument.hpp>
#include <orrery/export.hpp>

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace orrery::catalogue {

/// True when the catalogue has a text for the identifier ("ORRERY:error:badStack").
ORRERY_API bool hasMessage(std::string_view identifier);

/// The text of the identifier with its placeholders filled from arguments, in the
/// ICU default locale. A missing entry raises "ORRERY:catalogue:noSuchMessage";
/// arguments of the wrong kind for the pattern, or more or fewer than it uses,
/// raise "ORRERY:catalogue:argumentMismatch".
ORRERY_API std::u16string formatMessage(std::string_view identifier, std::span<const MessageArgument> arguments = {});

/// The number of arguments the identifier's text takes: one more than its highest
/// placeholder number. A missing entry raises "ORRERY:catalogue:noSuchMessage".
ORRERY_API std::size_t messageArgumentCount(std::string_view identifier);

/// Convenience: formatMessage converted to UTF-8.
ORRERY_API std::string formatMessageUtf8(std::string_view identifier, std::span<const MessageArgument> arguments = {});

/// Folder that holds the compiled catalogue (root.res): $ORRERY_CATALOGUE_DIR if set,
/// else the "catalogue" folder beside the platform library (as built), else the
/// "orrery/catalogue" folder beside it (as installed, next to the module).
ORRERY_API std::string catalogueFolder();

}  // namespace orrery::catalogue
