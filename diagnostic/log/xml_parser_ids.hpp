// Catalogue message keys of the "ORRERY:warning:XMLParser" family: what the warning
// log reader finds wrong in a file.
#pragma once

#include <orrery/except/message_id.hpp>

namespace orrery::diagnostic::ids {

/// Arguments: the parser's error text, the line, the column counted from 1.
ORRERY_MESSAGE_KEY(XmlParseError, "ORRERY:warning:XMLParser:ParseError", 3);
/// Argument: the element name.
ORRERY_MESSAGE_KEY(XmlUnknownElement, "ORRERY:warning:XMLParser:UnknownElement", 1);
ORRERY_MESSAGE_KEY(XmlNestedLog, "ORRERY:warning:XMLParser:NestedLog", 0);
ORRERY_MESSAGE_KEY(XmlNestedWarning, "ORRERY:warning:XMLParser:NestedWarning", 0);
/// Argument: the element name.
ORRERY_MESSAGE_KEY(XmlUnexpectedElement, "ORRERY:warning:XMLParser:UnexpectedElement", 1);
/// Argument: the element name.
ORRERY_MESSAGE_KEY(XmlImmutableElement, "ORRERY:warning:XMLParser:ImmutableElement", 1);
/// Arguments: the element name, the attribute name.
ORRERY_MESSAGE_KEY(XmlUnknownAttribute, "ORRERY:warning:XMLParser:UnknownAttribute", 2);
/// Arguments: the element name, the attribute name.
ORRERY_MESSAGE_KEY(XmlMissingAttribute, "ORRERY:warning:XMLParser:MissingAttribute", 2);
/// Argument: the identifier.
ORRERY_MESSAGE_KEY(XmlInvalidIdentifier, "ORRERY:warning:XMLParser:InvalidIdentifier", 1);
/// Argument: the value.
ORRERY_MESSAGE_KEY(XmlInvalidWasDisabled, "ORRERY:warning:XMLParser:InvalidWasDisabled", 1);
ORRERY_MESSAGE_KEY(XmlInvalidTimeFormat, "ORRERY:warning:XMLParser:InvalidTimeFormat", 0);
/// Argument: the value.
ORRERY_MESSAGE_KEY(XmlInvalidArgType, "ORRERY:warning:XMLParser:InvalidArgType", 1);
/// Argument: the value.
ORRERY_MESSAGE_KEY(XmlInvalidLine, "ORRERY:warning:XMLParser:InvalidLine", 1);
/// Argument: the whole escape, both "#" included.
ORRERY_MESSAGE_KEY(XmlInvalidHexEntry, "ORRERY:warning:XMLParser:InvalidHexEntry", 1);
/// Arguments: "#" and the rest of the text from it.
ORRERY_MESSAGE_KEY(XmlUnmatchedEscapedCharacter, "ORRERY:warning:XMLParser:UnmatchedEscapedCharacter", 2);

}  // namespace orrery::diagnostic::ids
